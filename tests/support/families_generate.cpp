#include "support/families.h"

#include <cmath>

namespace vemi::test {
namespace {

/// Slopes and offsets that cross the ranges of the elements within a region, or are anything.
void drawRamp(Call& call) {
  call.set("axis", call.random.below(4));
  if (call.random.below(3) == 0) return;
  const float unit = std::ldexp(1.0f, call.random.below(12) - 3);
  call.set("slope", unit * static_cast<float>(call.random.below(401) - 200) / 8);
  call.set("offset", unit * static_cast<float>(call.random.below(2001) - 1000) / 8);
}

bool tooNarrow(Call& call) {
  call.set("roiSize", VemiSize{2, call.get<VemiSize>("roiSize").height});
  return true;
}

bool tooLow(Call& call) {
  call.set("roiSize", VemiSize{call.get<VemiSize>("roiSize").width, 2});
  return true;
}

}  // namespace

std::vector<Family> generateFamilies() {
  return {
      {"vemiImageRamp", ".*", "null step size", drawRamp},
      {"vemiImageJaehne", ".*", "null step size"},
      {"vemiAddRandUniform_Direct vemiAddRandGauss_Direct", ".*", "null size step"},
      {"vemiWinBartlett vemiWinBartlettSep vemiWinHamming vemiWinHammingSep",
       ".*",
       "null size step",
       nullptr,
       {{"roiSize.width = 2", 0, "size", vemiErrSize, tooNarrow},
        {"roiSize.height = 2", 0, "size", vemiErrSize, tooLow}}},
  };
}

}  // namespace vemi::test
