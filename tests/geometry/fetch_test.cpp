// Rows of fetched pixels against their definition: every type, layout and interpolation, images against unmapped pages.

#include "geometry/fetch.h"

#include <gtest/gtest.h>

#include <limits>

#include "geometry/fetch_reference.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::geometry;
using namespace vemi::test;

namespace {

/// Whole, half and any coordinates within an image, some of them beyond it, and what is no number.
float coordinate(Random& random, int pixels) {
  const float anywhere = static_cast<float>(random.below(1 << 20)) * 0x1p-20f;
  switch (random.below(8)) {
    case 0:
      return static_cast<float>(random.below(pixels));
    case 1:
      return static_cast<float>(random.below(2 * pixels + 1)) / 2;
    case 2:
      return static_cast<float>(pixels) * (3 * anywhere - 1);
    default:
      return static_cast<float>(pixels - 1) * anywhere;
  }
}

constexpr float strange[] = {NAN, INFINITY, -INFINITY, -0.0f, -1e-30f, 1e30f, 0x1p31f, -0x1p31f};

template <class T, class L>
void expectFetches(int interpolation) {
  Random random(static_cast<uint64_t>(interpolation));
  const int least = interpolation == vemiInterCubic ? 4 : interpolation == vemiInterLinear ? 2 : 1;
  for (ptrdiff_t width = 1; width <= 150; width += width < 70 ? 1 : 9) {
    const VemiSize size = {least + random.below(width % 3 == 0 ? 1 : 40), least + random.below(9)};
    const int step = static_cast<int>(size.width * pixelBytes<T, L>) + random.below(3);
    GuardedRow<Vemi8u> src(ptrdiff_t{step} * (size.height - 1) + size.width * pixelBytes<T, L>, places[width % 3]);
    if constexpr (sizeof(T) == 4) {  // numbers, so that there is something to compare
      for (ptrdiff_t i = 0; i + 4 <= ptrdiff_t{step} * size.height - step + size.width * pixelBytes<T, L>; ++i) {
        if ((src.data()[i + 3] & 0x7f) > 0x48) src.data()[i + 3] = static_cast<Vemi8u>(0x3d + random.below(8));
      }
    }
    const GuardedRow<T> dst(width * L::elements, places[width % 2]);
    std::vector<float> x, y;
    for (ptrdiff_t i = 0; i < width; ++i) {
      const bool isStrange = width % 4 == 1 && random.below(6) == 0;
      x.push_back(isStrange ? strange[random.below(8)] : coordinate(random, size.width));
      y.push_back(coordinate(random, size.height));
    }
    const bool isWhole = width % 2 == 0;
    const Limits limits = {isWhole ? -1e30 : 0.25, isWhole ? -1e30 : 0.0, isWhole ? 1e30 : size.width - 1.0,
                           isWhole ? 1e30 : size.height - 0.5};
    View image = {};
    for (int channel = 0; channel < L::elements; ++channel) {
      image.origin[channel] = reinterpret_cast<std::byte*>(src.data()) + channel * static_cast<int>(sizeof(T));
      image.step[channel] = step;
    }
    image.pixelBytes = pixelBytes<T, L>;
    image.element = elementOf<T>;
    image.size = size;
    std::vector<T> expected = dst.original();
    for (ptrdiff_t i = 0; i < width; ++i) {
      for (int channel = 0; channel < L::channels; ++channel) {
        auto* const out = reinterpret_cast<std::byte*>(&expected[static_cast<size_t>(i * L::elements + channel)]);
        const auto at = static_cast<size_t>(i);
        fetchElement(image, interpolation, limits, x[at], y[at], channel, out);
      }
    }
    const GuardedRow<float> xs(x, places[0]), ys(y, places[1]);
    const auto source = FetchSource::of<L>(Image<const T>{reinterpret_cast<const T*>(src.data()), step}, size,
                                           FetchLimits::within(limits.left, limits.top, limits.right, limits.bottom));
    fetchRow<T, L>(interpolation)(source, width, xs.data(), ys.data(), dst.data());
    ASSERT_TRUE(dst.holds(expected)) << sizeof(T) << " bytes, " << L::elements << " elements, " << L::channels
                                     << " channels, interpolation " << interpolation << ", width " << width;
  }
}

template <class T>
void expectAllFetches() {
  for (const int interpolation : {vemiInterNearest, vemiInterLinear, vemiInterCubic}) {
    expectFetches<T, C1>(interpolation);
    expectFetches<T, C3>(interpolation);
    expectFetches<T, C4>(interpolation);
    expectFetches<T, AC4>(interpolation);
  }
}

TEST(Fetch, Bytes) { expectAllFetches<Vemi8u>(); }
TEST(Fetch, Shorts) { expectAllFetches<Vemi16u>(); }
TEST(Fetch, Floats) { expectAllFetches<Vemi32f>(); }

// The table of cubic weights, as far as a single pixel of 255 shows it.
TEST(Fetch, CubicWeights) {
  for (int k = 0; k < 4; ++k) {
    Vemi8u image[16] = {};
    for (int row = 0; row < 4; ++row) image[4 * row + k] = 255;
    const auto source = FetchSource::of<C1>(Image<const Vemi8u>{image, 4}, {4, 4}, {0, 0, 3, 3});
    for (int t = 0; t <= 1536; ++t) {
      const float x = static_cast<float>(t) / 512, y = 1;
      Vemi8u value = 77;
      fetchRow<Vemi8u, C1>(vemiInterCubic)(source, 1, &x, &y, &value);
      const int expected = ((255 * cubicWeight(k, t) >> 8) * 16384 + 0x80000) >> 20;
      ASSERT_EQ(value, std::clamp(expected, 0, 255)) << k << ", " << t;
    }
  }
  EXPECT_EQ(cubicWeight(0, 0), 16384);
  EXPECT_EQ(cubicWeight(0, 1), 16325);
  EXPECT_EQ(cubicWeight(1, 1), 96);
  EXPECT_EQ(cubicWeight(0, 768), -1024);
  EXPECT_EQ(cubicWeight(1, 768), 9216);
}

// Limits are floats within numbers that floats do not hold.
TEST(Fetch, Limits) {
  const FetchLimits limits = FetchLimits::within(-16777217, 16777217, 2147483646, 2147483649.0);
  EXPECT_EQ(limits.left, -16777216.0f);
  EXPECT_EQ(limits.top, 16777218.0f);
  EXPECT_EQ(limits.right, 0x1p31f - 128);
  EXPECT_EQ(limits.bottom, 0x1p31f);
}

}  // namespace
