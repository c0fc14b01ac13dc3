// vemiResize, vemiResizeCenter, vemiResizeShift, vemiGetResizeFract.

#include <algorithm>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// Eight times a crop of 40x30 pixels.
constexpr VemiSize shown = {320, 240};

VemiRect wholeOf(const Image8u& image) { return {0, 0, image.width(), image.height()}; }

/// A crop, the same for all, left of the middle and below it.
VemiRect cropOf(const Image8u& photo) {
  constexpr VemiSize crop = {40, 30};
  return {(photo.width() - crop.width) / 5, (photo.height() - crop.height) * 2 / 3, crop.width, crop.height};
}

void showEnlarged(const Image8u& photo, Page& page) {
  const VemiRect crop = cropOf(photo);
  constexpr double factor = 8;
  const struct {
    int interpolation;
    const char *title, *text;
  } kinds[] = {
      {vemiInterNearest, "Eight times: nearest", "Each pixel is a square."},
      {vemiInterLinear, "Eight times: linear", "Two pixels each way: straight slopes between pixels, with creases."},
      {vemiInterCubic, "Eight times: cubic",
       "Four pixels each way, by the polynomial through them: smooth and sharper."},
      {vemiInterLanczos, "Eight times: Lanczos",
       "Six pixels each way, by a windowed sinc: the sharpest edges, with a faint echo beside them."},
  };
  for (const auto& kind : kinds) {
    Image8u large(shown, 3);
    page.show(large, kind.title, kind.text,
              {CALL(vemiResize_8u_C3R(photo.data(), photo.size(), photo.step(), crop, large.data(), large.step(),
                                      large.size(), factor, factor, kind.interpolation))});
  }
  // Areas do not enlarge: the whole picture in the same size is what they are for.
  Image8u mean(shown, 3);
  const double fit = std::min(
      {1.0, static_cast<double>(shown.width) / photo.width(), static_cast<double>(shown.height) / photo.height()});
  const Vemi8u grey[3] = {128, 128, 128};
  const Call background = CALL(vemiSet_8u_C3R(grey, mean.data(), mean.step(), mean.size()));
  page.show(mean, "The fifth: area averaging",
            "Means of what a pixel covers, for factors of at most 1. What the picture does not fill is left alone.",
            {background, CALL(vemiResize_8u_C3R(photo.data(), photo.size(), photo.step(), wholeOf(photo), mean.data(),
                                                mean.step(), mean.size(), fit, fit, vemiInterSuper))});
}

/// Rings that grow finer outwards: what a reduction must not turn into other rings.
Image8u rings() {
  Image8u image({480, 480}, 1);
  CALL(vemiImageJaehne_8u_C1R(image.data(), image.step(), image.size()));
  return image;
}

void showReduced(const Image8u& photo, Page& page) {
  const VemiSize small = {std::max(1, photo.width() / 4), std::max(1, photo.height() / 4)};
  Image8u picked(small, 3), mean(small, 3);
  page.show(picked, "A quarter: nearest", "One pixel of sixteen: thin lines break, and what is fine turns into noise.",
            {CALL(vemiResize_8u_C3R(photo.data(), photo.size(), photo.step(), wholeOf(photo), picked.data(),
                                    picked.step(), small, 0.25, 0.25, vemiInterNearest))});
  page.show(mean, "A quarter: area averaging", "The mean of all sixteen.",
            {CALL(vemiResize_8u_C3R(photo.data(), photo.size(), photo.step(), wholeOf(photo), mean.data(), mean.step(),
                                    small, 0.25, 0.25, vemiInterSuper))});
  const Image8u fine = rings();
  Image8u aliased({160, 160}, 1), grey({160, 160}, 1);
  page.show(aliased, "A chirp's third: nearest", "Most of these rings are not in the original.",
            {CALL(vemiResize_8u_C1R(fine.data(), fine.size(), fine.step(), wholeOf(fine), aliased.data(),
                                    aliased.step(), aliased.size(), 1 / 3.0, 1 / 3.0, vemiInterNearest))});
  page.show(grey, "A chirp's third: area averaging", "What is too fine for the smaller picture turns grey.",
            {CALL(vemiResize_8u_C1R(fine.data(), fine.size(), fine.step(), wholeOf(fine), grey.data(), grey.step(),
                                    grey.size(), 1 / 3.0, 1 / 3.0, vemiInterSuper))});
}

void showPlaced(const Image8u& photo, Page& page) {
  const VemiRect all = wholeOf(photo);
  Image8u close(shown, 3), tiles(shown, 3);
  const Vemi8u grey[3] = {128, 128, 128};
  CALL(vemiSet_8u_C3R(grey, close.data(), close.step(), shown));
  page.show(close, "A point in the middle", "Twice as large, with the point at a third of the picture in the centre.",
            {CALL(vemiResizeCenter_8u_C3R(photo.data(), photo.size(), photo.step(), all, close.data(), close.step(),
                                          shown, 2, 2, photo.width() / 3.0, photo.height() / 3.0, vemiInterCubic))});

  const VemiRect crop = cropOf(photo);
  double stepX = 0, stepY = 0;
  const Call steps = CALL(vemiGetResizeFract(photo.size(), crop, 8, 8, &stepX, &stepY, vemiInterCubic));
  const int half = shown.width / 2;
  const Call left =
      CALL(vemiResizeShift_8u_C3R(photo.data(), photo.size(), photo.step(), crop, tiles.data(), tiles.step(),
                                  {half, shown.height}, stepX, stepY, 0, 0, vemiInterCubic));
  const Call right =
      CALL(vemiResizeShift_8u_C3R(photo.data(), photo.size(), photo.step(), crop, tiles.at(half, 0), tiles.step(),
                                  {half, shown.height}, stepX, stepY, half * stepX, 0, vemiInterCubic));
  page.show(tiles, "Two tiles", "Left and right by calls of their own: the shift is where the right one begins.",
            {steps, left, right});
}

}  // namespace

void demoResize(const Demo& demo) {
  showEnlarged(demo.photo, demo.page);
  showReduced(demo.photo, demo.page);
  showPlaced(demo.photo, demo.page);
}

}  // namespace demo
