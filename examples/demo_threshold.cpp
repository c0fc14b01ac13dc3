// vemiThreshold and its forms; vemiCompare, vemiCompareC and vemiCompareEqualEps, whose maps are masks.

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

void showLimits(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u dark[3] = {64, 64, 64}, light[3] = {160, 160, 160}, black[3] = {0, 0, 0}, white[3] = {255, 255, 255};
  Image8u limited(size, 3), pressed(size, 3);
  page.show(limited, "Limited", "Nothing darker than 64, nothing lighter than 160; what lies between is as it was.",
            {CALL(vemiThreshold_LT_8u_C3R(photo.data(), photo.step(), limited.data(), limited.step(), size, dark)),
             CALL(vemiThreshold_GT_8u_C3IR(limited.data(), limited.step(), size, light))});
  page.show(pressed, "Pressed to the ends",
            "The same two thresholds with values of their own: below the lower one is 0, above the upper one 255. Each "
            "channel goes by itself, so pure colours appear.",
            {CALL(vemiThreshold_LTValGTVal_8u_C3R(photo.data(), photo.step(), pressed.data(), pressed.step(), size,
                                                  dark, black, light, white))});
}

void showChannels(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u thresholds[3] = {255, 255, 120}, values[3] = {0, 0, 30};
  Image8u evening(size, 3);
  page.show(evening, "One channel",
            "Each channel has its threshold and its value: blue above 120 becomes 30, and 255 leaves red and green "
            "alone, since nothing is above it.",
            {CALL(vemiThreshold_GTVal_8u_C3R(photo.data(), photo.step(), evening.data(), evening.step(), size,
                                             thresholds, values))});
}

void showPoster(const Image8u& rgba, Page& page) {
  const VemiSize size = rgba.size();
  constexpr Vemi8u inks[4][3] = {{24, 32, 66}, {158, 42, 74}, {236, 128, 52}, {250, 226, 164}};
  Image8u green(size, 1), map(size, 1), poster(size, 3), print(size, 1);
  CALL(vemiCopy_8u_C4C1R(rgba.data() + 1, rgba.step(), green.data(), green.step(), size));
  page.show(print, "Black and white",
            "Both thresholds of the green channel are 100: what is below gets 0, what is above 255. An element that "
            "equals them stays, and would be the one grey.",
            {CALL(vemiThreshold_LTValGTVal_8u_C1R(green.data(), green.step(), print.data(), print.step(), size, 100, 0,
                                                  100, 255))});

  CALL(vemiSet_8u_C3R(inks[0], poster.data(), poster.step(), size));
  Call compared = {}, printed = {};
  for (int n = 1; n < 4; n++) {
    const auto level = static_cast<Vemi8u>(56 * n - 16);
    compared =
        CALL(vemiCompareC_8u_C1R(green.data(), green.step(), level, map.data(), map.step(), size, vemiCmpGreaterEq));
    printed = CALL(vemiSet_8u_C3MR(inks[n], poster.data(), poster.step(), size, map.data(), map.step()));
  }
  page.show(poster, "A poster in four inks",
            "The map of where green reaches a level is the mask of the next ink: 255 where the condition holds, 0 "
            "elsewhere.",
            {compared, printed});
}

void showMaps(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u mirror = mirrored(photo);
  const Vemi8u middle[3] = {110, 110, 110};
  Image8u map(size, 1), lightest(size, 3), alike(size, 1);
  page.show(
      map, "All channels decide", "White where red, green and blue are 110 or more.",
      {CALL(vemiCompareC_8u_C3R(photo.data(), photo.step(), middle, map.data(), map.step(), size, vemiCmpGreaterEq))});

  CALL(vemiCopy_8u_C3R(photo.data(), photo.step(), lightest.data(), lightest.step(), size));
  const Call compared = CALL(vemiCompare_8u_C3R(mirror.data(), mirror.step(), photo.data(), photo.step(), map.data(),
                                                map.step(), size, vemiCmpGreater));
  page.show(lightest, "The lighter one",
            "Where the mirror image is brighter than the picture in every channel, it takes its place.",
            {compared, CALL(vemiCopy_8u_C3MR(mirror.data(), mirror.step(), lightest.data(), lightest.step(), size,
                                             map.data(), map.step()))});

  const Image<Vemi32f> one = converted<Vemi32f>(photo), other = converted<Vemi32f>(mirror);
  page.show(alike, "Within a tolerance",
            "White where the picture and its mirror image differ by at most 12 in each channel: along the axis, and "
            "where both are plain.",
            {CALL(vemiCompareEqualEps_32f_C3R(one.data(), one.step(), other.data(), other.step(), alike.data(),
                                              alike.step(), size, 12.0f))});
}

}  // namespace

void demoThreshold(const Demo& demo) {
  showLimits(demo.photo, demo.page);
  showChannels(demo.photo, demo.page);
  showPoster(demo.rgba, demo.page);
  showMaps(demo.photo, demo.page);
}

}  // namespace demo
