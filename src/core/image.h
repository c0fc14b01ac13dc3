// How a call describes its images: a pointer to the region's first pixel and a distance in bytes from row to row.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "core/layout.h"
#include "vemi/types.h"

namespace vemi {

/// T is const for a source. Addresses are formed in pointer-sized integers: row times step overflows 32 bits on real
/// images. A row may be misaligned for T, so elements are reached through lanes or memcpy only.
template <class T>
struct Image {
  T* first;
  int step;

  T* row(ptrdiff_t y) const {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(first) + y * step);
  }
};

/// Separate planes with one step for all of them.
template <class T, int planeCount>
struct Planes {
  T* const* plane;
  int step;

  Image<T> operator[](int index) const { return {plane[index], step}; }
};

/// Separate planes with a step each.
template <class T, int planeCount>
struct SteppedPlanes {
  T* const* plane;
  const int* step;

  Image<T> operator[](int index) const { return {plane[index], step[index]}; }
};

/// The same image under a step that is rounded down to whole elements, for the families that read it so.
template <class T>
Image<T> wholeElements(Image<T> image) {
  return {image.first, image.step & -static_cast<int>(sizeof(T))};
}

/// What one pixel needs of a region's row, in bytes.
template <class T, class L>
inline constexpr ptrdiff_t pixelBytes = static_cast<ptrdiff_t>(sizeof(T)) * L::elements;

/// True where the rows of an image follow each other without a gap.
template <class L, class T>
bool isContiguous(Image<T> image, VemiSize roiSize) {
  return image.step == roiSize.width * pixelBytes<T, L>;
}

template <class L, class T, int planeCount>
bool isContiguous(Planes<T, planeCount> planes, VemiSize roiSize) {
  return isContiguous<L>(planes[0], roiSize);
}
template <class L, class T, int planeCount>
bool isContiguous(SteppedPlanes<T, planeCount> planes, VemiSize roiSize) {
  bool all = true;
  for (int n = 0; n < planeCount; ++n) all = all && isContiguous<L>(planes[n], roiSize);
  return all;
}

template <class T, class U>
bool isSameImage(Image<T> a, Image<U> b) {
  return static_cast<const void*>(a.first) == static_cast<const void*>(b.first);
}

/// The pixels of a rectangle of an image, as an image of their own.
template <class L, class T>
Image<T> imageOf(VemiRect rect, Image<T> image) {
  return {image.row(rect.y) + ptrdiff_t{rect.x} * L::elements, image.step};
}

/// What of a rectangle lies within a size, where its first pixel does.
inline VemiSize clippedSize(VemiRect rect, VemiSize size) {
  return {std::min(rect.width, size.width - rect.x), std::min(rect.height, size.height - rect.y)};
}

/// How many pixels around a region are read with it.
struct Margins {
  Vemi64s left, top, right, bottom;
};

/// Of a window whose anchor counts from its top left pixel.
inline Margins marginsOf(VemiSize window, VemiPoint anchor) {
  const Vemi64s x = anchor.x, y = anchor.y;
  return {x, y, window.width - 1 - x, window.height - 1 - y};
}

/// Of the window turned by half a turn, whose anchor counts from its bottom right pixel: that of a convolution.
inline Margins turned(Margins margins) { return {margins.right, margins.bottom, margins.left, margins.top}; }

/// The extent of a region in pixels, at pointer width, so that many rows can become one.
struct Extent {
  ptrdiff_t width, height;
};

inline Extent extentOf(VemiSize roiSize) { return {roiSize.width, roiSize.height}; }

/// Contiguous rows are one long row.
inline Extent mergedExtent(VemiSize roiSize, bool contiguous) {
  const Extent whole = extentOf(roiSize);
  return contiguous ? Extent{whole.width * whole.height, 1} : whole;
}

}  // namespace vemi
