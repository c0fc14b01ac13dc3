// vemiFilterMin, vemiFilterMax and the medians.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

/// The value that `choose` takes out of the sorted ones of a rectangle.
template <class Choose>
void ofRectangle(Call& call, const Choose& choose) {
  const View source = call.source();
  const auto size = call.get<VemiSize>("maskSize");
  const auto anchor = call.get<VemiPoint>("anchor");
  call.forEachElement([&](int x, int y, int channel) {
    std::vector<double> values;
    for (int j = 0; j < size.height; ++j) {
      for (int i = 0; i < size.width; ++i) {
        values.push_back(loadNumber(source.element, source.at(x + i - anchor.x, y + j - anchor.y, channel)));
      }
    }
    storeNumber(source.element, call.destination().at(x, y, channel), choose(values));
  });
}

void least(Call& call) {
  ofRectangle(call, [](const auto& values) { return *std::min_element(values.begin(), values.end()); });
}

void greatest(Call& call) {
  ofRectangle(call, [](const auto& values) { return *std::max_element(values.begin(), values.end()); });
}

}  // namespace

TEST(Ranks, Min) { expectDefinition(membersOf("vemiFilterMin"), least); }
TEST(Ranks, Max) { expectDefinition(membersOf("vemiFilterMax"), greatest); }
