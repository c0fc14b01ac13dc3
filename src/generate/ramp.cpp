// vemiImageRamp: a linear ramp, v = k slope + offset in single precision, with k the column, the row, or their product.
// Checks: null, step, size. Another axis than those three draws nothing.

#include <algorithm>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/grey_row.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "vemi/generate.h"

namespace vemi::generate {
namespace {

struct Ramp {
  float offset, slope;

  /// A vector of elements; kOf(d, n) is the n-th vector of their k.
  template <class T, class KOf>
  HWY_INLINE hn::Vec<Lanes<T>> elements(const KOf& kOf) const {
    const Lanes<float> d;
    const auto value = [&](auto n)
                           HWY_ATTR { return hn::Add(hn::Mul(kOf(d, n), hn::Set(d, slope)), hn::Set(d, offset)); };
    if constexpr (std::is_same_v<T, float>) {
      return value(0);
    } else if constexpr (sizeof(T) == 4) {
      return halvesAwayOf<T>(Lanes<int32_t>(), value(0));
    } else {
      return packEach<float>(Lanes<T>(), [&](auto n) HWY_ATTR { return halvesAwayOf<T>(Lanes<int32_t>(), value(n)); });
    }
  }
};

/// A row of products of columns and y, rounded once: as long as 32 bits hold them, integers.
struct ShortProducts {
  ptrdiff_t y;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, ptrdiff_t x, ptrdiff_t n) const {
    const hn::RebindToSigned<D> di;
    const auto ofVector =
        hn::Mul(hn::Iota(di, static_cast<int>(n * laneCount<float>)), hn::Set(di, static_cast<int>(y)));
    return hn::ConvertTo(d, hn::Add(hn::Set(di, static_cast<int>(x * y)), ofVector));
  }
};

struct LongProducts {
  ptrdiff_t y;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, ptrdiff_t x, ptrdiff_t n) const {
    const Lanes<double> dWide;
    const hn::Half<D> dHalf;
    const auto from = [&](ptrdiff_t first) HWY_ATTR {
      const auto columns = hn::Iota(dWide, static_cast<double>(first));
      return hn::DemoteTo(dHalf, hn::Mul(columns, hn::Set(dWide, static_cast<double>(y))));
    };
    const ptrdiff_t first = x + n * laneCount<float>;
    return hn::Combine(d, from(first + laneCount<double>), from(first));
  }
};

/// A row of grey pixels. Single channels are drawn in their place, but for the last vector.
template <class L, class T, class Products>
void drawRow(const Ramp& ramp, ptrdiff_t width, T* row, Products products) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  const auto draw = [&](ptrdiff_t x, ptrdiff_t count, T* values) HWY_ATTR {
    for (ptrdiff_t i = 0; i < count; i += N) {
      const auto kOf = [&](auto dFloat, ptrdiff_t n) HWY_ATTR { return products(dFloat, x + i, n); };
      hn::StoreU(ramp.elements<T>(kOf), d, values + i);
    }
  };
  const ptrdiff_t inPlace = L::elements == 1 ? width / N * N : 0;
  draw(0, inPlace, row);
  GreyPiece<T> piece;
  for (ptrdiff_t x = inPlace; x < width; x += greyPiece) {
    const ptrdiff_t n = std::min(greyPiece, width - x);
    draw(x, n, piece.value);
    writeGrey<L>(n, piece.value, row + x * L::elements);
  }
}

/// All rows are the same one.
template <class L, class T>
VemiStatus drawHorizontal(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  const Vemi64s rowBytes = roiSize.width * Vemi64s{pixelBytes<T, L>};
  const Scratch scratch(rowBytes);
  if (scratch.failed()) return vemiErrMemAlloc;
  T* const row = scratch.as<T>();
  drawRow<Interleaved<L::elements>>(ramp, roiSize.width, row, ShortProducts{1});
  for (int y = 0; y < roiSize.height; ++y) {
    if constexpr (L::keepsAlpha) {
      mapRow<L>(roiSize.width, eachVector(Identity()), dst.row(y), row);
    } else {
      rowCopyBytes(row, dst.row(y), static_cast<ptrdiff_t>(rowBytes));
    }
  }
  return vemiOk;
}

template <class L, class T>
VemiStatus drawVertical(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  for (int y = 0; y < roiSize.height; ++y) {
    const auto kOf = [&](auto d, ptrdiff_t) HWY_ATTR { return hn::Set(d, static_cast<float>(y)); };
    const T value = hn::GetLane(ramp.elements<T>(kOf));
    const T values[4] = {value, value, value, value};
    mapRow<L>(roiSize.width, constantPixel<L>(values), dst.row(y));
  }
  return vemiOk;
}

template <class L, class T>
VemiStatus drawBoth(const Ramp& ramp, Image<T> dst, VemiSize roiSize) {
  const bool areShort = (Vemi64s{roiSize.width} - 1) * (roiSize.height - 1) <= std::numeric_limits<int32_t>::max();
  for (int y = 0; y < roiSize.height; ++y) {
    if (areShort) {
      drawRow<L>(ramp, roiSize.width, dst.row(y), ShortProducts{y});
    } else {
      drawRow<L>(ramp, roiSize.width, dst.row(y), LongProducts{y});
    }
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
}  // namespace vemi::generate

using namespace vemi;
using namespace vemi::generate;

#define RAMP ((Vemi32f offset, Vemi32f slope, int axis), (Ramp{offset, slope}, axis))

VEMI_DEFINE(vemiImageRamp_8u_C1R, VEMI_DST(Vemi8u, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_8u_C3R, VEMI_DST(Vemi8u, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_8u_C4R, VEMI_DST(Vemi8u, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_8u_AC4R, VEMI_DST(Vemi8u, RAMP), drawRamp<AC4>)
VEMI_DEFINE(vemiImageRamp_8s_C1R, VEMI_DST(Vemi8s, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_8s_C3R, VEMI_DST(Vemi8s, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_8s_C4R, VEMI_DST(Vemi8s, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_8s_AC4R, VEMI_DST(Vemi8s, RAMP), drawRamp<AC4>)
VEMI_DEFINE(vemiImageRamp_16u_C1R, VEMI_DST(Vemi16u, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_16u_C3R, VEMI_DST(Vemi16u, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_16u_C4R, VEMI_DST(Vemi16u, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_16u_AC4R, VEMI_DST(Vemi16u, RAMP), drawRamp<AC4>)
VEMI_DEFINE(vemiImageRamp_16s_C1R, VEMI_DST(Vemi16s, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_16s_C3R, VEMI_DST(Vemi16s, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_16s_C4R, VEMI_DST(Vemi16s, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_16s_AC4R, VEMI_DST(Vemi16s, RAMP), drawRamp<AC4>)
VEMI_DEFINE(vemiImageRamp_32s_C1R, VEMI_DST(Vemi32s, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_32s_C3R, VEMI_DST(Vemi32s, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_32s_C4R, VEMI_DST(Vemi32s, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_32s_AC4R, VEMI_DST(Vemi32s, RAMP), drawRamp<AC4>)
VEMI_DEFINE(vemiImageRamp_32f_C1R, VEMI_DST(Vemi32f, RAMP), drawRamp<C1>)
VEMI_DEFINE(vemiImageRamp_32f_C3R, VEMI_DST(Vemi32f, RAMP), drawRamp<C3>)
VEMI_DEFINE(vemiImageRamp_32f_C4R, VEMI_DST(Vemi32f, RAMP), drawRamp<C4>)
VEMI_DEFINE(vemiImageRamp_32f_AC4R, VEMI_DST(Vemi32f, RAMP), drawRamp<AC4>)
