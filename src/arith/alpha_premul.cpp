// vemiAlphaPremul, vemiAlphaPremulC: colours times their alpha, rounded down. The alpha itself is copied, or filled
// with the constant.
// Checks: null, size, step.

#include "arith/alpha.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/map_region.h"
#include "core/rows.h"
#include "core/whole_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// Of four-channel pixels: an alpha is multiplied with one.
struct TimesOwnAlpha {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V pixels, V alphaLanes) const {
    return product(d, pixels, forColours(d, alphaOfPixels(d, pixels), alphaLanes));
  }
};

struct TimesAlpha {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V colour, V alpha) const {
    return product(d, colour, preparedFactor(d, alpha));
  }
};

template <class T>
struct TimesConstant {
  T alpha;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V elements) const {
    return product(d, elements, preparedFactor(d, hn::Set(d, alpha)));
  }
};

/// Of four-channel pixels. An alpha counts as one, so that it becomes the constant itself.
template <class T>
struct PixelsTimesConstant {
  T alpha;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V pixels, V alphaLanes) const {
    return TimesConstant<T>{alpha}(d, hn::Or(pixels, alphaLanes));
  }
};

template <class T>
VemiStatus premultiply(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<C4>(CallerRows(), roiSize, withConstants<C4>(TimesOwnAlpha(), alphaLanes<T>), dst, src);
  return vemiOk;
}

template <class T>
VemiStatus premultiplyPlanes(Planes<const T, 4> src, Planes<T, 4> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    const T* const alpha = src[3].row(y);
    for (int c = 0; c < 3; ++c) {
      mapRow<C1>(roiSize.width, eachVector(TimesAlpha()), dst[c].row(y), src[c].row(y), alpha);
    }
    if (dst[3].row(y) != alpha) rowCopyBytes(alpha, dst[3].row(y), roiSize.width * pixelBytes<T, C1>);
  }
  return vemiOk;
}

template <class T, class L>
VemiStatus premultiplyC(Image<const T> src, const T* alpha, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L>(CallerRows(), roiSize, eachVector(TimesConstant<T>{*alpha}), dst, src);
  return vemiOk;
}

template <class T>
VemiStatus premultiplyPixelsC(Image<const T> src, const T* alpha, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const PixelsTimesConstant<T> op = {*alpha};
  mapRegion<C4>(CallerRows(), roiSize, withConstants<C4>(op, alphaLanes<T>), dst, src);
  return vemiOk;
}

template <class T>
VemiStatus premultiplyPlanesC(Planes<const T, 4> src, T alpha, Planes<T, 4> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  for (int c = 0; c < 3; ++c) {
    mapRegion<C1>(CallerRows(), roiSize, eachVector(TimesConstant<T>{alpha}), dst[c], src[c]);
  }
  return fillRegion<T, C1>(alpha, dst[3], roiSize);
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

// Four planes and an alpha; in place, the source is the destination.
#define PLANES_C_PLANES(T)                                                                          \
  ((const T* const pSrc[4], int srcStep, T alpha, T* const pDst[4], int dstStep, VemiSize roiSize), \
   (Planes<const T, 4>{pSrc, srcStep}, alpha, Planes<T, 4>{pDst, dstStep}, roiSize))
#define C_PLANES_SRCDST(T)                                           \
  ((T alpha, T* const pSrcDst[4], int srcDstStep, VemiSize roiSize), \
   (Planes<const T, 4>{pSrcDst, srcDstStep}, alpha, Planes<T, 4>{pSrcDst, srcDstStep}, roiSize))

VEMI_DEFINE(vemiAlphaPremul_8u_AC4R, VEMI_SRC_DST(Vemi8u), premultiply)
VEMI_DEFINE(vemiAlphaPremul_8u_AP4R, VEMI_PLANES_PLANES(Vemi8u, 4), premultiplyPlanes)
VEMI_DEFINE(vemiAlphaPremul_8u_AC4IR, VEMI_SRCDST(Vemi8u), premultiply)
VEMI_DEFINE(vemiAlphaPremul_8u_AP4IR, VEMI_PLANES_SRCDST(Vemi8u, 4), premultiplyPlanes)

VEMI_DEFINE(vemiAlphaPremul_16u_AC4R, VEMI_SRC_DST(Vemi16u), premultiply)
VEMI_DEFINE(vemiAlphaPremul_16u_AP4R, VEMI_PLANES_PLANES(Vemi16u, 4), premultiplyPlanes)
VEMI_DEFINE(vemiAlphaPremul_16u_AC4IR, VEMI_SRCDST(Vemi16u), premultiply)
VEMI_DEFINE(vemiAlphaPremul_16u_AP4IR, VEMI_PLANES_SRCDST(Vemi16u, 4), premultiplyPlanes)

VEMI_DEFINE(vemiAlphaPremulC_8u_C1R, VEMI_SRC_VALUE_DST(Vemi8u), premultiplyC<Vemi8u, C1>)
VEMI_DEFINE(vemiAlphaPremulC_8u_C3R, VEMI_SRC_VALUE_DST(Vemi8u), premultiplyC<Vemi8u, C3>)
VEMI_DEFINE(vemiAlphaPremulC_8u_C4R, VEMI_SRC_VALUE_DST(Vemi8u), premultiplyC<Vemi8u, C4>)
VEMI_DEFINE(vemiAlphaPremulC_8u_AC4R, VEMI_SRC_VALUE_DST(Vemi8u), premultiplyPixelsC)
VEMI_DEFINE(vemiAlphaPremulC_8u_AP4R, PLANES_C_PLANES(Vemi8u), premultiplyPlanesC)
VEMI_DEFINE(vemiAlphaPremulC_8u_C1IR, VEMI_VALUE_SRCDST(Vemi8u), premultiplyC<Vemi8u, C1>)
VEMI_DEFINE(vemiAlphaPremulC_8u_C3IR, VEMI_VALUE_SRCDST(Vemi8u), premultiplyC<Vemi8u, C3>)
VEMI_DEFINE(vemiAlphaPremulC_8u_C4IR, VEMI_VALUE_SRCDST(Vemi8u), premultiplyC<Vemi8u, C4>)
VEMI_DEFINE(vemiAlphaPremulC_8u_AC4IR, VEMI_VALUE_SRCDST(Vemi8u), premultiplyPixelsC)
VEMI_DEFINE(vemiAlphaPremulC_8u_AP4IR, C_PLANES_SRCDST(Vemi8u), premultiplyPlanesC)

VEMI_DEFINE(vemiAlphaPremulC_16u_C1R, VEMI_SRC_VALUE_DST(Vemi16u), premultiplyC<Vemi16u, C1>)
VEMI_DEFINE(vemiAlphaPremulC_16u_C3R, VEMI_SRC_VALUE_DST(Vemi16u), premultiplyC<Vemi16u, C3>)
VEMI_DEFINE(vemiAlphaPremulC_16u_C4R, VEMI_SRC_VALUE_DST(Vemi16u), premultiplyC<Vemi16u, C4>)
VEMI_DEFINE(vemiAlphaPremulC_16u_AC4R, VEMI_SRC_VALUE_DST(Vemi16u), premultiplyPixelsC)
VEMI_DEFINE(vemiAlphaPremulC_16u_AP4R, PLANES_C_PLANES(Vemi16u), premultiplyPlanesC)
VEMI_DEFINE(vemiAlphaPremulC_16u_C1IR, VEMI_VALUE_SRCDST(Vemi16u), premultiplyC<Vemi16u, C1>)
VEMI_DEFINE(vemiAlphaPremulC_16u_C3IR, VEMI_VALUE_SRCDST(Vemi16u), premultiplyC<Vemi16u, C3>)
VEMI_DEFINE(vemiAlphaPremulC_16u_C4IR, VEMI_VALUE_SRCDST(Vemi16u), premultiplyC<Vemi16u, C4>)
VEMI_DEFINE(vemiAlphaPremulC_16u_AC4IR, VEMI_VALUE_SRCDST(Vemi16u), premultiplyPixelsC)
VEMI_DEFINE(vemiAlphaPremulC_16u_AP4IR, C_PLANES_SRCDST(Vemi16u), premultiplyPlanesC)
