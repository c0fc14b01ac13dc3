// Row primitives: what moves and fills memory for all families. Any length, any alignment; lengths are in elements
// unless the name of the argument says otherwise.
#pragma once

#include <cstddef>
#include <cstdint>

#include "vemi/types.h"

namespace vemi {

/// Source and destination must not overlap.
void rowCopyBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

/// The same past the caches, for destinations that would only displace what they hold.
void rowStreamBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes);

/// A destination of this size or more is written past the caches: it would not stay in them, and a store that bypasses
/// them spares the read of its line. Measured.
inline constexpr ptrdiff_t streamedBytes = ptrdiff_t{32} << 20;

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
