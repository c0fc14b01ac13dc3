// Transforms between integers by way of floats: to floats, the float transform in place, back to integers.
// Checks: null record, tag, null images, step, the reserved word, memory.
//
// Floats have C1, C3 or C4; the colours of AC4 are C3. A result is multiplied by 2^-scaleFactor, rounded to nearest,
// ties to even, and saturated; a zero stays one.
#pragma once

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/record.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "vemi/core.h"

namespace vemi::transform {
/// Integers as floats, rounded to nearest where they are long.
struct ToFloats {
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi8u* in) const {
    return loadExtended(d, in);
  }
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const Vemi32s* in) const {
    return hn::ConvertTo(d, hn::LoadU(hn::Rebind<int32_t, D>(), in));
  }
};

/// The power of two has two factors that floats hold. Beyond 2^252 either way it makes no difference.
struct ToIntegers {
  float factor[2];

  explicit ToIntegers(int scaleFactor) {
    const int exponent = -std::clamp(scaleFactor, -252, 252);
    factor[0] = std::ldexp(1.0f, exponent / 2);
    factor[1] = std::ldexp(1.0f, exponent - exponent / 2);
  }

  template <class DF>
  HWY_INLINE hn::Vec<DF> scaled(DF df, const float* in) const {
    return hn::Mul(hn::Mul(hn::LoadU(df, in), hn::Set(df, factor[0])), hn::Set(df, factor[1]));
  }
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, const float* in) const {
    using T = hn::TFromD<D>;
    const Lanes<float> df;
    const Lanes<int32_t> di;
    if constexpr (sizeof(T) == 4) {
      return nearestOf<T>(di, scaled(df, in));
    } else {
      return packEach<float>(d,
                             [&](auto k) HWY_ATTR { return nearestOf<T>(di, scaled(df, in + k * laneCount<float>)); });
    }
  }
};

inline VemiStatus coloursOf(const Vemi8u* row, Vemi8u* colours, VemiSize size) {
  return vemiCopy_8u_AC4C3R(row, size.width * 4, colours, size.width * 3, size);
}
inline VemiStatus coloursOf(const Vemi32s* row, Vemi32s* colours, VemiSize size) {
  return vemiCopy_32f_AC4C3R(reinterpret_cast<const Vemi32f*>(row), size.width * 16,
                             reinterpret_cast<Vemi32f*>(colours), size.width * 12, size);
}
inline VemiStatus setColours(const Vemi8u* colours, Vemi8u* row, VemiSize size) {
  return vemiCopy_8u_C3AC4R(colours, size.width * 3, row, size.width * 4, size);
}
inline VemiStatus setColours(const Vemi32s* colours, Vemi32s* row, VemiSize size) {
  return vemiCopy_32f_C3AC4R(reinterpret_cast<const Vemi32f*>(colours), size.width * 12,
                             reinterpret_cast<Vemi32f*>(row), size.width * 16, size);
}

/// `Floats` tells of a record's size, its tag, and the float transforms of a layout, forward<L> and inverse<L>.
template <class Floats, class L, class S, class T, class Spec>
VemiStatus byFloats(Image<const S> src, Image<T> dst, const Spec* spec, int scaleFactor, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, Floats::integerTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  if (spec->reserved != 0) return vemiOk;
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;

  const ptrdiff_t width = Floats::sizeOf(*spec).width, height = Floats::sizeOf(*spec).height;
  const VemiSize rowSize = {static_cast<int>(width), 1};
  const ptrdiff_t floats = width * L::channels;
  float* const image = scratch.as<float>();
  float* const row = image + 4 * width * height;
  auto* const rest = reinterpret_cast<Vemi8u*>(row + 4 * width);
  for (ptrdiff_t y = 0; y < height; ++y) {
    const S* integers = src.row(y);
    if constexpr (L::keepsAlpha) {
      S* const colours = reinterpret_cast<S*>(row);
      if (const VemiStatus bad = coloursOf(integers, colours, rowSize)) return bad;
      integers = colours;
    }
    mapElements<Alpha::none>(floats, eachVector(ToFloats()), image + y * floats, integers);
  }
  const auto transform = std::is_same_v<T, Vemi32s> ? Floats::template forward<L> : Floats::template inverse<L>;
  const int step = static_cast<int>(floats * ptrdiff_t{sizeof(float)});
  if (const VemiStatus bad = transform(image, step, image, step, spec->floats.get(), rest)) return bad;
  const ToIntegers toIntegers(scaleFactor);
  for (ptrdiff_t y = 0; y < height; ++y) {
    if constexpr (L::keepsAlpha) {
      T* const colours = reinterpret_cast<T*>(row);
      mapElements<Alpha::none>(floats, eachVector(toIntegers), colours, image + y * floats);
      if (const VemiStatus bad = setColours(colours, dst.row(y), rowSize)) return bad;
    } else {
      mapElements<Alpha::none>(floats, eachVector(toIntegers), dst.row(y), image + y * floats);
    }
  }
  return vemiOk;
}

/// Between integers, no rounding mode of the caller's counts.
template <class Floats, class L, class S, class T, class Spec>
VemiStatus integerTransform(Image<const S> src, Image<T> dst, const Spec* spec, int scaleFactor, Vemi8u* buffer) {
  return roundingToNearest([&] { return byFloats<Floats, L>(src, dst, spec, scaleFactor, buffer); });
}

}  // namespace vemi::transform
