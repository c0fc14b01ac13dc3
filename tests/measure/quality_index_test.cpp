// vemiQualityIndex against its definition, window by window.

#include <gtest/gtest.h>
#include <omp.h>

#include <cmath>
#include <vector>

#include "measure/reductions_reference.h"
#include "support/allocator.h"

using namespace vemi::test;

namespace {

/// In pairs, pairs of pairs, ...; what is missing behind the end is left out.
double pairwise(double (&values)[8], int count) {
  for (; count > 1; count = (count + 1) / 2) {
    for (int i = 0; i < count; i += 2) values[i / 2] = i + 1 < count ? values[i] + values[i + 1] : values[i];
  }
  return values[0];
}

template <class Value>
double windowSum(VemiSize window, const Value& value) {
  double columns[8] = {}, column[8] = {};
  for (int x = 0; x < window.width; ++x) {
    for (int y = 0; y < window.height; ++y) column[y] = value(x, y);
    columns[x] = pairwise(column, window.height);
  }
  return pairwise(columns, window.width);
}

/// A channel as doubles.
struct Plane {
  int width;
  std::vector<double> pixel;

  Plane(const Call& call, const Values& values) : width(call.scenario.roiSize.width) {
    forEachPixel(call, [&](int x, int y) { pixel.push_back(values(x, y)); });
  }
  double operator()(int x, int y) const { return pixel[static_cast<size_t>(y * width + x)]; }
};

double indexOf(VemiSize window, const Plane& a, const Plane& b, int x0, int y0) {
  const auto sum = [&](const auto& term) {
    return windowSum(window, [&](int x, int y) { return term(a(x0 + x, y0 + y), b(x0 + x, y0 + y)); });
  };
  const double n = window.width * window.height;
  const double s1 = sum([](double p, double) { return p; }), s2 = sum([](double, double q) { return q; });
  const double nsq = n * sum([](double p, double q) { return p * p + q * q; });
  const double s12 = sum([](double p, double q) { return p * q; });
  const double r = s1 * s1 + s2 * s2, p = s1 * s2, v = nsq - r, c = n * s12 - p;
  const bool flat = v <= std::ldexp(nsq, -46), dark = r == 0;
  return (flat ? 1 : 2 * c) * (dark ? 1 : 2 * p) / ((flat ? 1 : v) * (dark ? 1 : r));
}

float meanIndex(VemiSize size, const Plane& a, const Plane& b) {
  const VemiSize window = {std::min(8, size.width), std::min(8, size.height)};
  int64_t sum = 0, count = 0;
  bool isNaN = false;
  for (int y = 0; y + window.height <= size.height; ++y) {
    for (int x = 0; x + window.width <= size.width; ++x, ++count) {
      const double scaled = std::ldexp(indexOf(window, a, b, x, y), 30);
      isNaN = isNaN || std::isnan(scaled);
      if (!isNaN) sum += std::llrint(scaled);
    }
  }
  if (isNaN) return NAN;
  return static_cast<float>(static_cast<double>(sum) / std::ldexp(static_cast<double>(count), 30));
}

void quality(Call& call) {
  call.anyNaN = true;
  for (int channel = 0; channel < call.source().channels; ++channel) {
    const Plane a(call, valuesOf(call, channel, 0)), b(call, valuesOf(call, channel, 1));
    storeResult(call, "pQualityIndex", channel, meanIndex(call.scenario.roiSize, a, b));
  }
}

using OfBytes = std::vector<Vemi8u>;

float indexOf(const OfBytes& a, const OfBytes& b, VemiSize size) {
  float index = -2;
  EXPECT_EQ(vemiQualityIndex_8u32f_C1R(a.data(), size.width, b.data(), size.width, size, &index), vemiOk);
  return index;
}

float indexOf(const std::vector<Vemi32f>& a, const std::vector<Vemi32f>& b, VemiSize size) {
  float index = -2;
  EXPECT_EQ(vemiQualityIndex_32f_C1R(a.data(), 4 * size.width, b.data(), 4 * size.width, size, &index), vemiOk);
  return index;
}

}  // namespace

TEST(QualityIndex, EveryMember) { expectDefinition(membersOf("vemiQualityIndex"), quality); }

// More rows than a window has, tiles of all kinds, and sums that move on over many rows.
TEST(QualityIndex, Tiles) {
  for (const Export* const member : membersOf("vemiQualityIndex")) {
    unsigned seed = 1;
    for (const VemiSize size : {VemiSize{9, 7},
                                {8, 8},
                                {7, 20},
                                {1, 150},
                                {127, 9},
                                {128, 12},
                                {255, 11},
                                {256, 10},
                                {20, 135},
                                {263, 136}}) {
      if (!expectCall(*member, {size, Rows::odd, Edge::back, ++seed}, quality)) break;
    }
  }
}

TEST(QualityIndex, Examples) {
  EXPECT_EQ(indexOf(OfBytes(400, 10), OfBytes(400, 20), {20, 20}), 0.8f);
  EXPECT_EQ(indexOf(OfBytes{1, 2, 3}, OfBytes{1, 2, 4}, {3, 1}), 0.88941175f);
  EXPECT_EQ(indexOf(OfBytes{3}, OfBytes{4}, {1, 1}), 0.96f);
  EXPECT_EQ(indexOf(OfBytes(300, 0), OfBytes(300, 0), {20, 15}), 1);
  EXPECT_EQ(indexOf(OfBytes(300, 0), OfBytes(300, 9), {20, 15}), 0);
  EXPECT_EQ(indexOf(OfBytes(300, 255), OfBytes(300, 255), {20, 15}), 1);
}

TEST(QualityIndex, EqualReversedExchanged) {
  const VemiSize size = {150, 140};
  Random random(4);
  OfBytes a(150 * 140), reversed(a.size()), other(a.size());
  std::vector<Vemi32f> floats(a.size()), otherFloats(a.size());
  for (size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<Vemi8u>(1 + random.below(255));
    reversed[i] = static_cast<Vemi8u>(256 - a[i]);
    other[i] = static_cast<Vemi8u>(a[i] / 2 + random.below(128));
    floats[i] = a[i];
    otherFloats[i] = other[i];
  }
  EXPECT_EQ(indexOf(a, a, size), 1);
  EXPECT_LT(indexOf(a, reversed, size), -0.95f);
  EXPECT_EQ(indexOf(a, other, size), indexOf(other, a, size));
  EXPECT_EQ(indexOf(a, other, size), indexOf(floats, otherFloats, size));
  EXPECT_GT(indexOf(a, other, size), 0.1f);
  for (float& each : floats) each = 1e30f * std::sin(each);
  EXPECT_EQ(indexOf(floats, floats, size), 1);
  for (float& each : floats) each *= 1e-38f;  // some squares are no single floats
  EXPECT_EQ(indexOf(floats, floats, size), 1);
  for (const float bad : {NAN, INFINITY, -INFINITY}) {
    std::vector<Vemi32f> spoiled = floats;
    spoiled[70 * 150 + 130] = bad;
    EXPECT_TRUE(std::isnan(indexOf(floats, spoiled, size)));
    EXPECT_TRUE(std::isnan(indexOf(spoiled, spoiled, size)));
    EXPECT_EQ(indexOf(floats, spoiled, {150, 70}), indexOf(floats, floats, {150, 70}));
  }
}

// A constant that no float sum holds exactly is flat, and so are steps of its last place; some more of them are not.
TEST(QualityIndex, FlatFloats) {
  const VemiSize size = {30, 30};
  std::vector<Vemi32f> flat(900, 0.1f), brighter(900, 0.2f), rough = flat;
  EXPECT_FLOAT_EQ(indexOf(flat, brighter, size), 0.8f);
  const auto indexWithSteps = [&](int units) {
    for (size_t i = 0; i < 900; i += 2) rough[i] = 0.1f + static_cast<float>(units) * 0x1p-27f;
    return indexOf(rough, flat, size);
  };
  EXPECT_EQ(indexWithSteps(1), 1);
  EXPECT_NEAR(indexWithSteps(16), 0, 0.01);
  EXPECT_EQ(indexOf(rough, rough, size), 1);
}

TEST(QualityIndex, TeamsOfAnySize) {
  const VemiSize size = {700, 300};
  Random random(8);
  std::vector<Vemi8u> a(3 * 700 * 300), b(a.size());
  random.fill(reinterpret_cast<std::byte*>(a.data()), a.size());
  for (size_t i = 0; i < a.size(); ++i) b[i] = static_cast<Vemi8u>(a[i] / 3 * 2 + random.below(80));
  const int former = omp_get_max_threads();
  float alone[3] = {}, together[3] = {};
  for (const int team : {1, 2, 3, 7}) {
    omp_set_num_threads(team);
    EXPECT_EQ(vemiQualityIndex_8u32f_C3R(a.data(), 2100, b.data(), 2100, size, team == 1 ? alone : together), vemiOk);
    for (int channel = 0; team > 1 && channel < 3; ++channel) EXPECT_EQ(alone[channel], together[channel]) << team;
  }
  omp_set_num_threads(former);
}
