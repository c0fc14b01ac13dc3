// vemiFFTInv_PackToR of floats: lines of two rows each from source to destination, then columns in the destination.
// Checks: null record, tag, null images, step, memory.
//
// The transforms of two real columns make that of one complex column: Z(v) = A(v) + i B(v).

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "transform/packed.h"

namespace vemi::transform {
template <class L>
HWY_NOINLINE HWY_FLATTEN void unpackLongLines(Image<const float> src, Image<float> dst, const Roots& roots, int order,
                                              PackedEdges edges, float* memory) {
  constexpr ptrdiff_t N = LineGroups::N;
  constexpr int elements = L::elements;
  const LineGroups::D d;
  const hn::RebindToSigned<LineGroups::D> di;
  const LineGroups line{memory};
  const ptrdiff_t width = ptrdiff_t{1} << order, height = edges.height;
  for (ptrdiff_t v = 0; v < linesOf(height); ++v) {
    const LineRows<const float> from(src, v, height);
    const LineRows<float> to(dst, v, height);
    for (int channel = 0; channel < L::channels; ++channel) {
      if (v == 0) {
        const auto set = [&](ptrdiff_t u, ComplexNumber z) {
          float* const at = line.at(u / 16, u % 16);
          at[0] = z.im;
          at[N] = z.re;
        };
        lineOfTwo(from, elements, channel, width, set);
        for (int side = 0; side < 2; ++side) set(side * (width / 2), edges.ofLine(side, channel, 0));
      }
      const auto packed = [&](ptrdiff_t u) HWY_ATTR {
        const bool isBelow = u >= width / 2;
        LineGroups::Numbers z;
        if (u == 0 || u == width / 2) {
          float re[N], im[N];
          const ComplexNumber edge = edges.get(isBelow ? 1 : 0, channel, v);
          re[0] = edge.re;
          im[0] = isBelow ? -edge.im : edge.im;
          for (ptrdiff_t i = 1; i < N; ++i) {
            const ptrdiff_t own = isBelow ? width - u - i : i;
            const float* const at = (isBelow ? from.bottom : from.top) + (2 * own - 1) * elements + channel;
            re[i] = elementOf(at);
            im[i] = elementOf(at + elements);
          }
          z = {hn::LoadU(d, re), hn::LoadU(d, im)};
        } else if constexpr (elements > 1) {
          const ptrdiff_t own = isBelow ? width - u : u;
          const float* const at = (isBelow ? from.bottom : from.top) + (2 * own - 1) * elements + channel;
          const auto places = hn::Mul(hn::Iota(di, 0), hn::Set(di, isBelow ? -2 * elements : 2 * elements));
          z = {hn::GatherIndex(d, at, places), hn::GatherIndex(d, at + elements, places)};
        } else if (isBelow) {
          hn::LoadInterleaved2(d, from.bottom + 2 * (width - u - N + 1) - 1, z.re, z.im);
          z = {hn::Reverse(d, z.re), hn::Reverse(d, z.im)};
        } else {
          hn::LoadInterleaved2(d, from.top + 2 * u - 1, z.re, z.im);
        }
        return LineGroups::Numbers{isBelow ? hn::Neg(z.im) : z.im, z.re};
      };
      signal::lineLevels(line, roots, order, [&](ptrdiff_t group, auto k) HWY_ATTR {
        return v == 0 ? line.load(group, k) : packed(16 * group + k * N);
      });
      signal::endLine(line, order, [&](ptrdiff_t x, LineGroups::Numbers z) HWY_ATTR {
        if constexpr (elements == 1) {
          hn::StoreU(z.im, d, to.top + x);
          hn::StoreU(z.re, d, to.bottom + x);
        } else {
          float re[N], im[N];
          hn::StoreU(z.im, d, re);
          hn::StoreU(z.re, d, im);
          for (ptrdiff_t i = 0; i < N; ++i) {
            setElement(to.top + (x + i) * elements + channel, re[i]);
            setElement(to.bottom + (x + i) * elements + channel, im[i]);
          }
        }
      });
    }
  }
}

template void unpackLongLines<C1>(Image<const float>, Image<float>, const Roots&, int, PackedEdges, float*);
template void unpackLongLines<C3>(Image<const float>, Image<float>, const Roots&, int, PackedEdges, float*);
template void unpackLongLines<C4>(Image<const float>, Image<float>, const Roots&, int, PackedEdges, float*);
template void unpackLongLines<AC4>(Image<const float>, Image<float>, const Roots&, int, PackedEdges, float*);

namespace {

template <class L>
HWY_NOINLINE HWY_FLATTEN void columns(Image<float> dst, const FFTFloats& spec, float scale, float* memory) {
  const ColumnGroups::D d;
  const ColumnGroups data{memory};
  const Roots& roots = spec.complexSpecY->roots;
  const ptrdiff_t height = spec.height(), floats = spec.width() * L::elements;
  const Image<const float> src = {dst.first, dst.step};
  const auto factor = hn::Set(d, scale);
  for (ptrdiff_t x = 0; x < floats; x = ColumnBlock<L>::behind(x)) {
    const ColumnBlock<L> block(x, floats);
    // Real and imaginary parts are changed over, for the inverse.
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
      for (ptrdiff_t v = 0; v <= height / 2; v += height / 2) data.store(v, k, swapped(block.load(src, v, k)));
    });
    for (ptrdiff_t v = 1; v < height / 2; ++v) {
      block.askFor(src, v + rowsAhead);
      block.askFor(src, height - v - rowsAhead);
      unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
        const auto re = block.load(src, v, k), im = block.load(src, height - v, k);  // of columns of both halves
        data.store(v, k, {hn::Add(im.re, re.im), hn::Sub(re.re, im.im)});
        data.store(height - v, k, {hn::Sub(re.im, im.re), hn::Add(re.re, im.im)});
      });
    }
    signal::transformColumns<signal::PreciseTransform>(
        data, roots, spec.orderY, [&](ptrdiff_t v, auto k) HWY_ATTR { return data.load(v, k); },
        [&](ptrdiff_t, ptrdiff_t y, auto k, ColumnGroups::Numbers z) HWY_ATTR {
          block.askFor(dst, y + rowsAhead);
          block.store(dst, y, k, {hn::Mul(z.im, factor), hn::Mul(z.re, factor)});
        });
  }
}

/// Widths 2 to 128.
template <class L>
HWY_NOINLINE HWY_FLATTEN void shortLines(Image<const float> src, Image<float> dst, const FFTFloats& spec,
                                         PackedEdges edges) {
  const ColumnGroups::D d;
  const int order = spec.orderX;
  const ptrdiff_t width = spec.width(), height = spec.height(), floats = width * L::elements;
  // Imaginary parts come first.
  ShortLines<L> lines;
  const ColumnGroups all = lines.all();
  for (ptrdiff_t v0 = 0; v0 < height / 2; v0 += 8) {
    const auto place = [&](bool isBelow) {
      return [&, isBelow](ptrdiff_t e, auto first, auto v) HWY_ATTR {
        const ptrdiff_t pixel = e / L::elements, u = (pixel + 1) / 2;
        if (pixel == 0 || pixel == width - 1) return;
        const bool isImaginary = pixel % 2 == 0;
        float* const at = all.at((isBelow ? width - u : u) * L::elements + e % L::elements, first);
        hn::StoreU(isBelow && isImaginary ? hn::Neg(v) : v, d, at + (isImaginary ? 0 : columnLanes));
      };
    };
    topRows(src, v0, height).load(floats, place(false));
    bottomRows(src, v0, height).load(floats, place(true));
    for (int channel = 0; channel < L::channels; ++channel) {
      const ColumnGroups own = lines.ofChannel(channel);
      const auto setNumber = [&](ptrdiff_t u, ptrdiff_t lane, ComplexNumber z) {
        float* const at = own.at(u, lane);
        at[columnLanes] = z.re;
        at[0] = z.im;
      };
      for (ptrdiff_t i = 0; i < 8; ++i) {
        const ptrdiff_t v = std::min(v0 + i, height / 2 - 1);
        if (v == 0) {
          lineOfTwo({src, 0, height}, L::elements, channel, width,
                    [&](ptrdiff_t u, ComplexNumber z) { setNumber(u, i, z); });
        }
        for (int side = 0; side < 2; ++side) {
          setNumber(side * (width / 2), i, edges.ofLine(side, channel, v));
        }
      }
      signal::transformColumns<signal::PreciseTransform>(own, spec.realSpecX->roots, order);
    }
    const auto element = [&](ptrdiff_t e, auto first) {
      return all.at(placeOf(e / L::elements, order) * L::elements + e % L::elements, first);
    };
    constexpr Alpha alpha = alphaOf<L>;
    topRows(dst, v0, height).template store<alpha, false>(floats, [&](auto dOf, ptrdiff_t e, auto first) HWY_ATTR {
      return hn::LoadU(dOf, element(e, first) + columnLanes);
    });
    bottomRows(dst, v0, height).template store<alpha, false>(floats, [&](auto dOf, ptrdiff_t e, auto first) HWY_ATTR {
      return hn::LoadU(dOf, element(e, first));
    });
  }
}

template <class L>
VemiStatus inverse(Image<const float> src, Image<float> dst, const VemiFFTSpec_R_32f* spec, Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkRecord(spec, realFFTTag), checkNull(src, dst), checkStep(src, dst))) {
    return bad;
  }
  const Scratch scratch(spec->bufSize, buffer);
  if (scratch.failed()) return vemiErrMemAlloc;
  if (spec->orderX == 0 || spec->orderY == 0) {
    const bool isRow = spec->orderY == 0;
    const signal::SigFFTSpec_R& line = isRow || spec->realSpecY == nullptr ? *spec->realSpecX : *spec->realSpecY;
    return transformLine<L>(src, dst, isRow, spec->width() * spec->height(), scratch,
                            [&](float* own) { return signal::sigFFTInv_PackToR_32f(own, own, &line, nullptr); });
  }
  if (spec->orderX < signal::shortestLineOrder) {
    const PackedEdges edges{scratch.as<float>(), L::channels, spec->height()};
    edges.readFrom<L::elements>(src, spec->width());
    shortLines<L>(src, dst, *spec, edges);
  } else {
    float* const memory = alignedToVectors(scratch.as<float>());
    const PackedEdges edges{memory + 2 * spec->width(), L::channels, spec->height()};
    edges.readFrom<L::elements>(src, spec->width());
    unpackLongLines<L>(src, dst, spec->realSpecX->roots, spec->orderX, edges, memory);
  }
  columns<L>(dst, *spec, scaleOfImage(*spec->realSpecX, false, spec->orderX + spec->orderY),
             columnMemory(scratch, spec->orderY));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define FLOATS VEMI_IMAGES_SPEC(Vemi32f, Vemi32f, VemiFFTSpec_R_32f, ((Vemi8u * pBuffer), (pBuffer)))

VEMI_DEFINE(vemiFFTInv_PackToR_32f_C1R, FLOATS, inverse<C1>)
VEMI_DEFINE(vemiFFTInv_PackToR_32f_C3R, FLOATS, inverse<C3>)
VEMI_DEFINE(vemiFFTInv_PackToR_32f_C4R, FLOATS, inverse<C4>)
VEMI_DEFINE(vemiFFTInv_PackToR_32f_AC4R, FLOATS, inverse<AC4>)
