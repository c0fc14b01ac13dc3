// vemiDFTFwd_CToC, vemiDFTInv_CToC: rows from source to destination, eight at a time, then blocks of 8 columns in the
// destination. Checks: null record, tag, null images, step, memory.
//
// Long rows of powers of two are lines in their destination's memory. In between, the rows of the destination hold 8
// real parts, 8 imaginary parts, and so on, and at their ends pairs.

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/exports.h"
#include "transform/dft_spec.h"
#include "transform/short_rows.h"

namespace vemi::transform {
namespace {

using signal::ColumnGroups;
using signal::DFTLines;

constexpr ptrdiff_t N = ColumnGroups::N;

/// An image of complex numbers as floats, twice as many to a row.
struct Floats {
  Image<const float> src;
  Image<float> dst;
};

template <bool isForward>
HWY_INLINE ColumnGroups::Numbers turnedTo(ColumnGroups::Numbers z) {
  return isForward ? z : signal::swapped(z);
}

template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void rows(Floats image, ptrdiff_t height, const DFTLines& lines, ColumnGroups data) {
  const ColumnGroups::D d;
  const ptrdiff_t width = lines.length(), inEights = width / 8 * 16;
  const auto part = [&](ptrdiff_t n, ptrdiff_t lane, bool isImaginary) {
    return data.at(n, lane) + (isImaginary == isForward ? N : 0);
  };
  for (ptrdiff_t y = 0; y < height; y += 8) {
    const EightRows<const float> from(y, height, [&](ptrdiff_t i) { return image.src.row(i); });
    const EightRows<float> to(y, height, [&](ptrdiff_t i) { return image.dst.row(i); });
    from.load(2 * width, [&](ptrdiff_t e, auto first, auto v)
                             HWY_ATTR { hn::StoreU(v, d, part(lines.entry(e / 2), first, e % 2 != 0)); });
    lines.transform(data);
    for (ptrdiff_t e = 0; e < inEights; e += 16) {
      const float* number[8];
      for (ptrdiff_t i = 0; i < 8; ++i) number[i] = part(lines.place(e / 2 + i), 0, false);
      for (const bool isImaginary : {false, true}) {
        const ptrdiff_t at = !isImaginary ? 0 : isForward ? N : -N;
        signal::transposeLoaded8(
            [&](auto dOf, auto i, auto first)
                HWY_ATTR { return hn::LoadU(dOf, number[i] + at + first / N * (2 * N) + first % N); },
            [&](auto i, auto first, auto v)
                HWY_ATTR { hn::StoreU(v, d, to.row[i] + e + (isImaginary ? 8 : 0) + first); });
      }
    }
    to.store<Alpha::none>(
        2 * width,
        [&](auto dOf, ptrdiff_t e, auto first)
            HWY_ATTR { return hn::LoadU(dOf, part(lines.place(e / 2), first, e % 2 != 0)); },
        inEights);
  }
}

/// Blocks of 8 columns.
template <bool isForward>
HWY_NOINLINE HWY_FLATTEN void columns(Floats image, ptrdiff_t width, const DFTLines& lines, float scale,
                                      ColumnGroups data) {
  const ColumnGroups::D d;
  const ptrdiff_t height = lines.length();
  const auto factor = hn::Set(d, scale);
  for (ptrdiff_t x = 0; x < width; x += 8) {
    const ptrdiff_t count = std::min<ptrdiff_t>(width - x, 8);
    const size_t bytes = static_cast<size_t>(count) * 2 * sizeof(float);
    if (count == 8) {
      lines.transform(data, {image.src.first + 2 * x, image.src.step}, 8, !isForward);
    } else {
      for (ptrdiff_t y = 0; y < height; ++y) {
        float numbers[16] = {};
        std::memcpy(numbers, image.src.row(y) + 2 * x, bytes);
        unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
          ColumnGroups::Numbers z;
          hn::LoadInterleaved2(d, numbers + 2 * k * N, z.re, z.im);
          data.store(lines.entry(y), k, turnedTo<isForward>(z));
        });
      }
      lines.transform(data);
    }
    for (ptrdiff_t v = 0; v < height; ++v) {
      float end[16];
      float* const numbers = image.dst.row(v) + 2 * x;
      float* const to = count == 8 ? numbers : end;
      askForRow(image.dst, v + rowsAhead, 2 * x);
      const ptrdiff_t place = lines.place(v);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto z = turnedTo<isForward>(data.load(place, k));
        hn::StoreInterleaved2(hn::Mul(z.re, factor), hn::Mul(z.im, factor), d, to + 2 * k * N);
      });
      if (count < 8) std::memcpy(numbers, end, bytes);
    }
  }
}

/// An image of one row or column.
template <bool isForward>
void line(Floats image, bool isRow, const DFTLines& lines, float scale, float* buffer) {
  const auto turned = [](signal::LineNumber z) { return isForward ? z : signal::LineNumber{z.im, z.re}; };
  transformLine(
      lines, buffer,
      [&](ptrdiff_t n) {
        const float* const at = isRow ? image.src.first + 2 * n : image.src.row(n);
        return turned({elementOf(at), elementOf(at + 1)});
      },
      [&](ptrdiff_t k, signal::LineNumber z) {
        float* const at = isRow ? image.dst.first + 2 * k : image.dst.row(k);
        z = turned(z);
        setElement(at, z.re * scale);
        setElement(at + 1, z.im * scale);
      });
}

template <bool isForward>
VemiStatus complexDFT(Image<const Vemi32fc> src, Image<Vemi32fc> dst, const VemiDFTSpec_C_32fc* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, complexDFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  const signal::SigDFTSpec& lineX = *spec->complexSpecX;
  const signal::SigDFTSpec& lineY = spec->complexSpecY == nullptr ? lineX : *spec->complexSpecY;
  const float scale = scaleOfImage(lineX, isForward, spec->count());
  const ptrdiff_t width = spec->width, height = spec->height;
  Floats image = {{reinterpret_cast<const float*>(src.first), src.step},
                  {reinterpret_cast<float*>(dst.first), dst.step}};
  const bool isLine = lineX.lines.isPowerOfTwo() && width > signal::groupsOnStack;
  if (isLine && height == 1) {
    complexLine(isForward, image.src.first, image.dst.first, lineX.lines.roots(), lineX.lines.order(), scale,
                signal::pairs);
    return vemiOk;
  }
  if (width == 1 || height == 1) {
    const DFTLines& lines = (height == 1 ? lineX : lineY).lines;
    line<isForward>(image, height == 1, lines, scale, groupsIn(scratch, lines));
    return vemiOk;
  }
  signal::GroupMemory memory;
  if (isLine) {
    for (ptrdiff_t y = 0; y < height; ++y) {
      complexLine(isForward, image.src.row(y), image.dst.row(y), lineX.lines.roots(), lineX.lines.order(), 1,
                  signal::eights);
    }
  } else {
    rows<isForward>(image, height, lineX.lines, memory.of(lineX.lines, groupsIn(scratch, lineX.lines)));
  }
  image.src = {image.dst.first, image.dst.step};
  columns<isForward>(image, width, lineY.lines, scale, memory.of(lineY.lines, groupsIn(scratch, lineY.lines)));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define IMAGES_SPEC                                                                                                    \
  ((const Vemi32fc* pSrc, int srcStep, Vemi32fc* pDst, int dstStep, const VemiDFTSpec_C_32fc* pSpec, Vemi8u* pBuffer), \
   (Image<const Vemi32fc>{pSrc, srcStep}, Image<Vemi32fc>{pDst, dstStep}, pSpec, pBuffer))

VEMI_DEFINE(vemiDFTFwd_CToC_32fc_C1R, IMAGES_SPEC, complexDFT<true>)
VEMI_DEFINE(vemiDFTInv_CToC_32fc_C1R, IMAGES_SPEC, complexDFT<false>)
