// The transform of one long line, 2^8 complex numbers and more, in place in as much memory as the line has.
//
// The levels run on groups of 16 numbers until what is left are transforms of 16 numbers, one in each group. These are
// done a tile at a time: 16 groups whose results are 16 runs of 16 neighbouring frequencies. Tile q, the groups q,
// q + G, ..., q + 15 G for G tiles, gives what belongs to tile bitsReversed(q), so that tiles change places by twos.
#pragma once

#include "core/inlined.h"
#include "signal/fft_lanes.h"
#include "signal/transposed.h"

namespace vemi::signal {

using LineGroups = Groups<AlongLine::width>;

/// All levels but the last transforms of 16: from load(group, k) to `line`, which may be where it loads from.
template <class Load>
HWY_INLINE void lineLevels(LineGroups line, const Roots& roots, int order, const Load& load) {
  const bool byTwo = order % 2 != 0;
  if (byTwo) {
    levelByTwo<AlongLine>(line, roots, order, load);
  } else {
    levelByFour<AlongLine>(line, roots, order, load);
  }
  const int parts = byTwo ? 2 : 4, left = order - (byTwo ? 1 : 2);
  for (ptrdiff_t i = 0; i < parts; ++i) {
    levelsByFour<AlongLine>(line.from(i << (left - AlongLine::groupOrder)), roots, left, AlongLine::groupOrder);
  }
}

/// Transforms of `points` numbers, one to a lane: into z, its places being frequencies with their bits reversed, from
/// load(lane, k), which gives vectors of a lane's numbers.
template <int points, class V, class Load>
HWY_INLINE void transformAcross(ComplexLanes<V>* z, const Load& load) {
  const hn::DFromV<V> d;
  constexpr int N = static_cast<int>(hn::MaxLanes(hn::DFromV<V>()));
  unrolled<points / N>([&](auto k) VEMI_INLINED {
    V re[N], im[N];
    unrolled<N>([&](auto lane) VEMI_INLINED {
      const ComplexLanes<V> numbers = load(lane, k);
      re[lane] = numbers.re;
      im[lane] = numbers.im;
    });
    transpose(d, re);
    transpose(d, im);
    unrolled<N>([&](auto i) HWY_ATTR { z[k * N + i] = {re[i], im[i]}; });
  });
  PreciseTransform<points>::run(z);
}

/// A tile whose groups lie `distance` groups apart: store(run, lane, numbers) for each vector of the 16 runs.
template <class Store>
HWY_INLINE void lineTile(LineGroups tile, ptrdiff_t distance, const Store& store) {
  constexpr int reversed[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};
  for (int first = 0; first < 16; first += static_cast<int>(LineGroups::N)) {
    LineGroups::Numbers z[16];
    transformAcross<16>(z, [&](auto lane, auto k) HWY_ATTR { return tile.load(reversed[first + lane] * distance, k); });
    unrolled<16>([&](auto run) HWY_ATTR { store(run, first, z[reversed[run]]); });
  }
}

/// The transforms of 16 that a line ends with: store(frequency, numbers) for each vector of frequencies.
template <class Store>
HWY_INLINE void endLine(LineGroups line, int order, const Store& store) {
  const ptrdiff_t tiles = ptrdiff_t{1} << (order - 8);
  for (ptrdiff_t q = 0; q < tiles; ++q) {
    const ptrdiff_t first = 16 * bitsReversed(q, order - 8);
    lineTile(line.from(q), tiles, [&](ptrdiff_t run, ptrdiff_t lane, LineGroups::Numbers z) HWY_ATTR {
      store((run * tiles << 4) + first + lane, z);
    });
  }
}

/// The same in place: store(group of frequencies, k, numbers) may write to the memory of that group and to no other.
template <class Store>
HWY_INLINE void endLineInPlace(LineGroups line, int order, const Store& store) {
  constexpr ptrdiff_t N = LineGroups::N;
  const ptrdiff_t tiles = ptrdiff_t{1} << (order - 8);
  alignas(laneAlignment) float memory[2][16 * 2 * AlongLine::width];
  for (ptrdiff_t q = 0; q < tiles; ++q) {
    const ptrdiff_t r = bitsReversed(q, order - 8);
    if (r < q) continue;
    const ptrdiff_t tile[2] = {q, r};
    const int count = q == r ? 1 : 2;
    for (int i = 0; i < count; ++i) {
      const LineGroups own{memory[i]};
      lineTile(line.from(tile[i]), tiles,
               [&](ptrdiff_t run, ptrdiff_t lane, LineGroups::Numbers z) HWY_ATTR { own.store(run, lane / N, z); });
    }
    for (int i = 0; i < count; ++i) {
      const LineGroups own{memory[i]};
      for (ptrdiff_t run = 0; run < 16; ++run) {
        const ptrdiff_t group = run * tiles + tile[count - 1 - i];
        unrolled<LineGroups::vectors>([&](auto k) HWY_ATTR { store(group, k, own.load(run, k)); });
      }
    }
  }
}

}  // namespace vemi::signal
