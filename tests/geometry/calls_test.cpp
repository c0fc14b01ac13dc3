// What holds for all functions of the subsystem, whatever they compute.

#include <gtest/gtest.h>

#include <sstream>

#include "support/caller_modes.h"
#include "support/check.h"
#include "support/families.h"

using namespace vemi::test;

TEST(Geometry, ResultsDoNotDependOnTheCallersRounding) {
  int count = 0;
  for (const Family& family : geometryFamilies()) {
    std::istringstream operations(family.operations);
    for (std::string operation; operations >> operation;) {
      for (const Export* const function : membersOf(operation)) {
        ++count;
        const Scenario scenario = {{67, 9}, Rows::padded, Edge::back, static_cast<unsigned>(count)};
        Call nearest(*function, scenario);
        const VemiStatus expected = nearest.invoke();
        for (const int mode : directedModes) {
          Call call(*function, scenario);
          expectWhatWasLeft(call, nearest);
          ASSERT_EQ(invokeUnder(mode, call), expected) << call.text() << ", mode " << mode;
          ASSERT_EQ(call.difference(), "") << "mode " << mode;
        }
      }
    }
  }
  EXPECT_EQ(count, 262);
}
