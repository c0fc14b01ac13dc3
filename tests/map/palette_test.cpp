// vemiLUTPalette.

#include <gtest/gtest.h>

#include "support/check.h"

using namespace vemi::test;

namespace {

void entryOfPalette(Call& call) {
  const View source = call.source(), destination = call.destination(), table = call.array("pTable");
  const int64_t entries = int64_t{1} << call.get<int>("nBitSize");
  call.forEachElement([&](int x, int y, int channel) {
    const int64_t entry = loadInteger(source.element, source.at(x, y)) % entries;
    const std::byte* const from = table.at(static_cast<int>(entry * destination.channels) + channel, 0);
    std::memcpy(destination.at(x, y, channel), from, static_cast<size_t>(bytesOf(destination.element)));
  });
}

}  // namespace

TEST(Palette, EveryMember) { expectDefinition(membersOf("vemiLUTPalette"), entryOfPalette); }

TEST(Palette, IgnoresUpperBits) {
  const Vemi8u pixels[] = {0, 1, 2, 3, 4, 5, 0xfe, 0xff}, colours[] = {0, 0, 0, 221, 0, 0, 255, 204, 0, 255, 255, 255};
  Vemi8u result[24];
  EXPECT_EQ(vemiLUTPalette_8u24u_C1R(pixels, 8, result, 24, {8, 1}, colours, 2), vemiOk);
  for (int n = 0; n < 24; ++n) EXPECT_EQ(result[n], colours[n / 3 % 4 * 3 + n % 3]) << n;
}
