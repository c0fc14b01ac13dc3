// vemiScale.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <numeric>
#include <vector>

#include "map/caller_rounding.h"

using namespace vemi::test;

namespace {

int64_t scaledUp(int64_t x, Element to) {
  if (to == Element::u16) return x * 257;
  if (to == Element::s16) return x * 257 - 32768;
  return x * 257 * 65537 - (int64_t{1} << 31);
}

int64_t scaledDown(int64_t x, Element from, int hint) {
  if (hint == vemiHintAccurate) {
    const auto value = static_cast<double>(x);
    if (from == Element::u16) return static_cast<int64_t>(value * double{0.0038910506f});
    if (from == Element::s16) return static_cast<int64_t>(value * double{0.0038910506f} + double{127.501945f});
    return static_cast<int64_t>(value * 5.937181414556033e-8 + 127.5000000296859);
  }
  const int64_t v = from == Element::u16 ? x - 32768 : x;
  return ((v - (v >> 8)) >> (from == Element::s32 ? 24 : 8)) + 128;
}

float toRange(float x, float vMin, float vMax) { return vMin + x * ((vMax - vMin) / 255); }

/// A factor or a sum beyond the range of floats makes zeros.
int64_t fromRange(float x, float vMin, float vMax) {
  const float factor = 255 / (vMax - vMin), offset = -factor * vMin;
  const float limited = !(x > vMin) ? vMin : x < vMax ? x : vMax;
  const float product = limited * factor;
  const float sum = product + offset;
  return std::isfinite(sum) ? static_cast<int64_t>(std::nearbyint(static_cast<double>(sum))) : 0;
}

void scaleOfMember(Call& call) {
  const View source = call.source(), destination = call.destination();
  const Element from = source.element, to = destination.element;
  const int hint = call.function.indexOf("hint") >= 0 ? call.get<int>("hint") : 0;
  const bool isFloat = from == Element::f32 || to == Element::f32;
  const float vMin = isFloat ? call.get<float>("vMin") : 0, vMax = isFloat ? call.get<float>("vMax") : 0;
  call.anyNaN = isFloat;
  call.forEachElement([&](int x, int y, int channel) {
    const std::byte* const in = source.at(x, y, channel);
    std::byte* const out = destination.at(x, y, channel);
    if (from == Element::f32) return storeSaturated(to, out, fromRange(load<float>(in), vMin, vMax));
    const int64_t value = loadInteger(from, in);
    if (to == Element::f32) return store(out, toRange(static_cast<float>(value), vMin, vMax));
    storeSaturated(to, out, from == Element::u8 ? scaledUp(value, to) : scaledDown(value, from, hint));
  });
}

template <class S>
using Down = VemiStatus(const S*, int, Vemi8u*, int, VemiSize, vemiHint);

template <class S>
std::vector<int> down(Down<S>* function, const std::vector<S>& x, vemiHint hint) {
  std::vector<Vemi8u> y(x.size());
  EXPECT_EQ(function(x.data(), 1, y.data(), 1, {static_cast<int>(x.size()), 1}, hint), vemiOk);
  return {y.begin(), y.end()};
}

template <class S>
void expectDown(Down<S>* function, const std::vector<S>& x) {
  for (const int hint : std::initializer_list<int>{vemiHintNone, vemiHintFast, vemiHintAccurate, 7}) {
    const std::vector<int> y = down(function, x, hint);
    for (size_t n = 0; n < x.size(); ++n) {
      ASSERT_EQ(y[n], scaledDown(x[n], elementOf<S>, hint)) << x[n] << ", hint " << hint;
    }
  }
}

}  // namespace

TEST(Scale, EveryMember) { expectDefinition(membersOf("vemiScale"), scaleOfMember); }

TEST(Scale, WhateverTheCallersRounding) { expectInEveryRoundingMode(membersOf("vemiScale"), scaleOfMember); }

TEST(Scale, EveryValueOf16Bits) {
  std::vector<Vemi16u> x(65536);
  std::vector<Vemi16s> xSigned(65536);
  std::iota(x.begin(), x.end(), Vemi16u{0});
  std::iota(xSigned.begin(), xSigned.end(), Vemi16s{-32768});
  expectDown(vemiScale_16u8u_C1R, x);
  expectDown(vemiScale_16s8u_C1R, xSigned);
}

// Where the result of 32 bits steps, by either path, on both sides.
TEST(Scale, AroundTheStepsOf32Bits) {
  std::vector<Vemi32s> x;
  for (int64_t step = 0; step <= 256; ++step) {
    for (const int64_t middle : {step * 0x01010101, step * 0x01010101 - 0x808080}) {
      for (int64_t offset = -200; offset <= 200; ++offset) {
        x.push_back(static_cast<Vemi32s>(std::clamp<int64_t>(middle + offset, 0, 0xffffffff) - 0x80000000));
      }
    }
  }
  expectDown(vemiScale_32s8u_C1R, x);
}

TEST(Scale, AsTheManualSays) {
  using Values = std::vector<int>;
  const Vemi8u ends[] = {0, 255};
  Vemi16u wide[2];
  Vemi16s words[2];
  Vemi32s integers[2];
  EXPECT_EQ(vemiScale_8u16u_C1R(ends, 2, wide, 4, {2, 1}), vemiOk);
  EXPECT_EQ(vemiScale_8u16s_C1R(ends, 2, words, 4, {2, 1}), vemiOk);
  EXPECT_EQ(vemiScale_8u32s_C1R(ends, 2, integers, 8, {2, 1}), vemiOk);
  EXPECT_EQ(wide[0], 0);
  EXPECT_EQ(wide[1], 65535);
  EXPECT_EQ(words[0], -32768);
  EXPECT_EQ(words[1], 32767);
  EXPECT_EQ(integers[0], INT32_MIN);
  EXPECT_EQ(integers[1], INT32_MAX);
  EXPECT_EQ(down<Vemi16s>(vemiScale_16s8u_C1R, {-32768, 32767}, vemiHintFast), Values({0, 255}));
  EXPECT_EQ(down<Vemi16s>(vemiScale_16s8u_C1R, {-32768, 32767}, vemiHintAccurate), Values({0, 254}));
  EXPECT_EQ(down<Vemi16u>(vemiScale_16u8u_C1R, {257, 258, 65535}, vemiHintAccurate), Values({0, 1, 254}));
  EXPECT_EQ(down<Vemi32s>(vemiScale_32s8u_C1R, {INT32_MIN, INT32_MAX}, vemiHintAccurate), Values({0, 255}));
}

TEST(Scale, BytesComeBack) {
  std::vector<Vemi8u> x(256), y(256);
  std::iota(x.begin(), x.end(), Vemi8u{0});
  std::vector<Vemi16u> wide(256);
  std::vector<Vemi32s> integers(256);
  std::vector<Vemi32f> floats(256);
  const VemiSize size = {256, 1};
  vemiScale_8u16u_C1R(x.data(), 1, wide.data(), 1, size);
  vemiScale_8u32s_C1R(x.data(), 1, integers.data(), 1, size);
  EXPECT_EQ(down(vemiScale_16u8u_C1R, wide, vemiHintFast), std::vector<int>(x.begin(), x.end()));
  for (const int hint : {vemiHintFast, vemiHintAccurate}) {
    EXPECT_EQ(down(vemiScale_32s8u_C1R, integers, hint), std::vector<int>(x.begin(), x.end()));
  }
  for (const auto& [vMin, vMax] : {std::pair{0.0f, 1.0f}, std::pair{-3.0f, 1e6f}, std::pair{1000.0f, 1001.0f}}) {
    EXPECT_EQ(vemiScale_8u32f_C1R(x.data(), 1, floats.data(), 1, size, vMin, vMax), vemiOk);
    EXPECT_EQ(vemiScale_32f8u_C1R(floats.data(), 1, y.data(), 1, size, vMin, vMax), vemiOk);
    EXPECT_EQ(y, x);
  }
}

// Where the range itself loses bits, a value above it still counts as its end.
TEST(Scale, RangesThatRoundBadly) {
  for (const float vMin : {-1e9f, -16777216.0f, -1234.567f, 16777215.0f, 1e9f}) {
    for (const float length : {1.0f, 3.0f, 64.0f, 1000.0f, 1e10f}) {
      const float vMax = vMin + length;
      if (!(vMax > vMin)) continue;
      const std::vector<Vemi32f> x = {-INFINITY, -FLT_MAX, vMin, (vMin + vMax) / 2, std::nextafter(vMax, vMin), vMax,
                                      FLT_MAX,   INFINITY, NAN};
      std::vector<Vemi8u> y(x.size());
      EXPECT_EQ(vemiScale_32f8u_C1R(x.data(), 1, y.data(), 1, {static_cast<int>(x.size()), 1}, vMin, vMax), vemiOk);
      for (size_t n = 0; n < x.size(); ++n) {
        EXPECT_EQ(y[n], std::clamp<int64_t>(fromRange(x[n], vMin, vMax), 0, 255))
            << x[n] << " in " << vMin << ".." << vMax;
      }
    }
  }
}
