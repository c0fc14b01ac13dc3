// vemiCountInRange: how many elements of each channel lie between two bounds, both included. Checks: null, step, size,
// range.

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/map_row.h"
#include "measure/exact_sums.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

/// Floats are compared, so that a NaN is in no range. Bytes are in range where a clamp to it leaves them as they are:
/// the processor orders unsigned bytes by minima and maxima only.
struct Inside {
  template <class D, class V>
  HWY_INLINE hn::Mask<D> operator()(D, V v, V lower, V upper) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::And(hn::Ge(v, lower), hn::Le(v, upper));
    } else {
      return hn::Eq(hn::Min(hn::Max(v, lower), upper), v);
    }
  }
};

/// All bytes. Any other range leaves a value out, and so do all ranges of floats.
template <class T>
bool isEverything(T lower, T upper) {
  return std::is_integral_v<T> && lower == std::numeric_limits<T>::min() && upper == std::numeric_limits<T>::max();
}

/// A value that the range leaves out; any value where it is everything.
template <class T>
T outsideOf(T lower) {
  if constexpr (std::is_floating_point_v<T>) return std::numeric_limits<T>::quiet_NaN();
  return lower > std::numeric_limits<T>::min() ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
}

/// The mask of a lane that is inside is -1, which is taken away. Where the range is everything the padding is counted,
/// too.
template <class L, class T>
struct InRange {
  using Element = T;
  using Lane = hwy::UnsignedFromSize<sizeof(T)>;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(1);
  static constexpr ReductionOrder order = ReductionOrder::any;
  static Lane start(int) { return 0; }

  decltype(withConstants<L>(Inside(), static_cast<const T*>(nullptr), static_cast<const T*>(nullptr))) inside;
  T outside[L::elements] = {};

  InRange(const T* lower, const T* upper) : inside(withConstants<L>(Inside(), lower, upper)) {
    for (int c = 0; c < L::channels; ++c) outside[c] = outsideOf(lower[c]);
  }

  T padding(const T*, int channel) const { return outside[channel]; }

  template <class D, class K, class A, class V>
  HWY_INLINE void add(D d, K k, A& sums, V v) const {
    const hn::RebindToUnsigned<D> dLanes;
    const auto counted = hn::VecFromMask(dLanes, hn::RebindMask(dLanes, inside(d, k, v)));
    sums.of[0].v[k] = hn::Sub(sums.of[0].v[k], counted);
  }
};

template <class L, class T>
VemiStatus checkRange(const T* lower, const T* upper) {
  for (int c = 0; c < L::channels; ++c) {
    if (lower[c] > upper[c]) return vemiErrRange;
  }
  return vemiOk;
}

template <class L, class T>
VemiStatus countInRange(Image<const T> src, VemiSize roiSize, Vemi32s* pCounts, const T* lower, const T* upper) {
  if (const VemiStatus bad = firstOf(checkNull(src, pCounts, lower, upper), checkStep(src), checkSize(roiSize))) {
    return bad;
  }
  if (const VemiStatus bad = checkRange<L>(lower, upper)) return bad;
  const auto counts = exactSums<Interleaved<L::elements>>(roiSize, InRange<L, T>(lower, upper), src);
  const uint64_t pixels = static_cast<uint64_t>(roiSize.width) * static_cast<uint64_t>(roiSize.height);
  for (int c = 0; c < L::channels; ++c) {
    pCounts[c] = static_cast<Vemi32s>(isEverything(lower[c], upper[c]) ? pixels : counts.channel[c]);
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define COUNTS(C) ((Vemi32s * pCounts, C lower, C upper), (pCounts, addressOf(lower), addressOf(upper)))

VEMI_DEFINE(vemiCountInRange_8u_C1R, VEMI_SRC(Vemi8u, COUNTS(Vemi8u)), countInRange<C1>)
VEMI_DEFINE(vemiCountInRange_8u_C3R, VEMI_SRC(Vemi8u, COUNTS(const Vemi8u*)), countInRange<C3>)
VEMI_DEFINE(vemiCountInRange_8u_AC4R, VEMI_SRC(Vemi8u, COUNTS(const Vemi8u*)), countInRange<AC4>)
VEMI_DEFINE(vemiCountInRange_32f_C1R, VEMI_SRC(Vemi32f, COUNTS(Vemi32f)), countInRange<C1>)
VEMI_DEFINE(vemiCountInRange_32f_C3R, VEMI_SRC(Vemi32f, COUNTS(const Vemi32f*)), countInRange<C3>)
VEMI_DEFINE(vemiCountInRange_32f_AC4R, VEMI_SRC(Vemi32f, COUNTS(const Vemi32f*)), countInRange<AC4>)
