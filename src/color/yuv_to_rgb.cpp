// vemiYUVToRGB, vemiYUV422ToRGB, vemiYUV420ToRGB, vemiYUV420ToBGR.
// Checks: null, size, null planes, step; forms without steps: null, size, null planes.

#include "color/affine.h"
#include "color/exports.h"
#include "color/subsampled.h"
#include "color/to_rgb.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

using Plain = ToRgb<yuvToRgb>;
using FourOff = ToRgb<yuvToRgb, OddPixels::everySecondFourOff>;
using Exact = ExactToRgb<yuvToRgbExact>;
using FullRate = Regimes<8, FourOff, Plain>;

using Columns422 = ColumnOps<Plain, Exact, Exact>;
using Columns420 = ColumnOps<FourOff, Plain, Exact>;
using Columns420ToBgr = ColumnOps<Then<FourOff, Reversed>, Then<Plain, Reversed>, Then<Exact, Reversed>>;

/// Destinations of four channels: the last one becomes 0.
using LanesWithZero = Then<ToRgb<yuvToRgba>, WithZero>;
using ExactWithZero = Then<Exact, WithZero>;
using Columns422WithZero = ColumnOps<LanesWithZero, ExactWithZero, ExactWithZero>;
using Columns420WithZero = ColumnOps<LanesWithZero, LanesWithZero, ExactWithZero>;

template <class DL, class Dst>
VemiStatus fromContiguous422(const Vemi8u* const* pSrc, Dst pDst, VemiSize size) {
  const ContiguousSteps steps(size);
  const ChromaPlanes src = {pSrc, steps.chroma};
  const auto dst = contiguousPixels(steps, pDst);
  if (const VemiStatus bad = checkImages(src, dst, size)) return bad;
  expandPlanes<2>(contiguousExtent(size), Columns422(), pixelsIn<DL>(dst), src);
  return vemiOk;
}

template <class DL, class Dst>
VemiStatus fromContiguous420(const Vemi8u* const* pSrc, Dst pDst, VemiSize size) {
  const ContiguousSteps steps(size);
  const ChromaPlanes src = {pSrc, steps.chroma};
  const auto dst = contiguousPixels(steps, pDst);
  if (const VemiStatus bad = checkImages(src, dst, size)) return bad;
  expandRowPairs(CallerRows(), extentOf(size), Columns420(), pixelsIn<DL>(dst), src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiYUVToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convert<AC4, AC4, Plain>)
VEMI_DEFINE(vemiYUVToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convert<C3, C3, FullRate>)
VEMI_DEFINE(vemiYUVToRGB_8u_P3C3R, VEMI_PLANES_DST(Vemi8u, 3), convert<Planar, C3, FullRate>)
VEMI_DEFINE(vemiYUVToRGB_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convert<Planar, Planar, FullRate>)

VEMI_DEFINE(vemiYUV422ToRGB_8u_C2C3R, VEMI_SRC_DST(Vemi8u), fromPacked422<Columns422, Packed422::lumaFirst, C3>)
VEMI_DEFINE(vemiYUV422ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from422<Columns422, C3>)
VEMI_DEFINE(vemiYUV422ToRGB_8u_P3AC4R, VEMI_STEPPED_DST(Vemi8u), from422<Columns422WithZero, C4>)
VEMI_DEFINE(vemiYUV422ToRGB_8u_P3R, VEMI_STEPPED_PLANES(Vemi8u), from422<Columns422, Planar>)
VEMI_DEFINE(vemiYUV422ToRGB_8u_P3C3, VEMI_CONTIGUOUS_DST(Vemi8u), fromContiguous422<C3>)
VEMI_DEFINE(vemiYUV422ToRGB_8u_P3, VEMI_CONTIGUOUS(Vemi8u), fromContiguous422<Planar>)

VEMI_DEFINE(vemiYUV420ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<Columns420, CallerRows, C3>)
VEMI_DEFINE(vemiYUV420ToRGB_8u_P3AC4R, VEMI_STEPPED_DST(Vemi8u), from420<Columns420WithZero, CallerRows, C4>)
VEMI_DEFINE(vemiYUV420ToRGB_8u_P3R, VEMI_STEPPED_PLANES(Vemi8u), from420<Columns420, CallerRows, Planar>)
VEMI_DEFINE(vemiYUV420ToRGB_8u_P3C3, VEMI_CONTIGUOUS_DST(Vemi8u), fromContiguous420<C3>)
VEMI_DEFINE(vemiYUV420ToRGB_8u_P3, VEMI_CONTIGUOUS(Vemi8u), fromContiguous420<Planar>)
VEMI_DEFINE(vemiYUV420ToBGR_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<Columns420ToBgr, CallerRows, C3>)
