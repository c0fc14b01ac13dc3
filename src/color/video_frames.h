// Frames of video: luma, and chroma samples that neighbouring pixels share; in planes, in a plane of pairs, or packed
// in one plane with the luma.
#pragma once

#include <algorithm>

#include "core/checks.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/rows.h"
#include "core/streaming.h"
#include "vemi/types.h"

namespace vemi::color {

/// Which chroma sample stands ahead of the other.
enum class Chroma { cbFirst, crFirst };

/// A plane of luma and a plane of chroma pairs.
template <class T>
struct LumaAndPairs {
  Image<T> luma, pairs;
};

template <class T>
bool isNull(LumaAndPairs<T> planes) {
  return vemi::isNull(planes.luma) || vemi::isNull(planes.pairs);
}

// ---- Rows by way of 128-bit blocks --------------------------------------------------------------------------------
//
// A lookup sorts the bytes of each block by channels. Halves of the blocks of two vectors come together, and one move
// across blocks puts them in order.

namespace detail {

/// Where the 32 bits of each place are.
struct BlockOrders {
  static constexpr size_t words = laneCount<uint32_t>;

  alignas(laneAlignment) uint32_t halves[words];  // of blocks of two vectors, the front's and the back's by turns
  alignas(laneAlignment) uint32_t chroma[words];  // of such blocks with 32 bits of Cb, 32 bits of Cr
  // The inverses, of halves in order, and of Cb behind which Cr stands.
  alignas(laneAlignment) uint32_t ofHalves[words];
  alignas(laneAlignment) uint32_t ofChroma[words];

  constexpr BlockOrders() : halves(), chroma(), ofHalves(), ofChroma() {
    constexpr uint32_t half = words / 2, quarter = words / 4;
    for (uint32_t i = 0; i < words; ++i) {
      const uint32_t place = i % half;
      halves[i] = place / 2 * 4 + place % 2 + i / half * 2;
      chroma[i] = place % quarter * 4 + place / quarter * 2 + i / half;
      ofHalves[halves[i]] = i;
      ofChroma[chroma[i]] = i;
    }
  }
};

inline constexpr BlockOrders blockOrders;

alignas(16) inline constexpr uint8_t evenThenOdd[16] = {0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15};
/// Y0 C Y1 D of eight pixels as eight Y, four C, four D; and C Y0 D Y1.
alignas(16) inline constexpr uint8_t lumaAhead[16] = {0, 2, 4, 6, 8, 10, 12, 14, 1, 5, 9, 13, 3, 7, 11, 15};
alignas(16) inline constexpr uint8_t chromaAhead[16] = {1, 3, 5, 7, 9, 11, 13, 15, 0, 4, 8, 12, 2, 6, 10, 14};
/// Twice four C, four D as C, D by turns.
alignas(16) inline constexpr uint8_t byTurns[16] = {0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15};

template <class V>
HWY_INLINE V permutedBytes(V v, const uint8_t (&places)[16]) {
  return hn::TableLookupBytes(v, hn::LoadDup128(hn::DFromV<V>(), places));
}

template <class V>
HWY_INLINE auto permutedWords(V v, const uint32_t* places) {
  const Lanes<uint32_t> d;
  const auto permuted = hn::TableLookupLanes(hn::BitCast(d, v), hn::SetTableIndices(d, places));
  return hn::BitCast(Lanes<uint8_t>(), permuted);
}

/// f(lower halves of the blocks of both vectors, upper halves)
template <class V, class F>
HWY_INLINE auto halvesOf(V front, V back, const F& f) {
  const Lanes<uint64_t> d;
  const auto first = hn::BitCast(d, front), second = hn::BitCast(d, back);
  return f(hn::InterleaveLower(d, first, second), hn::InterleaveUpper(d, first, second));
}

}  // namespace detail

/// Pairs of bytes that are read.
struct PairBlocksRow {
  using Element = uint8_t;
  static constexpr int channels = 2, itemPixels = 1, streamedVectors = 0;
  static constexpr ptrdiff_t blockPixels = laneCount<uint8_t>;

  const uint8_t* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<const uint8_t, 2 * pixels>{first});
  }
  PairBlocksRow from(ptrdiff_t x) const { return {first + 2 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(pixels == blockPixels);
    const Lanes<uint8_t> d;
    const auto front = detail::permutedBytes(hn::LoadU(d, first), detail::evenThenOdd);
    const auto back = detail::permutedBytes(hn::LoadU(d, first + pixels), detail::evenThenOdd);
    return detail::halvesOf(front, back, [&](auto even, auto odd) HWY_ATTR {
      const auto& places = detail::blockOrders.halves;
      return f(detail::permutedWords(even, places), detail::permutedWords(odd, places));
    });
  }
};

/// Packed bytes, with the channels of Packed422Row.
template <class T, Packed422 order>
struct PackedBlocksRow {
  using Element = uint8_t;
  static constexpr int channels = 3, itemPixels = 2, streamedVectors = 1;
  static constexpr ptrdiff_t blockPixels = laneCount<uint8_t>;
  static constexpr bool lumaFirst = order == Packed422::lumaFirst;

  T* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<T, 2 * pixels>{first});
  }
  PackedBlocksRow from(ptrdiff_t x) const { return {first + 2 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(pixels == blockPixels);
    const Lanes<uint8_t> d;
    const auto& places = lumaFirst ? detail::lumaAhead : detail::chromaAhead;
    const auto front = detail::permutedBytes(hn::LoadU(d, first), places);
    const auto back = detail::permutedBytes(hn::LoadU(d, first + pixels), places);
    return detail::halvesOf(front, back, [&](auto luma, auto both) HWY_ATTR {
      const auto chroma = detail::permutedWords(both, detail::blockOrders.chroma);
      return f(detail::permutedWords(luma, detail::blockOrders.halves), hn::LowerHalf(chroma),
               hn::UpperHalf(hn::Half<decltype(d)>(), chroma));
    });
  }
  template <Stores how, ptrdiff_t pixels, class V, class H>
  HWY_INLINE void store(V luma, H c0, H c1) const {
    static_assert(pixels == blockPixels);
    const Lanes<uint8_t> d;
    const auto both = detail::permutedWords(hn::Combine(d, c1, c0), detail::blockOrders.ofChroma);
    const auto chroma = detail::permutedBytes(both, detail::byTurns);
    const auto inBlocks = detail::permutedWords(luma, detail::blockOrders.ofHalves);
    const auto even = lumaFirst ? inBlocks : chroma, odd = lumaFirst ? chroma : inBlocks;
    const auto put = [&](V v, uint8_t* place) HWY_ATTR {
      if constexpr (how == Stores::streamed) {
        hn::Stream(v, d, place);
      } else {
        hn::StoreU(v, d, place);
      }
    };
    put(hn::InterleaveLower(d, even, odd), first);
    put(hn::InterleaveUpper(d, even, odd), first + pixels);
  }
};

/// Of a source and of a destination.
inline PairBlocksRow pairsOfBytes(const uint8_t* first) { return {first}; }
inline InterleavedRow<uint8_t, C2> pairsOfBytes(uint8_t* first) { return {first}; }

// ---- Formats -----------------------------------------------------------------------------------------------------

// A format tells how many pixels share a chroma sample, `across` columns of `down` rows, and what a call's images are
// in it: a frame, which gives its rows as core/pixels.h has them.
//
//   row(y)          luma of row y and its chroma, a sample for each `across` pixels
//   bytes(y)        the same with chroma as bytes, one for each pixel, where pairs are shared by two pixels
//   chroma(k)       row k of the chroma alone, a pixel for each sample
//   neighbours(k)   the same with a pixel for each two samples
//   twoRows(k)      rows 2 k and 2 k + 1 of it as one
//   pair(k)         rows 2 k and 2 k + 1, of 4:2:0 both luma rows and the chroma that they share
//   hasContiguousChroma(size), isContiguous(size)   whether rows follow each other without a gap
//
// Two samples of each chroma stand as Cb, Cb, Cr, Cr in planes and as Cb, Cr, Cb, Cr in pairs.

template <int pixelsAcross, int pixelsDown, Chroma first = Chroma::cbFirst>
struct PlanarVideo {
  static constexpr int across = pixelsAcross, down = pixelsDown;
  static constexpr bool isPlanar = true, isPacked = false, crFirst = false;  // the frame tells Cb from Cr

  template <class T>
  struct Frame {
    SteppedPlanes<T, 3> planes;

    Image<T> luma() const { return planes[0]; }
    Image<T> cb() const { return planes[first == Chroma::cbFirst ? 1 : 2]; }
    Image<T> cr() const { return planes[first == Chroma::cbFirst ? 2 : 1]; }

    bool hasContiguousChroma(VemiSize size) const {
      return cb().step == size.width / across && cr().step == size.width / across;
    }
    bool isContiguous(VemiSize size) const { return luma().step == size.width && hasContiguousChroma(size); }

    auto row(ptrdiff_t y) const {
      return rowsBeside(planeRow(luma().row(y)), planeRow<across>(cb().row(y / down), cr().row(y / down)));
    }
    auto pair(ptrdiff_t k) const {
      static_assert(down == 2);
      return rowsBeside(planeRow(luma().row(2 * k), luma().row(2 * k + 1)), planeRow<across>(cb().row(k), cr().row(k)));
    }
    auto chroma(ptrdiff_t k) const { return planeRow(cb().row(k), cr().row(k)); }
    auto neighbours(ptrdiff_t k) const { return rowsBeside(pairsOfBytes(cb().row(k)), pairsOfBytes(cr().row(k))); }
    auto twoRows(ptrdiff_t k) const {
      return planeRow(cb().row(2 * k), cb().row(2 * k + 1), cr().row(2 * k), cr().row(2 * k + 1));
    }
  };
};

template <int pixelsAcross, int pixelsDown>
struct PairVideo {
  static constexpr int across = pixelsAcross, down = pixelsDown;
  static constexpr bool isPlanar = false, isPacked = false, lumaFirst = true, crFirst = false;

  template <class T>
  struct Frame {
    LumaAndPairs<T> planes;

    Image<T> luma() const { return planes.luma; }

    bool hasContiguousChroma(VemiSize size) const { return planes.pairs.step == 2 * (size.width / across); }
    bool isContiguous(VemiSize size) const { return luma().step == size.width && hasContiguousChroma(size); }

    auto row(ptrdiff_t y) const {
      return rowsBeside(planeRow(luma().row(y)), pairRow<across>(planes.pairs.row(y / down)));
    }
    auto bytes(ptrdiff_t y) const { return planeRow(luma().row(y), planes.pairs.row(y / down)); }
    auto chroma(ptrdiff_t k) const { return pairsOfBytes(planes.pairs.row(k)); }
    auto neighbours(ptrdiff_t k) const { return pixelRow<C4>(planes.pairs.row(k)); }
    auto twoRows(ptrdiff_t k) const { return rowsBeside(chroma(2 * k), chroma(2 * k + 1)); }
  };
};

template <Packed422 byteOrder, Chroma first = Chroma::cbFirst>
struct PackedVideo {
  static constexpr int across = 2, down = 1;
  static constexpr bool isPlanar = false, isPacked = true;
  static constexpr bool lumaFirst = byteOrder == Packed422::lumaFirst, crFirst = first == Chroma::crFirst;
  /// Bytes of two pixels: where Y0, Cb, Y1 and Cr stand.
  static constexpr int place[4] = {lumaFirst ? 0 : 1, (lumaFirst ? 1 : 0) + (crFirst ? 2 : 0), lumaFirst ? 2 : 3,
                                   (lumaFirst ? 1 : 0) + (crFirst ? 0 : 2)};

  template <class T>
  struct Frame {
    Image<T> pixels;

    bool isContiguous(VemiSize size) const { return vemi::isContiguous<C2>(pixels, size); }

    auto row(ptrdiff_t y) const { return PackedBlocksRow<T, byteOrder>{pixels.row(y)}; }
    auto pair(ptrdiff_t k) const { return rowsBeside(row(2 * k), row(2 * k + 1)); }
    auto bytes(ptrdiff_t y) const { return pairsOfBytes(pixels.row(y)); }
  };
};

/// A region smaller than one sample's pixels.
inline VemiStatus checkLeast(VemiSize roiSize, VemiSize least) {
  return roiSize.width < least.width || roiSize.height < least.height ? vemiErrSize : vemiOk;
}

/// What of a region is worked on.
inline VemiSize wholeMultiples(VemiSize roiSize, VemiSize of) {
  return {roiSize.width / of.width * of.width, roiSize.height / of.height * of.height};
}

/// Bytes of all samples of a region.
template <class Format>
Vemi64s bytesOf(VemiSize size) {
  return trafficOf(extentOf(size), 1) + trafficOf(extentOf(size), 2) / (Format::across * Format::down);
}

// ---- Planes as they are -------------------------------------------------------------------------------------------

namespace detail {

/// Memory from a plane's first byte to its last.
struct Extremes {
  const Vemi8u *begin, *end;

  Extremes(Image<const Vemi8u> plane, VemiSize size)
      : begin(std::min(plane.row(0), plane.row(size.height - 1))),
        end(std::max(plane.row(0), plane.row(size.height - 1)) + size.width) {}
};

}  // namespace detail

/// Row y of a plane is row y * srcRows / dstRows of another. Where the planes overlap, one byte moves after the other.
template <int srcRows, int dstRows>
void copyPlane(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize size, Vemi64s traffic) {
  if (srcRows == dstRows && isSameImage(src, dst) && src.step == dst.step) return;
  const auto from = [&](ptrdiff_t y) { return src.row(y * srcRows / dstRows); };
  const detail::Extremes read(src, {size.width, size.height * srcRows / dstRows});
  const detail::Extremes written({dst.first, dst.step}, size);
  if (read.begin < written.end && written.begin < read.end) {
    for (ptrdiff_t y = 0; y < size.height; ++y) {
      const Vemi8u* const in = from(y);
      Vemi8u* const out = dst.row(y);
      for (ptrdiff_t x = 0; x < size.width; ++x) out[x] = in[x];
    }
    return;
  }
  const bool contiguous = isContiguous<C1>(src, size) && isContiguous<C1>(dst, size);
  const Extent extent = mergedExtent(size, srcRows == dstRows && contiguous);
  runPlainOrStreamed(
      CallerRows(), extent.height, traffic, [&](ptrdiff_t y) { rowCopyBytes(from(y), dst.row(y), extent.width); },
      [&](ptrdiff_t y) { rowStreamBytes(from(y), dst.row(y), extent.width); });
}

// ---- Rows of frames ----------------------------------------------------------------------------------------------

/// dst(y) = op(src(y)), both rows of `extent.width` pixels; past the caches where the call's traffic says so.
template <class Op, class DstRow, class SrcRow>
void mapFrameRows(Extent extent, Vemi64s traffic, const Op& op, const DstRow& dst, const SrcRow& src) {
  const auto row = [&](ptrdiff_t y) { mapPixels(extent.width, op, dst(y), src(y)); };
  if constexpr (canStreamPixels<Op, decltype(dst(0)), decltype(src(0))>) {
    const auto streamedRow = [&](ptrdiff_t y) { streamPixels(extent.width, op, dst(y), src(y)); };
    runPlainOrStreamed(CallerRows(), extent.height, traffic, row, streamedRow);
  } else {
    CallerRows().run(extent.height, row);
  }
}

}  // namespace vemi::color
