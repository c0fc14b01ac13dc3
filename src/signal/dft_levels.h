// The levels of transforms whose lengths have other factors than 2, on groups of eight lines. As in fft_lanes.h: a
// level of length L and radix r combines r numbers L / r apart and multiplies the results by powers of exp(-2 pi i /
// L); each r-th of it is then a transform of its own.
#pragma once

#include "signal/fft_columns.h"

namespace vemi::signal {

/// The transform of an odd prime number of numbers, in place, by symmetric pairs: with s(i) = z(i) + z(p - i), d(i) =
/// z(i) - z(p - i), X(k) = z(0) + sum of s(i) cos(2 pi i k / p) - i times the sum of d(i) sin(2 pi i k / p), and X(p -
/// k) has the other sign.
template <int p, class V>
HWY_INLINE void primeTransform(ComplexLanes<V>* z, const float (&cosine)[(p + 1) / 2],
                               const float (&sine)[(p + 1) / 2]) {
  constexpr int half = p / 2;
  const hn::DFromV<V> d;
  ComplexLanes<V> sum[half], difference[half];
  const ComplexLanes<V> first = z[0];
  unrolled<half>([&](auto i) HWY_ATTR {
    sum[i] = z[i + 1] + z[p - 1 - i];
    difference[i] = z[i + 1] - z[p - 1 - i];
    z[0] = z[0] + sum[i];
  });
  unrolled<half>([&](auto k) HWY_ATTR {
    ComplexLanes<V> even = first, odd;
    unrolled<half>([&](auto i) HWY_ATTR {
      constexpr int turn = (i + 1) * (k + 1) % p, folded = turn > half ? p - turn : turn;
      const V c = hn::Set(d, cosine[folded]);
      even = {hn::Add(even.re, hn::Mul(sum[i].re, c)), hn::Add(even.im, hn::Mul(sum[i].im, c))};
      const V s = hn::Set(d, sine[folded]);
      const ComplexLanes<V> part = {hn::Mul(difference[i].re, s), hn::Mul(difference[i].im, s)};
      if constexpr (i == 0) {
        odd = part;
      } else if constexpr (turn > half) {
        odd = odd - part;
      } else {
        odd = odd + part;
      }
    });
    z[k + 1] = minusTurned(even, odd);
    z[p - 1 - k] = plusTurned(even, odd);
  });
}

template <>
struct ShortTransform<3> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    primeTransform<3>(z, {1, -0.5f}, {0, 0.8660254f});
  }
};

template <>
struct ShortTransform<5> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    primeTransform<5>(z, {1, 0.30901699f, -0.80901699f}, {0, 0.95105652f, 0.58778525f});
  }
};

template <>
struct ShortTransform<7> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    primeTransform<7>(z, {1, 0.62348980f, -0.22252093f, -0.90096887f}, {0, 0.78183148f, 0.97492791f, 0.43388374f});
  }
};

/// Which frequency result n of ShortTransform<radix> is, and where frequency n is: powers of two have their bits
/// reversed.
constexpr int frequencyOf(int n, int radix) {
  if (radix % 2 != 0) return n;
  int frequency = 0;
  for (int bit = 1; bit < radix; bit *= 2) frequency = frequency * 2 + (n & bit ? 1 : 0);
  return frequency;
}

/// One level of `blocks` transforms of radix * count numbers that follow each other. The last one has no factors.
template <int radix>
HWY_NOINLINE HWY_FLATTEN void levelOf(ColumnGroups data, ptrdiff_t count, ptrdiff_t blocks, const float* factors) {
  using Numbers = ColumnGroups::Numbers;
  const ColumnGroups::D d;
  for (ptrdiff_t block = 0; block < blocks; ++block) {
    const ColumnGroups own = data.from(block * radix * count);
    const float* w = factors;
    for (ptrdiff_t j = 0; j < count; ++j, w += 2 * (radix - 1)) {
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        Numbers z[radix];
        unrolled<radix>([&](auto i) HWY_ATTR { z[i] = own.load(j + i * count, k); });
        ShortTransform<radix>::run(z);
        own.store(j, k, z[0]);
        unrolled<radix - 1>([&](auto i) HWY_ATTR {
          Numbers result = z[i + 1];
          if (count > 1) result = result * Numbers{hn::Set(d, w[2 * i]), hn::Set(d, w[2 * i + 1])};
          own.store(j + (i + 1) * count, k, result);
        });
      });
    }
  }
}

/// The same of any prime, up to the longest of direct sums.
inline constexpr int longestPrime = 179;

HWY_NOINLINE HWY_FLATTEN inline void levelOfPrime(ColumnGroups data, int prime, ptrdiff_t count, ptrdiff_t blocks,
                                                  const float* factors, const float* waves) {
  using Numbers = ColumnGroups::Numbers;
  using V = ColumnGroups::V;
  const ColumnGroups::D d;
  const int half = prime / 2;
  alignas(laneAlignment) float memory[2][ColumnGroups{}.stride * (longestPrime / 2)];
  const ColumnGroups sums{memory[0]}, differences{memory[1]};
  for (ptrdiff_t block = 0; block < blocks; ++block) {
    const ColumnGroups own = data.from(block * prime * count);
    const float* w = factors;
    for (ptrdiff_t j = 0; j < count; ++j, w += ptrdiff_t{2} * (prime - 1)) {
      unrolled<ColumnGroups::vectors>([&](auto lanes) HWY_ATTR {
        const Numbers first = own.load(j, lanes);
        Numbers sum = first;
        for (int i = 0; i < half; ++i) {
          const Numbers a = own.load(j + (i + 1) * count, lanes), b = own.load(j + (prime - 1 - i) * count, lanes);
          sums.store(i, lanes, a + b);
          differences.store(i, lanes, a - b);
          sum = sum + (a + b);
        }
        own.store(j, lanes, sum);
        const float* wave = waves;
        for (int k = 1; k <= half; ++k) {
          Numbers even = first, odd = {hn::Zero(d), hn::Zero(d)};
          for (int i = 0; i < half; ++i, wave += 2) {
            const V c = hn::Set(d, wave[0]), s = hn::Set(d, wave[1]);
            const Numbers a = sums.load(i, lanes), b = differences.load(i, lanes);
            even = {hn::Add(even.re, hn::Mul(a.re, c)), hn::Add(even.im, hn::Mul(a.im, c))};
            odd = {hn::Add(odd.re, hn::Mul(b.re, s)), hn::Add(odd.im, hn::Mul(b.im, s))};
          }
          Numbers upper = minusTurned(even, odd), lower = plusTurned(even, odd);
          if (count > 1) {
            const float* const of = w + 2 * (k - 1);
            const float* const mirrored = w + 2 * (prime - k - 1);
            upper = upper * Numbers{hn::Set(d, of[0]), hn::Set(d, of[1])};
            lower = lower * Numbers{hn::Set(d, mirrored[0]), hn::Set(d, mirrored[1])};
          }
          own.store(j + k * count, lanes, upper);
          own.store(j + (prime - k) * count, lanes, lower);
        }
      });
    }
  }
}

}  // namespace vemi::signal
