// Images larger than the caches, whose destinations are written past them, and the same a few rows at a time.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "support/check.h"

namespace vemi::test {

/// Three planes in one piece of memory. `across` by `down` pixels share the samples of the second and the third.
struct PlanesInMemory {
  VemiSize size;
  int across, down;
  int step[3];

  PlanesInMemory(VemiSize pixels, int sharedAcross, int sharedDown)
      : size(pixels), across(sharedAcross), down(sharedDown) {
    const int chroma = (size.width + across - 1) / across;
    step[0] = size.width + 3, step[1] = chroma + 5, step[2] = chroma + 1;
  }

  int rowsOf(size_t plane, int rows) const { return plane == 0 ? rows : (rows + down - 1) / down; }
  ptrdiff_t begin(size_t plane) const {
    ptrdiff_t bytes = 0;
    for (size_t c = 0; c < plane; ++c) bytes += ptrdiff_t{step[c]} * rowsOf(c, size.height);
    return bytes;
  }
  size_t bytes() const { return static_cast<size_t>(begin(3)); }

  /// The planes from row y on, which chroma begins with too.
  template <class T>
  std::array<T*, 3> from(T* memory, int y) const {
    std::array<T*, 3> planes;
    for (size_t c = 0; c < 3; ++c) planes[c] = memory + begin(c) + ptrdiff_t{step[c]} * rowsOf(c, y);
    return planes;
  }
  std::vector<Vemi8u> random() const {
    std::vector<Vemi8u> memory(bytes());
    Random(1).fill(reinterpret_cast<std::byte*>(memory.data()), memory.size());
    return memory;
  }
};

/// call(destination, first row, rows) leaves the same in one and in bands of eight rows, which stay in the caches.
template <class Call>
void expectAsInBands(size_t bytes, int height, const Call& call) {
  std::vector<Vemi8u> whole(bytes), banded(bytes);
  EXPECT_EQ(call(whole.data(), 0, height), vemiOk);
  for (int y = 0; y < height; y += 8) EXPECT_EQ(call(banded.data(), y, std::min(8, height - y)), vemiOk);
  EXPECT_TRUE(whole == banded);
}

}  // namespace vemi::test
