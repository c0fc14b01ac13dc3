// Floats as integers of any width.
#pragma once

#include "core/element_width.h"
#include "core/float_control.h"
#include "vemi/types.h"

namespace vemi::map {

/// f(df, v) of as many floats v as one vector of D takes: rounded as toIntegers does, saturated to D.
template <class D, class F>
HWY_INLINE hn::Vec<D> roundedFloats(D d, const Vemi32f* in, const F& f) {
  const Lanes<Vemi32f> df;
  return packEach<Vemi32f>(
      d, [&](auto k) HWY_ATTR { return toIntegers(df, f(df, hn::LoadU(df, in + k * laneCount<Vemi32f>))); });
}

}  // namespace vemi::map
