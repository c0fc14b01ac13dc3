// A channel of an image as doubles.
#pragma once

#include <vector>

#include "support/call.h"

namespace vemi::test {

/// What is outside of it is 0.
struct Plane {
  int width, height;
  std::vector<double> pixel;
  double energy = 0;

  Plane(const View& view, int channel) : width(view.size.width), height(view.size.height) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        pixel.push_back(loadNumber(view.element, view.at(x, y, channel)));
        energy += pixel.back() * pixel.back();
      }
    }
  }
  double at(int x, int y) const {
    return x < 0 || y < 0 || x >= width || y >= height ? 0 : pixel[static_cast<size_t>(y) * width + x];
  }
};

}  // namespace vemi::test
