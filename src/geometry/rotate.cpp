// vemiRotate, vemiRotateCenter: images turned about a point. By quarter turns and whole shifts, pixels are copied.
// Checks: null, size, step, and then, unless pixels are copied, interpolation, planes, region, quadrangle.

#include "core/rows.h"
#include "geometry/affine.h"
#include "geometry/exports.h"
#include "geometry/quarter_turns.h"
#include "vemi/geometry.h"

namespace vemi::geometry {
namespace {

bool isWhole(double x) { return std::floor(x) == x; }

template <class L, class Src, class Dst>
VemiStatus rotated(Src src, Dst dst, const Regions& regions, const Angle& angle, Point shift, int interpolation) {
  if (angle.quarterTurns() > 0 && isWhole(shift.x) && isWhole(shift.y)) {
    if (const VemiStatus bad = checkPlanes(src, dst)) return bad;
    return turned<L>(imagesOf(src), imagesOf(dst), regions, angle.quarterTurns(), shift);
  }
  if (const VemiStatus bad = firstOf(checkInterpolation(interpolation), checkPlanes(src, dst))) return bad;
  return warpByMap<L>(src, dst, regions, angle.rotation(shift), interpolation);
}

template <class L, class Src, class Dst>
VemiStatus rotate(Src src, Dst dst, Regions regions, double angle, double xShift, double yShift, int interpolation) {
  if (const VemiStatus bad = firstOf(checkNullImages(src, dst), checkRegions(regions), checkStep(src, dst))) return bad;
  return roundingToNearest([&] {
    return rotated<L>(src, dst, regions, Angle(angle), Point{xShift, yShift}, interpolation);
  });
}

template <class L, class Src, class Dst>
VemiStatus rotateCenter(Src src, Dst dst, Regions regions, double angle, double xCenter, double yCenter,
                        int interpolation) {
  if (const VemiStatus bad = firstOf(checkNullImages(src, dst), checkRegions(regions), checkStep(src, dst))) return bad;
  return roundingToNearest([&]() -> VemiStatus {
    const Angle turn(angle);
    return rotated<L>(src, dst, regions, turn, turn.shiftAround({xCenter, yCenter}), interpolation);
  });
}

}  // namespace
}  // namespace vemi::geometry

using namespace vemi;
using namespace vemi::geometry;

#define ROTATION                                                                  \
  ((double angle, double xShift, double yShift, vemiInterpolation interpolation), \
   (angle, xShift, yShift, interpolation))
#define CENTER_ROTATION                                                             \
  ((double angle, double xCenter, double yCenter, vemiInterpolation interpolation), \
   (angle, xCenter, yCenter, interpolation))

VEMI_DEFINE(vemiRotate_8u_C1R, VEMI_WARP(Vemi8u, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_8u_C3R, VEMI_WARP(Vemi8u, ROTATION), rotate<C3>)
VEMI_DEFINE(vemiRotate_8u_C4R, VEMI_WARP(Vemi8u, ROTATION), rotate<C4>)
VEMI_DEFINE(vemiRotate_8u_AC4R, VEMI_WARP(Vemi8u, ROTATION), rotate<AC4>)
VEMI_DEFINE(vemiRotate_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_16u_C1R, VEMI_WARP(Vemi16u, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_16u_C3R, VEMI_WARP(Vemi16u, ROTATION), rotate<C3>)
VEMI_DEFINE(vemiRotate_16u_C4R, VEMI_WARP(Vemi16u, ROTATION), rotate<C4>)
VEMI_DEFINE(vemiRotate_16u_AC4R, VEMI_WARP(Vemi16u, ROTATION), rotate<AC4>)
VEMI_DEFINE(vemiRotate_16u_P3R, VEMI_WARP_PLANES(Vemi16u, 3, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_16u_P4R, VEMI_WARP_PLANES(Vemi16u, 4, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_32f_C1R, VEMI_WARP(Vemi32f, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_32f_C3R, VEMI_WARP(Vemi32f, ROTATION), rotate<C3>)
VEMI_DEFINE(vemiRotate_32f_C4R, VEMI_WARP(Vemi32f, ROTATION), rotate<C4>)
VEMI_DEFINE(vemiRotate_32f_AC4R, VEMI_WARP(Vemi32f, ROTATION), rotate<AC4>)
VEMI_DEFINE(vemiRotate_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, ROTATION), rotate<C1>)
VEMI_DEFINE(vemiRotate_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, ROTATION), rotate<C1>)

VEMI_DEFINE(vemiRotateCenter_8u_C1R, VEMI_WARP(Vemi8u, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_8u_C3R, VEMI_WARP(Vemi8u, CENTER_ROTATION), rotateCenter<C3>)
VEMI_DEFINE(vemiRotateCenter_8u_C4R, VEMI_WARP(Vemi8u, CENTER_ROTATION), rotateCenter<C4>)
VEMI_DEFINE(vemiRotateCenter_8u_AC4R, VEMI_WARP(Vemi8u, CENTER_ROTATION), rotateCenter<AC4>)
VEMI_DEFINE(vemiRotateCenter_8u_P3R, VEMI_WARP_PLANES(Vemi8u, 3, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_8u_P4R, VEMI_WARP_PLANES(Vemi8u, 4, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_16u_C1R, VEMI_WARP(Vemi16u, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_16u_C3R, VEMI_WARP(Vemi16u, CENTER_ROTATION), rotateCenter<C3>)
VEMI_DEFINE(vemiRotateCenter_16u_C4R, VEMI_WARP(Vemi16u, CENTER_ROTATION), rotateCenter<C4>)
VEMI_DEFINE(vemiRotateCenter_16u_AC4R, VEMI_WARP(Vemi16u, CENTER_ROTATION), rotateCenter<AC4>)
VEMI_DEFINE(vemiRotateCenter_16u_P3R, VEMI_WARP_PLANES(Vemi16u, 3, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_16u_P4R, VEMI_WARP_PLANES(Vemi16u, 4, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_32f_C1R, VEMI_WARP(Vemi32f, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_32f_C3R, VEMI_WARP(Vemi32f, CENTER_ROTATION), rotateCenter<C3>)
VEMI_DEFINE(vemiRotateCenter_32f_C4R, VEMI_WARP(Vemi32f, CENTER_ROTATION), rotateCenter<C4>)
VEMI_DEFINE(vemiRotateCenter_32f_AC4R, VEMI_WARP(Vemi32f, CENTER_ROTATION), rotateCenter<AC4>)
VEMI_DEFINE(vemiRotateCenter_32f_P3R, VEMI_WARP_PLANES(Vemi32f, 3, CENTER_ROTATION), rotateCenter<C1>)
VEMI_DEFINE(vemiRotateCenter_32f_P4R, VEMI_WARP_PLANES(Vemi32f, 4, CENTER_ROTATION), rotateCenter<C1>)
