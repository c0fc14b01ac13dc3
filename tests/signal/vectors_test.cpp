// Vector moves and fills of the signal layer: results at all lengths and alignments, statuses in their order.

#include "signal/vectors.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "core/streaming.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::signal;
using namespace vemi::test;

namespace {

constexpr Vemi32u fillValue = 0x8a5c17e3;

/// One call on bytes: what it reads, where there is a source, and what it leaves in the destination.
struct VectorCall {
  const char* name;
  int elementBytes;
  bool hasSource;
  VemiStatus (*run)(const void* pSrc, void* pDst, int len);
  Vemi8u (*expected)(const std::vector<Vemi8u>& source, size_t byte);
};

Vemi8u sourceByte(const std::vector<Vemi8u>& source, size_t byte) { return source[byte]; }
Vemi8u zeroByte(const std::vector<Vemi8u>&, size_t) { return 0; }
Vemi8u fillByte(const std::vector<Vemi8u>&, size_t byte) { return static_cast<Vemi8u>(fillValue >> 8 * (byte % 4)); }

template <class T, VemiStatus (*copy)(const T*, T*, int)>
VemiStatus copyCall(const void* pSrc, void* pDst, int len) {
  return copy(static_cast<const T*>(pSrc), static_cast<T*>(pDst), len);
}
template <class T, VemiStatus (*zero)(T*, int)>
VemiStatus zeroCall(const void*, void* pDst, int len) {
  return zero(static_cast<T*>(pDst), len);
}
VemiStatus setCall(const void*, void* pDst, int len) { return vecSet32(fillValue, static_cast<Vemi32u*>(pDst), len); }

constexpr VectorCall calls[] = {
    {"vecCopy8", 1, true, copyCall<Vemi8u, vecCopy8>, sourceByte},
    {"vecCopy32", 4, true, copyCall<Vemi32u, vecCopy32>, sourceByte},
    {"vecZero8", 1, false, zeroCall<Vemi8u, vecZero8>, zeroByte},
    {"vecZero16", 2, false, zeroCall<Vemi16u, vecZero16>, zeroByte},
    {"vecZero32", 4, false, zeroCall<Vemi32u, vecZero32>, zeroByte},
    {"vecSet32", 4, false, setCall, fillByte},
};

void expectDone(const VectorCall& call, int len, Place place) {
  const ptrdiff_t bytes = ptrdiff_t{len} * call.elementBytes;
  const GuardedRow<Vemi8u> src(call.hasSource ? bytes : 0, place), dst(bytes, place);
  ASSERT_EQ(call.run(src.data(), dst.data(), len), vemiOk);
  const auto source = src.original();
  std::vector<Vemi8u> expected(static_cast<size_t>(bytes));
  for (size_t i = 0; i < expected.size(); ++i) expected[i] = call.expected(source, i);
  ASSERT_TRUE(dst.holds(expected) && src.untouched()) << call.name << ", " << len << ", slack " << place.slack;
}

TEST(Vectors, EveryLengthAndAlignment) {
  for (const VectorCall& call : calls) {
    for (int len = 1; len <= 300; ++len) {
      for (const Place place : places) expectDone(call, len, place);
    }
    for (ptrdiff_t slack = 0; slack < 64; ++slack) {
      for (const int len : {1, 3, 15, 64, 129, 300}) expectDone(call, len, {false, slack});
    }
    for (const int len : {5119, 5121, 20479, 20481}) expectDone(call, len, {true, 3});
  }
}

TEST(Vectors, LongCopiesTakeTheStreamedPath) {
  expectDone(calls[0], int{streamedTraffic / 2 + 13}, {false, 1});
  expectDone(calls[1], int{streamedTraffic / 8 + 3}, {false, 2});
}

TEST(Vectors, ANullPointerIsReportedBeforeALengthBelowOne) {
  const GuardedRow<Vemi8u> src(64), dst(64);
  for (const VectorCall& call : calls) {
    SCOPED_TRACE(call.name);
    for (const int len : {1, 0, -1}) {
      EXPECT_EQ(call.run(src.data(), nullptr, len), vemiErrNullPtr);
      if (call.hasSource) {
        EXPECT_EQ(call.run(nullptr, dst.data(), len), vemiErrNullPtr);
      }
    }
    for (const int len : {0, -1, -2147483647 - 1}) EXPECT_EQ(call.run(src.data(), dst.data(), len), vemiErrSize);
  }
  EXPECT_TRUE(dst.untouched());
}

}  // namespace
