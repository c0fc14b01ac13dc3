// What the twists of integers stand on: a matrix of the user's on the channels of each pixel, in lanes of 32 bits.
#pragma once

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

#include "color/conversion.h"
#include "core/checks.h"
#include "core/float_control.h"
#include "core/inlined.h"
#include "core/lane_width.h"
#include "core/pixel_region.h"
#include "core/rounding.h"
#include "core/vector_blocks.h"

namespace vemi::color {

/// The rows of a twist: the factors of the channels, and what is added, or the factor of a fourth channel.
using Twist = const Vemi32f (*)[4];

// ---- Lanes of 32 bits ----------------------------------------------------------------------------------------------

/// Where the bytes of 32-bit lanes are: byte k of each, the others zero.
template <int k>
alignas(16) inline constexpr uint8_t byteOfLanes[16] = {k,     0x80, 0x80, 0x80, k + 4,  0x80, 0x80, 0x80,
                                                        k + 8, 0x80, 0x80, 0x80, k + 12, 0x80, 0x80, 0x80};

/// The elements of a vector that share its lanes of 32 bits: element k of each, as an integer.
template <int k, class T, class V>
HWY_INLINE auto sharingLane(V v) {
  constexpr int bits = 8 * sizeof(T), above = 32 - bits * (k + 1);
  const hn::Repartition<uint8_t, hn::DFromV<V>> dBytes;
  const hn::Repartition<int32_t, hn::DFromV<V>> d;
  const auto lanes = hn::BitCast(d, v);
  if constexpr (std::is_same_v<T, uint8_t>) {  // shuffles, where shifts would wait for arithmetic
    return hn::BitCast(d, hn::TableLookupBytesOr0(hn::BitCast(dBytes, v), hn::LoadDup128(dBytes, byteOfLanes<k>)));
  } else if constexpr (std::is_signed_v<T>) {
    return hn::ShiftRight<32 - bits>(hn::ShiftLeft<above>(lanes));
  } else {
    return hn::And(hn::ShiftRight<bits * k>(lanes), hn::Set(d, (1 << bits) - 1));
  }
}

/// Two vectors as one of half their width, saturated, whose 16-bit lanes come from either by turns.
template <class D, class V>
HWY_INLINE hn::Vec<D> packedByTurns(D d, V v0, V v1) {
  alignas(16) static constexpr uint8_t byTurns[16] = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};
  const hn::Repartition<uint8_t, D> dBytes;
  return hn::TableLookupBytes(packHalves(d, v0, v1), hn::BitCast(d, hn::LoadDup128(dBytes, byTurns)));
}

/// The elements of each lane at their places.
template <class D, class V>
HWY_INLINE hn::Vec<D> joinedTurns(D d, V v0, V v1) {
  return packedByTurns(d, v0, v1);
}
template <class D, class V>
HWY_INLINE hn::Vec<D> joinedTurns(D d, V v0, V v1, V v2, V v3) {
  const hn::Repartition<int16_t, D> dHalf;
  return packedByTurns(d, packedByTurns(dHalf, v0, v1), packedByTurns(dHalf, v2, v3));
}

/// Channel c of op(three channels of 32-bit lanes), of all elements.
template <int c, class D, class Op, class V>
HWY_INLINE hn::Vec<D> channelOf(D d, const Op& op, V v0, V v1, V v2) {
  using T = hn::TFromD<D>;
  return [&]<int... k>(std::integer_sequence<int, k...>) VEMI_INLINED {
    return op.join(d, op.template channel<c>(sharingLane<k, T>(v0), sharingLane<k, T>(v1), sharingLane<k, T>(v2))...);
  }
  (std::make_integer_sequence<int, 4 / sizeof(T)>());
}
template <class D, class Op, class V>
HWY_INLINE auto channelsOf(D d, const Op& op, V v0, V v1, V v2) {
  return std::tuple(channelOf<0>(d, op, v0, v1, v2), channelOf<1>(d, op, v0, v1, v2), channelOf<2>(d, op, v0, v1, v2));
}

/// A row of factors times three channels, and what it adds.
template <class D, class V>
HWY_INLINE hn::Vec<D> floatSum(D d, const float (&f)[4], V x0, V x1, V x2) {
  auto sum = hn::MulAdd(hn::Set(d, f[0]), hn::ConvertTo(d, x0), hn::Set(d, f[3]));
  sum = hn::MulAdd(hn::Set(d, f[1]), hn::ConvertTo(d, x1), sum);
  return hn::MulAdd(hn::Set(d, f[2]), hn::ConvertTo(d, x2), sum);
}

/// The largest sum that a row of factors may give. No number where one of them is none.
template <class T>
double sizeOfSum(const float (&row)[4]) {
  constexpr double largest = -double{std::numeric_limits<T>::min()}, highest = std::numeric_limits<T>::max();
  const double products = std::fabs(double{row[0]}) + std::fabs(double{row[1]}) + std::fabs(double{row[2]});
  return std::max(largest, highest) * products + std::fabs(double{row[3]});
}

/// Whether no factor has a bit below `places` places of the sum's size: sums of their multiples are exact.
inline bool hasNoBitBelow(const float (&row)[4], double size, int places) {
  int exponent;
  std::frexp(size, &exponent);
  return std::all_of(row, row + 4, [=](float f) {
    const double inLastPlaces = std::ldexp(double{f}, places - exponent);
    return std::trunc(inLastPlaces) == inLastPlaces;
  });
}

// ---- Sums, by the caller's rounding --------------------------------------------------------------------------------

/// A sum that is no number counts as zero. Whole by the rounding that is set; beyond 2^52, beyond any element, about
/// so.
template <class V>
HWY_INLINE V wholeByMode(V sum) {
  const hn::DFromV<V> d;
  const V number = hn::IfThenElseZero(hn::Eq(sum, sum), sum);
  const V large = hn::CopySign(hn::Set(d, 0x1p52), number);
  return hn::Sub(hn::Add(number, large), large);
}

/// Of any twist, by the rounding that is set. A product of a float and an element of at most 16 bits is exact as a
/// double: MulAdd rounds as a product and a sum do.
template <class T>
struct ExactTwist {
  double factor[3][4];

  explicit ExactTwist(Twist twist) {
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 4; ++k) factor[c][k] = twist[c][k];
    }
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    return channelsOf(d, *this, v0, v1, v2);
  }

  template <int c, class V>
  HWY_INLINE V channel(V x0, V x1, V x2) const {
    const hn::DFromV<V> di;
    const hn::Half<decltype(di)> dHalf;
    const auto lower = sum<c>(hn::LowerHalf(x0), hn::LowerHalf(x1), hn::LowerHalf(x2));
    const auto upper = sum<c>(hn::UpperHalf(dHalf, x0), hn::UpperHalf(dHalf, x1), hn::UpperHalf(dHalf, x2));
    // From 0 on all modes add to a large number as they round; of less than that nothing is left.
    if constexpr (std::is_unsigned_v<T>) return nearestOf<T>(di, lower, upper);
    if constexpr (std::is_signed_v<T>) return nearestOf<T>(di, wholeByMode(lower), wholeByMode(upper));
  }

  template <class D, class... V>
  HWY_INLINE static hn::Vec<D> join(D d, V... v) {
    return joinedTurns(d, v...);
  }

 private:
  template <int c, class V>
  HWY_INLINE auto sum(V x0, V x1, V x2) const {
    const hn::Rebind<double, hn::DFromV<V>> d;
    const double(&f)[4] = factor[c];
    const auto first = hn::Mul(hn::Set(d, f[0]), hn::PromoteTo(d, x0));
    const auto two = hn::MulAdd(hn::Set(d, f[1]), hn::PromoteTo(d, x1), first);
    return hn::Add(hn::MulAdd(hn::Set(d, f[2]), hn::PromoteTo(d, x2), two), hn::Set(d, f[3]));
  }
};

/// The same where the sums of floats are exact: no bit of a row's factors lies below 24 bits of its largest sum.
template <class T>
struct ExactFloatTwist {
  float factor[3][4];

  explicit ExactFloatTwist(Twist twist) {
    for (int c = 0; c < 3; ++c) std::copy(twist[c], twist[c] + 4, factor[c]);
  }

  static bool pays(Twist twist) {
    return std::all_of(twist, twist + 3, [](const float(&row)[4]) { return isExact(row); });
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    return channelsOf(d, *this, v0, v1, v2);
  }

  template <int c, class V>
  HWY_INLINE V channel(V x0, V x1, V x2) const {
    const hn::DFromV<V> di;
    return rounded(di, floatSum(hn::RebindToFloat<decltype(di)>(), factor[c], x0, x1, x2));
  }

  template <class D, class... V>
  HWY_INLINE static hn::Vec<D> join(D d, V... v) {
    return joinedTurns(d, v...);
  }

 private:
  static bool isExact(const float (&row)[4]) {
    const double size = sizeOfSum<T>(row);
    return size >= 1 && size < 0x1p30 && hasNoBitBelow(row, size, 24);
  }
};

// ---- Interleaved pixels, 12 bytes to a block of 16 ------------------------------------------------------------------

/// The first 12 bytes of each block, one behind the other.
template <class D>
HWY_INLINE hn::Vec<D> loadPixels(D d, const uint8_t* in) {
  return blocksFrom(d, [&](int k) VEMI_INLINED { return in + ptrdiff_t{12} * k; });
}

/// The inverse, from 12 bytes of each block. What lies behind the pixels of a block that is not the last is written
/// too.
template <bool isLast, class D>
HWY_INLINE void storePixels(D d, hn::Vec<D> v, uint8_t* out) {
  if constexpr (hn::MaxLanes(d) > 16) {
    const hn::Half<D> dHalf;
    storePixels<false>(dHalf, hn::LowerHalf(v), out);
    storePixels<isLast>(dHalf, hn::UpperHalf(dHalf, v), out + 12 * (hn::MaxLanes(d) / 32));
  } else if constexpr (isLast) {
    alignas(16) uint8_t pixels[16];
    hn::Store(v, d, pixels);
    std::memcpy(out, pixels, 12);
  } else {
    hn::StoreU(v, d, out);
  }
}

// ---- Whole calls ---------------------------------------------------------------------------------------------------

/// f(), a status, under the caller's rounding. No exception ends the program, and none that f has met is left behind.
template <class F>
VemiStatus leavingNoException(const F& f) {
  std::fenv_t callers;
  std::feholdexcept(&callers);
  const VemiStatus status = detail::runApart(f);
  std::fesetenv(&callers);
  return status;
}

/// By the operations of the list that pays first, or by sums of doubles. All of them take longer than memory.
template <class T, class L, class... Fast, class Src, class Dst>
VemiStatus twistIntegersBy(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, twist), checkSize(roiSize), checkStep(src, dst))) return bad;
  return leavingNoException([&] {
    const auto run = [&](const auto& op) {
      mapPixelRegion<Stores::cached>(CallerRows(), roiSize, op, pixelsIn<L>(dst), pixelsIn<L>(src));
    };
    const bool isDone = (... || (Fast::pays(twist) && (run(Fast(twist)), true)));
    if (!isDone) run(ExactTwist<T>(twist));
    return vemiOk;
  });
}

}  // namespace vemi::color
