// Saturation and scaling of integers, as scalars and as lanes, and the approximate reciprocal.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/processor.h"

namespace vemi {

// ---- Saturation ---------------------------------------------------------------------------------------------------

/// The nearest value that T holds. In lanes this is narrow.
template <class T, class Wide>
constexpr T saturate(Wide value) {
  static_assert(std::is_integral_v<Wide> && sizeof(Wide) > sizeof(T));
  static_assert(std::is_signed_v<Wide> || std::is_unsigned_v<T>, "the lowest value of T must fit");
  constexpr Wide low = std::numeric_limits<T>::min();
  constexpr Wide high = std::numeric_limits<T>::max();
  return static_cast<T>(value < low ? low : value > high ? high : value);
}

// ---- Sums of any integers: what the processor has for lanes of 8 and 16 bits, for those of 32 as well ------------

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

/// a[0] b[0] + a[1] b[1], a[2] b[2] + a[3] b[3], ... of signed 16-bit lanes.
template <class V>
HWY_INLINE auto pairsOfProducts(V a, V b) {
  const hn::RepartitionToWide<hn::DFromV<V>> d;
  auto rest = hn::Zero(d);
  const auto sums = hn::ReorderWidenMulAccumulate(d, a, b, hn::Zero(d), rest);
  return hn::RearrangeToOddPlusEven(sums, rest);
}

// ---- Scaling by a power of two ------------------------------------------------------------------------------------

/// 2^exponent, where that is a normal number.
template <class Float>
constexpr Float powerOfTwo(int exponent) {
  using Bits = std::conditional_t<sizeof(Float) == 4, std::uint32_t, std::uint64_t>;
  using Limits = std::numeric_limits<Float>;
  return std::bit_cast<Float>(static_cast<Bits>(exponent + Limits::max_exponent - 1) << (Limits::digits - 1));
}

/// value / 2^shift to nearest, ties to even; 0 < shift < bits of the type.
template <class T>
constexpr T roundShift(T value, int shift) {
  const int64_t wide = value;  // elements of 64 bits keep the room for the sum themselves
  return static_cast<T>((wide + (int64_t{1} << (shift - 1)) - 1 + ((wide >> shift) & 1)) >> shift);
}

/// In lanes the sum must not leave the lane: |value| + 2^(shift - 1) has to fit.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V roundShift(D d, V value, int shift) {
  const V one = hn::Set(d, 1);
  const V bias = hn::Sub(hn::ShiftLeftSame(one, shift - 1), one);
  const V odd = hn::And(hn::ShiftRightSame(value, shift), one);
  return hn::ShiftRightSame(hn::Add(value, hn::Add(bias, odd)), shift);
}

/// The same for any value of an unsigned lane, 2 <= shift <= bits: the processor's average adds without overflow.
template <class T>
struct RoundingShift {
  static_assert(std::is_unsigned_v<T>);
  static constexpr int bits = 8 * sizeof(T);

  int shift, shiftToOdd;
  T bias;

  explicit RoundingShift(int count)
      : shift(count),
        shiftToOdd(count < bits ? count : 0),  // at the whole width the bit decides nothing
        bias(static_cast<T>((1u << (count - 1)) - 2)) {}

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V value) const {
    const V odd = hn::And(hn::ShiftRightSame(value, shiftToOdd), hn::Set(d, 1));
    return hn::ShiftRightSame(hn::AverageRound(value, hn::Add(odd, hn::Set(d, bias))), shift - 1);
  }
};

/// value * 2^shift, saturated; shift >= 0. The shift's limits are prepared once in a call.
template <class T>
struct SaturatingShiftLeft {
  static constexpr int bits = 8 * sizeof(T);
  static constexpr T typeLowest = std::numeric_limits<T>::min();
  static constexpr T typeHighest = std::numeric_limits<T>::max();

  int shift;
  T lowest, highest;  // what the shift leaves within the type

  explicit SaturatingShiftLeft(int count)
      : shift(count < bits ? count : bits - 1),
        lowest(static_cast<T>(count < bits ? typeLowest >> count : 0)),
        highest(static_cast<T>(count < bits ? typeHighest >> count : 0)) {}

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V value) const {
    const V limitedAbove =
        hn::IfThenElse(hn::Gt(value, hn::Set(d, highest)), hn::Set(d, typeHighest), hn::ShiftLeftSame(value, shift));
    if constexpr (std::is_unsigned_v<T>) return limitedAbove;
    return hn::IfThenElse(hn::Lt(value, hn::Set(d, lowest)), hn::Set(d, typeLowest), limitedAbove);
  }
};

// ---- The approximate reciprocal -----------------------------------------------------------------------------------
//
// Processors differ in theirs, so it is computed by its classic definition. For a normal x = (1 + f) 2^e let i be the
// top 11 bits of f and M = 4097 + 2 i, the middle of the interval in units of 2^-12; the result is q 2^-13 2^-e with
// q = floor((2^25 + (M >> 1)) / M). Zeros and denormals give an infinity and infinities a zero of x's sign, a result
// below the normal range is a zero of x's sign, a NaN stays a quiet NaN.

inline float approximateReciprocal(float x) {
  const uint32_t bits = std::bit_cast<uint32_t>(x);
  const uint32_t sign = bits & 0x80000000u;
  const int exponent = static_cast<int>(bits >> 23 & 0xff);
  const uint32_t fraction = bits & 0x7fffffu;
  if (exponent == 0) return std::bit_cast<float>(sign | 0x7f800000u);
  if (exponent == 0xff) return std::bit_cast<float>(fraction != 0 ? bits | 0x400000u : sign);
  const uint32_t m = 4097 + 2 * (fraction >> 12);
  const uint32_t q = ((uint32_t{1} << 25) + (m >> 1)) / m;
  // 4096 < q < 8192: q 2^-13 lies in (0.5, 1), so its exponent is one below that of 2^-e.
  const int resultExponent = 127 - 1 - (exponent - 127);
  if (resultExponent < 1) return std::bit_cast<float>(sign);
  return std::bit_cast<float>(sign | static_cast<uint32_t>(resultExponent) << 23 | (q - 4096) << 11);
}

/// floor(n / m) in 32-bit lanes, 0 < n < 2^26 and 4096 < m: a single-precision quotient is off by one at most, whatever
/// the rounding mode, and the remainder tells.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V divideFloor(D di, V n, V m) {
  const hn::RebindToFloat<D> df;
  const V q = truncated(di, hn::Div(hn::ConvertTo(df, n), hn::ConvertTo(df, m)));
  const V rest = hn::Sub(n, hn::Mul(q, m));
  const V tooLarge = hn::VecFromMask(di, hn::Lt(rest, hn::Zero(di)));
  const V tooSmall = hn::VecFromMask(di, hn::Gt(rest, hn::Sub(m, hn::Set(di, 1))));
  return hn::Sub(hn::Add(q, tooLarge), tooSmall);
}

template <class D>
HWY_INLINE hn::Vec<D> approximateReciprocal(D d, hn::Vec<D> x) {
  const hn::RebindToUnsigned<D> du;
  const hn::RebindToSigned<D> di;
  const auto bits = hn::BitCast(du, x);
  const auto sign = hn::And(bits, hn::Set(du, 0x80000000u));
  const auto exponent = hn::And(hn::ShiftRight<23>(bits), hn::Set(du, 0xff));
  const auto fraction = hn::And(bits, hn::Set(du, 0x7fffffu));
  const auto m = hn::Add(hn::Set(du, 4097), hn::ShiftLeft<1>(hn::ShiftRight<12>(fraction)));
  const auto numerator = hn::Add(hn::Set(du, 1u << 25), hn::ShiftRight<1>(m));
  const auto q = hn::BitCast(du, divideFloor(di, hn::BitCast(di, numerator), hn::BitCast(di, m)));
  const auto resultExponent = hn::Sub(hn::Set(du, 253), exponent);
  auto result = hn::Or(hn::ShiftLeft<23>(resultExponent), hn::ShiftLeft<11>(hn::Sub(q, hn::Set(du, 4096))));
  const auto infinity = hn::Set(du, 0x7f800000u);
  result = hn::IfThenElse(hn::Gt(exponent, hn::Set(du, 252)), hn::Zero(du), result);
  result = hn::IfThenElse(hn::Eq(exponent, hn::Zero(du)), infinity, result);
  result = hn::Or(result, sign);
  const auto nan = hn::And(hn::Eq(exponent, hn::Set(du, 0xff)), hn::Ne(fraction, hn::Zero(du)));
  result = hn::IfThenElse(nan, hn::Or(bits, hn::Set(du, 0x400000u)), result);
  return hn::BitCast(d, result);
}

}  // namespace vemi
