// Border-extending copies: a source that lands inside a larger destination, whose surroundings are a constant, the
// nearest edge pixel, or the source repeated periodically.
// Checks: null, step, size; a destination that is too small for the source and its borders is a size error.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/rows.h"
#include "vemi/core.h"

namespace vemi {
namespace {

/// Where the source lies in the destination: border widths in pixels around it.
struct Placement {
  ptrdiff_t left, width, right;
  ptrdiff_t top, height, bottom;
};

Placement placementOf(VemiSize srcRoiSize, VemiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  return {leftBorderWidth, srcRoiSize.width,  ptrdiff_t{dstRoiSize.width} - leftBorderWidth - srcRoiSize.width,
          topBorderHeight, srcRoiSize.height, ptrdiff_t{dstRoiSize.height} - topBorderHeight - srcRoiSize.height};
}

/// Both sizes, and that the source fits into the destination behind its borders. The sums are exact: they may exceed 32
/// bits.
VemiStatus checkPlacement(VemiSize srcRoiSize, VemiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (const VemiStatus bad = checkSize(srcRoiSize, dstRoiSize)) return bad;
  const bool fits = topBorderHeight >= 0 && leftBorderWidth >= 0 &&
                    dstRoiSize.width >= Vemi64s{leftBorderWidth} + srcRoiSize.width &&
                    dstRoiSize.height >= Vemi64s{topBorderHeight} + srcRoiSize.height;
  return fits ? vemiOk : vemiErrSize;
}

template <class T, class L>
void copyPixels(ptrdiff_t width, const T* src, T* dst) {
  if constexpr (L::keepsAlpha) {
    mapRow<L>(width, eachVector(Identity()), dst, src);
  } else {
    rowCopyBytes(src, dst, width * pixelBytes<T, L>);
  }
}

/// A stretch of one pixel. Borders are often shorter than a block of lanes, and there are two to a row.
template <class T, class L>
void repeatPixel(ptrdiff_t width, const T* pixel, T* dst) {
  const auto constant = constantPixel<L>(pixel);
  if (L::keepsAlpha || width * L::elements > constant.vectors * laneCount<T>) return mapRow<L>(width, constant, dst);
  alignas(laneAlignment) T block[constant.vectors * laneCount<T>];
  unrolled<constant.vectors>(
      [&](auto k) HWY_ATTR { hn::Store(constant(Lanes<T>(), k), Lanes<T>(), block + k * laneCount<T>); });
  rowCopyBytes(block, dst, width * pixelBytes<T, L>);
}

/// Rows above and below the finished ones are copies of the row that lies `period` rows towards these.
template <class T, class L>
void copyFinishedRows(Image<T> dst, Placement p, ptrdiff_t period) {
  const ptrdiff_t width = p.left + p.width + p.right;
  const ptrdiff_t end = p.top + p.height + p.bottom;
  for (ptrdiff_t y = p.top - 1; y >= 0; --y) copyPixels<T, L>(width, dst.row(y + period), dst.row(y));
  for (ptrdiff_t y = p.top + p.height; y < end; ++y) copyPixels<T, L>(width, dst.row(y - period), dst.row(y));
}

template <class T, class L>
VemiStatus copyConstBorder(Image<const T> src, VemiSize srcRoiSize, Image<T> dst, VemiSize dstRoiSize,
                           int topBorderHeight, int leftBorderWidth, const T* value) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, value), checkStep(src, dst),
                                     checkPlacement(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth))) {
    return bad;
  }
  const Placement p = placementOf(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
  const auto pixel = constantPixel<L>(value);
  for (ptrdiff_t y = 0; y < p.top; ++y) mapRow<L>(dstRoiSize.width, pixel, dst.row(y));
  const ptrdiff_t right = (p.left + p.width) * L::elements;
  T* const first = dst.row(p.top);
  mapRow<L>(p.left, pixel, first);
  mapRow<L>(p.right, pixel, first + right);
  for (ptrdiff_t y = 0; y < p.height; ++y) {
    T* const row = dst.row(p.top + y);
    if (y > 0) copyPixels<T, L>(p.left, first, row);
    copyPixels<T, L>(p.width, src.row(y), row + p.left * L::elements);
    if (y > 0) copyPixels<T, L>(p.right, first + right, row + right);
  }
  for (ptrdiff_t y = p.top + p.height; y < dstRoiSize.height; ++y) mapRow<L>(dstRoiSize.width, pixel, dst.row(y));
  return vemiOk;
}

template <class T, class L>
VemiStatus copyReplicateBorder(Image<const T> src, VemiSize srcRoiSize, Image<T> dst, VemiSize dstRoiSize,
                               int topBorderHeight, int leftBorderWidth) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src, dst),
                                     checkPlacement(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth))) {
    return bad;
  }
  const Placement p = placementOf(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
  for (ptrdiff_t y = 0; y < p.height; ++y) {
    const T* const from = src.row(y);
    T* const row = dst.row(p.top + y);
    copyPixels<T, L>(p.width, from, row + p.left * L::elements);
    repeatPixel<T, L>(p.left, from, row);
    repeatPixel<T, L>(p.right, from + (p.width - 1) * L::elements, row + (p.left + p.width) * L::elements);
  }
  copyFinishedRows<T, L>(dst, p, 1);
  return vemiOk;
}

/// Extends a row whose middle stands. What is finished already is the source of the next stretch.
template <class T>
void wrapRow(T* row, Placement p) {
  for (ptrdiff_t done = p.left; done > 0;) {
    const ptrdiff_t n = std::min(done, p.width);
    done -= n;
    rowCopyBytes(row + done + p.width, row + done, n * ptrdiff_t{sizeof(T)});
  }
  const ptrdiff_t end = p.left + p.width + p.right;
  for (ptrdiff_t done = p.left + p.width; done < end;) {
    const ptrdiff_t n = std::min(end - done, p.width);
    rowCopyBytes(row + done - p.width, row + done, n * ptrdiff_t{sizeof(T)});
    done += n;
  }
}

template <class T>
VemiStatus copyWrapBorder(Image<const T> src, VemiSize srcRoiSize, Image<T> dst, VemiSize dstRoiSize,
                          int topBorderHeight, int leftBorderWidth) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src, dst),
                                     checkPlacement(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth))) {
    return bad;
  }
  const Placement p = placementOf(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
  for (ptrdiff_t y = 0; y < p.height; ++y) {
    T* const row = dst.row(p.top + y);
    copyPixels<T, C1>(p.width, src.row(y), row + p.left);
    wrapRow(row, p);
  }
  copyFinishedRows<T, C1>(dst, p, p.height);
  return vemiOk;
}

/// The source is in its place already; the destination begins `topBorderHeight` rows and `leftBorderWidth` elements in
/// front of it.
template <class T>
VemiStatus wrapBorderInPlace(Image<T> srcDst, VemiSize srcRoiSize, VemiSize dstRoiSize, int topBorderHeight,
                             int leftBorderWidth) {
  if (const VemiStatus bad = firstOf(checkNull(srcDst), checkStep(srcDst),
                                     checkPlacement(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth))) {
    return bad;
  }
  const Placement p = placementOf(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
  const Image<T> dst = {srcDst.row(-p.top) - p.left, srcDst.step};
  for (ptrdiff_t y = 0; y < p.height; ++y) wrapRow(dst.row(p.top + y), p);
  copyFinishedRows<T, C1>(dst, p, p.height);
  return vemiOk;
}

}  // namespace
}  // namespace vemi

using namespace vemi;

// A source that lands inside a larger destination.
#define BORDER(T, ...)                                                                                        \
  VEMI_HEAD((const T* pSrc, int srcStep, VemiSize srcRoiSize, T* pDst, int dstStep, VemiSize dstRoiSize,      \
             int topBorderHeight, int leftBorderWidth),                                                       \
            (Image<const T>{pSrc, srcStep}, srcRoiSize, Image<T>{pDst, dstStep}, dstRoiSize, topBorderHeight, \
             leftBorderWidth),                                                                                \
            __VA_ARGS__)
#define BORDER_IN_PLACE(T)                                                                                         \
  ((T * pSrc, int srcDstStep, VemiSize srcRoiSize, VemiSize dstRoiSize, int topBorderHeight, int leftBorderWidth), \
   (Image<T>{pSrc, srcDstStep}, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth))
#define VALUE(C) ((C value), (addressOf(value)))

VEMI_DEFINE(vemiCopyConstBorder_8u_C1R, BORDER(Vemi8u, VALUE(Vemi8u)), copyConstBorder<Vemi8u, C1>)
VEMI_DEFINE(vemiCopyConstBorder_16s_C1R, BORDER(Vemi16s, VALUE(Vemi16s)), copyConstBorder<Vemi16s, C1>)
VEMI_DEFINE(vemiCopyConstBorder_32s_C1R, BORDER(Vemi32s, VALUE(Vemi32s)), copyConstBorder<Vemi32s, C1>)
VEMI_DEFINE(vemiCopyConstBorder_8u_C3R, BORDER(Vemi8u, VALUE(const Vemi8u*)), copyConstBorder<Vemi8u, C3>)
VEMI_DEFINE(vemiCopyConstBorder_16s_C3R, BORDER(Vemi16s, VALUE(const Vemi16s*)), copyConstBorder<Vemi16s, C3>)
VEMI_DEFINE(vemiCopyConstBorder_32s_C3R, BORDER(Vemi32s, VALUE(const Vemi32s*)), copyConstBorder<Vemi32s, C3>)
VEMI_DEFINE(vemiCopyConstBorder_8u_C4R, BORDER(Vemi8u, VALUE(const Vemi8u*)), copyConstBorder<Vemi8u, C4>)
VEMI_DEFINE(vemiCopyConstBorder_16s_C4R, BORDER(Vemi16s, VALUE(const Vemi16s*)), copyConstBorder<Vemi16s, C4>)
VEMI_DEFINE(vemiCopyConstBorder_32s_C4R, BORDER(Vemi32s, VALUE(const Vemi32s*)), copyConstBorder<Vemi32s, C4>)
VEMI_DEFINE(vemiCopyConstBorder_8u_AC4R, BORDER(Vemi8u, VALUE(const Vemi8u*)), copyConstBorder<Vemi8u, AC4>)
VEMI_DEFINE(vemiCopyConstBorder_16s_AC4R, BORDER(Vemi16s, VALUE(const Vemi16s*)), copyConstBorder<Vemi16s, AC4>)
VEMI_DEFINE(vemiCopyConstBorder_32s_AC4R, BORDER(Vemi32s, VALUE(const Vemi32s*)), copyConstBorder<Vemi32s, AC4>)

VEMI_DEFINE(vemiCopyReplicateBorder_8u_C1R, BORDER(Vemi8u), copyReplicateBorder<Vemi8u, C1>)
VEMI_DEFINE(vemiCopyReplicateBorder_16s_C1R, BORDER(Vemi16s), copyReplicateBorder<Vemi16s, C1>)
VEMI_DEFINE(vemiCopyReplicateBorder_32s_C1R, BORDER(Vemi32s), copyReplicateBorder<Vemi32s, C1>)
VEMI_DEFINE(vemiCopyReplicateBorder_8u_C3R, BORDER(Vemi8u), copyReplicateBorder<Vemi8u, C3>)
VEMI_DEFINE(vemiCopyReplicateBorder_16s_C3R, BORDER(Vemi16s), copyReplicateBorder<Vemi16s, C3>)
VEMI_DEFINE(vemiCopyReplicateBorder_32s_C3R, BORDER(Vemi32s), copyReplicateBorder<Vemi32s, C3>)
VEMI_DEFINE(vemiCopyReplicateBorder_8u_C4R, BORDER(Vemi8u), copyReplicateBorder<Vemi8u, C4>)
VEMI_DEFINE(vemiCopyReplicateBorder_16s_C4R, BORDER(Vemi16s), copyReplicateBorder<Vemi16s, C4>)
VEMI_DEFINE(vemiCopyReplicateBorder_32s_C4R, BORDER(Vemi32s), copyReplicateBorder<Vemi32s, C4>)
VEMI_DEFINE(vemiCopyReplicateBorder_8u_AC4R, BORDER(Vemi8u), copyReplicateBorder<Vemi8u, AC4>)
VEMI_DEFINE(vemiCopyReplicateBorder_16s_AC4R, BORDER(Vemi16s), copyReplicateBorder<Vemi16s, AC4>)
VEMI_DEFINE(vemiCopyReplicateBorder_32s_AC4R, BORDER(Vemi32s), copyReplicateBorder<Vemi32s, AC4>)

VEMI_DEFINE(vemiCopyWrapBorder_32s_C1R, BORDER(Vemi32s), copyWrapBorder<Vemi32s>)
VEMI_DEFINE(vemiCopyWrapBorder_32s_C1IR, BORDER_IN_PLACE(Vemi32s), wrapBorderInPlace<Vemi32s>)
