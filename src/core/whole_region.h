// Regions that are filled or copied whole, through the public functions.
#pragma once

#include <bit>
#include <type_traits>

#include "core/image.h"
#include "vemi/core.h"

namespace vemi {

/// Copy and Set move bits, so one element type for each width serves all types of that width.
template <class T>
using MovedAs = std::conditional_t<sizeof(T) == 1, Vemi8u, std::conditional_t<sizeof(T) == 2, Vemi16s, Vemi32f>>;

/// The one of four functions that is for layout L.
template <class L, class C1Form, class C3Form, class C4Form, class AC4Form>
constexpr auto formOf(C1Form c1, C3Form c3, C4Form c4, AC4Form ac4) {
  if constexpr (L::keepsAlpha)
    return ac4;
  else if constexpr (L::elements == 4)
    return c4;
  else if constexpr (L::elements == 3)
    return c3;
  else
    return c1;
}

/// Every worked channel of the region takes `value`.
template <class T, class L>
VemiStatus fillRegion(T value, Image<T> dst, VemiSize roiSize) {
  const auto moved = std::bit_cast<MovedAs<T>>(value);
  const MovedAs<T> values[4] = {moved, moved, moved, moved};
  const auto fill = [&](auto set) {
    auto* const first = reinterpret_cast<MovedAs<T>*>(dst.first);
    if constexpr (L::elements == 1)
      return set(moved, first, dst.step, roiSize);
    else
      return set(values, first, dst.step, roiSize);
  };
  if constexpr (sizeof(T) == 1) {
    return fill(formOf<L>(vemiSet_8u_C1R, vemiSet_8u_C3R, vemiSet_8u_C4R, vemiSet_8u_AC4R));
  } else if constexpr (sizeof(T) == 2) {
    return fill(formOf<L>(vemiSet_16s_C1R, vemiSet_16s_C3R, vemiSet_16s_C4R, vemiSet_16s_AC4R));
  } else {
    return fill(formOf<L>(vemiSet_32f_C1R, vemiSet_32f_C3R, vemiSet_32f_C4R, vemiSet_32f_AC4R));
  }
}

/// Every worked channel of the region is copied; in place there is nothing to do.
template <class L, class T>
VemiStatus copyRegion(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (isSameImage(src, dst) && src.step == dst.step) return vemiOk;
  const auto copy = [&](auto copyForm) {
    return copyForm(reinterpret_cast<const MovedAs<T>*>(src.first), src.step, reinterpret_cast<MovedAs<T>*>(dst.first),
                    dst.step, roiSize);
  };
  if constexpr (sizeof(T) == 1) {
    return copy(formOf<L>(vemiCopy_8u_C1R, vemiCopy_8u_C3R, vemiCopy_8u_C4R, vemiCopy_8u_AC4R));
  } else if constexpr (sizeof(T) == 2) {
    return copy(formOf<L>(vemiCopy_16s_C1R, vemiCopy_16s_C3R, vemiCopy_16s_C4R, vemiCopy_16s_AC4R));
  } else {
    return copy(formOf<L>(vemiCopy_32f_C1R, vemiCopy_32f_C3R, vemiCopy_32f_C4R, vemiCopy_32f_AC4R));
  }
}

}  // namespace vemi
