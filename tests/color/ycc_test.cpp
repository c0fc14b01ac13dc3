// vemiRGBToYCC, vemiYCCToRGB.

#include <algorithm>
#include <cmath>

#include "color/colours.h"

using namespace vemi::test;

namespace {

int mulHigh(int a, int b) { return (a * b) >> 16; }

bool isInGroup(int x, int width) { return x < width / 8 * 8; }

Integers yccOf(Integers rgb, int x, int width) {
  const auto [r, g, b] = rgb;
  if (isInGroup(x, width)) {
    const int l = mulHigh(r << 8, 4898) + mulHigh(g << 8, 9617) + mulHigh(b << 8, 1867);
    return {mulHigh(l, 2921) >> 2, (mulHigh((b << 6) - l, 1789) + 624) >> 2, (mulHigh((r << 6) - l, 2178) + 548) >> 2};
  }
  const int l = 4898 * r + 9617 * g + 1867 * b;
  return {((l >> 10) * 2921) >> 16, ((((b << 14) - l) >> 10) * 1789 >> 16) + 156,
          ((((r << 14) - l) >> 10) * 2178 >> 16) + 137};
}

Integers rgbOfYcc(Integers ycc, int x, int width) {
  const auto [y, c1, c2] = ycc;
  if (isInGroup(x, width)) {
    const int l = mulHigh(y << 8, 5563);
    const int c = mulHigh((c1 - 156) * 128, 18168), d = mulHigh((c2 - 137) * 128, 14921);
    return {(l + d) >> 4, ((l >> 1) + mulHigh(c, -6357) + mulHigh(d, -16679)) >> 3, (l + c) >> 4};
  }
  const int a = 5564 * y, c = 9084 * c1 - 1417104, d = 7460 * c2 - 1022020;
  return {(a + d) >> 12, ((a << 4) - 794 * (c >> 8) - 2084 * (d >> 8)) >> 16, (a + c) >> 12};
}

Floats yccOfFloats(Floats rgb, float k1, float k2) {
  const auto [r, g, b] = rgb;
  const float l = 0.299f * r + 0.587f * g + 0.114f * b;
  return {0.7132668f * l, 0.43686f * (b - l) + k1, 0.53192f * (r - l) + k2};
}

Floats rgbOfYccFloats(Floats ycc, float k1, float k2) {
  const float y = 1.3584f * ycc[0], c = 2.2179f * (ycc[1] - k1), d = 1.8215f * (ycc[2] - k2);
  return {y + d, y - 0.194f * c - 0.509f * d, y + c};
}

/// Of 16u, and of 16s in a range 32768 lower; results are saturated by whoever stores them.
template <class F>
auto ofWords(F convert, int lowest) {
  return ofIntegers([=](Integers v, int, int) {
    Floats floats;
    for (size_t c = 0; c < 3; ++c) floats[c] = static_cast<float>(v[c] - lowest);
    floats = convert(floats, 40092, 35209);
    for (size_t c = 0; c < 3; ++c) v[c] = static_cast<int>(floats[c] + static_cast<float>(lowest));
    return v;
  });
}

Floats limited(Floats v) {
  for (float& each : v) each = each > 0 ? std::min(each, 1.0f) : 0.0f;
  return v;
}

constexpr float k1 = 0.6117647f, k2 = 0.5372549f;

}  // namespace

TEST(YCC, EveryMember) {
  expectDefinition(membersOf("vemiRGBToYCC", "8u.*"), ofIntegers(yccOf));
  expectDefinition(membersOf("vemiYCCToRGB", "8u.*"), ofIntegers(rgbOfYcc));
  expectDefinition(membersOf("vemiRGBToYCC", "16u.*"), ofWords(yccOfFloats, 0));
  expectDefinition(membersOf("vemiYCCToRGB", "16u.*"), ofWords(rgbOfYccFloats, 0));
  expectDefinition(membersOf("vemiRGBToYCC", "16s.*"), ofWords(yccOfFloats, -32768));
  expectDefinition(membersOf("vemiYCCToRGB", "16s.*"), ofWords(rgbOfYccFloats, -32768));
  expectDefinition(membersOf("vemiRGBToYCC", "32f.*"), ofFloats([](Floats v) { return yccOfFloats(v, k1, k2); }));
  expectDefinition(membersOf("vemiYCCToRGB", "32f.*"),
                   ofFloats([](Floats v) { return limited(rgbOfYccFloats(v, k1, k2)); }));
}

// In groups, and in rows of five, which have none.
TEST(YCC, EveryColour) {
  expectEveryColour(vemiRGBToYCC_8u_C3R, yccOf, 0x27af85294bbf32e8);
  expectEveryColour(vemiRGBToYCC_8u_C3R, yccOf, 0x70efab5daf0d88bf, 5);
  expectEveryColour(vemiYCCToRGB_8u_C3R, rgbOfYcc, 0x0537180a02e96743);
  expectEveryColour(vemiYCCToRGB_8u_C3R, rgbOfYcc, 0x1cd6a99c1626fe1c, 5);
}

// Grey has the chroma of its type's zero points, and white comes back.
TEST(YCC, AsTheManualSays) {
  const Vemi32f white[] = {1, 1, 1};
  Vemi32f ycc[3], rgb[3];
  EXPECT_EQ(vemiRGBToYCC_32f_C3R(white, 12, ycc, 12, {1, 1}), vemiOk);
  EXPECT_NEAR(ycc[0], 0.7132668, 1e-6);
  EXPECT_NEAR(ycc[1], k1, 1e-6);
  EXPECT_NEAR(ycc[2], k2, 1e-6);
  EXPECT_EQ(vemiYCCToRGB_32f_C3R(ycc, 12, rgb, 12, {1, 1}), vemiOk);
  for (const float channel : rgb) EXPECT_NEAR(channel, 0.9689, 1e-4);

  const Vemi32f beyond[] = {2, NAN, 0.5f};
  EXPECT_EQ(vemiYCCToRGB_32f_C3R(beyond, 12, rgb, 12, {1, 1}), vemiOk);
  EXPECT_TRUE(rgb[0] == 1 && rgb[1] == 0 && rgb[2] == 0);
}
