// vemiCopy: regions copied whole, under a mask, channel by channel, and between pixels and planes.
// Checks: null, size, step. Where the rows of all images are contiguous, the region is one long row.

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/masked_row.h"
#include "core/pixel_region.h"
#include "core/pixels.h"
#include "core/rows.h"
#include "core/streaming.h"
#include "vemi/core.h"

namespace vemi {
namespace {

template <class T, class L>
VemiStatus copy(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const Extent extent = mergedExtent(roiSize, isContiguous<L>(src, roiSize) && isContiguous<L>(dst, roiSize));
  const ptrdiff_t rowBytes = extent.width * pixelBytes<T, L>;
  runPlainOrStreamed(
      CallerRows(), extent.height, trafficOf(extent, 2 * pixelBytes<T, L>),
      [&](ptrdiff_t y) { rowCopyBytes(src.row(y), dst.row(y), rowBytes); },
      [&](ptrdiff_t y) { rowStreamBytes(src.row(y), dst.row(y), rowBytes); });
  return vemiOk;
}

template <class T>
VemiStatus copyKeepingAlpha(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const Extent extent = mergedExtent(roiSize, isContiguous<AC4>(src, roiSize) && isContiguous<AC4>(dst, roiSize));
  for (ptrdiff_t y = 0; y < extent.height; ++y)
    mapRow<AC4>(extent.width, eachVector(Identity()), dst.row(y), src.row(y));
  return vemiOk;
}

template <class T, class L>
VemiStatus copyMasked(Image<const T> src, Image<T> dst, VemiSize roiSize, Image<const Vemi8u> mask) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, mask), checkSize(roiSize), checkStep(src, dst, mask))) {
    return bad;
  }
  const bool contiguous =
      isContiguous<L>(src, roiSize) && isContiguous<L>(dst, roiSize) && isContiguous<C1>(mask, roiSize);
  const Extent extent = mergedExtent(roiSize, contiguous);
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    mapRowMasked<L>(extent.width, mask.row(y), eachVector(Identity()), dst.row(y), src.row(y));
  }
  return vemiOk;
}

/// Moves one element of each pixel of a row.
template <class T>
using ChannelMove = void (*)(ptrdiff_t width, const T* src, T* dst);

/// The forms that pick a channel. Where contiguous rows are one long row, that ends with the last pixel's element too.
template <class T, class SL, class DL, ChannelMove<T> moveRow>
VemiStatus copyOneChannel(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const Extent extent = mergedExtent(roiSize, isContiguous<SL>(src, roiSize) && isContiguous<DL>(dst, roiSize));
  for (ptrdiff_t y = 0; y < extent.height; ++y) moveRow(extent.width, src.row(y), dst.row(y));
  return vemiOk;
}

template <class T, class L>
VemiStatus copyChannel(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  return copyOneChannel<T, L, L, copyChannelRow<L::elements, L::elements, T>>(src, dst, roiSize);
}

template <class T, class L>
VemiStatus extractChannel(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  return copyOneChannel<T, L, C1, extractChannelRow<L::elements, T>>(src, dst, roiSize);
}

template <class T, class L>
VemiStatus insertChannel(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  return copyOneChannel<T, C1, L, copyChannelRow<1, L::elements, T>>(src, dst, roiSize);
}

/// The forms that change the layout.
template <class Src, class Dst>
VemiStatus relay(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapPixelRegion(CallerRows(), roiSize, IdenticalChannels(), dst, src);
  return vemiOk;
}

template <class T, class SL, class DL>
VemiStatus copyChannels(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  return relay(pixelsOf<SL>(src), pixelsOf<DL>(dst), roiSize);
}

template <class T, int channels>
VemiStatus split(Image<const T> src, Planes<T, channels> dst, VemiSize roiSize) {
  return relay(pixelsOf<Interleaved<channels>>(src), pixelsOf(dst), roiSize);
}

template <class T, int channels>
VemiStatus interleave(Planes<const T, channels> src, Image<T> dst, VemiSize roiSize) {
  return relay(pixelsOf(src), pixelsOf<Interleaved<channels>>(dst), roiSize);
}

}  // namespace
}  // namespace vemi

using namespace vemi;

VEMI_DEFINE(vemiCopy_8u_C1R, VEMI_SRC_DST(Vemi8u), copy<Vemi8u, C1>)
VEMI_DEFINE(vemiCopy_16s_C1R, VEMI_SRC_DST(Vemi16s), copy<Vemi16s, C1>)
VEMI_DEFINE(vemiCopy_32f_C1R, VEMI_SRC_DST(Vemi32f), copy<Vemi32f, C1>)
VEMI_DEFINE(vemiCopy_8u_C3R, VEMI_SRC_DST(Vemi8u), copy<Vemi8u, C3>)
VEMI_DEFINE(vemiCopy_16s_C3R, VEMI_SRC_DST(Vemi16s), copy<Vemi16s, C3>)
VEMI_DEFINE(vemiCopy_32f_C3R, VEMI_SRC_DST(Vemi32f), copy<Vemi32f, C3>)
VEMI_DEFINE(vemiCopy_8u_C4R, VEMI_SRC_DST(Vemi8u), copy<Vemi8u, C4>)
VEMI_DEFINE(vemiCopy_16s_C4R, VEMI_SRC_DST(Vemi16s), copy<Vemi16s, C4>)
VEMI_DEFINE(vemiCopy_32f_C4R, VEMI_SRC_DST(Vemi32f), copy<Vemi32f, C4>)
VEMI_DEFINE(vemiCopy_8u_AC4R, VEMI_SRC_DST(Vemi8u), copyKeepingAlpha<Vemi8u>)
VEMI_DEFINE(vemiCopy_16s_AC4R, VEMI_SRC_DST(Vemi16s), copyKeepingAlpha<Vemi16s>)
VEMI_DEFINE(vemiCopy_32f_AC4R, VEMI_SRC_DST(Vemi32f), copyKeepingAlpha<Vemi32f>)

VEMI_DEFINE(vemiCopy_8u_C1MR, VEMI_SRC_DST(Vemi8u, VEMI_MASK), copyMasked<Vemi8u, C1>)
VEMI_DEFINE(vemiCopy_16s_C1MR, VEMI_SRC_DST(Vemi16s, VEMI_MASK), copyMasked<Vemi16s, C1>)
VEMI_DEFINE(vemiCopy_32f_C1MR, VEMI_SRC_DST(Vemi32f, VEMI_MASK), copyMasked<Vemi32f, C1>)
VEMI_DEFINE(vemiCopy_8u_C3MR, VEMI_SRC_DST(Vemi8u, VEMI_MASK), copyMasked<Vemi8u, C3>)
VEMI_DEFINE(vemiCopy_16s_C3MR, VEMI_SRC_DST(Vemi16s, VEMI_MASK), copyMasked<Vemi16s, C3>)
VEMI_DEFINE(vemiCopy_32f_C3MR, VEMI_SRC_DST(Vemi32f, VEMI_MASK), copyMasked<Vemi32f, C3>)
VEMI_DEFINE(vemiCopy_8u_C4MR, VEMI_SRC_DST(Vemi8u, VEMI_MASK), copyMasked<Vemi8u, C4>)
VEMI_DEFINE(vemiCopy_16s_C4MR, VEMI_SRC_DST(Vemi16s, VEMI_MASK), copyMasked<Vemi16s, C4>)
VEMI_DEFINE(vemiCopy_32f_C4MR, VEMI_SRC_DST(Vemi32f, VEMI_MASK), copyMasked<Vemi32f, C4>)
VEMI_DEFINE(vemiCopy_8u_AC4MR, VEMI_SRC_DST(Vemi8u, VEMI_MASK), copyMasked<Vemi8u, AC4>)
VEMI_DEFINE(vemiCopy_16s_AC4MR, VEMI_SRC_DST(Vemi16s, VEMI_MASK), copyMasked<Vemi16s, AC4>)
VEMI_DEFINE(vemiCopy_32f_AC4MR, VEMI_SRC_DST(Vemi32f, VEMI_MASK), copyMasked<Vemi32f, AC4>)

VEMI_DEFINE(vemiCopy_8u_C3CR, VEMI_SRC_DST(Vemi8u), copyChannel<Vemi8u, C3>)
VEMI_DEFINE(vemiCopy_16s_C3CR, VEMI_SRC_DST(Vemi16s), copyChannel<Vemi16s, C3>)
VEMI_DEFINE(vemiCopy_32f_C3CR, VEMI_SRC_DST(Vemi32f), copyChannel<Vemi32f, C3>)
VEMI_DEFINE(vemiCopy_8u_C4CR, VEMI_SRC_DST(Vemi8u), copyChannel<Vemi8u, C4>)
VEMI_DEFINE(vemiCopy_16s_C4CR, VEMI_SRC_DST(Vemi16s), copyChannel<Vemi16s, C4>)
VEMI_DEFINE(vemiCopy_32f_C4CR, VEMI_SRC_DST(Vemi32f), copyChannel<Vemi32f, C4>)
VEMI_DEFINE(vemiCopy_8u_C3C1R, VEMI_SRC_DST(Vemi8u), extractChannel<Vemi8u, C3>)
VEMI_DEFINE(vemiCopy_16s_C3C1R, VEMI_SRC_DST(Vemi16s), extractChannel<Vemi16s, C3>)
VEMI_DEFINE(vemiCopy_32f_C3C1R, VEMI_SRC_DST(Vemi32f), extractChannel<Vemi32f, C3>)
VEMI_DEFINE(vemiCopy_8u_C4C1R, VEMI_SRC_DST(Vemi8u), extractChannel<Vemi8u, C4>)
VEMI_DEFINE(vemiCopy_16s_C4C1R, VEMI_SRC_DST(Vemi16s), extractChannel<Vemi16s, C4>)
VEMI_DEFINE(vemiCopy_32f_C4C1R, VEMI_SRC_DST(Vemi32f), extractChannel<Vemi32f, C4>)
VEMI_DEFINE(vemiCopy_8u_C1C3R, VEMI_SRC_DST(Vemi8u), insertChannel<Vemi8u, C3>)
VEMI_DEFINE(vemiCopy_16s_C1C3R, VEMI_SRC_DST(Vemi16s), insertChannel<Vemi16s, C3>)
VEMI_DEFINE(vemiCopy_32f_C1C3R, VEMI_SRC_DST(Vemi32f), insertChannel<Vemi32f, C3>)
VEMI_DEFINE(vemiCopy_8u_C1C4R, VEMI_SRC_DST(Vemi8u), insertChannel<Vemi8u, C4>)
VEMI_DEFINE(vemiCopy_16s_C1C4R, VEMI_SRC_DST(Vemi16s), insertChannel<Vemi16s, C4>)
VEMI_DEFINE(vemiCopy_32f_C1C4R, VEMI_SRC_DST(Vemi32f), insertChannel<Vemi32f, C4>)

VEMI_DEFINE(vemiCopy_8u_AC4C3R, VEMI_SRC_DST(Vemi8u), copyChannels<Vemi8u, AC4, C3>)
VEMI_DEFINE(vemiCopy_16s_AC4C3R, VEMI_SRC_DST(Vemi16s), copyChannels<Vemi16s, AC4, C3>)
VEMI_DEFINE(vemiCopy_32f_AC4C3R, VEMI_SRC_DST(Vemi32f), copyChannels<Vemi32f, AC4, C3>)
VEMI_DEFINE(vemiCopy_8u_C3AC4R, VEMI_SRC_DST(Vemi8u), copyChannels<Vemi8u, C3, AC4>)
VEMI_DEFINE(vemiCopy_16s_C3AC4R, VEMI_SRC_DST(Vemi16s), copyChannels<Vemi16s, C3, AC4>)
VEMI_DEFINE(vemiCopy_32f_C3AC4R, VEMI_SRC_DST(Vemi32f), copyChannels<Vemi32f, C3, AC4>)

VEMI_DEFINE(vemiCopy_8u_C3P3R, VEMI_SRC_PLANES(Vemi8u, 3), split<Vemi8u, 3>)
VEMI_DEFINE(vemiCopy_16s_C3P3R, VEMI_SRC_PLANES(Vemi16s, 3), split<Vemi16s, 3>)
VEMI_DEFINE(vemiCopy_32f_C3P3R, VEMI_SRC_PLANES(Vemi32f, 3), split<Vemi32f, 3>)
VEMI_DEFINE(vemiCopy_8u_C4P4R, VEMI_SRC_PLANES(Vemi8u, 4), split<Vemi8u, 4>)
VEMI_DEFINE(vemiCopy_16s_C4P4R, VEMI_SRC_PLANES(Vemi16s, 4), split<Vemi16s, 4>)
VEMI_DEFINE(vemiCopy_32f_C4P4R, VEMI_SRC_PLANES(Vemi32f, 4), split<Vemi32f, 4>)
VEMI_DEFINE(vemiCopy_8u_P3C3R, VEMI_PLANES_DST(Vemi8u, 3), interleave<Vemi8u, 3>)
VEMI_DEFINE(vemiCopy_16s_P3C3R, VEMI_PLANES_DST(Vemi16s, 3), interleave<Vemi16s, 3>)
VEMI_DEFINE(vemiCopy_32f_P3C3R, VEMI_PLANES_DST(Vemi32f, 3), interleave<Vemi32f, 3>)
VEMI_DEFINE(vemiCopy_8u_P4C4R, VEMI_PLANES_DST(Vemi8u, 4), interleave<Vemi8u, 4>)
VEMI_DEFINE(vemiCopy_16s_P4C4R, VEMI_PLANES_DST(Vemi16s, 4), interleave<Vemi16s, 4>)
VEMI_DEFINE(vemiCopy_32f_P4C4R, VEMI_PLANES_DST(Vemi32f, 4), interleave<Vemi32f, 4>)
