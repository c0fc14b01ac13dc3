// vemiYCbCrToRGB and its subsampled forms.

#include <gtest/gtest.h>

#include "luma_chroma.h"

using namespace vemi::test;

namespace {

using Pixel = std::array<int, 3>;

Pixel lanes(Pixel p) {
  const int y = mulhi((p[0] - 16) * 128, 9535), cb = (p[1] - 128) * 128, cr = (p[2] - 128) * 128;
  return {(y + mulhi(cr, 13074) + 8) >> 4, (y - mulhi(cb, 3211) - mulhi(cr, 6660) + 8) >> 4,
          (y + mulhi(cb, 16523) + 8) >> 4};
}
Pixel exact(Pixel p) {
  const int y = 76284 * p[0] - 1220544, c = p[1] - 128, d = p[2] - 128;
  return {(y + 104595 * d) >> 16, (y - 25690 * c - 53281 * d) >> 16, (y + 132186 * c) >> 16};
}
Pixel ofWidth1(Pixel p) {
  const int y = 76284 * p[0], c = p[1];
  return {(y + 104595 * c - 14608761) >> 16, (y - 53281 * c - 25690 * c + 8887730) >> 16,
          (y + 132186 * c - 18140365) >> 16};
}

void toRgb(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const std::string& operation = call.function.operation;
  const bool is420 = operation.find("420") != std::string::npos;
  const bool isShared = is420 || operation.find("422") != std::string::npos;
  const bool isBgr = operation.find("BGR") != std::string::npos;
  const Channels in = channelsOf(call, true, true), out = channelsOf(call, false, false);
  const int shareX = isShared ? 2 : 1, shareY = is420 ? 2 : 1;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = lumaChromaOf(call, in, x, y, shareX, shareY);
      const bool inBlock = isShared && x < width / 8 * 8 && !(is420 && y == height - 1 && y % 2 == 0);
      const bool isSingle = call.function.members == "8u_C2C3R" && width == 1;
      const Pixel rgb = inBlock ? lanes(p) : isSingle ? ofWidth1(p) : exact(p);
      for (size_t c = 0; c < 3; ++c) out[isBgr ? 2 - c : c].set(x, y, clip(rgb[c]));
    }
  }
}

}  // namespace

TEST(YCbCr, EveryMemberToRgb) {
  for (const char* const operation :
       {"vemiYCbCrToRGB", "vemiYCbCr422ToRGB", "vemiYCbCr420ToRGB", "vemiYCbCr420ToBGR"}) {
    expectDefinition(membersOf(operation), toRgb);
  }
}
