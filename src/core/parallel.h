// The parallel regions of the heavier families, in four forms. A region is opened once in a call, after all checks; the
// OpenMP runtime decides on the team, and where it allows no team the same body runs in the calling thread. Results
// never depend on the size of the team.
#pragma once

#include <omp.h>

#include <algorithm>
#include <cstddef>

#include "core/alloc.h"
#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi {

/// Small images of the one-to-one arithmetic families stay in the calling thread: a rule of the contract, in bytes so
/// that it is one rule for all element types.
inline bool belowSerialThreshold(int height, ptrdiff_t rowBytes) { return (height >> 2) + (rowBytes >> 4) <= 20; }

struct Nothing {
  void operator()() const {}
};

namespace detail {

/// The library's one parallel region.
void openTeam(void (*body)(const void*), const void* object);

}  // namespace detail

/// Calls body() in each thread of a team. All of them compute as the caller has told his own: a worker has the caller's
/// control word for the call, and then its own again. The flags that it raises are seen by itself alone.
template <class Body>
void inTeam(const Body& body) {
  detail::openTeam([](const void* object) { (*static_cast<const Body*>(object))(); }, &body);
}

/// Form A, the row loop: each thread runs row(y) over one contiguous block of rows, then finish() once.
template <class Row, class Finish = Nothing>
void rowsInTeam(ptrdiff_t height, const Row& row, const Finish& finish = {}) {
  inTeam([&] {
#pragma omp for schedule(static) nowait
    for (ptrdiff_t y = 0; y < height; ++y) row(y);
    finish();
  });
}

template <class Row, class Finish = Nothing>
void rowsSerially(ptrdiff_t height, const Row& row, const Finish& finish = {}) {
  for (ptrdiff_t y = 0; y < height; ++y) row(y);
  finish();
}

// Who runs the rows of a member: the calling thread alone, or, unless the image is small, a team.

struct CallerRows {
  static constexpr bool inOneThread() { return true; }

  template <class Row, class Finish = Nothing>
  void run(ptrdiff_t height, const Row& row, const Finish& finish = {}) const {
    rowsSerially(height, row, finish);
  }
};

struct TeamRows {
  bool small;

  /// A region of one thread is left out: opening it takes as long as some ten thousand bytes of work.
  bool inOneThread() const { return small || omp_get_max_threads() == 1; }

  template <class Row, class Finish = Nothing>
  void run(ptrdiff_t height, const Row& row, const Finish& finish = {}) const {
    if (inOneThread()) {
      rowsSerially(height, row, finish);
    } else {
      rowsInTeam(height, row, finish);
    }
  }
};

/// Form B, contiguous bands: band(first row, rows) once in each thread. All bands have the same height but the last,
/// which takes the rest too; with more threads than rows all bands but the last are empty.
template <class Band>
void bandsInTeam(int height, const Band& band) {
  int nThreads, bandRows, bandRest;
  inTeam([&] {
#pragma omp single
    {
      nThreads = omp_get_num_threads();
      bandRows = height / nThreads;
      bandRest = height % nThreads;
    }
    const int t = omp_get_thread_num();
    band(t * bandRows, t == nThreads - 1 ? bandRows + bandRest : bandRows);
  });
}

/// Form C, team scratch with a row loop: row(y, slice), the slice being the thread's own `sliceElements` floats.
template <class Row>
VemiStatus scratchRowsInTeam(int height, int sliceElements, const Row& row) {
  Vemi32f* pScratch = nullptr;
  bool failed = false;
  inTeam([&] {
#pragma omp single
    {
      const Vemi64s bytes = Vemi64s{sliceElements} * Vemi64s{sizeof(Vemi32f)} * omp_get_num_threads();
      pScratch = static_cast<Vemi32f*>(alignedAllocBytes(bytes));
      failed = pScratch == nullptr;
    }
    if (!failed) {
      Vemi32f* const slice = pScratch + ptrdiff_t{omp_get_thread_num()} * sliceElements;
#pragma omp for schedule(static)
      for (int y = 0; y < height; ++y) row(y, slice);
    }
  });
  vemiAlignedFree(pScratch);
  return failed ? vemiErrMemAlloc : vemiOk;
}

/// The tiles of form D and the memory that they need: one block that all tiles read, one slice for each thread.
struct TileGrid {
  int across, down;
  Vemi64s sharedBytes, sliceBytes;
};

/// The one block of form D: a status word for each thread, the shared memory, the threads' slices.
struct TeamBlock {
  TileGrid grid;
  int nThreads = 0;
  char* base = nullptr;

  /// At full width, also where pointers are narrower: what exceeds these must fail to be allocated, not wrap.
  static Vemi64s aligned(Vemi64s bytes) { return (bytes + 31) / 32 * 32; }

  Vemi64s headBytes() const { return aligned(Vemi64s{sizeof(VemiStatus)} * nThreads); }

  void allocate() {
    const Vemi64s bytes = headBytes() + aligned(grid.sharedBytes) + aligned(grid.sliceBytes) * nThreads;
    base = static_cast<char*>(alignedAllocBytes(bytes));
  }

  VemiStatus& status(int t) const { return reinterpret_cast<VemiStatus*>(base)[t]; }
  char* shared() const { return base + headBytes(); }
  char* slice(int t) const { return shared() + aligned(grid.sharedBytes) + aligned(grid.sliceBytes) * t; }
};

/// Form D, team scratch with a cyclic tile loop: one thread prepares the shared block, then thread t of n works on the
/// tiles t, t + n, t + 2n, ... with its own slice. prepare(shared) and tile(row, column, shared, slice) return a
/// status; the smallest is kept, so an error wins over a warning, and a tile's error stops no other tile. A failed
/// preparation starts no tile.
template <class Prepare, class Tile>
VemiStatus tilesInTeam(TileGrid grid, const Prepare& prepare, const Tile& tile) {
  TeamBlock block = {grid};
  VemiStatus prepared = vemiErrMemAlloc;
  inTeam([&] {
#pragma omp single
    {
      block.nThreads = omp_get_num_threads();
      block.allocate();
      if (block.base != nullptr) prepared = prepare(block.shared());
    }
    if (block.base != nullptr) {
      const int t = omp_get_thread_num();
      VemiStatus status = vemiOk;
      for (int i = t; prepared >= vemiOk && i < grid.across * grid.down; i += block.nThreads) {
        const VemiStatus tileStatus = tile(i / grid.across, i % grid.across, block.shared(), block.slice(t));
        status = std::min(status, tileStatus);
      }
      block.status(t) = status;
    }
  });
  VemiStatus status = std::min<VemiStatus>(prepared, vemiOk);
  for (int t = 0; block.base != nullptr && t < block.nThreads; ++t) status = std::min(status, block.status(t));
  vemiAlignedFree(block.base);
  return status;
}

}  // namespace vemi
