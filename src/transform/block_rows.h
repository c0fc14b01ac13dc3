// Blocks of 8 by 8 elements of 16 bits in lanes: rows one by one, and as many of them as a vector takes, up to two.
#pragma once

#include <array>
#include <cstdint>

#include "core/lanes.h"

namespace vemi::transform {

using OneRow = hn::CappedTag<int16_t, 8>;
using SomeRows = hn::CappedTag<int16_t, 16>;
using SomeSums = hn::RepartitionToWide<SomeRows>;
using RowsVector = hn::Vec<SomeRows>;
using SumsVector = hn::Vec<SomeSums>;

inline constexpr int rowsAtOnce = static_cast<int>(hn::MaxLanes(SomeRows())) / 8;
inline constexpr int rowGroups = 8 / rowsAtOnce;

/// A row whose sums and differences saturate.
struct Row {
  hn::Vec<OneRow> v;
};
HWY_INLINE Row operator+(Row a, Row b) { return {hn::SaturatedAdd(a.v, b.v)}; }
HWY_INLINE Row operator-(Row a, Row b) { return {hn::SaturatedSub(a.v, b.v)}; }

HWY_INLINE Row rowOf(int16_t value) { return {hn::Set(OneRow(), value)}; }

/// The high half of the products by `factor`.
HWY_INLINE Row scaled(Row a, int16_t factor) { return {hn::MulHigh(a.v, hn::Set(OneRow(), factor))}; }

/// With the lowest bit set.
HWY_INLINE Row odd(Row a) { return {hn::Or(a.v, hn::Set(OneRow(), int16_t{1}))}; }

template <int bits>
HWY_INLINE Row shiftedLeft(Row a) {
  return {hn::ShiftLeft<bits>(a.v)};
}

/// Rows of a block as groups of rows, and back; V is RowsVector, R is Row.
template <class R>
HWY_INLINE RowsVector groupOf(const R* row) {
  if constexpr (rowsAtOnce == 2) {
    return hn::Combine(SomeRows(), row[1].v, row[0].v);
  } else {
    return row[0].v;
  }
}
template <class V, class R>
HWY_INLINE void separate(V group, R* row) {
  if constexpr (rowsAtOnce == 2) {
    row[0] = {hn::LowerHalf(OneRow(), group)};
    row[1] = {hn::UpperHalf(OneRow(), group)};
  } else {
    row[0] = {group};
  }
}

/// The factors of a row k of coefficients, shared with row 8 - k: cos(i pi / 16) and those of row k multiplied, times
/// powers of two; b is c4.
struct RowFactors {
  int16_t b, c1, c2, c3, c5, c6, c7;
};
constexpr RowFactors rowFactors(int row) {
  constexpr RowFactors factors[5] = {{16384, 22725, 21407, 19266, 12873, 8867, 4520},
                                     {22725, 31521, 29692, 26722, 17855, 12299, 6270},
                                     {21407, 29692, 27969, 25172, 16819, 11585, 5906},
                                     {19266, 26722, 25172, 22654, 15137, 10426, 5315},
                                     {16384, 22725, 21407, 19266, 12873, 8867, 4520}};
  return factors[row < 5 ? row : 8 - row];
}

/// Factors for pairs of elements: for each row `vectors` vectors of four pairs, as groups of rows take them.
template <int vectors>
struct PairFactors {
  alignas(laneAlignment) int16_t factor[rowGroups][vectors][rowsAtOnce][8];

  /// pairsOf(factors of a row) gives its 8 * vectors numbers.
  template <class PairsOf>
  constexpr explicit PairFactors(const PairsOf& pairsOf) : factor() {
    for (int row = 0; row < 8; ++row) {
      const auto pairs = pairsOf(rowFactors(row));
      for (size_t i = 0; i < size_t{8} * vectors; ++i) {
        factor[row / rowsAtOnce][i / 8][row % rowsAtOnce][i % 8] = static_cast<int16_t>(pairs[i]);
      }
    }
  }

  HWY_INLINE RowsVector of(int group, int vector) const { return hn::Load(SomeRows(), factor[group][vector][0]); }
};

}  // namespace vemi::transform
