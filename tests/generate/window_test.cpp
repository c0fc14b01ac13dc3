// vemiWinBartlett, vemiWinHamming and their Sep forms.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"
#include "support/windows.h"

using namespace vemi::test;

namespace {

constexpr double twoPi = 6.283185307179586;

bool isTooSmall(Call& call) {
  const VemiSize size = call.get<VemiSize>("roiSize");
  if (size.width >= 3 && size.height >= 3) return false;
  call.expectedStatus = vemiErrSize;
  return true;
}

template <class Weighted>
void multiply(Call& call, const Weighted& weighted) {
  if (isTooSmall(call)) return;
  const View source = call.source(), destination = call.destination();
  call.anyNaN = true;
  call.forEachElement([&](int x, int y, int) {
    if (source.element == Element::f32) {
      store(destination.at(x, y), weighted(x, y, load<float>(source.at(x, y))));
    } else {
      const float value = static_cast<float>(loadInteger(source.element, source.at(x, y)));
      storeSaturated(source.element, destination.at(x, y), static_cast<int64_t>(std::nearbyint(weighted(x, y, value))));
    }
  });
}

Reference separable(std::vector<float> (*window)(int n)) {
  return [=](Call& call) {
    const VemiSize size = call.get<VemiSize>("roiSize");
    const std::vector<float> ofColumns = window(size.width), ofRows = window(size.height);
    multiply(call, [&](int x, int y, float value) {
      const volatile float first = value * ofColumns[static_cast<size_t>(x)];
      const volatile float second = first * ofRows[static_cast<size_t>(y)];
      return second;
    });
  };
}

/// A 32f product is rounded to single precision, an 8u product from double precision to an integer.
template <class Weight>
Reference radial(Weight weight) {
  return [=](Call& call) {
    const VemiSize size = call.get<VemiSize>("roiSize");
    const double cx = 0.5 * size.width, cy = 0.5 * size.height, q = cy / cx;
    const auto product = [=](int x, int y, double value) {
      const double dx = cx - std::min(x, size.width - 1 - x), dy = cy - std::min(y, size.height - 1 - y);
      if (dx * dx / (cx * cx) + dy * dy / (cy * cy) >= 1.0) return 0.0;
      return value * weight(std::sqrt(dx * dx + dy * dy / (q * q)), size.width);
    };
    if (call.function.members.find("32f") != std::string::npos) {
      multiply(call, [=](int x, int y, float value) { return static_cast<float>(product(x, y, value)); });
    } else {
      multiply(call, [=](int x, int y, float value) { return product(x, y, value); });
    }
  };
}

double radialBartlett(double r, int width) { return 1.0 - r / (0.5 * width); }
double radialHamming(double r, int width) { return 0.54 - 0.46 * std::cos((0.5 * width - r) * twoPi / width); }

template <class T>
using InPlace = VemiStatus(T* pSrcDst, int srcDstStep, VemiSize roiSize);

std::vector<Vemi32f> ofOnes(InPlace<Vemi32f>* function, VemiSize size) {
  std::vector<Vemi32f> image(static_cast<size_t>(size.width * size.height), 1.0f);
  EXPECT_EQ(function(image.data(), 4 * size.width, size), vemiOk);
  return image;
}

}  // namespace

TEST(WinSep, EveryMember) {
  expectDefinition(membersOf("vemiWinBartlettSep"), separable(bartlettWindow));
  expectDefinition(membersOf("vemiWinHammingSep"), separable(hammingWindow));
}

TEST(Win, EveryMember) {
  expectDefinition(membersOf("vemiWinBartlett"), radial(radialBartlett));
  expectDefinition(membersOf("vemiWinHamming"), radial(radialHamming));
}

TEST(Win, LargeRegions) {
  for (const VemiSize size : {VemiSize{1001, 600}, VemiSize{600, 1001}, VemiSize{512, 512}}) {
    for (const char* members : {"8u_C1R", "32f_C1R"}) {
      expectCall(*membersOf("vemiWinBartlett", members).front(), {size}, radial(radialBartlett));
      expectCall(*membersOf("vemiWinHamming", members).front(), {size}, radial(radialHamming));
    }
  }
}

TEST(WinSep, OfThreeByThreeLeavesTheMiddle) {
  const std::vector<Vemi32f> expected = {0, 0, 0, 0, 1, 0, 0, 0, 0};
  EXPECT_EQ(ofOnes(vemiWinBartlettSep_32f_C1IR, {3, 3}), expected);
}

TEST(Win, CornersAreZero) {
  for (int width = 3; width < 40; ++width) {
    for (const int height : {3, 4, 17, 64}) {
      for (InPlace<Vemi32f>* const function : {vemiWinBartlett_32f_C1IR, vemiWinHamming_32f_C1IR}) {
        const std::vector<Vemi32f> image = ofOnes(function, {width, height});
        const size_t right = static_cast<size_t>(width - 1), bottom = image.size() - 1 - right;
        for (const size_t corner : {size_t{0}, right, bottom, bottom + right}) EXPECT_EQ(image[corner], 0.0f);
      }
    }
  }
}

// Nothing is written where memory is short, and nothing is lost.
TEST(Win, ReportsMissingMemory) {
  for (InPlace<Vemi32f>* const function :
       {vemiWinBartlett_32f_C1IR, vemiWinHamming_32f_C1IR, vemiWinBartlettSep_32f_C1IR, vemiWinHammingSep_32f_C1IR}) {
    for (const int blocks : {0, 1}) {
      Vemi32f image[16] = {1};
      const WatchedAllocator allocator(blocks);
      EXPECT_EQ(function(image, 16, {4, 4}), blocks == 0 ? vemiErrMemAlloc : vemiOk);
      EXPECT_EQ(image[0] == 1, blocks == 0);
      EXPECT_EQ(allocator.released(), blocks);
    }
  }
}
