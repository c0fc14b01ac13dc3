// Shapes of signatures that several files of measurements share; see core/exports.h.
#pragma once

#include "core/exports.h"

// One source or two, and a result or an array of one for each channel, in some members by a hint.
#define VEMI_SRC_RESULT(name, T, Result, ...)                                      \
  VemiStatus name(const T* pSrc, int srcStep, VemiSize roiSize, Result* pResult) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, roiSize, pResult);           \
  }
#define VEMI_SRC_RESULT_HINT(name, T, Result, ...)                                                \
  VemiStatus name(const T* pSrc, int srcStep, VemiSize roiSize, Result* pResult, vemiHint hint) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, roiSize, pResult, hint);                    \
  }
#define VEMI_2SRC_RESULT(name, T, Result, ...)                                                                     \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, VemiSize roiSize, Result* pResult) { \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, roiSize, pResult);        \
  }
#define VEMI_2SRC_RESULT_HINT(name, T, Result, ...)                                                               \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, VemiSize roiSize, Result* pResult,  \
                  vemiHint hint) {                                                                                \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, roiSize, pResult, hint); \
  }
