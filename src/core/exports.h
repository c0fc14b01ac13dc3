// One macro for each shape of signature. A family's export table names the function in full, its element type and the
// template instance that does the work; the macro spells the parameters once. No name is pasted together.
//
// A table stands behind `using namespace vemi;`, so that the instances can be named as the family's file names them.
#pragma once

#include "core/image.h"

// One source, one destination.
#define VEMI_SRC_DST(name, T, ...)                                                       \
  VemiStatus name(const T* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize) {  \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize); \
  }
#define VEMI_SRC_DST_MASK(name, T, ...)                                                                    \
  VemiStatus name(const T* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask, \
                  int maskStep) {                                                                          \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize,                    \
                       Image<const Vemi8u>{pMask, maskStep});                                              \
  }
#define VEMI_SRC_PLANES(name, T, planes, ...)                                                         \
  VemiStatus name(const T* pSrc, int srcStep, T* const pDst[planes], int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, roiSize);     \
  }
#define VEMI_PLANES_DST(name, T, planes, ...)                                                         \
  VemiStatus name(const T* const pSrc[planes], int srcStep, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Planes<const T, planes>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize);     \
  }

// A constant (one value, or one for each channel) and a destination. A single value is handed on by its address, so
// that one implementation serves both.
#define VEMI_VALUE_DST(name, T, ...)                                 \
  VemiStatus name(T value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(&value, Image<T>{pDst, dstStep}, roiSize);    \
  }
#define VEMI_VALUES_DST(name, T, ...)                                       \
  VemiStatus name(const T* value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(value, Image<T>{pDst, dstStep}, roiSize);            \
  }
#define VEMI_VALUE_DST_MASK(name, T, ...)                                                               \
  VemiStatus name(T value, T* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask, int maskStep) { \
    return __VA_ARGS__(&value, Image<T>{pDst, dstStep}, roiSize, Image<const Vemi8u>{pMask, maskStep}); \
  }
#define VEMI_VALUES_DST_MASK(name, T, ...)                                                                     \
  VemiStatus name(const T* value, T* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask, int maskStep) { \
    return __VA_ARGS__(value, Image<T>{pDst, dstStep}, roiSize, Image<const Vemi8u>{pMask, maskStep});         \
  }

// A source that lands inside a larger destination.
#define VEMI_BORDER(name, T, ...)                                                                             \
  VemiStatus name(const T* pSrc, int srcStep, VemiSize srcRoiSize, T* pDst, int dstStep, VemiSize dstRoiSize, \
                  int topBorderHeight, int leftBorderWidth) {                                                 \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, srcRoiSize, Image<T>{pDst, dstStep}, dstRoiSize,        \
                       topBorderHeight, leftBorderWidth);                                                     \
  }
#define VEMI_BORDER_VALUE(name, T, ...)                                                                       \
  VemiStatus name(const T* pSrc, int srcStep, VemiSize srcRoiSize, T* pDst, int dstStep, VemiSize dstRoiSize, \
                  int topBorderHeight, int leftBorderWidth, T value) {                                        \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, srcRoiSize, Image<T>{pDst, dstStep}, dstRoiSize,        \
                       topBorderHeight, leftBorderWidth, &value);                                             \
  }
#define VEMI_BORDER_VALUES(name, T, ...)                                                                      \
  VemiStatus name(const T* pSrc, int srcStep, VemiSize srcRoiSize, T* pDst, int dstStep, VemiSize dstRoiSize, \
                  int topBorderHeight, int leftBorderWidth, const T* value) {                                 \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, srcRoiSize, Image<T>{pDst, dstStep}, dstRoiSize,        \
                       topBorderHeight, leftBorderWidth, value);                                              \
  }

#define VEMI_BORDER_IN_PLACE(name, T, ...)                                                                    \
  VemiStatus name(T* pSrc, int srcDstStep, VemiSize srcRoiSize, VemiSize dstRoiSize, int topBorderHeight,     \
                  int leftBorderWidth) {                                                                      \
    return __VA_ARGS__(Image<T>{pSrc, srcDstStep}, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth); \
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

// A source and a count (or one for each channel).
#define VEMI_SRC_COUNT_DST(name, T, ...)                                                               \
  VemiStatus name(const T* pSrc, int srcStep, Vemi32u value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, &value, Image<T>{pDst, dstStep}, roiSize);       \
  }
#define VEMI_COUNT_SRCDST(name, T, ...)                                                                      \
  VemiStatus name(Vemi32u value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                             \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, &value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
  }
#define VEMI_SRC_COUNTS_DST(name, T, ...)                                                                     \
  VemiStatus name(const T* pSrc, int srcStep, const Vemi32u* value, T* pDst, int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, value, Image<T>{pDst, dstStep}, roiSize);               \
  }
#define VEMI_COUNTS_SRCDST(name, T, ...)                                                                    \
  VemiStatus name(const Vemi32u* value, T* pSrcDst, int srcDstStep, VemiSize roiSize) {                     \
    return __VA_ARGS__(Image<const T>{pSrcDst, srcDstStep}, value, Image<T>{pSrcDst, srcDstStep}, roiSize); \
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

// Two sources and the type of a composite, without and with an alpha for each source, and of four planes each.
#define VEMI_COMPOSITE(name, T, ...)                                                                                  \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, VemiSize roiSize, \
                  int alphaType) {                                                                                    \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, Image<T>{pDst, dstStep},     \
                       roiSize, alphaType);                                                                           \
  }
#define VEMI_COMPOSITE_PLANES(name, T, ...)                                                                       \
  VemiStatus name(const T* const pSrc1[4], int src1Step, const T* const pSrc2[4], int src2Step, T* const pDst[4], \
                  int dstStep, VemiSize roiSize, int alphaType) {                                                 \
    return __VA_ARGS__(Planes<const T, 4>{pSrc1, src1Step}, Planes<const T, 4>{pSrc2, src2Step},                  \
                       Planes<T, 4>{pDst, dstStep}, roiSize, alphaType);                                          \
  }
#define VEMI_COMPOSITE_C(name, T, ...)                                                                     \
  VemiStatus name(const T* pSrc1, int src1Step, T alpha1, const T* pSrc2, int src2Step, T alpha2, T* pDst, \
                  int dstStep, VemiSize roiSize, int alphaType) {                                          \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, alpha1, Image<const T>{pSrc2, src2Step}, alpha2,   \
                       Image<T>{pDst, dstStep}, roiSize, alphaType);                                       \
  }
#define VEMI_COMPOSITE_PLANES_C(name, T, ...)                                                                       \
  VemiStatus name(const T* const pSrc1[4], int src1Step, T alpha1, const T* const pSrc2[4], int src2Step, T alpha2, \
                  T* const pDst[4], int dstStep, VemiSize roiSize, int alphaType) {                                 \
    return __VA_ARGS__(Planes<const T, 4>{pSrc1, src1Step}, alpha1, Planes<const T, 4>{pSrc2, src2Step}, alpha2,    \
                       Planes<T, 4>{pDst, dstStep}, roiSize, alphaType);                                            \
  }

// Planes to planes, without and with a constant; in place, the source is the destination.
#define VEMI_PLANES_PLANES(name, T, planes, ...)                                                                    \
  VemiStatus name(const T* const pSrc[planes], int srcStep, T* const pDst[planes], int dstStep, VemiSize roiSize) { \
    return __VA_ARGS__(Planes<const T, planes>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, roiSize);          \
  }
#define VEMI_PLANES_SRCDST(name, T, planes, ...)                                                                       \
  VemiStatus name(T* const pSrcDst[planes], int srcDstStep, VemiSize roiSize) {                                        \
    return __VA_ARGS__(Planes<const T, planes>{pSrcDst, srcDstStep}, Planes<T, planes>{pSrcDst, srcDstStep}, roiSize); \
  }
#define VEMI_PLANES_VALUE_PLANES(name, T, planes, ...)                                                             \
  VemiStatus name(const T* const pSrc[planes], int srcStep, T value, T* const pDst[planes], int dstStep,           \
                  VemiSize roiSize) {                                                                              \
    return __VA_ARGS__(Planes<const T, planes>{pSrc, srcStep}, &value, Planes<T, planes>{pDst, dstStep}, roiSize); \
  }
#define VEMI_VALUE_PLANES_SRCDST(name, T, planes, ...)                                                               \
  VemiStatus name(T value, T* const pSrcDst[planes], int srcDstStep, VemiSize roiSize) {                             \
    return __VA_ARGS__(Planes<const T, planes>{pSrcDst, srcDstStep}, &value, Planes<T, planes>{pSrcDst, srcDstStep}, \
                       roiSize);                                                                                     \
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

// Thresholds: a limit, a limit and a value, a band of two limits with their values; BY an operator.
#define VEMI_SRC_DST_LIMIT(name, T, ...) VEMI_SRC_DST_AND(name, T, (T threshold), (&threshold), __VA_ARGS__)
#define VEMI_SRC_DST_LIMITS(name, T, ...) VEMI_SRC_DST_AND(name, T, (const T* threshold), (threshold), __VA_ARGS__)
#define VEMI_SRCDST_LIMIT(name, T, ...) VEMI_SRCDST_AND(name, T, (T threshold), (&threshold), __VA_ARGS__)
#define VEMI_SRCDST_LIMITS(name, T, ...) VEMI_SRCDST_AND(name, T, (const T* threshold), (threshold), __VA_ARGS__)
#define VEMI_SRC_DST_LIMIT_BY(name, T, ...) \
  VEMI_SRC_DST_AND(name, T, (T threshold, vemiCmpOp cmpOp), (cmpOp, &threshold), __VA_ARGS__)
#define VEMI_SRC_DST_LIMITS_BY(name, T, ...) \
  VEMI_SRC_DST_AND(name, T, (const T* threshold, vemiCmpOp cmpOp), (cmpOp, threshold), __VA_ARGS__)
#define VEMI_SRCDST_LIMIT_BY(name, T, ...) \
  VEMI_SRCDST_AND(name, T, (T threshold, vemiCmpOp cmpOp), (cmpOp, &threshold), __VA_ARGS__)
#define VEMI_SRCDST_LIMITS_BY(name, T, ...) \
  VEMI_SRCDST_AND(name, T, (const T* threshold, vemiCmpOp cmpOp), (cmpOp, threshold), __VA_ARGS__)
#define VEMI_SRC_DST_LIMIT_VALUE(name, T, ...) \
  VEMI_SRC_DST_AND(name, T, (T threshold, T value), (&threshold, &value), __VA_ARGS__)
#define VEMI_SRC_DST_LIMITS_VALUES(name, T, ...) \
  VEMI_SRC_DST_AND(name, T, (const T* threshold, const T* value), (threshold, value), __VA_ARGS__)
#define VEMI_SRCDST_LIMIT_VALUE(name, T, ...) \
  VEMI_SRCDST_AND(name, T, (T threshold, T value), (&threshold, &value), __VA_ARGS__)
#define VEMI_SRCDST_LIMITS_VALUES(name, T, ...) \
  VEMI_SRCDST_AND(name, T, (const T* threshold, const T* value), (threshold, value), __VA_ARGS__)
#define VEMI_SRC_DST_LIMIT_VALUE_BY(name, T, ...) \
  VEMI_SRC_DST_AND(name, T, (T threshold, T value, vemiCmpOp cmpOp), (cmpOp, &threshold, &value), __VA_ARGS__)
#define VEMI_SRC_DST_LIMITS_VALUES_BY(name, T, ...)                                                           \
  VEMI_SRC_DST_AND(name, T, (const T* threshold, const T* value, vemiCmpOp cmpOp), (cmpOp, threshold, value), \
                   __VA_ARGS__)
#define VEMI_SRCDST_LIMIT_VALUE_BY(name, T, ...) \
  VEMI_SRCDST_AND(name, T, (T threshold, T value, vemiCmpOp cmpOp), (cmpOp, &threshold, &value), __VA_ARGS__)
#define VEMI_SRCDST_LIMITS_VALUES_BY(name, T, ...)                                                           \
  VEMI_SRCDST_AND(name, T, (const T* threshold, const T* value, vemiCmpOp cmpOp), (cmpOp, threshold, value), \
                  __VA_ARGS__)
#define VEMI_SRC_DST_BAND(name, T, ...)                                           \
  VEMI_SRC_DST_AND(name, T, (T thresholdLT, T valueLT, T thresholdGT, T valueGT), \
                   (&thresholdLT, &valueLT, &thresholdGT, &valueGT), __VA_ARGS__)
#define VEMI_SRC_DST_BANDS(name, T, ...)                                                                      \
  VEMI_SRC_DST_AND(name, T, (const T* thresholdLT, const T* valueLT, const T* thresholdGT, const T* valueGT), \
                   (thresholdLT, valueLT, thresholdGT, valueGT), __VA_ARGS__)
#define VEMI_SRCDST_BAND(name, T, ...)                                           \
  VEMI_SRCDST_AND(name, T, (T thresholdLT, T valueLT, T thresholdGT, T valueGT), \
                  (&thresholdLT, &valueLT, &thresholdGT, &valueGT), __VA_ARGS__)
#define VEMI_SRCDST_BANDS(name, T, ...)                                                                      \
  VEMI_SRCDST_AND(name, T, (const T* thresholdLT, const T* valueLT, const T* thresholdGT, const T* valueGT), \
                  (thresholdLT, valueLT, thresholdGT, valueGT), __VA_ARGS__)

// A map of bytes out of two sources, or of a source and a constant, by an operator or a tolerance.
#define VEMI_2SRC_MAP(name, T, By, ...)                                                                                \
  VemiStatus name(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Vemi8u* pDst, int dstStep,               \
                  VemiSize roiSize, By by) {                                                                           \
    return __VA_ARGS__(Image<const T>{pSrc1, src1Step}, Image<const T>{pSrc2, src2Step}, Image<Vemi8u>{pDst, dstStep}, \
                       roiSize, by);                                                                                   \
  }
#define VEMI_SRC_VALUE_MAP(name, T, By, ...)                                                                 \
  VemiStatus name(const T* pSrc, int srcStep, T value, Vemi8u* pDst, int dstStep, VemiSize roiSize, By by) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, &value, Image<Vemi8u>{pDst, dstStep}, roiSize, by);    \
  }
#define VEMI_SRC_VALUES_MAP(name, T, By, ...)                                                                       \
  VemiStatus name(const T* pSrc, int srcStep, const T* value, Vemi8u* pDst, int dstStep, VemiSize roiSize, By by) { \
    return __VA_ARGS__(Image<const T>{pSrc, srcStep}, value, Image<Vemi8u>{pDst, dstStep}, roiSize, by);            \
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
#define VEMI_CONVERSION_RANGE(name, S, T, ...)                                                                      \
  VemiStatus name(const S* pSrc, int srcStep, T* pDst, int dstStep, VemiSize roiSize, Vemi32f vMin, Vemi32f vMax) { \
    return __VA_ARGS__(Image<const S>{pSrc, srcStep}, Image<T>{pDst, dstStep}, roiSize, vMin, vMax);                \
  }
