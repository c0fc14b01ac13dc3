// The region functions of vemiAdd, vemiSub, vemiMul and of their forms with constants, over the operation. An operation
// is a type that gives
//   largestScale<T>               the largest scale factor that leaves any result a value other than zero;
//   dispatchKernel<T>(scaleFactor, f) calls f with the lanes' operation, for scale factors up to that one;
//   Float                         the operation on float lanes;
//   resultOf(value, scaleFactor)  what a constant makes of all elements, where that needs no arithmetic.
//
// The second source is the left operand, and so is the image beside a constant: a subtraction takes the first source
// off the second. Checks: null, size, step.
#pragma once

#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/image.h"
#include "core/map_region.h"
#include "core/whole_region.h"

namespace vemi::arith {

/// What a constant and a scale factor make of every element.
enum class Result { computed, zero, source, highest };

/// The serial threshold stands on the branches for scale factors of 0 and more; the rare others fork without it.
template <class Rows, class T, class L>
Rows rowsOf([[maybe_unused]] VemiSize roiSize, [[maybe_unused]] int scaleFactor) {
  if constexpr (std::is_same_v<Rows, TeamRows>) {
    return {scaleFactor >= 0 && belowSerialThreshold(roiSize.height, roiSize.width * pixelBytes<T, L>)};
  } else {
    return {};
  }
}

template <class Operation, class L, class Rows, class T>
VemiStatus scaled(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  if (scaleFactor > Operation::template largestScale<T>) return fillRegion<T, L>(0, dst, roiSize);
  Operation::template dispatchKernel<T>(scaleFactor, [&](const auto& kernel) {
    mapRegion<L>(rowsOf<Rows, T, L>(roiSize, scaleFactor), roiSize, eachVector(kernel), dst, src2, src1);
  });
  return vemiOk;
}

/// The C3 and C4 forms stand on the one-channel form, and so on its parallel region, but test the width ahead of all.
template <class Operation, class L, class T>
VemiStatus scaledChannels(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (roiSize.width < 1) return vemiErrSize;
  return scaled<Operation, L, TeamRows>(src1, src2, dst, roiSize, scaleFactor);
}

template <class Operation, class L, class Rows>
VemiStatus plain(Image<const Vemi32f> src1, Image<const Vemi32f> src2, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  const auto kernel = eachVector(typename Operation::Float());
  mapRegion<L>(rowsOf<Rows, Vemi32f, L>(roiSize, 0), roiSize, kernel, dst, src2, src1);
  return vemiOk;
}

/// Of several constants, each channel goes by the general rule.
template <class Operation, class L, class T>
Result resultOfConstants(const T* value, int scaleFactor) {
  if (scaleFactor > Operation::template largestScale<T>) return Result::zero;
  return L::elements == 1 ? Operation::resultOf(*value, scaleFactor) : Result::computed;
}

template <class Operation, class L, class Rows, class T>
VemiStatus scaledC(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  switch (resultOfConstants<Operation, L>(value, scaleFactor)) {
    case Result::zero:
      return fillRegion<T, L>(0, dst, roiSize);
    case Result::source:
      return copyRegion<L>(src, dst, roiSize);
    case Result::highest:
      return fillRegion<T, L>(std::numeric_limits<T>::max(), dst, roiSize);
    case Result::computed:
      break;
  }
  Operation::template dispatchKernel<T>(scaleFactor, [&](const auto& kernel) {
    mapRegion<L>(rowsOf<Rows, T, L>(roiSize, scaleFactor), roiSize, withConstants<L>(kernel, value), dst, src);
  });
  return vemiOk;
}

template <class Operation, class L, class Rows>
VemiStatus plainC(Image<const Vemi32f> src, const Vemi32f* value, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const auto kernel = withConstants<L>(typename Operation::Float(), value);
  mapRegion<L>(rowsOf<Rows, Vemi32f, L>(roiSize, 0), roiSize, kernel, dst, src);
  return vemiOk;
}

}  // namespace vemi::arith
