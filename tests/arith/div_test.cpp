// vemiDiv and vemiDivC of real elements.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <vector>

#include "arith/scaled_reference.h"
#include "support/check.h"
#include "support/values.h"

using namespace vemi::test;

namespace {

/// 2^-scaleFactor; infinity or zero beyond the range of floats.
float scaleOf(int scaleFactor) { return std::ldexp(1.0f, -std::clamp(scaleFactor, -200, 200)); }

/// v + offset, truncated; an odd result of an exact sum lowered.
int64_t roundedSum(float v, float offset) {
  const float sum = v + offset;
  const auto whole = static_cast<int64_t>(sum);
  return static_cast<float>(whole) == sum && whole % 2 != 0 ? whole - 1 : whole;
}

template <class T>
T rounded(float v);
template <>
Vemi8u rounded<Vemi8u>(float v) {
  return v > 255 ? 255 : static_cast<Vemi8u>(std::min<int64_t>(roundedSum(v, 0.5f), 255));
}
template <>
Vemi16s rounded<Vemi16s>(float v) {
  if (v < -32768) return -32768;
  if (v > 32767) return 32767;
  return static_cast<Vemi16s>(roundedSum(v, 32768.5f) - 32768);
}

template <class T>
T quotient(T x, T d, int scaleFactor) {
  using Limits = std::numeric_limits<T>;
  if (x == 0) return 0;
  if (d == 0) return x > 0 ? Limits::max() : Limits::min();
  if (sizeof(T) == 1 && scaleFactor < -15) return 255;
  if (sizeof(T) == 1 && scaleFactor > 8) return 0;
  return rounded<T>(static_cast<float>(x) * scaleOf(scaleFactor) / static_cast<float>(d));
}

/// 1 / value in decimal, six places, half up.
float decimalReciprocal(int value) {
  const int millionths = (2000000 / value + 1) / 2;
  char text[16];
  std::snprintf(text, sizeof text, "%d.%06d", millionths / 1000000, millionths % 1000000);
  return std::strtof(text, nullptr);
}

Vemi8u quotientByFactor(Vemi8u x, Vemi8u value, int scaleFactor) {
  return x == 0 ? Vemi8u{0}
                : rounded<Vemi8u>(static_cast<float>(x) * (scaleOf(scaleFactor) * decimalReciprocal(value)));
}
Vemi16s quotientByFactor(Vemi16s x, Vemi16s value, int scaleFactor) {
  return x == 0 ? Vemi16s{0}
                : rounded<Vemi16s>(static_cast<float>(x) * (scaleOf(scaleFactor) / static_cast<float>(value)));
}

void storeQuotient(Call& call, std::byte* result, const std::byte* x, const std::byte* d, Element element) {
  const int s = call.scenario.scaleFactor;
  if (element == Element::u8) store(result, quotient(load<Vemi8u>(x), load<Vemi8u>(d), s));
  if (element == Element::s16) store(result, quotient(load<Vemi16s>(x), load<Vemi16s>(d), s));
  if (element == Element::f32) store(result, load<float>(x) / load<float>(d));
}

bool isZero(const std::byte* place, Element element) {
  return element == Element::f32 ? load<float>(place) == 0 : loadInteger(element, place) == 0;
}

/// The first source divides the second.
void quotientOfTwo(Call& call) {
  const View divisor = call.source(0), x = call.source(1), result = call.destination();
  call.anyNaN = true;
  call.forEachElement([&](int column, int y, int channel) {
    const std::byte* const d = divisor.at(column, y, channel);
    storeQuotient(call, result.at(column, y, channel), x.at(column, y, channel), d, result.element);
    if (isZero(d, result.element)) call.expectedStatus = vemiWarnDivByZero;
  });
}

void quotientOfOneConstant(Call& call) {
  const View x = call.source(), result = call.destination();
  if (isZero(call.constant(), x.element)) {
    call.expectedStatus = vemiErrDivByZero;
    return;
  }
  call.forEachElement([&](int column, int y, int) {
    const int s = call.scenario.scaleFactor;
    const std::byte* const from = x.at(column, y);
    std::byte* const to = result.at(column, y);
    if (x.element == Element::u8) store(to, quotientByFactor(load<Vemi8u>(from), load<Vemi8u>(call.constant()), s));
    if (x.element == Element::s16) store(to, quotientByFactor(load<Vemi16s>(from), load<Vemi16s>(call.constant()), s));
  });
}

void quotientOfThreeConstants(Call& call) {
  const View x = call.source(), result = call.destination();
  call.forEachElement([&](int column, int y, int channel) {
    const std::byte* const d = call.constant(channel);
    storeQuotient(call, result.at(column, y, channel), x.at(column, y, channel), d, result.element);
    if (isZero(d, result.element)) call.expectedStatus = vemiErrDivByZero;
  });
}

void productWithReciprocals(Call& call) {
  const View x = call.source(), result = call.destination();
  call.anyNaN = true;
  for (int channel = 0; channel < x.channels; ++channel) {
    const float value = load<float>(call.constant(channel));
    if (value == 0 || std::isnan(value)) call.expectedStatus = vemiErrDivByZero;
  }
  if (call.expectedStatus != vemiOk) return;
  call.forEachElement([&](int column, int y, int channel) {
    const float reciprocal = 1.0f / load<float>(call.constant(channel));
    store(result.at(column, y, channel), load<float>(x.at(column, y, channel)) * reciprocal);
  });
}

/// A row for each divisor, with all dividends; `call` fills `result` and gives a status.
template <class T>
struct Pairs {
  std::vector<T> divisors, dividends, expected, result;
  int width, height;

  Pairs(const std::vector<T>& d, const std::vector<T>& x) {
    width = static_cast<int>(x.size());
    height = static_cast<int>(d.size());
    for (const T each : d) {
      divisors.insert(divisors.end(), x.size(), each);
      dividends.insert(dividends.end(), x.begin(), x.end());
    }
    expected.resize(dividends.size());
    result.resize(dividends.size());
  }
  int step() const { return width * static_cast<int>(sizeof(T)); }
  VemiSize size() const { return {width, height}; }
  template <class F>
  void expect(F f) {
    for (size_t n = 0; n < expected.size(); ++n) expected[n] = f(dividends[n], divisors[n]);
  }
};

std::vector<Vemi8u> all8u() {
  std::vector<Vemi8u> all(256);
  std::iota(all.begin(), all.end(), Vemi8u{0});
  return all;
}

/// Of one divisor other than zero, all dividends: a tie, or a quotient that is close to one, is among them.
template <class T, class Function>
void expectConstant(Pairs<T>& row, Function function, int scaleFactor) {
  const T value = row.divisors[0];
  row.expect([&](T x, T d) { return quotientByFactor(x, d, scaleFactor); });
  EXPECT_EQ(function(row.dividends.data(), row.step(), value, row.result.data(), row.step(), row.size(), scaleFactor),
            vemiOk);
  EXPECT_TRUE(row.result == row.expected) << "value " << static_cast<int>(value) << ", scaleFactor " << scaleFactor;
}

}  // namespace

TEST(Div, EveryIntegerMember) {
  expectDefinition(membersOf("vemiDiv", "(8u|16s)_.*"), quotientOfTwo, allScaleFactors());
}

TEST(Div, EveryFloatMember) { expectDefinition(membersOf("vemiDiv", "32f_.*"), quotientOfTwo); }

TEST(DivC, EveryMemberWithOneConstant) {
  expectDefinition(membersOf("vemiDivC", "(8u|16s)_C1.*"), quotientOfOneConstant, allScaleFactors());
}

TEST(DivC, EveryMemberWithThreeConstants) {
  expectDefinition(membersOf("vemiDivC", "(8u|16s)_C3.*"), quotientOfThreeConstants, allScaleFactors());
}

TEST(DivC, EveryFloatMember) { expectDefinition(membersOf("vemiDivC", "32f_.*"), productWithReciprocals); }

TEST(Div, AllPairsOf8u) {
  Pairs<Vemi8u> pairs(all8u(), all8u());
  for (const int scaleFactor : allScaleFactors()) {
    pairs.expect([&](Vemi8u x, Vemi8u d) { return quotient(x, d, scaleFactor); });
    EXPECT_EQ(vemiDiv_8u_C1RSfs(pairs.divisors.data(), 256, pairs.dividends.data(), 256, pairs.result.data(), 256,
                                pairs.size(), scaleFactor),
              vemiWarnDivByZero);
    EXPECT_TRUE(pairs.result == pairs.expected) << "scaleFactor " << scaleFactor;
  }
}

TEST(DivC, AllPairsOf8u) {
  for (int value = 1; value < 256; ++value) {
    Pairs<Vemi8u> row({static_cast<Vemi8u>(value)}, all8u());
    for (const int scaleFactor : allScaleFactors()) expectConstant(row, vemiDivC_8u_C1RSfs, scaleFactor);
  }
}

TEST(Div, PairsOf16sAroundPowersOfTwo) {
  Pairs<Vemi16s> pairs(around16sPowersOfTwo(), around16sPowersOfTwo());
  const int step = pairs.step();
  for (const int scaleFactor : allScaleFactors()) {
    pairs.expect([&](Vemi16s x, Vemi16s d) { return quotient(x, d, scaleFactor); });
    EXPECT_EQ(vemiDiv_16s_C1RSfs(pairs.divisors.data(), step, pairs.dividends.data(), step, pairs.result.data(), step,
                                 pairs.size(), scaleFactor),
              vemiWarnDivByZero);
    EXPECT_TRUE(pairs.result == pairs.expected) << "scaleFactor " << scaleFactor;
  }
}

// Every dividend, over divisors whose quotients come close to ties: the sum's own rounding makes ties of some.
TEST(Div, AllDividendsOf16s) {
  std::vector<Vemi16s> dividends(65536);
  std::iota(dividends.begin(), dividends.end(), Vemi16s{-32768});
  for (const int value : {1, -1, 2, 3, -7, 10, 255, 256, 257, -1000, 4095, 32767, -32768}) {
    Pairs<Vemi16s> row({static_cast<Vemi16s>(value)}, dividends);
    for (const int scaleFactor : {-15, -9, -8, -7, -4, -1, 0, 1, 2, 5, 14}) {
      expectConstant(row, vemiDivC_16s_C1RSfs, scaleFactor);
      row.expect([&](Vemi16s x, Vemi16s d) { return quotient(x, d, scaleFactor); });
      EXPECT_EQ(vemiDiv_16s_C1RSfs(row.divisors.data(), row.step(), row.dividends.data(), row.step(), row.result.data(),
                                   row.step(), row.size(), scaleFactor),
                vemiOk);
      EXPECT_TRUE(row.result == row.expected) << "value " << value << ", scaleFactor " << scaleFactor;
    }
  }
}

// The reference against figures worked out by hand; 1 / 128 is a tie.
TEST(DivC, ReciprocalsHaveSixDecimals) {
  EXPECT_EQ(decimalReciprocal(3), 0.333333f);
  EXPECT_EQ(decimalReciprocal(128), 0.007813f);
  EXPECT_EQ(decimalReciprocal(1), 1.0f);
  EXPECT_EQ(decimalReciprocal(255), 0.003922f);
}

TEST(Div, TheDocumentedExamples) {
  const auto of8u = [](Vemi8u x, Vemi8u d, int scaleFactor) {
    Vemi8u result;
    vemiDiv_8u_C1RSfs(&d, 1, &x, 1, &result, 1, {1, 1}, scaleFactor);
    return static_cast<int>(result);
  };
  const auto of16s = [](Vemi16s x, Vemi16s d, int scaleFactor) {
    Vemi16s result;
    vemiDiv_16s_C1RSfs(&d, 2, &x, 2, &result, 2, {1, 1}, scaleFactor);
    return static_cast<int>(result);
  };
  EXPECT_EQ(of8u(7, 2, 0), 4);
  EXPECT_EQ(of8u(5, 2, 0), 2);
  EXPECT_EQ(of8u(9, 0, 0), 255);
  EXPECT_EQ(of8u(9, 0, 20), 255);
  EXPECT_EQ(of8u(0, 0, -20), 0);
  EXPECT_EQ(of16s(100, -7, -4), -229);
  EXPECT_EQ(of16s(-9, 0, 0), -32768);
  EXPECT_EQ(of16s(0, 0, INT_MIN), 0);
}

// One zero anywhere in the divisor warns, and at every scale; a zero in the alpha channel does not.
TEST(Div, AnyZeroWarnsOnce) {
  for (const int width : {1, 5, 37, 200}) {
    for (int at = 0; at < width; ++at) {
      std::vector<Vemi8u> d(static_cast<size_t>(width), 3), x(d), result(d);
      d[static_cast<size_t>(at)] = 0;
      const int scaleFactor = at % 50 - 25;
      EXPECT_EQ(vemiDiv_8u_C1RSfs(d.data(), width, x.data(), width, result.data(), width, {width, 1}, scaleFactor),
                vemiWarnDivByZero);
    }
  }
  for (const int width : {1, 2, 3, 9, 50}) {
    std::vector<Vemi32f> d(static_cast<size_t>(4 * width), 2), x(d), result(d);
    for (int at = 0; at < 4 * width; ++at) {
      d[static_cast<size_t>(at)] = -0.0f;
      const VemiStatus status = at % 4 == 3 ? vemiOk : vemiWarnDivByZero;
      EXPECT_EQ(vemiDiv_32f_AC4R(d.data(), 16 * width, x.data(), 16 * width, result.data(), 16 * width, {width, 1}),
                status);
      d[static_cast<size_t>(at)] = 2;
    }
  }
}

TEST(DivC, ZeroIsTestedLast) {
  Vemi8u pixel8u[3] = {7, 8, 0};
  Vemi16s pixel16s = 7;
  Vemi32f pixel32f = 7;
  EXPECT_EQ(vemiDivC_8u_C1IRSfs(0, nullptr, 0, {0, 0}, 0), vemiErrNullPtr);
  EXPECT_EQ(vemiDivC_8u_C1IRSfs(0, pixel8u, 0, {0, 0}, 0), vemiErrSize);
  EXPECT_EQ(vemiDivC_8u_C1IRSfs(0, pixel8u, 0, {1, 1}, 0), vemiErrStep);
  EXPECT_EQ(vemiDivC_8u_C1IRSfs(0, pixel8u, 1, {1, 1}, 0), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_16s_C1IRSfs(0, &pixel16s, 2, {1, 1}, 99), vemiErrDivByZero);
  for (const float zero : {0.0f, -0.0f, std::nanf("")}) {
    EXPECT_EQ(vemiDivC_32f_C1IR(zero, nullptr, 0, {0, 0}), vemiErrNullPtr);
    EXPECT_EQ(vemiDivC_32f_C1IR(zero, &pixel32f, 0, {1, 1}), vemiErrStep);
    EXPECT_EQ(vemiDivC_32f_C1IR(zero, &pixel32f, 4, {1, 1}), vemiErrDivByZero);
  }
  EXPECT_EQ(pixel8u[0], 7);
  EXPECT_EQ(pixel16s, 7);
  EXPECT_EQ(pixel32f, 7);
  // The forms with three constants write first.
  const Vemi8u constants[3] = {2, 0, 0};
  EXPECT_EQ(vemiDivC_8u_C3IRSfs(constants, pixel8u, 3, {1, 1}, 0), vemiErrDivByZero);
  EXPECT_EQ(std::vector<int>(pixel8u, pixel8u + 3), (std::vector<int>{4, 255, 0}));
}
