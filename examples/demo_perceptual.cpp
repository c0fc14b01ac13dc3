// vemiRGBToHSV, vemiRGBToHLS, vemiBGRToLab, vemiRGBToLUV and vemiRGBToXYZ, and their inverses.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// The three channels of a picture beside each other.
Image8u sheetOf(const Image8u& picture) {
  const VemiSize size = picture.size();
  Image8u sheet({3 * size.width, size.height}, 1);
  Vemi8u* const planes[3] = {sheet.at(0, 0), sheet.at(size.width, 0), sheet.at(2 * size.width, 0)};
  CALL(vemiCopy_8u_C3P3R(picture.data(), picture.step(), planes, sheet.step(), size));
  return sheet;
}

void showChannels(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u model(size, 3), bgr(size, 3);
  const int swapped[3] = {2, 1, 0};
  const Call hsv = CALL(vemiRGBToHSV_8u_C3R(photo.data(), photo.step(), model.data(), model.step(), size));
  page.show(
      sheetOf(model), "Hue, saturation, value",
      "Hue runs once around the circle of colours, from red at 0 to red at 255; greys have none, and no saturation.",
      {hsv});
  const Call hls = CALL(vemiRGBToHLS_8u_C3R(photo.data(), photo.step(), model.data(), model.step(), size));
  page.show(
      sheetOf(model), "Hue, lightness, saturation",
      "Lightness is half way between the largest and the least channel: pure colours are as light as middle grey.",
      {hls});
  const Call swap = CALL(vemiSwapChannels_8u_C3R(photo.data(), photo.step(), bgr.data(), bgr.step(), size, swapped));
  const Call lab = CALL(vemiBGRToLab_8u_C3R(bgr.data(), bgr.step(), model.data(), model.step(), size));
  page.show(
      sheetOf(model), "L*a*b*",
      "Lightness as the eye counts it, green to red, and blue to yellow, both from 128 on. Channels come as B, G, "
      "R.",
      {swap, lab});
  const Call luv = CALL(vemiRGBToLUV_8u_C3R(photo.data(), photo.step(), model.data(), model.step(), size));
  page.show(sheetOf(model), "L*u*v*",
            "The same lightness, with the other pair of opponents; the white is at 96 and 136.", {luv});
  const Call xyz = CALL(vemiRGBToXYZ_8u_C3R(photo.data(), photo.step(), model.data(), model.step(), size));
  page.show(sheetOf(model), "XYZ", "What the other models of the CIE begin with: three weighted sums of light.", {xyz});
}

/// Planes of hue, lightness and saturation can be worked on by themselves.
void showChanges(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const int swapped[3] = {2, 1, 0};
  Image8u bgr(size, 3), result(size, 3), hue(size, 1), lightness(size, 1), saturation(size, 1);
  Vemi8u* const planes[3] = {hue.data(), lightness.data(), saturation.data()};
  const Vemi8u* const changed[3] = {hue.data(), lightness.data(), saturation.data()};
  const auto back = [&] {
    CALL(vemiHLSToBGR_8u_P3C3R(changed, hue.step(), bgr.data(), bgr.step(), size));
    CALL(vemiSwapChannels_8u_C3R(bgr.data(), bgr.step(), result.data(), result.step(), size, swapped));
  };
  CALL(vemiSwapChannels_8u_C3R(photo.data(), photo.step(), bgr.data(), bgr.step(), size, swapped));
  const Call apart = CALL(vemiBGRToHLS_8u_C3P3R(bgr.data(), bgr.step(), planes, hue.step(), size));
  const Call opposite = CALL(vemiXorC_8u_C1IR(128, hue.data(), hue.step(), size));
  back();
  page.show(result, "Opposite hues", "The uppermost bit of the hue is half a turn. Lightness and greys stay.",
            {apart, opposite});
  CALL(vemiXorC_8u_C1IR(128, hue.data(), hue.step(), size));
  const Call paler = CALL(vemiRShiftC_8u_C1IR(2, saturation.data(), saturation.step(), size));
  back();
  page.show(result, "A quarter of the saturation", "The same planes, with the hues as they were.", {apart, paler});
}

}  // namespace

void demoPerceptual(const Demo& demo) {
  showChannels(demo.photo, demo.page);
  showChanges(demo.photo, demo.page);
}

}  // namespace demo
