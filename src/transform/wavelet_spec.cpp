// vemiWTFwdInitAlloc, vemiWTInvInitAlloc, their Free and GetBufSize functions.
// Checks: null, lengths, anchors, memory; for existing records null, tag.

#include <limits>
#include <utility>

#include "core/checks.h"
#include "transform/wavelet.h"

namespace vemi::transform {
namespace {

struct GivenFilter {
  const float* taps;
  int length, anchor;
};

/// The taps from..., each `stride` taps before the last.
Taps tapsFrom(const GivenFilter& given, ptrdiff_t from, ptrdiff_t stride, ptrdiff_t first, float*& room) {
  const Taps taps = {room, from / stride + 1, first};
  for (ptrdiff_t k = from; k >= 0; k -= stride) *room++ = given.taps[k];
  return taps;
}

WaveletFilter forwardFilter(const GivenFilter& given, ptrdiff_t before, float*& room) {
  const ptrdiff_t last = ptrdiff_t{given.length} - 1;
  WaveletFilter filter;
  filter.all = tapsFrom(given, last, 1, given.anchor - last, room);
  const ptrdiff_t place = before + filter.all.first;  // of the first tap, in a row that begins with the reach
  for (const ptrdiff_t j : {0, 1}) {
    filter.phase[(place + j) % 2] = tapsFrom(given, last - j, 2, (place + j) / 2, room);
  }
  return filter;
}

/// Places within c are rounded toward minus infinity by the shift.
WaveletFilter inverseFilter(const GivenFilter& given, float*& room) {
  WaveletFilter filter;
  for (const ptrdiff_t p : {0, 1}) {
    const ptrdiff_t first = (p + given.anchor - given.length + 1) >> 1;
    filter.phase[p] = tapsFrom(given, p + given.anchor - 1 - 2 * first, 2, first, room);
  }
  return filter;
}

Reach reachOf(bool isForward, const GivenFilter& given) {
  if (isForward) return {ptrdiff_t{given.length} - 1 - given.anchor, ptrdiff_t{given.anchor} - 1};
  return {(ptrdiff_t{given.length} - given.anchor) / 2, given.anchor / 2};
}

template <class Spec>
VemiStatus init(Spec** ppSpec, int tag, GivenFilter low, GivenFilter high) {
  if (const VemiStatus bad = checkNull(ppSpec, low.taps, high.taps)) return bad;
  if (low.length < 2 || high.length < 2) return vemiErrSize;
  const auto isOutside = [](const GivenFilter& given) { return given.anchor < 0 || given.anchor >= given.length; };
  if (isOutside(low) || isOutside(high)) return vemiErrAnchor;

  const bool isForward = tag == forwardC1Tag || tag == forwardC3Tag;
  const Vemi64s before = std::max(Vemi64s{low.length} - low.anchor, Vemi64s{high.length} - high.anchor) - 1;
  const Vemi64s behind = Vemi64s{std::max(low.anchor, high.anchor)} - 1;
  const Vemi64s elements = before + behind + (isForward ? 2 * forwardColumns : inverseColumns);
  const Vemi64s rowGap = roundedUp(arrayBytes<float>(elements), 32);
  const Vemi64s bufSize = arrayBytes<float>(elements) + rowGap;
  if (bufSize > std::numeric_limits<int>::max()) return vemiErrMemAlloc;

  auto spec = makeRecord<Spec>(tag);
  if (spec == nullptr) return vemiErrMemAlloc;
  spec->taps = Scratch(arrayBytes<float>(2 * (Vemi64s{low.length} + high.length)));
  if (spec->taps.failed()) return vemiErrMemAlloc;
  spec->bufSize = static_cast<int>(bufSize);
  spec->isUsable = behind >= 0;
  spec->rowElements = static_cast<ptrdiff_t>(elements);
  spec->rowGap = static_cast<ptrdiff_t>(rowGap);
  const Reach ofLow = reachOf(isForward, low), ofHigh = reachOf(isForward, high);
  spec->reach = {std::max(ofLow.before, ofHigh.before), std::max(ofLow.behind, ofHigh.behind)};
  auto* room = spec->taps.template as<float>();
  const auto filterOf = [&](const GivenFilter& given) {
    return isForward ? forwardFilter(given, spec->reach.before, room) : inverseFilter(given, room);
  };
  spec->low = filterOf(low);
  spec->high = filterOf(high);
  return handOver(std::move(spec), ppSpec);
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VemiStatus vemiWTFwdInitAlloc_32f_C1R(VemiWTFwdSpec_32f_C1R** pSpec, const Vemi32f* pTapsLow, int lenLow, int anchorLow,
                                      const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh) {
  return init(pSpec, forwardC1Tag, {pTapsLow, lenLow, anchorLow}, {pTapsHigh, lenHigh, anchorHigh});
}
VemiStatus vemiWTFwdInitAlloc_32f_C3R(VemiWTFwdSpec_32f_C3R** pSpec, const Vemi32f* pTapsLow, int lenLow, int anchorLow,
                                      const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh) {
  return init(pSpec, forwardC3Tag, {pTapsLow, lenLow, anchorLow}, {pTapsHigh, lenHigh, anchorHigh});
}
VemiStatus vemiWTInvInitAlloc_32f_C1R(VemiWTInvSpec_32f_C1R** pSpec, const Vemi32f* pTapsLow, int lenLow, int anchorLow,
                                      const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh) {
  return init(pSpec, inverseC1Tag, {pTapsLow, lenLow, anchorLow}, {pTapsHigh, lenHigh, anchorHigh});
}
VemiStatus vemiWTInvInitAlloc_32f_C3R(VemiWTInvSpec_32f_C3R** pSpec, const Vemi32f* pTapsLow, int lenLow, int anchorLow,
                                      const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh) {
  return init(pSpec, inverseC3Tag, {pTapsLow, lenLow, anchorLow}, {pTapsHigh, lenHigh, anchorHigh});
}

VemiStatus vemiWTFwdFree_32f_C1R(VemiWTFwdSpec_32f_C1R* pSpec) { return freeRecord(pSpec, forwardC1Tag); }
VemiStatus vemiWTFwdFree_32f_C3R(VemiWTFwdSpec_32f_C3R* pSpec) { return freeRecord(pSpec, forwardC3Tag); }
VemiStatus vemiWTInvFree_32f_C1R(VemiWTInvSpec_32f_C1R* pSpec) { return freeRecord(pSpec, inverseC1Tag); }
VemiStatus vemiWTInvFree_32f_C3R(VemiWTInvSpec_32f_C3R* pSpec) { return freeRecord(pSpec, inverseC3Tag); }

VemiStatus vemiWTFwdGetBufSize_C1R(const VemiWTFwdSpec_32f_C1R* pSpec, int* pSize) {
  return tellBufSize(pSpec, forwardC1Tag, pSize);
}
VemiStatus vemiWTFwdGetBufSize_C3R(const VemiWTFwdSpec_32f_C3R* pSpec, int* pSize) {
  return tellBufSize(pSpec, forwardC3Tag, pSize);
}
VemiStatus vemiWTInvGetBufSize_C1R(const VemiWTInvSpec_32f_C1R* pSpec, int* pSize) {
  return tellBufSize(pSpec, inverseC1Tag, pSize);
}
VemiStatus vemiWTInvGetBufSize_C3R(const VemiWTInvSpec_32f_C3R* pSpec, int* pSize) {
  return tellBufSize(pSpec, inverseC3Tag, pSize);
}
