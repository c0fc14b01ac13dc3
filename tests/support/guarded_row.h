// One row of elements against an unmapped page, with everything else around it under watch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "support/elements.h"
#include "support/guarded.h"

namespace vemi::test {

/// Where a row lies between its two unmapped pages: `slack` bytes behind the first or before the second.
struct Place {
  bool atEnd;
  ptrdiff_t slack;
};

/// Both pages, and a row that is misaligned for any element.
inline constexpr Place places[] = {{true, 0}, {false, 0}, {true, 1}};

/// The same numbers in each run of a program.
inline uint64_t nextRandom() {
  static Random random(0);
  return random.next();
}

/// `count` elements, of random bytes where no values are given. They may be misaligned, so they are read as copies.
template <class T>
class GuardedRow {
 public:
  explicit GuardedRow(ptrdiff_t count, Place place = places[0])
      : bytes_(static_cast<size_t>(count) * sizeof(T)), memory_(bytes_ + 64) {
    const auto slack = static_cast<size_t>(place.slack);
    start_ = place.atEnd ? memory_.size() - bytes_ - slack : slack;
    for (size_t i = 0; i < memory_.size(); i += sizeof(uint64_t)) store(memory_.begin() + i, nextRandom());
    before_.assign(memory_.begin(), memory_.end());
  }
  GuardedRow(const std::vector<T>& values, Place place) : GuardedRow(static_cast<ptrdiff_t>(values.size()), place) {
    if (!values.empty()) std::memcpy(data(), values.data(), bytes_);
    before_.assign(memory_.begin(), memory_.end());
  }

  T* data() const { return reinterpret_cast<T*>(memory_.begin() + start_); }

  /// What the row held at first.
  std::vector<T> original() const {
    std::vector<T> row(bytes_ / sizeof(T));
    if (bytes_ != 0) std::memcpy(row.data(), before_.data() + start_, bytes_);
    return row;
  }

  /// Bit for bit, so that a NaN equals itself; and nothing was written beside the row.
  bool holds(const std::vector<T>& row) const {
    std::vector<std::byte> expected = before_;
    if (row.size() * sizeof(T) != bytes_) return false;
    if (bytes_ != 0) std::memcpy(expected.data() + start_, row.data(), bytes_);
    return std::memcmp(memory_.begin(), expected.data(), memory_.size()) == 0;
  }
  bool untouched() const { return holds(original()); }

 private:
  size_t bytes_, start_;
  GuardedMemory memory_;
  std::vector<std::byte> before_;
};

}  // namespace vemi::test
