// Tests over element types that are known when they are compiled.
#pragma once

namespace vemi::test {

/// Calls f with a value of each type.
template <class... T, class F>
void forTypes(const F& f) {
  (f(T()), ...);
}

}  // namespace vemi::test
