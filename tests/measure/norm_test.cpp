// vemiNorm, vemiNormDiff, vemiNormRel.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "measure/reductions_reference.h"

using namespace vemi::test;

namespace {

enum class Kind { inf, l1, l2 };

struct Norm {
  double value;
  double slack;  // how far a fast one may be off, before the factor of allowFastSum
};

Norm normOf(Call& call, Kind kind, const Values& values) {
  if (kind == Kind::inf) {
    double largest = 0;
    forEachPixel(call, [&](int x, int y) { largest = std::fmax(largest, std::fabs(values(x, y))); });
    return {largest, 0};
  }
  const Sum sum = sumOf(
      call, [&](int x, int y) { return kind == Kind::l1 ? std::fabs(values(x, y)) : values(x, y) * values(x, y); });
  const double norm = kind == Kind::l1 ? sum.value : std::sqrt(sum.value);
  return {norm, norm};
}

/// Floats are subtracted in single precision where there is no hint.
Values differenceOf(Call& call, int channel) {
  const Values a = valuesOf(call, channel, 0), b = valuesOf(call, channel, 1);
  const bool single = isFloat(call) && call.function.indexOf("hint") < 0;
  return [=](int x, int y) {
    const double difference = a(x, y) - b(x, y);
    return single ? static_cast<double>(static_cast<float>(difference)) : difference;
  };
}

void allowFast(Call& call, const Norm& norm, double result) {
  call.anyNaN = true;
  if (call.function.indexOf("hint") >= 0) allowFastSum(call, norm.slack, result);
}

Reference norm(Kind kind) {
  return [=](Call& call) {
    prepareFloats(call);
    for (int channel = 0; channel < call.source().channels; ++channel) {
      const Norm norm = normOf(call, kind, valuesOf(call, channel));
      storeResult(call, "pValue", channel, norm.value);
      allowFast(call, norm, norm.value);
    }
  };
}

Reference normDiff(Kind kind) {
  return [=](Call& call) {
    prepareFloats(call);
    for (int channel = 0; channel < call.source().channels; ++channel) {
      const Norm norm = normOf(call, kind, differenceOf(call, channel));
      storeResult(call, "pValue", channel, norm.value);
      allowFast(call, norm, norm.value);
    }
  };
}

Reference normRel(Kind kind) {
  return [=](Call& call) {
    prepareFloats(call);
    const int channels = call.source().channels;
    std::vector<Norm> numerators, denominators;
    for (int channel = 0; channel < channels; ++channel) {
      numerators.push_back(normOf(call, kind, differenceOf(call, channel)));
      denominators.push_back(normOf(call, kind, valuesOf(call, channel, 1)));
      if (denominators.back().value < 2.2250738585072014e-308) call.expectedStatus = vemiWarnDivByZero;
    }
    for (int channel = 0; channel < channels; ++channel) {
      const Norm& numerator = numerators[static_cast<size_t>(channel)];
      const Norm& denominator = denominators[static_cast<size_t>(channel)];
      const bool divided = call.expectedStatus == vemiOk;
      const double result = divided ? numerator.value / denominator.value : numerator.value;
      storeResult(call, "pValue", channel, result);
      allowFast(call, {0, divided ? 2 * result : numerator.slack}, result);
    }
  };
}

constexpr std::pair<const char*, Kind> kinds[] = {{"_Inf", Kind::inf}, {"_L1", Kind::l1}, {"_L2", Kind::l2}};

void expectNorms(const std::string& operation, Reference (*reference)(Kind)) {
  for (const auto& [mode, kind] : kinds) expectDefinition(membersOf(operation + mode), reference(kind));
}

}  // namespace

TEST(Norm, EveryMember) { expectNorms("vemiNorm", norm); }
TEST(NormDiff, EveryMember) { expectNorms("vemiNormDiff", normDiff); }
TEST(NormRel, EveryMember) { expectNorms("vemiNormRel", normRel); }

TEST(Norm, MagnitudesOfTheLowestIntegers) {
  const std::vector<Vemi32s> lowest = {5, -2147483647 - 1, 2147483647};
  double value = 0;
  vemiNorm_Inf_32s_C1R(lowest.data(), 12, {3, 1}, &value);
  EXPECT_EQ(value, 2147483648.0);
  const std::vector<Vemi16s> low(99, Vemi16s(-32768)), high(99, Vemi16s{32767});
  vemiNorm_Inf_16s_C1R(low.data(), 198, {99, 1}, &value);
  EXPECT_EQ(value, 32768);
  vemiNorm_L1_16s_C1R(low.data(), 198, {99, 1}, &value);
  EXPECT_EQ(value, 99 * 32768.0);
  vemiNormDiff_Inf_16s_C1R(low.data(), 198, high.data(), 198, {99, 1}, &value);
  EXPECT_EQ(value, 65535);
  vemiNormDiff_L2_16s_C1R(low.data(), 198, high.data(), 198, {99, 1}, &value);
  EXPECT_EQ(value, std::sqrt(99 * 65535.0 * 65535.0));
}

// Rows one byte apart over the same bytes: more elements than memory.
TEST(Norm, OfRegionsBeyond32Bits) {
  const VemiSize size = {1 << 20, 1 << 12};
  const double pixels = std::ldexp(1, 32);
  const std::vector<Vemi8u> black((1 << 20) + (1 << 12), Vemi8u{0}), white(black.size(), Vemi8u{255});
  double value = 0;
  vemiNorm_L2_8u_C1R(white.data(), 1, size, &value);
  EXPECT_EQ(value, std::sqrt(255 * 255 * pixels));
  vemiNormDiff_L1_8u_C1R(white.data(), 1, black.data(), 1, size, &value);
  EXPECT_EQ(value, 255 * pixels);
  vemiNormDiff_L2_8u_C1R(black.data(), 1, white.data(), 1, size, &value);
  EXPECT_EQ(value, std::sqrt(255 * 255 * pixels));

  const std::vector<Vemi16s> dark((1 << 20) + (1 << 11), Vemi16s(-0x7f80)), bright(dark.size(), Vemi16s{0x7f7f});
  vemiNorm_L1_16s_C1R(dark.data(), 1, size, &value);
  EXPECT_EQ(value, 0x7f80 * pixels);
  vemiNormDiff_L1_16s_C1R(dark.data(), 1, bright.data(), 1, size, &value);
  EXPECT_EQ(value, 0xfeff * pixels);
  vemiNormDiff_L2_16s_C1R(dark.data(), 1, bright.data(), 1, size, &value);  // more than 2^63 of squares
  EXPECT_EQ(value, std::sqrt(static_cast<double>(0xfeffull * 0xfeffull << 32)));
  const VemiSize pixelsOfFour = {1 << 18, 1 << 12};
  double four[4] = {};
  vemiNormDiff_L2_16s_C4R(dark.data(), 1, bright.data(), 1, pixelsOfFour, four);
  for (const double each : four) EXPECT_EQ(each, std::sqrt(static_cast<double>(0xfeffull * 0xfeffull << 30)));
  vemiNorm_L2_8u_C4R(white.data(), 1, pixelsOfFour, four);
  for (const double each : four) EXPECT_EQ(each, std::sqrt(255.0 * 255 * (1 << 30)));
}

TEST(NormRel, AZeroUnitLeavesAllChannelsUndivided) {
  const Vemi8u a[] = {1, 2, 3, 4, 5, 6}, b[] = {9, 0, 9, 9, 0, 9};
  double value[3] = {};
  EXPECT_EQ(vemiNormRel_L1_8u_C3R(a, 6, b, 6, {2, 1}, value), vemiWarnDivByZero);
  EXPECT_EQ(value[0], 13);
  EXPECT_EQ(value[1], 7);
  EXPECT_EQ(value[2], 9);
  EXPECT_EQ(vemiNormRel_L2_8u_C1R(a, 6, b + 1, 6, {1, 1}, value), vemiWarnDivByZero);
  EXPECT_EQ(value[0], 1);
  const Vemi32f nothing[] = {-0.0f, 0.0f}, something[] = {3, -4};
  EXPECT_EQ(vemiNormRel_L2_32f_C1R(something, 8, nothing, 8, {2, 1}, value, vemiHintAccurate), vemiWarnDivByZero);
  EXPECT_EQ(value[0], 5);
  EXPECT_EQ(vemiNormRel_Inf_32f_C1R(something, 8, nothing, 8, {2, 1}, value), vemiWarnDivByZero);
  EXPECT_EQ(value[0], 4);
}

// A fast L2 squares in single precision, an accurate one in double.
TEST(Norm, SquaresOfLargeFloats) {
  const Vemi32f large[] = {3e30f};
  double value = 0;
  vemiNorm_L2_32f_C1R(large, 4, {1, 1}, &value, vemiHintFast);
  EXPECT_EQ(value, INFINITY);
  vemiNorm_L2_32f_C1R(large, 4, {1, 1}, &value, vemiHintAccurate);
  EXPECT_EQ(value, static_cast<double>(3e30f));
}

TEST(Norm, InfPassesOverNaN) {
  const Vemi32f values[] = {NAN, -2, NAN}, others[] = {1, NAN, NAN};
  double value = -1;
  vemiNorm_Inf_32f_C1R(values, 12, {3, 1}, &value);
  EXPECT_EQ(value, 2);
  vemiNormDiff_Inf_32f_C1R(values, 12, others, 12, {3, 1}, &value);
  EXPECT_EQ(value, 0);
}
