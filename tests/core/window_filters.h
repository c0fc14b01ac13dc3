// Filters on the floor for rows with neighbours, as a family would write them: what the tests hold against plain
// definitions and the benchmark against other libraries.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "vemi/types.h"

#include "core/image.h"
#include "core/lane_width.h"
#include "core/map_row.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "core/windows.h"

namespace vemi::test {

/// A call: region, window and images. Each filter runs the windows of one band.
template <class Src, class Dst = Src>
struct FilterCall {
  Image<const Src> src;
  Image<Dst> dst;
  VemiSize roiSize;
  Window window;

  bool inPlace() const { return isSameImage(src, dst); }
};

/// One block for all rings.
template <class... Ring>
Scratch placed(Ring&... ring) {
  Scratch scratch(roomOf(ring...));
  placeRings(scratch.memory(), ring...);
  return scratch;
}

// ---- Sums with weights 1 2 1 and 1 4 6 4 1 in both directions -----------------------------------------------------

/// Of three or five vectors.
template <class V>
HWY_INLINE V binomial(V a, V b, V c) {
  return hn::Add(hn::Add(a, c), hn::ShiftLeft<1>(b));
}
template <class V>
HWY_INLINE V binomial(V a, V b, V c, V d, V e) {  // 4 (b + d) + 6 c = 4 (b + c + d) + 2 c
  return hn::Add(hn::Add(hn::Add(a, e), hn::ShiftLeft<1>(c)), hn::ShiftLeft<2>(hn::Add(hn::Add(b, d), c)));
}

/// f(0), f(1), ... as arguments.
template <int count, class F>
HWY_INLINE auto binomialOf(const F& f) {
  return [&]<int... j>(std::integer_sequence<int, j...>) HWY_ATTR {
    return binomial(f(std::integral_constant<int, j>())...);
  }
  (std::make_integer_sequence<int, count>());
}

template <int taps>
struct BinomialColumn {
  const Vemi8u* row[taps];

  explicit BinomialColumn(const Vemi8u* const* rows) { std::copy_n(rows, taps, row); }

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    return binomialOf<taps>([&](auto j) HWY_ATTR { return loadExtended(d, row[j] + i); });
  }
};

/// Divides by the weights' sum, to nearest, ties to even.
template <class L, int taps>
struct BinomialRow {
  const Vemi16u* row;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<Vemi16u> dSum;
    const Lanes<Vemi16s> dSigned;
    constexpr int shift = 2 * (taps - 1);
    return packEach<Vemi16u>(d, [&](auto k) HWY_ATTR {
      const Vemi16u* const in = row + i + k * laneCount<Vemi16u>;
      const auto sum = binomialOf<taps>([&](auto j) HWY_ATTR { return hn::LoadU(dSum, in + j * L::elements); });
      const auto odd = hn::And(hn::ShiftRight<shift>(sum), hn::Set(dSum, 1));
      const auto rounded = hn::Add(hn::Add(sum, hn::Set(dSum, (1 << (shift - 1)) - 1)), odd);
      return hn::BitCast(dSigned, hn::ShiftRight<shift>(rounded));
    });
  }
};

template <class L, int taps>
void binomialFilter(const FilterCall<Vemi8u>& call, ptrdiff_t first, ptrdiff_t count) {
  const ptrdiff_t width = call.roiSize.width;
  const Vemi64s elements = windowElements<L>(width, call.window);
  const auto src = windowed<L>(call.src, call.window);
  auto source = RowRing<Vemi8u>::ofSource<L>(call.window, width, call.inPlace());
  RowRing<Vemi16u> sums(1, elements);
  const Scratch scratch = placed(source, sums);
  const auto enter = [&](ptrdiff_t y) { source.take(src.row(y)); };
  const auto row = [&](ptrdiff_t y) {
    Vemi16u* const sum = sums.turn();
    mapPlaces(sums.elements(), eachPlace(BinomialColumn<taps>(source.rows())), sum);
    mapPlaces<alphaOf<L>>(width * L::elements, eachPlace(BinomialRow<L, taps>{sum}), call.dst.row(y));
  };
  forWindows(call.window, first, count, enter, row);
}

// ---- Kernels of floats --------------------------------------------------------------------------------------------

/// Sums of float(pixel) * tap, in the order of the window's pixels; the last tap of the kernel meets the first of them.
template <class L>
struct FloatTaps {
  static constexpr int vectors = 4;
  const float* const* rows;
  const float* kernel;
  int width, height;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    constexpr ptrdiff_t N = laneCount<float>;
    Vectors<hn::Vec<D>, vectors> sum;
    unrolled<vectors>([&](auto k) HWY_ATTR { sum.v[k] = hn::Zero(d); });
    const float* tap = kernel + ptrdiff_t{width} * height;
    for (int j = 0; j < height; ++j) {
      const float* in = rows[j] + i;
      for (int c = 0; c < width; ++c, in += L::elements) {
        const auto weight = hn::Set(d, *--tap);
        unrolled<vectors>([&](auto k)
                              HWY_ATTR { sum.v[k] = hn::Add(sum.v[k], hn::Mul(hn::LoadU(d, in + k * N), weight)); });
      }
    }
    return sum;
  }
};

/// The same, to the nearest byte.
template <class L>
struct ByteTaps {
  static constexpr int vectors = 1;
  FloatTaps<L> taps;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto sum = taps(Lanes<float>(), i);
    const auto integer = [&](auto k) HWY_ATTR { return nearestOf<Vemi8u>(Lanes<int32_t>(), sum.v[k]); };
    return Vectors<hn::Vec<D>, 1>{packEach<int32_t>(d, integer)};
  }
};

/// Bytes enter the ring as floats, once each.
template <class L, class T>
void floatFilter(const FilterCall<T>& call, const float* kernel, ptrdiff_t first, ptrdiff_t count) {
  const ptrdiff_t width = call.roiSize.width;
  const Vemi64s elements = windowElements<L>(width, call.window);
  const auto src = windowed<L>(call.src, call.window);
  constexpr bool converted = !std::is_same_v<T, float>;
  auto source = converted ? RowRing<float>(call.window.height, elements)
                          : RowRing<float>::ofSource<L>(call.window, width, call.inPlace());
  const Scratch scratch = placed(source);
  const auto enter = [&](ptrdiff_t y) {
    if constexpr (converted) {
      const auto extend = [](auto d, const T* in) HWY_ATTR { return loadExtended(d, in); };
      mapElements<Alpha::none>(source.elements(), eachVector(extend), source.turn(), src.row(y));
    } else {
      source.take(src.row(y));
    }
  };
  const auto row = [&](ptrdiff_t y) {
    const FloatTaps<L> taps = {source.rows(), kernel, call.window.width, call.window.height};
    if constexpr (converted) {
      mapPlaces<alphaOf<L>>(width * L::elements, ByteTaps<L>{taps}, call.dst.row(y));
    } else {
      mapPlaces<alphaOf<L>>(width * L::elements, taps, call.dst.row(y));
    }
  };
  forWindows(call.window, first, count, enter, row);
}

}  // namespace vemi::test
