// vemiRGBToGray, vemiColorToGray.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

using Weights = std::vector<float>;

Weights weightsOf(Call& call) {
  if (call.function.indexOf("coeffs") < 0) return {0.299f, 0.587f, 0.114f};
  const View coeffs = call.array("coeffs");
  return {load<float>(coeffs.at(0, 0)), load<float>(coeffs.at(1, 0)), load<float>(coeffs.at(2, 0))};
}

/// Towards zero; what does not fit is the lowest.
int truncated(double value) {
  return value > INT_MIN - 1.0 && value < INT_MAX + 1.0 ? static_cast<int>(value) : INT_MIN;
}

int fixedPoint(float weight) { return truncated(double{weight} * 4096 + 0.5); }

Vemi8u greyOfGroup(const int (&pixel)[3], const int (&weight)[3]) {
  unsigned sum = 0;
  for (int c = 0; c < 3; ++c) {
    const unsigned w = static_cast<Vemi16u>(weight[c]);
    sum = std::min(65535u, sum + ((static_cast<unsigned>(pixel[c]) << 8) * w >> 16));
  }
  return static_cast<Vemi8u>(std::min(255u, sum >> 4));
}

Vemi8u greyOfRest(const int (&pixel)[3], const int (&weight)[3]) {
  int64_t sum = 0;
  for (int c = 0; c < 3; ++c) sum += int64_t{pixel[c]} * weight[c];
  return static_cast<Vemi8u>(sum >> 12);
}

float greyOfFloats(const float (&pixel)[3], const Weights& weight) {
  return weight[0] * pixel[0] + weight[1] * pixel[1] + weight[2] * pixel[2];
}

void grey(Call& call) {
  const View src = call.source(), dst = call.destination();
  const Weights weights = weightsOf(call);
  const Element element = src.element;
  const bool isRGB = call.function.indexOf("coeffs") < 0;
  const int fixed[3] = {isRGB ? 1225 : fixedPoint(weights[0]), isRGB ? 2404 : fixedPoint(weights[1]),
                        isRGB ? 467 : fixedPoint(weights[2])};
  const int lowest = element == Element::s16 ? -32768 : 0;
  call.anyNaN = element == Element::f32;
  call.forEachElement([&](int x, int y, int) {
    int integers[3];
    float floats[3];
    for (int c = 0; c < 3; ++c) {
      if (element == Element::f32) {
        floats[c] = load<float>(src.at(x, y, c));
      } else {
        integers[c] = static_cast<int>(loadInteger(element, src.at(x, y, c)));
        floats[c] = static_cast<float>(integers[c] - lowest);
      }
    }
    std::byte* const result = dst.at(x, y);
    if (element == Element::u8) {
      store(result, x < dst.size.width / 8 * 8 ? greyOfGroup(integers, fixed) : greyOfRest(integers, fixed));
      return;
    }
    const float sum = greyOfFloats(floats, weights);
    if (element == Element::f32) return store(result, sum);
    const int integer = truncated(lowest == 0 ? sum : sum - 32768);
    if (lowest != 0 && x < dst.size.width / 4 * 4) return storeSaturated(element, result, integer);
    store(result, static_cast<Vemi16u>(integer));
  });
}

}  // namespace

TEST(Gray, EveryMember) {
  expectDefinition(membersOf("vemiRGBToGray"), grey);
  expectDefinition(membersOf("vemiColorToGray"), grey);
}

// All colours, as whole groups and in rows of seven, which have none.
TEST(Gray, EveryColour) {
  constexpr int weight[3] = {1225, 2404, 467};
  constexpr size_t pixels = 65536, padded = pixels + 6;
  std::vector<Vemi8u> colours(3 * padded), groups(padded), rest(padded);
  for (int red = 0; red < 256; ++red) {
    for (size_t n = 0; n < pixels; ++n) {
      colours[3 * n] = static_cast<Vemi8u>(red), colours[3 * n + 1] = static_cast<Vemi8u>(n >> 8);
      colours[3 * n + 2] = static_cast<Vemi8u>(n);
    }
    ASSERT_EQ(vemiRGBToGray_8u_C3C1R(colours.data(), 3 * 65536, groups.data(), 65536, {65536, 1}), vemiOk);
    ASSERT_EQ(vemiRGBToGray_8u_C3C1R(colours.data(), 21, rest.data(), 7, {7, padded / 7}), vemiOk);
    for (size_t n = 0; n < pixels; ++n) {
      const int pixel[3] = {red, static_cast<int>(n >> 8), static_cast<int>(n & 255)};
      ASSERT_TRUE(groups[n] == greyOfGroup(pixel, weight) && rest[n] == greyOfRest(pixel, weight))
          << pixel[0] << " " << pixel[1] << " " << pixel[2];
    }
  }
  EXPECT_TRUE(groups.at(pixels - 1) == 254 && rest[pixels - 1] == 255);  // white
}
