// The factors of Fourier transforms, and long lines, whose factors are formed on the way.

#include "signal/fft.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "signal/fft_lanes.h"

using namespace vemi;
using namespace vemi::signal;

namespace {

long double angleOf(int64_t k, int order) {
  return 2 * std::numbers::pi_v<long double> * static_cast<long double>(k) /
         static_cast<long double>(int64_t{1} << order);
}

TEST(Roots, AreRoundedOnce) {
  const Roots roots(18);
  ASSERT_FALSE(roots.failed());
  float own[factorBlock];
  for (int order = Roots::firstOrder; order <= 18; ++order) {
    const int64_t quarter = int64_t{1} << (order - 2), turn = int64_t{1} << order;
    for (int64_t j = 0; j < quarter; ++j) {
      const float* const block = roots.block(order, static_cast<ptrdiff_t>(j / 16), own) + j % 16;
      for (int power = 1; power <= 3; ++power) {
        // To within an eighth of a turn, so that the reference is exact where the factor is.
        const int64_t k = power * j, eighths = (8 * k + turn / 2) / turn;
        const long double rest = angleOf(k, order) - angleOf(eighths, 3), c = std::cos(rest), s = std::sin(rest);
        const long double r = std::sqrt(0.5L), diagonal = eighths % 2 == 0 ? 1 : r;
        const int ofC[] = {1, 1, 0, -1, -1, -1, 0, 1}, ofS[] = {0, 1, 1, 1, 0, -1, -1, -1};
        const long double a = ofC[eighths % 8] * diagonal, b = ofS[eighths % 8] * diagonal;
        ASSERT_EQ(block[(power - 1) * 32], static_cast<float>(a * c - b * s)) << order << ", " << k;
        ASSERT_EQ(block[(power - 1) * 32 + 16], static_cast<float>(-(b * c + a * s))) << order << ", " << k;
      }
    }
  }
}

TEST(Roots, PlacesAreReversed) {
  for (int order = 1; order <= 10; ++order) {
    ReversedPlaces places{ptrdiff_t{1} << order};
    for (ptrdiff_t k = 1; k < places.count; ++k) {
      places.step(k);
      ASSERT_EQ(places.place, bitsReversed(k, order));
      ASSERT_EQ(places.mirrored(k), bitsReversed(places.count - k, order));
    }
  }
}

/// Of a line that is 0 but for x(n), X(k) is that times a power of w.
TEST(FFTLine, LongLinesOfOneNumber) {
  for (const int order : {7, 8, 9, 13, 14, 15, 16, 19}) {
    RecordPtr<SigFFTSpec_C> complex;
    RecordPtr<SigFFTSpec_R> real;
    ASSERT_EQ(sigFFTInitAlloc_C_32fc(complex, order, 8, 0), vemiOk);
    ASSERT_EQ(sigFFTInitAlloc_R_32f(real, order, 8, 0), vemiOk);
    const int64_t count = int64_t{1} << order;
    for (const int64_t n : {int64_t{1}, count / 2 + 3, count - 5}) {
      std::vector<Vemi32fc> line(static_cast<size_t>(count)), spectrum(line.size());
      std::vector<float> floats(line.size()), packed(line.size());
      line[static_cast<size_t>(n)] = {2, 1};
      floats[static_cast<size_t>(n)] = 4;
      ASSERT_EQ(sigFFTFwd_CToC_32fc(line.data(), spectrum.data(), complex.get(), nullptr), vemiOk);
      ASSERT_EQ(sigFFTFwd_RToPack_32f(floats.data(), packed.data(), real.get(), nullptr), vemiOk);
      for (int64_t k = 0; k < count; ++k) {
        const double angle = static_cast<double>(angleOf(k * n % count, order)), c = std::cos(angle),
                     s = std::sin(angle);
        ASSERT_NEAR(spectrum[static_cast<size_t>(k)].re, 2 * c + s, 2e-6) << order << ", " << n << ", " << k;
        ASSERT_NEAR(spectrum[static_cast<size_t>(k)].im, c - 2 * s, 2e-6) << order << ", " << n << ", " << k;
        if (k > count / 2) continue;
        ASSERT_NEAR(packed[static_cast<size_t>(k == 0 ? 0 : 2 * k - 1)], 4 * c, 4e-6) << order << ", " << k;
        if (k == 0 || k == count / 2) continue;
        ASSERT_NEAR(packed[static_cast<size_t>(2 * k)], -4 * s, 4e-6) << order << ", " << k;
      }
      // And back, in place.
      ASSERT_EQ(sigFFTInv_CToC_32fc(spectrum.data(), spectrum.data(), complex.get(), nullptr), vemiOk);
      ASSERT_EQ(sigFFTInv_PackToR_32f(packed.data(), packed.data(), real.get(), nullptr), vemiOk);
      const auto scale = static_cast<double>(count);
      for (int64_t k = 0; k < count; ++k) {
        const int isN = k == n ? 1 : 0;
        ASSERT_NEAR(spectrum[static_cast<size_t>(k)].re / scale, 2 * isN, 1e-6) << order << ", " << k;
        ASSERT_NEAR(spectrum[static_cast<size_t>(k)].im / scale, isN, 1e-6) << order << ", " << k;
        ASSERT_NEAR(packed[static_cast<size_t>(k)] / scale, 4 * isN, 2e-6) << order << ", " << k;
      }
    }
  }
}

TEST(FFTLine, Records) {
  RecordPtr<SigFFTSpec_R> real;
  EXPECT_EQ(sigFFTInitAlloc_R_32f(real, 31, 3, 0), vemiErrFftOrder);
  EXPECT_EQ(sigFFTInitAlloc_R_32f(real, 2, 3, 0), vemiErrFftFlag);
  ASSERT_EQ(sigFFTInitAlloc_R_32f(real, 30, 4, 0), vemiOk);  // long ones need little memory
  EXPECT_EQ(real->scale, 0x1p-15f);
  int bytes = 0;
  EXPECT_EQ(sigFFTGetBufSize_R_32f(real.get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 32 * 1024 + 8208);
  constexpr int tileOrders[] = {5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10, 10, 10, 10};  // from 2^13 on
  for (int order = 13; order <= 30; ++order) {
    EXPECT_EQ(workBytesOfComplexFFT(order), 32 * (1 << tileOrders[order - 13]) + 8208) << order;
  }
  EXPECT_EQ(workBytesOfComplexFFT(3), 0);
  EXPECT_EQ(workBytesOfComplexFFT(10), 8 * 1024 + 16);
  EXPECT_EQ(workBytesOfComplexFFT(11), 8208);
  real->tag = 4;
  EXPECT_EQ(sigFFTGetBufSize_R_32f(real.get(), &bytes), vemiErrContext);
  float x = 0;
  EXPECT_EQ(sigFFTFwd_RToPack_32f(&x, &x, real.get(), nullptr), vemiErrContext);
}

}  // namespace
