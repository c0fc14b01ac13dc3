// vemiFFTFwd_RToPack of floats: columns from source to destination, then lines of two rows each.
// Checks: null record, tag, null images, step, memory.
//
// 16 columns are 8 complex ones, whose transforms part into those of their real and imaginary parts: with
// Z = transform(a + i b), 2 A(v) = Z(v) + conj Z(H - v) and 2 i B(v) = Z(v) - conj Z(H - v). The scale goes with the 2.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "transform/packed.h"

namespace vemi::transform {
template <class L>
HWY_NOINLINE HWY_FLATTEN void packLongLines(Image<float> dst, const Roots& roots, int order, PackedEdges edges,
                                            float* memory) {
  constexpr ptrdiff_t N = LineGroups::N;
  constexpr int elements = L::elements;
  const LineGroups::D d;
  const hn::RebindToSigned<LineGroups::D> di;
  const LineGroups line{memory};
  const ptrdiff_t width = ptrdiff_t{1} << order, height = edges.height;
  for (ptrdiff_t v = 0; v < linesOf(height); ++v) {
    const LineRows<float> rows(dst, v, height);
    for (int channel = 0; channel < L::channels; ++channel) {
      const auto vectorOf = [&](const float* row, ptrdiff_t x) HWY_ATTR {
        if constexpr (elements == 1) return hn::LoadU(d, row + x);
        return hn::GatherIndex(d, row + x * elements + channel, hn::Mul(hn::Iota(di, 0), hn::Set(di, elements)));
      };
      signal::lineLevels(line, roots, order, [&](ptrdiff_t group, auto k) HWY_ATTR {
        const ptrdiff_t x = 16 * group + k * N;
        return LineGroups::Numbers{vectorOf(rows.top, x), vectorOf(rows.bottom, x)};
      });
      if (v == 0) {
        signal::endLineInPlace(
            line, order, [&](ptrdiff_t group, auto k, LineGroups::Numbers z) HWY_ATTR { line.store(group, k, z); });
        const auto number = [&](ptrdiff_t u) {
          const float* const at = line.at(u / 16, u % 16);
          return ComplexNumber{at[0], at[N]};
        };
        for (int side = 0; side < 2; ++side) edges.setOfLine(side, channel, 0, number(side * (width / 2)));
        packLineOfTwo(rows, elements, channel, width, number);
        continue;
      }
      signal::endLine(line, order, [&](ptrdiff_t u, LineGroups::Numbers z) HWY_ATTR {
        const bool isBelow = u >= width / 2;
        if (isBelow) z.im = hn::Neg(z.im);
        const ptrdiff_t atEdge = u == 0 || u == width / 2 ? 1 : 0;
        if (elements > 1 || atEdge != 0) {
          float re[N], im[N];
          hn::StoreU(z.re, d, re);
          hn::StoreU(z.im, d, im);
          if (atEdge != 0) edges.set(isBelow ? 1 : 0, channel, v, {re[0], isBelow ? -im[0] : im[0]});
          for (ptrdiff_t i = atEdge; i < N; ++i) {
            const ptrdiff_t own = isBelow ? width - u - i : u + i;
            float* const to = (isBelow ? rows.bottom : rows.top) + (2 * own - 1) * elements + channel;
            setElement(to, re[i]);
            setElement(to + elements, im[i]);
          }
        } else if (isBelow) {
          hn::StoreInterleaved2(hn::Reverse(d, z.re), hn::Reverse(d, z.im), d,
                                rows.bottom + 2 * (width - u - N + 1) - 1);
        } else {
          hn::StoreInterleaved2(z.re, z.im, d, rows.top + 2 * u - 1);
        }
      });
    }
  }
}

template void packLongLines<C1>(Image<float>, const Roots&, int, PackedEdges, float*);
template void packLongLines<C3>(Image<float>, const Roots&, int, PackedEdges, float*);
template void packLongLines<C4>(Image<float>, const Roots&, int, PackedEdges, float*);
template void packLongLines<AC4>(Image<float>, const Roots&, int, PackedEdges, float*);

namespace {

template <class L>
HWY_NOINLINE HWY_FLATTEN void columns(Image<const float> src, Image<float> dst, const FFTFloats& spec, float scale,
                                      float* memory) {
  const ColumnGroups::D d;
  const ColumnGroups data{memory};
  const Roots& roots = spec.complexSpecY->roots;
  const int order = spec.orderY;
  const ptrdiff_t height = spec.height(), floats = spec.width() * L::elements;
  const auto whole = hn::Set(d, scale), half = hn::Set(d, scale / 2);
  for (ptrdiff_t x = 0; x < floats; x = ColumnBlock<L>::behind(x)) {
    const ColumnBlock<L> block(x, floats);
    signal::transformColumns<signal::PreciseTransform>(
        data, roots, order,
        [&](ptrdiff_t y, auto k) HWY_ATTR {
          block.askFor(src, y + rowsAhead);
          return block.load(src, y, k);
        },
        [&](ptrdiff_t place, ptrdiff_t, auto k, ColumnGroups::Numbers z) HWY_ATTR { data.store(place, k, z); });
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
      for (ptrdiff_t v = 0; v <= height / 2; v += height / 2) {
        const auto z = data.load(signal::bitsReversed(v, order), k);
        block.store(dst, v, k, {hn::Mul(z.re, whole), hn::Mul(z.im, whole)});
      }
    });
    signal::ReversedPlaces places{height};
    for (ptrdiff_t v = 1; v < height / 2; ++v) {
      places.step(v);
      block.askFor(dst, v + rowsAhead);
      block.askFor(dst, height - v - rowsAhead);
      const ptrdiff_t place = places.place, mirrored = places.mirrored(v);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto z = data.load(place, k), m = data.load(mirrored, k);
        block.store(dst, v, k, {hn::Mul(hn::Add(z.re, m.re), half), hn::Mul(hn::Add(z.im, m.im), half)});
        block.store(dst, height - v, k, {hn::Mul(hn::Sub(z.im, m.im), half), hn::Mul(hn::Sub(m.re, z.re), half)});
      });
    }
  }
}

/// Widths 2 to 128.
template <class L>
HWY_NOINLINE HWY_FLATTEN void shortLines(Image<float> dst, const FFTFloats& spec, PackedEdges edges) {
  const ColumnGroups::D d;
  const int order = spec.orderX;
  const ptrdiff_t width = spec.width(), height = spec.height(), floats = width * L::elements;
  ShortLines<L> lines;
  const ColumnGroups all = lines.all();
  for (ptrdiff_t v0 = 0; v0 < height / 2; v0 += 8) {
    const auto top = topRows(dst, v0, height), bottom = bottomRows(dst, v0, height);
    top.load(floats, [&](ptrdiff_t e, auto first, auto v) HWY_ATTR { hn::StoreU(v, d, all.at(e, first)); });
    bottom.load(floats,
                [&](ptrdiff_t e, auto first, auto v) HWY_ATTR { hn::StoreU(v, d, all.at(e, first) + columnLanes); });
    for (int channel = 0; channel < L::channels; ++channel) {
      const ColumnGroups own = lines.ofChannel(channel);
      signal::transformColumns<signal::PreciseTransform>(own, spec.realSpecX->roots, order);
      for (ptrdiff_t i = 0; i < 8; ++i) {
        for (int side = 0; side < 2; ++side) {
          const float* const at = own.at(side, i);  // W / 2 has its bits reversed in 1
          edges.setOfLine(side, channel, std::min(v0 + i, height / 2 - 1), {at[0], at[columnLanes]});
        }
      }
    }
    // Pixels hold the real parts of frequencies 0, 1, 2, ... and, in between, the imaginary ones.
    const auto element = [&](auto dOf, ptrdiff_t e, ptrdiff_t first, bool isBelow) HWY_ATTR {
      const ptrdiff_t pixel = e / L::elements, u = (pixel + 1) / 2;
      const bool isImaginary = pixel > 0 && pixel % 2 == 0;
      const ptrdiff_t place = placeOf(isBelow ? (width - u) % width : u, order);
      const float* const at = all.at(place * L::elements + e % L::elements, first);
      const auto v = hn::LoadU(dOf, at + (isImaginary ? columnLanes : 0));
      return isBelow && isImaginary ? hn::Neg(v) : v;
    };
    constexpr Alpha alpha = alphaOf<L>;
    top.template store<alpha, false>(
        floats, [&](auto dOf, ptrdiff_t e, auto first) HWY_ATTR { return element(dOf, e, first, false); });
    bottom.template store<alpha, false>(
        floats, [&](auto dOf, ptrdiff_t e, auto first) HWY_ATTR { return element(dOf, e, first, true); });
    if (v0 > 0) continue;
    for (int channel = 0; channel < L::channels; ++channel) {
      const ColumnGroups own = lines.ofChannel(channel);
      packLineOfTwo({dst, 0, height}, L::elements, channel, width, [&](ptrdiff_t u) {
        const float* const at = own.at(placeOf(u, order), 0);
        return ComplexNumber{at[0], at[columnLanes]};
      });
    }
  }
}

template <class L>
VemiStatus forward(Image<const float> src, Image<float> dst, const VemiFFTSpec_R_32f* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, realFFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  if (spec->orderX == 0 || spec->orderY == 0) {
    const bool isRow = spec->orderY == 0;
    const signal::SigFFTSpec_R& line = isRow || spec->realSpecY == nullptr ? *spec->realSpecX : *spec->realSpecY;
    return transformLine<L>(src, dst, isRow, spec->width() * spec->height(), scratch,
                            [&](float* own) { return signal::sigFFTFwd_RToPack_32f(own, own, &line, nullptr); });
  }
  columns<L>(src, dst, *spec, scaleOfImage(*spec->realSpecX, true, spec->orderX + spec->orderY),
             columnMemory(scratch, spec->orderY));
  if (spec->orderX < signal::shortestLineOrder) {
    const PackedEdges edges{scratch.as<float>(), L::channels, spec->height()};
    shortLines<L>(dst, *spec, edges);
    edges.writeTo<L::elements>(dst, spec->width());
  } else {
    float* const memory = alignedToVectors(scratch.as<float>());
    const PackedEdges edges{memory + 2 * spec->width(), L::channels, spec->height()};
    packLongLines<L>(dst, spec->realSpecX->roots, spec->orderX, edges, memory);
    edges.writeTo<L::elements>(dst, spec->width());
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define FLOATS VEMI_IMAGES_SPEC(Vemi32f, Vemi32f, VemiFFTSpec_R_32f, ((Vemi8u * pBuffer), (pBuffer)))

VEMI_DEFINE(vemiFFTFwd_RToPack_32f_C1R, FLOATS, forward<C1>)
VEMI_DEFINE(vemiFFTFwd_RToPack_32f_C3R, FLOATS, forward<C3>)
VEMI_DEFINE(vemiFFTFwd_RToPack_32f_C4R, FLOATS, forward<C4>)
VEMI_DEFINE(vemiFFTFwd_RToPack_32f_AC4R, FLOATS, forward<AC4>)
