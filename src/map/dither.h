// What the ways to fewer levels share: pixels on one scale, the noise, the levels of the result.
//
// Black is 0, white 65535, and a step between two levels has 65535 parts: with N steps, a pixel s lies at s N, level k
// at 65535 k. Everything fits lanes of 16 bits with carries: a sum of two of them reaches 65535 where their rounded
// average has its top bit set.
#pragma once

#include <cstddef>
#include <type_traits>

#include "core/lane_width.h"
#include "core/lanes.h"
#include "core/rounding.h"
#include "signal/random.h"
#include "vemi/types.h"

namespace vemi::map {

/// 1 where a + b >= 65535, 0 elsewhere.
template <class V>
HWY_INLINE V reachesWhite(V a, V b) {
  return hn::ShiftRight<15>(hn::AverageRound(a, b));
}

/// Pixels in lanes of 16 bits without a sign. Floats are limited to 1: of an unordered pair the lesser is the second,
/// so a NaN is white. What is below 0 stays so, and is packed to 0.
struct OnOneScale {
  template <class D, class S>
  HWY_INLINE hn::Vec<D> operator()(D d, const S* in) const {
    if constexpr (std::is_same_v<S, Vemi8u>) {
      const auto v = loadExtended(d, in);
      return hn::Or(v, hn::ShiftLeft<8>(v));
    } else if constexpr (std::is_same_v<S, Vemi32f>) {
      return roundedFloats(
          d, in, [](auto df, auto v) HWY_ATTR { return hn::Mul(lesser(v, hn::Set(df, 1.0f)), hn::Set(df, 65535.0f)); });
    } else {
      return (*this)(d, hn::LoadU(Lanes<S>(), in));
    }
  }
  /// Of lanes that are loaded already.
  template <class D, class V>
  requires(!std::is_pointer_v<V>) HWY_INLINE hn::Vec<D>
  operator()(D d, V v) const {
    const auto bits = hn::BitCast(d, v);
    return std::is_signed_v<hn::TFromV<V>> ? hn::Xor(bits, hn::Set(d, 0x8000)) : bits;
  }
};

/// Level k = 0..N of an element type: k F / N rounded, halves up, above the type's lowest value, where F is the length
/// of its range. F / N has 16 fraction bits here and is off by half a unit at most, k times as much by N / 2 units.
/// Exact values of k F / N + 1 / 2 lie 1 / 2N apart, which is more than these N / 2 units as long as N^2 < 2^16: errors
/// upwards reach no other integer, and errors downwards are made good in advance.
template <class T>
class LevelValue {
 public:
  explicit LevelValue(int levels) {
    constexpr int range = sizeof(T) == 1 ? 255 : 65535;
    const Vemi64s steps = levels - 1, length = Vemi64s{range} << 16;
    const Vemi64s factor = (2 * length + steps) / (2 * steps);
    whole_ = static_cast<Vemi16u>(factor >> 16);
    fraction_ = static_cast<Vemi16u>(factor);
    rounding_ = static_cast<Vemi16u>(32767 + (factor * steps < length ? (steps + 1) / 2 : 0));
  }

  /// In lanes of 16 bits.
  template <class D, class V>
  HWY_INLINE V operator()(D d, V k) const {
    V level = hn::Mul(k, hn::Set(d, whole_));
    if (fraction_ != 0) {  // not so with 2, 4, 6, 16, 18, 52, 86 and 256 levels
      const V fraction = hn::Set(d, fraction_);
      const V carry = reachesWhite(hn::Mul(k, fraction), hn::Set(d, rounding_));
      level = hn::Add(level, hn::Add(hn::MulHigh(k, fraction), carry));
    }
    return std::is_signed_v<T> ? hn::Xor(level, hn::Set(d, 0x8000)) : level;
  }

 private:
  Vemi16u whole_, fraction_, rounding_;
};

/// The noise of row y: n = (A (r >> 16)) >> 16, with A = floor(65534 percent / 100), of the generator that begins anew
/// in each row. Its seed is a mixture of the row's bits, so that the sequences of neighbours have nothing in common.
class RowNoise {
 public:
  RowNoise(ptrdiff_t y, int percent) : amplitude_(static_cast<Vemi16u>(65534 * percent / 100)), x_(seedOf(y)) {}

  /// The next `count` values, of a row or of one of its pieces in turn: all but the last have a multiple of 32. Behind
  /// them it writes what makes up a multiple.
  void draw(ptrdiff_t count, Vemi16s* noise) {
    const Lanes<Vemi16s> d;
    const Lanes<Vemi32u> dWide;
    const Lanes<Vemi32s> dSigned;
    constexpr ptrdiff_t N = laneCount<Vemi16s>, N32 = laneCount<Vemi32u>;
    const auto amplitude = hn::Set(d, static_cast<Vemi16s>(amplitude_));
    const auto isNegative = hn::BroadcastSignBit(amplitude);  // where the product's upper half lacks r
    signal::BorrowingSequence x = x_;
    signal::CongruentialSequence g = g_;
    for (ptrdiff_t i = 0; i < count; i += blockSteps) {
      alignas(laneAlignment) Vemi32u drawn[blockSteps];
      for (ptrdiff_t j = 0; j < blockSteps; j += steps) x.draw(drawn + j);
      for (ptrdiff_t j = 0; j < blockSteps; j += N32) {
        hn::Store(hn::Add(hn::Load(dWide, drawn + j), g.next()), dWide, drawn + j);
      }
      for (ptrdiff_t j = 0; j < blockSteps; j += N) {
        const auto r = packEach<Vemi32s>(d, [&](auto k) HWY_ATTR {
          return hn::ShiftRight<16>(hn::BitCast(dSigned, hn::Load(dWide, drawn + j + k * N32)));
        });
        hn::StoreU(hn::Add(hn::MulHigh(r, amplitude), hn::And(r, isNegative)), d, noise + i + j);
      }
    }
    x_ = x;
    g_ = g;
  }

 private:
  static constexpr ptrdiff_t steps = signal::BorrowingSequence::steps;
  static constexpr ptrdiff_t blockSteps = 32;  // a vector of 16-bit lanes of any length

  Vemi16u amplitude_;
  signal::BorrowingSequence x_;
  signal::CongruentialSequence g_;

  static uint32_t seedOf(ptrdiff_t y) {
    uint32_t h = static_cast<uint32_t>(y) + 1;
    h ^= h >> 16;
    h *= 0x85ebca6b;
    h ^= h >> 13;
    h *= 0xc2b2ae35;
    return h ^ h >> 16;
  }
};

}  // namespace vemi::map
