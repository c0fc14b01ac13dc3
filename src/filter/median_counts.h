// Medians of rectangles of any size, by counts of the values in them. One channel at a time; layouts are numbers here.
#pragma once

#include <cstdint>

#include "core/image.h"
#include "vemi/status.h"

namespace vemi::filter {

template <class T>
struct MedianCall {
  Image<const T> src;  // from the first pixel of the first window on
  Image<T> dst;
  VemiSize roiSize, mask;
  ptrdiff_t pixel;  // elements
  int channels;

  Vemi64s area() const { return Vemi64s{mask.width} * mask.height; }
};

VemiStatus medianByCounts(const MedianCall<Vemi8u>& call);
VemiStatus medianByCounts(const MedianCall<Vemi16s>& call);

/// run(a count) with the narrower type that holds the number of pixels in a window.
template <class Call, class Run>
VemiStatus withCountsOf(const Call& call, const Run& run) {
  if (call.area() <= 0xffff) return run(uint16_t());
  return run(int64_t());
}

}  // namespace vemi::filter
