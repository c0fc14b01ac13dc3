// vemiSqrt: the square root, divided by 2^scaleFactor for integers. Checks: null, size, step. The forms of elements
// that may be below zero, 16s and 32f, warn of those, and round the steps down to whole elements.

#include <algorithm>

#include "core/any_element.h"
#include "core/byte_table.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "core/numbers.h"
#include "core/rounding.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// The root of 16-bit lanes divided by 2^scaleFactor, to nearest with ties to even, exactly.
///
/// The quotient n of the rounded single-precision root may be off by one near an integer, and cannot tell a tie from
/// its neighbours. But the result is n or n + 1, and the sign of x - ((n + 1/2) 2^scaleFactor)^2 says which. Multiplied
/// by a power of four that is a difference of integers; it is small, so that 32 bits hold it even where its terms wrap
/// around.
template <class T>
struct ScaledRoot {
  float scale;
  uint32_t power;  // of four
  int shift;

  explicit ScaledRoot(int scaleFactor) {
    const int s = std::clamp(scaleFactor, -16, 9);  // beyond, all roots but zero's are above the range, or below 1/2
    const int up = std::max(-s, 0);
    scale = powerOfTwo<float>(-s);
    power = up < 15 ? uint32_t{4} << (2 * up) : 0;
    shift = std::max(s, 0);
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RebindToUnsigned<D> du;
    if constexpr (std::is_signed_v<T>) v = hn::Max(v, hn::Zero(d));
    const auto wideRoot = [&](auto dw, auto x) HWY_ATTR {
      const hn::RebindToFloat<decltype(dw)> df;
      const hn::RebindToSigned<decltype(dw)> di;
      const auto root = hn::Mul(hn::Sqrt(hn::ConvertTo(df, hn::BitCast(di, x))), hn::Set(df, scale));
      const auto n = truncated(di, hn::Min(root, hn::Set(df, 65536.0f)));
      const auto one = hn::Set(di, 1);
      const auto middle = hn::ShiftLeftSame(hn::Add(hn::Add(n, n), one), shift);
      const auto rest = hn::Sub(hn::BitCast(di, hn::Mul(x, hn::Set(dw, power))), hn::Mul(middle, middle));
      const auto goesUp = hn::Gt(hn::Add(rest, hn::And(n, one)), hn::Zero(di));  // on a tie if n is odd
      const auto rounded = hn::Sub(n, hn::VecFromMask(di, goesUp));
      return hn::BitCast(dw, hn::Min(rounded, hn::Set(di, std::numeric_limits<T>::max())));
    };
    return hn::BitCast(d, inWideLanes(du, wideRoot, hn::BitCast(du, v)));
  }
};

/// Correctly rounded; -0 stays, of numbers below zero the processor makes its NaN.
struct Root {
  template <class D, class V>
  HWY_INLINE V operator()(D, V v) const {
    return hn::Sqrt(v);
  }
};

/// A number below zero in an alpha that stays warns too.
template <class L, Stores how, class T, class Op>
VemiStatus rootsOfSigned(const Op& root, Image<const T> src, Image<T> dst, VemiSize roiSize) {
  const bool negative = mapRegionTested<L, how>(roiSize, eachVector(root), eachVector(IsNegative()), wholeElements(dst),
                                                wholeElements(src));
  return negative ? vemiWarnSqrtNegative : vemiOk;
}

template <class L>
VemiStatus root16s(Image<const Vemi16s> src, Image<Vemi16s> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return rootsOfSigned<L, Stores::cached>(ScaledRoot<Vemi16s>(scaleFactor), src, dst, roiSize);
}

template <class L>
VemiStatus root32f(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return rootsOfSigned<L, Stores::streamed>(Root(), src, dst, roiSize);
}

template <class L>
VemiStatus root16u(Image<const Vemi16u> src, Image<Vemi16u> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L, Stores::cached>(CallerRows(), roiSize, eachVector(ScaledRoot<Vemi16u>(scaleFactor)), dst, src);
  return vemiOk;
}

template <class L>
VemiStatus root8u(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  uint8_t result[256];
  fillBytes<Vemi16u>(ScaledRoot<Vemi16u>(scaleFactor), result);
  const ByteTable table = result;
  mapRegion<L>(CallerRows(), roiSize, eachVector(table), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiSqrt_8u_C1RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), root8u<C1>)
VEMI_DEFINE(vemiSqrt_8u_C3RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), root8u<C3>)
VEMI_DEFINE(vemiSqrt_8u_AC4RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), root8u<AC4>)
VEMI_DEFINE(vemiSqrt_8u_C1IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), root8u<C1>)
VEMI_DEFINE(vemiSqrt_8u_C3IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), root8u<C3>)
VEMI_DEFINE(vemiSqrt_8u_AC4IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), root8u<AC4>)

VEMI_DEFINE(vemiSqrt_16u_C1RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), root16u<C1>)
VEMI_DEFINE(vemiSqrt_16u_C3RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), root16u<C3>)
VEMI_DEFINE(vemiSqrt_16u_AC4RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), root16u<AC4>)
VEMI_DEFINE(vemiSqrt_16u_C1IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), root16u<C1>)
VEMI_DEFINE(vemiSqrt_16u_C3IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), root16u<C3>)
VEMI_DEFINE(vemiSqrt_16u_AC4IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), root16u<AC4>)

VEMI_DEFINE(vemiSqrt_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), root16s<C1>)
VEMI_DEFINE(vemiSqrt_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), root16s<C3>)
VEMI_DEFINE(vemiSqrt_16s_AC4RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), root16s<AC4>)
VEMI_DEFINE(vemiSqrt_16s_C1IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), root16s<C1>)
VEMI_DEFINE(vemiSqrt_16s_C3IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), root16s<C3>)
VEMI_DEFINE(vemiSqrt_16s_AC4IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), root16s<AC4>)

VEMI_DEFINE(vemiSqrt_32f_C1R, VEMI_SRC_DST(Vemi32f), root32f<C1>)
VEMI_DEFINE(vemiSqrt_32f_C3R, VEMI_SRC_DST(Vemi32f), root32f<C3>)
VEMI_DEFINE(vemiSqrt_32f_AC4R, VEMI_SRC_DST(Vemi32f), root32f<AC4>)
VEMI_DEFINE(vemiSqrt_32f_C1IR, VEMI_SRCDST(Vemi32f), root32f<C1>)
VEMI_DEFINE(vemiSqrt_32f_C3IR, VEMI_SRCDST(Vemi32f), root32f<C3>)
VEMI_DEFINE(vemiSqrt_32f_C4IR, VEMI_SRCDST(Vemi32f), root32f<C4>)
VEMI_DEFINE(vemiSqrt_32f_AC4IR, VEMI_SRCDST(Vemi32f), root32f<AC4>)
