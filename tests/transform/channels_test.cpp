// Transforms of images of several channels: the bits of a channel come from that channel alone.

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "support/elements.h"
#include "vemi/transform.h"

using namespace vemi::test;

namespace {

/// Images of C3, C4 and AC4, of which all channels but one become NaNs.
template <class Spec>
void expectChannelsApart(VemiStatus (*const (&transforms)[3])(const Vemi32f*, int, Vemi32f*, int, const Spec*, Vemi8u*),
                         const Spec* spec, VemiSize size, const char* name) {
  for (const int layout : {0, 1, 2}) {
    const int elements = layout == 0 ? 3 : 4, channels = layout == 1 ? 4 : 3, step = size.width * elements * 4;
    Random random(5);
    std::vector<float> image(static_cast<size_t>(size.width) * size.height * elements), all(image.size());
    for (float& each : image) each = static_cast<float>(random.below(2001) - 1000);
    ASSERT_EQ(transforms[layout](image.data(), step, all.data(), step, spec, nullptr), vemiOk);
    for (int channel = 0; channel < channels; ++channel) {
      std::vector<float> one(image.size(), std::numeric_limits<float>::quiet_NaN()), result(image.size());
      const auto forChannel = [&](const auto& f) {
        for (size_t i = static_cast<size_t>(channel); i < image.size(); i += static_cast<size_t>(elements)) f(i);
      };
      forChannel([&](size_t i) { one[i] = image[i]; });
      ASSERT_EQ(transforms[layout](one.data(), step, result.data(), step, spec, nullptr), vemiOk);
      int differences = 0;
      forChannel([&](size_t i) { differences += result[i] == all[i] ? 0 : 1; });
      EXPECT_EQ(differences, 0) << name << " of " << size.width << " x " << size.height << ", channel " << channel
                                << " of " << elements;
    }
  }
}

TEST(Channels, OfFFT) {
  for (const auto& [x, y] : {std::pair{1, 1}, {0, 3}, {3, 0}, {3, 5}, {4, 2}, {6, 3}, {8, 2}, {9, 4}}) {
    VemiFFTSpec_R_32f* spec = nullptr;
    ASSERT_EQ(vemiFFTInitAlloc_R_32f(&spec, x, y, vemiFftScaleNone, vemiHintNone), vemiOk);
    const VemiSize size = {1 << x, 1 << y};
    expectChannelsApart<VemiFFTSpec_R_32f>(
        {vemiFFTFwd_RToPack_32f_C3R, vemiFFTFwd_RToPack_32f_C4R, vemiFFTFwd_RToPack_32f_AC4R}, spec, size, "FFTFwd");
    expectChannelsApart<VemiFFTSpec_R_32f>(
        {vemiFFTInv_PackToR_32f_C3R, vemiFFTInv_PackToR_32f_C4R, vemiFFTInv_PackToR_32f_AC4R}, spec, size, "FFTInv");
    vemiFFTFree_R_32f(spec);
  }
}

/// Of columns by factors, and of chirps; of 48 columns and less, and not in whole runs of 24.
const VemiSize sizes[] = {{3, 3},   {7, 5},   {8, 6},   {13, 9}, {16, 7}, {17, 8},
                          {40, 30}, {151, 3}, {5, 181}, {1, 9},  {9, 1},  {512, 3}};

TEST(Channels, OfDFT) {
  for (const VemiSize size : sizes) {
    VemiDFTSpec_R_32f* spec = nullptr;
    ASSERT_EQ(vemiDFTInitAlloc_R_32f(&spec, size, vemiFftScaleNone, vemiHintNone), vemiOk);
    expectChannelsApart<VemiDFTSpec_R_32f>(
        {vemiDFTFwd_RToPack_32f_C3R, vemiDFTFwd_RToPack_32f_C4R, vemiDFTFwd_RToPack_32f_AC4R}, spec, size, "DFTFwd");
    expectChannelsApart<VemiDFTSpec_R_32f>(
        {vemiDFTInv_PackToR_32f_C3R, vemiDFTInv_PackToR_32f_C4R, vemiDFTInv_PackToR_32f_AC4R}, spec, size, "DFTInv");
    vemiDFTFree_R_32f(spec);
  }
}

TEST(Channels, OfDCT) {
  std::vector<VemiSize> all(std::begin(sizes), std::end(sizes));
  all.insert(all.end(), {{3, 1031}, {1031, 3}, {4096, 1}, {8, 8}});
  for (const VemiSize size : all) {
    VemiDCTSpec_32f *forward = nullptr, *inverse = nullptr;
    ASSERT_EQ(vemiDCTFwdInitAlloc_32f(&forward, size, vemiHintNone), vemiOk);
    ASSERT_EQ(vemiDCTInvInitAlloc_32f(&inverse, size, vemiHintNone), vemiOk);
    expectChannelsApart<VemiDCTSpec_32f>({vemiDCTFwd_32f_C3R, vemiDCTFwd_32f_C4R, vemiDCTFwd_32f_AC4R}, forward, size,
                                         "DCTFwd");
    expectChannelsApart<VemiDCTSpec_32f>({vemiDCTInv_32f_C3R, vemiDCTInv_32f_C4R, vemiDCTInv_32f_AC4R}, inverse, size,
                                         "DCTInv");
    vemiDCTFwdFree_32f(forward);
    vemiDCTInvFree_32f(inverse);
  }
}

}  // namespace
