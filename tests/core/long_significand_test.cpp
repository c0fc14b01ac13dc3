// Numbers with a significand of 64 bits: sums, products, quotients and roots against exact integers, and, where the
// processor has the format, against its own.

#include "core/processor.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "support/elements.h"

#ifdef __SIZEOF_INT128__
#include "core/long_significand.h"
#endif

using namespace vemi;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

uint64_t bitsOf(double value) { return std::isnan(value) ? 1 : std::bit_cast<uint64_t>(value); }

/// Values whose results are known: what double precision would round away comes back by a difference.
template <class Number>
void expectKnownResults() {
  using std::sqrt;
  Number sum = 0x1p63;
  sum += 1.0;
  sum += -0x1p63;
  EXPECT_EQ(static_cast<double>(sum), 1);
  sum = 0x1p64;
  sum += 1.0;  // a tie to even
  sum += -0x1p64;
  EXPECT_EQ(static_cast<double>(sum), 0);
  sum = 0x1p64;
  sum += 3.0;  // a tie from an odd one
  sum += -0x1p64;
  EXPECT_EQ(static_cast<double>(sum), 4);
  sum = 0x1p-1074;
  sum += 0x1p1000;
  sum += -0x1p1000;
  EXPECT_EQ(static_cast<double>(sum), 0);

  const Number third = Number(1) / Number(3);  // 0xaaaaaaaaaaaaaaab / 2^65
  sum = third * Number(0x1p65);
  sum += -0xaaaaaaaaaaaaa800p0;
  EXPECT_EQ(static_cast<double>(sum), 0x2ab);
  const Number root = sqrt(Number(2));  // 0xb504f333f9de6484 / 2^63
  sum = root * Number(0x1p63);
  sum += -0xb504f333f9de6000p0;
  EXPECT_EQ(static_cast<double>(sum), 0x484);

  EXPECT_EQ(static_cast<double>(Number(DBL_MAX) * Number(DBL_MAX) / Number(DBL_MAX)), DBL_MAX);
  EXPECT_EQ(static_cast<double>(Number(DBL_MAX) * Number(-2)), -infinity);
  EXPECT_EQ(static_cast<double>(Number(0x1.8p-1074) * Number(1)), 0x1p-1073);  // 0x1.8p-1074 is that as a double
  EXPECT_EQ(static_cast<double>(Number(0x1p-1074) / Number(2)), 0);
  EXPECT_EQ(static_cast<double>(Number(0x3p-1074) / Number(2)), 0x1p-1073);
  EXPECT_EQ(bitsOf(static_cast<double>(Number(-0x1p-1074) / Number(4))), bitsOf(-0.0));
  EXPECT_TRUE(std::isnan(static_cast<double>(Number(infinity) + Number(-infinity))));
  EXPECT_TRUE(std::isnan(static_cast<double>(Number(0) / Number(0))));
  EXPECT_TRUE(std::isnan(static_cast<double>(sqrt(Number(-1)))));
  EXPECT_EQ(static_cast<double>(Number(-3) / Number(0)), -infinity);
  EXPECT_EQ(static_cast<double>(Number(1) + Number(infinity)), infinity);
}

TEST(ExtendedFloat, HasASignificandOf64Bits) { expectKnownResults<ExtendedFloat>(); }

#ifdef __SIZEOF_INT128__

TEST(LongSignificand, IsTheProcessorsExtendedFloat) {
  expectKnownResults<LongSignificand>();
  if constexpr (std::numeric_limits<long double>::digits == 64) {
    test::Random random(1);
    const auto number = [&] {
      double value;
      test::fillElement(test::Element::f64, reinterpret_cast<std::byte*>(&value), random);
      return random.below(2) != 0 ? value : std::ldexp(value, -random.below(70));
    };
    for (int n = 0; n < 200000; ++n) {
      const double a = number(), b = number(), c = number(), d = number();
      const auto compute = [&](auto zero) {
        using Number = decltype(zero);
        using std::sqrt;
        Number x = a, y = c;
        x += b;
        y += d;
        const Number product = x * y, quotient = x / y, sum = x + y, root = sqrt(y);
        // To double both as they are and less the nearest double, which shows the bits below it.
        std::vector<double> results;
        for (const Number& result : {product, quotient, sum, root}) {
          const double nearest = static_cast<double>(result);
          Number rest = result;
          if (std::isfinite(nearest)) rest += -nearest;
          results.push_back(nearest);
          results.push_back(static_cast<double>(rest));
        }
        return results;
      };
      const auto expected = compute(0.0L), actual = compute(LongSignificand());
      for (size_t i = 0; i < expected.size(); ++i) {
        ASSERT_EQ(bitsOf(actual[i]), bitsOf(expected[i]))
            << std::hexfloat << a << " " << b << " " << c << " " << d << ": " << i;
      }
    }
  }
}

#endif

}  // namespace
