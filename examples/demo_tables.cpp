// vemiLUT, vemiLUT_Linear, vemiLUT_Cubic, vemiGammaFwd and vemiGammaInv as charts and on the picture; vemiLUTPalette.

#include "chart.h"
#include "demo.h"

namespace demo {
namespace {

/// More contrast in the middle, less at the ends. A pixel of 256 does not exist: the last level only ends an interval.
constexpr int nLevels = 6;
constexpr Vemi32s levels[nLevels] = {0, 48, 100, 150, 208, 256};
constexpr Vemi32s values[nLevels] = {8, 24, 72, 184, 236, 250};
constexpr const Vemi32s* pLevels[3] = {levels, levels, levels};
constexpr const Vemi32s* pValues[3] = {values, values, values};
constexpr int counts[3] = {nLevels, nLevels, nLevels};

void markPoints(Image8u& chart) {
  constexpr Vemi8u white[3] = {255, 255, 255};
  for (int n = 0; n < nLevels - 1; n++) {
    const int x = std::max(levels[n] - 2, 0), y = 255 - values[n] - 2;
    CALL(vemiSet_8u_C3R(white, chart.at(x, y), chart.step(), {5, 5}));
  }
}

void showLevelCurves(Page& page) {
  constexpr VemiSize row = {256, 1};
  const Image8u ramp = byteRamp();
  Image8u steps(row, 1), lines(row, 1), cubics(row, 1), chart = emptyChart();
  const Call one =
      CALL(vemiLUT_8u_C1R(ramp.data(), ramp.step(), steps.data(), steps.step(), row, values, levels, nLevels));
  const Call two =
      CALL(vemiLUT_Linear_8u_C1R(ramp.data(), ramp.step(), lines.data(), lines.step(), row, values, levels, nLevels));
  const Call three =
      CALL(vemiLUT_Cubic_8u_C1R(ramp.data(), ramp.step(), cubics.data(), cubics.step(), row, values, levels, nLevels));
  plot(steps, grey, chart);
  plot(lines, blue, chart);
  plot(cubics, orange, chart);
  markPoints(chart);
  page.show(chart, "Three curves through the same points",
            "Each level with its value is a point. The steps, grey, keep a value to the next level; the lines, blue, "
            "join the points; the cubics, orange, do so smoothly.",
            {one, two, three});
}

void showLevelsOnPicture(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u steps(size, 3), lines(size, 3), cubics(size, 3);
  page.show(
      steps, "Steps", "Five values are left of each channel: a poster.",
      {CALL(vemiLUT_8u_C3R(photo.data(), photo.step(), steps.data(), steps.step(), size, pValues, pLevels, counts))});
  page.show(lines, "Lines", "Contrast in the middle tones, without any that burns out.",
            {CALL(vemiLUT_Linear_8u_C3R(photo.data(), photo.step(), lines.data(), lines.step(), size, pValues, pLevels,
                                        counts))});

  constexpr Vemi32s warm[4] = {0, 110, 190, 255}, plain[4] = {0, 85, 170, 255}, cold[4] = {0, 55, 145, 235};
  const Vemi32s *const colours[3] = {warm, plain, cold}, *const thirds[3] = {plain, plain, plain};
  const int fours[3] = {4, 4, 4};
  page.show(cubics, "Cubics",
            "Each channel has its own points: red is lifted, blue is lowered, and it is evening. No bend shows.",
            {CALL(vemiLUT_Cubic_8u_C3R(photo.data(), photo.step(), cubics.data(), cubics.step(), size, colours, thirds,
                                       fours))});
}

void showPalettes(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u tone(size, 1), shades(size, 3), heat(size, 3);
  const Call channel = CALL(vemiCopy_8u_C3C1R(photo.at(0, 0) + 1, photo.step(), tone.data(), tone.step(), size));

  Vemi8u rainbow[256][3];
  for (int n = 0; n < 256; n++) {
    for (int c = 0; c < 3; c++) rainbow[n][c] = static_cast<Vemi8u>(std::clamp(3 * n - 255 * c, 0, 255));
  }
  const Vemi8u* const table = rainbow[0];
  const Call hot = CALL(vemiLUTPalette_8u24u_C1R(tone.data(), tone.step(), heat.data(), heat.step(), size, table, 8));
  page.show(heat, "A palette of heat", "One channel as an index: from black over red and yellow to white.",
            {channel, hot});

  constexpr Vemi8u inks[4 * 3] = {34, 32, 52, 172, 50, 50, 223, 113, 38, 251, 242, 203};
  const Call shifted = CALL(vemiRShiftC_8u_C1IR(6, tone.data(), tone.step(), size));
  const Call inked =
      CALL(vemiLUTPalette_8u24u_C1R(tone.data(), tone.step(), shades.data(), shades.step(), size, inks, 2));
  page.show(shades, "Four inks", "Two bits of an index are enough for four colours.", {channel, shifted, inked});
}

void showGamma(const Image8u& photo, Page& page) {
  constexpr VemiSize row = {256, 1}, threeRows = {85, 1};
  const VemiSize size = photo.size();
  Image8u ramp = byteRamp(), chart = emptyChart(), forward(row, 1), inverse(row, 1), light(size, 3), again(size, 3);
  CALL(vemiCopy_8u_C1R(ramp.data(), ramp.step(), forward.data(), forward.step(), row));
  CALL(vemiCopy_8u_C1R(ramp.data(), ramp.step(), inverse.data(), inverse.step(), row));
  const Call up = CALL(vemiGammaFwd_8u_C3IR(forward.data(), forward.step(), threeRows));
  const Call down = CALL(vemiGammaInv_8u_C3IR(inverse.data(), inverse.step(), threeRows));
  plot(ramp, grey, chart);
  plot(forward, blue, chart);
  plot(inverse, orange, chart);
  page.show(chart, "The transfer curve of video",
            "From light to signal blue, from signal to light orange. 255 bytes count as 85 pixels of three channels.",
            {up, down});
  page.show(light, "In linear light", "What a camera measures, before the curve: numbers in proportion to light.",
            {CALL(vemiGammaInv_8u_C3R(photo.data(), photo.step(), light.data(), light.step(), size))});
  page.show(again, "And back",
            "Bytes are too few for the way there and back: the shadows have lost their steps. Take 16u or 32f for it.",
            {CALL(vemiGammaFwd_8u_C3R(light.data(), light.step(), again.data(), again.step(), size))});
}

}  // namespace

void demoTables(const Demo& demo) {
  showLevelCurves(demo.page);
  showLevelsOnPicture(demo.photo, demo.page);
  showPalettes(demo.photo, demo.page);
  showGamma(demo.photo, demo.page);
}

}  // namespace demo
