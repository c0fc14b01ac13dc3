// Scaled sums and differences of two integers in lanes: (a + b) / 2^scaleFactor and (a - b) / 2^scaleFactor, rounded to
// nearest with ties to even, saturated. An unsigned difference is clamped to zero before it is scaled.
//
// No kernel needs lanes wider than the elements. A sum has one bit more than its terms, so it is held as its half,
// rounded down, and the bit that the halving loses; that bit only matters as a tie-breaker.
#pragma once

#include <type_traits>

#include "arith/scaled_up.h"
#include "core/lanes.h"
#include "core/numbers.h"

namespace vemi::arith {

// ---- The terms: saturated for scale factor 0, and halved for those above -----------------------------------------

/// A value as value >> 1 and the bit that this loses.
template <class V>
struct Halved {
  V half, lost;
};

/// The lost bit of a sum and of a difference alike.
template <class D, class V>
HWY_INLINE V lostByHalving(D d, V a, V b) {
  return hn::And(hn::Xor(a, b), hn::Set(d, 1));
}

struct SumTerms {
  /// The largest scale factor that leaves a value other than zero.
  template <class T>
  static constexpr int largestScale = std::is_unsigned_v<T> ? 8 * sizeof(T) + 1 : 8 * sizeof(T);

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return saturatedAdd(d, a, b);
  }

  template <class D, class V>
  HWY_INLINE static Halved<V> halved(D d, V a, V b) {
    const V lost = lostByHalving(d, a, b);
    return {hn::Sub(averageRoundedUp(d, a, b), lost), lost};
  }
};

struct DifferenceTerms {
  template <class T>
  static constexpr int largestScale = 8 * sizeof(T);

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return saturatedSub(d, a, b);
  }

  /// a - b = a + (-1 - b) + 1, so the half, rounded down, is an average that is rounded up.
  template <class D, class V>
  HWY_INLINE static Halved<V> halved(D d, V a, V b) {
    if constexpr (std::is_unsigned_v<hn::TFromD<D>>) {
      const V whole = hn::SaturatedSub(a, b);
      return {hn::ShiftRight<1>(whole), hn::And(whole, hn::Set(d, 1))};
    } else {
      return {averageRoundedUp(d, a, hn::Not(b)), lostByHalving(d, a, b)};
    }
  }
};

// ---- The kernels --------------------------------------------------------------------------------------------------

/// Scale factor 1: a tie goes up from an odd half. The largest difference leaves its lane by that.
template <class Terms>
struct HalfOf {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const Halved<V> terms = Terms::halved(d, a, b);
    return saturatedAdd(d, terms.half, hn::And(terms.half, terms.lost));
  }
};

/// Scale factors of 2 and more, up to the bits of the lane plus 1.
template <class Terms>
struct ScaledDown {
  int scaleFactor;

  template <class D, class V, class T = hn::TFromD<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const auto [half, lost] = Terms::halved(d, a, b);
    const int shift = scaleFactor - 1;
    const V one = hn::Set(d, 1);
    const V quotient = shiftRight(half, shift);
    const V rest = hn::And(half, hn::Set(d, static_cast<T>((1u << shift) - 1)));
    // The rest beyond the quotient decides: above one half of a unit it rounds up; at one half it does where the lost
    // bit makes it more, or, to even, where the quotient is odd. Either adds one to the rest, which then exceeds the
    // tie.
    const V withTieBreak = saturatedAdd(d, rest, hn::Or(lost, hn::And(quotient, one)));
    const V tie = hn::Set(d, static_cast<T>(1u << (shift - 1)));
    return hn::Sub(quotient, hn::VecFromMask(d, hn::Gt(withTieBreak, tie)));
  }

 private:
  /// A count of the whole width leaves no bit of an unsigned element, where the processor's shift is not defined.
  template <class V>
  HWY_INLINE static V shiftRight(V v, int count) {
    constexpr int bits = 8 * sizeof(hn::TFromV<V>);
    return count < bits ? hn::ShiftRightSame(v, count) : hn::Xor(v, v);
  }
};

/// Calls f with the kernel of the scale factor, which is at most Terms::largestScale.
template <class Terms, class T, class F>
auto dispatchScaledTerms(int scaleFactor, const F& f) {
  if (scaleFactor == 0) return f(Terms());
  if (scaleFactor == 1) return f(HalfOf<Terms>());
  if (scaleFactor > 1) return f(ScaledDown<Terms>{scaleFactor});
  return f(ScaledUp<T, Terms>(scaleFactor));
}

}  // namespace vemi::arith
