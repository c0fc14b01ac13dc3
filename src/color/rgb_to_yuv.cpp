// vemiRGBToYUV, vemiRGBToYUV422, vemiRGBToYUV420.
// Checks: null, size, null planes, step; forms without steps: null, size, null planes.

#include "color/exports.h"
#include "color/from_rgb.h"
#include "color/luma_chroma.h"
#include "color/to_subsampled.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

using Op444 = Regimes<8, Affine<rgbToYuv>, ByDifferences<rgbToYuvByDifferences>>;
using Op422 = ByDifferences422<rgbToYuvByDifferences>;
using Op420 = ByDifferences420<rgbToYuvByDifferences>;

/// A pixel without a partner is a pair of equal ones.
using Single = ByDifferences<rgbToYuvByDifferences>;
constexpr ColumnOps<Op422, Op422, Single> columns;
constexpr ColumnOps<Op422, Op422, Then<Single, WithoutLast>> columnsToPairs;

struct Edge {
  static int luma(Rgb p) { return yuvEdgeLuma(p.r, p.g, p.b); }

  template <size_t count>
  static Chroma chroma(const std::array<Rgb, count>& pixels) {
    static_assert(count <= 2);
    Rgb sum = {};
    int luma = 0;
    for (const Rgb p : pixels) {
      sum = sum + p;
      luma += yuvEdgeLuma.sum(p.r, p.g, p.b);
    }
    const auto part = [&](int channel, int weight) {
      return ((((channel << 16) - luma) >> 16) * weight >> (15 + count)) + 128;
    };
    return {part(sum.b, yuvEdgeBlueToU), part(sum.r, yuvEdgeRedToV)};
  }
};

template <class SL, class Src>
VemiStatus to422(Src src, SteppedPlanes<Vemi8u, 3> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  const auto pixels = pixelsIn<SL>(src);
  reduceToPlanes(extent422<2>(roiSize, dst, pixels), columns, dst, pixels);
  return vemiOk;
}

VemiStatus toPairs(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  const auto pixels = pixelsOf<C3>(src);
  reduceToPairs<Packed422::lumaFirst>(extent422<2>(roiSize, dst, pixels), columnsToPairs, dst, pixels);
  return vemiOk;
}

template <class SL, class Src>
VemiStatus to420(Src src, SteppedPlanes<Vemi8u, 3> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  reduceRowPairs(extentOf(roiSize), Op420(), Edge(), dst, pixelsIn<SL>(src));
  return vemiOk;
}

template <class SL, class Src>
VemiStatus toContiguous422(Src pSrc, Vemi8u* const* pDst, VemiSize size) {
  const ContiguousSteps steps(size);
  const auto src = contiguousPixels(steps, pSrc);
  const SteppedPlanes<Vemi8u, 3> dst = {pDst, steps.chroma};
  if (const VemiStatus bad = checkImages(src, dst, size)) return bad;
  reduceToPlanes(contiguousExtent(size), columns, dst, pixelsIn<SL>(src));
  return vemiOk;
}

template <class SL, class Src>
VemiStatus toContiguous420(Src pSrc, Vemi8u* const* pDst, VemiSize size) {
  const ContiguousSteps steps(size);
  const auto src = contiguousPixels(steps, pSrc);
  const SteppedPlanes<Vemi8u, 3> dst = {pDst, steps.chroma};
  if (const VemiStatus bad = checkImages(src, dst, size)) return bad;
  reduceRowPairs(extentOf(size), Op420(), Edge(), dst, pixelsIn<SL>(src));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToYUV_8u_AC4R, VEMI_SRC_DST(Vemi8u), convert<AC4, AC4, Op444>)
VEMI_DEFINE(vemiRGBToYUV_8u_C3R, VEMI_SRC_DST(Vemi8u), convert<C3, C3, Op444>)
VEMI_DEFINE(vemiRGBToYUV_8u_C3P3R, VEMI_SRC_PLANES(Vemi8u, 3), convert<C3, Planar, Op444>)
VEMI_DEFINE(vemiRGBToYUV_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convert<Planar, Planar, Op444>)

VEMI_DEFINE(vemiRGBToYUV422_8u_C3C2R, VEMI_SRC_DST(Vemi8u), toPairs)
VEMI_DEFINE(vemiRGBToYUV422_8u_C3P3R, VEMI_SRC_STEPPED(Vemi8u), to422<C3>)
VEMI_DEFINE(vemiRGBToYUV422_8u_P3R, VEMI_PLANES_STEPPED(Vemi8u), to422<Planar>)
VEMI_DEFINE(vemiRGBToYUV422_8u_C3P3, VEMI_SRC_CONTIGUOUS(Vemi8u), toContiguous422<C3>)
VEMI_DEFINE(vemiRGBToYUV422_8u_P3, VEMI_CONTIGUOUS(Vemi8u), toContiguous422<Planar>)

VEMI_DEFINE(vemiRGBToYUV420_8u_C3P3R, VEMI_SRC_STEPPED(Vemi8u), to420<C3>)
VEMI_DEFINE(vemiRGBToYUV420_8u_P3R, VEMI_PLANES_STEPPED(Vemi8u), to420<Planar>)
VEMI_DEFINE(vemiRGBToYUV420_8u_C3P3, VEMI_SRC_CONTIGUOUS(Vemi8u), toContiguous420<C3>)
VEMI_DEFINE(vemiRGBToYUV420_8u_P3, VEMI_CONTIGUOUS(Vemi8u), toContiguous420<Planar>)
