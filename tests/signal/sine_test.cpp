// Sines and cosines in double lanes.

#include "signal/sine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "signal/one_unit.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Of all sizes up to the limit of exact reduction, and next to multiples of an eighth of a turn.
std::vector<double> angles() {
  std::vector<double> all = {0.0, 1e-300, 0x1p29, 1e15, 1e18};
  double x = 0x1p-30;
  for (int n = 0; n < 200000; ++n, x *= 1.0002023) all.push_back(x);
  for (int n = 1; n < 100000; ++n) {
    const double multiple = (n < 50000 ? n : 6700.0 * n) * 0.78539816339744831;
    for (const double near : {multiple, std::nextafter(multiple, 0.0), std::nextafter(multiple, 1e9)}) {
      all.push_back(near);
    }
  }
  return all;
}

}  // namespace

TEST(SineLanes, WithinOneUnitInTheLastPlace) {
  expectWithinOneUnit(Sine(), std::sin, angles());
  expectWithinOneUnit(Cosine(), std::cos, angles());
}
