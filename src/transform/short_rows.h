// Rows of images that are too short to be lines, eight at once: transposed into groups of lanes and back.
#pragma once

#include <algorithm>

#include "core/element.h"
#include "core/image.h"
#include "core/map_row.h"
#include "signal/fft_columns.h"
#include "signal/transposed.h"

namespace vemi::transform {

/// Columns of a large image are as many pages as they have rows: what is wanted from a row soon is asked for at once.
inline constexpr ptrdiff_t rowsAhead = 8;
template <class T>
HWY_INLINE void askForRow(Image<T> image, ptrdiff_t y, ptrdiff_t x) {
  __builtin_prefetch(image.row(y) + x);
}

/// bitsReversed(k, order) for k below 2^order, which is below the shortest line's.
inline ptrdiff_t placeOf(ptrdiff_t k, int order) {
  constexpr struct Table {
    uint8_t reversed[1 << (signal::shortestLineOrder - 1)];
    constexpr Table() : reversed() {
      for (int i = 0; i < 1 << (signal::shortestLineOrder - 1); ++i) {
        for (int bit = 0; bit < signal::shortestLineOrder - 1; ++bit) {
          reversed[i] = static_cast<uint8_t>(reversed[i] << 1 | (i >> bit & 1));
        }
      }
    }
  } table;
  return table.reversed[k] >> (signal::shortestLineOrder - 1 - order);
}

/// Rows that a loop runs over eight at a time; behind the last one it stands again.
template <class T>
struct EightRows {
  T* row[8];

  /// rowOf(i) for the rows i = first, first + 1, ...
  template <class RowOf>
  EightRows(ptrdiff_t first, ptrdiff_t count, const RowOf& rowOf) {
    for (ptrdiff_t i = 0; i < 8; ++i) row[i] = rowOf(std::min(first + i, count - 1));
  }

  /// place(e, first, v): elements e of the rows from the first on. Rows have `floats` elements.
  template <class Place>
  HWY_INLINE void load(ptrdiff_t floats, const Place& place) const {
    const signal::ColumnGroups::D d;
    const ptrdiff_t whole = floats & ~ptrdiff_t{7};
    for (ptrdiff_t e = 0; e < whole; e += 8) {
      signal::transposeLoaded8([&](auto dOf, auto i, auto first)
                                   HWY_ATTR { return hn::LoadU(dOf, row[i] + e + first); },
                               [&](auto i, auto first, auto v) HWY_ATTR { place(e + i, first, v); });
    }
    for (ptrdiff_t e = whole; e < floats; ++e) {
      float lane[8];
      for (int i = 0; i < 8; ++i) lane[i] = elementOf(row[i] + e);
      unrolled<signal::ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        place(e, k * signal::ColumnGroups::N, hn::LoadU(d, lane + k * signal::ColumnGroups::N));
      });
    }
  }

  /// of(d, e, first) gives them back from element `start` on, a multiple of 8, in lanes of d: in halves of vectors, or
  /// whole. With `alpha` each fourth element stays.
  template <Alpha alpha, bool inHalves = true, class Of>
  HWY_INLINE void store(ptrdiff_t floats, const Of& of, ptrdiff_t start = 0) const {
    const signal::ColumnGroups::D d;
    const ptrdiff_t whole = floats & ~ptrdiff_t{7};
    for (ptrdiff_t e = start; e < whole; e += 8) {
      const auto put = [&](auto i, auto first, auto v) HWY_ATTR {
        float* const to = row[i] + e + first;
        if constexpr (alpha == Alpha::kept) v = hn::IfThenElse(colourLanes(d), v, hn::LoadU(d, to));
        hn::StoreU(v, d, to);
      };
      if constexpr (inHalves) {
        signal::transposeLoaded8([&](auto dOf, auto i, auto first) HWY_ATTR { return of(dOf, e + i, first); }, put);
      } else {
        signal::transpose8([&](auto i, auto first) HWY_ATTR { return of(d, e + i, first); }, put);
      }
    }
    for (ptrdiff_t e = whole; e < floats; ++e) {
      if (alpha == Alpha::kept && e % 4 == 3) continue;
      float lane[8];
      unrolled<signal::ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        hn::StoreU(of(d, e, k * signal::ColumnGroups::N), d, lane + k * signal::ColumnGroups::N);
      });
      for (int i = 0; i < 8; ++i) setElement(row[i] + e, lane[i]);
    }
  }
};

}  // namespace vemi::transform
