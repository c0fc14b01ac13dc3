// One element fetched from between those of an image, written from the definition.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>

#include "support/call.h"
#include "vemi/geometry.h"

namespace vemi::test {

/// Coordinates that are fetched.
struct Limits {
  double left, top, right, bottom;
};

/// The columns or rows that an element is made of, and where it lies behind the first of them.
struct Neighbours {
  int first;
  float rest;

  Neighbours(float at, int pixels, int count) {
    const float place = std::clamp(at, 0.0f, static_cast<float>(pixels - 1));
    first = std::clamp(static_cast<int>(place) - (count == 4 ? 1 : 0), 0, pixels - count);
    rest = place - static_cast<float>(first);
  }
};

/// The polynomial through (0, p0) to (3, p3), a row after the other, as the library adds.
inline float cubicThrough(const float (&p)[4], float rest) {
  const float t = rest - 1, a = 1 + t, b = t * a / 2, c = (t - 1) * b / 3;
  const float d1 = p[1] - p[0], d2 = (p[2] - p[1]) - d1, d3 = p[1] - 2 * p[2] + p[3] - d2;
  return p[0] + a * d1 + b * d2 + c * d3;
}

/// In units of 2^-14, the weight of neighbour k of four for an element t / 512 behind the first one.
inline int cubicWeight(int k, int t) {
  double weight = 16384;
  for (int other = 0; other < 4; ++other) {
    if (other != k) weight *= (t / 512.0 - other) / (k - other);
  }
  return static_cast<int>(std::lround(weight));
}

inline int weightOf(int count, int k, float rest) {
  if (count == 4) return cubicWeight(k, static_cast<int>(std::nearbyint(rest * 512)));
  const int second = static_cast<int>(std::nearbyint(rest * 16384));
  return k == 0 ? 16384 - second : second;
}

/// The element of a channel at x, y goes to `out`, unless it is not fetched.
inline void fetchElement(const View& image, int interpolation, const Limits& limits, float x, float y, int channel,
                         std::byte* out) {
  if (!(x >= limits.left && x <= limits.right && y >= limits.top && y <= limits.bottom)) return;
  if (interpolation == vemiInterNearest) {
    const auto nearest = [](float at, int pixels) {
      return std::clamp(static_cast<int>(std::nearbyint(at)), 0, pixels - 1);
    };
    const std::byte* const pixel = image.at(nearest(x, image.size.width), nearest(y, image.size.height), channel);
    std::memcpy(out, pixel, static_cast<size_t>(bytesOf(image.element)));
    return;
  }
  const int count = interpolation == vemiInterCubic ? 4 : 2;
  const Neighbours column(x, image.size.width, count), row(y, image.size.height, count);
  if (image.element == Element::u8) {
    int sum = 0x80000;
    for (int j = 0; j < count; ++j) {
      int rowSum = 0;
      for (int k = 0; k < count; ++k) {
        const auto pixel = load<Vemi8u>(image.at(column.first + k, row.first + j, channel));
        rowSum += pixel * weightOf(count, k, column.rest);
      }
      sum += (rowSum >> 8) * weightOf(count, j, row.rest);
    }
    return storeSaturated(Element::u8, out, sum >> 20);
  }
  const auto between = [=](const float(&p)[4], float rest) {
    return count == 4 ? cubicThrough(p, rest) : p[0] * (1 - rest) + p[1] * rest;
  };
  float values[4] = {};
  for (int j = 0; j < count; ++j) {
    float inRow[4] = {};
    for (int k = 0; k < count; ++k) {
      inRow[k] = static_cast<float>(loadNumber(image.element, image.at(column.first + k, row.first + j, channel)));
    }
    values[j] = between(inRow, column.rest);
  }
  const float value = between(values, row.rest);
  if (image.element == Element::f32) return store(out, value);
  storeNumber(image.element, out, std::nearbyint(value));
}

}  // namespace vemi::test
