// What reductions are made of, element by element: in lanes, and of floats in double precision as well.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/lanes.h"

namespace vemi::measure {

/// Magnitudes of integers are unsigned.
template <class T>
using MagnitudeOf =
    typename std::conditional_t<std::is_integral_v<T>, std::make_unsigned<T>, std::type_identity<T>>::type;

/// |x|, which fits the width of its term.
struct Magnitude {
  template <class D, class V, class T = hn::TFromD<D>>
  HWY_INLINE auto operator()(D, V x) const {
    if constexpr (std::is_unsigned_v<T>) return x;
    if constexpr (std::is_floating_point_v<T>) return hn::Abs(x);
    if constexpr (std::is_integral_v<T> && std::is_signed_v<T>)
      return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Abs(x));
  }
  double operator()(double x) const { return std::fabs(x); }
};

/// |a - b|, which fits the width of its terms.
struct AbsoluteDifference {
  template <class D, class V, class T = hn::TFromD<D>>
  HWY_INLINE auto operator()(D, V a, V b) const {
    if constexpr (std::is_unsigned_v<T>) return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    if constexpr (std::is_floating_point_v<T>) return hn::Abs(hn::Sub(a, b));
    if constexpr (std::is_integral_v<T> && std::is_signed_v<T>) {
      return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Sub(hn::Max(a, b), hn::Min(a, b)));
    }
  }
  double operator()(double a, double b) const { return std::fabs(a - b); }
};

/// The square of a float term.
template <class Term>
struct Squared {
  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const auto term = Term()(d, v...);
    return hn::Mul(term, term);
  }
  template <class... Double>
  double square(Double... x) const {
    const double term = Term()(x...);
    return term * term;
  }
  double operator()(double x) const { return square(x); }
  double operator()(double a, double b) const { return square(a, b); }
};

}  // namespace vemi::measure
