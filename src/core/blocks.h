// The loop over one row and its end, for every kernel of the library.
//
// A kernel handles exactly one block: a fixed number of items (elements or pixels) that it reads through lanes and then
// writes. So it has one arithmetic and no scalar twin, and touches no byte outside the row.
//
// A row is cut into whole blocks. The last one ends with the row and overlaps its predecessor: its inputs are set aside
// before anything is written, so a row may be its own source. A row shorter than a block is copied into a block on the
// stack, which is filled up with items of the same row. Hence some items pass through the kernel twice: what it
// collects must not depend on how often it meets an item. And elements that fill up a short row may stand beside the
// constants of another channel: their results are dropped, and what the kernel learns from them must not count.
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
  using Pointer = T*;
  T* first;

  T* at(ptrdiff_t item) const { return first + item * elementsPerItem; }
};

namespace detail {

/// The block of one strand of a short row. Half a block of items and more stand in it as two halves that overlap in the
/// row, each of them copied as lanes are: what is loaded from the stack in other pieces than it was stored waits.
template <ptrdiff_t items, bool byHalves, class S>
struct StackBlock;

template <ptrdiff_t items, bool byHalves, class T, int elementsPerItem>
struct StackBlock<items, byHalves, Strand<T, elementsPerItem>> {
  using S = Strand<T, elementsPerItem>;
  static constexpr bool isOutput = !std::is_const_v<T>;
  static constexpr size_t itemBytes = elementsPerItem * sizeof(T);
  static constexpr ptrdiff_t half = items / 2;

  alignas(laneAlignment) std::remove_const_t<T> element[items * elementsPerItem];

  StackBlock(const StackBlock&) = delete;
  HWY_INLINE StackBlock(S strand, ptrdiff_t count) {
    // An output is loaded too: a kernel may leave some of its items alone.
    if (byHalves && count >= half) {
      std::memcpy(element, strand.first, half * itemBytes);
      std::memcpy(element + half * elementsPerItem, strand.at(count - half), half * itemBytes);
      return;
    }
    if constexpr (!isOutput) {  // behind the row's end its first item is repeated
      std::remove_const_t<T> item[elementsPerItem];
      std::memcpy(item, strand.first, itemBytes);
      for (ptrdiff_t i = 0; i < items; ++i) {
        for (ptrdiff_t k = 0; k < elementsPerItem; ++k) element[i * elementsPerItem + k] = item[k];
      }
    }
    std::memcpy(element, strand.first, static_cast<size_t>(count) * itemBytes);
  }

  HWY_INLINE void writeBack(S strand, ptrdiff_t count) const {
    if constexpr (isOutput) {
      if (byHalves && count >= half) {
        std::memcpy(strand.first, element, half * itemBytes);
        std::memcpy(strand.at(count - half), element + half * elementsPerItem, half * itemBytes);
      } else {
        std::memcpy(strand.first, element, static_cast<size_t>(count) * itemBytes);
      }
    }
  }

  T* at() { return element; }
};

/// The last block of a strand where it overlaps the block before: inputs are copied, outputs stay where they are.
template <ptrdiff_t items, class S>
struct LastBlock;

template <ptrdiff_t items, class T, int elementsPerItem>
struct LastBlock<items, Strand<const T, elementsPerItem>> {
  alignas(laneAlignment) T element[items * elementsPerItem];

  LastBlock(const LastBlock&) = delete;
  HWY_INLINE LastBlock(Strand<const T, elementsPerItem> strand, ptrdiff_t item) {
    if (item % items != 0) std::memcpy(element, strand.at(item), sizeof element);
  }
  Strand<const T, elementsPerItem> strand() const { return {element}; }
};

template <ptrdiff_t items, class T, int elementsPerItem>
requires(!std::is_const_v<T>) struct LastBlock<items, Strand<T, elementsPerItem>> {
  T* first;

  LastBlock(Strand<T, elementsPerItem> strand, ptrdiff_t item) : first(strand.at(item)) {}
  Strand<T, elementsPerItem> strand() const { return {first}; }
};

template <ptrdiff_t items, int period, class Kernel, class... S>
HWY_FLATTEN HWY_NOINLINE void rowOnStack(ptrdiff_t count, Kernel kernel, S... strand) {
  if (count < 1) return;
  if (count >= items) __builtin_unreachable();  // bounds the copies for the compiler's warnings
  constexpr bool byHalves = items % (ptrdiff_t{2} * period) == 0;
  [&](auto... block) HWY_ATTR {
    kernel(block.at()...);
    (block.writeBack(strand, count), ...);
  }(StackBlock<items, byHalves, S>(strand, count)...);
}

/// A kernel that is a function of rows, called for a row of one block.
template <class... Pointer>
struct RowCall {
  void (*row)(const void* context, Pointer... block);
  const void* context;

  void operator()(Pointer... block) const { row(context, block...); }
};

}  // namespace detail

/// A row of fewer than `items` items by row(&context, pointer of each strand's block), which handles a row of one
/// block. What it does to an item may depend on the item's place in a pixel; pixels are whole, and `period` is a
/// multiple of their length. All functions of rows with strands of the same types share the code, where forBlocks makes
/// it anew.
template <ptrdiff_t items, int period = 1, class Context, class... S>
void shortRow(ptrdiff_t count, void (*row)(const void* context, typename S::Pointer... block), const Context& context,
              S... strand) {
  const detail::RowCall<typename S::Pointer...> kernel = {row, &context};
  detail::rowOnStack<items, period>(count, kernel, strand...);
}

/// Runs kernel(pointer of each strand) over `items` items or more, `items` at a time.
template <ptrdiff_t items, class Kernel, class... S>
HWY_INLINE void forWholeBlocks(ptrdiff_t count, const Kernel& kernel, S... strand) {
  [&](auto... lastBlock) HWY_ATTR {
    // One loop that goes round once more for the last block, so that the kernel stands in the code once.
    for (ptrdiff_t i = 0, last = count - items;;) {
      kernel(strand.at(i)...);
      i += items;
      if (i <= last) continue;
      if (i >= count) return;
      ((strand = lastBlock.strand()), ...);
      i = last = 0;
      count = items;
    }
  }(detail::LastBlock<items, S>(strand, count - items)...);
}

/// The same over any number of items.
template <ptrdiff_t items, class Kernel, class... S>
HWY_INLINE void forBlocks(ptrdiff_t count, const Kernel& kernel, S... strand) {
  if (count < items) return detail::rowOnStack<items, 1, const Kernel&>(count, kernel, strand...);
  forWholeBlocks<items>(count, kernel, strand...);
}

}  // namespace vemi
