// What the forms of the median share: how their windows lie, who works on them, and the windows of up to nine pixels
// in lines and crosses.
#pragma once

#include <array>
#include <utility>

#include "core/map_row.h"
#include "core/parallel.h"
#include "filter/selection_networks.h"
#include "vemi/filter.h"

namespace vemi::filter {

/// Forms that keep the alpha are shared by a team, but for small regions.
template <class L>
auto medianRows(VemiSize roiSize) {
  if constexpr (L::keepsAlpha) {
    return TeamRows{Vemi64s{roiSize.width} * roiSize.height <= 4096};
  } else {
    return CallerRows();
  }
}

/// A pixel of a window, counted from the one in its centre.
struct Neighbour {
  int x, y;
};

inline constexpr std::array<Neighbour, 3> row3 = {{{-1, 0}, {0, 0}, {1, 0}}};
inline constexpr std::array<Neighbour, 5> row5 = {{{-2, 0}, {-1, 0}, {0, 0}, {1, 0}, {2, 0}}};
inline constexpr std::array<Neighbour, 3> column3 = {{{0, -1}, {0, 0}, {0, 1}}};
inline constexpr std::array<Neighbour, 5> column5 = {{{0, -2}, {0, -1}, {0, 0}, {0, 1}, {0, 2}}};
inline constexpr std::array<Neighbour, 5> cross3 = {{{0, -1}, {-1, 0}, {0, 0}, {1, 0}, {0, 1}}};
inline constexpr std::array<Neighbour, 9> cross5 = {
    {{0, -2}, {0, -1}, {-2, 0}, {-1, 0}, {0, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 2}}};

template <int count>
struct MedianOf {
  template <class D, class... V>
  HWY_INLINE hn::Vec<D> operator()(D, V... v) const {
    return selected<median<count>>(Vectors<hn::Vec<D>, count>{{v...}});
  }
};

/// Reads the pixels of the taps and no others.
template <const auto& taps, class L, class T>
VemiStatus medianOfTaps(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  constexpr int count = static_cast<int>(taps.size());
  medianRows<L>(roiSize).run(roiSize.height, [&](ptrdiff_t y) {
    [&]<int... k>(std::integer_sequence<int, k...>) {
      mapRow<L>(roiSize.width, eachVector < count == 9 ? 1 : 2 > (MedianOf<count>()), dst.row(y),
                (src.row(y + taps[k].y) + ptrdiff_t{taps[k].x} * L::elements)...);
    }
    (std::make_integer_sequence<int, count>());
  });
  return vemiOk;
}

}  // namespace vemi::filter
