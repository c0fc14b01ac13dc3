// vemiLUT, vemiLUT_Linear, vemiLUT_Cubic of floats: each element is searched among the levels, and its interval's line
// or cubic is computed in double lanes from coefficients that are prepared before the first row.
// Checks of C1: null, size, step, levels; of the others: null, each channel's levels, size, step.

#include "core/lane_width.h"
#include "core/pixel_region.h"
#include "core/scratch.h"
#include "map/level_search.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

using FloatLevels = Levels<Vemi32f>;

using FloatSearch = LevelSearch<Vemi32f>;

/// The step of each element.
struct Steps {
  FloatSearch search;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return search.stepOf(d, v);
  }
};

/// ofHalf(interval, v), in double lanes of each half of a vector, for the elements in an interval; the others stay.
template <class D, class V, class F>
HWY_INLINE V computedWhereHeld(D d, V v, const FloatSearch& search, const F& ofHalf) {
  const hn::RebindToSigned<D> di;
  const auto interval = search.intervalOf(d, v);
  const auto none = hn::RebindMask(d, hn::Lt(interval, hn::Zero(di)));
  return hn::IfThenElse(none, v, inHalves(d, ofHalf, hn::Max(interval, hn::Zero(di)), v));
}

/// A half vector of floats or integers as double lanes, and their elements of a list of floats.
template <class V>
HWY_INLINE auto asDoubles(V half) {
  return hn::PromoteTo(hn::Rebind<double, hn::DFromV<V>>(), half);
}

/// The line of each element: (v - level) * slope + value. The difference is one of single precision.
struct Lines {
  FloatSearch search;
  const double* slope;

  static constexpr int perInterval = 1;

  static Lines prepared(const FloatLevels& levels, double* slope) {
    for (int k = 0; k < levels.intervals(); ++k) {
      const float width = levels.level[k + 1] - levels.level[k];
      const float rise = levels.value[k + 1] - levels.value[k];
      slope[k] = width == 0 ? 0 : double{rise} / double{width};
    }
    return {FloatSearch(levels), slope};
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const FloatLevels& levels = search.levels;
    return computedWhereHeld(d, v, search, [&](auto interval, auto half) HWY_ATTR {
      const hn::DFromV<decltype(half)> dHalf;
      const hn::Rebind<double, decltype(dHalf)> d64;
      const hn::Rebind<int64_t, decltype(dHalf)> di64;
      const auto t = asDoubles(hn::Sub(half, hn::GatherIndex(dHalf, levels.level, interval)));
      const auto rise = hn::Mul(t, hn::GatherIndex(d64, slope, hn::PromoteTo(di64, interval)));
      const auto value = asDoubles(hn::GatherIndex(dHalf, levels.value, interval));
      return hn::DemoteTo(dHalf, hn::Add(rise, value));
    });
  }
};

/// The cubic of each element.
struct Cubics {
  FloatSearch search;
  const double *a, *b, *c;

  static constexpr int perInterval = 3;

  static Cubics prepared(const FloatLevels& levels, double* coefficient) {
    double* const a = coefficient;
    double* const b = a + levels.intervals();
    double* const c = b + levels.intervals();
    for (int k = 0; k < levels.intervals(); ++k) {
      const Cubic cubic = cubicOf(levels, k);
      a[k] = cubic.a, b[k] = cubic.b, c[k] = cubic.c;
    }
    return {FloatSearch(levels), a, b, c};
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const FloatLevels& levels = search.levels;
    return computedWhereHeld(d, v, search, [&](auto interval, auto half) HWY_ATTR {
      const hn::DFromV<decltype(half)> dHalf;
      const hn::DFromV<decltype(interval)> diHalf;
      const hn::Rebind<double, decltype(dHalf)> d64;
      const hn::Rebind<int64_t, decltype(dHalf)> di64;
      // The second of an interval's points, see firstPoint.
      const auto point = hn::Min(hn::Max(interval, hn::Set(diHalf, 1)), hn::Set(diHalf, levels.count - 3));
      const auto k = hn::PromoteTo(di64, interval);
      const auto t = hn::Sub(asDoubles(half), asDoubles(hn::GatherIndex(dHalf, levels.level, point)));
      const auto square = hn::Mul(t, t);
      auto y = asDoubles(hn::GatherIndex(dHalf, levels.value, point));
      y = hn::Add(y, hn::Mul(hn::GatherIndex(d64, a, k), t));
      y = hn::Add(y, hn::Mul(hn::GatherIndex(d64, b, k), square));
      y = hn::Add(y, hn::Mul(hn::GatherIndex(d64, c, k), hn::Mul(square, t)));
      return hn::DemoteTo(dHalf, y);
    });
  }
};

template <class L>
VemiStatus steps(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize, LevelLists<Vemi32f> lists) {
  if (const VemiStatus bad = checkLevels<L>(src, dst, roiSize, lists)) return bad;
  PerChannel<Steps, L::channels> ofChannels;
  for (int channel = 0; channel < L::channels; ++channel) ofChannels.of[channel] = {FloatSearch(lists[channel])};
  mapChannels<L>(roiSize, ofChannels, dst, src);
  return vemiOk;
}

/// Lines or cubics, which the checks have shown to be possible.
template <class Op, class L>
VemiStatus prepareAndMap(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize, LevelLists<Vemi32f> lists) {
  Vemi64s count = 0;
  for (int channel = 0; channel < L::channels; ++channel) count += lists[channel].intervals();
  const Scratch scratch(arrayBytes<double>(count * Op::perInterval));
  if (scratch.failed()) return vemiErrMemAlloc;
  PerChannel<Op, L::channels> ofChannels;
  double* coefficient = scratch.as<double>();
  for (int channel = 0; channel < L::channels; ++channel) {
    ofChannels.of[channel] = Op::prepared(lists[channel], coefficient);
    coefficient += ptrdiff_t{lists[channel].intervals()} * Op::perInterval;
  }
  mapChannels<L>(roiSize, ofChannels, dst, src);
  return vemiOk;
}

template <class L>
VemiStatus lines(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize, LevelLists<Vemi32f> lists) {
  if (const VemiStatus bad = checkLevels<L>(src, dst, roiSize, lists)) return bad;
  return prepareAndMap<Lines, L>(src, dst, roiSize, lists);
}

template <class L>
VemiStatus cubics(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize, LevelLists<Vemi32f> lists) {
  if (const VemiStatus bad = checkLevels<L>(src, dst, roiSize, lists)) return bad;
  const bool possible = possibleCurve<L>(Curve::cubics, lists) == Curve::cubics;
  return (possible ? prepareAndMap<Cubics, L> : prepareAndMap<Lines, L>)(src, dst, roiSize, lists);
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

VEMI_DEFINE(vemiLUT_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_LEVELS(Vemi32f)), steps<C1>)
VEMI_DEFINE(vemiLUT_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), steps<C3>)
VEMI_DEFINE(vemiLUT_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 4)), steps<C4>)
VEMI_DEFINE(vemiLUT_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), steps<AC4>)

VEMI_DEFINE(vemiLUT_Linear_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_LEVELS(Vemi32f)), lines<C1>)
VEMI_DEFINE(vemiLUT_Linear_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), lines<C3>)
VEMI_DEFINE(vemiLUT_Linear_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 4)), lines<C4>)
VEMI_DEFINE(vemiLUT_Linear_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), lines<AC4>)

VEMI_DEFINE(vemiLUT_Cubic_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_LEVELS(Vemi32f)), cubics<C1>)
VEMI_DEFINE(vemiLUT_Cubic_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), cubics<C3>)
VEMI_DEFINE(vemiLUT_Cubic_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 4)), cubics<C4>)
VEMI_DEFINE(vemiLUT_Cubic_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_CHANNEL_LEVELS(Vemi32f, 3)), cubics<AC4>)
