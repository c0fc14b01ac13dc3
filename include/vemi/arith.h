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
 * @defgroup vemi_arith Arithmetic
 *
 * Each element of the result comes from the elements of the sources at the same place.
 * @{
 */

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
 * **Threads.** The C1 and C3 forms, and vemiAddC_32f_AC4IR, may share out the rows among an OpenMP team; these forms
 * keep small regions in the calling thread by the rule of vemiAdd. The other forms always run in the calling thread.
 *
 *     vemiAddC_8u_C1IRSfs(40, image, step, size, 0);                    // brighter by 40, white stays white
 *     const Vemi32f offset[3] = {0.1f, 0.0f, -0.1f};
 *     vemiAddC_32f_C3R(src, srcStep, offset, dst, dstStep, size);
 * @{
 */

VEMI_API VemiStatus vemiAddC_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[4], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[4], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAddC_8u_C1IRSfs(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C3IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_C4IRSfs(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiAddC_8u_AC4IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiAddC_16s_C1IRSfs(Vemi16s value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C3IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_C4IRSfs(const Vemi16s value[4], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiAddC_16s_AC4IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);

VEMI_API VemiStatus vemiAddC_32f_C1IR(Vemi32f value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C3IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_C4IR(const Vemi32f value[4], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32f_AC4IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/* ---- Bits: logical operations and shifts ------------------------------------------------------------------------- */

/**
 * @defgroup vemi_logical vemiAnd, vemiOr, vemiXor: bits of two images
 *
 *     R forms    pDst    = pSrc1   op pSrc2
 *     I forms    pSrcDst = pSrcDst op pSrc
 *
 * The operation of the name on each bit of each element. All channels are treated alike; AC4 forms work on the first
 * three and leave the destination's fourth as it is. The forms of one width serve every type of that width: the 32s
 * forms are as good for floats.
 *
 * @param pSrc1,pSrc2,pSrc    first pixels of the sources
 * @param src1Step,src2Step,srcStep    bytes between rows of the sources
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels, the same in all images
 *
 * **Overlap.** The two sources may be the same image. pDst overlaps neither source, pSrcDst does not overlap pSrc; to
 * work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, step, size. Here the steps come before the size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiAnd_8u_C1R(image, step, mask, maskStep, cut, cutStep, size);    // a mask of 0 and 255 cuts out its shape
 *     vemiXor_8u_C3IR(key, keyStep, image, step, size);                   // twice, and the image is as before
 * @{
 */

VEMI_API VemiStatus vemiAnd_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                    int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAnd_16u_C1R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_C3R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_C4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_AC4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                     Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAnd_32s_C1R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_C3R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_C4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_AC4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                     Vemi32s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAnd_8u_C1IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_C3IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_C4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_8u_AC4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiAnd_16u_C1IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_C3IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_C4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_16u_AC4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

VEMI_API VemiStatus vemiAnd_32s_C1IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_C3IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_C4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAnd_32s_AC4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

VEMI_API VemiStatus vemiOr_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOr_16u_C1R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                   Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_C3R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                   Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_C4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                   Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_AC4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOr_32s_C1R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                   Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_C3R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                   Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_C4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                   Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_AC4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOr_8u_C1IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_C3IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_C4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOr_8u_AC4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOr_16u_C1IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_C3IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_C4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_16u_AC4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiOr_32s_C1IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_C3IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_C4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOr_32s_AC4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiXor_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step, Vemi8u* pDst,
                                    int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXor_16u_C1R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_C3R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_C4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                    Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_AC4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                     Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXor_32s_C1R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_C3R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_C4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                    Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_AC4R(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                     Vemi32s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXor_8u_C1IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_C3IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_C4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXor_8u_AC4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiXor_16u_C1IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_C3IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_C4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_16u_AC4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

VEMI_API VemiStatus vemiXor_32s_C1IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_C3IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_C4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXor_32s_AC4IR(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_logicalc vemiAndC, vemiOrC, vemiXorC: bits of an image and a constant
 *
 *     R forms    pDst    = pSrc    op value
 *     I forms    pSrcDst = pSrcDst op value
 *
 * The operation of the name on each bit of each element and of the constant for its channel. C1 forms take the constant
 * by value; the others take an array with one for each channel: three elements in C3 and AC4, four in C4. AC4 forms
 * leave the destination's fourth channel as it is; a fourth element of their array is never read.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the constant, or the array of constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of constants does not lie in
 * the destination.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), step, size. Here the steps
 * come before the size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiAndC_8u_C1IR(0xf0, image, step, size);                          // sixteen levels of grey
 *     const Vemi8u red[3] = {0xff, 0, 0};
 *     vemiAndC_8u_C3R(src, srcStep, red, dst, dstStep, size);             // the first channel alone
 * @{
 */

VEMI_API VemiStatus vemiAndC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiAndC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u value, Vemi16u* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[4], Vemi16u* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAndC_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32s value, Vemi32s* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_C3R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_C4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[4], Vemi32s* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_AC4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAndC_8u_C1IR(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_C3IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_C4IR(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_8u_AC4IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAndC_16u_C1IR(Vemi16u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_C3IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_C4IR(const Vemi16u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_16u_AC4IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAndC_32s_C1IR(Vemi32s value, Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_C3IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_C4IR(const Vemi32s value[4], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAndC_32s_AC4IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                   VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                   VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst, int dstStep,
                                   VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u value, Vemi16u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                    int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[4], Vemi16u* pDst,
                                    int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                     int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32s value, Vemi32s* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_C3R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                    int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_C4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[4], Vemi32s* pDst,
                                    int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_AC4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                     int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_8u_C1IR(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_C3IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_C4IR(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_8u_AC4IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_16u_C1IR(Vemi16u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_C3IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_C4IR(const Vemi16u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_16u_AC4IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiOrC_32s_C1IR(Vemi32s value, Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_C3IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_C4IR(const Vemi32s value[4], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiOrC_32s_AC4IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst, int dstStep,
                                    VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst, int dstStep,
                                     VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u value, Vemi16u* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[4], Vemi16u* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32s value, Vemi32s* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_C3R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_C4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[4], Vemi32s* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_AC4R(const Vemi32s* pSrc, int srcStep, const Vemi32s value[3], Vemi32s* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_8u_C1IR(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_C3IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_C4IR(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_8u_AC4IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_16u_C1IR(Vemi16u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_C3IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_C4IR(const Vemi16u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_16u_AC4IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiXorC_32s_C1IR(Vemi32s value, Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_C3IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_C4IR(const Vemi32s value[4], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXorC_32s_AC4IR(const Vemi32s value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_not vemiNot: inverted bits
 *
 *     R forms    pDst    = 255 - pSrc
 *     I forms    pSrcDst = 255 - pSrcDst
 *
 * Each bit turned over, which makes the negative of a picture. All channels are treated alike; AC4 forms leave the
 * destination's fourth as it is.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, step, size in the C1 and AC4 forms; size, null, step in the C3 and C4
 * forms, so that there a bad size is vemiErrSize even if a pointer is null.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiNot_8u_C3IR(image, step, size);                                 // the negative
 * @{
 */

VEMI_API VemiStatus vemiNot_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiNot_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiNot_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_shift vemiLShiftC, vemiRShiftC: elements shifted by a count
 *
 *     vemiLShiftC, R forms    pDst    = pSrc    << value        I forms    pSrcDst = pSrcDst << value
 *     vemiRShiftC, R forms    pDst    = pSrc    >> value        I forms    pSrcDst = pSrcDst >> value
 *
 * Bits that leave the element are lost; nothing is rounded and nothing saturates. From the left come zeros into 8u and
 * 16u elements, and copies of the sign into 8s, 16s and 32s ones; from the right always zeros.
 *
 *     8u     3 << 7  ->  128            8u     200 >> 3  ->  25
 *     8u     3 << 8  ->  0              16s     -5 >> 1  ->  -3
 *
 * The count is unsigned and every value is legal. From the element's width on nothing is left but zeros, or in a right
 * shift of 8s, 16s and 32s the sign alone: 0 for an element that is not negative, -1 for one that is. A negative number
 * that is passed as a count is a very large one.
 *
 * C1 forms take the count by value; the others take an array with one for each channel: three elements in C3 and AC4,
 * four in C4. AC4 forms leave the destination's fourth channel as it is; a fourth element of their array is never read.
 * Equal counts are faster than different ones.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the count of bits, or the array of counts
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of counts does not lie in the
 * destination.
 *
 * **Statuses**, in the order of the tests: null (the array of counts among the pointers), step, size. Here the steps
 * come before the size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiRShiftC_16u_C1R(sensor, sensorStep, 4, image, step, size);      // twelve bits of sixteen
 *     const Vemi32u counts[3] = {0, 1, 8};
 *     vemiRShiftC_8u_C3IR(counts, image, step, size);                     // kept, halved, cleared
 * @{
 */

VEMI_API VemiStatus vemiLShiftC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi32u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[4], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLShiftC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi32u value, Vemi16u* pDst, int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[3], Vemi16u* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[4], Vemi16u* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[3], Vemi16u* pDst,
                                         int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLShiftC_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32u value, Vemi32s* pDst, int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_C3R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[3], Vemi32s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_C4R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[4], Vemi32s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_AC4R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[3], Vemi32s* pDst,
                                         int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLShiftC_8u_C1IR(Vemi32u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_C3IR(const Vemi32u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_C4IR(const Vemi32u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_8u_AC4IR(const Vemi32u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLShiftC_16u_C1IR(Vemi32u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_C3IR(const Vemi32u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_C4IR(const Vemi32u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_16u_AC4IR(const Vemi32u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLShiftC_32s_C1IR(Vemi32u value, Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_C3IR(const Vemi32u value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_C4IR(const Vemi32u value[4], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLShiftC_32s_AC4IR(const Vemi32u value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi32u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[4], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi32u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_8s_C1R(const Vemi8s* pSrc, int srcStep, Vemi32u value, Vemi8s* pDst, int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_C3R(const Vemi8s* pSrc, int srcStep, const Vemi32u value[3], Vemi8s* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_C4R(const Vemi8s* pSrc, int srcStep, const Vemi32u value[4], Vemi8s* pDst,
                                       int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_AC4R(const Vemi8s* pSrc, int srcStep, const Vemi32u value[3], Vemi8s* pDst,
                                        int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi32u value, Vemi16u* pDst, int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[3], Vemi16u* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[4], Vemi16u* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi32u value[3], Vemi16u* pDst,
                                         int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi32u value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_C3R(const Vemi16s* pSrc, int srcStep, const Vemi32u value[3], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_C4R(const Vemi16s* pSrc, int srcStep, const Vemi32u value[4], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_AC4R(const Vemi16s* pSrc, int srcStep, const Vemi32u value[3], Vemi16s* pDst,
                                         int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32u value, Vemi32s* pDst, int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_C3R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[3], Vemi32s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_C4R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[4], Vemi32s* pDst,
                                        int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_AC4R(const Vemi32s* pSrc, int srcStep, const Vemi32u value[3], Vemi32s* pDst,
                                         int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_8u_C1IR(Vemi32u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_C3IR(const Vemi32u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_C4IR(const Vemi32u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8u_AC4IR(const Vemi32u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_8s_C1IR(Vemi32u value, Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_C3IR(const Vemi32u value[3], Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_C4IR(const Vemi32u value[4], Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_8s_AC4IR(const Vemi32u value[3], Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_16u_C1IR(Vemi32u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_C3IR(const Vemi32u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_C4IR(const Vemi32u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16u_AC4IR(const Vemi32u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_16s_C1IR(Vemi32u value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_C3IR(const Vemi32u value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_C4IR(const Vemi32u value[4], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_16s_AC4IR(const Vemi32u value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiRShiftC_32s_C1IR(Vemi32u value, Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_C3IR(const Vemi32u value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_C4IR(const Vemi32u value[4], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRShiftC_32s_AC4IR(const Vemi32u value[3], Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/* ---- Differences and products of real elements ------------------------------------------------------------------- */

/**
 * @defgroup vemi_sub vemiSub: difference of two images
 *
 *     R forms    pDst    = pSrc2   - pSrc1
 *     I forms    pSrcDst = pSrcDst - pSrc
 *
 * Mind the order: the first source is taken off the second. All channels are treated alike; AC4 forms work on the first
 * three and leave the destination's fourth as it is.
 *
 * **8u.** A difference below 0 becomes 0 before anything else is done with it. Then, with s the scaleFactor, it is
 * multiplied by 2^-s, rounded to the nearest integer (ties to even) and limited to 255.
 *
 * **16s.** The exact difference times 2^-s, rounded likewise, then limited to -32768..32767.
 *
 *     8u     9 - 4,     s =  1    2.5  ->  2      (the tie goes to the even neighbour)
 *     8u     2 - 3,     s = -8      0  ->  0
 *     16s    2 - 5,     s =  1   -1.5  -> -2
 *     16s  100 - 60,    s = -2    160  ->  160
 *
 * Every scaleFactor is legal, however large or small: from 9 (8u) or 17 (16s) upward all results are 0, and from -8
 * (8u) or -16 (16s) downward each is 0 or the limit of the type on its side of 0.
 *
 * **32f.** One subtraction in single precision: no scale, no limits, infinities and NaNs as IEEE 754 has them.
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
 * **Threads.** As in vemiAdd: the C1 forms, and the C3 and C4 forms of 8u and 16s, may share out the rows among an
 * OpenMP team, unless the region is small; the other forms always run in the calling thread.
 *
 *     vemiSub_8u_C1RSfs(before, step, after, step, brighter, step, size, 0);   // what became brighter, and by how much
 *     vemiSub_32f_C1IR(mean, meanStep, image, step, size);                     // image -= mean
 * @{
 */

VEMI_API VemiStatus vemiSub_8u_C1RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_C3RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_C4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_AC4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_16s_C1RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_C3RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_C4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_AC4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                     Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSub_8u_C1IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_C3IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_C4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_8u_AC4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_16s_C1IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_C3IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_C4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16s_AC4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_subc vemiSubC: difference of an image and a constant
 *
 *     R forms    pDst    = pSrc    - value
 *     I forms    pSrcDst = pSrcDst - value
 *
 * The constant is of the image's element type. C1 forms take it by value; the others take an array with one constant
 * per channel: three elements in C3 and AC4, four in C4. AC4 forms work on the first three channels and leave the
 * destination's fourth as it is; a fourth element of their array is never read.
 *
 * The limit of 8u differences at 0, scale, rounding and limits are those of vemiSub; the 32f forms have no scale and no
 * limits.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the constant, or the array of constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         as in vemiSub; every int is legal
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of constants does not lie in
 * the destination.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), size, step.
 *
 * **Threads.** As in vemiAddC: the C1 and C3 forms, and the 32f_AC4IR form, may share out the rows among an OpenMP
 * team; the other forms always run in the calling thread.
 *
 *     vemiSubC_8u_C1IRSfs(16, image, step, size, 0);                    // black level 16 becomes 0
 *     const Vemi32f mean[3] = {0.485f, 0.456f, 0.406f};
 *     vemiSubC_32f_C3IR(mean, image, step, size);
 * @{
 */

VEMI_API VemiStatus vemiSubC_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSubC_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_C4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[4], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSubC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[4], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSubC_8u_C1IRSfs(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_C3IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_C4IRSfs(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSubC_8u_AC4IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiSubC_16s_C1IRSfs(Vemi16s value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_C3IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_C4IRSfs(const Vemi16s value[4], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiSubC_16s_AC4IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);

VEMI_API VemiStatus vemiSubC_32f_C1IR(Vemi32f value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_C3IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_C4IR(const Vemi32f value[4], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32f_AC4IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_mul vemiMul: product of two images
 *
 *     R forms    pDst    = pSrc1   * pSrc2
 *     I forms    pSrcDst = pSrcDst * pSrc
 *
 * All channels are treated alike; AC4 forms work on the first three and leave the destination's fourth as it is.
 *
 * **8u, 16s.** With s the scaleFactor, the result is the exact product times 2^-s, rounded to the nearest integer (ties
 * to even), then limited to 0..255 or -32768..32767:
 *
 *     8u   200 * 3,     s =  0       600  ->  255
 *     8u   200 * 3,     s =  2       150  ->  150
 *     8u   255 * 255,   s = 16      0.99  ->  1
 *     16s   -3 * 5,     s =  1      -7.5  ->  -8   (the tie goes to the even neighbour)
 *     16s  300 * 200,   s = -1    120000  ->  32767
 *
 * Every scaleFactor is legal, however large or small: from 17 (8u) or 31 (16s) upward all results are 0, and from -8
 * (8u) or -15 (16s) downward each is 0 or the limit of the type on its side of 0.
 *
 * **32f.** One multiplication in single precision: no scale, no limits, infinities and NaNs as IEEE 754 has them.
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
 * **Threads.** As in vemiAdd: the C1 forms, and the C3 and C4 forms of 8u and 16s, may share out the rows among an
 * OpenMP team, unless the region is small; the other forms always run in the calling thread.
 *
 *     vemiMul_8u_C1RSfs(image, step, shade, step, shaded, step, size, 8);   // a shade of 128 halves the light
 *     vemiMul_32f_C1IR(window, windowStep, frame, step, size);              // frame *= window
 * @{
 */

VEMI_API VemiStatus vemiMul_8u_C1RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_C3RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_C4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_AC4RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_16s_C1RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_C3RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_C4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_AC4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                     Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMul_8u_C1IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_C3IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_C4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_8u_AC4IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_16s_C1IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_C3IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_C4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16s_AC4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_mulc vemiMulC: product of an image and a constant
 *
 *     R forms    pDst    = pSrc    * value
 *     I forms    pSrcDst = pSrcDst * value
 *
 * The constant is of the image's element type. C1 forms take it by value; the others take an array with one constant
 * per channel: three elements in C3 and AC4, four in C4. AC4 forms work on the first three channels and leave the
 * destination's fourth as it is; a fourth element of their array is never read.
 *
 * Scale, rounding and limits are those of vemiMul; the 32f forms have no scale and no limits. A gain of the form
 * value / 2^s keeps an integer image in its type: 3 and a scaleFactor of 2 make three quarters.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the constant, or the array of constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         as in vemiMul; every int is legal
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of constants does not lie in
 * the destination.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), size, step.
 *
 * **Threads.** As in vemiAddC: the C1 and C3 forms, and the 32f_AC4IR form, may share out the rows among an OpenMP
 * team; the other forms always run in the calling thread.
 *
 *     vemiMulC_8u_C1IRSfs(181, image, step, size, 7);                   // brighter by half a stop: 181 / 128 = sqrt 2
 *     const Vemi32f weights[3] = {0.114f, 0.587f, 0.299f};
 *     vemiMulC_32f_C3R(src, srcStep, weights, dst, dstStep, size);
 * @{
 */

VEMI_API VemiStatus vemiMulC_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulC_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_C4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[4], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[4], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                      int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulC_8u_C1IRSfs(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_C3IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_C4IRSfs(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiMulC_8u_AC4IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiMulC_16s_C1IRSfs(Vemi16s value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_C3IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_C4IRSfs(const Vemi16s value[4], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiMulC_16s_AC4IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);

VEMI_API VemiStatus vemiMulC_32f_C1IR(Vemi32f value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_C3IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_C4IR(const Vemi32f value[4], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32f_AC4IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_complex_arith vemiAdd, vemiSub, vemiMul and their constant forms: complex elements
 *
 *     vemiAdd    R forms    pDst = pSrc1 + pSrc2     I forms    pSrcDst = pSrcDst + pSrc
 *     vemiSub    R forms    pDst = pSrc2 - pSrc1     I forms    pSrcDst = pSrcDst - pSrc
 *     vemiMul    R forms    pDst = pSrc1 * pSrc2     I forms    pSrcDst = pSrcDst * pSrc
 *     vemiAddC, vemiSubC, vemiMulC    destination = source + value, source - value, source * value
 *
 * Mind the order in the R forms of vemiSub: the first source is taken from the second.
 *
 * An element is a pair (re, im). Sums and differences are those of the parts; a product is
 *
 *     (a.re * b.re - a.im * b.im,  a.re * b.im + a.im * b.re)
 *
 * A pixel is one element in C1, three in C3, four in AC4, where the first three are worked on and the destination's
 * fourth stays as it is. The constant of C1 forms is passed by value; C3 and AC4 forms take an array of three, one for
 * each channel.
 *
 * **16sc, 32sc.** Each part of the result is the exact value times 2^-s, s being the scaleFactor, rounded to the
 * nearest integer (ties to even) and then limited to the range of the part. The exact value is exact indeed: a product
 * of four parts of -32768 (or -2^31) does not wrap. Every scaleFactor is legal.
 *
 *     16sc    (3, -3) + (0, 0),  s = 1     (1.5, -1.5)  ->  (2, -2)
 *     16sc    (2, 3) * (4, -5),  s = 0     (8 + 15, -10 + 12)  =  (23, 2)
 *
 * **32fc.** Single precision without scale or limits; each multiplication, addition and subtraction of the formula
 * rounds by itself, so every build gives the same result.
 *
 * @param pSrc1,pSrc2,pSrc    first pixels of the sources
 * @param src1Step,src2Step,srcStep    bytes between rows of the sources
 * @param value               the constant, or the array of three constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; negative values multiply
 *
 * **Overlap.** The two sources may be the same image. pDst overlaps no source, pSrcDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: null (an array of constants among the pointers), size, step.
 *
 * **Threads.** All these forms run in the calling thread.
 *
 *     vemiSub_16sc_C1RSfs(b, bStep, a, aStep, diff, diffStep, size, 0);   // diff = a - b
 * @{
 */

VEMI_API VemiStatus vemiAdd_16sc_C1RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16sc_C3RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16sc_AC4RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                         Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32sc_C1RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_32sc_C3RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_32sc_AC4RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                         Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32fc_C1R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32fc_C3R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32fc_AC4R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                      Vemi32fc* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAdd_16sc_C1IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16sc_C3IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_16sc_AC4IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32sc_C1IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_32sc_C3IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAdd_32sc_AC4IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAdd_32fc_C1IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32fc_C3IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiAdd_32fc_AC4IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                       VemiSize roiSize);

VEMI_API VemiStatus vemiAddC_16sc_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc value, Vemi16sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16sc_C3RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_16sc_AC4RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_32sc_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc value, Vemi32sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_32sc_C3RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiAddC_32sc_AC4RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiAddC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc value, Vemi32fc* pDst, int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32fc_C3R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                      int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32fc_AC4R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                       int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAddC_16sc_C1IRSfs(Vemi16sc value, Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiAddC_16sc_C3IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiAddC_16sc_AC4IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiAddC_32sc_C1IRSfs(Vemi32sc value, Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiAddC_32sc_C3IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiAddC_32sc_AC4IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiAddC_32fc_C1IR(Vemi32fc value, Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32fc_C3IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAddC_32fc_AC4IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSub_16sc_C1RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16sc_C3RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16sc_AC4RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                         Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32sc_C1RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_32sc_C3RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_32sc_AC4RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                         Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32fc_C1R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32fc_C3R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32fc_AC4R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                      Vemi32fc* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSub_16sc_C1IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16sc_C3IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_16sc_AC4IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32sc_C1IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_32sc_C3IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSub_32sc_AC4IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSub_32fc_C1IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32fc_C3IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiSub_32fc_AC4IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                       VemiSize roiSize);

VEMI_API VemiStatus vemiSubC_16sc_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc value, Vemi16sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_16sc_C3RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_16sc_AC4RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSubC_32sc_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc value, Vemi32sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_32sc_C3RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSubC_32sc_AC4RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSubC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc value, Vemi32fc* pDst, int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32fc_C3R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                      int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32fc_AC4R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                       int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSubC_16sc_C1IRSfs(Vemi16sc value, Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiSubC_16sc_C3IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiSubC_16sc_AC4IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiSubC_32sc_C1IRSfs(Vemi32sc value, Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiSubC_32sc_C3IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiSubC_32sc_AC4IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiSubC_32fc_C1IR(Vemi32fc value, Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32fc_C3IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSubC_32fc_AC4IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMul_16sc_C1RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16sc_C3RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16sc_AC4RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                         Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32sc_C1RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_32sc_C3RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_32sc_AC4RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                         Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32fc_C1R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32fc_C3R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32fc_AC4R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                      Vemi32fc* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMul_16sc_C1IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16sc_C3IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_16sc_AC4IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32sc_C1IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_32sc_C3IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMul_32sc_AC4IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMul_32fc_C1IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32fc_C3IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiMul_32fc_AC4IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                       VemiSize roiSize);

VEMI_API VemiStatus vemiMulC_16sc_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc value, Vemi16sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_16sc_C3RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_16sc_AC4RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulC_32sc_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc value, Vemi32sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_32sc_C3RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulC_32sc_AC4RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc value, Vemi32fc* pDst, int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32fc_C3R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                      int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32fc_AC4R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                       int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulC_16sc_C1IRSfs(Vemi16sc value, Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiMulC_16sc_C3IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiMulC_16sc_AC4IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiMulC_32sc_C1IRSfs(Vemi32sc value, Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiMulC_32sc_C3IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiMulC_32sc_AC4IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiMulC_32fc_C1IR(Vemi32fc value, Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32fc_C3IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulC_32fc_AC4IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_div vemiDiv: quotient of two images
 *
 *     R forms    pDst    = pSrc2   / pSrc1
 *     I forms    pSrcDst = pSrcDst / pSrc
 *
 * Mind the order in the R forms: the first source is the divisor. All channels are treated alike; AC4 forms divide the
 * first three and leave the destination's fourth as it is, and a zero in the divisor's fourth is of no account.
 *
 * A divisor of zero is no error. The rest of the image is computed, what stands in for the quotient is told below, and
 * the call returns vemiWarnDivByZero, whatever the scaleFactor s.
 *
 * **8u, 16s.** With x the dividend and d the divisor, v = x * 2^-s / d is formed in single precision, multiplication
 * first, then rounded to an integer, ties to even, and limited to 0..255 or -32768..32767. To round, v + 0.5 (8u) or
 * v + 32768.5 (16s) is formed, in single precision as well, and truncated; where the sum was an integer and the result
 * is odd, it is lowered by one. So a 16s quotient within 1/256 of a tie may be rounded as the tie is. For d = 0 the
 * result is the limit of the type on the side of x, and 0 for x = 0:
 *
 *     8u     7 / 2,    s =  0    3.5  ->  4          8u    9 / 0   ->  255
 *     8u     5 / 2,    s =  0    2.5  ->  2         16s   -9 / 0   ->  -32768
 *     16s  100 / -7,   s = -4    -228.57 -> -229    16s    0 / 0   ->  0
 *
 * **32f.** A division in single precision. A divisor of +0 or -0 gives an infinity, or a NaN for 0 / 0, and the
 * warning.
 *
 * **16sc.** In double precision, with den = d.re * d.re + d.im * d.im and q = 1 / den, the parts are
 * (d.re * x.re + d.im * x.im) * q * 2^-s and (d.re * x.im - d.im * x.re) * q * 2^-s, each rounded like a 16s quotient
 * but with the sum in double precision. A divisor of (0, 0) gives (0, 0).
 *
 * **32sc.** The exact quotient times 2^-s, rounded once to the nearest integer (ties to even), then limited. A divisor
 * of (0, 0) gives (0, 0).
 *
 * **32fc.** In single precision: the two numerators of the 16sc formula times r, with r = (2 - den * r0) * r0 and r0 an
 * approximate reciprocal of den. r0 depends on the top 11 bits of den's fraction alone: for den = (1 + f) * 2^e, with i
 * these bits and M = 4097 + 2 * i, it is floor((2^25 + floor(M / 2)) / M) * 2^(-13 - e); an infinity for a denormal den
 * and a zero where it would be denormal itself. Results are good to about 22 bits as long as den and its reciprocal are
 * normal numbers. A den of zero, be it that the squares have vanished, gives NaN in both parts and the warning.
 *
 * @param pSrc1,src1Step      first pixel of the divisor, and the bytes between its rows
 * @param pSrc2,src2Step      the same of the dividend
 * @param pSrc,srcStep        the same of the divisor in I forms
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is dividend and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; every int is legal
 *
 * **Overlap.** The two sources may be the same image. pDst overlaps no source, pSrcDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: null, size, step; behind them vemiWarnDivByZero, with the result written.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiDiv_8u_C1RSfs(flat, flatStep, frame, frameStep, dst, dstStep, size, -7);   // dst = 128 * frame / flat
 * @{
 */

VEMI_API VemiStatus vemiDiv_8u_C1RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_8u_C3RSfs(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                      Vemi8u* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_16s_C1RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16s_C3RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                       Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                    Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                     Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDiv_16sc_C1RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16sc_C3RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                        Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16sc_AC4RSfs(const Vemi16sc* pSrc1, int src1Step, const Vemi16sc* pSrc2, int src2Step,
                                         Vemi16sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32sc_C1RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_32sc_C3RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                        Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_32sc_AC4RSfs(const Vemi32sc* pSrc1, int src1Step, const Vemi32sc* pSrc2, int src2Step,
                                         Vemi32sc* pDst, int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32fc_C1R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32fc_C3R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                     Vemi32fc* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32fc_AC4R(const Vemi32fc* pSrc1, int src1Step, const Vemi32fc* pSrc2, int src2Step,
                                      Vemi32fc* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDiv_8u_C1IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_8u_C3IRSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                       VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_16s_C1IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16s_C3IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                        VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);

VEMI_API VemiStatus vemiDiv_16sc_C1IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16sc_C3IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_16sc_AC4IRSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32sc_C1IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_32sc_C3IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDiv_32sc_AC4IRSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc* pSrcDst, int srcDstStep,
                                          VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDiv_32fc_C1IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32fc_C3IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiDiv_32fc_AC4IR(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pSrcDst, int srcDstStep,
                                       VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_divc vemiDivC: quotient of an image and a constant
 *
 *     R forms    pDst    = pSrc    / value
 *     I forms    pSrcDst = pSrcDst / value
 *
 * C1 forms take the constant by value, C3 and AC4 forms an array of three, one for each channel. AC4 forms leave the
 * destination's fourth channel as it is.
 *
 * **8u, 16s, C1.** x is multiplied by one factor q: v = x * q in single precision, rounded and limited as in vemiDiv.
 * For 16s, q is 2^-s / value in single precision. For 8u, q is 2^-s * r, where r is 1 / value rounded half up to six
 * decimal places (0.333333 for 3, 0.007813 for 128) and then to single precision; so 8u quotients that lie close to a
 * tie may be rounded away from it.
 *
 * **8u, 16s, C3.** The arithmetic is that of vemiDiv with the constant as divisor, the rule for zero included.
 *
 * **32f.** x * (1 / value), two single-precision operations: the last bit may differ from that of a division.
 *
 * **16sc, 32sc.** As vemiDiv with the constant as divisor.
 *
 * **32fc.** x * (re * t, (0 - im) * t) by the formula of vemiMulC, with t = 1 / (re * re + im * im), all in single
 * precision. Where re * re + im * im of a constant is so small that it vanishes, nothing is written; the status is
 * vemiOk in C1 forms, vemiErrDivByZero in C3 and AC4 forms.
 *
 * A constant of zero is refused with vemiErrDivByZero, and so is a set of constants of which one is zero, with nothing
 * written. A complex constant is zero if both parts are; -0 is zero, and NaN counts as zero, too. The C3 forms of 8u
 * and 16s alone go on: they write the whole result, and return vemiErrDivByZero then.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param value               the constant, or the array of three constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s in vemiDiv; every int is legal
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. The array of constants does not lie in
 * the destination.
 *
 * **Statuses**, in the order of the tests: null (an array of constants among the pointers), size, step, then
 * vemiErrDivByZero. In the 32fc forms vemiErrDivByZero for a constant of zero comes first, ahead of null, size and
 * step; only the array of constants itself must be there to be looked at (vemiErrNullPtr). For squares that vanish it
 * comes last.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiDivC_16s_C1IRSfs(3, image, step, size, 0);    // a third, rounded
 * @{
 */

VEMI_API VemiStatus vemiDivC_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                       VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                       int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDivC_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi16s* pDst, int dstStep,
                                        VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi16s* pDst,
                                        int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDivC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi32f* pDst, int dstStep,
                                     VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi32f* pDst,
                                     int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDivC_16sc_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16sc value, Vemi16sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_16sc_C3RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_16sc_AC4RSfs(const Vemi16sc* pSrc, int srcStep, const Vemi16sc value[3], Vemi16sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDivC_32sc_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32sc value, Vemi32sc* pDst, int dstStep,
                                         VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_32sc_C3RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                         int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiDivC_32sc_AC4RSfs(const Vemi32sc* pSrc, int srcStep, const Vemi32sc value[3], Vemi32sc* pDst,
                                          int dstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiDivC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc value, Vemi32fc* pDst, int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32fc_C3R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                      int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32fc_AC4R(const Vemi32fc* pSrc, int srcStep, const Vemi32fc value[3], Vemi32fc* pDst,
                                       int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDivC_8u_C1IRSfs(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiDivC_8u_C3IRSfs(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                        int scaleFactor);

VEMI_API VemiStatus vemiDivC_16s_C1IRSfs(Vemi16s value, Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);
VEMI_API VemiStatus vemiDivC_16s_C3IRSfs(const Vemi16s value[3], Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiDivC_32f_C1IR(Vemi32f value, Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32f_C3IR(const Vemi32f value[3], Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiDivC_16sc_C1IRSfs(Vemi16sc value, Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiDivC_16sc_C3IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiDivC_16sc_AC4IRSfs(const Vemi16sc value[3], Vemi16sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiDivC_32sc_C1IRSfs(Vemi32sc value, Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiDivC_32sc_C3IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                          int scaleFactor);
VEMI_API VemiStatus vemiDivC_32sc_AC4IRSfs(const Vemi32sc value[3], Vemi32sc* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           int scaleFactor);

VEMI_API VemiStatus vemiDivC_32fc_C1IR(Vemi32fc value, Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32fc_C3IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiDivC_32fc_AC4IR(const Vemi32fc value[3], Vemi32fc* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_abs vemiAbs: absolute value
 *
 *     R forms    pDst    = |pSrc|
 *     I forms    pSrcDst = |pSrcDst|
 *
 * All channels are treated alike; AC4 forms leave the destination's fourth channel as it is. The 16s value -32768,
 * which has no counterpart, gives 32767. The 32f forms clear the sign bit: -0.0 gives 0.0, and a NaN stays one.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 *
 * **Steps** that are no multiple of the element size are rounded down to one, after their test. (So are those of the
 * 16s and 32f forms of vemiSqrt; all other functions of this header take steps as they are.)
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiSub_16s_C1IRSfs(a, aStep, b, bStep, size, 0);   // the absolute difference of two images
 *     vemiAbs_16s_C1IR(b, bStep, size);
 * @{
 */

VEMI_API VemiStatus vemiAbs_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAbs_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAbs_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAbs_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAbs_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_sqr vemiSqr: square
 *
 *     R forms    pDst    = pSrc * pSrc
 *     I forms    pSrcDst = pSrcDst * pSrcDst
 *
 * All channels are treated alike; AC4 forms leave the destination's fourth channel as it is.
 *
 * **8u, 16u, 16s.** With s the scaleFactor, the result is the exact square times 2^-s, rounded to the nearest integer
 * (ties to even, which for squares is always down), then limited to the highest value of the type:
 *
 *     8u     20,   s = 0     400  ->  255
 *     8u      6,   s = 3     4.5  ->  4
 *     16s  -300,   s = 2    22500
 *
 * Every scaleFactor is legal: above 16 (8u) or 32 (16u, 16s) all results are 0, and from -8 (8u), -16 (16u) or -15
 * (16s) downward each is 0 or the highest value.
 *
 * **32f.** One multiplication in single precision.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; negative values multiply
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiSqr_8u_C1RSfs(image, step, squares, squareStep, size, 8);    // v * v / 256: 128 gives 64
 * @{
 */

VEMI_API VemiStatus vemiSqr_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_C4RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);

VEMI_API VemiStatus vemiSqr_8u_C1IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_C3IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_C4IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_8u_AC4IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqr_16u_C1RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_C3RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_C4RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_AC4RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);

VEMI_API VemiStatus vemiSqr_16u_C1IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_C3IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_C4IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16u_AC4IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqr_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_C4RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);

VEMI_API VemiStatus vemiSqr_16s_C1IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_C3IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_C4IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqr_16s_AC4IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqr_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSqr_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqr_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_sqrt vemiSqrt: square root
 *
 *     R forms    pDst    = sqrt(pSrc)
 *     I forms    pSrcDst = sqrt(pSrcDst)
 *
 * All channels are treated alike; AC4 forms leave the destination's fourth channel as it is.
 *
 * **8u, 16u, 16s.** With s the scaleFactor, the result is the exact root times 2^-s, rounded to the nearest integer
 * (ties to even), then limited to the highest value of the type. A 16s value below zero gives 0.
 *
 *     8u      9,   s =  1     1.5  ->  2
 *     8u     25,   s =  1     2.5  ->  2      (the tie goes to the even neighbour)
 *     16u     2,   s = -8   362.04 ->  362
 *
 * Every scaleFactor is legal: from 5 (8u) or 9 (16u, 16s) upward all results are 0, and from -8 (8u), -16 (16u) or
 * -15 (16s) downward each is 0 or the highest value.
 *
 * **32f.** The correctly rounded root. -0.0 stays; a number below zero gives the NaN that the processor makes of it;
 * a NaN stays one.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; negative values multiply
 *
 * **Steps** of the 16s and 32f forms that are no multiple of the element size are rounded down to one, after their
 * test; the 8u and 16u forms take them as they are.
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h). Then, of the 16s and 32f forms,
 * vemiWarnSqrtNegative if an element of the source was below zero, at any scaleFactor: in AC4 forms one of the fourth
 * channel too, although it is not worked on. Neither -0.0 nor a NaN is below zero. All of the region is computed.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiSqrt_8u_C1IRSfs(image, step, size, -4);    // sqrt(v) * 16: 255 gives 255, 64 gives 128
 * @{
 */

VEMI_API VemiStatus vemiSqrt_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqrt_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiSqrt_8u_AC4RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);

VEMI_API VemiStatus vemiSqrt_8u_C1IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_8u_C3IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_8u_AC4IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqrt_16u_C1RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16u_C3RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16u_AC4RSfs(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiSqrt_16u_C1IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16u_C3IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16u_AC4IRSfs(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqrt_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                        int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16s_AC4RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                         int scaleFactor);

VEMI_API VemiStatus vemiSqrt_16s_C1IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16s_C3IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiSqrt_16s_AC4IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiSqrt_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqrt_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqrt_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSqrt_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqrt_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqrt_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSqrt_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_ln vemiLn: natural logarithm
 *
 *     R forms    pDst    = ln(pSrc)
 *     I forms    pSrcDst = ln(pSrcDst)
 *
 * All channels are treated alike.
 *
 * **8u, 16s.** With s the scaleFactor, the result is the exact logarithm times 2^-s, rounded to the nearest integer,
 * then limited to the highest value of the type. To keep fractions, take a negative s:
 *
 *     8u    100,   s =  0    4.6  ->  5
 *     8u    100,   s = -4    73.7 ->  74      (4.6 in sixteenths)
 *     16s  1000,   s = -8  1768.4 ->  1768
 *
 * One 8u result is not the nearest integer: 18 with s = -2 gives 11, not 12. Zero gives 0 in 8u forms and -32768 in
 * 16s forms, a 16s value below zero -32768. Every scaleFactor is legal: from 4 (8u) or 5 (16s) upward all results of
 * positive values are 0, and from -9 (8u) or -16 (16s) downward those of values above 1 are the highest value.
 *
 * **32f.** Within one unit in the last place of the correctly rounded logarithm, over the whole range, denormals
 * included; the same bits on every processor. ln 1 is 0.0.
 *
 *     0.0, -0.0                      -infinity
 *     below zero, -infinity too      a quiet NaN
 *     infinity                       infinity
 *     NaN                            the same NaN, quiet
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; negative values multiply
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h). Then vemiWarnLnZero for zeros and
 * vemiWarnLnNegative for values below zero, all of the region being computed; of several rows' warnings the first is
 * returned. Within a row:
 *
 * - 8u, 16s: the first element that has no logarithm decides.
 * - 32f: the row's elements (width, or 3 * width in C3) are taken in chunks of 256 from its start, and only the last
 *   chunk reaches the status: a zero or a negative number in an earlier one raises no warning. In that chunk a number
 *   below zero goes before a zero. To be sure of an image, look for its smallest element instead.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiLn_32f_C1IR(image, step, size);    // products become sums
 * @{
 */

VEMI_API VemiStatus vemiLn_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     int scaleFactor);
VEMI_API VemiStatus vemiLn_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     int scaleFactor);

VEMI_API VemiStatus vemiLn_8u_C1IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiLn_8u_C3IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiLn_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);
VEMI_API VemiStatus vemiLn_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);

VEMI_API VemiStatus vemiLn_16s_C1IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiLn_16s_C3IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiLn_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLn_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiLn_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLn_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_exp vemiExp: exponential
 *
 *     R forms    pDst    = e^pSrc
 *     I forms    pSrcDst = e^pSrcDst
 *
 * All channels are treated alike.
 *
 * **8u, 16s.** With s the scaleFactor, the result is the exact power times 2^-s, plus 1/2, rounded down, then limited
 * to the highest value of the type. So ties go up here, not to the even neighbour:
 *
 *     8u      0,   s =  1     0.5  ->  1
 *     8u      3,   s =  0    20.1  ->  20
 *     16s    -2,   s = -8    34.6  ->  35
 *
 * Every scaleFactor is legal. Few values have a result between 0 and the highest one: at most 7 in 8u forms and 12 in
 * 16s forms.
 *
 * **32f.** Within one unit in the last place of the correctly rounded power, over the whole range, denormal results
 * included; the same bits on every processor. e^0 is 1.0.
 *
 *     above 88.72                    infinity
 *     below -103.97                  0.0
 *     infinity, -infinity            infinity, 0.0
 *     NaN                            the same NaN, quiet
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels
 * @param scaleFactor         s above; negative values multiply
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h). A result beyond the range is no warning.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiExp_32f_C1IR(logarithms, step, size);    // back from vemiLn
 * @{
 */

VEMI_API VemiStatus vemiExp_8u_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);
VEMI_API VemiStatus vemiExp_8u_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      int scaleFactor);

VEMI_API VemiStatus vemiExp_8u_C1IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiExp_8u_C3IRSfs(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiExp_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);
VEMI_API VemiStatus vemiExp_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       int scaleFactor);

VEMI_API VemiStatus vemiExp_16s_C1IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiExp_16s_C3IRSfs(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiExp_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiExp_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiExp_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiExp_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_mulscale vemiMulScale, vemiMulCScale: product on the full scale
 *
 * Both factors stand for fractions of the full scale of their type (255 or 65535), and so does the product:
 *
 *     vemiMulScale,  R forms     pDst    = pSrc1 * pSrc2 / full scale
 *     vemiMulScale,  I forms     pSrcDst = pSrcDst * pSrc / full scale
 *     vemiMulCScale, R forms     pDst    = pSrc * value / full scale
 *     vemiMulCScale, I forms     pSrcDst = pSrcDst * value / full scale
 *
 * The exact result, with t the product and w the bits of the type (8 or 16), is (t + 1 + (t >> w)) >> w: the quotient
 * rounded down. 255 times any 8u value v gives v, 128 times 128 gives 64.
 *
 * All channels are treated alike; AC4 forms leave the destination's fourth channel as it is. The C1 forms of
 * vemiMulCScale take their constant by value; the others take an array with one constant per channel: three elements
 * in C3 and AC4, four in C4.
 *
 * @param pSrc1,pSrc2,pSrc    first pixels of the sources
 * @param src1Step,src2Step,srcStep    bytes between rows of the sources
 * @param value               the constant, or the array of constants
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels, the same in all images
 *
 * **Overlap.** The two sources may be the same image. pDst overlaps no source, pSrcDst does not overlap pSrc; to work
 * in place, take an I form. The array of constants does not lie in the destination.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), **step, size**.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiMulScale_8u_C3IR(vignette, vStep, photo, pStep, size);   // darker where the vignette is
 *     vemiMulCScale_8u_C1R(src, srcStep, 192, dst, dstStep, size); // three quarters of the brightness
 * @{
 */

VEMI_API VemiStatus vemiMulScale_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                         Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulScale_8u_C1IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_C3IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_C4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_8u_AC4IR(const Vemi8u* pSrc, int srcStep, Vemi8u* pSrcDst, int srcDstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiMulScale_16u_C1R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_C3R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_C4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_AC4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                          Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulScale_16u_C1IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_C3IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_C4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiMulScale_16u_AC4IR(const Vemi16u* pSrc, int srcStep, Vemi16u* pSrcDst, int srcDstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiMulCScale_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                          int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulCScale_8u_C1IR(Vemi8u value, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_C3IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_C4IR(const Vemi8u value[4], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_8u_AC4IR(const Vemi8u value[3], Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulCScale_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u value, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_C3R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                          int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_C4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[4], Vemi16u* pDst,
                                          int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_AC4R(const Vemi16u* pSrc, int srcStep, const Vemi16u value[3], Vemi16u* pDst,
                                           int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiMulCScale_16u_C1IR(Vemi16u value, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_C3IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_C4IR(const Vemi16u value[4], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulCScale_16u_AC4IR(const Vemi16u value[3], Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_complement vemiComplement: sign and magnitude
 *
 * Turns two's complement into sign and magnitude, in place: a value below zero becomes its magnitude with the top bit
 * set, others stay. So -1 becomes the bit pattern 0x80000001. The least value, 0x80000000, stays as it is.
 *
 * @param pSrcDst,srcDstStep  first pixel of the image, and the bytes between its rows
 * @param roiSize             size of the region in pixels
 *
 * **Statuses**, in the order of the tests: null, **step, size**.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiComplement_32s_C1IR(coefficients, step, size);
 * @{
 */

VEMI_API VemiStatus vemiComplement_32s_C1IR(Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/* ---- Alpha: compositing and premultiplication -------------------------------------------------------------------- */

/**
 * @defgroup vemi_alphacomp vemiAlphaComp, vemiAlphaCompC: one image laid over another
 *
 * With A and B an element of the two images, a and b the alphas of its pixel, and max the largest value of the type
 * (255 or 65535), which stands for an alpha of one, the result is
 *
 *     over    A' + M(B', max - a)
 *     in      M(A', b)
 *     out     M(A', max - b)
 *     atop    M(A', b) + M(B', max - a)
 *     xor     M(A', max - b) + M(B', max - a)
 *     plus    A' + B'
 *
 * where M(x, y) = floor(x y / max), exactly, and sums are limited to max. A' is A in the premultiplied types and
 * M(A, a) in the others, B' is B or M(B, b). So a straight colour is rounded down twice, once for each product:
 *
 *     8u   A = 255, a = b = 128   InPremul    M(255, 128)             ->  128
 *     8u   A = 255, a = b = 128   In          M(M(255, 128), 128)     ->   64
 *     8u   A = 254, a = 1         In          M(M(254, 1), 255)       ->    0     (b = 255)
 *     8u   A = 200, B = 100       PlusPremul  200 + 100               ->  255
 *
 * The result is premultiplied, whichever type was asked for.
 *
 * **vemiAlphaComp** takes the alphas from the images:
 *
 *     AC4    a pixel's fourth channel
 *     AP4    the fourth plane
 *     AC1    the elements: the images are alphas and nothing else
 *
 * The alpha of the result is that of the operator with A' = a and B' = b, premultiplied or not, but for atop, where it
 * is b. So all channels of AC4 and all planes of AP4 are written, and for AC1 the types n and n + 6 do the same.
 *
 * **vemiAlphaCompC** takes a = alpha1 and b = alpha2 for all pixels. C1, C3, C4 and AP4 forms treat all channels and
 * all four planes as colours. AC4 forms composite the first three channels and leave the destination's fourth as it is.
 *
 * @param pSrc1,pSrc2    first pixels of A and B; AP4: arrays of four of them, one for each plane
 * @param src1Step,src2Step  bytes between rows of the sources, the same for all planes
 * @param alpha1,alpha2  alphas of A and of B
 * @param pDst,dstStep   first pixel or pixels of the destination, and the bytes between its rows
 * @param roiSize        size of the region in pixels, the same in all images
 * @param alphaType      the operator, and whether colours are premultiplied: a value of vemiAlphaType
 *
 * **Overlap.** The sources may be the same image. The destination may be one of the sources, pixel for pixel and with
 * the same step; else it overlaps neither.
 *
 * **Statuses**, in the order of the tests: null (with the four pointers of each array), size, step, then
 * vemiErrAlphaType where alphaType is below 0 or above 11.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiAlphaComp_8u_AC4R(logo, logoStep, page, pageStep, page, pageStep, size, vemiAlphaOverPremul);
 *     vemiAlphaCompC_8u_C3R(a, aStep, 64, b, bStep, 255, mix, mixStep, size, vemiAlphaOver);   // a quarter of a
 * @{
 */

/**
 * How two images are laid over each other, in terms of Porter and Duff (Compositing Digital Images, SIGGRAPH 1984). The
 * first image is A, in front, the second is B. The first six take straight colours, which have not been multiplied by
 * their alpha, the others premultiplied ones.
 */
typedef int vemiAlphaType;
enum {
  vemiAlphaOver = 0,       /**< A over B: A, and B where A lets it through */
  vemiAlphaIn = 1,         /**< A in B: A where B covers */
  vemiAlphaOut = 2,        /**< A out B: A where B does not cover */
  vemiAlphaATop = 3,       /**< A atop B: A where B covers, and B where A lets it through */
  vemiAlphaXor = 4,        /**< A xor B: each where the other does not cover */
  vemiAlphaPlus = 5,       /**< A plus B: the sum */
  vemiAlphaOverPremul = 6, /**< A over B, premultiplied */
  vemiAlphaInPremul = 7,   /**< A in B, premultiplied */
  vemiAlphaOutPremul = 8,  /**< A out B, premultiplied */
  vemiAlphaATopPremul = 9, /**< A atop B, premultiplied */
  vemiAlphaXorPremul = 10, /**< A xor B, premultiplied */
  vemiAlphaPlusPremul = 11 /**< A plus B, premultiplied */
};

VEMI_API VemiStatus vemiAlphaComp_8u_AC1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaComp_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                          Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaComp_8u_AP4R(const Vemi8u* const pSrc1[4], int src1Step, const Vemi8u* const pSrc2[4],
                                          int src2Step, Vemi8u* const pDst[4], int dstStep, VemiSize roiSize,
                                          vemiAlphaType alphaType);

VEMI_API VemiStatus vemiAlphaComp_16u_AC1R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                           Vemi16u* pDst, int dstStep, VemiSize roiSize, vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaComp_16u_AC4R(const Vemi16u* pSrc1, int src1Step, const Vemi16u* pSrc2, int src2Step,
                                           Vemi16u* pDst, int dstStep, VemiSize roiSize, vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaComp_16u_AP4R(const Vemi16u* const pSrc1[4], int src1Step, const Vemi16u* const pSrc2[4],
                                           int src2Step, Vemi16u* const pDst[4], int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);

VEMI_API VemiStatus vemiAlphaCompC_8u_C1R(const Vemi8u* pSrc1, int src1Step, Vemi8u alpha1, const Vemi8u* pSrc2,
                                          int src2Step, Vemi8u alpha2, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_8u_C3R(const Vemi8u* pSrc1, int src1Step, Vemi8u alpha1, const Vemi8u* pSrc2,
                                          int src2Step, Vemi8u alpha2, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_8u_C4R(const Vemi8u* pSrc1, int src1Step, Vemi8u alpha1, const Vemi8u* pSrc2,
                                          int src2Step, Vemi8u alpha2, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_8u_AC4R(const Vemi8u* pSrc1, int src1Step, Vemi8u alpha1, const Vemi8u* pSrc2,
                                           int src2Step, Vemi8u alpha2, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_8u_AP4R(const Vemi8u* const pSrc1[4], int src1Step, Vemi8u alpha1,
                                           const Vemi8u* const pSrc2[4], int src2Step, Vemi8u alpha2,
                                           Vemi8u* const pDst[4], int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);

VEMI_API VemiStatus vemiAlphaCompC_16u_C1R(const Vemi16u* pSrc1, int src1Step, Vemi16u alpha1, const Vemi16u* pSrc2,
                                           int src2Step, Vemi16u alpha2, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_16u_C3R(const Vemi16u* pSrc1, int src1Step, Vemi16u alpha1, const Vemi16u* pSrc2,
                                           int src2Step, Vemi16u alpha2, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_16u_C4R(const Vemi16u* pSrc1, int src1Step, Vemi16u alpha1, const Vemi16u* pSrc2,
                                           int src2Step, Vemi16u alpha2, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                           vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_16u_AC4R(const Vemi16u* pSrc1, int src1Step, Vemi16u alpha1, const Vemi16u* pSrc2,
                                            int src2Step, Vemi16u alpha2, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                            vemiAlphaType alphaType);
VEMI_API VemiStatus vemiAlphaCompC_16u_AP4R(const Vemi16u* const pSrc1[4], int src1Step, Vemi16u alpha1,
                                            const Vemi16u* const pSrc2[4], int src2Step, Vemi16u alpha2,
                                            Vemi16u* const pDst[4], int dstStep, VemiSize roiSize,
                                            vemiAlphaType alphaType);

/** @} */

/**
 * @defgroup vemi_alphapremul vemiAlphaPremul, vemiAlphaPremulC: colours times alpha
 *
 *     colours    M(x, alpha) = floor(x alpha / max), exactly; max is 255 or 65535
 *
 * **vemiAlphaPremul** takes each pixel's own alpha, in AC4 its fourth channel, in AP4 its element of the fourth plane.
 * The alpha goes to the destination as it is.
 *
 * **vemiAlphaPremulC** takes one alpha for all pixels. C1, C3 and C4 forms multiply all channels. AC4 and AP4 forms
 * multiply the first three, and the fourth becomes `alpha`, whatever it was.
 *
 *     8u   x = 255, alpha = 128   ->  128
 *     8u   x = 254, alpha = 1     ->    0
 *     8u   x = 128, alpha = 128   ->   64
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows; AP4: an array of the first
 *                            pixels of four planes, which all have this step
 * @param alpha               the constant alpha, 0 to max
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels, the same in all images
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form.
 *
 * **Statuses**, in the order of the tests: null (with the four pointers of each array), size, step (see status.h).
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiAlphaPremul_8u_AC4IR(sprite, step, size);          // once, for vemiAlphaOverPremul afterwards
 *     vemiAlphaPremulC_8u_AC4IR(128, photo, step, size);     // an opaque picture at half strength
 * @{
 */

VEMI_API VemiStatus vemiAlphaPremul_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremul_8u_AP4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* const pDst[4],
                                            int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremul_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremul_16u_AP4R(const Vemi16u* const pSrc[4], int srcStep, Vemi16u* const pDst[4],
                                             int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremul_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremul_8u_AP4IR(Vemi8u* const pSrcDst[4], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremul_16u_AC4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremul_16u_AP4IR(Vemi16u* const pSrcDst[4], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremulC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u alpha, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u alpha, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u alpha, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u alpha, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_AP4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u alpha,
                                             Vemi8u* const pDst[4], int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremulC_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u alpha, Vemi16u* pDst,
                                             int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u alpha, Vemi16u* pDst,
                                             int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_C4R(const Vemi16u* pSrc, int srcStep, Vemi16u alpha, Vemi16u* pDst,
                                             int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u alpha, Vemi16u* pDst,
                                              int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_AP4R(const Vemi16u* const pSrc[4], int srcStep, Vemi16u alpha,
                                              Vemi16u* const pDst[4], int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremulC_8u_C1IR(Vemi8u alpha, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_C3IR(Vemi8u alpha, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_C4IR(Vemi8u alpha, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_AC4IR(Vemi8u alpha, Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_8u_AP4IR(Vemi8u alpha, Vemi8u* const pSrcDst[4], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiAlphaPremulC_16u_C1IR(Vemi16u alpha, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_C3IR(Vemi16u alpha, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_C4IR(Vemi16u alpha, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_AC4IR(Vemi16u alpha, Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiAlphaPremulC_16u_AP4IR(Vemi16u alpha, Vemi16u* const pSrcDst[4], int srcDstStep,
                                               VemiSize roiSize);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
