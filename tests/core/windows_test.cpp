// The ring of rows that windows are taken from.

#include "core/windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace vemi;

namespace {

TEST(RowRing, RowsStandInOrderWhetherOwnOrNot) {
  constexpr int rows = 3;
  constexpr ptrdiff_t elements = 5;
  RowRing<Vemi16s> ring(rows, elements);
  std::vector<char> memory(static_cast<size_t>(ring.bytes()), 0x55);
  ring.place(memory.data());
  const Vemi16s elsewhere[elements] = {};
  std::vector<const Vemi16s*> entered;
  for (int i = 0; i < 10; ++i) {
    if (i % 4 == 3) {
      ring.enter(elsewhere);
      entered.push_back(elsewhere);
    } else {
      Vemi16s* const row = ring.turn();
      for (ptrdiff_t x = 0; x < slackElements; ++x) ASSERT_EQ(row[elements + x], 0);
      std::fill_n(row, elements, static_cast<Vemi16s>(i));
      entered.push_back(row);
    }
    for (int j = 0; i >= rows - 1 && j < rows; ++j) {
      const auto age = static_cast<size_t>(i - (rows - 1) + j);
      ASSERT_EQ(ring.rows()[j], entered[age]);
      ASSERT_EQ(*ring.rows()[j], age % 4 == 3 ? 0 : static_cast<Vemi16s>(age));
    }
  }
}

}  // namespace
