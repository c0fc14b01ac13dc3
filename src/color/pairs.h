// Pairs of pixels of 4:2:2 in lanes of 32 bits, which hold the bytes of a pair: sums of 32 bits are made where the
// bytes stand, and nothing goes through planes.
#pragma once

#include <cstdint>

#include "color/affine.h"
#include "color/matrices.h"
#include "core/inlined.h"
#include "core/lane_width.h"
#include "core/numbers.h"

namespace vemi::color {

namespace detail {

constexpr uint8_t none = 0x80;

/// Byte k of each lane, in both of its words.
template <int k>
alignas(16) inline constexpr uint8_t byteTwice[16] = {k,     none, k,     none, k + 4,  none, k + 4,  none,
                                                      k + 8, none, k + 8, none, k + 12, none, k + 12, none};

/// Byte k of each lane, in the lower word as it is, in the upper one times 256.
template <int k>
alignas(16) inline constexpr uint8_t byteAndHigh[16] = {k,     none, none, k,     k + 4,  none, none, k + 4,
                                                        k + 8, none, none, k + 8, k + 12, none, none, k + 12};

template <class D>
HWY_INLINE auto wordsAt(D d, hn::Vec<D> bytes, const uint8_t (&places)[16]) {
  return hn::BitCast(hn::Repartition<int16_t, D>(), hn::TableLookupBytesOr0(bytes, hn::LoadDup128(d, places)));
}

/// A number times `weight`, which is in both words of a lane.
template <int weight, class V>
HWY_INLINE auto timesBoth(V words) {
  constexpr int half = weight / 2;
  static_assert(fraction(half) == half && fraction(weight - half) == weight - half);
  return pairsOfProducts(words, weightsOfPairs(hn::DFromV<V>(), fraction(half), fraction(weight - half)));
}

/// The upper words of lanes `lower`, behind each of them that of `upper`.
template <class V>
HWY_INLINE auto upperWords(V lower, V upper) {
  const hn::Repartition<int16_t, hn::DFromV<V>> d;
  return hn::OddEven(hn::BitCast(d, upper), hn::BitCast(d, hn::ShiftRight<16>(lower)));
}

}  // namespace detail

/// R, G and B of pairs Cb Y Cr Y as words, in the order of the pixels. With weight = 256 high + low,
///   weight (C - 128) = 256 (C - 128) high + C low - 128 low.
template <const ExactMatrix& m, class D>
HWY_INLINE auto rgbOfPairs(D d, hn::Vec<D> pairs) {
  using namespace detail;
  const hn::Repartition<int32_t, D> dSums;
  const auto luma = [&](const uint8_t(&places)[16]) VEMI_INLINED {
    static_assert(m.luma % 2 == 0);
    return hn::ShiftLeft<1>(timesBoth<m.luma / 2>(wordsAt(d, pairs, places)));
  };
  const auto chroma = [&](const uint8_t(&places)[16]) VEMI_INLINED {
    const auto words = wordsAt(d, pairs, places);
    const auto sign = hn::Set(hn::Repartition<uint32_t, D>(), 0x80000000u);
    return hn::Xor(words, hn::BitCast(hn::DFromV<decltype(words)>(), sign));
  };
  const auto low = [](int weight) { return weight % 256; };
  const auto times = [&](auto words, int weight) VEMI_INLINED {
    const auto weights = weightsOfPairs(hn::DFromV<decltype(words)>(), fraction(low(weight)), fraction(weight / 256));
    return pairsOfProducts(words, weights);
  };
  const auto even = luma(byteTwice<1>), odd = luma(byteTwice<3>);
  const auto cb = chroma(byteAndHigh<0>), cr = chroma(byteAndHigh<2>);
  const auto pixels = [&](auto chromaSum, int lows) VEMI_INLINED {
    const auto sum = hn::Add(chromaSum, hn::Set(dSums, m.offset - 128 * lows));
    return upperWords(hn::Add(even, sum), hn::Add(odd, sum));
  };
  const auto red = pixels(times(cr, m.redV), low(m.redV));
  const auto green = pixels(hn::Add(times(cb, m.greenU), times(cr, m.greenV)), low(m.greenU) + low(m.greenV));
  const auto blue = pixels(times(cb, m.blueU), low(m.blueU));
  return Vectors<std::remove_const_t<decltype(red)>, 3>{{red, green, blue}};
}

namespace detail {

/// Row i of the matrix in lanes of 32 bits, of words blue and red, and green twice.
template <const auto& matrix, int i, class V>
HWY_INLINE auto sumOfBgr(V blueAndRed, V green) {
  constexpr AffineRow r = matrix.row[i];
  static_assert(fraction(r.weight[2]) == r.weight[2] && fraction(r.weight[0]) == r.weight[0]);
  const V weights = weightsOfPairs(hn::DFromV<V>(), fraction(r.weight[2]), fraction(r.weight[0]));
  const auto products = hn::Add(pairsOfProducts(blueAndRed, weights), timesBoth<r.weight[1]>(green));
  return hn::Add(products, hn::Set(hn::DFromV<decltype(products)>(), r.offset));
}

/// Where the lanes of two runs are that stand by turns.
struct RunsByTurns {
  alignas(laneAlignment) uint32_t index[laneCount<uint32_t>];

  constexpr RunsByTurns() : index() {
    constexpr uint32_t half = laneCount<uint32_t> / 2;
    for (uint32_t i = 0; i < half; ++i) {
      index[i] = 2 * i;
      index[half + i] = 2 * i + 1;
    }
  }
};

inline constexpr RunsByTurns runsByTurns;

}  // namespace detail

/// Pairs Cb Y Cr Y of two vectors of pixels B G R A: luma by the first row of `lumas`, chroma of the sums of two pixels
/// by `chromas`. The results are bytes as they are.
template <const AffineMatrix<3>& lumas, const AffineMatrix<2>& chromas, class D>
HWY_INLINE hn::Vec<D> pairsOfBgra(D d, hn::Vec<D> first, hn::Vec<D> second) {
  using namespace detail;
  const hn::Repartition<uint32_t, D> dPixels;
  const hn::Repartition<int16_t, D> dWords;
  static_assert(lumas.row[0].shift == 16 && chromas.row[0].shift == 17 && chromas.row[1].shift == 17);
  const auto p = hn::BitCast(dPixels, first), q = hn::BitCast(dPixels, second);
  // Pairs of the first vector and of the second by turns.
  const auto even = hn::OddEven(hn::Shuffle2301(q), p), odd = hn::OddEven(q, hn::Shuffle2301(p));
  const auto blueAndRed = [&](auto pixels) VEMI_INLINED {
    return hn::BitCast(dWords, hn::And(pixels, hn::Set(dPixels, 0x00ff00ff)));
  };
  const auto green = [&](auto pixels) VEMI_INLINED { return wordsAt(d, hn::BitCast(d, pixels), byteTwice<1>); };
  const auto br0 = blueAndRed(even), br1 = blueAndRed(odd), brSum = hn::Add(br0, br1);
  const auto g0 = green(even), g1 = green(odd), gSum = hn::Add(g0, g1);
  const auto luma = upperWords(sumOfBgr<lumas, 0>(br0, g0), sumOfBgr<lumas, 0>(br1, g1));
  const auto cb = hn::ShiftRight<17>(sumOfBgr<chromas, 0>(brSum, gSum));
  const auto cr = hn::ShiftRight<17 - 16>(sumOfBgr<chromas, 1>(brSum, gSum));
  const auto chroma = hn::OddEven(hn::BitCast(dWords, cr), hn::BitCast(dWords, cb));
  const auto pairs = hn::BitCast(dPixels, hn::Or(chroma, hn::ShiftLeft<8>(luma)));
  return hn::BitCast(d, hn::TableLookupLanes(pairs, hn::SetTableIndices(dPixels, runsByTurns.index)));
}

}  // namespace vemi::color
