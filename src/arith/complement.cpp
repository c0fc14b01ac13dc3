// vemiComplement: from two's complement to sign and magnitude. Checks: null, step, size.

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// The least integer has no magnitude in the other bits and stays.
struct SignAndMagnitude {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const V sign = hn::And(v, hn::Set(d, std::numeric_limits<Vemi32s>::min()));
    return hn::Or(hn::Abs(v), sign);
  }
};

VemiStatus complement(Image<const Vemi32s> src, Image<Vemi32s> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(dst), checkStep(dst), checkSize(roiSize))) return bad;
  mapRegion<C1>(CallerRows(), roiSize, eachVector(SignAndMagnitude()), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiComplement_32s_C1IR, VEMI_SRCDST(Vemi32s), complement)
