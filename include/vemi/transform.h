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
 * time; or null: then the call allocates and frees as much
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

/* ---- Fourier transforms of any size ---- */

/* ---- Cosine transforms ---- */

/* ---- Wavelets ---- */

/* ---- Packed spectra ---- */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
