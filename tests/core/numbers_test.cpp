// Saturation, scaling and the approximate reciprocal: scalars against exact integer formulations, lanes against both.

#include "core/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "core/lane_values.h"
#include "support/for_types.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

template <class T, class Wide>
void checkSaturate(T, Wide) {
  constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  for (const Wide v : interestingValues<Wide>()) ASSERT_EQ(saturate<T>(v), std::clamp<int64_t>(v, low, high)) << v;
}

TEST(Saturate, GivesTheNearestValue) {
  forTypes<int8_t, uint8_t>([](auto t) { checkSaturate(t, int16_t()); });
  forTypes<int8_t, uint8_t, int16_t, uint16_t>([](auto t) { checkSaturate(t, int32_t()); });
}

TEST(SaturatedSums, OfAnyIntegers) {
  forTypes<int8_t, uint8_t, int16_t, uint16_t, int32_t>([](auto type) {
    using T = decltype(type);
    constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    const auto values = interestingValues<T>();
    for (const T other : {std::numeric_limits<T>::min(), T(low / 2), T(-1), T(0), T(1), T(high / 2), T(high)}) {
      std::vector<T> sums, differences, averages;
      for (const int64_t v : values) {
        sums.push_back(static_cast<T>(std::clamp(v + other, low, high)));
        differences.push_back(static_cast<T>(std::clamp(v - other, low, high)));
        averages.push_back(static_cast<T>((v + other + 1) >> 1));
      }
      ASSERT_EQ(inLanes([=](auto d, auto v) { return saturatedAdd(d, v, hn::Set(d, other)); }, values), sums);
      ASSERT_EQ(inLanes([=](auto d, auto v) { return saturatedSub(d, v, hn::Set(d, other)); }, values), differences);
      ASSERT_EQ(inLanes([=](auto d, auto v) { return averageRoundedUp(d, v, hn::Set(d, other)); }, values), averages);
    }
  });
}

/// value / 2^shift to nearest, ties to even, by division and remainder.
int64_t exactRoundShift(int64_t value, int shift) {
  const int64_t divisor = int64_t{1} << shift;
  int64_t quotient = value / divisor;
  int64_t rest = value % divisor;
  if (rest < 0) {
    rest += divisor;
    quotient -= 1;
  }
  if (2 * rest > divisor) return quotient + 1;
  if (2 * rest == divisor) return quotient % 2 == 0 ? quotient : quotient + 1;
  return quotient;
}

TEST(PowerOfTwo, IsExactOverTheNormalNumbers) {
  for (int exponent = -126; exponent <= 127; ++exponent) {
    EXPECT_EQ(powerOfTwo<float>(exponent), std::ldexp(1.0f, exponent));
  }
  for (const int exponent : {-1022, -64, 0, 1, 64, 1023}) {
    EXPECT_EQ(powerOfTwo<double>(exponent), std::ldexp(1.0, exponent));
  }
}

TEST(RoundShift, RoundsToNearestTiesToEven) {
  forTypes<int8_t, uint8_t, int16_t, uint16_t, int32_t, uint32_t>([](auto type) {
    using T = decltype(type);
    constexpr int bits = 8 * sizeof(T);
    for (int shift = 1; shift < bits; ++shift) {
      std::vector<T> fitting, expected;
      for (const T value : interestingValues<T>()) {
        const auto exact = static_cast<T>(exactRoundShift(value, shift));
        const int64_t half = int64_t{1} << (shift - 1);
        if (static_cast<int64_t>(value) + half <= std::numeric_limits<T>::max()) {  // else the lanes may overflow
          fitting.push_back(value);
          expected.push_back(exact);
        } else if (sizeof(T) == 4) {
          continue;
        }
        ASSERT_EQ(roundShift(value, shift), exact) << +value << " >> " << shift << " of " << bits;
      }
      ASSERT_EQ(inLanes([=](auto d, auto v) { return roundShift(d, v, shift); }, fitting), expected) << shift;
    }
  });
}

TEST(RoundShift, AnyUnsignedValueAndTheWholeWidth) {
  forTypes<uint8_t, uint16_t>([](auto type) {
    using T = decltype(type);
    const auto values = interestingValues<T>();
    for (int shift = 2; shift <= int{8 * sizeof(T)}; ++shift) {
      std::vector<T> expected;
      for (const T value : values) expected.push_back(static_cast<T>(exactRoundShift(value, shift)));
      const RoundingShift<T> roundingShift(shift);
      ASSERT_EQ(inLanes([&](auto d, auto v) { return roundingShift(d, v); }, values), expected) << shift;
    }
  });
}

TEST(SaturateShiftLeft, EqualsRepeatedSaturatedDoubling) {
  forTypes<int8_t, uint8_t, int16_t, uint16_t, int32_t>([](auto type) {
    using T = decltype(type);
    const auto values = interestingValues<T>();
    std::vector<T> expected = values;
    for (int shift = 0; shift <= 40; ++shift) {
      const SaturatingShiftLeft<T> shiftLeft(shift);
      ASSERT_EQ(inLanes([&](auto d, auto v) { return shiftLeft(d, v); }, values), expected) << shift;
      for (T& v : expected) {
        const int64_t doubled = 2 * static_cast<int64_t>(v);
        constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
        v = static_cast<T>(doubled < low ? low : doubled > high ? high : doubled);
      }
    }
  });
}

uint32_t reciprocalBits(uint32_t bits) {
  return std::bit_cast<uint32_t>(approximateReciprocal(std::bit_cast<float>(bits)));
}

/// Bit patterns in lanes.
std::vector<uint32_t> reciprocalLanes(const std::vector<uint32_t>& patterns) {
  const auto op = [](auto du, auto v) {
    const hn::RebindToFloat<decltype(du)> df;
    return hn::BitCast(du, approximateReciprocal(df, hn::BitCast(df, v)));
  };
  return inLanes(op, patterns);
}

TEST(ApproximateReciprocal, RoundsTheReciprocalOfEachIntervalsMiddle) {
  std::vector<uint32_t> patterns, results;
  for (const uint32_t exponent : {1u, 2u, 64u, 126u, 127u, 128u, 200u, 251u, 252u}) {
    for (uint32_t interval = 0; interval < 2048; ++interval) {
      // For x in [1, 2) the result is q / 2^13, q being the integer nearest to 2^13 / middle; the middle is odd / 2^12.
      const int64_t middle = 4096 + 2 * interval + 1;
      for (const uint32_t inside : {0u, 0x800u, 0xfffu}) {
        for (const uint32_t sign : {0u, 1u}) {
          patterns.push_back(sign << 31 | exponent << 23 | interval << 12 | inside);
          results.push_back(reciprocalBits(patterns.back()));
          const double result = std::bit_cast<float>(results.back());
          const double q = std::ldexp(sign != 0 ? -result : result, 13 + static_cast<int>(exponent) - 127);
          const auto whole = static_cast<int64_t>(q);
          ASSERT_EQ(static_cast<double>(whole), q) << std::hex << patterns.back();
          ASSERT_LT(2 * std::abs((int64_t{1} << 25) - whole * middle), middle) << std::hex << patterns.back();
        }
      }
    }
  }
  inEveryRoundingMode([&] { ASSERT_EQ(reciprocalLanes(patterns), results); });
}

TEST(ApproximateReciprocal, EndsOfTheRange) {
  const struct {
    uint32_t x, result;
  } cases[] = {
      {0x3f800000, 0x3f7ff000},                                                      // 1
      {0x40400000, 0x3eaaa000},                                                      // 3
      {0x00000000, 0x7f800000}, {0x00000001, 0x7f800000}, {0x007fffff, 0x7f800000},  // zero, denormals
      {0x7f800000, 0x00000000},                                                      // infinity
      {0x7e7fffff, 0x00800800},                                                      // the last that stays normal
      {0x7e800000, 0x00000000}, {0x7f7fffff, 0x00000000},                            // below the normal range
      {0x7f800001, 0x7fc00001}, {0x7fc12345, 0x7fc12345},                            // NaNs, signalling and quiet
  };
  for (const auto [x, result] : cases) {
    for (const uint32_t sign : {0u, 0x80000000u}) {
      EXPECT_EQ(reciprocalBits(x | sign), result | sign) << std::hex << (x | sign);
      EXPECT_EQ(reciprocalLanes({x | sign})[0], result | sign) << std::hex << (x | sign);
    }
  }
}

TEST(ApproximateReciprocal, LanesEqualTheScalarForAnyBits) {
  std::vector<uint32_t> patterns, expected;
  for (int i = 0; i < 3'000'000; ++i) {
    patterns.push_back(static_cast<uint32_t>(nextRandom()));
    expected.push_back(reciprocalBits(patterns.back()));
  }
  EXPECT_EQ(reciprocalLanes(patterns), expected);
}

TEST(DivideFloor, IsExactAroundEveryMultiple) {
  std::vector<int32_t> n, m, expected;
  for (const int32_t divisor : {4097, 4098, 5000, 6145, 8191, 65537, 1'000'003, 16777217, 33554431, 67108863}) {
    const int32_t multiples = ((1 << 26) - 2) / divisor;
    for (int32_t q = 0; q <= multiples; q += 1 + q / 64) {
      for (const int32_t delta : {-1, 0, 1, divisor / 2, divisor - 1}) {
        const int64_t value = int64_t{q} * divisor + delta;
        if (value <= 0 || value >= 1 << 26) continue;
        n.push_back(static_cast<int32_t>(value));
        m.push_back(divisor);
        expected.push_back(n.back() / divisor);
      }
    }
  }
  inEveryRoundingMode([&] {
    size_t i = 0;
    const auto quotient = [&](auto d, auto v) {
      const auto divisors = hn::LoadU(d, &m[i]);
      i += hn::Lanes(d);
      return divideFloor(d, v, divisors);
    };
    m.resize(n.size() + hn::Lanes(Lanes<int32_t>()), 4097);
    ASSERT_EQ(inLanes(quotient, n), expected);
  });
}

}  // namespace
