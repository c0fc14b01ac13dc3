// vemiFilterMedian: the median of a rectangle with odd sides around each pixel. Rectangles of one pixel are copies,
// lines of up to five go by one network, squares of nine and twenty-five by two; all others by counts. Checks: null,
// size, step, mask size, anchor.

#include <algorithm>
#include <tuple>

#include "core/checks.h"
#include "core/exports.h"
#include "core/whole_region.h"
#include "core/windows.h"
#include "filter/median.h"
#include "filter/median_counts.h"

namespace vemi::filter {
namespace {

// ---- Squares ------------------------------------------------------------------------------------------------------

/// The columns of a window's rows in order, place by place: the least into the first of the sorted rows.
template <class T, class... Row>
HWY_NOINLINE void sortColumns(ptrdiff_t count, T* const* sorted, const Row*... row) {
  const Lanes<T> d;
  constexpr int side = sizeof...(Row);
  constexpr ptrdiff_t items = laneCount<T>;
  [&]<int... j>(std::integer_sequence<int, j...>) {
    const auto kernel = [=](auto... outAndPlace) HWY_ATTR {
      const std::tuple to(outAndPlace...);
      const ptrdiff_t i = std::get<side>(to);
      Vectors<hn::Vec<decltype(d)>, side> values = {{hn::LoadU(d, row + i)...}};
      exchange<sorting<side>>(values);
      (hn::StoreU(values.v[j], d, std::get<j>(to)), ...);
    };
    forWholeBlocks<items>(std::max(count, items), kernel, Strand<T>{sorted[j]}..., Places());
  }
  (std::make_integer_sequence<int, side>());
}

template <int side, int elements, class T>
struct MedianOfColumns {
  static constexpr int vectors = 1;
  std::array<const T*, side> sorted;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    using V = hn::Vec<D>;
    Vectors<V, side * side> values;
    unrolled<side * side>([&](auto k)
                              HWY_ATTR { values.v[k] = hn::LoadU(d, sorted[k / side] + i + k % side * elements); });
    return Vectors<V, 1>{{selected<medianOfColumns<side>>(values)}};
  }
};

template <int side, class L, class T>
VemiStatus medianOfSquare(Image<const T> image, Image<T> dst, VemiSize roiSize) {
  constexpr Window window = {side, side, side / 2, side / 2};
  const ptrdiff_t width = roiSize.width;
  const auto source = RowRing<T>::template ofSource<L>(window, width, false);
  const RowRing<T> sorted(side, windowElements<L>(width, window));
  return forBands(medianRows<L>(roiSize), roiSize.height, {.slice = roomOf(source, sorted)},
                  [=](int first, int rows, Memory own) {
                    const auto src = windowed<L>(image, window);
                    auto ownSource = source;
                    auto ownSorted = sorted;
                    placeRings(own, ownSource, ownSorted);
                    std::array<T*, side> columns;
                    for (T*& row : columns) row = ownSorted.turn();
                    const auto enter = [&](ptrdiff_t y) { ownSource.take(src.row(y)); };
                    const auto row = [&](ptrdiff_t y) {
                      const T* const* const in = ownSource.rows();
                      MedianOfColumns<side, L::elements, T> stage;
                      std::copy_n(columns.begin(), side, stage.sorted.begin());
                      [&]<int... j>(std::integer_sequence<int, j...>) {
                        sortColumns(ownSorted.elements(), columns.data(), in[j]...);
                      }
                      (std::make_integer_sequence<int, side>());
                      mapPlaces<alphaOf<L>>(width * L::elements, stage, dst.row(y));
                    };
                    forWindows(window, first, rows, enter, row);
                  });
}

// ---- The choice ---------------------------------------------------------------------------------------------------

VemiStatus checkOddSize(VemiSize mask) {
  return mask.width % 2 == 0 || mask.height % 2 == 0 ? vemiErrMaskSize : vemiOk;
}

template <class T, class L>
VemiStatus rectangle(Image<const T> src, Image<T> dst, VemiSize roiSize, VemiSize mask, VemiPoint anchor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), checkMaskSize(mask),
                                     checkOddSize(mask), checkAnchor(anchor, mask))) {
    return bad;
  }
  const Image<const T> centred = {
      src.row(mask.height / 2 - anchor.y) + (ptrdiff_t{mask.width} / 2 - anchor.x) * L::elements, src.step};
  const auto is = [&](int width, int height) { return mask.width == width && mask.height == height; };
  if (is(1, 1)) return copyRegion<L>(centred, dst, roiSize);
  if (is(3, 1)) return medianOfTaps<row3, L>(centred, dst, roiSize);
  if (is(5, 1)) return medianOfTaps<row5, L>(centred, dst, roiSize);
  if (is(1, 3)) return medianOfTaps<column3, L>(centred, dst, roiSize);
  if (is(1, 5)) return medianOfTaps<column5, L>(centred, dst, roiSize);
  if (is(3, 3)) return medianOfSquare<3, L>(centred, dst, roiSize);
  if (is(5, 5)) return medianOfSquare<5, L>(centred, dst, roiSize);
  const Image<const T> first = windowed<L>(src, Window::fromFirst(mask, anchor));
  return medianByCounts(MedianCall<T>{first, dst, roiSize, mask, L::elements, L::channels});
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define RECTANGLE ((VemiSize maskSize, VemiPoint anchor), (maskSize, anchor))

VEMI_DEFINE(vemiFilterMedian_8u_C1R, VEMI_SRC_DST(Vemi8u, RECTANGLE), rectangle<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMedian_8u_C3R, VEMI_SRC_DST(Vemi8u, RECTANGLE), rectangle<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMedian_8u_C4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), rectangle<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterMedian_8u_AC4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), rectangle<Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterMedian_16s_C1R, VEMI_SRC_DST(Vemi16s, RECTANGLE), rectangle<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMedian_16s_C3R, VEMI_SRC_DST(Vemi16s, RECTANGLE), rectangle<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMedian_16s_C4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), rectangle<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterMedian_16s_AC4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), rectangle<Vemi16s, AC4>)
