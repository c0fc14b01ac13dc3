// Cosine transforms of images against sums in double precision, and against themselves in other places and layouts.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <memory>
#include <numbers>
#include <utility>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

using Plane = std::vector<double>;  // row after row

void sumLine(double* line, int length, int stride, bool isForward) {
  std::vector<double> sums(static_cast<size_t>(length)), waves;
  for (int i = 0; i < 4 * length; ++i) waves.push_back(std::cos(std::numbers::pi * i / (2.0 * length)));
  const double first = std::sqrt(1.0 / length), others = std::sqrt(2.0 / length);
  for (int i = 0; i < length; ++i) {
    // The cosine of (2n + 1) k, n or k being i.
    int turn = isForward ? i : 0;
    const int step = isForward ? 2 * i : 2 * i + 1;
    for (int j = 0; j < length; ++j, turn += turn + step < 4 * length ? step : step - 4 * length) {
      const double weight = waves[static_cast<size_t>(turn)] * ((isForward ? i : j) == 0 ? first : others);
      sums[static_cast<size_t>(i)] += line[ptrdiff_t{j} * stride] * weight;
    }
  }
  for (int i = 0; i < length; ++i) line[ptrdiff_t{i} * stride] = sums[static_cast<size_t>(i)];
}

Plane transformed(Plane plane, VemiSize size, bool isForward) {
  for (int y = 0; y < size.height; ++y)
    sumLine(&plane[static_cast<size_t>(y) * static_cast<size_t>(size.width)], size.width, 1, isForward);
  for (int x = 0; x < size.width; ++x) sumLine(&plane[static_cast<size_t>(x)], size.height, size.width, isForward);
  return plane;
}

double rootMeanSquare(const Plane& plane) {
  double sum = 0;
  for (const double z : plane) sum += z * z;
  return std::sqrt(sum / static_cast<double>(plane.size()));
}

/// What the two directions are called.
struct Direction {
  bool isForward;
  VemiStatus (*initAlloc)(VemiDCTSpec_32f**, VemiSize, vemiHint);
  VemiStatus (*release)(VemiDCTSpec_32f*);
  VemiStatus (*getBufSize)(const VemiDCTSpec_32f*, int*);
  VemiStatus (*run[4])(const Vemi32f*, int, Vemi32f*, int, const VemiDCTSpec_32f*, Vemi8u*);  // C1, C3, C4, AC4

  std::shared_ptr<VemiDCTSpec_32f> spec(VemiSize size, int hint = 0) const {
    VemiDCTSpec_32f* made = nullptr;
    EXPECT_EQ(initAlloc(&made, size, hint), vemiOk);
    return {made, release};
  }
  int bytes(VemiSize size, int hint) const {
    int result = -1;
    EXPECT_EQ(getBufSize(spec(size, hint).get(), &result), vemiOk);
    return result;
  }
};
const Direction forward = {true,
                           vemiDCTFwdInitAlloc_32f,
                           vemiDCTFwdFree_32f,
                           vemiDCTFwdGetBufSize_32f,
                           {vemiDCTFwd_32f_C1R, vemiDCTFwd_32f_C3R, vemiDCTFwd_32f_C4R, vemiDCTFwd_32f_AC4R}};
const Direction inverse = {false,
                           vemiDCTInvInitAlloc_32f,
                           vemiDCTInvFree_32f,
                           vemiDCTInvGetBufSize_32f,
                           {vemiDCTInv_32f_C1R, vemiDCTInv_32f_C3R, vemiDCTInv_32f_C4R, vemiDCTInv_32f_AC4R}};

std::string text(VemiSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

std::vector<float> randomFloats(size_t count, unsigned seed) {
  Random random(seed);
  std::vector<float> floats(count);
  for (float& each : floats) each = static_cast<float>(random.below(200001) - 100000) / 1000;
  return floats;
}

TEST(DCT, EveryMember) {
  for (const bool isForward : {true, false}) {
    expectDefinition(membersOf(isForward ? "vemiDCTFwd" : "vemiDCTInv"), [&](Call& call) {
      const View from = call.source(), to = call.destination();
      for (int channel = 0; channel < to.channels; ++channel) {
        Plane plane;
        for (int y = 0; y < from.size.height; ++y) {
          for (int x = 0; x < from.size.width; ++x)
            plane.push_back(static_cast<double>(load<float>(from.at(x, y, channel))));
        }
        plane = transformed(plane, from.size, isForward);
        for (int y = 0; y < from.size.height; ++y) {
          for (int x = 0; x < from.size.width; ++x) {
            const double value =
                plane[static_cast<size_t>(y) * static_cast<size_t>(from.size.width) + static_cast<size_t>(x)];
            storeNumber(Element::f32, to.at(x, y, channel), value);
          }
        }
      }
      call.tolerance = 3e-3;  // of numbers up to 2^9
    });
  }
}

/// Lengths of all methods: short ones, powers of two, small and large prime factors, odd and even, long lines of each.
TEST(DCT, IsAsExactAsFloatsAre) {
  std::vector<VemiSize> sizes;
  for (int length = 1; length <= 130; ++length) sizes.push_back({length, 3});
  for (const int length : {149,  151,  179,  256,  302,  358,  480,  509,  512,  640,  1000, 1018, 1021, 1022,
                           1024, 1025, 1042, 1080, 1155, 1920, 2042, 2048, 2062, 2187, 4096, 5000, 8192}) {
    sizes.push_back({length, 2});
    sizes.push_back({3, length});
  }
  for (const VemiSize size : sizes) {
    const size_t count = static_cast<size_t>(size.width) * static_cast<size_t>(size.height);
    const std::vector<float> image = randomFloats(count, static_cast<unsigned>(size.width));
    const int step = size.width * static_cast<int>(sizeof(float));
    std::vector<float> spectrum(count), back(count);
    ASSERT_EQ(forward.run[0](image.data(), step, spectrum.data(), step, forward.spec(size).get(), nullptr), vemiOk);
    ASSERT_EQ(inverse.run[0](spectrum.data(), step, back.data(), step, inverse.spec(size).get(), nullptr), vemiOk);
    const Plane source(image.begin(), image.end()), expected = transformed(source, size, true);
    Plane error(count), errorBack(count);
    for (size_t i = 0; i < count; ++i) {
      error[i] = static_cast<double>(spectrum[i]) - expected[i];
      errorBack[i] = static_cast<double>(back[i]) - source[i];
    }
    const double bound = 5.7e-8 * std::sqrt(2 + std::log2(static_cast<double>(count))) * rootMeanSquare(source);
    EXPECT_LE(rootMeanSquare(error), bound) << text(size);
    EXPECT_LE(rootMeanSquare(errorBack), 1.5 * bound) << text(size);
  }
}

/// Root mean square errors relative to the result's, each way by itself: little more than the levels of a transform of
/// half the length lose.
TEST(DCT, ErrorsAreThoseOfTheLevels) {
  for (const auto& [length, most] : {std::pair{64, 1.2e-7}, {100, 1.41e-7}, {256, 1.43e-7}}) {
    const VemiSize size = {length, length};
    const std::vector<float> from = randomFloats(static_cast<size_t>(length) * static_cast<size_t>(length), 1);
    const int step = length * static_cast<int>(sizeof(float));
    for (const bool isForward : {true, false}) {
      const auto& direction = isForward ? forward : inverse;
      std::vector<float> result(from.size());
      ASSERT_EQ(direction.run[0](from.data(), step, result.data(), step, direction.spec(size).get(), nullptr), vemiOk);
      const Plane expected = transformed(Plane(from.begin(), from.end()), size, isForward);
      Plane error(expected);
      for (size_t i = 0; i < error.size(); ++i) error[i] -= static_cast<double>(result[i]);
      EXPECT_LE(rootMeanSquare(error), most * rootMeanSquare(expected)) << text(size) << isForward;
    }
  }
}

/// The bits do not depend on where things stand, nor on a buffer's being given.
TEST(DCT, BitsAreTheSameInAllPlaces) {
  for (const VemiSize size : {VemiSize{8, 8},
                              {1, 40},
                              {40, 1},
                              {16, 16},
                              {13, 9},
                              {9, 30},
                              {60, 35},
                              {128, 64},
                              {1, 1031},
                              {1031, 3},
                              {2, 8192},
                              {5000, 2},
                              {2062, 2}}) {
    for (const Direction& direction : {forward, inverse}) {
      const auto spec = direction.spec(size);
      for (int layout = 0; layout < 4; ++layout) {
        const int elements = layout == 0 ? 1 : layout == 1 ? 3 : 4;
        const size_t rowBytes = static_cast<size_t>(size.width * elements) * sizeof(float), step = rowBytes + 7;
        const std::vector<float> image = randomFloats(rowBytes / 4 * static_cast<size_t>(size.height), 5);
        std::vector<float> plain(image.size());
        const int plainStep = static_cast<int>(rowBytes);
        ASSERT_EQ(direction.run[layout](image.data(), plainStep, plain.data(), plainStep, spec.get(), nullptr), vemiOk);
        std::vector<char> moved(step * static_cast<size_t>(size.height) + 8);
        std::vector<Vemi8u> buffer(static_cast<size_t>(direction.bytes(size, 0)) + 1, 0xff);
        const auto row = [&](size_t y) { return moved.data() + 1 + y * step; };
        for (size_t y = 0; y < static_cast<size_t>(size.height); ++y)
          std::memcpy(row(y), &image[y * rowBytes / 4], rowBytes);
        auto* const first = reinterpret_cast<Vemi32f*>(row(0));
        ASSERT_EQ(direction.run[layout](first, static_cast<int>(step), first, static_cast<int>(step), spec.get(),
                                        buffer.data() + 1),
                  vemiOk);
        for (size_t y = 0; y < static_cast<size_t>(size.height); ++y) {
          for (size_t i = 0; i < rowBytes / 4; ++i) {
            if (layout == 3 && i % 4 == 3) continue;
            ASSERT_EQ(std::memcmp(row(y) + 4 * i, &plain[y * rowBytes / 4 + i], 4), 0)
                << text(size) << " layout " << layout << " row " << y << " element " << i;
          }
        }
      }
    }
  }
}

TEST(DCT, ABlockIsThatOfTheBlockTransform) {
  const std::vector<float> image = randomFloats(64, 3);
  float expected[2][64], pixels[64 * 4], result[64 * 4];
  vemiDCT8x8Fwd_32f_C1(image.data(), expected[0]);
  vemiDCT8x8Inv_32f_C1(image.data(), expected[1]);
  for (const Direction& direction : {forward, inverse}) {
    const auto spec = direction.spec({8, 8});
    for (const int layout : {0, 1, 2, 3}) {
      const int elements = layout == 0 ? 1 : layout == 1 ? 3 : 4, step = 8 * elements * static_cast<int>(sizeof(float));
      for (int i = 0; i < 64 * elements; ++i) pixels[i] = image[static_cast<size_t>(i / elements)];
      ASSERT_EQ(direction.run[layout](pixels, step, result, step, spec.get(), nullptr), vemiOk);
      for (int i = 0; i < 64 * elements; ++i) {
        if (layout == 3 && i % 4 == 3) continue;
        ASSERT_EQ(result[i], expected[direction.isForward ? 0 : 1][i / elements]) << layout << ", " << i;
      }
    }
  }
}

TEST(DCT, BufferSizesAreTheStatedOnes) {
  struct Case {
    VemiSize size;
    int hint, bytes;
  };
  for (const auto& [size, hint, bytes] : {
           Case{{8, 8}, 0, 1040},
           {{1, 1}, 0, 32},
           {{4, 8}, 0, 16 * 8 + 16},
           {{16, 8}, 0, 16 * 16 + 4 * 16 + 16 + 16},
           {{100, 64}, 0, 16 * 100 + 4 * 100 + 16 + 16},
           {{101, 101}, 0, 16 * 101 + (8 * 256 + 16) + 8 * 256 + 16 + 16},
           {{1000, 600}, 0, 16 * 1000 + 8208 + 8 * 2048 + 16 + 16},
           {{1000, 1025}, 0, 16 * 1025 + 8208 + 8 * 4096 + 16 + 16},
           {{1024, 1024}, 1, 16 * 1024 + 4 * 1024 + 16 + 16},
           {{1024, 1024}, 2, 16 * 1024 + 8 * 1024 + 16 + 8 * 1024 + 16 + 16},
           {{512, 512}, 2, 16 * 512 + 4 * 512 + 16 + 16},
           {{2048, 5000}, 2, 16 * 5000 + (32 << 6) + 8208 + 8 * 16384 + 16 + 16},
       }) {
    EXPECT_EQ(forward.bytes(size, hint), bytes) << text(size);
    EXPECT_EQ(inverse.bytes(size, hint), bytes) << text(size);
  }
  VemiDCTSpec_32f* spec = nullptr;
  for (const VemiSize size : {VemiSize{INT_MAX, 1}, {1, INT_MAX}, {1 << 30, 1}, {INT_MAX, INT_MAX}, {1 << 27, 4}}) {
    EXPECT_EQ(vemiDCTFwdInitAlloc_32f(&spec, size, vemiHintNone), vemiErrMemAlloc);
    EXPECT_EQ(spec, nullptr);
  }
}

TEST(DCT, RecordsHaveADirection) {
  const auto spec = forward.spec({4, 4});
  float image[16] = {}, result[16];
  int size = -1;
  EXPECT_EQ(vemiDCTInv_32f_C1R(image, 16, result, 16, spec.get(), nullptr), vemiErrContext);
  EXPECT_EQ(vemiDCTInvGetBufSize_32f(spec.get(), &size), vemiErrContext);
  EXPECT_EQ(vemiDCTInvFree_32f(spec.get()), vemiErrContext);
  EXPECT_EQ(size, -1);
}

}  // namespace
