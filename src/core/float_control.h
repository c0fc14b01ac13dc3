// The rounding mode and the exceptions are a thread's own, and the caller's to choose. Where a mode decides a result, a
// family runs under the one that its definition names and leaves the caller's behind:
//
//   roundingToNearest(f)     f() to nearest
//   roundingAs(rounding, f)  f() under any mode; metInvalid() tells f whether a result was invalid
#pragma once

#include "core/processor.h"
#include "vemi/status.h"

namespace vemi {

namespace detail {

/// The compiler moves float arithmetic freely across a change of the control word, but not out of a function.
template <class F>
HWY_NOINLINE VemiStatus runApart(const F& f) {
  return f();
}

}  // namespace detail

/// f(), a status, while lanes and scalars round as told, those of a team that f opens too. No exception ends the
/// program, whatever the caller has unmasked, and afterwards all is the caller's again, with its flags.
template <class F>
VemiStatus roundingAs(Rounding rounding, const F& f) {
  const FloatControl callers = FloatControl::current(), own = callers.with(rounding);
  if (own != callers) own.set();
  const VemiStatus status = detail::runApart(f);
  if (FloatControl::current() != callers) callers.set();
  return status;
}

/// f(), a status, while lanes and scalars round to nearest. Where the caller has set that, as nearly all have, the
/// control word is only read: exceptions and flags are as the caller wants them.
template <class F>
VemiStatus roundingToNearest(const F& f) {
  if (FloatControl::current().roundsToNearest()) return detail::runApart(f);
  return roundingAs(Rounding::nearest, f);
}

/// Within roundingAs: whether an operation of this thread so far had no valid result. So a fast kernel runs without
/// looking at its values, and where one was beyond it, all are computed again with care.
inline bool metInvalid() { return FloatControl::current().metInvalid(); }

}  // namespace vemi
