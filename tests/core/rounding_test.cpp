// Floats and doubles to integers: every row of the table in core/rounding.h against the exact value, with NaNs, limits,
// and all modes where none may matter.

#include "core/rounding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "core/lane_values.h"
#include "support/for_types.h"

using namespace vemi;
using namespace vemi::test;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Ties, their neighbours, ends of the ranges, numbers of all sizes, infinities, NaNs.
template <class Float>
std::vector<Float> numbersOfAllSizes() {
  std::vector<Float> values = {0, std::numeric_limits<Float>::denorm_min(), 8388607.5, 8388608, 16777215, 2147483520};
  for (int k = 0; k <= 3000; ++k) {
    const Float tie = static_cast<Float>(k) + Float(0.5);
    for (const Float v : {tie, std::nextafter(tie, Float(-1e9)), std::nextafter(tie, Float(1e9)), tie - Float(0.5)}) {
      values.push_back(v);
    }
  }
  for (const double edge : {127.0, 255.0, 32767.0, 65535.0, 2147483647.0}) {
    for (const double distance : {-1.0, -0.5, 0.0, 0.5, 1.0, 1.5})
      values.push_back(static_cast<Float>(edge + distance));
  }
  for (double v = 1e-30; v < 1e30; v *= 1.37) values.push_back(static_cast<Float>(v));
  values.push_back(static_cast<Float>(infinity));
  const size_t positive = values.size();
  for (size_t i = 0; i < positive; ++i) values.push_back(-values[i]);
  values.push_back(std::numeric_limits<Float>::quiet_NaN());
  values.push_back(-std::numeric_limits<Float>::quiet_NaN());
  return values;
}

enum class Ties { even, away };

/// The nearest integer, limited to T, from the whole part and the fraction, which are exact.
template <class T>
T exactNearest(double value, Ties ties = Ties::even) {
  using Limits = std::numeric_limits<T>;
  const double size = std::fabs(value), whole = std::trunc(size), fraction = size - whole;
  const bool isTieUp = fraction == 0.5 && (ties == Ties::away || std::fmod(whole, 2) != 0);
  const double nearest = std::copysign(fraction > 0.5 || isTieUp ? whole + 1 : whole, value);
  return nearest <= Limits::min() ? Limits::min() : nearest >= Limits::max() ? Limits::max() : static_cast<T>(nearest);
}

/// Lanes of 32 bits of floats.
template <class Op>
std::vector<int32_t> integersOf(const Op& op, std::vector<float> values) {
  const Lanes<float> df;
  const Lanes<int32_t> di;
  std::vector<int32_t> result(values.size() + hn::Lanes(df));
  values.resize(result.size());
  for (size_t i = 0; i + hn::Lanes(df) <= result.size(); i += hn::Lanes(df)) {
    hn::StoreU(op(di, hn::LoadU(df, &values[i])), di, &result[i]);
  }
  return result;
}

template <class T>
void checkNearestOf(T) {
  const auto floats = numbersOfAllSizes<float>();
  const auto nearest = integersOf([](auto di, auto v) { return nearestOf<T>(di, v); }, floats);
  const auto away = integersOf([](auto di, auto v) { return halvesAwayOf<T>(di, v); }, floats);
  for (size_t i = 0; i < floats.size(); ++i) {
    const bool isNaN = std::isnan(floats[i]);
    const auto packed = [](int32_t v) {
      return std::clamp<int32_t>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
    };
    ASSERT_EQ(packed(nearest[i]), isNaN ? std::numeric_limits<T>::min() : exactNearest<T>(floats[i])) << floats[i];
    // The sum with one half is rounded, which tells below one half and from 2^23 on.
    const float sum = std::fabs(floats[i]) + 0.5f;
    const double size = std::floor(static_cast<double>(sum));
    ASSERT_EQ(packed(away[i]), isNaN ? 0 : exactNearest<T>(std::copysign(size, floats[i]))) << floats[i];
    if (std::fabs(floats[i]) < 4e6f && sum - 0.5f == std::fabs(floats[i])) {
      ASSERT_EQ(packed(away[i]), exactNearest<T>(floats[i], Ties::away)) << floats[i];
    }
  }
}

template <class T>
void checkNearestOfDoubles(T) {
  const Lanes<int32_t> di;
  const Lanes<double> dd;
  auto values = numbersOfAllSizes<double>();
  values.resize(values.size() + hn::Lanes(di), 1);
  int32_t result[laneCount<int32_t>];
  for (size_t first = 0; first + hn::Lanes(di) <= values.size(); first += hn::Lanes(di)) {
    const auto lower = hn::LoadU(dd, &values[first]), upper = hn::LoadU(dd, &values[first + hn::Lanes(dd)]);
    hn::StoreU(nearestOf<T>(di, lower, upper), di, result);
    for (size_t i = 0; i < hn::Lanes(di); ++i) {
      const double v = values[first + i];
      ASSERT_EQ(result[i], std::isnan(v) ? std::numeric_limits<T>::min() : exactNearest<T>(v)) << v;
    }
  }
}

TEST(Rounding, LanesToNearestWithSaturation) {
  forTypes<int8_t, uint8_t, int16_t, uint16_t, int32_t>([](auto type) {
    checkNearestOf(type);
    checkNearestOfDoubles(type);
  });
}

TEST(Rounding, LanesTowardsZeroWithSaturation) {
  auto values = numbersOfAllSizes<float>();
  values.resize(values.size() - 2);  // no NaNs
  inEveryRoundingMode([&] {
    const auto truncated = integersOf([](auto di, auto v) { return truncatedSaturated(di, v); }, values);
    for (size_t i = 0; i < values.size(); ++i) {
      ASSERT_EQ(truncated[i], exactNearest<int32_t>(std::trunc(values[i]))) << values[i];
    }
  });
}

TEST(Rounding, BelowSumsWholeOnesGoToEven) {
  std::vector<float> sums;
  for (int k = 0; k < 70000; ++k) {
    for (const float v : {0.0f, 0.25f, 0.5f, 0.99f}) sums.push_back(static_cast<float>(k) + v);
  }
  const auto result = integersOf([](auto di, auto v) { return nearestBelowSum(di, v); }, sums);
  const Lanes<double> dd;
  const hn::Half<Lanes<int32_t>> dHalf;
  int32_t ofDoubles[laneCount<double>];
  for (size_t i = 0; i < sums.size(); ++i) {
    const int truncated = static_cast<int>(sums[i]);
    const bool isWhole = static_cast<float>(truncated) == sums[i];
    const int expected = isWhole && truncated % 2 != 0 ? truncated - 1 : truncated;
    ASSERT_EQ(result[i], expected) << sums[i];
    hn::StoreU(nearestBelowSum(dHalf, hn::Set(dd, static_cast<double>(sums[i]))), dHalf, ofDoubles);
    ASSERT_EQ(ofDoubles[0], expected) << sums[i];
  }
}

TEST(Rounding, ScalarsInEveryMode) {
  const auto floats = numbersOfAllSizes<float>();
  const auto doubles = numbersOfAllSizes<double>();
  const auto check = [](const auto& values, auto type) {
    using T = decltype(type);
    for (const auto v : values) {
      constexpr T lowest = std::numeric_limits<T>::min();
      ASSERT_EQ(nearestTo<T>(v), std::isnan(v) ? lowest : exactNearest<T>(v)) << v;
      ASSERT_EQ(truncatedTo<T>(v), std::isnan(v) ? lowest : exactNearest<T>(std::trunc(v))) << v;
    }
  };
  inEveryRoundingMode([&] {
    forTypes<int8_t, uint8_t, int16_t, uint16_t, int32_t>([&](auto type) {
      check(floats, type);
      check(doubles, type);
    });
    for (const double v : {1e30, -infinity, infinity}) ASSERT_EQ(roundTiesEven(v), v);
    ASSERT_TRUE(std::isnan(roundTiesEven(std::nanf(""))));
  });
}

TEST(Rounding, To64Bits) {
  constexpr int64_t lowest = std::numeric_limits<int64_t>::min();
  EXPECT_EQ(roundedTo64(2.5), 2);
  EXPECT_EQ(roundedTo64(-3.5), -4);
  EXPECT_EQ(roundedTo64(-0x1p63), lowest);
  EXPECT_EQ(roundedTo64(0x1.fffffffffffffp62), 0x7ffffffffffffc00);
  for (const double v : {0x1p63, -0x1.1p63, infinity, -infinity, std::nan("")}) EXPECT_EQ(roundedTo64(v), lowest) << v;
  ASSERT_EQ(std::fesetround(FE_UPWARD), 0);
  const int64_t up = roundedTo64(2.25);
  std::fesetround(FE_TONEAREST);
  EXPECT_EQ(up, 3);
}

TEST(NearestIntegers, OfDoublesKeepTheirOrder) {
  std::vector<double> values = {2147483646.5, -2147483647.5, 2147483647.25, -2147483648.25, 0.0, -0.0};
  for (int k = -3000; k <= 3000; ++k) {
    for (const double v : {k + 0.5, std::nextafter(k + 0.5, -1e9), std::nextafter(k + 0.5, 1e9)}) values.push_back(v);
  }
  const Lanes<int32_t> d;
  const Lanes<double> dWide;
  constexpr size_t N = laneCount<double>;
  std::vector<int32_t> inSequence(2 * N), byTurns(2 * N);
  for (size_t first = 0; first + 2 * N <= values.size(); first += 2 * N) {
    const auto lower = hn::LoadU(dWide, &values[first]), upper = hn::LoadU(dWide, &values[first + N]);
    hn::StoreU(nearestIntegers(d, lower, upper), d, inSequence.data());
    hn::StoreU(nearestIntegerPairs(d, lower, upper), d, byTurns.data());
    for (size_t i = 0; i < 2 * N; ++i) {
      const double expected = std::nearbyint(values[first + i]);
      ASSERT_EQ(inSequence[i], expected) << values[first + i];
      ASSERT_EQ(byTurns[i < N ? 2 * i : 2 * (i - N) + 1], expected) << values[first + i];
    }
  }
}

}  // namespace
