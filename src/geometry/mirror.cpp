// vemiMirror: rows, columns or both in reverse order. Elements are moved as they are, so one instance for each size of
// a pixel serves all types of its width.
//
// Statuses: null pointers, step, size, the axis.

#include <algorithm>
#include <array>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "core/map_row.h"
#include "core/rows.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

// ---- Rows ---------------------------------------------------------------------------------------------------------

/// Bytes of a 16-byte block whose pixels are in reverse order. Where pixels do not fill it, they are the block's last
/// ones, and become the first.
template <int pixelSize>
inline constexpr std::array<uint8_t, 16> reversedPixels = [] {
  std::array<uint8_t, 16> index = {};
  for (int i = 0; i < 16 / pixelSize * pixelSize; ++i) {
    index[static_cast<size_t>(i)] = static_cast<uint8_t>(16 - (i / pixelSize + 1) * pixelSize + i % pixelSize);
  }
  return index;
}();

/// Whole vectors of D from byte `i` of the destination on, taken from the row's end; what is left is told. Where pixels
/// do not fill a vector, the bytes behind them are written too, and belong to the next ones.
template <int pixelSize, class D>
HWY_INLINE ptrdiff_t reverseVectors(D d, const uint8_t* src, uint8_t* dst, ptrdiff_t bytes, ptrdiff_t i) {
  constexpr ptrdiff_t N = hn::MaxLanes(D()), moved = N / pixelSize * pixelSize;
  static_assert(moved == N || N == 16);
  const auto index = hn::LoadDup128(d, reversedPixels<pixelSize>.data());
  for (; i + N <= bytes; i += moved) {
    const auto pixels = hn::TableLookupBytes(hn::LoadU(d, src + bytes - i - N), index);
    hn::StoreU(hn::ReverseBlocks(d, pixels), d, dst + i);
  }
  return i;
}

/// The same of pixels of three words, four at a time: three whole vectors, of which each has what follows a word, and
/// then what precedes it.
HWY_INLINE ptrdiff_t reverseTriples(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes, ptrdiff_t i) {
  const hn::FixedTag<uint8_t, 16> d;
  for (; i + 48 <= bytes; i += 48) {
    const auto from = [&](ptrdiff_t word) HWY_ATTR { return hn::LoadU(d, src + bytes - i - 48 + 4 * word); };
    hn::StoreU(hn::CombineShiftRightBytes<4>(d, from(6), from(8)), d, dst + i);
    hn::StoreU(hn::CombineShiftRightBytes<8>(d, from(3), from(5)), d, dst + i + 16);
    hn::StoreU(hn::CombineShiftRightBytes<12>(d, from(0), from(2)), d, dst + i + 32);
  }
  return i;
}

template <int pixelSize>
HWY_NOINLINE void reverseBytes(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
  ptrdiff_t i = 0;
  if constexpr (16 % pixelSize == 0) i = reverseVectors<pixelSize>(Lanes<uint8_t>(), src, dst, bytes, i);
  if constexpr (pixelSize == 12) i = reverseTriples(src, dst, bytes, i);
  i = reverseVectors<pixelSize>(hn::FixedTag<uint8_t, 16>(), src, dst, bytes, i);
  for (; i < bytes; i += pixelSize) std::memcpy(dst + i, src + bytes - i - pixelSize, pixelSize);
}

/// Rows of `width` pixels of layout L, of which a fourth channel that stays is neither read nor written.
template <class T, class L>
struct PixelRows {
  static constexpr auto pixelSize = static_cast<int>(pixelBytes<T, L>);

  /// Pixels that are set aside on the stack.
  static constexpr ptrdiff_t most = 4080 / pixelSize;
  using Piece = T[most * L::elements];

  static void copy(const T* src, T* dst, ptrdiff_t width) {
    if constexpr (L::keepsAlpha) {
      mapRow<L>(width, eachVector(Identity()), dst, src);
    } else {
      rowCopyBytes(src, dst, width * pixelSize);
    }
  }

  static void reverse(const T* src, T* dst, ptrdiff_t width) {
    if constexpr (L::keepsAlpha) {
      Piece piece;
      inPieces(width, [&](ptrdiff_t x, ptrdiff_t count) {
        reverseWhole(src + (width - x - count) * L::elements, piece, count);
        copy(piece, dst + x * L::elements, count);
      });
    } else {
      reverseWhole(src, dst, width);
    }
  }

  static void exchange(T* a, T* b, ptrdiff_t width) {
    Piece piece;
    inPieces(width, [&](ptrdiff_t x, ptrdiff_t count) {
      T *const left = a + x * L::elements, *const right = b + x * L::elements;
      rowCopyBytes(left, piece, count * pixelSize);
      copy(right, left, count);
      copy(piece, right, count);
    });
  }

  /// The first `count` pixels of a row and the last ones of another, or of the same one, in reverse order.
  static void exchangeReversed(T* a, T* b, ptrdiff_t width, ptrdiff_t count) {
    Piece piece;
    inPieces(count, [&](ptrdiff_t x, ptrdiff_t n) {
      T *const left = a + x * L::elements, *const right = b + (width - x - n) * L::elements;
      reverseWhole(left, piece, n);
      reverse(right, left, n);
      copy(piece, right, n);
    });
  }

 private:
  template <class Work>
  static void inPieces(ptrdiff_t width, const Work& work) {
    for (ptrdiff_t x = 0; x < width; x += most) work(x, std::min(most, width - x));
  }

  static void reverseWhole(const T* src, T* dst, ptrdiff_t width) {
    reverseBytes<pixelSize>(reinterpret_cast<const uint8_t*>(src), reinterpret_cast<uint8_t*>(dst), width * pixelSize);
  }
};

// ---- Images -------------------------------------------------------------------------------------------------------

VemiStatus checkAxis(int flip) { return flip < vemiAxisHorizontal || flip > vemiAxisBoth ? vemiErrMirrorFlip : vemiOk; }

template <class T, class L>
VemiStatus mirror(Image<const T> src, Image<T> dst, VemiSize roiSize, int flip) {
  if (VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src, dst), checkSize(roiSize), checkAxis(flip))) {
    return bad;
  }
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    T* const out = dst.row(flip == vemiAxisVertical ? y : roiSize.height - 1 - y);
    if (flip == vemiAxisHorizontal) {
      PixelRows<T, L>::copy(src.row(y), out, roiSize.width);
    } else {
      PixelRows<T, L>::reverse(src.row(y), out, roiSize.width);
    }
  }
  return vemiOk;
}

template <class T, class L>
VemiStatus mirrorInPlace(Image<const T>, Image<T> image, VemiSize roiSize, int flip) {
  if (VemiStatus bad = firstOf(checkNull(image), checkStep(image), checkSize(roiSize), checkAxis(flip))) return bad;
  using Row = PixelRows<T, L>;
  const ptrdiff_t width = roiSize.width, height = roiSize.height;
  const auto reverseRow = [&](ptrdiff_t y) { Row::exchangeReversed(image.row(y), image.row(y), width, width / 2); };
  if (flip == vemiAxisVertical) {
    for (ptrdiff_t y = 0; y < height; ++y) reverseRow(y);
    return vemiOk;
  }
  for (ptrdiff_t y = 0; y < height / 2; ++y) {
    T *const upper = image.row(y), *const lower = image.row(height - 1 - y);
    if (flip == vemiAxisHorizontal) {
      Row::exchange(upper, lower, width);
    } else {
      Row::exchangeReversed(upper, lower, width, width);
    }
  }
  if (flip == vemiAxisBoth && height % 2 == 1) reverseRow(height / 2);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define VEMI_FLIP ((vemiAxis flip), (flip))

VEMI_DEFINE(vemiMirror_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_FLIP), mirror<Vemi8u, C1>)
VEMI_DEFINE(vemiMirror_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_FLIP), mirror<Vemi8u, C3>)
VEMI_DEFINE(vemiMirror_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_FLIP), mirror<Vemi8u, C4>)
VEMI_DEFINE(vemiMirror_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_FLIP), mirror<Vemi8u, AC4>)
VEMI_DEFINE(vemiMirror_16u_C1R, VEMI_SRC_DST(Vemi16u, VEMI_FLIP), mirror<Vemi16u, C1>)
VEMI_DEFINE(vemiMirror_16u_C3R, VEMI_SRC_DST(Vemi16u, VEMI_FLIP), mirror<Vemi16u, C3>)
VEMI_DEFINE(vemiMirror_16u_C4R, VEMI_SRC_DST(Vemi16u, VEMI_FLIP), mirror<Vemi16u, C4>)
VEMI_DEFINE(vemiMirror_16u_AC4R, VEMI_SRC_DST(Vemi16u, VEMI_FLIP), mirror<Vemi16u, AC4>)
VEMI_DEFINE(vemiMirror_32s_C1R, VEMI_SRC_DST(Vemi32s, VEMI_FLIP), mirror<Vemi32s, C1>)
VEMI_DEFINE(vemiMirror_32s_C3R, VEMI_SRC_DST(Vemi32s, VEMI_FLIP), mirror<Vemi32s, C3>)
VEMI_DEFINE(vemiMirror_32s_C4R, VEMI_SRC_DST(Vemi32s, VEMI_FLIP), mirror<Vemi32s, C4>)
VEMI_DEFINE(vemiMirror_32s_AC4R, VEMI_SRC_DST(Vemi32s, VEMI_FLIP), mirror<Vemi32s, AC4>)
VEMI_DEFINE(vemiMirror_8u_C1IR, VEMI_SRCDST(Vemi8u, VEMI_FLIP), mirrorInPlace<Vemi8u, C1>)
VEMI_DEFINE(vemiMirror_8u_C3IR, VEMI_SRCDST(Vemi8u, VEMI_FLIP), mirrorInPlace<Vemi8u, C3>)
VEMI_DEFINE(vemiMirror_8u_C4IR, VEMI_SRCDST(Vemi8u, VEMI_FLIP), mirrorInPlace<Vemi8u, C4>)
VEMI_DEFINE(vemiMirror_8u_AC4IR, VEMI_SRCDST(Vemi8u, VEMI_FLIP), mirrorInPlace<Vemi8u, AC4>)
VEMI_DEFINE(vemiMirror_16u_C1IR, VEMI_SRCDST(Vemi16u, VEMI_FLIP), mirrorInPlace<Vemi16u, C1>)
VEMI_DEFINE(vemiMirror_16u_C3IR, VEMI_SRCDST(Vemi16u, VEMI_FLIP), mirrorInPlace<Vemi16u, C3>)
VEMI_DEFINE(vemiMirror_16u_C4IR, VEMI_SRCDST(Vemi16u, VEMI_FLIP), mirrorInPlace<Vemi16u, C4>)
VEMI_DEFINE(vemiMirror_16u_AC4IR, VEMI_SRCDST(Vemi16u, VEMI_FLIP), mirrorInPlace<Vemi16u, AC4>)
VEMI_DEFINE(vemiMirror_32s_C1IR, VEMI_SRCDST(Vemi32s, VEMI_FLIP), mirrorInPlace<Vemi32s, C1>)
VEMI_DEFINE(vemiMirror_32s_C3IR, VEMI_SRCDST(Vemi32s, VEMI_FLIP), mirrorInPlace<Vemi32s, C3>)
VEMI_DEFINE(vemiMirror_32s_C4IR, VEMI_SRCDST(Vemi32s, VEMI_FLIP), mirrorInPlace<Vemi32s, C4>)
VEMI_DEFINE(vemiMirror_32s_AC4IR, VEMI_SRCDST(Vemi32s, VEMI_FLIP), mirrorInPlace<Vemi32s, AC4>)
