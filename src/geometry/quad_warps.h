// Warps whose map takes a rectangle's corners to a convex quadrangle's. A map has operator()(Point);
// PlacesBetween(to, from) is the generator that takes pixels in a quadrangle back to another one.
#pragma once

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

struct WholeQuad {
  Polygon operator()(const Quad&, const Quad& to) const { return Polygon(to); }
};

/// From one given quadrangle to another, of which the part polygonOf(from, to) is written.
template <class PlacesBetween, class L, class Src, class Dst, class PolygonOf = WholeQuad>
VemiStatus warpBetweenQuads(Src src, Dst dst, Regions regions, const double srcQuad[4][2], const double dstQuad[4][2],
                            int interpolation, const PolygonOf& polygonOf = {}) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, srcQuad, dstQuad)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad from = quadFrom(srcQuad), to = quadFrom(dstQuad);
    if (!isConvex(from) || !isConvex(to)) return vemiErrCoeff;
    WarpSource source;
    if (const VemiStatus bad = sourceOf(regions, interpolation, source)) return bad;
    limitToRegion(source);
    if (Polygon(from).clippedTo(source.region).count == 0) return vemiWarnQuadIntersection;
    return warp<L>(imagesOf(src), imagesOf(dst), regions, source, to, polygonOf(from, to), PlacesBetween(to, from));
  });
}

/// Forms that lead from the destination to the source do not warn where they miss it.
inline VemiStatus withoutMiss(VemiStatus status) { return status == vemiWarnQuadIntersection ? vemiOk : status; }

}  // namespace vemi::geometry
