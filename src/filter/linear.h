// Filters by a kernel of the user's: the sum of the window's elements, each times its tap.
//
// A call is one of elements: a row of pixels is a row of elements, and from one tap to the next lie as many of them as
// a pixel has. So layouts differ in an alpha alone that stays. The taps stand in a table, row by row from the window's
// top left on; a stage runs it over some vectors of sums at once. What the rows are that it reads, is the arithmetic's
// matter:
//
//   arithmetic   rows of                         sums           for
//   OfFloats     floats                          32f, in order  kernels of floats, of all pixels
//   OfNarrow     16u                             16u            bytes, where the taps' sizes add up to 257 at most
//   OfPairs      pairs of neighbours, 16s each   32s, wrapping  bytes, where each tap fits 16 bits
//   OfIntegers   32s                             32s, wrapping  bytes and any taps
//
// Without memory for tables and rows, the elements are computed one by one: a call never fails for the lack of it.
//
// Checks: null, size, divisor, rows that are shorter than what is read or written.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/numbers.h"
#include "core/parallel.h"
#include "core/rounding.h"
#include "core/windows.h"
#include "vemi/filter.h"

namespace vemi::filter {

// ---- Calls --------------------------------------------------------------------------------------------------------

/// Its last tap meets the top left pixel of the window. The anchor counts from the last column and row of the window,
/// and may lie outside of it.
template <class K>
struct UserKernel {
  const K* taps;
  VemiSize size;
  VemiPoint anchor;

  ptrdiff_t count() const { return ptrdiff_t{size.width} * size.height; }
  /// As it lies over the window.
  K at(ptrdiff_t column, ptrdiff_t row) const { return taps[count() - 1 - (row * size.width + column)]; }
};

template <class K>
bool isNull(const UserKernel<K>& kernel) {
  return kernel.taps == nullptr;
}

inline VemiStatus checkDivisor(int divisor) { return divisor == 0 ? vemiErrDivisor : vemiOk; }

/// All that is tested of the images, but for pointers and sizes.
template <class L, class T, class K>
VemiStatus checkRows(Image<const T> src, Image<T> dst, VemiSize roiSize, const UserKernel<K>& kernel) {
  const Vemi64s width = roiSize.width;
  return firstOf(checkRowFits<L>(src, width + kernel.size.width - 1, vemiErrStep),
                 checkRowFits<L>(dst, width, vemiErrStep));
}

/// In elements. The window's rows begin where its own first element does.
template <class T>
struct LinearCall {
  Image<const T> src;
  Image<T> dst;
  ptrdiff_t width;
  int height;
  Window window;
  ptrdiff_t pixel;  // elements of one

  template <class L, class K>
  static LinearCall of(Image<const T> src, Image<T> dst, VemiSize roiSize, const UserKernel<K>& kernel) {
    const Window pixels = Window::fromLast(kernel.size, kernel.anchor);
    const Window elements = {(pixels.width - 1) * L::elements + 1, pixels.height, 0, 0};
    return {windowed<L>(src, pixels), dst,      ptrdiff_t{roiSize.width} * L::elements,
            roiSize.height,           elements, L::elements};
  }
};

// ---- Taps ---------------------------------------------------------------------------------------------------------

/// `offset`: its element's place behind that of the window's row.
template <class Weight>
struct Tap {
  Weight weight;
  int32_t offset;
};

/// Those of row j end behind the first end[j] of them.
template <class Weight>
struct TapTable {
  const Tap<Weight>* first;
  const ptrdiff_t* end;
  ptrdiff_t rows;

  ptrdiff_t count() const { return end[rows - 1]; }
};

/// What may be left out of a table: a tap of 0 adds nothing to a sum of integers, or to one that becomes an integer.
enum class Zeros { counted, left };

/// The memory of a table, and the table in it: weightAt(column, row) for columns and rows of a grid.
template <class Weight>
class TapMemory {
 public:
  TapMemory(ptrdiff_t columns, ptrdiff_t rows)
      : columns_(columns),
        rows_(rows),
        taps_(pieces_.add<Tap<Weight>>(limitedProduct(columns, rows))),
        ends_(pieces_.add<ptrdiff_t>(rows)),
        scratch_(pieces_) {}

  bool failed() const { return scratch_.failed(); }

  template <class WeightAt>
  TapTable<Weight> fill(ptrdiff_t pixel, Zeros zeros, const WeightAt& weightAt) const {
    Tap<Weight>* const taps = scratch_[taps_];
    ptrdiff_t count = 0;
    for (ptrdiff_t j = 0; j < rows_; ++j) {
      for (ptrdiff_t c = 0; c < columns_; ++c) {
        const Weight weight = weightAt(c, j);
        if (zeros == Zeros::counted || weight != 0) taps[count++] = {weight, static_cast<int32_t>(c * pixel)};
      }
      scratch_[ends_][j] = count;
    }
    return {taps, scratch_[ends_], rows_};
  }

 private:
  ptrdiff_t columns_, rows_;
  Pieces pieces_;
  Piece<Tap<Weight>> taps_;
  Piece<ptrdiff_t> ends_;
  Scratch scratch_;
};

// ---- Sums ---------------------------------------------------------------------------------------------------------

/// Each product rounded, and each sum. An addition waits for the one before it: the more sums at once, the better.
template <int sums = 8>
struct OfFloats {
  using Row = float;
  using Weight = float;
  static constexpr int vectors = sums;

  static auto factor(Weight weight) { return hn::Set(Lanes<float>(), weight); }
  template <class V>
  HWY_INLINE static V withProduct(V sum, V v, V factor) {
    return hn::Add(sum, hn::Mul(v, factor));
  }
};

/// Sums of rows[j][place + offset] * weight, from the table's first tap to its last.
template <class Arithmetic>
struct TapSums {
  using Row = typename Arithmetic::Row;
  static constexpr int vectors = Arithmetic::vectors;

  const Row* const* rows;
  TapTable<typename Arithmetic::Weight> table;

  HWY_INLINE auto operator()(ptrdiff_t i) const {
    const Lanes<Row> d;
    Vectors<hn::Vec<decltype(d)>, vectors> sum;
    unrolled<vectors>([&](auto k) HWY_ATTR { sum.v[k] = hn::Zero(d); });
    const auto* tap = table.first;
    for (ptrdiff_t j = 0; j < table.rows; ++j) {
      const Row* const row = rows[j] + i;
      for (const auto* const end = table.first + table.end[j]; tap != end; ++tap) {
        const auto factor = Arithmetic::factor(tap->weight);
        const Row* const in = row + tap->offset;
        unrolled<vectors>([&](auto k) HWY_ATTR {
          sum.v[k] = Arithmetic::withProduct(sum.v[k], hn::LoadU(d, in + k * laneCount<Row>), factor);
        });
      }
    }
    return sum;
  }
};

/// The sums as they are.
template <class Sums>
struct PlainSums {
  static constexpr int vectors = Sums::vectors;
  Sums sums;

  template <class D>
  HWY_INLINE auto operator()(D, ptrdiff_t i) const {
    return sums(i);
  }
};

/// From pointers, by which it is handed over in registers.
template <class Arithmetic>
struct PlainSumsOf {
  using Taps = Tap<typename Arithmetic::Weight>;

  auto operator()(const typename Arithmetic::Row* const* rows, const Taps* first, const ptrdiff_t* end,
                  ptrdiff_t count) const {
    return PlainSums<TapSums<Arithmetic>>{{rows, {first, end, count}}};
  }
};

/// finish(lanes of the sum's width, sum): integers, which are saturated to the pixel's type.
template <class T, class Sums, class Finish>
struct FinishedSums {
  using Row = typename Sums::Row;
  using Integer = hwy::SignedFromSize<sizeof(Row)>;
  static constexpr int share = sizeof(Row) / sizeof(T);
  static constexpr int vectors = Sums::vectors / share;
  Sums sums;
  Finish finish;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto sum = sums(i);
    return blockOf<vectors>(d, [&](auto m) HWY_ATTR {
      return packEach<Row>(d, [&](auto k) HWY_ATTR { return finish(Lanes<Integer>(), sum.v[m * share + k]); });
    });
  }
};

struct Unfinished {};

// ---- Regions ------------------------------------------------------------------------------------------------------

/// The bands of a team: enter(ring, y) takes row y of the moved source into the ring.
template <class Arithmetic, Alpha alpha, class T, class Finish, class Enter>
VemiStatus filterBands(const LinearCall<T>& call, const TapTable<typename Arithmetic::Weight>& table,
                       const RowRing<typename Arithmetic::Row>& ring, const Window& window, const Finish& finish,
                       const Enter& enter) {
  const Vemi64s products = limitedProduct(Vemi64s{call.width} * call.height, table.count());
  const auto band = [=](int first, int rows, Memory own) {
    auto ownRing = ring;
    placeRings(own, ownRing);
    const auto take = [&](ptrdiff_t y) { enter(ownRing, y); };
    const auto row = [&](ptrdiff_t y) {
      if constexpr (std::is_same_v<Finish, Unfinished>) {
        mapPlacesOf<alpha, PlainSumsOf<Arithmetic>>(call.width, call.dst.row(y), ownRing.rows(), table.first, table.end,
                                                    table.rows);
      } else {
        const FinishedSums<T, TapSums<Arithmetic>, Finish> stage = {{ownRing.rows(), table}, finish};
        mapPlaces<alpha>(call.width, stage, call.dst.row(y));
      }
    };
    forWindows(window, first, rows, take, row);
  };
  return forBands(TeamRows{products < 1 << 17}, call.height, {.slice = roomOf(ring)}, band);
}

/// The source's elements as elements of the ring.
template <class Ring, class T>
HWY_INLINE void enterExtended(Ring& ring, const T* row) {
  const auto extend = [](auto d, const T* in) HWY_ATTR { return loadExtended(d, in); };
  mapElements<Alpha::none>(ring.elements(), eachVector(extend), ring.turn(), row);
}

/// The same sums, element by element: float or wrapping.
template <Alpha alpha, class Sum, class T, class K, class Finish>
HWY_NOINLINE VemiStatus filterWithoutMemory(const LinearCall<T>& call, const UserKernel<K>& kernel,
                                            const Finish& finish) {
  const auto sumOf = [&](ptrdiff_t i, ptrdiff_t y) {
    Sum sum = 0;
    for (ptrdiff_t j = 0; j < kernel.size.height; ++j) {
      for (ptrdiff_t c = 0; c < kernel.size.width; ++c) {
        const T element = elementOf(call.src.row(y + j) + i + c * call.pixel);
        sum += static_cast<Sum>(element) * static_cast<Sum>(kernel.at(c, j));
      }
    }
    return sum;
  };
  for (ptrdiff_t y = 0; y < call.height; ++y) {
    for (ptrdiff_t i = 0; i < call.width; ++i) {
      if (alpha == Alpha::kept && i % 4 == 3) continue;
      T result;
      if constexpr (std::is_same_v<Finish, Unfinished>) {
        result = sumOf(i, y);
      } else {
        const hn::FixedTag<int32_t, 4> di;
        const hn::Rebind<std::conditional_t<std::is_same_v<Sum, float>, float, int32_t>, decltype(di)> d;
        const auto sum = static_cast<hn::TFromD<decltype(d)>>(sumOf(i, y));
        result = saturate<T>(hn::GetLane(finish(di, hn::Set(d, sum))));
      }
      std::memcpy(call.dst.row(y) + i, &result, sizeof result);
    }
  }
  return vemiOk;
}

// ---- Kernels of floats --------------------------------------------------------------------------------------------

template <class T>
struct NearestInteger {
  template <class DI, class V>
  HWY_INLINE auto operator()(DI di, V sum) const {
    return nearestOf<T>(di, sum);
  }
};

/// Of a call whose checks are done.
template <class L, class T>
VemiStatus filterByFloats(Image<const T> src, Image<T> dst, VemiSize roiSize, const UserKernel<float>& kernel) {
  constexpr bool converted = !std::is_same_v<T, float>;
  using Finish = std::conditional_t<converted, NearestInteger<T>, Unfinished>;
  const auto call = LinearCall<T>::template of<L>(src, dst, roiSize, kernel);
  const Window& window = call.window;
  const auto run = [&] {
    const TapMemory<float> memory(kernel.size.width, kernel.size.height);
    VemiStatus status = vemiErrMemAlloc;
    if (!memory.failed()) {
      const auto table = memory.fill(call.pixel, converted ? Zeros::left : Zeros::counted,
                                     [&](ptrdiff_t c, ptrdiff_t j) { return kernel.at(c, j); });
      const auto ring = converted ? RowRing<float>(window.height, windowElements<C1>(call.width, window))
                                  : RowRing<float>::template ofSource<C1>(window, call.width, false);
      const auto enter = [&](RowRing<float>& own, ptrdiff_t y) {
        if constexpr (converted) {
          enterExtended(own, call.src.row(y));
        } else {
          own.take(call.src.row(y));
        }
      };
      const auto bands = [&](auto arithmetic) {
        return filterBands<decltype(arithmetic), alphaOf<L>>(call, table, ring, window, Finish(), enter);
      };
      // A block of the longest vectors is longer than a short row, or makes much of it twice.
      const OfFloats<static_cast<int>(std::min(ptrdiff_t{8}, 64 / laneCount<float>))> ofShortRows;
      const OfFloats<> ofLongRows;
      status = call.width < 512 ? bands(ofShortRows) : bands(ofLongRows);
    }
    return status == vemiOk ? status : filterWithoutMemory<alphaOf<L>, float>(call, kernel, Finish());
  };
  if constexpr (converted) return roundingToNearest(run);
  return run();
}

template <class T, class L>
VemiStatus floatKernel(Image<const T> src, Image<T> dst, VemiSize roiSize, UserKernel<float> kernel) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, kernel), checkSize(roiSize, kernel.size))) return bad;
  if (const VemiStatus bad = checkRows<L>(src, dst, roiSize, kernel)) return bad;
  return filterByFloats<L>(src, dst, roiSize, kernel);
}

/// For columns of three and four channels: calls of one channel with so many times the width, which is looked at first.
template <auto filter, class T, class Weight, class... More>
VemiStatus widthFirst(Image<const T> src, Image<T> dst, VemiSize roiSize, UserKernel<Weight> kernel, More... more) {
  if (roiSize.width < 1) return vemiErrSize;
  return filter(src, dst, roiSize, kernel, more...);
}

}  // namespace vemi::filter

// What stands behind the region: a kernel of K, which is a row or a column where its size is one number.
#define VEMI_KERNEL(K) \
  ((const K* pKernel, VemiSize kernelSize, VemiPoint anchor), (UserKernel<K>{pKernel, kernelSize, anchor}))
#define VEMI_ROW_KERNEL(K) \
  ((const K* pKernel, int kernelSize, int xAnchor), (UserKernel<K>{pKernel, {kernelSize, 1}, {xAnchor, 0}}))
#define VEMI_COLUMN_KERNEL(K) \
  ((const K* pKernel, int kernelSize, int yAnchor), (UserKernel<K>{pKernel, {1, kernelSize}, {0, yAnchor}}))
#define VEMI_DIVIDED_KERNEL                                                      \
  ((const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor), \
   (UserKernel<Vemi32s>{pKernel, kernelSize, anchor}, divisor))
#define VEMI_DIVIDED_ROW_KERNEL                                        \
  ((const Vemi32s* pKernel, int kernelSize, int xAnchor, int divisor), \
   (UserKernel<Vemi32s>{pKernel, {kernelSize, 1}, {xAnchor, 0}}, divisor))
#define VEMI_DIVIDED_COLUMN_KERNEL                                     \
  ((const Vemi32s* pKernel, int kernelSize, int yAnchor, int divisor), \
   (UserKernel<Vemi32s>{pKernel, {1, kernelSize}, {0, yAnchor}}, divisor))
