// Frames of video: luma, and chroma samples that neighbouring pixels share; in planes, in a plane of pairs, or packed
// in one plane with the luma.
#pragma once

#include <algorithm>

#include "core/checks.h"
#include "core/image.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/rows.h"
#include "core/streaming.h"
#include "vemi/types.h"

namespace vemi::color {

/// Which chroma sample stands ahead of the other.
enum class Chroma { cbFirst, crFirst };

/// A plane of luma and a plane of chroma pairs.
template <class T>
struct LumaAndPairs {
  Image<T> luma, pairs;
};

template <class T>
bool isNull(LumaAndPairs<T> planes) {
  return vemi::isNull(planes.luma) || vemi::isNull(planes.pairs);
}

// A format tells how many pixels share a chroma sample, `across` columns of `down` rows, and what a call's images are
// in it: a frame, which gives its rows as core/pixels.h has them.
//
//   row(y)          luma of row y and its chroma, a sample for each `across` pixels
//   bytes(y)        the same with chroma as bytes, one for each pixel, where pairs are shared by two pixels
//   chroma(k)       row k of the chroma alone, a pixel for each sample
//   neighbours(k)   the same with a pixel for each two samples
//   twoRows(k)      rows 2 k and 2 k + 1 as one
//
// Two samples of each chroma stand as Cb, Cb, Cr, Cr in planes and as Cb, Cr, Cb, Cr in pairs.

template <int pixelsAcross, int pixelsDown, Chroma first = Chroma::cbFirst>
struct PlanarVideo {
  static constexpr int across = pixelsAcross, down = pixelsDown;
  static constexpr bool isPlanar = true, isPacked = false, crFirst = false;  // the frame tells Cb from Cr

  template <class T>
  struct Frame {
    SteppedPlanes<T, 3> planes;

    Image<T> luma() const { return planes[0]; }
    Image<T> cb() const { return planes[first == Chroma::cbFirst ? 1 : 2]; }
    Image<T> cr() const { return planes[first == Chroma::cbFirst ? 2 : 1]; }

    auto row(ptrdiff_t y) const {
      return rowsBeside(planeRow(luma().row(y)), planeRow<across>(cb().row(y / down), cr().row(y / down)));
    }
    auto chroma(ptrdiff_t k) const { return planeRow(cb().row(k), cr().row(k)); }
    auto neighbours(ptrdiff_t k) const { return rowsBeside(pixelRow<C2>(cb().row(k)), pixelRow<C2>(cr().row(k))); }
    auto twoRows(ptrdiff_t k) const {
      return planeRow(cb().row(2 * k), cb().row(2 * k + 1), cr().row(2 * k), cr().row(2 * k + 1));
    }
  };
};

template <int pixelsAcross, int pixelsDown>
struct PairVideo {
  static constexpr int across = pixelsAcross, down = pixelsDown;
  static constexpr bool isPlanar = false, isPacked = false, lumaFirst = true, crFirst = false;

  template <class T>
  struct Frame {
    LumaAndPairs<T> planes;

    Image<T> luma() const { return planes.luma; }

    auto row(ptrdiff_t y) const {
      return rowsBeside(planeRow(luma().row(y)), pairRow<across>(planes.pairs.row(y / down)));
    }
    auto bytes(ptrdiff_t y) const { return planeRow(luma().row(y), planes.pairs.row(y / down)); }
    auto chroma(ptrdiff_t k) const { return pixelRow<C2>(planes.pairs.row(k)); }
    auto neighbours(ptrdiff_t k) const { return pixelRow<C4>(planes.pairs.row(k)); }
    auto twoRows(ptrdiff_t k) const { return rowsBeside(chroma(2 * k), chroma(2 * k + 1)); }
  };
};

template <Packed422 byteOrder, Chroma first = Chroma::cbFirst>
struct PackedVideo {
  static constexpr int across = 2, down = 1;
  static constexpr bool isPlanar = false, isPacked = true;
  static constexpr bool lumaFirst = byteOrder == Packed422::lumaFirst, crFirst = first == Chroma::crFirst;
  /// Bytes of two pixels: where Y0, Cb, Y1 and Cr stand.
  static constexpr int place[4] = {lumaFirst ? 0 : 1, (lumaFirst ? 1 : 0) + (crFirst ? 2 : 0), lumaFirst ? 2 : 3,
                                   (lumaFirst ? 1 : 0) + (crFirst ? 0 : 2)};

  template <class T>
  struct Frame {
    Image<T> pixels;

    auto row(ptrdiff_t y) const { return packedRow<byteOrder>(pixels.row(y)); }
    auto bytes(ptrdiff_t y) const { return pixelRow<C2>(pixels.row(y)); }
  };
};

/// A region smaller than one sample's pixels.
inline VemiStatus checkLeast(VemiSize roiSize, VemiSize least) {
  return roiSize.width < least.width || roiSize.height < least.height ? vemiErrSize : vemiOk;
}

/// What of a region is worked on.
inline VemiSize wholeMultiples(VemiSize roiSize, VemiSize of) {
  return {roiSize.width / of.width * of.width, roiSize.height / of.height * of.height};
}

/// Bytes of all samples of a region.
template <class Format>
Vemi64s bytesOf(VemiSize size) {
  return trafficOf(extentOf(size), 1) + trafficOf(extentOf(size), 2) / (Format::across * Format::down);
}

// ---- Planes as they are -------------------------------------------------------------------------------------------

namespace detail {

/// Memory from a plane's first byte to its last.
struct Extremes {
  const Vemi8u *begin, *end;

  Extremes(Image<const Vemi8u> plane, VemiSize size)
      : begin(std::min(plane.row(0), plane.row(size.height - 1))),
        end(std::max(plane.row(0), plane.row(size.height - 1)) + size.width) {}
};

}  // namespace detail

/// Row y of a plane is row y * srcRows / dstRows of another. Where the planes overlap, one byte moves after the other.
template <int srcRows, int dstRows>
void copyPlane(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize size, Vemi64s traffic) {
  if (srcRows == dstRows && isSameImage(src, dst) && src.step == dst.step) return;
  const auto from = [&](ptrdiff_t y) { return src.row(y * srcRows / dstRows); };
  const detail::Extremes read(src, {size.width, size.height * srcRows / dstRows});
  const detail::Extremes written({dst.first, dst.step}, size);
  if (read.begin < written.end && written.begin < read.end) {
    for (ptrdiff_t y = 0; y < size.height; ++y) {
      const Vemi8u* const in = from(y);
      Vemi8u* const out = dst.row(y);
      for (ptrdiff_t x = 0; x < size.width; ++x) out[x] = in[x];
    }
    return;
  }
  const bool contiguous = isContiguous<C1>(src, size) && isContiguous<C1>(dst, size);
  const Extent extent = mergedExtent(size, srcRows == dstRows && contiguous);
  runPlainOrStreamed(
      CallerRows(), extent.height, traffic, [&](ptrdiff_t y) { rowCopyBytes(from(y), dst.row(y), extent.width); },
      [&](ptrdiff_t y) { rowStreamBytes(from(y), dst.row(y), extent.width); });
}

// ---- Rows of frames
// --------------------------------------------------------------------------------------------------

/// dst(y) = op(src(y)), both rows of `extent.width` pixels; past the caches where the call's traffic says so.
template <class Op, class DstRow, class SrcRow>
void mapFrameRows(Extent extent, Vemi64s traffic, const Op& op, const DstRow& dst, const SrcRow& src) {
  const auto row = [&](ptrdiff_t y) { mapPixels(extent.width, op, dst(y), src(y)); };
  if constexpr (canStreamPixels<Op, decltype(dst(0)), decltype(src(0))>) {
    const auto streamedRow = [&](ptrdiff_t y) { streamPixels(extent.width, op, dst(y), src(y)); };
    runPlainOrStreamed(CallerRows(), extent.height, traffic, row, streamedRow);
  } else {
    CallerRows().run(extent.height, row);
  }
}

}  // namespace vemi::color
