// vemiFilter, vemiFilterRow and vemiFilterColumn of 16s, by taps of floats and by integer taps, which become floats:
// each times the float nearest to 1 / divisor.
//
// Checks of the latter: null kernel, its size, divisor, memory for the floats; then those of the former.

#include "filter/linear.h"

namespace vemi::filter {
namespace {

template <class L>
VemiStatus integerKernel(Image<const Vemi16s> src, Image<Vemi16s> dst, VemiSize roiSize, UserKernel<Vemi32s> kernel,
                         int divisor) {
  if (const VemiStatus bad = firstOf(checkNull(kernel), checkSize(kernel.size), checkDivisor(divisor))) return bad;
  const Scratch scratch(arrayBytes<float>(Vemi64s{kernel.size.width} * kernel.size.height));
  if (scratch.failed()) return vemiErrMemAlloc;
  float* const taps = scratch.as<float>();
  return roundingToNearest([&] {
    const auto r = static_cast<float>(1.0 / divisor);
    for (ptrdiff_t i = 0; i < kernel.count(); ++i) taps[i] = static_cast<float>(kernel.taps[i]) * r;
    return floatKernel<Vemi16s, L>(src, dst, roiSize, {taps, kernel.size, kernel.anchor});
  });
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilter_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilter_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_KERNEL), integerKernel<C3>)
VEMI_DEFINE(vemiFilter_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_KERNEL), integerKernel<C4>)
VEMI_DEFINE(vemiFilter_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilter32f_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi16s, C1>)
VEMI_DEFINE(vemiFilter32f_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi16s, C3>)
VEMI_DEFINE(vemiFilter32f_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi16s, C4>)
VEMI_DEFINE(vemiFilter32f_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterRow_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilterRow_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C3>)
VEMI_DEFINE(vemiFilterRow_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C4>)
VEMI_DEFINE(vemiFilterRow_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_ROW_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilterRow32f_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterRow32f_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterRow32f_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterRow32f_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterColumn_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_COLUMN_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilterColumn_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_COLUMN_KERNEL), widthFirst<integerKernel<C3>>)
VEMI_DEFINE(vemiFilterColumn_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_COLUMN_KERNEL), widthFirst<integerKernel<C4>>)
VEMI_DEFINE(vemiFilterColumn_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_DIVIDED_COLUMN_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilterColumn32f_16s_C1R, VEMI_SRC_DST(Vemi16s, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterColumn32f_16s_C3R, VEMI_SRC_DST(Vemi16s, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi16s, C3>>)
VEMI_DEFINE(vemiFilterColumn32f_16s_C4R, VEMI_SRC_DST(Vemi16s, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi16s, C4>>)
VEMI_DEFINE(vemiFilterColumn32f_16s_AC4R, VEMI_SRC_DST(Vemi16s, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi16s, AC4>)
