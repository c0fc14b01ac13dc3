#include "vemi/version.h"

#include "vemi/core.h"

namespace {

constexpr VemiLibVersion version = {VEMI_VERSION_MAJOR, VEMI_VERSION_MINOR, 11,       85,
                                    {'q', '7', 0, 0},   "vemiq7.dll",       "v4.1.2", "Jan 19 2005"};

}  // namespace

const VemiLibVersion* vemiGetLibVersion(void) { return &version; }
