#include "geometry/warp.h"

namespace vemi::geometry {

VemiStatus sourceOf(const Regions& regions, int interpolation, WarpSource& source) {
  const VemiSize image = regions.srcSize, region = {regions.src.width, regions.src.height};
  const VemiStatus bad = checkIntersection(regions.src, image);
  if (bad) return bad;
  const int kind = interpolationWithin(image, interpolationWithin(region, withoutSmoothEdge(interpolation)));
  const VemiSize clipped = clippedSize(regions.src, image);
  if (clipped.width < 2 || clipped.height < 2) return vemiErrRect;
  source.region = {regions.src.x, regions.src.y, clipped.width, clipped.height};
  source.interpolation = kind;
  source.hasSmoothEdge = interpolation != withoutSmoothEdge(interpolation);
  // Within the quadrangle, coordinates leave the region by rounding alone.
  const Edges edges(kind == vemiInterCubic ? VemiRect{0, 0, image.width, image.height} : source.region);
  const double before = kind == vemiInterCubic ? 1 : 0;
  source.limits = FetchLimits::within(edges.left - before, edges.top - before, edges.right + 1, edges.bottom + 1);
  return vemiOk;
}

Coverage::Coverage(const Quad& quad) {
  const auto sideBehind = [&](int n) {
    const Point a = quad.corner[n], b = quad.corner[(n + 1) % 4], inside = quad.corner[(n + 2) % 4];
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double turn = dx * (inside.y - a.y) - dy * (inside.x - a.x);
    const double unit = (turn < 0 ? -1 : 1) / std::max(std::abs(dx), std::abs(dy));
    const double perX = -dy * unit, perY = dx * unit;
    return Side{perX, perY, 0.5 - (perX * a.x + perY * a.y)};
  };
  for (int n = 0; n < 4; ++n) side_[n] = sideBehind(n);
}

}  // namespace vemi::geometry
