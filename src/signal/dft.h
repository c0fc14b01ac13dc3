// Discrete Fourier transforms of one line of any length: the records that they need. Real lines are packed as in
// signal/fft.h; of odd lengths the last two numbers are Re X((N - 1) / 2), Im X((N - 1) / 2).
#pragma once

#include "core/record.h"
#include "signal/dft_lines.h"
#include "signal/fft.h"
#include "vemi/types.h"

namespace vemi::signal {

struct SigDFTSpec {
  int tag, length, fwdScaled, invScaled;
  float scale;
  int hint, workBytes;  // that a caller's buffer may be asked for
  DFTLines lines;
  RecordPtr<SigFFTSpec_R> realFFT;  // of real lines of powers of two above 4
};

/// In these bytes a line has the groups that its transform works in, where the length decides; where 16 bytes a number
/// and 16 more were asked for beside them, with as much as 8 bytes for each row of an image of any height.
Vemi64s workBytesOfComplexDFT(Vemi64s length);
Vemi64s workBytesOfRealDFT(Vemi64s length);

/// What a flag makes of one direction for N numbers.
double dftScale(int flag, bool isForward, double count);

VemiStatus sigDFTInitAlloc_C_32fc(RecordPtr<SigDFTSpec>& spec, int length, int flag, int hint);
VemiStatus sigDFTInitAlloc_R_32f(RecordPtr<SigDFTSpec>& spec, int length, int flag, int hint);

/// Shorter transforms work in memory of the stack.
inline constexpr ptrdiff_t groupsOnStack = 300;

/// The groups of a transform: those on the stack, or a buffer's.
struct GroupMemory {
  alignas(laneAlignment) float onStack[ColumnGroups{}.stride * groupsOnStack];

  ColumnGroups of(const DFTLines& lines, float* buffer) { return {lines.groups() <= groupsOnStack ? onStack : buffer}; }
};

/// A line by itself, with `buffer` for what does not fit the stack: from load(n), a Number, to store(k, Number).
struct LineNumber {
  float re, im;
};
template <class Load, class Store>
HWY_NOINLINE void transformLine(const DFTLines& lines, float* buffer, const Load& load, const Store& store) {
  GroupMemory memory;
  const ColumnGroups data = memory.of(lines, buffer);
  const ptrdiff_t length = lines.length();
  std::fill_n(data.first, data.stride * length, 0.0f);
  for (ptrdiff_t n = 0; n < length; ++n) {
    const LineNumber z = load(n);
    float* const at = data.at(lines.entry(n), 0);
    at[0] = z.re;
    at[ColumnGroups::N] = z.im;
  }
  lines.transform(data);
  for (ptrdiff_t k = 0; k < length; ++k) {
    const float* const at = data.at(lines.place(k), 0);
    store(k, LineNumber{at[0], at[ColumnGroups::N]});
  }
}

}  // namespace vemi::signal
