// Four interleaved bytes as a vector of each, by what the processor has for it.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/vector_blocks.h"

namespace vemi {

/// c[k] gets byte k of as many quads as D has lanes.
template <class D, class V = hn::Vec<D>>
HWY_INLINE void loadQuads(D d, const uint8_t* quads, V& c0, V& c1, V& c2, V& c3) {
#if HWY_ARCH_X86
  if constexpr (hn::MaxLanes(D()) >= 16) {
    // Block k of v[i] holds the four quads that become 32 bits in place i of block k of each result.
    const hn::Repartition<uint32_t, D> d32;
    const hn::Repartition<uint64_t, D> d64;
    alignas(16) static constexpr uint8_t byPlace[16] = {0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15};
    const auto order = hn::LoadDup128(d, byPlace);
    const auto at = [&](ptrdiff_t i) HWY_ATTR {
      const V blocks = blocksFrom(d, [&](ptrdiff_t k) HWY_ATTR { return quads + 64 * k + 16 * i; });
      return hn::BitCast(d32, hn::TableLookupBytes(blocks, order));
    };
    const auto v0 = at(0), v1 = at(1), v2 = at(2), v3 = at(3);
    const auto low0 = hn::BitCast(d64, hn::InterleaveLower(d32, v0, v1));
    const auto low1 = hn::BitCast(d64, hn::InterleaveLower(d32, v2, v3));
    const auto high0 = hn::BitCast(d64, hn::InterleaveUpper(d32, v0, v1));
    const auto high1 = hn::BitCast(d64, hn::InterleaveUpper(d32, v2, v3));
    c0 = hn::BitCast(d, hn::InterleaveLower(d64, low0, low1));
    c1 = hn::BitCast(d, hn::InterleaveUpper(d64, low0, low1));
    c2 = hn::BitCast(d, hn::InterleaveLower(d64, high0, high1));
    c3 = hn::BitCast(d, hn::InterleaveUpper(d64, high0, high1));
    return;
  }
#endif
  hn::LoadInterleaved4(d, quads, c0, c1, c2, c3);
}

}  // namespace vemi
