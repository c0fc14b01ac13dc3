// vemiExp: e to the power of the source, divided by 2^scaleFactor for integers; ties go up. Checks: null, size, step.

#include <algorithm>
#include <cmath>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "signal/exp.h"
#include "vemi/arith.h"

namespace vemi::arith {
namespace {

/// e^x / 2^scaleFactor, to nearest with ties up, saturated; |scaleFactor| is below 2^20.
template <class T>
T roundedExp(int x, int scaleFactor) {
  constexpr double highest = std::numeric_limits<T>::max();
  constexpr double ln2Upper = 0x1.62e42fefp-1, ln2Lower = 0x1.473de6af278edp-34;
  // Where e^x would leave the range of double, the power of two is taken from the exponent.
  const int taken = std::abs(scaleFactor) <= 1000 ? 0 : scaleFactor;
  const double power = std::exp((x - taken * ln2Upper) - taken * ln2Lower);
  return static_cast<T>(std::min(std::ldexp(power, taken - scaleFactor) + 0.5, highest));
}

/// Powers grow so fast that at most twelve successive exponents have a result between 0 and the highest value. So
/// sixteen results are the whole function: the first of them stands for all below it too, the last for all above.
template <class T>
struct ExpWindow {
  T first;
  alignas(16) uint8_t lower[16], upper[16];  // bytes of the results

  explicit ExpWindow(int scaleFactor) {
    constexpr int limit = 1 << 16;
    const int s = std::clamp(scaleFactor, -limit, limit);
    const double firstAboveZero = std::ceil((s - 1) * 0.69314718055994531);
    first = static_cast<T>(
        std::clamp<double>(firstAboveZero - 1, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    for (int i = 0; i < 16; ++i) {
      const T result = roundedExp<T>(first + i, s);
      lower[i] = static_cast<uint8_t>(result);
      upper[i] = static_cast<uint8_t>(result >> 8);
    }
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::Repartition<uint8_t, D> dBytes;
    const V place = hn::Min(hn::SaturatedSub(v, hn::Set(d, first)), hn::Set(d, 15));
    if constexpr (sizeof(T) == 1) {
      return hn::TableLookupBytes(hn::LoadDup128(d, lower), place);
    } else {
      // The lookup answers an index of 0x80, here for the upper byte of each lane, with zero.
      const V index = hn::Or(hn::Max(place, hn::Zero(d)), hn::Set(d, std::numeric_limits<T>::min()));
      const V low = hn::BitCast(d, hn::TableLookupBytesOr0(hn::LoadDup128(dBytes, lower), hn::BitCast(dBytes, index)));
      const V high = hn::BitCast(d, hn::TableLookupBytesOr0(hn::LoadDup128(dBytes, upper), hn::BitCast(dBytes, index)));
      return hn::Or(low, hn::ShiftLeft<8>(high));
    }
  }
};

template <class T, class L>
VemiStatus expScaled(Image<const T> src, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L>(CallerRows(), roiSize, eachVector(ExpWindow<T>(scaleFactor)), dst, src);
  return vemiOk;
}

template <class L>
VemiStatus exp32f(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapRegion<L, Stores::cached>(CallerRows(), roiSize, eachVector(signal::Exp()), dst, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::arith

using namespace vemi;
using namespace vemi::arith;

VEMI_DEFINE(vemiExp_8u_C1RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), expScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiExp_8u_C3RSfs, VEMI_SRC_DST(Vemi8u, VEMI_SFS), expScaled<Vemi8u, C3>)
VEMI_DEFINE(vemiExp_8u_C1IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), expScaled<Vemi8u, C1>)
VEMI_DEFINE(vemiExp_8u_C3IRSfs, VEMI_SRCDST(Vemi8u, VEMI_SFS), expScaled<Vemi8u, C3>)

VEMI_DEFINE(vemiExp_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), expScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiExp_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), expScaled<Vemi16s, C3>)
VEMI_DEFINE(vemiExp_16s_C1IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), expScaled<Vemi16s, C1>)
VEMI_DEFINE(vemiExp_16s_C3IRSfs, VEMI_SRCDST(Vemi16s, VEMI_SFS), expScaled<Vemi16s, C3>)

VEMI_DEFINE(vemiExp_32f_C1R, VEMI_SRC_DST(Vemi32f), exp32f<C1>)
VEMI_DEFINE(vemiExp_32f_C3R, VEMI_SRC_DST(Vemi32f), exp32f<C3>)
VEMI_DEFINE(vemiExp_32f_C1IR, VEMI_SRCDST(Vemi32f), exp32f<C1>)
VEMI_DEFINE(vemiExp_32f_C3IR, VEMI_SRCDST(Vemi32f), exp32f<C3>)
