// Whole calls of conversions between RGB and luma and chroma, in the calling thread, and their checks: null pointers
// and arrays, size, null planes, step.
#pragma once

#include "color/conversion.h"
#include "core/checks.h"
#include "core/pixel_region.h"

namespace vemi::color {

/// Without what an array of planes holds, which counts behind the size.
template <class Pointer>
bool isNullItself(Pointer pointer) {
  if constexpr (requires { isNullArray(pointer); }) {
    return isNullArray(pointer);
  } else {
    return isNull(pointer);
  }
}

/// All but the steps, which some members do not look at.
template <class Src, class Dst>
VemiStatus checkImages(Src src, Dst dst, VemiSize roiSize) {
  const VemiStatus null = isNullItself(src) || isNullItself(dst) ? vemiErrNullPtr : vemiOk;
  return firstOf(null, checkSize(roiSize), checkNull(src, dst));
}

template <class Src, class Dst>
VemiStatus checkConversion(Src src, Dst dst, VemiSize roiSize) {
  return firstOf(checkImages(src, dst, roiSize), checkStep(src, dst));
}

/// dst = Op()(channels of src), in the calling thread. To take interleaved pixels apart is arithmetic, too.
template <class SL, class DL, class Op, class Src, class Dst>
VemiStatus convert(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  constexpr Stores how = std::is_same_v<SL, Planar> ? Stores::streamed : storesBesideArithmetic;
  mapPixelRegion<how>(CallerRows(), roiSize, Op(), pixelsIn<DL>(dst), pixelsIn<SL>(src));
  return vemiOk;
}

}  // namespace vemi::color
