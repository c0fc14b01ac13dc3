// vemiFilterWiener.

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "filter/integers_in_every_mode.h"
#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

/// A window's sums, and what is made of them.
struct Window {
  float mean, deviation;

  Window(Call& call, int x, int y, int channel) {
    const View source = call.source();
    const VemiSize size = call.get<VemiSize>("maskSize");
    const VemiPoint anchor = call.get<VemiPoint>("anchor");
    double sum = 0, squares = 0;
    for (int i = x + anchor.x - size.width + 1; i <= x + anchor.x; ++i) {
      double column = 0, ofSquares = 0;
      for (int j = y + anchor.y - size.height + 1; j <= y + anchor.y; ++j) {
        const double value = loadNumber(source.element, source.at(i, j, channel));
        column += value;
        ofSquares += value * value;
      }
      sum += column;
      squares += ofSquares;
    }
    const auto s = static_cast<float>(sum), r = static_cast<float>(1.0 / (size.width * size.height));
    mean = s * r;
    deviation = static_cast<float>(squares) - s * s * r;
  }
};

float noiseOf(Call& call, int channel) {
  const View source = call.source(), noise = call.array("pNoise");
  const VemiSize mask = call.get<VemiSize>("maskSize");
  const bool bytes = source.element == Element::u8, shorts = source.element == Element::s16;
  const auto relative = load<float>(noise.at(channel, 0));
  const float full = bytes ? 65025 : shorts ? 4294836224.0f : 1;
  if (relative != 0) return relative * full * static_cast<float>(mask.width) * static_cast<float>(mask.height);
  double sum = 0;
  for (int y = 0; y < source.size.height; ++y) {
    double ofRow = 0;
    for (int x = 0; x < source.size.width; ++x) {
      const float deviation = Window(call, x, y, channel).deviation;
      if (deviation > 0) ofRow += static_cast<double>(deviation);
    }
    sum += ofRow / source.size.width;
  }
  const auto power = static_cast<float>(sum / source.size.height);
  const auto r = static_cast<float>(1.0 / (mask.width * mask.height));
  store(noise.at(channel, 0), (bytes ? 1.53787e-5f : shorts ? 2.3283775e-10f : 1) * power * r);
  return power;
}

void wiener(Call& call) {
  call.anyNaN = true;
  const View source = call.source(), destination = call.destination();
  std::vector<float> noise;
  for (int channel = 0; channel < destination.channels; ++channel) noise.push_back(noiseOf(call, channel));
  call.forEachElement([&](int x, int y, int channel) {
    const Window window(call, x, y, channel);
    const float power = noise[static_cast<size_t>(channel)];
    const float deviation = std::max(power, window.deviation);  // the power where the deviation is none
    const float gain = deviation == power ? 0 : (deviation - power) / deviation;
    const auto pixel = static_cast<float>(loadNumber(source.element, source.at(x, y, channel)));
    const float result = window.mean + gain * (pixel - window.mean);
    std::byte* const to = destination.at(x, y, channel);
    if (source.element == Element::f32) return store(to, result);
    storeSaturated(source.element, to, std::llrint(std::clamp(result, -1e6f, 1e6f)));
  });
}

}  // namespace

TEST(Wiener, EveryMember) { expectDefinition(membersOf("vemiFilterWiener"), wiener); }

TEST(Wiener, IntegersInEveryRoundingMode) {
  expectToNearestInEveryMode(membersOf("vemiFilterWiener", "(8u|16s)_.*"), wiener);
}

TEST(Wiener, BufferSizes) {
  const int threads = omp_get_max_threads();
  const auto sizeOf = [](VemiSize region, int channels) {
    int size = 0;
    EXPECT_EQ(vemiFilterWienerGetBufferSize(region, {5, 9}, channels, &size), vemiOk);
    return size;
  };
  EXPECT_EQ(sizeOf({10, 1}, 1), 20 * 4 * 5 * threads + 15);
  EXPECT_EQ(sizeOf({10, 99}, 3), 36 * 4 * 5 * threads + 15);
  EXPECT_EQ(sizeOf({11, 2}, 4), 48 * 4 * 5 * threads + 15);
}

// Sums of squares beyond 32 bits, and a window that has no deviation at all.
TEST(Wiener, FlatWindowsKeepTheirValue) {
  const VemiSize mask = {260, 200}, region = {5, 3};
  const int width = mask.width + region.width - 1, height = mask.height + region.height - 1;
  const std::vector<Vemi8u> flat(static_cast<size_t>(width * height), Vemi8u{255});
  std::vector<Vemi8u> result(15), buffer(1 << 20);
  for (const float noise : {0.0f, 0.01f}) {
    float power = noise;
    EXPECT_EQ(
        vemiFilterWiener_8u_C1R(flat.data(), width, result.data(), 5, region, mask, {259, 199}, &power, buffer.data()),
        vemiOk);
    EXPECT_EQ(std::count(result.begin(), result.end(), 255), 15);
  }
}
