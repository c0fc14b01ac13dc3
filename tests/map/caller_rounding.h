// Calls under all rounding modes that a caller may have set, and what they must leave of its control words.
#pragma once

#include <fenv.h>
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <string>
#include <vector>

#include "support/check.h"

namespace vemi::test {

/// Rounding, masks and the treatment of denormals, without the flags of what has happened.
inline unsigned laneControls() { return _mm_getcsr() & ~0x3fu; }

/// The reference computes under the mode that a program starts with.
inline void expectInEveryRoundingMode(const std::vector<const Export*>& members, const Reference& reference) {
  const unsigned former = _mm_getcsr();
  constexpr unsigned divisionMasked = 0x200;  // another control, which must stay what the caller made it
  Scenario scenario = {{67, 3}};
  for (const Export* function : members) {
    for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
      ++scenario.seed;
      Call call(*function, scenario);
      reference(call);
      fesetround(mode);
      if (scenario.seed % 2 == 0) _mm_setcsr(_mm_getcsr() & ~divisionMasked);
      const unsigned before = laneControls();
      const VemiStatus status = call.invoke();
      const unsigned after = laneControls();
      const int modeAfter = fegetround();
      fesetround(FE_TONEAREST);
      _mm_setcsr(former);
      const std::string text = call.text() + " in rounding mode " + std::to_string(mode);
      EXPECT_EQ(status, call.expectedStatus) << text;
      EXPECT_EQ(after, before) << text;
      EXPECT_EQ(modeAfter, mode) << text;
      EXPECT_EQ(call.difference(), "") << text;
    }
  }
}

}  // namespace vemi::test
