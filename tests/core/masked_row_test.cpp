// Rows under a mask, against one pixel at a time.

#include "core/masked_row.h"

#include <vector>

#include "core/map_row.h"
#include "row_cases.h"

using namespace vemi;
using namespace vemi::test;

namespace {

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
        mapRowMasked<L>(width, mask.data(), eachVector(Identity()), copied.data(), src.data());
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

}  // namespace
