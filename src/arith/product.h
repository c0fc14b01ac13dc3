// The scaled product of two integers in lanes: a b / 2^scaleFactor, rounded to nearest with ties to even, saturated.
// Exact products have lanes of twice the elements' width.
#pragma once

#include <cstdint>
#include <type_traits>

#include "arith/scaled_up.h"
#include "core/lane_width.h"
#include "core/numbers.h"

namespace vemi::arith {

/// Products of 8u as 16u lanes, of 16s as 32s lanes.
template <class D, class V>
HWY_INLINE auto exactProduct(D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    const auto wideA = widen(d, a), wideB = widen(d, b);
    return decltype(wideA){hn::Mul(wideA.lower, wideB.lower), hn::Mul(wideA.upper, wideB.upper)};
  } else {  // the halves of the products, brought together in the order of widen
    const hn::RepartitionToWide<D> dWide;
    const V low = hn::Mul(a, b), high = hn::MulHigh(a, b);
    return Widened<hn::Vec<decltype(dWide)>>{hn::BitCast(dWide, hn::InterleaveLower(d, low, high)),
                                             hn::BitCast(dWide, hn::InterleaveUpper(d, low, high))};
  }
}

/// Scale factor 0.
struct Product {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return narrow(d, exactProduct(d, a, b));
  }
};

/// Scale factors from 1 on.
template <class Shift>
struct ScaledDownProduct {
  Shift shift;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const hn::RepartitionToWide<D> dWide;
    const auto product = exactProduct(d, a, b);
    return narrow(d, decltype(product){shift(dWide, product.lower), shift(dWide, product.upper)});
  }
};

/// A shift whose rounding sum stays within the lane.
struct SmallRoundingShift {
  int shift;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return roundShift(d, v, shift);
  }
};

/// The largest scale factor that leaves a product a value other than zero.
template <class T>
inline constexpr int largestProductScale = std::is_unsigned_v<T> ? 16 : 30;

/// Calls f with the kernel of the scale factor, which is at most largestProductScale.
template <class T, class F>
auto dispatchScaledProduct(int scaleFactor, const F& f) {
  if (scaleFactor == 0) return f(Product());
  if (scaleFactor < 0) return f(ScaledUp<T, Product>(scaleFactor));
  if constexpr (std::is_unsigned_v<T>) {
    using Shift = RoundingShift<uint16_t>;
    if (scaleFactor > 9) return f(ScaledDownProduct<Shift>{Shift(scaleFactor)});  // 255 * 255 + 2^(10 - 1) > 65535
  }
  return f(ScaledDownProduct<SmallRoundingShift>{SmallRoundingShift{scaleFactor}});
}

}  // namespace vemi::arith
