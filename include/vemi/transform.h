/**
 * @file transform.h
 * Transforms: images as sums of waves.
 */
#ifndef VEMI_TRANSFORM_H
#define VEMI_TRANSFORM_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_transform Transforms
 *
 * Spectra of images, and images out of spectra.
 * @{
 */

/**
 * @defgroup vemi_fft vemiFFT: the fast Fourier transform
 *
 * Of images of W = 2^orderX by H = 2^orderY pixels, 1 to 2^30 each way. With f(x, y) the image, scale as in the table
 * of flags, and i the imaginary unit,
 *
 *     forward   F(u, v) = scale * sum of f(x, y) * exp(-2 pi i (u x / W + v y / H))     over all x, y
 *     inverse   f(x, y) = scale * sum of F(u, v) * exp(+2 pi i (u x / W + v y / H))     over all u, v
 *
 * The size is not an argument of a transform: it comes from a record, which a constructor makes once for a pair of
 * orders. Channels are transformed each by itself; AC4 forms leave the fourth element of each pixel as it is.
 *
 * **The ways.** CToC forms take and give complex numbers, F(u, v) in column u of row v. RToPack forms take real numbers
 * and give the half of their spectrum that tells all of it, *packed* into as many real numbers as the image has;
 * PackToR forms go back. 8u32s and 32s8u forms do the same between integers: the elements become floats, the transform
 * is that of floats, and each result, times 2^-scaleFactor, is rounded to nearest (ties to even) and limited to its
 * type. A float of 2^31 and more becomes 2^31 - 1, and a zero stays one whatever the scale factor.
 *
 * **The packed array.** F(W - u, H - v) is the conjugate of F(u, v), so columns u = 0 to W / 2 suffice; columns 0 and
 * W / 2 have that symmetry in themselves, from top to bottom. A line packed by itself is
 *
 *     Re X(0)   Re X(1) Im X(1)   Re X(2) Im X(2)   ...   Re X(N / 2)           N = 1: Re X(0); N = 2: Re X(0) Re X(1)
 *
 * Columns 0 and W - 1 of the array are F(0, v) and F(W / 2, v) packed so along v; columns 2 u - 1 and 2 u between them
 * are Re F(u, v) and Im F(u, v), v = 0 to H - 1. Of 4 by 4, with R and I for the two parts:
 *
 *     R(0,0)   R(1,0)   I(1,0)   R(2,0)
 *     R(0,1)   R(1,1)   I(1,1)   R(2,1)
 *     I(0,1)   R(1,2)   I(1,2)   I(2,1)
 *     R(0,2)   R(1,3)   I(1,3)   R(2,2)
 *
 * An image of one row or one column is one packed line; of two columns there are columns 0 and W - 1 alone. A pixel
 * with several channels holds the element of each channel's own array.
 *
 * @param ppSpec           where the record's address goes; not written unless the status is vemiOk
 * @param orderX,orderY    the logarithms of width and height to the base 2, 0 to 30
 * @param flag             the scale, one of the flags below
 * @param hint             any number; it changes nothing
 * @param pSpec            the record. Transforms only read it: any number of threads may share it.
 * @param pBufSize         the bytes of working memory that a transform wants
 * @param pSrc,srcStep     first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep     first pixel of the destination, and the bytes between its rows. It may begin where the source
 *                         does, with the same step; other overlaps are not allowed.
 * @param scaleFactor      see vemi.h; any int
 * @param pBuffer          working memory of the size that vemiFFTGetBufSize tells, at any address, of one call at a
 *                         time; or null: then the call allocates and frees as much
 *
 * **Records.** A transform wants the record of its own kind: R_32f for 32f, R_32s for 8u32s and 32s8u, C_32fc for 32fc.
 * vemiFFTFree frees it and all that belongs to it.
 *
 * **Exactness.** Constants and small integers go through transforms of lengths 1, 2 and 4 without rounding, and the
 * spectrum of a constant image is exactly 0 but for F(0, 0). Elsewhere the root mean square of the errors is about
 * 4e-8 * sqrt(log2(W * H)) of that of the results, or less. The bits are the same in place and out of it, with a
 * buffer and without, at any alignment.
 *
 * **Statuses**, in the order of the tests. vemiFFTInitAlloc: ppSpec null; vemiErrFftOrder, an order below 0 or above
 * 30; vemiErrFftFlag, no flag of those below; vemiErrMemAlloc, no memory, or a buffer of 2^31 bytes or more (from H =
 * 2^25 on, of real transforms also from W = 2^27 on, and of R_32s from about 2^27 pixels on). vemiFFTFree and
 * vemiFFTGetBufSize: null; vemiErrContext, a record of another kind. Transforms: pSpec null; vemiErrContext; pSrc or
 * pDst null; step; vemiErrMemAlloc, if pBuffer is null and there is no memory.
 *
 * **Threads.** All forms run in the calling thread.
 *
 * The low frequencies of an image of 512 by 256 bytes; with flag vemiFftScaleInv there and back is the image:
 *
 *     VemiFFTSpec_R_32f* spec;
 *     VemiSize size = {512, 256};
 *     int step, bytes;
 *     Vemi32f* image = vemiMalloc_32f_C1(size, &step);
 *     vemiFFTInitAlloc_R_32f(&spec, 9, 8, vemiFftScaleInv, vemiHintNone);
 *     vemiFFTGetBufSize_R_32f(spec, &bytes);
 *     Vemi8u* buffer = malloc(bytes);
 *     vemiConvert_8u32f_C1R(picture, pictureStep, image, step, size);
 *     vemiFFTFwd_RToPack_32f_C1R(image, step, image, step, spec, buffer);
 *     vemiSet_32f_C1R(0, image + 63, step, (VemiSize){449, 256});                      // u from 32 on
 *     vemiSet_32f_C1R(0, (Vemi32f*)((Vemi8u*)image + 32 * step) + 1, step, (VemiSize){62, 193});   // v from 32 to 224
 *     vemiSet_32f_C1R(0, (Vemi32f*)((Vemi8u*)image + 63 * step), step, (VemiSize){1, 193});        // the same of u = 0
 *     vemiFFTInv_PackToR_32f_C1R(image, step, image, step, spec, buffer);
 *     vemiFFTFree_R_32f(spec);
 * @{
 */

/** What forward and inverse results are multiplied by; N = W * H is the number of pixels. */
enum {
  vemiFftScaleFwd = 1,  /**< forward 1 / N, inverse 1 */
  vemiFftScaleInv = 2,  /**< forward 1, inverse 1 / N */
  vemiFftScaleSqrt = 4, /**< both 1 / sqrt(N) */
  vemiFftScaleNone = 8  /**< both 1: there and back is N times the image */
};

/** The record of real transforms of floats; what it holds is the library's business. */
typedef struct VemiFFTSpec_R_32f VemiFFTSpec_R_32f;
/** The record of real transforms between integers. */
typedef struct VemiFFTSpec_R_32s VemiFFTSpec_R_32s;
/** The record of complex transforms. */
typedef struct VemiFFTSpec_C_32fc VemiFFTSpec_C_32fc;

VEMI_API VemiStatus vemiFFTInitAlloc_R_32f(VemiFFTSpec_R_32f** ppSpec, int orderX, int orderY, int flag, vemiHint hint);
VEMI_API VemiStatus vemiFFTInitAlloc_R_32s(VemiFFTSpec_R_32s** ppSpec, int orderX, int orderY, int flag, vemiHint hint);
VEMI_API VemiStatus vemiFFTInitAlloc_C_32fc(VemiFFTSpec_C_32fc** ppSpec, int orderX, int orderY, int flag,
                                            vemiHint hint);

VEMI_API VemiStatus vemiFFTFree_R_32f(VemiFFTSpec_R_32f* pSpec);
VEMI_API VemiStatus vemiFFTFree_R_32s(VemiFFTSpec_R_32s* pSpec);
VEMI_API VemiStatus vemiFFTFree_C_32fc(VemiFFTSpec_C_32fc* pSpec);

VEMI_API VemiStatus vemiFFTGetBufSize_R_32f(const VemiFFTSpec_R_32f* pSpec, int* pBufSize);
VEMI_API VemiStatus vemiFFTGetBufSize_R_32s(const VemiFFTSpec_R_32s* pSpec, int* pBufSize);
VEMI_API VemiStatus vemiFFTGetBufSize_C_32fc(const VemiFFTSpec_C_32fc* pSpec, int* pBufSize);

VEMI_API VemiStatus vemiFFTFwd_RToPack_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFFTInv_PackToR_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                const VemiFFTSpec_R_32f* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFFTFwd_RToPack_8u32s_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_8u32s_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_8u32s_C4RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTFwd_RToPack_8u32s_AC4RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                     const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFFTInv_PackToR_32s8u_C1RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32s8u_C3RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32s8u_C4RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_PackToR_32s8u_AC4RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                     const VemiFFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiFFTFwd_CToC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep,
                                             const VemiFFTSpec_C_32fc* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiFFTInv_CToC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep,
                                             const VemiFFTSpec_C_32fc* pSpec, Vemi8u* pBuffer);

/** @} */

/**
 * @defgroup vemi_dft vemiDFT: the discrete Fourier transform of any size
 *
 * What vemiFFT is, without its powers of two: images of any width W and height H, with the formulas, the ways, the
 * layouts and the flags that are told there, and N = W * H. Powers of two give what vemiFFT gives, up to rounding.
 *
 * **The packed array of odd sizes.** A line of odd length has no middle number:
 *
 *     Re X(0)   Re X(1) Im X(1)   Re X(2) Im X(2)   ...   Re X((N - 1) / 2) Im X((N - 1) / 2)
 *
 * Of an odd width there is no last column by itself: columns 2 u - 1 and 2 u are Re F(u, v) and Im F(u, v) up to u = (W
 * - 1) / 2. Of 5 by 5, with R and I for the two parts:
 *
 *     R(0,0)   R(1,0)   I(1,0)   R(2,0)   I(2,0)
 *     R(0,1)   R(1,1)   I(1,1)   R(2,1)   I(2,1)
 *     I(0,1)   R(1,2)   I(1,2)   R(2,2)   I(2,2)
 *     R(0,2)   R(1,3)   I(1,3)   R(2,3)   I(2,3)
 *     I(0,2)   R(1,4)   I(1,4)   R(2,4)   I(2,4)
 *
 * @param ppSpec           where the record's address goes; not written unless the status is vemiOk
 * @param roiSize          the size of the images
 * @param flag             the scale, one of the flags of vemiFFT
 * @param hint             any number; it changes nothing
 * @param pSpec            the record. Transforms only read it: any number of threads may share it.
 * @param pBufSize         the bytes of working memory that a transform wants
 * @param pSrc,srcStep     first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep     first pixel of the destination, and the bytes between its rows. It may begin where the source
 *                         does, with the same step; other overlaps are not allowed.
 * @param scaleFactor      see vemi.h; any int
 * @param pBuffer          working memory of the size that vemiDFTGetBufSize tells, at any address, of one call at a
 *                         time; or null: then the call allocates and frees as much
 *
 * **Records.** As with vemiFFT: R_32f for 32f, R_32s for 8u32s and 32s8u, C_32fc for 32fc. vemiDFTFree frees a record
 * and all that belongs to it.
 *
 * **Lengths and their cost.** A width or height is a product of prime factors. Those of 2, 3, 5 and 7 cost least, and a
 * prime factor p from 11 to 149 about p / 2 times as much as a 2. A larger one makes the whole length a convolution of
 * the next power of two above twice of it, about six times the work. So padding 1021 to 1024, or to 1050 = 2 * 3 * 5 *
 * 5 * 7, pays where the image allows it; rows or columns of 480, 1000, 1080 and 1920 are as good as powers of two.
 *
 * **Exactness.** The root mean square of the errors is about 5e-8 * sqrt(log2(W * H)) of that of the results, or less,
 * and with a prime factor above 7 twice that. The bits are the same in place and out of it, with a buffer and
 * without, at any alignment.
 *
 * **Statuses**, in the order of the tests. vemiDFTInitAlloc: ppSpec null; size; vemiErrFftFlag, no flag of vemiFFT;
 * vemiErrMemAlloc, no memory, or a buffer of 2^31 bytes or more (of lines of several million pixels, and of R_32s from
 * about 2^27 pixels on). vemiDFTFree and vemiDFTGetBufSize: null; vemiErrContext, a record of another kind, those of
 * vemiFFT included. Transforms: pSpec null; vemiErrContext; pSrc or pDst null; step; vemiErrMemAlloc, if pBuffer is
 * null and there is no memory.
 *
 * **Threads.** All forms run in the calling thread.
 *
 * Upright stripes, 40 pixels apart, taken out of an image of 1000 by 750 floats: they are F(25, 0) and its conjugate.
 *
 *     VemiDFTSpec_R_32f* spec;
 *     vemiDFTInitAlloc_R_32f(&spec, (VemiSize){1000, 750}, vemiFftScaleInv, vemiHintNone);
 *     vemiDFTFwd_RToPack_32f_C1R(image, 4000, image, 4000, spec, NULL);
 *     image[49] = image[50] = 0;
 *     vemiDFTInv_PackToR_32f_C1R(image, 4000, image, 4000, spec, NULL);
 *     vemiDFTFree_R_32f(spec);
 * @{
 */

/** The record of real transforms of floats; what it holds is the library's business. */
typedef struct VemiDFTSpec_R_32f VemiDFTSpec_R_32f;
/** The record of real transforms between integers. */
typedef struct VemiDFTSpec_R_32s VemiDFTSpec_R_32s;
/** The record of complex transforms. */
typedef struct VemiDFTSpec_C_32fc VemiDFTSpec_C_32fc;

VEMI_API VemiStatus vemiDFTInitAlloc_R_32f(VemiDFTSpec_R_32f** ppSpec, VemiSize roiSize, int flag, vemiHint hint);
VEMI_API VemiStatus vemiDFTInitAlloc_R_32s(VemiDFTSpec_R_32s** ppSpec, VemiSize roiSize, int flag, vemiHint hint);
VEMI_API VemiStatus vemiDFTInitAlloc_C_32fc(VemiDFTSpec_C_32fc** ppSpec, VemiSize roiSize, int flag, vemiHint hint);

VEMI_API VemiStatus vemiDFTFree_R_32f(VemiDFTSpec_R_32f* pSpec);
VEMI_API VemiStatus vemiDFTFree_R_32s(VemiDFTSpec_R_32s* pSpec);
VEMI_API VemiStatus vemiDFTFree_C_32fc(VemiDFTSpec_C_32fc* pSpec);

VEMI_API VemiStatus vemiDFTGetBufSize_R_32f(const VemiDFTSpec_R_32f* pSpec, int* pBufSize);
VEMI_API VemiStatus vemiDFTGetBufSize_R_32s(const VemiDFTSpec_R_32s* pSpec, int* pBufSize);
VEMI_API VemiStatus vemiDFTGetBufSize_C_32fc(const VemiDFTSpec_C_32fc* pSpec, int* pBufSize);

VEMI_API VemiStatus vemiDFTFwd_RToPack_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiDFTInv_PackToR_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                                const VemiDFTSpec_R_32f* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiDFTFwd_RToPack_8u32s_C1RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_8u32s_C3RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_8u32s_C4RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTFwd_RToPack_8u32s_AC4RSfs(const Vemi8u* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                     const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiDFTInv_PackToR_32s8u_C1RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32s8u_C3RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32s8u_C4RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_PackToR_32s8u_AC4RSfs(const Vemi32s* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                     const VemiDFTSpec_R_32s* pSpec, int scaleFactor, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiDFTFwd_CToC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep,
                                             const VemiDFTSpec_C_32fc* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDFTInv_CToC_32fc_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep,
                                             const VemiDFTSpec_C_32fc* pSpec, Vemi8u* pBuffer);

/** @} */

/**
 * @defgroup vemi_dct vemiDCT: the cosine transform
 *
 * Of images of W by H pixels, any size. With f(x, y) the image, c(0) = 1 / sqrt(N) and c(k) = sqrt(2 / N) for others, N
 * being W for u and H for v,
 *
 *     forward   F(u, v) = c(u) c(v) * sum of f(x, y) cos(pi (2x + 1) u / 2W) cos(pi (2y + 1) v / 2H)   over all x, y
 *     inverse   f(x, y) = sum of c(u) c(v) F(u, v) cos(pi (2x + 1) u / 2W) cos(pi (2y + 1) v / 2H)     over all u, v
 *
 * F(u, v) stands in column u of row v. There and back is the image, and both have the same sum of squares: F(0, 0) is
 * sqrt(W H) times the mean. An image of one row or column has the transform along the other axis; that of one pixel is
 * the pixel. Channels are transformed each by itself; AC4 forms leave the fourth element of each pixel as it is.
 *
 * The size is not an argument of a transform: it comes from a record, which a constructor makes once, one of the
 * direction. Records of 8 by 8 pixels transform as vemiDCT8x8 does, to the bit.
 *
 * @param ppSpec           where the record's address goes; not written unless the status is vemiOk
 * @param roiSize          W and H, from 1 on
 * @param hint             vemiHintAccurate asks for more working memory where W or H is a power of two from 1024 on;
 *                         results are the same
 * @param pSpec            the record. Transforms only read it: any number of threads may share it.
 * @param pSize            the bytes of working memory that a transform wants: about 20 to 48 for each pixel of the
 *                         longer side
 * @param pSrc,srcStep     first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep     first pixel of the destination, and the bytes between its rows. It may begin where the source
 *                         does, with the same step; other overlaps are not allowed.
 * @param pBuffer          working memory of the size that vemiDCTFwdGetBufSize or vemiDCTInvGetBufSize tells, at any
 *                         address, of one call at a time; or null: then the call allocates and frees as much
 *
 * **Exactness.** The root mean square of the errors is below 7e-8 * sqrt(2 + log2(W * H)) of that of the results. The
 * bits are the same in place and out of it, with a buffer and without, at any alignment.
 *
 * **Speed.** The smaller the prime factors of W and H, the faster; sides with a prime factor above 150, odd sides above
 * 2048 and powers of two from 8192 on are slower than their neighbours. A transform works in up to 128 KiB of the
 * stack.
 *
 * **Statuses**, in the order of the tests. Constructors: ppSpec null; size; vemiErrMemAlloc, no memory, or a buffer of
 * 2^31 bytes or more. Free and GetBufSize functions: null; vemiErrContext, no record of the direction. Transforms:
 * pSpec null; vemiErrContext; pSrc or pDst null; step; vemiErrMemAlloc, if pBuffer is null and there is no memory.
 *
 * **Threads.** All forms run in the calling thread.
 *
 * An image without its high frequencies:
 *
 *     vemiDCTFwdInitAlloc_32f(&forward, size, vemiHintNone);
 *     vemiDCTInvInitAlloc_32f(&inverse, size, vemiHintNone);
 *     vemiDCTFwd_32f_C1R(image, step, image, step, forward, NULL);
 *     vemiSet_32f_C1R(0, image + size.width / 2, step, (VemiSize){size.width - size.width / 2, size.height});
 *     vemiDCTInv_32f_C1R(image, step, image, step, inverse, NULL);
 * @{
 */

/** The record of cosine transforms, of one direction; what it holds is the library's business. */
typedef struct VemiDCTSpec_32f VemiDCTSpec_32f;

VEMI_API VemiStatus vemiDCTFwdInitAlloc_32f(VemiDCTSpec_32f** ppSpec, VemiSize roiSize, vemiHint hint);
VEMI_API VemiStatus vemiDCTInvInitAlloc_32f(VemiDCTSpec_32f** ppSpec, VemiSize roiSize, vemiHint hint);

VEMI_API VemiStatus vemiDCTFwdFree_32f(VemiDCTSpec_32f* pSpec);
VEMI_API VemiStatus vemiDCTInvFree_32f(VemiDCTSpec_32f* pSpec);

VEMI_API VemiStatus vemiDCTFwdGetBufSize_32f(const VemiDCTSpec_32f* pSpec, int* pSize);
VEMI_API VemiStatus vemiDCTInvGetBufSize_32f(const VemiDCTSpec_32f* pSpec, int* pSize);

VEMI_API VemiStatus vemiDCTFwd_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTFwd_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTFwd_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTFwd_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                        const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiDCTInv_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTInv_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTInv_32f_C4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                       const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiDCTInv_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                        const VemiDCTSpec_32f* pSpec, Vemi8u* pBuffer);

/** @} */

/**
 * @defgroup vemi_dct8x8 vemiDCT8x8: cosine transforms of blocks
 *
 * Of blocks of 8 by 8 elements, as codecs for pictures and films cut them. With x, y and u, v from 0 to 7,
 * c(0) = 1 / sqrt(8) and c(k) = 1 / 2 for others,
 *
 *     forward   F(u, v) = c(u) c(v) * sum of f(x, y) cos(pi (2x + 1) u / 16) cos(pi (2y + 1) v / 16)   over all x, y
 *     inverse   f(x, y) = sum of c(u) c(v) F(u, v) cos(pi (2x + 1) u / 16) cos(pi (2y + 1) v / 16)     over all u, v
 *
 * so that there and back is the block, and a block of one value s has F(0, 0) = 8 s and nothing else.
 *
 * A block without a step is 64 elements, row after row. C1R forms have it on one side only: pixels of an image, with
 * the bytes between its rows. I forms work in place; the others may do so too where both sides are blocks.
 *
 *     function                     from          to            computes
 *     vemiDCT8x8Fwd_32f            block         block         F, as exact as floats are
 *     vemiDCT8x8Inv_32f            block         block         f
 *     vemiDCT8x8Fwd_16s, _8u16s    block, image  block         F in fixed point
 *     vemiDCT8x8FwdLS_8u16s        image         block         F of the bytes plus addVal
 *     vemiDCT8x8Inv_16s, _16s8u    block         block, image  f in fixed point; bytes are limited to 0 to 255
 *     vemiDCT8x8InvLSClip_16s8u    block         image         f plus addVal, limited to 0 to 255, then to at least
 *                                                              clipMin, then to at most clipMax
 *     vemiDCT8x8Inv_4x4, _2x2_16s  block         block         f, as if all F but those of u, v below 4 or 2 were 0;
 *                                                              they are not looked at
 *
 * **Fixed point.** 16s forms are for sources from -256 to 255, bytes and differences of bytes, and for the coefficients
 * from -2048 to 2047 that the forward ones make of them; F and f are off by less than 2. They are integer arithmetic,
 * whose every bit is defined, also beyond these ranges: sums of elements saturate to 16 bits, products keep 16 bits,
 * the results of rows are rounded and saturated. addVal is added modulo 2^16; a level shift is -128 on the way there
 * and 128 on the way back.
 *
 * @param pSrc,pDst        64 elements, or the first of 8 rows of an image
 * @param srcStep,dstStep  bytes between the rows of an image, 1 or more
 * @param pSrcDst          a block that is overwritten
 * @param addVal           what is added, see above
 * @param clipMin,clipMax  bounds of the result; clipMax holds where they are in the wrong order
 *
 * **Statuses**, in the order of the tests: null; step.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiDCT8x8FwdLS_8u16s_C1R(picture, pictureStep, block, -128);
 *     vemiZigzagFwd8x8_16s_C1(block, scanned);
 * @{
 */

VEMI_API VemiStatus vemiDCT8x8Fwd_32f_C1(const Vemi32f pSrc[64], Vemi32f pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Fwd_32f_C1I(Vemi32f pSrcDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_32f_C1(const Vemi32f pSrc[64], Vemi32f pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_32f_C1I(Vemi32f pSrcDst[64]);

VEMI_API VemiStatus vemiDCT8x8Fwd_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Fwd_16s_C1I(Vemi16s pSrcDst[64]);
VEMI_API VemiStatus vemiDCT8x8Fwd_16s_C1R(const Vemi16s* pSrc, int srcStep, Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Fwd_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8FwdLS_8u16s_C1R(const Vemi8u* pSrc, int srcStep, Vemi16s pDst[64], Vemi16s addVal);

VEMI_API VemiStatus vemiDCT8x8Inv_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_16s_C1I(Vemi16s pSrcDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_16s_C1R(const Vemi16s pSrc[64], Vemi16s* pDst, int dstStep);
VEMI_API VemiStatus vemiDCT8x8Inv_16s8u_C1R(const Vemi16s pSrc[64], Vemi8u* pDst, int dstStep);
VEMI_API VemiStatus vemiDCT8x8InvLSClip_16s8u_C1R(const Vemi16s pSrc[64], Vemi8u* pDst, int dstStep, Vemi16s addVal,
                                                  Vemi8u clipMin, Vemi8u clipMax);

VEMI_API VemiStatus vemiDCT8x8Inv_4x4_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_4x4_16s_C1I(Vemi16s pSrcDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_2x2_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);
VEMI_API VemiStatus vemiDCT8x8Inv_2x2_16s_C1I(Vemi16s pSrcDst[64]);

/** @} */

/**
 * @defgroup vemi_zigzag vemiZigzag: the order in which coefficients are coded
 *
 * Blocks of 64 elements between their rows and the scan of JPEG, from low frequencies to high ones along the diagonals:
 *
 *      0  1  5  6 14 15 27 28
 *      2  4  7 13 16 26 29 42
 *      3  8 12 17 25 30 41 43
 *      9 11 18 24 31 40 44 53
 *     10 19 23 32 39 45 52 54
 *     20 22 33 38 46 51 55 60
 *     21 34 37 47 50 56 59 61
 *     35 36 48 49 57 58 62 63
 *
 * Fwd forms put the element of each place at the index that the table shows there; Inv forms go back.
 *
 * @param pSrc,pDst  64 elements each; they may not overlap
 *
 * **Statuses**: null. **Threads.** All forms run in the calling thread.
 *
 *     vemiZigzagFwd8x8_16s_C1(block, scanned);    // scanned[2] is block[8]
 * @{
 */

VEMI_API VemiStatus vemiZigzagFwd8x8_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);
VEMI_API VemiStatus vemiZigzagInv8x8_16s_C1(const Vemi16s pSrc[64], Vemi16s pDst[64]);

/** @} */

/**
 * @defgroup vemi_wavelet vemiWTFwd, vemiWTInv: one level of a wavelet transform
 *
 * Forward, an image of 2 W by 2 H becomes four of W by H: an approximation and three details. Inverse, they become the
 * image again. Further levels are further calls, on the approximation. The filters are the user's: two of them, a low
 * pass and a high pass, for each direction.
 *
 * With t the taps of a filter, n their number and a the anchor, along a row or a column s, counted from the region's
 * first pixel,
 *
 *     forward   c[x] = sum of t[k] * s[2 x + a - k]            over k = 0 to n - 1
 *     inverse   s[i] = sum of t[i + a - 1 - 2 m] * c[m]        over all m that lead to taps, of both filters
 *
 *                 vertical filter    horizontal filter
 *     Approx      low                low
 *     DetailX     high               low
 *     DetailY     low                high
 *     DetailXY    high               high
 *
 * Filters that give the image back without a shift, as (n, a) of low and high, forward and inverse:
 *
 *                             forward            inverse
 *     Haar                    (2, 1) (2, 1)      (2, 1) (2, 1)
 *     5/3                     (5, 2) (3, 2)      (3, 2) (5, 2)
 *     9/7                     (9, 4) (7, 4)      (7, 4) (9, 4)
 *     Daubechies of 4 taps    (4, a) (4, b)      (4, 4 - a) (4, 4 - b), a, b from 1 to 3, a - b even
 *
 * **Pixels read around the region.** There is no border handling (vemiCopy...Border functions make one). Let the larger
 * number of both filters count. Forward, of the source: n - 1 - a to the left of its region of 2 W by 2 H and above it,
 * a - 1 to the right and below. Inverse, of all four images: (n - a) / 2 to the left and above, a / 2 to the right and
 * below, rounded down.
 *
 * @param pSpec              where the record's address goes, not written unless the status is vemiOk; elsewhere the
 *                           record, of the function's own direction and channels. Transforms only read it: any number
 *                           of threads may share it.
 * @param pTapsLow,lenLow    the taps of the low pass, which are copied, and how many there are: 2 or more
 * @param anchorLow          0 to lenLow - 1
 * @param pTapsHigh,lenHigh,anchorHigh  the same of the high pass
 * @param pSize              the bytes of working memory that a transform wants: some KiB, whatever the image's size
 * @param pSrc,srcStep       first pixel of the region of 2 W by 2 H, and the bytes between rows
 * @param pDst,dstStep       the same of the result of the inverse
 * @param pApprox,approxStep,pDetailX,detailXStep,pDetailY,detailYStep,pDetailXY,detailXYStep  the four images
 * @param dstRoiSize,srcRoiSize  W and H, in pixels of the four images
 * @param pBuffer            working memory of the size that vemiWT...GetBufSize tells, at any address, of one call at a
 *                           time
 *
 * **Exactness.** Sums are of single precision, the products added from the first pixel to the last, vertically, then
 * horizontally: forward every second pixel from the first that either filter reads, then the rest; inverse low first.
 *
 * **Overlap.** What is written must not overlap with what is read.
 *
 * **Statuses**, in the order of the tests. InitAlloc: null; vemiErrSize, a length below 2; vemiErrAnchor;
 * vemiErrMemAlloc, no memory, or a buffer of 2^31 bytes or more. Free: null; vemiErrContext, a record of another kind.
 * GetBufSize: null; vemiErrContext. Transforms: pSpec null; vemiErrContext, also of a record in which both anchors are
 * 0; images or pBuffer null; size; step.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     const Vemi32f low[2] = {0.5f, 0.5f}, high[2] = {0.5f, -0.5f};
 *     VemiWTFwdSpec_32f_C1R* spec;
 *     int bytes;
 *     vemiWTFwdInitAlloc_32f_C1R(&spec, low, 2, 1, high, 2, 1);
 *     vemiWTFwdGetBufSize_C1R(spec, &bytes);
 *     Vemi8u* buffer = malloc(bytes);
 *     vemiWTFwd_32f_C1R(image, step, approx, half, x, half, y, half, xy, half, (VemiSize){320, 240}, spec, buffer);
 *     vemiWTFwdFree_32f_C1R(spec);
 * @{
 */

/** The record of a direction and a number of channels; what it holds is the library's business. */
typedef struct VemiWTFwdSpec_32f_C1R VemiWTFwdSpec_32f_C1R;
typedef struct VemiWTFwdSpec_32f_C3R VemiWTFwdSpec_32f_C3R; /**< the same */
typedef struct VemiWTInvSpec_32f_C1R VemiWTInvSpec_32f_C1R; /**< the same */
typedef struct VemiWTInvSpec_32f_C3R VemiWTInvSpec_32f_C3R; /**< the same */

VEMI_API VemiStatus vemiWTFwdInitAlloc_32f_C1R(VemiWTFwdSpec_32f_C1R** pSpec, const Vemi32f* pTapsLow, int lenLow,
                                               int anchorLow, const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh);
VEMI_API VemiStatus vemiWTFwdInitAlloc_32f_C3R(VemiWTFwdSpec_32f_C3R** pSpec, const Vemi32f* pTapsLow, int lenLow,
                                               int anchorLow, const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh);

VEMI_API VemiStatus vemiWTInvInitAlloc_32f_C1R(VemiWTInvSpec_32f_C1R** pSpec, const Vemi32f* pTapsLow, int lenLow,
                                               int anchorLow, const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh);
VEMI_API VemiStatus vemiWTInvInitAlloc_32f_C3R(VemiWTInvSpec_32f_C3R** pSpec, const Vemi32f* pTapsLow, int lenLow,
                                               int anchorLow, const Vemi32f* pTapsHigh, int lenHigh, int anchorHigh);

VEMI_API VemiStatus vemiWTFwdFree_32f_C1R(VemiWTFwdSpec_32f_C1R* pSpec);
VEMI_API VemiStatus vemiWTFwdFree_32f_C3R(VemiWTFwdSpec_32f_C3R* pSpec);
VEMI_API VemiStatus vemiWTInvFree_32f_C1R(VemiWTInvSpec_32f_C1R* pSpec);
VEMI_API VemiStatus vemiWTInvFree_32f_C3R(VemiWTInvSpec_32f_C3R* pSpec);

VEMI_API VemiStatus vemiWTFwdGetBufSize_C1R(const VemiWTFwdSpec_32f_C1R* pSpec, int* pSize);
VEMI_API VemiStatus vemiWTFwdGetBufSize_C3R(const VemiWTFwdSpec_32f_C3R* pSpec, int* pSize);
VEMI_API VemiStatus vemiWTInvGetBufSize_C1R(const VemiWTInvSpec_32f_C1R* pSpec, int* pSize);
VEMI_API VemiStatus vemiWTInvGetBufSize_C3R(const VemiWTInvSpec_32f_C3R* pSpec, int* pSize);

VEMI_API VemiStatus vemiWTFwd_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pApprox, int approxStep,
                                      Vemi32f* pDetailX, int detailXStep, Vemi32f* pDetailY, int detailYStep,
                                      Vemi32f* pDetailXY, int detailXYStep, VemiSize dstRoiSize,
                                      const VemiWTFwdSpec_32f_C1R* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiWTFwd_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pApprox, int approxStep,
                                      Vemi32f* pDetailX, int detailXStep, Vemi32f* pDetailY, int detailYStep,
                                      Vemi32f* pDetailXY, int detailXYStep, VemiSize dstRoiSize,
                                      const VemiWTFwdSpec_32f_C3R* pSpec, Vemi8u* pBuffer);

VEMI_API VemiStatus vemiWTInv_32f_C1R(const Vemi32f* pApprox, int approxStep, const Vemi32f* pDetailX, int detailXStep,
                                      const Vemi32f* pDetailY, int detailYStep, const Vemi32f* pDetailXY,
                                      int detailXYStep, VemiSize srcRoiSize, Vemi32f* pDst, int dstStep,
                                      const VemiWTInvSpec_32f_C1R* pSpec, Vemi8u* pBuffer);
VEMI_API VemiStatus vemiWTInv_32f_C3R(const Vemi32f* pApprox, int approxStep, const Vemi32f* pDetailX, int detailXStep,
                                      const Vemi32f* pDetailY, int detailYStep, const Vemi32f* pDetailXY,
                                      int detailXYStep, VemiSize srcRoiSize, Vemi32f* pDst, int dstStep,
                                      const VemiWTInvSpec_32f_C3R* pSpec, Vemi8u* pBuffer);

/** @} */

/**
 * @defgroup vemi_mul_pack vemiMulPack, vemiMulPackConj: products of packed spectra
 *
 * Packed spectra, as vemiFFT and vemiDFT make them, are multiplied number by number: the result packed is that of a
 * convolution, or with Conj that of a correlation. Of any width W and height H, F(u, v) stands in
 *
 *                                     real element                          pair of real and imaginary part
 *     columns 1 to 2 ((W - 1) / 2)                                          columns 2 u - 1 and 2 u of row v
 *     column 0: u = 0                 row 0: v = 0; row H - 1: v = H / 2    rows 2 v - 1 and 2 v
 *     column W - 1: u = W / 2         the same                              the same
 *
 * where column W - 1 is one of its own only if W is even, and a real element in row H - 1 only if H is even. Of 5 by 5:
 *
 *     R(0,0)   R(1,0) I(1,0)   R(2,0) I(2,0)
 *     R(0,1)   R(1,1) I(1,1)   R(2,1) I(2,1)
 *     I(0,1)   R(1,2) I(1,2)   R(2,2) I(2,2)
 *     R(0,2)   R(1,3) I(1,3)   R(2,3) I(2,3)
 *     I(0,2)   R(1,4) I(1,4)   R(2,4) I(2,4)
 *
 * Real elements are multiplied as such. A pair (a, b) of the first source and (c, d) of the second one, which in place
 * is the destination, give
 *
 *     MulPack       a c - b d, a d + b c
 *     MulPackConj   a c + b d, b c - a d       the conjugate is that of the image which is overwritten
 *
 * In 32f each product, sum and difference is rounded to single precision. Integer results are exact, times
 * 2^-scaleFactor, rounded down where that is below 1, and limited to their type. Channels are multiplied each by
 * itself; AC4 forms leave the fourth element of each pixel as it is.
 *
 * @param pSrc1,src1Step,pSrc2,src2Step,pSrc,srcStep  the sources
 * @param pDst,dstStep,pSrcDst,srcDstStep             the destination, which may be a source; other overlaps are not
 *                                                    allowed
 * @param roiSize      W and H
 * @param scaleFactor  any int
 *
 * **Statuses**, in the order of the tests: null, step, size.
 *
 * **Threads.** All forms run in the calling thread.
 *
 * How far `moved` lies from `picture`, two spectra of vemiFFTFwd_RToPack_32f_C1R: the largest pixel of the result, once
 * it has gone back by vemiFFTInv_PackToR_32f_C1R, stands in the place to which (0, 0) has moved.
 *
 *     vemiMulPackConj_32f_C1IR(moved, step, picture, step, size);
 * @{
 */

VEMI_API VemiStatus vemiMulPack_16s_C1RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_C3RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_C4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                           Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_AC4RSfs(const Vemi16s* pSrc1, int src1Step, const Vemi16s* pSrc2, int src2Step,
                                            Vemi16s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_C1IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_C3IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_C4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_16s_AC4IRSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pSrcDst, int srcDstStep,
                                             VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulPack_32s_C1RSfs(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                           Vemi32s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_C3RSfs(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                           Vemi32s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_C4RSfs(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                           Vemi32s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_AC4RSfs(const Vemi32s* pSrc1, int src1Step, const Vemi32s* pSrc2, int src2Step,
                                            Vemi32s* pDst, int dstStep, VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_C1IRSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_C3IRSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_C4IRSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                            VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMulPack_32s_AC4IRSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pSrcDst, int srcDstStep,
                                             VemiSize roiSize, int scaleFactor);

VEMI_API VemiStatus vemiMulPack_32f_C1R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_C3R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_C4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                        Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_AC4R(const Vemi32f* pSrc1, int src1Step, const Vemi32f* pSrc2, int src2Step,
                                         Vemi32f* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiMulPack_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiMulPackConj_32f_C1IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiMulPackConj_32f_C3IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiMulPackConj_32f_C4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiMulPackConj_32f_AC4IR(const Vemi32f* pSrc, int srcStep, Vemi32f* pSrcDst, int srcDstStep,
                                              VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_magnitude vemiMagnitude, vemiPhase, vemiPackToCplxExtend, vemiPolarToCart: spectra as pictures
 *
 *     vemiMagnitude          sqrt(re^2 + im^2) of complex pixels
 *     vemiPhase              the angle of (re, im), from -pi to pi, as the standard's atan2(im, re)
 *     vemiMagnitudePack      the magnitudes of a packed spectrum's W by H numbers, frequency 0 in the first pixel
 *     vemiPhasePack          their phases
 *     vemiPackToCplxExtend   all W by H numbers of a packed spectrum: F(W - u, H - v) is the conjugate of F(u, v)
 *     vemiPolarToCart        (m cos p, m sin p) of the magnitudes m in one plane and the phases p in another
 *
 * The packed layout is that of vemiMulPack. A pixel of C3 holds three complex numbers, or one element of three packed
 * arrays.
 *
 * **Exactness.** In 32f the products, the sum and the root of a magnitude are rounded to single precision; phase, sine
 * and cosine are within one unit in the last place of the correctly rounded value, for numbers of any size, and their
 * bits are the same on all processors. Integer results are computed in double precision, times 2^-scaleFactor, rounded
 * to nearest (ties to even) and limited to their type: (3, 4) at scale 1 is 2. The conjugate of a part -2^31 is 2^31 -
 * 1 in vemiPackToCplxExtend, and exact in the others.
 *
 * @param pSrc,srcStep         first pixel of the source, and the bytes between its rows
 * @param pSrcMagn,pSrcPhase   first pixels of magnitudes and phases; srcStep is the step of both
 * @param pDst,dstStep         the same of the destination; it must not overlap with a source
 * @param roiSize,dstRoiSize,srcSize  W and H
 * @param scaleFactor          any int
 *
 * **Statuses**, in the order of the tests: null, size, step. vemiMagnitudePack and vemiPhasePack return vemiErrNullPtr
 * too where memory for a row cannot be had.
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     vemiMagnitudePack_32f_C1R(spectrum, step, magnitudes, step, size);
 *     vemiLn_32f_C1IR(magnitudes, step, size);
 * @{
 */

VEMI_API VemiStatus vemiMagnitudePack_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitudePack_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitudePack_32s_C1RSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                 VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitudePack_32s_C3RSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                 VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitudePack_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize dstRoiSize);
VEMI_API VemiStatus vemiMagnitudePack_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize dstRoiSize);

VEMI_API VemiStatus vemiPhasePack_16s_C1RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhasePack_16s_C3RSfs(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhasePack_32s_C1RSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                             VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhasePack_32s_C3RSfs(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                             VemiSize dstRoiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhasePack_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize dstRoiSize);
VEMI_API VemiStatus vemiPhasePack_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize dstRoiSize);

VEMI_API VemiStatus vemiMagnitude_16sc16s_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitude_16sc16s_C3RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                                 VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitude_32sc32s_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                 VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitude_32sc32s_C3RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                                 VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiMagnitude_32fc32f_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);
VEMI_API VemiStatus vemiMagnitude_32fc32f_C3R(const Vemi32fc* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize);

VEMI_API VemiStatus vemiPhase_16sc16s_C1RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhase_16sc16s_C3RSfs(const Vemi16sc* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhase_32sc32s_C1RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                             VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhase_32sc32s_C3RSfs(const Vemi32sc* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                             VemiSize roiSize, int scaleFactor);
VEMI_API VemiStatus vemiPhase_32fc32f_C1R(const Vemi32fc* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiPhase_32fc32f_C3R(const Vemi32fc* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiPackToCplxExtend_32f32fc_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, Vemi32fc* pDst,
                                                     int dstStep);
VEMI_API VemiStatus vemiPackToCplxExtend_32s32sc_C1R(const Vemi32s* pSrc, VemiSize srcSize, int srcStep, Vemi32sc* pDst,
                                                     int dstStep);

VEMI_API VemiStatus vemiPolarToCart_32f32fc_P2C1R(const Vemi32f* pSrcMagn, const Vemi32f* pSrcPhase, int srcStep,
                                                  Vemi32fc* pDst, int dstStep, VemiSize roiSize);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
