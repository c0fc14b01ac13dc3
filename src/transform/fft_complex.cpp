// vemiFFTFwd_CToC, vemiFFTInv_CToC: rows from source to destination, then blocks of 8 columns in the destination.
// Checks: null record, tag, null images, step, memory.
//
// Long rows are lines in their destination's memory; short ones are transposed, 8 at a time. In between, the rows of
// the destination hold 8 real parts, 8 imaginary parts, and so on, which spares both sides the pairs, unless they are
// shorter.

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "signal/fft_columns.h"
#include "transform/fft_spec.h"
#include "transform/short_rows.h"

namespace vemi::transform {
namespace {

using signal::AcrossLines;
using signal::ColumnGroups;
using signal::Roots;

constexpr ptrdiff_t N = ColumnGroups::N;
const ColumnGroups::D d8;

/// An image of complex numbers as floats, twice as many to a row.
struct Floats {
  Image<const float> src;
  Image<float> dst;
};

template <bool isForward>
HWY_INLINE ColumnGroups::Numbers turnedTo(ColumnGroups::Numbers z) {
  return isForward ? z : signal::swapped(z);
}

/// Rows of up to 2^7 numbers.
template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void shortRows(Floats image, ptrdiff_t height, const Roots& roots, int order) {
  alignas(laneAlignment) float memory[ColumnGroups{}.stride << (signal::shortestLineOrder - 1)];
  const ColumnGroups data{memory};
  const ptrdiff_t floats = ptrdiff_t{2} << order;
  for (ptrdiff_t y = 0; y < height; y += 8) {
    const EightRows<const float> from(y, height, [&](ptrdiff_t i) { return image.src.row(i); });
    const EightRows<float> to(y, height, [&](ptrdiff_t i) { return image.dst.row(i); });
    from.load(floats, [&](ptrdiff_t e, auto first, auto v)
                          HWY_ATTR { hn::StoreU(v, d8, data.at(e / 2, first) + (e % 2 != 0) * N); });
    signal::transformColumns(
        data, roots, order, [&](ptrdiff_t x, auto k) HWY_ATTR { return turnedTo<isForward>(data.load(x, k)); },
        [&](ptrdiff_t place, ptrdiff_t, auto k, auto z) HWY_ATTR { data.store(place, k, turnedTo<isForward>(z)); });
    to.store<Alpha::none>(floats, [&](ptrdiff_t e, auto first) HWY_ATTR {
      const bool inEights = order >= 3;
      const ptrdiff_t x = inEights ? e / 16 * 8 + e % 8 : e / 2;
      const bool isImaginary = (inEights ? e / 8 : e) % 2 != 0;
      return hn::LoadU(d8, data.at(placeOf(x, order), first) + (isImaginary ? N : 0));
    });
  }
}

/// Blocks of 8 columns.
template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void columns(Floats image, ptrdiff_t width, bool inEights, const Roots& roots, int order,
                                      float scale, float* memory) {
  const ColumnGroups data{memory};
  const auto factor = hn::Set(d8, scale);
  for (ptrdiff_t x = 0; x < width; x += 8) {
    const ptrdiff_t count = std::min<ptrdiff_t>(width - x, 8);
    const size_t bytes = static_cast<size_t>(count) * 2 * sizeof(float);
    const auto load = [&](ptrdiff_t y, auto k) HWY_ATTR {
      float end[16] = {};
      const float* numbers = image.src.row(y) + 2 * x;
      askForRow(image.src, y + rowsAhead, 2 * x);
      askForRow(image.src, y + rowsAhead, 2 * x + 15);
      if (count == 8 && inEights) {
        return turnedTo<isForward>({hn::LoadU(d8, numbers + k * N), hn::LoadU(d8, numbers + 8 + k * N)});
      }
      if (count < 8) numbers = static_cast<const float*>(std::memcpy(end, numbers, bytes));
      ColumnGroups::Numbers z;
      hn::LoadInterleaved2(d8, numbers + 2 * k * N, z.re, z.im);
      return turnedTo<isForward>(z);
    };
    const auto store = [&](ptrdiff_t, ptrdiff_t y, auto k, ColumnGroups::Numbers z) HWY_ATTR {
      z = turnedTo<isForward>(z);
      z = {hn::Mul(z.re, factor), hn::Mul(z.im, factor)};
      float* const numbers = image.dst.row(y) + 2 * x;
      askForRow(image.dst, y + rowsAhead, 2 * x);
      if (count == 8) return hn::StoreInterleaved2(z.re, z.im, d8, numbers + 2 * k * N);
      float end[2 * N];
      hn::StoreInterleaved2(z.re, z.im, d8, end);
      const ptrdiff_t own = std::min<ptrdiff_t>(count - k * N, N);
      if (own > 0) std::memcpy(numbers + 2 * k * N, end, static_cast<size_t>(own) * 2 * sizeof(float));
    };
    signal::transformColumns(data, roots, order, load, store);
  }
}

template <bool isForward>
VemiStatus complexFFT(Image<const Vemi32fc> src, Image<Vemi32fc> dst, const VemiFFTSpec_C_32fc* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, complexFFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  const signal::SigFFTSpec_C& lineX = *spec->complexSpecX;
  const signal::SigFFTSpec_C& lineY = spec->complexSpecY == nullptr ? lineX : *spec->complexSpecY;
  const float scale = scaleOfImage(lineX, isForward, spec->orderX + spec->orderY);
  Floats image = {{reinterpret_cast<const float*>(src.first), src.step},
                  {reinterpret_cast<float*>(dst.first), dst.step}};
  if (spec->orderY == 0) {
    complexLine(isForward, image.src.first, image.dst.first, lineX.roots, spec->orderX, scale, signal::pairs);
    return vemiOk;
  }
  if (spec->orderX >= signal::shortestLineOrder) {
    for (ptrdiff_t y = 0; y < spec->height(); ++y) {
      complexLine(isForward, image.src.row(y), image.dst.row(y), lineX.roots, spec->orderX, 1, signal::eights);
    }
    image.src = {image.dst.first, image.dst.step};
  } else if (spec->orderX > 0) {
    shortRows<isForward>(image, spec->height(), lineX.roots, spec->orderX);
    image.src = {image.dst.first, image.dst.step};
  }
  columns<isForward>(image, spec->width(), spec->orderX >= 3, lineY.roots, spec->orderY, scale,
                     columnMemory(scratch, spec->orderY));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define IMAGES_SPEC                                                                                                    \
  ((const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep, const VemiFFTSpec_C_32fc* pSpec, Vemi8u* pBuffer), \
   (Image<const Vemi32fc>{pSrc, srcStep}, Image<Vemi32fc>{pDst, dstStep}, pSpec, pBuffer))

VEMI_DEFINE(vemiFFTFwd_CToC_32fc_C1R, IMAGES_SPEC, complexFFT<true>)
VEMI_DEFINE(vemiFFTInv_CToC_32fc_C1R, IMAGES_SPEC, complexFFT<false>)
