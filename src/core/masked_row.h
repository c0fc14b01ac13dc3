// Rows under a mask: a pixel is processed where its mask byte is not zero, and left alone elsewhere.
#pragma once

#include <cstddef>
#include <type_traits>

#include "core/blocks.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "core/map_row.h"
#include "vemi/types.h"

namespace vemi {

namespace detail {

/// Stores each lane L::elements times behind itself: one flag for every element of its pixel.
template <class L, class D, class V>
HWY_INLINE void storeRepeated(D d, V v, hn::TFromD<D>* out) {
  if constexpr (L::elements == 1) hn::StoreU(v, d, out);
  if constexpr (L::elements == 3) hn::StoreInterleaved3(v, v, v, d, out);
  if constexpr (L::elements == 4) hn::StoreInterleaved4(v, v, v, v, d, out);
}

}  // namespace detail

/// The k-th vector of a block is indexedOp(d, k, lanes of the sources); a block is one vector's count of pixels.
template <class L, class T, class IndexedOp, class... Src>
HWY_NOINLINE void mapRowMasked(ptrdiff_t width, const Vemi8u* mask, const IndexedOp& indexedOp, T* dst,
                               const Src*... src) {
  constexpr int E = L::elements;
  constexpr ptrdiff_t N = laneCount<T>;
  if (width < N) {
    const auto wholeBlock = [](const void* context, T* out, const Vemi8u* selection, const Src*... in) {
      mapRowMasked<L>(N, selection, *static_cast<const IndexedOp*>(context), out, in...);
    };
    return shortRow<N>(width, wholeBlock, indexedOp, Strand<T, E>{dst}, Strand<const Vemi8u>{mask},
                       Strand<const Src, E>{src}...);
  }
  const IndexedOp op = indexedOp;  // a local, which no store to the destination can change
  const Lanes<T> d;
  const hn::RebindToUnsigned<Lanes<T>> dFlags;
  const hn::Rebind<uint8_t, decltype(d)> dMask;
  using Flag = hn::TFromD<decltype(dFlags)>;
  static_assert(!L::keepsAlpha || N % 4 == 0, "every vector begins with a pixel");
  constexpr int vectors = L::elements;
  // Short elements of one channel: a blend costs less than the breaks that skipped blocks make in the streams of loads.
  constexpr bool blendsAll = L::elements == 1 && sizeof(T) <= 2 && sizeof...(Src) > 0;
  [[maybe_unused]] const auto alpha = hn::Not(colourLanes(d));

  const auto kernel = [&](T* out, const T* old, const Vemi8u* selection, const Src*... in) HWY_ATTR {
    const auto result = [&](auto k) HWY_ATTR { return op(d, k, hn::LoadU(d, in + k * N)...); };
    const auto storeUnless = [&](auto stays, auto k) HWY_ATTR {
      hn::StoreU(hn::IfThenElse(stays, hn::LoadU(d, old + k * N), result(k)), d, out + k * N);
    };
    const auto ofPixels = hn::LoadU(dMask, selection);
    if constexpr (!blendsAll) {
      const auto skipped = hn::Eq(ofPixels, hn::Zero(dMask));
      if (hn::AllTrue(dMask, skipped)) return;
      if (hn::AllFalse(dMask, skipped)) {
        if constexpr (L::keepsAlpha) {
          unrolled<vectors>([&](auto k) HWY_ATTR { storeUnless(alpha, k); });
        } else {
          unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(result(k), d, out + k * N); });
        }
        return;
      }
    }
    // Flags that are not zero become masks where elements are stored: masks of bytes that were widened as vectors of
    // 64 bytes and became masks again took three times as long.
    const auto isZero = [&](auto flags) HWY_ATTR { return hn::RebindMask(d, hn::Eq(flags, hn::Zero(dFlags))); };
    const auto pixelFlags = [&] {
      if constexpr (sizeof(T) == 1)
        return ofPixels;
      else
        return hn::PromoteTo(dFlags, ofPixels);
    }();
    if constexpr (L::elements == 1) {
      storeUnless(isZero(pixelFlags), std::integral_constant<int, 0>());
      return;
    }
    alignas(laneAlignment) Flag flags[vectors * N];
    detail::storeRepeated<L>(dFlags, pixelFlags, flags);
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto stays = isZero(hn::Load(dFlags, flags + k * N));
      if constexpr (L::keepsAlpha) {
        storeUnless(hn::Or(stays, alpha), k);
      } else {
        storeUnless(stays, k);
      }
    });
  };
  forWholeBlocks<N>(width, kernel, Strand<T, E>{dst}, Strand<const T, E>{dst}, Strand<const Vemi8u>{mask},
                    Strand<const Src, E>{src}...);
}

}  // namespace vemi
