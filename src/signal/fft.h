// Fast Fourier transforms of one line, of 2^order numbers, and the records that they need. A transform of order m takes
//
//   complex   X(k) = sum of x(n) exp(-2 pi i n k / N), n = 0 to N - 1; the inverse has the other sign
//   real      the same of real numbers: X(0) to X(N / 2), packed as Re X(0), Re X(1), Im X(1), ..., Re X(N / 2)
//
// times the scale of its direction. Lines lie at multiples of a float, source and destination may be the same line.
// They need no memory but their destination's: `pBuffer` may be null, and is not looked at.
#pragma once

#include "core/record.h"
#include "signal/roots.h"
#include "vemi/types.h"

namespace vemi::signal {

/// What both kinds of record hold.
struct FFTLine {
  int tag, order, fwdScaled, invScaled;
  float scale;
  int hint, workBytes;  // that a caller's buffer may be asked for
  Roots roots;          // of levels up to 2^order

  float forwardScale() const { return fwdScaled != 0 ? scale : 1; }
  float inverseScale() const { return invScaled != 0 ? scale : 1; }
};

struct SigFFTSpec_C : FFTLine {};
struct SigFFTSpec_R : FFTLine {};

inline constexpr int largestFFTOrder = 30;

/// 1, 2, 4 or 8: which direction is divided by N, both by its root, or none.
VemiStatus checkFFTFlag(int flag);

/// What a flag makes of one direction for N = 2^order, of which both extents of an image make one.
double fftScale(int flag, bool isForward, int order);

int workBytesOfComplexFFT(int order);
int workBytesOfRealFFT(int order);

VemiStatus sigFFTInitAlloc_C_32fc(RecordPtr<SigFFTSpec_C>& spec, int order, int flag, int hint);
VemiStatus sigFFTInitAlloc_R_32f(RecordPtr<SigFFTSpec_R>& spec, int order, int flag, int hint);
VemiStatus sigFFTGetBufSize_C_32fc(const SigFFTSpec_C* pSpec, int* pSize);
VemiStatus sigFFTGetBufSize_R_32f(const SigFFTSpec_R* pSpec, int* pSize);

VemiStatus sigFFTFwd_CToC_32fc(const Vemi32fc* pSrc, Vemi32fc* pDst, const SigFFTSpec_C* pSpec, Vemi8u* pBuffer);
VemiStatus sigFFTInv_CToC_32fc(const Vemi32fc* pSrc, Vemi32fc* pDst, const SigFFTSpec_C* pSpec, Vemi8u* pBuffer);
VemiStatus sigFFTFwd_RToPack_32f(const Vemi32f* pSrc, Vemi32f* pDst, const SigFFTSpec_R* pSpec, Vemi8u* pBuffer);
VemiStatus sigFFTInv_PackToR_32f(const Vemi32f* pSrc, Vemi32f* pDst, const SigFFTSpec_R* pSpec, Vemi8u* pBuffer);

/// How complex results follow each other: re, im, re, im, ..., or 8 real parts, 8 imaginary parts, and so on, where a
/// line has so many.
enum ResultOrder { pairs, eights };

/// The complex transform of a line of pairs wherever it lies, with the factors of levels up to 2^order.
void complexLine(bool isForward, const float* src, float* dst, const Roots& roots, int order, float scale,
                 ResultOrder results);

}  // namespace vemi::signal
