#include "scene.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "shapes.h"

namespace demo {
namespace {

using Colour = std::array<Vemi8u, 3>;

constexpr VemiSize size = {1920, 1280};
constexpr int horizon = 800;

Colour mixed(Colour from, Colour to, double share) {
  Colour result;
  for (size_t n = 0; n < 3; n++) result[n] = static_cast<Vemi8u>(std::lround(from[n] + (to[n] - from[n]) * share));
  return result;
}

/// The part of row y from column `from` up to `to`, as far as it lies in the picture.
void fillSpan(Image8u& picture, int y, int from, int to, Colour colour) {
  from = std::max(from, 0);
  to = std::min(to, picture.width());
  if (y < 0 || y >= picture.height() || from >= to) return;
  CALL(vemiSet_8u_C3R(colour.data(), picture.at(from, y), picture.step(), {to - from, 1}));
}

void fillEllipse(Image8u& picture, const Ellipse& ellipse, Colour colour) {
  forEachRow(ellipse, picture.size(), [&](int x, int y, int width) { fillSpan(picture, y, x, x + width, colour); });
}

void drawSky(Image8u& picture) {
  constexpr Colour zenith = {38, 74, 148}, middle = {126, 140, 190}, low = {255, 190, 128};
  for (int y = 0; y < horizon; y++) {
    const double share = static_cast<double>(y) / horizon;
    const Colour colour =
        share < 0.55 ? mixed(zenith, middle, share / 0.55) : mixed(middle, low, (share - 0.55) / 0.45);
    fillSpan(picture, y, 0, size.width, colour);
  }
}

/// The glow is a picture of its own, brighter toward its middle, that is added to the sky: what exceeds 255 stays
/// there.
void drawSun(Image8u& picture) {
  constexpr double x = 1320, y = 520;
  Image8u glow(size, 3);
  constexpr Colour none = {0, 0, 0};
  CALL(vemiSet_8u_C3R(none.data(), glow.data(), glow.step(), size));
  constexpr int discs = 125;
  for (int n = 0; n < discs; n++) {
    const double share = static_cast<double>(n) / discs;
    const double radius = 620 - 500 * share;
    fillEllipse(glow, {x, y, radius, radius}, mixed(none, {110, 84, 36}, share * share));
  }
  fillEllipse(glow, {x, y, 118, 118}, {255, 236, 178});
  CALL(vemiAdd_8u_C3IRSfs(glow.data(), glow.step(), picture.data(), picture.step(), size, 0));
}

/// A hillside is a gradient that goes through a mask; the mask is filled column by column below the ridge.
void drawHills(Image8u& picture, double ridge, double height, double phase, Colour top, Colour bottom) {
  Image8u mask(size, 1), slope(size, 3);
  CALL(vemiSet_8u_C1R(0, mask.data(), mask.step(), size));
  for (int x = 0; x < size.width; x++) {
    const double t = x / 260.0 + phase;
    const double y = ridge - height * (0.6 * std::sin(t) + 0.3 * std::sin(2.3 * t + 1) + 0.1 * std::sin(6.1 * t));
    const int first = static_cast<int>(y);
    CALL(vemiSet_8u_C1R(255, mask.at(x, first), mask.step(), {1, horizon - first}));
  }
  const int summit = static_cast<int>(ridge - height);
  for (int y = summit; y < horizon; y++) {
    fillSpan(slope, y, 0, size.width, mixed(top, bottom, static_cast<double>(y - summit) / (horizon - summit)));
  }
  const VemiSize region = {size.width, horizon - summit};
  CALL(vemiCopy_8u_C3MR(slope.at(0, summit), slope.step(), picture.at(0, summit), picture.step(), region,
                        mask.at(0, summit), mask.step()));
}

/// A checkered floor in perspective that mirrors what stands above it: the mean of the tiles and of the upper rows in
/// reverse order.
void drawFloor(Image8u& picture) {
  constexpr Colour light = {236, 226, 208}, dark = {58, 62, 84}, haze = {228, 176, 140};
  const VemiSize floor = {size.width, size.height - horizon};
  Image8u tiles(floor, 3), mirrored(floor, 3);
  for (int y = 0; y < floor.height; y++) {
    const double distance = 150.0 / (y + 20);
    const double tile = 260.0 / distance;
    const bool odd = static_cast<int>(distance * 3 + 100) % 2 != 0;
    const double far = std::min(1.0, distance / 8);
    for (int n = -static_cast<int>(size.width / tile) - 1; n * tile < size.width; n++) {
      const Colour colour = (n % 2 != 0) == odd ? light : dark;
      const double left = size.width * 0.4 + n * tile;
      fillSpan(tiles, y, static_cast<int>(std::lround(left)), static_cast<int>(std::lround(left + tile)),
               mixed(colour, haze, far));
    }
    CALL(vemiCopy_8u_C3R(picture.at(0, horizon - 1 - y), picture.step(), mirrored.at(0, y), mirrored.step(),
                         {size.width, 1}));
  }
  CALL(vemiAdd_8u_C3RSfs(tiles.data(), tiles.step(), mirrored.data(), mirrored.step(), picture.at(0, horizon),
                         picture.step(), floor, 1));
}

/// Half as bright in an ellipse: through its mask goes the mean of the picture and of nothing.
void drawShadow(Image8u& picture, const Ellipse& ellipse) {
  const Image8u mask = maskOf(ellipse, size);
  Image8u dimmed(size, 3);
  constexpr Colour none = {0, 0, 0};
  CALL(vemiAddC_8u_C3RSfs(picture.data(), picture.step(), none.data(), dimmed.data(), dimmed.step(), size, 1));
  CALL(vemiCopy_8u_C3MR(dimmed.data(), dimmed.step(), picture.data(), picture.step(), size, mask.data(), mask.step()));
}

/// Discs on discs, each a little smaller, brighter, and nearer to the light.
void drawBall(Image8u& picture, double x, double y, double radius, Colour colour) {
  const Colour shade = mixed(colour, {12, 10, 30}, 0.72), shine = mixed(colour, {255, 255, 255}, 0.85);
  constexpr int discs = 96;
  for (int n = 0; n < discs; n++) {
    const double share = static_cast<double>(n) / discs;
    const double inner = radius * (1 - share);
    const Colour tone =
        share < 0.7 ? mixed(shade, colour, share / 0.7) : mixed(colour, shine, std::pow((share - 0.7) / 0.3, 1.6));
    fillEllipse(picture, {x + radius * 0.42 * share, y - radius * 0.46 * share, inner, inner}, tone);
  }
}

}  // namespace

Image8u drawScene() {
  Image8u picture(size, 3);
  drawSky(picture);
  drawSun(picture);
  drawHills(picture, 640, 70, 0.4, {150, 138, 178}, {236, 178, 150});
  drawHills(picture, 700, 60, 2.9, {94, 104, 138}, {176, 146, 146});
  drawHills(picture, 750, 44, 5.2, {46, 74, 82}, {82, 98, 92});
  drawFloor(picture);
  drawShadow(picture, {520, 1090, 250, 46});
  drawBall(picture, 560, 900, 200, {206, 48, 40});
  drawShadow(picture, {930, 1130, 140, 28});
  drawBall(picture, 950, 1022, 112, {240, 176, 36});
  drawShadow(picture, {1420, 1170, 160, 32});
  drawBall(picture, 1445, 1040, 134, {40, 132, 160});
  return picture;
}

}  // namespace demo
