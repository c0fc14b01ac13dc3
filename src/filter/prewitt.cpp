// vemiFilterPrewitt, vemiFilterScharr: first derivatives with other smoothing.

#include "filter/fixed_kernels.h"

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilterPrewittHoriz_8u_C1R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C1, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_8u_C3R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C3, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_8u_C4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C4, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_8u_AC4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, AC4, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_16s_C1R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C1, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_16s_C3R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C3, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_16s_C4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C4, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_16s_AC4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, AC4, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_32f_C3R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C3, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_32f_C4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C4, prewittHoriz>)
VEMI_DEFINE(vemiFilterPrewittHoriz_32f_AC4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, AC4, prewittHoriz>)

VEMI_DEFINE(vemiFilterPrewittVert_8u_C1R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C1, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_8u_C3R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C3, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_8u_C4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, C4, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_8u_AC4R, VEMI_SRC_DST(Vemi8u), fixedKernel<Vemi8u, Vemi8u, AC4, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_16s_C1R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C1, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_16s_C3R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C3, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_16s_C4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, C4, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_16s_AC4R, VEMI_SRC_DST(Vemi16s), fixedKernel<Vemi16s, Vemi16s, AC4, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_32f_C3R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C3, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_32f_C4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C4, prewittVert>)
VEMI_DEFINE(vemiFilterPrewittVert_32f_AC4R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, AC4, prewittVert>)

VEMI_DEFINE(vemiFilterScharrHoriz_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s),
            fixedKernel<Vemi8u, Vemi16s, C1, scharrHoriz>)
VEMI_DEFINE(vemiFilterScharrHoriz_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s),
            fixedKernel<Vemi8s, Vemi16s, C1, scharrHoriz>)
VEMI_DEFINE(vemiFilterScharrHoriz_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, scharrHoriz>)

VEMI_DEFINE(vemiFilterScharrVert_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s),
            fixedKernel<Vemi8u, Vemi16s, C1, scharrVert>)
VEMI_DEFINE(vemiFilterScharrVert_8s16s_C1R, VEMI_CONVERSION(Vemi8s, Vemi16s),
            fixedKernel<Vemi8s, Vemi16s, C1, scharrVert>)
VEMI_DEFINE(vemiFilterScharrVert_32f_C1R, VEMI_SRC_DST(Vemi32f), fixedKernel<Vemi32f, Vemi32f, C1, scharrVert>)
