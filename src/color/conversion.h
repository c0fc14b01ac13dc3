// Conversions between models that give each pixel from its own channels, whatever the layouts: whole calls by a team.
// Checks: null, size, step.
#pragma once

#include <type_traits>

#include "color/pixel_rows.h"
#include "core/checks.h"
#include "core/float_control.h"
#include "core/pixel_region.h"

namespace vemi::color {

/// In the place of a layout: planes, whose number their type says.
struct Planar;

/// Images of layout L, or planes, for which L does not count.
template <class L, class Images>
auto pixelsIn(Images images) {
  if constexpr (requires { pixelsOf(images); }) {
    return pixelsOf(images);
  } else if constexpr (requires { imageOfRows<L>(images); }) {
    return imageOfRows<L>(images);
  } else {
    return pixelsOf<L>(images);
  }
}

/// Of interleaved pixels whose arithmetic takes about as long as memory. A vector that is a line goes past the caches
/// as it is; halves of lines wait for the others, and calls take up to half as long again as with cached stores.
inline constexpr Stores storesBesideArithmetic =
    sizeof(hn::Vec<Lanes<uint8_t>>) == 64 ? Stores::streamed : Stores::cached;

/// dst = Op()(channels of src), by a team. Conversions of integers give the same under any rounding mode, those of
/// floats round as the caller has set it. `how` is of floats; integers take more arithmetic to the byte.
template <class Op, class SrcLayout, class DstLayout = SrcLayout, Stores how = Stores::cached, class Src, class Dst>
VemiStatus convertPixels(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  using Row = decltype(pixelsIn<SrcLayout>(src).row(0));
  constexpr bool areFloats = std::is_same_v<typename Row::Element, Vemi32f>;
  const auto convert = [&] {
    constexpr Stores stores = areFloats || how == Stores::cached ? how : storesBesideArithmetic;
    mapPixelRegion<stores>(TeamRows{false}, roiSize, Op(), pixelsIn<DstLayout>(dst), pixelsIn<SrcLayout>(src));
    return vemiOk;
  };
  if constexpr (areFloats)
    return convert();
  else
    return roundingToNearest(convert);
}

}  // namespace vemi::color
