// Pictures made from others, for sections that combine two of them.
#pragma once

#include <algorithm>

#include "shapes.h"

namespace demo {

/// Three channels, to draw on.
inline Image8u copyOf(const Image8u& photo) {
  Image8u copy(photo.size(), 3);
  CALL(vemiCopy_8u_C3R(photo.data(), photo.step(), copy.data(), copy.step(), photo.size()));
  return copy;
}

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

/// The picture with its edge pixels repeated around it, `border` times on all sides: a filter's source. Three channels.
inline Image8u bordered(const Image8u& photo, int border) {
  Image8u wide({photo.width() + 2 * border, photo.height() + 2 * border}, 3);
  CALL(vemiCopyReplicateBorder_8u_C3R(photo.data(), photo.step(), photo.size(), wide.data(), wide.step(), wide.size(),
                                      border, border));
  return wide;
}

/// The green channel of the picture's middle, on a ground of its mean where the picture is smaller.
inline Image8u greenMiddleOf(const Image8u& photo, VemiSize whole) {
  Image8u middle(whole, 1);
  const VemiSize size = {std::min(whole.width, photo.width()), std::min(whole.height, photo.height())};
  Vemi64f mean[3];
  CALL(vemiMean_8u_C3R(photo.data(), photo.step(), photo.size(), mean));
  CALL(vemiSet_8u_C1R(static_cast<Vemi8u>(mean[1]), middle.data(), middle.step(), whole));
  const int x = (photo.width() - size.width) / 2, y = (photo.height() - size.height) / 2;
  CALL(vemiCopy_8u_C3C1R(photo.at(x, y) + 1, photo.step(), middle.data(), middle.step(), size));
  return middle;
}

/// A frame of at most 13 x 13 pixels around a place.
inline void mark(int x, int y, const Vemi8u (&colour)[3], Image8u& picture) {
  const int left = std::max(0, x - 6), right = std::min(picture.width(), x + 7);
  const int top = std::max(0, y - 6), bottom = std::min(picture.height(), y + 7);
  const VemiSize across = {right - left, 1}, down = {1, bottom - top};
  CALL(vemiSet_8u_C3R(colour, picture.at(left, top), picture.step(), across));
  CALL(vemiSet_8u_C3R(colour, picture.at(left, bottom - 1), picture.step(), across));
  CALL(vemiSet_8u_C3R(colour, picture.at(left, top), picture.step(), down));
  CALL(vemiSet_8u_C3R(colour, picture.at(right - 1, top), picture.step(), down));
}

inline void convert(const Image8u& from, Image<Vemi16s>& to) {
  CALL(vemiConvert_8u16s_C3R(from.data(), from.step(), to.data(), to.step(), from.size()));
}
inline void convert(const Image8u& from, Image<Vemi32f>& to) {
  CALL(vemiConvert_8u32f_C3R(from.data(), from.step(), to.data(), to.step(), from.size()));
}
inline void convert(const Image<Vemi16s>& from, Image8u& to) {
  CALL(vemiConvert_16s8u_C3R(from.data(), from.step(), to.data(), to.step(), from.size()));
}
inline void convert(const Image<Vemi32f>& from, Image8u& to) {
  CALL(vemiConvert_32f8u_C3R(from.data(), from.step(), to.data(), to.step(), from.size(), vemiRndNear));
}

/// Three channels as another type; floats are rounded, and what the type does not hold is limited.
template <class To, class From>
Image<To> converted(const Image<From>& photo) {
  Image<To> result(photo.size(), 3);
  convert(photo, result);
  return result;
}

}  // namespace demo
