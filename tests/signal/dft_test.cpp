// Lines of any length, eight side by side, against sums in double precision.

#include "signal/dft_lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "support/elements.h"

using namespace vemi;
using namespace vemi::signal;

namespace {

using Complex = std::complex<double>;

/// exp(-2 pi i k / length)
Complex turned(Vemi64s k, Vemi64s length) {
  const long double angle =
      2 * std::numbers::pi_v<long double> * static_cast<long double>(k % length) / static_cast<long double>(length);
  return {static_cast<double>(std::cos(angle)), static_cast<double>(-std::sin(angle))};
}

TEST(Roots, OfAnyLength) {
  for (const Vemi64s length : {1, 2, 3, 4, 5, 8, 12, 100, 360, 1021, 46341}) {
    for (Vemi64s k = 0; k < 2 * length; k += 1 + length / 500) {
      const Root root = rootOfLength(k, length);
      ASSERT_NEAR(root.re, turned(k, length).real(), 3e-16) << k << " of " << length;
      ASSERT_NEAR(root.im, turned(k, length).imag(), 3e-16) << k << " of " << length;
      ASSERT_TRUE(4 * k % length != 0 || root.re * root.im == 0) << k << " of " << length;
    }
  }
}

TEST(DFTLines, MethodsByLength) {
  const auto expectMethod = [](DFTMethod method, std::initializer_list<int> lengths) {
    for (const int length : lengths) EXPECT_EQ(methodOf(length), method) << length;
  };
  expectMethod(DFTMethod::few, {1, 2, 3, 4});
  expectMethod(DFTMethod::powerOfTwo, {8, 64, 1 << 20});
  expectMethod(DFTMethod::factors, {6, 9, 10, 25, 149 * 149, 2 * 149, 1000, 1920, 1080});
  expectMethod(DFTMethod::direct, {5, 7, 11, 149});
  expectMethod(DFTMethod::chirp, {151, 2 * 151, 4 * 157, 1021, 151 * 151, 3 * 179, 2147483647});
  EXPECT_EQ(methodOf(179, longestDirectReal), DFTMethod::direct);
  EXPECT_EQ(methodOf(181, longestDirectReal), DFTMethod::chirp);
}

TEST(DFTLines, AgainstSums) {
  std::vector<int> lengths = {149, 151, 179, 181, 256, 298,  302,  360,  453,
                              480, 512, 513, 514, 625, 1000, 1021, 1080, 2187};
  for (int length = 1; length <= 132; ++length) lengths.push_back(length);
  for (const int length : lengths)
    for (const DFTEntry entry : {DFTEntry::inOrder, DFTEntry::permuted}) {
      const DFTLines lines(length, longestDirectReal, entry);
      ASSERT_FALSE(lines.failed());
      std::vector<float> memory(static_cast<size_t>(16 * lines.groups()), NAN);
      const ColumnGroups data{memory.data()};
      test::Random random(static_cast<unsigned>(length));
      std::vector<Complex> line[8];
      for (ptrdiff_t n = 0; n < length; ++n) {
        for (ptrdiff_t i = 0; i < 8; ++i) {
          float* const at = data.at(lines.entry(n), i);
          at[0] = static_cast<float>(random.below(20001) - 10000) / 1000;
          at[ColumnGroups::N] = static_cast<float>(random.below(20001) - 10000) / 1000;
          line[i].emplace_back(at[0], at[ColumnGroups::N]);
        }
      }
      std::vector<Complex> root;
      for (int k = 0; k < length; ++k) root.push_back(turned(k, length));
      lines.transform(data);
      double error = 0, whole = 0;
      for (int k = 0; k < length; ++k) {
        // All lines of short transforms, and one of long ones.
        for (ptrdiff_t i = length > 200 ? 6 : 0; i < (length > 200 ? 7 : 8); ++i) {
          Complex sum = 0;
          for (int n = 0; n < length; ++n) {
            sum += line[i][static_cast<size_t>(n)] * root[static_cast<size_t>(Vemi64s{n} * k % length)];
          }
          const float* const at = data.at(lines.place(k), i);
          error += std::norm(Complex{at[0], at[ColumnGroups::N]} - sum);
          whole += std::norm(sum);
        }
      }
      EXPECT_LE(std::sqrt(error / whole), 1.2e-7 * std::sqrt(1 + std::log2(length))) << length;
    }
}

}  // namespace
