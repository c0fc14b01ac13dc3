// Images as users have them: one block, rows without gaps but where a row of the table asks for some, the first pixel
// on a cache line.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "contest.h"
#include "vemi/vemi.h"

namespace bench {

// Copies share the pixels, so that a callable can own the images that it works on.
template <class T>
struct Image {
  VemiSize size;
  int channels;
  int step;
  std::shared_ptr<T> pixels;

  T* data() const { return pixels.get(); }
  // With the gaps.
  size_t elements() const { return static_cast<size_t>(step) * static_cast<size_t>(size.height) / sizeof(T); }
  Bytes bytes() const { return {data(), elements() * sizeof(T)}; }
};

// What our side moves through the images that a row has made since the report last set it to 0.
inline size_t bytesMoved = 0;

// Bytes between the rows of the images that are made next; whole elements.
inline int gapBytes = 0;

// How often our side passes over an image: it reads or writes it, does both in place, or leaves it to the peer.
enum Passes { peersAlone, once, inPlace };

// All pages are touched: none is first met while the clock runs.
template <class T>
Image<T> blankImage(VemiSize size, int channels, Passes passes = once) {
  constexpr size_t cacheLine = 64;
  const int rowBytes = size.width * channels * static_cast<int>(sizeof(T));
  Image<T> image{size, channels, rowBytes + gapBytes, nullptr};
  const size_t count = image.bytes().count;
  void* block = std::aligned_alloc(cacheLine, (count + cacheLine - 1) / cacheLine * cacheLine);
  if (!block) throw std::bad_alloc();
  std::memset(block, 0, count);
  bytesMoved += static_cast<size_t>(rowBytes) * static_cast<size_t>(size.height) * passes;
  image.pixels.reset(static_cast<T*>(block), std::free);
  return image;
}

// The upper bits of a linear congruential sequence: integers over their whole range, floats from 0 to 65535.
template <class T>
Image<T> randomImage(VemiSize size, int channels, Passes passes = once) {
  constexpr int unusedBits = sizeof(T) == 1 ? 24 : 16;
  const Image<T> image = blankImage<T>(size, channels, passes);
  uint32_t state = 1;
  for (size_t i = 0; i < image.elements(); ++i) {
    state = state * 1664525u + 1013904223u;
    image.data()[i] = static_cast<T>(state >> unusedBits);
  }
  return image;
}

// The constants of fills, borders and sums; float represents them exactly.
template <class T>
inline constexpr T constants[4] = {11, 22, 33, 44};

// What a function of so many channels takes: one constant, or the array of them.
template <int channels, class T>
constexpr auto argument(const T (&values)[4]) {
  if constexpr (channels == 1)
    return values[0];
  else
    return &values[0];
}

}  // namespace bench
