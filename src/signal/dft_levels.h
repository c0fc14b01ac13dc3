// The levels of transforms whose lengths have other factors than 2, on groups of eight lines. As in fft_lanes.h: a
// level of length L and radix r combines r numbers L / r apart and multiplies the results by powers of exp(-2 pi i /
// L); each r-th of it is then a transform of its own.
#pragma once

#include "core/image.h"
#include "core/inlined.h"
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

/// The cosines of a fifth and of two fifths of a turn are -1/4 plus and minus the root of 5/16.
template <>
struct ShortTransform<5> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    const hn::DFromV<V> d;
    const auto times = [&](ComplexLanes<V> a, float factor) HWY_ATTR {
      return ComplexLanes<V>{hn::Mul(a.re, hn::Set(d, factor)), hn::Mul(a.im, hn::Set(d, factor))};
    };
    constexpr float sine = 0.95105652f, sineOfTwo = 0.58778525f;
    const auto sum1 = z[1] + z[4], sum2 = z[2] + z[3], difference1 = z[1] - z[4], difference2 = z[2] - z[3];
    const auto sum = sum1 + sum2, mean = z[0] - times(sum, 0.25f), apart = times(sum1 - sum2, 0.55901699f);
    const auto even1 = mean + apart, even2 = mean - apart;
    const auto odd1 = times(difference1, sine) + times(difference2, sineOfTwo);
    const auto odd2 = times(difference1, sineOfTwo) - times(difference2, sine);
    z[0] = z[0] + sum;
    z[1] = minusTurned(even1, odd1);
    z[4] = plusTurned(even1, odd1);
    z[2] = minusTurned(even2, odd2);
    z[3] = plusTurned(even2, odd2);
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
  if ((radix & (radix - 1)) != 0) return n;
  int frequency = 0;
  for (int bit = 1; bit < radix; bit *= 2) frequency = frequency * 2 + ((n & bit) != 0 ? 1 : 0);
  return frequency;
}

/// The product of two radices without a common factor has no factors in between: number b i + a j, modulo a b, is i of
/// a transform of a and j of one of b, and a frequency is what it is modulo a and modulo b.
template <int a, int b>
struct ProductTransform {
  static constexpr int placeOf(int modA, int modB) {
    int k = modA;
    while (k % b != modB) k += a;
    return k;
  }

  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    ComplexLanes<V> byA[a][b];
    unrolled<b>([&](auto j) HWY_ATTR {
      ComplexLanes<V> own[a];
      unrolled<a>([&](auto i) HWY_ATTR { own[i] = z[(b * i + a * j) % (a * b)]; });
      ShortTransform<a>::run(own);
      unrolled<a>([&](auto i) HWY_ATTR { byA[frequencyOf(i, a)][j] = own[i]; });
    });
    unrolled<a>([&](auto i) HWY_ATTR {
      ShortTransform<b>::run(byA[i]);
      unrolled<b>([&](auto j) HWY_ATTR { z[placeOf(i, frequencyOf(j, b))] = byA[i][j]; });
    });
  }
};

template <>
struct ShortTransform<6> : ProductTransform<2, 3> {};
template <>
struct ShortTransform<10> : ProductTransform<2, 5> {};
template <>
struct ShortTransform<12> : ProductTransform<4, 3> {};
template <>
struct ShortTransform<15> : ProductTransform<3, 5> {};

template <>
struct ShortTransform<9> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    const hn::DFromV<V> d;
    const auto factor = [&](float re, float im) HWY_ATTR { return ComplexLanes<V>{hn::Set(d, re), hn::Set(d, im)}; };
    ComplexLanes<V> part[3][3];  // of every third number
    unrolled<3>([&](auto j) HWY_ATTR {
      ComplexLanes<V> own[3] = {z[j], z[j + 3], z[j + 6]};
      ShortTransform<3>::run(own);
      unrolled<3>([&](auto i) HWY_ATTR { part[i][j] = own[i]; });
    });
    const auto w2 = factor(0.17364818f, -0.98480775f);
    part[1][1] = part[1][1] * factor(0.76604444f, -0.64278761f);
    part[1][2] = part[1][2] * w2;
    part[2][1] = part[2][1] * w2;
    part[2][2] = part[2][2] * factor(-0.93969262f, -0.34202014f);
    unrolled<3>([&](auto i) HWY_ATTR {
      ShortTransform<3>::run(part[i]);
      unrolled<3>([&](auto j) HWY_ATTR { z[i + 3 * j] = part[i][j]; });
    });
  }
};

/// Where numbers n of sixteen real columns, or of the real and imaginary parts of eight, come from: 8 floats of a row,
/// and 8 of those that lie `apart` floats behind them.
struct SixteenFloats {
  using D = ColumnGroups::D;

  Image<const float> rows;
  ptrdiff_t apart;
  bool areInverse;         // imaginary parts first
  const Vemi32s* numbers;  // of groups, and of as many more as are asked for ahead; or null: in order

  static constexpr ptrdiff_t ahead = 8;  // rows of a large image are pages apart: they are asked for in time

  HWY_INLINE ptrdiff_t numberOf(ptrdiff_t group) const { return numbers != nullptr ? numbers[group] : group; }
  HWY_INLINE ColumnGroups::Numbers load(ptrdiff_t group, ptrdiff_t k) const {
    const float* const row = rows.row(numberOf(group)) + k * ColumnGroups::N;
    const float* const later = rows.row(numberOf(group + ahead));
    __builtin_prefetch(later);
    __builtin_prefetch(later + apart + 7);
    return {hn::LoadU(D(), row + (areInverse ? apart : 0)), hn::LoadU(D(), row + (areInverse ? 0 : apart))};
  }
};

/// The groups of a block themselves, or for the first level what else they come from.
inline ColumnGroups sourceOf(ColumnGroups data, ptrdiff_t first) { return data.from(first); }
inline SixteenFloats sourceOf(SixteenFloats rows, ptrdiff_t /*first*/) { return rows; }

/// One level of `blocks` transforms of radix * count numbers that follow each other. Factors may be null: all are 1.
template <int radix, class From>
HWY_NOINLINE HWY_FLATTEN void levelOf(ColumnGroups data, const From& from, ptrdiff_t count, ptrdiff_t blocks,
                                      const float* factors) {
  using Numbers = ColumnGroups::Numbers;
  const ColumnGroups::D d;
  for (ptrdiff_t block = 0; block < blocks; ++block) {
    const ColumnGroups own = data.from(block * radix * count);
    const From source = sourceOf(from, block * radix * count);
    const float* w = factors;
    for (ptrdiff_t j = 0; j < count; ++j, w += factors != nullptr ? ptrdiff_t{2} * (radix - 1) : 0) {
      unrolled<ColumnGroups::vectors>([&](auto k) VEMI_INLINED {
        Numbers z[radix];
        unrolled<radix>([&](auto i) HWY_ATTR { z[i] = source.load(j + i * count, k); });
        ShortTransform<radix>::run(z);
        own.store(j, k, z[0]);
        unrolled<radix - 1>([&](auto i) HWY_ATTR {
          Numbers result = z[i + 1];
          if (factors != nullptr) result = result * Numbers{hn::Set(d, w[2 * i]), hn::Set(d, w[2 * i + 1])};
          own.store(j + (i + 1) * count, k, result);
        });
      });
    }
  }
}

/// The last level, in place: each block is one transform, whose groups lie at fixed distances, without factors.
template <int radix>
HWY_NOINLINE HWY_FLATTEN void lastLevelOf(ColumnGroups data, ptrdiff_t blocks) {
  for (ptrdiff_t block = 0; block < blocks; ++block) {
    const ColumnGroups own{data.first + block * radix * ColumnGroups{}.stride};
    unrolled<ColumnGroups::vectors>([&](auto k) VEMI_INLINED {
      ColumnGroups::Numbers z[radix];
      unrolled<radix>([&](auto i) HWY_ATTR { z[i] = own.load(i, k); });
      ShortTransform<radix>::run(z);
      unrolled<radix>([&](auto i) HWY_ATTR { own.store(i, k, z[i]); });
    });
  }
}

/// A level of any prime, up to the longest of direct sums.
inline constexpr int longestPrime = 179;

template <class From>
HWY_NOINLINE HWY_FLATTEN void levelOfPrime(ColumnGroups data, const From& from, int prime, ptrdiff_t count,
                                           ptrdiff_t blocks, const float* factors, const float* waves) {
  using Numbers = ColumnGroups::Numbers;
  using V = ColumnGroups::V;
  const ColumnGroups::D d;
  const int half = prime / 2;
  alignas(laneAlignment) float memory[2][ColumnGroups{}.stride * (longestPrime / 2)];
  const ColumnGroups sums{memory[0]}, differences{memory[1]};
  for (ptrdiff_t block = 0; block < blocks; ++block) {
    const ColumnGroups own = data.from(block * prime * count);
    const From source = sourceOf(from, block * prime * count);
    const float* w = factors;
    for (ptrdiff_t j = 0; j < count; ++j, w += factors != nullptr ? ptrdiff_t{2} * (prime - 1) : 0) {
      unrolled<ColumnGroups::vectors>([&](auto lanes) HWY_ATTR {
        const Numbers first = source.load(j, lanes);
        Numbers sum = first;
        for (int i = 0; i < half; ++i) {
          const Numbers a = source.load(j + (i + 1) * count, lanes),
                        b = source.load(j + (prime - 1 - i) * count, lanes);
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
          if (factors != nullptr) {
            const float* const of = w + ptrdiff_t{2} * (k - 1);
            const float* const mirrored = w + ptrdiff_t{2} * (prime - k - 1);
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
