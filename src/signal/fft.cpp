// A complex line of 2^8 numbers and more goes through fft_line.h, a shorter one through lanes that it has for itself. A
// real line of N numbers is a complex one of N / 2: z(n) = x(2n) + i x(2n + 1), from whose transform Z that of x
// follows: X(k) = E + w^k O and X(N/2 - k) = conj(E - w^k O), with 2 E = Z(k) + conj Z(N/2 - k), 2 i O = Z(k) - conj
// Z(N/2 - k).

#include "signal/fft.h"

#include <cmath>
#include <cstring>
#include <utility>

#include "signal/fft_columns.h"
#include "signal/fft_line.h"

namespace vemi::signal {
namespace {

constexpr int complexTag = 4, realTag = 6;

/// A direction's numbers with real and imaginary parts changed over, or not.
template <bool isForward, class V>
HWY_INLINE ComplexLanes<V> turnedTo(ComplexLanes<V> z) {
  return isForward ? z : swapped(z);
}

template <bool isForward, ResultOrder results>
HWY_NOINLINE HWY_FLATTEN void longLine(const float* src, float* dst, const Roots& roots, int order, float scale) {
  const LineGroups line{dst};
  constexpr ptrdiff_t N = LineGroups::N;
  const LineGroups::D d;
  lineLevels(line, roots, order, [&](ptrdiff_t group, auto k) HWY_ATTR {
    LineGroups::Numbers z;
    hn::LoadInterleaved2(d, src + 2 * (16 * group + k * N), z.re, z.im);
    return turnedTo<isForward>(z);
  });
  const auto factor = hn::Set(d, scale);
  endLineInPlace(line, order, [&](ptrdiff_t group, auto k, LineGroups::Numbers z) HWY_ATTR {
    z = turnedTo<isForward>(z);
    z = {hn::Mul(z.re, factor), hn::Mul(z.im, factor)};
    float* const to = dst + 2 * (16 * group + k * N);
    if constexpr (results == pairs) {
      hn::StoreInterleaved2(z.re, z.im, d, to);
    } else if constexpr (N <= 8) {
      float* const eight = dst + 2 * (16 * group + k * N / 8 * 8) + k * N % 8;
      hn::StoreU(z.re, d, eight);
      hn::StoreU(z.im, d, eight + 8);
    } else {
      hn::StoreU(hn::ConcatLowerLower(d, z.im, z.re), d, to);
      hn::StoreU(hn::ConcatUpperUpper(d, z.im, z.re), d, to + N);
    }
  });
}

template <bool isForward>
HWY_NOINLINE void shortLine(const float* src, float* dst, const Roots& roots, int order, float scale) {
  alignas(laneAlignment) float memory[ColumnGroups{}.stride << (shortestLineOrder - 1)];
  const ColumnGroups data{memory};
  std::memset(memory, 0, (sizeof(float) * static_cast<size_t>(data.stride)) << order);
  const ptrdiff_t re = isForward ? 0 : data.N, im = isForward ? data.N : 0;
  for (ptrdiff_t n = 0; n < ptrdiff_t{1} << order; ++n) {
    std::memcpy(data.at(n, 0) + re, src + 2 * n, sizeof(float));
    std::memcpy(data.at(n, 0) + im, src + 2 * n + 1, sizeof(float));
  }
  transformColumns<PreciseTransform>(
      data, roots, order, [&](ptrdiff_t group, auto k) HWY_ATTR { return data.load(group, k); },
      [&](ptrdiff_t place, ptrdiff_t frequency, auto k, ColumnGroups::Numbers z) HWY_ATTR {
        if (k > 0) return;
        data.store(place, 0, z);
        const float number[2] = {data.at(place, 0)[re] * scale, data.at(place, 0)[im] * scale};
        std::memcpy(dst + 2 * frequency, number, sizeof number);
      });
}

struct Number {
  float re, im;
};

/// f(k, w) for k = 1 to N / 4, w = exp(-2 pi i k / N), N = 2^order from 4 on.
template <class F>
void forSplit(const Roots& roots, int order, const F& f) {
  const ptrdiff_t quarter = ptrdiff_t{1} << (order - 2);
  if (order >= Roots::firstOrder) {
    float own[factorBlock];
    for (ptrdiff_t k0 = 0; k0 < quarter; k0 += factorsAtOnce) {
      const float* const w = roots.block(order, k0 / factorsAtOnce, own);
      for (ptrdiff_t k = k0 == 0 ? 1 : 0; k < factorsAtOnce && k0 + k < quarter; ++k) {
        f(k0 + k, Number{w[k], w[k + factorsAtOnce]});
      }
    }
  }
  f(quarter, Number{0, -1});
}

/// From the transform of the complex line to that of the real one, packed, in place.
void split(float* line, const Roots& roots, int order) {
  const ptrdiff_t half = ptrdiff_t{1} << (order - 1);
  const float first = line[0] + line[1], last = line[0] - line[1];
  if (order >= 2) {
    forSplit(roots, order, [&](ptrdiff_t k, Number w) {
      float* const a = line + 2 * k;
      float* const b = line + 2 * (half - k);
      const Number e = {(a[0] + b[0]) * 0.5f, (a[1] - b[1]) * 0.5f}, d = {(a[0] - b[0]) * 0.5f, (a[1] + b[1]) * 0.5f};
      const Number turned = {w.re * d.im + w.im * d.re, w.im * d.im - w.re * d.re};  // w O, O = -i d
      b[0] = e.re - turned.re;
      b[1] = turned.im - e.im;
      a[0] = e.re + turned.re;
      a[1] = e.im + turned.im;
    });
    std::memmove(line + 1, line + 2, static_cast<size_t>(2 * half - 2) * sizeof(float));
  }
  line[0] = first;
  line[2 * half - 1] = last;
}

/// The opposite, times 2: Z(k) = S + i conj(w^k) D, S and D the sum and the difference of X(k) and conj X(N/2 - k).
void join(float* line, const Roots& roots, int order) {
  const ptrdiff_t half = ptrdiff_t{1} << (order - 1);
  const float first = line[0], last = line[2 * half - 1];
  if (order >= 2) {
    std::memmove(line + 2, line + 1, static_cast<size_t>(2 * half - 2) * sizeof(float));
    forSplit(roots, order, [&](ptrdiff_t k, Number w) {
      float* const a = line + 2 * k;
      float* const b = line + 2 * (half - k);
      const Number s = {a[0] + b[0], a[1] - b[1]}, d = {a[0] - b[0], a[1] + b[1]};
      const Number turned = {w.im * d.re - w.re * d.im, w.re * d.re + w.im * d.im};
      b[0] = s.re - turned.re;
      b[1] = turned.im - s.im;
      a[0] = s.re + turned.re;
      a[1] = s.im + turned.im;
    });
  }
  line[0] = first + last;
  line[1] = first - last;
}

/// As many bytes as transforms of the longest lines could ask for, by their order from 13 on: those of a tile.
constexpr int tileOrder[] = {5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10, 10, 10, 10};

template <class R>
VemiStatus initAlloc(RecordPtr<R>& spec, int tag, int order, int flag, int hint, int workBytes) {
  if (order < 0 || order > largestFFTOrder) return vemiErrFftOrder;
  if (const VemiStatus bad = checkFFTFlag(flag)) return bad;
  auto made = makeRecord<R>(tag);
  if (made == nullptr) return vemiErrMemAlloc;
  made->order = order;
  made->fwdScaled = flag == 1 || flag == 4;
  made->invScaled = flag == 2 || flag == 4;
  made->scale = flag == 8 ? 0 : static_cast<float>(fftScale(flag, flag != 2, order));
  made->hint = hint;
  made->workBytes = workBytes;
  made->roots = Roots(order);
  if (made->roots.failed()) return vemiErrMemAlloc;
  spec = std::move(made);
  return vemiOk;
}

template <class Spec>
VemiStatus getBufSize(const Spec* spec, int tag, int* size) {
  if (size == nullptr) return vemiErrNullPtr;
  if (const VemiStatus bad = checkRecord(spec, tag)) return bad;
  *size = spec->workBytes;
  return vemiOk;
}

VemiStatus complexTransform(bool isForward, const Vemi32fc* src, Vemi32fc* dst, const SigFFTSpec_C* spec) {
  if (const VemiStatus bad = checkRecord(spec, complexTag)) return bad;
  if (src == nullptr || dst == nullptr) return vemiErrNullPtr;
  complexLine(isForward, &src->re, &dst->re, spec->roots, spec->order,
              isForward ? spec->forwardScale() : spec->inverseScale(), pairs);
  return vemiOk;
}

VemiStatus checkReal(const Vemi32f* src, const Vemi32f* dst, const SigFFTSpec_R* spec) {
  if (const VemiStatus bad = checkRecord(spec, realTag)) return bad;
  return src == nullptr || dst == nullptr ? vemiErrNullPtr : vemiOk;
}

}  // namespace

VemiStatus checkFFTFlag(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8 ? vemiOk : vemiErrFftFlag; }

double fftScale(int flag, bool isForward, int order) {
  if (flag == (isForward ? 1 : 2)) return std::ldexp(1.0, -order);
  return flag == 4 ? 1 / std::sqrt(std::ldexp(1.0, order)) : 1;
}

int workBytesOfComplexFFT(int order) {
  if (order < 4) return 0;
  if (order < 11) return (8 << order) + 16;
  return (order < 13 ? 0 : 32 << tileOrder[order - 13]) + 8208;
}

int workBytesOfRealFFT(int order) { return order < 4 ? 0 : workBytesOfComplexFFT(order - 1); }

VemiStatus sigFFTInitAlloc_C_32fc(RecordPtr<SigFFTSpec_C>& spec, int order, int flag, int hint) {
  return initAlloc(spec, complexTag, order, flag, hint, workBytesOfComplexFFT(order));
}
VemiStatus sigFFTInitAlloc_R_32f(RecordPtr<SigFFTSpec_R>& spec, int order, int flag, int hint) {
  return initAlloc(spec, realTag, order, flag, hint, workBytesOfRealFFT(order));
}

VemiStatus sigFFTGetBufSize_C_32fc(const SigFFTSpec_C* pSpec, int* pSize) {
  return getBufSize(pSpec, complexTag, pSize);
}
VemiStatus sigFFTGetBufSize_R_32f(const SigFFTSpec_R* pSpec, int* pSize) { return getBufSize(pSpec, realTag, pSize); }

void complexLine(bool isForward, const float* src, float* dst, const Roots& roots, int order, float scale,
                 ResultOrder results) {
  const auto inPairs = isForward ? longLine<true, pairs> : longLine<false, pairs>;
  const auto inEights = isForward ? longLine<true, eights> : longLine<false, eights>;
  const auto ofFew = isForward ? shortLine<true> : shortLine<false>;
  const auto run = order < shortestLineOrder ? ofFew : results == pairs ? inPairs : inEights;
  run(src, dst, roots, order, scale);
}

VemiStatus sigFFTFwd_CToC_32fc(const Vemi32fc* pSrc, Vemi32fc* pDst, const SigFFTSpec_C* pSpec, Vemi8u* /*pBuffer*/) {
  return complexTransform(true, pSrc, pDst, pSpec);
}
VemiStatus sigFFTInv_CToC_32fc(const Vemi32fc* pSrc, Vemi32fc* pDst, const SigFFTSpec_C* pSpec, Vemi8u* /*pBuffer*/) {
  return complexTransform(false, pSrc, pDst, pSpec);
}

VemiStatus sigFFTFwd_RToPack_32f(const Vemi32f* pSrc, Vemi32f* pDst, const SigFFTSpec_R* pSpec, Vemi8u* /*pBuffer*/) {
  if (const VemiStatus bad = checkReal(pSrc, pDst, pSpec)) return bad;
  const float scale = pSpec->forwardScale();
  if (pSpec->order == 0) {
    *pDst = *pSrc * scale;
    return vemiOk;
  }
  complexLine(true, pSrc, pDst, pSpec->roots, pSpec->order - 1, scale, pairs);
  split(pDst, pSpec->roots, pSpec->order);
  return vemiOk;
}

VemiStatus sigFFTInv_PackToR_32f(const Vemi32f* pSrc, Vemi32f* pDst, const SigFFTSpec_R* pSpec, Vemi8u* /*pBuffer*/) {
  if (const VemiStatus bad = checkReal(pSrc, pDst, pSpec)) return bad;
  const float scale = pSpec->inverseScale();
  if (pSpec->order == 0) {
    *pDst = *pSrc * scale;
    return vemiOk;
  }
  if (pDst != pSrc) std::memcpy(pDst, pSrc, sizeof(float) << pSpec->order);
  join(pDst, pSpec->roots, pSpec->order);
  complexLine(false, pDst, pDst, pSpec->roots, pSpec->order - 1, scale, pairs);
  return vemiOk;
}

}  // namespace vemi::signal
