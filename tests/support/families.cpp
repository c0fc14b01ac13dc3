#include "support/families.h"

#include <limits.h>

#include <map>
#include <sstream>
#include <stdexcept>

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

/// The fourth channel of AC4 and AP4 takes part; constant alphas alone leave it alone in AC4.
void withAlpha(Call& call) {
  if (call.function.indexOf("alphaType") >= 0) call.set("alphaType", call.random.below(12));
  if (call.function.operation == "vemiAlphaCompC" && !call.function.destination.planar) return;
  for (Image& image : call.images) image.layout.channels = image.layout.elements;
}

// The first row that fits a function is its row.
const std::vector<Family>& families() {
  static const std::vector<Family> table = {
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

      {"vemiAdd vemiSub vemiMul", "(8u|16s)_C[34].*", "width null size step"},
      {"vemiAdd vemiAddC vemiSub vemiSubC vemiMul vemiMulC", ".*", "null size step"},
      {"vemiDiv vemiDivC", ".*", "null size step"},

      {"vemiNot", "8u_C[34].*", "size null step"},
      {"vemiAnd vemiOr vemiXor vemiAndC vemiOrC vemiXorC vemiNot", ".*", "null step size"},
      {"vemiLShiftC vemiRShiftC", ".*", "null step size"},

      {"vemiAbs vemiSqr vemiSqrt vemiLn vemiExp", ".*", "null size step"},
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
  return table;
}

bool fits(const Family& family, const Export& function) {
  std::istringstream operations(family.operations);
  for (std::string operation; operations >> operation;) {
    if (operation == function.operation) return matches(function.members, family.members);
  }
  return false;
}

}  // namespace

const Family& familyOf(const Export& function) {
  static std::map<const Export*, const Family*> found;
  const Family*& family = found[&function];
  for (const Family& each : families()) {
    if (family == nullptr && fits(each, function)) family = &each;
  }
  if (family == nullptr) throw std::logic_error("tests/support/families.cpp has no row for " + function.name);
  return *family;
}

}  // namespace vemi::test
