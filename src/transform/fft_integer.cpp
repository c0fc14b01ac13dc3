// vemiFFTFwd_RToPack and vemiFFTInv_PackToR between integers.

#include "core/exports.h"
#include "transform/fft_spec.h"
#include "transform/integer_transform.h"

namespace vemi::transform {
namespace {

struct FFTOfFloats {
  static constexpr int integerTag = integerFFTTag;
  static VemiSize sizeOf(const VemiFFTSpec_R_32s& spec) { return {1 << spec.orderX, 1 << spec.orderY}; }

  template <class L>
  static constexpr auto forward = L::channels == 1   ? vemiFFTFwd_RToPack_32f_C1R
                                  : L::channels == 3 ? vemiFFTFwd_RToPack_32f_C3R
                                                     : vemiFFTFwd_RToPack_32f_C4R;
  template <class L>
  static constexpr auto inverse = L::channels == 1   ? vemiFFTInv_PackToR_32f_C1R
                                  : L::channels == 3 ? vemiFFTInv_PackToR_32f_C3R
                                                     : vemiFFTInv_PackToR_32f_C4R;
};

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define INTEGERS(S, T)                                                                                 \
  ((const S* pSrc, int srcStep, T* pDst, int dstStep, const VemiFFTSpec_R_32s* pSpec, int scaleFactor, \
    Vemi8u* pBuffer),                                                                                  \
   (Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, pSpec, scaleFactor, pBuffer))

VEMI_DEFINE(vemiFFTFwd_RToPack_8u32s_C1RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<FFTOfFloats, C1>))
VEMI_DEFINE(vemiFFTFwd_RToPack_8u32s_C3RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<FFTOfFloats, C3>))
VEMI_DEFINE(vemiFFTFwd_RToPack_8u32s_C4RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<FFTOfFloats, C4>))
VEMI_DEFINE(vemiFFTFwd_RToPack_8u32s_AC4RSfs, INTEGERS(Vemi8u, Vemi32s), (integerTransform<FFTOfFloats, AC4>))
VEMI_DEFINE(vemiFFTInv_PackToR_32s8u_C1RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<FFTOfFloats, C1>))
VEMI_DEFINE(vemiFFTInv_PackToR_32s8u_C3RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<FFTOfFloats, C3>))
VEMI_DEFINE(vemiFFTInv_PackToR_32s8u_C4RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<FFTOfFloats, C4>))
VEMI_DEFINE(vemiFFTInv_PackToR_32s8u_AC4RSfs, INTEGERS(Vemi32s, Vemi8u), (integerTransform<FFTOfFloats, AC4>))
