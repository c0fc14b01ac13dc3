// Rows that stay rows: 320 pixels and a gap, where the calls of other families are one long row. As many pixels as the
// size has, so that its columns can be compared.

#include <algorithm>
#include <string_view>

#include "image.h"

namespace bench {
namespace {

constexpr int rowPixels = 320;
constexpr int gap = 64;

/// Those that spend the most on a row: constants to load, pixels that the lanes do not divide.
constexpr std::string_view names[] = {
    "Set 8u C3",
    "AddC 8u C1",
    "AddC 8u C3",
    "AddC 16s C3",
    "AddC 32f C3",
    "MulC 8u C3",
    "Threshold_LT 8u C1",
    "Threshold_GT 8u C3",
    "CompareC 8u C1 less",
    "Compare 8u C1 less",
    "CompareC 32f C1 at most",
};

/// Images of the wrapped row have gaps.
Row inRows(const Row& row) {
  const auto prepare = [whole = row.prepare](VemiSize size) {
    gapBytes = gap;
    Contest contest = whole({rowPixels, std::max(1, size.width * size.height / rowPixels)});
    gapBytes = 0;
    return contest;
  };
  return {row.name, row.peer, prepare};
}

}  // namespace

Family rowsFamily() {
  Family family = {"rows of 320 pixels", {}};
  for (const auto table : {setFamily, addConstantFamily, mulFamily, thresholdFamily, compareFamily}) {
    for (const Row& row : table().rows) {
      const bool isBound = row.peer == "memset";
      if (!isBound && std::ranges::find(names, row.name) != std::end(names)) family.rows.push_back(inRows(row));
    }
  }
  return family;
}

}  // namespace bench
