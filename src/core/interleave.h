// Rows that move between interleaved pixels and planes, and between layouts of different channel counts.
#pragma once

#include <cstddef>

#include "core/blocks.h"
#include "core/lanes.h"

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
void mergeRow(ptrdiff_t width, T* dst, const Plane*... plane) {
  constexpr int channels = sizeof...(Plane);
  const Lanes<T> d;
  const auto kernel = [&](T* out, const Plane*... in)
                          HWY_ATTR { storePixels(d, out, hn::LoadU(d, in)...); };
  forBlocks<laneCount<T>>(width, kernel, Strand<T, channels>{dst}, Strand<const T>{plane}...);
}

/// The first three channels of four-channel pixels.
template <class T>
void dropAlphaRow(ptrdiff_t width, const T* src, T* dst) {
  const Lanes<T> d;
  const auto kernel = [&](const T* in, T* out) HWY_ATTR {
    withChannels<4>(d, in, [&](auto c0, auto c1, auto c2, auto) HWY_ATTR { storePixels(d, out, c0, c1, c2); });
  };
  forBlocks<laneCount<T>>(width, kernel, Strand<const T, 4>{src}, Strand<T, 3>{dst});
}

/// Three-channel pixels into the first three channels of four-channel ones, whose fourth stays.
template <class T>
void beneathAlphaRow(ptrdiff_t width, const T* src, T* dst) {
  const Lanes<T> d;
  const auto kernel = [&](const T* in, const T* old, T* out) HWY_ATTR {
    withChannels<4>(d, old, [&](auto, auto, auto, auto alpha) HWY_ATTR {
      withChannels<3>(d, in, [&](auto... colour) HWY_ATTR { storePixels(d, out, colour..., alpha); });
    });
  };
  forBlocks<laneCount<T>>(width, kernel, Strand<const T, 3>{src}, Strand<const T, 4>{dst}, Strand<T, 4>{dst});
}

/// One channel of interleaved pixels, from the element that `src` addresses. The blocks leave the last pixel out: what
/// lies behind its element may not belong to the image.
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
  for (ptrdiff_t x = 0; x < width; ++x) std::memcpy(dst + x * dstElements, src + x * srcElements, sizeof(T));
}

}  // namespace vemi
