// vemiFilterBox.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "filter/integers_in_every_mode.h"
#include "support/check.h"
#include "vemi/filter.h"

using namespace vemi::test;

namespace {

/// The sums of all windows of one channel, of row after row.
template <class Sum>
class Windows {
 public:
  Windows(Call& call, int channel) : source_(call.source()), channel_(channel) {
    mask_ = call.get<VemiSize>("maskSize");
    anchor_ = call.get<VemiPoint>("anchor");
    columns_.resize(static_cast<size_t>(source_.size.width + mask_.width - 1));
  }

  /// The sums of row y; carried along from the row above, or formed anew.
  std::vector<Sum> row(int y, bool anew) {
    for (int x = 0; x < static_cast<int>(columns_.size()); ++x) {
      Sum& column = columns_[static_cast<size_t>(x)];
      if (anew) {
        column = pixel(x, y);
        for (int j = 1; j < mask_.height; ++j) column += pixel(x, y + j);
      } else {
        column += pixel(x, y + mask_.height - 1);
        column -= pixel(x, y - 1);
      }
    }
    std::vector<Sum> sums;
    Sum sum = columns_[0];
    const auto width = static_cast<size_t>(mask_.width);
    for (size_t i = 1; i < width; ++i) sum += columns_[i];
    sums.push_back(sum);
    for (size_t i = width; i < columns_.size(); ++i) {
      sum += columns_[i];
      sum -= columns_[i - width];
      sums.push_back(sum);
    }
    return sums;
  }

 private:
  View source_;
  VemiSize mask_;
  VemiPoint anchor_;
  int channel_;
  std::vector<Sum> columns_;

  Sum pixel(int x, int y) const {
    return static_cast<Sum>(loadNumber(source_.element, source_.at(x - anchor_.x, y - anchor_.y, channel_)));
  }
};

/// The quotient of a byte's or a short's sum.
int64_t quotientOf(const Call& call, bool bytes, int x, double sum) {
  const VemiSize mask = call.get<VemiSize>("maskSize");
  const Layout layout = call.function.source;
  const bool roundsDown = layout.channels != 3;
  const double taps = static_cast<double>(mask.width) * mask.height;
  const auto product = static_cast<float>(sum) * static_cast<float>(1 / taps);
  if (bytes && mask.width == 3 && mask.height == 3) {
    const bool toNearest = layout.elements == 1 && x < call.scenario.roiSize.width / 8 * 8;
    return static_cast<int64_t>(toNearest ? std::floor(sum / taps + 0.5) : std::floor(sum / taps));
  }
  if (bytes && taps > 8100) return static_cast<int64_t>(roundsDown ? product : product + 9e-6f);
  if (bytes && roundsDown) return static_cast<int64_t>(sum) / static_cast<int64_t>(taps);
  return std::llrint(product);
}

template <class Sum>
void meansOf(Call& call, int restart) {
  const View source = call.source(), destination = call.destination();
  const VemiSize mask = call.get<VemiSize>("maskSize");
  const float r = static_cast<float>(1.0 / (static_cast<double>(mask.width) * mask.height));
  for (int channel = 0; channel < destination.channels; ++channel) {
    Windows<Sum> windows(call, channel);
    for (int y = 0; y < source.size.height; ++y) {
      const std::vector<Sum> sums = windows.row(y, y % restart == 0);
      for (int x = 0; x < source.size.width; ++x) {
        const Sum sum = sums[static_cast<size_t>(x)];
        if (source.element == Element::f32) {
          store(destination.at(x, y, channel), static_cast<float>(sum) * r);
        } else {
          storeSaturated(source.element, destination.at(x, y, channel),
                         quotientOf(call, source.element == Element::u8, x, static_cast<double>(sum)));
        }
      }
    }
  }
}

/// In place, the pixels that are read are those from before.
void mean(Call& call) {
  call.anyNaN = true;
  const VemiSize mask = call.get<VemiSize>("maskSize");
  const View source = call.source();
  const bool inFloats = source.element == Element::f32 ||
                        (source.element == Element::u8 && static_cast<Vemi64s>(mask.width) * mask.height > 8100);
  if (inFloats) {
    meansOf<float>(call, std::max(64, mask.height));
  } else {
    meansOf<double>(call, 1);
  }
}

}  // namespace

TEST(Box, EveryMember) { expectDefinition(membersOf("vemiFilterBox"), mean); }

TEST(Box, IntegersInEveryRoundingMode) { expectToNearestInEveryMode(membersOf("vemiFilterBox", "(8u|16s)_.*"), mean); }

// Just below and above the masks at which bytes go over to floats: two thirds are rounded to nearest or dropped.
TEST(Box, BytesAreTruncatedAbove8100Taps) {
  std::vector<Vemi8u> image(3 * 91 * 90, 0);
  for (size_t i = 0; i < image.size(); ++i) image[i] = i / 3 % 3 != 0;
  const auto meanOf = [&](VemiSize mask) {
    Vemi8u pixel[3] = {9, 9, 9};
    EXPECT_EQ(vemiFilterBox_8u_C3R(image.data(), 3 * 90, pixel, 3, {1, 1}, mask, {0, 0}), vemiOk);
    return static_cast<int>(pixel[1]);
  };
  EXPECT_EQ(meanOf({90, 90}), 1);
  EXPECT_EQ(meanOf({90, 91}), 0);
}

// The quotient of floats falls a little short of a flat image's value; where three channels are, this is made up for.
TEST(Box, FlatBytesAbove8100Taps) {
  const VemiSize mask = {189, 43};
  const std::vector<Vemi8u> flat(4 * 189 * 43, 240);
  const auto meanOf = [&](auto* box, int channels) {
    Vemi8u pixel[4] = {};
    EXPECT_EQ(box(flat.data(), 189 * channels, pixel, 4, {1, 1}, mask, {0, 0}), vemiOk);
    return static_cast<int>(pixel[2 % channels]);
  };
  EXPECT_EQ(meanOf(vemiFilterBox_8u_C1R, 1), 239);
  EXPECT_EQ(meanOf(vemiFilterBox_8u_C4R, 4), 239);
  EXPECT_EQ(meanOf(vemiFilterBox_8u_C3R, 3), 240);
  EXPECT_EQ(meanOf(vemiFilterBox_8u_AC4R, 4), 240);
}

// Sums beyond 32 bits, and beyond what a float holds exactly: a flat image keeps its value.
TEST(Box, LargestMasks) {
  const VemiSize mask = {300, 260}, region = {9, 70};
  const int width = mask.width + region.width - 1, height = mask.height + region.height - 1;
  const auto count = static_cast<size_t>(width * height);
  for (const int value : {-32768, -32767, 32767}) {
    const std::vector<Vemi16s> flat(count, static_cast<Vemi16s>(value));
    std::vector<Vemi16s> result(9 * 70);
    EXPECT_EQ(vemiFilterBox_16s_C1R(&flat[299], 2 * width, result.data(), 18, region, mask, {299, 0}), vemiOk);
    EXPECT_EQ(std::count(result.begin(), result.end(), value), 9 * 70);
  }
  const std::vector<Vemi8u> flat(count, Vemi8u{128});
  std::vector<Vemi8u> result(9 * 70);
  EXPECT_EQ(vemiFilterBox_8u_C1R(flat.data(), width, result.data(), 9, region, mask, {0, 0}), vemiOk);
  EXPECT_EQ(std::count_if(result.begin(), result.end(), [](int mean) { return mean == 127 || mean == 128; }), 9 * 70);
}
