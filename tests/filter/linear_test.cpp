// vemiFilter, vemiFilterRow, vemiFilterColumn and their forms with taps of floats.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

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

/// The sum over the window's pixels from its top left on, whose tap is the last.
template <class Sum, class Tap>
Sum sumOf(Call& call, const Window& window, int x, int y, int channel, Tap tap) {
  const View source = call.source();
  Sum sum = 0;
  for (int j = window.size.height - 1; j >= 0; --j) {
    for (int i = window.size.width - 1; i >= 0; --i) {
      const std::byte* const place = source.at(x + window.anchor.x - i, y + window.anchor.y - j, channel);
      sum += static_cast<Sum>(loadNumber(source.element, place)) * static_cast<Sum>(tap(j * window.size.width + i));
    }
  }
  return sum;
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
  call.forEachElement([&](int x, int y, int channel) {
    std::byte* const to = destination.at(x, y, channel);
    if (divisor == 0) {
      const auto sum = sumOf<float>(call, window, x, y, channel, floatTap);
      if (source.element == Element::f32) return store(to, sum);
      return storeSaturated(source.element, to, nearest(sum));
    }
    if (source.element == Element::u8) {
      const auto sum = static_cast<int32_t>(sumOf<uint32_t>(call, window, x, y, channel, integerTap));
      return storeSaturated(source.element, to, quotient(sum, divisor));
    }
    const auto scaled = [&](int k) { return static_cast<float>(integerTap(k)) * r; };
    storeSaturated(source.element, to, nearest(sumOf<float>(call, window, x, y, channel, scaled)));
  });
}

}  // namespace

TEST(Linear, FloatKernels) {
  for (const char* const operation : {"vemiFilter", "vemiFilterRow", "vemiFilterColumn"}) {
    expectDefinition(membersOf(operation, "32f_.*"), convolution);
  }
}
