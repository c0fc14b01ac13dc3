// Rows with neighbours: what a filter reads around each output pixel.
//
// A window is `height` rows of `width` pixels. An image is moved so that it begins with the first window; window y then
// begins with row y, and the window of pixel x with pixel x. Rows come as an array of pointers, oldest first. A stage
// makes a row out of them: lanes from place i on are made of loads at rows[j] + i + c * (elements of a pixel). A
// horizontal neighbour is thus an unaligned load, and a column stage one without neighbours. Nothing is said about
// the row's end: a stage that writes elsewhere than it reads may read its last block again, and rows that are shorter
// than a block come with slack.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/blocks.h"
#include "core/image.h"
#include "core/lanes.h"
#include "core/map_row.h"
#include "core/rows.h"
#include "core/scratch.h"

namespace vemi {

// ---- Windows ------------------------------------------------------------------------------------------------------

/// The pixels that an output pixel needs: from `left` columns to its left and `above` rows above it on. Either may be
/// negative or beyond the window, which then lies beside the pixel.
struct Window {
  int width, height;
  ptrdiff_t left, above;

  /// The anchor is a pixel of the window, counted from its first or from its last one.
  static Window fromFirst(VemiSize size, VemiPoint anchor) { return {size.width, size.height, anchor.x, anchor.y}; }
  static Window fromLast(VemiSize size, VemiPoint anchor) {
    return {size.width, size.height, ptrdiff_t{size.width} - 1 - anchor.x, ptrdiff_t{size.height} - 1 - anchor.y};
  }
};

/// The image from the first window's first pixel on.
template <class L, class T>
Image<T> windowed(Image<T> image, const Window& window) {
  return {image.row(-window.above) - window.left * L::elements, image.step};
}

/// Elements of a row that the windows of `width` pixels reach.
template <class L>
Vemi64s windowElements(ptrdiff_t width, const Window& window) {
  return (Vemi64s{width} + window.width - 1) * L::elements;
}

/// The walk over `count` windows from `first` on: enter(y) takes in row y of the moved image, and row(y) follows when
/// all rows of window y are there. A band of a team walks from its own first window on.
template <class Enter, class Row>
void forWindows(const Window& window, ptrdiff_t first, ptrdiff_t count, const Enter& enter, const Row& row) {
  const ptrdiff_t lead = window.height - 1;
  for (ptrdiff_t y = first; count > 0 && y < first + lead; ++y) enter(y);
  for (ptrdiff_t y = first; y < first + count; ++y) {
    enter(y + lead);
    row(y);
  }
}

// ---- Rolling rows -------------------------------------------------------------------------------------------------

/// Elements behind a row that may be read and mean nothing: no stage has longer blocks.
inline constexpr ptrdiff_t slackElements = 4 * laneCount<uint8_t>;

/// The last `count` rows, oldest first: rows of its own, which have slack, or rows that stay where they are. The memory
/// is the caller's, a piece of his scratch; until it is placed, a ring is but its size.
template <class T>
class RowRing {
 public:
  /// A ring without elements has no rows of its own.
  explicit RowRing(Vemi64s count = 0, Vemi64s elements = 0)
      : count_(count),
        elements_(elements),
        pitch_(elements == 0 ? 0 : oddLines(arrayBytes<T>(limitedSum(elements, slackElements)))) {}

  /// For the rows that `width` pixels read, and `more` beside the window: copies where the rows are written to before
  /// the last window has read them, and of rows that a block would read beyond.
  template <class L>
  static RowRing ofSource(const Window& window, ptrdiff_t width, bool inPlace, int more = 0,
                          ptrdiff_t blockElements = slackElements) {
    const bool copied = inPlace || Vemi64s{width} * L::elements < blockElements;
    return RowRing(Vemi64s{window.height} + more, copied ? windowElements<L>(width, window) : 0);
  }

  Vemi64s bytes() const { return limitedSum(limitedProduct(count_, pitch_), tableBytes()); }

  void place(void* memory) {
    table_ = static_cast<const T**>(memory);
    own_ = static_cast<char*>(memory) + tableBytes();
    for (ptrdiff_t i = 0; i < count_ && pitch_ != 0; ++i) std::fill_n(room(i) + elements(), slackElements, T());
    oldest_ = 0;
  }

  /// Of its own rows.
  ptrdiff_t elements() const { return static_cast<ptrdiff_t>(elements_); }

  /// rows()[0] to rows()[count - 1], until a row is entered.
  const T* const* rows() const { return table_ + oldest_; }

  /// The newest row, or the one that came so many before it.
  const T* newest(ptrdiff_t back = 0) const { return rows()[static_cast<ptrdiff_t>(count_) - 1 - back]; }

  /// The oldest row's room, to be written: it is the newest row.
  T* turn() {
    T* const row = room(oldest_);
    enter(row);
    return row;
  }

  /// A row that stays where it is.
  void enter(const T* row) {
    // Twice, so that the rows stand in order from any place on.
    table_[oldest_] = table_[oldest_ + static_cast<ptrdiff_t>(count_)] = row;
    oldest_ = oldest_ + 1 == count_ ? 0 : oldest_ + 1;
  }

  /// A source row: where it is, or as a copy where the ring has rows of its own.
  void take(const T* row) {
    if (pitch_ == 0) return enter(row);
    rowCopyBytes(row, turn(), elements() * ptrdiff_t{sizeof(T)});
  }

 private:
  Vemi64s count_;
  ptrdiff_t oldest_ = 0;
  Vemi64s elements_, pitch_;
  const T** table_ = nullptr;
  char* own_ = nullptr;

  /// An odd number of cache lines, so that rows do not compete for the same places of a cache.
  static Vemi64s oddLines(Vemi64s size) { return roundedUp(size, laneAlignment) | Vemi64s{laneAlignment}; }

  Vemi64s tableBytes() const { return roundedUp(2 * arrayBytes<T*>(count_), laneAlignment); }

  T* room(ptrdiff_t index) const { return reinterpret_cast<T*>(own_ + index * static_cast<ptrdiff_t>(pitch_)); }
};

/// What several rings need in one block.
template <class... Ring>
Pieces roomOf(const Ring&... ring) {
  Pieces pieces;
  (pieces.add<char>(ring.bytes()), ...);
  return pieces;
}

/// The same rings, in the same order, into such a block.
template <class... Ring>
void placeRings(Memory block, Ring&... ring) {
  Pieces pieces;
  (ring.place(block[pieces.add<char>(ring.bytes())]), ...);
}

// ---- Stages -------------------------------------------------------------------------------------------------------

/// In place of an input strand: tells a kernel the place of its block's first element. Inputs are then read where they
/// are, which wants rows of at least a block, or slack. For outputs in rows with slack, which need no care at their
/// end: forWholeBlocks<items>(std::max(count, items), kernel, Strand<T>{row}..., Places()).
struct Places {
  ptrdiff_t first = 0;

  ptrdiff_t at(ptrdiff_t item) const { return first + item; }
};

namespace detail {

template <ptrdiff_t items>
struct LastBlock<items, Places> {
  ptrdiff_t first;

  LastBlock(Places places, ptrdiff_t item) : first(places.at(item)) {}
  Places strand() const { return {first}; }
};

}  // namespace detail

/// A stage whose vectors do not share anything: op(d, place) gives the vector of d from a place on.
template <int vectorsPerBlock, class Op>
struct EachPlace {
  static constexpr int vectors = vectorsPerBlock;
  Op op;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    return blockOf<vectors>(d, [&](auto k) HWY_ATTR { return op(d, i + k * laneCount<hn::TFromD<D>>); });
  }
};

template <int vectors = 2, class Op>
EachPlace<vectors, Op> eachPlace(Op op) {
  return {op};
}

/// mapPlaces within the function that calls it; the stage is a local of that.
template <Alpha alpha, class T, class Stage>
HWY_INLINE void mapPlacesHere(ptrdiff_t count, const Stage& stage, T* dst) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = Stage::vectors;
  constexpr ptrdiff_t items = vectors * N;
  static_assert(items <= slackElements);
  const auto kernel = [&](T* out, const T* old, ptrdiff_t i) HWY_ATTR {
    const auto block = stage(d, i);
    storeBlock<vectors>(d, out, [&](auto k) HWY_ATTR {
      if constexpr (alpha == Alpha::none) return block.v[k];
      return hn::IfThenElse(colourLanes(d, k * N % 4), block.v[k], hn::LoadU(d, old + k * N));
    });
  };
  if (count < items) {  // what the slack gives is dropped
    alignas(laneAlignment) T block[items] = {};
    const size_t bytes = static_cast<size_t>(std::max(count, ptrdiff_t{0})) * sizeof(T);
    std::memcpy(block, dst, bytes);
    kernel(block, block, 0);
    std::memcpy(dst, block, bytes);
  } else if constexpr (alpha == Alpha::kept) {
    forWholeBlocks<items>(count, kernel, Strand<T>{dst}, Strand<const T>{dst}, Places());
  } else {
    const auto inAll = [&](T* out, ptrdiff_t i) HWY_ATTR { kernel(out, nullptr, i); };
    forWholeBlocks<items>(count, inAll, Strand<T>{dst}, Places());
  }
}

/// A row of `count` elements: stage(d, place) gives the Vectors of a block from a place on. The stage holds the rows
/// that it reads, none of which may be the destination.
template <Alpha alpha = Alpha::none, class T, class Stage>
HWY_NOINLINE void mapPlaces(ptrdiff_t count, const Stage& stageOfCaller, T* dst) {
  const Stage stage = stageOfCaller;  // a local, which no store to the destination can change
  mapPlacesHere<alpha>(count, stage, dst);
}

/// The same for a stage that is made of pointers and numbers: stageOf(argument...). They arrive in registers; a stage
/// in memory that was written just before is waited for.
template <Alpha alpha, class StageOf, class T, class... Argument>
HWY_NOINLINE void mapPlacesOf(ptrdiff_t count, T* dst, Argument... argument) {
  mapPlacesHere<alpha>(count, StageOf()(argument...), dst);
}

}  // namespace vemi
