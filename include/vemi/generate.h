/**
 * @file generate.h
 * Generation: images, noise and windows out of numbers.
 */
#ifndef VEMI_GENERATE_H
#define VEMI_GENERATE_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_generate Generation
 *
 * Images to test with, noise that can be repeated, and windows.
 * @{
 */

/**
 * @defgroup vemi_image_ramp vemiImageRamp: a linear ramp
 *
 *     pDst(x, y) = k * slope + offset        k = x            axis vemiRampHorizontal
 *                                            k = y            axis vemiRampVertical
 *                                            k = x * y        axis vemiRampBoth
 *
 * with x and y counted from the upper left pixel of the region. k is an integer that is rounded to single precision
 * once; the product and the sum are in single precision too. The value goes to all channels of the pixel; AC4 forms
 * leave the fourth one as it is.
 *
 * **32f** takes the value itself. **The integer types** add 0.5 to it (take 0.5 off it, if it is not above zero) in
 * single precision, drop the fraction and limit the rest to their range. This gives the nearest integer, halves away
 * from zero, except where the sum itself is rounded: 0.49999997 becomes 1, and in 32s an odd value from 2^23 to 2^24,
 * of either sign, goes to the next one away from zero. A NaN, which takes an infinite or NaN argument, becomes 0.
 *
 *     8u     254.4 -> 254     254.5 -> 255     -0.1 -> 0      0.5 -> 1
 *     16s   -2.5 -> -3        1e9 -> 32767
 *     32s   8388608 -> 8388608    8388609 -> 8388610
 *
 * @param pDst,dstStep  first pixel of the destination, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param offset        value of the pixel with k = 0, in units of the elements
 * @param slope         what one column (or row) adds
 * @param axis          one of the names above. With any other number nothing is drawn, and the call returns vemiOk.
 *
 * **Statuses**, in the order of the tests: null, step, size (see status.h); then vemiErrMemAlloc, if axis is
 * vemiRampHorizontal and there is no memory for a row.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiImageRamp_8u_C1R(image, step, size, 0, 255.0f / (width - 1), vemiRampHorizontal);   // black to white
 * @{
 */

/** Along what vemiImageRamp rises. */
enum {
  vemiRampHorizontal = 0, /**< from column to column */
  vemiRampVertical = 1,   /**< from row to row */
  vemiRampBoth = 2        /**< with the product of column and row */
};

VEMI_API VemiStatus vemiImageRamp_8u_C1R(Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8u_C3R(Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8u_C4R(Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8u_AC4R(Vemi8u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);

VEMI_API VemiStatus vemiImageRamp_8s_C1R(Vemi8s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8s_C3R(Vemi8s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8s_C4R(Vemi8s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                         int axis);
VEMI_API VemiStatus vemiImageRamp_8s_AC4R(Vemi8s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);

VEMI_API VemiStatus vemiImageRamp_16u_C1R(Vemi16u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16u_C3R(Vemi16u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16u_C4R(Vemi16u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16u_AC4R(Vemi16u* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                           int axis);

VEMI_API VemiStatus vemiImageRamp_16s_C1R(Vemi16s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16s_C3R(Vemi16s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16s_C4R(Vemi16s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_16s_AC4R(Vemi16s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                           int axis);

VEMI_API VemiStatus vemiImageRamp_32s_C1R(Vemi32s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32s_C3R(Vemi32s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32s_C4R(Vemi32s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32s_AC4R(Vemi32s* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                           int axis);

VEMI_API VemiStatus vemiImageRamp_32f_C1R(Vemi32f* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32f_C3R(Vemi32f* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32f_C4R(Vemi32f* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                          int axis);
VEMI_API VemiStatus vemiImageRamp_32f_AC4R(Vemi32f* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope,
                                           int axis);

/** @} */

/**
 * @defgroup vemi_image_jaehne vemiImageJaehne: a radial chirp
 *
 * Rings around the middle of the region that get the narrower, the further out they are: a test pattern with all
 * frequencies in all directions. With W and H the width and the height of the region, and in double precision,
 *
 *     dx = x - (W - 1) / 2,   dy = y - (H - 1) / 2,   s = sin((dx * dx + dy * dy) * 2 pi / (4 * H))
 *
 * where 2 pi is 6.283185307179586. So the distance from one ring to the next is two pixels at the distance H from the
 * middle, and four at the upper and lower rim. s is correct to one unit in the last place, and the same on every
 * machine. The value of a pixel, whose fraction the integer types drop, is
 *
 *     8u   (s + 1) * 127.99999        16u  (s + 1) * 32767.99999      32s  s * 2147483647.99999
 *     8s   s * 127.99999              16s  s * 32767.99999            32f  (s + 1) * 0.49999
 *
 * and goes to all channels; AC4 forms leave the fourth one as it is. The middle of an image of odd width and height is
 * 127 in 8u.
 *
 * @param pDst,dstStep  first pixel of the destination, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 *
 * **Statuses**, in the order of the tests: null, step, size (see status.h).
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiImageJaehne_8u_C1R(image, step, size);    // what does a filter leave of which frequency?
 * @{
 */

VEMI_API VemiStatus vemiImageJaehne_8u_C1R(Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8u_C3R(Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8u_C4R(Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8u_AC4R(Vemi8u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiImageJaehne_8s_C1R(Vemi8s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8s_C3R(Vemi8s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8s_C4R(Vemi8s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_8s_AC4R(Vemi8s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiImageJaehne_16u_C1R(Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16u_C3R(Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16u_C4R(Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16u_AC4R(Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiImageJaehne_16s_C1R(Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16s_C3R(Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16s_C4R(Vemi16s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_16s_AC4R(Vemi16s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiImageJaehne_32s_C1R(Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32s_C3R(Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32s_C4R(Vemi32s* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32s_AC4R(Vemi32s* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiImageJaehne_32f_C1R(Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32f_C3R(Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32f_C4R(Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiImageJaehne_32f_AC4R(Vemi32f* pDst, int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_add_rand vemiAddRandUniform_Direct, vemiAddRandGauss_Direct: noise
 *
 *     pSrcDst = pSrcDst + noise
 *
 * Each worked element gets its own noise, in the order of memory: row by row from the top, in a row pixel by pixel, in
 * a pixel channel by channel. AC4 forms pass over the fourth channel, and it takes no noise. **8u and 16s** round the
 * noise to the nearest integer (ties to even), add it and limit the sum to the range of the type. **32f** adds the
 * noise as it is, in double precision, and rounds the sum once.
 *
 * **The generator.** The noise is determined by the seed alone, on every machine and build. All numbers are unsigned 32
 * bit words, sums and products are taken modulo 2^32, and "below zero" reads a word as a signed one. A call begins with
 *
 *     x0 = *pSeed,   x1 = x0 * 69069 + 1013904243,   x2 = x1 * 69069 + 1013904243,   b = -1,   g = 1131199209
 *
 * and one step of the generator gives the next random number r, a signed 32-bit integer:
 *
 *     g = g * 69069 + 1013904243
 *     t = x1 - x2 + b;   if t is below zero: b = -1, t = t - 18;   else b = 0
 *     x2 = x1,   x1 = x0,   x0 = t
 *     r = t + g
 *
 * In the end *pSeed becomes the last x0. So the next call with the same word goes on with other noise, and a caller
 * who wants the same noise again sets the word again.
 *
 * **Uniform.** One step for each element, and in double precision
 *
 *     noise = r * ((high - low) * 2.3283064365387e-10) + (low + high) * 0.5
 *
 * which lies between low and high, and reaches both as integers half as often as what lies between.
 *
 * **Gauss.** The polar method. Two steps give u = r1 * 4.656612873077e-10 and v = r2 * 4.656612873077e-10, both from -1
 * to 1, and s = u * u + v * v; as long as s >= 1 or s = 0, two more steps are taken. Then
 *
 *     f = sqrt(-2 * ln(s) / s),   noise = stDev * f * u + mean,   the next one = stDev * f * v + mean
 *
 * in double precision, with a logarithm that is correct to one unit in the last place. The second value of a pair goes
 * to the next element wherever that is, in another channel, pixel or row; at the end of the call it is lost.
 *
 * No value of low, high, mean or stDev is refused: low may lie above high, and stDev may be negative. With low = high =
 * 0 the integer types stay as they are.
 *
 * @param pSrcDst,srcDstStep  first pixel of the image, and the bytes between its rows
 * @param roiSize             size of the region in pixels
 * @param low,high            ends of the range of uniform noise, in units of the elements
 * @param mean,stDev          mean and standard deviation of normal noise, in units of the elements
 * @param pSeed               the seed: any number, replaced by another one
 *
 * **Statuses**, in the order of the tests: null (pSeed too), size, step (see status.h).
 *
 * **Threads.** All forms run in the calling thread. Calls that run at the same time need seeds of their own.
 *
 *     Vemi32u seed = 4711;
 *     vemiAddRandGauss_Direct_8u_C3IR(photo, step, size, 0, 12, &seed);   // the grain of a fast film
 * @{
 */

VEMI_API VemiStatus vemiAddRandUniform_Direct_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u low,
                                                      Vemi8u high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u low,
                                                      Vemi8u high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u low,
                                                      Vemi8u high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u low,
                                                       Vemi8u high, Vemi32u* pSeed);

VEMI_API VemiStatus vemiAddRandUniform_Direct_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s low,
                                                       Vemi16s high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s low,
                                                       Vemi16s high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s low,
                                                       Vemi16s high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s low,
                                                        Vemi16s high, Vemi32u* pSeed);

VEMI_API VemiStatus vemiAddRandUniform_Direct_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f low,
                                                       Vemi32f high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f low,
                                                       Vemi32f high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f low,
                                                       Vemi32f high, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandUniform_Direct_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f low,
                                                        Vemi32f high, Vemi32u* pSeed);

VEMI_API VemiStatus vemiAddRandGauss_Direct_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u mean,
                                                    Vemi8u stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u mean,
                                                    Vemi8u stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u mean,
                                                    Vemi8u stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi8u mean,
                                                     Vemi8u stDev, Vemi32u* pSeed);

VEMI_API VemiStatus vemiAddRandGauss_Direct_16s_C1IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s mean,
                                                     Vemi16s stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_16s_C3IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s mean,
                                                     Vemi16s stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_16s_C4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s mean,
                                                     Vemi16s stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_16s_AC4IR(Vemi16s* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi16s mean,
                                                      Vemi16s stDev, Vemi32u* pSeed);

VEMI_API VemiStatus vemiAddRandGauss_Direct_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f mean,
                                                     Vemi32f stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_32f_C3IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f mean,
                                                     Vemi32f stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_32f_C4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f mean,
                                                     Vemi32f stDev, Vemi32u* pSeed);
VEMI_API VemiStatus vemiAddRandGauss_Direct_32f_AC4IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize, Vemi32f mean,
                                                      Vemi32f stDev, Vemi32u* pSeed);

/** @} */

/**
 * @defgroup vemi_win vemiWinBartlett, vemiWinHamming: radial windows
 *
 * The image times a window that falls from 1 in the middle towards the rim, as it prepares an image for a Fourier
 * transform. The contours of the window are ellipses. With W and H the width and the height of the region, a pixel's
 * distances from the middle are counted in both directions from the nearer rim:
 *
 *     dx = W / 2 - min(x, W - 1 - x),    dy = H / 2 - min(y, H - 1 - y)
 *
 * so that the window is symmetric, and the middle column of an odd width lies at dx = 1/2. In double precision, with
 * cx = W / 2, cy = H / 2 and q = cy / cx:
 *
 *     pDst = 0            where dx * dx / (cx * cx) + dy * dy / (cy * cy) >= 1, which is outside of the ellipse
 *     pDst = pSrc * w     inside, with r = sqrt(dx * dx + dy * dy / (q * q)) and
 *                         w = 1 - r / cx                                   vemiWinBartlett
 *                         w = 0.54 - 0.46 * cos((cx - r) * 2 pi / W)       vemiWinHamming
 *
 * where 2 pi is 6.283185307179586 and the cosine is correct to one unit in the last place. The product of pixel and
 * weight is rounded once: to single precision in 32f, to the nearest integer (ties to even) in 8u. The corners are
 * always 0.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  the same of the image that is source and destination
 * @param roiSize             size of the region in pixels, at least 3 in both directions
 *
 * **Statuses**, in the order of the tests: null; size, where a width or a height below 3 is vemiErrSize; step (see
 * status.h); then vemiErrMemAlloc, if there is no memory for a row.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiWinHamming_32f_C1IR(image, step, size);    // before vemiFFTFwd
 * @{
 */

VEMI_API VemiStatus vemiWinBartlett_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlett_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiWinHamming_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinHamming_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlett_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlett_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinHamming_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinHamming_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_win_sep vemiWinBartlettSep, vemiWinHammingSep: products of two windows
 *
 *     pDst(x, y) = pSrc(x, y) * wx(x) * wy(y)
 *
 * with a window of the width and one of the height, multiplied in single precision in this order. In 8u the product is
 * rounded to the nearest integer, ties to even. The window of n elements is
 *
 *     vemiWinBartlettSep    w(k) = 1 - |2 * k / (n - 1) - 1|, a triangle: 0 at both ends, 1 in the middle of an odd n
 *     vemiWinHammingSep     w(k) = 0.54 - 0.46 * cos(2 pi * k / (n - 1)): 0.08 at both ends
 *
 * for k from 0 to n - 1, symmetric to the last bit, computed in double precision and rounded to single. The cosines of
 * the Hamming window come of a recurrence, from both ends to the middle: with c = cos(2 pi / (n - 1)), correct to one
 * unit in the last place, and 2 pi = 6.283185307179586,
 *
 *     y(0) = 0.46,   y(1) = 0.46 * c,   y(k + 1) = 2 * c * y(k) - y(k - 1),   w(k) = 0.54 - y(k)
 *
 * What it loses grows with the square of the length, to at most n * n * 2^-57: up to n = 65536, no more than rounding
 * to single precision does.
 *
 *     n = 5, Bartlett: 0, 0.5, 1, 0.5, 0        n = 3, Hamming: 0.08, 1, 0.08
 *
 * Arguments and threads are those of the radial forms.
 *
 * **Statuses**, in the order of the tests: null; size, where a width or a height below 3 is vemiErrSize; step; then
 * vemiErrMemAlloc, if there is no memory for the two windows.
 *
 *     vemiWinHammingSep_32f_C1IR(image, step, size);    // before vemiFFTFwd
 * @{
 */

VEMI_API VemiStatus vemiWinBartlettSep_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlettSep_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiWinHammingSep_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiWinHammingSep_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlettSep_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinBartlettSep_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinHammingSep_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiWinHammingSep_32f_C1IR(Vemi32f* pSrcDst, int srcDstStep, VemiSize roiSize);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
