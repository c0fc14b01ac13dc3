// vemiDFTFwd_RToPack of floats: columns from source to destination, then lines of two rows each, as in fft_forward.cpp.
// Checks: null record, tag, null images, step, memory.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "transform/dft_packed.h"

namespace vemi::transform {
namespace {

template <class L>
HWY_NOINLINE HWY_FLATTEN void columns(Image<const float> src, Image<float> dst, const DFTFloats& spec, float scale,
                                      ColumnGroups data) {
  const ColumnGroups::D d;
  const signal::DFTLines& lines = spec.complexSpecY->lines;
  const ptrdiff_t height = spec.height, floats = ptrdiff_t{spec.width} * L::elements;
  const auto whole = hn::Set(d, scale), half = hn::Set(d, scale / 2);
  for (ptrdiff_t x = 0; x < floats; x = ColumnBlock<L>::behind(x)) {
    const ColumnBlock<L> block(x, floats);
    if (block.isWhole()) {
      lines.transform(data, {src.first + x, src.step}, block.apart, false);
    } else {
      for (ptrdiff_t y = 0; y < height; ++y) {
        unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR { data.store(lines.entry(y), k, block.load(src, y, k)); });
      }
      lines.transform(data);
    }
    const auto storeReal = [&](ptrdiff_t v) HWY_ATTR {
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto z = data.load(lines.place(v), k);
        block.store(dst, v, k, {hn::Mul(z.re, whole), hn::Mul(z.im, whole)});
      });
    };
    storeReal(0);
    if (height % 2 == 0) storeReal(height / 2);
    for (ptrdiff_t v = 1; 2 * v < height; ++v) {
      block.askFor(dst, v + rowsAhead);
      block.askFor(dst, height - v - rowsAhead);
      const ptrdiff_t place = lines.place(v), mirrored = lines.place(height - v);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto z = data.load(place, k), m = data.load(mirrored, k);
        block.store(dst, v, k, {hn::Mul(hn::Add(z.re, m.re), half), hn::Mul(hn::Add(z.im, m.im), half)});
        block.store(dst, height - v, k, {hn::Mul(hn::Sub(z.im, m.im), half), hn::Mul(hn::Sub(m.re, z.re), half)});
      });
    }
  }
}

/// The rows of one channel.
template <int elements>
HWY_NOINLINE HWY_FLATTEN void packLines(Image<float> dst, const DFTFloats& spec, ColumnGroups data, PackedEdges edges) {
  const signal::DFTLines& lines = spec.realSpecX->lines;
  const ptrdiff_t width = spec.width, height = spec.height;
  for (ptrdiff_t v0 = 0; v0 < linesOf(height); v0 += 8) {
    const auto top = topRows(dst, v0, height), bottom = bottomRows(dst, v0, height);
    loadChannel<elements>(top, width, [&](ptrdiff_t x, ptrdiff_t lane) {
      return LanePlace{data.at(lines.entry(x), lane), false};
    });
    loadChannel<elements>(bottom, width, [&](ptrdiff_t x, ptrdiff_t lane) {
      return LanePlace{data.at(lines.entry(x), lane) + columnLanes, false};
    });
    lines.transform(data);
    const auto number = [&](ptrdiff_t u, ptrdiff_t lane) {
      const float* const at = data.at(lines.place(u), lane);
      return ComplexNumber{at[0], at[columnLanes]};
    };
    for (ptrdiff_t lane = 0; lane < std::min<ptrdiff_t>(linesOf(height) - v0, 8); ++lane) {
      for (int side = 0; side < PackedEdges::sidesOf(width); ++side) {
        edges.setOfLine(side, 0, v0 + lane, number(side * (width / 2), lane));
      }
    }
    const auto packed = [&](bool isBelow) {
      return [&, isBelow](ptrdiff_t x, ptrdiff_t lane) HWY_ATTR {
        const PackedNumber f(x, width, isBelow);
        return LanePlace{data.at(lines.place(f.u), lane) + (f.isImaginary ? columnLanes : 0), isBelow && f.isImaginary};
      };
    };
    storeChannel<elements>(top, width, packed(false));
    storeChannel<elements>(bottom, width, packed(true));
    if (v0 > 0) continue;
    packLineOfTwo({dst, 0, height}, elements, 0, width, [&](ptrdiff_t u) { return number(u, 0); });
  }
}

/// An image of one row or column.
template <class L>
VemiStatus packLine(Image<const float> src, Image<float> dst, const DFTFloats& spec, const Scratch& scratch) {
  const signal::SigDFTSpec& line = onlyLine(spec);
  const ptrdiff_t length = line.length;
  const bool isRow = spec.height == 1;
  const float scale = line.fwdScaled != 0 ? line.scale : 1;
  if (line.realFFT != nullptr) {
    return transformLine<L>(src, dst, isRow, length, scratch,
                            [&](float* own) { return sigFFTFwd_RToPack_32f(own, own, line.realFFT.get(), nullptr); });
  }
  for (int channel = 0; channel < L::channels; ++channel) {
    const auto from = [&](ptrdiff_t n) { return elementOf(lineElement<L>(src, isRow, n, channel)); };
    const auto set = [&](ptrdiff_t n, float value) { setElement(lineElement<L>(dst, isRow, n, channel), value); };
    signal::transformLine(
        line.lines, groupsIn(scratch, line.lines),
        [&](ptrdiff_t n) {
          return signal::LineNumber{from(n), 0};
        },
        [&](ptrdiff_t k, signal::LineNumber z) {
          if (k == 0) return set(0, z.re * scale);
          if (2 * k > length) return;
          set(2 * k - 1, z.re * scale);
          if (2 * k < length) set(2 * k, z.im * scale);
        });
  }
  return vemiOk;
}

template <class L>
VemiStatus forward(Image<const float> src, Image<float> dst, const VemiDFTSpec_R_32f* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, realDFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  if (spec->width == 1 || spec->height == 1) return packLine<L>(src, dst, *spec, scratch);
  signal::GroupMemory memory;
  const signal::SigDFTSpec &lineX = *spec->realSpecX, &lineY = *spec->complexSpecY;
  columns<L>(src, dst, *spec, scaleOfImage(lineX, true, spec->count()),
             memory.of(lineY.lines, groupsIn(scratch, lineY.lines)));
  if (hasLongRows(*spec)) {
    float* const line = alignedToVectors(scratch.as<float>());
    const PackedEdges edges{line + 2 * ptrdiff_t{spec->width}, L::channels, spec->height};
    packLongLines<L>(dst, lineX.realFFT->roots, lineX.realFFT->order, edges, line);
    edges.writeTo<L::elements>(dst, spec->width);
    return vemiOk;
  }
  float* const groups = groupsIn(scratch, lineX.lines);
  const PackedEdges edges = edgesBehind(groups, *spec);
  for (int channel = 0; channel < L::channels; ++channel) {
    packLines<L::elements>(channelOf(dst, channel), *spec, memory.of(lineX.lines, groups), edges);
    edges.writeTo<L::elements>(channelOf(dst, channel), spec->width);
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define FLOATS VEMI_IMAGES_SPEC(Vemi32f, Vemi32f, VemiDFTSpec_R_32f, ((Vemi8u * pBuffer), (pBuffer)))

VEMI_DEFINE(vemiDFTFwd_RToPack_32f_C1R, FLOATS, forward<C1>)
VEMI_DEFINE(vemiDFTFwd_RToPack_32f_C3R, FLOATS, forward<C3>)
VEMI_DEFINE(vemiDFTFwd_RToPack_32f_C4R, FLOATS, forward<C4>)
VEMI_DEFINE(vemiDFTFwd_RToPack_32f_AC4R, FLOATS, forward<AC4>)
