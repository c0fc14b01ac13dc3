// vemiYUVToRGB and its subsampled forms.

#include <gtest/gtest.h>

#include "bands.h"
#include "every_colour.h"

using namespace vemi::test;

namespace {

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
  const auto [shareX, shareY] = sharingOf(call);
  const bool is422 = shareX == 2 && shareY == 1, is420 = shareY == 2;
  const bool isBgr = call.function.operation.find("BGR") != std::string::npos;
  const bool isFour = call.function.destination.elements == 4;
  const Channels in = channelsOf(call, true, true), out = channelsOf(call, false, false);
  const bool oneRow = is422 && !hasSteps(call) && width % 2 == 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int row = oneRow ? width * height : width, column = oneRow ? y * width + x : x;
      const bool inGroup = column < row / 8 * 8, isLast = x == width - 1 && x % 2 == 0;
      const Pixel p = lumaChromaOf(call, in, x, y);
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

// ---- From RGB ----

Pixel inBlock(Pixel p) {
  const auto [r, g, b] = p;
  return {(9798 * r + 19235 * g + 3736 * b) >> 15, ((-4817 * r - 9470 * g + 14287 * b) >> 15) + 128,
          ((20152 * r - 16876 * g - 3277 * b) >> 15) + 128};
}
int twiceLuma(Pixel p) { return ((9798 * p[0] + 19235 * p[1]) >> 14) + ((3736 * p[2]) >> 14); }
int uOf(int difference) { return ((difference * 16121) >> 16) + 128; }
int vOf(int difference) { return ((difference * 28737) >> 16) + 128; }

Pixel leftOver(Pixel p) {
  const int luma = twiceLuma(p);
  return {luma >> 1, uOf(2 * p[2] - luma), vOf(2 * p[0] - luma)};
}

void fromRgb444(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, false);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = pixelOf(in, x, y), yuv = x < width / 8 * 8 ? inBlock(p) : leftOver(p);
      for (size_t c = 0; c < 3; ++c) out[c].set(x, y, clip(yuv[c]));
    }
  }
}

void fromRgb422(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, true);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) out[0].set(x, y, clip(twiceLuma(pixelOf(in, x, y)) >> 1));
    for (int x = 0; x < width; x += 2) {
      const Pixel p = pixelOf(in, x, y), q = x + 1 < width ? pixelOf(in, x + 1, y) : p;
      const int luma = (twiceLuma(p) + twiceLuma(q)) >> 1;
      setChroma(call, out, x, y, clip(uOf(p[2] + q[2] - luma)), clip(vOf(p[0] + q[0] - luma)));
    }
  }
}

void fromRgb420(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, true);
  const auto edgeLuma = [](Pixel p) { return 19595 * p[0] + 38470 * p[1] + 7471 * p[2]; };
  for (int y = 0; y < height; y += 2) {
    for (int x = 0; x < width; x += 2) {
      const bool isEdge = x + 1 == width || y + 1 == height;
      int red = 0, blue = 0, luma = 0, pixels = 0;
      for (int j = y; j < std::min(y + 2, height); ++j) {
        for (int i = x; i < std::min(x + 2, width); ++i, ++pixels) {
          const Pixel p = pixelOf(in, i, j);
          out[0].set(i, j, isEdge ? edgeLuma(p) >> 16 : clip(twiceLuma(p) >> 1));
          luma += isEdge ? edgeLuma(p) : twiceLuma(p);
          red += p[0];
          blue += p[2];
        }
      }
      const auto edge = [&](int sum, int weight) {
        return (((((sum << 16) - luma) >> 16) * weight) >> (pixels == 1 ? 16 : 17)) + 128;
      };
      const int u = isEdge ? edge(blue, 32244) : uOf((blue >> 1) - (luma >> 2));
      const int v = isEdge ? edge(red, 57475) : vOf((red >> 1) - (luma >> 2));
      setChroma(call, out, x, y, clip(u), clip(v));
    }
  }
}

}  // namespace

TEST(Yuv, EveryMemberToRgb) {
  for (const char* const operation : {"vemiYUVToRGB", "vemiYUV422ToRGB", "vemiYUV420ToRGB", "vemiYUV420ToBGR"}) {
    expectDefinition(membersOf(operation), toRgb);
  }
}

TEST(Yuv, EveryMemberFromRgb) {
  expectDefinition(membersOf("vemiRGBToYUV"), fromRgb444);
  expectDefinition(membersOf("vemiRGBToYUV422"), fromRgb422);
  expectDefinition(membersOf("vemiRGBToYUV420"), fromRgb420);
}

TEST(Yuv, EveryColour) {
  const auto inGroup = [](Pixel p, int x) { return x % 4 == 3 ? fourOff(p) : plain(p); };
  const auto always = [](Pixel (*definition)(Pixel)) { return [=](Pixel p, int) { return definition(p); }; };
  expectEveryColour(inGroups, vemiRGBToYUV_8u_C3R, always(inBlock));
  expectEveryColour(besideGroups, vemiRGBToYUV_8u_C3R, always(leftOver));
  expectEveryColour(inGroups, vemiYUVToRGB_8u_C3R, inGroup);
  expectEveryColour(besideGroups, vemiYUVToRGB_8u_C3R, always(plain));
  expectEveryLumaChroma<2>(inGroups, vemiYUV422ToRGB_8u_P3C3R, always(plain));
  expectEveryLumaChroma<2>(6, vemiYUV422ToRGB_8u_P3C3R, always(exact));
}

TEST(Yuv, PastTheCachesAsInBands) {
  const auto expect = [](const PlanesInMemory& yuv, auto* toPixels) {
    const std::vector<Vemi8u> memory = yuv.random();
    const int step = 3 * yuv.size.width + 7;
    expectAsInBands(static_cast<size_t>(step) * static_cast<size_t>(yuv.size.height), yuv.size.height,
                    [&](Vemi8u* rgb, int y, int rows) {
                      return toPixels(yuv.from(memory.data(), y).data(), yuv.step, rgb + ptrdiff_t{step} * y, step,
                                      {yuv.size.width, rows});
                    });
  };
  expect({{2731, 1403}, 2, 1}, vemiYUV422ToRGB_8u_P3C3R);
  expect({{3301, 1403}, 2, 2}, vemiYUV420ToRGB_8u_P3C3R);
  expect({{3301, 1403}, 2, 2}, vemiYCbCr420ToBGR_8u_P3C3R);
}
