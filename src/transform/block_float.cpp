// vemiDCT8x8Fwd_32f, vemiDCT8x8Inv_32f. Checks: null.

#include "transform/block_float.h"

#include "core/checks.h"
#include "core/exports.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

template <bool isForward>
VemiStatus ofBlock(const Vemi32f* src, Vemi32f* dst) {
  if (const VemiStatus bad = checkNull(src, dst)) return bad;
  transformed<isForward>(FloatBlock::of(src)).storeTo(dst);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define BLOCK_BLOCK ((const Vemi32f* pSrc, Vemi32f* pDst), (pSrc, pDst))
#define BLOCK ((Vemi32f * pSrcDst), (pSrcDst, pSrcDst))

VEMI_DEFINE(vemiDCT8x8Fwd_32f_C1, BLOCK_BLOCK, ofBlock<true>)
VEMI_DEFINE(vemiDCT8x8Fwd_32f_C1I, BLOCK, ofBlock<true>)
VEMI_DEFINE(vemiDCT8x8Inv_32f_C1, BLOCK_BLOCK, ofBlock<false>)
VEMI_DEFINE(vemiDCT8x8Inv_32f_C1I, BLOCK, ofBlock<false>)
