// Calls under the rounding modes that a caller may have set.
#pragma once

#include <fenv.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/call.h"

namespace vemi::test {

inline constexpr int directedModes[] = {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};

/// Makes the call under the mode, which it must leave as it is; behind it the mode is to nearest.
inline VemiStatus invokeUnder(int mode, Call& call) {
  EXPECT_EQ(fesetround(mode), 0);
  const VemiStatus status = call.invoke();
  EXPECT_EQ(fegetround(), mode) << call.text();
  EXPECT_EQ(fesetround(FE_TONEAREST), 0);
  return status;
}

/// What another call of the same scenario has left is what the call must leave.
inline void expectWhatWasLeft(Call& call, const Call& other) {
  for (size_t image = 0; image < call.images.size(); ++image) {
    for (size_t plane = 0; plane < call.images[image].planes.size(); ++plane) {
      const GuardedMemory& left = other.images[image].planes[plane].memory;
      std::copy(left.begin(), left.end(), call.images[image].planes[plane].expected.begin());
    }
  }
}

}  // namespace vemi::test
