// vemiMulScale, vemiMulCScale: the product of two values that stand for fractions of the full scale of their type. With
// t = a b and w the bits of the type, (t + 1 + (t >> w)) >> w, which is t / (2^w - 1) rounded down.
// Checks: null, step, size.

#include "arith/full_scale.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct FullScaleProduct {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return productOfTwo(d, a, b);
  }
};

template <class T, class L>
VemiStatus mulScale(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkStep(src1, src2, dst), checkSize(roiSize))) {
    return bad;
  }
  mapRegion<L>(CallerRows(), roiSize, eachVector(FullScaleProduct()), dst, src1, src2);
  return vemiOk;
}

template <class T, class L>
VemiStatus mulScaleC(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkStep(src, dst), checkSize(roiSize))) return bad;
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(FullScaleProduct(), value), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiMulScale_8u_C1R, VEMI_2SRC_DST(Vemi8u), mulScale<Vemi8u, C1>)
VEMI_DEFINE(vemiMulScale_8u_C3R, VEMI_2SRC_DST(Vemi8u), mulScale<Vemi8u, C3>)
VEMI_DEFINE(vemiMulScale_8u_C4R, VEMI_2SRC_DST(Vemi8u), mulScale<Vemi8u, C4>)
VEMI_DEFINE(vemiMulScale_8u_AC4R, VEMI_2SRC_DST(Vemi8u), mulScale<Vemi8u, AC4>)
VEMI_DEFINE(vemiMulScale_8u_C1IR, VEMI_SRC_SRCDST(Vemi8u), mulScale<Vemi8u, C1>)
VEMI_DEFINE(vemiMulScale_8u_C3IR, VEMI_SRC_SRCDST(Vemi8u), mulScale<Vemi8u, C3>)
VEMI_DEFINE(vemiMulScale_8u_C4IR, VEMI_SRC_SRCDST(Vemi8u), mulScale<Vemi8u, C4>)
VEMI_DEFINE(vemiMulScale_8u_AC4IR, VEMI_SRC_SRCDST(Vemi8u), mulScale<Vemi8u, AC4>)

VEMI_DEFINE(vemiMulScale_16u_C1R, VEMI_2SRC_DST(Vemi16u), mulScale<Vemi16u, C1>)
VEMI_DEFINE(vemiMulScale_16u_C3R, VEMI_2SRC_DST(Vemi16u), mulScale<Vemi16u, C3>)
VEMI_DEFINE(vemiMulScale_16u_C4R, VEMI_2SRC_DST(Vemi16u), mulScale<Vemi16u, C4>)
VEMI_DEFINE(vemiMulScale_16u_AC4R, VEMI_2SRC_DST(Vemi16u), mulScale<Vemi16u, AC4>)
VEMI_DEFINE(vemiMulScale_16u_C1IR, VEMI_SRC_SRCDST(Vemi16u), mulScale<Vemi16u, C1>)
VEMI_DEFINE(vemiMulScale_16u_C3IR, VEMI_SRC_SRCDST(Vemi16u), mulScale<Vemi16u, C3>)
VEMI_DEFINE(vemiMulScale_16u_C4IR, VEMI_SRC_SRCDST(Vemi16u), mulScale<Vemi16u, C4>)
VEMI_DEFINE(vemiMulScale_16u_AC4IR, VEMI_SRC_SRCDST(Vemi16u), mulScale<Vemi16u, AC4>)

VEMI_DEFINE(vemiMulCScale_8u_C1R, VEMI_SRC_VALUE_DST(Vemi8u), mulScaleC<Vemi8u, C1>)
VEMI_DEFINE(vemiMulCScale_8u_C3R, VEMI_SRC_VALUES_DST(Vemi8u), mulScaleC<Vemi8u, C3>)
VEMI_DEFINE(vemiMulCScale_8u_C4R, VEMI_SRC_VALUES_DST(Vemi8u), mulScaleC<Vemi8u, C4>)
VEMI_DEFINE(vemiMulCScale_8u_AC4R, VEMI_SRC_VALUES_DST(Vemi8u), mulScaleC<Vemi8u, AC4>)
VEMI_DEFINE(vemiMulCScale_8u_C1IR, VEMI_VALUE_SRCDST(Vemi8u), mulScaleC<Vemi8u, C1>)
VEMI_DEFINE(vemiMulCScale_8u_C3IR, VEMI_VALUES_SRCDST(Vemi8u), mulScaleC<Vemi8u, C3>)
VEMI_DEFINE(vemiMulCScale_8u_C4IR, VEMI_VALUES_SRCDST(Vemi8u), mulScaleC<Vemi8u, C4>)
VEMI_DEFINE(vemiMulCScale_8u_AC4IR, VEMI_VALUES_SRCDST(Vemi8u), mulScaleC<Vemi8u, AC4>)

VEMI_DEFINE(vemiMulCScale_16u_C1R, VEMI_SRC_VALUE_DST(Vemi16u), mulScaleC<Vemi16u, C1>)
VEMI_DEFINE(vemiMulCScale_16u_C3R, VEMI_SRC_VALUES_DST(Vemi16u), mulScaleC<Vemi16u, C3>)
VEMI_DEFINE(vemiMulCScale_16u_C4R, VEMI_SRC_VALUES_DST(Vemi16u), mulScaleC<Vemi16u, C4>)
VEMI_DEFINE(vemiMulCScale_16u_AC4R, VEMI_SRC_VALUES_DST(Vemi16u), mulScaleC<Vemi16u, AC4>)
VEMI_DEFINE(vemiMulCScale_16u_C1IR, VEMI_VALUE_SRCDST(Vemi16u), mulScaleC<Vemi16u, C1>)
VEMI_DEFINE(vemiMulCScale_16u_C3IR, VEMI_VALUES_SRCDST(Vemi16u), mulScaleC<Vemi16u, C3>)
VEMI_DEFINE(vemiMulCScale_16u_C4IR, VEMI_VALUES_SRCDST(Vemi16u), mulScaleC<Vemi16u, C4>)
VEMI_DEFINE(vemiMulCScale_16u_AC4IR, VEMI_VALUES_SRCDST(Vemi16u), mulScaleC<Vemi16u, AC4>)
