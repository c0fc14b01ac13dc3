// The scaled sum of two integers in lanes: (a + b) / 2^scaleFactor, rounded to nearest with ties to even, saturated.
//
// No kernel needs lanes wider than the elements. A sum has one bit more than its terms, so it is held as its half
// (the processor's average, rounded down) and the bit that the halving loses; that bit only matters as a tie-breaker.
#pragma once

#include <limits>
#include <type_traits>

#include "core/lanes.h"
#include "core/numbers.h"

namespace vemi {

/// (a + b + 1) >> 1 without overflow. The processor has it for unsigned lanes; signed ones are moved there and back.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V averageRoundedUp(D d, V a, V b) {
  using T = hn::TFromD<D>;
  if constexpr (std::is_unsigned_v<T>) {
    return hn::AverageRound(a, b);
  } else {
    const hn::RebindToUnsigned<D> du;
    const V bias = hn::Set(d, std::numeric_limits<T>::min());
    const auto moved = [&](V v) HWY_ATTR { return hn::BitCast(du, hn::Xor(v, bias)); };
    return hn::Xor(hn::BitCast(d, hn::AverageRound(moved(a), moved(b))), bias);
  }
}

/// Scale factor 0.
struct Sum {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::SaturatedAdd(a, b);
  }
};

/// Scale factor 1: a tie that was rounded up to an odd value goes back.
struct HalfSum {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const V up = averageRoundedUp(d, a, b);
    return hn::Sub(up, hn::And(hn::And(hn::Xor(a, b), up), hn::Set(d, 1)));
  }
};

/// Scale factors of 2 and more, up to the bits of T plus 1.
template <class T>
struct ScaledDownSum {
  int scaleFactor;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const int shift = scaleFactor - 1;
    const V one = hn::Set(d, 1);
    const V lost = hn::And(hn::Xor(a, b), one);
    const V half = hn::Sub(averageRoundedUp(d, a, b), lost);
    const V quotient = shiftRight(half, shift);
    const V rest = hn::And(half, hn::Set(d, static_cast<T>((1u << shift) - 1)));
    // Above the tie, or on it with a lost bit or an odd quotient.
    const V pressed = hn::SaturatedAdd(rest, hn::Or(lost, hn::And(quotient, one)));
    const V tie = hn::Set(d, static_cast<T>(1u << (shift - 1)));
    return hn::Sub(quotient, hn::VecFromMask(d, hn::Gt(pressed, tie)));
  }

 private:
  /// A count of the whole width leaves no bit of an unsigned element, where the processor's shift is not defined.
  template <class V>
  HWY_INLINE static V shiftRight(V v, int count) {
    constexpr int bits = 8 * sizeof(T);
    return count < bits ? hn::ShiftRightSame(v, count) : hn::Xor(v, v);
  }
};

/// Negative scale factors. A sum that saturates before the shift saturates after it.
template <class T>
struct ScaledUpSum {
  SaturatingShiftLeft<T> shiftLeft;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return shiftLeft(d, hn::SaturatedAdd(a, b));
  }
};

/// The largest scale factor that leaves a sum a value other than zero.
template <class T>
inline constexpr int largestSumScale = std::is_unsigned_v<T> ? 8 * sizeof(T) + 1 : 8 * sizeof(T);

/// Calls f with the kernel of the scale factor, which is at most largestSumScale.
template <class T, class F>
auto withScaledSum(int scaleFactor, const F& f) {
  if (scaleFactor == 0) return f(Sum());
  if (scaleFactor == 1) return f(HalfSum());
  if (scaleFactor > 1) return f(ScaledDownSum<T>{scaleFactor});
  return f(ScaledUpSum<T>{SaturatingShiftLeft<T>(scaleFactor < -32 ? 32 : -scaleFactor)});
}

}  // namespace vemi
