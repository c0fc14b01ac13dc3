// vemiColorTwist32f of 16 bits.
// Checks: null, size, step. Everything runs in the calling thread.

#include "color/twist.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/processor_shuffles.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// To nearest, where sums of doubles are exact and so may be taken in any order, with elements that are too large by
/// `bias`: these are put together from bits.
template <class T>
struct BiasedTwist {
  /// What a double begins with whose bit 32 is 1. The element stands from there on.
  static constexpr T exponent = 0x4130;
  static constexpr double bias = 0x1p20 - double{std::numeric_limits<T>::min()};

  double factor[3][4];

  explicit BiasedTwist(Twist twist) {
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 4; ++k) factor[c][k] = twist[c][k];
      for (int k = 0; k < 3; ++k) factor[c][3] -= factor[c][k] * bias;
    }
  }

  static bool pays(Twist twist) {
    return FloatControl::current().roundsToNearest() &&
           std::all_of(twist, twist + 3, [](const float(&row)[4]) { return isExact(row); });
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    const auto x0 = biased(d, v0), x1 = biased(d, v1), x2 = biased(d, v2);
    return std::tuple(channel<0>(d, x0, x1, x2), channel<1>(d, x0, x1, x2), channel<2>(d, x0, x1, x2));
  }

  /// Integers in the lower halves of 64 bits.
  template <int c, class V>
  HWY_INLINE V sum(V x0, V x1, V x2) const {
    const hn::DFromV<V> d;
    const double(&f)[4] = factor[c];
    const V first = hn::MulAdd(hn::Set(d, f[2]), x2, hn::Set(d, f[3]));
    const V exact = hn::MulAdd(hn::Set(d, f[0]), x0, hn::MulAdd(hn::Set(d, f[1]), x1, first));
    return hn::Add(exact, hn::Set(d, roundingSummand<double>));
  }

  template <class D, class V>
  HWY_INLINE static V fromLowest(D d, V v) {
    if constexpr (std::is_signed_v<T>) return hn::Xor(v, hn::Set(d, std::numeric_limits<T>::min()));
    if constexpr (std::is_unsigned_v<T>) return v;
  }

 private:
  static bool isExact(const float (&row)[4]) {
    const double size = 0x1p6 * sizeOfSum<uint16_t>(row);
    return size < 0x1p36 && hasNoBitBelow(row, size, 53);
  }

  template <class D, class V>
  HWY_INLINE static auto biased(D d, V v) {
    const hn::Repartition<int32_t, D> dHalves;
    const hn::Repartition<double, D> dSums;
    const V elements = fromLowest(d, v), exponents = hn::Set(d, exponent);
    const auto lower = hn::BitCast(dHalves, hn::InterleaveLower(d, elements, exponents));
    const auto upper = hn::BitCast(dHalves, hn::InterleaveUpper(d, elements, exponents));
    const auto zero = hn::Zero(dHalves);
    return Vectors<hn::Vec<decltype(dSums)>, 4>{{hn::BitCast(dSums, hn::InterleaveLower(dHalves, zero, lower)),
                                                 hn::BitCast(dSums, hn::InterleaveUpper(dHalves, zero, lower)),
                                                 hn::BitCast(dSums, hn::InterleaveLower(dHalves, zero, upper)),
                                                 hn::BitCast(dSums, hn::InterleaveUpper(dHalves, zero, upper))}};
  }

  template <int c, class D, class V>
  HWY_INLINE hn::Vec<D> channel(D d, const V& x0, const V& x1, const V& x2) const {
    const hn::Repartition<int32_t, D> dHalves;
    const auto half = [&](int k) VEMI_INLINED {
      return lowerHalves(dHalves, sum<c>(x0.v[k], x1.v[k], x2.v[k]), sum<c>(x0.v[k + 1], x1.v[k + 1], x2.v[k + 1]));
    };
    return packHalves(d, half(0), half(2));
  }
};

// ---- Interleaved words without a way through planes -----------------------------------------------------------------
//
// Two pixels are 12 bytes of a 128-bit block. Behind two bytes of the exponent, each of their channels is one shuffle
// away from doubles.

template <int channel>
alignas(16) inline constexpr uint8_t doublesOfChannel[16] = {
    0x80, 0x80, 0x80, 0x80, 4 + 2 * channel,  5 + 2 * channel,  0, 1,
    0x80, 0x80, 0x80, 0x80, 10 + 2 * channel, 11 + 2 * channel, 0, 1};

/// Of red, red, green, green and, in every other word, blue.
alignas(16) inline constexpr uint8_t wordsOfPixels[16] = {0, 1, 4, 5, 8, 9, 2, 3, 6, 7, 12, 13, 0x80, 0x80, 0x80, 0x80};

template <class T>
HWY_NOINLINE void mapPixels(ptrdiff_t width, const BiasedTwist<T>& operation, InterleavedRow<T, C3> dst,
                            InterleavedRow<const T, C3> src) {
  constexpr ptrdiff_t pixels = laneCount<double>, vectors = 4;
  const BiasedTwist<T> twist = operation;  // a local, which no store to the destination can change
  const auto kernel = [&](const T* in, T* out) VEMI_INLINED {
    const Lanes<T> d;
    const Lanes<uint8_t> dBytes;
    const Lanes<double> dSums;
    const Lanes<int32_t> dHalves;
    Vectors<hn::Vec<decltype(dBytes)>, vectors> results;
    unrolled<vectors>([&](auto k) VEMI_INLINED {
      constexpr bool isLast = k == vectors - 1;
      const auto* first = reinterpret_cast<const uint8_t*>(in + 3 * pixels * k);
      auto words = loadPixels(dBytes, first - (isLast ? 4 : 0));
      if constexpr (isLast) words = hn::ShiftRightBytes<4>(dBytes, words);
      const auto elements = twist.fromLowest(d, hn::BitCast(d, words));
      const auto withExponent =
          hn::BitCast(dBytes, hn::CombineShiftRightBytes<12>(d, elements, hn::Set(d, twist.exponent)));
      const auto channel = [&](const uint8_t(&places)[16]) VEMI_INLINED {
        return hn::BitCast(dSums, hn::TableLookupBytesOr0(withExponent, hn::LoadDup128(dBytes, places)));
      };
      const auto x0 = channel(doublesOfChannel<0>), x1 = channel(doublesOfChannel<1>),
                 x2 = channel(doublesOfChannel<2>);
      const auto firstTwo = lowerHalves(dHalves, twist.template sum<0>(x0, x1, x2), twist.template sum<1>(x0, x1, x2));
      const auto packed = packHalves(d, firstTwo, hn::BitCast(dHalves, twist.template sum<2>(x0, x1, x2)));
      results.v[k] = hn::TableLookupBytesOr0(hn::BitCast(dBytes, packed), hn::LoadDup128(dBytes, wordsOfPixels));
    });
    unrolled<vectors>([&](auto k) VEMI_INLINED {
      storePixels<k == vectors - 1>(dBytes, results.v[k], reinterpret_cast<uint8_t*>(out + 3 * pixels * k));
    });
  };
  forBlocks<vectors * pixels>(width, kernel, Strand<const T, 3>{src.first}, Strand<T, 3>{dst.first});
}

template <class T, class L, class Src, class Dst>
VemiStatus twistIntegers(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  return twistIntegersBy<T, L, BiasedTwist<T>>(src, dst, roiSize, twist);
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define TWIST ((const Vemi32f twist[3][4]), (twist))

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
