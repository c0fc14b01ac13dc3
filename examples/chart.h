// Charts: their paper and colours, and the functions of a byte as lines.
#pragma once

#include <algorithm>

#include "image.h"

namespace demo {

inline constexpr Vemi8u paper[3] = {28, 31, 36}, grey[3] = {120, 124, 130}, blue[3] = {86, 160, 240},
                        orange[3] = {244, 162, 97}, green[3] = {110, 210, 150};

inline Image8u emptyChart(VemiSize size = {256, 256}) {
  Image8u chart(size, 3);
  CALL(vemiSet_8u_C3R(paper, chart.data(), chart.step(), chart.size()));
  return chart;
}

/// A row of all bytes.
inline Image8u byteRamp() {
  Image8u ramp({256, 1}, 1);
  for (int x = 0; x < 256; x++) CALL(vemiSet_8u_C1R(static_cast<Vemi8u>(x), ramp.at(x, 0), ramp.step(), {1, 1}));
  return ramp;
}

/// A line through a row of 256 values, from the lower left.
inline void plot(const Image8u& row, const Vemi8u (&colour)[3], Image8u& chart) {
  int before = *row.at(0, 0);
  for (int x = 0; x < 256; x++) {
    const int value = *row.at(x, 0);
    const int low = std::min(before, value), high = std::max(before, value);
    CALL(vemiSet_8u_C3R(colour, chart.at(x, 255 - high), chart.step(), {1, high - low + 1}));
    before = value;
  }
}

}  // namespace demo
