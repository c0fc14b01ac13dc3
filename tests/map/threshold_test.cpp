// vemiThreshold and its forms.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <vector>

#include "core/streaming.h"
#include "support/check.h"
#include "support/values.h"

using namespace vemi::test;

namespace {

/// The element that takes the place of x: one of the constants, or x itself.
const std::byte* chosen(Call& call, const std::byte* x, Element element, int channel) {
  const double value = loadNumber(element, x);
  const auto isBelow = [&](const char* threshold) {
    return value < loadNumber(element, call.constant(threshold, channel));
  };
  const auto isAbove = [&](const char* threshold) {
    return value > loadNumber(element, call.constant(threshold, channel));
  };
  const std::string& operation = call.function.operation;
  if (operation == "vemiThreshold_LTValGTVal") {
    if (isBelow("thresholdLT")) return call.constant("valueLT", channel);
    return isAbove("thresholdGT") ? call.constant("valueGT", channel) : x;
  }
  const bool hasOperator = call.function.indexOf("cmpOp") >= 0;
  const bool less = hasOperator ? call.get<int>("cmpOp") == vemiCmpLess : operation.find("_LT") != std::string::npos;
  const char* const replacement = call.function.indexOf("value") >= 0 ? "value" : "threshold";
  return (less ? isBelow("threshold") : isAbove("threshold")) ? call.constant(replacement, channel) : x;
}

void thresholded(Call& call) {
  const View source = call.source(), destination = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    const std::byte* const from = chosen(call, source.at(x, y, channel), source.element, channel);
    std::memcpy(destination.at(x, y, channel), from, static_cast<size_t>(bytesOf(source.element)));
  });
}

template <class T>
std::vector<T> everyValue() {
  std::vector<T> all(size_t{1} << (8 * sizeof(T)));
  std::iota(all.begin(), all.end(), std::numeric_limits<T>::min());
  return all;
}

/// Calls run(source, step, destination, step, size) on all values of the type, and compares with definition(x).
template <class T, class Run, class Definition>
void expectEveryValue(const Run& run, const Definition& definition, const std::string& text) {
  static const std::vector<T> all = everyValue<T>();
  std::vector<T> result(all.size()), expected(all.size());
  std::transform(all.begin(), all.end(), expected.begin(), definition);
  const int step = 256 * static_cast<int>(sizeof(T));
  EXPECT_EQ(run(all.data(), step, result.data(), step, VemiSize{256, static_cast<int>(all.size() / 256)}), vemiOk);
  EXPECT_TRUE(result == expected) << text;
}

template <class T>
using OneConstant = VemiStatus(const T*, int, T*, int, VemiSize, T);
template <class T>
using TwoConstants = VemiStatus(const T*, int, T*, int, VemiSize, T, T);

template <class T>
void expectEveryValue(OneConstant<T>* lt, OneConstant<T>* gt, TwoConstants<T>* ltVal, TwoConstants<T>* gtVal, T t,
                      T v) {
  const std::string text = "threshold " + std::to_string(t);
  const auto below = [=](T x) { return x < t; };
  const auto above = [=](T x) { return x > t; };
  expectEveryValue<T>([=](auto... image) { return lt(image..., t); }, [=](T x) { return below(x) ? t : x; }, text);
  expectEveryValue<T>([=](auto... image) { return gt(image..., t); }, [=](T x) { return above(x) ? t : x; }, text);
  expectEveryValue<T>([=](auto... image) { return ltVal(image..., t, v); }, [=](T x) { return below(x) ? v : x; },
                      text);
  expectEveryValue<T>([=](auto... image) { return gtVal(image..., t, v); }, [=](T x) { return above(x) ? v : x; },
                      text);
}

}  // namespace

TEST(Threshold, EveryMember) {
  for (const char* const mode : {"", "_LT", "_GT", "_Val", "_LTVal", "_GTVal", "_LTValGTVal"}) {
    expectDefinition(membersOf(std::string("vemiThreshold") + mode), thresholded);
  }
}

TEST(Threshold, EveryValueOf8u) {
  for (int n = 0; n < 256; ++n) {
    expectEveryValue(vemiThreshold_LT_8u_C1R, vemiThreshold_GT_8u_C1R, vemiThreshold_LTVal_8u_C1R,
                     vemiThreshold_GTVal_8u_C1R, static_cast<Vemi8u>(n), static_cast<Vemi8u>(n * 7 + 3));
  }
}

TEST(Threshold, EveryValueOf16s) {
  for (const Vemi16s t : around16sPowersOfTwo()) {
    expectEveryValue(vemiThreshold_LT_16s_C1R, vemiThreshold_GT_16s_C1R, vemiThreshold_LTVal_16s_C1R,
                     vemiThreshold_GTVal_16s_C1R, t, Vemi16s{1234});
  }
}

TEST(Threshold, EveryValueOf8uInEveryBand) {
  for (int upper = 0; upper < 256; ++upper) {
    for (int lower = 0; lower <= upper; ++lower) {
      const auto low = static_cast<Vemi8u>(lower), high = static_cast<Vemi8u>(upper);
      const auto definition = [=](Vemi8u x) {
        if (x < low) return Vemi8u{77};
        return x > high ? Vemi8u{3} : x;
      };
      expectEveryValue<Vemi8u>(
          [=](auto... image) { return vemiThreshold_LTValGTVal_8u_C1R(image..., low, 77, high, 3); }, definition,
          std::to_string(lower) + " to " + std::to_string(upper));
    }
  }
}

TEST(Threshold, ExamplesOfTheManual) {
  Vemi8u bytes[3] = {200, 50, 100};
  EXPECT_EQ(vemiThreshold_8u_C1IR(bytes, 3, {3, 1}, 100, vemiCmpGreater), vemiOk);
  EXPECT_EQ(std::vector(bytes, bytes + 3), (std::vector<Vemi8u>{100, 50, 100}));
  Vemi16s words[2] = {-10, 10};
  EXPECT_EQ(vemiThreshold_LT_16s_C1IR(words, 4, {2, 1}, -5), vemiOk);
  EXPECT_EQ(std::vector(words, words + 2), (std::vector<Vemi16s>{-5, 10}));
  Vemi8u band[4] = {49, 50, 200, 201};
  EXPECT_EQ(vemiThreshold_LTValGTVal_8u_C1IR(band, 4, {4, 1}, 50, 0, 200, 255), vemiOk);
  EXPECT_EQ(std::vector(band, band + 4), (std::vector<Vemi8u>{0, 50, 200, 255}));
}

// On the bits, since what counts here are the signs of zeros and the contents of NaNs.
TEST(Threshold, SpecialFloatsStayAsTheyAre) {
  constexpr Vemi32u zero = 0, minusZero = 0x80000000u, quiet = 0xffc12345u, signalling = 0x7f812345u, denormal = 1;
  std::vector<Vemi32u> special;
  for (int n = 0; n < 7; ++n) special.insert(special.end(), {zero, minusZero, quiet, signalling, denormal});
  const int step = static_cast<int>(special.size() * 4);
  const auto after = [&](auto run) {
    std::vector<Vemi32f> image(special.size());
    std::memcpy(image.data(), special.data(), special.size() * 4);
    EXPECT_EQ(run(image.data(), step, VemiSize{static_cast<int>(image.size()), 1}), vemiOk);
    std::vector<Vemi32u> bits(image.size());
    std::memcpy(bits.data(), image.data(), bits.size() * 4);
    return bits;
  };
  for (const Vemi32f t : {0.0f, -0.0f}) {
    EXPECT_EQ(after([=](auto... image) { return vemiThreshold_LT_32f_C1IR(image..., t); }), special);
    EXPECT_EQ(after([=](auto... image) { return vemiThreshold_LTVal_32f_C1IR(image..., t, 5); }), special);
  }
  EXPECT_EQ(after([](auto... image) { return vemiThreshold_GT_32f_C1IR(image..., 1); }), special);
  EXPECT_EQ(after([](auto... image) { return vemiThreshold_LT_32f_C1IR(image..., NAN); }), special);
  EXPECT_EQ(after([](auto... image) { return vemiThreshold_GTVal_32f_C1IR(image..., NAN, 5); }), special);
  std::vector<Vemi32u> raised = special;
  for (Vemi32u& bits : raised) {
    if (bits == denormal) bits = minusZero;
  }
  EXPECT_EQ(after([](auto... image) { return vemiThreshold_GT_32f_C1IR(image..., -0.0f); }), raised);
}

// Large enough to be written past the caches. The constants of three channels take turns.
TEST(Threshold, LargeImages) {
  constexpr VemiSize size = {1283, 600};
  static_assert(ptrdiff_t{24} * size.width * size.height >= vemi::streamedTraffic);
  expectCall(*membersOf("vemiThreshold_LTVal", "32f_C3R").front(), {size, Rows::contiguous}, thresholded);
  expectCall(*membersOf("vemiThreshold_LTValGTVal", "32f_C3R").front(), {size, Rows::odd}, thresholded);
}

// The same of four channels, with rows that begin anywhere in a line, and of rows that are shorter than one.
TEST(Threshold, LargeImagesOfFourChannels) {
  const Export& function = *membersOf("vemiThreshold_LTVal", "32f_C4R").front();
  expectCall(function, {{1283, 500}, Rows::padded}, thresholded);
  expectCall(function, {{2, 300000}, Rows::padded}, thresholded);
}
