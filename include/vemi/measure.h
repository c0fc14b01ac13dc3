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
 * @defgroup vemi_reductions Reductions: what all of them share
 *
 * A reduction reads a region once and stores a number for each channel:
 *
 *     C1          one value, through a plain pointer
 *     C3, AC4     an array of three values, for the channels 0, 1, 2; a fourth channel of AC4 does not take part,
 * though its elements must be readable memory like any other C4          an array of four values
 *
 * Only the pixels of the region are read, and nothing but the results is written; after an error not even those.
 *
 * @anchor vemi_accuracy
 * **Accuracy.** Sums and sums of squares of 8u and 16s elements are exact integers of 64 bits, whatever the size of the
 * region, and are then converted to double. Those of 32f elements take a hint:
 *
 * - vemiHintAccurate (2): each element is widened to double, and doubles are added in the order of the elements, row by
 *   row. C1 forms have two accumulators, which take the elements of the whole region in turn, from the end of one row
 * to the start of the next without a break, and are added at the end; the others have one for each channel. The result
 * is that of the same additions written as a loop, to the bit.
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
 * leaves nothing in it.
 *
 *     8u   10 20 30 20,  lower = 20, upper = 30    ->  3
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pCounts       one count for each channel
 * @param lower,upper   the limits, of the element type
 *
 * **Statuses**, in the order of the tests: null, step, size; then vemiErrRange where lower > upper, in any channel.
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
 * see @ref vemi_accuracy "Accuracy". The 32f Inf forms have no hint: they compare floats, and pass over NaN.
 *
 *     16s  3 -4                  ->  Inf 4, L1 7, L2 5
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param pValue        one double for each channel
 * @param hint          32f forms of L1 and L2: a vemiHint
 *
 * **Statuses**: null, size, step.
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

#ifdef __cplusplus
}
#endif

#endif
