// vemiMul, vemiMulC: destination = source 1 * source 2 / 2^scaleFactor for integers, the plain product for floats.
// Checks: null, size, step; the C3 and C4 forms of integer vemiMul look at the width first.

#include "arith/plain.h"
#include "arith/product.h"
#include "arith/scaled_arithmetic.h"
#include "core/exports.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

struct Multiplication {
  template <class T>
  static constexpr int largestScale = largestProductScale<T>;

  template <class T, class F>
  static void dispatchKernel(int scaleFactor, const F& f) {
    dispatchScaledProduct<T>(scaleFactor, f);
  }

  using Float = PlainProduct;

  template <class T>
  static Result resultOf(T value, int scaleFactor) {
    if (value == 0) return Result::zero;
    return value == 1 && scaleFactor == 0 ? Result::source : Result::computed;
  }
};

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_2SRC_DST_SFS(vemiMul_8u_C1RSfs, Vemi8u, scaled<Multiplication, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiMul_8u_C3RSfs, Vemi8u, scaledChannels<Multiplication, C3>)
VEMI_2SRC_DST_SFS(vemiMul_8u_C4RSfs, Vemi8u, scaledChannels<Multiplication, C4>)
VEMI_2SRC_DST_SFS(vemiMul_8u_AC4RSfs, Vemi8u, scaled<Multiplication, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiMul_8u_C1IRSfs, Vemi8u, scaled<Multiplication, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiMul_8u_C3IRSfs, Vemi8u, scaledChannels<Multiplication, C3>)
VEMI_SRC_SRCDST_SFS(vemiMul_8u_C4IRSfs, Vemi8u, scaledChannels<Multiplication, C4>)
VEMI_SRC_SRCDST_SFS(vemiMul_8u_AC4IRSfs, Vemi8u, scaled<Multiplication, AC4, CallerRows>)

VEMI_2SRC_DST_SFS(vemiMul_16s_C1RSfs, Vemi16s, scaled<Multiplication, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiMul_16s_C3RSfs, Vemi16s, scaledChannels<Multiplication, C3>)
VEMI_2SRC_DST_SFS(vemiMul_16s_C4RSfs, Vemi16s, scaledChannels<Multiplication, C4>)
VEMI_2SRC_DST_SFS(vemiMul_16s_AC4RSfs, Vemi16s, scaled<Multiplication, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiMul_16s_C1IRSfs, Vemi16s, scaled<Multiplication, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiMul_16s_C3IRSfs, Vemi16s, scaledChannels<Multiplication, C3>)
VEMI_SRC_SRCDST_SFS(vemiMul_16s_C4IRSfs, Vemi16s, scaledChannels<Multiplication, C4>)
VEMI_SRC_SRCDST_SFS(vemiMul_16s_AC4IRSfs, Vemi16s, scaled<Multiplication, AC4, CallerRows>)

VEMI_2SRC_DST(vemiMul_32f_C1R, Vemi32f, plain<Multiplication, C1, TeamRows>)
VEMI_2SRC_DST(vemiMul_32f_C3R, Vemi32f, plain<Multiplication, C3, CallerRows>)
VEMI_2SRC_DST(vemiMul_32f_C4R, Vemi32f, plain<Multiplication, C4, CallerRows>)
VEMI_2SRC_DST(vemiMul_32f_AC4R, Vemi32f, plain<Multiplication, AC4, CallerRows>)
VEMI_SRC_SRCDST(vemiMul_32f_C1IR, Vemi32f, plain<Multiplication, C1, TeamRows>)
VEMI_SRC_SRCDST(vemiMul_32f_C3IR, Vemi32f, plain<Multiplication, C3, CallerRows>)
VEMI_SRC_SRCDST(vemiMul_32f_C4IR, Vemi32f, plain<Multiplication, C4, CallerRows>)
VEMI_SRC_SRCDST(vemiMul_32f_AC4IR, Vemi32f, plain<Multiplication, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiMulC_8u_C1RSfs, Vemi8u, scaledC<Multiplication, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_8u_C3RSfs, Vemi8u, scaledC<Multiplication, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_8u_C4RSfs, Vemi8u, scaledC<Multiplication, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_8u_AC4RSfs, Vemi8u, scaledC<Multiplication, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiMulC_8u_C1IRSfs, Vemi8u, scaledC<Multiplication, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_8u_C3IRSfs, Vemi8u, scaledC<Multiplication, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_8u_C4IRSfs, Vemi8u, scaledC<Multiplication, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_8u_AC4IRSfs, Vemi8u, scaledC<Multiplication, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiMulC_16s_C1RSfs, Vemi16s, scaledC<Multiplication, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_16s_C3RSfs, Vemi16s, scaledC<Multiplication, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_16s_C4RSfs, Vemi16s, scaledC<Multiplication, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiMulC_16s_AC4RSfs, Vemi16s, scaledC<Multiplication, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiMulC_16s_C1IRSfs, Vemi16s, scaledC<Multiplication, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_16s_C3IRSfs, Vemi16s, scaledC<Multiplication, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_16s_C4IRSfs, Vemi16s, scaledC<Multiplication, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiMulC_16s_AC4IRSfs, Vemi16s, scaledC<Multiplication, AC4, CallerRows>)

VEMI_SRC_VALUE_DST(vemiMulC_32f_C1R, Vemi32f, plainC<Multiplication, C1, TeamRows>)
VEMI_SRC_VALUES_DST(vemiMulC_32f_C3R, Vemi32f, plainC<Multiplication, C3, TeamRows>)
VEMI_SRC_VALUES_DST(vemiMulC_32f_C4R, Vemi32f, plainC<Multiplication, C4, CallerRows>)
VEMI_SRC_VALUES_DST(vemiMulC_32f_AC4R, Vemi32f, plainC<Multiplication, AC4, CallerRows>)
VEMI_VALUE_SRCDST(vemiMulC_32f_C1IR, Vemi32f, plainC<Multiplication, C1, TeamRows>)
VEMI_VALUES_SRCDST(vemiMulC_32f_C3IR, Vemi32f, plainC<Multiplication, C3, TeamRows>)
VEMI_VALUES_SRCDST(vemiMulC_32f_C4IR, Vemi32f, plainC<Multiplication, C4, CallerRows>)
VEMI_VALUES_SRCDST(vemiMulC_32f_AC4IR, Vemi32f, plainC<Multiplication, AC4, TeamRows>)
