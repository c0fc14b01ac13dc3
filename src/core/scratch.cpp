#include "core/scratch.h"

#include <cstdint>

namespace vemi {

Vemi64s Pieces::place(Vemi64s count, Vemi64s elementBytes) {
  // Divisions are for sizes that may exceed the limit, as small images would notice them. Alignments are powers of 2.
  const Vemi64s offset = bytes_ > mostBytes - alignment_ ? mostBytes : (bytes_ + alignment_ - 1) & -alignment_;
  const bool isSmall = static_cast<uint64_t>(count) >> 40 == 0 && elementBytes < 1 << 20;
  bytes_ = limitedSum(offset, isSmall ? count * elementBytes : limitedProduct(count, elementBytes));
  return offset;
}

Scratch::Scratch(Vemi64s bytes, void* buffer) {
  if (buffer != nullptr) {
    memory_.first = static_cast<char*>(buffer) + -reinterpret_cast<uintptr_t>(buffer) % bufferSlack;
  } else if (bytes > 0) {
    memory_.first = static_cast<char*>(own_ = alignedAllocBytes(bytes));
    failed_ = own_ == nullptr;
  }
}

}  // namespace vemi
