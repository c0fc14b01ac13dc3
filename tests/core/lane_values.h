// Values that lanes are tried with, and the rounding modes that a caller may have set.
#pragma once

#include <gtest/gtest.h>

#include <cfenv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/lanes.h"

namespace vemi::test {

/// op over all values in lanes, whatever their number.
template <class T, class Op>
std::vector<T> inLanes(const Op& op, std::vector<T> values) {
  const Lanes<T> d;
  const size_t count = values.size();
  values.resize(count + hn::Lanes(d), T(1));
  for (size_t i = 0; i < count; i += hn::Lanes(d)) hn::StoreU(op(d, hn::LoadU(d, &values[i])), d, &values[i]);
  values.resize(count);
  return values;
}

/// Every value of a type of 8 or 16 bits; for 32 bits those around every power of two and every 3/2 of one.
template <class T>
std::vector<T> interestingValues() {
  std::vector<T> values;
  if constexpr (sizeof(T) < 4) {
    for (int64_t v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); ++v) {
      values.push_back(static_cast<T>(v));
    }
  } else {
    for (int k = 0; k < 32; ++k) {
      for (int64_t base : {int64_t{1} << k, int64_t{3} << k}) {
        for (int64_t delta : {-2, -1, 0, 1, 2}) {
          for (int64_t v : {base + delta, -base + delta}) {
            if (static_cast<int64_t>(static_cast<T>(v)) == v) values.push_back(static_cast<T>(v));
          }
        }
      }
    }
  }
  return values;
}

/// Runs f in each rounding mode of the processor.
template <class F>
void inEveryRoundingMode(const F& f) {
  const int mode = std::fegetround();
  for (const int other : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    ASSERT_EQ(std::fesetround(other), 0);
    SCOPED_TRACE(other);
    f();
  }
  std::fesetround(mode);
}

}  // namespace vemi::test
