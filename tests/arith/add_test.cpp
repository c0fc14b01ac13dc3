// vemiAdd and vemiAddC.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "arith/scaled_reference.h"
#include "support/check.h"
#include "support/values.h"

using namespace vemi::test;

namespace {

void storeSum(Call& call, std::byte* sum, const std::byte* a, const std::byte* b, Element element) {
  if (element == Element::f32) {
    store(sum, load<float>(a) + load<float>(b));
    call.anyNaN = true;
  } else {
    const int64_t exact = loadInteger(element, a) + loadInteger(element, b);
    storeSaturated(element, sum, scaled(exact, call.scenario.scaleFactor));
  }
}

void sumOfTwo(Call& call) {
  const View a = call.source(0), b = call.source(1), sum = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    storeSum(call, sum.at(x, y, channel), a.at(x, y, channel), b.at(x, y, channel), sum.element);
  });
}

void sumWithConstant(Call& call) {
  const View a = call.source(), sum = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    storeSum(call, sum.at(x, y, channel), a.at(x, y, channel), call.constant(channel), sum.element);
  });
}

Vemi8u clamped8u(int64_t value) { return static_cast<Vemi8u>(std::clamp<int64_t>(value, 0, 255)); }
Vemi16s clamped16s(int64_t value) { return static_cast<Vemi16s>(std::clamp<int64_t>(value, -32768, 32767)); }

}  // namespace

TEST(Add, EveryIntegerMember) { expectDefinition(membersOf("vemiAdd", "(8u|16s)_.*"), sumOfTwo, allScaleFactors()); }

TEST(Add, EveryFloatMember) { expectDefinition(membersOf("vemiAdd", "32f_.*"), sumOfTwo); }

TEST(AddC, EveryIntegerMember) {
  expectDefinition(membersOf("vemiAddC", "(8u|16s)_.*"), sumWithConstant, allScaleFactors());
}

TEST(AddC, EveryFloatMember) { expectDefinition(membersOf("vemiAddC", "32f_.*"), sumWithConstant); }

// Constants that one scale factor or another settles before any row is looked at.
TEST(AddC, ConstantsThatDecideTheResult) {
  const VemiSize size = {21, 2};
  const auto run = [&](auto function, auto value, int scaleFactor) {
    using T = decltype(value);
    std::vector<T> source(42), result(42, T{77}), expected(42);
    std::iota(source.begin(), source.end(), T{0});
    source[3] = std::numeric_limits<T>::max();
    source[4] = std::numeric_limits<T>::min();
    for (size_t n = 0; n < 42; ++n) {
      storeSaturated(elementOf<T>, reinterpret_cast<std::byte*>(&expected[n]), scaled(source[n] + value, scaleFactor));
    }
    const int step = 21 * static_cast<int>(sizeof(T));
    EXPECT_EQ(function(source.data(), step, value, result.data(), step, size, scaleFactor), vemiOk);
    EXPECT_EQ(result, expected) << "value " << static_cast<int>(value) << ", scaleFactor " << scaleFactor;
  };
  for (const int scaleFactor : allScaleFactors()) {
    for (const int value : {0, 1, 255}) run(vemiAddC_8u_C1RSfs, static_cast<Vemi8u>(value), scaleFactor);
    for (const int value : {0, 1, -1, 32767, -32768}) {
      run(vemiAddC_16s_C1RSfs, static_cast<Vemi16s>(value), scaleFactor);
    }
  }
}

TEST(Add, AllPairsOf8u) {
  std::vector<Vemi8u> a(65536), b(65536), sum(65536), expected(65536);
  for (size_t n = 0; n < a.size(); ++n) {
    a[n] = static_cast<Vemi8u>(n % 256);
    b[n] = static_cast<Vemi8u>(n / 256);
  }
  for (const int scaleFactor : allScaleFactors()) {
    Vemi8u ofSum[511];
    for (int n = 0; n < 511; ++n) ofSum[n] = clamped8u(scaled(n, scaleFactor));
    for (size_t n = 0; n < a.size(); ++n) expected[n] = ofSum[a[n] + b[n]];
    EXPECT_EQ(vemiAdd_8u_C1RSfs(a.data(), 256, b.data(), 256, sum.data(), 256, {256, 256}, scaleFactor), vemiOk);
    EXPECT_TRUE(sum == expected) << "scaleFactor " << scaleFactor;
    for (int value = 0; value < 256; ++value) {  // row `value` of b holds this constant alone
      const size_t row = static_cast<size_t>(value) * 256;
      std::copy_n(a.begin(), 256, sum.begin());
      EXPECT_EQ(vemiAddC_8u_C1IRSfs(static_cast<Vemi8u>(value), sum.data(), 256, {256, 1}, scaleFactor), vemiOk);
      EXPECT_TRUE(std::equal(sum.begin(), sum.begin() + 256, expected.begin() + static_cast<ptrdiff_t>(row)))
          << "value " << value << ", scaleFactor " << scaleFactor;
    }
  }
}

TEST(Add, PairsOf16sAroundPowersOfTwo) {
  const std::vector<Vemi16s> values = around16sPowersOfTwo();
  std::vector<Vemi16s> a, b;
  for (const Vemi16s first : values) {
    for (const Vemi16s second : values) {
      a.push_back(first);
      b.push_back(second);
    }
  }
  std::vector<Vemi16s> sum(a.size()), expected(a.size());
  const int width = static_cast<int>(a.size());
  for (const int scaleFactor : allScaleFactors()) {
    for (size_t n = 0; n < a.size(); ++n) expected[n] = clamped16s(scaled(a[n] + b[n], scaleFactor));
    const int step = 2 * width;
    EXPECT_EQ(vemiAdd_16s_C1RSfs(a.data(), step, b.data(), step, sum.data(), step, {width, 1}, scaleFactor), vemiOk);
    EXPECT_TRUE(sum == expected) << "scaleFactor " << scaleFactor;
  }
}
