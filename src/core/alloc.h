// Scratch and image blocks that start on 32-byte boundaries. The address that the C allocator gave is kept in the
// pointer-sized word in front of the block, so one free function serves all blocks.
#pragma once

#include <cstddef>

#include "vemi/types.h"

namespace vemi {

/// Of the blocks' addresses.
inline constexpr int blockAlignment = 32;

/// All return null for a size or count below 1 and when the C allocator fails. Blocks are not cleared.
void* vemiAlignedAlloc(int size);
Vemi16s* vemiAlignedAlloc16(int count);
Vemi32f* vemiAlignedAlloc32f(int count);
Vemi64f* vemiAlignedAlloc64f(int count);

/// The same for sizes that a team multiplies: a size beyond the address space is a failed allocation.
void* alignedAllocBytes(Vemi64s size);

void vemiAlignedFree(void* block);

#ifdef VEMI_ALLOCATION_SEAM
/// The tests' build reaches the C allocator through these, so that a test can watch it and make it fail.
namespace testing {
extern void* (*allocate)(size_t size);
extern void (*release)(void* base);
}  // namespace testing
#endif

}  // namespace vemi
