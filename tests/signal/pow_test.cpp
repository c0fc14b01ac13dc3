// The power in double lanes.

#include "signal/pow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/elements.h"

using namespace vemi;

namespace {

/// Units in the last place between y and the exact power, for whole vectors of x.
double worstError(double exponent, const std::vector<double>& x) {
  const Lanes<double> d;
  double worst = 0;
  for (size_t n = 0; n < x.size(); n += static_cast<size_t>(laneCount<double>)) {
    double y[laneCount<double>];
    hn::StoreU(Power{exponent}(d, hn::LoadU(d, &x[n])), d, y);
    for (size_t i = 0; i < static_cast<size_t>(laneCount<double>); ++i) {
      const long double exact = std::pow(static_cast<long double>(x[n + i]), static_cast<long double>(exponent));
      const long double unit = std::ldexp(1.0L, std::ilogb(exact) - 52);
      worst = std::max(worst, static_cast<double>(std::abs(y[i] - exact) / unit));
    }
  }
  return worst;
}

}  // namespace

TEST(Power, IsWithinAUnit) {
  test::Random random(7);
  std::vector<double> unit, any;
  for (int n = 0; n < 100000; ++n) {
    const double fraction = static_cast<double>(random.next() >> 11) * 0x1p-53;
    unit.push_back(0.018 + fraction);
    any.push_back(std::ldexp(1 + fraction, random.below(600) - 300));
  }
  for (const double exponent : {0.45, 2.2222222222222223}) {
    EXPECT_LT(worstError(exponent, unit), 0.8) << exponent;
    EXPECT_LT(worstError(exponent, any), 0.8) << exponent;
  }
}

TEST(Power, IsExactWhereItCanBe) {
  const Lanes<double> d;
  const std::vector<double> x = {1.0, 4.0, 0.25, 0x1p100, 2.25, 1.44, 0x1p-100, 1.0};
  for (size_t n = 0; n < x.size(); n += static_cast<size_t>(laneCount<double>)) {
    double y[laneCount<double>];
    hn::StoreU(Power{0.5}(d, hn::LoadU(d, &x[n])), d, y);
    for (size_t i = 0; i < static_cast<size_t>(laneCount<double>); ++i)
      EXPECT_EQ(y[i], std::sqrt(x[n + i])) << x[n + i];
  }
}
