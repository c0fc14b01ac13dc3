// vemiRGBToHSV, vemiHSVToRGB: the hexcone of hue, saturation and value. With V the largest channel and d its distance
// from the least, S = d / V, and H runs around the circle from red by way of green and blue: a sixth of it is the
// difference of the other two channels over d, counted from the largest one's place.
//
// Quotients are products with the approximate reciprocal, of 16u after a Newton step. Results are rounded to nearest.

#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/reciprocal.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/rounding.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

struct FromRGB {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const V value = hn::Max(hn::Max(r, g), b);
    const V delta = hn::Sub(value, hn::Min(hn::Min(r, g), b));
    const auto isBlue = hn::Eq(b, value), isGreen = hn::Eq(g, value);
    const V upper = hn::IfThenElse(isBlue, r, hn::IfThenElse(isGreen, b, g));
    const V lower = hn::IfThenElse(isBlue, g, hn::IfThenElse(isGreen, r, b));
    const V one = hn::Set(d, 1);
    const V divisor = hn::Max(delta, one), valueDivisor = hn::Max(value, one);  // a grey pixel's results are dropped
    const auto withPlace = [&](int green, int blue, V red) VEMI_INLINED {
      const V otherwise = hn::IfThenElse(isGreen, hn::Set(d, static_cast<hn::TFromD<D>>(green)), red);
      return hn::IfThenElse(isBlue, hn::Set(d, static_cast<hn::TFromD<D>>(blue)), otherwise);
    };

    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const auto results = [&]() VEMI_INLINED {
      if constexpr (sizeof(hn::TFromD<D>) == 1) {
        // Differences times reciprocals of bytes are exact, and so is what they add up to; and of all that are possible
        // none is rounded to another hue because the place is added behind the factor.
        const V full = hn::VecFromMask(d, hn::Lt(g, b));
        const V place = withPlace(85, 170, full);
        return inParts(d, [&](auto part) VEMI_INLINED {
          const auto difference = hn::ConvertTo(df, hn::Sub(integersOf(part, upper), integersOf(part, lower)));
          const auto sixths = hn::Mul(difference, plainReciprocal(df, floatsOf(part, divisor)));
          const auto hue = hn::Add(hn::Mul(sixths, hn::Set(df, 42.5f)), floatsOf(part, place));
          const auto scaled = hn::Mul(floatsOf(part, delta), hn::Set(df, 255.0f));
          const auto saturation = hn::Mul(scaled, plainReciprocal(df, floatsOf(part, valueDivisor)));
          return std::tuple(rounded(di, hue), rounded(di, saturation));
        });
      } else {
        const V place = withPlace(2, 4, hn::Zero(d));
        const V toUpper = hn::Sub(value, lower), toLower = hn::Sub(value, upper);
        return inParts(d, [&](auto part) VEMI_INLINED {
          const auto reciprocal = refinedReciprocal(df, floatsOf(part, divisor));
          const auto difference =
              hn::Sub(hn::Mul(floatsOf(part, toUpper), reciprocal), hn::Mul(floatsOf(part, toLower), reciprocal));
          const auto hue = hn::Mul(hn::Add(difference, floatsOf(part, place)), hn::Set(df, 10922.5f));
          const auto around = hn::IfThenElse(hn::Lt(hue, hn::Zero(df)), hn::Add(hue, hn::Set(df, 65535.0f)), hue);
          const auto scaled = hn::Mul(floatsOf(part, delta), hn::Set(df, 65535.0f));
          const auto saturation = hn::Mul(scaled, refinedReciprocal(df, floatsOf(part, valueDivisor)));
          return std::tuple(rounded(di, around), rounded(di, saturation));
        });
      }
    }();
    const auto isGrey = hn::Eq(delta, hn::Zero(d));
    const auto [hue, saturation] = results;
    return std::tuple(hn::IfThenZeroElse(isGrey, hue), hn::IfThenZeroElse(isGrey, saturation), value);
  }
};

/// The hue that is the circle's end and acts as its begin, and the scales of 8u and 16u.
template <class T>
struct Scale {
  static constexpr T end = static_cast<T>(-1);
  static constexpr float sixth = 0.016666668f;
  static constexpr float ofHue = sizeof(T) == 1 ? 1.4117647f : 0.0054932479f;
  static constexpr float ofUnit = sizeof(T) == 1 ? 0.003921569f : 1.5259022e-5f;

  /// In which sixth of the circle a hue lies, and how far from its begin.
  static constexpr float sixths(int hue) { return static_cast<float>(hue) * sixth * ofHue; }

  /// The first hue of a sixth.
  static constexpr T begin(int sector) {
    int below = 0, at = end;
    while (at - below > 1) {
      const int middle = (below + at) / 2;
      (sixths(middle) < static_cast<float>(sector) ? below : at) = middle;
    }
    return static_cast<T>(at);
  }
};

struct ToRGB {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V hueOrEnd, V saturation, V value) const {
    using Scale = color::Scale<hn::TFromD<D>>;
    const V hue = hn::IfThenZeroElse(hn::Eq(hueOrEnd, hn::Set(d, Scale::end)), hueOrEnd);
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const auto [least, between] = inParts(d, [&](auto part) VEMI_INLINED {
      const auto v = floatsOf(part, value);
      const auto s = hn::Mul(floatsOf(part, saturation), hn::Set(df, Scale::ofUnit));
      const auto degrees = hn::Mul(floatsOf(part, hue), hn::Set(df, Scale::sixth));
      const auto sixths = hn::Mul(degrees, hn::Set(df, Scale::ofHue));
      const auto sector = truncated(di, sixths);
      const auto fraction = hn::Sub(sixths, hn::ConvertTo(df, sector));
      const auto p = hn::Sub(v, hn::Mul(v, s));
      const auto slope = hn::Mul(hn::Mul(fraction, v), s);
      const auto isOdd = hn::RebindMask(df, hn::TestBit(sector, hn::Set(di, 1)));
      const auto q = hn::Sub(v, slope), t = hn::Add(p, slope);
      return std::tuple(rounded(di, p), rounded(di, hn::IfThenElse(isOdd, q, t)));
    });
    const auto from = [&](auto sector) VEMI_INLINED {
      constexpr auto first = Scale::begin(sector);
      return hn::Eq(hn::Max(hue, hn::Set(d, first)), hue);
    };
    const auto from1 = from(Part<1>()), from2 = from(Part<2>()), from3 = from(Part<3>()), from4 = from(Part<4>()),
               from5 = from(Part<5>());
    const auto choose = [](auto condition, V yes, V no) VEMI_INLINED { return hn::IfThenElse(condition, yes, no); };
    const V r = choose(from4, choose(from5, value, between), choose(from2, least, choose(from1, between, value)));
    const V g = choose(from3, choose(from4, least, between), choose(from1, value, between));
    const V b = choose(from3, choose(from5, between, value), choose(from2, between, least));
    return std::tuple(r, g, b);
  }
};

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToHSV_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<FromRGB, C3>)
VEMI_DEFINE(vemiRGBToHSV_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<FromRGB, AC4>)
VEMI_DEFINE(vemiRGBToHSV_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<FromRGB, C3>)
VEMI_DEFINE(vemiRGBToHSV_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<FromRGB, AC4>)

VEMI_DEFINE(vemiHSVToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<ToRGB, C3>)
VEMI_DEFINE(vemiHSVToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<ToRGB, AC4>)
VEMI_DEFINE(vemiHSVToRGB_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<ToRGB, C3>)
VEMI_DEFINE(vemiHSVToRGB_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<ToRGB, AC4>)
