// vemiErode, vemiDilate and their 3x3 forms.

#include <vector>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr int border = 16;

/// Black around the picture, so that shapes do not go on beyond it.
Image8u framed(const Image8u& map) {
  Image8u wide({map.width() + 2 * border, map.height() + 2 * border}, 1);
  CALL(vemiCopyConstBorder_8u_C1R(map.data(), map.step(), map.size(), wide.data(), wide.step(), wide.size(), border,
                                  border, 0));
  return wide;
}

/// Shapes to work on: white where the picture's green is light.
Image8u shapesOf(const Image8u& photo) {
  Image8u green(photo.size(), 1), map(photo.size(), 1);
  CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), photo.size()));
  CALL(vemiCompareC_8u_C1R(green.data(), green.step(), 110, map.data(), map.step(), map.size(), vemiCmpGreaterEq));
  return map;
}

/// A mask whose ones make up a disc, side by side: its rows have no gaps.
std::vector<Vemi8u> discOf(int side) {
  std::vector<Vemi8u> mask(static_cast<size_t>(side * side), 0);
  forEachRow(ellipseWithin({side, side}, 0), {side, side}, [&](int x, int y, int width) {
    for (int i = x; i < x + width; i++) mask[static_cast<size_t>(y * side + i)] = 1;
  });
  return mask;
}

void showElements(const Image8u& map, Page& page) {
  const VemiSize size = map.size();
  const Image8u wide = framed(map);
  const Vemi8u* const shapes = wide.at(border, border);
  const Vemi8u cross[9] = {0, 1, 0, 1, 1, 1, 0, 1, 0};
  const std::vector<Vemi8u> disc = discOf(15), line(25, 1);
  Image8u thin(size, 1), square(size, 1), small(size, 1), round(size, 1), lines(size, 1), shifted(size, 1);
  page.show(map, "Shapes", "White where the picture is light. The mask is one byte for each pixel, 0 or 255.", {});
  page.show(thin, "Eroded",
            "What has a black pixel among its eight neighbours turns black: a rim of one pixel is gone.",
            {CALL(vemiErode3x3_8u_C1R(shapes, wide.step(), thin.data(), thin.step(), size))});
  page.show(square, "Dilated", "The greatest of the nine instead: shapes grow by one pixel, and holes close.",
            {CALL(vemiDilate3x3_8u_C1R(shapes, wide.step(), square.data(), square.step(), size))});
  page.show(small, "By a cross", "Diagonal neighbours do not count, and corners stay sharp.",
            {CALL(vemiErode_8u_C1R(shapes, wide.step(), small.data(), small.step(), size, cross, {3, 3}, {1, 1}))});
  page.show(
      round, "By a disc", "Every white pixel becomes a disc of fifteen pixels across.",
      {CALL(vemiDilate_8u_C1R(shapes, wide.step(), round.data(), round.step(), size, disc.data(), {15, 15}, {7, 7}))});
  page.show(
      lines, "By a line", "What is not twenty-five pixels wide is gone.",
      {CALL(vemiErode_8u_C1R(shapes, wide.step(), lines.data(), lines.step(), size, line.data(), {25, 1}, {12, 0}))});
}

void showPairs(const Image8u& map, Page& page) {
  const VemiSize size = map.size();
  const Image8u wide = framed(map);
  const std::vector<Vemi8u> disc = discOf(9);
  Image8u opened = framed(map), outline(size, 1), grown(size, 1);
  const Call eroded =
      CALL(vemiErode_8u_C1IR(opened.at(border, border), opened.step(), size, disc.data(), {9, 9}, {4, 4}));
  const Call dilated =
      CALL(vemiDilate_8u_C1IR(opened.at(border, border), opened.step(), size, disc.data(), {9, 9}, {4, 4}));
  Image8u inner(size, 1);
  CALL(vemiCopy_8u_C1R(opened.at(border, border), opened.step(), inner.data(), inner.step(), size));
  page.show(inner, "Opened",
            "Eroded and dilated again by a disc, in place: what the disc does not fit into is gone, and the rest is as "
            "large as before.",
            {eroded, dilated});
  const Call ofGrown =
      CALL(vemiDilate3x3_8u_C1R(wide.at(border, border), wide.step(), grown.data(), grown.step(), size));
  const Call ofThin =
      CALL(vemiErode3x3_8u_C1R(wide.at(border, border), wide.step(), outline.data(), outline.step(), size));
  page.show(outline, "Outlines", "What dilation adds and erosion takes away.",
            {ofGrown, ofThin, CALL(vemiXor_8u_C1IR(grown.data(), grown.step(), outline.data(), outline.step(), size))});
}

void showColours(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  const std::vector<Vemi8u> disc = discOf(11);
  Image8u painted(size, 3);
  page.show(painted, "Painted", "Erosion is not for masks alone: the darkest of each channel within a disc.",
            {CALL(vemiErode_8u_C3R(wide.at(border, border), wide.step(), painted.data(), painted.step(), size,
                                   disc.data(), {11, 11}, {5, 5}))});
}

}  // namespace

void demoMorphology(const Demo& demo) {
  const Image8u map = shapesOf(demo.photo);
  showElements(map, demo.page);
  showPairs(map, demo.page);
  showColours(demo.photo, demo.page);
}

}  // namespace demo
