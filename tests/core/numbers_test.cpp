// Rounding, saturation and the approximate reciprocal: scalars against exact integer formulations, lanes against both.

#include "core/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cfenv>
#include <cmath>
#include <limits>
#include <vector>

#include "support/for_types.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// op over all values in lanes, whatever their number.
template <class T, class Op>
std::vector<T> inLanes(const Op& op, std::vector<T> values) {
  const Lanes<T> d;
  const size_t count = values.size();
  values.resize(count + hn::Lanes(d), T(1));
  for (size_t i = 0; i < count; i += hn::Lanes(d)) hn::StoreU(op(d, hn::LoadU(d, &values[i])), d, &values[i]);
  values.resize(count);
  return values;
}

/// Every value of a type of 8 or 16 bits; for 32 bits those around every power of two and every 3/2 of one.
template <class T>
std::vector<T> interestingValues() {
  std::vector<T> values;
  if constexpr (sizeof(T) < 4) {
    for (int64_t v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); ++v) {
      values.push_back(static_cast<T>(v));
    }
  } else {
    for (int k = 0; k < 32; ++k) {
      for (int64_t base : {int64_t{1} << k, int64_t{3} << k}) {
        for (int64_t delta : {-2, -1, 0, 1, 2}) {
          for (int64_t v : {base + delta, -base + delta}) {
            if (static_cast<int64_t>(static_cast<T>(v)) == v) values.push_back(static_cast<T>(v));
          }
        }
      }
    }
  }
  return values;
}

template <class T, class Wide>
void checkSaturate(T, Wide) {
  constexpr int64_t low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  for (const Wide v : interestingValues<Wide>()) ASSERT_EQ(saturate<T>(v), std::clamp<int64_t>(v, low, high)) << v;
}

TEST(Saturate, GivesTheNearestValue) {
  forTypes<int8_t, uint8_t>([](auto t) { checkSaturate(t, int16_t()); });
  forTypes<int8_t, uint8_t, int16_t, uint16_t>([](auto t) { checkSaturate(t, int32_t()); });
}

/// The lanes of a widened vector as elements.
template <class DW, class V>
std::vector<hn::TFromD<DW>> elementsOf(DW dWide, Widened<V> wide) {
  std::vector<hn::TFromD<DW>> elements(2 * hn::Lanes(dWide));
  hn::StoreU(wide.lower, dWide, &elements[0]);
  hn::StoreU(wide.upper, dWide, &elements[elements.size() / 2]);
  return elements;
}

// Which wide lane belongs to which narrow one is theirs to choose, so the test asks by widening the lanes' indices.
template <class T, class Wide>
void checkNarrow(T, Wide) {
  const Lanes<T> d;
  const Lanes<Wide> dWide;
  const auto index = elementsOf(hn::RepartitionToWide<Lanes<T>>(), widen(d, hn::Iota(d, 0)));
  const size_t n = index.size();
  const auto values = interestingValues<Wide>();
  std::vector<Wide> wide(n);
  std::vector<T> result(n);
  for (size_t first = 0; first + n <= values.size(); first += n) {
    for (size_t i = 0; i < n; ++i) wide[i] = values[first + static_cast<size_t>(index[i])];
    const hn::Vec<Lanes<Wide>> lower = hn::LoadU(dWide, &wide[0]), upper = hn::LoadU(dWide, &wide[n / 2]);
    hn::StoreU(narrow(d, Widened<hn::Vec<Lanes<Wide>>>{lower, upper}), d, &result[0]);
    for (size_t i = 0; i < n; ++i) {
      const auto nearest =
          std::clamp<int64_t>(values[first + i], std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
      ASSERT_EQ(result[i], nearest) << values[first + i];
    }
  }
}

TEST(Lanes, NarrowingSaturatesAndUndoesWidening) {
  checkNarrow(uint8_t(), int16_t());
  checkNarrow(uint8_t(), uint16_t());
  checkNarrow(int16_t(), int32_t());
}

TEST(Lanes, WideningKeepsEveryValue) {
  forTypes<int8_t, uint8_t, int16_t, uint16_t>([](auto type) {
    const Lanes<decltype(type)> d;
    const auto values = interestingValues<decltype(type)>();
    for (size_t first = 0; first < values.size(); first += hn::Lanes(d)) {
      auto wide = elementsOf(hn::RepartitionToWide<decltype(d)>(), widen(d, hn::LoadU(d, &values[first])));
      std::sort(wide.begin(), wide.end());  // the values are consecutive
      ASSERT_TRUE(std::equal(wide.begin(), wide.end(), &values[first]));
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

/// Runs f in each rounding mode of the processor.
template <class F>
void inEveryRoundingMode(const F& f) {
  const int mode = std::fegetround();
  for (const int other : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    ASSERT_EQ(std::fesetround(other), 0);
    SCOPED_TRACE(other);
    f();
  }
  std::fesetround(mode);
}

/// |value| < 2^31. The truncated part and the fraction are exact in double precision.
float exactRoundTiesEven(float value) {
  const auto whole = static_cast<int64_t>(value);
  const double fraction = static_cast<double>(value) - static_cast<double>(whole);
  const double size = fraction < 0 ? -fraction : fraction;
  const bool away = size > 0.5 || (size == 0.5 && whole % 2 != 0);
  return static_cast<float>(away ? (value < 0 ? whole - 1 : whole + 1) : whole);
}

TEST(RoundTiesEven, IsIndependentOfTheRoundingMode) {
  std::vector<float> values = {0.0f,        -0.0f,      1e-45f,      -1e-45f,      8388607.5f,
                               -8388607.5f, 8388608.0f, 16777215.0f, 2147483520.0f};
  for (int k = -3000; k <= 3000; ++k) {
    const float tie = static_cast<float>(k) + 0.5f;
    for (const float v : {tie, std::nextafter(tie, -1e9f), std::nextafter(tie, 1e9f), tie - 0.5f}) values.push_back(v);
  }
  for (uint32_t bits = 0; bits < 0x4f000000u; bits += 40013) {
    values.push_back(std::bit_cast<float>(bits));
    values.push_back(-values.back());
  }
  std::vector<float> expected;
  for (const float v : values) expected.push_back(exactRoundTiesEven(v));
  const float infinity = std::numeric_limits<float>::infinity();
  for (const float v : {infinity, -infinity, 1e30f, -1e30f}) {
    values.push_back(v);
    expected.push_back(v);
  }
  inEveryRoundingMode([&] {
    for (size_t i = 0; i < values.size(); ++i) ASSERT_EQ(roundTiesEven(values[i]), expected[i]) << values[i];
    ASSERT_EQ(inLanes([](auto d, auto v) { return roundTiesEven(d, v); }, values), expected);
    ASSERT_TRUE(std::isnan(roundTiesEven(std::nanf(""))));
  });
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
