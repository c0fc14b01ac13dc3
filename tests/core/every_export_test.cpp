// What holds for every exported function, whatever it computes: its memory is given back, and its rows may lie
// anywhere.

#if defined(__AVX__) && defined(NDEBUG)
#include <cpuid.h>
#endif
#include <gtest/gtest.h>
#include <omp.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <map>
#include <mutex>
#include <vector>

#include "support/allocator.h"
#include "support/families.h"
#include "support/faults.h"

using namespace vemi::test;

namespace {

bool has(const Export& function, Role role) {
  return std::any_of(function.parameters.begin(), function.parameters.end(),
                     [=](const Parameter& parameter) { return parameter.role == role; });
}

bool holdSameBytes(const Call& a, const Call& b) {
  for (size_t n = 0; n < a.images.size(); ++n) {
    if (a.images[n].role == Role::buffer || a.images[n].role == Role::steps) continue;  // rows may lie elsewhere
    for (size_t plane = 0; plane < a.images[n].planes.size(); ++plane) {
      const GuardedMemory &one = a.images[n].planes[plane].memory, &other = b.images[n].planes[plane].memory;
      if (!std::equal(one.begin(), one.end(), other.begin())) return false;
    }
  }
  return true;
}

// ---- Memory ----

struct Watched {
  VemiStatus status;
  int requests;
};

/// A call that has memory for so many blocks, and gives them all back: a constructor's, with the record.
Watched invokeWatched(Call& call, int blocks) {
  const WatchedAllocator allocator(blocks);
  const VemiStatus status = call.invoke();
  const int requests = allocator.requests();
  call.freeNewRecord();
  if (has(call.function, Role::freedRecord)) {
    EXPECT_GT(allocator.released(), allocator.given()) << call.text();
  } else {
    EXPECT_EQ(allocator.released(), allocator.given()) << call.text() << " with memory for " << blocks << " blocks";
  }
  return {status, requests};
}

/// With one block too few a call does without, and leaves the same; or it fails and leaves all as it was.
void expectAllocationsMayFail(const Export& function, const Scenario& scenario, int& allocating) {
  Call good(function, scenario);
  const Watched whole = invokeWatched(good, INT_MAX);
  allocating += whole.requests > 0;
  for (int blocks = 0; blocks < whole.requests; ++blocks) {
    Call call(function, scenario);
    const Watched less = invokeWatched(call, blocks);
    if (less.status != familyOf(function).exceptions.noMemory) {
      EXPECT_EQ(less.status, whole.status) << call.text() << " without block " << blocks;
      EXPECT_TRUE(holdSameBytes(call, good)) << call.text() << " without block " << blocks;
    } else if (function.operation != "vemiHistogramEven") {  // whose levels come first
      EXPECT_EQ(call.difference(), "") << "without block " << blocks;
    }
  }
}

/// A small region, and one that scratch and tables pay for.
constexpr VemiSize sizes[] = {{61, 3}, {113, 112}};

TEST(EveryExport, GivesItsMemoryBackAndLivesWithout) {
  int allocating = 0;
  for (const Export& function : exports()) {
    if (function.call == nullptr) continue;
    for (const VemiSize size : sizes) {
      expectAllocationsMayFail(function, {size, Rows::padded, Edge::back, 3, 1}, allocating);
    }
  }
  EXPECT_GT(allocating, 50);
}

TEST(EveryExport, KeepsNoMemoryWhereArgumentsAreBad) {
  for (const Export& function : exports()) {
    if (function.call == nullptr) continue;
    Call call(function, {});
    const WatchedAllocator allocator;
    for (const Fault& fault : faultsOf(call)) {
      EXPECT_EQ(tryPair(call, fault, fault), "");
      EXPECT_EQ(allocator.given(), allocator.released()) << function.name << " with " << fault.text;
    }
  }
}

/// Stands in for the C allocator: blocks that end at an unmapped page and hold nothing in particular.
class GuardedAllocator {
 public:
  GuardedAllocator() {
    vemi::testing::allocate = [](size_t size) -> void* {
      // The library takes the last aligned address that leaves the payload whole, and so fills the page to its end.
      constexpr size_t alignment = 32, surplus = alignment + sizeof(void*);
      const size_t payload = size - surplus;
      GuardedMemory memory(size + alignment);
      std::fill(memory.begin(), memory.end(), std::byte{0xa5});
      std::byte* const base = memory.end() - (payload + alignment - 1) / alignment * alignment - (surplus - 1);
      const std::lock_guard lock(mutex);
      blocks.emplace(base, std::move(memory));
      return base;
    };
    vemi::testing::release = [](void* base) {
      const std::lock_guard lock(mutex);
      EXPECT_EQ(blocks.erase(base), 1u);
    };
  }
  ~GuardedAllocator() {
    vemi::testing::allocate = std::malloc;
    vemi::testing::release = std::free;
  }
  GuardedAllocator(const GuardedAllocator&) = delete;
  GuardedAllocator& operator=(const GuardedAllocator&) = delete;

 private:
  static inline std::mutex mutex;
  static inline std::map<void*, GuardedMemory> blocks;
};

TEST(EveryExport, StaysWithinItsMemory) {
  for (const Export& function : exports()) {
    if (function.call == nullptr) continue;
    for (const VemiSize size : sizes) {
      const Scenario scenario = {size, Rows::padded, Edge::back, 3, 1};
      Call usual(function, scenario);
      const WatchedAllocator allocator;
      const VemiStatus status = usual.invoke();
      if (allocator.requests() == 0) continue;
      const GuardedAllocator guarded;
      Call call(function, scenario);
      EXPECT_EQ(call.invoke(), status) << call.text();
      EXPECT_TRUE(holdSameBytes(call, usual)) << call.text() << ": something that was never written counts";
    }
  }
}

// ---- Addresses ----

/// The images of a call with more than a gibibyte from row to row, and nothing mapped between the rows.
class DistantRows {
 public:
  explicit DistantRows(Call& call) {
    for (CallImage& image : call.images) {
      if (image.stepParameter < 0) continue;
      for (size_t n = 0; n < image.planes.size(); ++n) moveAway(call, image, n);
    }
  }
  ~DistantRows() {
    for (const Block& block : blocks_) munmap(block.begin, block.bytes);
  }
  DistantRows(const DistantRows&) = delete;
  DistantRows& operator=(const DistantRows&) = delete;

  void bringBack() const {
    for (const Row& row : rows_) std::memcpy(row.home, row.distant, row.bytes);
  }

 private:
  struct Block {
    std::byte* begin;
    size_t bytes;
  };
  struct Row {
    std::byte *home, *distant;
    size_t bytes;
  };
  std::vector<Block> blocks_;
  std::vector<Row> rows_;

  void moveAway(Call& call, CallImage& image, size_t n) {
    CallImage::Plane& plane = image.planes[n];
    const Margin& margin = image.margin;
    const VemiSize size = image.sizeOf(n);
    // Images that share a step are as far apart from row to row.
    const ptrdiff_t distance = (ptrdiff_t{1} << 30) + 64 * (image.stepParameter + ptrdiff_t{1});
    const ptrdiff_t elementBytes = bytesOf(image.element);
    const ptrdiff_t pixelBytes = elementBytes * (image.layout.planar ? 1 : image.layout.elements);
    const ptrdiff_t pixels = margin.left + size.width + margin.right, rows = margin.top + size.height + margin.bottom;
    const ptrdiff_t rowBytes = (pixels - 1) * pixelBytes + (image.layout.channels == 1 ? elementBytes : pixelBytes);
    std::byte* const begin = reserve(static_cast<size_t>((rows - 1) * distance + rowBytes));
    std::byte* const home = plane.first - margin.top * ptrdiff_t{plane.step} - margin.left * pixelBytes;
    for (ptrdiff_t y = 0; y < rows; ++y) {
      rows_.push_back({home + y * plane.step, begin + y * distance, static_cast<size_t>(rowBytes)});
      open(rows_.back());
    }
    std::byte* const first = begin + margin.top * distance + margin.left * pixelBytes;
    const auto parameterAt = [&](int index) { return call.function.parameters[static_cast<size_t>(index)]; };
    if (image.layout.planar) {
      image.pointers[n] = first;
    } else {
      call.set(parameterAt(image.parameter).name, first);
    }
    call.setNumber(parameterAt(image.stepParameter).name, static_cast<double>(distance), static_cast<int>(n));
  }

  static constexpr uintptr_t page = 4096;

  std::byte* reserve(size_t bytes) {
    void* const begin = mmap(nullptr, bytes + page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (begin == MAP_FAILED) throw std::bad_alloc();
    blocks_.push_back({static_cast<std::byte*>(begin), bytes + page});
    return blocks_.back().begin;
  }

  static void open(const Row& row) {
    const auto begin = reinterpret_cast<uintptr_t>(row.distant) & ~(page - 1);
    const uintptr_t end = reinterpret_cast<uintptr_t>(row.distant) + row.bytes;
    ASSERT_EQ(mprotect(reinterpret_cast<void*>(begin), end - begin, PROT_READ | PROT_WRITE), 0);
    std::memcpy(row.distant, row.home, row.bytes);
  }
};

// Beyond 2 GiB and beyond 4: an address that is cut to 32 bits, signed or not, meets other bytes or none.
TEST(EveryExport, ReachesRowsAnywhere) {
  if (sizeof(void*) < 8) GTEST_SKIP() << "there is nowhere to reach";
  const int threads = omp_get_max_threads();
  omp_set_num_threads(2);
  for (const Export& function : exports()) {
    if (function.call == nullptr || function.steps() == 0) continue;
    for (const VemiSize size : {VemiSize{37, 6}, VemiSize{450, 6}}) {
      const Scenario scenario = {size, Rows::padded, Edge::back, 3, 1};
      Call near(function, scenario), far(function, scenario);
      const VemiStatus status = near.invoke();
      const DistantRows rows(far);
      EXPECT_EQ(far.invoke(), status) << far.text();
      rows.bringBack();
      EXPECT_TRUE(holdSameBytes(near, far)) << far.text();
    }
  }
  omp_set_num_threads(threads);
}

// Only optimised code clears them.
#if defined(__AVX__) && defined(NDEBUG)
/// Whether the upper halves of vector registers are anything but zero.
bool upperHalvesAreInUse() {
  unsigned low, high;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
  return (low & 4) != 0;
}
bool upperHalvesAreTold() {
  unsigned a, b, c, d;
  if (__get_cpuid_count(0xd, 1, &a, &b, &c, &d) == 0 || (a & 4) == 0) return false;
  __asm__ volatile("vcmptrueps %%ymm0, %%ymm0, %%ymm0" : : : "xmm0");
  const bool filled = upperHalvesAreInUse();
  __asm__ volatile("vzeroupper");
  return filled && !upperHalvesAreInUse();
}

// A caller's SSE instruction behind them would wait.
TEST(EveryExport, LeavesNoUpperHalves) {
  if (!upperHalvesAreTold()) GTEST_SKIP() << "this processor does not tell";
  const int threads = omp_get_max_threads();
  omp_set_num_threads(1);
  for (const Export& function : exports()) {
    if (function.call == nullptr) continue;
    if (has(function, Role::newRecord) || has(function, Role::freedRecord)) continue;  // Call::invoke keeps account
    for (const VemiSize size : {VemiSize{1, 1}, VemiSize{37, 6}, VemiSize{450, 6}}) {
      Call call(function, {size, Rows::padded, Edge::back, 3, 1});
      __asm__ volatile("vzeroupper");
      function.call(function.function, call.arguments.data());
      const bool inUse = upperHalvesAreInUse();
      EXPECT_FALSE(inUse) << call.text();
    }
  }
  omp_set_num_threads(threads);
}
#endif

}  // namespace
