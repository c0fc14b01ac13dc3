// vemiSub, vemiSubC: destination = (source 2 - source 1) / 2^scaleFactor, or (source - constant) / 2^scaleFactor, for
// integers, the plain difference for floats. A difference of 8u is clamped to zero before it is scaled.
// Checks: null, size, step; the C3 and C4 forms of integer vemiSub look at the width first.

#include "arith/add_sub.h"
#include "arith/plain.h"
#include "arith/scaled_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct Subtraction {
  template <class T>
  static constexpr int largestScale = DifferenceTerms::largestScale<T>;

  template <class T, class F>
  static void dispatchKernel(int scaleFactor, const F& f) {
    dispatchScaledTerms<DifferenceTerms, T>(scaleFactor, f);
  }

  using Float = PlainDifference;

  template <class T>
  static Result resultOf(T value, int scaleFactor) {
    return value == 0 && scaleFactor == 0 ? Result::source : Result::computed;
  }
};

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_2SRC_DST_SFS(vemiSub_8u_C1RSfs, Vemi8u, scaled<Subtraction, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiSub_8u_C3RSfs, Vemi8u, scaledChannels<Subtraction, C3>)
VEMI_2SRC_DST_SFS(vemiSub_8u_C4RSfs, Vemi8u, scaledChannels<Subtraction, C4>)
VEMI_2SRC_DST_SFS(vemiSub_8u_AC4RSfs, Vemi8u, scaled<Subtraction, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiSub_8u_C1IRSfs, Vemi8u, scaled<Subtraction, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiSub_8u_C3IRSfs, Vemi8u, scaledChannels<Subtraction, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_8u_C4IRSfs, Vemi8u, scaledChannels<Subtraction, C4>)
VEMI_SRC_SRCDST_SFS(vemiSub_8u_AC4IRSfs, Vemi8u, scaled<Subtraction, AC4, CallerRows>)

VEMI_2SRC_DST_SFS(vemiSub_16s_C1RSfs, Vemi16s, scaled<Subtraction, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiSub_16s_C3RSfs, Vemi16s, scaledChannels<Subtraction, C3>)
VEMI_2SRC_DST_SFS(vemiSub_16s_C4RSfs, Vemi16s, scaledChannels<Subtraction, C4>)
VEMI_2SRC_DST_SFS(vemiSub_16s_AC4RSfs, Vemi16s, scaled<Subtraction, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiSub_16s_C1IRSfs, Vemi16s, scaled<Subtraction, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiSub_16s_C3IRSfs, Vemi16s, scaledChannels<Subtraction, C3>)
VEMI_SRC_SRCDST_SFS(vemiSub_16s_C4IRSfs, Vemi16s, scaledChannels<Subtraction, C4>)
VEMI_SRC_SRCDST_SFS(vemiSub_16s_AC4IRSfs, Vemi16s, scaled<Subtraction, AC4, CallerRows>)

VEMI_2SRC_DST(vemiSub_32f_C1R, Vemi32f, plain<Subtraction, C1, TeamRows>)
VEMI_2SRC_DST(vemiSub_32f_C3R, Vemi32f, plain<Subtraction, C3, CallerRows>)
VEMI_2SRC_DST(vemiSub_32f_C4R, Vemi32f, plain<Subtraction, C4, CallerRows>)
VEMI_2SRC_DST(vemiSub_32f_AC4R, Vemi32f, plain<Subtraction, AC4, CallerRows>)
VEMI_SRC_SRCDST(vemiSub_32f_C1IR, Vemi32f, plain<Subtraction, C1, TeamRows>)
VEMI_SRC_SRCDST(vemiSub_32f_C3IR, Vemi32f, plain<Subtraction, C3, CallerRows>)
VEMI_SRC_SRCDST(vemiSub_32f_C4IR, Vemi32f, plain<Subtraction, C4, CallerRows>)
VEMI_SRC_SRCDST(vemiSub_32f_AC4IR, Vemi32f, plain<Subtraction, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_8u_C1RSfs, Vemi8u, scaledC<Subtraction, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_8u_C3RSfs, Vemi8u, scaledC<Subtraction, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_8u_C4RSfs, Vemi8u, scaledC<Subtraction, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_8u_AC4RSfs, Vemi8u, scaledC<Subtraction, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_8u_C1IRSfs, Vemi8u, scaledC<Subtraction, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_8u_C3IRSfs, Vemi8u, scaledC<Subtraction, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_8u_C4IRSfs, Vemi8u, scaledC<Subtraction, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_8u_AC4IRSfs, Vemi8u, scaledC<Subtraction, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiSubC_16s_C1RSfs, Vemi16s, scaledC<Subtraction, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16s_C3RSfs, Vemi16s, scaledC<Subtraction, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16s_C4RSfs, Vemi16s, scaledC<Subtraction, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiSubC_16s_AC4RSfs, Vemi16s, scaledC<Subtraction, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiSubC_16s_C1IRSfs, Vemi16s, scaledC<Subtraction, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16s_C3IRSfs, Vemi16s, scaledC<Subtraction, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16s_C4IRSfs, Vemi16s, scaledC<Subtraction, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiSubC_16s_AC4IRSfs, Vemi16s, scaledC<Subtraction, AC4, CallerRows>)

VEMI_SRC_VALUE_DST(vemiSubC_32f_C1R, Vemi32f, plainC<Subtraction, C1, TeamRows>)
VEMI_SRC_VALUES_DST(vemiSubC_32f_C3R, Vemi32f, plainC<Subtraction, C3, TeamRows>)
VEMI_SRC_VALUES_DST(vemiSubC_32f_C4R, Vemi32f, plainC<Subtraction, C4, CallerRows>)
VEMI_SRC_VALUES_DST(vemiSubC_32f_AC4R, Vemi32f, plainC<Subtraction, AC4, CallerRows>)
VEMI_VALUE_SRCDST(vemiSubC_32f_C1IR, Vemi32f, plainC<Subtraction, C1, TeamRows>)
VEMI_VALUES_SRCDST(vemiSubC_32f_C3IR, Vemi32f, plainC<Subtraction, C3, TeamRows>)
VEMI_VALUES_SRCDST(vemiSubC_32f_C4IR, Vemi32f, plainC<Subtraction, C4, CallerRows>)
VEMI_VALUES_SRCDST(vemiSubC_32f_AC4IR, Vemi32f, plainC<Subtraction, AC4, TeamRows>)
