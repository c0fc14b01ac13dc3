// vemiConvert between numbers.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "map/caller_rounding.h"

using namespace vemi::test;

namespace {

const char* const betweenIntegers = "(8u16u|8u16s|8u32s|8s32s|16u32s|16u8u|16s8u|32s8u|32s8s)_.*";
const char* const toFloats = "(8u32f|8s32f|16u32f|16s32f)_.*";
const char* const fromFloats = "32f(8u|8s|16u|16s)_.*";

template <class F>
void forEachPair(Call& call, const F& f) {
  const View source = call.source(), destination = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    f(source.element, source.at(x, y, channel), destination.element, destination.at(x, y, channel));
  });
}

void nearestOfType(Call& call) {
  forEachPair(call, [](Element from, const std::byte* source, Element to, std::byte* destination) {
    storeSaturated(to, destination, loadInteger(from, source));
  });
}

void sameAsFloat(Call& call) {
  forEachPair(call, [](Element from, const std::byte* source, Element, std::byte* destination) {
    store(destination, static_cast<float>(loadInteger(from, source)));
  });
}

/// The ends of each type, by saturating a number beyond all of them.
int64_t limitOf(Element element, int64_t beyond) {
  std::byte bytes[8] = {};
  storeSaturated(element, bytes, beyond);
  return loadInteger(element, bytes);
}

int64_t integerOf(float x, Element to, int roundMode) {
  const auto low = static_cast<double>(limitOf(to, -100000)), high = static_cast<double>(limitOf(to, 100000));
  const double limited = std::isnan(x) || x > high ? high : x < low ? low : static_cast<double>(x);
  return static_cast<int64_t>(roundMode == vemiRndNear ? std::nearbyint(limited) : std::trunc(limited));
}

void roundedAndLimited(Call& call) {
  const int roundMode = call.get<int>("roundMode");
  forEachPair(call, [&](Element, const std::byte* source, Element to, std::byte* destination) {
    storeSaturated(to, destination, integerOf(load<float>(source), to, roundMode));
  });
}

template <class T>
using FromFloats = VemiStatus(const Vemi32f*, int, T*, int, VemiSize, vemiRoundMode);

/// All quarters in and around the type's range, and their neighbours on either side.
template <class T>
void expectTies(FromFloats<T>* function) {
  std::vector<Vemi32f> x;
  const int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  for (int quarters = 4 * low - 12; quarters <= 4 * high + 12; ++quarters) {
    const float value = static_cast<float>(quarters) / 4;
    x.insert(x.end(), {std::nextafter(value, -INFINITY), value, std::nextafter(value, INFINITY)});
  }
  std::vector<T> y(x.size());
  const VemiSize size = {static_cast<int>(x.size()), 1};
  for (const int roundMode : std::initializer_list<int>{vemiRndNear, vemiRndZero, 2, -1}) {
    EXPECT_EQ(function(x.data(), 1, y.data(), 1, size, roundMode), vemiOk);
    for (size_t n = 0; n < x.size(); ++n) {
      ASSERT_EQ(y[n], integerOf(x[n], elementOf<T>, roundMode)) << x[n] << " by mode " << roundMode;
    }
  }
}

template <class T>
std::vector<int> converted(FromFloats<T>* function, std::vector<Vemi32f> x, vemiRoundMode roundMode) {
  std::vector<T> y(x.size());
  EXPECT_EQ(function(x.data(), 1, y.data(), 1, {static_cast<int>(x.size()), 1}, roundMode), vemiOk);
  return {y.begin(), y.end()};
}

}  // namespace

TEST(Convert, EveryMember) {
  expectDefinition(membersOf("vemiConvert", betweenIntegers), nearestOfType);
  expectDefinition(membersOf("vemiConvert", toFloats), sameAsFloat);
  expectDefinition(membersOf("vemiConvert", fromFloats), roundedAndLimited);
}

TEST(Convert, WhateverTheCallersRounding) {
  expectInEveryRoundingMode(membersOf("vemiConvert", toFloats), sameAsFloat);
  expectInEveryRoundingMode(membersOf("vemiConvert", fromFloats), roundedAndLimited);
}

TEST(Convert, Ties) {
  expectTies(vemiConvert_32f8u_C1R);
  expectTies(vemiConvert_32f8s_C1R);
  expectTies(vemiConvert_32f16u_C1R);
  expectTies(vemiConvert_32f16s_C1R);
}

TEST(Convert, AsTheManualSays) {
  using Values = std::vector<int>;
  const std::vector<Vemi32f> x = {2.5f, 3.5f, -0.7f, 300.0f, -2.5f, NAN, INFINITY, -INFINITY};
  EXPECT_EQ(converted(vemiConvert_32f8u_C1R, x, vemiRndNear), Values({2, 4, 0, 255, 0, 255, 255, 0}));
  EXPECT_EQ(converted(vemiConvert_32f8u_C1R, x, vemiRndZero), Values({2, 3, 0, 255, 0, 255, 255, 0}));
  EXPECT_EQ(converted(vemiConvert_32f8s_C1R, x, vemiRndNear), Values({2, 4, -1, 127, -2, 127, 127, -128}));
  EXPECT_EQ(converted(vemiConvert_32f8s_C1R, x, vemiRndZero), Values({2, 3, 0, 127, -2, 127, 127, -128}));
  EXPECT_EQ(converted(vemiConvert_32f16u_C1R, x, vemiRndNear), Values({2, 4, 0, 300, 0, 65535, 65535, 0}));
  EXPECT_EQ(converted(vemiConvert_32f16s_C1R, x, vemiRndNear), Values({2, 4, -1, 300, -2, 32767, 32767, -32768}));
}

TEST(Convert, EveryValueOf16Bits) {
  std::vector<Vemi16u> x(65536);
  std::vector<Vemi16s> xSigned(65536);
  std::iota(x.begin(), x.end(), Vemi16u{0});
  std::iota(xSigned.begin(), xSigned.end(), Vemi16s{-32768});
  std::vector<Vemi8u> y(65536), ySigned(65536);
  EXPECT_EQ(vemiConvert_16u8u_C1R(x.data(), 512, y.data(), 256, {256, 256}), vemiOk);
  EXPECT_EQ(vemiConvert_16s8u_C1R(xSigned.data(), 512, ySigned.data(), 256, {256, 256}), vemiOk);
  for (size_t n = 0; n < x.size(); ++n) {
    ASSERT_EQ(y[n], std::min<int>(x[n], 255));
    ASSERT_EQ(ySigned[n], std::clamp<int>(xSigned[n], 0, 255));
  }
}

// Regions that are written past the caches, from a destination that is aligned and one that is not.
TEST(Convert, LargeImages) {
  const VemiSize size = {4099, 1500};
  const size_t count = size_t{4099} * 1500;
  std::vector<Vemi8u> bytes(count + 1), back(count + 1);
  std::vector<Vemi32f> floats(count + 1);
  std::iota(bytes.begin(), bytes.end(), Vemi8u{0});
  for (const int shift : {0, 1}) {
    EXPECT_EQ(vemiConvert_8u32f_C1R(bytes.data(), 4099, floats.data() + shift, 4 * 4099, size), vemiOk);
    EXPECT_EQ(vemiConvert_32f8u_C1R(floats.data() + shift, 4 * 4099, back.data() + shift, 4099, size, 1), vemiOk);
    const auto wrong = std::mismatch(bytes.begin(), bytes.end() - 1, back.begin() + shift).first - bytes.begin();
    EXPECT_EQ(wrong, static_cast<ptrdiff_t>(count));
    EXPECT_EQ(floats[static_cast<size_t>(shift) + 300], 44.0f);
  }
}
