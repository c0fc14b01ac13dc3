// vemiMulPack, vemiMulPackConj: products of packed spectra. Checks: null, step, size.
//
// Behind the first column every row has pairs of columns, real and imaginary part. Columns 0 and, of an even width,
// W - 1 have pairs of rows behind their first element, and a real one at the end where the height is even.

#include <algorithm>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/checks.h"
#include "core/complex.h"
#include "core/exports.h"
#include "core/pixel_region.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

template <class T>
struct ComplexOf;
template <>
struct ComplexOf<Vemi16s> {
  using Type = Vemi16sc;
};
template <>
struct ComplexOf<Vemi32s> {
  using Type = Vemi32sc;
};
template <>
struct ComplexOf<Vemi32f> {
  using Type = Vemi32fc;
};

template <class T>
using WideLane = LaneOf<typename ComplexOf<T>::Type>;

/// Scale factors above 0: the floor of a quotient, which saturates.
template <class Part>
struct ProductFloor {
  int shift;     // less than the bits of a wide lane
  bool isWhole;  // whether the scale factor is no more than that

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return clampTo<Part>(d, hn::ShiftRightSame(v, shift));
  }
  template <class D, class V>
  HWY_INLINE V ofSum(D d, V sum) const {
    using Wide = hn::TFromD<D>;
    constexpr int bits = 8 * sizeof(Wide);
    const V beyond = hn::Set(d, isWhole ? static_cast<Wide>(Wide{1} << (bits - 1 - shift)) : Wide{0});
    const auto isBeyond = hn::Eq(sum, hn::Set(d, std::numeric_limits<Wide>::min()));
    return clampTo<Part>(d, hn::IfThenElse(isBeyond, beyond, hn::ShiftRightSame(sum, shift)));
  }
};

/// An operation on pairs, of pixels with a channel each: every other lane of a vector is real.
template <class T, class Op>
struct OnPairs {
  Op op;

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    constexpr size_t channels = sizeof...(V) / 2;
    const std::tuple<V...> all(v...);
    return [&]<size_t... c>(std::index_sequence<c...>) HWY_ATTR {
      return std::tuple(ofChannel(d, std::get<c>(all), std::get<channels + c>(all))...);
    }
    (std::make_index_sequence<channels>());
  }

 private:
  template <class D, class V>
  HWY_INLINE V ofChannel(D d, V a, V b) const {
    const hn::Repartition<WideLane<T>, D> dWide;
    return hn::BitCast(d, op(dWide, hn::BitCast(dWide, a), hn::BitCast(dWide, b)));
  }
};

/// The product of two real elements: that of floats without the products with 0, which would be invalid for infinities.
template <class T, class Op>
T realProduct(const OnPairs<T, Op>& op, T a, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    return a * b;
  } else {
    const hn::CappedTag<WideLane<T>, 1> d;
    const auto lane = [&](T value) { return hn::Set(d, static_cast<std::make_unsigned_t<T>>(value)); };
    return static_cast<T>(hn::GetLane(op.op(d, lane(a), lane(b))));
  }
}

/// Column x: a real element, pairs, and another real one where the height is even.
template <class L, class T, class Op>
void multiplyColumn(const OnPairs<T, Op>& op, ptrdiff_t x, ptrdiff_t height, Image<const T> a, Image<const T> b,
                    Image<T> dst) {
  constexpr ptrdiff_t n = L::elements, rows = 64;
  constexpr size_t pixel = n * sizeof(T);
  const auto real = [&](ptrdiff_t y) {
    T first[n], second[n], product[n];
    std::memcpy(first, a.row(y) + x * n, pixel);
    std::memcpy(second, b.row(y) + x * n, pixel);
    for (int c = 0; c < L::channels; ++c) product[c] = realProduct(op, first[c], second[c]);
    std::memcpy(dst.row(y) + x * n, product, L::channels * sizeof(T));
  };
  real(0);
  if (height > 1 && height % 2 == 0) real(height - 1);
  const ptrdiff_t end = (height - 1) / 2 * 2 + 1;
  for (ptrdiff_t y = 1; y < end; y += rows) {
    const ptrdiff_t count = std::min(rows, end - y);
    T first[rows * n], second[rows * n];
    for (ptrdiff_t i = 0; i < count; ++i) {
      std::memcpy(first + i * n, a.row(y + i) + x * n, pixel);
      std::memcpy(second + i * n, b.row(y + i) + x * n, pixel);
    }
    mapPixels(count, op, pixelRow<L>(second), pixelRow<L>(static_cast<const T*>(first)),
              pixelRow<L>(static_cast<const T*>(second)));
    for (ptrdiff_t i = 0; i < count; ++i) std::memcpy(dst.row(y + i) + x * n, second + i * n, L::channels * sizeof(T));
  }
}

template <class L, class T, class Op>
VemiStatus multiply(Op op, Image<const T> a, Image<const T> b, Image<T> dst, VemiSize size) {
  const OnPairs<T, Op> onPairs = {op};
  const int pairs = (size.width - 1) / 2;
  if (pairs > 0) {
    const auto behindFirst = [](auto image) { return decltype(image){image.first + L::elements, image.step}; };
    mapPixelRows(CallerRows(), {ptrdiff_t{2} * pairs, size.height}, onPairs, pixelsOf<L>(behindFirst(dst)),
                 pixelsOf<L>(behindFirst(a)), pixelsOf<L>(behindFirst(b)));
  }
  multiplyColumn<L>(onPairs, 0, size.height, a, b, dst);
  if (size.width > 1 && size.width % 2 == 0) multiplyColumn<L>(onPairs, size.width - 1, size.height, a, b, dst);
  return vemiOk;
}

template <class L, class Op>
VemiStatus multiplyFloats(Image<const Vemi32f> a, Image<const Vemi32f> b, Image<Vemi32f> dst, VemiSize size) {
  if (const VemiStatus bad = firstOf(checkNull(a, b, dst), checkStep(a, b, dst), checkSize(size))) return bad;
  return multiply<L>(Op(), a, b, dst, size);
}

template <class L, class T>
VemiStatus multiplyIntegers(Image<const T> a, Image<const T> b, Image<T> dst, VemiSize size, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(a, b, dst), checkStep(a, b, dst), checkSize(size))) return bad;
  using Complex = typename ComplexOf<T>::Type;
  constexpr int bits = 8 * sizeof(T), wideBits = 2 * bits;
  if (scaleFactor > 0) {
    const ProductFloor<T> scale = {std::min(scaleFactor, wideBits - 1), scaleFactor < wideBits};
    return multiply<L>(ScaledProduct<Complex, ProductFloor<T>>{scale}, a, b, dst, size);
  }
  const ProductUp<T> scale = {scaleFactor > -bits ? -scaleFactor : bits};
  return multiply<L>(ScaledProduct<Complex, ProductUp<T>>{scale}, a, b, dst, size);
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VEMI_DEFINE(vemiMulPack_16s_C1RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), multiplyIntegers<C1, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_C3RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), multiplyIntegers<C3, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_C4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), multiplyIntegers<C4, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_AC4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), multiplyIntegers<AC4, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_C1IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), multiplyIntegers<C1, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_C3IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), multiplyIntegers<C3, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_C4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), multiplyIntegers<C4, Vemi16s>)
VEMI_DEFINE(vemiMulPack_16s_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), multiplyIntegers<AC4, Vemi16s>)

VEMI_DEFINE(vemiMulPack_32s_C1RSfs, VEMI_2SRC_DST(Vemi32s, VEMI_SFS), multiplyIntegers<C1, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_C3RSfs, VEMI_2SRC_DST(Vemi32s, VEMI_SFS), multiplyIntegers<C3, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_C4RSfs, VEMI_2SRC_DST(Vemi32s, VEMI_SFS), multiplyIntegers<C4, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_AC4RSfs, VEMI_2SRC_DST(Vemi32s, VEMI_SFS), multiplyIntegers<AC4, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_C1IRSfs, VEMI_SRC_SRCDST(Vemi32s, VEMI_SFS), multiplyIntegers<C1, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_C3IRSfs, VEMI_SRC_SRCDST(Vemi32s, VEMI_SFS), multiplyIntegers<C3, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_C4IRSfs, VEMI_SRC_SRCDST(Vemi32s, VEMI_SFS), multiplyIntegers<C4, Vemi32s>)
VEMI_DEFINE(vemiMulPack_32s_AC4IRSfs, VEMI_SRC_SRCDST(Vemi32s, VEMI_SFS), multiplyIntegers<AC4, Vemi32s>)

VEMI_DEFINE(vemiMulPack_32f_C1R, VEMI_2SRC_DST(Vemi32f), multiplyFloats<C1, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_C3R, VEMI_2SRC_DST(Vemi32f), multiplyFloats<C3, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_C4R, VEMI_2SRC_DST(Vemi32f), multiplyFloats<C4, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_AC4R, VEMI_2SRC_DST(Vemi32f), multiplyFloats<AC4, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C1, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C3, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C4, ComplexProduct>)
VEMI_DEFINE(vemiMulPack_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<AC4, ComplexProduct>)

VEMI_DEFINE(vemiMulPackConj_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C1, ConjugateProduct>)
VEMI_DEFINE(vemiMulPackConj_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C3, ConjugateProduct>)
VEMI_DEFINE(vemiMulPackConj_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<C4, ConjugateProduct>)
VEMI_DEFINE(vemiMulPackConj_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), multiplyFloats<AC4, ConjugateProduct>)
