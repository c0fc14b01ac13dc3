// Hue, saturation, and value or lightness.

#include <cmath>

#include "color/colours.h"
#include "vemi/vemi.h"

using namespace vemi::test;

namespace {

int nearest(float value) { return static_cast<int>(std::nearbyint(value)); }

template <int full>
Integers hsvOf(Integers rgb, int, int) {
  const auto [r, g, b] = rgb;
  const int value = std::max({r, g, b}), delta = value - std::min({r, g, b});
  if (value == 0 || delta == 0) return {0, 0, value};
  const auto inverse = full == 255 ? reciprocal : refined;
  const float rd = inverse(static_cast<float>(delta));
  const auto part = [&](int channel) { return static_cast<float>(value - channel) * rd; };
  float sixths = 0;
  if (r == value) sixths = part(b) - part(g);
  if (g == value) sixths = part(r) - part(b) + 2;
  if (b == value) sixths = part(g) - part(r) + 4;
  float hue = sixths * (full == 255 ? 42.5f : 10922.5f);
  if (hue < 0) hue += full;
  const float saturation = static_cast<float>(full) * static_cast<float>(delta) * inverse(static_cast<float>(value));
  return {nearest(hue), nearest(saturation), value};
}

template <int full>
Integers rgbOfHsv(Integers hsv, int, int) {
  const auto [hue, saturation, value] = hsv;
  if (saturation == 0) return {value, value, value};
  const float scale = full == 255 ? 1.4117647f : 360.0f / 65535.0f, unit = full == 255 ? 0.003921569f : 1 / 65535.0f;
  const float x = static_cast<float>(hue == full ? 0 : hue) * 0.016666668f * scale;
  const int sector = static_cast<int>(x);
  const float f = x - static_cast<float>(sector), s = static_cast<float>(saturation) * unit;
  const float v = static_cast<float>(value), vs = v * s, slope = f * v * s;
  const int p = nearest(v - vs), q = nearest(v - slope), t = nearest((v - vs) + slope);
  const Integers sectors[6] = {{value, t, p}, {q, value, p}, {p, value, t},
                               {p, q, value}, {t, p, value}, {value, p, q}};
  return sectors[sector];
}

float larger(float a, float b) { return a > b ? a : b; }
float smaller(float a, float b) { return a < b ? a : b; }

/// Hue in degrees.
float hueOf(float r, float g, float b, float most, float (*share)(float difference, float delta), float delta) {
  const float angle = r == most   ? share(g - b, delta)
                      : g != most ? share(r - g, delta) + 240
                                  : share(b - r, delta) + 120;
  return angle < 0 ? angle + 360 : angle;
}

float exactShare(float difference, float delta) { return difference * 60 / delta; }
float nearShare(float difference, float delta) { return difference * 60 * refined(delta); }

/// Hue in degrees, lightness and saturation.
Floats hlsOf(Floats rgb) {
  const auto [r, g, b] = rgb;
  const float most = larger(larger(r, g), b), least = smaller(smaller(r, g), b), delta = most - least;
  const float lightness = 0.5f * (most + least);
  if (delta <= 1.1920929e-7f) return {0, lightness, 0};
  const float saturation = lightness <= 0.5f ? delta / (most + least) : delta / (2 - most - least);
  return {hueOf(r, g, b, most, exactShare, delta), lightness, saturation};
}

Floats hls32fOf(Floats rgb) {
  const auto [hue, lightness, saturation] = hlsOf(rgb);
  return {hue / 360, lightness, saturation};
}

float overSixty(float v) { return v / 60; }
float timesSixtieth(float v) { return v * 0.01666667f; }

/// Of a hue in degrees.
Floats rgbOfHls(Floats hls, float (*share)(float)) {
  const auto [hue, l, s] = hls;
  if (s == 0) return {l, l, l};
  const float m2 = l > 0.5f ? l + s - l * s : l * (1 + s), m1 = 2 * l - m2;
  const auto ramp = [&](float x) {
    if (x < 60) return m1 + share((m2 - m1) * x);
    if (x < 180) return m2;
    return x < 240 ? m1 + share((m2 - m1) * (240 - x)) : m1;
  };
  const float red = hue + 120, blue = hue - 120;
  return {ramp(red > 360 ? red - 360 : red), ramp(hue), ramp(blue < 0 ? blue + 360 : blue)};
}

Floats rgbOfHls32f(Floats hls) { return rgbOfHls({360 * hls[0], hls[1], hls[2]}, overSixty); }

template <int full>
Integers hlsOfIntegers(Integers rgb, int, int) {
  const auto [r, g, b] = rgb;
  const int most = std::max({r, g, b}), delta = most - std::min({r, g, b}), sum = 2 * most - delta;
  if (delta == 0) return {0, sum / 2, 0};
  const auto f = [](int v) { return static_cast<float>(v); };
  const float hue = hueOf(f(r), f(g), f(b), f(most), nearShare, f(delta)) * (full == 255 ? 0.7083333f : 182.04167f);
  const float saturation = f(full) * f(delta) * reciprocal(f(sum / 2 > full / 2 ? 2 * full - sum : sum));
  return {static_cast<int>(hue), sum / 2, static_cast<int>(saturation)};
}

template <int full>
Integers integersOfHls(Integers hls, int, int) {
  if (hls[2] == 0) return {hls[1], hls[1], hls[1]};
  const float unit = full == 255 ? 0.003921569f : 1 / 65535.0f, degrees = full == 255 ? 1.411765f : 360.0f / 65535.0f;
  const auto f = [](int v) { return static_cast<float>(v); };
  const auto [r, g, b] = rgbOfHls({f(hls[0]) * degrees, f(hls[1]) * unit, f(hls[2]) * unit}, timesSixtieth);
  return {static_cast<int>(r * full), static_cast<int>(g * full), static_cast<int>(b * full)};
}

/// The 16u conversion of 16s.
template <Integers (*of)(Integers, int, int)>
Integers moved(Integers v, int x, int width) {
  Integers result = of({v[0] + 32768, v[1] + 32768, v[2] + 32768}, x, width);
  for (int& each : result) each = std::min(each, 65535) - 32768;
  return result;
}

int cutOff(float value) { return static_cast<int>(value + 1e-07); }

Integers hlsOfBgr(Integers bgr, int, int) {
  const auto unit = [](int v) { return static_cast<float>(v) / 255; };
  const auto [hue, lightness, saturation] = hlsOf({unit(bgr[2]), unit(bgr[1]), unit(bgr[0])});
  return {cutOff(hue * (255.0f / 360.0f)), cutOff(lightness * 255), cutOff(saturation * 255)};
}

Integers bgrOfHls(Integers hls, int, int) {
  const auto unit = [](int v) { return static_cast<float>(v) / 255; };
  const auto [r, g, b] = rgbOfHls({static_cast<float>(hls[0]) * 360 / 255, unit(hls[1]), unit(hls[2])}, overSixty);
  return {cutOff(b * 255), cutOff(g * 255), cutOff(r * 255)};
}

/// The members of planes as functions of pixels.
template <VemiStatus (*convert)(const Vemi8u*, int, Vemi8u* const[3], int, VemiSize)>
VemiStatus throughPlanes(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize) {
  std::vector<Vemi8u> memory(static_cast<size_t>(3 * roiSize.width * roiSize.height));
  const ptrdiff_t plane = ptrdiff_t{roiSize.width} * roiSize.height;
  Vemi8u* const planes[3] = {memory.data(), memory.data() + plane, memory.data() + 2 * plane};
  const VemiStatus status = convert(pSrc, srcStep, planes, roiSize.width, roiSize);
  return status != vemiOk ? status : vemiCopy_8u_P3C3R(planes, roiSize.width, pDst, dstStep, roiSize);
}

}  // namespace

TEST(HSV, EveryMember) {
  expectDefinition(membersOf("vemiRGBToHSV", "8u.*"), ofIntegers(hsvOf<255>));
  expectDefinition(membersOf("vemiRGBToHSV", "16u.*"), ofIntegers(hsvOf<65535>));
  expectDefinition(membersOf("vemiHSVToRGB", "8u.*"), ofIntegers(rgbOfHsv<255>));
  expectDefinition(membersOf("vemiHSVToRGB", "16u.*"), ofIntegers(rgbOfHsv<65535>));
}

TEST(HSV, EveryColour) {
  expectEveryColour(vemiRGBToHSV_8u_C3R, hsvOf<255>, 0x63411be1d55dff70);
  expectEveryColour(vemiHSVToRGB_8u_C3R, rgbOfHsv<255>, 0x3375860ad49699eb);
}

TEST(HLS, EveryMember) {
  expectDefinition(membersOf("vemiRGBToHLS", "8u.*"), ofIntegers(hlsOfIntegers<255>));
  expectDefinition(membersOf("vemiRGBToHLS", "16u.*"), ofIntegers(hlsOfIntegers<65535>));
  expectDefinition(membersOf("vemiRGBToHLS", "16s.*"), ofIntegers(moved<hlsOfIntegers<65535>>));
  expectDefinition(membersOf("vemiRGBToHLS", "32f.*"), ofFloats(hls32fOf));
  expectDefinition(membersOf("vemiHLSToRGB", "8u.*"), ofIntegers(integersOfHls<255>));
  expectDefinition(membersOf("vemiHLSToRGB", "16u.*"), ofIntegers(integersOfHls<65535>));
  expectDefinition(membersOf("vemiHLSToRGB", "16s.*"), ofIntegers(moved<integersOfHls<65535>>));
  expectDefinition(membersOf("vemiHLSToRGB", "32f.*"), ofFloats(rgbOfHls32f));
  expectDefinition(membersOf("vemiBGRToHLS"), ofIntegers(hlsOfBgr));
  expectDefinition(membersOf("vemiHLSToBGR"), ofIntegers(bgrOfHls));
}

TEST(HLS, EveryColour) {
  expectEveryColour(vemiRGBToHLS_8u_C3R, hlsOfIntegers<255>, 0x2fe9edecc65c9807);
  expectEveryColour(vemiHLSToRGB_8u_C3R, integersOfHls<255>, 0x5839f91f5e2e626);
  expectEveryColour(throughPlanes<vemiBGRToHLS_8u_C3P3R>, hlsOfBgr, 0xc1e69fa251875c19);
  expectEveryColour(throughPlanes<vemiHLSToBGR_8u_C3P3R>, bgrOfHls, 0xc564bba4e033ee64);
}
