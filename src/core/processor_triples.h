// Triples of floats in memory as a vector of each place, and back, in half the instructions that the lane library takes
// where there are shuffles of two vectors: for kernels whose arithmetic is as short as that.
//
// Which triple is in which lane is the business of loadTriples and storeTriples alone; they are each other's inverse.
#pragma once

#include <cstddef>

#include "core/lanes.h"
#include "core/processor_shuffles.h"
#include "core/streaming.h"
#include "core/vector_blocks.h"

namespace vemi {

#if HWY_ARCH_X86

namespace detail {

/// A block of 128 bits out of each 48 bytes from `in` on.
template <class D>
HWY_INLINE hn::Vec<D> loadThirds(D d, const float* in) {
  return blocksFrom(d, [&](int k) HWY_ATTR { return in + ptrdiff_t{12} * k; });
}

}  // namespace detail

/// f(first, second, third) of as many triples as D has lanes.
template <class D, class F>
HWY_INLINE auto loadTriples(D d, const float* in, const F& f) {
  using namespace detail;
  // Places 0 1 2 0, 1 2 0 1, 2 0 1 2 of triples 0 to 3.
  const auto a = loadThirds(d, in), b = loadThirds(d, in + 4), c = loadThirds(d, in + 8);
  const auto places01 = lanesOfTwo<2, 3, 1, 2>(b, c), places12 = lanesOfTwo<1, 2, 0, 1>(a, b);
  return f(lanesOfTwo<0, 3, 0, 2>(a, places01), lanesOfTwo<0, 2, 1, 3>(places12, places01),
           lanesOfTwo<1, 3, 0, 3>(places12, c));
}

/// Streamed, `out` is aligned to a vector.
template <Stores how, class D, class V>
HWY_INLINE void storeTriples(D d, V v0, V v1, V v2, float* out) {
  using namespace detail;
  const V evens01 = lanesOfTwo<0, 2, 0, 2>(v0, v1), odds12 = lanesOfTwo<1, 3, 1, 3>(v1, v2);
  const V evens2Odds0 = lanesOfTwo<0, 2, 1, 3>(v2, v0);
  storeBlocksByTurns<how>(d, out, lanesOfTwo<0, 2, 0, 2>(evens01, evens2Odds0), lanesOfTwo<0, 2, 1, 3>(odds12, evens01),
                          lanesOfTwo<1, 3, 1, 3>(evens2Odds0, odds12));
}

#else

template <class D, class F>
HWY_INLINE auto loadTriples(D d, const float* in, const F& f) {
  hn::Vec<D> v0, v1, v2;
  hn::LoadInterleaved3(d, in, v0, v1, v2);
  return f(v0, v1, v2);
}

/// Stores past the caches are a gain of other processors.
template <Stores, class D, class V>
HWY_INLINE void storeTriples(D d, V v0, V v1, V v2, float* out) {
  hn::StoreInterleaved3(v0, v1, v2, d, out);
}

#endif

}  // namespace vemi
