// Exact sums of integers, for each channel of a region. Terms are formed in lanes of 8 or 16 bits and added in lanes
// that are just wide enough; 64-bit totals take them over before they overflow.
//
// Sums of one channel add neighbours where the processor does that in one instruction; those of several channels keep
// the elements of a wide lane apart.
#pragma once

#include <cstdint>
#include <limits>

#include "core/lane_width.h"
#include "core/numbers.h"
#include "core/reduce_region.h"

namespace vemi::measure {

/// Sums of terms: term(d, v...) gives the lanes, Adding says how they are added up.
template <class T, class Term, class Adding>
struct ExactSums : Adding {
  using Element = T;
  static constexpr ReductionOrder order = ReductionOrder::any;
  static typename Adding::Lane start(int) { return 0; }
  static T padding(const T*, int) { return 0; }

  template <class D, class K, class A, class... V>
  HWY_INLINE void add(D d, K k, A& sums, V... v) const {
    const auto addTo = [&](int a, auto term) HWY_ATTR {
      sums.of[a].v[k] = hn::Add(sums.of[a].v[k], hn::BitCast(Lanes<typename Adding::Lane>(), term));
    };
    Adding::addTerm(addTo, Term()(d, v...));
  }
};

// ---- How terms are added up ---------------------------------------------------------------------------------------

/// Bytes of one channel.
struct AddBytes {
  using Lane = uint64_t;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(uint64_t{8} * 255);
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V bytes) {
    addTo(0, hn::SumsOf8(bytes));
  }
};

/// Bytes of several channels, and words of any number of them: unsigned elements in lanes of twice their width.
template <class T>
struct AddApart {
  using Lane = std::conditional_t<sizeof(T) == 1, uint16_t, uint32_t>;
  static constexpr int accumulators = 2;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(std::numeric_limits<T>::max());
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V v) {
    const auto [even, odd] = evenAndOdd(v);
    addTo(0, even);
    addTo(1, odd);
  }
};

/// Signed words of one channel.
struct AddSignedPairs {
  using Lane = int32_t;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(uint64_t{2} * 32768);
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V v) {
    addTo(0, pairsOfProducts(v, hn::Set(Lanes<int16_t>(), int16_t{1})));
  }
};

/// Signed words of several channels.
struct AddSignedApart {
  using Lane = int32_t;
  static constexpr int accumulators = 2;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(32768);
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V v) {
    const auto wide = hn::BitCast(Lanes<int32_t>(), v);
    addTo(0, hn::ShiftRight<16>(hn::ShiftLeft<16>(wide)));
    addTo(1, hn::ShiftRight<16>(wide));
  }
};

/// Squares of bytes of one channel.
struct AddSquaredBytes {
  using Lane = uint32_t;
  static constexpr int accumulators = 1;
  static constexpr ptrdiff_t capacity = capacityFor<Lane>(uint64_t{4} * 255 * 255);
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V bytes) {
    const Lanes<int16_t> d;
    const auto [evenBits, oddBits] = evenAndOdd(bytes);
    const auto even = hn::BitCast(d, evenBits), odd = hn::BitCast(d, oddBits);
    addTo(0, hn::Add(pairsOfProducts(even, even), pairsOfProducts(odd, odd)));
  }
};

/// Squares of unsigned elements, each in a lane of four times its width.
template <class T>
struct AddSquaresApart {
  using Lane = std::conditional_t<sizeof(T) == 1, uint32_t, uint64_t>;
  static constexpr int accumulators = 4;
  static constexpr ptrdiff_t capacity =
      capacityFor<Lane>(uint64_t{std::numeric_limits<T>::max()} * std::numeric_limits<T>::max());
  template <class F, class V>
  HWY_INLINE static void addTerm(const F& addTo, V v) {
    const auto [even, odd] = evenAndOdd(v);
    addSquares(addTo, 0, even);
    addSquares(addTo, 1, odd);
  }

 private:
  template <class F, class V>
  HWY_INLINE static void addSquares(const F& addTo, int accumulator, V root) {
    if constexpr (sizeof(T) == 1) {  // the square fits the lane of the root
      const auto [even, odd] = evenAndOdd(hn::Mul(root, root));
      addTo(accumulator, even);
      addTo(accumulator + 2, odd);
    } else {
      const auto odd = hn::BitCast(hn::DFromV<V>(), hn::ShiftRight<32>(hn::BitCast(Lanes<uint64_t>(), root)));
      addTo(accumulator, hn::MulEven(root, root));
      addTo(accumulator + 2, hn::MulEven(odd, odd));
    }
  }
};

// ---- The totals ---------------------------------------------------------------------------------------------------

namespace detail {

/// Signed lanes run on below zero modulo 2^64.
template <class A>
struct Totals {
  uint64_t of[A::count][A::lanes] = {};

  void operator()(const EmptiedLanes<A>& lanes) {
    for (int a = 0; a < A::count; ++a) {
      for (ptrdiff_t i = 0; i < A::lanes; ++i) of[a][i] += static_cast<uint64_t>(lanes.of[a][i]);
    }
  }
};

}  // namespace detail

/// The sums of all channels of a pixel. Those of signed elements are to be read as int64_t.
template <class L>
struct ChannelSums {
  uint64_t channel[L::elements] = {};
};

template <class L, class Reduction, class... Src>
ChannelSums<L> exactSums(VemiSize roiSize, const Reduction& reduction, Image<Src>... src) {
  using A = Accumulators<L, Reduction>;
  detail::Totals<A> totals;
  reduceRegion<L>(roiSize, reduction, totals, src...);
  ChannelSums<L> sums;
  for (int a = 0; a < A::count; ++a) {
    for (ptrdiff_t i = 0; i < A::lanes; ++i) sums.channel[A::channelOf(a, i)] += totals.of[a][i];
  }
  return sums;
}

}  // namespace vemi::measure
