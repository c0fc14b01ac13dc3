// vemiNorm_Inf, vemiNorm_L1, vemiNorm_L2: norms of each channel of an image. Checks: null, size, step.

#include "measure/exports.h"
#include "measure/norms.h"
#include "vemi/measure.h"

using namespace vemi;
using namespace vemi::measure;

VEMI_DEFINE(vemiNorm_Inf_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C1>)
VEMI_DEFINE(vemiNorm_Inf_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C3>)
VEMI_DEFINE(vemiNorm_Inf_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C4>)
VEMI_DEFINE(vemiNorm_Inf_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, AC4>)
VEMI_DEFINE(vemiNorm_Inf_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C1>)
VEMI_DEFINE(vemiNorm_Inf_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C3>)
VEMI_DEFINE(vemiNorm_Inf_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C4>)
VEMI_DEFINE(vemiNorm_Inf_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, AC4>)
VEMI_DEFINE(vemiNorm_Inf_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C1>)
VEMI_DEFINE(vemiNorm_Inf_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C3>)
VEMI_DEFINE(vemiNorm_Inf_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C4>)
VEMI_DEFINE(vemiNorm_Inf_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, AC4>)
VEMI_DEFINE(vemiNorm_Inf_32s_C1R, VEMI_SRC(Vemi32s, VEMI_RESULT(Vemi64f, pValue)), norm<Inf, C1>)

VEMI_DEFINE(vemiNorm_L1_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C1>)
VEMI_DEFINE(vemiNorm_L1_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C3>)
VEMI_DEFINE(vemiNorm_L1_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C4>)
VEMI_DEFINE(vemiNorm_L1_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L1, AC4>)
VEMI_DEFINE(vemiNorm_L1_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C1>)
VEMI_DEFINE(vemiNorm_L1_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C3>)
VEMI_DEFINE(vemiNorm_L1_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L1, C4>)
VEMI_DEFINE(vemiNorm_L1_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L1, AC4>)
VEMI_DEFINE(vemiNorm_L1_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L1, C1>)
VEMI_DEFINE(vemiNorm_L1_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L1, C3>)
VEMI_DEFINE(vemiNorm_L1_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L1, C4>)
VEMI_DEFINE(vemiNorm_L1_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L1, AC4>)

VEMI_DEFINE(vemiNorm_L2_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C1>)
VEMI_DEFINE(vemiNorm_L2_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C3>)
VEMI_DEFINE(vemiNorm_L2_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C4>)
VEMI_DEFINE(vemiNorm_L2_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pValue)), norm<L2, AC4>)
VEMI_DEFINE(vemiNorm_L2_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C1>)
VEMI_DEFINE(vemiNorm_L2_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C3>)
VEMI_DEFINE(vemiNorm_L2_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L2, C4>)
VEMI_DEFINE(vemiNorm_L2_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pValue)), norm<L2, AC4>)
VEMI_DEFINE(vemiNorm_L2_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L2, C1>)
VEMI_DEFINE(vemiNorm_L2_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L2, C3>)
VEMI_DEFINE(vemiNorm_L2_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L2, C4>)
VEMI_DEFINE(vemiNorm_L2_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pValue)), norm<L2, AC4>)
