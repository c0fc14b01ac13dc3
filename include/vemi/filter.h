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
 * pixel
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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
