// Rows on both sides of a resize's first stage: those of the source, and what becomes of them.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/image.h"
#include "core/rows.h"
#include "core/scratch.h"
#include "geometry/picked_bytes.h"

namespace vemi::geometry {

/// The source's pixels from one column on, up to another one, row after row: where they are, or as a copy where the
/// image does not have all of them, or where bytes behind them are not the image's. Columns beside the image repeat
/// its edge.
class SourceLines {
 public:
  /// The columns from `first` on, so many.
  SourceLines(int first, Vemi64s columns, ptrdiff_t pixelBytes)
      : first_(first), columns_(columns), pixel_(pixelBytes) {}

  /// Of a copy.
  Vemi64s bytes() const { return limitedSum(limitedProduct(columns_, pixel_), windowSlack); }

  void setCopy(uint8_t* copy) {
    copy_ = copy;
    std::fill_n(copy + columns() * pixel_, windowSlack, uint8_t{0});
  }

  template <class T>
  void setSource(Image<const T> image, VemiSize size) {
    source_ = {reinterpret_cast<const uint8_t*>(image.first), image.step};
    width_ = size.width;
    end_ = source_.row(ptrdiff_t{size.height} - 1) + size.width * pixel_;
    const ptrdiff_t wanted = first_ + columns();
    isInside_ = first_ >= 0 && wanted <= width_;
    reach_ = wanted * pixel_ + windowSlack;
  }

  /// Valid until the next one is asked for; windowSlack bytes behind it can be read.
  const uint8_t* row(ptrdiff_t y) const {
    const uint8_t* const row = source_.row(y);
    return isInside_ && end_ - row >= reach_ ? row + first_ * pixel_ : copyOf(row);
  }

 private:
  int first_;
  Vemi64s columns_;
  ptrdiff_t pixel_, width_ = 0;
  Image<const uint8_t> source_ = {};
  const uint8_t* end_ = nullptr;
  bool isInside_ = false;  // all columns are the image's
  ptrdiff_t reach_ = 0;    // bytes of a row up to the end of what can be read
  uint8_t* copy_ = nullptr;

  HWY_NOINLINE const uint8_t* copyOf(const uint8_t* row) const {
    const ptrdiff_t left = std::max(0, -first_), wanted = first_ + columns(), inner = std::min(wanted, width_);
    rowCopyBytes(row + (first_ + left) * pixel_, copy_ + left * pixel_, (inner - first_ - left) * pixel_);
    for (ptrdiff_t x = 0; x < left; ++x) copyPixel(row, x);
    for (ptrdiff_t x = inner; x < wanted; ++x) copyPixel(row + (width_ - 1) * pixel_, x - first_);
    return copy_;
  }

  ptrdiff_t columns() const { return static_cast<ptrdiff_t>(columns_); }
  void copyPixel(const uint8_t* from, ptrdiff_t x) const {
    std::memcpy(copy_ + x * pixel_, from, static_cast<size_t>(pixel_));
  }
};

/// What became of the last source rows: of `depth` neighbouring ones each has its place.
template <class E, int depth>
class HeldRows {
 public:
  explicit HeldRows(Vemi64s elements)
      : pitch_(limitedSum(roundedUp(limitedSum(elements, laneCount<uint8_t>), line), line)) {}

  Vemi64s elements() const { return limitedProduct(depth, pitch_); }
  void place(E* memory) { memory_ = memory; }
  void forget() { std::fill_n(held_, depth, ptrdiff_t{-1}); }

  /// Source row y, by make(its place) unless it is here.
  template <class Make>
  const E* row(ptrdiff_t y, const Make& make) {
    const ptrdiff_t k = y % depth;
    E* const row = memory_ + k * static_cast<ptrdiff_t>(pitch_);
    if (held_[k] != y) {
      make(row);
      held_[k] = y;
    }
    return row;
  }

 private:
  static constexpr auto line = static_cast<Vemi64s>(laneAlignment);

  Vemi64s pitch_;
  E* memory_ = nullptr;
  ptrdiff_t held_[depth] = {};
};

}  // namespace vemi::geometry
