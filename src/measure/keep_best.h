// The lowest and the highest element of each channel of a region, or of terms of several regions' elements.
//
// A NaN is passed over: of two lanes of which one is a NaN, lesser and greater give their second operand, and that is
// what was best so far.
#pragma once

#include <limits>
#include <type_traits>

#include "core/element.h"
#include "core/map_row.h"
#include "core/processor.h"
#include "core/reduce_region.h"

namespace vemi::measure {

/// Which of two values is the better one. None is worse than `worst`, no finite one worse than `worstFinite` or better
/// than `best`.
struct Lowest {
  template <class T>
  static constexpr T worst = std::is_floating_point_v<T> ? std::numeric_limits<T>::infinity()
                                                         : std::numeric_limits<T>::max();
  template <class T>
  static constexpr T worstFinite = std::numeric_limits<T>::max();
  template <class T>
  static constexpr T best = std::numeric_limits<T>::lowest();
  static constexpr float betterZero = -0.0f;

  template <class V>
  HWY_INLINE static V better(V v, V best) {
    return lesser(v, best);
  }
  template <class T>
  static bool isBetter(T value, T best) {
    return value < best;
  }
};

struct Highest {
  template <class T>
  static constexpr T worst = std::is_floating_point_v<T> ? -std::numeric_limits<T>::infinity()
                                                         : std::numeric_limits<T>::lowest();
  template <class T>
  static constexpr T worstFinite = std::numeric_limits<T>::lowest();
  template <class T>
  static constexpr T best = std::numeric_limits<T>::max();
  static constexpr float betterZero = 0.0f;

  template <class V>
  HWY_INLINE static V better(V v, V best) {
    return greater(v, best);
  }
  template <class T>
  static bool isBetter(T value, T best) {
    return value > best;
  }
};

/// Of terms that are not negative.
struct Largest : Highest {
  template <class T>
  static constexpr T worst = 0;
};

/// Term gives lanes of type Value from lanes of type T.
template <class T, class Value, class Term, class... Extreme>
struct KeepBest {
  using Element = T;
  using Lane = Value;
  static constexpr int accumulators = sizeof...(Extreme);
  static constexpr ptrdiff_t capacity = unlimitedCapacity;
  static constexpr ReductionOrder order = ReductionOrder::repeat;
  static Lane start(int accumulator) {
    constexpr Lane worst[] = {Extreme::template worst<Lane>...};
    return worst[accumulator];
  }
  static T padding(const T* row, int channel) { return elementOf(row + channel); }

  template <class D, class K, class A, class... V>
  HWY_INLINE void add(D d, K k, A& bests, V... v) const {
    const auto term = Term()(d, v...);
    int a = 0;
    ((bests.of[a].v[k] = Extreme::better(term, bests.of[a].v[k]), ++a), ...);
  }
};

/// One row for each extreme, one column for each channel of a pixel.
template <class L, class Reduction>
struct BestValues {
  using T = typename Reduction::Lane;
  T best[Reduction::accumulators][L::elements];
};

template <class L, class T, class Value, class Term, class... Extreme, class... Others>
auto bestOf(KeepBest<T, Value, Term, Extreme...> reduction, VemiSize roiSize, Image<const T> src, Others... others) {
  using A = Accumulators<L, decltype(reduction)>;
  BestValues<L, decltype(reduction)> values;
  for (int a = 0; a < A::count; ++a) {
    for (auto& each : values.best[a]) each = reduction.start(a);
  }
  const auto sink = [&](const EmptiedLanes<A>& lanes) {
    const auto fold = [&]<class One>(One, int a) {
      for (int c = 0; c < L::elements; ++c) {
        auto best = values.best[a][c];
        for (ptrdiff_t i = c; i < A::lanes; i += L::elements) {
          best = One::isBetter(lanes.of[a][i], best) ? lanes.of[a][i] : best;
        }
        values.best[a][c] = best;
      }
    };
    int a = 0;
    (fold(Extreme(), a++), ...);
  };
  reduceRegion<L>(roiSize, reduction, sink, src, others...);
  return values;
}

}  // namespace vemi::measure
