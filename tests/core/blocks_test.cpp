// The drivers that own a row's loop and end. Each is run at every width from none to a little over three blocks, beside
// unmapped pages, in place where that is allowed, against one-item-at-a-time references.

#include "core/blocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "vemi/types.h"

#include "core/interleave.h"
#include "core/map_region.h"
#include "core/map_row.h"
#include "core/masked_row.h"
#include "support/for_types.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Calls f(width, place) for the widths that meet every way of cutting a row into blocks.
template <class F>
void forRows(ptrdiff_t blockItems, const F& f) {
  for (const Place place : places) {
    for (ptrdiff_t width = 0; width <= 3 * blockItems + 1; ++width) {
      f(width, place);
      if (::testing::Test::HasFatalFailure()) {
        FAIL() << "width " << width << ", end " << place.atEnd << ", slack " << place.slack;
      }
    }
  }
}

// ---- forBlocks ----------------------------------------------------------------------------------------------------

constexpr ptrdiff_t blockItems = 8;

// A kernel that is not idempotent on its own output, on strands of several element sizes and items. The second element
// of each triple is left alone.
TEST(ForBlocks, EveryItemIsHandledAsIfAlone) {
  const auto handle = [](size_t i, uint32_t* sum, const uint32_t* old, const Vemi8u* pair, Vemi16u* triple) {
    sum[i] = old[i] * 3 + pair[2 * i];
    triple[3 * i] = pair[2 * i + 1];
    triple[3 * i + 2] = static_cast<Vemi16u>(sum[i]);
  };
  forRows(blockItems, [&](ptrdiff_t count, Place place) {
    const GuardedRow<uint32_t> sums(count, place);
    const GuardedRow<Vemi8u> pairs(2 * count, place);
    const GuardedRow<Vemi16u> triples(3 * count, place);
    const auto kernel = [&](uint32_t* sum, const uint32_t* old, const Vemi8u* pair, Vemi16u* triple) {
      for (size_t i = 0; i < blockItems; ++i) handle(i, sum, old, pair, triple);
    };
    forBlocks<blockItems>(count, kernel, Strand<uint32_t>{sums.data()}, Strand<const uint32_t>{sums.data()},
                          Strand<const Vemi8u, 2>{pairs.data()}, Strand<Vemi16u, 3>{triples.data()});
    auto sum = sums.original();
    auto triple = triples.original();
    const auto pair = pairs.original();
    for (size_t i = 0; i < sum.size(); ++i) handle(i, sum.data(), sum.data(), pair.data(), triple.data());
    ASSERT_TRUE(sums.holds(sum) && triples.holds(triple) && pairs.untouched());
  });
}

TEST(ForBlocks, AKernelMeetsEveryItemOfTheRowAndNoOther) {
  forRows(blockItems, [](ptrdiff_t count, Place place) {
    std::vector<Vemi16u> numbers(static_cast<size_t>(2 * count));
    for (size_t i = 0; i < numbers.size(); ++i) numbers[i] = static_cast<Vemi16u>(i / 2 + 1);
    const GuardedRow<Vemi16u> row(numbers, place);
    std::set<ptrdiff_t> met;
    ptrdiff_t blocks = 0;
    const auto kernel = [&](const Vemi16u* in) {
      blocks += 1;
      for (ptrdiff_t i = 0; i < blockItems; ++i) {
        ASSERT_EQ(in[2 * i], in[2 * i + 1]);
        met.insert(in[2 * i]);
      }
    };
    forBlocks<blockItems>(count, kernel, Strand<const Vemi16u, 2>{row.data()});
    ASSERT_EQ(blocks, (count + blockItems - 1) / blockItems);
    ASSERT_EQ(met.size(), static_cast<size_t>(count));
    if (count > 0) {
      ASSERT_TRUE(*met.begin() == 1 && *met.rbegin() == count);
    }
  });
}

// ---- Element-wise rows --------------------------------------------------------------------------------------------

/// ~a & b on the bytes of two elements: tells its arguments apart, and works alike on all types.
template <class T>
T andNot(T a, T b) {
  unsigned char x[sizeof(T)], y[sizeof(T)];
  std::memcpy(x, &a, sizeof a);
  std::memcpy(y, &b, sizeof b);
  for (size_t i = 0; i < sizeof(T); ++i) y[i] = static_cast<unsigned char>(~x[i] & y[i]);
  std::memcpy(&b, y, sizeof b);
  return b;
}

constexpr auto andNotLanes = [](auto, auto a, auto b) { return hn::AndNot(a, b); };

/// Calls f(element, layout) for the layouts given.
template <class... L, class... T, class F>
void forLayouts(std::tuple<T...>, const F& f) {
  forTypes<T...>([&](auto element) { (f(element, L()), ...); });
}

using Elements = std::tuple<Vemi8u, Vemi16s, Vemi32f>;
using AlsoWide = std::tuple<Vemi8u, Vemi16s, Vemi32s, Vemi32f, int64_t>;  // complex elements are wide lanes

/// `old` with element i of each worked channel replaced by f(i).
template <class L, class T, class F>
std::vector<T> worked(std::vector<T> old, const F& f) {
  for (size_t i = 0; i < old.size(); ++i) {
    if (i % L::elements < L::channels) old[i] = f(i);
  }
  return old;
}

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
      mapRow<L>(width, eachVector(Same()), dst.data(), a.data());
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

// ---- Rows under a mask --------------------------------------------------------------------------------------------

/// Masks of all zeros, of no zero, of random bytes of which most are neither 0 nor 255, and of blocks of each kind.
std::vector<Vemi8u> maskOf(int kind, ptrdiff_t width, ptrdiff_t blockPixels) {
  std::vector<Vemi8u> mask(static_cast<size_t>(width));
  for (size_t x = 0; x < mask.size(); ++x) {
    const auto byte = static_cast<Vemi8u>(nextRandom() | 1);
    const Vemi8u some = nextRandom() % 2 == 0 ? byte : Vemi8u{0};
    const Vemi8u ofBlock[] = {0, byte, some};
    mask[x] = ofBlock[kind < 3 ? static_cast<size_t>(kind) : x / static_cast<size_t>(blockPixels) % 3];
  }
  return mask;
}

TEST(MaskedRows, OnlyChosenPixelsChange) {
  forLayouts<C1, C3, C4, AC4>(Elements(), [](auto element, auto layout) {
    using T = decltype(element);
    using L = decltype(layout);
    const GuardedRow<T> value(L::channels);
    const auto constant = value.original();
    const auto op = withConstants<L>(andNotLanes, value.data());
    const auto fill = constantPixel<L>(value.data());
    forRows(laneCount<T>, [&](ptrdiff_t width, Place place) {
      for (int kind = 0; kind < 4; ++kind) {
        const ptrdiff_t count = width * L::elements;
        const GuardedRow<Vemi8u> mask(maskOf(kind, width, laneCount<T>), place);
        const GuardedRow<T> src(count, place), copied(count, place), filled(count, place);
        const auto chosen = mask.original();
        const auto from = src.original();
        const auto select = [&](const std::vector<T>& old, const auto& f) {
          return worked<L>(old, [&](size_t i) { return chosen[i / L::elements] != 0 ? f(i) : old[i]; });
        };
        const auto constantOf = [&](size_t i) { return constant[i % L::elements]; };
        mapRowMasked<L>(width, mask.data(), eachVector(Same()), copied.data(), src.data());
        ASSERT_TRUE(copied.holds(select(copied.original(), [&](size_t i) { return from[i]; })) && src.untouched());
        mapRowMasked<L>(width, mask.data(), fill, filled.data());
        ASSERT_TRUE(filled.holds(select(filled.original(), constantOf)));
        mapRowMasked<L>(width, mask.data(), op, src.data(), src.data());
        ASSERT_TRUE(src.holds(select(from, [&](size_t i) { return andNot(from[i], constantOf(i)); }))) << "in place";
        ASSERT_TRUE(mask.untouched());
      }
    });
  });
}

// ---- Pixels and planes --------------------------------------------------------------------------------------------

/// Every `stride`-th element from `first` on.
template <class T>
std::vector<T> strided(const std::vector<T>& row, size_t first, size_t stride) {
  std::vector<T> plane;
  for (size_t i = first; i < row.size(); i += stride) plane.push_back(row[i]);
  return plane;
}

template <class T, size_t... c>
void splitAndInterleave(std::index_sequence<c...>) {
  constexpr ptrdiff_t channels = sizeof...(c);
  forRows(laneCount<T>, [](ptrdiff_t width, Place place) {
    const GuardedRow<T> pixels(channels * width, place), interleaved(channels * width, place);
    const GuardedRow<T> plane[] = {(void(c), GuardedRow<T>(width, place))...};
    splitRow(width, pixels.data(), plane[c].data()...);
    ASSERT_TRUE((plane[c].holds(strided(pixels.original(), c, channels)) && ...));
    interleaveRow(width, interleaved.data(), plane[c].data()...);
    ASSERT_TRUE(interleaved.holds(pixels.original()) && pixels.untouched());
  });
}

TEST(Interleave, SplittingUndoesInterleaving) {
  forTypes<Vemi8u, Vemi16s, Vemi32f>([](auto element) {
    splitAndInterleave<decltype(element)>(std::make_index_sequence<2>());
    splitAndInterleave<decltype(element)>(std::make_index_sequence<3>());
    splitAndInterleave<decltype(element)>(std::make_index_sequence<4>());
  });
}

TEST(Interleave, BetweenThreeAndFourChannelsTheAlphaStays) {
  forTypes<Vemi8u, Vemi16s, Vemi32f>([](auto element) {
    using T = decltype(element);
    forRows(laneCount<T>, [](ptrdiff_t width, Place place) {
      const GuardedRow<T> four(4 * width, place), three(3 * width, place), dst3(3 * width, place),
          dst4(4 * width, place);
      auto expected3 = dst3.original(), expected4 = dst4.original();
      for (size_t x = 0; x < static_cast<size_t>(width); ++x) {
        for (size_t c = 0; c < 3; ++c) {
          expected3[3 * x + c] = four.original()[4 * x + c];
          expected4[4 * x + c] = three.original()[3 * x + c];
        }
      }
      extractColourRow(width, four.data(), dst3.data());
      ASSERT_TRUE(dst3.holds(expected3) && four.untouched());
      insertColourRow(width, three.data(), dst4.data());
      ASSERT_TRUE(dst4.holds(expected4) && three.untouched());
    });
  });
}

// A row of one channel ends with that channel's last element, which lies against the unmapped page.
template <int channels, class T>
void singleChannels() {
  forRows(laneCount<T>, [](ptrdiff_t width, Place place) {
    if (width == 0) return;
    const ptrdiff_t spread = channels * (width - 1) + 1;
    const GuardedRow<T> pixels(spread, place), plane(width, place), extracted(width, place);
    const GuardedRow<T> inserted(spread, place), moved(spread, place);
    const auto insertedInto = [&](const GuardedRow<T>& dst, const std::vector<T>& elements) {
      auto expected = dst.original();
      for (size_t x = 0; x < elements.size(); ++x) expected[x * channels] = elements[x];
      return expected;
    };
    const auto wanted = strided(pixels.original(), 0, channels);
    extractChannelRow<channels>(width, pixels.data(), extracted.data());
    ASSERT_TRUE(extracted.holds(wanted));
    copyChannelRow<1, channels>(width, plane.data(), inserted.data());
    ASSERT_TRUE(inserted.holds(insertedInto(inserted, plane.original())));
    copyChannelRow<channels, channels>(width, pixels.data(), moved.data());
    ASSERT_TRUE(moved.holds(insertedInto(moved, wanted)) && pixels.untouched());
  });
}

TEST(Interleave, OneChannelMovesAlone) {
  forTypes<Vemi8u, Vemi16s, Vemi32f>([](auto element) {
    singleChannels<3, decltype(element)>();
    singleChannels<4, decltype(element)>();
  });
}

}  // namespace
