// vemiFilter, vemiFilterRow and vemiFilterColumn of bytes, by integer taps and by floats.

#include <cstdlib>

#include "filter/linear.h"

namespace vemi::filter {
namespace {

/// Weights are 16s, twice in a word.
struct OfNarrow {
  using Row = Vemi16u;
  using Weight = int32_t;
  static constexpr int vectors = 4;

  static auto factor(Weight weight) { return hn::BitCast(Lanes<Vemi16u>(), hn::Set(Lanes<int32_t>(), weight)); }
  template <class V>
  HWY_INLINE static V withProduct(V sum, V v, V factor) {
    return hn::Add(sum, hn::Mul(v, factor));
  }
};

/// An element is a pair of two, the first in the lower half; so is a weight.
struct OfPairs {
  using Row = int32_t;
  using Weight = int32_t;
  static constexpr int vectors = 8;

  static auto factor(Weight weight) { return hn::Set(Lanes<int32_t>(), weight); }
  template <class V>
  HWY_INLINE static V withProduct(V sum, V v, V factor) {
    const Lanes<int16_t> d;
    return hn::Add(sum, pairsOfProducts(hn::BitCast(d, v), hn::BitCast(d, factor)));
  }
};

struct OfIntegers : OfPairs {
  template <class V>
  HWY_INLINE static V withProduct(V sum, V v, V factor) {
    return hn::Add(sum, hn::Mul(v, factor));
  }
};

// ---- Division -----------------------------------------------------------------------------------------------------

/// By 2^shift with ties upwards, or times r to nearest.
struct Division {
  int shift = 0;
  float r = 0;  // 0 where it is by a power of two

  explicit Division(int divisor) {
    while (shift < 30 && divisor != 1 << shift) ++shift;
    if (divisor != 1 << shift) r = static_cast<float>(1.0 / divisor);
  }
};

/// Of sums of 32 bits: (sum >> (shift - 1)) + 1, halved without overflow.
struct Quotient : Division {
  template <class DI, class V>
  HWY_INLINE V operator()(DI di, V sum) const {
    const hn::RebindToFloat<DI> df;
    if (r != 0) return nearestOf<Vemi8u>(di, hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, r)));
    if (shift == 0) return sum;
    const V doubled = hn::ShiftRightSame(sum, shift - 1);
    return hn::Sub(doubled, hn::ShiftRight<1>(doubled));
  }
};

/// Of sums of 16 bits, which are those from -below to 65535 - below; r and the shift's results are positive.
struct NarrowQuotient : Division {
  Vemi16u below;

  template <class DI, class V>
  HWY_INLINE hn::Vec<DI> operator()(DI di, V wrapped) const {
    const hn::DFromV<V> d;
    const V sum = hn::SaturatedSub(hn::Add(wrapped, hn::Set(d, below)), hn::Set(d, below));  // at least 0
    if (r != 0) {
      const Lanes<int32_t> dWide;
      const Lanes<float> df;
      const auto quotient = [&](auto wide) HWY_ATTR {
        const auto product = hn::Mul(hn::ConvertTo(df, hn::BitCast(dWide, wide)), hn::Set(df, r));
        return nearestOf<Vemi8u>(dWide, product);
      };
      const auto wide = widen(d, sum);
      return packHalves(di, quotient(wide.lower), quotient(wide.upper));
    }
    const V rounded = shift == 0 ? sum : hn::AverageRound(hn::ShiftRightSame(sum, shift - 1), hn::Zero(d));
    return hn::BitCast(di, hn::Min(rounded, hn::Set(d, 255)));
  }
};

// ---- Regions ------------------------------------------------------------------------------------------------------

int32_t pairOf(Vemi32s lower, Vemi32s upper) {
  return static_cast<int32_t>((static_cast<uint32_t>(lower) & 0xffff) | static_cast<uint32_t>(upper) << 16);
}

/// Neighbours in a row or in a column, whichever takes fewer pairs. A tap without a partner stands in one with the tap
/// before it, as that one's weight is 0 there.
template <Alpha alpha>
VemiStatus filterPairs(const LinearCall<Vemi8u>& call, const UserKernel<Vemi32s>& kernel, const Quotient& finish) {
  const Vemi64s width = kernel.size.width, height = kernel.size.height;
  const bool across = height == 1 || (width > 1 && height * ((width + 1) / 2) <= width * ((height + 1) / 2));
  const ptrdiff_t columns = kernel.size.width - (across ? 1 : 0), rows = kernel.size.height - (across ? 0 : 1);
  const TapMemory<int32_t> memory(columns, rows);
  if (memory.failed()) return vemiErrMemAlloc;
  const ptrdiff_t last = (across ? columns : rows) - 1;
  const auto weightAt = [&](ptrdiff_t c, ptrdiff_t j) {
    const ptrdiff_t place = across ? c : j;
    const Vemi32s partner = across ? kernel.at(c + 1, j) : kernel.at(c, j + 1);
    if (place % 2 == 0) return pairOf(kernel.at(c, j), partner);
    return place == last ? pairOf(0, partner) : 0;
  };
  const auto table = memory.fill(call.pixel, Zeros::left, weightAt);
  Window window = call.window;
  window.height = static_cast<int>(rows);
  const Vemi64s elements = windowElements<C1>(call.width, call.window) - (across ? call.pixel : 0);
  const auto enter = [=](RowRing<int32_t>& ring, ptrdiff_t y) {
    const Vemi8u* const row = call.src.row(y);
    const auto pair = [](auto d, const Vemi8u* lower, const Vemi8u* upper) HWY_ATTR {
      return hn::Or(loadExtended(d, lower), hn::ShiftLeft<16>(loadExtended(d, upper)));
    };
    mapElements<Alpha::none>(ring.elements(), eachVector(pair), ring.turn(), row,
                             across ? row + call.pixel : call.src.row(y + 1));
  };
  return filterBands<OfPairs, alpha>(call, table, RowRing<int32_t>(rows, elements), window, finish, enter);
}

template <class Arithmetic, Alpha alpha, class Finish, class WeightAt>
VemiStatus filterElements(const LinearCall<Vemi8u>& call, const UserKernel<Vemi32s>& kernel, const Finish& finish,
                          const WeightAt& weightOf) {
  using Row = typename Arithmetic::Row;
  const TapMemory<int32_t> memory(kernel.size.width, kernel.size.height);
  if (memory.failed()) return vemiErrMemAlloc;
  const auto weightAt = [&](ptrdiff_t c, ptrdiff_t j) { return weightOf(kernel.at(c, j)); };
  const auto table = memory.fill(call.pixel, Zeros::left, weightAt);
  const RowRing<Row> ring(call.window.height, windowElements<C1>(call.width, call.window));
  const auto enter = [=](RowRing<Row>& own, ptrdiff_t y) { enterExtended(own, call.src.row(y)); };
  return filterBands<Arithmetic, alpha>(call, table, ring, call.window, finish, enter);
}

/// What the taps allow.
struct TapRange {
  Vemi64s lowest = 0, highest = 0, below = 0, sizes = 0;

  explicit TapRange(const UserKernel<Vemi32s>& kernel) {
    for (ptrdiff_t i = 0; i < kernel.count(); ++i) {
      const Vemi64s tap = kernel.taps[i];
      lowest = std::min(lowest, tap);
      highest = std::max(highest, tap);
      sizes += std::abs(tap);
      below -= std::min(tap, Vemi64s{0});
    }
  }

  bool fitNarrowSums() const { return sizes * 255 <= 0xffff; }
  bool fit16Bits() const { return lowest >= INT16_MIN && highest <= INT16_MAX; }
};

template <Alpha alpha>
VemiStatus filterByIntegers(const LinearCall<Vemi8u>& call, const UserKernel<Vemi32s>& kernel, int divisor) {
  const Quotient quotient{Division(divisor)};
  const TapRange range(kernel);
  VemiStatus status = vemiErrMemAlloc;
  if (range.fitNarrowSums() &&
      (quotient.r != 0 || quotient.shift <= 16)) {  // with a negative divisor, of the taps' opposites
    const int sign = divisor < 0 ? -1 : 1;
    const Vemi64s below = sign < 0 ? range.sizes - range.below : range.below;
    NarrowQuotient narrow{quotient, static_cast<Vemi16u>(below * 255)};
    narrow.r *= static_cast<float>(sign);
    const auto doubled = [=](Vemi32s tap) { return pairOf(tap * sign, tap * sign); };
    status = filterElements<OfNarrow, alpha>(call, kernel, narrow, doubled);
  } else if (range.fit16Bits() && kernel.count() > 1) {
    status = filterPairs<alpha>(call, kernel, quotient);
  } else {
    status = filterElements<OfIntegers, alpha>(call, kernel, quotient, [](Vemi32s tap) { return tap; });
  }
  return status == vemiOk ? status : filterWithoutMemory<alpha, uint32_t>(call, kernel, quotient);
}

template <class L>
VemiStatus integerKernel(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize, UserKernel<Vemi32s> kernel,
                         int divisor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, kernel), checkSize(roiSize, kernel.size),
                                     checkDivisor(divisor), checkRows<L>(src, dst, roiSize, kernel))) {
    return bad;
  }
  const auto call = LinearCall<Vemi8u>::of<L>(src, dst, roiSize, kernel);
  return roundingToNearest([&] { return filterByIntegers<alphaOf<L>>(call, kernel, divisor); });
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

VEMI_DEFINE(vemiFilter_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilter_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_KERNEL), integerKernel<C3>)
VEMI_DEFINE(vemiFilter_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_KERNEL), integerKernel<C4>)
VEMI_DEFINE(vemiFilter_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilter32f_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi8u, C1>)
VEMI_DEFINE(vemiFilter32f_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi8u, C3>)
VEMI_DEFINE(vemiFilter32f_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi8u, C4>)
VEMI_DEFINE(vemiFilter32f_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_KERNEL(Vemi32f)), floatKernel<Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterRow_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilterRow_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C3>)
VEMI_DEFINE(vemiFilterRow_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_ROW_KERNEL), integerKernel<C4>)
VEMI_DEFINE(vemiFilterRow_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_ROW_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilterRow32f_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterRow32f_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterRow32f_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterRow32f_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_ROW_KERNEL(Vemi32f)), floatKernel<Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterColumn_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_COLUMN_KERNEL), integerKernel<C1>)
VEMI_DEFINE(vemiFilterColumn_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_COLUMN_KERNEL), widthFirst<integerKernel<C3>>)
VEMI_DEFINE(vemiFilterColumn_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_COLUMN_KERNEL), widthFirst<integerKernel<C4>>)
VEMI_DEFINE(vemiFilterColumn_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_DIVIDED_COLUMN_KERNEL), integerKernel<AC4>)

VEMI_DEFINE(vemiFilterColumn32f_8u_C1R, VEMI_SRC_DST(Vemi8u, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterColumn32f_8u_C3R, VEMI_SRC_DST(Vemi8u, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi8u, C3>>)
VEMI_DEFINE(vemiFilterColumn32f_8u_C4R, VEMI_SRC_DST(Vemi8u, VEMI_COLUMN_KERNEL(Vemi32f)),
            widthFirst<floatKernel<Vemi8u, C4>>)
VEMI_DEFINE(vemiFilterColumn32f_8u_AC4R, VEMI_SRC_DST(Vemi8u, VEMI_COLUMN_KERNEL(Vemi32f)), floatKernel<Vemi8u, AC4>)
