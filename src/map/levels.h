// Levels and their values, as the vemiLUT families take them. Levels k and k + 1 bound interval k, which holds the
// numbers v with level[k] <= v < level[k + 1]; a number in no interval stays as it is.
#pragma once

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"

namespace vemi::map {

/// The curve through the points (level, value).
enum class Curve { steps, lines, cubics };

/// V is 32s for integer elements and 32f for floats.
template <class V>
struct Levels {
  const V* value;
  const V* level;
  int count;

  int intervals() const { return count - 1; }
};

/// One list for each channel.
template <class V>
struct LevelLists {
  const V* const* values;
  const V* const* levels;
  const int* counts;

  Levels<V> operator[](int channel) const { return {values[channel], levels[channel], counts[channel]}; }
};

/// The one list of a one-channel image is tested behind the image, several lists ahead of it.
template <class L, class T, class V>
VemiStatus checkLevels(Image<const T> src, Image<T> dst, VemiSize roiSize, LevelLists<V> lists) {
  const auto enough = [](const Levels<V>& levels) { return levels.count < 2 ? vemiErrLutLevels : vemiOk; };
  if constexpr (L::elements == 1) {
    const Levels<V> levels = lists[0];
    return firstOf(checkNull(src, dst, levels.value, levels.level), checkSize(roiSize), checkStep(src, dst),
                   enough(levels));
  } else {
    if (const VemiStatus bad = checkNull(src, dst, lists.values, lists.levels, lists.counts)) return bad;
    for (int channel = 0; channel < L::channels; ++channel) {
      const Levels<V> levels = lists[channel];
      if (const VemiStatus bad = firstOf(checkNull(levels.value, levels.level), enough(levels))) return bad;
    }
    return firstOf(checkSize(roiSize), checkStep(src, dst));
  }
}

/// A cubic needs four points: where one channel has fewer, all of them have lines.
template <class L, class V>
Curve possibleCurve(Curve wanted, LevelLists<V> lists) {
  const bool anyShort = *std::min_element(lists.counts, lists.counts + L::channels) < 4;
  return wanted == Curve::cubics && anyShort ? Curve::lines : wanted;
}

/// y + a t + b t^2 + c t^3 with t = v - x.
struct Cubic {
  double x, y, a, b, c;
};

/// The first of the four points that the cubic of an interval goes through: its neighbours', as far as there are any.
template <class V>
int firstPoint(const Levels<V>& levels, int interval) {
  return std::clamp(interval - 1, 0, levels.count - 4);
}

/// The cubic through four points, by Cramer's rule. Moved to the second point, the others are (d, e), and the
/// determinants of their powers come apart into factors.
template <class V>
Cubic cubicOf(const Levels<V>& levels, int interval) {
  const V* const level = levels.level + firstPoint(levels, interval);
  const V* const value = levels.value + firstPoint(levels, interval);
  const double x = level[1], y = value[1];
  const double d0 = level[0] - x, d2 = level[2] - x, d3 = level[3] - x;
  const double e0 = value[0] - y, e2 = value[2] - y, e3 = value[3] - y;
  const double e0d23 = e0 * (d2 * d3 * (d3 - d2)), e2d03 = e2 * (d0 * d3 * (d3 - d0)),
               e3d02 = e3 * (d0 * d2 * (d2 - d0));
  const double determinant = d0 * d2 * d3 * ((d2 - d0) * (d3 - d0) * (d3 - d2));
  return {x, y, (e0d23 * (d2 * d3) - e2d03 * (d0 * d3) + e3d02 * (d0 * d2)) / determinant,
          (e2d03 * (d0 + d3) - e0d23 * (d2 + d3) - e3d02 * (d0 + d2)) / determinant,
          (e0d23 - e2d03 + e3d02) / determinant};
}

}  // namespace vemi::map

// Levels with their values behind the region: one list of them, or one for each channel.
#define VEMI_LEVELS(V) \
  ((const V* pValues, const V* pLevels, int nLevels), (LevelLists<V>{&pValues, &pLevels, &nLevels}))
#define VEMI_CHANNEL_LEVELS(V, channels)                                                              \
  ((const V* const pValues[channels], const V* const pLevels[channels], const int nLevels[channels]), \
   (LevelLists<V>{pValues, pLevels, nLevels}))
