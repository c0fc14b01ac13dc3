// Rows of interleaved pixels of three floats.
#pragma once

#include <concepts>
#include <cstddef>
#include <tuple>
#include <type_traits>

#include "core/image.h"
#include "core/pixel_region.h"
#include "core/pixels.h"
#include "core/processor_triples.h"

namespace vemi::color {

/// As InterleavedRow, without a lane's place in the row: for operations that are the same in all columns.
template <class T>
struct TripleRow {
  using Element = float;
  static constexpr int channels = 3;
  static constexpr ptrdiff_t blockPixels = laneCount<float>;
  static constexpr int itemPixels = 1;
  static constexpr int streamedVectors = 1;

  T* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<T, 3 * pixels>{first});
  }
  TripleRow from(ptrdiff_t x) const { return {first + 3 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(std::is_const_v<T> && pixels == blockPixels);
    return loadTriples(Lanes<float>(), first, f);
  }
  template <Stores how, ptrdiff_t pixels, class V>
  HWY_INLINE void store(V v0, V v1, V v2) const {
    static_assert(pixels == blockPixels);
    if constexpr (how == Stores::streamed) {
      streamTriples(Lanes<float>(), v0, v1, v2, first);
    } else {
      storeTriples(Lanes<float>(), v0, v1, v2, first);
    }
  }
};

template <class T>
struct TripleImage : PixelImage<C3, T> {
  auto row(ptrdiff_t y) const { return TripleRow<T>{Image<T>::row(y)}; }
};

template <std::same_as<C3> L, class T>
requires(std::is_same_v<std::remove_const_t<T>, Vemi32f>) TripleImage<T> tripleImage(Image<T> image) {
  return {{image}};
}

}  // namespace vemi::color
