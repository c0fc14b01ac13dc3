// Histograms: every method against counting pixel by pixel, bin by bin.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

/// By the numbered rules for even levels.
std::vector<double> evenLevels(int lower, int upper, int count) {
  const int64_t distance = int64_t{upper} - lower, n = count - 1, step = distance / n;
  int64_t rest = distance % n;
  std::vector<double> levels = {static_cast<double>(lower)};
  for (int k = 1; k < count; ++k) {
    double level = levels.back() + static_cast<double>(step);
    if (step >= 0 && rest > 0) level += 1, --rest;
    if (step < 0 && rest < 0) level -= 1, ++rest;
    levels.push_back(level);
  }
  return levels;
}

void counted(Call& call) {
  const View image = call.source(), levelArrays = call.array("pLevels");
  const View histograms = call.array("pHist");
  for (int channel = 0; channel < image.channels; ++channel) {
    const int count = load<int>(call.constant("nLevels", channel));
    std::vector<double> levels;
    if (call.function.indexOf("lowerLevel") >= 0) {
      levels = evenLevels(load<int>(call.constant("lowerLevel", channel)),
                          load<int>(call.constant("upperLevel", channel)), count);
      for (int k = 0; k < count; ++k) {
        store(levelArrays.at(k, 0, channel), static_cast<Vemi32s>(levels[static_cast<size_t>(k)]));
      }
    } else {
      for (int k = 0; k < count; ++k) levels.push_back(loadNumber(levelArrays.element, levelArrays.at(k, 0, channel)));
    }
    for (int bin = 0; bin < count - 1; ++bin) {
      const double low = levels[static_cast<size_t>(bin)], high = levels[static_cast<size_t>(bin) + 1];
      Vemi32s pixels = 0;
      for (int y = 0; y < image.size.height; ++y) {
        for (int x = 0; x < image.size.width; ++x) {
          const double v = loadNumber(image.element, image.at(x, y, channel));
          pixels += low <= v && v < high;
        }
      }
      store(histograms.at(bin, 0, channel), pixels);
    }
  }
}

TEST(Histogram, EveryMember) {
  expectDefinition(membersOf("vemiHistogramRange"), counted);
  expectDefinition(membersOf("vemiHistogramEven"), counted);
}

/// Regions that are large enough for tables of 16-bit values, and pieces of rows.
TEST(Histogram, LargerRegions) {
  for (const char* const operation : {"vemiHistogramRange", "vemiHistogramEven"}) {
    for (const Export* const function : membersOf(operation, "(16s|32f)_.*")) {
      Scenario scenario;
      for (const VemiSize size : {VemiSize{1024, 3}, VemiSize{1025, 2}, VemiSize{2070, 3}, VemiSize{131, 140}}) {
        for (int seed = 0; seed < 6; ++seed) {
          scenario.seed += 1;
          scenario.roiSize = size;
          if (!expectCall(*function, scenario, counted)) return;
        }
      }
    }
  }
}

/// More equal pixels than a counter of 16 bits holds, in one row and in many, contiguous and not.
TEST(Histogram, MoreEqualPixelsThanShortCountersHold) {
  for (const int channels : {1, 3}) {
    const std::vector<Vemi8u> pixels(static_cast<size_t>(channels) * 300000, 7);
    const std::vector<Vemi32s> levels = {0, 7, 8, 256};
    const Vemi32s* const lists[] = {levels.data(), levels.data(), levels.data()};
    const int nLevels[] = {4, 4, 4};
    for (const VemiSize size : {VemiSize{300000, 1}, VemiSize{65536, 1}, VemiSize{500, 600}, VemiSize{499, 600}}) {
      std::vector<Vemi32s> counts(9, -1);
      Vemi32s* const histograms[] = {&counts[0], &counts[3], &counts[6]};
      const int step = channels * (size.width + size.width % 2);
      EXPECT_EQ(channels == 1 ? vemiHistogramRange_8u_C1R(pixels.data(), step, size, counts.data(), levels.data(), 4)
                              : vemiHistogramRange_8u_C3R(pixels.data(), step, size, histograms, lists, nLevels),
                vemiOk);
      for (int n = 0; n < 3 * channels; ++n) {
        EXPECT_EQ(counts[static_cast<size_t>(n)], n % 3 == 1 ? size.width * size.height : 0) << channels << " channels";
      }
    }
  }
}

/// A C1 call of 16s, straight.
std::vector<Vemi32s> countsOf(const std::vector<Vemi16s>& pixels, const std::vector<Vemi32s>& levels, int width) {
  std::vector<Vemi32s> counts(levels.size() - 1, -1);
  EXPECT_EQ(vemiHistogramRange_16s_C1R(pixels.data(), width * 2, {width, static_cast<int>(pixels.size()) / width},
                                       counts.data(), levels.data(), static_cast<int>(levels.size())),
            vemiOk);
  return counts;
}

std::vector<Vemi16s> allWords() {
  std::vector<Vemi16s> words(65536);
  std::iota(words.begin(), words.end(), Vemi16s{-32768});
  return words;
}

/// Every value of 16 bits once; in small parts, which are searched or compared, and in one, which takes a table.
TEST(Histogram, EveryWordInEveryMethod) {
  const std::vector<Vemi16s> words = allWords();
  std::vector<Vemi32s> finest(65537), thousands, few = {-40000, -32768, -5, 0, 1, 32767, 32768, 70000};
  std::iota(finest.begin(), finest.end(), -32768);
  for (int level = -32768; level <= 32768; level += 512) thousands.push_back(level);
  std::vector<Vemi32s> shuffled = thousands;
  std::reverse(shuffled.begin() + 10, shuffled.begin() + 90);
  for (const std::vector<Vemi32s>& levels : {finest, thousands, few, shuffled}) {
    std::vector<Vemi32s> expected(levels.size() - 1), parts(levels.size() - 1);
    for (size_t k = 0; k + 1 < levels.size(); ++k) {
      const Vemi32s low = std::clamp(levels[k], -32768, 32768), high = std::clamp(levels[k + 1], -32768, 32768);
      expected[k] = std::max(high - low, 0);
    }
    EXPECT_EQ(countsOf(words, levels, 256), expected);
    for (int part = 0; part < 16; ++part) {
      const std::vector<Vemi16s> some(words.begin() + part * 4096, words.begin() + (part + 1) * 4096);
      const std::vector<Vemi32s> counts = countsOf(some, levels, 64);
      for (size_t k = 0; k < counts.size(); ++k) parts[k] += counts[k];
    }
    EXPECT_EQ(parts, expected);
  }
}

/// Levels of which many fall together where a search would divide the range evenly.
TEST(Histogram, CrowdedLevels) {
  constexpr float infinity = std::numeric_limits<float>::infinity(), largest = std::numeric_limits<float>::max();
  std::vector<std::vector<float>> lists(4);
  for (int i = 0; i < 200; ++i) lists[0].push_back(std::ldexp(1.0f, i - 140));
  for (int i = 0; i < 150; ++i) lists[1].push_back(1.0f + static_cast<float>(i) * 1.2e-7f);
  lists[1].push_back(1e30f);
  for (int i = 0; i < 100; ++i) lists[2].push_back(static_cast<float>(i) * 1e-44f);
  for (int i = 0; i < 100; ++i) lists[3].push_back(static_cast<float>(i - 50) * 1e36f);
  lists[3].insert(lists[3].begin(), {-infinity, -largest});
  lists[3].insert(lists[3].end(), {largest, infinity});
  for (std::vector<float>& levels : lists) {
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    std::vector<float> pixels = {infinity, -infinity, std::numeric_limits<float>::quiet_NaN(), 0.0f, -0.0f};
    for (const float level : levels) {
      pixels.insert(pixels.end(), {level, std::nextafter(level, -infinity), std::nextafter(level, infinity)});
    }
    std::vector<Vemi32s> expected(levels.size() - 1), counts(levels.size() - 1, -1);
    for (const float v : pixels) {
      for (size_t k = 0; k + 1 < levels.size(); ++k) expected[k] += levels[k] <= v && v < levels[k + 1];
    }
    const int width = static_cast<int>(pixels.size());
    EXPECT_EQ(vemiHistogramRange_32f_C1R(pixels.data(), width * 4, {width, 1}, counts.data(), levels.data(),
                                         static_cast<int>(levels.size())),
              vemiOk);
    EXPECT_EQ(counts, expected);
  }
}

TEST(Histogram, EvenLevels) {
  const struct {
    Vemi32s lower, upper;
    std::vector<Vemi32s> levels;
  } cases[] = {
      {0, 255, {0, 128, 255}},
      {10, 12, {10, 11, 12, 12, 12}},
      {0, 11, {0, 4, 8, 11}},
      {11, 0, {11, 7, 3, 0}},
      {5, 3, {5, 5, 5, 5}},
      {7, 7, {7, 7, 7}},
      {std::numeric_limits<int>::min(),
       std::numeric_limits<int>::max(),
       {std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max()}},
      {std::numeric_limits<int>::max(),
       std::numeric_limits<int>::min(),
       {std::numeric_limits<int>::max(), -1, std::numeric_limits<int>::min()}},
  };
  for (const auto& each : cases) {
    const int count = static_cast<int>(each.levels.size());
    std::vector<Vemi32s> levels(each.levels.size()), counts(each.levels.size() - 1);
    const Vemi8u pixel = 3;
    EXPECT_EQ(vemiHistogramEven_8u_C1R(&pixel, 1, {1, 1}, counts.data(), levels.data(), count, each.lower, each.upper),
              vemiOk);
    EXPECT_EQ(levels, each.levels);
    const Vemi16s word = 3;
    EXPECT_EQ(vemiHistogramEven_16s_C1R(&word, 2, {1, 1}, counts.data(), levels.data(), count, each.lower, each.upper),
              vemiOk);
    EXPECT_EQ(levels, each.levels);
  }
}

/// Of all calls with levels of one kind, those that take a table are the ones that fail without memory.
class HistogramWithoutMemory : public ::testing::Test {
  const NoMemory noMemory_;
};

/// One call of vemiHistogramRange_16s for any layout, with the same number of levels in each channel.
struct RangeCall {
  const char* layout;
  int pixels, levels;
  bool rising;

  VemiStatus status() const {
    const std::vector<Vemi16s> source(static_cast<size_t>(4 * pixels));
    std::vector<Vemi32s> limits(static_cast<size_t>(levels)), counts(limits.size(), 77);
    std::iota(limits.begin(), limits.end(), 0);
    if (!rising) limits[1] = limits[0];
    Vemi32s* const pHist[4] = {counts.data(), counts.data(), counts.data(), counts.data()};
    const Vemi32s* const pLevels[4] = {limits.data(), limits.data(), limits.data(), limits.data()};
    const int nLevels[4] = {levels, levels, levels, levels}, step = 1;
    const VemiSize size = {pixels, 1};
    const std::string name = layout;
    const VemiStatus status =
        name == "C1"   ? vemiHistogramRange_16s_C1R(source.data(), step, size, counts.data(), limits.data(), levels)
        : name == "C3" ? vemiHistogramRange_16s_C3R(source.data(), step, size, pHist, pLevels, nLevels)
        : name == "C4" ? vemiHistogramRange_16s_C4R(source.data(), step, size, pHist, pLevels, nLevels)
                       : vemiHistogramRange_16s_AC4R(source.data(), step, size, pHist, pLevels, nLevels);
    EXPECT_EQ(counts[0] == 77, status == vemiErrMemAlloc);
    return status;
  }
};

void expectStatus(const RangeCall& call, VemiStatus expected) {
  EXPECT_EQ(call.status(), expected) << call.layout << (call.rising ? " rising, " : " falling, ") << call.pixels
                                     << " pixels, " << call.levels << " levels";
}

/// From so many pixels on, more levels than the limit take a table.
struct SizeAndLimit {
  int pixels, limit;
};

const std::vector<SizeAndLimit> ofOneRising = {{12544, 214}, {16384, 74}, {20736, 38}, {25600, 34}, {30976, 22},
                                               {43264, 18},  {50176, 14}, {65536, 10}, {123904, 6}};
const std::vector<SizeAndLimit> ofOneOther = {{1024, 442}, {2304, 202}, {4096, 114}, {6400, 74},
                                              {9216, 54},  {12544, 42}, {16384, 30}, {20736, 22},
                                              {30976, 18}, {36864, 14}, {50176, 10}, {82944, 6}};
const std::vector<SizeAndLimit> ofThreeRising = {{12544, 262}, {16384, 126}, {20736, 62}, {25600, 46}, {30976, 34},
                                                 {36864, 30},  {43264, 22},  {50176, 18}, {73984, 14}, {135424, 10}};
const std::vector<SizeAndLimit> ofThreeOther = {{1024, 406}, {2304, 194}, {4096, 110}, {6400, 74},
                                                {9216, 54},  {12544, 42}, {16384, 34}, {20736, 26},
                                                {25600, 22}, {36864, 18}, {57600, 14}, {92416, 10}};
const std::vector<SizeAndLimit> ofFourRising = {{12544, 190}, {16384, 102}, {20736, 62}, {25600, 46}, {30976, 38},
                                                {36864, 34},  {43264, 22},  {50176, 18}, {173056, 14}};
const std::vector<SizeAndLimit> ofFourOther = {{1024, 358}, {2304, 162}, {4096, 98},  {6400, 66},
                                               {9216, 50},  {12544, 38}, {16384, 30}, {20736, 26},
                                               {25600, 22}, {36864, 18}, {57600, 14}, {160000, 10}};

TEST_F(HistogramWithoutMemory, FailsWhereTheRuleTakesATable) {
  const struct {
    const char* layout;
    bool rising;
    const std::vector<SizeAndLimit>& limits;
  } rules[] = {{"C1", true, ofOneRising},    {"C1", false, ofOneOther},   {"C3", true, ofThreeRising},
               {"C3", false, ofThreeOther},  {"C4", true, ofFourRising},  {"C4", false, ofFourOther},
               {"AC4", true, ofThreeRising}, {"AC4", false, ofThreeOther}};
  for (const auto& rule : rules) {
    for (const auto& [pixels, limit] : rule.limits) {
      // A third of three equal numbers of levels comes out one less.
      const int levels = &rule.limits == &ofThreeRising || &rule.limits == &ofThreeOther ? limit + 1 : limit;
      expectStatus({rule.layout, pixels, levels, rule.rising}, vemiOk);
      expectStatus({rule.layout, pixels, levels + 1, rule.rising}, vemiErrMemAlloc);
      expectStatus({rule.layout, pixels - 1, levels + 1, rule.rising}, vemiOk);
    }
  }
}

TEST_F(HistogramWithoutMemory, EvenBinsNeverFail) {
  const std::vector<Vemi16s> pixels = allWords();
  const VemiSize size = {256, 256};
  std::vector<Vemi32s> counts(65536, 77), levels(65537);
  EXPECT_EQ(vemiHistogramEven_16s_C1R(pixels.data(), 512, size, counts.data(), levels.data(), 65537, -32768, 32768),
            vemiOk);
  EXPECT_EQ(std::count(counts.begin(), counts.end(), 1), 65536);
  counts[0] = 77;
  EXPECT_EQ(vemiHistogramEven_16s_C1R(pixels.data(), 512, size, counts.data(), levels.data(), 101, 0, 101),
            vemiErrMemAlloc);
  EXPECT_EQ(counts[0], 77);
  EXPECT_EQ(levels[1], 2);
}

/// A remainder in any channel, -1 for none, takes the road of levels that are the caller's.
TEST_F(HistogramWithoutMemory, EvenBinsOfAllChannelsNeverFail) {
  const std::vector<Vemi16s> pixels(4 * 65536, 3);
  const auto expectEven = [&](auto* even, int channels, int unevenChannel) {
    constexpr int nLevels[4] = {101, 101, 101, 101}, lower[4] = {0, 0, 0, 0};
    int upper[4] = {200, 300, 400, 500};
    if (unevenChannel >= 0) upper[unevenChannel] += 1;
    std::vector<Vemi32s> counts[4], levels[4];
    Vemi32s *pHist[4], *pLevels[4];
    for (int c = 0; c < channels; ++c) {
      counts[c].assign(100, 77);
      levels[c].assign(101, 77);
      pHist[c] = counts[c].data();
      pLevels[c] = levels[c].data();
    }
    const VemiStatus status = even(pixels.data(), 8 * 256, {256, 256}, pHist, pLevels, nLevels, lower, upper);
    EXPECT_EQ(status, unevenChannel < 0 ? vemiOk : vemiErrMemAlloc);
    for (int c = 0; c < channels; ++c) {
      std::vector<Vemi32s> expected(100, status == vemiOk ? 0 : 77);
      if (status == vemiOk) expected[static_cast<size_t>(3 / (c + 2))] = 65536;  // bins of 2, 3, 4 and 5 values
      EXPECT_EQ(counts[c], expected) << c;
      EXPECT_EQ(levels[c].back(), upper[c]);
    }
  };
  for (int uneven = -1; uneven < 4; ++uneven) {
    if (uneven < 3) expectEven(vemiHistogramEven_16s_C3R, 3, uneven);
    if (uneven < 3) expectEven(vemiHistogramEven_16s_AC4R, 3, uneven);
    expectEven(vemiHistogramEven_16s_C4R, 4, uneven);
  }
}

}  // namespace
