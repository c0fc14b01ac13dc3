// Layouts of video frames and their filters, orders of channels, grey and the photographic model.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// A plane of luma and two of chroma, of which `across` columns and `down` rows share a sample.
struct Frame {
  Image8u y, cb, cr;
  Vemi8u* const planes[3];
  const int steps[3];

  Frame(VemiSize size, int across, int down)
      : y(size, 1),
        cb({size.width / across, size.height / down}, 1),
        cr({size.width / across, size.height / down}, 1),
        planes{y.data(), cb.data(), cr.data()},
        steps{y.step(), cb.step(), cr.step()} {}
};

/// Each pixel as a square.
Image8u enlarged(const Image8u& small, int factor) {
  Image8u large({small.width() * factor, small.height() * factor}, 3);
  for (int y = 0; y < small.height(); y++) {
    for (int x = 0; x < small.width(); x++) {
      CALL(vemiSet_8u_C3R(small.at(x, y), large.at(x * factor, y * factor), large.step(), {factor, factor}));
    }
  }
  return large;
}

/// A red disc and blue lines on green, of much the same luma, so that the edges are edges of colour.
Image8u drawEdges(VemiSize size) {
  constexpr Vemi8u green[3] = {20, 140, 40}, red[3] = {225, 40, 50}, blue[3] = {70, 90, 255};
  Image8u card(size, 3);
  CALL(vemiSet_8u_C3R(green, card.data(), card.step(), size));
  forEachRow(ellipseWithin(size, 3), size, [&](int x, int y, int width) {
    CALL(vemiSet_8u_C3R(red, card.at(x, y), card.step(), {width, 1}));
  });
  for (int n = 3; n < size.width && n < size.height; n += 7) {
    CALL(vemiSet_8u_C3R(blue, card.at(n, 0), card.step(), {1, size.height}));
    CALL(vemiSet_8u_C3R(blue, card.at(0, n), card.step(), {size.width, 1}));
  }
  return card;
}

void showChroma(VemiSize photoSize, Page& page) {
  constexpr int factor = 6;
  const VemiSize size = {photoSize.width / factor / 8 * 8 + 8, photoSize.height / factor / 8 * 8 + 8};
  const Image8u card = drawEdges(size);
  Image8u packed(size, 2), result(size, 3);
  Frame halves(size, 2, 1), quarters(size, 2, 2), across(size, 4, 1);

  page.show(enlarged(card, factor), "Edges of colour", "A small picture, its pixels drawn as squares.", {});
  const Call to422 = CALL(vemiRGBToYCbCr422_8u_C3C2R(card.data(), card.step(), packed.data(), packed.step(), size));
  const Call from422 =
      CALL(vemiYCbCr422ToRGB_8u_C2C3R(packed.data(), packed.step(), result.data(), result.step(), size));
  page.show(enlarged(result, factor), "4:2:2",
            "Two pixels of a row share chroma: upright lines lose half their colour.", {to422, from422});

  const Call dropped =
      CALL(vemiYCbCr422ToYCbCr420_8u_C2P3R(packed.data(), packed.step(), quarters.planes, quarters.steps, size));
  CALL(vemiYCbCr420ToRGB_8u_P3C3R(quarters.planes, quarters.steps, result.data(), result.step(), size));
  page.show(
      enlarged(result, factor), "4:2:0, rows dropped",
      "Every second chroma row is dropped, not averaged: of the lines across, those in odd rows lose their colour "
      "and those in even rows give it to the row below.",
      {dropped});

  const Call interpolated =
      CALL(vemiYCbCr420ToYCbCr422Filter_8u_P3R(quarters.planes, quarters.steps, halves.planes, halves.steps, size));
  CALL(vemiYCbCr422ToRGB_8u_P3C3R(halves.planes, halves.steps, result.data(), result.step(), size));
  page.show(
      enlarged(result, factor), "4:2:0 with a filter",
      "The chroma rows that are missing come from four neighbours: the rim of the disc is smoother, the lines are "
      "wider.",
      {interpolated});

  const Call to411 =
      CALL(vemiYCbCr422ToYCbCr411_8u_C2P3R(packed.data(), packed.step(), across.planes, across.steps, size));
  const Call from411 =
      CALL(vemiYCbCr411ToYCbCr422_8u_P3C2R(across.planes, across.steps, packed.data(), packed.step(), size));
  CALL(vemiYCbCr422ToRGB_8u_C2C3R(packed.data(), packed.step(), result.data(), result.step(), size));
  page.show(enlarged(result, factor), "4:1:1",
            "Four pixels of a row share chroma, of which every second sample is kept.", {to411, from411});
}

/// Every second row is from a moment later.
Image8u fieldsOf(const Image8u& photo, int motion) {
  Image8u woven = copyOf(photo);
  for (int y = 1; y < photo.height(); y += 2) {
    CALL(vemiCopy_8u_C3R(photo.at(motion, y), photo.step(), woven.at(0, y), woven.step(), {photo.width() - motion, 1}));
  }
  return woven;
}

void showFields(const Image8u& photo, Page& page) {
  const VemiSize size = {photo.width() / 2 * 2, photo.height() / 2 * 2};
  const Image8u woven = fieldsOf(photo, 6);
  Frame frame(size, 2, 2);
  Image8u luma(size, 1), pairs({size.width, size.height / 2}, 1), packed(size, 2), result(size, 3);
  CALL(vemiRGBToYCbCr420_8u_C3P3R(woven.data(), woven.step(), frame.planes, frame.steps, size));
  const Call paired = CALL(vemiYCbCr420ToYCbCr420_8u_P3P2R(frame.planes, frame.steps, luma.data(), luma.step(),
                                                           pairs.data(), pairs.step(), size));
  const Call joined = CALL(
      vemiJoin420_8u_P2C2R(luma.data(), luma.step(), pairs.data(), pairs.step(), packed.data(), packed.step(), size));
  CALL(vemiYCbCr422ToRGB_8u_C2C3R(packed.data(), packed.step(), result.data(), result.step(), size));
  page.show(result, "Two fields of a moving picture",
            "Odd rows are from a moment later. As planes, as luma and pairs, and packed: the bytes only move.",
            {paired, joined});
  const Call filtered = CALL(vemiJoin420_Filter_8u_P2C2R(luma.data(), luma.step(), pairs.data(), pairs.step(),
                                                         packed.data(), packed.step(), size, 21));
  CALL(vemiYCbCr422ToRGB_8u_C2C3R(packed.data(), packed.step(), result.data(), result.step(), size));
  page.show(result, "Fields filtered",
            "Each luma row is mixed with its neighbours, and the comb is gone. 21: a whole frame.", {filtered});
}

void showOrders(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const int reversed[3] = {2, 1, 0}, first[3] = {0, 0, 0};
  Image8u result = copyOf(photo);
  page.show(result, "BGR taken for RGB", "The channels in reverse, in place; again, and it is as it was.",
            {CALL(vemiSwapChannels_8u_C3IR(result.data(), result.step(), size, reversed))});
  page.show(result, "Red for all", "One channel may be copied thrice.",
            {CALL(vemiSwapChannels_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), size, first))});
}

void showGrey(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi32f redFilter[3] = {0.9f, 0.1f, 0}, blueFilter[3] = {0, 0.1f, 0.9f};
  Image8u grey(size, 1), ycc(size, 3);
  page.show(grey, "Grey", "0.299 red, 0.587 green, 0.114 blue: as bright as the eye sees it.",
            {CALL(vemiRGBToGray_8u_C3C1R(photo.data(), photo.step(), grey.data(), grey.step(), size))});
  page.show(grey, "Through a red filter", "Weights of your own: blue skies darken.",
            {CALL(vemiColorToGray_8u_C3C1R(photo.data(), photo.step(), grey.data(), grey.step(), size, redFilter))});
  page.show(grey, "Through a blue filter", "The plates of the first photographers saw little red.",
            {CALL(vemiColorToGray_8u_C3C1R(photo.data(), photo.step(), grey.data(), grey.step(), size, blueFilter))});

  const Call to = CALL(vemiRGBToYCC_8u_C3R(photo.data(), photo.step(), ycc.data(), ycc.step(), size));
  page.show(ycc, "YCC as it stands", "Luma, C1 and C2 shown as red, green and blue.", {to});
}

}  // namespace

void demoVideo(const Demo& demo) {
  showChroma(demo.photo.size(), demo.page);
  showFields(demo.photo, demo.page);
  showOrders(demo.photo, demo.page);
  showGrey(demo.photo, demo.page);
}

}  // namespace demo
