// vemiFilter and its row and column forms, vemiFilterWiener.

#include <iomanip>
#include <sstream>
#include <vector>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// Fits the largest kernel below.
constexpr int border = 20;

void showKernels(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, border);
  const Vemi8u* const pixels = wide.at(border, border);
  Image8u relief(size, 3), outline(size, 3), shaken(size, 3), column(size, 3);

  const Vemi32s emboss[9] = {-2, -1, 0, -1, 1, 1, 0, 1, 2};
  page.show(
      relief, "Relief",
      "A kernel of integers that add up to 1, lit from one corner: a picture without edges stays as it is.",
      {CALL(vemiFilter_8u_C3R(pixels, wide.step(), relief.data(), relief.step(), size, emboss, {3, 3}, {1, 1}, 1))});

  const Vemi32s edges[25] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -24, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  page.show(
      outline, "Outlines on white",
      "A pixel's difference from its 24 neighbours; what the divisor of -2 leaves is the other sign's half.",
      {CALL(vemiFilter_8u_C3R(pixels, wide.step(), outline.data(), outline.step(), size, edges, {5, 5}, {2, 2}, -2)),
       CALL(vemiNot_8u_C3IR(outline.data(), outline.step(), size))});

  std::vector<Vemi32f> diagonal(31 * 31, 0.0f);
  for (size_t i = 0; i < 31; ++i) diagonal[i * 32] = 1.0f / 31;
  page.show(shaken, "Shaken", "31 taps of floats along a diagonal, and zeros that take no time beside bytes.",
            {CALL(vemiFilter32f_8u_C3R(pixels, wide.step(), shaken.data(), shaken.step(), size, diagonal.data(),
                                       {31, 31}, {15, 15}))});

  std::vector<Vemi32f> fading(20);
  for (size_t i = 0; i < fading.size(); ++i) fading[i] = static_cast<Vemi32f>(i + 1) / 210;
  page.show(
      column, "Rain",
      "A column of twenty taps that grow: with the anchor at 0 each pixel looks upwards alone, where the last tap "
      "lies.",
      {CALL(
          vemiFilterColumn32f_8u_C3R(pixels, wide.step(), column.data(), column.step(), size, fading.data(), 20, 0))});
}

std::string percentagesOf(const Vemi32f (&noise)[3]) {
  std::ostringstream text;
  text << std::setprecision(2);
  for (const Vemi32f channel : noise) text << (text.tellp() > 0 ? ", " : "") << 100 * channel << " %";
  return text.str();
}

void showNoise(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size(), mask = {5, 5};
  Image8u noisy = copyOf(photo), clean(size, 3), cleaner(size, 3);
  Vemi32u seed = 1;
  page.show(noisy, "Grain", "Noise with a standard deviation of 20.",
            {CALL(vemiAddRandGauss_Direct_8u_C3IR(noisy.data(), noisy.step(), size, 0, 20, &seed))});
  const Image8u wide = bordered(noisy, border);
  const Vemi8u* const pixels = wide.at(border, border);
  int bytes = 0;
  CALL(vemiFilterWienerGetBufferSize(size, mask, 3, &bytes));
  std::vector<Vemi8u> buffer(static_cast<size_t>(bytes));
  Vemi32f estimate[3] = {0, 0, 0};
  const Call byEstimate = CALL(vemiFilterWiener_8u_C3R(pixels, wide.step(), clean.data(), clean.step(), size, mask,
                                                       {2, 2}, estimate, buffer.data()));
  page.show(clean, "Wiener, noise estimated",
            "Flat windows become their mean, the others stay the more, the more there is in them. The noise is taken "
            "from the picture itself, which is more than grain; in parts of the range squared: " +
                percentagesOf(estimate) + ".",
            {byEstimate});
  const float known = 20.0f / 255 * 20 / 255;
  Vemi32f given[3] = {known, known, known};
  const Call byNumber = CALL(vemiFilterWiener_8u_C3R(pixels, wide.step(), cleaner.data(), cleaner.step(), size, mask,
                                                     {2, 2}, given, buffer.data()));
  page.show(cleaner, "Wiener, noise known",
            "The variance of the grain that was added, (20 / 255) squared: " + percentagesOf(given) + ".", {byNumber});
}

}  // namespace

void demoKernels(const Demo& demo) {
  showKernels(demo.photo, demo.page);
  showNoise(demo.photo, demo.page);
}

}  // namespace demo
