// vemiDiv, vemiDivC of real elements. vemiDiv divides its second source by its first; a divisor of zero warns, at every
// scale. Integer quotients are formed and rounded in single precision, an arithmetic that vemi/arith.h defines:
//
//     v = x 2^-scaleFactor / d       8u: v + 0.5       16s: v + 32768.5, and 32768 less in the end
//
// rounded to nearest in each step, the sum truncated, and an odd result lowered where the sum was exact. Of the
// constant forms, C1 multiplies by a reciprocal and refuses a zero; integer C3 divides, and reports a zero when all is
// written.
// Checks: null, size, step; the constant of C1 and 32f forms.

#include <type_traits>

#include "arith/plain.h"
#include "arith/quotient.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/lane_width.h"
#include "core/map_region.h"
#include "core/rounding.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// The n-th four bytes of each 128-bit block, each as the lowest of a 32-bit lane.
struct QuarterOrder {
  alignas(16) uint8_t index[4][16];

  constexpr QuarterOrder() : index() {
    constexpr uint8_t zero = 0x80;
    for (int i = 0; i < 64; ++i) index[i / 16][i % 16] = i % 4 == 0 ? static_cast<uint8_t>(i / 4) : zero;
  }
};

constexpr QuarterOrder quarterOrder;

/// f on the lanes of elements as floats, and the 32-bit integers that it gives back with saturation. 16s elements
/// come 2^16 times as large, which saves their sign extension and cancels in a quotient.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> inFloats(D d, const F& f, V... v) {
  const hn::Repartition<int32_t, D> d32;
  const hn::Repartition<int16_t, D> d16;
  const hn::RebindToFloat<decltype(d32)> df;
  using Pair = Widened<hn::Vec<decltype(d32)>>;
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    const auto quarter = [&](int n) HWY_ATTR {
      const auto index = hn::LoadDup128(d, quarterOrder.index[n]);
      return f(df, hn::ConvertTo(df, hn::BitCast(d32, hn::TableLookupBytesOr0(v, index)))...);
    };
    return packHalves(d, narrow(d16, Pair{quarter(0), quarter(1)}), narrow(d16, Pair{quarter(2), quarter(3)}));
  } else {
    const auto zero = hn::Zero(d);
    return narrow(d16, Pair{f(df, hn::ConvertTo(df, hn::BitCast(d32, hn::InterleaveLower(d, zero, v)))...),
                            f(df, hn::ConvertTo(df, hn::BitCast(d32, hn::InterleaveUpper(d, zero, v)))...)});
  }
}

template <class T>
constexpr float timesTooLarge = sizeof(T) == 1 ? 1 : 65536;

/// Whether the rounded numbers may lie more than 2^22 from 0. wholeBits counts from 0 on, and wholeFrom lifts the
/// others there; what may lie beyond is clamped first.
enum class Reach { within2To22, any };

/// The rounding of the head of this file, but for the upper limit, which the packs set. To truncate a sum, and to lower
/// an odd result where the sum is whole, is to round what lies half below the sum to nearest.
template <class T, Reach reach, class DF, class V>
HWY_INLINE auto roundedBySum(DF df, V v) {
  constexpr float offset = std::is_unsigned_v<T> ? 0 : 32768;
  if constexpr (std::is_signed_v<T> && reach == Reach::any) v = hn::Max(v, hn::Set(df, -offset));
  const V sum = hn::Add(v, hn::Set(df, offset + 0.5f));
  return wholeBits(df, hn::Add(sum, hn::Set(df, wholeFrom - 0.5f)), offset);
}

/// x / divisor. A quotient by zero is infinite and becomes the limit on its side, but 0 / 0 is 0.
template <bool isScaled, Reach reach>
struct Quotient {
  float scale;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x, V divisor) const {
    const auto quotient = [&](auto df, auto xf, auto divisorF) HWY_ATTR {
      const auto dividend = isScaled ? hn::Mul(xf, hn::Set(df, scale)) : xf;
      return roundedBySum<hn::TFromD<D>, reach>(df, hn::Div(dividend, divisorF));
    };
    return hn::IfThenZeroElse(hn::Eq(x, hn::Zero(d)), inFloats(d, quotient, x, divisor));
  }
};

/// A dividend lies within 2^15. So does its quotient by an integer, and a scale of at most 2^7 keeps it within 2^22.
template <class F>
auto dispatchQuotient(int scaleFactor, const F& f) {
  const float scale = quotientScale<float>(scaleFactor);
  if (scaleFactor == 0) return f(Quotient<false, Reach::within2To22>{scale});
  if (scaleFactor >= -7) return f(Quotient<true, Reach::within2To22>{scale});
  return f(Quotient<true, Reach::any>{scale});
}

template <class T>
struct ScaledByFactor {
  float factor;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const auto product = [&](auto df, auto xf) HWY_ATTR {
      return roundedBySum<T, Reach::any>(df, hn::Mul(xf, hn::Set(df, factor / timesTooLarge<T>)));
    };
    return inFloats(d, product, x);
  }
};

struct PlainQuotient {
  template <class D, class V>
  HWY_INLINE V operator()(D, V x, V divisor) const {
    return hn::Div(x, divisor);
  }
};

/// Quotients of bytes, four vectors of floats for one of them, take longer than memory.
template <class T>
inline constexpr Stores storesOfQuotients = sizeof(T) == 1 ? Stores::cached : Stores::streamed;

template <class L, class T, class IndexedOp>
VemiStatus divideRegion(VemiSize roiSize, const IndexedOp& op, Image<T> dst, Image<const T> x, Image<const T> divisor) {
  const bool byZero =
      mapRegionTested<L, storesOfQuotients<T>>(roiSize, op, inWorkedChannels<L>(DividesByZero()), dst, x, divisor);
  return byZero ? vemiWarnDivByZero : vemiOk;
}

template <class T, class L>
VemiStatus quotientScaled(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  return roundingToNearest([&] {
    return dispatchQuotient(scaleFactor, [&](const auto& quotient) {
      return divideRegion<L>(roiSize, eachVector(quotient), dst, src2, src1);
    });
  });
}

template <class L>
VemiStatus quotientFloat(Image<const Vemi32f> src1, Image<const Vemi32f> src2, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  return divideRegion<L>(roiSize, eachVector(PlainQuotient()), dst, src2, src1);
}

/// 2^-scaleFactor / value: for 8u by 1 / value to six decimals, half up; for 16s by a division.
float factorOf(Vemi8u value, int scaleFactor) {
  const int millionths = (2000000 + value) / (2 * value);
  return quotientScale<float>(scaleFactor) * static_cast<float>(millionths / 1e6);
}

float factorOf(Vemi16s value, int scaleFactor) { return quotientScale<float>(scaleFactor) / value; }

template <class T>
VemiStatus quotientOfOne(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (*value == 0) return vemiErrDivByZero;
  return roundingToNearest([&] {
    const ScaledByFactor<T> op = {factorOf(*value, scaleFactor)};
    mapRegion<C1, storesOfQuotients<T>>(CallerRows(), roiSize, eachVector(op), dst, src);
    return vemiOk;
  });
}

template <class T>
VemiStatus quotientOfEach(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const bool anyZero = value[0] == 0 || value[1] == 0 || value[2] == 0;
  const Quotient<true, Reach::any> quotient = {quotientScale<float>(scaleFactor)};
  return roundingToNearest([&] {
    mapRegion<C3>(CallerRows(), roiSize, withConstants<C3>(quotient, value), dst, src);
    return anyZero ? vemiErrDivByZero : vemiOk;
  });
}

/// Multiplies by reciprocals, so that a result may differ from a quotient in the last place. A NaN counts as zero.
template <class L>
VemiStatus quotientFloatC(Image<const Vemi32f> src, const Vemi32f* value, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  Vemi32f reciprocal[L::channels];
  for (int c = 0; c < L::channels; ++c) {
    if (!(value[c] < 0.0f || value[c] > 0.0f)) return vemiErrDivByZero;
    reciprocal[c] = 1.0f / value[c];
  }
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(PlainProduct(), reciprocal), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiDiv_8u_C1RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), quotientScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiDiv_8u_C3RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), quotientScaled<Vemi8u, C3>)
VEMI_DEFINE(vemiDiv_8u_C1IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), quotientScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiDiv_8u_C3IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), quotientScaled<Vemi8u, C3>)

VEMI_DEFINE(vemiDiv_16s_C1RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), quotientScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiDiv_16s_C3RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), quotientScaled<Vemi16s, C3>)
VEMI_DEFINE(vemiDiv_16s_C1IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), quotientScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiDiv_16s_C3IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), quotientScaled<Vemi16s, C3>)

VEMI_DEFINE(vemiDiv_32f_C1R, VEMI_2SRC_DST(Vemi32f), quotientFloat<C1>)
VEMI_DEFINE(vemiDiv_32f_C3R, VEMI_2SRC_DST(Vemi32f), quotientFloat<C3>)
VEMI_DEFINE(vemiDiv_32f_C4R, VEMI_2SRC_DST(Vemi32f), quotientFloat<C4>)
VEMI_DEFINE(vemiDiv_32f_AC4R, VEMI_2SRC_DST(Vemi32f), quotientFloat<AC4>)
VEMI_DEFINE(vemiDiv_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), quotientFloat<C1>)
VEMI_DEFINE(vemiDiv_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), quotientFloat<C3>)
VEMI_DEFINE(vemiDiv_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), quotientFloat<C4>)
VEMI_DEFINE(vemiDiv_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), quotientFloat<AC4>)

VEMI_DEFINE(vemiDivC_8u_C1RSfs, VEMI_SRC_VALUE_DST(Vemi8u, VEMI_SFS), quotientOfOne<Vemi8u>)
VEMI_DEFINE(vemiDivC_8u_C3RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), quotientOfEach<Vemi8u>)
VEMI_DEFINE(vemiDivC_8u_C1IRSfs, VEMI_VALUE_SRCDST(Vemi8u, VEMI_SFS), quotientOfOne<Vemi8u>)
VEMI_DEFINE(vemiDivC_8u_C3IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), quotientOfEach<Vemi8u>)

VEMI_DEFINE(vemiDivC_16s_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16s, VEMI_SFS), quotientOfOne<Vemi16s>)
VEMI_DEFINE(vemiDivC_16s_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), quotientOfEach<Vemi16s>)
VEMI_DEFINE(vemiDivC_16s_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16s, VEMI_SFS), quotientOfOne<Vemi16s>)
VEMI_DEFINE(vemiDivC_16s_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), quotientOfEach<Vemi16s>)

VEMI_DEFINE(vemiDivC_32f_C1R, VEMI_SRC_VALUE_DST(Vemi32f), quotientFloatC<C1>)
VEMI_DEFINE(vemiDivC_32f_C3R, VEMI_SRC_VALUES_DST(Vemi32f), quotientFloatC<C3>)
VEMI_DEFINE(vemiDivC_32f_C1IR, VEMI_VALUE_SRCDST(Vemi32f), quotientFloatC<C1>)
VEMI_DEFINE(vemiDivC_32f_C3IR, VEMI_VALUES_SRCDST(Vemi32f), quotientFloatC<C3>)
