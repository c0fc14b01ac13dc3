// vemiAdd and vemiAddC on 8-bit pictures.

#include <vector>

#include "demo.h"
#include "prepare.h"
#include "shapes.h"

namespace demo {
namespace {

void showConstants(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u light[3] = {64, 64, 64}, warm[3] = {48, 20, 0};
  Image8u brighter(size, 3), warmer(size, 3);
  page.show(brighter, "Brighter", "64 more in each channel. What would exceed 255 is 255.",
            {CALL(vemiAddC_8u_C3RSfs(photo.data(), photo.step(), light, brighter.data(), brighter.step(), size, 0))});
  page.show(warmer, "Warmer", "A constant of its own for each channel: more red, a little green.",
            {CALL(vemiAddC_8u_C3RSfs(photo.data(), photo.step(), warm, warmer.data(), warmer.step(), size, 0))});
}

void showMeans(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u flipped(size, 3), mean(size, 3);
  const Call mirror = CALL_EACH(for (int x = 0; x < size.width; x++),
                                vemiCopy_8u_C3R(photo.at(x, 0), photo.step(), flipped.at(size.width - 1 - x, 0),
                                                flipped.step(), {1, size.height}));
  page.show(mean, "The mean of two pictures", "The picture and its mirror image: scale factor 1 halves their sum.",
            {mirror, CALL(vemiAdd_8u_C3RSfs(photo.data(), photo.step(), flipped.data(), flipped.step(), mean.data(),
                                            mean.step(), size, 1))});

  Image8u light(size, 3), lit(size, 3);
  const Vemi8u none[3] = {0, 0, 0};
  CALL(vemiSet_8u_C3R(none, light.data(), light.step(), size));
  for (int n = 1; n <= 60; n++) {
    const Vemi8u tone[3] = {static_cast<Vemi8u>(3 * n), static_cast<Vemi8u>(2 * n), static_cast<Vemi8u>(n)};
    const double radius = size.width * (0.75 - 0.011 * n);
    forEachRow({0, 0, radius, radius}, size, [&](int x, int y, int width) {
      CALL(vemiSet_8u_C3R(tone, light.at(x, y), light.step(), {width, 1}));
    });
  }
  page.show(lit, "A sum in full", "A light in the corner, drawn as disc on disc, is added to the picture.",
            {CALL(vemiAdd_8u_C3RSfs(photo.data(), photo.step(), light.data(), light.step(), lit.data(), lit.step(),
                                    size, 0))});
}

void showScaleFactors(const Image8u& rgba, Page& page) {
  const Image8u small = halved(rgba);
  const VemiSize size = small.size();
  Image8u strip({4 * size.width, size.height}, 4);
  CALL(vemiSet_8u_C4CR(255, strip.data() + 3, strip.step(), strip.size()));
  const Call sums = CALL_EACH(for (int n = 0; n < 4; n++),
                              vemiAdd_8u_AC4RSfs(small.data(), small.step(), small.data(), small.step(),
                                                 strip.at(n * size.width, 0), strip.step(), size, 2 - n));
  page.show(strip, "Scale factors 2, 1, 0, -1",
            "The picture added to itself: a quarter, half, all and twice of the sum. Alpha is not added.", {sums});
}

void showPoster(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u none[3] = {0, 0, 0};
  Image8u poster(size, 3);
  page.show(poster, "A poster",
            "Adding nothing still scales: 2 to the power of -6 rounds to five levels, 2 to the power of 6 spreads "
            "them out again.",
            {CALL(vemiAddC_8u_C3RSfs(photo.data(), photo.step(), none, poster.data(), poster.step(), size, 6)),
             CALL(vemiAddC_8u_C3IRSfs(none, poster.data(), poster.step(), size, -6))});
}

void showMotion(const Image8u& photo, Page& page) {
  const int width = photo.width(), height = photo.height();
  std::vector<Image8u> blur;
  for (int k = 0; k <= 4; k++) blur.emplace_back(VemiSize{width - (1 << k) + 1, height}, 3);
  CALL(vemiCopy_8u_C3R(photo.data(), photo.step(), blur[0].data(), blur[0].step(), photo.size()));
  const Call means =
      CALL_EACH(for (int k = 0; k < 4; k++),
                vemiAdd_8u_C3RSfs(blur[k].at(0, 0), blur[k].step(), blur[k].at(1 << k, 0), blur[k].step(),
                                  blur[k + 1].data(), blur[k + 1].step(), blur[k + 1].size(), 1));
  page.show(blur[4], "Motion",
            "The mean of 16 neighbours in four calls: the picture with itself one pixel further, then that with "
            "itself two further, four, eight.",
            {means});
}

void showRamp(Page& page) {
  constexpr int height = 96;
  Image8u ramp({256, height}, 1);
  const Call first = CALL(vemiSet_8u_C1R(0, ramp.data(), ramp.step(), {1, height}));
  const Call others =
      CALL_EACH(for (int n = 1; n < 256; n *= 2),
                vemiAddC_8u_C1RSfs(ramp.data(), ramp.step(), (Vemi8u)n, ramp.at(n, 0), ramp.step(), {n, height}, 0));
  page.show(ramp, "A ramp in nine calls",
            "One column of zeros. Then the first n columns, n added, become the next n: 1, 2, 4 and so on to 128.",
            {first, others});
}

}  // namespace

void demoAdd(const Demo& demo) {
  showConstants(demo.photo, demo.page);
  showMeans(demo.photo, demo.page);
  showPoster(demo.photo, demo.page);
  showMotion(demo.photo, demo.page);
  showScaleFactors(demo.rgba, demo.page);
  showRamp(demo.page);
}

}  // namespace demo
