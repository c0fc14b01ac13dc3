#include "support/families.h"

#include <cmath>

namespace vemi::test {
namespace {

// ---- Luma and chroma ----

// ---- Perceptual and device spaces ----

/// Pixels with channels that are equal, all of them or two, of black and white, and of floats that are colours.
void fewColours(Call& call) {
  const View source = call.source();
  const auto bytes = static_cast<size_t>(bytesOf(source.element));
  const bool isFloat = source.element == Element::f32;
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      const int kind = call.random.below(12);
      for (int channel = 0; channel < 3; ++channel) {
        std::byte* const element = source.at(x, y, channel);
        if (isFloat && kind < 9) store(element, static_cast<float>(call.random.below(1400) - 150) * 0x1p-10f);
        if (kind == 0) std::memset(element, 0, bytes);
        if (kind == 1 && !isFloat) std::memset(element, 0xff, bytes);
      }
      const auto copy = [&](int from, int to) { std::memcpy(source.at(x, y, to), source.at(x, y, from), bytes); };
      if (kind >= 2 && kind <= 4) copy(kind - 2, (kind - 1) % 3);
      if (kind == 2) copy(1, 2);
    }
  }
}

// ---- Matrices of the user's ----

/// The gain of a mixture, sums that end in a half, any floats at all, and constants that bring a pixel's sum next to a
/// half.
void withTwist(Call& call) {
  enum Kind { mixture, halves, any, beside };
  Random& random = call.random;
  const bool isSquare = call.function.members.find("C4R") != std::string::npos && call.function.source.channels == 4;
  std::vector<Vemi32f> twist(isSquare ? 16 : 12);
  const auto kind = static_cast<Kind>(random.below(4));
  for (size_t k = 0; k < twist.size(); ++k) {
    const bool isConstant = k % 4 == 3 && !isSquare;
    const int size = isConstant ? 200 : 1;
    if (kind == mixture || kind == beside) {
      twist[k] = static_cast<Vemi32f>(random.below(3 << 20) - (1 << 20)) * 0x1p-21f * static_cast<Vemi32f>(size);
    } else if (kind == halves) {
      twist[k] = static_cast<Vemi32f>(random.below(33) - 16) * 0.125f * static_cast<Vemi32f>(size);
    } else {
      fillElement(Element::f32, reinterpret_cast<std::byte*>(&twist[k]), random);
      if (call.scenario.oneNaN) unifyNaNs(Element::f32, reinterpret_cast<std::byte*>(&twist[k]));
    }
    if (kind == beside && isConstant) {
      const double sum = 77.0 * twist[k - 3] + 128.0 * twist[k - 2] + 33.0 * twist[k - 1];
      twist[k] = static_cast<Vemi32f>(std::floor(sum) + 0.5 - sum);
    }
  }
  call.setArray("twist", twist);
}

/// Some pixels are the one whose sum lies next to a half.
void withPixelBesideHalf(Call& call) {
  const View source = call.source();
  for (int x = 0; x < source.size.width && source.channels >= 3; x += 3) {
    storeNumber(source.element, source.at(x, 0, 0), 77);
    storeNumber(source.element, source.at(x, 0, 1), 128);
    storeNumber(source.element, source.at(x, 0, 2), 33);
  }
}

// ---- Video layouts ----

// ---- Packed 16-bit pixels ----

}  // namespace

std::vector<Family> colorFamilies() {
  return {
      // Luma and chroma

      // Perceptual and device spaces
      {"vemiRGBToHSV vemiHSVToRGB", ".*", "null size step", nullptr, {}, fewColours},

      // Matrices of the user's
      {"vemiColorTwist vemiColorTwist32f", ".*", "null size step", withTwist, {}, withPixelBesideHalf},

      // Video layouts

      // Orders of channels

      // Packed 16-bit pixels

  };
}

}  // namespace vemi::test
