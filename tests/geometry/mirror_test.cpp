// vemiMirror against its definition, and what users of images of one row or of wide ones meet.

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "support/check.h"
#include "vemi/geometry.h"

using namespace vemi::test;

namespace {

void mirrored(Call& call) {
  const View source = call.source(), destination = call.destination();
  const int flip = call.get<int>("flip");
  const VemiSize size = destination.size;
  const auto bytes = static_cast<size_t>(bytesOf(source.element));
  call.forEachElement([&](int x, int y, int channel) {
    const int fromX = flip == vemiAxisHorizontal ? x : size.width - 1 - x;
    const int fromY = flip == vemiAxisVertical ? y : size.height - 1 - y;
    std::memcpy(destination.at(x, y, channel), source.at(fromX, fromY, channel), bytes);
  });
}

}  // namespace

TEST(Mirror, EveryMember) { expectDefinition(membersOf("vemiMirror"), mirrored); }

// More than one piece of a row is set aside, and rows meet in the middle.
TEST(Mirror, WideAndHighImages) {
  for (const Export* const member : membersOf("vemiMirror")) {
    unsigned seed = 1;
    for (const VemiSize size : {VemiSize{4081, 2}, {8161, 1}, {9001, 3}, {5, 150}, {1, 77}}) {
      for (int repeat = 0; repeat < 3; ++repeat) {
        if (!expectCall(*member, {size, Rows::odd, Edge::back, ++seed}, mirrored)) return;
      }
    }
  }
}

TEST(Mirror, OfOddHeightInPlace) {
  std::vector<Vemi8u> image = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  EXPECT_EQ(vemiMirror_8u_C1IR(image.data(), 3, {3, 3}, vemiAxisBoth), vemiOk);
  EXPECT_EQ(image, (std::vector<Vemi8u>{9, 8, 7, 6, 5, 4, 3, 2, 1}));
}
