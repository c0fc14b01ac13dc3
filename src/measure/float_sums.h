// Sums of float terms, for each channel of a region, by the two ways that the accuracy hint chooses from. Neither
// depends on the length of a vector: the order of additions is the same in every build.
#pragma once

#include <cstring>

#include "core/processor.h"
#include "core/reduce_region.h"

namespace vemi::measure {

/// Floats are added in lanes that are emptied after each row, and every so often within a long one.
template <class Term>
struct FloatSums {
  using Element = float;
  using Lane = float;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = 256;
  static constexpr ReductionOrder order = ReductionOrder::fixed;
  static float start(int) { return 0; }
  static float padding(const float*, int) { return 0; }

  template <class D, class K, class A, class... V>
  HWY_INLINE void add(D d, K k, A& sums, V... v) const {
    sums.of[0].v[k] = hn::Add(sums.of[0].v[k], Term()(d, v...));
  }
};

namespace detail {

template <class L, class A>
struct ExtendedTotals {
  ExtendedFloat channel[L::elements] = {};

  /// Lanes are added by halves in double precision.
  void operator()(const EmptiedLanes<A>& lanes) {
    const Lanes<double> d;
    const hn::Rebind<float, decltype(d)> dFloat;
    constexpr ptrdiff_t N = laneCount<double>;
    alignas(laneAlignment) double sum[A::items];
    for (ptrdiff_t i = 0; i < A::items; i += N) {
      hn::Store(hn::PromoteTo(d, hn::Load(dFloat, lanes.of[0] + i)), d, sum + i);
    }
    for (ptrdiff_t half = A::items / 2; half >= L::elements; half /= 2) {
      ptrdiff_t i = 0;
      for (; i + N <= half; i += N) hn::Store(hn::Add(hn::Load(d, sum + i), hn::LoadU(d, sum + half + i)), d, sum + i);
      for (; i < half; ++i) sum[i] += sum[half + i];
    }
    for (int c = 0; c < L::elements; ++c) channel[c] += sum[c];
  }
};

}  // namespace detail

template <class L, class Term, class... Src>
void fastSums(VemiSize roiSize, double (&sum)[L::elements], Image<Src>... src) {
  detail::ExtendedTotals<L, Accumulators<L, FloatSums<Term>>> totals;
  reduceRegion<L>(roiSize, FloatSums<Term>(), totals, src...);
  for (int c = 0; c < L::elements; ++c) sum[c] = static_cast<double>(totals.channel[c]);
}

/// Doubles are added in the order of the elements: of one channel to two accumulators in turn, which runs on from row
/// to row, of several to one for each. No lane can do that faster, since each addition waits for the one before.
template <class L, class Term, class... Src>
HWY_NOINLINE void accurateSums(VemiSize roiSize, double (&sum)[L::elements], Image<Src>... src) {
  constexpr int count = L::elements == 1 ? 2 : L::elements;
  const ptrdiff_t elements = ptrdiff_t{roiSize.width} * L::elements;
  const auto term = [](ptrdiff_t i, auto... row) {
    const auto at = [&](const float* each) {
      float element;
      std::memcpy(&element, each + i, sizeof element);
      return static_cast<double>(element);
    };
    return Term()(at(row)...);
  };
  double kept[count] = {};
  int turn = 0;  // the accumulator of the row's first element
  const auto addRow = [&](auto... row) {
    double inTurn[count];
    for (int k = 0; k < count; ++k) inTurn[k] = kept[(turn + k) % count];
    ptrdiff_t i = 0;
    for (; i + count <= elements; i += count) unrolled<count>([&](auto k) { inTurn[k] += term(i + k, row...); });
    for (int k = 0; i + k < elements; ++k) inTurn[k] += term(i + k, row...);
    for (int k = 0; k < count; ++k) kept[(turn + k) % count] = inTurn[k];
    turn = static_cast<int>((turn + elements) % count);
  };
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) addRow(src.row(y)...);
  if constexpr (L::elements == 1) {
    sum[0] = kept[0] + kept[1];
  } else {
    for (int c = 0; c < count; ++c) sum[c] = kept[c];
  }
}

/// By the hint.
template <class L, class Term, class... Src>
void floatSums(VemiSize roiSize, double (&sum)[L::elements], vemiHint hint, Image<Src>... src) {
  if (hint == vemiHintAccurate) return accurateSums<L, Term>(roiSize, sum, src...);
  fastSums<L, Term>(roiSize, sum, src...);
}

}  // namespace vemi::measure
