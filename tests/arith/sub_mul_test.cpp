// vemiSub, vemiMul and their forms with constants, of real elements.

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "arith/scaled_reference.h"
#include "support/check.h"
#include "support/values.h"

using namespace vemi::test;

namespace {

struct Operation {
  int64_t (*exact)(int64_t left, int64_t right, Element element);
  float (*single)(float left, float right);
};

/// Of 8u, a difference below zero is zero, whatever the scale.
const Operation difference = {
    [](int64_t a, int64_t b, Element e) { return e == Element::u8 ? std::max<int64_t>(a - b, 0) : a - b; },
    [](float a, float b) { return a - b; }};
const Operation product = {[](int64_t a, int64_t b, Element) { return a * b; }, [](float a, float b) { return a * b; }};

void storeResult(Call& call, const Operation& operation, std::byte* result, const std::byte* left,
                 const std::byte* right, Element element) {
  if (element == Element::f32) {
    store(result, operation.single(load<float>(left), load<float>(right)));
    call.anyNaN = true;
  } else {
    const int64_t exact = operation.exact(loadInteger(element, left), loadInteger(element, right), element);
    storeSaturated(element, result, scaled(exact, call.scenario.scaleFactor));
  }
}

/// The second source is the left operand; in place it is the destination.
Reference ofTwo(const Operation& operation) {
  return [&operation](Call& call) {
    const View right = call.source(0), left = call.source(1), result = call.destination();
    call.forEachElement([&](int x, int y, int channel) {
      storeResult(call, operation, result.at(x, y, channel), left.at(x, y, channel), right.at(x, y, channel),
                  result.element);
    });
  };
}

Reference withConstant(const Operation& operation) {
  return [&operation](Call& call) {
    const View left = call.source(), result = call.destination();
    call.forEachElement([&](int x, int y, int channel) {
      storeResult(call, operation, result.at(x, y, channel), left.at(x, y, channel), call.constant(channel),
                  result.element);
    });
  };
}

constexpr const char* integers = "(8u|16s)_.*";
constexpr const char* floats = "32f_.*";

template <class T>
using OfTwo = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize, int);
template <class T>
using WithConstant = VemiStatus(const T*, int, T, T*, int, VemiSize, int);

/// All pairs of the given numbers at all scale factors, as two images and with each number as the constant.
template <class T>
void expectAllPairs(const Operation& operation, OfTwo<T>* ofTwoImages, WithConstant<T>* constantForm,
                    const std::vector<T>& numbers) {
  const size_t count = numbers.size();
  std::vector<T> left, right, result(count * count), expected(count * count);
  for (const T a : numbers) {
    for (const T b : numbers) {
      right.push_back(a);  // the same in a row
      left.push_back(b);
    }
  }
  const int width = static_cast<int>(count), step = width * static_cast<int>(sizeof(T));
  for (const int scaleFactor : allScaleFactors()) {
    for (size_t n = 0; n < expected.size(); ++n) {
      const int64_t exact = operation.exact(left[n], right[n], elementOf<T>);
      expected[n] = static_cast<T>(std::clamp<int64_t>(scaled(exact, scaleFactor), std::numeric_limits<T>::min(),
                                                       std::numeric_limits<T>::max()));
    }
    EXPECT_EQ(ofTwoImages(right.data(), step, left.data(), step, result.data(), step, {width, width}, scaleFactor),
              vemiOk);
    EXPECT_TRUE(result == expected) << "two images, scaleFactor " << scaleFactor;
    std::fill(result.begin(), result.end(), T{77});
    for (size_t n = 0; n < count; ++n) {
      const size_t row = n * count;
      EXPECT_EQ(constantForm(&left[row], step, numbers[n], &result[row], step, {width, 1}, scaleFactor), vemiOk);
    }
    EXPECT_TRUE(result == expected) << "constants, scaleFactor " << scaleFactor;
  }
}

std::vector<Vemi8u> all8u() {
  std::vector<Vemi8u> all(256);
  std::iota(all.begin(), all.end(), Vemi8u{0});
  return all;
}

}  // namespace

TEST(Sub, EveryIntegerMember) {
  expectDefinition(membersOf("vemiSub", integers), ofTwo(difference), allScaleFactors());
  expectDefinition(membersOf("vemiSubC", integers), withConstant(difference), allScaleFactors());
}

TEST(Sub, EveryFloatMember) {
  expectDefinition(membersOf("vemiSub", floats), ofTwo(difference));
  expectDefinition(membersOf("vemiSubC", floats), withConstant(difference));
}

TEST(Mul, EveryIntegerMember) {
  expectDefinition(membersOf("vemiMul", integers), ofTwo(product), allScaleFactors());
  expectDefinition(membersOf("vemiMulC", integers), withConstant(product), allScaleFactors());
}

TEST(Mul, EveryFloatMember) {
  expectDefinition(membersOf("vemiMul", floats), ofTwo(product));
  expectDefinition(membersOf("vemiMulC", floats), withConstant(product));
}

TEST(Sub, AllPairsOf8u) { expectAllPairs(difference, vemiSub_8u_C1RSfs, vemiSubC_8u_C1RSfs, all8u()); }

TEST(Mul, AllPairsOf8u) { expectAllPairs(product, vemiMul_8u_C1RSfs, vemiMulC_8u_C1RSfs, all8u()); }

TEST(Sub, PairsOf16sAroundPowersOfTwo) {
  expectAllPairs(difference, vemiSub_16s_C1RSfs, vemiSubC_16s_C1RSfs, around16sPowersOfTwo());
}

TEST(Mul, PairsOf16sAroundPowersOfTwo) {
  expectAllPairs(product, vemiMul_16s_C1RSfs, vemiMulC_16s_C1RSfs, around16sPowersOfTwo());
}
