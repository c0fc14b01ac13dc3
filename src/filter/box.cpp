// vemiFilterBox: the mean of a rectangle around each pixel, in time that does not depend on the rectangle. Sums of the
// columns move on from row to row, by a row that enters and one that leaves, and the sums of windows along them.
//
//   8u   3x3            a sum of three rows, then of three columns, and a division by 9
//        up to 8100     integers, in 16 bits where they fit; the quotient rounded down (C1, C4) or to nearest (C3, AC4)
//        above          floats, the quotient truncated
//   16s                 integers; the quotient to nearest
//   32f                 floats
//
// Checks: null, step, size, mask size, anchor.

#include <algorithm>
#include <limits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/parallel.h"
#include "core/regimes.h"
#include "core/rounding.h"
#include "core/windows.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

template <class T>
struct BoxCall {
  Image<const T> src;
  Image<T> dst;
  VemiSize roiSize;
  Window window;
  bool inPlace;

  Vemi64s taps() const { return Vemi64s{window.width} * window.height; }

  /// In place, rows are taken in order.
  TeamRows who() const { return {inPlace || Vemi64s{roiSize.width} * roiSize.height <= 4096}; }
};

// ---- Sums of columns ----------------------------------------------------------------------------------------------

/// From the oldest row to the newest.
template <class T>
struct ColumnSum {
  const T* const* rows;
  int height;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    auto sum = loadExtended(d, rows[0] + i);
    for (int j = 1; j < height; ++j) sum = hn::Add(sum, loadExtended(d, rows[j] + i));
    return sum;
  }
};

struct MovedOn {
  template <class D, class V, class T>
  HWY_INLINE V operator()(D d, V sum, const T* entering, const T* leaving) const {
    return hn::Sub(hn::Add(sum, loadExtended(d, entering)), loadExtended(d, leaving));
  }
  template <class D, class V>
  HWY_INLINE V operator()(D, V sum, V entering, V leaving) const {
    return hn::Sub(hn::Add(sum, entering), leaving);
  }
};

/// The walk over a band: row(y, sums of the columns of window y). Sums begin anew with the band, and at each multiple
/// of `stretch`; the ring has a row more than the window, the one that has left it.
template <class Sum, class T, class Row>
void forColumnSums(const BoxCall<T>& call, Image<const T> src, RowRange band, ptrdiff_t stretch, RowRing<T>& source,
                   RowRing<Sum>& columns, const Row& row) {
  const int height = call.window.height;
  Sum* sums = nullptr;
  const auto enter = [&](ptrdiff_t y) { source.take(src.row(y)); };
  const auto eachWindow = [&](ptrdiff_t y) {
    const T* const* const rows = source.rows();
    const Sum* const former = sums;
    sums = columns.turn();
    if (y == band.first || y % stretch == 0) {
      mapPlaces(columns.elements(), eachPlace(ColumnSum<T>{rows + 1, height}), sums);
    } else {
      mapElements<Alpha::none>(columns.elements(), eachVector(MovedOn()), sums, former, rows[height], rows[0]);
    }
    row(y, sums);
  };
  forWindows(call.window, band.first, band.end - band.first, enter, eachWindow);
}

// ---- Integers -----------------------------------------------------------------------------------------------------

/// For each lane of 16 bytes, the lane of the 16 bytes before that has the last element of the same channel.
template <int channels, class Sum>
struct LastOfChannel {
  alignas(16) uint8_t byte[16];

  constexpr LastOfChannel() : byte() {
    constexpr int lanes = 16 / sizeof(Sum);
    for (int i = 0; i < 16; ++i) {
      const int lane = lanes - channels + i / static_cast<int>(sizeof(Sum)) % channels;
      byte[i] = static_cast<uint8_t>(lane * static_cast<int>(sizeof(Sum)) + i % static_cast<int>(sizeof(Sum)));
    }
  }
};

/// sums[i]: of the columns from the row's beginning to place i - 1 of its channel, modulo the range of Sum. Writes up
/// to 16 bytes more than `elements` and a pixel.
template <class L, class Sum>
HWY_NOINLINE void prefixSums(ptrdiff_t elements, const Sum* columns, Sum* sums) {
  constexpr int n = L::elements;
  std::fill_n(sums, n, Sum(0));
  sums += n;
  if constexpr (std::is_floating_point_v<Sum>) {
    for (ptrdiff_t i = 0; i < elements; ++i) sums[i] = sums[i - n] + columns[i];
  } else {
    constexpr int lanes = 16 / sizeof(Sum);
    static constexpr LastOfChannel<n, Sum> last;
    const hn::FixedTag<Sum, lanes> d;
    const hn::FixedTag<uint8_t, 16> dBytes;
    const auto index = hn::Load(dBytes, last.byte);
    auto carried = hn::Zero(d);
    for (ptrdiff_t i = 0; i < elements; i += lanes) {
      auto sum = hn::LoadU(d, columns + i);
      if constexpr (n < lanes) sum = hn::Add(sum, hn::ShiftLeftLanes<n>(d, sum));
      if constexpr (2 * n < lanes) sum = hn::Add(sum, hn::ShiftLeftLanes<2 * n>(d, sum));
      if constexpr (4 * n < lanes) sum = hn::Add(sum, hn::ShiftLeftLanes<4 * n>(d, sum));
      sum = hn::Add(sum, carried);
      hn::StoreU(sum, d, sums + i);
      carried = hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(dBytes, sum), index));
    }
  }
}

/// Sums of windows, as differences of two of the former.
template <class Sum>
struct WindowSum {
  const Sum *before, *last;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, ptrdiff_t i) const {
    return hn::Sub(hn::LoadU(d, last + i), hn::LoadU(d, before + i));
  }

  /// As floats, rounded once.
  template <class DF>
  HWY_INLINE hn::Vec<DF> floats(DF df, ptrdiff_t i) const {
    if constexpr (std::is_same_v<Sum, double>) {
      const hn::Half<DF> half;
      const Lanes<double> d;
      const auto upper = hn::DemoteTo(half, (*this)(d, i + laneCount<double>));
      return hn::Combine(df, upper, hn::DemoteTo(half, (*this)(d, i)));
    } else {
      const hn::RebindToSigned<DF> di;
      const auto sum = (*this)(hn::Rebind<Sum, DF>(), i);
      if constexpr (sizeof(Sum) == 4) return hn::ConvertTo(df, hn::BitCast(di, sum));
      if constexpr (sizeof(Sum) == 2) return hn::ConvertTo(df, hn::PromoteTo(di, sum));
    }
  }
};

/// sum * r to nearest.
struct Nearest {
  float r;

  template <class DI, class V>
  HWY_INLINE auto operator()(DI di, V sum) const {
    return rounded(di, hn::Mul(sum, hn::Set(hn::DFromV<V>(), r)));
  }
};

/// sum * r + lift, truncated.
struct Truncated {
  float r, lift;

  template <class DI, class V>
  HWY_INLINE auto operator()(DI di, V sum) const {
    const hn::DFromV<V> d;
    return truncated(di, hn::Add(hn::Mul(sum, hn::Set(d, r)), hn::Set(d, lift)));
  }
};

/// floor(sum / taps): with half of one more the quotient of floats lies far enough from any integer, up to 8100 taps
/// of bytes.
struct Floor {
  float r;

  template <class DI, class V>
  HWY_INLINE auto operator()(DI di, V sum) const {
    const hn::DFromV<V> d;
    return truncated(di, hn::Mul(hn::Add(sum, hn::Set(d, 0.5f)), hn::Set(d, r)));
  }
};

/// A stage out of sums: those of integers by WindowSum, of floats by their row.
template <class Sums, class Quotient>
struct Mean {
  static constexpr int vectors = 1;
  Sums sums;
  Quotient quotient;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<float> df;
    const Lanes<int32_t> di;
    const auto ofFloats = [&](auto k) HWY_ATTR { return quotient(di, sums.floats(df, i + k * laneCount<float>)); };
    return Vectors<hn::Vec<D>, 1>{packEach<float>(d, ofFloats)};
  }
};

/// floor(sum / taps) of up to 257 bytes in 16 bits: (sum + more) * multiplier / 2^(16 + shift), where `multiplier` is
/// 2^(16 + shift) / taps rounded up, or, where that is too far from it, rounded down with one more.
struct ByteDivision {
  uint16_t multiplier, more;
  int shift;

  explicit ByteDivision(uint32_t taps) {
    shift = 0;
    while (2u << shift < taps) ++shift;
    const uint32_t power = 1u << (16 + shift), up = (power + taps - 1) / taps;
    const bool fromAbove = up * taps - power <= taps / 2;
    multiplier = static_cast<uint16_t>(fromAbove ? up : up - 1);
    more = fromAbove ? 0 : 1;
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V sum) const {
    return hn::ShiftRightSame(hn::MulHigh(hn::Add(sum, hn::Set(d, more)), hn::Set(d, multiplier)), shift);
  }
};

/// The same of lanes of 16 bits.
template <class Sums, class Quotient>
struct NarrowMean {
  static constexpr int vectors = 1;
  Sums sums;
  Quotient quotient;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<uint16_t> dSum;
    const Lanes<int16_t> dSigned;
    const auto ofHalves = [&](auto k) HWY_ATTR {
      return hn::BitCast(dSigned, quotient(dSum, sums(dSum, i + k * laneCount<uint16_t>)));
    };
    return Vectors<hn::Vec<D>, 1>{packEach<uint16_t>(d, ofHalves)};
  }
};

template <template <class, class> class Stage, class Sum, class L, class T, class Quotient>
VemiStatus boxOfIntegers(const BoxCall<T>& call, const Quotient& quotient) {
  const ptrdiff_t width = call.roiSize.width;
  const Vemi64s elements = windowElements<L>(width, call.window);
  auto source = RowRing<T>::template ofSource<L>(call.window, width, call.inPlace, 1);
  RowRing<Sum> columns(2, elements), sums(1, elements + L::elements);
  return forBands(call.who(), call.roiSize.height, {.slice = roomOf(source, columns, sums)},
                  [=](int first, int rows, Memory own) {
                    auto ownSource = source;
                    auto ownColumns = columns;
                    auto ownSums = sums;
                    placeRings(own, ownSource, ownColumns, ownSums);
                    const auto row = [&](ptrdiff_t y, const Sum* column) {
                      Sum* const sum = ownSums.turn();
                      prefixSums<L>(ownColumns.elements(), column, sum);
                      const WindowSum<Sum> ofWindow = {sum, sum + ptrdiff_t{call.window.width} * L::elements};
                      mapPlaces<alphaOf<L>>(width * L::elements, Stage<WindowSum<Sum>, Quotient>{ofWindow, quotient},
                                            call.dst.row(y));
                    };
                    constexpr ptrdiff_t never = std::numeric_limits<ptrdiff_t>::max();
                    forColumnSums(call, windowed<L>(call.src, call.window), {first, first + rows}, never, ownSource,
                                  ownColumns, row);
                  });
}

// ---- Floats -------------------------------------------------------------------------------------------------------

/// Sums of floats begin anew at multiples of so many rows, counted from the region's first, whoever computes them.
ptrdiff_t stretchRows(const Window& window) { return std::max(64, window.height); }

/// Rows whose sums of windows are formed at once: along a row each sum waits for the one before it.
constexpr int rowsAtOnce = 8;

/// sums[k][x]: of the windows along columns[k], from left to right.
template <class L>
HWY_NOINLINE void windowSums(ptrdiff_t width, ptrdiff_t windowWidth, const float* const (&columns)[rowsAtOnce],
                             float* const (&sums)[rowsAtOnce]) {
  constexpr ptrdiff_t n = L::elements;
  const hn::FixedTag<float, n == 1 ? 1 : 4> d;
  const ptrdiff_t reach = windowWidth * n;
  Vectors<hn::Vec<decltype(d)>, rowsAtOnce> sum;
  unrolled<rowsAtOnce>([&](auto k) HWY_ATTR { sum.v[k] = hn::LoadU(d, columns[k]); });
  for (ptrdiff_t i = n; i < reach; i += n) {
    unrolled<rowsAtOnce>([&](auto k) HWY_ATTR { sum.v[k] = hn::Add(sum.v[k], hn::LoadU(d, columns[k] + i)); });
  }
  unrolled<rowsAtOnce>([&](auto k) HWY_ATTR { hn::StoreU(sum.v[k], d, sums[k]); });
  for (ptrdiff_t i = 0; i < (width - 1) * n; i += n) {
    unrolled<rowsAtOnce>([&](auto k) HWY_ATTR {
      sum.v[k] = hn::Sub(hn::Add(sum.v[k], hn::LoadU(d, columns[k] + reach + i)), hn::LoadU(d, columns[k] + i));
      hn::StoreU(sum.v[k], d, sums[k] + i + n);
    });
  }
}

struct FloatSum {
  const float* row;

  template <class DF>
  HWY_INLINE hn::Vec<DF> floats(DF df, ptrdiff_t i) const {
    return hn::LoadU(df, row + i);
  }
};

struct FloatMean {
  const float* sum;
  float r;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    return hn::Mul(hn::LoadU(d, sum + i), hn::Set(d, r));
  }
};

/// meanOf(row of sums): the last stage.
template <class L, class T, class MeanOf>
VemiStatus boxOfFloats(const BoxCall<T>& call, const MeanOf& meanOf) {
  const ptrdiff_t width = call.roiSize.width, height = call.roiSize.height;
  const ptrdiff_t stretch = stretchRows(call.window);
  auto source = RowRing<T>::template ofSource<L>(call.window, width, call.inPlace, 1);
  RowRing<float> columns(rowsAtOnce, windowElements<L>(width, call.window));
  RowRing<float> sums(rowsAtOnce, Vemi64s{width} * L::elements);
  const auto stretches = static_cast<int>((height - 1) / stretch + 1);
  return forBands(call.who(), stretches, {.slice = roomOf(source, columns, sums)},
                  [=](int firstStretch, int count, Memory own) {
                    auto ownSource = source;
                    auto ownColumns = columns;
                    auto ownSums = sums;
                    placeRings(own, ownSource, ownColumns, ownSums);
                    float* sum[rowsAtOnce];
                    for (float*& row : sum) row = ownSums.turn();
                    const int end = firstStretch + count;
                    const RowRange band = {firstStretch * stretch, end == stretches ? height : end * stretch};
                    int waiting = 0;
                    const auto row = [&](ptrdiff_t y, const float*) {
                      if (++waiting < rowsAtOnce && y + 1 < band.end) return;
                      const float* const* const newest = ownColumns.rows() + rowsAtOnce - waiting;
                      const float* column[rowsAtOnce];
                      float* to[rowsAtOnce];
                      for (int k = 0; k < rowsAtOnce; ++k) {  // in place of rows that are none, the first once more
                        column[k] = newest[k < waiting ? k : 0];
                        to[k] = sum[k < waiting ? k : 0];
                      }
                      windowSums<L>(width, call.window.width, column, to);
                      for (int k = 0; k < waiting; ++k) {
                        mapPlaces<alphaOf<L>>(width * L::elements, meanOf(to[k]), call.dst.row(y - waiting + 1 + k));
                      }
                      waiting = 0;
                    };
                    forColumnSums(call, windowed<L>(call.src, call.window), band, stretch, ownSource, ownColumns, row);
                  });
}

// ---- Three by three bytes -----------------------------------------------------------------------------------------

struct ThreeRows {
  const Vemi8u* row[3];

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto at = [&](int j) HWY_ATTR { return loadExtended(d, row[j] + i); };
    return hn::Add(hn::Add(at(0), at(1)), at(2));
  }
};

template <class L>
struct ThreeColumns {
  const Vemi16u* sum;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto at = [&](int c) HWY_ATTR { return hn::LoadU(d, sum + i + c * L::elements); };
    return hn::Add(hn::Add(at(0), at(1)), at(2));
  }
};

/// sum / 9 by a multiplier of 2^18 / 9: rounded down, or, with half of one more, to nearest.
template <bool toNearest>
struct Ninth {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V sum) const {
    const V quarters = hn::MulHigh(sum, hn::Set(d, 29128));
    return hn::ShiftRight<2>(toNearest ? hn::Add(quarters, hn::Set(d, 2)) : quarters);
  }
};

/// One channel has two arithmetics: to nearest in whole groups of eight columns, rounded down in what is left.
template <class L>
VemiStatus box3x3(const BoxCall<Vemi8u>& call) {
  const ptrdiff_t width = call.roiSize.width;
  auto source = RowRing<Vemi8u>::ofSource<L>(call.window, width, call.inPlace);
  RowRing<Vemi16u> sums(1, windowElements<L>(width, call.window));
  return forBands(call.who(), call.roiSize.height, {.slice = roomOf(source, sums)},
                  [=](int first, int rows, Memory own) {
                    const auto src = windowed<L>(call.src, call.window);
                    auto ownSource = source;
                    auto ownSums = sums;
                    placeRings(own, ownSource, ownSums);
                    const auto enter = [&](ptrdiff_t y) { ownSource.take(src.row(y)); };
                    const auto row = [&](ptrdiff_t y) {
                      const Vemi8u* const* const three = ownSource.rows();
                      Vemi16u* const sum = ownSums.turn();
                      mapPlaces(ownSums.elements(), eachPlace(ThreeRows{{three[0], three[1], three[2]}}), sum);
                      const auto ninths = [&]<bool toNearest>(ptrdiff_t x, ptrdiff_t n, Ninth<toNearest> ninth) {
                        using Stage = NarrowMean<ThreeColumns<L>, Ninth<toNearest>>;
                        mapPlaces<alphaOf<L>>(n * L::elements, Stage{{sum + x * L::elements}, ninth},
                                              call.dst.row(y) + x * L::elements);
                      };
                      if constexpr (L::elements == 1) {
                        forRegimes<8, 1>(
                            width, [&](ptrdiff_t x, ptrdiff_t n) { ninths(x, n, Ninth<true>()); },
                            [&](ptrdiff_t x, ptrdiff_t n) { ninths(x, n, Ninth<false>()); });
                      } else {
                        ninths(0, width, Ninth<false>());
                      }
                    };
                    forWindows(call.window, first, rows, enter, row);
                  });
}

// ---- The choice ---------------------------------------------------------------------------------------------------

/// Whether all sums on the way are floats exactly, so that integers may stand for them.
bool areExactInFloats(const Window& window) {
  return limitedProduct(Vemi64s{window.width} + 1, Vemi64s{window.height} + 1) <= (1 << 24) / 255;
}

template <class L>
VemiStatus boxOf(const BoxCall<Vemi8u>& call, float r) {
  constexpr bool roundsDown = std::is_same_v<L, C1> || std::is_same_v<L, C4>;
  const Vemi64s taps = call.taps();
  if (call.window.width == 3 && call.window.height == 3) return box3x3<L>(call);
  if (taps > 8100) {
    const Truncated quotient = {r, roundsDown ? 0 : 9e-6f};
    if (areExactInFloats(call.window)) return boxOfIntegers<Mean, uint32_t, L>(call, quotient);
    return boxOfFloats<L>(call, [=](const float* sum) { return Mean<FloatSum, Truncated>{{sum}, quotient}; });
  }
  const bool fits16Bits = taps <= 257;
  if constexpr (roundsDown) {
    if (fits16Bits) {
      return boxOfIntegers<NarrowMean, uint16_t, L>(call, ByteDivision(static_cast<uint32_t>(taps)));
    }
    return boxOfIntegers<Mean, uint32_t, L>(call, Floor{r});
  } else {
    if (fits16Bits) return boxOfIntegers<Mean, uint16_t, L>(call, Nearest{r});
    return boxOfIntegers<Mean, uint32_t, L>(call, Nearest{r});
  }
}

template <class L>
VemiStatus boxOf(const BoxCall<Vemi16s>& call, float r) {
  if (call.taps() < 1 << 16) return boxOfIntegers<Mean, int32_t, L>(call, Nearest{r});
  return boxOfIntegers<Mean, double, L>(call, Nearest{r});
}

template <class L>
VemiStatus boxOf(const BoxCall<Vemi32f>& call, float r) {
  return boxOfFloats<L>(call, [=](const float* sum) { return eachPlace(FloatMean{sum, r}); });
}

template <class T, class L>
VemiStatus box(Image<const T> src, Image<T> dst, VemiSize roiSize, VemiSize maskSize, VemiPoint anchor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src, dst), checkSize(roiSize),
                                     checkMaskSize(maskSize, 2), checkAnchor(anchor, maskSize))) {
    return bad;
  }
  const BoxCall<T> call = {src, dst, roiSize, Window::fromFirst(maskSize, anchor), isSameImage(src, dst)};
  const auto run = [&] { return boxOf<L>(call, static_cast<float>(1.0 / static_cast<double>(call.taps()))); };
  if constexpr (std::is_same_v<T, Vemi32f>) return run();
  return roundingToNearest(run);
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define RECTANGLE ((VemiSize maskSize, VemiPoint anchor), (maskSize, anchor))

VEMI_DEFINE(vemiFilterBox_8u_C1R, VEMI_SRC_DST(Vemi8u, RECTANGLE), box<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterBox_8u_C3R, VEMI_SRC_DST(Vemi8u, RECTANGLE), box<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterBox_8u_C4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), box<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterBox_8u_AC4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), box<Vemi8u, AC4>)
VEMI_DEFINE(vemiFilterBox_8u_C1IR, VEMI_SRCDST(Vemi8u, RECTANGLE), box<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterBox_8u_C3IR, VEMI_SRCDST(Vemi8u, RECTANGLE), box<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterBox_8u_C4IR, VEMI_SRCDST(Vemi8u, RECTANGLE), box<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterBox_8u_AC4IR, VEMI_SRCDST(Vemi8u, RECTANGLE), box<Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterBox_16s_C1R, VEMI_SRC_DST(Vemi16s, RECTANGLE), box<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterBox_16s_C3R, VEMI_SRC_DST(Vemi16s, RECTANGLE), box<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterBox_16s_C4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), box<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterBox_16s_AC4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), box<Vemi16s, AC4>)
VEMI_DEFINE(vemiFilterBox_16s_C1IR, VEMI_SRCDST(Vemi16s, RECTANGLE), box<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterBox_16s_C3IR, VEMI_SRCDST(Vemi16s, RECTANGLE), box<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterBox_16s_C4IR, VEMI_SRCDST(Vemi16s, RECTANGLE), box<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterBox_16s_AC4IR, VEMI_SRCDST(Vemi16s, RECTANGLE), box<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterBox_32f_C1R, VEMI_SRC_DST(Vemi32f, RECTANGLE), box<Vemi32f, C1>)
VEMI_DEFINE(vemiFilterBox_32f_C3R, VEMI_SRC_DST(Vemi32f, RECTANGLE), box<Vemi32f, C3>)
VEMI_DEFINE(vemiFilterBox_32f_C4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), box<Vemi32f, C4>)
VEMI_DEFINE(vemiFilterBox_32f_AC4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), box<Vemi32f, AC4>)
VEMI_DEFINE(vemiFilterBox_32f_C1IR, VEMI_SRCDST(Vemi32f, RECTANGLE), box<Vemi32f, C1>)
VEMI_DEFINE(vemiFilterBox_32f_C3IR, VEMI_SRCDST(Vemi32f, RECTANGLE), box<Vemi32f, C3>)
VEMI_DEFINE(vemiFilterBox_32f_C4IR, VEMI_SRCDST(Vemi32f, RECTANGLE), box<Vemi32f, C4>)
VEMI_DEFINE(vemiFilterBox_32f_AC4IR, VEMI_SRCDST(Vemi32f, RECTANGLE), box<Vemi32f, AC4>)
