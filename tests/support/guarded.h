// Memory between two unmapped pages: a read or write one byte outside of it stops the program.
#pragma once

#include <cstddef>

namespace vemi::test {

class GuardedMemory {
 public:
  /// At least `size` bytes; whole pages.
  explicit GuardedMemory(size_t size);
  GuardedMemory(GuardedMemory&& other) noexcept;
  GuardedMemory& operator=(GuardedMemory&& other) noexcept;
  ~GuardedMemory();

  std::byte* begin() const { return begin_; }
  std::byte* end() const { return begin_ + size_; }
  size_t size() const { return size_; }

 private:
  std::byte* begin_ = nullptr;
  size_t size_ = 0;
};

}  // namespace vemi::test
