// vemiReduceBits, and vemiQualityIndex of what a picture may suffer.

#include <algorithm>
#include <cstdio>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

void showDithers(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u grey(size, 1), result(size, 1);
  CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), grey.data(), grey.step(), size));
  page.show(result, "The nearest of eight greys", "The green channel: where it changes slowly, bands appear.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 0, vemiDitherNone,
                                        8))});
  page.show(result, "Eight greys and noise",
            "Noise of a whole step from level to level: means are right, but all is grain.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 100,
                                        vemiDitherNone, 8))});
  page.show(result, "Eight greys by Bayer's matrix",
            "A threshold for each pixel of a square of 8 x 8: regular, and each pixel by itself.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 0,
                                        vemiDitherBayer, 8))});
  page.show(result, "Eight greys by Floyd and Steinberg",
            "What a pixel loses goes to four neighbours: the sharpest picture.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 0,
                                        vemiDitherFloydSteinberg, 8))});
  page.show(result, "Eight greys by Jarvis, Judice and Ninke", "To twelve neighbours, in two rows below.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 0,
                                        vemiDitherJarvisJudiceNinke, 8))});
  page.show(result, "Eight greys by Stucki", "To the same twelve, with more for those nearby.",
            {CALL(vemiReduceBits_8u_C1R(grey.data(), grey.step(), result.data(), result.step(), size, 0,
                                        vemiDitherStucki, 8))});

  Image8u colours(size, 3);
  page.show(colours, "Twenty-seven colours",
            "Three levels a channel. A little noise breaks the patterns that errors would draw, and the errors keep "
            "account of it.",
            {CALL(vemiReduceBits_8u_C3R(photo.data(), photo.step(), colours.data(), colours.step(), size, 20,
                                        vemiDitherFloydSteinberg, 3))});
}

/// Blocks of 8 x 8 pixels, each with its mean colour: what a coarse compression leaves of fine detail.
Image8u blocksOf(const Image8u& photo) {
  Image8u blocks(photo.size(), 3);
  for (int y = 0; y < photo.height(); y += 8) {
    for (int x = 0; x < photo.width(); x += 8) {
      const VemiSize size = {std::min(8, photo.width() - x), std::min(8, photo.height() - y)};
      double mean[3];
      CALL(vemiMean_8u_C3R(photo.at(x, y), photo.step(), size, mean));
      const Vemi8u value[3] = {static_cast<Vemi8u>(mean[0]), static_cast<Vemi8u>(mean[1]),
                               static_cast<Vemi8u>(mean[2])};
      CALL(vemiSet_8u_C3R(value, blocks.at(x, y), blocks.step(), size));
    }
  }
  return blocks;
}

/// A line of the table: what has been done, the index of each channel, and the call that did it, or this one's.
std::vector<std::string> line(const char* what, const Image8u& photo, const Image8u& other,
                              const Call* made = nullptr) {
  float index[3];
  const Call measured =
      CALL(vemiQualityIndex_8u32f_C3R(photo.data(), photo.step(), other.data(), other.step(), photo.size(), index));
  std::vector<std::string> cells = {what};
  for (const float each : index) {
    char text[16];
    std::snprintf(text, sizeof text, "%.3f", static_cast<double>(each));
    cells.push_back(text);
  }
  cells.push_back("<code>" + escaped((made != nullptr ? *made : measured).text) + "</code>");
  return cells;
}

void showQuality(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u more[3] = {25, 25, 25};
  const Image8u wide = bordered(photo, 3), blocks = blocksOf(photo);
  Image8u light = copyOf(photo), noisy = copyOf(photo), blurred(size, 3), nearest(size, 3), diffused(size, 3);
  Vemi32u seed = 1;
  const Call sum = CALL(vemiAddC_8u_C3IRSfs(more, light.data(), light.step(), size, 0));
  const Call noise = CALL(vemiAddRandGauss_Direct_8u_C3IR(noisy.data(), noisy.step(), size, 0, 25, &seed));
  const Call blur =
      CALL(vemiFilterBox_8u_C3R(wide.at(3, 3), wide.step(), blurred.data(), blurred.step(), size, {7, 7}, {3, 3}));
  const Call undiffused = CALL(
      vemiReduceBits_8u_C3R(photo.data(), photo.step(), nearest.data(), nearest.step(), size, 0, vemiDitherNone, 8));
  const Call diffusion = CALL(vemiReduceBits_8u_C3R(photo.data(), photo.step(), diffused.data(), diffused.step(), size,
                                                    0, vemiDitherFloydSteinberg, 8));
  page.table({"the photograph against", "red", "green", "blue", "call"},
             {line("itself", photo, photo), line("itself, brighter", photo, light, &sum),
              line("a blur", photo, blurred, &blur), line("eight levels, the nearest", photo, nearest, &undiffused),
              line("eight levels, diffused", photo, diffused, &diffusion), line("noise", photo, noisy, &noise),
              line("blocks of one colour", photo, blocks), line("its mirror image", photo, mirrored(photo))});
  page.show(noisy, "Much noise",
            "A standard deviation of 25: flat areas are no longer flat, which the index minds most.", {noise});
  page.show(blurred, "Little blur", "The mean of 49 pixels keeps more of the picture, though fine detail is gone.",
            {blur});
  page.show(blocks, "Blocks", "Squares of 8 x 8, each with the mean that vemiMean finds in it.", {});
}

}  // namespace

void demoLevels(const Demo& demo) {
  showDithers(demo.photo, demo.page);
  showQuality(demo.photo, demo.page);
}

}  // namespace demo
