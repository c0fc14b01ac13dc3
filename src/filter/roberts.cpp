// vemiFilterRobertsUp, vemiFilterRobertsDown: a pixel minus the one above it and beside that, by the public
// subtractions, which saturate and open a team as they do for anyone.

#include "core/checks.h"
#include "core/exports.h"
#include "vemi/arith.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

template <class T>
using ScaledSubtraction = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize, int);
template <class T>
using Subtraction = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize);

enum Neighbour { toTheLeft = -1, toTheRight = 1 };

template <class L, class T>
const T* above(Image<const T> src, Neighbour side) {
  return src.row(-1) + side * L::elements;
}

template <class T, class L, Neighbour side, ScaledSubtraction<T>* subtract>
VemiStatus roberts(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return subtract(above<L>(src, side), src.step, src.first, src.step, dst.first, dst.step, roiSize, 0);
}

template <class T, class L, Neighbour side, Subtraction<T>* subtract>
VemiStatus roberts(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return subtract(above<L>(src, side), src.step, src.first, src.step, dst.first, dst.step, roiSize);
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilterRobertsUp_8u_C1R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, C1, toTheRight, vemiSub_8u_C1RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_8u_C3R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, C3, toTheRight, vemiSub_8u_C3RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_8u_AC4R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, AC4, toTheRight, vemiSub_8u_AC4RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_16s_C1R, VEMI_SRC_DST(Vemi16s), roberts<Vemi16s, C1, toTheRight, vemiSub_16s_C1RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_16s_C3R, VEMI_SRC_DST(Vemi16s), roberts<Vemi16s, C3, toTheRight, vemiSub_16s_C3RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_16s_AC4R, VEMI_SRC_DST(Vemi16s), roberts<Vemi16s, AC4, toTheRight, vemiSub_16s_AC4RSfs>)
VEMI_DEFINE(vemiFilterRobertsUp_32f_C1R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, C1, toTheRight, vemiSub_32f_C1R>)
VEMI_DEFINE(vemiFilterRobertsUp_32f_C3R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, C3, toTheRight, vemiSub_32f_C3R>)
VEMI_DEFINE(vemiFilterRobertsUp_32f_AC4R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, AC4, toTheRight, vemiSub_32f_AC4R>)

VEMI_DEFINE(vemiFilterRobertsDown_8u_C1R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, C1, toTheLeft, vemiSub_8u_C1RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_8u_C3R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, C3, toTheLeft, vemiSub_8u_C3RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_8u_AC4R, VEMI_SRC_DST(Vemi8u), roberts<Vemi8u, AC4, toTheLeft, vemiSub_8u_AC4RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_16s_C1R, VEMI_SRC_DST(Vemi16s), roberts<Vemi16s, C1, toTheLeft, vemiSub_16s_C1RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_16s_C3R, VEMI_SRC_DST(Vemi16s), roberts<Vemi16s, C3, toTheLeft, vemiSub_16s_C3RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_16s_AC4R, VEMI_SRC_DST(Vemi16s),
            roberts<Vemi16s, AC4, toTheLeft, vemiSub_16s_AC4RSfs>)
VEMI_DEFINE(vemiFilterRobertsDown_32f_C1R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, C1, toTheLeft, vemiSub_32f_C1R>)
VEMI_DEFINE(vemiFilterRobertsDown_32f_C3R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, C3, toTheLeft, vemiSub_32f_C3R>)
VEMI_DEFINE(vemiFilterRobertsDown_32f_AC4R, VEMI_SRC_DST(Vemi32f), roberts<Vemi32f, AC4, toTheLeft, vemiSub_32f_AC4R>)
