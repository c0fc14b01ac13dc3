// vemiScale: the whole range of one element type onto the whole range of another.
// Checks: null, size, step; the forms with floats look at their range ahead of all. Everything runs in the calling
// thread.

#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/map_region.h"
#include "core/rounding.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

/// v in lanes of D. Where their types differ in sign, the top bit is inverted: both then count from their lowest value.
template <class S, class D, class V>
HWY_INLINE hn::Vec<D> fullScaleAs(D d, V v) {
  const auto lanes = hn::BitCast(d, v);
  if constexpr (std::is_signed_v<S> == std::is_signed_v<hn::TFromD<D>>) return lanes;
  return hn::Xor(lanes, hn::SignBit(d));
}

/// 255 goes to the highest value, which is 257 or 0x01010101 times as much: the byte is repeated.
struct ScaledUp {
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi8u* in) const {
    const hn::Repartition<uint8_t, D> dBytes;
    alignas(16) static constexpr uint8_t lowest[2][16] = {{0, 0, 2, 2, 4, 4, 6, 6, 8, 8, 10, 10, 12, 12, 14, 14},
                                                          {0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12}};
    const auto index = hn::LoadDup128(dBytes, lowest[sizeof(hn::TFromD<D>) / 4]);
    const auto bytes = hn::BitCast(dBytes, loadExtended(hn::RebindToUnsigned<D>(), in));
    return fullScaleAs<Vemi8u>(d, hn::TableLookupBytes(bytes, index));
  }
};

/// (v - (v >> 8)) >> 8 or 24, v being signed; the byte is so, too, until it is stored.
struct ScaledDownFast {
  template <class D, class S>
  HWY_INLINE hn::Vec<D> operator()(D d, const S* in) const {
    const hn::RebindToSigned<Lanes<S>> ds;
    const auto bytes = packEach<S>(hn::RebindToSigned<D>(), [&](auto k) HWY_ATTR {
      const auto v = fullScaleAs<S>(ds, hn::LoadU(Lanes<S>(), in + k * laneCount<S>));
      return hn::ShiftRight<8 * sizeof(S) - 8>(hn::Sub(v, hn::ShiftRight<8>(v)));
    });
    return fullScaleAs<Vemi8s>(d, bytes);
  }
};

/// With u counted from the lowest value, (u - (u >> 8)) >> 8 is the largest integer in u / 257, and (u - (u >> 8)) >>
/// 24 the one in u / 0x01010101. Of 16 bits the factor is 0.0038910506f = 0xff00ff / 2^32, a little less than 1 / 257:
/// multiples of 257 stay one below, as if u were 1 less.
struct ScaledDownAccurate {
  template <class D, class S>
  HWY_INLINE hn::Vec<D> operator()(D d, const S* in) const {
    const hn::RebindToUnsigned<Lanes<S>> du;
    return packEach<S>(d, [&](auto k) HWY_ATTR {
      auto u = fullScaleAs<S>(du, hn::LoadU(Lanes<S>(), in + k * laneCount<S>));
      if constexpr (sizeof(S) == 2) u = hn::SaturatedSub(u, hn::Set(du, 1));
      const auto byte = hn::ShiftRight<8 * sizeof(S) - 8>(hn::Sub(u, hn::ShiftRight<8>(u)));
      return hn::BitCast(hn::RebindToSigned<Lanes<S>>(), byte);
    });
  }
};

/// From 0..255 to vMin..vMax.
struct ToRange {
  Vemi32f vMin, unit;

  ToRange(Vemi32f low, Vemi32f high) : vMin(low), unit((high - low) / 255) {}

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi8u* in) const {
    return hn::Add(hn::Set(d, vMin), hn::Mul(loadExtended(d, in), hn::Set(d, unit)));
  }
};

/// x k + b: makes of vMin..vMax numbers from 0 to 255 and a little around it.
struct RangeSum {
  Vemi32f factor, offset;

  RangeSum(Vemi32f vMin, Vemi32f vMax) : factor(255 / (vMax - vMin)), offset(-factor * vMin) {}

  Vemi32f operator()(Vemi32f x) const { return x * factor + offset; }

  template <class DF, class V>
  HWY_INLINE V operator()(DF df, V v) const {
    return hn::Add(hn::Mul(v, hn::Set(df, factor)), hn::Set(df, offset));
  }
};

/// The same where vMin is 0.
struct RangeProduct {
  Vemi32f factor;

  template <class DF, class V>
  HWY_INLINE V operator()(DF df, V v) const {
    return hn::Mul(v, hn::Set(df, factor));
  }
};

/// From vMin..vMax to 0..255, by the rounding that is set, unless a value is invalid.
template <class Range>
struct FromRange {
  Range range;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi32f* in) const {
    return roundedFloats(d, in, range);
  }
};

/// From any floats: clamped first. A NaN counts as vMin: of an unordered pair the greater is the second.
struct FromLimitedRange {
  RangeSum range;
  Vemi32f vMin, vMax;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi32f* in) const {
    return roundedFloats(d, in, [&](auto df, auto v) HWY_ATTR {
      const auto limitedBelow = greater(v, hn::Set(df, vMin));
      return range(df, lesser(limitedBelow, hn::Set(df, vMax)));
    });
  }
};

template <class L, class Op, class S, class T>
VemiStatus scaleBy(const Op& op, Image<const S> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L>(CallerRows(), roiSize, eachVector(op), dst, src);
  return vemiOk;
}

template <class L, class T>
VemiStatus scaleUp(Image<const Vemi8u> src, Image<T> dst, VemiSize roiSize) {
  return scaleBy<L>(ScaledUp(), src, dst, roiSize);
}

template <class L, class S>
VemiStatus scaleDown(Image<const S> src, Image<Vemi8u> dst, VemiSize roiSize, vemiHint hint) {
  if (hint == vemiHintAccurate) return scaleBy<L>(ScaledDownAccurate(), src, dst, roiSize);
  return scaleBy<L>(ScaledDownFast(), src, dst, roiSize);
}

/// The frame of the forms with floats: run() if the arguments are good.
template <class S, class T, class Run>
VemiStatus scaleRange(Image<S> src, Image<T> dst, VemiSize roiSize, Vemi32f vMin, Vemi32f vMax, const Run& run) {
  return roundingAs(Rounding::nearest, [&] {
    const VemiStatus rangeStatus = vMax - vMin > 0 ? vemiOk : vemiErrScaleRange;
    const VemiStatus bad = firstOf(rangeStatus, checkNull(src, dst), checkSize(roiSize), checkStep(src, dst));
    if (bad == vemiOk) run();
    return bad;
  });
}

template <class L>
VemiStatus scaleToRange(Image<const Vemi8u> src, Image<Vemi32f> dst, VemiSize roiSize, Vemi32f vMin, Vemi32f vMax) {
  return scaleRange(src, dst, roiSize, vMin, vMax,
                    [&] { mapRegion<L>(CallerRows(), roiSize, eachVector(ToRange(vMin, vMax)), dst, src); });
}

/// The sums rise with the values, so that what is below vMin makes 0 without a clamp, and what is above vMax makes 255
/// if vMax itself does.
template <class L>
VemiStatus scaleFromRange(Image<const Vemi32f> src, Image<Vemi8u> dst, VemiSize roiSize, Vemi32f vMin, Vemi32f vMax) {
  const auto map = [&](const auto& op) { mapRegion<L>(CallerRows(), roiSize, eachVector(op), dst, src); };
  return scaleRange(src, dst, roiSize, vMin, vMax, [&] {
    const RangeSum range(vMin, vMax);
    const bool limitsItself = range(vMax) > 254.5f;
    if (limitsItself && vMin == 0) map(FromRange<RangeProduct>{{range.factor}});
    if (limitsItself && vMin != 0) map(FromRange<RangeSum>{range});
    if (!limitsItself || metInvalid()) map(FromLimitedRange{range, vMin, vMax});
  });
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

#define HINT ((vemiHint hint), (hint))

VEMI_DEFINE(vemiScale_8u16u_C1R, VEMI_CONVERSION(Vemi8u, Vemi16u), scaleUp<C1>)
VEMI_DEFINE(vemiScale_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), scaleUp<C3>)
VEMI_DEFINE(vemiScale_8u16u_C4R, VEMI_CONVERSION(Vemi8u, Vemi16u), scaleUp<C4>)
VEMI_DEFINE(vemiScale_8u16u_AC4R, VEMI_CONVERSION(Vemi8u, Vemi16u), scaleUp<AC4>)

VEMI_DEFINE(vemiScale_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s), scaleUp<C1>)
VEMI_DEFINE(vemiScale_8u16s_C3R, VEMI_CONVERSION(Vemi8u, Vemi16s), scaleUp<C3>)
VEMI_DEFINE(vemiScale_8u16s_C4R, VEMI_CONVERSION(Vemi8u, Vemi16s), scaleUp<C4>)
VEMI_DEFINE(vemiScale_8u16s_AC4R, VEMI_CONVERSION(Vemi8u, Vemi16s), scaleUp<AC4>)

VEMI_DEFINE(vemiScale_8u32s_C1R, VEMI_CONVERSION(Vemi8u, Vemi32s), scaleUp<C1>)
VEMI_DEFINE(vemiScale_8u32s_C3R, VEMI_CONVERSION(Vemi8u, Vemi32s), scaleUp<C3>)
VEMI_DEFINE(vemiScale_8u32s_C4R, VEMI_CONVERSION(Vemi8u, Vemi32s), scaleUp<C4>)
VEMI_DEFINE(vemiScale_8u32s_AC4R, VEMI_CONVERSION(Vemi8u, Vemi32s), scaleUp<AC4>)

VEMI_DEFINE(vemiScale_16u8u_C1R, VEMI_CONVERSION(Vemi16u, Vemi8u, HINT), scaleDown<C1>)
VEMI_DEFINE(vemiScale_16u8u_C3R, VEMI_CONVERSION(Vemi16u, Vemi8u, HINT), scaleDown<C3>)
VEMI_DEFINE(vemiScale_16u8u_C4R, VEMI_CONVERSION(Vemi16u, Vemi8u, HINT), scaleDown<C4>)
VEMI_DEFINE(vemiScale_16u8u_AC4R, VEMI_CONVERSION(Vemi16u, Vemi8u, HINT), scaleDown<AC4>)

VEMI_DEFINE(vemiScale_16s8u_C1R, VEMI_CONVERSION(Vemi16s, Vemi8u, HINT), scaleDown<C1>)
VEMI_DEFINE(vemiScale_16s8u_C3R, VEMI_CONVERSION(Vemi16s, Vemi8u, HINT), scaleDown<C3>)
VEMI_DEFINE(vemiScale_16s8u_C4R, VEMI_CONVERSION(Vemi16s, Vemi8u, HINT), scaleDown<C4>)
VEMI_DEFINE(vemiScale_16s8u_AC4R, VEMI_CONVERSION(Vemi16s, Vemi8u, HINT), scaleDown<AC4>)

VEMI_DEFINE(vemiScale_32s8u_C1R, VEMI_CONVERSION(Vemi32s, Vemi8u, HINT), scaleDown<C1>)
VEMI_DEFINE(vemiScale_32s8u_C3R, VEMI_CONVERSION(Vemi32s, Vemi8u, HINT), scaleDown<C3>)
VEMI_DEFINE(vemiScale_32s8u_C4R, VEMI_CONVERSION(Vemi32s, Vemi8u, HINT), scaleDown<C4>)
VEMI_DEFINE(vemiScale_32s8u_AC4R, VEMI_CONVERSION(Vemi32s, Vemi8u, HINT), scaleDown<AC4>)

VEMI_DEFINE(vemiScale_8u32f_C1R, VEMI_CONVERSION(Vemi8u, Vemi32f, VEMI_RANGE), scaleToRange<C1>)
VEMI_DEFINE(vemiScale_8u32f_C3R, VEMI_CONVERSION(Vemi8u, Vemi32f, VEMI_RANGE), scaleToRange<C3>)
VEMI_DEFINE(vemiScale_8u32f_C4R, VEMI_CONVERSION(Vemi8u, Vemi32f, VEMI_RANGE), scaleToRange<C4>)
VEMI_DEFINE(vemiScale_8u32f_AC4R, VEMI_CONVERSION(Vemi8u, Vemi32f, VEMI_RANGE), scaleToRange<AC4>)

VEMI_DEFINE(vemiScale_32f8u_C1R, VEMI_CONVERSION(Vemi32f, Vemi8u, VEMI_RANGE), scaleFromRange<C1>)
VEMI_DEFINE(vemiScale_32f8u_C3R, VEMI_CONVERSION(Vemi32f, Vemi8u, VEMI_RANGE), scaleFromRange<C3>)
VEMI_DEFINE(vemiScale_32f8u_C4R, VEMI_CONVERSION(Vemi32f, Vemi8u, VEMI_RANGE), scaleFromRange<C4>)
VEMI_DEFINE(vemiScale_32f8u_AC4R, VEMI_CONVERSION(Vemi32f, Vemi8u, VEMI_RANGE), scaleFromRange<AC4>)
