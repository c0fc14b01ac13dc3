// Filters whose kernels are known beforehand: a record for each kernel, and one engine for all of them.
//
// A window is summed in two stages. The first makes of its rows a row of sums, wider than the region by the side
// columns; the second combines neighbouring sums, as far apart as a pixel has elements. A kernel whose columns are no
// multiples of one another has three such rows: for its outer columns, for those beside the middle, and for the middle.
//
//   source      lanes of the sums    why no sum leaves them
//   8u, 8s      16s                  weights of one sign add up to 48 at most; but for Gauss 5x5, see divideBy571
//   16s         32s                  to 571
//   32f         32f                  added in the order that the header tells, each product rounded by itself
//
// Pairs of equal weights meet first where that changes nothing, as of integers, and by definition in the kernels with
// three rows of sums; floats are otherwise added from the first row or column to the last.
//
// Checks: null, size, step, mask size.
#pragma once

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "core/checks.h"
#include "core/exports.h"
#include "core/lane_width.h"
#include "core/windows.h"
#include "vemi/filter.h"

namespace vemi::filter {

// ---- Kernels ------------------------------------------------------------------------------------------------------

/// From the top, or from the left; symmetric or antisymmetric, and the first is not 0.
using Weights = std::array<int, 5>;

struct Kernel {
  int size;
  Weights column[3];  // of rows in the first stage
  Weights row;        // of sums in the second
  int centre = 0;     // if not 0: the sum is subtracted from so many times the pixel
  int divisor = 1;

  constexpr int sums() const { return column[1][0] == 0 ? 1 : 3; }
};

inline constexpr Weights ones3 = {1, 1, 1}, ones5 = {1, 1, 1, 1, 1};
inline constexpr Weights smooth3 = {1, 2, 1}, smooth5 = {1, 4, 6, 4, 1};
inline constexpr Weights rise3 = {-1, 0, 1}, rise5 = {-1, -2, 0, 2, 1};
inline constexpr Weights fall3 = {1, 0, -1}, fall5 = {1, 2, 0, -2, -1};
inline constexpr Weights curve3 = {1, -2, 1}, curve5 = {1, 0, -2, 0, 1};
inline constexpr Weights scharr3 = {3, 10, 3};

// Sobel and Prewitt: what is lower minus what is higher, what is left minus what is right. Scharr: right minus left.
inline constexpr Kernel sobelHoriz3 = {3, {rise3}, smooth3}, sobelHoriz5 = {5, {rise5}, smooth5};
inline constexpr Kernel sobelVert3 = {3, {smooth3}, fall3}, sobelVert5 = {5, {smooth5}, fall5};
inline constexpr Kernel sobelHorizSecond3 = {3, {curve3}, smooth3}, sobelHorizSecond5 = {5, {curve5}, smooth5};
inline constexpr Kernel sobelVertSecond3 = {3, {smooth3}, curve3}, sobelVertSecond5 = {5, {smooth5}, curve5};
inline constexpr Kernel sobelCross3 = {3, {rise3}, fall3}, sobelCross5 = {5, {rise5}, fall5};
inline constexpr Kernel scharrHoriz = {3, {rise3}, scharr3}, scharrVert = {3, {scharr3}, rise3};
inline constexpr Kernel prewittHoriz = {3, {rise3}, ones3}, prewittVert = {3, {ones3}, fall3};

inline constexpr Kernel laplace3 = {3, {ones3}, ones3, 9};
inline constexpr Kernel laplace5 = {5, {{-1, -3, -4, -3, -1}, {-3, 0, 6, 0, -3}, {-4, 6, 20, 6, -4}}, ones5};
inline constexpr Kernel hipass5 = {5, {ones5}, ones5, 25};
inline constexpr Kernel sharpen3 = {3, {ones3}, ones3, 17, 8};
inline constexpr Kernel gauss3 = {3, {smooth3}, smooth3, 0, 16};
inline constexpr Kernel gauss5 = {5, {{2, 7, 12, 7, 2}, {7, 31, 52, 31, 7}, {12, 52, 127, 52, 12}}, ones5, 0, 571};
inline constexpr Kernel lowpass3 = {3, {ones3}, ones3, 0, 9}, lowpass5 = {5, {ones5}, ones5, 0, 25};

// ---- Sums ---------------------------------------------------------------------------------------------------------

template <int weight, class D, class V>
HWY_INLINE V times(D d, V v) {
  static_assert(weight > 0);
  if constexpr (weight == 1) {
    return v;
  } else if constexpr (weight == 2) {
    return hn::Add(v, v);
  } else {
    return hn::Mul(v, hn::Set(d, weight));
  }
}

template <int weight, class D, class V>
HWY_INLINE V withFirst(D d, V v) {
  if constexpr (weight < 0) {
    return hn::Neg(times<-weight>(d, v));
  } else {
    return times<weight>(d, v);
  }
}

template <int weight, class D, class V>
HWY_INLINE V withNext(D d, V sum, V v) {
  if constexpr (weight < 0) {
    return hn::Sub(sum, times<-weight>(d, v));
  } else if constexpr (weight > 0) {
    return hn::Add(sum, times<weight>(d, v));
  } else {
    return sum;
  }
}

/// The sum of weights[j] * at(j). Without a weight nothing enters, not even a NaN.
template <Weights weights, int size, bool inPairs, class D, class At>
HWY_INLINE hn::Vec<D> weightedSum(D d, const At& at) {
  constexpr int last = size - 1;
  if constexpr (!inPairs && std::is_floating_point_v<hn::TFromD<D>>) {
    auto sum = withFirst<weights[0]>(d, at(0));
    unrolled<last>([&](auto j) HWY_ATTR { sum = withNext<weights[j + 1]>(d, sum, at(j + 1)); });
    return sum;
  } else {
    const auto pair = [&](int j) HWY_ATTR {
      return weights[0] == weights[last] ? hn::Add(at(j), at(last - j)) : hn::Sub(at(last - j), at(j));
    };
    auto sum = withFirst<weights[last]>(d, pair(0));
    unrolled<size / 2 - 1>([&](auto j) HWY_ATTR { sum = withNext<weights[last - 1 - j]>(d, sum, pair(j + 1)); });
    return withNext<weights[size / 2]>(d, sum, at(size / 2));
  }
}

// ---- Quotients ----------------------------------------------------------------------------------------------------

/// 2^(bits + shift) / divisor, rounded up: the high half of a product with it is the quotient, rounded down, of numbers
/// up to `most`.
template <int bits, int divisor, uint64_t most>
struct Reciprocal {
  int shift = 0;
  uint64_t multiplier = 0;

  constexpr Reciprocal() {
    for (;; ++shift) {
      const uint64_t power = uint64_t{1} << (bits + shift);
      multiplier = (power + divisor - 1) / divisor;
      if (most * (multiplier * divisor - power) < power) return;
    }
  }
};

template <class D, class V>
HWY_INLINE V highProduct(D d, V v, uint32_t multiplier) {
  const hn::RepartitionToWide<D> dWide;
  const auto m = hn::Set(d, multiplier);
  const auto even = hn::ShiftRight<32>(hn::MulEven(v, m));
  const auto odd = hn::MulEven(hn::BitCast(d, hn::ShiftRight<32>(hn::BitCast(dWide, v))), m);
  return hn::OddEven(hn::BitCast(d, odd), hn::BitCast(d, even));
}

/// To nearest, ties to even; of integers within the pixel's type, so that odd divisors know the range.
template <int divisor, class D, class V>
HWY_INLINE V quotient(D d, V sum) {
  using Lane = hn::TFromD<D>;
  if constexpr (divisor == 1) {
    return sum;
  } else if constexpr (std::is_floating_point_v<Lane>) {
    return hn::Mul(sum, hn::Set(d, 1.0f / divisor));
  } else if constexpr (divisor % 2 == 0) {
    constexpr int shift = divisor == 16 ? 4 : 3;
    static_assert(divisor == 1 << shift);
    const auto odd = hn::And(hn::ShiftRight<shift>(sum), hn::Set(d, 1));
    return hn::ShiftRight<shift>(hn::Add(hn::Add(sum, hn::Set(d, divisor / 2 - 1)), odd));
  } else if constexpr (sizeof(Lane) == 2) {
    constexpr Reciprocal<16, divisor, uint64_t{255} * divisor + divisor / 2> reciprocal;
    static_assert(reciprocal.multiplier <= 0xffff);
    const hn::RebindToUnsigned<D> du;
    const auto n = hn::BitCast(du, hn::Add(sum, hn::Set(d, divisor / 2)));
    const auto high = hn::MulHigh(n, hn::Set(du, static_cast<uint16_t>(reciprocal.multiplier)));
    return hn::BitCast(d, hn::ShiftRight<reciprocal.shift>(high));
  } else {  // moved to numbers from 0 on, and back
    constexpr Reciprocal<32, divisor, uint64_t{0xffff} * divisor + divisor / 2> reciprocal;
    static_assert(reciprocal.multiplier <= 0xffffffff);
    const hn::RebindToUnsigned<D> du;
    const auto n = hn::BitCast(du, hn::Add(sum, hn::Set(d, 0x8000 * divisor + divisor / 2)));
    const auto high = highProduct(du, n, static_cast<uint32_t>(reciprocal.multiplier));
    return hn::Sub(hn::BitCast(d, hn::ShiftRight<reciprocal.shift>(high)), hn::Set(d, 0x8000));
  }
}

/// (sum of the three) / 571 to nearest, for sums of bytes, which take 18 bits. Quarters of the three tell the quotient,
/// or one less than it; so does the rest, which fits 16 bits again.
template <class D, class V>
HWY_INLINE V divideBy571(D d, V outer, V inner, V middle) {
  const auto quarters = hn::Add(hn::Add(hn::ShiftRight<2>(outer), hn::ShiftRight<2>(inner)), hn::ShiftRight<2>(middle));
  const auto low = hn::MulHigh(hn::Add(quarters, hn::Set(d, 285 / 4)), hn::Set(d, 4 * 65536 / 571));
  const auto sum = hn::Add(hn::Add(outer, inner), hn::Add(middle, hn::Set(d, 285)));
  const hn::RebindToSigned<D> di;
  const auto rest = hn::BitCast(di, hn::Sub(sum, hn::Mul(low, hn::Set(d, 571))));
  return hn::Sub(low, hn::BitCast(d, hn::VecFromMask(di, hn::Gt(rest, hn::Set(di, 570)))));
}

// ---- Stages -------------------------------------------------------------------------------------------------------

/// What the sums of a source's elements stand in.
template <class S>
using SumOf = std::conditional_t<sizeof(S) == 1, int16_t, std::conditional_t<sizeof(S) == 2, int32_t, float>>;

template <Weights weights, class S, int size>
struct ColumnSum {
  const S* rows[size];

  template <class... Row>
  requires(sizeof...(Row) == size) explicit ColumnSum(Row... row) : rows{row...} {}

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    return weightedSum<weights, size, false>(d, [&](int j) HWY_ATTR { return loadExtended(d, rows[j] + i); });
  }
};

/// All three rows of sums at once: a source row is loaded once.
template <const Kernel& kernel, class S, class Sum>
HWY_NOINLINE void sumColumns(ptrdiff_t count, const S* const* rowsOfCaller, Sum* outer, Sum* inner, Sum* middle) {
  const Lanes<Sum> d;
  constexpr ptrdiff_t items = laneCount<Sum>;
  std::array<const S*, kernel.size> rows;
  std::copy_n(rowsOfCaller, kernel.size, rows.begin());
  const auto block = [=](Sum* toOuter, Sum* toInner, Sum* toMiddle, ptrdiff_t i) HWY_ATTR {
    Vectors<hn::Vec<decltype(d)>, kernel.size> in;
    unrolled<kernel.size>([&](auto j) HWY_ATTR { in.v[j] = loadExtended(d, rows[j] + i); });
    const auto at = [&](int j) HWY_ATTR { return in.v[j]; };
    hn::StoreU(weightedSum<kernel.column[0], kernel.size, true>(d, at), d, toOuter);
    hn::StoreU(weightedSum<kernel.column[1], kernel.size, true>(d, at), d, toInner);
    hn::StoreU(weightedSum<kernel.column[2], kernel.size, true>(d, at), d, toMiddle);
  };
  forWholeBlocks<items>(std::max(count, items), block, Strand<Sum>{outer}, Strand<Sum>{inner}, Strand<Sum>{middle},
                        Places());
}

template <const Kernel& kernel, int elements, class S>
struct RowSum {
  using Sum = SumOf<S>;
  const Sum* sums[kernel.sums()];
  const S* middle;  // source row

  RowSum(const Sum* sum, const S* middleRow) requires(kernel.sums() == 1) : sums{sum}, middle(middleRow) {}
  RowSum(const Sum* ofOuter, const Sum* ofInner, const Sum* ofMiddle, const S* middleRow) requires(kernel.sums() == 3)
      : sums{ofOuter, ofInner, ofMiddle}, middle(middleRow) {}

  template <class D>
  HWY_INLINE hn::Vec<D> sumOf(D d, ptrdiff_t i) const {
    constexpr int size = kernel.size;
    const auto at = [&](int j) HWY_ATTR {
      return hn::LoadU(d, sums[kernel.sums() == 1 ? 0 : std::min(j, size - 1 - j)] + i + j * elements);
    };
    if constexpr (kernel.divisor == 571 && sizeof(Sum) == 2) {
      const hn::RebindToUnsigned<D> du;
      const auto bits = [&](auto v) HWY_ATTR { return hn::BitCast(du, v); };
      return hn::BitCast(d, divideBy571(du, bits(hn::Add(at(0), at(4))), bits(hn::Add(at(1), at(3))), bits(at(2))));
    } else {
      auto sum = weightedSum<kernel.row, size, kernel.sums() == 3>(d, at);
      if constexpr (kernel.centre != 0) {
        sum = hn::Sub(times<kernel.centre>(d, loadExtended(d, middle + i + size / 2 * elements)), sum);
      }
      return quotient<kernel.divisor>(d, sum);
    }
  }

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<Sum> dSum;
    if constexpr (std::is_same_v<hn::TFromD<D>, Sum>) {
      return sumOf(d, i);
    } else {
      return packEach<Sum>(d, [&](auto k) HWY_ATTR { return sumOf(dSum, i + k * laneCount<Sum>); });
    }
  }
};

/// A stage of pointers.
template <class Stage>
struct StageOf {
  template <class... Pointer>
  auto operator()(Pointer... pointer) const {
    return eachPlace(Stage{pointer...});
  }
};

/// f(0), f(1), ... as arguments of `call`.
template <int count, class Call, class F>
void callWith(const Call& call, const F& f) {
  [&]<int... j>(std::integer_sequence<int, j...>) { call(f(j)...); }
  (std::make_integer_sequence<int, count>());
}

// ---- Regions ------------------------------------------------------------------------------------------------------

template <const Kernel& kernel, class L, class S, class T>
VemiStatus filtered(Image<const S> image, Image<T> dst, VemiSize roiSize) {
  using Sum = SumOf<S>;
  constexpr int size = kernel.size, reach = size / 2;
  constexpr Window window = {size, size, reach, reach};
  const ptrdiff_t width = roiSize.width;
  auto source = RowRing<S>::template ofSource<L>(window, width, false);
  RowRing<Sum> sums(kernel.sums(), windowElements<L>(width, window));
  const Scratch scratch(roomOf(source, sums));
  if (scratch.failed()) return vemiErrMemAlloc;
  placeRings(scratch.memory(), source, sums);

  const auto src = windowed<L>(image, window);
  const auto enter = [&](ptrdiff_t y) { source.take(src.row(y)); };
  const auto row = [&](ptrdiff_t y) {
    const S* const* const rows = source.rows();
    const ptrdiff_t count = width * L::elements;
    T* const out = dst.row(y);
    if constexpr (kernel.sums() == 1) {
      Sum* const sum = sums.turn();
      using Columns = ColumnSum<kernel.column[0], S, size>;
      callWith<size>([&](auto... in) { mapPlacesOf<Alpha::none, StageOf<Columns>>(sums.elements(), sum, in...); },
                     [&](int j) { return rows[j]; });
      using Rows = StageOf<RowSum<kernel, L::elements, S>>;
      mapPlacesOf<alphaOf<L>, Rows>(count, out, static_cast<const Sum*>(sum), rows[reach]);
    } else {
      Sum* const outer = sums.turn();
      Sum* const inner = sums.turn();
      Sum* const middle = sums.turn();
      sumColumns<kernel>(sums.elements(), rows, outer, inner, middle);
      using Rows = StageOf<RowSum<kernel, L::elements, S>>;
      mapPlacesOf<alphaOf<L>, Rows>(count, out, static_cast<const Sum*>(outer), static_cast<const Sum*>(inner),
                                    static_cast<const Sum*>(middle), rows[reach]);
    }
  };
  forWindows(window, 0, roiSize.height, enter, row);
  return vemiOk;
}

template <class S, class T, class L, const Kernel& kernel>
VemiStatus fixedKernel(Image<const S> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return filtered<kernel, L>(src, dst, roiSize);
}

template <class S, class T, class L, const Kernel& kernel3, const Kernel& kernel5>
VemiStatus chosenKernel(Image<const S> src, Image<T> dst, VemiSize roiSize, int maskSize) {
  const bool isMask = maskSize == vemiMask3x3 || maskSize == vemiMask5x5;
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), isMask ? vemiOk : vemiErrMaskSize)) {
    return bad;
  }
  return maskSize == vemiMask3x3 ? filtered<kernel3, L>(src, dst, roiSize) : filtered<kernel5, L>(src, dst, roiSize);
}

/// Anything but vemiMask3x3 is 5x5, by contract: a caller's wrong number is not refused.
template <class S, class T, class L, const Kernel& kernel3, const Kernel& kernel5>
VemiStatus kernel5Unless3(Image<const S> src, Image<T> dst, VemiSize roiSize, int maskSize) {
  const int mask = maskSize == vemiMask3x3 ? vemiMask3x3 : vemiMask5x5;
  return chosenKernel<S, T, L, kernel3, kernel5>(src, dst, roiSize, mask);
}

}  // namespace vemi::filter

#define VEMI_MASK_SIZE ((int maskSize), (maskSize))
