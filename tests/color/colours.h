// Conversions of three channels to three: references for each pixel, and all colours of 8 bits.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "support/check.h"

namespace vemi::test {

using Floats = std::array<float, 3>;
using Integers = std::array<int, 3>;

/// of(the three channels of a pixel, its place in the row, the row's length) gives the destination's, before
/// saturation. A fourth channel that is no kept alpha is copied.
template <class F>
Reference ofIntegers(F of) {
  return [=](Call& call) {
    const View src = call.source(), dst = call.destination();
    const auto at = [&](int x, int y, int channel) {
      return static_cast<int>(loadInteger(src.element, src.at(x, y, channel)));
    };
    call.forEachElement([&](int x, int y, int channel) {
      if (channel == 3) storeSaturated(dst.element, dst.at(x, y, 3), at(x, y, 3));
      if (channel != 0) return;
      const Integers result = of(Integers{at(x, y, 0), at(x, y, 1), at(x, y, 2)}, x, dst.size.width);
      for (int c = 0; c < 3; ++c) storeSaturated(dst.element, dst.at(x, y, c), result[static_cast<size_t>(c)]);
    });
  };
}

template <class F>
Reference ofFloats(F of) {
  return [=](Call& call) {
    const View src = call.source(), dst = call.destination();
    call.anyNaN = true;
    call.forEachElement([&](int x, int y, int channel) {
      const auto at = [&](int c) { return load<float>(src.at(x, y, c)); };
      store(dst.at(x, y, channel), of(Floats{at(0), at(1), at(2)})[static_cast<size_t>(channel)]);
    });
  };
}

/// All 2^24 colours, those of one first channel at a time, as a row of 65536 pixels, or in rows of 5, which have no
/// whole groups of 8. The digest of all results is known; every `stride`-th row is held against the reference too.
template <class T, class F>
void expectEveryColour(VemiStatus (*convert)(const Vemi8u*, int, T*, int, VemiSize), F of, uint64_t digest,
                       int width = 65536) {
  constexpr int stride = 16, pixels = 65536;
  std::vector<Vemi8u> colours(3 * pixels);
  std::vector<T> results(3 * pixels);
  uint64_t hash = 0xcbf29ce484222325;
  for (int first = 0; first < 256; ++first) {
    for (int n = 0; n < pixels; ++n) {
      Vemi8u* const colour = &colours[static_cast<size_t>(3 * n)];
      colour[0] = static_cast<Vemi8u>(first), colour[1] = static_cast<Vemi8u>(n >> 8);
      colour[2] = static_cast<Vemi8u>(n);
    }
    const int rows = pixels / width, rest = pixels % width, step = 3 * width;
    ASSERT_EQ(convert(colours.data(), step, results.data(), step * static_cast<int>(sizeof(T)), {width, rows}), vemiOk);
    if (rest > 0) {
      const size_t done = static_cast<size_t>(3 * width * rows);
      ASSERT_EQ(convert(&colours[done], step, &results[done], step, {rest, 1}), vemiOk);
    }
    for (const T result : results) hash = (hash ^ result) * 0x100000001b3;
    for (int n = 0; n < pixels && first % stride == stride - 1; ++n) {
      const size_t at = static_cast<size_t>(3 * n);
      const Integers expected = of(Integers{colours[at], colours[at + 1], colours[at + 2]}, n % width, width);
      for (size_t c = 0; c < 3; ++c) {
        ASSERT_EQ(results[at + c], std::clamp<int>(expected[c], 0, T(-1)))
            << first << " " << (n >> 8) << " " << (n & 255) << ", channel " << c;
      }
    }
  }
  EXPECT_EQ(hash, digest) << std::hex << hash;
}

/// The approximate reciprocal, by integers.
inline float reciprocal(float x) {
  const uint32_t bits = std::bit_cast<uint32_t>(x), sign = bits & 0x80000000, exponent = bits >> 23 & 255;
  if (exponent == 0) return std::bit_cast<float>(sign | 0x7f800000);
  const uint32_t middle = 4097 + 2 * (bits >> 12 & 0x7ff), quotient = (0x2000000 + middle / 2) / middle;
  return std::bit_cast<float>(sign | (253 - exponent) << 23) * static_cast<float>(quotient) * 0x1p-12f;
}

inline float refined(float x) {
  const float r = reciprocal(x);
  return 2 * r - x * r * r;
}

}  // namespace vemi::test
