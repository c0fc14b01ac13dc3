// From luma and chroma to red, green and blue in 16-bit lanes, and what may follow: another order of the channels, a
// fourth one.
#pragma once

#include <cstdint>
#include <tuple>

#include "color/affine.h"
#include "color/matrices.h"
#include "color/shared_chroma.h"
#include "core/inlined.h"
#include "core/pixels.h"

namespace vemi::color {

/// The weights of the odd pixels of a row.
enum class OddPixels {
  asEven,
  /// In pixels 3 and 7 of each group of eight a row of weights has two entries that differ by 4: red is given a
  /// mulhi(u, 4) besides, and green has a greenU of 4 less. Pictures hold these bytes, so they stay.
  everySecondFourOff,
};

/// op(d, Y, U, V) gives the bytes of R, G and B. A vector of U and V has a lane for each pixel, or for two or four that
/// share it.
template <const LumaChromaMatrix& matrix, OddPixels oddPixels = OddPixels::asEven>
struct ToRgb {
  template <class D, class V, class C>
  HWY_INLINE auto operator()(D d, V y, C u, C v) const {
    const Words<D> dWords;
    const auto luma = wordsOfPixels(d, y), us = wordsOfPixels(d, u), vs = wordsOfPixels(d, v);
    constexpr bool isFourOff = oddPixels == OddPixels::everySecondFourOff;
    return PixelWords<D, 3>{pixels<false>(dWords, luma.lower, us.lower, vs.lower),
                            pixels<isFourOff>(dWords, luma.upper, us.upper, vs.upper)}
        .bytes(d);
  }

 private:
  static constexpr const LumaChromaMatrix& m = matrix;

  template <bool fourOff, class D, class V>
  HWY_INLINE static Vectors<V, 3> pixels(D d, V luma, V chromaU, V chromaV) {
    const auto high = [&](V v, int16_t weight) VEMI_INLINED { return hn::MulHigh(v, hn::Set(d, weight)); };
    const V u = difference(d, chromaU), v = difference(d, chromaV);
    V red = high(v, m.redV), greenOfU = high(u, m.greenU), blue = high(u, m.blueU);
    const V greenOfV = high(v, m.greenV);
    if constexpr (fourOff) {
      greenOfU = hn::MulHigh(u, detail::weightsOfPairs(d, m.greenU, m.greenU - 4));
      red = hn::Add(red, hn::MulHigh(u, detail::weightsOfPairs(d, 0, 4)));
    }
    V green = hn::Add(greenOfU, greenOfV);
    if constexpr (m.subtractsGreen) green = hn::Neg(green);
    V y = luma;
    if constexpr (m.luma != 0) y = high(hn::ShiftLeft<7>(hn::Sub(luma, hn::Set(d, m.black))), m.luma);
    const auto result = [&](V chroma) VEMI_INLINED {
      if constexpr (m.rounding != 0) chroma = hn::Add(chroma, hn::Set(d, m.rounding));
      const V sum = hn::Add(y, chroma);
      if constexpr (m.shift == 0) return sum;
      return hn::ShiftRight<m.shift>(sum);
    };
    return {{result(red), result(green), result(blue)}};
  }

  template <class D, class V>
  HWY_INLINE static V difference(D d, V chroma) {
    return hn::ShiftLeft<m.chromaShift>(hn::Sub(chroma, hn::Set(d, 128)));
  }
};

/// The same of exact sums, of 32 bits. A weight is low + 8 high, both of 16 bits, so that a product is that of a pair
/// of lanes.
template <const ExactMatrix& matrix>
struct ExactToRgb {
  template <class D, class V, class C>
  HWY_INLINE auto operator()(D d, V y, C u, C v) const {
    return bytesByWords(
        d, [](auto... words) VEMI_INLINED { return pixels(words...); }, y, u, v);
  }

 private:
  static constexpr const ExactMatrix& m = matrix;

  template <class V>
  HWY_INLINE static Vectors<V, 3> pixels(V y, V chromaU, V chromaV) {
    const hn::DFromV<V> d;
    const V u = hn::Sub(chromaU, hn::Set(d, 128)), v = hn::Sub(chromaV, hn::Set(d, 128));
    const auto lower = [&](V x) VEMI_INLINED { return hn::InterleaveLower(d, x, hn::ShiftLeft<3>(x)); };
    const auto upper = [&](V x) VEMI_INLINED { return hn::InterleaveUpper(d, x, hn::ShiftLeft<3>(x)); };
    const auto half0 = sums(lower(y), lower(u), lower(v)), half1 = sums(upper(y), upper(u), upper(v));
    return {{packHalves(d, half0.v[0], half1.v[0]), packHalves(d, half0.v[1], half1.v[1]),
             packHalves(d, half0.v[2], half1.v[2])}};
  }

  /// Of pairs of an element and eight times that.
  template <class V>
  HWY_INLINE static auto sums(V y, V u, V v) {
    const hn::DFromV<V> d;
    const hn::RepartitionToWide<decltype(d)> dSums;
    const auto times = [&](V pairs, int weight) VEMI_INLINED {
      const int high = weight / 8;
      return pairsOfProducts(
          pairs, detail::weightsOfPairs(d, static_cast<int16_t>(weight - 8 * high), static_cast<int16_t>(high)));
    };
    const auto luma = hn::Add(times(y, m.luma), hn::Set(dSums, m.offset));
    const auto green = hn::Add(times(u, m.greenU), times(v, m.greenV));
    const auto result = [&](auto chroma) VEMI_INLINED { return hn::ShiftRight<16>(hn::Add(luma, chroma)); };
    return Vectors<decltype(luma), 3>{{result(times(v, m.redV)), result(green), result(times(u, m.blueU))}};
  }
};

/// after(d, R, G, B) of what op gives.
template <class Op, class After>
struct Then {
  Op op;
  After after;

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const auto [r, g, b] = op(d, v...);
    return after(d, r, g, b);
  }
};

/// The other order of three channels.
struct Reversed {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V r, V g, V b) const {
    return std::tuple(b, g, r);
  }
};

struct WithZero {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    return std::tuple(r, g, b, hn::Zero(d));
  }
};

struct ReversedWithFourth {
  uint8_t value;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    return std::tuple(b, g, r, hn::Set(d, value));
  }
};

}  // namespace vemi::color
