// Video as words of 16 bits a pixel, cut and dithered.

#include "demo.h"

namespace demo {
namespace {

/// A plane of luma and two of chroma with half its width and height.
struct Frame {
  Image8u y, cb, cr;
  Vemi8u* const planes[3];
  const int steps[3];

  explicit Frame(VemiSize size)
      : y(size, 1),
        cb(halfOf(size), 1),
        cr(halfOf(size), 1),
        planes{y.data(), cb.data(), cr.data()},
        steps{y.step(), cb.step(), cr.step()} {}

  static VemiSize halfOf(VemiSize size) { return {(size.width + 1) / 2, (size.height + 1) / 2}; }
};

/// The words as a display shows them. Red lies in the lowest bits.
Image8u shown(const Image<Vemi16u>& words, const Vemi32u (&bits)[3]) {
  const VemiSize size = words.size();
  Image8u picture(size, 3), channel(size, 1);
  Image<Vemi16u> field(size, 1);
  Vemi32f spread[3][4] = {};
  for (Vemi32u c = 0, position = 0; c < 3; position += bits[c++]) {
    const Vemi32u levels = (1u << bits[c]) - 1;
    spread[c][c] = 255 / static_cast<Vemi32f>(levels);
    CALL(vemiRShiftC_16u_C1R(words.data(), words.step(), position, field.data(), field.step(), size));
    CALL(vemiAndC_16u_C1IR(static_cast<Vemi16u>(levels), field.data(), field.step(), size));
    CALL(vemiConvert_16u8u_C1R(field.data(), field.step(), channel.data(), channel.step(), size));
    CALL(vemiCopy_8u_C1C3R(channel.data(), channel.step(), picture.data() + c, picture.step(), size));
  }
  CALL(vemiColorTwist32f_8u_C3IR(picture.data(), picture.step(), size, spread));
  return picture;
}

constexpr Vemi32u bits565[3] = {5, 6, 5}, bits444[3] = {4, 4, 4};

void showRamps(VemiSize size, Page& page) {
  Frame ramp(size);
  const Vemi32f across = 60.0f / static_cast<Vemi32f>(size.width), down = 40.0f / static_cast<Vemi32f>(size.height);
  CALL(vemiImageRamp_8u_C1R(ramp.y.data(), ramp.y.step(), size, 90, across, vemiRampHorizontal));
  CALL(vemiImageRamp_8u_C1R(ramp.cb.data(), ramp.cb.step(), ramp.cb.size(), 120, down, vemiRampVertical));
  CALL(vemiImageRamp_8u_C1R(ramp.cr.data(), ramp.cr.step(), ramp.cr.size(), 100, 2 * across, vemiRampHorizontal));
  Image<Vemi16u> words(size, 1);
  const Call cut = CALL(vemiYCbCr420ToRGB565_8u16u_P3C3R(ramp.planes, ramp.steps, words.data(), words.step(), size));
  page.show(shown(words, bits565), "A ramp in 565",
            "A slow ramp of luma and chroma in 16 bits a pixel. Five bits have 32 levels: bands.", {cut});
  const Call dithered =
      CALL(vemiYCbCr420ToRGB565Dither_8u16u_P3C3R(ramp.planes, ramp.steps, words.data(), words.step(), size));
  page.show(shown(words, bits565), "The ramp dithered",
            "The same words. A pattern of 4 x 4 thresholds decides which pixels are given the next level: as many of "
            "them as the cut bits say.",
            {dithered});
}

void showPhoto(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const int middle = size.width / 4 * 2;  // between pixels that share no chroma
  const VemiSize left = {middle, size.height}, right = {size.width - middle, size.height};
  Frame frame(size);
  CALL(vemiRGBToYCbCr420_8u_C3P3R(photo.data(), photo.step(), frame.planes, frame.steps, size));
  Image<Vemi16u> words(size, 1);
  const Vemi8u* const rest[3] = {frame.y.at(middle, 0), frame.cb.at(middle / 2, 0), frame.cr.at(middle / 2, 0)};
  const Call cut = CALL(vemiYCbCr420ToRGB444_8u16u_P3C3R(frame.planes, frame.steps, words.data(), words.step(), left));
  const Call dithered =
      CALL(vemiYCbCr420ToRGB444Dither_8u16u_P3C3R(rest, frame.steps, words.at(middle, 0), words.step(), right));
  page.show(shown(words, bits444), "Four bits a channel",
            "The picture as video in 12 bits a pixel: cut on the left, dithered on the right.", {cut, dithered});
}

}  // namespace

void demoPacked(const Demo& demo) {
  showRamps(demo.photo.size(), demo.page);
  showPhoto(demo.photo, demo.page);
}

}  // namespace demo
