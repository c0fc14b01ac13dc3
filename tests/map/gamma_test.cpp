// vemiGammaFwd and vemiGammaInv.

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

enum class Direction { forward, inverse };

/// The power with the precision of double, from more of it.
double power(double x, double exponent) { return static_cast<double>(std::pow(static_cast<long double>(x), exponent)); }

bool isBelowBreakpoint(Direction direction, double t) { return t < (direction == Direction::forward ? 0.018 : 0.0812); }

double slope(Direction direction) { return direction == Direction::forward ? 4.5 : 0.2222222222222222; }

double curve(Direction direction, double t) {
  return direction == Direction::forward ? power(t, 0.45) * 1.099 - 0.099
                                         : power((t + 0.099) * 0.9099181073703366, 2.2222222222222223);
}

int of8u(Direction direction, int v) {
  const double t = v / 255.0;
  return static_cast<int>(
      std::nearbyint(isBelowBreakpoint(direction, t) ? v * slope(direction) : 255 * curve(direction, t)));
}

int of16u(Direction direction, int v) {
  const double t = v * 1.5259021896696422e-05;
  const float sum =
      static_cast<float>((isBelowBreakpoint(direction, t) ? v * slope(direction) : curve(direction, t) * 65535) + 0.5);
  const int whole = static_cast<int>(sum);
  return whole % 2 != 0 && static_cast<float>(whole) == sum ? whole - 1 : whole;
}

float of32f(Direction direction, float v, float vMin, float vMax) {
  const double range = static_cast<double>(vMax) - vMin;
  const double d = static_cast<double>(v) - vMin, t = 1.0 / range * d;
  return static_cast<float>(isBelowBreakpoint(direction, t) ? d * slope(direction) + vMin
                                                            : curve(direction, t) * range + vMin);
}

Reference integers(Direction direction) {
  std::vector<int> all8u, all16u;
  for (int v = 0; v < 256; ++v) all8u.push_back(of8u(direction, v));
  for (int v = 0; v < 65536; ++v) all16u.push_back(of16u(direction, v));
  return [all8u, all16u](Call& call) {
    const View source = call.source(), destination = call.destination();
    const std::vector<int>& all = source.element == Element::u8 ? all8u : all16u;
    call.forEachElement([&](int x, int y, int channel) {
      const auto v = static_cast<size_t>(loadInteger(source.element, source.at(x, y, channel)));
      storeSaturated(source.element, destination.at(x, y, channel), all[v]);
    });
  };
}

Reference floats(Direction direction) {
  return [=](Call& call) {
    const View source = call.source(), destination = call.destination();
    const float vMin = call.get<float>("vMin"), vMax = call.get<float>("vMax");
    call.forEachElement([&](int x, int y, int channel) {
      const float v = load<float>(source.at(x, y, channel));
      store(destination.at(x, y, channel), of32f(direction, v, vMin, vMax));
    });
    call.anyNaN = true;
  };
}

void expectGamma(const std::string& operation, Direction direction) {
  expectDefinition(membersOf(operation, "(8u|16u).*"), integers(direction));
  expectDefinition(membersOf(operation, "32f.*"), floats(direction));
}

/// All 16-bit values, three times over: in one region that is looked up, and in parts that are computed.
template <class F>
void expectEvery16u(F function, Direction direction) {
  std::vector<Vemi16u> all(3 * 65536), expected(all.size()), result(all.size());
  std::iota(all.begin(), all.end(), Vemi16u{0});
  for (size_t n = 0; n < all.size(); ++n) expected[n] = static_cast<Vemi16u>(of16u(direction, all[n]));
  EXPECT_EQ(function(all.data(), 256 * 6, result.data(), 256 * 6, {256, 256}), vemiOk);
  EXPECT_TRUE(result == expected);
  std::fill(result.begin(), result.end(), Vemi16u{0});
  for (size_t n = 0; n < all.size(); n += 3 * 16384) {
    EXPECT_EQ(function(all.data() + n, 3 * 32768, result.data() + n, 3 * 32768, {16384, 1}), vemiOk);
  }
  EXPECT_TRUE(result == expected);
}

template <class F>
std::vector<float> run32f(F function, std::vector<float> v, float vMin, float vMax) {
  while (v.size() % 3 != 0) v.push_back(0);
  EXPECT_EQ(function(v.data(), 1, {static_cast<int>(v.size()) / 3, 1}, vMin, vMax), vemiOk);
  return v;
}

}  // namespace

TEST(Gamma, EveryMemberForward) { expectGamma("vemiGammaFwd", Direction::forward); }
TEST(Gamma, EveryMemberInverse) { expectGamma("vemiGammaInv", Direction::inverse); }

TEST(Gamma, EveryValueOf8u) {
  std::vector<Vemi8u> all(258), forward(258), inverse(258);
  std::iota(all.begin(), all.end(), Vemi8u{0});
  EXPECT_EQ(vemiGammaFwd_8u_C3R(all.data(), 258, forward.data(), 258, {86, 1}), vemiOk);
  EXPECT_EQ(vemiGammaInv_8u_C3R(all.data(), 258, inverse.data(), 258, {86, 1}), vemiOk);
  for (size_t v = 0; v < 256; ++v) {
    EXPECT_EQ(forward[v], of8u(Direction::forward, static_cast<int>(v))) << v;
    EXPECT_EQ(inverse[v], of8u(Direction::inverse, static_cast<int>(v))) << v;
  }
}

TEST(Gamma, EveryValueOf16u) {
  expectEvery16u(vemiGammaFwd_16u_C3R, Direction::forward);
  expectEvery16u(vemiGammaInv_16u_C3R, Direction::inverse);
}

// Pixels from below black to beyond three times white, in steps that are no round numbers.
TEST(Gamma, FloatsOfManyRanges) {
  const float ranges[][2] = {{0, 1},           {0, 255},        {-0.5f, 1.5f},   {0.1f, 1},
                             {1e-38f, 1e-37f}, {-3e38f, 1e37f}, {-3e38f, 3e38f}, {1e10f, 1.001e10f}};
  for (const auto& [vMin, vMax] : ranges) {
    std::vector<float> v;
    const double range = static_cast<double>(vMax) - vMin;
    for (int n = -3000; n < 100000; ++n) v.push_back(static_cast<float>(vMin + range * n / 27001));
    const std::vector<float> forward = run32f(vemiGammaFwd_32f_C3IR, v, vMin, vMax);
    const std::vector<float> inverse = run32f(vemiGammaInv_32f_C3IR, v, vMin, vMax);
    for (size_t n = 0; n < v.size(); ++n) {
      ASSERT_EQ(forward[n], of32f(Direction::forward, v[n], vMin, vMax)) << v[n] << " of " << vMin << " to " << vMax;
      ASSERT_EQ(inverse[n], of32f(Direction::inverse, v[n], vMin, vMax)) << v[n] << " of " << vMin << " to " << vMax;
    }
  }
}

// Where black is as far from zero as white is from black, what a power is wrong by may lead past the next float: here,
// among six million pixels of a range.
TEST(Gamma, FloatsThatTheNearPowerMisses) {
  for (const float vMin : {1.0f, 2.0f}) {
    const float forward = 0x1.41eaa6p+0f * vMin, inverse = 0x1.b817e6p+1f * vMin;
    EXPECT_EQ(run32f(vemiGammaFwd_32f_C3IR, {forward}, vMin, 2 * vMin)[0],
              of32f(Direction::forward, forward, vMin, 2 * vMin));
    EXPECT_EQ(run32f(vemiGammaInv_32f_C3IR, {inverse}, vMin, 2 * vMin)[0],
              of32f(Direction::inverse, inverse, vMin, 2 * vMin));
  }
}

TEST(Gamma, FloatsWithoutNumber) {
  const float infinity = HUGE_VALF, largest = std::numeric_limits<float>::max();
  for (const auto function : {vemiGammaFwd_32f_C3IR, vemiGammaInv_32f_C3IR}) {
    const std::vector<float> result = run32f(function, {infinity, -infinity, std::nanf("")}, 0, 1);
    EXPECT_EQ(result[0], infinity);
    EXPECT_EQ(result[1], -infinity);
    EXPECT_TRUE(std::isnan(result[2]));
  }
  // The largest pixels in the narrowest range are finite numbers to the curve.
  const float narrow = std::numeric_limits<float>::denorm_min();
  const std::vector<float> forward = run32f(vemiGammaFwd_32f_C3IR, {largest, 1, 0}, 0, narrow);
  EXPECT_EQ(forward[0], of32f(Direction::forward, largest, 0, narrow));
  EXPECT_EQ(forward[1], of32f(Direction::forward, 1, 0, narrow));
}

TEST(Gamma, AllocationFails) {
  std::vector<Vemi16u> image(3 * 21846, 1000);
  const NoMemory noMemory;
  EXPECT_EQ(vemiGammaFwd_16u_C3IR(image.data(), 6 * 21846, {21846, 1}), vemiErrMemAlloc);
  EXPECT_EQ(vemiGammaInv_16u_C3IR(image.data(), 6 * 21846, {21846, 1}), vemiErrMemAlloc);
  EXPECT_EQ(std::count(image.begin(), image.end(), 1000), 3 * 21846);
  EXPECT_EQ(vemiGammaFwd_16u_C3IR(image.data(), 6 * 21845, {21845, 1}), vemiOk);
  EXPECT_EQ(image[0], of16u(Direction::forward, 1000));
}
