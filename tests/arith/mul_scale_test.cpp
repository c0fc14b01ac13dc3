// vemiMulScale and vemiMulCScale.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

int64_t onFullScale(int64_t a, int64_t b, int bits) {
  const int64_t t = a * b;
  return (t + 1 + (t >> bits)) >> bits;
}

void storeProduct(std::byte* to, const std::byte* a, const std::byte* b, Element element) {
  storeSaturated(element, to, onFullScale(loadInteger(element, a), loadInteger(element, b), 8 * bytesOf(element)));
}

}  // namespace

TEST(MulScale, EveryMember) {
  expectDefinition(membersOf("vemiMulScale"), [](Call& call) {
    const View a = call.source(0), b = call.source(1), to = call.destination();
    call.forEachElement([&](int x, int y, int channel) {
      storeProduct(to.at(x, y, channel), a.at(x, y, channel), b.at(x, y, channel), to.element);
    });
  });
}

TEST(MulCScale, EveryMember) {
  expectDefinition(membersOf("vemiMulCScale"), [](Call& call) {
    const View a = call.source(), to = call.destination();
    call.forEachElement([&](int x, int y, int channel) {
      storeProduct(to.at(x, y, channel), a.at(x, y, channel), call.constant(channel), to.element);
    });
  });
}

TEST(MulScale, AllPairsOf8u) {
  std::vector<Vemi8u> a(65536), b(65536), product(65536), expected(65536);
  for (size_t n = 0; n < a.size(); ++n) {
    a[n] = static_cast<Vemi8u>(n % 256);
    b[n] = static_cast<Vemi8u>(n / 256);
    expected[n] = static_cast<Vemi8u>(onFullScale(a[n], b[n], 8));
  }
  EXPECT_EQ(vemiMulScale_8u_C1R(a.data(), 256, b.data(), 256, product.data(), 256, {256, 256}), vemiOk);
  EXPECT_TRUE(product == expected);
}

// Every value with factors at which the carry out of the lower half comes and goes.
TEST(MulScale, EveryValueOf16u) {
  std::vector<Vemi16u> a(65536), product(65536), expected(65536);
  for (size_t n = 0; n < a.size(); ++n) a[n] = static_cast<Vemi16u>(n);
  for (int factor = 0; factor < 65536; factor += factor < 300 || factor > 65200 ? 1 : 257) {
    for (size_t n = 0; n < a.size(); ++n) expected[n] = static_cast<Vemi16u>(onFullScale(a[n], factor, 16));
    EXPECT_EQ(vemiMulCScale_16u_C1R(a.data(), 512, static_cast<Vemi16u>(factor), product.data(), 512, {256, 256}),
              vemiOk);
    ASSERT_TRUE(product == expected) << factor;
  }
}
