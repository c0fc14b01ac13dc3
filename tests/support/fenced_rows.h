// Rows of an image that lie between unmapped pages each: a read or write one byte to the left or right of a row stops
// the program, as one above or below the image does.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

namespace vemi::test {

class FencedRows {
 public:
  /// Rows end at a page's end, or begin at its beginning.
  FencedRows(int rows, ptrdiff_t rowBytes, bool atEnd) : rows_(rows), rowBytes_(rowBytes) {
    const ptrdiff_t page = sysconf(_SC_PAGESIZE);
    const ptrdiff_t mapped = (rowBytes + page - 1) / page * page;
    step_ = mapped + page;
    size_ = static_cast<size_t>(rows * step_ + page);
    whole_ = mmap(nullptr, size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (whole_ == MAP_FAILED) throw std::bad_alloc();
    first_ = static_cast<std::byte*>(whole_) + page + (atEnd ? mapped - rowBytes : 0);
    for (int y = 0; y < rows; ++y) {
      void* const pages = static_cast<std::byte*>(whole_) + page + y * step_;
      if (mprotect(pages, static_cast<size_t>(mapped), PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    }
  }
  FencedRows(const FencedRows&) = delete;
  FencedRows& operator=(const FencedRows&) = delete;
  ~FencedRows() { munmap(whole_, size_); }

  std::byte* row(int y) const { return first_ + y * step_; }
  int step() const { return static_cast<int>(step_); }

  /// All rows, one behind the other.
  std::vector<std::byte> contents() const {
    std::vector<std::byte> all;
    for (int y = 0; y < rows_; ++y) all.insert(all.end(), row(y), row(y) + rowBytes_);
    return all;
  }

  template <class Fill>
  void fill(const Fill& fill) {
    for (int y = 0; y < rows_; ++y) fill(row(y), rowBytes_);
  }

 private:
  int rows_;
  ptrdiff_t rowBytes_, step_;
  size_t size_;
  void* whole_;
  std::byte* first_;
};

}  // namespace vemi::test
