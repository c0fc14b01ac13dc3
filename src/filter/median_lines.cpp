// vemiFilterMedianHoriz, vemiFilterMedianVert, vemiFilterMedianCross: the median of three or five pixels of a row or a
// column, or of the five or nine of a cross. Checks: null, size, step, mask size.

#include "core/checks.h"
#include "core/exports.h"
#include "filter/median.h"

namespace vemi::filter {
namespace {

template <class T, class L, int smallMask, const auto& smallTaps, int largeMask, const auto& largeTaps>
VemiStatus chosen(Image<const T> src, Image<T> dst, VemiSize roiSize, int maskSize) {
  const bool isMask = maskSize == smallMask || maskSize == largeMask;
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), isMask ? vemiOk : vemiErrMaskSize)) {
    return bad;
  }
  if (maskSize == smallMask) return medianOfTaps<smallTaps, L>(src, dst, roiSize);
  return medianOfTaps<largeTaps, L>(src, dst, roiSize);
}

template <class T, class L>
constexpr auto horiz = chosen<T, L, vemiMask3x1, row3, vemiMask5x1, row5>;
template <class T, class L>
constexpr auto vert = chosen<T, L, vemiMask1x3, column3, vemiMask1x5, column5>;
template <class T, class L>
constexpr auto cross = chosen<T, L, vemiMask3x3, cross3, vemiMask5x5, cross5>;

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define MASK_SIZE ((int maskSize), (maskSize))

VEMI_DEFINE(vemiFilterMedianHoriz_8u_C1R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), horiz<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMedianHoriz_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), horiz<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMedianHoriz_8u_C4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), horiz<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterMedianHoriz_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), horiz<Vemi8u, AC4>)
VEMI_DEFINE(vemiFilterMedianHoriz_16s_C1R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), horiz<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMedianHoriz_16s_C3R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), horiz<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMedianHoriz_16s_C4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), horiz<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterMedianHoriz_16s_AC4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), horiz<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterMedianVert_8u_C1R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), vert<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMedianVert_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), vert<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMedianVert_8u_C4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), vert<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterMedianVert_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), vert<Vemi8u, AC4>)
VEMI_DEFINE(vemiFilterMedianVert_16s_C1R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), vert<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMedianVert_16s_C3R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), vert<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMedianVert_16s_C4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), vert<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterMedianVert_16s_AC4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), vert<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterMedianCross_8u_C1R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), cross<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMedianCross_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), cross<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMedianCross_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK_SIZE), cross<Vemi8u, AC4>)
VEMI_DEFINE(vemiFilterMedianCross_16s_C1R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), cross<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMedianCross_16s_C3R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), cross<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMedianCross_16s_AC4R, VEMI_SRC_DST(Vemi16s, MASK_SIZE), cross<Vemi16s, AC4>)
