// vemiFilterSobel and its forms: first and second derivatives, smoothed across their direction.

#include "filter/fixed_kernels.h"

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilterSobelHoriz_8u_C1R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C1, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_8u_C3R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C3, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_8u_C4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C4, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_8u_AC4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, AC4, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, sobelHoriz3, sobelHoriz5>)
VEMI_DEFINE(vemiFilterSobelHoriz_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, sobelHoriz3, sobelHoriz5>)
VEMI_DEFINE(vemiFilterSobelHoriz_16s_C1R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C1, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_16s_C3R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C3, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_16s_C4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C4, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_16s_AC4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, AC4, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_32f_C3R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C3, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_32f_C4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C4, sobelHoriz3>)
VEMI_DEFINE(vemiFilterSobelHoriz_32f_AC4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, AC4, sobelHoriz3>)

VEMI_DEFINE(vemiFilterSobelVert_8u_C1R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C1, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_8u_C3R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C3, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_8u_C4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C4, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_8u_AC4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, AC4, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, sobelVert3, sobelVert5>)
VEMI_DEFINE(vemiFilterSobelVert_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, sobelVert3, sobelVert5>)
VEMI_DEFINE(vemiFilterSobelVert_16s_C1R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C1, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_16s_C3R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C3, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_16s_C4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C4, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_16s_AC4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, AC4, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_32f_C3R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C3, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_32f_C4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C4, sobelVert3>)
VEMI_DEFINE(vemiFilterSobelVert_32f_AC4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, AC4, sobelVert3>)

VEMI_DEFINE(vemiFilterSobelHorizMask_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            kernel5Unless3<Vemi32f, Vemi32f, C1, sobelHoriz3, sobelHoriz5>)

VEMI_DEFINE(vemiFilterSobelVertMask_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            kernel5Unless3<Vemi32f, Vemi32f, C1, sobelVert3, sobelVert5>)

VEMI_DEFINE(vemiFilterSobelHorizSecond_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, sobelHorizSecond3, sobelHorizSecond5>)
VEMI_DEFINE(vemiFilterSobelHorizSecond_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, sobelHorizSecond3, sobelHorizSecond5>)
VEMI_DEFINE(vemiFilterSobelHorizSecond_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            kernel5Unless3<Vemi32f, Vemi32f, C1, sobelHorizSecond3, sobelHorizSecond5>)

VEMI_DEFINE(vemiFilterSobelVertSecond_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, sobelVertSecond3, sobelVertSecond5>)
VEMI_DEFINE(vemiFilterSobelVertSecond_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, sobelVertSecond3, sobelVertSecond5>)
VEMI_DEFINE(vemiFilterSobelVertSecond_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            kernel5Unless3<Vemi32f, Vemi32f, C1, sobelVertSecond3, sobelVertSecond5>)

VEMI_DEFINE(vemiFilterSobelCross_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, sobelCross3, sobelCross5>)
VEMI_DEFINE(vemiFilterSobelCross_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, sobelCross3, sobelCross5>)
VEMI_DEFINE(vemiFilterSobelCross_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            kernel5Unless3<Vemi32f, Vemi32f, C1, sobelCross3, sobelCross5>)
