// The C allocator as a test wants it: watched, and short of memory. For tests that link vemi_internal.
#pragma once

#include <atomic>
#include <climits>
#include <cstddef>
#include <cstdlib>

#include "core/alloc.h"

namespace vemi::test {

/// Stands in for the C allocator while it lives; only one does at a time. The library may call it from many threads.
class WatchedAllocator {
 public:
  /// Gives `count` blocks, and null from then on.
  explicit WatchedAllocator(int count = INT_MAX) {
    allowed = count;
    requested = provided = freed = 0;
    vemi::testing::allocate = [](size_t size) -> void* {
      if (requested++ >= allowed) return nullptr;
      ++provided;
      return std::malloc(size);
    };
    vemi::testing::release = [](void* base) {
      ++freed;
      std::free(base);
    };
  }
  ~WatchedAllocator() {
    vemi::testing::allocate = std::malloc;
    vemi::testing::release = std::free;
  }
  WatchedAllocator(const WatchedAllocator&) = delete;
  WatchedAllocator& operator=(const WatchedAllocator&) = delete;

  int requests() const { return requested; }
  int given() const { return provided; }
  int released() const { return freed; }

 private:
  static inline std::atomic<int> allowed, requested, provided, freed;  // what plain functions can reach
};

/// Has no memory from the start.
struct NoMemory : WatchedAllocator {
  NoMemory() : WatchedAllocator(0) {}
};

}  // namespace vemi::test
