// Hue, lightness and saturation of floats. With M the largest channel, m the least and d = M - m:
//
//   L = (M + m) / 2,   S = d / (M + m), or d / (2 - M - m) where L is above 1/2,
//   H = 60 times the difference of the other two channels over d, in degrees from the largest one's place on.
//
// Back, each channel is a ramp on the circle between m1 = 2 L - m2 and m2 = L + S - L S, or L (1 + S).
#pragma once

#include <tuple>

#include "core/inlined.h"
#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::color {

/// H in degrees, L and S of colours from 0 to 1. Of several largest channels red counts first, then green.
template <class D, class V>
HWY_INLINE auto hlsOf(D d, V r, V g, V b) {
  const V zero = hn::Zero(d), sixty = hn::Set(d, 60.0f);
  const V most = greater(greater(r, g), b), least = lesser(lesser(r, g), b);
  const V delta = hn::Sub(most, least), sum = hn::Add(most, least);
  const V lightness = hn::Mul(hn::Set(d, 0.5f), sum);
  const V rest = hn::Sub(hn::Sub(hn::Set(d, 2.0f), most), least);
  const V saturation = hn::Div(delta, hn::IfThenElse(hn::Le(lightness, hn::Set(d, 0.5f)), sum, rest));

  const auto isRed = hn::Eq(r, most), isGreen = hn::Eq(g, most);
  const V ofOthers = hn::IfThenElse(isGreen, hn::Sub(b, r), hn::Sub(r, g));
  const V fromPlace = hn::Div(hn::Mul(hn::IfThenElse(isRed, hn::Sub(g, b), ofOthers), sixty), delta);
  const V place = hn::Sub(hn::Set(d, 240.0f), hn::IfThenElseZero(isGreen, hn::Set(d, 120.0f)));
  const V angle = hn::IfThenElse(isRed, fromPlace, hn::Add(fromPlace, place));
  const V hue = hn::IfThenElse(hn::Lt(angle, zero), hn::Add(angle, hn::Set(d, 360.0f)), angle);

  const auto isGrey = hn::Le(delta, hn::Set(d, 0x1p-23f));
  return std::tuple(hn::IfThenZeroElse(isGrey, hue), lightness, hn::IfThenZeroElse(isGrey, saturation));
}

/// What a ramp rises by: its share of 60 degrees.
struct OverSixty {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return hn::Div(v, hn::Set(d, 60.0f));
  }
};
struct TimesSixtieth {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return hn::Mul(v, hn::Set(d, 0.01666667f));
  }
};

/// R, G and B of a hue in degrees. What S = 0 gives is no colour.
template <class ShareOfSixty, class D, class V>
HWY_INLINE auto rgbOfHls(D d, V hue, V lightness, V saturation) {
  const V product = hn::Mul(lightness, saturation), one = hn::Set(d, 1.0f);
  const V above = hn::Sub(hn::Add(lightness, saturation), product);
  const V below = hn::Mul(lightness, hn::Add(one, saturation));
  const V m2 = hn::IfThenElse(hn::Gt(lightness, hn::Set(d, 0.5f)), above, below);
  const V m1 = hn::Sub(hn::Add(lightness, lightness), m2);
  const V height = hn::Sub(m2, m1);
  const V third = hn::Set(d, 120.0f), circle = hn::Set(d, 360.0f), fall = hn::Set(d, 240.0f);
  // Up to 60 a slope from m1, up to 180 m2, up to 240 a slope back, then m1: where a limit is crossed, the bits change
  // from one of two to the other.
  const auto ramp = [&](V x) VEMI_INLINED {
    const V rises = hn::VecFromMask(d, hn::Lt(x, hn::Set(d, 60.0f)));
    const V isHigh = hn::VecFromMask(d, hn::Lt(x, hn::Set(d, 180.0f)));
    const V isNotLow = hn::VecFromMask(d, hn::Lt(x, fall));
    const V slope = hn::Add(m1, ShareOfSixty()(d, hn::Mul(height, lesser(x, hn::Sub(fall, x)))));
    const V toSlope = hn::And(isNotLow, hn::Xor(m1, slope)),
            toHigh = hn::And(hn::Xor(isHigh, rises), hn::Xor(slope, m2));
    return hn::Xor(m1, hn::Xor(toSlope, toHigh));
  };
  const V ahead = hn::Add(hue, third), behind = hn::Sub(hue, third);
  const V red = hn::Sub(ahead, hn::IfThenElseZero(hn::Gt(ahead, circle), circle));
  const V blue = hn::Add(behind, hn::IfThenElseZero(hn::Lt(behind, hn::Zero(d)), circle));
  return std::tuple(ramp(red), ramp(hue), ramp(blue));
}

}  // namespace vemi::color
