// The accuracy of arc tangents of two arguments, and of sine and cosine of single precision.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/lanes.h"
#include "signal/arc_tangent.h"
#include "signal/one_unit.h"
#include "signal/sine_cosine.h"

using namespace vemi;
using namespace vemi::test;

namespace {

int64_t rankOf(float value) {
  const auto bits = std::bit_cast<int32_t>(value);
  return bits >= 0 ? bits : int64_t{INT32_MIN} - bits;
}

template <class T>
T angleOf(T y, T x) {
  const Lanes<T> d;
  return hn::GetLane(signal::ArcTangent()(d, hn::Set(d, y), hn::Set(d, x)));
}

/// Floats of either sign whose bits, and so whose logarithms, are evenly distributed, but for a few millions.
class AnyFloats {
 public:
  float next() {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return std::bit_cast<float>(static_cast<uint32_t>(state_ >> 32));
  }
  /// From 2^-8 to 2^8.
  float moderate() { return std::ldexp(1 + static_cast<float>(bits(23)) * 0x1p-23f, static_cast<int>(bits(4)) - 8); }

 private:
  uint64_t state_ = 1;

  uint32_t bits(int count) { return std::bit_cast<uint32_t>(next()) >> (32 - count); }
};

TEST(ArcTangentLanes, SpecialValuesAreTheStandards) {
  const float special[] = {0, -0.0f, 1, -1, 1e-40f, 3e38f, HUGE_VALF, -HUGE_VALF};
  for (const float y : special) {
    for (const float x : special) {
      const float angle = angleOf(y, x), expected = std::atan2(y, x);
      EXPECT_LE(std::abs(rankOf(angle) - rankOf(expected)), 1) << y << " " << x << ": " << angle;
      EXPECT_EQ(std::signbit(angle), std::signbit(expected)) << y << " " << x;
      const double wide = angleOf<double>(y, x), exact = std::atan2(static_cast<double>(y), static_cast<double>(x));
      EXPECT_LE(std::abs(rank(wide) - rank(exact)), 1) << y << " " << x << ": " << wide;
    }
  }
  EXPECT_TRUE(std::isnan(angleOf(NAN, 1.0f)));
  EXPECT_TRUE(std::isnan(angleOf(1.0f, NAN)));
}

template <class T>
void expectLanesApart() {
  const Lanes<T> d;
  constexpr T least = std::numeric_limits<T>::denorm_min(), largest = std::numeric_limits<T>::max();
  constexpr T infinite = std::numeric_limits<T>::infinity();
  const T value[] = {0, 1, 3, least, 5 * least, std::numeric_limits<T>::min(), largest, largest / 3, infinite, -7};
  const auto same = [](T a, T b) { return a == b && std::signbit(a) == std::signbit(b); };
  for (const T y : value) {
    for (const T x : value) {
      const T alone = angleOf(y, x);
      for (const T otherY : value) {
        for (const T otherX : value) {
          const auto first = hn::FirstN(d, 1);
          const auto ys = hn::IfThenElse(first, hn::Set(d, y), hn::Set(d, otherY));
          const auto xs = hn::IfThenElse(first, hn::Set(d, x), hn::Set(d, otherX));
          const T beside = hn::GetLane(signal::ArcTangent()(d, ys, xs));
          ASSERT_TRUE(same(beside, alone)) << y << " " << x << " beside " << otherY << " " << otherX;
        }
      }
    }
  }
}

TEST(ArcTangentLanes, NoneDependsOnItsNeighbours) {
  expectLanesApart<float>();
  expectLanesApart<double>();
}

TEST(ArcTangentLanes, WithinOneUnit) {
  AnyFloats floats;
  for (int n = 0; n < 3000000; ++n) {
    const bool isAny = n % 4 == 0;
    const float y = isAny ? floats.next() : floats.moderate(), x = isAny ? floats.next() : floats.moderate();
    if (std::isnan(x) || std::isnan(y)) continue;
    const auto expected = static_cast<float>(std::atan2(static_cast<double>(y), static_cast<double>(x)));
    const float angle = angleOf(y, x);
    ASSERT_LE(std::abs(rankOf(angle) - rankOf(expected)), 1) << std::hexfloat << y << " " << x << ": " << angle;
  }
  for (int n = 0; n < 300000; ++n) {
    const double y = floats.moderate() * (1 + floats.moderate() * 0x1p-40), x = floats.moderate();
    const auto expected = static_cast<double>(std::atan2(static_cast<long double>(y), static_cast<long double>(x)));
    ASSERT_LE(std::abs(rank(angleOf(y, x)) - rank(expected)), 1) << std::hexfloat << y << " " << x;
  }
}

TEST(SineAndCosineLanes, WithinOneUnitOfAnyAngle) {
  const Lanes<float> d;
  AnyFloats floats;
  const auto expectNear = [&](float x) {
    const auto pair = signal::SineAndCosine()(d, hn::Set(d, x));
    const float sine = hn::GetLane(pair.sine), cosine = hn::GetLane(pair.cosine);
    ASSERT_LE(std::abs(rankOf(sine) - rankOf(static_cast<float>(std::sin(double{x})))), 1)
        << std::hexfloat << x << ": " << sine;
    ASSERT_LE(std::abs(rankOf(cosine) - rankOf(static_cast<float>(std::cos(double{x})))), 1)
        << std::hexfloat << x << ": " << cosine;
  };
  for (int n = 0; n < 2000000; ++n) {
    const float x = n % 4 == 0 ? floats.next() : n % 4 == 1 ? -floats.moderate() : floats.moderate();
    if (std::isfinite(x)) expectNear(x);
  }
  for (int k = -200; k <= 200; ++k) {  // whole quarter turns and their neighbours
    const auto x = static_cast<float>(k * 1.5707963267948966);
    for (const float near : {x, std::nextafter(x, HUGE_VALF), std::nextafter(x, -HUGE_VALF)}) expectNear(near);
  }
  expectNear(0x1.fffffep127f);
  const auto pair = signal::SineAndCosine()(d, hn::Set(d, -0.0f));
  EXPECT_TRUE(std::signbit(hn::GetLane(pair.sine)));
  EXPECT_EQ(hn::GetLane(pair.cosine), 1);
  for (const float x : {HUGE_VALF, -HUGE_VALF, NAN}) {
    const auto none = signal::SineAndCosine()(d, hn::Set(d, x));
    EXPECT_TRUE(std::isnan(hn::GetLane(none.sine)) && std::isnan(hn::GetLane(none.cosine)));
  }
}

/// A vector with an angle of many turns takes another way, which has the same bits for the others.
TEST(SineAndCosineLanes, NeighboursDoNotMatter) {
  const Lanes<float> d;
  constexpr ptrdiff_t lanes = laneCount<float>;
  alignas(laneAlignment) float x[lanes], sine[2][lanes], cosine[2][lanes];
  AnyFloats floats;
  for (int n = 0; n < 20000; ++n) {
    for (float& each : x) each = floats.moderate() * (n % 2 == 0 ? 1000 : 0.4f);
    for (const int far : {0, 1}) {
      if (far == 1) x[n % lanes] = 1e30f;
      const auto pair = signal::SineAndCosine()(d, hn::Load(d, x));
      hn::Store(pair.sine, d, sine[far]);
      hn::Store(pair.cosine, d, cosine[far]);
    }
    for (ptrdiff_t i = 0; i < lanes; ++i) {
      if (i == n % lanes) continue;
      ASSERT_EQ(sine[0][i], sine[1][i]) << std::hexfloat << x[i];
      ASSERT_EQ(cosine[0][i], cosine[1][i]) << std::hexfloat << x[i];
    }
  }
}

}  // namespace
