#include "measure/tiles.h"

#include <limits>

#include "signal/fft.h"
#include "signal/transposed.h"

namespace vemi::measure {
namespace {

using signal::ColumnGroups;

int leastOrder(CorrelationAxis axis, int growing) {
  int order = axis.extent == 1 ? 1 : 2;
  while (Vemi64s{1} << order < 2 * axis.extent) ++order;
  return order < growing && Vemi64s{1} << order < axis.results ? order + 1 : order;
}

/// Where the source begins with so many zeros that windows may run over the end, one transform covers all results.
TileAxis tileAxis(CorrelationAxis axis, int order, int parts) {
  TileAxis tile;
  tile.order = order;
  tile.size = Vemi64s{1} << order;
  const bool isFull = axis.results == axis.source + axis.extent - 1;
  const bool isWhole = isFull && tile.size >= axis.results;
  tile.part = isWhole ? axis.results : std::min(axis.results, tile.size - axis.extent + 1);
  tile.span = tile.part * parts;
  tile.tiles = (axis.results - 1) / tile.span + 1;
  tile.patch = std::max(tile.span + axis.extent - 1, tile.span - tile.part + tile.size);
  return tile;
}

/// In units of about a level of a transform for each number.
double costOf(const TileAxis& x, const TileAxis& y) {
  const double tiles = static_cast<double>(x.tiles) * static_cast<double>(y.tiles) + 0.6;  // and the template
  const double numbers = static_cast<double>(x.size) * static_cast<double>(y.size);
  return tiles * (numbers * (x.order + y.order + 6) + 2000);
}

}  // namespace

TilePlan::TilePlan(CorrelationAxis across, CorrelationAxis down, int growing) {
  const int leastX = leastOrder(across, growing), leastY = leastOrder(down, growing);
  if (std::max(leastX, leastY) > signal::largestFFTOrder) {
    status = vemiErrFftOrder;
    return;
  }
  double least = std::numeric_limits<double>::infinity();
  for (int choice = 0; choice < 8; ++choice) {
    const int orderX = std::min(leastX + choice % 2, signal::largestFFTOrder);
    const int orderY = std::min(leastY + choice / 2 % 2, signal::largestFFTOrder);
    const bool besideEachOther = choice < 4;
    const TileAxis tileX = tileAxis(across, orderX, besideEachOther ? 2 : 1);
    const TileAxis tileY = tileAxis(down, orderY, besideEachOther ? 1 : 2);
    const double cost = costOf(tileX, tileY);
    if (cost >= least) continue;
    least = cost;
    x = tileX;
    y = tileY;
  }
  stride = roundedUp(x.patch, 16) + 32;
  if (stride % 512 == 0) stride += 16;
  if (stride > std::numeric_limits<int>::max() / Vemi64s{sizeof(float)}) status = vemiErrMemAlloc;
}

// ---- The transforms of a tile ---------------------------------------------------------------------------------------

HWY_NOINLINE HWY_FLATTEN void TileTransform::columns(TileParts parts, float* tile, float* line) const {
  constexpr ptrdiff_t N = ColumnGroups::N;
  const ColumnGroups::D d;
  if (height() < 8) std::fill_n(tile, static_cast<ptrdiff_t>(tileFloats()), 0.0f);  // rows that no column fills
  for (ptrdiff_t i = 0; i < blocks(); ++i) {
    const ColumnGroups own = block(tile, i);
    signal::transformColumns(
        ColumnGroups{line}, roots_, orderY_,
        [&](ptrdiff_t y, auto k) HWY_ATTR {
          const ptrdiff_t x = 8 * i + k * N;
          return ColumnGroups::Numbers{hn::LoadU(d, parts.first + y * parts.stride + x),
                                       hn::LoadU(d, parts.second + y * parts.secondStride + x)};
        },
        [&](ptrdiff_t, ptrdiff_t v, auto k, ColumnGroups::Numbers z) HWY_ATTR { own.store(v, k, z); });
  }
}

namespace {

/// Eight rows of the blocks of a tile as lines of lanes.
template <class Block>
HWY_INLINE void loadRows(ptrdiff_t blocks, const Block& block, ptrdiff_t first, ColumnGroups lines) {
  const ColumnGroups::D d;
  constexpr ptrdiff_t N = ColumnGroups::N;
  for (ptrdiff_t i = 0; i < blocks; ++i) {
    const ColumnGroups from = block(i);
    unrolled<2>([&](auto part) HWY_ATTR {
      signal::transposeLoaded8([&](auto dOf, auto row, auto number)
                                   HWY_ATTR { return hn::LoadU(dOf, from.at(first + row, number) + part * N); },
                               [&](auto column, auto number, auto v)
                                   HWY_ATTR { hn::StoreU(v, d, lines.at(8 * i + column, number) + part * N); });
    });
  }
}

template <class Block>
HWY_INLINE void storeRows(ptrdiff_t blocks, const Block& block, ptrdiff_t first, ColumnGroups lines) {
  const ColumnGroups::D d;
  constexpr ptrdiff_t N = ColumnGroups::N;
  for (ptrdiff_t i = 0; i < blocks; ++i) {
    const ColumnGroups to = block(i);
    unrolled<2>([&](auto part) HWY_ATTR {
      signal::transposeLoaded8([&](auto dOf, auto column, auto number)
                                   HWY_ATTR { return hn::LoadU(dOf, lines.at(8 * i + column, number) + part * N); },
                               [&](auto row, auto number, auto v)
                                   HWY_ATTR { hn::StoreU(v, d, to.at(first + row, number) + part * N); });
    });
  }
}

}  // namespace

HWY_NOINLINE HWY_FLATTEN void TileTransform::makeSpectrum(TileParts tpl, float* tile, float* lines,
                                                          float* spectrum) const {
  const ColumnGroups::D d;
  columns(tpl, tile, lines);
  const auto scale = hn::Set(d, static_cast<float>(1 / (static_cast<double>(width()) * static_cast<double>(height()))));
  const ColumnGroups line{lines};
  for (ptrdiff_t v = 0; v < height(); v += 8) {
    const ColumnGroups conjugate{spectrum + v / 8 * 16 * static_cast<ptrdiff_t>(width())};
    loadRows(
        static_cast<ptrdiff_t>(blocks()), [&](ptrdiff_t i) { return block(tile, i); }, v, line);
    signal::transformColumns(
        line, roots_, orderX_, [&](ptrdiff_t u, auto k) HWY_ATTR { return line.load(u, k); },
        [&](ptrdiff_t, ptrdiff_t u, auto k, ColumnGroups::Numbers z) HWY_ATTR {
          conjugate.store(u, k, {hn::Mul(z.re, scale), hn::Neg(hn::Mul(z.im, scale))});
        });
  }
}

// For the inverse, real and imaginary parts are changed over from the product on, up to the result.

HWY_NOINLINE HWY_FLATTEN void TileTransform::correlate(TileParts parts, const float* spectrum, float* tile,
                                                       float* lines) const {
  columns(parts, tile, lines);
  const ColumnGroups line{lines}, product{lines + static_cast<ptrdiff_t>(lineFloats() / 2)};
  const auto ofTile = [&](ptrdiff_t i) { return block(tile, i); };
  for (ptrdiff_t v = 0; v < height(); v += 8) {
    const ColumnGroups conjugate{const_cast<float*>(spectrum) + v / 8 * 16 * static_cast<ptrdiff_t>(width())};
    loadRows(static_cast<ptrdiff_t>(blocks()), ofTile, v, line);
    signal::transformColumns(
        line, roots_, orderX_, [&](ptrdiff_t u, auto k) HWY_ATTR { return line.load(u, k); },
        [&](ptrdiff_t, ptrdiff_t u, auto k, ColumnGroups::Numbers z)
            HWY_ATTR { product.store(u, k, signal::swapped(z * conjugate.load(u, k))); });
    signal::transformColumns(
        product, roots_, orderX_, [&](ptrdiff_t u, auto k) HWY_ATTR { return product.load(u, k); },
        [&](ptrdiff_t, ptrdiff_t x, auto k, ColumnGroups::Numbers z) HWY_ATTR { line.store(x, k, z); });
    storeRows(static_cast<ptrdiff_t>(blocks()), ofTile, v, line);
  }
  columnsBack(tile, lines);
}

HWY_NOINLINE HWY_FLATTEN void TileTransform::columnsBack(float* tile, float* line) const {
  for (ptrdiff_t i = 0; i < blocks(); ++i) {
    const ColumnGroups own = block(tile, i);
    signal::transformColumns(
        ColumnGroups{line}, roots_, orderY_, [&](ptrdiff_t v, auto k) HWY_ATTR { return own.load(v, k); },
        [&](ptrdiff_t, ptrdiff_t y, auto k, ColumnGroups::Numbers z) HWY_ATTR { own.store(y, k, signal::swapped(z)); });
  }
}

void TileTransform::copyRow(const float* tile, ptrdiff_t y, bool isSecond, float* row) const {
  const ColumnGroups::D d;
  constexpr ptrdiff_t N = ColumnGroups::N;
  for (ptrdiff_t i = 0; i < blocks(); ++i) {
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
      const ColumnGroups::Numbers z = block(tile, i).load(y, k);
      hn::StoreU(isSecond ? z.im : z.re, d, row + 8 * i + k * N);
    });
  }
}

// ---- Patches --------------------------------------------------------------------------------------------------------

void readPatch(Image<const char> image, const PixelRows& rows, CorrelationAxis across, CorrelationAxis down, Vemi64s x,
               Vemi64s y, const TilePlan& plan, float* patch) {
  const auto stride = static_cast<ptrdiff_t>(plan.stride), planeFloats = static_cast<ptrdiff_t>(plan.patchFloats());
  const Vemi64s firstX = x - across.pad, firstY = y - down.pad;
  const Vemi64s begin = std::clamp<Vemi64s>(-firstX, 0, plan.x.patch);
  const Vemi64s end = std::clamp<Vemi64s>(across.source - firstX, begin, plan.x.patch);
  const auto before = static_cast<ptrdiff_t>(begin), count = static_cast<ptrdiff_t>(end - begin);
  for (ptrdiff_t i = 0; i < plan.y.patch; ++i) {
    float* planes[mostChannels];
    const bool isEmpty = count == 0 || firstY + i < 0 || firstY + i >= down.source;
    for (int channel = 0; channel < rows.channels; ++channel) {
      float* const row = patch + channel * planeFloats + i * stride;
      planes[channel] = row + before;
      const ptrdiff_t zeros = isEmpty ? stride : before;
      std::fill_n(row, zeros, 0.0f);
      if (!isEmpty) std::fill_n(row + before + count, stride - before - count, 0.0f);
    }
    if (!isEmpty) {
      rows.read(image.row(static_cast<ptrdiff_t>(firstY) + i), static_cast<ptrdiff_t>(firstX) + before, count, planes);
    }
  }
}

void turnTemplate(float* patch, ptrdiff_t stride, Vemi64s width, Vemi64s height) {
  const auto w = static_cast<ptrdiff_t>(width), h = static_cast<ptrdiff_t>(height);
  for (ptrdiff_t y = 0; y < h; ++y) std::reverse(patch + y * stride, patch + y * stride + w);
  for (ptrdiff_t y = 0; y < h / 2; ++y) {
    std::swap_ranges(patch + y * stride, patch + y * stride + w, patch + (h - 1 - y) * stride);
  }
}

}  // namespace vemi::measure
