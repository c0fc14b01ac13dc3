// Lanes of one width as lanes of another, and elements in memory between them, in one room.
//
//   Function              Gives                              Order                              Saturates   Types
//   widen                 all lanes at twice their width     bytes: even, odd; others: halves   -           8, 16 bits
//                                                            of each 128-bit block
//   narrow                the inverse of widen               restored                           yes         to 8u, 16s
//   evenAndOdd            all lanes at twice their width     even, odd                          -           unsigned
//   inWideLanes(f)        f of the lanes of evenAndOdd       restored                           no          unsigned
//   inHalves(f)           f of half vectors, which it may    kept                               f's matter  any
//                         promote and demote
//   packHalves            half the width (processor.h)       halves of each 128-bit block       yes         from signed
//   packInOrder           2 or 4 vectors at half or a        kept                               yes         from signed
//                         quarter of their width
//   packEach<S>(f)        packInOrder of f(0), f(1), ...     kept                               yes         from signed
//   loadExtended          narrow elements of memory          kept                               -           any
//   integers
//
// Orders other than kept are the ones that the processor has for nothing; kernels undo what they have done.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "core/processor.h"

namespace vemi {

// ---- Twice the width, and back --------------------------------------------------------------------------------------

/// All lanes of one vector at twice their width, as two vectors: of even and odd lanes, or of the halves of each
/// 128-bit block, as whoever made it says.
template <class V>
struct Widened {
  V lower, upper;
};

template <class V, class DW = hn::RepartitionToWide<hn::DFromV<V>>>
HWY_INLINE Widened<hn::Vec<DW>> evenAndOdd(V v) {
  using T = hn::TFromV<V>;
  static_assert(std::is_unsigned_v<T>);
  const DW dWide;
  const auto wide = hn::BitCast(dWide, v);
  return {hn::And(wide, hn::Set(dWide, std::numeric_limits<T>::max())), hn::ShiftRight<8 * sizeof(T)>(wide)};
}

/// Which lanes stand in which half is the business of widen and narrow alone: they are each other's inverse, and the
/// pair costs no move across 128-bit blocks. Even and odd bytes take no packing instruction either.
template <class D, class V, class T = hn::TFromD<D>, class DW = hn::RepartitionToWide<D>>
HWY_INLINE Widened<hn::Vec<DW>> widen(D d, V v) {
  const DW dWide;
  if constexpr (std::is_same_v<T, uint8_t>) {
    return evenAndOdd(v);
  } else if constexpr (sizeof(T) == 1) {
    const auto odd = hn::BitCast(dWide, v);
    return {hn::ShiftRight<8>(hn::ShiftLeft<8>(odd)), hn::ShiftRight<8>(odd)};
  } else {
    const auto atSides = [&](auto lower, auto upper) HWY_ATTR {
      return Widened<hn::Vec<DW>>{hn::BitCast(dWide, lower), hn::BitCast(dWide, upper)};
    };
    if constexpr (std::is_unsigned_v<T>) {
      return atSides(hn::InterleaveLower(d, v, hn::Zero(d)), hn::InterleaveUpper(d, v, hn::Zero(d)));
    } else {
      const auto [lower, upper] = atSides(hn::InterleaveLower(d, v, v), hn::InterleaveUpper(d, v, v));
      return {hn::ShiftRight<8 * sizeof(T)>(lower), hn::ShiftRight<8 * sizeof(T)>(upper)};
    }
  }
}

/// Signed or unsigned lanes to 8u, signed ones to 16s.
template <class D, class V, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> narrow(D d, Widened<V> wide) {
  if constexpr (sizeof(T) == 1) {
    static_assert(std::is_unsigned_v<T>);
    using Wide = hn::TFromV<V>;
    const hn::DFromV<V> dWide;
    const auto limited = [&](V v) HWY_ATTR {
      if constexpr (std::is_signed_v<Wide>) v = hn::Max(v, hn::Zero(dWide));
      return hn::Min(v, hn::Set(dWide, Wide{255}));
    };
    return hn::BitCast(d, hn::Or(limited(wide.lower), hn::ShiftLeft<8>(limited(wide.upper))));
  } else {
    return packHalves(d, wide.lower, wide.upper);
  }
}

/// f(wide tag, wide lanes...) of the even lanes, then of the odd ones, which takes neither unpacking nor packing. What
/// f gives, fits the narrow lane again.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inWideLanes(D d, const F& f, V... v) {
  const hn::RepartitionToWide<D> dWide;
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const auto even = f(dWide, evenAndOdd(v).lower...);
  const auto odd = f(dWide, evenAndOdd(v).upper...);
  return hn::BitCast(d, hn::Or(even, hn::ShiftLeft<bits>(odd)));
}

/// f(half of each vector) of the lower and of the upper halves, put together to lanes of `d`: for lanes that are
/// promoted on the way, which only fits halves.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inHalves(D d, const F& f, V... v) {
  return hn::Combine(d, f(hn::UpperHalf(hn::Half<hn::DFromV<V>>(), v)...),
                     f(hn::LowerHalf(hn::Half<hn::DFromV<V>>(), v)...));
}

// ---- Memory of one width, lanes of another --------------------------------------------------------------------------

/// Elements of a narrower integer type, or of D's own, as lanes of D, with the same values. To doubles from no more
/// than 32s.
template <class D, class S>
HWY_INLINE hn::Vec<D> loadExtended(D d, const S* in) {
  if constexpr (std::is_same_v<hn::TFromD<D>, S>) {
    return hn::LoadU(d, in);
  } else if constexpr (std::is_same_v<hn::TFromD<D>, double>) {
    static_assert(!std::is_same_v<S, uint32_t>);
    return hn::PromoteTo(d, loadExtended(hn::Rebind<int32_t, D>(), in));
  } else if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
    return hn::ConvertTo(d, loadExtended(hn::RebindToSigned<D>(), in));
  } else {
    return hn::PromoteTo(d, hn::LoadU(hn::Rebind<S, D>(), in));
  }
}

namespace detail {

/// Where the 32 bits of each place are after `vectors` vectors were packed to one.
template <int vectors>
struct PackedOrder {
  alignas(laneAlignment) uint32_t index[laneCount<uint32_t>];

  constexpr PackedOrder() : index() {
    constexpr int blocks = static_cast<int>(laneCount<uint32_t> / 4), words = 4 / vectors;
    for (int i = 0; i < 4 * blocks; ++i) {
      const int run = i / words, vector = run / blocks, block = run % blocks;
      index[i] = static_cast<uint32_t>((block * vectors + vector) * words + i % words);
    }
  }
};

template <int vectors>
inline constexpr PackedOrder<vectors> packedOrder;

template <int vectors, class D, class V>
HWY_INLINE V inOrder(D d, V packed) {
  const Lanes<uint32_t> dWords;
  if constexpr (laneCount<uint32_t> == 4) return packed;
  const auto order = hn::SetTableIndices(dWords, packedOrder<vectors>.index);
  return hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(dWords, packed), order));
}

}  // namespace detail

template <class D, class V>
HWY_INLINE hn::Vec<D> packInOrder(D d, V v0, V v1) {
  return detail::inOrder<2>(d, packHalves(d, v0, v1));
}

template <class D, class V>
HWY_INLINE hn::Vec<D> packInOrder(D d, V v0, V v1, V v2, V v3) {
  const hn::Repartition<int16_t, D> dHalf;
  return detail::inOrder<4>(d, packHalves(d, packHalves(dHalf, v0, v1), packHalves(dHalf, v2, v3)));
}

/// As many vectors of S as one of D takes.
template <class S, class D, class F>
HWY_INLINE hn::Vec<D> packEach(D d, const F& f) {
  return [&]<int... k>(std::integer_sequence<int, k...>) HWY_ATTR {
    return packInOrder(d, f(std::integral_constant<int, k>())...);
  }
  (std::make_integer_sequence<int, sizeof(S) / sizeof(hn::TFromD<D>)>());
}

}  // namespace vemi
