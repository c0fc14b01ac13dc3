// vemiAnd, vemiOr, vemiXor, vemiNot and the shifts on 8-bit pictures.

#include "demo.h"
#include "pictures.h"
#include "prepare.h"

namespace demo {
namespace {

void showPlanes(const Image8u& rgba, Page& page) {
  const Image8u small = halved(rgba);
  const VemiSize part = small.size();
  Image8u green(part, 1), sheet({4 * part.width, 2 * part.height}, 1);
  CALL(vemiCopy_8u_C4C1R(small.data() + 1, small.step(), green.data(), green.step(), part));
  const Call shifts =
      CALL_EACH(for (int n = 0; n < 8; n++),
                vemiRShiftC_8u_C1R(green.data(), green.step(), (Vemi32u)(7 - n),
                                   sheet.at(n % 4 * part.width, n / 4 * part.height), sheet.step(), part));
  page.show(sheet, "Bit planes",
            "The eight bits of the green channel, the highest first: each is shifted to the lowest place, cut out, and "
            "made as bright as can be. Most of what one sees is in the upper row.",
            {shifts, CALL(vemiAndC_8u_C1IR(1, sheet.data(), sheet.step(), sheet.size())),
             CALL(vemiMulC_8u_C1IRSfs(255, sheet.data(), sheet.step(), sheet.size(), 0))});
}

void showNegative(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u bits[3] = {0, 255, 0};
  Image8u negative(size, 3), turned(size, 3);
  page.show(negative, "A negative", "All bits turned over: 255 less each element.",
            {CALL(vemiNot_8u_C3R(photo.data(), photo.step(), negative.data(), negative.step(), size))});
  page.show(turned, "A negative in one channel", "Exclusive or turns over the bits that are set in its constant.",
            {CALL(vemiXorC_8u_C3R(photo.data(), photo.step(), bits, turned.data(), turned.step(), size))});
}

void showPosters(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32u counts[3] = {6, 6, 6};
  const Vemi8u spread[3] = {85, 85, 85}, palette[3] = {0xe0, 0xe0, 0xc0};
  Image8u poster(size, 3), byte(size, 3);
  page.show(poster, "Four levels", "Two bits of eight remain: 0 to 3, and 85 times that is 0 to 255.",
            {CALL(vemiRShiftC_8u_C3R(photo.data(), photo.step(), counts, poster.data(), poster.step(), size)),
             CALL(vemiMulC_8u_C3IRSfs(spread, poster.data(), poster.step(), size, 0))});
  page.show(byte, "256 colours", "Three bits of red, three of green and two of blue: a pixel that fits one byte.",
            {CALL(vemiAndC_8u_C3R(photo.data(), photo.step(), palette, byte.data(), byte.step(), size))});
}

void showHidden(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u high[3] = {0xf8, 0xf8, 0xf8};
  const Vemi32u five[3] = {5, 5, 5};
  Image8u carrier(size, 3), secret(size, 3), found(size, 3);
  page.show(carrier, "A picture in a picture",
            "The three highest bits of the mirror image take the place of the three lowest of the picture.",
            {CALL(vemiAndC_8u_C3R(photo.data(), photo.step(), high, carrier.data(), carrier.step(), size)),
             CALL(vemiRShiftC_8u_C3R(mirror.data(), mirror.step(), five, secret.data(), secret.step(), size)),
             CALL(vemiOr_8u_C3IR(secret.data(), secret.step(), carrier.data(), carrier.step(), size))});
  page.show(found, "Found again", "To the left by five: the upper bits fall out, the hidden ones take their place.",
            {CALL(vemiLShiftC_8u_C3R(carrier.data(), carrier.step(), five, found.data(), found.step(), size))});
}

void showKey(const Image8u& photo, const Image8u& mirror, Page& page) {
  const VemiSize size = photo.size();
  Image8u mixed(size, 3), back(size, 3);
  page.show(mixed, "Picture xor mirror image", "Where the two agree in a bit it is 0, where they differ it is 1.",
            {CALL(vemiXor_8u_C3R(photo.data(), photo.step(), mirror.data(), mirror.step(), mixed.data(), mixed.step(),
                                 size))});
  page.show(
      back, "And once more", "Exclusive or with the mirror image again: the picture is back, bit by bit.",
      {CALL(vemiXor_8u_C3R(mixed.data(), mixed.step(), mirror.data(), mirror.step(), back.data(), back.step(), size))});
}

}  // namespace

void demoBits(const Demo& demo) {
  showPlanes(demo.rgba, demo.page);
  showNegative(demo.photo, demo.page);
  showPosters(demo.photo, demo.page);
  const Image8u mirror = mirrored(demo.photo);
  showHidden(demo.photo, mirror, demo.page);
  showKey(demo.photo, mirror, demo.page);
}

}  // namespace demo
