// Scratch: the places of arrays in a block, our own blocks and a user's buffers, and sizes beyond all memory.

#include "core/scratch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/allocator.h"
#include "support/guarded.h"

using namespace vemi;
using namespace vemi::test;

namespace {

struct Range {
  uintptr_t first, end;
};

template <class T>
Range rangeOf(T* array, Vemi64s count) {
  return {reinterpret_cast<uintptr_t>(array), reinterpret_cast<uintptr_t>(array + count)};
}

/// Arrays of some types and lengths, each whole and by itself, at multiples of `alignment`. All elements are written.
void expectPieces(Vemi64s alignment, void* buffer, Vemi64s bytes) {
  for (const int count : {1, 3, 8, 37}) {
    Pieces pieces(alignment);
    const auto bytesPiece = pieces.add<Vemi8u>(count);
    const auto doubles = pieces.add<double>(2 * count);
    const auto none = pieces.add<Vemi16s>(0);
    const auto floats = pieces.add<float>(count + 1);
    ASSERT_LE(pieces.bytes(), bytes);
    EXPECT_GE(pieces.distance(), pieces.bytes());
    EXPECT_LT(pieces.distance(), pieces.bytes() + alignment);
    EXPECT_EQ(pieces.distance() % alignment, 0);
    const Scratch scratch(pieces, buffer);
    ASSERT_FALSE(scratch.failed());
    const Range ranges[] = {rangeOf(scratch[bytesPiece], count), rangeOf(scratch[doubles], 2 * count),
                            rangeOf(scratch[none], 0), rangeOf(scratch[floats], count + 1)};
    uintptr_t end = reinterpret_cast<uintptr_t>(scratch.memory().first);
    for (const Range& range : ranges) {
      EXPECT_EQ(range.first % static_cast<uintptr_t>(alignment), 0u);
      EXPECT_GE(range.first, end);
      EXPECT_LT(range.first, end + static_cast<uintptr_t>(alignment)) << "no more than is needed";
      end = range.end;
    }
    EXPECT_EQ(end, reinterpret_cast<uintptr_t>(scratch.memory().first) + static_cast<uintptr_t>(pieces.bytes()));
    std::fill(scratch.as<Vemi8u>(), scratch.as<Vemi8u>() + pieces.bytes(), Vemi8u{0xa5});
  }
}

}  // namespace

TEST(Scratch, IsOneBlockThatIsFreed) {
  const WatchedAllocator allocator;
  expectPieces(32, nullptr, 10000);
  EXPECT_EQ(allocator.requests(), 4);
  EXPECT_EQ(allocator.released(), 4);
}

TEST(Scratch, OfAUsersBufferIsAlignedAndStaysInside) {
  const NoMemory allocator;
  for (size_t lead = 0; lead < 16; ++lead) {
    for (const Vemi64s alignment : {8, 16}) {
      Pieces largest(alignment);
      largest.add<Vemi8u>(37);
      largest.add<double>(74);
      largest.add<float>(38);
      const auto size = static_cast<size_t>(largest.bytes() + bufferSlack);
      const GuardedMemory memory(lead + size + 1);
      std::byte* const buffer = memory.begin() + lead;
      std::fill(memory.begin(), memory.end(), std::byte{1});
      expectPieces(alignment, buffer, largest.bytes());
      const auto isUntouched = [](std::byte byte) { return byte == std::byte{1}; };
      EXPECT_TRUE(std::all_of(memory.begin(), buffer, isUntouched));
      EXPECT_TRUE(std::all_of(buffer + size, memory.end(), isUntouched));
      EXPECT_EQ(reinterpret_cast<uintptr_t>(Scratch(1, buffer).as<char>()) % 16, 0u);
      EXPECT_LT(reinterpret_cast<std::byte*>(Scratch(1, buffer).as<char>()), buffer + 16);
    }
  }
  EXPECT_EQ(allocator.requests(), 0);
  EXPECT_EQ(allocator.released(), 0) << "the buffer is the user's";
}

TEST(Scratch, SaysThatItFailed) {
  const NoMemory allocator;
  EXPECT_TRUE(Scratch(1).failed());
  Scratch later;
  EXPECT_FALSE(later.failed());
  later = Scratch(arrayBytes<float>(7));
  EXPECT_TRUE(later.failed());
  EXPECT_EQ(allocator.requests(), 2);
  EXPECT_EQ(allocator.released(), 0);
}

TEST(Scratch, OfNothingNeedsNoMemory) {
  const NoMemory allocator;
  EXPECT_FALSE(Scratch(0).failed());
  EXPECT_FALSE(Scratch(Pieces()).failed());
  EXPECT_EQ(allocator.requests(), 0);
}

TEST(Scratch, BelongsToOneRecord) {
  const WatchedAllocator allocator;
  {
    Scratch first(5), second(6);
    char* const block = first.as<char>();
    second = std::move(first);
    EXPECT_EQ(second.as<char>(), block);
    const Scratch third(std::move(second));
    EXPECT_EQ(third.as<char>(), block);
  }
  EXPECT_EQ(allocator.requests(), 2);
  EXPECT_EQ(allocator.released(), 2);
}

/// More than 32 bits count is more than 32-bit pointers reach; more than 63 bits count is more than any reach.
TEST(Scratch, SizesDoNotWrap) {
  const NoMemory allocator;
  const Vemi64s counts[][2] = {
      {mostBytes, 1}, {mostBytes / 8 + 1, 1}, {1, mostBytes / 8 + 1}, {mostBytes / 16, mostBytes / 16 + 100}, {-1, 1},
      {1, -1},        {Vemi64s{1} << 61, 0}};
  for (const auto& count : counts) {
    Pieces pieces;
    pieces.add<double>(count[0]);
    pieces.add<double>(count[1]);
    EXPECT_TRUE(Scratch(pieces).failed());
    EXPECT_EQ(pieces.distance(), mostBytes);
  }
  EXPECT_EQ(allocator.requests(), 0) << "none reached the C allocator";

  static size_t requested;
  requested = 0;
  vemi::testing::allocate = [](size_t size) -> void* { return requested = size, nullptr; };
  EXPECT_TRUE(Scratch(arrayBytes<double>(Vemi64s{1} << 29)).failed());
  if (sizeof(void*) > 4) {
    EXPECT_GT(requested, size_t{1} << 31 << 1);
  } else {
    EXPECT_EQ(requested, 0u);
  }
}
