// Conversions between RGB and YCbCr, of all samplings and byte orders.

#include <gtest/gtest.h>

#include <cmath>

#include "bottom_up.h"
#include "every_colour.h"

using namespace vemi::test;

namespace {

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

Pixel lanes411(Pixel p) {
  const int y = mulhi((p[0] - 16) * 128, 9536), cb = (p[1] - 128) * 128, cr = (p[2] - 128) * 128;
  return {(y + mulhi(cr, 13074)) >> 4, (y + mulhi(cb, -3203) + mulhi(cr, -6660)) >> 4, (y + mulhi(cb, 16523)) >> 4};
}
Pixel exact411(Pixel p) {
  const int y = 76294 * p[0] - 1220704, c = p[1] - 128, d = p[2] - 128;
  return {(y + 104595 * d) >> 16, (y - 25625 * c - 53281 * d) >> 16, (y + 132186 * c) >> 16};
}
Pixel ofCbYCr(Pixel p) {
  const int y = 76282 * p[0], c = p[1] - 128, d = p[2] - 128;
  return {(y + 104593 * d - 1187744) >> 16, (y - 25689 * c - 53279 * d - 1187744) >> 16,
          (y + 132184 * c - 1187744) >> 16};
}

void toRgb(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const auto [shareX, shareY] = sharingOf(call);
  const bool isBgr = call.function.operation.find("BGR") != std::string::npos;
  const bool isFirst = lumaChannel(call) == 1;
  const Channels in = channelsOf(call, true, true), out = channelsOf(call, false, false);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = lumaChromaOf(call, in, x, y);
      const bool inGroup = shareX > 1 && x < width / 8 * 8 && !(shareY == 2 && y == height - 1 && y % 2 == 0);
      const bool isSingle = call.function.operation == "vemiYCbCr422ToRGB" && call.function.members == "8u_C2C3R";
      Pixel rgb = inGroup ? lanes(p) : isSingle && width == 1 ? ofWidth1(p) : exact(p);
      if (shareX == 4) rgb = inGroup ? lanes411(p) : exact411(p);
      if (isFirst) rgb = ofCbYCr(p);
      for (size_t c = 0; c < 3; ++c) out[isBgr ? 2 - c : c].set(x, y, clip(rgb[c]));
      if (call.function.indexOf("alpha") >= 0) out[3].set(x, y, call.get<Vemi8u>("alpha"));
    }
  }
}

// ---- From RGB ----

int affine(Pixel p, Pixel weight, int offset, int shift) {
  return (weight[0] * p[0] + weight[1] * p[1] + weight[2] * p[2] + offset) >> shift;
}
int parts(Pixel p, Pixel weight) {
  return (((weight[0] * p[0] + weight[1] * p[1]) >> 11) + ((weight[2] * p[2]) >> 11)) >> 4;
}
int products(Pixel p, Pixel weight, int shift, int offset) {
  return (mulhi(p[0] << shift, weight[0]) + mulhi(p[1] << shift, weight[1]) + mulhi(p[2] << shift, weight[2]) +
          offset) >>
         3;
}

constexpr Pixel lumaWeights = {16843, 33030, 6423}, cbWeights = {-9699, -19071, 28770},
                crWeights = {28770, -24117, -4653};
constexpr Pixel lumaParts = {8421, 16515, 3211}, cbParts = {-4850, -9535, 14385}, crParts = {14385, -12059, -2327};

int lumaOf(Pixel p) { return affine(p, lumaWeights, 0x108000, 16); }

Pixel byParts(Pixel p) { return {parts(p, lumaParts) + 16, parts(p, cbParts) + 128, parts(p, crParts) + 128}; }
Pixel toNearest(Pixel p) { return {lumaOf(p), affine(p, cbWeights, 0x808000, 16), affine(p, crWeights, 0x808000, 16)}; }

void fromRgb444(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, false);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = pixelOf(in, x, y);
      const bool inGroup = x < width / 8 * 8 && call.function.members != "8u_AC4R";
      const Pixel result = inGroup ? byParts(p) : toNearest(p);
      for (size_t c = 0; c < 3; ++c) out[c].set(x, y, clip(result[c]));
    }
  }
}

Pixel sumOf(Pixel p, Pixel q) { return {p[0] + q[0], p[1] + q[1], p[2] + q[2]}; }

void fromRgb422(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, true);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; x += 2) {
      const Pixel p = pixelOf(in, x, y);
      if (x + 1 == width) {
        out[0].set(x, y, affine(p, {16842, 33030, 6422}, 0x100000, 16));
        setChroma(call, out, x, y, affine(p, {-9699, -19070, 28770}, 0x800000, 16), 0);
        continue;
      }
      const Pixel q = pixelOf(in, x + 1, y), sum = sumOf(p, q);
      const bool inGroup = x < width / 4 * 4;
      const auto luma = [&](Pixel of) {
        return inGroup ? parts(of, lumaParts) + 16 : affine(of, lumaWeights, 0x100000, 16);
      };
      out[0].set(x, y, luma(p));
      out[0].set(x + 1, y, luma(q));
      if (inGroup) {
        setChroma(call, out, x, y, affine(sum, cbParts, 0, 16) + 128, affine(sum, crParts, 0, 16) + 128);
      } else {
        setChroma(call, out, x, y, affine(sum, cbWeights, 0x1010000, 17), affine(sum, crWeights, 0x1010000, 17));
      }
    }
  }
}

void fromRgb420(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, true);
  for (int y = 0; y < height; y += 2) {
    for (int x = 0; x < width; x += 2) {
      const bool isEdge = x + 1 == width || y + 1 == height;
      Pixel sum = {};
      int pixels = 0;
      for (int j = y; j < std::min(y + 2, height); ++j) {
        for (int i = x; i < std::min(x + 2, width); ++i, ++pixels) {
          const Pixel p = pixelOf(in, i, j);
          out[0].set(i, j, isEdge ? lumaOf(p) : clip(products(p, {1052, 2064, 401}, 7, 132)));
          sum = sumOf(sum, p);
        }
      }
      const int offset = pixels == 1 ? 0x808000 : 16793600, shift = pixels == 1 ? 16 : 17;
      const int cb = isEdge ? affine(sum, cbWeights, offset, shift) : products(sum, {-607, -1192, 1798}, 5, 1028);
      const int cr = isEdge ? affine(sum, crWeights, offset, shift) : products(sum, {1798, -1508, -291}, 5, 1028);
      setChroma(call, out, x, y, clip(cb), clip(cr));
    }
  }
}

int signalOf(int light) {
  const double v = light / 255.0, power = static_cast<double>(std::pow(static_cast<long double>(v), 0.45L));
  return static_cast<int>(std::nearbyint(255 * (v < 0.018 ? 4.5 * v : 1.099 * power - 0.099)));
}

void filtered(Call& call) {
  const int width = call.scenario.roiSize.width, height = call.scenario.roiSize.height;
  const bool isLight = call.function.operation.find("Gamma") != std::string::npos;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, false);
  static const auto signals = [] {
    std::array<int, 256> all;
    for (int v = 0; v < 256; ++v) all[static_cast<size_t>(v)] = signalOf(v);
    return all;
  }();
  const auto at = [&](int x, int y) {
    Pixel p = pixelOf(in, x, y);
    for (int& v : p) v = isLight ? signals[static_cast<size_t>(v)] : v;
    return p;
  };
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) out[1].set(x, y, lumaOf(at(x, y)));
    for (int x = 0; x < width; x += 2) {
      const auto chroma = [&](Pixel weight) {
        if (x + 1 == width) return affine(at(x, y), weight, 0x808000, 16);
        const int before = x == 0 ? 0 : affine(at(x - 1, y), weight, 0, 2);
        return (affine(at(x, y), weight, 0, 1) + before + affine(at(x + 1, y), weight, 0, 2) + 0x807fff) >> 16;
      };
      setChroma(call, out, x, y, chroma(cbWeights), chroma(crWeights));
    }
  }
}

void averaged(Call& call) {
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, false), out = channelsOf(call, false, false);
  const auto at = [&](int x, int y) {
    const Pixel bgr = pixelOf(in, x, y);
    return Pixel{bgr[2], bgr[1], bgr[0]};
  };
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) out[1].set(x, y, lumaOf(at(x, y)));
    for (int x = 0; x < width; x += 2) {
      if (x + 1 == width) {
        setChroma(call, out, x, y, affine(at(x, y), cbWeights, 0x808000, 16), 0);
      } else {
        const Pixel sum = sumOf(at(x, y), at(x + 1, y));
        setChroma(call, out, x, y, affine(sum, cbWeights, 0x1010000, 17), affine(sum, crWeights, 0x100fffe, 17));
      }
    }
  }
}

}  // namespace

TEST(YCbCr, EveryMemberToRgb) {
  for (const char* const operation : {"vemiYCbCrToRGB", "vemiYCbCr422ToRGB", "vemiYCbCr420ToRGB", "vemiYCbCr420ToBGR",
                                      "vemiYCbCr411ToBGR", "vemiCbYCr422ToRGB", "vemiCbYCr422ToBGR"}) {
    expectDefinition(membersOf(operation), toRgb);
  }
}

TEST(YCbCr, EveryMemberFromRgb) {
  expectDefinition(membersOf("vemiRGBToYCbCr"), fromRgb444);
  expectDefinition(membersOf("vemiRGBToYCbCr422"), fromRgb422);
  expectDefinition(membersOf("vemiRGBToYCbCr420"), fromRgb420);
  expectDefinition(membersOf("vemiRGBToCbYCr422"), filtered);
  expectDefinition(membersOf("vemiRGBToCbYCr422Gamma"), filtered);
  expectDefinition(membersOf("vemiBGRToCbYCr422"), averaged);
}

TEST(YCbCr, BottomUp) {
  for (const char* const operation : {"vemiYCbCr411ToBGR", "vemiCbYCr422ToRGB", "vemiCbYCr422ToBGR"}) {
    expectBottomUp(membersOf(operation), toRgb);
  }
  expectBottomUp(membersOf("vemiBGRToCbYCr422"), averaged);
}

TEST(YCbCr, EveryColour) {
  const auto always = [](Pixel (*definition)(Pixel)) { return [=](Pixel p, int) { return definition(p); }; };
  expectEveryColour(inGroups, vemiRGBToYCbCr_8u_C3R, always(byParts));
  expectEveryColour(besideGroups, vemiRGBToYCbCr_8u_C3R, always(toNearest));
  expectEveryColour(inGroups, vemiYCbCrToRGB_8u_C3R, always(exact));
  expectEveryLumaChroma<2>(inGroups, vemiYCbCr422ToRGB_8u_P3C3R, always(lanes));
  const auto reversed = [](Pixel (*definition)(Pixel)) {
    return [=](Pixel p, int) {
      const auto [r, g, b] = definition(p);
      return Pixel{b, g, r};
    };
  };
  expectEveryLumaChroma<4>(inGroups, vemiYCbCr411ToBGR_8u_P3C3R, reversed(lanes411));
  expectEveryLumaChroma<4>(4, vemiYCbCr411ToBGR_8u_P3C3R, reversed(exact411));
}
