// Answers that need no arithmetic: a destination that is filled or copied whole, through the public functions.
#pragma once

#include "core/image.h"
#include "vemi/core.h"

namespace vemi {

/// Every worked channel of the region takes `value`.
template <class T, class L>
VemiStatus fillRegion(T value, Image<T> dst, VemiSize roiSize) {
  const T values[4] = {value, value, value, value};
  const auto set = [&](auto setC1, auto setC3, auto setC4, auto setAC4) {
    if constexpr (L::keepsAlpha) return setAC4(values, dst.first, dst.step, roiSize);
    else if constexpr (L::elements == 4) return setC4(values, dst.first, dst.step, roiSize);
    else if constexpr (L::elements == 3) return setC3(values, dst.first, dst.step, roiSize);
    else return setC1(value, dst.first, dst.step, roiSize);
  };
  if constexpr (std::is_same_v<T, Vemi8u>) return set(vemiSet_8u_C1R, vemiSet_8u_C3R, vemiSet_8u_C4R, vemiSet_8u_AC4R);
  if constexpr (std::is_same_v<T, Vemi16s>) {
    return set(vemiSet_16s_C1R, vemiSet_16s_C3R, vemiSet_16s_C4R, vemiSet_16s_AC4R);
  }
}

/// A one-channel region copied; in place there is nothing to do.
template <class T>
VemiStatus copyRegion(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (src.first == dst.first && src.step == dst.step) return vemiOk;
  if constexpr (std::is_same_v<T, Vemi8u>) return vemiCopy_8u_C1R(src.first, src.step, dst.first, dst.step, roiSize);
  if constexpr (std::is_same_v<T, Vemi16s>) return vemiCopy_16s_C1R(src.first, src.step, dst.first, dst.step, roiSize);
}

}  // namespace vemi
