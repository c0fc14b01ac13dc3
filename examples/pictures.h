// Pictures made from others, for sections that combine two of them.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "shapes.h"

namespace demo {

/// Left and right exchanged; three channels.
inline Image8u mirrored(const Image8u& photo) {
  Image8u mirror(photo.size(), 3);
  for (int x = 0; x < photo.width(); x++) {
    CALL(vemiCopy_8u_C3R(photo.at(x, 0), photo.step(), mirror.at(photo.width() - 1 - x, 0), mirror.step(),
                         {1, photo.height()}));
  }
  return mirror;
}

/// One channel: `outside` around the ellipse, and from its rim inwards evenly brighter, up to 255 where the radii have
/// shrunk to `core` of their length.
inline Image8u softMaskOf(const Ellipse& ellipse, VemiSize size, Vemi8u outside, double core) {
  Image8u mask(size, 1);
  CALL(vemiSet_8u_C1R(outside, mask.data(), mask.step(), size));
  for (int level = outside + 1; level <= 255; level++) {
    const double share = (level - outside) / (255.0 - outside);
    const double shrunk = 1 - (1 - core) * share;
    const Ellipse inner = {ellipse.centreX, ellipse.centreY, ellipse.radiusX * shrunk, ellipse.radiusY * shrunk};
    forEachRow(inner, size, [&](int x, int y, int width) {
      CALL(vemiSet_8u_C1R(static_cast<Vemi8u>(level), mask.at(x, y), mask.step(), {width, 1}));
    });
  }
  return mask;
}

/// The elements as another type; integers are rounded and limited.
template <class To, class From>
Image<To> converted(const Image<From>& image) {
  Image<To> result(image.size(), image.channels());
  const auto element = [](From value) {
    if constexpr (std::numeric_limits<To>::is_integer) {
      const double low = std::numeric_limits<To>::min(), high = std::numeric_limits<To>::max();
      return static_cast<To>(std::nearbyint(std::clamp<double>(value, low, high)));
    } else {
      return static_cast<To>(value);
    }
  };
  for (int y = 0; y < image.height(); y++) {
    std::transform(image.at(0, y), image.at(image.width(), y), result.at(0, y), element);
  }
  return result;
}

}  // namespace demo
