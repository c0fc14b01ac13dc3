// vemiConvert between bytes and bit images.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "support/allocator.h"
#include "support/check.h"

using namespace vemi::test;

namespace {

/// A bit of a row, counted from its first byte.
struct Bit {
  std::byte* row;
  int position;

  std::byte& byte() const { return row[position / 8]; }
  std::byte mask() const { return std::byte{0x80} >> position % 8; }
  bool isSet() const { return (byte() & mask()) != std::byte{0}; }
  void set(bool value) const { byte() = value ? byte() | mask() : byte() & ~mask(); }
};

void bitsAsBytes(Call& call) {
  const View source = call.source(), destination = call.destination();
  const int offset = call.get<int>("srcBitOffset") % 8;
  call.forEachElement([&](int x, int y, int) {
    store<Vemi8u>(destination.at(x, y), Bit{source.at(0, y), offset + x}.isSet() ? 255 : 0);
  });
}

/// The shares that a pixel has of the errors around it: dx, dy, weight.
constexpr int shares[12][3] = {{-2, -2, 1}, {-1, -2, 2}, {0, -2, 4}, {1, -2, 2}, {2, -2, 1}, {-2, -1, 2},
                               {-1, -1, 4}, {0, -1, 8},  {1, -1, 4}, {2, -1, 2}, {-2, 0, 4}, {-1, 0, 8}};

/// The bits of an image of bytes, row after row.
template <class Pixel>
std::vector<bool> ditherOf(VemiSize size, int threshold, const Pixel& pixel) {
  std::vector<bool> bits;
  std::vector<std::vector<int64_t>> error(static_cast<size_t>(size.height),
                                          std::vector<int64_t>(static_cast<size_t>(size.width)));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      int64_t sum = 0;
      for (const auto& [dx, dy, weight] : shares) {
        if (x + dx < 0 || x + dx >= size.width || y + dy < 0) continue;
        sum += weight * error[static_cast<size_t>(y + dy)][static_cast<size_t>(x + dx)];
      }
      const int64_t value = pixel(x, y) * 8192 + 23 * sum;
      bits.push_back(value > threshold * 8192);
      error[static_cast<size_t>(y)][static_cast<size_t>(x)] = (value >> 10) - (bits.back() ? 2047 : 0);
    }
  }
  return bits;
}

void dithered(Call& call) {
  const View source = call.source(), destination = call.destination();
  const VemiSize size = call.get<VemiSize>("roiSize");
  const int offset = call.get<int>("dstBitOffset") % 8;
  const std::vector<bool> bits =
      ditherOf(size, call.get<Vemi8u>("threshold"), [&](int x, int y) { return load<Vemi8u>(source.at(x, y)); });
  for (int y = 0, n = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x, ++n) Bit{destination.at(0, y), offset + x}.set(bits[static_cast<size_t>(n)]);
  }
}

/// What the library makes of an image of bytes.
template <class Pixel>
std::vector<bool> libraryDither(VemiSize size, int threshold, const Pixel& pixel) {
  std::vector<Vemi8u> source;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) source.push_back(static_cast<Vemi8u>(pixel(x, y)));
  }
  const int step = (size.width + 7) / 8;
  std::vector<Vemi1u> bits(static_cast<size_t>(step * size.height));
  EXPECT_EQ(vemiConvert_8u1u_C1R(source.data(), size.width, bits.data(), step, 0, size, static_cast<Vemi8u>(threshold)),
            vemiOk);
  std::vector<bool> result;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      result.push_back(Bit{reinterpret_cast<std::byte*>(bits.data()) + y * step, x}.isSet());
    }
  }
  return result;
}

}  // namespace

TEST(BitImage, BytesOfBits) { expectDefinition(membersOf("vemiConvert", "1u8u.*"), bitsAsBytes); }

TEST(BitImage, DitheredBytes) { expectDefinition(membersOf("vemiConvert", "8u1u.*"), dithered); }

// 9 is bit 1 of the same byte.
TEST(BitImage, OffsetsCountModulo8) {
  const Vemi1u bits[2] = {0x55, 0xff};
  Vemi8u pixels[5] = {};
  EXPECT_EQ(vemiConvert_1u8u_C1R(bits, 2, 9, pixels, 5, {4, 1}), vemiOk);
  EXPECT_EQ(std::vector<int>(pixels, pixels + 5), std::vector<int>({255, 0, 255, 0, 0}));
  const Vemi8u white[4] = {255, 255, 255, 255};
  Vemi1u byte = 0x80;
  EXPECT_EQ(vemiConvert_8u1u_C1R(white, 4, &byte, 1, INT32_MAX - 6, {4, 1}, 128), vemiOk);  // 1 modulo 8
  EXPECT_EQ(byte, 0xf8);
}

TEST(BitImage, DitherOfConstants) {
  const auto expectDither = [](VemiSize size, int threshold, int value) {
    const auto pixel = [=](int, int) { return value; };
    EXPECT_EQ(libraryDither(size, threshold, pixel), ditherOf(size, threshold, pixel)) << value << ", " << threshold;
  };
  for (const int threshold : {0, 1, 127, 128, 254, 255}) {
    for (int value = 0; value < 256; value += 5) expectDither({60, 7}, threshold, value);
  }
  const auto zeros = libraryDither({60, 7}, 0, [](int, int) { return 0; });
  const auto first = libraryDither({60, 1}, 254, [](int, int) { return 255; });
  EXPECT_EQ(std::count(zeros.begin(), zeros.end(), true), 0);
  EXPECT_EQ(std::count(first.begin(), first.end(), true), 60);
}

// Rows run side by side: images of fewer rows than that and of a few more, narrower than the distance between rows.
TEST(BitImage, DitherOfAnySize) {
  const auto pixel = [](int x, int y) { return static_cast<int>((x * 2654435761u + y * 2246822519u) >> 13 & 255); };
  for (const int width : {1, 2, 3, 6, 7, 8, 15, 16, 17, 48, 49, 50, 51, 300}) {
    for (int height = 1; height < 20; ++height) {
      for (const int threshold : {0, 100, 255}) {
        const VemiSize size = {width, height};
        EXPECT_EQ(libraryDither(size, threshold, pixel), ditherOf(size, threshold, pixel)) << width << 'x' << height;
      }
    }
  }
}

TEST(BitImage, DitherLeavesStepsToTheCaller) {
  const VemiSize size = {37, 4};
  std::vector<Vemi8u> source(37 * 4);
  std::iota(source.begin(), source.end(), Vemi8u{100});
  std::vector<Vemi1u> down(5 * 4, 0xaa), up(5 * 4, 0xaa), row(5, 0xaa);
  EXPECT_EQ(vemiConvert_8u1u_C1R(source.data(), 37, down.data(), 5, 0, size, 128), vemiOk);
  EXPECT_EQ(vemiConvert_8u1u_C1R(source.data(), 37, up.data() + 15, -5, 0, size, 128), vemiOk);
  for (int y = 0; y < 4; ++y) {
    EXPECT_TRUE(std::equal(down.begin() + 5 * y, down.begin() + 5 * y + 5, up.begin() + 15 - 5 * y)) << "row " << y;
  }
  EXPECT_EQ(vemiConvert_8u1u_C1R(source.data(), 0, row.data(), INT32_MIN, 0, {37, 1}, 128), vemiOk);
  EXPECT_TRUE(std::equal(row.begin(), row.end(), down.begin()));
}

TEST(BitImage, DitherWithoutMemory) {
  const NoMemory noMemory;
  const Vemi8u source[2] = {255, 255};
  Vemi1u byte = 0x42;
  EXPECT_EQ(vemiConvert_8u1u_C1R(source, 2, &byte, 1, 0, {2, 1}, 128), vemiErrMemAlloc);
  EXPECT_EQ(vemiConvert_8u1u_C1R(source, 2, &byte, 1, 0, {INT32_MAX, 1}, 128), vemiErrMemAlloc);
  EXPECT_EQ(vemiConvert_8u1u_C1R(source, 2, &byte, 1, -1, {2, 1}, 128), vemiErrSize);
  EXPECT_GE(noMemory.requests(), 1);
  EXPECT_EQ(byte, 0x42);
}
