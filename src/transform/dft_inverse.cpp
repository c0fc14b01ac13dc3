// vemiDFTInv_PackToR of floats: lines of two rows each from source to destination, then columns in the destination, as
// in fft_inverse.cpp. Checks: null record, tag, null images, step, memory.
//
// Real and imaginary parts are changed over at both ends of a transform, for the inverse.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "transform/dft_packed.h"

namespace vemi::transform {
namespace {

template <class L>
HWY_NOINLINE HWY_FLATTEN void columns(Image<float> dst, const DFTFloats& spec, float scale, ColumnGroups data) {
  const ColumnGroups::D d;
  const signal::DFTLines& lines = spec.complexSpecY->lines;
  const ptrdiff_t height = spec.height, floats = ptrdiff_t{spec.width} * L::elements;
  const Image<const float> src = {dst.first, dst.step};
  const auto factor = hn::Set(d, scale);
  for (ptrdiff_t x = 0; x < floats; x = ColumnBlock<L>::behind(x)) {
    const ColumnBlock<L> block(x, floats);
    const auto loadReal = [&](ptrdiff_t v) HWY_ATTR {
      unrolled<ColumnGroups::vectors>([&](auto k)
                                          HWY_ATTR { data.store(lines.entry(v), k, swapped(block.load(src, v, k))); });
    };
    loadReal(0);
    if (height % 2 == 0) loadReal(height / 2);
    for (ptrdiff_t v = 1; 2 * v < height; ++v) {
      block.askFor(src, v + rowsAhead);
      block.askFor(src, height - v - rowsAhead);
      const ptrdiff_t entry = lines.entry(v), mirrored = lines.entry(height - v);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto re = block.load(src, v, k), im = block.load(src, height - v, k);  // of columns of both halves
        data.store(entry, k, {hn::Add(im.re, re.im), hn::Sub(re.re, im.im)});
        data.store(mirrored, k, {hn::Sub(re.im, im.re), hn::Add(re.re, im.im)});
      });
    }
    lines.transform(data);
    for (ptrdiff_t y = 0; y < height; ++y) {
      block.askFor(dst, y + rowsAhead);
      const ptrdiff_t place = lines.place(y);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto z = data.load(place, k);
        block.store(dst, y, k, {hn::Mul(z.im, factor), hn::Mul(z.re, factor)});
      });
    }
  }
}

/// The rows of one channel.
template <int elements>
HWY_NOINLINE HWY_FLATTEN void unpackLines(Image<const float> src, Image<float> dst, const DFTFloats& spec,
                                          ColumnGroups data, PackedEdges edges) {
  const signal::DFTLines& lines = spec.realSpecX->lines;
  const ptrdiff_t width = spec.width, height = spec.height;
  for (ptrdiff_t v0 = 0; v0 < linesOf(height); v0 += 8) {
    const auto packed = [&](bool isBelow) {
      return [&, isBelow](ptrdiff_t x, ptrdiff_t lane) HWY_ATTR {
        const PackedNumber f(x, width, isBelow);
        return LanePlace{data.at(lines.entry(f.u), lane) + (f.isImaginary ? 0 : columnLanes), isBelow && f.isImaginary};
      };
    };
    loadChannel<elements>(topRows(src, v0, height), width, packed(false));
    loadChannel<elements>(bottomRows(src, v0, height), width, packed(true));
    const auto setNumber = [&](ptrdiff_t u, ptrdiff_t lane, ComplexNumber z) {
      float* const at = data.at(lines.entry(u), lane);
      at[0] = z.im;
      at[columnLanes] = z.re;
    };
    for (ptrdiff_t lane = 0; lane < 8; ++lane) {
      const ptrdiff_t v = std::min(v0 + lane, linesOf(height) - 1);
      if (v == 0) {
        lineOfTwo({src, 0, height}, elements, 0, width, [&](ptrdiff_t u, ComplexNumber z) { setNumber(u, lane, z); });
      }
      for (int side = 0; side < PackedEdges::sidesOf(width); ++side) {
        setNumber(side * (width / 2), lane, edges.ofLine(side, 0, v));
      }
    }
    lines.transform(data);
    storeChannel<elements>(topRows(dst, v0, height), width, [&](ptrdiff_t x, ptrdiff_t lane) HWY_ATTR {
      return LanePlace{data.at(lines.place(x), lane) + columnLanes, false};
    });
    storeChannel<elements>(bottomRows(dst, v0, height), width, [&](ptrdiff_t x, ptrdiff_t lane) HWY_ATTR {
      return LanePlace{data.at(lines.place(x), lane), false};
    });
  }
}

/// An image of one row or column.
template <class L>
VemiStatus unpackLine(Image<const float> src, Image<float> dst, const DFTFloats& spec, const Scratch& scratch) {
  const signal::SigDFTSpec& line = onlyLine(spec);
  const ptrdiff_t length = line.length;
  const bool isRow = spec.height == 1;
  const float scale = line.invScaled != 0 ? line.scale : 1;
  if (line.realFFT != nullptr) {
    return transformLine<L>(src, dst, isRow, length, scratch,
                            [&](float* own) { return sigFFTInv_PackToR_32f(own, own, line.realFFT.get(), nullptr); });
  }
  for (int channel = 0; channel < L::channels; ++channel) {
    const auto from = [&](ptrdiff_t n) { return elementOf(lineElement<L>(src, isRow, n, channel)); };
    const auto set = [&](ptrdiff_t n, float value) { setElement(lineElement<L>(dst, isRow, n, channel), value); };
    signal::transformLine(
        line.lines, groupsIn(scratch, line.lines),
        [&](ptrdiff_t k) {
          if (k == 0) return signal::LineNumber{0, from(0)};
          const ptrdiff_t own = std::min(k, length - k);
          const float re = from(2 * own - 1), im = 2 * own < length ? from(2 * own) : 0;
          return signal::LineNumber{own == k ? im : -im, re};
        },
        [&](ptrdiff_t n, signal::LineNumber z) { set(n, z.im * scale); });
  }
  return vemiOk;
}

template <class L>
VemiStatus inverse(Image<const float> src, Image<float> dst, const VemiDFTSpec_R_32f* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, realDFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  if (spec->width == 1 || spec->height == 1) return unpackLine<L>(src, dst, *spec, scratch);
  signal::GroupMemory memory;
  const signal::SigDFTSpec &lineX = *spec->realSpecX, &lineY = *spec->complexSpecY;
  if (hasLongRows(*spec)) {
    float* const line = alignedToVectors(scratch.as<float>());
    const PackedEdges edges{line + 2 * ptrdiff_t{spec->width}, L::channels, spec->height};
    edges.readFrom<L::elements>(src, spec->width);
    unpackLongLines<L>(src, dst, lineX.realFFT->roots, lineX.realFFT->order, edges, line);
  } else {
    float* const groups = groupsIn(scratch, lineX.lines);
    const PackedEdges edges = edgesBehind(groups, *spec);
    for (int channel = 0; channel < L::channels; ++channel) {
      edges.readFrom<L::elements>(channelOf(src, channel), spec->width);
      unpackLines<L::elements>(channelOf(src, channel), channelOf(dst, channel), *spec, memory.of(lineX.lines, groups),
                               edges);
    }
  }
  columns<L>(dst, *spec, scaleOfImage(lineX, false, spec->count()),
             memory.of(lineY.lines, groupsIn(scratch, lineY.lines)));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define FLOATS VEMI_IMAGES_SPEC(Vemi32f, Vemi32f, VemiDFTSpec_R_32f, ((Vemi8u * pBuffer), (pBuffer)))

VEMI_DEFINE(vemiDFTInv_PackToR_32f_C1R, FLOATS, inverse<C1>)
VEMI_DEFINE(vemiDFTInv_PackToR_32f_C3R, FLOATS, inverse<C3>)
VEMI_DEFINE(vemiDFTInv_PackToR_32f_C4R, FLOATS, inverse<C4>)
VEMI_DEFINE(vemiDFTInv_PackToR_32f_AC4R, FLOATS, inverse<AC4>)
