// vemiConvert between bytes and bit images, the first pixel in a byte's highest bit: bits to 0 and 255, and bytes to
// bits by a dither.

#include <algorithm>
#include <cstring>
#include <utility>

#include "core/alloc.h"
#include "core/blocks.h"
#include "core/checks.h"
#include "core/image.h"
#include "vemi/map.h"

namespace vemi {
namespace {

VemiStatus checkBitOffset(int bitOffset) { return bitOffset < 0 ? vemiErrSize : vemiOk; }

// ---- Bits to bytes -------------------------------------------------------------------------------------------------

/// All eight pixels of each byte.
void expandBytes(ptrdiff_t bytes, const Vemi8u* bits, Vemi8u* dst) {
  const Lanes<Vemi8u> d;
  constexpr ptrdiff_t N = laneCount<Vemi8u>, bytesPerBlock = 16;
  const auto bitOfPixel = hn::BitCast(d, hn::Set(Lanes<uint64_t>(), 0x0102040810204080u));
  const auto byteOfPixel = hn::BitCast(d, hn::ShiftRight<3>(hn::Iota(Lanes<uint8_t>(), 0)));
  const auto kernel = [&](const Vemi8u* in, Vemi8u* out) HWY_ATTR {
    const auto block = hn::LoadDup128(d, in);
    unrolled<8 * bytesPerBlock / N>([&](auto k) HWY_ATTR {
      const auto index = hn::Add(byteOfPixel, hn::Set(d, static_cast<Vemi8u>(k * N / 8)));
      const auto isSet = hn::TestBit(hn::TableLookupBytes(block, index), bitOfPixel);
      hn::StoreU(hn::VecFromMask(d, isSet), d, out + k * N);
    });
  };
  forBlocks<bytesPerBlock>(bytes, kernel, Strand<const Vemi8u>{bits}, Strand<Vemi8u, 8>{dst});
}

/// `count` pixels of one byte, from pixel `first` on.
void expandPart(int first, ptrdiff_t count, const Vemi8u* bits, Vemi8u* dst) {
  Vemi8u pixel[8];
  expandBytes(1, bits, pixel);
  std::memcpy(dst, pixel + first, static_cast<size_t>(count));
}

/// The part of the first byte, whole bytes, the part of the last.
void expandRow(ptrdiff_t width, const Vemi8u* bits, int first, Vemi8u* dst) {
  if (first > 0) {
    const ptrdiff_t count = std::min<ptrdiff_t>(8 - first, width);
    expandPart(first, count, bits, dst);
    ++bits, dst += count, width -= count;
  }
  expandBytes(width / 8, bits, dst);
  if (width % 8 > 0) expandPart(0, width % 8, bits + width / 8, dst + width / 8 * 8);
}

VemiStatus expand(Image<const Vemi8u> src, int bitOffset, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), checkBitOffset(bitOffset))) {
    return bad;
  }
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) expandRow(roiSize.width, src.row(y), bitOffset % 8, dst.row(y));
  return vemiOk;
}

// ---- Bytes to bits -------------------------------------------------------------------------------------------------
//
// The filter of Stucki: what a pixel's bit leaves of its value goes, in 42 parts, to two pixels on the right and to
// five in each of the next two rows. Values have 13 fraction bits, errors 3, and 23 / 1024 stands for 1 / 42.

/// The errors of the row in work and of the two above, with two zeros at either end of each.
struct Errors {
  Vemi32s *twoAbove, *above, *current;

  void nextRow() {
    std::swap(twoAbove, above);
    std::swap(above, current);
  }
};

/// The weighted errors of one row above, around the pixel in the middle.
inline Vemi32s weighted(const Vemi32s* e) { return e[-2] + 2 * e[-1] + 4 * e[0] + 2 * e[1] + e[2]; }

/// What each pixel of the row has from its own value and from above.
void gather(ptrdiff_t width, const Vemi8u* src, const Vemi32s* twoAbove, const Vemi32s* above,
            Vemi32s* __restrict sum) {
  for (ptrdiff_t i = 0; i < width; ++i) {
    sum[i] = src[i] * 8192 + 23 * (weighted(twoAbove + i) + 2 * weighted(above + i));
  }
}

/// Decides the bits of a row from left to right. `error` holds the sums, and takes the errors.
void decide(ptrdiff_t width, Vemi8u threshold, Vemi32s* error, Vemi8u* bits, int first) {
  const Vemi32s limit = threshold * 8192;
  unsigned byte = *bits >> (8 - first);  // the bits ahead of the row
  int filled = first;
  Vemi32s last = 0, lastButOne = 0;
  for (ptrdiff_t i = 0; i < width; ++i) {
    const Vemi32s value = error[i] + 23 * (4 * lastButOne + 8 * last);
    const bool isSet = value > limit;
    lastButOne = last;
    error[i] = last = (value >> 10) - (isSet ? 2047 : 0);
    byte = byte << 1 | isSet;
    if (++filled == 8) {
      *bits++ = static_cast<Vemi8u>(byte);
      filled = 0;
    }
  }
  const int behind = 8 - filled;
  if (filled > 0) *bits = static_cast<Vemi8u>(byte << behind | (*bits & ((1u << behind) - 1)));
}

/// Steps are not looked at: a single row needs none, and an image may lie bottom-up.
VemiStatus dither(Image<const Vemi8u> src, Image<Vemi8u> dst, int bitOffset, VemiSize roiSize, Vemi8u threshold) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkBitOffset(bitOffset))) return bad;
  const ptrdiff_t width = roiSize.width;
  const Vemi64s lineElements = Vemi64s{width} + 4, bytes = 3 * lineElements * Vemi64s{sizeof(Vemi32s)};
  auto* const lines = static_cast<Vemi32s*>(alignedAllocBytes(bytes));
  if (lines == nullptr) return vemiErrMemAlloc;
  std::memset(lines, 0, static_cast<size_t>(bytes));
  Errors errors = {lines + 2, lines + 2 + lineElements, lines + 2 + 2 * lineElements};
  for (ptrdiff_t y = 0; y < roiSize.height; ++y, errors.nextRow()) {
    gather(width, src.row(y), errors.twoAbove, errors.above, errors.current);
    decide(width, threshold, errors.current, dst.row(y), bitOffset % 8);
  }
  vemiAlignedFree(lines);
  return vemiOk;
}

}  // namespace
}  // namespace vemi

using namespace vemi;

VemiStatus vemiConvert_1u8u_C1R(const Vemi8u* pSrc, int srcStep, int srcBitOffset, Vemi8u* pDst, int dstStep,
                                VemiSize roiSize) {
  return expand({pSrc, srcStep}, srcBitOffset, {pDst, dstStep}, roiSize);
}

VemiStatus vemiConvert_8u1u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, int dstBitOffset,
                                VemiSize roiSize, Vemi8u threshold) {
  return dither({pSrc, srcStep}, {pDst, dstStep}, dstBitOffset, roiSize, threshold);
}
