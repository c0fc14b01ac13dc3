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

/// One call each, on images of about 10 MB with and without gaps: enough for stores that go around the caches, and for
/// fills that copy their own beginning.
void expectLarge(const char* operation, const std::string& members, const Reference& reference) {
  const Export& function = *membersOf(operation, members).front();
  const int pixelBytes =
      bytesOf(function.parameters[0].element) * std::max(function.source.elements, function.destination.elements);
  for (const Rows rows : {Rows::contiguous, Rows::odd}) {
    const Scenario scenario = {{2051, 10'000'000 / 2051 / pixelBytes}, rows, Edge::back, 5, 0};
    EXPECT_TRUE(expectCall(function, scenario, reference));
  }
}

TEST(Copy, ImagesLargerThanTheCaches) {
  for (const std::string element : {"8u", "16s", "32f"}) {
    for (const char* const layout : {"C3P3R", "C4P4R", "P3C3R", "P4C4R"}) {
      expectLarge("vemiCopy", element + "_" + layout, copied);
    }
    expectLarge("vemiCopy", element + "_C4R", copied);
  }
}

TEST(Set, ImagesLargerThanTheCaches) {
  for (const char* const members : {"8u_C1R", "16s_C1R", "8u_C3R", "16s_C3R", "32f_C3R", "32f_C4R"}) {
    expectLarge("vemiSet", members, filled);
  }
}

TEST(DrawText, IgnoresItsArguments) {
  EXPECT_EQ(vemiDrawText_8u_C3R(0, 0, 0, 0, 0, 0, 0, 0, 0), vemiWarnNoOperation);
  EXPECT_EQ(vemiDrawText_8u_C3R(-1, -2, 3, 4, 5, 6, 7, 8, 9), vemiWarnNoOperation);
}
