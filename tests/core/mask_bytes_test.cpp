// Masks of elements as bytes, and the conjunction of a pixel's channels.

#include "core/mask_bytes.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

constexpr ptrdiff_t N = laneCount<uint8_t>;

/// Lanes that are all ones or zero.
template <class T>
std::vector<T> randomMasks(ptrdiff_t count) {
  std::vector<T> masks(static_cast<size_t>(count));
  for (T& mask : masks) mask = static_cast<T>(nextRandom() % 2 - 1);
  return masks;
}

template <class T>
void expectRowOrder() {
  const Lanes<T> d;
  const std::vector<T> masks = randomMasks<T>(N);
  std::vector<uint8_t> bytes(N), expected(masks.begin(), masks.end());
  const auto vectorAt = [&](size_t k) HWY_ATTR { return hn::LoadU(d, masks.data() + k * laneCount<T>); };
  const auto packed = [&]<size_t... k>(std::index_sequence<k...>) HWY_ATTR { return maskBytes(vectorAt(k)...); };
  hn::StoreU(packed(std::make_index_sequence<sizeof(T)>()), Lanes<uint8_t>(), bytes.data());
  EXPECT_EQ(bytes, expected) << sizeof(T);
}

template <int elements>
void expectConjunction(uint32_t ignored) {
  const std::vector<uint8_t> masks = randomMasks<uint8_t>(elements * N);
  std::vector<uint8_t> result(N), expected(N, 255);
  for (size_t i = 0; i < masks.size(); ++i) {
    expected[i / elements] &= static_cast<uint8_t>(masks[i] | (elements == 4 ? ignored >> i % 4 * 8 : 0));
  }
  Vectors<hn::Vec<Lanes<uint8_t>>, elements> vectors;
  unrolled<elements>([&](auto k) HWY_ATTR { vectors.v[k] = hn::LoadU(Lanes<uint8_t>(), masks.data() + k * N); });
  hn::StoreU(allChannels<elements>(vectors, ignored), Lanes<uint8_t>(), result.data());
  EXPECT_EQ(result, expected) << elements << " elements, ignored " << ignored;
}

}  // namespace

TEST(MaskBytes, KeepTheOrderOfTheRow) {
  for (int n = 0; n < 20; ++n) {
    expectRowOrder<uint8_t>();
    expectRowOrder<uint16_t>();
    expectRowOrder<uint32_t>();
  }
}

TEST(MaskBytes, AllChannelsOfAPixelDecide) {
  for (int n = 0; n < 20; ++n) {
    expectConjunction<1>(0);
    expectConjunction<3>(0);
    expectConjunction<4>(0);
    expectConjunction<4>(0xff000000u);
  }
}
