#include "geometry/picked_bytes.h"

#include <algorithm>
#include <cstring>

namespace vemi::geometry {
namespace {

struct Range {
  int32_t least, most;
};

Range rangeOf(const int32_t* offset, ptrdiff_t count) {
  Range range = {offset[0], offset[0]};
  for (ptrdiff_t i = 1; i < count; ++i) {
    range.least = std::min(range.least, offset[i]);
    range.most = std::max(range.most, offset[i]);
  }
  return range;
}

template <class Word>
void fillPlaces(const int32_t* offset, ptrdiff_t count, int32_t base, Word pattern, uint8_t* place) {
  constexpr Word ones = static_cast<Word>(0x01010101);
  for (ptrdiff_t i = 0; i < count; ++i) {
    const Word word = static_cast<Word>(static_cast<Word>(offset[i] - base) * ones + pattern);
    std::memcpy(place + i * ptrdiff_t{sizeof word}, &word, sizeof word);
  }
}

}  // namespace

int PickedBytes::windowsFor(const int32_t* offset, ptrdiff_t elements, const BytePattern& pattern) {
  const int blockElements = 16 / pattern.bytes;
  int windows = 1;
  for (ptrdiff_t block = 0; block < elements; block += blockElements) {
    const ptrdiff_t end = std::min<ptrdiff_t>(elements, block + blockElements);
    for (ptrdiff_t i = block; i < end;) {
      const ptrdiff_t part = blockElements / windows;
      const Range range = rangeOf(offset + i, std::min(part, end - i));
      if (part > 1 && range.most - range.least > 16 - pattern.reach) {  // one element always fits
        windows *= 2;
        i = block;
      } else {
        i += part;
      }
    }
  }
  return windows;
}

void PickedBytes::make(const int32_t* offset, ptrdiff_t elements, const BytePattern& pattern) {
  const int blockElements = 16 / pattern.bytes;
  windows_ = windowsFor(offset, elements, pattern);
  const ptrdiff_t part = blockElements / windows_;
  uint32_t word;
  std::memcpy(&word, pattern.at, sizeof word);
  int32_t* base = base_;
  uint8_t* place = place_;
  for (ptrdiff_t i = 0; i < elements; i += part) {
    const ptrdiff_t count = std::min(part, elements - i);
    *base = rangeOf(offset + i, count).least;
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
