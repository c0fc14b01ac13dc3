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

VEMI_DEFINE(vemiAdd_16sc_C1RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, C1>)
VEMI_DEFINE(vemiAdd_16sc_C3RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, C3>)
VEMI_DEFINE(vemiAdd_16sc_AC4RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, AC4>)
VEMI_DEFINE(vemiAdd_16sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, C1>)
VEMI_DEFINE(vemiAdd_16sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, C3>)
VEMI_DEFINE(vemiAdd_16sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Addition, Vemi16sc, AC4>)

VEMI_DEFINE(vemiAdd_32sc_C1RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, C1>)
VEMI_DEFINE(vemiAdd_32sc_C3RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, C3>)
VEMI_DEFINE(vemiAdd_32sc_AC4RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, AC4>)
VEMI_DEFINE(vemiAdd_32sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, C1>)
VEMI_DEFINE(vemiAdd_32sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, C3>)
VEMI_DEFINE(vemiAdd_32sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Addition, Vemi32sc, AC4>)

VEMI_DEFINE(vemiAdd_32fc_C1R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Addition, C1>)
VEMI_DEFINE(vemiAdd_32fc_C3R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Addition, C3>)
VEMI_DEFINE(vemiAdd_32fc_AC4R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Addition, AC4>)
VEMI_DEFINE(vemiAdd_32fc_C1IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Addition, C1>)
VEMI_DEFINE(vemiAdd_32fc_C3IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Addition, C3>)
VEMI_DEFINE(vemiAdd_32fc_AC4IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Addition, AC4>)

VEMI_DEFINE(vemiAddC_16sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, C1>)
VEMI_DEFINE(vemiAddC_16sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, C3>)
VEMI_DEFINE(vemiAddC_16sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, AC4>)
VEMI_DEFINE(vemiAddC_16sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, C1>)
VEMI_DEFINE(vemiAddC_16sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, C3>)
VEMI_DEFINE(vemiAddC_16sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Addition, Vemi16sc, AC4>)

VEMI_DEFINE(vemiAddC_32sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, C1>)
VEMI_DEFINE(vemiAddC_32sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, C3>)
VEMI_DEFINE(vemiAddC_32sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, AC4>)
VEMI_DEFINE(vemiAddC_32sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, C1>)
VEMI_DEFINE(vemiAddC_32sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, C3>)
VEMI_DEFINE(vemiAddC_32sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Addition, Vemi32sc, AC4>)

VEMI_DEFINE(vemiAddC_32fc_C1R, VEMI_SRC_VALUE_DST(Vemi32fc), plainComplexC<Addition, C1>)
VEMI_DEFINE(vemiAddC_32fc_C3R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Addition, C3>)
VEMI_DEFINE(vemiAddC_32fc_AC4R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Addition, AC4>)
VEMI_DEFINE(vemiAddC_32fc_C1IR, VEMI_VALUE_SRCDST(Vemi32fc), plainComplexC<Addition, C1>)
VEMI_DEFINE(vemiAddC_32fc_C3IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Addition, C3>)
VEMI_DEFINE(vemiAddC_32fc_AC4IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Addition, AC4>)

VEMI_DEFINE(vemiSub_16sc_C1RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, C1>)
VEMI_DEFINE(vemiSub_16sc_C3RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, C3>)
VEMI_DEFINE(vemiSub_16sc_AC4RSfs, VEMI_2SRC_DST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, AC4>)
VEMI_DEFINE(vemiSub_16sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, C1>)
VEMI_DEFINE(vemiSub_16sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, C3>)
VEMI_DEFINE(vemiSub_16sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16sc, VEMI_SFS), scaledComplex<Subtraction, Vemi16sc, AC4>)

VEMI_DEFINE(vemiSub_32sc_C1RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, C1>)
VEMI_DEFINE(vemiSub_32sc_C3RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, C3>)
VEMI_DEFINE(vemiSub_32sc_AC4RSfs, VEMI_2SRC_DST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, AC4>)
VEMI_DEFINE(vemiSub_32sc_C1IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, C1>)
VEMI_DEFINE(vemiSub_32sc_C3IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, C3>)
VEMI_DEFINE(vemiSub_32sc_AC4IRSfs, VEMI_SRC_SRCDST(Vemi32sc, VEMI_SFS), scaledComplex<Subtraction, Vemi32sc, AC4>)

VEMI_DEFINE(vemiSub_32fc_C1R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Subtraction, C1>)
VEMI_DEFINE(vemiSub_32fc_C3R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Subtraction, C3>)
VEMI_DEFINE(vemiSub_32fc_AC4R, VEMI_2SRC_DST(Vemi32fc), plainComplex<Subtraction, AC4>)
VEMI_DEFINE(vemiSub_32fc_C1IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Subtraction, C1>)
VEMI_DEFINE(vemiSub_32fc_C3IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Subtraction, C3>)
VEMI_DEFINE(vemiSub_32fc_AC4IR, VEMI_SRC_SRCDST(Vemi32fc), plainComplex<Subtraction, AC4>)

VEMI_DEFINE(vemiSubC_16sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, C1>)
VEMI_DEFINE(vemiSubC_16sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, C3>)
VEMI_DEFINE(vemiSubC_16sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, AC4>)
VEMI_DEFINE(vemiSubC_16sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, C1>)
VEMI_DEFINE(vemiSubC_16sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, C3>)
VEMI_DEFINE(vemiSubC_16sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi16sc, AC4>)

VEMI_DEFINE(vemiSubC_32sc_C1RSfs, VEMI_SRC_VALUE_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, C1>)
VEMI_DEFINE(vemiSubC_32sc_C3RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, C3>)
VEMI_DEFINE(vemiSubC_32sc_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, AC4>)
VEMI_DEFINE(vemiSubC_32sc_C1IRSfs, VEMI_VALUE_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, C1>)
VEMI_DEFINE(vemiSubC_32sc_C3IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, C3>)
VEMI_DEFINE(vemiSubC_32sc_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi32sc, VEMI_SFS), scaledComplexC<Subtraction, Vemi32sc, AC4>)

VEMI_DEFINE(vemiSubC_32fc_C1R, VEMI_SRC_VALUE_DST(Vemi32fc), plainComplexC<Subtraction, C1>)
VEMI_DEFINE(vemiSubC_32fc_C3R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Subtraction, C3>)
VEMI_DEFINE(vemiSubC_32fc_AC4R, VEMI_SRC_VALUES_DST(Vemi32fc), plainComplexC<Subtraction, AC4>)
VEMI_DEFINE(vemiSubC_32fc_C1IR, VEMI_VALUE_SRCDST(Vemi32fc), plainComplexC<Subtraction, C1>)
VEMI_DEFINE(vemiSubC_32fc_C3IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Subtraction, C3>)
VEMI_DEFINE(vemiSubC_32fc_AC4IR, VEMI_VALUES_SRCDST(Vemi32fc), plainComplexC<Subtraction, AC4>)
