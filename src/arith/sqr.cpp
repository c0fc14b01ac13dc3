// vemiSqr: source squared, divided by 2^scaleFactor for integers. Checks: null, size, step.

#include <algorithm>
#include <cmath>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/lane_width.h"
#include "core/map_region.h"
#include "core/whole_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct Square {
  template <class D, class V>
  HWY_INLINE V operator()(D, V v) const {
    return hn::Mul(v, v);
  }
};

/// Without a sign: the square is the same, and fits unsigned lanes of twice the width.
template <class D, class V>
HWY_INLINE auto magnitude(D, V v) {
  const hn::RebindToUnsigned<D> du;
  if constexpr (std::is_signed_v<hn::TFromD<D>>) v = hn::Abs(v);
  return hn::BitCast(du, v);
}

// To round a square to nearest: a tie is an odd square times an even power of two, and odd squares are 1 above a
// multiple of 8. So ties always go down.

/// Scale factors from 1 to the bits of T plus 1, where the sum fits.
template <class T>
struct SquareScaledDown {
  int scaleFactor;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RebindToUnsigned<D> du;
    const auto wideSquare = [&](auto dw, auto x) HWY_ATTR {
      const auto one = hn::Set(dw, 1);
      const auto bias = hn::Sub(hn::ShiftLeftSame(one, scaleFactor - 1), one);
      const auto quotient = hn::ShiftRightSame(hn::Add(hn::Mul(x, x), bias), scaleFactor);
      return hn::Min(quotient, hn::Set(dw, std::numeric_limits<T>::max()));
    };
    return hn::BitCast(d, inWideLanes(du, wideSquare, magnitude(d, v)));
  }
};

/// The others up to twice the bits of T, by halves.
template <class T>
struct SquareScaledFarDown {
  int scaleFactor;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RebindToUnsigned<D> du;
    const auto notZero = hn::Max(magnitude(d, v), hn::Set(du, 1));  // zero and one have the same result
    const auto wideSquare = [&](auto dw, auto x) HWY_ATTR {
      const auto one = hn::Set(dw, 1);
      const auto halves = hn::ShiftRightSame(hn::Sub(hn::Mul(x, x), one), scaleFactor - 1);
      return hn::ShiftRight<1>(hn::Add(halves, one));
    };
    return hn::BitCast(d, inWideLanes(du, wideSquare, notZero));
  }
};

/// Scale factors from 0 down to minus the bits of T. Up to the limit, squares do not leave the range; above it, the
/// result is the highest value.
template <class T>
struct SquareScaledUp {
  uint16_t factor, limit;

  explicit SquareScaledUp(int shift)
      : factor(static_cast<uint16_t>(1 << std::min(shift, 15))),
        limit(static_cast<uint16_t>(std::sqrt(std::numeric_limits<T>::max() >> shift))) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RebindToUnsigned<D> du;
    const auto x = magnitude(d, v);
    const auto limited = hn::Min(x, hn::Set(du, limit));
    const auto square = hn::Mul(limited, hn::Mul(limited, hn::Set(du, factor)));
    const auto inRange = hn::VecFromMask(du, hn::Eq(x, limited));
    const auto highest = hn::Set(du, std::numeric_limits<T>::max());  // all of its bits are set
    return hn::BitCast(d, hn::Or(square, hn::AndNot(inRange, highest)));
  }
};

/// Of bytes there are only sixteen squares to know.
template <>
struct SquareScaledUp<Vemi8u> {
  alignas(16) Vemi8u square[16];

  explicit SquareScaledUp(int shift) {
    for (int x = 0; x < 16; ++x) square[x] = static_cast<Vemi8u>(std::min(x * x << shift, 255));
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const V limited = hn::Min(v, hn::Set(d, 15));
    const V beyond = hn::VecFromMask(d, hn::Ne(v, limited));
    return hn::Or(hn::TableLookupBytes(hn::LoadDup128(d, square), limited), beyond);
  }
};

template <class T, class L>
VemiStatus squareScaled(Image<const T> src, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  constexpr int bits = 8 * sizeof(T);
  if (scaleFactor > 2 * bits) return fillRegion<T, L>(0, dst, roiSize);
  const auto map = [&](const auto& op) {
    mapRegion<L>(CallerRows(), roiSize, eachVector(op), dst, src);
    return vemiOk;
  };
  if (scaleFactor > bits + 1) return map(SquareScaledFarDown<T>{scaleFactor});
  if (scaleFactor > 0) return map(SquareScaledDown<T>{scaleFactor});
  return map(SquareScaledUp<T>(scaleFactor < -bits ? bits : -scaleFactor));
}

template <class L>
VemiStatus squareFloat(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L>(CallerRows(), roiSize, eachVector(Square()), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiSqr_8u_C1RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiSqr_8u_C3RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C3>)
VEMI_DEFINE(vemiSqr_8u_C4RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C4>)
VEMI_DEFINE(vemiSqr_8u_AC4RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, AC4>)
VEMI_DEFINE(vemiSqr_8u_C1IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiSqr_8u_C3IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C3>)
VEMI_DEFINE(vemiSqr_8u_C4IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, C4>)
VEMI_DEFINE(vemiSqr_8u_AC4IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), squareScaled<Vemi8u, AC4>)

VEMI_DEFINE(vemiSqr_16u_C1RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C1>)
VEMI_DEFINE(vemiSqr_16u_C3RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C3>)
VEMI_DEFINE(vemiSqr_16u_C4RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C4>)
VEMI_DEFINE(vemiSqr_16u_AC4RSfs, VEMI_SRC_DST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, AC4>)
VEMI_DEFINE(vemiSqr_16u_C1IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C1>)
VEMI_DEFINE(vemiSqr_16u_C3IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C3>)
VEMI_DEFINE(vemiSqr_16u_C4IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, C4>)
VEMI_DEFINE(vemiSqr_16u_AC4IRSfs, VEMI_SRCDST(Vemi16u, VEMI_SFS), squareScaled<Vemi16u, AC4>)

VEMI_DEFINE(vemiSqr_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiSqr_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C3>)
VEMI_DEFINE(vemiSqr_16s_C4RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C4>)
VEMI_DEFINE(vemiSqr_16s_AC4RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, AC4>)
VEMI_DEFINE(vemiSqr_16s_C1IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiSqr_16s_C3IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C3>)
VEMI_DEFINE(vemiSqr_16s_C4IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, C4>)
VEMI_DEFINE(vemiSqr_16s_AC4IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), squareScaled<Vemi16s, AC4>)

VEMI_DEFINE(vemiSqr_32f_C1R, VEMI_SRC_DST(Vemi32f), squareFloat<C1>)
VEMI_DEFINE(vemiSqr_32f_C3R, VEMI_SRC_DST(Vemi32f), squareFloat<C3>)
VEMI_DEFINE(vemiSqr_32f_C4R, VEMI_SRC_DST(Vemi32f), squareFloat<C4>)
VEMI_DEFINE(vemiSqr_32f_AC4R, VEMI_SRC_DST(Vemi32f), squareFloat<AC4>)
VEMI_DEFINE(vemiSqr_32f_C1IR, VEMI_SRCDST(Vemi32f), squareFloat<C1>)
VEMI_DEFINE(vemiSqr_32f_C3IR, VEMI_SRCDST(Vemi32f), squareFloat<C3>)
VEMI_DEFINE(vemiSqr_32f_C4IR, VEMI_SRCDST(Vemi32f), squareFloat<C4>)
VEMI_DEFINE(vemiSqr_32f_AC4IR, VEMI_SRCDST(Vemi32f), squareFloat<AC4>)
