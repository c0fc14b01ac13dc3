// The exponential of single-precision lanes.
#pragma once

#include "core/lanes.h"
#include "signal/float_parts.h"
#include "signal/polynomial.h"

namespace vemi::signal {

/// Within one unit in the last place of the correctly rounded value, where the result is denormal too; the same bits on
/// all levels. Results beyond the range are infinity and zero, a NaN stays (and becomes quiet).
///
/// With x = k ln 2 + r and |r| at most half of ln 2, e^x = 2^k (1 + r + r^2 Q(r)).
struct Exp {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    const auto isRegular = hn::Lt(hn::Abs(x), hn::Set(d, regularLimit));
    if (HWY_LIKELY(hn::AllTrue(d, isRegular))) {
      const auto [k, fraction] = split(d, x);
      return hn::BitCast(d, hn::Add(hn::BitCast(di, fraction), hn::ShiftLeft<23>(k)));
    }
    // Beyond the limits nothing changes any more. A NaN is not clamped; its lanes are replaced in the end.
    const V notAbove = hn::IfThenElse(hn::Gt(x, hn::Set(d, highest)), hn::Set(d, highest), x);
    const V clamped = hn::IfThenElse(hn::Lt(x, hn::Set(d, lowest)), hn::Set(d, lowest), notAbove);
    const auto [k, fraction] = split(d, clamped);
    // 2^k may lie outside of the normal range: half of k first, which is exact, so that there is one rounding.
    const auto half = hn::ShiftRight<1>(k);
    const V scaled = hn::Mul(hn::Mul(fraction, powerOfTwo(d, half)), powerOfTwo(d, hn::Sub(k, half)));
    return hn::IfThenElse(hn::Eq(x, x), scaled, hn::Add(x, x));
  }

 private:
  static constexpr float regularLimit = 87.0f;  // results and 2^k are normal numbers below it
  static constexpr float highest = 89.0f, lowest = -104.0f;
  static constexpr float log2OfE = 0x1.715476p+0f;
  using Ln2 = signal::Ln2<float>;
  // The minimax polynomial of (e^r - 1 - r) / r^2.
  static constexpr float q[] = {0x1.fffffcp-2f, 0x1.555492p-3f, 0x1.5558b0p-5f, 0x1.12398ep-7f, 0x1.6a4dd6p-10f};

  template <class VI, class V>
  struct Split {
    VI k;
    V fraction;
  };

  /// e^x = 2^k fraction, with the fraction from the root of 1/2 to the root of 2.
  template <class D, class V>
  HWY_INLINE static auto split(D d, V x) {
    const hn::RebindToSigned<D> di;
    const V integers = hn::Set(d, roundingSummand<float>);
    const V sum = hn::Add(hn::Mul(x, hn::Set(d, log2OfE)), integers);
    const V whole = hn::Sub(sum, integers);
    const auto k = hn::Sub(hn::BitCast(di, sum), hn::BitCast(di, integers));
    const V r = hn::Sub(hn::Sub(x, hn::Mul(whole, hn::Set(d, Ln2::upper))), hn::Mul(whole, hn::Set(d, Ln2::lower)));
    const V tail = hn::Mul(hn::Mul(r, r), polynomial(d, r, q));
    return Split<decltype(k), V>{k, hn::Add(hn::Set(d, 1.0f), hn::Add(r, tail))};
  }

  template <class D, class VI>
  HWY_INLINE static hn::Vec<D> powerOfTwo(D d, VI k) {
    const hn::RebindToSigned<D> di;
    return hn::BitCast(d, hn::ShiftLeft<23>(hn::Add(k, hn::Set(di, 127))));
  }
};

}  // namespace vemi::signal
