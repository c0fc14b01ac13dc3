// Fetches at computed places: every place of small images that end or begin at an unmapped page, and an image beyond
// 2 GiB.

#include "core/gather.h"

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <cstring>

#include "support/elements.h"
#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

constexpr ptrdiff_t lanes = laneCount<int32_t>;

/// Lane k of each row of words fetched at byte[k] of row y[k].
template <int bytes, int rows>
void expectWords(const PixelBytes& pixels, const char* first, ptrdiff_t step, const int32_t* byte, const int32_t* y) {
  const Lanes<int32_t> d;
  const auto words = pixels.words<bytes, rows>(hn::LoadU(d, byte), hn::LoadU(d, y));
  for (int j = 0; j < rows; ++j) {
    int32_t word[lanes];
    hn::StoreU(words.v[j], d, word);
    for (ptrdiff_t k = 0; k < lanes; ++k) {
      const char* const expected = first + (y[k] + ptrdiff_t{j}) * step + byte[k];
      ASSERT_EQ(std::memcmp(&word[k], expected, bytes), 0) << "byte " << byte[k] << " of row " << y[k] << " + " << j;
    }
  }
}

/// The same in words of 64 bits, two by two of which stand in the lower and in the upper lanes.
template <int bytes, int rows>
void expectLongWords(const PixelBytes& pixels, const char* first, ptrdiff_t step, const int32_t* byte,
                     const int32_t* y) {
  const Lanes<int32_t> d;
  const Lanes<int64_t> dLong;
  const auto words = pixels.longWords<bytes, rows>(hn::LoadU(d, byte), hn::LoadU(d, y));
  for (int j = 0; j < rows; ++j) {
    int64_t word[2][lanes / 2];
    hn::StoreU(words.lower.v[j], dLong, word[0]);
    hn::StoreU(words.upper.v[j], dLong, word[1]);
    for (ptrdiff_t k = 0; k < lanes; ++k) {
      const char* const expected = first + (y[k] + ptrdiff_t{j}) * step + byte[k];
      ASSERT_EQ(std::memcmp(&word[k / 2 % 2][k / 4 * 2 + k % 2], expected, bytes), 0)
          << "byte " << byte[k] << " of row " << y[k] << " + " << j;
    }
  }
}

/// All places in turn, so that each place stands in each lane, beside near and far ones.
template <int bytes, int rows>
void expectAllWords(const PixelBytes& pixels, const char* first, ptrdiff_t step, ptrdiff_t rowBytes, int height) {
  const ptrdiff_t columns = rowBytes - bytes + 1, places = columns * (height - rows + 1);
  if (columns < 1 || height < rows) return;
  for (ptrdiff_t place = 0; place < places; ++place) {
    for (const ptrdiff_t stride : {ptrdiff_t{0}, ptrdiff_t{1}, columns + 1}) {
      int32_t byte[lanes], y[lanes];
      for (ptrdiff_t k = 0; k < lanes; ++k) {
        const ptrdiff_t each = (place + k * stride) % places;
        byte[k] = static_cast<int32_t>(each % columns);
        y[k] = static_cast<int32_t>(each / columns);
      }
      if constexpr (bytes > 4) {
        expectLongWords<bytes, rows>(pixels, first, step, byte, y);
      } else {
        expectWords<bytes, rows>(pixels, first, step, byte, y);
      }
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

template <int bytes, ptrdiff_t size>
void expectAllRuns(const PixelBytes& pixels, const char* first, ptrdiff_t step, ptrdiff_t rowBytes, int height) {
  const hn::FixedTag<uint8_t, size> d;
  for (int y = 0; y < height; ++y) {
    for (ptrdiff_t byte = 0; byte + bytes <= rowBytes; ++byte) {
      uint8_t run[size];
      hn::StoreU(pixels.run<bytes>(d, byte, y), d, run);
      ASSERT_EQ(std::memcmp(run, first + y * step + byte, bytes), 0) << "byte " << byte << " of row " << y;
    }
  }
}

TEST(Gather, NothingBesideTheImageIsRead) {
  for (const VemiSize size : {VemiSize{1, 1}, VemiSize{2, 1}, VemiSize{1, 4}, VemiSize{5, 2}, VemiSize{9, 5}}) {
    for (const int gap : {0, 3}) {
      for (const Place place : places) {
        const int rowBytes = 3 * size.width, step = rowBytes + gap;
        const GuardedRow<Vemi8u> memory(step * (size.height - 1) + rowBytes, place);
        const auto pixels = PixelBytes::of<C3>(Image<const Vemi8u>{memory.data(), step}, size);
        const auto expectAll = [&](const auto& expect) {
          expect(pixels, reinterpret_cast<const char*>(memory.data()), step, rowBytes, size.height);
        };
        expectAll(expectAllWords<1, 1>);
        expectAll(expectAllWords<2, 2>);
        expectAll(expectAllWords<3, 1>);
        expectAll(expectAllWords<4, 4>);
        expectAll(expectAllWords<6, 2>);
        expectAll(expectAllWords<8, 1>);
        expectAll(expectAllRuns<3, 4>);
        expectAll(expectAllRuns<6, 8>);
        expectAll(expectAllRuns<12, 16>);
        expectAll(expectAllRuns<16, 16>);
        ASSERT_FALSE(::testing::Test::HasFatalFailure()) << size.width << "x" << size.height << ", gap " << gap;
      }
    }
  }
}

// Rows 0 and 3 of a sparse image, of which the last begins behind 2^32 bytes.
TEST(Gather, ImagesBeyondTwoGibibytes) {
  if (sizeof(void*) < 8) GTEST_SKIP() << "no room for the image";
  constexpr int step = 1500000000, width = 50, height = 4;
  const size_t bytes = size_t{step} * (height - 1) + width;
  void* const block = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(block, MAP_FAILED);
  auto* const first = static_cast<Vemi8u*>(block);
  Random random(1);
  for (ptrdiff_t y = 0; y < height; ++y) random.fill(reinterpret_cast<std::byte*>(first + y * step), width);
  const auto pixels = PixelBytes::of<C1>(Image<const Vemi8u>{first, step}, {width, height});
  expectAllWords<2, 2>(pixels, static_cast<const char*>(block), step, width, height);
  expectAllWords<4, 1>(pixels, static_cast<const char*>(block), step, width, height);
  expectAllWords<6, 2>(pixels, static_cast<const char*>(block), step, width, height);
  expectAllRuns<3, 8>(pixels, static_cast<const char*>(block), step, width, height);
  munmap(block, bytes);
}

}  // namespace
