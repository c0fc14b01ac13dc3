// Rows under a mask: a pixel is processed where its mask byte is not zero, and left alone elsewhere.
#pragma once

#include <cstddef>

#include "core/blocks.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "core/map_row.h"

namespace vemi {

namespace detail {

/// Stores each lane L::elements times behind itself: one flag for every element of its pixel.
template <class L, class D, class V>
HWY_INLINE void storeRepeated(D d, V v, hn::TFromD<D>* out) {
  if constexpr (L::elements == 1) hn::StoreU(v, d, out);
  if constexpr (L::elements == 3) hn::StoreInterleaved3(v, v, v, d, out);
  if constexpr (L::elements == 4) hn::StoreInterleaved4(v, v, v, v, d, out);
}

/// op(k, in...) gives the k-th vector of a block of one vector's count of pixels.
template <class L, class T, class Op, class... Src>
HWY_INLINE void maskedBlocks(ptrdiff_t width, const Vemi8u* mask, const Op& op, T* dst, const Src*... src) {
  const Lanes<T> d;
  const hn::RebindToSigned<Lanes<T>> dFlags;
  const hn::Rebind<int8_t, decltype(d)> dMask;
  using Flag = hn::TFromD<decltype(dFlags)>;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = L::elements;
  const auto worked = workedLanes<L>(d);

  const auto kernel = [&](T* out, const T* old, const Vemi8u* selection, const Src*... in) HWY_ATTR {
    const auto keep = [&](auto chosen, auto k) HWY_ATTR {
      hn::StoreU(hn::IfThenElse(chosen, op(k, in...), hn::LoadU(d, old + k * N)), d, out + k * N);
    };
    const auto chosenPixels = hn::VecFromMask(
        dMask, hn::Ne(hn::LoadU(dMask, reinterpret_cast<const int8_t*>(selection)), hn::Zero(dMask)));
    if (hn::AllTrue(dMask, hn::Eq(chosenPixels, hn::Zero(dMask)))) return;
    if (hn::AllTrue(dMask, hn::Ne(chosenPixels, hn::Zero(dMask)))) {
      if constexpr (L::keepsAlpha) {
        unrolled<vectors>([&](auto k) HWY_ATTR { keep(worked, k); });
      } else {
        unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(op(k, in...), d, out + k * N); });
      }
      return;
    }
    alignas(laneAlignment) Flag flags[vectors * N];
    if constexpr (sizeof(T) == 1) {
      storeRepeated<L>(dFlags, chosenPixels, flags);
    } else {
      storeRepeated<L>(dFlags, hn::PromoteTo(dFlags, chosenPixels), flags);
    }
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto chosen = hn::RebindMask(d, hn::MaskFromVec(hn::Load(dFlags, flags + k * N)));
      if constexpr (L::keepsAlpha) {
        keep(hn::And(chosen, worked), k);
      } else {
        keep(chosen, k);
      }
    });
  };
  constexpr int E = L::elements;
  forBlocks<N>(width, kernel, Strand<T, E>{dst}, Strand<const T, E>{dst}, Strand<const Vemi8u>{mask},
               Strand<const Src, E>{src}...);
}

}  // namespace detail

template <class L, class T>
void copyRowMasked(ptrdiff_t width, const Vemi8u* mask, T* dst, const T* src) {
  const auto source = [](auto k, const T* in) HWY_ATTR { return hn::LoadU(Lanes<T>(), in + k * laneCount<T>); };
  detail::maskedBlocks<L>(width, mask, source, dst, src);
}

template <class L, class T>
void fillRowMasked(ptrdiff_t width, const Vemi8u* mask, const Constants<T, L>& constants, T* dst) {
  const auto c = constants.load(Lanes<T>());
  const auto source = [&](auto k) HWY_ATTR { return c.v[k % vectorsPerBlock<L>]; };
  detail::maskedBlocks<L>(width, mask, source, dst);
}

}  // namespace vemi
