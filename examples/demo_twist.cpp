// vemiColorTwist32f.

#include "demo.h"

namespace demo {
namespace {

void showSepia(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32f sepia[3][4] = {{0.393f, 0.769f, 0.189f, 0}, {0.349f, 0.686f, 0.168f, 0}, {0.272f, 0.534f, 0.131f, 0}};
  Image8u old(size, 3);
  page.show(old, "Sepia",
            "Each row of the matrix makes one channel: all three from the same weights but for a factor, the least for "
            "blue. Sums beyond 255 stop there.",
            {CALL(vemiColorTwist32f_8u_C3R(photo.data(), photo.step(), old.data(), old.step(), size, sepia))});
}

void showWhiteBalance(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32f lamp[3][4] = {{1, 0, 0, 24}, {0, 0.85f, 0, 6}, {0, 0, 0.6f, 0}};
  const Vemi32f daylight[3][4] = {{1, 0, 0, -24}, {0, 1 / 0.85f, 0, -6 / 0.85f}, {0, 0, 1 / 0.6f, 0}};
  Image8u warm(size, 3), balanced(size, 3);
  page.show(
      warm, "Under a lamp",
      "A diagonal weighs each channel by itself, and the last column adds: less blue and green, and a veil of red.",
      {CALL(vemiColorTwist32f_8u_C3R(photo.data(), photo.step(), warm.data(), warm.step(), size, lamp))});
  page.show(
      balanced, "White balance",
      "The inverse matrix turns it back, but for what had been limited to 255 or rounded away.",
      {CALL(vemiColorTwist32f_8u_C3R(warm.data(), warm.step(), balanced.data(), balanced.step(), size, daylight))});
}

void showSaturation(const Image8u& rgba, Page& page) {
  const VemiSize size = rgba.size();
  const Vemi32f r = 0.299f, g = 0.587f, b = 0.114f, more = 1.8f, rest = 1 - more;
  const Vemi32f vivid[3][4] = {{rest * r + more, rest * g, rest * b, 0},
                               {rest * r, rest * g + more, rest * b, 0},
                               {rest * r, rest * g, rest * b + more, 0}};
  Image8u colourful(size, 4);
  page.show(colourful, "More colour",
            "Each pixel moves away from its own grey. Greys stay what they are, as the rows add up to one. AC4 keeps "
            "the alpha of the destination, here in place.",
            {CALL(vemiCopy_8u_C4R(rgba.data(), rgba.step(), colourful.data(), colourful.step(), size)),
             CALL(vemiColorTwist32f_8u_AC4IR(colourful.data(), colourful.step(), size, vivid))});
}

}  // namespace

void demoTwist(const Demo& demo) {
  showSepia(demo.photo, demo.page);
  showWhiteBalance(demo.photo, demo.page);
  showSaturation(demo.rgba, demo.page);
}

}  // namespace demo
