// vemiRGBToYCC, vemiYCCToRGB: the photographic model. Bytes in integers, by one arithmetic for the whole groups of
// eight columns and by another for what is left; 16-bit elements and floats in single precision.

#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/matrices.h"
#include "color/shared_chroma.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/regimes.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

// ---- Bytes --------------------------------------------------------------------------------------------------------

/// (v factor) >> 16 of signed lanes.
template <class V>
HWY_INLINE V mulHigh(V v, int factor) {
  return hn::MulHigh(v, hn::Set(hn::DFromV<V>(), static_cast<int16_t>(factor)));
}

/// The same of bytes, times 2^8, in lanes without a sign.
template <class V>
HWY_INLINE V mulHighOfBytes(V bytes, int factor) {
  const hn::DFromV<V> d;
  const hn::RebindToUnsigned<decltype(d)> du;
  const auto products =
      hn::MulHigh(hn::ShiftLeft<8>(hn::BitCast(du, bytes)), hn::Set(du, static_cast<uint16_t>(factor)));
  return hn::BitCast(d, products);
}

struct GroupsToYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V red, V green, V blue) const {
    return bytesByWords(
        d, [](auto... words) VEMI_INLINED { return of(words...); }, red, green, blue);
  }

 private:
  template <class V>
  HWY_INLINE static Vectors<V, 3> of(V r, V g, V b) {
    constexpr auto m = rgbToYcc8u;
    const hn::DFromV<V> d;
    const V redAndGreen = hn::Add(mulHighOfBytes(r, m.weight[0]), mulHighOfBytes(g, m.weight[1]));
    const V light = hn::Add(redAndGreen, mulHighOfBytes(b, m.weight[2]));
    const auto chroma = [&](V channel, int factor, int zero) VEMI_INLINED {
      const V difference = mulHigh(hn::Sub(hn::ShiftLeft<6>(channel), light), factor);
      return hn::ShiftRight<2>(hn::Add(difference, hn::Set(d, static_cast<int16_t>(4 * zero))));
    };
    return {
        {hn::ShiftRight<2>(mulHigh(light, m.luma)), chroma(b, m.c1, yccZeros8u.c1), chroma(r, m.c2, yccZeros8u.c2)}};
  }
};

struct GroupsFromYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V luma, V chroma1, V chroma2) const {
    return bytesByWords(
        d, [](auto... words) VEMI_INLINED { return of(words...); }, luma, chroma1, chroma2);
  }

 private:
  template <class V>
  HWY_INLINE static Vectors<V, 3> of(V luma, V c1, V c2) {
    constexpr auto m = yccToRgb8u;
    const hn::DFromV<V> d;
    const auto difference = [&](V chroma, int zero, int factor) VEMI_INLINED {
      return mulHigh(hn::ShiftLeft<7>(hn::Sub(chroma, hn::Set(d, static_cast<int16_t>(zero)))), factor);
    };
    const V y = mulHighOfBytes(luma, m.luma);
    const V c = difference(c1, yccZeros8u.c1, m.c1), e = difference(c2, yccZeros8u.c2, m.c2);
    const V green = hn::Add(hn::ShiftRight<1>(y), hn::Add(mulHigh(c, -m.green1), mulHigh(e, -m.green2)));
    return {{hn::ShiftRight<4>(hn::Add(y, e)), hn::ShiftRight<3>(green), hn::ShiftRight<4>(hn::Add(y, c))}};
  }
};

template <class V>
HWY_INLINE V times(V v, int factor) {
  return hn::Mul(v, hn::Set(hn::DFromV<V>(), factor));
}

struct RestToYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V red, V green, V blue) const {
    return inParts(d, [&](auto part) VEMI_INLINED {
      constexpr auto m = rgbToYcc8u;
      const hn::Repartition<int32_t, D> di;
      const auto r = integersOf(part, red), g = integersOf(part, green), b = integersOf(part, blue);
      const auto light = hn::Add(hn::Add(times(r, m.weight[0]), times(g, m.weight[1])), times(b, m.weight[2]));
      const auto chroma = [&](auto channel, int factor, int zero) VEMI_INLINED {
        const auto difference = hn::ShiftRight<10>(hn::Sub(hn::ShiftLeft<14>(channel), light));
        return hn::Add(hn::ShiftRight<16>(times(difference, factor)), hn::Set(di, zero));
      };
      return std::tuple(hn::ShiftRight<16>(times(hn::ShiftRight<10>(light), m.luma)), chroma(b, m.c1, yccZeros8u.c1),
                        chroma(r, m.c2, yccZeros8u.c2));
    });
  }
};

struct RestFromYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V luma, V chroma1, V chroma2) const {
    return inParts(d, [&](auto part) VEMI_INLINED {
      constexpr auto m = yccToRgb8uRest;
      const hn::Repartition<int32_t, D> di;
      const auto difference = [&](V chroma, int zero, int factor) VEMI_INLINED {
        return times(hn::Sub(integersOf(part, chroma), hn::Set(di, zero)), factor);
      };
      const auto y = times(integersOf(part, luma), m.luma);
      const auto c = difference(chroma1, yccZeros8u.c1, m.c1), e = difference(chroma2, yccZeros8u.c2, m.c2);
      const auto green1 = times(hn::ShiftRight<8>(c), m.green1), green2 = times(hn::ShiftRight<8>(e), m.green2);
      const auto green = hn::Sub(hn::Sub(hn::ShiftLeft<4>(y), green1), green2);
      return std::tuple(hn::ShiftRight<12>(hn::Add(y, e)), hn::ShiftRight<16>(green),
                        hn::ShiftRight<12>(hn::Add(y, c)));
    });
  }
};

// ---- Single precision -----------------------------------------------------------------------------------------------

template <class V>
HWY_INLINE V times(V v, float factor) {
  return hn::Mul(v, hn::Set(hn::DFromV<V>(), factor));
}

struct ToYcc {
  template <class V>
  HWY_INLINE static auto of(V r, V g, V b, YccZeros<float> zero) {
    constexpr auto m = rgbToYcc;
    const hn::DFromV<V> d;
    const V light = hn::Add(hn::Add(times(r, m.weight[0]), times(g, m.weight[1])), times(b, m.weight[2]));
    return std::tuple(times(light, m.luma), hn::Add(times(hn::Sub(b, light), m.c1), hn::Set(d, zero.c1)),
                      hn::Add(times(hn::Sub(r, light), m.c2), hn::Set(d, zero.c2)));
  }
};

struct FromYcc {
  template <class V>
  HWY_INLINE static auto of(V luma, V c1, V c2, YccZeros<float> zero) {
    constexpr auto m = yccToRgb;
    const hn::DFromV<V> d;
    const V y = times(luma, m.luma), c = times(hn::Sub(c1, hn::Set(d, zero.c1)), m.c1);
    const V e = times(hn::Sub(c2, hn::Set(d, zero.c2)), m.c2);
    return std::tuple(hn::Add(y, e), hn::Sub(hn::Sub(y, times(c, m.green1)), times(e, m.green2)), hn::Add(y, c));
  }
};

/// Of 16 bits. Signed elements are those of 16u less 32768, before their floats are truncated.
template <class Model>
struct OfWords {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    using T = hn::TFromD<D>;
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const hn::RebindToUnsigned<D> du;
    constexpr int lowest = std::numeric_limits<T>::min();
    const auto lifted = [&](V v) VEMI_INLINED {
      return hn::Xor(hn::BitCast(du, v), hn::Set(du, static_cast<uint16_t>(lowest)));
    };
    const auto integer = [&](auto v) VEMI_INLINED {
      if constexpr (lowest != 0) v = hn::Add(v, hn::Set(df, lowest));
      return truncated(di, v);
    };
    return inParts(d, [&](auto part) VEMI_INLINED {
      const auto of = [&](V v) VEMI_INLINED { return floatsOf(part, lifted(v)); };
      const auto [r0, r1, r2] = Model::of(of(v0), of(v1), of(v2), yccZeros16u);
      return std::tuple(integer(r0), integer(r1), integer(r2));
    });
  }
};

struct OfFloatsToYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V r, V g, V b) const {
    return ToYcc::of(r, g, b, yccZeros32f);
  }
};

/// Limited to 0..1; a NaN becomes 0.
struct OfFloatsFromYcc {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V luma, V c1, V c2) const {
    const auto limited = [=](V v) VEMI_INLINED { return lesser(greater(v, hn::Zero(d)), hn::Set(d, 1.0f)); };
    const auto [r, g, b] = FromYcc::of(luma, c1, c2, yccZeros32f);
    return std::tuple(limited(r), limited(g), limited(b));
  }
};

using BytesToYcc = Regimes<8, GroupsToYcc, RestToYcc>;
using BytesFromYcc = Regimes<8, GroupsFromYcc, RestFromYcc>;
using WordsToYcc = OfWords<ToYcc>;
using WordsFromYcc = OfWords<FromYcc>;

template <class Op, class L, class Src, class Dst>
VemiStatus ycc(Src src, Dst dst, VemiSize roiSize) {
  return convertPixels<Op, L, L, Stores::streamed>(src, dst, roiSize);
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToYCC_8u_C3R, VEMI_SRC_DST(Vemi8u), ycc<BytesToYcc, C3>)
VEMI_DEFINE(vemiRGBToYCC_8u_AC4R, VEMI_SRC_DST(Vemi8u), ycc<BytesToYcc, AC4>)
VEMI_DEFINE(vemiRGBToYCC_16u_C3R, VEMI_SRC_DST(Vemi16u), ycc<WordsToYcc, C3>)
VEMI_DEFINE(vemiRGBToYCC_16u_AC4R, VEMI_SRC_DST(Vemi16u), ycc<WordsToYcc, AC4>)
VEMI_DEFINE(vemiRGBToYCC_16s_C3R, VEMI_SRC_DST(Vemi16s), ycc<WordsToYcc, C3>)
VEMI_DEFINE(vemiRGBToYCC_16s_AC4R, VEMI_SRC_DST(Vemi16s), ycc<WordsToYcc, AC4>)
VEMI_DEFINE(vemiRGBToYCC_32f_C3R, VEMI_SRC_DST(Vemi32f), ycc<OfFloatsToYcc, C3>)
VEMI_DEFINE(vemiRGBToYCC_32f_AC4R, VEMI_SRC_DST(Vemi32f), ycc<OfFloatsToYcc, AC4>)

VEMI_DEFINE(vemiYCCToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), ycc<BytesFromYcc, C3>)
VEMI_DEFINE(vemiYCCToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), ycc<BytesFromYcc, AC4>)
VEMI_DEFINE(vemiYCCToRGB_16u_C3R, VEMI_SRC_DST(Vemi16u), ycc<WordsFromYcc, C3>)
VEMI_DEFINE(vemiYCCToRGB_16u_AC4R, VEMI_SRC_DST(Vemi16u), ycc<WordsFromYcc, AC4>)
VEMI_DEFINE(vemiYCCToRGB_16s_C3R, VEMI_SRC_DST(Vemi16s), ycc<WordsFromYcc, C3>)
VEMI_DEFINE(vemiYCCToRGB_16s_AC4R, VEMI_SRC_DST(Vemi16s), ycc<WordsFromYcc, AC4>)
VEMI_DEFINE(vemiYCCToRGB_32f_C3R, VEMI_SRC_DST(Vemi32f), ycc<OfFloatsFromYcc, C3>)
VEMI_DEFINE(vemiYCCToRGB_32f_AC4R, VEMI_SRC_DST(Vemi32f), ycc<OfFloatsFromYcc, AC4>)
