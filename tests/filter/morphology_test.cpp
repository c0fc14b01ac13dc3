// vemiErode, vemiDilate and their 3x3 forms.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

/// The extreme of the pixels that `selects` names, in a window of this size and anchor.
void extremes(Call& call, VemiSize size, VemiPoint anchor, const std::function<bool(int, int)>& selects) {
  const View source = call.source();
  const bool erodes = call.function.name.find("Erode") != std::string::npos;
  const ptrdiff_t reach = (source.size.width + size.width - 1) * source.pixelBytes;
  if (source.step[0] < reach) {  // rows that lie over each other
    call.expectedStatus = vemiErrStride;
    return;
  }
  call.forEachElement([&](int x, int y, int channel) {
    bool first = true;
    double extreme = 0;
    for (int j = 0; j < size.height; ++j) {
      for (int i = 0; i < size.width; ++i) {
        if (!selects(i, j)) continue;
        const double value = loadNumber(source.element, source.at(x + i - anchor.x, y + j - anchor.y, channel));
        if (first || (erodes ? value < extreme : value > extreme)) extreme = value;
        first = false;
      }
    }
    storeNumber(source.element, call.destination().at(x, y, channel), extreme);
  });
}

void ofNine(Call& call) {
  extremes(call, {3, 3}, {1, 1}, [](int, int) { return true; });
}

void ofMask(Call& call) {
  const auto size = call.get<VemiSize>("maskSize");
  const View mask = call.array("pMask");
  extremes(call, size, call.get<VemiPoint>("anchor"),
           [=](int i, int j) { return *mask.at(j * size.width + i, 0) != std::byte{0}; });
}

}  // namespace

TEST(Morphology, ThreeByThree) {
  expectDefinition(membersOf("vemiErode3x3"), ofNine);
  expectDefinition(membersOf("vemiDilate3x3"), ofNine);
}

TEST(Morphology, Erode) { expectDefinition(membersOf("vemiErode"), ofMask); }
TEST(Morphology, Dilate) { expectDefinition(membersOf("vemiDilate"), ofMask); }

// One black pixel grows to the mask, turned by half a turn, for every length of a run and of a column: each pass of a
// rectangle, and each power of two, reaches as far as it must and no farther.
TEST(Morphology, EveryLengthOfRunsAndColumns) {
  const VemiSize region = {400, 7};
  for (int length = 1; length <= 90; ++length) {
    for (const bool across : {true, false}) {
      for (const bool full : {true, false}) {
        const VemiSize mask = across ? VemiSize{length, 2} : VemiSize{2, length};
        const int width = region.width + mask.width - 1, height = region.height + mask.height - 1;
        std::vector<Vemi8u> selected(static_cast<size_t>(2 * length), 1);
        if (!full) selected[across ? static_cast<size_t>(length) : 1] = 0;  // a corner is missing
        const int x = 200, y = mask.height + 2;
        std::vector<Vemi8u> image(static_cast<size_t>(width * height), 255);
        image[static_cast<size_t>(y * width + x)] = 0;
        std::vector<Vemi8u> result(static_cast<size_t>(region.width * region.height));
        ASSERT_EQ(
            vemiErode_8u_C1R(image.data(), width, result.data(), region.width, region, selected.data(), mask, {0, 0}),
            vemiOk);
        for (int v = 0; v < region.height; ++v) {
          for (int u = 0; u < region.width; ++u) {
            const int i = x - u, j = y - v;
            const bool reaches = i >= 0 && j >= 0 && i < mask.width && j < mask.height &&
                                 selected[static_cast<size_t>(j * mask.width + i)] != 0;
            ASSERT_EQ(result[static_cast<size_t>(v * region.width + u)], reaches ? 0 : 255)
                << mask.width << "x" << mask.height << ", full " << full << " at " << u << "," << v;
          }
        }
      }
    }
  }
}

// In place, a pixel far above is read after its row was written over, unless it has been set aside.
TEST(Morphology, ShiftsInPlace) {
  const int width = 300, height = 40;
  for (const int tap : {0, 3, 8}) {
    std::vector<Vemi8u> mask(9, 0), image(static_cast<size_t>(width * height));
    mask[static_cast<size_t>(tap)] = 200;
    for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Vemi8u>(i * 7 + i / 300);
    std::vector<Vemi8u> expected = image;
    const int shift = (tap - 8) * width;
    std::copy_n(&image[static_cast<size_t>(8 * width + shift)], 32 * width, &expected[8 * width]);
    ASSERT_EQ(vemiDilate_8u_C1IR(&image[8 * width], width, {width, 32}, mask.data(), {1, 9}, {0, 8}), vemiOk);
    EXPECT_EQ(image, expected) << tap;
  }
}
