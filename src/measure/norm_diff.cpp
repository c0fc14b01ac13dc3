// vemiNormDiff_Inf, vemiNormDiff_L1, vemiNormDiff_L2: norms of the difference of two images, channel by channel.
// Checks: null, size, step.

#include "measure/exports.h"
#include "measure/norms.h"
#include "vemi/measure.h"

using namespace vemi;
using namespace vemi::measure;

VEMI_DEFINE(vemiNormDiff_Inf_8u_C1R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C1>)
VEMI_DEFINE(vemiNormDiff_Inf_8u_C3R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C3>)
VEMI_DEFINE(vemiNormDiff_Inf_8u_C4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C4>)
VEMI_DEFINE(vemiNormDiff_Inf_8u_AC4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, AC4>)
VEMI_DEFINE(vemiNormDiff_Inf_16s_C1R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C1>)
VEMI_DEFINE(vemiNormDiff_Inf_16s_C3R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C3>)
VEMI_DEFINE(vemiNormDiff_Inf_16s_C4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C4>)
VEMI_DEFINE(vemiNormDiff_Inf_16s_AC4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, AC4>)
VEMI_DEFINE(vemiNormDiff_Inf_32f_C1R, VEMI_2SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C1>)
VEMI_DEFINE(vemiNormDiff_Inf_32f_C3R, VEMI_2SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C3>)
VEMI_DEFINE(vemiNormDiff_Inf_32f_C4R, VEMI_2SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, C4>)
VEMI_DEFINE(vemiNormDiff_Inf_32f_AC4R, VEMI_2SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), normDiff<Inf, AC4>)

VEMI_DEFINE(vemiNormDiff_L1_8u_C1R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C1>)
VEMI_DEFINE(vemiNormDiff_L1_8u_C3R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C3>)
VEMI_DEFINE(vemiNormDiff_L1_8u_C4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C4>)
VEMI_DEFINE(vemiNormDiff_L1_8u_AC4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, AC4>)
VEMI_DEFINE(vemiNormDiff_L1_16s_C1R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C1>)
VEMI_DEFINE(vemiNormDiff_L1_16s_C3R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C3>)
VEMI_DEFINE(vemiNormDiff_L1_16s_C4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, C4>)
VEMI_DEFINE(vemiNormDiff_L1_16s_AC4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L1, AC4>)
VEMI_DEFINE(vemiNormDiff_L1_32f_C1R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L1, C1>)
VEMI_DEFINE(vemiNormDiff_L1_32f_C3R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L1, C3>)
VEMI_DEFINE(vemiNormDiff_L1_32f_C4R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L1, C4>)
VEMI_DEFINE(vemiNormDiff_L1_32f_AC4R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L1, AC4>)

VEMI_DEFINE(vemiNormDiff_L2_8u_C1R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C1>)
VEMI_DEFINE(vemiNormDiff_L2_8u_C3R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C3>)
VEMI_DEFINE(vemiNormDiff_L2_8u_C4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C4>)
VEMI_DEFINE(vemiNormDiff_L2_8u_AC4R, VEMI_2SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, AC4>)
VEMI_DEFINE(vemiNormDiff_L2_16s_C1R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C1>)
VEMI_DEFINE(vemiNormDiff_L2_16s_C3R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C3>)
VEMI_DEFINE(vemiNormDiff_L2_16s_C4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, C4>)
VEMI_DEFINE(vemiNormDiff_L2_16s_AC4R, VEMI_2SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), normDiff<L2, AC4>)
VEMI_DEFINE(vemiNormDiff_L2_32f_C1R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L2, C1>)
VEMI_DEFINE(vemiNormDiff_L2_32f_C3R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L2, C3>)
VEMI_DEFINE(vemiNormDiff_L2_32f_C4R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L2, C4>)
VEMI_DEFINE(vemiNormDiff_L2_32f_AC4R, VEMI_2SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), normDiff<L2, AC4>)
