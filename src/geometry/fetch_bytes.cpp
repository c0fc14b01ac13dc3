// Fetches of bytes, in fixed point: weights of 14 bits, products in pairs of 16-bit lanes. A lane of 32 bits holds what
// a place in the source gives: neighbours of one channel, or a pixel.

#include <algorithm>
#include <array>

#include "core/lane_width.h"
#include "core/numbers.h"
#include "geometry/fetch_kernels.h"

namespace vemi::geometry {
namespace {

using DBytes = Lanes<uint8_t>;
using DWords = Lanes<int16_t>;

/// Two numbers as the halves of each lane.
HWY_INLINE Integers pairOf(Integers lower, Integers upper) {
  const DWords d;
  return hn::BitCast(DIntegers(), hn::OddEven(hn::BitCast(d, hn::ShiftLeft<16>(upper)), hn::BitCast(d, lower)));
}

/// The sum of both products of each lane's halves.
HWY_INLINE Integers productSum(Integers pairs, Integers weights) {
  const DWords d;
  return pairsOfProducts(hn::BitCast(d, pairs), hn::BitCast(d, weights));
}

/// A row's sum as 16 bits. No weights add up to more than 1.64 * 16384, so it never leaves them.
HWY_INLINE Integers rowValue(Integers sum) { return hn::ShiftRight<8>(sum); }

HWY_INLINE Integers pixelValue(Integers sum) { return hn::ShiftRight<20>(hn::Add(sum, hn::Set(DIntegers(), 0x80000))); }

/// Bytes of each 128-bit block; 128 is a zero.
using BlockIndex = std::array<uint8_t, 16>;

HWY_INLINE Integers bytesOf(Integers words, const BlockIndex& index) {
  const DBytes d;
  return hn::BitCast(DIntegers(), hn::TableLookupBytesOr0(hn::BitCast(d, words), hn::LoadDup128(d, index.data())));
}

/// Bytes `even` and `odd` of each word, as 16 bits.
constexpr BlockIndex bytePairs(size_t even, size_t odd) {
  BlockIndex index = {};
  for (size_t i = 0; i < index.size(); i += 4) {
    index[i] = static_cast<uint8_t>(i + even);
    index[i + 2] = static_cast<uint8_t>(i + odd);
    index[i + 1] = index[i + 3] = 128;
  }
  return index;
}

// ---- Linear -------------------------------------------------------------------------------------------------------

struct LinearTap {
  Integers first, weights;
};

HWY_INLINE LinearTap linearTap(const float* at, float last, int pixels) {
  const DIntegers di;
  const Tap tap = firstOfTwo(at, last, pixels);
  const auto weight = rounded(di, hn::Mul(tap.rest, hn::Set(DFloats(), 16384.0f)));
  return {tap.first, pairOf(hn::Sub(hn::Set(di, 16384), weight), weight)};
}

/// One channel: both columns of a row are one word.
struct LinearC1 {
  static constexpr ptrdiff_t items = laneCount<uint8_t>;
  FetchSource source;

  HWY_INLINE void operator()(Vemi8u* out, const float* x, const float* y) const {
    const DBytes d;
    const auto fetched = [&](auto k) HWY_ATTR { return lanes(x + k * placeCount, y + k * placeCount); };
    hn::StoreU(packEach<int32_t>(d, fetched), d, out);
  }

  HWY_INLINE Integers lanes(const float* x, const float* y) const {
    static constexpr BlockIndex columns = bytePairs(0, 1);
    const LinearTap column = linearTap(x, source.image.right, source.size.width),
                    row = linearTap(y, source.image.bottom, source.size.height);
    const auto word = source.pixels.words<2, 2>(column.first, row.first);
    const auto inRow = [&](int j)
                           HWY_ATTR { return rowValue(productSum(bytesOf(word.v[j], columns), column.weights)); };
    return pixelValue(productSum(pairOf(inRow(0), inRow(1)), row.weights));
  }
};

/// A vector of pixels with a word each, as three bytes each.
HWY_INLINE void storeWithoutFourth(hn::Vec<DBytes> pixels, Vemi8u* out) {
  static constexpr BlockIndex colours = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14};
  static constexpr auto close = [] {
    std::array<int32_t, laneCount<int32_t>> index = {};
    for (size_t i = 0; i < index.size() / 4 * 3; ++i) index[i] = static_cast<int32_t>(i / 3 * 4 + i % 3);
    return index;
  }();
  const DBytes d;
  const DIntegers di;
  auto three = hn::BitCast(di, hn::TableLookupBytes(pixels, hn::LoadDup128(d, colours.data())));
  if constexpr (laneCount < int32_t >> 4) {
    three = hn::TableLookupLanes(three, hn::SetTableIndices(di, close.data()));
  }
  const hn::Half<DBytes> dHalf;
  const hn::Half<decltype(dHalf)> dQuarter;
  const auto bytes = hn::BitCast(d, three);
  hn::StoreU(hn::LowerHalf(dHalf, bytes), dHalf, out);
  hn::StoreU(hn::LowerHalf(dQuarter, hn::UpperHalf(dHalf, bytes)), dQuarter, out + laneCount<uint8_t> / 2);
}

template <class L>
HWY_INLINE void storePixels(hn::Vec<DBytes> pixels, Vemi8u* out) {
  const DBytes d;
  if constexpr (L::elements == 3) {
    storeWithoutFourth(pixels, out);
  } else if constexpr (L::keepsAlpha) {
    const auto colours = hn::BitCast(d, hn::Set(DIntegers(), 0xffffff));
    hn::StoreU(hn::IfVecThenElse(colours, pixels, hn::LoadU(d, out)), d, out);
  } else {
    hn::StoreU(pixels, d, out);
  }
}

/// Three or four channels: a pixel is a word. Pixel p of all blocks of four is worked on at once, a block's lanes being
/// its channels.
template <class L>
struct LinearPixels {
  static constexpr ptrdiff_t items = placeCount;
  FetchSource source;

  HWY_INLINE void operator()(Vemi8u* out, const float* x, const float* y) const {
    constexpr int n = L::elements;
    const DIntegers di;
    const DWords dWords;
    const DBytes d;
    const LinearTap column = linearTap(x, source.image.right, source.size.width),
                    row = linearTap(y, source.image.bottom, source.size.height);
    const auto byte = hn::Mul(column.first, hn::Set(di, n));
    const auto left = source.pixels.words<n, 2>(byte, row.first);
    const auto right = source.pixels.words<n, 2>(hn::Add(byte, hn::Set(di, n)), row.first);
    Vectors<hn::Vec<DBytes>, 2> lower, upper;  // left and right by turns, of pixels 0 and 1, and of 2 and 3
    unrolled<2>([&](auto j) HWY_ATTR {
      const auto a = hn::BitCast(d, left.v[j]), b = hn::BitCast(d, right.v[j]);
      lower.v[j] = hn::InterleaveLower(d, a, b);
      upper.v[j] = hn::InterleaveUpper(d, a, b);
    });
    const auto pixel = [&](auto p) HWY_ATTR {
      const auto inRow = [&](auto j) HWY_ATTR {
        const auto two = p < 2 ? lower.v[j] : upper.v[j];
        const auto one =
            p % 2 == 0 ? hn::InterleaveLower(d, two, hn::Zero(d)) : hn::InterleaveUpper(d, two, hn::Zero(d));
        return rowValue(productSum(hn::BitCast(di, one), hn::Broadcast<p>(column.weights)));
      };
      const auto rows = pairOf(inRow(std::integral_constant<int, 0>()), inRow(std::integral_constant<int, 1>()));
      return pixelValue(productSum(rows, hn::Broadcast<p>(row.weights)));
    };
    const auto two = [&](auto first, auto second) HWY_ATTR { return packHalves(dWords, pixel(first), pixel(second)); };
    const auto first = two(std::integral_constant<int, 0>(), std::integral_constant<int, 1>());
    const auto second = two(std::integral_constant<int, 2>(), std::integral_constant<int, 3>());
    storePixels<L>(packHalves(d, first, second), out);
  }
};

// ---- Cubic --------------------------------------------------------------------------------------------------------

/// Weights of the first two of four neighbours in the halves of each entry, for coordinates of i / 512 behind the first
/// one; those of the last two, the last one first, are in entry 1536 - i. With t = i / 512, times 16384 and rounded:
/// (1 - t)(2 - t)(3 - t) / 6 and t (2 - t)(3 - t) / 2.
struct CubicWeights {
  static constexpr int last = 1536;
  int32_t pair[last + 1];

  constexpr CubicWeights() : pair() {
    for (int64_t i = 0; i <= last; ++i) {
      const int64_t first = nearest((512 - i) * (1024 - i) * (1536 - i), int64_t{6} * 8192);
      const int64_t second = nearest(i * (1024 - i) * (1536 - i), int64_t{2} * 8192);
      pair[i] = static_cast<int32_t>(first & 0xffff) | static_cast<int32_t>(second) * 0x10000;
    }
  }

  /// No entry is a tie.
  static constexpr int64_t nearest(int64_t a, int64_t b) { return a < 0 ? -nearest(-a, b) : (2 * a + b) / (2 * b); }
};

constexpr CubicWeights cubicWeights;

/// Where four neighbours begin, and the weights of the outer pairs: of the first and second one, of the fourth and
/// third.
struct CubicTap {
  Integers first, near, far;
};

HWY_INLINE CubicTap cubicTap(const float* at, float last, int pixels) {
  const DIntegers di;
  const Tap tap = firstOfFour(at, last, pixels);
  const auto index = rounded(di, hn::Mul(tap.rest, hn::Set(DFloats(), 512.0f)));
  const auto mirrored = hn::Sub(hn::Set(di, CubicWeights::last), index);
  return {tap.first, hn::GatherIndex(di, cubicWeights.pair, index), hn::GatherIndex(di, cubicWeights.pair, mirrored)};
}

/// One channel: four columns of a row are one word.
struct CubicC1 {
  static constexpr ptrdiff_t items = laneCount<uint8_t>;
  FetchSource source;

  HWY_INLINE void operator()(Vemi8u* out, const float* x, const float* y) const {
    const DBytes d;
    const auto fetched = [&](auto k) HWY_ATTR { return lanes(x + k * placeCount, y + k * placeCount); };
    hn::StoreU(packEach<int32_t>(d, fetched), d, out);
  }

  HWY_INLINE Integers lanes(const float* x, const float* y) const {
    static constexpr BlockIndex near = bytePairs(0, 1), far = bytePairs(3, 2);
    const CubicTap column = cubicTap(x, source.image.right, source.size.width),
                   row = cubicTap(y, source.image.bottom, source.size.height);
    const auto word = source.pixels.words<4, 4>(column.first, row.first);
    const auto inRow = [&](int j) HWY_ATTR {
      return rowValue(
          hn::Add(productSum(bytesOf(word.v[j], near), column.near), productSum(bytesOf(word.v[j], far), column.far)));
    };
    return pixelValue(
        hn::Add(productSum(pairOf(inRow(0), inRow(1)), row.near), productSum(pairOf(inRow(3), inRow(2)), row.far)));
  }
};

/// Three or four channels: four columns of a row are a vector of bytes, and lanes are one pixel's channels.
template <class L>
struct CubicPixels {
  static constexpr ptrdiff_t items = placeCount;
  static constexpr int n = L::elements;
  FetchSource source;

  HWY_INLINE void operator()(Vemi8u* out, const float* x, const float* y) const {
    const DIntegers di;
    const CubicTap column = cubicTap(x, source.image.right, source.size.width),
                   row = cubicTap(y, source.image.bottom, source.size.height);
    alignas(laneAlignment) int32_t at[items], line[items], weights[4][items];
    hn::Store(column.first, di, at);
    hn::Store(row.first, di, line);
    hn::Store(column.near, di, weights[0]);
    hn::Store(column.far, di, weights[1]);
    hn::Store(row.near, di, weights[2]);
    hn::Store(row.far, di, weights[3]);
    for (ptrdiff_t i = 0; i < items; ++i) {
      Vemi8u four[4];
      const hn::FixedTag<int32_t, 4> d;
      const auto weight = [&](int k) HWY_ATTR { return hn::Set(d, weights[k][i]); };
      const auto value = pixel(at[i] * n, line[i], weight(0), weight(1), weight(2), weight(3));
      hn::StoreU(hn::DemoteTo(hn::FixedTag<uint8_t, 4>(), value), hn::FixedTag<uint8_t, 4>(), four);
      std::memcpy(out + i * n, four, L::channels);
    }
  }

 private:
  using D = hn::FixedTag<int32_t, 4>;
  using V = hn::Vec<D>;

  /// Pixels `even` and `odd` of the four, channel by channel, as 16 bits.
  static constexpr BlockIndex pixelPairs(size_t even, size_t odd) {
    BlockIndex index;
    index.fill(128);
    for (size_t channel = 0; channel < n; ++channel) {
      index[4 * channel] = static_cast<uint8_t>(even * n + channel);
      index[4 * channel + 2] = static_cast<uint8_t>(odd * n + channel);
    }
    return index;
  }

  HWY_INLINE V pixel(ptrdiff_t byte, ptrdiff_t y, V columnNear, V columnFar, V rowNear, V rowFar) const {
    static constexpr BlockIndex near = pixelPairs(0, 1), far = pixelPairs(3, 2);
    const D d;
    const hn::FixedTag<uint8_t, 16> dBytes;
    const hn::FixedTag<int16_t, 8> dWords;
    const auto sum = [&](auto pairs, V weights)
                         HWY_ATTR { return pairsOfProducts(hn::BitCast(dWords, pairs), hn::BitCast(dWords, weights)); };
    const auto pair = [&](V lower, V upper) HWY_ATTR {
      return hn::OddEven(hn::BitCast(dWords, hn::ShiftLeft<16>(upper)), hn::BitCast(dWords, lower));
    };
    const auto inRow = [&](int j) HWY_ATTR {
      const auto four = source.pixels.run<4 * n>(dBytes, byte, y + j);
      const auto pairs = [&](const BlockIndex& index)
                             HWY_ATTR { return hn::TableLookupBytesOr0(four, hn::Load(dBytes, index.data())); };
      return hn::ShiftRight<8>(hn::Add(sum(pairs(near), columnNear), sum(pairs(far), columnFar)));
    };
    const V total = hn::Add(sum(pair(inRow(0), inRow(1)), rowNear), sum(pair(inRow(3), inRow(2)), rowFar));
    return hn::ShiftRight<20>(hn::Add(total, hn::Set(d, 0x80000)));
  }
};

}  // namespace

template <>
FetchRow<Vemi8u> fetchRow<Vemi8u, C1>(int interpolation) {
  return fetchRowOf<Vemi8u, C1, LinearC1, CubicC1>(interpolation);
}
template <>
FetchRow<Vemi8u> fetchRow<Vemi8u, C3>(int interpolation) {
  return fetchRowOf<Vemi8u, C3, LinearPixels<C3>, CubicPixels<C3>>(interpolation);
}
template <>
FetchRow<Vemi8u> fetchRow<Vemi8u, C4>(int interpolation) {
  return fetchRowOf<Vemi8u, C4, LinearPixels<C4>, CubicPixels<C4>>(interpolation);
}
template <>
FetchRow<Vemi8u> fetchRow<Vemi8u, AC4>(int interpolation) {
  return fetchRowOf<Vemi8u, AC4, LinearPixels<AC4>, CubicPixels<AC4>>(interpolation);
}

}  // namespace vemi::geometry
