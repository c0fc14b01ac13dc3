#include "support/guarded.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <map>
#include <new>
#include <utility>
#include <vector>

namespace vemi::test {
namespace {

size_t pageSize() {
  static const auto size = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return size;
}

/// Blocks that no one holds, by size: mapping anew for each image would take most of a test's time.
std::map<size_t, std::vector<std::byte*>>& spareBlocks() {
  thread_local std::map<size_t, std::vector<std::byte*>> spare;
  return spare;
}

std::byte* mapBlock(size_t size) {
  void* const whole =
      mmap(nullptr, size + 2 * pageSize(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (whole == MAP_FAILED) throw std::bad_alloc();
  std::byte* const begin = static_cast<std::byte*>(whole) + pageSize();
  if (mprotect(begin, size, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
  return begin;
}

}  // namespace

GuardedMemory::GuardedMemory(size_t size) {
  size_ = (size + pageSize() - 1) / pageSize() * pageSize();
  std::vector<std::byte*>& spare = spareBlocks()[size_];
  if (spare.empty()) {
    begin_ = mapBlock(size_);
  } else {
    begin_ = spare.back();
    spare.pop_back();
  }
}

GuardedMemory::GuardedMemory(GuardedMemory&& other) noexcept
    : begin_(std::exchange(other.begin_, nullptr)), size_(std::exchange(other.size_, 0)) {}

GuardedMemory& GuardedMemory::operator=(GuardedMemory&& other) noexcept {
  std::swap(begin_, other.begin_);
  std::swap(size_, other.size_);
  return *this;
}

GuardedMemory::~GuardedMemory() {
  if (begin_ != nullptr) spareBlocks()[size_].push_back(begin_);
}

}  // namespace vemi::test
