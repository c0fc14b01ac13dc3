// Rows that are written past the caches, without the images that are large enough for it: any length, beginning
// anywhere in a line.

#include "core/streaming.h"

#include <vector>

#include "core/map_region.h"
#include "row_cases.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Calls f(count, place) for rows that begin at each byte of two lines, and end on either side of whole blocks.
template <class F>
void forStreamedRows(ptrdiff_t blockItems, ptrdiff_t longest, const F& f) {
  for (ptrdiff_t slack = 0; slack < 2 * static_cast<ptrdiff_t>(laneAlignment); ++slack) {
    for (ptrdiff_t count = 0; count <= longest; count += count <= 2 * blockItems + 1 ? 1 : blockItems / 2 + 1) {
      f(count, Place{false, slack});
      if (::testing::Test::HasFatalFailure()) FAIL() << count << " items, " << slack << " bytes into a line";
    }
  }
}

// The items of a row are done in order, each once; blocks begin at multiples of the period, their outputs with a line.
template <int period>
void expectEachItemOnce() {
  constexpr ptrdiff_t items = period * static_cast<ptrdiff_t>(laneAlignment / sizeof(Vemi16u));
  forStreamedRows(items, 4 * items, [&](ptrdiff_t count, Place place) {
    const GuardedRow<Vemi16u> row(count, place);
    ptrdiff_t next = 0;
    const auto plain = [&](ptrdiff_t first, ptrdiff_t n) {
      ASSERT_TRUE(first == next && n >= 0);
      next += n;
    };
    const auto kernel = [&](Vemi16u* out) {
      ASSERT_EQ(out, row.data() + next);
      ASSERT_EQ(next % period, 0);
      ASSERT_EQ(reinterpret_cast<uintptr_t>(out) % laneAlignment, 0u);
      next += items;
    };
    forStreamedBlocks<items, period>(count, plain, kernel, Strand<Vemi16u>{row.data()});
    ASSERT_EQ(next, count);
  });
}

TEST(ForStreamedBlocks, EachItemOnceInPhase) {
  expectEachItemOnce<1>();
  expectEachItemOnce<3>();
  expectEachItemOnce<4>();
}

TEST(StreamElements, ConstantsStayInPhaseWithTheChannels) {
  forLayouts<C1, C3, C4>(AlsoWide(), [](auto element, auto layout) {
    using T = decltype(element);
    using L = decltype(layout);
    constexpr ptrdiff_t N = laneCount<T>;
    const GuardedRow<T> value(L::channels);
    const auto constant = value.original();
    const auto op = withConstants<L>(andNotLanes, value.data());
    for (ptrdiff_t slack = 0; slack < static_cast<ptrdiff_t>(laneAlignment); ++slack) {
      for (const ptrdiff_t width : {1, 2, 3, 5, 16, 17, 31, 100, 259}) {
        const ptrdiff_t count = width * L::elements;
        if (count > 20 * N) continue;
        const GuardedRow<T> src(count, {true, slack % 7}), dst(count, {false, slack});
        const auto from = src.original();
        detail::streamElements(count, op, dst.data(), static_cast<const T*>(src.data()));
        finishStreaming();
        ASSERT_TRUE(
            dst.holds(worked<L>(dst.original(), [&](size_t i) { return andNot(from[i], constant[i % L::elements]); })))
            << width << " pixels of " << L::elements << ", " << slack << " bytes into a line";
      }
    }
  });
}

}  // namespace
