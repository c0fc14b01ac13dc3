// The accuracy of logarithms and exponentials, and what those of single precision give where there is nothing to round.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "signal/ln.h"
#include "signal/one_unit.h"
#include "vemi/vemi.h"

using namespace vemi;
using namespace vemi::signal;

namespace {

using Function = VemiStatus (*)(const Vemi32f*, int, Vemi32f*, int, VemiSize);

float fromBits(uint32_t bits) { return std::bit_cast<float>(bits); }

std::vector<float> resultsOf(Function function, const std::vector<float>& x) {
  std::vector<float> y(x.size());
  const int step = static_cast<int>(x.size() * sizeof(float));
  EXPECT_GE(function(x.data(), step, y.data(), step, {static_cast<int>(x.size()), 1}), vemiOk);
  return y;
}

/// The position of a float among all floats, so that neighbours differ by one; both zeros are 0.
int64_t rank(float value) {
  const auto bits = std::bit_cast<int32_t>(value);
  return bits >= 0 ? bits : int64_t{std::numeric_limits<int32_t>::min()} - bits;
}

void expectWithinOneUnit(Function function, long double (*exact)(long double), const std::vector<float>& x) {
  const std::vector<float> y = resultsOf(function, x);
  for (size_t n = 0; n < x.size(); ++n) {
    const auto expected = static_cast<float>(exact(x[n]));
    if (std::isnan(expected) ? std::isnan(y[n]) : std::abs(rank(y[n]) - rank(expected)) <= 1) continue;
    ADD_FAILURE() << std::hexfloat << x[n] << ": " << y[n] << ", not " << expected;
    return;
  }
}

/// Floats of all signs and sizes, with a stride that is prime; then `reach` neighbours on both sides of each centre.
std::vector<float> samples(const std::vector<float>& centres) {
  constexpr uint32_t stride = 2039, reach = 3000;
  std::vector<float> all;
  for (uint64_t bits = 0; bits < uint64_t{1} << 32; bits += stride)
    all.push_back(fromBits(static_cast<uint32_t>(bits)));
  for (const float centre : centres) {
    const auto bits = std::bit_cast<uint32_t>(centre);
    for (uint32_t n = 0; n <= 2 * reach; ++n) all.push_back(fromBits(bits - reach + n));
  }
  return all;
}

std::vector<double> positiveDoubles() {
  std::vector<double> all = {1.0, 0x1p-60, 0x1.fffffffffffffp-1, 0x1.0000000000001p0, 0x1p-1, 0x1p1000};
  double x = 0x1p-62;
  for (int n = 0; n < 300000; ++n, x *= 1.000146) all.push_back(x);
  for (int n = -100000; n < 100000; ++n) all.push_back(1.0 + n * 0x1p-40);
  return all;
}

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float smallest = std::numeric_limits<float>::denorm_min();

}  // namespace

TEST(LnLanes, WithinOneUnitInTheLastPlace) {
  std::vector<float> centres = {smallest, std::numeric_limits<float>::min(), std::numeric_limits<float>::max(), 0.0f};
  for (int power = -3; power <= 3; ++power) {
    for (const float mantissa : {1.0f, 1.41421356f, 1.4f}) centres.push_back(std::ldexp(mantissa, power));
  }
  expectWithinOneUnit(vemiLn_32f_C1R, std::log, samples(centres));
}

TEST(ExpLanes, WithinOneUnitInTheLastPlace) {
  std::vector<float> centres = {0.0f, smallest, 87.0f, -87.0f, 88.7228394f, -87.3365448f, -103.972084f, 89.0f, -104.0f};
  for (int k = -150; k <= 128; k += 3) centres.push_back((static_cast<float>(k) + 0.5f) * 0.69314718f);
  expectWithinOneUnit(vemiExp_32f_C1R, std::exp, samples(centres));
}

TEST(Ln64fLanes, WithinOneUnitInTheLastPlace) { test::expectWithinOneUnit(Ln64f(), std::log, positiveDoubles()); }

TEST(LnLanes, SpecialValues) {
  const std::vector<float> y = resultsOf(vemiLn_32f_C1R, {1.0f, 0.0f, -0.0f, infinity, -infinity, -1.0f, -smallest});
  EXPECT_EQ(std::bit_cast<uint32_t>(y[0]), 0u);
  EXPECT_EQ(y[1], -infinity);
  EXPECT_EQ(y[2], -infinity);
  EXPECT_EQ(y[3], infinity);
  for (const size_t n : {4, 5, 6}) EXPECT_EQ(std::bit_cast<uint32_t>(y[n]), 0xffc00000u);
}

TEST(ExpLanes, SpecialValues) {
  const std::vector<float> y =
      resultsOf(vemiExp_32f_C1R, {0.0f, -0.0f, infinity, -infinity, 88.73f, -103.98f, smallest, -200.0f, 1e30f});
  const std::vector<float> expected = {1.0f, 1.0f, infinity, 0.0f, infinity, 0.0f, 1.0f, 0.0f, infinity};
  for (size_t n = 0; n < y.size(); ++n) {
    EXPECT_EQ(std::bit_cast<uint32_t>(y[n]), std::bit_cast<uint32_t>(expected[n])) << n;
  }
}

TEST(LnExpLanes, NaNsStayAndBecomeQuiet) {
  for (const uint32_t bits : {0x7fc00000u, 0x7f800001u, 0xffc12345u, 0xff801234u}) {
    for (const Function function : {vemiLn_32f_C1R, vemiExp_32f_C1R}) {
      const std::vector<float> y = resultsOf(function, {fromBits(bits), 1.0f, fromBits(bits)});
      EXPECT_EQ(std::bit_cast<uint32_t>(y[0]), bits | 0x400000);
      EXPECT_EQ(std::bit_cast<uint32_t>(y[2]), bits | 0x400000);
    }
  }
}
