// vemiFilter, vemiFilterRow, vemiFilterColumn and their forms with taps of floats.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "filter/integers_in_every_mode.h"
#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

struct Window {
  VemiSize size;
  VemiPoint anchor;

  explicit Window(Call& call) {
    const std::string& name = call.function.name;
    if (name.find("Row") != std::string::npos) {
      size = {call.get<int>("kernelSize"), 1}, anchor = {call.get<int>("xAnchor"), 0};
    } else if (name.find("Column") != std::string::npos) {
      size = {1, call.get<int>("kernelSize")}, anchor = {0, call.get<int>("yAnchor")};
    } else {
      size = call.get<VemiSize>("kernelSize"), anchor = call.get<VemiPoint>("anchor");
    }
  }
};

/// result(x, y, sum), where the sum is that over the window's pixels from its top left on, whose tap is the last.
template <class Sum, class Tap, class Result>
void forSums(Call& call, const Window& window, int channel, Tap tap, Result result) {
  const View source = call.source();
  const int width = window.size.width, height = window.size.height, columns = source.size.width + width - 1;
  std::vector<Sum> pixels, taps;
  for (int y = 0; y < source.size.height + height - 1; ++y) {
    for (int x = 0; x < columns; ++x) {
      const std::byte* const place =
          source.at(x + window.anchor.x - width + 1, y + window.anchor.y - height + 1, channel);
      pixels.push_back(static_cast<Sum>(loadNumber(source.element, place)));
    }
  }
  for (int k = width * height; k-- > 0;) taps.push_back(static_cast<Sum>(tap(k)));
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      Sum sum = 0;
      for (int j = 0; j < height; ++j) {
        const Sum* const row = &pixels[static_cast<size_t>((y + j) * columns + x)];
        for (int i = 0; i < width; ++i) sum += row[i] * taps[static_cast<size_t>(j * width + i)];
      }
      result(x, y, sum);
    }
  }
}

int64_t nearest(float value) { return std::llrint(std::clamp(value, -1e6f, 1e6f)); }

/// Of a sum of bytes.
int64_t quotient(int32_t sum, int divisor) {
  for (int n = 0; n < 31; ++n) {
    if (divisor == 1 << n) return n == 0 ? sum : (sum + (int64_t{1} << (n - 1))) >> n;
  }
  return nearest(static_cast<float>(sum) * static_cast<float>(1.0 / divisor));
}

void convolution(Call& call) {
  call.anyNaN = true;
  const Window window(call);
  const View source = call.source(), destination = call.destination(), taps = call.array("pKernel");
  if ((source.size.width + window.size.width - 1) * source.pixelBytes > source.step[0]) {  // rows that overlap
    call.expectedStatus = vemiErrStep;
    return;
  }
  const auto integerTap = [&](int k) { return loadInteger(Element::s32, taps.at(k, 0)); };
  const auto floatTap = [&](int k) { return load<float>(taps.at(k, 0)); };
  const int divisor = call.function.indexOf("divisor") < 0 ? 0 : call.get<int>("divisor");
  const auto r = static_cast<float>(1.0 / divisor);
  const auto scaledTap = [&](int k) { return static_cast<float>(integerTap(k)) * r; };
  for (int channel = 0; channel < destination.channels; ++channel) {
    const auto to = [&](int x, int y) { return destination.at(x, y, channel); };
    const auto storeFloat = [&](int x, int y, float sum) {
      if (source.element == Element::f32) return store(to(x, y), sum);
      storeSaturated(source.element, to(x, y), nearest(sum));
    };
    if (divisor == 0) {
      forSums<float>(call, window, channel, floatTap, storeFloat);
    } else if (source.element == Element::u8) {
      forSums<uint32_t>(call, window, channel, integerTap, [&](int x, int y, uint32_t sum) {
        storeSaturated(source.element, to(x, y), quotient(static_cast<int32_t>(sum), divisor));
      });
    } else {
      forSums<float>(call, window, channel, scaledTap, storeFloat);
    }
  }
}

}  // namespace

TEST(Linear, EveryMember) {
  for (const char* const operation : {"vemiFilter", "vemiFilterRow", "vemiFilterColumn"}) {
    expectDefinition(membersOf(operation), convolution);
  }
}

TEST(Linear, FloatTapsOnIntegers) {
  for (const char* const operation : {"vemiFilter32f", "vemiFilterRow32f", "vemiFilterColumn32f"}) {
    expectDefinition(membersOf(operation), convolution);
  }
}

TEST(Linear, IntegersInEveryRoundingMode) {
  for (const char* const operation : {"vemiFilter", "vemiFilterRow", "vemiFilterColumn", "vemiFilter32f",
                                      "vemiFilterRow32f", "vemiFilterColumn32f"}) {
    expectToNearestInEveryMode(membersOf(operation, "(8u|16s)_.*"), convolution);
  }
}

// One tap on a pixel of 1: powers of two round halves up, all else to even; sums wrap.
TEST(Linear, Division) {
  const auto quotientOf = [](Vemi32s tap, int divisor) {
    const Vemi8u one = 1;
    Vemi8u result = 99;
    EXPECT_EQ(vemiFilter_8u_C1R(&one, 1, &result, 1, {1, 1}, &tap, {1, 1}, {0, 0}, divisor), vemiOk);
    return static_cast<int>(result);
  };
  EXPECT_EQ(quotientOf(3, 2), 2);
  EXPECT_EQ(quotientOf(5, 2), 3);
  EXPECT_EQ(quotientOf(-5, -2), 2);
  EXPECT_EQ(quotientOf(-7, -2), 4);
  EXPECT_EQ(quotientOf(5, -2), 0);
  EXPECT_EQ(quotientOf(INT32_MIN, INT32_MIN), 1);
  EXPECT_EQ(quotientOf(INT32_MAX, 2), 255);
  EXPECT_EQ(quotientOf(INT32_MAX, 1 << 30), 2);
  const Vemi8u two = 2;
  const Vemi32s half = 1 << 30;
  Vemi8u result = 99;
  EXPECT_EQ(vemiFilterRow_8u_C1R(&two, 1, &result, 1, {1, 1}, &half, 1, 0, 1), vemiOk);
  EXPECT_EQ(result, 0);
}

// White pixels, and taps on both sides of what sums and factors of 16 bits hold.
TEST(Linear, TapsBeside16Bits) {
  const std::vector<Vemi8u> white(41, 255);
  for (const Vemi32s tap : {257, 258, -257, -258, 32767, 32768, -32768, -32769}) {
    const Vemi32s taps[2] = {tap, 0};
    for (const int divisor : {1, 256, 65536, 1 << 20, 300, 40000, -256, -65536}) {
      Vemi8u expected = 0;
      storeSaturated(Element::u8, reinterpret_cast<std::byte*>(&expected), quotient(255 * tap, divisor));
      std::vector<Vemi8u> result(40);
      ASSERT_EQ(vemiFilterRow_8u_C1R(white.data() + 1, 41, result.data(), 40, {40, 1}, taps, 2, 0, divisor), vemiOk);
      EXPECT_EQ(result, std::vector<Vemi8u>(40, expected)) << tap << " / " << divisor;
    }
  }
}

// The first tap meets the right neighbour, the last one the left.
TEST(Linear, TheKernelIsTurned) {
  const Vemi8u pixels[5] = {0, 0, 1, 0, 0};
  const Vemi32f taps[3] = {10, 20, 30};
  Vemi8u result[3];
  EXPECT_EQ(vemiFilterRow32f_8u_C1R(pixels + 1, 5, result, 3, {3, 1}, taps, 3, 1), vemiOk);
  EXPECT_EQ(result[0], 10);
  EXPECT_EQ(result[1], 20);
  EXPECT_EQ(result[2], 30);
}
