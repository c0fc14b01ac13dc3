// What an export leaves, as one number.
#pragma once

#include <cstdint>

#include "support/exports.h"

namespace vemi::test {

/// A hash of all bytes and statuses that the function leaves in a number of calls, in which NaNs among written floats
/// count as one. In most calls all NaNs that go in have the same bits; in some they are of all kinds, quiet and
/// signalling.
uint64_t digestOf(const Export& function);

}  // namespace vemi::test
