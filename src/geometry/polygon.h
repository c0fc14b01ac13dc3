// The quadrangles that warps make of rectangles, and the pixels that lie in them. Pixels are points, at whole
// coordinates; all that lies on an edge lies in the polygon.
#pragma once

#include "vemi/types.h"

namespace vemi::geometry {

struct Point {
  double x, y;
};

/// Corners in their order around it; of a rectangle: (left, top), (right, top), (right, bottom), (left, bottom).
struct Quad {
  Point corner[4];
};

/// A rectangle's pixels lie from its edges to its edges. As doubles, whatever the integers' sum.
struct Edges {
  double left, top, right, bottom;

  explicit Edges(VemiRect rect)
      : left(rect.x), top(rect.y), right(left + rect.width - 1.0), bottom(top + rect.height - 1.0) {}
};

/// What becomes of a rectangle by map(Point).
template <class Map>
Quad quadOf(VemiRect rect, const Map& map) {
  const Edges edges(rect);
  return {{map(Point{edges.left, edges.top}), map(Point{edges.right, edges.top}), map(Point{edges.right, edges.bottom}),
           map(Point{edges.left, edges.bottom})}};
}

Quad quadFrom(const double quad[4][2]);
void store(const Quad& from, double quad[4][2]);

/// The least x and y, then the greatest.
void storeBound(const Quad& from, double bound[2][2]);

/// Whether all four corners turn the same way: no three of them on a line, no edges that cross, no NaN.
bool isConvex(const Quad& quad);

/// A convex polygon.
struct Polygon {
  static constexpr int most = 12;  // a quadrangle, clipped by six lines at most, and room for what rounding adds

  Point vertex[most];
  int count;

  explicit Polygon(const Quad& quad);
  /// Where the distance, a linear function of points, is at least 0. onLine(point) puts a new vertex where it is 0, but
  /// for the rounding.
  template <class Distance, class OnLine>
  Polygon clippedBy(const Distance& distance, const OnLine& onLine) const;
  Polygon clippedTo(VemiRect rect) const;

 private:
  Polygon() : count(0) {}
  void add(Point point);
};

/// The columns of a polygon, row by row:
///
///   for (Spans spans(polygon, rect); spans.next();) ... spans.y, spans.first, spans.last ...
///
/// From each edge's first row on, its place moves by the quotient dx / dy.
class Spans {
 public:
  /// The polygon lies within the rectangle, but for rounding.
  Spans(const Polygon& polygon, VemiRect within);

  /// Whether the polygon's bounding box has no pixel.
  bool areEmpty() const { return isEmpty_; }
  /// Goes on to the next row, the first one at first, which may have no column; false behind the last one.
  bool next();

  Vemi64s y, first, last;

 private:
  struct Edge {
    Vemi64s top, bottom;
    double x, perRow;
  };

  Edge edge_[2 * Polygon::most];
  int count_ = 0;
  Vemi64s left_, right_, bottom_;
  bool isEmpty_;

  void add(Point a, Point b);
};

template <class Distance, class OnLine>
Polygon Polygon::clippedBy(const Distance& distance, const OnLine& onLine) const {
  Polygon clipped;
  for (int n = 0; n < count; ++n) {
    const Point a = vertex[n], b = vertex[n + 1 < count ? n + 1 : 0];
    const double atA = distance(a), atB = distance(b);
    if (atA >= 0) clipped.add(a);
    if ((atA < 0 && atB > 0) || (atA > 0 && atB < 0)) {
      const double part = atA / (atA - atB);
      clipped.add(onLine(Point{a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)}));
    }
  }
  return clipped;
}

}  // namespace vemi::geometry
