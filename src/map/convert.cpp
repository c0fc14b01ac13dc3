// vemiConvert between numbers: the value in another element type, saturated.
// Checks: null, size, step. Everything runs in the calling thread.

#include <limits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/map_region.h"
#include "core/rounding.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

/// To a type that holds all values of the source.
struct Extended {
  template <class D, class S>
  HWY_INLINE hn::Vec<D> operator()(D d, const S* in) const {
    return loadExtended(d, in);
  }
};

/// From wider integers.
struct Limited {
  template <class D, class S>
  HWY_INLINE hn::Vec<D> operator()(D d, const S* in) const {
    const Lanes<S> ds;
    return packEach<S>(d, [&](auto k) HWY_ATTR {
      const auto v = hn::LoadU(ds, in + k * laneCount<S>);
      if constexpr (std::is_signed_v<S>) return v;
      // Clamped first, so that the lanes are as good as signed.
      constexpr auto high = static_cast<S>(std::numeric_limits<hn::TFromD<D>>::max());
      return hn::BitCast(hn::RebindToSigned<decltype(ds)>(), hn::Min(v, hn::Set(ds, high)));
    });
  }
};

/// From floats, by the rounding that is set, unless one of them is invalid.
struct Rounded {
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi32f* in) const {
    return roundedFloats(d, in, [](auto, auto v) HWY_ATTR { return v; });
  }
};

/// From any floats: clamped first. A NaN is above all numbers: of an unordered pair the lesser is the second.
struct LimitedAndRounded {
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi32f* in) const {
    using Limits = std::numeric_limits<hn::TFromD<D>>;
    return roundedFloats(d, in, [](auto df, auto v) HWY_ATTR {
      const auto limitedAbove = lesser(v, hn::Set(df, Limits::max()));
      return greater(limitedAbove, hn::Set(df, Limits::min()));
    });
  }
};

template <class L, class Op, class S, class T>
VemiStatus convert(Image<const S> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  constexpr int vectors = sizeof(T) > sizeof(S) ? 4 : 2;  // results that outweigh the source gain by longer blocks
  mapRegion<L>(CallerRows(), roiSize, eachVector<vectors>(Op()), dst, src);
  return vemiOk;
}

template <class L, class T>
VemiStatus convertRounded(Image<const Vemi32f> src, Image<T> dst, VemiSize roiSize, vemiRoundMode roundMode) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return roundingAs(roundMode == vemiRndNear ? Rounding::nearest : Rounding::towardZero, [&] {
    mapRegion<L>(CallerRows(), roiSize, eachVector(Rounded()), dst, src);
    if (metInvalid()) mapRegion<L>(CallerRows(), roiSize, eachVector(LimitedAndRounded()), dst, src);
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

#define ROUND_MODE ((vemiRoundMode roundMode), (roundMode))

VEMI_DEFINE(vemiConvert_8u16u_C1R, VEMI_CONVERSION(Vemi8u, Vemi16u), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8u16u_C4R, VEMI_CONVERSION(Vemi8u, Vemi16u), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8u16u_AC4R, VEMI_CONVERSION(Vemi8u, Vemi16u), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_8u16s_C1R, VEMI_CONVERSION(Vemi8u, Vemi16s), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8u16s_C3R, VEMI_CONVERSION(Vemi8u, Vemi16s), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8u16s_C4R, VEMI_CONVERSION(Vemi8u, Vemi16s), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8u16s_AC4R, VEMI_CONVERSION(Vemi8u, Vemi16s), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_8u32s_C1R, VEMI_CONVERSION(Vemi8u, Vemi32s), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8u32s_C3R, VEMI_CONVERSION(Vemi8u, Vemi32s), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8u32s_C4R, VEMI_CONVERSION(Vemi8u, Vemi32s), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8u32s_AC4R, VEMI_CONVERSION(Vemi8u, Vemi32s), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_8u32f_C1R, VEMI_CONVERSION(Vemi8u, Vemi32f), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8u32f_C3R, VEMI_CONVERSION(Vemi8u, Vemi32f), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8u32f_C4R, VEMI_CONVERSION(Vemi8u, Vemi32f), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8u32f_AC4R, VEMI_CONVERSION(Vemi8u, Vemi32f), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_8s32s_C1R, VEMI_CONVERSION(Vemi8s, Vemi32s), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8s32s_C3R, VEMI_CONVERSION(Vemi8s, Vemi32s), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8s32s_C4R, VEMI_CONVERSION(Vemi8s, Vemi32s), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8s32s_AC4R, VEMI_CONVERSION(Vemi8s, Vemi32s), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_8s32f_C1R, VEMI_CONVERSION(Vemi8s, Vemi32f), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_8s32f_C3R, VEMI_CONVERSION(Vemi8s, Vemi32f), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_8s32f_C4R, VEMI_CONVERSION(Vemi8s, Vemi32f), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_8s32f_AC4R, VEMI_CONVERSION(Vemi8s, Vemi32f), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_16u32s_C1R, VEMI_CONVERSION(Vemi16u, Vemi32s), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_16u32s_C3R, VEMI_CONVERSION(Vemi16u, Vemi32s), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_16u32s_C4R, VEMI_CONVERSION(Vemi16u, Vemi32s), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_16u32s_AC4R, VEMI_CONVERSION(Vemi16u, Vemi32s), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_16u32f_C1R, VEMI_CONVERSION(Vemi16u, Vemi32f), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_16u32f_C3R, VEMI_CONVERSION(Vemi16u, Vemi32f), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_16u32f_C4R, VEMI_CONVERSION(Vemi16u, Vemi32f), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_16u32f_AC4R, VEMI_CONVERSION(Vemi16u, Vemi32f), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_16s32f_C1R, VEMI_CONVERSION(Vemi16s, Vemi32f), convert<C1, Extended>)
VEMI_DEFINE(vemiConvert_16s32f_C3R, VEMI_CONVERSION(Vemi16s, Vemi32f), convert<C3, Extended>)
VEMI_DEFINE(vemiConvert_16s32f_C4R, VEMI_CONVERSION(Vemi16s, Vemi32f), convert<C4, Extended>)
VEMI_DEFINE(vemiConvert_16s32f_AC4R, VEMI_CONVERSION(Vemi16s, Vemi32f), convert<AC4, Extended>)

VEMI_DEFINE(vemiConvert_16u8u_C1R, VEMI_CONVERSION(Vemi16u, Vemi8u), convert<C1, Limited>)
VEMI_DEFINE(vemiConvert_16u8u_C3R, VEMI_CONVERSION(Vemi16u, Vemi8u), convert<C3, Limited>)
VEMI_DEFINE(vemiConvert_16u8u_C4R, VEMI_CONVERSION(Vemi16u, Vemi8u), convert<C4, Limited>)
VEMI_DEFINE(vemiConvert_16u8u_AC4R, VEMI_CONVERSION(Vemi16u, Vemi8u), convert<AC4, Limited>)

VEMI_DEFINE(vemiConvert_16s8u_C1R, VEMI_CONVERSION(Vemi16s, Vemi8u), convert<C1, Limited>)
VEMI_DEFINE(vemiConvert_16s8u_C3R, VEMI_CONVERSION(Vemi16s, Vemi8u), convert<C3, Limited>)
VEMI_DEFINE(vemiConvert_16s8u_C4R, VEMI_CONVERSION(Vemi16s, Vemi8u), convert<C4, Limited>)
VEMI_DEFINE(vemiConvert_16s8u_AC4R, VEMI_CONVERSION(Vemi16s, Vemi8u), convert<AC4, Limited>)

VEMI_DEFINE(vemiConvert_32s8u_C1R, VEMI_CONVERSION(Vemi32s, Vemi8u), convert<C1, Limited>)
VEMI_DEFINE(vemiConvert_32s8u_C3R, VEMI_CONVERSION(Vemi32s, Vemi8u), convert<C3, Limited>)
VEMI_DEFINE(vemiConvert_32s8u_C4R, VEMI_CONVERSION(Vemi32s, Vemi8u), convert<C4, Limited>)
VEMI_DEFINE(vemiConvert_32s8u_AC4R, VEMI_CONVERSION(Vemi32s, Vemi8u), convert<AC4, Limited>)

VEMI_DEFINE(vemiConvert_32s8s_C1R, VEMI_CONVERSION(Vemi32s, Vemi8s), convert<C1, Limited>)
VEMI_DEFINE(vemiConvert_32s8s_C3R, VEMI_CONVERSION(Vemi32s, Vemi8s), convert<C3, Limited>)
VEMI_DEFINE(vemiConvert_32s8s_C4R, VEMI_CONVERSION(Vemi32s, Vemi8s), convert<C4, Limited>)
VEMI_DEFINE(vemiConvert_32s8s_AC4R, VEMI_CONVERSION(Vemi32s, Vemi8s), convert<AC4, Limited>)

VEMI_DEFINE(vemiConvert_32f8u_C1R, VEMI_CONVERSION(Vemi32f, Vemi8u, ROUND_MODE), convertRounded<C1>)
VEMI_DEFINE(vemiConvert_32f8u_C3R, VEMI_CONVERSION(Vemi32f, Vemi8u, ROUND_MODE), convertRounded<C3>)
VEMI_DEFINE(vemiConvert_32f8u_C4R, VEMI_CONVERSION(Vemi32f, Vemi8u, ROUND_MODE), convertRounded<C4>)
VEMI_DEFINE(vemiConvert_32f8u_AC4R, VEMI_CONVERSION(Vemi32f, Vemi8u, ROUND_MODE), convertRounded<AC4>)

VEMI_DEFINE(vemiConvert_32f8s_C1R, VEMI_CONVERSION(Vemi32f, Vemi8s, ROUND_MODE), convertRounded<C1>)
VEMI_DEFINE(vemiConvert_32f8s_C3R, VEMI_CONVERSION(Vemi32f, Vemi8s, ROUND_MODE), convertRounded<C3>)
VEMI_DEFINE(vemiConvert_32f8s_C4R, VEMI_CONVERSION(Vemi32f, Vemi8s, ROUND_MODE), convertRounded<C4>)
VEMI_DEFINE(vemiConvert_32f8s_AC4R, VEMI_CONVERSION(Vemi32f, Vemi8s, ROUND_MODE), convertRounded<AC4>)

VEMI_DEFINE(vemiConvert_32f16u_C1R, VEMI_CONVERSION(Vemi32f, Vemi16u, ROUND_MODE), convertRounded<C1>)
VEMI_DEFINE(vemiConvert_32f16u_C3R, VEMI_CONVERSION(Vemi32f, Vemi16u, ROUND_MODE), convertRounded<C3>)
VEMI_DEFINE(vemiConvert_32f16u_C4R, VEMI_CONVERSION(Vemi32f, Vemi16u, ROUND_MODE), convertRounded<C4>)
VEMI_DEFINE(vemiConvert_32f16u_AC4R, VEMI_CONVERSION(Vemi32f, Vemi16u, ROUND_MODE), convertRounded<AC4>)

VEMI_DEFINE(vemiConvert_32f16s_C1R, VEMI_CONVERSION(Vemi32f, Vemi16s, ROUND_MODE), convertRounded<C1>)
VEMI_DEFINE(vemiConvert_32f16s_C3R, VEMI_CONVERSION(Vemi32f, Vemi16s, ROUND_MODE), convertRounded<C3>)
VEMI_DEFINE(vemiConvert_32f16s_C4R, VEMI_CONVERSION(Vemi32f, Vemi16s, ROUND_MODE), convertRounded<C4>)
VEMI_DEFINE(vemiConvert_32f16s_AC4R, VEMI_CONVERSION(Vemi32f, Vemi16s, ROUND_MODE), convertRounded<AC4>)
