// vemiRGBToYUV, vemiRGBToYCbCr and back; chroma that pixels share, in 4:2:2 and 4:2:0.

#include <algorithm>

#include "demo.h"
#include "pictures.h"
#include "prepare.h"

namespace demo {
namespace {

Image8u small(const Image8u& photo) {
  Image8u rgba(photo.size(), 4);
  const Vemi8u white[4] = {255, 255, 255, 255};
  CALL(vemiSet_8u_C4R(white, rgba.data(), rgba.step(), rgba.size()));
  CALL(vemiCopy_8u_C3AC4R(photo.data(), photo.step(), rgba.data(), rgba.step(), photo.size()));
  const Image8u half = halved(rgba);
  Image8u rgb(half.size(), 3);
  CALL(vemiCopy_8u_AC4C3R(half.data(), half.step(), rgb.data(), rgb.step(), half.size()));
  return rgb;
}

void showPlanes(const Image8u& photo, Page& page) {
  const Image8u part = small(photo);
  const VemiSize size = part.size();
  Image8u yuv({3 * size.width, size.height}, 1), ycbcr(yuv.size(), 1);
  Vemi8u* const side[3] = {yuv.at(0, 0), yuv.at(size.width, 0), yuv.at(2 * size.width, 0)};
  page.show(
      yuv, "YUV",
      "Luma, and the differences of blue and of red to it, each plane at its place in one picture. Where there is "
      "no colour, chroma is 128.",
      {CALL(vemiRGBToYUV_8u_C3P3R(part.data(), part.step(), side, yuv.step(), size))});

  Image8u planes(yuv.size(), 1);
  Vemi8u* const colours[3] = {planes.at(0, 0), planes.at(size.width, 0), planes.at(2 * size.width, 0)};
  Vemi8u* const video[3] = {ycbcr.at(0, 0), ycbcr.at(size.width, 0), ycbcr.at(2 * size.width, 0)};
  const Call split = CALL(vemiCopy_8u_C3P3R(part.data(), part.step(), colours, planes.step(), size));
  page.show(ycbcr, "YCbCr", "The model of video: black is 16 and white 235, and the chroma of full colours 16 or 240.",
            {split, CALL(vemiRGBToYCbCr_8u_P3R(colours, planes.step(), video, ycbcr.step(), size))});
}

/// Red and blue bars, a pixel wider from one to the next, and below them the same bars across.
Image8u bars() {
  const VemiSize size = {78, 39};
  const Vemi8u red[3] = {220, 30, 40}, blue[3] = {40, 60, 230};
  Image8u picture(size, 3);
  CALL(vemiSet_8u_C3R(blue, picture.data(), picture.step(), size));
  for (int at = 1, width = 1; width <= 5; at += 2 * width, width++) {
    CALL(vemiSet_8u_C3R(red, picture.at(at, 0), picture.step(), {width, size.height}));
    CALL(vemiSet_8u_C3R(red, picture.at(39, at), picture.step(), {39, width}));
  }
  return picture;
}

/// Each pixel as a square.
Image8u enlarged(const Image8u& picture, int side) {
  Image8u large({picture.width() * side, picture.height() * side}, 3);
  for (int y = 0; y < picture.height(); y++) {
    for (int x = 0; x < picture.width(); x++) {
      CALL(vemiSet_8u_C3R(picture.at(x, y), large.at(x * side, y * side), large.step(), {side, side}));
    }
  }
  return large;
}

void showSampling(Page& page) {
  const Image8u edges = bars();
  const VemiSize size = edges.size();
  page.show(enlarged(edges, 6), "Colour edges",
            "Bars of one to five pixels, upright and lying; each pixel six times as large.", {});

  Image8u pairs(size, 2), back(size, 3);
  const Call toPairs = CALL(vemiRGBToYCbCr422_8u_C3C2R(edges.data(), edges.step(), pairs.data(), pairs.step(), size));
  const Call fromPairs = CALL(vemiYCbCr422ToRGB_8u_C2C3R(pairs.data(), pairs.step(), back.data(), back.step(), size));
  page.show(enlarged(back, 6), "4:2:2 and back",
            "Two pixels beside each other share chroma. Upright bars that end within a pair lose their colour there; "
            "lying ones keep it.",
            {toPairs, fromPairs});

  const VemiSize half = {(size.width + 1) / 2, (size.height + 1) / 2};
  Image8u luma(size, 1), cb(half, 1), cr(half, 1);
  Vemi8u* const to[3] = {luma.data(), cb.data(), cr.data()};
  const Vemi8u* const from[3] = {luma.data(), cb.data(), cr.data()};
  const int steps[3] = {luma.step(), cb.step(), cr.step()};
  const Call toPlanes = CALL(vemiRGBToYCbCr420_8u_C3P3R(edges.data(), edges.step(), to, steps, size));
  const Call fromPlanes = CALL(vemiYCbCr420ToRGB_8u_P3C3R(from, steps, back.data(), back.step(), size));
  page.show(
      enlarged(back, 6), "4:2:0 and back",
      "Two by two pixels share chroma, so that lying bars lose theirs as well. Luma is as sharp as ever. The last "
      "row is the odd one: its pairs have chroma of their own.",
      {toPlanes, fromPlanes});
}

void showPhoto(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u pairs(size, 2), screen(size, 4);
  const Call filtered = CALL(vemiRGBToCbYCr422_8u_C3C2R(photo.data(), photo.step(), pairs.data(), pairs.step(), size));
  const Call opaque =
      CALL(vemiCbYCr422ToBGR_8u_C2C4R(pairs.data(), pairs.step(), screen.data(), screen.step(), size, 255));
  page.show(
      screen, "Through CbYCr 4:2:2, as B, G, R, alpha",
      "What a screen wants: shown here as if it were R, G, B, so that red and blue are exchanged. Half the chroma "
      "is gone, and hardly to be missed.",
      {filtered, opaque});
}

}  // namespace

void demoLuma(const Demo& demo) {
  showPlanes(demo.photo, demo.page);
  showSampling(demo.page);
  showPhoto(demo.photo, demo.page);
}

}  // namespace demo
