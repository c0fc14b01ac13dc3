#include "support/families.h"

#include <limits.h>

namespace vemi::test {
namespace {

/// The fourth channel of AC4 and AP4 takes part; constant alphas alone leave it alone in AC4.
void withAlpha(Call& call) {
  if (call.function.indexOf("alphaType") >= 0) call.set("alphaType", call.random.below(12));
  if (call.function.operation == "vemiAlphaCompC" && !call.function.destination.planar) return;
  for (CallImage& image : call.images) image.layout.channels = image.layout.elements;
}

}  // namespace

std::vector<Family> arithFamilies() {
  return {
      {"vemiAdd vemiSub vemiMul", "(8u|16s)_C[34].*", "width null size step"},
      {"vemiAdd vemiAddC vemiSub vemiSubC vemiMul vemiMulC", ".*", "null size step"},
      {"vemiDivC", "(8u|16s)_C3.*", "null size step", nullptr, {}, nullptr, {.lateError = vemiErrDivByZero}},
      {"vemiDiv vemiDivC", ".*", "null size step"},

      {"vemiNot", "8u_C[34].*", "size null step"},
      {"vemiAnd vemiOr vemiXor vemiAndC vemiOrC vemiXorC vemiNot", ".*", "null step size"},
      {"vemiLShiftC vemiRShiftC", ".*", "null step size"},

      {"vemiAbs vemiSqrt", "(16s|32f)_.*", "null size step", nullptr, {}, nullptr, {.wholeSteps = true}},
      {"vemiSqr vemiSqrt vemiLn vemiExp", ".*", "null size step"},
      {"vemiMulScale vemiMulCScale vemiComplement", ".*", "null step size"},

      {"vemiAlphaComp vemiAlphaCompC",
       ".*",
       "null size step own",
       withAlpha,
       {{"alphaType", 12, "own", vemiErrAlphaType},
        {"alphaType", INT_MAX, "own", vemiErrAlphaType},
        {"alphaType", -1, "own", vemiErrAlphaType},
        {"alphaType", INT_MIN, "own", vemiErrAlphaType}}},
      {"vemiAlphaPremul vemiAlphaPremulC", ".*", "null size step", withAlpha},
  };
}

}  // namespace vemi::test
