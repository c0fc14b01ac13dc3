// vemiAdd, vemiSub, vemiAddC, vemiSubC of complex elements: the scaled or plain sums and differences of the parts.

#include "arith/add_sub.h"
#include "arith/complex_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi {
namespace {

template <class Terms, class FloatTerms>
struct OfParts {
  template <class C>
  static constexpr int largestScale = Terms::template largestScale<PartOf<C>>;

  template <class C, class F>
  static VemiStatus withKernel(int scaleFactor, const F& f) {
    const auto withParts = [&](const auto& terms) { return f(onParts<PartOf<C>>(terms)); };
    return withScaledTerms<Terms, PartOf<C>>(scaleFactor, withParts);
  }

  using Float = OnParts<Vemi32f, FloatTerms>;
};

struct FloatSum {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Add(a, b);
  }
};

struct FloatDifference {
  template <class D, class V>
  HWY_INLINE V operator()(D, V a, V b) const {
    return hn::Sub(a, b);
  }
};

using Sum = OfParts<SumTerms, FloatSum>;
using Difference = OfParts<DifferenceTerms, FloatDifference>;

}  // namespace
}  // namespace vemi

using namespace vemi;

VEMI_2SRC_DST_SFS(vemiAdd_16sc_C1RSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, C1>)
VEMI_2SRC_DST_SFS(vemiAdd_16sc_C3RSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_16sc_AC4RSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_C1IRSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_C3IRSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_AC4IRSfs, Vemi16sc, scaledComplex<Sum, Vemi16sc, AC4>)

VEMI_2SRC_DST_SFS(vemiAdd_32sc_C1RSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, C1>)
VEMI_2SRC_DST_SFS(vemiAdd_32sc_C3RSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_32sc_AC4RSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_C1IRSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_C3IRSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_AC4IRSfs, Vemi32sc, scaledComplex<Sum, Vemi32sc, AC4>)

VEMI_2SRC_DST(vemiAdd_32fc_C1R, Vemi32fc, plainComplex<Sum, C1>)
VEMI_2SRC_DST(vemiAdd_32fc_C3R, Vemi32fc, plainComplex<Sum, C3>)
VEMI_2SRC_DST(vemiAdd_32fc_AC4R, Vemi32fc, plainComplex<Sum, AC4>)
VEMI_SRC_SRCDST(vemiAdd_32fc_C1IR, Vemi32fc, plainComplex<Sum, C1>)
VEMI_SRC_SRCDST(vemiAdd_32fc_C3IR, Vemi32fc, plainComplex<Sum, C3>)
VEMI_SRC_SRCDST(vemiAdd_32fc_AC4IR, Vemi32fc, plainComplex<Sum, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_16sc_C1RSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16sc_C3RSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16sc_AC4RSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_16sc_C1IRSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16sc_C3IRSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16sc_AC4IRSfs, Vemi16sc, scaledComplexC<Sum, Vemi16sc, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_32sc_C1RSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_32sc_C3RSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_32sc_AC4RSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_32sc_C1IRSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_32sc_C3IRSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_32sc_AC4IRSfs, Vemi32sc, scaledComplexC<Sum, Vemi32sc, AC4>)

VEMI_SRC_VALUE_DST(vemiAddC_32fc_C1R, Vemi32fc, plainComplexC<Sum, C1>)
VEMI_SRC_VALUES_DST(vemiAddC_32fc_C3R, Vemi32fc, plainComplexC<Sum, C3>)
VEMI_SRC_VALUES_DST(vemiAddC_32fc_AC4R, Vemi32fc, plainComplexC<Sum, AC4>)
VEMI_VALUE_SRCDST(vemiAddC_32fc_C1IR, Vemi32fc, plainComplexC<Sum, C1>)
VEMI_VALUES_SRCDST(vemiAddC_32fc_C3IR, Vemi32fc, plainComplexC<Sum, C3>)
VEMI_VALUES_SRCDST(vemiAddC_32fc_AC4IR, Vemi32fc, plainComplexC<Sum, AC4>)

VEMI_2SRC_DST_SFS(vemiSub_16sc_C1RSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, C1>)
VEMI_2SRC_DST_SFS(vemiSub_16sc_C3RSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, C3>)
VEMI_2SRC_DST_SFS(vemiSub_16sc_AC4RSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_C1IRSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_C3IRSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_AC4IRSfs, Vemi16sc, scaledComplex<Difference, Vemi16sc, AC4>)

VEMI_2SRC_DST_SFS(vemiSub_32sc_C1RSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, C1>)
VEMI_2SRC_DST_SFS(vemiSub_32sc_C3RSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, C3>)
VEMI_2SRC_DST_SFS(vemiSub_32sc_AC4RSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_C1IRSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_C3IRSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_AC4IRSfs, Vemi32sc, scaledComplex<Difference, Vemi32sc, AC4>)

VEMI_2SRC_DST(vemiSub_32fc_C1R, Vemi32fc, plainComplex<Difference, C1>)
VEMI_2SRC_DST(vemiSub_32fc_C3R, Vemi32fc, plainComplex<Difference, C3>)
VEMI_2SRC_DST(vemiSub_32fc_AC4R, Vemi32fc, plainComplex<Difference, AC4>)
VEMI_SRC_SRCDST(vemiSub_32fc_C1IR, Vemi32fc, plainComplex<Difference, C1>)
VEMI_SRC_SRCDST(vemiSub_32fc_C3IR, Vemi32fc, plainComplex<Difference, C3>)
VEMI_SRC_SRCDST(vemiSub_32fc_AC4IR, Vemi32fc, plainComplex<Difference, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_16sc_C1RSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16sc_C3RSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16sc_AC4RSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_16sc_C1IRSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16sc_C3IRSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16sc_AC4IRSfs, Vemi16sc, scaledComplexC<Difference, Vemi16sc, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_32sc_C1RSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_32sc_C3RSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_32sc_AC4RSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_32sc_C1IRSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_32sc_C3IRSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_32sc_AC4IRSfs, Vemi32sc, scaledComplexC<Difference, Vemi32sc, AC4>)

VEMI_SRC_VALUE_DST(vemiSubC_32fc_C1R, Vemi32fc, plainComplexC<Difference, C1>)
VEMI_SRC_VALUES_DST(vemiSubC_32fc_C3R, Vemi32fc, plainComplexC<Difference, C3>)
VEMI_SRC_VALUES_DST(vemiSubC_32fc_AC4R, Vemi32fc, plainComplexC<Difference, AC4>)
VEMI_VALUE_SRCDST(vemiSubC_32fc_C1IR, Vemi32fc, plainComplexC<Difference, C1>)
VEMI_VALUES_SRCDST(vemiSubC_32fc_C3IR, Vemi32fc, plainComplexC<Difference, C3>)
VEMI_VALUES_SRCDST(vemiSubC_32fc_AC4IR, Vemi32fc, plainComplexC<Difference, AC4>)
