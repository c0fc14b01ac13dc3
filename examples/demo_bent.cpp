// vemiRemap, vemiWarpPerspective, vemiWarpPerspectiveQuad, vemiWarpBilinearQuad, vemiMirror.

#include <cmath>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

VemiRect wholeOf(const Image8u& image) { return {0, 0, image.width(), image.height()}; }

Image8u grey(VemiSize size) {
  Image8u ground(size, 3);
  const Vemi8u value[3] = {48, 48, 48};
  CALL(vemiSet_8u_C3R(value, ground.data(), ground.step(), size));
  return ground;
}

/// Straight lines bulge as by a strong lens; places beyond the picture leave the ground as it is.
void showLens(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image<Vemi32f> xs(size, 1), ys(size, 1);
  const double middleX = (size.width - 1) / 2.0, middleY = (size.height - 1) / 2.0;
  for (int y = 0; y < size.height; y++) {
    for (int x = 0; x < size.width; x++) {
      const double u = (x - middleX) / middleX, v = (y - middleY) / middleY, k = 0.75 + 0.3 * (u * u + v * v);
      *xs.at(x, y) = static_cast<Vemi32f>(middleX + k * (x - middleX));
      *ys.at(x, y) = static_cast<Vemi32f>(middleY + k * (y - middleY));
    }
  }
  Image8u lens = grey(size);
  page.show(
      lens, "A lens",
      "Two images of floats hold the place of each pixel. Where that lies beyond the picture, the destination stays "
      "as it was.",
      {CALL(vemiRemap_8u_C3R(photo.data(), size, photo.step(), wholeOf(photo), xs.data(), xs.step(), ys.data(),
                             ys.step(), lens.data(), lens.step(), size, vemiInterCubic))});
}

/// A page that lies on a table, and the same page straight again.
void showPage(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const double w = size.width - 1, h = size.height - 1;
  const double lying[4][2] = {{0.3 * w, 0.12 * h}, {0.78 * w, 0.05 * h}, {0.95 * w, 0.8 * h}, {0.04 * w, 0.93 * h}};
  const double sheet[4][2] = {{0, 0}, {w, 0}, {w, h}, {0, h}};
  Image8u table = grey(size), straight = grey(size), bilinear = grey(size);
  page.show(
      table, "A page on a table", "The picture's corners go to any four places, seen in perspective.",
      {CALL(vemiWarpPerspectiveQuad_8u_C3R(photo.data(), size, photo.step(), wholeOf(photo), sheet, table.data(),
                                           table.step(), wholeOf(table), lying, vemiInterLinear | vemiSmoothEdge))});
  page.show(
      straight, "Straightened", "The same quadrangle is the source, and the sheet the destination.",
      {CALL(vemiWarpPerspectiveQuad_8u_C3R(table.data(), size, table.step(), wholeOf(table), lying, straight.data(),
                                           straight.step(), wholeOf(straight), sheet, vemiInterCubic))});
  page.show(
      bilinear, "Bilinear", "The same corners, but distances along an edge are shared out evenly.",
      {CALL(vemiWarpBilinearQuad_8u_C3R(photo.data(), size, photo.step(), wholeOf(photo), sheet, bilinear.data(),
                                        bilinear.step(), wholeOf(bilinear), lying, vemiInterLinear | vemiSmoothEdge))});
}

void showMirrors(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u wall(size, 3), both = copyOf(photo);
  page.show(wall, "As on the wall", "Columns change places.",
            {CALL(vemiMirror_8u_C3R(photo.data(), photo.step(), wall.data(), wall.step(), size, vemiAxisVertical))});
  page.show(both, "Half a turn", "Both axes at once, in place.",
            {CALL(vemiMirror_8u_C3IR(both.data(), both.step(), size, vemiAxisBoth))});
}

}  // namespace

void demoBent(const Demo& demo) {
  showLens(demo.photo, demo.page);
  showPage(demo.photo, demo.page);
  showMirrors(demo.photo, demo.page);
}

}  // namespace demo
