// vemiAlphaComp, vemiAlphaPremul and their forms with constant alphas.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

int64_t largest(Element element) { return element == Element::u8 ? 255 : 65535; }

/// One element of a composite: `isAlpha` where A and B are the alphas a and b themselves.
int64_t composite(int alphaType, int64_t A, int64_t a, int64_t B, int64_t b, bool isAlpha, int64_t max) {
  const auto times = [&](int64_t x, int64_t fraction) { return x * fraction / max; };
  if (alphaType < vemiAlphaOverPremul && !isAlpha) {
    A = times(A, a);
    B = times(B, b);
  }
  switch (alphaType % 6) {
    case vemiAlphaOver:
      return std::min(max, A + times(B, max - a));
    case vemiAlphaIn:
      return times(A, b);
    case vemiAlphaOut:
      return times(A, max - b);
    case vemiAlphaATop:
      return isAlpha ? b : std::min(max, times(A, b) + times(B, max - a));
    case vemiAlphaXor:
      return std::min(max, times(A, max - b) + times(B, max - a));
    default:
      return std::min(max, A + B);
  }
}

void composited(Call& call) {
  const View srcA = call.source(0), srcB = call.source(1), dst = call.destination();
  const Element element = dst.element;
  const bool constant = call.function.indexOf("alpha1") >= 0;
  const int alphaType = call.get<int>("alphaType");
  const int alphaChannel = dst.channels == 1 ? 0 : 3;
  call.forEachElement([&](int x, int y, int channel) {
    const auto alpha = [&](const char* name, const View& src) {
      const std::byte* const place = constant ? call.arguments[static_cast<size_t>(call.function.indexOf(name))].bytes
                                              : src.at(x, y, alphaChannel);
      return loadInteger(element, place);
    };
    storeSaturated(element, dst.at(x, y, channel),
                   composite(alphaType, loadInteger(element, srcA.at(x, y, channel)), alpha("alpha1", srcA),
                             loadInteger(element, srcB.at(x, y, channel)), alpha("alpha2", srcB),
                             !constant && channel == alphaChannel, largest(element)));
  });
}

void premultiplied(Call& call) {
  const View src = call.source(), dst = call.destination();
  const int constant = call.function.indexOf("alpha");
  const bool hasAlpha = call.function.members.find("_A") != std::string::npos;
  call.forEachElement([&](int x, int y, int channel) {
    const std::byte* const place =
        constant >= 0 ? call.arguments[static_cast<size_t>(constant)].bytes : src.at(x, y, 3);
    const int64_t alpha = loadInteger(dst.element, place);
    const int64_t product = loadInteger(dst.element, src.at(x, y, channel)) * alpha / largest(dst.element);
    storeSaturated(dst.element, dst.at(x, y, channel), hasAlpha && channel == 3 ? alpha : product);
  });
}

}  // namespace

TEST(AlphaComp, EveryMember) {
  expectDefinition(membersOf("vemiAlphaComp"), composited);
  expectDefinition(membersOf("vemiAlphaCompC"), composited);
}

TEST(AlphaPremul, EveryMember) {
  expectDefinition(membersOf("vemiAlphaPremul"), premultiplied);
  expectDefinition(membersOf("vemiAlphaPremulC"), premultiplied);
}

TEST(AlphaPremul, AllPairsOf8u) {
  std::vector<Vemi8u> src(4 * 65536), dst(4 * 65536), expected(4 * 65536);
  for (size_t n = 0; n < 65536; ++n) {
    const size_t colour = n % 256, alpha = n / 256, pixel = 4 * n;
    for (size_t channel = 0; channel < 3; ++channel) {
      src[pixel + channel] = static_cast<Vemi8u>(channel == 1 ? 255 - colour : colour);
      expected[pixel + channel] = static_cast<Vemi8u>(src[pixel + channel] * alpha / 255);
    }
    src[pixel + 3] = expected[pixel + 3] = static_cast<Vemi8u>(alpha);
  }
  EXPECT_EQ(vemiAlphaPremul_8u_AC4R(src.data(), 1024, dst.data(), 1024, {256, 256}), vemiOk);
  EXPECT_TRUE(dst == expected);
}

// Every value with alphas at which the quotient steps at its closest.
TEST(AlphaPremul, EveryValueOf16u) {
  std::vector<Vemi16u> src(65536), dst(65536), expected(65536);
  for (size_t n = 0; n < src.size(); ++n) src[n] = static_cast<Vemi16u>(n);
  for (unsigned alpha = 0; alpha < 65536; alpha += alpha < 300 || alpha > 65200 ? 1 : 257) {
    for (size_t n = 0; n < src.size(); ++n) expected[n] = static_cast<Vemi16u>(uint64_t{n} * alpha / 65535);
    EXPECT_EQ(vemiAlphaPremulC_16u_C1R(src.data(), 512, static_cast<Vemi16u>(alpha), dst.data(), 512, {256, 256}),
              vemiOk);
    ASSERT_TRUE(dst == expected) << alpha;
  }
}

// All colours and alphas of one pixel against a few of the other, for each operator: two products in a row, sums that
// saturate and sums that just do not.
TEST(AlphaComp, AllPairsOf8u) {
  std::vector<Vemi8u> front(4 * 65536), back(4 * 65536), dst(4 * 65536), expected(4 * 65536);
  for (size_t n = 0; n < front.size(); ++n) front[n] = static_cast<Vemi8u>(n % 4 == 3 ? n / 1024 : n / 4 + n % 4);
  for (const int alphaB : {0, 1, 127, 128, 254, 255}) {
    for (const int colourB : {0, 1, 128, 255}) {
      for (size_t n = 0; n < back.size(); ++n) back[n] = static_cast<Vemi8u>(n % 4 == 3 ? alphaB : colourB);
      for (int alphaType = 0; alphaType < 12; ++alphaType) {
        const auto compositeOf = [&](const std::vector<Vemi8u>& a, const std::vector<Vemi8u>& b) {
          for (size_t n = 0; n < expected.size(); ++n) {
            expected[n] = static_cast<Vemi8u>(
                composite(alphaType, a[n], a[n | 3], b[n], b[n | 3], n % 4 == 3, largest(Element::u8)));
          }
          return vemiAlphaComp_8u_AC4R(a.data(), 1024, b.data(), 1024, dst.data(), 1024, {256, 256}, alphaType);
        };
        EXPECT_EQ(compositeOf(front, back), vemiOk);
        ASSERT_TRUE(dst == expected) << alphaType << ", front, " << colourB << " with " << alphaB;
        EXPECT_EQ(compositeOf(back, front), vemiOk);
        ASSERT_TRUE(dst == expected) << alphaType << ", back, " << colourB << " with " << alphaB;
      }
    }
  }
}

// The rounding of each product by itself, and the alpha of atop.
TEST(AlphaComp, SingleResults) {
  const Vemi8u a[] = {255, 200, 1, 128}, b[] = {255, 100, 254, 128};
  const auto compositeOf = [&](int alphaType) {
    std::vector<Vemi8u> dst(4);
    EXPECT_EQ(vemiAlphaComp_8u_AC4R(a, 4, b, 4, dst.data(), 4, {1, 1}, alphaType), vemiOk);
    return dst;
  };
  EXPECT_EQ(compositeOf(vemiAlphaIn), (std::vector<Vemi8u>{64, 50, 0, 64}));
  EXPECT_EQ(compositeOf(vemiAlphaInPremul), (std::vector<Vemi8u>{128, 100, 0, 64}));
  EXPECT_EQ(compositeOf(vemiAlphaPlusPremul), (std::vector<Vemi8u>{255, 255, 255, 255}));
  EXPECT_EQ(compositeOf(vemiAlphaATopPremul), (std::vector<Vemi8u>{255, 149, 126, 128}));
  EXPECT_EQ(compositeOf(vemiAlphaATop)[3], 128);
}

// Onto one of the sources, which the alphas must outlive, row by row and plane by plane.
TEST(AlphaComp, OntoASource) {
  constexpr VemiSize size = {77, 5};
  constexpr size_t count = 77 * 5;
  using Pictures = std::vector<std::vector<Vemi8u>>;  // four planes, or four times as wide as pixels
  Random random(1);
  const auto randomPictures = [&] {
    Pictures pictures(4, std::vector<Vemi8u>(4 * count));
    for (auto& each : pictures) random.fill(reinterpret_cast<std::byte*>(each.data()), each.size());
    return pictures;
  };
  const auto addresses = [](auto& pictures) {
    return std::vector{pictures[0].data(), pictures[1].data(), pictures[2].data(), pictures[3].data()};
  };
  for (int alphaType = 0; alphaType < 12; ++alphaType) {
    const auto onPixels = [&](const Pictures& a, const Pictures& b, Pictures& dst) {
      return vemiAlphaComp_8u_AC4R(a[0].data(), 308, b[0].data(), 308, dst[0].data(), 308, size, alphaType);
    };
    const auto onPlanes = [&](const Pictures& a, const Pictures& b, Pictures& dst) {
      return vemiAlphaComp_8u_AP4R(addresses(a).data(), 77, addresses(b).data(), 77, addresses(dst).data(), 77, size,
                                   alphaType);
    };
    const auto expectOntoBoth = [&](const auto& compositeOf) {
      const Pictures a = randomPictures(), b = randomPictures();
      Pictures expected = a, ontoA = a, expectedOntoB = b, ontoB = b;
      EXPECT_EQ(compositeOf(a, b, expected), vemiOk);
      EXPECT_EQ(compositeOf(ontoA, b, ontoA), vemiOk);
      EXPECT_TRUE(ontoA == expected) << alphaType;
      EXPECT_EQ(compositeOf(a, b, expectedOntoB), vemiOk);
      EXPECT_EQ(compositeOf(a, ontoB, ontoB), vemiOk);
      EXPECT_TRUE(ontoB == expectedOntoB) << alphaType;
    };
    expectOntoBoth(onPixels);
    expectOntoBoth(onPlanes);
  }
}
