// Powers in double lanes.

#include "signal/pow.h"
#include "signal/near_power.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/elements.h"

using namespace vemi;
using namespace vemi::signal;

namespace {

/// Units in the last place between power(d, x) and the exact power, for whole vectors of x.
template <class Op>
double worstError(const Op& power, double exponent, const std::vector<double>& x) {
  const Lanes<double> d;
  double worst = 0;
  for (size_t n = 0; n < x.size(); n += static_cast<size_t>(laneCount<double>)) {
    double y[laneCount<double>];
    hn::StoreU(power(d, hn::LoadU(d, &x[n])), d, y);
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
    EXPECT_LT(worstError(Power{exponent}, exponent, unit), 0.8) << exponent;
    EXPECT_LT(worstError(Power{exponent}, exponent, any), 0.8) << exponent;
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

// All cells, to their very ends.
TEST(NearPower, IsNear) {
  test::Random random(8);
  std::vector<double> x = {1.0 / 64, std::nextafter(1.0 / 64, 1), std::nextafter(4.0, 0), 1, 0.5, 2, 0.75, 0.25};
  for (int n = 0; n < 1 << 17; ++n) {
    const double fraction = static_cast<double>(random.next() >> 11) * 0x1p-53;
    x.push_back(std::ldexp(1 + fraction, random.below(8) - 6));
  }
  for (double edge = 1.0 / 64; edge < 4; edge += std::ldexp(1, std::ilogb(edge) - 5)) {
    x.push_back(edge);
    x.push_back(std::nextafter(edge, 0) < 1.0 / 64 ? edge : std::nextafter(edge, 0));
  }
  static_assert((8 + (1 << 17) + 2 * 256) % laneCount<double> == 0);
  EXPECT_LT(worstError(NearPower(0.45), 0.45, x), 0x1p12);  // 2^-41
  EXPECT_LT(worstError(NearPower(2.2222222222222223), 2.2222222222222223, x), 0x1p9);
}
