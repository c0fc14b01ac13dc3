// vemiFilterSobelHoriz to vemiFilterLowpass: filters with fixed kernels.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// Fits 5x5 kernels.
constexpr int border = 2;

/// Slopes as a picture: a quarter of them, and middle grey where there is none.
Image8u signedPicture(Image<Vemi16s>& slopes) {
  const VemiSize size = slopes.size();
  Image8u picture(size, 1);
  CALL(vemiAddC_16s_C1IRSfs(512, slopes.data(), slopes.step(), size, 2));
  CALL(vemiConvert_16s8u_C1R(slopes.data(), slopes.step(), picture.data(), picture.step(), size));
  return picture;
}

void showGradients(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  Image8u grey(wide.size(), 1);
  CALL(vemiRGBToGray_8u_C3C1R(wide.data(), wide.step(), grey.data(), grey.step(), grey.size()));
  const Vemi8u* const pixels = grey.at(border, border);
  const int step = grey.step();
  Image<Vemi16s> slope(size, 1);

  const Call down = CALL(vemiFilterSobelHoriz_8u16s_C1R(pixels, step, slope.data(), slope.step(), size, vemiMask3x3));
  page.show(signedPicture(slope), "Sobel, horizontal edges",
            "What is below minus what is above: lighter than middle grey where the picture gets brighter downwards, "
            "darker where it gets darker.",
            {down});
  const Call across = CALL(vemiFilterSobelVert_8u16s_C1R(pixels, step, slope.data(), slope.step(), size, vemiMask3x3));
  page.show(signedPicture(slope), "Sobel, vertical edges", "What is left minus what is right.", {across});
  const Call scharr = CALL(vemiFilterScharrVert_8u16s_C1R(pixels, step, slope.data(), slope.step(), size));
  page.show(signedPicture(slope), "Scharr, vertical edges",
            "Right minus left, so the signs are the other way round; four times as strong, and many slopes reach "
            "black or white.",
            {scharr});
  const Call cross = CALL(vemiFilterSobelCross_8u16s_C1R(pixels, step, slope.data(), slope.step(), size, vemiMask5x5));
  page.show(signedPicture(slope), "Sobel, mixed derivative",
            "Once in each direction: nothing along straight edges that go across or down, much at corners.", {cross});
  const Call laplace = CALL(vemiFilterLaplace_8u16s_C1R(pixels, step, slope.data(), slope.step(), size, vemiMask3x3));
  page.show(signedPicture(slope), "Laplace", "By how much a pixel differs from its eight neighbours, whatever the way.",
            {laplace});
}

void showColours(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  const Vemi8u* const pixels = wide.at(border, border);
  const Vemi8u eight[3] = {8, 8, 8};
  Image8u prewitt(size, 3), roberts(size, 3), sharp(size, 3), soft(size, 3), softer(size, 3);
  page.show(prewitt, "Prewitt, in bytes",
            "Each channel by itself. Bytes have no sign: where the picture gets darker downwards, nothing is left.",
            {CALL(vemiFilterPrewittHoriz_8u_C3R(pixels, wide.step(), prewitt.data(), prewitt.step(), size))});
  page.show(roberts, "Roberts", "A pixel minus the one above it and to its right, eight times as bright.",
            {CALL(vemiFilterRobertsUp_8u_C3R(pixels, wide.step(), roberts.data(), roberts.step(), size)),
             CALL(vemiMulC_8u_C3IRSfs(eight, roberts.data(), roberts.step(), size, 0))});
  page.show(sharp, "Sharpened", "The pixel, and an eighth of what the Laplace filter finds.",
            {CALL(vemiFilterSharpen_8u_C3R(pixels, wide.step(), sharp.data(), sharp.step(), size))});
  page.show(soft, "Gauss", "Five by five pixels, weighted by a bell whose weights add up to 571.",
            {CALL(vemiFilterGauss_8u_C3R(pixels, wide.step(), soft.data(), soft.step(), size, vemiMask5x5))});
  const Image8u softWide = bordered(soft, border);
  page.show(softer, "Gauss twice", "The blurred picture blurred again: two bells make a wider one.",
            {CALL(vemiFilterGauss_8u_C3R(softWide.at(border, border), softWide.step(), softer.data(), softer.step(),
                                         size, vemiMask5x5))});
}

}  // namespace

void demoEdges(const Demo& demo) {
  showGradients(demo.photo, demo.page);
  showColours(demo.photo, demo.page);
}

}  // namespace demo
