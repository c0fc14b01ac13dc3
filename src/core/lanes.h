// The lane library as the kernels see it, and a few moves of lanes.
//
// Highway is used with static dispatch: the compiler flags of a build choose one processor level, and VEMI_LANES says
// which Highway target that level must give. Without the guard a missing flag would only show as a slow library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include <hwy/highway.h>

static_assert(HWY_STATIC_TARGET == VEMI_LANES, "the compiler flags do not give the lanes of this processor level");

namespace vemi {

namespace hn = hwy::HWY_NAMESPACE;

template <class T>
using Lanes = hn::ScalableTag<T>;

template <class T>
inline constexpr ptrdiff_t laneCount = static_cast<ptrdiff_t>(hn::MaxLanes(Lanes<T>()));

/// Wide enough for an aligned load of the longest vector.
inline constexpr size_t laneAlignment = 64;

/// Calls f(index) for index 0 to count - 1, each index a compile-time constant, without a loop.
template <int count, class F>
HWY_INLINE void unrolled(const F& f) {
  [&]<int... i>(std::integer_sequence<int, i...>) { (f(std::integral_constant<int, i>()), ...); }
  (std::make_integer_sequence<int, count>());
}

/// `count` vectors as one value. An array member keeps them in registers as long as every index is a constant.
template <class V, int count>
struct Vectors {
  V v[count];
};

/// All lanes of one vector at twice their width, as two vectors. Which lanes stand in which half is the business of
/// widen and narrow alone: they are each other's inverse, and the pair costs no move across 128-bit blocks. Bytes are
/// the even ones and the odd ones, which takes no packing instruction; others the halves of each 128-bit block.
template <class V>
struct Widened {
  V lower, upper;
};

template <class D, class V, class T = hn::TFromD<D>, class DW = hn::RepartitionToWide<D>>
HWY_INLINE auto widen(D d, V v) {
  const DW dWide;
  constexpr int bits = 8 * sizeof(T);
  if constexpr (sizeof(T) == 1) {
    const auto odd = hn::BitCast(dWide, v);
    const auto even = hn::ShiftLeft<8>(odd);
    return Widened<hn::Vec<DW>>{hn::ShiftRight<8>(even), hn::ShiftRight<8>(odd)};
  } else if constexpr (std::is_signed_v<T>) {
    return Widened<hn::Vec<DW>>{hn::ShiftRight<bits>(hn::BitCast(dWide, hn::InterleaveLower(d, v, v))),
                                hn::ShiftRight<bits>(hn::BitCast(dWide, hn::InterleaveUpper(d, v, v)))};
  } else {
    return Widened<hn::Vec<DW>>{hn::BitCast(dWide, hn::InterleaveLower(d, v, hn::Zero(d))),
                                hn::BitCast(dWide, hn::InterleaveUpper(d, v, hn::Zero(d)))};
  }
}

/// Saturates wide lanes to the element type of `d`: signed or unsigned lanes to 8u, signed ones to 16s.
template <class D, class V, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> narrow(D d, Widened<V> wide) {
  if constexpr (sizeof(T) == 1) {
    static_assert(std::is_unsigned_v<T>);
    using Wide = hn::TFromV<V>;
    const hn::DFromV<V> dWide;
    const auto limited = [&](V v) HWY_ATTR {
      if constexpr (std::is_signed_v<Wide>) v = hn::Max(v, hn::Zero(dWide));
      return hn::Min(v, hn::Set(dWide, Wide{255}));
    };
    return hn::BitCast(d, hn::Or(limited(wide.lower), hn::ShiftLeft<8>(limited(wide.upper))));
  } else {
    return hn::ReorderDemote2To(d, wide.lower, wide.upper);
  }
}

}  // namespace vemi
