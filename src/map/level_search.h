// The interval that holds a number, in lanes.
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

#include "core/lanes.h"
#include "map/levels.h"

namespace vemi::map {

template <class V>
struct LevelSearch {
  Levels<V> levels;
  bool byHalves;

  LevelSearch() = default;
  explicit LevelSearch(const Levels<V>& list) : levels(list), byHalves(list.count >= longList && ascends(list)) {}

  /// The index of the interval that holds the lane, or -1.
  template <class D, class Lane>
  HWY_INLINE auto intervalOf(D d, Lane v) const {
    const hn::RebindToSigned<D> di;
    if (byHalves) return halved(d, v);
    return whereHeld(d, v, hn::Set(di, -1), [&](int k) HWY_ATTR { return hn::Set(di, k); });
  }

  /// The value of that interval, or the lane itself.
  template <class D, class Lane>
  HWY_INLINE Lane stepOf(D d, Lane v) const {
    if (!byHalves) return whereHeld(d, v, v, [&](int k) HWY_ATTR { return hn::Set(d, levels.value[k]); });
    const hn::RebindToSigned<D> di;
    const auto interval = halved(d, v);
    const auto value = hn::GatherIndex(d, levels.value, hn::Max(interval, hn::Zero(di)));
    return hn::IfThenElse(hn::RebindMask(d, hn::Lt(interval, hn::Zero(di))), v, value);
  }

 private:
  static constexpr int longList = 128;  // from here on, halving is faster

  static bool ascends(const Levels<V>& list) {
    bool each = true;
    for (int k = 0; k < list.intervals(); ++k) each &= list.level[k] <= list.level[k + 1];
    return each;
  }

  /// v >= level: false for a NaN.
  template <class D, class Lane>
  HWY_INLINE static auto isFrom(D, Lane v, Lane level) {
    if constexpr (std::is_integral_v<V>) {
      return hn::Not(hn::Lt(v, level));
    } else {
      return hn::Ge(v, level);
    }
  }

  /// ofInterval(k) where interval k holds v, and `outside` elsewhere. Where levels do not ascend, intervals may
  /// overlap. Of floats the first one counts; of integers the last one, but none from the last level on, as in a table
  /// that is filled in order.
  template <class D, class Lane, class R, class F>
  HWY_INLINE R whereHeld(D d, Lane v, R outside, const F& ofInterval) const {
    const hn::DFromV<R> dResult;
    const int count = levels.intervals();
    R result = outside;
    for (int i = 0; i < count; ++i) {
      const int k = std::is_integral_v<V> ? i : count - 1 - i;
      const auto held = hn::And(isFrom(d, v, hn::Set(d, levels.level[k])), hn::Lt(v, hn::Set(d, levels.level[k + 1])));
      result = hn::IfThenElse(hn::RebindMask(dResult, held), ofInterval(k), result);
    }
    if constexpr (!std::is_integral_v<V>) return result;
    const auto beyond = isFrom(d, v, hn::Set(d, levels.level[count]));
    return hn::IfThenElse(hn::RebindMask(dResult, beyond), outside, result);
  }

  /// intervalOf where levels ascend: the last level that is not above v.
  template <class D, class Lane>
  HWY_INLINE auto halved(D d, Lane v) const {
    const hn::RebindToSigned<D> di;
    const int last = levels.intervals();
    auto interval = hn::Zero(di);
    for (int stride = static_cast<int>(std::bit_floor(static_cast<unsigned>(last))); stride > 0; stride /= 2) {
      const auto next = hn::Min(hn::Add(interval, hn::Set(di, stride)), hn::Set(di, last));
      const auto reached = isFrom(d, v, hn::GatherIndex(d, levels.level, next));
      interval = hn::IfThenElse(hn::RebindMask(di, reached), next, interval);
    }
    const auto held = hn::And(isFrom(d, v, hn::Set(d, levels.level[0])), hn::Lt(v, hn::Set(d, levels.level[last])));
    return hn::IfThenElse(hn::RebindMask(di, held), interval, hn::Set(di, -1));
  }
};

}  // namespace vemi::map
