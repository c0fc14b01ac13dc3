// vemiAlphaComp, vemiAlphaCompC: two images under one of the compositing operators of Porter and Duff, or their sum.
// Of each image the whole, or the share that the other image's alpha leaves to it, goes into a saturated sum. Straight
// colours are multiplied with their own alpha before.
// Checks: null, size, step, alpha type.

#include "arith/alpha.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/map_region.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

// ---- The operators ------------------------------------------------------------------------------------------------

enum class Colours { straight, premultiplied };
enum class Part { none, share, whole };

/// One image's pixels in lanes. `own` premultiplies: it is the alpha for a colour, one for the alpha itself.
template <class V>
struct Pixels {
  V elements;
  PreparedFactor<V> own, share;
};

template <Colours colours, Part part, class D, class V>
HWY_INLINE V partOf(D d, Pixels<V> pixels) {
  constexpr bool isStraight = colours == Colours::straight;
  if constexpr (isStraight && part == Part::share) return product(d, pixels.elements, pixels.own, pixels.share);
  if constexpr (isStraight && part == Part::whole) return product(d, pixels.elements, pixels.own);
  if constexpr (!isStraight && part == Part::share) return product(d, pixels.elements, pixels.share);
  return pixels.elements;
}

template <Colours colours, Part partA, Part partB>
struct Composite {
  using OnAlphas = Composite<Colours::premultiplied, partA, partB>;
  static constexpr bool sharesBoth = partA == Part::share && partB == Part::share;

  template <class D, class V>
  HWY_INLINE V operator()(D d, Pixels<V> a, Pixels<V> b) const {
    const V first = partOf<colours, partA>(d, a);
    if constexpr (partB == Part::none)
      return first;
    else
      return hn::SaturatedAdd(first, partOf<colours, partB>(d, b));
  }
};

/// What operators of the same parts differ in, all ones or zeros. B's share is always what A does not cover.
template <class T>
struct Masks {
  T outside;      // A's share is what B does not cover, else what it covers
  T secondAlpha;  // where both have shares: the alpha is B's, which the sum may miss by one
};

/// Calls f with the Composite and the masks of an alpha type.
template <class T, Colours colours, class F>
void dispatchOperatorOn(int alphaType, const F& f) {
  constexpr T ones = std::numeric_limits<T>::max();
  constexpr Masks<T> inside = {0, 0}, outside = {ones, 0}, atop = {0, ones};
  switch (alphaType % 6) {
    case vemiAlphaOver:
      return f(Composite<colours, Part::whole, Part::share>(), inside);
    case vemiAlphaIn:
      return f(Composite<colours, Part::share, Part::none>(), inside);
    case vemiAlphaOut:
      return f(Composite<colours, Part::share, Part::none>(), outside);
    case vemiAlphaATop:
      return f(Composite<colours, Part::share, Part::share>(), atop);
    case vemiAlphaXor:
      return f(Composite<colours, Part::share, Part::share>(), outside);
    case vemiAlphaPlus:
      return f(Composite<colours, Part::whole, Part::whole>(), inside);
  }
}

template <class T, class F>
void dispatchOperator(int alphaType, const F& f) {
  if (alphaType < vemiAlphaOverPremul) return dispatchOperatorOn<T, Colours::straight>(alphaType, f);
  dispatchOperatorOn<T, Colours::premultiplied>(alphaType, f);
}

// ---- Where the alphas are -----------------------------------------------------------------------------------------

/// In the fourth channel of the pixels.
template <class Op, class T>
struct AlphaWithin {
  Masks<T> masks;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b, V alphaLanes) const {
    const PreparedFactor<V> alphaA = alphaOfPixels(d, a), alphaB = alphaOfPixels(d, b);
    Pixels<V> pixelsA = {a, forColours(d, alphaA, alphaLanes), alphaB ^ hn::Set(d, masks.outside)};
    Pixels<V> pixelsB = {b, forColours(d, alphaB, alphaLanes), complement(d, alphaA)};
    if constexpr (Op::sharesBoth) {
      const V secondAlpha = preparedFactor(d, hn::And(alphaLanes, hn::Set(d, masks.secondAlpha))).odd;
      pixelsA.share.odd = hn::AndNot(secondAlpha, pixelsA.share.odd);
      pixelsB.share.odd = hn::Or(pixelsB.share.odd, secondAlpha);
    }
    return Op()(d, pixelsA, pixelsB);
  }
};

/// In planes of their own.
template <class Op, class T>
struct AlphaBeside {
  Masks<T> masks;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b, V alphaA, V alphaB) const {
    const PreparedFactor<V> ownA = preparedFactor(d, alphaA), ownB = preparedFactor(d, alphaB);
    const Pixels<V> pixelsA = {a, ownA, ownB ^ hn::Set(d, masks.outside)};
    return Op()(d, pixelsA, Pixels<V>{b, ownB, complement(d, ownA)});
  }
};

/// The elements are alphas and nothing else: an operator on premultiplied elements.
template <class Op, class T>
struct AlphaOnly {
  Masks<T> masks;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const V result = AlphaBeside<Op, T>{masks}(d, a, b, a, b);
    if constexpr (!Op::sharesBoth)
      return result;
    else
      return hn::IfVecThenElse(hn::Set(d, masks.secondAlpha), b, result);
  }
};

/// One for all pixels of an image.
template <class Op, class T>
struct AlphaConstant {
  Masks<T> masks;
  T alphaA, alphaB;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return AlphaBeside<Op, T>{masks}(d, a, b, hn::Set(d, alphaA), hn::Set(d, alphaB));
  }
};

// ---- Regions ------------------------------------------------------------------------------------------------------

VemiStatus checkAlphaType(int alphaType) {
  return alphaType < vemiAlphaOver || alphaType > vemiAlphaPlusPremul ? vemiErrAlphaType : vemiOk;
}

/// `images` are the sources and the destination, all of them images or all of them planes.
template <class... Stepped>
VemiStatus check(VemiSize roiSize, int alphaType, Stepped... images) {
  return firstOf(checkNull(images...), checkSize(roiSize), checkStep(images...), checkAlphaType(alphaType));
}

/// Straight and premultiplied are the same here.
template <class T>
VemiStatus compositeAlphas(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int alphaType) {
  if (const VemiStatus bad = check(roiSize, alphaType, src1, src2, dst)) return bad;
  dispatchOperatorOn<T, Colours::premultiplied>(alphaType, [&](auto op, Masks<T> masks) {
    mapRegion<C1>(CallerRows(), roiSize, eachVector(AlphaOnly<decltype(op), T>{masks}), dst, src1, src2);
  });
  return vemiOk;
}

template <class T>
VemiStatus compositePixels(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int alphaType) {
  if (const VemiStatus bad = check(roiSize, alphaType, src1, src2, dst)) return bad;
  dispatchOperator<T>(alphaType, [&](auto op, Masks<T> masks) {
    const auto onPixels = withConstants<C4>(AlphaWithin<decltype(op), T>{masks}, alphaLanes<T>);
    mapRegion<C4>(CallerRows(), roiSize, onPixels, dst, src1, src2);
  });
  return vemiOk;
}

/// All planes of a row while its alphas are in the caches. These are the last to be written: in place, the others need
/// them as they were.
template <class T>
VemiStatus compositePlanes(Planes<const T, 4> src1, Planes<const T, 4> src2, Planes<T, 4> dst, VemiSize roiSize,
                           int alphaType) {
  if (const VemiStatus bad = check(roiSize, alphaType, src1, src2, dst)) return bad;
  dispatchOperator<T>(alphaType, [&](auto op, Masks<T> masks) {
    const auto onColours = eachVector(AlphaBeside<decltype(op), T>{masks});
    const auto onAlphas = eachVector(AlphaOnly<typename decltype(op)::OnAlphas, T>{masks});
    for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
      const T* const alphaA = src1[3].row(y);
      const T* const alphaB = src2[3].row(y);
      for (int c = 0; c < 3; ++c) {
        mapRow<C1>(roiSize.width, onColours, dst[c].row(y), src1[c].row(y), src2[c].row(y), alphaA, alphaB);
      }
      mapRow<C1>(roiSize.width, onAlphas, dst[3].row(y), alphaA, alphaB);
    }
  });
  return vemiOk;
}

template <class T, class L>
VemiStatus compositeC(Image<const T> src1, T alpha1, Image<const T> src2, T alpha2, Image<T> dst, VemiSize roiSize,
                      int alphaType) {
  if (const VemiStatus bad = check(roiSize, alphaType, src1, src2, dst)) return bad;
  dispatchOperator<T>(alphaType, [&](auto op, Masks<T> masks) {
    const AlphaConstant<decltype(op), T> onColours = {masks, alpha1, alpha2};
    mapRegion<L>(CallerRows(), roiSize, eachVector(onColours), dst, src1, src2);
  });
  return vemiOk;
}

/// All four planes are colours.
template <class T>
VemiStatus compositePlanesC(Planes<const T, 4> src1, T alpha1, Planes<const T, 4> src2, T alpha2, Planes<T, 4> dst,
                            VemiSize roiSize, int alphaType) {
  if (const VemiStatus bad = check(roiSize, alphaType, src1, src2, dst)) return bad;
  for (int c = 0; c < 4; ++c) compositeC<T, C1>(src1[c], alpha1, src2[c], alpha2, dst[c], roiSize, alphaType);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

#define ALPHA_TYPE ((vemiAlphaType alphaType), (alphaType))

// Pixels with an alpha for each source, and four planes without and with one.
#define PIXELS_C(T)                                                                                            \
  ((const T* pSrc1, int src1Step, T alpha1, const T* pSrc2, int src2Step, T alpha2, T* pDst, int dstStep,      \
    VemiSize roiSize, vemiAlphaType alphaType),                                                                \
   (Image<const T>{pSrc1, src1Step}, alpha1, Image<const T>{pSrc2, src2Step}, alpha2, Image<T>{pDst, dstStep}, \
    roiSize, alphaType))
#define PLANES(T)                                                                                                   \
  ((const T* const pSrc1[4], int src1Step, const T* const pSrc2[4], int src2Step, T* const pDst[4], int dstStep,    \
    VemiSize roiSize, vemiAlphaType alphaType),                                                                     \
   (Planes<const T, 4>{pSrc1, src1Step}, Planes<const T, 4>{pSrc2, src2Step}, Planes<T, 4>{pDst, dstStep}, roiSize, \
    alphaType))
#define PLANES_C(T)                                                                                   \
  ((const T* const pSrc1[4], int src1Step, T alpha1, const T* const pSrc2[4], int src2Step, T alpha2, \
    T* const pDst[4], int dstStep, VemiSize roiSize, vemiAlphaType alphaType),                        \
   (Planes<const T, 4>{pSrc1, src1Step}, alpha1, Planes<const T, 4>{pSrc2, src2Step}, alpha2,         \
    Planes<T, 4>{pDst, dstStep}, roiSize, alphaType))

VEMI_DEFINE(vemiAlphaComp_8u_AC1R, VEMI_2SRC_DST(Vemi8u, ALPHA_TYPE), compositeAlphas)
VEMI_DEFINE(vemiAlphaComp_8u_AC4R, VEMI_2SRC_DST(Vemi8u, ALPHA_TYPE), compositePixels)
VEMI_DEFINE(vemiAlphaComp_8u_AP4R, PLANES(Vemi8u), compositePlanes)

VEMI_DEFINE(vemiAlphaComp_16u_AC1R, VEMI_2SRC_DST(Vemi16u, ALPHA_TYPE), compositeAlphas)
VEMI_DEFINE(vemiAlphaComp_16u_AC4R, VEMI_2SRC_DST(Vemi16u, ALPHA_TYPE), compositePixels)
VEMI_DEFINE(vemiAlphaComp_16u_AP4R, PLANES(Vemi16u), compositePlanes)

VEMI_DEFINE(vemiAlphaCompC_8u_C1R, PIXELS_C(Vemi8u), compositeC<Vemi8u, C1>)
VEMI_DEFINE(vemiAlphaCompC_8u_C3R, PIXELS_C(Vemi8u), compositeC<Vemi8u, C3>)
VEMI_DEFINE(vemiAlphaCompC_8u_C4R, PIXELS_C(Vemi8u), compositeC<Vemi8u, C4>)
VEMI_DEFINE(vemiAlphaCompC_8u_AC4R, PIXELS_C(Vemi8u), compositeC<Vemi8u, AC4>)
VEMI_DEFINE(vemiAlphaCompC_8u_AP4R, PLANES_C(Vemi8u), compositePlanesC)

VEMI_DEFINE(vemiAlphaCompC_16u_C1R, PIXELS_C(Vemi16u), compositeC<Vemi16u, C1>)
VEMI_DEFINE(vemiAlphaCompC_16u_C3R, PIXELS_C(Vemi16u), compositeC<Vemi16u, C3>)
VEMI_DEFINE(vemiAlphaCompC_16u_C4R, PIXELS_C(Vemi16u), compositeC<Vemi16u, C4>)
VEMI_DEFINE(vemiAlphaCompC_16u_AC4R, PIXELS_C(Vemi16u), compositeC<Vemi16u, AC4>)
VEMI_DEFINE(vemiAlphaCompC_16u_AP4R, PLANES_C(Vemi16u), compositePlanesC)
