#include "race.h"

#include <time.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace bench {
namespace {

double threadSeconds() {
  timespec time;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

template <class Call>
double secondsOf(const Call& call, int calls) {
  const double start = threadSeconds();
  for (int i = 0; i < calls; ++i) call();
  return threadSeconds() - start;
}

template <class Call>
class Side {
 public:
  Side(const Call& call, double batchSeconds) : call_(call) {
    call_();
    calls_ = static_cast<int>(std::clamp(batchSeconds / std::max(secondsOf(call_, 1), 1e-9), 1.0, 1e6));
  }

  // Returns whether this was the best batch by a percent or more. The first call is not timed: it leaves the caches as
  // this side leaves them, not as the other one did.
  bool runBatch() {
    call_();
    const double seconds = secondsOf(call_, calls_) / calls_;
    const bool improved = seconds < 0.99 * best_;
    best_ = std::min(best_, seconds);
    return improved;
  }

  double best() const { return best_; }

 private:
  const Call& call_;
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
  Side side(copy, effort.batchSeconds);
  for (int idle = 0; idle < effort.patience;) idle = side.runBatch() ? 0 : idle + 1;
  return side.best();
}

Times race(const Contest& contest, Effort effort) {
  Side ours(contest.ours, effort.batchSeconds);
  Side peers(contest.peers, effort.batchSeconds);
  for (int idle = 0; idle < effort.patience;) {
    const bool oursImproved = ours.runBatch(), peersImproved = peers.runBatch();
    idle = oursImproved || peersImproved ? 0 : idle + 1;
  }
  return {ours.best(), peers.best()};
}

}  // namespace bench
