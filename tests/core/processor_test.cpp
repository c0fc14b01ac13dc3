// What is the processor's taste elsewhere: the same results on every processor, NaNs, zeros and limits included.

#include "core/processor.h"

#include <fenv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "core/numbers.h"
#include "core/processor_bytes.h"
#include "core/processor_quads.h"
#include "core/processor_shuffles.h"
#include "core/processor_triples.h"
#include "support/for_types.h"

using namespace vemi;
using namespace vemi::test;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr int32_t lowestInteger = std::numeric_limits<int32_t>::min();

template <int first, int second>
void expectPairsOfByteProducts() {
  const Lanes<int16_t> d;
  constexpr int N = laneCount<int16_t>;
  for (int value = 0; value < 65536; value += N) {
    uint16_t pairs[N];
    int16_t sums[N];
    for (int i = 0; i < N; ++i) pairs[i] = static_cast<uint16_t>(value + i);
    hn::StoreU(pairsOfByteProducts<first, second>(d, hn::BitCast(d, hn::LoadU(Lanes<uint16_t>(), pairs))), d, sums);
    for (int i = 0; i < N; ++i) ASSERT_EQ(sums[i], (pairs[i] & 255) * first + (pairs[i] >> 8) * second) << pairs[i];
  }
}

TEST(Processor, PairsOfByteProducts) {
  expectPairsOfByteProducts<1, 1>();
  expectPairsOfByteProducts<64, 0>();
  expectPairsOfByteProducts<-64, 64>();
  expectPairsOfByteProducts<-128, 127>();
}

template <class T, class Wide>
void checkPack(T, Wide) {
  using Limits = std::numeric_limits<Wide>;
  const Lanes<T> d;
  const Lanes<Wide> dWide;
  constexpr int N = laneCount<Wide>, inBlock = 16 / sizeof(Wide);
  const Wide limits[] = {Limits::min(), Limits::min() + 1, -1, 0, 1, Limits::max() - 1, Limits::max()};
  std::vector<Wide> values(limits, limits + 7);
  for (const int64_t edge : {-32768, -128, 127, 128, 255, 32767, 65535}) {
    for (int64_t v = edge - 2; v <= edge + 2; ++v) {
      if (v >= Limits::min() && v <= Limits::max()) values.push_back(static_cast<Wide>(v));
    }
  }
  for (size_t first = 0; first < values.size(); ++first) {
    Wide halves[2][N];
    T result[2 * N];
    for (int i = 0; i < 2 * N; ++i) halves[i / N][i % N] = values[(first + static_cast<size_t>(i)) % values.size()];
    hn::StoreU(packHalves(d, hn::LoadU(dWide, halves[0]), hn::LoadU(dWide, halves[1])), d, result);
    for (int i = 0; i < 2 * N; ++i) {
      const int block = i / (2 * inBlock), half = i / inBlock % 2;
      const Wide value = halves[half][block * inBlock + i % inBlock];
      ASSERT_EQ(result[i], std::clamp<int64_t>(value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    }
  }
}

/// All lanes of a conversion of one value, which must be equal.
template <class Op>
int32_t inEveryLane(const Op& op, float value) {
  const Lanes<int32_t> d;
  int32_t result[laneCount<int32_t>];
  hn::StoreU(op(d, hn::Set(Lanes<float>(), value)), d, result);
  for (const int32_t each : result) EXPECT_EQ(each, result[0]);
  return result[0];
}

/// 1 + v by the arithmetic of lanes and scalars; fegetround tells that of another unit on some processors.
float onePlus(float v) {
  const volatile float one = 1, term = v;
  const volatile float sum = one + term;
  return sum;
}

bool sameBits(float a, float b) { return std::bit_cast<uint32_t>(a) == std::bit_cast<uint32_t>(b); }

}  // namespace

TEST(Processor, PacksSaturateWithinBlocks) {
  checkPack(int8_t(), int16_t());
  checkPack(uint8_t(), int16_t());
  checkPack(int16_t(), int32_t());
  checkPack(uint16_t(), int32_t());
}

TEST(Processor, ConversionsOfAnyFloat) {
  const auto toZero = [](auto d, auto v) { return truncated(d, v); };
  const auto byMode = [](auto d, auto v) { return rounded(d, v); };
  const int modes[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};
  for (const int mode : modes) {
    ASSERT_EQ(fesetround(mode), 0);
    for (volatile float v : {0.0f, -0.0f, 0.25f, 0.5f, 0.75f, 1.5f, 2.5f, -0.5f, -0.75f, -1.5f, -2.5f, 1e-45f, -1e-45f,
                             8388607.5f, -4194304.5f, 2147483520.0f, -2147483520.0f, -0x1p31f}) {
      const float value = v;
      EXPECT_EQ(inEveryLane(toZero, value), static_cast<int32_t>(value)) << value;
      EXPECT_EQ(inEveryLane(byMode, value), static_cast<int32_t>(std::nearbyint(value)))
          << value << " in mode " << mode;
    }
    for (const float value :
         {0x1p31f, 3e38f, -0x1.000002p31f, -3e38f, infinity, -infinity, std::nanf(""), -std::nanf("")}) {
      EXPECT_EQ(inEveryLane(toZero, value), lowestInteger) << value;
      EXPECT_EQ(inEveryLane(byMode, value), lowestInteger) << value;
    }
  }
  fesetround(FE_TONEAREST);
}

TEST(Processor, TheSecondOfWhatHasNoOrder) {
  const float nan = std::nanf(""), values[] = {1, 2, -2, 0.0f, -0.0f, infinity, -infinity, nan};
  forTypes<float, double>([&](auto type) {
    using T = decltype(type);
    const Lanes<T> d;
    for (const float a : values) {
      for (const float b : values) {
        const auto va = hn::Set(d, static_cast<T>(a)), vb = hn::Set(d, static_cast<T>(b));
        const auto low = static_cast<float>(hn::GetLane(lesser(va, vb)));
        const auto high = static_cast<float>(hn::GetLane(greater(va, vb)));
        EXPECT_TRUE(sameBits(low, a < b ? a : b)) << a << " " << b << " " << low;
        EXPECT_TRUE(sameBits(high, a > b ? a : b)) << a << " " << b << " " << high;
      }
    }
  });
}

TEST(Processor, ControlOfRoundingAndExceptions) {
  fenv_t former;
  fegetenv(&former);
  const FloatControl usual = FloatControl::current();
  feclearexcept(FE_ALL_EXCEPT);
  volatile float zero = 0, one = 1;  // raised by arithmetic: on i386 feraiseexcept sets flags of the x87 unit
  volatile float invalid = zero / zero, infinite = one / zero;
  fesetround(FE_UPWARD);
  const FloatControl callers = FloatControl::current();
  EXPECT_FALSE(callers.roundsToNearest());
  EXPECT_TRUE(callers.metInvalid());
  EXPECT_FALSE(callers == usual);

  callers.with(Rounding::towardZero).set();
  EXPECT_EQ(onePlus(0x1.8p-24f), 1);
  EXPECT_FALSE(FloatControl::current().metInvalid());
  EXPECT_EQ(fetestexcept(FE_DIVBYZERO), FE_DIVBYZERO);
  callers.with(Rounding::nearest).set();
  EXPECT_TRUE(FloatControl::current().roundsToNearest());
  EXPECT_EQ(onePlus(0x1.8p-24f), 1 + 0x1p-23f);
  EXPECT_EQ(onePlus(0x1p-25f), 1);
  invalid = zero / zero;
  EXPECT_TRUE(FloatControl::current().metInvalid());

  callers.set();
  EXPECT_TRUE(FloatControl::current() == callers);
  EXPECT_EQ(onePlus(0x1p-25f), 1 + 0x1p-23f);
  static_cast<void>(invalid), static_cast<void>(infinite);
  fesetenv(&former);
}

TEST(Processor, PairsOfProductsStandInOrder) {
  const Lanes<int16_t> d;
  const Lanes<int32_t> dWide;
  constexpr int N = laneCount<int16_t>;
  int16_t a[N], b[N];
  int32_t sums[N / 2];
  for (int i = 0; i < N; ++i) {
    a[i] = static_cast<int16_t>(i % 3 == 0 ? 32767 : -32768 + i);
    b[i] = static_cast<int16_t>(1009 * i - 16000);
  }
  hn::StoreU(pairsOfProducts(hn::LoadU(d, a), hn::LoadU(d, b)), dWide, sums);
  for (int i = 0; i < N / 2; ++i) EXPECT_EQ(sums[i], a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1]) << i;
}

TEST(Processor, LowerHalvesWithinBlocks) {
  const Lanes<int32_t> d;
  constexpr int N = laneCount<int32_t>;
  int32_t halves[N];
  hn::StoreU(lowerHalves(d, hn::Iota(d, 0), hn::Iota(d, 100)), d, halves);
  for (int i = 0; i < N; ++i) EXPECT_EQ(halves[i], i / 4 * 4 + i % 2 * 2 + (i % 4 < 2 ? 0 : 100)) << i;
}

template <class D>
void expectQuadsInLanes(D d) {
  constexpr size_t N = hn::MaxLanes(D());
  std::vector<uint8_t> in(4 * N), place[4];  // of exactly this size, which the address sanitizer guards
  for (size_t i = 0; i < in.size(); ++i) in[i] = static_cast<uint8_t>(i);
  hn::Vec<D> c0, c1, c2, c3;
  loadQuads(d, in.data(), c0, c1, c2, c3);
  for (auto& bytes : place) bytes.resize(N);
  hn::StoreU(c0, d, place[0].data());
  hn::StoreU(c1, d, place[1].data());
  hn::StoreU(c2, d, place[2].data());
  hn::StoreU(c3, d, place[3].data());
  for (size_t i = 0; i < in.size(); ++i) EXPECT_EQ(place[i % 4][i / 4], in[i]) << i;
}

TEST(Processor, QuadsGoToLanes) {
  expectQuadsInLanes(Lanes<uint8_t>());
  expectQuadsInLanes(hn::CappedTag<uint8_t, 16>());
  expectQuadsInLanes(hn::CappedTag<uint8_t, 4>());
}

TEST(Processor, TriplesGoToLanesAndBack) {
  const Lanes<float> d;
  constexpr int N = laneCount<float>;
  float in[3 * N], stored[3 * N], places[3][N];
  alignas(laneAlignment) float streamed[3 * N];
  for (int i = 0; i < 3 * N; ++i) in[i] = static_cast<float>(i);
  loadTriples(d, in, [&](auto v0, auto v1, auto v2) {
    hn::StoreU(v0, d, places[0]);
    hn::StoreU(v1, d, places[1]);
    hn::StoreU(v2, d, places[2]);
    storeTriples<Stores::cached>(d, v0, v1, v2, stored);
    storeTriples<Stores::streamed>(d, v0, v1, v2, streamed);
  });
  for (int i = 0; i < 3 * N; ++i) EXPECT_TRUE(stored[i] == in[i] && streamed[i] == in[i]) << i;
  float sum = 0;
  for (int i = 0; i < N; ++i) {  // lanes hold whole triples, each of them once
    EXPECT_EQ(std::fmod(places[0][i], 3.0f), 0);
    EXPECT_EQ(places[1][i], places[0][i] + 1);
    EXPECT_EQ(places[2][i], places[0][i] + 2);
    sum += places[0][i];
  }
  EXPECT_EQ(sum, 3 * N * (N - 1) / 2);
}
