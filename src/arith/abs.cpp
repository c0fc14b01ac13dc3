// vemiAbs: the absolute value. Checks: null, size, step; then the steps are rounded down to whole elements.

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// The least integer has no counterpart and gives the greatest one.
struct Magnitude {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    if constexpr (std::is_integral_v<hn::TFromD<D>>) {
      return hn::Max(v, hn::SaturatedSub(hn::Zero(d), v));
    } else {
      return hn::Abs(v);
    }
  }
};

template <class T, class L>
VemiStatus absolute(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L>(CallerRows(), roiSize, eachVector(Magnitude()), wholeElements(dst), wholeElements(src));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiAbs_16s_C1R, VEMI_SRC_DST(Vemi16s), absolute<Vemi16s, C1>)
VEMI_DEFINE(vemiAbs_16s_C3R, VEMI_SRC_DST(Vemi16s), absolute<Vemi16s, C3>)
VEMI_DEFINE(vemiAbs_16s_C4R, VEMI_SRC_DST(Vemi16s), absolute<Vemi16s, C4>)
VEMI_DEFINE(vemiAbs_16s_AC4R, VEMI_SRC_DST(Vemi16s), absolute<Vemi16s, AC4>)
VEMI_DEFINE(vemiAbs_16s_C1IR, VEMI_SRCDST(Vemi16s), absolute<Vemi16s, C1>)
VEMI_DEFINE(vemiAbs_16s_C3IR, VEMI_SRCDST(Vemi16s), absolute<Vemi16s, C3>)
VEMI_DEFINE(vemiAbs_16s_C4IR, VEMI_SRCDST(Vemi16s), absolute<Vemi16s, C4>)
VEMI_DEFINE(vemiAbs_16s_AC4IR, VEMI_SRCDST(Vemi16s), absolute<Vemi16s, AC4>)

VEMI_DEFINE(vemiAbs_32f_C1R, VEMI_SRC_DST(Vemi32f), absolute<Vemi32f, C1>)
VEMI_DEFINE(vemiAbs_32f_C3R, VEMI_SRC_DST(Vemi32f), absolute<Vemi32f, C3>)
VEMI_DEFINE(vemiAbs_32f_C4R, VEMI_SRC_DST(Vemi32f), absolute<Vemi32f, C4>)
VEMI_DEFINE(vemiAbs_32f_AC4R, VEMI_SRC_DST(Vemi32f), absolute<Vemi32f, AC4>)
VEMI_DEFINE(vemiAbs_32f_C1IR, VEMI_SRCDST(Vemi32f), absolute<Vemi32f, C1>)
VEMI_DEFINE(vemiAbs_32f_C3IR, VEMI_SRCDST(Vemi32f), absolute<Vemi32f, C3>)
VEMI_DEFINE(vemiAbs_32f_C4IR, VEMI_SRCDST(Vemi32f), absolute<Vemi32f, C4>)
VEMI_DEFINE(vemiAbs_32f_AC4IR, VEMI_SRCDST(Vemi32f), absolute<Vemi32f, AC4>)
