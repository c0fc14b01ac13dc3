// vemiAbs, vemiSqr, vemiSqrt, vemiLn, vemiExp, vemiComplement: functions of one value.

#include <gtest/gtest.h>
#include <limits.h>

#include <cmath>
#include <vector>

#include "arith/scaled_reference.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

// ---- The functions on integers, from their definitions: before saturation, as far as that is finite ----

int64_t square(int64_t x, int scaleFactor) { return scaled(x * x, scaleFactor); }

/// The smallest n whose upper neighbour's middle (2n + 1) / 2 is not below root(x) / 2^s, or on a tie the even one.
int64_t root(int64_t x, int scaleFactor) {
  const int s = std::clamp(scaleFactor, -20, 12);
  const int64_t target = std::max<int64_t>(x, 0) << (s < 0 ? 2 - 2 * s : 2);
  const auto middleSquared = [&](int64_t n) { return (2 * n + 1) * (2 * n + 1) << (s < 0 ? 0 : 2 * s); };
  int64_t n = 0;
  for (int64_t bit = s < 0 ? int64_t{1} << 29 : 512; bit > 0; bit /= 2) {
    if (middleSquared(n + bit - 1) < target) n += bit;
  }
  return middleSquared(n) == target && n % 2 != 0 ? n + 1 : n;
}

int64_t logarithm16s(int64_t x, int scaleFactor) {
  if (x <= 0) return -32768;
  const int s = std::clamp(scaleFactor, -40, 40);
  return static_cast<int64_t>(std::floor(std::ldexp(std::log(static_cast<double>(x)), -s) + 0.5));
}

/// With the results that begin at tabulated values.
int64_t logarithm8u(int64_t x, int scaleFactor) {
  static const std::vector<int> byHalves = {0, 2, 3, 4, 6, 10, 16, 26, 43, 71, 116, 191};
  static const std::vector<int> byQuarters = {11, 14, 19, 23, 30, 38, 49, 62, 80, 103, 131, 169, 216};
  static const int belowEleven[] = {0, 0, 3, 4, 6, 6, 7, 8, 8, 9, 9};
  const auto begun = [&](const std::vector<int>& starts) {
    return std::upper_bound(starts.begin(), starts.end(), x) - starts.begin();
  };
  if (x == 0) return 0;
  if (scaleFactor == -1) return begun(byHalves) - 1;
  if (scaleFactor == -2) return x < 11 ? belowEleven[x] : 9 + begun(byQuarters);
  if (scaleFactor == 2) return x <= 7 ? 0 : 1;
  return logarithm16s(x, scaleFactor);
}

int64_t exponential(int64_t x, int scaleFactor) {
  const long double exponent = static_cast<long double>(x) - scaleFactor * std::log(2.0L);
  if (exponent < -2) return 0;
  if (exponent > 12) return 100000;
  const bool fits = std::abs(static_cast<int64_t>(scaleFactor)) < 1000;
  const long double power = fits ? std::ldexp(std::exp(static_cast<long double>(x)), -scaleFactor) : std::exp(exponent);
  return static_cast<int64_t>(std::floor(power + 0.5L));
}

// ---- References ----

using IntegerFunction = int64_t (*)(int64_t x, int scaleFactor);
using Warning = VemiStatus (*)(int64_t x);

VemiStatus noWarning(int64_t) { return vemiOk; }
VemiStatus lnWarning(int64_t x) { return x == 0 ? vemiWarnLnZero : x < 0 ? vemiWarnLnNegative : vemiOk; }

/// The view of a family that rounds steps down to whole elements.
View wholeElements(View view) {
  for (ptrdiff_t& step : view.step) step -= step % bytesOf(view.element);
  return view;
}
View asItIs(View view) { return view; }

template <class F>
void forEachPair(Call& call, View (*steps)(View), const F& f) {
  const View source = steps(call.source()), destination = steps(call.destination());
  call.forEachElement([&](int x, int y, int channel) {
    f(source.at(x, y, channel), destination.at(x, y, channel), destination.element);
  });
}

Reference ofIntegers(IntegerFunction function, Warning warning = noWarning, View (*steps)(View) = asItIs) {
  return [=](Call& call) {
    forEachPair(call, steps, [&](const std::byte* from, std::byte* to, Element element) {
      const int64_t x = loadInteger(element, from);
      if (call.expectedStatus == vemiOk) call.expectedStatus = warning(x);
      storeSaturated(element, to, function(x, call.scenario.scaleFactor));
    });
  };
}

Reference ofFloats(float (*function)(float), View (*steps)(View) = asItIs) {
  return [=](Call& call) {
    forEachPair(call, steps,
                [&](const std::byte* from, std::byte* to, Element) { store(to, function(load<float>(from))); });
  };
}

/// Of all elements in memory, those of an alpha that stays among them.
template <class T>
void expectWarningOfNegatives(Call& call) {
  const View source = wholeElements(call.source());
  for (int y = 0; y < source.size.height; ++y) {
    for (int n = 0; n < source.size.width * call.function.source.elements; ++n) {
      if (load<T>(source.at(0, y) + n * bytesOf(source.element)) < 0) call.expectedStatus = vemiWarnSqrtNegative;
    }
  }
}

float alone(VemiStatus (*function)(const Vemi32f*, int, Vemi32f*, int, VemiSize), float x) {
  float y = 0;
  function(&x, sizeof x, &y, sizeof y, {1, 1});
  return y;
}

std::vector<int> scaleFactorsAndMore() {
  std::vector<int> all = allScaleFactors();
  all.insert(all.end(), {-47000, -1001, 999, 1001, 1500, 20000, 47000, 47280});
  return all;
}

template <class T>
void expectEveryValue(VemiStatus (*function)(const T*, int, T*, int, VemiSize, int), IntegerFunction definition) {
  const VemiSize size = {256, sizeof(T) == 1 ? 1 : 256};
  const int step = 256 * static_cast<int>(sizeof(T));
  std::vector<T> x(static_cast<size_t>(size.width * size.height)), y(x.size()), expected(x.size());
  std::iota(x.begin(), x.end(), std::numeric_limits<T>::min());
  for (const int scaleFactor : scaleFactorsAndMore()) {
    for (size_t n = 0; n < x.size(); ++n) {
      storeSaturated(elementOf<T>, reinterpret_cast<std::byte*>(&expected[n]), definition(x[n], scaleFactor));
    }
    EXPECT_GE(function(x.data(), step, y.data(), step, size, scaleFactor), vemiOk);
    const auto at = std::mismatch(y.begin(), y.end(), expected.begin()).first - y.begin();
    if (at == static_cast<ptrdiff_t>(y.size())) continue;
    const auto n = static_cast<size_t>(at);
    ADD_FAILURE() << "scaleFactor " << scaleFactor << ", x = " << x[n] + 0 << ": " << y[n] + 0 << ", not "
                  << expected[n] + 0;
  }
}

}  // namespace

TEST(Abs, EveryMember) {
  expectDefinition(membersOf("vemiAbs", "16s.*"),
                   ofIntegers([](int64_t x, int) { return std::abs(x); }, noWarning, wholeElements));
  // On the bits: where floats are returned through the x87 unit, a signalling NaN would not come back as it is.
  expectDefinition(membersOf("vemiAbs", "32f.*"), [](Call& call) {
    forEachPair(call, wholeElements,
                [](const std::byte* from, std::byte* to, Element) { store(to, load<uint32_t>(from) & 0x7fffffff); });
  });
}

TEST(Sqr, EveryMember) {
  expectDefinition(membersOf("vemiSqr", "(8u|16u|16s).*"), ofIntegers(square), allScaleFactors());
  expectDefinition(membersOf("vemiSqr", "32f.*"), ofFloats([](float x) { return x * x; }));
}

TEST(Sqr, EveryValue) {
  expectEveryValue(vemiSqr_8u_C1RSfs, square);
  expectEveryValue(vemiSqr_16u_C1RSfs, square);
  expectEveryValue(vemiSqr_16s_C1RSfs, square);
}

TEST(Sqrt, EveryMember) {
  expectDefinition(membersOf("vemiSqrt", "8u.*"), ofIntegers(root), allScaleFactors());
  expectDefinition(membersOf("vemiSqrt", "16u.*"), ofIntegers(root), allScaleFactors());
  const Reference of16s = ofIntegers(root, noWarning, wholeElements);
  expectDefinition(
      membersOf("vemiSqrt", "16s.*"),
      [&](Call& call) {
        expectWarningOfNegatives<Vemi16s>(call);
        of16s(call);
      },
      allScaleFactors());
  const Reference of32f = ofFloats([](float x) { return std::sqrt(x); }, wholeElements);
  expectDefinition(membersOf("vemiSqrt", "32f.*"), [&](Call& call) {
    expectWarningOfNegatives<Vemi32f>(call);
    of32f(call);
  });
}

TEST(Sqrt, EveryValue) {
  expectEveryValue(vemiSqrt_8u_C1RSfs, root);
  expectEveryValue(vemiSqrt_16u_C1RSfs, root);
  expectEveryValue(vemiSqrt_16s_C1RSfs, root);
}

// One element below zero warns, in the alpha channel too, which stays as it is; -0.0 and a NaN do not.
TEST(Sqrt, AnyNegativeWarns) {
  const VemiSize size = {37, 2};
  for (const int channel : {-1, 2, 3}) {
    std::vector<Vemi16s> integers(4 * 37 * 2, Vemi16s{4});
    std::vector<Vemi32f> floats(4 * 37 * 2, 4.0f);
    const size_t spoiled = static_cast<size_t>(4 * 50 + channel);
    if (channel >= 0) integers[spoiled] = -1;
    if (channel >= 0) floats[spoiled] = -1e-40f;
    floats[0] = -0.0f;
    floats[1] = -NAN;
    const VemiStatus expected = channel < 0 ? vemiOk : vemiWarnSqrtNegative;
    for (const int scaleFactor : {-40, 0, 40}) {
      std::vector<Vemi16s> result = integers;
      EXPECT_EQ(vemiSqrt_16s_AC4IRSfs(result.data(), 4 * 37 * 2, size, scaleFactor), expected);
      EXPECT_EQ(result[4 * 50 + 3], integers[4 * 50 + 3]);
    }
    EXPECT_EQ(vemiSqrt_32f_AC4IR(floats.data(), 4 * 37 * 4, size), expected);
    EXPECT_EQ(floats[4 * 36], 2.0f);
    EXPECT_EQ(floats[4 * 50 + 3], channel == 3 ? -1e-40f : 4.0f);
  }
  const Vemi32f pixel[4] = {1, 4, 9, -1};
  Vemi32f roots[4] = {0, 0, 0, 5};
  EXPECT_EQ(vemiSqrt_32f_AC4R(pixel, 16, roots, 16, {1, 1}), vemiWarnSqrtNegative);
  EXPECT_EQ(std::vector<Vemi32f>(roots, roots + 4), (std::vector<Vemi32f>{1, 2, 3, 5}));
}

TEST(Sqrt, TakesAnOddStepOf16uAsItIs) {
  alignas(2) const Vemi8u source[] = {1, 0, 4, 0, 0xff, 9, 0, 16, 0};
  Vemi16u result[4];
  EXPECT_EQ(vemiSqrt_16u_C1RSfs(reinterpret_cast<const Vemi16u*>(source), 5, result, 4, {2, 2}, 0), vemiOk);
  EXPECT_EQ(std::vector<Vemi16u>(result, result + 4), (std::vector<Vemi16u>{1, 2, 3, 4}));
}

TEST(Ln, EveryMember) {
  expectDefinition(membersOf("vemiLn", "8u.*"), ofIntegers(logarithm8u, lnWarning), allScaleFactors());
  expectDefinition(membersOf("vemiLn", "16s.*"), ofIntegers(logarithm16s, lnWarning), allScaleFactors());
}

TEST(Ln, EveryValue) {
  expectEveryValue(vemiLn_8u_C1RSfs, logarithm8u);
  expectEveryValue(vemiLn_16s_C1RSfs, logarithm16s);
}

// What each element gives by itself (its accuracy is tested with the signal layer), and the rule of chunks.
TEST(Ln, EveryFloatMember) {
  const Reference ofEach = ofFloats([](float x) { return alone(vemiLn_32f_C1R, x); });
  expectDefinition(membersOf("vemiLn", "32f.*"), [&](Call& call) {
    const View source = call.source();
    const int elements = source.size.width * source.channels;
    for (int y = 0; y < source.size.height && call.expectedStatus == vemiOk; ++y) {
      bool zero = false, negative = false;
      for (int n = (elements - 1) / 256 * 256; n < elements; ++n) {
        const float x = load<float>(source.at(n / source.channels, y, n % source.channels));
        zero = zero || x == 0;
        negative = negative || x < 0;
      }
      call.expectedStatus = negative ? vemiWarnLnNegative : zero ? vemiWarnLnZero : vemiOk;
    }
    ofEach(call);
  });
}

TEST(Ln, WarnsOfTheLastChunkOfFloats) {
  std::vector<Vemi32f> x(600, 1.0f), y(600);
  const auto statusOf = [&](std::vector<std::pair<size_t, float>> spoiled) {
    for (const auto& [n, value] : spoiled) x[n] = value;
    const VemiStatus ofC1 = vemiLn_32f_C1R(x.data(), 1200, y.data(), 1200, {300, 2});
    EXPECT_EQ(vemiLn_32f_C3R(x.data(), 1200, y.data(), 1200, {100, 2}), ofC1);
    for (const auto& [n, value] : spoiled) x[n] = 1.0f;
    return ofC1;
  };
  EXPECT_EQ(statusOf({{10, 0.0f}, {255, -1.0f}, {310, 0.0f}, {555, -1.0f}}), vemiOk);
  EXPECT_EQ(statusOf({{280, 0.0f}}), vemiWarnLnZero);
  EXPECT_EQ(statusOf({{256, -0.0f}}), vemiWarnLnZero);
  EXPECT_EQ(statusOf({{599, -INFINITY}}), vemiWarnLnNegative);
  EXPECT_EQ(statusOf({{280, 0.0f}, {299, -1e-40f}}), vemiWarnLnNegative);
  EXPECT_EQ(statusOf({{280, 0.0f}, {599, -1.0f}}), vemiWarnLnZero);
  EXPECT_EQ(statusOf({{280, -1.0f}, {599, 0.0f}}), vemiWarnLnNegative);
  EXPECT_EQ(statusOf({{280, -NAN}, {281, INFINITY}}), vemiOk);
}

TEST(Exp, EveryMember) {
  expectDefinition(membersOf("vemiExp", "(8u|16s).*"), ofIntegers(exponential), allScaleFactors());
  expectDefinition(membersOf("vemiExp", "32f.*"), ofFloats([](float x) { return alone(vemiExp_32f_C1R, x); }));
}

TEST(Exp, EveryValue) {
  expectEveryValue(vemiExp_8u_C1RSfs, exponential);
  expectEveryValue(vemiExp_16s_C1RSfs, exponential);
}

TEST(Complement, EveryMember) {
  expectDefinition(membersOf("vemiComplement"), [](Call& call) {
    forEachPair(call, asItIs, [](const std::byte* from, std::byte* to, Element) {
      const int64_t x = load<int32_t>(from);
      store(to, static_cast<uint32_t>(x < 0 && x != INT_MIN ? 0x80000000 - x : x));
    });
  });
}
