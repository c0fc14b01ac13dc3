// One macro for each shape of signature. A family's export table names the function in full, its element type and the
// template instance that does the work; the macro spells the parameters once. No name is pasted together.
// Here stand the shapes that several files share; one that a single family has stands ahead of that family's table.
//
// A table stands behind `using namespace vemi;`, so that the instances can be named as the family's file names them.
#pragma once

#include "core/image.h"

// One source, one destination.
#define VEMI_SRC_DST(name, T, ...)                                                       \
  VemiStatus name(const T* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize) {  \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize); \
  }

// Two sources; in place, the destination is the second of them.
#define VEMI_2SRC_DST(name, T, ...)                                                                               \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,               \
                  VemiSize roiSize) {                                                                             \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, Image<T>{pDst, dstStep}, \
                       roiSize);                                                                                  \
  }
#define VEMI_SRC_SRCDST(name, T, ...)                                                         \
  VemiStatus name(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<const T>{pSrcDst, srcDstStep},    \
                       Image<T>{pSrcDst, srcDstStep}, roiSize);                               \
  }
#define VEMI_2SRC_DST_SFS(name, T, ...)                                                                               \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, VemiSize roiSize, \
                  int scaleFactor) {                                                                                  \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, Image<T>{pDst, dstStep},     \
                       roiSize, scaleFactor);                                                                         \
  }
#define VEMI_SRC_SRCDST_SFS(name, T, ...)                                                                      \
  VemiStatus name(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<const T>{pSrcDst, srcDstStep},                     \
                       Image<T>{pSrcDst, srcDstStep}, roiSize, scaleFactor);                                   \
  }

// A source and a constant; in place, the source is the destination.
#define VEMI_SRC_VALUE_DST(name, T, ...)                                                         \
  VemiStatus name(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, &value, Image<T>{pDst, dstStep}, roiSize); \
  }
#define VEMI_VALUE_SRCDST(name, T, ...)                                                                      \
  VemiStatus name(T value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                                   \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, &value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }
#define VEMI_SRC_VALUES_DST(name, T, ...)                                                               \
  VemiStatus name(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, value, Image<T>{pDst, dstStep}, roiSize);         \
  }
#define VEMI_VALUES_SRCDST(name, T, ...)                                                                    \
  VemiStatus name(const T* value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                           \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }
#define VEMI_SRC_VALUE_DST_SFS(name, T, ...)                                                                      \
  VemiStatus name(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, VemiSize roiSize, int scaleFactor) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, &value, Image<T>{pDst, dstStep}, roiSize, scaleFactor);     \
  }
#define VEMI_VALUE_SRCDST_SFS(name, T, ...)                                                                 \
  VemiStatus name(T value, T* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor) {                 \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, &value, Image<T>{pSrcDst, srcDstStep}, roiSize, \
                       scaleFactor);                                                                        \
  }
#define VEMI_SRC_VALUES_DST_SFS(name, T, ...)                                                                \
  VemiStatus name(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, VemiSize roiSize,        \
                  int scaleFactor) {                                                                         \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, value, Image<T>{pDst, dstStep}, roiSize, scaleFactor); \
  }
#define VEMI_VALUES_SRCDST_SFS(name, T, ...)                                                               \
  VemiStatus name(const T* value, T* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor) {         \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, value, Image<T>{pSrcDst, srcDstStep}, roiSize, \
                       scaleFactor);                                                                       \
  }

// In place without a second operand: the source is the destination.
#define VEMI_SRCDST(name, T, ...)                                                                    \
  VemiStatus name(T* pSrcDst, int srcDstStep, VemiSize roiSize) {                                    \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }

// One source, one destination, and a scale factor.
#define VEMI_SRC_DST_SFS(name, T, ...)                                                                   \
  VemiStatus name(const T* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize, int scaleFactor) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize, scaleFactor);    \
  }
#define VEMI_SRCDST_SFS(name, T, ...)                                                                             \
  VemiStatus name(T* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor) {                                \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, Image<T>{pSrcDst, srcDstStep}, roiSize, scaleFactor); \
  }

// A source and a destination, or one image in place, and what a family takes behind the region: a list of parameters,
// and the list in which they are handed on, both in parentheses.
#define VEMI_LIST(...) __VA_ARGS__
#define VEMI_SRC_DST_AND(name, T, parameters, arguments, ...)                                                 \
  VemiStatus name(const T* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize, VEMI_LIST parameters) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize, VEMI_LIST arguments); \
  }
#define VEMI_SRCDST_AND(name, T, parameters, arguments, ...)                                        \
  VemiStatus name(T* pSrcDst, int srcDstStep, VemiSize roiSize, VEMI_LIST parameters) {             \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, Image<T>{pSrcDst, srcDstStep}, roiSize, \
                       VEMI_LIST arguments);                                                        \
  }

// A source of one element type and a destination of another; with what a conversion is told besides.
#define VEMI_CONVERSION(name, S, T, ...)                                                 \
  VemiStatus name(const S* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize) {  \
    return __VA_ARGS__(Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize); \
  }
#define VEMI_CONVERSION_MODE(name, S, T, ...)                                                     \
  VemiStatus name(const S* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize, int mode) { \
    return __VA_ARGS__(Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize, mode);    \
  }

// Planes to planes; in place, the source is the destination.
#define VEMI_PLANES_PLANES(name, T, planes, ...)                                                                    \
  VemiStatus name(const T* const pSrc[planes], int srcStep, T* const pDst[planes], int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Planes<const T, planes>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, roiSize);          \
  }
#define VEMI_PLANES_SRCDST(name, T, planes, ...)                                                                       \
  VemiStatus name(T* const pSrcDst[planes], int srcDstStep, VemiSize roiSize) {                                        \
    return __VA_ARGS__(Planes<const T, planes>{pSrcDst, srcDstStep}, Planes<T, planes>{pSrcDst, srcDstStep}, roiSize); \
  }
