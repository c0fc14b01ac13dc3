// One element of a row, which may stand at any address. Inlined, since 32-bit x86 hands floats back through registers
// that change signalling NaNs.
#pragma once

#include <cstring>
#include <type_traits>

namespace vemi {

template <class T>
[[gnu::always_inline]] inline T elementOf(const T* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

template <class T>
[[gnu::always_inline]] inline void setElement(T* at, std::type_identity_t<T> value) {
  std::memcpy(at, &value, sizeof value);
}

}  // namespace vemi
