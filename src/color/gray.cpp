// vemiRGBToGray, vemiColorToGray: a weighted sum of three channels, by fixed weights or by the user's. Bytes in
// integers with 12 bits behind the point, by one arithmetic for the whole groups of eight columns and by another for
// what is left; 16-bit elements and floats in single precision, of 16s with two ways of leaving the range, in groups of
// four. Checks: null, size, step.

#include "color/float_lanes.h"
#include "color/matrices.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/pixel_region.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// The lower bits of f(part), which are the integers of each part's 32 bits, back at their lanes.
template <class D, class F>
HWY_INLINE hn::Vec<D> lowBitsOfParts(D d, const F& f) {
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const hn::Repartition<uint32_t, D> dWords;
  auto all = hn::Zero(dWords);
  unrolled<32 / bits>([&](auto k) HWY_ATTR {
    const auto low = hn::And(hn::BitCast(dWords, f(Part<k>())), hn::Set(dWords, (uint32_t{1} << bits) - 1));
    all = hn::Or(all, hn::ShiftLeft<k * bits>(low));
  });
  return hn::BitCast(d, all);
}

// ---- Bytes --------------------------------------------------------------------------------------------------------

/// The sum of (channel 2^8 w) >> 16, each product rounded down by itself and the sum saturated, >> 4. A weight is the
/// lower 16 bits of its integer.
struct GroupsOfBytes {
  uint16_t weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const hn::RepartitionToWide<D> dWords;
    const auto sum = [&](auto r8, auto g8, auto b8) HWY_ATTR {
      const auto product = [&](auto v, uint16_t w) HWY_ATTR { return hn::MulHigh(v, hn::Set(dWords, w)); };
      const auto both = hn::SaturatedAdd(product(r8, weight[0]), product(g8, weight[1]));
      const auto all = hn::ShiftRight<4>(hn::SaturatedAdd(both, product(b8, weight[2])));
      return hn::Min(all, hn::Set(dWords, uint16_t{255}));
    };
    const auto even = [&](V v) HWY_ATTR { return hn::ShiftLeft<8>(hn::BitCast(dWords, v)); };
    const auto odd = [&](V v) HWY_ATTR { return hn::And(hn::BitCast(dWords, v), hn::Set(dWords, uint16_t{0xff00})); };
    const auto evens = sum(even(r), even(g), even(b)), odds = sum(odd(r), odd(g), odd(b));
    return hn::BitCast(d, hn::Or(evens, hn::ShiftLeft<8>(odds)));
  }
};

/// The lower byte of the sum >> 12.
struct RestOfBytes {
  int weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const hn::Repartition<int32_t, D> di;
    return lowBitsOfParts(d, [&](auto part) HWY_ATTR {
      const auto product = [&](V v, int w) HWY_ATTR { return hn::Mul(integersOf(part, v), hn::Set(di, w)); };
      return hn::ShiftRight<12>(hn::Add(hn::Add(product(r, weight[0]), product(g, weight[1])), product(b, weight[2])));
    });
  }
};

auto weightedBytes(const int (&weight)[3]) {
  GroupsOfBytes groups;
  RestOfBytes rest;
  for (int c = 0; c < 3; ++c) {
    groups.weight[c] = static_cast<uint16_t>(weight[c]);
    rest.weight[c] = weight[c];
  }
  return regimes<8>(groups, rest);
}

/// c 4096 + 0.5, truncated; what no integer holds is the lowest, as on the processors that the interface comes from.
int fixedPoint(float c) {
  const double value = static_cast<double>(c) * 4096 + 0.5;
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

// ---- Single precision -----------------------------------------------------------------------------------------------

struct Floats {
  float weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const auto product = [&](V v, float w) HWY_ATTR { return hn::Mul(v, hn::Set(d, w)); };
    return hn::Add(hn::Add(product(r, weight[0]), product(g, weight[1])), product(b, weight[2]));
  }
};

/// Of 16 bits: truncated, the lower 16 bits of the integer or, of 16s, the nearest one of the type. Signed elements are
/// those of 16u less 32768.
template <bool saturated>
struct Words {
  Floats floats;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    constexpr int lowest = std::numeric_limits<hn::TFromD<D>>::min();
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const hn::RebindToUnsigned<D> du;
    const auto integers = [&](auto part) HWY_ATTR {
      const auto of = [&](V v) HWY_ATTR {
        return floatsOf(part, hn::Xor(hn::BitCast(du, v), hn::Set(du, static_cast<uint16_t>(lowest))));
      };
      auto grey = floats(df, of(r), of(g), of(b));
      if constexpr (lowest != 0) grey = hn::Add(grey, hn::Set(df, lowest));
      return truncated(di, grey);
    };
    if constexpr (saturated) {
      return joined(d, integers(Part<0>()), integers(Part<1>()));
    } else {
      return lowBitsOfParts(d, integers);
    }
  }
};

template <class T>
auto weighted(const float (&w)[3]) {
  const Floats floats = {{w[0], w[1], w[2]}};
  if constexpr (std::is_same_v<T, Vemi32f>) {
    return floats;
  } else if constexpr (std::is_signed_v<T>) {
    return regimes<4>(Words<true>{floats}, Words<false>{floats});
  } else {
    return Words<false>{floats};
  }
}

// ---- Regions --------------------------------------------------------------------------------------------------------

template <class L, class T, class Op>
VemiStatus mapToGray(Image<const T> src, Image<T> dst, VemiSize roiSize, const Op& op) {
  const auto map = [&] {
    mapPixelRegion(CallerRows(), roiSize, op, pixelsOf<C1>(dst), pixelsOf<L>(src));
    return vemiOk;
  };
  if constexpr (sizeof(T) == 2) return roundingToNearest(map);
  return map();
}

template <class T, class L>
VemiStatus rgbToGray(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if constexpr (sizeof(T) == 1) {
    return mapToGray<L>(src, dst, roiSize, weightedBytes(greyWeights8u));
  } else {
    return mapToGray<L>(src, dst, roiSize, weighted<T>(greyWeights));
  }
}

template <class T, class L>
VemiStatus colorToGray(Image<const T> src, Image<T> dst, VemiSize roiSize, const Vemi32f* coeffs) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, coeffs), checkSize(roiSize), checkStep(src, dst))) return bad;
  const float weights[3] = {coeffs[0], coeffs[1], coeffs[2]};
  if constexpr (sizeof(T) == 1) {
    const int fixed[3] = {fixedPoint(weights[0]), fixedPoint(weights[1]), fixedPoint(weights[2])};
    return mapToGray<L>(src, dst, roiSize, weightedBytes(fixed));
  } else {
    return mapToGray<L>(src, dst, roiSize, weighted<T>(weights));
  }
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define COEFFS ((const Vemi32f coeffs[3]), (coeffs))

VEMI_DEFINE(vemiRGBToGray_8u_C3C1R, VEMI_SRC_DST(Vemi8u), rgbToGray<Vemi8u, C3>)
VEMI_DEFINE(vemiRGBToGray_8u_AC4C1R, VEMI_SRC_DST(Vemi8u), rgbToGray<Vemi8u, AC4>)
VEMI_DEFINE(vemiRGBToGray_16u_C3C1R, VEMI_SRC_DST(Vemi16u), rgbToGray<Vemi16u, C3>)
VEMI_DEFINE(vemiRGBToGray_16u_AC4C1R, VEMI_SRC_DST(Vemi16u), rgbToGray<Vemi16u, AC4>)
VEMI_DEFINE(vemiRGBToGray_16s_C3C1R, VEMI_SRC_DST(Vemi16s), rgbToGray<Vemi16s, C3>)
VEMI_DEFINE(vemiRGBToGray_16s_AC4C1R, VEMI_SRC_DST(Vemi16s), rgbToGray<Vemi16s, AC4>)
VEMI_DEFINE(vemiRGBToGray_32f_C3C1R, VEMI_SRC_DST(Vemi32f), rgbToGray<Vemi32f, C3>)
VEMI_DEFINE(vemiRGBToGray_32f_AC4C1R, VEMI_SRC_DST(Vemi32f), rgbToGray<Vemi32f, AC4>)

VEMI_DEFINE(vemiColorToGray_8u_C3C1R, VEMI_SRC_DST(Vemi8u, COEFFS), colorToGray<Vemi8u, C3>)
VEMI_DEFINE(vemiColorToGray_8u_AC4C1R, VEMI_SRC_DST(Vemi8u, COEFFS), colorToGray<Vemi8u, AC4>)
VEMI_DEFINE(vemiColorToGray_16u_C3C1R, VEMI_SRC_DST(Vemi16u, COEFFS), colorToGray<Vemi16u, C3>)
VEMI_DEFINE(vemiColorToGray_16u_AC4C1R, VEMI_SRC_DST(Vemi16u, COEFFS), colorToGray<Vemi16u, AC4>)
VEMI_DEFINE(vemiColorToGray_16s_C3C1R, VEMI_SRC_DST(Vemi16s, COEFFS), colorToGray<Vemi16s, C3>)
VEMI_DEFINE(vemiColorToGray_16s_AC4C1R, VEMI_SRC_DST(Vemi16s, COEFFS), colorToGray<Vemi16s, AC4>)
VEMI_DEFINE(vemiColorToGray_32f_C3C1R, VEMI_SRC_DST(Vemi32f, COEFFS), colorToGray<Vemi32f, C3>)
VEMI_DEFINE(vemiColorToGray_32f_AC4C1R, VEMI_SRC_DST(Vemi32f, COEFFS), colorToGray<Vemi32f, AC4>)
