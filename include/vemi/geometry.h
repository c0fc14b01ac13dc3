/**
 * @file geometry.h
 * Geometry: images in another size, turned, straightened, bent and mirrored.
 */
#ifndef VEMI_GEOMETRY_H
#define VEMI_GEOMETRY_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_geometry Geometry
 *
 * Each pixel of the destination comes from a place in the source, which lies between pixels as a rule.
 * @{
 */

/** How a value between pixels is made. Each family says which of these it takes. */
typedef int vemiInterpolation;
enum {
  vemiInterNearest = 1,            /**< the nearest pixel */
  vemiInterLinear = 2,             /**< two pixels each way, weighted by their nearness */
  vemiInterCubic = 4,              /**< four pixels each way, by the cubic polynomial through them */
  vemiInterSuper = 8,              /**< the mean of all that a destination pixel covers */
  vemiInterLanczos = 16,           /**< six pixels each way, by a windowed sinc */
  vemiSmoothEdge = -2147483647 - 1 /**< bit 31, which warps take besides: edges are blended into what was there */
};

/* ---- Another size ---- */

/* ---- Affine warps ---- */

/* ---- Perspective and bilinear warps ---- */

/* ---- Maps of the user's ---- */

/* ---- Mirrors ---- */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
