// vemiFFTFwd_CToC, vemiFFTInv_CToC: rows from source to destination, then blocks of 8 columns in the destination.
// Checks: null record, tag, null images, step, memory.
//
// Long rows are lines in their destination's memory, the shortest ones are transposed, 8 at a time, and those in
// between are lines until their last transforms, which stand 8 side by side. In the end the rows of the destination
// hold 8 real parts, 8 imaginary parts, and so on, which spares both sides the pairs, unless they are shorter.

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "signal/fft_columns.h"
#include "signal/fft_line.h"
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

/// Rows of up to 2^4 numbers.
template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void shortRows(Floats image, ptrdiff_t height, const Roots& roots, int order) {
  alignas(laneAlignment) float memory[ColumnGroups{}.stride << 4];
  const ColumnGroups data{memory};
  const ptrdiff_t floats = ptrdiff_t{2} << order;
  // Of the inverse, real and imaginary parts are changed over.
  const auto part = [&](ptrdiff_t n, ptrdiff_t lane, bool isImaginary) {
    return data.at(n, lane) + (isImaginary == isForward ? N : 0);
  };
  for (ptrdiff_t y = 0; y < height; y += 8) {
    const EightRows<const float> from(y, height, [&](ptrdiff_t i) { return image.src.row(i); });
    const EightRows<float> to(y, height, [&](ptrdiff_t i) { return image.dst.row(i); });
    from.load(floats,
              [&](ptrdiff_t e, auto first, auto v) HWY_ATTR { hn::StoreU(v, d8, part(e / 2, first, e % 2 != 0)); });
    signal::transformColumns<signal::PreciseTransform>(data, roots, order);
    to.store<Alpha::none, false>(floats, [&](auto dOf, ptrdiff_t e, auto first) HWY_ATTR {
      const bool inEights = order >= 3;
      const ptrdiff_t x = inEights ? e / 16 * 8 + e % 8 : e / 2;
      const bool isImaginary = (inEights ? e / 8 : e) % 2 != 0;
      return hn::LoadU(dOf, part(placeOf(x, order), first, isImaginary));
    });
  }
}

/// Rows of 2^5 to 2^7 numbers: two that end with 4 transforms of 8 or 16 numbers each, or one that ends with 16.
template <bool isForward, int order>
HWY_NOINLINE HWY_FLATTEN void mediumRows(Floats image, ptrdiff_t height, const Roots& roots, int) {
  using signal::AlongShortLine;
  using signal::bitsReversed;
  constexpr int endOrder = order % 2 == 0 ? 4 : 3, points = 1 << endOrder, transforms = 1 << (order - endOrder);
  constexpr ptrdiff_t groupsOfEach = points / 8;
  constexpr bool isAlone = transforms == 16;
  const hn::CappedTag<float, 4> d4;
  alignas(laneAlignment) float memory[ColumnGroups{}.stride << (7 - AlongShortLine::groupOrder)];
  const ColumnGroups data{memory};
  for (ptrdiff_t y = 0; y < height; y += isAlone ? 1 : 2) {
    for (ptrdiff_t i = 0; i < (isAlone ? 1 : 2); ++i) {
      const float* const from = image.src.row(y + i);
      const ColumnGroups line = data.from(i * transforms * groupsOfEach);
      signal::levelByFour<AlongShortLine>(line, roots, order, [&](ptrdiff_t group, auto k) HWY_ATTR {
        ColumnGroups::Numbers z;
        hn::LoadInterleaved2(d8, from + 2 * (8 * group + k * N), z.re, z.im);
        return turnedTo<isForward>(z);
      });
      for (ptrdiff_t quarter = 0; isAlone && quarter < 4; ++quarter) {
        const ColumnGroups own = line.from(4 * quarter);
        signal::levelByFour<AlongShortLine>(own, roots, order - 2,
                                            [&](ptrdiff_t group, auto k) HWY_ATTR { return own.load(group, k); });
      }
    }
    for (ptrdiff_t first = 0; first < (isAlone ? 16 : 8); first += N) {
      ColumnGroups::Numbers z[points];
      signal::transformAcross<points>(z, [&](auto lane, auto k) HWY_ATTR {
        const ptrdiff_t at = first + lane;
        const ptrdiff_t own = isAlone ? bitsReversed(at, 4) : at / 4 * 4 + bitsReversed(at % 4, 2);
        return data.load(own * groupsOfEach + k * N / 8, std::integral_constant<int, k * N % 8 / N>());
      });
      unrolled<points>([&](auto n) HWY_ATTR {
        const auto result = turnedTo<isForward>(z[bitsReversed(n, endOrder)]);
        const auto put = [&](ptrdiff_t row, ptrdiff_t x, auto d, auto re, auto im) HWY_ATTR {
          float* const to = image.dst.row(y + row) + x / 8 * 16 + x % 8;
          hn::StoreU(re, d, to);
          hn::StoreU(im, d, to + 8);
        };
        if constexpr (isAlone) {
          put(0, n * 16 + first, d8, result.re, result.im);
        } else if constexpr (N == 4) {
          put(first / 4, n * 4, d4, result.re, result.im);
        } else {
          put(0, n * 4, d4, hn::LowerHalf(d4, result.re), hn::LowerHalf(d4, result.im));
          put(1, n * 4, d4, hn::UpperHalf(d4, result.re), hn::UpperHalf(d4, result.im));
        }
      });
    }
  }
}

/// Blocks of 8 columns, of rows that are in eights.
template <bool isForward, bool isLarge>
HWY_NOINLINE HWY_FLATTEN void columns(Image<float> dst, ptrdiff_t width, const Roots& roots, int order, float scale,
                                      float* memory) {
  const ColumnGroups data{memory};
  const auto factor = hn::Set(d8, scale);
  for (ptrdiff_t x = 0; x < 2 * width; x += 16) {
    signal::transformColumns<signal::PreciseTransform>(
        data, roots, order,
        [&](ptrdiff_t y, auto k) HWY_ATTR {
          const float* const numbers = dst.row(y) + x + k * N;
          if constexpr (isLarge) {
            askForRow(dst, y + rowsAhead, x);
            askForRow(dst, y + rowsAhead, x + 15);
          }
          return turnedTo<isForward>({hn::LoadU(d8, numbers), hn::LoadU(d8, numbers + 8)});
        },
        [&](ptrdiff_t, ptrdiff_t y, auto k, ColumnGroups::Numbers z) HWY_ATTR {
          z = turnedTo<isForward>(z);
          if constexpr (isLarge) askForRow(dst, y + rowsAhead, x);
          hn::StoreInterleaved2(hn::Mul(z.re, factor), hn::Mul(z.im, factor), d8, dst.row(y) + x + 2 * k * N);
        });
  }
}

/// The columns of an image that has less than 8.
template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void fewColumns(Floats image, ptrdiff_t width, const Roots& roots, int order, float scale,
                                         float* memory) {
  const ColumnGroups data{memory};
  const auto factor = hn::Set(d8, scale);
  const size_t bytes = static_cast<size_t>(width) * 2 * sizeof(float);
  const auto load = [&](ptrdiff_t y, auto k) HWY_ATTR {
    float numbers[16] = {};
    std::memcpy(numbers, image.src.row(y), bytes);
    ColumnGroups::Numbers z;
    hn::LoadInterleaved2(d8, numbers + 2 * k * N, z.re, z.im);
    return turnedTo<isForward>(z);
  };
  const auto store = [&](ptrdiff_t, ptrdiff_t y, auto k, ColumnGroups::Numbers z) HWY_ATTR {
    z = turnedTo<isForward>(z);
    float numbers[2 * N];
    hn::StoreInterleaved2(hn::Mul(z.re, factor), hn::Mul(z.im, factor), d8, numbers);
    const ptrdiff_t own = std::min<ptrdiff_t>(width - k * N, N);
    if (own > 0) std::memcpy(image.dst.row(y) + 2 * k * N, numbers, static_cast<size_t>(own) * 2 * sizeof(float));
  };
  signal::transformColumns<signal::PreciseTransform>(data, roots, order, load, store);
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
    const auto run = spec->orderX < 5    ? shortRows<isForward>
                     : spec->orderX == 5 ? mediumRows<isForward, 5>
                     : spec->orderX == 6 ? mediumRows<isForward, 6>
                                         : mediumRows<isForward, 7>;
    run(image, spec->height(), lineX.roots, spec->orderX);
    image.src = {image.dst.first, image.dst.step};
  }
  float* const memory = columnMemory(scratch, spec->orderY);
  if (spec->orderX < 3) {
    fewColumns<isForward>(image, spec->width(), lineY.roots, spec->orderY, scale, memory);
  } else {
    const bool isLarge = spec->orderX + spec->orderY > 16;
    const auto run = isLarge ? columns<isForward, true> : columns<isForward, false>;
    run(image.dst, spec->width(), lineY.roots, spec->orderY, scale, memory);
  }
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
