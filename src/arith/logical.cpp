// vemiAnd, vemiOr, vemiXor, their forms with constants, and vemiNot, which is XorC with all ones.
// Checks: null, step, size; vemiNot with three or four channels looks at the size first.

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct And {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::And(a, b);
  }
};

struct Or {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Or(a, b);
  }
};

struct Xor {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Xor(a, b);
  }
};

template <class L, class Op, class T>
VemiStatus logical(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkStep(src1, src2, dst), checkSize(roiSize))) {
    return bad;
  }
  mapRegion<L>(CallerRows(), roiSize, eachVector(Op()), dst, src1, src2);
  return vemiOk;
}

template <class L, class Op, class T>
VemiStatus logicalC(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkStep(src, dst), checkSize(roiSize))) return bad;
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(Op(), value), dst, src);
  return vemiOk;
}

template <class L>
VemiStatus invert(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  constexpr Vemi8u allOnes[4] = {0xff, 0xff, 0xff, 0xff};
  return logicalC<L, Xor>(src, allOnes, dst, roiSize);
}

/// The C3 and C4 forms stand on the one-channel form, and on the size, before they look at a pointer.
template <class L>
VemiStatus invertChannels(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkSize(roiSize)) return bad;
  return invert<L>(src, dst, roiSize);
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiAnd_8u_C1R, VEMI_2SRC_DST(Vemi8u), logical<C1, And>)
VEMI_DEFINE(vemiAnd_8u_C3R, VEMI_2SRC_DST(Vemi8u), logical<C3, And>)
VEMI_DEFINE(vemiAnd_8u_C4R, VEMI_2SRC_DST(Vemi8u), logical<C4, And>)
VEMI_DEFINE(vemiAnd_8u_AC4R, VEMI_2SRC_DST(Vemi8u), logical<AC4, And>)
VEMI_DEFINE(vemiAnd_8u_C1IR, VEMI_SRC_SRCDST(Vemi8u), logical<C1, And>)
VEMI_DEFINE(vemiAnd_8u_C3IR, VEMI_SRC_SRCDST(Vemi8u), logical<C3, And>)
VEMI_DEFINE(vemiAnd_8u_C4IR, VEMI_SRC_SRCDST(Vemi8u), logical<C4, And>)
VEMI_DEFINE(vemiAnd_8u_AC4IR, VEMI_SRC_SRCDST(Vemi8u), logical<AC4, And>)

VEMI_DEFINE(vemiAnd_16u_C1R, VEMI_2SRC_DST(Vemi16u), logical<C1, And>)
VEMI_DEFINE(vemiAnd_16u_C3R, VEMI_2SRC_DST(Vemi16u), logical<C3, And>)
VEMI_DEFINE(vemiAnd_16u_C4R, VEMI_2SRC_DST(Vemi16u), logical<C4, And>)
VEMI_DEFINE(vemiAnd_16u_AC4R, VEMI_2SRC_DST(Vemi16u), logical<AC4, And>)
VEMI_DEFINE(vemiAnd_16u_C1IR, VEMI_SRC_SRCDST(Vemi16u), logical<C1, And>)
VEMI_DEFINE(vemiAnd_16u_C3IR, VEMI_SRC_SRCDST(Vemi16u), logical<C3, And>)
VEMI_DEFINE(vemiAnd_16u_C4IR, VEMI_SRC_SRCDST(Vemi16u), logical<C4, And>)
VEMI_DEFINE(vemiAnd_16u_AC4IR, VEMI_SRC_SRCDST(Vemi16u), logical<AC4, And>)

VEMI_DEFINE(vemiAnd_32s_C1R, VEMI_2SRC_DST(Vemi32s), logical<C1, And>)
VEMI_DEFINE(vemiAnd_32s_C3R, VEMI_2SRC_DST(Vemi32s), logical<C3, And>)
VEMI_DEFINE(vemiAnd_32s_C4R, VEMI_2SRC_DST(Vemi32s), logical<C4, And>)
VEMI_DEFINE(vemiAnd_32s_AC4R, VEMI_2SRC_DST(Vemi32s), logical<AC4, And>)
VEMI_DEFINE(vemiAnd_32s_C1IR, VEMI_SRC_SRCDST(Vemi32s), logical<C1, And>)
VEMI_DEFINE(vemiAnd_32s_C3IR, VEMI_SRC_SRCDST(Vemi32s), logical<C3, And>)
VEMI_DEFINE(vemiAnd_32s_C4IR, VEMI_SRC_SRCDST(Vemi32s), logical<C4, And>)
VEMI_DEFINE(vemiAnd_32s_AC4IR, VEMI_SRC_SRCDST(Vemi32s), logical<AC4, And>)

VEMI_DEFINE(vemiOr_8u_C1R, VEMI_2SRC_DST(Vemi8u), logical<C1, Or>)
VEMI_DEFINE(vemiOr_8u_C3R, VEMI_2SRC_DST(Vemi8u), logical<C3, Or>)
VEMI_DEFINE(vemiOr_8u_C4R, VEMI_2SRC_DST(Vemi8u), logical<C4, Or>)
VEMI_DEFINE(vemiOr_8u_AC4R, VEMI_2SRC_DST(Vemi8u), logical<AC4, Or>)
VEMI_DEFINE(vemiOr_8u_C1IR, VEMI_SRC_SRCDST(Vemi8u), logical<C1, Or>)
VEMI_DEFINE(vemiOr_8u_C3IR, VEMI_SRC_SRCDST(Vemi8u), logical<C3, Or>)
VEMI_DEFINE(vemiOr_8u_C4IR, VEMI_SRC_SRCDST(Vemi8u), logical<C4, Or>)
VEMI_DEFINE(vemiOr_8u_AC4IR, VEMI_SRC_SRCDST(Vemi8u), logical<AC4, Or>)

VEMI_DEFINE(vemiOr_16u_C1R, VEMI_2SRC_DST(Vemi16u), logical<C1, Or>)
VEMI_DEFINE(vemiOr_16u_C3R, VEMI_2SRC_DST(Vemi16u), logical<C3, Or>)
VEMI_DEFINE(vemiOr_16u_C4R, VEMI_2SRC_DST(Vemi16u), logical<C4, Or>)
VEMI_DEFINE(vemiOr_16u_AC4R, VEMI_2SRC_DST(Vemi16u), logical<AC4, Or>)
VEMI_DEFINE(vemiOr_16u_C1IR, VEMI_SRC_SRCDST(Vemi16u), logical<C1, Or>)
VEMI_DEFINE(vemiOr_16u_C3IR, VEMI_SRC_SRCDST(Vemi16u), logical<C3, Or>)
VEMI_DEFINE(vemiOr_16u_C4IR, VEMI_SRC_SRCDST(Vemi16u), logical<C4, Or>)
VEMI_DEFINE(vemiOr_16u_AC4IR, VEMI_SRC_SRCDST(Vemi16u), logical<AC4, Or>)

VEMI_DEFINE(vemiOr_32s_C1R, VEMI_2SRC_DST(Vemi32s), logical<C1, Or>)
VEMI_DEFINE(vemiOr_32s_C3R, VEMI_2SRC_DST(Vemi32s), logical<C3, Or>)
VEMI_DEFINE(vemiOr_32s_C4R, VEMI_2SRC_DST(Vemi32s), logical<C4, Or>)
VEMI_DEFINE(vemiOr_32s_AC4R, VEMI_2SRC_DST(Vemi32s), logical<AC4, Or>)
VEMI_DEFINE(vemiOr_32s_C1IR, VEMI_SRC_SRCDST(Vemi32s), logical<C1, Or>)
VEMI_DEFINE(vemiOr_32s_C3IR, VEMI_SRC_SRCDST(Vemi32s), logical<C3, Or>)
VEMI_DEFINE(vemiOr_32s_C4IR, VEMI_SRC_SRCDST(Vemi32s), logical<C4, Or>)
VEMI_DEFINE(vemiOr_32s_AC4IR, VEMI_SRC_SRCDST(Vemi32s), logical<AC4, Or>)

VEMI_DEFINE(vemiXor_8u_C1R, VEMI_2SRC_DST(Vemi8u), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_8u_C3R, VEMI_2SRC_DST(Vemi8u), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_8u_C4R, VEMI_2SRC_DST(Vemi8u), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_8u_AC4R, VEMI_2SRC_DST(Vemi8u), logical<AC4, Xor>)
VEMI_DEFINE(vemiXor_8u_C1IR, VEMI_SRC_SRCDST(Vemi8u), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_8u_C3IR, VEMI_SRC_SRCDST(Vemi8u), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_8u_C4IR, VEMI_SRC_SRCDST(Vemi8u), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_8u_AC4IR, VEMI_SRC_SRCDST(Vemi8u), logical<AC4, Xor>)

VEMI_DEFINE(vemiXor_16u_C1R, VEMI_2SRC_DST(Vemi16u), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_16u_C3R, VEMI_2SRC_DST(Vemi16u), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_16u_C4R, VEMI_2SRC_DST(Vemi16u), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_16u_AC4R, VEMI_2SRC_DST(Vemi16u), logical<AC4, Xor>)
VEMI_DEFINE(vemiXor_16u_C1IR, VEMI_SRC_SRCDST(Vemi16u), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_16u_C3IR, VEMI_SRC_SRCDST(Vemi16u), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_16u_C4IR, VEMI_SRC_SRCDST(Vemi16u), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_16u_AC4IR, VEMI_SRC_SRCDST(Vemi16u), logical<AC4, Xor>)

VEMI_DEFINE(vemiXor_32s_C1R, VEMI_2SRC_DST(Vemi32s), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_32s_C3R, VEMI_2SRC_DST(Vemi32s), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_32s_C4R, VEMI_2SRC_DST(Vemi32s), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_32s_AC4R, VEMI_2SRC_DST(Vemi32s), logical<AC4, Xor>)
VEMI_DEFINE(vemiXor_32s_C1IR, VEMI_SRC_SRCDST(Vemi32s), logical<C1, Xor>)
VEMI_DEFINE(vemiXor_32s_C3IR, VEMI_SRC_SRCDST(Vemi32s), logical<C3, Xor>)
VEMI_DEFINE(vemiXor_32s_C4IR, VEMI_SRC_SRCDST(Vemi32s), logical<C4, Xor>)
VEMI_DEFINE(vemiXor_32s_AC4IR, VEMI_SRC_SRCDST(Vemi32s), logical<AC4, Xor>)

VEMI_DEFINE(vemiAndC_8u_C1R, VEMI_SRC_VALUE_DST(Vemi8u), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_8u_C3R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_8u_C4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_8u_AC4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<AC4, And>)
VEMI_DEFINE(vemiAndC_8u_C1IR, VEMI_VALUE_SRCDST(Vemi8u), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_8u_C3IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_8u_C4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_8u_AC4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<AC4, And>)

VEMI_DEFINE(vemiAndC_16u_C1R, VEMI_SRC_VALUE_DST(Vemi16u), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_16u_C3R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_16u_C4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_16u_AC4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<AC4, And>)
VEMI_DEFINE(vemiAndC_16u_C1IR, VEMI_VALUE_SRCDST(Vemi16u), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_16u_C3IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_16u_C4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_16u_AC4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<AC4, And>)

VEMI_DEFINE(vemiAndC_32s_C1R, VEMI_SRC_VALUE_DST(Vemi32s), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_32s_C3R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_32s_C4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_32s_AC4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<AC4, And>)
VEMI_DEFINE(vemiAndC_32s_C1IR, VEMI_VALUE_SRCDST(Vemi32s), logicalC<C1, And>)
VEMI_DEFINE(vemiAndC_32s_C3IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C3, And>)
VEMI_DEFINE(vemiAndC_32s_C4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C4, And>)
VEMI_DEFINE(vemiAndC_32s_AC4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<AC4, And>)

VEMI_DEFINE(vemiOrC_8u_C1R, VEMI_SRC_VALUE_DST(Vemi8u), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_8u_C3R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_8u_C4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_8u_AC4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<AC4, Or>)
VEMI_DEFINE(vemiOrC_8u_C1IR, VEMI_VALUE_SRCDST(Vemi8u), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_8u_C3IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_8u_C4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_8u_AC4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<AC4, Or>)

VEMI_DEFINE(vemiOrC_16u_C1R, VEMI_SRC_VALUE_DST(Vemi16u), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_16u_C3R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_16u_C4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_16u_AC4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<AC4, Or>)
VEMI_DEFINE(vemiOrC_16u_C1IR, VEMI_VALUE_SRCDST(Vemi16u), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_16u_C3IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_16u_C4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_16u_AC4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<AC4, Or>)

VEMI_DEFINE(vemiOrC_32s_C1R, VEMI_SRC_VALUE_DST(Vemi32s), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_32s_C3R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_32s_C4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_32s_AC4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<AC4, Or>)
VEMI_DEFINE(vemiOrC_32s_C1IR, VEMI_VALUE_SRCDST(Vemi32s), logicalC<C1, Or>)
VEMI_DEFINE(vemiOrC_32s_C3IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C3, Or>)
VEMI_DEFINE(vemiOrC_32s_C4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C4, Or>)
VEMI_DEFINE(vemiOrC_32s_AC4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<AC4, Or>)

VEMI_DEFINE(vemiXorC_8u_C1R, VEMI_SRC_VALUE_DST(Vemi8u), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_8u_C3R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_8u_C4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_8u_AC4R, VEMI_SRC_VALUES_DST(Vemi8u), logicalC<AC4, Xor>)
VEMI_DEFINE(vemiXorC_8u_C1IR, VEMI_VALUE_SRCDST(Vemi8u), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_8u_C3IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_8u_C4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_8u_AC4IR, VEMI_VALUES_SRCDST(Vemi8u), logicalC<AC4, Xor>)

VEMI_DEFINE(vemiXorC_16u_C1R, VEMI_SRC_VALUE_DST(Vemi16u), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_16u_C3R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_16u_C4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_16u_AC4R, VEMI_SRC_VALUES_DST(Vemi16u), logicalC<AC4, Xor>)
VEMI_DEFINE(vemiXorC_16u_C1IR, VEMI_VALUE_SRCDST(Vemi16u), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_16u_C3IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_16u_C4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_16u_AC4IR, VEMI_VALUES_SRCDST(Vemi16u), logicalC<AC4, Xor>)

VEMI_DEFINE(vemiXorC_32s_C1R, VEMI_SRC_VALUE_DST(Vemi32s), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_32s_C3R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_32s_C4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_32s_AC4R, VEMI_SRC_VALUES_DST(Vemi32s), logicalC<AC4, Xor>)
VEMI_DEFINE(vemiXorC_32s_C1IR, VEMI_VALUE_SRCDST(Vemi32s), logicalC<C1, Xor>)
VEMI_DEFINE(vemiXorC_32s_C3IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C3, Xor>)
VEMI_DEFINE(vemiXorC_32s_C4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<C4, Xor>)
VEMI_DEFINE(vemiXorC_32s_AC4IR, VEMI_VALUES_SRCDST(Vemi32s), logicalC<AC4, Xor>)

VEMI_DEFINE(vemiNot_8u_C1R, VEMI_SRC_DST(Vemi8u), invert<C1>)
VEMI_DEFINE(vemiNot_8u_C3R, VEMI_SRC_DST(Vemi8u), invertChannels<C3>)
VEMI_DEFINE(vemiNot_8u_C4R, VEMI_SRC_DST(Vemi8u), invertChannels<C4>)
VEMI_DEFINE(vemiNot_8u_AC4R, VEMI_SRC_DST(Vemi8u), invert<AC4>)
VEMI_DEFINE(vemiNot_8u_C1IR, VEMI_SRCDST(Vemi8u), invert<C1>)
VEMI_DEFINE(vemiNot_8u_C3IR, VEMI_SRCDST(Vemi8u), invertChannels<C3>)
VEMI_DEFINE(vemiNot_8u_C4IR, VEMI_SRCDST(Vemi8u), invertChannels<C4>)
VEMI_DEFINE(vemiNot_8u_AC4IR, VEMI_SRCDST(Vemi8u), invert<AC4>)
