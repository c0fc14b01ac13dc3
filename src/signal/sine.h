// The sine and the cosine of double-precision lanes.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "signal/float_parts.h"
#include "signal/polynomial.h"

namespace vemi::signal {

namespace detail {

/// An angle as k pi / 2 + r + tail. Of k the last two bits count; r is at most pi / 4 and the tail below its last
/// place.
template <class VK, class V>
struct QuarterTurns {
  VK k;
  V r, tail;
};

/// The sine of x + quarterTurns pi / 2 for |x| up to 2^61, within one unit in the last place; the same bits on all
/// levels. It is the sine or the cosine of what exceeds whole quarter turns, or their negatives.
struct SineOfTurned {
  int quarterTurns;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const auto isModerate = hn::Lt(hn::Abs(x), hn::Set(d, moderate));
    if (HWY_LIKELY(hn::AllTrue(d, isModerate))) return ofReduced(d, reduced(d, x));
    return ofAnyAngle(d, x);
  }

 private:
  static constexpr double moderate = 0x1p29;  // k pi / 2 is formed exactly below it
  static constexpr double quartersPerRadian = 0x1.45f306dc9c883p-1;
  // pi / 2 in four parts; the first three have so few bits that their products with k are exact.
  static constexpr double part1 = 0x1.921fb4p+0, part2 = 0x1.4442dp-24, part3 = 0x1.846988p-48,
                          part4 = 0x1.8cc51701b839ap-72;
  // The minimax polynomials, in r^2, of (sin r - r) / r^3 and of (cos r - 1 + r^2 / 2) / r^4.
  static constexpr double sine[] = {-0x1.5555555555549p-3, 0x1.111111110f87dp-7,   -0x1.a01a019c12010p-13,
                                    0x1.71de357814d5dp-19, -0x1.ae5e668766e94p-26, 0x1.5d93181364e0fp-33};
  static constexpr double cosine[] = {0x1.555555555554cp-5,   -0x1.6c16c16c15181p-10, 0x1.a01a019cb217dp-16,
                                      -0x1.27e4f80a34992p-22, 0x1.1ee9ec192f14ap-29,  -0x1.8faeb6333d4fbp-37};

  template <class D, class V>
  HWY_INLINE static auto reduced(D d, V x) {
    const hn::RebindToUnsigned<D> du;
    const V integers = hn::Set(d, roundingSummand<double>);
    const V sum = hn::Add(hn::Mul(x, hn::Set(d, quartersPerRadian)), integers);
    const V k = hn::Sub(sum, integers);

    // The first two differences are exact, and what the third one loses goes to the rest.
    const V upper = hn::Sub(hn::Sub(x, hn::Mul(k, hn::Set(d, part1))), hn::Mul(k, hn::Set(d, part2)));
    const V third = hn::Mul(k, hn::Set(d, part3));
    const V coarse = hn::Sub(upper, third);
    const V rest = hn::Sub(hn::Sub(hn::Sub(upper, coarse), third), hn::Mul(k, hn::Set(d, part4)));
    const V r = hn::Add(coarse, rest);
    return QuarterTurns<hn::Vec<decltype(du)>, V>{hn::BitCast(du, sum), r, hn::Add(hn::Sub(coarse, r), rest)};
  }

  template <class D, class VK, class V>
  HWY_INLINE V ofReduced(D d, const QuarterTurns<VK, V>& x) const {
    const hn::RebindToUnsigned<D> du;
    const V one = hn::Set(d, 1.0), r = x.r;
    const V r2 = hn::Mul(r, r), half = hn::Mul(r2, hn::Set(d, 0.5));
    const V cubic = hn::Mul(hn::Mul(r2, r), polynomial(d, r2, sine));
    const V sineOfR = hn::Add(r, hn::Add(cubic, hn::Sub(x.tail, hn::Mul(x.tail, half))));
    const V down = hn::Sub(one, half), lost = hn::Sub(hn::Sub(one, down), half);
    const V quartic = hn::Mul(hn::Mul(r2, r2), polynomial(d, r2, cosine));
    const V cosineOfR = hn::Add(down, hn::Add(lost, hn::Sub(quartic, hn::Mul(r, x.tail))));

    const auto quarter = hn::Add(x.k, hn::Set(du, static_cast<uint64_t>(quarterTurns)));
    const auto isOdd = hn::RebindMask(d, hn::TestBit(quarter, hn::Set(du, 1)));
    const auto sign = hn::ShiftLeft<63>(hn::ShiftRight<1>(quarter));
    return hn::Xor(hn::IfThenElse(isOdd, cosineOfR, sineOfR), hn::BitCast(d, sign));
  }

  /// Where an angle has many millions of turns.
  template <class D, class V>
  HWY_NOINLINE V ofAnyAngle(D d, V x) const {
    const hn::RebindToUnsigned<D> du;
    const auto isModerate = hn::Lt(hn::Abs(x), hn::Set(d, moderate));
    const auto near = reduced(d, x), far = reducedFar(d, x);
    return ofReduced(
        d, QuarterTurns<hn::Vec<decltype(du)>, V>{hn::IfThenElse(hn::RebindMask(du, isModerate), near.k, far.k),
                                                  hn::IfThenElse(isModerate, near.r, far.r),
                                                  hn::IfThenElse(isModerate, near.tail, far.tail)});
  }

  /// Angles from 2^29 on are integers in units of 2^-23. Their quarter turns, modulo 2^2, are formed as integers in
  /// units of 2^-222, and are less than 2^-138 wrong; no double is nearer than 2^-62 to whole quarter turns.
  template <class D, class V>
  static auto reducedFar(D d, V x) {
    const hn::RebindToUnsigned<D> du;
    alignas(laneAlignment) double angle[laneCount<double>], upper[laneCount<double>], middle[laneCount<double>],
        lower[laneCount<double>];
    alignas(laneAlignment) uint64_t k[laneCount<double>];
    hn::Store(x, d, angle);
    for (ptrdiff_t i = 0; i < laneCount<double>; ++i) {
      const double sign = angle[i] < 0 ? -1 : 1, magnitude = angle[i] * sign;
      const auto quarters = quarterTurnsOf(magnitude < 0x1p61 ? magnitude : 0x1p61);
      const uint64_t first = uint64_t{quarters.word[6]} << 32 | quarters.word[5];
      const uint64_t whole = (first + (uint64_t{1} << 61)) >> 62;
      const auto rest = static_cast<int64_t>(first - (whole << 62));
      k[i] = angle[i] < 0 ? 0 - whole : whole;
      upper[i] = sign * 0x1p-42 * static_cast<double>(rest >> 20);
      middle[i] = sign * 0x1p-94 * static_cast<double>((rest & 0xfffff) << 32 | quarters.word[4]);
      lower[i] = sign * 0x1p-126 * quarters.word[3];
    }
    const auto sum = exactSum(hn::Load(d, upper), hn::Load(d, middle));
    const auto rest = exactSum(sum.upper, hn::Add(sum.lower, hn::Load(d, lower)));
    const V quarter = hn::Set(d, 0x1.921fb54442d18p+0), quarterRest = hn::Set(d, 0x1.1a62633145c07p-54);
    const auto r = exactProduct(d, rest.upper, quarter);
    const V small = hn::Add(hn::Mul(rest.upper, quarterRest), hn::Mul(rest.lower, quarter));
    const auto inTwo = exactSum(r.upper, hn::Add(r.lower, small));
    return QuarterTurns<hn::Vec<decltype(du)>, V>{hn::Load(du, k), inTwo.upper, inTwo.lower};
  }

  struct Words {
    uint32_t word[7];  // the lowest first
  };

  /// x quarter turns a radian in units of 2^-222, modulo 2^224.
  static Words quarterTurnsOf(double x) {
    // 2 / pi in units of 2^-199.
    constexpr uint32_t factor[] = {0x21c820ff, 0xb14acc9e, 0x9a6ee06d, 0x13abe8fa, 0x220a94fe, 0x7cc1b727, 0x51};
    const auto high = static_cast<uint32_t>(x * 0x1p-41);
    const double below = x - high * 0x1p41;
    const auto middle = static_cast<uint32_t>(below * 0x1p-9);
    const uint32_t units[] = {static_cast<uint32_t>((below - middle * 0x1p9) * 0x1p23), middle, high};
    Words product = {};
    for (int n = 0; n < 3; ++n) {
      uint64_t carried = 0;
      for (int m = 0; n + m < 7; ++m) {
        carried += uint64_t{units[n]} * factor[m] + product.word[n + m];
        product.word[n + m] = static_cast<uint32_t>(carried);
        carried >>= 32;
      }
    }
    return product;
  }
};

}  // namespace detail

struct Sine : detail::SineOfTurned {
  constexpr Sine() : SineOfTurned{0} {}
};

struct Cosine : detail::SineOfTurned {
  constexpr Cosine() : SineOfTurned{1} {}
};

}  // namespace vemi::signal
