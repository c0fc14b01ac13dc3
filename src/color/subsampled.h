// Regions whose chroma is shared by pixels, to a destination of whole pixels: 4:2:2, 4:2:0 and 4:1:1.
//
// The columns of a row have up to three arithmetics: whole groups of eight, the whole groups that share chroma behind
// them, and single pixels at the row's end.
#pragma once

#include "color/luma_chroma.h"
#include "color/to_rgb.h"
#include "core/image.h"
#include "core/map_region.h"
#include "core/pixel_region.h"

namespace vemi::color {

// A source row gives
//   groups()   its pixels as core/pixels.h has them, up to the last whole group that shares chroma;
//   pixel(x)   a single pixel with its chroma, at full rate.

/// Luma and chroma in planes; `shared` pixels have one sample of chroma.
template <int shared, class T = const uint8_t>
struct PlanarChroma {
  static constexpr int sharing = shared;
  T *y, *u, *v;

  auto groups() const { return rowsBeside(planeRow(y), planeRow<shared>(u, v)); }
  auto pixel(ptrdiff_t x) const { return planeRow(y + x, u + x / shared, v + x / shared); }
};

/// Pairs of pixels in one plane. Of the last pixel of an odd row there are two bytes, luma and the first chroma; it
/// takes the other one from the pair before it, and where there is none, the first for both. A destination has these
/// two channels alone.
template <Packed422 order, class T = const uint8_t>
struct PackedChroma {
  static constexpr int sharing = 2;
  T* first;

  auto groups() const { return packedRow<order>(first); }
  auto pixel(ptrdiff_t x) const {
    constexpr int luma = order == Packed422::lumaFirst ? 0 : 1;
    T *const y = first + 2 * x + luma, *const u = first + 2 * x + 1 - luma;
    if constexpr (std::is_const_v<T>) {
      return planeRow(y, u, x == 0 ? u : u - 2);
    } else {
      return planeRow(y, u);
    }
  }
};

/// Two rows of luma and the row of chroma of 4:2:0 that they share.
struct PairedRows {
  static constexpr int sharing = 2;
  const uint8_t *y0, *y1, *u, *v;

  auto groups() const { return rowsBeside(planeRow(y0, y1), planeRow<2>(u, v)); }
  auto pixel(ptrdiff_t x) const { return planeRow(y0 + x, y1 + x, u + x / 2, v + x / 2); }
};

/// Two rows of pixels at once: what depends on chroma alone is computed once.
template <class Op>
struct OnPairedRows {
  Op op;

  template <class D, class V, class C>
  HWY_INLINE auto operator()(D d, V y0, V y1, C u, C v) const {
    return std::tuple_cat(op(d, y0, u, v), op(d, y1, u, v));
  }
};

template <class Op>
OnPairedRows(Op) -> OnPairedRows<Op>;

template <int shared, class T>
PlanarChroma<shared, T> chromaRow(SteppedPlanes<T, 3> planes, ptrdiff_t y, ptrdiff_t chroma) {
  return {planes[0].row(y), planes[1].row(chroma), planes[2].row(chroma)};
}

/// Of 4:2:0, from row y on.
inline PairedRows pairedRows(SteppedPlanes<const uint8_t, 3> planes, ptrdiff_t y, ptrdiff_t chroma) {
  return {planes[0].row(y), planes[0].row(y + 1), planes[1].row(chroma), planes[2].row(chroma)};
}

/// The operations of a row's columns, each of them op(d, Y, U, V).
template <class Groups, class Rest, class Single>
struct ColumnOps {
  Groups groups;
  Rest rest;
  Single single;
};
template <class Groups, class Rest, class Single>
ColumnOps(Groups, Rest, Single) -> ColumnOps<Groups, Rest, Single>;

/// One row, or two that share chroma. Streamed, groups of eight are written past the caches.
template <Stores how, class Ops, class Dst, class Src>
HWY_INLINE void expandRow(ptrdiff_t width, const Ops& ops, Dst dst, Src src) {
  forRegimes<8, Src::sharing, 1>(
      width,
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED {
        if constexpr (how == Stores::streamed) {
          streamPixels<8>(n, ops.groups, dst.from(x), src.groups().from(x));
        } else {
          mapPixels(n, ops.groups, dst.from(x), src.groups().from(x));
        }
      },
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, ops.rest, dst.from(x), src.groups().from(x)); },
      [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED {
        for (; n > 0; ++x, --n) mapPixels(1, ops.single, dst.from(x), src.pixel(x));
      });
}

using ChromaPlanes = SteppedPlanes<const uint8_t, 3>;

/// 4:2:2 and 4:1:1 in planes.
template <int shared, class Ops, class Dst>
void expandPlanes(Extent extent, const Ops& ops, Dst dst, ChromaPlanes src) {
  const auto rowBy = [&](auto how) {
    return [&, how](ptrdiff_t y) { expandRow<how()>(extent.width, ops, dst.row(y), chromaRow<shared>(src, y, y)); };
  };
  const auto cached = rowBy(std::integral_constant<Stores, Stores::cached>());
  const auto streamed = rowBy(std::integral_constant<Stores, Stores::streamed>());
  runPlainOrStreamed(CallerRows(), extent.height, trafficOf(extent, Dst::pixelSize + 2), cached, streamed);
}

/// 4:2:2 in pairs of pixels. Never streamed: beside a single run of pairs, stores past the caches take twice the time.
template <Packed422 order, class Ops, class Dst>
void expandPacked(Extent extent, const Ops& ops, Dst dst, Image<const uint8_t> src) {
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    expandRow<Stores::cached>(extent.width, ops, dst.row(y), PackedChroma<order>{src.row(y)});
  }
}

/// 4:2:0: pairs of rows that share chroma, and an odd last row, whose pixels are all worked as single ones.
template <class Rows, class Ops, class Dst>
void expandRowPairs(const Rows& rows, Extent extent, const Ops& ops, Dst dst, ChromaPlanes src) {
  const auto lastRow = [&](ptrdiff_t y, ptrdiff_t chroma) {
    const ColumnOps singles = {ops.single, ops.single, ops.single};
    expandRow<Stores::cached>(extent.width, singles, dst.row(y), chromaRow<2>(src, y, chroma));
  };
  const auto pair = [&](ptrdiff_t y, ptrdiff_t chroma) {
    const ColumnOps paired = {OnPairedRows{ops.groups}, OnPairedRows{ops.rest}, OnPairedRows{ops.single}};
    expandRow<Stores::cached>(extent.width, paired, rowsBeside(dst.row(y), dst.row(y + 1)), pairedRows(src, y, chroma));
  };
  const auto streamedRows = [&](ptrdiff_t y, ptrdiff_t chroma) {
    expandRow<Stores::streamed>(extent.width, ops, dst.row(y), chromaRow<2>(src, y, chroma));
    expandRow<Stores::streamed>(extent.width, ops, dst.row(y + 1), chromaRow<2>(src, y + 1, chroma));
  };
  if (trafficOf(extent, Dst::pixelSize + 1) >= streamedTraffic) {
    forRowPairs(rows, extent.height, streamedRows, lastRow, finishStreaming);
  } else {
    forRowPairs(rows, extent.height, pair, lastRow);
  }
}

template <class T>
bool isContiguous422(SteppedPlanes<T, 3> planes, VemiSize size) {
  return planes.step[0] == size.width && planes.step[1] == size.width / 2 && planes.step[2] == size.width / 2;
}
template <class T>
bool isContiguous422(Image<T> pairs, VemiSize size) {
  return isContiguous<C2>(pairs, size);
}

/// Rows of 4:2:2 without a gap are one long row where they are made of whole groups, so that no column changes its
/// group.
template <int group, class Shared, class Pixels>
Extent extent422(VemiSize size, Shared shared, Pixels pixels) {
  const bool merged = size.width % group == 0 && isContiguous422(shared, size) && pixels.isContiguous(size);
  return mergedExtent(size, merged);
}

// ---- Whole calls ---------------------------------------------------------------------------------------------------

template <class Ops, class DL, class Dst>
VemiStatus from422(ChromaPlanes src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  const auto pixels = pixelsIn<DL>(dst);
  expandPlanes<2>(extent422<8>(roiSize, src, pixels), Ops(), pixels, src);
  return vemiOk;
}

template <class Ops, Packed422 order, class DL, class Dst>
VemiStatus fromPacked422(Image<const uint8_t> src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  const auto pixels = pixelsIn<DL>(dst);
  expandPacked<order>(extent422<8>(roiSize, src, pixels), Ops(), pixels, src);
  return vemiOk;
}

template <class Ops, class Rows, class DL, class Dst>
VemiStatus from420(ChromaPlanes src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  expandRowPairs(Rows(), extentOf(roiSize), Ops(), pixelsIn<DL>(dst), src);
  return vemiOk;
}

// ---- Rows without a gap --------------------------------------------------------------------------------------------

/// The steps of forms that have none.
struct ContiguousSteps {
  int pixels, plane, chroma[3];  // of three channels, of a plane of all pixels, of luma and chroma

  explicit ContiguousSteps(VemiSize size)
      : pixels(static_cast<int>(3u * static_cast<unsigned>(size.width))),
        plane(size.width),
        chroma{size.width, half(size.width), half(size.width)} {}

 private:
  static int half(int width) { return width / 2 + width % 2; }
};

template <class T>
Image<T> contiguousPixels(const ContiguousSteps& steps, T* first) {
  return {first, steps.pixels};
}
template <class T>
Planes<T, 3> contiguousPixels(const ContiguousSteps& steps, T* const* planes) {
  return {planes, steps.plane};
}

/// Rows of 4:2:2 without a gap are one long row where no chroma is left over at their ends.
inline Extent contiguousExtent(VemiSize size) { return mergedExtent(size, size.width % 2 == 0); }

}  // namespace vemi::color
