// The lowest and the highest element of each channel of a region, or of terms of several regions' elements.
//
// A NaN is passed over: of two lanes of which one is a NaN, lesser and greater give their second operand, and that is
// what was best so far.
#pragma once

#include <cstring>
#include <limits>
#include <type_traits>

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
  static constexpr int parts = sizeof...(Extreme);
  static constexpr ptrdiff_t capacity = unlimitedCapacity;
  static constexpr ReductionOrder order = ReductionOrder::repeat;
  static Lane start(int part) {
    constexpr Lane worst[] = {Extreme::template worst<Lane>...};
    return worst[part];
  }
  static T padding(const T* row, int channel) {
    T element;
    std::memcpy(&element, row + channel, sizeof element);
    return element;
  }

  template <class D, class K, class A, class... V>
  HWY_INLINE void add(D d, K k, A& kept, V... v) const {
    const auto term = Term()(d, v...);
    int part = 0;
    ((kept.part[part].v[k] = Extreme::better(term, kept.part[part].v[k]), ++part), ...);
  }
};

/// One row for each extreme, one column for each channel of a pixel.
template <class L, class Reduction>
struct BestValues {
  using T = typename Reduction::Lane;
  T best[Reduction::parts][L::elements];
};

template <class L, class T, class Value, class Term, class... Extreme, class... Others>
auto bestOf(KeepBest<T, Value, Term, Extreme...> reduction, VemiSize roiSize, Image<const T> src, Others... others) {
  using A = Accumulators<L, decltype(reduction)>;
  BestValues<L, decltype(reduction)> values;
  for (int p = 0; p < A::parts; ++p) {
    for (auto& each : values.best[p]) each = reduction.start(p);
  }
  const auto sink = [&](const EmptiedLanes<A>& lanes) {
    const auto fold = [&]<class One>(One, int p) {
      for (int c = 0; c < L::elements; ++c) {
        auto best = values.best[p][c];
        for (ptrdiff_t i = c; i < A::lanesInPart; i += L::elements) {
          best = One::isBetter(lanes.part[p][i], best) ? lanes.part[p][i] : best;
        }
        values.best[p][c] = best;
      }
    };
    int part = 0;
    (fold(Extreme(), part++), ...);
  };
  reduceRegion<L>(roiSize, reduction, sink, src, others...);
  return values;
}

}  // namespace vemi::measure
