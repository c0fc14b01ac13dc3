// The sine and the cosine of double-precision lanes.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/lanes.h"
#include "signal/float_parts.h"
#include "signal/polynomial.h"

namespace vemi {

namespace detail {

/// The sine of x + quarterTurns pi / 2, within one unit in the last place; below the limit, the same bits on all
/// levels.
///
/// With x = k pi / 2 + r and |r| at most pi / 4 it is the sine or the cosine of r, or their negatives, by the last two
/// bits of k.
struct SineOfTurned {
  int quarterTurns;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    if (HWY_LIKELY(hn::AllTrue(d, hn::Lt(hn::Abs(x), hn::Set(d, limit))))) return ofModerate(d, x);
    return byLibrary(d, x);
  }

 private:
  static constexpr double limit = 0x1p29;  // k pi / 2 is formed exactly below it
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
  HWY_INLINE V ofModerate(D d, V x) const {
    const hn::RebindToUnsigned<D> du;
    const V integers = hn::Set(d, detail::roundingSummand<double>);
    const V sum = hn::Add(hn::Mul(x, hn::Set(d, quartersPerRadian)), integers);
    const V k = hn::Sub(sum, integers);
    const auto quarter = hn::Add(hn::BitCast(du, sum), hn::Set(du, static_cast<uint64_t>(quarterTurns)));

    // The first two differences are exact, and what the third one loses goes to the rest.
    const V upper = hn::Sub(hn::Sub(x, hn::Mul(k, hn::Set(d, part1))), hn::Mul(k, hn::Set(d, part2)));
    const V third = hn::Mul(k, hn::Set(d, part3));
    const V coarse = hn::Sub(upper, third);
    const V rest = hn::Sub(hn::Sub(hn::Sub(upper, coarse), third), hn::Mul(k, hn::Set(d, part4)));
    const V r = hn::Add(coarse, rest);
    const V tail = hn::Add(hn::Sub(coarse, r), rest);  // of r, below its last place

    const V one = hn::Set(d, 1.0);
    const V r2 = hn::Mul(r, r), half = hn::Mul(r2, hn::Set(d, 0.5));
    const V cubic = hn::Mul(hn::Mul(r2, r), polynomial(d, r2, sine));
    const V sineOfR = hn::Add(r, hn::Add(cubic, hn::Sub(tail, hn::Mul(tail, half))));
    const V down = hn::Sub(one, half), lost = hn::Sub(hn::Sub(one, down), half);
    const V quartic = hn::Mul(hn::Mul(r2, r2), polynomial(d, r2, cosine));
    const V cosineOfR = hn::Add(down, hn::Add(lost, hn::Sub(quartic, hn::Mul(r, tail))));

    const auto isOdd = hn::RebindMask(d, hn::TestBit(quarter, hn::Set(du, 1)));
    const auto sign = hn::ShiftLeft<63>(hn::ShiftRight<1>(quarter));
    return hn::Xor(hn::IfThenElse(isOdd, cosineOfR, sineOfR), hn::BitCast(d, sign));
  }

  /// Angles of a hundred million turns and more. The C library's last bits are those of its build. The chirp alone
  /// comes so far, in regions whose width^2 is some 10^9 times their height.
  template <class D, class V>
  HWY_NOINLINE V byLibrary(D d, V x) const {
    alignas(laneAlignment) double lane[laneCount<double>];
    hn::Store(x, d, lane);
    for (double& each : lane) each = quarterTurns == 0 ? std::sin(each) : std::cos(each);
    return hn::Load(d, lane);
  }
};

}  // namespace detail

struct Sine : detail::SineOfTurned {
  constexpr Sine() : SineOfTurned{0} {}
};

struct Cosine : detail::SineOfTurned {
  constexpr Cosine() : SineOfTurned{1} {}
};

}  // namespace vemi
