// Shapes that fills and masks are made of.
#pragma once

#include <algorithm>
#include <cmath>

#include "image.h"

namespace demo {

struct Ellipse {
  double centreX, centreY, radiusX, radiusY;
};

/// The largest ellipse that leaves the margin free on all sides of a picture.
inline Ellipse ellipseWithin(VemiSize size, double margin) {
  return {size.width / 2.0, size.height / 2.0, size.width / 2.0 - margin, size.height / 2.0 - margin};
}

/// Calls fill(x, y, width) for each row of the ellipse, as far as it lies in a picture of this size.
template <class Fill>
void forEachRow(const Ellipse& ellipse, VemiSize size, Fill fill) {
  const int top = std::max(0, static_cast<int>(std::ceil(ellipse.centreY - ellipse.radiusY)));
  const int bottom = std::min(size.height - 1, static_cast<int>(std::floor(ellipse.centreY + ellipse.radiusY)));
  for (int y = top; y <= bottom; y++) {
    const double rise = (y - ellipse.centreY) / ellipse.radiusY;
    const double half = ellipse.radiusX * std::sqrt(std::max(0.0, 1 - rise * rise));
    const int left = std::max(0, static_cast<int>(std::lround(ellipse.centreX - half)));
    const int right = std::min(size.width, static_cast<int>(std::lround(ellipse.centreX + half)));
    if (left < right) fill(left, y, right - left);
  }
}

/// 255 within the ellipse, 0 around it.
inline Image8u maskOf(const Ellipse& ellipse, VemiSize size) {
  Image8u mask(size, 1);
  CALL(vemiSet_8u_C1R(0, mask.data(), mask.step(), size));
  forEachRow(ellipse, size, [&](int x, int y, int width) {
    CALL(vemiSet_8u_C1R(255, mask.at(x, y), mask.step(), {width, 1}));
  });
  return mask;
}

}  // namespace demo
