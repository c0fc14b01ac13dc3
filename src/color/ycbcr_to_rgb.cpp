// vemiYCbCrToRGB, vemiYCbCr422ToRGB, vemiYCbCr420ToRGB, vemiYCbCr420ToBGR, vemiYCbCr411ToBGR.
// Checks: null, size, null planes, step; vemiYCbCr411ToBGR does not look at steps.

#include "color/affine.h"
#include "color/exports.h"
#include "color/subsampled.h"
#include "color/to_rgb.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

using Lanes = ToRgb<ycbcrToRgb>;
using Exact = ExactToRgb<ycbcrToRgbExact>;

using Columns = ColumnOps<Lanes, Exact, Exact>;
using ColumnsOfWidth1 = ColumnOps<Lanes, Exact, Affine<ycbcrToRgbOfWidth1>>;
using ColumnsToBgr = ColumnOps<Then<Lanes, Reversed>, Then<Exact, Reversed>, Then<Exact, Reversed>>;

/// The only pixel of a row has one chroma byte, and an arithmetic of its own.
VemiStatus fromPairsToPixels(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (roiSize.width == 1) return fromPacked422<ColumnsOfWidth1, Packed422::lumaFirst, C3>(src, dst, roiSize);
  return fromPacked422<Columns, Packed422::lumaFirst, C3>(src, dst, roiSize);
}

template <class After>
void from411(ChromaPlanes src, Image<Vemi8u> dst, VemiSize roiSize, After after) {
  const Then<ExactToRgb<ycbcr411ToRgbExact>, After> exact = {{}, after};
  const ColumnOps ops = {Then<ToRgb<ycbcr411ToRgb>, After>{{}, after}, exact, exact};
  using DL = std::conditional_t<std::is_same_v<After, Reversed>, C3, C4>;
  expandPlanes<4>(extentOf(roiSize), ops, pixelsOf<DL>(dst), src);
}

VemiStatus from411ToBgr(ChromaPlanes src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  from411(src, dst, roiSize, Reversed());
  return vemiOk;
}

VemiStatus from411ToBgra(ChromaPlanes src, Image<Vemi8u> dst, VemiSize roiSize, Vemi8u alpha) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  from411(src, dst, roiSize, ReversedWithFourth{alpha});
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiYCbCrToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convert<AC4, AC4, Exact>)
VEMI_DEFINE(vemiYCbCrToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convert<C3, C3, Exact>)
VEMI_DEFINE(vemiYCbCrToRGB_8u_P3C3R, VEMI_PLANES_DST(Vemi8u, 3), convert<Planar, C3, Exact>)
VEMI_DEFINE(vemiYCbCrToRGB_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convert<Planar, Planar, Exact>)

VEMI_DEFINE(vemiYCbCr422ToRGB_8u_C2C3R, VEMI_SRC_DST(Vemi8u), fromPairsToPixels)
VEMI_DEFINE(vemiYCbCr422ToRGB_8u_C2P3R, VEMI_SRC_PLANES(Vemi8u, 3),
            fromPacked422<Columns, Packed422::lumaFirst, Planar>)
VEMI_DEFINE(vemiYCbCr422ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from422<Columns, C3>)

VEMI_DEFINE(vemiYCbCr420ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<Columns, TeamRows, C3>)
VEMI_DEFINE(vemiYCbCr420ToBGR_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<ColumnsToBgr, TeamRows, C3>)

VEMI_DEFINE(vemiYCbCr411ToBGR_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from411ToBgr)
VEMI_DEFINE(vemiYCbCr411ToBGR_8u_P3C4R, VEMI_STEPPED_DST(Vemi8u, VEMI_ALPHA), from411ToBgra)
