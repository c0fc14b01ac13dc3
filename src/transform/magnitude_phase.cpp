// vemiMagnitude, vemiPhase and the same of packed spectra; vemiPackToCplxExtend; vemiPolarToCart.
// Checks: null, size, step, and for the packed forms memory.
//
// A packed spectrum becomes whole rows of complex numbers, of floats as they are and of integers as doubles, which hold
// the negative of every one. Integer results come from double precision too.

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>
#include <type_traits>

#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/pixel_region.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "signal/arc_tangent.h"
#include "signal/sine_cosine.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

// ---- Complex numbers to one -----------------------------------------------------------------------------------------

struct Magnitude {
  template <class D, class V>
  HWY_INLINE V operator()(D, V re, V im) const {
    return hn::Sqrt(hn::Add(hn::Mul(re, re), hn::Mul(im, im)));
  }
};

struct Phase {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V re, V im) const {
    return signal::ArcTangent()(d, im, re);
  }
};

/// A pair of any element type, as rows of them stand in memory.
template <class Part>
struct Pair {
  Part re, im;
};

/// Of pairs in memory, in double precision, scaled and rounded.
template <class Op>
struct ToIntegers {
  double factor;

  template <class D, class Part>
  HWY_INLINE hn::Vec<D> operator()(D d, const Pair<Part>* in) const {
    using T = hn::TFromD<D>;
    if constexpr (sizeof(T) == 4) {
      return nearestOf<T>(d, doubles(in), doubles(in + laneCount<double>));
    } else {
      const Lanes<int32_t> di;
      return packEach<int32_t>(d, [&](auto k) HWY_ATTR {
        const Pair<Part>* const from = in + k * laneCount<int32_t>;
        return nearestOf<T>(di, doubles(from), doubles(from + laneCount<double>));
      });
    }
  }

 private:
  template <class Part>
  HWY_INLINE auto doubles(const Pair<Part>* in) const {
    const Lanes<double> d;
    const auto* const part = reinterpret_cast<const Part*>(in);
    const auto lower = loadExtended(d, part), upper = loadExtended(d, part + laneCount<double>);
    const auto value = Op()(d, hn::ConcatEven(d, upper, lower), hn::ConcatOdd(d, upper, lower));
    return hn::Mul(value, hn::Set(d, factor));
  }
};

/// Finite, so that a zero stays one; beyond, all other results are zeros or limits all the same.
double factorOf(int scaleFactor) { return std::ldexp(1.0, -std::clamp(scaleFactor, -1000, 1000)); }

template <class Op>
void floatRow(ptrdiff_t count, const Pair<float>* src, float* dst) {
  mapPixels(count, Op(), planeRow(dst), pixelRow<C2>(&src->re));
}

/// Rows in pieces, the next of which is asked for in time: beside a long computation a processor looks too few elements
/// ahead to find memory that is far away. f(y, x, count) for the elements from x on.
template <class F, class... T>
void forPiecesAhead(Extent extent, const F& f, Image<const T>... src) {
  constexpr ptrdiff_t piece = 128, line = 64;
  for (ptrdiff_t y = 0; y < extent.height; ++y) {
    for (ptrdiff_t x = 0; x < extent.width; x += piece) {
      const bool isLast = x + piece >= extent.width;
      const auto ask = [&](const auto* next) {
        const auto* const from = reinterpret_cast<const char*>(next);
        const ptrdiff_t bytes = std::min(piece, extent.width) * ptrdiff_t{sizeof *next};
        for (ptrdiff_t i = 0; i < bytes; i += line) __builtin_prefetch(from + i);
      };
      (ask(isLast ? src.row(std::min(y + 1, extent.height - 1)) : src.row(y) + x + piece), ...);
      f(y, x, std::min(piece, extent.width - x));
    }
  }
}

template <int channels, class Op>
VemiStatus ofFloats(Image<const Vemi32fc> src, Image<Vemi32f> dst, VemiSize size) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(size), checkStep(src, dst))) return bad;
  const Extent extent = {ptrdiff_t{size.width} * channels, size.height};
  if constexpr (std::is_same_v<Op, Magnitude>) {
    const Image<const float> parts = {reinterpret_cast<const float*>(src.first), src.step};
    mapPixelRows(CallerRows(), extent, Op(), pixelsOf<C1>(dst), pixelsOf<C2>(parts));
  } else {
    forPiecesAhead(
        extent,
        [&](ptrdiff_t y, ptrdiff_t x, ptrdiff_t count) {
          floatRow<Op>(count, reinterpret_cast<const Pair<float>*>(src.row(y) + x), dst.row(y) + x);
        },
        src);
  }
  return vemiOk;
}

template <int channels, class Op, class Complex, class T>
VemiStatus ofIntegers(Image<const Complex> src, Image<T> dst, VemiSize size, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(size), checkStep(src, dst))) return bad;
  return roundingToNearest([&] {
    const ToIntegers<Op> op = {factorOf(scaleFactor)};
    for (ptrdiff_t y = 0; y < size.height; ++y) {
      mapElements<Alpha::none>(ptrdiff_t{size.width} * channels, eachVector<1>(op), dst.row(y),
                               reinterpret_cast<const Pair<T>*>(src.row(y)));
    }
    return vemiOk;
  });
}

// ---- Packed spectra as rows of complex numbers ----------------------------------------------------------------------

float negated(float v) { return -v; }
double negated(double v) { return 0 - v; }  // as integers are: a zero has no sign
Vemi32s negated(Vemi32s v) {
  return v == std::numeric_limits<Vemi32s>::min() ? std::numeric_limits<Vemi32s>::max() : -v;
}

/// One channel of a packed spectrum of `elements` to a pixel.
template <int elements, class T>
struct Packed {
  Image<const T> image;  // from the channel on
  ptrdiff_t width, height;

  /// What column x has for row y: one element, or a pair of rows, in the lower half conjugated.
  template <class Part>
  Pair<Part> edge(ptrdiff_t x, ptrdiff_t y) const {
    const auto at = [&](ptrdiff_t row) { return static_cast<Part>(elementOf(image.row(row) + x * elements)); };
    const ptrdiff_t v = std::min(y, height - y);
    if (v == 0) return {at(0), Part(0)};
    if (2 * v == height) return {at(height - 1), Part(0)};
    const Pair<Part> pair = {at(2 * v - 1), at(2 * v)};
    return y == v ? pair : Pair<Part>{pair.re, negated(pair.im)};
  }

  /// F(0, y) to F(W - 1, y), from an address on.
  template <class Part>
  void wholeRow(ptrdiff_t y, void* row) const {
    const auto put = [=](ptrdiff_t u, Pair<Part> pair) {
      std::memcpy(static_cast<char*>(row) + u * ptrdiff_t{sizeof pair}, &pair, sizeof pair);
    };
    const auto numberIn = [](const T* from, ptrdiff_t u) {
      return Pair<Part>{static_cast<Part>(elementOf(from + (2 * u - 1) * elements)),
                        static_cast<Part>(elementOf(from + 2 * u * elements))};
    };
    put(0, edge<Part>(0, y));
    if (width > 1 && width % 2 == 0) put(width / 2, edge<Part>(width - 1, y));
    const T* const own = image.row(y);
    const T* const opposite = image.row(y == 0 ? 0 : height - y);
    for (ptrdiff_t u = 1; 2 * u < width; ++u) put(u, numberIn(own, u));
    for (ptrdiff_t u = 1; 2 * u < width; ++u) {
      const Pair<Part> number = numberIn(opposite, u);
      put(width - u, {number.re, negated(number.im)});
    }
  }
};

/// rowOf(count, pairs, dst) makes a row of what a whole row of the spectrum holds.
template <int channels, class Part, class T, class RowOf>
VemiStatus ofPacked(Image<const T> src, Image<T> dst, VemiSize size, const RowOf& rowOf) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(size), checkStep(src, dst))) return bad;
  Pieces pieces;
  const auto pairs = pieces.add<Pair<Part>>(size.width);
  const auto results = pieces.add<T>(channels == 1 ? 0 : size.width);
  const Scratch scratch(pieces);
  if (scratch.failed()) return vemiErrNullPtr;
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    for (int channel = 0; channel < channels; ++channel) {
      const Packed<channels, T> packed = {{src.first + channel, src.step}, size.width, size.height};
      packed.template wholeRow<Part>(y, scratch[pairs]);
      T* const row = channels == 1 ? dst.row(y) : scratch[results];
      rowOf(size.width, scratch[pairs], row);
      for (ptrdiff_t x = 0; channels > 1 && x < size.width; ++x) {
        std::memcpy(dst.row(y) + x * channels + channel, row + x, sizeof(T));
      }
    }
  }
  return vemiOk;
}

template <int channels, class Op>
VemiStatus ofPackedFloats(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize size) {
  return ofPacked<channels, float>(src, dst, size, floatRow<Op>);
}

template <int channels, class Op, class T>
VemiStatus ofPackedIntegers(Image<const T> src, Image<T> dst, VemiSize size, int scaleFactor) {
  return roundingToNearest([&] {
    const ToIntegers<Op> op = {factorOf(scaleFactor)};
    return ofPacked<channels, double>(src, dst, size, [&](ptrdiff_t count, const Pair<double>* pairs, T* row) {
      mapElements<Alpha::none>(count, eachVector<1>(op), row, pairs);
    });
  });
}

template <class T, class Complex>
VemiStatus extend(Image<const T> src, VemiSize size, Image<Complex> dst) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(size), checkStep(src, dst))) return bad;
  const Packed<1, T> packed = {src, size.width, size.height};
  for (ptrdiff_t y = 0; y < size.height; ++y) packed.template wholeRow<T>(y, dst.row(y));
  return vemiOk;
}

// ---- Magnitudes and phases to complex numbers -----------------------------------------------------------------------

struct Cartesian {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V magnitude, V phase) const {
    const auto direction = signal::SineAndCosine()(d, phase);
    return std::tuple(hn::Mul(magnitude, direction.cosine), hn::Mul(magnitude, direction.sine));
  }
};

VemiStatus polarToCartesian(Image<const Vemi32f> magnitude, Image<const Vemi32f> phase, Image<Vemi32fc> dst,
                            VemiSize size) {
  if (const VemiStatus bad =
          firstOf(checkNull(magnitude, phase, dst), checkSize(size), checkStep(magnitude, phase, dst))) {
    return bad;
  }
  forPiecesAhead(
      {size.width, size.height},
      [&](ptrdiff_t y, ptrdiff_t x, ptrdiff_t count) {
        mapPixels(count, Cartesian(), pixelRow<C2>(&(dst.row(y) + x)->re), planeRow(magnitude.row(y) + x),
                  planeRow(phase.row(y) + x));
      },
      magnitude, phase);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VEMI_DEFINE(vemiMagnitudePack_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ofPackedIntegers<1, Magnitude>)
VEMI_DEFINE(vemiMagnitudePack_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ofPackedIntegers<3, Magnitude>)
VEMI_DEFINE(vemiMagnitudePack_32s_C1RSfs, VEMI_SRC_DST(Vemi32s, VEMI_SFS), ofPackedIntegers<1, Magnitude>)
VEMI_DEFINE(vemiMagnitudePack_32s_C3RSfs, VEMI_SRC_DST(Vemi32s, VEMI_SFS), ofPackedIntegers<3, Magnitude>)
VEMI_DEFINE(vemiMagnitudePack_32f_C1R, VEMI_SRC_DST(Vemi32f), ofPackedFloats<1, Magnitude>)
VEMI_DEFINE(vemiMagnitudePack_32f_C3R, VEMI_SRC_DST(Vemi32f), ofPackedFloats<3, Magnitude>)

VEMI_DEFINE(vemiPhasePack_16s_C1RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ofPackedIntegers<1, Phase>)
VEMI_DEFINE(vemiPhasePack_16s_C3RSfs, VEMI_SRC_DST(Vemi16s, VEMI_SFS), ofPackedIntegers<3, Phase>)
VEMI_DEFINE(vemiPhasePack_32s_C1RSfs, VEMI_SRC_DST(Vemi32s, VEMI_SFS), ofPackedIntegers<1, Phase>)
VEMI_DEFINE(vemiPhasePack_32s_C3RSfs, VEMI_SRC_DST(Vemi32s, VEMI_SFS), ofPackedIntegers<3, Phase>)
VEMI_DEFINE(vemiPhasePack_32f_C1R, VEMI_SRC_DST(Vemi32f), ofPackedFloats<1, Phase>)
VEMI_DEFINE(vemiPhasePack_32f_C3R, VEMI_SRC_DST(Vemi32f), ofPackedFloats<3, Phase>)

VEMI_DEFINE(vemiMagnitude_16sc16s_C1RSfs, VEMI_CONVERSION(Vemi16sc, Vemi16s, VEMI_SFS), ofIntegers<1, Magnitude>)
VEMI_DEFINE(vemiMagnitude_16sc16s_C3RSfs, VEMI_CONVERSION(Vemi16sc, Vemi16s, VEMI_SFS), ofIntegers<3, Magnitude>)
VEMI_DEFINE(vemiMagnitude_32sc32s_C1RSfs, VEMI_CONVERSION(Vemi32sc, Vemi32s, VEMI_SFS), ofIntegers<1, Magnitude>)
VEMI_DEFINE(vemiMagnitude_32sc32s_C3RSfs, VEMI_CONVERSION(Vemi32sc, Vemi32s, VEMI_SFS), ofIntegers<3, Magnitude>)
VEMI_DEFINE(vemiMagnitude_32fc32f_C1R, VEMI_CONVERSION(Vemi32fc, Vemi32f), ofFloats<1, Magnitude>)
VEMI_DEFINE(vemiMagnitude_32fc32f_C3R, VEMI_CONVERSION(Vemi32fc, Vemi32f), ofFloats<3, Magnitude>)

VEMI_DEFINE(vemiPhase_16sc16s_C1RSfs, VEMI_CONVERSION(Vemi16sc, Vemi16s, VEMI_SFS), ofIntegers<1, Phase>)
VEMI_DEFINE(vemiPhase_16sc16s_C3RSfs, VEMI_CONVERSION(Vemi16sc, Vemi16s, VEMI_SFS), ofIntegers<3, Phase>)
VEMI_DEFINE(vemiPhase_32sc32s_C1RSfs, VEMI_CONVERSION(Vemi32sc, Vemi32s, VEMI_SFS), ofIntegers<1, Phase>)
VEMI_DEFINE(vemiPhase_32sc32s_C3RSfs, VEMI_CONVERSION(Vemi32sc, Vemi32s, VEMI_SFS), ofIntegers<3, Phase>)
VEMI_DEFINE(vemiPhase_32fc32f_C1R, VEMI_CONVERSION(Vemi32fc, Vemi32f), ofFloats<1, Phase>)
VEMI_DEFINE(vemiPhase_32fc32f_C3R, VEMI_CONVERSION(Vemi32fc, Vemi32f), ofFloats<3, Phase>)

#define PACK_TO_COMPLEX(S, T)                                            \
  ((const S* pSrc, VemiSize srcSize, int srcStep, T* pDst, int dstStep), \
   (Image<const S>{pSrc, srcStep}, srcSize, Image<T>{pDst, dstStep}))

VEMI_DEFINE(vemiPackToCplxExtend_32f32fc_C1R, PACK_TO_COMPLEX(Vemi32f, Vemi32fc), extend)
VEMI_DEFINE(vemiPackToCplxExtend_32s32sc_C1R, PACK_TO_COMPLEX(Vemi32s, Vemi32sc), extend)

VemiStatus vemiPolarToCart_32f32fc_P2C1R(const Vemi32f* pSrcMagn, const Vemi32f* pSrcPhase, int srcStep, Vemi32fc* pDst,
                                         int dstStep, VemiSize roiSize) {
  return polarToCartesian({pSrcMagn, srcStep}, {pSrcPhase, srcStep}, {pDst, dstStep}, roiSize);
}
