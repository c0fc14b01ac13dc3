// The region functions of vemiAdd, vemiSub, vemiMul and of their forms with constants on complex elements, over the
// operation. An operation is a type that gives
//   largestScale<C>               the largest scale factor that leaves any result a value other than zero;
//   dispatchKernel<C>(scaleFactor, f) calls f with the operation on complex lanes, for scale factors up to that one;
//   Float                         the operation on complex lanes of floats.
//
// The second source is the left operand, and so is the image beside a constant. Checks: null, size, step.
#pragma once

#include "core/checks.h"
#include "core/complex.h"
#include "core/map_region.h"

namespace vemi::arith {

template <class L, class C, class Op>
VemiStatus mapComplex(VemiSize roiSize, const Op& op, Image<C> dst, Image<const C> src1, Image<const C> src2) {
  mapRegion<L>(CallerRows(), roiSize, eachVector(op), inLanes(dst), inLanes(src2), inLanes(src1));
  return vemiOk;
}

template <class L, class C, class Op, class... Src>
VemiStatus mapComplexC(VemiSize roiSize, const Op& op, const C* value, Image<C> dst, Image<const Src>... src) {
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(op, inLanes(value)), inLanes(dst), inLanes(src)...);
  return vemiOk;
}

template <class L, class C>
VemiStatus clearComplex(Image<C> dst, VemiSize roiSize) {
  constexpr C zeros[4] = {};
  return mapComplexC<L>(roiSize, Constant(), zeros, dst);
}

template <class Operation, class C, class L>
VemiStatus scaledComplex(Image<const C> src1, Image<const C> src2, Image<C> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  if (scaleFactor > Operation::template largestScale<C>) return clearComplex<L>(dst, roiSize);
  return Operation::template dispatchKernel<C>(
      scaleFactor, [&](const auto& kernel) { return mapComplex<L>(roiSize, kernel, dst, src1, src2); });
}

template <class Operation, class C, class L>
VemiStatus scaledComplexC(Image<const C> src, const C* value, Image<C> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (scaleFactor > Operation::template largestScale<C>) return clearComplex<L>(dst, roiSize);
  return Operation::template dispatchKernel<C>(
      scaleFactor, [&](const auto& kernel) { return mapComplexC<L>(roiSize, kernel, value, dst, src); });
}

template <class Operation, class L>
VemiStatus plainComplex(Image<const Vemi32fc> src1, Image<const Vemi32fc> src2, Image<Vemi32fc> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  return mapComplex<L>(roiSize, typename Operation::Float(), dst, src1, src2);
}

template <class Operation, class L>
VemiStatus plainComplexC(Image<const Vemi32fc> src, const Vemi32fc* value, Image<Vemi32fc> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return mapComplexC<L>(roiSize, typename Operation::Float(), value, dst, src);
}

}  // namespace vemi::arith
