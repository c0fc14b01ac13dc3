// What the kernels of all interpolations share: blocks of coordinates inside the limits and outside, the places that
// they name, and the nearest pixel. A kernel is a record with `items`, the pixels of its block, and
// operator()(out, x, y), for which coordinates may be anything.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/blocks.h"
#include "core/lane_width.h"
#include "core/layout.h"
#include "core/processor.h"
#include "geometry/fetch.h"
#include "geometry/three_bytes.h"

namespace vemi::geometry {

using DFloats = Lanes<float>;
using DIntegers = Lanes<int32_t>;
using Floats = hn::Vec<DFloats>;
using Integers = hn::Vec<DIntegers>;

/// Coordinates in a vector.
inline constexpr ptrdiff_t placeCount = laneCount<float>;

// ---- Inside and outside -----------------------------------------------------------------------------------------

/// All bits of the lanes whose coordinates are fetched.
HWY_INLINE Integers insideOf(const FetchLimits& limits, const float* x, const float* y) {
  const DFloats d;
  const auto within = [&](Floats v, float low, float high)
                          HWY_ATTR { return hn::And(hn::Ge(v, hn::Set(d, low)), hn::Le(v, hn::Set(d, high))); };
  const auto both =
      hn::And(within(hn::LoadU(d, x), limits.left, limits.right), within(hn::LoadU(d, y), limits.top, limits.bottom));
  return hn::VecFromMask(DIntegers(), hn::RebindMask(DIntegers(), both));
}

// ---- Places -----------------------------------------------------------------------------------------------------

/// The nearest coordinate of the image; a NaN becomes one too.
HWY_INLINE Floats limited(Floats v, float last) {
  const DFloats d;
  return greater(lesser(v, hn::Set(d, last)), hn::Zero(d));
}

/// A column or row, and how far behind it the coordinate lies.
struct Tap {
  Integers first;
  Floats rest;
};

/// The first of two; the last one of the image is a whole pixel behind the last but one. What is subtracted are floats
/// without fractions, so that widths that no float holds do no harm.
HWY_INLINE Tap firstOfTwo(const float* at, float last, int pixels) {
  const DFloats d;
  const DIntegers di;
  const auto v = limited(hn::LoadU(d, at), last);
  const auto whole = truncated(di, v);
  const auto isLast = hn::Gt(whole, hn::Set(di, pixels - 2));
  const auto rest = hn::Sub(v, hn::ConvertTo(d, whole));
  return {hn::Add(whole, hn::VecFromMask(di, isLast)),
          hn::IfThenElse(hn::RebindMask(d, isLast), hn::Set(d, 1.0f), rest)};
}

/// The first of four.
HWY_INLINE Tap firstOfFour(const float* at, float last, int pixels) {
  const DFloats d;
  const DIntegers di;
  const auto v = limited(hn::LoadU(d, at), last);
  const auto whole = truncated(di, v);
  const auto before = hn::Sub(whole, hn::Set(di, 1));
  const auto first = hn::Max(hn::Min(before, hn::Set(di, pixels - 4)), hn::Zero(di));
  const auto fraction = hn::Sub(v, hn::ConvertTo(d, whole));
  return {first, hn::Add(fraction, hn::ConvertTo(d, hn::Sub(whole, first)))};
}

// ---- The nearest pixel --------------------------------------------------------------------------------------------

/// The column and row of the nearest pixel.
struct NearestPlace {
  Integers column, row;

  HWY_INLINE static NearestPlace of(const FetchSource& source, const float* x, const float* y) {
    const DFloats d;
    const DIntegers di;
    return {rounded(di, limited(hn::LoadU(d, x), source.image.right)),
            rounded(di, limited(hn::LoadU(d, y), source.image.bottom))};
  }
};

template <class T, class L>
struct Nearest {
  static constexpr ptrdiff_t items = placeCount;
  FetchSource source;

  HWY_INLINE void operator()(T* out, const float* x, const float* y) const {
    const DIntegers di;
    alignas(laneAlignment) int32_t column[items], row[items];
    const NearestPlace place = NearestPlace::of(source, x, y);
    hn::Store(place.column, di, column);
    hn::Store(place.row, di, row);
    for (ptrdiff_t i = 0; i < items; ++i) {
      const char* const pixel = source.pixels.at(column[i] * pixelBytes<T, L>, row[i]);
      std::memcpy(out + i * L::elements, pixel, L::channels * sizeof(T));
    }
  }
};

/// Pixels of up to four bytes, each of which is a word.
template <class T, class L>
struct NearestWords {
  static constexpr int size = static_cast<int>(pixelBytes<T, L>);
  static constexpr bool isNarrow = L::elements == 1 && size < 4;
  static constexpr ptrdiff_t items = isNarrow ? laneCount<T> : placeCount;
  FetchSource source;

  HWY_INLINE void operator()(T* out, const float* x, const float* y) const {
    const Lanes<T> d;
    const DIntegers di;
    const auto wordsAt = [&](ptrdiff_t k) HWY_ATTR {
      const NearestPlace place = NearestPlace::of(source, x + k, y + k);
      return source.pixels.words<size>(hn::Mul(place.column, hn::Set(di, size)), place.row).v[0];
    };
    if constexpr (isNarrow) {
      constexpr int32_t bits = (1 << 8 * size) - 1;
      const auto element = [&](auto k) HWY_ATTR { return hn::And(wordsAt(k * placeCount), hn::Set(di, bits)); };
      hn::StoreU(packEach<int32_t>(d, element), d, out);
    } else if constexpr (L::elements == 1) {
      hn::StoreU(hn::BitCast(d, wordsAt(0)), d, out);
    } else {
      storePixels<L>(hn::BitCast(d, wordsAt(0)), out);
    }
  }
};

template <class T, class L>
using NearestOf = std::conditional_t<pixelBytes<T, L> <= 4, NearestWords<T, L>, Nearest<T, L>>;

// ---- Rows ---------------------------------------------------------------------------------------------------------

/// A block of which parts may lie outside.
template <class T, class L, class Kernel>
HWY_NOINLINE void fetchPartOfBlock(const FetchSource& source, T* out, const float* x, const float* y) {
  constexpr ptrdiff_t items = Kernel::items;
  const DIntegers d;
  alignas(laneAlignment) int32_t inside[items];
  alignas(laneAlignment) T pixel[items * L::elements] = {};
  auto any = hn::Zero(d);
  unrolled<items / placeCount>([&](auto k) HWY_ATTR {
    const auto each = insideOf(source.limits, x + k * placeCount, y + k * placeCount);
    hn::Store(each, d, inside + k * placeCount);
    any = hn::Or(any, each);
  });
  if (hn::AllFalse(d, hn::MaskFromVec(any))) return;
  Kernel{source}(pixel, x, y);
  for (ptrdiff_t i = 0; i < items; ++i) {
    if (inside[i] != 0) std::memcpy(out + i * L::elements, pixel + i * L::elements, L::channels * sizeof(T));
  }
}

/// A row by a kernel of the interpolation. Blocks that lie inside go straight to the destination; the last block
/// overlaps the one before, which is fetched again with the same result.
template <class T, class L, class Kernel>
void fetchByKernel(const FetchSource& source, ptrdiff_t count, const float* x, const float* y, T* dst) {
  constexpr ptrdiff_t items = Kernel::items;
  const auto part = [&](T* out, const float* xs, const float* ys) {
    fetchPartOfBlock<T, L, Kernel>(source, out, xs, ys);
  };
  if (count < items) {
    return forBlocks<items>(count, part, Strand<T, L::elements>{dst}, Strand<const float>{x}, Strand<const float>{y});
  }
  const Kernel fetch = {source};
  const FetchLimits limits = source.limits;
  const DIntegers d;
  for (ptrdiff_t i = 0; i < count; i += items) {
    const ptrdiff_t at = std::min(i, count - items);
    auto all = hn::Set(d, -1);
    unrolled<items / placeCount>([&](auto k) HWY_ATTR {
      all = hn::And(all, insideOf(limits, x + at + k * placeCount, y + at + k * placeCount));
    });
    if (HWY_LIKELY(hn::AllTrue(d, hn::MaskFromVec(all)))) {
      fetch(dst + at * L::elements, x + at, y + at);
    } else {
      part(dst + at * L::elements, x + at, y + at);
    }
  }
}

/// Linear and Cubic are the kernels of these pixels.
template <class T, class L, class Linear, class Cubic>
FetchRow<T> fetchRowOf(int interpolation) {
  switch (interpolation) {
    case vemiInterNearest:
      return fetchByKernel<T, L, NearestOf<T, L>>;
    case vemiInterLinear:
      return fetchByKernel<T, L, Linear>;
    default:
      return fetchByKernel<T, L, Cubic>;
  }
}

}  // namespace vemi::geometry
