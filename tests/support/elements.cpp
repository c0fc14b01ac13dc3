#include "support/elements.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace vemi::test {

Element partOf(Element element) {
  switch (element) {
    case Element::sc16:
      return Element::s16;
    case Element::sc32:
      return Element::s32;
    case Element::fc32:
      return Element::f32;
    default:
      return element;
  }
}

int partsIn(Element element) { return partOf(element) == element ? 1 : 2; }

namespace {

/// Calls f with a value of the element's C++ type.
template <class F>
auto withType(Element part, F f) {
  switch (part) {
    case Element::u8:
      return f(Vemi8u{});
    case Element::s8:
      return f(Vemi8s{});
    case Element::u16:
      return f(Vemi16u{});
    case Element::s16:
      return f(Vemi16s{});
    case Element::u32:
      return f(Vemi32u{});
    case Element::s32:
      return f(Vemi32s{});
    case Element::f32:
      return f(Vemi32f{});
    case Element::s64:
      return f(Vemi64s{});
    case Element::f64:
      return f(Vemi64f{});
    default:
      throw std::logic_error("an element of unknown type");
  }
}

template <class T>
T adversarialValue(Random& random) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>) {
    const T values[] = {0,
                        -T{0},
                        1,
                        -1,
                        T{0.5},
                        Limits::max(),
                        Limits::lowest(),
                        Limits::min(),
                        Limits::denorm_min(),
                        -Limits::denorm_min(),
                        Limits::infinity(),
                        -Limits::infinity(),
                        Limits::quiet_NaN()};
    return values[random.below(std::size(values))];
  } else {
    const T values[] = {0,
                        1,
                        static_cast<T>(-1),
                        Limits::min(),
                        Limits::max(),
                        static_cast<T>(Limits::min() + 1),
                        static_cast<T>(Limits::max() - 1)};
    return values[random.below(std::size(values))];
  }
}

/// A NaN of either sign, quiet or signalling. As an integer, because floats that pass through the registers of some
/// processors come out quiet.
template <class T>
void storeAnyNaN(std::byte* place, uint64_t bits) {
  using Bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
  const T infinity = std::numeric_limits<T>::infinity();
  store(place, static_cast<Bits>(load<Bits>(reinterpret_cast<const std::byte*>(&infinity)) |
                                 bits << (8 * sizeof(T) - 32) | 1));
}

}  // namespace

int bytesOf(Element element) {
  return partsIn(element) * withType(partOf(element), [](auto zero) { return static_cast<int>(sizeof zero); });
}

int64_t loadInteger(Element element, const std::byte* place) {
  return withType(element, [&](auto zero) { return static_cast<int64_t>(load<decltype(zero)>(place)); });
}

void storeSaturated(Element element, std::byte* place, int64_t value) {
  withType(element, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_integral_v<T>) {
      using Limits = std::numeric_limits<T>;
      store(place, static_cast<T>(std::clamp(value, int64_t{Limits::min()}, int64_t{Limits::max()})));
    } else {
      throw std::logic_error("saturation is for integer elements");
    }
  });
}

double loadNumber(Element element, const std::byte* place) {
  return withType(element, [&](auto zero) { return static_cast<double>(load<decltype(zero)>(place)); });
}

void storeNumber(Element element, std::byte* place, double value) {
  withType(element, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_integral_v<T>) {
      storeSaturated(element, place, std::llrint(value));
    } else {
      store(place, static_cast<T>(value));
    }
  });
}

uint64_t Random::next() {
  if (first_.size() >= sizeof(uint64_t)) {
    const auto number = load<uint64_t>(first_.data());
    first_ = first_.subspan(sizeof number);
    return number;
  }
  uint64_t z = state_ += 0x9e3779b97f4a7c15u;  // splitmix64
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
  return z ^ (z >> 31);
}

void Random::fill(std::byte* bytes, size_t count) {
  for (; count >= 8; bytes += 8, count -= 8) store(bytes, next());
  const uint64_t rest = next();
  std::memcpy(bytes, &rest, count);
}

void fillElement(Element element, std::byte* place, Random& random) {
  const Element part = partOf(element);
  for (int n = 0; n < partsIn(element); ++n) {
    withType(part, [&](auto zero) {
      using T = decltype(zero);
      T value;
      const uint64_t choice = random.next() >> 32;
      if (choice % 8 == 0) {
        value = adversarialValue<T>(random);
      } else if (std::is_floating_point_v<T> && choice % 2 == 0) {
        value = static_cast<T>(random.below(20001) - 10000) / static_cast<T>(1 << random.below(8));
      } else if (std::is_same_v<T, Vemi32u>) {
        value = static_cast<T>(random.below(36));
      } else {
        random.fill(reinterpret_cast<std::byte*>(&value), sizeof value);
      }
      std::byte* const at = place + n * static_cast<int>(sizeof value);
      store(at, value);
      if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(value)) storeAnyNaN<T>(at, choice);
      }
    });
  }
}

void unifyNaNs(Element element, std::byte* place) {
  for (int n = 0; n < partsIn(element); ++n) {
    withType(partOf(element), [&](auto zero) {
      using T = decltype(zero);
      std::byte* const part = place + n * static_cast<int>(sizeof(T));
      if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(load<T>(part))) store(part, -std::numeric_limits<T>::quiet_NaN());
      }
    });
  }
}

}  // namespace vemi::test
