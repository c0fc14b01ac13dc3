// vemiLShiftC, vemiRShiftC: bits moved within each element. Unsigned elements take zeros from either side; signed ones
// are shifted to the right alone, and keep their sign. Checks: null, step, size.

#include <algorithm>

#include "arith/shifted.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "core/whole_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// One count for all channels.
template <class L, class Shift, class T>
VemiStatus shiftAlike(Image<const T> src, Vemi32u count, Image<T> dst, VemiSize roiSize) {
  if (count == 0) return copyRegion<L>(src, dst, roiSize);
  if (count >= bitsOf<T>) return fillRegion<T, L>(0, dst, roiSize);
  mapRegion<L>(CallerRows(), roiSize, eachVector(typename Shift::Alike{static_cast<int>(count)}), dst, src);
  return vemiOk;
}

template <class L, class Shift, class T>
VemiStatus shiftC(Image<const T> src, const Vemi32u* value, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkStep(src, dst), checkSize(roiSize))) return bad;
  Vemi32u count[L::channels];
  const auto limited = [](Vemi32u n) { return std::min(n, Shift::template lastCount<T>); };
  std::transform(value, value + L::channels, count, limited);
  if (std::equal(count + 1, count + L::channels, count)) return shiftAlike<L, Shift>(src, *count, dst, roiSize);
  T factor[L::channels];
  std::transform(count, count + L::channels, factor, Shift::template factor<T>);
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(typename Shift::Each(), factor), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiLShiftC_8u_C1R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_C3R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_C4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_AC4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<AC4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_C1IR, VEMI_C_SRCDST(Vemi8u, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_C3IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_C4IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_8u_AC4IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<AC4, LeftShift>)

VEMI_DEFINE(vemiLShiftC_16u_C1R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_C3R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_C4R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_AC4R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<AC4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_C1IR, VEMI_C_SRCDST(Vemi16u, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_C3IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_C4IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_16u_AC4IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<AC4, LeftShift>)

VEMI_DEFINE(vemiLShiftC_32s_C1R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_C3R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_C4R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_AC4R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<AC4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_C1IR, VEMI_C_SRCDST(Vemi32s, Vemi32u), shiftC<C1, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_C3IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<C3, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_C4IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<C4, LeftShift>)
VEMI_DEFINE(vemiLShiftC_32s_AC4IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<AC4, LeftShift>)

VEMI_DEFINE(vemiRShiftC_8u_C1R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_C3R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_C4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_AC4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi32u*), shiftC<AC4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_C1IR, VEMI_C_SRCDST(Vemi8u, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_C3IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_C4IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8u_AC4IR, VEMI_C_SRCDST(Vemi8u, const Vemi32u*), shiftC<AC4, RightShift>)

VEMI_DEFINE(vemiRShiftC_8s_C1R, VEMI_CONVERSION_C(Vemi8s, Vemi8s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_C3R, VEMI_CONVERSION_C(Vemi8s, Vemi8s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_C4R, VEMI_CONVERSION_C(Vemi8s, Vemi8s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_AC4R, VEMI_CONVERSION_C(Vemi8s, Vemi8s, const Vemi32u*), shiftC<AC4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_C1IR, VEMI_C_SRCDST(Vemi8s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_C3IR, VEMI_C_SRCDST(Vemi8s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_C4IR, VEMI_C_SRCDST(Vemi8s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_8s_AC4IR, VEMI_C_SRCDST(Vemi8s, const Vemi32u*), shiftC<AC4, RightShift>)

VEMI_DEFINE(vemiRShiftC_16u_C1R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_C3R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_C4R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_AC4R, VEMI_CONVERSION_C(Vemi16u, Vemi16u, const Vemi32u*), shiftC<AC4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_C1IR, VEMI_C_SRCDST(Vemi16u, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_C3IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_C4IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16u_AC4IR, VEMI_C_SRCDST(Vemi16u, const Vemi32u*), shiftC<AC4, RightShift>)

VEMI_DEFINE(vemiRShiftC_16s_C1R, VEMI_CONVERSION_C(Vemi16s, Vemi16s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_C3R, VEMI_CONVERSION_C(Vemi16s, Vemi16s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_C4R, VEMI_CONVERSION_C(Vemi16s, Vemi16s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_AC4R, VEMI_CONVERSION_C(Vemi16s, Vemi16s, const Vemi32u*), shiftC<AC4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_C1IR, VEMI_C_SRCDST(Vemi16s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_C3IR, VEMI_C_SRCDST(Vemi16s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_C4IR, VEMI_C_SRCDST(Vemi16s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_16s_AC4IR, VEMI_C_SRCDST(Vemi16s, const Vemi32u*), shiftC<AC4, RightShift>)

VEMI_DEFINE(vemiRShiftC_32s_C1R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_C3R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_C4R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_AC4R, VEMI_CONVERSION_C(Vemi32s, Vemi32s, const Vemi32u*), shiftC<AC4, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_C1IR, VEMI_C_SRCDST(Vemi32s, Vemi32u), shiftC<C1, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_C3IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<C3, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_C4IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<C4, RightShift>)
VEMI_DEFINE(vemiRShiftC_32s_AC4IR, VEMI_C_SRCDST(Vemi32s, const Vemi32u*), shiftC<AC4, RightShift>)
