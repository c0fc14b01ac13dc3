// The fast Fourier transforms of images against sums in double precision, element by element of their layouts.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "transform/spectra.h"

using namespace vemi::test;

namespace {

template <class Spec, VemiStatus (*initAlloc)(Spec**, int, int, int, vemiHint), VemiStatus (*release)(Spec*)>
std::shared_ptr<Spec> specOf(int orderX, int orderY, int flag) {
  Spec* spec = nullptr;
  EXPECT_EQ(initAlloc(&spec, orderX, orderY, flag, 0), vemiOk);
  return {spec, release};
}
const auto realSpec = specOf<VemiFFTSpec_R_32f, vemiFFTInitAlloc_R_32f, vemiFFTFree_R_32f>;
const auto complexSpec = specOf<VemiFFTSpec_C_32fc, vemiFFTInitAlloc_C_32fc, vemiFFTFree_C_32fc>;

/// Errors grow with the root of the number of levels.
double boundOf(int orders) { return 6e-8 * std::sqrt(2.0 + orders) * 4; }

// ---- The library's transforms of planes of doubles ------------------------------------------------------------------

struct Size {
  int orderX, orderY, width = 1 << orderX, height = 1 << orderY;

  operator VemiSize() const { return {width, height}; }  // NOLINT(google-explicit-constructor)
  double bound() const { return boundOf(orderX + orderY); }
};

template <class F>
void forSizes(const F& f) {
  for (int orderY = 0; orderY <= 7; ++orderY) {
    for (int orderX = 0; orderX <= 9; ++orderX) f(Size{orderX, orderY});
  }
  for (const auto& [x, y] : {std::pair{10, 3}, {11, 2}, {0, 12}, {12, 0}, {1, 11}, {13, 1}}) f(Size{x, y});
}

TEST(FFT, RealImagesAgainstSums) {
  unsigned seed = 0;
  forSizes([&](Size size) {
    const int flag = 1 << ++seed % 4;
    const auto spec = realSpec(size.orderX, size.orderY, flag);
    expectRealImages(vemiFFTFwd_RToPack_32f_C1R, vemiFFTInv_PackToR_32f_C1R, spec.get(), size, flag, 2 * size.bound());
  });
}

TEST(FFT, ComplexImagesAgainstSums) {
  unsigned seed = 0;
  forSizes([&](Size size) {
    const int flag = 1 << ++seed % 4;
    const auto spec = complexSpec(size.orderX, size.orderY, flag);
    expectComplexImages(vemiFFTFwd_CToC_32fc_C1R, vemiFFTInv_CToC_32fc_C1R, spec.get(), size, flag, 2 * size.bound());
  });
}

/// Products with all factors would lie 1 to 3 % above these.
TEST(FFT, MeanErrors) {
  struct Bounds {
    int order;
    double real, complex;
  };
  for (const auto& [order, real, complex] : {Bounds{6, 1.235e-7, 1.19e-7}, {8, 1.44e-7, 1.41e-7}}) {
    const Size size{order, order};
    expectRealImages(vemiFFTFwd_RToPack_32f_C1R, vemiFFTInv_PackToR_32f_C1R, realSpec(order, order, 8).get(), size, 8,
                     8 * real);
    expectComplexImages(vemiFFTFwd_CToC_32fc_C1R, vemiFFTInv_CToC_32fc_C1R, complexSpec(order, order, 8).get(), size, 8,
                        8 * complex);
  }
}

// ---- All members, as users call them --------------------------------------------------------------------------------

struct Made {
  Size size;
  int flag;
};

Made madeOf(Call& call) {
  const Call& maker = call.record("pSpec");
  return {{maker.get<int>("orderX"), maker.get<int>("orderY")}, maker.get<int>("flag")};
}

void floatsOfPowers(Call& call) {
  const auto [size, flag] = madeOf(call);
  floatsTransformed(call, size, flag, 2 * size.bound());
}

void integersOfPowers(Call& call) {
  const auto [size, flag] = madeOf(call);
  integersTransformed<VemiFFTSpec_R_32f>(
      call, size, realSpec(size.orderX, size.orderY, flag).get(),
      {{vemiFFTFwd_RToPack_32f_C1R, vemiFFTFwd_RToPack_32f_C3R, vemiFFTFwd_RToPack_32f_C4R},
       {vemiFFTInv_PackToR_32f_C1R, vemiFFTInv_PackToR_32f_C3R, vemiFFTInv_PackToR_32f_C4R}});
}

TEST(FFT, EveryMemberOfFloats) {
  expectDefinition(membersOf("vemiFFTFwd_RToPack", "32f_.*"), floatsOfPowers);
  expectDefinition(membersOf("vemiFFTInv_PackToR", "32f_.*"), floatsOfPowers);
  expectDefinition(membersOf("vemiFFTFwd_CToC"), floatsOfPowers);
  expectDefinition(membersOf("vemiFFTInv_CToC"), floatsOfPowers);
}

TEST(FFT, EveryMemberOfIntegers) {
  expectDefinition(membersOf("vemiFFTFwd_RToPack", "8u32s_.*"), integersOfPowers, allScaleFactors);
  expectDefinition(membersOf("vemiFFTInv_PackToR", "32s8u_.*"), integersOfPowers, allScaleFactors);
}

TEST(FFT, SameBitsHoweverCalled) {
  for (const auto& [x, y] : {std::pair{0, 5},
                             {5, 0},
                             {1, 1},
                             {2, 6},
                             {6, 2},
                             {7, 3},
                             {8, 1},
                             {8, 8},
                             {9, 4},
                             {10, 5},
                             {10, 7},
                             {11, 1},
                             {12, 1},
                             {11, 9},
                             {13, 0},
                             {15, 0},
                             {3, 12}}) {
    const Size size{x, y};
    const auto real = realSpec(x, y, 4);
    const auto complex = complexSpec(x, y, 2);
    const auto ofReal = [&](auto transform, int elements) {
      expectSameBits<Vemi32f, VemiFFTSpec_R_32f>(transform, real.get(), vemiFFTGetBufSize_R_32f, size, elements);
    };
    ofReal(vemiFFTFwd_RToPack_32f_C1R, 1);
    ofReal(vemiFFTInv_PackToR_32f_C1R, 1);
    ofReal(vemiFFTFwd_RToPack_32f_C4R, 4);
    ofReal(vemiFFTInv_PackToR_32f_C3R, 3);
    expectSameBits<Vemi32fc, VemiFFTSpec_C_32fc>(vemiFFTFwd_CToC_32fc_C1R, complex.get(), vemiFFTGetBufSize_C_32fc,
                                                 size, 1);
    expectSameBits<Vemi32fc, VemiFFTSpec_C_32fc>(vemiFFTInv_CToC_32fc_C1R, complex.get(), vemiFFTGetBufSize_C_32fc,
                                                 size, 1);
  }
}

/// A constant image has one number in its spectrum, and small integers stay exact.
TEST(FFT, WhatIsExact) {
  for (const auto& [x, y] : {std::pair{1, 1}, {3, 4}, {7, 5}, {9, 6}, {5, 9}, {12, 0}}) {
    const Size size{x, y};
    const std::vector<float> image(static_cast<size_t>(size.width) * static_cast<size_t>(size.height), 3.0f);
    std::vector<float> packed(image.size());
    const auto spec = realSpec(x, y, vemiFftScaleNone);
    ASSERT_EQ(
        vemiFFTFwd_RToPack_32f_C1R(image.data(), size.width * 4, packed.data(), size.width * 4, spec.get(), nullptr),
        vemiOk);
    EXPECT_EQ(packed[0], 3.0f * static_cast<float>(image.size())) << text(size, 8);
    EXPECT_EQ(std::count(packed.begin(), packed.end(), 0.0f), static_cast<ptrdiff_t>(image.size() - 1))
        << text(size, 8);
  }
  const float square[] = {5, 7, 11, 13};
  float packed[4];
  ASSERT_EQ(vemiFFTFwd_RToPack_32f_C1R(square, 8, packed, 8, realSpec(1, 1, 8).get(), nullptr), vemiOk);
  EXPECT_EQ(std::vector<float>(packed, packed + 4), (std::vector<float>{36, -4, -12, 0}));
  const float line[] = {5, 7, 11, 2};
  ASSERT_EQ(vemiFFTFwd_RToPack_32f_C1R(line, 16, packed, 16, realSpec(2, 0, 8).get(), nullptr), vemiOk);
  EXPECT_EQ(std::vector<float>(packed, packed + 4), (std::vector<float>{25, -6, -5, 7}));
}

/// The sixth word of a record between integers: where it is not 0, nothing is transformed. Bad arguments stay so.
template <class Spec>
void expectReservedWord(Spec* spec,
                        VemiStatus (*transform)(const Vemi8u*, int, Vemi32s*, int, const Spec*, int, Vemi8u*)) {
  const Vemi8u source[4] = {1, 2, 3, 5};
  Vemi32s result[4] = {-1, -1, -1, -1};
  const Vemi32s one = 1;
  std::memcpy(reinterpret_cast<char*>(spec) + 5 * sizeof one, &one, sizeof one);
  EXPECT_EQ(transform(source, 2, result, 0, spec, 0, nullptr), vemiErrStep);
  EXPECT_EQ(transform(source, 2, result, 8, spec, 0, nullptr), vemiOk);
  EXPECT_EQ(std::count(result, result + 4, -1), 4);
}

TEST(FFT, ReservedWord) {
  VemiFFTSpec_R_32s* ofPowers = nullptr;
  ASSERT_EQ(vemiFFTInitAlloc_R_32s(&ofPowers, 1, 1, vemiFftScaleNone, 0), vemiOk);
  expectReservedWord<VemiFFTSpec_R_32s>(ofPowers, vemiFFTFwd_RToPack_8u32s_C1RSfs);
  EXPECT_EQ(vemiFFTFree_R_32s(ofPowers), vemiOk);
  VemiDFTSpec_R_32s* ofAnySize = nullptr;
  ASSERT_EQ(vemiDFTInitAlloc_R_32s(&ofAnySize, {2, 2}, vemiFftScaleNone, 0), vemiOk);
  expectReservedWord<VemiDFTSpec_R_32s>(ofAnySize, vemiDFTFwd_RToPack_8u32s_C1RSfs);
  EXPECT_EQ(vemiDFTFree_R_32s(ofAnySize), vemiOk);
}

TEST(FFT, BufferSizesAreTheStatedOnes) {
  const auto realBytes = [](int x, int y) {
    int bytes = 0;
    EXPECT_EQ(vemiFFTGetBufSize_R_32f(realSpec(x, y, 1).get(), &bytes), vemiOk);
    return bytes;
  };
  EXPECT_EQ(realBytes(0, 0), 64 + 16);
  EXPECT_EQ(realBytes(3, 3), 64 * 8 + 16);
  EXPECT_EQ(realBytes(6, 6), 64 * 64 + 8 * 64 + 16 + 16);
  EXPECT_EQ(realBytes(10, 3), 16 * 1024 + 8 * 512 + 16 + 16);
  EXPECT_EQ(realBytes(12, 2), 16 * 4096 + 8208 + 16);
  EXPECT_EQ(realBytes(14, 0), 16 * 16384 + 32 * 32 + 8208 + 16);
  int bytes = 0;
  EXPECT_EQ(vemiFFTGetBufSize_C_32fc(complexSpec(9, 2, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 8 * 512 + 16 + 16);
  EXPECT_EQ(vemiFFTGetBufSize_C_32fc(complexSpec(4, 11, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 64 * 2048 + 8208 + 16);
  VemiFFTSpec_R_32s* integers = nullptr;
  ASSERT_EQ(vemiFFTInitAlloc_R_32s(&integers, 4, 5, 8, 0), vemiOk);
  EXPECT_EQ(vemiFFTGetBufSize_R_32s(integers, &bytes), vemiOk);
  EXPECT_EQ(bytes, realBytes(4, 5) + 4 * (4 * 16 + 4 * 16 * 32) + 16);
  EXPECT_EQ(vemiFFTFree_R_32s(integers), vemiOk);
  // Buffers of 2^31 bytes and more are none.
  VemiFFTSpec_R_32f* floats = nullptr;
  integers = nullptr;
  for (const auto& [x, y] : {std::pair{27, 0}, {0, 25}, {29, 30}, {30, 30}}) {
    EXPECT_EQ(vemiFFTInitAlloc_R_32f(&floats, x, y, 8, 0), vemiErrMemAlloc);
    EXPECT_EQ(vemiFFTInitAlloc_R_32s(&integers, x, y, 8, 0), vemiErrMemAlloc);
  }
  EXPECT_EQ(vemiFFTInitAlloc_R_32s(&integers, 14, 13, 8, 0), vemiErrMemAlloc);
  EXPECT_EQ(floats, nullptr);
  EXPECT_EQ(integers, nullptr);
}

}  // namespace
