/**
 * @file geometry.h
 * Geometry: images in another size, turned, straightened, bent and mirrored.
 */
#ifndef VEMI_GEOMETRY_H
#define VEMI_GEOMETRY_H

#include "vemi/status.h"
#include "vemi/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vemi_geometry Geometry
 *
 * Each pixel of the destination comes from a place in the source, which lies between pixels as a rule.
 * @{
 */

/** How a value between pixels is made. Each family says which of these it takes. */
typedef int vemiInterpolation;
enum {
  vemiInterNearest = 1,            /**< the nearest pixel */
  vemiInterLinear = 2,             /**< two pixels each way, weighted by their nearness */
  vemiInterCubic = 4,              /**< four pixels each way, by the cubic polynomial through them */
  vemiInterSuper = 8,              /**< the mean of all that a destination pixel covers */
  vemiInterLanczos = 16,           /**< six pixels each way, by a windowed sinc */
  vemiSmoothEdge = -2147483647 - 1 /**< bit 31, which warps take besides: edges are blended into what was there */
};

/* ---- Another size ---- */

/**
 * @defgroup vemi_resize Another size
 *
 * A region of an image, larger or smaller by a factor of its own in each direction. The same call gives the same pixels
 * on every processor, in every build of this library.
 *
 * **Positions.** Each column of the destination has a position in the source, in source pixels, and so has each row.
 * With the region's width w (what lies beyond the image is cut off), the step from column to column is
 *
 *     vemiResize, vemiResizeCenter, nearest    1 / xFactor
 *     ... other interpolations                 (w - 1) / (w xFactor - 1), or 0 where w xFactor is at most 1
 *     vemiResizeShift                          xFr
 *
 * and position(0) = srcRoi.x + xShift, for the nearest pixel srcRoi.x + (step / 2 + xShift); position(i + 1) =
 * position(i) + step, added up in double precision. xShift is 0 but in vemiResizeShift and for vemiResizeCenter. Of all
 * interpolations but the nearest pixel, the first and last pixels of the region are those of the result. The index and
 * the fraction of a position p are i = trunc(p + 1e-7) and t = p - i; a position that lies a pixel or more outside of
 * the image is that of its last (or first) column. Rows have the same rules.
 *
 * **Interpolations.** Columns first, then rows; each channel by itself.
 *
 * - vemiInterNearest: the pixel at i.
 * - vemiInterLinear: (1 - t) p(i) + t p(i + 1). At the image's last column i is one less and t is 1. Pixels of the
 *   image beside the region take part. In single precision for 16u and 32f. In integers for 8u: with the weights
 *   w = trunc(t * 16384 + 1e-7) across and v down,
 *
 *       h = ((16384 - w) p(i) + w p(i + 1) + 128) >> 8,   result = ((16384 - v) h0 + v h1 + 0x80000) >> 20
 *
 * - vemiInterCubic: the polynomial of third degree through p0 = p(i - 1), p(i), p(i + 1), p3 = p(i + 2),
 *
 *       p0 + a d1 + b d2 + c d3,   a = 1 + t, b = t a / 2, c = (t - 1) b / 3,
 *       d1 = p1 - p0, d2 = (p2 - p1) - d1, d3 = p1 - 2 p2 + p3 - d2
 *
 *   in single precision, from left to right. At the image's first column, i is one more and t = p - i; at the last but
 *   one, i is one less and t = p - i; at the last, i is two less and t is 2: the polynomial is that of the outermost
 *   four pixels.
 * - vemiInterLanczos: the sum of w(k) p(i + k) for k = -2..3, in this order and single precision; w(k) = L(|k - t|)
 *   with L(x) = sin(pi x) sin(pi x / 3) / (pi x)^2 * 3 below 3, linear between hundredths. The weights' sum is not
 *   exactly 1. Pixels that the image lacks repeat its edge.
 * - vemiInterSuper, for factors of at most 1: the mean of the 1 / xFactor by 1 / yFactor source pixels that a
 *   destination pixel covers, those at its edges by the part that is covered; parts below 1e-7 are left out. The first
 *   rectangle begins with the region, each further one where the one before it ended. Sums are in single precision,
 *   rows first, multiplied at last by xFactor yFactor. What passes the image counts for its last pixel.
 *
 * Results of integers are rounded to nearest, ties to even (linear 8u as above), and limited to 0..255 or 0..65535;
 * cubic and Lanczos results do leave the range of the pixels.
 *
 * **Small images.** If the source image (not the region) is less than 8 pixels wide or high, vemiInterLanczos is
 * vemiInterCubic; if less than 4, vemiInterCubic is vemiInterLinear; if less than 2, everything is vemiInterNearest.
 *
 * **What is written.** trunc(w xFactor + 1e-7) columns, at least 1 and at most dstRoiSize.width; for vemiResizeShift
 * trunc((w - 1) / xFr + 1e-7) + 1 of them, with the nearest pixel trunc(w / xFr + 1e-7). Other pixels of the
 * destination stay as they are, and so does the fourth channel in AC4 forms.
 *
 * @param pSrc,srcStep    first pixel of the source *image*, and the bytes between its rows; the forms P3 and P4 take an
 *                        array of planes with one step for all of them
 * @param srcSize         size of the source image in pixels; no pixel outside of it is read
 * @param srcRoi          the region of it; what passes the image on the right or at the bottom is cut off
 * @param pDst,dstStep    first pixel of the destination, and the bytes between its rows; it shares no pixel with the
 *                        source
 * @param dstRoiSize      size of the destination in pixels
 * @param xFactor,yFactor (vemiResize, vemiResizeCenter) destination pixels for each source pixel, above 0
 * @param xFr,yFr         (vemiResizeShift) source pixels for each destination pixel, above 0
 * @param xShift,yShift   (vemiResizeShift) added to the positions, in source pixels
 * @param xCenter,yCenter (vemiResizeCenter) the point of the region, counted from its first pixel, that comes to lie in
 *                        the middle of the destination
 * @param interpolation   one of the above. vemiInterSuper only in vemiResize and vemiResizeCenter, for factors of at
 *                        most 1
 *
 * **Statuses**, in the order of the tests: null, size of the source, step (see status.h); then
 *
 * - vemiErrSize: srcRoi.x or srcRoi.y is below 0, or srcRoi.width or srcRoi.height below 1
 * - vemiWarnNoIntersection: the region begins outside the image; nothing is written
 * - vemiErrSize: the destination's width or height is below 1
 * - vemiErrResizeFactor: a factor, or xFr or yFr, is not above 0
 * - vemiErrInterpolation: interpolation is none of those that the function takes
 * - vemiWarnNoIntersection: (vemiResizeCenter) the region's place misses the destination; nothing is written
 * - vemiErrMemAlloc: no memory for tables and rows, or a row of the region exceeds 2 GiB
 *
 * **Threads.** All forms run in the calling thread.
 *
 *     VemiRect all = {0, 0, photoSize.width, photoSize.height};
 *     vemiResize_8u_C3R(photo, photoSize, photoStep, all, small, smallStep, smallSize, 0.25, 0.25, vemiInterSuper);
 * @{
 */

/**
 * @name vemiResize: by factors
 * @{
 */

VEMI_API VemiStatus vemiResize_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                      int interpolation);
VEMI_API VemiStatus vemiResize_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                      int interpolation);
VEMI_API VemiStatus vemiResize_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                      int interpolation);
VEMI_API VemiStatus vemiResize_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                       int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi8u* const pDst[3], int dstStep, VemiSize dstRoiSize, double xFactor,
                                      double yFactor, int interpolation);
VEMI_API VemiStatus vemiResize_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi8u* const pDst[4], int dstStep, VemiSize dstRoiSize, double xFactor,
                                      double yFactor, int interpolation);

VEMI_API VemiStatus vemiResize_16u_C1R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_16u_C3R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_16u_C4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_16u_AC4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                        Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                        int interpolation);
VEMI_API VemiStatus vemiResize_16u_P3R(const Vemi16u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* const pDst[3], int dstStep, VemiSize dstRoiSize, double xFactor,
                                       double yFactor, int interpolation);
VEMI_API VemiStatus vemiResize_16u_P4R(const Vemi16u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* const pDst[4], int dstStep, VemiSize dstRoiSize, double xFactor,
                                       double yFactor, int interpolation);

VEMI_API VemiStatus vemiResize_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                       int interpolation);
VEMI_API VemiStatus vemiResize_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                        Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor, double yFactor,
                                        int interpolation);
VEMI_API VemiStatus vemiResize_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* const pDst[3], int dstStep, VemiSize dstRoiSize, double xFactor,
                                       double yFactor, int interpolation);
VEMI_API VemiStatus vemiResize_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* const pDst[4], int dstStep, VemiSize dstRoiSize, double xFactor,
                                       double yFactor, int interpolation);

/** @} */

/**
 * @name vemiResizeCenter: by factors, with a point of the region in the middle of the destination
 *
 * The region's left edge comes to x0 = dstRoiSize.width / 2 - xCenter xFactor, in double precision. Written are the
 * columns from max(0, ceil(x0)) up to trunc(min(dstRoiSize.width, w xFactor + x0)); the first one lies
 * (max(0, ceil(x0)) - x0) / xFactor source pixels behind the region's first. By the whole pixels of this the region
 * begins later, and the rest is xShift; what is left is a vemiResize of that region, whose step is from its own width.
 * @{
 */

VEMI_API VemiStatus vemiResizeCenter_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                            double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                            double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                            double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[3], int dstStep, VemiSize dstRoiSize, double xFactor,
                                            double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[4], int dstStep, VemiSize dstRoiSize, double xFactor,
                                            double yFactor, double xCenter, double yCenter, int interpolation);

VEMI_API VemiStatus vemiResizeCenter_16u_C1R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_16u_C3R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_16u_C4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_16u_AC4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                              double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_16u_P3R(const Vemi16u* const pSrc[3], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi16u* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                             double xFactor, double yFactor, double xCenter, double yCenter,
                                             int interpolation);
VEMI_API VemiStatus vemiResizeCenter_16u_P4R(const Vemi16u* const pSrc[4], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi16u* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                             double xFactor, double yFactor, double xCenter, double yCenter,
                                             int interpolation);

VEMI_API VemiStatus vemiResizeCenter_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                             double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFactor,
                                              double yFactor, double xCenter, double yCenter, int interpolation);
VEMI_API VemiStatus vemiResizeCenter_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                             double xFactor, double yFactor, double xCenter, double yCenter,
                                             int interpolation);
VEMI_API VemiStatus vemiResizeCenter_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                             double xFactor, double yFactor, double xCenter, double yCenter,
                                             int interpolation);

/** @} */

/**
 * @name vemiResizeShift: by steps, with shifted positions
 *
 * With steps by vemiGetResizeFract, and shifts for the place of each tile, large images are resized tile by tile. A
 * shift below 0 gives the columns whose positions are less than a pixel before the image a negative fraction t: they go
 * on beyond the image's first pixels.
 * @{
 */

VEMI_API VemiStatus vemiResizeShift_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                           double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                           double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                           double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* const pDst[3], int dstStep, VemiSize dstRoiSize, double xFr,
                                           double yFr, double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* const pDst[4], int dstStep, VemiSize dstRoiSize, double xFr,
                                           double yFr, double xShift, double yShift, int interpolation);

VEMI_API VemiStatus vemiResizeShift_16u_C1R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_16u_C3R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_16u_C4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_16u_AC4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                             double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_16u_P3R(const Vemi16u* const pSrc[3], VemiSize srcSize, int srcStep,
                                            VemiRect srcRoi, Vemi16u* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                            double xFr, double yFr, double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_16u_P4R(const Vemi16u* const pSrc[4], VemiSize srcSize, int srcStep,
                                            VemiRect srcRoi, Vemi16u* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                            double xFr, double yFr, double xShift, double yShift, int interpolation);

VEMI_API VemiStatus vemiResizeShift_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                            double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, double xFr, double yFr,
                                             double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                            VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                            double xFr, double yFr, double xShift, double yShift, int interpolation);
VEMI_API VemiStatus vemiResizeShift_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                            VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                            double xFr, double yFr, double xShift, double yShift, int interpolation);

/** @} */

/**
 * The steps of a resize by these factors, for vemiResizeShift:
 *
 *     vemiInterNearest    *pxFr = 1 / xFactor
 *     others              *pxFr = (w - 1) / (w xFactor - 1), or 0 where w xFactor is at most 1
 *
 * and the same for y, with w what of srcRoi lies within the image. A small image changes no interpolation here.
 *
 * @param srcSize,srcRoi  size of the source image, and the region of it
 * @param xFactor,yFactor destination pixels for each source pixel
 * @param pxFr,pyFr       receive the steps
 * @param interpolation   any but vemiInterSuper
 *
 * **Statuses**, in the order of the tests:
 *
 * - vemiErrSize: srcSize.width, srcSize.height, srcRoi.width or srcRoi.height is below 1, or srcRoi.x or srcRoi.y is
 *   below 0
 * - vemiWarnNoIntersection: the region begins outside the image; nothing is written
 * - vemiErrResizeFactor: a factor is not above 0
 * - vemiErrNullPtr: pxFr or pyFr is null
 * - vemiErrInterpolation: interpolation is none of the four
 */
VEMI_API VemiStatus vemiGetResizeFract(VemiSize srcSize, VemiRect srcRoi, double xFactor, double yFactor, double* pxFr,
                                       double* pyFr, int interpolation);

/** @} */

/* ---- Affine warps ------------------------------------------------------------------------------------------------ */

/**
 * @defgroup vemi_geometry_affine Affine warps: rotation, shear, any six coefficients
 *
 * An affine map takes a source pixel (x, y) to the place
 *
 *     x' = c00 x + c01 y + c02
 *     y' = c10 x + c11 y + c12        coeffs = {{c00, c01, c02}, {c10, c11, c12}}
 *
 * in the destination. It makes a parallelogram of the source region: of its pixels' middles, so that its corners are
 * those of the pixels at the region's corners. All destination pixels whose middles lie in it, or on its edge (but for
 * the rounding of doubles), and in dstRoi, get what the inverse map fetches from the source; no other byte is written.
 *
 *     function                 map
 *     vemiRotate               (cos a, sin a, xShift; -sin a, cos a, yShift): about the pixel (0, 0), then moved. On
 *                              the screen, where y leads down, it turns counter-clockwise.
 *     vemiRotateCenter         the same with the shift of vemiGetRotateShift: about (xCenter, yCenter)
 *     vemiShear                (1, xShear, xShift; yShear, 1, yShift)
 *     vemiWarpAffine           coeffs
 *     vemiWarpAffineBack       the inverse of coeffs, which lead from the destination to the source here
 *     vemiWarpAffineQuad       the map of corners 0, 1, 2 of srcQuad to those of dstQuad
 *
 * **Images.** pSrc is the first pixel of the source image, which has srcSize pixels, and srcRoi the region of it that
 * is moved; what of the region lies beyond the image does not count. pDst is the first pixel of the destination image,
 * and dstRoi the region of it that may be written, also in its coordinates. Nothing outside of the source image is
 * read, and nothing outside of dstRoi is written. P3 and P4 forms take arrays of planes, all of one step. AC4 forms
 * leave the fourth channel of the destination as it is. Source and destination do not overlap.
 *
 * **Angles** are degrees, and are reduced to 0..360 by whole turns. Sines and cosines of whole quarter turns are exact;
 * others are those of a / 180 * 3.141592653589793, within a unit in the last place, with the same bits everywhere.
 *
 * **Interpolation.** vemiInterNearest, vemiInterLinear or vemiInterCubic. A region or an image with less than four
 * columns or rows is fetched by vemiInterLinear in the place of vemiInterCubic. Pixels of the destination are put into
 * spans, row by row. The source place of a span's first pixel is computed in doubles, x = c00 x' + c01 y' + c02 with
 * the coefficients of the inverse, that of pixel i behind it is x + i c00, and is rounded to a float; y likewise.
 *
 *     nearest  the pixel at x and y, each rounded to the nearest integer, the even one of two.
 *     linear   between columns i = trunc(x) and i + 1, then between two rows in the same way. Bytes: with weights
 *              w = rint((x - i) 16384), each row gives h = (p0 (16384 - w) + p1 w) >> 8, and the result is
 *              (h0 (16384 - v) + h1 v + 0x80000) >> 20. 16u and 32f: p0 (1 - w) + p1 w in floats.
 *     cubic    by the polynomial of third degree through the columns i - 1 to i + 2, and the same of rows, which may be
 *              pixels beside the region; at the image's edge through the outermost four. Bytes: with weights of 14 bits
 *              for each 1/512 of a pixel, (sum of a row) >> 8, and (sum + 0x80000) >> 20. 16u and 32f: in floats.
 *
 * 16u results are rounded to nearest and limited to 0..65535. Rounding may lead places out of the region. Fetched are
 * those from srcRoi.x up to a pixel behind the region's last column, and rows likewise; by vemiInterCubic those up to a
 * pixel outside of the image on any side. Outside of the image they count as its edge. Where a place lies farther out,
 * the pixel stays as it is. Results do not depend on the caller's rounding mode.
 *
 * **Smooth edges.** With vemiSmoothEdge beside the interpolation (vemiInterLinear | vemiSmoothEdge), pixels in the
 * quadrangle that lie less than half a pixel from one of its edges are mixed with what was there: old (1 - a) + new a
 * in floats, rounded to nearest, where a = 0.5 + the distance from the nearest edge, counted along x or y, whichever
 * crosses the edge the more steeply. Sides of dstRoi that cut the quadrangle are no edges.
 *
 * **Quarter turns.** vemiRotate and vemiRotateCenter by 90, 180 or 270 degrees, with whole numbers as shifts, copy
 * pixels. The interpolation is not looked at then.
 *
 * **Quadrangles** have their corners in the order of (left, top), (right, top), (right, bottom), (left, bottom), either
 * way round. vemiWarpAffineQuad ignores the fourth corners where three do not settle them; it writes pixels that lie in
 * dstQuad and come from srcQuad, and from the source region.
 *
 * **Threads.** The calling thread does the work, without memory of its own.
 *
 *     vemiRotateCenter_8u_C3R(src, size, srcStep, (VemiRect){0, 0, size.width, size.height}, dst, dstStep,
 *                             (VemiRect){0, 0, size.width, size.height}, 30, (size.width - 1) / 2.0,
 *                             (size.height - 1) / 2.0, vemiInterLinear);  // about the middle
 *
 * @param pSrc,srcSize,srcStep,srcRoi  the source: first pixel, size in pixels, bytes between rows, region
 * @param pDst,dstStep,dstRoi          the destination: first pixel, bytes between rows, region
 * @param angle                        degrees, counter-clockwise on the screen
 * @param xShift,yShift                added to the map's x' and y'
 * @param xCenter,yCenter              the point that a rotation leaves where it is
 * @param xShear,yShear                by how much a pixel's y adds to its x', and its x to its y'
 * @param coeffs                       two rows of three coefficients
 * @param srcQuad,dstQuad              four corners (x, y) each
 * @param interpolation                one of three, with or without vemiSmoothEdge
 * @return The first of these that applies:
 * - a null pointer: vemiErrNullPtr; null planes are found behind the interpolation
 * - srcSize, srcRoi or dstRoi has a width or height below 1, or a region a negative position: vemiErrSize
 * - a step below 1: vemiErrStep
 * - another interpolation: vemiErrInterpolation
 * - a determinant c00 c11 - c01 c10 that is 0 but for rounding (1e-12 of c00 c11): vemiErrQuad. vemiWarpAffineQuad: a
 *   quadrangle that is degenerate or not convex: vemiErrCoeff
 * - the source region begins beyond the image: vemiWarnNoIntersection
 * - less than two columns or rows of it lie in the image: vemiErrRect
 * - the map makes a degenerate quadrangle of it, or coefficients are no numbers: vemiErrQuad
 * - the quadrangle misses dstRoi: vemiWarnQuadIntersection. vemiWarpAffineQuad: or srcQuad misses the source region
 *
 * When pixels are copied, null planes are found behind the steps; a source region that begins beyond the image is
 * vemiOk then, and one that is turned out of dstRoi vemiWarnNoOperation. Nothing is written in any of these cases.
 * @{
 */
VEMI_API VemiStatus vemiRotate_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiRect dstRoi, double angle, double xShift, double yShift,
                                      vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiRect dstRoi, double angle, double xShift, double yShift,
                                      vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiRect dstRoi, double angle, double xShift, double yShift,
                                      vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                       int dstStep, VemiRect dstRoi, double angle, double xShift, double yShift,
                                       vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi, double angle, double xShift,
                                      double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi, double angle, double xShift,
                                      double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_C1R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_C3R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_C4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_AC4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                        Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                        double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_P3R(const Vemi16u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* const pDst[3], int dstStep, VemiRect dstRoi, double angle,
                                       double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_16u_P4R(const Vemi16u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi16u* const pDst[4], int dstStep, VemiRect dstRoi, double angle,
                                       double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                       double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                        Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xShift,
                                        double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi, double angle,
                                       double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotate_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi, double angle,
                                       double xShift, double yShift, vemiInterpolation interpolation);

VEMI_API VemiStatus vemiRotateCenter_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                            double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                            double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                            double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi8u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi, double angle,
                                            double xCenter, double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi, double angle,
                                            double xCenter, double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_C1R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_C3R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_C4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_AC4R(const Vemi16u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi16u* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                              double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_P3R(const Vemi16u* const pSrc[3], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi16u* const pDst[3], int dstStep, VemiRect dstRoi,
                                             double angle, double xCenter, double yCenter,
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_16u_P4R(const Vemi16u* const pSrc[4], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi16u* const pDst[4], int dstStep, VemiRect dstRoi,
                                             double angle, double xCenter, double yCenter,
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                             double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi32f* pDst, int dstStep, VemiRect dstRoi, double angle, double xCenter,
                                              double yCenter, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                             double angle, double xCenter, double yCenter,
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRotateCenter_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                             double angle, double xCenter, double yCenter,
                                             vemiInterpolation interpolation);

VEMI_API VemiStatus vemiShear_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                     int dstStep, VemiRect dstRoi, double xShear, double yShear, double xShift,
                                     double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                     int dstStep, VemiRect dstRoi, double xShear, double yShear, double xShift,
                                     double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                     int dstStep, VemiRect dstRoi, double xShear, double yShear, double xShift,
                                     double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, Vemi8u* pDst,
                                      int dstStep, VemiRect dstRoi, double xShear, double yShear, double xShift,
                                      double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                     double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                     double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi32f* pDst, int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                      double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi32f* pDst, int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                      double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi32f* pDst, int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                      double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       Vemi32f* pDst, int dstStep, VemiRect dstRoi, double xShear, double yShear,
                                       double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi, double xShear,
                                      double yShear, double xShift, double yShift, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiShear_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi, double xShear,
                                      double yShear, double xShift, double yShift, vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpAffine_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                          Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                          vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                          Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                          vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                          Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                          vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                           vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                          Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                          const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                          Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                          const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                           vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                           vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                           vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                            vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                           const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffine_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                           Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                           const double coeffs[2][3], vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpAffineBack_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                              VemiRect srcRoi, Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                              const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                              VemiRect srcRoi, Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                              const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][3],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                               const double coeffs[2][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineBack_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                               const double coeffs[2][3], vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpAffineQuad_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                              const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                              const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                              const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                               const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                              VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[3],
                                              int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                              VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[4],
                                              int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               const double srcQuad[4][2], Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                               const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               const double srcQuad[4][2], Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                               const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               const double srcQuad[4][2], Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                               const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                const double srcQuad[4][2], Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[3],
                                               int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpAffineQuad_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[4],
                                               int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                               vemiInterpolation interpolation);
/** @} */

/**
 * @defgroup vemi_geometry_affine_queries Where affine maps lead
 *
 * vemiGetRotateShift gives the shift with which a rotation leaves (xCenter, yCenter) where it is; vemiAddRotateShift
 * adds it to what *pxShift and *pyShift hold:
 *
 *     xShift = xCenter - cos a xCenter - sin a yCenter
 *     yShift = yCenter + sin a xCenter - cos a yCenter
 *
 * and for 0, 90, 180 and 270 degrees exactly (0, 0), (xc - yc, xc + yc), (2 xc, 2 yc), (xc + yc, yc - xc).
 *
 * vemiGet...Quad gives the places of a region's corner pixels: of (left, top), (right, top), (right, bottom), (left,
 * bottom) with right = x + width - 1 and bottom = y + height - 1. vemiGet...Bound gives the least x and y of these,
 * then the greatest: what a destination must hold. All are computed in doubles.
 *
 * vemiGetAffineTransform gives the coefficients of the map that takes the region's corners 0, 1, 2 to those of the
 * quadrangle. With corners (x0, y0) to (x3, y3), w = width - 1 and h = height - 1:
 *
 *     c00 = (x1 - x0) / w,  c01 = (x2 - x1) / h,  c02 = x0 - c00 left - c01 top, and the same with y.
 *
 *     double bound[2][2];
 *     vemiGetRotateBound(region, bound, 30, 0, 0);  // then rotate with xShift = -bound[0][0], yShift = -bound[0][1]
 *
 * @param srcRoi           a region of a source
 * @param quad             four corners (x, y)
 * @param bound            {{least x, least y}, {greatest x, greatest y}}
 * @param angle            degrees, counter-clockwise on the screen
 * @param xCenter,yCenter  the point that stays where it is
 * @param xShear,yShear,xShift,yShift,coeffs  the map
 * @param pxShift,pyShift  the shift
 * @return The first of these that applies:
 * - a negative position of the region, or a width or height below 1: vemiErrSize
 * - a null pointer: vemiErrNullPtr
 * - vemiGetRotateQuad, vemiGetShearQuad, vemiGetAffineQuad: the quadrangle is degenerate, or its corners are no
 *   numbers: vemiErrQuad, and nothing is written. vemiGetShearBound, vemiGetAffineBound: the same, but the bound is
 *   written
 * - vemiGetAffineTransform: the quadrangle is degenerate or not convex: vemiErrCoeff; a region with a width or height
 *   of 1: vemiErrRect; the quadrangle is no parallelogram: vemiWarnNotParallelogram, and the coefficients are those of
 *   its first three corners
 * @{
 */
VEMI_API VemiStatus vemiGetRotateShift(double xCenter, double yCenter, double angle, double* pxShift, double* pyShift);
VEMI_API VemiStatus vemiAddRotateShift(double xCenter, double yCenter, double angle, double* pxShift, double* pyShift);
VEMI_API VemiStatus vemiGetRotateQuad(VemiRect srcRoi, double quad[4][2], double angle, double xShift, double yShift);
VEMI_API VemiStatus vemiGetRotateBound(VemiRect srcRoi, double bound[2][2], double angle, double xShift, double yShift);
VEMI_API VemiStatus vemiGetShearQuad(VemiRect srcRoi, double quad[4][2], double xShear, double yShear, double xShift,
                                     double yShift);
VEMI_API VemiStatus vemiGetShearBound(VemiRect srcRoi, double bound[2][2], double xShear, double yShear, double xShift,
                                      double yShift);
VEMI_API VemiStatus vemiGetAffineQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[2][3]);
VEMI_API VemiStatus vemiGetAffineBound(VemiRect srcRoi, double bound[2][2], const double coeffs[2][3]);
VEMI_API VemiStatus vemiGetAffineTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[2][3]);
/** @} */

/* ---- Perspective and bilinear warps ------------------------------------------------------------------------------ */

/**
 * @defgroup vemi_geometry_quad Perspective and bilinear warps
 *
 * Maps with which a rectangle becomes any convex quadrangle: as a photograph shows a page that is seen from the side,
 * whose straight lines stay straight; or bilinear, by which only the lines along x and y do.
 *
 *     perspective   x' = (c00 x + c01 y + c02) / z,  y' = (c10 x + c11 y + c12) / z,  z = c20 x + c21 y + c22
 *     bilinear      x' = c00 x y + c01 x + c02 y + c03,  y' = c10 x y + c11 x + c12 y + c13
 *
 *     function                    map
 *     vemiWarpPerspective         coeffs, from the source to the destination
 *     vemiWarpPerspectiveBack     coeffs lead from the destination to the source
 *     vemiWarpPerspectiveQuad     the perspective map of srcQuad's four corners to those of dstQuad
 *     vemiWarpBilinear            coeffs, from the source to the destination
 *     vemiWarpBilinearBack        coeffs lead from the destination to the source
 *     vemiWarpBilinearQuad        srcQuad to the unit square and on to dstQuad, each by its bilinear map
 *
 * Images, regions, interpolations, smooth edges and quadrangles are those of the affine warps: the pixels of dstRoi
 * whose middles lie in the quadrangle that the map makes of the source region, or in dstQuad, get what the map fetches
 * from the source, no other byte is written, and nothing outside of the source image is read. The `Quad` forms fetch
 * nothing from outside of the source region. What vemiWarpBilinearBack fetches has curved edges in the destination:
 * there, all pixels of dstRoi whose places lie in the source region are written.
 *
 * **Places** are computed in doubles and rounded to floats. Perspective: the numerators and z of pixel i of a span are
 * those of its first pixel and i times c00, c10 and c20 of the inverse map. Bilinear forward maps are solved for each
 * pixel, by the root that lies in the source region; vemiWarpBilinearBack takes x + i (c00 y' + c01), and y likewise.
 *
 * The calling thread does the work, without memory of its own, whatever rounding mode it has set.
 *
 *     const double page[4][2] = {{112, 40}, {601, 78}, {640, 803}, {71, 777}};  // as the photograph shows it
 *     const double sheet[4][2] = {{0, 0}, {w - 1, 0}, {w - 1, h - 1}, {0, h - 1}};
 *     vemiWarpPerspectiveQuad_8u_C3R(src, srcSize, srcStep, whole, page, dst, dstStep, (VemiRect){0, 0, w, h}, sheet,
 *                                    vemiInterCubic);
 *
 * @param pSrc,srcSize,srcStep,srcRoi  the source: first pixel, size in pixels, bytes between rows, region
 * @param pDst,dstStep,dstRoi          the destination: first pixel, bytes between rows, region
 * @param coeffs                       three rows of three coefficients; two of four
 * @param srcQuad,dstQuad              four corners (x, y) each
 * @param interpolation                nearest, linear or cubic, with or without vemiSmoothEdge
 * @return The first of these that applies:
 * - a null pointer: vemiErrNullPtr; null planes are found behind the interpolation
 * - srcSize, srcRoi or dstRoi has a width or height below 1, or a region a negative position: vemiErrSize
 * - a step below 1: vemiErrStep
 * - another interpolation: vemiErrInterpolation
 * - perspective maps by coeffs: c00 c11 - c01 c10 is 0 but for rounding (1e-12 of c00 c11), or |c22| at most 1e-12;
 *   vemiWarpBilinearBack: c01 c12 - c02 c11 is 0 but for rounding: vemiErrQuad. `Quad` forms: a quadrangle that is
 *   degenerate or not convex: vemiErrCoeff
 * - the source region begins beyond the image: vemiWarnNoIntersection
 * - less than two columns or rows of it lie in the image: vemiErrRect
 * - the map makes a degenerate quadrangle of it, or one that is not convex, or coefficients are no numbers (not looked
 *   for by vemiWarpBilinearBack): vemiErrQuad
 * - the quadrangle misses dstRoi, or srcQuad the source region: vemiWarnQuadIntersection, but vemiOk of `Back` forms
 *
 * Nothing is written in any of these cases.
 * @{
 */
VEMI_API VemiStatus vemiWarpPerspective_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                               Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                               vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                               const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                               VemiRect srcRoi, Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                               const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[3][3],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                                const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspective_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                                const double coeffs[3][3], vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                   const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                   const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                   const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                    const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                                   VemiRect srcRoi, Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                                   const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                                   VemiRect srcRoi, Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                                   const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                    const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                    const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                    const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep,
                                                     VemiRect srcRoi, Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                     const double coeffs[3][3], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                                    VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep,
                                                    VemiRect dstRoi, const double coeffs[3][3],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveBack_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                                    VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep,
                                                    VemiRect dstRoi, const double coeffs[3][3],
                                                    vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   const double srcQuad[4][2], Vemi8u* pDst, int dstStep,
                                                   VemiRect dstRoi, const double dstQuad[4][2],
                                                   vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   const double srcQuad[4][2], Vemi8u* pDst, int dstStep,
                                                   VemiRect dstRoi, const double dstQuad[4][2],
                                                   vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                   const double srcQuad[4][2], Vemi8u* pDst, int dstStep,
                                                   VemiRect dstRoi, const double dstQuad[4][2],
                                                   vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    const double srcQuad[4][2], Vemi8u* pDst, int dstStep,
                                                    VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                                   VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[3],
                                                   int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                   vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                                   VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[4],
                                                   int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                   vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                    VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                    VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                    const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                    VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep,
                                                     VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* pDst,
                                                     int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                     vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                                    VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[3],
                                                    int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpPerspectiveQuad_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                                    VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[4],
                                                    int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                    vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpBilinear_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                            vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                            vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                            vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                            const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                            Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                            const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                             Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                             vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                              Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                              vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                             const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinear_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                             VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                             const double coeffs[2][4], vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpBilinearBack_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 Vemi8u* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, Vemi8u* const pDst[3], int dstStep, VemiRect dstRoi,
                                                const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, Vemi8u* const pDst[4], int dstStep, VemiRect dstRoi,
                                                const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 Vemi32f* pDst, int dstStep, VemiRect dstRoi, const double coeffs[2][4],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                  Vemi32f* pDst, int dstStep, VemiRect dstRoi,
                                                  const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                                 VemiRect srcRoi, Vemi32f* const pDst[3], int dstStep, VemiRect dstRoi,
                                                 const double coeffs[2][4], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearBack_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                                 VemiRect srcRoi, Vemi32f* const pDst[4], int dstStep, VemiRect dstRoi,
                                                 const double coeffs[2][4], vemiInterpolation interpolation);

VEMI_API VemiStatus vemiWarpBilinearQuad_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 const double srcQuad[4][2], Vemi8u* pDst, int dstStep, VemiRect dstRoi,
                                                 const double dstQuad[4][2], vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[3],
                                                int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep,
                                                VemiRect srcRoi, const double srcQuad[4][2], Vemi8u* const pDst[4],
                                                int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                 VemiRect dstRoi, const double dstQuad[4][2],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                 VemiRect dstRoi, const double dstQuad[4][2],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                 const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                 VemiRect dstRoi, const double dstQuad[4][2],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                                  const double srcQuad[4][2], Vemi32f* pDst, int dstStep,
                                                  VemiRect dstRoi, const double dstQuad[4][2],
                                                  vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep,
                                                 VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[3],
                                                 int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                 vemiInterpolation interpolation);
VEMI_API VemiStatus vemiWarpBilinearQuad_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep,
                                                 VemiRect srcRoi, const double srcQuad[4][2], Vemi32f* const pDst[4],
                                                 int dstStep, VemiRect dstRoi, const double dstQuad[4][2],
                                                 vemiInterpolation interpolation);

/** @} */

/**
 * @defgroup vemi_geometry_quad_queries Quadrangles of perspective and bilinear maps
 *
 * Where a map takes the corners of a rectangle, between the middles of its outermost pixels; the least and the greatest
 * x and y of these; and the map that takes the rectangle to a quadrangle.
 *
 *     vemiGetPerspectiveQuad, vemiGetBilinearQuad              quad = the four corners' places
 *     vemiGetPerspectiveBound, vemiGetBilinearBound            bound = {{least x, least y}, {greatest x, greatest y}}
 *     vemiGetPerspectiveTransform, vemiGetBilinearTransform    coeffs of the map to quad
 *
 * With (x0, y0) to (x3, y3) the corners of quad, those of the rectangle from left to right and top to bottom,
 * w = 1 / (right - left) and h = 1 / (bottom - top), the transforms are, in doubles:
 *
 *     perspective   dx1 = x1 - x2, dx2 = x3 - x2, dxs = x0 - x1 + x2 - x3, y likewise, D = 1 / (dx1 dy2 - dx2 dy1),
 *                   g = (dxs dy2 - dx2 dys) D, k = (dx1 dys - dxs dy1) D;
 *                   c00 = (x1 - x0 + g x1) w, c01 = (x3 - x0 + k x3) h, c02 = x0 - c00 left - c01 top, c10 to c12
 *                   likewise, c20 = g w, c21 = k h, c22 = 1 - c20 left - c21 top
 *     bilinear      c00 = -(x1 - x0 + x3 - x2) P, c01 = ((x1 - x0) bottom + (x3 - x2) top) P,
 *                   c02 = ((x3 - x0) right - (x2 - x1) left) P, c03 = x0 - c01 left - c02 top - c00 left top, P = w h,
 *                   c10 to c13 likewise
 *
 *     double coeffs[3][3];
 *     vemiGetPerspectiveTransform((VemiRect){0, 0, 640, 480}, quad, coeffs);
 *
 * @return vemiErrSize, where the rectangle has a width or height below 1 or a negative position; vemiErrNullPtr; of a
 *         quadrangle that is degenerate, crossed or not convex, vemiErrQuad, with nothing written by `Quad` queries and
 *         with the bound written, or vemiErrCoeff of transforms; vemiErrRect of a transform of a rectangle with less
 *         than two columns or rows: in this order.
 * @{
 */
VEMI_API VemiStatus vemiGetPerspectiveQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[3][3]);
VEMI_API VemiStatus vemiGetPerspectiveBound(VemiRect srcRoi, double bound[2][2], const double coeffs[3][3]);
VEMI_API VemiStatus vemiGetPerspectiveTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[3][3]);
VEMI_API VemiStatus vemiGetBilinearQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[2][4]);
VEMI_API VemiStatus vemiGetBilinearBound(VemiRect srcRoi, double bound[2][2], const double coeffs[2][4]);
VEMI_API VemiStatus vemiGetBilinearTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[2][4]);
/** @} */

/* ---- Maps of the user's ------------------------------------------------------------------------------------------ */

/**
 * @defgroup vemi_geometry_remap Maps of the user's
 *
 *     pDst(x, y) = pSrc(pxMap(x, y), pyMap(x, y))
 *
 * Two images of floats, as large as the destination's region, say for each of its pixels which column and row of the
 * source it comes from: a lens is corrected so, or a picture rippled. 0 is the middle of the first pixel, 0.5 lies
 * halfway to the next one.
 *
 * **Arguments.** `pSrc` is the first pixel of the whole source image, `srcSize` its size, and `srcRoi` the part of it
 * that is used. A pixel whose x lies below srcRoi.x or above srcRoi.x + srcRoi.width - 1, whose y does so with rows, or
 * of which one is a NaN or infinite, keeps what the destination holds. So does one that lies beyond the image, where
 * `srcRoi` reaches over its edge. `pDst` is the first pixel that is written, `dstRoiSize` the size of all three of
 * destination and maps. Planar forms take arrays of three or four planes with one step for all. Images do not overlap.
 *
 * **Interpolation**, with which neighbours of (x, y) come from the image around `srcRoi` too:
 *   - vemiInterNearest: x and y are rounded to the nearest integer, ties to even.
 *   - vemiInterLinear: with i = trunc(x), columns i and i + 1 are weighed by 1 - w and w, w = x - i; then rows in the
 *     same way. In the image's last column i is one less, and w is 1.
 *   - vemiInterCubic: the polynomial through columns i - 1 to i + 2, then rows in the same way. Where such columns lie
 *     beyond the image, the four next to its edge are taken.
 *
 * An image with one row or column is fetched by vemiInterNearest, and one with less than four of them not by
 * vemiInterCubic, but by vemiInterLinear, whatever `interpolation` says.
 *
 * **Bytes** are made in fixed point. Linear: W = w rounded to 1/16384, as an integer; a row's value is
 * h = (p0 * (16384 - W) + p1 * W) >> 8, and the result (h0 * (16384 - V) + h1 * V + 2^19) >> 20, V that of the rows.
 * Cubic: x is rounded to 1/512 of a pixel, weights to 1/16384; a row's value is its sum >> 8, and the result
 * (sum of rows + 2^19) >> 20, limited to 0..255.
 *
 * **Floats**: linear p0 * (1 - w) + p1 * w; cubic, with t = w (i moved: w plus or minus as much), a = 1 + t,
 * b = t a / 2, c = (t - 1) b / 3: p0 + a d1 + b d2 + c d3, d1 = p1 - p0, d2 = (p2 - p1) - d1,
 * d3 = p1 - 2 p2 + p3 - d2. All in single precision and to nearest, each operation rounded by itself.
 *
 * Each channel by itself; AC4 forms leave the fourth channel of the destination as it is. The calling thread does the
 * work, whatever rounding mode it has set. The result is the same on every processor, to the bit.
 *
 *     vemiRemap_8u_C3R(src, srcSize, srcStep, whole, xs, 4 * w, ys, 4 * w, dst, dstStep, size, vemiInterLinear);
 *
 * @return vemiErrNullPtr; vemiErrSize, where a width or height is below 1, or srcRoi.x or srcRoi.y below 0;
 *         vemiErrInterpolation for any other interpolation, also one with vemiSmoothEdge; vemiErrStep, where a step is
 *         below 1: in this order.
 * @{
 */
VEMI_API VemiStatus vemiRemap_8u_C1R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                     Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_8u_C3R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                     Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_8u_C4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                     Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_8u_AC4R(const Vemi8u* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi8u* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_8u_P3R(const Vemi8u* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                     Vemi8u* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                     vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_8u_P4R(const Vemi8u* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                     const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                     Vemi8u* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                     vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_C1R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_C3R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_C4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi32f* pDst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_AC4R(const Vemi32f* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                       const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                       Vemi32f* pDst, int dstStep, VemiSize dstRoiSize,
                                       vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_P3R(const Vemi32f* const pSrc[3], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi32f* const pDst[3], int dstStep, VemiSize dstRoiSize,
                                      vemiInterpolation interpolation);
VEMI_API VemiStatus vemiRemap_32f_P4R(const Vemi32f* const pSrc[4], VemiSize srcSize, int srcStep, VemiRect srcRoi,
                                      const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, int yMapStep,
                                      Vemi32f* const pDst[4], int dstStep, VemiSize dstRoiSize,
                                      vemiInterpolation interpolation);
/** @} */

/* ---- Mirrors ----------------------------------------------------------------------------------------------------- */

/** The axis about which an image is turned over. */
typedef int vemiAxis;
enum {
  vemiAxisHorizontal = 0, /**< rows change places: what was at the top is at the bottom */
  vemiAxisVertical = 1,   /**< columns change places: what was at the left is at the right */
  vemiAxisBoth = 2        /**< both, which is half a turn */
};

/**
 * @defgroup vemi_geometry_mirror Mirrors
 *
 *     vemiAxisHorizontal   pDst(x, h - 1 - y) = pSrc(x, y)
 *     vemiAxisVertical     pDst(w - 1 - x, y) = pSrc(x, y)
 *     vemiAxisBoth         pDst(w - 1 - x, h - 1 - y) = pSrc(x, y)
 *
 * for the w * h pixels of the region. Channels of a pixel stay in their order, and elements are moved as they are: 32s
 * forms serve floats as well. AC4 forms leave the fourth channel of each destination pixel as it is.
 *
 * The I forms work in place and need no memory. In the others, source and destination do not overlap. The calling
 * thread does the work.
 *
 *     vemiMirror_8u_C3IR(image, step, size, vemiAxisVertical);  // as in a mirror on the wall
 *
 * @return vemiErrNullPtr; vemiErrStep, where a step is below 1; vemiErrSize, where the width or height is below 1;
 *         vemiErrMirrorFlip for any other axis: in this order, which has the steps ahead of the size.
 * @{
 */
VEMI_API VemiStatus vemiMirror_8u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_C3R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_C4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                      vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_AC4R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_C1IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_C3IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_C4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_8u_AC4IR(Vemi8u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C1R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C3R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_AC4R(const Vemi16u* pSrc, int srcStep, Vemi16u* pDst, int dstStep, VemiSize roiSize,
                                        vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C1IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C3IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_C4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_16u_AC4IR(Vemi16u* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C1R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C3R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C4R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize,
                                       vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_AC4R(const Vemi32s* pSrc, int srcStep, Vemi32s* pDst, int dstStep, VemiSize roiSize,
                                        vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C1IR(Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C3IR(Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_C4IR(Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
VEMI_API VemiStatus vemiMirror_32s_AC4IR(Vemi32s* pSrcDst, int srcDstStep, VemiSize roiSize, vemiAxis flip);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
