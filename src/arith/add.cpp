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

VEMI_DEFINE(vemiAdd_8u_C1RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_8u_C3RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Addition, C3>)
VEMI_DEFINE(vemiAdd_8u_C4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Addition, C4>)
VEMI_DEFINE(vemiAdd_8u_AC4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAdd_8u_C1IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_8u_C3IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Addition, C3>)
VEMI_DEFINE(vemiAdd_8u_C4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Addition, C4>)
VEMI_DEFINE(vemiAdd_8u_AC4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Addition, AC4, CallerRows>)

VEMI_DEFINE(vemiAdd_16s_C1RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_16s_C3RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Addition, C3>)
VEMI_DEFINE(vemiAdd_16s_C4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Addition, C4>)
VEMI_DEFINE(vemiAdd_16s_AC4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAdd_16s_C1IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_16s_C3IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Addition, C3>)
VEMI_DEFINE(vemiAdd_16s_C4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Addition, C4>)
VEMI_DEFINE(vemiAdd_16s_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Addition, AC4, CallerRows>)

VEMI_DEFINE(vemiAdd_32f_C1R, VEMI_2SRC_DST(Vemi32f), plain<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_32f_C3R, VEMI_2SRC_DST(Vemi32f), plain<Addition, C3, CallerRows>)
VEMI_DEFINE(vemiAdd_32f_C4R, VEMI_2SRC_DST(Vemi32f), plain<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAdd_32f_AC4R, VEMI_2SRC_DST(Vemi32f), plain<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAdd_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), plain<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAdd_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), plain<Addition, C3, CallerRows>)
VEMI_DEFINE(vemiAdd_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAdd_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Addition, AC4, CallerRows>)

VEMI_DEFINE(vemiAddC_8u_C1RSfs, VEMI_SRC_VALUE_DST(Vemi8u, VEMI_SFS), scaledC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_8u_C3RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_8u_C4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_8u_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAddC_8u_C1IRSfs, VEMI_VALUE_SRCDST(Vemi8u, VEMI_SFS), scaledC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_8u_C3IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_8u_C4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_8u_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Addition, AC4, CallerRows>)

VEMI_DEFINE(vemiAddC_16s_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16s, VEMI_SFS), scaledC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_16s_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_16s_C4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_16s_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAddC_16s_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16s, VEMI_SFS), scaledC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_16s_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_16s_C4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_16s_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Addition, AC4, CallerRows>)

VEMI_DEFINE(vemiAddC_32f_C1R, VEMI_SRC_VALUE_DST(Vemi32f), plainC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_32f_C3R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_32f_C4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_32f_AC4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Addition, AC4, CallerRows>)
VEMI_DEFINE(vemiAddC_32f_C1IR, VEMI_VALUE_SRCDST(Vemi32f), plainC<Addition, C1, TeamRows>)
VEMI_DEFINE(vemiAddC_32f_C3IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Addition, C3, TeamRows>)
VEMI_DEFINE(vemiAddC_32f_C4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Addition, C4, CallerRows>)
VEMI_DEFINE(vemiAddC_32f_AC4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Addition, AC4, TeamRows>)
