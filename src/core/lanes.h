// The lane library as the kernels see it.
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

}  // namespace vemi
