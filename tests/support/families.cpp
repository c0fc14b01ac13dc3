#include "support/families.h"

#include <map>
#include <sstream>
#include <stdexcept>

namespace vemi::test {
namespace {

const std::vector<Family>& families() {
  static const std::vector<Family> table = [] {
    std::vector<Family> all;
    for (const auto& rows : {coreFamilies, arithFamilies, mapFamilies, measureFamilies, generateFamilies}) {
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
  static std::map<const Export*, const Family*> found;
  const Family*& family = found[&function];
  for (const Family& each : families()) {
    if (family == nullptr && fits(each, function)) family = &each;
  }
  if (family == nullptr) throw std::logic_error("tests/support/families_*.cpp have no row for " + function.name);
  return *family;
}

}  // namespace vemi::test
