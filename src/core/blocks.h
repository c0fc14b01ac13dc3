// The loop over one row and its end, for every kernel of the library.
//
// A kernel handles exactly one block: a fixed number of items (elements or pixels) that it reads through lanes and then
// writes. The row is cut into whole blocks; the last one ends with the row and overlaps its predecessor. Its inputs are
// set aside before anything is written, so a row may be its own source. A row shorter than a block goes through blocks
// on the stack. A kernel therefore has one arithmetic and no scalar twin, and touches no byte outside the row. It meets
// no item that is not in the row, but may meet one more than once (and, in element strands of a short row, beside
// another channel's constants): what it collects across blocks must not count.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "core/lanes.h"

namespace vemi {

/// A run of items in memory, `elementsPerItem` of T each. Inputs have a const T. A run that is written while parts of
/// it stay is named twice, as an input and as an output.
template <class T, int elementsPerItem = 1>
struct Strand {
  T* first;

  T* at(ptrdiff_t item) const { return first + item * elementsPerItem; }
};

namespace detail {

/// The block of one strand on the stack.
template <ptrdiff_t items, class S>
struct StackBlock;

template <ptrdiff_t items, class T, int elementsPerItem>
struct StackBlock<items, Strand<T, elementsPerItem>> {
  using S = Strand<T, elementsPerItem>;
  static constexpr bool isOutput = !std::is_const_v<T>;

  alignas(laneAlignment) std::remove_const_t<T> element[items * elementsPerItem];

  StackBlock(S strand, ptrdiff_t count) {
    // An output is loaded too: a kernel may leave some of its items alone.
    std::memcpy(element, strand.first, static_cast<size_t>(count * elementsPerItem) * sizeof(T));
    if constexpr (!isOutput) {  // behind the row's end its first item is repeated
      for (ptrdiff_t i = count * elementsPerItem; i < items * elementsPerItem; ++i) {
        element[i] = element[i % elementsPerItem];
      }
    }
  }

  void writeBack(S strand, ptrdiff_t count) const {
    if constexpr (isOutput) {
      std::memcpy(strand.first, element, static_cast<size_t>(count * elementsPerItem) * sizeof(T));
    }
  }

  T* at() { return element; }
};

/// The last whole block of a strand: inputs are copied, outputs stay where they are.
template <ptrdiff_t items, class S>
struct LastBlock;

template <ptrdiff_t items, class T, int elementsPerItem>
struct LastBlock<items, Strand<const T, elementsPerItem>> {
  alignas(laneAlignment) T element[items * elementsPerItem];

  LastBlock(Strand<const T, elementsPerItem> strand, ptrdiff_t item) {
    std::memcpy(element, strand.at(item), sizeof element);
  }
  const T* at() const { return element; }
};

template <ptrdiff_t items, class T, int elementsPerItem>
requires(!std::is_const_v<T>) struct LastBlock<items, Strand<T, elementsPerItem>> {
  T* first;

  LastBlock(Strand<T, elementsPerItem> strand, ptrdiff_t item) : first(strand.at(item)) {}
  T* at() const { return first; }
};

template <ptrdiff_t items, class Kernel, class... S>
HWY_NOINLINE void shortRow(ptrdiff_t count, const Kernel& kernel, S... strand) {
  if (count < 1) return;
  if (count >= items) __builtin_unreachable();  // bounds the copies for the compiler's warnings
  [&](auto... block) {
    kernel(block.at()...);
    (block.writeBack(strand, count), ...);
  }(StackBlock<items, S>(strand, count)...);
}

}  // namespace detail

/// Runs kernel(pointer of each strand) over `count` items, `items` at a time.
template <ptrdiff_t items, class Kernel, class... S>
HWY_INLINE void forBlocks(ptrdiff_t count, const Kernel& kernel, S... strand) {
  if (count < items) return detail::shortRow<items>(count, kernel, strand...);
  const ptrdiff_t last = count - items;
  [&](auto... lastBlock) HWY_ATTR {
    for (ptrdiff_t i = 0; i < last; i += items) kernel(strand.at(i)...);
    kernel(lastBlock.at()...);
  }(detail::LastBlock<items, S>(strand, last)...);
}

}  // namespace vemi
