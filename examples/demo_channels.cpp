// vemiCopy between channels, planes and alpha.

#include "demo.h"
#include "shapes.h"

namespace demo {
namespace {

void showPlanes(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u sheet({3 * size.width, size.height}, 1);
  Vemi8u* const planes[3] = {sheet.at(0, 0), sheet.at(size.width, 0), sheet.at(2 * size.width, 0)};
  page.show(sheet, "Into planes",
            "Red, green and blue. Here the planes are three regions of one image; they may lie anywhere, with one "
            "step for all.",
            {CALL(vemiCopy_8u_C3P3R(photo.data(), photo.step(), planes, sheet.step(), size))});

  const Vemi8u* const reversed[3] = {planes[2], planes[1], planes[0]};
  Image8u swapped(size, 3);
  page.show(swapped, "Back again, in another order", "The planes are merged as blue, green, red.",
            {CALL(vemiCopy_8u_P3C3R(reversed, sheet.step(), swapped.data(), swapped.step(), size))});

  const Vemi8u* const greens[3] = {planes[1], planes[1], planes[1]};
  Image8u grey(size, 3);
  page.show(grey, "One plane thrice", "Sources may be the same memory: green for all three channels is a grey picture.",
            {CALL(vemiCopy_8u_P3C3R(greens, sheet.step(), grey.data(), grey.step(), size))});
}

void showChannel(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u night[3] = {16, 0, 48};
  Image8u green(size, 1), tinted(size, 3);
  page.show(tinted, "A single channel, out and in",
            "Channel 1 is taken out, and put into the same channel of a violet picture. The other channels are not "
            "touched.",
            {CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size)),
             CALL(vemiSet_8u_C3R(night, tinted.data(), tinted.step(), size)),
             CALL(vemiCopy_8u_C1C3R(green.data(), green.step(), tinted.data() + 1, tinted.step(), size))});

  const int slip = size.width / 40;
  const VemiSize rest = {size.width - slip, size.height};
  Image8u slipped(size, 3);
  page.show(slipped, "Channels that slip",
            "Red comes from a little further right, blue goes a little further right: a misprint in three calls.",
            {CALL(vemiCopy_8u_C3R(photo.data(), photo.step(), slipped.data(), slipped.step(), size)),
             CALL(vemiCopy_8u_C3CR(photo.at(slip, 0), photo.step(), slipped.data(), slipped.step(), rest)),
             CALL(vemiCopy_8u_C3CR(photo.data() + 2, photo.step(), slipped.at(slip, 0) + 2, slipped.step(), rest))});
}

void showAlpha(const Image8u& rgba, const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u disc = maskOf(ellipseWithin(size, 8), size);
  Image8u badge(size, 4);
  page.show(badge, "Alpha that stays",
            "The fourth channel becomes a disc. AC4 then writes the first three and keeps it.",
            {CALL(vemiCopy_8u_C1C4R(disc.data(), disc.step(), badge.data() + 3, badge.step(), size)),
             CALL(vemiCopy_8u_C3AC4R(photo.data(), photo.step(), badge.data(), badge.step(), size))});

  const VemiSize band = {size.width, size.height / 3};
  const Vemi8u orange[3] = {240, 120, 48};
  page.show(badge, "Filled around alpha", "A band of colour across the same image: AC4 again, so alpha is as it was.",
            {CALL(vemiSet_8u_AC4R(orange, badge.at(0, size.height / 3), badge.step(), band))});

  const int middle = size.width / 2;
  const VemiSize right = {size.width - middle, size.height};
  Image8u glass(size, 4);
  page.show(glass, "Alpha alone", "One channel of four is filled, on the right half: half transparent.",
            {CALL(vemiCopy_8u_C4R(rgba.data(), rgba.step(), glass.data(), glass.step(), size)),
             CALL(vemiSet_8u_C4CR(128, glass.at(middle, 0) + 3, glass.step(), right))});
}

}  // namespace

void demoChannels(const Demo& demo) {
  showPlanes(demo.photo, demo.page);
  showChannel(demo.photo, demo.page);
  showAlpha(demo.rgba, demo.photo, demo.page);
}

}  // namespace demo
