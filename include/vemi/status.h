/**
 * @file status.h
 * The number that nearly every function returns.
 */
#ifndef VEMI_STATUS_H
#define VEMI_STATUS_H

/**
 * @defgroup vemi_status Statuses
 *
 * The sign tells how a call ended:
 *
 * - **zero** (vemiOk): all was done.
 * - **negative**, an error: an argument was refused or memory was short. Nothing was written to the destination, unless
 *   the function's own description says that it was.
 * - **positive**, a warning: the call went through, the destination holds the result, and something about it is worth
 *   knowing (a pixel divided by zero, say, or a region that the operation did not reach).
 *
 * A call whose rows meet several conditions worth a warning finishes all of them and returns the first one that it met,
 * from the top row down, unless its description says otherwise.
 *
 * All arguments are tested before anything is written, and the first test that fails decides the status. The order is
 * fixed and part of the contract, and each family's description gives it. As a rule null pointers come first, the
 * pointers inside an array of planes among them; then size before step, or in some families step before size; last
 * whatever is special to the function. Some families, or single forms of them, look at a size or a constant before the
 * pointers, and say so. Where a description says "null, size, step", this is meant:
 *
 * - null: a pointer is null (vemiErrNullPtr);
 * - size: a width or a height is below 1 (vemiErrSize);
 * - step: a step is below 1, hence also a negative one (vemiErrStep).
 *
 * The status is all that is reported. Nothing is logged or printed, and no last error is kept.
 * @{
 */

/** A status: 0, an error below 0, or a warning above 0. */
typedef int VemiStatus;

/** Every status there is. */
enum {
  vemiOk = 0, /**< done, without remark */

  /* Warnings */
  vemiWarnNoOperation = 1,       /**< there was nothing to do, and nothing was done */
  vemiWarnSqrtNegative = 3,      /**< at least one square root was asked of a negative value */
  vemiWarnDivByZero = 6,         /**< at least one divisor was zero; a defined value stands in for the quotient */
  vemiWarnLnZero = 7,            /**< at least one logarithm was asked of zero */
  vemiWarnLnNegative = 8,        /**< at least one logarithm was asked of a negative value */
  vemiWarnNotParallelogram = 28, /**< the quadrangle is no parallelogram; three of its corners gave the transform */
  vemiWarnNoIntersection = 29,   /**< the source rectangle starts outside its image; nothing was done */
  vemiWarnQuadIntersection = 30, /**< the transformed quadrangle misses the destination; nothing was done */

  /* Errors in what nearly every function takes */
  vemiErrSize = -6,     /**< a width or height is below its minimum, which is 1 where nothing else is said */
  vemiErrNullPtr = -8,  /**< a pointer that is needed is null, also one inside an array of planes */
  vemiErrMemAlloc = -9, /**< memory that the function needed for itself could not be had */
  vemiErrStep = -14,    /**< a step is below 1 */
  vemiErrStride = -37,  /**< a step is shorter than the row that it has to span */
  vemiErrContext = -17, /**< the state record was made by, or for, another kind of function */

  /* Errors in values and their ranges */
  vemiErrRange = -7,              /**< the lower bound lies above the upper one */
  vemiErrDivByZero = -10,         /**< a constant divisor is zero */
  vemiErrScaleRange = -13,        /**< the end of the value range does not lie above its start */
  vemiErrThreshold = -18,         /**< the upper threshold lies below the lower one */
  vemiErrEpsilon = -36,           /**< the tolerance is negative */
  vemiErrGammaRange = -49,        /**< the value range of the gamma curve is empty or upside down */
  vemiErrUnsupportedMode = -9999, /**< a threshold knows only vemiCmpLess and vemiCmpGreater */

  /* Errors in tables, palettes, levels and noise */
  vemiErrLutPaletteBits = -11,   /**< a palette index has 1 to 16 bits */
  vemiErrLutLevels = -106,       /**< a lookup table needs two levels or more */
  vemiErrHistogramLevels = -107, /**< a histogram needs two levels or more */
  vemiErrDitherLevels = -54,     /**< bit reduction goes to 2 to 256 levels */
  vemiErrNoiseRange = -55,       /**< the share of noise is a percentage, 0 to 100 */
  vemiErrNoiseValue = -125,      /**< the noise power is out of its range */

  /* Errors in channels */
  vemiErrChannelIndex = -47, /**< the state record has no channel of this index */
  vemiErrAlphaType = -50,    /**< no such way of compositing */
  vemiErrChannelCount = -53, /**< the number of channels is none of 1, 3 and 4 */
  vemiErrChannelOrder = -60, /**< an index in the channel order is outside 0 to 2 */

  /* Errors in masks and kernels of filters */
  vemiErrMaskSize = -33, /**< this filter has no mask of that size */
  vemiErrAnchor = -34,   /**< the anchor lies outside its mask */
  vemiErrDivisor = -51,  /**< the divisor of an integer kernel is zero */
  vemiErrZeroMask = -59, /**< the structuring mask has no element set */

  /* Errors in geometry */
  vemiErrMirrorFlip = -21,    /**< no such axis to mirror about */
  vemiErrInterpolation = -22, /**< this function has no such interpolation */
  vemiErrResizeFactor = -23,  /**< a resize factor is zero or negative */
  vemiErrQuad = -56,          /**< the transform makes of the rectangle a quadrangle that is degenerate or not convex */
  vemiErrRect = -57,          /**< the rectangle is degenerate: its width or height does not exceed 1 */
  vemiErrCoeff = -58,         /**< the quadrangle that was passed is degenerate or not convex */

  /* Errors in transforms and moments */
  vemiErrFftOrder = -15,   /**< the order of the transform is outside 0 to 30 */
  vemiErrFftFlag = -16,    /**< no such way of normalising the transform */
  vemiErrMomentZero = -20, /**< the moment to divide by is, to double precision, zero */

  /* Reserved: these numbers have names, but no exported function ever returns them. */
  vemiErrGeneric = -1, /**< never returned */
  vemiErrNoMem = -4,   /**< never returned; short memory is vemiErrMemAlloc */
  vemiErrBadArg = -5   /**< never returned */
};

/** @} */

#endif
