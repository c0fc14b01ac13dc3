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
