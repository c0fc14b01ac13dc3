// vemiNormRel_Inf, vemiNormRel_L1, vemiNormRel_L2: norms of the difference of two images over those of the second one,
// channel by channel. Checks: null, size, step.

#include <limits>

#include "measure/exports.h"
#include "measure/norms.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

template <class L, auto normDiffOf, auto normOf, class T, class... Hint>
VemiStatus normRel(Image<const T> src1, Image<const T> src2, VemiSize roiSize, Vemi64f* pValue, Hint... hint) {
  double numerator[L::channels], denominator[L::channels];
  if (const VemiStatus bad = checkNull(pValue)) return bad;
  if (const VemiStatus bad = normDiffOf(src1.first, src1.step, src2.first, src2.step, roiSize, numerator, hint...)) {
    return bad;
  }
  normOf(src2.first, src2.step, roiSize, denominator, hint...);
  bool zero = false;
  for (const double each : denominator) zero |= each < std::numeric_limits<double>::min();
  for (int c = 0; c < L::channels; ++c) pValue[c] = zero ? numerator[c] : numerator[c] / denominator[c];
  return zero ? vemiWarnDivByZero : vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define NORM(T) VEMI_2SRC(T, VEMI_RESULT(Vemi64f, pValue))
#define HINTED_NORM(T) VEMI_2SRC(T, VEMI_RESULT_HINT(Vemi64f, pValue))

VEMI_DEFINE(vemiNormRel_Inf_8u_C1R, NORM(Vemi8u), normRel<C1, vemiNormDiff_Inf_8u_C1R, vemiNorm_Inf_8u_C1R>)
VEMI_DEFINE(vemiNormRel_Inf_8u_C3R, NORM(Vemi8u), normRel<C3, vemiNormDiff_Inf_8u_C3R, vemiNorm_Inf_8u_C3R>)
VEMI_DEFINE(vemiNormRel_Inf_8u_C4R, NORM(Vemi8u), normRel<C4, vemiNormDiff_Inf_8u_C4R, vemiNorm_Inf_8u_C4R>)
VEMI_DEFINE(vemiNormRel_Inf_8u_AC4R, NORM(Vemi8u), normRel<AC4, vemiNormDiff_Inf_8u_AC4R, vemiNorm_Inf_8u_AC4R>)
VEMI_DEFINE(vemiNormRel_Inf_16s_C1R, NORM(Vemi16s), normRel<C1, vemiNormDiff_Inf_16s_C1R, vemiNorm_Inf_16s_C1R>)
VEMI_DEFINE(vemiNormRel_Inf_16s_C3R, NORM(Vemi16s), normRel<C3, vemiNormDiff_Inf_16s_C3R, vemiNorm_Inf_16s_C3R>)
VEMI_DEFINE(vemiNormRel_Inf_16s_C4R, NORM(Vemi16s), normRel<C4, vemiNormDiff_Inf_16s_C4R, vemiNorm_Inf_16s_C4R>)
VEMI_DEFINE(vemiNormRel_Inf_16s_AC4R, NORM(Vemi16s), normRel<AC4, vemiNormDiff_Inf_16s_AC4R, vemiNorm_Inf_16s_AC4R>)
VEMI_DEFINE(vemiNormRel_Inf_32f_C1R, NORM(Vemi32f), normRel<C1, vemiNormDiff_Inf_32f_C1R, vemiNorm_Inf_32f_C1R>)
VEMI_DEFINE(vemiNormRel_Inf_32f_C3R, NORM(Vemi32f), normRel<C3, vemiNormDiff_Inf_32f_C3R, vemiNorm_Inf_32f_C3R>)
VEMI_DEFINE(vemiNormRel_Inf_32f_C4R, NORM(Vemi32f), normRel<C4, vemiNormDiff_Inf_32f_C4R, vemiNorm_Inf_32f_C4R>)
VEMI_DEFINE(vemiNormRel_Inf_32f_AC4R, NORM(Vemi32f), normRel<AC4, vemiNormDiff_Inf_32f_AC4R, vemiNorm_Inf_32f_AC4R>)

VEMI_DEFINE(vemiNormRel_L1_8u_C1R, NORM(Vemi8u), normRel<C1, vemiNormDiff_L1_8u_C1R, vemiNorm_L1_8u_C1R>)
VEMI_DEFINE(vemiNormRel_L1_8u_C3R, NORM(Vemi8u), normRel<C3, vemiNormDiff_L1_8u_C3R, vemiNorm_L1_8u_C3R>)
VEMI_DEFINE(vemiNormRel_L1_8u_C4R, NORM(Vemi8u), normRel<C4, vemiNormDiff_L1_8u_C4R, vemiNorm_L1_8u_C4R>)
VEMI_DEFINE(vemiNormRel_L1_8u_AC4R, NORM(Vemi8u), normRel<AC4, vemiNormDiff_L1_8u_AC4R, vemiNorm_L1_8u_AC4R>)
VEMI_DEFINE(vemiNormRel_L1_16s_C1R, NORM(Vemi16s), normRel<C1, vemiNormDiff_L1_16s_C1R, vemiNorm_L1_16s_C1R>)
VEMI_DEFINE(vemiNormRel_L1_16s_C3R, NORM(Vemi16s), normRel<C3, vemiNormDiff_L1_16s_C3R, vemiNorm_L1_16s_C3R>)
VEMI_DEFINE(vemiNormRel_L1_16s_C4R, NORM(Vemi16s), normRel<C4, vemiNormDiff_L1_16s_C4R, vemiNorm_L1_16s_C4R>)
VEMI_DEFINE(vemiNormRel_L1_16s_AC4R, NORM(Vemi16s), normRel<AC4, vemiNormDiff_L1_16s_AC4R, vemiNorm_L1_16s_AC4R>)
VEMI_DEFINE(vemiNormRel_L1_32f_C1R, HINTED_NORM(Vemi32f), normRel<C1, vemiNormDiff_L1_32f_C1R, vemiNorm_L1_32f_C1R>)
VEMI_DEFINE(vemiNormRel_L1_32f_C3R, HINTED_NORM(Vemi32f), normRel<C3, vemiNormDiff_L1_32f_C3R, vemiNorm_L1_32f_C3R>)
VEMI_DEFINE(vemiNormRel_L1_32f_C4R, HINTED_NORM(Vemi32f), normRel<C4, vemiNormDiff_L1_32f_C4R, vemiNorm_L1_32f_C4R>)
VEMI_DEFINE(vemiNormRel_L1_32f_AC4R, HINTED_NORM(Vemi32f), normRel<AC4, vemiNormDiff_L1_32f_AC4R, vemiNorm_L1_32f_AC4R>)

VEMI_DEFINE(vemiNormRel_L2_8u_C1R, NORM(Vemi8u), normRel<C1, vemiNormDiff_L2_8u_C1R, vemiNorm_L2_8u_C1R>)
VEMI_DEFINE(vemiNormRel_L2_8u_C3R, NORM(Vemi8u), normRel<C3, vemiNormDiff_L2_8u_C3R, vemiNorm_L2_8u_C3R>)
VEMI_DEFINE(vemiNormRel_L2_8u_C4R, NORM(Vemi8u), normRel<C4, vemiNormDiff_L2_8u_C4R, vemiNorm_L2_8u_C4R>)
VEMI_DEFINE(vemiNormRel_L2_8u_AC4R, NORM(Vemi8u), normRel<AC4, vemiNormDiff_L2_8u_AC4R, vemiNorm_L2_8u_AC4R>)
VEMI_DEFINE(vemiNormRel_L2_16s_C1R, NORM(Vemi16s), normRel<C1, vemiNormDiff_L2_16s_C1R, vemiNorm_L2_16s_C1R>)
VEMI_DEFINE(vemiNormRel_L2_16s_C3R, NORM(Vemi16s), normRel<C3, vemiNormDiff_L2_16s_C3R, vemiNorm_L2_16s_C3R>)
VEMI_DEFINE(vemiNormRel_L2_16s_C4R, NORM(Vemi16s), normRel<C4, vemiNormDiff_L2_16s_C4R, vemiNorm_L2_16s_C4R>)
VEMI_DEFINE(vemiNormRel_L2_16s_AC4R, NORM(Vemi16s), normRel<AC4, vemiNormDiff_L2_16s_AC4R, vemiNorm_L2_16s_AC4R>)
VEMI_DEFINE(vemiNormRel_L2_32f_C1R, HINTED_NORM(Vemi32f), normRel<C1, vemiNormDiff_L2_32f_C1R, vemiNorm_L2_32f_C1R>)
VEMI_DEFINE(vemiNormRel_L2_32f_C3R, HINTED_NORM(Vemi32f), normRel<C3, vemiNormDiff_L2_32f_C3R, vemiNorm_L2_32f_C3R>)
VEMI_DEFINE(vemiNormRel_L2_32f_C4R, HINTED_NORM(Vemi32f), normRel<C4, vemiNormDiff_L2_32f_C4R, vemiNorm_L2_32f_C4R>)
VEMI_DEFINE(vemiNormRel_L2_32f_AC4R, HINTED_NORM(Vemi32f), normRel<AC4, vemiNormDiff_L2_32f_AC4R, vemiNorm_L2_32f_AC4R>)
