// Sine and cosine of single-precision lanes, both at once.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "core/lane_width.h"
#include "core/lanes.h"
#include "core/rounding.h"
#include "signal/polynomial.h"

namespace vemi::signal {

/// Of any angle, within one unit in the last place of the correctly rounded value; the same bits on all levels. Of
/// infinities and NaNs both are NaNs.
///
/// An angle is k quarter turns and a rest of at most an eighth, rounded once or, where it is small, twice.
struct SineAndCosine {
  template <class V>
  struct Pair {
    V sine, cosine;
  };

  template <class D, class V>
  HWY_INLINE Pair<V> operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    const V integers = hn::Set(d, roundingSummand<float>);
    const V sum = hn::Add(hn::Mul(x, hn::Set(d, static_cast<float>(quartersPerRadian))), integers);
    const V k = hn::Sub(sum, integers);
    V rest = x;
    for (const float part : parts) rest = hn::Sub(rest, hn::Mul(k, hn::Set(d, part)));
    auto quarters = hn::BitCast(di, sum);
    const auto isNear = hn::Lt(hn::Abs(x), hn::Set(d, near));
    if (HWY_UNLIKELY(!hn::AllTrue(d, isNear))) reduceFar(d, x, rest, quarters);
    return ofReduced(d, quarters, rest);
  }

 private:
  // Up to `near` k has 7 bits; up to `far`, 21.
  static constexpr float near = 0x1p7f, far = 0x1p20f;
  static constexpr double quartersPerRadian = 0x1.45f306dc9c883p-1;
  // pi / 2. The first three products with k are exact, and so are the first two differences: multiples of 2^-24.
  static constexpr float parts[] = {0x1.921fp+0f, 0x1.6ap-17f, 0x1.110ap-26f, 0x1.4611a6p-42f};
  // The same in two parts. The first has 32 bits: its product with k is exact.
  static constexpr double part1 = 0x1.921fb544p+0, part2 = 0x1.0b4611a626331p-34;
  // Of (sin r - r) / r^3 and of (cos r - 1 + r^2 / 2) / r^4, in r^2, with the least largest error of their sums.
  static constexpr float sine[] = {-0x1.555556p-3f, 0x1.111174p-7f, -0x1.a0595ep-13f, 0x1.7c3374p-19f};
  static constexpr float cosine[] = {0x1.55554ap-5f, -0x1.6c0c2ap-10f, 0x1.99e912p-16f};

  /// The angles that are not near, by double precision.
  template <class D, class V, class VI>
  HWY_NOINLINE static void reduceFar(D d, V x, V& rest, VI& quarters) {
    const hn::Half<D> dHalf;
    const hn::Rebind<double, decltype(dHalf)> dd;
    using VD = hn::Vec<decltype(dd)>;
    const hn::RebindToSigned<D> di;
    const VD integers = hn::Set(dd, roundingSummand<double>);
    VD sum[2];
    hn::Vec<decltype(dHalf)> half[2] = {hn::LowerHalf(dHalf, x), hn::UpperHalf(dHalf, x)};
    unrolled<2>([&](auto n) HWY_ATTR {
      const VD angle = hn::PromoteTo(dd, half[n]);
      sum[n] = hn::Add(hn::Mul(angle, hn::Set(dd, quartersPerRadian)), integers);
      const VD k = hn::Sub(sum[n], integers);
      const VD coarse = hn::Sub(angle, hn::Mul(k, hn::Set(dd, part1)));
      half[n] = hn::DemoteTo(dHalf, hn::Sub(coarse, hn::Mul(k, hn::Set(dd, part2))));
    });
    const auto isFar = hn::Not(hn::Lt(hn::Abs(x), hn::Set(d, near)));
    rest = hn::IfThenElse(isFar, hn::Combine(d, half[1], half[0]), rest);
    quarters = hn::IfThenElse(hn::RebindMask(di, isFar),
                              hn::ConcatEven(di, hn::BitCast(di, sum[1]), hn::BitCast(di, sum[0])), quarters);
    if (hn::AllTrue(d, hn::Lt(hn::Abs(x), hn::Set(d, far)))) return;
    alignas(laneAlignment) float angle[hn::MaxLanes(d)], own[hn::MaxLanes(d)];
    alignas(laneAlignment) int32_t turns[hn::MaxLanes(d)];
    hn::Store(x, d, angle);
    hn::Store(rest, d, own);
    hn::Store(quarters, di, turns);
    for (size_t i = 0; i < hn::MaxLanes(d); ++i) {
      if (std::fabs(angle[i]) < far) continue;
      own[i] = angle[i];
      turns[i] = reduceAny(own[i]);
    }
    rest = hn::Load(d, own);
    quarters = hn::Load(di, turns);
  }

  template <class D, class VI, class V>
  HWY_INLINE static Pair<V> ofReduced(D d, VI quarters, V r) {
    const V one = hn::Set(d, 1), signBit = hn::SignBit(d), z = hn::Mul(r, r);
    const V sum = hn::Add(r, hn::Mul(hn::Mul(r, z), polynomial(d, z, sine)));
    const V sineOfR = hn::Or(sum, hn::And(r, signBit));  // a zero keeps its sign
    const V less = hn::Sub(hn::Mul(z, hn::Set(d, 0.5f)), hn::Mul(hn::Mul(z, z), polynomial(d, z, cosine)));
    const V cosineOfR = hn::Sub(one, less);
    // The last two bits of k where signs stand.
    const VI lower = hn::ShiftLeft<31>(quarters), upper = hn::ShiftLeft<30>(quarters);
    const auto isOdd = hn::RebindMask(d, hn::Lt(lower, hn::Zero(hn::DFromV<VI>())));
    const auto signOf = [&](VI k) HWY_ATTR { return hn::And(hn::BitCast(d, k), signBit); };
    return {hn::Xor(hn::IfThenElse(isOdd, cosineOfR, sineOfR), signOf(upper)),
            hn::Xor(hn::IfThenElse(isOdd, sineOfR, cosineOfR), signOf(hn::Xor(upper, lower)))};
  }

  /// The quarter turns of one angle from 2^20 on, which becomes its rest. It is m 2^e with an integer m of 24 bits: of
  /// 2 / pi those bits count that make less than 4 quarter turns with it, and 96 of them leave 70 behind the point.
  HWY_NOINLINE static int32_t reduceAny(float& angle) {
    if (!std::isfinite(angle)) {
      angle -= angle;
      return 0;
    }
    const float magnitude = std::fabs(angle);
    // 2 / pi from 2^31 on, the highest bits first.
    constexpr uint64_t bits[] = {0x00000000a2f9836e, 0x4e441529fc2757d1, 0xf534ddc0db629599, 0x3c439041fe5163ab, 0};
    const auto pattern = std::bit_cast<uint32_t>(magnitude);
    const uint64_t m = (pattern & 0x7fffff) | 0x800000;
    const auto first = static_cast<unsigned>(pattern >> 23) - 150 + 31 - 1;  // e is -3 at least
    const auto wordFrom = [&](unsigned bit) {
      const unsigned word = bit / 64, within = bit % 64;
      const uint64_t upper = bits[word] << within;
      return within == 0 ? upper : upper | bits[word + 1] >> (64 - within);
    };
    // m times 96 bits, modulo 2^96: two bits of whole quarters, and the rest.
    const uint64_t high = wordFrom(first), low = wordFrom(first + 64) >> 32;
    const uint64_t lowProduct = m * low;
    const uint64_t product = m * high + (lowProduct >> 32);
    const uint64_t whole = (product + (uint64_t{1} << 61)) >> 62;
    const auto fraction = static_cast<int64_t>(product - (whole << 62));
    const auto quarters = static_cast<int32_t>(whole & 3);
    const double rest =
        (static_cast<double>(fraction) * 0x1p-62 + static_cast<double>(lowProduct & 0xffffffff) * 0x1p-94) *
        (part1 + part2);
    const bool isNegative = std::signbit(angle);
    angle = static_cast<float>(isNegative ? -rest : rest);
    return isNegative ? -quarters : quarters;
  }
};

}  // namespace vemi::signal
