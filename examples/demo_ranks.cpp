// vemiFilterMedian and its forms, vemiFilterMin, vemiFilterMax.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr int border = 16;

/// One pixel in sixteen white, one in sixteen black.
Image8u peppered(const Image8u& photo) {
  const VemiSize size = photo.size();
  Image8u noisy = copyOf(photo), noise(size, 1), mask(size, 1);
  const Vemi8u white[3] = {255, 255, 255}, black[3] = {0, 0, 0};
  unsigned seed = 5;
  CALL(vemiSet_8u_C1R(0, noise.data(), noise.step(), size));
  CALL(vemiAddRandUniform_Direct_8u_C1IR(noise.data(), noise.step(), size, 0, 255, &seed));
  CALL(vemiCompareC_8u_C1R(noise.data(), noise.step(), 16, mask.data(), mask.step(), size, vemiCmpLess));
  CALL(vemiSet_8u_C3MR(white, noisy.data(), noisy.step(), size, mask.data(), mask.step()));
  CALL(vemiCompareC_8u_C1R(noise.data(), noise.step(), 240, mask.data(), mask.step(), size, vemiCmpGreaterEq));
  CALL(vemiSet_8u_C3MR(black, noisy.data(), noisy.step(), size, mask.data(), mask.step()));
  return noisy;
}

void showMedians(const Image8u& noisy, Page& page) {
  const VemiSize size = noisy.size();
  const Image8u wide = bordered(noisy, border);
  const Vemi8u* const pixels = wide.at(border, border);
  Image8u mean(size, 3), square(size, 3), cross(size, 3), colour(size, 3), large(size, 3);
  page.show(noisy, "Salt and pepper", "Every eighth pixel is lost, to white or to black.", {});
  page.show(mean, "Mean", "A mean spreads what it is to remove.",
            {CALL(vemiFilterBox_8u_C3R(pixels, wide.step(), mean.data(), mean.step(), size, {3, 3}, {1, 1}))});
  page.show(square, "Median", "The middle one of nine values: grains go, and edges stay where they are.",
            {CALL(vemiFilterMedian_8u_C3R(pixels, wide.step(), square.data(), square.step(), size, {3, 3}, {1, 1}))});
  page.show(cross, "Median of a cross",
            "Five pixels keep lines and corners better. Where three of them are grains, one is left.",
            {CALL(vemiFilterMedianCross_8u_C3R(pixels, wide.step(), cross.data(), cross.step(), size, vemiMask3x3))});
  page.show(colour, "Median of colours",
            "Not a value for each channel, but the one pixel that is nearest to all in the square: no colour comes up "
            "that was not there.",
            {CALL(vemiFilterMedianColor_8u_C3R(pixels, wide.step(), colour.data(), colour.step(), size, vemiMask5x5))});
  page.show(large, "Median of 441 pixels",
            "Large masks make flat shapes with sharp edges, in the same time for any mask.",
            {CALL(vemiFilterMedian_8u_C3R(pixels, wide.step(), large.data(), large.step(), size, {21, 21}, {10, 10}))});
}

void showLines(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u scratched = copyOf(photo), mended(size, 3);
  const Vemi8u white[3] = {255, 255, 255};
  for (int x = 20; x + 2 <= size.width; x += 37) {
    CALL(vemiSet_8u_C3R(white, scratched.at(x, 0), scratched.step(), {2, size.height}));
  }
  const Image8u wide = bordered(scratched, border);
  page.show(scratched, "Scratched", "Two columns are white, again and again.", {});
  page.show(mended, "Mended", "The median of five pixels of a row: two of them may be wrong.",
            {CALL(vemiFilterMedianHoriz_8u_C3R(wide.at(border, border), wide.step(), mended.data(), mended.step(), size,
                                               vemiMask5x1))});
}

void showExtremes(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  const Vemi8u* const pixels = wide.at(border, border);
  Image8u light(size, 3), dark(size, 3), range(size, 3);
  page.show(light, "Maximum", "The greatest value of each channel in nine by nine pixels.",
            {CALL(vemiFilterMax_8u_C3R(pixels, wide.step(), light.data(), light.step(), size, {9, 9}, {4, 4}))});
  page.show(dark, "Minimum", "The least one, of fifteen columns and one row.",
            {CALL(vemiFilterMin_8u_C3R(pixels, wide.step(), dark.data(), dark.step(), size, {15, 1}, {7, 0}))});
  const Call most = CALL(vemiFilterMax_8u_C3R(pixels, wide.step(), range.data(), range.step(), size, {3, 3}, {1, 1}));
  const Call least = CALL(vemiFilterMin_8u_C3R(pixels, wide.step(), dark.data(), dark.step(), size, {3, 3}, {1, 1}));
  page.show(range, "Range", "The greatest minus the least of nine: edges of all directions.",
            {most, least, CALL(vemiSub_8u_C3IRSfs(dark.data(), dark.step(), range.data(), range.step(), size, 0))});
}

}  // namespace

void demoRanks(const Demo& demo) {
  showMedians(peppered(demo.photo), demo.page);
  showLines(demo.photo, demo.page);
  showExtremes(demo.photo, demo.page);
}

}  // namespace demo
