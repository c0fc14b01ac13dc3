// Affine maps: (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12).
#pragma once

#include "core/lanes.h"
#include "geometry/polygon.h"
#include "geometry/warp.h"
#include "vemi/status.h"

namespace vemi::geometry {

struct Affine {
  double c[2][3];

  Point operator()(Point p) const {
    return {c[0][0] * p.x + c[0][1] * p.y + c[0][2], c[1][0] * p.x + c[1][1] * p.y + c[1][2]};
  }
  Affine inverse() const;
};

Affine affineFrom(const double coeffs[2][3]);

/// vemiErrQuad where the determinant vanishes.
VemiStatus checkNotSingular(const Affine& map);

/// The map of three corners into three others.
Affine cornersTo(const Quad& from, const Quad& to);

/// Degrees, reduced to less than a turn. Quarter turns have the sines that they should have.
class Angle {
 public:
  explicit Angle(double degrees);

  double cosine() const { return cosine_; }
  double sine() const { return sine_; }
  /// Of whole ones; -1 of others.
  int quarterTurns() const { return quarterTurns_; }

  Affine rotation(Point shift) const { return {{{cosine_, sine_, shift.x}, {-sine_, cosine_, shift.y}}}; }
  /// The shift with which a rotation leaves the point where it is.
  Point shiftAround(Point center) const;

 private:
  double cosine_, sine_;
  int quarterTurns_;
};

inline Affine shear(double xShear, double yShear, Point shift) {
  return {{{1, xShear, shift.x}, {yShear, 1, shift.y}}};
}

/// Coordinates by a map: from the span's first column, in doubles.
struct AffinePlaces {
  Affine map;

  HWY_NOINLINE void operator()(const SpanPiece& piece, float* x, float* y) const {
    const Lanes<double> d;
    const Point first = map({piece.first, piece.y});
    const auto x0 = hn::Set(d, first.x), y0 = hn::Set(d, first.y);
    const auto perX = hn::Set(d, map.c[0][0]), perY = hn::Set(d, map.c[1][0]);
    fillPlaces(piece, x, y, [&](auto, auto i) HWY_ATTR {
      return Places<hn::Vec<Lanes<double>>>{hn::Add(x0, hn::Mul(i, perX)), hn::Add(y0, hn::Mul(i, perY))};
    });
  }
};

/// Into the quadrangle that `map` makes of the region; `back` is its inverse.
template <class L, class Src, class Dst>
VemiStatus warpThrough(Src src, Dst dst, const Regions& regions, const WarpSource& source, const Affine& map,
                       const Affine& back) {
  const Quad quad = quadOf(source.region, map);
  if (!isConvex(quad)) return vemiErrQuad;
  return warp<L>(imagesOf(src), imagesOf(dst), regions, source, quad, Polygon(quad), AffinePlaces{back});
}

/// The same behind the checks of the images.
template <class L, class Src, class Dst>
VemiStatus warpByMap(Src src, Dst dst, const Regions& regions, const Affine& map, int interpolation) {
  return roundingToNearest([&]() -> VemiStatus {
    WarpSource source;
    if (const VemiStatus bad = firstOf(checkNotSingular(map), sourceOf(regions, interpolation, source))) return bad;
    return warpThrough<L>(src, dst, regions, source, map, map.inverse());
  });
}

}  // namespace vemi::geometry
