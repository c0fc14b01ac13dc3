// vemiRemap against its definition, and images of more than 2 GiB.

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <cmath>
#include <vector>

#include "geometry/fetch_reference.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

int fallenBack(VemiSize size, int interpolation) {
  const int least = std::min(size.width, size.height);
  if (least == 1) return vemiInterNearest;
  return least < 4 && interpolation == vemiInterCubic ? vemiInterLinear : interpolation;
}

void remapped(Call& call) {
  const View source = call.source(0), xMap = call.source(1), yMap = call.source(2), destination = call.destination();
  const VemiRect roi = call.get<VemiRect>("srcRoi");
  const Limits limits = {static_cast<double>(roi.x), static_cast<double>(roi.y),
                         std::min(roi.x + roi.width, source.size.width) - 1.0,
                         std::min(roi.y + roi.height, source.size.height) - 1.0};
  const int interpolation = fallenBack(source.size, call.get<int>("interpolation"));
  call.anyNaN = interpolation != vemiInterNearest;
  call.forEachElement([&](int x, int y, int channel) {
    fetchElement(source, interpolation, limits, load<float>(xMap.at(x, y)), load<float>(yMap.at(x, y)), channel,
                 destination.at(x, y, channel));
  });
}

}  // namespace

TEST(Remap, EveryMember) { expectDefinition(membersOf("vemiRemap"), remapped); }

TEST(Remap, LimitsAreInclusiveAndNotRounded) {
  const Vemi8u src[] = {10, 20, 30, 40};
  const std::vector<float> x = {-0.5f, -1e-30f, -0.0f, 0.5f, 1.5f, 3, 3.0000002f, NAN, INFINITY, -INFINITY};
  const std::vector<float> y(x.size(), 0);
  std::vector<Vemi8u> dst(x.size(), 99);
  const int count = static_cast<int>(x.size());
  EXPECT_EQ(vemiRemap_8u_C1R(src, {4, 1}, 4, {0, 0, 4, 1}, x.data(), 4 * count, y.data(), 4 * count, dst.data(), count,
                             {count, 1}, vemiInterNearest),
            vemiOk);
  EXPECT_EQ(dst, (std::vector<Vemi8u>{99, 99, 10, 10, 30, 40, 99, 99, 99, 99}));
}

// Rows so far apart that offsets exceed 32 bits; the memory between them is never touched.
TEST(Remap, ImagesBeyondTwoGibibytes) {
  if (sizeof(void*) < 8) GTEST_SKIP() << "no room for the image";
  constexpr int step = 1100000000, width = 20, height = 5;
  constexpr size_t bytes = size_t{step} * (height - 1) + width * 4 * sizeof(Vemi32f);
  void* const block = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(block, MAP_FAILED);
  Random random(1);
  for (size_t y = 0; y < height; ++y) {
    random.fill(static_cast<std::byte*>(block) + y * step, width * 4 * sizeof(Vemi8u));
  }
  const auto expectEqual = [&](auto remap, auto element, int channels) {
    using T = decltype(element);
    const auto rowBytes = static_cast<int>(width * channels * sizeof(T));
    std::vector<T> packed(size_t{width} * static_cast<size_t>(channels) * height);
    for (size_t y = 0; y < height; ++y) {
      std::memcpy(reinterpret_cast<std::byte*>(packed.data()) + y * static_cast<size_t>(rowBytes),
                  static_cast<std::byte*>(block) + y * step, static_cast<size_t>(rowBytes));
    }
    std::vector<float> x, y;
    for (int i = 0; i < 70; ++i) {
      x.push_back(static_cast<float>(random.below(1901)) / 100);
      y.push_back(static_cast<float>(random.below(401)) / 100);
    }
    for (const int interpolation : {vemiInterNearest, vemiInterLinear, vemiInterCubic}) {
      std::vector<T> far(70 * static_cast<size_t>(channels)), near = far;
      const auto run = [&](const T* src, int srcStep, std::vector<T>& dst) {
        return remap(src, {width, height}, srcStep, {0, 0, width, height}, x.data(), 280, y.data(), 280, dst.data(),
                     static_cast<int>(dst.size() * sizeof(T)), {70, 1}, interpolation);
      };
      ASSERT_EQ(run(packed.data(), rowBytes, near), vemiOk);
      ASSERT_EQ(run(static_cast<const T*>(block), step, far), vemiOk);
      EXPECT_EQ(std::memcmp(near.data(), far.data(), near.size() * sizeof(T)), 0) << interpolation << ", " << channels;
    }
  };
  expectEqual(vemiRemap_8u_C1R, Vemi8u(), 1);
  expectEqual(vemiRemap_8u_C3R, Vemi8u(), 3);
  for (size_t y = 0; y < height; ++y) {
    for (size_t i = 0; i < size_t{width} * 4; ++i) {
      store(static_cast<std::byte*>(block) + y * step + i * sizeof(float), static_cast<float>(random.below(1000)));
    }
  }
  expectEqual(vemiRemap_32f_C1R, Vemi32f(), 1);
  expectEqual(vemiRemap_32f_C4R, Vemi32f(), 4);
  munmap(block, bytes);
}
