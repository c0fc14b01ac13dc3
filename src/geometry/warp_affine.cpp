// vemiWarpAffine, vemiWarpAffineBack, vemiWarpAffineQuad, vemiShear: images moved by affine maps.
// Checks: null, size, step, interpolation, planes, map, intersection, region, quadrangle. A quadrangle that is given is
// tested in the place of the map.

#include "geometry/affine.h"
#include "geometry/exports.h"
#include "geometry/quad_warps.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

template <class L, class Src, class Dst>
VemiStatus warpAffine(Src src, Dst dst, Regions regions, const double coeffs[2][3], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return warpByMap<L>(src, dst, regions, affineFrom(coeffs), interpolation);
}

template <class L, class Src, class Dst>
VemiStatus warpAffineBack(Src src, Dst dst, Regions regions, const double coeffs[2][3], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Affine back = affineFrom(coeffs);
    WarpSource source;
    if (const VemiStatus bad = firstOf(checkNotSingular(back), sourceOf(regions, interpolation, source))) return bad;
    return warpThrough<L>(src, dst, regions, source, back.inverse(), back);
  });
}

template <class L, class Src, class Dst>
VemiStatus shearImage(Src src, Dst dst, Regions regions, double xShear, double yShear, Point shift, int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation)) return bad;
  return warpByMap<L>(src, dst, regions, shear(xShear, yShear, shift), interpolation);
}

/// The part of the destination's quadrangle that comes from the source's, where three corners do not settle the fourth.
Polygon commonPart(const Quad& srcQuad, const Quad& dstQuad) {
  const Affine map = cornersTo(srcQuad, dstQuad);
  const Polygon whole(dstQuad);
  const Point fourth = map(srcQuad.corner[3]), wanted = dstQuad.corner[3];
  double extent = 0;
  for (const Point& corner : dstQuad.corner) extent = std::max({extent, std::abs(corner.x), std::abs(corner.y)});
  if (std::max(std::abs(fourth.x - wanted.x), std::abs(fourth.y - wanted.y)) <= 1e-12 * extent) return whole;
  const auto insideOf = [&](Point a, Point b) {
    const Point within = map(srcQuad.corner[1]);
    const auto turn = [a, b](Point p) { return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x); };
    const double sign = turn(within) < 0 ? -1 : 1;
    return [turn, sign](Point p) { return sign * turn(p); };
  };
  const auto anywhere = [](Point p) { return p; };
  return whole.clippedBy(insideOf(map(srcQuad.corner[2]), fourth), anywhere)
      .clippedBy(insideOf(fourth, map(srcQuad.corner[0])), anywhere);
}

/// By three corners of each.
struct PlacesByCorners : AffinePlaces {
  PlacesByCorners(const Quad& to, const Quad& from) : AffinePlaces{cornersTo(to, from)} {}
};

template <class L, class Src, class Dst>
VemiStatus warpAffineQuad(Src src, Dst dst, Regions regions, const double srcQuad[4][2], const double dstQuad[4][2],
                          int interpolation) {
  return warpBetweenQuads<PlacesByCorners, L>(src, dst, regions, srcQuad, dstQuad, interpolation, commonPart);
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define AFFINE ((const double coeffs[2][3], vemiInterpolation interpolation), (coeffs, interpolation))
#define SHEAR                                                                                     \
  ((double xShear, double yShear, double xShift, double yShift, vemiInterpolation interpolation), \
   (xShear, yShear, Point{xShift, yShift}, interpolation))

VEMI_DEFINE(vemiWarpAffine_8u_C1R, VEMI_WARP(Vemi8u, AFFINE), warpAffine<C1>)
VEMI_DEFINE(vemiWarpAffine_8u_C3R, VEMI_WARP(Vemi8u, AFFINE), warpAffine<C3>)
VEMI_DEFINE(vemiWarpAffine_8u_C4R, VEMI_WARP(Vemi8u, AFFINE), warpAffine<C4>)
VEMI_DEFINE(vemiWarpAffine_8u_AC4R, VEMI_WARP(Vemi8u, AFFINE), warpAffine<AC4>)
VEMI_DEFINE(vemiWarpAffine_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, AFFINE), warpAffine<C1>)
VEMI_DEFINE(vemiWarpAffine_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, AFFINE), warpAffine<C1>)
VEMI_DEFINE(vemiWarpAffine_32f_C1R, VEMI_WARP(Vemi32f, AFFINE), warpAffine<C1>)
VEMI_DEFINE(vemiWarpAffine_32f_C3R, VEMI_WARP(Vemi32f, AFFINE), warpAffine<C3>)
VEMI_DEFINE(vemiWarpAffine_32f_C4R, VEMI_WARP(Vemi32f, AFFINE), warpAffine<C4>)
VEMI_DEFINE(vemiWarpAffine_32f_AC4R, VEMI_WARP(Vemi32f, AFFINE), warpAffine<AC4>)
VEMI_DEFINE(vemiWarpAffine_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, AFFINE), warpAffine<C1>)
VEMI_DEFINE(vemiWarpAffine_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, AFFINE), warpAffine<C1>)

VEMI_DEFINE(vemiWarpAffineBack_8u_C1R, VEMI_WARP(Vemi8u, AFFINE), warpAffineBack<C1>)
VEMI_DEFINE(vemiWarpAffineBack_8u_C3R, VEMI_WARP(Vemi8u, AFFINE), warpAffineBack<C3>)
VEMI_DEFINE(vemiWarpAffineBack_8u_C4R, VEMI_WARP(Vemi8u, AFFINE), warpAffineBack<C4>)
VEMI_DEFINE(vemiWarpAffineBack_8u_AC4R, VEMI_WARP(Vemi8u, AFFINE), warpAffineBack<AC4>)
VEMI_DEFINE(vemiWarpAffineBack_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, AFFINE), warpAffineBack<C1>)
VEMI_DEFINE(vemiWarpAffineBack_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, AFFINE), warpAffineBack<C1>)
VEMI_DEFINE(vemiWarpAffineBack_32f_C1R, VEMI_WARP(Vemi32f, AFFINE), warpAffineBack<C1>)
VEMI_DEFINE(vemiWarpAffineBack_32f_C3R, VEMI_WARP(Vemi32f, AFFINE), warpAffineBack<C3>)
VEMI_DEFINE(vemiWarpAffineBack_32f_C4R, VEMI_WARP(Vemi32f, AFFINE), warpAffineBack<C4>)
VEMI_DEFINE(vemiWarpAffineBack_32f_AC4R, VEMI_WARP(Vemi32f, AFFINE), warpAffineBack<AC4>)
VEMI_DEFINE(vemiWarpAffineBack_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, AFFINE), warpAffineBack<C1>)
VEMI_DEFINE(vemiWarpAffineBack_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, AFFINE), warpAffineBack<C1>)

VEMI_DEFINE(vemiShear_8u_C1R, VEMI_WARP(Vemi8u, SHEAR), shearImage<C1>)
VEMI_DEFINE(vemiShear_8u_C3R, VEMI_WARP(Vemi8u, SHEAR), shearImage<C3>)
VEMI_DEFINE(vemiShear_8u_C4R, VEMI_WARP(Vemi8u, SHEAR), shearImage<C4>)
VEMI_DEFINE(vemiShear_8u_AC4R, VEMI_WARP(Vemi8u, SHEAR), shearImage<AC4>)
VEMI_DEFINE(vemiShear_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, SHEAR), shearImage<C1>)
VEMI_DEFINE(vemiShear_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, SHEAR), shearImage<C1>)
VEMI_DEFINE(vemiShear_32f_C1R, VEMI_WARP(Vemi32f, SHEAR), shearImage<C1>)
VEMI_DEFINE(vemiShear_32f_C3R, VEMI_WARP(Vemi32f, SHEAR), shearImage<C3>)
VEMI_DEFINE(vemiShear_32f_C4R, VEMI_WARP(Vemi32f, SHEAR), shearImage<C4>)
VEMI_DEFINE(vemiShear_32f_AC4R, VEMI_WARP(Vemi32f, SHEAR), shearImage<AC4>)
VEMI_DEFINE(vemiShear_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, SHEAR), shearImage<C1>)
VEMI_DEFINE(vemiShear_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, SHEAR), shearImage<C1>)

VEMI_DEFINE(vemiWarpAffineQuad_8u_C1R, VEMI_WARP_QUAD(Vemi8u), warpAffineQuad<C1>)
VEMI_DEFINE(vemiWarpAffineQuad_8u_C3R, VEMI_WARP_QUAD(Vemi8u), warpAffineQuad<C3>)
VEMI_DEFINE(vemiWarpAffineQuad_8u_C4R, VEMI_WARP_QUAD(Vemi8u), warpAffineQuad<C4>)
VEMI_DEFINE(vemiWarpAffineQuad_8u_AC4R, VEMI_WARP_QUAD(Vemi8u), warpAffineQuad<AC4>)
VEMI_DEFINE(vemiWarpAffineQuad_8u_P3R, VEMI_WARP_QUAD_PLANES(Vemi8u, 3), warpAffineQuad<C1>)
VEMI_DEFINE(vemiWarpAffineQuad_8u_P4R, VEMI_WARP_QUAD_PLANES(Vemi8u, 4), warpAffineQuad<C1>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_C1R, VEMI_WARP_QUAD(Vemi32f), warpAffineQuad<C1>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_C3R, VEMI_WARP_QUAD(Vemi32f), warpAffineQuad<C3>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_C4R, VEMI_WARP_QUAD(Vemi32f), warpAffineQuad<C4>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_AC4R, VEMI_WARP_QUAD(Vemi32f), warpAffineQuad<AC4>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_P3R, VEMI_WARP_QUAD_PLANES(Vemi32f, 3), warpAffineQuad<C1>)
VEMI_DEFINE(vemiWarpAffineQuad_32f_P4R, VEMI_WARP_QUAD_PLANES(Vemi32f, 4), warpAffineQuad<C1>)
