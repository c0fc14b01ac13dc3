// Transforms of several lines at once, whose numbers stand side by side in lanes: 8 columns of an image, or 8 rows that
// were transposed.
#pragma once

#include <bit>

#include "core/inlined.h"
#include "signal/fft_lanes.h"

namespace vemi::signal {

using ColumnGroups = Groups<AcrossLines::width>;

/// The transforms of `points` numbers that all lines end with: store(place, frequency, k, numbers).
template <template <int> class Short, int points, class Store>
HWY_INLINE void endColumnsBy(ColumnGroups data, int order, const Store& store) {
  constexpr int bits = std::bit_width(unsigned{points}) - 1;
  const ptrdiff_t count = (ptrdiff_t{1} << order) / points;
  for (ptrdiff_t first = 0; first < count; ++first) {
    const ptrdiff_t i = bitsReversed(first, order - bits);
    unrolled<ColumnGroups::vectors>([&](auto k) VEMI_INLINED {
      ColumnGroups::Numbers z[points];
      unrolled<points>([&](auto n) HWY_ATTR { z[n] = data.load(i * points + n, k); });
      Short<points>::run(z);
      unrolled<points>([&](auto n) HWY_ATTR { store(i * points + n, first + bitsReversed(n, bits) * count, k, z[n]); });
    });
  }
}

/// Those by Short<2> to Short<16> that are left of 2^order numbers of each line.
template <template <int> class Short, class Store>
HWY_INLINE void endColumns(ColumnGroups data, int order, const Store& store) {
  if (order == 0) {
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR { store(0, 0, k, data.load(0, k)); });
  } else if (order == 1) {
    endColumnsBy<Short, 2>(data, order, store);
  } else if (order == 2) {
    endColumnsBy<Short, 4>(data, order, store);
  } else if (order % 2 != 0) {
    endColumnsBy<Short, 8>(data, order, store);
  } else {
    endColumnsBy<Short, 16>(data, order, store);
  }
}

/// 2^order numbers of each line: load(group, k) gives them, and store(place, frequency, k, numbers) takes the results;
/// it may write to group `place` of `data`.
template <template <int> class Short = ShortTransform, class Load, class Store>
HWY_INLINE void transformColumns(ColumnGroups data, const Roots& roots, int order, const Load& load,
                                 const Store& store) {
  if (order < 5) {
    for (ptrdiff_t group = 0; group < ptrdiff_t{1} << order; ++group) {
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR { data.store(group, k, load(group, k)); });
    }
  } else {
    levelByFour<AcrossLines>(data, roots, order, load);
    for (ptrdiff_t i = 0; i < 4; ++i) levelsByFour<AcrossLines>(data.from(i << (order - 2)), roots, order - 2, 4);
  }
  endColumns<Short>(data, order, store);
}

/// The same in place.
template <template <int> class Short = ShortTransform>
HWY_INLINE void transformColumns(ColumnGroups data, const Roots& roots, int order) {
  levelsByFour<AcrossLines>(data, roots, order, 4);
  endColumns<Short>(data, order, [&](ptrdiff_t place, ptrdiff_t, auto k, ColumnGroups::Numbers z) HWY_ATTR {
    data.store(place, k, z);
  });
}

}  // namespace vemi::signal
