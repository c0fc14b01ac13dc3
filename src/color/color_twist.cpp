// vemiColorTwist, and vemiColorTwist32f of bytes.
// Checks: null, size, step. Everything runs in the calling thread.

#include <cstring>

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

  /// Sums in lanes of 32 bits, and the least of their fractions.
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
      const V fixed = rounded(di, floatSum(df, twist.factor[c], x0, x1, x2));
      least = hn::Min(least, hn::BitCast(dHalves, fixed));
      return fixed;
    }

    template <class V>
    HWY_INLINE static hn::Vec<D> join(D d, V v0, V v1, V v2, V v3) {
      return packedByTurns(d, halves(v0, v1), halves(v2, v3));
    }
    template <class V>
    HWY_INLINE static auto halves(V even, V odd) {
      const hn::Repartition<int16_t, D> dHalf;
      return hn::OddEven(hn::BitCast(dHalf, odd), hn::BitCast(dHalf, hn::ShiftRight<16>(even)));
    }

    HWY_INLINE bool areBeyondWindow() const {
      const auto fraction = hn::And(hn::BitCast(di, least), hn::Set(di, 0xffff));
      return hn::AllTrue(di, hn::Gt(fraction, hn::Set(di, twist.window)));
    }
  };

 private:
  template <int c, class D, class V>
  HWY_INLINE V channel(D d, V v0, V v1, V v2) const {
    const Sums<D> sums(*this);
    const V near = channelOf<c>(d, sums, v0, v1, v2);
    if (HWY_LIKELY(sums.areBeyondWindow())) return near;
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

/// Byte offset + 3 i of each block, in lane i. The last block may have been read from 4 bytes before its pixels.
struct ChannelOfPixels {
  alignas(laneAlignment) uint8_t index[laneCount<uint8_t>];

  constexpr ChannelOfPixels(int channel, int lastBlockOffset) : index() {
    for (int i = 0; i < laneCount<uint8_t>; ++i) {
      const int offset = i + 16 >= laneCount<uint8_t> ? lastBlockOffset : 0;
      index[i] = static_cast<uint8_t>(i % 4 == 0 ? channel + offset + i % 16 / 4 * 3 : 0x80);
    }
  }
};

template <int channel, bool isLast>
inline constexpr ChannelOfPixels channelOfPixels(channel, isLast ? 4 : 0);

/// The first 12 bytes of each block, one behind the other; of the last block, 4 bytes before that and 12, where nothing
/// behind its pixels may be read.
template <bool isLast, class D>
HWY_INLINE hn::Vec<D> loadPixels(D d, const uint8_t* in) {
  if constexpr (hn::MaxLanes(d) == 16) {
    return hn::LoadU(d, in - (isLast ? 4 : 0));
  } else {
    const hn::Half<D> dHalf;
    return hn::Combine(d, loadPixels<isLast>(dHalf, in + 12 * (hn::MaxLanes(d) / 32)), loadPixels<false>(dHalf, in));
  }
}

/// The inverse, from 12 bytes of each block. What lies behind the pixels of a block that is not the last is written
/// too.
template <bool isLast, class D>
HWY_INLINE void storePixels(D d, hn::Vec<D> v, uint8_t* out) {
  if constexpr (hn::MaxLanes(d) > 16) {
    const hn::Half<D> dHalf;
    storePixels<false>(dHalf, hn::LowerHalf(v), out);
    storePixels<isLast>(dHalf, hn::UpperHalf(dHalf, v), out + 12 * (hn::MaxLanes(d) / 32));
  } else if constexpr (isLast) {
    alignas(16) uint8_t pixels[16];
    hn::Store(v, d, pixels);
    std::memcpy(out, pixels, 12);
  } else {
    hn::StoreU(v, d, out);
  }
}

/// Pixels from red and green in the halves of each block, and blue: of the even or of the odd bytes.
template <int odd, class D>
HWY_INLINE hn::Vec<D> pixelsByTurns(D d, hn::Vec<D> firstTwo, hn::Vec<D> third) {
  constexpr uint8_t o = odd, x = 0x80;
  alignas(16) static constexpr uint8_t of01[16] = {o, o + 8, x,      o + 2, o + 10, x, o + 4, o + 12,
                                                   x, o + 6, o + 14, x,     x,      x, x,     x};
  alignas(16) static constexpr uint8_t of2[16] = {x, x, o, x, x, o + 2, x, x, o + 4, x, x, o + 6, x, x, x, x};
  return hn::Or(hn::TableLookupBytesOr0(firstTwo, hn::LoadDup128(d, of01)),
                hn::TableLookupBytesOr0(third, hn::LoadDup128(d, of2)));
}

/// As many pixels as a vector has bytes, by planes.
HWY_NOINLINE void twistDoubtfulBlock(const NearTwist<uint8_t>& twist, const uint8_t* in, uint8_t* out) {
  const Lanes<uint8_t> d;
  const auto results = loadChannels<3>(d, in, [&](auto... v) VEMI_INLINED { return twist(d, v...); });
  std::apply([&](auto... v) VEMI_INLINED { storeChannels(d, out, v...); }, results);
}

/// A type of this file, whose rows of interleaved pixels have a function of their own.
template <class T>
struct ExactByteTwist : ExactFloatTwist<T> {
  using ExactFloatTwist<T>::ExactFloatTwist;
};

/// The sums of a block where no exact sum has to decide.
struct ExactSums {
  const ExactByteTwist<uint8_t>& twist;

  template <int c, class V>
  HWY_INLINE V channel(V x0, V x1, V x2) const {
    return twist.channel<c>(x0, x1, x2);
  }
  template <class V>
  HWY_INLINE static auto halves(V even, V odd) {
    return packedByTurns(hn::Repartition<int16_t, hn::DFromV<V>>(), even, odd);
  }
};

/// Four pixels to a block of 128 bits, in 32-bit lanes. The last four of the pixels are those of `out`'s last 12 bytes.
template <class Sums>
HWY_INLINE Vectors<hn::Vec<Lanes<uint8_t>>, 4> twistedPixels(Sums& sums, const uint8_t* in) {
  const Lanes<uint8_t> d;
  const Lanes<int32_t> di;
  constexpr ptrdiff_t quarter = laneCount<uint8_t> / 4 * 3;
  Vectors<hn::Vec<Lanes<uint8_t>>, 4> pixels;
  unrolled<2>([&](auto pair) VEMI_INLINED {
    constexpr bool isLast = pair == 1;
    const auto even = loadPixels<false>(d, in + 2 * pair * quarter);
    const auto odd = loadPixels<isLast>(d, in + (2 * pair + 1) * quarter);
    const auto lanes = [&](auto v, const auto& channel) VEMI_INLINED {
      return hn::BitCast(di, hn::TableLookupBytesOr0(v, hn::Load(d, channel.index)));
    };
    const auto e0 = lanes(even, channelOfPixels<0, false>), e1 = lanes(even, channelOfPixels<1, false>),
               e2 = lanes(even, channelOfPixels<2, false>), o0 = lanes(odd, channelOfPixels<0, isLast>),
               o1 = lanes(odd, channelOfPixels<1, isLast>), o2 = lanes(odd, channelOfPixels<2, isLast>);
    const auto first = sums.halves(sums.template channel<0>(e0, e1, e2), sums.template channel<0>(o0, o1, o2));
    const auto second = sums.halves(sums.template channel<1>(e0, e1, e2), sums.template channel<1>(o0, o1, o2));
    const auto third = sums.halves(sums.template channel<2>(e0, e1, e2), sums.template channel<2>(o0, o1, o2));
    const auto firstTwo = packHalves(d, first, second), last = packHalves(d, third, third);
    pixels.v[2 * pair] = pixelsByTurns<0>(d, firstTwo, last);
    pixels.v[2 * pair + 1] = pixelsByTurns<1>(d, firstTwo, last);
  });
  return pixels;
}

HWY_INLINE void storeBlock(const Vectors<hn::Vec<Lanes<uint8_t>>, 4>& pixels, uint8_t* out) {
  const Lanes<uint8_t> d;
  unrolled<4>([&](auto k)
                  VEMI_INLINED { storePixels<k == 3>(d, pixels.v[k], out + k * (laneCount<uint8_t> / 4 * 3)); });
}

template <class Kernel>
HWY_INLINE void twistRow(ptrdiff_t width, const Kernel& kernel, InterleavedRow<uint8_t, C3> dst,
                         InterleavedRow<const uint8_t, C3> src) {
  forBlocks<laneCount<uint8_t>>(width, kernel, Strand<const uint8_t, 3>{src.first}, Strand<uint8_t, 3>{dst.first});
}

HWY_NOINLINE void mapPixels(ptrdiff_t width, const NearTwist<uint8_t>& operation, InterleavedRow<uint8_t, C3> dst,
                            InterleavedRow<const uint8_t, C3> src) {
  const NearTwist<uint8_t> twist = operation;  // a local, which no store to the destination can change
  const auto kernel = [&](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    NearTwist<uint8_t>::Sums<Lanes<uint8_t>> sums(twist);
    const auto pixels = twistedPixels(sums, in);
    if (HWY_UNLIKELY(!sums.areBeyondWindow())) return twistDoubtfulBlock(twist, in, out);
    storeBlock(pixels, out);
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
