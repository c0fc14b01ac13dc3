// Rows whose elements are made of bytes at computed, mostly close places of another row. A vector is put together by
// blocks of 16 bytes, each of which is shuffled out of 16 bytes in memory, or out of several such windows where the
// places of its parts lie too far apart for one. Which bytes, is a table of the columns: a call makes it once.
#pragma once

#include <cstdint>

#include "core/gather.h"
#include "core/lanes.h"
#include "core/scratch.h"
#include "core/vector_blocks.h"

namespace vemi::geometry {

/// Bytes behind the last one that is wanted which may be read: more than a window, or two vectors.
inline constexpr int windowSlack = 2 * static_cast<int>(laneAlignment);

/// What an element of `bytes` (1, 2 or 4) takes: the bytes at its offset + at[0], + at[1], ..., of which the last one
/// is `reach` bytes long, and zeros.
struct BytePattern {
  int bytes;
  int reach;
  uint8_t at[4];

  /// `samples` neighbours of `sampleBytes`, which stand `distance` bytes apart; behind them zeros.
  static BytePattern ofSamples(int bytes, int samples, int sampleBytes, int distance) {
    BytePattern pattern = {bytes, (samples - 1) * distance + sampleBytes, {}};
    for (int k = 0; k < bytes; ++k) {
      const bool isZero = k >= samples * sampleBytes;
      pattern.at[k] = static_cast<uint8_t>(isZero ? 0x80 : k / sampleBytes * distance + k % sampleBytes);
    }
    return pattern;
  }
};

namespace detail {

/// Of `windows` parts of a block, what lies outside of each: a lookup there gives zero.
template <int windows>
struct OutsideOfPart {
  alignas(16) uint8_t index[windows][16];

  constexpr OutsideOfPart() : index() {
    for (int part = 0; part < windows; ++part) {
      for (int i = 0; i < 16; ++i) index[part][i] = i / (16 / windows) == part ? 0 : 0x80;
    }
  }
};

template <int windows>
inline constexpr OutsideOfPart<windows> outsideOfPart;

}  // namespace detail

/// How far apart the offsets of a row's elements are, within its parts of 1, 2, 4, 8 and 16 elements.
class OffsetSpans {
 public:
  OffsetSpans(const int32_t* offset, ptrdiff_t elements);

  /// Windows of each block: 1, 2, 4, 8 or 16. Offsets are in bytes.
  int windowsFor(const BytePattern& pattern) const;

 private:
  int32_t of_[5] = {};  // the most, by the logarithm of a part's elements
};

/// The table of a row.
class PickedBytes {
 public:
  struct Room {
    Piece<int32_t> base;
    Piece<uint8_t> place;
  };

  /// For so many elements, and as many more as a vector may have behind them.
  static Room addTo(Pieces& pieces, Vemi64s elements, int bytes) {
    const Vemi64s padded = elements + laneCount<uint8_t>;
    return {pieces.add<int32_t>(padded), pieces.add<uint8_t>(limitedProduct(padded, bytes))};
  }

  PickedBytes(const Scratch& scratch, const Room& room) : base_(scratch[room.base]), place_(scratch[room.place]) {}

  /// What the instructions of a vector with so many windows take, roughly.
  static constexpr int costOf(int windows) { return 7 * windows - 4; }

  void make(const int32_t* offset, ptrdiff_t elements, const OffsetSpans& spans, const BytePattern& pattern);
  void make(const int32_t* offset, ptrdiff_t elements, const BytePattern& pattern) {
    make(offset, elements, OffsetSpans(offset, elements), pattern);
  }

  /// The vector of a row that begins with this block.
  template <int windows>
  HWY_INLINE hn::Vec<Lanes<uint8_t>> vector(const uint8_t* row, ptrdiff_t block) const {
    const Lanes<uint8_t> d;
    const auto place = hn::LoadU(d, place_ + 16 * block);
    const int32_t* const base = base_ + windows * block;
    auto all = part<windows, 0>(row, base, place);
    unrolled<windows - 1>([&](auto w) HWY_ATTR { all = hn::Or(all, part<windows, w + 1>(row, base, place)); });
    return all;
  }

  /// The same where a block is a pixel, as the row has it.
  HWY_INLINE hn::Vec<Lanes<uint8_t>> pixels(const uint8_t* row, ptrdiff_t block) const {
    return blocksFrom(Lanes<uint8_t>(), [&](ptrdiff_t b) HWY_ATTR { return row + base_[block + b]; });
  }

  /// The same for elements of four neighbouring bytes.
  template <int windows>
  HWY_INLINE hn::Vec<Lanes<uint8_t>> words(const uint8_t* row, ptrdiff_t block) const {
    if constexpr (windows == 4 && vemi::detail::gathersInLanes) {  // each element has its own
      const Lanes<int32_t> d;
      const auto* const first = reinterpret_cast<const int32_t*>(row);
      return hn::BitCast(Lanes<uint8_t>(), hn::GatherOffset(d, first, hn::LoadU(d, base_ + 4 * block)));
    } else {
      return vector<windows>(row, block);
    }
  }

  /// f(number of windows, as a constant), of which there are at most `most`.
  template <int most, class F>
  HWY_INLINE void withWindows(const F& f) const {
    if (windows_ == 1) return f(std::integral_constant<int, 1>());
    if (windows_ == 2) return f(std::integral_constant<int, 2>());
    if (most == 4 || windows_ == 4) return f(std::integral_constant<int, 4>());
    if constexpr (most >= 8) {
      if (most == 8 || windows_ == 8) return f(std::integral_constant<int, 8>());
    }
    if constexpr (most == 16) return f(std::integral_constant<int, 16>());
  }

 private:
  int windows_ = 1;
  int32_t* base_;   // of each window of each block
  uint8_t* place_;  // in its window, of each byte

  /// What window w of each block gives. A function, as all of these must be inlined.
  template <int windows, int w>
  HWY_INLINE static hn::Vec<Lanes<uint8_t>> part(const uint8_t* row, const int32_t* base,
                                                 hn::Vec<Lanes<uint8_t>> place) {
    const Lanes<uint8_t> d;
    const auto bytes = blocksFrom(d, [&](ptrdiff_t b) HWY_ATTR { return row + base[windows * b + w]; });
    if constexpr (windows == 1) return hn::TableLookupBytesOr0(bytes, place);
    const auto outside = hn::LoadDup128(d, detail::outsideOfPart<windows>.index[w]);
    return hn::TableLookupBytesOr0(bytes, hn::Or(place, outside));
  }
};

}  // namespace vemi::geometry
