// Sums over all windows of a patch, of its elements and of their squares, row by row of windows. Sums of columns move
// down in double precision; in a row, four windows at a time move on by sums of four columns.
#pragma once

#include "core/lanes.h"

namespace vemi::measure {

struct PatchRows {
  const float* first;  // of a row of windows
  ptrdiff_t stride;
};

/// One kind of sum. Rows are as long as the patch's stride.
struct WindowSums {
  double *columns, *fours, *windows;

  static constexpr int rows = 3;  // of memory
  WindowSums(double* memory, ptrdiff_t stride)
      : columns(memory), fours(memory + stride), windows(memory + 2 * stride) {}

  /// The sums of the columns for the row y of windows, which has those of the row above it. `term` is a function of an
  /// element.
  template <class Term>
  HWY_INLINE void enter(ptrdiff_t y, PatchRows patch, ptrdiff_t height, const Term& term) const {
    const Lanes<double> d;
    const hn::Rebind<float, Lanes<double>> df;
    const float* const entering = patch.first + (height - 1) * patch.stride;
    for (ptrdiff_t x = 0; x < patch.stride; x += laneCount<double>) {
      const auto of = [&](const float* row) HWY_ATTR { return term(hn::PromoteTo(d, hn::LoadU(df, row + x))); };
      auto sum = hn::Zero(d);
      if (y == 0) {
        for (ptrdiff_t j = 0; j < height; ++j) sum = hn::Add(sum, of(patch.first + j * patch.stride));
      } else {
        sum = hn::Add(hn::LoadU(d, columns + x), hn::Sub(of(entering), of(patch.first - patch.stride)));
      }
      hn::StoreU(sum, d, columns + x);
    }
  }

  /// `count` windows and some more, up to whole vectors of any length.
  HWY_INLINE void makeWindows(ptrdiff_t width, ptrdiff_t count) const {
    const Lanes<double> d;
    const auto column = [&](ptrdiff_t x) HWY_ATTR { return hn::LoadU(d, columns + x); };
    const ptrdiff_t end = (count + 15) / 16 * 16;
    for (ptrdiff_t x = 0; x < end + width; x += laneCount<double>) {
      hn::StoreU(hn::Add(hn::Add(column(x), column(x + 1)), hn::Add(column(x + 2), column(x + 3))), d, fours + x);
    }
    const hn::CappedTag<double, 4> d4;
    constexpr int N = static_cast<int>(hn::MaxLanes(d4));
    unrolled<4 / N>([&](auto k) HWY_ATTR {
      const auto load = [&](const double* from, ptrdiff_t x) HWY_ATTR { return hn::LoadU(d4, from + x + k * N); };
      auto sum = hn::Zero(d4);
      ptrdiff_t i = 0;
      for (; i + 4 <= width; i += 4) sum = hn::Add(sum, load(fours, i));
      for (; i < width; ++i) sum = hn::Add(sum, load(columns, i));
      hn::StoreU(sum, d4, windows + k * N);
      for (ptrdiff_t x = 0; x + 4 < end; x += 4) {
        sum = hn::Add(sum, hn::Sub(load(fours, x + width), load(fours, x)));
        hn::StoreU(sum, d4, windows + x + 4 + k * N);
      }
    });
  }

  /// Of a vector of floats' places.
  template <class F>
  HWY_INLINE auto asFloats(ptrdiff_t x, const F& f) const {
    const Lanes<float> d;
    const hn::Half<Lanes<float>> dHalf;
    const auto half = [&](ptrdiff_t at)
                          HWY_ATTR { return hn::DemoteTo(dHalf, f(at, hn::LoadU(Lanes<double>(), windows + at))); };
    return hn::Combine(d, half(x + laneCount<double>), half(x));
  }
};

}  // namespace vemi::measure
