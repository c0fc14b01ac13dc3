// vemiBGRToLab, vemiLabToBGR: CIE L*a*b* of linear RGB. With y = Y / 255, x = X / 242.366 and z = Z / 277.632:
//
//   L = 116 f(y) - 16, or 903.3 y where y is small,   a = 500 (f(x) - f(y)),   b = 200 (f(y) - f(z)),
//
// where f is the cube root, and a line for small arguments. Back, f is a cube everywhere.

#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/xyz.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "signal/cube_root.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// L, f(x) - f(y) and f(y) - f(z).
template <class D, class V>
HWY_INLINE auto labOf(D d, V b, V g, V r) {
  const V limit = hn::Set(d, 0.008856f);
  const auto share = [&](V sum, float white) VEMI_INLINED { return hn::Div(sum, hn::Set(d, white)); };
  const V x = share(weightedSum(d, 0.180423f, b, 0.35758f, g, 0.412453f, r), 242.366f);
  const V y = share(weightedSum(d, 0.072169f, b, 0.71516f, g, 0.212671f, r), 255.0f);
  const V z = share(weightedSum(d, 0.950227f, b, 0.119193f, g, 0.019334f, r), 277.632f);
  const auto f = [&](V s) VEMI_INLINED {
    const V line = hn::Add(hn::Mul(hn::Set(d, 7.787f), s), hn::Set(d, 0.13793103f));
    return hn::IfThenElse(hn::Gt(s, limit), signal::CubeRoot()(d, s), line);
  };
  const V fx = f(x), fy = f(y), fz = f(z);
  const V curved = hn::Sub(hn::Mul(hn::Set(d, 116.0f), fy), hn::Set(d, 16.0f));
  const V lightness = hn::IfThenElse(hn::Gt(y, limit), curved, hn::Mul(hn::Set(d, 903.3f), y));
  return std::tuple(lightness, hn::Sub(fx, fy), hn::Sub(fy, fz));
}

/// Bytes, rounded: L 255 / 100, a + 128, b + 128. Nearly always roots that are near will do: of all colours, what they
/// give for a channel is less than 2^-12 from what the exact ones give, and both are cut off alike where no whole
/// number is as near.
struct ToBytes {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V blue, V green, V red) const {
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const auto half = hn::Set(df, 0.5f);
    auto farthest = hn::Zero(df);  // from the middle between whole numbers
    const auto results = inParts(d, [&](auto part) VEMI_INLINED {
      const auto cut = [&](auto v) VEMI_INLINED {
        const auto whole = truncated(di, v);
        farthest = hn::Max(farthest, hn::Abs(hn::Sub(hn::Sub(v, hn::ConvertTo(df, whole)), half)));
        return whole;
      };
      const auto [l, a, b] = nearOnes(df, floatsOf(part, blue), floatsOf(part, green), floatsOf(part, red));
      return std::tuple(cut(l), cut(a), cut(b));
    });
    if (HWY_LIKELY(hn::AllTrue(df, hn::Lt(farthest, hn::Set(df, 0.5f - 0x1p-12f))))) return results;
    return inParts(d, [&](auto part) VEMI_INLINED {
      const auto set = [&](float v) VEMI_INLINED { return hn::Set(df, v); };
      const auto [l, xy, yz] = labOf(df, floatsOf(part, blue), floatsOf(part, green), floatsOf(part, red));
      const auto l255 = hn::Div(hn::Mul(l, set(255.0f)), set(100.0f));
      return std::tuple(truncated(di, hn::Add(l255, half)),
                        truncated(di, hn::Add(hn::Mul(xy, set(500.0f)), set(128.5f))),
                        truncated(di, hn::Add(hn::Mul(yz, set(200.0f)), set(128.5f))));
    });
  }

 private:
  template <class D, class V>
  HWY_INLINE static auto nearOnes(D d, V b, V g, V r) {
    const auto set = [&](float v) VEMI_INLINED { return hn::Set(d, v); };
    const V limit = set(0.008856f);
    const auto share = [&](float ofB, float ofG, float ofR, float white) VEMI_INLINED {
      return hn::MulAdd(set(ofB / white), b, hn::MulAdd(set(ofG / white), g, hn::Mul(set(ofR / white), r)));
    };
    const auto f = [&](V s) VEMI_INLINED {
      const V line = hn::MulAdd(set(7.787f), s, set(0.13793103f));
      return hn::IfThenElse(hn::Gt(s, limit), signal::NearCubeRoot()(d, s), line);
    };
    const V y = share(0.072169f, 0.71516f, 0.212671f, 255.0f), fy = f(y);
    const V fx = f(share(0.180423f, 0.35758f, 0.412453f, 242.366f));
    const V fz = f(share(0.950227f, 0.119193f, 0.019334f, 277.632f));
    const V curved = hn::MulAdd(set(116 * 2.55f), fy, set(0.5f - 16 * 2.55f));
    const V lightness = hn::IfThenElse(hn::Gt(y, limit), curved, hn::MulAdd(set(903.3f * 2.55f), y, set(0.5f)));
    return std::tuple(lightness, hn::MulAdd(hn::Sub(fx, fy), set(500.0f), set(128.5f)),
                      hn::MulAdd(hn::Sub(fy, fz), set(200.0f), set(128.5f)));
  }
};

/// Words, cut off: L 65535 / 100, 255 (a + 128), 255 (b + 128).
struct ToWords {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V blue, V green, V red) const {
    const hn::Rebind<uint16_t, D> dWide;
    const auto b = hn::PromoteTo(dWide, blue), g = hn::PromoteTo(dWide, green), r = hn::PromoteTo(dWide, red);
    return inParts(dWide, [&](auto part) VEMI_INLINED {
      const auto set = [](float v) VEMI_INLINED { return hn::Set(Lanes<float>(), v); };
      const Lanes<float> df;
      const Lanes<int32_t> di;
      const auto [l, xy, yz] = labOf(df, floatsOf(part, b), floatsOf(part, g), floatsOf(part, r));
      const auto moved = [&](auto difference, float scale) VEMI_INLINED {
        return truncated(di, hn::Mul(hn::Add(hn::Mul(difference, set(scale)), set(128.0f)), set(255.0f)));
      };
      return std::tuple(truncated(di, hn::Div(hn::Mul(l, set(65535.0f)), set(100.0f))), moved(xy, 500.0f),
                        moved(yz, 200.0f));
    });
  }
};

/// What a and b are away from f(y), in double precision, rounded with it: f(y) + (a - 128) / scale.
template <class T, class V, class VI>
HWY_INLINE V besideY(V fy, VI chroma, double scale) {
  return inHalves(
      hn::DFromV<V>(),
      [&](auto y, auto integers) VEMI_INLINED {
        const hn::DFromV<decltype(y)> dHalf;
        const hn::Rebind<double, decltype(dHalf)> d;
        const auto wide = hn::PromoteTo(d, integers);
        const auto middle = hn::Set(d, 128.0);
        const auto difference = [&]() VEMI_INLINED {
          // No sum of bytes is rounded to another float because they are multiplied with an inverse.
          if constexpr (sizeof(T) == 1) return hn::Mul(hn::Sub(wide, middle), hn::Set(d, 1 / scale));
          if constexpr (sizeof(T) == 2) {
            return hn::Div(hn::Sub(hn::Div(wide, hn::Set(d, 255.0)), middle), hn::Set(d, scale));
          }
        }();
        return hn::DemoteTo(dHalf, hn::Add(hn::PromoteTo(d, y), difference));
      },
      fy, chroma);
}

/// B, G and R as integers of 16 or 32 bits that are saturated to bytes.
struct ToBGR {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V lightness, V a, V b) const {
    using T = hn::TFromD<D>;
    const auto [blue, green, red] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto set = [&](float v) VEMI_INLINED { return hn::Set(df, v); };
      const auto hundredths = hn::Mul(floatsOf(part, lightness), set(100.0f));
      const auto l = hn::Div(hundredths, set(sizeof(T) == 1 ? 255.0f : 65535.0f));
      const auto fy = hn::Div(hn::Add(l, set(16.0f)), set(116.0f));
      const auto fx = besideY<T>(fy, integersOf(part, a), 500), fz = besideY<T>(fy, integersOf(part, b), -200);
      const auto cube = [&](auto f, float white)
                            VEMI_INLINED { return hn::Mul(set(white), hn::Mul(hn::Mul(f, f), f)); };
      const auto [fr, fg, fb] = rgbOfXyz(df, cube(fx, 242.366f), cube(fy, 255.0f), cube(fz, 277.632f));
      return std::tuple(truncated(di, fb), truncated(di, fg), truncated(di, fr));
    });
    if constexpr (sizeof(T) == 1) {
      return std::tuple(blue, green, red);
    } else {
      const auto toByte = [&](V v) VEMI_INLINED {
        const hn::RebindToSigned<D> dSigned;
        return hn::DemoteTo(hn::Rebind<uint8_t, D>(), hn::BitCast(dSigned, hn::Min(v, hn::Set(d, T{255}))));
      };
      return std::tuple(toByte(blue), toByte(green), toByte(red));
    }
  }
};

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiBGRToLab_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<ToBytes, C3>)
VEMI_DEFINE(vemiBGRToLab_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), convertPixels<ToWords, C3>)
VEMI_DEFINE(vemiLabToBGR_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<ToBGR, C3>)
VEMI_DEFINE(vemiLabToBGR_16u8u_C3R, VEMI_CONVERSION(Vemi16u, Vemi8u), convertPixels<ToBGR, C3>)
