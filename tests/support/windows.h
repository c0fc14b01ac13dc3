// The one-dimensional windows, from their definitions.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace vemi::test {

inline std::vector<float> bartlettWindow(int n) {
  std::vector<float> weights;
  for (int k = 0; k < n; ++k) {
    weights.push_back(static_cast<float>(std::min(2.0 * k, 2.0 * (n - 1 - k)) / (n - 1)));
  }
  return weights;
}

/// The cosines by their recurrence, from the first element to the middle.
inline std::vector<float> hammingWindow(int n) {
  const long double step = 6.283185307179586 / (n - 1);
  const auto c = static_cast<double>(std::cos(step));
  std::vector<double> y = {0.46, 0.46 * c};
  while (static_cast<int>(y.size()) < n) y.push_back(2 * c * y[y.size() - 1] - y[y.size() - 2]);
  std::vector<float> weights;
  for (int k = 0; k < n; ++k) {
    weights.push_back(static_cast<float>(0.54 - y[static_cast<size_t>(std::min(k, n - 1 - k))]));
  }
  return weights;
}

}  // namespace vemi::test
