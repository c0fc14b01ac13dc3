// Sums of float terms, for each channel of a region, by the two ways that the accuracy hint chooses from. Neither
// depends on the length of a vector: the order of additions is the same in every build.
#pragma once

#include <algorithm>

#include "core/element.h"
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

/// Extended precision that waits for some rows, so that these need not wait for it.
template <int channels>
class ExtendedTotals {
 public:
  /// For sums that are added next.
  double* next() {
    if (count_ == most) add();
    return waiting_[count_++];
  }

  void put(double (&sum)[channels]) {
    add();
    for (int c = 0; c < channels; ++c) sum[c] = static_cast<double>(total_[c]);
  }

 private:
  static constexpr int most = 32;
  ExtendedFloat total_[channels] = {};
  int count_ = 0;
  double waiting_[most][channels];

  void add() {
    unrolled<channels>([&](auto c) {
      ExtendedFloat total = total_[c];
      for (int i = 0; i < count_; ++i) total += waiting_[i][c];
      total_[c] = total;
    });
    count_ = 0;
  }
};

/// Lanes are added by halves in double precision, in registers as long as a half is whole vectors.
template <class L, class A>
HWY_INLINE void addByHalves(const A& sums, double* channelSums) {
  const Lanes<double> d;
  constexpr ptrdiff_t N = laneCount<double>;
  constexpr int vectors = static_cast<int>(A::items / N);
  Vectors<hn::Vec<decltype(d)>, vectors> sum;
  unrolled<vectors / 2>([&](auto k) HWY_ATTR {
    const auto v = sums.of[0].v[k];
    sum.v[2 * k] = hn::PromoteTo(d, hn::LowerHalf(v));
    sum.v[2 * k + 1] = hn::PromoteTo(d, hn::UpperHalf(hn::Half<hn::DFromV<decltype(v)>>(), v));
  });
  constexpr int odd = vectors % 3 == 0 ? 3 : 1;  // vectors that are left; channels of four do not share one
  constexpr int left = std::max(odd, static_cast<int>(L::elements / N));
  unrolled<4>([&](auto step) HWY_ATTR {
    constexpr int half = vectors >> (step + 1);
    if constexpr (half >= left) unrolled<half>([&](auto k) HWY_ATTR { sum.v[k] = hn::Add(sum.v[k], sum.v[k + half]); });
  });
  alignas(laneAlignment) double lane[left * N];
  unrolled<left>([&](auto k) HWY_ATTR { hn::Store(sum.v[k], d, lane + k * N); });
  for (ptrdiff_t half = left * N / 2; half >= L::elements; half /= 2) {
    for (ptrdiff_t i = 0; i < half; ++i) lane[i] += lane[half + i];
  }
  std::copy_n(lane, L::elements, channelSums);
}

}  // namespace detail

/// Row by row; the last block of a row ends with it, as in other reductions.
template <class L, class Term, class... Src>
HWY_NOINLINE void fastSums(VemiSize roiSize, double (&sum)[L::elements], Image<Src>... src) {
  using A = Accumulators<L, FloatSums<Term>>;
  const FloatSums<Term> reduction;
  const ptrdiff_t elements = ptrdiff_t{roiSize.width} * L::elements, whole = elements / A::items;
  const bool hasEnd = elements % A::items != 0;
  detail::ExtendedTotals<L::elements> totals;
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    for (ptrdiff_t block = 0; block < whole + hasEnd; block += A::capacity) {
      A sums;
      sums.restart();
      const ptrdiff_t some = std::min(A::capacity, whole - block);
      addBlocksTo(sums, some, reduction, src.row(y) + block * A::items...);
      if (some < A::capacity && hasEnd) {
        [&](const auto&... end) HWY_ATTR {
          addBlocksTo(sums, 1, reduction, end.element...);
        }(RowEnd<L, A>(reduction, src.row(y), elements)...);
      }
      detail::addByHalves<L>(sums, totals.next());
    }
  }
  totals.put(sum);
}

/// Doubles are added in the order of the elements: of one channel to two accumulators in turn, which runs on from row
/// to row, of several to one for each. No lane can do that faster, since each addition waits for the one before.
template <class L, class Term, class... Src>
HWY_NOINLINE void accurateSums(VemiSize roiSize, double (&sum)[L::elements], Image<Src>... src) {
  constexpr int count = L::elements == 1 ? 2 : L::elements;
  const ptrdiff_t elements = ptrdiff_t{roiSize.width} * L::elements;
  const auto term = [](ptrdiff_t i, auto... row) { return Term()(static_cast<double>(elementOf(row + i))...); };
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
