// The driver that owns a row's loop and end, at every width from none to a little over three blocks, beside unmapped
// pages, against a reference that takes one item at a time.

#include "core/blocks.h"

#include <set>
#include <vector>

#include "row_cases.h"

using namespace vemi;
using namespace vemi::test;

namespace {

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

// A row's function that depends on the place of an element in its pixel, and leaves the pixel's last one alone.
template <ptrdiff_t items, int period>
void expectShortRows() {
  const auto handle = [](ptrdiff_t i, Vemi16u* out, const Vemi8u* in, int constant) {
    const ptrdiff_t channel = i % period;
    if (channel != period - 1) out[i] = static_cast<Vemi16u>(in[i] * (channel + 1) + constant);
  };
  forRows(items / period, [&](ptrdiff_t pixels, Place place) {
    const ptrdiff_t count = pixels * period;
    if (count >= items) return;
    const GuardedRow<Vemi8u> source(count, place);
    const GuardedRow<Vemi16u> destination(count, place);
    const auto row = [](const void* constant, Vemi16u* out, const Vemi8u* in) {
      for (ptrdiff_t i = 0; i < items; ++i) decltype(handle)()(i, out, in, *static_cast<const int*>(constant));
    };
    const int constant = 1000;
    shortRow<items, period>(count, row, constant, Strand<Vemi16u>{destination.data()},
                            Strand<const Vemi8u>{source.data()});
    auto expected = destination.original();
    const auto in = source.original();
    for (ptrdiff_t i = 0; i < count; ++i) handle(i, expected.data(), in.data(), constant);
    ASSERT_TRUE(destination.holds(expected) && source.untouched());
  });
}

TEST(ShortRow, EveryItemIsHandledInItsPlace) {
  expectShortRows<64, 4>();
  expectShortRows<24, 3>();
  expectShortRows<12, 4>();  // no whole pixels in half a block
}

}  // namespace
