// Regions whose pixels go from one layout to another: the walk over the rows of a call whose checks are done.
#pragma once

#include "core/image.h"
#include "core/map_region.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/regimes.h"
#include "core/streaming.h"

namespace vemi {

// An image gives
//   row(y)                  its row, as core/pixels.h has it;
//   isContiguous(roiSize)   whether its rows follow each other without a gap;
//   begin()                 the address of its first element, by which a call in place is known;
//   pixelSize               bytes of a pixel in all its planes.
// The checks take it as the image that it is.

template <class L, class T>
struct PixelImage : Image<T> {
  static constexpr Vemi64s pixelSize = pixelBytes<T, L>;

  auto row(ptrdiff_t y) const { return pixelRow<L>(Image<T>::row(y)); }
  bool isContiguous(VemiSize roiSize) const { return vemi::isContiguous<L, T>(*this, roiSize); }
  const void* begin() const { return this->first; }
};

template <class T, int planeCount, class PlaneSet>
struct PlaneImages : PlaneSet {
  static constexpr Vemi64s pixelSize = planeCount * pixelBytes<T, C1>;

  auto row(ptrdiff_t y) const {
    PlaneRow<T, planeCount> row;
    for (int n = 0; n < planeCount; ++n) row.first[n] = (*this)[n].row(y);
    return row;
  }
  bool isContiguous(VemiSize roiSize) const { return vemi::isContiguous<C1, T, planeCount>(*this, roiSize); }
  const void* begin() const { return (*this)[0].first; }
};

template <class L, class T>
PixelImage<L, T> pixelsOf(Image<T> image) {
  return {image};
}
template <class T, int planeCount>
PlaneImages<T, planeCount, Planes<T, planeCount>> pixelsOf(Planes<T, planeCount> planes) {
  return {planes};
}
template <class T, int planeCount>
PlaneImages<T, planeCount, SteppedPlanes<T, planeCount>> pixelsOf(SteppedPlanes<T, planeCount> planes) {
  return {planes};
}

/// dst = op(channels of the sources) in rows as they are, streamed where `how` says so and the call moves more than the
/// caches hold. A source may be the destination.
template <Stores how = Stores::streamed, class Rows, class Op, class Dst, class... Src>
void mapPixelRows(const Rows& rows, Extent extent, const Op& op, Dst dst, Src... src) {
  const auto row = [&](ptrdiff_t y) { mapPixels(extent.width, op, dst.row(y), src.row(y)...); };
  if constexpr (how == Stores::streamed && canStreamPixels<Op, decltype(dst.row(0)), decltype(src.row(0))...>) {
    const auto streamedRow = [&](ptrdiff_t y) { streamPixels(extent.width, op, dst.row(y), src.row(y)...); };
    const bool inPlace = ((src.begin() == dst.begin()) || ...);
    const Vemi64s traffic = inPlace ? 0 : trafficOf(extent, (Dst::pixelSize + ... + Src::pixelSize));
    runPlainOrStreamed(rows, extent.height, traffic, row, streamedRow);
  } else {
    rows.run(extent.height, row);
  }
}

/// The same, where contiguous rows that stay in one thread are one long row, if the operation's columns allow it.
template <Stores how = Stores::streamed, class Rows, class Op, class Dst, class... Src>
void mapPixelRegion(const Rows& rows, VemiSize roiSize, const Op& op, Dst dst, Src... src) {
  const bool contiguous = dst.isContiguous(roiSize) && (src.isContiguous(roiSize) && ...);
  const bool merged = canJoinRows(op, roiSize.width) && rows.inOneThread() && contiguous;
  mapPixelRows<how>(rows, mergedExtent(roiSize, merged), op, dst, src...);
}

/// dst = op.of[channel](src), in the calling thread, of operations that take longer than memory: tables, searches.
template <class L, class T, class Op>
void mapChannels(VemiSize roiSize, const PerChannel<Op, L::channels>& op, Image<T> dst, Image<const T> src) {
  if constexpr (L::elements == 1) {
    mapRegion<L, Stores::cached>(CallerRows(), roiSize, eachVector(op.of[0]), dst, src);
  } else {
    mapPixelRegion<Stores::cached>(CallerRows(), roiSize, op, pixelsOf<L>(dst), pixelsOf<L>(src));
  }
}

}  // namespace vemi
