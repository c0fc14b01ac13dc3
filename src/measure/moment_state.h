// The record between the pass over the pixels and the functions that read moments off it.
#pragma once

#include <type_traits>

#include "core/record.h"
#include "vemi/measure.h"

/// 400 bytes, which may be the user's own: their number is part of the interface.
struct VemiMomentState {
  int tag;
  int hint;
  int nChannels;  // -1 before the first pass, then 1 or 3
  int reserved;
  union {
    Vemi64f f[3][16];
    Vemi64s s[3][16];
  } sum;  // of each channel; S(m, n) is entry m + 4 * n, and entries of m + n > 3 are 0
};

namespace vemi::measure {

static_assert(sizeof(VemiMomentState) == 400);

inline constexpr int momentOrders = 4;  // 0 to 3 in each direction
inline constexpr int momentEntries = momentOrders * momentOrders;

/// The entry that holds S(m, n).
constexpr int momentEntry(int m, int n) { return m + momentOrders * n; }

/// Which of the two kinds a state is: its sums are Vemi64f or Vemi64s.
template <class Sum>
inline constexpr int momentTag = std::is_same_v<Sum, Vemi64f> ? 33 : 34;

}  // namespace vemi::measure
