#include "geometry/quarter_turns.h"

#include <array>
#include <cstring>

#include "core/vector_blocks.h"
#include "geometry/three_bytes.h"

namespace vemi::geometry {

VemiStatus turnedPart(const Regions& regions, int quarterTurns, Point shift, TurnedPart& part) {
  if (const VemiStatus bad = checkIntersection(regions.src, regions.srcSize)) return bad;
  const VemiSize clipped = clippedSize(regions.src, regions.srcSize);
  const Edges from(VemiRect{regions.src.x, regions.src.y, clipped.width, clipped.height}), to(regions.dst);
  // Of destination pixel (x, y) and shift (sx, sy): one quarter turn leads to source pixel (sy - y, x - sx), two lead
  // to (sx - x, sy - y), three to (y - sy, sx - x).
  const bool isHalf = quarterTurns == 2;
  const bool rowsLeadRight = quarterTurns == 1, columnsLeadDown = quarterTurns == 3;
  const double low = isHalf ? from.left : from.top, high = isHalf ? from.right : from.bottom;
  const double lowDown = isHalf ? from.top : from.left, highDown = isHalf ? from.bottom : from.right;
  const double left = std::max(to.left, rowsLeadRight ? shift.x + low : shift.x - high);
  const double right = std::min(to.right, rowsLeadRight ? shift.x + high : shift.x - low);
  const double top = std::max(to.top, columnsLeadDown ? shift.y + lowDown : shift.y - highDown);
  const double bottom = std::min(to.bottom, columnsLeadDown ? shift.y + highDown : shift.y - lowDown);
  if (!(left <= right && top <= bottom)) return vemiWarnNoOperation;
  const int across = static_cast<int>(rowsLeadRight ? left - shift.x : shift.x - left);
  const int down = static_cast<int>(columnsLeadDown ? top - shift.y : shift.y - top);
  part.size = {static_cast<int>(right - left) + 1, static_cast<int>(bottom - top) + 1};
  part.dst = {static_cast<int>(left), static_cast<int>(top)};
  part.src = isHalf ? VemiPoint{across, down} : VemiPoint{down, across};
  return vemiOk;
}

namespace {

/// Squares of 16 bytes by 16 bytes, as many side by side as a vector has: rows become columns.
template <class D, class V, int columns>
HWY_INLINE void transpose(D d, V (&v)[columns]) {
  for (int stage = 1; stage < columns; stage *= 2) {
    V next[columns];
    unrolled<columns / 2>([&](auto k) HWY_ATTR {
      next[2 * k] = hn::InterleaveLower(d, v[k], v[k + columns / 2]);
      next[2 * k + 1] = hn::InterleaveUpper(d, v[k], v[k + columns / 2]);
    });
    unrolled<columns>([&](auto k) HWY_ATTR { v[k] = next[k]; });
  }
}

/// Bytes of pixels as lanes that are as wide as a pixel.
template <class Pixel, int written>
struct Squares {
  static constexpr int columns = 16 / sizeof(Pixel), rows = static_cast<int>(laneCount<Pixel>), leastHeight = columns;

  HWY_INLINE static void copy(const char* src, ptrdiff_t srcStep, char* dst, ptrdiff_t dstStep, bool) {
    const Lanes<Pixel> d;
    hn::Vec<Lanes<Pixel>> v[columns];
    unrolled<columns>([&](auto k) HWY_ATTR {
      v[k] = blocksFrom(d, [&](int block) HWY_ATTR {
        return reinterpret_cast<const Pixel*>(src + (k + ptrdiff_t{columns} * block) * srcStep);
      });
    });
    transpose(d, v);
    unrolled<columns>([&](auto k) HWY_ATTR {
      auto* const out = reinterpret_cast<Pixel*>(dst + k * dstStep);
      if constexpr (written < static_cast<int>(sizeof(Pixel))) {
        const auto colours = hn::Set(d, static_cast<Pixel>((Pixel{1} << 8 * written) - 1));
        v[k] = hn::Or(hn::And(v[k], colours), hn::AndNot(colours, hn::LoadU(d, out)));
      }
      hn::StoreU(v[k], d, out);
    });
  }
};

/// Pixels of three elements, in lanes of four on the way. A row's pixels are the first 12 bytes of the 16 that are
/// read, or the last ones where the row has no more.
template <class T, class Pixel>
struct Triples {
  static constexpr size_t size = sizeof(T);
  static constexpr int columns = 16 / sizeof(Pixel), rows = static_cast<int>(laneCount<Pixel>);
  static constexpr int leastHeight = 6 / size;  // which have more than 16 bytes

  HWY_INLINE static void copy(const char* src, ptrdiff_t srcStep, char* dst, ptrdiff_t dstStep, bool isLast) {
    alignas(16) static constexpr auto words = [] {
      std::array<std::array<uint8_t, 16>, 2> index = {};
      for (size_t i = 0; i < 16; ++i) {
        const bool isColour = i % (4 * size) < 3 * size;
        const size_t byte = i / (4 * size) * 3 * size + i % (4 * size);
        index[0][i] = static_cast<uint8_t>(isColour ? byte : 128);
        index[1][i] = static_cast<uint8_t>(isColour ? byte + 4 : 128);
      }
      return index;
    }();
    const Lanes<Pixel> d;
    const Lanes<uint8_t> dBytes;
    const auto place = hn::LoadDup128(dBytes, words[isLast ? 1 : 0].data());
    const char* const from = src - (isLast ? 4 : 0);
    hn::Vec<Lanes<Pixel>> v[columns];
    unrolled<columns>([&](auto k) HWY_ATTR {
      const auto bytes = blocksFrom(dBytes, [&](int block) HWY_ATTR {
        return reinterpret_cast<const uint8_t*>(from + (k + ptrdiff_t{columns} * block) * srcStep);
      });
      v[k] = hn::BitCast(d, hn::TableLookupBytesOr0(bytes, place));
    });
    transpose(d, v);
    unrolled<columns>([&](auto k) HWY_ATTR {
      storeWithoutFourth<T>(hn::BitCast(dBytes, v[k]), reinterpret_cast<uint8_t*>(dst + k * dstStep));
    });
  }
};

/// Pixels one by one.
template <int pixelSize, int written>
struct SinglePixels {
  static constexpr int columns = 4, rows = 4, leastHeight = columns;

  HWY_INLINE static void copy(const char* src, ptrdiff_t srcStep, char* dst, ptrdiff_t dstStep, bool) {
    unrolled<columns>([&](auto j) {
      unrolled<rows>([&](auto i) {
        std::memcpy(dst + j * dstStep + ptrdiff_t{i} * pixelSize, src + i * srcStep + ptrdiff_t{j} * pixelSize,
                    written);
      });
    });
  }
};

template <int pixelSize, int written>
struct BlockOf {
  using Type = SinglePixels<pixelSize, written>;
};
template <int written>
struct BlockOf<1, written> {
  using Type = Squares<uint8_t, written>;
};
template <int written>
struct BlockOf<2, written> {
  using Type = Squares<uint16_t, written>;
};
template <>
struct BlockOf<3, 3> {
  using Type = Triples<uint8_t, uint32_t>;
};
template <>
struct BlockOf<6, 6> {
  using Type = Triples<uint16_t, uint64_t>;
};
template <int written>
struct BlockOf<4, written> {
  using Type = Squares<uint32_t, written>;
};
template <int written>
struct BlockOf<8, written> {
  using Type = Squares<uint64_t, written>;
};

}  // namespace

template <int pixelSize, int written>
void copyTransposed(VemiSize size, const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep) {
  using B = typename BlockOf<pixelSize, written>::Type;
  const auto* const from = static_cast<const char*>(src);
  auto* const to = static_cast<char*>(dst);
  const ptrdiff_t width = size.width, height = size.height;
  if (width < B::rows || height < B::leastHeight) {
    for (ptrdiff_t j = 0; j < height; ++j) {
      for (ptrdiff_t i = 0; i < width; ++i) {
        std::memcpy(to + j * dstStep + i * pixelSize, from + i * srcStep + j * pixelSize, written);
      }
    }
    return;
  }
  // Strips touch few pages on either side, and within them, squares use lines of the cache whole. The last blocks
  // overlap the ones before.
  constexpr ptrdiff_t stripRows = 256, line = 64 / pixelSize;
  constexpr ptrdiff_t rows = std::max<ptrdiff_t>(line / B::rows, 1) * B::rows;
  constexpr ptrdiff_t columns = std::max<ptrdiff_t>(line / B::columns, 1) * B::columns;
  const auto square = [&](ptrdiff_t left, ptrdiff_t top, ptrdiff_t right, ptrdiff_t bottom) {
    for (ptrdiff_t y = top; y < bottom; y += B::columns) {
      for (ptrdiff_t x = left; x < right; x += B::rows) {
        const ptrdiff_t i = std::min(x, width - B::rows), j = std::min(y, height - B::columns);
        const bool isLast = j + B::leastHeight > height;
        B::copy(from + i * srcStep + j * pixelSize, srcStep, to + j * dstStep + i * pixelSize, dstStep, isLast);
      }
    }
  };
  for (ptrdiff_t strip = 0; strip < width; strip += stripRows) {
    const ptrdiff_t end = std::min(strip + stripRows, width);
    for (ptrdiff_t y = 0; y < height; y += columns) {
      for (ptrdiff_t x = strip; x < end; x += rows) {
        square(x, y, std::min(x + rows, end), std::min(y + columns, height));
      }
    }
  }
}

template void copyTransposed<1, 1>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<2, 2>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<3, 3>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<4, 3>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<4, 4>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<6, 6>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<8, 6>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<8, 8>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<12, 12>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<16, 12>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);
template void copyTransposed<16, 16>(VemiSize, const void*, ptrdiff_t, void*, ptrdiff_t);

}  // namespace vemi::geometry
