// vemiYCbCrToRGB565 and its kin.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "bottom_up.h"
#include "luma_chroma.h"

using namespace vemi::test;

namespace {

using Pixel = std::array<int, 3>;

Pixel ycbcr(Pixel p, int half) {
  const int y = mulhi(p[0] - 16, 1220480), cb = (p[1] - 128) * 128, cr = (p[2] - 128) * 128;
  return {(y + mulhi(cr, 13074) + half) >> 4, (y - mulhi(cb, 3211) - mulhi(cr, 6660) + half) >> 4,
          (y + mulhi(cb, 16523) + half) >> 4};
}

Pixel yuvLanes(Pixel p, int x) {
  const int u = (p[1] - 128) * 8, v = (p[2] - 128) * 8;
  const bool isFourOff = x % 4 == 3;
  return {p[0] + mulhi(v, 9339) + (isFourOff ? mulhi(u, 4) : 0),
          p[0] + mulhi(u, isFourOff ? -3232 : -3228) + mulhi(v, -4760), p[0] + mulhi(u, 16646)};
}
Pixel yuvExact(Pixel p) {
  const int y = p[0] * 65536, c = p[1] - 128, d = p[2] - 128;
  return {(y + 74711 * d) >> 16, (y - 25821 * c - 38076 * d) >> 16, (y + 133169 * c) >> 16};
}

/// A level of so many bits.
int dithered(int v, int bits, int x, int y) {
  static const int fine[4][4] = {
      {0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}};
  static const int coarse[4][4] = {
      {0, 2312, 578, 2890}, {3468, 1156, 4046, 1734}, {867, 3179, 289, 2601}, {4335, 2023, 3757, 1445}};
  const int* const row = bits == 4 ? coarse[y % 4] : fine[y % 4];
  const int t = row[x % 4];
  if (bits == 4) {
    const int level = v * 15 >> 8;
    return level + (256 * (v - 17 * level) > t ? 1 : 0);
  }
  int level = (bits == 5 ? v * 31 : v * 63) >> 8;
  if (bits == 5) {
    level += 256 * v - 2105 * level > t ? 1 : 0;
    return 2105 * level >> 11;
  }
  level += 256 * v - 1036 * level > t >> 1 ? 1 : 0;
  return 1036 * level >> 10;
}

/// What a member's name says.
struct Words {
  bool isYuv, isBgr, dithers;
  int shareX, shareY, bits[3];

  explicit Words(const std::string& operation) {
    const auto has = [&](const char* text) { return operation.find(text) != std::string::npos; };
    isYuv = has("YUV"), isBgr = has("ToBGR"), dithers = has("Dither");
    shareX = has("420") || has("422") ? 2 : 1;
    shareY = has("420") ? 2 : 1;
    const size_t digits = operation.find(isBgr ? "BGR" : "RGB") + 3;
    for (size_t c = 0; c < 3; ++c) bits[c] = operation[digits + c] - '0';
  }

  /// Of the pixel at (x, y), which counts in whole groups of four or not.
  int of(Pixel p, int x, int y, bool inGroup) const {
    Pixel rgb = isYuv ? (inGroup ? yuvLanes(p, x) : yuvExact(p)) : ycbcr(p, inGroup && !dithers ? 8 : 0);
    if (isBgr) std::swap(rgb[0], rgb[2]);
    int word = 0;
    for (size_t c = 3; c-- > 0;) {
      const int v = clip(rgb[c]);
      word = word << bits[c] | (dithers ? dithered(v, bits[c], x, y) : v >> (8 - bits[c]));
    }
    return word;
  }
};

void packed(Call& call) {
  const Words words(call.function.operation);
  const auto [width, height] = call.scenario.roiSize;
  const Channels in = channelsOf(call, true, true);
  const View dst = call.destination();
  const bool isLong = call.function.members == "8u16u_C3R" && !words.dithers && call.get<int>("srcStep") == 3 * width &&
                      call.get<int>("dstStep") == 2 * width;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = lumaChromaOf(call, in, x, y);
      const int place = isLong ? y * width + x : x, columns = isLong ? width * height : width;
      const bool hasGroups = words.shareY == 1 || y < height / 2 * 2;
      const bool inGroup = !words.dithers && hasGroups && place < columns / 4 * 4;
      store(dst.at(x, y), static_cast<Vemi16u>(words.of(p, x, y, inGroup)));
    }
  }
}

/// Y, U and V of all 2^24 colours: those of one V at a time, in planes of 4:2:0 whose 2 x 2 pixels have other lumas, or
/// at full rate.
template <class F>
void forEveryColour(const Words& words, bool inGroup, const F& pack) {
  const bool isShared = words.shareX == 2, isPair = isShared && inGroup;
  const int width = isPair ? 32768 : 65536, height = isPair ? 2 : 1;
  std::vector<Vemi8u> luma(65536), u(65536), v(65536);
  std::vector<Vemi16u> results(65536);
  for (int n = 0; n < 65536; ++n) {
    const int x = n % width, y = n / width;
    luma[static_cast<size_t>(n)] = static_cast<Vemi8u>(isPair ? x % 128 * 2 + y : x);
    const int sharing = isShared ? 2 : 1;
    if (x % sharing == 0 && y == 0)
      u[static_cast<size_t>(x / sharing)] = static_cast<Vemi8u>(isPair ? x / 128 : x / 256);
  }
  for (int each = 0; each < 256; ++each) {
    std::fill(v.begin(), v.end(), static_cast<Vemi8u>(each));
    ASSERT_EQ(pack(luma, u, v, results, VemiSize{width, height}), vemiOk);
    for (int n = 0; n < 65536; ++n) {
      const int x = n % width, y = n / width, sharing = isShared ? 2 : 1;
      const Pixel p = {luma[static_cast<size_t>(n)], u[static_cast<size_t>(x / sharing)], each};
      ASSERT_EQ(results[static_cast<size_t>(n)], words.of(p, x, y, inGroup)) << p[0] << " " << p[1] << " " << p[2];
    }
  }
}

using FromPlanes = VemiStatus(const Vemi8u* const[3], const int[3], Vemi16u*, int, VemiSize);

void expectEveryColour(FromPlanes* function, const char* operation, bool inGroup, int width = 0) {
  const Words words(operation);
  const auto pack = [&](const auto& y, const auto& u, const auto& v, auto& results, VemiSize size) {
    const Vemi8u* const planes[3] = {y.data(), u.data(), v.data()};
    if (width == 0) {
      const int steps[3] = {size.width, size.width, size.width};
      return function(planes, steps, results.data(), 2 * size.width, size);
    }
    const int steps[3] = {width, width, width};  // rows too narrow for a group
    const int rows = 65536 / width, rest = 65536 % width;
    const Vemi8u* const last[3] = {&y[65536u - 1], &u[65536u - 1], &v[65536u - 1]};
    EXPECT_EQ(rest, 1);
    EXPECT_EQ(function(last, steps, &results[65536u - 1], 2, {1, 1}), vemiOk);
    return function(planes, steps, results.data(), 2 * width, {width, rows});
  };
  forEveryColour(words, inGroup, pack);
}

}  // namespace

TEST(PackedPixels, EveryMember) {
  for (const char* const source : {"vemiYCbCr", "vemiYCbCr422", "vemiYCbCr420", "vemiYUV420"}) {
    for (const char* const format : {"565", "555", "444"}) {
      for (const char* const dither : {"", "Dither"}) {
        for (const char* const order : {"ToRGB", "ToBGR"}) {
          const std::string operation = std::string(source) + order + format + dither;
          expectDefinition(membersOf(operation), packed);
          const bool looksAtSteps = operation.size() == std::string("vemiYCbCrToRGB565").size();
          expectBottomUp(membersOf(operation, looksAtSteps ? ".*P3C3R" : ".*"), packed);
        }
      }
    }
  }
}

TEST(PackedPixels, EveryColour) {
  expectEveryColour(vemiYCbCrToRGB565_8u16u_P3C3R, "vemiYCbCrToRGB565", true);
  expectEveryColour(vemiYCbCrToRGB565_8u16u_P3C3R, "vemiYCbCrToRGB565", false, 3);
  expectEveryColour(vemiYCbCrToBGR565Dither_8u16u_P3C3R, "vemiYCbCrToBGR565Dither", false);
  expectEveryColour(vemiYUV420ToBGR565_8u16u_P3C3R, "vemiYUV420ToBGR565", true);
  expectEveryColour(vemiYUV420ToRGB444_8u16u_P3C3R, "vemiYUV420ToRGB444", false);
  expectEveryColour(vemiYUV420ToRGB444Dither_8u16u_P3C3R, "vemiYUV420ToRGB444Dither", false);
}

// Without colour R, G and B are Y: every level at each place of the pattern.
TEST(PackedPixels, EveryLevelAtEveryPlace) {
  std::vector<Vemi8u> luma(1024 * 4), neutral(512, 128);
  for (size_t n = 0; n < luma.size(); ++n) luma[n] = static_cast<Vemi8u>(n % 1024 / 4);
  const Vemi8u* const planes[3] = {luma.data(), neutral.data(), neutral.data()};
  const int steps[3] = {1024, 0, 0};
  std::vector<Vemi16u> results(luma.size());
  const auto expect = [&](FromPlanes* function, const char* operation) {
    EXPECT_EQ(function(planes, steps, results.data(), 2048, {1024, 4}), vemiOk);
    for (int n = 0; n < 4096; ++n) {
      const int v = luma[static_cast<size_t>(n)];
      ASSERT_EQ(results[static_cast<size_t>(n)], Words(operation).of({v, 128, 128}, n % 1024, n / 1024, false)) << v;
    }
  };
  expect(vemiYUV420ToRGB565Dither_8u16u_P3C3R, "vemiYUV420ToRGB565Dither");
  EXPECT_EQ(results[1020], 0xffff);
  EXPECT_EQ(results[1020 + 3 * 1024], 31 | 62 << 5 | 31 << 11);  // the one place where the remainder is the threshold
  expect(vemiYUV420ToBGR555Dither_8u16u_P3C3R, "vemiYUV420ToBGR555Dither");
  EXPECT_EQ(results[1020 + 3 * 1024], 0x7fff);
  expect(vemiYUV420ToRGB444Dither_8u16u_P3C3R, "vemiYUV420ToRGB444Dither");
}

// Rows wider than a piece, past the caches, upside down.
TEST(PackedPixels, LargeImagesUpsideDown) {
  const int width = 4099, height = 1503, chroma = 2050;
  Random random(1);
  std::vector<Vemi8u> luma(static_cast<size_t>(width) * height), u(static_cast<size_t>(chroma) * 752), v(u);
  for (auto* each : {&luma, &u, &v}) random.fill(reinterpret_cast<std::byte*>(each->data()), each->size());
  std::vector<Vemi16u> results(luma.size() + 1);
  const auto expect = [&](FromPlanes* function, const char* operation, size_t shift) {
    const Vemi8u* const planes[3] = {&luma[static_cast<size_t>(width) * (height - 1)],
                                     &u[static_cast<size_t>(chroma) * 751], &v[static_cast<size_t>(chroma) * 751]};
    const int steps[3] = {-width, -chroma, -chroma};
    EXPECT_EQ(function(planes, steps, results.data() + shift, 2 * width, {width, height}), vemiOk);
    for (int n = 0; n < width * height; ++n) {
      const int x = n % width, y = n / width;
      const auto at = static_cast<size_t>((751 - y / 2) * chroma + x / 2);
      const Pixel p = {luma[static_cast<size_t>((height - 1 - y) * width + x)], u[at], v[at]};
      const bool inGroup = x < width / 4 * 4 && y < height - 1;
      ASSERT_EQ(results[static_cast<size_t>(n) + shift], Words(operation).of(p, x, y, inGroup)) << x << " " << y;
    }
  };
  expect(vemiYCbCr420ToBGR565_8u16u_P3C3R, "vemiYCbCr420ToBGR565", 0);
  expect(vemiYCbCr420ToRGB555Dither_8u16u_P3C3R, "vemiYCbCr420ToRGB555Dither", 1);
}
