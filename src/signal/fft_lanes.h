// The arithmetic of fast Fourier transforms on lanes: butterflies, in decimation in frequency, and the levels of a
// transform that run in place.
//
// Data stand in groups: the real parts of some complex numbers, then their imaginary parts. A group holds 16 numbers of
// one line, or one number of each of 8 lines. A level of 2^m numbers takes four (two) numbers a quarter (half) of it
// apart, combines them, and multiplies by powers of w = exp(-2 pi i / 2^m); each quarter is then a transform of its
// own. The results of a butterfly are stored with their bits reversed, and so, at last, the result for frequency k
// stands at place bitsReversed(k). The inverse transform is the same one with real and imaginary parts changed over at
// both ends.
#pragma once

#include <bit>
#include <cstdint>

#include "core/lanes.h"
#include "signal/roots.h"

namespace vemi::signal {

template <class V>
struct ComplexLanes {
  V re, im;
};

template <class V>
HWY_INLINE ComplexLanes<V> operator+(ComplexLanes<V> a, ComplexLanes<V> b) {
  return {hn::Add(a.re, b.re), hn::Add(a.im, b.im)};
}
template <class V>
HWY_INLINE ComplexLanes<V> operator-(ComplexLanes<V> a, ComplexLanes<V> b) {
  return {hn::Sub(a.re, b.re), hn::Sub(a.im, b.im)};
}
template <class V>
HWY_INLINE ComplexLanes<V> operator*(ComplexLanes<V> a, ComplexLanes<V> b) {
  return {hn::Sub(hn::Mul(a.re, b.re), hn::Mul(a.im, b.im)), hn::Add(hn::Mul(a.re, b.im), hn::Mul(a.im, b.re))};
}

template <class V>
HWY_INLINE ComplexLanes<V> swapped(ComplexLanes<V> a) {
  return {a.im, a.re};
}

/// a - i b and a + i b
template <class V>
HWY_INLINE ComplexLanes<V> minusTurned(ComplexLanes<V> a, ComplexLanes<V> b) {
  return {hn::Add(a.re, b.im), hn::Sub(a.im, b.re)};
}
template <class V>
HWY_INLINE ComplexLanes<V> plusTurned(ComplexLanes<V> a, ComplexLanes<V> b) {
  return {hn::Sub(a.re, b.im), hn::Add(a.im, b.re)};
}

/// By exp(-2 pi i / 8) and its third power.
template <class V>
HWY_INLINE ComplexLanes<V> turnedByEighth(ComplexLanes<V> a) {
  const V half = hn::Set(hn::DFromV<V>(), 0.70710678f);
  return {hn::Mul(hn::Add(a.re, a.im), half), hn::Mul(hn::Sub(a.im, a.re), half)};
}
template <class V>
HWY_INLINE ComplexLanes<V> turnedByThreeEighths(ComplexLanes<V> a) {
  const hn::DFromV<V> d;
  return {hn::Mul(hn::Sub(a.im, a.re), hn::Set(d, 0.70710678f)),
          hn::Mul(hn::Add(a.re, a.im), hn::Set(d, -0.70710678f))};
}

/// The four-point transform of (a, b, c, d) with its results in bit-reversed order: those of frequencies 0, 2, 1, 3.
template <class V>
HWY_INLINE void butterfly(ComplexLanes<V>& a, ComplexLanes<V>& b, ComplexLanes<V>& c, ComplexLanes<V>& d) {
  const auto evenSum = a + c, evenDifference = a - c, oddSum = b + d, oddDifference = b - d;
  a = evenSum + oddSum;
  b = evenSum - oddSum;
  c = minusTurned(evenDifference, oddDifference);
  d = plusTurned(evenDifference, oddDifference);
}

/// Transforms of 2, 4, 8 and 16 numbers in an array, results in bit-reversed order.
template <int points>
struct ShortTransform;

template <>
struct ShortTransform<2> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    const auto sum = z[0] + z[1];
    z[1] = z[0] - z[1];
    z[0] = sum;
  }
};

template <>
struct ShortTransform<4> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    butterfly(z[0], z[1], z[2], z[3]);
  }
};

template <>
struct ShortTransform<8> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    butterfly(z[0], z[2], z[4], z[6]);
    butterfly(z[1], z[3], z[5], z[7]);
    z[5] = turnedByEighth(z[5]);
    z[7] = turnedByThreeEighths(z[7]);
    ShortTransform<2>::run(z);
    const auto turned = minusTurned(z[2], z[3]);  // w^2 is -i
    z[3] = plusTurned(z[2], z[3]);
    z[2] = turned;
    ShortTransform<2>::run(z + 4);
    ShortTransform<2>::run(z + 6);
  }
};

/// Products with w, w^3 and w^9 for w = exp(-2 pi i / 16).
struct BySixteenths {
  static constexpr float cosine = 0.92387953f, sine = 0.38268343f;

  template <class V>
  HWY_INLINE static ComplexLanes<V> first(ComplexLanes<V> z) {
    return z * factor<V>(cosine, -sine);
  }
  template <class V>
  HWY_INLINE static ComplexLanes<V> third(ComplexLanes<V> z) {
    return z * factor<V>(sine, -cosine);
  }
  template <class V>
  HWY_INLINE static ComplexLanes<V> ninth(ComplexLanes<V> z) {
    return z * factor<V>(-cosine, sine);
  }

 private:
  template <class V>
  HWY_INLINE static ComplexLanes<V> factor(float re, float im) {
    const hn::DFromV<V> d;
    return {hn::Set(d, re), hn::Set(d, im)};
  }
};

/// The same with half the error: each factor is w or its conjugate times whole quarters of a turn, and z w = z + z (w -
/// 1), where only the sum is rounded as coarsely as z is.
struct ByNearSixteenths {
  template <class V>
  HWY_INLINE static ComplexLanes<V> first(ComplexLanes<V> z) {
    const auto [alongRe, alongIm, acrossRe, acrossIm] = partsOf(z);
    return {hn::Add(z.re, hn::Sub(acrossIm, alongRe)), hn::Sub(z.im, hn::Add(alongIm, acrossRe))};
  }
  template <class V>
  HWY_INLINE static ComplexLanes<V> third(ComplexLanes<V> z) {
    const auto [alongRe, alongIm, acrossRe, acrossIm] = partsOf(z);
    return {hn::Add(z.im, hn::Sub(acrossRe, alongIm)), hn::Sub(hn::Add(acrossIm, alongRe), z.re)};
  }
  template <class V>
  HWY_INLINE static ComplexLanes<V> ninth(ComplexLanes<V> z) {
    const auto [alongRe, alongIm, acrossRe, acrossIm] = partsOf(z);
    return {hn::Sub(hn::Sub(alongRe, acrossIm), z.re), hn::Sub(hn::Add(alongIm, acrossRe), z.im)};
  }

 private:
  template <class V>
  struct Parts {
    V alongRe, alongIm, acrossRe, acrossIm;
  };

  /// z times 1 - cos and times sin of an eighth of a half turn.
  template <class V>
  HWY_INLINE static Parts<V> partsOf(ComplexLanes<V> z) {
    const hn::DFromV<V> d;
    const V along = hn::Set(d, 0.076120467f), across = hn::Set(d, BySixteenths::sine);
    return {hn::Mul(z.re, along), hn::Mul(z.im, along), hn::Mul(z.re, across), hn::Mul(z.im, across)};
  }
};

template <class By, class V>
HWY_INLINE void transformOfSixteen(ComplexLanes<V>* z) {
  unrolled<4>([&](auto j) HWY_ATTR { butterfly(z[j], z[j + 4], z[j + 8], z[j + 12]); });
  z[5] = turnedByEighth(z[5]);
  z[9] = By::first(z[9]);
  z[13] = By::third(z[13]);
  z[6] = {z[6].im, hn::Neg(z[6].re)};
  z[10] = turnedByEighth(z[10]);
  z[14] = turnedByThreeEighths(z[14]);
  z[7] = turnedByThreeEighths(z[7]);
  z[11] = By::third(z[11]);
  z[15] = By::ninth(z[15]);
  unrolled<4>([&](auto j) HWY_ATTR { ShortTransform<4>::run(z + 4 * j); });
}

template <>
struct ShortTransform<16> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    transformOfSixteen<BySixteenths>(z);
  }
};

/// What Fourier transforms of images of powers of two end with, so that their errors are at most those of transforms
/// with fused products. Those of other lengths are that exact by products, which cosine transforms and templates keep
/// too.
template <int points>
struct PreciseTransform : ShortTransform<points> {};

template <>
struct PreciseTransform<16> {
  template <class V>
  HWY_INLINE static void run(ComplexLanes<V>* z) {
    transformOfSixteen<ByNearSixteenths>(z);
  }
};

/// The low `bits` bits of k in reverse order.
constexpr ptrdiff_t bitsReversed(ptrdiff_t k, int bits) {
  auto v = static_cast<uint32_t>(k);
  v = (v & 0x55555555) << 1 | (v >> 1 & 0x55555555);
  v = (v & 0x33333333) << 2 | (v >> 2 & 0x33333333);
  v = (v & 0x0f0f0f0f) << 4 | (v >> 4 & 0x0f0f0f0f);
  v = (v & 0x00ff00ff) << 8 | (v >> 8 & 0x00ff00ff);
  v = v << 16 | v >> 16;
  return bits == 0 ? 0 : static_cast<ptrdiff_t>(v >> (32 - bits));
}

/// place(k + 1) from place(k) = bitsReversed(k) of 2^order, and the place of -(k + 1), which shares the lowest bit that
/// is set and has the others turned round.
struct ReversedPlaces {
  ptrdiff_t count, place = 0;

  HWY_INLINE void step(ptrdiff_t next) { place ^= count - (count >> 1 >> std::countr_zero(static_cast<size_t>(next))); }
  HWY_INLINE ptrdiff_t mirrored(ptrdiff_t k) const {
    return place ^ ((count >> 1 >> std::countr_zero(static_cast<size_t>(k))) - 1);
  }
};

/// Groups in memory, `stride` floats from one to the next: a vector of real parts, one of imaginary parts, and so on.
/// So a vector's numbers have the memory that they have as interleaved pairs.
template <int width>
struct Groups {
  using D = hn::CappedTag<float, width>;
  using V = hn::Vec<D>;
  using Numbers = ComplexLanes<V>;
  static constexpr ptrdiff_t N = static_cast<ptrdiff_t>(hn::MaxLanes(D()));
  static constexpr int vectors = width / N;

  float* first;
  ptrdiff_t stride = ptrdiff_t{2} * width;

  HWY_INLINE Groups from(ptrdiff_t group) const { return {first + group * stride, stride}; }
  /// Where the real part of a number stands; its imaginary part stands N floats on.
  HWY_INLINE float* at(ptrdiff_t group, ptrdiff_t number) const {
    return first + group * stride + number / N * (2 * N) + number % N;
  }
  HWY_INLINE Numbers load(ptrdiff_t group, ptrdiff_t k) const {
    const float* const numbers = at(group, k * N);
    return {hn::LoadU(D(), numbers), hn::LoadU(D(), numbers + N)};
  }
  HWY_INLINE void store(ptrdiff_t group, ptrdiff_t k, Numbers z) const {
    float* const numbers = at(group, k * N);
    hn::StoreU(z.re, D(), numbers);
    hn::StoreU(z.im, D(), numbers + N);
  }
};

/// Lines of 2^8 numbers and more have groups for themselves; of shorter ones, several lie side by side.
inline constexpr int shortestLineOrder = 8;

/// Groups of one line, of 2^order of its numbers: these have a factor each.
template <int order>
struct AlongLineBy {
  static constexpr int width = 1 << order;
  static constexpr int groupOrder = order;
  static constexpr ptrdiff_t perBlock = factorsAtOnce / width;  // groups that a block of factors serves
  using Own = Groups<width>;
  using D = typename Own::D;
  const float* factors;

  template <class K>
  HWY_INLINE typename Own::Numbers power(int n, ptrdiff_t j, K k) const {
    const float* const at = factors + ptrdiff_t{2} * (n - 1) * factorsAtOnce + j * width + k * Own::N;
    return {hn::LoadU(D(), at), hn::LoadU(D(), at + factorsAtOnce)};
  }
};
using AlongLine = AlongLineBy<4>;
using AlongShortLine = AlongLineBy<3>;

/// Groups of numbers of several lines, which share a factor.
struct AcrossLines {
  static constexpr int width = 8;
  static constexpr int groupOrder = 0;
  static constexpr ptrdiff_t perBlock = factorsAtOnce;
  using D = Groups<width>::D;
  const float* factors;

  template <class K>
  HWY_INLINE Groups<width>::Numbers power(int n, ptrdiff_t j, K) const {
    const float* const at = factors + ptrdiff_t{2} * (n - 1) * factorsAtOnce + j;
    return {hn::Set(D(), at[0]), hn::Set(D(), at[factorsAtOnce])};
  }
};

/// f(w, j, k) for the groups j of a quarter of level 2^order, and their vectors k; w.power(n, j, k) are their factors.
template <class How, class F>
HWY_INLINE void forFactors(const Roots& roots, int order, const F& f) {
  const ptrdiff_t quarter = ptrdiff_t{1} << (order - 2 - How::groupOrder);
  float own[factorBlock];
  for (ptrdiff_t j0 = 0; j0 < quarter; j0 += How::perBlock) {
    const How w{roots.block(order, j0 / How::perBlock, own)};
    const ptrdiff_t count = quarter < How::perBlock ? quarter : How::perBlock;
    for (ptrdiff_t j = 0; j < count; ++j) {
      unrolled<Groups<How::width>::vectors>([&](auto k) HWY_ATTR { f(How{w.factors}, j0 + j, j, k); });
    }
  }
}

/// The level 2^order of one transform by four: from load(group, k) to `data`.
template <class How, class Load>
HWY_INLINE void levelByFour(Groups<How::width> data, const Roots& roots, int order, const Load& load) {
  const ptrdiff_t quarter = ptrdiff_t{1} << (order - 2 - How::groupOrder);
  forFactors<How>(roots, order, [&](How w, ptrdiff_t j, ptrdiff_t within, auto k) HWY_ATTR {
    auto a = load(j, k), b = load(j + quarter, k), c = load(j + 2 * quarter, k), d = load(j + 3 * quarter, k);
    butterfly(a, b, c, d);
    data.store(j, k, a);
    data.store(j + quarter, k, b * w.power(2, within, k));
    data.store(j + 2 * quarter, k, c * w.power(1, within, k));
    data.store(j + 3 * quarter, k, d * w.power(3, within, k));
  });
}

/// The same by two.
template <class How, class Load>
HWY_INLINE void levelByTwo(Groups<How::width> data, const Roots& roots, int order, const Load& load) {
  const ptrdiff_t quarter = ptrdiff_t{1} << (order - 2 - How::groupOrder);
  forFactors<How>(roots, order, [&](How w, ptrdiff_t j, ptrdiff_t within, auto k) HWY_ATTR {
    const auto a = load(j, k), b = load(j + quarter, k), c = load(j + 2 * quarter, k), d = load(j + 3 * quarter, k);
    const auto factor = w.power(1, within, k);
    const auto later = (b - d) * factor;  // its factor is -i times that of a
    data.store(j, k, a + c);
    data.store(j + quarter, k, b + d);
    data.store(j + 2 * quarter, k, (a - c) * factor);
    data.store(j + 3 * quarter, k, {later.im, hn::Neg(later.re)});
  });
}

/// Longer transforms do their quarters one after the other, so that these stay in the first cache.
inline constexpr ptrdiff_t groupsInCache = 256;

/// The levels 2^order, 2^(order - 2), ... down to above 2^end, in place.
template <class How>
HWY_NOINLINE HWY_FLATTEN void levelsByFour(Groups<How::width> data, const Roots& roots, int order, int end) {
  if (order <= end) return;
  const ptrdiff_t groups = ptrdiff_t{1} << (order - How::groupOrder);
  const auto level = [&](Groups<How::width> own, int levelOrder) HWY_ATTR {
    levelByFour<How>(own, roots, levelOrder, [&](ptrdiff_t group, auto k) HWY_ATTR { return own.load(group, k); });
  };
  if (groups > groupsInCache) {
    level(data, order);
    for (int i = 0; i < 4; ++i) levelsByFour<How>(data.from(i * groups / 4), roots, order - 2, end);
    return;
  }
  for (int own = order; own > end; own -= 2) {
    for (int i = 0; i < 1 << (order - own); ++i) level(data.from(groups * i >> (order - own)), own);
  }
}

}  // namespace vemi::signal
