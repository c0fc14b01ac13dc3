// Floats and doubles to integers, in one room. "nearest" has ties to even. A mode of "nearest" is the caller's
// business: roundingToNearest and roundingAs of float_control.h set it; other functions come to the same integers in
// any mode. An integer has no sign of zero; "unsigned" stands for either sign where a number stays a float.
//
//   Function                    From     To        Rounds                    Mode     NaN      Beyond its range
//   truncated (processor.h)     floats   32s       towards zero              any      lowest   lowest
//   rounded (processor.h)       floats   32s       by the mode               -        lowest   lowest
//   truncatedSaturated          floats   32s       towards zero              any      never    limited
//   truncatedDoubles            doubles  32s       towards zero              any      never    limited
//   nearestOf<T>                floats   T         nearest                   nearest  lowest   limited
//   nearestOf<T>                doubles  T         nearest                   nearest  lowest   limited
//   halvesAwayOf<T>             floats   T         nearest, ties away from 0 nearest  0        limited
//   nearestIntegers, -Pairs     doubles  32s       nearest                   nearest  never    never
//   nearestBelowSum             either   32s       sum - 1/2 to nearest      nearest  never    never
//   wholeBits                   floats   32s       no fractions              any      never    never
//   roundedFloats               floats   any type  by the mode               -        lowest   lowest
//   truncatedTo<T>              double   T         towards zero              any      lowest   limited
//   nearestTo<T>                float(s) T         nearest                   any      lowest   limited
//   roundTiesEven               scalars  itself    nearest, zeros unsigned   any      NaN      itself
//   roundedTo64                 double   64s       by the mode               -        lowest   lowest
//
// Lanes "to T" are lanes of 32 bits whose value, once packed to T with saturation, is the result.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/lane_width.h"
#include "core/processor.h"

namespace vemi {

// ---- Lanes of floats ----------------------------------------------------------------------------------------------

template <class DI, class V>
HWY_INLINE hn::Vec<DI> truncatedSaturated(DI di, V v) {
  return hn::ConvertTo(di, v);
}

namespace detail {

/// What is too low for T becomes the lowest integer, which is packed to the lowest of T. So does a NaN: of an unordered
/// pair the lesser is the second.
template <class T, class V>
HWY_INLINE V limitedAbove(V v) {
  static_assert(sizeof(T) < 4, "the highest value of T has no float");
  return lesser(hn::Set(hn::DFromV<V>(), static_cast<hn::TFromV<V>>(std::numeric_limits<T>::max())), v);
}

}  // namespace detail

template <class T, class DI, class V>
HWY_INLINE hn::Vec<DI> nearestOf(DI di, V v) {
  if constexpr (sizeof(T) < 4) {
    return rounded(di, detail::limitedAbove<T>(v));
  } else {
    const auto isAbove =
        hn::Ge(v, hn::Set(hn::DFromV<V>(), 0x1p31f));  // the lowest and the highest have no bit in common
    return hn::Xor(rounded(di, v), hn::VecFromMask(di, hn::RebindMask(di, isAbove)));
  }
}

/// Half of one is added in single precision.
template <class T, class DI, class V>
HWY_INLINE hn::Vec<DI> halvesAwayOf(DI di, V v) {
  const hn::DFromV<V> d;
  const auto isNumber = hn::Eq(v, v);
  v = hn::Add(v, std::is_signed_v<T> ? hn::CopySign(hn::Set(d, 0.5f), v) : hn::Set(d, 0.5f));
  if constexpr (sizeof(T) == 4) {
    return truncatedSaturated(di, hn::IfThenElseZero(isNumber, v));
  } else {
    const V limited = detail::limitedAbove<T>(v);
    return truncated(di, std::is_signed_v<T> ? hn::IfThenElseZero(isNumber, limited) : limited);
  }
}

/// From here on, floats are whole numbers, and their bits count them: whole - (wholeFrom + offset).
inline constexpr float wholeFrom = 1 << 23;

template <class DF, class V>
HWY_INLINE auto wholeBits(DF df, V whole, float offset = 0) {
  const hn::RebindToSigned<DF> di;
  return hn::Sub(hn::BitCast(di, whole), hn::BitCast(di, hn::Set(df, wholeFrom + offset)));
}

/// f(df, v) of as many floats v as one vector of D takes, rounded and saturated to D.
template <class D, class F>
HWY_INLINE hn::Vec<D> roundedFloats(D d, const float* in, const F& f) {
  const Lanes<float> df;
  const Lanes<int32_t> di;
  return packEach<float>(d,
                         [&](auto k) HWY_ATTR { return rounded(di, f(df, hn::LoadU(df, in + k * laneCount<float>))); });
}

// ---- Lanes of doubles ---------------------------------------------------------------------------------------------

template <class DI, class V>
HWY_INLINE hn::Vec<DI> truncatedDoubles(DI di, V v) {
  return hn::DemoteTo(di, v);
}

/// Of a sum x + 1/2 of floats or doubles from 0 on that was rounded, half less to nearest: the sum truncated, and an
/// odd result lowered where the sum is whole.
template <class DI, class V>
HWY_INLINE hn::Vec<DI> nearestBelowSum(DI di, V sum) {
  const hn::DFromV<V> d;
  const V below = hn::Sub(sum, hn::Set(d, hn::TFromV<V>(0.5)));
  if constexpr (sizeof(hn::TFromV<V>) == 4) return rounded(di, below);
  if constexpr (sizeof(hn::TFromV<V>) == 8) return truncatedDoubles(di, hn::Round(below));
}

/// A sum with it is rounded to an integer, which then stands in the lowest bits: at this size there are no fractions.
template <class T>
inline constexpr T roundingSummand = T(0);
template <>
inline constexpr float roundingSummand<float> = 0x1.8p23f;
template <>
inline constexpr double roundingSummand<double> = 0x1.8p52;

namespace detail {

/// Its lower half is the nearest integer.
template <class V>
HWY_INLINE auto integerInLowerHalf(V v) {
  const hn::DFromV<V> d;
  return hn::BitCast(hn::RebindToUnsigned<decltype(d)>(), hn::Add(v, hn::Set(d, roundingSummand<double>)));
}

}  // namespace detail

/// Of two vectors, one behind the other.
template <class D, class V>
HWY_INLINE hn::Vec<D> nearestIntegers(D d, V lower, V upper) {
  return hn::ConcatEven(d, hn::BitCast(d, detail::integerInLowerHalf(upper)),
                        hn::BitCast(d, detail::integerInLowerHalf(lower)));
}

/// Of two vectors, by turns.
template <class D, class V>
HWY_INLINE hn::Vec<D> nearestIntegerPairs(D d, V even, V odd) {
  const auto lower = detail::integerInLowerHalf(even), upper = detail::integerInLowerHalf(odd);
  const auto lowerHalf = hn::Set(hn::DFromV<decltype(lower)>(), 0xffffffff);
  return hn::BitCast(d, hn::Or(hn::And(lower, lowerHalf), hn::ShiftLeft<32>(upper)));
}

/// Of two vectors, one behind the other.
template <class T, class DI, class V>
HWY_INLINE hn::Vec<DI> nearestOf(DI di, V lower, V upper) {
  const hn::DFromV<V> d;
  const auto limited = [&](V v) HWY_ATTR {
    const V notBelow = greater(v, hn::Set(d, std::numeric_limits<T>::min()));
    return lesser(notBelow, hn::Set(d, std::numeric_limits<T>::max()));
  };
  return nearestIntegers(di, limited(lower), limited(upper));
}

// ---- Scalars ------------------------------------------------------------------------------------------------------

template <class T>
T truncatedTo(double value) {
  constexpr double lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
  return static_cast<T>(value > lowest ? std::min(value, highest) : lowest);
}

/// The remainder decides, not the mode.
template <class Float>
Float roundTiesEven(Float value) {
  const Float down = std::floor(value), rest = value - down, half = Float(0.5);
  const bool up = rest > half || (rest == half && std::floor(down * half) != down * half);
  return up ? down + 1 : down;
}

template <class T, class Float>
T nearestTo(Float value) {
  return truncatedTo<T>(roundTiesEven(value));
}

inline int64_t roundedTo64(double value) {
  return value >= -0x1p63 && value < 0x1p63 ? std::llrint(value) : std::numeric_limits<int64_t>::min();
}

}  // namespace vemi
