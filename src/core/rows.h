// Row primitives: what moves and fills memory for all families. Any length, any alignment; lengths are in elements
// unless the name of the argument says otherwise.
#pragma once

#include <cstddef>

#include "vemi/types.h"

namespace vemi {

/// Source and destination must not overlap.
void rowCopyBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

/// The same with stores past the caches; finishStreaming follows behind the thread's last row.
void rowStreamBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

void rowSet8(Vemi8u value, Vemi8u* pDst, ptrdiff_t len);

}  // namespace vemi
