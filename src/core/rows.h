// Row primitives: what moves and fills memory for all families. Any length, any alignment; lengths are in elements
// unless the name of the argument says otherwise.
#pragma once

#include <cstddef>
#include <cstdint>

#include "vemi/types.h"

namespace vemi {

/// Source and destination must not overlap.
void rowCopyBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

/// The same with stores past the caches. They are ordered before what the thread does next by finishStreaming alone,
/// which costs as much as thousands of them: it is called once, behind a thread's last row.
void rowStreamBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

void finishStreaming();

void rowSet8(Vemi8u value, Vemi8u* pDst, ptrdiff_t len);
void rowSet16(Vemi16u value, Vemi16u* pDst, ptrdiff_t len);
void rowSet32(Vemi32u value, Vemi32u* pDst, ptrdiff_t len);

/// Pixels of three elements; len is width x 3.
void rowSet8x3(const Vemi8u* pValue, Vemi8u* pDst, ptrdiff_t len);
void rowSet16x3(const Vemi16u* pValue, Vemi16u* pDst, ptrdiff_t len);
void rowSet32x3(const Vemi32u* pValue, Vemi32u* pDst, ptrdiff_t len);

/// Pixels of four elements, the first of them in the lowest bits; len is in pixels.
void rowSet16x4(uint64_t pixel, Vemi16u* pDst, ptrdiff_t lenPixels);
void rowSet32x4(uint64_t lowerPixel, uint64_t upperPixel, Vemi32u* pDst, ptrdiff_t lenPixels);

}  // namespace vemi
