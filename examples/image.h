// An image that owns its memory. The library knows no image object: this one holds the pointer, the step and the size
// that every call takes, and gives the block back at its end.
#pragma once

#include <vemi/vemi.h>
#include <cstddef>
#include <utility>

#include "call.h"

namespace demo {

template <class T>
using Malloc = T* (*)(VemiSize, int*);

/// vemiMalloc of one to four interleaved channels. An element type gets its line when an example uses it.
template <class T>
inline constexpr Malloc<T> mallocOf[4] = {};
template <>
inline constexpr Malloc<Vemi8u> mallocOf<Vemi8u>[4] = {vemiMalloc_8u_C1, vemiMalloc_8u_C2, vemiMalloc_8u_C3,
                                                       vemiMalloc_8u_C4};
template <>
inline constexpr Malloc<Vemi16u> mallocOf<Vemi16u>[4] = {vemiMalloc_16u_C1, vemiMalloc_16u_C2, vemiMalloc_16u_C3,
                                                         vemiMalloc_16u_C4};
template <>
inline constexpr Malloc<Vemi16s> mallocOf<Vemi16s>[4] = {vemiMalloc_16s_C1, vemiMalloc_16s_C2, vemiMalloc_16s_C3,
                                                         vemiMalloc_16s_C4};
template <>
inline constexpr Malloc<Vemi32f> mallocOf<Vemi32f>[4] = {vemiMalloc_32f_C1, vemiMalloc_32f_C2, vemiMalloc_32f_C3,
                                                         vemiMalloc_32f_C4};

/// Rows on 32-byte boundaries, contents not cleared. Channels are interleaved.
template <class T>
class Image {
 public:
  Image(VemiSize size, int channels) : size_(size), channels_(channels) {
    data_ = mallocOf<T>[channels - 1](size, &step_);
    if (!data_) throw Failure("no memory for an image of " + toText(size) + " pixels");
  }
  Image(Image&& other) noexcept
      : size_(other.size_),
        channels_(other.channels_),
        step_(other.step_),
        data_(std::exchange(other.data_, nullptr)) {}
  Image& operator=(Image&& other) noexcept {
    std::swap(size_, other.size_);
    std::swap(channels_, other.channels_);
    std::swap(step_, other.step_);
    std::swap(data_, other.data_);
    return *this;
  }
  ~Image() { vemiFree(data_); }

  VemiSize size() const { return size_; }
  int width() const { return size_.width; }
  int height() const { return size_.height; }
  int channels() const { return channels_; }
  int step() const { return step_; }  ///< bytes from row to row
  T* data() { return data_; }
  const T* data() const { return data_; }

  /// The pixel in column x of row y: where the region with that corner begins.
  T* at(int x, int y) { return const_cast<T*>(std::as_const(*this).at(x, y)); }
  const T* at(int x, int y) const {
    const char* row = reinterpret_cast<const char*>(data_) + static_cast<ptrdiff_t>(y) * step_;
    return reinterpret_cast<const T*>(row) + static_cast<ptrdiff_t>(x) * channels_;
  }

 private:
  VemiSize size_;
  int channels_;
  int step_ = 0;
  T* data_ = nullptr;
};

using Image8u = Image<Vemi8u>;

}  // namespace demo
