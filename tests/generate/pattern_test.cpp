// vemiImageRamp, vemiImageJaehne: drawn images.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

// ---- Ramps ----

double topOf(Element element) {
  switch (element) {
    case Element::u8:
      return 255;
    case Element::s8:
      return 127;
    case Element::u16:
      return 65535;
    case Element::s16:
      return 32767;
    default:
      return 2147483647;
  }
}

bool isUnsigned(Element element) { return element == Element::u8 || element == Element::u16; }

int64_t rounded(Element element, float v) {
  const double top = topOf(element), bottom = isUnsigned(element) ? 0 : -top - 1;
  const float limit = element == Element::s32 ? 2147483648.0f : static_cast<float>(top - 0.5);
  if (std::isnan(v)) return 0;
  if (v >= limit) return static_cast<int64_t>(top);
  if (v < bottom) return static_cast<int64_t>(bottom);
  const volatile float magnified = v > 0 || isUnsigned(element) ? v + 0.5f : v - 0.5f;
  return static_cast<int64_t>(magnified);
}

void ramp(Call& call) {
  const View image = call.destination();
  const auto offset = call.get<float>("offset"), slope = call.get<float>("slope");
  const int axis = call.get<int>("axis");
  call.anyNaN = true;
  if (axis == 3) return;
  call.forEachElement([&](int x, int y, int channel) {
    const int64_t k = axis == vemiRampHorizontal ? x : axis == vemiRampVertical ? y : int64_t{x} * y;
    const volatile float product = static_cast<float>(k) * slope;
    const volatile float v = product + offset;
    if (image.element == Element::f32) {
      store<float>(image.at(x, y, channel), v);
    } else {
      storeSaturated(image.element, image.at(x, y, channel), rounded(image.element, v));
    }
  });
}

template <class T>
using Ramp = VemiStatus(T* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope, int axis);

template <class T>
T pixelOf(Ramp<T>* function, float offset) {
  T pixel = 77;
  EXPECT_EQ(function(&pixel, 1, {1, 1}, offset, 0, vemiRampVertical), vemiOk);
  return pixel;
}

/// Values around the ends of a type and around ties, from the definition.
template <class T>
void expectLimits(Ramp<T>* function) {
  const auto low = static_cast<float>(std::numeric_limits<T>::lowest());
  const auto high = static_cast<float>(std::numeric_limits<T>::max());
  for (const float centre : {low, -1.0f, 0.0f, 1.0f, 8388607.0f, high, -3e9f, 3e9f, 1e20f, -1e20f}) {
    for (const float step : {-1.0f, -0.5f, -0.25f, 0.0f, 0.25f, 0.49999997f, 0.5f, 1.0f}) {
      const float v = centre + step;
      for (const float value : {v, std::nextafter(v, -INFINITY), std::nextafter(v, INFINITY)}) {
        EXPECT_EQ(pixelOf<T>(function, value), static_cast<T>(rounded(elementOf<T>, value))) << value;
      }
    }
  }
  for (const float nan : {NAN, -NAN}) EXPECT_EQ(pixelOf<T>(function, nan), T{0});
  EXPECT_EQ(pixelOf<T>(function, INFINITY), std::numeric_limits<T>::max());
  EXPECT_EQ(pixelOf<T>(function, -INFINITY), std::numeric_limits<T>::lowest());
}

}  // namespace

TEST(ImageRamp, EveryMember) { expectDefinition(membersOf("vemiImageRamp"), ramp); }

TEST(ImageRamp, LimitsAndTies) {
  expectLimits<Vemi8u>(vemiImageRamp_8u_C1R);
  expectLimits<Vemi8s>(vemiImageRamp_8s_C1R);
  expectLimits<Vemi16u>(vemiImageRamp_16u_C1R);
  expectLimits<Vemi16s>(vemiImageRamp_16s_C1R);
  expectLimits<Vemi32s>(vemiImageRamp_32s_C1R);
  EXPECT_EQ(pixelOf<Vemi8u>(vemiImageRamp_8u_C1R, 254.5f), 255);
  EXPECT_EQ(pixelOf<Vemi8u>(vemiImageRamp_8u_C1R, -0.1f), 0);
  EXPECT_EQ(pixelOf<Vemi8u>(vemiImageRamp_8u_C1R, 0.5f), 1);
  EXPECT_EQ(pixelOf<Vemi8u>(vemiImageRamp_8u_C1R, 0.49999997f), 1);  // its sum with one half rounds to 1
  EXPECT_EQ(pixelOf<Vemi16s>(vemiImageRamp_16s_C1R, -2.5f), -3);
  for (const int sign : {1, -1}) {
    const auto of32s = [=](int v) {
      return sign * pixelOf<Vemi32s>(vemiImageRamp_32s_C1R, static_cast<float>(sign * v));
    };
    EXPECT_EQ(of32s(8388608), 8388608);
    EXPECT_EQ(of32s(8388609), 8388610);  // no half is left to single precision
    EXPECT_EQ(of32s(16777215), 16777216);
    EXPECT_EQ(of32s(16777218), 16777218);
  }
}

// Columns and products that single precision does not hold are rounded once.
TEST(ImageRamp, LargeIndicesRoundOnce) {
  constexpr int width = (1 << 24) + 5000, height = 130;
  std::vector<Vemi32f> row(width + height);
  const auto expectRow = [&](int axis, int y) {
    for (int x = width - 6000; x < width; ++x) {
      const int64_t k = axis == vemiRampHorizontal ? x : int64_t{x} * y;
      ASSERT_EQ(row[static_cast<size_t>(x + (axis == vemiRampHorizontal ? 0 : y))], static_cast<float>(k)) << x;
    }
  };
  EXPECT_EQ(vemiImageRamp_32f_C1R(row.data(), 4, {width, 1}, 0, 1, vemiRampHorizontal), vemiOk);
  expectRow(vemiRampHorizontal, 0);
  // Rows that lie over each other, so that the last one is whole. The products of the taller image take over 31 bits.
  for (const int rows : {4, 130}) {
    EXPECT_EQ(vemiImageRamp_32f_C1R(row.data(), 4, {width, rows}, 0, 1, vemiRampBoth), vemiOk);
    expectRow(vemiRampBoth, rows - 1);
  }
}

TEST(ImageRamp, ReportsMissingMemory) {
  const NoMemory noMemory;
  Vemi8u pixel[8] = {};
  EXPECT_EQ(vemiImageRamp_8u_C4R(pixel, 8, {2, 1}, 9, 1, vemiRampHorizontal), vemiErrMemAlloc);
  EXPECT_EQ(pixel[0], 0);
  EXPECT_EQ(noMemory.requests(), 1);
  EXPECT_EQ(vemiImageRamp_8u_C4R(pixel, 8, {2, 1}, 9, 1, vemiRampBoth), vemiOk);
  EXPECT_EQ(pixel[0], 9);
}

// ---- The chirp ----

namespace {

void chirp(Call& call) {
  const View image = call.destination();
  const int W = image.size.width, H = image.size.height;
  call.forEachElement([&](int x, int y, int channel) {
    const double dx = x - 0.5 * (W - 1), dy = y - 0.5 * (H - 1);
    const volatile double a = (dx * dx + dy * dy) * 6.283185307179586 / (4.0 * H);
    const volatile double s = std::sin(a), shifted = s + 1.0;
    const auto put = [&](double value) {
      storeSaturated(image.element, image.at(x, y, channel), static_cast<int64_t>(value));
    };
    switch (image.element) {
      case Element::u8:
        return put(shifted * 127.99999);
      case Element::s8:
        return put(s * 127.99999);
      case Element::u16:
        return put(shifted * 32767.99999);
      case Element::s16:
        return put(s * 32767.99999);
      case Element::s32:
        return put(s * 2147483647.99999);
      default:
        return store(image.at(x, y, channel), static_cast<float>(shifted * 0.49999));
    }
  });
}

}  // namespace

TEST(ImageJaehne, EveryMember) { expectDefinition(membersOf("vemiImageJaehne"), chirp); }

// Pieces of a row, and angles of many millions of turns.
TEST(ImageJaehne, LargeRegions) {
  for (const char* members : {"8u_C1R", "32s_AC4R", "32f_C3R"}) {
    for (const VemiSize size : {VemiSize{2051, 3}, VemiSize{1500, 1501}, VemiSize{60000, 1}}) {
      expectCall(*membersOf("vemiImageJaehne", members).front(), {size}, chirp);
    }
  }
}

TEST(ImageJaehne, OnePixelIsTheMiddle) {
  Vemi8u pixel = 0;
  EXPECT_EQ(vemiImageJaehne_8u_C1R(&pixel, 1, {1, 1}), vemiOk);
  EXPECT_EQ(pixel, 127);
}
