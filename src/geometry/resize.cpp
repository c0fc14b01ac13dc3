// vemiResize, vemiResizeCenter, vemiResizeShift, vemiGetResizeFract: images in another size.
// Checks: null, source size, step, source region (size, then whether it begins within the image), destination size,
// factors, interpolation.

#include "geometry/resize.h"

#include <algorithm>
#include <cmath>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"

namespace vemi::geometry {
namespace {

/// The images of a call, of layout L: one, or planes.
template <class T, class L, int count>
struct Resized {
  const T* const* src;
  int srcStep;
  VemiSize srcSize;
  VemiRect srcRoi;
  T* const* dst;
  int dstStep;
  VemiSize dstSize;
};

/// A pair of numbers, for the two directions.
struct Pair {
  double x, y;
};

/// What is no number is no factor either.
VemiStatus checkFactors(Pair factor) { return factor.x > 0 && factor.y > 0 ? vemiOk : vemiErrResizeFactor; }

VemiStatus checkInterpolation(vemiInterpolation interpolation, bool takesSuper) {
  switch (interpolation) {
    case vemiInterNearest:
    case vemiInterLinear:
    case vemiInterCubic:
    case vemiInterLanczos:
      return vemiOk;
    default:
      return interpolation == vemiInterSuper && takesSuper ? vemiOk : vemiErrInterpolation;
  }
}

template <class T, class L, int count>
VemiStatus check(const Resized<T, L, count>& images, Pair factor, vemiInterpolation interpolation, bool takesSuper) {
  const Planes<const T, count> src = {images.src, images.srcStep};
  const Planes<T, count> dst = {images.dst, images.dstStep};
  return firstOf(checkNull(src, dst), checkSize(images.srcSize), checkStep(src, dst), checkRect(images.srcRoi),
                 checkIntersection(images.srcRoi, images.srcSize), checkSize(images.dstSize), checkFactors(factor),
                 checkInterpolation(interpolation, takesSuper));
}

/// Small images have no room for many samples, wherever the region lies.
vemiInterpolation suitedTo(VemiSize image, vemiInterpolation interpolation) {
  const int least = std::min(image.width, image.height);
  if (interpolation == vemiInterLanczos && least < 8) interpolation = vemiInterCubic;
  if (interpolation == vemiInterCubic && least < 4) interpolation = vemiInterLinear;
  return least < 2 ? vemiInterNearest : interpolation;
}

/// Columns of the destination: as many as the region gives, one at least.
int countOf(double given, int destination) {
  return given < destination ? std::max(1, static_cast<int>(given)) : destination;
}

/// From column to column, in source pixels. But for the nearest pixel, the outermost pixels of the region are those of
/// the result.
double stepOf(int region, double factor, bool nearest) {
  if (nearest) return 1 / factor;
  const double size = region * factor;
  return size > 1 ? (region - 1) / (size - 1) : 0;
}

/// Nearest pixels are those of the columns' middles.
double startOf(double step, double shift, int region, bool nearest) {
  return (nearest ? 0.5 * step + shift : shift) + region;
}

template <class T, class L, int count>
VemiStatus resizeByFactors(const Resized<T, L, count>& images, Pair factor, Pair shift,
                           vemiInterpolation interpolation) {
  const VemiSize region = clippedSize(images.srcRoi, images.srcSize);
  const vemiInterpolation kind = suitedTo(images.srcSize, interpolation);
  const bool nearest = kind == vemiInterNearest, area = kind == vemiInterSuper;
  const auto axis = [&](int image, int first, int width, int destination, double f, double s) {
    const double step = stepOf(width, f, nearest || area);
    return Axis{image, countOf(width * f + negligible, destination), startOf(step, s, first, nearest), step};
  };
  return resizeImages<T, L>(
      images.src, images.srcStep, images.dst, images.dstStep, count,
      {kind, images.srcSize,
       axis(images.srcSize.width, images.srcRoi.x, region.width, images.dstSize.width, factor.x, shift.x),
       axis(images.srcSize.height, images.srcRoi.y, region.height, images.dstSize.height, factor.y, shift.y), factor.x,
       factor.y});
}

bool takesSuper(Pair factor) { return factor.x <= 1 && factor.y <= 1; }

template <class T, class L, int count>
VemiStatus resize(Resized<T, L, count> images, Pair factor, vemiInterpolation interpolation) {
  if (const VemiStatus bad = check(images, factor, interpolation, takesSuper(factor))) return bad;
  return roundingToNearest([&] { return resizeByFactors(images, factor, {0, 0}, interpolation); });
}

template <class T, class L, int count>
VemiStatus resizeBySteps(Resized<T, L, count> images, Pair step, Pair shift, vemiInterpolation interpolation) {
  if (const VemiStatus bad = check(images, step, interpolation, false)) return bad;
  return roundingToNearest([&] {
    const VemiSize region = clippedSize(images.srcRoi, images.srcSize);
    const vemiInterpolation kind = suitedTo(images.srcSize, interpolation);
    const bool nearest = kind == vemiInterNearest;
    const auto axis = [&](int image, int first, int width, int destination, double by, double s) {
      const double given = nearest ? width / by + negligible : std::trunc((width - 1) / by + negligible) + 1;
      return Axis{image, countOf(given, destination), startOf(by, s, first, nearest), by};
    };
    return resizeImages<T, L>(
        images.src, images.srcStep, images.dst, images.dstStep, count,
        {kind, images.srcSize,
         axis(images.srcSize.width, images.srcRoi.x, region.width, images.dstSize.width, step.x, shift.x),
         axis(images.srcSize.height, images.srcRoi.y, region.height, images.dstSize.height, step.y, shift.y), 1, 1});
  });
}

/// What of the destination a region fills whose centre lies in the destination's, and what of the region fills it.
struct Placed {
  int dstFirst, dstCount;  // none where the region misses the destination
  int srcSkipped;
  double shift;

  Placed(int region, int destination, double factor, double centre) : Placed() {
    const double left = destination / 2.0 - centre * factor;
    if (!std::isfinite(left)) return;
    const double first = std::max(0.0, std::ceil(left));
    const double count = std::trunc(std::min<double>(destination, region * factor + left)) - first;
    if (!(count >= 1)) return;
    const double position = (first - left) / factor;
    srcSkipped = static_cast<int>(std::min(std::trunc(position), region - 1.0));
    shift = position - srcSkipped;
    dstFirst = static_cast<int>(first);
    dstCount = static_cast<int>(count);
  }

 private:
  Placed() : dstFirst(0), dstCount(0), srcSkipped(0), shift(0) {}
};

template <class T, class L, int count>
VemiStatus resizeAboutCentre(Resized<T, L, count> images, Pair factor, Pair centre, vemiInterpolation interpolation) {
  if (const VemiStatus bad = check(images, factor, interpolation, takesSuper(factor))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const VemiSize region = clippedSize(images.srcRoi, images.srcSize);
    const Placed x(region.width, images.dstSize.width, factor.x, centre.x);
    const Placed y(region.height, images.dstSize.height, factor.y, centre.y);
    if (x.dstCount == 0 || y.dstCount == 0) return vemiWarnNoIntersection;
    T* dst[count];
    for (int n = 0; n < count; ++n) {
      dst[n] = imageOf<L>(VemiRect{x.dstFirst, y.dstFirst, 1, 1}, Image<T>{images.dst[n], images.dstStep}).first;
    }
    Resized<T, L, count> placed = images;
    placed.srcRoi = {images.srcRoi.x + x.srcSkipped, images.srcRoi.y + y.srcSkipped, region.width - x.srcSkipped,
                     region.height - y.srcSkipped};
    placed.dst = dst;
    placed.dstSize = {x.dstCount, y.dstCount};
    return resizeByFactors(placed, factor, {x.shift, y.shift}, interpolation);
  });
}

VemiStatus getFract(VemiSize srcSize, VemiRect srcRoi, Pair factor, double* pxFr, double* pyFr,
                    vemiInterpolation interpolation) {
  if (const VemiStatus bad =
          firstOf(checkSize(srcSize), checkRect(srcRoi), checkIntersection(srcRoi, srcSize), checkFactors(factor),
                  checkNull(pxFr, pyFr), checkInterpolation(interpolation, false))) {
    return bad;
  }
  return roundingToNearest([&]() -> VemiStatus {
    const VemiSize region = clippedSize(srcRoi, srcSize);
    const bool nearest = interpolation == vemiInterNearest;
    *pxFr = stepOf(region.width, factor.x, nearest);
    *pyFr = stepOf(region.height, factor.y, nearest);
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

// Whole images and a region of the source, interleaved or in planes, and what the family takes behind them.
#define IMAGES(T, L, ...)                                                                                         \
  VEMI_HEAD(                                                                                                      \
      (const T* pSrc, VemiSize srcSize, int srcStep, VemiRect srcRoi, T* pDst, int dstStep, VemiSize dstRoiSize), \
      (Resized<T, L, 1>{&pSrc, srcStep, srcSize, srcRoi, &pDst, dstStep, dstRoiSize}), __VA_ARGS__)
#define PLANES(T, planes, ...)                                                                                   \
  VEMI_HEAD((const T* const pSrc[planes], VemiSize srcSize, int srcStep, VemiRect srcRoi, T* const pDst[planes], \
             int dstStep, VemiSize dstRoiSize),                                                                  \
            (Resized<T, C1, planes>{pSrc, srcStep, srcSize, srcRoi, pDst, dstStep, dstRoiSize}), __VA_ARGS__)

#define FACTORS ((double xFactor, double yFactor, int interpolation), (Pair{xFactor, yFactor}, interpolation))
#define CENTRE                                                                          \
  ((double xFactor, double yFactor, double xCenter, double yCenter, int interpolation), \
   (Pair{xFactor, yFactor}, Pair{xCenter, yCenter}, interpolation))
#define STEPS                                                                 \
  ((double xFr, double yFr, double xShift, double yShift, int interpolation), \
   (Pair{xFr, yFr}, Pair{xShift, yShift}, interpolation))

VEMI_DEFINE(vemiResize_8u_C1R, IMAGES(Vemi8u, C1, FACTORS), resize)
VEMI_DEFINE(vemiResize_8u_C3R, IMAGES(Vemi8u, C3, FACTORS), resize)
VEMI_DEFINE(vemiResize_8u_C4R, IMAGES(Vemi8u, C4, FACTORS), resize)
VEMI_DEFINE(vemiResize_8u_AC4R, IMAGES(Vemi8u, AC4, FACTORS), resize)
VEMI_DEFINE(vemiResize_8u_P3R, PLANES(Vemi8u, 3, FACTORS), resize)
VEMI_DEFINE(vemiResize_8u_P4R, PLANES(Vemi8u, 4, FACTORS), resize)

VEMI_DEFINE(vemiResize_16u_C1R, IMAGES(Vemi16u, C1, FACTORS), resize)
VEMI_DEFINE(vemiResize_16u_C3R, IMAGES(Vemi16u, C3, FACTORS), resize)
VEMI_DEFINE(vemiResize_16u_C4R, IMAGES(Vemi16u, C4, FACTORS), resize)
VEMI_DEFINE(vemiResize_16u_AC4R, IMAGES(Vemi16u, AC4, FACTORS), resize)
VEMI_DEFINE(vemiResize_16u_P3R, PLANES(Vemi16u, 3, FACTORS), resize)
VEMI_DEFINE(vemiResize_16u_P4R, PLANES(Vemi16u, 4, FACTORS), resize)

VEMI_DEFINE(vemiResize_32f_C1R, IMAGES(Vemi32f, C1, FACTORS), resize)
VEMI_DEFINE(vemiResize_32f_C3R, IMAGES(Vemi32f, C3, FACTORS), resize)
VEMI_DEFINE(vemiResize_32f_C4R, IMAGES(Vemi32f, C4, FACTORS), resize)
VEMI_DEFINE(vemiResize_32f_AC4R, IMAGES(Vemi32f, AC4, FACTORS), resize)
VEMI_DEFINE(vemiResize_32f_P3R, PLANES(Vemi32f, 3, FACTORS), resize)
VEMI_DEFINE(vemiResize_32f_P4R, PLANES(Vemi32f, 4, FACTORS), resize)

VEMI_DEFINE(vemiResizeCenter_8u_C1R, IMAGES(Vemi8u, C1, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_8u_C3R, IMAGES(Vemi8u, C3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_8u_C4R, IMAGES(Vemi8u, C4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_8u_AC4R, IMAGES(Vemi8u, AC4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_8u_P3R, PLANES(Vemi8u, 3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_8u_P4R, PLANES(Vemi8u, 4, CENTRE), resizeAboutCentre)

VEMI_DEFINE(vemiResizeCenter_16u_C1R, IMAGES(Vemi16u, C1, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_16u_C3R, IMAGES(Vemi16u, C3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_16u_C4R, IMAGES(Vemi16u, C4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_16u_AC4R, IMAGES(Vemi16u, AC4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_16u_P3R, PLANES(Vemi16u, 3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_16u_P4R, PLANES(Vemi16u, 4, CENTRE), resizeAboutCentre)

VEMI_DEFINE(vemiResizeCenter_32f_C1R, IMAGES(Vemi32f, C1, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_32f_C3R, IMAGES(Vemi32f, C3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_32f_C4R, IMAGES(Vemi32f, C4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_32f_AC4R, IMAGES(Vemi32f, AC4, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_32f_P3R, PLANES(Vemi32f, 3, CENTRE), resizeAboutCentre)
VEMI_DEFINE(vemiResizeCenter_32f_P4R, PLANES(Vemi32f, 4, CENTRE), resizeAboutCentre)

VEMI_DEFINE(vemiResizeShift_8u_C1R, IMAGES(Vemi8u, C1, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_8u_C3R, IMAGES(Vemi8u, C3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_8u_C4R, IMAGES(Vemi8u, C4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_8u_AC4R, IMAGES(Vemi8u, AC4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_8u_P3R, PLANES(Vemi8u, 3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_8u_P4R, PLANES(Vemi8u, 4, STEPS), resizeBySteps)

VEMI_DEFINE(vemiResizeShift_16u_C1R, IMAGES(Vemi16u, C1, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_16u_C3R, IMAGES(Vemi16u, C3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_16u_C4R, IMAGES(Vemi16u, C4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_16u_AC4R, IMAGES(Vemi16u, AC4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_16u_P3R, PLANES(Vemi16u, 3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_16u_P4R, PLANES(Vemi16u, 4, STEPS), resizeBySteps)

VEMI_DEFINE(vemiResizeShift_32f_C1R, IMAGES(Vemi32f, C1, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_32f_C3R, IMAGES(Vemi32f, C3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_32f_C4R, IMAGES(Vemi32f, C4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_32f_AC4R, IMAGES(Vemi32f, AC4, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_32f_P3R, PLANES(Vemi32f, 3, STEPS), resizeBySteps)
VEMI_DEFINE(vemiResizeShift_32f_P4R, PLANES(Vemi32f, 4, STEPS), resizeBySteps)

VEMI_DEFINE(vemiGetResizeFract,
            ((VemiSize srcSize, VemiRect srcRoi, double xFactor, double yFactor, double* pxFr, double* pyFr,
              int interpolation),
             (srcSize, srcRoi, Pair{xFactor, yFactor}, pxFr, pyFr, interpolation)),
            getFract)
