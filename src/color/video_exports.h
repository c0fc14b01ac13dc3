// How video frames enter: three planes with a step each, a plane of luma and one of chroma pairs, or one packed plane.
#pragma once

#include "color/video_frames.h"
#include "core/exports.h"

// Parts of a signature: what is read, and what is written.
#define VEMI_FROM_PLANES \
  ((const Vemi8u* const pSrc[3], const int srcStep[3]), (SteppedPlanes<const Vemi8u, 3>{pSrc, srcStep}))
#define VEMI_FROM_PAIRS                                                          \
  ((const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr, int srcCbCrStep), \
   (LumaAndPairs<const Vemi8u>{{pSrcY, srcYStep}, {pSrcCbCr, srcCbCrStep}}))
#define VEMI_FROM_PACKED ((const Vemi8u* pSrc, int srcStep), (Image<const Vemi8u>{pSrc, srcStep}))
#define VEMI_TO_PLANES ((Vemi8u* const pDst[3], const int dstStep[3]), (SteppedPlanes<Vemi8u, 3>{pDst, dstStep}))
#define VEMI_TO_PAIRS                                                 \
  ((Vemi8u * pDstY, int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep), \
   (LumaAndPairs<Vemi8u>{{pDstY, dstYStep}, {pDstCbCr, dstCbCrStep}}))
#define VEMI_TO_PACKED ((Vemi8u * pDst, int dstStep), (Image<Vemi8u>{pDst, dstStep}))

// The two, and what follows the region.
#define VEMI_FRAMES(from, to, ...)                                        \
  VEMI_HEAD((VEMI_PARAMETERS from, VEMI_PARAMETERS to, VemiSize roiSize), \
            (VEMI_ARGUMENTS from, VEMI_ARGUMENTS to, roiSize), __VA_ARGS__)
