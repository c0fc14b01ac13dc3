/**
 * @file measure.h
 * Measurement: numbers out of images.
 */
#ifndef VEMI_MEASURE_H
#define VEMI_MEASURE_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_measure Measurement
 *
 * Each call reads a region and stores a few numbers about it.
 * @{
 */

/**
 * @defgroup vemi_reductions Reductions: what all of them share
 *
 * A reduction reads a region and stores a number for each channel:
 *
 *     C1          one value, through a plain pointer
 *     C3, AC4     an array of three values, for the channels 0, 1 and 2
 *     C4          an array of four values
 *
 * The fourth element of an AC4 pixel does not take part, but it must be readable memory like any other.
 *
 * Only the pixels of the region are read, and nothing but the results is written; after an error not even those.
 *
 * @anchor vemi_accuracy
 * **Accuracy.** Sums and sums of squares of 8u and 16s elements are exact integers of 64 bits, whatever the size of the
 * region, and are then converted to double. Those of 32f elements take a hint:
 *
 * - vemiHintAccurate (2): each element is widened to double, and doubles are added in the order of the elements, row by
 *   row. C1 forms have two accumulators, which take the elements of the whole region in turn, without a break from the
 *   end of one row to the start of the next, and are added at the end; the others have one for each channel. The result
 *   is that of the same additions written as a loop, to the bit.
 * - any other number: each row is added up in lanes of single precision (32 of them in C1, 16 for a channel in C3, 8 in
 *   C4 and AC4), which join a running total with a significand of 64 bits after each row, and after every 8192 elements
 *   (12288 in C3) of a longer one. That total is rounded to double. A lane takes no more than 256 elements before it is
 *   emptied, so the relative error of a sum of terms of one sign is below 256 * 2^-24, and about 2^-22 as a rule. It is
 *   several times as fast.
 *
 * Both give the same bits on every processor, in every build and for every alignment and step. Neither looks out for
 * overflow, infinities or NaN: they go the way of IEEE 754 arithmetic, in the fast way in single precision. There, a
 * square overflows from 1.8e19 on.
 *
 * @anchor vemi_extremes_nan
 * **NaN.** Extremes (vemiMin to vemiMaxIndx, and the norms called Inf) pass over NaN elements, as if they were not
 * there, and a count never counts them.
 *
 * **Overlap.** Sources may overlap each other in any way; results lie outside of them.
 *
 * **Statuses**, in the order of the tests, unless a family says otherwise: null, size, step (see status.h). Arrays of
 * results and limits are among the pointers.
 *
 * **Threads.** All run in the calling thread.
 */

/**
 * @defgroup vemi_sum vemiSum: sum of all elements
 *
 *     *pSum = sum of pSrc(x, y) over the region, for each channel
 *
 * 8u and 16s sums are exact; for 32f see @ref vemi_accuracy "Accuracy".
 *
 *     8u   1 2 3 4               ->  10
 *     16s  -32768 -32768         ->  -65536
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pSum          one double for each channel
 * @param hint          32f forms: a vemiHint
 *
 * **Statuses**: null, size, step.
 *
 *     double sum[3];
 *     vemiSum_8u_C3R(photo, step, size, sum);
 * @{
 */

VEMI_API VemiStatus vemiSum_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pSum);
VEMI_API VemiStatus vemiSum_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3]);
VEMI_API VemiStatus vemiSum_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[4]);
VEMI_API VemiStatus vemiSum_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3]);

VEMI_API VemiStatus vemiSum_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pSum);
VEMI_API VemiStatus vemiSum_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3]);
VEMI_API VemiStatus vemiSum_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[4]);
VEMI_API VemiStatus vemiSum_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3]);

VEMI_API VemiStatus vemiSum_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pSum, vemiHint hint);
VEMI_API VemiStatus vemiSum_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3], vemiHint hint);
VEMI_API VemiStatus vemiSum_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[4], vemiHint hint);
VEMI_API VemiStatus vemiSum_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pSum[3],
                                     vemiHint hint);

/** @} */

/**
 * @defgroup vemi_mean vemiMean: mean of all elements
 *
 *     *pMean = sum of pSrc(x, y) / (width * height), for each channel
 *
 * The sum is that of vemiSum, with the same hint. With n the double of width * height, C1 forms divide it by n; the
 * others form 1.0 / n once and multiply each channel's sum by it, so that their results may differ from those of a C1
 * form in the last bit. The product width * height is one of 32 bits: regions of 2^31 pixels and more are beyond this
 * family (take vemiSum and divide).
 *
 *     8u   1 2 2                 ->  1.6666666666666667
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pMean         one double for each channel
 * @param hint          32f forms: a vemiHint
 *
 * **Statuses**: null, size, step.
 *
 *     vemiMean_8u_C3R(photo, step, size, mean);    // of each channel
 * @{
 */

VEMI_API VemiStatus vemiMean_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pMean);
VEMI_API VemiStatus vemiMean_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3]);
VEMI_API VemiStatus vemiMean_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[4]);
VEMI_API VemiStatus vemiMean_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3]);

VEMI_API VemiStatus vemiMean_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pMean);
VEMI_API VemiStatus vemiMean_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3]);
VEMI_API VemiStatus vemiMean_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[4]);
VEMI_API VemiStatus vemiMean_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3]);

VEMI_API VemiStatus vemiMean_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pMean, vemiHint hint);
VEMI_API VemiStatus vemiMean_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3],
                                     vemiHint hint);
VEMI_API VemiStatus vemiMean_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[4],
                                     vemiHint hint);
VEMI_API VemiStatus vemiMean_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pMean[3],
                                      vemiHint hint);

/** @} */

/**
 * @defgroup vemi_extrema vemiMin, vemiMax, vemiMinMax: extremes
 *
 *     *pMin = the smallest pSrc(x, y) of the region, for each channel
 *     *pMax = the largest
 *
 * Results are of the element type. In 32f forms NaN elements are passed over; a channel of nothing but NaN gives
 * +infinity as its minimum and -infinity as its maximum. Where the extreme is a zero, -0 counts as lower than +0.
 *
 *     16s    3 -7 5              ->  minimum -7, maximum 5
 *     32f    NaN 2.5 -inf        ->  minimum -inf, maximum 2.5
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pMin,pMax     one element for each channel
 *
 * **Statuses**: null, size, step.
 *
 *     vemiMinMax_8u_C3R(photo, step, size, darkest, brightest);    // three of each
 * @{
 */

VEMI_API VemiStatus vemiMin_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u* pMin);
VEMI_API VemiStatus vemiMin_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3]);
VEMI_API VemiStatus vemiMin_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[4]);
VEMI_API VemiStatus vemiMin_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3]);

VEMI_API VemiStatus vemiMin_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s* pMin);
VEMI_API VemiStatus vemiMin_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3]);
VEMI_API VemiStatus vemiMin_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[4]);
VEMI_API VemiStatus vemiMin_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3]);

VEMI_API VemiStatus vemiMin_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f* pMin);
VEMI_API VemiStatus vemiMin_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3]);
VEMI_API VemiStatus vemiMin_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[4]);
VEMI_API VemiStatus vemiMin_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3]);

VEMI_API VemiStatus vemiMax_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u* pMax);
VEMI_API VemiStatus vemiMax_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[3]);
VEMI_API VemiStatus vemiMax_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[4]);
VEMI_API VemiStatus vemiMax_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[3]);

VEMI_API VemiStatus vemiMax_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s* pMax);
VEMI_API VemiStatus vemiMax_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[3]);
VEMI_API VemiStatus vemiMax_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[4]);
VEMI_API VemiStatus vemiMax_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[3]);

VEMI_API VemiStatus vemiMax_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f* pMax);
VEMI_API VemiStatus vemiMax_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[3]);
VEMI_API VemiStatus vemiMax_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[4]);
VEMI_API VemiStatus vemiMax_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[3]);

VEMI_API VemiStatus vemiMinMax_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u* pMin, Vemi8u* pMax);
VEMI_API VemiStatus vemiMinMax_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3],
                                      Vemi8u pMax[3]);
VEMI_API VemiStatus vemiMinMax_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[4],
                                      Vemi8u pMax[4]);
VEMI_API VemiStatus vemiMinMax_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3],
                                       Vemi8u pMax[3]);

VEMI_API VemiStatus vemiMinMax_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s* pMin,
                                       Vemi16s* pMax);
VEMI_API VemiStatus vemiMinMax_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3],
                                       Vemi16s pMax[3]);
VEMI_API VemiStatus vemiMinMax_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[4],
                                       Vemi16s pMax[4]);
VEMI_API VemiStatus vemiMinMax_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3],
                                        Vemi16s pMax[3]);

VEMI_API VemiStatus vemiMinMax_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f* pMin,
                                       Vemi32f* pMax);
VEMI_API VemiStatus vemiMinMax_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3],
                                       Vemi32f pMax[3]);
VEMI_API VemiStatus vemiMinMax_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[4],
                                       Vemi32f pMax[4]);
VEMI_API VemiStatus vemiMinMax_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3],
                                        Vemi32f pMax[3]);

/** @} */

/**
 * @defgroup vemi_extrema_index vemiMinIndx, vemiMaxIndx: extremes and where they are
 *
 * The extreme of each channel, and the place where it is met first: of several equal ones that in the topmost row, and
 * in this row the leftmost. Positions are in pixels, from (0, 0) at the region's first pixel. Each channel has a
 * position of its own.
 *
 *     8u    5 2 9
 *           2 9 4                ->  minimum 2 at (1, 0), maximum 9 at (2, 0)
 *
 * **32f.** The search starts from the largest finite float, 3.4028235e+38, for a minimum and from the lowest,
 * -3.4028235e+38, for a maximum, at (0, 0), and only a value that is strictly better replaces it. So a channel in which
 * every element is +infinity, that float or NaN has the minimum 3.4028235e+38 at (0, 0), and likewise below zero for a
 * maximum. NaN elements are passed over. Zeros of both signs are equal: the one that is met first is the result.
 *
 * @param pSrc,srcStep     first pixel of the source, and the bytes between its rows
 * @param roiSize          size of the region in pixels
 * @param pMin,pMax        one element for each channel
 * @param pIndexX,pIndexY  column and row of that element, one of each for each channel
 *
 * **Statuses**: null, size, step.
 *
 *     Vemi8u darkest;
 *     int x, y;
 *     vemiMinIndx_8u_C1R(frame, step, size, &darkest, &x, &y);
 * @{
 */

VEMI_API VemiStatus vemiMinIndx_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u* pMin, int* pIndexX,
                                       int* pIndexY);
VEMI_API VemiStatus vemiMinIndx_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMinIndx_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[4],
                                       int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMinIndx_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMin[3],
                                        int pIndexX[3], int pIndexY[3]);

VEMI_API VemiStatus vemiMinIndx_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s* pMin, int* pIndexX,
                                        int* pIndexY);
VEMI_API VemiStatus vemiMinIndx_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3],
                                        int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMinIndx_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[4],
                                        int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMinIndx_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMin[3],
                                         int pIndexX[3], int pIndexY[3]);

VEMI_API VemiStatus vemiMinIndx_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f* pMin, int* pIndexX,
                                        int* pIndexY);
VEMI_API VemiStatus vemiMinIndx_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3],
                                        int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMinIndx_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[4],
                                        int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMinIndx_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMin[3],
                                         int pIndexX[3], int pIndexY[3]);

VEMI_API VemiStatus vemiMaxIndx_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u* pMax, int* pIndexX,
                                       int* pIndexY);
VEMI_API VemiStatus vemiMaxIndx_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[3],
                                       int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMaxIndx_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[4],
                                       int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMaxIndx_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi8u pMax[3],
                                        int pIndexX[3], int pIndexY[3]);

VEMI_API VemiStatus vemiMaxIndx_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s* pMax, int* pIndexX,
                                        int* pIndexY);
VEMI_API VemiStatus vemiMaxIndx_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[3],
                                        int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMaxIndx_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[4],
                                        int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMaxIndx_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi16s pMax[3],
                                         int pIndexX[3], int pIndexY[3]);

VEMI_API VemiStatus vemiMaxIndx_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f* pMax, int* pIndexX,
                                        int* pIndexY);
VEMI_API VemiStatus vemiMaxIndx_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[3],
                                        int pIndexX[3], int pIndexY[3]);
VEMI_API VemiStatus vemiMaxIndx_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[4],
                                        int pIndexX[4], int pIndexY[4]);
VEMI_API VemiStatus vemiMaxIndx_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32f pMax[3],
                                         int pIndexX[3], int pIndexY[3]);

/** @} */

/**
 * @defgroup vemi_count vemiCountInRange: number of elements in a range
 *
 *     *pCounts = number of elements with lower <= pSrc(x, y) <= upper, for each channel
 *
 * Both limits are in the range, so equal ones count a single value. C1 forms take them by value; the others take arrays
 * of three, one for each channel, and count each channel by itself. A NaN is in no range, and a limit that is NaN
 * leaves nothing in it. Counts are exact, modulo 2^32.
 *
 *     8u   10 20 30 20,  lower = 20, upper = 30    ->  3
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pCounts       one count for each channel
 * @param lower,upper   the limits, of the element type
 *
 * **Statuses**, in the order of the tests: null, step, size; then vemiErrRange where lower > upper, in any channel.
 *
 *     vemiCountInRange_8u_C1R(image, step, size, &dark, 0, 15);
 * @{
 */

VEMI_API VemiStatus vemiCountInRange_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pCounts,
                                            Vemi8u lower, Vemi8u upper);
VEMI_API VemiStatus vemiCountInRange_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s pCounts[3],
                                            const Vemi8u lower[3], const Vemi8u upper[3]);
VEMI_API VemiStatus vemiCountInRange_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s pCounts[3],
                                             const Vemi8u lower[3], const Vemi8u upper[3]);

VEMI_API VemiStatus vemiCountInRange_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pCounts,
                                             Vemi32f lower, Vemi32f upper);
VEMI_API VemiStatus vemiCountInRange_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32s pCounts[3],
                                             const Vemi32f lower[3], const Vemi32f upper[3]);
VEMI_API VemiStatus vemiCountInRange_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32s pCounts[3],
                                              const Vemi32f lower[3], const Vemi32f upper[3]);

/** @} */

/**
 * @defgroup vemi_norm vemiNorm: norms of an image
 *
 *     vemiNorm_Inf    *pValue = the largest |pSrc(x, y)|
 *     vemiNorm_L1     *pValue = sum of |pSrc(x, y)|
 *     vemiNorm_L2     *pValue = root of the sum of pSrc(x, y)^2
 *
 * for each channel. Nothing saturates: |-32768| is 32768 and, in vemiNorm_Inf_32s_C1R, |-2147483648| is 2147483648. The
 * root is taken in double precision once the sum is complete. The sums of L1 and L2 are exact for 8u and 16s; for 32f
 * see @ref vemi_accuracy "Accuracy". The 32f Inf forms have no hint: they compare floats, and pass over NaN; a
 * channel of nothing but NaN has the norm 0.
 *
 *     16s  3 -4                  ->  Inf 4, L1 7, L2 5
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pValue        one double for each channel
 * @param hint          32f forms of L1 and L2: a vemiHint
 *
 * **Statuses**: null, size, step.
 *
 *     vemiNorm_L2_32f_C1R(image, step, size, &length, vemiHintAccurate);
 * @{
 */

VEMI_API VemiStatus vemiNorm_Inf_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_Inf_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_Inf_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_Inf_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_Inf_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_Inf_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_Inf_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_Inf_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_Inf_32s_C1R(const Vemi32s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);

VEMI_API VemiStatus vemiNorm_Inf_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_Inf_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_Inf_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_Inf_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_L1_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_L1_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_L1_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_L1_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_L1_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_L1_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_L1_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_L1_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_L1_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue,
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L1_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3],
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L1_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4],
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L1_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3],
                                         vemiHint hint);

VEMI_API VemiStatus vemiNorm_L2_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_L2_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_L2_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_L2_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_L2_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNorm_L2_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNorm_L2_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNorm_L2_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNorm_L2_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f* pValue,
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L2_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3],
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L2_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[4],
                                        vemiHint hint);
VEMI_API VemiStatus vemiNorm_L2_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi64f pValue[3],
                                         vemiHint hint);

/** @} */

/**
 * @defgroup vemi_norm_diff vemiNormDiff: norms of the difference of two images
 *
 *     vemiNormDiff_Inf    *pValue = the largest |pSrc1(x, y) - pSrc2(x, y)|
 *     vemiNormDiff_L1     *pValue = sum of |pSrc1(x, y) - pSrc2(x, y)|
 *     vemiNormDiff_L2     *pValue = root of the sum of (pSrc1(x, y) - pSrc2(x, y))^2
 *
 * for each channel. Integer differences are exact, up to 65535 for 16s. 32f differences are formed in double for the
 * hint vemiHintAccurate, and in single precision for any other hint and in the Inf forms. All else is as in vemiNorm.
 *
 * @param pSrc1,src1Step  first pixel of the first source, and the bytes between its rows
 * @param pSrc2,src2Step  the same of the second source
 * @param roiSize         size of the region in pixels
 * @param pValue          one double for each channel
 * @param hint            32f forms of L1 and L2: a vemiHint
 *
 * **Statuses**: null, size, step.
 *
 *     double rms;   // of two grey pictures
 *     vemiNormDiff_L2_8u_C1R(a, aStep, b, bStep, size, &rms);
 *     rms /= sqrt((double)size.width * size.height);
 * @{
 */

VEMI_API VemiStatus vemiNormDiff_Inf_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_Inf_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_Inf_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_Inf_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_Inf_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_Inf_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_Inf_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_Inf_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                              VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_Inf_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_Inf_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_Inf_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_Inf_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                              VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_L1_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_L1_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_L1_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_L1_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_L1_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_L1_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_L1_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_L1_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_L1_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue, vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L1_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L1_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4], vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L1_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);

VEMI_API VemiStatus vemiNormDiff_L2_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_L2_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_L2_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_L2_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_L2_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormDiff_L2_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormDiff_L2_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormDiff_L2_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormDiff_L2_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue, vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L2_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L2_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4], vemiHint hint);
VEMI_API VemiStatus vemiNormDiff_L2_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);

/** @} */

/**
 * @defgroup vemi_norm_rel vemiNormRel: norms of a difference, relative to an image
 *
 *     *pValue = vemiNormDiff of pSrc1 and pSrc2 / vemiNorm of pSrc2
 *
 * for each channel, with the norms of the same name and the same hint, divided in double precision. A divisor below
 * 2.2250738585072014e-308 (the smallest normal double) counts as zero. If the divisor of any channel is zero, no
 * channel is divided: pValue receives the norms of the difference as they are, and the call returns vemiWarnDivByZero.
 *
 *     8u   pSrc1: 6 8   pSrc2: 3 4    ->  L1 7/7 = 1, L2 5/5 = 1, Inf 4/4 = 1
 *     8u   pSrc1: 6 8   pSrc2: 0 0    ->  L1 14, with vemiWarnDivByZero
 *
 * @param pSrc1,src1Step  first pixel of the first source, and the bytes between its rows
 * @param pSrc2,src2Step  the same of the second source, whose norm is the unit
 * @param roiSize         size of the region in pixels
 * @param pValue          one double for each channel
 * @param hint            32f forms of L1 and L2: a vemiHint
 *
 * **Statuses**: null, size, step; vemiWarnDivByZero as above, with pValue written.
 *
 *     vemiNormRel_L2_8u_C1R(coded, codedStep, image, step, size, &error);    // 0.02: two percent off
 * @{
 */

VEMI_API VemiStatus vemiNormRel_Inf_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_Inf_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_Inf_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_Inf_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_Inf_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_Inf_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_Inf_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_Inf_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_Inf_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_Inf_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_Inf_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_Inf_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_L1_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_L1_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_L1_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_L1_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_L1_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_L1_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_L1_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_L1_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_L1_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue, vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L1_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L1_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4], vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L1_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);

VEMI_API VemiStatus vemiNormRel_L2_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_L2_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_L2_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_L2_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_L2_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue);
VEMI_API VemiStatus vemiNormRel_L2_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3]);
VEMI_API VemiStatus vemiNormRel_L2_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4]);
VEMI_API VemiStatus vemiNormRel_L2_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3]);

VEMI_API VemiStatus vemiNormRel_L2_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f* pValue, vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L2_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L2_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                           VemiSize roiSize, Vemi64f pValue[4], vemiHint hint);
VEMI_API VemiStatus vemiNormRel_L2_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                            VemiSize roiSize, Vemi64f pValue[3], vemiHint hint);

/** @} */

/**
 * @defgroup vemi_moment_state Moment states
 *
 * A state is where vemiMoments64f or vemiMoments64s leaves the sums of an image, for up to three channels:
 *
 *     S(m, n) = sum of x^m * y^n * f(x, y)    over the region, m + n <= 3, x and y counted from 0 at its top left pixel
 *
 * and where any number of vemiGet... calls then read moments from. There are two kinds. The sums of a **64f** state are
 * doubles. The sums of a **64s** state are integers of 64 bits, and exact: its getters give integers, scaled by a power
 * of two. The functions of one kind answer a state of the other with vemiErrContext.
 *
 * A state is made by vemiMomentInitAlloc and released by vemiMomentFree; a 64s state may also be the caller's memory,
 * which vemiMomentInit_64s makes a state of, and which is not to be passed to vemiMomentFree. What a state holds is
 * read through functions alone: a program knows its address, and where the memory is its own, its size. Until
 * vemiMoments has run, a state has no channels, and each getter returns vemiErrChannelIndex. Running it again
 * overwrites the sums. A call that writes a state must be the only one that uses it; getters only read, and may share a
 * state among threads.
 *
 *     VemiMomentState* state;
 *     Vemi64f area, sumX, sumY;
 *     vemiMomentInitAlloc_64f(&state, vemiHintFast);
 *     vemiMoments64f_8u_C1R(image, step, size, state);
 *     vemiGetSpatialMoment_64f(state, 0, 0, 0, 0, 0, &area);
 *     vemiGetSpatialMoment_64f(state, 1, 0, 0, 0, 0, &sumX);
 *     vemiGetSpatialMoment_64f(state, 0, 1, 0, 0, 0, &sumY);
 *     vemiMomentFree_64f(state);                               // the centroid is (sumX / area, sumY / area)
 * @{
 */

/** A state of either kind. */
typedef struct VemiMomentState VemiMomentState;

/**
 * Makes a state without channels.
 *
 * @param ppState  where the address of the new state is stored; untouched after an error
 * @param hint     of a 64f state: vemiHintAccurate has vemiMoments64f sum pixel by pixel, any other number fast. A 64s
 *                 state keeps the hint and does not use it.
 *
 * **Statuses**: vemiErrNullPtr; vemiErrMemAlloc.
 */

VEMI_API VemiStatus vemiMomentInitAlloc_64f(VemiMomentState** ppState, vemiHint hint);
VEMI_API VemiStatus vemiMomentInitAlloc_64s(VemiMomentState** ppState, vemiHint hint);

/**
 * Releases a state that vemiMomentInitAlloc made.
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr; vemiErrContext for a state of the other kind.
 */

VEMI_API VemiStatus vemiMomentFree_64f(VemiMomentState* pState);
VEMI_API VemiStatus vemiMomentFree_64s(VemiMomentState* pState);

/**
 * Makes a 64s state without channels out of memory that the caller owns: as many bytes as vemiMomentGetStateSize_64s
 * tells, aligned for 64-bit integers.
 *
 * **Status**: vemiErrNullPtr.
 */

VEMI_API VemiStatus vemiMomentInit_64s(VemiMomentState* pState, vemiHint hint);

/**
 * Stores the size of a 64s state in bytes: 400, whatever the hint.
 *
 * **Status**: vemiErrNullPtr.
 */

VEMI_API VemiStatus vemiMomentGetStateSize_64s(vemiHint hint, int* pSize);

/** @} */

/**
 * @defgroup vemi_moments vemiMoments64f, vemiMoments64s: the sums of an image
 *
 * One pass over the region, which replaces what the state held: the ten sums S(m, n) above for each channel. C1 forms
 * leave a state of one channel, C3 and AC4 forms one of three; AC4 forms pass over the fourth element of a pixel.
 *
 * **64s of 8u.** Exact integers, modulo 2^64. S(3, 0) and S(0, 3), the largest, leave the range of 64 bits where a
 * white image is larger than about 2700 x 2700; all sums of order 2 fit up to about 18000 x 18000.
 *
 * **64f of 8u.** The fast way sums integers within pieces of a row and doubles beyond, so every sum below 2^53 is
 * exact, as it is in the accurate way; larger ones are rounded, once for each piece of 896 pixels and once for each row
 * in the fast way, once for each pixel in the accurate one.
 *
 * **64f of 32f.** All arithmetic is in double precision. The fast way forms the sums of x^m * f of a row piece of 1024
 * pixels in eight strands of columns, adds the strands, then the pieces, and takes the row in under y^n. The accurate
 * way keeps one running sum for each S(m, n), from left to right and top to bottom, and adds x^m * (y^n * f) to it.
 * Both are the same bits on every processor. They differ by roundings of doubles only, which shows where values cancel.
 * A NaN or an infinity in the image makes NaNs or infinities of the sums that it takes part in.
 *
 * @param pSrc,srcStep  first pixel of the image, and the bytes between its rows; a row must fit the step
 * @param roiSize       size of the region in pixels
 * @param pState        state of the kind in the function's name (64f or 64s)
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr; vemiErrContext; step; size; vemiErrStride where
 * roiSize.width times the bytes of a pixel (1, 3 and 4 in 8u, 4, 12 and 16 in 32f) exceeds srcStep. Mind that
 * vemiErrStep comes before vemiErrSize.
 *
 * **Threads.** All forms run in the calling thread.
 * @{
 */

VEMI_API VemiStatus vemiMoments64f_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64f_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64f_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64f_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64f_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64f_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize,
                                            VemiMomentState* pState);

VEMI_API VemiStatus vemiMoments64s_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64s_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);
VEMI_API VemiStatus vemiMoments64s_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, VemiMomentState* pState);

/** @} */

/**
 * @defgroup vemi_moment_getters Spatial, central, normalised and Hu moments
 *
 * Numbers from the sums of a state, without the image. All are computed in double precision from the sums S.
 *
 * **Spatial**, of order m + n <= 3, as if the region's first pixel stood at (X, Y) = (offsetX, offsetY):
 *
 *     M(m, n) = sum of (x + X)^m * (y + Y)^n * f(x, y)
 *
 * expanded into the sums S by binomials, so that M(1, 0) = X * S(0, 0) + S(1, 0), and M(m, n) = S(m, n) at (0, 0).
 *
 * **Central**, about the centroid (x0, y0) = (S(1, 0) / S(0, 0), S(0, 1) / S(0, 0)):
 *
 *     c(m, n) = sum of (x - x0)^m * (y - y0)^n * f(x, y)
 *
 * again from the sums: c(2, 0) = S(2, 0) - x0 * S(1, 0) and so on, c(1, 0) = c(0, 1) = 0 exactly, c(0, 0) = S(0, 0).
 *
 * **Normalised**: M or c times S(0, 0)^(-(m + n + 2) / 2). With s = S(0, 0) this power is one of
 *
 *     m + n = 0    1 / s
 *     m + n = 1    1 / (s * root of s)
 *     m + n = 2    1 / (s * s)
 *     m + n = 3    1 / (s * s * root of s)
 *
 * computed with significands of 64 bits and then rounded to double, which gives the same bits on every processor. The
 * root of a negative s is NaN, and so is the power, except that that of -infinity is 0. A normalised central moment
 * does not change when the picture is moved or scaled.
 *
 * **Hu.** Seven numbers that do not change either when the picture is turned (M.-K. Hu, Visual pattern recognition by
 * moment invariants, 1962), of the normalised central moments e, with p = e30 + e12, q = e21 + e03, r = e12 + e03,
 * s = e30 - 3 e12, t = 3 e21 - e03:
 *
 *     pHu[0] = e20 + e02
 *     pHu[1] = (e20 - e02)^2 + 4 e11^2
 *     pHu[2] = t^2 + s^2
 *     pHu[3] = p^2 + q^2
 *     pHu[4] = s p (r^2 - 3 q^2) + t q (3 p^2 - q^2)
 *     pHu[5] = (p^2 - q^2) (e20 - e02) + 4 e11 p q
 *     pHu[6] = t p (p^2 - 3 q^2) - q s (3 p^2 - q^2)
 *
 * The first bracket of pHu[4] has r where the published invariant has p: this one is not invariant under rotation. That
 * is deliberate and will stay.
 *
 * **64f** forms give doubles. **64s** forms take the sums as doubles, compute the same, divide by 2^scaleFactor
 * (multiply where it is negative) and convert to an integer in the rounding mode of the processor, to nearest with ties
 * to even unless the program changed it. What does not fit, NaN included, becomes the smallest 64-bit integer. Every
 * scaleFactor is legal:
 *
 *     S(0, 0) = 3     scaleFactor  1    1.5 ->  2
 *     S(0, 0) = 5     scaleFactor  1    2.5 ->  2
 *     S(0, 0) = 3     scaleFactor -2    12
 *
 * Normalised moments are small numbers; a scale factor of -20 or -30 keeps their digits.
 *
 * @param pState           state of the kind in the function's name
 * @param mOrd,nOrd        orders in x and y, not negative, together at most 3
 * @param nChannel         channel, from 0
 * @param offsetX,offsetY  column and row at which the region begins, any int
 * @param pValue           where the result is stored
 * @param pHu              array of seven results
 * @param scaleFactor      as above
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr; vemiErrContext; vemiErrSize for orders out of range (not in
 * vemiGetHuMoments); vemiErrChannelIndex for a channel that the state does not have; and in all but
 * vemiGetSpatialMoment vemiErrMomentZero where |S(0, 0)| is at most 2.220446049250313e-16, whatever the orders. Errors
 * leave the result alone, with one exception: on vemiErrMomentZero, vemiGetNormalizedSpatialMoment has stored what
 * vemiGetSpatialMoment gives.
 *
 *     vemiGetHuMoments_64f(state, 0, hu);    // of channel 0: the same of a shape that is moved, turned, or larger
 * @{
 */

VEMI_API VemiStatus vemiGetSpatialMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                             int offsetX, int offsetY, Vemi64f* pValue);
VEMI_API VemiStatus vemiGetSpatialMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                             int offsetX, int offsetY, Vemi64s* pValue, int scaleFactor);

VEMI_API VemiStatus vemiGetNormalizedSpatialMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                                       int offsetX, int offsetY, Vemi64f* pValue);
VEMI_API VemiStatus vemiGetNormalizedSpatialMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                                       int offsetX, int offsetY, Vemi64s* pValue, int scaleFactor);

VEMI_API VemiStatus vemiGetCentralMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                             Vemi64f* pValue);
VEMI_API VemiStatus vemiGetCentralMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                             Vemi64s* pValue, int scaleFactor);

VEMI_API VemiStatus vemiGetNormalizedCentralMoment_64f(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                                       Vemi64f* pValue);
VEMI_API VemiStatus vemiGetNormalizedCentralMoment_64s(const VemiMomentState* pState, int mOrd, int nOrd, int nChannel,
                                                       Vemi64s* pValue, int scaleFactor);

VEMI_API VemiStatus vemiGetHuMoments_64f(const VemiMomentState* pState, int nChannel, Vemi64f pHu[7]);
VEMI_API VemiStatus vemiGetHuMoments_64s(const VemiMomentState* pState, int nChannel, Vemi64s pHu[7], int scaleFactor);

/** @} */

/**
 * @defgroup vemi_histogram vemiHistogramRange, vemiHistogramEven: counts of pixels between levels
 *
 * nLevels levels L(0), L(1), ... make nLevels - 1 bins, and pHist[k] becomes the number of pixels v of the region with
 *
 *     L(k) <= v < L(k + 1)
 *
 * What pHist held before is of no account. Pixels below the first level, or from the last one on, are in no bin: to
 * count white in 8u, the last level has to be 256. A NaN pixel is in no bin.
 *
 * In **vemiHistogramRange** the levels are the caller's: integers for 8u and 16s, which may lie outside the range of
 * the pixels, and floats for 32f. They usually increase, but need not. A bin whose levels do not, L(k) >= L(k + 1), is
 * empty; bins may overlap, and each of them counts what it holds. A NaN level empties the bins on both of its sides.
 *
 * **vemiHistogramEven** makes the levels, from lowerLevel on, stores them in pLevels, and counts between them. With
 * n = nLevels - 1 and distance = upperLevel - lowerLevel, width = distance / n rounded toward zero, and rest what the
 * division leaves over:
 *
 *     distance >= n           the first `rest` bins are width + 1 wide, the others width; the last level is upperLevel
 *     0 <= distance < n       the first `rest` bins are 1 wide, the others empty, their levels all upperLevel
 *     -n < distance < 0       all levels are lowerLevel, and all bins are empty
 *     distance <= -n          levels fall in the same manner, and all bins are empty
 *
 *     0 to 255 in 2 bins      0, 128, 255
 *     0 to 256 in 256 bins    0, 1, 2, ... 256: one bin for each value of 8u
 *     10 to 12 in 4 bins      10, 11, 12, 12, 12
 *
 * C1 forms have one histogram. The others count each channel by itself, between levels of its own: pHist and pLevels
 * are then arrays of one pointer for each channel, nLevels, lowerLevel and upperLevel arrays of one number for each,
 * three of them in C3 and AC4 and four in C4. AC4 forms do not count the fourth channel.
 *
 * Counts are exact whatever the levels, and modulo 2^32 in the unlikely case that a bin receives that many.
 *
 * @param pSrc,srcStep           first pixel of the image, and the bytes between its rows
 * @param roiSize                size of the region in pixels
 * @param pHist                  nLevels - 1 counts; or an array of pointers to them
 * @param pLevels                nLevels levels; or an array of pointers to them. vemiHistogramEven writes them.
 * @param nLevels                number of levels, at least 2; or an array of numbers
 * @param lowerLevel,upperLevel  first and last level, any int; or arrays of them
 *
 * **Overlap.** What is written overlaps nothing that is read, and no other result.
 *
 * **Statuses**, in the order of the tests.
 *
 *     C1        null, size, step, vemiErrHistogramLevels for nLevels below 2
 *     others    null (the arrays themselves); for one channel after the other null (its counts and its levels) and
 *               vemiErrHistogramLevels; then size, step
 *
 * **Memory.** 16s forms may count in a table of 65536 counters for each channel, and return vemiErrMemAlloc where that
 * cannot be had; the counts are then untouched, the levels of vemiHistogramEven made. This is so for large images, or
 * many levels: for regions of at least 12544 pixels (1024 where the levels of any channel do not increase throughout)
 * and more levels than a limit that falls with the number of pixels, to 6 in C1, 10 in C3 and AC4, 14 or 10 in C4. It
 * never happens in vemiHistogramEven where the bins of each channel are all equally wide.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     Vemi32s counts[256], levels[257];
 *     vemiHistogramEven_8u_C1R(image, step, size, counts, levels, 257, 0, 256);
 *
 *     const Vemi32f limits[4] = {0.0f, 0.1f, 0.5f, 1.0f};       // shadows, middle tones, lights
 *     vemiHistogramRange_32f_C1R(image, step, size, counts, limits, 4);
 * @{
 */

VEMI_API VemiStatus vemiHistogramRange_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pHist,
                                              const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiHistogramRange_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize,
                                              Vemi32s* const pHist[3], const Vemi32s* const pLevels[3],
                                              const int nLevels[3]);
VEMI_API VemiStatus vemiHistogramRange_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize,
                                              Vemi32s* const pHist[4], const Vemi32s* const pLevels[4],
                                              const int nLevels[4]);
VEMI_API VemiStatus vemiHistogramRange_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[3], const Vemi32s* const pLevels[3],
                                               const int nLevels[3]);

VEMI_API VemiStatus vemiHistogramRange_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pHist,
                                               const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiHistogramRange_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[3], const Vemi32s* const pLevels[3],
                                               const int nLevels[3]);
VEMI_API VemiStatus vemiHistogramRange_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[4], const Vemi32s* const pLevels[4],
                                               const int nLevels[4]);
VEMI_API VemiStatus vemiHistogramRange_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                                Vemi32s* const pHist[3], const Vemi32s* const pLevels[3],
                                                const int nLevels[3]);

VEMI_API VemiStatus vemiHistogramRange_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pHist,
                                               const Vemi32f* pLevels, int nLevels);
VEMI_API VemiStatus vemiHistogramRange_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[3], const Vemi32f* const pLevels[3],
                                               const int nLevels[3]);
VEMI_API VemiStatus vemiHistogramRange_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[4], const Vemi32f* const pLevels[4],
                                               const int nLevels[4]);
VEMI_API VemiStatus vemiHistogramRange_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize roiSize,
                                                Vemi32s* const pHist[3], const Vemi32f* const pLevels[3],
                                                const int nLevels[3]);

VEMI_API VemiStatus vemiHistogramEven_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pHist,
                                             Vemi32s* pLevels, int nLevels, Vemi32s lowerLevel, Vemi32s upperLevel);
VEMI_API VemiStatus vemiHistogramEven_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s* const pHist[3],
                                             Vemi32s* const pLevels[3], const int nLevels[3],
                                             const Vemi32s lowerLevel[3], const Vemi32s upperLevel[3]);
VEMI_API VemiStatus vemiHistogramEven_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize, Vemi32s* const pHist[4],
                                             Vemi32s* const pLevels[4], const int nLevels[4],
                                             const Vemi32s lowerLevel[4], const Vemi32s upperLevel[4]);
VEMI_API VemiStatus vemiHistogramEven_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize roiSize,
                                              Vemi32s* const pHist[3], Vemi32s* const pLevels[3], const int nLevels[3],
                                              const Vemi32s lowerLevel[3], const Vemi32s upperLevel[3]);

VEMI_API VemiStatus vemiHistogramEven_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize, Vemi32s* pHist,
                                              Vemi32s* pLevels, int nLevels, Vemi32s lowerLevel, Vemi32s upperLevel);
VEMI_API VemiStatus vemiHistogramEven_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                              Vemi32s* const pHist[3], Vemi32s* const pLevels[3], const int nLevels[3],
                                              const Vemi32s lowerLevel[3], const Vemi32s upperLevel[3]);
VEMI_API VemiStatus vemiHistogramEven_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                              Vemi32s* const pHist[4], Vemi32s* const pLevels[4], const int nLevels[4],
                                              const Vemi32s lowerLevel[4], const Vemi32s upperLevel[4]);
VEMI_API VemiStatus vemiHistogramEven_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize roiSize,
                                               Vemi32s* const pHist[3], Vemi32s* const pLevels[3], const int nLevels[3],
                                               const Vemi32s lowerLevel[3], const Vemi32s upperLevel[3]);

/** @} */

/**
 * @defgroup vemi_quality_index vemiQualityIndex: how much two images look alike
 *
 * The universal image quality index of Wang and Bovik (IEEE Signal Processing Letters 9(3), 2002), the mean over all
 * windows of 8 x 8 pixels of
 *
 *     q = 4 cov(a, b) m(a) m(b) / ((var(a) + var(b)) (m(a)^2 + m(b)^2))
 *
 * for a in pSrc1 and b in pSrc2, with m their means in the window. It is the product of how far pixels go along with
 * each other, how like their contrast is, and how like their brightness. 1 is for equal images, 0 for images that have
 * nothing to do with each other, -1 for an image and its reverse. It says more about what an eye would find wrong than
 * a mean difference does.
 *
 * Each channel has an index of its own:
 *
 *     C1          one value, through a plain pointer
 *     C3, AC4     an array of three values, for the channels 0, 1 and 2; the fourth element of an AC4 pixel does not
 *                 take part, but must be readable memory
 *
 * **Windows** have w = min(8, width) columns and h = min(8, height) rows, n = w h pixels; there is one at each place
 * where it lies in the region, M = (width - w + 1) (height - h + 1) of them. A region of one pixel is enough.
 *
 * **In numbers**, all of them doubles: S1 and S2 are the sums of a window's pixels in the first and in the second
 * image, Sq that of a a + b b, S12 that of a b. Sums are made down each column first, then across the columns, each
 * time as ((v0 + v1) + (v2 + v3)) + ((v4 + v5) + (v6 + v7)), without what a smaller window lacks. (Bytes are exact in
 * any order.) With each operation rounded,
 *
 *     R = S1 S1 + S2 S2,  P = S1 S2,  V = n Sq - R,  C = n S12 - P
 *     q = (2 C * 2 P) / (V * R)
 *
 * where 2 C and V both are 1 if V <= n Sq 2^-46, and 2 P and R both are 1 if R is 0. The first means that both images
 * are flat there: that all that deviates from their means is about 2^-23 of their size, the last place of a float,
 * which sums cannot tell from their own rounding. In 8u it means that V is 0. q is rounded to a multiple of 2^-30, ties
 * to even. The sum of these is exact; divided by M in double, it is rounded to single. So the result is the same for
 * any order of the work, the images may change places, equal images of finite pixels give exactly 1, and both types
 * give the same for the same numbers. A NaN or an infinity among the pixels of a channel makes its result a NaN.
 *
 *     8u   all 10 and all 20       ->  0.8          brightness alone
 *     8u   1 2 3 and 1 2 4         ->  0.88941175   one window of 3 x 1
 *     8u   3 and 4                 ->  0.96
 *
 * @param pSrc1,src1Step  first pixel of the first image, and the bytes between its rows
 * @param pSrc2,src2Step  the same of the second image
 * @param roiSize         size of the region in pixels
 * @param pQualityIndex   one float for each channel
 *
 * **Overlap.** The sources may be the same or overlap in any way; results lie outside of them.
 *
 * **Statuses**, in the order of the tests: null, size, step; vemiErrMemAlloc where working memory cannot be had.
 * Nothing is written then.
 *
 * **Threads.** All forms share tiles of the image among a team. Results do not depend on it.
 *
 *     float index[3];
 *     vemiQualityIndex_8u32f_C3R(photo, photoStep, copy, copyStep, size, index);
 * @{
 */

VEMI_API VemiStatus vemiQualityIndex_8u32f_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                               VemiSize roiSize, Vemi32f* pQualityIndex);
VEMI_API VemiStatus vemiQualityIndex_8u32f_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                               VemiSize roiSize, Vemi32f pQualityIndex[3]);
VEMI_API VemiStatus vemiQualityIndex_8u32f_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                                VemiSize roiSize, Vemi32f pQualityIndex[3]);

VEMI_API VemiStatus vemiQualityIndex_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi32f* pQualityIndex);
VEMI_API VemiStatus vemiQualityIndex_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                             VemiSize roiSize, Vemi32f pQualityIndex[3]);
VEMI_API VemiStatus vemiQualityIndex_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                              VemiSize roiSize, Vemi32f pQualityIndex[3]);

/** @} */

/* ---- Templates ---- */

/**
 * @defgroup vemi_match vemiCrossCorr and vemiSqrDistance: where a template matches an image
 *
 * A template is an image of w x h pixels, n = w h. It is laid over the source at each place; the result has an element
 * for each, which says how well it matches. With P the pixels under the template there, t those of the template, m the
 * mean of t, and all sums over the w x h pixels,
 *
 *     C = sum P t,  S2 = sum P^2,  S1 = sum P,  T = sqrt(sum t^2),  C' = sum P (t - m),  D = T^2 - m n m
 *
 *     vemiCrossCorr..._Norm        C / (max(T, e) sqrt(max(S2, e)))                    1 where P is a t, a > 0
 *     vemiCrossCorr..._NormLevel   C' / sqrt(max(D, e) max(S2 - S1^2 / n, e))          1 where P is a t + b, a > 0
 *     vemiSqrDistance..._Norm      (S2 - 2 C + T^2) / (max(T, e) sqrt(max(S2, e)))     0 where P is t
 *
 * The first does not mind how bright the image is, the second not even an even light upon it; the third minds both,
 * and its best place is the smallest. e = 0.0005 for 32f and 1 for other types stands in where there is nothing to
 * divide by: flat places are no error. A template of zeros matches nothing: exact zeros, and S2 / (e sqrt(max(S2, e)))
 * for the distance.
 *
 * **Places.** The result's element (x, y) is that of the template with its first pixel on the source's (x - a, y - b);
 * what lies outside of the source is 0.
 *
 *     Valid   a = 0, b = 0             (W - w + 1) x (H - h + 1)   places that lie within the source
 *     Same    a = w >> 1, b = h >> 1   W x H                       the template's middle on each pixel
 *     Full    a = w - 1, b = h - 1     (W + w - 1) x (H + h - 1)   all places that touch the source
 *
 * for a source of W x H. The middle of an even number of pixels is the one behind it. In all shapes the template must
 * not be wider or higher than the source.
 *
 * **Types and layouts.** 32f, 8u32f and 8s32f store floats as they are. The 8u forms divide by 2^scaleFactor, round to
 * nearest, ties to even, and saturate: with scaleFactor -7, a match of 1 is 128. The power of two has seven bits of
 * scaleFactor and goes into the divisor of single precision; where that becomes 0, positive results are 255 and
 * negative ones 0, and what is not a number is 255. The channels of C3 and C4 are matched one by one, each with its
 * channel of the template; AC4 does so for three, and leaves the fourth element of the destination as it is.
 *
 * **Accuracy.** Windows are summed in double precision. Correlations come by way of Fourier transforms of tiles, in
 * single precision: the error of C is about 1e-7 of the product of T and the norm of a tile, whose sides are about two
 * to eight times those of the template. So places that are much darker than their neighbourhood have a larger error,
 * and infinities and NaNs spoil all results of a tile.
 *
 * @param pSrc,srcStep   first pixel of the source, and the bytes between its rows
 * @param srcRoiSize     size of the source in pixels
 * @param pTpl,tplStep   the same of the template
 * @param tplRoiSize     size of the template in pixels
 * @param pDst,dstStep   the same of the destination, which has the size that is said above
 * @param scaleFactor    8u forms: results are divided by 2^scaleFactor
 *
 * **Overlap.** Source and template may overlap in any way, and so may their rows; the destination lies outside of them.
 *
 * **Statuses**, in the order of the tests: null; size, also for a template that is larger than the source; step;
 * vemiErrFftOrder for a template of more than 2^29 pixels across or down; vemiErrMemAlloc where working memory cannot
 * be had. It takes some tiles of memory for each thread. Nothing is written then.
 *
 * **Threads.** All forms share tiles of the result among a team. Results do not depend on it.
 *
 *     // Where is the ball? The largest of the results.
 *     vemiCrossCorrValid_NormLevel_8u32f_C1R(scene, sceneStep, sceneSize, ball, ballStep, ballSize, match, matchStep);
 *     vemiMaxIndx_32f_C1R(match, matchStep, matchSize, &most, &x, &y);
 * @{
 */

VEMI_API VemiStatus vemiCrossCorrFull_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                    Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiCrossCorrSame_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                   const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize, Vemi32f* pDst,
                                                   int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                    Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize, Vemi8u* pDst,
                                                     int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiCrossCorrValid_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                    Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                    Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                    Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrFull_NormLevel_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrSame_NormLevel_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                          const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                          Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                            const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                            Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                            const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                            Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                           const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                           Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiCrossCorrValid_NormLevel_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                            const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                            Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiSqrDistanceFull_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceFull_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiSqrDistanceSame_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                     Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceSame_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi8u* pDst, int dstStep, int scaleFactor);

VEMI_API VemiStatus vemiSqrDistanceValid_Norm_32f_C1R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_32f_C3R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_32f_C4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                      const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                      Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_32f_AC4R(const Vemi32f* pSrc, int srcStep, VemiSize srcRoiSize,
                                                       const Vemi32f* pTpl, int tplStep, VemiSize tplRoiSize,
                                                       Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u32f_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u32f_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u32f_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8s32f_C1R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8s32f_C3R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8s32f_C4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi8s* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                        const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                        Vemi8u* pDst, int dstStep, int scaleFactor);
VEMI_API VemiStatus vemiSqrDistanceValid_Norm_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize,
                                                         const Vemi8u* pTpl, int tplStep, VemiSize tplRoiSize,
                                                         Vemi8u* pDst, int dstStep, int scaleFactor);

/** @} */

/* ---- Convolution of images ---- */

/**
 * @defgroup vemi_convolve vemiConvFull and vemiConvValid: the convolution of two images
 *
 *     pDst(x, y) = sum over all (i, j) of pSrc1(i, j) pSrc2(x - i, y - j)
 *
 * with zeros outside of both images: each pixel of one image spreads out as the other one does. A photograph convolved
 * with a disc is blurred as by a lens. The images may change places. Of images of W1 x H1 and W2 x H2, the results are
 *
 *     Full    (W1 + W2 - 1) x (H1 + H2 - 1)         all that is not 0
 *     Valid   (|W1 - W2| + 1) x (|H1 - H2| + 1)     what is made of the whole smaller image; pDst begins with the
 *                                                   element (w - 1, h - 1) of the full form, w x h the smaller size
 *
 * The valid form wants one image to be at least as wide and as high as the other, which is called the kernel here; the
 * full form takes any two images. The channels of C3 are convolved one by one; AC4 does so for three, and leaves the
 * fourth element of the destination as it is.
 *
 * **Whole numbers.** In 8u and 16s, the sum of the products is limited to 32 bits and divided by `divisor`:
 *
 *     a power of two from 2 on   to nearest, halves up
 *     others                     S r, with r = 1 / divisor in single precision, to nearest, ties to even
 *
 * and then saturated. A negative divisor changes the sign. An example, with a kernel of ones: divisor = w h is the
 * mean.
 *
 * **Methods**, which decide how exact a result is:
 *
 *     valid, w h < 144                        vemiFilter, whose arithmetic it is: in 8u the sums are exact, in 16s the
 *                                             kernel's pixels are multiplied by r, and sums are floats, ties to even
 *     valid, else, fewer than 49 results      sums in double precision: those of whole numbers are exact
 *     all others                              Fourier transforms of tiles, in single precision: the error of a sum is
 *                                             about 1e-7 of the product of the norms of kernel and tile, whose sides
 *                                             are about two to eight times those of the kernel; 8u and 16s sums are
 *                                             rounded to whole numbers before they are divided
 *
 * @param pSrc1,src1Step,src1Size  first pixel of one image, the bytes between its rows, its size in pixels
 * @param pSrc2,src2Step,src2Size  the same of the other image
 * @param pDst,dstStep             the same of the destination, which has the size that is said above
 * @param divisor                  8u and 16s: what sums are divided by, not 0
 *
 * **Overlap.** The sources may be the same or overlap in any way, and so may their rows; the destination lies outside
 * of them.
 *
 * **Statuses**, in the order of the tests: null; size; step; vemiErrDivisor for a divisor of 0; vemiErrSize in the
 * valid form where neither image holds the other; vemiErrFftOrder for a kernel of more than 2^29 pixels across or down;
 * vemiErrMemAlloc where working memory cannot be had. Nothing is written then.
 *
 * **Threads.** All forms share their work among a team, but for fewer than 49 results. Results do not depend on it.
 *
 *     VemiSize size = {640, 480}, disc = {31, 31};  // and 610 x 450 of the result
 *     vemiConvValid_32f_C1R(photo, photoStep, size, pDisc, discStep, disc, blurred, blurredStep);
 * @{
 */

VEMI_API VemiStatus vemiConvFull_32f_C1R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiConvFull_32f_C3R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiConvFull_32f_AC4R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiConvFull_8u_C1R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                        int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvFull_8u_C3R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                        int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvFull_8u_AC4R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);

VEMI_API VemiStatus vemiConvFull_16s_C1R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvFull_16s_C3R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvFull_16s_AC4R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);

VEMI_API VemiStatus vemiConvValid_32f_C1R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiConvValid_32f_C3R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);
VEMI_API VemiStatus vemiConvValid_32f_AC4R(const Vemi32f* pSrc1, int src1Step, VemiSize src1Size, const Vemi32f* pSrc2,
                                           int src2Step, VemiSize src2Size, Vemi32f* pDst, int dstStep);

VEMI_API VemiStatus vemiConvValid_8u_C1R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvValid_8u_C3R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                         int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvValid_8u_AC4R(const Vemi8u* pSrc1, int src1Step, VemiSize src1Size, const Vemi8u* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi8u* pDst, int dstStep, int divisor);

VEMI_API VemiStatus vemiConvValid_16s_C1R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvValid_16s_C3R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                          int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);
VEMI_API VemiStatus vemiConvValid_16s_AC4R(const Vemi16s* pSrc1, int src1Step, VemiSize src1Size, const Vemi16s* pSrc2,
                                           int src2Step, VemiSize src2Size, Vemi16s* pDst, int dstStep, int divisor);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
