// vemiMin, vemiMax, vemiMinMax, vemiMinIndx, vemiMaxIndx.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "measure/reductions_reference.h"

using namespace vemi::test;

namespace {

/// Whether a is the more extreme of two values; a NaN is not.
bool isBetter(bool lowest, double a, double b) { return lowest ? a < b : a > b; }

/// A double that is a value of the element's type.
void storeAs(Element element, std::byte* place, double value) {
  if (element == Element::f32) {
    store(place, static_cast<float>(value));
  } else {
    storeSaturated(element, place, static_cast<int64_t>(value));
  }
}

double extremeOf(Call& call, int channel, bool lowest) {
  const Values values = valuesOf(call, channel);
  double best = lowest ? INFINITY : -INFINITY;
  forEachPixel(call, [&](int x, int y) {
    const double value = values(x, y);
    const bool betterZero = value == 0 && best == 0 && std::signbit(value) == lowest;
    if (isBetter(lowest, value, best) || betterZero) best = value;
  });
  return best;
}

Reference extreme(bool lowest) {
  return [=](Call& call) {
    for (int channel = 0; channel < call.source().channels; ++channel) {
      storeAs(call.source().element, call.array(lowest ? "pMin" : "pMax").at(channel, 0),
              extremeOf(call, channel, lowest));
    }
  };
}

void firstExtreme(Call& call, bool lowest) {
  const Element element = call.source().element;
  const double largest = static_cast<double>(std::numeric_limits<float>::max());
  for (int channel = 0; channel < call.source().channels; ++channel) {
    const Values values = valuesOf(call, channel);
    double best = lowest ? largest : -largest;
    int bestX = 0, bestY = 0;
    forEachPixel(call, [&](int x, int y) {
      if (!isBetter(lowest, values(x, y), best)) return;
      best = values(x, y);
      bestX = x;
      bestY = y;
    });
    storeAs(element, call.array(lowest ? "pMin" : "pMax").at(channel, 0), best);
    storeResult(call, "pIndexX", channel, bestX);
    storeResult(call, "pIndexY", channel, bestY);
  }
}

}  // namespace

TEST(Min, EveryMember) { expectDefinition(membersOf("vemiMin"), extreme(true)); }
TEST(Max, EveryMember) { expectDefinition(membersOf("vemiMax"), extreme(false)); }
TEST(MinMax, EveryMember) {
  expectDefinition(membersOf("vemiMinMax"), [](Call& call) {
    extreme(true)(call);
    extreme(false)(call);
  });
}
TEST(MinIndx, EveryMember) {
  expectDefinition(membersOf("vemiMinIndx"), [](Call& call) { firstExtreme(call, true); });
}
TEST(MaxIndx, EveryMember) {
  expectDefinition(membersOf("vemiMaxIndx"), [](Call& call) { firstExtreme(call, false); });
}

TEST(MinMax, PassesOverNaN) {
  for (const int width : {1, 2, 31, 200}) {
    std::vector<Vemi32f> row(static_cast<size_t>(width), NAN);
    float low = 0, high = 0;
    vemiMinMax_32f_C1R(row.data(), 4 * width, {width, 1}, &low, &high);
    EXPECT_EQ(low, INFINITY);
    EXPECT_EQ(high, -INFINITY);
    for (size_t at = 0; at < row.size(); ++at) {
      row[at] = 3;
      vemiMinMax_32f_C1R(row.data(), 4 * width, {width, 1}, &low, &high);
      EXPECT_EQ(low, 3);
      EXPECT_EQ(high, 3);
      row[at] = -NAN;
    }
  }
}

TEST(MinMax, NegativeZeroIsTheLowerOne) {
  for (const int width : {1, 40, 333}) {
    for (const float common : {0.0f, -0.0f}) {
      std::vector<Vemi32f> pixels(3 * static_cast<size_t>(width), common);
      for (size_t at = 1; at < pixels.size(); at += 3) {
        pixels[at] = -common;
        float low[3], high[3];
        vemiMinMax_32f_C3R(pixels.data(), 12 * width, {width, 1}, low, high);
        const bool mixed = width > 1;
        EXPECT_EQ(std::signbit(low[0]), std::signbit(common));
        EXPECT_EQ(std::signbit(high[0]), std::signbit(common));
        EXPECT_EQ(std::signbit(low[1]), mixed || std::signbit(-common));
        EXPECT_EQ(std::signbit(high[1]), !mixed && std::signbit(-common));
        pixels[at] = common;
      }
    }
  }
}

// Every place of a region of several bands, with an equal value behind it and one in the row below.
TEST(MinIndx, TiesGoToTheTopAndThenToTheLeft) {
  const VemiSize size = {211, 97};
  std::vector<Vemi8u> pixels(211 * 97, Vemi8u{9});
  for (int at = 0; at + 212 < 211 * 97; at += 23) {
    const auto n = static_cast<size_t>(at);
    pixels[n] = pixels[n + 1] = pixels[n + 211 - 1] = 4;
    Vemi8u value = 0;
    int x = -1, y = -1;
    EXPECT_EQ(vemiMinIndx_8u_C1R(pixels.data(), 211, size, &value, &x, &y), vemiOk);
    EXPECT_EQ(value, 4);
    ASSERT_EQ(y * 211 + x, at);
    pixels[n] = pixels[n + 1] = pixels[n + 211 - 1] = 9;
  }
}

TEST(MinIndx, ChannelsAreFoundApart) {
  const VemiSize size = {150, 80};
  std::vector<Vemi16s> pixels(4 * 150 * 80, Vemi16s{0});
  pixels[4 * (150 * 70 + 3) + 0] = pixels[4 * (150 * 71) + 0] = -32768;
  pixels[4 * (150 * 2 + 149) + 1] = pixels[4 * (150 * 40) + 1] = -5;
  pixels[4 * (150 * 0 + 0) + 3] = -6;  // of alpha, or of the fourth channel
  Vemi16s value[4];
  int x[4], y[4];
  vemiMinIndx_16s_C4R(pixels.data(), 1200, size, value, x, y);
  const Vemi16s values[] = {-32768, -5, 0, -6};
  const int xs[] = {3, 149, 0, 0}, ys[] = {70, 2, 0, 0};
  for (int c = 0; c < 4; ++c) {
    EXPECT_EQ(value[c], values[c]);
    EXPECT_EQ(x[c], xs[c]);
    EXPECT_EQ(y[c], ys[c]);
  }
}

TEST(MaxIndx, AnAllZeroImageStoresZeroAtTheOrigin) {
  const std::vector<Vemi8u> zeros(5000);
  Vemi8u value = 1;
  int x = 1, y = 1;
  vemiMaxIndx_8u_C1R(zeros.data(), 50, {50, 100}, &value, &x, &y);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
}

TEST(MinIndx, FloatsThatNeverBeatTheStart) {
  const float largest = std::numeric_limits<float>::max();
  for (const float filling : {INFINITY, NAN, largest}) {
    std::vector<Vemi32f> pixels(300, filling);
    float value = 0;
    int x = -1, y = -1;
    vemiMinIndx_32f_C1R(pixels.data(), 40, {10, 30}, &value, &x, &y);
    EXPECT_EQ(value, largest);
    EXPECT_EQ(x + y, 0);
    pixels[123] = -INFINITY;
    vemiMinIndx_32f_C1R(pixels.data(), 40, {10, 30}, &value, &x, &y);
    EXPECT_EQ(value, -INFINITY);
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, 12);
  }
}

TEST(MinIndx, TheFirstZeroIsTheResult) {
  std::vector<Vemi32f> pixels(3000, 1.0f);
  pixels[77] = 0.0f;
  pixels[76] = -0.0f;
  float value = 1;
  int x = 0, y = 0;
  vemiMinIndx_32f_C1R(pixels.data(), 4000, {1000, 3}, &value, &x, &y);
  EXPECT_EQ(x, 76);
  EXPECT_TRUE(std::signbit(value));
}
