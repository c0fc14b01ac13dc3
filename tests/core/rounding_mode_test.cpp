// The caller's rounding mode: functions of integers give the same bytes under each.

#include <fenv.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/call.h"

using namespace vemi::test;

namespace {

bool isOfIntegers(const Export& function) {
  return std::none_of(function.parameters.begin(), function.parameters.end(), [](const Parameter& parameter) {
    const Element part = partOf(parameter.element);
    return part == Element::f32 || part == Element::f64;
  });
}

void expectSameUnder(int mode, const Export& function, const Scenario& scenario) {
  Call nearest(function, scenario), call(function, scenario);
  const VemiStatus expectedStatus = nearest.invoke();
  for (size_t image = 0; image < call.images.size(); ++image) {
    for (size_t plane = 0; plane < call.images[image].planes.size(); ++plane) {
      const GuardedMemory& left = nearest.images[image].planes[plane].memory;
      std::copy(left.begin(), left.end(), call.images[image].planes[plane].expected.begin());
    }
  }
  ASSERT_EQ(fesetround(mode), 0);
  const VemiStatus status = call.invoke();
  ASSERT_EQ(fesetround(FE_TONEAREST), 0);
  EXPECT_EQ(status, expectedStatus) << call.text();
  EXPECT_EQ(call.difference(), "");
}

}  // namespace

TEST(RoundingMode, DecidesNoInteger) {
  for (const Export& function : exports()) {
    if (function.call == nullptr || !isOfIntegers(function)) continue;
    if (matches(function.operation, "vemiGet.*Moments?")) continue;  // doubles, converted in the processor's mode
    const std::vector<int> scaleFactors = function.scaled ? std::vector{-9, -3, 0, 1, 4} : std::vector{0};
    for (const int scaleFactor : scaleFactors) {
      for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        expectSameUnder(mode, function, {{131, 9}, Rows::odd, Edge::back, 1, scaleFactor});
      }
    }
  }
}
