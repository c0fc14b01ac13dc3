// The least or the greatest of the pixels that a mask selects. A row is made of as many rows, or places of one row, as
// an extreme is taken of; what remains is to take it of few.
//
// A rectangle is a column and then a row of pixels, and each of these is reached in passes: the extremes of four places
// are taken of four, then of sixteen, ... up to the last pass, whose reaches overlap. Its time thus hardly grows with
// the rectangle.
//
// Any other mask is a list of runs along its rows. Extremes of 1, 2, 4, 8, ... pixels are formed once for each row that
// enters, and a run is one of these, or two that overlap, where that costs less than its pixels do.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/processor.h"
#include "core/windows.h"
#include "vemi/status.h"

namespace vemi::filter {

struct Least {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return lesser(a, b);
  }
};

struct Greatest {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return greater(a, b);
  }
};

/// Layouts differ in the elements of a pixel, and in an alpha that stays: numbers here, so that they share all code.
template <class T>
struct ExtremeCall {
  Image<const T> src;
  Image<T> dst;
  VemiSize roiSize;
  Window window;
  ptrdiff_t pixel;  // elements
  bool keepsAlpha;

  template <class L>
  static ExtremeCall of(Image<const T> src, Image<T> dst, VemiSize roiSize, const Window& window) {
    return {src, dst, roiSize, window, L::elements, L::keepsAlpha};
  }

  bool inPlace() const { return isSameImage(src, dst); }
  ptrdiff_t elements() const { return roiSize.width * pixel; }
  /// Of the rows that the windows reach.
  Vemi64s reached() const { return limitedProduct(Vemi64s{roiSize.width} + window.width - 1, pixel); }
  /// Row y of the windows.
  const T* row(ptrdiff_t y) const { return src.row(y - window.above) - window.left * pixel; }

  /// Of source rows: copies where they must be, so that a block of two vectors may be read.
  RowRing<T> source(Vemi64s rows) const {
    return RowRing<T>(rows, inPlace() || elements() < 2 * laneCount<T> ? reached() : 0);
  }
};

// ---- Rows out of several ------------------------------------------------------------------------------------------

template <class Order, class D, class T, class... Row>
HWY_INLINE hn::Vec<D> extremeAt(D d, ptrdiff_t i, const T* first, const Row*... row) {
  auto extreme = hn::LoadU(d, first + i);
  ((extreme = Order()(extreme, hn::LoadU(d, row + i))), ...);
  return extreme;
}

/// A stage out of rows that are known in number.
template <class Order>
struct ExtremeOf {
  template <class... Row>
  HWY_INLINE auto operator()(const Row*... row) const {
    return eachPlace([=](auto d, ptrdiff_t i) HWY_ATTR { return extremeAt<Order>(d, i, row...); });
  }
};

/// Out of any number.
template <class Order, class T, int vectorsPerBlock>
struct ExtremeOfMany {
  static constexpr int vectors = vectorsPerBlock;
  const T* const* rows;
  ptrdiff_t count;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto at = [&](ptrdiff_t j, ptrdiff_t k) HWY_ATTR { return hn::LoadU(d, rows[j] + i + k * laneCount<T>); };
    auto extreme = blockOf<vectors>(d, [&](auto k) HWY_ATTR { return at(0, k); });
    for (ptrdiff_t j = 1; j < count; ++j) {
      unrolled<vectors>([&](auto k) HWY_ATTR { extreme.v[k] = Order()(extreme.v[k], at(j, k)); });
    }
    return extreme;
  }
};

/// Two rows at once, both of which have slack: dst0 out of `first` and all of `shared`, dst1 out of these and `last`.
template <class Order, class T, class... Row>
HWY_NOINLINE void extremePair(ptrdiff_t count, T* dst0, T* dst1, const T* first, const T* last, const Row*... shared) {
  const Lanes<T> d;
  constexpr int vectors = 2;
  constexpr ptrdiff_t N = laneCount<T>, items = vectors * N;
  const auto kernel = [&](T* out0, T* out1, ptrdiff_t i) HWY_ATTR {
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const ptrdiff_t at = i + k * N;
      const auto extreme = extremeAt<Order>(d, at, shared...);
      hn::StoreU(Order()(hn::LoadU(d, first + at), extreme), d, out0 + k * N);
      hn::StoreU(Order()(extreme, hn::LoadU(d, last + at)), d, out1 + k * N);
    });
  };
  forWholeBlocks<items>(std::max(count, items), kernel, Strand<T>{dst0}, Strand<T>{dst1}, Places());
}

/// So many rows, at most, have code of their own.
inline constexpr int mostKnown = 8;

/// f(number's constant) for one of the numbers from 1 on.
template <int number = 1, class F>
void withKnown(ptrdiff_t count, const F& f) {
  if constexpr (number < mostKnown) {
    if (count > number) return withKnown<number + 1>(count, f);
  }
  f(std::make_integer_sequence<int, number>());
}

/// The rows at(0) to at(count - 1), which are few.
template <class T>
struct FewRows {
  int count;
  const T* row[mostKnown];

  template <class At>
  FewRows(ptrdiff_t rows, const At& at) : count(static_cast<int>(rows)) {
    for (int k = 0; k < count; ++k) row[k] = at(k);
  }
};

template <class Order, Alpha alpha, class T>
HWY_NOINLINE void extremeRow(ptrdiff_t elements, const FewRows<T>& rows, T* dst) {
  withKnown(
      rows.count, [&]<int... k>(std::integer_sequence<int, k...>) {
        mapPlacesOf<alpha, ExtremeOf<Order>>(elements, dst, rows.row[k]...);
      });
}

template <class Order, class T>
HWY_NOINLINE void extremeRows(ptrdiff_t elements, const T* first, const FewRows<T>& shared, const T* last, T* dst0,
                              T* dst1) {
  withKnown(
      shared.count, [&]<int... k>(std::integer_sequence<int, k...>) {
        extremePair<Order>(elements, dst0, dst1, first, last, shared.row[k]...);
      });
}

/// Into the destination.
template <class Order, class T>
void extremeResult(const ExtremeCall<T>& call, const FewRows<T>& rows, T* dst) {
  if (call.keepsAlpha) {
    extremeRow<Order, Alpha::kept>(call.elements(), rows, dst);
  } else {
    extremeRow<Order, Alpha::none>(call.elements(), rows, dst);
  }
}

/// One block for all of the rings.
template <class T>
Scratch placed(RowRing<T>* rings, int count) {
  Vemi64s bytes = 0;
  for (int i = 0; i < count; ++i) bytes = limitedSum(bytes, rings[i].bytes());
  Scratch scratch(bytes);
  if (scratch.failed()) return scratch;
  char* memory = scratch.as<char>();
  for (int i = 0; i < count; ++i) {
    rings[i].place(memory);
    memory += rings[i].bytes();
  }
  return scratch;
}

// ---- Rectangles ---------------------------------------------------------------------------------------------------

/// Takes an extreme at the places 0, spacing, 2 spacing, ... and `last`, each of which stands for `spacing` places.
struct Pass {
  int places, spacing, last;

  int reach() const { return last + spacing; }
  int at(int k) const { return k + 1 == places ? last : k * spacing; }
};

/// From single places to `length` of them.
struct Passes {
  static constexpr int most = 16;  // 8 * 4^14 is as long as anything
  int count = 0;
  Pass pass[most];

  explicit Passes(int length) {
    int reach = 1;
    for (; (length - 1) / reach >= mostKnown; reach *= 4) pass[count++] = {4, reach, 3 * reach};
    pass[count++] = {(length - 1) / reach + 1, reach, length - reach};
  }

  const Pass& last() const { return pass[count - 1]; }
};

/// Windows go two by two, one below the other: they share all rows but the first and the last one.
template <class Order, class T>
VemiStatus extremeOfRectangle(const ExtremeCall<T>& call) {
  const ptrdiff_t n = call.pixel, height = call.roiSize.height, lead = ptrdiff_t{call.window.height} - 1;
  const auto elements = static_cast<ptrdiff_t>(call.reached());
  const Passes down(std::max(1, call.window.height - 1)), across(call.window.width);
  // What each pass down the columns reads: the source, and rows of the pass before it. Then three rows on the way.
  RowRing<T> rings[Passes::most + 3];
  rings[0] = call.source(Vemi64s{call.window.height} + 1);
  for (int i = 1; i < down.count; ++i) rings[i] = RowRing<T>(Vemi64s{down.pass[i].last} + 2, call.reached());
  RowRing<T>* const onTheWay = rings + down.count;
  for (int i = 0; i < 3; ++i) onTheWay[i] = RowRing<T>(1, call.reached());
  const Scratch scratch = placed(rings, down.count + 3);
  if (scratch.failed()) return vemiErrMemAlloc;
  T *const pair[] = {onTheWay[0].turn(), onTheWay[1].turn()}, *const other = onTheWay[2].turn();

  const auto enter = [&](ptrdiff_t y) {
    rings[0].take(call.row(y));
    for (int i = 0; i + 1 < down.count && y + 1 >= down.pass[i].reach(); ++i) {
      const Pass& pass = down.pass[i];
      const FewRows<T> rows(pass.places, [&](int k) { return rings[i].newest(pass.last - pass.at(k)); });
      extremeRow<Order, Alpha::none>(elements, rows, rings[i + 1].turn());
    }
  };
  const auto reachDown = [&](ptrdiff_t rows) {  // one window alone counts as two of the same
    const Pass& pass = down.last();
    const auto at = [&](int k) { return rings[down.count - 1].newest(rows - 1 + pass.last - pass.at(k)); };
    const T* const first = rings[0].newest(lead + rows - 1);
    const T* const last = rows == 1 ? first : rings[0].newest();
    extremeRows<Order>(elements, first, FewRows<T>(pass.places, at), last, pair[0], pair[rows - 1]);
  };
  const auto reachAcross = [&](const T* from, T* free, T* dst) {
    T* to = other;
    for (int i = 0; i < across.count; ++i) {
      const Pass& pass = across.pass[i];
      const FewRows<T> places(pass.places, [&](int k) { return from + pass.at(k) * n; });
      if (i + 1 == across.count) return extremeResult<Order>(call, places, dst);
      extremeRow<Order, Alpha::none>(elements - (pass.reach() - 1) * n, places, to);
      from = to;
      to = i % 2 == 0 ? free : other;
    }
  };

  for (ptrdiff_t y = 0; y < lead; ++y) enter(y);
  for (ptrdiff_t y = 0; y < height; y += 2) {
    const ptrdiff_t rows = std::min<ptrdiff_t>(2, height - y);
    for (ptrdiff_t i = 0; i < rows; ++i) enter(y + lead + i);
    if (lead > 0) reachDown(rows);
    for (ptrdiff_t i = 0; i < rows; ++i) {
      const T* const from = lead > 0 ? pair[i] : rings[0].newest(rows - 1 - i);
      reachAcross(from, pair[i], call.dst.row(y + i));
    }
  }
  return vemiOk;
}

// ---- Any other mask -----------------------------------------------------------------------------------------------

/// Where an extreme is taken: of 2^level pixels from a place of the window on.
struct Tap {
  int level;
  ptrdiff_t x, y;
};

/// The bytes of a mask within its window, of which any but 0 selects its pixel.
struct Selection {
  const Vemi8u* first;
  int step;  // from row to row
  Window window;

  bool at(ptrdiff_t x, ptrdiff_t y) const { return first[y * step + x] != 0; }

  /// tap(Tap) for each pixel by itself.
  template <class F>
  void forPixels(const F& tap) const {
    for (ptrdiff_t y = 0; y < window.height; ++y) {
      for (ptrdiff_t x = 0; x < window.width; ++x) {
        if (at(x, y)) tap(Tap{0, x, y});
      }
    }
  }

  /// tap(Tap) for each run of pixels along a row, twice where no power of two reaches over it.
  template <class F>
  void forRuns(const F& tap) const {
    for (ptrdiff_t y = 0; y < window.height; ++y) {
      for (ptrdiff_t x = 0; x < window.width; ++x) {
        if (!at(x, y)) continue;
        ptrdiff_t end = x + 1;
        while (end < window.width && at(end, y)) ++end;
        int level = 0;
        while (ptrdiff_t{2} << level <= end - x) ++level;
        const ptrdiff_t reach = ptrdiff_t{1} << level;
        tap(Tap{level, x, y});
        if (reach < end - x) tap(Tap{level, end - reach, y});
        x = end;
      }
    }
  }

  /// Of a whole mask, whose rows have no gaps.
  bool selectsAll() const {
    return std::memchr(first, 0, static_cast<size_t>(step) * static_cast<size_t>(window.height)) == nullptr;
  }

  /// Without the rows and columns around that select nothing.
  Selection cropped() const {
    ptrdiff_t left = window.width, right = 0, top = window.height, bottom = 0;
    forPixels([&](Tap tap) {
      left = std::min(left, tap.x);
      right = std::max(right, tap.x + 1);
      top = std::min(top, tap.y);
      bottom = std::max(bottom, tap.y + 1);
    });
    return {
        first + top * step + left, step,
        Window{static_cast<int>(right - left), static_cast<int>(bottom - top), window.left - left, window.above - top}};
  }
};

struct TapCount {
  Vemi64s taps = 0;
  int levels = 0;

  void operator+=(Tap tap) {
    ++taps;
    levels = std::max(levels, tap.level);
  }
};

/// Takes the extreme of the selected pixels; there are some.
template <class Order, class T>
VemiStatus extremeOfSelection(ExtremeCall<T> call, const Selection& all) {
  const ptrdiff_t n = call.pixel;
  if (all.selectsAll()) return extremeOfRectangle<Order>(call);
  const Selection selection = all.cropped();
  call.window = selection.window;
  TapCount pixels, runs;
  selection.forPixels([&](Tap tap) { pixels += tap; });
  selection.forRuns([&](Tap tap) { runs += tap; });
  // In place, a row is written over before a window that lies wholly above it has come to an end.
  const ptrdiff_t below = call.inPlace() ? call.window.above + 1 - call.window.height : 0;
  if (below <= 0 && pixels.taps == Vemi64s{call.window.width} * call.window.height) {
    return extremeOfRectangle<Order>(call);
  }
  if (below > 0) call.window.height += static_cast<int>(below);

  // A level costs two loads and a store for each row, a tap one load.
  const bool byRuns = runs.taps + Vemi64s{3} * runs.levels < pixels.taps;
  const TapCount& chosen = byRuns ? runs : pixels;
  constexpr int most = 31;
  RowRing<T> rings[most];
  const bool isNarrow = call.elements() < 4 * laneCount<T>;
  rings[0] = call.source(call.window.height);
  for (int i = 1; i <= chosen.levels; ++i) rings[i] = RowRing<T>(call.window.height, call.reached());
  const Scratch rows = placed(rings, chosen.levels + 1);
  Pieces pieces;
  const auto ofTaps = pieces.add<Tap>(chosen.taps);
  const auto ofPlaces = pieces.add<const T*>(chosen.taps);
  const Scratch lists(pieces);
  if (rows.failed() || lists.failed()) return vemiErrMemAlloc;
  Tap* const taps = lists[ofTaps];
  const T** const places = lists[ofPlaces];
  ptrdiff_t count = 0;
  const auto add = [&](Tap tap) { taps[count++] = tap; };
  if (byRuns) {
    selection.forRuns(add);
  } else {
    selection.forPixels(add);
  }

  const auto elements = static_cast<ptrdiff_t>(call.reached());
  const auto enter = [&](ptrdiff_t y) {
    rings[0].take(call.row(y));
    for (int i = 1; i <= chosen.levels; ++i) {
      const ptrdiff_t half = (ptrdiff_t{1} << (i - 1)) * n;
      const T* const former = rings[i - 1].newest();
      mapPlacesOf<Alpha::none, ExtremeOf<Order>>(elements - 2 * half + n, rings[i].turn(), former, former + half);
    }
  };
  const auto row = [&](ptrdiff_t y) {
    const auto at = [&](ptrdiff_t i) { return rings[taps[i].level].rows()[taps[i].y] + taps[i].x * n; };
    T* const dst = call.dst.row(y);
    if (count <= mostKnown) return extremeResult<Order>(call, FewRows<T>(count, at), dst);
    for (ptrdiff_t i = 0; i < count; ++i) places[i] = at(i);
    const auto run = [&]<int vectors>(ExtremeOfMany<Order, T, vectors> stage) {
      if (call.keepsAlpha) {
        mapPlaces<Alpha::kept>(call.elements(), stage, dst);
      } else {
        mapPlaces<Alpha::none>(call.elements(), stage, dst);
      }
    };
    if (isNarrow) {
      run(ExtremeOfMany<Order, T, 1>{places, count});
    } else {
      run(ExtremeOfMany<Order, T, 4>{places, count});
    }
  };
  forWindows(call.window, 0, call.roiSize.height, enter, row);
  return vemiOk;
}

}  // namespace vemi::filter
