// Fetches of a warp on the floor for gathers, as a family would write them. Coordinates lie inside the image, which has
// two rows and columns at least.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "vemi/types.h"

#include "core/gather.h"
#include "core/image.h"
#include "core/lane_width.h"
#include "core/map_row.h"
#include "core/processor.h"

namespace vemi::test {

/// Coordinates as whole pixels, the last but one at most, and weights of the next pixel, of 16384.
template <class V>
struct Taps {
  V first, weight;
};

template <class V>
HWY_INLINE auto tapsOf(V coordinate, int pixels) {
  const Lanes<float> d;
  const Lanes<int32_t> dInteger;
  const auto first = hn::Min(truncated(dInteger, coordinate), hn::Set(dInteger, pixels - 2));
  const auto rest = hn::Sub(coordinate, hn::ConvertTo(d, first));
  return Taps<hn::Vec<Lanes<int32_t>>>{first, rounded(dInteger, hn::Mul(rest, hn::Set(d, 16384.0f)))};
}

/// Sums of neighbouring lanes' products.
template <class V>
HWY_INLINE auto sumsOfPairs(V values, V weights) {
  const hn::RepartitionToWide<hn::DFromV<V>> d;
  auto odd = hn::Zero(d);
  const auto even = hn::ReorderWidenMulAccumulate(d, values, weights, hn::Zero(d), odd);
  return hn::RearrangeToOddPlusEven(even, odd);
}

/// Three bytes of each word, close together.
alignas(16) inline constexpr uint8_t withoutFourth[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14};

/// Weights of a pixel and of the next one, as 16 bits each.
template <class V>
HWY_INLINE V weightPairs(V weight) {
  const hn::DFromV<V> d;
  return hn::Or(hn::Sub(hn::Set(d, 16384), weight), hn::ShiftLeft<16>(weight));
}

/// The two lower bytes of a word as 16 bits each.
alignas(16) inline constexpr uint8_t bytesApart[16] = {0, 128, 1, 128, 4,  128, 5,  128,
                                                       8, 128, 9, 128, 12, 128, 13, 128};

/// Linear, one channel of bytes: both taps of a row in one word.
struct LinearBytes {
  PixelBytes pixels;
  VemiSize size;

  template <class D>
  HWY_INLINE auto operator()(D d, const float* x, const float* y) const {
    constexpr ptrdiff_t N = laneCount<float>;
    const auto at = [](const float* in) HWY_ATTR { return hn::LoadU(Lanes<float>(), in); };
    return packEach<int32_t>(d, [&](auto k) HWY_ATTR { return fetched(at(x + k * N), at(y + k * N)); });
  }

  template <class V>
  HWY_INLINE auto fetched(V x, V y) const {
    const Lanes<int32_t> d;
    const Lanes<int16_t> d16;
    const Lanes<uint8_t> d8;
    const auto column = tapsOf(x, size.width);
    const auto row = tapsOf(y, size.height);
    const auto across = hn::BitCast(d16, weightPairs(column.weight)), down = hn::BitCast(d16, weightPairs(row.weight));
    const auto apart = [&](auto word) HWY_ATTR {
      return hn::BitCast(d16, hn::TableLookupBytesOr0(hn::BitCast(d8, word), hn::LoadDup128(d8, bytesApart)));
    };
    const auto word = pixels.words<2, 2>(column.first, row.first);
    const auto above = hn::ShiftRight<8>(sumsOfPairs(apart(word.v[0]), across));
    const auto below = hn::ShiftRight<8>(sumsOfPairs(apart(word.v[1]), across));
    const auto both = hn::BitCast(d16, hn::Or(above, hn::ShiftLeft<16>(below)));
    return hn::ShiftRight<20>(hn::Add(sumsOfPairs(both, down), hn::Set(d, 0x80000)));
  }
};

/// A row of a warp with one coordinate of each kind a pixel.
inline void linearRow(ptrdiff_t width, Image<const Vemi8u> src, VemiSize size, const float* x, const float* y,
                      Vemi8u* dst) {
  const LinearBytes fetch = {PixelBytes::of<C1>(src, size), size};
  mapElements<Alpha::none>(width, eachVector<1>(fetch), dst, x, y);
}

/// Linear, three or four channels of bytes: a pixel is a word. Place p of all blocks of four pixels is worked on at
/// once, a block's lanes being the pixel's channels.
template <class L>
struct LinearPixels {
  PixelBytes pixels;
  VemiSize size;

  void operator()(Vemi8u* out, const float* x, const float* y) const {
    constexpr int n = L::elements;
    const Lanes<int32_t> d;
    const Lanes<int16_t> d16;
    const Lanes<uint8_t> d8;
    const auto column = tapsOf(hn::LoadU(Lanes<float>(), x), size.width);
    const auto row = tapsOf(hn::LoadU(Lanes<float>(), y), size.height);
    const auto across = weightPairs(column.weight), down = weightPairs(row.weight);
    const auto byte = hn::Mul(column.first, hn::Set(d, n));
    const auto left = pixels.words<n, 2>(byte, row.first),
               right = pixels.words<n, 2>(hn::Add(byte, hn::Set(d, n)), row.first);
    const auto interpolated = [&](auto p) HWY_ATTR {
      const auto inRow = [&](int j) HWY_ATTR {
        const auto a = hn::BitCast(d8, left.v[j]), b = hn::BitCast(d8, right.v[j]);
        const auto two = p < 2 ? hn::InterleaveLower(d8, a, b) : hn::InterleaveUpper(d8, a, b);
        const auto one =
            p % 2 == 0 ? hn::InterleaveLower(d8, two, hn::Zero(d8)) : hn::InterleaveUpper(d8, two, hn::Zero(d8));
        return hn::ShiftRight<8>(sumsOfPairs(hn::BitCast(d16, one), hn::BitCast(d16, hn::Broadcast<p>(across))));
      };
      const auto rows = hn::BitCast(d16, hn::Or(inRow(0), hn::ShiftLeft<16>(inRow(1))));
      const auto sum = sumsOfPairs(rows, hn::BitCast(d16, hn::Broadcast<p>(down)));
      return hn::ShiftRight<20>(hn::Add(sum, hn::Set(d, 0x80000)));
    };
    const auto lower =
        packHalves(d16, interpolated(std::integral_constant<int, 0>()), interpolated(std::integral_constant<int, 1>()));
    const auto upper =
        packHalves(d16, interpolated(std::integral_constant<int, 2>()), interpolated(std::integral_constant<int, 3>()));
    const auto result = packHalves(d8, lower, upper);
    if constexpr (n == 4) {
      hn::StoreU(result, d8, out);
    } else {
      constexpr ptrdiff_t pixelsInBlock = 4, blocks = laneCount<Vemi8u> / 16;
      const hn::FixedTag<uint8_t, 16> dPixels;
      alignas(laneAlignment) Vemi8u four[laneCount<Vemi8u>], three[pixelsInBlock * n * blocks + pixelsInBlock];
      hn::Store(result, d8, four);
      for (ptrdiff_t k = 0; k < blocks; ++k) {
        const auto colours = hn::TableLookupBytes(hn::Load(dPixels, four + k * 16), hn::Load(dPixels, withoutFourth));
        hn::StoreU(colours, dPixels, three + k * pixelsInBlock * n);
      }
      std::memcpy(out, three, pixelsInBlock * n * blocks);
    }
  }
};

template <class L>
void linearPixels(ptrdiff_t width, Image<const Vemi8u> src, VemiSize size, const float* x, const float* y,
                  Vemi8u* dst) {
  const LinearPixels<L> kernel = {PixelBytes::of<L>(src, size), size};
  forBlocks<laneCount<float>>(width, kernel, Strand<Vemi8u, L::elements>{dst}, Strand<const float>{x},
                              Strand<const float>{y});
}

}  // namespace vemi::test
