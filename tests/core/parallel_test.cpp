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

#include "core/float_control.h"
#include "support/allocator.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// Runs f(n) where the next parallel region has a team of n.
template <class F>
void inTeamOf(int n, const F& f) {
  const int threads = omp_get_max_threads();
  omp_set_num_threads(n);
  SCOPED_TRACE(n);
  f(n);
  omp_set_num_threads(threads);
}

template <class F>
void inTeams(const F& f) {
  for (const int n : {1, 2, 3, 8}) inTeamOf(n, f);
#pragma omp parallel num_threads(2)
  {
    SCOPED_TRACE("nested");
    f(1);
  }
}

constexpr TeamRows team = {.small = false};

/// What each thread of a region did, in its order, and the memory that it had for it.
struct Log {
  std::vector<std::vector<int>> items;
  std::vector<char*> slice;

  explicit Log(int threads) : items(static_cast<size_t>(threads)), slice(items.size()) {}

  void note(ptrdiff_t item, Memory own = {}) {
    EXPECT_EQ(static_cast<size_t>(omp_get_num_threads()), items.size());
    const auto t = static_cast<size_t>(omp_get_thread_num());
    EXPECT_TRUE(items[t].empty() || slice[t] == own.first) << "a thread keeps its slice";
    items[t].push_back(static_cast<int>(item));
    slice[t] = own.first;
  }

  /// Each thread had one block of the rows, and its slice to itself.
  void expectBlocksOfRows(int height) const {
    std::vector<int> rows, expected(static_cast<size_t>(height));
    for (const auto& own : items) rows.insert(rows.end(), own.begin(), own.end());
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(rows, expected);
  }
  void expectOwnSlices(Vemi64s bytes) const {
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

TEST(TeamRows, EachThreadHasOneBlockOfRowsAndFinishesOnce) {
  inTeams([](int n) {
    for (int height = 1; height <= 20; ++height) {
      Log log(n);
      team.run(
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

/// As OpenMP divides a loop by itself.
TEST(TeamRows, BlocksDifferByOneRowAtMost) {
  for (int n = 1; n <= 9; ++n) {
    for (const ptrdiff_t height : {ptrdiff_t{1}, ptrdiff_t{8}, ptrdiff_t{9}, ptrdiff_t{1000}, PTRDIFF_MAX / 16}) {
      ptrdiff_t end = 0, former = height;
      for (int t = 0; t < n; ++t) {
        const RowRange own = rowsOf(t, n, height);
        EXPECT_EQ(own.first, end);
        end = own.end;
        EXPECT_LE(end - own.first, former) << "the first ones are the larger ones";
        EXPECT_LE(end - own.first, height / n + 1);
        EXPECT_GE(end - own.first, height / n);
        former = end - own.first;
      }
      EXPECT_EQ(end, height);
    }
  }
}

TEST(TeamRows, SmallImagesAndMembersWithoutARegionStayInTheCallingThread) {
  inTeamOf(3, [](int) {
    Log small(1), serial(1), three(3);
    const auto noteIn = [](Log& log) { return [&log](ptrdiff_t y) { log.note(y); }; };
    TeamRows{.small = true}.run(4, noteIn(small), [&] { small.note(4); });
    CallerRows().run(4, noteIn(serial), [&] { serial.note(4); });
    team.run(4, noteIn(three));
    small.expectBlocksOfRows(5);
    serial.expectBlocksOfRows(5);
    three.expectBlocksOfRows(4);
  });
}

/// Rows of each thread's band, by thread; the bands must follow each other.
std::vector<int> bandHeights(int n, int height) {
  std::vector<int> first(static_cast<size_t>(n)), heights(first.size(), -1);
  const VemiStatus status = forBands(team, height, {}, [&](int firstRow, int rows, Memory) {
    const auto t = static_cast<size_t>(omp_get_thread_num());
    EXPECT_EQ(heights[t], -1) << "one band for each thread";
    first[t] = firstRow;
    heights[t] = rows;
  });
  EXPECT_EQ(status, vemiOk);
  EXPECT_EQ(first[0], 0);
  for (size_t t = 1; t < first.size(); ++t) EXPECT_EQ(first[t], first[t - 1] + heights[t - 1]);
  return heights;
}

TEST(Bands, TheLastBandTakesTheRest) {
  const NoMemory allocator;
  inTeams([](int n) {
    for (int height = 1; height <= 20; ++height) {
      std::vector<int> expected(static_cast<size_t>(n), height / n);
      expected.back() += height % n;
      EXPECT_EQ(bandHeights(n, height), expected);
    }
  });
  inTeamOf(4, [](int n) {
    EXPECT_EQ(bandHeights(n, 10), (std::vector<int>{2, 2, 2, 4}));
    EXPECT_EQ(bandHeights(n, 1), (std::vector<int>{0, 0, 0, 1}));
  });
  EXPECT_EQ(allocator.requests(), 0) << "memory that is not wanted";
}

TEST(Rows, EachThreadHasOneBlockOfRows) {
  inTeams([](int n) {
    for (int height = 1; height <= 20; ++height) {
      Log log(n);
      EXPECT_EQ(forRows(team, height, {}, [&](ptrdiff_t y, Memory) { log.note(y); }), vemiOk);
      log.expectBlocksOfRows(height);
    }
  });
}

constexpr TileGrid grid = {5, 3};

TEST(Tiles, TileIRunsOnThreadIModuloTeamSize) {
  inTeams([](int n) {
    Log log(n);
    std::atomic<int> preparations = 0;
    const auto prepare = [&](Memory) { ++preparations; };
    const auto tile = [&](int row, int column, Memory, Memory) { log.note(row * grid.across + column); };
    EXPECT_EQ(forTiles(team, grid, {}, prepare, tile), vemiOk);
    EXPECT_EQ(preparations, 1);
    for (int t = 0; t < n; ++t) {
      std::vector<int> expected;
      for (int i = t; i < 15; i += n) expected.push_back(i);
      EXPECT_EQ(log.items[static_cast<size_t>(t)], expected) << "thread " << t;
    }
  });
}

// ---- All forms ------------------------------------------------------------------------------------------------------

/// A piece of work, the number of which says which; it fails as it likes.
using Work = std::function<VemiStatus(int item, Memory slice)>;

template <class Who>
VemiStatus runRows(const Who& who, int items, const TeamMemory& memory, const Work& work) {
  return forRows(who, items, memory, [&](ptrdiff_t y, Memory slice) { return work(static_cast<int>(y), slice); });
}

/// A band is as many pieces of work as it has rows.
template <class Who>
VemiStatus runBands(const Who& who, int items, const TeamMemory& memory, const Work& work) {
  return forBands(who, items, memory, [&](int first, int rows, Memory slice) {
    VemiStatus status = vemiOk;
    for (int y = first; y < first + rows; ++y) status = std::min(status, work(y, slice));
    return status;
  });
}

template <class Who>
VemiStatus runTiles(const Who& who, int items, const TeamMemory& memory, const Work& work) {
  const auto prepare = [](Memory) { return vemiOk; };
  return forTiles(who, {1, items}, memory, prepare,
                  [&](int row, int, Memory, Memory slice) { return work(row, slice); });
}

using Form = VemiStatus (*)(int items, const TeamMemory&, const Work&);

#define FORM(name, run, who)                                                                                  \
  {                                                                                                           \
    name, [](int items, const TeamMemory& memory, const Work& work) { return run(who, items, memory, work); } \
  }

const struct {
  const char* name;
  Form run;
} teamForms[] = {FORM("rows", runRows, team), FORM("bands", runBands, team), FORM("tiles", runTiles, team)},
  callerForms[] = {FORM("rows", runRows, CallerRows()), FORM("bands", runBands, CallerRows()),
                   FORM("tiles", runTiles, CallerRows())};

#undef FORM

/// Arrays of several types, the sizes of which are no multiple of any alignment.
struct SliceOfArrays {
  static constexpr int bytes = 77, doubles = 5, shorts = 3;
  TeamMemory memory;
  Piece<Vemi8u> byte = memory.slice.add<Vemi8u>(bytes);
  Piece<double> number = memory.slice.add<double>(doubles);
  Piece<Vemi16s> word = memory.slice.add<Vemi16s>(shorts);

  explicit SliceOfArrays(Vemi64s alignment = 32) : memory{.slice = Pieces(alignment)} {}

  void fill(Memory slice, int value) const {
    std::fill_n(slice[byte], bytes, static_cast<Vemi8u>(value));
    std::fill_n(slice[number], doubles, value);
    std::fill_n(slice[word], shorts, static_cast<Vemi16s>(value));
  }
  bool holds(Memory slice, int value) const {
    return std::count(slice[byte], slice[byte] + bytes, value) == bytes &&
           std::count(slice[number], slice[number] + doubles, value) == doubles &&
           std::count(slice[word], slice[word] + shorts, value) == shorts;
  }
};

TEST(Forms, EachThreadKeepsASliceOfItsOwn) {
  for (const auto& form : teamForms) {
    SCOPED_TRACE(form.name);
    const WatchedAllocator allocator;
    std::atomic<int> calls = 0;
    inTeams([&](int n) {
      for (const int items : {1, 7, 20}) {
        const SliceOfArrays arrays;
        Log log(n);
        const auto work = [&](int item, Memory slice) -> VemiStatus {
          const int t = omp_get_thread_num();
          EXPECT_EQ(reinterpret_cast<uintptr_t>(slice.first) % 32, 0u);
          if (!log.items[static_cast<size_t>(t)].empty()) {
            EXPECT_TRUE(arrays.holds(slice, t + 1)) << "what the thread has left";
          }
          arrays.fill(slice, t + 1);
          log.note(item, slice);
          return vemiOk;
        };
        EXPECT_EQ(form.run(items, arrays.memory, work), vemiOk);
        ++calls;
        log.expectOwnSlices(arrays.memory.slice.bytes());
      }
    });
    EXPECT_EQ(allocator.requests(), calls) << "one block for the whole team";
    EXPECT_EQ(allocator.released(), calls);
  }
}

/// From the first multiple of 16 bytes on.
TEST(Forms, SlicesLieInAUsersBuffer) {
  for (const auto& form : teamForms) {
    SCOPED_TRACE(form.name);
    inTeamOf(3, [&](int n) {
      SliceOfArrays arrays(16);
      const auto distance = static_cast<size_t>(arrays.memory.slice.distance());
      const size_t size = 15 + static_cast<size_t>(n) * distance;
      std::vector<Vemi8u> buffer(1 + size + 16, 0xee);
      arrays.memory.buffer = buffer.data() + 1;
      Log log(n);
      EXPECT_EQ(form.run(9, arrays.memory,
                         [&](int item, Memory slice) -> VemiStatus {
                           arrays.fill(slice, 1);
                           log.note(item, slice);
                           return vemiOk;
                         }),
                vemiOk);
      const uintptr_t first = (reinterpret_cast<uintptr_t>(arrays.memory.buffer) + 15) / 16 * 16;
      for (size_t t = 0; t < log.slice.size(); ++t) {
        EXPECT_EQ(reinterpret_cast<uintptr_t>(log.slice[t]), first + t * distance);
      }
      EXPECT_EQ(buffer[0], 0xee);
      EXPECT_EQ(std::count(buffer.end() - 16, buffer.end(), 0xee), 16);
    });
  }
  const NoMemory allocator;
  SliceOfArrays arrays(16);
  std::vector<Vemi8u> buffer(1000);
  arrays.memory.buffer = buffer.data();
  inTeamOf(2, [&](int) { EXPECT_EQ(forRows(team, 4, arrays.memory, [](ptrdiff_t, Memory) {}), vemiOk); });
  EXPECT_EQ(allocator.requests(), 0) << "work without a status needs no block";
}

TEST(Forms, AFailedAllocationStartsNoWork) {
  const NoMemory allocator;
  std::atomic<int> calls = 0;
  const auto work = [&](int, Memory) -> VemiStatus { return ++calls, vemiOk; };
  TeamMemory memory;
  memory.slice.add<float>(16);
  inTeams([&](int) {
    for (const auto& form : teamForms) EXPECT_EQ(form.run(9, memory, work), vemiErrMemAlloc) << form.name;
    for (const auto& form : callerForms) EXPECT_EQ(form.run(9, memory, work), vemiErrMemAlloc) << form.name;
    const auto prepare = [&](Memory) { ++calls; };
    EXPECT_EQ(forTiles(team, grid, memory, prepare, [&](int, int, Memory, Memory) { ++calls; }), vemiErrMemAlloc);
  });
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(allocator.released(), 0);
}

TEST(Forms, TheSmallestStatusComesBack) {
  const struct {
    const char* what;
    VemiStatus first, other, last, expected;  // of the first piece of work, those between, the last one
  } cases[] = {
      {"all well", vemiOk, vemiOk, vemiOk, vemiOk},
      {"warnings alone are success", vemiWarnLnZero, vemiOk, vemiWarnDivByZero, vemiOk},
      {"an early error stops no other work", vemiErrSize, vemiOk, vemiOk, vemiErrSize},
      {"a late error is not lost", vemiOk, vemiOk, vemiErrStep, vemiErrStep},
      {"an error wins over warnings", vemiWarnLnZero, vemiErrSize, vemiWarnLnZero, vemiErrSize},
      {"the lower of two errors", vemiErrStep, vemiOk, vemiErrSize, vemiErrStep},
      {"the same in the other order", vemiErrSize, vemiOk, vemiErrStep, vemiErrStep},
  };
  const SliceOfArrays arrays;
  inTeams([&](int) {
    for (const auto& c : cases) {
      std::atomic<int> calls = 0;
      const auto work = [&](int item, Memory slice) -> VemiStatus {
        ++calls;
        arrays.fill(slice, 0xff);  // would be an error, if it were a status
        return item == 0 ? c.first : item == 14 ? c.last : c.other;
      };
      const auto expectStatus = [&](const char* name, Form run) {
        calls = 0;
        EXPECT_EQ(run(15, arrays.memory, work), c.expected) << name << ": " << c.what;
        EXPECT_EQ(calls, 15) << name << ": " << c.what;
      };
      for (const auto& form : teamForms) expectStatus(form.name, form.run);
      for (const auto& form : callerForms) expectStatus(form.name, form.run);
    }
  });
}

/// Where the caller is in a region of its own, its threads work apart from each other.
TEST(Forms, TheCallingThreadAloneDoesAllWork) {
  for (const auto& form : callerForms) {
    SCOPED_TRACE(form.name);
#pragma omp parallel num_threads(3)
    {
      const SliceOfArrays arrays;
      std::vector<int> items, expected(10);
      std::iota(expected.begin(), expected.end(), 0);
      const int thread = omp_get_thread_num();
      const auto work = [&](int item, Memory slice) -> VemiStatus {
        EXPECT_EQ(omp_get_thread_num(), thread);
        EXPECT_TRUE(item == 0 || arrays.holds(slice, thread));
        arrays.fill(slice, thread);
        items.push_back(item);
        return vemiOk;
      };
      EXPECT_EQ(form.run(10, arrays.memory, work), vemiOk);
      EXPECT_EQ(items, expected);
    }
  }
}

TEST(Tiles, HaveABlockInCommonThatOneThreadPrepares) {
  const WatchedAllocator allocator;
  std::atomic<int> calls = 0;
  inTeams([&](int n) {
    SliceOfArrays arrays;
    const auto letters = arrays.memory.shared.add<char>(100);
    const auto isWhole = [&](Memory shared) { return std::count(shared[letters], shared[letters] + 100, 's') == 100; };
    Log log(n);
    const auto prepare = [&](Memory shared) { std::fill_n(shared[letters], 100, 's'); };
    const auto tile = [&](int row, int column, Memory shared, Memory slice) {
      arrays.fill(slice, 0xff);
      EXPECT_TRUE(isWhole(shared));
      log.note(row * grid.across + column, slice);
    };
    EXPECT_EQ(forTiles(team, grid, arrays.memory, prepare, tile), vemiOk);
    ++calls;
    log.expectOwnSlices(arrays.memory.slice.bytes());
  });
  EXPECT_EQ(allocator.requests(), calls);
  EXPECT_EQ(allocator.released(), calls);
}

TEST(Tiles, AFailedPreparationStartsNone) {
  inTeams([](int) {
    std::atomic<int> tiles = 0;
    const auto runAfter = [&](VemiStatus prepared) {
      return forTiles(
          team, grid, {}, [&](Memory) { return prepared; }, [&](int, int, Memory, Memory) { ++tiles; });
    };
    EXPECT_EQ(runAfter(vemiErrFftOrder), vemiErrFftOrder);
    EXPECT_EQ(tiles, 0);
    EXPECT_EQ(runAfter(vemiWarnLnZero), vemiOk);
    EXPECT_EQ(tiles, 15);
  });
}

/// More than 32 bits count is more than 32-bit pointers reach; a wider address space is told what is wanted, whole.
TEST(Forms, SizesBeyond32BitsDoNotWrap) {
  static size_t requested;
  requested = 0;
  const NoMemory noMemory;
  vemi::testing::allocate = [](size_t size) -> void* { return requested = size, nullptr; };
  constexpr Vemi64s beyond = (Vemi64s{1} << 32) + 64;
  const Vemi64s sizes[][2] = {{beyond, 64}, {64, beyond}, {beyond, beyond}, {64, mostBytes / 2}};
  for (const auto& size : sizes) {
    TeamMemory memory;
    memory.shared.add<char>(size[0]);
    memory.slice.add<char>(size[1]);
    const auto none = [](auto...) { ADD_FAILURE() << "ran without memory"; };
    inTeamOf(3, [&](int) { EXPECT_EQ(forTiles(team, {1, 1}, memory, none, none), vemiErrMemAlloc); });
    if (sizeof(void*) > 4) {
      EXPECT_GT(requested, static_cast<size_t>(beyond));
    } else {
      EXPECT_EQ(requested, 0u);
    }
  }
}

/// The plain row loop, what follows behind its last row, and a preparation.
const Form plainForms[] = {[](int items, const TeamMemory&, const Work& work) {
                             team.run(items, [&](ptrdiff_t y) { work(static_cast<int>(y), {}); });
                             return VemiStatus{vemiOk};
                           },
                           [](int items, const TeamMemory&, const Work& work) {
                             team.run(
                                 items, [](ptrdiff_t) {}, [&] { work(0, {}); });
                             return VemiStatus{vemiOk};
                           },
                           [](int items, const TeamMemory& memory, const Work& work) {
                             return forTiles(
                                 team, {1, items}, memory, [&](Memory shared) { return work(0, shared); },
                                 [&](int, int, Memory, Memory slice) { return work(0, slice); });
                           }};

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

std::vector<Form> allForms() {
  std::vector<Form> forms(std::begin(plainForms), std::end(plainForms));
  for (const auto& form : teamForms) forms.push_back(form.run);
  return forms;
}

TEST(FloatControl, AModeThatACallSetsHoldsInItsTeam) {
  inTeamOf(3, [](int) {
    for (const Form form : allForms()) {
      const auto work = [](int, Memory) -> VemiStatus {
        EXPECT_EQ(roundingMode(), FE_TOWARDZERO);
        return vemiOk;
      };
      EXPECT_EQ(roundingAs(Rounding::towardZero, [&] { return form(6, {}, work); }), vemiOk);
      EXPECT_EQ(form(6, {},
                     [](int, Memory) -> VemiStatus {
                       EXPECT_EQ(roundingMode(), FE_TONEAREST);
                       return vemiOk;
                     }),
                vemiOk);
    }
  });
}

/// Threads that were made in one mode work in another, and are left in their own.
TEST(FloatControl, WorkersHaveTheCallersForACall) {
  const std::vector<Form> forms = allForms();
  for (size_t form = 0; form < forms.size(); ++form) {
    SCOPED_TRACE(form);
    std::thread([&] {
      constexpr int threads = 3;
      omp_set_num_threads(threads);
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
        forms[form](threads, {}, [&](int, Memory) -> VemiStatus {
          EXPECT_EQ(roundingMode(), mode);
          ++calls;
          divideByZero();
          return vemiOk;
        });
        EXPECT_GE(calls, 1);
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
