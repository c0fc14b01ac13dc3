// vemiRGBToYCbCr, vemiRGBToYCbCr422, vemiRGBToYCbCr420.
// Checks: null, size, null planes, step.

#include "color/exports.h"
#include "color/from_rgb.h"
#include "color/luma_chroma.h"
#include "color/to_subsampled.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

using Exact = Affine<rgbToYCbCr>;
using Op444 = Regimes<8, Partwise<rgbToYCbCrPartwise>, Exact>;

constexpr ColumnOps<To422<rgbToYCbCrPartwise, rgbToChroma422>, To422<rgbToLumaOfLastPair, rgbToChromaOfLastPair>,
                    Affine<rgbToYCbOfLastPixel>>
    columns422;

struct Edge {
  static int luma(Rgb p) { return rgbToYCbCr.row[0](p.r, p.g, p.b); }

  static Chroma chroma(const std::array<Rgb, 1>& pixel) {
    const Rgb p = pixel[0];
    return {rgbToYCbCr.row[1](p.r, p.g, p.b), rgbToYCbCr.row[2](p.r, p.g, p.b)};
  }
  static Chroma chroma(const std::array<Rgb, 2>& pixels) {
    const Rgb sum = pixels[0] + pixels[1];
    return {rgbToChromaOfEdge.row[0](sum.r, sum.g, sum.b), rgbToChromaOfEdge.row[1](sum.r, sum.g, sum.b)};
  }
};

template <class SL, class Src>
VemiStatus to422(Src src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  const auto pixels = pixelsIn<SL>(src);
  reduceToPairs<Packed422::lumaFirst, 4>(extent422<4>(roiSize, dst, pixels), columns422, dst, pixels);
  return vemiOk;
}

VemiStatus to420(Image<const Vemi8u> src, SteppedPlanes<Vemi8u, 3> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  reduceRowPairs(extentOf(roiSize), To420<rgbToYCbCr420>(), Edge(), dst, pixelsOf<C3>(src));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToYCbCr_8u_AC4R, VEMI_SRC_DST(Vemi8u), convert<AC4, AC4, Exact>)
VEMI_DEFINE(vemiRGBToYCbCr_8u_C3R, VEMI_SRC_DST(Vemi8u), convert<C3, C3, Op444>)
VEMI_DEFINE(vemiRGBToYCbCr_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convert<Planar, Planar, Op444>)

VEMI_DEFINE(vemiRGBToYCbCr422_8u_C3C2R, VEMI_SRC_DST(Vemi8u), to422<C3>)
VEMI_DEFINE(vemiRGBToYCbCr422_8u_P3C2R, VEMI_PLANES_DST(Vemi8u, 3), to422<Planar>)

VEMI_DEFINE(vemiRGBToYCbCr420_8u_C3P3R, VEMI_SRC_STEPPED(Vemi8u), to420)
