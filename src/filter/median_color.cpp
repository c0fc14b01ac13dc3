// vemiFilterMedianColor: of the pixels of a square the one that is the nearest to all others, by the sum of its
// distances |r - r'| + |g - g'| + |b - b'|; of several the first, row by row.
//
// Windows share their pairs of pixels. When a row enters, the distances of its pixels to those before them are formed,
// a row of distances for each direction and length that fit a window; a window adds up what it needs.
// Checks: null, size, step, mask size.

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "core/lane_width.h"
#include "core/pixels.h"
#include "core/windows.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

/// What sums of distances stand in: up to 24 of 765, or of 196605.
template <class T>
using SumOf = std::conditional_t<sizeof(T) == 1, int16_t, std::conditional_t<sizeof(T) == 2, int32_t, float>>;

/// A row of each of the three channels.
template <class T>
struct Channels {
  const T* row[3];

  Channels from(ptrdiff_t x) const { return {{row[0] + x, row[1] + x, row[2] + x}}; }
};

template <class T>
struct Distance {
  Channels<T> a, b;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, ptrdiff_t i) const {
    const auto of = [&](int c) HWY_ATTR {
      return hn::Abs(hn::Sub(loadExtended(d, a.row[c] + i), loadExtended(d, b.row[c] + i)));
    };
    return hn::Add(hn::Add(of(0), of(1)), of(2));
  }
};

/// The distances between pixels of a square of `side`, as rows by the vector from the upper pixel, or the left one of
/// two in a row, to the other one.
template <int side, class T>
struct Distances {
  using Sum = SumOf<T>;
  static constexpr int reach = side - 1, across = 2 * reach + 1;

  RowRing<Sum> ring[side][across];  // of those by 0 rows the first half is empty
  RowRing<T> channel[3];

  explicit Distances(Vemi64s reached) {
    forDirections([&](int dx, int dy) { of(dx, dy) = RowRing<Sum>(side - dy, reached); });
    for (auto& rows : channel) rows = RowRing<T>(side, reached);
  }

  template <class F>
  static void forDirections(const F& f) {
    for (int dy = 0; dy < side; ++dy) {
      for (int dx = dy == 0 ? 1 : -reach; dx <= reach; ++dx) f(dx, dy);
    }
  }

  RowRing<Sum>& of(int dx, int dy) { return ring[dy][dx + reach]; }

  /// f(each ring that has rows)
  template <class F>
  void forRings(const F& f) {
    forDirections([&](int dx, int dy) { f(of(dx, dy)); });
    for (auto& rows : channel) f(rows);
  }

  /// The n-th row, of L.
  template <class L>
  void enter(const T* row, ptrdiff_t n) {
    const ptrdiff_t width = channel[0].elements();
    mapPixels(width, IdenticalChannels(), planeRow(channel[0].turn(), channel[1].turn(), channel[2].turn()),
              pixelRow<L>(row));
    const auto before = [&](int dy) {
      return Channels<T>{{channel[0].newest(dy), channel[1].newest(dy), channel[2].newest(dy)}};
    };
    forDirections([&](int dx, int dy) {
      if (dy > n) return;
      const Distance<T> distance = {before(dy).from(std::max(-dx, 0)), before(0).from(std::max(dx, 0))};
      mapPlaces(width - std::abs(dx), eachPlace(distance), of(dx, dy).turn());
    });
  }

  /// Between two pixels of the newest window, the first of which comes first row by row: a row for all windows.
  const Sum* between(int x0, int y0, int x1, int y1) {
    return of(x1 - x0, y1 - y0).newest(reach - y1) + std::min(x0, x1);
  }
};

/// Which pixel of a window has the least sum, for all windows of a row; distance[p] holds those of pixel p.
template <int pixels, class Sum, class Index>
HWY_NOINLINE void nearestToAll(ptrdiff_t count, const Sum* const (&distance)[pixels][pixels - 1], Index* index) {
  const Lanes<Sum> d;
  const hn::RebindToSigned<decltype(d)> di;
  constexpr int vectors = 2;
  constexpr ptrdiff_t N = laneCount<Sum>, items = vectors * N;
  const auto kernel = [&](Index* out, ptrdiff_t i) HWY_ATTR {
    const auto sumOf = [&](int pixel) HWY_ATTR {
      auto sum = blockOf<vectors>(d, [&](auto k) HWY_ATTR { return hn::LoadU(d, distance[pixel][0] + i + k * N); });
      for (int other = 1; other < pixels - 1; ++other) {
        const Sum* const more = distance[pixel][other] + i;
        unrolled<vectors>([&](auto k) HWY_ATTR { sum.v[k] = hn::Add(sum.v[k], hn::LoadU(d, more + k * N)); });
      }
      return sum;
    };
    auto least = sumOf(0);
    auto nearest = blockOf<vectors>(di, [&](auto) HWY_ATTR { return hn::Zero(di); });
    for (int pixel = 1; pixel < pixels; ++pixel) {
      const auto sum = sumOf(pixel);
      unrolled<vectors>([&](auto k) HWY_ATTR {
        const auto isLess = hn::Lt(sum.v[k], least.v[k]);
        least.v[k] = hn::IfThenElse(isLess, sum.v[k], least.v[k]);
        nearest.v[k] = hn::IfThenElse(hn::RebindMask(di, isLess), hn::Set(di, static_cast<Index>(pixel)), nearest.v[k]);
      });
    }
    unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(nearest.v[k], di, out + k * N); });
  };
  forWholeBlocks<items>(std::max(count, items), kernel, Strand<Index>{index}, Places());
}

template <int side, class L, class T>
VemiStatus medianOfColours(Image<const T> image, Image<T> dst, VemiSize roiSize) {
  using Sum = SumOf<T>;
  using Index = hn::TFromD<hn::RebindToSigned<Lanes<Sum>>>;
  constexpr int pixels = side * side;
  constexpr Window window = {side, side, side / 2, side / 2};
  const ptrdiff_t width = roiSize.width;
  Distances<side, T> distances(Vemi64s{roiSize.width} + side - 1);
  RowRing<Index> indices(1, width);
  Pieces pieces;
  distances.forRings([&](auto& ring) { pieces.add<char>(ring.bytes()); });
  pieces.add<char>(indices.bytes());
  const Scratch scratch(pieces);
  if (scratch.failed()) return vemiErrMemAlloc;
  Pieces places;
  const auto place = [&](auto& ring) { ring.place(scratch[places.add<char>(ring.bytes())]); };
  distances.forRings(place);
  place(indices);

  const auto src = windowed<L>(image, window);
  Index* const index = indices.turn();
  const auto enter = [&](ptrdiff_t y) { distances.template enter<L>(src.row(y), y); };
  const auto row = [&](ptrdiff_t y) {
    const T* pixel[pixels];
    const Sum* distance[pixels][pixels - 1];
    for (int p = 0; p < pixels; ++p) {
      const int x0 = p % side, y0 = p / side;
      pixel[p] = src.row(y + y0) + x0 * L::elements;
      for (int q = p + 1; q < pixels; ++q) {
        distance[p][q - 1] = distance[q][p] = distances.between(x0, y0, q % side, q / side);
      }
    }
    nearestToAll<pixels>(width, distance, index);
    T* out = dst.row(y);
    for (ptrdiff_t x = 0; x < width; ++x) {
      std::memcpy(out + x * L::elements, pixel[index[x]] + x * L::elements, 3 * sizeof(T));
    }
  };
  forWindows(window, 0, roiSize.height, enter, row);
  return vemiOk;
}

template <class T, class L>
VemiStatus medianColour(Image<const T> src, Image<T> dst, VemiSize roiSize, int maskSize) {
  const bool isMask = maskSize == vemiMask3x3 || maskSize == vemiMask5x5;
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), isMask ? vemiOk : vemiErrMaskSize)) {
    return bad;
  }
  if (maskSize == vemiMask3x3) return medianOfColours<3, L>(src, dst, roiSize);
  return medianOfColours<5, L>(src, dst, roiSize);
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define MASK_SIZE ((int maskSize), (maskSize))

VEMI_DEFINE(vemiFilterMedianColor_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), medianColour<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMedianColor_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), medianColour<Vemi8u, AC4>)
VEMI_DEFINE(vemiFilterMedianColor_16s_C3R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), medianColour<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMedianColor_16s_AC4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), medianColour<Vemi16s, AC4>)
VEMI_DEFINE(vemiFilterMedianColor_32f_C3R, VEMI_SRC_DST(Vemi32f, MASK_SIZE), medianColour<Vemi32f, C3>)
VEMI_DEFINE(vemiFilterMedianColor_32f_AC4R, VEMI_SRC_DST(Vemi32f, MASK_SIZE), medianColour<Vemi32f, AC4>)
