// vemiDFTFwd_RToPack and vemiDFTInv_PackToR between integers.

#include "core/exports.h"
#include "transform/dft_spec.h"
#include "transform/integer_transform.h"

namespace vemi::transform {
namespace {

struct DFTOfFloats {
  static constexpr int integerTag = integerDFTTag;
  static VemiSize sizeOf(const VemiDFTSpec_R_32s& spec) { return {spec.width, spec.height}; }

  template <class L>
  static constexpr auto forward = L::channels == 1   ? vemiDFTFwd_RToPack_32f_C1R
                                  : L::channels == 3 ? vemiDFTFwd_RToPack_32f_C3R
                                                     : vemiDFTFwd_RToPack_32f_C4R;
  template <class L>
  static constexpr auto inverse = L::channels == 1   ? vemiDFTInv_PackToR_32f_C1R
                                  : L::channels == 3 ? vemiDFTInv_PackToR_32f_C3R
                                                     : vemiDFTInv_PackToR_32f_C4R;
};

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define INTEGERS(S, T)                                                                                 \
  ((const S* pSrc, int srcStep, T* pDst, int dstStep, const VemiDFTSpec_R_32s* pSpec, int scaleFactor, \
    Vemi8u* pBuffer),                                                                                  \
   (Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, pSpec, scaleFactor, pBuffer))

VEMI_DEFINE(vemiDFTFwd_RToPack_8u32s_C1RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<DFTOfFloats, C1>))
VEMI_DEFINE(vemiDFTFwd_RToPack_8u32s_C3RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<DFTOfFloats, C3>))
VEMI_DEFINE(vemiDFTFwd_RToPack_8u32s_C4RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<DFTOfFloats, C4>))
VEMI_DEFINE(vemiDFTFwd_RToPack_8u32s_AC4RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<DFTOfFloats, AC4>))
VEMI_DEFINE(vemiDFTInv_PackToR_32s8u_C1RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<DFTOfFloats, C1>))
VEMI_DEFINE(vemiDFTInv_PackToR_32s8u_C3RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<DFTOfFloats, C3>))
VEMI_DEFINE(vemiDFTInv_PackToR_32s8u_C4RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<DFTOfFloats, C4>))
VEMI_DEFINE(vemiDFTInv_PackToR_32s8u_AC4RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<DFTOfFloats, AC4>))
