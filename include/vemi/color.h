/**
 * @file color.h
 * Colour models: conversions between RGB and other models, planes and packed layouts of video, orders of channels,
 * matrices of the user's.
 */
#ifndef VEMI_COLOR_H
#define VEMI_COLOR_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_color Colour models
 *
 * @{
 */

/* ---- Luma and chroma ---- */

/* ---- Perceptual and device spaces ---- */

/* ---- Matrices of the user's ---- */

/**
 * @defgroup vemi_color_twist vemiColorTwist, vemiColorTwist32f: a matrix on the channels of each pixel
 *
 * Each channel of the result is a weighted sum of the channels of the pixel, and a constant. With s0, s1, s2 the
 * channels of a source pixel and t the twist, channel c of the destination pixel is
 *
 *     t[c][0] * s0 + t[c][1] * s1 + t[c][2] * s2 + t[c][3]
 *
 * added from left to right. So row c of the twist makes channel c, whatever the channels mean: RGB, BGR or another
 * model.
 *
 * **vemiColorTwist32f** takes integers: 8u, 8s, 16u, 16s. The factors are floats, and are used as they are: products
 * and sums are those of doubles, each sum rounded. A sum below the range of the type gives its lowest value, one at or
 * above the highest value gives that, any other is rounded to an integer by the rounding mode that the calling thread
 * has set; that of a program's start rounds to nearest, ties to even. A sum that is not a number, which only factors
 * that are infinite or no numbers can give, is stored as 0. No value of a factor is refused.
 *
 *     8u   a sum of  96.5   ->   96      8s   a sum of  -1.5  ->   -2
 *     8u   a sum of 254.5   ->  254      8s   a sum of 300    ->  127
 *     8u   a sum of 255     ->  255      16u  a sum of  -0.7  ->    0
 *
 * **vemiColorTwist** takes floats. Products and sums are those of single precision, and nothing is limited: infinities
 * and NaNs are as IEEE 754 has them. The C4R form has a matrix of four rows and four columns. It makes all four
 * channels, and has no constant: with s3 the fourth channel of the source pixel,
 *
 *     t[c][0] * s0 + t[c][1] * s1 + t[c][2] * s2 + t[c][3] * s3
 *
 * | Member | Pixels |
 * |---|---|
 * | C3R, C3IR | three interleaved channels |
 * | AC4R, AC4IR | the first three of four interleaved channels; the destination's fourth, alpha, stays as it is |
 * | C4R | four interleaved channels, floats alone |
 * | P3R, IP3R | three planes with one step for all of them |
 *
 * In IR forms and in IP3R the source is the destination. In the other forms the destination may be the very source, and
 * does not overlap it otherwise.
 *
 * @param pSrc,srcStep        first pixel of the source, or an array of its three planes, and the bytes between rows
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  the same of the image that is both
 * @param roiSize             size of the region in pixels
 * @param twist               the matrix, row by row; read only
 *
 * **Statuses**, in the order of the tests: null (images, planes, twist), size, step (see status.h).
 *
 * **Exceptions of floats.** A vemiColorTwist32f call ends no program by an exception, whatever the caller has unmasked,
 * and leaves none behind: rounding mode, masks and flags of the calling thread are afterwards what they were.
 *
 * **Threads.** All members run in the calling thread. Factors that are not too large, and of bytes, take the fast way:
 * with the usual rounding mode a sum is computed in doubles only where single precision leaves its rounding open.
 *
 *     const Vemi32f sepia[3][4] = {{0.393f, 0.769f, 0.189f, 0}, {0.349f, 0.686f, 0.168f, 0}, {0.272f, 0.534f, 0.131f,
 * 0}}; vemiColorTwist32f_8u_C3R(photo, photoStep, old, oldStep, size, sepia);
 * @{
 */

VEMI_API VemiStatus vemiColorTwist32f_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3],
                                             int dstStep, VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8u_IP3R(Vemi8u* const pSrcDst[3], int srcDstStep, VemiSize roiSize,
                                              const Vemi32f twist[3][4]);

VEMI_API VemiStatus vemiColorTwist32f_8s_C3R(const Vemi8s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8s_AC4R(const Vemi8s* pSrc, int srcStep, Vemi8s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8s_P3R(const Vemi8s* const pSrc[3], int srcStep, Vemi8s* const pDst[3],
                                             int dstStep, VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8s_C3IR(Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                              const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8s_AC4IR(Vemi8s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_8s_IP3R(Vemi8s* const pSrcDst[3], int srcDstStep, VemiSize roiSize,
                                              const Vemi32f twist[3][4]);

VEMI_API VemiStatus vemiColorTwist32f_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16u_P3R(const Vemi16u* const pSrc[3], int srcStep, Vemi16u* const pDst[3],
                                              int dstStep, VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16u_C3IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16u_AC4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16u_IP3R(Vemi16u* const pSrcDst[3], int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);

VEMI_API VemiStatus vemiColorTwist32f_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16s_P3R(const Vemi16s* const pSrc[3], int srcStep, Vemi16s* const pDst[3],
                                              int dstStep, VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize,
                                                const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist32f_16s_IP3R(Vemi16s* const pSrcDst[3], int srcDstStep, VemiSize roiSize,
                                               const Vemi32f twist[3][4]);

VEMI_API VemiStatus vemiColorTwist_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize, const Vemi32f twist[4][4]);
VEMI_API VemiStatus vemiColorTwist_32f_P3R(const Vemi32f* const pSrc[3], int srcStep, Vemi32f* const pDst[3],
                                           int dstStep, VemiSize roiSize, const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                            const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize,
                                             const Vemi32f twist[3][4]);
VEMI_API VemiStatus vemiColorTwist_32f_IP3R(Vemi32f* const pSrcDst[3], int srcDstStep, VemiSize roiSize,
                                            const Vemi32f twist[3][4]);

/** @} */

/* ---- Video layouts ---- */

/* ---- Orders of channels ---- */

/* ---- Packed 16-bit pixels ---- */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
