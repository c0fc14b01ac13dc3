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
  /// The columns from `first` on, so many, and the bytes behind them that can be read. Without such bytes, all columns
  /// are the image's.
  SourceLines(int first, Vemi64s columns, ptrdiff_t pixelBytes, Vemi64s slack = windowSlack)
      : first_(first), columns_(columns), pixel_(pixelBytes), slack_(static_cast<ptrdiff_t>(slack)) {}

  /// Of a copy.
  Vemi64s bytes() const { return slack_ == 0 ? 0 : limitedSum(limitedProduct(columns_, pixel_), slack_); }

  void setCopy(uint8_t* copy) {
    copy_ = copy;
    if (slack_ > 0) std::fill_n(copy + columns() * pixel_, slack_, uint8_t{0});
  }

  template <class T>
  void setSource(Image<const T> image, VemiSize size) {
    width_ = size.width;
    image_ = {reinterpret_cast<const uint8_t*>(image.first), image.step};
    lines_ = {image_.first + std::max(0, first_) * pixel_, image.step};
    const ptrdiff_t wanted = first_ + columns(), more = (width_ - wanted) * pixel_ - slack_;
    const ptrdiff_t last = ptrdiff_t{size.height} - 1, missing = more < 0 ? (image.step - 1 - more) / image.step : 0;
    direct_ = first_ >= 0 && wanted <= width_ ? last - missing : -1;
  }

  /// Valid until the next one is asked for.
  const uint8_t* row(ptrdiff_t y) const { return y <= direct_ ? lines_.row(y) : copyOf(image_.row(y)); }

 private:
  int first_;
  Vemi64s columns_;
  ptrdiff_t pixel_, slack_, width_ = 0;
  Image<const uint8_t> image_ = {}, lines_ = {};
  ptrdiff_t direct_ = -1;  // up to this row, lines are where they are, with their slack within the image
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
