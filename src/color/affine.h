// Affine matrices on the bytes of three channels, exact.
#pragma once

#include <cstdint>
#include <tuple>

#include "color/matrices.h"
#include "color/shared_chroma.h"
#include "core/numbers.h"

namespace vemi::color {

/// The results of three channels, limited to bytes. A channel may be shared by pixels. The 16 lower bits of each weight
/// are multiplied in pairs, whose sums have 32 bits; what is above them counts whole.
template <const AffineMatrix& matrix>
struct Affine {
  template <class D, class V0, class V1, class V2>
  HWY_INLINE auto operator()(D d, V0 v0, V1 v1, V2 v2) const {
    const auto a = wordsOfPixels(d, v0), b = wordsOfPixels(d, v1), c = wordsOfPixels(d, v2);
    return PixelWords<D, 3>{rows(a.lower, b.lower, c.lower), rows(a.upper, b.upper, c.upper)}.bytes(d);
  }

 private:
  static constexpr int16_t fraction(int weight) { return static_cast<int16_t>(weight); }
  static constexpr int whole(int weight) { return (weight - fraction(weight)) >> 16; }

  template <class V>
  HWY_INLINE static Vectors<V, 3> rows(V a, V b, V c) {
    return {{row<0>(a, b, c), row<1>(a, b, c), row<2>(a, b, c)}};
  }

  template <int i, class V>
  HWY_INLINE static V row(V a, V b, V c) {
    constexpr AffineRow r = matrix.row[i];
    constexpr int a1 = whole(r.weight[0]), b1 = whole(r.weight[1]), c1 = whole(r.weight[2]), one = whole(r.offset);
    constexpr bool hasWhole = a1 != 0 || b1 != 0 || c1 != 0 || one != 0;
    static_assert(r.shift == 16 || !hasWhole);
    const hn::DFromV<V> d;
    const V zero = hn::Zero(d);
    const V sums = packHalves(d, half<i>(hn::InterleaveLower(d, a, b), hn::InterleaveLower(d, c, zero)),
                              half<i>(hn::InterleaveUpper(d, a, b), hn::InterleaveUpper(d, c, zero)));
    if constexpr (!hasWhole) return sums;
    return hn::Add(sums, hn::Add(hn::Add(times<a1>(a), times<b1>(b)), hn::Add(times<c1>(c), hn::Set(d, one))));
  }

  template <int factor, class V>
  HWY_INLINE static V times(V v) {
    const hn::DFromV<V> d;
    if constexpr (factor == 0) return hn::Zero(d);
    if constexpr (factor == 1) return v;
    return hn::Mul(v, hn::Set(d, factor));
  }

  /// Of pairs (a, b) and (c, 0).
  template <int i, class V>
  HWY_INLINE static auto half(V ab, V c) {
    constexpr AffineRow r = matrix.row[i];
    constexpr int16_t f0 = fraction(r.weight[0]), f1 = fraction(r.weight[1]), f2 = fraction(r.weight[2]);
    const hn::RepartitionToWide<hn::DFromV<V>> d;
    const auto weights = [&](int16_t low, int16_t high) HWY_ATTR {
      const uint32_t pair = static_cast<uint16_t>(low) | static_cast<uint32_t>(static_cast<uint16_t>(high)) << 16;
      return hn::BitCast(hn::DFromV<V>(), hn::Set(d, static_cast<int32_t>(pair)));
    };
    auto sum = hn::Set(d, r.shift == 16 ? fraction(r.offset) : r.offset);
    if constexpr (f0 != 0 || f1 != 0) sum = hn::Add(sum, pairsOfProducts(ab, weights(f0, f1)));
    if constexpr (f2 != 0) sum = hn::Add(sum, pairsOfProducts(c, weights(f2, 0)));
    return hn::ShiftRight<r.shift>(sum);
  }
};

}  // namespace vemi::color
