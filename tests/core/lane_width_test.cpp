// Lanes of one width as lanes of another: values, their order, and saturation.

#include "core/lane_width.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "core/lane_values.h"
#include "support/for_types.h"

using namespace vemi;
using namespace vemi::test;

namespace {

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

TEST(LaneWidth, NarrowingSaturatesAndUndoesWidening) {
  checkNarrow(uint8_t(), int16_t());
  checkNarrow(uint8_t(), uint16_t());
  checkNarrow(int16_t(), int32_t());
}

TEST(LaneWidth, WideningKeepsEveryValue) {
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

TEST(LaneWidth, EvenAndOddLanesReturnToTheirPlaces) {
  forTypes<uint8_t, uint16_t, uint32_t>([](auto type) {
    using T = decltype(type);
    const Lanes<T> d;
    const auto values = interestingValues<T>();
    const auto wide = elementsOf(hn::RepartitionToWide<decltype(d)>(), evenAndOdd(hn::LoadU(d, values.data())));
    for (size_t i = 0; i < hn::Lanes(d); ++i) ASSERT_EQ(wide[i / 2 + i % 2 * hn::Lanes(d) / 2], values[i]);

    std::vector<T> expected;  // the upper half of a product with 3, as no narrow lane holds
    for (const T v : values) expected.push_back(static_cast<T>(uint64_t{v} * 3 >> 1));
    const auto product = [](auto dWide, auto v) {
      const auto timesThree = hn::Add(v, hn::Add(v, v));
      return hn::And(hn::ShiftRight<1>(timesThree), hn::Set(dWide, std::numeric_limits<T>::max()));
    };
    ASSERT_EQ(inLanes([&](auto dT, auto v) { return inWideLanes(dT, product, v); }, values), expected);
  });
}

TEST(LaneWidth, HalvesReturnToTheirPlaces) {
  const auto values = interestingValues<int32_t>();
  std::vector<int32_t> expected;
  for (const int64_t v : values) expected.push_back(static_cast<int32_t>((v + 1) / 2));
  const auto halved = [](auto half) {  // by doubles, which fit half a vector
    const hn::DFromV<decltype(half)> dHalf;
    const hn::Rebind<double, decltype(dHalf)> dd;
    return hn::DemoteTo(dHalf, hn::Mul(hn::Add(hn::PromoteTo(dd, half), hn::Set(dd, 1)), hn::Set(dd, 0.5)));
  };
  ASSERT_EQ(inLanes([&](auto d, auto v) { return inHalves(d, halved, v); }, values), expected);
}

template <class T, class S>
void checkPackEach(T, S) {
  const Lanes<T> d;
  const Lanes<S> ds;
  auto values = interestingValues<S>();
  values.resize(values.size() / hn::Lanes(d) * hn::Lanes(d));
  std::vector<T> result(hn::Lanes(d));
  for (size_t first = 0; first < values.size(); first += hn::Lanes(d)) {
    const auto vector = [&](auto k) { return hn::LoadU(ds, &values[first + static_cast<size_t>(k) * hn::Lanes(ds)]); };
    hn::StoreU(packEach<S>(d, vector), d, result.data());
    for (size_t i = 0; i < result.size(); ++i) {
      const auto nearest =
          std::clamp<int64_t>(values[first + i], std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
      ASSERT_EQ(result[i], nearest) << values[first + i];
    }
  }
}

TEST(LaneWidth, PacksKeepTheOrder) {
  checkPackEach(int8_t(), int16_t());
  checkPackEach(uint8_t(), int16_t());
  checkPackEach(int8_t(), int32_t());
  checkPackEach(uint8_t(), int32_t());
  checkPackEach(int16_t(), int32_t());
  checkPackEach(uint16_t(), int32_t());
}

template <class T, class S>
void checkLoadExtended(T, S) {
  const Lanes<T> d;
  const auto values = interestingValues<S>();
  std::vector<T> result(hn::Lanes(d));
  for (size_t first = 0; first + result.size() <= values.size(); first += result.size()) {
    hn::StoreU(loadExtended(d, &values[first]), d, result.data());
    for (size_t i = 0; i < result.size(); ++i) ASSERT_EQ(result[i], static_cast<T>(values[first + i]));
  }
}

TEST(LaneWidth, NarrowElementsKeepTheirValues) {
  checkLoadExtended(int16_t(), uint8_t());
  checkLoadExtended(int32_t(), int8_t());
  checkLoadExtended(int32_t(), uint16_t());
  checkLoadExtended(float(), uint8_t());
  checkLoadExtended(float(), int16_t());
}

}  // namespace
