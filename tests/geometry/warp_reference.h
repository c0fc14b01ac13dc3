// Warps written from their definition: pixels of a quadrangle, one by one.
#pragma once

#include <functional>
#include <vector>

#include "geometry/fetch_reference.h"

namespace vemi::test {

struct Spot {
  double x, y;
};
using Corners = std::vector<Spot>;

inline Corners cornersOf(VemiRect roi) {
  const double left = roi.x, top = roi.y, right = left + roi.width - 1, bottom = top + roi.height - 1;
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

/// Of p to the line from a to b: positive on the one side, negative on the other.
inline double sideOf(Spot a, Spot b, Spot p) { return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x); }

/// 1 or -1 for the orientation of a convex polygon; 0 where it is degenerate, crossed or no polygon at all.
inline int orientationOf(const Corners& corners) {
  const size_t count = corners.size();
  int sum = 0;
  for (size_t n = 0; n < count; ++n) {
    const Spot a = corners[n], b = corners[(n + 1) % count], c = corners[(n + 2) % count];
    const double side = (b.x - a.x) * (c.y - b.y) - (c.x - b.x) * (b.y - a.y);
    sum += side > 0 ? 1 : side < 0 ? -1 : 0;
  }
  return sum == static_cast<int>(count) ? 1 : sum == -static_cast<int>(count) ? -1 : 0;
}

/// What of a polygon lies where a linear function is not negative.
inline Corners cut(const Corners& corners, const std::function<double(Spot)>& inside) {
  Corners kept;
  for (size_t n = 0; n < corners.size(); ++n) {
    const Spot a = corners[n], b = corners[(n + 1) % corners.size()];
    const double f = inside(a), g = inside(b);
    if (f >= 0) kept.push_back(a);
    if ((f < 0) != (g < 0) && f != 0 && g != 0)
      kept.push_back({a.x + f / (f - g) * (b.x - a.x), a.y + f / (f - g) * (b.y - a.y)});
  }
  return kept;
}

/// What rounding may do to a clipped polygon.
inline constexpr double clipSlack = 1e-9;

inline Corners cutTo(const Corners& corners, VemiRect roi) {
  const Corners rect = cornersOf(roi);
  const auto first = cut(cut(corners, [&](Spot p) { return p.x - rect[0].x + clipSlack; }),
                         [&](Spot p) { return rect[2].x - p.x + clipSlack; });
  return cut(cut(first, [&](Spot p) { return p.y - rect[0].y + clipSlack; }),
             [&](Spot p) { return rect[2].y - p.y + clipSlack; });
}

inline bool hasPixelInBox(const Corners& corners) {
  if (corners.empty()) return false;
  const auto [left, right] =
      std::minmax_element(corners.begin(), corners.end(), [](Spot a, Spot b) { return a.x < b.x; });
  const auto [top, bottom] =
      std::minmax_element(corners.begin(), corners.end(), [](Spot a, Spot b) { return a.y < b.y; });
  return std::ceil(left->x - clipSlack) <= std::floor(right->x + clipSlack) &&
         std::ceil(top->y - clipSlack) <= std::floor(bottom->y + clipSlack);
}

/// Quadrangle, and what else pixels must lie in; where the span that begins with a pixel comes from.
struct ReferenceWarp {
  Corners quad;
  std::function<bool(Spot)> alsoIn;
  /// The source place of the pixel `i` columns behind the first one of its span.
  std::function<Spot(Spot first, double i)> placeOf;
  bool onlyRegion = false;  // coordinates stay in the region, whatever the interpolation
  /// The covered part of a pixel, where the quadrangle does not tell it.
  std::function<double(Spot)> coverage = {};
};

/// The status that the source region alone settles, and what is left of it.
inline VemiStatus clipSource(Call& call, VemiRect& region) {
  const VemiSize size = call.get<VemiSize>("srcSize");
  region = call.get<VemiRect>("srcRoi");
  if (region.x >= size.width || region.y >= size.height) return vemiWarnNoIntersection;
  region.width = std::min(region.width, size.width - region.x);
  region.height = std::min(region.height, size.height - region.y);
  return region.width < 2 || region.height < 2 ? vemiErrRect : vemiOk;
}

inline int interpolationFor(Call& call) {
  const VemiSize size = call.get<VemiSize>("srcSize");
  const VemiRect roi = call.get<VemiRect>("srcRoi");
  const int kind = call.get<int>("interpolation") & 0x7fffffff;
  const int least = std::min({size.width, size.height, roi.width, roi.height});
  return kind == vemiInterCubic && least < 4 ? vemiInterLinear : kind;
}

inline double coverageBy(const Corners& quad, Spot p) {
  double covered = 1;
  for (size_t n = 0; n < 4; ++n) {
    const Spot a = quad[n], b = quad[(n + 1) % 4];
    const double longer = std::max(std::fabs(b.x - a.x), std::fabs(b.y - a.y));
    covered = std::min(covered, 0.5 + std::fabs(sideOf(a, b, p)) / longer);
  }
  return covered;
}

/// Mixes `fresh` into `old` by the coverage of the pixel.
inline void mixElement(const View& image, double covered, const std::byte* fresh, std::byte* old) {
  if (std::memcmp(fresh, old, static_cast<size_t>(bytesOf(image.element))) == 0) return;
  if (covered >= 1) {
    std::memcpy(old, fresh, static_cast<size_t>(bytesOf(image.element)));
    return;
  }
  const auto part = static_cast<float>(covered);
  const float mixture = static_cast<float>(loadNumber(image.element, old)) * (1 - part) +
                        static_cast<float>(loadNumber(image.element, fresh)) * part;
  if (image.element == Element::f32) return store(old, mixture);
  storeNumber(image.element, old, std::nearbyint(mixture));
}

inline void warpByDefinition(Call& call, VemiRect region, const ReferenceWarp& warp) {
  const View source = call.source(), destination = call.destination();
  const VemiRect dst = call.get<VemiRect>("dstRoi");
  if (!hasPixelInBox(cutTo(warp.quad, dst))) {
    call.expectedStatus = vemiWarnQuadIntersection;
    return;
  }
  const int kind = interpolationFor(call), orientation = orientationOf(warp.quad);
  const bool isSmooth = call.get<int>("interpolation") < 0;
  call.anyNaN = kind != vemiInterNearest || isSmooth;
  const VemiRect limiting =
      kind == vemiInterCubic && !warp.onlyRegion ? VemiRect{0, 0, source.size.width, source.size.height} : region;
  const double before = kind == vemiInterCubic && !warp.onlyRegion ? 1 : 0, behind = warp.onlyRegion ? 0 : 1;
  const Corners edges = cornersOf(limiting);
  const Limits limits = {edges[0].x - before, edges[0].y - before, edges[2].x + behind, edges[2].y + behind};
  const auto isIn = [&](Spot p) {
    bool in = !warp.alsoIn || warp.alsoIn(p);
    for (size_t n = 0; n < 4; ++n) in = in && orientation * sideOf(warp.quad[n], warp.quad[(n + 1) % 4], p) >= 0;
    return in;
  };
  for (int y = dst.y; y < dst.y + dst.height; ++y) {
    int first = dst.x;
    while (first < dst.x + dst.width && !isIn({double(first), double(y)})) ++first;
    for (int x = first; x < dst.x + dst.width && isIn({double(x), double(y)}); ++x) {
      const Spot place = warp.placeOf({double(first), double(y)}, x - first);
      for (int channel = 0; channel < destination.channels; ++channel) {
        std::byte* const out = destination.at(x, y, channel);
        std::byte fresh[8];
        std::memcpy(fresh, out, static_cast<size_t>(bytesOf(destination.element)));
        fetchElement(source, kind, limits, static_cast<float>(place.x), static_cast<float>(place.y), channel, fresh);
        if (isSmooth) {
          const Spot p = {double(x), double(y)};
          mixElement(destination, warp.coverage ? warp.coverage(p) : coverageBy(warp.quad, p), fresh, out);
        } else {
          std::memcpy(out, fresh, static_cast<size_t>(bytesOf(destination.element)));
        }
      }
    }
  }
}

}  // namespace vemi::test
