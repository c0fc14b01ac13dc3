// The scale rule of integer arithmetic, from its definition.
#pragma once

#include <limits.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace vemi::test {

/// The integer nearest to exact / 2^scaleFactor, of two that are equally near the even one. 31 stands for any lower
/// power: a multiple of 2^31 is beyond all ranges; 40 for any higher one: no result of elements reaches 2^40.
inline int64_t scaled(int64_t exact, int scaleFactor) {
  const int power = std::clamp(scaleFactor, -31, 40);
  if (power <= 0) return exact * (int64_t{1} << -power);
  const int64_t unit = int64_t{1} << power;
  const int64_t rest = ((exact % unit) + unit) % unit;
  const int64_t below = (exact - rest) / unit;
  const bool takesUpper = 2 * rest > unit || (2 * rest == unit && below % 2 != 0);
  return takesUpper ? below + 1 : below;
}

/// -40 to 40, and the ends of the type.
inline std::vector<int> allScaleFactors() {
  std::vector<int> all(81);
  std::iota(all.begin(), all.end(), -40);
  all.insert(all.end(), {INT_MIN, INT_MIN + 1, -64, -63, 63, 64, 65, INT_MAX});
  return all;
}

}  // namespace vemi::test
