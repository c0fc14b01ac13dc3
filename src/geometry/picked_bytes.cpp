#include "geometry/picked_bytes.h"

#include <algorithm>
#include <cstring>

namespace vemi::geometry {
namespace {

template <class Word>
void fillPlaces(const int32_t* offset, ptrdiff_t count, int32_t base, Word pattern, uint8_t* place) {
  constexpr Word ones = static_cast<Word>(0x01010101);
  for (ptrdiff_t i = 0; i < count; ++i) {
    const Word word = static_cast<Word>(static_cast<Word>(offset[i] - base) * ones + pattern);
    std::memcpy(place + i * ptrdiff_t{sizeof word}, &word, sizeof word);
  }
}

}  // namespace

OffsetSpans::OffsetSpans(const int32_t* offset, ptrdiff_t elements) {
  constexpr int size = 16;
  for (ptrdiff_t block = 0; block < elements; block += size) {
    const ptrdiff_t count = std::min<ptrdiff_t>(size, elements - block);
    int32_t least[size], most[size];
    std::copy_n(offset + block, count, least);
    std::fill(least + count, least + size, least[count - 1]);
    std::copy_n(least, size, most);
    unrolled<4>([&](auto level) {
      for (ptrdiff_t i = 0; i < size >> (level + 1); ++i) {
        least[i] = std::min(least[2 * i], least[2 * i + 1]);
        most[i] = std::max(most[2 * i], most[2 * i + 1]);
        of_[level + 1] = std::max(of_[level + 1], most[i] - least[i]);
      }
    });
  }
}

int OffsetSpans::windowsFor(const BytePattern& pattern) const {
  int windows = 1;
  for (int level = pattern.bytes == 4 ? 2 : pattern.bytes == 2 ? 3 : 4; of_[level] > 16 - pattern.reach; --level) {
    windows *= 2;  // one element always fits
  }
  return windows;
}

void PickedBytes::make(const int32_t* offset, ptrdiff_t elements, const OffsetSpans& spans,
                       const BytePattern& pattern) {
  windows_ = spans.windowsFor(pattern);
  const ptrdiff_t part = 16 / pattern.bytes / windows_;
  uint32_t word;
  std::memcpy(&word, pattern.at, sizeof word);
  int32_t* base = base_;
  uint8_t* place = place_;
  for (ptrdiff_t i = 0; i < elements; i += part) {
    const ptrdiff_t count = std::min(part, elements - i);
    *base = *std::min_element(offset + i, offset + i + count);
    if (pattern.bytes == 4) {
      fillPlaces(offset + i, count, *base, word, place);
    } else if (pattern.bytes == 2) {
      fillPlaces(offset + i, count, *base, static_cast<uint16_t>(word), place);
    } else {
      fillPlaces(offset + i, count, *base, static_cast<uint8_t>(word), place);
    }
    ++base;
    place += count * pattern.bytes;
  }
  // Behind the row a vector gets what stands at its last base.
  int32_t* const end = base_ + (elements + laneCount<uint8_t>) / part;
  std::fill(base, end, base[-1]);
  std::fill(place, place_ + (elements + laneCount<uint8_t>)*pattern.bytes, uint8_t{0});
}

}  // namespace vemi::geometry
