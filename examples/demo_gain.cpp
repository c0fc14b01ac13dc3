// vemiSub, vemiSubC, vemiMul, vemiMulC and vemiDiv on 8-bit pictures.

#include "demo.h"
#include "pictures.h"
#include "prepare.h"

namespace demo {
namespace {

void showDifferences(const Image8u& photo, Page& page) {
  const VemiSize size = {photo.width() - 2, photo.height() - 2};
  const Vemi8u* const here = photo.at(0, 0);
  const Vemi8u* const there = photo.at(2, 2);
  Image8u rising(size, 3), edges(size, 3);
  page.show(rising, "One side of the edges",
            "The picture taken off itself two pixels further right and down: what becomes darker stays at 0. Scale "
            "factor -1 doubles the rest.",
            {CALL(vemiSub_8u_C3RSfs(here, photo.step(), there, photo.step(), rising.data(), rising.step(), size, -1))});
  page.show(edges, "The absolute difference",
            "The same with the sources exchanged, and the sum: of the two differences one is always 0.",
            {CALL(vemiSub_8u_C3RSfs(there, photo.step(), here, photo.step(), edges.data(), edges.step(), size, -1)),
             CALL(vemiAdd_8u_C3IRSfs(rising.data(), rising.step(), edges.data(), edges.step(), size, 0))});

  const Vemi8u white[3] = {255, 255, 255}, none[3] = {0, 0, 0};
  Image8u raised(size, 3), half(size, 3), relief(size, 3);
  page.show(relief, "A relief",
            "Half of the difference around a medium grey: the mean of picture and white, less half of the shifted "
            "picture.",
            {CALL(vemiAddC_8u_C3RSfs(there, photo.step(), white, raised.data(), raised.step(), size, 1)),
             CALL(vemiAddC_8u_C3RSfs(here, photo.step(), none, half.data(), half.step(), size, 1)),
             CALL(vemiSub_8u_C3RSfs(half.data(), half.step(), raised.data(), raised.step(), relief.data(),
                                    relief.step(), size, 0))});
}

void showGain(const Image8u& rgba, const Image8u& photo, Page& page) {
  const Image8u small = halved(rgba);
  const VemiSize part = small.size();
  const Vemi8u gains[4][3] = {{45, 45, 45}, {64, 64, 64}, {91, 91, 91}, {128, 128, 128}};
  Image8u strip({4 * part.width, part.height}, 4);
  CALL(vemiSet_8u_C4CR(255, strip.data() + 3, strip.step(), strip.size()));
  const Call products = CALL_EACH(
      for (int n = 0; n < 4; n++),
      vemiMulC_8u_AC4RSfs(small.data(), small.step(), gains[n], strip.at(n * part.width, 0), strip.step(), part, 6));
  page.show(strip, "Exposure in half stops",
            "45, 64, 91 and 128 with scale factor 6 are factors of 0.7, 1, 1.4 and 2 for pictures of whole numbers.",
            {products});

  const VemiSize size = photo.size();
  const Vemi8u black[3] = {48, 48, 48}, steep[3] = {51, 51, 51}, evening[3] = {38, 31, 22};
  Image8u contrast(size, 3), warm(size, 3);
  page.show(contrast, "Contrast", "48 less, then 51/32 times as much: a steeper line that leaves 128 where it is.",
            {CALL(vemiSubC_8u_C3RSfs(photo.data(), photo.step(), black, contrast.data(), contrast.step(), size, 0)),
             CALL(vemiMulC_8u_C3IRSfs(steep, contrast.data(), contrast.step(), size, 5))});
  page.show(warm, "Another white",
            "A gain of its own for each channel: 38/32 for red, 31/32 for green, 22/32 for blue.",
            {CALL(vemiMulC_8u_C3RSfs(photo.data(), photo.step(), evening, warm.data(), warm.step(), size, 5))});
}

/// What a lens makes of a white wall: bright in the middle, dark in the corners.
Image8u flatField(VemiSize size) {
  const Image8u lens =
      softMaskOf({size.width / 2.0, size.height / 2.0, size.width * 0.75, size.height * 0.75}, size, 40, 0.1);
  const Vemi8u* const planes[3] = {lens.data(), lens.data(), lens.data()};
  Image8u flat(size, 3);
  CALL(vemiCopy_8u_P3C3R(planes, lens.step(), flat.data(), flat.step(), size));
  return flat;
}

void showFlatField(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u flat = flatField(size);
  Image8u frame(size, 3), even(size, 3);
  page.show(frame, "Through a poor lens", "The picture times a drawn fall of light, flat, with 256 as one.",
            {CALL(vemiMul_8u_C3RSfs(photo.data(), photo.step(), flat.data(), flat.step(), frame.data(), frame.step(),
                                    size, 8))});
  page.show(even, "The flat field divided out",
            "256 times the frame, divided by flat: the light is even again, if a little coarse in the corners, where "
            "fewer levels were left.",
            {CALL(vemiDiv_8u_C3RSfs(flat.data(), flat.step(), frame.data(), frame.step(), even.data(), even.step(),
                                    size, -8))});
}

void showColours(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  Image8u red(size, 1), green(size, 1), blue(size, 1), light(size, 3), colours(size, 3);
  Vemi8u* const planes[3] = {red.data(), green.data(), blue.data()};
  CALL(vemiCopy_8u_C3P3R(photo.data(), photo.step(), planes, red.step(), size));
  const Call outer = CALL(vemiAdd_8u_C1IRSfs(red.data(), red.step(), blue.data(), blue.step(), size, 1));
  const Call all = CALL(vemiAdd_8u_C1IRSfs(green.data(), green.step(), blue.data(), blue.step(), size, 1));
  const Vemi8u* const means[3] = {blue.data(), blue.data(), blue.data()};
  CALL(vemiCopy_8u_P3C3R(means, blue.step(), light.data(), light.step(), size));
  page.show(colours, "Colours without light",
            "128 times each channel, divided by a mean of all three that counts green twice. Where that is 0 the call "
            "goes on, and returns a warning in the end.",
            {outer, all,
             CALL(vemiDiv_8u_C3RSfs(light.data(), light.step(), photo.data(), photo.step(), colours.data(),
                                    colours.step(), size, -7))});
}

}  // namespace

void demoGain(const Demo& demo) {
  showDifferences(demo.photo, demo.page);
  showGain(demo.rgba, demo.photo, demo.page);
  showFlatField(demo.photo, demo.page);
  showColours(demo.photo, demo.page);
}

}  // namespace demo
