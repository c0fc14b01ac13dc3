// vemiSet: regions filled with a constant, whole, under a mask, or in one channel.
// Checks: null, size, step. Contiguous rows are one long row.

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/masked_row.h"
#include "core/rows.h"
#include "core/streaming.h"
#include "core/thresholds.h"
#include "vemi/core.h"

namespace vemi {
namespace {

VemiStatus setBytes(const Vemi8u* value, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(dst), checkSize(roiSize), checkStep(dst))) return bad;
  const Extent extent = mergedExtent(roiSize, isContiguous<C1>(dst, roiSize));
  for (ptrdiff_t y = 0; y < extent.height; ++y) rowSet8(*value, dst.row(y), extent.width);
  return vemiOk;
}

/// A large region is filled by copies of its beginning.
template <class T, class L>
VemiStatus set(const T* value, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(value, dst), checkSize(roiSize), checkStep(dst))) return bad;
  const auto pixel = constantPixel<L>(value);
  const Extent extent = mergedExtent(roiSize, isContiguous<L>(dst, roiSize));
  const ptrdiff_t rowBytes = extent.width * pixelBytes<T, L>;
  const bool copied = !L::keepsAlpha && rowBytes >= copiedFillRow && trafficOf(extent, pixelBytes<T, L>) >= copiedFill;
  if (!copied) {
    for (ptrdiff_t y = 0; y < extent.height; ++y) mapRow<L>(extent.width, pixel, dst.row(y));
    return vemiOk;
  }
  const ptrdiff_t pieceBytes = std::min(rowBytes, fillPiece);
  T* const piece = dst.row(0);
  mapRow<L>(pieceBytes / pixelBytes<T, L>, pixel, piece);
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    auto* const row = reinterpret_cast<char*>(dst.row(y));
    for (ptrdiff_t i = y == 0 ? pieceBytes : 0; i < rowBytes; i += pieceBytes) {
      rowCopyBytes(piece, row + i, std::min(pieceBytes, rowBytes - i));
    }
  }
  return vemiOk;
}

template <class T, class L>
VemiStatus setMasked(const T* value, Image<T> dst, VemiSize roiSize, Image<const Vemi8u> mask) {
  if (const VemiStatus bad = firstOf(checkNull(value, dst, mask), checkSize(roiSize), checkStep(dst, mask))) return bad;
  const auto pixel = constantPixel<L>(value);
  const bool contiguous = isContiguous<L>(dst, roiSize) && isContiguous<C1>(mask, roiSize);
  const Extent extent = mergedExtent(roiSize, contiguous);
  for (ptrdiff_t y = 0; y < extent.height; ++y) mapRowMasked<L>(extent.width, mask.row(y), pixel, dst.row(y));
  return vemiOk;
}

/// One element of each pixel; the others may be in use by other threads.
template <class T, class L>
VemiStatus setChannel(const T* value, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(dst), checkSize(roiSize), checkStep(dst))) return bad;
  for (int y = 0; y < roiSize.height; ++y) {
    T* const row = dst.row(y);
    for (ptrdiff_t x = 0; x < roiSize.width; ++x) std::memcpy(row + x * L::elements, value, sizeof(T));
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi

using namespace vemi;

VEMI_DEFINE(vemiSet_8u_C1R, VEMI_C_DST(Vemi8u, Vemi8u), setBytes)
VEMI_DEFINE(vemiSet_16s_C1R, VEMI_C_DST(Vemi16s, Vemi16s), set<Vemi16s, C1>)
VEMI_DEFINE(vemiSet_32f_C1R, VEMI_C_DST(Vemi32f, Vemi32f), set<Vemi32f, C1>)
VEMI_DEFINE(vemiSet_8u_C3R, VEMI_C_DST(Vemi8u, const Vemi8u*), set<Vemi8u, C3>)
VEMI_DEFINE(vemiSet_16s_C3R, VEMI_C_DST(Vemi16s, const Vemi16s*), set<Vemi16s, C3>)
VEMI_DEFINE(vemiSet_32f_C3R, VEMI_C_DST(Vemi32f, const Vemi32f*), set<Vemi32f, C3>)
VEMI_DEFINE(vemiSet_8u_C4R, VEMI_C_DST(Vemi8u, const Vemi8u*), set<Vemi8u, C4>)
VEMI_DEFINE(vemiSet_16s_C4R, VEMI_C_DST(Vemi16s, const Vemi16s*), set<Vemi16s, C4>)
VEMI_DEFINE(vemiSet_32f_C4R, VEMI_C_DST(Vemi32f, const Vemi32f*), set<Vemi32f, C4>)
VEMI_DEFINE(vemiSet_8u_AC4R, VEMI_C_DST(Vemi8u, const Vemi8u*), set<Vemi8u, AC4>)
VEMI_DEFINE(vemiSet_16s_AC4R, VEMI_C_DST(Vemi16s, const Vemi16s*), set<Vemi16s, AC4>)
VEMI_DEFINE(vemiSet_32f_AC4R, VEMI_C_DST(Vemi32f, const Vemi32f*), set<Vemi32f, AC4>)

VEMI_DEFINE(vemiSet_8u_C1MR, VEMI_C_DST(Vemi8u, Vemi8u, VEMI_MASK), setMasked<Vemi8u, C1>)
VEMI_DEFINE(vemiSet_16s_C1MR, VEMI_C_DST(Vemi16s, Vemi16s, VEMI_MASK), setMasked<Vemi16s, C1>)
VEMI_DEFINE(vemiSet_32f_C1MR, VEMI_C_DST(Vemi32f, Vemi32f, VEMI_MASK), setMasked<Vemi32f, C1>)
VEMI_DEFINE(vemiSet_8u_C3MR, VEMI_C_DST(Vemi8u, const Vemi8u*, VEMI_MASK), setMasked<Vemi8u, C3>)
VEMI_DEFINE(vemiSet_16s_C3MR, VEMI_C_DST(Vemi16s, const Vemi16s*, VEMI_MASK), setMasked<Vemi16s, C3>)
VEMI_DEFINE(vemiSet_32f_C3MR, VEMI_C_DST(Vemi32f, const Vemi32f*, VEMI_MASK), setMasked<Vemi32f, C3>)
VEMI_DEFINE(vemiSet_8u_C4MR, VEMI_C_DST(Vemi8u, const Vemi8u*, VEMI_MASK), setMasked<Vemi8u, C4>)
VEMI_DEFINE(vemiSet_16s_C4MR, VEMI_C_DST(Vemi16s, const Vemi16s*, VEMI_MASK), setMasked<Vemi16s, C4>)
VEMI_DEFINE(vemiSet_32f_C4MR, VEMI_C_DST(Vemi32f, const Vemi32f*, VEMI_MASK), setMasked<Vemi32f, C4>)
VEMI_DEFINE(vemiSet_8u_AC4MR, VEMI_C_DST(Vemi8u, const Vemi8u*, VEMI_MASK), setMasked<Vemi8u, AC4>)
VEMI_DEFINE(vemiSet_16s_AC4MR, VEMI_C_DST(Vemi16s, const Vemi16s*, VEMI_MASK), setMasked<Vemi16s, AC4>)
VEMI_DEFINE(vemiSet_32f_AC4MR, VEMI_C_DST(Vemi32f, const Vemi32f*, VEMI_MASK), setMasked<Vemi32f, AC4>)

VEMI_DEFINE(vemiSet_8u_C3CR, VEMI_C_DST(Vemi8u, Vemi8u), setChannel<Vemi8u, C3>)
VEMI_DEFINE(vemiSet_16s_C3CR, VEMI_C_DST(Vemi16s, Vemi16s), setChannel<Vemi16s, C3>)
VEMI_DEFINE(vemiSet_32f_C3CR, VEMI_C_DST(Vemi32f, Vemi32f), setChannel<Vemi32f, C3>)
VEMI_DEFINE(vemiSet_8u_C4CR, VEMI_C_DST(Vemi8u, Vemi8u), setChannel<Vemi8u, C4>)
VEMI_DEFINE(vemiSet_16s_C4CR, VEMI_C_DST(Vemi16s, Vemi16s), setChannel<Vemi16s, C4>)
VEMI_DEFINE(vemiSet_32f_C4CR, VEMI_C_DST(Vemi32f, Vemi32f), setChannel<Vemi32f, C4>)
