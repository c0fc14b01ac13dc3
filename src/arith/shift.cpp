// vemiLShiftC, vemiRShiftC: bits moved within each element. Unsigned elements take zeros from either side; signed ones
// are shifted to the right alone, and keep their sign. Checks: null, step, size.

#include <algorithm>

#include "arith/shifted.h"
#include "arith/whole_region.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
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

// A source and a count (or one for each channel).
#define VEMI_SRC_COUNT_DST(name, T, ...)                                                               \
  VemiStatus name(const T* pSrc, int srcStep, Vemi32u value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, &value, Image<T>{pDst, dstStep}, roiSize);       \
  }
#define VEMI_COUNT_SRCDST(name, T, ...)                                                                      \
  VemiStatus name(Vemi32u value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                             \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, &value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }
#define VEMI_SRC_COUNTS_DST(name, T, ...)                                                                     \
  VemiStatus name(const T* pSrc, int srcStep, const Vemi32u* value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, value, Image<T>{pDst, dstStep}, roiSize);               \
  }
#define VEMI_COUNTS_SRCDST(name, T, ...)                                                                    \
  VemiStatus name(const Vemi32u* value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                     \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }

VEMI_SRC_COUNT_DST(vemiLShiftC_8u_C1R, Vemi8u, shiftC<C1, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_8u_C3R, Vemi8u, shiftC<C3, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_8u_C4R, Vemi8u, shiftC<C4, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_8u_AC4R, Vemi8u, shiftC<AC4, LeftShift>)
VEMI_COUNT_SRCDST(vemiLShiftC_8u_C1IR, Vemi8u, shiftC<C1, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_8u_C3IR, Vemi8u, shiftC<C3, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_8u_C4IR, Vemi8u, shiftC<C4, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_8u_AC4IR, Vemi8u, shiftC<AC4, LeftShift>)

VEMI_SRC_COUNT_DST(vemiLShiftC_16u_C1R, Vemi16u, shiftC<C1, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_16u_C3R, Vemi16u, shiftC<C3, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_16u_C4R, Vemi16u, shiftC<C4, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_16u_AC4R, Vemi16u, shiftC<AC4, LeftShift>)
VEMI_COUNT_SRCDST(vemiLShiftC_16u_C1IR, Vemi16u, shiftC<C1, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_16u_C3IR, Vemi16u, shiftC<C3, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_16u_C4IR, Vemi16u, shiftC<C4, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_16u_AC4IR, Vemi16u, shiftC<AC4, LeftShift>)

VEMI_SRC_COUNT_DST(vemiLShiftC_32s_C1R, Vemi32s, shiftC<C1, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_32s_C3R, Vemi32s, shiftC<C3, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_32s_C4R, Vemi32s, shiftC<C4, LeftShift>)
VEMI_SRC_COUNTS_DST(vemiLShiftC_32s_AC4R, Vemi32s, shiftC<AC4, LeftShift>)
VEMI_COUNT_SRCDST(vemiLShiftC_32s_C1IR, Vemi32s, shiftC<C1, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_32s_C3IR, Vemi32s, shiftC<C3, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_32s_C4IR, Vemi32s, shiftC<C4, LeftShift>)
VEMI_COUNTS_SRCDST(vemiLShiftC_32s_AC4IR, Vemi32s, shiftC<AC4, LeftShift>)

VEMI_SRC_COUNT_DST(vemiRShiftC_8u_C1R, Vemi8u, shiftC<C1, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8u_C3R, Vemi8u, shiftC<C3, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8u_C4R, Vemi8u, shiftC<C4, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8u_AC4R, Vemi8u, shiftC<AC4, RightShift>)
VEMI_COUNT_SRCDST(vemiRShiftC_8u_C1IR, Vemi8u, shiftC<C1, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8u_C3IR, Vemi8u, shiftC<C3, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8u_C4IR, Vemi8u, shiftC<C4, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8u_AC4IR, Vemi8u, shiftC<AC4, RightShift>)

VEMI_SRC_COUNT_DST(vemiRShiftC_8s_C1R, Vemi8s, shiftC<C1, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8s_C3R, Vemi8s, shiftC<C3, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8s_C4R, Vemi8s, shiftC<C4, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_8s_AC4R, Vemi8s, shiftC<AC4, RightShift>)
VEMI_COUNT_SRCDST(vemiRShiftC_8s_C1IR, Vemi8s, shiftC<C1, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8s_C3IR, Vemi8s, shiftC<C3, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8s_C4IR, Vemi8s, shiftC<C4, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_8s_AC4IR, Vemi8s, shiftC<AC4, RightShift>)

VEMI_SRC_COUNT_DST(vemiRShiftC_16u_C1R, Vemi16u, shiftC<C1, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16u_C3R, Vemi16u, shiftC<C3, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16u_C4R, Vemi16u, shiftC<C4, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16u_AC4R, Vemi16u, shiftC<AC4, RightShift>)
VEMI_COUNT_SRCDST(vemiRShiftC_16u_C1IR, Vemi16u, shiftC<C1, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16u_C3IR, Vemi16u, shiftC<C3, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16u_C4IR, Vemi16u, shiftC<C4, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16u_AC4IR, Vemi16u, shiftC<AC4, RightShift>)

VEMI_SRC_COUNT_DST(vemiRShiftC_16s_C1R, Vemi16s, shiftC<C1, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16s_C3R, Vemi16s, shiftC<C3, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16s_C4R, Vemi16s, shiftC<C4, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_16s_AC4R, Vemi16s, shiftC<AC4, RightShift>)
VEMI_COUNT_SRCDST(vemiRShiftC_16s_C1IR, Vemi16s, shiftC<C1, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16s_C3IR, Vemi16s, shiftC<C3, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16s_C4IR, Vemi16s, shiftC<C4, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_16s_AC4IR, Vemi16s, shiftC<AC4, RightShift>)

VEMI_SRC_COUNT_DST(vemiRShiftC_32s_C1R, Vemi32s, shiftC<C1, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_32s_C3R, Vemi32s, shiftC<C3, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_32s_C4R, Vemi32s, shiftC<C4, RightShift>)
VEMI_SRC_COUNTS_DST(vemiRShiftC_32s_AC4R, Vemi32s, shiftC<AC4, RightShift>)
VEMI_COUNT_SRCDST(vemiRShiftC_32s_C1IR, Vemi32s, shiftC<C1, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_32s_C3IR, Vemi32s, shiftC<C3, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_32s_C4IR, Vemi32s, shiftC<C4, RightShift>)
VEMI_COUNTS_SRCDST(vemiRShiftC_32s_AC4IR, Vemi32s, shiftC<AC4, RightShift>)
