#include "signal/vectors.h"

#include <cstring>

#include "core/checks.h"
#include "core/parallel.h"
#include "core/rows.h"
#include "core/streaming.h"

namespace vemi::signal {
namespace {

VemiStatus checkLength(int len) { return len < 1 ? vemiErrSize : vemiOk; }

template <class T>
VemiStatus copyVector(const T* pSrc, T* pDst, int len) {
  if (const VemiStatus bad = firstOf(checkNull(pSrc, pDst), checkLength(len))) return bad;
  const ptrdiff_t lenBytes = len * ptrdiff_t{sizeof(T)};
  runPlainOrStreamed(
      CallerRows(), 1, 2 * Vemi64s{lenBytes}, [&](ptrdiff_t) { rowCopyBytes(pSrc, pDst, lenBytes); },
      [&](ptrdiff_t) { rowStreamBytes(pSrc, pDst, lenBytes); });
  return vemiOk;
}

template <class T>
VemiStatus zeroVector(T* pDst, int len) {
  if (const VemiStatus bad = firstOf(checkNull(pDst), checkLength(len))) return bad;
  std::memset(pDst, 0, static_cast<size_t>(len) * sizeof(T));
  return vemiOk;
}

}  // namespace

VemiStatus vecCopy8(const Vemi8u* pSrc, Vemi8u* pDst, int len) { return copyVector(pSrc, pDst, len); }
VemiStatus vecCopy32(const Vemi32u* pSrc, Vemi32u* pDst, int len) { return copyVector(pSrc, pDst, len); }

VemiStatus vecZero8(Vemi8u* pDst, int len) { return zeroVector(pDst, len); }
VemiStatus vecZero16(Vemi16u* pDst, int len) { return zeroVector(pDst, len); }
VemiStatus vecZero32(Vemi32u* pDst, int len) { return zeroVector(pDst, len); }

VemiStatus vecSet32(Vemi32u value, Vemi32u* pDst, int len) {
  if (const VemiStatus bad = firstOf(checkNull(pDst), checkLength(len))) return bad;
  rowSet32(value, pDst, len);
  return vemiOk;
}

}  // namespace vemi::signal
