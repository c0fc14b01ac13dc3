// The processor's control word of SSE lanes, which is the caller's: set for a call where it decides a result, and put
// back.
#pragma once

#include "core/lanes.h"
#include "vemi/status.h"

#if !HWY_ARCH_X86
#error "the control word of this processor's lanes is to be written"
#endif

namespace vemi {

/// Values are those of the field in the control word.
enum class Rounding : unsigned {
  nearest = _MM_ROUND_NEAREST,  // ties to even
  towardZero = _MM_ROUND_TOWARD_ZERO,
};

namespace detail {

/// The compiler moves float arithmetic freely across a change of the control word, but not out of a function.
template <class F>
HWY_NOINLINE VemiStatus runApart(const F& f) {
  return f();
}

}  // namespace detail

/// f(), a status, while lanes and SSE scalars round as told. No exception ends the program, whatever the caller has
/// unmasked, and afterwards the control word is the caller's again, with its flags.
template <class F>
VemiStatus withRounding(Rounding rounding, const F& f) {
  const unsigned callers = _mm_getcsr();
  const unsigned own =
      (callers & ~unsigned{_MM_ROUND_MASK | _MM_EXCEPT_INVALID}) | _MM_MASK_MASK | static_cast<unsigned>(rounding);
  if (own != callers) _mm_setcsr(own);
  const VemiStatus status = detail::runApart(f);
  if (_mm_getcsr() != callers) _mm_setcsr(callers);
  return status;
}

/// f(), a status, while lanes and SSE scalars round to nearest. Where the caller has set that, as nearly all have, the
/// control word is only read: exceptions and flags are as the caller wants them.
template <class F>
VemiStatus roundingToNearest(const F& f) {
  if ((_mm_getcsr() & _MM_ROUND_MASK) == _MM_ROUND_NEAREST) return detail::runApart(f);
  return withRounding(Rounding::nearest, f);
}

/// Within withRounding: whether an operation so far had no valid result. So a fast kernel runs without looking at its
/// values, and where one was beyond it, all are computed again with care.
inline bool metInvalid() { return (_mm_getcsr() & _MM_EXCEPT_INVALID) != 0; }

/// Integers by the rounding that is set. A NaN and a value beyond 32 bits are invalid and give the lowest integer; the
/// lane library's conversion would mend large values, at twice the cost.
template <class DF>
HWY_INLINE auto toIntegers(DF, hn::Vec<DF> v) {
  using Integers = hn::Vec<hn::RebindToSigned<DF>>;
  if constexpr (sizeof v.raw == 16) return Integers{_mm_cvtps_epi32(v.raw)};
#if HWY_TARGET <= HWY_AVX2
  if constexpr (sizeof v.raw == 32) return Integers{_mm256_cvtps_epi32(v.raw)};
#endif
#if HWY_TARGET <= HWY_AVX3
  if constexpr (sizeof v.raw == 64) return Integers{_mm512_cvtps_epi32(v.raw)};
#endif
}

}  // namespace vemi
