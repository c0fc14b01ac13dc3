// The one-dimensional windows.

#include "signal/window.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/windows.h"

using namespace vemi;
using namespace vemi::signal;
using namespace vemi::test;

namespace {

using Window = VemiStatus(Vemi32f* pSrcDst, int len);

std::vector<Vemi32f> ofOnes(Window* window, int len) {
  std::vector<Vemi32f> row(static_cast<size_t>(len), 1.0f);
  EXPECT_EQ(window(row.data(), len), vemiOk);
  return row;
}

/// Lengths of all kinds; in no case does the cosine of one step lie so near to a tie that it might be rounded wrongly.
std::vector<int> lengths() {
  std::vector<int> all = {1000, 4097, 65536, 1000001};
  for (int len = 3; len < 100; ++len) all.push_back(len);
  return all;
}

}  // namespace

TEST(SignalWindow, ByDefinition) {
  for (const int len : lengths()) {
    EXPECT_TRUE(ofOnes(sigWinBartlett_32f_I, len) == bartlettWindow(len)) << len;
    EXPECT_TRUE(ofOnes(sigWinHamming_32f_I, len) == hammingWindow(len)) << len;
  }
}

// What the recurrence loses grows with the square of the length; the rest is the rounding to single precision.
TEST(SignalWindow, HammingIsNearTheExactCosine) {
  for (const int len : lengths()) {
    const std::vector<Vemi32f> row = ofOnes(sigWinHamming_32f_I, len);
    const long double bound = 0x1p-25L + 0x1p-57L * len * len;
    for (int k = 0; k < len; ++k) {
      const long double exact = 0.54L - 0.46L * std::cos(6.283185307179586476925L * k / (len - 1));
      ASSERT_LE(std::abs(row[static_cast<size_t>(k)] - exact), bound) << k << " of " << len;
    }
  }
}

TEST(SignalWindow, MultipliesWhatIsThere) {
  std::vector<Vemi32f> row = {8, 8, 8, 8, 8};
  EXPECT_EQ(sigWinBartlett_32f_I(row.data(), 5), vemiOk);
  EXPECT_EQ(row, (std::vector<Vemi32f>{0, 4, 8, 4, 0}));
}

TEST(SignalWindow, Statuses) {
  Vemi32f row[3] = {1, 1, 1};
  for (Window* const window : {sigWinBartlett_32f_I, sigWinHamming_32f_I}) {
    EXPECT_EQ(window(nullptr, 2), vemiErrNullPtr);
    EXPECT_EQ(window(row, 2), vemiErrSize);
    EXPECT_EQ(window(row, -1), vemiErrSize);
    EXPECT_EQ(row[0], 1.0f);
  }
}
