// Element-wise rows and regions, in place and not, against one element at a time.

#include "core/map_row.h"

#include <algorithm>
#include <vector>

#include "core/map_region.h"
#include "row_cases.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// At least the pixels of a block.
template <class T, class L>
constexpr ptrdiff_t pixelsPerBlock = (L::elements == 3 ? 3 : 2) * laneCount<T> / L::elements + 1;

TEST(MapRow, AppliesTheOperationToEachWorkedElement) {
  forLayouts<C1, C2, C3, C4, AC4>(AlsoWide(), [](auto element, auto layout) {
    using T = decltype(element);
    using L = decltype(layout);
    forRows(pixelsPerBlock<T, L>, [](ptrdiff_t width, Place place) {
      const ptrdiff_t count = width * L::elements;
      const GuardedRow<T> a(count, place), b(count, place), dst(count, place);
      const auto first = a.original(), second = b.original(), old = dst.original();
      const auto both = [&](size_t i) { return andNot(first[i], second[i]); };
      mapRow<L>(width, eachVector(andNotLanes), dst.data(), a.data(), b.data());
      ASSERT_TRUE(dst.holds(worked<L>(old, both)) && a.untouched() && b.untouched());
      mapRow<L>(width, eachVector(Identity()), dst.data(), a.data());
      ASSERT_TRUE(dst.holds(worked<L>(old, [&](size_t i) { return first[i]; })) && a.untouched()) << "one source";
      mapRow<L>(width, eachVector(andNotLanes), b.data(), a.data(), b.data());
      ASSERT_TRUE(b.holds(worked<L>(second, both)) && a.untouched()) << "in place of the second source";
      const GuardedRow<T> c(second, place);
      mapRow<L>(width, eachVector(andNotLanes), a.data(), a.data(), c.data());
      ASSERT_TRUE(a.holds(worked<L>(first, both))) << "in place of the first source";
    });
  });
}

// The constants lie against an unmapped page: no more of them than the worked channels may be read.
TEST(MapRow, ConstantsStayInPhaseWithTheChannels) {
  forLayouts<C1, C2, C3, C4, AC4>(AlsoWide(), [](auto element, auto layout) {
    using T = decltype(element);
    using L = decltype(layout);
    const GuardedRow<T> value(L::channels);
    const auto constant = value.original();
    const auto op = withConstants<L>(andNotLanes, value.data());
    const auto fill = constantPixel<L>(value.data());
    forRows(pixelsPerBlock<T, L>, [&](ptrdiff_t width, Place place) {
      const ptrdiff_t count = width * L::elements;
      const GuardedRow<T> src(count, place), mapped(count, place), filled(count, place);
      const auto from = src.original();
      const auto withConstant = [&](size_t i) { return andNot(from[i], constant[i % L::elements]); };
      mapRow<L>(width, op, mapped.data(), src.data());
      ASSERT_TRUE(mapped.holds(worked<L>(mapped.original(), withConstant)) && src.untouched());
      mapRow<L>(width, op, src.data(), src.data());
      ASSERT_TRUE(src.holds(worked<L>(from, withConstant))) << "in place";
      mapRow<L>(width, fill, filled.data());
      ASSERT_TRUE(filled.holds(worked<L>(filled.original(), [&](size_t i) { return constant[i % L::elements]; })));
    });
  });
}

TEST(MapRow, SetsOfConstantsKeepTheirOrder) {
  constexpr auto twice = [](auto, auto v, auto c0, auto c1) HWY_ATTR { return hn::AndNot(hn::AndNot(v, c0), c1); };
  forLayouts<C1, C3, C4, AC4>(Elements(), [&](auto element, auto layout) {
    using T = decltype(element);
    using L = decltype(layout);
    const GuardedRow<T> first(L::channels), second(L::channels);
    const auto c0 = first.original(), c1 = second.original();
    const auto op = withConstants<L>(twice, first.data(), second.data());
    forRows(pixelsPerBlock<T, L>, [&](ptrdiff_t width, Place place) {
      const GuardedRow<T> row(width * L::elements, place);
      const auto before = row.original();
      mapRow<L>(width, op, row.data(), row.data());
      ASSERT_TRUE(row.holds(worked<L>(
          before, [&](size_t i) { return andNot(andNot(before[i], c0[i % L::elements]), c1[i % L::elements]); })));
    });
  });
}

// A region whose traffic asks for streaming, with rows that begin anywhere. Threads must not show.
TEST(MapRegion, AStreamedRegionEqualsItsRows) {
  constexpr VemiSize size = {2731, 3100};
  constexpr int step = 3 * size.width + 5;
  static_assert(ptrdiff_t{6} * size.width * size.height >= streamedTraffic);
  const GuardedRow<Vemi8u> src(ptrdiff_t{step} * size.height), dst(ptrdiff_t{step} * size.height, {true, 7});
  const Vemi8u value[3] = {0x0f, 0xf0, 0x3c};
  mapRegion<C3>(TeamRows{.small = false}, size, withConstants<C3>(andNotLanes, value), Image<Vemi8u>{dst.data(), step},
                Image<const Vemi8u>{src.data(), step});
  const auto from = src.original();
  auto expected = dst.original();
  for (size_t y = 0; y < size_t{size.height}; ++y) {
    for (size_t i = 0; i < size_t{3 * size.width}; ++i)
      expected[y * step + i] = andNot(from[y * step + i], value[i % 3]);
  }
  EXPECT_TRUE(dst.holds(expected));
}

TEST(MapRegion, AWatchedRegionIsWholeAndGivesItsFirstWarning) {
  constexpr VemiSize size = {50, 4};
  const GuardedRow<Vemi16s> image(ptrdiff_t{size.width} * size.height);
  const Image<Vemi16s> rows = {image.data(), size.width * int{sizeof(Vemi16s)}};
  const auto before = image.original();
  int watched = 0;
  const auto watch = [&](const Vemi16s* row, ptrdiff_t elements) -> VemiStatus {
    EXPECT_EQ(row, image.data() + watched * size.width);
    EXPECT_EQ(elements, size.width);
    EXPECT_TRUE(std::equal(row, row + elements, before.begin() + watched * size.width)) << "already written";
    const VemiStatus ofRow[] = {vemiOk, vemiWarnLnZero, vemiWarnDivByZero, vemiOk};
    return ofRow[watched++];
  };
  const Vemi16s value = 0x1234;
  const auto op = withConstants<C1>(andNotLanes, &value);
  EXPECT_EQ(mapRegionWatched<C1>(size, op, watch, rows, Image<const Vemi16s>{rows.first, rows.step}), vemiWarnLnZero);
  EXPECT_TRUE(image.holds(worked<C1>(before, [&](size_t i) { return andNot(before[i], value); })));
}

}  // namespace
