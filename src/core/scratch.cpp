#include "core/scratch.h"

#include <cstdint>

namespace vemi {

Vemi64s Pieces::place(Vemi64s count, Vemi64s elementBytes) {
  const Vemi64s offset = roundedUp(bytes_, alignment_);
  bytes_ = limitedSum(offset, limitedProduct(count, elementBytes));
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
