// From an exported name to its implementation. A family's table has one line for each function: the name in full, the
// signature, and the template instance that does the work. No name is pasted together.
//
//   VEMI_DEFINE(vemiAddC_8u_C3RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Addition, C3, TeamRows>)
//
// A signature is a pair of lists: the parameters, and the arguments that the implementation gets for them. The heads
// are signatures, one for each way in which images and their region enter. Their last argument, if any, is another
// pair: what a family takes behind the region, and how it is handed on. A head or a pair that one family has stands
// ahead of that family's table, which stands behind `using namespace vemi;`.
#pragma once

#include "core/image.h"

namespace vemi {

/// An implementation gets constants by their address: that of a single one, or the array of one for each channel.
template <class T>
const T* addressOf(const T& value) {
  return &value;
}
template <class T>
const T* addressOf(const T* values) {
  return values;
}

}  // namespace vemi

#define VEMI_DEFINE(name, signature, ...) \
  VemiStatus name(VEMI_PARAMETERS signature) { return __VA_ARGS__(VEMI_ARGUMENTS signature); }
#define VEMI_PARAMETERS(parameters, arguments) VEMI_LIST parameters
#define VEMI_ARGUMENTS(parameters, arguments) VEMI_LIST arguments
#define VEMI_LIST(...) __VA_ARGS__

// The lists of a head, and behind them those of a pair, if there is one.
#define VEMI_HEAD(parameters, arguments, ...)                        \
  ((VEMI_LIST parameters __VA_OPT__(, VEMI_PARAMETERS __VA_ARGS__)), \
   (VEMI_LIST arguments __VA_OPT__(, VEMI_ARGUMENTS __VA_ARGS__)))

// A source of one element type, a destination of another or of the same; or one image that is both.
#define VEMI_CONVERSION(S, T, ...)                                                \
  VEMI_HEAD((const S* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize), \
            (Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_SRC_DST(T, ...) VEMI_CONVERSION(T, T, __VA_ARGS__)
#define VEMI_SRCDST(T, ...)                                  \
  VEMI_HEAD((T * pSrcDst, int srcDstStep, VemiSize roiSize), \
            (Image<const T>{pSrcDst, srcDstStep}, Image<T>{pSrcDst, srcDstStep}, roiSize), __VA_ARGS__)

// The same and a constant. C is the type of the parameter: that of one value, or of a pointer to one for each channel.
#define VEMI_CONVERSION_C(S, T, C, ...)                                                    \
  VEMI_HEAD((const S* pSrc, int srcStep, C value, T* pDst, int dstStep, VemiSize roiSize), \
            (Image<const S>{pSrc, srcStep}, addressOf(value), Image<T>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_SRC_VALUE_DST(T, ...) VEMI_CONVERSION_C(T, T, T, __VA_ARGS__)
#define VEMI_SRC_VALUES_DST(T, ...) VEMI_CONVERSION_C(T, T, const T*, __VA_ARGS__)
#define VEMI_C_SRCDST(T, C, ...)                                                                             \
  VEMI_HEAD((C value, T * pSrcDst, int srcDstStep, VemiSize roiSize),                                        \
            (Image<const T>{pSrcDst, srcDstStep}, addressOf(value), Image<T>{pSrcDst, srcDstStep}, roiSize), \
            __VA_ARGS__)
#define VEMI_VALUE_SRCDST(T, ...) VEMI_C_SRCDST(T, T, __VA_ARGS__)
#define VEMI_VALUES_SRCDST(T, ...) VEMI_C_SRCDST(T, const T*, __VA_ARGS__)

// Two sources; in place, the destination is the second of them.
#define VEMI_2SRC_CONVERSION(S, T, ...)                                                                           \
  VEMI_HEAD((const S* pSrc1, int src1Step, const S* pSrc2, int src2Step, T* pDst, int dstStep, VemiSize roiSize), \
            (Image<const S>{pSrc1, src1Step}, Image<const S>{pSrc2, src2Step}, Image<T>{pDst, dstStep}, roiSize), \
            __VA_ARGS__)
#define VEMI_2SRC_DST(T, ...) VEMI_2SRC_CONVERSION(T, T, __VA_ARGS__)
#define VEMI_SRC_SRCDST(T, ...)                                                                                     \
  VEMI_HEAD(                                                                                                        \
      (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, VemiSize roiSize),                                   \
      (Image<const T>{pSrc, srcStep}, Image<const T>{pSrcDst, srcDstStep}, Image<T>{pSrcDst, srcDstStep}, roiSize), \
      __VA_ARGS__)

// Planes with one step for all of them, on one side or on both; or planes that are both.
#define VEMI_PLANES_PLANES(T, planes, ...)                                                                    \
  VEMI_HEAD((const T* const pSrc[planes], int srcStep, T* const pDst[planes], int dstStep, VemiSize roiSize), \
            (Planes<const T, planes>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_PLANES_SRCDST(T, planes, ...)                                                                   \
  VEMI_HEAD((T* const pSrcDst[planes], int srcDstStep, VemiSize roiSize),                                    \
            (Planes<const T, planes>{pSrcDst, srcDstStep}, Planes<T, planes>{pSrcDst, srcDstStep}, roiSize), \
            __VA_ARGS__)
#define VEMI_SRC_PLANES(T, planes, ...)                                                         \
  VEMI_HEAD((const T* pSrc, int srcStep, T* const pDst[planes], int dstStep, VemiSize roiSize), \
            (Image<const T>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_PLANES_DST(T, planes, ...)                                                         \
  VEMI_HEAD((const T* const pSrc[planes], int srcStep, T* pDst, int dstStep, VemiSize roiSize), \
            (Planes<const T, planes>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize), __VA_ARGS__)

// A destination alone, and with a constant.
#define VEMI_DST(T, ...) \
  VEMI_HEAD((T * pDst, int dstStep, VemiSize roiSize), (Image<T>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_C_DST(T, C, ...)                                                                                         \
  VEMI_HEAD((C value, T * pDst, int dstStep, VemiSize roiSize), (addressOf(value), Image<T>{pDst, dstStep}, roiSize), \
            __VA_ARGS__)

// Sources alone, for what is measured.
#define VEMI_SRC(T, ...) \
  VEMI_HEAD((const T* pSrc, int srcStep, VemiSize roiSize), (Image<const T>{pSrc, srcStep}, roiSize), __VA_ARGS__)
#define VEMI_2SRC(T, ...)                                                                   \
  VEMI_HEAD((const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, VemiSize roiSize), \
            (Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, roiSize), __VA_ARGS__)

// What several families take behind the region.
#define VEMI_SFS ((int scaleFactor), (scaleFactor))
#define VEMI_MASK ((const Vemi8u* pMask, int maskStep), (Image<const Vemi8u>{pMask, maskStep}))
#define VEMI_RANGE ((Vemi32f vMin, Vemi32f vMax), (vMin, vMax))
