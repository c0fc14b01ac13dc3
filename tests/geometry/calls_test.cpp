// What holds for all functions of the subsystem, whatever they compute.

#include <gtest/gtest.h>

#include <cfenv>
#include <sstream>

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
        for (const int mode : {FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
          Call call(*function, scenario);
          for (size_t n = 0; n < call.images.size(); ++n) {
            for (size_t plane = 0; plane < call.images[n].planes.size(); ++plane) {
              const GuardedMemory& memory = nearest.images[n].planes[plane].memory;
              call.images[n].planes[plane].expected.assign(memory.begin(), memory.end());
            }
          }
          std::fesetround(mode);
          const VemiStatus status = call.invoke();
          const int left = std::fegetround();
          std::fesetround(FE_TONEAREST);
          ASSERT_EQ(status, expected) << call.text() << ", mode " << mode;
          ASSERT_EQ(left, mode) << call.text();
          ASSERT_EQ(call.difference(), "") << "mode " << mode;
        }
      }
    }
  }
  EXPECT_EQ(count, 262);
}
