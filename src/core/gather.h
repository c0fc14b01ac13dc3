// Pixels at computed places: a few neighbouring bytes of a row for each lane, or a vector of them for one pixel.
// Nothing is read behind the image's last pixel or before its first one, and images may be larger than 2 GiB.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>

#include "core/image.h"
#include "core/lanes.h"

namespace vemi {

namespace detail {

/// Where the processor has a gather, it takes two thirds of the time of lanes that are put together.
inline constexpr bool gathersInLanes = laneCount<int32_t> > 4;

/// The vector whose lane k is at(k).
template <class D, class At>
HWY_INLINE hn::Vec<D> lanesFrom(D d, const At& at) {
  if constexpr (hn::MaxLanes(D()) == 1) {
    return hn::LoadU(d, reinterpret_cast<const hn::TFromD<D>*>(at(0)));
  } else {
    const hn::Half<D> dHalf;
    constexpr ptrdiff_t half = hn::MaxLanes(decltype(dHalf)());
    return hn::Combine(d, lanesFrom(dHalf, [&](ptrdiff_t k) HWY_ATTR { return at(k + half); }), lanesFrom(dHalf, at));
  }
}

}  // namespace detail

/// The pixels of an image, of which a user names rows and bytes within a row.
class PixelBytes {
 public:
  using D = Lanes<int32_t>;
  using V = hn::Vec<D>;

  template <class L, class T>
  static PixelBytes of(Image<const T> image, VemiSize size) {
    return PixelBytes(reinterpret_cast<const char*>(image.first), image.step, size, size.width * pixelBytes<T, L>);
  }

  const char* at(ptrdiff_t byte, ptrdiff_t y) const { return first_ + y * step_ + byte; }

  /// For each lane, `bytes` of them from a byte of a row on, and the same of the rows below, in the lower bytes of the
  /// lanes; what stands above is anything. 1 <= bytes <= 4.
  template <int bytes, int rows = 1>
  HWY_INLINE Vectors<V, rows> words(V byte, V y) const {
    const D d;
    if (HWY_LIKELY(isNear_)) {
      const Vectors<V, rows> offset = offsets<rows>(byte, y);
      if (bytes == 4 || HWY_LIKELY(hn::AllFalse(d, hn::Gt(offset.v[rows - 1], hn::Set(d, lastWord_))))) {
        Vectors<V, rows> word;
        unrolled<rows>([&](auto k) HWY_ATTR { word.v[k] = wordsAt(offset.v[k]); });
        return word;
      }
    }
    return exactWords<bytes, rows>(byte, y);
  }

  using DLong = Lanes<int64_t>;

  /// Of the lower and of the upper half of the lanes in each block of 128 bits.
  template <int rows>
  struct LongWords {
    Vectors<hn::Vec<DLong>, rows> lower, upper;
  };

  /// The same in lanes of 64 bits. 5 <= bytes <= 8.
  template <int bytes, int rows>
  HWY_INLINE LongWords<rows> longWords(V byte, V y) const {
    const D d;
    if (HWY_LIKELY(isNear_)) {
      const Vectors<V, rows> offset = offsets<rows>(byte, y);
      if (bytes == 8 || HWY_LIKELY(hn::AllFalse(d, hn::Gt(offset.v[rows - 1], hn::Set(d, lastWord_ - 4))))) {
        const DLong dLong;
        LongWords<rows> words;
        unrolled<rows>([&](auto k) HWY_ATTR {
          const V zero = hn::Zero(d);
          words.lower.v[k] = longWordsAt(hn::BitCast(dLong, hn::InterleaveLower(d, offset.v[k], zero)));
          words.upper.v[k] = longWordsAt(hn::BitCast(dLong, hn::InterleaveUpper(d, offset.v[k], zero)));
        });
        return words;
      }
    }
    return exactLongWords<bytes, rows>(byte, y);
  }

  /// `bytes` of them from a byte of a row on, as the lower bytes of a vector of DBytes; what stands above is anything.
  template <int bytes, class DBytes>
  HWY_INLINE hn::Vec<DBytes> run(DBytes d, ptrdiff_t byte, ptrdiff_t y) const {
    constexpr ptrdiff_t size = hn::MaxLanes(DBytes());
    static_assert(bytes <= size);
    const auto* const from = reinterpret_cast<const uint8_t*>(at(byte, y));
    if (bytes == size || HWY_LIKELY(from <= reinterpret_cast<const uint8_t*>(end_) - size)) return hn::LoadU(d, from);
    alignas(laneAlignment) uint8_t exact[size] = {};
    std::memcpy(exact, from, bytes);
    return hn::Load(d, exact);
  }

 private:
  /// Of a byte of a row, and of the same of the rows below.
  template <int rows>
  HWY_INLINE Vectors<V, rows> offsets(V byte, V y) const {
    const V step = hn::Set(D(), static_cast<int32_t>(step_));
    Vectors<V, rows> offset;
    offset.v[0] = hn::Add(hn::Mul(y, step), byte);
    unrolled<rows - 1>([&](auto k) HWY_ATTR { offset.v[k + 1] = hn::Add(offset.v[k], step); });
    return offset;
  }

  const char *first_, *end_;
  ptrdiff_t step_;
  int32_t lastWord_;  // the last offset at which four bytes can be read; below 0 there is none
  bool isNear_;       // offsets fit 32 bits

  PixelBytes(const char* first, int step, VemiSize size, ptrdiff_t rowBytes) : first_(first), step_(step) {
    const int64_t bytes = int64_t{size.height - 1} * step + rowBytes;
    end_ = first + bytes;
    isNear_ = bytes <= std::numeric_limits<int32_t>::max();
    lastWord_ = isNear_ ? static_cast<int32_t>(bytes - 4) : 0;
  }

  HWY_INLINE V wordsAt(V offset) const {
    const D d;
    const auto* const first = reinterpret_cast<const int32_t*>(first_);
    if constexpr (detail::gathersInLanes) return hn::GatherOffset(d, first, offset);
    alignas(laneAlignment) int32_t at[laneCount<int32_t>];
    hn::Store(offset, d, at);
    return detail::lanesFrom(d, [&](ptrdiff_t k) { return first_ + at[k]; });
  }

  HWY_INLINE hn::Vec<DLong> longWordsAt(hn::Vec<DLong> offset) const {
    const DLong d;
    const auto* const first = reinterpret_cast<const int64_t*>(first_);
    if constexpr (detail::gathersInLanes) return hn::GatherOffset(d, first, offset);
    alignas(laneAlignment) int64_t at[laneCount<int64_t>];
    hn::Store(offset, d, at);
    return detail::lanesFrom(d, [&](ptrdiff_t k) { return first_ + at[k]; });
  }

  template <int bytes, int rows>
  HWY_NOINLINE LongWords<rows> exactLongWords(V byte, V y) const {
    const D d;
    const DLong dLong;
    constexpr ptrdiff_t N = laneCount<int32_t>, halfBlock = 2;
    alignas(laneAlignment) int32_t x[N], row[N];
    alignas(laneAlignment) int64_t word[2][N / 2];
    hn::Store(byte, d, x);
    hn::Store(y, d, row);
    LongWords<rows> words;
    unrolled<rows>([&](auto j) HWY_ATTR {
      for (ptrdiff_t k = 0; k < N; ++k) {
        int64_t& out = word[k / halfBlock % 2][k / 4 * halfBlock + k % halfBlock];
        out = 0;
        std::memcpy(&out, at(x[k], ptrdiff_t{row[k]} + j), bytes);
      }
      words.lower.v[j] = hn::Load(dLong, word[0]);
      words.upper.v[j] = hn::Load(dLong, word[1]);
    });
    return words;
  }

  template <int bytes, int rows>
  HWY_NOINLINE Vectors<V, rows> exactWords(V byte, V y) const {
    const D d;
    constexpr ptrdiff_t N = laneCount<int32_t>;
    alignas(laneAlignment) int32_t x[N], row[N], word[rows][N] = {};
    hn::Store(byte, d, x);
    hn::Store(y, d, row);
    for (int j = 0; j < rows; ++j) {
      for (ptrdiff_t k = 0; k < N; ++k) std::memcpy(&word[j][k], at(x[k], ptrdiff_t{row[k]} + j), bytes);
    }
    Vectors<V, rows> words;
    unrolled<rows>([&](auto j) HWY_ATTR { words.v[j] = hn::Load(d, word[j]); });
    return words;
  }
};

}  // namespace vemi
