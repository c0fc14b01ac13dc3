// Where affine maps take rectangles, and the maps that take them there. vemiGetRotateShift and vemiAddRotateShift look
// at pointers alone; the others check size, then null, then what is particular to them.

#include "core/checks.h"
#include "core/float_control.h"
#include "geometry/affine.h"
#include "geometry/quad_queries.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

VemiStatus addShift(Point from, Point center, double angle, double* pxShift, double* pyShift) {
  return roundingToNearest([&]() -> VemiStatus {
    const Point shift = Angle(angle).shiftAround(center);
    *pxShift = from.x + shift.x;
    *pyShift = from.y + shift.y;
    return vemiOk;
  });
}

/// Whether both pairs of opposite sides are parallel, but for rounding.
bool isParallelogram(const Quad& quad) {
  const auto [p0, p1, p2, p3] = quad.corner;
  const auto areEqual = [](double a, double b) {
    return std::abs(a) < 1e-200 ? std::abs(b) <= 1e-12 : std::abs((a - b) / a) <= 1e-12;
  };
  return areEqual((p3.x - p2.x) * (p1.y - p0.y), (p1.x - p0.x) * (p3.y - p2.y)) &&
         areEqual((p0.y - p3.y) * (p2.x - p1.x), (p0.x - p3.x) * (p2.y - p1.y));
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

VemiStatus vemiGetRotateShift(double xCenter, double yCenter, double angle, double* pxShift, double* pyShift) {
  if (const VemiStatus bad = checkNull(pxShift, pyShift)) return bad;
  return addShift({0, 0}, {xCenter, yCenter}, angle, pxShift, pyShift);
}

VemiStatus vemiAddRotateShift(double xCenter, double yCenter, double angle, double* pxShift, double* pyShift) {
  if (const VemiStatus bad = checkNull(pxShift, pyShift)) return bad;
  return addShift({*pxShift, *pyShift}, {xCenter, yCenter}, angle, pxShift, pyShift);
}

VemiStatus vemiGetRotateQuad(VemiRect srcRoi, double quad[4][2], double angle, double xShift, double yShift) {
  return getQuad(srcRoi, quad, [&] { return Angle(angle).rotation({xShift, yShift}); });
}

/// The corners of any rectangle may be turned, those of a line too.
VemiStatus vemiGetRotateBound(VemiRect srcRoi, double bound[2][2], double angle, double xShift, double yShift) {
  const VemiStatus status = getBound(srcRoi, bound, [&] { return Angle(angle).rotation({xShift, yShift}); });
  return status == vemiErrQuad ? vemiOk : status;
}

VemiStatus vemiGetShearQuad(VemiRect srcRoi, double quad[4][2], double xShear, double yShear, double xShift,
                            double yShift) {
  return getQuad(srcRoi, quad, [&] { return shear(xShear, yShear, {xShift, yShift}); });
}

VemiStatus vemiGetShearBound(VemiRect srcRoi, double bound[2][2], double xShear, double yShear, double xShift,
                             double yShift) {
  return getBound(srcRoi, bound, [&] { return shear(xShear, yShear, {xShift, yShift}); });
}

VemiStatus vemiGetAffineQuad(VemiRect srcRoi, double quad[4][2], const double coeffs[2][3]) {
  return getQuad(
      srcRoi, quad, [&] { return affineFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetAffineBound(VemiRect srcRoi, double bound[2][2], const double coeffs[2][3]) {
  return getBound(
      srcRoi, bound, [&] { return affineFrom(coeffs); }, coeffs);
}

VemiStatus vemiGetAffineTransform(VemiRect srcRoi, const double quad[4][2], double coeffs[2][3]) {
  return getTransform(srcRoi, quad, coeffs, [&](const Edges& from, const Quad& to) -> VemiStatus {
    const double width = from.right - from.left, height = from.bottom - from.top;
    const auto row = [&](double p0, double p1, double p2, double* c) {
      c[0] = (p1 - p0) / width;
      c[1] = (p2 - p1) / height;
      c[2] = p0 - c[0] * from.left - c[1] * from.top;
    };
    row(to.corner[0].x, to.corner[1].x, to.corner[2].x, coeffs[0]);
    row(to.corner[0].y, to.corner[1].y, to.corner[2].y, coeffs[1]);
    return isParallelogram(to) ? vemiOk : vemiWarnNotParallelogram;
  });
}
