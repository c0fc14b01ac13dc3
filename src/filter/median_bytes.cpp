// Medians of bytes in time that does not depend on the window. Each column has the counts of its pixels in the window's
// rows, and moves on from row to row by a byte that enters and one that leaves. The counts of a window are the sums of
// its columns'; they move on likewise, and only where they are asked for: those of the upper halves of bytes always,
// those of the lower halves for the one upper half that the median has.
//
// All counts are sums from 0 on: of the bytes whose half is not above 0, 1, ... 15. So no search adds them up: the half
// in question is the number of sums that do not reach the rank.

#include <algorithm>

#include "core/lanes.h"
#include "core/parallel.h"
#include "core/scratch.h"
#include "filter/median_counts.h"

namespace vemi::filter {
namespace {

constexpr int halves = 16;

/// Sixteen sums in lanes.
template <class Count>
struct Sums {
  using D = hn::CappedTag<Count, halves>;
  static constexpr int lanes = static_cast<int>(hn::MaxLanes(D())), vectors = halves / lanes;

  Vectors<hn::Vec<D>, vectors> part;

  HWY_INLINE static Sums zero() {
    Sums sums;
    unrolled<vectors>([&](auto k) HWY_ATTR { sums.part.v[k] = hn::Zero(D()); });
    return sums;
  }
  HWY_INLINE static Sums of(const Count* from) {
    Sums sums;
    unrolled<vectors>([&](auto k) HWY_ATTR { sums.part.v[k] = hn::LoadU(D(), from + k * lanes); });
    return sums;
  }
  HWY_INLINE void store(Count* to) const {
    unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(part.v[k], D(), to + k * lanes); });
  }
  HWY_INLINE void add(const Count* other) {
    unrolled<vectors>([&](auto k) HWY_ATTR { part.v[k] = hn::Add(part.v[k], hn::LoadU(D(), other + k * lanes)); });
  }
  HWY_INLINE void subtract(const Count* other) {
    unrolled<vectors>([&](auto k) HWY_ATTR { part.v[k] = hn::Sub(part.v[k], hn::LoadU(D(), other + k * lanes)); });
  }
  /// How many of them are less.
  HWY_INLINE ptrdiff_t countBelow(Count rank) const {
    size_t count = 0;
    unrolled<vectors>([&](auto k) HWY_ATTR { count += hn::CountTrue(D(), hn::Lt(part.v[k], hn::Set(D(), rank))); });
    return static_cast<ptrdiff_t>(count);
  }
};

/// The sums of a single half.
template <class Count>
struct Single {
  alignas(laneAlignment) Count of[halves][halves];

  constexpr Single() : of() {
    for (int half = 0; half < halves; ++half) {
      for (int i = half; i < halves; ++i) of[half][i] = 1;
    }
  }
};

template <class Count>
constexpr Single<Count> single;

/// The columns of a strip of the region.
template <class Count>
class Columns {
 public:
  static Vemi64s length(Vemi64s columns) { return limitedProduct(columns, Vemi64s{halves} * (1 + halves)); }

  Columns(Count* memory, ptrdiff_t columns) : upper_(memory), lower_(memory + columns * halves), columns_(columns) {
    std::fill_n(memory, length(columns), Count());
  }

  const Count* upper(ptrdiff_t x) const { return upper_ + x * halves; }
  /// Of the bytes that have this upper half.
  const Count* lower(ptrdiff_t half, ptrdiff_t x) const { return lower_ + (half * columns_ + x) * halves; }

  void enter(const Vemi8u* row, ptrdiff_t pixel) {
    for (ptrdiff_t x = 0; x < columns_; ++x) {
      const Vemi8u in = row[x * pixel];
      change(upper(x), [&](auto& sums) HWY_ATTR { sums.add(single<Count>.of[in / halves]); });
      change(lower(in / halves, x), [&](auto& sums) HWY_ATTR { sums.add(single<Count>.of[in % halves]); });
    }
  }

  void move(const Vemi8u* entering, const Vemi8u* leaving, ptrdiff_t pixel) {
    for (ptrdiff_t x = 0; x < columns_; ++x) {
      const Vemi8u in = entering[x * pixel], out = leaving[x * pixel];
      change(upper(x), [&](auto& sums) HWY_ATTR {
        sums.add(single<Count>.of[in / halves]);
        sums.subtract(single<Count>.of[out / halves]);
      });
      change(lower(in / halves, x), [&](auto& sums) HWY_ATTR { sums.add(single<Count>.of[in % halves]); });
      change(lower(out / halves, x), [&](auto& sums) HWY_ATTR { sums.subtract(single<Count>.of[out % halves]); });
    }
  }

 private:
  Count *upper_, *lower_;
  ptrdiff_t columns_;

  template <class F>
  HWY_INLINE static void change(const Count* place, const F& f) {
    auto sums = Sums<Count>::of(place);
    f(sums);
    sums.store(const_cast<Count*>(place));
  }
};

/// The medians of a row of windows, each `width` columns wide; `rank` counts from 1.
template <class Count>
HWY_NOINLINE void medianRow(const Columns<Count>& columns, ptrdiff_t count, ptrdiff_t width, Count rank, Vemi8u* dst,
                            ptrdiff_t pixel) {
  alignas(laneAlignment) Count lowerSums[halves][halves];
  ptrdiff_t upTo[halves];  // for which window these are
  std::fill_n(upTo, halves, -width);
  alignas(laneAlignment) Count before[2 * halves] = {};
  auto upper = Sums<Count>::zero();
  for (ptrdiff_t x = 0; x < width; ++x) upper.add(columns.upper(x));
  for (ptrdiff_t x = 0;; ++x) {
    const ptrdiff_t half = upper.countBelow(rank);
    upper.store(before + halves);
    const auto rest = static_cast<Count>(rank - before[halves - 1 + half]);
    const auto move = [&](Sums<Count>& sums) HWY_ATTR {
      for (ptrdiff_t u = upTo[half]; u < x; ++u) {
        sums.add(columns.lower(half, u + width));
        sums.subtract(columns.lower(half, u));
      }
    };
    Sums<Count> lower;
    if (2 * (x - upTo[half]) < width) {
      lower = Sums<Count>::of(lowerSums[half]);
      move(lower);
    } else {
      lower = Sums<Count>::zero();
      for (ptrdiff_t u = x; u < x + width; ++u) lower.add(columns.lower(half, u));
    }
    lower.store(lowerSums[half]);
    upTo[half] = x;
    dst[x * pixel] = static_cast<Vemi8u>(half * halves + lower.countBelow(rest));
    if (x + 1 == count) return;
    upper.add(columns.upper(x + width));
    upper.subtract(columns.upper(x));
  }
}

/// So many columns of the region at once: their counts fit the second cache, unless windows are wider.
ptrdiff_t stripWidth(ptrdiff_t width, ptrdiff_t windowWidth) {
  const ptrdiff_t most = std::max<ptrdiff_t>(256, windowWidth), strips = (width - 1) / most + 1;
  return (width - 1) / strips + 1;
}

}  // namespace

VemiStatus medianByCounts(const MedianCall<Vemi8u>& call) {
  const auto run = [&]<class Count>(Count) {
    const ptrdiff_t width = call.roiSize.width, windowWidth = call.mask.width, windowHeight = call.mask.height;
    const ptrdiff_t strip = stripWidth(width, windowWidth);
    Pieces pieces;
    const auto counts = pieces.add<Count>(Columns<Count>::length(Vemi64s{strip} + windowWidth - 1));
    const bool small = Vemi64s{width} * call.roiSize.height <= 4096, keepsAlpha = call.channels < call.pixel;
    return forBands(TeamRows{small || !keepsAlpha}, call.roiSize.height, {.slice = pieces},
                    [=, &call](int first, int rows, Memory own) {
                      const auto median = [&](ptrdiff_t x, int channel) {
                        const ptrdiff_t count = std::min(strip, width - x), from = x * call.pixel + channel;
                        const auto row = [&](ptrdiff_t y) { return call.src.row(y) + from; };
                        Columns<Count> columns(own[counts], count + windowWidth - 1);
                        for (ptrdiff_t y = first; y < first + windowHeight; ++y) columns.enter(row(y), call.pixel);
                        for (ptrdiff_t y = first;; ++y) {
                          medianRow(columns, count, windowWidth, static_cast<Count>(call.area() / 2 + 1),
                                    call.dst.row(y) + from, call.pixel);
                          if (y + 1 == ptrdiff_t{first} + rows) return;
                          columns.move(row(y + windowHeight), row(y), call.pixel);
                        }
                      };
                      for (ptrdiff_t x = 0; x < width && rows > 0; x += strip) {
                        for (int channel = 0; channel < call.channels; ++channel) median(x, channel);
                      }
                    });
  };
  return withCountsOf(call, run);
}

}  // namespace vemi::filter
