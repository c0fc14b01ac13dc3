// What functions of floats are taken apart with: integers and rests, powers of two and mantissas, sums of two doubles.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "core/numbers.h"
#include "core/rounding.h"

namespace vemi::signal {

/// ln 2 in two parts; the first has so few bits that its product with an exponent is exact.
template <class T>
struct Ln2;
template <>
struct Ln2<float> {
  static constexpr float upper = 0x1.63p-1f, lower = -0x1.bd0106p-13f;
};
template <>
struct Ln2<double> {
  static constexpr double upper = 0x1.62e42fefp-1, lower = 0x1.473de6af278edp-34;
};

template <class V>
struct SplitAtRoot {
  V exponent, mantissa;
};

/// Positive normal doubles as 2^exponent mantissa, with the mantissa from the root of 1/2 to the root of 2.
template <class D, class V>
HWY_INLINE SplitAtRoot<V> splitAtRoot(D d, V x) {
  constexpr uint64_t rootOfHalf = 0x3fe6a09e667f3bcd, exponentStep = uint64_t{1} << 52;
  const hn::RebindToUnsigned<D> du;
  // The exponent above the fraction, both counted from the root. Biased, it is shifted without a sign, and becomes a
  // number as the lowest bits of 2^52.
  const auto aboveRoot = hn::Sub(hn::BitCast(du, x), hn::Set(du, rootOfHalf));
  const auto biased = hn::ShiftRight<52>(hn::Add(aboveRoot, hn::Set(du, 1023 * exponentStep)));
  const V number = hn::BitCast(d, hn::Or(biased, hn::BitCast(du, hn::Set(d, 0x1p52))));
  const auto fraction = hn::And(aboveRoot, hn::Set(du, exponentStep - 1));
  return {hn::Sub(number, hn::Set(d, 0x1p52 + 1023)), hn::BitCast(d, hn::Add(fraction, hn::Set(du, rootOfHalf)))};
}

/// A number as the sum of two doubles, of which the second is what the first lost by rounding.
template <class V>
struct TwoParts {
  V upper, lower;
};

/// The exact sum, where a is not smaller than b by magnitude.
template <class V>
HWY_INLINE TwoParts<V> exactSum(V a, V b) {
  const V sum = hn::Add(a, b);
  return {sum, hn::Sub(b, hn::Sub(sum, a))};
}

/// The exact product: the processors that cannot multiply and add with one rounding come to the same bits by products
/// of halves of 26 bits.
template <class D, class V>
HWY_INLINE TwoParts<V> exactProduct([[maybe_unused]] D d, V a, V b) {
  const V product = hn::Mul(a, b);
  if constexpr (multipliesAndAddsAtOnce) return {product, hn::MulSub(a, b, product)};
  const auto halved = [&](V v) HWY_ATTR {
    const V shifted = hn::Mul(v, hn::Set(d, 0x1p27 + 1));
    const V upper = hn::Sub(shifted, hn::Sub(shifted, v));
    return TwoParts<V>{upper, hn::Sub(v, upper)};
  };
  const auto [aUpper, aLower] = halved(a);
  const auto [bUpper, bLower] = halved(b);
  V rest = hn::Sub(hn::Mul(aUpper, bUpper), product);
  rest = hn::Add(rest, hn::Mul(aUpper, bLower));
  rest = hn::Add(rest, hn::Mul(aLower, bUpper));
  return {product, hn::Add(rest, hn::Mul(aLower, bLower))};
}

}  // namespace vemi::signal
