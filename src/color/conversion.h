// The region functions of conversions between models, whatever the layouts of source and destination.
// Checks: null, size, step.
#pragma once

#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/pixel_region.h"

namespace vemi::color {

namespace detail {

/// The layout is that of interleaved pixels; planes are one for each channel.
template <class L, class T>
auto inLayout(Image<T> image) {
  return pixelsOf<L>(image);
}
template <class, class T, int planeCount>
auto inLayout(Planes<T, planeCount> planes) {
  return pixelsOf(planes);
}

}  // namespace detail

/// dst = Op()(channels of src), by a team. Conversions of integers give the same under any rounding mode, those of
/// floats round as the caller has set it.
template <class Op, class SrcLayout, class DstLayout = SrcLayout, Stores how = Stores::cached, class Src, class Dst>
VemiStatus convertPixels(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const auto convert = [&] {
    mapPixelRegion<how>(TeamRows{false}, roiSize, Op(), detail::inLayout<DstLayout>(dst),
                        detail::inLayout<SrcLayout>(src));
    return vemiOk;
  };
  using Row = decltype(detail::inLayout<SrcLayout>(src).row(0));
  if constexpr (std::is_same_v<typename Row::Element, Vemi32f>)
    return convert();
  else
    return roundingToNearest(convert);
}

}  // namespace vemi::color
