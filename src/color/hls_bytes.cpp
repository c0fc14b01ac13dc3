// vemiBGRToHLS, vemiHLSToBGR: hue, lightness and saturation of bytes between many layouts, by the formulas of
// color/hls.h with exact quotients. A fourth channel is copied, but AC4 keeps it.

#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/hls.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// n / 255 as a quotient is rounded, of bytes: the first factor has so few bits that its product is exact.
template <class D, class V>
HWY_INLINE V over255(D d, V n) {
  constexpr float upper = 0x1.01p-8f, lower = 0x1.010102p-24f;
  return hn::Add(hn::Mul(n, hn::Set(d, upper)), hn::Mul(n, hn::Set(d, lower)));
}

/// v + 1e-07 in double precision, cut off: the one float below a whole number from 1 on that comes to it is next to 1.
template <class DI, class V>
HWY_INLINE hn::Vec<DI> cutOff(DI di, V v) {
  const hn::DFromV<V> d;
  const auto isNextToOne = hn::RebindMask(di, hn::Eq(v, hn::Set(d, 0x1.fffffep-1f)));
  return hn::Sub(truncated(di, v), hn::VecFromMask(di, isNextToOne));
}

struct FromBGR {
  template <class D, class V, class... Alpha>
  HWY_INLINE auto operator()(D d, V b, V g, V r, Alpha... alpha) const {
    const auto [hue, lightness, saturation] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto unit = [&](V v) VEMI_INLINED { return over255(df, floatsOf(part, v)); };
      const auto [h, l, s] = hlsOf(df, unit(r), unit(g), unit(b));
      const auto scaled = [&](auto v, float scale) VEMI_INLINED { return cutOff(di, hn::Mul(v, hn::Set(df, scale))); };
      return std::tuple(scaled(h, 255.0f / 360.0f), scaled(l, 255.0f), scaled(s, 255.0f));
    });
    return std::tuple(hue, lightness, saturation, alpha...);
  }
};

struct ToBGR {
  template <class D, class V, class... Alpha>
  HWY_INLINE auto operator()(D d, V hue, V lightness, V saturation, Alpha... alpha) const {
    const auto [b, g, r] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto h = over255(df, hn::Mul(floatsOf(part, hue), hn::Set(df, 360.0f)));
      const auto l = over255(df, floatsOf(part, lightness)), s = over255(df, floatsOf(part, saturation));
      const auto scaled = [&](auto v) VEMI_INLINED { return cutOff(di, hn::Mul(v, hn::Set(df, 255.0f))); };
      const auto [red, green, blue] = rgbOfHls<OverSixty>(df, h, l, s);
      return std::tuple(scaled(blue), scaled(green), scaled(red));
    });
    return std::tuple(b, g, r, alpha...);
  }
};

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiBGRToHLS_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<FromBGR, AC4>)
VEMI_DEFINE(vemiBGRToHLS_8u_AC4P4R, VEMI_SRC_PLANES(Vemi8u, 4), convertPixels<FromBGR, C4>)
VEMI_DEFINE(vemiBGRToHLS_8u_AP4C4R, VEMI_PLANES_DST(Vemi8u, 4), convertPixels<FromBGR, C4>)
VEMI_DEFINE(vemiBGRToHLS_8u_AP4R, VEMI_PLANES_PLANES(Vemi8u, 4), convertPixels<FromBGR, C4>)
VEMI_DEFINE(vemiBGRToHLS_8u_C3P3R, VEMI_SRC_PLANES(Vemi8u, 3), convertPixels<FromBGR, C3>)
VEMI_DEFINE(vemiBGRToHLS_8u_P3C3R, VEMI_PLANES_DST(Vemi8u, 3), convertPixels<FromBGR, C3>)
VEMI_DEFINE(vemiBGRToHLS_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convertPixels<FromBGR, C3>)

VEMI_DEFINE(vemiHLSToBGR_8u_AC4P4R, VEMI_SRC_PLANES(Vemi8u, 4), convertPixels<ToBGR, C4>)
VEMI_DEFINE(vemiHLSToBGR_8u_AP4C4R, VEMI_PLANES_DST(Vemi8u, 4), convertPixels<ToBGR, C4>)
VEMI_DEFINE(vemiHLSToBGR_8u_AP4R, VEMI_PLANES_PLANES(Vemi8u, 4), convertPixels<ToBGR, C4>)
VEMI_DEFINE(vemiHLSToBGR_8u_C3P3R, VEMI_SRC_PLANES(Vemi8u, 3), convertPixels<ToBGR, C3>)
VEMI_DEFINE(vemiHLSToBGR_8u_P3C3R, VEMI_PLANES_DST(Vemi8u, 3), convertPixels<ToBGR, C3>)
VEMI_DEFINE(vemiHLSToBGR_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), convertPixels<ToBGR, C3>)
