// What an export leaves, as one number.
#pragma once

#include <cstdint>

#include "support/exports.h"

namespace vemi::test {

/// A hash of all bytes and statuses that the function leaves in a number of calls. All NaNs that go in have the same
/// bits: of two different ones, the processor hands on its first operand's, and which operand of a sum comes first is
/// the compiler's choice.
uint64_t digestOf(const Export& function);

}  // namespace vemi::test
