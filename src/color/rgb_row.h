// Rows of interleaved pixels of three bytes as sources that give a vector for each channel, by fewer moves than from
// whole vectors of bytes.
#pragma once

#include <cstdint>
#include <tuple>

#include "core/inlined.h"
#include "core/pixels.h"
#include "core/vector_blocks.h"

namespace vemi::color {

namespace detail {

/// Four pixels of three bytes as lanes of 32 bits: the first channel of all of them, the second, the third. The last
/// block has been read from 4 bytes before its pixels.
struct ChannelsOfFour {
  alignas(laneAlignment) uint8_t index[laneCount<uint8_t>];

  constexpr explicit ChannelsOfFour(int lastBlockOffset) : index() {
    for (int i = 0; i < laneCount<uint8_t>; ++i) {
      const int offset = i + 16 >= laneCount<uint8_t> ? lastBlockOffset : 0, channel = i % 16 / 4;
      index[i] = static_cast<uint8_t>(channel < 3 ? channel + offset + i % 4 * 3 : 0x80);
    }
  }
};

template <bool isLast>
inline constexpr ChannelsOfFour channelsOfFour(isLast ? 4 : 0);

/// Of each 16 pixels the four that begin at `in`, in a block of 128 bits. Nothing behind the pixels of the last block
/// is read.
template <bool isLast, class D>
HWY_INLINE hn::Vec<D> loadFours(D d, const uint8_t* in) {
  constexpr int last = static_cast<int>(hn::MaxLanes(D()) / 16) - 1;
  return blocksFrom(d, [&](int k) VEMI_INLINED { return in + ptrdiff_t{48} * k - (isLast && k == last ? 4 : 0); });
}

}  // namespace detail

struct RgbRow {
  using Element = uint8_t;
  static constexpr int channels = 3;
  static constexpr ptrdiff_t blockPixels = laneCount<uint8_t>;
  static constexpr int itemPixels = 1;

  const uint8_t* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<const uint8_t, 3 * pixels>{first});
  }
  RgbRow from(ptrdiff_t x) const { return {first + 3 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(pixels == blockPixels);
    const Lanes<uint8_t> d;
    const Lanes<uint32_t> dFours;
    const Lanes<uint64_t> dEights;
    const auto fours = [&](auto k) VEMI_INLINED {
      constexpr bool isLast = k == 3;
      const auto pixelsOfBlocks = detail::loadFours<isLast>(d, first + 12 * k);
      const auto order = hn::Load(d, detail::channelsOfFour<isLast>.index);
      return hn::BitCast(dFours, hn::TableLookupBytesOr0(pixelsOfBlocks, order));
    };
    const auto v0 = fours(std::integral_constant<int, 0>()), v1 = fours(std::integral_constant<int, 1>());
    const auto v2 = fours(std::integral_constant<int, 2>()), v3 = fours(std::integral_constant<int, 3>());
    const auto lower = [&](auto a, auto b)
                           VEMI_INLINED { return hn::BitCast(dEights, hn::InterleaveLower(dFours, a, b)); };
    const auto upper = [&](auto a, auto b)
                           VEMI_INLINED { return hn::BitCast(dEights, hn::InterleaveUpper(dFours, a, b)); };
    const auto l01 = lower(v0, v1), l23 = lower(v2, v3), u01 = upper(v0, v1), u23 = upper(v2, v3);
    return f(hn::BitCast(d, hn::InterleaveLower(dEights, l01, l23)),
             hn::BitCast(d, hn::InterleaveUpper(dEights, l01, l23)),
             hn::BitCast(d, hn::InterleaveLower(dEights, u01, u23)));
  }
};

/// A row as a source of conversions from red, green and blue.
inline RgbRow rgbRow(InterleavedRow<const uint8_t, C3> row) { return {row.first}; }
template <class Row>
Row rgbRow(Row row) {
  return row;
}

}  // namespace vemi::color
