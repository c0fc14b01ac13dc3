// vemiSum, vemiMean, vemiCountInRange.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "measure/reductions_reference.h"

using namespace vemi::test;

namespace {

void sum(Call& call) {
  prepareFloats(call);
  for (int channel = 0; channel < call.source().channels; ++channel) {
    const Sum sum = sumOf(call, valuesOf(call, channel));
    storeResult(call, "pSum", channel, sum.value);
    allowFastSum(call, sum.ofMagnitudes, sum.value);
  }
}

void mean(Call& call) {
  prepareFloats(call);
  const double pixels = call.scenario.roiSize.width * call.scenario.roiSize.height;
  for (int channel = 0; channel < call.source().channels; ++channel) {
    const Sum sum = sumOf(call, valuesOf(call, channel));
    const double mean = call.source().channels == 1 ? sum.value / pixels : sum.value * (1.0 / pixels);
    storeResult(call, "pMean", channel, mean);
    allowFastSum(call, sum.ofMagnitudes / pixels, mean);
  }
}

void count(Call& call) {
  for (int channel = 0; channel < call.source().channels; ++channel) {
    const Element element = call.source().element;
    const double lower = loadNumber(element, call.constant("lower", channel));
    const double upper = loadNumber(element, call.constant("upper", channel));
    const Values values = valuesOf(call, channel);
    Vemi32s inside = 0;
    forEachPixel(call, [&](int x, int y) { inside += lower <= values(x, y) && values(x, y) <= upper; });
    storeResult(call, "pCounts", channel, inside);
  }
}

}  // namespace

TEST(Sum, EveryMember) { expectDefinition(membersOf("vemiSum"), sum); }
TEST(Mean, EveryMember) { expectDefinition(membersOf("vemiMean"), mean); }
TEST(CountInRange, EveryMember) { expectDefinition(membersOf("vemiCountInRange"), count); }

// Rows one byte apart over the same bytes: more elements than memory, and totals beyond 32 bits in every lane.
TEST(Sum, OfRegionsBeyond32Bits) {
  const VemiSize size = {1 << 20, 1 << 11};
  const double pixels = std::ldexp(1, 31);
  std::vector<Vemi8u> white(3 * (1 << 20) + (1 << 11), Vemi8u{255});
  double one = 0, three[3] = {};
  EXPECT_EQ(vemiSum_8u_C1R(white.data(), 1, size, &one), vemiOk);
  EXPECT_EQ(one, 255 * pixels);
  EXPECT_EQ(vemiSum_8u_C3R(white.data(), 1, size, three), vemiOk);
  for (const double each : three) EXPECT_EQ(each, 255 * pixels);

  const std::vector<Vemi16s> dark(3 * (1 << 20) + (1 << 10), Vemi16s(-0x7f80));  // 0x8080 at any byte
  EXPECT_EQ(vemiSum_16s_C1R(dark.data(), 1, size, &one), vemiOk);
  EXPECT_EQ(one, -0x7f80 * pixels);
  EXPECT_EQ(vemiSum_16s_C3R(dark.data(), 1, size, three), vemiOk);
  for (const double each : three) EXPECT_EQ(each, -0x7f80 * pixels);
}

// Integers sum up exactly in any order, however long the row.
TEST(Sum, OfIntegersInFloats) {
  for (const int width : {1, 31, 32, 33, 8191, 8192, 8193, 30000}) {
    std::vector<Vemi32f> ramp(3 * static_cast<size_t>(width));
    double total[3] = {}, sum[3] = {}, one = 0;
    for (size_t i = 0; i < ramp.size(); ++i) total[i % 3] += ramp[i] = static_cast<Vemi32f>(i % 509) - 200;
    for (const int hint : {0, 2}) {
      EXPECT_EQ(vemiSum_32f_C3R(ramp.data(), 12 * width, {width, 1}, sum, hint), vemiOk);
      for (int c = 0; c < 3; ++c) EXPECT_EQ(sum[c], total[c]) << width;
      EXPECT_EQ(vemiSum_32f_C1R(ramp.data(), 12 * width, {3 * width, 1}, &one, hint), vemiOk);
      EXPECT_EQ(one, total[0] + total[1] + total[2]) << width;
    }
  }
}

// The same pixels, contiguous and not, in one build: neither the step nor the alignment shows.
TEST(Sum, FastSumsDoNotDependOnStepOrAlignment) {
  const VemiSize size = {101, 7};
  std::vector<std::byte> close(101 * 4 * 7 + 4), wide(101 * 8 * 7 + 4);
  Random random(5);
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 101; ++x) {
      const float value = 0.1f * static_cast<float>(random.below(1000));
      store(close.data() + (y * 101 + x) * 4, value);
      store(wide.data() + (y * 202 + x) * 4 + 1, value);
    }
  }
  double one = 0, other = 0;
  vemiSum_32f_C1R(reinterpret_cast<const Vemi32f*>(close.data()), 404, size, &one, vemiHintFast);
  vemiSum_32f_C1R(reinterpret_cast<const Vemi32f*>(wide.data() + 1), 808, size, &other, vemiHintFast);
  EXPECT_EQ(one, other);
}

// The running total of the fast way: a double would lose the ones that follow 2^53.
TEST(Sum, FastTotalHasSixtyFourBits) {
  const Vemi32f column[] = {0x1p53f, 1, 1, 1, 1, -0x1p53f};
  double sum = 0;
  vemiSum_32f_C1R(column, 4, {1, 6}, &sum, vemiHintNone);
  EXPECT_EQ(sum, 4);
  vemiSum_32f_C1R(column, 4, {1, 6}, &sum, vemiHintAccurate);
  EXPECT_EQ(sum, 2);  // those that the second accumulator took; the first has lost its two
}

TEST(Sum, AccurateTurnsRunOnThroughTheRows) {
  // Of three columns: the first accumulator takes elements 0, 2, 4, the second 1, 3, 5.
  const Vemi32f rows[] = {0x1p60f, 1, -0x1p60f, 1, 1, 1};
  double sum = 0;
  vemiSum_32f_C1R(rows, 12, {3, 2}, &sum, vemiHintAccurate);
  EXPECT_EQ(sum, 4);
}

TEST(Sum, FloatsGoTheWayOfIeeeArithmetic) {
  for (const int hint : {0, 2}) {
    double sum = 0;
    const Vemi32f infinite[] = {1, INFINITY, 2}, cancelled[] = {INFINITY, -INFINITY, 1}, zeros[] = {-0.0f, -0.0f};
    vemiSum_32f_C1R(infinite, 12, {3, 1}, &sum, hint);
    EXPECT_EQ(sum, INFINITY);
    vemiSum_32f_C1R(cancelled, 12, {3, 1}, &sum, hint);
    EXPECT_TRUE(std::isnan(sum));
    vemiSum_32f_C1R(zeros, 8, {2, 1}, &sum, hint);
    EXPECT_EQ(sum, 0);
  }
}

TEST(Mean, OneChannelDividesAndSeveralMultiply) {
  const std::vector<Vemi8u> ones(3 * 49, Vemi8u{1});
  double one = 0, three[3] = {};
  vemiMean_8u_C1R(ones.data(), 7, {7, 7}, &one);
  vemiMean_8u_C3R(ones.data(), 21, {7, 7}, three);
  EXPECT_EQ(one, 1.0);
  EXPECT_EQ(three[1], 49 * (1.0 / 49));
  EXPECT_NE(three[1], 1.0);
}

TEST(CountInRange, EveryPairOfLimits) {
  std::vector<Vemi8u> levels(256 * 2 + 5);
  for (size_t n = 0; n < levels.size(); ++n) levels[n] = static_cast<Vemi8u>(n);
  const int width = static_cast<int>(levels.size());
  for (int lower = 0; lower < 256; ++lower) {
    for (int upper = lower; upper < 256; ++upper) {
      Vemi32s count = 0;
      vemiCountInRange_8u_C1R(levels.data(), width, {width, 1}, &count, static_cast<Vemi8u>(lower),
                              static_cast<Vemi8u>(upper));
      const int again = std::max(0, std::min(upper, 4) - lower + 1);
      ASSERT_EQ(count, 2 * (upper - lower + 1) + again) << lower << " to " << upper;
    }
  }
}

TEST(CountInRange, NaNIsNowhere) {
  const Vemi32f values[] = {NAN, 1, -INFINITY, INFINITY, -NAN};
  Vemi32s count = -1;
  EXPECT_EQ(vemiCountInRange_32f_C1R(values, 20, {5, 1}, &count, -INFINITY, INFINITY), vemiOk);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(vemiCountInRange_32f_C1R(values, 20, {5, 1}, &count, NAN, 5), vemiOk);
  EXPECT_EQ(count, 0);
}

TEST(CountInRange, WideRows) {
  const std::vector<Vemi8u> grey(600000, Vemi8u{128});
  Vemi32s count = 0;
  vemiCountInRange_8u_C1R(grey.data(), 600000, {600000, 1}, &count, 128, 128);
  EXPECT_EQ(count, 600000);
  Vemi32s counts[3] = {};
  const Vemi8u lower[] = {0, 128, 129}, upper[] = {255, 128, 255};
  vemiCountInRange_8u_C3R(grey.data(), 1, {199000, 3}, counts, lower, upper);
  EXPECT_EQ(counts[0], 597000);
  EXPECT_EQ(counts[1], 597000);
  EXPECT_EQ(counts[2], 0);
}
