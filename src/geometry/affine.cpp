#include "geometry/affine.h"

#include <cmath>

#include "core/rounding.h"
#include "signal/sine.h"

namespace vemi::geometry {

Affine Affine::inverse() const {
  const double determinant = c[0][0] * c[1][1] - c[0][1] * c[1][0];
  const double xx = c[1][1] / determinant, xy = -c[0][1] / determinant;
  const double yx = -c[1][0] / determinant, yy = c[0][0] / determinant;
  return {{{xx, xy, -(xx * c[0][2] + xy * c[1][2])}, {yx, yy, -(yx * c[0][2] + yy * c[1][2])}}};
}

Affine affineFrom(const double coeffs[2][3]) {
  return {{{coeffs[0][0], coeffs[0][1], coeffs[0][2]}, {coeffs[1][0], coeffs[1][1], coeffs[1][2]}}};
}

VemiStatus checkNotSingular(const Affine& map) {
  return vanishes(map.c[0][0] * map.c[1][1], map.c[0][1] * map.c[1][0]) ? vemiErrQuad : vemiOk;
}

Affine cornersTo(const Quad& from, const Quad& to) {
  const Point p = from.corner[0], a = from.corner[1], b = from.corner[2];
  const Point q = to.corner[0], c = to.corner[1], d = to.corner[2];
  // Along the first edge and the second one.
  const double ax = a.x - p.x, ay = a.y - p.y, bx = b.x - a.x, by = b.y - a.y;
  const double cx = c.x - q.x, cy = c.y - q.y, dx = d.x - c.x, dy = d.y - c.y;
  const double determinant = ax * by - ay * bx;
  const double xx = (cx * by - dx * ay) / determinant, xy = (dx * ax - cx * bx) / determinant;
  const double yx = (cy * by - dy * ay) / determinant, yy = (dy * ax - cy * bx) / determinant;
  return {{{xx, xy, q.x - (xx * p.x + xy * p.y)}, {yx, yy, q.y - (yx * p.x + yy * p.y)}}};
}

Angle::Angle(double degrees) : cosine_(0), sine_(0), quarterTurns_(-1) {
  double a = degrees - 360 * roundTiesEven(degrees / 360);
  if (a < 0) a += 360;
  constexpr double sines[] = {0, 1, 0, -1};
  for (int n = 0; n < 4; ++n) {
    if (a == 90 * n) {
      quarterTurns_ = n;
      sine_ = sines[n];
      cosine_ = sines[(n + 1) % 4];
      return;
    }
  }
  if (std::isnan(a)) {  // of which the sine of lanes makes a number
    sine_ = cosine_ = a;
    return;
  }
  const Lanes<double> d;
  const auto radians = hn::Set(d, a / 180 * 3.141592653589793);
  sine_ = hn::GetLane(signal::Sine()(d, radians));
  cosine_ = hn::GetLane(signal::Cosine()(d, radians));
}

Point Angle::shiftAround(Point center) const {
  const double x = center.x, y = center.y;
  switch (quarterTurns_) {
    case 0:
      return {0, 0};
    case 1:
      return {x - y, x + y};
    case 2:
      return {2 * x, 2 * y};
    case 3:
      return {x + y, y - x};
    default:
      return {x - cosine_ * x - sine_ * y, y + sine_ * x - cosine_ * y};
  }
}

}  // namespace vemi::geometry
