// Records: what a constructor leaves, in success and half-way, which tags pass, what a Free function releases.

#include "core/record.h"

#include <gtest/gtest.h>

#include <utility>

#include "core/checks.h"
#include "core/scratch.h"
#include "support/allocator.h"

using namespace vemi;
using namespace vemi::test;

namespace {

struct Part {
  int tag, length;
  Scratch table;
};

struct Whole {
  int tag, width;
  Scratch table;
  RecordPtr<Part> rows, columns;
};

/// Two records and three tables, each of which may fail to be had.
VemiStatus make(Whole** ppWhole) {
  const auto makePart = [](int length) -> RecordPtr<Part> {
    auto part = makeRecord<Part>(4);
    if (part == nullptr) return nullptr;
    part->length = length;
    part->table = Scratch(length);
    return part->table.failed() ? nullptr : std::move(part);
  };
  auto whole = makeRecord<Whole>(26);
  if (whole == nullptr) return vemiErrMemAlloc;
  whole->table = Scratch(100);
  whole->rows = makePart(10);
  whole->columns = makePart(20);
  if (whole->table.failed() || whole->rows == nullptr || whole->columns == nullptr) return vemiErrMemAlloc;
  return handOver(std::move(whole), ppWhole);
}

}  // namespace

TEST(Record, IsMadeAndFreedWithAllThatBelongsToIt) {
  const WatchedAllocator allocator;
  Whole* whole = nullptr;
  ASSERT_EQ(make(&whole), vemiOk);
  EXPECT_EQ(allocator.given(), 6);
  EXPECT_EQ(allocator.released(), 0);
  EXPECT_EQ(whole->tag, 26);
  EXPECT_EQ(whole->width, 0);
  EXPECT_EQ(whole->columns->tag, 4);
  EXPECT_EQ(whole->columns->length, 20);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(whole) % 32, 0u);
  EXPECT_EQ(freeRecord(whole, 26), vemiOk);
  EXPECT_EQ(allocator.released(), 6);
}

TEST(Record, OfAConstructorThatFailsLeavesNothing) {
  for (int blocks = 0; blocks < 6; ++blocks) {
    const WatchedAllocator allocator(blocks);
    Whole* whole = nullptr;
    EXPECT_EQ(make(&whole), vemiErrMemAlloc) << blocks;
    EXPECT_EQ(whole, nullptr);
    EXPECT_EQ(allocator.released(), allocator.given()) << blocks;
  }
}

TEST(Record, IsKnownByItsTags) {
  const Part part = {47, 0, {}};
  const Part* const none = nullptr;
  EXPECT_EQ(checkRecord(&part, 47), vemiOk);
  EXPECT_EQ(checkRecord(&part, 46, 47), vemiOk);
  EXPECT_EQ(checkRecord(&part, 46, 48, 49), vemiErrContext);
  EXPECT_EQ(checkRecord(&part, 0), vemiErrContext);
  EXPECT_EQ(checkRecord(none, 46, 47), vemiErrNullPtr);
  EXPECT_EQ(firstOf(checkRecord(none, 47), checkNull(none)), vemiErrNullPtr);
}

/// A record that is not of the kind stays whole.
TEST(Record, IsFreedByItsOwnFunctionAlone) {
  const WatchedAllocator allocator;
  RecordPtr<Part> part = makeRecord<Part>(46);
  Part* const none = nullptr;
  EXPECT_EQ(freeRecord(none, 46), vemiErrNullPtr);
  EXPECT_EQ(freeRecord(part.get(), 47), vemiErrContext);
  EXPECT_EQ(part->tag, 46);
  EXPECT_EQ(allocator.released(), 0);
}

TEST(Record, HasNoTagWhenItIsFreed) {
  static int tagAtRelease;
  static void* base;
  const WatchedAllocator allocator;
  Part* const part = makeRecord<Part>(46).release();
  std::memcpy(&base, reinterpret_cast<char*>(part) - sizeof base, sizeof base);
  static const char* place;
  place = reinterpret_cast<const char*>(part);
  vemi::testing::release = [](void* block) {
    EXPECT_EQ(block, base);
    std::memcpy(&tagAtRelease, place, sizeof tagAtRelease);
    std::free(block);
  };
  tagAtRelease = -1;
  EXPECT_EQ(freeRecord(part, 46), vemiOk);
  EXPECT_EQ(tagAtRelease, 0);
}
