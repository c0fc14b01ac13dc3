// vemiRGBToXYZ, vemiXYZToRGB: the matrix of CIE XYZ and its inverse. Bytes in integers, by one arithmetic for the whole
// groups of eight columns and by another for what is left; 16-bit elements and floats in single precision.

#include "color/xyz.h"

#include "color/affine.h"
#include "color/conversion.h"
#include "color/float_lanes.h"
#include "color/matrices.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/regimes.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// (a weight[0] + b weight[1]) >> shift, and (c weight[2]) >> shift, added.
template <const auto& matrix>
struct SumOfTwoParts {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    return bytesByWords(
        d, [](auto... words) VEMI_INLINED { return rows(words...); }, v0, v1, v2);
  }

 private:
  template <class V>
  HWY_INLINE static Vectors<V, 3> rows(V a, V b, V c) {
    const hn::DFromV<V> d;
    const V lower = hn::InterleaveLower(d, a, b), upper = hn::InterleaveUpper(d, a, b);
    return {{row<0>(lower, upper, c), row<1>(lower, upper, c), row<2>(lower, upper, c)}};
  }

  template <int i, class V>
  HWY_INLINE static V row(V lower, V upper, V c) {
    constexpr AffineRow r = matrix.row[i];
    const hn::DFromV<V> d;
    const hn::RepartitionToWide<decltype(d)> dWide;
    const auto first = hn::Set(d, static_cast<int16_t>(r.weight[0]));
    const auto second = hn::Set(d, static_cast<int16_t>(r.weight[1]));
    const V weights = hn::OddEven(second, first);
    const auto shifted = [&](V pairs) VEMI_INLINED { return hn::ShiftRight<r.shift>(pairsOfProducts(pairs, weights)); };
    static_assert(std::is_same_v<decltype(shifted(lower)), hn::Vec<decltype(dWide)>>);
    const V last = hn::MulHigh(hn::ShiftLeft<16 - r.shift>(c), hn::Set(d, static_cast<int16_t>(r.weight[2])));
    return hn::Add(packHalves(d, shifted(lower), shifted(upper)), last);
  }
};

struct ToXyz {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    return xyzOf(d, r, g, b);
  }
};

/// Of the three, Z alone is limited.
struct ToXyz32f {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b) const {
    const auto [x, y, z] = xyzOf(d, r, g, b);
    return std::tuple(x, y, limitedToOne(d, z));
  }
};

struct ToRGB {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V x, V y, V z) const {
    return rgbOfXyz(d, x, y, z);
  }
};

struct ToRGB32f {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V x, V y, V z) const {
    const auto [r, g, b] = rgbOfXyz(d, x, y, z);
    return std::tuple(limitedToOne(d, r), limitedToOne(d, g), limitedToOne(d, b));
  }
};

using BytesToXyz = Regimes<8, SumOfTwoParts<rgbToXyz8u>, Affine<rgbToXyz8uRest>>;
using BytesToRGB = Regimes<8, SumOfTwoParts<xyzToRgb8u>, Affine<xyzToRgb8uRest>>;

/// Floats take so little arithmetic that stores past the caches count.
template <class Op, class L>
VemiStatus convertStreamed(auto src, auto dst, VemiSize roiSize) {
  return convertPixels<Op, L, L, Stores::streamed>(src, dst, roiSize);
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToXYZ_8u_C3R, VEMI_SRC_DST(Vemi8u), convertStreamed<BytesToXyz, C3>)
VEMI_DEFINE(vemiRGBToXYZ_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertStreamed<BytesToXyz, AC4>)
VEMI_DEFINE(vemiRGBToXYZ_16u_C3R, VEMI_SRC_DST(Vemi16u), convertStreamed<CutOff<ToXyz>, C3>)
VEMI_DEFINE(vemiRGBToXYZ_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertStreamed<CutOff<ToXyz>, AC4>)
VEMI_DEFINE(vemiRGBToXYZ_16s_C3R, VEMI_SRC_DST(Vemi16s), convertStreamed<OfSigned<CutOff<ToXyz>>, C3>)
VEMI_DEFINE(vemiRGBToXYZ_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertStreamed<OfSigned<CutOff<ToXyz>>, AC4>)
VEMI_DEFINE(vemiRGBToXYZ_32f_C3R, VEMI_SRC_DST(Vemi32f), convertStreamed<ToXyz32f, C3>)
VEMI_DEFINE(vemiRGBToXYZ_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertStreamed<ToXyz32f, AC4>)

VEMI_DEFINE(vemiXYZToRGB_8u_C3R, VEMI_SRC_DST(Vemi8u), convertStreamed<BytesToRGB, C3>)
VEMI_DEFINE(vemiXYZToRGB_8u_AC4R, VEMI_SRC_DST(Vemi8u), convertStreamed<BytesToRGB, AC4>)
VEMI_DEFINE(vemiXYZToRGB_16u_C3R, VEMI_SRC_DST(Vemi16u), convertStreamed<CutOff<ToRGB>, C3>)
VEMI_DEFINE(vemiXYZToRGB_16u_AC4R, VEMI_SRC_DST(Vemi16u), convertStreamed<CutOff<ToRGB>, AC4>)
VEMI_DEFINE(vemiXYZToRGB_16s_C3R, VEMI_SRC_DST(Vemi16s), convertStreamed<OfSigned<CutOff<ToRGB>>, C3>)
VEMI_DEFINE(vemiXYZToRGB_16s_AC4R, VEMI_SRC_DST(Vemi16s), convertStreamed<OfSigned<CutOff<ToRGB>>, AC4>)
VEMI_DEFINE(vemiXYZToRGB_32f_C3R, VEMI_SRC_DST(Vemi32f), convertStreamed<ToRGB32f, C3>)
VEMI_DEFINE(vemiXYZToRGB_32f_AC4R, VEMI_SRC_DST(Vemi32f), convertStreamed<ToRGB32f, AC4>)
