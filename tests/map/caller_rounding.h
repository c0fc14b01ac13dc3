// Calls under all rounding modes that a caller may have set, and what they must leave of its control words.
#pragma once

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <string>
#include <vector>

#include "support/check.h"

namespace vemi::test {

/// Exceptions are masked, some of them having been raised before, or end the program. The reference computes under the
/// mode that a program starts with.
inline void expectInEveryRoundingMode(const std::vector<const Export*>& members, const Reference& reference) {
  const unsigned former = _mm_getcsr();
  constexpr unsigned raised = _MM_EXCEPT_INVALID | _MM_EXCEPT_DIV_ZERO | _MM_EXCEPT_UNDERFLOW;
  Scenario scenario = {{67, 3}};
  for (const Export* function : members) {
    for (const unsigned mode : {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
      for (const unsigned exceptions : {_MM_MASK_MASK | raised, 0u}) {
        ++scenario.seed;
        Call call(*function, scenario);
        reference(call);
        _mm_setcsr(mode | exceptions);
        const VemiStatus status = call.invoke();
        const unsigned after = _mm_getcsr();
        _mm_setcsr(former);
        const std::string text = call.text() + " under control word " + std::to_string(mode | exceptions);
        EXPECT_EQ(status, call.expectedStatus) << text;
        EXPECT_EQ(after, mode | exceptions) << text;
        EXPECT_EQ(call.difference(), "") << text;
      }
    }
  }
}

}  // namespace vemi::test
