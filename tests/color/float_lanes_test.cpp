// What the perceptual models compute with.

#include <gtest/gtest.h>

#include <bit>

#include "color/reciprocal.h"
#include "core/numbers.h"

using namespace vemi;

TEST(PlainReciprocal, IsTheApproximateOneInAllIntervals) {
  const Lanes<float> d;
  for (uint32_t exponent = 3; exponent < 251; exponent += 31) {
    for (uint32_t fraction = 0; fraction < 1u << 23; fraction += 1u << 10) {
      for (const uint32_t sign : {0u, 0x80000000u}) {
        const float x = std::bit_cast<float>(sign | exponent << 23 | (fraction + (fraction >> 12 & 0x3ff)));
        ASSERT_EQ(hn::GetLane(color::plainReciprocal(d, hn::Set(d, x))), approximateReciprocal(x))
            << std::hexfloat << x;
      }
    }
  }
  for (const float zero : {0.0f, -0.0f}) {
    EXPECT_EQ(hn::GetLane(color::plainReciprocal(d, hn::Set(d, zero))), approximateReciprocal(zero));
  }
}
