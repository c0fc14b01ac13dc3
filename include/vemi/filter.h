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
 * A filter reads pixels around its region, and these must exist: no function here extends an image.
 * @{
 */

/* ---- Fixed kernels ----------------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_filter_fixed Filters with fixed kernels: gradients, second derivatives, sharpening, means
 *
 *     pDst(x, y) = S / d,  S = sum of weight(i, j) * pSrc(x + i, y + j)
 *
 * over i, j = -1..1 for 3x3 kernels and -2..2 for 5x5 kernels. Kernels are shown as they lie over the image: the first
 * row of a kernel is weighed with the row above the pixel (the second one above, for 5x5), the first column with the
 * column to its left. d is 1 unless it is told. Each channel by itself; AC4 forms leave the fourth channel of the
 * destination as it is.
 *
 * **Integers** (8u, 16s, 8u16s, 8s16s): S is exact. The quotient is the nearest integer, and the even one of two
 * equally near; it is limited to 0..255 or -32768..32767. Negative gradients are thus 0 in 8u, and kept by 8u16s. The
 * rounding mode of the calling thread does not matter.
 *
 * **Floats** (32f): every product, sum and difference is rounded by itself to single precision, and the last sum is
 * multiplied by the float nearest to 1 / d. First the columns of the window are summed, then the columns' sums, in the
 * order in which they stand here. Weights of 0 take no part, so that a NaN below them does not show. With the rows r0,
 * r1, r2 (, r3, r4) of the window, the columns' sums t0, t1, t2 (, t3, t4), and w the weights of the own column:
 *
 *     filter                    column sum                           result
 *     SobelHoriz 3x3            r2 - r0                              t0 + 2 t1 + t2
 *     SobelHoriz 5x5            -r0 - 2 r1 + 2 r3 + r4               t0 + 4 t1 + 6 t2 + 4 t3 + t4
 *     SobelVert 3x3             r0 + 2 r1 + r2                       t0 - t2
 *     SobelVert 5x5             r0 + 4 r1 + 6 r2 + 4 r3 + r4         t0 + 2 t1 - 2 t3 - t4
 *     SobelHorizSecond 3x3      r0 - 2 r1 + r2                       t0 + 2 t1 + t2
 *     SobelHorizSecond 5x5      r0 - 2 r2 + r4                       t0 + 4 t1 + 6 t2 + 4 t3 + t4
 *     SobelVertSecond 3x3       r0 + 2 r1 + r2                       t0 - 2 t1 + t2
 *     SobelVertSecond 5x5       r0 + 4 r1 + 6 r2 + 4 r3 + r4         t0 - 2 t2 + t4
 *     SobelCross 3x3            r2 - r0                              t0 - t2
 *     SobelCross 5x5            -r0 - 2 r1 + 2 r3 + r4               t0 + 2 t1 - 2 t3 - t4
 *     ScharrHoriz               r2 - r0                              3 t0 + 10 t1 + 3 t2
 *     ScharrVert                3 r0 + 10 r1 + 3 r2                  t2 - t0
 *     PrewittHoriz              r2 - r0                              t0 + t1 + t2
 *     PrewittVert               r0 + r1 + r2                         t0 - t2
 *     Laplace, Hipass 3x3       r0 + r1 + r2                         9 p - (t0 + t1 + t2), p the pixel itself
 *     Hipass 5x5                r0 + r1 + r2 + r3 + r4               25 p - (t0 + t1 + t2 + t3 + t4)
 *     Sharpen                   r0 + r1 + r2                         (17 p - (t0 + t1 + t2)) / 8
 *     Gauss 3x3                 r0 + 2 r1 + r2                       (t0 + 2 t1 + t2) / 16
 *     Lowpass 3x3               r0 + r1 + r2                         (t0 + t1 + t2) / 9
 *     Lowpass 5x5               r0 + r1 + r2 + r3 + r4               (t0 + t1 + t2 + t3 + t4) / 25
 *     Laplace, Gauss 5x5        w0 (r0 + r4) + w1 (r1 + r3) + w2 r2  (t0 + t4) + (t1 + t3) + t2, for Gauss / 571
 *
 * **Pixels read around the region**: one on each side for 3x3, two for 5x5, also where the kernel has zeros;
 * vemiCopyReplicateBorder and its like make them. Roberts forms read one row above the region, and one column to its
 * right (Up) or left (Down).
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      (forms that have it) vemiMask3x3 or vemiMask5x5
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h); then
 *
 * - vemiErrMaskSize: maskSize is neither vemiMask3x3 nor vemiMask5x5. The 32f forms of vemiFilterSobelHorizMask,
 *   vemiFilterSobelVertMask, vemiFilterSobelHorizSecond, vemiFilterSobelVertSecond and vemiFilterSobelCross take any
 *   other number for vemiMask5x5 instead.
 * - vemiErrMemAlloc: no memory for rows of sums; not in the Roberts forms
 *
 * **Threads.** All forms run in the calling thread, but for those of vemiFilterRobertsUp and vemiFilterRobertsDown,
 * which are calls of vemiSub (arith.h) and share their work as it does.
 *
 *     Vemi8u* inner = photo + 2 * step + 2;   // C1; two pixels are left out on each side
 *     vemiFilterGauss_8u_C1R(inner, step, soft, softStep, innerSize, vemiMask5x5);
 *     vemiFilterSobelHoriz_8u16s_C1R(inner, step, slope, slopeStep, innerSize, vemiMask3x3);
 * @{
 */

/** The size of a fixed kernel or of a fixed neighbourhood: the digits are its columns and its rows. */
enum {
  vemiMask3x3 = 33, /**< three columns, three rows */
  vemiMask5x5 = 55, /**< five columns, five rows */
  vemiMask3x1 = 31, /**< three pixels in a row */
  vemiMask5x1 = 51, /**< five pixels in a row */
  vemiMask1x3 = 13, /**< three pixels in a column */
  vemiMask1x5 = 15  /**< five pixels in a column */
};

/**
 * @name vemiFilterSobelHoriz, vemiFilterSobelVert: slopes, smoothed across their direction
 *
 * Horiz answers to horizontal edges: what is below minus what is above. Vert answers to vertical ones: what is left
 * minus what is right.
 *
 *     Horiz 3x3  -1 -2 -1    Horiz 5x5  -1 -4  -6 -4 -1    Vert 3x3  1 0 -1    Vert 5x5  1  2 0  -2 -1
 *                 0  0  0               -2 -8 -12 -8 -2              2 0 -2              4  8 0  -8 -4
 *                 1  2  1                0  0   0  0  0              1 0 -1              6 12 0 -12 -6
 *                                        2  8  12  8  2                                  4  8 0  -8 -4
 *                                        1  4   6  4  1                                  1  2 0  -2 -1
 *
 * Forms without maskSize are 3x3.
 * @{
 */

VEMI_API VemiStatus vemiFilterSobelHoriz_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelHoriz_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);

VEMI_API VemiStatus vemiFilterSobelVert_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelVert_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelVert_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSobelVert_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);

VEMI_API VemiStatus vemiFilterSobelHorizMask_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                     VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterSobelVertMask_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                    VemiSize roiSize, int maskSize);
/** @} */

/**
 * @name vemiFilterSobelHorizSecond, vemiFilterSobelVertSecond, vemiFilterSobelCross: second derivatives
 *
 * Downwards, to the right, and once in each direction.
 *
 *     HorizSecond  1  2  1    VertSecond  1 -2  1    Cross  -1  0  1
 *                 -2 -4 -2                2 -4  2            0  0  0
 *                  1  2  1                1 -2  1            1  0 -1
 *
 *     HorizSecond  1  4   6  4  1    VertSecond  1  0  -2  0  1    Cross  -1 -2  0  2  1
 *                  0  0   0  0  0                4  0  -8  0  4           -2 -4  0  4  2
 *                 -2 -8 -12 -8 -2                6  0 -12  0  6            0  0  0  0  0
 *                  0  0   0  0  0                4  0  -8  0  4            2  4  0 -4 -2
 *                  1  4   6  4  1                1  0  -2  0  1            1  2  0 -2 -1
 * @{
 */

VEMI_API VemiStatus vemiFilterSobelHorizSecond_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                         VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelHorizSecond_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                         VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelHorizSecond_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                       VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterSobelVertSecond_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                        VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelVertSecond_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                        VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelVertSecond_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                      VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterSobelCross_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelCross_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterSobelCross_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
/** @} */

/**
 * @name vemiFilterScharrHoriz, vemiFilterScharrVert: slopes whose size hardly depends on their direction
 *
 * What is below minus what is above; what is right minus what is left, unlike in the other gradients.
 *
 *     Horiz  -3 -10 -3    Vert   -3  0  3
 *             0   0  0          -10  0 10
 *             3  10  3           -3  0  3
 * @{
 */

VEMI_API VemiStatus vemiFilterScharrHoriz_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiFilterScharrHoriz_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiFilterScharrHoriz_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);

VEMI_API VemiStatus vemiFilterScharrVert_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterScharrVert_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterScharrVert_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);
/** @} */

/**
 * @name vemiFilterPrewittHoriz, vemiFilterPrewittVert: slopes, plain means across their direction
 *
 *     Horiz  -1 -1 -1    Vert  1  0 -1
 *             0  0  0          1  0 -1
 *             1  1  1          1  0 -1
 * @{
 */

VEMI_API VemiStatus vemiFilterPrewittHoriz_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittHoriz_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                    VemiSize roiSize);

VEMI_API VemiStatus vemiFilterPrewittVert_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterPrewittVert_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize);
/** @} */

/**
 * @name vemiFilterRobertsUp, vemiFilterRobertsDown: slopes along the diagonals
 *
 *     Up:    pDst(x, y) = pSrc(x, y) - pSrc(x + 1, y - 1)
 *     Down:  pDst(x, y) = pSrc(x, y) - pSrc(x - 1, y - 1)
 * @{
 */

VEMI_API VemiStatus vemiFilterRobertsUp_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsUp_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize);

VEMI_API VemiStatus vemiFilterRobertsDown_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiFilterRobertsDown_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize);
/** @} */

/**
 * @name vemiFilterLaplace, vemiFilterHipass: by how much a pixel differs from its neighbourhood
 *
 *     both 3x3  -1 -1 -1    Laplace 5x5  -1 -3 -4 -3 -1    Hipass 5x5  -1 in all places but
 *               -1  8 -1                 -3  0  6  0 -3                24 in the middle
 *               -1 -1 -1                 -4  6 20  6 -4
 *                                        -3  0  6  0 -3
 *                                        -1 -3 -4 -3 -1
 * @{
 */

VEMI_API VemiStatus vemiFilterLaplace_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_8s16s_C1R(const Vemi8s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLaplace_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterHipass_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterHipass_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
/** @} */

/**
 * @name vemiFilterSharpen: the pixel, and by how much it differs from its neighbourhood
 *
 *     -1 -1 -1    d = 8
 *     -1 16 -1
 *     -1 -1 -1
 * @{
 */

VEMI_API VemiStatus vemiFilterSharpen_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiFilterSharpen_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize);
/** @} */

/**
 * @name vemiFilterGauss, vemiFilterLowpass: weighted and plain means
 *
 *     Gauss 3x3  1 2 1    d = 16    Gauss 5x5   2  7  12  7  2    d = 571    Lowpass  1 in all places,
 *                2 4 2                          7 31  52 31  7                        d = 9 (3x3) or 25 (5x5)
 *                1 2 1                         12 52 127 52 12
 *                                               7 31  52 31  7
 *                                               2  7  12  7  2
 * @{
 */

VEMI_API VemiStatus vemiFilterGauss_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           int maskSize);
VEMI_API VemiStatus vemiFilterGauss_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           int maskSize);
VEMI_API VemiStatus vemiFilterGauss_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           int maskSize);
VEMI_API VemiStatus vemiFilterGauss_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterGauss_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterLowpass_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterLowpass_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize, int maskSize);
/** @} */

/** @} */

/* ---- Means over a rectangle -------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_filter_box vemiFilterBox: the mean of a rectangle
 *
 *     pDst(x, y) = S / A,  S = sum of pSrc(x + i - anchor.x, y + j - anchor.y),  A = maskSize.width * maskSize.height
 *                          over i = 0..maskSize.width - 1, j = 0..maskSize.height - 1
 *
 * Each channel by itself; AC4 forms leave the fourth channel of the destination as it is. The time that a pixel takes
 * does not depend on the size of the mask.
 *
 * **Pixels read around the region**: anchor.x columns to the left and maskSize.width - 1 - anchor.x to the right of it,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below it. All of them must exist; vemiCopyReplicateBorder and
 * its like make them. In-place forms read them too, and write the region alone.
 *
 * **How the quotient is rounded** depends on type, layout and mask; r is the float nearest to 1 / A:
 *
 *     type  layout   mask         result
 *     8u    C1       3 x 3        columns up to the last multiple of 8: S / 9 to nearest; the width % 8 columns behind
 *                                 them: S / 9 rounded down
 *     8u    others   3 x 3        S / 9 rounded down
 *     8u    C1, C4   A <= 8100    S / A rounded down
 *     8u    C3, AC4  A <= 8100    S * r in single precision, to nearest, ties to even: A = 4, S = 10 gives 2, S = 14
 *                                 gives 4
 *     8u    C1, C4   A > 8100     S * r in single precision, the fraction dropped
 *     8u    C3, AC4  A > 8100     the same with 0.000009 added to the product
 *     16s   all      any          S * r in single precision, to nearest, ties to even
 *     32f   all      any          S * r in single precision
 *
 * S is exact, in 64 bits where 32 do not hold it, but for 32f and for 8u with A > 8100. There it is a float that was
 * carried along: the sum of a column is that of its pixels from the top to the bottom, and moves on to the next row by
 * adding the pixel that enters and subtracting the one that leaves; the sum of a window is that of the columns' sums
 * from left to right, and moves on to the next pixel likewise. Columns begin anew at the rows 0, h, 2 h, ... of the
 * region, h being 64 or the height of the mask, whichever is more. Sums of bytes below 2^24 are exact in this way, too.
 * A huge value thus leaves its rounding errors, and a NaN or an infinity itself, in what follows it up to such a row.
 *
 * Results are the same for every number of threads. Those of 8u and 16s do not depend on the rounding mode of the
 * calling thread; 32f computes under it.
 *
 * @param pSrc,srcStep        first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep        the same of the destination, which shares no pixel with any that are read
 * @param pSrcDst,srcDstStep  (in-place forms) the image that is both; all means are those of its old pixels
 * @param roiSize             size of the region in pixels
 * @param maskSize            width and height of the rectangle, 2 or more each
 * @param anchor              where in the rectangle the pixel lies: from (0, 0), its top left pixel, to
 *                            (maskSize.width - 1, maskSize.height - 1)
 *
 * **Statuses**, in the order of the tests: null, step, size (see status.h); then
 *
 * - vemiErrMaskSize: a mask less than 2 pixels wide or high
 * - vemiErrAnchor: an anchor outside of the mask
 * - vemiErrMemAlloc: no memory for sums and, in place, for copies of maskSize.height + 1 rows
 *
 * **Threads.** Regions of more than 4096 pixels are shared by a team; in-place forms run in the calling thread.
 *
 *     vemiFilterBox_8u_C1R(photo + 2 * step + 2, step, soft, softStep, inner, {5, 5}, {2, 2});
 * @{
 */

VEMI_API VemiStatus vemiFilterBox_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);

VEMI_API VemiStatus vemiFilterBox_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                            VemiPoint anchor);

VEMI_API VemiStatus vemiFilterBox_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                           VemiPoint anchor);
VEMI_API VemiStatus vemiFilterBox_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, VemiSize maskSize,
                                            VemiPoint anchor);

/** @} */

/* ---- Morphology -------------------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_morphology vemiErode, vemiDilate: the least or the greatest pixel of a shape
 *
 *     vemiErode3x3:   pDst(x, y) = min of pSrc(x + i, y + j),  i = -1..1, j = -1..1
 *     vemiDilate3x3:  pDst(x, y) = max of the same
 *     vemiErode:      pDst(x, y) = min of pSrc(x + i - anchor.x, y + j - anchor.y)  where pMask[j * maskSize.width + i]
 *     vemiDilate:     pDst(x, y) = max of the same                                  is not 0
 *
 * Bright shapes on black shrink by erosion and grow by dilation. The mask is taken as it stands, not turned, by both of
 * them. Each channel by itself; AC4 forms leave the fourth channel of the destination as it is. Which of the values
 * results where a NaN takes part, or zeros of both signs, is not said.
 *
 * The time for a full rectangle, which a mask may be, grows with the logarithm of its sides; that for any other mask
 * with the number of its runs along the rows, or of its pixels, where these are few.
 *
 * **Pixels read around the region**: one on each side in the 3x3 forms; with a mask up to anchor.x columns to the left
 * and maskSize.width - 1 - anchor.x to the right of it, anchor.y rows above and maskSize.height - 1 - anchor.y below
 * it. They must exist. In-place forms read them too, and write the region alone.
 *
 * @param pSrc,srcStep        first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep        the same of the destination, which shares no pixel with any that are read
 * @param pSrcDst,srcDstStep  (in-place forms) the image that is both; all results come from its old pixels
 * @param roiSize             size of the region in pixels
 * @param pMask               maskSize.height rows of maskSize.width bytes without gaps: any byte but 0 selects its
 *                            pixel
 * @param maskSize            width and height of the mask, 1 or more each
 * @param anchor              where in the mask the pixel lies: from (0, 0), its top left byte, to
 *                            (maskSize.width - 1, maskSize.height - 1); the byte there need not be set
 *
 * **Statuses**, in the order of the tests: null (pMask among the pointers), step, size (see status.h); then
 *
 * - vemiErrMaskSize: (with a mask) a width or a height of it is below 1
 * - vemiErrZeroMask: (with a mask) all of its bytes are 0
 * - vemiErrAnchor: (with a mask) the anchor lies outside of it
 * - vemiErrStride: the step of the source is shorter than roiSize.width + 2 pixels, or, with a mask, than
 *   roiSize.width + maskSize.width - 1; or, out of place, that of the destination is shorter than roiSize.width pixels;
 *   an AC4 pixel has four elements
 * - vemiErrMemAlloc: no memory for rows
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi8u cross[9] = {0, 1, 0, 1, 1, 1, 0, 1, 0};
 *     vemiErode_8u_C1R(shapes + step + 1, step, thin, thinStep, inner, cross, {3, 3}, {1, 1});
 * @{
 */

VEMI_API VemiStatus vemiErode3x3_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiErode3x3_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiErode3x3_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDilate3x3_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDilate3x3_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDilate3x3_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiErode_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                      VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                      VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                       VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiErode_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                       VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                       VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiErode_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                        VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiDilate_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                       VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                       VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                        VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiDilate_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                        const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                        VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                        VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiDilate_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u* pMask,
                                         VemiSize maskSize, VemiPoint anchor);

/** @} */

/* ---- Kernels of the user's --------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_filter_linear vemiFilter, vemiFilterRow, vemiFilterColumn: kernels of the user's
 *
 *     vemiFilter:        S = sum of pKernel[j * kernelSize.width + i] * pSrc(x + anchor.x - i, y + anchor.y - j)
 *     vemiFilterRow:     S = sum of pKernel[i] * pSrc(x + xAnchor - i, y)
 *     vemiFilterColumn:  S = sum of pKernel[i] * pSrc(x, y + yAnchor - i)
 *
 * over all taps of the kernel. These are convolutions: the first tap meets the bottom right pixel of the window, the
 * last one the top left pixel. For a correlation, reverse the array of taps. Each channel by itself; AC4 forms leave
 * the fourth channel of the destination as it is.
 *
 *     form                      taps             S                              pDst(x, y)
 *     vemiFilter_8u             32s and divisor  exact, of 32 bits that wrap    S / divisor, limited to 0..255
 *     vemiFilter_16s            32s and divisor  in floats, of taps * r         nearest integer, limited to the type
 *     vemiFilter_32f            32f              in floats                      S
 *     vemiFilter32f_8u, _16s    32f              in floats                      nearest integer, limited to the type
 *
 * and alike for vemiFilterRow and vemiFilterColumn.
 *
 * **Sums in floats.** One running sum in single precision from 0 on, over the window from top to bottom and in each row
 * from left to right, so from the last tap to the first. Each product is rounded, then each sum. Pixels are floats
 * before they are multiplied. Where S becomes an integer, ties go to the even one; a NaN gives the lowest value of the
 * type. Taps of 0 count in 32f, where infinities and NaNs show through them.
 *
 * **Division** of the sums of bytes, by the value of the divisor:
 *
 * - 1: S itself
 * - 2^n, n from 1 to 30: floor((S + 2^(n - 1)) / 2^n), so ties go up: 3 / 2 gives 2
 * - any other, also a negative one: float(S) * r, r the float nearest to 1 / divisor, the product rounded to single
 *   precision and then to the nearest integer, ties to even
 *
 * For 16s the taps are divided instead: each tap as a float, times r, rounded.
 *
 * **Pixels read around the region**: kernelSize.width - 1 - anchor.x columns to its left and anchor.x to its right,
 * kernelSize.height - 1 - anchor.y rows above it and anchor.y below; in rows and columns those of the one direction.
 * They must exist: vemiCopyReplicateBorder and its like make them. The anchor may lie outside of the kernel, even be
 * negative: the window is then moved by as much, and nothing beside it is read.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param pKernel       the taps: kernelSize.height rows of kernelSize.width taps without gaps, or kernelSize taps
 * @param kernelSize    width and height of the kernel, or its length; 1 or more
 * @param anchor        how many columns to its right (x) and rows below it (y) a pixel's window reaches; any value
 * @param xAnchor       the columns to the right
 * @param yAnchor       the rows below
 * @param divisor       (integer taps) what the sums are divided by; not 0
 *
 * **Statuses**, in the order of the tests:
 *
 * - null, size (see status.h), where a kernel of less than one tap each way is a size too
 * - vemiErrDivisor: the divisor is 0
 * - vemiErrStep: the step of the source is shorter than roiSize.width + kernelSize.width - 1 pixels (for columns:
 *   roiSize.width pixels), or that of the destination shorter than roiSize.width pixels; an AC4 pixel has four elements
 *
 * Forms of 16s with integer taps look at pKernel, kernelSize and the divisor ahead of everything else, then ask for
 * memory for the divided taps (vemiErrMemAlloc), then test the rest in this order. C3 and C4 forms of vemiFilterColumn
 * and vemiFilterColumn32f look at roiSize.width ahead of all that. Other forms do without memory where there is none,
 * slowly.
 *
 * **Threads.** A team, with a band of rows for each thread, where there is work for one: 131072 products or more. No
 * result depends on its size.
 *
 *     const Vemi32s emboss[9] = {2, 1, 0, 1, 1, -1, 0, -1, -2};
 *     vemiFilter_8u_C1R(photo + step + 1, step, relief, reliefStep, inner, emboss, {3, 3}, {1, 1}, 1);
 * @{
 */

VEMI_API VemiStatus vemiFilter_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);

VEMI_API VemiStatus vemiFilter_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);
VEMI_API VemiStatus vemiFilter_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                        const Vemi32s* pKernel, VemiSize kernelSize, VemiPoint anchor, int divisor);

VEMI_API VemiStatus vemiFilter_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                        const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilter32f_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32f* pKernel, VemiSize kernelSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilter32f_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, VemiSize kernelSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, VemiSize kernelSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, VemiSize kernelSize,
                                          VemiPoint anchor);
VEMI_API VemiStatus vemiFilter32f_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* pKernel, VemiSize kernelSize,
                                           VemiPoint anchor);

VEMI_API VemiStatus vemiFilterRow_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* pKernel, int kernelSize, int xAnchor, int divisor);
VEMI_API VemiStatus vemiFilterRow_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* pKernel, int kernelSize, int xAnchor, int divisor);
VEMI_API VemiStatus vemiFilterRow_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* pKernel, int kernelSize, int xAnchor, int divisor);
VEMI_API VemiStatus vemiFilterRow_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32s* pKernel, int kernelSize, int xAnchor, int divisor);

VEMI_API VemiStatus vemiFilterRow_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int xAnchor,
                                          int divisor);
VEMI_API VemiStatus vemiFilterRow_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int xAnchor,
                                          int divisor);
VEMI_API VemiStatus vemiFilterRow_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int xAnchor,
                                          int divisor);
VEMI_API VemiStatus vemiFilterRow_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int xAnchor,
                                           int divisor);

VEMI_API VemiStatus vemiFilterRow_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);

VEMI_API VemiStatus vemiFilterRow32f_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);

VEMI_API VemiStatus vemiFilterRow32f_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);
VEMI_API VemiStatus vemiFilterRow32f_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int xAnchor);

VEMI_API VemiStatus vemiFilterColumn_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                            int divisor);
VEMI_API VemiStatus vemiFilterColumn_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                            int divisor);
VEMI_API VemiStatus vemiFilterColumn_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                            int divisor);
VEMI_API VemiStatus vemiFilterColumn_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                             int divisor);

VEMI_API VemiStatus vemiFilterColumn_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                             int divisor);
VEMI_API VemiStatus vemiFilterColumn_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                             int divisor);
VEMI_API VemiStatus vemiFilterColumn_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                             int divisor);
VEMI_API VemiStatus vemiFilterColumn_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32s* pKernel, int kernelSize, int yAnchor,
                                              int divisor);

VEMI_API VemiStatus vemiFilterColumn_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);

VEMI_API VemiStatus vemiFilterColumn32f_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);

VEMI_API VemiStatus vemiFilterColumn32f_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);
VEMI_API VemiStatus vemiFilterColumn32f_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, const Vemi32f* pKernel, int kernelSize, int yAnchor);

/** @} */

/* ---- Ranks ------------------------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_filter_extremes vemiFilterMin, vemiFilterMax: the least or the greatest pixel of a rectangle
 *
 *     vemiFilterMin:  pDst(x, y) = min of pSrc(x + i - anchor.x, y + j - anchor.y)
 *     vemiFilterMax:  pDst(x, y) = max of the same,  i = 0..maskSize.width - 1, j = 0..maskSize.height - 1
 *
 * Each channel by itself; AC4 forms leave the fourth channel of the destination as it is. Which of the values results
 * where a NaN takes part, or zeros of both signs, is not said, but it is the same on every processor. A mask of one
 * pixel copies. The time for a pixel grows with the logarithm of the mask's sides.
 *
 * **Pixels read around the region**: anchor.x columns to the left and maskSize.width - 1 - anchor.x to the right of it,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below it. All of them must exist.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      width and height of the rectangle, 1 or more each, odd or even
 * @param anchor        where in the rectangle the pixel lies: from (0, 0), its top left pixel, to
 *                      (maskSize.width - 1, maskSize.height - 1)
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h); then
 *
 * - vemiErrMaskSize: a width or a height of the mask is below 1
 * - vemiErrAnchor: an anchor outside of the mask
 * - vemiErrMemAlloc: no memory for rows
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiFilterMax_8u_C1R(photo + 2 * step + 2, step, light, lightStep, inner, {5, 5}, {2, 2});
 * @{
 */

VEMI_API VemiStatus vemiFilterMin_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMin_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMin_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMin_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMax_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMax_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMax_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMax_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

/** @} */

/**
 * @defgroup vemi_filter_median vemiFilterMedian: the median of a rectangle
 *
 *     pDst(x, y) = the middle one, in order of value, of pSrc(x + i - anchor.x, y + j - anchor.y)
 *                  over i = 0..maskSize.width - 1, j = 0..maskSize.height - 1
 *
 * Both sides of the mask are odd, so there is a middle: of n pixels the one that n / 2 come before. Each channel by
 * itself; AC4 forms leave the fourth channel of the destination as it is. A mask of one pixel copies.
 *
 * Squares of 3 and 5 pixels and lines of up to 5 are the fastest. Beyond them the time for a pixel does not depend on
 * the mask for 8u, but for the first rows of the region, and grows with the mask's shorter side for 16s.
 *
 * **Pixels read around the region**: anchor.x columns to the left and maskSize.width - 1 - anchor.x to the right of it,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below it. All of them must exist.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      width and height of the rectangle, odd numbers
 * @param anchor        where in the rectangle the pixel lies: from (0, 0), its top left pixel, to
 *                      (maskSize.width - 1, maskSize.height - 1); {maskSize.width / 2, maskSize.height / 2} is the
 *                      centre
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h); then
 *
 * - vemiErrMaskSize: a width or a height of the mask is below 1 or even
 * - vemiErrAnchor: an anchor outside of the mask
 * - vemiErrMemAlloc: no memory for rows or counts
 *
 * **Threads.** AC4 forms share regions of more than 4096 pixels in a team: 8u with any mask, 16s with squares and lines
 * of up to 5 pixels. The others run in the calling thread.
 *
 *     vemiFilterMedian_8u_C3R(photo + step + 3, step, clean, cleanStep, inner, {3, 3}, {1, 1});
 * @{
 */

VEMI_API VemiStatus vemiFilterMedian_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

VEMI_API VemiStatus vemiFilterMedian_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);
VEMI_API VemiStatus vemiFilterMedian_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, VemiSize maskSize, VemiPoint anchor);

/** @} */

/**
 * @defgroup vemi_filter_median_lines vemiFilterMedianHoriz, vemiFilterMedianVert, vemiFilterMedianCross
 *
 * The median of the pixels around each pixel: that which comes in the middle when they are put in order. Single pixels
 * that differ from all around them, such as salt and pepper, go, and edges stay where they are.
 *
 *     form                      maskSize     the neighbourhood of (x, y)
 *     vemiFilterMedianHoriz     vemiMask3x1  (x - 1, y) to (x + 1, y)
 *                               vemiMask5x1  (x - 2, y) to (x + 2, y)
 *     vemiFilterMedianVert      vemiMask1x3  (x, y - 1) to (x, y + 1)
 *                               vemiMask1x5  (x, y - 2) to (x, y + 2)
 *     vemiFilterMedianCross     vemiMask3x3  (x, y), and one pixel above, below, to the left and to the right of it: 5
 *                               vemiMask5x5  (x, y), and two pixels on each of these sides: 9
 *
 * Each channel by itself; AC4 forms leave the fourth channel of the destination as it is. The pixels of the
 * neighbourhood are read, also around the region, where they must exist, and no others.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      one of the two values in the table
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h); then vemiErrMaskSize for any other
 * maskSize.
 *
 * **Threads.** AC4 forms share regions of more than 4096 pixels in a team; the others run in the calling thread.
 *
 *     vemiFilterMedianCross_8u_C1R(photo + step + 1, step, clean, cleanStep, inner, vemiMask3x3);
 * @{
 */

VEMI_API VemiStatus vemiFilterMedianHoriz_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianHoriz_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterMedianVert_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianVert_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterMedianCross_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianCross_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianCross_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianCross_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianCross_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianCross_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);

/** @} */

/**
 * @defgroup vemi_filter_median_color vemiFilterMedianColor: the pixel nearest to its neighbours
 *
 * Medians of single channels can put colours together that no pixel has. Here a whole pixel is chosen, out of the
 * square of 3x3 or 5x5 pixels around (x, y), by the sum of its distances to all pixels q of the square:
 *
 *     D(p) = sum of |p.r - q.r| + |p.g - q.g| + |p.b - q.b|
 *
 * The pixel with the least D is copied, its first three channels unchanged; of several with the same D it is the first
 * one, row by row from the top left. AC4 forms leave the fourth channel out of account, and that of the destination as
 * it is.
 *
 * D is exact for 8u and 16s. For 32f the differences and sums are rounded to single precision each, the distances added
 * in the order of the pixels q, row by row. Where a D is not a number, it is not less than another one and no other one
 * is less than it: with a NaN in the square the top left pixel is chosen.
 *
 * **Pixels read around the region**: one on each side for 3x3, two for 5x5. All of them must exist.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      vemiMask3x3 or vemiMask5x5
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h); then
 *
 * - vemiErrMaskSize: any other maskSize
 * - vemiErrMemAlloc: no memory for rows of distances
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiFilterMedianColor_8u_C3R(photo + step + 3, step, clean, cleanStep, inner, vemiMask3x3);
 * @{
 */

VEMI_API VemiStatus vemiFilterMedianColor_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                 VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianColor_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterMedianColor_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianColor_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);

VEMI_API VemiStatus vemiFilterMedianColor_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                  VemiSize roiSize, int maskSize);
VEMI_API VemiStatus vemiFilterMedianColor_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                   VemiSize roiSize, int maskSize);

/** @} */

/* ---- Noise ------------------------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_filter_wiener vemiFilterWiener: noise taken out where there is nothing else
 *
 *     mean = S * r,  D = Q - S * S * r,  D' = max(D, N)
 *     pDst(x, y) = mean + (D' - N) / D' * (pSrc(x, y) - mean)
 *
 * where S is the sum of the pixels of the window and Q that of their squares, r = 1 / (maskSize.width *
 * maskSize.height), and N the power of the noise. So a window with no more variance than the noise becomes its mean,
 * which is also said of one that has none (D = N = 0), and where the variance is much larger the pixel stays. Each
 * channel by itself, with a noise of its own; AC4 forms leave the fourth channel of the destination as it is.
 *
 * **Noise.** pNoise[channel] is the noise's variance, relative to the square of the pixels' range:
 *
 *     N = pNoise[channel] * F * maskSize.width * maskSize.height,  F = 65025 (8u), 4294836224 (16s), 1 (32f)
 *
 * A noise of 0 is estimated: N is then the mean of D, not below 0, over all windows of the region, and pNoise[channel]
 * becomes N * r * 1.53787e-5 (8u), N * r * 2.3283775e-10 (16s) or N * r (32f).
 *
 * **Numbers.** S and Q are exact, those of 32f sums of doubles: of each column from top to bottom, then of the columns
 * from left to right. All else is in single precision, each operation rounded, products from left to right, and the
 * quotient is a true one. 8u and 16s: the nearest integer, ties to even, limited to the type, whatever the rounding
 * mode of the calling thread.
 *
 * **Pixels read around the region**: maskSize.width - 1 - anchor.x columns to its left and anchor.x to its right,
 * maskSize.height - 1 - anchor.y rows above it and anchor.y below. They must exist.
 *
 * vemiFilterWienerGetBufferSize tells the size of pBuffer in bytes,
 *
 *     4 * n * 5 * T + 15,  n = (roiSize.width + maskSize.width + 6) & ~3  for one channel,
 *                          n = (roiSize.width * channels + 6) & ~3        for three and four,
 *
 * with T the most threads that a team can have (omp_get_max_threads), which must not grow before the buffer is used; or
 * the largest int where that is larger. AC4 forms have four channels here.
 *
 * @param pSrc,srcStep  first pixel of the region in the source, and the bytes between its rows
 * @param pDst,dstStep  the same of the destination, which shares no pixel with any that are read
 * @param roiSize       size of the region in pixels
 * @param maskSize      width and height of the window, 2 or more each
 * @param anchor        how many columns to its right (x) and rows below it (y) a pixel's window reaches: from (0, 0) to
 *                      (maskSize.width - 1, maskSize.height - 1)
 * @param pNoise        a noise for each channel that is worked on (1, 3 or 4), from 0 up to but not including 1; those
 *                      that are 0 receive the estimates
 * @param pBuffer       working memory at any address; it holds nothing between calls
 * @param channels      1, 3 or 4
 * @param pBufferSize   receives the size
 *
 * **Statuses**, in the order of the tests: null (pNoise and pBuffer among the pointers), size (see status.h); then
 *
 * - vemiErrMaskSize: a width or a height of the mask is below 2
 * - vemiErrAnchor: the anchor lies outside of the mask
 * - vemiErrStep: a step is below 1
 * - vemiErrNoiseValue: a noise is negative, not below 1, or a NaN
 *
 * vemiFilterWienerGetBufferSize: null, size; vemiErrChannelCount: channels is not 1, 3 or 4; vemiErrMaskSize.
 *
 * **Threads.** C1 forms run in the calling thread, the others in a team, with a band of rows for each thread, unless
 * the region is small. No result depends on its size.
 *
 *     VemiSize window = {5, 5};
 *     VemiPoint middle = {2, 2};
 *     Vemi32f noise[3] = {0, 0, 0};  // to be estimated
 *     int size;
 *     vemiFilterWienerGetBufferSize(inner, window, 3, &size);
 *     Vemi8u* buffer = malloc(size);
 *     vemiFilterWiener_8u_C3R(photo + 2 * step + 6, step, clean, cleanStep, inner, window, middle, noise, buffer);
 * @{
 */

VEMI_API VemiStatus vemiFilterWienerGetBufferSize(VemiSize roiSize, VemiSize maskSize, int channels, int* pBufferSize);

VEMI_API VemiStatus vemiFilterWiener_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                            Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                            Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                            Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFilterWiener_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                              Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFilterWiener_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                             Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFilterWiener_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, Vemi32f* pNoise,
                                              Vemi8u* pBuffer);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
