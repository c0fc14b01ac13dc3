// The caller's rounding mode: functions of integers give the same bytes under each, and a team has it as the caller
// has.

#include <fenv.h>
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <thread>

#include "support/caller_modes.h"

using namespace vemi::test;

namespace {

bool isOfIntegers(const Export& function) {
  return std::none_of(function.parameters.begin(), function.parameters.end(), [](const Parameter& parameter) {
    const Element part = partOf(parameter.element);
    return part == Element::f32 || part == Element::f64;
  });
}

/// A rounding mode and a team for one call.
struct Setting {
  int mode = FE_TONEAREST;
  int team = omp_get_max_threads();

  VemiStatus invoke(Call& call) const {
    const int former = omp_get_max_threads();
    omp_set_num_threads(team);
    const VemiStatus status = invokeUnder(mode, call);
    omp_set_num_threads(former);
    return status;
  }
};

/// Two calls leave the same.
void expectSame(const Setting& one, const Setting& other, const Export& function, const Scenario& scenario) {
  Call expected(function, scenario), call(function, scenario);
  const VemiStatus expectedStatus = one.invoke(expected);
  expectWhatWasLeft(call, expected);
  EXPECT_EQ(other.invoke(call), expectedStatus) << call.text();
  EXPECT_EQ(call.difference(), "");
}

/// Runs f in a thread of its own, whose teams of two have a second thread that was made under `mode`.
template <class F>
void besideThreadOf(int mode, const F& f) {
  std::thread([&] {
    fesetround(mode);
    int others = -1;
#pragma omp parallel num_threads(2)
    static_cast<void>(omp_get_thread_num());
    fesetround(FE_TONEAREST);
#pragma omp parallel num_threads(2)
    if (omp_get_thread_num() == 1) others = fegetround();
    if (others == mode) {
      f();
    } else {
      GTEST_SKIP() << "this OpenMP runtime hands the mode on by itself";
    }
  }).join();
}

}  // namespace

TEST(RoundingMode, DecidesNoInteger) {
  for (const Export& function : exports()) {
    if (function.call == nullptr || !isOfIntegers(function)) continue;
    if (matches(function.operation, "vemiGet.*Moments?")) continue;  // doubles, converted in the processor's mode
    const std::vector<int> scaleFactors = function.scaled ? std::vector{-9, -3, 0, 1, 4} : std::vector{0};
    for (const int scaleFactor : scaleFactors) {
      for (const int mode : directedModes) {
        expectSame({}, {.mode = mode}, function, {{131, 9}, Rows::odd, Edge::back, 1, scaleFactor});
      }
    }
  }
}

/// Wide enough for a team in every layout. Both threads have rows, and results of floats are rarely exact.
TEST(RoundingMode, IsTheCallersInAllOfATeam) {
  for (const int poolMode : {FE_UPWARD, FE_TONEAREST}) {
    const int mode = poolMode == FE_UPWARD ? FE_TONEAREST : FE_DOWNWARD;
    besideThreadOf(poolMode, [&] {
      for (const Export& function : exports()) {
        if (function.call == nullptr) continue;
        const Scenario scenario = {{353, 6}, Rows::padded, Edge::back, 1, 1};
        expectSame({.mode = mode, .team = 1}, {.mode = mode, .team = 2}, function, scenario);
      }
    });
  }
}
