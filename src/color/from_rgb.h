// From red, green and blue to luma and chroma in 16-bit lanes. Chroma that pixels share comes from their sums.
#pragma once

#include <cstdint>
#include <tuple>

#include "color/affine.h"
#include "color/matrices.h"
#include "color/shared_chroma.h"
#include "core/inlined.h"
#include "core/numbers.h"
#include "core/processor_bytes.h"

namespace vemi::color {

/// The words of a pixel's channels, of even or of odd pixels.
template <class V>
struct RgbWords {
  V r, g, b;

  HWY_INLINE RgbWords operator+(RgbWords other) const {
    return {hn::Add(r, other.r), hn::Add(g, other.g), hn::Add(b, other.b)};
  }
};

template <class V>
struct RgbOfPixels {
  RgbWords<V> even, odd;

  /// Of each two pixels.
  HWY_INLINE RgbWords<V> sums() const { return even + odd; }
};

template <class D, class V>
HWY_INLINE RgbOfPixels<hn::Vec<Words<D>>> rgbOfPixels(D d, V r, V g, V b) {
  const auto rs = wordsOfPixels(d, r), gs = wordsOfPixels(d, g), bs = wordsOfPixels(d, b);
  return {{rs.lower, gs.lower, bs.lower}, {rs.upper, gs.upper, bs.upper}};
}

// ---- By differences ------------------------------------------------------------------------------------------------

/// Twice luma, of words.
template <const DifferenceMatrix& m, class V>
HWY_INLINE V doubledLuma(RgbWords<V> p) {
  const hn::DFromV<V> d;
  const V weights = detail::weightsOfPairs(d, m.red, m.green);
  const auto part = [&](V pairs) VEMI_INLINED { return hn::ShiftRight<14>(pairsOfProducts(pairs, weights)); };
  const V redAndGreen = packHalves(d, part(hn::InterleaveLower(d, p.r, p.g)), part(hn::InterleaveUpper(d, p.r, p.g)));
  return hn::Add(redAndGreen, hn::MulHigh(p.b, hn::Set(d, 4 * m.blue)));
}

template <class V>
HWY_INLINE V chromaOfDifference(V difference, int16_t weight) {
  const hn::DFromV<V> d;
  return hn::Add(hn::MulHigh(difference, hn::Set(d, weight)), hn::Set(d, 128));
}

/// Each pixel with chroma of its own.
template <const DifferenceMatrix& m>
struct ByDifferences {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto p = rgbOfPixels(d, r, g, b);
    return PixelWords<D, 3>{words(p.even), words(p.odd)}.bytes(d);
  }

 private:
  template <class V>
  HWY_INLINE static Vectors<V, 3> words(RgbWords<V> p) {
    const V luma = doubledLuma<m>(p);
    const auto chroma = [&](V channel, int16_t weight) VEMI_INLINED {
      return chromaOfDifference(hn::Sub(hn::ShiftLeft<1>(channel), luma), weight);
    };
    return {{hn::ShiftRight<1>(luma), chroma(p.b, m.blueToU), chroma(p.r, m.redToV)}};
  }
};

/// Pairs of pixels, which share chroma.
template <const DifferenceMatrix& m>
struct ByDifferences422 {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto p = rgbOfPixels(d, r, g, b);
    const auto even = doubledLuma<m>(p.even), odd = doubledLuma<m>(p.odd);
    const auto luma = hn::ShiftRight<1>(hn::Add(even, odd));
    const auto sums = p.sums();
    return withChromaBytes(d, chromaOfDifference(hn::Sub(sums.b, luma), m.blueToU),
                           chromaOfDifference(hn::Sub(sums.r, luma), m.redToV),
                           bytesOfPixels(d, hn::ShiftRight<1>(even), hn::ShiftRight<1>(odd)));
  }
};

/// Two pixels of each of two rows, which share chroma.
template <const DifferenceMatrix& m>
struct ByDifferences420 {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r0, V g0, V b0, V r1, V g1, V b1) const {
    const auto top = rgbOfPixels(d, r0, g0, b0), bottom = rgbOfPixels(d, r1, g1, b1);
    const auto even0 = doubledLuma<m>(top.even), odd0 = doubledLuma<m>(top.odd);
    const auto even1 = doubledLuma<m>(bottom.even), odd1 = doubledLuma<m>(bottom.odd);
    const auto luma = hn::ShiftRight<2>(hn::Add(hn::Add(even0, odd0), hn::Add(even1, odd1)));
    const auto sums = top.sums() + bottom.sums();
    const auto chroma = [&](auto sum, int16_t weight)
                            VEMI_INLINED { return chromaOfDifference(hn::Sub(hn::ShiftRight<1>(sum), luma), weight); };
    return withChromaBytes(d, chroma(sums.b, m.blueToU), chroma(sums.r, m.redToV),
                           bytesOfPixels(d, hn::ShiftRight<1>(even0), hn::ShiftRight<1>(odd0)),
                           bytesOfPixels(d, hn::ShiftRight<1>(even1), hn::ShiftRight<1>(odd1)));
  }
};

// ---- By parts ------------------------------------------------------------------------------------------------------

/// Row i of the matrix on words.
template <const PartwiseMatrix& m, int i, class V>
HWY_INLINE V partwiseRow(RgbWords<V> p) {
  constexpr PartwiseRow row = m.row[i];
  const hn::DFromV<V> d;
  const V weights = detail::weightsOfPairs(d, row.weight[0], row.weight[1]);
  const auto part = [&](V pairs) VEMI_INLINED { return hn::ShiftRight<11>(pairsOfProducts(pairs, weights)); };
  const V redAndGreen = packHalves(d, part(hn::InterleaveLower(d, p.r, p.g)), part(hn::InterleaveUpper(d, p.r, p.g)));
  const V blue = hn::MulHigh(hn::ShiftLeft<5>(p.b), hn::Set(d, row.weight[2]));
  return hn::Add(hn::ShiftRight<4>(hn::Add(redAndGreen, blue)), hn::Set(d, row.offset));
}

template <const PartwiseMatrix& m>
struct Partwise {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto p = rgbOfPixels(d, r, g, b);
    return PixelWords<D, 3>{words(p.even), words(p.odd)}.bytes(d);
  }

 private:
  template <class V>
  HWY_INLINE static Vectors<V, 3> words(RgbWords<V> p) {
    return {{partwiseRow<m, 0>(p), partwiseRow<m, 1>(p), partwiseRow<m, 2>(p)}};
  }
};

// ---- 4:2:2 ---------------------------------------------------------------------------------------------------------

/// Luma of each pixel by one matrix, partwise or affine, chroma of each pair by another on the sums of its pixels.
template <const auto& luma, const auto& chroma>
struct To422 {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto p = rgbOfPixels(d, r, g, b);
    const auto sums = p.sums();
    return withChromaBytes(d, affineRow<chroma, 0>(sums.r, sums.g, sums.b),
                           affineRow<chroma, 1>(sums.r, sums.g, sums.b),
                           bytesOfPixels(d, lumaOf(p.even), lumaOf(p.odd)));
  }

 private:
  template <class V>
  HWY_INLINE static V lumaOf(RgbWords<V> p) {
    if constexpr (requires { luma.row[0].shift; }) {
      return affineRow<luma, 0>(p.r, p.g, p.b);
    } else {
      return partwiseRow<luma, 0>(p);
    }
  }
};

// ---- 4:2:0 ---------------------------------------------------------------------------------------------------------

/// Channels come 2^5 times as large, to which weights add what is left of their row's shift.
template <const HighProductMatrix& m>
struct To420 {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r0, V g0, V b0, V r1, V g1, V b1) const {
    const auto top = largerRgb(d, r0, g0, b0), bottom = largerRgb(d, r1, g1, b1);
    const auto sums = top.sums() + bottom.sums();
    const hn::Repartition<int8_t, D> dSigned;
    const hn::Half<D> dHalf;
    const auto signedChroma = packInOrder(dSigned, row<1>(sums), row<2>(sums));
    const auto chroma = hn::Add(hn::BitCast(d, signedChroma), hn::Set(d, offset<1>));
    static_assert(offset<1> == 128 && offset<2> == 128);
    return std::tuple(luma(d, top), luma(d, bottom), hn::LowerHalf(chroma), hn::UpperHalf(dHalf, chroma));
  }

 private:
  static constexpr int shift = 5;
  static_assert(4 * 255 << shift <= INT16_MAX);

  template <class D, class V>
  HWY_INLINE static auto largerRgb(D, V r, V g, V b) {
    const Words<D> dWords;
    const auto even = [&](V v) VEMI_INLINED { return pairsOfByteProducts<1 << shift, 0>(dWords, v); };
    const auto odd = [&](V v) VEMI_INLINED { return pairsOfByteProducts<0, 1 << shift>(dWords, v); };
    return RgbOfPixels<hn::Vec<Words<D>>>{{even(r), even(g), even(b)}, {odd(r), odd(g), odd(b)}};
  }

  template <class D, class V>
  HWY_INLINE static hn::Vec<D> luma(D d, const RgbOfPixels<V>& p) {
    return hn::Add(bytesOfPixels(d, row<0>(p.even), row<0>(p.odd)), hn::Set(d, offset<0>));
  }

  /// All but the multiple of 8 in the offset, which is left for the bytes: what remains of it is 4, the half that
  /// rounds to nearest.
  template <int i>
  static constexpr uint8_t offset = static_cast<uint8_t>(m.row[i].offset / 8);

  template <int i, class V>
  HWY_INLINE static V row(RgbWords<V> p) {
    constexpr HighProductRow r = m.row[i];
    static_assert(r.offset % 8 == 4);
    const hn::DFromV<V> d;
    const auto product = [&](V channel, int weight) VEMI_INLINED {
      return hn::MulHigh(channel, hn::Set(d, static_cast<int16_t>(weight * (1 << (r.shift - shift)))));
    };
    const V sum = hn::Add(hn::Add(product(p.r, r.weight[0]), product(p.g, r.weight[1])), product(p.b, r.weight[2]));
    return hn::MulFixedPoint15(sum, hn::Set(d, 1 << 12));  // an eighth
  }
};

}  // namespace vemi::color
