// vemiFilterMin, vemiFilterMax: the least or the greatest pixel of a rectangle around each pixel.
// Checks: null, size, step, mask size, anchor.

#include "core/checks.h"
#include "core/exports.h"
#include "core/whole_region.h"
#include "filter/extremes.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

template <class Order, class T, class L>
VemiStatus extreme(Image<const T> src, Image<T> dst, VemiSize roiSize, VemiSize maskSize, VemiPoint anchor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst),
                                     checkMaskSize(maskSize), checkAnchor(anchor, maskSize))) {
    return bad;
  }
  if (maskSize.width == 1 && maskSize.height == 1) return copyRegion<L>(src, dst, roiSize);
  const Window window = Window::fromFirst(maskSize, anchor);
  return extremeOfRectangle<Order>(ExtremeCall<T>::template of<L>(src, dst, roiSize, window));
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define RECTANGLE ((VemiSize maskSize, VemiPoint anchor), (maskSize, anchor))

VEMI_DEFINE(vemiFilterMin_8u_C1R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Least, Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMin_8u_C3R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Least, Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMin_8u_C4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Least, Vemi8u, C4>)
VEMI_DEFINE(vemiFilterMin_8u_AC4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Least, Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterMin_16s_C1R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Least, Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMin_16s_C3R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Least, Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMin_16s_C4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Least, Vemi16s, C4>)
VEMI_DEFINE(vemiFilterMin_16s_AC4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Least, Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterMin_32f_C1R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Least, Vemi32f, C1>)
VEMI_DEFINE(vemiFilterMin_32f_C3R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Least, Vemi32f, C3>)
VEMI_DEFINE(vemiFilterMin_32f_C4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Least, Vemi32f, C4>)
VEMI_DEFINE(vemiFilterMin_32f_AC4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Least, Vemi32f, AC4>)

VEMI_DEFINE(vemiFilterMax_8u_C1R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Greatest, Vemi8u, C1>)
VEMI_DEFINE(vemiFilterMax_8u_C3R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Greatest, Vemi8u, C3>)
VEMI_DEFINE(vemiFilterMax_8u_C4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Greatest, Vemi8u, C4>)
VEMI_DEFINE(vemiFilterMax_8u_AC4R, VEMI_SRC_DST(Vemi8u, RECTANGLE), extreme<Greatest, Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterMax_16s_C1R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Greatest, Vemi16s, C1>)
VEMI_DEFINE(vemiFilterMax_16s_C3R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Greatest, Vemi16s, C3>)
VEMI_DEFINE(vemiFilterMax_16s_C4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Greatest, Vemi16s, C4>)
VEMI_DEFINE(vemiFilterMax_16s_AC4R, VEMI_SRC_DST(Vemi16s, RECTANGLE), extreme<Greatest, Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterMax_32f_C1R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Greatest, Vemi32f, C1>)
VEMI_DEFINE(vemiFilterMax_32f_C3R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Greatest, Vemi32f, C3>)
VEMI_DEFINE(vemiFilterMax_32f_C4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Greatest, Vemi32f, C4>)
VEMI_DEFINE(vemiFilterMax_32f_AC4R, VEMI_SRC_DST(Vemi32f, RECTANGLE), extreme<Greatest, Vemi32f, AC4>)
