// Scaled sums and differences of two integers in lanes: (a + b) / 2^scaleFactor and (a - b) / 2^scaleFactor, rounded to
// nearest with ties to even, saturated. An unsigned difference is clamped to zero before it is scaled.
//
// No kernel needs lanes wider than the elements. A sum has one bit more than its terms, so it is held as its half,
// rounded down, and the bit that the halving loses; that bit only matters as a tie-breaker.
#pragma once

#include <limits>
#include <type_traits>

#include "arith/scaled_up.h"
#include "core/lanes.h"
#include "core/numbers.h"

namespace vemi::arith {

// ---- What the processor has for lanes of 8 and 16 bits, for those of 32 as well -----------------------------------

/// (a + b + 1) >> 1 without overflow. The processor has it for unsigned lanes; signed ones are moved there and back.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V averageRoundedUp(D d, V a, V b) {
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) > 2) {
    return hn::Sub(hn::Or(a, b), hn::ShiftRight<1>(hn::Xor(a, b)));
  } else if constexpr (std::is_unsigned_v<T>) {
    return hn::AverageRound(a, b);
  } else {
    const hn::RebindToUnsigned<D> du;
    const V bias = hn::Set(d, std::numeric_limits<T>::min());
    const auto moved = [&](V v) HWY_ATTR { return hn::BitCast(du, hn::Xor(v, bias)); };
    return hn::Xor(hn::BitCast(d, hn::AverageRound(moved(a), moved(b))), bias);
  }
}

/// In 32 bits: where the sign is wrong, which `overflow` says by its own, the limit on a's side of zero.
template <class D, class V>
HWY_INLINE V limitOverflow(D d, V result, V overflow, V a) {
  const V limit = hn::Xor(hn::BroadcastSignBit(a), hn::Set(d, std::numeric_limits<hn::TFromD<D>>::max()));
  return hn::IfVecThenElse(hn::BroadcastSignBit(overflow), limit, result);
}

template <class D, class V>
HWY_INLINE V saturatedAdd(D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) < 4) {
    return hn::SaturatedAdd(a, b);
  } else {
    const V sum = hn::Add(a, b);
    return limitOverflow(d, sum, hn::AndNot(hn::Xor(a, b), hn::Xor(a, sum)), a);
  }
}

template <class D, class V>
HWY_INLINE V saturatedSub(D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) < 4) {
    return hn::SaturatedSub(a, b);
  } else {
    const V difference = hn::Sub(a, b);
    return limitOverflow(d, difference, hn::And(hn::Xor(a, b), hn::Xor(a, difference)), a);
  }
}

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
    // Above the tie, or on it with a lost bit or an odd quotient.
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
