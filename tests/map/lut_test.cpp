// vemiLUT, vemiLUT_Linear, vemiLUT_Cubic.

#include <gtest/gtest.h>
#include <limits.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

enum class Curve { steps, lines, cubics };

template <class V>
struct Points {
  std::vector<V> levels, values;
  size_t count() const { return levels.size(); }
};

using Matrix = double[3][3];

double determinant(const Matrix& m) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

/// y + a t + b t^2 + c t^3 from `sum` = y or y + 0.5 on: the cubic of interval k, by Cramer's rule as it is printed.
template <class V>
double cubicAt(const Points<V>& points, size_t k, double v, double half) {
  const size_t first = k == 0 ? 0 : std::min(k - 1, points.count() - 4);
  const double x = points.levels[first + 1], y = points.values[first + 1];
  Matrix powers;
  double right[3], coefficient[3];
  for (size_t row = 0; row < 3; ++row) {
    const size_t point = first + (row == 0 ? 0 : row + 1);
    const double d = points.levels[point] - x;
    powers[row][0] = d, powers[row][1] = d * d, powers[row][2] = d * d * d;
    right[row] = points.values[point] - y;
  }
  for (size_t column = 0; column < 3; ++column) {
    Matrix replaced;
    std::copy(&powers[0][0], &powers[0][0] + 9, &replaced[0][0]);
    for (size_t row = 0; row < 3; ++row) replaced[row][column] = right[row];
    coefficient[column] = determinant(replaced) / determinant(powers);
  }
  const double t = v - x;
  return y + half + coefficient[0] * t + coefficient[1] * (t * t) + coefficient[2] * (t * t * t);
}

/// The interval of a table that is filled interval by interval, from the last level on nothing; -1 where there is none.
template <class V>
int lastHolding(const Points<V>& points, double v) {
  int held = -1;
  for (size_t k = 0; k + 1 < points.count(); ++k) {
    if (points.levels[k] <= v && v < points.levels[k + 1]) held = static_cast<int>(k);
  }
  return v >= points.levels.back() ? -1 : held;
}

template <class V>
int firstHolding(const Points<V>& points, double v) {
  for (size_t k = 0; k + 1 < points.count(); ++k) {
    if (points.levels[k] <= v && v < points.levels[k + 1]) return static_cast<int>(k);
  }
  return -1;
}

/// Before it is limited.
int64_t mapped(Curve curve, const Points<Vemi32s>& points, int v) {
  const int held = lastHolding(points, v);
  if (held < 0) return v;
  const auto k = static_cast<size_t>(held);
  const double width = static_cast<double>(points.levels[k + 1]) - points.levels[k];
  if (curve == Curve::steps || width == 1) return points.values[k];
  const double slope = (static_cast<double>(points.values[k + 1]) - points.values[k]) / width;
  const double y = curve == Curve::lines || points.count() < 4
                       ? points.values[k] + 0.5 + slope * (static_cast<double>(v) - points.levels[k])
                       : cubicAt(points, k, v, 0.5);
  return std::isnan(y) ? INT64_MIN : static_cast<int64_t>(std::clamp(std::trunc(y), -1e10, 1e10));
}

float mapped(Curve curve, const Points<Vemi32f>& points, float v) {
  const int held = firstHolding(points, v);
  if (held < 0) return v;
  const auto k = static_cast<size_t>(held);
  if (curve == Curve::steps) return points.values[k];
  if (curve == Curve::cubics && points.count() >= 4) return static_cast<float>(cubicAt(points, k, v, 0.0));
  const float rise = points.values[k + 1] - points.values[k], width = points.levels[k + 1] - points.levels[k];
  const float t = v - points.levels[k];
  return static_cast<float>(t * (static_cast<double>(rise) / static_cast<double>(width)) + points.values[k]);
}

template <class V>
Points<V> pointsOf(Call& call, int channel) {
  const int count = load<int>(call.constant("nLevels", channel));
  const View levels = call.array("pLevels"), values = call.array("pValues");
  Points<V> points;
  for (int n = 0; n < count; ++n) {
    points.levels.push_back(load<V>(levels.at(n, 0, channel)));
    points.values.push_back(load<V>(values.at(n, 0, channel)));
  }
  return points;
}

/// Of cubics all channels have lines where one of them has fewer than four levels.
template <class V>
Curve possible(Curve curve, const std::vector<Points<V>>& channels) {
  const bool anyShort =
      std::any_of(channels.begin(), channels.end(), [](const Points<V>& points) { return points.count() < 4; });
  return anyShort && curve == Curve::cubics ? Curve::lines : curve;
}

template <class V, class Store>
void forEachMapped(Call& call, Curve curve, const Store& store) {
  const View source = call.source(), destination = call.destination();
  std::vector<Points<V>> points;
  for (int channel = 0; channel < source.channels; ++channel) points.push_back(pointsOf<V>(call, channel));
  curve = possible(curve, points);
  call.forEachElement([&](int x, int y, int channel) {
    store(curve, points[static_cast<size_t>(channel)], source.at(x, y, channel), destination.at(x, y, channel));
  });
}

Reference integers(Curve curve) {
  return [=](Call& call) {
    const Element element = call.destination().element;
    forEachMapped<Vemi32s>(
        call, curve, [&](Curve is, const Points<Vemi32s>& points, const std::byte* from, std::byte* to) {
          storeSaturated(element, to, mapped(is, points, static_cast<int>(loadInteger(element, from))));
        });
  };
}

Reference floats(Curve curve) {
  return [=](Call& call) {
    forEachMapped<Vemi32f>(call, curve,
                           [](Curve is, const Points<Vemi32f>& points, const std::byte* from, std::byte* to) {
                             const float v = load<float>(from);
                             if (std::isnan(v)) {  // through the x87 unit it would become quiet
                               store(to, load<uint32_t>(from));
                             } else {
                               store(to, mapped(is, points, v));
                             }
                           });
  };
}

void expectCurve(const std::string& operation, Curve curve) {
  expectDefinition(membersOf(operation, "(8u|16s).*"), integers(curve));
  expectDefinition(membersOf(operation, "32f.*"), floats(curve));
}

template <class T, class V>
using Lut = VemiStatus(const T*, int, T*, int, VemiSize, const V*, const V*, int);

/// The members in the order of Curve.
constexpr Lut<Vemi8u, Vemi32s>* lut8u[] = {vemiLUT_8u_C1R, vemiLUT_Linear_8u_C1R, vemiLUT_Cubic_8u_C1R};
constexpr Lut<Vemi16s, Vemi32s>* lut16s[] = {vemiLUT_16s_C1R, vemiLUT_Linear_16s_C1R, vemiLUT_Cubic_16s_C1R};
constexpr Lut<Vemi32f, Vemi32f>* lut32f[] = {vemiLUT_32f_C1R, vemiLUT_Linear_32f_C1R, vemiLUT_Cubic_32f_C1R};

template <class T, class V>
std::vector<T> run(Lut<T, V>* function, std::vector<T> pixels, const Points<V>& points, int height = 1) {
  std::vector<T> result(pixels.size());
  const int width = static_cast<int>(pixels.size()) / height, step = width * static_cast<int>(sizeof(T));
  EXPECT_EQ(function(pixels.data(), step, result.data(), step, {width, height}, points.values.data(),
                     points.levels.data(), static_cast<int>(points.count())),
            vemiOk);
  return result;
}

/// All values of T, through every curve; 16s in one region that is looked up, and in parts that are searched.
template <class T>
void expectEveryValue(Lut<T, Vemi32s>* const (&function)[3], const Points<Vemi32s>& points) {
  constexpr int lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
  std::vector<T> all(static_cast<size_t>(highest - lowest + 1)), expected(all.size());
  std::iota(all.begin(), all.end(), static_cast<T>(lowest));
  for (const Curve curve : {Curve::steps, Curve::lines, Curve::cubics}) {
    for (size_t n = 0; n < all.size(); ++n) {
      expected[n] = static_cast<T>(std::clamp<int64_t>(mapped(curve, points, all[n]), lowest, highest));
    }
    std::vector<T> result = run(function[static_cast<int>(curve)], all, points);
    EXPECT_TRUE(result == expected) << "curve " << static_cast<int>(curve) << ", first level " << points.levels[0];
    if (sizeof(T) == 1 || curve != Curve::steps) continue;
    for (size_t n = 0; n < all.size(); n += 4096) {
      const auto first = static_cast<ptrdiff_t>(n);
      result = run(function[0], {all.begin() + first, all.begin() + first + 4096}, points);
      EXPECT_TRUE(std::equal(result.begin(), result.end(), expected.begin() + first)) << "from " << n;
    }
  }
}

const Points<Vemi32s> listsOfPoints[] = {
    {{0, 256}, {7, 9}},
    {{10, 20}, {300, -5}},
    {{-40000, 40000}, {-70000, 70000}},
    {{INT_MIN, INT_MAX}, {INT_MIN, INT_MAX}},
    {{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}},
    {{INT_MIN, 3, INT_MAX}, {INT_MAX, -1, 12}},
    {{3, 4, 5, 6}, {100, 90, 300, -7}},
    {{-1, 0, 255, 256}, {9, 8, 7, 6}},
    {{254, 255, 256}, {1, 2, 3}},
    {{32766, 32767, 32768}, {1, 2, 3}},
    {{-32769, -32768, -32767}, {1, 2, 3}},
    {{-500, -200}, {1, 2}},
    {{40000, 50000, 60000, 70000}, {1, 2, 3, 4}},
    {{10, 10, 20, 20, 30}, {1, 2, 3, 4, 5}},
    {{100, 50, 120}, {1, 2, 3}},
    {{50, 100, 20, 80, 60}, {1, 2, 3, 4, 5}},
    {{200, 150, 100, 50}, {1, 2, 3, 4}},
    {{0, 31, 100, 211, 250}, {250, 0, 100, 20, 255}},
    {{-20000, -1000, 0, 700, 32768}, {-32000, 31000, -7, 100, 0}},
    {{INT_MIN, -7, 5, INT_MAX}, {-100, 100, -100, 100}},
};

}  // namespace

TEST(Lut, EveryMember) { expectCurve("vemiLUT", Curve::steps); }
TEST(Lut, EveryMemberLinear) { expectCurve("vemiLUT_Linear", Curve::lines); }
TEST(Lut, EveryMemberCubic) { expectCurve("vemiLUT_Cubic", Curve::cubics); }

TEST(Lut, EveryValueOf8u) {
  for (const Points<Vemi32s>& points : listsOfPoints) expectEveryValue(lut8u, points);
}

TEST(Lut, EveryValueOf16s) {
  for (const Points<Vemi32s>& points : listsOfPoints) expectEveryValue(lut16s, points);
}

TEST(Lut, TruncatesTowardZero) {
  // The line from (0, 0) to (10, -37) has the values -3.7 v / 10.
  EXPECT_EQ(run(lut16s[1], {1, 2, 3, 4, 5, 10}, {{0, 100}, {0, -37}}), (std::vector<Vemi16s>{0, 0, 0, 0, -1, -3}));
  EXPECT_EQ(run(lut16s[1], {1, 2, 3}, {{0, 10}, {0, -7}}), (std::vector<Vemi16s>{0, 0, -1}));  // -0.7, -1.4, -2.1
  EXPECT_EQ(run(lut16s[1], {1, 2, 3, 5}, {{0, 10}, {0, -5}}), (std::vector<Vemi16s>{0, 0, -1, -2}));  // -1.5 is -1
  EXPECT_EQ(run(lut8u[1], {0, 1, 128, 254, 255}, {{0, 255}, {0, 255}}), (std::vector<Vemi8u>{0, 1, 128, 254, 255}));
}

TEST(Lut, FloatsAtTheEdges) {
  const float nan = std::nanf(""), infinity = HUGE_VALF;
  for (const int curve : {0, 1}) {
    const Points<Vemi32f> points = {{-0.0f, 1, 2, 3, infinity}, {5, 6, 7, 8, 9}};
    const std::vector<float> result = run(lut32f[curve], {-1, 0.0f, -0.0f, 1, 2, infinity, -infinity}, points);
    EXPECT_EQ(result, (std::vector<float>{-1, 5, 5, 6, 7, infinity, -infinity})) << curve;
  }
  // NaNs among the levels hold nothing.
  EXPECT_EQ(run(lut32f[0], {0, 5, 15, 25}, {{0, nan, 10, 20}, {1, 2, 3, 4}}), (std::vector<float>{0, 5, 3, 25}));
}

// Of floats the first interval counts that holds the number, whatever the last level; of bytes the last one, below it.
TEST(Lut, LevelsThatDoNotAscend) {
  EXPECT_EQ(run(lut32f[0], {0, 5, 7, 12}, {{0, 6, 2, 10}, {1, 2, 3, 4}}), (std::vector<float>{1, 1, 3, 12}));
  EXPECT_EQ(run(lut32f[0], {0, 5, 7, 12}, {{0, 10, 6}, {1, 2, 3}}), (std::vector<float>{1, 1, 1, 12}));
  EXPECT_EQ(run(lut32f[0], {10, 30, 60, 90, 100}, {{50, 100, 20, 80, 60}, {1, 2, 3, 4, 5}}),
            (std::vector<float>{10, 3, 1, 1, 100}));
  EXPECT_EQ(run(lut8u[0], {10, 30, 60, 90, 100}, {{50, 100, 20, 80, 60}, {1, 2, 3, 4, 5}}),
            (std::vector<Vemi8u>{10, 3, 60, 90, 100}));
}

TEST(Lut, FloatLinesRoundTheirDifferencesToSingle) {
  const float below = std::nextafterf(1, 0), tiny = 1e-9f;
  const Points<Vemi32f> points = {{tiny, 1}, {-1, tiny}};  // 1 - 1e-9 and 1e-9 + 1 are 1 in single precision
  const double expected = static_cast<double>(below - tiny) * 1.0 + -1.0;
  EXPECT_EQ(run(lut32f[1], {below}, points), std::vector<float>{static_cast<float>(expected)});
}

TEST(Lut, FloatCubicsNeedMoreThanSinglePrecision) {
  Points<Vemi32f> points;
  for (const float x : {1000.1f, 1000.3f, 1000.7f, 1001.2f, 1001.9f}) {
    points.levels.push_back(x);
    points.values.push_back(std::sin(x));
  }
  std::vector<float> v;
  for (float x = 1000.1f; x < 1001.9f; x += 0.01f) v.push_back(x);
  const std::vector<float> result = run(lut32f[2], v, points);
  for (size_t n = 0; n < v.size(); ++n) EXPECT_NEAR(result[n], mapped(Curve::cubics, points, v[n]), 1e-7) << v[n];
}

// Every interval has the two equal levels among its four, so that no result is a number; infinities are limited.
TEST(Lut, NoCubicGoesThroughEqualLevels) {
  std::vector<Vemi8u> bytes(256);
  std::vector<Vemi16s> words(256);
  std::vector<Vemi32f> floats(256);
  std::iota(bytes.begin(), bytes.end(), Vemi8u{0});
  std::iota(words.begin(), words.end(), Vemi16s{0});
  std::iota(floats.begin(), floats.end(), 0.0f);
  const Points<Vemi32s> points = {{0, 64, 64, 128, 256}, {0, 10, 20, 30, 40}};
  for (const Vemi8u v : run(lut8u[2], bytes, points)) EXPECT_TRUE(v == 0 || v == 255) << int{v};
  for (const Vemi16s v : run(lut16s[2], words, points)) EXPECT_TRUE(v == -32768 || v == 32767) << v;
  for (const Vemi32f v : run(lut32f[2], floats, {{0, 64, 64, 128, 256}, {0, 10, 20, 30, 40}})) {
    EXPECT_FALSE(std::isfinite(v)) << v;
  }
}

// Regions of 16s steps need memory from their thresholds on, other curves always; 8u never.
TEST(Lut, AllocationFails) {
  const Vemi32s levels[] = {-30000, 0, 100, 30000}, values[] = {1, 2, 3, 4};
  const Vemi32s *const listsOfLevels[] = {levels, levels, levels}, *const listsOfValues[] = {values, values, values};
  const float floatLevels[] = {0, 1, 2, 3}, floatValues[] = {4, 5, 6, 7};
  const int counts[] = {4, 4, 4};
  std::vector<Vemi16s> source(3 * 6401, 50), result(source.size());
  std::vector<float> floatSource(64, 1.5f), floatResult(floatSource.size());
  std::vector<Vemi8u> byteSource(64, 50), byteResult(byteSource.size());
  const NoMemory noMemory;
  const auto c1 = [&](int curve, VemiSize size) {
    return lut16s[curve](source.data(), 2 * size.width, result.data(), 2 * size.width, size, values, levels, 4);
  };
  const auto c3 = [&](VemiSize size) {
    return vemiLUT_16s_C3R(source.data(), 6 * size.width, result.data(), 6 * size.width, size, listsOfValues,
                           listsOfLevels, counts);
  };
  EXPECT_EQ(c1(0, {6401, 1}), vemiErrMemAlloc);
  EXPECT_EQ(c3({17, 241}), vemiErrMemAlloc);
  EXPECT_EQ(c1(1, {1, 1}), vemiErrMemAlloc);
  EXPECT_EQ(c1(2, {1, 1}), vemiErrMemAlloc);
  for (const int curve : {1, 2}) {
    EXPECT_EQ(lut32f[curve](floatSource.data(), 256, floatResult.data(), 256, {64, 1}, floatValues, floatLevels, 4),
              vemiErrMemAlloc);
    EXPECT_EQ(lut8u[curve](byteSource.data(), 64, byteResult.data(), 64, {64, 1}, values, levels, 4), vemiOk);
  }
  EXPECT_EQ(std::count(result.begin(), result.end(), 0), 3 * 6401);
  EXPECT_EQ(std::count(floatResult.begin(), floatResult.end(), 0.0f), 64);
  EXPECT_EQ(c1(0, {80, 80}), vemiOk);
  EXPECT_EQ(c3({64, 64}), vemiOk);
  EXPECT_EQ(std::count(result.begin(), result.end(), 2), 3 * 4096);
}
