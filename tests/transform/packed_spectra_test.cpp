// Products, magnitudes and phases of packed spectra, and complex numbers by their magnitude and phase: from the table
// of the layout, element by element.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

/// Where the two parts of a number stand; a real one has no second.
struct Place {
  int x, y;
};
struct Number {
  Place re, im;
  bool isReal;
};

/// All numbers of the array, each once.
std::vector<Number> numbersOf(int width, int height) {
  std::vector<Number> numbers;
  const auto column = [&](int x) {
    numbers.push_back({{x, 0}, {}, true});
    if (height > 1 && height % 2 == 0) numbers.push_back({{x, height - 1}, {}, true});
    for (int j = 1; 2 * j < height; ++j) numbers.push_back({{x, 2 * j - 1}, {x, 2 * j}, false});
  };
  column(0);
  if (width > 1 && width % 2 == 0) column(width - 1);
  for (int y = 0; y < height; ++y) {
    for (int k = 1; 2 * k < width; ++k) numbers.push_back({{2 * k - 1, y}, {2 * k, y}, false});
  }
  return numbers;
}

/// Exact, scaled and limited: sums of products of 32 bits have 64 and a sign.
int64_t scaledDown(long double value, int scaleFactor) {
  return static_cast<int64_t>(
      std::fmax(std::fmin(std::floor(std::ldexp(value, -std::clamp(scaleFactor, -200, 200))), 0x1p40L), -0x1p40L));
}

void multiplied(Call& call) {
  const View a = call.source(0), b = call.source(1), dst = call.destination();
  const bool isConjugate = call.function.operation == "vemiMulPackConj";
  call.anyNaN = true;
  for (const Number& number : numbersOf(a.size.width, a.size.height)) {
    for (int channel = 0; channel < dst.channels; ++channel) {
      const auto at = [&](const View& view, Place place) { return view.at(place.x, place.y, channel); };
      if (a.element == Element::f32) {
        const float re1 = load<float>(at(a, number.re)), re2 = load<float>(at(b, number.re));
        if (number.isReal) {
          store(at(dst, number.re), re1 * re2);
          continue;
        }
        const float im1 = load<float>(at(a, number.im)), im2 = load<float>(at(b, number.im));
        store(at(dst, number.re), isConjugate ? re1 * re2 + im1 * im2 : re1 * re2 - im1 * im2);
        store(at(dst, number.im), isConjugate ? im1 * re2 - re1 * im2 : re1 * im2 + im1 * re2);
        continue;
      }
      const auto part = [&](const View& view, Place place) -> long double {
        return static_cast<long double>(loadInteger(view.element, at(view, place)));
      };
      const auto put = [&](Place place, long double value) {
        storeSaturated(dst.element, at(dst, place), scaledDown(value, call.scenario.scaleFactor));
      };
      const long double re1 = part(a, number.re), re2 = part(b, number.re);
      if (number.isReal) {
        put(number.re, re1 * re2);
        continue;
      }
      const long double im1 = part(a, number.im), im2 = part(b, number.im);
      put(number.re, re1 * re2 - im1 * im2);
      put(number.im, re1 * im2 + im1 * re2);
    }
  }
}

/// Small arrays of all parities.
void expectSmall(const std::vector<const Export*>& members, const Reference& reference) {
  Scenario scenario;
  for (const Export* member : members) {
    for (scenario.roiSize.height = 1; scenario.roiSize.height <= 6; ++scenario.roiSize.height) {
      for (scenario.roiSize.width = 1; scenario.roiSize.width <= 6; ++scenario.roiSize.width) {
        scenario.seed += 1;
        if (!expectCall(*member, scenario, reference)) return;
      }
    }
  }
}

TEST(MulPack, EveryMember) {
  const std::vector<int> scaleFactors = {0,  1,  3,  15, 16,      17, 30,  31,  32,
                                         33, 62, 63, 64, INT_MAX, -1, -15, -40, INT_MIN};
  expectDefinition(membersOf("vemiMulPack", "(16s|32s)_.*"), multiplied, scaleFactors);
  expectDefinition(membersOf("vemiMulPack", "32f_.*"), multiplied);
  expectDefinition(membersOf("vemiMulPackConj"), multiplied);
  expectSmall(membersOf("vemiMulPack"), multiplied);
  expectSmall(membersOf("vemiMulPackConj"), multiplied);
}

TEST(MulPack, LowestValuesAreExact) {
  const Vemi16s lowest[3] = {0, -32768, -32768};
  const Vemi32s lowest32[3] = {0, INT_MIN, INT_MIN};
  for (const int scaleFactor : {0, 15, 17, 30, 31, 32, -3}) {
    Vemi16s product[3];
    ASSERT_EQ(vemiMulPack_16s_C1RSfs(lowest, 6, lowest, 6, product, 6, {3, 1}, scaleFactor), vemiOk);
    EXPECT_EQ(product[2],
              std::min(std::ldexp(1.0, 31 - scaleFactor) >= 1 ? std::ldexp(1.0, 31 - scaleFactor) : 0, 32767.0));
  }
  for (const int scaleFactor : {0, 33, 40, 63, 64}) {
    Vemi32s product[3];
    ASSERT_EQ(vemiMulPack_32s_C1RSfs(lowest32, 12, lowest32, 12, product, 12, {3, 1}, scaleFactor), vemiOk);
    EXPECT_EQ(product[2], std::min(std::floor(std::ldexp(1.0, 63 - scaleFactor)), 2147483647.0));
  }
}

// ---- Magnitudes and phases ------------------------------------------------------------------------------------------

struct Part {
  double re, im;
};

double partOf(Element element, const std::byte* at) {
  return element == Element::f32 ? static_cast<double>(load<float>(at)) : static_cast<double>(loadInteger(element, at));
}

/// What a member makes of a number, as its destination holds it.
void putResult(Call& call, std::byte* at, Element element, Part z) {
  const bool isPhase = call.function.operation.find("Phase") != std::string::npos;
  call.anyNaN = true;
  if (element == Element::f32) {
    const float re = static_cast<float>(z.re), im = static_cast<float>(z.im);
    store(at, isPhase ? static_cast<float>(std::atan2(z.im, z.re)) : std::sqrt(re * re + im * im));
    if (isPhase) call.tolerance = 2.5e-7;
    return;
  }
  const double value = isPhase ? std::atan2(z.im, z.re) : std::sqrt(z.re * z.re + z.im * z.im);
  const double scaled = std::nearbyint(std::ldexp(value, -std::clamp(call.scenario.scaleFactor, -1000, 1000)));
  storeSaturated(element, at, static_cast<int64_t>(std::clamp(scaled, -0x1p40, 0x1p40)));
}

void ofComplex(Call& call) {
  const View src = call.source(), dst = call.destination();
  for (int y = 0; y < dst.size.height; ++y) {
    for (int x = 0; x < dst.size.width; ++x) {
      for (int channel = 0; channel < dst.channels; ++channel) {
        const std::byte* const at = src.at(x, y, channel);
        const ptrdiff_t bytes = src.pixelBytes / src.channels / 2;
        const Element part = dst.element;
        putResult(call, dst.at(x, y, channel), part, {partOf(part, at), partOf(part, at + bytes)});
      }
    }
  }
}

/// F(x, y) by symmetry from the numbers that the layout holds.
Part wholeNumber(const View& packed, int channel, int x, int y) {
  const int width = packed.size.width, height = packed.size.height;
  const bool isMirrored = 2 * x > width || ((x == 0 || 2 * x == width) && 2 * y > height);
  if (isMirrored) {
    x = (width - x) % width;
    y = (height - y) % height;
  }
  const auto along = [](int k, int length) { return k == 0 ? 0 : 2 * k == length ? length - 1 : 2 * k - 1; };
  const auto part = [&](int column, int row) { return partOf(packed.element, packed.at(column, row, channel)); };
  Part number;
  if (x != 0 && 2 * x != width) {
    number = {part(2 * x - 1, y), part(2 * x, y)};
  } else if (y == 0 || 2 * y == height) {
    return {part(along(x, width), along(y, height)), 0};
  } else {
    number = {part(along(x, width), 2 * y - 1), part(along(x, width), 2 * y)};
  }
  // An integer has no negative zero.
  if (isMirrored) number.im = packed.element == Element::f32 ? -number.im : 0 - number.im;
  return number;
}

void ofPacked(Call& call) {
  const View src = call.source(), dst = call.destination();
  for (int y = 0; y < dst.size.height; ++y) {
    for (int x = 0; x < dst.size.width; ++x) {
      for (int channel = 0; channel < dst.channels; ++channel) {
        putResult(call, dst.at(x, y, channel), dst.element, wholeNumber(src, channel, x, y));
      }
    }
  }
}

void extended(Call& call) {
  const View src = call.source(), dst = call.destination();
  for (int y = 0; y < dst.size.height; ++y) {
    for (int x = 0; x < dst.size.width; ++x) {
      const Part number = wholeNumber(src, 0, x, y);
      if (src.element == Element::f32) {
        store(dst.at(x, y), static_cast<float>(number.re));
        store(dst.at(x, y) + 4, static_cast<float>(number.im));
      } else {
        storeSaturated(Element::s32, dst.at(x, y), static_cast<int64_t>(number.re));
        storeSaturated(Element::s32, dst.at(x, y) + 4, static_cast<int64_t>(number.im));
      }
    }
  }
  call.anyNaN = true;
}

const std::vector<int> resultScales = {0, 1, 4, -3, -10, -12, -28, -40, 31, 60, INT_MAX, INT_MIN};

TEST(PackedSpectra, MagnitudeAndPhaseOfEveryMember) {
  for (const std::string operation : {"vemiMagnitude", "vemiPhase"}) {
    expectDefinition(membersOf(operation, "32f.*"), ofComplex);
    expectDefinition(membersOf(operation, "(16|32)s.*"), ofComplex, resultScales);
    expectDefinition(membersOf(operation + "Pack", "32f.*"), ofPacked);
    expectDefinition(membersOf(operation + "Pack", "(16|32)s.*"), ofPacked, resultScales);
    expectSmall(membersOf(operation + "Pack"), ofPacked);
  }
  const Vemi16sc three = {3, 4};
  Vemi16s half = 0;
  ASSERT_EQ(vemiMagnitude_16sc16s_C1RSfs(&three, 4, &half, 2, {1, 1}, 1), vemiOk);
  EXPECT_EQ(half, 2);
}

TEST(PackedSpectra, WholeSpectra) {
  expectDefinition(membersOf("vemiPackToCplxExtend"), extended);
  expectSmall(membersOf("vemiPackToCplxExtend"), extended);
}

TEST(PackedSpectra, PolarToCart) {
  expectDefinition(membersOf("vemiPolarToCart"), [](Call& call) {
    const View magnitude = call.source(0), phase = call.source(1), dst = call.destination();
    for (int y = 0; y < dst.size.height; ++y) {
      for (int x = 0; x < dst.size.width; ++x) {
        const double m = load<float>(magnitude.at(x, y)), p = load<float>(phase.at(x, y));
        store(dst.at(x, y), static_cast<float>(m * std::cos(p)));
        store(dst.at(x, y) + 4, static_cast<float>(m * std::sin(p)));
      }
    }
    call.anyNaN = true;
    call.tolerance = 3e-7;
  });
}

}  // namespace
