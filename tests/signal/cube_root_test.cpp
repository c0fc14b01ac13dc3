// The rounding of cube roots.

#include "signal/cube_root.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "core/lanes.h"

using namespace vemi;

namespace {

/// The exact root lies between the middles to both neighbours. Middles have 25 bits: their squares are exact, and their
/// cubes are the arguments' only where no float of three octaves is.
bool isNearest(float x, float root) {
  const double above = std::nextafter(root, HUGE_VALF), below = std::nextafter(root, 0.0f);
  const double upper = (root + above) / 2, lower = (root + below) / 2;
  return lower * lower * lower < x && x < upper * upper * upper;
}

}  // namespace

TEST(CubeRootLanes, NearestOfAllFloatsOfThreeOctaves) {
  const Lanes<float> d;
  constexpr uint32_t lanes = laneCount<float>, one = 0x3f800000, eight = 0x41000000;
  alignas(laneAlignment) float x[lanes], y[lanes], near[lanes];
  int64_t wrong = 0, far = 0;
  for (uint32_t bits = one; bits < eight; bits += lanes) {
    for (uint32_t n = 0; n < lanes; ++n) x[n] = std::bit_cast<float>(bits + n);
    hn::Store(signal::CubeRoot()(d, hn::Load(d, x)), d, y);
    for (uint32_t n = 0; n < lanes; ++n) wrong += x[n] == 1 ? y[n] != 1 : !isNearest(x[n], y[n]);
    hn::Store(signal::NearCubeRoot()(d, hn::Load(d, x)), d, near);
    for (uint32_t n = 0; n < lanes; ++n) far += std::abs(near[n] - y[n]) > y[n] * 0x1p-22f;
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(far, 0);
}

TEST(CubeRootLanes, AllOctavesAndInfinity) {
  const Lanes<float> d;
  const auto root = [&](float x) { return hn::GetLane(signal::CubeRoot()(d, hn::Set(d, x))); };
  for (int k = -42; k <= 42; ++k) {
    for (const float m : {1.0f, 1.7f, 2.0f, 3.9f, 0x1.fffffep1f, 0x1.fffffep2f}) {
      const float x = std::ldexp(m, 3 * k);
      if (!std::isfinite(x)) continue;
      EXPECT_EQ(root(x), std::ldexp(root(m), k)) << m << " 2^" << 3 * k;
    }
  }
  EXPECT_EQ(root(std::numeric_limits<float>::infinity()), std::numeric_limits<float>::infinity());
}
