// vemiAlphaComp, vemiAlphaCompC and vemiAlphaPremul on 8-bit pictures.

#include <algorithm>

#include "demo.h"
#include "pictures.h"
#include "prepare.h"

namespace demo {
namespace {

/// Opaque squares of two greys.
Image8u checkerboard(VemiSize size) {
  const int side = std::max(4, size.height / 24);
  const Vemi8u greys[2][4] = {{150, 150, 150, 255}, {226, 226, 226, 255}};
  Image8u board(size, 4);
  for (int y = 0; y < size.height; y += side) {
    for (int x = 0; x < size.width; x += side) {
      const VemiSize square = {std::min(side, size.width - x), std::min(side, size.height - y)};
      CALL(vemiSet_8u_C4R(greys[(x / side + y / side) % 2], board.at(x, y), board.step(), square));
    }
  }
  return board;
}

/// The colours of the picture, and an alpha that is drawn.
Image8u cutOut(const Image8u& photo, const Image8u& alpha) {
  Image8u sprite(photo.size(), 4);
  CALL(vemiCopy_8u_C1C4R(alpha.data(), alpha.step(), sprite.data() + 3, sprite.step(), photo.size()));
  CALL(vemiCopy_8u_C3AC4R(photo.data(), photo.step(), sprite.data(), sprite.step(), photo.size()));
  return sprite;
}

void showOver(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u sprite = cutOut(photo, softMaskOf(ellipseWithin(size, 4), size, 0, 0.6));
  Image8u board = checkerboard(size);
  page.show(board, "Over a checkerboard",
            "Alpha falls from 255 in the middle to 0 at the rim of an ellipse. The destination may be a source.",
            {CALL(vemiAlphaComp_8u_AC4R(sprite.data(), sprite.step(), board.data(), board.step(), board.data(),
                                        board.step(), size, vemiAlphaOver))});

  Image8u premultiplied(size, 4), colours(size, 3);
  page.show(
      colours, "Premultiplied colours",
      "The same ellipse, each colour multiplied by its alpha; alpha itself is left out here. Compositing and "
      "filtering want colours like these, in which what cannot be seen has no weight.",
      {CALL(vemiAlphaPremul_8u_AC4R(sprite.data(), sprite.step(), premultiplied.data(), premultiplied.step(), size)),
       CALL(vemiCopy_8u_AC4C3R(premultiplied.data(), premultiplied.step(), colours.data(), colours.step(), size))});
}

/// An ellipse around the middle of the height; `x` is the share of the width to the left of its centre.
Image8u discAt(double x, const Image8u& photo) {
  const VemiSize size = photo.size();
  const Ellipse ellipse = {size.width * x, size.height / 2.0, size.width * 0.31, size.height * 0.42};
  return cutOut(photo, softMaskOf(ellipse, size, 0, 0.9));
}

void showOperators(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u blue[3] = {130, 180, 255};
  Image8u tinted(size, 3);
  CALL(vemiMulCScale_8u_C3R(mirror.data(), mirror.step(), blue, tinted.data(), tinted.step(), size));
  const Image8u a = halved(discAt(0.35, photo)), b = halved(discAt(0.65, tinted));
  const VemiSize part = a.size();
  Image8u layers({3 * part.width, 2 * part.height}, 4);
  Image8u sheet = checkerboard(layers.size());
  const Call operators =
      CALL_EACH(for (int n = 0; n < 6; n++),
                vemiAlphaComp_8u_AC4R(a.data(), a.step(), b.data(), b.step(),
                                      layers.at(n % 3 * part.width, n / 3 * part.height), layers.step(), part, n));
  page.show(sheet, "Over, in, out; atop, xor, plus",
            "Types 0 to 5: six ways to lay the left ellipse, a, over the right one, b, which is the mirror image in "
            "blue. The results are premultiplied, and go over a checkerboard as such.",
            {operators, CALL(vemiAlphaComp_8u_AC4R(layers.data(), layers.step(), sheet.data(), sheet.step(),
                                                   sheet.data(), sheet.step(), sheet.size(), vemiAlphaOverPremul))});
}

void showConstantAlphas(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  Image8u green(size, 1), grey(size, 3), fade(size, 3), mix(size, 3);
  const Vemi8u* const greens[3] = {green.data(), green.data(), green.data()};
  const Call single = CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size));
  const Call triple = CALL(vemiCopy_8u_P3C3R(greens, green.step(), grey.data(), grey.step(), size));
  const Call columns =
      CALL_EACH(for (int x = 0; x < size.width; x++),
                vemiAlphaCompC_8u_C3R(photo.at(x, 0), photo.step(), (Vemi8u)(255 * x / size.width), grey.at(x, 0),
                                      grey.step(), 255, fade.at(x, 0), fade.step(), {1, size.height}, vemiAlphaOver));
  page.show(fade, "A cross-fade",
            "One alpha for a whole picture; here each column is a picture with an alpha of its own. The picture goes "
            "over its grey version, and covers more and more of it.",
            {single, triple, columns});
  page.show(mix, "A quarter of it", "The picture with an alpha of 64, over its mirror image.",
            {CALL(vemiAlphaCompC_8u_C3R(photo.data(), photo.step(), 64, mirror.data(), mirror.step(), 255, mix.data(),
                                        mix.step(), size, vemiAlphaOver))});
}

void showLight(const Image8u& rgba, Page& page) {
  const VemiSize size = rgba.size();
  const double radius = std::min(size.width, size.height) / 2.0;
  const Image8u glow = softMaskOf({size.width * 0.3, size.height * 0.35, radius, radius}, size, 0, 0.02);
  const Vemi8u lamp[4] = {220, 144, 56, 0};
  Image8u light(size, 4), lit(size, 4);
  const Call colour = CALL(vemiSet_8u_C4R(lamp, light.data(), light.step(), size));
  const Call alpha = CALL(vemiCopy_8u_C1C4R(glow.data(), glow.step(), light.data() + 3, light.step(), size));
  const Call premultiplied = CALL(vemiAlphaPremul_8u_AC4IR(light.data(), light.step(), size));
  const Call transparent = CALL(vemiSet_8u_C4CR(0, light.data() + 3, light.step(), size));
  page.show(lit, "Light",
            "A premultiplied colour with an alpha of 0 covers nothing and still shines: over is a sum then.",
            {colour, alpha, premultiplied, transparent,
             CALL(vemiAlphaComp_8u_AC4R(light.data(), light.step(), rgba.data(), rgba.step(), lit.data(), lit.step(),
                                        size, vemiAlphaOverPremul))});
}

}  // namespace

void demoAlpha(const Demo& demo) {
  showOver(demo.photo, demo.page);
  const Image8u mirror = mirrored(demo.photo);
  showOperators(demo.photo, mirror, demo.page);
  showConstantAlphas(demo.photo, mirror, demo.page);
  showLight(demo.rgba, demo.page);
}

}  // namespace demo
