// Video frames between layouts whose missing rows are filtered: 4:2:0 to 4:2:2 by four taps for the chroma rows between
// two others, and the members that take the flicker of two fields out of a 4:2:0 frame, luma by (1, 2, 1) / 4.
// Checks: null, size; no steps.

#include "color/video_exports.h"
#include "color/video_frames.h"
#include "core/inlined.h"
#include "core/lane_width.h"
#include "core/processor_bytes.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

// ---- Chroma rows between two others -------------------------------------------------------------------------------

/// (9 b + 9 c - a - d + 8) >> 4 of rows a to d.
template <class D, class V>
HWY_INLINE V betweenRows(D d, V a, V b, V c, V e) {
  const hn::Repartition<int16_t, D> dWide;
  const auto half = [&](V outer, V inner) VEMI_INLINED {
    const auto sum = hn::Add(pairsOfByteProducts<9, 9>(dWide, inner), pairsOfByteProducts<-1, -1>(dWide, outer));
    return hn::MulFixedPoint15(sum, hn::Set(dWide, 1 << 11));
  };
  return packHalves(d, half(hn::InterleaveLower(d, a, e), hn::InterleaveLower(d, b, c)),
                    half(hn::InterleaveUpper(d, a, e), hn::InterleaveUpper(d, b, c)));
}

/// The second row as well, which stands ahead of the gap.
struct BetweenRows {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2, V v3) const {
    return std::tuple(v1, betweenRows(d, v0, v1, v2, v3));
  }
};

/// Of bytes Cb, Cr, Cb, Cr: each byte counts as a pixel, of which two share a sample.
struct BetweenRowsOfPairs {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2, V v3) const {
    const hn::Half<D> dHalf;
    const auto row = evenAndOdd(v1), between = evenAndOdd(betweenRows(d, v0, v1, v2, v3));
    return std::tuple(hn::DemoteTo(dHalf, signedLanes(row.lower)), hn::DemoteTo(dHalf, signedLanes(row.upper)),
                      hn::DemoteTo(dHalf, signedLanes(between.lower)), hn::DemoteTo(dHalf, signedLanes(between.upper)));
  }

 private:
  template <class V>
  HWY_INLINE static auto signedLanes(V v) {
    return hn::BitCast(hn::RebindToSigned<hn::DFromV<V>>(), v);
  }
};

/// The four rows around the gap behind row k; those outside of the plane are its first and its last one.
template <class Row>
auto fourRows(ptrdiff_t k, ptrdiff_t rows, const Row& row) {
  const auto limited = [=](ptrdiff_t i) { return row(std::clamp<ptrdiff_t>(i, 0, rows - 1)); };
  return planeRow(limited(k - 1), limited(k), limited(k + 1), limited(k + 2));
}

template <Chroma first>
void interpolateChroma(SteppedPlanes<const Vemi8u, 3> from, const PlanarVideo<2, 1>::Frame<Vemi8u>& dst,
                       VemiSize size) {
  const typename PlanarVideo<2, 2, first>::template Frame<const Vemi8u> src = {from};
  const auto interpolate = [&](Image<const Vemi8u> plane, Image<Vemi8u> to) {
    const ptrdiff_t width = size.width / 2, rows = size.height / 2;
    for (ptrdiff_t k = 0; k < rows; ++k) {
      mapPixels(width, BetweenRows(), planeRow(to.row(2 * k), to.row(2 * k + 1)),
                fourRows(k, rows, [&](ptrdiff_t i) { return plane.row(i); }));
    }
  };
  interpolate(src.cb(), dst.cb());
  interpolate(src.cr(), dst.cr());
}

template <Chroma>
void interpolateChroma(LumaAndPairs<const Vemi8u> from, const PlanarVideo<2, 1>::Frame<Vemi8u>& dst, VemiSize size) {
  const ptrdiff_t rows = size.height / 2;
  for (ptrdiff_t k = 0; k < rows; ++k) {
    const auto to =
        planeRow<2>(dst.cb().row(2 * k), dst.cr().row(2 * k), dst.cb().row(2 * k + 1), dst.cr().row(2 * k + 1));
    mapPixels(size.width, BetweenRowsOfPairs(), to, fourRows(k, rows, [&](ptrdiff_t i) { return from.pairs.row(i); }));
  }
}

Image<const Vemi8u> lumaOf(SteppedPlanes<const Vemi8u, 3> planes) { return planes[0]; }
Image<const Vemi8u> lumaOf(LumaAndPairs<const Vemi8u> planes) { return planes.luma; }

template <Chroma first, class From>
VemiStatus interpolate(From from, SteppedPlanes<Vemi8u, 3> to, VemiSize roiSize) {
  constexpr VemiSize least = {2, 8};
  if (const VemiStatus bad = firstOf(checkNull(from, to), checkLeast(roiSize, least))) return bad;
  const VemiSize size = wholeMultiples(roiSize, least);
  const PlanarVideo<2, 1>::Frame<Vemi8u> dst = {to};
  copyPlane<1, 1>(lumaOf(from), dst.luma(), size, bytesOf<PlanarVideo<2, 2>>(size) + bytesOf<PlanarVideo<2, 1>>(size));
  interpolateChroma<first>(from, dst, size);
  return vemiOk;
}

// ---- Frames without flicker ---------------------------------------------------------------------------------------

/// (a + b) >> 1 of bytes, by the processor's average, which rounds up, of the complements.
template <class V>
HWY_INLINE V averageDown(V a, V b) {
  return hn::Not(hn::AverageRound(hn::Not(a), hn::Not(b)));
}

/// (above + 2 row + below + 4) >> 2, at most 255.
template <class D, class V>
HWY_INLINE V amongRows(D d, V above, V row, V below) {
  return hn::SaturatedAdd(averageDown(averageDown(above, below), row), hn::Set(d, 1));
}

struct LumaAmongRows {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V above, V row, V below) const {
    return amongRows(d, above, row, below);
  }
};

/// Luma, and chroma bytes of two rows as (a + b + 2 lift) >> 1, at most 255.
struct AmongRows {
  Vemi8u lift;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V above, V row, V below, V chroma, V nextChroma) const {
    return std::tuple(amongRows(d, above, row, below),
                      hn::SaturatedAdd(averageDown(chroma, nextChroma), hn::Set(d, lift)));
  }
};

/// Which rows of a frame a call makes, counted from `back` rows above its pointers, and whether the frame begins with
/// the first of them or ends with the last.
struct Layer {
  ptrdiff_t back, rows;
  bool isTop, isBottom;

  ptrdiff_t above(ptrdiff_t y) const { return y == 0 && isTop ? y : y - 1; }
  ptrdiff_t below(ptrdiff_t y) const { return y == rows - 1 && isBottom ? y : y + 1; }
  /// Whether row y is one of the first two or of the last two of the frame.
  bool isOuterPair(ptrdiff_t y) const { return (isTop && y < 2) || isLastPair(y); }
  bool isLastPair(ptrdiff_t y) const { return isBottom && y >= rows - 2; }
};

Layer layerOf(int layer, ptrdiff_t height) {
  constexpr int top = 1, middle = 4, bottom = 16, whole = top | middle | bottom;
  if (layer == top) return {0, height - 2, true, false};
  if (layer == middle) return {2, height, false, false};
  if (layer == bottom) return {2, height + 2, false, true};
  if ((layer & whole) == whole) return {0, height, true, true};
  return {};
}

Image<const Vemi8u> rowsBack(Image<const Vemi8u> image, ptrdiff_t rows) { return {image.row(-rows), image.step}; }

struct Join {
  Image<Vemi8u> packed;

  void run(const Layer& layer, Image<const Vemi8u> luma, Image<const Vemi8u> pairs, ptrdiff_t width) const {
    for (ptrdiff_t y = 0; y < layer.rows; ++y) {
      // Of the last pair's chroma and the one above it; a frame of two rows has one alone.
      const ptrdiff_t k = layer.isLastPair(y) ? std::max<ptrdiff_t>(y / 2 - 1, 0) : y / 2;
      const bool isOnly = layer.isTop && layer.isLastPair(y) && layer.rows == 2;
      const AmongRows op = {static_cast<Vemi8u>(layer.isOuterPair(y) && !isOnly ? 1 : 0)};
      mapPixels(width, op, pixelRow<C2>(packed.row(y - layer.back)),
                planeRow(luma.row(layer.above(y)), luma.row(y), luma.row(layer.below(y)), pairs.row(k),
                         pairs.row(isOnly ? k : k + 1)));
    }
  }
};

struct Split {
  SteppedPlanes<Vemi8u, 3> planes;

  void run(const Layer& layer, Image<const Vemi8u> luma, Image<const Vemi8u> pairs, ptrdiff_t width) const {
    for (ptrdiff_t y = 0; y < layer.rows; ++y) {
      mapPixels(width, LumaAmongRows(), planeRow(planes[0].row(y - layer.back)),
                planeRow(luma.row(layer.above(y)), luma.row(y), luma.row(layer.below(y))));
    }
    for (ptrdiff_t k = 0; k < layer.rows / 2; ++k) {
      const ptrdiff_t row = k - layer.back / 2;
      movePixels(width / 2, planeRow(planes[1].row(row), planes[2].row(row)), pairsOfBytes(pairs.row(k)));
    }
  }
};

template <class Work, class To>
VemiStatus withoutFlicker(LumaAndPairs<const Vemi8u> from, To to, VemiSize roiSize, int layerBits) {
  constexpr VemiSize least = {2, 2};
  if (const VemiStatus bad = firstOf(checkNull(from, to), checkLeast(roiSize, least))) return bad;
  const VemiSize size = wholeMultiples(roiSize, least);
  const Layer layer = layerOf(layerBits, size.height);
  Work{to}.run(layer, rowsBack(from.luma, layer.back), rowsBack(from.pairs, layer.back / 2), size.width);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define LAYER ((int layer), (layer))

VEMI_DEFINE(vemiYCbCr420ToYCbCr422Filter_8u_P3R, VEMI_FRAMES(VEMI_FROM_PLANES, VEMI_TO_PLANES),
            interpolate<Chroma::cbFirst>)
VEMI_DEFINE(vemiYCbCr420ToYCbCr422Filter_8u_P2P3R, VEMI_FRAMES(VEMI_FROM_PAIRS, VEMI_TO_PLANES),
            interpolate<Chroma::cbFirst>)
VEMI_DEFINE(vemiYCrCb420ToYCbCr422Filter_8u_P3R, VEMI_FRAMES(VEMI_FROM_PLANES, VEMI_TO_PLANES),
            interpolate<Chroma::crFirst>)

VEMI_DEFINE(vemiJoin420_Filter_8u_P2C2R, VEMI_FRAMES(VEMI_FROM_PAIRS, VEMI_TO_PACKED, LAYER), withoutFlicker<Join>)
VEMI_DEFINE(vemiSplit420_Filter_8u_P2P3R, VEMI_FRAMES(VEMI_FROM_PAIRS, VEMI_TO_PLANES, LAYER), withoutFlicker<Split>)
