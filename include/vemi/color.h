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

/**
 * @defgroup vemi_hsv vemiRGBToHSV, vemiHSVToRGB: hue, saturation, value
 *
 * The hexcone model. With V = max(R, G, B) and d = V - min(R, G, B), and full = 255 (8u) or 65535 (16u):
 *
 *     S = full d / V
 *     H = full / 6 * (G - B) / d          where R is the largest; full is added to a result below 0
 *         full / 6 * (2 + (B - R) / d)    where G is
 *         full / 6 * (4 + (R - G) / d)    where B is
 *
 * H runs once around the circle: 0 red, full / 3 green, 2 full / 3 blue. Of several largest channels B counts before G
 * and G before R. A grey pixel (d = 0), black among them, has H = S = 0.
 *
 * Results are computed in single precision and rounded to nearest, ties to even. In place of a quotient stands a
 * product with r, the approximate reciprocal of the divisor x to 12 bits (the middle one of the 2^-11 of its octave
 * that it lies in, inverted and rounded to 13 significant bits), the same on every processor; in 16u after a Newton
 * step, 2 r - x r r. So 8u results may be one off the exact quotient's.
 *
 *     RGB (255, 0, 0)       HSV   0 255 255
 *     RGB (0, 255, 0)       HSV  85 255 255
 *     RGB (255, 255, 0)     HSV  42 255 255       (42.49)
 *     RGB (128, 128, 128)   HSV   0   0 128
 *
 * **Back.** With s = S / full, x = 6 H / full, i = floor(x) and f = x - i:
 *
 *     p = V - V s,   q = V - f V s,   t = p + f V s
 *
 *     i     0   1   2   3   4   5
 *     R     V   q   p   p   t   V
 *     G     t   V   V   q   p   p
 *     B     p   p   t   V   V   q
 *
 * rounded to nearest, ties to even. The hue `full` acts as 0. Where S is 0, all three are V.
 *
 * AC4 forms convert the first three channels and leave the destination's fourth as it is.
 *
 * @param pSrc,srcStep    first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep    the same of the destination
 * @param roiSize         size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc, unless it is the same image.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** Rows are shared out among an OpenMP team.
 *
 *     vemiRGBToHSV_8u_C3R(rgb, rgbStep, hsv, hsvStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToHSV_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHSV_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHSV_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHSV_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiHSVToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiHSVToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiHSVToRGB_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiHSVToRGB_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);

/** @} */

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
