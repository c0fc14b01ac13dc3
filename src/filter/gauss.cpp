// vemiFilterGauss, vemiFilterLowpass: weighted and plain means.

#include "filter/fixed_kernels.h"

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilterGauss_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C1, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C3, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C4, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, AC4, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C1, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C3, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C4, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, AC4, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C1, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C3, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C4, gauss3, gauss5>)
VEMI_DEFINE(vemiFilterGauss_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, AC4, gauss3, gauss5>)

VEMI_DEFINE(vemiFilterLowpass_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C1, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C3, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, AC4, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C1, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C3, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, AC4, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C1, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C3, lowpass3, lowpass5>)
VEMI_DEFINE(vemiFilterLowpass_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, AC4, lowpass3, lowpass5>)
