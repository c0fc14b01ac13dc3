// vemiColorTwist, vemiColorTwist32f: a matrix of the user's on the channels of each pixel.
// Checks: null, size, step. Everything runs in the calling thread.

#include <algorithm>
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

/// Where the bytes of 32-bit lanes are: byte k of each, the others zero.
template <int k>
alignas(16) inline constexpr uint8_t byteOfLanes[16] = {k,     0x80, 0x80, 0x80, k + 4,  0x80, 0x80, 0x80,
                                                        k + 8, 0x80, 0x80, 0x80, k + 12, 0x80, 0x80, 0x80};

/// The elements of a vector that share its lanes of 32 bits: element k of each, as an integer.
template <int k, class T, class V>
HWY_INLINE auto sharingLane(V v) {
  constexpr int bits = 8 * sizeof(T), above = 32 - bits * (k + 1);
  const hn::Repartition<uint8_t, hn::DFromV<V>> dBytes;
  const hn::Repartition<int32_t, hn::DFromV<V>> d;
  const auto lanes = hn::BitCast(d, v);
  if constexpr (std::is_same_v<T, uint8_t>) {  // shuffles, where shifts would wait for arithmetic
    return hn::BitCast(d, hn::TableLookupBytesOr0(hn::BitCast(dBytes, v), hn::LoadDup128(dBytes, byteOfLanes<k>)));
  } else if constexpr (std::is_signed_v<T>) {
    return hn::ShiftRight<32 - bits>(hn::ShiftLeft<above>(lanes));
  } else {
    return hn::And(hn::ShiftRight<bits * k>(lanes), hn::Set(d, (1 << bits) - 1));
  }
}

/// Two vectors as one of half their width, saturated, whose 16-bit lanes come from either by turns.
template <class D, class V>
HWY_INLINE hn::Vec<D> packedByTurns(D d, V v0, V v1) {
  alignas(16) static constexpr uint8_t byTurns[16] = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};
  const hn::Repartition<uint8_t, D> dBytes;
  return hn::TableLookupBytes(packHalves(d, v0, v1), hn::BitCast(d, hn::LoadDup128(dBytes, byTurns)));
}

/// Channel c of op(three channels of 32-bit lanes), of all elements.
template <int c, class D, class Op, class V>
HWY_INLINE hn::Vec<D> channelOf(D d, const Op& op, V v0, V v1, V v2) {
  using T = hn::TFromD<D>;
  return [&]<int... k>(std::integer_sequence<int, k...>) HWY_ATTR {
    return op.join(d, op.template channel<c>(sharingLane<k, T>(v0), sharingLane<k, T>(v1), sharingLane<k, T>(v2))...);
  }
  (std::make_integer_sequence<int, 4 / sizeof(T)>());
}
template <class D, class Op, class V>
HWY_INLINE auto channelsOf(D d, const Op& op, V v0, V v1, V v2) {
  return std::tuple(channelOf<0>(d, op, v0, v1, v2), channelOf<1>(d, op, v0, v1, v2), channelOf<2>(d, op, v0, v1, v2));
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

/// Of any twist, by the rounding that is set. A product of a float and an element of at most 16 bits is exact as a
/// double: MulAdd rounds as a product and a sum do.
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
    return channelsOf(d, *this, v0, v1, v2);
  }

  template <int c, class V>
  HWY_INLINE V channel(V x0, V x1, V x2) const {
    const hn::DFromV<V> di;
    const hn::Half<decltype(di)> dHalf;
    const auto lower = sum<c>(hn::LowerHalf(x0), hn::LowerHalf(x1), hn::LowerHalf(x2));
    const auto upper = sum<c>(hn::UpperHalf(dHalf, x0), hn::UpperHalf(dHalf, x1), hn::UpperHalf(dHalf, x2));
    // From 0 on all modes add to a large number as they round; of less than that nothing is left.
    if constexpr (std::is_unsigned_v<T>) return nearestOf<T>(di, lower, upper);
    if constexpr (std::is_signed_v<T>) return nearestOf<T>(di, wholeByMode(lower), wholeByMode(upper));
  }

  /// The elements of each lane at their places.
  template <class D, class V>
  HWY_INLINE static hn::Vec<D> join(D d, V v0, V v1) {
    return packedByTurns(d, v0, v1);
  }
  template <class D, class V>
  HWY_INLINE static hn::Vec<D> join(D d, V v0, V v1, V v2, V v3) {
    const hn::Repartition<int16_t, D> dHalf;
    return packedByTurns(d, packedByTurns(dHalf, v0, v1), packedByTurns(dHalf, v2, v3));
  }

 private:
  template <int c, class V>
  HWY_INLINE auto sum(V x0, V x1, V x2) const {
    const hn::Rebind<double, hn::DFromV<V>> d;
    const double(&f)[4] = factor[c];
    const auto first = hn::Mul(hn::Set(d, f[0]), hn::PromoteTo(d, x0));
    const auto two = hn::MulAdd(hn::Set(d, f[1]), hn::PromoteTo(d, x1), first);
    return hn::Add(hn::MulAdd(hn::Set(d, f[2]), hn::PromoteTo(d, x2), two), hn::Set(d, f[3]));
  }
};

/// Of bytes, to nearest, where sums of floats are near enough to the exact ones: 16 bits behind the point, of a sum and
/// a half, which is then only rounded down. It is made too large, by at most `window`: were it less beyond an integer
/// than that, the exact sum would decide.
template <class T>
struct NearTwist {
  ExactTwist<T> exact;
  float factor[3][4];
  uint16_t window;

  explicit NearTwist(Twist twist) : exact(twist), window(0) {
    double error = 0;
    for (int c = 0; c < 3; ++c) error = std::max(error, errorOf(twist[c]));
    window = static_cast<uint16_t>(2 * error + 2);
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 3; ++k) factor[c][k] = twist[c][k] * 0x1p16f;
      factor[c][3] = static_cast<float>((double{twist[c][3]} + 0.5) * 0x1p16 + error + 1);
    }
  }

  /// False also where the twist has no bounds.
  static bool pays(Twist twist) {
    bool all = true;
    for (int c = 0; c < 3; ++c) all = all && errorOf(twist[c]) < 128;
    return all;
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    Sums<D> sums(*this);
    const auto results = channelsOf(d, sums, v0, v1, v2);
    if (HWY_LIKELY(sums.areBeyondWindow())) return results;
    return exact(d, v0, v1, v2);
  }

 private:
  template <class D>
  struct Sums {
    const NearTwist& twist;
    hn::Repartition<float, D> df;
    hn::Repartition<int32_t, D> di;
    hn::Repartition<uint16_t, D> dHalves;
    mutable hn::Vec<hn::Repartition<uint16_t, D>> least;  // of the lower halves; in the upper ones, anything

    HWY_INLINE explicit Sums(const NearTwist& of) : twist(of), least(hn::Set(dHalves, 0xffff)) {}

    template <int c, class V>
    HWY_INLINE V channel(V x0, V x1, V x2) const {
      const float(&f)[4] = twist.factor[c];
      auto sum = hn::MulAdd(hn::Set(df, f[0]), hn::ConvertTo(df, x0), hn::Set(df, f[3]));
      sum = hn::MulAdd(hn::Set(df, f[1]), hn::ConvertTo(df, x1), sum);
      sum = hn::MulAdd(hn::Set(df, f[2]), hn::ConvertTo(df, x2), sum);
      const V fixed = rounded(di, sum);
      least = hn::Min(least, hn::BitCast(dHalves, fixed));
      return fixed;
    }

    template <class V>
    HWY_INLINE static hn::Vec<D> join(D d, V v0, V v1, V v2, V v3) {
      return packedByTurns(d, upperHalves(v0, v1), upperHalves(v2, v3));
    }
    template <class V>
    HWY_INLINE static auto upperHalves(V even, V odd) {
      const hn::Repartition<int16_t, D> dHalf;
      return hn::OddEven(hn::BitCast(dHalf, odd), hn::BitCast(dHalf, hn::ShiftRight<16>(even)));
    }

    HWY_INLINE bool areBeyondWindow() const {
      const auto fraction = hn::And(hn::BitCast(di, least), hn::Set(di, 0xffff));
      return hn::AllTrue(di, hn::Gt(fraction, hn::Set(di, twist.window)));
    }
  };

  /// How far a sum may be off, in units of 2^-16: each operation is wrong by at most 2^-24 of what it rounds.
  static double errorOf(const float (&row)[4]) {
    constexpr double largest = std::is_signed_v<T> ? 128 : 255;
    double size = std::fabs(double{row[3]}) + 1, rounded = size;
    for (int k = 0; k < 3; ++k) {
      const double product = largest * std::fabs(double{row[k]});
      size += product;
      rounded += product + size;
    }
    return size < 0x1p14 ? 0x1.02p-8 * rounded : std::numeric_limits<double>::infinity();
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
      if (FloatControl::current().roundsToNearest() && NearTwist<T>::pays(twist)) return run(NearTwist<T>(twist));
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
