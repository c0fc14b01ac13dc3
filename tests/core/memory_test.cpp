// vemiMalloc, vemiFree and the blocks that they share with the library's scratch.

#include <gtest/gtest.h>
#include <limits.h>

#include <cstdlib>
#include <map>
#include <vector>

#include "core/alloc.h"
#include "support/exports.h"

using namespace vemi::test;

namespace {

constexpr size_t surplus = 32 + sizeof(void*);

/// Stands in for the C allocator: notes each request, gives bases of any alignment, and fails on demand.
class Memory : public testing::Test {
 protected:
  Memory() {
    blocks.clear();
    requests = 0;
    lead = 0;
    mayAllocate = true;
    vemi::testing::allocate = [](size_t size) -> void* {
      requests += 1;
      requested = size;
      if (!mayAllocate) return nullptr;
      void* const block = std::malloc(size + lead);
      base = static_cast<char*>(block) + lead;
      blocks[base] = block;
      return base;
    };
    vemi::testing::release = [](void* released) {
      ASSERT_EQ(blocks.count(released), 1u) << "freed what was not allocated";
      std::free(blocks[released]);
      blocks.erase(released);
    };
  }
  ~Memory() override {
    EXPECT_TRUE(blocks.empty()) << "blocks were not freed";
    vemi::testing::allocate = std::malloc;
    vemi::testing::release = std::free;
  }

  void expectBlock(void* payload, size_t size) {
    ASSERT_NE(payload, nullptr);
    EXPECT_EQ(requested, size + surplus);
    const auto lowest = reinterpret_cast<uintptr_t>(base) + sizeof(void*);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(payload), (lowest + 31) / 32 * 32);
    EXPECT_EQ(static_cast<void**>(payload)[-1], base);
    std::memset(payload, 0xa5, size);
    vemiFree(payload);
  }

  static inline std::map<void*, void*> blocks;  // what was given -> what the C allocator gave
  static inline int requests;
  static inline size_t requested, lead;
  static inline void* base;
  static inline bool mayAllocate;
};

/// Bytes from pixel to pixel in a row, by the type and layout of the name.
int pixelBytesOf(const Export& function) {
  static const std::map<std::string, int> typeBytes = {{"8u", 1},  {"16u", 2},  {"16s", 2}, {"32s", 4},
                                                       {"32f", 4}, {"32sc", 8}, {"32fc", 8}};
  const std::string type = function.members.substr(0, function.members.find('_'));
  return typeBytes.at(type) * (function.destination.planar ? 1 : function.destination.elements);
}

struct Demand {
  int step, size;
};

/// Step and block of an image, in arithmetic that wraps at 32 bits.
Demand demandOf(const Export& function, VemiSize size) {
  const uint32_t step = (static_cast<uint32_t>(size.width) * static_cast<uint32_t>(pixelBytesOf(function)) + 31) & ~31u;
  const uint32_t rows = static_cast<uint32_t>(size.height) * (function.destination.planar ? 3 : 1);
  return {static_cast<int>(step), static_cast<int>(step * rows)};
}

}  // namespace

TEST_F(Memory, RowsAndBlocksOfEveryImage) {
  const std::vector<const Export*> members = membersOf("vemiMalloc");
  EXPECT_EQ(members.size(), 42u);
  for (const Export* function : members) {
    SCOPED_TRACE(function->name);
    for (const VemiSize size : {VemiSize{1, 1}, VemiSize{3, 4}, VemiSize{8, 1}, VemiSize{11, 2}, VemiSize{32, 3},
                                VemiSize{33, 2}, VemiSize{1001, 5}}) {
      int step = -1;
      void* const payload = function->allocate(function->function, size, &step);
      EXPECT_EQ(step, demandOf(*function, size).step);
      expectBlock(payload, static_cast<size_t>(demandOf(*function, size).size));
    }
  }
}

TEST_F(Memory, KnownSteps) {
  const auto stepOf = [](const char* members, int width) {
    const Export& function = *membersOf("vemiMalloc", members).front();
    int step = -1;
    vemiFree(function.allocate(function.function, {width, 2}, &step));
    return step;
  };
  EXPECT_EQ(stepOf("8u_C1", 1), 32);
  EXPECT_EQ(stepOf("8u_C1", 32), 32);
  EXPECT_EQ(stepOf("8u_C1", 33), 64);
  EXPECT_EQ(stepOf("8u_C3", 11), 64);
  EXPECT_EQ(stepOf("32fc_C4", 3), 96);
  EXPECT_EQ(stepOf("32f_P3", 9), 64);
  EXPECT_EQ(requested, 3 * 2 * 64 + surplus);

  int step = -1;  // C++ callers may pass width and height
  vemiFree(vemiMalloc_16s_C3(11, 5, &step));
  EXPECT_EQ(step, 96);
  EXPECT_EQ(requested, 5 * 96 + surplus);
}

TEST_F(Memory, AnyAlignmentOfTheBase) {
  for (lead = 0; lead < 64; ++lead) expectBlock(vemi::vemiAlignedAlloc(77), 77);
}

TEST_F(Memory, ScratchIsCountedInElements) {
  expectBlock(vemi::vemiAlignedAlloc16(5), 10);
  expectBlock(vemi::vemiAlignedAlloc32f(5), 20);
  expectBlock(vemi::vemiAlignedAlloc64f(5), 40);
  for (const int none : {0, -1, INT_MIN}) {
    EXPECT_EQ(vemi::vemiAlignedAlloc(none), nullptr);
    EXPECT_EQ(vemi::vemiAlignedAlloc16(none), nullptr);
    EXPECT_EQ(vemi::vemiAlignedAlloc32f(none), nullptr);
    EXPECT_EQ(vemi::vemiAlignedAlloc64f(none), nullptr);
  }
  EXPECT_EQ(requests, 3);
}

TEST_F(Memory, BadSizesGiveNullAndStepZero) {
  for (const Export* function : membersOf("vemiMalloc")) {
    for (const VemiSize size : {VemiSize{0, 1}, VemiSize{1, 0}, VemiSize{-1, 1}, VemiSize{1, INT_MIN}}) {
      int step = -1;
      EXPECT_EQ(function->allocate(function->function, size, &step), nullptr) << function->name;
      EXPECT_EQ(step, 0) << function->name;
    }
    EXPECT_EQ(function->allocate(function->function, {1, 1}, nullptr), nullptr) << function->name;
  }
  EXPECT_EQ(requests, 0);
}

TEST_F(Memory, WrappedSizesAndFailedAllocationsKeepTheStep) {
  mayAllocate = false;
  for (const Export* function : membersOf("vemiMalloc")) {
    for (const VemiSize size : {VemiSize{7, 7}, VemiSize{INT_MAX, 1}, VemiSize{0x40000001, 1}, VemiSize{0x10000000, 3},
                                VemiSize{0x10000, 0x10000}, VemiSize{0x5555, 0x6001}, VemiSize{0x20000000, 9}}) {
      int step = -1;
      requests = 0;
      EXPECT_EQ(function->allocate(function->function, size, &step), nullptr) << function->name;
      const Demand demand = demandOf(*function, size);
      EXPECT_EQ(step, demand.step) << function->name << " " << size.width << "x" << size.height;
      EXPECT_EQ(requests, demand.size > 0 ? 1 : 0) << function->name << " " << size.width << "x" << size.height;
      if (requests > 0) {
        EXPECT_EQ(requested, static_cast<size_t>(demand.size) + surplus) << function->name;
      }
    }
  }
}

TEST_F(Memory, FreeingNullDoesNothing) { vemiFree(nullptr); }
