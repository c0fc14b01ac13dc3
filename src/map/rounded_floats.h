// Floats as integers of any width.
#pragma once

#include "core/element_width.h"
#include "core/float_control.h"
#include "vemi/types.h"

namespace vemi::map {

/// f(df, v) of as many floats v as one vector of D takes: by the rounding mode that is set, saturated to D.
template <class D, class F>
HWY_INLINE hn::Vec<D> roundedFloats(D d, const Vemi32f* in, const F& f) {
  const Lanes<Vemi32f> df;
  const Lanes<Vemi32s> di;
  return packEach<Vemi32f>(
      d, [&](auto k) HWY_ATTR { return rounded(di, f(df, hn::LoadU(df, in + k * laneCount<Vemi32f>))); });
}

}  // namespace vemi::map
