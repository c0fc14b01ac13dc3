// vemiRotate, vemiShear, vemiWarpAffineQuad and vemiGetRotateBound.

#include <cmath>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

VemiRect whole(const Image8u& image) { return {0, 0, image.width(), image.height()}; }

Image8u greyOf(VemiSize size) {
  Image8u grey(size, 3);
  const Vemi8u value[3] = {235, 235, 232};
  CALL(vemiSet_8u_C3R(value, grey.data(), grey.step(), size));
  return grey;
}

void showRotation(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const VemiRect all = whole(photo);
  double bound[2][2];
  const Call query = CALL(vemiGetRotateBound(all, bound, 20, 0, 0));
  Image8u turned = greyOf({static_cast<int>(std::ceil(bound[1][0] - bound[0][0])) + 1,
                           static_cast<int>(std::ceil(bound[1][1] - bound[0][1])) + 1});
  page.show(
      turned, "By twenty degrees",
      "The bound says how large the destination must be, and by how much to shift. Edges are blended into what "
      "was there.",
      {query, CALL(vemiRotate_8u_C3R(photo.data(), size, photo.step(), all, turned.data(), turned.step(), whole(turned),
                                     20, -bound[0][0], -bound[0][1], vemiInterCubic | vemiSmoothEdge))});
  Image8u upright(VemiSize{size.height, size.width}, 3);
  page.show(upright, "By a quarter turn", "Pixels are copied, whatever the interpolation.",
            {CALL(vemiRotate_8u_C3R(photo.data(), size, photo.step(), all, upright.data(), upright.step(),
                                    whole(upright), 90, 0, size.width - 1, vemiInterNearest))});
}

void showShear(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u sheared = greyOf({size.width + size.height / 3, size.height});
  page.show(sheared, "Sheared", "Each row is moved by a third of a pixel more to the left than the one above.",
            {CALL(vemiShear_8u_C3R(photo.data(), size, photo.step(), whole(photo), sheared.data(), sheared.step(),
                                   whole(sheared), -1 / 3.0, 0, (size.height - 1) / 3.0, 0, vemiInterLinear))});
}

void showTiles(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const double w = size.width - 1, h = size.height - 1;
  Image8u cube = greyOf(size);
  const double face[4][2] = {{0, 0}, {w, 0}, {w, h}, {0, h}};
  const double top[4][2] = {{w / 2, 0}, {w, h / 4}, {w / 2, h / 2}, {0, h / 4}};
  const double left[4][2] = {{0, h / 4}, {w / 2, h / 2}, {w / 2, h}, {0, 3 * h / 4}};
  const double right[4][2] = {{w / 2, h / 2}, {w, h / 4}, {w, 3 * h / 4}, {w / 2, h}};
  const auto draw = [&](const double(&quad)[4][2]) {
    return CALL(vemiWarpAffineQuad_8u_C3R(photo.data(), size, photo.step(), whole(photo), face, cube.data(),
                                          cube.step(), whole(cube), quad, vemiInterLinear));
  };
  const Call first = draw(top);
  draw(left);
  draw(right);
  page.show(cube, "On the sides of a box", "Three parallelograms, each with the whole picture in it.", {first});
}

}  // namespace

void demoAffine(const Demo& demo) {
  showRotation(demo.photo, demo.page);
  showShear(demo.photo, demo.page);
  showTiles(demo.photo, demo.page);
}

}  // namespace demo
