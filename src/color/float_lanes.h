// Pixels of narrow integers as floats: kernels compute with the floats of a quarter or of a half of a vector's pixels,
// and put the integers of these parts together again.
//
// Part k of n has the lanes k, n + k, 2 n + k, ... of a vector: they stand at the same place of its 32-bit words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>

#include "core/inlined.h"
#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::color {

template <int index>
using Part = std::integral_constant<int, index>;

/// Integers of 32 bits out of unsigned lanes of 8 or 16 bits.
template <int k, class V>
HWY_INLINE auto integersOf(Part<k>, V v) {
  using D = hn::DFromV<V>;
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const hn::Repartition<uint32_t, D> dWords;
  auto words = hn::BitCast(dWords, v);
  if constexpr (k > 0) words = hn::ShiftRight<k * bits>(words);
  if constexpr ((k + 1) * bits < 32) words = hn::And(words, hn::Set(dWords, (uint32_t{1} << bits) - 1));
  return hn::BitCast(hn::Repartition<int32_t, D>(), words);
}

template <class P, class V>
HWY_INLINE auto floatsOf(P part, V v) {
  return hn::ConvertTo(hn::Repartition<float, hn::DFromV<V>>(), integersOf(part, v));
}

namespace detail {

/// Of each 128-bit block: bytes of four parts, words of two, in their order.
alignas(16) inline constexpr uint8_t orderOfBytes[16] = {0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15};
alignas(16) inline constexpr uint8_t orderOfWords[16] = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};

template <class D, class V>
HWY_INLINE V reordered(D d, V packed, const uint8_t (&order)[16]) {
  const hn::Repartition<uint8_t, D> dBytes;
  return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(dBytes, packed), hn::LoadDup128(dBytes, order)));
}

}  // namespace detail

/// Integers of all parts, saturated to D.
template <class D, class V>
HWY_INLINE hn::Vec<D> joined(D d, V part0, V part1) {
  return detail::reordered(d, packHalves(d, part0, part1), detail::orderOfWords);
}
template <class D, class V>
HWY_INLINE hn::Vec<D> joinedHalves(D d, V parts01, V parts23) {
  return detail::reordered(d, packHalves(d, parts01, parts23), detail::orderOfBytes);
}

/// A tuple of vectors of D, one for each of the integer vectors in the tuple that f(part) gives for each part.
template <class D, class F>
HWY_INLINE auto inParts(D d, const F& f) {
  const auto eachOf = [](const auto& join, const auto& first, const auto& second) VEMI_INLINED {
    return [&]<size_t... c>(std::index_sequence<c...>) VEMI_INLINED {
      return std::tuple(join(std::get<c>(first), std::get<c>(second))...);
    }
    (std::make_index_sequence<std::tuple_size_v<std::decay_t<decltype(first)>>>());
  };
  if constexpr (sizeof(hn::TFromD<D>) == 2) {
    const auto join = [=](auto v0, auto v1) VEMI_INLINED { return joined(d, v0, v1); };
    return eachOf(join, f(Part<0>()), f(Part<1>()));
  } else {
    const hn::Repartition<int16_t, D> dHalf;
    const auto pack = [=](auto v0, auto v1) VEMI_INLINED { return packHalves(dHalf, v0, v1); };
    const auto join = [=](auto v01, auto v23) VEMI_INLINED { return joinedHalves(d, v01, v23); };
    const auto lower = eachOf(pack, f(Part<0>()), f(Part<1>()));
    const auto upper = eachOf(pack, f(Part<2>()), f(Part<3>()));
    return eachOf(join, lower, upper);
  }
}

/// Of, a function of floats (d, v...), on integers: results are cut off and saturated.
template <class Of>
struct CutOff {
  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    return inParts(d, [&](auto part) VEMI_INLINED {
      const auto cut = [](auto result) VEMI_INLINED { return truncated(hn::Repartition<int32_t, D>(), result); };
      return std::apply([&](auto... result) VEMI_INLINED { return std::tuple(cut(result)...); },
                        Of()(hn::Repartition<float, D>(), floatsOf(part, v)...));
    });
  }
};

/// The operation of 16u on elements of 16s that count from -32768.
template <class Op>
struct OfSigned {
  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const hn::RebindToUnsigned<D> du;
    const auto sign = hn::Set(du, 0x8000);
    const auto results = Op()(du, hn::Xor(hn::BitCast(du, v), sign)...);
    return std::apply([&](auto... u) VEMI_INLINED { return std::tuple(hn::BitCast(d, hn::Xor(u, sign))...); }, results);
  }
};

}  // namespace vemi::color
