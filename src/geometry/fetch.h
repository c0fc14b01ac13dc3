// Rows of pixels fetched from between those of a source: what all warps and the maps of a user have in common. For each
// pixel of a row there is an x and a y, in floats that count the source's pixels.
//
//   Nearest  both to the nearest integer, ties to even.
//   Linear   between columns i = trunc(x) and i + 1, then between rows in the same way; the last column counts as the
//            whole of the next one. Bytes: weights w = rint((x - i) * 16384), a row's (p0 (16384 - w) + p1 w) >> 8, and
//            between the rows (h0 (16384 - w) + h1 w + 0x80000) >> 20. Others: p0 (1 - w) + p1 w in floats.
//   Cubic    by the polynomial through the columns i - 1 to i + 2, then through the rows; where such columns lie beyond
//            the image, through the four next to its edge. Bytes: weights of 14 bits from a table with 512 entries for
//            a pixel, a row's sum >> 8, and (sum + 0x80000) >> 20. Others: in floats.
//
// 16-bit elements are made in floats and rounded to nearest. All this is to nearest: rows run under roundingToNearest.
#pragma once

#include <cstddef>

#include "core/gather.h"
#include "core/image.h"
#include "vemi/geometry.h"

namespace vemi::geometry {

/// The coordinates that are fetched. A pixel that has another one, or a NaN, stays as it is in the destination.
struct FetchLimits {
  float left, top, right, bottom;

  /// Floats of which none lies outside of these.
  static FetchLimits within(double left, double top, double right, double bottom);
};

/// What is fetched from. Coordinates within the limits but beyond the image count as those of its edge.
struct FetchSource {
  PixelBytes pixels;
  VemiSize size;
  FetchLimits image, limits;

  template <class L, class T>
  static FetchSource of(Image<const T> image, VemiSize size, FetchLimits limits) {
    return {PixelBytes::of<L>(image, size), size, FetchLimits::within(0, 0, size.width - 1.0, size.height - 1.0),
            limits};
  }
};

/// Cubic needs four columns and rows, linear two: what is left of an interpolation in an image or region of this size.
inline int interpolationWithin(VemiSize size, int interpolation) {
  const int least = size.width < size.height ? size.width : size.height;
  if (least < 2) return vemiInterNearest;
  return interpolation == vemiInterCubic && least < 4 ? vemiInterLinear : interpolation;
}

/// Fetches `count` pixels into a row.
template <class T>
using FetchRow = void (*)(const FetchSource& source, ptrdiff_t count, const float* x, const float* y, T* dst);

/// For pixels of layout L, of bytes, 16u or 32f. The source's size allows the interpolation.
template <class T, class L>
FetchRow<T> fetchRow(int interpolation);

}  // namespace vemi::geometry
