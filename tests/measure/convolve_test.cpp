// Convolution of images against sums in double precision.

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "measure/plane.h"
#include "support/check.h"
#include "vemi/measure.h"

using namespace vemi::test;

namespace {

/// Of sums that are whole. By vemiFilter, 16s elements have another rounding of halves.
int64_t divided(double sum, int divisor, bool halvesToEven) {
  const double limited = std::clamp(sum, -0x1p31, 0x1p31 - 1);
  const bool isPower = divisor > 1 && (divisor & (divisor - 1)) == 0 && !halvesToEven;
  return std::llrint(isPower ? std::floor(limited / divisor + 0.5) : limited * (1.0f / static_cast<float>(divisor)));
}

void convolved(Call& call) {
  const View destination = call.destination();
  const bool isFull = call.function.name.find("Full") != std::string::npos;
  for (int channel = 0; channel < destination.channels; ++channel) {
    Plane image(call.source(0), channel), kernel(call.source(1), channel);
    if (image.pixel.size() < kernel.pixel.size()) std::swap(image, kernel);
    const int left = isFull ? 0 : kernel.width - 1, top = isFull ? 0 : kernel.height - 1;
    const bool byFilter = !isFull && kernel.pixel.size() < 144;
    for (int y = 0; y < destination.size.height; ++y) {
      for (int x = 0; x < destination.size.width; ++x) {
        double sum = 0;
        for (int j = 0; j < kernel.height; ++j) {
          for (int i = 0; i < kernel.width; ++i) sum += kernel.at(i, j) * image.at(x + left - i, y + top - j);
        }
        std::byte* const to = destination.at(x, y, channel);
        if (destination.element == Element::f32) {
          store(to, static_cast<float>(sum));
        } else {
          storeSaturated(destination.element, to,
                         divided(sum, call.get<int>("divisor"), byFilter && destination.element == Element::s16));
        }
      }
    }
    call.tolerance = std::max(call.tolerance, 1e-6 * std::sqrt(image.energy * kernel.energy));
  }
}

TEST(Convolve, EveryMember) {
  const std::vector<VemiSize> sizes = {{1, 1},   {2, 1},   {3, 5},   {7, 8},   {16, 4},  {17, 17}, {18, 13},
                                       {33, 16}, {40, 31}, {50, 12}, {70, 19}, {19, 70}, {131, 13}};
  for (const char* const operation : {"vemiConvFull", "vemiConvValid"}) {
    for (const Export* const member : membersOf(operation)) {
      const bool is16s = member->name.find("16s") != std::string::npos;  // rows over each other have large numbers
      unsigned seed = 0;
      bool good = true;
      for (const VemiSize size : sizes) {
        for (int i = 0; i < 4; ++i) {
          const unsigned n = ++seed;
          const Scenario scenario = {
              size, allRows[n % (is16s ? 4 : 5)], n % 2 == 0 ? Edge::front : Edge::back, n, 0, 1 + n % 7};
          good = good && expectCall(*member, scenario, convolved);
        }
      }
    }
  }
}

TEST(Convolve, Tiles) {
  for (const char* const name : {"vemiConvFull_32f_C1R", "vemiConvFull_8u_AC4R", "vemiConvValid_16s_C3R"}) {
    unsigned seed = 0;
    for (const VemiSize size : {VemiSize{300, 40}, {40, 300}, {180, 100}, {520, 1}, {1, 400}}) {
      EXPECT_TRUE(expectCall(exportNamed(name), {size, Rows::odd, Edge::back, ++seed}, convolved));
      EXPECT_TRUE(expectCall(exportNamed(name), {size, Rows::padded, Edge::front, ++seed}, convolved));
    }
  }
}

// A kernel with one pixel moves an image. The method shows in how halves are rounded: vemiFilter has ties to even.
TEST(Convolve, MethodsAtTheirLimits) {
  struct Case {
    int width, height, kernelWidth, kernelHeight;
  };
  for (const auto& [width, height, w, h] : {Case{40, 30, 11, 13},
                                            {40, 30, 12, 12},
                                            {17, 19, 12, 12},
                                            {18, 18, 12, 12},
                                            {60, 12, 12, 12},
                                            {59, 12, 12, 12}}) {
    std::vector<Vemi16s> image(static_cast<size_t>(width) * height), kernel(static_cast<size_t>(w) * h), result(2000);
    for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Vemi16s>(i * 37 % 400) - 200;
    kernel[static_cast<size_t>(3 * w + 5)] = 3;
    ASSERT_EQ(vemiConvValid_16s_C1R(kernel.data(), 2 * w, {w, h}, image.data(), 2 * width, {width, height},
                                    result.data(), 80, 2),
              vemiOk);
    for (int y = 0; y < height - h + 1; ++y) {
      for (int x = 0; x < width - w + 1; ++x) {
        const int at = (y + h - 1 - 3) * width + x + w - 1 - 5;
        const double value = 1.5 * image[static_cast<size_t>(at)];
        EXPECT_EQ(result[static_cast<size_t>(y * 40 + x)],
                  w * h < 144 ? std::nearbyint(value) : std::floor(value + 0.5))
            << width << " " << x;
      }
    }
  }
}

// Bytes of all sizes: sums are off by less than a few units, and larger ones than 32 bits are limited.
TEST(Convolve, LargeNumbers) {
  std::vector<Vemi8u> image(200 * 60), kernel(20 * 20), result(181 * 41);
  Random random(5);
  random.fill(reinterpret_cast<std::byte*>(image.data()), image.size());
  random.fill(reinterpret_cast<std::byte*>(kernel.data()), kernel.size());
  ASSERT_EQ(vemiConvValid_8u_C1R(image.data(), 200, {200, 60}, kernel.data(), 20, {20, 20}, result.data(), 181, 51000),
            vemiOk);
  for (int y = 0; y < 41; ++y) {
    for (int x = 0; x < 181; ++x) {
      double sum = 0;
      for (int i = 0; i < 400; ++i) sum += image[(y + 19 - i / 20) * 200 + x + 19 - i % 20] * kernel[i];
      const double value = sum / 51000, tie = std::fabs(value - std::floor(value) - 0.5);
      EXPECT_TRUE(tie < 1e-3 || result[y * 181 + x] == std::lround(value));
    }
  }
  const std::vector<Vemi16s> high(16 * 16, 32767);
  std::vector<Vemi16s> limited(31 * 31);  // by tiles, and a result by sums
  ASSERT_EQ(vemiConvFull_16s_C1R(high.data(), 32, {16, 16}, high.data(), 32, {16, 16}, limited.data(), 62, 1 << 20),
            vemiOk);
  EXPECT_EQ(limited[15 * 31 + 15], 2048);
  ASSERT_EQ(vemiConvValid_16s_C1R(high.data(), 32, {16, 16}, high.data(), 32, {16, 16}, limited.data(), 62, -1 << 20),
            vemiOk);
  EXPECT_EQ(limited[0], -2048);
}

// Up to 48 results are sums in double precision.
TEST(Convolve, FewResultsAreExact) {
  for (const VemiSize size : {VemiSize{17, 19}, {59, 12}, {12, 12}}) {
    std::vector<float> image(static_cast<size_t>(size.width) * size.height), kernel(12 * 12), result(48);
    Random random(6);
    for (float& each : image) each = static_cast<float>(random.below(65536) - 32768);
    for (float& each : kernel) each = static_cast<float>(random.below(65536) - 32768);
    const int columns = size.width - 11, rows = size.height - 11;
    ASSERT_EQ(vemiConvValid_32f_C1R(image.data(), size.width * 4, size, kernel.data(), 48, {12, 12}, result.data(),
                                    columns * 4),
              vemiOk);
    for (int i = 0; i < columns * rows; ++i) {
      const float* const first = &image[static_cast<size_t>(i / columns * size.width + i % columns)];
      double sum = 0;
      for (int k = 0; k < 144; ++k)
        sum += double{first[k / 12 * size.width + k % 12]} * kernel[static_cast<size_t>(143 - k)];
      EXPECT_EQ(result[static_cast<size_t>(i)], static_cast<float>(sum)) << size.width << " " << i;
    }
  }
}

TEST(Convolve, TeamsOfAnySize) {
  std::vector<Vemi8u> image(300 * 200 * 3), kernel(15 * 15 * 3), alone(314 * 214 * 3), together(alone.size());
  Random random(8);
  random.fill(reinterpret_cast<std::byte*>(image.data()), image.size());
  random.fill(reinterpret_cast<std::byte*>(kernel.data()), kernel.size());
  const int former = omp_get_max_threads();
  for (const int team : {1, 2, 3, 7}) {
    omp_set_num_threads(team);
    ASSERT_EQ(vemiConvFull_8u_C3R(image.data(), 900, {300, 200}, kernel.data(), 45, {15, 15},
                                  team == 1 ? alone.data() : together.data(), 942, 30000),
              vemiOk);
    EXPECT_TRUE(team == 1 || alone == together) << team;
  }
  omp_set_num_threads(former);
}

}  // namespace
