// Where a resize finds its source: positions of columns and rows, the samples beside them and their weights, once in a
// call. All in double precision but the weights themselves, by basic arithmetic alone, so that every processor has the
// same.
#pragma once

#include "vemi/types.h"

namespace vemi::geometry {

/// One direction, seen from the image's first column (or row).
struct Axis {
  int image;           // columns that the image has
  int count;           // columns that the destination gets
  double start, step;  // position of the first one, and what is added for each further one
};

/// What is below this does not count: of an index it is missing to the next one, of a weight it is left out.
inline constexpr double negligible = 1e-7;

/// The first of the neighbouring samples that make a column, and where the column lies between them.
struct Node {
  int first;
  double fraction;
};

/// A position within the image and its index. A position that passes the image by a pixel or more is that of its last,
/// or first, column.
struct Place {
  int index;
  double position;
};

inline Place placeOf(double position, int image) {
  const double biased = position + negligible;
  if (!(biased > -1)) return {0, 0};
  if (biased >= image) return {image - 1, image - 1.0};
  return {static_cast<int>(biased), position};
}

inline Node nearestNode(Place place, int) { return {place.index, 0}; }

/// Of two samples. At the last column both are the image's, and all weight is the second's.
inline Node linearNode(Place place, int image) {
  if (place.index >= image - 1) return {image - 2, 1};
  return {place.index, place.position - place.index};
}

/// Of four samples, the fraction counting from the second one. At the edges these are the image's outermost four, and
/// the polynomial through them goes on beyond their middle; at the last column it ends.
inline Node cubicNode(Place place, int image) {
  const int last = image - 1;
  if (place.index == last) return {last - 3, 2};
  const int second = place.index == 0 ? 1 : place.index == last - 1 ? last - 2 : place.index;
  return {second - 1, place.position - second};
}

/// Of six samples, the fraction counting from the third one. Those that the image lacks repeat its edge.
inline Node lanczosNode(Place place, int) { return {place.index - 2, place.position - place.index}; }

/// Calls f(column, nodeOf(its position)). Positions are reached by additions, one for each column.
template <auto nodeOf, class F>
void forNodes(const Axis& axis, const F& f) {
  double position = axis.start;
  for (int i = 0; i < axis.count; ++i) {
    f(i, nodeOf(placeOf(position, axis.image), axis.image));
    position += axis.step;
  }
}

/// Of bytes between two samples, in units of 1/16384.
inline int linearWeight(const Node& node) { return static_cast<int>(node.fraction * 16384 + negligible); }

/// The six weights of the windowed sinc, read from a table of hundredths.
void lanczosWeights(float fraction, float (&weight)[6]);

/// The samples under an interval: calls add(index, weight) for the first one, which may be cut, then for the whole
/// ones, then for the rest. What reaches beyond the image is the last sample's.
template <class F>
void forCovered(double position, double length, int image, const F& add) {
  const int last = image - 1;
  const auto addUnlessNegligible = [&](int index, double weight) {
    if (weight >= negligible) add(index, static_cast<float>(weight));
  };
  int index = position < last ? static_cast<int>(position) : last;
  double rest = length;
  if (index < last) {
    const double first = 1 - (position - index);
    addUnlessNegligible(index++, first);
    rest -= first;
  }
  for (; index < last && rest >= 1; rest -= 1) add(index++, 1.0f);
  addUnlessNegligible(index, rest);
}

}  // namespace vemi::geometry
