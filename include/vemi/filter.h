/**
 * @file filter.h
 * Filters: what each pixel becomes by its neighbours.
 */
#ifndef VEMI_FILTER_H
#define VEMI_FILTER_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_filter Filters
 *
 * @{
 */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
