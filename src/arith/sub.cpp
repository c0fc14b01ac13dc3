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

VEMI_DEFINE(vemiSub_8u_C1RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_8u_C3RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Subtraction, C3>)
VEMI_DEFINE(vemiSub_8u_C4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Subtraction, C4>)
VEMI_DEFINE(vemiSub_8u_AC4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSub_8u_C1IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_8u_C3IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Subtraction, C3>)
VEMI_DEFINE(vemiSub_8u_C4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Subtraction, C4>)
VEMI_DEFINE(vemiSub_8u_AC4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Subtraction, AC4, CallerRows>)

VEMI_DEFINE(vemiSub_16s_C1RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_16s_C3RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Subtraction, C3>)
VEMI_DEFINE(vemiSub_16s_C4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Subtraction, C4>)
VEMI_DEFINE(vemiSub_16s_AC4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSub_16s_C1IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_16s_C3IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Subtraction, C3>)
VEMI_DEFINE(vemiSub_16s_C4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Subtraction, C4>)
VEMI_DEFINE(vemiSub_16s_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Subtraction, AC4, CallerRows>)

VEMI_DEFINE(vemiSub_32f_C1R, VEMI_2SRC_DST(Vemi32f), plain<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_32f_C3R, VEMI_2SRC_DST(Vemi32f), plain<Subtraction, C3, CallerRows>)
VEMI_DEFINE(vemiSub_32f_C4R, VEMI_2SRC_DST(Vemi32f), plain<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSub_32f_AC4R, VEMI_2SRC_DST(Vemi32f), plain<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSub_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), plain<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSub_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), plain<Subtraction, C3, CallerRows>)
VEMI_DEFINE(vemiSub_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSub_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Subtraction, AC4, CallerRows>)

VEMI_DEFINE(vemiSubC_8u_C1RSfs, VEMI_SRC_VALUE_DST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_8u_C3RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_8u_C4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_8u_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSubC_8u_C1IRSfs, VEMI_VALUE_SRCDST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_8u_C3IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_8u_C4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_8u_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Subtraction, AC4, CallerRows>)

VEMI_DEFINE(vemiSubC_16s_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_16s_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_16s_C4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_16s_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSubC_16s_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_16s_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_16s_C4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_16s_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Subtraction, AC4, CallerRows>)

VEMI_DEFINE(vemiSubC_32f_C1R, VEMI_SRC_VALUE_DST(Vemi32f), plainC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_32f_C3R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_32f_C4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_32f_AC4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Subtraction, AC4, CallerRows>)
VEMI_DEFINE(vemiSubC_32f_C1IR, VEMI_VALUE_SRCDST(Vemi32f), plainC<Subtraction, C1, TeamRows>)
VEMI_DEFINE(vemiSubC_32f_C3IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Subtraction, C3, TeamRows>)
VEMI_DEFINE(vemiSubC_32f_C4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Subtraction, C4, CallerRows>)
VEMI_DEFINE(vemiSubC_32f_AC4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Subtraction, AC4, TeamRows>)
