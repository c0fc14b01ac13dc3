/**
 * @file arith.h
 * Arithmetic on two images, or on an image and a constant, element by element.
 */
#ifndef VEMI_ARITH_H
#define VEMI_ARITH_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_add vemiAdd: sum of two images
 *
 *     R forms    pDst    = pSrc1   + pSrc2
 *     I forms    pSrcDst = pSrcDst + pSrc
 *
 * All channels are treated alike; AC4 forms add the first three and leave the destination's fourth as it is.
 *
 * **8u, 16s.** With s the scaleFactor, the result is the exact sum times 2^-s, rounded to the nearest integer (ties to
 * even), then limited to 0..255 or -32768..32767:
 *
 *     8u     1 + 2,     s =  1    1.5  ->  2
 *     8u     2 + 3,     s =  1    2.5  ->  2      (the tie goes to the even neighbour)
 *     16s   -3 + 0,     s =  1   -1.5  -> -2
 *     8u   200 + 100,   s =  0    300  ->  255
 *     8u     3 + 4,     s = -2     28  ->  28
 *
 * Every scaleFactor is legal, however large or small: from 10 (8u) or 17 (16s) upward all results are 0, and from -8
 * (8u) or -16 (16s) downward each is 0 or the limit of the type on its side of 0.
 *
 * **32f.** One addition in single precision: no scale, no limits, infinities and NaNs as IEEE 754 has them.
 *
 * @param pSrc1,pSrc2,pSrc    first pixels of the sources
 * @param src1Step,src2Step,srcStep    bytes between rows of the sources
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels, the same in all images
 * @param scaleFactor         s above; negative values multiply
 *
 * **Overlap.** The two sources may be the same image. pDst overlaps neither source, pSrcDst does not overlap pSrc; to
 * work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h). The 8u and 16s forms of C3 and C4 look at
 * roiSize.width first of all, so that there a width below 1 is vemiErrSize even if a pointer is null.
 *
 * **Threads.** The C1 forms, and the C3 and C4 forms of 8u and 16s, may share out the rows among an OpenMP team. A
 * small region with a scaleFactor of 0 or more stays in the calling thread: one with
 * (height >> 2) + (bytes in a row >> 4) of at most 20. The other forms always run in the calling thread.
 *
 *     vemiAdd_8u_C3RSfs(a, aStep, b, bStep, mean, meanStep, size, 1);   // the average of two pictures
 *     vemiAdd_32f_C1IR(frame, frameStep, sum, sumStep, size);           // sum += frame
 * @{
 */

VEMI_API VemiStatus vemiAdd_8u_C1RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_C3RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_C4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_AC4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_16s_C1RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_C3RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_C4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_AC4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                     Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAdd_8u_C1IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_C3IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_C4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_8u_AC4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_16s_C1IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_C3IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_C4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16s_AC4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_addc vemiAddC: sum of an image and a constant
 *
 *     R forms    pDst    = pSrc    + value
 *     I forms    pSrcDst = pSrcDst + value
 *
 * The constant is of the image's element type. C1 forms take it by value; the others take an array with one constant
 * per channel: three elements in C3 and AC4, four in C4. AC4 forms add to the first three channels and leave the
 * destination's fourth as it is; a fourth element of their array is never read.
 *
 * Scale, rounding and limits are those of vemiAdd with the constant in the place of one source; the 32f forms have no
 * scale and no limits. To subtract from an 8u image, take vemiSubC: constants of that type are never negative.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the constant, or the array of constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         as in vemiAdd; every int is legal
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of constants does not lie in
 * the destination.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), size, step.
 *
 * **Threads.** The C1 and C3 forms, and vemiAddC_32f_AC4IR, may share out the rows among an OpenMP team; C1 forms keep
 * small regions in the calling thread by the rule of vemiAdd. The other forms always run in the calling thread.
 *
 *     vemiAddC_8u_C1IRSfs(40, image, step, size, 0);                    // brighter by 40, white stays white
 *     const Vemi32f offset[3] = {0.1f, 0.0f, -0.1f};
 *     vemiAddC_32f_C3R(src, srcStep, offset, dst, dstStep, size);
 * @{
 */

VEMI_API VemiStatus vemiAddC_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u* value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u* value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u* value, Vemi8u* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s* value, Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s* value, Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s* value, Vemi16s* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f* value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f* value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f* value, Vemi32f* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAddC_8u_C1IRSfs(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C3IRSfs(const Vemi8u* value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C4IRSfs(const Vemi8u* value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_AC4IRSfs(const Vemi8u* value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiAddC_16s_C1IRSfs(Vemi16s value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C3IRSfs(const Vemi16s* value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C4IRSfs(const Vemi16s* value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_AC4IRSfs(const Vemi16s* value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);

VEMI_API VemiStatus vemiAddC_32f_C1IR(Vemi32f value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C3IR(const Vemi32f* value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C4IR(const Vemi32f* value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_AC4IR(const Vemi32f* value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
