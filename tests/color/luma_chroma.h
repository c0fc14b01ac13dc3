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

using Pixel = std::array<int, 3>;

inline Pixel pixelOf(const Channels& in, int x, int y) { return {in[0].get(x, y), in[1].get(x, y), in[2].get(x, y)}; }

/// How many pixels of a row and of a column share chroma, as the operation's name says.
inline std::array<int, 2> sharingOf(const Call& call) {
  const auto is = [&](const char* ratio) { return call.function.operation.find(ratio) != std::string::npos; };
  return {is("411") ? 4 : is("422") || is("420") ? 2 : 1, is("420") ? 2 : 1};
}

/// In pairs, bytes of chroma stand beside luma: behind it, or, in CbYCr, ahead of it.
inline size_t lumaChannel(const Call& call) {
  return call.function.operation.find("CbYCr") != std::string::npos ? 1 : 0;
}

/// Luma and both chroma of a pixel, of planes or of pairs. The last pixel of an odd row of pairs has no second chroma:
/// it takes that of the pair before, or else the first for both.
inline Pixel lumaChromaOf(const Call& call, const Channels& in, int x, int y) {
  if (call.function.source.elements != 2) {
    const auto [shareX, shareY] = sharingOf(call);
    return {in[0].get(x, y), in[1].get(x / shareX, y / shareY), in[2].get(x / shareX, y / shareY)};
  }
  const size_t luma = lumaChannel(call);
  const bool isLast = x == call.scenario.roiSize.width - 1 && x % 2 == 0;
  const int first = x / 2 * 2, second = isLast ? std::max(x - 1, 0) : first + 1;
  return {in[luma].get(x, y), in[1 - luma].get(first, y), in[1 - luma].get(second, y)};
}

/// Chroma of the group of pixels that begins here. Of the last pixel of an odd row of pairs the second has no room.
inline void setChroma(const Call& call, const Channels& out, int x, int y, int first, int second) {
  if (call.function.destination.elements != 2) {
    const auto [shareX, shareY] = sharingOf(call);
    out[1].set(x / shareX, y / shareY, first);
    out[2].set(x / shareX, y / shareY, second);
    return;
  }
  const Channel chroma = out[1 - lumaChannel(call)];
  chroma.set(x, y, first);
  if (x + 1 < call.scenario.roiSize.width) chroma.set(x + 1, y, second);
}

inline int clip(int v) { return std::clamp(v, 0, 255); }
inline int mulhi(int a, int b) { return (a * b) >> 16; }

}  // namespace vemi::test
