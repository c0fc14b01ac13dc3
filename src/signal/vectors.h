// One-dimensional moves and fills of the signal layer. Lengths are in elements. All return vemiErrNullPtr for a null
// pointer, then vemiErrSize for a length below 1. Long copies go past the caches; where that begins is chosen by
// measurement and shows in no result.
#pragma once

#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi::signal {

VemiStatus vecCopy8(const Vemi8u* pSrc, Vemi8u* pDst, int len);
VemiStatus vecCopy32(const Vemi32u* pSrc, Vemi32u* pDst, int len);

VemiStatus vecZero8(Vemi8u* pDst, int len);
VemiStatus vecZero16(Vemi16u* pDst, int len);
VemiStatus vecZero32(Vemi32u* pDst, int len);

VemiStatus vecSet32(Vemi32u value, Vemi32u* pDst, int len);

}  // namespace vemi::signal
