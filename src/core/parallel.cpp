#include "core/parallel.h"

#include "core/processor.h"

namespace vemi::detail {

/// The compiler knows nothing of the body, and so moves none of its float arithmetic across a change of the control
/// word.
void openTeam(void (*body)(const void*), const void* object) {
  const FloatControl callers = FloatControl::current();
#pragma omp parallel
  {
    const FloatControl own = FloatControl::current();
    if (own != callers) callers.set();
    body(object);
    const bool isWorker = omp_get_thread_num() > 0;
    if (isWorker && FloatControl::current() != own) own.set();
  }
}

}  // namespace vemi::detail
