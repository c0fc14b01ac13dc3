#include "core/rows.h"

#include <cstdint>
#include <cstring>

#include "core/lanes.h"
#include "core/thresholds.h"

namespace vemi {
namespace {

/// From `piece` bytes to twice as many, as two pieces that may overlap.
template <size_t piece>
void copyEnds(const char* src, char* dst, ptrdiff_t lenBytes) {
  char front[piece];
  char back[piece];
  const ptrdiff_t last = lenBytes - static_cast<ptrdiff_t>(piece);
  std::memcpy(front, src, piece);
  std::memcpy(back, src + last, piece);
  std::memcpy(dst, front, piece);
  std::memcpy(dst + last, back, piece);
}

/// A call of the C library costs more than so few bytes.
void copyFewBytes(const char* src, char* dst, ptrdiff_t lenBytes) {
  if (lenBytes >= 32) return copyEnds<32>(src, dst, lenBytes);
  if (lenBytes >= 16) return copyEnds<16>(src, dst, lenBytes);
  if (lenBytes >= 8) return copyEnds<8>(src, dst, lenBytes);
  if (lenBytes >= 4) return copyEnds<4>(src, dst, lenBytes);
  if (lenBytes >= 2) return copyEnds<2>(src, dst, lenBytes);
  if (lenBytes == 1) *dst = *src;
}

/// The C library leaves its fastest way for long copies.
HWY_NOINLINE void copyInPieces(const char* src, char* dst, ptrdiff_t lenBytes) {
  for (; lenBytes > copyPiece; lenBytes -= copyPiece, src += copyPiece, dst += copyPiece) {
    std::memcpy(dst, src, copyPiece);
  }
  std::memcpy(dst, src, static_cast<size_t>(lenBytes));
}

}  // namespace

void rowCopyBytes(const void* pSrc, void* pDst, ptrdiff_t lenBytes) {
  const auto* src = static_cast<const char*>(pSrc);
  auto* dst = static_cast<char*>(pDst);
  if (lenBytes <= 64) return copyFewBytes(src, dst, lenBytes);
  if (lenBytes > copyPiece) return copyInPieces(src, dst, lenBytes);
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

void rowSet8(Vemi8u value, Vemi8u* pDst, ptrdiff_t len) { std::memset(pDst, value, static_cast<size_t>(len)); }

}  // namespace vemi
