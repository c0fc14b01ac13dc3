// Powers with a constant exponent, near enough to tell what most of them round to in single precision.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/lanes.h"

namespace vemi::signal {

/// x^exponent of x from 1/64 up to, but not including, 4; lanes of other numbers hold no particular value. It is less
/// than 2^-41 of itself from the exact power for exponents from 0 to 1, and 2^-44 for 20/9. Levels differ within that.
///
/// Each octave has 32 cells. With c in the middle of the cell of x, x^a = c^a (1 + u)^a, where u = x / c - 1 is so
/// small that the binomial series is short. The lowest bits of the exponent of x and the uppermost ones of its fraction
/// are the number of its cell.
class NearPower {
 public:
  constexpr explicit NearPower(double exponent) : coefficient_(), middle_() {
    for (int k = 0; k < terms; ++k) coefficient_[k] = binomial(exponent, k);
    for (int n = 0; n < cells; ++n) {
      const int octave = n / perOctave;  // of exponents modulo 8: 1 begins at 1/64, 7 at 1, and then 0 at 2
      const double begin = octave == 0 ? 2 : (1 << octave) / 128.0;
      const double middle = begin * (1 + (n % perOctave + 0.5) / perOctave);
      double* const ofCell = middle_ + ptrdiff_t{2} * n;
      ofCell[0] = 1 / middle, ofCell[1] = power(middle, exponent);
    }
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RebindToUnsigned<D> du;
    alignas(laneAlignment) uint64_t place[hn::MaxLanes(D())];
    hn::Store(hn::And(hn::ShiftRight<46>(hn::BitCast(du, x)), hn::Set(du, 2 * (cells - 1))), du, place);
    const V even = everySecond(d, place), odd = everySecond(d, place + 1);
    const V u = hn::MulSub(x, hn::InterleaveLower(d, even, odd), hn::Set(d, 1.0));
    V sum = hn::Set(d, coefficient_[terms - 1]);
    unrolled<terms - 1>([&](auto k) HWY_ATTR { sum = hn::MulAdd(sum, u, hn::Set(d, coefficient_[terms - 2 - k])); });
    return hn::Mul(sum, hn::InterleaveUpper(d, even, odd));
  }

 private:
  static constexpr int terms = 6, perOctave = 32, cells = 8 * perOctave;

  double coefficient_[terms];
  double middle_[2 * cells];  // of each cell its inverse, then its power

  /// What two numbers there are for every second lane, in two lanes. Processors gather less quickly.
  template <class D>
  HWY_INLINE hn::Vec<D> everySecond(D d, const uint64_t* place) const {
    constexpr int lanes = hn::MaxLanes(D());
    if constexpr (lanes == 2) {
      return hn::LoadU(d, middle_ + *place);
    } else {
      const hn::Half<D> dHalf;
      return hn::Combine(d, everySecond(dHalf, place + lanes / 2), everySecond(dHalf, place));
    }
  }

  static constexpr double binomial(double n, int k) { return k == 0 ? 1 : binomial(n, k - 1) * (n - (k - 1)) / k; }

  static constexpr double power(double x, double exponent) {
    if (x < 0.5) return power(2 * x, exponent) * power(0.5, exponent);
    if (x > 1.5) return power(x / 2, exponent) / power(0.5, exponent);
    double sum = 0, term = 1;
    for (int k = 1; k <= 64; ++k) {
      sum += term;
      term *= (exponent - (k - 1)) / k * (x - 1);
    }
    return sum;
  }
};

}  // namespace vemi::signal
