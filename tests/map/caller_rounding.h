// Calls under all rounding modes that a caller may have set, and what they must leave of its control words.
#pragma once

#include <fenv.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/check.h"

namespace vemi::test {

/// What a caller sees of its control words.
struct CallersFloats {
  int rounding, flags, traps;

  static CallersFloats current() { return {fegetround(), fetestexcept(FE_ALL_EXCEPT), fegetexcept()}; }
  bool operator==(const CallersFloats&) const = default;
};

/// Exceptions are masked, some of them having been raised before, or end the program, where the processor can do that.
/// The reference computes under the mode that a program starts with.
inline void expectInEveryRoundingMode(const std::vector<const Export*>& members, const Reference& reference) {
  Scenario scenario = {{67, 3}};
  for (const Export* function : members) {
    for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
      for (const bool traps : {false, true}) {
        ++scenario.seed;
        Call call(*function, scenario);
        reference(call);
        fenv_t former;
        fegetenv(&former);
        feclearexcept(FE_ALL_EXCEPT);
        if (!traps) feraiseexcept(FE_INVALID | FE_DIVBYZERO | FE_UNDERFLOW);
        if (traps) feenableexcept(FE_ALL_EXCEPT);
        fesetround(mode);
        const CallersFloats before = CallersFloats::current();
        const VemiStatus status = call.invoke();
        const CallersFloats after = CallersFloats::current();
        fesetenv(&former);
        const std::string text =
            call.text() + " under rounding mode " + std::to_string(mode) + (traps ? ", traps" : "");
        EXPECT_EQ(status, call.expectedStatus) << text;
        EXPECT_EQ(after.rounding, before.rounding) << text;
        EXPECT_EQ(after.flags, before.flags) << text;
        EXPECT_EQ(after.traps, before.traps) << text;
        EXPECT_EQ(call.difference(), "") << text;
      }
    }
  }
}

}  // namespace vemi::test
