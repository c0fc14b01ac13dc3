// What both directions of the real transforms share. Between them, column transforms leave V(x, v), v = 0 to H / 2, in
// the rows of the destination: real parts in row v, imaginary parts in row H - v; V(x, 0) and V(x, H / 2), which are
// real, in rows 0 and H / 2. So rows v and H - v are one complex line, and rows 0 and H / 2 another; the transform of
// line v gives F(u, v) for all u, of which those beyond W / 2 are the conjugates of F(W - u, H - v), row H - v. Of an
// odd height, row 0 goes with itself: both parts of its line are it, and give it.
//
// Columns 0 and, of even widths, W - 1 of the packed array hold numbers of other rows: they go by way of an array of
// their own.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/image.h"
#include "signal/fft_line.h"
#include "transform/fft_spec.h"
#include "transform/short_rows.h"

namespace vemi::transform {

using signal::ColumnGroups;
using signal::LineGroups;
using signal::Roots;

inline constexpr ptrdiff_t columnLanes = ColumnGroups::N;

struct ComplexNumber {
  float re, im;
};

inline ptrdiff_t linesOf(ptrdiff_t height) { return (height + 1) / 2; }

/// The row that is in a line with row v; for v = 0, that of v = H / 2.
inline ptrdiff_t rowWith(ptrdiff_t v, ptrdiff_t height) {
  if (v > 0) return height - v;
  return height % 2 == 0 ? height / 2 : 0;
}

/// The two rows that are line v.
template <class T>
struct LineRows {
  T *top, *bottom;

  LineRows(Image<T> image, ptrdiff_t v, ptrdiff_t height) : top(image.row(v)), bottom(image.row(rowWith(v, height))) {}
};

/// Columns 0 and, of even widths, W - 1 of the packed array, of each channel: F(0, v) and F(W / 2, v), packed along y.
struct PackedEdges {
  float* memory;
  int channels;
  ptrdiff_t height;

  static int sidesOf(ptrdiff_t width) { return width % 2 == 0 ? 2 : 1; }

  float* column(int side, int channel) const { return memory + (ptrdiff_t{side} * channels + channel) * height; }

  void set(int side, int channel, ptrdiff_t v, ComplexNumber z) const {
    float* const packed = column(side, channel);
    if (v == 0 || 2 * v == height) {
      packed[v == 0 ? 0 : height - 1] = z.re;
    } else {
      packed[2 * v - 1] = z.re;
      packed[2 * v] = z.im;
    }
  }
  ComplexNumber get(int side, int channel, ptrdiff_t v) const {
    const float* const packed = column(side, channel);
    if (v == 0 || 2 * v == height) return {packed[v == 0 ? 0 : height - 1], 0};
    return {packed[2 * v - 1], packed[2 * v]};
  }
  /// Line 0 is F(u, 0) + i F(u, H / 2), of which both are real at the sides.
  ComplexNumber ofLine(int side, int channel, ptrdiff_t v) const {
    if (v > 0) return get(side, channel, v);
    return {get(side, channel, 0).re, get(side, channel, rowWith(0, height)).re};
  }
  void setOfLine(int side, int channel, ptrdiff_t v, ComplexNumber z) const {
    set(side, channel, v, z);
    if (v == 0) set(side, channel, rowWith(0, height), {z.im, 0});
  }

  template <int elements>
  void writeTo(Image<float> dst, ptrdiff_t width) const {
    for (int side = 0; side < sidesOf(width); ++side) {
      for (ptrdiff_t y = 0; y < height; ++y) {
        float* const pixel = dst.row(y) + (side == 0 ? 0 : width - 1) * elements;
        for (int channel = 0; channel < channels; ++channel) setElement(pixel + channel, column(side, channel)[y]);
      }
    }
  }
  template <int elements>
  void readFrom(Image<const float> src, ptrdiff_t width) const {
    for (int side = 0; side < sidesOf(width); ++side) {
      for (ptrdiff_t y = 0; y < height; ++y) {
        const float* const pixel = src.row(y) + (side == 0 ? 0 : width - 1) * elements;
        for (int channel = 0; channel < channels; ++channel) column(side, channel)[y] = elementOf(pixel + channel);
      }
    }
  }
};

/// 16 columns of floats in halves of 8, of which the first ones make one complex column, and so on. Both are of the
/// same channel, as channels may differ by any factor: of three channels, the halves are 24 columns apart. What is
/// beyond the last column is 0, and not stored.
template <class L>
struct ColumnBlock {
  static constexpr ptrdiff_t apart = L::elements == 3 ? 24 : 8;

  ptrdiff_t x, count[2];

  ColumnBlock(ptrdiff_t first, ptrdiff_t floats)
      : x(first), count{countFrom(first, floats), countFrom(first + apart, floats)} {}

  /// Where the block behind the one at x begins.
  static ptrdiff_t behind(ptrdiff_t x) { return x + 8 + (x % (2 * apart) == apart - 8 ? apart : 0); }

  bool isWhole() const { return count[1] == 8; }

  template <class T>
  HWY_INLINE void askFor(Image<T> image, ptrdiff_t y) const {
    askForRow(image, y, x);
    if (apart > 8) askForRow(image, y, x + apart);
  }

  /// The vectors k of both halves of a row.
  HWY_INLINE ColumnGroups::Numbers load(Image<const float> src, ptrdiff_t y, ptrdiff_t k) const {
    const ColumnGroups::D d;
    const float* from[2] = {src.row(y) + x, src.row(y) + x + apart};
    float end[2][8] = {};
    for (int half = 0; half < 2 && !isWhole(); ++half) {
      const size_t bytes = static_cast<size_t>(count[half]) * sizeof(float);
      from[half] = static_cast<const float*>(std::memcpy(end[half], from[half], bytes));
    }
    return {hn::LoadU(d, from[0] + k * columnLanes), hn::LoadU(d, from[1] + k * columnLanes)};
  }
  HWY_INLINE void store(Image<float> dst, ptrdiff_t y, ptrdiff_t k, ColumnGroups::Numbers halves) const {
    const auto half = [&](int which, ColumnGroups::V v) HWY_ATTR {
      const ColumnGroups::D d;
      float* const to = dst.row(y) + x + which * apart + k * columnLanes;
      if (!isWhole()) {
        float element[columnLanes];
        hn::StoreU(v, d, element);
        for (ptrdiff_t i = 0; i < columnLanes && k * columnLanes + i < count[which]; ++i) {
          if (!L::keepsAlpha || i % 4 < 3) setElement(to + i, element[i]);
        }
      } else if constexpr (L::keepsAlpha) {
        hn::StoreU(hn::IfThenElse(colourLanes(d), v, hn::LoadU(d, to)), d, to);
      } else {
        hn::StoreU(v, d, to);
      }
    };
    half(0, halves.re);
    half(1, halves.im);
  }

 private:
  static ptrdiff_t countFrom(ptrdiff_t first, ptrdiff_t floats) { return std::clamp<ptrdiff_t>(floats - first, 0, 8); }
};

/// Eight short lines at once, transposed: group e holds element e of their rows, real parts from the top rows.
template <class L>
struct ShortLines {
  alignas(laneAlignment) float memory[(16 * L::elements) << (signal::shortestLineOrder - 1)];

  ColumnGroups all() { return {memory}; }
  /// The numbers of a channel, one for each pixel.
  ColumnGroups ofChannel(int channel) { return {memory + channel * 16, 16 * L::elements}; }
};

template <class T>
EightRows<T> topRows(Image<T> image, ptrdiff_t firstLine, ptrdiff_t height) {
  return {firstLine, linesOf(height), [&](ptrdiff_t v) { return LineRows<T>(image, v, height).top; }};
}
template <class T>
EightRows<T> bottomRows(Image<T> image, ptrdiff_t firstLine, ptrdiff_t height) {
  return {firstLine, linesOf(height), [&](ptrdiff_t v) { return LineRows<T>(image, v, height).bottom; }};
}

/// Line 0 from its transform, number(u): Z(u) = F(u, 0) + i F(u, H / 2).
template <class Number>
void packLineOfTwo(LineRows<float> rows, int elements, int channel, ptrdiff_t width, const Number& number) {
  for (ptrdiff_t u = 1; 2 * u < width; ++u) {
    const ComplexNumber z = number(u), m = number(width - u);
    const ptrdiff_t at = (2 * u - 1) * elements + channel;
    setElement(rows.top + at, (z.re + m.re) * 0.5f);
    setElement(rows.top + at + elements, (z.im - m.im) * 0.5f);
    setElement(rows.bottom + at, (z.im + m.im) * 0.5f);
    setElement(rows.bottom + at + elements, (m.re - z.re) * 0.5f);
  }
}

/// What line 0 is the transform of: set(u, F(u, 0) + i F(u, H / 2)).
template <class Set>
void lineOfTwo(LineRows<const float> rows, int elements, int channel, ptrdiff_t width, const Set& set) {
  for (ptrdiff_t u = 1; 2 * u < width; ++u) {
    const ptrdiff_t at = (2 * u - 1) * elements + channel;
    const ComplexNumber a = {elementOf(rows.top + at), elementOf(rows.top + at + elements)};
    const ComplexNumber b = {elementOf(rows.bottom + at), elementOf(rows.bottom + at + elements)};
    set(u, ComplexNumber{a.re - b.im, a.im + b.re});
    set(width - u, ComplexNumber{a.re + b.im, b.re - a.im});
  }
}

/// The rows of 2^order pixels, from 256 on, of both directions: with as much memory as a complex line has.
template <class L>
void packLongLines(Image<float> dst, const Roots& roots, int order, PackedEdges edges, float* memory);
template <class L>
void unpackLongLines(Image<const float> src, Image<float> dst, const Roots& roots, int order, PackedEdges edges,
                     float* memory);

/// An element of an image of one row or column.
template <class L, class T>
T* lineElement(Image<T> image, bool isRow, ptrdiff_t n, int channel) {
  return (isRow ? image.first + n * L::elements : image.row(n)) + channel;
}

/// Such an image by transform(line in the buffer, where the result comes too), a status, a channel at a time.
template <class L, class Transform>
VemiStatus transformLine(Image<const float> src, Image<float> dst, bool isRow, ptrdiff_t length, const Scratch& scratch,
                         const Transform& transform) {
  float* const own = scratch.as<float>();
  for (int channel = 0; channel < L::channels; ++channel) {
    for (ptrdiff_t n = 0; n < length; ++n) own[n] = elementOf(lineElement<L>(src, isRow, n, channel));
    if (const VemiStatus bad = transform(own)) return bad;
    for (ptrdiff_t n = 0; n < length; ++n) setElement(lineElement<L>(dst, isRow, n, channel), own[n]);
  }
  return vemiOk;
}

}  // namespace vemi::transform

#define VEMI_IMAGES_SPEC(S, T, Spec, ...)                                          \
  VEMI_HEAD((const S* pSrc, int srcStep, T* pDst, int dstStep, const Spec* pSpec), \
            (Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, pSpec), __VA_ARGS__)
