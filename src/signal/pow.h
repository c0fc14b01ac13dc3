// Powers with a constant exponent in double-precision lanes.
#pragma once

#include "core/lanes.h"
#include "signal/float_parts.h"
#include "signal/polynomial.h"

namespace vemi::signal {

/// x^exponent of a positive normal x, where the result is normal too; lanes of other numbers hold no particular value.
/// Less than 0.8 units in the last place from the exact power; the same bits on all levels.
///
/// The logarithm to base 2 is carried in two parts: with x = 2^e m, m from the root of 1/2 to the root of 2, and
/// s = (m - 1) / (m + 1), it is e + 2 artanh(s) / ln 2. With k the integer next to its product with the exponent and r
/// the rest, the power is 2^k e^(r ln 2).
struct Power {
  double exponent;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const auto log2 = logarithm(d, x);
    const V factor = hn::Set(d, exponent);
    const auto product = exactProduct(d, log2.upper, factor);
    return powerOfTwo(d, product.upper, hn::Add(product.lower, hn::Mul(log2.lower, factor)));
  }

 private:
  template <class V>
  using TwoParts = signal::TwoParts<V>;

  static constexpr double twoLog2OfE = 0x1.71547652b82fep+1, twoLog2OfERest = 0x1.777d0ffda0d24p-55;
  static constexpr double ln2 = 0x1.62e42fefa39efp-1, ln2Rest = 0x1.abc9e3b39803fp-56;
  /// The minimax polynomial of (2 artanh(s) - 2 s) / (s^3 ln 2) in s^2.
  static constexpr double artanh[] = {0x1.ec709dc3a03fdp-1, 0x1.2776c50ef9c70p-1, 0x1.a61762a786463p-2,
                                      0x1.484b1401c27b6p-2, 0x1.0c9a6ec639369p-2, 0x1.c69b9fcddcde3p-3,
                                      0x1.880b5e1dd8ed0p-3, 0x1.82a9a155a1263p-3};
  /// The minimax polynomial of (e^u - 1 - u) / u^2.
  static constexpr double exponential[] = {0x1.0000000000000p-1,  0x1.5555555555557p-3,  0x1.5555555555556p-5,
                                           0x1.11111111100dcp-7,  0x1.6c16c16c162d4p-10, 0x1.a01a01abe7fe1p-13,
                                           0x1.a01a01a6d889cp-16, 0x1.71de0231960ebp-19, 0x1.27e4db646b17ep-22,
                                           0x1.af4de97ca4194p-26, 0x1.1f730349868cep-29};

  template <class D, class V>
  HWY_INLINE static TwoParts<V> logarithm(D d, V x) {
    const V one = hn::Set(d, 1.0);
    const auto [e, m] = splitAtRoot(d, x);
    const V f = hn::Sub(m, one);
    const V divisor = hn::Add(m, one);
    const V divisorRest = hn::Sub(m, hn::Sub(divisor, one));
    const V inverse = hn::Div(one, divisor);
    const V s = hn::Mul(f, inverse);
    const auto back = exactProduct(d, s, divisor);
    const V rest = hn::Sub(hn::Sub(hn::Sub(f, back.upper), back.lower), hn::Mul(s, divisorRest));
    const V sRest = hn::Mul(rest, inverse);

    const V square = hn::Mul(s, s);
    const V series = hn::Mul(hn::Mul(square, s), polynomial(d, square, artanh));
    const auto first = exactProduct(d, s, hn::Set(d, twoLog2OfE));
    const V small =
        hn::Add(first.lower, hn::Add(hn::Mul(sRest, hn::Set(d, twoLog2OfE)), hn::Mul(s, hn::Set(d, twoLog2OfERest))));
    const auto sum = exactSum(e, first.upper);
    return {sum.upper, hn::Add(hn::Add(sum.lower, series), small)};
  }

  /// 2^(upper + lower).
  template <class D, class V>
  HWY_INLINE static V powerOfTwo(D d, V upper, V lower) {
    const hn::RebindToUnsigned<D> du;
    const V integers = hn::Set(d, roundingSummand<double>);
    const V sum = hn::Add(upper, integers);
    const auto k = hn::ShiftLeft<52>(hn::BitCast(du, sum));
    const auto r = exactSum(hn::Sub(upper, hn::Sub(sum, integers)), lower);

    const auto u = exactProduct(d, r.upper, hn::Set(d, ln2));
    const V uRest = hn::Add(u.lower, hn::Add(hn::Mul(r.upper, hn::Set(d, ln2Rest)), hn::Mul(r.lower, hn::Set(d, ln2))));
    const auto linear = exactSum(hn::Set(d, 1.0), u.upper);
    const V curved = hn::Mul(hn::Mul(u.upper, u.upper), polynomial(d, u.upper, exponential));
    const V power = hn::Add(linear.upper, hn::Add(linear.lower, hn::Add(curved, uRest)));
    return hn::BitCast(d, hn::Add(hn::BitCast(du, power), k));
  }
};

}  // namespace vemi::signal
