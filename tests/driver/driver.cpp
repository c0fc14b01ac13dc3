// Calls every exported function as its prototype and its family allow, without knowing what it computes.
//
//   vemi_driver [WORD]              random good arguments, every bad argument, and every pair of bad arguments
//   vemi_driver --callers N [WORD]  N threads at once, with teams of several sizes, inside regions of their own too
//
// Images lie between unmapped pages, so that an access outside of them ends the program and names the call. WORD picks
// the functions whose names begin with it. Prints what it did; the exit status is 1 after a failure.

#include <omp.h>

#include <atomic>
#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "support/digest.h"
#include "support/families.h"
#include "support/faults.h"

using namespace vemi::test;

namespace {

using Functions = std::vector<const Export*>;

Functions functionsFrom(const std::string& word) {
  Functions chosen;
  for (const Export& function : exports()) {
    if (function.name.compare(0, word.size(), word) == 0) chosen.push_back(&function);
  }
  return chosen;
}

std::atomic<int> failures = 0;

void expectNone(const std::string& failure) {
  if (failure.empty()) return;
  ++failures;
  std::fprintf(stderr, "%s\n", failure.c_str());
}

// ---- Arguments ----

void driveArguments(const Functions& functions) {
  constexpr int callsEach = 40;
  long calls = 0, called = 0;
  FaultCount faults;
  for (const Export* const function : functions) {
    if (function->call == nullptr) continue;
    ++called;
    Random random(1);
    std::string failure;
    for (int n = 0; n < callsEach && failure.empty(); ++n, ++calls) {
      Call call(*function, randomScenario(*function, random));
      failure = tryCall(call).failure;
    }
    expectNone(failure);
    const long before = faults.single;
    expectNone(tryFaults(*function, faults));
    const bool checks = familyOf(*function).order[0] != '\0';
    if (checks && faults.single == before) expectNone(function->name + ": no bad argument was tried");
  }
  std::printf("%ld functions, %ld calls with good arguments, %ld with one bad argument, %ld with two\n", called, calls,
              faults.single, faults.pairs);
}

// ---- Threads ----

/// What the functions leave when the calling thread is alone and has no team.
std::vector<uint64_t> expectedDigests(const Functions& functions) {
  omp_set_num_threads(1);
  std::vector<uint64_t> digests;
  for (const Export* const function : functions) digests.push_back(digestOf(*function));
  return digests;
}

void compareDigest(const Export& function, uint64_t expected, const std::string& where) {
  if (digestOf(function) != expected) expectNone(function.name + " leaves other bytes " + where);
}

void driveCallers(const Functions& functions, int callers) {
  const std::vector<uint64_t> expected = expectedDigests(functions);
  constexpr int teams[] = {1, 2, 3, 7};
  std::barrier together(callers);
  const auto call = [&](int caller) {
    const int team = teams[static_cast<size_t>(caller) % std::size(teams)];
    omp_set_num_threads(team);
    const std::string where = "among " + std::to_string(callers) + " callers, with a team of " + std::to_string(team);
    for (size_t n = 0; n < functions.size(); ++n) {
      together.arrive_and_wait();  // so that all of them are in the same function
      compareDigest(*functions[n], expected[n], where);
    }
  };
  std::vector<std::thread> threads;
  for (int caller = 0; caller < callers; ++caller) threads.emplace_back(call, caller);
  for (std::thread& thread : threads) thread.join();

  for (const int levels : {1, 2}) {  // the library's regions inside of the caller's: without and with a team
    omp_set_max_active_levels(levels);
#pragma omp parallel for num_threads(2) schedule(dynamic)
    for (size_t n = 0; n < functions.size(); ++n) {
      omp_set_num_threads(3);
      compareDigest(*functions[n], expected[n], "in a region of the caller, levels " + std::to_string(levels));
    }
  }
  std::printf("%zu functions give the same bytes to %d callers at once with teams of 1, 2, 3 and 7, and in regions\n",
              functions.size(), callers);
}

}  // namespace

int main(int argc, char** argv) {
  const bool threads = argc > 2 && std::string(argv[1]) == "--callers";
  const int callers = threads ? std::atoi(argv[2]) : 0;
  const int words = threads ? 3 : 1;
  const Functions functions = functionsFrom(argc > words ? argv[words] : "");
  if (functions.empty()) expectNone("no such function");
  if (callers > 0) {
    driveCallers(functions, callers);
  } else {
    driveArguments(functions);
  }
  return failures == 0 ? 0 : 1;
}
