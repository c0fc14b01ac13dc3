// vemiWarpBilinear, vemiWarpBilinearBack, vemiWarpBilinearQuad: images moved by bilinear maps, and where these lead.
// Checks of warps: null, size, step, interpolation, planes, coefficients (Back), intersection, region, quadrangle; two
// quadrangles that are given are tested ahead of the intersection. Queries: size, null, quadrangle, region.

#include "geometry/exports.h"
#include "geometry/quad_queries.h"
#include "geometry/quad_warps.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

/// One coordinate of a map: xy x y + x x + y y + one.
struct Form {
  double xy, x, y, one;

  double operator()(Point p) const { return xy * p.x * p.y + x * p.x + y * p.y + one; }
};

struct Bilinear {
  Form toX, toY;

  Point operator()(Point p) const { return {toX(p), toY(p)}; }
};

Bilinear bilinearFrom(const double coeffs[2][4]) {
  const auto form = [](const double(&c)[4]) { return Form{c[0], c[1], c[2], c[3]}; };
  return {form(coeffs[0]), form(coeffs[1])};
}

/// The map of the unit square to a quadrangle.
Bilinear fromUnitSquare(const Quad& quad) {
  const auto [p0, p1, p2, p3] = quad.corner;
  const auto form = [](double c0, double c1, double c2, double c3) {
    return Form{c0 - c1 + c2 - c3, c1 - c0, c3 - c0, c0};
  };
  return {form(p0.x, p1.x, p2.x, p3.x), form(p0.y, p1.y, p2.y, p3.y)};
}

void storeTransform(const Edges& from, const Quad& to, double coeffs[2][4]) {
  const double unit = 1 / ((from.right - from.left) * (from.bottom - from.top));
  const auto store = [&](double p0, double p1, double p2, double p3, double* c) {
    c[0] = -(p1 - p0 + p3 - p2) * unit;
    c[1] = ((p1 - p0) * from.bottom + (p3 - p2) * from.top) * unit;
    c[2] = ((p0 - p3) * -from.right + (p2 - p1) * -from.left) * unit;
    c[3] = p0 - c[1] * from.left - c[2] * from.top - c[0] * from.left * from.top;
  };
  const auto [p0, p1, p2, p3] = to.corner;
  store(p0.x, p1.x, p2.x, p3.x, coeffs[0]);
  store(p0.y, p1.y, p2.y, p3.y, coeffs[1]);
}

using Doubles = hn::Vec<Lanes<double>>;

/// The root of a u^2 + b u + c where the derivative 2 a u + b has a given sign, whose product with the root of the
/// discriminant is `slope`: of the two forms of the formula, the one that subtracts nothing from what is nearly equal.
HWY_INLINE Doubles rootAt(Doubles a, Doubles b, Doubles c, Doubles slope) {
  const Lanes<double> d;
  const auto isAlike = hn::Ge(hn::Mul(b, slope), hn::Zero(d));
  const auto minusTwoC = hn::Neg(hn::Add(c, c));
  return hn::Div(hn::IfThenElse(isAlike, minusTwoC, hn::Sub(slope, b)),
                 hn::IfThenElse(isAlike, hn::Add(b, slope), hn::Add(a, a)));
}

/// Coordinates in one quadrangle of pixels in another, through the unit square. With X = a0 u v + b0 u + c0 v and Y =
/// a1 u v + b1 u + c1 v, relative to the first corner,
///
///   (a0 b1 - a1 b0) u^2 + (a1 X - a0 Y + b1 c0 - b0 c1) u + (c1 X - c0 Y) = 0
///
/// and the same with b and c exchanged for v. The derivatives at the roots are minus and plus the determinant of the
/// map's derivatives, which has the same sign everywhere within a convex quadrangle.
struct BilinearPlaces {
  Bilinear forward, onwards;
  double sign;

  BilinearPlaces(const Quad& to, const Quad& from) : forward(fromUnitSquare(to)), onwards(fromUnitSquare(from)) {
    const Form f = forward.toX, g = forward.toY;
    sign = (0.5 * f.xy + f.x) * (0.5 * g.xy + g.y) < (0.5 * f.xy + f.y) * (0.5 * g.xy + g.x) ? -1 : 1;
  }

  HWY_NOINLINE void operator()(const SpanPiece& piece, float* x, float* y) const {
    const Lanes<double> d;
    const Form f = forward.toX, g = forward.toY;
    const auto set = [&](double value) HWY_ATTR { return hn::Set(d, value); };
    const double first = piece.first - f.one, row = piece.y - g.one, cross = f.x * g.y - g.x * f.y;
    const auto uSquare = set(f.xy * g.x - g.xy * f.x), vSquare = set(f.xy * g.y - g.xy * f.y);
    const auto linear = set(g.xy * first - f.xy * row), perLinear = set(g.xy);
    const auto uConstant = set(g.y * first - f.y * row), perU = set(g.y);
    const auto vConstant = set(g.x * first - f.x * row), perV = set(g.x);
    fillPlaces(piece, x, y, [&](auto, auto i) HWY_ATTR {
      const auto at = [&](Doubles value, Doubles perPixel) HWY_ATTR { return hn::Add(value, hn::Mul(i, perPixel)); };
      const auto both = at(linear, perLinear), c = at(uConstant, perU);
      const auto b = hn::Sub(both, set(cross));
      const auto discriminant = hn::Sub(hn::Mul(b, b), hn::Mul(hn::Mul(set(4), uSquare), c));
      const auto slope = hn::Mul(hn::Sqrt(greater(discriminant, hn::Zero(d))), set(sign));
      const auto u = rootAt(uSquare, b, c, hn::Neg(slope));
      const auto v = rootAt(vSquare, hn::Add(both, set(cross)), at(vConstant, perV), slope);
      const auto place = [&](const Form& form) HWY_ATTR {
        const auto withV = hn::Mul(hn::Add(hn::Mul(set(form.xy), u), set(form.y)), v);
        return hn::Add(hn::Add(withV, hn::Mul(set(form.x), u)), set(form.one));
      };
      return Places<Doubles>{place(onwards.toX), place(onwards.toY)};
    });
  }
};

/// Coordinates by the map itself, which is linear in a row.
struct MapPlaces {
  Bilinear back;

  HWY_NOINLINE void operator()(const SpanPiece& piece, float* x, float* y) const {
    const Lanes<double> d;
    const auto perPixel = [&](const Form& form) { return form.xy * piece.y + form.x; };
    const auto first = [&](const Form& form) { return perPixel(form) * piece.first + (form.y * piece.y + form.one); };
    const auto x0 = hn::Set(d, first(back.toX)), y0 = hn::Set(d, first(back.toY));
    const auto perX = hn::Set(d, perPixel(back.toX)), perY = hn::Set(d, perPixel(back.toY));
    fillPlaces(piece, x, y, [&](auto, auto i) HWY_ATTR {
      return Places<Doubles>{hn::Add(x0, hn::Mul(i, perX)), hn::Add(y0, hn::Mul(i, perY))};
    });
  }
};

/// Of pixels whose places lie in the source region: half of those on its edge, all from half a pixel on, in the
/// direction of x or y that crosses the edge the more steeply.
struct CoverageOfMap {
  Bilinear back;
  Edges region;

  double operator()(double x, double y) const {
    const auto within = [&](const Form& form, double low, double high) {
      const double place = form({x, y});
      const double perPixel = std::max(std::abs(form.xy * y + form.x), std::abs(form.xy * x + form.y));
      return 0.5 + std::min(place - low, high - place) / perPixel;
    };
    return std::min({1.0, within(back.toX, region.left, region.right), within(back.toY, region.top, region.bottom)});
  }
};

template <class L, class Src, class Dst>
VemiStatus warpBilinear(Src src, Dst dst, Regions regions, const double coeffs[2][4], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    return warpByQuad<BilinearPlaces, L>(src, dst, regions, bilinearFrom(coeffs), interpolation);
  });
}

/// What the map takes to the source region has curved edges: every pixel of the destination's region is looked at.
template <class L, class Src, class Dst>
VemiStatus warpBilinearBack(Src src, Dst dst, Regions regions, const double coeffs[2][4], int interpolation) {
  if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Bilinear back = bilinearFrom(coeffs);
    if (vanishes(back.toX.x * back.toY.y, back.toX.y * back.toY.x)) return vemiErrQuad;
    WarpSource source;
    if (const VemiStatus bad = sourceOf(regions, interpolation, source)) return bad;
    limitToRegion(source);
    const Polygon everywhere(quadOf(regions.dst, [](Point p) { return p; }));
    return warpWithin<L>(imagesOf(src), imagesOf(dst), regions, source, everywhere, MapPlaces{back},
                         CoverageOfMap{back, Edges(source.region)});
  });
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define MAP ((const double coeffs[2][4], vemiInterpolation interpolation), (coeffs, interpolation))

VEMI_DEFINE(vemiWarpBilinear_8u_C1R, VEMI_WARP(Vemi8u, MAP), warpBilinear<C1>)
VEMI_DEFINE(vemiWarpBilinear_8u_C3R, VEMI_WARP(Vemi8u, MAP), warpBilinear<C3>)
VEMI_DEFINE(vemiWarpBilinear_8u_C4R, VEMI_WARP(Vemi8u, MAP), warpBilinear<C4>)
VEMI_DEFINE(vemiWarpBilinear_8u_AC4R, VEMI_WARP(Vemi8u, MAP), warpBilinear<AC4>)
VEMI_DEFINE(vemiWarpBilinear_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, MAP), warpBilinear<C1>)
VEMI_DEFINE(vemiWarpBilinear_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, MAP), warpBilinear<C1>)
VEMI_DEFINE(vemiWarpBilinear_32f_C1R, VEMI_WARP(Vemi32f, MAP), warpBilinear<C1>)
VEMI_DEFINE(vemiWarpBilinear_32f_C3R, VEMI_WARP(Vemi32f, MAP), warpBilinear<C3>)
VEMI_DEFINE(vemiWarpBilinear_32f_C4R, VEMI_WARP(Vemi32f, MAP), warpBilinear<C4>)
VEMI_DEFINE(vemiWarpBilinear_32f_AC4R, VEMI_WARP(Vemi32f, MAP), warpBilinear<AC4>)
VEMI_DEFINE(vemiWarpBilinear_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, MAP), warpBilinear<C1>)
VEMI_DEFINE(vemiWarpBilinear_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, MAP), warpBilinear<C1>)

VEMI_DEFINE(vemiWarpBilinearBack_8u_C1R, VEMI_WARP(Vemi8u, MAP), warpBilinearBack<C1>)
VEMI_DEFINE(vemiWarpBilinearBack_8u_C3R, VEMI_WARP(Vemi8u, MAP), warpBilinearBack<C3>)
VEMI_DEFINE(vemiWarpBilinearBack_8u_C4R, VEMI_WARP(Vemi8u, MAP), warpBilinearBack<C4>)
VEMI_DEFINE(vemiWarpBilinearBack_8u_AC4R, VEMI_WARP(Vemi8u, MAP), warpBilinearBack<AC4>)
VEMI_DEFINE(vemiWarpBilinearBack_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, MAP), warpBilinearBack<C1>)
VEMI_DEFINE(vemiWarpBilinearBack_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, MAP), warpBilinearBack<C1>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_C1R, VEMI_WARP(Vemi32f, MAP), warpBilinearBack<C1>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_C3R, VEMI_WARP(Vemi32f, MAP), warpBilinearBack<C3>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_C4R, VEMI_WARP(Vemi32f, MAP), warpBilinearBack<C4>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_AC4R, VEMI_WARP(Vemi32f, MAP), warpBilinearBack<AC4>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, MAP), warpBilinearBack<C1>)
VEMI_DEFINE(vemiWarpBilinearBack_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, MAP), warpBilinearBack<C1>)

VEMI_DEFINE(vemiWarpBilinearQuad_8u_C1R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<BilinearPlaces, C1>)
VEMI_DEFINE(vemiWarpBilinearQuad_8u_C3R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<BilinearPlaces, C3>)
VEMI_DEFINE(vemiWarpBilinearQuad_8u_C4R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<BilinearPlaces, C4>)
VEMI_DEFINE(vemiWarpBilinearQuad_8u_AC4R, VEMI_WARP_QUAD(Vemi8u), warpBetweenQuads<BilinearPlaces, AC4>)
VEMI_DEFINE(vemiWarpBilinearQuad_8u_P3R, VEMI_WARP_QUAD_PLANES(Vemi8u, 3), warpBetweenQuads<BilinearPlaces, C1>)
VEMI_DEFINE(vemiWarpBilinearQuad_8u_P4R, VEMI_WARP_QUAD_PLANES(Vemi8u, 4), warpBetweenQuads<BilinearPlaces, C1>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_C1R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<BilinearPlaces, C1>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_C3R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<BilinearPlaces, C3>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_C4R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<BilinearPlaces, C4>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_AC4R, VEMI_WARP_QUAD(Vemi32f), warpBetweenQuads<BilinearPlaces, AC4>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_P3R, VEMI_WARP_QUAD_PLANES(Vemi32f, 3), warpBetweenQuads<BilinearPlaces, C1>)
VEMI_DEFINE(vemiWarpBilinearQuad_32f_P4R, VEMI_WARP_QUAD_PLANES(Vemi32f, 4), warpBetweenQuads<BilinearPlaces, C1>)

VemiStatus vemiGetBilinearQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[2][4]) {
  return getQuad(
      srcRoi, quad, [&] { return bilinearFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetBilinearBound(VemiRect srcRoi, double bound[2][2], const double coeffs[2][4]) {
  return getBound(
      srcRoi, bound, [&] { return bilinearFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetBilinearTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[2][4]) {
  return getTransform(srcRoi, quad, coeffs, [&](const Edges& from, const Quad& to) -> VemiStatus {
    storeTransform(from, to, coeffs);
    return vemiOk;
  });
}
