// vemiFilter, vemiFilterRow, vemiFilterColumn and their forms with taps of floats.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

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

TEST(Linear, KernelsOfTheMembersKind) {
  for (const char* const operation : {"vemiFilter", "vemiFilterRow", "vemiFilterColumn"}) {
    expectDefinition(membersOf(operation), convolution);
  }
}

TEST(Linear, FloatKernelsOnIntegers) {
  for (const char* const operation : {"vemiFilter32f", "vemiFilterRow32f", "vemiFilterColumn32f"}) {
    expectDefinition(membersOf(operation), convolution);
  }
}
