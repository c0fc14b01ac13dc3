#include "support/families.h"

namespace vemi::test {
namespace {

void setHint(Call& call) {
  if (call.function.indexOf("hint") >= 0) call.set("hint", call.random.below(5));
}

/// A lower limit that is not above the upper one, and often meets it.
template <class T>
void setLimits(Call& call, int highest) {
  const bool arrays = call.function.parameters[static_cast<size_t>(call.function.indexOf("lower"))].role == Role::array;
  std::vector<T> lower(3), upper(3);
  for (size_t n = 0; n < 3; ++n) {
    const int low = call.random.below(highest), span = call.random.below(3);
    lower[n] = static_cast<T>(low);
    upper[n] = static_cast<T>(span == 0 ? low : span == 1 ? highest : low + call.random.below(highest - low + 1));
  }
  if (arrays) {
    call.setArray("lower", lower);
    call.setArray("upper", upper);
  } else {
    call.set("lower", lower[0]);
    call.set("upper", upper[0]);
  }
}

}  // namespace

std::vector<Family> measureFamilies() {
  return {
      {"vemiSum vemiMean vemiMin vemiMax vemiMinMax vemiMinIndx vemiMaxIndx vemiNorm_Inf vemiNorm_L1 vemiNorm_L2 "
       "vemiNormDiff_Inf vemiNormDiff_L1 vemiNormDiff_L2 vemiNormRel_Inf vemiNormRel_L1 vemiNormRel_L2",
       ".*", "null size step", setHint},
      {"vemiCountInRange",
       "8u.*",
       "null step size own",
       [](Call& call) { setLimits<Vemi8u>(call, 254); },
       {{"lower", 255, "own", vemiErrRange}}},
      {"vemiCountInRange",
       "32f.*",
       "null step size own",
       [](Call& call) { setLimits<Vemi32f>(call, 10000); },
       {{"lower", 10001, "own", vemiErrRange}}},
  };
}

}  // namespace vemi::test
