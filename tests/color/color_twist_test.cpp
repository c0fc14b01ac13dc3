// vemiColorTwist, vemiColorTwist32f.

#include <fenv.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

/// Neither computed at compile time nor in another rounding mode.
template <class Float>
Float now(Float value) {
  volatile Float kept = value;
  return kept;
}

template <class Float>
Float sumOf(const Float (&term)[4]) {
  Float sum = term[0];
  for (int k = 1; k < 4; ++k) sum = now(sum + now(term[k]));
  return sum;
}

/// The end of the type on that side of zero.
double limitOf(Element element, int64_t beyond) {
  if (element == Element::f32) return 0;
  std::byte bytes[8] = {};
  storeSaturated(element, bytes, beyond);
  return static_cast<double>(loadInteger(element, bytes));
}

int64_t integerOf(double sum, double lowest, double highest) {
  if (sum < lowest) return static_cast<int64_t>(lowest);
  if (sum >= highest) return static_cast<int64_t>(highest);
  return std::isnan(sum) ? 0 : std::llrint(now(sum));
}

void twisted(Call& call) {
  const View src = call.source(), dst = call.destination(), twist = call.array("twist");
  const Element type = dst.element;
  const double lowest = limitOf(type, -100000), highest = limitOf(type, 100000);
  call.anyNaN = true;
  call.forEachElement([&](int x, int y, int channel) {
    double exact[4];
    float single[4];
    for (int k = 0; k < 4; ++k) {
      const auto factor = load<float>(twist.at(4 * channel + k, 0));
      const double element = k < dst.channels ? loadNumber(type, src.at(x, y, k)) : 1;
      exact[k] = now(double{factor}) * element;
      single[k] = now(factor) * static_cast<float>(element);
    }
    if (type == Element::f32) {
      store(dst.at(x, y, channel), sumOf(single));
    } else {
      storeSaturated(type, dst.at(x, y, channel), integerOf(sumOf(exact), lowest, highest));
    }
  });
}

/// Three pixels of one value in all channels by three rows of factors.
template <class T, class F>
std::vector<int> byRows(F* function, std::vector<T> pixels, std::vector<std::vector<Vemi32f>> rows) {
  Vemi32f twist[3][4];
  for (size_t c = 0; c < 3; ++c) std::copy(rows[c].begin(), rows[c].end(), twist[c]);
  const int width = static_cast<int>(pixels.size()) / 3, step = 3 * width * static_cast<int>(sizeof(T));
  std::vector<T> result(pixels.size());
  EXPECT_EQ(function(pixels.data(), step, result.data(), step, {width, 1}, twist), vemiOk);
  return {result.begin(), result.end()};
}

}  // namespace

TEST(ColorTwist, EveryMember) {
  expectDefinition(membersOf("vemiColorTwist32f"), twisted);
  expectDefinition(membersOf("vemiColorTwist"), twisted);
}

// The mode is the caller's, and so are flags and traps afterwards.
TEST(ColorTwist, RoundsAsTheCallerAndLeavesNoException) {
  Scenario scenario = {{67, 3}};
  for (const Export* function : membersOf("vemiColorTwist32f")) {
    for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
      for (const bool traps : {false, true}) {
        for (int repeated = 0; repeated < 4; ++repeated) {
          ++scenario.seed;
          Call call(*function, scenario);
          fenv_t former;
          fegetenv(&former);
          fesetround(mode);
          twisted(call);
          feclearexcept(FE_ALL_EXCEPT);
          if (!traps) feraiseexcept(FE_UNDERFLOW);
          if (traps) feenableexcept(FE_ALL_EXCEPT);
          const int flags = fetestexcept(FE_ALL_EXCEPT), enabled = fegetexcept();
          const VemiStatus status = call.invoke();
          EXPECT_EQ(fetestexcept(FE_ALL_EXCEPT), flags) << call.text();
          EXPECT_EQ(fegetexcept(), enabled) << call.text();
          EXPECT_EQ(fegetround(), mode) << call.text();
          fesetenv(&former);
          EXPECT_EQ(status, vemiOk) << call.text();
          EXPECT_EQ(call.difference(), "") << call.text() << " under mode " << mode;
        }
      }
    }
  }
}

TEST(ColorTwist, LimitsTiesAndNoNumbers) {
  using Values = std::vector<int>;
  const Vemi32f inf = std::numeric_limits<Vemi32f>::infinity(), nan = std::numeric_limits<Vemi32f>::quiet_NaN();
  const std::vector<std::vector<Vemi32f>> halves = {{0.5f, 0, 0, 0}, {0.5f, 0.5f, 0.5f, 0}, {-0.5f, 0, 0, 1}};
  EXPECT_EQ(byRows<Vemi8u>(vemiColorTwist32f_8u_C3R, {1, 1, 1, 3, 3, 3, 170, 170, 170}, halves),
            Values({0, 2, 0, 2, 4, 0, 85, 255, 0}));
  EXPECT_EQ(byRows<Vemi8s>(vemiColorTwist32f_8s_C3R, {1, 1, 1, -3, -3, -3, -127, -127, -127}, halves),
            Values({0, 2, 0, -2, -4, 2, -64, -128, 64}));
  const std::vector<std::vector<Vemi32f>> none = {{nan, 0, 0, 0}, {inf, -inf, 0, 0}, {-inf, 0, 0, 0}};
  EXPECT_EQ(byRows<Vemi8u>(vemiColorTwist32f_8u_C3R, {9, 9, 9}, none), Values({0, 0, 0}));
  EXPECT_EQ(byRows<Vemi8s>(vemiColorTwist32f_8s_C3R, {9, 9, 9}, none), Values({0, 0, -128}));
  EXPECT_EQ(byRows<Vemi16u>(vemiColorTwist32f_16u_C3R, {9, 9, 9}, none), Values({0, 0, 0}));
  EXPECT_EQ(byRows<Vemi16s>(vemiColorTwist32f_16s_C3R, {9, 9, 9}, none), Values({0, 0, -32768}));
}

namespace {

/// Against the definition, `width` pixels a round: matrices whose sums come as near to halves as floats allow, or with
/// few bits, which fall on halves.
template <class T, class F>
void expectSumsBesideHalves(F* function, int roundCount) {
  Random random(1);
  const int width = 999;
  constexpr int lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
  std::vector<T> src(3 * width), dst(3 * width);
  for (int round = 0; round < roundCount; ++round) {
    random.fill(reinterpret_cast<std::byte*>(src.data()), src.size() * sizeof(T));
    for (size_t k = 0; k < 3; ++k) src[3 + k] = k == 0 ? lowest : highest;
    const bool isCoarse = round % 4 == 3;
    Vemi32f twist[3][4];
    for (auto& row : twist) {
      double sum = 0;
      for (size_t k = 0; k < 3; ++k) {
        row[k] = isCoarse ? static_cast<Vemi32f>(random.below(32)) * 0.0625f - 0.5f
                          : static_cast<Vemi32f>(random.below(1 << 24) - (1 << 22)) * 0x1p-23f;
        sum += double{row[k]} * src[k];  // of the first pixel
      }
      const auto constant = static_cast<Vemi32f>(random.below(highest) + 0.5 - sum);
      const Vemi32f towards[] = {-1e9f, constant, 1e9f};
      row[3] = std::nextafter(constant, towards[round % 3]);
      if (isCoarse) row[3] = std::round(constant * 8) / 8;
    }
    for (size_t n = 6; n < src.size(); ++n) {  // and of others near it
      if (n % 7 == 0) src[n] = src[n % 3];
    }
    const int step = 3 * width * static_cast<int>(sizeof(T));
    EXPECT_EQ(function(src.data(), step, dst.data(), step, {width, 1}, twist), vemiOk);
    for (size_t n = 0; n < dst.size(); ++n) {
      const auto& row = twist[n % 3];
      const T* const s = &src[n - n % 3];
      const double sum = double{row[0]} * s[0] + double{row[1]} * s[1] + double{row[2]} * s[2] + double{row[3]};
      ASSERT_EQ(dst[n], integerOf(sum, lowest, highest)) << "round " << round << ", element " << n;
    }
  }
}

}  // namespace

// The fast ways.
TEST(ColorTwist, SumsBesideHalves) {
  expectSumsBesideHalves<Vemi8u>(vemiColorTwist32f_8u_C3R, 1000);
  expectSumsBesideHalves<Vemi8s>(vemiColorTwist32f_8s_C3R, 300);
  expectSumsBesideHalves<Vemi16u>(vemiColorTwist32f_16u_C3R, 1000);
  expectSumsBesideHalves<Vemi16s>(vemiColorTwist32f_16s_C3R, 1000);
}
