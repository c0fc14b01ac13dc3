// Regions of whole pixels to a destination whose chroma is shared by pixels: 4:2:2 and 4:2:0.
#pragma once

#include <array>

#include "color/rgb_row.h"
#include "color/subsampled.h"

namespace vemi::color {

/// Luma and the first chroma alone: what the last pixel of an odd row of pairs has room for.
struct WithoutLast {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V luma, V first, V) const {
    return std::tuple(luma, first);
  }
};

/// One row to planes or pairs: whole groups of `group` columns, pairs, and a single one.
template <int group, class Ops, class Dst, class Src>
HWY_INLINE void reduceRow(ptrdiff_t width, const Ops& ops, Dst dst, Src src) {
  const auto shared = [&](const auto& op) VEMI_INLINED {
    return [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, op, dst.groups().from(x), src.from(x)); };
  };
  forRegimes<group, 2, 1>(width, shared(ops.groups), shared(ops.rest), [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED {
    mapPixels(n, ops.single, dst.pixel(x), src.from(x));
  });
}

/// 4:2:2 in planes.
template <int group = 2, class Ops, class Src>
void reduceToPlanes(Extent extent, const Ops& ops, SteppedPlanes<uint8_t, 3> dst, Src src) {
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    reduceRow<group>(extent.width, ops, chromaRow<2>(dst, y, y), src.row(y));
  }
}

/// 4:2:2 in pairs of pixels.
template <Packed422 order, int group = 2, class Ops, class Src>
void reduceToPairs(Extent extent, const Ops& ops, Image<uint8_t> dst, Src src) {
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    reduceRow<group>(extent.width, ops, PackedChroma<order, uint8_t>{dst.row(y)}, src.row(y));
  }
}

// ---- 4:2:0 ---------------------------------------------------------------------------------------------------------

struct Rgb {
  int r, g, b;

  Rgb operator+(Rgb other) const { return {r + other.r, g + other.g, b + other.b}; }
};

inline Rgb pixelOf(InterleavedRow<const uint8_t, C3> row, ptrdiff_t x) {
  const uint8_t* const p = row.from(x).first;
  return {p[0], p[1], p[2]};
}
inline Rgb pixelOf(PlaneRow<const uint8_t, 3> row, ptrdiff_t x) {
  return {row.first[0][x], row.first[1][x], row.first[2][x]};
}

struct Chroma {
  int first, second;
};

/// Pairs of rows: op makes luma of both and chroma of each two by two pixels. A last column or row without a partner is
/// the business of `edge`, one or two pixels at a time: luma(pixel), and chroma(pixels) of an array of them.
template <class Op, class Edge, class Src>
void reduceRowPairs(Extent extent, const Op& op, const Edge& edge, SteppedPlanes<uint8_t, 3> dst, Src src) {
  const ptrdiff_t inPairs = extent.width / 2 * 2;
  const auto lumaTo = [&](ptrdiff_t x, ptrdiff_t y, Rgb pixel) {
    dst[0].row(y)[x] = saturate<uint8_t>(edge.luma(pixel));
  };
  const auto chromaTo = [&](ptrdiff_t x, ptrdiff_t y, Chroma chroma) {
    dst[1].row(y)[x] = saturate<uint8_t>(chroma.first);
    dst[2].row(y)[x] = saturate<uint8_t>(chroma.second);
  };
  const auto pair = [&](ptrdiff_t y, ptrdiff_t shared) {
    const auto top = src.row(y), bottom = src.row(y + 1);
    const auto luma = planeRow(dst[0].row(y), dst[0].row(y + 1));
    mapPixels(inPairs, op, rowsBeside(luma, planeRow<2>(dst[1].row(shared), dst[2].row(shared))),
              rowsBeside(rgbRow(top), rgbRow(bottom)));
    if (inPairs == extent.width) return;
    const std::array pixels = {pixelOf(top, inPairs), pixelOf(bottom, inPairs)};
    lumaTo(inPairs, y, pixels[0]);
    lumaTo(inPairs, y + 1, pixels[1]);
    chromaTo(inPairs / 2, shared, edge.chroma(pixels));
  };
  const auto last = [&](ptrdiff_t y, ptrdiff_t shared) {
    const auto row = src.row(y);
    for (ptrdiff_t x = 0; x < extent.width; ++x) lumaTo(x, y, pixelOf(row, x));
    for (ptrdiff_t x = 0; x < inPairs; x += 2) {
      chromaTo(x / 2, shared, edge.chroma(std::array{pixelOf(row, x), pixelOf(row, x + 1)}));
    }
    if (inPairs < extent.width) chromaTo(inPairs / 2, shared, edge.chroma(std::array{pixelOf(row, inPairs)}));
  };
  forRowPairs(CallerRows(), extent.height, pair, last);
}

}  // namespace vemi::color
