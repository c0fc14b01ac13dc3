// Heads of colour conversions beyond those that all subsystems share.
#pragma once

#include "core/exports.h"

// Three planes that need not have one size, with a step each, on one side or on both.
#define VEMI_STEPPED_DST(T, ...)                                                                    \
  VEMI_HEAD((const T* const pSrc[3], const int srcStep[3], T* pDst, int dstStep, VemiSize roiSize), \
            (SteppedPlanes<const T, 3>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_SRC_STEPPED(T, ...)                                                                    \
  VEMI_HEAD((const T* pSrc, int srcStep, T* const pDst[3], const int dstStep[3], VemiSize roiSize), \
            (Image<const T>{pSrc, srcStep}, SteppedPlanes<T, 3>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_STEPPED_PLANES(T, ...)                                                                          \
  VEMI_HEAD((const T* const pSrc[3], const int srcStep[3], T* const pDst[3], int dstStep, VemiSize roiSize), \
            (SteppedPlanes<const T, 3>{pSrc, srcStep}, Planes<T, 3>{pDst, dstStep}, roiSize), __VA_ARGS__)
#define VEMI_PLANES_STEPPED(T, ...)                                                                          \
  VEMI_HEAD((const T* const pSrc[3], int srcStep, T* const pDst[3], const int dstStep[3], VemiSize roiSize), \
            (Planes<const T, 3>{pSrc, srcStep}, SteppedPlanes<T, 3>{pDst, dstStep}, roiSize), __VA_ARGS__)

// The same without steps: rows follow each other without a gap.
#define VEMI_CONTIGUOUS_DST(T) \
  ((const T* const pSrc[3], T* pDst, int width, int height), (pSrc, pDst, VemiSize{width, height}))
#define VEMI_SRC_CONTIGUOUS(T) \
  ((const T* pSrc, T* const pDst[3], int width, int height), (pSrc, pDst, VemiSize{width, height}))
#define VEMI_CONTIGUOUS(T) \
  ((const T* const pSrc[3], T* const pDst[3], int width, int height), (pSrc, pDst, VemiSize{width, height}))

// What becomes of the fourth channel.
#define VEMI_ALPHA ((Vemi8u alpha), (alpha))
