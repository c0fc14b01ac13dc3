// processor.h for 64-bit ARM, whose vectors are one block of 128 bits.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/lanes.h"
#include "core/long_significand.h"

namespace vemi {

/// Signed lanes saturated to half their width.
template <class D, class V>
HWY_INLINE hn::Vec<D> packHalves(D d, V lower, V upper) {
  static_assert(hn::MaxLanes(D()) * sizeof(hn::TFromD<D>) == 16);
  const hn::Half<D> dHalf;
  return hn::Combine(d, hn::DemoteTo(dHalf, upper), hn::DemoteTo(dHalf, lower));
}

/// Towards zero. A NaN and a value beyond 32 bits are invalid and give the lowest integer, where the processor has zero
/// and the limits.
template <class D, class V>
HWY_INLINE hn::Vec<D> truncated(D di, V v) {
  const hn::DFromV<V> df;
  const auto isWithinOrBelow = hn::RebindMask(di, hn::Lt(v, hn::Set(df, 0x1p31f)));
  return hn::IfThenElse(isWithinOrBelow, hn::ConvertTo(di, v), hn::Set(di, std::numeric_limits<int32_t>::min()));
}

/// By the rounding mode that is set; invalid as above.
template <class D, class V>
HWY_INLINE hn::Vec<D> rounded(D di, V v) {
  return truncated(di, V{vrndiq_f32(v.raw)});
}

/// a < b ? a : b, which is b where one of them is a NaN or both are zeros. The processor's minimum is the number of a
/// number and a quiet NaN, and orders the zeros.
template <class V>
HWY_INLINE V lesser(V a, V b) {
  if constexpr (std::is_integral_v<hn::TFromV<V>>) return hn::Min(a, b);
  if constexpr (std::is_floating_point_v<hn::TFromV<V>>) return hn::IfThenElse(hn::Lt(a, b), a, b);
}

/// a > b ? a : b, which is b where one of them is a NaN or both are zeros.
template <class V>
HWY_INLINE V greater(V a, V b) {
  if constexpr (std::is_integral_v<hn::TFromV<V>>) return hn::Max(a, b);
  if constexpr (std::is_floating_point_v<hn::TFromV<V>>) return hn::IfThenElse(hn::Gt(a, b), a, b);
}

/// Numbers with a significand of 64 bits; long double has 113.
using ExtendedFloat = LongSignificand;

/// Values are those of the field in FPCR.
enum class Rounding : uint64_t {
  nearest = 0,  // ties to even
  towardZero = uint64_t{3} << 22,
};

/// The control words of lanes and scalars: rounding and the exceptions that end the program in FPCR, the flags of those
/// met in FPSR.
struct FloatControl {
  uint64_t control, flags;

  static FloatControl current() {
    FloatControl words;
    asm volatile("mrs %0, fpcr\n\tmrs %1, fpsr" : "=r"(words.control), "=r"(words.flags) : : "memory");
    return words;
  }
  void set() const { asm volatile("msr fpcr, %0\n\tmsr fpsr, %1" : : "r"(control), "r"(flags) : "memory"); }
  bool operator==(const FloatControl&) const = default;

  bool roundsToNearest() const { return (control & roundingField) == 0; }
  bool metInvalid() const { return (flags & invalidFlag) != 0; }

  /// Another rounding, under which no exception ends the program, and nothing invalid met so far.
  FloatControl with(Rounding rounding) const {
    return {(control & ~(roundingField | trapsField)) | static_cast<uint64_t>(rounding), flags & ~invalidFlag};
  }

 private:
  static constexpr uint64_t roundingField = uint64_t{3} << 22, trapsField = 0x9f00, invalidFlag = 1;
};

}  // namespace vemi
