// Transforms of blocks of 8 by 8 against the rules of their fixed-point arithmetic, written out in integers, and
// against cosine sums.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <vector>

#include "support/check.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

using Block = std::array<Vemi16s, 64>;

// ---- The rules ----

int saturated(int64_t value) { return static_cast<int>(std::clamp<int64_t>(value, -32768, 32767)); }
int wrapped(int value) { return static_cast<Vemi16s>(static_cast<Vemi16u>(value)); }
int high(int a, int factor) { return (a * factor) >> 16; }
/// a b + c d + ... modulo 2^32.
int32_t sumOfProducts(std::initializer_list<int> list, uint32_t sum = 0) {
  for (auto at = list.begin(); at != list.end(); at += 2) {
    sum += static_cast<uint32_t>(at[0]) * static_cast<uint32_t>(at[1]);
  }
  return static_cast<int32_t>(sum);
}

/// A number that saturates when it is added or subtracted.
struct Number {
  int value;
};
Number operator+(Number a, Number b) { return {saturated(a.value + b.value)}; }
Number operator-(Number a, Number b) { return {saturated(a.value - b.value)}; }
Number m(Number a, int factor) { return {high(a.value, factor)}; }
Number left(Number a, int bits) { return {wrapped(a.value * (1 << bits))}; }
Number withOne(Number a) { return {a.value | 1}; }

struct Group {
  int B, C1, C2, C3, C5, C6, C7;
};
constexpr Group groups[4] = {{16384, 22725, 21407, 19266, 12873, 8867, 4520},
                             {22725, 31521, 29692, 26722, 17855, 12299, 6270},
                             {21407, 29692, 27969, 25172, 16819, 11585, 5906},
                             {19266, 26722, 25172, 22654, 15137, 10426, 5315}};
Group groupOfRow(int row) {
  constexpr int group[8] = {0, 1, 2, 3, 0, 3, 2, 1};
  return groups[group[row]];
}

Block forwardBlock(const Block& block) {
  Number y[8][8];
  for (int column = 0; column < 8; ++column) {
    Number x[8];
    for (int i = 0; i < 8; ++i) x[i] = {block[static_cast<size_t>(8 * i + column)]};
    const Number t0 = left(x[0] + x[7], 3), t1 = left(x[1] + x[6], 3), t2 = left(x[2] + x[5], 3);
    const Number t3 = left(x[3] + x[4], 3), d4 = left(x[3] - x[4], 3), d7 = left(x[0] - x[7], 3);
    const Number p = left(x[1] - x[6], 4), q = left(x[2] - x[5], 4);
    y[0][column] = (t0 + t3) + (t1 + t2);
    y[4][column] = (t0 + t3) - (t1 + t2);
    y[2][column] = withOne(m(t1 - t2, 27146) + (t0 - t3));
    y[6][column] = withOne(m(t0 - t3, 27146) - (t1 - t2));
    const Number r = withOne(m(p + q, 23170)), s = m(p - q, 23170);
    const Number a = d4 + s, b = d4 - s, c = d7 + r, d = d7 - r;
    y[1][column] = withOne(m(a, 13036) + c);
    y[7][column] = m(c, 13036) - a;
    const Number e = m(b, -21746) + b, f = m(d, -21746) + d;
    y[3][column] = d - e;
    y[5][column] = f + b;
  }
  Block result;
  for (int row = 0; row < 8; ++row) {
    const auto [B, C1, C2, C3, C5, C6, C7] = groupOfRow(row);
    int e[4], o[4];
    for (int i = 0; i < 4; ++i) {
      e[i] = (y[row][i] + y[row][7 - i]).value;
      o[i] = (y[row][i] - y[row][7 - i]).value;
    }
    const int32_t z[8] = {sumOfProducts({B, e[0], B, e[1], B, e[2], B, e[3]}, 524288),
                          sumOfProducts({C1, o[0], C3, o[1], C5, o[2], C7, o[3]}, 524288),
                          sumOfProducts({C2, e[0], C6, e[1], -C6, e[2], -C2, e[3]}, 524288),
                          sumOfProducts({C3, o[0], -C7, o[1], -C1, o[2], -C5, o[3]}, 524288),
                          sumOfProducts({B, e[0], -B, e[1], -B, e[2], B, e[3]}, 524288),
                          sumOfProducts({C5, o[0], -C1, o[1], C7, o[2], C3, o[3]}, 524288),
                          sumOfProducts({C6, e[0], -C2, e[1], C2, e[2], -C6, e[3]}, 524288),
                          sumOfProducts({C7, o[0], -C5, o[1], C3, o[2], -C1, o[3]}, 524288)};
    for (int i = 0; i < 8; ++i) result[static_cast<size_t>(8 * row + i)] = static_cast<Vemi16s>(saturated(z[i] >> 20));
  }
  return result;
}

Block inverseBlock(const Block& block) {
  constexpr uint32_t roundings[8] = {65536, 5802, 4520, 3408, 2048, 910, 1024, 746};
  Number y[8][8];
  for (int row = 0; row < 8; ++row) {
    const auto [B, C1, C2, C3, C5, C6, C7] = groupOfRow(row);
    int x[8];
    for (int i = 0; i < 8; ++i) x[i] = block[static_cast<size_t>(8 * row + i)];
    const int32_t even[4] = {sumOfProducts({B, x[0], C2, x[2], B, x[4], C6, x[6]}, roundings[row]),
                             sumOfProducts({B, x[0], C6, x[2], -B, x[4], -C2, x[6]}, roundings[row]),
                             sumOfProducts({B, x[0], -C6, x[2], -B, x[4], C2, x[6]}, roundings[row]),
                             sumOfProducts({B, x[0], -C2, x[2], B, x[4], -C6, x[6]}, roundings[row])};
    const int32_t odd[4] = {sumOfProducts({C1, x[1], C3, x[3], C5, x[5], C7, x[7]}),
                            sumOfProducts({C3, x[1], -C7, x[3], -C1, x[5], -C5, x[7]}),
                            sumOfProducts({C5, x[1], -C1, x[3], C7, x[5], C3, x[7]}),
                            sumOfProducts({C7, x[1], -C5, x[3], C3, x[5], -C1, x[7]})};
    for (int i = 0; i < 4; ++i) {
      y[row][i] = {saturated(sumOfProducts({1, even[i], 1, odd[i]}) >> 12)};
      y[row][7 - i] = {saturated(sumOfProducts({1, even[i], -1, odd[i]}) >> 12)};
    }
  }
  Block result;
  for (int column = 0; column < 8; ++column) {
    Number r[8];
    for (int i = 0; i < 8; ++i) r[i] = y[i][column];
    const Number a = r[3] + (m(r[5], -21746) + r[5]), b = m(r[3], -21746) + r[3], c = r[5] - b;
    const Number d = r[1] + m(r[7], 13036), e = m(r[1], 13036) - r[7];
    const Number p = a + d, q = d - a, s = e - c, u = e + c;
    const Number f = (q + s) + m(q + s, -19195), h = (q - s) + m(q - s, -19195);
    const Number g = r[2] + m(r[6], 27146), i = m(r[2], 27146) - r[6];
    const Number j = r[0] + r[4], k = r[0] - r[4], l = j + g, n = j - g, v = k + i, w = k - i;
    const Number results[8] = {l + p, v + f, w + h, n + u, n - u, w - h, v - f, l - p};
    for (int row = 0; row < 8; ++row) {
      result[static_cast<size_t>(8 * row + column)] = static_cast<Vemi16s>(results[row].value >> 5);
    }
  }
  return result;
}

Block cornerOf(const Block& block, int size) {
  Block corner = {};
  for (int row = 0; row < size; ++row)
    std::copy_n(&block[static_cast<size_t>(8 * row)], size, &corner[static_cast<size_t>(8 * row)]);
  return corner;
}

/// Random blocks of small, moderate and any elements, and blocks of extremes.
Block randomBlock(Random& random, int kind) {
  Block block;
  for (Vemi16s& element : block) {
    constexpr int extremes[] = {-32768, 32767, -4096, 4095, 0, -1, 1, 255};
    const int any = random.below(65536) - 32768;
    element = static_cast<Vemi16s>(kind % 4 == 0   ? extremes[random.below(8)]
                                   : kind % 4 == 1 ? any
                                   : kind % 4 == 2 ? any >> 4
                                                   : (random.below(8) == 0 ? any >> 5 : 0));
  }
  return block;
}

// ---- Registry members ----

Block blockOf(const View& view) {
  Block block;
  for (int i = 0; i < 64; ++i) {
    const bool isImage = view.size.height == 8;
    block[static_cast<size_t>(i)] =
        static_cast<Vemi16s>(loadInteger(view.element, isImage ? view.at(i % 8, i / 8) : view.at(i, 0)));
  }
  return block;
}
void putBlock(const View& view, const Block& block) {
  for (int i = 0; i < 64; ++i) {
    const bool isImage = view.size.height == 8;
    storeSaturated(view.element, isImage ? view.at(i % 8, i / 8) : view.at(i, 0), block[static_cast<size_t>(i)]);
  }
}

View sourceOf(Call& call) {
  if (call.function.inPlace) return call.array("pSrcDst");
  return call.image("pSrc").isArray() ? call.array("pSrc") : call.source();
}
View resultOf(Call& call) {
  if (call.function.inPlace) return call.array("pSrcDst");
  return call.image("pDst").isArray() ? call.array("pDst") : call.destination();
}

void transformed(Call& call) {
  const std::string& name = call.function.operation;
  Block block = blockOf(sourceOf(call));
  const auto shift = [&] {
    for (Vemi16s& element : block) {
      element = static_cast<Vemi16s>(wrapped(element + load<Vemi16s>(call.constant("addVal"))));
    }
  };
  if (name.find("FwdLS") != std::string::npos) shift();
  if (name.find("_4x4") != std::string::npos) block = cornerOf(block, 4);
  if (name.find("_2x2") != std::string::npos) block = cornerOf(block, 2);
  block = name.find("Fwd") != std::string::npos ? forwardBlock(block) : inverseBlock(block);
  if (name.find("InvLSClip") != std::string::npos) {
    shift();
    const int lowest = load<Vemi8u>(call.constant("clipMin")), highest = load<Vemi8u>(call.constant("clipMax"));
    for (Vemi16s& element : block) {
      element = static_cast<Vemi16s>(std::min(std::max(std::clamp<int>(element, 0, 255), lowest), highest));
    }
  }
  putBlock(resultOf(call), block);
}

TEST(Blocks, EveryMemberOfIntegers) {
  for (const char* operation : {"vemiDCT8x8Fwd", "vemiDCT8x8Inv", "vemiDCT8x8FwdLS", "vemiDCT8x8InvLSClip",
                                "vemiDCT8x8Inv_4x4", "vemiDCT8x8Inv_2x2"}) {
    expectDefinition(membersOf(operation, "(8u|16s).*"), transformed);
  }
}

TEST(Blocks, AHundredThousandAreExact) {
  Random random(16);
  for (int n = 0; n < 100000; ++n) {
    const Block block = randomBlock(random, n);
    Block result[4];
    vemiDCT8x8Fwd_16s_C1(block.data(), result[0].data());
    vemiDCT8x8Inv_16s_C1(block.data(), result[1].data());
    vemiDCT8x8Inv_4x4_16s_C1(block.data(), result[2].data());
    vemiDCT8x8Inv_2x2_16s_C1(block.data(), result[3].data());
    ASSERT_EQ(result[0], forwardBlock(block)) << n;
    ASSERT_EQ(result[1], inverseBlock(block)) << n;
    ASSERT_EQ(result[2], inverseBlock(cornerOf(block, 4))) << n;
    ASSERT_EQ(result[3], inverseBlock(cornerOf(block, 2))) << n;
  }
}

TEST(Blocks, FixedPointIsTheCosineTransform) {
  Random random(17);
  int worst[2] = {};
  for (int n = 0; n < 200; ++n) {
    Block block, spectrum, back;
    for (Vemi16s& element : block) element = static_cast<Vemi16s>(random.below(512) - 256);
    vemiDCT8x8Fwd_16s_C1(block.data(), spectrum.data());
    vemiDCT8x8Inv_16s_C1(spectrum.data(), back.data());
    for (int v = 0; v < 8; ++v) {
      for (int u = 0; u < 8; ++u) {
        double sum = 0;
        for (int i = 0; i < 64; ++i) {
          sum += block[static_cast<size_t>(i)] * std::cos(std::numbers::pi * (2 * (i % 8) + 1) * u / 16) *
                 std::cos(std::numbers::pi * (2 * (i / 8) + 1) * v / 16);
        }
        sum *= (u == 0 ? std::sqrt(0.125) : 0.5) * (v == 0 ? std::sqrt(0.125) : 0.5);
        worst[0] =
            std::max(worst[0], static_cast<int>(std::ceil(std::fabs(spectrum[static_cast<size_t>(8 * v + u)] - sum))));
      }
    }
    for (size_t i = 0; i < 64; ++i) worst[1] = std::max(worst[1], std::abs(back[i] - block[i]));
  }
  EXPECT_LE(worst[0], 2);
  EXPECT_LE(worst[1], 2);
}

TEST(Blocks, AConstantHasOneCoefficient) {
  for (int value = -256; value < 256; ++value) {
    Block block, expected = {};
    block.fill(static_cast<Vemi16s>(value));
    vemiDCT8x8Fwd_16s_C1I(block.data());
    expected[0] = static_cast<Vemi16s>(8 * value);
    ASSERT_EQ(block, expected) << value;
  }
}

// ---- Floats ----

void cosineSums(Call& call) {
  const bool isForward = call.function.operation == "vemiDCT8x8Fwd";
  const View from = sourceOf(call), to = resultOf(call);
  // As pixels and frequencies are of one size, so are the errors; of numbers from far apart only the largest count.
  const auto number = [&](int i) { return static_cast<double>(load<float>(from.at(i, 0))); };
  const auto basis = [](int x, int u) {
    return (u == 0 ? std::sqrt(0.125) : 0.5) * std::cos(std::numbers::pi * (2 * x + 1) * u / 16);
  };
  double sums[64] = {};
  for (int i = 0; i < 64; ++i) {
    for (int j = 0; j < 64; ++j) {
      const int frequency = isForward ? i : j, pixel = isForward ? j : i;
      sums[i] += number(j) * basis(pixel % 8, frequency % 8) * basis(pixel / 8, frequency / 8);
    }
  }
  for (int i = 0; i < 64; ++i) store(to.at(i, 0), static_cast<float>(sums[i]));
  call.tolerance = 2e-3;  // of numbers up to 2^9
}

TEST(Blocks, EveryMemberOfFloats) {
  for (const char* operation : {"vemiDCT8x8Fwd", "vemiDCT8x8Inv"}) {
    expectDefinition(membersOf(operation, "32f.*"), cosineSums);
  }
}

TEST(Blocks, FloatsAreAsExactAsFloatsAre) {
  Random random(18);
  double error = 0, norm = 0;
  for (int n = 0; n < 1000; ++n) {
    float block[64], spectrum[64], back[64];
    for (float& element : block) element = static_cast<float>(random.below(20001) - 10000) / 64;
    vemiDCT8x8Fwd_32f_C1(block, spectrum);
    vemiDCT8x8Inv_32f_C1(spectrum, back);
    for (int i = 0; i < 64; ++i) {
      error += std::pow(static_cast<double>(back[i]) - static_cast<double>(block[i]), 2);
      norm += std::pow(static_cast<double>(block[i]), 2);
    }
  }
  EXPECT_LE(std::sqrt(error / norm), 2e-7);  // there and back
  float constant[64];
  std::fill_n(constant, 64, 3.5f);
  vemiDCT8x8Fwd_32f_C1I(constant);
  for (int i = 0; i < 64; ++i) EXPECT_EQ(constant[i], i == 0 ? 28 : 0) << i;
}

// ---- Zigzag ----

TEST(Zigzag, EveryMember) {
  // Along the diagonals, upwards where x + y is even.
  std::vector<int> scan(64);
  for (int i = 0; i < 64; ++i) scan[static_cast<size_t>(i)] = i;
  std::stable_sort(scan.begin(), scan.end(), [](int a, int b) {
    const int d = a % 8 + a / 8, e = b % 8 + b / 8;
    return d != e ? d < e : d % 2 == 0 ? a % 8 < b % 8 : a / 8 < b / 8;
  });
  EXPECT_EQ((std::vector<int>(scan.begin(), scan.begin() + 8)), (std::vector<int>{0, 1, 8, 16, 9, 2, 3, 10}));
  const auto reference = [&](bool isForward) {
    return [&scan, isForward](Call& call) {
      const View src = call.array("pSrc"), dst = call.array("pDst");
      for (int i = 0; i < 64; ++i) {
        const int at = scan[static_cast<size_t>(i)];
        std::memcpy(dst.at(isForward ? i : at, 0), src.at(isForward ? at : i, 0), sizeof(Vemi16s));
      }
    };
  };
  expectDefinition(membersOf("vemiZigzagFwd8x8"), reference(true));
  expectDefinition(membersOf("vemiZigzagInv8x8"), reference(false));
}

}  // namespace
