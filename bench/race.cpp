#include "race.h"

#include <time.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace bench {
namespace {

double secondsBy(Clock clock) {
  timespec time;
  clock_gettime(clock == Clock::thread ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

template <class Call>
double secondsOf(Clock clock, const Call& call, int calls) {
  const double start = secondsBy(clock);
  for (int i = 0; i < calls; ++i) call();
  return secondsBy(clock) - start;
}

template <class Call>
class Side {
 public:
  Side(const Call& call, Effort effort) : call_(call), clock_(effort.clock) {
    call_();
    const double ofOne = std::max(secondsOf(clock_, call_, 1), 1e-9);
    calls_ = static_cast<int>(std::clamp(effort.batchSeconds / ofOne, 1.0, 1e6));
  }

  // Returns whether this was the best batch by a percent or more. The first call is not timed: it leaves the caches as
  // this side leaves them, not as the other one did.
  bool runBatch() {
    call_();
    const double seconds = secondsOf(clock_, call_, calls_) / calls_;
    const bool improved = seconds < 0.99 * best_;
    best_ = std::min(best_, seconds);
    return improved;
  }

  double best() const { return best_; }

 private:
  const Call& call_;
  const Clock clock_;
  int calls_;
  double best_ = std::numeric_limits<double>::infinity();
};

// What a call makes of destinations that hold a known pattern.
template <class Call>
std::vector<std::vector<char>> writtenBy(const Call& call, const std::vector<Bytes>& results) {
  constexpr int pattern = 0x5a;
  for (const Bytes& result : results) std::memset(result.begin, pattern, result.count);
  call();
  std::vector<std::vector<char>> written;
  for (const Bytes& result : results) {
    const char* begin = static_cast<const char*>(result.begin);
    written.emplace_back(begin, begin + result.count);
  }
  return written;
}

}  // namespace

bool agree(const Contest& contest) {
  VemiStatus status = vemiOk;
  const auto ours = writtenBy([&] { status = contest.ours(); }, contest.results);
  return status == vemiOk && ours == writtenBy(contest.peers, contest.results);
}

double secondsOfCopy(size_t bytes, Effort effort) {
  std::vector<char> from(bytes / 2, 1), to(bytes / 2);
  const auto copy = [&] { std::memcpy(to.data(), from.data(), from.size()); };
  Side side(copy, effort);
  for (int idle = 0; idle < effort.patience;) idle = side.runBatch() ? 0 : idle + 1;
  return side.best();
}

Times race(const Contest& contest, Effort effort) {
  Side ours(contest.ours, effort);
  Side peers(contest.peers, effort);
  for (int idle = 0; idle < effort.patience;) {
    const bool oursImproved = ours.runBatch(), peersImproved = peers.runBatch();
    idle = oursImproved || peersImproved ? 0 : idle + 1;
  }
  return {ours.best(), peers.best()};
}

}  // namespace bench
