#include "signal/dct.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <numbers>
#include <type_traits>
#include <utility>

#include "signal/fft.h"

namespace vemi::signal {
namespace {

bool isPowerOfTwo(int length) { return std::has_single_bit(static_cast<unsigned>(length)); }

/// Of the power of two from 2 N - 1 on.
int chirpOrder(Vemi64s length) { return static_cast<int>(std::bit_width(static_cast<uint64_t>(2 * length - 2))); }

/// Where x(n) stands among v.
ptrdiff_t reorderedPlace(ptrdiff_t n, ptrdiff_t length) { return n % 2 == 0 ? n / 2 : length - 1 - n / 2; }

// Pairs of groups that are combined behind a forward Fourier transform, or ahead of an inverse one, where real and
// imaginary parts are changed over. The inverse is the forward combination transposed. Both are in double precision,
// so that their results are rounded once, which makes the errors of whole transforms a sixth to a fifth smaller.

template <class V, int parts>
struct WideNumbers {
  ComplexLanes<V> part[parts];
};

/// By the matrix (p, q; q, -p), which is symmetric.
template <class V>
HWY_INLINE ComplexLanes<V> turned(ComplexLanes<V> z, double factorP, double factorQ) {
  const hn::DFromV<V> d;
  const V p = hn::Set(d, factorP), q = hn::Set(d, factorQ);
  return {hn::Add(hn::Mul(z.re, p), hn::Mul(z.im, q)), hn::Sub(hn::Mul(z.re, q), hn::Mul(z.im, p))};
}

/// Of even length: Z(k) and Z(N/2 - k), and a = (X(k), X(N - k)), b = (X(N/2 - k), X(N/2 + k)). With E, O the sum of
/// Z(k) and conj Z(N/2 - k), and their difference times -i, 2 V(k) = E + exp(-2 pi i k / N) O, and 2 V(N/2 - k) is the
/// conjugate of the difference; with exp(-pi i k / 2N), that makes two factors. Four numbers: cos and sin of pi k / 2N
/// and of 5 pi k / 2N, divided by the root of 2 N.
inline constexpr int factorsOfEven = 4, factorsOfOdd = 2;

template <bool isForward, class V>
HWY_INLINE void combineEven(ComplexLanes<V>& a, ComplexLanes<V>& b, const double* factor) {
  using Numbers = ComplexLanes<V>;
  const auto byEighth = [](Numbers z) HWY_ATTR {
    const V half = hn::Set(hn::DFromV<V>(), std::numbers::sqrt2 / 2);
    return Numbers{hn::Mul(hn::Add(z.re, z.im), half), hn::Mul(hn::Sub(z.re, z.im), half)};
  };
  if constexpr (isForward) {
    const Numbers e = turned(Numbers{hn::Add(a.re, b.re), hn::Sub(a.im, b.im)}, factor[0], factor[1]);
    const Numbers o = turned(Numbers{hn::Add(a.im, b.im), hn::Sub(b.re, a.re)}, factor[2], factor[3]);
    a = e + o;
    b = byEighth(e - o);
  } else {
    b = byEighth(b);
    const Numbers e = turned(a + b, factor[0], factor[1]), o = turned(a - b, factor[2], factor[3]);
    a = {hn::Add(e.im, o.re), hn::Sub(e.re, o.im)};
    b = {hn::Sub(o.re, e.im), hn::Add(e.re, o.im)};
  }
}

/// Of odd length: Z(k) and Z(N - k), and the two lines' X(k) and X(N - k); inversely, the second line is the real part
/// of Z, which changes over. Two numbers: cos and sin of pi k / 2N, divided by the root of 2 N.
template <bool isForward, class V>
HWY_INLINE void combineOdd(ComplexLanes<V>& a, ComplexLanes<V>& b, const double* factor) {
  using Numbers = ComplexLanes<V>;
  const double p = factor[0], q = factor[1];
  if constexpr (isForward) {
    const Numbers first = turned(Numbers{hn::Add(a.re, b.re), hn::Sub(a.im, b.im)}, p, q);
    const Numbers second = turned(Numbers{hn::Add(a.im, b.im), hn::Sub(b.re, a.re)}, p, q);
    a = {first.re, second.re};
    b = {first.im, second.im};
  } else {
    const Numbers first = turned(Numbers{a.re, b.re}, p, q), second = turned(Numbers{a.im, b.im}, p, q);
    a = {hn::Add(first.re, second.im), hn::Sub(second.re, first.im)};
    b = {hn::Sub(first.re, second.im), hn::Add(second.re, first.im)};
  }
}

/// Frequency 0; with it stands N/2 where the length is even.
template <bool isForward, bool isEven, class V>
HWY_INLINE ComplexLanes<V> scaledFirst(ComplexLanes<V> z, double factor) {
  const V scale = hn::Set(hn::DFromV<V>(), factor);
  if constexpr (isEven) z = {hn::Add(z.re, z.im), hn::Sub(z.re, z.im)};
  z = {hn::Mul(z.re, scale), hn::Mul(z.im, scale)};
  return isForward || !isEven ? z : swapped(z);
}

/// load(k) and store(k, numbers) of all complex numbers, in one part or several.
template <bool isForward, bool isEven, class Load, class Store>
HWY_INLINE void combine(const SigDCTSpec& spec, const Load& load, const Store& store) {
  const auto forParts = [](auto& numbers, const auto& f)
                            HWY_ATTR { unrolled<static_cast<int>(std::extent_v<decltype(numbers.part)>)>(f); };
  auto first = load(0);
  const double scale = 1 / std::sqrt(static_cast<double>(spec.length));
  forParts(first, [&](auto i) HWY_ATTR { first.part[i] = scaledFirst<isForward, isEven>(first.part[i], scale); });
  store(0, first);
  const ptrdiff_t numbers = spec.numbers();
  const double* factor = spec.turns;
  for (ptrdiff_t k = 1; 2 * k <= numbers; ++k, factor += isEven ? factorsOfEven : factorsOfOdd) {
    auto a = load(k), b = load(numbers - k);
    forParts(a, [&](auto i) HWY_ATTR {
      isEven ? combineEven<isForward>(a.part[i], b.part[i], factor)
             : combineOdd<isForward>(a.part[i], b.part[i], factor);
    });
    store(k, a);
    store(numbers - k, b);
  }
}

/// A vector of real parts and the one of imaginary parts behind it, in parts of doubles.
using Wide = hn::CappedTag<double, 8>;
using Narrow = hn::Rebind<float, Wide>;
constexpr int wideLanes = static_cast<int>(hn::MaxLanes(Wide()));
using WideVectors = WideNumbers<hn::Vec<Wide>, ColumnGroups::N / wideLanes>;

HWY_INLINE WideVectors widened(const float* from) {
  WideVectors z;
  unrolled<ColumnGroups::N / wideLanes>([&](auto i) HWY_ATTR {
    const auto part = [&](const float* at)
                          HWY_ATTR { return hn::PromoteTo(Wide(), hn::LoadU(Narrow(), at + i * wideLanes)); };
    z.part[i] = {part(from), part(from + ColumnGroups::N)};
  });
  return z;
}

template <class V, int parts>
HWY_INLINE void storeNarrowed(const WideNumbers<V, parts>& z, float* to) {
  const auto store = [&](auto lower, auto upper, float* at) HWY_ATTR {
    const ColumnGroups::D d;
    if constexpr (parts == 1) {
      hn::StoreU(hn::DemoteTo(d, lower), d, at);
    } else {
      hn::StoreU(hn::Combine(d, hn::DemoteTo(Narrow(), upper), hn::DemoteTo(Narrow(), lower)), d, at);
    }
  };
  store(z.part[0].re, z.part[parts - 1].re, to);
  store(z.part[0].im, z.part[parts - 1].im, to + ColumnGroups::N);
}

template <bool isForward, bool isEven>
HWY_NOINLINE HWY_FLATTEN void transformed(const SigDCTSpec& spec, ColumnGroups data) {
  if (isForward) spec.lines.transform(data);
  // Of a spectrum the first half of all numbers are the real parts of the groups.
  const Vemi32s* const places = isForward ? spec.out : spec.in;
  unrolled<ColumnGroups::vectors>([&](auto lanes) HWY_ATTR {
    float* const first = data.at(0, lanes * ColumnGroups::N);
    combine<isForward, isEven>(
        spec, [&](ptrdiff_t k) HWY_ATTR { return widened(first + places[k]); },
        [&](ptrdiff_t k, const auto& z) HWY_ATTR { storeNarrowed(z, first + places[k]); });
  });
  if (!isForward) spec.lines.transform(data);
}

// ---- Long lines ----

/// Pairs times pairs.
HWY_NOINLINE HWY_FLATTEN void multiplyPairs(float* pairs, const float* factors, ptrdiff_t count) {
  const hn::CappedTag<float, 16> d;
  using V = hn::Vec<decltype(d)>;
  for (ptrdiff_t i = 0; i < 2 * count; i += ptrdiff_t{2} * static_cast<ptrdiff_t>(hn::MaxLanes(d))) {
    ComplexLanes<V> a, b;
    hn::LoadInterleaved2(d, pairs + i, a.re, a.im);
    hn::LoadInterleaved2(d, factors + i, b.re, b.im);
    a = a * b;
    hn::StoreInterleaved2(a.re, a.im, d, pairs + i);
  }
}

ptrdiff_t wholeBlocks(ptrdiff_t numbers) { return (numbers + 15) / 16 * 16; }

/// As n k = (n^2 + k^2 - (k - n)^2) / 2, the transform of any length is a convolution with c(n) = exp(-pi i n^2 / N),
/// whose conjugate's transform is the filter.
void complexLongLine(const SigDCTSpec& spec, float* work) {
  const ptrdiff_t numbers = spec.numbers();
  if (spec.chirp == nullptr) {
    return complexLine(true, work, work, spec.roots, std::countr_zero(static_cast<size_t>(numbers)), 1, pairs);
  }
  const int order = chirpOrder(numbers);
  const ptrdiff_t length = ptrdiff_t{1} << order;
  std::memset(work + 2 * numbers, 0, static_cast<size_t>(2 * (length - numbers)) * sizeof(float));
  multiplyPairs(work, spec.chirp, wholeBlocks(numbers));
  complexLine(true, work, work, spec.roots, order, 1, pairs);
  multiplyPairs(work, spec.filter, length);
  complexLine(false, work, work, spec.roots, order, 1, pairs);
  multiplyPairs(work, spec.chirp, wholeBlocks(numbers));
}

template <bool isForward, bool isEven>
HWY_NOINLINE void longLine(const SigDCTSpec& spec, float* line, float* second, float* work) {
  const hn::CappedTag<double, 1> d;
  using Number = WideNumbers<hn::Vec<decltype(d)>, 1>;
  const auto wide = [&](float value) HWY_ATTR { return hn::Set(d, value); };
  const auto narrow = [](auto v) HWY_ATTR { return static_cast<float>(hn::GetLane(v)); };
  const ptrdiff_t length = spec.length;
  const auto inWork = [&](ptrdiff_t n) -> float* {
    const ptrdiff_t place = reorderedPlace(n, length);
    return work + (!isEven ? 2 * place : isForward ? place : place ^ 1);
  };
  // Spectra stand in the lines.
  const auto upper = [&](ptrdiff_t k) { return isEven ? line + (k == 0 ? length / 2 : length - k) : second + k; };
  const auto fromLines = [&](ptrdiff_t k) { return Number{{{wide(line[k]), wide(*upper(k))}}}; };
  const auto toLines = [&](ptrdiff_t k, Number z) {
    line[k] = narrow(z.part[0].re);
    *upper(k) = narrow(z.part[0].im);
  };
  const auto fromWork = [&](ptrdiff_t k) { return Number{{{wide(work[2 * k]), wide(work[2 * k + 1])}}}; };
  const auto toWork = [&](ptrdiff_t k, Number z) {
    work[2 * k] = narrow(z.part[0].re);
    work[2 * k + 1] = narrow(z.part[0].im);
  };
  if (isForward) {
    for (ptrdiff_t n = 0; n < length; ++n) {
      *inWork(n) = line[n];
      if (!isEven) inWork(n)[1] = second[n];
    }
    complexLongLine(spec, work);
    combine<isForward, isEven>(spec, fromWork, toLines);
  } else {
    combine<isForward, isEven>(spec, fromLines, toWork);
    complexLongLine(spec, work);
    for (ptrdiff_t n = 0; n < length; ++n) {
      line[n] = *inWork(n);
      if (!isEven) second[n] = inWork(n)[1];
    }
  }
}

// ---- Tables ----

/// Lines are side by side where their groups fit the stack, or what a caller's buffer has for certain.
bool fitsSideBySide(int length, Vemi64s workBytes) {
  const Vemi64s numbers = length % 2 == 0 ? length / 2 : length, groups = groupsOf(numbers, methodOf(numbers));
  constexpr Vemi64s groupBytes = ColumnGroups{}.stride * static_cast<Vemi64s>(sizeof(float));
  return groups <= cosineGroupsOnStack ||
         groups * groupBytes + static_cast<Vemi64s>(laneAlignment) <= 16 * Vemi64s{length} + workBytes;
}

void setTurn(double* pair, Vemi64s n, Vemi64s length) {
  const Root root = rootOfLength(n % (4 * length), 4 * length);
  const double scale = 1 / std::sqrt(2 * static_cast<double>(length));
  pair[0] = root.re * scale;
  pair[1] = -root.im * scale;
}

void fillTurns(const SigDCTSpec& spec, double* turn) {
  for (Vemi64s k = 1; 2 * k <= spec.numbers(); ++k) {
    setTurn(turn, k, spec.length);
    if (spec.isEven()) setTurn(turn + 2, 5 * k, spec.length);
    turn += spec.isEven() ? factorsOfEven : factorsOfOdd;
  }
}

/// A forward transform's elements stand in the order of v, its spectrum as it comes out. An inverse one goes from a
/// spectrum in its own order to elements as they come out, of even length with real and imaginary parts changed over.
void fillPlaces(const SigDCTSpec& spec, Vemi32s* elements, Vemi32s* frequencies) {
  const ptrdiff_t length = spec.length;
  const ColumnGroups groups{nullptr};
  const auto slot = [&](ptrdiff_t group, bool isImaginary) {
    return static_cast<Vemi32s>(group * groups.stride + (isImaginary ? groups.N : 0));
  };
  const bool isForward = spec.isForward();
  for (ptrdiff_t n = 0; n < length; ++n) {
    const ptrdiff_t place = reorderedPlace(n, length), group = spec.isEven() ? place / 2 : place;
    const bool isImaginary = spec.isEven() && place % 2 != (isForward ? 0 : 1);
    elements[n] = slot(isForward ? group : spec.lines.place(group), isImaginary);
    const bool isUpper = spec.isEven() && 2 * n >= length;
    const ptrdiff_t k = !isUpper ? n : 2 * n == length ? 0 : length - n;
    frequencies[n] = slot(isForward ? spec.lines.place(k) : k, isUpper);
  }
}

void fillChirp(const SigDCTSpec& spec, float* chirp, float* filter) {
  const ptrdiff_t numbers = spec.numbers();
  const int order = chirpOrder(numbers);
  const ptrdiff_t length = ptrdiff_t{1} << order;
  std::memset(chirp, 0, static_cast<size_t>(2 * wholeBlocks(numbers)) * sizeof(float));
  std::memset(filter, 0, static_cast<size_t>(2 * length) * sizeof(float));
  for (ptrdiff_t n = 0; n < numbers; ++n) {
    const Root root = rootOfLength(Vemi64s{n} * n % (Vemi64s{2} * numbers), Vemi64s{2} * numbers);
    chirp[2 * n] = static_cast<float>(root.re);
    chirp[2 * n + 1] = static_cast<float>(root.im);
    for (const ptrdiff_t at : {n, (length - n) % length}) {
      filter[2 * at] = chirp[2 * n];
      filter[2 * at + 1] = -chirp[2 * n + 1];
    }
  }
  complexLine(true, filter, filter, spec.roots, order, std::ldexp(1.0f, -order), pairs);
}

VemiStatus makeTables(SigDCTSpec& spec) {
  const ptrdiff_t length = spec.length, numbers = spec.numbers();
  const bool isSideBySide = fitsSideBySide(spec.length, spec.workBytes);
  const bool byChirp = !isSideBySide && !isPowerOfTwo(spec.length);
  const int order = byChirp ? chirpOrder(numbers) : std::countr_zero(static_cast<size_t>(numbers));
  if (isSideBySide) {
    spec.lines = DFTLines(numbers);
    if (spec.lines.failed()) return vemiErrMemAlloc;
  } else {
    spec.roots = Roots(order);
    if (spec.roots.failed()) return vemiErrMemAlloc;
  }
  Pieces pieces;
  const auto turns = pieces.add<double>(Vemi64s{numbers / 2} * (spec.isEven() ? factorsOfEven : factorsOfOdd));
  const auto elements = pieces.add<Vemi32s>(isSideBySide ? length : 0);
  const auto frequencies = pieces.add<Vemi32s>(isSideBySide ? length : 0);
  const auto chirp = pieces.add<float>(byChirp ? 2 * wholeBlocks(numbers) : 0);
  const auto filter = pieces.add<float>(byChirp ? Vemi64s{2} << order : 0);
  spec.tables = Scratch(pieces);
  if (spec.tables.failed()) return vemiErrMemAlloc;
  fillTurns(spec, spec.tables[turns]);
  spec.turns = spec.tables[turns];
  if (isSideBySide) {
    fillPlaces(spec, spec.tables[elements], spec.tables[frequencies]);
    spec.in = spec.tables[spec.isForward() ? elements : frequencies];
    spec.out = spec.tables[spec.isForward() ? frequencies : elements];
  }
  if (byChirp) {
    fillChirp(spec, spec.tables[chirp], spec.tables[filter]);
    spec.chirp = spec.tables[chirp];
    spec.filter = spec.tables[filter];
  }
  return vemiOk;
}

bool isLongAndAccurate(int length, int hint) { return isPowerOfTwo(length) && length >= 513 && hint == 2; }

}  // namespace

Vemi64s workBytesOfDCT(int length, int hint) {
  const Vemi64s count = length;
  if (isPowerOfTwo(length) && length <= 8) return 0;
  if (isLongAndAccurate(length, hint)) {
    return workBytesOfRealFFT(std::countr_zero(static_cast<unsigned>(length)) + 1) + 8 * count + 16;
  }
  if (isPowerOfTwo(length) || length <= 100) return 4 * count + 16;
  const int order = chirpOrder(count);
  return (order > largestFFTOrder ? 0 : workBytesOfComplexFFT(order)) + (Vemi64s{8} << order) + 16;
}

VemiStatus sigDCTInitAlloc_32f(RecordPtr<SigDCTSpec>& spec, int tag, int length, int hint) {
  if (length < 1) return vemiErrSize;
  auto made = makeRecord<SigDCTSpec>(tag);
  if (made == nullptr) return vemiErrMemAlloc;
  made->length = length;
  made->hint = hint;
  made->workBytes = static_cast<int>(workBytesOfDCT(length, hint));
  const double root = std::sqrt(static_cast<double>(length));
  made->scaleDc = static_cast<float>(1 / root);
  made->scaleAc = static_cast<float>(1.4142135381698608 / root);
  made->isPowerOfTwo = isPowerOfTwo(length);
  made->isSmall = made->isPowerOfTwo && length <= 8;
  made->useRealFft = isLongAndAccurate(length, hint);
  made->useChirp = !made->isPowerOfTwo && length > 100;
  made->chirpLength = made->useChirp ? 1 << chirpOrder(length) : 0;
  if (const VemiStatus bad = makeTables(*made)) return bad;
  spec = std::move(made);
  return vemiOk;
}

void transformCosineLines(const SigDCTSpec& spec, ColumnGroups data) {
  if (spec.isForward())
    return spec.isEven() ? transformed<true, true>(spec, data) : transformed<true, false>(spec, data);
  return spec.isEven() ? transformed<false, true>(spec, data) : transformed<false, false>(spec, data);
}

void transformLongCosineLine(const SigDCTSpec& spec, float* line, float* second, float* work) {
  const auto forward = spec.isEven() ? longLine<true, true> : longLine<true, false>;
  const auto inverse = spec.isEven() ? longLine<false, true> : longLine<false, false>;
  (spec.isForward() ? forward : inverse)(spec, line, second, work);
}

}  // namespace vemi::signal
