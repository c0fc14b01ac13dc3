// vemiCompare, vemiCompareC, vemiCompareEqualEps, vemiCompareEqualEpsC.

#include <gtest/gtest.h>
#include <limits.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "core/streaming.h"
#include "support/check.h"
#include "support/values.h"

using namespace vemi::test;

namespace {

template <class T>
bool holds(int cmpOp, T a, T b) {
  switch (cmpOp) {
    case vemiCmpLess:
      return a < b;
    case vemiCmpLessEq:
      return a <= b;
    case vemiCmpEq:
      return a == b;
    case vemiCmpGreaterEq:
      return a >= b;
    default:
      return a > b;
  }
}

/// A sum of floats would leave single precision on the way to a comparison where the compiler has wider registers.
bool isWithin(float eps, float a, float b) {
  volatile float difference = a - b;
  return std::fabs(difference) <= eps;
}

bool holds(Call& call, Element element, const std::byte* a, const std::byte* b) {
  if (call.function.indexOf("eps") >= 0) return isWithin(call.get<float>("eps"), load<float>(a), load<float>(b));
  const int cmpOp = call.get<int>("cmpOp");
  if (element == Element::f32) return holds(cmpOp, load<float>(a), load<float>(b));
  return holds(cmpOp, loadInteger(element, a), loadInteger(element, b));
}

void compared(Call& call) {
  const View first = call.source(), map = call.destination();
  const bool hasConstant = call.function.indexOf("value") >= 0;
  call.forEachElement([&](int x, int y, int) {
    bool all = true;
    for (int channel = 0; channel < first.channels; ++channel) {
      const std::byte* const second = hasConstant ? call.constant(channel) : call.source(1).at(x, y, channel);
      all = all && holds(call, first.element, first.at(x, y, channel), second);
    }
    store(map.at(x, y), static_cast<Vemi8u>(all ? 255 : 0));
  });
}

constexpr int operators[] = {vemiCmpLess, vemiCmpLessEq, vemiCmpEq, vemiCmpGreaterEq, vemiCmpGreater};

}  // namespace

TEST(Compare, EveryMember) {
  for (const char* const operation : {"vemiCompare", "vemiCompareC", "vemiCompareEqualEps", "vemiCompareEqualEpsC"}) {
    expectDefinition(membersOf(operation), compared);
  }
}

TEST(Compare, AllPairsOf8u) {
  std::vector<Vemi8u> a(65536), b(65536), map(65536), expected(65536);
  for (size_t n = 0; n < a.size(); ++n) {
    a[n] = static_cast<Vemi8u>(n % 256);
    b[n] = static_cast<Vemi8u>(n / 256);
  }
  for (const int cmpOp : operators) {
    for (size_t n = 0; n < a.size(); ++n) expected[n] = holds(cmpOp, a[n], b[n]) ? 255 : 0;
    EXPECT_EQ(vemiCompare_8u_C1R(a.data(), 256, b.data(), 256, map.data(), 256, {256, 256}, cmpOp), vemiOk);
    EXPECT_TRUE(map == expected) << "operator " << cmpOp;
    for (int value = 0; value < 256; ++value) {  // row `value` of b holds this constant alone
      const ptrdiff_t row = 256 * value;
      EXPECT_EQ(vemiCompareC_8u_C1R(a.data(), 256, static_cast<Vemi8u>(value), map.data(), 256, {256, 1}, cmpOp),
                vemiOk);
      EXPECT_TRUE(std::equal(map.begin(), map.begin() + 256, expected.begin() + row)) << value << ", op " << cmpOp;
    }
  }
}

TEST(Compare, EveryValueOf16sWithConstants) {
  std::vector<Vemi16s> all(65536);
  std::vector<Vemi8u> map(65536), expected(65536);
  std::iota(all.begin(), all.end(), Vemi16s{-32768});
  for (const Vemi16s value : around16sPowersOfTwo()) {
    for (const int cmpOp : operators) {
      std::transform(all.begin(), all.end(), expected.begin(),
                     [&](Vemi16s x) { return holds(cmpOp, x, value) ? 255 : 0; });
      EXPECT_EQ(vemiCompareC_16s_C1R(all.data(), 512, value, map.data(), 256, {256, 256}, cmpOp), vemiOk);
      EXPECT_TRUE(map == expected) << "value " << value << ", operator " << cmpOp;
    }
  }
}

// Every way in which the channels of a pixel can agree or not, in every place of a block.
TEST(Compare, AllChannelsDecide) {
  constexpr int width = 300;
  for (int agreeing = 0; agreeing < 16; ++agreeing) {
    std::vector<Vemi8u> a(4 * width, 9), b(4 * width, 9), map(width);
    for (size_t n = 0; n < a.size(); ++n) b[n] = static_cast<Vemi8u>((agreeing >> n % 4 & 1) != 0 ? 9 : 9 + n % 5 + 1);
    const auto expectAll = [&](bool expected, const char* text) {
      EXPECT_EQ(std::count(map.begin(), map.end(), expected ? 255 : 0), width) << text << ", channels " << agreeing;
    };
    EXPECT_EQ(vemiCompare_8u_C4R(a.data(), 1200, b.data(), 1200, map.data(), width, {width, 1}, vemiCmpEq), vemiOk);
    expectAll(agreeing == 15, "C4");
    EXPECT_EQ(vemiCompare_8u_AC4R(a.data(), 1200, b.data(), 1200, map.data(), width, {width, 1}, vemiCmpEq), vemiOk);
    expectAll((agreeing & 7) == 7, "AC4");
    for (size_t n = 0; n < 3 * width; ++n) b[n] = (agreeing >> n % 3 & 1) != 0 ? 9 : 200;
    EXPECT_EQ(vemiCompare_8u_C3R(a.data(), 900, b.data(), 900, map.data(), width, {width, 1}, vemiCmpEq), vemiOk);
    expectAll((agreeing & 7) == 7, "C3");
  }
}

TEST(Compare, OperatorsThatDoNotExistWriteNothing) {
  for (const char* const operation : {"vemiCompare", "vemiCompareC"}) {
    for (const Export* const function : membersOf(operation)) {
      for (const int cmpOp : {5, 7, -1, INT_MAX, INT_MIN}) {
        Call call(*function, {});
        call.set("cmpOp", cmpOp);
        EXPECT_EQ(call.invoke(), vemiOk) << function->name;
        EXPECT_EQ(call.difference(), "");
        call.set("cmpOp", cmpOp);
        call.set("dstStep", 0);
        EXPECT_EQ(call.invoke(), vemiErrStep) << function->name;
      }
    }
  }
}

TEST(Compare, NothingHoldsForNaN) {
  const Vemi32f a[4] = {NAN, 1, NAN, 1}, b[4] = {1, NAN, NAN, 1};
  for (const int cmpOp : operators) {
    const Vemi8u last = holds(cmpOp, 1, 1) ? 255 : 0;
    const std::vector<Vemi8u> expected = {0, 0, 0, last};
    std::vector<Vemi8u> map(4);
    EXPECT_EQ(vemiCompare_32f_C1R(a, 16, b, 16, map.data(), 4, {4, 1}, cmpOp), vemiOk);
    EXPECT_EQ(map, expected) << "operator " << cmpOp;
    EXPECT_EQ(vemiCompareC_32f_C1R(a, 16, NAN, map.data(), 4, {4, 1}, cmpOp), vemiOk);
    EXPECT_EQ(map, std::vector<Vemi8u>(4, 0)) << "operator " << cmpOp;
  }
}

TEST(CompareEqualEps, TheDifferenceIsRounded) {
  const Vemi32f a[6] = {1, 1, 16777216, INFINITY, INFINITY, -0.0f}, b[6] = {1.5f, 1.5000001f, -1.5f, INFINITY, 1, 0};
  const auto map = [&](Vemi32f eps) {
    std::vector<Vemi8u> result(6);
    EXPECT_EQ(vemiCompareEqualEps_32f_C1R(a, 24, b, 24, result.data(), 6, {6, 1}, eps), vemiOk);
    return result;
  };
  EXPECT_EQ(map(0.5f), (std::vector<Vemi8u>{255, 0, 0, 0, 0, 255}));
  EXPECT_EQ(map(16777218), (std::vector<Vemi8u>{255, 255, 255, 0, 0, 255}));  // 16777217.5 is no float
  EXPECT_EQ(map(INFINITY), (std::vector<Vemi8u>{255, 255, 255, 0, 255, 255}));
  EXPECT_EQ(map(-0.0f), (std::vector<Vemi8u>{0, 0, 0, 0, 0, 255}));
}

// Large enough that the map is written past the caches.
TEST(Compare, LargeImages) {
  const VemiSize size = {2500, 2600};
  std::vector<Vemi8u> a(6500000), map(a.size() + 16, 7);
  for (size_t n = 0; n < a.size(); ++n) a[n] = static_cast<Vemi8u>(n * n >> 7);
  for (const size_t shift : {size_t{0}, size_t{5}}) {
    Vemi8u* const destination = map.data() + shift;
    EXPECT_EQ(vemiCompare_8u_C1R(a.data(), 2500, a.data() + 1, 2499, destination, 2500, size, vemiCmpLess), vemiOk);
    size_t wrong = 0;
    for (size_t n = 0; n < a.size(); ++n) wrong += destination[n] != (a[n] < a[n - n / 2500 + 1] ? 255 : 0);
    EXPECT_EQ(wrong, 0u);
    EXPECT_EQ(destination[a.size()], 7);
    map.assign(map.size(), 7);
  }
}

// The same of pixels with several channels, whose maps are put together.
TEST(Compare, LargeImagesOfSeveralChannels) {
  constexpr VemiSize size = {1283, 1100};
  static_assert(ptrdiff_t{13} * size.width * size.height >= vemi::streamedTraffic);
  expectCall(*membersOf("vemiCompare", "32f_C3R").front(), {size, Rows::contiguous}, compared);
  expectCall(*membersOf("vemiCompareC", "32f_C3R").front(), {size, Rows::odd}, compared);
  expectCall(*membersOf("vemiCompareC", "32f_AC4R").front(), {size, Rows::odd}, compared);
}
