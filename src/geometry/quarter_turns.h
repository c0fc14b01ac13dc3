// Images turned by quarter turns and moved by whole pixels: pixels are copied.
#pragma once

#include "core/checks.h"
#include "core/image.h"
#include "geometry/warp.h"
#include "vemi/geometry.h"

namespace vemi::geometry {

/// Which pixels are copied: a rectangle of the destination, and where its first pixel comes from.
struct TurnedPart {
  VemiSize size;
  VemiPoint dst, src;
};

/// vemiWarnNoOperation where nothing meets the destination's region, vemiWarnNoIntersection where the source's region
/// begins beyond the image.
VemiStatus turnedPart(const Regions& regions, int quarterTurns, Point shift, TurnedPart& part);

/// Rows become columns: byte i * srcStep + j * pixelSize of the source goes to byte j * dstStep + i * pixelSize of the
/// destination. Of each pixel the first bytes are written.
template <int pixelSize, int written>
void copyTransposed(VemiSize size, const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep);

/// The rectangle's first pixels are known; by one quarter turn, source columns are read from the last one on.
template <class L, class T>
void copyQuarterTurned(VemiSize size, Image<const T> src, Image<T> dst, int quarterTurns) {
  const bool once = quarterTurns == 1;
  constexpr int pixelSize = static_cast<int>(pixelBytes<T, L>);
  const ptrdiff_t last = size.height - 1;
  copyTransposed<pixelSize, L::channels* static_cast<int>(sizeof(T))>(
      size, once ? src.first - last * L::elements : src.first, once ? src.step : -ptrdiff_t{src.step},
      once ? dst.row(last) : dst.first, once ? -ptrdiff_t{dst.step} : dst.step);
}

/// The elements' type does not matter, its width does.
template <class L, class T>
void copyHalfTurned(VemiSize size, Image<const T> src, Image<T> dst) {
  const auto mirror = [&](auto c1, auto c3, auto c4, auto ac4, auto element) {
    using Element = decltype(element);
    const auto chosen = L::keepsAlpha ? ac4 : L::elements == 1 ? c1 : L::elements == 3 ? c3 : c4;
    const Image<const T> from = {src.row(1 - ptrdiff_t{size.height}) - (ptrdiff_t{size.width} - 1) * L::elements,
                                 src.step};
    chosen(reinterpret_cast<const Element*>(from.first), from.step, reinterpret_cast<Element*>(dst.first), dst.step,
           size, vemiAxisBoth);
  };
  if constexpr (sizeof(T) == 1) {
    mirror(vemiMirror_8u_C1R, vemiMirror_8u_C3R, vemiMirror_8u_C4R, vemiMirror_8u_AC4R, Vemi8u());
  } else if constexpr (sizeof(T) == 2) {
    mirror(vemiMirror_16u_C1R, vemiMirror_16u_C3R, vemiMirror_16u_C4R, vemiMirror_16u_AC4R, Vemi16u());
  } else {
    mirror(vemiMirror_32s_C1R, vemiMirror_32s_C3R, vemiMirror_32s_C4R, vemiMirror_32s_AC4R, Vemi32s());
  }
}

/// By one to three quarter turns.
template <class L, class T>
VemiStatus turned(const Images<const T>& src, const Images<T>& dst, const Regions& regions, int quarterTurns,
                  Point shift) {
  TurnedPart part;
  if (const VemiStatus status = turnedPart(regions, quarterTurns, shift, part)) {
    return status == vemiWarnNoIntersection ? vemiOk : status;
  }
  for (int n = 0; n < dst.count; ++n) {
    const auto from = imageOf<L>({part.src.x, part.src.y, 0, 0}, src.image[n]);
    const auto to = imageOf<L>({part.dst.x, part.dst.y, 0, 0}, dst.image[n]);
    if (quarterTurns == 2) {
      copyHalfTurned<L>(part.size, from, to);
    } else {
      copyQuarterTurned<L>(part.size, from, to, quarterTurns);
    }
  }
  return vemiOk;
}

}  // namespace vemi::geometry
