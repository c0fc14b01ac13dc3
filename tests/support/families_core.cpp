#include "support/families.h"

#include <limits.h>

namespace vemi::test {
namespace {

void setNineWords(Call& call) {
  for (int n = 1; n <= 9; ++n) call.set("arg" + std::to_string(n), n);
}

/// Borders of all widths from none to several times the source. In place, they are the margin of the one image.
void surround(Call& call) {
  const VemiSize source = call.get<VemiSize>("srcRoiSize");
  const auto border = [&](int size) { return call.random.below(3) == 0 ? 0 : call.random.below(3 * size + 2); };
  const int left = border(source.width), right = border(source.width);
  const int top = border(source.height), bottom = border(source.height);
  const VemiSize destination = {left + source.width + right, top + source.height + bottom};
  call.set("topBorderHeight", top);
  call.set("leftBorderWidth", left);
  call.set("dstRoiSize", destination);
  if (call.function.inPlace) {
    call.image("pSrc").margin = {left, top, right, bottom};
  } else {
    call.image("pDst").size = destination;
  }
}

}  // namespace

std::vector<Family> coreFamilies() {
  return {
      {"vemiCopy vemiSet", ".*", "null size step"},
      {"vemiDrawText", ".*", "", setNineWords},
      {"vemiCopyConstBorder vemiCopyReplicateBorder vemiCopyWrapBorder",
       ".*",
       "null step size",
       surround,
       {{"topBorderHeight", -1, "size", vemiErrSize},
        {"topBorderHeight", 1000, "size", vemiErrSize},
        {"topBorderHeight", INT_MAX, "size", vemiErrSize},
        {"leftBorderWidth", -1, "size", vemiErrSize},
        {"leftBorderWidth", 1000, "size", vemiErrSize},
        {"leftBorderWidth", INT_MAX, "size", vemiErrSize}}},
  };
}

}  // namespace vemi::test
