// vemiReduceBits against its definition in integers of 64 bits.

#include <gtest/gtest.h>
#include <omp.h>

#include <cmath>
#include <functional>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"
#include "support/generator.h"

using namespace vemi::test;

namespace {

int64_t floorOf(int64_t numerator, int64_t denominator) {
  return numerator / denominator - (numerator % denominator < 0 ? 1 : 0);
}

/// What a call asks for.
struct Task {
  int noise, type, levels;
};

/// The value of a pixel on the scale of 0 to 65535.
int64_t onOneScale(Element element, const std::byte* place) {
  if (element == Element::u8) return 257 * loadInteger(element, place);
  if (element == Element::u16) return loadInteger(element, place);
  if (element == Element::s16) return loadInteger(element, place) + 32768;
  float value = load<float>(place);
  value = value < 1 ? value : 1;
  value = value > 0 ? value : 0;
  return std::lrint(value * 65535.0f);
}

int64_t levelValue(Element element, int64_t k, int64_t n) {
  const int64_t range = element == Element::u8 ? 255 : 65535;
  return floorOf(2 * k * range + n, 2 * n) - (element == Element::s16 ? 32768 : 0);
}

std::vector<int64_t> noiseOfRow(int y, int percent, int width) {
  uint32_t h = static_cast<uint32_t>(y) + 1;
  h ^= h >> 16;
  h *= 0x85ebca6b;
  h ^= h >> 13;
  h *= 0xc2b2ae35;
  h ^= h >> 16;
  Generator generator(h);
  std::vector<int64_t> noise(percent == 0 ? static_cast<size_t>(width) : 0);
  for (int x = 0; x < width && percent > 0; ++x)
    noise.push_back(int64_t{65534 * percent / 100} * (generator.step() >> 16) >> 16);
  return noise;
}

int bayerRank(int x, int y) {
  std::vector<std::vector<int>> matrix = {{0}};
  while (matrix.size() < 8) {
    const size_t n = matrix.size();
    std::vector<std::vector<int>> grown(2 * n, std::vector<int>(2 * n));
    for (size_t j = 0; j < n; ++j) {
      for (size_t i = 0; i < n; ++i) {
        grown[j][i] = 4 * matrix[j][i];
        grown[j][i + n] = 4 * matrix[j][i] + 2;
        grown[j + n][i] = 4 * matrix[j][i] + 3;
        grown[j + n][i + n] = 4 * matrix[j][i] + 1;
      }
    }
    matrix = grown;
  }
  return matrix[static_cast<size_t>(y % 8)][static_cast<size_t>(x % 8)];
}

/// Weights by place of the earlier pixel: from two rows above to the pixel's own, two columns to both sides.
struct Weights {
  int64_t of[3][5];
  int64_t sum;
};
constexpr Weights weights[] = {{{{0, 0, 0, 0, 0}, {0, 1, 5, 3, 0}, {0, 7, 0, 0, 0}}, 16},
                               {{{1, 3, 5, 3, 1}, {3, 5, 7, 5, 3}, {5, 7, 0, 0, 0}}, 48},
                               {{{1, 2, 4, 2, 1}, {2, 4, 8, 4, 2}, {4, 8, 0, 0, 0}}, 42}};

/// The levels of a channel, row after row; exact(x, y) is s.
std::vector<int64_t> levelsOf(VemiSize size, const Task& task, const std::function<int64_t(int x, int y)>& exact) {
  static const std::vector<int> ranks = [] {
    std::vector<int> all;
    for (int i = 0; i < 64; ++i) all.push_back(bayerRank(i % 8, i / 8));
    return all;
  }();
  const int64_t highest = task.levels - 1;
  const Weights* const diffusing = task.type >= 1 && task.type <= 3 ? &weights[task.type - 1] : nullptr;
  std::vector<int64_t> result;
  std::vector<std::vector<int64_t>> errors(static_cast<size_t>(size.height) + 2,
                                           std::vector<int64_t>(static_cast<size_t>(size.width) + 4));
  for (int y = 0; y < size.height; ++y) {
    const std::vector<int64_t> noise = noiseOfRow(y, task.noise, size.width);
    for (int x = 0; x < size.width; ++x) {
      int64_t n = noise[static_cast<size_t>(x)], value = exact(x, y) * highest;
      if (diffusing != nullptr) {
        int64_t sum = 0;
        for (int place = 0; place < 15; ++place) {
          const int64_t weight = diffusing->of[place / 5][place % 5];
          if (weight != 0)
            sum += weight * errors[static_cast<size_t>(y + place / 5)][static_cast<size_t>(x + place % 5)];
        }
        value += floorOf(sum + diffusing->sum / 2, diffusing->sum);
      } else if (task.type == vemiDitherBayer) {
        n += (63 - 2 * ranks[static_cast<size_t>(x % 8 + y % 8 * 8)]) * 65535 >> 7;
        if (n > 32767) n -= 65535;
        if (n < -32767) n += 65535;
      }
      const int64_t level = std::clamp<int64_t>(floorOf(value + n + 32767, 65535), 0, highest);
      errors[static_cast<size_t>(y + 2)][static_cast<size_t>(x + 2)] = value - 65535 * level;
      result.push_back(level);
    }
  }
  return result;
}

void reduced(Call& call) {
  const View source = call.source(), destination = call.destination();
  const VemiSize size = call.get<VemiSize>("roiSize");
  const Task task = {call.get<int>("noise"), call.get<int>("ditherType"), call.get<int>("levels")};
  for (int channel = 0; channel < destination.channels; ++channel) {
    const auto exact = [&](int x, int y) { return onOneScale(source.element, source.at(x, y, channel)); };
    const std::vector<int64_t> levels = levelsOf(size, task, exact);
    for (int y = 0, n = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x, ++n) {
        storeSaturated(destination.element, destination.at(x, y, channel),
                       levelValue(destination.element, levels[static_cast<size_t>(n)], task.levels - 1));
      }
    }
  }
}

template <class S, class T>
using Reduce = VemiStatus(const S*, int, T*, int, VemiSize, int, vemiDitherType, int);

/// One channel of a contiguous image, by the library.
template <class S, class T>
std::vector<int> library(Reduce<S, T>* reduce, const std::vector<S>& source, VemiSize size, const Task& task) {
  std::vector<T> result(source.size());
  EXPECT_EQ(reduce(source.data(), size.width * int{sizeof(S)}, result.data(), size.width * int{sizeof(T)}, size,
                   task.noise, task.type, task.levels),
            vemiOk);
  return {result.begin(), result.end()};
}

/// The same by the definition.
template <class S, class T>
std::vector<int> definition(const std::vector<S>& source, VemiSize size, const Task& task) {
  const auto exact = [&](int x, int y) {
    return onOneScale(elementOf<S>,
                      reinterpret_cast<const std::byte*>(&source[static_cast<size_t>(y * size.width + x)]));
  };
  std::vector<int> result;
  for (const int64_t level : levelsOf(size, task, exact)) {
    result.push_back(static_cast<int>(levelValue(elementOf<T>, level, task.levels - 1)));
  }
  return result;
}

}  // namespace

TEST(ReduceBits, EveryMember) { expectDefinition(membersOf("vemiReduceBits"), reduced); }

TEST(ReduceBits, Examples) {
  EXPECT_EQ(library(vemiReduceBits_8u_C1R, std::vector<Vemi8u>(6, 100), {6, 1}, {0, vemiDitherFloydSteinberg, 2}),
            std::vector<int>({0, 255, 0, 0, 255, 0}));
  EXPECT_EQ(library(vemiReduceBits_8u_C1R, std::vector<Vemi8u>(8, 128), {4, 2}, {0, vemiDitherBayer, 2}),
            std::vector<int>({255, 0, 255, 0, 0, 255, 0, 255}));
  const std::vector<Vemi32f> steps = {0, 0.25f, 0.5f, 0.75f, 1};
  EXPECT_EQ(library(vemiReduceBits_32f16s_C1R, steps, {5, 1}, {0, vemiDitherNone, 4}),
            std::vector<int>({-32768, -10923, 10922, 10922, 32767}));
  const std::vector<Vemi32f> beyond = {NAN, INFINITY, -INFINITY, -0.0f, 1e30f, -1e30f, 1.0f, 0.0f};
  for (int type = 0; type <= 4; ++type) {
    EXPECT_EQ(library(vemiReduceBits_32f8u_C1R, beyond, {8, 1}, {100, type, 5}),
              std::vector<int>({255, 255, 0, 0, 255, 0, 255, 0}));
  }
  // What is drawn in the first rows: with 2 levels and all the noise, pixels of 16 bits that lie on either side.
  EXPECT_EQ(noiseOfRow(0, 100, 3),
            (std::vector<int64_t>{-21140 * 65534 >> 16, -18879 * 65534 >> 16, -28142 * 65534 >> 16}));
}

// Every pixel of 16 bits to every number of levels: where levels part, and what they are.
TEST(ReduceBits, EveryPixelAndNumberOfLevels) {
  std::vector<Vemi16u> pixels(65536);
  for (size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<Vemi16u>(i);
  std::vector<Vemi8u> bytes(256);
  for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<Vemi8u>(i);
  for (int levels = 2; levels <= 256; ++levels) {
    const Task task = {0, vemiDitherNone, levels};
    ASSERT_EQ(library(vemiReduceBits_8u_C1R, bytes, {256, 1}, task),
              (definition<Vemi8u, Vemi8u>(bytes, {256, 1}, task)))
        << levels;
    const bool many = levels % 64 < 2 || levels == 3 || levels == 182;
    if (many) {
      ASSERT_EQ(library(vemiReduceBits_16u_C1R, pixels, {65536, 1}, task),
                (definition<Vemi16u, Vemi16u>(pixels, {65536, 1}, task)))
          << levels;
    }
    // The value of each level, from pixels near to it.
    std::vector<Vemi16u> near;
    for (int k = 0; k < levels; ++k) near.push_back(static_cast<Vemi16u>(65535 * k / (levels - 1)));
    const VemiSize size = {levels, 1};
    ASSERT_EQ(library(vemiReduceBits_16u_C1R, near, size, task), (definition<Vemi16u, Vemi16u>(near, size, task)))
        << levels;
    ASSERT_EQ(library(vemiReduceBits_16u8u_C1R, near, size, task), (definition<Vemi16u, Vemi8u>(near, size, task)))
        << levels;
  }
  EXPECT_EQ(library(vemiReduceBits_8u_C1R, bytes, {256, 1}, {0, 77, 256}),
            std::vector<int>(bytes.begin(), bytes.end()));
}

// Blocks of rows hand their errors on to the next block; rows are narrower than the distance between them, or wider.
TEST(ReduceBits, DiffusionOfAnySize) {
  Random random(5);
  for (const int width : {1, 2, 3, 5, 6, 7, 13, 60, 89, 90, 91, 97, 98, 99, 300}) {
    for (const int height : {1, 2, 15, 16, 17, 31, 33, 50}) {
      std::vector<Vemi16u> source(static_cast<size_t>(width * height));
      random.fill(reinterpret_cast<std::byte*>(source.data()), 2 * source.size());
      const VemiSize size = {width, height};
      for (const Task& task : {Task{0, 1, 2}, {0, 2, 256}, {0, 3, 3}, {100, 1, 256}, {100, 2, 2}, {30, 3, 9}}) {
        ASSERT_EQ(library(vemiReduceBits_16u_C1R, source, size, task),
                  (definition<Vemi16u, Vemi16u>(source, size, task)))
            << width << 'x' << height << ", dither " << task.type;
      }
    }
  }
}

// Errors grow to their limit where a row asks for nothing but the noise pushes the other way.
TEST(ReduceBits, DiffusionOfConstants) {
  for (int value = 0; value < 256; value += 5) {
    const std::vector<Vemi8u> source(40 * 40, static_cast<Vemi8u>(value));
    for (int type = 1; type <= 3; ++type) {
      for (const int noise : {0, 100}) {
        const Task task = {noise, type, 2};
        const std::vector<int> result = library(vemiReduceBits_8u_C1R, source, {40, 40}, task);
        ASSERT_EQ(result, (definition<Vemi8u, Vemi8u>(source, {40, 40}, task))) << value << ", dither " << type;
      }
    }
  }
}

TEST(ReduceBits, InPlace) {
  const VemiSize size = {71, 37};
  Random random(9);
  std::vector<Vemi8u> source(4 * 71 * 37);
  random.fill(reinterpret_cast<std::byte*>(source.data()), source.size());
  for (int type = 0; type <= 4; ++type) {
    for (const int noise : {0, 40}) {
      for (Reduce<Vemi8u, Vemi8u>* const reduce : {vemiReduceBits_8u_C4R, vemiReduceBits_8u_AC4R}) {
        std::vector<Vemi8u> apart = source, same = source;
        EXPECT_EQ(reduce(source.data(), 4 * 71, apart.data(), 4 * 71, size, noise, type, 6), vemiOk);
        EXPECT_EQ(reduce(same.data(), 4 * 71, same.data(), 4 * 71, size, noise, type, 6), vemiOk);
        EXPECT_EQ(apart, same) << type;
      }
    }
  }
}

TEST(ReduceBits, TeamsOfAnySize) {
  const VemiSize size = {333, 61};
  Random random(3);
  std::vector<Vemi16s> source(3 * 333 * 61);
  random.fill(reinterpret_cast<std::byte*>(source.data()), 2 * source.size());
  const int former = omp_get_max_threads();
  for (int type = 0; type <= 4; ++type) {
    for (const int noise : {0, 70}) {
      std::vector<Vemi16s> alone(source.size()), together(source.size());
      omp_set_num_threads(1);
      EXPECT_EQ(vemiReduceBits_16s_C3R(source.data(), 6 * 333, alone.data(), 6 * 333, size, noise, type, 5), vemiOk);
      for (const int team : {2, 3, 7}) {
        omp_set_num_threads(team);
        EXPECT_EQ(vemiReduceBits_16s_C3R(source.data(), 6 * 333, together.data(), 6 * 333, size, noise, type, 5),
                  vemiOk);
        EXPECT_EQ(alone, together) << team << " threads, dither " << type;
      }
    }
  }
  omp_set_num_threads(former);
}

TEST(ReduceBits, DiffusionWithoutMemory) {
  const NoMemory noMemory;
  const Vemi8u source[2] = {3, 200};
  Vemi8u result[2] = {7, 8};
  EXPECT_EQ(vemiReduceBits_8u_C1R(source, 2, result, 2, {2, 1}, 0, vemiDitherStucki, 2), vemiErrMemAlloc);
  EXPECT_EQ(vemiReduceBits_8u_C1R(source, INT32_MAX, result, INT32_MAX, {INT32_MAX, 1}, 9, vemiDitherStucki, 2),
            vemiErrMemAlloc);
  EXPECT_EQ(vemiReduceBits_8u_C1R(source, 2, result, 2, {2, 1}, 0, vemiDitherStucki, 1), vemiErrDitherLevels);
  EXPECT_EQ(result[0] + result[1], 15);
  EXPECT_EQ(vemiReduceBits_8u_C1R(source, 2, result, 2, {2, 1}, 100, vemiDitherBayer, 2), vemiOk);
}
