#include "geometry/polygon.h"

#include <algorithm>
#include <cmath>

namespace vemi::geometry {

Quad quadFrom(const double quad[4][2]) {
  return {{{quad[0][0], quad[0][1]}, {quad[1][0], quad[1][1]}, {quad[2][0], quad[2][1]}, {quad[3][0], quad[3][1]}}};
}

void store(const Quad& from, double quad[4][2]) {
  for (int n = 0; n < 4; ++n) {
    quad[n][0] = from.corner[n].x;
    quad[n][1] = from.corner[n].y;
  }
}

void storeBound(const Quad& from, double bound[2][2]) {
  Point least = from.corner[0], greatest = least;
  for (const Point& corner : from.corner) {
    least = {std::min(least.x, corner.x), std::min(least.y, corner.y)};
    greatest = {std::max(greatest.x, corner.x), std::max(greatest.y, corner.y)};
  }
  bound[0][0] = least.x;
  bound[0][1] = least.y;
  bound[1][0] = greatest.x;
  bound[1][1] = greatest.y;
}

bool isConvex(const Quad& quad) {
  int right = 0, left = 0;
  for (int n = 0; n < 4; ++n) {
    const Point before = quad.corner[(n + 2) % 4], at = quad.corner[(n + 3) % 4], behind = quad.corner[n];
    const double turn = (at.x - before.x) * (behind.y - at.y) - (behind.x - at.x) * (at.y - before.y);
    right += turn > 0;
    left += turn < 0;
  }
  return right == 4 || left == 4;
}

Polygon::Polygon(const Quad& quad) : count(4) { std::copy_n(quad.corner, 4, vertex); }

void Polygon::add(Point point) {
  if (count < most) vertex[count++] = point;
}

Polygon Polygon::clippedTo(VemiRect rect) const {
  const Edges edges(rect);
  const auto fromX = [](double x) { return [x](Point p) { return Point{x, p.y}; }; };
  const auto fromY = [](double y) { return [y](Point p) { return Point{p.x, y}; }; };
  return clippedBy([&](Point p) { return p.x - edges.left; }, fromX(edges.left))
      .clippedBy([&](Point p) { return edges.right - p.x; }, fromX(edges.right))
      .clippedBy([&](Point p) { return p.y - edges.top; }, fromY(edges.top))
      .clippedBy([&](Point p) { return edges.bottom - p.y; }, fromY(edges.bottom));
}

namespace {

/// Pixels from a place on, or up to it, within a range.
Vemi64s ceilWithin(double place, Vemi64s least, Vemi64s most) {
  if (!(place > static_cast<double>(least))) return least;
  return place < static_cast<double>(most) ? static_cast<Vemi64s>(std::ceil(place)) : most;
}

Vemi64s floorWithin(double place, Vemi64s least, Vemi64s most) {
  if (!(place < static_cast<double>(most))) return most;
  return place > static_cast<double>(least) ? static_cast<Vemi64s>(std::floor(place)) : least;
}

}  // namespace

Spans::Spans(const Polygon& polygon, VemiRect within)
    : y(0), first(0), last(0), left_(within.x), right_(left_ + within.width - 1), bottom_(0), isEmpty_(true) {
  if (polygon.count == 0) return;
  Point least = polygon.vertex[0], greatest = least;
  for (int n = 0; n < polygon.count; ++n) {
    const Point a = polygon.vertex[n], b = polygon.vertex[n + 1 < polygon.count ? n + 1 : 0];
    least = {std::min(least.x, a.x), std::min(least.y, a.y)};
    greatest = {std::max(greatest.x, a.x), std::max(greatest.y, a.y)};
    add(a, b);
  }
  const Vemi64s rows = Vemi64s{within.y} + within.height;
  const Vemi64s top = ceilWithin(least.y, within.y, rows);
  bottom_ = floorWithin(greatest.y, Vemi64s{within.y} - 1, rows - 1);
  isEmpty_ = top > bottom_ || ceilWithin(least.x, left_, right_ + 1) > floorWithin(greatest.x, left_ - 1, right_);
  y = top - 1;
}

void Spans::add(Point a, Point b) {
  const auto rowFrom = [](double place) { return ceilWithin(place, -1, Vemi64s{1} << 33); };
  if (a.y == b.y) {  // both ends, in a row of their own
    if (std::floor(a.y) != a.y) return;
    const Vemi64s row = rowFrom(a.y);
    edge_[count_++] = {row, row, a.x, 0};
    edge_[count_++] = {row, row, b.x, 0};
    return;
  }
  if (a.y > b.y) std::swap(a, b);
  const double perRow = (b.x - a.x) / (b.y - a.y), above = std::ceil(a.y) - a.y;
  const Vemi64s bottom = floorWithin(b.y, -1, Vemi64s{1} << 33);
  edge_[count_++] = {rowFrom(a.y), bottom, above == 0 ? a.x : a.x + above * perRow, perRow};
}

bool Spans::next() {
  if (isEmpty_ || y >= bottom_) return false;
  ++y;
  first = right_ + 1;
  last = left_ - 1;
  for (int n = 0; n < count_; ++n) {
    Edge& edge = edge_[n];
    if (y < edge.top || y > edge.bottom) continue;
    first = std::min(first, ceilWithin(edge.x, left_, right_ + 1));
    last = std::max(last, floorWithin(edge.x, left_ - 1, right_));
    edge.x += edge.perRow;
  }
  return true;
}

}  // namespace vemi::geometry
