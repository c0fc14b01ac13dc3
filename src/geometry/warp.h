// What all warps share: the checks in their order, and the walk over the pixels of a quadrangle. A warp has
//
//   - a quadrangle, into which its map takes the source region,
//   - a generator of coordinates, which says where pixels of the destination come from:
//     generator(piece, x, y) fills two arrays with as many floats as the piece has pixels,
//     and up to a vector more. fillPlaces does so, from doubles.
//
//   if (const VemiStatus bad = checkWarp(src, dst, regions, interpolation, coeffs)) return bad;
//   return roundingToNearest([&]() -> VemiStatus {
//     ...the map's own checks...
//     WarpSource source;
//     if (const VemiStatus bad = sourceOf(regions, interpolation, source)) return bad;
//     const Quad quad = quadOf(source.region, map);
//     if (!isConvex(quad)) return vemiErrQuad;
//     return warp<L>(imagesOf(src), imagesOf(dst), regions, source, quad, Polygon(quad), generator);
//   });
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <span>
#include <type_traits>

#include "core/checks.h"
#include "core/element.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/lanes.h"
#include "core/rounding.h"
#include "geometry/fetch.h"
#include "geometry/polygon.h"
#include "vemi/geometry.h"

namespace vemi::geometry {

// ---- Checks -----------------------------------------------------------------------------------------------------

/// The size of the source image, the region of it that is moved, and the region of the destination that is written.
struct Regions {
  VemiSize srcSize;
  VemiRect src, dst;
};

// Of plane arrays, the planes are looked at behind the interpolation.
template <class T, class... Array>
VemiStatus checkNullImages(Image<const T> src, Image<T> dst, Array... array) {
  return checkNull(src, dst, array...);
}
template <class T, int planes, class... Array>
VemiStatus checkNullImages(Planes<const T, planes> src, Planes<T, planes> dst, Array... array) {
  return firstOf(checkNullArray(src, dst), checkNull(array...));
}
template <class T>
VemiStatus checkPlanes(Image<const T>, Image<T>) {
  return vemiOk;
}
template <class T, int planes>
VemiStatus checkPlanes(Planes<const T, planes> src, Planes<T, planes> dst) {
  return checkNull(src, dst);
}

inline VemiStatus checkRegions(const Regions& regions) {
  return firstOf(checkSize(regions.srcSize), checkRect(regions.src), checkRect(regions.dst));
}

inline int withoutSmoothEdge(int interpolation) { return interpolation & ~vemiSmoothEdge; }

inline VemiStatus checkInterpolation(int interpolation) {
  const int kind = withoutSmoothEdge(interpolation);
  const bool isKnown = kind == vemiInterNearest || kind == vemiInterLinear || kind == vemiInterCubic;
  return isKnown ? vemiOk : vemiErrInterpolation;
}

template <class Src, class Dst, class... Array>
VemiStatus checkWarp(Src src, Dst dst, const Regions& regions, int interpolation, Array... array) {
  return firstOf(checkNullImages(src, dst, array...), checkRegions(regions), checkStep(src, dst),
                 checkInterpolation(interpolation), checkPlanes(src, dst));
}

/// Of p - q, a determinant as a rule: whether it is 0 but for rounding.
inline bool vanishes(double p, double q) {
  return std::abs(p) > 1e-200 ? std::abs((p - q) / p) <= 1e-12 : std::abs(q) <= 1e-12;
}

/// What of the source is fetched, and how.
struct WarpSource {
  VemiRect region;  // within the image
  int interpolation;
  bool hasSmoothEdge;
  FetchLimits limits;
};

/// vemiWarnNoIntersection where the region begins beyond the image, vemiErrRect where no two of its rows or columns lie
/// in it.
VemiStatus sourceOf(const Regions& regions, int interpolation, WarpSource& source);

/// Where the quadrangle is no map's of the region: what lies outside of that is not fetched.
inline void limitToRegion(WarpSource& source) {
  const Edges edges(source.region);
  source.limits = FetchLimits::within(edges.left, edges.top, edges.right, edges.bottom);
}

// ---- Coordinates --------------------------------------------------------------------------------------------------

/// Pixels of a span: `count` of them, from `offset` behind the span's first one.
struct SpanPiece {
  double y, first;
  ptrdiff_t offset, count;
};

template <class V>
struct Places {
  V x, y;
};

/// The floats of at(d, i), which gives places for pixels i of the span, as doubles. So a place depends on the span and
/// not on where a vector begins.
template <class At>
HWY_INLINE void fillPlaces(const SpanPiece& piece, float* x, float* y, const At& at) {
  const Lanes<double> d;
  const hn::Rebind<float, decltype(d)> dPlaces;
  constexpr ptrdiff_t N = laneCount<double>;
  auto i = hn::Iota(d, static_cast<double>(piece.offset));
  for (ptrdiff_t k = 0; k < piece.count; k += N) {
    const auto places = at(d, i);
    hn::StoreU(hn::DemoteTo(dPlaces, places.x), dPlaces, x + k);
    hn::StoreU(hn::DemoteTo(dPlaces, places.y), dPlaces, y + k);
    i = hn::Add(i, hn::Set(d, static_cast<double>(N)));
  }
}

// ---- Smooth edges -------------------------------------------------------------------------------------------------

/// How much of a pixel counts as covered by a quadrangle in which its middle lies: half of it on an edge, all of it
/// from half a pixel on, in the direction of x or y that crosses the edge the more steeply.
class Coverage {
 public:
  explicit Coverage(const Quad& quad);

  double operator()(double x, double y) const {
    double least = 1;
    for (const Side& side : side_) least = std::min(least, side.x * x + side.y * y + side.offset);
    return least;
  }

 private:
  struct Side {
    double x, y, offset;
  };
  Side side_[4];
};

/// The mixture of elements, in floats, rounded to nearest and saturated. Elements that are alike stay so.
template <class T>
void mix(T* element, T fresh, float coverage) {
  const T old = elementOf(element);
  using Bits = hwy::UnsignedFromSize<sizeof(T)>;
  if (std::bit_cast<Bits>(old) == std::bit_cast<Bits>(fresh)) return;
  const float mixture = static_cast<float>(old) * (1 - coverage) + static_cast<float>(fresh) * coverage;
  if constexpr (std::is_floating_point_v<T>) {
    setElement(element, mixture);
  } else {
    setElement(element, nearestTo<T>(mixture));
  }
}

// ---- The walk -----------------------------------------------------------------------------------------------------

/// Pixels are walked in tiles of so many rows and columns: where rows of the destination run across those of the
/// source, neighbours in y fetch from the same lines of the cache, as long as it holds them.
inline constexpr int tileRows = 32;
inline constexpr ptrdiff_t tileColumns = 128;

struct PlaceArrays {
  alignas(laneAlignment) float x[tileColumns + laneCount<float>];
  alignas(laneAlignment) float y[tileColumns + laneCount<float>];
};

/// An image, or planes.
template <class T>
struct Images {
  Image<T> image[4];
  int count;
};

template <class T>
Images<T> imagesOf(Image<T> one) {
  return {{one, one, one, one}, 1};
}
template <class T, int count>
Images<T> imagesOf(Planes<T, count> planes) {
  return {{planes[0], planes[1], planes[2], planes[count - 1]}, count};
}

/// Fetches into the rows of destinations, with common coordinates. CoverageAt is Coverage, or what else gives the part
/// of a pixel that counts as covered.
template <class T, class L, class CoverageAt>
struct Fetcher {
  FetchRow<T> fetch;
  FetchSource source[4];
  Images<T> dst;
  const CoverageAt* coverage;  // null where edges are not smooth

  /// Of images whose first pixel is that of column 0, row 0.
  void run(Vemi64s row, Vemi64s column, ptrdiff_t count, const float* x, const float* y) const {
    for (int n = 0; n < dst.count; ++n) fetch(source[n], count, x, y, pixel(n, row, column));
  }

  /// Mixed by coverage with what was there.
  void runMixed(Vemi64s row, Vemi64s column, ptrdiff_t count, const float* x, const float* y) const {
    constexpr ptrdiff_t most = 64;
    for (ptrdiff_t k = 0; k < count; k += most) {
      const ptrdiff_t pixels = std::min(most, count - k);
      for (int n = 0; n < dst.count; ++n) {
        T fresh[most * L::elements];
        T* const out = pixel(n, row, column + k);
        std::memcpy(fresh, out, static_cast<size_t>(pixels * pixelBytes<T, L>));
        fetch(source[n], pixels, x + k, y + k, fresh);
        for (ptrdiff_t i = 0; i < pixels; ++i) {
          const auto covered =
              static_cast<float>((*coverage)(static_cast<double>(column + k + i), static_cast<double>(row)));
          for (ptrdiff_t c = 0; c < L::channels; ++c)
            mix(out + i * L::elements + c, fresh[i * L::elements + c], covered);
        }
      }
    }
  }

 private:
  T* pixel(int n, Vemi64s row, Vemi64s column) const {
    return dst.image[n].row(static_cast<ptrdiff_t>(row)) + static_cast<ptrdiff_t>(column) * L::elements;
  }
};

/// The pixels of a row from column `first` on up to `end`. From `whole` up to `wholeEnd` they are covered; the others
/// are mixed with what was there.
struct WarpedRow {
  Vemi64s y, first, whole, wholeEnd, end;

  template <class CoverageAt>
  static WarpedRow of(const Spans& spans, const CoverageAt* coverage) {
    WarpedRow row = {spans.y, spans.first, spans.first, spans.last + 1, spans.last + 1};
    if (coverage != nullptr) {
      const auto isWhole = [&](Vemi64s x) {
        return (*coverage)(static_cast<double>(x), static_cast<double>(row.y)) >= 1;
      };
      while (row.whole < row.end && !isWhole(row.whole)) ++row.whole;
      while (row.wholeEnd > row.whole && !isWhole(row.wholeEnd - 1)) --row.wholeEnd;
    }
    return row;
  }
};

/// The row's pixels from one column on up to another one, no more than tileColumns.
template <class T, class L, class CoverageAt, class Generator>
void warpPiece(const Fetcher<T, L, CoverageAt>& fetcher, const Generator& generator, const WarpedRow& row, Vemi64s from,
               Vemi64s to, PlaceArrays& places) {
  const auto part = [&](Vemi64s first, Vemi64s end, const auto& run) {
    const Vemi64s x = std::max(first, from), behind = std::min(end, to);
    if (x >= behind) return;
    const auto count = static_cast<ptrdiff_t>(behind - x);
    generator(SpanPiece{static_cast<double>(row.y), static_cast<double>(row.first),
                        static_cast<ptrdiff_t>(x - row.first), count},
              places.x, places.y);
    run(x, count);
  };
  const auto mixed = [&](Vemi64s x, ptrdiff_t count) { fetcher.runMixed(row.y, x, count, places.x, places.y); };
  part(row.first, row.whole, mixed);
  part(row.whole, row.wholeEnd, [&](Vemi64s x, ptrdiff_t count) { fetcher.run(row.y, x, count, places.x, places.y); });
  part(row.wholeEnd, row.end, mixed);
}

/// All pixels of the spans, by tiles of rows that follow each other.
template <class T, class L, class CoverageAt, class Generator>
void warpSpans(const Fetcher<T, L, CoverageAt>& fetcher, const Generator& generator, Spans& spans) {
  PlaceArrays places;
  WarpedRow row[tileRows];
  for (int count = tileRows; count == tileRows;) {
    for (count = 0; count < tileRows && spans.next(); ++count) row[count] = WarpedRow::of(spans, fetcher.coverage);
    const auto rows = std::span(row, static_cast<size_t>(count));
    Vemi64s x = std::numeric_limits<Vemi64s>::max(), end = 0;
    for (const WarpedRow& each : rows) {
      x = std::min(x, each.first);
      end = std::max(end, each.end);
    }
    for (; x < end; x += tileColumns) {
      for (const WarpedRow& each : rows) warpPiece(fetcher, generator, each, x, x + tileColumns, places);
    }
  }
}

/// The pixels of the destination that lie in a polygon: vemiWarnQuadIntersection where it does not meet the
/// destination's region.
template <class L, class T, class Generator, class CoverageAt>
VemiStatus warpWithin(const Images<const T>& src, const Images<T>& dst, const Regions& regions,
                      const WarpSource& source, const Polygon& polygon, const Generator& generator,
                      const CoverageAt& coverage) {
  Spans spans(polygon.clippedTo(regions.dst), regions.dst);
  if (spans.areEmpty()) return vemiWarnQuadIntersection;
  const auto from = [&](int n) { return FetchSource::of<L>(src.image[n], regions.srcSize, source.limits); };
  const Fetcher<T, L, CoverageAt> fetcher = {fetchRow<T, L>(source.interpolation),
                                             {from(0), from(1), from(2), from(3)},
                                             dst,
                                             source.hasSmoothEdge ? &coverage : nullptr};
  warpSpans(fetcher, generator, spans);
  return vemiOk;
}

/// The same of a part of a quadrangle, whose edges may be smooth.
template <class L, class T, class Generator>
VemiStatus warp(const Images<const T>& src, const Images<T>& dst, const Regions& regions, const WarpSource& source,
                const Quad& quad, const Polygon& polygon, const Generator& generator) {
  return warpWithin<L>(src, dst, regions, source, polygon, generator, Coverage(quad));
}

}  // namespace vemi::geometry
