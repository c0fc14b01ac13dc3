// vemiDFTInitAlloc, vemiDFTFree, vemiDFTGetBufSize.
// Checks: null, size, flag, the size of the buffer, memory; for existing records null, tag.

#include "transform/dft_spec.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/checks.h"

namespace vemi::transform {
namespace {

using signal::workBytesOfComplexDFT;
using signal::workBytesOfRealDFT;

/// A buffer is as large as its longest stage asks for: real columns, blocks of complex ones, rows of all channels.
Vemi64s realBytes(VemiSize size) {
  const Vemi64s width = size.width, height = size.height;
  return std::max({16 * height + workBytesOfRealDFT(height), 64 * height + workBytesOfComplexDFT(height),
                   16 * width + workBytesOfRealDFT(width)}) +
         bufferSlack;
}

Vemi64s complexBytes(VemiSize size) {
  const Vemi64s height = size.height;
  return std::max(workBytesOfComplexDFT(size.width), 64 * height + workBytesOfComplexDFT(height)) + bufferSlack;
}

/// Room for an image and a row of four floats a pixel, beside what the float transform asks for.
Vemi64s integerBytes(VemiSize size) {
  const Vemi64s width = size.width, height = size.height;
  return limitedSum(realBytes(size) + bufferSlack + 16 * width, limitedProduct(16 * width, height));
}

template <class Spec>
VemiStatus recordOf(RecordPtr<Spec>& spec, int tag, VemiSize size, int flag, int hint, Vemi64s (*bytesOf)(VemiSize)) {
  if (size.width < 1 || size.height < 1) return vemiErrSize;
  if (const VemiStatus bad = signal::checkFFTFlag(flag)) return bad;
  const Vemi64s bytes = bytesOf(size);
  if (bytes > std::numeric_limits<int>::max()) return vemiErrMemAlloc;
  spec = makeRecord<Spec>(tag);
  if (spec == nullptr) return vemiErrMemAlloc;
  spec->width = size.width;
  spec->height = size.height;
  spec->hint = hint;
  spec->bufSize = static_cast<int>(bytes);
  return vemiOk;
}

VemiStatus initReal(VemiDFTSpec_R_32f** ppSpec, VemiSize size, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  RecordPtr<VemiDFTSpec_R_32f> spec;
  if (const VemiStatus bad = recordOf(spec, realDFTTag, size, flag, hint, realBytes)) return bad;
  if (const VemiStatus bad = sigDFTInitAlloc_R_32f(spec->realSpecX, size.width, flag, hint)) return bad;
  if (size.width != size.height) {
    if (const VemiStatus bad = sigDFTInitAlloc_R_32f(spec->realSpecY, size.height, flag, hint)) return bad;
  }
  if (const VemiStatus bad = sigDFTInitAlloc_C_32fc(spec->complexSpecY, size.height, flag, hint)) return bad;
  return handOver(std::move(spec), ppSpec);
}

VemiStatus initComplex(VemiDFTSpec_C_32fc** ppSpec, VemiSize size, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  RecordPtr<VemiDFTSpec_C_32fc> spec;
  if (const VemiStatus bad = recordOf(spec, complexDFTTag, size, flag, hint, complexBytes)) return bad;
  if (const VemiStatus bad = sigDFTInitAlloc_C_32fc(spec->complexSpecX, size.width, flag, hint)) return bad;
  if (size.width != size.height) {
    if (const VemiStatus bad = sigDFTInitAlloc_C_32fc(spec->complexSpecY, size.height, flag, hint)) return bad;
  }
  return handOver(std::move(spec), ppSpec);
}

VemiStatus initInteger(VemiDFTSpec_R_32s** ppSpec, VemiSize size, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  RecordPtr<VemiDFTSpec_R_32s> spec;
  if (const VemiStatus bad = recordOf(spec, integerDFTTag, size, flag, hint, integerBytes)) return bad;
  VemiDFTSpec_R_32f* floats = nullptr;
  if (const VemiStatus bad = initReal(&floats, size, flag, hint)) return bad;
  spec->floats.reset(floats);
  return handOver(std::move(spec), ppSpec);
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VemiStatus vemiDFTInitAlloc_R_32f(VemiDFTSpec_R_32f** ppSpec, VemiSize roiSize, int flag, vemiHint hint) {
  return initReal(ppSpec, roiSize, flag, hint);
}
VemiStatus vemiDFTInitAlloc_R_32s(VemiDFTSpec_R_32s** ppSpec, VemiSize roiSize, int flag, vemiHint hint) {
  return initInteger(ppSpec, roiSize, flag, hint);
}
VemiStatus vemiDFTInitAlloc_C_32fc(VemiDFTSpec_C_32fc** ppSpec, VemiSize roiSize, int flag, vemiHint hint) {
  return initComplex(ppSpec, roiSize, flag, hint);
}

VemiStatus vemiDFTFree_R_32f(VemiDFTSpec_R_32f* pSpec) { return freeRecord(pSpec, realDFTTag); }
VemiStatus vemiDFTFree_R_32s(VemiDFTSpec_R_32s* pSpec) { return freeRecord(pSpec, integerDFTTag); }
VemiStatus vemiDFTFree_C_32fc(VemiDFTSpec_C_32fc* pSpec) { return freeRecord(pSpec, complexDFTTag); }

VemiStatus vemiDFTGetBufSize_R_32f(const VemiDFTSpec_R_32f* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, realDFTTag, pBufSize);
}
VemiStatus vemiDFTGetBufSize_R_32s(const VemiDFTSpec_R_32s* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, integerDFTTag, pBufSize);
}
VemiStatus vemiDFTGetBufSize_C_32fc(const VemiDFTSpec_C_32fc* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, complexDFTTag, pBufSize);
}
