// vemiRemap: each pixel of the destination is fetched from where two maps say that it comes from.
//
// Statuses: null pointers, size, interpolation, step.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "geometry/fetch.h"

namespace vemi::geometry {
namespace {

struct Maps {
  Image<const Vemi32f> x, y;
};

/// What of the source may be fetched.
struct Within {
  VemiSize size;
  VemiRect roi;

  FetchLimits limits() const {
    const double left = roi.x, top = roi.y;
    return FetchLimits::within(left, top, std::min(left + roi.width, static_cast<double>(size.width)) - 1,
                               std::min(top + roi.height, static_cast<double>(size.height)) - 1);
  }
};

VemiStatus checkKind(int interpolation) {
  const bool isKnown =
      interpolation == vemiInterNearest || interpolation == vemiInterLinear || interpolation == vemiInterCubic;
  return isKnown ? vemiOk : vemiErrInterpolation;
}

template <class Src, class Dst>
VemiStatus check(Src src, Within within, Maps maps, Dst dst, VemiSize dstRoiSize, int interpolation) {
  return firstOf(checkNull(src, dst, maps.x, maps.y), checkSize(within.size), checkRect(within.roi),
                 checkSize(dstRoiSize), checkKind(interpolation), checkStep(src, dst, maps.x, maps.y));
}

template <class T, class L>
void fetchImage(Image<const T> src, Within within, Maps maps, Image<T> dst, VemiSize dstRoiSize, int interpolation) {
  const FetchRow<T> fetch = fetchRow<T, L>(interpolationWithin(within.size, interpolation));
  const FetchSource source = FetchSource::of<L>(src, within.size, within.limits());
  const bool contiguous =
      isContiguous<C1>(maps.x, dstRoiSize) && isContiguous<C1>(maps.y, dstRoiSize) && isContiguous<L>(dst, dstRoiSize);
  const Extent extent = mergedExtent(dstRoiSize, contiguous);
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    fetch(source, extent.width, maps.x.row(y), maps.y.row(y), dst.row(y));
  }
}

template <class T, class L>
VemiStatus remap(Image<const T> src, Within within, Maps maps, Image<T> dst, VemiSize dstRoiSize, int interpolation) {
  if (VemiStatus bad = check(src, within, maps, dst, dstRoiSize, interpolation)) return bad;
  return roundingToNearest([&] {
    fetchImage<T, L>(src, within, maps, dst, dstRoiSize, interpolation);
    return vemiOk;
  });
}

template <class T, int planes>
VemiStatus remapPlanes(Planes<const T, planes> src, Within within, Maps maps, Planes<T, planes> dst,
                       VemiSize dstRoiSize, int interpolation) {
  if (VemiStatus bad = check(src, within, maps, dst, dstRoiSize, interpolation)) return bad;
  return roundingToNearest([&] {
    for (int n = 0; n < planes; ++n) fetchImage<T, C1>(src[n], within, maps, dst[n], dstRoiSize, interpolation);
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define VEMI_REMAP(Src, Dst, src, dst)                                                                             \
  ((Src, VemiSize srcSize, int srcStep, VemiRect srcRoi, const Vemi32f* pxMap, int xMapStep, const Vemi32f* pyMap, \
    int yMapStep, Dst, int dstStep, VemiSize dstRoiSize, vemiInterpolation interpolation),                         \
   (src{pSrc, srcStep}, Within{srcSize, srcRoi}, Maps{{pxMap, xMapStep}, {pyMap, yMapStep}}, dst{pDst, dstStep},   \
    dstRoiSize, interpolation))
#define VEMI_REMAP_IMAGE(T) VEMI_REMAP(const T* pSrc, T* pDst, Image<const T>, Image<T>)
#define VEMI_REMAP_3PLANES(T) \
  VEMI_REMAP(const T* const pSrc[3], T* const pDst[3], VEMI_3PLANES(const T), VEMI_3PLANES(T))
#define VEMI_REMAP_4PLANES(T) \
  VEMI_REMAP(const T* const pSrc[4], T* const pDst[4], VEMI_4PLANES(const T), VEMI_4PLANES(T))
#define VEMI_3PLANES(...) Planes<__VA_ARGS__, 3>
#define VEMI_4PLANES(...) Planes<__VA_ARGS__, 4>

VEMI_DEFINE(vemiRemap_8u_C1R, VEMI_REMAP_IMAGE(Vemi8u), remap<Vemi8u, C1>)
VEMI_DEFINE(vemiRemap_8u_C3R, VEMI_REMAP_IMAGE(Vemi8u), remap<Vemi8u, C3>)
VEMI_DEFINE(vemiRemap_8u_C4R, VEMI_REMAP_IMAGE(Vemi8u), remap<Vemi8u, C4>)
VEMI_DEFINE(vemiRemap_8u_AC4R, VEMI_REMAP_IMAGE(Vemi8u), remap<Vemi8u, AC4>)
VEMI_DEFINE(vemiRemap_8u_P3R, VEMI_REMAP_3PLANES(Vemi8u), remapPlanes)
VEMI_DEFINE(vemiRemap_8u_P4R, VEMI_REMAP_4PLANES(Vemi8u), remapPlanes)
VEMI_DEFINE(vemiRemap_32f_C1R, VEMI_REMAP_IMAGE(Vemi32f), remap<Vemi32f, C1>)
VEMI_DEFINE(vemiRemap_32f_C3R, VEMI_REMAP_IMAGE(Vemi32f), remap<Vemi32f, C3>)
VEMI_DEFINE(vemiRemap_32f_C4R, VEMI_REMAP_IMAGE(Vemi32f), remap<Vemi32f, C4>)
VEMI_DEFINE(vemiRemap_32f_AC4R, VEMI_REMAP_IMAGE(Vemi32f), remap<Vemi32f, AC4>)
VEMI_DEFINE(vemiRemap_32f_P3R, VEMI_REMAP_3PLANES(Vemi32f), remapPlanes)
VEMI_DEFINE(vemiRemap_32f_P4R, VEMI_REMAP_4PLANES(Vemi32f), remapPlanes)
