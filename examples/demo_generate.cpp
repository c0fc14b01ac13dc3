// vemiImageRamp, vemiImageJaehne, the noise of vemiAddRandUniform_Direct and vemiAddRandGauss_Direct, and the windows.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

constexpr VemiSize square = {256, 256};

void showRamps(Page& page) {
  Image8u sheet({3 * 256, 256}, 1);
  page.show(sheet, "Ramps",
            "From column to column, from row to row, and with the product of both. A ramp is an offset and a slope, "
            "rounded and limited at the ends of the type.",
            {CALL(vemiImageRamp_8u_C1R(sheet.data(), sheet.step(), square, 0, 1, vemiRampHorizontal)),
             CALL(vemiImageRamp_8u_C1R(sheet.at(256, 0), sheet.step(), square, 255, -1, vemiRampVertical)),
             CALL(vemiImageRamp_8u_C1R(sheet.at(512, 0), sheet.step(), square, 0, 1.0f / 255, vemiRampBoth))});
}

void showChirp(Page& page) {
  Image8u rings({512, 384}, 1);
  page.show(rings, "A chirp",
            "Rings that get narrower as they get wider: all frequencies in all directions. What a filter or a change "
            "of size does to fine detail shows here at a glance.",
            {CALL(vemiImageJaehne_8u_C1R(rings.data(), rings.step(), rings.size()))});
}

void showNoise(const Image8u& photo, Page& page) {
  const VemiSize right = {photo.width() - photo.width() / 2, photo.height()};
  const int middle = photo.width() / 2;
  Vemi32u seed = 4711;
  Image8u grain = copyOf(photo), bright = copyOf(photo);
  page.show(grain, "Grain",
            "Normal noise with a standard deviation of 25 on the right half, each channel with its own. The same seed "
            "gives the same grain, on every machine.",
            {CALL(vemiAddRandGauss_Direct_8u_C3IR(grain.at(middle, 0), grain.step(), right, 0, 25, &seed))});
  page.show(bright, "Snow",
            "Uniform noise from 0 to 90 on the right half. Bytes have no sign, so this noise can only brighten.",
            {CALL(vemiAddRandUniform_Direct_8u_C3IR(bright.at(middle, 0), bright.step(), right, 0, 90, &seed))});

  Image<Vemi16s> fine = converted<Vemi16s>(photo);
  const Call added = CALL(vemiAddRandUniform_Direct_16s_C3IR(fine.at(middle, 0), fine.step(), right, -45, 45, &seed));
  page.show(converted<Vemi8u>(fine), "Noise about zero", "The same range in 16 bits, where it leaves the brightness.",
            {added});
}

void showWindows(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u grey(size, 1), white(size, 1), sheet({2 * size.width, 2 * size.height}, 1);
  CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), grey.data(), grey.step(), size));
  CALL(vemiSet_8u_C1R(255, white.data(), white.step(), size));
  const auto place = [&](int n) { return sheet.at(n % 2 * size.width, n / 2 * size.height); };
  page.show(sheet, "Four windows",
            "On white, to see them alone: triangle and Hamming window, above as products of a row and a column, below "
            "around the middle. Outside of its ellipse a radial window is zero.",
            {CALL(vemiWinBartlettSep_8u_C1R(white.data(), white.step(), place(0), sheet.step(), size)),
             CALL(vemiWinHammingSep_8u_C1R(white.data(), white.step(), place(1), sheet.step(), size)),
             CALL(vemiWinBartlett_8u_C1R(white.data(), white.step(), place(2), sheet.step(), size)),
             CALL(vemiWinHamming_8u_C1R(white.data(), white.step(), place(3), sheet.step(), size))});
  page.show(grey, "Under a window",
            "The green channel under the radial Hamming window, ready for a Fourier transform: left and right, top and "
            "bottom meet without an edge.",
            {CALL(vemiWinHamming_8u_C1IR(grey.data(), grey.step(), size))});
}

}  // namespace

void demoGenerate(const Demo& demo) {
  showRamps(demo.page);
  showChirp(demo.page);
  showNoise(demo.photo, demo.page);
  showWindows(demo.photo, demo.page);
}

}  // namespace demo
