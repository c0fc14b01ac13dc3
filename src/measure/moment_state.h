// The record between the pass over the pixels and the functions that read moments off it.
#pragma once

#include <type_traits>

#include "core/checks.h"
#include "vemi/measure.h"

namespace vemi::measure {

inline constexpr int momentOrders = 4;  // 0 to 3 in each direction
inline constexpr int momentEntries = momentOrders * momentOrders;

/// The entry that holds S(m, n).
constexpr int momentEntry(int m, int n) { return m + momentOrders * n; }

/// Which of the two kinds a state is: its sums are Vemi64f or Vemi64s.
template <class Sum>
inline constexpr int momentTag = std::is_same_v<Sum, Vemi64f> ? 33 : 34;

template <class Sum>
VemiStatus checkContext(const VemiMomentState* pState) {
  return pState->tag == momentTag<Sum> ? vemiOk : vemiErrContext;
}

}  // namespace vemi::measure
