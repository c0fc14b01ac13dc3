// Numbers out of a photograph: sums, means, extremes and their places, counts and norms.

#include <cmath>
#include <cstdio>

#include "demo.h"
#include "pictures.h"

namespace demo {
namespace {

/// Whole numbers in full, others to six digits.
std::string written(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value == std::floor(value) ? "%.0f" : "%.6g", value);
  return text;
}

/// A line of the table: what it is, one number for each channel, and the call.
template <class T>
std::vector<std::string> line(const char* what, const T (&number)[3], const Call& call) {
  const std::string code = "<code>" + escaped(call.text) + "</code>";
  return {what, written(number[0]), written(number[1]), written(number[2]), code};
}

void showNumbers(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Image8u mirror = mirrored(photo);
  const Vemi8u shadow[3] = {0, 0, 0}, shadowEnd[3] = {63, 63, 63};
  double sum[3], mean[3], root[3], distance[3], share[3];
  Vemi8u low[3], high[3];
  Vemi32s dark[3];
  page.table(
      {"what", "red", "green", "blue", "call"},
      {
          line("sum", sum, CALL(vemiSum_8u_C3R(photo.data(), photo.step(), size, sum))),
          line("mean", mean, CALL(vemiMean_8u_C3R(photo.data(), photo.step(), size, mean))),
          line("smallest", low, CALL(vemiMin_8u_C3R(photo.data(), photo.step(), size, low))),
          line("largest", high, CALL(vemiMax_8u_C3R(photo.data(), photo.step(), size, high))),
          line("pixels in the shadows, 0 to 63", dark,
               CALL(vemiCountInRange_8u_C3R(photo.data(), photo.step(), size, dark, shadow, shadowEnd))),
          line("root of the sum of squares", root, CALL(vemiNorm_L2_8u_C3R(photo.data(), photo.step(), size, root))),
          line("sum of distances to the mirror image", distance,
               CALL(vemiNormDiff_L1_8u_C3R(photo.data(), photo.step(), mirror.data(), mirror.step(), size, distance))),
          line("the same, as a share of the mirror image", share,
               CALL(vemiNormRel_L1_8u_C3R(photo.data(), photo.step(), mirror.data(), mirror.step(), size, share))),
      });
}

void showPlaces(const Image8u& photo, Page& page) {
  const VemiSize size = photo.size();
  const Vemi8u colours[3][3] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}};
  Vemi8u low[3], high[3];
  int lowX[3], lowY[3], highX[3], highY[3];
  const Call darkest = CALL(vemiMinIndx_8u_C3R(photo.data(), photo.step(), size, low, lowX, lowY));
  const Call brightest = CALL(vemiMaxIndx_8u_C3R(photo.data(), photo.step(), size, high, highX, highY));
  Image8u marked(size, 3);
  CALL(vemiCopy_8u_C3R(photo.data(), photo.step(), marked.data(), marked.step(), size));
  for (int c = 0; c < 3; ++c) {
    mark(lowX[c], lowY[c], colours[c], marked);
    mark(highX[c], highY[c], colours[c], marked);
  }
  page.show(marked, "Where the extremes are",
            "Frames in the channel's colour around the first smallest and the first largest value of red, green and "
            "blue: the topmost, and of those the leftmost.",
            {darkest, brightest});
}

}  // namespace

void demoStatistics(const Demo& demo) {
  showNumbers(demo.photo, demo.page);
  showPlaces(demo.photo, demo.page);
}

}  // namespace demo
