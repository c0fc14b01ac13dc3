// Rows that move between interleaved pixels and planes, and between layouts of different channel counts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/blocks.h"
#include "core/lanes.h"
#include "core/streaming.h"

namespace vemi {

/// Loads one vector of each channel of laneCount<T> interleaved pixels and returns f(channel vectors...).
template <int channels, class D, class F>
HWY_INLINE auto withChannels(D d, const hn::TFromD<D>* pixels, const F& f) {
  hn::Vec<D> c0, c1, c2, c3;
  if constexpr (channels == 2) {
    hn::LoadInterleaved2(d, pixels, c0, c1);
    return f(c0, c1);
  } else if constexpr (channels == 3) {
    hn::LoadInterleaved3(d, pixels, c0, c1, c2);
    return f(c0, c1, c2);
  } else {
    static_assert(channels == 4);
    hn::LoadInterleaved4(d, pixels, c0, c1, c2, c3);
    return f(c0, c1, c2, c3);
  }
}

/// Stores vectors of 2, 3 or 4 channels as interleaved pixels.
template <class D, class... V>
HWY_INLINE void storePixels(D d, hn::TFromD<D>* pixels, V... channel) {
  if constexpr (sizeof...(V) == 2) hn::StoreInterleaved2(channel..., d, pixels);
  if constexpr (sizeof...(V) == 3) hn::StoreInterleaved3(channel..., d, pixels);
  if constexpr (sizeof...(V) == 4) hn::StoreInterleaved4(channel..., d, pixels);
}

/// One interleaved row into as many planes as it has channels.
template <class T, class... Plane>
void splitRow(ptrdiff_t width, const T* src, Plane*... plane) {
  constexpr int channels = sizeof...(Plane);
  const Lanes<T> d;
  const auto kernel = [&](const T* in, Plane*... out) HWY_ATTR {
    withChannels<channels>(d, in, [&](auto... v) HWY_ATTR { (hn::StoreU(v, d, out), ...); });
  };
  forBlocks<laneCount<T>>(width, kernel, Strand<const T, channels>{src}, Strand<T>{plane}...);
}

/// As many planes as there are channels into one interleaved row.
template <class T, class... Plane>
void interleaveRow(ptrdiff_t width, T* dst, const Plane*... plane) {
  constexpr int channels = sizeof...(Plane);
  const Lanes<T> d;
  const auto kernel = [&](T* out, const Plane*... in) HWY_ATTR { storePixels(d, out, hn::LoadU(d, in)...); };
  forBlocks<laneCount<T>>(width, kernel, Strand<T, channels>{dst}, Strand<const T>{plane}...);
}

/// The two with stores past the caches. A block fills whole lines of every plane.
template <class T, class... Plane>
void splitRowStreamed(ptrdiff_t width, const T* src, Plane*... plane) {
  constexpr int channels = sizeof...(Plane);
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = static_cast<int>(laneAlignment / sizeof(T) / N);
  const Lanes<T> d;
  const auto plain = [&](ptrdiff_t x, ptrdiff_t n) { splitRow(n, src + x * channels, plane + x...); };
  const auto kernel = [&](const T* in, Plane*... out) HWY_ATTR {
    unrolled<vectors>([&](auto k) HWY_ATTR {
      withChannels<channels>(d, in + k * N * channels,
                             [&](auto... v) HWY_ATTR { (hn::Stream(v, d, out + k * N), ...); });
    });
  };
  forStreamedBlocks<vectors * N, 1>(width, plain, kernel, Strand<const T, channels>{src}, Strand<T>{plane}...);
}

template <class T, class... Plane>
void interleaveRowStreamed(ptrdiff_t width, T* dst, const Plane*... plane) {
  constexpr int channels = sizeof...(Plane);
  constexpr ptrdiff_t N = laneCount<T>;
  const Lanes<T> d;
  const auto plain = [&](ptrdiff_t x, ptrdiff_t n) { interleaveRow(n, dst + x * channels, plane + x...); };
  const auto kernel = [&](T* out, const Plane*... in) HWY_ATTR {
    alignas(laneAlignment) T pixels[channels * N];
    storePixels(d, pixels, hn::LoadU(d, in)...);
    unrolled<channels>([&](auto k) HWY_ATTR { hn::Stream(hn::Load(d, pixels + k * N), d, out + k * N); });
  };
  forStreamedBlocks<N, 1>(width, plain, kernel, Strand<T, channels>{dst}, Strand<const T>{plane}...);
}

namespace detail {

/// Where the 32 bits of each place are, so that the first three of every block of four come to the vector's front.
struct FrontOfVector {
  alignas(laneAlignment) uint32_t index[laneCount<uint32_t>];

  constexpr FrontOfVector() : index() {
    constexpr uint32_t words = laneCount<uint32_t>;
    for (uint32_t i = 0; i < words; ++i) index[i] = i < words / 4 * 3 ? i / 3 * 4 + i % 3 : 3;
  }
};

inline constexpr FrontOfVector frontOfVector;

}  // namespace detail

/// extractColourRow for bytes. The pixels of a vector are packed to its front; whole vectors are stored, each over the
/// empty end of the one before, but the last of a block is cut.
inline void extractColourBytes(ptrdiff_t width, const uint8_t* src, uint8_t* dst) {
  const Lanes<uint8_t> d;
  const Lanes<uint32_t> dPixels;
  constexpr ptrdiff_t N = laneCount<uint8_t>, packed = N / 4 * 3;
  constexpr int vectors = 4;
  alignas(16) static constexpr uint8_t frontOfBlock[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 3, 7, 11, 15};
  const auto blocks = hn::LoadDup128(d, frontOfBlock);
  const auto lanes = hn::SetTableIndices(dPixels, detail::frontOfVector.index);
  const auto kernel = [&](const uint8_t* in, uint8_t* out) HWY_ATTR {
    const auto pack = [&](auto k) HWY_ATTR {
      const auto inBlocks = hn::TableLookupBytes(hn::LoadU(d, in + k * N), blocks);
      return hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(dPixels, inBlocks), lanes));
    };
    alignas(laneAlignment) uint8_t last[N];
    hn::Store(pack(std::integral_constant<int, vectors - 1>()), d, last);
    unrolled<vectors - 1>([&](auto k) HWY_ATTR { hn::StoreU(pack(k), d, out + k * packed); });
    std::memcpy(out + (vectors - 1) * packed, last, packed);
  };
  forBlocks<vectors * N / 4>(width, kernel, Strand<const uint8_t, 4>{src}, Strand<uint8_t, 3>{dst});
}

/// The first three channels of four-channel pixels.
template <class T>
void extractColourRow(ptrdiff_t width, const T* src, T* dst) {
  if constexpr (sizeof(T) == 1) return extractColourBytes(width, src, dst);
  const Lanes<T> d;
  const auto kernel = [&](const T* in, T* out) HWY_ATTR {
    withChannels<4>(d, in, [&](auto c0, auto c1, auto c2, auto) HWY_ATTR { storePixels(d, out, c0, c1, c2); });
  };
  forBlocks<laneCount<T>>(width, kernel, Strand<const T, 4>{src}, Strand<T, 3>{dst});
}

/// Three-channel pixels into the first three channels of four-channel ones, whose fourth stays.
template <class T>
void insertColourRow(ptrdiff_t width, const T* src, T* dst) {
  const Lanes<T> d;
  const auto kernel = [&](const T* in, const T* old, T* out) HWY_ATTR {
    withChannels<4>(d, old, [&](auto, auto, auto, auto alpha) HWY_ATTR {
      withChannels<3>(d, in, [&](auto... colour) HWY_ATTR { storePixels(d, out, colour..., alpha); });
    });
  };
  forBlocks<laneCount<T>>(width, kernel, Strand<const T, 3>{src}, Strand<const T, 4>{dst}, Strand<T, 4>{dst});
}

/// One channel of at least one interleaved pixel, from the element that `src` addresses. The blocks leave the last
/// pixel out: what lies behind its element may not belong to the image.
template <int channels, class T>
void extractChannelRow(ptrdiff_t width, const T* src, T* dst) {
  const Lanes<T> d;
  const auto kernel = [&](const T* in, T* out) HWY_ATTR {
    withChannels<channels>(d, in, [&](auto wanted, auto...) HWY_ATTR { hn::StoreU(wanted, d, out); });
  };
  const ptrdiff_t last = width - 1;
  forBlocks<laneCount<T>>(last, kernel, Strand<const T, channels>{src}, Strand<T>{dst});
  std::memcpy(dst + last, src + last * channels, sizeof(T));
}

/// One element from each pixel to each pixel. Nothing but these elements is read or written, so that the other channels
/// may be in use by other threads.
template <int srcElements, int dstElements, class T>
void copyChannelRow(ptrdiff_t width, const T* src, T* dst) {
  ptrdiff_t x = 0;
  if constexpr (srcElements == 1 && sizeof(T) == 1) {  // one load for 16 pixels
    const hn::FixedTag<uint8_t, 16> d;
    for (; x + 16 <= width; x += 16) {
      const auto pixels = hn::LoadU(d, src + x);
      unrolled<16>([&](auto k) HWY_ATTR { dst[(x + k) * dstElements] = hn::ExtractLane(pixels, k); });
    }
  }
  for (; x < width; ++x) std::memcpy(dst + x * dstElements, src + x * srcElements, sizeof(T));
}

}  // namespace vemi
