// vemiFFTInitAlloc, vemiFFTFree, vemiFFTGetBufSize.
// Checks: null, order, flag, the size of the buffer, memory; for existing records null, tag.

#include "transform/fft_spec.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/checks.h"
#include "core/lanes.h"

namespace vemi::transform {
namespace {

using signal::workBytesOfComplexFFT;
using signal::workBytesOfRealFFT;

/// A buffer is as large as its longest stage asks for: real columns, blocks of complex ones, rows of all channels.
Vemi64s realBytes(int orderX, int orderY) {
  const Vemi64s width = Vemi64s{1} << orderX, height = Vemi64s{1} << orderY;
  return std::max({16 * height + workBytesOfRealFFT(orderY), 64 * height + workBytesOfComplexFFT(orderY),
                   16 * width + workBytesOfRealFFT(orderX)}) +
         bufferSlack;
}

Vemi64s complexBytes(int orderX, int orderY) {
  const Vemi64s height = Vemi64s{1} << orderY;
  return std::max<Vemi64s>(workBytesOfComplexFFT(orderX), 64 * height + workBytesOfComplexFFT(orderY)) + bufferSlack;
}

/// Room for an image and a row of four floats a pixel, beside what the float transform asks for.
Vemi64s integerBytes(int orderX, int orderY) {
  const Vemi64s width = Vemi64s{1} << orderX, height = Vemi64s{1} << orderY;
  return limitedSum(realBytes(orderX, orderY) + bufferSlack + 16 * width, limitedProduct(16 * width, height));
}

VemiStatus checkOrders(int orderX, int orderY, int flag, Vemi64s (*bytes)(int, int)) {
  const auto isWrong = [](int order) { return order < 0 || order > signal::largestFFTOrder; };
  if (isWrong(orderX) || isWrong(orderY)) return vemiErrFftOrder;
  if (const VemiStatus bad = signal::checkFFTFlag(flag)) return bad;
  return bytes(orderX, orderY) > std::numeric_limits<int>::max() ? vemiErrMemAlloc : vemiOk;
}

template <class Spec>
RecordPtr<Spec> recordOf(int tag, int orderX, int orderY, int hint, Vemi64s (*bytes)(int, int)) {
  auto spec = makeRecord<Spec>(tag);
  if (spec == nullptr) return spec;
  spec->orderX = orderX;
  spec->orderY = orderY;
  spec->hint = hint;
  spec->bufSize = static_cast<int>(bytes(orderX, orderY));
  return spec;
}

VemiStatus initReal(VemiFFTSpec_R_32f** ppSpec, int orderX, int orderY, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  if (const VemiStatus bad = checkOrders(orderX, orderY, flag, realBytes)) return bad;
  auto spec = recordOf<VemiFFTSpec_R_32f>(realFFTTag, orderX, orderY, hint, realBytes);
  if (spec == nullptr) return vemiErrMemAlloc;
  if (const VemiStatus bad = sigFFTInitAlloc_R_32f(spec->realSpecX, orderX, flag, hint)) return bad;
  if (orderX != orderY) {
    if (const VemiStatus bad = sigFFTInitAlloc_R_32f(spec->realSpecY, orderY, flag, hint)) return bad;
  }
  if (const VemiStatus bad = sigFFTInitAlloc_C_32fc(spec->complexSpecY, orderY, flag, hint)) return bad;
  return handOver(std::move(spec), ppSpec);
}

VemiStatus initComplex(VemiFFTSpec_C_32fc** ppSpec, int orderX, int orderY, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  if (const VemiStatus bad = checkOrders(orderX, orderY, flag, complexBytes)) return bad;
  auto spec = recordOf<VemiFFTSpec_C_32fc>(complexFFTTag, orderX, orderY, hint, complexBytes);
  if (spec == nullptr) return vemiErrMemAlloc;
  if (const VemiStatus bad = sigFFTInitAlloc_C_32fc(spec->complexSpecX, orderX, flag, hint)) return bad;
  if (orderX != orderY) {
    if (const VemiStatus bad = sigFFTInitAlloc_C_32fc(spec->complexSpecY, orderY, flag, hint)) return bad;
  }
  return handOver(std::move(spec), ppSpec);
}

VemiStatus initInteger(VemiFFTSpec_R_32s** ppSpec, int orderX, int orderY, int flag, int hint) {
  if (ppSpec == nullptr) return vemiErrNullPtr;
  if (const VemiStatus bad = checkOrders(orderX, orderY, flag, integerBytes)) return bad;
  auto spec = recordOf<VemiFFTSpec_R_32s>(integerFFTTag, orderX, orderY, hint, integerBytes);
  if (spec == nullptr) return vemiErrMemAlloc;
  VemiFFTSpec_R_32f* floats = nullptr;
  if (const VemiStatus bad = initReal(&floats, orderX, orderY, flag, hint)) return bad;
  spec->floats.reset(floats);
  return handOver(std::move(spec), ppSpec);
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VemiStatus vemiFFTInitAlloc_R_32f(VemiFFTSpec_R_32f** ppSpec, int orderX, int orderY, int flag, vemiHint hint) {
  return initReal(ppSpec, orderX, orderY, flag, hint);
}
VemiStatus vemiFFTInitAlloc_R_32s(VemiFFTSpec_R_32s** ppSpec, int orderX, int orderY, int flag, vemiHint hint) {
  return initInteger(ppSpec, orderX, orderY, flag, hint);
}
VemiStatus vemiFFTInitAlloc_C_32fc(VemiFFTSpec_C_32fc** ppSpec, int orderX, int orderY, int flag, vemiHint hint) {
  return initComplex(ppSpec, orderX, orderY, flag, hint);
}

VemiStatus vemiFFTFree_R_32f(VemiFFTSpec_R_32f* pSpec) { return freeRecord(pSpec, realFFTTag); }
VemiStatus vemiFFTFree_R_32s(VemiFFTSpec_R_32s* pSpec) { return freeRecord(pSpec, integerFFTTag); }
VemiStatus vemiFFTFree_C_32fc(VemiFFTSpec_C_32fc* pSpec) { return freeRecord(pSpec, complexFFTTag); }

VemiStatus vemiFFTGetBufSize_R_32f(const VemiFFTSpec_R_32f* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, realFFTTag, pBufSize);
}
VemiStatus vemiFFTGetBufSize_R_32s(const VemiFFTSpec_R_32s* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, integerFFTTag, pBufSize);
}
VemiStatus vemiFFTGetBufSize_C_32fc(const VemiFFTSpec_C_32fc* pSpec, int* pBufSize) {
  return tellBufSize(pSpec, complexFFTTag, pBufSize);
}
