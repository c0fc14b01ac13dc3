// vemiMul, vemiMulC of complex elements: (a.re b.re - a.im b.im, a.re b.im + a.im b.re). Integer products are formed
// exactly, scaled, then saturated. Checks: null, size, step.

#include <type_traits>

#include "arith/complex_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

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
  template <class D, class V>
  HWY_INLINE V ofSum(D d, V sum) const {
    return (*this)(d, unwrapped(d, sum));
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
