// vemiFilterMin, vemiFilterMax and the medians.

#include <gtest/gtest.h>

#include <algorithm>
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

void medianOfLine(Call& call) {
  const Pixels pixels = lineOf(call);
  ofRank(call, pixels, pixels.size() / 2);
}

}  // namespace

TEST(Ranks, Min) { expectDefinition(membersOf("vemiFilterMin"), least); }
TEST(Ranks, Max) { expectDefinition(membersOf("vemiFilterMax"), greatest); }

TEST(Ranks, MediansOfLinesAndCrosses) {
  expectDefinition(membersOf("vemiFilterMedianHoriz"), medianOfLine);
  expectDefinition(membersOf("vemiFilterMedianVert"), medianOfLine);
  expectDefinition(membersOf("vemiFilterMedianCross"), medianOfLine);
}
