// The Fourier transforms of images of any size against sums in double precision, element by element of their layouts.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "transform/spectra.h"

using namespace vemi::test;

namespace {

template <class Spec, VemiStatus (*initAlloc)(Spec**, VemiSize, int, vemiHint), VemiStatus (*release)(Spec*)>
std::shared_ptr<Spec> specOf(VemiSize size, int flag) {
  Spec* spec = nullptr;
  EXPECT_EQ(initAlloc(&spec, size, flag, 0), vemiOk);
  return {spec, release};
}
const auto realSpec = specOf<VemiDFTSpec_R_32f, vemiDFTInitAlloc_R_32f, vemiDFTFree_R_32f>;
const auto complexSpec = specOf<VemiDFTSpec_C_32fc, vemiDFTInitAlloc_C_32fc, vemiDFTFree_C_32fc>;

/// Of single elements. Direct sums and chirps have more roundings than levels of small factors.
double boundOf(VemiSize size) { return 6e-7 * std::sqrt(3 + std::log2(size.width) + std::log2(size.height)); }

// Straight code, powers of two, factors, direct sums, the longest of them, chirps; on the stack and in the buffer.
const std::vector<int> lengths = {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 26, 45, 64, 98, 149};
const std::vector<VemiSize> longSizes = {{150, 10},  {151, 3},  {3, 151},  {179, 2},  {2, 179}, {181, 9},  {10, 181},
                                         {298, 4},   {300, 21}, {302, 5},  {5, 302},  {256, 7}, {7, 256},  {512, 9},
                                         {1024, 15}, {15, 512}, {480, 36}, {36, 480}, {625, 3}, {1021, 6}, {6, 1021},
                                         {1920, 2},  {2, 1080}, {1, 1000}, {1000, 1}, {1, 151}, {181, 1},  {4096, 1},
                                         {1, 512},   {337, 34}, {2053, 17}};

template <class F>
void forSizes(const F& f) {
  for (const int height : lengths) {
    for (const int width : lengths) f(VemiSize{width, height});
  }
  std::for_each(longSizes.begin(), longSizes.end(), f);
}

TEST(DFT, RealImagesAgainstSums) {
  int seed = 0;
  forSizes([&](VemiSize size) {
    const int flag = 1 << ++seed % 4;
    const auto spec = realSpec(size, flag);
    expectRealImages(vemiDFTFwd_RToPack_32f_C1R, vemiDFTInv_PackToR_32f_C1R, spec.get(), size, flag, boundOf(size));
  });
}

TEST(DFT, ComplexImagesAgainstSums) {
  int seed = 0;
  forSizes([&](VemiSize size) {
    const int flag = 1 << ++seed % 4;
    const auto spec = complexSpec(size, flag);
    expectComplexImages(vemiDFTFwd_CToC_32fc_C1R, vemiDFTInv_CToC_32fc_C1R, spec.get(), size, flag, boundOf(size));
  });
}

// ---- All members, as users call them --------------------------------------------------------------------------------

void floatsOfAnySize(Call& call) {
  const Call& maker = call.record("pSpec");
  const auto size = maker.get<VemiSize>("roiSize");
  floatsTransformed(call, size, maker.get<int>("flag"), 2 * boundOf(size));
}

void integersOfAnySize(Call& call) {
  const Call& maker = call.record("pSpec");
  const auto size = maker.get<VemiSize>("roiSize");
  integersTransformed<VemiDFTSpec_R_32f>(
      call, size, realSpec(size, maker.get<int>("flag")).get(),
      {{vemiDFTFwd_RToPack_32f_C1R, vemiDFTFwd_RToPack_32f_C3R, vemiDFTFwd_RToPack_32f_C4R},
       {vemiDFTInv_PackToR_32f_C1R, vemiDFTInv_PackToR_32f_C3R, vemiDFTInv_PackToR_32f_C4R}});
}

TEST(DFT, EveryMemberOfFloats) {
  expectDefinition(membersOf("vemiDFTFwd_RToPack", "32f_.*"), floatsOfAnySize);
  expectDefinition(membersOf("vemiDFTInv_PackToR", "32f_.*"), floatsOfAnySize);
  expectDefinition(membersOf("vemiDFTFwd_CToC"), floatsOfAnySize);
  expectDefinition(membersOf("vemiDFTInv_CToC"), floatsOfAnySize);
}

TEST(DFT, EveryMemberOfIntegers) {
  expectDefinition(membersOf("vemiDFTFwd_RToPack", "8u32s_.*"), integersOfAnySize, allScaleFactors);
  expectDefinition(membersOf("vemiDFTInv_PackToR", "32s8u_.*"), integersOfAnySize, allScaleFactors);
}

TEST(DFT, SameBitsHoweverCalled) {
  std::vector<VemiSize> sizes = {{1, 1}, {1, 6}, {5, 1}, {2, 2}, {3, 3}, {6, 4}, {13, 2}, {2, 13}, {149, 5}, {5, 149}};
  sizes.insert(sizes.end(), longSizes.begin(), longSizes.end());
  for (const VemiSize size : sizes) {
    const auto real = realSpec(size, 4);
    const auto complex = complexSpec(size, 2);
    const auto ofReal = [&](auto transform, int elements) {
      expectSameBits<Vemi32f, VemiDFTSpec_R_32f>(transform, real.get(), vemiDFTGetBufSize_R_32f, size, elements);
    };
    ofReal(vemiDFTFwd_RToPack_32f_C1R, 1);
    ofReal(vemiDFTInv_PackToR_32f_C1R, 1);
    ofReal(vemiDFTFwd_RToPack_32f_C4R, 4);
    ofReal(vemiDFTInv_PackToR_32f_C3R, 3);
    for (const auto transform : {vemiDFTFwd_CToC_32fc_C1R, vemiDFTInv_CToC_32fc_C1R}) {
      expectSameBits<Vemi32fc, VemiDFTSpec_C_32fc>(transform, complex.get(), vemiDFTGetBufSize_C_32fc, size, 1);
    }
  }
}

TEST(DFT, ThreeByThree) {
  const float image[] = {1, 2, 3, 4, 5, 6, 7, 8, 12};
  float packed[9];
  ASSERT_EQ(vemiDFTFwd_RToPack_32f_C1R(image, 12, packed, 12, realSpec({3, 3}, 8).get(), nullptr), vemiOk);
  const float h = std::sqrt(0.75f);  // rows sum up to 6, 15, 27, columns to 12, 15, 21
  EXPECT_NEAR(packed[0], 48, 1e-5f);
  EXPECT_NEAR(packed[1], -6, 1e-5f);
  EXPECT_NEAR(packed[2], 6 * h, 1e-5f);
  EXPECT_NEAR(packed[3], -15, 1e-5f);
  EXPECT_NEAR(packed[6], 12 * h, 1e-5f);
}

TEST(DFT, BufferSizesAreTheStatedOnes) {
  const auto realBytes = [](VemiSize size) {
    int bytes = 0;
    EXPECT_EQ(vemiDFTGetBufSize_R_32f(realSpec(size, 1).get(), &bytes), vemiOk);
    return bytes;
  };
  EXPECT_EQ(realBytes({1, 1}), 64 + 16);
  EXPECT_EQ(realBytes({4, 3}), 64 * 3 + 16);
  EXPECT_EQ(realBytes({3, 5}), 64 * 5 + 8 * 5 + 16 + 16);
  EXPECT_EQ(realBytes({149, 2}), 16 * 149 + 4 * 149 + 16 + 16);
  EXPECT_EQ(realBytes({179, 2}), 16 * 179 + 4 * 179 + 16 + 16);
  EXPECT_EQ(realBytes({298, 2}), 16 * 298 + 4 * 298 + 16 + 16);
  EXPECT_EQ(realBytes({1024, 3}), 16 * 1024 + 8 * 512 + 16 + 16);
  int bytes = 0;
  EXPECT_EQ(vemiDFTGetBufSize_C_32fc(complexSpec({512, 7}, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 8 * 512 + 16 + 16);
  EXPECT_EQ(vemiDFTGetBufSize_C_32fc(complexSpec({4, 149}, 1).get(), &bytes), vemiOk);
  EXPECT_EQ(bytes, 72 * 149 + 16 + 16);
  VemiDFTSpec_R_32s* integers = nullptr;
  ASSERT_EQ(vemiDFTInitAlloc_R_32s(&integers, {13, 11}, 8, 0), vemiOk);
  EXPECT_EQ(vemiDFTGetBufSize_R_32s(integers, &bytes), vemiOk);
  EXPECT_EQ(bytes, realBytes({13, 11}) + 16 * (13 + 13 * 11) + 16);
  EXPECT_EQ(vemiDFTFree_R_32s(integers), vemiOk);
  // Buffers of 2^31 bytes and more are none.
  VemiDFTSpec_R_32f* floats = nullptr;
  for (const VemiSize size : {VemiSize{INT_MAX, 1}, {1, INT_MAX}, {1 << 27, 1}, {3, 1 << 25}, {INT_MAX, INT_MAX}}) {
    EXPECT_EQ(vemiDFTInitAlloc_R_32f(&floats, size, 8, 0), vemiErrMemAlloc);
    EXPECT_EQ(vemiDFTInitAlloc_R_32s(&integers, size, 8, 0), vemiErrMemAlloc);
  }
  EXPECT_EQ(floats, nullptr);
  EXPECT_EQ(vemiDFTInitAlloc_R_32s(&integers, {12000, 11500}, 8, 0), vemiErrMemAlloc);
}

}  // namespace
