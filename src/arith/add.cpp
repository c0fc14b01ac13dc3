// vemiAdd, vemiAddC: destination = (source 1 + source 2) / 2^scaleFactor for integers, the plain sum for floats.
// Checks: null, size, step; the C3 and C4 forms of integer vemiAdd look at the width first.

#include "arith/add_sub.h"
#include "arith/plain.h"
#include "arith/scaled_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct Addition {
  template <class T>
  static constexpr int largestScale = SumTerms::largestScale<T>;

  template <class T, class F>
  static void dispatchKernel(int scaleFactor, const F& f) {
    dispatchScaledTerms<SumTerms, T>(scaleFactor, f);
  }

  using Float = PlainSum;

  /// An unsigned sum with a constant is not zero; scaled up by the bits of an element it saturates.
  template <class T>
  static Result resultOf(T value, int scaleFactor) {
    if (value == 0) return scaleFactor == 0 ? Result::source : Result::computed;
    return std::is_unsigned_v<T> && scaleFactor <= -8 ? Result::highest : Result::computed;
  }
};

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_2SRC_DST_SFS(vemiAdd_8u_C1RSfs, Vemi8u, scaled<Addition, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_C3RSfs, Vemi8u, scaledChannels<Addition, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_C4RSfs, Vemi8u, scaledChannels<Addition, C4>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_AC4RSfs, Vemi8u, scaled<Addition, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C1IRSfs, Vemi8u, scaled<Addition, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C3IRSfs, Vemi8u, scaledChannels<Addition, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C4IRSfs, Vemi8u, scaledChannels<Addition, C4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_AC4IRSfs, Vemi8u, scaled<Addition, AC4, CallerRows>)

VEMI_2SRC_DST_SFS(vemiAdd_16s_C1RSfs, Vemi16s, scaled<Addition, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_C3RSfs, Vemi16s, scaledChannels<Addition, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_C4RSfs, Vemi16s, scaledChannels<Addition, C4>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_AC4RSfs, Vemi16s, scaled<Addition, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C1IRSfs, Vemi16s, scaled<Addition, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C3IRSfs, Vemi16s, scaledChannels<Addition, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C4IRSfs, Vemi16s, scaledChannels<Addition, C4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_AC4IRSfs, Vemi16s, scaled<Addition, AC4, CallerRows>)

VEMI_2SRC_DST(vemiAdd_32f_C1R, Vemi32f, plain<Addition, C1, TeamRows>)
VEMI_2SRC_DST(vemiAdd_32f_C3R, Vemi32f, plain<Addition, C3, CallerRows>)
VEMI_2SRC_DST(vemiAdd_32f_C4R, Vemi32f, plain<Addition, C4, CallerRows>)
VEMI_2SRC_DST(vemiAdd_32f_AC4R, Vemi32f, plain<Addition, AC4, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C1IR, Vemi32f, plain<Addition, C1, TeamRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C3IR, Vemi32f, plain<Addition, C3, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C4IR, Vemi32f, plain<Addition, C4, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_AC4IR, Vemi32f, plain<Addition, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_8u_C1RSfs, Vemi8u, scaledC<Addition, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_C3RSfs, Vemi8u, scaledC<Addition, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_C4RSfs, Vemi8u, scaledC<Addition, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_AC4RSfs, Vemi8u, scaledC<Addition, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_8u_C1IRSfs, Vemi8u, scaledC<Addition, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_C3IRSfs, Vemi8u, scaledC<Addition, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_C4IRSfs, Vemi8u, scaledC<Addition, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_AC4IRSfs, Vemi8u, scaledC<Addition, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_16s_C1RSfs, Vemi16s, scaledC<Addition, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_C3RSfs, Vemi16s, scaledC<Addition, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_C4RSfs, Vemi16s, scaledC<Addition, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_AC4RSfs, Vemi16s, scaledC<Addition, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_16s_C1IRSfs, Vemi16s, scaledC<Addition, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_C3IRSfs, Vemi16s, scaledC<Addition, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_C4IRSfs, Vemi16s, scaledC<Addition, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_AC4IRSfs, Vemi16s, scaledC<Addition, AC4, CallerRows>)

VEMI_SRC_VALUE_DST(vemiAddC_32f_C1R, Vemi32f, plainC<Addition, C1, TeamRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_C3R, Vemi32f, plainC<Addition, C3, TeamRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_C4R, Vemi32f, plainC<Addition, C4, CallerRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_AC4R, Vemi32f, plainC<Addition, AC4, CallerRows>)
VEMI_VALUE_SRCDST(vemiAddC_32f_C1IR, Vemi32f, plainC<Addition, C1, TeamRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_C3IR, Vemi32f, plainC<Addition, C3, TeamRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_C4IR, Vemi32f, plainC<Addition, C4, CallerRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_AC4IR, Vemi32f, plainC<Addition, AC4, TeamRows>)
