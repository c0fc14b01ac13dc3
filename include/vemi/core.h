/**
 * @file core.h
 * Image memory, the library's version, copying, filling, and copies with a border.
 */
#ifndef VEMI_CORE_H
#define VEMI_CORE_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_core Memory, copies, fills, borders
 *
 * Images come to be, and move as they are.
 * @{
 */

/**
 * @defgroup vemi_memory vemiMalloc, vemiFree: image memory
 *
 * vemiMalloc allocates an image whose rows all begin on 32-byte boundaries, and stores the step that belongs to it.
 * Images need not come from here, but these rows are the fastest to work on. The contents are not cleared.
 *
 * **Interleaved** (C1 to C4, AC4): the step is width x channels x sizeof(element), rounded up to a multiple of 32.
 *
 * **Planar** (P3): three planes of `height` rows each, one behind the other in one block. The step is width x
 * sizeof(element), rounded up to a multiple of 32, and holds for all three. Only the first plane's pointer is returned;
 * plane n begins n x step x height bytes behind it:
 *
 *     Vemi8u* block = vemiMalloc_8u_P3(size, &step);
 *     Vemi8u* planes[3] = {block, block + (size_t)step * size.height, block + (size_t)step * size.height * 2};
 *
 * @param size        width and height of the image in pixels
 * @param pStepBytes  receives the step in bytes
 * @return the first pixel, or null:
 *   - pStepBytes is null: nothing is done, and size is not looked at;
 *   - the width or the height is below 1: the step is set to 0;
 *   - memory is short, or the image is beyond the limits below: the step is stored all the same.
 *
 * **Limits.** Step and block size are computed in 32 bits and are not tested for overflow. A block size of 2^31 to
 * 2^32 - 1 gives a null result; beyond that it wraps around, and the block can be smaller than the image. Keep
 * step x height, and three times that for P3, below 2^31.
 *
 * C++ programs have a second form of each, with `width, height` in the place of `size` (see the end of this header).
 *
 * vemiFree releases a block that any of these returned, given the very pointer that they returned (for P3 hence the
 * first plane). A null pointer is ignored. Any other pointer, also one from malloc, is undefined behaviour.
 * @{
 */

VEMI_API Vemi8u* vemiMalloc_8u_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi8u* vemiMalloc_8u_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi8u* vemiMalloc_8u_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi8u* vemiMalloc_8u_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi8u* vemiMalloc_8u_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi8u* vemiMalloc_8u_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi16u* vemiMalloc_16u_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi16u* vemiMalloc_16u_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi16u* vemiMalloc_16u_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi16u* vemiMalloc_16u_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi16u* vemiMalloc_16u_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi16u* vemiMalloc_16u_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi16s* vemiMalloc_16s_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi16s* vemiMalloc_16s_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi16s* vemiMalloc_16s_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi16s* vemiMalloc_16s_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi16s* vemiMalloc_16s_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi16s* vemiMalloc_16s_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi32s* vemiMalloc_32s_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi32s* vemiMalloc_32s_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi32s* vemiMalloc_32s_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi32s* vemiMalloc_32s_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32s* vemiMalloc_32s_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32s* vemiMalloc_32s_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi32f* vemiMalloc_32f_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi32f* vemiMalloc_32f_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi32f* vemiMalloc_32f_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi32f* vemiMalloc_32f_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32f* vemiMalloc_32f_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32f* vemiMalloc_32f_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi32sc* vemiMalloc_32sc_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi32sc* vemiMalloc_32sc_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi32sc* vemiMalloc_32sc_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi32sc* vemiMalloc_32sc_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32sc* vemiMalloc_32sc_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32sc* vemiMalloc_32sc_P3(VemiSize size, int* pStepBytes);

VEMI_API Vemi32fc* vemiMalloc_32fc_C1(VemiSize size, int* pStepBytes);
VEMI_API Vemi32fc* vemiMalloc_32fc_C2(VemiSize size, int* pStepBytes);
VEMI_API Vemi32fc* vemiMalloc_32fc_C3(VemiSize size, int* pStepBytes);
VEMI_API Vemi32fc* vemiMalloc_32fc_C4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32fc* vemiMalloc_32fc_AC4(VemiSize size, int* pStepBytes);
VEMI_API Vemi32fc* vemiMalloc_32fc_P3(VemiSize size, int* pStepBytes);

VEMI_API void vemiFree(void* ptr);

/** @} */

/**
 * @defgroup vemi_version vemiGetLibVersion: what this library is
 *
 * Returns the address of the library's version record (types.h), which is constant: every call returns the same
 * address, and nobody frees or changes the record. It cannot fail. version.h has the version of the headers as macros.
 *
 *     const VemiLibVersion* v = vemiGetLibVersion();
 *     printf("%s, for %s\n", v->Version, v->targetCpu);
 * @{
 */

VEMI_API const VemiLibVersion* vemiGetLibVersion(void);

/** @} */

/**
 * @defgroup vemi_copy vemiCopy: copies of pixels, channels and planes
 *
 * Values pass through unchanged, bit for bit, NaNs of 32f included. What differs between the forms is which channels
 * they read and which they write; those are told below, form by form.
 *
 * @param pSrc,srcStep    first pixel of the source, and the bytes between its rows; for planes an array of the planes'
 *                        first pixels and one step for all of them
 * @param pDst,dstStep    the same of the destination
 * @param roiSize         size of the region in pixels, the same in all images and planes
 * @param pMask,maskStep  masked forms: first byte of the mask, and the bytes between its rows
 *
 * **Overlap.** Source and destination do not overlap; with overlapping regions the result is undefined.
 *
 * **Statuses**, in the order of the tests: null (the mask and the planes among the pointers), size, step (that of the
 * mask included).
 *
 * **Threads.** All of them run in the calling thread.
 * @{
 */

/**
 * @defgroup vemi_copy_pixels vemiCopy: whole pixels
 *
 * C1, C3 and C4 copy every channel. AC4 copies the first three and keeps the destination's fourth.
 *
 *     vemiCopy_8u_C3R(photo, photoStep, copy, copyStep, size);
 *     vemiCopy_8u_C3R(photo + 100 * photoStep + 50 * 3, photoStep, cut, cutStep, cutSize);   // from column 50, row 100
 * @{
 */

VEMI_API VemiStatus vemiCopy_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_copy_masked vemiCopy: pixels that a mask selects
 *
 * Like the forms above at the pixels whose mask byte is not zero (1 selects as well as 255); all other pixels of the
 * destination keep their values. The mask is a Vemi8u image of one channel and of the region's size.
 *
 *     vemiCopy_32f_C3MR(src, srcStep, dst, dstStep, size, mask, maskStep);
 * @{
 */

VEMI_API VemiStatus vemiCopy_8u_C1MR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_8u_C3MR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_8u_C4MR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_8u_AC4MR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);

VEMI_API VemiStatus vemiCopy_16s_C1MR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_16s_C3MR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_16s_C4MR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_16s_AC4MR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, int maskStep);

VEMI_API VemiStatus vemiCopy_32f_C1MR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_32f_C3MR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_32f_C4MR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiCopy_32f_AC4MR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                       const Vemi8u* pMask, int maskStep);

/** @} */

/**
 * @defgroup vemi_copy_channel vemiCopy: one channel
 *
 * A pointer into an interleaved image addresses the channel in question in the first pixel; from there, every third
 * (C3) or fourth (C4) element takes part, and nothing before the first or behind the last of them in a row is accessed.
 *
 *     C3C  C4C      a channel of the source into a channel of the destination, which may be another one
 *     C3C1 C4C1     a channel of the source into an image of one channel
 *     C1C3 C1C4     an image of one channel into a channel of the destination
 *
 * The destination's other channels are not written.
 *
 *     vemiCopy_8u_C3C1R(rgb + 1, rgbStep, green, greenStep, size);           // take out channel 1
 *     vemiCopy_8u_C3CR(rgb + 2, rgbStep, other + 0, otherStep, size);        // channel 2 becomes channel 0
 * @{
 */

VEMI_API VemiStatus vemiCopy_8u_C3CR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C4CR(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C3C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C4C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C1C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C1C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_16s_C3CR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C4CR(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C3C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C4C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C1C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C1C4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_32f_C3CR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C4CR(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C3C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C4C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C1C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C1C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_copy_alpha vemiCopy: between three channels and four
 *
 *     AC4C3    drops the source's fourth channel
 *     C3AC4    writes the first three channels of the destination and keeps its fourth
 *
 *     vemiCopy_8u_AC4C3R(rgba, rgbaStep, rgb, rgbStep, size);    // alpha is left out
 * @{
 */

VEMI_API VemiStatus vemiCopy_8u_AC4C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C3AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_16s_AC4C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C3AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_32f_AC4C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C3AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_copy_planes vemiCopy: between interleaved channels and planes
 *
 *     C3P3 C4P4    plane n receives channel n
 *     P3C3 P4C4    channel n receives plane n
 *
 * One step holds for all planes; they need not lie in one block. Planes that are written do not overlap each other.
 *
 *     Vemi8u* planes[3] = {r, g, b};
 *     vemiCopy_8u_C3P3R(rgb, rgbStep, planes, planeStep, size);
 * @{
 */

VEMI_API VemiStatus vemiCopy_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_C4P4R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[4], int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_P3C3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                      VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_8u_P4C4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* pDst, int dstStep,
                                      VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_16s_C3P3R(const Vemi16s* pSrc, int srcStep, Vemi16s* const pDst[3], int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_C4P4R(const Vemi16s* pSrc, int srcStep, Vemi16s* const pDst[4], int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_P3C3R(const Vemi16s* const pSrc[3], int srcStep, Vemi16s* pDst, int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_16s_P4C4R(const Vemi16s* const pSrc[4], int srcStep, Vemi16s* pDst, int dstStep,
                                       VemiSize roiSize);

VEMI_API VemiStatus vemiCopy_32f_C3P3R(const Vemi32f* pSrc, int srcStep, Vemi32f* const pDst[3], int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_C4P4R(const Vemi32f* pSrc, int srcStep, Vemi32f* const pDst[4], int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_P3C3R(const Vemi32f* const pSrc[3], int srcStep, Vemi32f* pDst, int dstStep,
                                       VemiSize roiSize);
VEMI_API VemiStatus vemiCopy_32f_P4C4R(const Vemi32f* const pSrc[4], int srcStep, Vemi32f* pDst, int dstStep,
                                       VemiSize roiSize);

/** @} */

/** @} */

/**
 * @defgroup vemi_set vemiSet: fill with a constant
 *
 * @param value           C1, C3C and C4C forms: the value; the other forms: an array with one value per channel, three
 *                        of them in C3 and AC4 and four in C4. A fourth element in AC4 is never read
 * @param pDst,dstStep    first pixel of the destination, and the bytes between its rows
 * @param roiSize         size of the region in pixels
 * @param pMask,maskStep  masked forms: first byte of the mask, and the bytes between its rows
 *
 * **Overlap.** The array of values and the mask do not lie in the destination.
 *
 * **Statuses**, in the order of the tests: null (an array of values and the mask among the pointers), size, step (that
 * of the mask included).
 *
 * **Threads.** All of them run in the calling thread.
 * @{
 */

/**
 * @defgroup vemi_set_pixels vemiSet: whole pixels
 *
 * C1, C3 and C4 write every channel; AC4 writes the first three and keeps the fourth.
 *
 *     vemiSet_32f_C1R(0.5f, image, step, size);
 *     const Vemi8u sky[3] = {120, 170, 255};
 *     vemiSet_8u_AC4R(sky, picture, pictureStep, size);
 * @{
 */

VEMI_API VemiStatus vemiSet_8u_C1R(Vemi8u value, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_8u_C3R(const Vemi8u value[3], Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_8u_C4R(const Vemi8u value[4], Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_8u_AC4R(const Vemi8u value[3], Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSet_16s_C1R(Vemi16s value, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_16s_C3R(const Vemi16s value[3], Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_16s_C4R(const Vemi16s value[4], Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_16s_AC4R(const Vemi16s value[3], Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSet_32f_C1R(Vemi32f value, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_32f_C3R(const Vemi32f value[3], Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_32f_C4R(const Vemi32f value[4], Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_32f_AC4R(const Vemi32f value[3], Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_set_masked vemiSet: pixels that a mask selects
 *
 * Like the forms above at the pixels whose mask byte is not zero; all others keep their values. The mask is a Vemi8u
 * image of one channel and of the region's size.
 *
 *     vemiSet_8u_C3MR(red, photo, step, size, mask, maskStep);    // red where the mask is not 0
 * @{
 */

VEMI_API VemiStatus vemiSet_8u_C1MR(Vemi8u value, Vemi8u* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask,
                                    int maskStep);
VEMI_API VemiStatus vemiSet_8u_C3MR(const Vemi8u value[3], Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_8u_C4MR(const Vemi8u value[4], Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                    const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_8u_AC4MR(const Vemi8u value[3], Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);

VEMI_API VemiStatus vemiSet_16s_C1MR(Vemi16s value, Vemi16s* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask,
                                     int maskStep);
VEMI_API VemiStatus vemiSet_16s_C3MR(const Vemi16s value[3], Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_16s_C4MR(const Vemi16s value[4], Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_16s_AC4MR(const Vemi16s value[3], Vemi16s* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);

VEMI_API VemiStatus vemiSet_32f_C1MR(Vemi32f value, Vemi32f* pDst, int dstStep, VemiSize roiSize, const Vemi8u* pMask,
                                     int maskStep);
VEMI_API VemiStatus vemiSet_32f_C3MR(const Vemi32f value[3], Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_32f_C4MR(const Vemi32f value[4], Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                     const Vemi8u* pMask, int maskStep);
VEMI_API VemiStatus vemiSet_32f_AC4MR(const Vemi32f value[3], Vemi32f* pDst, int dstStep, VemiSize roiSize,
                                      const Vemi8u* pMask, int maskStep);

/** @} */

/**
 * @defgroup vemi_set_channel vemiSet: one channel
 *
 * pDst addresses the channel to fill in the first pixel; from there, every third (C3C) or fourth (C4C) element is
 * written, and nothing else is.
 *
 *     vemiSet_8u_C4CR(255, rgba + 3, rgbaStep, size);   // make the picture opaque
 * @{
 */

VEMI_API VemiStatus vemiSet_8u_C3CR(Vemi8u value, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_8u_C4CR(Vemi8u value, Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSet_16s_C3CR(Vemi16s value, Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_16s_C4CR(Vemi16s value, Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiSet_32f_C3CR(Vemi32f value, Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSet_32f_C4CR(Vemi32f value, Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/** @} */

/**
 * @defgroup vemi_drawtext vemiDrawText: kept for its name
 *
 * Draws nothing: it looks at none of its nine arguments and touches no memory. It stays so, for programs that link to
 * it.
 *
 * **Status**: always vemiWarnNoOperation.
 * @{
 */

VEMI_API VemiStatus vemiDrawText_8u_C3R(int arg1, int arg2, int arg3, int arg4, int arg5, int arg6, int arg7, int arg8,
                                        int arg9);

/** @} */

/**
 * @defgroup vemi_borders vemiCopyConstBorder, vemiCopyReplicateBorder, vemiCopyWrapBorder: copy and surround
 *
 * Filters read pixels around their region and never make them up. These functions make them: they copy the source into
 * a larger destination and fill what lies around it.
 *
 *     +----------------------------------+  ^                    ^
 *     |                                  |  | topBorderHeight    |
 *     |          +---------------+       |  v                    |
 *     |          |               |       |  ^                    | dstRoiSize.height
 *     |          |    source     |       |  | srcRoiSize.height  |
 *     |          |               |       |  v                    |
 *     |          +---------------+       |                       |
 *     |                                  |                       |
 *     +----------------------------------+                       v
 *     <--------->                                leftBorderWidth
 *                <--------------->               srcRoiSize.width
 *     <---------------------------------->       dstRoiSize.width
 *
 * The border to the right and below is whatever dstRoiSize leaves; it can be of no width, as can the left and the top.
 * The destination pixel (x, y) corresponds to the source pixel (x - leftBorderWidth, y - topBorderHeight). Where the
 * source, of width W and height H, has no such pixel, the destination receives
 *
 *     ConstBorder        value
 *     ReplicateBorder    the nearest pixel of the source: coordinates limited to 0..W-1 and 0..H-1
 *     WrapBorder         the source repeated in all directions: coordinates modulo W and H
 *
 * so that a source row `a b c` with two columns on its left and three on its right becomes
 *
 *     ConstBorder        v v a b c v v v
 *     ReplicateBorder    a a a b c c c c
 *     WrapBorder         b c a b c a b c
 *
 * C3 and C4 forms copy and fill all channels. AC4 forms write the first three, in the border too, and keep the
 * destination's fourth everywhere.
 *
 * @param pSrc,srcStep,srcRoiSize  the source: first pixel, bytes between rows, size in pixels
 * @param pDst,dstStep,dstRoiSize  the destination with its border: first pixel, bytes between rows, size in pixels
 * @param topBorderHeight          rows above the source, 0 or more
 * @param leftBorderWidth          columns left of the source, 0 or more; may exceed the source's width
 * @param value                    ConstBorder: the constant, in C3, C4 and AC4 an array of 3, 4 and 3 of them
 *
 * **Overlap.** Source and destination do not overlap, except in the in-place form below.
 *
 * **Statuses**, in the order of the tests; note that step comes before size here:
 *   - null: pSrc, pDst, or an array of constants is null (vemiErrNullPtr);
 *   - step: a step is below 1 (vemiErrStep);
 *   - size: a width or height is below 1, a border is negative, or the destination is narrower than leftBorderWidth +
 *     srcRoiSize.width or lower than topBorderHeight + srcRoiSize.height, with exact sums (vemiErrSize).
 *
 * **Threads.** All of them run in the calling thread.
 *
 *     VemiSize padded = {size.width + 2, size.height + 2};   // one pixel around, for a 3x3 filter
 *     vemiCopyReplicateBorder_8u_C1R(src, srcStep, size, dst, dstStep, padded, 1, 1);
 * @{
 */

VEMI_API VemiStatus vemiCopyConstBorder_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                               int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth, Vemi8u value);
VEMI_API VemiStatus vemiCopyConstBorder_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                               int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth, const Vemi8u value[3]);
VEMI_API VemiStatus vemiCopyConstBorder_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                               int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth, const Vemi8u value[4]);
VEMI_API VemiStatus vemiCopyConstBorder_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, const Vemi8u value[3]);

VEMI_API VemiStatus vemiCopyConstBorder_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi16s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, Vemi16s value);
VEMI_API VemiStatus vemiCopyConstBorder_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi16s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, const Vemi16s value[3]);
VEMI_API VemiStatus vemiCopyConstBorder_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi16s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, const Vemi16s value[4]);
VEMI_API VemiStatus vemiCopyConstBorder_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi16s* pDst,
                                                 int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                 int leftBorderWidth, const Vemi16s value[3]);

VEMI_API VemiStatus vemiCopyConstBorder_32s_C1R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi32s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, Vemi32s value);
VEMI_API VemiStatus vemiCopyConstBorder_32s_C3R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi32s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, const Vemi32s value[3]);
VEMI_API VemiStatus vemiCopyConstBorder_32s_C4R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi32s* pDst,
                                                int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                int leftBorderWidth, const Vemi32s value[4]);
VEMI_API VemiStatus vemiCopyConstBorder_32s_AC4R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi32s* pDst,
                                                 int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                 int leftBorderWidth, const Vemi32s value[3]);

VEMI_API VemiStatus vemiCopyReplicateBorder_8u_C1R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                                   int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_8u_C3R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                                   int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_8u_C4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                                   int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_8u_AC4R(const Vemi8u* pSrc, int srcStep, VemiSize srcRoiSize, Vemi8u* pDst,
                                                    int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);

VEMI_API VemiStatus vemiCopyReplicateBorder_16s_C1R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi16s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_16s_C3R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi16s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_16s_C4R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi16s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_16s_AC4R(const Vemi16s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     Vemi16s* pDst, int dstStep, VemiSize dstRoiSize,
                                                     int topBorderHeight, int leftBorderWidth);

VEMI_API VemiStatus vemiCopyReplicateBorder_32s_C1R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi32s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_32s_C3R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi32s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_32s_C4R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                    Vemi32s* pDst, int dstStep, VemiSize dstRoiSize,
                                                    int topBorderHeight, int leftBorderWidth);
VEMI_API VemiStatus vemiCopyReplicateBorder_32s_AC4R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize,
                                                     Vemi32s* pDst, int dstStep, VemiSize dstRoiSize,
                                                     int topBorderHeight, int leftBorderWidth);

VEMI_API VemiStatus vemiCopyWrapBorder_32s_C1R(const Vemi32s* pSrc, int srcStep, VemiSize srcRoiSize, Vemi32s* pDst,
                                               int dstStep, VemiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth);

/**
 * In place: the source lies in its final position inside the destination, and only the border around it is written.
 *
 * pSrc addresses the source's first pixel, not the destination's: the destination begins topBorderHeight rows above and
 * leftBorderWidth elements to the left of it. The memory of all dstRoiSize pixels belongs to the caller and is
 * writable. srcDstStep is the one step of both.
 */
VEMI_API VemiStatus vemiCopyWrapBorder_32s_C1IR(Vemi32s* pSrc, int srcDstStep, VemiSize srcRoiSize, VemiSize dstRoiSize,
                                                int topBorderHeight, int leftBorderWidth);

/** @} */

/** @} */

#ifdef __cplusplus
}

/*
 * For C++ programs: each vemiMalloc with width and height in the place of a size. They are overloads of the functions
 * above, compiled into the program; "C++" linkage is spelled out for programs that wrap this header in extern "C".
 */
extern "C++" {

inline Vemi8u* vemiMalloc_8u_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_C1(size, pStepBytes);
}
inline Vemi8u* vemiMalloc_8u_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_C2(size, pStepBytes);
}
inline Vemi8u* vemiMalloc_8u_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_C3(size, pStepBytes);
}
inline Vemi8u* vemiMalloc_8u_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_C4(size, pStepBytes);
}
inline Vemi8u* vemiMalloc_8u_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_AC4(size, pStepBytes);
}
inline Vemi8u* vemiMalloc_8u_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_8u_P3(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_C1(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_C2(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_C3(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_C4(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_AC4(size, pStepBytes);
}
inline Vemi16u* vemiMalloc_16u_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16u_P3(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_C1(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_C2(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_C3(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_C4(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_AC4(size, pStepBytes);
}
inline Vemi16s* vemiMalloc_16s_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_16s_P3(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_C1(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_C2(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_C3(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_C4(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_AC4(size, pStepBytes);
}
inline Vemi32s* vemiMalloc_32s_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32s_P3(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_C1(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_C2(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_C3(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_C4(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_AC4(size, pStepBytes);
}
inline Vemi32f* vemiMalloc_32f_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32f_P3(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_C1(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_C2(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_C3(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_C4(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_AC4(size, pStepBytes);
}
inline Vemi32sc* vemiMalloc_32sc_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32sc_P3(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_C1(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_C1(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_C2(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_C2(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_C3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_C3(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_C4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_C4(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_AC4(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_AC4(size, pStepBytes);
}
inline Vemi32fc* vemiMalloc_32fc_P3(int width, int height, int* pStepBytes) {
  const VemiSize size = {width, height};
  return vemiMalloc_32fc_P3(size, pStepBytes);
}

}  // extern "C++"
#endif

#endif
