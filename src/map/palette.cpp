// vemiLUTPalette: the palette entry that the lower bits of a pixel name. Checks: null, step, size, bits.

#include <cstdint>
#include <cstring>

#include "core/blocks.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

/// Pixels come eight bytes at a time: their indices then wait for one load.
template <int elements, class S, class T>
void paletteRow(ptrdiff_t width, const T* table, unsigned mask, T* dst, const S* src) {
  constexpr int pixels = sizeof(uint64_t) / sizeof(S);
  const auto kernel = [=](const S* in, T* out) {
    uint64_t block;
    std::memcpy(&block, in, sizeof block);
    unrolled<pixels>([&](auto k) {
      const unsigned index = static_cast<unsigned>(block >> (8 * sizeof(S) * k)) & mask;
      std::memcpy(out + k * elements, table + index * elements, elements * sizeof(T));
    });
  };
  forBlocks<pixels>(width, kernel, Strand<const S>{src}, Strand<T, elements>{dst});
}

/// An entry has as many elements as a destination pixel.
template <class Entry, class S, class T>
VemiStatus palette(Image<const S> src, Image<T> dst, VemiSize roiSize, const T* table, int bits) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, table), checkStep(src, dst), checkSize(roiSize))) return bad;
  if (bits < 1 || bits > 8 * static_cast<int>(sizeof(S))) return vemiErrLutPaletteBits;
  const bool contiguous = isContiguous<C1>(src, roiSize) && isContiguous<Entry>(dst, roiSize);
  const Extent extent = mergedExtent(roiSize, contiguous);
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    paletteRow<Entry::elements>(extent.width, table, (1u << bits) - 1, dst.row(y), src.row(y));
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

#define PALETTE(T) ((const T* pTable, int nBitSize), (pTable, nBitSize))

VEMI_DEFINE(vemiLUTPalette_8u24u_C1R, VEMI_CONVERSION(Vemi8u, Vemi8u, PALETTE(Vemi8u)), palette<C3>)
VEMI_DEFINE(vemiLUTPalette_8u32u_C1R, VEMI_CONVERSION(Vemi8u, Vemi32u, PALETTE(Vemi32u)), palette<C1>)
VEMI_DEFINE(vemiLUTPalette_16u8u_C1R, VEMI_CONVERSION(Vemi16u, Vemi8u, PALETTE(Vemi8u)), palette<C1>)
VEMI_DEFINE(vemiLUTPalette_16u24u_C1R, VEMI_CONVERSION(Vemi16u, Vemi8u, PALETTE(Vemi8u)), palette<C3>)
VEMI_DEFINE(vemiLUTPalette_16u32u_C1R, VEMI_CONVERSION(Vemi16u, Vemi32u, PALETTE(Vemi32u)), palette<C1>)
