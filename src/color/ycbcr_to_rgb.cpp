// vemiYCbCrToRGB, vemiYCbCr422ToRGB, vemiYCbCr420ToRGB, vemiYCbCr420ToBGR.
// Checks: null, size, null planes, step.

#include "color/affine.h"
#include "color/exports.h"
#include "color/subsampled.h"
#include "color/to_rgb.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

using Lanes = ToRgb<ycbcrToRgb>;
using Exact = Affine<ycbcrToRgbExact>;

constexpr ColumnOps columns = {Lanes(), Exact(), Exact()};
constexpr ColumnOps columnsOfWidth1 = {Lanes(), Exact(), Affine<ycbcrToRgbOfWidth1>()};

constexpr auto reversed(auto op) { return Then<decltype(op), Reversed>{op, {}}; }
constexpr ColumnOps columnsToBgr = {reversed(Lanes()), reversed(Exact()), reversed(Exact())};

/// The only pixel of a row has one chroma byte, and an arithmetic of its own.
VemiStatus fromPairsToPixels(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (roiSize.width == 1) return fromPacked422<columnsOfWidth1, Packed422::lumaFirst, C3>(src, dst, roiSize);
  return fromPacked422<columns, Packed422::lumaFirst, C3>(src, dst, roiSize);
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
            fromPacked422<columns, Packed422::lumaFirst, Planar>)
VEMI_DEFINE(vemiYCbCr422ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from422<columns, C3>)

VEMI_DEFINE(vemiYCbCr420ToRGB_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<columns, TeamRows, C3>)
VEMI_DEFINE(vemiYCbCr420ToBGR_8u_P3C3R, VEMI_STEPPED_DST(Vemi8u), from420<columnsToBgr, TeamRows, C3>)
