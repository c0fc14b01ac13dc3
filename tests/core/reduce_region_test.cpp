// The walk of reductions: each element counts once and for its channel, at every width, with lanes that fill up
// quickly.

#include "core/reduce_region.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Sums modulo 2^16, emptied after every 12 vectors of an accumulator.
struct Adding {
  using Element = uint16_t;
  using Lane = uint16_t;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = 12;
  static constexpr ReductionOrder order = ReductionOrder::any;
  static Lane start(int) { return 0; }
  static Element padding(const Element*, int) { return 0; }

  template <class D, class K, class A, class V>
  HWY_INLINE void add(D, K k, A& sums, V v) const {
    sums.of[0].v[k] = hn::Add(sums.of[0].v[k], v);
  }
};

template <class L>
void expectChannelSums(VemiSize size, ptrdiff_t gap, Place place) {
  using A = Accumulators<L, Adding>;
  const ptrdiff_t pitch = size.width * L::elements + gap;
  const GuardedRow<uint16_t> pixels(pitch * size.height - gap, place);
  std::vector<uint16_t> sums(L::elements), expected(L::elements);
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    for (ptrdiff_t i = 0; i < size.width * L::elements; ++i) {
      uint16_t& sum = expected[static_cast<size_t>(i % L::elements)];
      uint16_t element;
      std::memcpy(&element, pixels.data() + y * pitch + i, sizeof element);
      sum = static_cast<uint16_t>(sum + element);
    }
  }
  const auto sink = [&](const EmptiedLanes<A>& lanes) {
    for (ptrdiff_t i = 0; i < A::lanes; ++i) {
      uint16_t& sum = sums[static_cast<size_t>(A::channelOf(0, i))];
      sum = static_cast<uint16_t>(sum + lanes.of[0][i]);
    }
  };
  reduceRegion<L>(size, Adding(), sink, Image<const uint16_t>{pixels.data(), static_cast<int>(2 * pitch)});
  EXPECT_EQ(sums, expected) << size.width << "x" << size.height << " pixels of " << L::elements << ", gap " << gap;
}

template <class L>
void expectAllChannelSums() {
  for (const Place place : places) {
    for (int width = 1; width < 3 * 64 + 2; ++width) {
      const VemiSize size = {width, 1 + width % 4};
      expectChannelSums<L>(size, 0, place);
      expectChannelSums<L>(size, 3, place);
    }
    expectChannelSums<L>({5001, 3}, 1, place);
  }
}

TEST(ReduceRegion, EachElementCountsOnceForItsChannel) {
  expectAllChannelSums<C1>();
  expectAllChannelSums<C3>();
  expectAllChannelSums<C4>();
}

}  // namespace
