// Numbers worth trying.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vemi::test {

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
