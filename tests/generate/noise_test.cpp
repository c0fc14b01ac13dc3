// vemiAddRandUniform_Direct, vemiAddRandGauss_Direct: the noise of a seed, element by element.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "support/check.h"
#include "support/generator.h"

using namespace vemi::test;

namespace {

double numberOf(const Call& call, const char* name, Element element) {
  if (element == Element::u8) return call.get<Vemi8u>(name);
  if (element == Element::s16) return call.get<Vemi16s>(name);
  return call.get<Vemi32f>(name);
}

void addTo(std::byte* place, Element element, double noise) {
  if (element == Element::f32) {
    store(place, static_cast<float>(load<float>(place) + noise));
  } else {
    const auto integer = static_cast<int64_t>(std::nearbyint(noise));
    storeSaturated(element, place, loadInteger(element, place) + integer);
  }
}

/// Adds the values of next(generator), then stores the seed.
void addNoise(Call& call, const std::function<double(Generator&)>& next) {
  const View image = call.destination();
  std::byte* const seed = call.array("pSeed").at(0, 0);
  Generator generator(load<uint32_t>(seed));
  call.anyNaN = true;
  call.forEachElement(
      [&](int x, int y, int channel) { addTo(image.at(x, y, channel), image.element, next(generator)); });
  store(seed, generator.seed());
}

void uniform(Call& call) {
  const Element element = call.destination().element;
  const double low = numberOf(call, "low", element), high = numberOf(call, "high", element);
  addNoise(call, [=](Generator& generator) {
    return generator.step() * ((high - low) * 2.3283064365387e-10) + (low + high) * 0.5;
  });
}

void gauss(Call& call) {
  const Element element = call.destination().element;
  const double mean = numberOf(call, "mean", element), stDev = numberOf(call, "stDev", element);
  bool hasSpare = false;
  double spare = 0;
  addNoise(call, [&](Generator& generator) {
    hasSpare = !hasSpare;
    if (!hasSpare) return spare;
    double u, v, s;
    do {
      u = generator.step() * 4.656612873077e-10;
      v = generator.step() * 4.656612873077e-10;
      s = u * u + v * v;
    } while (s >= 1.0 || s == 0.0);
    const double f = std::sqrt(-2.0 * std::log(s) / s);
    spare = stDev * f * v + mean;
    return stDev * f * u + mean;
  });
}

}  // namespace

TEST(AddRandUniform, EveryMember) { expectDefinition(membersOf("vemiAddRandUniform_Direct"), uniform); }

TEST(AddRandGauss, EveryMember) { expectDefinition(membersOf("vemiAddRandGauss_Direct"), gauss); }

// Many blocks of the generator, whose ends fall anywhere in rows and pixels.
TEST(AddRand, LargeRegions) {
  for (const char* members : {"8u_C1IR", "16s_C3IR", "32f_C1IR", "8u_AC4IR", "32f_AC4IR"}) {
    for (const VemiSize size : {VemiSize{1000, 100}, VemiSize{100003, 1}}) {
      expectCall(*membersOf("vemiAddRandUniform_Direct", members).front(), {size}, uniform);
      expectCall(*membersOf("vemiAddRandGauss_Direct", members).front(), {size}, gauss);
    }
  }
}

// A region may end at any place of the generator's blocks, and the seed is that of its last element.
TEST(AddRand, ColumnsOfAnyHeight) {
  for (const char* members : {"8u_C1IR", "16s_C3IR", "32f_AC4IR"}) {
    for (int height = 90; height < 400; ++height) {
      expectCall(*membersOf("vemiAddRandUniform_Direct", members).front(), {{1, height}}, uniform);
      expectCall(*membersOf("vemiAddRandGauss_Direct", members).front(), {{1, height}}, gauss);
    }
  }
}

/// One row of 16-bit noise against the generator's definition.
void expectNoiseOf(Vemi32u first, int width) {
  std::vector<Vemi16s> noise(static_cast<size_t>(width)), expected(noise.size());
  Vemi32u seed = first;
  EXPECT_EQ(vemiAddRandUniform_Direct_16s_C1IR(noise.data(), 2 * width, {width, 1}, -30000, 30000, &seed), vemiOk);
  Generator generator(first);
  for (Vemi16s& each : expected) {
    each = static_cast<Vemi16s>(std::nearbyint(generator.step() * (60000 * 2.3283064365387e-10)));
  }
  EXPECT_EQ(noise, expected) << first;
  EXPECT_EQ(seed, generator.seed()) << first;
}

// Seeds whose third difference is so near to zero that the borrows before it decide its sign: a case in a million.
TEST(AddRandUniform, SeedsThatBorrowsDecide) {
  const auto thirdDifference = [](uint32_t x0) {  // but for what the first step took off
    const uint32_t x1 = x0 * 69069 + 1013904243, x2 = x1 * 69069 + 1013904243;
    return x1 - x2 - 1 - x0;
  };
  const uint32_t slope = thirdDifference(1) - thirdDifference(0);
  uint32_t inverse = slope;
  for (int n = 0; n < 5; ++n) inverse *= 2 - slope * inverse;
  std::vector<uint32_t> seeds = {0, 1, 18, 0x7fffffff, 0x80000000, 0xffffffff};
  for (uint32_t k = 0; k < 60; ++k) {
    for (const uint32_t target : {k - 30, 0x80000000 + k - 30}) {
      seeds.push_back((target - thirdDifference(0)) * inverse);
      ASSERT_EQ(thirdDifference(seeds.back()), target);
    }
  }
  for (const uint32_t first : seeds) expectNoiseOf(first, 500);
}

// Such a difference behind blocks that were guessed right: from element 96, 640, 688 and 768 on, with a borrow from the
// block before and without.
TEST(AddRandUniform, SeedsThatBorrowsDecideLater) {
  for (const uint32_t first : {185598u, 34083u, 32820u, 125494u}) expectNoiseOf(first, 1000);
}

TEST(AddRand, RepeatsWithTheSeed) {
  const VemiSize size = {40, 5};
  std::vector<Vemi8u> first(200, 100), second = first, third = first;
  Vemi32u seed = 4711, same = 4711;
  EXPECT_EQ(vemiAddRandGauss_Direct_8u_C1IR(first.data(), 40, size, 0, 20, &seed), vemiOk);
  EXPECT_EQ(vemiAddRandGauss_Direct_8u_C1IR(second.data(), 40, size, 0, 20, &same), vemiOk);
  EXPECT_EQ(first, second);
  EXPECT_EQ(seed, same);
  EXPECT_NE(seed, 4711u);
  EXPECT_EQ(vemiAddRandGauss_Direct_8u_C1IR(third.data(), 40, size, 0, 20, &seed), vemiOk);
  EXPECT_NE(first, third);
}

TEST(AddRandUniform, NothingOfNothing) {
  Vemi8u pixel = 200;
  Vemi32u seed = 1;
  EXPECT_EQ(vemiAddRandUniform_Direct_8u_C1IR(&pixel, 1, {1, 1}, 0, 0, &seed), vemiOk);
  EXPECT_EQ(pixel, 200);
  EXPECT_NE(seed, 1u);
}

// The shape of the distributions, for whoever doubts the reference as well.
TEST(AddRand, MeansAndDeviations) {
  const VemiSize size = {500, 400};
  const auto expectMoments = [&](const std::vector<Vemi32f>& noise, double mean, double deviation) {
    double sum = 0, squares = 0;
    for (const float value : noise) sum += value;
    for (const float value : noise) squares += (value - mean) * (value - mean);
    EXPECT_NEAR(sum / 200000, mean, 4 * deviation / std::sqrt(200000));
    EXPECT_NEAR(std::sqrt(squares / 200000), deviation, 0.01 * deviation);
  };
  std::vector<Vemi32f> noise(200000);
  Vemi32u seed = 20;
  EXPECT_EQ(vemiAddRandUniform_Direct_32f_C1IR(noise.data(), 2000, size, -2, 10, &seed), vemiOk);
  expectMoments(noise, 4, 12 / std::sqrt(12.0));
  std::fill(noise.begin(), noise.end(), 0.0f);
  EXPECT_EQ(vemiAddRandGauss_Direct_32f_C1IR(noise.data(), 2000, size, 7, 3, &seed), vemiOk);
  expectMoments(noise, 7, 3);
}
