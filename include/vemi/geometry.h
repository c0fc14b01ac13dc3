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
