// vemiImageRamp: a linear ramp, v = k slope + offset in single precision, with k the column, the row, or their product.
// Checks: null, step, size. Another axis than those three draws nothing.

#include <algorithm>
#include <limits>
#include <type_traits>

#include "core/alloc.h"
#include "core/checks.h"
#include "core/image.h"
#include "core/map_row.h"
#include "generate/grey_row.h"
#include "vemi/generate.h"

namespace vemi {
namespace {

/// Halves away from zero and limited to T; half of one is added in single precision. A NaN is zero.
template <class T, class D, class V>
HWY_INLINE auto elementsOf(D d, V v) {
  if constexpr (std::is_same_v<T, float>) {
    return v;
  } else {
    const hn::RebindToSigned<D> di;
    const V magnified = hn::Add(v, hn::CopySign(hn::Set(d, 0.5f), v));
    const auto integer = hn::ConvertTo(di, hn::IfThenElseZero(hn::Eq(v, v), magnified));
    if constexpr (sizeof(T) == 4) {
      return integer;
    } else {  // narrowing to bytes, the lane library takes what 16 bits do not hold for negative
      const auto limited = hn::Min(integer, hn::Set(di, std::numeric_limits<T>::max()));
      return hn::DemoteTo(hn::Rebind<T, D>(), limited);
    }
  }
}

struct Ramp {
  float offset, slope;

  /// The elements that belong to the k of the lanes.
  template <class T, class D, class V>
  HWY_INLINE auto at(D d, V k) const {
    return elementsOf<T>(d, hn::Add(hn::Mul(k, hn::Set(d, slope)), hn::Set(d, offset)));
  }

  template <class T>
  T at(ptrdiff_t k) const {
    const Lanes<float> d;
    return hn::GetLane(at<T>(d, hn::Set(d, static_cast<float>(k))));
  }
};

/// Single-precision lanes of the columns from x on.
template <class D>
HWY_INLINE hn::Vec<D> columns(D d, ptrdiff_t x) {
  const hn::RebindToSigned<D> di;
  return hn::ConvertTo(d, hn::Iota(di, static_cast<int>(x)));
}

/// The products of columns and a row, rounded once.
template <class D>
HWY_INLINE hn::Vec<D> products(D d, ptrdiff_t x, ptrdiff_t y) {
  const Lanes<double> dWide;
  const hn::Half<D> dHalf;
  const auto row = hn::Set(dWide, static_cast<double>(y));
  const auto from = [&](ptrdiff_t first) HWY_ATTR {
    return hn::DemoteTo(dHalf, hn::Mul(hn::Iota(dWide, static_cast<double>(first)), row));
  };
  return hn::Combine(d, from(x + laneCount<double>), from(x));
}

/// A row of grey pixels; kOf(d, x) gives k of the columns from x on.
template <class L, class T, class KOf>
void drawRow(const Ramp& ramp, ptrdiff_t width, T* row, const KOf& kOf) {
  const Lanes<float> d;
  const hn::Rebind<T, decltype(d)> dElements;
  GreyPiece<T> piece;
  for (ptrdiff_t x = 0; x < width; x += greyPiece) {
    const ptrdiff_t n = std::min(greyPiece, width - x);
    for (ptrdiff_t i = 0; i < n; i += laneCount<float>) {
      hn::StoreU(ramp.at<T>(d, kOf(d, x + i)), dElements, piece.value + i);
    }
    writeGrey<L>(n, piece.value, row + x * L::elements);
  }
}

/// All rows are the same one.
template <class L, class T>
VemiStatus drawHorizontal(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  const ptrdiff_t rowBytes = roiSize.width * pixelBytes<T, L>;
  T* const scratch = static_cast<T*>(alignedAllocBytes(rowBytes));
  if (scratch == nullptr) return vemiErrMemAlloc;
  using Whole = Interleaved<L::elements>;
  drawRow<Whole>(ramp, roiSize.width, scratch, [](auto d, ptrdiff_t x) HWY_ATTR { return columns(d, x); });
  for (int y = 0; y < roiSize.height; ++y) {
    if constexpr (L::keepsAlpha) {
      mapRow<L>(roiSize.width, eachVector(Same()), dst.row(y), scratch);
    } else {
      rowCopyBytes(scratch, dst.row(y), rowBytes);
    }
  }
  vemiAlignedFree(scratch);
  return vemiOk;
}

template <class L, class T>
VemiStatus drawVertical(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  for (int y = 0; y < roiSize.height; ++y) {
    const T value = ramp.at<T>(y);
    const T values[4] = {value, value, value, value};
    mapRow<L>(roiSize.width, constantPixel<L>(values), dst.row(y));
  }
  return vemiOk;
}

template <class L, class T>
VemiStatus drawBoth(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  for (int y = 0; y < roiSize.height; ++y) {
    drawRow<L>(ramp, roiSize.width, dst.row(y), [=](auto d, ptrdiff_t x) HWY_ATTR { return products(d, x, y); });
  }
  return vemiOk;
}

template <class L, class T>
VemiStatus drawRamp(Image<T> dst, VemiSize roiSize, Ramp ramp, int axis) {
  if (const VemiStatus bad = firstOf(checkNull(dst), checkStep(dst), checkSize(roiSize))) return bad;
  switch (axis) {
    case vemiRampHorizontal:
      return drawHorizontal<L>(ramp, dst, roiSize);
    case vemiRampVertical:
      return drawVertical<L>(ramp, dst, roiSize);
    case vemiRampBoth:
      return drawBoth<L>(ramp, dst, roiSize);
    default:
      return vemiOk;
  }
}

}  // namespace
}  // namespace vemi

using namespace vemi;

#define VEMI_RAMP(name, T, ...)                                                                      \
  VemiStatus name(T* pDst, int dstStep, VemiSize roiSize, Vemi32f offset, Vemi32f slope, int axis) { \
    return __VA_ARGS__(Image<T>{pDst, dstStep}, roiSize, Ramp{offset, slope}, axis);                 \
  }

VEMI_RAMP(vemiImageRamp_8u_C1R, Vemi8u, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_8u_C3R, Vemi8u, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_8u_C4R, Vemi8u, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_8u_AC4R, Vemi8u, drawRamp<AC4>)
VEMI_RAMP(vemiImageRamp_8s_C1R, Vemi8s, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_8s_C3R, Vemi8s, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_8s_C4R, Vemi8s, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_8s_AC4R, Vemi8s, drawRamp<AC4>)
VEMI_RAMP(vemiImageRamp_16u_C1R, Vemi16u, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_16u_C3R, Vemi16u, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_16u_C4R, Vemi16u, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_16u_AC4R, Vemi16u, drawRamp<AC4>)
VEMI_RAMP(vemiImageRamp_16s_C1R, Vemi16s, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_16s_C3R, Vemi16s, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_16s_C4R, Vemi16s, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_16s_AC4R, Vemi16s, drawRamp<AC4>)
VEMI_RAMP(vemiImageRamp_32s_C1R, Vemi32s, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_32s_C3R, Vemi32s, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_32s_C4R, Vemi32s, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_32s_AC4R, Vemi32s, drawRamp<AC4>)
VEMI_RAMP(vemiImageRamp_32f_C1R, Vemi32f, drawRamp<C1>)
VEMI_RAMP(vemiImageRamp_32f_C3R, Vemi32f, drawRamp<C3>)
VEMI_RAMP(vemiImageRamp_32f_C4R, Vemi32f, drawRamp<C4>)
VEMI_RAMP(vemiImageRamp_32f_AC4R, Vemi32f, drawRamp<AC4>)
