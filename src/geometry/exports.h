// The heads of warps: how images and their regions enter, and what several families take behind them. `Regions` is
// geometry/warp.h's.
#pragma once

#include "core/exports.h"

#define VEMI_WARP(T, ...)                                                                                           \
  VEMI_HEAD((const T* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, T* pDst, int dstStep, VemiRect dstRoi), \
            (Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, Regions{srcSize, srcRoi, dstRoi}), __VA_ARGS__)
#define VEMI_WARP_PLANES(T, planes, ...)                                                                            \
  VEMI_HEAD(                                                                                                        \
      (const T* const pSrc[planes], VemiSize srcSize, int srcStep, VemiRect srcRoi, T* const pDst[planes],          \
       int dstStep, VemiRect dstRoi),                                                                               \
      (Planes<const T, planes>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, Regions{srcSize, srcRoi, dstRoi}), \
      __VA_ARGS__)

// From a quadrangle to another.
#define VEMI_WARP_QUAD(T)                                                                                            \
  ((const T* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, const double srcQuad[4][2], T* pDst, int dstStep, \
    VemiRect dstRoi, const double dstQuad[4][2], vemiInterpolation interpolation),                                   \
   (Image<const T>{pSrc, srcStep}, Image<T>{pDst, dstStep}, Regions{srcSize, srcRoi, dstRoi}, srcQuad, dstQuad,      \
    interpolation))
#define VEMI_WARP_QUAD_PLANES(T, planes)                                                                               \
  ((const T* const pSrc[planes], VemiSize srcSize, int srcStep, VemiRect srcRoi, const double srcQuad[4][2],           \
    T* const pDst[planes], int dstStep, VemiRect dstRoi, const double dstQuad[4][2], vemiInterpolation interpolation), \
   (Planes<const T, planes>{pSrc, srcStep}, Planes<T, planes>{pDst, dstStep}, Regions{srcSize, srcRoi, dstRoi},        \
    srcQuad, dstQuad, interpolation))
