// vemiNormDiff_Inf, vemiNormDiff_L1, vemiNormDiff_L2: norms of the difference of two images, channel by channel.
// Checks: null, size, step.

#include "measure/exports.h"
#include "measure/norms.h"
#include "vemi/measure.h"

using namespace vemi;
using namespace vemi::measure;

VEMI_2SRC_RESULT(vemiNormDiff_Inf_8u_C1R, Vemi8u, Vemi64f, normDiff<Inf, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_8u_C3R, Vemi8u, Vemi64f, normDiff<Inf, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_8u_C4R, Vemi8u, Vemi64f, normDiff<Inf, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_8u_AC4R, Vemi8u, Vemi64f, normDiff<Inf, AC4>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_16s_C1R, Vemi16s, Vemi64f, normDiff<Inf, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_16s_C3R, Vemi16s, Vemi64f, normDiff<Inf, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_16s_C4R, Vemi16s, Vemi64f, normDiff<Inf, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_16s_AC4R, Vemi16s, Vemi64f, normDiff<Inf, AC4>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_32f_C1R, Vemi32f, Vemi64f, normDiff<Inf, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_32f_C3R, Vemi32f, Vemi64f, normDiff<Inf, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_32f_C4R, Vemi32f, Vemi64f, normDiff<Inf, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_Inf_32f_AC4R, Vemi32f, Vemi64f, normDiff<Inf, AC4>)

VEMI_2SRC_RESULT(vemiNormDiff_L1_8u_C1R, Vemi8u, Vemi64f, normDiff<L1, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_8u_C3R, Vemi8u, Vemi64f, normDiff<L1, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_8u_C4R, Vemi8u, Vemi64f, normDiff<L1, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_8u_AC4R, Vemi8u, Vemi64f, normDiff<L1, AC4>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_16s_C1R, Vemi16s, Vemi64f, normDiff<L1, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_16s_C3R, Vemi16s, Vemi64f, normDiff<L1, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_16s_C4R, Vemi16s, Vemi64f, normDiff<L1, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_L1_16s_AC4R, Vemi16s, Vemi64f, normDiff<L1, AC4>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L1_32f_C1R, Vemi32f, Vemi64f, normDiff<L1, C1>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L1_32f_C3R, Vemi32f, Vemi64f, normDiff<L1, C3>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L1_32f_C4R, Vemi32f, Vemi64f, normDiff<L1, C4>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L1_32f_AC4R, Vemi32f, Vemi64f, normDiff<L1, AC4>)

VEMI_2SRC_RESULT(vemiNormDiff_L2_8u_C1R, Vemi8u, Vemi64f, normDiff<L2, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_8u_C3R, Vemi8u, Vemi64f, normDiff<L2, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_8u_C4R, Vemi8u, Vemi64f, normDiff<L2, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_8u_AC4R, Vemi8u, Vemi64f, normDiff<L2, AC4>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_16s_C1R, Vemi16s, Vemi64f, normDiff<L2, C1>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_16s_C3R, Vemi16s, Vemi64f, normDiff<L2, C3>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_16s_C4R, Vemi16s, Vemi64f, normDiff<L2, C4>)
VEMI_2SRC_RESULT(vemiNormDiff_L2_16s_AC4R, Vemi16s, Vemi64f, normDiff<L2, AC4>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L2_32f_C1R, Vemi32f, Vemi64f, normDiff<L2, C1>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L2_32f_C3R, Vemi32f, Vemi64f, normDiff<L2, C3>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L2_32f_C4R, Vemi32f, Vemi64f, normDiff<L2, C4>)
VEMI_2SRC_RESULT_HINT(vemiNormDiff_L2_32f_AC4R, Vemi32f, Vemi64f, normDiff<L2, AC4>)
