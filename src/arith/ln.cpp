// vemiLn: the natural logarithm, divided by 2^scaleFactor for integers. Checks: null, size, step. A row with zeros or
// numbers below zero gives a warning; each element type has its own rule for it.

#include <algorithm>

#include "core/any_element.h"
#include "core/byte_table.h"
#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "core/numbers.h"
#include "core/rounding.h"
#include "signal/float_parts.h"
#include "signal/ln.h"
#include "signal/polynomial.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// The logarithm of integers from 1 on in double-precision lanes, with 40 bits of precision.
///
/// With x = 2^e m and m from the root of 1/2 to the root of 2, ln x = e ln 2 + 2 artanh((m - 1) / (m + 1)).
struct LnOfInteger {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    constexpr double artanh[] = {1.0, 1.0 / 3, 1.0 / 5, 1.0 / 7, 1.0 / 9, 1.0 / 11, 1.0 / 13};
    const auto [e, m] = signal::splitAtRoot(d, x);
    const V one = hn::Set(d, 1.0);
    const V t = hn::Div(hn::Sub(m, one), hn::Add(m, one));
    const V series = hn::Mul(hn::Add(t, t), signal::polynomial(d, hn::Mul(t, t), artanh));
    return hn::Add(hn::Mul(e, hn::Set(d, 0x1.62e42fefa39efp-1)), series);
  }
};

/// The logarithm of 16-bit lanes divided by 2^scaleFactor, to nearest. There are no ties: logarithms of integers above
/// 1 are irrational. Zero and what is below it give the least value.
struct ScaledLn {
  double scale;

  explicit ScaledLn(int scaleFactor) {
    const int s = std::clamp(scaleFactor, -16, 5);  // beyond, all logarithms but that of 1 are above the range, or zero
    scale = powerOfTwo<double>(-s);
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::RebindToUnsigned<D> du;
    const auto wideLogarithm = [&](auto dw, auto x) HWY_ATTR {
      const hn::RebindToSigned<decltype(dw)> di;
      const hn::Half<decltype(di)> dHalf;
      const hn::Rebind<double, decltype(dHalf)> d64;
      const auto rounded = [&](auto half) HWY_ATTR {
        const auto ln = hn::Mul(LnOfInteger()(d64, hn::PromoteTo(d64, half)), hn::Set(d64, scale));
        return truncatedDoubles(dHalf, hn::Min(hn::Add(ln, hn::Set(d64, 0.5)), hn::Set(d64, 32767.0)));
      };
      const auto integers = hn::BitCast(di, x);
      return hn::BitCast(
          dw, hn::Combine(di, rounded(hn::UpperHalf(dHalf, integers)), rounded(hn::LowerHalf(dHalf, integers))));
    };
    const V positive = hn::Max(v, hn::Set(d, 1));
    const V result = hn::BitCast(d, inWideLanes(du, wideLogarithm, hn::BitCast(du, positive)));
    return hn::IfThenElse(hn::Eq(v, positive), result, hn::Set(d, std::numeric_limits<Vemi16s>::min()));
  }
};

/// One entry is not the nearest value: ln 18 * 4 = 11.56 gives 11, as vemi/arith.h has it.
ByteTable lnTable(int scaleFactor) {
  uint8_t result[256];
  fillBytes<Vemi16s>(ScaledLn(scaleFactor), result);
  if (scaleFactor == -2) result[18] = 11;
  return result;
}

VemiStatus lnStatus8u(const Vemi8u* row, ptrdiff_t len) {
  return anyElement(len, IsZero(), row) ? vemiWarnLnZero : vemiOk;
}

struct IsNotPositive {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Lt(v, hn::Set(d, 1));
  }
};

/// The first element that has no logarithm decides.
VemiStatus lnStatus16s(const Vemi16s* row, ptrdiff_t len) {
  if (!anyElement(len, IsNotPositive(), row)) return vemiOk;
  Vemi16s first;
  do first = elementOf(row++);
  while (first > 0);
  return first == 0 ? vemiWarnLnZero : vemiWarnLnNegative;
}

struct IsNotAboveZero {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V v) const {
    return hn::Le(v, hn::Zero(d));
  }
};

/// The status of a row of logarithms is that of its last chunk; chunks are 256 elements long and counted from the row's
/// start. In a chunk a number below zero goes before a zero.
VemiStatus lnStatus32f(const Vemi32f* row, ptrdiff_t len) {
  const ptrdiff_t first = (len - 1) / 256 * 256;
  const auto lastChunkHas = [=](auto test) { return anyElement(len - first, test, row + first); };
  if (!lastChunkHas(IsNotAboveZero())) return vemiOk;
  return lastChunkHas(IsNegative()) ? vemiWarnLnNegative : vemiWarnLnZero;
}

template <class L>
VemiStatus ln8u(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return mapRegionWatched<L>(roiSize, eachVector(lnTable(scaleFactor)), lnStatus8u, dst, src);
}

template <class L>
VemiStatus ln16s(Image<const Vemi16s> src, Image<Vemi16s> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return mapRegionWatched<L>(roiSize, eachVector(ScaledLn(scaleFactor)), lnStatus16s, dst, src);
}

template <class L>
VemiStatus ln32f(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return mapRegionWatched<L, Stores::cached>(roiSize, eachVector(signal::Ln()), lnStatus32f, dst, src);
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiLn_8u_C1RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), ln8u<C1>)
VEMI_DEFINE(vemiLn_8u_C3RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), ln8u<C3>)
VEMI_DEFINE(vemiLn_8u_C1IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), ln8u<C1>)
VEMI_DEFINE(vemiLn_8u_C3IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), ln8u<C3>)

VEMI_DEFINE(vemiLn_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ln16s<C1>)
VEMI_DEFINE(vemiLn_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ln16s<C3>)
VEMI_DEFINE(vemiLn_16s_C1IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), ln16s<C1>)
VEMI_DEFINE(vemiLn_16s_C3IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), ln16s<C3>)

VEMI_DEFINE(vemiLn_32f_C1R, VEMI_SRC_DST(Vemi32f), ln32f<C1>)
VEMI_DEFINE(vemiLn_32f_C3R, VEMI_SRC_DST(Vemi32f), ln32f<C3>)
VEMI_DEFINE(vemiLn_32f_C1IR, VEMI_SRCDST(Vemi32f), ln32f<C1>)
VEMI_DEFINE(vemiLn_32f_C3IR, VEMI_SRCDST(Vemi32f), ln32f<C3>)
