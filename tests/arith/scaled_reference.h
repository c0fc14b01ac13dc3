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

/// Numbers of 16 bits around the powers of two, where ties, carries and limits lie.
inline std::vector<int16_t> around16sPowersOfTwo() {
  std::vector<int16_t> values;
  for (int power = 0; power < 16; ++power) {
    for (const int offset : {-2, -1, 0, 1, 2}) {
      for (const int sign : {-1, 1}) {
        values.push_back(static_cast<int16_t>(std::clamp(sign * ((1 << power) + offset), -32768, 32767)));
      }
    }
  }
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  return values;
}

}  // namespace vemi::test
