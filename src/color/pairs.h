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

/// A weight as low + 256 high, for a byte b in words b + toLow and 256 b + toHigh, which 16 bits hold.
struct WeightOfByte {
  int low, high, toLow, toHigh;

  /// weight b + offset. With a high part there are few ways to the offset; the compiler finds one.
  static constexpr WeightOfByte withOffset(int weight, int offset) {
    for (int high = weight / 256 - 126; high < weight / 256 + 126; ++high) {
      for (int toHigh = INT16_MIN; toHigh < INT16_MIN + 256; ++toHigh) {
        const int low = weight - 256 * high, rest = offset - high * toHigh;
        if (low == 0 || rest % low != 0) continue;
        const int toLow = rest / low;
        if (toLow >= INT16_MIN && toLow <= INT16_MAX - 255) return {low, high, toLow, toHigh};
      }
    }
    return {};
  }
  /// weight (b - 128)
  static constexpr WeightOfByte ofChroma(int weight) { return {weight % 256, weight / 256, -128, INT16_MIN}; }

  constexpr bool exists() const { return high != 0; }
};

}  // namespace detail

/// R, G and B of pairs Cb Y Cr Y as words, in the order of the pixels.
template <const ExactMatrix& m, class D>
HWY_INLINE auto rgbOfPairs(D d, hn::Vec<D> pairs) {
  using namespace detail;
  using Weight = WeightOfByte;
  const hn::Repartition<int16_t, D> dWords;
  const auto words = [&](const uint8_t(&places)[16], const Weight& w) VEMI_INLINED {
    return hn::Add(wordsAt(d, pairs, places), weightsOfPairs(dWords, fraction(w.toLow), fraction(w.toHigh)));
  };
  const auto times = [&](auto v, const Weight& w) VEMI_INLINED {
    return pairsOfProducts(v, weightsOfPairs(dWords, fraction(w.low), fraction(w.high)));
  };
  constexpr Weight luma = Weight::withOffset(m.luma, m.offset);
  static_assert(luma.exists());
  const auto even = times(words(byteAndHigh<1>, luma), luma), odd = times(words(byteAndHigh<3>, luma), luma);
  constexpr Weight redV = Weight::ofChroma(m.redV), greenU = Weight::ofChroma(m.greenU),
                   greenV = Weight::ofChroma(m.greenV), blueU = Weight::ofChroma(m.blueU);
  const auto cb = words(byteAndHigh<0>, blueU), cr = words(byteAndHigh<2>, redV);
  const auto pixels = [&](auto chroma) VEMI_INLINED { return upperWords(hn::Add(even, chroma), hn::Add(odd, chroma)); };
  const auto red = pixels(times(cr, redV)), blue = pixels(times(cb, blueU));
  const auto green = pixels(hn::Add(times(cb, greenU), times(cr, greenV)));
  return Vectors<std::remove_const_t<decltype(red)>, 3>{{red, green, blue}};
}

namespace detail {

/// Weights of words blue and red.
template <class D>
HWY_INLINE hn::Vec<D> weightsOfBlueAndRed(D d, const AffineRow& r) {
  return weightsOfPairs(d, fraction(r.weight[2]), fraction(r.weight[0]));
}

/// Row i of the matrix in lanes of 32 bits, of words blue and red, and green twice.
template <const auto& matrix, int i, class V>
HWY_INLINE auto sumOfBgr(V blueAndRed, V green) {
  constexpr AffineRow r = matrix.row[i];
  static_assert(fraction(r.weight[2]) == r.weight[2] && fraction(r.weight[0]) == r.weight[0]);
  const auto weights = weightsOfBlueAndRed(hn::DFromV<V>(), r);
  const auto products = hn::Add(pairsOfProducts(blueAndRed, weights), timesBoth<r.weight[1]>(green));
  return hn::Add(products, hn::Set(hn::DFromV<decltype(products)>(), r.offset));
}

/// The same of weights whose sum is 0, of words blue and red less green.
template <const auto& matrix, int i, class V>
HWY_INLINE auto sumOfDifferences(V blueAndRed) {
  constexpr AffineRow r = matrix.row[i];
  static_assert(fraction(r.weight[2]) == r.weight[2] && fraction(r.weight[0]) == r.weight[0]);
  static_assert(r.weight[0] + r.weight[1] + r.weight[2] == 0);
  const auto products = pairsOfProducts(blueAndRed, weightsOfBlueAndRed(hn::DFromV<V>(), r));
  return hn::Add(products, hn::Set(hn::DFromV<decltype(products)>(), r.offset));
}

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
  const auto even = hn::ConcatEven(dPixels, q, p), odd = hn::ConcatOdd(dPixels, q, p);
  const auto blueAndRed = [&](auto pixels) VEMI_INLINED {
    return hn::BitCast(dWords, hn::And(pixels, hn::Set(dPixels, 0x00ff00ff)));
  };
  const auto green = [&](auto pixels) VEMI_INLINED { return wordsAt(d, hn::BitCast(d, pixels), byteTwice<1>); };
  const auto br0 = blueAndRed(even), br1 = blueAndRed(odd), g0 = green(even), g1 = green(odd);
  const auto luma = upperWords(sumOfBgr<lumas, 0>(br0, g0), sumOfBgr<lumas, 0>(br1, g1));
  const auto differences = hn::Sub(hn::Add(br0, br1), hn::Add(g0, g1));
  const auto cb = hn::ShiftRight<17>(sumOfDifferences<chromas, 0>(differences));
  const auto cr = hn::ShiftRight<17 - 16>(sumOfDifferences<chromas, 1>(differences));
  const auto chroma = hn::OddEven(hn::BitCast(dWords, cr), hn::BitCast(dWords, cb));
  return hn::BitCast(d, hn::Or(chroma, hn::ShiftLeft<8>(luma)));
}

}  // namespace vemi::color
