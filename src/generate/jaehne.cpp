// vemiImageJaehne: a radial chirp. With dx and dy counted from the middle of the region of width W and height H,
// s = sin((dx^2 + dy^2) 2 pi / (4 H)), and each element is s, or s + 1 in the types without a sign and in floats,
// scaled to the range of its type. Checks: null, step, size.
//
// Pixels that mirror each other have the same value to the last bit, so a quarter of them is computed.

#include <algorithm>
#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/grey_row.h"
#include "core/image.h"
#include "core/rounding.h"
#include "signal/sine.h"
#include "vemi/generate.h"

namespace vemi::generate {
namespace {

/// Half of what separates the darkest from the brightest value.
template <class T>
inline constexpr double amplitude = sizeof(T) == 1   ? 127.99999
                                    : sizeof(T) == 2 ? 32767.99999
                                                     : 2147483647.99999;
template <>
inline constexpr double amplitude<float> = 0.49999;

template <class T, class D, class V>
HWY_INLINE auto elementsOf(D d, V sine) {
  constexpr bool isShifted = std::is_unsigned_v<T> || std::is_same_v<T, float>;
  if constexpr (isShifted) sine = hn::Add(sine, hn::Set(d, 1.0));
  const V value = hn::Mul(sine, hn::Set(d, amplitude<T>));
  const hn::Rebind<T, D> dElements;
  if constexpr (std::is_same_v<T, float>) {
    return hn::DemoteTo(dElements, value);
  } else {
    const auto integers = truncatedDoubles(hn::Rebind<int32_t, D>(), value);
    if constexpr (sizeof(T) == 4) return integers;
    if constexpr (sizeof(T) < 4) return hn::DemoteTo(dElements, integers);
  }
}

struct Chirp {
  double middleX, middleY, divisor;

  explicit Chirp(VemiSize roiSize)
      : middleX(0.5 * (roiSize.width - 1.0)), middleY(0.5 * (roiSize.height - 1.0)), divisor(4.0 * roiSize.height) {}

  /// The elements of `count` pixels from (x, y) on. Each step is a pass of its own: a processor that looks ahead has
  /// several vectors of a short pass under way.
  template <class T>
  void draw(ptrdiff_t count, ptrdiff_t x, ptrdiff_t y, T* values) const {
    const Lanes<double> d;
    const hn::Rebind<T, decltype(d)> dElements;
    constexpr ptrdiff_t N = laneCount<double>;
    const double dy = static_cast<double>(y) - middleY;
    const auto dySquared = hn::Set(d, dy * dy);
    alignas(laneAlignment) double angles[greyPiece];
    for (ptrdiff_t i = 0; i < count; i += N) {
      const auto dx = hn::Sub(hn::Iota(d, static_cast<double>(x + i)), hn::Set(d, middleX));
      const auto squared = hn::Add(hn::Mul(dx, dx), dySquared);
      hn::Store(hn::Div(hn::Mul(squared, hn::Set(d, 6.283185307179586)), hn::Set(d, divisor)), d, angles + i);
    }
    for (ptrdiff_t i = 0; i < count; i += N) {
      hn::StoreU(elementsOf<T>(d, signal::Sine()(d, hn::Load(d, angles + i))), dElements, values + i);
    }
  }
};

template <class L, class T>
VemiStatus drawChirp(Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(dst), checkStep(dst), checkSize(roiSize))) return bad;
  return roundingToNearest([&] {
    const Chirp chirp(roiSize);
    const ptrdiff_t width = roiSize.width, halfWidth = (width + 1) / 2;
    GreyPiece<T> piece, mirrored;
    for (ptrdiff_t y = 0; y <= (roiSize.height - 1) / 2; ++y) {
      for (ptrdiff_t x = 0; x < halfWidth; x += greyPiece) {
        const ptrdiff_t n = std::min(greyPiece, halfWidth - x);
        chirp.draw(n, x, y, piece.value);
        std::reverse_copy(piece.value, piece.value + n, mirrored.value);
        for (const ptrdiff_t row : {y, roiSize.height - 1 - y}) {
          writeGrey<L>(n, piece.value, dst.row(row) + x * L::elements);
          writeGrey<L>(n, mirrored.value, dst.row(row) + (width - x - n) * L::elements);
        }
      }
    }
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::generate

using namespace vemi;
using namespace vemi::generate;

VEMI_DEFINE(vemiImageJaehne_8u_C1R, VEMI_DST(Vemi8u), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_8u_C3R, VEMI_DST(Vemi8u), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_8u_C4R, VEMI_DST(Vemi8u), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_8u_AC4R, VEMI_DST(Vemi8u), drawChirp<AC4>)
VEMI_DEFINE(vemiImageJaehne_8s_C1R, VEMI_DST(Vemi8s), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_8s_C3R, VEMI_DST(Vemi8s), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_8s_C4R, VEMI_DST(Vemi8s), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_8s_AC4R, VEMI_DST(Vemi8s), drawChirp<AC4>)
VEMI_DEFINE(vemiImageJaehne_16u_C1R, VEMI_DST(Vemi16u), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_16u_C3R, VEMI_DST(Vemi16u), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_16u_C4R, VEMI_DST(Vemi16u), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_16u_AC4R, VEMI_DST(Vemi16u), drawChirp<AC4>)
VEMI_DEFINE(vemiImageJaehne_16s_C1R, VEMI_DST(Vemi16s), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_16s_C3R, VEMI_DST(Vemi16s), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_16s_C4R, VEMI_DST(Vemi16s), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_16s_AC4R, VEMI_DST(Vemi16s), drawChirp<AC4>)
VEMI_DEFINE(vemiImageJaehne_32s_C1R, VEMI_DST(Vemi32s), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_32s_C3R, VEMI_DST(Vemi32s), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_32s_C4R, VEMI_DST(Vemi32s), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_32s_AC4R, VEMI_DST(Vemi32s), drawChirp<AC4>)
VEMI_DEFINE(vemiImageJaehne_32f_C1R, VEMI_DST(Vemi32f), drawChirp<C1>)
VEMI_DEFINE(vemiImageJaehne_32f_C3R, VEMI_DST(Vemi32f), drawChirp<C3>)
VEMI_DEFINE(vemiImageJaehne_32f_C4R, VEMI_DST(Vemi32f), drawChirp<C4>)
VEMI_DEFINE(vemiImageJaehne_32f_AC4R, VEMI_DST(Vemi32f), drawChirp<AC4>)
