/**
 * @file color.h
 * Colour models: conversions between RGB and other models, planes and packed layouts of video, orders of channels,
 * matrices of the user's.
 */
#ifndef VEMI_COLOR_H
#define VEMI_COLOR_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_color Colour models
 *
 * @{
 */

/* ---- Luma and chroma ---- */

/* ---- Perceptual and device spaces ---- */

/* ---- Matrices of the user's ---- */

/* ---- Video layouts ---- */

/* ---- Orders of channels ---- */

/* ---- Packed 16-bit pixels ---- */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
