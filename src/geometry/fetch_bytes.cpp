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

/// Three or four channels: both columns of a row are a long word, and lanes of 16 bits are the channels of a pixel. The
/// formula is h = 64 p0 + (w (p1 - p0) >> 8) in a row and h0 + (w (h1 - h0) >> 14) + 32 >> 6 between rows, as what the
/// shifts drop is less than a unit of the shifts that follow. The upper half of a product is one shifted by 16, so that
/// differences and weights have 8 and 2 of these in advance; with its sign, all of a weight fits its lane.
template <class L>
struct LinearPixels {
  static constexpr ptrdiff_t items = placeCount;
  FetchSource source;

  HWY_INLINE void operator()(Vemi8u* out, const float* x, const float* y) const {
    constexpr int n = L::elements;
    const DIntegers di;
    const DBytes d;
    const auto doubledWeight = [&](const Tap& tap) HWY_ATTR {
      const auto weight = rounded(di, hn::Mul(tap.rest, hn::Set(DFloats(), -16384.0f)));
      return hn::BitCast(d, hn::Add(weight, weight));
    };
    const Tap column = firstOfTwo(x, source.image.right, source.size.width),
              row = firstOfTwo(y, source.image.bottom, source.size.height);
    const auto columnWeight = doubledWeight(column), rowWeight = doubledWeight(row);
    const auto pair = source.pixels.longWords<2 * n, 2>(hn::Mul(column.first, hn::Set(di, n)), row.first);
    const auto half = [&](const auto& rows, const BlockIndex& weights) HWY_ATTR {
      const auto ofChannels = [&](auto weight) HWY_ATTR {
        return hn::BitCast(DWords(), hn::TableLookupBytes(weight, hn::LoadDup128(d, weights.data())));
      };
      const auto w = ofChannels(columnWeight), v = ofChannels(rowWeight);
      const auto h0 = inRow(rows.v[0], w), h1 = inRow(rows.v[1], w);
      const auto difference = hn::Sub(h0, h1);
      const auto part = hn::MulHigh(hn::Add(difference, difference), v);
      return hn::ShiftRight<6>(hn::Add(hn::Add(h0, part), hn::Set(DWords(), int16_t{32})));
    };
    static constexpr BlockIndex ofLower = wordsForChannels(0), ofUpper = wordsForChannels(2);
    storePixels<L>(packHalves(d, half(pair.lower, ofLower), half(pair.upper, ofUpper)), out);
  }

 private:
  /// The lower halves of words k and k + 1, each for the channels of a pixel.
  static constexpr BlockIndex wordsForChannels(size_t k) {
    BlockIndex index = {};
    for (size_t i = 0; i < index.size(); ++i) index[i] = static_cast<uint8_t>((k + i / 8) * 4 + i % 2);
    return index;
  }

  /// Pixel `which` of each long word, its channels as 16 bits.
  static constexpr BlockIndex channelsOf(size_t which) {
    constexpr size_t n = L::elements;
    BlockIndex index = {};
    for (size_t i = 0; i < index.size(); ++i) {
      const size_t channel = i % 8 / 2;
      index[i] = static_cast<uint8_t>(i % 2 == 0 && channel < n ? i / 8 * 8 + which * n + channel : 128);
    }
    return index;
  }

  template <class V>
  HWY_INLINE static hn::Vec<DWords> inRow(V pairs, hn::Vec<DWords> weight) {
    static constexpr BlockIndex first = channelsOf(0), second = channelsOf(1);
    const DBytes d;
    const auto pixels = [&](const BlockIndex& index) HWY_ATTR {
      return hn::BitCast(DWords(), hn::TableLookupBytesOr0(hn::BitCast(d, pairs), hn::LoadDup128(d, index.data())));
    };
    const auto p0 = pixels(first), p1 = pixels(second);
    return hn::Add(hn::ShiftLeft<6>(p0), hn::MulHigh(hn::ShiftLeft<7>(hn::Sub(p0, p1)), weight));
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
