// The table of families: what the generic tests and the digest must know of each beyond its names and prototypes.
// A new family joins them by a row in families.cpp.
#pragma once

#include <string>
#include <vector>

#include "support/call.h"

namespace vemi::test {

/// A bad value of one of the family's own integer arguments.
struct OwnFault {
  const char* argument;
  int value;
  const char* stage;  // at which it is found: one of the words in Family::order
  VemiStatus status;
};

struct Family {
  const char* operations;  // names up to the type, separated by blanks
  const char* members;     // regular expression over type and descriptor
  /// The stages of the argument checks, first to last: null, size, step, own; width where it is tested ahead of height.
  const char* order;
  /// Sets the integers that are the family's own, and the sizes and margins of images that are not the region.
  void (*shape)(Call&) = nullptr;
  std::vector<OwnFault> faults = {};
};

/// Throws where the table has no row for the function.
const Family& familyOf(const Export& function);

}  // namespace vemi::test
