// A block: [... C allocator's lead-in ...][saved base][payload, 32-byte aligned]

#include "core/alloc.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "vemi/core.h"

namespace vemi {

#ifdef VEMI_ALLOCATION_SEAM
namespace testing {
void* (*allocate)(size_t) = std::malloc;
void (*release)(void*) = std::free;
}  // namespace testing
using testing::allocate;
using testing::release;
#endif

namespace {

#ifndef VEMI_ALLOCATION_SEAM
void* allocate(size_t size) { return std::malloc(size); }
void release(void* base) { std::free(base); }
#endif

constexpr size_t surplus = blockAlignment + sizeof(void*);

}  // namespace

void* alignedAllocBytes(Vemi64s size) {
  if (size < 1 || size > static_cast<Vemi64s>(PTRDIFF_MAX - surplus)) return nullptr;
  void* const base = allocate(static_cast<size_t>(size) + surplus);
  if (base == nullptr) return nullptr;
  // The last address that is aligned, leaves the word in front and the payload whole.
  const size_t lead = surplus - 1 - (reinterpret_cast<uintptr_t>(base) + surplus - 1) % blockAlignment;
  char* const payload = static_cast<char*>(base) + lead;
  std::memcpy(payload - sizeof base, &base, sizeof base);
  return payload;
}

void* vemiAlignedAlloc(int size) { return alignedAllocBytes(size); }

Vemi16s* vemiAlignedAlloc16(int count) { return static_cast<Vemi16s*>(alignedAllocBytes(Vemi64s{count} * 2)); }

Vemi32f* vemiAlignedAlloc32f(int count) { return static_cast<Vemi32f*>(alignedAllocBytes(Vemi64s{count} * 4)); }

Vemi64f* vemiAlignedAlloc64f(int count) { return static_cast<Vemi64f*>(alignedAllocBytes(Vemi64s{count} * 8)); }

void vemiAlignedFree(void* block) {
  if (block == nullptr) return;
  void* base;
  std::memcpy(&base, static_cast<char*>(block) - sizeof base, sizeof base);
  release(base);
}

}  // namespace vemi

void vemiFree(void* ptr) { vemi::vemiAlignedFree(ptr); }
