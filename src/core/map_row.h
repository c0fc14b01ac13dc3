// Element-wise rows: destination = op(sources), the sources being rows or constants per channel.
#pragma once

#include <cstddef>
#include <cstring>

#include "core/blocks.h"
#include "core/lanes.h"
#include "core/layout.h"

namespace vemi {

/// Vectors to a block of a row: a whole number of pixels, and two vectors at least, which keeps the stores busy.
template <class L>
inline constexpr int vectorsPerBlock = L::elements == 3 ? 3 : 2;

/// Per-channel constants, repeated over the vectors of one block, so that any block that begins with a pixel finds
/// them in phase.
template <class T, class L>
struct Constants {
  static constexpr ptrdiff_t count = vectorsPerBlock<L> * laneCount<T>;
  alignas(laneAlignment) T element[count];

  /// `value` holds L::channels constants; the elements of an alpha that stays are zero.
  explicit Constants(const T* value) {
    for (int c = 0; c < L::elements; ++c) element[c] = T();
    std::memcpy(element, value, L::channels * sizeof(T));
    ptrdiff_t filled = L::elements;
    for (; 2 * filled <= count; filled *= 2) copyElements(filled, filled);
    copyElements(filled, count - filled);
  }

  template <class D>
  HWY_INLINE Vectors<hn::Vec<D>, vectorsPerBlock<L>> load(D d) const {
    Vectors<hn::Vec<D>, vectorsPerBlock<L>> all;
    unrolled<vectorsPerBlock<L>>([&](auto k) { all.v[k] = hn::Load(d, element + k * laneCount<T>); });
    return all;
  }

 private:
  void copyElements(ptrdiff_t to, ptrdiff_t n) {
    std::memcpy(element + to, element, static_cast<size_t>(n) * sizeof(T));
  }
};

/// Lanes that belong to a channel which is worked on, in any vector that begins with a pixel.
template <class L, class D>
HWY_INLINE auto workedLanes(D d) {
  const hn::RebindToUnsigned<D> dBits;
  const auto channel = hn::And(hn::Iota(dBits, 0), hn::Set(dBits, L::elements - 1));
  return hn::RebindMask(d, hn::Ne(channel, hn::Set(dBits, L::channels)));
}

namespace detail {

/// op(d, k, lanes of each source) is the k-th vector of a block.
template <class L, class T, class Op, class... Src>
HWY_INLINE void mapBlocks(ptrdiff_t width, const Op& op, T* dst, const Src*... src) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr ptrdiff_t items = vectorsPerBlock<L> * N;
  if constexpr (L::keepsAlpha) {
    const auto worked = workedLanes<L>(d);
    const auto kernel = [&](T* out, const T* old, const Src*... in) HWY_ATTR {
      unrolled<vectorsPerBlock<L>>([&](auto k) HWY_ATTR {
        const auto result = op(d, k, hn::LoadU(d, in + k * N)...);
        hn::StoreU(hn::IfThenElse(worked, result, hn::LoadU(d, old + k * N)), d, out + k * N);
      });
    };
    forBlocks<items>(width * L::elements, kernel, Strand<T>{dst}, Strand<const T>{dst}, Strand<const Src>{src}...);
  } else {
    const auto kernel = [&](T* out, const Src*... in) HWY_ATTR {
      unrolled<vectorsPerBlock<L>>(
          [&](auto k) HWY_ATTR { hn::StoreU(op(d, k, hn::LoadU(d, in + k * N)...), d, out + k * N); });
    };
    forBlocks<items>(width * L::elements, kernel, Strand<T>{dst}, Strand<const Src>{src}...);
  }
}

}  // namespace detail

/// destination = op(d, lanes of each source), `width` pixels of layout L. A source row may be the destination row.
template <class L, class T, class Op, class... Src>
void mapRow(ptrdiff_t width, const Op& op, T* dst, const Src*... src) {
  const auto indexed = [&](auto d, auto, auto... v) HWY_ATTR { return op(d, v...); };
  detail::mapBlocks<L>(width, indexed, dst, src...);
}

/// destination = constants.
template <class L, class T>
void fillRow(ptrdiff_t width, const Constants<T, L>& constants, T* dst) {
  const auto c = constants.load(Lanes<T>());
  const auto indexed = [&](auto, auto k) HWY_ATTR { return c.v[k]; };
  detail::mapBlocks<L>(width, indexed, dst);
}

/// destination = op(d, lanes of the source, lanes of the constants).
template <class L, class T, class Op>
void mapRowC(ptrdiff_t width, const Op& op, const Constants<T, L>& constants, T* dst, const T* src) {
  const auto c = constants.load(Lanes<T>());
  const auto indexed = [&](auto d, auto k, auto v) HWY_ATTR { return op(d, v, c.v[k]); };
  detail::mapBlocks<L>(width, indexed, dst, src);
}

}  // namespace vemi
