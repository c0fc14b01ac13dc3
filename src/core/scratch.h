// The memory of a call: one block, in which each purpose has an array. The arrays are listed first, so that the size of
// the block and the places in it cannot differ.
//
//   Pieces pieces;
//   const auto sums = pieces.add<float>(width);
//   const auto counts = pieces.add<Vemi32s>(width);
//   const Scratch scratch(pieces);
//   if (scratch.failed()) return vemiErrMemAlloc;
//   float* const sum = scratch[sums];
#pragma once

#include <cstddef>
#include <limits>
#include <utility>

#include "core/alloc.h"
#include "vemi/types.h"

namespace vemi {

// Sizes are counted in 64 bits, also where pointers are narrower. A size beyond these is the largest number, which no
// allocation can give; so is one that has wrapped below 0 before it came here.

inline constexpr Vemi64s mostBytes = std::numeric_limits<Vemi64s>::max();

constexpr Vemi64s limitedProduct(Vemi64s a, Vemi64s b) {
  Vemi64s product = 0;
  return a < 0 || b < 0 || __builtin_mul_overflow(a, b, &product) ? mostBytes : product;
}

constexpr Vemi64s limitedSum(Vemi64s a, Vemi64s b) { return a > mostBytes - b ? mostBytes : a + b; }

/// The alignment is a power of two.
constexpr Vemi64s roundedUp(Vemi64s bytes, Vemi64s alignment) {
  return bytes > mostBytes - alignment ? mostBytes : (bytes + alignment - 1) & -alignment;
}

template <class T>
constexpr Vemi64s arrayBytes(Vemi64s count) {
  return limitedProduct(count, sizeof(T));
}

/// Where an array of T begins in a block, in bytes.
template <class T>
struct Piece {
  Vemi64s offset;
};

/// A list of arrays that share a block.
class Pieces {
 public:
  Pieces() = default;
  /// Each array begins at a multiple of `alignment`, which is less than that of our blocks where arrays are to lie
  /// close together.
  explicit Pieces(Vemi64s alignment) : alignment_(alignment) {}

  template <class T>
  Piece<T> add(Vemi64s count) {
    return {place(count, sizeof(T))};
  }

  Vemi64s bytes() const { return bytes_; }
  /// As far apart lie two blocks with the same arrays.
  Vemi64s distance() const { return roundedUp(bytes_, alignment_); }

 private:
  Vemi64s alignment_ = blockAlignment, bytes_ = 0;

  Vemi64s place(Vemi64s count, Vemi64s elementBytes);
};

/// A block, seen by the places of its arrays.
struct Memory {
  char* first = nullptr;

  template <class T>
  T* operator[](Piece<T> piece) const {
    return reinterpret_cast<T*>(first + static_cast<ptrdiff_t>(piece.offset));
  }
};

/// A work buffer that a user hands over may begin anywhere, and so has as many bytes more than are worked with.
inline constexpr int bufferSlack = 16;

/// A block that is freed with the record, or a user's work buffer from its first multiple of 16 bytes on.
class Scratch {
 public:
  Scratch() = default;
  /// A null buffer has the block allocated.
  explicit Scratch(Vemi64s bytes, void* buffer = nullptr);
  explicit Scratch(const Pieces& pieces, void* buffer = nullptr) : Scratch(pieces.bytes(), buffer) {}
  Scratch(Scratch&& other) noexcept { *this = std::move(other); }
  Scratch& operator=(Scratch&& other) noexcept {
    std::swap(own_, other.own_);
    std::swap(memory_, other.memory_);
    std::swap(failed_, other.failed_);
    return *this;
  }
  ~Scratch() { vemiAlignedFree(own_); }

  /// No memory is no failure where none is wanted.
  bool failed() const { return failed_; }

  Memory memory() const { return memory_; }
  template <class T>
  T* operator[](Piece<T> piece) const {
    return memory_[piece];
  }
  /// Of a block with one array.
  template <class T>
  T* as() const {
    return memory_[Piece<T>{0}];
  }

 private:
  void* own_ = nullptr;
  Memory memory_;
  bool failed_ = false;
};

}  // namespace vemi
