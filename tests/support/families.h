// The table of families: what the generic tests and the digest must know of each beyond its names and prototypes.
// A new family joins them by a row in its subsystem's families_*.cpp; of those the first one that fits a function
// counts.
#pragma once

#include <string>
#include <vector>

#include "support/call.h"

namespace vemi::test {

/// What a family refuses beyond null pointers, sizes and steps.
struct OwnFault {
  const char* argument;  // where it is an array, each of its elements is spoiled by itself
  double value;
  const char* stage;  // at which it is found: one of the words in Family::order
  VemiStatus status;
  /// Does what a bad number cannot say, in place of it; false where the fault does not apply to the function.
  bool (*commit)(Call&) = nullptr;
};

/// Where a family departs from what holds for all others.
struct Exceptions {
  bool wholeSteps = false;        // steps are rounded down to whole elements
  VemiStatus lateError = vemiOk;  // an error that leaves the destination written
  VemiStatus noMemory = vemiErrMemAlloc;
  bool countsThreads = false;  // results depend on how many a team may have: calls are made with one

  /// Whole steps for a family that rounds them.
  Rows suited(Rows rows) const { return wholeSteps && rows == Rows::odd ? Rows::padded : rows; }
};

struct Family {
  const char* operations;  // names up to the type, separated by blanks
  const char* members;     // regular expression over type and descriptor
  /// The stages of the argument checks, first to last. Null pointers are found at `null`, those of arrays without a
  /// step at `arrays` and those in arrays of planes at `planes` where there are such stages, records of another kind at
  /// `tag`, sizes and rectangles at `size` (a width at `width`), steps at `step`, the family's own faults where they
  /// say. A stage with a parameter's name takes that parameter's faults from the stage of its kind. At `channels`, one
  /// channel after the other is tested: first its pointers in arrays of pointers, then its elements in other arrays.
  const char* order;
  /// Sets the integers that are the family's own, and the sizes and margins of images that are not the region.
  void (*shape)(Call&) = nullptr;
  std::vector<OwnFault> faults = {};
  /// Changes what images, arrays and constants hold, where random contents would leave a case out. Views of sources and
  /// arrays show what it may change.
  void (*retouch)(Call&) = nullptr;
  Exceptions exceptions = {};
};

std::vector<Family> coreFamilies();
std::vector<Family> arithFamilies();
std::vector<Family> mapFamilies();
std::vector<Family> colorFamilies();
std::vector<Family> filterFamilies();
std::vector<Family> geometryFamilies();
std::vector<Family> measureFamilies();
std::vector<Family> generateFamilies();
std::vector<Family> transformFamilies();

/// Throws where the table has no row for the function.
const Family& familyOf(const Export& function);

}  // namespace vemi::test
