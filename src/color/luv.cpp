// vemiRGBToLUV, vemiLUVToRGB: CIE L*u*v* of linear RGB. L is the lightness of Y; with u' = 4 X / D and v' = 9 Y / D,
// D = X + 15 Y + 3 Z, the others are U = 13 L (u' - 0.197839) and V = 13 L (v' - 0.468342), 0 for the white.
//
// Integers have a scale and an offset for each channel, and products with approximate reciprocals for quotients; those
// of 16 bits after a Newton step. Results are cut off.

#include "color/affine.h"
#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/reciprocal.h"
#include "color/xyz.h"
#include "core/byte_table.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/regimes.h"
#include "signal/cube_root.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

constexpr float whiteU = 0.197839f, whiteV = 0.468342f;

template <class D, class V>
HWY_INLINE V times(D d, float factor, V v) {
  return hn::Mul(hn::Set(d, factor), v);
}

template <class D, class V>
HWY_INLINE V plus(D d, V v, float summand) {
  return hn::Add(v, hn::Set(d, summand));
}

/// X + 15 Y + 3 Z.
template <class D, class V>
HWY_INLINE V divisorOf(D d, V x, V y, V z) {
  return hn::Add(hn::Add(x, times(d, 15.0f, y)), times(d, 3.0f, z));
}

/// R, G and B of Y and of t = Y / v', with a = u'.
template <class D, class V>
HWY_INLINE auto rgbOfShares(D d, V y, V t, V a) {
  const V x = hn::Mul(times(d, 2.25f, t), a);
  const V z = hn::Sub(hn::Sub(times(d, 3.0f, t), times(d, 5.0f, y)), hn::Div(x, hn::Set(d, 3.0f)));
  return rgbOfXyz(d, x, y, z);
}

template <class D, class V>
HWY_INLINE V cubeOf(D, V v) {
  return hn::Mul(hn::Mul(v, v), v);
}

// ---- Floats ---------------------------------------------------------------------------------------------------------

struct FromFloats {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto [x, y, z] = xyzOf(d, r, g, b);
    const V curved = hn::Sub(times(d, 116.0f, signal::CubeRoot()(d, y)), hn::Set(d, 16.0f));
    const V lightness = hn::IfThenElse(hn::Gt(y, hn::Set(d, 0.01f)), curved, times(d, 903.3f, y));
    const V divisor = divisorOf(d, x, y, z), factor = times(d, 13.0f, lightness);
    const auto isBlack = hn::Eq(y, hn::Zero(d));
    const auto chroma = [&](V dividend, float white) VEMI_INLINED {
      const V share = hn::IfThenZeroElse(isBlack, hn::Div(dividend, divisor));
      return hn::Mul(factor, hn::Sub(share, hn::Set(d, white)));
    };
    return std::tuple(lightness, chroma(times(d, 4.0f, x), whiteU), chroma(times(d, 9.0f, y), whiteV));
  }
};

struct ToFloats {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V lightness, V u, V v) const {
    const V y = cubeOf(d, hn::Div(plus(d, lightness, 16.0f), hn::Set(d, 116.0f))), factor = times(d, 13.0f, lightness);
    const V t = hn::Div(y, plus(d, hn::Div(v, factor), whiteV));
    const auto [r, g, b] = rgbOfShares(d, y, t, plus(d, hn::Div(u, factor), whiteU));
    const auto isBlack = hn::Lt(lightness, hn::Set(d, 9.033f));
    const auto limited = [&](V colour) VEMI_INLINED { return hn::IfThenZeroElse(isBlack, limitedToOne(d, colour)); };
    return std::tuple(limited(r), limited(g), limited(b));
  }
};

// ---- Bytes: L 255 / 100, (U + 134) 255 / 354 and (V + 140) 255 / 262 -----------------------------------------------

constexpr ByteTable lightnessOfBytes = {
    {0,   9,   18,  26,  33,  39,  44,  48,  52,  56,  60,  63,  66,  69,  72,  74,  77,  79,  81,  84,  86,  88,
     90,  92,  94,  96,  97,  99,  101, 103, 104, 106, 107, 109, 110, 112, 113, 115, 116, 117, 119, 120, 121, 123,
     124, 125, 126, 128, 129, 130, 131, 132, 133, 134, 136, 137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147,
     148, 149, 150, 151, 151, 152, 153, 154, 155, 156, 157, 158, 159, 159, 160, 161, 162, 163, 163, 164, 165, 166,
     167, 167, 168, 169, 170, 171, 171, 172, 173, 174, 174, 175, 176, 176, 177, 178, 179, 179, 180, 181, 181, 182,
     183, 183, 184, 185, 185, 186, 187, 187, 188, 189, 189, 190, 191, 191, 192, 192, 193, 194, 194, 195, 196, 196,
     197, 197, 198, 198, 199, 200, 200, 201, 201, 202, 203, 203, 204, 204, 205, 205, 206, 206, 207, 208, 208, 209,
     209, 210, 210, 211, 211, 212, 212, 213, 213, 214, 215, 215, 216, 216, 217, 217, 218, 218, 219, 219, 220, 220,
     221, 221, 222, 222, 223, 223, 224, 224, 225, 225, 225, 226, 226, 227, 227, 228, 228, 229, 229, 230, 230, 231,
     231, 232, 232, 232, 233, 233, 234, 234, 235, 235, 236, 236, 236, 237, 237, 238, 238, 239, 239, 240, 240, 240,
     241, 241, 242, 242, 242, 243, 243, 244, 244, 245, 245, 245, 246, 246, 247, 247, 247, 248, 248, 249, 249, 249,
     250, 250, 251, 251, 251, 252, 252, 253, 253, 253, 254, 254, 255, 255}};

/// 255 times Y, rounded, in each channel.
constexpr AffineMatrix<1> bytesToY = {{{{6969, 23434, 2365}, 16384, 15}}};

/// A block of four columns counts its third one's V from another offset. Those that are left have none of their own.
enum class Columns { ofGroups, left };

template <Columns columns>
struct FromBytes {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V red, V green, V blue) const {
    const auto y255 = std::get<0>(Affine<bytesToY>()(d, red, green, blue));
    const V lightness = lightnessOfBytes(d, y255);
    const auto [u, v] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto r = floatsOf(part, red), g = floatsOf(part, green), b = floatsOf(part, blue);
      // All times 2^15, which changes no quotient. Of black any divisor will do: its L is 0.
      const auto x = weightedSum(df, 13515, r, 11717, g, 5912, b), y = weightedSum(df, 6969, r, 23434, g, 2365, b);
      const auto z = weightedSum(df, 634, r, 3906, g, 31137, b);
      const auto inverse = plainReciprocal(df, hn::Max(divisorOf(df, x, y, z), hn::Set(df, 1.0f)));
      const auto l = floatsOf(part, lightness);
      const auto chroma = [&](auto dividend, float white, float scale, float zero) VEMI_INLINED {
        const auto difference = hn::Sub(hn::Mul(dividend, inverse), hn::Set(df, white));
        return truncated(di, plus(df, hn::Mul(difference, times(df, scale, l)), zero));
      };
      constexpr float zeroV = columns == Columns::ofGroups && part == 2 ? 136.2596f : 136.7939f;
      return std::tuple(chroma(times(df, 4.0f, x), whiteU, 3.6723163f, 96.90396f),
                        chroma(times(df, 9.0f, y), whiteV, 4.961832f, zeroV));
    });
    return std::tuple(lightness, u, v);
  }
};

/// The scales of a type's channels, and the highest L of black.
template <class T>
struct Scale;
template <>
struct Scale<uint8_t> {
  static constexpr float full = 255, l = 0.39215687f, u = 1.3882353f, v = 1.027451f;
  static constexpr uint8_t black = 22;
};
template <>
struct Scale<uint16_t> {
  static constexpr float full = 65535, l = 0.0015259022f, u = 0.0054016938f, v = 0.0039978637f;
  static constexpr uint16_t black = 5898;
};
template <class T>
constexpr bool isBlack(int lightness) {
  return Scale<T>::l * static_cast<float>(lightness) <= 9;
}
template <class T>
constexpr bool blackEndsAtL9 = isBlack<T>(Scale<T>::black) && !isBlack<T>(Scale<T>::black + 1);
static_assert(blackEndsAtL9<uint8_t> && blackEndsAtL9<uint16_t>);

struct ToIntegers {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V lightness, V u, V v) const {
    using T = hn::TFromD<D>;
    using Scale = color::Scale<T>;
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const auto reciprocal = [&](auto x) VEMI_INLINED {
      if constexpr (sizeof(T) == 1) return plainReciprocal(df, x);
      if constexpr (sizeof(T) == 2) return refinedReciprocal(df, x);
    };
    const V first = hn::Set(d, T{Scale::black + 1}), divided = hn::Max(lightness, first);
    const auto [r, g, b] = inParts(d, [&](auto part) VEMI_INLINED {
      const auto l = times(df, Scale::l, floatsOf(part, divided));
      const auto y = times(df, Scale::full, cubeOf(df, times(df, 0.00862069f, plus(df, l, 16.0f))));
      const auto inverse = reciprocal(times(df, 13.0f, l));
      const auto share = [&](V chroma, float scale, float zero, float white) VEMI_INLINED {
        return plus(df, hn::Mul(plus(df, times(df, scale, floatsOf(part, chroma)), -zero), inverse), white);
      };
      const auto t = hn::Mul(reciprocal(share(v, Scale::v, 140.0f, whiteV)), y);
      const auto [red, green, blue] = rgbOfShares(df, y, t, share(u, Scale::u, 134.0f, whiteU));
      // Beyond 32 bits it is limited too; a NaN is cut off to the lowest integer, and so becomes 0.
      const auto cut = [&](auto x) VEMI_INLINED { return truncated(di, lesser(hn::Set(df, Scale::full), x)); };
      return std::tuple(cut(red), cut(green), cut(blue));
    });
    const auto isColour = hn::Eq(divided, lightness);
    const auto choose = [&](V colour) VEMI_INLINED { return hn::IfThenElseZero(isColour, colour); };
    return std::tuple(choose(r), choose(g), choose(b));
  }
};

// ---- 16 bits: L 65535 / 100, (U + 134) 65535 / 354 and (V + 140) 65535 / 262 ---------------------------------------

/// Cube roots of Y / 65535 by the upper 7 bits of Y: t is that of 0.0001 above the interval's end, and
/// root(Y) = t (1 + e)^(1/3) with e = (Y / 65535 - t^3) / t^3.
struct RootTable {
  struct Entry {
    float root, inverseCube;
  };
  Entry entry[128];

  constexpr RootTable() : entry() {
    for (int i = 0; i < 128; ++i) {
      const double cube = (i + 1) * 512 / 65535.0 + 0.0001;
      double root = 1;
      for (int n = 0; n < 32; ++n) root = (2 * root + cube / (root * root)) / 3;
      entry[i] = {static_cast<float>(root), static_cast<float>(1 / cube)};
    }
  }
};
constexpr RootTable roots;

struct FromWords {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V red, V green, V blue) const {
    const auto [l, u, v] = inParts(d, [&](auto part) VEMI_INLINED {
      const hn::Repartition<float, D> df;
      const hn::Repartition<int32_t, D> di;
      const auto [x, y, z] = xyzOf(df, floatsOf(part, red), floatsOf(part, green), floatsOf(part, blue));
      const auto light = lightnessOf(df, y);
      const auto inverse = refinedReciprocal(df, hn::Max(divisorOf(df, x, y, z), hn::Set(df, 1.0f)));
      const auto factor = times(df, 13.0f, light);
      const auto chroma = [&](auto dividend, float white, float zero, float scale) VEMI_INLINED {
        const auto difference = hn::Sub(hn::Mul(dividend, inverse), hn::Set(df, white));
        return truncated(di, times(df, scale, plus(df, hn::Mul(difference, factor), zero)));
      };
      return std::tuple(truncated(di, times(df, 655.35f, light)),
                        chroma(times(df, 4.0f, x), whiteU, 134.0f, 185.12712f),
                        chroma(times(df, 9.0f, y), whiteV, 140.0f, 250.13359f));
    });
    const auto isBlack = hn::Eq(hn::Or(hn::Or(red, green), blue), hn::Zero(d));
    return std::tuple(l, hn::IfThenZeroElse(isBlack, u), hn::IfThenZeroElse(isBlack, v));
  }

 private:
  static constexpr float unit = 1.5259022e-5f;

  template <class D, class V>
  HWY_INLINE static V lightnessOf(D d, V y) {
    const hn::RebindToSigned<D> di;
    const auto pair = hn::ShiftLeft<1>(hn::ShiftRight<9>(truncated(di, y)));
    const V t = hn::GatherIndex(d, &roots.entry[0].root, pair);
    const V inverseCube = hn::GatherIndex(d, &roots.entry[0].root, hn::Add(pair, hn::Set(di, 1)));
    const V e = hn::Mul(hn::Sub(times(d, unit, y), cubeOf(d, t)), inverseCube);
    constexpr float series[] = {1, 1 / 3.0f, -1 / 9.0f, 0.061728396f, -0.041152265f, 0.030178327f, -0.023472032f};
    V sum = hn::Set(d, series[6]);
    unrolled<6>([&](auto k) VEMI_INLINED { sum = plus(d, hn::Mul(sum, e), series[5 - k]); });
    const V curved = hn::Sub(times(d, 116.0f, hn::Mul(sum, t)), hn::Set(d, 16.0f));
    return hn::IfThenElse(hn::Gt(y, hn::Set(d, 655.35f)), curved, times(d, 903.3f * unit, y));
  }
};

using BytesToLuv = Regimes<8, FromBytes<Columns::ofGroups>, FromBytes<Columns::left>>;

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToLUV_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<BytesToLuv, C3>)
VEMI_DEFINE(vemiRGBToLUV_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<BytesToLuv, AC4>)
VEMI_DEFINE(vemiRGBToLUV_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<FromWords, C3>)
VEMI_DEFINE(vemiRGBToLUV_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<FromWords, AC4>)
VEMI_DEFINE(vemiRGBToLUV_16s_C3R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<FromWords>, C3>)
VEMI_DEFINE(vemiRGBToLUV_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<FromWords>, AC4>)
VEMI_DEFINE(vemiRGBToLUV_32f_C3R, VEMI_SRC_DST(Vemi32f), convertPixels<FromFloats, C3>)
VEMI_DEFINE(vemiRGBToLUV_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertPixels<FromFloats, AC4>)

VEMI_DEFINE(vemiLUVToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convertPixels<ToIntegers, C3>)
VEMI_DEFINE(vemiLUVToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertPixels<ToIntegers, AC4>)
VEMI_DEFINE(vemiLUVToRGB_16u_C3R, VEMI_SRC_DST(Vemi16u), convertPixels<ToIntegers, C3>)
VEMI_DEFINE(vemiLUVToRGB_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertPixels<ToIntegers, AC4>)
VEMI_DEFINE(vemiLUVToRGB_16s_C3R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<ToIntegers>, C3>)
VEMI_DEFINE(vemiLUVToRGB_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertPixels<OfSigned<ToIntegers>, AC4>)
VEMI_DEFINE(vemiLUVToRGB_32f_C3R, VEMI_SRC_DST(Vemi32f), convertPixels<ToFloats, C3>)
VEMI_DEFINE(vemiLUVToRGB_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertPixels<ToFloats, AC4>)
