// vemiYUVToRGB and its subsampled forms.

#include <gtest/gtest.h>

#include "luma_chroma.h"

using namespace vemi::test;

namespace {

using Pixel = std::array<int, 3>;

Pixel lanes(Pixel p, int redV, int greenU, int greenV) {
  const int u = (p[1] - 128) * 8, v = (p[2] - 128) * 8;
  return {p[0] + mulhi(v, redV), p[0] + mulhi(u, greenU) + mulhi(v, greenV), p[0] + mulhi(u, 16646)};
}
Pixel plain(Pixel p) { return lanes(p, 9339, -3228, -4760); }
Pixel ofFour(Pixel p) { return lanes(p, 9338, -3227, -4759); }
Pixel fourOff(Pixel p) {
  Pixel rgb = lanes(p, 9339, -3232, -4760);
  rgb[0] += mulhi((p[1] - 128) * 8, 4);
  return rgb;
}
Pixel exact(Pixel p) {
  const int c = p[1] - 128, d = p[2] - 128, y = p[0] << 16;
  return {(y + 74711 * d) >> 16, (y - 25821 * c - 38076 * d) >> 16, (y + 133169 * c) >> 16};
}

void toRgb(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const std::string& operation = call.function.operation;
  const bool is422 = operation.find("422") != std::string::npos, is420 = operation.find("420") != std::string::npos;
  const bool isBgr = operation.find("BGR") != std::string::npos;
  const bool isFour = call.function.destination.elements == 4;
  const Channels in = channelsOf(call, true, true), out = channelsOf(call, false, false);
  const bool oneRow = is422 && !hasSteps(call) && width % 2 == 0;
  const int shareX = is422 || is420 ? 2 : 1, shareY = is420 ? 2 : 1;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int row = oneRow ? width * height : width, column = oneRow ? y * width + x : x;
      const bool inGroup = column < row / 8 * 8, isLast = x == width - 1 && x % 2 == 0;
      const Pixel p = lumaChromaOf(call, in, x, y, shareX, shareY);
      Pixel rgb;
      if (is422) {
        rgb = !inGroup ? exact(p) : isFour ? ofFour(p) : plain(p);
      } else if (is420 && (isLast || (y == height - 1 && y % 2 == 0))) {
        rgb = exact(p);
      } else if (isFour) {
        rgb = is420 ? ofFour(p) : plain(p);
      } else {
        rgb = inGroup && x % 4 == 3 ? fourOff(p) : plain(p);
      }
      for (size_t c = 0; c < 3; ++c) out[isBgr ? 2 - c : c].set(x, y, clip(rgb[c]));
      if (isFour && shareX == 2) out[3].set(x, y, 0);
    }
  }
}

}  // namespace

TEST(Yuv, EveryMemberToRgb) {
  for (const char* const operation : {"vemiYUVToRGB", "vemiYUV422ToRGB", "vemiYUV420ToRGB", "vemiYUV420ToBGR"}) {
    expectDefinition(membersOf(operation), toRgb);
  }
}
