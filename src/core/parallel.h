// Who works on a call, the calling thread alone or a team, and in which shares: rows, bands or tiles. A region is
// opened once in a call, after all checks; the OpenMP runtime decides on the team, and where it allows no team the same
// work is done in the calling thread. Results never depend on the size of the team.
#pragma once

#include <omp.h>

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "core/scratch.h"
#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi {

/// Small images of the one-to-one arithmetic families stay in the calling thread: a rule of the contract, in bytes so
/// that it is one rule for all element types.
inline bool belowSerialThreshold(int height, ptrdiff_t rowBytes) { return (height >> 2) + (rowBytes >> 4) <= 20; }

namespace detail {

template <class Signature>
class FunctionRef;

/// A function object that is called through a pointer: so one region serves all work. The object outlives the call.
template <class Result, class... Arguments>
class FunctionRef<Result(Arguments...)> {
 public:
  template <class F>
  FunctionRef(const F& f)
      : object_(&f), call_([](const void* object, Arguments... arguments) -> Result {
          return (*static_cast<const F*>(object))(arguments...);
        }) {}

  Result operator()(Arguments... arguments) const { return call_(object_, arguments...); }

 private:
  const void* object_;
  Result (*call_)(const void*, Arguments...);
};

}  // namespace detail

/// The rows from `first` on, up to `end`.
struct RowRange {
  ptrdiff_t first, end;
};

/// Of thread t of n, as OpenMP's static schedule has it: blocks of equal height, the first ones with a row more.
RowRange rowsOf(int t, int n, ptrdiff_t height);

namespace detail {

/// work(rows) for the block of rows of each thread.
void runRows(bool inOneThread, ptrdiff_t height, FunctionRef<void(RowRange rows)> work);

}  // namespace detail

struct NoFinish {
  void operator()() const {}
};

template <class Row, class Finish = NoFinish>
void rowsSerially(RowRange rows, const Row& row, const Finish& finish = {}) {
  for (ptrdiff_t y = rows.first; y < rows.end; ++y) row(y);
  finish();
}

// Who works on a call: the calling thread alone, or, unless the image is small, a team. run(height, row, finish) is the
// plain row loop: each thread runs row(y) over one block of rows, then finish() once.

struct CallerRows {
  static constexpr bool inOneThread() { return true; }

  template <class Row, class Finish = NoFinish>
  void run(ptrdiff_t height, const Row& row, const Finish& finish = {}) const {
    rowsSerially({0, height}, row, finish);
  }
};

struct TeamRows {
  bool small;

  /// A region of one thread is left out: opening it takes as long as some ten thousand bytes of work.
  bool inOneThread() const { return small || omp_get_max_threads() == 1; }

  template <class Row, class Finish = NoFinish>
  void run(ptrdiff_t height, const Row& row, const Finish& finish = {}) const {
    detail::runRows(inOneThread(), height, [&](RowRange own) { rowsSerially(own, row, finish); });
  }
};

// ---- Rows, bands and tiles with memory and a status -----------------------------------------------------------------
//
//   Pieces slice;
//   const auto sums = slice.add<float>(width);
//   return forRows(TeamRows{small}, height, {.slice = slice}, [&](ptrdiff_t y, Memory own) { ... own[sums] ... });
//
// One thread allocates one block for the team. Where that fails, all threads learn it before any has begun, and the
// status is vemiErrMemAlloc. Work may return a status or nothing. The smallest status is kept, so that an error wins
// over a warning; an error stops no other work, and warnings alone are vemiOk.

/// What a team works with.
struct TeamMemory {
  Pieces shared = {};      // by all threads
  Pieces slice = {};       // by each thread for itself
  void* buffer = nullptr;  // where the slices lie one behind the other, if a user has handed memory over
};

namespace detail {

template <class Work, class... Arguments>
inline constexpr bool hasStatus = !std::is_void_v<std::invoke_result_t<const Work&, Arguments...>>;

template <class Work, class... Arguments>
VemiStatus statusOf(const Work& work, Arguments... arguments) {
  if constexpr (hasStatus<Work, Arguments...>) {
    return work(arguments...);
  } else {
    work(arguments...);
    return vemiOk;
  }
}

using Prepare = FunctionRef<VemiStatus(Memory shared)>;
using Share = FunctionRef<VemiStatus(int t, int n, Memory shared, Memory slice)>;

/// prepare(shared) in one thread, then share(t, n, shared, slice) in each thread t of n, unless that failed.
/// `withStatus` says whether a share may fail.
VemiStatus runTeam(bool inOneThread, const TeamMemory& memory, bool withStatus, Prepare prepare, Share share);

}  // namespace detail

/// The row loop: row(y, slice), each thread over one block of rows.
template <class Rows, class Row>
VemiStatus forRows(const Rows& who, ptrdiff_t height, const TeamMemory& memory, const Row& row) {
  const auto prepare = [](Memory) { return vemiOk; };
  const auto share = [&](int t, int n, Memory, Memory slice) {
    const RowRange own = rowsOf(t, n, height);
    VemiStatus status = vemiOk;
    for (ptrdiff_t y = own.first; y < own.end; ++y) status = std::min(status, detail::statusOf(row, y, slice));
    return status;
  };
  return detail::runTeam(who.inOneThread(), memory, detail::hasStatus<Row, ptrdiff_t, Memory>, prepare, share);
}

/// Contiguous bands: band(first row, rows, slice) once in each thread. All bands have the same height but the last,
/// which takes the rest too; with more threads than rows all bands but the last are empty.
template <class Rows, class Band>
VemiStatus forBands(const Rows& who, int height, const TeamMemory& memory, const Band& band) {
  const auto prepare = [](Memory) { return vemiOk; };
  const auto share = [&](int t, int n, Memory, Memory slice) {
    const int rows = height / n, rest = t == n - 1 ? height % n : 0;
    return detail::statusOf(band, t * rows, rows + rest, slice);
  };
  return detail::runTeam(who.inOneThread(), memory, detail::hasStatus<Band, int, int, Memory>, prepare, share);
}

struct TileGrid {
  int across, down;
};

/// Tiles: prepare(shared) in one thread, then tile(row, column, shared, slice), thread t of n taking the tiles t, t +
/// n, t + 2n, ..., counted row by row. A failed preparation starts no tile.
template <class Rows, class Prepare, class Tile>
VemiStatus forTiles(const Rows& who, TileGrid grid, const TeamMemory& memory, const Prepare& prepare,
                    const Tile& tile) {
  const auto prepareShared = [&](Memory shared) { return detail::statusOf(prepare, shared); };
  const auto share = [&](int t, int n, Memory shared, Memory slice) {
    VemiStatus status = vemiOk;
    for (Vemi64s i = t; i < Vemi64s{grid.across} * grid.down; i += n) {
      const int row = static_cast<int>(i / grid.across), column = static_cast<int>(i % grid.across);
      status = std::min(status, detail::statusOf(tile, row, column, shared, slice));
    }
    return status;
  };
  constexpr bool withStatus = detail::hasStatus<Tile, int, int, Memory, Memory>;
  return detail::runTeam(who.inOneThread(), memory, withStatus, prepareShared, share);
}

}  // namespace vemi
