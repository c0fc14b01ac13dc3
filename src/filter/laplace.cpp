// vemiFilterLaplace, vemiFilterHipass, vemiFilterSharpen: what a pixel has more than its neighbourhood.

#include "filter/fixed_kernels.h"

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilterLaplace_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C1, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C3, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C4, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, AC4, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi16s, C1, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi8s, Vemi16s, C1, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C1, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C3, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C4, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, AC4, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C1, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C3, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C4, laplace3, laplace5>)
VEMI_DEFINE(vemiFilterLaplace_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, AC4, laplace3, laplace5>)

VEMI_DEFINE(vemiFilterHipass_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C1, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C3, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, C4, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_MASK_SIZE),
            chosenKernel<Vemi8u, Vemi8u, AC4, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C1, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C3, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, C4, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_MASK_SIZE),
            chosenKernel<Vemi16s, Vemi16s, AC4, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C1, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C3, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, C4, laplace3, hipass5>)
VEMI_DEFINE(vemiFilterHipass_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_MASK_SIZE),
            chosenKernel<Vemi32f, Vemi32f, AC4, laplace3, hipass5>)

VEMI_DEFINE(vemiFilterSharpen_8u_C1R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C1, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_8u_C3R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C3, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_8u_C4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C4, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_8u_AC4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, AC4, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_16s_C1R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C1, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_16s_C3R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C3, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_16s_C4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C4, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_16s_AC4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, AC4, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_32f_C3R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C3, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_32f_C4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C4, sharpen3>)
VEMI_DEFINE(vemiFilterSharpen_32f_AC4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, AC4, sharpen3>)
