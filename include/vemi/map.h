/**
 * @file map.h
 * Value mapping: other element types, thresholds and comparisons, lookup tables and transfer curves.
 */
#ifndef VEMI_MAP_H
#define VEMI_MAP_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_map Value mapping
 *
 * Each element of the result comes from one element of the source, by a rule for its value.
 * @{
 */

/* ---- Other element types ----------------------------------------------------------------------------------------- */

/**
 * @defgroup vemi_convert vemiConvert: the same values in another element type
 *
 *     pDst = pSrc, limited to the range of the destination's type
 *
 * The type in the name is the source's, then the destination's. All channels are treated alike; AC4 forms convert the
 * first three and leave the destination's fourth as it is.
 *
 * **To a type that holds every value** (8u16u, 8u16s, 8u32s, 8u32f, 8s32s, 8s32f, 16u32s, 16u32f, 16s32f): the value,
 * exactly.
 *
 * **From a wider integer** (16u8u, 16s8u, 32s8u, 32s8s): the value, or the limit on its side. So 300 becomes 255 in 8u
 * and 127 in 8s, and -5 becomes 0 in 8u.
 *
 * **From 32f** (32f8u, 32f8s, 32f16u, 32f16s): the value is limited first, to 0..255, -128..127, 0..65535 or
 * -32768..32767, and then made an integer by roundMode:
 *
 *                 32f8u                        32f8s
 *                 2.5   3.5  -0.7   300.0      -2.5   -0.7    NaN
 *     vemiRndNear   2     4     0     255        -2     -1    127
 *     vemiRndZero   2     3     0     255        -2      0    127
 *
 * Infinities are limited like numbers; a NaN gives the largest value of the destination's type. The rounding mode of
 * the calling thread has no influence, and no floating-point exception reaches it, be it unmasked: on return the
 * thread's control word is what it was before the call, with its rounding mode, masks and flags.
 *
 * @param pSrc,srcStep   first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep   the same of the destination
 * @param roiSize        size of the region in pixels
 * @param roundMode      (from 32f alone) vemiRndNear: to the nearest integer, ties to the even one; any other number,
 *                       vemiRndZero among them: the fraction is dropped
 *
 * **Overlap.** pDst does not overlap pSrc: the elements differ in size.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiConvert_8u32f_C3R(photo, photoStep, work, workStep, size);
 *     vemiMulC_32f_C3IR(gain, work, workStep, size);
 *     vemiConvert_32f8u_C3R(work, workStep, photo, photoStep, size, vemiRndNear);
 * @{
 */

VEMI_API VemiStatus vemiConvert_8u16u_C1R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16u_C4R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16s_C3R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16s_C4R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u16s_AC4R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_8u32s_C1R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32s_C3R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32s_C4R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32s_AC4R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_8u32f_C1R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32f_C3R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32f_C4R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_8s32s_C1R(const Vemi8s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32s_C3R(const Vemi8s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32s_C4R(const Vemi8s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32s_AC4R(const Vemi8s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_8s32f_C1R(const Vemi8s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32f_C3R(const Vemi8s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32f_C4R(const Vemi8s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8s32f_AC4R(const Vemi8s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_16u32s_C1R(const Vemi16u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32s_C3R(const Vemi16u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32s_C4R(const Vemi16u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32s_AC4R(const Vemi16u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                            VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_16u32f_C1R(const Vemi16u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32f_C3R(const Vemi16u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32f_C4R(const Vemi16u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u32f_AC4R(const Vemi16u* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_16s32f_C1R(const Vemi16s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s32f_C3R(const Vemi16s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s32f_C4R(const Vemi16s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s32f_AC4R(const Vemi16s* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_16u8u_C1R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u8u_C3R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u8u_C4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16u8u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_16s8u_C1R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s8u_C3R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s8u_C4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_16s8u_AC4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_32s8u_C1R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8u_C3R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8u_C4R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8u_AC4R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_32s8s_C1R(const Vemi32s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8s_C3R(const Vemi32s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8s_C4R(const Vemi32s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_32s8s_AC4R(const Vemi32s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiConvert_32f8u_C1R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8u_C3R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8u_C4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8u_AC4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);

VEMI_API VemiStatus vemiConvert_32f8s_C1R(const Vemi32f* pSrc, int srcStep, Vemi8s* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8s_C3R(const Vemi32f* pSrc, int srcStep, Vemi8s* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8s_C4R(const Vemi32f* pSrc, int srcStep, Vemi8s* pDst, int dstStep, VemiSize roiSize,
                                          vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f8s_AC4R(const Vemi32f* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);

VEMI_API VemiStatus vemiConvert_32f16u_C1R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16u_C3R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16u_C4R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16u_AC4R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                            VemiSize roiSize, vemiRoundMode roundMode);

VEMI_API VemiStatus vemiConvert_32f16s_C1R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16s_C3R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16s_C4R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, vemiRoundMode roundMode);
VEMI_API VemiStatus vemiConvert_32f16s_AC4R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, vemiRoundMode roundMode);

/** @} */

/**
 * @defgroup vemi_convert_bits vemiConvert: bit images
 *
 * A bit image has eight pixels to a byte, the first one in the most significant bit. Steps are bytes, as everywhere; a
 * row begins at a bit offset in its first byte, the same in all rows: pixel i of a row is bit (offset mod 8) + i,
 * counted from the most significant bit of the row's first byte. Of an offset the lowest three bits count: 9 is as good
 * as 1, and moves nothing to the next byte.
 *
 * **vemiConvert_1u8u_C1R** makes 255 of a set bit and 0 of a clear one. Bytes that hold no pixel of the region are not
 * read.
 *
 * **vemiConvert_8u1u_C1R** makes a picture of black and white dots that looks grey from afar: each pixel becomes a bit,
 * and the error is passed on to pixels that are still to be decided. Rows go from top to bottom, each from left to
 * right. With x the pixel, and c, b and a the errors of its row and of the two rows above, all integers:
 *
 *     S = 4 c[i-2] + 8 c[i-1]
 *       + 2 b[i-2] + 4 b[i-1] + 8 b[i] + 4 b[i+1] + 2 b[i+2]
 *       +   a[i-2] + 2 a[i-1] + 4 a[i] + 2 a[i+1] +   a[i+2]
 *     T = 8192 x + 23 S
 *     bit  = T > 8192 threshold
 *     c[i] = (T >> 10) - (bit ? 2047 : 0)
 *
 * Errors outside of the region are 0. The weights are those of P. Stucki's filter (MECCA, a multiple-error correcting
 * computation algorithm for bilevel image hardcopy reproduction, IBM Research Report RZ1060, 1981). Their sum is 42;
 * 23 / 1024 stands for it, so that 94 percent of an error arrive: with a threshold of 128 middle tones keep their
 * brightness, and the lightest and darkest lose some of their dots. Bits of a row's first byte ahead of the offset, and
 * of its last byte behind the last pixel, stay as they are; they are stored again, so no other thread may write to
 * these bytes during the call.
 *
 * @param pSrc,srcStep   first pixel or, of bits, first byte of the source, and the bytes between its rows
 * @param srcBitOffset   of the source's rows: 0 or more
 * @param pDst,dstStep   first pixel or, of bits, first byte of the destination, and the bytes between its rows
 * @param dstBitOffset   of the destination's rows: 0 or more
 * @param roiSize        size of the region in pixels
 * @param threshold      the value up to which a pixel without inherited errors becomes 0
 *
 * **Overlap.** pDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: 1u8u null, size, step, then vemiErrSize for a negative offset. 8u1u null,
 * then vemiErrSize for a size below 1 or a negative offset, then vemiErrMemAlloc if the memory for three rows of errors
 * (12 bytes a column) is not to be had, with nothing written. 8u1u takes steps as they are, zero and negative ones too.
 *
 * **Threads.** Both forms run in the calling thread.
 *
 *     vemiConvert_8u1u_C1R(grey, greyStep, bits, bitsStep, 0, size, 128);    // for a printer
 *     vemiConvert_1u8u_C1R(bits, bitsStep, 0, dots, dotsStep, size);         // the same dots on a screen
 * @{
 */

VEMI_API VemiStatus vemiConvert_1u8u_C1R(const Vemi1u* pSrc, int srcStep, int srcBitOffset, Vemi8u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiConvert_8u1u_C1R(const Vemi8u* pSrc, int srcStep, Vemi1u* pDst, int dstStep, int dstBitOffset,
                                         VemiSize roiSize, Vemi8u threshold);

/** @} */

/**
 * @defgroup vemi_scale vemiScale: the range of one type onto the range of another
 *
 * The lowest value of the source's type becomes the lowest of the destination's, the highest the highest, and the
 * others go in proportion. The range of a 32f side is vMin..vMax. All channels are treated alike; AC4 forms scale the
 * first three and leave the destination's fourth as it is.
 *
 * **From 8u to a wider integer**, exactly:
 *
 *     8u16u    257 x                       0 ->           0     255 ->      65535
 *     8u16s    257 x - 32768               0 ->      -32768     255 ->      32767
 *     8u32s    16843009 x - 2147483648     0 -> -2147483648     255 -> 2147483647
 *
 * **From a wider integer to 8u.** With v the value, in 16u less 32768, and shifts that keep the sign:
 *
 *     fast, any hint but vemiHintAccurate
 *       16u8u, 16s8u    ((v - (v >> 8)) >> 8) + 128
 *       32s8u           ((v - (v >> 8)) >> 24) + 128
 *     accurate, vemiHintAccurate: the fraction is dropped; x is the value itself
 *       16u8u           0.0038910506f x
 *       16s8u           0.0038910506f x + 127.501945f
 *       32s8u           5.937181414556033e-8 x + 127.5000000296859
 *
 * The fast path rounds to the nearest byte, by and large; the accurate one goes down. Its factor for 16 bits is the
 * single-precision number a little below 1 / 257, so that the multiples of 257 come out one lower: 65535 and 32767 give
 * 254. Products and sums are double precision. What 8u was scaled up comes back by the fast path, and from 32s by the
 * accurate one too.
 *
 * **8u32f.** vMin + x ((vMax - vMin) / 255). Where vMax - vMin overflows single precision this is an infinity or, as
 * for 0, a NaN.
 *
 * **32f8u.** Values are limited to vMin..vMax; then, with k = 255 / (vMax - vMin), the nearest integer to x k +
 * (-k vMin), ties to the even one, limited to 0..255. A NaN counts as vMin. Where vMax - vMin or k overflows single
 * precision all results are 0.
 *
 * Each of these operations is rounded to single precision on its own. The rounding mode of the calling thread has no
 * influence, and no floating-point exception reaches it; on return its control word is what it was before the call.
 * Denormal floats are numbers, unless the thread has told its floating-point unit to flush them to zero.
 *
 * @param pSrc,srcStep   first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep   the same of the destination
 * @param roiSize        size of the region in pixels
 * @param hint           (from a wider integer to 8u alone) vemiHintAccurate, or any other number for the fast path
 * @param vMin,vMax      (with 32f alone) the range of the floats; vMax - vMin must be above 0
 *
 * **Overlap.** pDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: in 8u32f and 32f8u vemiErrScaleRange if vMax - vMin is not above 0 or is a
 * NaN, ahead of all else; then null, size, step.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiScale_16u8u_C1R(scan, scanStep, grey, greyStep, size, vemiHintFast);
 *     vemiScale_8u32f_C3R(photo, photoStep, work, workStep, size, 0.0f, 1.0f);
 *     vemiScale_32f8u_C3R(work, workStep, photo, photoStep, size, 0.0f, 1.0f);
 * @{
 */

VEMI_API VemiStatus vemiScale_8u16u_C1R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16u_C4R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiScale_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16s_C3R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16s_C4R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u16s_AC4R(const Vemi8u* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiScale_8u32s_C1R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u32s_C3R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u32s_C4R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiScale_8u32s_AC4R(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiScale_16u8u_C1R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16u8u_C3R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16u8u_C4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16u8u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         vemiHint hint);

VEMI_API VemiStatus vemiScale_16s8u_C1R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16s8u_C3R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16s8u_C4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_16s8u_AC4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         vemiHint hint);

VEMI_API VemiStatus vemiScale_32s8u_C1R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_32s8u_C3R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_32s8u_C4R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        vemiHint hint);
VEMI_API VemiStatus vemiScale_32s8u_AC4R(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         vemiHint hint);

VEMI_API VemiStatus vemiScale_8u32f_C1R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_8u32f_C3R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_8u32f_C4R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_8u32f_AC4R(const Vemi8u* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                         Vemi32f vMin, Vemi32f vMax);

VEMI_API VemiStatus vemiScale_32f8u_C1R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_32f8u_C3R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_32f8u_C4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                        Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiScale_32f8u_AC4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         Vemi32f vMin, Vemi32f vMax);

/** @} */

/**
 * @defgroup vemi_threshold vemiThreshold: values below or above a threshold are replaced
 *
 * Of an element x, the threshold t of its channel and the value v of its channel:
 *
 *     vemiThreshold_LT           t if x < t, otherwise x
 *     vemiThreshold_GT           t if x > t, otherwise x
 *     vemiThreshold_LTVal        v if x < t, otherwise x
 *     vemiThreshold_GTVal        v if x > t, otherwise x
 *     vemiThreshold_LTValGTVal   valueLT if x < thresholdLT, valueGT if x > thresholdGT, otherwise x
 *     vemiThreshold              vemiThreshold_LT for vemiCmpLess, vemiThreshold_GT for vemiCmpGreater
 *     vemiThreshold_Val          vemiThreshold_LTVal for vemiCmpLess, vemiThreshold_GTVal for vemiCmpGreater
 *
 * So vemiThreshold_LT gives the larger of x and t, and vemiThreshold_GT the smaller one. An x that is equal to its
 * threshold is never changed. An element that is not replaced keeps its bits, and one that is takes those of the
 * constant: a 32f zero is neither below nor above a zero of the other sign, a NaN is neither below nor above anything,
 * and where t is a NaN no element is replaced. Infinities are ordinary values. Constants may be anything that the type
 * holds, a value also on the far side of its threshold; only the two thresholds of one call have an order.
 *
 * Constants are of the image's element type. C1 forms take them by value; the others take arrays with one constant for
 * each channel: three elements in C3 and AC4, four in C4. AC4 forms leave the destination's fourth channel as it is. To
 * treat all four channels, take vemiThreshold_LTVal or vemiThreshold_GTVal, which alone have C4 forms; with the
 * threshold as the value they limit a pixel as vemiThreshold_LT and vemiThreshold_GT do.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination (I forms)
 * @param roiSize             size of the region in pixels
 * @param threshold,value     the threshold and what stands in for elements beyond it, or an array of each
 * @param thresholdLT,valueLT the lower threshold and what stands in for elements below it, or an array of each
 * @param thresholdGT,valueGT the upper threshold and what stands in for elements above it, or an array of each
 * @param cmpOp               vemiCmpLess or vemiCmpGreater
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an I form. No array of constants lies in the
 * destination.
 *
 * **Statuses**, in the order of the tests:
 * - an image pointer is null: vemiErrNullPtr
 * - size: vemiErrSize
 * - step: vemiErrStep
 * - an array of constants is null: vemiErrNullPtr
 * - cmpOp is neither vemiCmpLess nor vemiCmpGreater: vemiErrUnsupportedMode
 * - thresholdGT is not at least thresholdLT in every channel (below it, or one of the two is a NaN): vemiErrThreshold.
 *   Equal thresholds are legal; their value is then the only one that stays.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiThreshold_8u_C1R(src, srcStep, dst, dstStep, size, 100, vemiCmpGreater);   // 200 -> 100, 50 -> 50
 *     vemiThreshold_LT_16s_C1IR(image, step, size, -5);                              // -10 -> -5
 *     vemiThreshold_LTValGTVal_8u_C1IR(image, step, size, 50, 0, 200, 255);          // 49 -> 0, 50 -> 50, 201 -> 255
 * @{
 */

VEMI_API VemiStatus vemiThreshold_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         Vemi8u threshold, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi8u threshold[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi8u threshold[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold,
                                          vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u threshold[3],
                                          vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const Vemi8u threshold[3],
                                           vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, Vemi16s threshold, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi16s threshold[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi16s threshold[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold,
                                           vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           const Vemi16s threshold[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                            const Vemi16s threshold[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, Vemi32f threshold, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f threshold[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f threshold[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold,
                                           vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                           const Vemi32f threshold[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                            const Vemi32f threshold[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_LT_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, Vemi8u threshold);
VEMI_API VemiStatus vemiThreshold_LT_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi8u threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi8u threshold[3]);

VEMI_API VemiStatus vemiThreshold_LT_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold);
VEMI_API VemiStatus vemiThreshold_LT_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                             const Vemi8u threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi8u threshold[3]);

VEMI_API VemiStatus vemiThreshold_LT_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, Vemi16s threshold);
VEMI_API VemiStatus vemiThreshold_LT_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi16s threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi16s threshold[3]);

VEMI_API VemiStatus vemiThreshold_LT_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold);
VEMI_API VemiStatus vemiThreshold_LT_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi16s threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi16s threshold[3]);

VEMI_API VemiStatus vemiThreshold_LT_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, Vemi32f threshold);
VEMI_API VemiStatus vemiThreshold_LT_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f threshold[3]);

VEMI_API VemiStatus vemiThreshold_LT_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold);
VEMI_API VemiStatus vemiThreshold_LT_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi32f threshold[3]);
VEMI_API VemiStatus vemiThreshold_LT_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, Vemi8u threshold);
VEMI_API VemiStatus vemiThreshold_GT_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi8u threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi8u threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold);
VEMI_API VemiStatus vemiThreshold_GT_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                             const Vemi8u threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi8u threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, Vemi16s threshold);
VEMI_API VemiStatus vemiThreshold_GT_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi16s threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi16s threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold);
VEMI_API VemiStatus vemiThreshold_GT_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi16s threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi16s threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, Vemi32f threshold);
VEMI_API VemiStatus vemiThreshold_GT_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f threshold[3]);

VEMI_API VemiStatus vemiThreshold_GT_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold);
VEMI_API VemiStatus vemiThreshold_GT_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi32f threshold[3]);
VEMI_API VemiStatus vemiThreshold_GT_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f threshold[3]);

VEMI_API VemiStatus vemiThreshold_Val_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, Vemi8u threshold, Vemi8u value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3],
                                             vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3],
                                              vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_Val_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold,
                                              Vemi8u value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi8u threshold[3], const Vemi8u value[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi8u threshold[3], const Vemi8u value[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_Val_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, Vemi16s threshold, Vemi16s value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3],
                                              vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3],
                                               vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_Val_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold,
                                               Vemi16s value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi16s threshold[3], const Vemi16s value[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi16s threshold[3], const Vemi16s value[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_Val_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, Vemi32f threshold, Vemi32f value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3],
                                              vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3],
                                               vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_Val_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold,
                                               Vemi32f value, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f threshold[3], const Vemi32f value[3], vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiThreshold_Val_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi32f threshold[3], const Vemi32f value[3], vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiThreshold_LTVal_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, Vemi8u threshold, Vemi8u value);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi8u threshold[4], const Vemi8u value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3]);

VEMI_API VemiStatus vemiThreshold_LTVal_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold,
                                                Vemi8u value);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi8u threshold[3], const Vemi8u value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi8u threshold[4], const Vemi8u value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi8u threshold[3], const Vemi8u value[3]);

VEMI_API VemiStatus vemiThreshold_LTVal_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, Vemi16s threshold, Vemi16s value);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi16s threshold[4], const Vemi16s value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3]);

VEMI_API VemiStatus vemiThreshold_LTVal_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold,
                                                 Vemi16s value);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi16s threshold[3], const Vemi16s value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi16s threshold[4], const Vemi16s value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                  const Vemi16s threshold[3], const Vemi16s value[3]);

VEMI_API VemiStatus vemiThreshold_LTVal_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, Vemi32f threshold, Vemi32f value);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f threshold[4], const Vemi32f value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3]);

VEMI_API VemiStatus vemiThreshold_LTVal_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold,
                                                 Vemi32f value);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi32f threshold[3], const Vemi32f value[3]);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi32f threshold[4], const Vemi32f value[4]);
VEMI_API VemiStatus vemiThreshold_LTVal_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                  const Vemi32f threshold[3], const Vemi32f value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, Vemi8u threshold, Vemi8u value);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi8u threshold[4], const Vemi8u value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi8u threshold[3], const Vemi8u value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u threshold,
                                                Vemi8u value);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi8u threshold[3], const Vemi8u value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi8u threshold[4], const Vemi8u value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi8u threshold[3], const Vemi8u value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, Vemi16s threshold, Vemi16s value);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi16s threshold[4], const Vemi16s value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, const Vemi16s threshold[3], const Vemi16s value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s threshold,
                                                 Vemi16s value);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi16s threshold[3], const Vemi16s value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi16s threshold[4], const Vemi16s value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                  const Vemi16s threshold[3], const Vemi16s value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, Vemi32f threshold, Vemi32f value);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                VemiSize roiSize, const Vemi32f threshold[4], const Vemi32f value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                 VemiSize roiSize, const Vemi32f threshold[3], const Vemi32f value[3]);

VEMI_API VemiStatus vemiThreshold_GTVal_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f threshold,
                                                 Vemi32f value);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi32f threshold[3], const Vemi32f value[3]);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                 const Vemi32f threshold[4], const Vemi32f value[4]);
VEMI_API VemiStatus vemiThreshold_GTVal_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                  const Vemi32f threshold[3], const Vemi32f value[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    VemiSize roiSize, Vemi8u thresholdLT, Vemi8u valueLT,
                                                    Vemi8u thresholdGT, Vemi8u valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    VemiSize roiSize, const Vemi8u thresholdLT[3],
                                                    const Vemi8u valueLT[3], const Vemi8u thresholdGT[3],
                                                    const Vemi8u valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                     VemiSize roiSize, const Vemi8u thresholdLT[3],
                                                     const Vemi8u valueLT[3], const Vemi8u thresholdGT[3],
                                                     const Vemi8u valueGT[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                     Vemi8u thresholdLT, Vemi8u valueLT, Vemi8u thresholdGT,
                                                     Vemi8u valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                     const Vemi8u thresholdLT[3], const Vemi8u valueLT[3],
                                                     const Vemi8u thresholdGT[3], const Vemi8u valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                      const Vemi8u thresholdLT[3], const Vemi8u valueLT[3],
                                                      const Vemi8u thresholdGT[3], const Vemi8u valueGT[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                     VemiSize roiSize, Vemi16s thresholdLT, Vemi16s valueLT,
                                                     Vemi16s thresholdGT, Vemi16s valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                     VemiSize roiSize, const Vemi16s thresholdLT[3],
                                                     const Vemi16s valueLT[3], const Vemi16s thresholdGT[3],
                                                     const Vemi16s valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                      VemiSize roiSize, const Vemi16s thresholdLT[3],
                                                      const Vemi16s valueLT[3], const Vemi16s thresholdGT[3],
                                                      const Vemi16s valueGT[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                      Vemi16s thresholdLT, Vemi16s valueLT, Vemi16s thresholdGT,
                                                      Vemi16s valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                      const Vemi16s thresholdLT[3], const Vemi16s valueLT[3],
                                                      const Vemi16s thresholdGT[3], const Vemi16s valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                       const Vemi16s thresholdLT[3], const Vemi16s valueLT[3],
                                                       const Vemi16s thresholdGT[3], const Vemi16s valueGT[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                     VemiSize roiSize, Vemi32f thresholdLT, Vemi32f valueLT,
                                                     Vemi32f thresholdGT, Vemi32f valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                     VemiSize roiSize, const Vemi32f thresholdLT[3],
                                                     const Vemi32f valueLT[3], const Vemi32f thresholdGT[3],
                                                     const Vemi32f valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                      VemiSize roiSize, const Vemi32f thresholdLT[3],
                                                      const Vemi32f valueLT[3], const Vemi32f thresholdGT[3],
                                                      const Vemi32f valueGT[3]);

VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                      Vemi32f thresholdLT, Vemi32f valueLT, Vemi32f thresholdGT,
                                                      Vemi32f valueGT);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                      const Vemi32f thresholdLT[3], const Vemi32f valueLT[3],
                                                      const Vemi32f thresholdGT[3], const Vemi32f valueGT[3]);
VEMI_API VemiStatus vemiThreshold_LTValGTVal_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                       const Vemi32f thresholdLT[3], const Vemi32f valueLT[3],
                                                       const Vemi32f thresholdGT[3], const Vemi32f valueGT[3]);

/** @} */

/**
 * @defgroup vemi_compare vemiCompare: where two images stand in a relation
 *
 * One byte for each pixel: 255 where the condition holds for all of its channels, 0 elsewhere. Of a pixel's elements a
 * in pSrc1 and b in pSrc2, the condition is
 *
 *     vemiCmpLess       a < b
 *     vemiCmpLessEq     a <= b
 *     vemiCmpEq         a == b
 *     vemiCmpGreaterEq  a >= b
 *     vemiCmpGreater    a > b
 *
 * for the first three channels in C3 and AC4, for all four in C4. No condition holds where a or b is a NaN; zeros of
 * both signs are equal. Mind that with several channels the opposite operator does not give the opposite map: of a
 * pixel that is brighter in red and darker in blue, neither vemiCmpLess nor vemiCmpGreaterEq gives 255.
 *
 * @param pSrc1,src1Step  first pixel of the first source, and the bytes between its rows
 * @param pSrc2,src2Step  the same of the second source
 * @param pDst,dstStep    first pixel of the map, which has one channel of bytes, and the bytes between its rows
 * @param roiSize         size of the region in pixels
 * @param cmpOp           the operator. Any number that is none of the five is accepted: the call writes nothing and
 *                        returns vemiOk
 *
 * **Overlap.** pDst overlaps no source.
 *
 * **Statuses**, in the order of the tests: null, step, size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiCompare_8u_C3R(a, aStep, b, bStep, map, mapStep, size, vemiCmpEq);   // (1,2,3) and (1,2,4) -> 0
 * @{
 */

VEMI_API VemiStatus vemiCompare_8u_C1R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_8u_C3R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_8u_C4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                       Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_8u_AC4R(const Vemi8u* pSrc1, int src1Step, const Vemi8u* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiCompare_16s_C1R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_16s_C3R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_16s_C4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_16s_AC4R(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                         Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiCompare_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompare_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                         Vemi8u* pDst, int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

/** @} */

/**
 * @defgroup vemi_comparec vemiCompareC: where an image and a constant stand in a relation
 *
 * vemiCompare with a constant in the place of the second source: a pixel's elements a are compared with the constants
 * of their channels, as in a < value for vemiCmpLess. C1 forms take the constant by value; the others take an array
 * with one constant for each channel: three elements in C3 and AC4, four in C4.
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param value         the constant, or the array of constants
 * @param pDst,dstStep  first pixel of the map, which has one channel of bytes, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param cmpOp         as in vemiCompare: one of the five operators, or nothing is written
 *
 * **Overlap.** pDst overlaps neither the source nor the array of constants.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), step, size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi8u grey[3] = {128, 128, 128};
 *     vemiCompareC_8u_C3R(photo, photoStep, grey, map, mapStep, size, vemiCmpGreaterEq);   // no channel below 128
 * @{
 */

VEMI_API VemiStatus vemiCompareC_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u value, Vemi8u* pDst, int dstStep,
                                        VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_8u_C3R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_8u_C4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[4], Vemi8u* pDst,
                                        int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_8u_AC4R(const Vemi8u* pSrc, int srcStep, const Vemi8u value[3], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiCompareC_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s value, Vemi8u* pDst, int dstStep,
                                         VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_16s_C3R(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_16s_C4R(const Vemi16s* pSrc, int srcStep, const Vemi16s value[4], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_16s_AC4R(const Vemi16s* pSrc, int srcStep, const Vemi16s value[3], Vemi8u* pDst,
                                          int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

VEMI_API VemiStatus vemiCompareC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi8u* pDst, int dstStep,
                                         VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[4], Vemi8u* pDst,
                                         int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);
VEMI_API VemiStatus vemiCompareC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi8u* pDst,
                                          int dstStep, VemiSize roiSize, vemiCmpOp cmpOp);

/** @} */

/**
 * @defgroup vemi_compareequaleps vemiCompareEqualEps, vemiCompareEqualEpsC: where values are equal within a tolerance
 *
 * One byte for each pixel: 255 where |a - b| <= eps for all channels that are compared, 0 elsewhere; a is the element
 * of the first source, b that of the second source or the constant of the channel. The difference is rounded to single
 * precision before it is compared, so values that differ by hardly more than eps may count as equal. A difference that
 * is a NaN (an operand is one, or both are infinities of one sign) is within no tolerance, not even an infinite one.
 *
 * Layouts are those of vemiCompare and vemiCompareC: three channels take part in C3 and AC4, four in C4, and constants
 * come by value in C1 and as an array of three, three and four elements in C3, AC4 and C4.
 *
 * @param pSrc1,src1Step  first pixel of the first source, and the bytes between its rows
 * @param pSrc2,src2Step  the same of the second source
 * @param pSrc,srcStep    the same of the one source
 * @param value           the constant, or the array of constants
 * @param pDst,dstStep    first pixel of the map, which has one channel of bytes, and the bytes between its rows
 * @param roiSize         size of the region in pixels
 * @param eps             the tolerance, at least 0; a zero of either sign asks for equal values
 *
 * **Overlap.** pDst overlaps neither a source nor the array of constants.
 *
 * **Statuses**, in the order of the tests: null (the array of constants among the pointers), step, size; then
 * vemiErrEpsilon if eps is negative or a NaN.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiCompareEqualEps_32f_C1R(a, aStep, b, bStep, map, mapStep, size, 0.5f);   // 1 and 1.5 -> 255
 * @{
 */

VEMI_API VemiStatus vemiCompareEqualEps_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                                Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEps_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                                Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEps_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                                Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEps_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                                 Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f eps);

VEMI_API VemiStatus vemiCompareEqualEpsC_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f value, Vemi8u* pDst,
                                                 int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEpsC_32f_C3R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3], Vemi8u* pDst,
                                                 int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEpsC_32f_C4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[4], Vemi8u* pDst,
                                                 int dstStep, VemiSize roiSize, Vemi32f eps);
VEMI_API VemiStatus vemiCompareEqualEpsC_32f_AC4R(const Vemi32f* pSrc, int srcStep, const Vemi32f value[3],
                                                  Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f eps);

/** @} */

/* ---- Lookup tables and transfer curves --------------------------------------------------------------------------- */

/**
 * @defgroup vemi_lut vemiLUT: a step for each interval of values
 *
 *     pDst = the value of the interval that holds pSrc,   or pSrc where no interval holds it
 *
 * n levels L[0] < L[1] < ... < L[n-1] bound n - 1 intervals; interval k holds the numbers v with L[k] <= v < L[k+1]. A
 * pixel in interval k becomes V[k]. A pixel below L[0], and one at or above L[n-1], stays as it is; so the last value
 * V[n-1] is read by no one here (but the array has it, for vemiLUT_Linear and vemiLUT_Cubic).
 *
 *     8u    levels 10, 20     values 7, x          9 -> 9     10 -> 7     19 -> 7     20 -> 20
 *     8u    levels 0, 256     values 7, x          every pixel -> 7
 *     8u    levels 0, 64, 128, 192, 256    values 32, 96, 160, 224, x    a picture in four shades
 *     8u    levels 0, 256     values 300, x        every pixel -> 255
 *
 * **8u, 16s.** Levels and values are 32-bit integers. Levels may lie beyond the element's range, and any of the values
 * too: V[k] is limited to 0..255 or -32768..32767.
 *
 * **32f.** Levels and values are floats. V[k] is stored as it is. A NaN lies in no interval, and so stays, bit for bit;
 * an interval with a NaN for a bound is empty.
 *
 * **Levels that do not ascend.** Where L[k+1] is not above L[k], interval k is empty, and others may overlap. In 32f
 * the first interval that holds a pixel counts. In 8u and 16s the last one counts, and a pixel at or above the last
 * level L[n-1] stays even if an interval holds it.
 *
 *     levels 50, 100, 20, 80, 60    values 1, 2, 3, 4, 5    32f   30 -> 3    60 -> 1     90 -> 1
 *                                                           8u    30 -> 3    60 -> 60    90 -> 90
 *
 * **Channels.** C1 forms take one array of values, one of levels, and their length. The others take an array of
 * pointers to values, one of pointers to levels, and one of lengths, for each channel: three in C3 and AC4, four in C4.
 * Several pointers may be the same. AC4 forms leave the fourth channel of the destination as it is.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param roiSize             size of the region in pixels
 * @param pValues             V above: nLevels of them; in all forms but C1, an array of pointers to such arrays
 * @param pLevels             L above: nLevels of them; in all forms but C1, an array of pointers to such arrays
 * @param nLevels             the number of levels, from 2 on; in all forms but C1, an array of such numbers
 *
 * **Overlap.** pDst does not overlap pSrc, nor the arrays.
 *
 * **Statuses**, in the order of the tests:
 *
 * - C1: null (pSrc, pDst, pValues or pLevels), size, step, then vemiErrLutLevels where nLevels is below 2.
 * - C3, C4, AC4: null (pSrc, pDst, or one of the three arrays); then for each channel in turn its pointers, null again,
 *   and its number of levels, vemiErrLutLevels; then size and step.
 * - Last, in 16s forms, vemiErrMemAlloc: regions from 6401 pixels on (C1) or 4097 pixels on (the others) look the
 *   results up in tables of all 65536 values. Nothing is written where there is no memory for them.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi32s levels[3] = {0, 128, 256}, values[3] = {0, 255, 0};
 *     vemiLUT_8u_C1R(image, step, bits, bitStep, size, values, levels, 3);    // black and white
 * @{
 */

VEMI_API VemiStatus vemiLUT_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                   const Vemi32s* pValues, const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiLUT_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                   const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                   const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                   const Vemi32s* const pValues[4], const Vemi32s* const pLevels[4],
                                   const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                    const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32s* pValues, const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiLUT_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                    const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32s* const pValues[4], const Vemi32s* const pLevels[4],
                                    const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                     const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32f* pValues, const Vemi32f* pLevels, int nLevels);
VEMI_API VemiStatus vemiLUT_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32f* const pValues[3], const Vemi32f* const pLevels[3],
                                    const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi32f* const pValues[4], const Vemi32f* const pLevels[4],
                                    const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi32f* const pValues[3], const Vemi32f* const pLevels[3],
                                     const int nLevels[3]);

/** @} */

/**
 * @defgroup vemi_lut_linear vemiLUT_Linear: straight lines between levels
 *
 *     pDst = V[k] + (V[k+1] - V[k]) / (L[k+1] - L[k]) * (v - L[k]),   for v = pSrc in interval k
 *
 * The curve through the points (L[k], V[k]), straight from point to point. Levels, values, their arrays, the pixels
 * outside of all intervals, which stay as they are, and levels that do not ascend: all as in vemiLUT.
 *
 *     8u    levels 0, 255          values 0, 255         the identity: 255 stays, as it is at the last level
 *     8u    levels 0, 256          values 255, -1        the negative
 *     8u    levels 0, 64, 192, 256    values 0, 32, 224, 256    more contrast in the middle, less at the ends
 *
 * **8u, 16s.** Computed in double precision; the result is V[k] + 0.5 + slope * (v - L[k]), cut off toward zero, then
 * limited to 0..255 or -32768..32767. So a positive result is rounded to nearest, ties up; below zero it is not:
 *
 *     16s   -0.7 -> 0      -1.2 -> 0      -1.5 -> -1      -1.6 -> -1      -2.5 -> -2
 *
 * In an interval that holds a single integer, L[k+1] = L[k] + 1, the pixel becomes V[k], limited; this too is a matter
 * of the levels as they stand, even if they lie beyond the element's range.
 *
 * **32f.** The differences of levels and of values and v - L[k] are taken in single precision, the rest in double:
 * (v - L[k]) * slope + V[k], then rounded to single.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param roiSize             size of the region in pixels
 * @param pValues,pLevels     V and L above, as in vemiLUT
 * @param nLevels             the number of levels, or an array of them, as in vemiLUT
 *
 * **Overlap.** pDst does not overlap pSrc, nor the arrays.
 *
 * **Statuses**, in the order of the tests, which is that of vemiLUT:
 *
 * - C1: null, size, step, then vemiErrLutLevels where nLevels is below 2.
 * - C3, C4, AC4: null; then for each channel in turn its pointers, null again, and vemiErrLutLevels; then size, step.
 * - Last, in 16s forms (tables of all values) and 32f forms (a slope for each interval), vemiErrMemAlloc, whatever the
 *   size of the region. Nothing is written then.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi32s levels[2] = {0, 256}, values[2] = {255, -1};
 *     vemiLUT_Linear_8u_C1R(image, step, negative, negativeStep, size, values, levels, 2);
 * @{
 */

VEMI_API VemiStatus vemiLUT_Linear_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32s* pValues, const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiLUT_Linear_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                          const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Linear_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32s* const pValues[4], const Vemi32s* const pLevels[4],
                                          const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Linear_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                           const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_Linear_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32s* pValues, const Vemi32s* pLevels,
                                           int nLevels);
VEMI_API VemiStatus vemiLUT_Linear_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32s* const pValues[3],
                                           const Vemi32s* const pLevels[3], const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Linear_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32s* const pValues[4],
                                           const Vemi32s* const pLevels[4], const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Linear_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32s* const pValues[3],
                                            const Vemi32s* const pLevels[3], const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_Linear_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* pValues, const Vemi32f* pLevels,
                                           int nLevels);
VEMI_API VemiStatus vemiLUT_Linear_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* const pValues[3],
                                           const Vemi32f* const pLevels[3], const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Linear_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* const pValues[4],
                                           const Vemi32f* const pLevels[4], const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Linear_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32f* const pValues[3],
                                            const Vemi32f* const pLevels[3], const int nLevels[3]);

/** @} */

/**
 * @defgroup vemi_lut_cubic vemiLUT_Cubic: cubic curves between levels
 *
 *     pDst = y + a t + b t^2 + c t^3,   for v = pSrc in interval k
 *
 * The cubic of interval k goes through four of the points (L[i], V[i]): the two that bound the interval and their
 * neighbours on either side. In the first interval they are the first four points, in the last interval the last four.
 * With (x, y) the second of the four, t = v - x, and a, b, c are the coefficients of the one cubic through all four.
 * The curve meets every point; at inner levels it may have a bend.
 *
 * Levels, values, their arrays, the pixels outside of all intervals, which stay as they are, and levels that do not
 * ascend: all as in vemiLUT. With fewer than four levels there is no cubic, and the call is that of vemiLUT_Linear; in
 * C3, C4 and AC4 forms the whole call is, as soon as one channel has fewer than four levels.
 *
 *     8u    levels 0, 64, 192, 256    values 0, 32, 224, 256    a smooth curve with more contrast in the middle
 *     8u    levels 0, 128, 256        values 0, 200, 256        as vemiLUT_Linear
 *
 * **8u, 16s.** Computed in double precision; y + 0.5 + a t + b t^2 + c t^3 is cut off toward zero, then limited to
 * 0..255 or -32768..32767, with the consequences for negative results that vemiLUT_Linear has. In an interval that
 * holds a single integer, L[k+1] = L[k] + 1, the pixel becomes V[k], limited.
 *
 * **32f.** Computed in double precision, from exact differences of levels and values, and rounded to single.
 *
 * No cubic goes through points of which two have the same level. Where an interval is not empty and two of its four
 * points coincide so, its coefficients are infinite or NaN: such a result is a NaN or an infinity in 32f; in 8u and 16s
 * an infinity is limited like any other number and a NaN gives the lowest value of the type.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows
 * @param roiSize             size of the region in pixels
 * @param pValues,pLevels     V and L above, as in vemiLUT
 * @param nLevels             the number of levels, or an array of them, as in vemiLUT
 *
 * **Overlap.** pDst does not overlap pSrc, nor the arrays.
 *
 * **Statuses**, in the order of the tests, which is that of vemiLUT:
 *
 * - C1: null, size, step, then vemiErrLutLevels where nLevels is below 2.
 * - C3, C4, AC4: null; then for each channel in turn its pointers, null again, and vemiErrLutLevels; then size, step.
 * - Last, in 16s forms (tables of all values) and 32f forms (three coefficients for each interval), vemiErrMemAlloc,
 *   whatever the size of the region. Nothing is written then.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi32s levels[4] = {0, 64, 192, 256}, values[4] = {0, 32, 224, 256};
 *     vemiLUT_Cubic_8u_C1R(image, step, vivid, vividStep, size, values, levels, 4);
 * @{
 */

VEMI_API VemiStatus vemiLUT_Cubic_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* pValues, const Vemi32s* pLevels, int nLevels);
VEMI_API VemiStatus vemiLUT_Cubic_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                         const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Cubic_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                         const Vemi32s* const pValues[4], const Vemi32s* const pLevels[4],
                                         const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Cubic_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          const Vemi32s* const pValues[3], const Vemi32s* const pLevels[3],
                                          const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_Cubic_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* pValues, const Vemi32s* pLevels,
                                          int nLevels);
VEMI_API VemiStatus vemiLUT_Cubic_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* const pValues[3],
                                          const Vemi32s* const pLevels[3], const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Cubic_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32s* const pValues[4],
                                          const Vemi32s* const pLevels[4], const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Cubic_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32s* const pValues[3],
                                           const Vemi32s* const pLevels[3], const int nLevels[3]);

VEMI_API VemiStatus vemiLUT_Cubic_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* pValues, const Vemi32f* pLevels,
                                          int nLevels);
VEMI_API VemiStatus vemiLUT_Cubic_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* const pValues[3],
                                          const Vemi32f* const pLevels[3], const int nLevels[3]);
VEMI_API VemiStatus vemiLUT_Cubic_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, const Vemi32f* const pValues[4],
                                          const Vemi32f* const pLevels[4], const int nLevels[4]);
VEMI_API VemiStatus vemiLUT_Cubic_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f* const pValues[3],
                                           const Vemi32f* const pLevels[3], const int nLevels[3]);

/** @} */

/**
 * @defgroup vemi_lut_palette vemiLUTPalette: entries of a palette
 *
 *     pDst = pTable[pSrc & (2^nBitSize - 1)]
 *
 * The lower nBitSize bits of a pixel are the index of its palette entry; the bits above them are ignored. The palette
 * has 2^nBitSize entries of the destination's pixels:
 *
 *     8u32u, 16u32u    one 32-bit word, such as four bytes of colour and alpha
 *     8u24u, 16u24u    three bytes; entry i is pTable[3 i] to pTable[3 i + 2]
 *     16u8u            one byte
 *
 *     const Vemi8u blackRedGoldWhite[] = {0,0,0, 221,0,0, 255,204,0, 255,255,255};
 *     vemiLUTPalette_8u24u_C1R(index, indexStep, rgb, rgbStep, size, blackRedGoldWhite, 2);
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        first pixel of the destination, and the bytes between its rows; in 24u forms a pixel is
 *                            three bytes
 * @param roiSize             size of the region in pixels
 * @param pTable              the palette
 * @param nBitSize            bits of a pixel that count: 1 to 8 for an 8u source, 1 to 16 for a 16u source
 *
 * **Overlap.** pDst does not overlap pSrc, nor the palette.
 *
 * **Statuses**, in the order of the tests: null (the palette among the pointers), step, size, then
 * vemiErrLutPaletteBits where nBitSize is out of its range.
 *
 * **Threads.** All forms run in the calling thread.
 * @{
 */

VEMI_API VemiStatus vemiLUTPalette_8u24u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi8u* pTable, int nBitSize);
VEMI_API VemiStatus vemiLUTPalette_8u32u_C1R(const Vemi8u* pSrc, int srcStep, Vemi32u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32u* pTable, int nBitSize);
VEMI_API VemiStatus vemiLUTPalette_16u8u_C1R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi8u* pTable, int nBitSize);
VEMI_API VemiStatus vemiLUTPalette_16u24u_C1R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi8u* pTable, int nBitSize);
VEMI_API VemiStatus vemiLUTPalette_16u32u_C1R(const Vemi16u* pSrc, int srcStep, Vemi32u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32u* pTable, int nBitSize);

/** @} */

/**
 * @defgroup vemi_gamma_fwd vemiGammaFwd: gamma correction
 *
 * The transfer curve of a video camera (ITU-R BT.709), from light to signal:
 *
 *     f(t) = 4.5 t                      for t below 0.018
 *     f(t) = 1.099 t^0.45 - 0.099       from there on
 *
 * Every channel goes through the curve by itself. AC4 forms leave the fourth channel of the destination as it is.
 *
 * **8u.** round(255 f(v / 255)), ties to even: 0 stays, 1 gives 4, 2 gives 9, 18 gives 60, 255 stays.
 *
 * **16u.** 65535 f(v / 65535), computed in double precision, with 4.5 v below the breakpoint; 0.5 is added, the sum
 * is rounded to single precision and cut off; a sum that is an odd integer goes down by 1. So ties go to even, and so
 * do results that single precision cannot tell from a tie: those within 2^-9 of one, at most.
 *
 * **32f.** vMin and vMax are the pixel values of black and white. With R = vMax - vMin, d = v - vMin and t = (1 / R) d,
 * in double precision throughout:
 *
 *     4.5 d + vMin                         for t below 0.018
 *     (1.099 t^0.45 - 0.099) R + vMin      from there on
 *
 * rounded to single precision. There is no limit: pixels outside of vMin to vMax follow the same formulas, negative t
 * the first. A NaN stays (and becomes quiet), infinities stay. The power has less than one unit in the last place of
 * double precision of error, and the same bits on every processor.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows; in P3R, an array of the first
 *                            pixels of three planes, and the one step of all planes
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  the same of the image, or the planes, that is source and destination
 * @param roiSize             size of the region in pixels
 * @param vMin,vMax           32f: the values of black and white; vMax above vMin
 *
 * **Overlap.** pDst does not overlap pSrc; to work in place, take an IR or IP3R form. Planes do not overlap each other.
 *
 * **Statuses**, in the order of the tests:
 *
 * - 32f, ahead of all else: vemiErrGammaRange where vMax - vMin is zero, negative or a NaN;
 * - null (with all plane pointers), size, step;
 * - 16u: vemiErrMemAlloc. Regions of more than 65536 elements (3 width height) look the results up in a table; nothing
 *   is written where there is no memory for it.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiGammaFwd_8u_C3IR(image, step, size);    // light of 128 is a signal of 180
 * @{
 */

VEMI_API VemiStatus vemiGammaFwd_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_8u_IP3R(Vemi8u* const pSrcDst[3], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiGammaFwd_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_16u_P3R(const Vemi16u* const pSrc[3], int srcStep, Vemi16u* const pDst[3], int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_16u_C3IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_16u_AC4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaFwd_16u_IP3R(Vemi16u* const pSrcDst[3], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiGammaFwd_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                         Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaFwd_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaFwd_32f_P3R(const Vemi32f* const pSrc[3], int srcStep, Vemi32f* const pDst[3], int dstStep,
                                         VemiSize roiSize, Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaFwd_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                          Vemi32f vMax);
VEMI_API VemiStatus vemiGammaFwd_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                           Vemi32f vMax);
VEMI_API VemiStatus vemiGammaFwd_32f_IP3R(Vemi32f* const pSrcDst[3], int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                          Vemi32f vMax);

/** @} */

/**
 * @defgroup vemi_gamma_inv vemiGammaInv: gamma correction undone
 *
 * The transfer curve from signal to light:
 *
 *     g(t) = 0.2222222222222222 t                                      for t below 0.0812
 *     g(t) = ((t + 0.099) 0.9099181073703366)^2.2222222222222223       from there on
 *
 * that is, t / 4.5 and ((t + 0.099) / 1.099)^(1 / 0.45). Everything else, the rounding of 8u and 16u and the range of
 * 32f among it, is as in vemiGammaFwd with g in the place of f:
 *
 *     8u     round(255 g(v / 255)): 0, 0, 0, 1, 1, 1, 1, 2, ... 255; several values fall together, so that no function
 *            leads back to all of them
 *     16u    65535 g(v / 65535), or 0.2222222222222222 v below the breakpoint
 *     32f    0.2222222222222222 d + vMin, or g(t) R + vMin
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows; in P3R, an array of the first
 *                            pixels of three planes, and the one step of all planes
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  the same of the image, or the planes, that is source and destination
 * @param roiSize             size of the region in pixels
 * @param vMin,vMax           32f: the values of black and white; vMax above vMin
 *
 * **Overlap** and **threads** as in vemiGammaFwd.
 *
 * **Statuses**, in the order of the tests, as in vemiGammaFwd too: vemiErrGammaRange (32f) where vMax - vMin is zero,
 * negative or a NaN; null (with all plane pointers), size, step; vemiErrMemAlloc (16u, for a table).
 *
 *     vemiGammaInv_8u_C3IR(image, step, size);    // a signal of 128 is light of 67
 * @{
 */

VEMI_API VemiStatus vemiGammaInv_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_8u_IP3R(Vemi8u* const pSrcDst[3], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiGammaInv_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_16u_P3R(const Vemi16u* const pSrc[3], int srcStep, Vemi16u* const pDst[3], int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_16u_C3IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_16u_AC4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiGammaInv_16u_IP3R(Vemi16u* const pSrcDst[3], int srcDstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiGammaInv_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                         Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaInv_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize, Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaInv_32f_P3R(const Vemi32f* const pSrc[3], int srcStep, Vemi32f* const pDst[3], int dstStep,
                                         VemiSize roiSize, Vemi32f vMin, Vemi32f vMax);
VEMI_API VemiStatus vemiGammaInv_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                          Vemi32f vMax);
VEMI_API VemiStatus vemiGammaInv_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                           Vemi32f vMax);
VEMI_API VemiStatus vemiGammaInv_32f_IP3R(Vemi32f* const pSrcDst[3], int srcDstStep, VemiSize roiSize, Vemi32f vMin,
                                          Vemi32f vMax);

/** @} */

/**
 * @defgroup vemi_reduce_bits vemiReduceBits: a few levels, with or without a dither
 *
 *     pDst = the level that stands for pSrc, one of `levels` values that are spread evenly over the range of the type
 *
 * Few values make bands where a picture changes slowly. A dither makes them alternate, so that the mean of a few pixels
 * is that of the source: by a pattern, by noise, or by handing what a pixel lost to its neighbours.
 *
 * The type in the name is the source's, then the destination's, or one for both. Each channel is an image of its own:
 * channel c of C3, C4 and AC4 becomes what the C1 form makes of it, so that grey stays grey. AC4 forms treat the first
 * three and leave the destination's fourth as it is.
 *
 * All is computed in integers; floor is towards minus infinity, shifts (>>) keep the sign, N = levels - 1.
 *
 * **Levels.** Level k = 0..N is low + floor((2 k F + N) / (2 N)), with F = 255 and low = 0 in 8u, F = 65535 and low = 0
 * in 16u, low = -32768 in 16s. Four levels of 8u are 0, 85, 170, 255; five of them 0, 64, 128, 191, 255.
 *
 * **Sources** come on a scale of 0 to 65535: s = 257 v from 8u, v from 16u, v + 32768 from 16s. From 32f, the range of
 * which is 0..1, s is the single-precision product 65535 v, rounded to nearest, ties to even; v is limited to 0..1
 * first, and a NaN is white like 1. Then t = s N, on which level k lies at 65535 k, and no pixel in the middle of two.
 *
 * **Noise.** n(x, y) = (A (r >> 16)) >> 16 with A = floor(65534 noise / 100), so that |n| is at most 32767, which is
 * half a step between levels: noise is a percentage of the whole step from end to end. r, a signed integer of 32 bits,
 * is the result of step x + 1 of the generator behind the noise functions (vemiAddRandUniform_Direct), begun anew in
 * each row with the seed h = y + 1; h ^= h >> 16; h *= 0x85ebca6b; h ^= h >> 13; h *= 0xc2b2ae35; h ^= h >> 16, in 32
 * bits without a sign. x and y count from the region's first pixel. The channels of a pixel have the same noise, and a
 * noise of 0 is none.
 *
 * **Dithers**, by ditherType:
 *
 *     vemiDitherNone               k = floor((t + n + 32767) / 65535): the nearest level. With a noise of 100 the mean
 *                                  is that of the source, at the price of much grain.
 *     vemiDitherBayer              the same with w in the place of n: w = d + n, where d = ((63 - 2 B) 65535) >> 7 and
 *                                  B is the matrix of 8 x 8 at [y mod 8][x mod 8] that grows from (0) by
 *                                  B -> (4 B, 4 B + 2; 4 B + 3, 4 B + 1): its first row is 0 32 8 40 2 34 10 42. Where
 *                                  w is above 32767 it is 65535 less, below -32767 as much more.
 *     vemiDitherFloydSteinberg     error diffusion, in rows from the top, each from the left:
 *     vemiDitherJarvisJudiceNinke      u = t + floor((S + W / 2) / W)
 *     vemiDitherStucki                 k = floor((u + n + 32767) / 65535), limited to 0..N
 *                                      e = u - 65535 k
 *                                  S is the sum of the errors e around, each times its weight, and W the sum of all
 *                                  weights; beyond the region's edges errors are 0. Noise moves the decision, and the
 *                                  error keeps account of it: tones stay, but worms and other patterns break up.
 *
 *                                               to the left    row above, columns    two rows above    W
 *                                  columns        -2  -1         -2 -1  0  1  2       -2 -1  0  1  2
 *     Floyd, Steinberg 1976                        .   7          .  1  5  3  .        .  .  .  .  .   16
 *     Jarvis, Judice, Ninke 1976                   5   7          3  5  7  5  3        1  3  5  3  1   48
 *     Stucki 1981                                  4   8          2  4  8  4  2        1  2  4  2  1   42
 *
 * Black and white stay what they are, with any dither and noise. 256 levels from 8u without noise are a copy, and from
 * 16u to 8u without a dither v / 257, rounded.
 *
 *     8u, 2 levels, Floyd-Steinberg    100 100 100 100 100 100   ->  0 255 0 0 255 0
 *     8u, 2 levels, Bayer              128 128 128 128           ->  255 0 255 0, in the next row 0 255 0 255
 *     32f16s, 4 levels, none           0 0.25 0.5 0.75 1         ->  -32768 -10923 10922 10922 32767
 *
 * @param pSrc,srcStep   first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep   the same of the destination
 * @param roiSize        size of the region in pixels
 * @param noise          0 to 100, in percent of the step between two levels
 * @param ditherType     a vemiDitherType; any other number acts as vemiDitherNone
 * @param levels         2 to 256 values in each channel
 *
 * **Overlap.** pDst may be pSrc, with the same step, in the forms of one type. Otherwise the two do not overlap.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h), vemiErrNoiseRange, vemiErrDitherLevels;
 * vemiErrMemAlloc where the rows of errors of a diffusing dither cannot be had, before anything is written.
 *
 * **Threads.** Without diffusion all forms share the rows among a team. Diffusion runs in the calling thread, several
 * rows at a time. Results do not depend on it.
 *
 *     vemiReduceBits_8u_C3R(photo, photoStep, poster, posterStep, size, 0, vemiDitherFloydSteinberg, 4);
 * @{
 */

/** How vemiReduceBits finds the level of a pixel. Any other number acts as vemiDitherNone. */
typedef int vemiDitherType;
enum {
  vemiDitherNone = 0,              /**< the nearest level */
  vemiDitherFloydSteinberg = 1,    /**< error diffusion to 4 neighbours */
  vemiDitherJarvisJudiceNinke = 2, /**< error diffusion to 12 neighbours */
  vemiDitherStucki = 3,            /**< the same with other weights, those of vemiConvert_8u1u */
  vemiDitherBayer = 4              /**< ordered dither with a matrix of 8 x 8 */
};

VEMI_API VemiStatus vemiReduceBits_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                          int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                           int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u_C4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                            VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                           VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_16u8u_C1R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u8u_C3R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u8u_C4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16u8u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_16s8u_C1R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s8u_C3R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s8u_C4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_16s8u_AC4R(const Vemi16s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_32f8u_C1R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f8u_C3R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f8u_C4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f8u_AC4R(const Vemi32f* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_32f16u_C1R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16u_C3R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16u_C4R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16u_AC4R(const Vemi32f* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                               VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

VEMI_API VemiStatus vemiReduceBits_32f16s_C1R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16s_C3R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16s_C4R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);
VEMI_API VemiStatus vemiReduceBits_32f16s_AC4R(const Vemi32f* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, int noise, vemiDitherType ditherType, int levels);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
