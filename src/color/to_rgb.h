// From luma and chroma to red, green and blue in 16-bit lanes, and what may follow: another order of the channels, a
// fourth one.
#pragma once

#include <cstdint>
#include <tuple>

#include "color/affine.h"
#include "color/matrices.h"
#include "color/shared_chroma.h"
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
    const auto high = [&](V v, int16_t weight) HWY_ATTR { return hn::MulHigh(v, hn::Set(d, weight)); };
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
    const auto result = [&](V chroma) HWY_ATTR {
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

struct WithFourth {
  uint8_t value;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    return std::tuple(r, g, b, hn::Set(d, value));
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
