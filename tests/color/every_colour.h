// All 2^24 colours through a conversion of three channels, against a definition of its pixels.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "luma_chroma.h"

namespace vemi::test {

/// In rows of `width` pixels, so that all of them lie in whole groups, or none. The definition is told the column too.
template <class Convert, class Definition>
void expectEveryColour(int width, const Convert& convert, const Definition& definition) {
  constexpr int colours = 1 << 16;
  const VemiSize size = {width, (colours + width - 1) / width};
  const auto pixels = static_cast<size_t>(size.width * size.height);
  std::vector<Vemi8u> from(3 * pixels), to(3 * pixels);
  for (int first = 0; first < 256; ++first) {
    for (size_t i = 0; i < pixels; ++i) {
      from[3 * i] = static_cast<Vemi8u>(first);
      from[3 * i + 1] = static_cast<Vemi8u>(i >> 8);
      from[3 * i + 2] = static_cast<Vemi8u>(i);
    }
    ASSERT_EQ(convert(from.data(), 3 * width, to.data(), 3 * width, size), vemiOk);
    for (size_t i = 0; i < pixels; ++i) {
      const Pixel expected =
          definition(Pixel{from[3 * i], from[3 * i + 1], from[3 * i + 2]}, static_cast<int>(i) % width);
      for (size_t c = 0; c < 3; ++c) {
        if (to[3 * i + c] != clip(expected[c])) {
          FAIL() << first << " " << (i >> 8 & 255) << " " << (i & 255) << ", channel " << c;
        }
      }
    }
  }
}

constexpr int inGroups = 4096, besideGroups = 7;

/// The same of luma and chroma that `shared` pixels of a row have in common, from planes: `shared` different lumas.
template <int shared, class Convert, class Definition>
void expectEveryLumaChroma(int width, const Convert& convert, const Definition& definition) {
  const int across = (width + shared - 1) / shared, lumas = 256 / shared;
  const int rows = (256 * lumas + width / shared - 1) / (width / shared);
  std::vector<Vemi8u> luma(static_cast<size_t>(width * rows)), u(static_cast<size_t>(across * rows)), v(u.size()),
      to(3 * luma.size());
  const Vemi8u* const planes[3] = {luma.data(), u.data(), v.data()};
  const int steps[3] = {width, across, across};
  for (int first = 0; first < 256; ++first) {
    for (int y = 0; y < rows; ++y) {
      for (int x = 0; x < width; ++x) {
        const int group = y * (width / shared) + x / shared;
        luma[static_cast<size_t>(y * width + x)] = static_cast<Vemi8u>(group % lumas * shared + x % shared);
        u[static_cast<size_t>(y * across + x / shared)] = static_cast<Vemi8u>(group / lumas);
        v[static_cast<size_t>(y * across + x / shared)] = static_cast<Vemi8u>(first);
      }
    }
    ASSERT_EQ(convert(planes, steps, to.data(), 3 * width, VemiSize{width, rows}), vemiOk);
    for (int y = 0; y < rows; ++y) {
      for (int x = 0; x < width; ++x) {
        const auto at = static_cast<size_t>(y * width + x), chroma = static_cast<size_t>(y * across + x / shared);
        const Pixel expected = definition(Pixel{luma[at], u[chroma], v[chroma]}, x);
        for (size_t c = 0; c < 3; ++c) {
          if (to[3 * at + c] != clip(expected[c])) {
            FAIL() << int{luma[at]} << " " << int{u[chroma]} << " " << first << ", channel " << c;
          }
        }
      }
    }
  }
}

}  // namespace vemi::test
