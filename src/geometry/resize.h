// What a resize comes to, and the routine that carries it out for an element type and a layout.
#pragma once

#include "core/image.h"
#include "geometry/resize_axis.h"
#include "vemi/geometry.h"

namespace vemi::geometry {

struct ResizePlan {
  vemiInterpolation interpolation;
  VemiSize image;           // all of the source
  Axis x, y;                // of area averaging, a step is what a destination pixel covers
  double xFactor, yFactor;  // of area averaging
};

/// So many images or planes, alike in all but their place: sources and destinations.
template <class T, class L>
VemiStatus resizeImages(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                        const ResizePlan& plan);

}  // namespace vemi::geometry
