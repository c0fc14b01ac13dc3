// vemiSwapChannels.

#include <gtest/gtest.h>

#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

void swapped(Call& call) {
  const View source = call.source(), destination = call.destination(), order = call.array("dstOrder");
  call.forEachElement([&](int x, int y, int channel) {
    std::memcpy(destination.at(x, y, channel), source.at(x, y, load<int>(order.at(channel, 0))),
                static_cast<size_t>(bytesOf(source.element)));
  });
}

}  // namespace

TEST(SwapChannels, EveryMember) { expectDefinition(membersOf("vemiSwapChannels"), swapped); }

TEST(SwapChannels, EveryOrder) {
  std::vector<Vemi16u> pixels(3 * 67), result(pixels.size());
  for (size_t n = 0; n < pixels.size(); ++n) pixels[n] = static_cast<Vemi16u>(n * 257);
  for (int n = 0; n < 27; ++n) {
    const int order[] = {n / 9, n / 3 % 3, n % 3};
    EXPECT_EQ(vemiSwapChannels_16u_C3R(pixels.data(), 402, result.data(), 402, {67, 1}, order), vemiOk);
    for (size_t i = 0; i < pixels.size(); ++i) {
      ASSERT_EQ(result[i], pixels[i - i % 3 + static_cast<size_t>(order[i % 3])]) << i << " in order " << n;
    }
  }
}
