// Correlations of an image with a template, by tiles of spectra (overlap-save): with P the source amid endless zeros,
//
//   c(x, y) = sum of P(x + i, y + j) t(i, j)
//
// A tile has two neighbouring parts, side by side or one below the other, which are the real and the imaginary parts of
// one complex transform: the template is real, and so both correlations come back apart from each other. The spectrum
// is never put in order beyond what the next step wants, nor packed. The pixels of a tile, as floats, are its patch.
//
// Where a template enters turned by half a turn, the result is a convolution.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/image.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "signal/fft_columns.h"

namespace vemi::measure {

// ---- Rows of any layout as planes of floats -------------------------------------------------------------------------

template <int channels>
PlaneRow<float, channels> floatPlanes(float* const* plane) {
  PlaneRow<float, channels> planes;
  for (int channel = 0; channel < channels; ++channel) planes.first[channel] = plane[channel];
  return planes;
}

struct PixelsToFloats {
  template <class D, class... V>
  HWY_INLINE auto operator()(D, V... v) const {
    const auto converted = [](auto each) HWY_ATTR {
      const hn::Rebind<float, D> df;
      if constexpr (std::is_same_v<hn::TFromD<D>, float>) {
        return each;
      } else {
        return hn::ConvertTo(df, hn::PromoteTo(hn::RebindToSigned<decltype(df)>(), each));
      }
    };
    return std::tuple(converted(v)...);
  }
};

/// To nearest; what is not a number is the highest.
template <class T>
struct FloatsToPixels {
  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const auto converted = [&](auto each) HWY_ATTR {
      if constexpr (std::is_same_v<T, float>) {
        return each;
      } else {
        const auto limited = lesser(each, hn::Set(d, float{std::numeric_limits<T>::max()}));
        const auto number = greater(limited, hn::Set(d, float{std::numeric_limits<T>::min()}));
        return hn::DemoteTo(hn::Rebind<T, D>(), rounded(hn::RebindToSigned<D>(), number));
      }
    };
    return std::tuple(converted(v)...);
  }
};

/// Pixels [x, x + count) of a row, to planes of floats or from them.
using ReadPixels = void (*)(const void* row, ptrdiff_t x, ptrdiff_t count, float* const* planes);
using WritePixels = void (*)(void* row, ptrdiff_t x, ptrdiff_t count, float* const* planes);

template <class T, class L>
void readPixels(const void* row, ptrdiff_t x, ptrdiff_t count, float* const* planes) {
  mapPixels(count, PixelsToFloats(), floatPlanes<L::channels>(planes),
            pixelRow<L>(static_cast<const T*>(row) + x * L::elements));
}

template <class T, class L>
void writePixels(void* row, ptrdiff_t x, ptrdiff_t count, float* const* planes) {
  PlaneRow<const float, L::channels> src;
  for (int channel = 0; channel < L::channels; ++channel) src.first[channel] = planes[channel];
  mapPixels(count, FloatsToPixels<T>(), pixelRow<L>(static_cast<T*>(row) + x * L::elements), src);
}

/// The type and layout of a member.
struct PixelRows {
  ReadPixels read;
  WritePixels write;
  int channels, srcPixelBytes;
};

template <class S, class D, class L>
inline constexpr PixelRows pixelRows = {readPixels<S, L>, writePixels<D, L>, L::channels,
                                        static_cast<int>(pixelBytes<S, L>)};

// ---- The choice of tiles --------------------------------------------------------------------------------------------

inline constexpr int mostChannels = 4;

/// How a correlation lies along one of the axes. The source is `pad` pixels behind the beginning of P.
struct CorrelationAxis {
  Vemi64s source, extent, pad, results;
};

inline CorrelationAxis validAxis(int source, int extent) { return {source, extent, 0, Vemi64s{source} - extent + 1}; }
inline CorrelationAxis sameAxis(int source, int extent) { return {source, extent, extent >> 1, source}; }
inline CorrelationAxis fullAxis(int source, int extent) {
  return {source, extent, extent - 1, Vemi64s{source} + extent - 1};
}

/// One axis of the tiles: a transform of 2^order pixels gives `part` results, a tile of one or two parts `span`.
struct TileAxis {
  int order = 0;
  Vemi64s size = 0, part = 0, span = 0, tiles = 0, patch = 0;
};

struct TilePlan {
  TileAxis x, y;
  VemiStatus status = vemiOk;
  Vemi64s stride = 0;  // of the patch, in floats

  /// The orders are the least ones, which grow once where they are below `growing` and the result is not covered, or
  /// larger by 1, whatever costs least.
  TilePlan(CorrelationAxis across, CorrelationAxis down, int growing);

  bool isAcross() const { return x.span > x.part; }
  TileGrid grid() const { return {static_cast<int>(x.tiles), static_cast<int>(y.tiles)}; }
  Vemi64s patchFloats() const { return limitedProduct(stride, y.patch); }
  ptrdiff_t secondPart() const {
    return static_cast<ptrdiff_t>(isAcross() ? x.part : y.span > y.part ? y.part * stride : 0);
  }
};

// ---- The transforms of a tile ---------------------------------------------------------------------------------------

/// The pixels of both parts. A part without any is a row of zeros with a stride of 0.
struct TileParts {
  const float *first, *second;
  ptrdiff_t stride, secondStride;
};

/// A tile's numbers stand in blocks of 8 columns. Rows are transformed 8 at a time, there and back.
class TileTransform {
 public:
  TileTransform(int orderX, int orderY) : orderX_(orderX), orderY_(orderY), roots_(std::max(orderX, orderY)) {}

  bool failed() const { return roots_.failed(); }

  Vemi64s tileFloats() const { return limitedProduct(blocks(), blockFloats()); }
  Vemi64s spectrumFloats() const { return limitedProduct(16 * width(), std::max<Vemi64s>(height() / 8, 1)); }
  Vemi64s lineFloats() const { return 32 * std::max<Vemi64s>({width(), height(), 8}); }

  /// What correlate multiplies by, of the template amid zeros.
  void makeSpectrum(TileParts tpl, float* tile, float* lines, float* spectrum) const;

  /// Leaves the correlations of both parts in `tile`.
  void correlate(TileParts parts, const float* spectrum, float* tile, float* lines) const;

  /// Row y of one of the parts, in whole blocks.
  void copyRow(const float* tile, ptrdiff_t y, bool isSecond, float* row) const;

 private:
  int orderX_, orderY_;
  signal::Roots roots_;

  Vemi64s width() const { return Vemi64s{1} << orderX_; }
  Vemi64s height() const { return Vemi64s{1} << orderY_; }
  Vemi64s blocks() const { return std::max<Vemi64s>(width() / 8, 1); }
  /// A line of memory more than the numbers: blocks do not meet in the same sets of the cache.
  Vemi64s blockFloats() const { return 16 * (std::max<Vemi64s>(height(), 8) + 1); }

  signal::ColumnGroups block(const float* tile, ptrdiff_t index) const {
    return {const_cast<float*>(tile) + index * static_cast<ptrdiff_t>(blockFloats())};
  }
  void columns(TileParts parts, float* tile, float* line) const;
  void columnsBack(float* tile, float* line) const;
};

// ---- The walk over the tiles ----------------------------------------------------------------------------------------

struct Correlation {
  Image<const char> src, tpl;
  Image<char> dst;
  CorrelationAxis x, y;
  PixelRows rows;
  int growing;    // see TilePlan
  bool isTurned;  // the template
  int ofRows;     // rows of doubles that `finish` wants for a channel, as long as those of the patch
};

/// A patch row of one channel with all that stands in it, and its work rows.
struct TileRow {
  int channel;
  ptrdiff_t y, count;
  const float* patch;
  ptrdiff_t stride;
  double* doubles;
  float* results;  // correlations, with room for 16 more; to be finished
};

/// What tiles are made in; the template uses one too.
struct TileRoom {
  Piece<float> patch, tile, lines, results;
  Piece<double> doubles;

  TileRoom(Pieces& pieces, const TilePlan& plan, const TileTransform& transform, int channels, int doubleRows)
      : patch(pieces.add<float>(limitedProduct(plan.patchFloats(), channels))),
        tile(pieces.add<float>(limitedProduct(transform.tileFloats(), channels))),
        lines(pieces.add<float>(transform.lineFloats())),
        results(pieces.add<float>(limitedProduct(plan.stride, channels))),
        doubles(pieces.add<double>(limitedProduct(plan.stride, Vemi64s{channels} * doubleRows))) {}
};

/// Rows and columns [x, x + ...) and [y, y + ...) of P, and zeros in the rest of a patch. `isTurned` reads an image
/// that begins with the patch from its last pixel on.
void readPatch(Image<const char> image, const PixelRows& rows, CorrelationAxis across, CorrelationAxis down, Vemi64s x,
               Vemi64s y, const TilePlan& plan, float* patch);
void turnTemplate(float* patch, ptrdiff_t stride, Vemi64s width, Vemi64s height);

/// prepare(channel, first of the template's floats, their stride), a status; then finish(TileRow) for each row of the
/// result, down each tile.
template <class Prepare, class Finish>
VemiStatus forCorrelations(const Correlation& job, const Prepare& prepare, const Finish& finish) {
  const TilePlan plan(job.x, job.y, job.growing);
  if (plan.status != vemiOk) return plan.status;
  const TileTransform transform(plan.x.order, plan.y.order);
  if (transform.failed()) return vemiErrMemAlloc;
  const int channels = job.rows.channels;
  TeamMemory memory;
  const auto ofSpectra = memory.shared.add<float>(limitedProduct(transform.spectrumFloats(), channels));
  const TileRoom first(memory.shared, plan, transform, channels, 0);
  const TileRoom room(memory.slice, plan, transform, channels, job.ofRows);
  const auto stride = static_cast<ptrdiff_t>(plan.stride);
  const auto patchFloats = [&] { return static_cast<ptrdiff_t>(plan.patchFloats()); };
  const auto spectrumOf = [&](Memory shared, int channel) {
    return shared[ofSpectra] + channel * static_cast<ptrdiff_t>(transform.spectrumFloats());
  };

  const auto makeSpectra = [&](Memory shared) {
    const CorrelationAxis x = {job.x.extent, 0, 0, 0}, y = {job.y.extent, 0, 0, 0};
    readPatch(job.tpl, job.rows, x, y, 0, 0, plan, shared[first.patch]);
    for (int channel = 0; channel < channels; ++channel) {
      float* const patch = shared[first.patch] + channel * patchFloats();
      if (job.isTurned) turnTemplate(patch, stride, job.x.extent, job.y.extent);
      if (const VemiStatus bad = prepare(channel, patch, stride)) return bad;
      float* const zeros = shared[first.results];
      std::fill_n(zeros, stride, 0.0f);
      transform.makeSpectrum({patch, zeros, stride, 0}, shared[first.tile], shared[first.lines],
                             spectrumOf(shared, channel));
    }
    return VemiStatus{vemiOk};
  };

  const auto tile = [&](int row, int column, Memory shared, Memory own) {
    const Vemi64s x0 = column * plan.x.span, y0 = row * plan.y.span;
    const auto count = static_cast<ptrdiff_t>(std::min(plan.x.span, job.x.results - x0));
    const auto height = static_cast<ptrdiff_t>(std::min(plan.y.span, job.y.results - y0));
    const auto tileFloats = static_cast<ptrdiff_t>(transform.tileFloats());
    const auto firstRows = static_cast<ptrdiff_t>(plan.y.part), firstColumns = static_cast<ptrdiff_t>(plan.x.part);
    readPatch(job.src, job.rows, job.x, job.y, x0, y0, plan, own[room.patch]);
    float* results[mostChannels];
    for (int channel = 0; channel < channels; ++channel) {
      results[channel] = own[room.results] + channel * stride;
      std::fill_n(results[channel], stride, 0.0f);
      const float* const patch = own[room.patch] + channel * patchFloats();
      TileParts parts = {patch, results[channel], stride, 0};
      if (count > firstColumns || height > firstRows) parts = {patch, patch + plan.secondPart(), stride, stride};
      transform.correlate(parts, spectrumOf(shared, channel), own[room.tile] + channel * tileFloats, own[room.lines]);
    }
    for (ptrdiff_t y = 0; y < height; ++y) {
      for (int channel = 0; channel < channels; ++channel) {
        const float* const numbers = own[room.tile] + channel * tileFloats;
        transform.copyRow(numbers, y % firstRows, y >= firstRows, results[channel]);
        if (count > firstColumns) transform.copyRow(numbers, y, true, results[channel] + firstColumns);
        finish(TileRow{channel, y, count, own[room.patch] + channel * patchFloats() + y * stride, stride,
                       own[room.doubles] + channel * stride * job.ofRows, results[channel]});
      }
      job.rows.write(job.dst.row(static_cast<ptrdiff_t>(y0) + y), static_cast<ptrdiff_t>(x0), count, results);
    }
  };
  const bool isOneTile = plan.x.tiles == 1 && plan.y.tiles == 1;
  return forTiles(TeamRows{isOneTile}, plan.grid(), memory, makeSpectra, tile);
}

}  // namespace vemi::measure
