// vemiMul, vemiMulC of complex elements: (a.re b.re - a.im b.im, a.re b.im + a.im b.re). Integer products are formed
// exactly, scaled, then saturated. Checks: null, size, step.

#include <limits>
#include <type_traits>

#include "arith/complex_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// Wide lanes within the range of Part.
template <class Part, class D, class V>
HWY_INLINE V clampTo(D d, V v) {
  const V low = hn::Set(d, std::numeric_limits<Part>::min());
  const V high = hn::Set(d, std::numeric_limits<Part>::max());
  return hn::IfThenElse(hn::Gt(v, high), high, hn::IfThenElse(hn::Lt(v, low), low, v));
}

/// Scale factors from 1 to the bits of a wide lane less 1.
template <class Part>
struct ProductDown {
  int shift;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    using Wide = hn::TFromD<D>;
    const V one = hn::Set(d, 1);
    const V quotient = hn::ShiftRightSame(v, shift);
    const V rest = hn::And(v, hn::Set(d, static_cast<Wide>((std::make_unsigned_t<Wide>{1} << shift) - 1)));
    const V tie = hn::Sub(hn::Set(d, Wide{1} << (shift - 1)), hn::And(quotient, one));
    return clampTo<Part>(d, hn::Sub(quotient, hn::VecFromMask(d, hn::Gt(rest, tie))));
  }
};

/// Scale factors of 0 and less: what saturates before the shift saturates after it, and a shift by the bits of a part
/// saturates all but zeros.
template <class Part>
struct ProductUp {
  int shift;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return clampTo<Part>(d, hn::ShiftLeftSame(clampTo<Part>(d, v), shift));
  }
};

/// A sum of two products of lowest values is one more than a wide lane holds, and no other value wraps to the lowest.
/// One less has the same result at every scale.
template <class D, class V>
HWY_INLINE V unwrapped(D d, V sum) {
  const V lowest = hn::Set(d, std::numeric_limits<hn::TFromD<D>>::min());
  return hn::Add(sum, hn::VecFromMask(d, hn::Eq(sum, lowest)));
}

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
    const V im = unwrapped(d, hn::Add(hn::Mul(aRe, bIm), hn::Mul(aIm, bRe)));
    return hn::Or(hn::And(scale(d, re), hn::Set(d, 0xffff)), hn::ShiftLeft<16>(scale(d, im)));
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
    const V im = unwrapped(d, hn::Add(hn::MulEven(aRe, bIm), hn::MulEven(aIm, bRe)));
    const V upper = hn::ShiftLeft<32>(scale(d, im));
    return hn::BitCast(d, hn::OddEven(hn::BitCast(dParts, upper), hn::BitCast(dParts, scale(d, re))));
  }
};

struct Multiplication {
  template <class C>
  static constexpr int largestScale = 8 * sizeof(C) - 1;

  template <class C, class F>
  static VemiStatus dispatchKernel(int scaleFactor, const F& f) {
    using Part = PartOf<C>;
    constexpr int bits = 8 * sizeof(Part);
    if (scaleFactor > 0) return f(ScaledProduct<C, ProductDown<Part>>{{scaleFactor}});
    return f(ScaledProduct<C, ProductUp<Part>>{{scaleFactor > -bits ? -scaleFactor : bits}});
  }

  using Float = ComplexProduct;
};

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiMul_16sc_C1RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, C1>)
VEMI_DEFINE(vemiMul_16sc_C3RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, C3>)
VEMI_DEFINE(vemiMul_16sc_AC4RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, AC4>)
VEMI_DEFINE(vemiMul_16sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, C1>)
VEMI_DEFINE(vemiMul_16sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, C3>)
VEMI_DEFINE(vemiMul_16sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Multiplication, Vemi16sc, AC4>)

VEMI_DEFINE(vemiMul_32sc_C1RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, C1>)
VEMI_DEFINE(vemiMul_32sc_C3RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, C3>)
VEMI_DEFINE(vemiMul_32sc_AC4RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, AC4>)
VEMI_DEFINE(vemiMul_32sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, C1>)
VEMI_DEFINE(vemiMul_32sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, C3>)
VEMI_DEFINE(vemiMul_32sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Multiplication, Vemi32sc, AC4>)

VEMI_DEFINE(vemiMul_32fc_C1R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Multiplication, C1>)
VEMI_DEFINE(vemiMul_32fc_C3R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Multiplication, C3>)
VEMI_DEFINE(vemiMul_32fc_AC4R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Multiplication, AC4>)
VEMI_DEFINE(vemiMul_32fc_C1IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Multiplication, C1>)
VEMI_DEFINE(vemiMul_32fc_C3IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Multiplication, C3>)
VEMI_DEFINE(vemiMul_32fc_AC4IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Multiplication, AC4>)

VEMI_DEFINE(vemiMulC_16sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi16sc, C1>)
VEMI_DEFINE(vemiMulC_16sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi16sc, C3>)
VEMI_DEFINE(vemiMulC_16sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS),
            scaledComplexC<Multiplication, Vemi16sc, AC4>)
VEMI_DEFINE(vemiMulC_16sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi16sc, C1>)
VEMI_DEFINE(vemiMulC_16sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi16sc, C3>)
VEMI_DEFINE(vemiMulC_16sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS),
            scaledComplexC<Multiplication, Vemi16sc, AC4>)

VEMI_DEFINE(vemiMulC_32sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi32sc, C1>)
VEMI_DEFINE(vemiMulC_32sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi32sc, C3>)
VEMI_DEFINE(vemiMulC_32sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS),
            scaledComplexC<Multiplication, Vemi32sc, AC4>)
VEMI_DEFINE(vemiMulC_32sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi32sc, C1>)
VEMI_DEFINE(vemiMulC_32sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Multiplication, Vemi32sc, C3>)
VEMI_DEFINE(vemiMulC_32sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS),
            scaledComplexC<Multiplication, Vemi32sc, AC4>)

VEMI_DEFINE(vemiMulC_32fc_C1R, VEMI_SRC_VALUE_DST(Vemi32fc), plainComplexC<Multiplication, C1>)
VEMI_DEFINE(vemiMulC_32fc_C3R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Multiplication, C3>)
VEMI_DEFINE(vemiMulC_32fc_AC4R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Multiplication, AC4>)
VEMI_DEFINE(vemiMulC_32fc_C1IR, VEMI_VALUE_SRCDST(Vemi32fc), plainComplexC<Multiplication, C1>)
VEMI_DEFINE(vemiMulC_32fc_C3IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Multiplication, C3>)
VEMI_DEFINE(vemiMulC_32fc_AC4IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Multiplication, AC4>)
