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

/// `count` elements, the values in turn.
template <class T>
std::vector<T> repeated(const std::vector<T>& values, ptrdiff_t count) {
  std::vector<T> row(static_cast<size_t>(count));
  for (size_t i = 0; i < row.size(); ++i) row[i] = values[i % values.size()];
  return row;
}

/// fill(destination, pixels) repeats the pixel `values` at every length and alignment.
template <class T, class Fill>
void expectFilled(const std::vector<T>& values, const Fill& fill) {
  const auto elements = static_cast<ptrdiff_t>(values.size());
  const auto check = [&](ptrdiff_t pixels, Place place) {
    const GuardedRow<T> dst(pixels * elements, place);
    fill(dst.data(), pixels);
    ASSERT_TRUE(dst.holds(repeated(values, pixels * elements)))
        << pixels << " pixels of " << elements << " x " << sizeof(T) << " bytes, slack " << place.slack;
  };
  for (ptrdiff_t pixels = 0; pixels <= 300; ++pixels) {
    for (const Place place : places) check(pixels, place);
  }
  for (ptrdiff_t slack = 0; slack < 64; ++slack) {
    for (const ptrdiff_t pixels : {1, 2, 7, 31, 64, 150, 299}) check(pixels, {false, slack});
  }
  check(1'000'003, {true, 0});
}

TEST(RowSet, RepeatsOneElement) {
  expectFilled<Vemi8u>({0xa7}, [](Vemi8u* dst, ptrdiff_t n) { rowSet8(0xa7, dst, n); });
  expectFilled<Vemi16u>({0xa7c3}, [](Vemi16u* dst, ptrdiff_t n) { rowSet16(0xa7c3, dst, n); });
  expectFilled<Vemi32u>({0xa7c35b19}, [](Vemi32u* dst, ptrdiff_t n) { rowSet32(0xa7c35b19, dst, n); });
}

TEST(RowSet, RepeatsPixelsOfThreeElements) {
  const std::vector<Vemi8u> p8 = {1, 0x82, 3};
  const std::vector<Vemi16u> p16 = {0x0102, 0x8304, 0x0506};
  const std::vector<Vemi32u> p32 = {0x01020304, 0x85060708, 0x090a0b0c};
  expectFilled(p8, [&](Vemi8u* dst, ptrdiff_t n) { rowSet8x3(p8.data(), dst, 3 * n); });
  expectFilled(p16, [&](Vemi16u* dst, ptrdiff_t n) { rowSet16x3(p16.data(), dst, 3 * n); });
  expectFilled(p32, [&](Vemi32u* dst, ptrdiff_t n) { rowSet32x3(p32.data(), dst, 3 * n); });
}

TEST(RowSet, RepeatsPixelsOfFourElementsFromTheLowestBitsOn) {
  expectFilled<Vemi16u>({0x0102, 0x8304, 0x0506, 0xf708},
                        [](Vemi16u* dst, ptrdiff_t n) { rowSet16x4(0xf708'0506'8304'0102, dst, n); });
  expectFilled<Vemi32u>({1, 0x80000002, 3, 0xf0000004}, [](Vemi32u* dst, ptrdiff_t n) {
    rowSet32x4(0x80000002'00000001, 0xf0000004'00000003, dst, n);
  });
}

}  // namespace
