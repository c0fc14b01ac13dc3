#include "core/rows.h"

#include <hwy/cache_control.h>

#include <cstring>

#include "core/map_row.h"

namespace vemi {

void rowCopyBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes) {
  // In pieces: the C library leaves its fastest way of copying for lengths of about a mebibyte and more. Measured.
  constexpr ptrdiff_t piece = ptrdiff_t{64} << 10;
  const auto* src = static_cast<const char*>(pSrc);
  auto* dst = static_cast<char*>(pDst);
  for (; lenBytes > piece; lenBytes -= piece, src += piece, dst += piece) std::memcpy(dst, src, piece);
  std::memcpy(dst, src, static_cast<size_t>(lenBytes));
}

void rowStreamBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes) {
  const Lanes<Vemi8u> d;
  constexpr ptrdiff_t N = laneCount<Vemi8u>;
  const auto* src = static_cast<const Vemi8u*>(pSrc);
  auto* dst = static_cast<Vemi8u*>(pDst);
  const ptrdiff_t lead = static_cast<ptrdiff_t>((0 - reinterpret_cast<uintptr_t>(dst)) % N);
  if (lenBytes < lead + 4 * N) return rowCopyBytes(pSrc, pDst, lenBytes);
  std::memcpy(dst, src, static_cast<size_t>(lead));
  ptrdiff_t i = lead;
  for (; i + 4 * N <= lenBytes; i += 4 * N) {
    unrolled<4>([&](auto k) HWY_ATTR { hn::Stream(hn::LoadU(d, src + i + k * N), d, dst + i + k * N); });
  }
  std::memcpy(dst + i, src + i, static_cast<size_t>(lenBytes - i));
}

void finishStreaming() { hwy::FlushStream(); }

void rowSet8(Vemi8u value, Vemi8u* pDst, ptrdiff_t len) { std::memset(pDst, value, static_cast<size_t>(len)); }

void rowSet16(Vemi16u value, Vemi16u* pDst, ptrdiff_t len) { mapRow<C1>(len, constantPixel<C1>(&value), pDst); }

void rowSet32(Vemi32u value, Vemi32u* pDst, ptrdiff_t len) { mapRow<C1>(len, constantPixel<C1>(&value), pDst); }

void rowSet8x3(const Vemi8u* pValue, Vemi8u* pDst, ptrdiff_t len) {
  mapRow<C3>(len / 3, constantPixel<C3>(pValue), pDst);
}

void rowSet16x3(const Vemi16u* pValue, Vemi16u* pDst, ptrdiff_t len) {
  mapRow<C3>(len / 3, constantPixel<C3>(pValue), pDst);
}

void rowSet32x3(const Vemi32u* pValue, Vemi32u* pDst, ptrdiff_t len) {
  mapRow<C3>(len / 3, constantPixel<C3>(pValue), pDst);
}

void rowSet16x4(uint64_t pixel, Vemi16u* pDst, ptrdiff_t lenPixels) {
  Vemi16u value[4];
  for (int c = 0; c < 4; ++c) value[c] = static_cast<Vemi16u>(pixel >> 16 * c);
  mapRow<C4>(lenPixels, constantPixel<C4>(value), pDst);
}

void rowSet32x4(uint64_t lowerPixel, uint64_t upperPixel, Vemi32u* pDst, ptrdiff_t lenPixels) {
  const Vemi32u value[4] = {static_cast<Vemi32u>(lowerPixel), static_cast<Vemi32u>(lowerPixel >> 32),
                            static_cast<Vemi32u>(upperPixel), static_cast<Vemi32u>(upperPixel >> 32)};
  mapRow<C4>(lenPixels, constantPixel<C4>(value), pDst);
}

}  // namespace vemi
