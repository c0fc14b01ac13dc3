// The generator behind the noise, one step after the other, by its definition.
#pragma once

#include <cstdint>

namespace vemi::test {

class Generator {
 public:
  explicit Generator(uint32_t seed) : x0_(seed), x1_(seed * 69069 + 1013904243), x2_(x1_ * 69069 + 1013904243) {}

  int32_t step() {
    g_ = g_ * 69069 + 1013904243;
    uint32_t t = x1_ - x2_ + static_cast<uint32_t>(b_);
    b_ = t >= 0x80000000u ? -1 : 0;
    if (b_ != 0) t -= 18;
    x2_ = x1_;
    x1_ = x0_;
    x0_ = t;
    return static_cast<int32_t>(t + g_);
  }
  uint32_t seed() const { return x0_; }

 private:
  uint32_t x0_, x1_, x2_, g_ = 1131199209;
  int b_ = -1;
};

}  // namespace vemi::test
