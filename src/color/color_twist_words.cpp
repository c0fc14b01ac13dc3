// vemiColorTwist32f of 16 bits.
// Checks: null, size, step. Everything runs in the calling thread.

#include "color/twist.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "core/numbers.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// Of sums of doubles by the caller's rounding, one vector of each channel.
template <class T>
HWY_NOINLINE void twistDoubtfulBlock(const ExactTwist<T>& exact, const T* in, T* out) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  const auto results = exact(d, hn::Load(d, in), hn::Load(d, in + N), hn::Load(d, in + 2 * N));
  hn::Store(std::get<0>(results), d, out);
  hn::Store(std::get<1>(results), d, out + N);
  hn::Store(std::get<2>(results), d, out + 2 * N);
}

/// To nearest, by integers: sums with 14 bits behind the point, of elements from -32768 on and factors of two words,
///   factor 2^14 = high + 2 low 2^-16,
/// where the products with `low` are rounded down to a multiple of 2. With a half more, a sum is then only rounded
/// down. It is made too large, by 1 to `window`: were it less beyond an integer than that, the exact sum would decide.
template <class T>
struct NearWordTwist {
  static constexpr int places = 14;
  static constexpr double one = 1 << places;
  /// What is lost of a sum: by the factors' last place 1.5, by rounding down 6, by the constant's last place 0.5.
  static constexpr int lost = 8, window = lost + 3;
  static constexpr double bias = std::is_signed_v<T> ? 0 : 32768;

  ExactTwist<T> exact;
  int16_t high[3][4], low[3][3];
  int32_t constant[3];

  explicit NearWordTwist(Twist twist) : exact(twist) {
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 3; ++k) {
        const double factor = double{twist[c][k]} * one, whole = std::floor(factor + 0.5);
        high[c][k] = static_cast<int16_t>(whole);
        low[c][k] = static_cast<int16_t>(std::floor((factor - whole) * 0x1p15 + 0.5));
      }
      high[c][3] = 2;
      constant[c] = static_cast<int32_t>(std::floor(constantOf(twist[c]))) + lost + 1;
    }
  }

  static bool pays(Twist twist) {
    bool all = FloatControl::current().roundsToNearest();
    for (int c = 0; c < 3; ++c) {
      const double products = sizeOfSum<int16_t>({twist[c][0], twist[c][1], twist[c][2], 0}) * one;
      all = all && products + std::fabs(constantOf(twist[c])) < 0x1.fp30;
      for (int k = 0; k < 3; ++k) all = all && std::fabs(double{twist[c][k]}) < 1.999;
    }
    return all;
  }

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v0, V v1, V v2) const {
    const hn::RebindToSigned<D> di;
    const auto fromBias = [&](auto v) VEMI_INLINED {
      if constexpr (std::is_unsigned_v<T>) v = hn::Xor(v, hn::Set(d, 0x8000));
      return hn::BitCast(di, v);
    };
    const auto x0 = fromBias(v0), x1 = fromBias(v1), x2 = fromBias(v2);
    Sums<decltype(di)> sums(*this);
    const auto toBias = [&](auto v) VEMI_INLINED {
      if constexpr (std::is_signed_v<T>) return v;
      if constexpr (std::is_unsigned_v<T>) return hn::Xor(hn::BitCast(d, v), hn::Set(d, 0x8000));
    };
    V r0 = toBias(sums.template channel<0>(x0, x1, x2)), r1 = toBias(sums.template channel<1>(x0, x1, x2)),
      r2 = toBias(sums.template channel<2>(x0, x1, x2));
    if (HWY_UNLIKELY(!sums.areBeyondWindow())) {
      constexpr ptrdiff_t N = laneCount<T>;
      alignas(laneAlignment) T in[3 * N], out[3 * N];
      hn::Store(v0, d, in);
      hn::Store(v1, d, in + N);
      hn::Store(v2, d, in + 2 * N);
      twistDoubtfulBlock(exact, in, out);
      r0 = hn::Load(d, out);
      r1 = hn::Load(d, out + N);
      r2 = hn::Load(d, out + 2 * N);
    }
    return std::tuple(r0, r1, r2);
  }

 private:
  /// What is added to the products: the row's constant, the bias of the elements and of the result, a half.
  static double constantOf(const float (&row)[4]) {
    const double factors = double{row[0]} + double{row[1]} + double{row[2]};
    return (double{row[3]} + bias * (factors - 1) + 0.5) * one;
  }

  /// The sums of the channels, and the least of their fractions.
  template <class D>
  struct Sums {
    using DSums = hn::RepartitionToWide<D>;
    const NearWordTwist& twist;
    hn::Vec<D> least;  // in the lower halves of 32 bits

    HWY_INLINE explicit Sums(const NearWordTwist& of) : twist(of), least(hn::Set(D(), INT16_MAX)) {}

    template <int c, class V>
    HWY_INLINE V channel(V x0, V x1, V x2) {
      const D d;
      const int16_t(&upper)[4] = twist.high[c];
      const int16_t(&lower)[3] = twist.low[c];
      const V first = hn::Add(hn::MulHigh(x0, hn::Set(d, lower[0])), hn::MulHigh(x1, hn::Set(d, lower[1])));
      const V rest = hn::Add(first, hn::MulHigh(x2, hn::Set(d, lower[2])));
      const V high01 = weights(upper[0], upper[1]), high2 = weights(upper[2], upper[3]);
      const auto sum = [&](V two, V third) VEMI_INLINED {
        const auto withConstant = hn::Add(pairsOfProducts(two, high01), hn::Set(DSums(), twist.constant[c]));
        return whole(hn::Add(withConstant, pairsOfProducts(third, high2)));
      };
      return packHalves(d, sum(hn::InterleaveLower(d, x0, x1), hn::InterleaveLower(d, x2, rest)),
                        sum(hn::InterleaveUpper(d, x0, x1), hn::InterleaveUpper(d, x2, rest)));
    }

    HWY_INLINE bool areBeyondWindow() const {
      const DSums d;
      const auto fractions = hn::And(hn::BitCast(d, least), hn::Set(d, 0xffff));
      return hn::AllTrue(d, hn::Gt(fractions, hn::Set(d, window)));
    }

   private:
    template <class V>
    HWY_INLINE V whole(V sum) {
      const auto fraction = hn::And(sum, hn::Set(DSums(), (1 << places) - 1));
      least = hn::Min(least, hn::BitCast(D(), fraction));
      return hn::ShiftRight<places>(sum);
    }
    HWY_INLINE static hn::Vec<D> weights(int16_t first, int16_t second) {
      const uint32_t pair = static_cast<uint16_t>(first) | static_cast<uint32_t>(static_cast<uint16_t>(second)) << 16;
      return hn::BitCast(D(), hn::Set(DSums(), static_cast<int32_t>(pair)));
    }
  };
};

template <class T, class L, class Src, class Dst>
VemiStatus twistIntegers(Src src, Dst dst, VemiSize roiSize, Twist twist) {
  return twistIntegersBy<T, L, ExactFloatTwist<T>, NearWordTwist<T>>(src, dst, roiSize, twist);
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
