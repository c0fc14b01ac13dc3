// Cosine transforms of lines of any length N, orthonormal: with c(0) = 1 / sqrt(N) and c(k) = sqrt(2 / N) for others,
//
//   forward   X(k) = c(k) * sum of x(n) cos(pi (2n + 1) k / 2N), n = 0 to N - 1
//   inverse   x(n) = sum of c(k) X(k) cos(pi (2n + 1) k / 2N), k = 0 to N - 1
//
// They are Fourier transforms of the numbers in another order: v(0), v(1), ... = x(0), x(2), x(4), ..., ending with
// ..., x(5), x(3), x(1). With V = transform(v), X(k) is c(k) times the real part of exp(-pi i k / 2N) V(k). A line of
// even length is a complex one of half as many numbers, v(2n) + i v(2n + 1), and two lines of odd length are one.
#pragma once

#include "core/record.h"
#include "signal/dft_lines.h"
#include "signal/roots.h"
#include "vemi/types.h"

namespace vemi::signal {

inline constexpr int forwardCosineTag = 21, inverseCosineTag = 22;

struct SigDCTSpec {
  int tag, length, hint, workBytes;
  float scaleDc, scaleAc;
  int isSmall, isPowerOfTwo, useRealFft, useChirp, chirpLength;  // how much memory is asked for follows these

  DFTLines lines;  // of lines side by side
  Roots roots;     // of a long line, or of its convolution with a chirp
  Scratch tables;
  const double* turns;      // factors of pairs of frequencies
  const Vemi32s *in, *out;  // of lines side by side: where element n goes to, and where result k stands
  const float *chirp, *filter;

  bool isForward() const { return tag == forwardCosineTag; }
  bool isEven() const { return length % 2 == 0; }
  /// Complex numbers of one line, or of two.
  ptrdiff_t numbers() const { return isEven() ? length / 2 : length; }
  /// Others go line by line.
  bool isSideBySide() const { return in != nullptr; }
};

/// Bytes that a line works in beside its own four times.
Vemi64s workBytesOfDCT(int length, int hint);

VemiStatus sigDCTInitAlloc_32f(RecordPtr<SigDCTSpec>& spec, int tag, int length, int hint);

/// As many groups may be asked of the stack.
inline constexpr ptrdiff_t cosineGroupsOnStack = 2048;

/// 8 lines side by side, of odd length 16, in place: element n at data.first + spec.in[n], result k at spec.out[k]. Of
/// lines of odd length the second eight stand ColumnGroups::N floats behind the first.
void transformCosineLines(const SigDCTSpec& spec, ColumnGroups data);

/// One line in place, of odd length a second one too, with `work` for workBytes.
void transformLongCosineLine(const SigDCTSpec& spec, float* line, float* second, float* work);

}  // namespace vemi::signal
