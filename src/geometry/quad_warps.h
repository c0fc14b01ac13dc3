// Warps whose map takes a rectangle's corners to any convex quadrangle's, and the queries about such maps. A map has
// operator()(Point); PlacesBetween(to, from) is the generator that takes pixels in a quadrangle back to another one.
#pragma once

#include "core/checks.h"
#include "core/float_control.h"
#include "geometry/polygon.h"
#include "geometry/warp.h"
#include "vemi/status.h"

namespace vemi::geometry {

/// Into the quadrangle that `map` makes of the source region.
template <class PlacesBetween, class L, class Src, class Dst, class Map>
VemiStatus warpByQuad(Src src, Dst dst, const Regions& regions, const Map& map, int interpolation) {
  WarpSource source;
  if (const VemiStatus bad = sourceOf(regions, interpolation, source)) return bad;
  const Quad quad = quadOf(source.region, map);
  if (!isConvex(quad)) return vemiErrQuad;
  const Quad region = quadOf(source.region, [](Point p) { return p; });
  return warp<L>(imagesOf(src), imagesOf(dst), regions, source, quad, Polygon(quad), PlacesBetween(quad, region));
}

/// From one given quadrangle to another.
template <class PlacesBetween, class L, class Src, class Dst>
VemiStatus warpBetweenQuads(Src src, Dst dst, Regions regions, const double srcQuad[4][2], const double dstQuad[4][2],
                            int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, srcQuad, dstQuad)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad from = quadFrom(srcQuad), to = quadFrom(dstQuad);
    if (!isConvex(from) || !isConvex(to)) return vemiErrCoeff;
    WarpSource source;
    if (const VemiStatus bad = sourceOf(regions, interpolation, source)) return bad;
    limitToRegion(source);
    if (Polygon(from).clippedTo(source.region).count == 0) return vemiWarnQuadIntersection;
    return warp<L>(imagesOf(src), imagesOf(dst), regions, source, to, Polygon(to), PlacesBetween(to, from));
  });
}

/// Forms that lead from the destination to the source do not warn where they miss it.
inline VemiStatus withoutMiss(VemiStatus status) { return status == vemiWarnQuadIntersection ? vemiOk : status; }

// ---- Queries ------------------------------------------------------------------------------------------------------

/// vemiErrQuad, and no quadrangle, where it is bad.
template <class MapFrom, class Coefficients>
VemiStatus getQuad(VemiRect srcRoi, double quad[4][2], Coefficients coeffs, const MapFrom& mapFrom) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(quad, coeffs))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad result = quadOf(srcRoi, mapFrom(coeffs));
    if (!isConvex(result)) return vemiErrQuad;
    store(result, quad);
    return vemiOk;
  });
}

/// vemiErrQuad behind the bound of a bad quadrangle.
template <class MapFrom, class Coefficients>
VemiStatus getBound(VemiRect srcRoi, double bound[2][2], Coefficients coeffs, const MapFrom& mapFrom) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(bound, coeffs))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad quad = quadOf(srcRoi, mapFrom(coeffs));
    storeBound(quad, bound);
    return isConvex(quad) ? vemiOk : vemiErrQuad;
  });
}

/// storeTransform(edges, quadrangle) stores the coefficients of the map between the two.
template <class Coefficients, class StoreTransform>
VemiStatus getTransform(VemiRect srcRoi, const double quad[4][2], Coefficients coeffs,
                        const StoreTransform& storeTransform) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(quad, coeffs))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad to = quadFrom(quad);
    if (!isConvex(to)) return vemiErrCoeff;
    if (srcRoi.width < 2 || srcRoi.height < 2) return vemiErrRect;
    storeTransform(Edges(srcRoi), to);
    return vemiOk;
  });
}

}  // namespace vemi::geometry
