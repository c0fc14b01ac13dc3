// vemiQualityIndex: the mean over all windows of 8 x 8 of how alike two images are in luminance, contrast and
// structure. Checks: null, size, step.
//
// With the sums S1 and S2 of a window's pixels, Sq of their squares and S12 of their products, R = S1^2 + S2^2 and P =
// S1 S2, the index is (2 C / V) (2 P / R), where V = n Sq - R and C = n S12 - P. Sums of columns are made of rows, and
// sums of windows of columns; what a small image has no pixels for is zero, which changes no sum.
//
// An index is rounded to a multiple of 2^-30, so that sums of them are exact, in whatever order they are made.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/numbers.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/scratch.h"
#include "measure/exports.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

constexpr int windowSize = 8;

using DF = Lanes<double>;
using VF = hn::Vec<DF>;

/// The sum of those indices of a vector whose number is below `count`.
HWY_INLINE VF addIndices(VF sum, VF numerator, VF denominator, ptrdiff_t count) {
  const DF d;
  const VF binade = hn::Set(d, 0x1.8p22);  // here a unit in the last place is 2^-30
  const VF index = hn::Sub(hn::Add(hn::Div(numerator, denominator), binade), binade);
  if (HWY_LIKELY(count >= laneCount<double>)) return hn::Add(sum, index);
  return hn::Add(sum, hn::IfThenElseZero(hn::FirstN(d, static_cast<size_t>(std::max<ptrdiff_t>(count, 0))), index));
}

/// The sum of the lanes, in any order since it is exact.
HWY_INLINE double total(VF sum) {
  double lane[laneCount<double>], all = 0;
  hn::StoreU(sum, DF(), lane);
  for (const double each : lane) all += each;
  return all;
}

/// out[i] = in[i] + in[i + 1] + in[i + 2] + in[i + 3], in pairs; add(d, a, b).
template <class T, class Add>
HWY_INLINE void addFours(ptrdiff_t count, const T* in, T* out, const Add& add) {
  const Lanes<T> d;
  for (ptrdiff_t i = 0; i < count; i += laneCount<T>) {
    const auto first = add(d, hn::LoadU(d, in + i), hn::LoadU(d, in + i + 1));
    const auto second = add(d, hn::LoadU(d, in + i + 2), hn::LoadU(d, in + i + 3));
    hn::StoreU(add(d, first, second), d, out + i);
  }
}

struct PlainAdd {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Add(a, b);
  }
};

/// Of two sums of 16 bits in a lane of 32.
struct AddInHalves {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const hn::Repartition<Vemi16s, D> dHalves;
    return hn::BitCast(d, hn::Add(hn::BitCast(dHalves, a), hn::BitCast(dHalves, b)));
  }
};

/// The sums of a strip of windows, while rows enter. Memory is zero at first, and as long as rows are missing.
template <class S>
class Strip;

/// Of bytes, all is exact in integers, down to R, V, 2 P and 2 C, which are below 2^30. A pixel of both images is a
/// pair of 16 bits. Sums of columns move on.
template <>
class Strip<Vemi8u> {
 public:
  static constexpr ptrdiff_t windows = 248, columns = 256;

  void enter(int row, const Vemi8u* a, const Vemi8u* b) {
    const Lanes<Vemi32s> d;
    const Lanes<Vemi16s> dHalves;
    const hn::Rebind<Vemi8u, decltype(d)> dBytes;
    Vemi32s* const oldRow = pairs_[row % windowSize];
    for (ptrdiff_t i = 0; i < columns; i += laneCount<Vemi32s>) {
      const auto pair = hn::Or(hn::PromoteTo(d, hn::LoadU(dBytes, a + i)),
                               hn::ShiftLeft<16>(hn::PromoteTo(d, hn::LoadU(dBytes, b + i))));
      const auto in = hn::BitCast(dHalves, pair), out = hn::BitCast(dHalves, hn::LoadU(d, oldRow + i));
      hn::StoreU(pair, d, oldRow + i);
      const auto sums = hn::BitCast(dHalves, hn::LoadU(d, sums_ + i));
      hn::StoreU(hn::BitCast(d, hn::Add(sums, hn::Sub(in, out))), d, sums_ + i);
      const auto moved = [&](Vemi32s* sum, auto entered, auto left) HWY_ATTR {
        hn::StoreU(hn::Add(hn::LoadU(d, sum + i), hn::Sub(entered, left)), d, sum + i);
      };
      moved(squares_, pairsOfProducts(in, in), pairsOfProducts(out, out));
      moved(products_, pairsOfProducts(in, exchanged(in)), pairsOfProducts(out, exchanged(out)));
    }
  }

  /// The sum of the first `count` windows' indices.
  double indices(ptrdiff_t count, int pixels) {
    const Lanes<Vemi32s> d;
    const Lanes<Vemi16s> dHalves;
    constexpr ptrdiff_t N = laneCount<Vemi32s>, N64 = laneCount<double>;
    addFours(count + 4, sums_, fourSums_, AddInHalves());
    addFours(count + 4, squares_, fourSquares_, PlainAdd());
    addFours(count + 4, products_, fourProducts_, PlainAdd());
    const auto n = hn::Set(d, pixels);
    VF lower = hn::Zero(DF()), upper = lower;
    for (ptrdiff_t i = 0; i < count; i += N) {
      const auto eight = [&](const Vemi32s* four) HWY_ATTR { return hn::LoadU(d, four + i); };
      const auto sums = hn::BitCast(dHalves, AddInHalves()(d, eight(fourSums_), eight(fourSums_ + 4)));
      const auto squares = hn::Add(eight(fourSquares_), eight(fourSquares_ + 4));
      const auto products = hn::Add(eight(fourProducts_), eight(fourProducts_ + 4));
      const auto r = pairsOfProducts(sums, sums), p2 = pairsOfProducts(sums, exchanged(sums));
      const auto v = hn::Sub(hn::Mul(n, squares), r), c2 = hn::Sub(hn::Mul(n, products), p2);
      // Where one of the divisors is zero, so is what it divides: both become 1.
      const auto flat = hn::VecFromMask(d, hn::Eq(v, hn::Zero(d))), dark = hn::VecFromMask(d, hn::Eq(r, hn::Zero(d)));
      const auto add = [&](VF sum, auto half, ptrdiff_t ofHalf) HWY_ATTR {
        const VF numerator = hn::Mul(half(hn::Sub(c2, flat)), half(hn::Sub(p2, dark)));
        const VF denominator = hn::Mul(half(hn::Sub(v, flat)), half(hn::Sub(r, dark)));
        return addIndices(sum, numerator, denominator, ofHalf);
      };
      const hn::Half<decltype(d)> dHalf;
      lower = add(
          lower, [](auto x) HWY_ATTR { return hn::PromoteTo(DF(), hn::LowerHalf(x)); }, count - i);
      upper = add(
          upper, [&](auto x) HWY_ATTR { return hn::PromoteTo(DF(), hn::UpperHalf(dHalf, x)); }, count - i - N64);
    }
    return total(hn::Add(lower, upper));
  }

 private:
  static constexpr ptrdiff_t room = columns + laneCount<Vemi32s>;  // windows behind the last one may be read

  Vemi32s pairs_[windowSize][columns];
  Vemi32s sums_[room], squares_[room], products_[room];  // of columns: pairs of S1 and S2, Sq, 2 S12
  Vemi32s fourSums_[room], fourSquares_[room], fourProducts_[room];

  template <class V>
  static HWY_INLINE V exchanged(V pairs) {
    const hn::Repartition<Vemi32u, hn::DFromV<V>> d;
    return hn::BitCast(hn::DFromV<V>(), hn::RotateRight<16>(hn::BitCast(d, pairs)));
  }
};

/// Of floats, sums are made in pairs, and pairs of those, in double; each row adds one sum of each kind.
template <>
class Strip<Vemi32f> {
 public:
  static constexpr ptrdiff_t windows = 120, columns = 128;

  void enter(int row, const Vemi32f* a, const Vemi32f* b) {
    const DF d;
    const hn::Rebind<Vemi32f, DF> dFloats;
    for (ptrdiff_t i = 0; i < columns; i += laneCount<double>) {
      const VF x = hn::PromoteTo(d, hn::LoadU(dFloats, a + i)), y = hn::PromoteTo(d, hn::LoadU(dFloats, b + i));
      of_[0].enter(row, i, x);
      of_[1].enter(row, i, y);
      of_[2].enter(row, i, hn::Add(hn::Mul(x, x), hn::Mul(y, y)));
      of_[3].enter(row, i, hn::Mul(x, y));
    }
  }

  double indices(ptrdiff_t count, int pixels) {
    const DF d;
    for (Quantity& each : of_) addFours(count + 4, each.eights, each.fours, PlainAdd());
    const VF n = hn::Set(d, pixels), one = hn::Set(d, 1.0);
    VF sum = hn::Zero(d);
    for (ptrdiff_t i = 0; i < count; i += laneCount<double>) {
      const VF s1 = of_[0].window(i), s2 = of_[1].window(i), sq = of_[2].window(i), s12 = of_[3].window(i);
      const VF r = hn::Add(hn::Mul(s1, s1), hn::Mul(s2, s2)), p = hn::Mul(s1, s2);
      const VF nsq = hn::Mul(n, sq), v = hn::Sub(nsq, r), c = hn::Sub(hn::Mul(n, s12), p);
      const auto flat = hn::Le(v, hn::Mul(nsq, hn::Set(d, 0x1p-46))), dark = hn::Eq(r, hn::Zero(d));
      const VF numerator = hn::Mul(hn::IfThenElse(flat, one, hn::Add(c, c)), hn::IfThenElse(dark, one, hn::Add(p, p)));
      const VF denominator = hn::Mul(hn::IfThenElse(flat, one, v), hn::IfThenElse(dark, one, r));
      sum = addIndices(sum, numerator, denominator, count - i);
    }
    return total(sum);
  }

 private:
  static constexpr ptrdiff_t room = columns + laneCount<double>;

  /// Of each column: its latest element, sums of two, of four and of eight elements, down to the latest one. And in
  /// each row, sums of four columns.
  struct Quantity {
    double latest[columns], twos[2][columns], quads[4][columns], eights[room], fours[room];

    HWY_INLINE void enter(int row, ptrdiff_t i, VF v) {
      const auto combined = [&](double* earlier, VF later) HWY_ATTR {
        const VF sum = hn::Add(hn::LoadU(DF(), earlier + i), later);
        hn::StoreU(later, DF(), earlier + i);
        return sum;
      };
      const VF two = combined(latest, v), four = combined(twos[row % 2], two);
      hn::StoreU(combined(quads[row % 4], four), DF(), eights + i);
    }
    HWY_INLINE VF window(ptrdiff_t i) const {
      return hn::Add(hn::LoadU(DF(), fours + i), hn::LoadU(DF(), fours + i + 4));
    }
  };

  Quantity of_[4];
};

/// A tile is a strip of some rows of windows.
constexpr int tileRows = 128;

/// What a thread works with: rows of single channels, and the strips of all channels.
template <class L, class S>
struct TileRoom {
  S row[2][L::channels][Strip<S>::columns];
  Strip<S> strip[L::channels];
};

template <class L, class S>
void readRow(const S* src, ptrdiff_t count, S (&row)[L::channels][Strip<S>::columns]) {
  PlaneRow<S, L::channels> planes;
  for (int channel = 0; channel < L::channels; ++channel) planes.first[channel] = row[channel];
  movePixels(count, planes, pixelRow<L>(src));
}

/// Windows along one side of a region.
struct WindowRun {
  const int size, count;

  explicit WindowRun(int extent) : size(std::min(extent, windowSize)), count(extent - size + 1) {}
  int tiles(ptrdiff_t each) const { return static_cast<int>((count - 1) / each + 1); }
};

/// Of the windows in a tile, the sum of indices of each channel.
template <class L, class S>
void measureTile(Image<const S> src1, Image<const S> src2, VemiSize roiSize, int row, int column, TileRoom<L, S>& room,
                 double* sums) {
  const WindowRun across(roiSize.width), down(roiSize.height);
  const ptrdiff_t x = column * Strip<S>::windows, y = ptrdiff_t{row} * tileRows;
  const ptrdiff_t windows = std::min(Strip<S>::windows, across.count - x),
                  rows = std::min<ptrdiff_t>(tileRows, down.count - y);
  std::memset(static_cast<void*>(&room), 0, sizeof room);
  std::fill_n(sums, L::channels, 0.0);
  for (int entered = 0; entered < rows + windowSize - 1; ++entered) {
    if (y + entered < roiSize.height) {
      readRow<L>(src1.row(y + entered) + x * L::elements, windows + across.size - 1, room.row[0]);
      readRow<L>(src2.row(y + entered) + x * L::elements, windows + across.size - 1, room.row[1]);
    } else {  // fewer rows than a window has
      std::memset(room.row, 0, sizeof room.row);
    }
    for (int channel = 0; channel < L::channels; ++channel) {
      room.strip[channel].enter(entered, room.row[0][channel], room.row[1][channel]);
      if (entered < windowSize - 1) continue;
      sums[channel] += room.strip[channel].indices(windows, across.size * down.size);
    }
  }
}

/// A sum of multiples of 2^-30, which may have more than 64 bits.
class ExactTotal {
 public:
  void add(double sum) {
    if (sum != sum) {
      isNaN_ = true;
    } else {
      const Vemi64s units = static_cast<Vemi64s>(sum * 0x1p30);
      whole_ += units >> 30;
      rest_ += units & ((1 << 30) - 1);
    }
  }
  /// Rounded once.
  double units() const {
    if (isNaN_) return std::numeric_limits<double>::quiet_NaN();
    return static_cast<double>(whole_ + (rest_ >> 30)) * 0x1p30 + static_cast<double>(rest_ & ((1 << 30) - 1));
  }

 private:
  Vemi64s whole_ = 0, rest_ = 0;
  bool isNaN_ = false;
};

template <class L, class S>
VemiStatus qualityIndex(Image<const S> src1, Image<const S> src2, VemiSize roiSize, Vemi32f* pQualityIndex) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, pQualityIndex), checkSize(roiSize), checkStep(src1, src2))) {
    return bad;
  }
  return roundingToNearest([&]() -> VemiStatus {
    const WindowRun across(roiSize.width), down(roiSize.height);
    const TileGrid grid = {across.tiles(Strip<S>::windows), down.tiles(tileRows)};
    const Vemi64s tiles = Vemi64s{grid.across} * grid.down;
    Pieces pieces;
    const auto ofTiles = pieces.add<double>(limitedProduct(tiles, L::channels));
    const Scratch results(pieces);
    if (results.failed()) return vemiErrMemAlloc;
    Pieces slice;
    const auto room = slice.add<TileRoom<L, S>>(1);
    const auto nothing = [](Memory) {};
    const auto tile = [&](int row, int column, Memory, Memory own) {
      double* const sums = results[ofTiles] + (ptrdiff_t{row} * grid.across + column) * L::channels;
      measureTile<L, S>(src1, src2, roiSize, row, column, *own[room], sums);
    };
    if (const VemiStatus bad = forTiles(TeamRows{false}, grid, {.slice = slice}, nothing, tile)) return bad;
    const double windows = static_cast<double>(Vemi64s{across.count} * down.count);
    for (int channel = 0; channel < L::channels; ++channel) {
      ExactTotal sum;
      for (Vemi64s i = 0; i < tiles; ++i) sum.add(results[ofTiles][static_cast<ptrdiff_t>(i) * L::channels + channel]);
      pQualityIndex[channel] = static_cast<Vemi32f>(sum.units() / (windows * 0x1p30));
    }
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define INDEX VEMI_RESULT(Vemi32f, pQualityIndex)

VEMI_DEFINE(vemiQualityIndex_8u32f_C1R, VEMI_2SRC(Vemi8u, INDEX), qualityIndex<C1>)
VEMI_DEFINE(vemiQualityIndex_8u32f_C3R, VEMI_2SRC(Vemi8u, INDEX), qualityIndex<C3>)
VEMI_DEFINE(vemiQualityIndex_8u32f_AC4R, VEMI_2SRC(Vemi8u, INDEX), qualityIndex<AC4>)
VEMI_DEFINE(vemiQualityIndex_32f_C1R, VEMI_2SRC(Vemi32f, INDEX), qualityIndex<C1>)
VEMI_DEFINE(vemiQualityIndex_32f_C3R, VEMI_2SRC(Vemi32f, INDEX), qualityIndex<C3>)
VEMI_DEFINE(vemiQualityIndex_32f_AC4R, VEMI_2SRC(Vemi32f, INDEX), qualityIndex<AC4>)
