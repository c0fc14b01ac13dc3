// vemiLUT, vemiLUT_Linear, vemiLUT_Cubic of integers: a table of all results for each channel, and one look-up for each
// element. Only the steps of a small 16s region are searched among the levels instead.
// Checks of C1: null, size, step, levels; of the others: null, each channel's levels, size, step.

#include <algorithm>
#include <limits>
#include <numeric>

#include "core/byte_table.h"
#include "core/float_control.h"
#include "core/lane_width.h"
#include "core/numbers.h"
#include "core/pixel_region.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "core/word_table.h"
#include "map/level_search.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

/// curve(d, v) of the numbers from `from` to `to`, truncated and limited as truncatedTo does it.
template <class T, class F>
void fillBy(const F& curve, int from, int to, T* result) {
  const Lanes<double> d;
  const hn::Rebind<T, decltype(d)> dResult;
  constexpr int N = static_cast<int>(laneCount<double>);
  const auto lowest = hn::Set(d, std::numeric_limits<T>::min()), highest = hn::Set(d, std::numeric_limits<T>::max());
  for (int v = from; v < to; v += N, result += N) {
    const auto value = curve(d, hn::Iota(d, v));
    const auto limited = hn::IfThenElse(hn::Gt(value, lowest), hn::Min(value, highest), lowest);
    const auto results = hn::DemoteTo(dResult, hn::DemoteTo(hn::Rebind<int32_t, decltype(d)>(), limited));
    if (to - v >= N) {
      hn::StoreU(results, dResult, result);
    } else {
      alignas(laneAlignment) T last[N];
      hn::Store(results, dResult, last);
      std::copy_n(last, to - v, result);
    }
  }
}

/// What the curve makes of the numbers from `from` to `to`, which lie in the interval.
template <class T>
void fillInterval(Curve curve, const Levels<Vemi32s>& levels, int interval, int from, int to, T* result) {
  const Vemi32s* const level = levels.level + interval;
  const Vemi32s* const value = levels.value + interval;
  const double x = level[0], y = value[0];
  const double width = level[1] - x;
  if (curve == Curve::steps || width == 1) {
    std::fill(result, result + (to - from), saturate<T>(Vemi64s{value[0]}));
  } else if (curve == Curve::lines) {
    const double slope = (value[1] - y) / width;
    const auto line = [=](auto d, auto v) HWY_ATTR {
      return hn::Add(hn::Set(d, y + 0.5), hn::Mul(hn::Set(d, slope), hn::Sub(v, hn::Set(d, x))));
    };
    fillBy(line, from, to, result);
  } else {
    const auto curveOf = [cubic = cubicOf(levels, interval)](auto d, auto v) HWY_ATTR {
      const auto t = hn::Sub(v, hn::Set(d, cubic.x)), t2 = hn::Mul(t, t);
      const auto first = hn::Add(hn::Set(d, cubic.y + 0.5), hn::Mul(hn::Set(d, cubic.a), t));
      return hn::Add(hn::Add(first, hn::Mul(hn::Set(d, cubic.b), t2)), hn::Mul(hn::Set(d, cubic.c), hn::Mul(t2, t)));
    };
    fillBy(curveOf, from, to, result);
  }
}

/// The results of all values of T. The intervals are filled in their order, so that the later one counts.
template <class T>
void fillTable(Curve curve, const Levels<Vemi32s>& levels, T* table) {
  constexpr int lowest = std::numeric_limits<T>::min(), end = std::numeric_limits<T>::max() + 1;
  const auto limited = [=](Vemi32s level) { return std::clamp<int>(level, lowest, end); };
  std::iota(table, table + (end - lowest), static_cast<T>(lowest));
  for (int k = 0; k < levels.intervals(); ++k) {
    const int from = limited(levels.level[k]), to = limited(levels.level[k + 1]);
    if (from < to) fillInterval(curve, levels, k, from, to, table + (from - lowest));
  }
  const int last = limited(levels.level[levels.intervals()]);
  std::iota(table + (last - lowest), table + (end - lowest), static_cast<T>(last));
}

template <class L, Curve wanted>
VemiStatus lut8u(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize, LevelLists<Vemi32s> lists) {
  if (const VemiStatus bad = checkLevels<L>(src, dst, roiSize, lists)) return bad;
  return roundingToNearest([&] {
    const Curve curve = possibleCurve<L>(wanted, lists);
    PerChannel<ByteTable, L::channels> tables;
    for (int channel = 0; channel < L::channels; ++channel) {
      uint8_t result[256];
      fillTable(curve, lists[channel], result);
      tables.of[channel] = result;
    }
    mapChannels<L>(roiSize, tables, dst, src);
    return vemiOk;
  });
}

/// The step of each element, found among the levels.
struct StepSearch {
  LevelSearch<Vemi32s> search;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RepartitionToWide<D> dWide;
    auto wide = widen(d, v);
    wide.lower = search.stepOf(dWide, wide.lower);
    wide.upper = search.stepOf(dWide, wide.upper);
    return narrow(d, wide);
  }
};

/// Steps of a region below these sizes must not need memory.
template <class L>
bool isWorthTables(VemiSize roiSize) {
  return Vemi64s{roiSize.width} * roiSize.height >= (L::elements == 1 ? 6401 : 4097);
}

template <class L, Curve wanted>
VemiStatus lut16s(Image<const Vemi16s> src, Image<Vemi16s> dst, VemiSize roiSize, LevelLists<Vemi32s> lists) {
  if (const VemiStatus bad = checkLevels<L>(src, dst, roiSize, lists)) return bad;
  return roundingToNearest([&] {
    if (wanted == Curve::steps && !isWorthTables<L>(roiSize)) {
      PerChannel<StepSearch, L::channels> searches;
      for (int channel = 0; channel < L::channels; ++channel) searches.of[channel] = {LevelSearch(lists[channel])};
      mapChannels<L>(roiSize, searches, dst, src);
      return vemiOk;
    }
    const Scratch scratch(arrayBytes<Vemi16s>(L::channels * wordTableSize));
    if (scratch.failed()) return vemiErrMemAlloc;
    const Curve curve = possibleCurve<L>(wanted, lists);
    const Vemi16s* table[L::channels];
    for (int channel = 0; channel < L::channels; ++channel) {
      Vemi16s* const ofChannel = scratch.as<Vemi16s>() + ptrdiff_t{channel} * wordTableSize;
      fillTable(curve, lists[channel], ofChannel);
      table[channel] = ofChannel;
    }
    mapByWordTables<L>(roiSize, table, dst, src);
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

VEMI_DEFINE(vemiLUT_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_LEVELS(Vemi32s)), lut8u<C1, Curve::steps>)
VEMI_DEFINE(vemiLUT_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<C3, Curve::steps>)
VEMI_DEFINE(vemiLUT_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut8u<C4, Curve::steps>)
VEMI_DEFINE(vemiLUT_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<AC4, Curve::steps>)

VEMI_DEFINE(vemiLUT_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_LEVELS(Vemi32s)), lut16s<C1, Curve::steps>)
VEMI_DEFINE(vemiLUT_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<C3, Curve::steps>)
VEMI_DEFINE(vemiLUT_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut16s<C4, Curve::steps>)
VEMI_DEFINE(vemiLUT_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<AC4, Curve::steps>)

VEMI_DEFINE(vemiLUT_Linear_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_LEVELS(Vemi32s)), lut8u<C1, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<C3, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut8u<C4, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<AC4, Curve::lines>)

VEMI_DEFINE(vemiLUT_Linear_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_LEVELS(Vemi32s)), lut16s<C1, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<C3, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut16s<C4, Curve::lines>)
VEMI_DEFINE(vemiLUT_Linear_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<AC4, Curve::lines>)

VEMI_DEFINE(vemiLUT_Cubic_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_LEVELS(Vemi32s)), lut8u<C1, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<C3, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut8u<C4, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut8u<AC4, Curve::cubics>)

VEMI_DEFINE(vemiLUT_Cubic_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_LEVELS(Vemi32s)), lut16s<C1, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<C3, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 4)), lut16s<C4, Curve::cubics>)
VEMI_DEFINE(vemiLUT_Cubic_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_CHANNEL_LEVELS(Vemi32s, 3)), lut16s<AC4, Curve::cubics>)
