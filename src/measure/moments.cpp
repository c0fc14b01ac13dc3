// The pass over the pixels: S(m, n) = sum of x^m y^n f, m + n <= 3, for each channel, and the states that take the
// sums.
//
// A row first gives its four sums of x^m f, which then join those of the other rows under y^n. Bytes are summed as
// integers, so nothing is rounded before a sum leaves 64 bits (64s) or the 53 bits of a double (64f). Floats are summed
// in double precision in eight fixed strands of columns. The accurate way is the plain one, pixel by pixel, but where
// sums are exact in any order; bytes of one channel go there by tiles of 32x64 pixels.
//
// Checks: null, tag, step, size, stride.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <utility>

#include "core/any_element.h"
#include "core/checks.h"
#include "core/element.h"
#include "core/image.h"
#include "core/lane_width.h"
#include "core/lanes.h"
#include "core/numbers.h"
#include "core/processor.h"
#include "core/row_pieces.h"
#include "measure/exports.h"
#include "measure/moment_state.h"

namespace vemi::measure {
namespace {

// ---- States -------------------------------------------------------------------------------------------------------

template <class Sum>
VemiStatus initAlloc(VemiMomentState** ppState, vemiHint hint) {
  if (ppState == nullptr) return vemiErrNullPtr;
  auto state = makeRecord<VemiMomentState>(momentTag<Sum>);
  if (state == nullptr) return vemiErrMemAlloc;
  state->hint = hint;
  state->nChannels = -1;
  return handOver(std::move(state), ppState);
}

/// In the user's memory. The sums are left to the first pass.
VemiStatus init(VemiMomentState* pState, vemiHint hint) {
  if (pState == nullptr) return vemiErrNullPtr;
  pState->tag = momentTag<Vemi64s>;
  pState->hint = hint;
  pState->nChannels = -1;
  return vemiOk;
}

// ---- Four sums of a piece of a row ---------------------------------------------------------------------------------

/// The sums of x^m f for m = 0 to 3.
template <class Sum>
using RowSums = Vectors<Sum, momentOrders>;

/// The sums of (origin + x)^m f from those of x^m f; of numbers or of lanes.
template <class Sum>
HWY_INLINE RowSums<Sum> shifted(Sum origin, const RowSums<Sum>& sums) {
  const Sum s0 = sums.v[0], s1 = sums.v[1], s2 = sums.v[2], s3 = sums.v[3];
  return {{s0, origin * s0 + s1, origin * (origin * s0 + (s1 + s1)) + s2,
           origin * (origin * (origin * s0 + (s1 + s1 + s1)) + (s2 + s2 + s2)) + s3}};
}

/// Lanes that nothing has been added to.
template <class D>
HWY_INLINE RowSums<hn::Vec<D>> noSums(D d) {
  RowSums<hn::Vec<D>> sums;
  unrolled<momentOrders>([&](auto m) HWY_ATTR { sums.v[m] = hn::Zero(d); });
  return sums;
}

/// The sums of d^k f from those under the binomials C(d + k - 1, k); of numbers or of lanes.
template <class Sum>
HWY_INLINE RowSums<Sum> ofPowers(const RowSums<Sum>& binomials) {
  const Sum b1 = binomials.v[1], b2 = binomials.v[2], rest = binomials.v[3] - b2, thrice = rest + rest + rest;
  return {{binomials.v[0], b1, b2 + b2 - b1, thrice + thrice + b1}};
}

template <class Sum>
HWY_INLINE void addTo(RowSums<Sum>& total, const RowSums<Sum>& sums) {
  unrolled<momentOrders>([&](auto m) { total.v[m] = total.v[m] + sums.v[m]; });
}

/// Calls f(block) for all blocks of N values. The last one is filled up with zeros.
template <ptrdiff_t N, class T, class F>
HWY_INLINE void forBlocksOf(const T* values, ptrdiff_t count, const F& f) {
  const ptrdiff_t whole = count / N * N;
  for (ptrdiff_t i = 0; i < whole; i += N) f(values + i);
  if (whole == count) return;
  T last[N] = {};
  std::memcpy(last, values + whole, static_cast<size_t>(count - whole) * sizeof(T));
  f(last);
}

/// Pieces end at the same columns whatever the length of a vector, so that sums which doubles must round are the same.
template <class T>
constexpr ptrdiff_t pieceLength = 1024;
template <>
constexpr ptrdiff_t pieceLength<Vemi8u> = 896;

constexpr int ladders = 2;  // independent chains of additions, each of which waits for the one before it

/// Over 112 steps a lane's sums of sums fit 31 bits: 255 * (112 * 113 * 114 * 115) / 24 < 2^31.
static_assert(pieceLength<Vemi8u> <= laneCount<int32_t> * ladders * 112);

/// Each lane of bytes takes nothing but four additions: to the sum, to the sum of the sums so far, and so on. After B
/// steps these hold the lane's values under the binomials of their distance d = B - b from the end, from which the sums
/// of d^k f follow; and the column of lane l is l + N b = (l + N B) - N d, with N the lanes of both vectors. All of it
/// is far below 2^53, thus exact in doubles.
template <class Sum>
HWY_INLINE RowSums<Sum> sumsOfPiece(ptrdiff_t x, const Vemi8u* values, ptrdiff_t count) {
  const Lanes<int32_t> d;
  const hn::Rebind<uint8_t, decltype(d)> dBytes;
  constexpr ptrdiff_t perVector = laneCount<int32_t>, N = ladders * perVector;
  using V = hn::Vec<decltype(d)>;
  RowSums<V> sum[ladders];
  unrolled<ladders>([&](auto k) HWY_ATTR { sum[k] = noSums(d); });
  forBlocksOf<N>(values, count, [&](const Vemi8u* bytes) HWY_ATTR {
    unrolled<ladders>([&](auto k) HWY_ATTR {
      V value = hn::PromoteTo(d, hn::LoadU(dBytes, bytes + k * perVector));
      unrolled<momentOrders>([&](auto m) HWY_ATTR { value = sum[k].v[m] = hn::Add(sum[k].v[m], value); });
    });
  });

  const Lanes<double> dSums;
  constexpr double n = N;
  const ptrdiff_t padded = (count + N - 1) / N * N;
  const auto of = [&](double number) HWY_ATTR { return hn::Set(dSums, number); };
  auto total = noSums(dSums);
  const auto addLanes = [&](ptrdiff_t first, const auto& part) HWY_ATTR {
    const auto sums = ofPowers(decltype(total){{part(0), part(1), part(2), part(3)}});
    const auto end = hn::Iota(dSums, static_cast<double>(padded + first));
    const auto d1 = of(-n) * sums.v[1], d2 = of(n * n) * sums.v[2], d3 = of(-n * n * n) * sums.v[3];
    addTo(total, shifted(end, decltype(total){{sums.v[0], d1, d2, d3}}));
  };
  unrolled<ladders>([&](auto k) HWY_ATTR {
    const auto lower = [&](int m) HWY_ATTR { return hn::PromoteTo(dSums, hn::LowerHalf(sum[k].v[m])); };
    const auto upper = [&](int m) HWY_ATTR {
      return hn::PromoteTo(dSums, hn::UpperHalf(hn::Half<decltype(d)>(), sum[k].v[m]));
    };
    addLanes(k * perVector, lower);
    addLanes(k * perVector + perVector / 2, upper);
  });
  RowSums<Sum> sums;
  unrolled<momentOrders>([&](auto m) HWY_ATTR {
    sums.v[m] = static_cast<Sum>(static_cast<Vemi64s>(hn::GetLane(hn::SumOfLanes(dSums, total.v[m]))));
  });
  return shifted(static_cast<Sum>(x), sums);
}

/// Strand j takes the columns x + 8 i + j; the strands are added in halves.
template <class Sum>
HWY_INLINE RowSums<Sum> sumsOfPiece(ptrdiff_t x, const Vemi32f* values, ptrdiff_t count) {
  constexpr ptrdiff_t strands = 8;
  const hn::CappedTag<double, strands> d;
  const hn::Rebind<float, decltype(d)> dFloats;
  constexpr ptrdiff_t N = hn::MaxLanes(decltype(d)());
  constexpr int vectors = strands / N;
  using V = hn::Vec<decltype(d)>;
  RowSums<V> sum[vectors];
  Vectors<V, vectors> column;
  unrolled<vectors>([&](auto k) HWY_ATTR {
    sum[k] = noSums(d);
    column.v[k] = hn::Iota(d, static_cast<double>(x + k * N));
  });
  forBlocksOf<strands>(values, count, [&](const Vemi32f* floats) HWY_ATTR {
    unrolled<vectors>([&](auto k) HWY_ATTR {
      V term = hn::PromoteTo(d, hn::LoadU(dFloats, floats + k * N));
      sum[k].v[0] = hn::Add(sum[k].v[0], term);
      unrolled<momentOrders - 1>([&](auto m) HWY_ATTR {
        term = hn::Mul(term, column.v[k]);
        sum[k].v[m + 1] = hn::Add(sum[k].v[m + 1], term);
      });
      column.v[k] = hn::Add(column.v[k], hn::Set(d, double{strands}));
    });
  });
  RowSums<Sum> sums;
  unrolled<momentOrders>([&](auto m) HWY_ATTR {
    alignas(laneAlignment) double strand[strands];
    unrolled<vectors>([&](auto k) HWY_ATTR { hn::Store(sum[k].v[m], d, strand + k * N); });
    for (int half = strands / 2; half > 0; half /= 2) {
      for (int j = 0; j < half; ++j) strand[j] += strand[j + half];
    }
    sums.v[m] = strand[0];
  });
  return sums;
}

// ---- The region ---------------------------------------------------------------------------------------------------

/// Unsigned where it counts, since sums of integers may wrap.
template <class Sum>
using Arithmetic = std::conditional_t<std::is_same_v<Sum, Vemi64s>, uint64_t, double>;

template <class A>
using Table = A[momentEntries];

/// table(m, n) += y^n * sums of x^m f.
template <class A>
void addRow(A y, const RowSums<A>& row, Table<A>& table) {
  A power = 1;
  for (int n = 0; n < momentOrders; ++n, power *= y) {
    for (int m = 0; m < momentOrders - n; ++m) table[momentEntry(m, n)] += power * row.v[m];
  }
}

template <class L, class A, class T>
void sumByRows(Image<const T> src, VemiSize roiSize, Table<A>* table) {
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    RowSums<A> row[L::channels] = {};
    forEachPiece<L, pieceLength<T>>(src.row(y), roiSize.width,
                                    [&](int channel, ptrdiff_t x, const T* values, ptrdiff_t count) {
                                      addTo(row[channel], sumsOfPiece<A>(x, values, count));
                                    });
    for (int channel = 0; channel < L::channels; ++channel) addRow(static_cast<A>(y), row[channel], table[channel]);
  }
}

// ---- Bytes by tiles -------------------------------------------------------------------------------------------------

constexpr ptrdiff_t tileWidth = 32, tileHeight = 64;

/// The powers of a tile's columns, behind as many zeros: read from `tileWidth - c` on they begin with the tile's column
/// c, and the columns ahead of it count nothing.
struct ColumnPowers {
  int16_t of[momentOrders][2 * tileWidth] = {};

  constexpr ColumnPowers() {
    for (int x = 0; x < tileWidth; ++x) {
      int power = 1;
      for (int m = 0; m < momentOrders; ++m, power *= x) of[m][tileWidth + x] = static_cast<int16_t>(power);
    }
  }
};
constexpr ColumnPowers columnPowers;

/// What a lane of 32 bits holds at most, when over the rows of a tile sums of sums of x^m f were added up.
constexpr uint64_t largestOfTile(int m) {
  uint64_t largest = static_cast<uint64_t>(255 * tileWidth / laneCount<uint32_t>);
  for (int i = 0; i < m; ++i) largest *= tileWidth - 1;
  for (uint64_t k = 1; k <= static_cast<uint64_t>(momentOrders - m); ++k) largest = largest * (tileHeight + k - 1) / k;
  return largest;
}
static_assert(std::max({largestOfTile(0), largestOfTile(1), largestOfTile(2), largestOfTile(3)}) < uint64_t{1} << 32);

/// In each row lanes get the sums of x^m f over some of the columns, which go up the ladder of sums of sums as the
/// bytes of a row do. Adds the binomials' sums of all columns to `band`, a record for each rung.
HWY_NOINLINE void addTile(Image<const Vemi8u> tile, ptrdiff_t rows, ptrdiff_t seen, uint64_t x0,
                          RowSums<uint64_t> (&band)[momentOrders]) {
  const Lanes<int16_t> d;
  const hn::Rebind<uint8_t, decltype(d)> dBytes;
  const Lanes<uint32_t> dSums;
  constexpr ptrdiff_t N = laneCount<int16_t>;
  constexpr int vectors = static_cast<int>(tileWidth / N);
  using V = hn::Vec<decltype(dSums)>;
  RowSums<V> sum[momentOrders];  // of x^m f, on each rung
  unrolled<momentOrders>([&](auto m) HWY_ATTR { sum[m] = noSums(dSums); });
  for (ptrdiff_t y = 0; y < rows; ++y) {
    Vectors<hn::Vec<decltype(d)>, vectors> value;
    unrolled<vectors>([&](auto i) HWY_ATTR { value.v[i] = hn::PromoteTo(d, hn::LoadU(dBytes, tile.row(y) + i * N)); });
    unrolled<momentOrders>([&](auto m) HWY_ATTR {
      V row = hn::Zero(dSums);
      unrolled<vectors>([&](auto i) HWY_ATTR {
        const auto power = hn::LoadU(d, columnPowers.of[m] + tileWidth - seen + i * N);
        row = hn::Add(row, hn::BitCast(dSums, pairsOfProducts(value.v[i], power)));
      });
      unrolled<momentOrders - m>([&](auto k) HWY_ATTR { row = sum[m].v[k] = hn::Add(sum[m].v[k], row); });
    });
  }
  unrolled<momentOrders>([&](auto k) HWY_ATTR {
    RowSums<uint64_t> sums = {};
    unrolled<momentOrders - k>([&](auto m) HWY_ATTR {
      const auto [even, odd] = evenAndOdd(sum[m].v[k]);
      sums.v[m] = hn::GetLane(hn::SumOfLanes(Lanes<uint64_t>(), hn::Add(even, odd)));
    });
    addTo(band[k], shifted(x0, sums));
  });
}

/// Rows are at least as long as a tile, and the last tile of a row ends with it.
void sumByTiles(Image<const Vemi8u> src, VemiSize roiSize, Table<uint64_t>& table) {
  for (ptrdiff_t y = 0; y < roiSize.height; y += tileHeight) {
    const ptrdiff_t rows = std::min(tileHeight, roiSize.height - y);
    RowSums<uint64_t> band[momentOrders] = {};
    for (ptrdiff_t x = 0; x < roiSize.width; x += tileWidth) {
      const ptrdiff_t first = std::min(x, roiSize.width - tileWidth);
      addTile({src.row(y) + first, src.step}, rows, x - first, static_cast<uint64_t>(x), band);
    }
    for (int m = 0; m < momentOrders; ++m) {
      const auto d = ofPowers(RowSums<uint64_t>{{band[0].v[m], band[1].v[m], band[2].v[m], band[3].v[m]}});
      const RowSums<uint64_t> upwards = {{d.v[0], 0 - d.v[1], d.v[2], 0 - d.v[3]}};
      const auto sums = shifted(static_cast<uint64_t>(y + rows), upwards);
      for (int n = 0; n < momentOrders - m; ++n) table[momentEntry(m, n)] += sums.v[n];
    }
  }
}

// ---- Whether the order of additions matters -------------------------------------------------------------------------

/// No sum over values of at most 1 is above this: those of order 3 are the largest, the longest side's above all.
double largestSum(VemiSize roiSize) {
  const double side = std::max(roiSize.width, roiSize.height);
  return 1.0 / 4 * roiSize.width * roiSize.height * side * side * side;
}

/// Any terms up to here add up in doubles without rounding, if they are integers.
constexpr double exactEnd = 9007199254740992.0;

struct IsNoIntegerUpTo {
  float limit;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Not(hn::And(hn::Le(hn::Abs(v), hn::Set(d, limit)), hn::Eq(hn::Floor(v), v)));
  }
};

/// Of bytes: sums of integers wrap, and doubles must hold them all.
template <class L, class A>
bool anyOrder(Image<const Vemi8u> /*src*/, VemiSize roiSize) {
  return std::is_integral_v<A> || 255 * largestSum(roiSize) < exactEnd;
}

/// Of floats: of integers that are small enough, in the mode where a difference of zero has no sign.
template <class L, class A>
bool anyOrder(Image<const Vemi32f> src, VemiSize roiSize) {
  const double limit = std::floor(exactEnd / 2 / largestSum(roiSize));  // halved for what a float rounds
  if (limit < 1 || !FloatControl::current().roundsToNearest()) return false;
  const IsNoIntegerUpTo unfit = {static_cast<float>(limit)};
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    if (anyElement(ptrdiff_t{roiSize.width} * L::elements, unfit, src.row(y))) return false;
  }
  return true;
}

// ---- Pixel by pixel -------------------------------------------------------------------------------------------------

/// Pixels and the powers of their columns, set out where a loop can load one number into all lanes.
struct PixelsSetOut {
  static constexpr int most = 256;
  double f[most], column[most], square[most], cube[most];

  template <class L, class T>
  void take(int x, const T* pixels, int count) {
    for (int i = 0; i < count; ++i) {
      f[i] = static_cast<double>(elementOf(pixels + ptrdiff_t{i} * L::elements));
      column[i] = x + i;
      square[i] = column[i] * column[i];
      cube[i] = square[i] * column[i];
    }
  }
};

/// One running sum for each entry, which takes x^m (y^n f) pixel after pixel. The powers of y stand side by side in
/// lanes; the sums beyond order 3 are not wanted.
template <class L, class T>
void sumByPixels(Image<const T> src, VemiSize roiSize, Table<double>* table) {
  const hn::CappedTag<double, momentOrders> d;
  constexpr int N = static_cast<int>(hn::MaxLanes(decltype(d)()));
  constexpr int vectors = momentOrders / N;
  PixelsSetOut pixels;
  for (int channel = 0; channel < L::channels; ++channel) {
    RowSums<hn::Vec<decltype(d)>> sum[vectors];
    unrolled<vectors>([&](auto k) HWY_ATTR { sum[k] = noSums(d); });
    for (int y = 0; y < roiSize.height; ++y) {
      alignas(laneAlignment) const double powers[momentOrders] = {1, 1.0 * y, 1.0 * y * y, 1.0 * y * y * y};
      for (int x = 0, count; x < roiSize.width; x += count) {
        count = std::min(PixelsSetOut::most, roiSize.width - x);
        pixels.take<L>(x, src.row(y) + ptrdiff_t{x} * L::elements + channel, count);
        for (int i = 0; i < count; ++i) {
          unrolled<vectors>([&](auto k) HWY_ATTR {
            auto& s = sum[k].v;
            const auto term = hn::Mul(hn::Load(d, powers + k * N), hn::Set(d, pixels.f[i]));
            s[0] = hn::Add(s[0], term);
            s[1] = hn::Add(s[1], hn::Mul(hn::Set(d, pixels.column[i]), term));
            s[2] = hn::Add(s[2], hn::Mul(hn::Set(d, pixels.square[i]), term));
            s[3] = hn::Add(s[3], hn::Mul(hn::Set(d, pixels.cube[i]), term));
          });
        }
      }
    }
    unrolled<momentOrders>([&](auto m) HWY_ATTR {
      alignas(laneAlignment) double entry[momentOrders];
      unrolled<vectors>([&](auto k) HWY_ATTR { hn::Store(sum[k].v[m], d, entry + k * N); });
      for (int n = 0; n < momentOrders - m; ++n) table[channel][momentEntry(m, n)] = entry[n];
    });
  }
}

/// Byte rows shorter than a tile, and images of several channels, go by rows.
template <class L, class A, class T>
void sumFast(Image<const T> src, VemiSize roiSize, Table<A>* table) {
  if constexpr (std::is_same_v<T, Vemi8u> && L::elements == 1) {
    if (roiSize.width >= tileWidth && anyOrder<L, A>(src, roiSize)) {
      Table<uint64_t> sums = {};
      sumByTiles(src, roiSize, sums);
      std::copy_n(sums, momentEntries, table[0]);
      return;
    }
  }
  sumByRows<L>(src, roiSize, table);
}

template <class Sum, class L, class T>
VemiStatus moments(Image<const T> src, VemiSize roiSize, VemiMomentState* pState) {
  if (VemiStatus bad =
          firstOf(checkNull(src, pState), checkRecord(pState, momentTag<Sum>), checkStep(src), checkSize(roiSize))) {
    return bad;
  }
  const Vemi64s rowBytes = Vemi64s{roiSize.width} * pixelBytes<T, L>;
  if (rowBytes > src.step) return vemiErrStride;
  using A = Arithmetic<Sum>;
  Table<A> table[3] = {};
  if (pState->hint == vemiHintAccurate && std::is_same_v<Sum, Vemi64f> && !anyOrder<L, A>(src, roiSize)) {
    if constexpr (std::is_same_v<Sum, Vemi64f>) sumByPixels<L>(src, roiSize, table);
  } else {
    sumFast<L>(src, roiSize, table);
  }
  std::memcpy(&pState->sum, table, sizeof table);
  pState->nChannels = L::channels;
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

VemiStatus vemiMomentInitAlloc_64f(VemiMomentState** ppState, vemiHint hint) {
  return initAlloc<Vemi64f>(ppState, hint);
}
VemiStatus vemiMomentInitAlloc_64s(VemiMomentState** ppState, vemiHint hint) {
  return initAlloc<Vemi64s>(ppState, hint);
}

VemiStatus vemiMomentFree_64f(VemiMomentState* pState) { return freeRecord(pState, momentTag<Vemi64f>); }
VemiStatus vemiMomentFree_64s(VemiMomentState* pState) { return freeRecord(pState, momentTag<Vemi64s>); }

VemiStatus vemiMomentInit_64s(VemiMomentState* pState, vemiHint hint) { return init(pState, hint); }

VemiStatus vemiMomentGetStateSize_64s(vemiHint /*hint*/, int* pSize) {
  if (pSize == nullptr) return vemiErrNullPtr;
  *pSize = sizeof(VemiMomentState);
  return vemiOk;
}

VEMI_DEFINE(vemiMoments64f_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, C1>)
VEMI_DEFINE(vemiMoments64f_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, C3>)
VEMI_DEFINE(vemiMoments64f_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, AC4>)
VEMI_DEFINE(vemiMoments64f_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, C1>)
VEMI_DEFINE(vemiMoments64f_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, C3>)
VEMI_DEFINE(vemiMoments64f_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64f, AC4>)
VEMI_DEFINE(vemiMoments64s_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64s, C1>)
VEMI_DEFINE(vemiMoments64s_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64s, C3>)
VEMI_DEFINE(vemiMoments64s_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(VemiMomentState, pState)), moments<Vemi64s, AC4>)
