// Sines and cosines in double lanes.

#include "signal/sine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "signal/one_unit.h"

using namespace vemi;
using namespace vemi::signal;
using namespace vemi::test;

namespace {

/// Of all sizes up to the largest, and next to multiples of an eighth of a turn.
std::vector<double> angles() {
  std::vector<double> all = {0.0, 1e-300, 0x1p29, 1e15, 1e18, 0x1p61, -0x1p61, -1e17, -3.0};
  double x = 0x1p-30;
  for (int n = 0; n < 200000; ++n, x *= 1.000315) all.push_back(n % 3 == 0 ? -x : x);
  for (int n = 1; n < 100000; ++n) {
    const double multiple = (n < 50000 ? n : 6700.0 * n) * 0.78539816339744831;
    for (const double near : {multiple, std::nextafter(multiple, 0.0), std::nextafter(multiple, 1e9)}) {
      all.push_back(near);
      all.push_back(0x1p25 * near);
    }
  }
  return all;
}

}  // namespace

// Large and small angles beside each other, in every place of a vector.
TEST(SineLanes, AreIndependent) {
  const Lanes<double> d;
  const double small = 1.25, large = 0x1.921fb54442d18p40;
  for (ptrdiff_t place = 0; place < laneCount<double>; ++place) {
    double x[laneCount<double>], y[laneCount<double>];
    std::fill(std::begin(x), std::end(x), small);
    x[place] = large;
    hn::StoreU(Sine()(d, hn::LoadU(d, x)), d, y);
    for (ptrdiff_t n = 0; n < laneCount<double>; ++n) {
      EXPECT_EQ(y[n], hn::GetLane(Sine()(d, hn::Set(d, n == place ? large : small))));
    }
  }
}

TEST(SineLanes, WithinOneUnitInTheLastPlace) {
  expectWithinOneUnit(Sine(), std::sin, angles());
  expectWithinOneUnit(Cosine(), std::cos, angles());
}
