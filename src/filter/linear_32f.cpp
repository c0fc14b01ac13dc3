// vemiFilter, vemiFilterRow and vemiFilterColumn of floats.

#include "filter/linear.h"

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilter_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi32f, C1>)
VEMI_DEFINE(vemiFilter_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi32f, C3>)
VEMI_DEFINE(vemiFilter_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi32f, C4>)
VEMI_DEFINE(vemiFilter_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi32f, AC4>)

VEMI_DEFINE(vemiFilterRow_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi32f, C1>)
VEMI_DEFINE(vemiFilterRow_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi32f, C3>)
VEMI_DEFINE(vemiFilterRow_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi32f, C4>)
VEMI_DEFINE(vemiFilterRow_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi32f, AC4>)

VEMI_DEFINE(vemiFilterColumn_32f_C1R, VEMI_SRC_DST(Vemi32f, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi32f, C1>)
VEMI_DEFINE(vemiFilterColumn_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi32f, C3>>)
VEMI_DEFINE(vemiFilterColumn_32f_C4R, VEMI_SRC_DST(Vemi32f, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi32f, C4>>)
VEMI_DEFINE(vemiFilterColumn_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi32f, AC4>)
