// vemiAdd, vemiSub, vemiAddC, vemiSubC of complex elements: the scaled or plain sums and differences of the parts.

#include "arith/add_sub.h"
#include "arith/complex_arithmetic.h"
#include "arith/plain.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

template <class Terms, class PlainTerms>
struct OfParts {
  template <class C>
  static constexpr int largestScale = Terms::template largestScale<PartOf<C>>;

  template <class C, class F>
  static VemiStatus dispatchKernel(int scaleFactor, const F& f) {
    const auto onBothParts = [&](const auto& terms) { return f(onParts<PartOf<C>>(terms)); };
    return dispatchScaledTerms<Terms, PartOf<C>>(scaleFactor, onBothParts);
  }

  using Float = OnParts<Vemi32f, PlainTerms>;
};

using Addition = OfParts<SumTerms, PlainSum>;
using Subtraction = OfParts<DifferenceTerms, PlainDifference>;

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_2SRC_DST_SFS(vemiAdd_16sc_C1RSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, C1>)
VEMI_2SRC_DST_SFS(vemiAdd_16sc_C3RSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_16sc_AC4RSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_C1IRSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_C3IRSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16sc_AC4IRSfs, Vemi16sc, scaledComplex<Addition, Vemi16sc, AC4>)

VEMI_2SRC_DST_SFS(vemiAdd_32sc_C1RSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, C1>)
VEMI_2SRC_DST_SFS(vemiAdd_32sc_C3RSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_32sc_AC4RSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_C1IRSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_C3IRSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_32sc_AC4IRSfs, Vemi32sc, scaledComplex<Addition, Vemi32sc, AC4>)

VEMI_2SRC_DST(vemiAdd_32fc_C1R, Vemi32fc, plainComplex<Addition, C1>)
VEMI_2SRC_DST(vemiAdd_32fc_C3R, Vemi32fc, plainComplex<Addition, C3>)
VEMI_2SRC_DST(vemiAdd_32fc_AC4R, Vemi32fc, plainComplex<Addition, AC4>)
VEMI_SRC_SRCDST(vemiAdd_32fc_C1IR, Vemi32fc, plainComplex<Addition, C1>)
VEMI_SRC_SRCDST(vemiAdd_32fc_C3IR, Vemi32fc, plainComplex<Addition, C3>)
VEMI_SRC_SRCDST(vemiAdd_32fc_AC4IR, Vemi32fc, plainComplex<Addition, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_16sc_C1RSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16sc_C3RSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16sc_AC4RSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_16sc_C1IRSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16sc_C3IRSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16sc_AC4IRSfs, Vemi16sc, scaledComplexC<Addition, Vemi16sc, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_32sc_C1RSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_32sc_C3RSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_32sc_AC4RSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_32sc_C1IRSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_32sc_C3IRSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_32sc_AC4IRSfs, Vemi32sc, scaledComplexC<Addition, Vemi32sc, AC4>)

VEMI_SRC_VALUE_DST(vemiAddC_32fc_C1R, Vemi32fc, plainComplexC<Addition, C1>)
VEMI_SRC_VALUES_DST(vemiAddC_32fc_C3R, Vemi32fc, plainComplexC<Addition, C3>)
VEMI_SRC_VALUES_DST(vemiAddC_32fc_AC4R, Vemi32fc, plainComplexC<Addition, AC4>)
VEMI_VALUE_SRCDST(vemiAddC_32fc_C1IR, Vemi32fc, plainComplexC<Addition, C1>)
VEMI_VALUES_SRCDST(vemiAddC_32fc_C3IR, Vemi32fc, plainComplexC<Addition, C3>)
VEMI_VALUES_SRCDST(vemiAddC_32fc_AC4IR, Vemi32fc, plainComplexC<Addition, AC4>)

VEMI_2SRC_DST_SFS(vemiSub_16sc_C1RSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, C1>)
VEMI_2SRC_DST_SFS(vemiSub_16sc_C3RSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, C3>)
VEMI_2SRC_DST_SFS(vemiSub_16sc_AC4RSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_C1IRSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_C3IRSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_16sc_AC4IRSfs, Vemi16sc, scaledComplex<Subtraction, Vemi16sc, AC4>)

VEMI_2SRC_DST_SFS(vemiSub_32sc_C1RSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, C1>)
VEMI_2SRC_DST_SFS(vemiSub_32sc_C3RSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, C3>)
VEMI_2SRC_DST_SFS(vemiSub_32sc_AC4RSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, AC4>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_C1IRSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, C1>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_C3IRSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_32sc_AC4IRSfs, Vemi32sc, scaledComplex<Subtraction, Vemi32sc, AC4>)

VEMI_2SRC_DST(vemiSub_32fc_C1R, Vemi32fc, plainComplex<Subtraction, C1>)
VEMI_2SRC_DST(vemiSub_32fc_C3R, Vemi32fc, plainComplex<Subtraction, C3>)
VEMI_2SRC_DST(vemiSub_32fc_AC4R, Vemi32fc, plainComplex<Subtraction, AC4>)
VEMI_SRC_SRCDST(vemiSub_32fc_C1IR, Vemi32fc, plainComplex<Subtraction, C1>)
VEMI_SRC_SRCDST(vemiSub_32fc_C3IR, Vemi32fc, plainComplex<Subtraction, C3>)
VEMI_SRC_SRCDST(vemiSub_32fc_AC4IR, Vemi32fc, plainComplex<Subtraction, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_16sc_C1RSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16sc_C3RSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16sc_AC4RSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_16sc_C1IRSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16sc_C3IRSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16sc_AC4IRSfs, Vemi16sc, scaledComplexC<Subtraction, Vemi16sc, AC4>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_32sc_C1RSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, C1>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_32sc_C3RSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, C3>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_32sc_AC4RSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, AC4>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_32sc_C1IRSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, C1>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_32sc_C3IRSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, C3>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_32sc_AC4IRSfs, Vemi32sc, scaledComplexC<Subtraction, Vemi32sc, AC4>)

VEMI_SRC_VALUE_DST(vemiSubC_32fc_C1R, Vemi32fc, plainComplexC<Subtraction, C1>)
VEMI_SRC_VALUES_DST(vemiSubC_32fc_C3R, Vemi32fc, plainComplexC<Subtraction, C3>)
VEMI_SRC_VALUES_DST(vemiSubC_32fc_AC4R, Vemi32fc, plainComplexC<Subtraction, AC4>)
VEMI_VALUE_SRCDST(vemiSubC_32fc_C1IR, Vemi32fc, plainComplexC<Subtraction, C1>)
VEMI_VALUES_SRCDST(vemiSubC_32fc_C3IR, Vemi32fc, plainComplexC<Subtraction, C3>)
VEMI_VALUES_SRCDST(vemiSubC_32fc_AC4IR, Vemi32fc, plainComplexC<Subtraction, AC4>)
