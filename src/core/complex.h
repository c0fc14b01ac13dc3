// Complex elements in lanes: an element is one lane of its whole width, so that layouts, constants and a kept alpha are
// those of real elements; the real part is the lower half of the lane, and operations look at the halves.
#pragma once

#include <cstdint>
#include <limits>

#include "core/image.h"
#include "core/lanes.h"

namespace vemi {

template <class C>
struct ComplexElement;
template <>
struct ComplexElement<Vemi16sc> {
  using Part = Vemi16s;
  using Lane = int32_t;
};
template <>
struct ComplexElement<Vemi32sc> {
  using Part = Vemi32s;
  using Lane = int64_t;
};
template <>
struct ComplexElement<Vemi32fc> {
  using Part = Vemi32f;
  using Lane = int64_t;
};

template <class C>
using PartOf = typename ComplexElement<C>::Part;
template <class C>
using LaneOf = typename ComplexElement<C>::Lane;

template <class C>
const LaneOf<C>* inLanes(const C* element) {
  return reinterpret_cast<const LaneOf<C>*>(element);
}

template <class C>
Image<LaneOf<C>> inLanes(Image<C> image) {
  return {reinterpret_cast<LaneOf<C>*>(image.first), image.step};
}

template <class C>
Image<const LaneOf<C>> inLanes(Image<const C> image) {
  return {inLanes(image.first), image.step};
}

/// An operation that treats real and imaginary parts alike.
template <class Part, class Op>
struct OnParts {
  Op op;

  template <class D, class... V>
  HWY_INLINE hn::Vec<D> operator()(D d, V... v) const {
    const hn::Repartition<Part, D> dParts;
    return hn::BitCast(d, op(dParts, hn::BitCast(dParts, v)...));
  }
};

template <class Part, class Op>
OnParts<Part, Op> onParts(Op op) {
  return {op};
}

/// First operand times second, or times its conjugate, in single precision.
template <bool ofConjugate>
struct ProductInFloats {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const hn::Repartition<float, D> df;
    const auto af = hn::BitCast(df, a), bf = hn::BitCast(df, b);
    const auto ofReal = hn::Mul(hn::DupEven(af), bf);                       // a.re b.re, a.re b.im
    const auto ofImaginary = hn::Mul(hn::DupOdd(af), hn::Shuffle2301(bf));  // a.im b.im, a.im b.re
    if constexpr (ofConjugate) {
      return hn::BitCast(d, hn::OddEven(hn::Sub(ofImaginary, ofReal), hn::Add(ofReal, ofImaginary)));
    } else {
      return hn::BitCast(d, hn::OddEven(hn::Add(ofReal, ofImaginary), hn::Sub(ofReal, ofImaginary)));
    }
  }
};

using ComplexProduct = ProductInFloats<false>;
using ConjugateProduct = ProductInFloats<true>;

/// Wide lanes within the range of Part.
template <class Part, class D, class V>
HWY_INLINE V clampTo(D d, V v) {
  const V low = hn::Set(d, std::numeric_limits<Part>::min());
  const V high = hn::Set(d, std::numeric_limits<Part>::max());
  return hn::IfThenElse(hn::Gt(v, high), high, hn::IfThenElse(hn::Lt(v, low), low, v));
}

/// A sum of two products of lowest values is one more than a wide lane holds, and no other value wraps to the lowest.
/// One less is the same where results are saturated or rounded to nearest.
template <class D, class V>
HWY_INLINE V unwrapped(D d, V sum) {
  const V lowest = hn::Set(d, std::numeric_limits<hn::TFromD<D>>::min());
  return hn::Add(sum, hn::VecFromMask(d, hn::Eq(sum, lowest)));
}

/// Scale factors of 0 and less: what saturates before the shift saturates after it, and a shift by the bits of a part
/// saturates all but zeros.
template <class Part>
struct ProductUp {
  int shift;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return clampTo<Part>(d, hn::ShiftLeftSame(clampTo<Part>(d, v), shift));
  }
  template <class D, class V>
  HWY_INLINE V ofSum(D d, V sum) const {
    return (*this)(d, unwrapped(d, sum));
  }
};

/// First operand times second, each part formed in a lane of the whole element's width and scaled to the range of a
/// part: scale(d, difference of products), and scale.ofSum(d, sum of products), where the lowest value stands for one
/// more than the highest, which the sum of two products of lowest values is, and no other.
template <class C, class Scale>
struct ScaledProduct;

template <class Scale>
struct ScaledProduct<Vemi16sc, Scale> {
  Scale scale;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const V aRe = hn::ShiftRight<16>(hn::ShiftLeft<16>(a)), aIm = hn::ShiftRight<16>(a);
    const V bRe = hn::ShiftRight<16>(hn::ShiftLeft<16>(b)), bIm = hn::ShiftRight<16>(b);
    const V re = hn::Sub(hn::Mul(aRe, bRe), hn::Mul(aIm, bIm));
    const V im = hn::Add(hn::Mul(aRe, bIm), hn::Mul(aIm, bRe));
    return hn::Or(hn::And(scale(d, re), hn::Set(d, 0xffff)), hn::ShiftLeft<16>(scale.ofSum(d, im)));
  }
};

template <class Scale>
struct ScaledProduct<Vemi32sc, Scale> {
  Scale scale;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const hn::Repartition<int32_t, D> dParts;
    const auto aRe = hn::BitCast(dParts, a), aIm = hn::Shuffle2301(aRe);  // in the lower halves
    const auto bRe = hn::BitCast(dParts, b), bIm = hn::Shuffle2301(bRe);
    const V re = hn::Sub(hn::MulEven(aRe, bRe), hn::MulEven(aIm, bIm));
    const V im = hn::Add(hn::MulEven(aRe, bIm), hn::MulEven(aIm, bRe));
    const V upper = hn::ShiftLeft<32>(scale.ofSum(d, im));
    return hn::BitCast(d, hn::OddEven(hn::BitCast(dParts, upper), hn::BitCast(dParts, scale(d, re))));
  }
};

}  // namespace vemi
