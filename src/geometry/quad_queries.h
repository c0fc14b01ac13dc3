// Where maps take rectangles, and the maps that take them there. mapOf() gives a map, which has operator()(Point).
// Checks: size, null, and then what is told with each.
#pragma once

#include "core/checks.h"
#include "core/float_control.h"
#include "geometry/polygon.h"
#include "vemi/status.h"

namespace vemi::geometry {

/// vemiErrQuad, and no quadrangle, where it is bad. `array` is what the map is made of.
template <class MapOf, class... Array>
VemiStatus getQuad(VemiRect srcRoi, double quad[4][2], const MapOf& mapOf, Array... array) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(quad, array...))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad result = quadOf(srcRoi, mapOf());
    if (!isConvex(result)) return vemiErrQuad;
    store(result, quad);
    return vemiOk;
  });
}

/// vemiErrQuad behind the bound of a bad quadrangle.
template <class MapOf, class... Array>
VemiStatus getBound(VemiRect srcRoi, double bound[2][2], const MapOf& mapOf, Array... array) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(bound, array...))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad quad = quadOf(srcRoi, mapOf());
    storeBound(quad, bound);
    return isConvex(quad) ? vemiOk : vemiErrQuad;
  });
}

/// storeTransform(edges, quadrangle) stores the coefficients of the map between the two, and gives the status.
template <class Coefficients, class StoreTransform>
VemiStatus getTransform(VemiRect srcRoi, const double quad[4][2], Coefficients coeffs,
                        const StoreTransform& storeTransform) {
  if (const VemiStatus bad = firstOf(checkRect(srcRoi), checkNull(quad, coeffs))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Quad to = quadFrom(quad);
    if (!isConvex(to)) return vemiErrCoeff;
    if (srcRoi.width < 2 || srcRoi.height < 2) return vemiErrRect;
    return storeTransform(Edges(srcRoi), to);
  });
}

}  // namespace vemi::geometry
