// vemiCrossCorr, vemiSqrDistance, vemiConvValid, vemiConvFull.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

Image8u greenOf(const Image8u& photo) {
  Image8u green(photo.size(), 1);
  CALL(vemiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), photo.size()));
  return green;
}

/// From black by blue and red to yellow; three channels.
Image8u heatOf(const Image<Vemi32f>& match, float low, float high) {
  const VemiSize size = match.size();
  Image8u bytes(size, 1), heat(size, 3);
  CALL(vemiScale_32f8u_C1R(match.data(), match.step(), bytes.data(), bytes.step(), size, low, high));
  for (int c = 0; c < 3; ++c) CALL(vemiCopy_8u_C1C3R(bytes.data(), bytes.step(), heat.data() + c, heat.step(), size));
  const Vemi32s levels[] = {0, 85, 170, 256}, red[] = {0, 40, 230, 255}, green[] = {0, 40, 60, 250},
                blue[] = {20, 150, 60, 120};
  const Vemi32s* const pLevels[3] = {levels, levels, levels};
  const Vemi32s* const pValues[3] = {red, green, blue};
  const int counts[3] = {4, 4, 4};
  Image8u coloured(size, 3);
  CALL(vemiLUT_Linear_8u_C3R(heat.data(), heat.step(), coloured.data(), coloured.step(), size, pValues, pLevels,
                             counts));
  return coloured;
}

enum Shape { valid, same, full };

/// matched(match) makes the call. Distances are shown as 1 - d / 2.
template <class Matched>
void showMatch(const char* title, const char* text, const Image8u& grey, const Image8u& ball, Shape shape,
               bool isDistance, Page& page, const Matched& matched) {
  const int widen = shape == valid ? -1 : shape == full ? 1 : 0;
  const VemiSize places = {grey.width() + widen * (ball.width() - 1), grey.height() + widen * (ball.height() - 1)};
  Image<Vemi32f> match(places, 1);
  const Call made = matched(match);
  float best = 0;
  int x = 0, y = 0;
  const Call found = isDistance ? CALL(vemiMinIndx_32f_C1R(match.data(), match.step(), places, &best, &x, &y))
                                : CALL(vemiMaxIndx_32f_C1R(match.data(), match.step(), places, &best, &x, &y));
  if (isDistance) {
    CALL(vemiMulC_32f_C1IR(-0.5f, match.data(), match.step(), places));
    CALL(vemiAddC_32f_C1IR(1.0f, match.data(), match.step(), places));
  }
  Image8u heat = heatOf(match, 0, 1);
  mark(x, y, {255, 255, 255}, heat);
  page.show(heat, title, text, {made, found});
}

/// The ball in the scene's middle; of another picture, what is there.
Image8u ballOf(const Image8u& grey) {
  const int side = std::min(grey.width(), grey.height()) / 5;
  Image8u ball({side, side}, 1);
  const int x = std::clamp(static_cast<int>(grey.width() * 0.495) - side / 2, 0, grey.width() - side);
  const int y = std::clamp(static_cast<int>(grey.height() * 0.798) - side / 2, 0, grey.height() - side);
  CALL(vemiCopy_8u_C1R(grey.at(x, y), grey.step(), ball.data(), ball.step(), ball.size()));
  return ball;
}

void showMatches(const Image8u& photo, Page& page) {
  const Image8u grey = greenOf(photo), ball = ballOf(grey);
  Image8u shown(ball.size(), 3);
  for (int c = 0; c < 3; ++c) {
    CALL(vemiCopy_8u_C1C3R(ball.data(), ball.step(), shown.data() + c, shown.step(), ball.size()));
  }
  page.show(shown, "A ball", "The template, cut out of the green channel.", {});
#define MATCHED(function)                                                                                            \
  [&](Image<Vemi32f>& match) {                                                                                       \
    return CALL(function(grey.data(), grey.step(), grey.size(), ball.data(), ball.step(), ball.size(), match.data(), \
                         match.step()));                                                                             \
  }
  const char* const large = "As large as the picture: the frame is around the ball's middle.";
  const char* const all = "All places where the ball touches the picture.";
  showMatch("Correlation",
            "The brighter, the more alike. A frame marks the best place. All that is evenly bright comes close to it: "
            "this measure minds directions from black.",
            grey, ball, valid, false, page, MATCHED(vemiCrossCorrValid_Norm_8u32f_C1R));
  showMatch("Correlation, same size", large, grey, ball, same, false, page, MATCHED(vemiCrossCorrSame_Norm_8u32f_C1R));
  showMatch("Correlation, all places", all, grey, ball, full, false, page, MATCHED(vemiCrossCorrFull_Norm_8u32f_C1R));
  showMatch("Correlation without means",
            "Light does not matter here: what is left is the pattern, and the ball stands alone.", grey, ball, valid,
            false, page, MATCHED(vemiCrossCorrValid_NormLevel_8u32f_C1R));
  showMatch("Correlation without means, same size", large, grey, ball, same, false, page,
            MATCHED(vemiCrossCorrSame_NormLevel_8u32f_C1R));
  showMatch("Correlation without means, all places", all, grey, ball, full, false, page,
            MATCHED(vemiCrossCorrFull_NormLevel_8u32f_C1R));
  showMatch("Squared distance", "The best place is the smallest; bright is what little is missing to.", grey, ball,
            valid, true, page, MATCHED(vemiSqrDistanceValid_Norm_8u32f_C1R));
  showMatch("Squared distance, same size", large, grey, ball, same, true, page,
            MATCHED(vemiSqrDistanceSame_Norm_8u32f_C1R));
  showMatch("Squared distance, all places", all, grey, ball, full, true, page,
            MATCHED(vemiSqrDistanceFull_Norm_8u32f_C1R));
#undef MATCHED
}

/// As many pixels as `kernel` has around the picture, and the picture as it comes back, over the kernel's sum.
void showBlur(const Image8u& photo, const Image8u& kernel, int sum, const char* title, const char* text, Page& page) {
  const VemiSize size = photo.size();
  const Image8u wide = bordered(photo, kernel.width() / 2);
  Image8u blurred(size, 3);
  page.show(blurred, title, text,
            {CALL(vemiConvValid_8u_C3R(wide.data(), wide.step(), wide.size(), kernel.data(), kernel.step(),
                                       kernel.size(), blurred.data(), blurred.step(), sum))});
}

void showBlurs(const Image8u& photo, Page& page) {
  constexpr VemiSize size = {25, 25};
  const Vemi8u one[3] = {1, 1, 1}, none[3] = {0, 0, 0};
  Image8u disc(size, 3), path(size, 3);
  CALL(vemiSet_8u_C3R(none, disc.data(), disc.step(), size));
  CALL(vemiSet_8u_C3R(none, path.data(), path.step(), size));
  int ofDisc = 0, ofPath = 0;
  forEachRow(ellipseWithin(size, 0), size, [&](int x, int y, int width) {
    CALL(vemiSet_8u_C3R(one, disc.at(x, y), disc.step(), {width, 1}));
    ofDisc += width;
  });
  for (int i = 0; i < size.width; ++i, ++ofPath) {
    CALL(vemiSet_8u_C3R(one, path.at(i, 12 + (i - 12) * (i - 12) / 14 - 5), path.step(), {1, 1}));
  }
  showBlur(photo, disc, ofDisc, "Out of focus",
           "Convolved with a disc, each pixel becomes one, as behind a lens that is wide open.", page);
  showBlur(photo, path, ofPath, "A shaken camera", "Convolved with the path that the camera took.", page);
}

}  // namespace

void demoMatch(const Demo& demo) {
  showMatches(demo.photo, demo.page);
  showBlurs(demo.photo, demo.page);
}

}  // namespace demo
