// vemiConvert and vemiScale: other element types, and bit images by the dither.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// As many bytes a row as its pixels need; an image of bits has no memory function of its own.
Image8u bitImage(VemiSize size) { return {{(size.width + 7) / 8, size.height}, 1}; }

void showDither(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u green(size, 1), channel(size, 1), dots(size, 1), colours(size, 3), bits = bitImage(size);
  CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size));
  page.show(dots, "Black and white dots",
            "The green channel in one bit for each pixel. What a dot is too dark or too light goes to its neighbours, "
            "so that areas keep their brightness; then the bits become 0 and 255 again.",
            {CALL(vemiConvert_8u1u_C1R(green.data(), green.step(), bits.data(), bits.step(), 0, size, 128)),
             CALL(vemiConvert_1u8u_C1R(bits.data(), bits.step(), 0, dots.data(), dots.step(), size))});

  Call dithered = {}, expanded = {}, merged = {};
  for (int n = 0; n < 3; n++) {
    CALL(vemiCopy_8u_C3C1R(photo.data() + n, photo.step(), channel.data(), channel.step(), size));
    dithered = CALL(vemiConvert_8u1u_C1R(channel.data(), channel.step(), bits.data(), bits.step(), 0, size, 128));
    expanded = CALL(vemiConvert_1u8u_C1R(bits.data(), bits.step(), 0, dots.data(), dots.step(), size));
    merged = CALL(vemiCopy_8u_C1C3R(dots.data(), dots.step(), colours.data() + n, colours.step(), size));
  }
  page.show(colours, "Eight colours", "Each channel by itself: three bits for each pixel, as cheap printers do it.",
            {dithered, expanded, merged});
}

void showRounding(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u spread[3] = {85, 85, 85};
  Image<Vemi32f> levels(size, 3);
  Image8u nearest(size, 3), cut(size, 3);
  page.show(
      nearest, "Four levels, the nearest",
      "As floats from 0 to 3, rounded: 0, 1, 2 or 3, and 85 times that is 0 to 255.",
      {CALL(vemiScale_8u32f_C3R(photo.data(), photo.step(), levels.data(), levels.step(), size, 0, 3)),
       CALL(vemiConvert_32f8u_C3R(levels.data(), levels.step(), nearest.data(), nearest.step(), size, vemiRndNear)),
       CALL(vemiMulC_8u_C3IRSfs(spread, nearest.data(), nearest.step(), size, 0))});
  page.show(cut, "Four levels, the lower",
            "The same floats with their fractions dropped: all is darker, and only 255 itself reaches the highest "
            "level.",
            {CALL(vemiConvert_32f8u_C3R(levels.data(), levels.step(), cut.data(), cut.step(), size, vemiRndZero)),
             CALL(vemiMulC_8u_C3IRSfs(spread, cut.data(), cut.step(), size, 0))});
}

void showRange(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image<Vemi16s> words(size, 3);
  Image<Vemi32f> floats(size, 3);
  Image8u contrast(size, 3), lighter(size, 3);
  page.show(
      contrast, "A range in the middle",
      "From 0 to 1 as floats, and back from the middle half of that alone: what lies beyond it is limited.",
      {CALL(vemiScale_8u32f_C3R(photo.data(), photo.step(), floats.data(), floats.step(), size, 0, 1)),
       CALL(vemiScale_32f8u_C3R(floats.data(), floats.step(), contrast.data(), contrast.step(), size, 0.25f, 0.75f))});
  page.show(lighter, "What a conversion limits",
            "On the full scale of 16 bits with a sign, the lighter half of 0 to 255 lies above 0. vemiConvert keeps "
            "values and ends at 255, so whatever was a little lighter than the middle is white.",
            {CALL(vemiScale_8u16s_C3R(photo.data(), photo.step(), words.data(), words.step(), size)),
             CALL(vemiConvert_16s8u_C3R(words.data(), words.step(), lighter.data(), lighter.step(), size))});
}

}  // namespace

void demoDepth(const Demo& demo) {
  showDither(demo.photo, demo.page);
  showRounding(demo.photo, demo.page);
  showRange(demo.photo, demo.page);
}

}  // namespace demo
