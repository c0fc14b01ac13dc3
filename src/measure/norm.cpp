// vemiNorm_Inf, vemiNorm_L1, vemiNorm_L2: norms of each channel of an image. Checks: null, size, step.

#include "measure/exports.h"
#include "measure/norms.h"
#include "vemi/measure.h"

using namespace vemi;
using namespace vemi::measure;

VEMI_SRC_RESULT(vemiNorm_Inf_8u_C1R, Vemi8u, Vemi64f, norm<Inf, C1>)
VEMI_SRC_RESULT(vemiNorm_Inf_8u_C3R, Vemi8u, Vemi64f, norm<Inf, C3>)
VEMI_SRC_RESULT(vemiNorm_Inf_8u_C4R, Vemi8u, Vemi64f, norm<Inf, C4>)
VEMI_SRC_RESULT(vemiNorm_Inf_8u_AC4R, Vemi8u, Vemi64f, norm<Inf, AC4>)
VEMI_SRC_RESULT(vemiNorm_Inf_16s_C1R, Vemi16s, Vemi64f, norm<Inf, C1>)
VEMI_SRC_RESULT(vemiNorm_Inf_16s_C3R, Vemi16s, Vemi64f, norm<Inf, C3>)
VEMI_SRC_RESULT(vemiNorm_Inf_16s_C4R, Vemi16s, Vemi64f, norm<Inf, C4>)
VEMI_SRC_RESULT(vemiNorm_Inf_16s_AC4R, Vemi16s, Vemi64f, norm<Inf, AC4>)
VEMI_SRC_RESULT(vemiNorm_Inf_32f_C1R, Vemi32f, Vemi64f, norm<Inf, C1>)
VEMI_SRC_RESULT(vemiNorm_Inf_32f_C3R, Vemi32f, Vemi64f, norm<Inf, C3>)
VEMI_SRC_RESULT(vemiNorm_Inf_32f_C4R, Vemi32f, Vemi64f, norm<Inf, C4>)
VEMI_SRC_RESULT(vemiNorm_Inf_32f_AC4R, Vemi32f, Vemi64f, norm<Inf, AC4>)
VEMI_SRC_RESULT(vemiNorm_Inf_32s_C1R, Vemi32s, Vemi64f, norm<Inf, C1>)

VEMI_SRC_RESULT(vemiNorm_L1_8u_C1R, Vemi8u, Vemi64f, norm<L1, C1>)
VEMI_SRC_RESULT(vemiNorm_L1_8u_C3R, Vemi8u, Vemi64f, norm<L1, C3>)
VEMI_SRC_RESULT(vemiNorm_L1_8u_C4R, Vemi8u, Vemi64f, norm<L1, C4>)
VEMI_SRC_RESULT(vemiNorm_L1_8u_AC4R, Vemi8u, Vemi64f, norm<L1, AC4>)
VEMI_SRC_RESULT(vemiNorm_L1_16s_C1R, Vemi16s, Vemi64f, norm<L1, C1>)
VEMI_SRC_RESULT(vemiNorm_L1_16s_C3R, Vemi16s, Vemi64f, norm<L1, C3>)
VEMI_SRC_RESULT(vemiNorm_L1_16s_C4R, Vemi16s, Vemi64f, norm<L1, C4>)
VEMI_SRC_RESULT(vemiNorm_L1_16s_AC4R, Vemi16s, Vemi64f, norm<L1, AC4>)
VEMI_SRC_RESULT_HINT(vemiNorm_L1_32f_C1R, Vemi32f, Vemi64f, norm<L1, C1>)
VEMI_SRC_RESULT_HINT(vemiNorm_L1_32f_C3R, Vemi32f, Vemi64f, norm<L1, C3>)
VEMI_SRC_RESULT_HINT(vemiNorm_L1_32f_C4R, Vemi32f, Vemi64f, norm<L1, C4>)
VEMI_SRC_RESULT_HINT(vemiNorm_L1_32f_AC4R, Vemi32f, Vemi64f, norm<L1, AC4>)

VEMI_SRC_RESULT(vemiNorm_L2_8u_C1R, Vemi8u, Vemi64f, norm<L2, C1>)
VEMI_SRC_RESULT(vemiNorm_L2_8u_C3R, Vemi8u, Vemi64f, norm<L2, C3>)
VEMI_SRC_RESULT(vemiNorm_L2_8u_C4R, Vemi8u, Vemi64f, norm<L2, C4>)
VEMI_SRC_RESULT(vemiNorm_L2_8u_AC4R, Vemi8u, Vemi64f, norm<L2, AC4>)
VEMI_SRC_RESULT(vemiNorm_L2_16s_C1R, Vemi16s, Vemi64f, norm<L2, C1>)
VEMI_SRC_RESULT(vemiNorm_L2_16s_C3R, Vemi16s, Vemi64f, norm<L2, C3>)
VEMI_SRC_RESULT(vemiNorm_L2_16s_C4R, Vemi16s, Vemi64f, norm<L2, C4>)
VEMI_SRC_RESULT(vemiNorm_L2_16s_AC4R, Vemi16s, Vemi64f, norm<L2, AC4>)
VEMI_SRC_RESULT_HINT(vemiNorm_L2_32f_C1R, Vemi32f, Vemi64f, norm<L2, C1>)
VEMI_SRC_RESULT_HINT(vemiNorm_L2_32f_C3R, Vemi32f, Vemi64f, norm<L2, C3>)
VEMI_SRC_RESULT_HINT(vemiNorm_L2_32f_C4R, Vemi32f, Vemi64f, norm<L2, C4>)
VEMI_SRC_RESULT_HINT(vemiNorm_L2_32f_AC4R, Vemi32f, Vemi64f, norm<L2, AC4>)
