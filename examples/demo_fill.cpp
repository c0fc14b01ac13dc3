// vemiSet, and what a mask selects in fills and copies.

#include <algorithm>

#include "demo.h"
#include "pictures.h"
#include "shapes.h"

namespace demo {
namespace {

void showFills(const Image8u& photo, Page& page) {
  constexpr Vemi8u palette[5][3] = {{38, 70, 83}, {42, 157, 143}, {233, 196, 106}, {244, 162, 97}, {231, 111, 81}};
  const int side = std::min(photo.width() / 8, photo.height() / 2), gap = side / 3;
  const int top = photo.height() - side - gap;
  Image8u picture = copyOf(photo);
  const Call squares =
      CALL_EACH(for (int n = 0; n < 5; n++),
                vemiSet_8u_C3R(palette[n], picture.at(gap + n * (side + gap), top), picture.step(), {side, side}));
  page.show(picture, "Colours on a region", "Five squares, each a fill with one value per channel.", {squares});

  const VemiSize third = {photo.width() / 3, photo.height()};
  Image8u parts = copyOf(photo);
  const Call thirds =
      CALL_EACH(for (int n = 0; n < 3; n++), vemiSet_8u_C3CR(0, parts.at(n * third.width, 0) + n, parts.step(), third));
  page.show(parts, "One channel", "Each third of the picture has lost one of its channels.", {thirds});
}

void showMask(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u mask = maskOf(ellipseWithin(size, size.height / 8.0), size);
  page.show(mask, "A mask", "One byte a pixel; every value but 0 selects. It was filled row by row.", {});

  const Vemi8u ink[3] = {30, 34, 52};
  Image8u filled = copyOf(photo);
  page.show(filled, "Filled through the mask", "Where the mask is 0, the picture keeps its pixels.",
            {CALL(vemiSet_8u_C3MR(ink, filled.data(), filled.step(), size, mask.data(), mask.step()))});

  Image8u flipped(size, 3), globe = copyOf(photo);
  const Call flip = CALL_EACH(for (int y = 0; y < size.height; y++),
                              vemiCopy_8u_C3R(photo.at(0, y), photo.step(), flipped.at(0, size.height - 1 - y),
                                              flipped.step(), {size.width, 1}));
  page.show(globe, "Copied through the mask", "Upside down, as in a globe of glass: row by row, then through the mask.",
            {flip, CALL(vemiCopy_8u_C3MR(flipped.data(), flipped.step(), globe.data(), globe.step(), size, mask.data(),
                                         mask.step()))});
}

void showMaskOfPicture(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u red(size, 1), bright(size, 1), grey(size, 3);
  CALL(vemiCopy_8u_C3C1R(photo.data(), photo.step(), red.data(), red.step(), size));
  const Vemi8u* const reds[3] = {red.data(), red.data(), red.data()};
  page.show(grey, "A mask from the picture itself",
            "Scale factor 8 leaves 1 of what exceeds 128, and 0 of the rest. Colour returns where red is bright.",
            {CALL(vemiAddC_8u_C1RSfs(red.data(), red.step(), 0, bright.data(), bright.step(), size, 8)),
             CALL(vemiCopy_8u_P3C3R(reds, red.step(), grey.data(), grey.step(), size)),
             CALL(vemiCopy_8u_C3MR(photo.data(), photo.step(), grey.data(), grey.step(), size, bright.data(),
                                   bright.step()))});
}

}  // namespace

void demoFill(const Demo& demo) {
  showFills(demo.photo, demo.page);
  showMask(demo.photo, demo.page);
  showMaskOfPicture(demo.photo, demo.page);
}

}  // namespace demo
