// vemiRGBToHLS, vemiHLSToRGB: the hexcone of hue, lightness and saturation; color/hls.h has the formulas. The quotients
// of integers are products with the approximate reciprocal, that of a hue after a Newton step, and results are cut off.

#include "color/hls.h"

#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/reciprocal.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

template <class T>
struct Scale {
  static constexpr float full = sizeof(T) == 1 ? 255.0f : 65535.0f;
  static constexpr float fromDegrees = sizeof(T) == 1 ? 0.7083333f : 182.04167f;
  static constexpr float toDegrees = sizeof(T) == 1 ? 1.411765f : 0.0054932479f;
  static constexpr float toUnit = sizeof(T) == 1 ? 0.003921569f : 1.5259022e-5f;
};

struct FromIntegers {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    using T = hn::TFromD<D>;
    using Scale = color::Scale<T>;
    const V one = hn::Set(d, 1);
    const V most = hn::Max(hn::Max(r, g), b), least = hn::Min(hn::Min(r, g), b), delta = hn::Sub(most, least);
    const V lightness = hn::Sub(hn::AverageRound(most, least), hn::And(hn::Xor(most, least), one));
    // The lesser of the sum and of what it leaves to twice the full value.
    const V sum = hn::Min(hn::SaturatedAdd(most, least), hn::SaturatedAdd(hn::Not(most), hn::Not(least)));
    const V divisor = hn::Max(delta, one), sumDivisor = hn::Max(sum, one);  // a grey pixel's results are dropped

    const auto isRed = hn::Eq(r, most), isGreen = hn::Eq(g, most);
    const V upper = hn::IfThenElse(isRed, g, hn::IfThenElse(isGreen, b, r));
    const V lower = hn::IfThenElse(isRed, b, hn::IfThenElse(isGreen, r, g));
    const V place = hn::IfThenZeroElse(isRed, hn::IfThenElse(isGreen, hn::Set(d, T{120}), hn::Set(d, T{240})));
    const auto [hue, saturation] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto difference = hn::ConvertTo(df, hn::Sub(integersOf(part, upper), integersOf(part, lower)));
      const auto fromPlace =
          hn::Mul(hn::Mul(difference, hn::Set(df, 60.0f)), refinedReciprocal(df, floatsOf(part, divisor)));
      const auto angle = hn::Add(fromPlace, floatsOf(part, place));
      const auto positive = hn::IfThenElse(hn::Lt(angle, hn::Zero(df)), hn::Add(angle, hn::Set(df, 360.0f)), angle);
      const auto scaled = hn::Mul(hn::Set(df, Scale::full), floatsOf(part, delta));
      return std::tuple(truncated(di, hn::Mul(positive, hn::Set(df, Scale::fromDegrees))),
                        truncated(di, hn::Mul(scaled, plainReciprocal(df, floatsOf(part, sumDivisor)))));
    });
    const auto isGrey = hn::Eq(delta, hn::Zero(d));
    return std::tuple(hn::IfThenZeroElse(isGrey, hue), lightness, hn::IfThenZeroElse(isGrey, saturation));
  }
};

struct ToIntegers {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V hue, V lightness, V saturation) const {
    using Scale = color::Scale<hn::TFromD<D>>;
    const auto [r, g, b] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto times = [&](V v, float scale) VEMI_INLINED { return hn::Mul(floatsOf(part, v), hn::Set(df, scale)); };
      const auto h = times(hue, Scale::toDegrees);
      const auto l = times(lightness, Scale::toUnit), s = times(saturation, Scale::toUnit);
      const auto scaled = [&](auto v) VEMI_INLINED { return truncated(di, hn::Mul(v, hn::Set(df, Scale::full))); };
      const auto [red, green, blue] = rgbOfHls<TimesSixtieth>(df, h, l, s);
      return std::tuple(scaled(red), scaled(green), scaled(blue));
    });
    const auto isGrey = hn::Eq(saturation, hn::Zero(d));
    const auto choose = [&](V colour) VEMI_INLINED { return hn::IfThenElse(isGrey, lightness, colour); };
    return std::tuple(choose(r), choose(g), choose(b));
  }
};

struct FromFloats {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto [hue, lightness, saturation] = hlsOf(d, r, g, b);
    return std::tuple(hn::Div(hue, hn::Set(d, 360.0f)), lightness, saturation);
  }
};

struct ToFloats {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V hue, V lightness, V saturation) const {
    const auto [r, g, b] = rgbOfHls<OverSixty>(d, hn::Mul(hn::Set(d, 360.0f), hue), lightness, saturation);
    const auto isGrey = hn::Eq(saturation, hn::Zero(d));
    if (HWY_LIKELY(hn::AllFalse(d, isGrey))) return std::tuple(r, g, b);
    const auto choose = [&](V colour) VEMI_INLINED { return hn::IfThenElse(isGrey, lightness, colour); };
    return std::tuple(choose(r), choose(g), choose(b));
  }
};

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToHLS_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<FromIntegers, C3>)
VEMI_DEFINE(vemiRGBToHLS_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<FromIntegers, AC4>)
VEMI_DEFINE(vemiRGBToHLS_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<FromIntegers, C3>)
VEMI_DEFINE(vemiRGBToHLS_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<FromIntegers, AC4>)
VEMI_DEFINE(vemiRGBToHLS_16s_C3R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<FromIntegers>, C3>)
VEMI_DEFINE(vemiRGBToHLS_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<FromIntegers>, AC4>)
VEMI_DEFINE(vemiRGBToHLS_32f_C3R, VEMI_SRC_DST(Vemi32f), convertPixels<FromFloats, C3, C3, storesBesideArithmetic>)
VEMI_DEFINE(vemiRGBToHLS_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertPixels<FromFloats, AC4>)

VEMI_DEFINE(vemiHLSToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<ToIntegers, C3>)
VEMI_DEFINE(vemiHLSToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<ToIntegers, AC4>)
VEMI_DEFINE(vemiHLSToRGB_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<ToIntegers, C3>)
VEMI_DEFINE(vemiHLSToRGB_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<ToIntegers, AC4>)
VEMI_DEFINE(vemiHLSToRGB_16s_C3R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<ToIntegers>, C3>)
VEMI_DEFINE(vemiHLSToRGB_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<ToIntegers>, AC4>)
VEMI_DEFINE(vemiHLSToRGB_32f_C3R, VEMI_SRC_DST(Vemi32f), convertPixels<ToFloats, C3>)
VEMI_DEFINE(vemiHLSToRGB_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertPixels<ToFloats, AC4>)
