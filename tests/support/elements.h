// Elements at run time: sizes, numbers, and fills that go to the ends of each type.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

#include "vemi/types.h"

namespace vemi::test {

enum class Element { none, u8, s8, u16, s16, u32, s32, f32, s64, f64, sc16, sc32, fc32 };

template <class T>
inline constexpr Element elementOf = [] {
  if constexpr (std::is_same_v<T, Vemi8u>) return Element::u8;
  if constexpr (std::is_same_v<T, Vemi8s>) return Element::s8;
  if constexpr (std::is_same_v<T, Vemi16u>) return Element::u16;
  if constexpr (std::is_same_v<T, Vemi16s>) return Element::s16;
  if constexpr (std::is_same_v<T, Vemi32u>) return Element::u32;
  if constexpr (std::is_same_v<T, Vemi32s>) return Element::s32;
  if constexpr (std::is_same_v<T, Vemi32f>) return Element::f32;
  if constexpr (std::is_same_v<T, Vemi64s>) return Element::s64;
  if constexpr (std::is_same_v<T, Vemi64f>) return Element::f64;
  if constexpr (std::is_same_v<T, Vemi16sc>) return Element::sc16;
  if constexpr (std::is_same_v<T, Vemi32sc>) return Element::sc32;
  if constexpr (std::is_same_v<T, Vemi32fc>) return Element::fc32;
  return Element::none;
}();

/// A complex element is two parts of a real type; any other is one part, itself.
Element partOf(Element element);
int partsIn(Element element);
int bytesOf(Element element);

template <class T>
T load(const std::byte* place) {
  T value;
  std::memcpy(&value, place, sizeof value);
  return value;
}

template <class T>
void store(std::byte* place, T value) {
  std::memcpy(place, &value, sizeof value);
}

/// For integer elements of up to 32 bits.
int64_t loadInteger(Element element, const std::byte* place);
/// Clamps the value to the element's range.
void storeSaturated(Element element, std::byte* place, int64_t value);

/// Any real element, as the nearest double.
double loadNumber(Element element, const std::byte* place);
/// Any real element; an integer is rounded and clamped to its range.
void storeNumber(Element element, std::byte* place, double value);

/// A small generator of our own: the same numbers on every machine.
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}
  /// Begins with the numbers that stand in `first`.
  Random(uint64_t seed, std::span<const std::byte> first) : state_(seed), first_(first) {}
  uint64_t next();
  int below(int bound) { return static_cast<int>(next() % static_cast<uint64_t>(bound)); }
  void fill(std::byte* bytes, size_t count);

 private:
  uint64_t state_;
  std::span<const std::byte> first_ = {};
};

/// Random bits, mixed with what arithmetic stumbles over: ends of the range, zeros of both signs, ones, infinities,
/// NaNs and denormals. Floats are moderate numbers half of the time, and 32u elements, which count bits, mostly.
void fillElement(Element element, std::byte* place, Random& random);
/// Gives any NaN in the element the same bits.
void unifyNaNs(Element element, std::byte* place);

}  // namespace vemi::test
