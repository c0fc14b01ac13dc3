// Rows of interleaved pixels that go to vectors of channels and back by fewer moves than the lane library takes: of
// three floats, and destinations of four bytes.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

#include "core/image.h"
#include "core/inlined.h"
#include "core/pixel_region.h"
#include "core/pixels.h"
#include "core/processor_triples.h"
#include "core/vector_blocks.h"

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
    storeTriples<how>(Lanes<float>(), v0, v1, v2, first);
  }
};

template <class T>
struct TripleImage : PixelImage<C3, T> {
  auto row(ptrdiff_t y) const { return TripleRow<T>{Image<T>::row(y)}; }
};

template <std::same_as<C3> L, class T>
requires(std::is_same_v<std::remove_const_t<T>, Vemi32f>) TripleImage<T> imageOfRows(Image<T> image) {
  return {{image}};
}

/// Four interleaved bytes, all of which are written.
struct FourBytesRow {
  using Element = uint8_t;
  static constexpr int channels = 4;
  static constexpr ptrdiff_t blockPixels = laneCount<uint8_t>;
  static constexpr int itemPixels = 1;
  static constexpr int streamedVectors = 1;

  uint8_t* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<uint8_t, 4 * pixels>{first});
  }
  FourBytesRow from(ptrdiff_t x) const { return {first + 4 * x}; }

  template <Stores how, ptrdiff_t pixels, class V>
  HWY_INLINE void store(V v0, V v1, V v2, V v3) const {
    static_assert(pixels == blockPixels);
    const Lanes<uint8_t> d;
    const Lanes<uint16_t> dPairs;
    const auto lower = [&](V a, V b) VEMI_INLINED { return hn::BitCast(dPairs, hn::InterleaveLower(d, a, b)); };
    const auto upper = [&](V a, V b) VEMI_INLINED { return hn::BitCast(dPairs, hn::InterleaveUpper(d, a, b)); };
    const auto lower01 = lower(v0, v1), lower23 = lower(v2, v3), upper01 = upper(v0, v1), upper23 = upper(v2, v3);
    storeBlocksByTurns<how>(d, first, hn::BitCast(d, hn::InterleaveLower(dPairs, lower01, lower23)),
                            hn::BitCast(d, hn::InterleaveUpper(dPairs, lower01, lower23)),
                            hn::BitCast(d, hn::InterleaveLower(dPairs, upper01, upper23)),
                            hn::BitCast(d, hn::InterleaveUpper(dPairs, upper01, upper23)));
  }
};

struct FourBytesImage : PixelImage<C4, uint8_t> {
  auto row(ptrdiff_t y) const { return FourBytesRow{Image<uint8_t>::row(y)}; }
};

template <std::same_as<C4> L>
FourBytesImage imageOfRows(Image<uint8_t> image) {
  return {{image}};
}

}  // namespace vemi::color
