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
/// An angle is k quarter turns and a rest of at most an eighth, which comes from double precision and is rounded once.
struct SineAndCosine {
  template <class V>
  struct Pair {
    V sine, cosine;
  };

  template <class D, class V>
  HWY_INLINE Pair<V> operator()(D d, V x) const {
    const hn::RebindToSigned<D> di;
    using VI = hn::Vec<decltype(di)>;
    const auto isNear = hn::Lt(hn::Abs(x), hn::Set(d, near));
    if (HWY_LIKELY(hn::AllTrue(d, isNear))) {
      VI quarters;
      const V rest = reduced(d, x, quarters);
      return ofReduced(d, quarters, rest);
    }
    alignas(laneAlignment) float rest[hn::MaxLanes(d)];
    alignas(laneAlignment) int32_t quarters[hn::MaxLanes(d)];
    hn::Store(x, d, rest);
    for (size_t i = 0; i < hn::MaxLanes(d); ++i) quarters[i] = reduceAny(rest[i]);
    return ofReduced(d, hn::Load(di, quarters), hn::Load(d, rest));
  }

 private:
  static constexpr float near = 0x1p20f;
  static constexpr double quartersPerRadian = 0x1.45f306dc9c883p-1;
  // pi / 2 in two parts. The first has 32 bits: its product with k, of 21 bits at most, is exact.
  static constexpr double part1 = 0x1.921fb544p+0, part2 = 0x1.0b4611a626331p-34;
  // Of (sin r - r) / r^3 and of (cos r - 1 + r^2 / 2) / r^4, in r^2, exact at the nodes of Chebyshev.
  static constexpr float sine[] = {-0x1.555556p-3f, 0x1.11110ep-7f, -0x1.a013a8p-13f, 0x1.6dbdeep-19f};
  static constexpr float cosine[] = {0x1.555554p-5f, -0x1.6c12d2p-10f, 0x1.9bd88p-16f};

  template <class D, class V, class VI>
  HWY_INLINE static V reduced(D d, V x, VI& quarters) {
    const hn::Half<D> dHalf;
    const hn::Rebind<double, decltype(dHalf)> dd;
    using VD = hn::Vec<decltype(dd)>;
    const hn::RebindToSigned<D> di;
    const VD integers = hn::Set(dd, roundingSummand<double>);
    VD sum[2];
    hn::Vec<decltype(dHalf)> rest[2];
    const hn::Vec<decltype(dHalf)> half[2] = {hn::LowerHalf(dHalf, x), hn::UpperHalf(dHalf, x)};
    unrolled<2>([&](auto n) HWY_ATTR {
      const VD angle = hn::PromoteTo(dd, half[n]);
      sum[n] = hn::Add(hn::Mul(angle, hn::Set(dd, quartersPerRadian)), integers);
      const VD k = hn::Sub(sum[n], integers);
      const VD coarse = hn::Sub(angle, hn::Mul(k, hn::Set(dd, part1)));
      rest[n] = hn::DemoteTo(dHalf, hn::Sub(coarse, hn::Mul(k, hn::Set(dd, part2))));
    });
    quarters = hn::ConcatEven(di, hn::BitCast(di, sum[1]), hn::BitCast(di, sum[0]));
    return hn::Combine(d, rest[1], rest[0]);
  }

  template <class D, class VI, class V>
  HWY_INLINE static Pair<V> ofReduced(D d, VI quarters, V rest) {
    const hn::RebindToSigned<D> di;
    const V r = hn::Abs(rest), z = hn::Mul(r, r);  // a zero keeps its sign
    const V sineOfR =
        hn::Xor(hn::Add(r, hn::Mul(hn::Mul(r, z), polynomial(d, z, sine))), hn::And(rest, hn::SignBit(d)));
    const V one = hn::Set(d, 1), half = hn::Mul(z, hn::Set(d, 0.5f));
    const V down = hn::Sub(one, half), lost = hn::Sub(hn::Sub(one, down), half);
    const V cosineOfR = hn::Add(down, hn::Add(lost, hn::Mul(hn::Mul(z, z), polynomial(d, z, cosine))));
    const auto isOdd = hn::RebindMask(d, hn::TestBit(quarters, hn::Set(di, 1)));
    const auto signOf = [&](VI k) HWY_ATTR { return hn::BitCast(d, hn::ShiftLeft<31>(hn::ShiftRight<1>(k))); };
    return {hn::Xor(hn::IfThenElse(isOdd, cosineOfR, sineOfR), signOf(quarters)),
            hn::Xor(hn::IfThenElse(isOdd, sineOfR, cosineOfR), signOf(hn::Add(quarters, hn::Set(di, 1))))};
  }

  /// The same of one angle, which becomes its rest. From 2^20 on it is m 2^e with an integer m of 24 bits: of 2 / pi
  /// those bits count that make less than 4 quarter turns with it, and 96 of them leave 70 behind the point.
  HWY_NOINLINE static int32_t reduceAny(float& angle) {
    if (!std::isfinite(angle)) {
      angle -= angle;
      return 0;
    }
    const float magnitude = std::fabs(angle);
    int32_t quarters;
    double rest;
    if (magnitude < near) {
      const double k = roundTiesEven(magnitude * quartersPerRadian);
      quarters = static_cast<int32_t>(k);
      rest = magnitude - k * part1 - k * part2;
    } else {
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
      quarters = static_cast<int32_t>(whole & 3);
      rest = (static_cast<double>(fraction) * 0x1p-62 + static_cast<double>(lowProduct & 0xffffffff) * 0x1p-94) *
             (part1 + part2);
    }
    const bool isNegative = std::signbit(angle);
    angle = static_cast<float>(isNegative ? -rest : rest);
    return isNegative ? -quarters : quarters;
  }
};

}  // namespace vemi::signal
