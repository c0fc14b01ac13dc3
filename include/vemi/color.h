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

/* ---- Luma and chroma --------------------------------------------------------------------------------------------- */

/**
 * @page vemi_luma_chroma Luma and chroma
 *
 * A pixel is brightness, luma Y, and two differences of colour, chroma, which are 128 where there is none. Two models:
 *
 *     YUV     Y = 0.299 R + 0.587 G + 0.114 B,  U = 0.492 (B - Y) + 128,  V = 0.877 (R - Y) + 128
 *     YCbCr   of ITU-R BT.601: Y from 16 (black) to 235, Cb and Cr from 16 to 240
 *
 * The eye sees chroma less sharply than luma, so pixels may share it:
 *
 *     in the name   chroma samples            of a picture of w by h pixels, rounded up
 *     (none)        one for each pixel        w     by h
 *     422           one for two in a row      w / 2 by h
 *     420           one for two by two        w / 2 by h / 2
 *     411           one for four in a row     w / 4 by h
 *
 * and stand in memory as
 *
 *     C3, AC4       one image, three bytes a pixel, or four, the last of which is not looked at and stays
 *     P3            three planes, by an array of three pointers; with three steps where pixels share chroma
 *     C2            one image, four bytes for two pixels: Y0 U Y1 V in YUV422 and YCbCr422, Cb Y0 Cr Y1 in CbYCr422
 *
 * No width or height needs to be even. A last column or row without a partner has chroma of its own; of the last pixel
 * of an odd row of C2 there are two bytes, Y and the first chroma (Y U, or Cb Y), and when it is read, it takes the
 * second chroma of the pair before it, or, in a row of one pixel, the first for both.
 *
 * Integers alone are computed with. x >> n is x / 2^n rounded down, mulhi(a, b) is (a b) >> 16, and every result is
 * limited to 0..255. Columns are counted from the region's left edge; the whole groups of eight of a row are often
 * worked by another rounding than the columns that are left over, so that the same colour may differ there by one.
 *
 * Members without R at the end have neither steps nor a region but a width and a height: rows follow each other without
 * a gap, of 3 * width bytes (which must not exceed 2^31 - 1), of width in planes, of (width + 1) / 2 where two pixels
 * share chroma. Of these, those of 422 with an even width count columns through the whole picture, as if it were one
 * row.
 */

/**
 * @defgroup vemi_rgb_to_yuv vemiRGBToYUV, vemiRGBToYUV422, vemiRGBToYUV420: RGB to YUV
 *
 * From red, green and blue to YUV. See @ref vemi_luma_chroma for layouts and words.
 *
 * **vemiRGBToYUV**, whole groups of eight columns:
 *
 *     Y = (9798 R + 19235 G + 3736 B) >> 15                     Y = 0.299 R + 0.587 G + 0.114 B
 *     U = ((-4817 R - 9470 G + 14287 B) >> 15) + 128            U = 0.492 (B - Y) + 128
 *     V = ((20152 R - 16876 G - 3277 B) >> 15) + 128            V = 0.877 (R - Y) + 128
 *
 * and the columns beyond them, from twice the luma:
 *
 *     Y2 = ((9798 R + 19235 G) >> 14) + ((3736 B) >> 14),  Y = Y2 >> 1
 *     U = mulhi(2 B - Y2, 16121) + 128
 *     V = mulhi(2 R - Y2, 28737) + 128
 *
 * **vemiRGBToYUV422**: Y and Y2 of each pixel as these; with S = (sum of both Y2) >> 1, a pair has
 *
 *     U = mulhi(sum of both B - S, 16121) + 128
 *     V = mulhi(sum of both R - S, 28737) + 128
 *
 * The last pixel of an odd row counts as both pixels of its pair; of C3C2R, its Y and U are written.
 *
 * **vemiRGBToYUV420**: Y and Y2 of each pixel as these; with S = (sum of the four Y2) >> 2, two by two pixels have
 *
 *     U = mulhi(((sum of the four B) >> 1) - S, 16121) + 128
 *     V = mulhi(((sum of the four R) >> 1) - S, 28737) + 128
 *
 * In the last column of an odd width and the last row of an odd height, one or two pixels share chroma. For n of them,
 * with L = 19595 R + 38470 G + 7471 B of each and the sums over all of them:
 *
 *     Y = L >> 16
 *     U = (((65536 sum of B - sum of L) >> 16) * 32244 >> (15 + n)) + 128
 *     V = (((65536 sum of R - sum of L) >> 16) * 57475 >> (15 + n)) + 128
 *
 * @param pSrc,srcStep     RGB: first pixel and bytes between rows; of P3R, an array of three pointers and the step of
 *                         all three
 * @param pDst,dstStep     YUV; of P3, arrays of three pointers and, where pixels share chroma, of three steps, in the
 *                         order Y, U, V
 * @param roiSize          size of the region in pixels
 * @param width,height     (without R) the same
 *
 * **Overlap.** vemiRGBToYUV of one layout on both sides may run in place (pDst equal to pSrc); else none.
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr (pSrc, pDst, an array of steps), vemiErrSize, vemiErrNullPtr
 * (a plane), vemiErrStep.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     Vemi8u* const planes[3] = {y, u, v};
 *     vemiRGBToYUV420_8u_C3P3(photo, planes, width, height);
 * @{
 */

VEMI_API VemiStatus vemiRGBToYUV_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV422_8u_C3C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV422_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                             const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV422_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3],
                                           const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV422_8u_C3P3(const Vemi8u* pSrc, Vemi8u* const pDst[3], int width, int height);
VEMI_API VemiStatus vemiRGBToYUV422_8u_P3(const Vemi8u* const pSrc[3], Vemi8u* const pDst[3], int width, int height);
VEMI_API VemiStatus vemiRGBToYUV420_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                             const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV420_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3],
                                           const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYUV420_8u_C3P3(const Vemi8u* pSrc, Vemi8u* const pDst[3], int width, int height);
VEMI_API VemiStatus vemiRGBToYUV420_8u_P3(const Vemi8u* const pSrc[3], Vemi8u* const pDst[3], int width, int height);
/** @} */

/**
 * @defgroup vemi_yuv_to_rgb vemiYUVToRGB, vemiYUV422ToRGB, vemiYUV420ToRGB, vemiYUV420ToBGR: YUV to RGB
 *
 * From YUV to red, green and blue. See @ref vemi_luma_chroma for layouts and words. With u = 8 (U - 128), v = 8 (V -
 * 128):
 *
 *     R = Y + mulhi(v, 9339)                                    R = Y + 1.140 (V - 128)
 *     G = Y + mulhi(u, -3228) + mulhi(v, -4760)                 G = Y - 0.394 (U - 128) - 0.581 (V - 128)
 *     B = Y + mulhi(u, 16646)                                   B = Y + 2.032 (U - 128)
 *
 * **Four off.** In the fourth and the eighth pixel of each whole group of eight columns, R gains mulhi(u, 4), which is
 * -1 where U < 128, and G has -3232 in the place of -3228. So in vemiYUVToRGB but AC4R, and in 420 but P3AC4R.
 *
 * **Exact.** Some pixels are computed in one piece, with c = U - 128, d = V - 128:
 *
 *     R = (65536 Y + 74711 d) >> 16
 *     G = (65536 Y - 25821 c - 38076 d) >> 16
 *     B = (65536 Y + 133169 c) >> 16
 *
 * In 422 these are the columns beyond the whole groups of eight; in 420 the last column of an odd width and the last
 * row of an odd height.
 *
 * **P3AC4R** has 9338, -3227 and -4759 in the place of 9339, -3228 and -4760, and writes 0 to the fourth channel.
 *
 * @param pSrc,srcStep     YUV: first pixel and bytes between rows; of P3, arrays of three pointers and, where pixels
 *                         share chroma, of three steps, in the order Y, U, V
 * @param pDst,dstStep     RGB, or BGR; of P3R, an array of three pointers and the step of all three
 * @param roiSize          size of the region in pixels
 * @param width,height     (without R) the same
 *
 * **Overlap.** vemiYUVToRGB of one layout on both sides may run in place (pDst equal to pSrc); else none.
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr (pSrc, pDst, an array of steps), vemiErrSize, vemiErrNullPtr
 * (a plane), vemiErrStep.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     const Vemi8u* const planes[3] = {y, u, v};
 *     const int steps[3] = {yStep, uStep, vStep};
 *     vemiYUV420ToRGB_8u_P3C3R(planes, steps, photo, photoStep, size);
 * @{
 */

VEMI_API VemiStatus vemiYUVToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUVToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUVToRGB_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);
VEMI_API VemiStatus vemiYUVToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiYUV422ToRGB_8u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiYUV422ToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                             int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV422ToRGB_8u_P3AC4R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                              int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV422ToRGB_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* const pDst[3],
                                           int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV422ToRGB_8u_P3C3(const Vemi8u* const pSrc[3], Vemi8u* pDst, int width, int height);
VEMI_API VemiStatus vemiYUV422ToRGB_8u_P3(const Vemi8u* const pSrc[3], Vemi8u* const pDst[3], int width, int height);

VEMI_API VemiStatus vemiYUV420ToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                             int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB_8u_P3AC4R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                              int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* const pDst[3],
                                           int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB_8u_P3C3(const Vemi8u* const pSrc[3], Vemi8u* pDst, int width, int height);
VEMI_API VemiStatus vemiYUV420ToRGB_8u_P3(const Vemi8u* const pSrc[3], Vemi8u* const pDst[3], int width, int height);

VEMI_API VemiStatus vemiYUV420ToBGR_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                             int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_rgb_to_ycbcr vemiRGBToYCbCr, vemiRGBToYCbCr422, vemiRGBToYCbCr420: RGB to YCbCr
 *
 * From red, green and blue to YCbCr. See @ref vemi_luma_chroma for layouts and words. Rounded to nearest:
 *
 *     Y  = (16843 R + 33030 G + 6423 B + 0x108000) >> 16        Y  = 0.257 R + 0.504 G + 0.098 B + 16
 *     Cb = (-9699 R - 19071 G + 28770 B + 0x808000) >> 16       Cb = -0.148 R - 0.291 G + 0.439 B + 128
 *     Cr = (28770 R - 24117 G - 4653 B + 0x808000) >> 16        Cr = 0.439 R - 0.368 G - 0.071 B + 128
 *
 * **vemiRGBToYCbCr** AC4R is this; C3R and P3R in the columns beyond whole groups of eight, which have
 *
 *     Y  = ((((8421 R + 16515 G) >> 11) + ((3211 B) >> 11)) >> 4) + 16
 *     Cb = ((((-4850 R - 9535 G) >> 11) + ((14385 B) >> 11)) >> 4) + 128
 *     Cr = ((((14385 R - 12059 G) >> 11) + ((-2327 B) >> 11)) >> 4) + 128
 *
 * **vemiRGBToYCbCr422**, whole groups of four columns: Y as in these groups of eight; with the sums R, G, B of a pair's
 * two pixels
 *
 *     Cb = ((-4850 R - 9535 G + 14385 B) >> 16) + 128
 *     Cr = ((14385 R - 12059 G - 2327 B) >> 16) + 128
 *
 * A pair that is left over has
 *
 *     Y  = (16843 R + 33030 G + 6423 B + 0x100000) >> 16        of each pixel
 *     Cb = (-9699 R - 19071 G + 28770 B + 0x1010000) >> 17      of the sums
 *     Cr = (28770 R - 24117 G - 4653 B + 0x1010000) >> 17
 *
 * and the last pixel of an odd row, of which two bytes are written:
 *
 *     Y  = (16842 R + 33030 G + 6422 B + 0x100000) >> 16
 *     Cb = (-9699 R - 19070 G + 28770 B + 0x800000) >> 16
 *
 * **vemiRGBToYCbCr420**, with the sums R, G, B of two by two pixels for chroma:
 *
 *     Y  = (mulhi(128 R, 1052) + mulhi(128 G, 2064) + mulhi(128 B, 401) + 132) >> 3       of each pixel
 *     Cb = (mulhi(32 R, -607) + mulhi(32 G, -1192) + mulhi(32 B, 1798) + 1028) >> 3       of the sums
 *     Cr = (mulhi(32 R, 1798) + mulhi(32 G, -1508) + mulhi(32 B, -291) + 1028) >> 3
 *
 * In the last column of an odd width and the last row of an odd height, Y is rounded to nearest, and so are Cb and Cr
 * of the corner's one pixel; of two pixels they come from the sums, as in the pair above but with 0x1004000 for
 * 0x1010000.
 *
 * @param pSrc,srcStep     RGB: first pixel and bytes between rows; of P3, an array of three pointers and the step of
 *                         all three
 * @param pDst,dstStep     YCbCr; of P3R, an array of three pointers and the step of all three; in 420, of C3P3R, arrays
 *                         of three pointers and of three steps, in the order Y, Cb, Cr
 * @param roiSize          size of the region in pixels
 *
 * **Overlap.** vemiRGBToYCbCr of one layout on both sides may run in place (pDst equal to pSrc); else none.
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr (pSrc, pDst, an array of steps), vemiErrSize, vemiErrNullPtr
 * (a plane), vemiErrStep.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     vemiRGBToYCbCr422_8u_C3C2R(photo, photoStep, frame, 2 * size.width, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToYCbCr_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCbCr_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCbCr_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCbCr422_8u_C3C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCbCr422_8u_P3C2R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCbCr420_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                               const int dstStep[3], VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_ycbcr_to_rgb vemiYCbCrToRGB, vemiYCbCr422ToRGB, vemiYCbCr420ToRGB, vemiYCbCr411ToBGR: YCbCr to RGB
 *
 * From YCbCr to red, green and blue, of vemiYCbCr420ToBGR and vemiYCbCr411ToBGR with blue first. See
 * @ref vemi_luma_chroma for layouts and words. With y = 76284 (Y - 16), c = Cb - 128, d = Cr - 128:
 *
 *     R = (y + 104595 d) >> 16                                  R = 1.164 (Y - 16) + 1.596 d
 *     G = (y - 25690 c - 53281 d) >> 16                         G = 1.164 (Y - 16) - 0.392 c - 0.813 d
 *     B = (y + 132186 c) >> 16                                  B = 1.164 (Y - 16) + 2.017 c
 *
 * **Groups of eight.** Where pixels share chroma, whole groups of eight columns are computed from products of 16 bits,
 * with y = mulhi(128 (Y - 16), 9535), cb = 128 (Cb - 128), cr = 128 (Cr - 128):
 *
 *     R = (y + mulhi(cr, 13074) + 8) >> 4
 *     G = (y - mulhi(cb, 3211) - mulhi(cr, 6660) + 8) >> 4
 *     B = (y + mulhi(cb, 16523) + 8) >> 4
 *
 * but not in the last row of an odd height of 420. 411 has numbers of its own, y = 76294 (Y - 16) and 25625 in the
 * place of 25690, and in whole groups of eight, with y = mulhi(128 (Y - 16), 9536),
 *
 *     R = (y + mulhi(cr, 13074)) >> 4
 *     G = (y + mulhi(cb, -3203) + mulhi(cr, -6660)) >> 4
 *     B = (y + mulhi(cb, 16523)) >> 4
 *
 * **vemiYCbCr422ToRGB_8u_C2C3R of width 1** has offsets of its own. With the one chroma byte C:
 *
 *     R = (76284 Y + 104595 C - 14608761) >> 16
 *     G = (76284 Y - 78971 C + 8887730) >> 16
 *     B = (76284 Y + 132186 C - 18140365) >> 16
 *
 * @param pSrc,srcStep     YCbCr: first pixel and bytes between rows; of P3, arrays of three pointers and, where pixels
 *                         share chroma, of three steps, in the order Y, Cb, Cr
 * @param pDst,dstStep     RGB, or BGR; of P3R, an array of three pointers and the step of all three
 * @param roiSize          size of the region in pixels
 * @param alpha            (P3C4R) the fourth channel of all pixels
 *
 * **Overlap.** vemiYCbCrToRGB of one layout on both sides may run in place (pDst equal to pSrc); else none.
 *
 * **Statuses**, in the order of the tests: vemiErrNullPtr (pSrc, pDst, an array of steps), vemiErrSize, vemiErrNullPtr
 * (a plane), vemiErrStep. vemiYCbCr411ToBGR does not look at the steps, which may be negative: such an image begins
 * with the row at the highest address.
 *
 * **Threads.** vemiYCbCr420ToRGB and vemiYCbCr420ToBGR share the pairs of rows among a team; all others run in the
 * calling thread.
 *
 *     vemiYCbCr422ToRGB_8u_C2C3R(frame, frameStep, photo, photoStep, size);
 * @{
 */

VEMI_API VemiStatus vemiYCbCrToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr422ToRGB_8u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                               int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr420ToRGB_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                               int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr420ToBGR_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                               int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr411ToBGR_8u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                               int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToBGR_8u_P3C4R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                               int dstStep, VemiSize roiSize, Vemi8u alpha);
/** @} */

/**
 * @defgroup vemi_rgb_to_cbycr vemiRGBToCbYCr422, vemiRGBToCbYCr422Gamma, vemiBGRToCbYCr422: RGB to CbYCr
 *
 * From red, green and blue to pairs of pixels in the order Cb Y0 Cr Y1. See @ref vemi_luma_chroma for words. Of each
 * pixel, and of the sums of chroma weights in the next lines:
 *
 *     Y = (16843 R + 33030 G + 6423 B + 0x108000) >> 16
 *     cb = -9699 R - 19071 G + 28770 B
 *     cr = 28770 R - 24117 G - 4653 B
 *
 * **vemiRGBToCbYCr422** filters chroma along the row, by weights of 1/4, 1/2, 1/4 around the first pixel x of a pair:
 *
 *     Cb = ((cb(x - 1) >> 2) + (cb(x) >> 1) + (cb(x + 1) >> 2) + 0x807fff) >> 16,  Cr alike
 *
 * In front of the row there is nothing, so that the first pair of a row is less saturated than the others.
 *
 * **vemiRGBToCbYCr422Gamma** does the same with signals in the place of light: R, G and B go through the transfer curve
 * of ITU-R BT.709 first, as in vemiGammaFwd_8u_C3R.
 *
 * **vemiBGRToCbYCr422** has pixels B, G, R, alpha, whose alpha is not looked at, and averages chroma, with the sums of
 * a pair's cb and cr:
 *
 *     Cb = (cb + 0x1010000) >> 17
 *     Cr = (cr + 0x100fffe) >> 17
 *
 * Of the last pixel of an odd row, Cb = (cb + 0x808000) >> 16 and Y are written, and no Cr.
 *
 * @param pSrc,srcStep     first pixel and bytes between rows
 * @param pDst,dstStep     the same of the pairs, two bytes a pixel
 * @param roiSize          size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h). vemiBGRToCbYCr422 does not look at the
 * steps, which may be negative: such an image begins with the row at the highest address.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     vemiBGRToCbYCr422_8u_AC4C2R(screen, screenStep, frame, frameStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToCbYCr422_8u_C3C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToCbYCr422Gamma_8u_C3C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToCbYCr422_8u_AC4C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_cbycr_to_rgb vemiCbYCr422ToRGB, vemiCbYCr422ToBGR: CbYCr to RGB
 *
 * From pairs of pixels in the order Cb Y0 Cr Y1 to red, green and blue. See @ref vemi_luma_chroma for words, and for
 * the last pixel of an odd row. With y = 76282 Y - 1187744, which is 1.164 (Y - 16) rounded to nearest, c = Cb - 128,
 * d = Cr - 128:
 *
 *     R = (y + 104593 d) >> 16
 *     G = (y - 25689 c - 53279 d) >> 16
 *     B = (y + 132184 c) >> 16
 *
 * @param pSrc,srcStep     first pair and bytes between rows
 * @param pDst,dstStep     first pixel and bytes between rows: R, G, B, or B, G, R and alpha
 * @param roiSize          size of the region in pixels
 * @param alpha            (C2C4R) the fourth channel of all pixels
 *
 * **Overlap.** pDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: null, size (see status.h). Steps are not looked at and may be negative: such
 * an image begins with the row at the highest address.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     vemiCbYCr422ToBGR_8u_C2C4R(frame, frameStep, screen, screenStep, size, 255);
 * @{
 */

VEMI_API VemiStatus vemiCbYCr422ToRGB_8u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize);
VEMI_API VemiStatus vemiCbYCr422ToBGR_8u_C2C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                               VemiSize roiSize, Vemi8u alpha);

/** @} */

/**
 * @defgroup vemi_ycc vemiRGBToYCC, vemiYCCToRGB: the photographic model YCC
 *
 * Luma and two chroma values of a photograph, scaled so that light beyond white still fits. With values from 0 to 1:
 *
 *     l  = 0.299 R + 0.587 G + 0.114 B         y = 1.3584 Y
 *     Y  = 0.7132668 l                         c = 2.2179 (C1 - K1),  d = 1.8215 (C2 - K2)
 *     C1 = 0.43686 (B - l) + K1                R = y + d
 *     C2 = 0.53192 (R - l) + K2                G = y - 0.194 c - 0.509 d
 *                                              B = y + c
 *
 * White is Y = 0.713; grey has C1 = K1 and C2 = K2, on the scale of the type:
 *
 *     type  K1         K2         results
 *     8u    156        137        of integers, see below
 *     16u   40092      35209      truncated towards zero, limited to 0..65535
 *     16s   40092      35209      as 16u of values 32768 higher: added before, subtracted from the float afterwards,
 *                                 which is then truncated towards zero and limited to -32768..32767
 *     32f   0.6117647  0.5372549  YCC as it is; RGB limited to 0..1, a NaN becomes 0
 *
 * 16u, 16s and 32f are computed in single precision, sums from left to right as written.
 *
 * **8u** has two arithmetics: one for whole groups of eight columns from the row's left end, one for the columns that
 * are left, so that the same colour may differ there by one. x >> n is x / 2^n rounded down, mulhi(a, b) = (a b) >> 16.
 *
 *     groups      l = mulhi(2^8 R, 4898) + mulhi(2^8 G, 9617) + mulhi(2^8 B, 1867)
 *                 Y  = mulhi(l, 2921) >> 2
 *                 C1 = (mulhi(2^6 B - l, 1789) + 624) >> 2
 *                 C2 = (mulhi(2^6 R - l, 2178) + 548) >> 2
 *     the rest    L = 4898 R + 9617 G + 1867 B
 *                 Y  = ((L >> 10) 2921) >> 16
 *                 C1 = (((2^14 B - L) >> 10) 1789 >> 16) + 156
 *                 C2 = (((2^14 R - L) >> 10) 2178 >> 16) + 137
 *
 *     groups      y = mulhi(2^8 Y, 5563), c = mulhi(2^7 (C1 - 156), 18168), d = mulhi(2^7 (C2 - 137), 14921)
 *                 R = (y + d) >> 4, B = (y + c) >> 4
 *                 G = ((y >> 1) + mulhi(c, -6357) + mulhi(d, -16679)) >> 3
 *     the rest    a = 5564 Y, c = 9084 (C1 - 156), d = 7460 (C2 - 137)
 *                 R = (a + d) >> 12, B = (a + c) >> 12
 *                 G = (2^4 a - 794 (c >> 8) - 2084 (d >> 8)) >> 16;  all limited to 0..255
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows; channels R, G, B or Y, C1, C2
 * @param pDst,dstStep  the same of the destination; AC4 leaves its fourth channel as it is
 * @param roiSize       size of the region in pixels
 *
 * **Overlap.** pDst may be pSrc with the same step. Regions that overlap in any other way give undefined results.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** Rows are shared among the threads of a team, in one parallel region.
 *
 *     vemiRGBToYCC_8u_C3R(photo, photoStep, ycc, yccStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToYCC_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToYCC_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiYCCToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiYCCToRGB_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_gray vemiRGBToGray, vemiColorToGray: one channel out of three
 *
 *     pDst = w0 R + w1 G + w2 B
 *
 * with the weights 0.299, 0.587, 0.114 (vemiRGBToGray) or those of the caller (vemiColorToGray: any channels, any
 * weights). C3C1 and AC4C1 tell the source's layout; the fourth channel of AC4 is not looked at.
 *
 * **8u**: integers with 12 bits behind the point. A caller's weight c becomes w = c * 4096 + 0.5, truncated, or -2^31
 * where that does not fit in 32 bits; the fixed ones are 1225, 2404 and 467. Whole groups of eight columns from the
 * row's left end are worked by another arithmetic than the columns that are left; x >> n is x / 2^n rounded down:
 *
 *     groups     s = (2^8 R w0 >> 16) + (2^8 G w1 >> 16) + (2^8 B w2 >> 16), with the lower 16 bits of each weight, as
 *                a number without sign, and sums limited to 65535; s >> 4, limited to 255
 *     the rest   (w0 R + w1 G + w2 B) >> 12, of which the lower 8 bits are stored
 *
 * So white is 254 in groups and 255 in the rest, by the fixed weights.
 *
 * **16u, 16s, 32f**: in single precision, sums from left to right; 32f as it comes. 16u is truncated towards zero, and
 * the lower 16 bits of the integer are stored. 16s is computed with channels 32768 higher, and 32768 is subtracted from
 * the float before it is truncated towards zero: of whole groups of four columns the integer is limited to
 * -32768..32767, of the columns that are left its lower 16 bits are stored. What no 32-bit integer holds, and a NaN, is
 * -2^31.
 *
 * @param pSrc,srcStep  first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep  first pixel of the destination, one channel, and the bytes between its rows
 * @param roiSize       size of the region in pixels
 * @param coeffs        (vemiColorToGray) weights of the three channels
 *
 * **Overlap.** pDst does not overlap pSrc.
 *
 * **Statuses**, in the order of the tests: null (coeffs among the pointers), size, step (see status.h).
 *
 * **Threads.** All members run in the calling thread.
 *
 *     const Vemi32f luminance[3] = {0.2126f, 0.7152f, 0.0722f};   // ITU-R BT.709
 *     vemiColorToGray_8u_C3C1R(photo, photoStep, grey, greyStep, size, luminance);
 * @{
 */

VEMI_API VemiStatus vemiRGBToGray_8u_C3C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_8u_AC4C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_16u_C3C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_16u_AC4C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_16s_C3C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_16s_AC4C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                             VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_32f_C3C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                            VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToGray_32f_AC4C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize);

VEMI_API VemiStatus vemiColorToGray_8u_C3C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_8u_AC4C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_16u_C3C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_16u_AC4C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_16s_C3C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_16s_AC4C1R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_32f_C3C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const Vemi32f coeffs[3]);
VEMI_API VemiStatus vemiColorToGray_32f_AC4C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                               VemiSize roiSize, const Vemi32f coeffs[3]);

/** @} */

/* ---- Perceptual and device spaces ---- */

/**
 * @defgroup vemi_xyz vemiRGBToXYZ, vemiXYZToRGB: CIE XYZ
 *
 * Linear RGB with the primaries of ITU-R BT.709 and the white D65:
 *
 *     X = 0.412453 R + 0.35758  G + 0.180423 B        R =  3.240479 X - 1.53715  Y - 0.498535 Z
 *     Y = 0.212671 R + 0.71516  G + 0.072169 B        G = -0.969256 X + 1.875991 Y + 0.041556 Z
 *     Z = 0.019334 R + 0.119193 G + 0.950227 B        B =  0.055648 X - 0.204043 Y + 1.057311 Z
 *
 * **32f.** In single precision, from left to right. To XYZ, Z is limited to 0..1 and the others are as computed; to
 * RGB, all three are limited. A limited NaN becomes 0.
 *
 * **16u.** The same sums, cut off and limited to 0..65535: Z of white is 65535. **16s.** The 16u conversion of the
 * elements plus 32768, less 32768.
 *
 * **8u.** In integers, with >> rounding down. In the whole groups of eight columns, from the left end of each row:
 *
 *     X = ((13515 R + 11717 G) >> 15) + ((5912 B) >> 15)         R = ((26546 X - 12591 Y) >> 13) + ((-4083 Z) >> 13)
 *     Y = ((6969 R + 23434 G) >> 15) + ((2365 B) >> 15)          G = ((-7939 X + 15368 Y) >> 13) + ((340 Z) >> 13)
 *     Z = ((634 R + 3906 G) >> 15) + ((31137 B) >> 15)           B = ((456 X - 1671 Y) >> 13) + ((8661 Z) >> 13)
 *
 * and in the columns that are left:
 *
 *     X = (27030 R + 23434 G + 11824 B) >> 16                    R = (212368 X - 100738 Y - 32671 Z) >> 16
 *     Y = (13937 R + 46868 G + 4729 B) >> 16                     G = (-63521 X + 122944 Y + 2723 Z) >> 16
 *     Z = (1267 R + 7811 G + 62274 B) >> 16                      B = (3646 X - 13372 Y + 69291 Z) >> 16
 *
 * all limited to 0..255. A colour may differ by one between the two.
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
 *     vemiRGBToXYZ_32f_C3R(rgb, rgbStep, xyz, xyzStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToXYZ_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToXYZ_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiXYZToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiXYZToRGB_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_luv vemiRGBToLUV, vemiLUVToRGB: CIE L*u*v*
 *
 * Lightness and two opponent colours of linear RGB. X, Y and Z are those of vemiRGBToXYZ, unlimited, and the white is
 * u_n = 0.197839, v_n = 0.468342:
 *
 *     L = 116 Y^(1/3) - 16   for Y above 0.01
 *         903.3 Y            else
 *     D = X + 15 Y + 3 Z,    u' = 4 X / D,    v' = 9 Y / D
 *     U = 13 L (u' - u_n),   V = 13 L (v' - v_n)
 *
 * **32f.** In single precision as written, from left to right, with a cube root that is rounded as an exact one. Where
 * Y is 0, u' = v' = 0. Nothing is limited.
 *
 * **16u.** L 655.35, (U + 134) 185.12712 and (V + 140) 250.13359, cut off; Y above 655.35 has a cube root, from a table
 * of 128 roots and six terms of the binomial series. 1 / D is the approximate reciprocal that vemiRGBToHSV describes,
 * after a Newton step. Black gives 0, 0, 0. **16s.** The 16u conversion of the elements plus 32768, less 32768.
 *
 * **8u.** L 255 / 100 from a table, rounded, by (6969 R + 23434 G + 2365 B + 16384) >> 15. With X, Y and Z in the
 * weights of vemiRGBToXYZ for bytes, unshifted, and the plain approximate reciprocal of D,
 *
 *     U8 = (u' - u_n) (3.6723163 L8) + 96.90396        that is (U + 134) 255 / 354
 *     V8 = (v' - v_n) (4.961832 L8) + 136.7939         that is (V + 140) 255 / 262
 *
 * cut off. In the whole groups of eight columns, from the left end of each row, the third column of each four has
 * 136.2596 in the place of 136.7939.
 *
 * **Back.** With L from 0 to 100, U and V as above:
 *
 *     Y = ((L + 16) / 116)^3,   t = Y / (V / (13 L) + v_n)
 *     X = 2.25 t (U / (13 L) + u_n),   Z = 3 t - 5 Y - X / 3
 *
 * and R, G and B from these as in vemiXYZToRGB for floats. 32f results are limited to 0..1, and all three are 0 where L
 * is below 9.033; a NaN becomes 0. In the other types they are cut off and limited to the type's range, and 0 where L
 * is at most 9, with
 *
 *     8u     L = 0.39215687 L8,      U = 1.3882353 U8 - 134,      V = 1.027451 V8 - 140,       Y 255
 *     16u    L = 0.0015259022 L16,   U = 0.0054016938 U16 - 134,   V = 0.0039978637 V16 - 140,  Y 65535
 *
 * 0.00862069 for 1 / 116, and approximate reciprocals for 1 / (13 L) and for the divisor of t: plain ones in 8u, after
 * a Newton step in 16u. 16s is 16u less 32768.
 *
 *     8u    RGB (255, 255, 255)   LUV 255  96 136        RGB (255, 0, 0)   LUV 136 223 173
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
 *     vemiRGBToLUV_8u_C3R(rgb, rgbStep, luv, luvStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToLUV_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToLUV_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiLUVToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiLUVToRGB_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

/** @} */

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
 *     RGB (255, 255, 0)     HSV  43 255 255       (42.51)
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

/**
 * @defgroup vemi_hls vemiRGBToHLS, vemiHLSToRGB, vemiBGRToHLS, vemiHLSToBGR: hue, lightness, saturation
 *
 * The double hexcone. With M = max(R, G, B), m = min(R, G, B) and d = M - m, of channels from 0 to 1:
 *
 *     L = (M + m) / 2
 *     S = d / (M + m)        up to L = 1/2
 *         d / (2 - M - m)    above
 *     H = 60 (G - B) / d            where R is the largest; 360 is added to a result below 0
 *         60 (B - R) / d + 120      where G is
 *         60 (R - G) / d + 240      where B is
 *
 * in degrees. Of several largest channels R counts before G and G before B. A grey pixel (d = 0) has H = S = 0.
 *
 * **Back.** Where S is 0, all three are L. Otherwise
 *
 *     m2 = L (1 + S)      up to L = 1/2
 *          L + S - L S    above
 *     m1 = 2 L - m2
 *     g(x) = m1 + (m2 - m1) x / 60 below 60, m2 below 180, m1 + (m2 - m1) (240 - x) / 60 below 240, m1 from there on
 *     R = g(H + 120),   G = g(H),   B = g(H - 120)
 *
 * where 360 is taken off H + 120 above 360, and added to H - 120 below 0.
 *
 * **32f.** In single precision as written, from left to right; H is divided by 360, so that all three run from 0 to 1,
 * and multiplied with 360 on the way back. d up to 2^-23 counts as grey. Nothing is limited: colours beyond 0 to 1
 * follow the same formulas, and NaNs and infinities those of IEEE 754.
 *
 * **8u, 16u.** full is 255 or 65535: H full / 360, L full and S full, each cut off. L is (M + m) / 2 of the integers.
 * Quotients are products with the approximate reciprocal that vemiRGBToHSV describes: in S the plain one, in H the one
 * after a Newton step. Back, H 360 / full, L / full and S / full go through the ramps in single precision, with
 * 0.01666667 for 1 / 60, and the results times `full` are cut off. Where S is 0, L is copied.
 *
 *     8u    RGB (255, 0, 0)      HLS   0 127 254        (d / (M + m) is 0.9998 to 12 bits)
 *           RGB (0, 0, 255)      HLS 170 127 254
 *           RGB (128, 128, 128)  HLS   0 128   0
 *
 * **16s.** The 16u conversion of the elements plus 32768, less 32768.
 *
 * **vemiBGRToHLS, vemiHLSToBGR.** Bytes, with the channels in the order B, G, R and H, L, S, in many layouts. The same
 * formulas with true quotients, in single precision: channels are divided by 255, results multiplied with 255 (H with
 * 255 / 360), 1e-07 is added in double precision, and the sum is cut off. Of source and destination,
 *
 *     C3P3    interleaved pixels to three planes        AC4P4    four channels to four planes
 *     P3C3    three planes to interleaved pixels        AP4C4    four planes to four channels
 *     P3      planes to planes                          AP4      four planes to four planes
 *
 * The forms of four channels or planes copy the fourth. AC4 alone (vemiBGRToHLS_8u_AC4R, and all AC4 forms of
 * vemiRGBToHLS and vemiHLSToRGB) leaves the destination's fourth channel as it is.
 *
 * @param pSrc,srcStep    first pixel of the source, and the bytes between its rows; of planes, an array of their first
 *                        pixels, and the one step of all
 * @param pDst,dstStep    the same of the destination
 * @param roiSize         size of the region in pixels
 *
 * **Overlap.** The destination does not overlap the source, unless it is the same image in the same layout.
 *
 * **Statuses**, in the order of the tests: null (with all plane pointers), size, step (see status.h).
 *
 * **Threads.** Rows are shared out among an OpenMP team.
 *
 *     vemiRGBToHLS_8u_C3R(rgb, rgbStep, hls, hlsStep, size);
 *     vemiBGRToHLS_8u_C3P3R(bgr, bgrStep, hueLightnessSaturation, planeStep, size);
 * @{
 */

VEMI_API VemiStatus vemiRGBToHLS_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiRGBToHLS_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiHLSToRGB_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_16s_C3R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_16s_AC4R(const Vemi16s* pSrc, int srcStep, Vemi16s* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToRGB_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                          VemiSize roiSize);

VEMI_API VemiStatus vemiBGRToHLS_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_AC4P4R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[4], int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_AP4C4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_AP4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* const pDst[4], int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_P3C3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToHLS_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);

VEMI_API VemiStatus vemiHLSToBGR_8u_AC4P4R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[4], int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToBGR_8u_AP4C4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToBGR_8u_AP4R(const Vemi8u* const pSrc[4], int srcStep, Vemi8u* const pDst[4], int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToBGR_8u_C3P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToBGR_8u_P3C3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* pDst, int dstStep,
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiHLSToBGR_8u_P3R(const Vemi8u* const pSrc[3], int srcStep, Vemi8u* const pDst[3], int dstStep,
                                        VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_lab vemiBGRToLab, vemiLabToBGR: CIE L*a*b*
 *
 * Lightness and two opponent colours, green to red and blue to yellow, of linear RGB with the white D65. The channels
 * of a pixel stand in the order B, G, R. In single precision, from left to right:
 *
 *     x = (0.180423 B + 0.35758 G + 0.412453 R) / 242.366
 *     y = (0.072169 B + 0.71516 G + 0.212671 R) / 255
 *     z = (0.950227 B + 0.119193 G + 0.019334 R) / 277.632
 *     f(s) = s^(1/3)                     for s above 0.008856
 *            7.787 s + 0.13793103        else
 *     L = 116 f(y) - 16                  for y above 0.008856
 *         903.3 y                        else
 *     a = 500 (f(x) - f(y))
 *     b = 200 (f(y) - f(z))
 *
 * with cube roots that are rounded as exact ones. They are stored as
 *
 *     8u       L 255 / 100,     a + 128,         b + 128           rounded (0.5 is added, or 128.5, and cut off)
 *     8u16u    L 65535 / 100,   255 (a + 128),   255 (b + 128)     cut off
 *
 * so that white is 255, 128, 128 and black 0, 128, 128 in bytes.
 *
 * **Back.** With L, a and b taken from bytes, or from words in 16u8u, by the inverse of the table above:
 *
 *     fy = (L + 16) / 116,   fx = fy + a / 500,   fz = fy - b / 200
 *     X = 242.366 fx^3,      Y = 255 fy^3,        Z = 277.632 fz^3
 *
 * where what is added to fy is computed in double precision. R, G and B are those of vemiXYZToRGB for floats, cut off
 * and limited to 0..255. f has no line on this way: the darkest colours do not come back.
 *
 * @param pSrc,srcStep    first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep    the same of the destination
 * @param roiSize         size of the region in pixels
 *
 * **Overlap.** pDst does not overlap pSrc, unless it is the same image of bytes.
 *
 * **Statuses**, in the order of the tests: null, size, step (see status.h).
 *
 * **Threads.** Rows are shared out among an OpenMP team.
 *
 *     vemiBGRToLab_8u16u_C3R(bgr, bgrStep, lab, labStep, size);
 *     vemiLabToBGR_16u8u_C3R(lab, labStep, bgr, bgrStep, size);
 * @{
 */

VEMI_API VemiStatus vemiBGRToLab_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiBGRToLab_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiLabToBGR_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiLabToBGR_16u8u_C3R(const Vemi16u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
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
 *     C3R, C3IR      three interleaved channels
 *     AC4R, AC4IR    the first three of four interleaved channels; the destination's fourth, alpha, stays as it is
 *     C4R            four interleaved channels, floats alone
 *     P3R, IP3R      three planes with one step for all of them
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
 *     const Vemi32f sepia[3][4] = {
 *         {0.393f, 0.769f, 0.189f, 0}, {0.349f, 0.686f, 0.168f, 0}, {0.272f, 0.534f, 0.131f, 0}};
 *     vemiColorTwist32f_8u_C3R(photo, photoStep, old, oldStep, size, sepia);
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

/**
 * @defgroup vemi_video_layouts Video layouts
 *
 * In video, neighbouring pixels share chroma: each pixel has a luma sample Y, and a block of pixels has one sample of
 * Cb (U) and one of Cr (V). These functions move samples of 8 bits from one layout to another. But for the members
 * whose names say `Filter`, nothing is computed: chroma of a lower rate drops samples, chroma of a higher rate repeats
 * them.
 *
 *     format   pixels that share chroma   chroma of a region        the region is cut to multiples of
 *     4:2:2    2 x 1                      width / 2 by height       2 x 1
 *     4:2:0    2 x 2                      width / 2 by height / 2   2 x 2
 *     4:1:1    4 x 1                      width / 4 by height       4 x 1
 *
 * **Layouts.** The name has the one of the source, then that of the destination:
 *
 *     P3   planes Y, Cb, Cr                        pSrc[3], srcStep[3]
 *          YCrCb and YV: planes Y, Cr, Cb
 *     P2   a plane Y and a plane of pairs          pSrcY, srcYStep, pSrcCbCr, srcCbCrStep
 *          Cb, Cr, Cb, Cr, ...
 *     C2   one plane, four bytes for two pixels    pSrc, srcStep
 *          YCbCr, YU: Y0 Cb Y1 Cr;  YCrCb: Y0 Cr Y1 Cb;  CbYCr, UY: Cb Y0 Cr Y1
 *
 * A row of pairs is as many bytes wide as two chroma rows: width in 4:2:2 and 4:2:0, width / 2 in 4:1:1. A row of C2 is
 * 2 * width bytes wide.
 *
 * @param pSrc,srcStep          first samples of the source's planes and the bytes between the rows of each; of C2 its
 *                              first byte and its step
 * @param pSrcY,srcYStep        first luma sample and the bytes between luma rows
 * @param pSrcCbCr,srcCbCrStep  first byte of the pairs and the bytes between their rows
 * @param pDst,dstStep,pDstY,dstYStep,pDstCbCr,dstCbCrStep  the same of the destination
 * @param roiSize               size of the region in pixels
 *
 * **Odd sizes.** A width or a height that is no multiple of what both formats share is rounded down: of 5 x 5 pixels
 * from 4:2:2 to 4:2:0, 4 x 4 are worked on. What lies beyond is neither read nor written.
 *
 * **Steps** are not looked at, with the exceptions told below: they may be negative, for images whose rows stand from
 * the last one to the first, or any other number of bytes.
 *
 * **Overlap.** A plane that is copied as it is, luma as a rule, may be the same in source and destination. If such
 * planes overlap in another way, their bytes move one after the other, from the first row's first one on. Other planes
 * do not overlap, but for C2 to C2, which works in place.
 *
 * **Statuses**, in the order of the tests: null (planes among the pointers), then vemiErrSize where the width or the
 * height is below the multiples to which it is cut.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     const Vemi8u* const yuv[3] = {y, cb, cr};
 *     const int steps[3] = {yStep, cbStep, crStep};
 *     vemiYCbCr420ToYCbCr420_8u_P3P2R(yuv, steps, luma, lumaStep, pairs, pairStep, size);    // for a video encoder
 * @{
 */

/**
 * @defgroup vemi_video_422_420 4:2:2 to 4:2:0 and back
 *
 * Row k of 4:2:0 chroma is row 2 k of 4:2:2 chroma; odd rows are dropped. Back, row k becomes rows 2 k and 2 k + 1.
 * Multiples of 2 x 2, at least these.
 *
 *     vemiYCbCr422ToYCbCr420_8u_C2P3R(frame, frameStep, planes, planeSteps, size);   // a camera's frame for an encoder
 * @{
 */

VEMI_API VemiStatus vemiYCbCr422ToYCbCr420_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCbCr420_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCbCr420_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb422ToYCbCr420_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiCbYCr422ToYCbCr420_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr420ToYCbCr422_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToYCbCr422_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb420ToYCbCr422_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_422_filter 4:2:0 to 4:2:2 with a filter
 *
 * The chroma rows that 4:2:0 lacks are interpolated from four, with c[k] the rows of a chroma plane, n of them:
 *
 *     row 2 k       c[k]
 *     row 2 k + 1   (9 c[k] + 9 c[k + 1] - c[k - 1] - c[k + 2] + 8) >> 4, limited to 0..255
 *
 * Above the first row c[-1] counts as c[0]; below the last one c[n] and c[n + 1] count as c[n - 1]. A height is cut to
 * a multiple of 8 and is 8 at least: 15 rows are 8, and 7 give vemiErrSize. Widths are multiples of 2.
 * @{
 */

VEMI_API VemiStatus vemiYCbCr420ToYCbCr422Filter_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToYCbCr422Filter_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                          int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                          VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb420ToYCbCr422Filter_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_422 Layouts of 4:2:2
 *
 * Multiples of 2 x 1, at least these.
 * @{
 */

VEMI_API VemiStatus vemiYCbCr422ToYCbCr422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb422ToYCbCr422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiCbYCr422ToYCbCr422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCrCb422_8u_C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                                  VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCrCb422_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                                    int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_422_411 4:2:2 to 4:1:1 and back
 *
 * Every second chroma sample of a row is kept, the first, third, ...; back, each sample is repeated for two pairs of
 * pixels. Multiples of 4 x 1, at least these.
 * @{
 */

VEMI_API VemiStatus vemiYCbCr422ToYCbCr411_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCbCr411_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCbCr411_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToYCbCr411_8u_C2P2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDstY, int dstYStep,
                                                    Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb422ToYCbCr411_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiCbYCr422ToYCbCr411_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3],
                                                    const int dstStep[3], VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr411ToYCbCr422_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr422_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr422_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                                    int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr422_8u_P2C2R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCrCb422_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCrCb422_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst,
                                                    int dstStep, VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_420_411 4:2:0 to 4:1:1 and back
 *
 * Both have a chroma sample for four pixels, and none is lost: they are arranged anew. Column x of rows 2 k and 2 k + 1
 * of 4:1:1 are columns 2 x and 2 x + 1 of row k of 4:2:0. So 4:1:1 to 4:2:0 and back again is what it was. Multiples of
 * 4 x 2, at least these.
 * @{
 */

VEMI_API VemiStatus vemiYCbCr420ToYCbCr411_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToYCbCr411_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiYCrCb420ToYCbCr411_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr411ToYCbCr420_8u_P3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                  Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr420_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr420_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCrCb420_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_planes Planes to pairs and back
 *
 * Multiples of 4 x 1 in 4:1:1 and of 2 x 2 in 4:2:0, at least these.
 * @{
 */

VEMI_API VemiStatus vemiYCbCr411ToYCbCr411_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr411ToYCbCr411_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToYCbCr420_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                                    int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToYCbCr420_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                    int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                    VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_join vemiJoin422, vemiSplit422, vemiJoin420, vemiSplit420: packing and unpacking
 *
 * vemiJoin422 packs three planes into bytes Y0 Cb Y1 Cr; vemiSplit422 is its inverse. vemiJoin420 packs the same bytes
 * from luma and 4:2:0 pairs, each row of pairs serving two rows. vemiSplit420 splits the pairs into planes of 4:2:0.
 *
 * vemiJoin422 and vemiSplit422 cut to multiples of 2 x 1, the others to multiples of 2 x 2; these are the least sizes.
 *
 * **Statuses**, in the order of the tests: vemiJoin420 as all the others above. vemiSplit420: null (but for the planes
 * in pDst), vemiErrSize for a width or a height below 1, null (these planes), vemiErrSize below 2. vemiJoin422 and
 * vemiSplit422: null; vemiErrStep for any step below 1; vemiErrSize; vemiErrStride where a step is too short for the
 * width that is worked on: a luma step below width, a chroma step below width / 2, a packed step below 2 * width.
 * @{
 */

VEMI_API VemiStatus vemiJoin422_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst, int dstStep,
                                         VemiSize roiSize);
VEMI_API VemiStatus vemiSplit422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], const int dstStep[3],
                                          VemiSize roiSize);
VEMI_API VemiStatus vemiJoin420_8u_P2C2R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr, int srcCbCrStep,
                                         Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiSplit420_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr, int srcCbCrStep,
                                          Vemi8u* const pDst[3], const int dstStep[3], VemiSize roiSize);

/** @} */

/**
 * @defgroup vemi_video_join_filter vemiJoin420_Filter, vemiSplit420_Filter: without the flicker of two fields
 *
 * The layouts of vemiJoin420 and vemiSplit420, with a vertical filter that mixes each luma row with its neighbours.
 * With Y the rows of the frame from 0 to h - 1:
 *
 *     luma row y      (Y[y - 1] + 2 Y[y] + Y[y + 1] + 4) >> 2, at most 255
 *     the first row   (3 Y[0] + Y[1] + 4) >> 2, at most 255
 *     the last row    (3 Y[h - 1] + Y[h - 2] + 4) >> 2, at most 255
 *
 * Mind that the sums of luma are lifted by 4, not by 2: an area of one tone becomes a level lighter, 17 where it
 * was 16.
 *
 * Chroma: vemiSplit420_Filter copies it. vemiJoin420_Filter makes of the rows c of the pairs, 0 to n - 1, one row for
 * each two rows of the result:
 *
 *     the first two rows         (c[0] + c[1] + 2) >> 1, at most 255
 *     rows 2 k and 2 k + 1       (c[k] + c[k + 1]) >> 1
 *     the last two rows          (c[n - 2] + c[n - 1] + 2) >> 1, at most 255
 *     a frame of height 2        c[0]
 *
 * @param layer  which part of a frame the call makes:
 *
 *     21   a whole frame; so does any number with the bits 1, 4 and 16 set, such as -1
 *      1   the band at the top: rows 0 to height - 3, the first one by the rule of first rows
 *      4   a band in the middle: height rows, beginning two rows above the pointers
 *     16   the band at the bottom: height + 2 rows, beginning two rows above the pointers, the last one by the rule of
 *          last rows
 *     any other number: nothing is done, and the status is vemiOk
 *
 * So a frame that is worked through from top to bottom comes out as in one call, a band of it at a time: rows that wait
 * for the next band's first ones are made with that band. The pointers of each call address the band's first row. A
 * middle or a bottom band reads three rows of luma and one row of pairs above its pointers, and writes two rows of the
 * result above its pointer (of a chroma plane one). They must be there, so the band at the top has four rows or more;
 * nothing tests that.
 *
 *     vemiJoin420_Filter_8u_P2C2R(y, yStep, uv, uvStep, yuyv, yuyvStep, size, 21);
 *
 * Multiples of 2 x 2, at least these.
 * @{
 */

VEMI_API VemiStatus vemiJoin420_Filter_8u_P2C2R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                int srcCbCrStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                                int layer);
VEMI_API VemiStatus vemiSplit420_Filter_8u_P2P3R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr,
                                                 int srcCbCrStep, Vemi8u* const pDst[3], const int dstStep[3],
                                                 VemiSize roiSize, int layer);

/** @} */

/**
 * @defgroup vemi_video_yu Members named after YU, YV and UY
 *
 * The same moves under the names of another tradition: U is Cb and V is Cr. `YU` is Y0 U Y1 V and, in P2, pairs U, V;
 * `UY` is U Y0 V Y1; `YV` in P3 is the planes Y, V, U. From 4:2:0 to C2 each chroma row serves two rows.
 *
 * Those of 4:2:0, and those of 4:2:2 from C2 to planes or pairs, whose chroma has every row, cut to multiples of 2 x 2;
 * those from C2 to C2 to multiples of 2 x 1. These are the least sizes.
 * @{
 */

VEMI_API VemiStatus vemiYUToUY420_8u_P2C2R(const Vemi8u* pSrcY, int srcYStep, const Vemi8u* pSrcCbCr, int srcCbCrStep,
                                           Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYVToYU420_8u_P3P2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDstY,
                                           int dstYStep, Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYVToYU420_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYVToUY420_8u_P3C2R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi8u* pDst, int dstStep,
                                           VemiSize roiSize);

VEMI_API VemiStatus vemiYUToUY422_8u_C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiUYToYU422_8u_C2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUToYV422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], const int dstStep[3],
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiUYToYV422_8u_C2P3R(const Vemi8u* pSrc, int srcStep, Vemi8u* const pDst[3], const int dstStep[3],
                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYUToYU422_8u_C2P2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDstY, int dstYStep,
                                           Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);
VEMI_API VemiStatus vemiUYToYU422_8u_C2P2R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDstY, int dstYStep,
                                           Vemi8u* pDstCbCr, int dstCbCrStep, VemiSize roiSize);

/** @} */

/** @} */

/* ---- Orders of channels ---- */

/**
 * @defgroup vemi_swap_channels vemiSwapChannels: channels in another order
 *
 *     pDst[i] = pSrc[dstOrder[i]]  for the channels i = 0, 1, 2 of each pixel
 *
 * Each entry of dstOrder is 0, 1 or 2; one may stand there twice, so that a channel is copied more than once: 2, 1, 0
 * makes BGR of RGB, 0, 0, 0 a grey picture of the first channel. AC4 leaves the fourth channel of the destination as it
 * is. Values pass through unchanged, bit for bit.
 *
 * @param pSrc,srcStep        first pixel of the source, and the bytes between its rows
 * @param pDst,dstStep        the same of the destination
 * @param pSrcDst,srcDstStep  (C3IR) the image that is both
 * @param roiSize             size of the region in pixels
 * @param dstOrder            which channel of the source each of the destination's is
 *
 * **Overlap.** pDst may be pSrc with the same step. Regions that overlap in any other way give undefined results.
 *
 * **Statuses**, in the order of the tests: null (dstOrder among the pointers), size, step, then vemiErrChannelOrder for
 * an entry outside of 0 to 2.
 *
 * **Threads.** All members run in the calling thread.
 *
 *     const int reversed[3] = {2, 1, 0};
 *     vemiSwapChannels_8u_C3IR(photo, photoStep, size, reversed);
 * @{
 */

VEMI_API VemiStatus vemiSwapChannels_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                            VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep,
                                             VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                             VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                              VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_32s_C3R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                             VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_32s_AC4R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep,
                                              VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                             VemiSize roiSize, const int dstOrder[3]);
VEMI_API VemiStatus vemiSwapChannels_32f_AC4R(const Vemi32f* pSrc, int srcStep, Vemi32f* pDst, int dstStep,
                                              VemiSize roiSize, const int dstOrder[3]);

/** @} */

/* ---- Packed 16-bit pixels ---- */

/**
 * @defgroup vemi_color_packed vemiYCbCrToRGB565 and its kin: 16 bits a pixel
 *
 * From YCbCr or YUV to red, green and blue of 4, 5 or 6 bits each in one word of 16 bits, for displays. Bits, counted
 * from the lowest:
 *
 *     word    To...RGB...                  To...BGR...
 *     565     R 0..4, G 5..10, B 11..15    B 0..4, G 5..10, R 11..15
 *     555     R 0..4, G 5..9, B 10..14     B 0..4, G 5..9, R 10..14
 *     444     R 0..3, G 4..7, B 8..11      B 0..3, G 4..7, R 8..11
 *
 * So the letter that comes first lies in the lowest bits. Bits above the format are 0.
 *
 *     source                            member  planes, or bytes
 *     vemiYCbCr...                      C3R     Y, Cb, Cr of each pixel
 *                                       P3C3R   planes of Y, Cb and Cr, all of them of the region's size
 *     vemiYCbCr422...                   C2C3R   Y0, Cb, Y1, Cr of each two pixels; two bytes, Y and Cb, of the last one
 *                                               of an odd width
 *                                       P3C3R   planes; those of chroma have (width + 1) / 2 columns
 *     vemiYCbCr420..., vemiYUV420...    P3C3R   planes; those of chroma have (width + 1) / 2 columns and
 *                                               (height + 1) / 2 rows
 *
 * The last pixel of an odd width of C2C3R takes the Cr of the pair before it; where the width is 1, its Cb for both.
 *
 * **YCbCr** has luma from 16 to 235 and chroma from 16 to 240 (ITU-R BT.601). With >> rounding down, mulhi(a, b) =
 * (a * b) >> 16, y = mulhi((Y - 16) * 128, 9535), u = (Cb - 128) * 128, v = (Cr - 128) * 128, limited to 0..255:
 *
 *     R = (y + mulhi(v, 13074) + h) >> 4
 *     G = (y - mulhi(u, 3211) - mulhi(v, 6660) + h) >> 4
 *     B = (y + mulhi(u, 16523) + h) >> 4
 *
 * where h is 8 in whole groups of four columns, counted from the left, and 0 in the columns that are left, in the last
 * row of an odd height of 4:2:0, and everywhere in Dither members. In plain C3R members, where both images are without
 * gaps between rows (srcStep = 3 * width, dstStep = 2 * width), groups go on from row to row, and what is left is at
 * the region's end.
 *
 * **YUV** is that of vemiYUVToRGB: whole groups of four columns by its products in 16 bits, those of each fourth column
 * with its two other weights; the columns and the row that are left, and everything in Dither members, by its exact
 * sums (vemiYUV420ToRGB, single columns).
 *
 * **Plain members** keep the upper bits of each channel: R >> 3, G >> 2, B >> 3 for 565, all >> 3 for 555 and >> 4 for
 * 444.
 *
 * **Dither members** spread what is cut off over 4 x 4 pixels, so that a slow ramp shows no bands. With n = 2^bits - 1
 * and v a channel, its level is (v * n) >> 8, and one more where 256 v - s * level exceeds the threshold t of the
 * pixel's place:
 *
 *     bits  s     t
 *     4     4352  of the second table
 *     5     2105  of the first table
 *     6     1036  half of the first table's, rounded down
 *
 *     first table, row y % 4, column x % 4    second table
 *        0  1118   279  1398                     0  2312   578  2890
 *     1678   559  1957   839                  3468  1156  4046  1734
 *      419  1538   139  1258                   867  3179   289  2601
 *     2097   978  1817   699                  4335  2023  3757  1445
 *
 * x and y count from the region's first pixel, so regions that are dithered apart meet without a seam only where they
 * begin at multiples of four. White is all ones but for G of 565 in column 0 of each fourth row, which is 62.
 *
 * @param pSrc,srcStep  first pixel of the source and the bytes between its rows, or arrays of three planes and of their
 *                      steps
 * @param pDst,dstStep  first word of the destination, and the bytes between its rows
 * @param roiSize       size of the region in pixels; any width and height, odd ones too
 *
 * Source and destination do not overlap.
 *
 * **Statuses**, in the order of the tests: null (pSrc, pDst, srcStep of planes), size, null planes; step in the plain
 * C3R members alone. In all others steps may be negative, for images that stand upside down (see status.h).
 *
 * **Threads.** All members run in the calling thread.
 *
 *     const Vemi8u* const planes[3] = {y, cb, cr};
 *     const int steps[3] = {yStep, cStep, cStep};
 *     vemiYCbCr420ToBGR565Dither_8u16u_P3C3R(planes, steps, screen, screenStep, size);   // red in the upper bits
 * @{
 */

VEMI_API VemiStatus vemiYCbCrToRGB565_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR565_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB555_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR555_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB444_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR444_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCrToRGB565Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR565Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB555Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR555Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB444Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR444Dither_8u16u_C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                      VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCrToRGB565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                  int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCrToRGB565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToRGB444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCrToBGR444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                        Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr422ToRGB565_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR565_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB555_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR555_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB444_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR444_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                     VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr422ToRGB565Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR565Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB555Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR555Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB444Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR444Dither_8u16u_C2C3R(const Vemi8u* pSrc, int srcStep, Vemi16u* pDst, int dstStep,
                                                           VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr422ToRGB565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr422ToRGB565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToRGB444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr422ToBGR444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr420ToRGB565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToRGB555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToRGB444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                     int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYCbCr420ToRGB565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToRGB555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToRGB444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYCbCr420ToBGR444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                           Vemi16u* pDst, int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYUV420ToRGB565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR565_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR555_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR444_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst,
                                                   int dstStep, VemiSize roiSize);

VEMI_API VemiStatus vemiYUV420ToRGB565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR565Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR555Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToRGB444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);
VEMI_API VemiStatus vemiYUV420ToBGR444Dither_8u16u_P3C3R(const Vemi8u* const pSrc[3], const int srcStep[3],
                                                         Vemi16u* pDst, int dstStep, VemiSize roiSize);

/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
