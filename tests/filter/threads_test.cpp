// Which filters share their work: a team has memory for each thread, the calling thread has as much in every team.

#include <gtest/gtest.h>
#include <omp.h>

#include <atomic>
#include <cstdlib>

#include "core/alloc.h"
#include "support/call.h"

using namespace vemi::test;

namespace {

std::atomic<size_t> asked;

size_t bytesAskedFor(const Export& function, unsigned seed, int threads) {
  const int before = omp_get_max_threads();
  omp_set_num_threads(threads);
  Call call(function, {{301, 112}, Rows::padded, Edge::back, seed, 1});
  asked = 0;
  vemi::testing::allocate = [](size_t size) -> void* {
    asked += size;
    return std::malloc(size);
  };
  EXPECT_EQ(call.invoke(), vemiOk) << call.text();
  vemi::testing::allocate = std::malloc;
  omp_set_num_threads(before);
  return asked;
}

bool teamAsksForMore(const Export& function, unsigned seed) {
  return bytesAskedFor(function, seed, 3) > bytesAskedFor(function, seed, 1);
}

struct Members {
  const char* operation;
  const char* pattern = ".*";
};

}  // namespace

TEST(Threads, OfTheCallerAlone) {
  constexpr Members members[] = {{"vemiFilterSobelHoriz"},
                                 {"vemiFilterSobelVert"},
                                 {"vemiFilterSobelHorizMask"},
                                 {"vemiFilterSobelVertMask"},
                                 {"vemiFilterSobelHorizSecond"},
                                 {"vemiFilterSobelVertSecond"},
                                 {"vemiFilterSobelCross"},
                                 {"vemiFilterScharrHoriz"},
                                 {"vemiFilterScharrVert"},
                                 {"vemiFilterPrewittHoriz"},
                                 {"vemiFilterPrewittVert"},
                                 {"vemiFilterLaplace"},
                                 {"vemiFilterHipass"},
                                 {"vemiFilterGauss"},
                                 {"vemiFilterLowpass"},
                                 {"vemiFilterSharpen"},
                                 {"vemiFilterMin"},
                                 {"vemiFilterMax"},
                                 {"vemiErode"},
                                 {"vemiDilate"},
                                 {"vemiErode3x3"},
                                 {"vemiDilate3x3"},
                                 {"vemiFilterMedianColor"},
                                 {"vemiFilterMedian", ".*_C[134]R"},
                                 {"vemiFilterBox", ".*IR"},
                                 {"vemiFilterWiener", ".*_C1R"}};
  for (const auto& [operation, pattern] : members) {
    for (const Export* const function : membersOf(operation, pattern)) {
      for (const unsigned seed : {1u, 2u}) EXPECT_FALSE(teamAsksForMore(*function, seed)) << function->name;
    }
  }
}

// With some arguments: small kernels are no work for a team, and a buffer of the caller's may do.
TEST(Threads, OfATeam) {
  constexpr Members members[] = {{"vemiFilter"},
                                 {"vemiFilter32f"},
                                 {"vemiFilterRow"},
                                 {"vemiFilterRow32f"},
                                 {"vemiFilterColumn"},
                                 {"vemiFilterColumn32f"},
                                 {"vemiFilterBox", ".*_A?C[134]R"},
                                 {"vemiFilterMedian", ".*_AC4R"},
                                 {"vemiFilterWiener", "16s_A?C[34]R"}};
  for (const auto& [operation, pattern] : members) {
    for (const Export* const function : membersOf(operation, pattern)) {
      bool shared = false;
      for (unsigned seed = 1; !shared && seed <= 16; ++seed) shared = teamAsksForMore(*function, seed);
      EXPECT_TRUE(shared) << function->name;
    }
  }
}
