// Pixel layouts as types: how many elements a pixel has in memory, and which of them an operation works on.
#pragma once

namespace vemi {

/// `elements` of memory to a pixel, of which the first `channels` are worked on. Where the two differ, the rest of a
/// destination pixel is left as it was.
template <int elementCount, int channelCount = elementCount>
struct Interleaved {
  static constexpr int elements = elementCount;
  static constexpr int channels = channelCount;
  static constexpr bool keepsAlpha = channelCount < elementCount;
};

using C1 = Interleaved<1>;
using C2 = Interleaved<2>;
using C3 = Interleaved<3>;
using C4 = Interleaved<4>;
using AC4 = Interleaved<4, 3>;

}  // namespace vemi
