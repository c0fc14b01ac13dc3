// Rows between pixels and planes and between layouts, against one pixel at a time.

#include "core/interleave.h"

#include <utility>
#include <vector>

#include "row_cases.h"

using namespace vemi;
using namespace vemi::test;

namespace {

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
