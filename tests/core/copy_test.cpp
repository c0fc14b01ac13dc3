// vemiCopy, vemiSet and vemiDrawText.

#include <gtest/gtest.h>

#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

void copied(Call& call) {
  const View source = call.source(), destination = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    std::memcpy(destination.at(x, y, channel), source.at(x, y, channel), static_cast<size_t>(bytesOf(source.element)));
  });
}

void filled(Call& call) {
  const View destination = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    std::memcpy(destination.at(x, y, channel), call.constant(channel),
                static_cast<size_t>(bytesOf(destination.element)));
  });
}

}  // namespace

TEST(Copy, EveryMemberMovesItsChannels) { expectDefinition(membersOf("vemiCopy"), copied); }

TEST(Set, EveryMemberFillsItsChannels) { expectDefinition(membersOf("vemiSet"), filled); }

TEST(Copy, PointersChooseTheChannelOfInterest) {
  const std::vector<Vemi16s> source = {1, 2, 3, 4, 5, 6};
  std::vector<Vemi16s> destination = {-1, -2, -3, -4, -5, -6};
  EXPECT_EQ(vemiCopy_16s_C3CR(&source[2], 12, &destination[0], 12, {2, 1}), vemiOk);
  EXPECT_EQ(destination, (std::vector<Vemi16s>{3, -2, -3, 6, -5, -6}));
}

// Large enough for stores that go around the caches.
TEST(Copy, ImageLargerThanTheCaches) {
  for (const Rows rows : {Rows::contiguous, Rows::odd}) {
    const Scenario scenario = {{2049, 1031}, rows, Edge::back, 5, 0};
    EXPECT_TRUE(expectCall(*membersOf("vemiCopy", "32f_C4R").front(), scenario, copied));
    EXPECT_TRUE(expectCall(*membersOf("vemiSet", "32f_C4R").front(), scenario, filled));
  }
}

TEST(DrawText, IgnoresItsArguments) {
  EXPECT_EQ(vemiDrawText_8u_C3R(0, 0, 0, 0, 0, 0, 0, 0, 0), vemiWarnNoOperation);
  EXPECT_EQ(vemiDrawText_8u_C3R(-1, -2, 3, 4, 5, 6, 7, 8, 9), vemiWarnNoOperation);
}
