// vemiColorTwist, and vemiColorTwist32f of bytes.
// Checks: null, size, step. Everything runs in the calling thread.

#include <bit>

#include "color/twist.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

// ---- Bytes ----------------------------------------------------------------------------------------------------------

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
    bool all = FloatControl::current().roundsToNearest();
    for (int c = 0; c < 3; ++c) all = all && errorOf(twist[c]) < 128;
    return all;
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    return std::tuple(channel<0>(d, v0, v1, v2), channel<1>(d, v0, v1, v2), channel<2>(d, v0, v1, v2));
  }

  /// With 16 bits behind the point.
  template <int c, class V>
  HWY_INLINE V fixedSum(V x0, V x1, V x2) const {
    const hn::DFromV<V> di;
    return rounded(di, floatSum(hn::RebindToFloat<decltype(di)>(), factor[c], x0, x1, x2));
  }

  /// In the lower halves; in the upper ones, anything.
  template <class V>
  HWY_INLINE static V leastFraction(V a, V b) {
    const hn::DFromV<V> di;
    const hn::Repartition<uint16_t, decltype(di)> dHalves;
    return hn::BitCast(di, hn::Min(hn::BitCast(dHalves, a), hn::BitCast(dHalves, b)));
  }
  template <class V>
  HWY_INLINE bool isBeyondWindow(V least) const {
    const hn::DFromV<V> di;
    return hn::AllTrue(di, hn::Gt(hn::And(least, hn::Set(di, 0xffff)), hn::Set(di, window)));
  }

  /// The integers of sums, in 16 bits by turns.
  template <class V>
  HWY_INLINE static auto halves(V even, V odd) {
    const hn::Repartition<int16_t, hn::DFromV<V>> d;
    return hn::OddEven(hn::BitCast(d, odd), hn::ShiftRightBytes<2>(d, hn::BitCast(d, even)));
  }

 private:
  /// The sums of four lanes that share one of 32 bits.
  template <class D>
  struct Sums {
    using V = hn::Vec<hn::Repartition<int32_t, D>>;
    const NearTwist& twist;
    mutable V least = hn::Set(hn::DFromV<V>(), 0xffff);

    template <int c>
    HWY_INLINE V channel(V x0, V x1, V x2) const {
      const V fixed = twist.fixedSum<c>(x0, x1, x2);
      least = leastFraction(least, fixed);
      return fixed;
    }
    HWY_INLINE static hn::Vec<D> join(D d, V v0, V v1, V v2, V v3) {
      return packedByTurns(d, halves(v0, v1), halves(v2, v3));
    }
  };

  template <int c, class D, class V>
  HWY_INLINE V channel(D d, V v0, V v1, V v2) const {
    const Sums<D> sums = {*this};
    const V near = channelOf<c>(d, sums, v0, v1, v2);
    if (HWY_LIKELY(isBeyondWindow(sums.least))) return near;
    return channelOf<c>(d, exact, v0, v1, v2);
  }

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

// ---- Interleaved bytes without a way through planes -----------------------------------------------------------------
//
// Four pixels are 12 bytes of a 128-bit block, and each of their channels is one shuffle away from lanes of 32 bits.

/// A channel of the pixels that begin with byte `first` of a block.
template <int channel, int first>
alignas(16) inline constexpr uint8_t bytesOfChannel[16] = {
    first + channel,     0x80, 0x80, 0x80, first + channel + 3, 0x80, 0x80, 0x80,
    first + channel + 6, 0x80, 0x80, 0x80, first + channel + 9, 0x80, 0x80, 0x80};

/// f(each channel in lanes of 32 bits) of the pixels from `in` on. Where `isBehind`, what lies ahead of them is read
/// instead of what follows.
template <class F>
HWY_INLINE auto withChannels(const uint8_t* in, bool isBehind, const F& f) {
  const Lanes<uint8_t> d;
  const auto pixels = loadPixels(d, in - (isBehind ? 4 : 0));
  const auto channel = [&](const uint8_t(&places)[16], const uint8_t(&placesBehind)[16]) VEMI_INLINED {
    const auto index = hn::LoadDup128(d, isBehind ? placesBehind : places);
    return hn::BitCast(Lanes<int32_t>(), hn::TableLookupBytesOr0(pixels, index));
  };
  return f(channel(bytesOfChannel<0, 0>, bytesOfChannel<0, 4>), channel(bytesOfChannel<1, 0>, bytesOfChannel<1, 4>),
           channel(bytesOfChannel<2, 0>, bytesOfChannel<2, 4>));
}

/// A type of this file, whose rows of interleaved pixels have a function of their own.
template <class T>
struct ExactByteTwist : ExactFloatTwist<T> {
  using ExactFloatTwist<T>::ExactFloatTwist;
};

/// As many pixels as a vector has bytes: a quarter in each vector.
constexpr ptrdiff_t quarterPixels = laneCount<uint8_t> / 4;
template <class T>
using Quarters = Vectors<hn::Vec<Lanes<T>>, 4>;

/// Sums of a quarter's pixels where no exact sum has to decide.
struct ExactSums {
  static constexpr bool byTurns = false;
  const ExactByteTwist<uint8_t>& twist;

  template <int quarter, class V>
  HWY_INLINE Vectors<V, 3> channels(V x0, V x1, V x2) {
    return {{twist.channel<0>(x0, x1, x2), twist.channel<1>(x0, x1, x2), twist.channel<2>(x0, x1, x2)}};
  }
  template <class V>
  HWY_INLINE static auto halves(V first, V second) {
    return packHalves(hn::Repartition<int16_t, hn::DFromV<V>>(), first, second);
  }
};

/// Sums of a quarter's pixels, and the least of their fractions.
struct NearSums {
  static constexpr bool byTurns = true;
  const NearTwist<uint8_t>& twist;
  Quarters<int32_t> least;

  explicit NearSums(const NearTwist<uint8_t>& of) : twist(of) {}

  template <int quarter, class V>
  HWY_INLINE Vectors<V, 3> channels(V x0, V x1, V x2) {
    const V r = twist.fixedSum<0>(x0, x1, x2), g = twist.fixedSum<1>(x0, x1, x2), b = twist.fixedSum<2>(x0, x1, x2);
    least.v[quarter] = twist.leastFraction(twist.leastFraction(r, g), b);
    return {{r, g, b}};
  }
  template <class V>
  HWY_INLINE static auto halves(V first, V second) {
    return NearTwist<uint8_t>::halves(first, second);
  }
};

/// Where the channels of four pixels are that were packed: red and green, then blue of these and of four others, the
/// two of each half one behind the other, or by turns.
struct PackedPixels {
  alignas(16) uint8_t index[16];

  constexpr PackedPixels(bool byTurns, bool areOthers) : index() {
    for (int i = 0; i < 16; ++i) {
      const int pixel = i / 3, channel = i % 3, half = channel / 2 * 8,
                second = channel == 1 || (channel == 2 && areOthers);
      index[i] = static_cast<uint8_t>(i < 12 ? half + (byTurns ? 2 * pixel + second : pixel + 4 * second) : 0x80);
    }
  }
};

template <bool byTurns, bool areOthers>
inline constexpr PackedPixels packedPixels(byTurns, areOthers);

template <class Sums, bool areOthers, class V, class W>
HWY_INLINE auto pixelsOf(const Vectors<V, 3>& sums, W blues) {
  const Lanes<uint8_t> d;
  const auto packed = packHalves(d, Sums::halves(sums.v[0], sums.v[1]), blues);
  return hn::TableLookupBytesOr0(packed, hn::LoadDup128(d, packedPixels<Sums::byTurns, areOthers>.index));
}

/// Each of the quarters.
template <class Sums>
HWY_INLINE Quarters<uint8_t> twistedPixels(Sums& sums, const uint8_t* in) {
  Quarters<uint8_t> pixels;
  unrolled<2>([&](auto pair) VEMI_INLINED {
    const auto channels = [&](auto quarter) VEMI_INLINED {
      return withChannels(in + 3 * quarterPixels * quarter, quarter == 3,
                          [&](auto... x) VEMI_INLINED { return sums.template channels<quarter>(x...); });
    };
    const auto first = channels(std::integral_constant<int, 2 * pair>());
    const auto second = channels(std::integral_constant<int, 2 * pair + 1>());
    const auto blues = Sums::halves(first.v[2], second.v[2]);
    pixels.v[2 * pair] = pixelsOf<Sums, false>(first, blues);
    pixels.v[2 * pair + 1] = pixelsOf<Sums, true>(second, blues);
  });
  return pixels;
}

HWY_INLINE void storeBlock(const Quarters<uint8_t>& pixels, uint8_t* out) {
  unrolled<4>([&](auto k)
                  VEMI_INLINED { storePixels<k == 3>(Lanes<uint8_t>(), pixels.v[k], out + 3 * quarterPixels * k); });
}

/// Pixels of near sums, but for the quarters where exact sums have to decide. Vectors by themselves stay in registers.
template <class V, class W>
HWY_NOINLINE void storeSettled(const NearTwist<uint8_t>& twist, const uint8_t* in, uint8_t* out, V pixels0, V pixels1,
                               V pixels2, V pixels3, W least0, W least1, W least2, W least3) {
  Quarters<uint8_t> pixels = {{pixels0, pixels1, pixels2, pixels3}};
  unsigned doubtful = 0;
  for (const W least : {least3, least2, least1, least0}) doubtful = 2 * doubtful + !twist.isBeyondWindow(least);
  for (; doubtful != 0; doubtful &= doubtful - 1) {
    const int quarter = std::countr_zero(doubtful);
    pixels.v[quarter] = withChannels(in + 3 * quarterPixels * quarter, quarter > 0, [&](auto... x) VEMI_INLINED {
      const auto& exact = twist.exact;
      const Vectors<W, 3> sums = {{exact.channel<0>(x...), exact.channel<1>(x...), exact.channel<2>(x...)}};
      return pixelsOf<ExactSums, false>(sums, ExactSums::halves(sums.v[2], sums.v[2]));
    });
  }
  storeBlock(pixels, out);
}

template <class Kernel>
HWY_INLINE void twistRow(ptrdiff_t width, const Kernel& kernel, InterleavedRow<uint8_t, C3> dst,
                         InterleavedRow<const uint8_t, C3> src) {
  forBlocks<4 * quarterPixels>(width, kernel, Strand<const uint8_t, 3>{src.first}, Strand<uint8_t, 3>{dst.first});
}

HWY_NOINLINE void mapPixels(ptrdiff_t width, const NearTwist<uint8_t>& operation, InterleavedRow<uint8_t, C3> dst,
                            InterleavedRow<const uint8_t, C3> src) {
  const NearTwist<uint8_t> twist = operation;  // a local, which no store to the destination can change
  const auto kernel = [&](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    NearSums sums(twist);
    const auto pixels = twistedPixels(sums, in);
    const auto& p = pixels.v;
    const auto& least = sums.least.v;
    const auto ofAll =
        twist.leastFraction(twist.leastFraction(least[0], least[1]), twist.leastFraction(least[2], least[3]));
    if (HWY_LIKELY(twist.isBeyondWindow(ofAll))) return storeBlock(pixels, out);
    storeSettled(twist, in, out, p[0], p[1], p[2], p[3], least[0], least[1], least[2], least[3]);
  };
  twistRow(width, kernel, dst, src);
}

HWY_NOINLINE void mapPixels(ptrdiff_t width, const ExactByteTwist<uint8_t>& operation, InterleavedRow<uint8_t, C3> dst,
                            InterleavedRow<const uint8_t, C3> src) {
  const ExactByteTwist<uint8_t> twist = operation;
  const auto kernel = [&](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    ExactSums sums = {twist};
    storeBlock(twistedPixels(sums, in), out);
  };
  twistRow(width, kernel, dst, src);
}

template <class T, class L, class Src, class Dst>
VemiStatus twistIntegers(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  return twistIntegersBy<T, L, ExactByteTwist<T>, NearTwist<T>>(src, dst, roiSize, twist);
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
  constexpr int channels = std::is_same_v<L, C4> ? 4 : 3;
  mapPixelRegion(CallerRows(), roiSize, FloatTwist<channels>(twist), pixelsIn<L>(dst), pixelsIn<L>(src));
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

VEMI_DEFINE(vemiColorTwist_32f_C3R, VEMI_SRC_DST(Vemi32f, TWIST), twistFloats<C3>)
VEMI_DEFINE(vemiColorTwist_32f_AC4R, VEMI_SRC_DST(Vemi32f, TWIST), twistFloats<AC4>)
VEMI_DEFINE(vemiColorTwist_32f_C4R, VEMI_SRC_DST(Vemi32f, TWIST_4), twistFloats<C4>)
VEMI_DEFINE(vemiColorTwist_32f_P3R, VEMI_PLANES_PLANES(Vemi32f, 3, TWIST), twistFloats<Planar>)
VEMI_DEFINE(vemiColorTwist_32f_C3IR, VEMI_SRCDST(Vemi32f, TWIST), twistFloats<C3>)
VEMI_DEFINE(vemiColorTwist_32f_AC4IR, VEMI_SRCDST(Vemi32f, TWIST), twistFloats<AC4>)
VEMI_DEFINE(vemiColorTwist_32f_IP3R, VEMI_PLANES_SRCDST(Vemi32f, 3, TWIST), twistFloats<Planar>)
