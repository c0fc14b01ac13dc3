// vemiMin, vemiMax and vemiMinMax: the extremes of each channel. Checks: null, size, step.

#include <algorithm>
#include <bit>

#include "core/checks.h"
#include "measure/exports.h"
#include "measure/keep_best.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

/// Whether a channel holds a float of exactly these bits; a lane of ones says so.
struct Holds {
  using Element = float;
  using Lane = uint32_t;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = unlimitedCapacity;
  static constexpr ReductionOrder order = ReductionOrder::repeat;
  static Lane start(int) { return 0; }
  static float padding(const float* row, int channel) {
    return KeepBest<float, float, Identity>::padding(row, channel);
  }

  Lane bits;

  template <class D, class K, class A, class V>
  HWY_INLINE void add(D, K k, A& flags, V v) const {
    const Lanes<Lane> d;
    const auto found = hn::VecFromMask(d, hn::Eq(hn::BitCast(d, v), hn::Set(d, bits)));
    flags.of[0].v[k] = hn::Or(flags.of[0].v[k], found);
  }
};

/// Zeros of both signs are equal to the processor's minimum and maximum, so which of them is left depends on the lanes.
/// Here the negative zero is the lower one.
template <class L, class Extreme>
void settleZeros(VemiSize roiSize, float (&best)[L::elements], Image<const float> src) {
  if (std::find(best, best + L::elements, 0.0f) == best + L::elements) return;
  const Holds winner = {std::bit_cast<uint32_t>(Extreme::betterZero)};
  using A = Accumulators<L, Holds>;
  uint32_t found[L::elements] = {};
  const auto sink = [&](const EmptiedLanes<A>& lanes) {
    for (ptrdiff_t i = 0; i < A::lanes; ++i) found[A::channelOf(0, i)] |= lanes.of[0][i];
  };
  reduceRegion<L>(roiSize, winner, sink, src);
  for (int c = 0; c < L::elements; ++c) {
    if (best[c] == 0) best[c] = std::bit_cast<float>(found[c] != 0 ? winner.bits : winner.bits ^ 0x80000000u);
  }
}

template <class L, class... Extreme, class T, class... Result>
VemiStatus extrema(Image<const T> src, VemiSize roiSize, Result*... pResult) {
  if (const VemiStatus bad = firstOf(checkNull(src, pResult...), checkSize(roiSize), checkStep(src))) return bad;
  using Pixel = Interleaved<L::elements>;
  auto values = bestOf<Pixel>(KeepBest<T, T, Identity, Extreme...>(), roiSize, src);
  int extreme = 0;
  if constexpr (std::is_floating_point_v<T>) (settleZeros<Pixel, Extreme>(roiSize, values.best[extreme++], src), ...);
  extreme = 0;
  (std::copy_n(values.best[extreme++], L::channels, pResult), ...);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define MIN_MAX(T) ((T * pMin, T * pMax), (pMin, pMax))

VEMI_DEFINE(vemiMin_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMin)), extrema<C1, Lowest>)
VEMI_DEFINE(vemiMin_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMin)), extrema<C3, Lowest>)
VEMI_DEFINE(vemiMin_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMin)), extrema<C4, Lowest>)
VEMI_DEFINE(vemiMin_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMin)), extrema<AC4, Lowest>)
VEMI_DEFINE(vemiMin_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMin)), extrema<C1, Lowest>)
VEMI_DEFINE(vemiMin_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMin)), extrema<C3, Lowest>)
VEMI_DEFINE(vemiMin_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMin)), extrema<C4, Lowest>)
VEMI_DEFINE(vemiMin_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMin)), extrema<AC4, Lowest>)
VEMI_DEFINE(vemiMin_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMin)), extrema<C1, Lowest>)
VEMI_DEFINE(vemiMin_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMin)), extrema<C3, Lowest>)
VEMI_DEFINE(vemiMin_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMin)), extrema<C4, Lowest>)
VEMI_DEFINE(vemiMin_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMin)), extrema<AC4, Lowest>)

VEMI_DEFINE(vemiMax_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMax)), extrema<C1, Highest>)
VEMI_DEFINE(vemiMax_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMax)), extrema<C3, Highest>)
VEMI_DEFINE(vemiMax_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMax)), extrema<C4, Highest>)
VEMI_DEFINE(vemiMax_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi8u, pMax)), extrema<AC4, Highest>)
VEMI_DEFINE(vemiMax_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMax)), extrema<C1, Highest>)
VEMI_DEFINE(vemiMax_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMax)), extrema<C3, Highest>)
VEMI_DEFINE(vemiMax_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMax)), extrema<C4, Highest>)
VEMI_DEFINE(vemiMax_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi16s, pMax)), extrema<AC4, Highest>)
VEMI_DEFINE(vemiMax_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMax)), extrema<C1, Highest>)
VEMI_DEFINE(vemiMax_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMax)), extrema<C3, Highest>)
VEMI_DEFINE(vemiMax_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMax)), extrema<C4, Highest>)
VEMI_DEFINE(vemiMax_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi32f, pMax)), extrema<AC4, Highest>)

VEMI_DEFINE(vemiMinMax_8u_C1R, VEMI_SRC(Vemi8u, MIN_MAX(Vemi8u)), extrema<C1, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_8u_C3R, VEMI_SRC(Vemi8u, MIN_MAX(Vemi8u)), extrema<C3, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_8u_C4R, VEMI_SRC(Vemi8u, MIN_MAX(Vemi8u)), extrema<C4, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_8u_AC4R, VEMI_SRC(Vemi8u, MIN_MAX(Vemi8u)), extrema<AC4, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_16s_C1R, VEMI_SRC(Vemi16s, MIN_MAX(Vemi16s)), extrema<C1, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_16s_C3R, VEMI_SRC(Vemi16s, MIN_MAX(Vemi16s)), extrema<C3, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_16s_C4R, VEMI_SRC(Vemi16s, MIN_MAX(Vemi16s)), extrema<C4, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_16s_AC4R, VEMI_SRC(Vemi16s, MIN_MAX(Vemi16s)), extrema<AC4, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_32f_C1R, VEMI_SRC(Vemi32f, MIN_MAX(Vemi32f)), extrema<C1, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_32f_C3R, VEMI_SRC(Vemi32f, MIN_MAX(Vemi32f)), extrema<C3, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_32f_C4R, VEMI_SRC(Vemi32f, MIN_MAX(Vemi32f)), extrema<C4, Lowest, Highest>)
VEMI_DEFINE(vemiMinMax_32f_AC4R, VEMI_SRC(Vemi32f, MIN_MAX(Vemi32f)), extrema<AC4, Lowest, Highest>)
