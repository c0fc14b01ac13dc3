// Polynomials in lanes.
#pragma once

#include <bit>

#include "core/lanes.h"

namespace vemi::signal {

namespace detail {

/// x, x^2, x^4, ...
template <class V, int count>
struct Powers {
  V ofTwo[count];
};

/// Terms `first` to first + count - 1, divided by x^first: a lower part of as many terms as the largest power of two
/// below `count`, and an upper part. The parts do not wait for each other.
template <int first, int count, class D, class V, class T, size_t terms, int powers>
HWY_INLINE V partOfPolynomial(D d, const Powers<V, powers>& x, const T (&coefficient)[terms]) {
  if constexpr (count == 1) {
    return hn::Set(d, coefficient[first]);
  } else {
    constexpr int power = std::bit_width(unsigned{count - 1}) - 1;
    constexpr int lower = 1 << power;
    const V upper = partOfPolynomial<first + lower, count - lower>(d, x, coefficient);
    return hn::Add(partOfPolynomial<first, lower>(d, x, coefficient), hn::Mul(upper, x.ofTwo[power]));
  }
}

}  // namespace detail

/// coefficient[0] + coefficient[1] x + coefficient[2] x^2 + ..., each product and sum rounded by itself, in one order.
template <class D, class V, class T, size_t terms>
HWY_INLINE V polynomial(D d, V x, const T (&coefficient)[terms]) {
  constexpr int powers = std::bit_width(terms - 1);
  detail::Powers<V, powers> p;
  p.ofTwo[0] = x;
  unrolled<powers - 1>([&](auto i) HWY_ATTR { p.ofTwo[i + 1] = hn::Mul(p.ofTwo[i], p.ofTwo[i]); });
  return detail::partOfPolynomial<0, int{terms}>(d, p, coefficient);
}

}  // namespace vemi::signal
