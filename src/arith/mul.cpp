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

VEMI_DEFINE(vemiMul_8u_C1RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_8u_C3RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Multiplication, C3>)
VEMI_DEFINE(vemiMul_8u_C4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaledChannels<Multiplication, C4>)
VEMI_DEFINE(vemiMul_8u_AC4RSfs, VEMI_2SRC_DST(Vemi8u, VEMI_SFS), scaled<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMul_8u_C1IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_8u_C3IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Multiplication, C3>)
VEMI_DEFINE(vemiMul_8u_C4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaledChannels<Multiplication, C4>)
VEMI_DEFINE(vemiMul_8u_AC4IRSfs, VEMI_SRC_SRCDST(Vemi8u, VEMI_SFS), scaled<Multiplication, AC4, CallerRows>)

VEMI_DEFINE(vemiMul_16s_C1RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_16s_C3RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Multiplication, C3>)
VEMI_DEFINE(vemiMul_16s_C4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaledChannels<Multiplication, C4>)
VEMI_DEFINE(vemiMul_16s_AC4RSfs, VEMI_2SRC_DST(Vemi16s, VEMI_SFS), scaled<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMul_16s_C1IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_16s_C3IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Multiplication, C3>)
VEMI_DEFINE(vemiMul_16s_C4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaledChannels<Multiplication, C4>)
VEMI_DEFINE(vemiMul_16s_AC4IRSfs, VEMI_SRC_SRCDST(Vemi16s, VEMI_SFS), scaled<Multiplication, AC4, CallerRows>)

VEMI_DEFINE(vemiMul_32f_C1R, VEMI_2SRC_DST(Vemi32f), plain<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_32f_C3R, VEMI_2SRC_DST(Vemi32f), plain<Multiplication, C3, CallerRows>)
VEMI_DEFINE(vemiMul_32f_C4R, VEMI_2SRC_DST(Vemi32f), plain<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMul_32f_AC4R, VEMI_2SRC_DST(Vemi32f), plain<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMul_32f_C1IR, VEMI_SRC_SRCDST(Vemi32f), plain<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMul_32f_C3IR, VEMI_SRC_SRCDST(Vemi32f), plain<Multiplication, C3, CallerRows>)
VEMI_DEFINE(vemiMul_32f_C4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMul_32f_AC4IR, VEMI_SRC_SRCDST(Vemi32f), plain<Multiplication, AC4, CallerRows>)

VEMI_DEFINE(vemiMulC_8u_C1RSfs, VEMI_SRC_VALUE_DST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_8u_C3RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_8u_C4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_8u_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi8u, VEMI_SFS), scaledC<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMulC_8u_C1IRSfs, VEMI_VALUE_SRCDST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_8u_C3IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_8u_C4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_8u_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi8u, VEMI_SFS), scaledC<Multiplication, AC4, CallerRows>)

VEMI_DEFINE(vemiMulC_16s_C1RSfs, VEMI_SRC_VALUE_DST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_16s_C3RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_16s_C4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_16s_AC4RSfs, VEMI_SRC_VALUES_DST(Vemi16s, VEMI_SFS), scaledC<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMulC_16s_C1IRSfs, VEMI_VALUE_SRCDST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_16s_C3IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_16s_C4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_16s_AC4IRSfs, VEMI_VALUES_SRCDST(Vemi16s, VEMI_SFS), scaledC<Multiplication, AC4, CallerRows>)

VEMI_DEFINE(vemiMulC_32f_C1R, VEMI_SRC_VALUE_DST(Vemi32f), plainC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_32f_C3R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_32f_C4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_32f_AC4R, VEMI_SRC_VALUES_DST(Vemi32f), plainC<Multiplication, AC4, CallerRows>)
VEMI_DEFINE(vemiMulC_32f_C1IR, VEMI_VALUE_SRCDST(Vemi32f), plainC<Multiplication, C1, TeamRows>)
VEMI_DEFINE(vemiMulC_32f_C3IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Multiplication, C3, TeamRows>)
VEMI_DEFINE(vemiMulC_32f_C4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Multiplication, C4, CallerRows>)
VEMI_DEFINE(vemiMulC_32f_AC4IR, VEMI_VALUES_SRCDST(Vemi32f), plainC<Multiplication, AC4, TeamRows>)
