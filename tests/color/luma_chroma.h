// Images of colour conversions as channels, whatever their layout: for references.
#pragma once

#include <algorithm>
#include <array>

#include "support/check.h"

namespace vemi::test {

struct Channel {
  std::byte* first;
  ptrdiff_t step, pixelBytes;

  std::byte& at(ptrdiff_t x, ptrdiff_t y) const { return first[y * step + x * pixelBytes]; }
  int get(ptrdiff_t x, ptrdiff_t y) const { return static_cast<int>(at(x, y)); }
  void set(ptrdiff_t x, ptrdiff_t y, int value) const { at(x, y) = static_cast<std::byte>(value); }
};
using Channels = std::array<Channel, 4>;

inline bool hasSteps(const Call& call) { return call.function.indexOf("roiSize") >= 0; }

/// Those of a view, or, of images without steps, of rows that follow each other; of the latter, planes but the first
/// have a sample for two pixels of a row where `sharesChroma`.
inline Channels channelsOf(Call& call, bool ofSource, bool sharesChroma) {
  Channels all = {};
  const Layout layout = ofSource ? call.function.source : call.function.destination;
  if (hasSteps(call)) {
    const View view = ofSource ? call.source() : call.destination();
    for (size_t c = 0; c < static_cast<size_t>(view.channels); ++c) {
      all[c] = {view.origin[c], view.step[c], view.pixelBytes};
    }
    return all;
  }
  const View view = call.array(ofSource ? "pSrc" : "pDst");
  const ptrdiff_t width = call.scenario.roiSize.width;
  for (size_t c = 0; c < 3; ++c) {
    if (layout.planar) {
      all[c] = {view.origin[c], c > 0 && sharesChroma ? (width + 1) / 2 : width, 1};
    } else {
      all[c] = {view.origin[0] + c, 3 * width, 3};
    }
  }
  return all;
}

/// Luma and both chroma of a pixel, of planes or of pairs Y0 U Y1 V. The last pixel of an odd row of pairs has no
/// second chroma: it takes that of the pair before, or else the first for both.
inline std::array<int, 3> lumaChromaOf(const Call& call, const Channels& in, int x, int y, int shareX, int shareY) {
  const bool isPacked = call.function.source.elements == 2;
  if (!isPacked) return {in[0].get(x, y), in[1].get(x / shareX, y / shareY), in[2].get(x / shareX, y / shareY)};
  const bool isLast = x == call.scenario.roiSize.width - 1 && x % 2 == 0;
  const int first = x / 2 * 2;
  return {in[0].get(x, y), in[1].get(first, y), in[1].get(isLast ? std::max(x - 1, 0) : first + 1, y)};
}

inline int clip(int v) { return std::clamp(v, 0, 255); }
inline int mulhi(int a, int b) { return (a * b) >> 16; }

}  // namespace vemi::test
