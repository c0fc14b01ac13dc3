// vemiAdd, vemiSub, vemiMul, vemiDiv and their forms with constants on complex elements.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <functional>
#include <limits>
#include <vector>

#include "arith/scaled_reference.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

// ---- Integers: exact values, scaled, then limited ----

/// Its 64 bits of fraction hold every sum of two products of 32-bit numbers.
using Exact = long double;
static_assert(std::numeric_limits<Exact>::digits >= 64);

template <class T>
struct Complex {
  T re, im;
};
using Integers = Complex<int64_t>;

/// Rounds by the default mode, to nearest with ties to even. 100 stands for anything beyond it.
int64_t scaledExact(Exact value, int scaleFactor) {
  const Exact rounded = std::nearbyint(std::ldexp(value, -std::clamp(scaleFactor, -100, 100)));
  return static_cast<int64_t>(std::clamp<Exact>(rounded, -0x1p40L, 0x1p40L));
}

Complex<Exact> sum(Integers a, Integers b) { return {Exact(a.re) + Exact(b.re), Exact(a.im) + Exact(b.im)}; }
Complex<Exact> difference(Integers a, Integers b) { return {Exact(a.re) - Exact(b.re), Exact(a.im) - Exact(b.im)}; }
Complex<Exact> product(Integers a, Integers b) {
  return {Exact(a.re * b.re) - Exact(a.im * b.im), Exact(a.re * b.im) + Exact(a.im * b.re)};
}

template <Complex<Exact> (*exact)(Integers, Integers)>
Integers scaledTerms(Integers a, Integers b, int scaleFactor) {
  const Complex<Exact> value = exact(a, b);
  return {scaledExact(value.re, scaleFactor), scaledExact(value.im, scaleFactor)};
}

/// num / den / 2^scaleFactor to nearest, ties to even, by long division in binary; quotients from 2^40 on are cut off.
int64_t scaledFraction(Exact num, Exact den, int scaleFactor) {
  const auto divisor = static_cast<uint64_t>(den), magnitude = static_cast<uint64_t>(std::fabs(num));
  uint64_t quotient = magnitude / divisor, rest = magnitude % divisor;
  for (int n = 0; n > std::max(scaleFactor, -200); --n) {
    const bool bit = rest >= divisor - rest;
    rest = bit ? rest - (divisor - rest) : 2 * rest;
    quotient = std::min(2 * quotient + bit, uint64_t{1} << 40);
  }
  bool half = rest >= divisor - rest, beyondHalf = rest > divisor - rest;
  if (scaleFactor > 0) {
    beyondHalf = rest > 0;
    half = false;
  }
  for (int n = 0; n < std::min(scaleFactor, 200); ++n) {
    beyondHalf = beyondHalf || half;  // what was half is below the new half
    half = quotient % 2 != 0;
    quotient /= 2;
  }
  const bool up = half && (beyondHalf || quotient % 2 != 0);
  const auto result = static_cast<int64_t>(quotient + up);
  return num < 0 ? -result : result;
}

Integers exactQuotient(Integers x, Integers d, int scaleFactor) {
  if (d.re == 0 && d.im == 0) return {0, 0};
  const Exact den = Exact(d.re * d.re) + Exact(d.im * d.im);
  return {scaledFraction(Exact(d.re * x.re) + Exact(d.im * x.im), den, scaleFactor),
          scaledFraction(Exact(d.re * x.im) - Exact(d.im * x.re), den, scaleFactor)};
}

/// In double precision, in the order of the definition.
Integers doubleQuotient(Integers x, Integers d, int scaleFactor) {
  const auto dRe = static_cast<double>(d.re), dIm = static_cast<double>(d.im);
  const auto xRe = static_cast<double>(x.re), xIm = static_cast<double>(x.im);
  const double den = dRe * dRe + dIm * dIm, m = std::ldexp(1.0, -std::clamp(scaleFactor, -1000, 1000));
  if (den == 0) return {0, 0};
  const auto part = [&](double numerator) -> int64_t {
    const double v = scaleFactor <= 0 ? numerator * (m / den) : numerator * (1.0 / den) * m;
    if (v < -32768) return -32768;
    if (v > 32767) return 32767;
    const double sum = v + 32768.5;
    const auto whole = static_cast<int64_t>(sum);
    return (static_cast<double>(whole) == sum && whole % 2 != 0 ? whole - 1 : whole) - 32768;
  };
  return {part(dRe * xRe + dIm * xIm), part(dRe * xIm - dIm * xRe)};
}

Integers integerQuotient(Integers x, Integers d, int scaleFactor, Element element) {
  return element == Element::sc16 ? doubleQuotient(x, d, scaleFactor) : exactQuotient(x, d, scaleFactor);
}

// ---- Floats ----

using Floats = Complex<float>;

Floats floatSum(Floats a, Floats b) { return {a.re + b.re, a.im + b.im}; }
Floats floatDifference(Floats a, Floats b) { return {a.re - b.re, a.im - b.im}; }
Floats floatProduct(Floats a, Floats b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

/// Of a number of squares: never negative.
float roughReciprocal(float x) {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  if (std::isnan(x)) return x;
  if (x < std::numeric_limits<float>::min()) return infinity;
  if (x == infinity) return 0;
  int exponent;
  const double significand = 2 * std::frexp(static_cast<double>(x), &exponent);  // from 1 to 2
  const double middle = 4097 + 2 * std::floor((significand - 1) * 2048);
  const double q = std::floor((0x1p25 + std::floor(middle / 2)) / middle);
  const double result = std::ldexp(q, -13 - (exponent - 1));
  return result < std::numeric_limits<float>::min() ? 0 : static_cast<float>(result);
}

float squares(Floats d) { return d.re * d.re + d.im * d.im; }

Floats floatQuotient(Floats x, Floats d) {
  const float den = squares(d);
  const float r0 = roughReciprocal(den);
  const float r = den == 0 ? std::nanf("") : (2.0f - den * r0) * r0;
  return {(d.re * x.re + d.im * x.im) * r, (d.re * x.im - d.im * x.re) * r};
}

Floats productWithReciprocal(Floats x, Floats d) {
  const float t = 1.0f / squares(d);
  return floatProduct(x, {d.re * t, (0.0f - d.im) * t});
}

// ---- Calls ----

Integers loadIntegers(Element element, const std::byte* place) {
  const Element part = partOf(element);
  return {loadInteger(part, place), loadInteger(part, place + bytesOf(part))};
}

void storeComplex(Element element, std::byte* place, Integers value) {
  const Element part = partOf(element);
  storeSaturated(part, place, value.re);
  storeSaturated(part, place + bytesOf(part), value.im);
}

using IntegerOperation = std::function<Integers(Integers left, Integers right, int scaleFactor, Element)>;
using FloatOperation = Floats (*)(Floats left, Floats right);
using Warning = bool (*)(const std::byte* right, Element);

/// The second source is the left operand, and so is the image beside constants.
Reference reference(const IntegerOperation& ofIntegers, FloatOperation ofFloats, Warning warns = nullptr) {
  return [=](Call& call) {
    const bool hasConstants = call.function.indexOf("value") >= 0;
    const View first = call.source(0), left = call.source(hasConstants ? 0 : 1), result = call.destination();
    call.anyNaN = true;
    call.forEachElement([&](int x, int y, int channel) {
      const std::byte* const a = left.at(x, y, channel);
      const std::byte* const b = hasConstants ? call.constant(channel) : first.at(x, y, channel);
      std::byte* const to = result.at(x, y, channel);
      if (result.element == Element::fc32) {
        store(to, ofFloats(load<Floats>(a), load<Floats>(b)));
      } else {
        const Integers value = ofIntegers(loadIntegers(result.element, a), loadIntegers(result.element, b),
                                          call.scenario.scaleFactor, result.element);
        storeComplex(result.element, to, value);
      }
      if (warns != nullptr && warns(b, result.element)) call.expectedStatus = vemiWarnDivByZero;
    });
  };
}

bool isZero(const std::byte* place, Element element) {
  if (element == Element::fc32) return squares(load<Floats>(place)) == 0;
  const Integers value = loadIntegers(element, place);
  return value.re == 0 && value.im == 0;
}

/// With one zero among the constants the call is refused; where squares vanish it does nothing, and says so if there
/// are several constants.
void quotientOfConstants(Call& call) {
  bool vanishes = false;
  for (int channel = 0; channel < call.function.destination.channels; ++channel) {
    const std::byte* const value = call.constant(channel);
    const Element element = call.destination().element;
    if (element == Element::fc32) {
      const Floats d = load<Floats>(value);
      const auto isNothing = [](float part) { return part == 0 || std::isnan(part); };
      if (isNothing(d.re) && isNothing(d.im)) call.expectedStatus = vemiErrDivByZero;
      vanishes = vanishes || squares(d) == 0;
    } else if (isZero(value, element)) {
      call.expectedStatus = vemiErrDivByZero;
    }
  }
  if (vanishes && call.function.destination.channels > 1) call.expectedStatus = vemiErrDivByZero;
  if (call.expectedStatus != vemiOk || vanishes) return;
  reference(integerQuotient, productWithReciprocal)(call);
}

template <Complex<Exact> (*exact)(Integers, Integers)>
Reference termsReference(FloatOperation ofFloats) {
  return reference(
      [](Integers a, Integers b, int scaleFactor, Element) { return scaledTerms<exact>(a, b, scaleFactor); }, ofFloats);
}

const char* const integers = "(16sc|32sc)_.*";
const char* const floats = "32fc_.*";

void expectOperation(const std::string& operation, const Reference& ofAll) {
  expectDefinition(membersOf(operation, integers), ofAll, allScaleFactors());
  expectDefinition(membersOf(operation, floats), ofAll);
}

}  // namespace

TEST(ComplexAdd, EveryMember) { expectOperation("vemiAdd", termsReference<sum>(floatSum)); }
TEST(ComplexAddC, EveryMember) { expectOperation("vemiAddC", termsReference<sum>(floatSum)); }
TEST(ComplexSub, EveryMember) { expectOperation("vemiSub", termsReference<difference>(floatDifference)); }
TEST(ComplexSubC, EveryMember) { expectOperation("vemiSubC", termsReference<difference>(floatDifference)); }
TEST(ComplexMul, EveryMember) { expectOperation("vemiMul", termsReference<product>(floatProduct)); }
TEST(ComplexMulC, EveryMember) { expectOperation("vemiMulC", termsReference<product>(floatProduct)); }
TEST(ComplexDiv, EveryMember) { expectOperation("vemiDiv", reference(integerQuotient, floatQuotient, isZero)); }
TEST(ComplexDivC, EveryMember) { expectOperation("vemiDivC", quotientOfConstants); }

// All pairs of numbers whose parts stand at the ends of the range, around zero and around powers of two.
template <class C, class Part>
void expectCorners(std::vector<Part> parts) {
  std::vector<C> numbers;
  for (const Part re : parts) {
    for (const Part im : parts) numbers.push_back({re, im});
  }
  std::vector<C> result(numbers.size());
  const int width = static_cast<int>(numbers.size()), step = width * static_cast<int>(sizeof(C));
  const Element element = elementOf<C>;
  const auto expectRow = [&](auto function, const IntegerOperation& expected, const std::vector<C>& right,
                             int scaleFactor) {
    function(right.data(), step, numbers.data(), step, result.data(), step, VemiSize{width, 1}, scaleFactor);
    for (size_t n = 0; n < numbers.size(); ++n) {
      C value;
      storeComplex(element, reinterpret_cast<std::byte*>(&value),
                   expected({numbers[n].re, numbers[n].im}, {right[n].re, right[n].im}, scaleFactor, element));
      ASSERT_TRUE(value.re == result[n].re && value.im == result[n].im)
          << "(" << numbers[n].re << ", " << numbers[n].im << ") and (" << right[n].re << ", " << right[n].im
          << "), scaleFactor " << scaleFactor << ": (" << result[n].re << ", " << result[n].im << ")";
    }
  };
  const auto terms = [](auto operation) -> IntegerOperation {
    return [=](Integers a, Integers b, int scaleFactor, Element) { return operation(a, b, scaleFactor); };
  };
  for (const C fixed : numbers) {
    const std::vector<C> right(numbers.size(), fixed);
    for (const int scaleFactor : {-40, -31, -16, -3, 0, 1, 2, 15, 16, 17, 30, 31, 32, 33, 34, 61, 62, 63, 64, 65}) {
      if constexpr (std::is_same_v<C, Vemi16sc>) {
        expectRow(vemiAdd_16sc_C1RSfs, terms(scaledTerms<sum>), right, scaleFactor);
        expectRow(vemiSub_16sc_C1RSfs, terms(scaledTerms<difference>), right, scaleFactor);
        expectRow(vemiMul_16sc_C1RSfs, terms(scaledTerms<product>), right, scaleFactor);
        expectRow(vemiDiv_16sc_C1RSfs, integerQuotient, right, scaleFactor);
      } else {
        expectRow(vemiAdd_32sc_C1RSfs, terms(scaledTerms<sum>), right, scaleFactor);
        expectRow(vemiSub_32sc_C1RSfs, terms(scaledTerms<difference>), right, scaleFactor);
        expectRow(vemiMul_32sc_C1RSfs, terms(scaledTerms<product>), right, scaleFactor);
        expectRow(vemiDiv_32sc_C1RSfs, integerQuotient, right, scaleFactor);
      }
    }
  }
}

TEST(ComplexArithmetic, CornersOf16sc) {
  expectCorners<Vemi16sc, Vemi16s>({-32768, -32767, -181, -3, -1, 0, 1, 2, 5, 16384, 32767});
}

TEST(ComplexArithmetic, CornersOf32sc) {
  expectCorners<Vemi32sc, Vemi32s>({INT_MIN, INT_MIN + 1, -46341, -3, -1, 0, 1, 2, 5, 1 << 30, INT_MAX});
}

TEST(ComplexDiv, FirstSourceDivides) {
  const Vemi16sc divisor = {1, 2}, x = {5, 10};
  Vemi16sc result;
  EXPECT_EQ(vemiDiv_16sc_C1RSfs(&divisor, 4, &x, 4, &result, 4, {1, 1}, 0), vemiOk);
  EXPECT_EQ(result.re, 5);
  EXPECT_EQ(result.im, 0);
}

// Divisors of zero in every place of rows of several lengths; one in the alpha channel does not count.
TEST(ComplexDiv, AnyZeroWarns) {
  for (const int width : {1, 2, 7, 20}) {
    std::vector<Vemi32fc> d(static_cast<size_t>(4 * width), {3, 4}), x(d), result(d);
    for (int at = 0; at < 4 * width; ++at) {
      for (const Vemi32fc zero : {Vemi32fc{0, 0}, Vemi32fc{-0.0f, 0}, Vemi32fc{1e-30f, -1e-30f}}) {
        d[static_cast<size_t>(at)] = zero;
        const int step = 32 * width;
        EXPECT_EQ(vemiDiv_32fc_AC4R(d.data(), step, x.data(), step, result.data(), step, {width, 1}),
                  at % 4 == 3 ? vemiOk : vemiWarnDivByZero);
        EXPECT_EQ(std::isnan(result[static_cast<size_t>(at)].re), at % 4 != 3);
        EXPECT_EQ(std::isnan(result[static_cast<size_t>(at)].im), at % 4 != 3);
      }
      d[static_cast<size_t>(at)] = {3, 4};
    }
  }
}

// The float forms look at the constant before anything else, the integer ones after everything else.
TEST(ComplexDivC, WhereTheConstantIsTested) {
  Vemi16sc pixel16 = {1, 2};
  Vemi32sc pixel32 = {1, 2};
  Vemi32fc pixels[4] = {{1, 2}, {1, 2}, {1, 2}, {1, 2}};
  EXPECT_EQ(vemiDivC_16sc_C1IRSfs({0, 0}, nullptr, 4, {1, 1}, 0), vemiErrNullPtr);
  EXPECT_EQ(vemiDivC_16sc_C1IRSfs({0, 0}, &pixel16, 0, {1, 1}, 0), vemiErrStep);
  EXPECT_EQ(vemiDivC_16sc_C1IRSfs({0, 0}, &pixel16, 4, {1, 1}, 0), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32sc_C1IRSfs({0, 0}, &pixel32, 8, {0, 1}, 0), vemiErrSize);
  EXPECT_EQ(vemiDivC_32sc_C1IRSfs({0, 0}, &pixel32, 8, {1, 1}, 0), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_C1IR({0, -0.0f}, nullptr, 0, {0, 0}), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_C1IR({std::nanf(""), 0}, nullptr, 0, {0, 0}), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_C1IR({1, 0}, nullptr, 0, {0, 0}), vemiErrNullPtr);
  EXPECT_EQ(vemiDivC_32fc_C1IR({1, 0}, pixels, 0, {0, 1}), vemiErrSize);
  const Vemi32fc constants[3] = {{1, 0}, {0, 0}, {1, 1}};
  EXPECT_EQ(vemiDivC_32fc_C3IR(constants, nullptr, 0, {0, 0}), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_AC4IR(constants, pixels, 32, {1, 1}), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_C3IR(nullptr, pixels, 0, {0, 0}), vemiErrNullPtr);
  EXPECT_EQ(vemiDivC_32fc_C1IR({1e-30f, 0}, pixels, 0, {1, 1}), vemiErrStep);
  EXPECT_EQ(vemiDivC_32fc_C1IR({1e-30f, 0}, pixels, 8, {4, 1}), vemiOk);
  const Vemi32fc vanishing[3] = {{1, 0}, {1, 0}, {-1e-30f, 1e-30f}};
  EXPECT_EQ(vemiDivC_32fc_C3IR(vanishing, pixels, 0, {1, 1}), vemiErrStep);
  EXPECT_EQ(vemiDivC_32fc_C3IR(vanishing, pixels, 24, {1, 1}), vemiErrDivByZero);
  EXPECT_EQ(vemiDivC_32fc_AC4IR(vanishing, pixels, 32, {1, 1}), vemiErrDivByZero);
  for (const Vemi32fc& pixel : pixels) EXPECT_TRUE(pixel.re == 1 && pixel.im == 2);
}
