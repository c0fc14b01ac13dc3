// From a function's type: which elements its parameters have, and how to call it with arguments that are held as data.
#pragma once

#include <type_traits>
#include <utility>

#include "support/exports.h"

namespace vemi::test {
namespace detail {

/// Its address stands for a type, which need not be complete.
template <class T>
inline constexpr char tagOf = 0;

template <class T>
Parameter parameterOf() {
  Parameter result;
  if constexpr (std::is_same_v<T, VemiSize>) {
    result.role = Role::size;
  } else if constexpr (std::is_same_v<T, VemiRect>) {
    result.role = Role::rect;
  } else if constexpr (std::is_same_v<T, VemiPoint>) {
    result.role = Role::point;
  } else if constexpr (std::is_pointer_v<T>) {
    using Pointee = std::remove_all_extents_t<std::remove_pointer_t<T>>;
    result.isPlanes = std::is_pointer_v<Pointee>;
    using Target = std::conditional_t<std::is_pointer_v<Pointee>, std::remove_pointer_t<Pointee>, Pointee>;
    result.element = elementOf<std::remove_const_t<Target>>;
    result.isConst = std::is_const_v<Target>;
    if (result.element != Element::none) {
      result.role = Role::array;
    } else if (!std::is_void_v<Target>) {
      result.role = result.isPlanes ? Role::newRecord : Role::record;
      result.recordType = &tagOf<std::remove_const_t<Target>>;
    }
  } else if constexpr (elementOf<T> != Element::none) {
    result.element = elementOf<T>;
    result.role = Role::constant;
  }
  return result;
}

template <class... A>
constexpr Parameter (*parametersOf[])() = {parameterOf<A>..., nullptr};

template <class... A>
VemiStatus callWith(AnyFunction function, const Slot* arguments) {
  return [&]<size_t... n>(std::index_sequence<n...>) {
    return reinterpret_cast<VemiStatus (*)(A...)>(function)(arguments[n].template get<A>()...);
  }
  (std::index_sequence_for<A...>());
}

template <class T>
void* allocateBy(AnyFunction function, VemiSize size, int* pStep) {
  return reinterpret_cast<T* (*)(VemiSize, int*)>(function)(size, pStep);
}

}  // namespace detail

/// What the compiler knows of a function. A plain record, made by calls that are not inlined: there are hundreds of
/// signatures and thousands of functions, all of them in one list.
struct Entry {
  const char* name;
  const char* prototype;
  AnyFunction function;
  Parameter (*const* parameters)();  // one after the other, then null
  decltype(Export::call) call = nullptr;
  decltype(Export::allocate) allocate = nullptr;
};

template <class... A>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, VemiStatus (*function)(A...)) {
  return {name, prototype, reinterpret_cast<AnyFunction>(function), detail::parametersOf<A...>, detail::callWith<A...>};
}

template <class T>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, T* (*function)(VemiSize, int*)) {
  return {name,
          prototype,
          reinterpret_cast<AnyFunction>(function),
          detail::parametersOf<VemiSize, int*>,
          nullptr,
          detail::allocateBy<T>};
}

template <class R, class... A>
[[gnu::noinline]] Entry entryOf(const char* name, const char* prototype, R (*function)(A...)) {
  return {name, prototype, reinterpret_cast<AnyFunction>(function), detail::parametersOf<A...>};
}

Export exportOf(const Entry& entry);

}  // namespace vemi::test
