#include "core/parallel.h"

#include "core/processor.h"

namespace vemi {

RowRange rowsOf(int t, int n, ptrdiff_t height) {
  const ptrdiff_t rows = height / n, rest = height % n, first = t * rows + std::min<ptrdiff_t>(t, rest);
  return {first, first + rows + (t < rest ? 1 : 0)};
}

namespace detail {
namespace {

/// The library's one parallel region: work(t, n) in each thread t of a team of n. All of them compute as the caller has
/// told his own: a worker has the caller's control word for the call, and then its own again. The flags that it raises
/// are seen by itself alone. The compiler knows nothing of the work, and so moves none of its float arithmetic across a
/// change of the control word.
void openTeam(FunctionRef<void(int t, int n)> work) {
  const FloatControl callers = FloatControl::current();
#pragma omp parallel
  {
    const FloatControl own = FloatControl::current();
    if (own != callers) callers.set();
    const int t = omp_get_thread_num();
    work(t, omp_get_num_threads());
    if (t > 0 && FloatControl::current() != own) own.set();
  }
}

}  // namespace

void runRows(bool inOneThread, ptrdiff_t height, FunctionRef<void(RowRange rows)> work) {
  if (inOneThread) return work({0, height});
  openTeam([&](int t, int n) { work(rowsOf(t, n, height)); });
}

VemiStatus runTeam(bool inOneThread, const TeamMemory& memory, bool withStatus, Prepare prepare, Share share) {
  const Vemi64s distance = memory.slice.distance();  // from slice to slice
  Scratch block;
  VemiStatus* status = nullptr;  // of each thread
  Memory shared;
  char* slices = nullptr;
  int threads = 0;
  VemiStatus prepared = vemiErrMemAlloc;
  const auto start = [&](int n) {
    threads = n;
    const bool isOurs = memory.buffer == nullptr;
    Pieces pieces;
    const auto ofStatuses = pieces.add<VemiStatus>(withStatus ? n : 0);
    const auto ofAll = pieces.add<char>(memory.shared.bytes());
    const auto ofThreads = pieces.add<char>(isOurs ? limitedProduct(n, distance) : 0);
    block = Scratch(pieces);
    if (block.failed()) return;
    status = block[ofStatuses];
    shared.first = block[ofAll];
    slices = isOurs ? block[ofThreads] : Scratch(1, memory.buffer).as<char>();
    prepared = prepare(shared);
  };
  const auto work = [&](int t, int n) {
    if (prepared < vemiOk) return;
    const VemiStatus own = share(t, n, shared, Memory{slices + t * static_cast<ptrdiff_t>(distance)});
    if (withStatus) status[t] = own;
  };
  if (inOneThread) {
    start(1);
    work(0, 1);
  } else {
    openTeam([&](int t, int n) {
#pragma omp single
      start(n);  // all threads wait for its end
      work(t, n);
    });
  }
  if (prepared < vemiOk) return prepared;
  return withStatus ? std::min<VemiStatus>(vemiOk, *std::min_element(status, status + threads)) : vemiOk;
}

}  // namespace detail
}  // namespace vemi
