// The accuracy of functions of double-precision lanes.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "core/lanes.h"

namespace vemi::test {

/// The position of a number among all numbers, so that neighbours differ by one.
inline int64_t rank(double value) {
  const auto bits = std::bit_cast<int64_t>(value);
  return bits >= 0 ? bits : INT64_MIN - bits;
}

template <class Op>
void expectWithinOneUnit(const Op& op, long double (*exact)(long double), const std::vector<double>& arguments) {
  const Lanes<double> d;
  for (const double x : arguments) {
    const double expected = static_cast<double>(exact(x)), result = hn::GetLane(op(d, hn::Set(d, x)));
    ASSERT_LE(std::abs(rank(result) - rank(expected)), 1) << std::hexfloat << x << ": " << result;
  }
}

}  // namespace vemi::test
