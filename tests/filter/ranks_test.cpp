// vemiFilterMin, vemiFilterMax and the medians.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

using Pixels = std::vector<VemiPoint>;  // of a neighbourhood, by their distance from the pixel

Pixels rectangleOf(const Call& call) {
  const auto size = call.get<VemiSize>("maskSize");
  const auto anchor = call.get<VemiPoint>("anchor");
  Pixels pixels;
  for (int j = 0; j < size.height; ++j) {
    for (int i = 0; i < size.width; ++i) pixels.push_back({i - anchor.x, j - anchor.y});
  }
  return pixels;
}

/// Of the masks by number.
Pixels lineOf(const Call& call) {
  const int mask = call.get<int>("maskSize"), across = mask / 10 / 2, down = mask % 10 / 2;
  const bool isCross = across == down;
  Pixels pixels;
  for (int j = -down; j <= down; ++j) {
    for (int i = -across; i <= across; ++i) {
      if (!isCross || i == 0 || j == 0) pixels.push_back({i, j});
    }
  }
  return pixels;
}

/// The value at a place of the sorted ones.
void ofRank(Call& call, const Pixels& pixels, size_t rank) {
  const View source = call.source();
  std::vector<double> values(pixels.size());
  call.forEachElement([&](int x, int y, int channel) {
    std::transform(pixels.begin(), pixels.end(), values.begin(), [&](VemiPoint pixel) {
      return loadNumber(source.element, source.at(x + pixel.x, y + pixel.y, channel));
    });
    const auto place = values.begin() + static_cast<ptrdiff_t>(rank);
    std::nth_element(values.begin(), place, values.end());
    storeNumber(source.element, call.destination().at(x, y, channel), *place);
  });
}

void least(Call& call) { ofRank(call, rectangleOf(call), 0); }

void greatest(Call& call) {
  const Pixels pixels = rectangleOf(call);
  ofRank(call, pixels, pixels.size() - 1);
}

void medianOfRectangle(Call& call) {
  const Pixels pixels = rectangleOf(call);
  ofRank(call, pixels, pixels.size() / 2);
}

void medianOfLine(Call& call) {
  const Pixels pixels = lineOf(call);
  ofRank(call, pixels, pixels.size() / 2);
}

/// The whole pixel with the least sum of distances, of Sum, and the first of several.
template <class Sum>
void nearestColour(Call& call) {
  const View source = call.source(), destination = call.destination();
  const int side = call.get<int>("maskSize") / 10, reach = side / 2;
  std::vector<std::array<Sum, 3>> square(static_cast<size_t>(side * side));
  const auto distanceOf = [](const auto& p, const auto& q) {
    return std::abs(p[0] - q[0]) + std::abs(p[1] - q[1]) + std::abs(p[2] - q[2]);
  };
  for (int y = 0; y < source.size.height; ++y) {
    for (int x = 0; x < source.size.width; ++x) {
      const auto at = [&](size_t p, int channel) {
        const int place = static_cast<int>(p);
        return source.at(x + place % side - reach, y + place / side - reach, channel);
      };
      for (size_t p = 0; p < square.size(); ++p) {
        for (int c = 0; c < 3; ++c)
          square[p][static_cast<size_t>(c)] = static_cast<Sum>(loadNumber(source.element, at(p, c)));
      }
      size_t nearest = 0;
      Sum least = 0;
      for (size_t p = 0; p < square.size(); ++p) {
        Sum sum = 0;
        for (const auto& q : square) sum += distanceOf(square[p], q);
        if (p != 0 && !(sum < least)) continue;
        least = sum;
        nearest = p;
      }
      const auto bytes = static_cast<size_t>(bytesOf(source.element));
      for (int c = 0; c < 3; ++c) std::memcpy(destination.at(x, y, c), at(nearest, c), bytes);
    }
  }
}

void nearestOfColours(Call& call) {
  if (call.source().element == Element::f32) return nearestColour<float>(call);
  nearestColour<int>(call);
}

}  // namespace

TEST(Ranks, Min) { expectDefinition(membersOf("vemiFilterMin"), least); }
TEST(Ranks, Max) { expectDefinition(membersOf("vemiFilterMax"), greatest); }

TEST(Ranks, MediansOfLinesAndCrosses) {
  expectDefinition(membersOf("vemiFilterMedianHoriz"), medianOfLine);
  expectDefinition(membersOf("vemiFilterMedianVert"), medianOfLine);
  expectDefinition(membersOf("vemiFilterMedianCross"), medianOfLine);
}

TEST(Ranks, MediansOfRectangles) { expectDefinition(membersOf("vemiFilterMedian"), medianOfRectangle); }

TEST(Ranks, MediansOfColours) { expectDefinition(membersOf("vemiFilterMedianColor"), nearestOfColours); }

// A network that finds the median of zeros and ones finds that of anything. A column counts by its ones alone.
TEST(Ranks, NetworksOfSquaresByZerosAndOnes) {
  for (const int side : {3, 5}) {
    int patterns = 1;
    for (int i = 0; i < side; ++i) patterns *= side + 1;
    const int width = patterns * side;
    std::vector<Vemi8u> image(static_cast<size_t>(width * side)), result(static_cast<size_t>(width));
    std::vector<int> ones(static_cast<size_t>(patterns), 0);
    for (int x = 0; x < width; ++x) {
      int digits = x / side;
      for (int i = 0; i < x % side; ++i) digits /= side + 1;
      const int count = digits % (side + 1);
      for (int j = 0; j < count; ++j) image[static_cast<size_t>((x + j) % side * width + x)] = 1;
      ones[static_cast<size_t>(x / side)] += count;
    }
    const VemiSize region = {width - side + 1, 1};
    ASSERT_EQ(vemiFilterMedian_8u_C1R(image.data(), width, result.data(), width, region, {side, side}, {0, 0}), vemiOk);
    for (int i = 0; i < patterns; ++i) {
      ASSERT_EQ(result[static_cast<size_t>(i * side)], ones[static_cast<size_t>(i)] > side * side / 2)
          << side << ", " << i;
    }
  }
}

// More pixels than 16 bits count: of all bytes, or of all shorts of both signs, the middle one.
TEST(Ranks, MediansOfLargeRectangles) {
  const VemiSize mask = {261, 263}, region = {3, 2};
  const int width = mask.width + region.width - 1, height = mask.height + region.height - 1;
  const auto area = static_cast<size_t>(mask.width * mask.height);
  std::vector<Vemi16s> shorts(static_cast<size_t>(width * height)), shortMedians(6);
  std::vector<Vemi8u> bytes(shorts.size()), byteMedians(6);
  for (size_t i = 0; i < shorts.size(); ++i) {
    shorts[i] = static_cast<Vemi16s>(i * 40503);
    bytes[i] = static_cast<Vemi8u>(shorts[i] >> 8);
  }
  EXPECT_EQ(vemiFilterMedian_16s_C1R(&shorts[static_cast<size_t>(width)], 2 * width, shortMedians.data(), 6, region,
                                     mask, {0, 1}),
            vemiOk);
  EXPECT_EQ(
      vemiFilterMedian_8u_C1R(&bytes[static_cast<size_t>(width)], width, byteMedians.data(), 3, region, mask, {0, 1}),
      vemiOk);
  const auto medianOf = [&](const auto& image, int x, int y) {
    std::vector<int> values;
    for (int j = y; j < y + mask.height; ++j) {
      for (int i = x; i < x + mask.width; ++i) values.push_back(image[static_cast<size_t>(j * width + i)]);
    }
    std::nth_element(values.begin(), values.begin() + static_cast<ptrdiff_t>(area / 2), values.end());
    return values[area / 2];
  };
  for (size_t i = 0; i < 6; ++i) {
    const int x = static_cast<int>(i % 3), y = static_cast<int>(i / 3);
    EXPECT_EQ(shortMedians[i], medianOf(shorts, x, y)) << i;
    EXPECT_EQ(byteMedians[i], medianOf(bytes, x, y)) << i;
  }
}
