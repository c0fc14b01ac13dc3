// The one-dimensional windows, and the double-precision lanes beneath them: sines, cosines, logarithms.

#include "signal/window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "signal/ln.h"
#include "signal/sine.h"

namespace {

using namespace vemi;

int64_t rank(double value) {
  const auto bits = std::bit_cast<int64_t>(value);
  return bits >= 0 ? bits : INT64_MIN - bits;
}

template <class Op>
double inLanes(Op op, double x) {
  const Lanes<double> d;
  return hn::GetLane(op(d, hn::Set(d, x)));
}

template <class Op>
void expectWithinOneUnit(Op op, long double (*exact)(long double), const std::vector<double>& arguments) {
  for (const double x : arguments) {
    const double expected = static_cast<double>(exact(x)), result = inLanes(op, x);
    ASSERT_LE(std::abs(rank(result) - rank(expected)), 1) << std::hexfloat << x << ": " << result;
  }
}

/// Of all sizes up to the limit of exact reduction, and next to multiples of an eighth of a turn.
std::vector<double> angles() {
  std::vector<double> all = {0.0, 1e-300, 0x1p29, 1e15, 1e18};
  double x = 0x1p-30;
  for (int n = 0; n < 200000; ++n, x *= 1.0002023) all.push_back(x);
  for (int n = 1; n < 100000; ++n) {
    const double multiple = (n < 50000 ? n : 6700.0 * n) * 0.78539816339744831;
    for (const double near : {multiple, std::nextafter(multiple, 0.0), std::nextafter(multiple, 1e9)}) {
      all.push_back(near);
    }
  }
  return all;
}

std::vector<double> positives() {
  std::vector<double> all = {1.0, 0x1p-60, 0x1.fffffffffffffp-1, 0x1.0000000000001p0, 0x1p-1, 0x1p1000};
  double x = 0x1p-62;
  for (int n = 0; n < 300000; ++n, x *= 1.000146) all.push_back(x);
  for (int n = -100000; n < 100000; ++n) all.push_back(1.0 + n * 0x1p-40);
  return all;
}

using Window = VemiStatus(Vemi32f* pSrcDst, int len);

std::vector<Vemi32f> ofOnes(Window* window, int len) {
  std::vector<Vemi32f> row(static_cast<size_t>(len), 1.0f);
  EXPECT_EQ(window(row.data(), len), vemiOk);
  return row;
}

long double exactBartlett(int k, int len) {
  return std::min(2.0L * k, 2.0L * (len - 1 - k)) / static_cast<long double>(len - 1);
}

long double exactHamming(int k, int len) {
  return 0.54L - 0.46L * std::cos(6.283185307179586476925L * std::min(k, len - 1 - k) / (len - 1));
}

void expectWindow(Window* window, long double (*exact)(int k, int len), int len) {
  const std::vector<Vemi32f> row = ofOnes(window, len);
  for (int k = 0; k < len; ++k) {
    const auto expected = static_cast<float>(exact(k, len));
    const float result = row[static_cast<size_t>(k)];
    ASSERT_LE(std::abs(std::bit_cast<int32_t>(result) - std::bit_cast<int32_t>(expected)), 1) << k << " of " << len;
    ASSERT_EQ(result, row[static_cast<size_t>(len - 1 - k)]) << k << " of " << len;
  }
}

}  // namespace

TEST(SineLanes, WithinOneUnitInTheLastPlace) {
  expectWithinOneUnit(Sine(), std::sin, angles());
  expectWithinOneUnit(Cosine(), std::cos, angles());
}

TEST(Ln64fLanes, WithinOneUnitInTheLastPlace) { expectWithinOneUnit(Ln64f(), std::log, positives()); }

TEST(SignalWindow, WithinOneUnitInTheLastPlaceAtEveryLength) {
  std::vector<int> lengths = {1000, 4097, 65536, 1000001};
  for (int len = 3; len < 100; ++len) lengths.push_back(len);
  for (const int len : lengths) {
    expectWindow(sigWinBartlett_32f_I, exactBartlett, len);
    expectWindow(sigWinHamming_32f_I, exactHamming, len);
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
