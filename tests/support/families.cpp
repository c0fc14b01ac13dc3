#include "support/families.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>

namespace vemi::test {
namespace {

const std::vector<Family>& families() {
  static const std::vector<Family> table = [] {
    std::vector<Family> all;
    for (const auto& rows : {coreFamilies, arithFamilies, mapFamilies, colorFamilies, filterFamilies, geometryFamilies,
                             measureFamilies, generateFamilies, transformFamilies}) {
      for (const Family& row : rows()) all.push_back(row);
    }
    return all;
  }();
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
  if (function.family != nullptr) return *function.family;
  static const std::map<std::string, const Family*> found = [] {
    std::map<std::string, const Family*> first;
    for (const Export& each : exports()) {
      const auto at =
          std::find_if(families().begin(), families().end(), [&](const Family& f) { return fits(f, each); });
      if (at != families().end()) first[each.name] = &*at;
    }
    return first;
  }();
  const auto family = found.find(function.name);
  if (family == found.end()) throw std::logic_error("tests/support/families_*.cpp have no row for " + function.name);
  return *family->second;
}

}  // namespace vemi::test
