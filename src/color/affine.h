// Affine matrices on the bytes of three channels, exact.
#pragma once

#include <cstdint>
#include <iterator>
#include <tuple>
#include <utility>

#include "color/matrices.h"
#include "color/shared_chroma.h"
#include "core/inlined.h"
#include "core/numbers.h"

namespace vemi::color {

namespace detail {

/// Pairs of 16-bit weights for pairs of lanes.
template <class D>
HWY_INLINE hn::Vec<D> weightsOfPairs(D d, int16_t first, int16_t second) {
  const hn::RepartitionToWide<D> dPairs;
  const uint32_t pair = static_cast<uint16_t>(first) | static_cast<uint32_t>(static_cast<uint16_t>(second)) << 16;
  return hn::BitCast(d, hn::Set(dPairs, static_cast<int32_t>(pair)));
}

constexpr int16_t fraction(int weight) { return static_cast<int16_t>(weight); }
constexpr int whole(int weight) { return (weight - fraction(weight)) >> 16; }

template <int factor, class V>
HWY_INLINE V times(V v) {
  const hn::DFromV<V> d;
  if constexpr (factor == 0) return hn::Zero(d);
  if constexpr (factor == 1) return v;
  return hn::Mul(v, hn::Set(d, factor));
}

/// The products of row i's lower 16 bits with pairs (a, b) and (c, 0), and `offset`.
template <const auto& matrix, int i, class V>
HWY_INLINE auto weightedSum(V ab, V c, int offset) {
  constexpr AffineRow r = matrix.row[i];
  constexpr int16_t f0 = fraction(r.weight[0]), f1 = fraction(r.weight[1]), f2 = fraction(r.weight[2]);
  const hn::DFromV<V> d;
  const hn::RepartitionToWide<decltype(d)> dSums;
  auto sum = hn::Set(dSums, offset);
  if constexpr (f0 != 0 || f1 != 0) sum = hn::Add(sum, pairsOfProducts(ab, weightsOfPairs(d, f0, f1)));
  if constexpr (f2 != 0) sum = hn::Add(sum, pairsOfProducts(c, weightsOfPairs(d, f2, 0)));
  return sum;
}

}  // namespace detail

/// Row i of the matrix on 16-bit lanes from 0 on. The 16 lower bits of each weight are multiplied in pairs, whose sums
/// have 32 bits; what is above them counts whole.
template <const auto& matrix, int i, class V>
HWY_INLINE V affineRow(V a, V b, V c) {
  using namespace detail;
  constexpr AffineRow r = matrix.row[i];
  constexpr int a1 = whole(r.weight[0]), b1 = whole(r.weight[1]), c1 = whole(r.weight[2]);
  constexpr int one = r.shift == 16 ? whole(r.offset) : 0;
  constexpr bool hasWhole = a1 != 0 || b1 != 0 || c1 != 0 || one != 0;
  static_assert(r.shift == 16 || !hasWhole);
  const hn::DFromV<V> d;
  const V zero = hn::Zero(d);
  constexpr int offset = r.shift == 16 ? fraction(r.offset) : r.offset;
  const auto half = [](V ab, V c0)
                        VEMI_INLINED { return hn::ShiftRight<r.shift>(weightedSum<matrix, i>(ab, c0, offset)); };
  const V sums = packHalves(d, half(hn::InterleaveLower(d, a, b), hn::InterleaveLower(d, c, zero)),
                            half(hn::InterleaveUpper(d, a, b), hn::InterleaveUpper(d, c, zero)));
  if constexpr (!hasWhole) return sums;
  return hn::Add(sums, hn::Add(hn::Add(times<a1>(a), times<b1>(b)), hn::Add(times<c1>(c), hn::Set(d, one))));
}

/// A result for each row of the matrix. A channel may be shared by pixels.
template <const auto& matrix>
struct Affine {
  template <class D, class V0, class V1, class V2>
  HWY_INLINE auto operator()(D d, V0 v0, V1 v1, V2 v2) const {
    const auto a = wordsOfPixels(d, v0), b = wordsOfPixels(d, v1), c = wordsOfPixels(d, v2);
    return [&]<int... i>(std::integer_sequence<int, i...>) VEMI_INLINED {
      return std::tuple(bytesOfPixels(d, affineRow<matrix, i>(a.lower, b.lower, c.lower),
                                      affineRow<matrix, i>(a.upper, b.upper, c.upper))...);
    }
    (std::make_integer_sequence<int, std::size(matrix.row)>());
  }
};

}  // namespace vemi::color
