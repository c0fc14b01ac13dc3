// vemiWarpPerspective, vemiWarpPerspectiveBack, vemiWarpPerspectiveQuad: images moved by perspective maps, and where
// these lead. Checks of warps: null, size, step, interpolation, planes, coefficients, intersection, region, quadrangle;
// two quadrangles that are given are tested in the place of coefficients. Queries: size, null, quadrangle, region.

#include "geometry/exports.h"
#include "geometry/quad_queries.h"
#include "geometry/quad_warps.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

/// (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12) / (c20 x + c21 y + c22).
struct Perspective {
  double c[3][3];

  Point operator()(Point p) const {
    const auto sum = [&](int n) { return c[n][0] * p.x + c[n][1] * p.y + c[n][2]; };
    return {sum(0) / sum(2), sum(1) / sum(2)};
  }

  /// But for a factor of all coefficients, which changes nothing.
  Perspective inverse() const {
    const auto minor = [&](int i, int j) {  // of c[j][i], with its sign
      const int r0 = (j + 1) % 3, r1 = (j + 2) % 3, c0 = (i + 1) % 3, c1 = (i + 2) % 3;
      return c[r0][c0] * c[r1][c1] - c[r0][c1] * c[r1][c0];
    };
    return {{{minor(0, 0), minor(0, 1), minor(0, 2)},
             {minor(1, 0), minor(1, 1), minor(1, 2)},
             {minor(2, 0), minor(2, 1), minor(2, 2)}}};
  }

  /// First `other`.
  Perspective behind(const Perspective& other) const {
    Perspective both = {};
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) {
        both.c[i][j] = c[i][0] * other.c[0][j] + c[i][1] * other.c[1][j] + c[i][2] * other.c[2][j];
      }
    }
    return both;
  }
};

Perspective perspectiveFrom(const double coeffs[3][3]) {
  Perspective map;
  std::memcpy(map.c, coeffs, sizeof map.c);
  return map;
}

/// The map of the corners (left, top), (right, top), (right, bottom), (left, bottom) to those of a quadrangle.
Perspective fromRectangle(double left, double top, double right, double bottom, const Quad& quad) {
  const auto [p0, p1, p2, p3] = quad.corner;
  const double w = 1 / (right - left), h = 1 / (bottom - top);
  const double dx1 = p1.x - p2.x, dx2 = p3.x - p2.x, dxs = p0.x - p1.x + p2.x - p3.x;
  const double dy1 = p1.y - p2.y, dy2 = p3.y - p2.y, dys = p0.y - p1.y + p2.y - p3.y;
  const double unit = 1 / (dx1 * dy2 - dx2 * dy1);
  const double g = (dxs * dy2 - dx2 * dys) * unit, k = (dx1 * dys - dxs * dy1) * unit;
  const double a = (p1.x - p0.x + g * p1.x) * w, b = (p3.x - p0.x + k * p3.x) * h;
  const double d = (p1.y - p0.y + g * p1.y) * w, e = (p3.y - p0.y + k * p3.y) * h;
  const double c20 = g * w, c21 = k * h;
  return {
      {{a, b, p0.x - a * left - b * top}, {d, e, p0.y - d * left - e * top}, {c20, c21, 1 - c20 * left - c21 * top}}};
}

void storeTransform(const Edges& from, const Quad& to, double coeffs[3][3]) {
  const Perspective map = fromRectangle(from.left, from.top, from.right, from.bottom, to);
  std::memcpy(coeffs, map.c, sizeof map.c);
}

/// Coordinates by a map: numerators and denominators from the span's first column, and their quotients, in doubles.
struct PerspectivePlaces {
  Perspective back;

  explicit PerspectivePlaces(const Perspective& map) : back(map) {}
  PerspectivePlaces(const Quad& to, const Quad& from)
      : back(fromRectangle(0, 0, 1, 1, from).behind(fromRectangle(0, 0, 1, 1, to).inverse())) {}

  HWY_NOINLINE void operator()(const SpanPiece& piece, float* x, float* y) const {
    const Lanes<double> d;
    Vectors<hn::Vec<Lanes<double>>, 3> first, step;
    unrolled<3>([&](auto n) HWY_ATTR {
      const auto [perX, perY, offset] = back.c[n];
      first.v[n] = hn::Set(d, perX * piece.first + (perY * piece.y + offset));
      step.v[n] = hn::Set(d, perX);
    });
    fillPlaces(piece, x, y, [&](auto, auto i) HWY_ATTR {
      const auto at = [&](int n) HWY_ATTR { return hn::Add(first.v[n], hn::Mul(i, step.v[n])); };
      const auto z = at(2);
      return Places<hn::Vec<Lanes<double>>>{hn::Div(at(0), z), hn::Div(at(1), z)};
    });
  }
};

VemiStatus checkNotSingular(const Perspective& map) {
  const bool isSingular = vanishes(map.c[0][0] * map.c[1][1], map.c[0][1] * map.c[1][0]);
  return isSingular || std::abs(map.c[2][2]) <= 1e-12 ? vemiErrQuad : vemiOk;
}

template <class L, class Src, class Dst>
VemiStatus warpPerspective(Src src, Dst dst, Regions regions, const double coeffs[3][3], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Perspective map = perspectiveFrom(coeffs);
    if (const VemiStatus bad = checkNotSingular(map)) return bad;
    return warpByQuad<PerspectivePlaces, L>(src, dst, regions, map, interpolation);
  });
}

template <class L, class Src, class Dst>
VemiStatus warpPerspectiveBack(Src src, Dst dst, Regions regions, const double coeffs[3][3], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Perspective back = perspectiveFrom(coeffs);
    WarpSource source;
    if (const VemiStatus bad = firstOf(checkNotSingular(back), sourceOf(regions, interpolation, source))) return bad;
    const Quad quad = quadOf(source.region, back.inverse());
    if (!isConvex(quad)) return vemiErrQuad;
    return withoutMiss(
        warp<L>(imagesOf(src), imagesOf(dst), regions, source, quad, Polygon(quad), PerspectivePlaces(back)));
  });
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define MAP ((const double coeffs[3][3], vemiInterpolation interpolation), (coeffs, interpolation))

VEMI_DEFINE(vemiWarpPerspective_8u_C1R, VEMI_WARP(Vemi8u, MAP), warpPerspective<C1>)
VEMI_DEFINE(vemiWarpPerspective_8u_C3R, VEMI_WARP(Vemi8u, MAP), warpPerspective<C3>)
VEMI_DEFINE(vemiWarpPerspective_8u_C4R, VEMI_WARP(Vemi8u, MAP), warpPerspective<C4>)
VEMI_DEFINE(vemiWarpPerspective_8u_AC4R, VEMI_WARP(Vemi8u, MAP), warpPerspective<AC4>)
VEMI_DEFINE(vemiWarpPerspective_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, MAP), warpPerspective<C1>)
VEMI_DEFINE(vemiWarpPerspective_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, MAP), warpPerspective<C1>)
VEMI_DEFINE(vemiWarpPerspective_32f_C1R, VEMI_WARP(Vemi32f, MAP), warpPerspective<C1>)
VEMI_DEFINE(vemiWarpPerspective_32f_C3R, VEMI_WARP(Vemi32f, MAP), warpPerspective<C3>)
VEMI_DEFINE(vemiWarpPerspective_32f_C4R, VEMI_WARP(Vemi32f, MAP), warpPerspective<C4>)
VEMI_DEFINE(vemiWarpPerspective_32f_AC4R, VEMI_WARP(Vemi32f, MAP), warpPerspective<AC4>)
VEMI_DEFINE(vemiWarpPerspective_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, MAP), warpPerspective<C1>)
VEMI_DEFINE(vemiWarpPerspective_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, MAP), warpPerspective<C1>)

VEMI_DEFINE(vemiWarpPerspectiveBack_8u_C1R, VEMI_WARP(Vemi8u, MAP), warpPerspectiveBack<C1>)
VEMI_DEFINE(vemiWarpPerspectiveBack_8u_C3R, VEMI_WARP(Vemi8u, MAP), warpPerspectiveBack<C3>)
VEMI_DEFINE(vemiWarpPerspectiveBack_8u_C4R, VEMI_WARP(Vemi8u, MAP), warpPerspectiveBack<C4>)
VEMI_DEFINE(vemiWarpPerspectiveBack_8u_AC4R, VEMI_WARP(Vemi8u, MAP), warpPerspectiveBack<AC4>)
VEMI_DEFINE(vemiWarpPerspectiveBack_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, MAP), warpPerspectiveBack<C1>)
VEMI_DEFINE(vemiWarpPerspectiveBack_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, MAP), warpPerspectiveBack<C1>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_C1R, VEMI_WARP(Vemi32f, MAP), warpPerspectiveBack<C1>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_C3R, VEMI_WARP(Vemi32f, MAP), warpPerspectiveBack<C3>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_C4R, VEMI_WARP(Vemi32f, MAP), warpPerspectiveBack<C4>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_AC4R, VEMI_WARP(Vemi32f, MAP), warpPerspectiveBack<AC4>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, MAP), warpPerspectiveBack<C1>)
VEMI_DEFINE(vemiWarpPerspectiveBack_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, MAP), warpPerspectiveBack<C1>)

VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_C1R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<PerspectivePlaces, C1>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_C3R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<PerspectivePlaces, C3>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_C4R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<PerspectivePlaces, C4>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_AC4R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<PerspectivePlaces, AC4>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_P3R, VEMI_WARP_QUAD_PLANES(Vemi8u, 3), warpBetweenQuads<PerspectivePlaces, C1>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_8u_P4R, VEMI_WARP_QUAD_PLANES(Vemi8u, 4), warpBetweenQuads<PerspectivePlaces, C1>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_C1R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<PerspectivePlaces, C1>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_C3R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<PerspectivePlaces, C3>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_C4R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<PerspectivePlaces, C4>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_AC4R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<PerspectivePlaces, AC4>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_P3R, VEMI_WARP_QUAD_PLANES(Vemi32f, 3), warpBetweenQuads<PerspectivePlaces, C1>)
VEMI_DEFINE(vemiWarpPerspectiveQuad_32f_P4R, VEMI_WARP_QUAD_PLANES(Vemi32f, 4), warpBetweenQuads<PerspectivePlaces, C1>)

VemiStatus vemiGetPerspectiveQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[3][3]) {
  return getQuad(
      srcRoi, quad, [&] { return perspectiveFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetPerspectiveBound(VemiRect srcRoi, double bound[2][2], const double coeffs[3][3]) {
  return getBound(
      srcRoi, bound, [&] { return perspectiveFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetPerspectiveTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[3][3]) {
  return getTransform(srcRoi, quad, coeffs, [&](const Edges& from, const Quad& to) -> VemiStatus {
    storeTransform(from, to, coeffs);
    return vemiOk;
  });
}
