#include "geometry/resize_axis.h"

#include <cmath>

namespace vemi::geometry {
namespace {

constexpr double pi = 3.14159265358979323846;

/// sin(pi n / d) for 0 <= n < 3 d, by its series in the first quarter of a turn: zero at whole multiples of pi.
constexpr double sineOf(int n, int d) {
  const double sign = n / d % 2 == 0 ? 1 : -1;
  const int rest = n % d, folded = 2 * rest > d ? d - rest : rest;
  const double x = pi * folded / d;
  double term = x, sum = x;
  if (rest == 0) return 0;  // which has no sign
  for (int k = 1; k < 14; ++k) {
    term *= -x * x / ((2 * k) * (2 * k + 1));
    sum += term;
  }
  return sign * sum;
}

/// sinc(x) sinc(x / 3) at x = i / 100, zero from 3 on.
struct LanczosTable {
  float at[305];

  constexpr LanczosTable() : at() {
    at[0] = 1;
    for (int i = 1; i < 300; ++i) {
      const double x = pi * i / 100;
      at[i] = static_cast<float>(3 * sineOf(i, 100) * sineOf(i, 300) / (x * x));
    }
  }
};

constexpr LanczosTable lanczosTable;

}  // namespace

void lanczosWeights(float fraction, float (&weight)[6]) {
  for (int k = 0; k < 6; ++k) {
    const float distance = std::fabs(static_cast<float>(k - 2) - fraction);
    if (distance < 3) {
      const float place = distance * 100;
      const int i = static_cast<int>(place);
      const float* const at = lanczosTable.at + i;
      weight[k] = at[0] + (at[1] - at[0]) * (place - static_cast<float>(i));
    } else {
      weight[k] = 0;
    }
  }
}

}  // namespace vemi::geometry
