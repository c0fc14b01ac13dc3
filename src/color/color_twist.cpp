// vemiColorTwist, vemiColorTwist32f: a matrix of the user's on the channels of each pixel.
// Checks: null, size, step. Everything runs in the calling thread.

#include <cfenv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/pixel_region.h"
#include "core/rounding.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// The rows of a twist: the factors of the channels, and what is added, or the factor of a fourth channel.
using Twist = const Vemi32f (*)[4];

// ---- Integers: sums of doubles, by the caller's rounding ------------------------------------------------------------
//
// A product of a float and an element of at most 16 bits is exact as a double: MulAdd rounds as a product and a sum do.

/// The elements in 32-bit lanes, element k of those that share one.
template <int k, class D, class V>
HWY_INLINE auto sharingLane(D, V v) {
  using T = hn::TFromD<D>;
  using Lane = std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>;
  constexpr int bits = 8 * sizeof(T), above = 32 - bits * (k + 1);
  const hn::Repartition<Lane, D> dLanes;
  const auto lanes = hn::ShiftRight<32 - bits>(hn::ShiftLeft<above>(hn::BitCast(dLanes, v)));
  return hn::BitCast(hn::RebindToSigned<decltype(dLanes)>(), lanes);
}

/// The vector that lane[k] are the elements k of: its inverse.
template <class D, class V, int count>
HWY_INLINE hn::Vec<D> joined(D d, const Vectors<V, count>& lane) {
  const hn::DFromV<V> dLanes;
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const V element = hn::Set(dLanes, (1 << bits) - 1);
  V all = hn::ShiftLeft<32 - bits>(lane.v[count - 1]);
  unrolled<count - 1>([&](auto k)
                          HWY_ATTR { all = hn::Or(all, hn::ShiftLeft<bits * k>(hn::And(lane.v[k], element))); });
  return hn::BitCast(d, all);
}

/// op(vectors of 32-bit lanes, channel by channel) of each of the elements that share a lane.
template <class D, class V, class Op>
HWY_INLINE auto inLanesOf32(D d, const Op& op, V v0, V v1, V v2) {
  constexpr int count = 4 / sizeof(hn::TFromD<D>);
  using Lane = decltype(sharingLane<0>(d, v0));
  Vectors<Lane, count> channel[3];
  unrolled<count>([&](auto k) HWY_ATTR {
    const auto results = op(sharingLane<k>(d, v0), sharingLane<k>(d, v1), sharingLane<k>(d, v2));
    unrolled<3>([&](auto c) HWY_ATTR { channel[c].v[k] = std::get<c>(results); });
  });
  return std::tuple(joined(d, channel[0]), joined(d, channel[1]), joined(d, channel[2]));
}

/// A sum that is no number counts as zero. Whole by the rounding that is set; beyond 2^52, beyond any element, about
/// so.
template <class V>
HWY_INLINE V wholeByMode(V sum) {
  const hn::DFromV<V> d;
  const V number = hn::IfThenElseZero(hn::Eq(sum, sum), sum);
  const V large = hn::CopySign(hn::Set(d, 0x1p52), number);
  return hn::Sub(hn::Add(number, large), large);
}

/// Of any twist, by the rounding that is set.
template <class T>
struct ExactTwist {
  double factor[3][4];

  explicit ExactTwist(Twist twist) {
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 4; ++k) factor[c][k] = twist[c][k];
    }
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    return inLanesOf32(
        d, [&](auto x0, auto x1, auto x2) HWY_ATTR { return ofLanes(x0, x1, x2); }, v0, v1, v2);
  }

 private:
  template <class V>
  HWY_INLINE auto ofLanes(V x0, V x1, V x2) const {
    const hn::DFromV<V> di;
    const hn::Half<decltype(di)> dHalf;
    const auto channel = [&](const double(&f)[4]) HWY_ATTR {
      const auto lower = sum(f, hn::LowerHalf(x0), hn::LowerHalf(x1), hn::LowerHalf(x2));
      const auto upper = sum(f, hn::UpperHalf(dHalf, x0), hn::UpperHalf(dHalf, x1), hn::UpperHalf(dHalf, x2));
      // From 0 on all modes add to a large number as they round; of less than that nothing is left.
      if constexpr (std::is_unsigned_v<T>) return nearestOf<T>(di, lower, upper);
      if constexpr (std::is_signed_v<T>) return nearestOf<T>(di, wholeByMode(lower), wholeByMode(upper));
    };
    return std::tuple(channel(factor[0]), channel(factor[1]), channel(factor[2]));
  }

  template <class V>
  HWY_INLINE static auto sum(const double (&f)[4], V x0, V x1, V x2) {
    const hn::Rebind<double, hn::DFromV<V>> d;
    const auto first = hn::Mul(hn::Set(d, f[0]), hn::PromoteTo(d, x0));
    const auto two = hn::MulAdd(hn::Set(d, f[1]), hn::PromoteTo(d, x1), first);
    return hn::Add(hn::MulAdd(hn::Set(d, f[2]), hn::PromoteTo(d, x2), two), hn::Set(d, f[3]));
  }
};

/// Of bytes, to nearest. Sums of floats bound the exact one on either side: nearly always both bounds round to the same
/// element.
template <class T>
struct BoundedTwist {
  ExactTwist<T> exact;
  float factor[3][3], least[3], spread[3];

  explicit BoundedTwist(Twist twist) : exact(twist) {
    for (int c = 0; c < 3; ++c) {
      const double error = errorOf(twist[c]);
      for (int k = 0; k < 3; ++k) factor[c][k] = twist[c][k];
      least[c] = static_cast<float>(twist[c][3] - error);
      spread[c] = static_cast<float>(2 * error);
    }
  }

  /// False where the bounds would be too far apart, and where the twist has no bounds.
  static bool pays(Twist twist) {
    bool all = true;
    for (int c = 0; c < 3; ++c) all = all && errorOf(twist[c]) < 0x1p-10;
    return all;
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    const hn::Repartition<int32_t, D> di;
    auto different = hn::Zero(di);
    const auto results = inLanesOf32(
        d,
        [&](auto x0, auto x1, auto x2) HWY_ATTR {
          const hn::Repartition<float, D> df;
          const auto s0 = hn::ConvertTo(df, x0), s1 = hn::ConvertTo(df, x1), s2 = hn::ConvertTo(df, x2);
          const auto channel = [&](int c) HWY_ATTR {
            auto sum = hn::MulAdd(hn::Set(df, factor[c][0]), s0, hn::Set(df, least[c]));
            sum = hn::MulAdd(hn::Set(df, factor[c][1]), s1, sum);
            sum = hn::MulAdd(hn::Set(df, factor[c][2]), s2, sum);
            const auto lower = rounded(di, sum), upper = rounded(di, hn::Add(sum, hn::Set(df, spread[c])));
            different = hn::Or(different, hn::Xor(lower, upper));
            return hn::Min(hn::Max(lower, hn::Set(di, std::numeric_limits<T>::min())),
                           hn::Set(di, std::numeric_limits<T>::max()));
          };
          return std::tuple(channel(0), channel(1), channel(2));
        },
        v0, v1, v2);
    if (HWY_LIKELY(hn::AllTrue(di, hn::Eq(different, hn::Zero(di))))) return results;
    return exact(d, v0, v1, v2);
  }

 private:
  /// How far a bound lies from the sum, so that no rounding on the way takes it to the other side: each is wrong by at
  /// most 2^-24 of what it rounds. Nothing is rounded where all terms are multiples of a power of two that 24 bits
  /// reach down to.
  static double errorOf(const float (&row)[4]) {
    constexpr double largest = sizeof(T) == 1 && std::is_signed_v<T> ? 128 : 255;
    double size = std::fabs(double{row[3]}), rounded = size;
    for (int k = 0; k < 3; ++k) {
      const double product = largest * std::fabs(double{row[k]});
      size += product;
      rounded += product + size;
    }
    if (!(size < 0x1p20)) return std::numeric_limits<double>::infinity();
    const double unit = std::ldexp(1, std::ilogb(size + 1) - 22);
    bool isExact = true;
    for (const float each : row) isExact = isExact && std::fmod(each, unit) == 0;
    return isExact ? 0 : 0x1.04p-24 * (rounded + size + 1);
  }
};

/// f(), a status, under the caller's rounding. No exception ends the program, and none that f has met is left behind.
template <class F>
VemiStatus leavingNoException(const F& f) {
  std::fenv_t callers;
  std::feholdexcept(&callers);
  const VemiStatus status = detail::runApart(f);
  std::fesetenv(&callers);
  return status;
}

/// Three planes, where other members name the layout of their pixels.
struct Planar {
  static constexpr int channels = 3;
};

template <class L, class T>
auto pixelImage(Image<T> image) {
  return pixelsOf<L>(image);
}
template <class L, class T>
auto pixelImage(Planes<T, 3> planes) {
  return pixelsOf(planes);
}

template <class T, class L, class Src, class Dst>
VemiStatus twistIntegers(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, twist), checkSize(roiSize), checkStep(src, dst))) return bad;
  return leavingNoException([&] {
    const auto run = [&](const auto& op) {
      mapPixelRegion(CallerRows(), roiSize, op, pixelImage<L>(dst), pixelImage<L>(src));
      return vemiOk;
    };
    if constexpr (sizeof(T) == 1) {
      if (FloatControl::current().roundsToNearest() && BoundedTwist<T>::pays(twist)) return run(BoundedTwist<T>(twist));
    }
    return run(ExactTwist<T>(twist));
  });
}

// ---- Floats ---------------------------------------------------------------------------------------------------------

/// Plain sums from left to right, of the channels and what follows their last: one, or a fourth channel.
template <int channels>
struct FloatTwist {
  float factor[channels][4];

  explicit FloatTwist(Twist twist) {
    for (int c = 0; c < channels; ++c) {
      for (int k = 0; k < 4; ++k) factor[c][k] = twist[c][k];
    }
  }

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    static_assert(sizeof...(V) == channels);
    return sums(d, std::make_integer_sequence<int, channels>(), v...);
  }

 private:
  template <class D, int... c, class... V>
  HWY_INLINE auto sums(D d, std::integer_sequence<int, c...>, V... v) const {
    return std::tuple(sum(d, factor[c], v...)...);
  }
  template <class D, class V>
  HWY_INLINE static V sum(D d, const float (&f)[4], V v0, V v1, V v2) {
    const V two = hn::Add(hn::Mul(hn::Set(d, f[0]), v0), hn::Mul(hn::Set(d, f[1]), v1));
    return hn::Add(hn::Add(two, hn::Mul(hn::Set(d, f[2]), v2)), hn::Set(d, f[3]));
  }
  template <class D, class V>
  HWY_INLINE static V sum(D d, const float (&f)[4], V v0, V v1, V v2, V v3) {
    const V two = hn::Add(hn::Mul(hn::Set(d, f[0]), v0), hn::Mul(hn::Set(d, f[1]), v1));
    return hn::Add(hn::Add(two, hn::Mul(hn::Set(d, f[2]), v2)), hn::Mul(hn::Set(d, f[3]), v3));
  }
};

template <class L, class Src, class Dst>
VemiStatus twistFloats(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, twist), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapPixelRegion(CallerRows(), roiSize, FloatTwist<L::channels>(twist), pixelImage<L>(dst), pixelImage<L>(src));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define TWIST ((const Vemi32f twist[3][4]), (twist))
#define TWIST_4 ((const Vemi32f twist[4][4]), (twist))

VEMI_DEFINE(vemiColorTwist32f_8u_C3R, VEMI_SRC_DST(Vemi8u, TWIST), twistIntegers<Vemi8u, C3>)
VEMI_DEFINE(vemiColorTwist32f_8u_AC4R, VEMI_SRC_DST(Vemi8u, TWIST), twistIntegers<Vemi8u, AC4>)
VEMI_DEFINE(vemiColorTwist32f_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3, TWIST), twistIntegers<Vemi8u, Planar>)
VEMI_DEFINE(vemiColorTwist32f_8u_C3IR, VEMI_SRCDST(Vemi8u, TWIST), twistIntegers<Vemi8u, C3>)
VEMI_DEFINE(vemiColorTwist32f_8u_AC4IR, VEMI_SRCDST(Vemi8u, TWIST), twistIntegers<Vemi8u, AC4>)
VEMI_DEFINE(vemiColorTwist32f_8u_IP3R, VEMI_PLANES_SRCDST(Vemi8u, 3, TWIST), twistIntegers<Vemi8u, Planar>)

VEMI_DEFINE(vemiColorTwist32f_8s_C3R, VEMI_SRC_DST(Vemi8s, TWIST), twistIntegers<Vemi8s, C3>)
VEMI_DEFINE(vemiColorTwist32f_8s_AC4R, VEMI_SRC_DST(Vemi8s, TWIST), twistIntegers<Vemi8s, AC4>)
VEMI_DEFINE(vemiColorTwist32f_8s_P3R, VEMI_PLANES_PLANES(Vemi8s, 3, TWIST), twistIntegers<Vemi8s, Planar>)
VEMI_DEFINE(vemiColorTwist32f_8s_C3IR, VEMI_SRCDST(Vemi8s, TWIST), twistIntegers<Vemi8s, C3>)
VEMI_DEFINE(vemiColorTwist32f_8s_AC4IR, VEMI_SRCDST(Vemi8s, TWIST), twistIntegers<Vemi8s, AC4>)
VEMI_DEFINE(vemiColorTwist32f_8s_IP3R, VEMI_PLANES_SRCDST(Vemi8s, 3, TWIST), twistIntegers<Vemi8s, Planar>)

VEMI_DEFINE(vemiColorTwist32f_16u_C3R, VEMI_SRC_DST(Vemi16u, TWIST), twistIntegers<Vemi16u, C3>)
VEMI_DEFINE(vemiColorTwist32f_16u_AC4R, VEMI_SRC_DST(Vemi16u, TWIST), twistIntegers<Vemi16u, AC4>)
VEMI_DEFINE(vemiColorTwist32f_16u_P3R, VEMI_PLANES_PLANES(Vemi16u, 3, TWIST), twistIntegers<Vemi16u, Planar>)
VEMI_DEFINE(vemiColorTwist32f_16u_C3IR, VEMI_SRCDST(Vemi16u, TWIST), twistIntegers<Vemi16u, C3>)
VEMI_DEFINE(vemiColorTwist32f_16u_AC4IR, VEMI_SRCDST(Vemi16u, TWIST), twistIntegers<Vemi16u, AC4>)
VEMI_DEFINE(vemiColorTwist32f_16u_IP3R, VEMI_PLANES_SRCDST(Vemi16u, 3, TWIST), twistIntegers<Vemi16u, Planar>)

VEMI_DEFINE(vemiColorTwist32f_16s_C3R, VEMI_SRC_DST(Vemi16s, TWIST), twistIntegers<Vemi16s, C3>)
VEMI_DEFINE(vemiColorTwist32f_16s_AC4R, VEMI_SRC_DST(Vemi16s, TWIST), twistIntegers<Vemi16s, AC4>)
VEMI_DEFINE(vemiColorTwist32f_16s_P3R, VEMI_PLANES_PLANES(Vemi16s, 3, TWIST), twistIntegers<Vemi16s, Planar>)
VEMI_DEFINE(vemiColorTwist32f_16s_C3IR, VEMI_SRCDST(Vemi16s, TWIST), twistIntegers<Vemi16s, C3>)
VEMI_DEFINE(vemiColorTwist32f_16s_AC4IR, VEMI_SRCDST(Vemi16s, TWIST), twistIntegers<Vemi16s, AC4>)
VEMI_DEFINE(vemiColorTwist32f_16s_IP3R, VEMI_PLANES_SRCDST(Vemi16s, 3, TWIST), twistIntegers<Vemi16s, Planar>)

VEMI_DEFINE(vemiColorTwist_32f_C3R, VEMI_SRC_DST(Vemi32f, TWIST), twistFloats<C3>)
VEMI_DEFINE(vemiColorTwist_32f_AC4R, VEMI_SRC_DST(Vemi32f, TWIST), twistFloats<AC4>)
VEMI_DEFINE(vemiColorTwist_32f_C4R, VEMI_SRC_DST(Vemi32f, TWIST_4), twistFloats<C4>)
VEMI_DEFINE(vemiColorTwist_32f_P3R, VEMI_PLANES_PLANES(Vemi32f, 3, TWIST), twistFloats<Planar>)
VEMI_DEFINE(vemiColorTwist_32f_C3IR, VEMI_SRCDST(Vemi32f, TWIST), twistFloats<C3>)
VEMI_DEFINE(vemiColorTwist_32f_AC4IR, VEMI_SRCDST(Vemi32f, TWIST), twistFloats<AC4>)
VEMI_DEFINE(vemiColorTwist_32f_IP3R, VEMI_PLANES_SRCDST(Vemi32f, 3, TWIST), twistFloats<Planar>)
