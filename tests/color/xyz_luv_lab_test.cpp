// The models of the CIE.

#include <cmath>

#include "color/colours.h"
#include "vemi/vemi.h"

using namespace vemi::test;

namespace {

Floats asFloats(Integers v) { return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])}; }
Integers cutOff(Floats v) { return {static_cast<int>(v[0]), static_cast<int>(v[1]), static_cast<int>(v[2])}; }
float cube(float v) { return v * v * v; }
float cubeRoot(float v) { return static_cast<float>(std::cbrt(static_cast<double>(v))); }

Floats rgbOfXyz(Floats xyz) {
  const auto [x, y, z] = xyz;
  return {3.240479f * x - 1.53715f * y - 0.498535f * z, -0.969256f * x + 1.875991f * y + 0.041556f * z,
          0.055648f * x - 0.204043f * y + 1.057311f * z};
}

Floats xyzOf(Floats rgb) {
  const auto [r, g, b] = rgb;
  return {0.412453f * r + 0.35758f * g + 0.180423f * b, 0.212671f * r + 0.71516f * g + 0.072169f * b,
          0.019334f * r + 0.119193f * g + 0.950227f * b};
}

float limited(float v) { return v > 1 ? 1 : v > 0 ? v : 0; }

Floats limited(Floats v) { return {limited(v[0]), limited(v[1]), limited(v[2])}; }
Floats xyz32fOf(Floats rgb) { return {xyzOf(rgb)[0], xyzOf(rgb)[1], limited(xyzOf(rgb)[2])}; }
Floats rgb32fOfXyz(Floats xyz) { return limited(rgbOfXyz(xyz)); }

/// The 16u conversion, and that of 16s.
template <Floats (*of)(Floats)>
Integers cutOffOf(Integers v, int, int) {
  return cutOff(of(asFloats(v)));
}
template <Integers (*of)(Integers, int, int)>
Integers moved(Integers v, int x, int width) {
  Integers result = of({v[0] + 32768, v[1] + 32768, v[2] + 32768}, x, width);
  for (int& each : result) each = std::clamp(each, 0, 65535) - 32768;
  return result;
}

/// Weights of the whole groups and their shift, then those of the columns that are left.
struct Bytes {
  int group[3][3], shift, rest[3][3];
};
constexpr Bytes toXyz = {{{13515, 11717, 5912}, {6969, 23434, 2365}, {634, 3906, 31137}},
                         15,
                         {{27030, 23434, 11824}, {13937, 46868, 4729}, {1267, 7811, 62274}}};
constexpr Bytes fromXyz = {{{26546, -12591, -4083}, {-7939, 15368, 340}, {456, -1671, 8661}},
                           13,
                           {{212368, -100738, -32671}, {-63521, 122944, 2723}, {3646, -13372, 69291}}};

template <const Bytes& bytes>
Integers ofBytes(Integers v, int x, int width) {
  Integers result;
  for (size_t i = 0; i < 3; ++i) {
    const auto& group = bytes.group[i];
    const auto& rest = bytes.rest[i];
    result[i] = x < width / 8 * 8
                    ? ((group[0] * v[0] + group[1] * v[1]) >> bytes.shift) + ((group[2] * v[2]) >> bytes.shift)
                    : (rest[0] * v[0] + rest[1] * v[1] + rest[2] * v[2]) >> 16;
  }
  return result;
}

// ---- LUV ----

float divisorOf(Floats xyz) { return xyz[0] + 15 * xyz[1] + 3 * xyz[2]; }
constexpr float whiteU = 0.197839f, whiteV = 0.468342f;

Floats luvOf(Floats rgb) {
  const auto [x, y, z] = xyzOf(rgb);
  const float l = y > 0.01f ? 116 * cubeRoot(y) - 16 : 903.3f * y, d = divisorOf({x, y, z});
  const float u = y == 0 ? 0 : 4 * x / d, v = y == 0 ? 0 : 9 * y / d;
  return {l, 13 * l * (u - whiteU), 13 * l * (v - whiteV)};
}

Floats rgbOfShares(float y, float t, float a) {
  const float x = 2.25f * t * a, z = 3 * t - 5 * y - x / 3;
  return rgbOfXyz({x, y, z});
}

Floats rgbOfLuv(Floats luv) {
  const auto [l, u, v] = luv;
  if (l < 9.033f) return {0, 0, 0};
  const float y = cube((l + 16) / 116);
  return limited(rgbOfShares(y, y / (v / (13 * l) + whiteV), u / (13 * l) + whiteU));
}

Integers luvBytesOf(Integers rgb, int column, int width) {
  const auto weighted = [&](int i) {
    return toXyz.group[i][0] * rgb[0] + toXyz.group[i][1] * rgb[1] + toXyz.group[i][2] * rgb[2];
  };
  const int light = (weighted(1) + 16384) >> 15;
  const double y01 = light / 255.0, exact = (y01 > 0.01 ? 116 * std::cbrt(y01) - 16 : 903.3 * y01) * 2.55;
  const int l8 = static_cast<int>(std::lround(exact));
  const auto f = [&](int i) { return static_cast<float>(weighted(i)) * 0x1p-15f; };
  const float x = f(0), y = f(1), z = f(2), l = static_cast<float>(l8);
  const bool inGroup = column < width / 8 * 8;
  float d = divisorOf({x, y, z});
  if (inGroup && d == 0) d = 3;
  const bool noShare = !inGroup && light == 0;
  const float u = noShare ? 0 : 4 * x * reciprocal(d), v = noShare ? 0 : 9 * y * reciprocal(d);
  const float zeroV = inGroup && column % 4 == 2 ? 136.2596f : 136.7939f;
  return {l8, static_cast<int>((u - whiteU) * (3.6723163f * l) + 96.90396f),
          static_cast<int>((v - whiteV) * (4.961832f * l) + zeroV)};
}

Integers luvWordsOf(Integers rgb, int, int) {
  const auto [x, y, z] = xyzOf(asFloats(rgb));
  float l = 903.3f * 1.5259022e-5f * y;
  if (y > 655.35f) {
    const double end = ((static_cast<int>(y) >> 9) + 1) * 512 / 65535.0 + 0.0001;
    const auto t = static_cast<float>(std::cbrt(end)), b = static_cast<float>(1 / end);
    const float e = (y * 1.5259022e-5f - cube(t)) * b;
    float sum = -0.023472032f;
    for (const float term : {0.030178327f, -0.041152265f, 0.061728396f, -1 / 9.0f, 1 / 3.0f, 1.0f})
      sum = sum * e + term;
    l = sum * t * 116 - 16;
  }
  const float d = divisorOf({x, y, z});
  if (d == 0) return {0, 0, 0};
  const float r = refined(d), factor = 13 * l;
  return {static_cast<int>(l * 655.35f), static_cast<int>(((4 * x * r - whiteU) * factor + 134) * 185.12712f),
          static_cast<int>(((9 * y * r - whiteV) * factor + 140) * 250.13359f)};
}

template <int full>
Integers rgbOfLuvIntegers(Integers luv, int, int) {
  constexpr bool bytes = full == 255;
  const auto [l0, u0, v0] = asFloats(luv);
  const float l = l0 * (bytes ? 0.39215687f : 100 / 65535.0f);
  if (l <= 9) return {0, 0, 0};
  const auto inverse = bytes ? reciprocal : refined;
  const float y = cube((l + 16) * 0.00862069f) * full, r = inverse(13 * l);
  const float u = u0 * (bytes ? 1.3882353f : 354 / 65535.0f) - 134, v = v0 * (bytes ? 1.027451f : 262 / 65535.0f) - 140;
  const Floats rgb = rgbOfShares(y, inverse(v * r + whiteV) * y, u * r + whiteU);
  const auto limit = [](float c) { return c >= full ? full : c > 0 ? static_cast<int>(c) : 0; };
  return {limit(rgb[0]), limit(rgb[1]), limit(rgb[2])};
}

// ---- Lab ----

/// L, f(x) - f(y) and f(y) - f(z).
Floats labOf(Integers bgr) {
  const auto [b, g, r] = asFloats(bgr);
  const float x = (0.180423f * b + 0.35758f * g + 0.412453f * r) / 242.366f;
  const float y = (0.072169f * b + 0.71516f * g + 0.212671f * r) / 255;
  const float z = (0.950227f * b + 0.119193f * g + 0.019334f * r) / 277.632f;
  const auto f = [](float s) { return s > 0.008856f ? cubeRoot(s) : 7.787f * s + 0.13793103f; };
  return {y > 0.008856f ? 116 * f(y) - 16 : 903.3f * y, f(x) - f(y), f(y) - f(z)};
}

Integers labBytesOf(Integers bgr, int, int) {
  const auto [l, xy, yz] = labOf(bgr);
  return cutOff({l * 255 / 100 + 0.5f, xy * 500 + 128.5f, yz * 200 + 128.5f});
}

Integers labWordsOf(Integers bgr, int, int) {
  const auto [l, xy, yz] = labOf(bgr);
  return cutOff({l * 65535 / 100, (xy * 500 + 128) * 255, (yz * 200 + 128) * 255});
}

template <int full>
Integers bgrOfLab(Integers lab, int, int) {
  const auto byte = [](int v) { return full == 255 ? v : v / 255.0; };
  const float fy = (static_cast<float>(lab[0]) * 100 / full + 16) / 116;
  const auto fx = static_cast<float>(fy + (byte(lab[1]) - 128) / 500);
  const auto fz = static_cast<float>(fy - (byte(lab[2]) - 128) / 200);
  const auto [r, g, b] = cutOff(rgbOfXyz({242.366f * cube(fx), 255 * cube(fy), 277.632f * cube(fz)}));
  return {b, g, r};
}

}  // namespace

TEST(Lab, EveryMember) {
  expectDefinition(membersOf("vemiBGRToLab", "8u_.*"), ofIntegers(labBytesOf));
  expectDefinition(membersOf("vemiBGRToLab", "8u16u.*"), ofIntegers(labWordsOf));
  expectDefinition(membersOf("vemiLabToBGR", "8u_.*"), ofIntegers(bgrOfLab<255>));
  expectDefinition(membersOf("vemiLabToBGR", "16u8u.*"), ofIntegers(bgrOfLab<65535>));
}

TEST(Lab, EveryColour) {
  expectEveryColour(vemiBGRToLab_8u_C3R, labBytesOf, 0x57d4ae25ef4d13f5);
  expectEveryColour(vemiBGRToLab_8u16u_C3R, labWordsOf, 0xd926790e82f6db7e);
  expectEveryColour(vemiLabToBGR_8u_C3R, bgrOfLab<255>, 0xc9410888c89d8e5);
}

TEST(XYZ, EveryMember) {
  expectDefinition(membersOf("vemiRGBToXYZ", "8u.*"), ofIntegers(ofBytes<toXyz>));
  expectDefinition(membersOf("vemiRGBToXYZ", "16u.*"), ofIntegers(cutOffOf<xyzOf>));
  expectDefinition(membersOf("vemiRGBToXYZ", "16s.*"), ofIntegers(moved<cutOffOf<xyzOf>>));
  expectDefinition(membersOf("vemiRGBToXYZ", "32f.*"), ofFloats(xyz32fOf));
  expectDefinition(membersOf("vemiXYZToRGB", "8u.*"), ofIntegers(ofBytes<fromXyz>));
  expectDefinition(membersOf("vemiXYZToRGB", "16u.*"), ofIntegers(cutOffOf<rgbOfXyz>));
  expectDefinition(membersOf("vemiXYZToRGB", "16s.*"), ofIntegers(moved<cutOffOf<rgbOfXyz>>));
  expectDefinition(membersOf("vemiXYZToRGB", "32f.*"), ofFloats(rgb32fOfXyz));
}

TEST(LUV, EveryMember) {
  expectDefinition(membersOf("vemiRGBToLUV", "8u.*"), ofIntegers(luvBytesOf));
  expectDefinition(membersOf("vemiRGBToLUV", "16u.*"), ofIntegers(luvWordsOf));
  expectDefinition(membersOf("vemiRGBToLUV", "16s.*"), ofIntegers(moved<luvWordsOf>));
  expectDefinition(membersOf("vemiRGBToLUV", "32f.*"), ofFloats(luvOf));
  expectDefinition(membersOf("vemiLUVToRGB", "8u.*"), ofIntegers(rgbOfLuvIntegers<255>));
  expectDefinition(membersOf("vemiLUVToRGB", "16u.*"), ofIntegers(rgbOfLuvIntegers<65535>));
  expectDefinition(membersOf("vemiLUVToRGB", "16s.*"), ofIntegers(moved<rgbOfLuvIntegers<65535>>));
  expectDefinition(membersOf("vemiLUVToRGB", "32f.*"), ofFloats(rgbOfLuv));
}

TEST(XYZ, EveryColour) {
  expectEveryColour(vemiRGBToXYZ_8u_C3R, ofBytes<toXyz>, 0x9bdf298980c0da2f);
  expectEveryColour(vemiRGBToXYZ_8u_C3R, ofBytes<toXyz>, 0x51e356b2c7ac8e74, 5);
  expectEveryColour(vemiXYZToRGB_8u_C3R, ofBytes<fromXyz>, 0xfe777967e4598b78);
  expectEveryColour(vemiXYZToRGB_8u_C3R, ofBytes<fromXyz>, 0x1d97a58be8740797, 5);
}

TEST(LUV, EveryColour) {
  expectEveryColour(vemiRGBToLUV_8u_C3R, luvBytesOf, 0x5a5daf49f29a161b);
  expectEveryColour(vemiRGBToLUV_8u_C3R, luvBytesOf, 0xb816814f9a621fa3, 5);
  expectEveryColour(vemiLUVToRGB_8u_C3R, rgbOfLuvIntegers<255>, 0x24664f9fc6c2ddc8);
}

TEST(LUV, BlackEndsAt9033) {
  const Vemi32f luv[6] = {9.032f, 0, 0, 9.033f, 0, 0};
  Vemi32f rgb[6];
  ASSERT_EQ(vemiLUVToRGB_32f_C3R(luv, 24, rgb, 24, {2, 1}), vemiOk);
  for (int n = 0; n < 3; ++n) EXPECT_EQ(rgb[n], 0);
  for (int n = 3; n < 6; ++n) EXPECT_NEAR(rgb[n], 0.01f, 0.0002f);
}

TEST(Lab, WhiteAndBlack) {
  const Vemi8u bgr[6] = {255, 255, 255, 0, 0, 0}, expected[6] = {255, 128, 128, 0, 128, 128};
  Vemi8u lab[6];
  ASSERT_EQ(vemiBGRToLab_8u_C3R(bgr, 6, lab, 6, {2, 1}), vemiOk);
  EXPECT_TRUE(std::equal(lab, lab + 6, expected));
}
