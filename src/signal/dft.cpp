#include "signal/dft.h"

#include <bit>
#include <cmath>
#include <utility>

namespace vemi::signal {
namespace {

constexpr int lineTag = 13;

int orderOf(Vemi64s powerOfTwo) { return std::countr_zero(static_cast<uint64_t>(powerOfTwo)); }

/// Groups of 64 bytes, from a whole number of such bytes on.
Vemi64s bytesOfGroups(Vemi64s length, DFTMethod method) {
  const Vemi64s groups = groupsOf(length, method);
  return (method == DFTMethod::chirp ? 80 : 64) * groups + 64;
}

VemiStatus initAlloc(RecordPtr<SigDFTSpec>& spec, int length, int flag, int hint, bool isReal) {
  if (length < 1) return vemiErrSize;
  if (const VemiStatus bad = checkFFTFlag(flag)) return bad;
  auto made = makeRecord<SigDFTSpec>(lineTag);
  if (made == nullptr) return vemiErrMemAlloc;
  made->length = length;
  made->fwdScaled = flag == 1 || flag == 4;
  made->invScaled = flag == 2 || flag == 4;
  made->scale = flag == 8 ? 0 : static_cast<float>(dftScale(flag, flag != 2, length));
  made->hint = hint;
  made->workBytes = static_cast<int>(isReal ? workBytesOfRealDFT(length) : workBytesOfComplexDFT(length));
  made->lines = DFTLines(length, isReal ? longestDirectReal : longestDirect, DFTEntry::permuted);
  if (made->lines.failed()) return vemiErrMemAlloc;
  if (isReal && methodOf(length) == DFTMethod::powerOfTwo) {
    if (const VemiStatus bad = sigFFTInitAlloc_R_32f(made->realFFT, orderOf(length), flag, hint)) return bad;
  }
  spec = std::move(made);
  return vemiOk;
}

}  // namespace

double dftScale(int flag, bool isForward, double count) {
  return flag == 4 ? 1 / std::sqrt(count) : flag == (isForward ? 1 : 2) ? 1 / count : 1;
}

Vemi64s workBytesOfComplexDFT(Vemi64s length) {
  const DFTMethod method = methodOf(length);
  switch (method) {
    case DFTMethod::few:
      return 0;
    case DFTMethod::powerOfTwo:
      return workBytesOfComplexFFT(orderOf(length));
    case DFTMethod::direct:
      return 8 * length + 16;
    default:
      return bytesOfGroups(length, method);
  }
}

/// Even lines are complex ones of half as many numbers.
Vemi64s workBytesOfRealDFT(Vemi64s length) {
  const DFTMethod method = methodOf(length, longestDirectReal);
  switch (method) {
    case DFTMethod::few:
      return 0;
    case DFTMethod::powerOfTwo:
      return workBytesOfRealFFT(orderOf(length));
    case DFTMethod::direct:
      return 4 * length + 16;
    default:
      return length % 2 == 0 && !isFactorable(length / 2) && length / 2 <= longestDirect
                 ? 4 * length + 16
                 : bytesOfGroups(length, method);
  }
}

VemiStatus sigDFTInitAlloc_C_32fc(RecordPtr<SigDFTSpec>& spec, int length, int flag, int hint) {
  return initAlloc(spec, length, flag, hint, false);
}
VemiStatus sigDFTInitAlloc_R_32f(RecordPtr<SigDFTSpec>& spec, int length, int flag, int hint) {
  return initAlloc(spec, length, flag, hint, true);
}

}  // namespace vemi::signal
