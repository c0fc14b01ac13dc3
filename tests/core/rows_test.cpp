// Row primitives: every length up to a few hundred elements, rows that start and end against unmapped pages, and every
// alignment of source and destination.

#include "core/rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "core/streaming.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

// ---- Copies -------------------------------------------------------------------------------------------------------

using Copy = void (*)(const void* pSrc, void* pDst, ptrdiff_t lenBytes);
constexpr Copy copies[] = {rowCopyBytes, rowStreamBytes};

void expectCopied(Copy copy, ptrdiff_t len, Place from, Place to) {
  const GuardedRow<Vemi8u> src(len, from), dst(len, to);
  copy(src.data(), dst.data(), len);
  finishStreaming();
  ASSERT_TRUE(dst.holds(src.original()) && src.untouched())
      << len << " bytes, to alignment " << reinterpret_cast<uintptr_t>(dst.data()) % 64;
}

TEST(RowCopy, EveryLengthAgainstUnmappedPages) {
  for (const Copy copy : copies) {
    for (ptrdiff_t len = 0; len <= 700; ++len) {
      for (const Place place : places) expectCopied(copy, len, place, place);
    }
  }
}

// Lengths around the lead-in of the streamed copy and around its blocks, at every alignment of the destination.
TEST(RowCopy, EveryAlignment) {
  for (const Copy copy : copies) {
    for (ptrdiff_t alignment = 0; alignment < 64; ++alignment) {
      for (ptrdiff_t edge : {64, 128, 256, 512, 4096}) {
        for (ptrdiff_t len : {edge - 1, edge, edge + 1, edge + 63, edge + 64 - alignment, edge + 63 - alignment}) {
          expectCopied(copy, len, {false, 3 * alignment % 64}, {false, alignment});
        }
      }
    }
    for (ptrdiff_t len : {(1 << 20) - 1, 1 << 20, (1 << 20) + 77}) expectCopied(copy, len, {true, 5}, {false, 13});
  }
}

// ---- Fills --------------------------------------------------------------------------------------------------------

/// fill(destination, elements) repeats `value` at every length and alignment.
template <class T, class Fill>
void expectFilled(T value, const Fill& fill) {
  const auto check = [&](ptrdiff_t count, Place place) {
    const GuardedRow<T> dst(count, place);
    fill(dst.data(), count);
    ASSERT_TRUE(dst.holds(std::vector<T>(static_cast<size_t>(count), value)))
        << count << " x " << sizeof(T) << " bytes, slack " << place.slack;
  };
  for (ptrdiff_t count = 0; count <= 300; ++count) {
    for (const Place place : places) check(count, place);
  }
  for (ptrdiff_t slack = 0; slack < 64; ++slack) {
    for (const ptrdiff_t count : {1, 2, 7, 31, 64, 150, 299}) check(count, {false, slack});
  }
  check(1'000'003, {true, 0});
}

TEST(RowSet, RepeatsOneElement) {
  expectFilled<Vemi8u>(0xa7, [](Vemi8u* dst, ptrdiff_t n) { rowSet8(0xa7, dst, n); });
}

}  // namespace
