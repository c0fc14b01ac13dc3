// What both directions of the real transforms of any size share: lines of eight pairs of rows, a channel at a time.
#pragma once

#include <cstdint>
#include <cstring>

#include "transform/dft_spec.h"
#include "transform/packed.h"

namespace vemi::transform {

/// Where lanes stand in a group, and whether as their negatives.
struct LanePlace {
  float* at;
  bool isNegative;
};

/// From any address to any other.
HWY_INLINE void moveElement(const float* from, float* to, bool asNegative) {
  uint32_t bits;
  std::memcpy(&bits, from, sizeof bits);
  bits ^= asNegative ? uint32_t{1} << 31 : 0;
  std::memcpy(to, &bits, sizeof bits);
}

/// Eight rows of pixels with `elements` elements, of which the first is meant: placeOf(x, lane) is the place of the
/// pixels x of rows from `lane` on.
template <int elements, class T, class PlaceOf>
HWY_INLINE void loadChannel(const EightRows<T>& rows, ptrdiff_t width, const PlaceOf& placeOf) {
  const ColumnGroups::D d;
  if constexpr (elements == 1) {
    rows.load(width, [&](ptrdiff_t x, auto first, auto v) HWY_ATTR {
      const LanePlace place = placeOf(x, first);
      hn::StoreU(place.isNegative ? hn::Neg(v) : v, d, place.at);
    });
  } else {
    for (ptrdiff_t x = 0; x < width; ++x) {
      for (ptrdiff_t first = 0; first < 8; first += columnLanes) {
        const LanePlace place = placeOf(x, first);
        unrolled<columnLanes>(
            [&](auto i) { moveElement(rows.row[first + i] + x * elements, place.at + i, place.isNegative); });
      }
    }
  }
}

template <int elements, class PlaceOf>
HWY_INLINE void storeChannel(const EightRows<float>& rows, ptrdiff_t width, const PlaceOf& placeOf) {
  if constexpr (elements == 1) {
    rows.template store<Alpha::none>(width, [&](auto d, ptrdiff_t x, auto first) HWY_ATTR {
      const LanePlace place = placeOf(x, first);
      const auto v = hn::LoadU(d, place.at);
      return place.isNegative ? hn::Neg(v) : v;
    });
  } else {
    for (ptrdiff_t x = 0; x < width; ++x) {
      for (ptrdiff_t first = 0; first < 8; first += columnLanes) {
        const LanePlace place = placeOf(x, first);
        unrolled<columnLanes>(
            [&](auto i) { moveElement(place.at + i, rows.row[first + i] + x * elements, place.isNegative); });
      }
    }
  }
}

/// The frequency whose number stands in pixel x of a packed row with such rows above or below, and which part of it.
struct PackedNumber {
  ptrdiff_t u;
  bool isImaginary;

  PackedNumber(ptrdiff_t x, ptrdiff_t width, bool isBelow) : u((x + 1) / 2), isImaginary(x > 0 && x % 2 == 0) {
    if (isBelow && u > 0) u = width - u;
  }
};

/// One channel of an image.
template <class T>
Image<T> channelOf(Image<T> image, int channel) {
  return {image.first + channel, image.step};
}

/// Long rows of powers of two are lines of their own.
inline bool hasLongRows(const DFTFloats& spec) {
  return spec.realSpecX->realFFT != nullptr && spec.realSpecX->lines.groups() > signal::groupsOnStack;
}

/// The columns 0 and W - 1 of one channel, behind the groups of rows, where these are in the buffer.
inline PackedEdges edgesBehind(float* groups, const DFTFloats& spec) {
  const signal::DFTLines& lines = spec.realSpecX->lines;
  return {groups + (lines.groups() <= signal::groupsOnStack ? 0 : ColumnGroups{}.stride * lines.groups()), 1,
          spec.height};
}

/// Of an image of one row or column.
inline const signal::SigDFTSpec& onlyLine(const DFTFloats& spec) {
  return spec.height == 1 || spec.realSpecY == nullptr ? *spec.realSpecX : *spec.realSpecY;
}

}  // namespace vemi::transform
