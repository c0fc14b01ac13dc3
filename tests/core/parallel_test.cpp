// The four forms of parallel region: who runs which rows, bands and tiles, with what memory, in which rounding mode,
// and what comes back. Every form is run by teams of several sizes, and inside another parallel region, where it has a
// team of one.

#include "core/parallel.h"

#include <fenv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cfloat>
#include <functional>
#include <numeric>
#include <thread>
#include <vector>

#include "support/allocator.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Runs f(n) where the next parallel region has a team of n.
template <class F>
void inTeam(int n, const F& f) {
  const int threads = omp_get_max_threads();
  omp_set_num_threads(n);
  SCOPED_TRACE(n);
  f(n);
  omp_set_num_threads(threads);
}

template <class F>
void inTeams(const F& f) {
  for (const int n : {1, 2, 3, 8}) inTeam(n, f);
#pragma omp parallel num_threads(2)
  {
    SCOPED_TRACE("nested");
    f(1);
  }
}

/// What each thread of a region did, in its order, and the memory that it had for it.
struct Log {
  std::vector<std::vector<int>> items;
  std::vector<char*> slice;

  explicit Log(int team) : items(static_cast<size_t>(team)), slice(items.size()) {}

  void note(ptrdiff_t item, void* ownSlice = nullptr) {
    EXPECT_EQ(static_cast<size_t>(omp_get_num_threads()), items.size());
    const auto t = static_cast<size_t>(omp_get_thread_num());
    EXPECT_TRUE(items[t].empty() || slice[t] == ownSlice) << "a thread keeps its slice";
    items[t].push_back(static_cast<int>(item));
    slice[t] = static_cast<char*>(ownSlice);
  }

  /// Each thread had one block of the rows, and its slice to itself.
  void expectBlocksOfRows(int height) const {
    std::vector<int> rows, expected(static_cast<size_t>(height));
    for (const auto& own : items) rows.insert(rows.end(), own.begin(), own.end());
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(rows, expected);
  }
  void expectOwnSlices(ptrdiff_t bytes) const {
    std::vector<char*> starts = slice;
    std::erase(starts, nullptr);  // of threads that had nothing to do
    std::sort(starts.begin(), starts.end());
    for (size_t i = 1; i < starts.size(); ++i) EXPECT_GE(starts[i] - starts[i - 1], bytes);
  }
};

TEST(SerialThreshold, CountsRowsByFourAndBytesBySixteen) {
  const struct {
    int height;
    ptrdiff_t rowBytes;
    bool below;
  } cases[] = {{1, 335, true},  {3, 335, true},   {1, 336, false},    {4, 335, false}, {4, 319, true},
               {4, 320, false}, {83, 15, true},   {84, 15, false},    {80, 16, false}, {79, 31, true},
               {40, 175, true}, {40, 176, false}, {1080, 1920, false}};
  for (const auto& c : cases)
    EXPECT_EQ(belowSerialThreshold(c.height, c.rowBytes), c.below) << c.height << " " << c.rowBytes;
}

TEST(RowsInTeam, EachThreadHasOneBlockOfRowsAndFinishesOnce) {
  inTeams([](int team) {
    for (int height = 1; height <= 20; ++height) {
      Log log(team);
      rowsInTeam(
          height, [&](ptrdiff_t y) { log.note(y); }, [&] { log.note(-1); });
      for (auto& own : log.items) {
        ASSERT_FALSE(own.empty());
        EXPECT_EQ(own.back(), -1) << "the finish";
        own.pop_back();
      }
      log.expectBlocksOfRows(height);
    }
  });
}

TEST(RowsInTeam, SmallImagesAndMembersWithoutARegionStayInTheCallingThread) {
  inTeam(3, [](int) {
    Log small(1), serial(1), team(3);
    const auto noteIn = [](Log& log) { return [&log](ptrdiff_t y) { log.note(y); }; };
    TeamRows{.small = true}.run(4, noteIn(small), [&] { small.note(4); });
    CallerRows().run(4, noteIn(serial), [&] { serial.note(4); });
    TeamRows{.small = false}.run(4, noteIn(team));
    small.expectBlocksOfRows(5);
    serial.expectBlocksOfRows(5);
    team.expectBlocksOfRows(4);
  });
}

/// Rows of each thread's band, by thread; the bands must follow each other.
std::vector<int> bandHeights(int team, int height) {
  std::vector<int> first(static_cast<size_t>(team)), heights(first.size(), -1);
  bandsInTeam(height, [&](int firstRow, int rows) {
    const auto t = static_cast<size_t>(omp_get_thread_num());
    EXPECT_EQ(heights[t], -1) << "one band for each thread";
    first[t] = firstRow;
    heights[t] = rows;
  });
  EXPECT_EQ(first[0], 0);
  for (size_t t = 1; t < first.size(); ++t) EXPECT_EQ(first[t], first[t - 1] + heights[t - 1]);
  return heights;
}

TEST(BandsInTeam, TheLastBandTakesTheRest) {
  inTeams([](int team) {
    for (int height = 1; height <= 20; ++height) {
      std::vector<int> expected(static_cast<size_t>(team), height / team);
      expected.back() += height % team;
      EXPECT_EQ(bandHeights(team, height), expected);
    }
  });
  inTeam(4, [](int team) {
    EXPECT_EQ(bandHeights(team, 10), (std::vector<int>{2, 2, 2, 4}));
    EXPECT_EQ(bandHeights(team, 1), (std::vector<int>{0, 0, 0, 1}));
  });
}

TEST(ScratchRowsInTeam, EachThreadHasRowsAndASliceOfItsOwn) {
  constexpr int sliceElements = 37;
  const WatchedAllocator allocator;
  std::atomic<int> calls = 0;
  inTeams([&](int team) {
    for (int height = 1; height <= 20; ++height) {
      Log log(team);
      const auto row = [&](int y, Vemi32f* slice) {
        std::fill_n(slice, sliceElements, 1.0f);
        log.note(y, slice);
      };
      EXPECT_EQ(scratchRowsInTeam(height, sliceElements, row), vemiOk);
      ++calls;
      log.expectBlocksOfRows(height);
      log.expectOwnSlices(sliceElements * ptrdiff_t{sizeof(Vemi32f)});
    }
  });
  EXPECT_EQ(allocator.requests(), calls) << "one block for the whole team";
  EXPECT_EQ(allocator.released(), calls);
}

TEST(ScratchRowsInTeam, AFailedAllocationRunsNoRow) {
  const NoMemory allocator;
  std::atomic<int> rows = 0;
  inTeams([&](int) { EXPECT_EQ(scratchRowsInTeam(9, 16, [&](int, Vemi32f*) { ++rows; }), vemiErrMemAlloc); });
  EXPECT_EQ(rows, 0);
  EXPECT_EQ(allocator.released(), 0);
}

constexpr TileGrid grid = {5, 3, 100, 77};  // 15 tiles; memory that is no multiple of any alignment

TEST(TilesInTeam, TileIRunsOnThreadIModuloTeamSizeInItsOwnSlice) {
  const WatchedAllocator allocator;
  std::atomic<int> calls = 0;
  inTeams([&](int team) {
    Log log(team);
    std::atomic<int> preparations = 0;
    const auto isAligned = [](const void* block) { return reinterpret_cast<uintptr_t>(block) % 32 == 0; };
    const auto prepare = [&](void* shared) -> VemiStatus {
      ++preparations;
      std::fill_n(static_cast<char*>(shared), grid.sharedBytes, 's');
      return vemiOk;
    };
    const auto tile = [&](int row, int column, const void* shared, void* slice) -> VemiStatus {
      const auto* common = static_cast<const char*>(shared);
      EXPECT_EQ(std::count(common, common + grid.sharedBytes, 's'), grid.sharedBytes);
      EXPECT_TRUE(isAligned(shared) && isAligned(slice));
      std::fill_n(static_cast<char*>(slice), grid.sliceBytes, '\xff');  // would be an error, if it were a status
      log.note(row * grid.across + column, slice);
      return vemiOk;
    };
    EXPECT_EQ(tilesInTeam(grid, prepare, tile), vemiOk);
    ++calls;
    EXPECT_EQ(preparations, 1);
    for (int t = 0; t < team; ++t) {
      std::vector<int> expected;
      for (int i = t; i < 15; i += team) expected.push_back(i);
      EXPECT_EQ(log.items[static_cast<size_t>(t)], expected) << "thread " << t;
    }
    log.expectOwnSlices(grid.sliceBytes);
  });
  EXPECT_EQ(allocator.requests(), calls) << "one block for the whole team";
  EXPECT_EQ(allocator.released(), calls);
}

TEST(TilesInTeam, TheSmallestStatusComesBack) {
  const struct {
    const char* what;
    VemiStatus prepared, first, other, last;  // of the preparation, tile 0, the tiles between, tile 14
    VemiStatus expected;
    int tiles;
  } cases[] = {
      {"all well", vemiOk, vemiOk, vemiOk, vemiOk, vemiOk, 15},
      {"warnings alone are success", vemiWarnLnZero, vemiWarnLnZero, vemiOk, vemiWarnDivByZero, vemiOk, 15},
      {"an early error stops no other tile", vemiOk, vemiErrSize, vemiOk, vemiOk, vemiErrSize, 15},
      {"a late error is not lost", vemiOk, vemiOk, vemiOk, vemiErrStep, vemiErrStep, 15},
      {"an error wins over warnings", vemiOk, vemiWarnLnZero, vemiErrSize, vemiWarnLnZero, vemiErrSize, 15},
      {"the lower of two errors", vemiOk, vemiErrStep, vemiOk, vemiErrSize, vemiErrStep, 15},
      {"the same in the other order", vemiOk, vemiErrSize, vemiOk, vemiErrStep, vemiErrStep, 15},
      {"a failed preparation starts no tile", vemiErrFftOrder, vemiOk, vemiOk, vemiOk, vemiErrFftOrder, 0},
  };
  inTeams([&](int) {
    for (const auto& c : cases) {
      std::atomic<int> tiles = 0;
      const auto tile = [&](int row, int column, const void*, void*) -> VemiStatus {
        ++tiles;
        const int i = row * grid.across + column;
        return i == 0 ? c.first : i == 14 ? c.last : c.other;
      };
      EXPECT_EQ(tilesInTeam(
                    grid, [&](void*) { return c.prepared; }, tile),
                c.expected)
          << c.what;
      EXPECT_EQ(tiles, c.tiles) << c.what;
    }
  });
}

TEST(TilesInTeam, AFailedAllocationPreparesNothingAndRunsNoTile) {
  const NoMemory allocator;
  std::atomic<int> calls = 0;
  const auto count = [&](auto...) -> VemiStatus { return ++calls, vemiOk; };
  inTeams([&](int) { EXPECT_EQ(tilesInTeam(grid, count, count), vemiErrMemAlloc); });
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(allocator.released(), 0);
}

/// More than 32 bits count is more than 32-bit pointers reach; a wider address space is told what is wanted, whole.
TEST(TilesInTeam, SizesBeyond32BitsDoNotWrap) {
  static size_t requested;
  requested = 0;
  const NoMemory noMemory;
  vemi::testing::allocate = [](size_t size) -> void* { return requested = size, nullptr; };
  const auto none = [](auto...) -> VemiStatus { return ADD_FAILURE() << "ran without memory", vemiOk; };
  constexpr Vemi64s beyond = (Vemi64s{1} << 32) + 64;
  for (const TileGrid& large :
       {TileGrid{1, 1, beyond, 64}, TileGrid{1, 1, 64, beyond}, TileGrid{1, 1, beyond, beyond}}) {
    EXPECT_EQ(tilesInTeam(large, none, none), vemiErrMemAlloc);
    if (sizeof(void*) > 4) {
      EXPECT_GT(requested, static_cast<size_t>(beyond));
    } else {
      EXPECT_EQ(requested, 0u);
    }
  }
}

using Work = std::function<void()>;

/// Each form with as much work as there are threads.
const struct {
  const char* name;
  void (*run)(int team, const Work&);
} forms[] = {
    {"rows", [](int team, const Work& work) { rowsInTeam(team, [&](ptrdiff_t) { work(); }); }},
    {"the finish",
     [](int team, const Work& work) {
       rowsInTeam(
           team, [](ptrdiff_t) {}, work);
     }},
    {"bands", [](int team, const Work& work) { bandsInTeam(team, [&](int, int) { work(); }); }},
    {"rows with scratch",
     [](int team, const Work& work) { scratchRowsInTeam(team, 8, [&](int, Vemi32f*) { work(); }); }},
    {"tiles",
     [](int team, const Work& work) {
       const auto prepare = [&](void*) -> VemiStatus { return work(), vemiOk; };
       const auto tile = [&](int, int, const void*, void*) -> VemiStatus { return work(), vemiOk; };
       tilesInTeam({1, team, 8, 8}, prepare, tile);
     }},
};

/// Of lanes and scalars; fegetround may tell another unit's.
int roundingMode() {
  volatile float one = 1, little = 0x1p-30f;
  if (one + little > 1) return FE_UPWARD;
  if (-one - little < -1) return FE_DOWNWARD;
  return one - little < 1 ? FE_TOWARDZERO : FE_TONEAREST;
}

// Flags, as lanes raise them.

void divideByZero() {
  volatile float number = 1;
  number = number / 0.0f;
}

void overflow() {
  volatile float number = FLT_MAX;
  number = number * number;
}

/// Threads that were made in one mode work in another, and are left in their own.
TEST(FloatControl, WorkersHaveTheCallersForACall) {
  for (const auto& form : forms) {
    SCOPED_TRACE(form.name);
    std::thread([&] {
      constexpr int team = 3;
      omp_set_num_threads(team);
      fesetround(FE_UPWARD);
#pragma omp parallel
      {
        feclearexcept(FE_ALL_EXCEPT);
        overflow();
      }
      for (const int mode : {FE_TONEAREST, FE_DOWNWARD}) {
        fesetround(mode);
        feclearexcept(FE_ALL_EXCEPT);
        std::atomic<int> calls = 0;
        form.run(team, [&] {
          EXPECT_EQ(roundingMode(), mode);
          ++calls;
          divideByZero();
        });
        EXPECT_GE(calls, team);
        EXPECT_EQ(roundingMode(), mode);
        EXPECT_EQ(fetestexcept(FE_ALL_EXCEPT), FE_DIVBYZERO | FE_INEXACT)
            << "what the caller's own thread raises is seen";
#pragma omp parallel
        if (omp_get_thread_num() > 0) {
          EXPECT_EQ(fetestexcept(FE_ALL_EXCEPT), FE_OVERFLOW | FE_INEXACT);
          EXPECT_EQ(roundingMode(), FE_UPWARD);
        }
      }
    }).join();
  }
}

}  // namespace
