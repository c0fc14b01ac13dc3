// Filters of integers under the rounding modes that a caller may have set.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "support/caller_modes.h"
#include "support/check.h"

namespace vemi::test {

/// Each leaves what the reference computes to nearest.
inline void expectToNearestInEveryMode(const std::vector<const Export*>& members, const Reference& reference) {
  for (const Export* const function : members) {
    for (const int mode : directedModes) {
      for (unsigned seed = 1; seed <= 8; ++seed) {
        Call call(*function, {{67, 3}, Rows::padded, Edge::back, seed, 1});
        reference(call);
        EXPECT_EQ(invokeUnder(mode, call), call.expectedStatus) << call.text() << " under rounding mode " << mode;
        EXPECT_EQ(call.difference(), "") << "under rounding mode " << mode;
      }
    }
  }
}

}  // namespace vemi::test
