// Complex elements in lanes: an element is one lane of its whole width, so that layouts, constants and a kept alpha are
// those of real elements; the real part is the lower half of the lane, and operations look at the halves.
#pragma once

#include <cstdint>

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

/// First operand times second, in single precision.
struct ComplexProduct {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const hn::Repartition<float, D> df;
    const auto af = hn::BitCast(df, a), bf = hn::BitCast(df, b);
    const auto ofReal = hn::Mul(hn::DupEven(af), bf);                       // a.re b.re, a.re b.im
    const auto ofImaginary = hn::Mul(hn::DupOdd(af), hn::Shuffle2301(bf));  // a.im b.im, a.im b.re
    return hn::BitCast(d, hn::OddEven(hn::Add(ofReal, ofImaginary), hn::Sub(ofReal, ofImaginary)));
  }
};

}  // namespace vemi
