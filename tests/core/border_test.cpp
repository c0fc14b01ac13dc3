// vemiCopyConstBorder, vemiCopyReplicateBorder and vemiCopyWrapBorder.

#include <gtest/gtest.h>
#include <limits.h>

#include <algorithm>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

/// What stands at (x, y), counted from the source's first pixel: bytes of a source element or of a constant.
using Surroundings = const std::byte* (*)(Call&, const View& source, int x, int y, int channel);

Reference surroundedBy(Surroundings surroundings) {
  return [=](Call& call) {
    const View source = call.source(), destination = call.destination();
    const int left = call.get<int>("leftBorderWidth"), top = call.get<int>("topBorderHeight");
    const VemiSize size = call.get<VemiSize>("dstRoiSize");
    const bool inPlace = call.function.inPlace;  // then the destination, too, is counted from the source's first pixel
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        for (int channel = 0; channel < destination.channels; ++channel) {
          std::memcpy(destination.at(x - (inPlace ? left : 0), y - (inPlace ? top : 0), channel),
                      surroundings(call, source, x - left, y - top, channel),
                      static_cast<size_t>(bytesOf(source.element)));
        }
      }
    }
  };
}

const std::byte* constant(Call& call, const View& source, int x, int y, int channel) {
  const bool inside = x >= 0 && x < source.size.width && y >= 0 && y < source.size.height;
  return inside ? source.at(x, y, channel) : call.constant(channel);
}

const std::byte* nearest(Call&, const View& source, int x, int y, int channel) {
  return source.at(std::clamp(x, 0, source.size.width - 1), std::clamp(y, 0, source.size.height - 1), channel);
}

const std::byte* periodic(Call&, const View& source, int x, int y, int channel) {
  const auto modulo = [](int value, int period) { return (value % period + period) % period; };
  return source.at(modulo(x, source.size.width), modulo(y, source.size.height), channel);
}

}  // namespace

TEST(Border, Constant) { expectDefinition(membersOf("vemiCopyConstBorder"), surroundedBy(constant)); }

TEST(Border, Replicated) { expectDefinition(membersOf("vemiCopyReplicateBorder"), surroundedBy(nearest)); }

TEST(Border, Wrapped) { expectDefinition(membersOf("vemiCopyWrapBorder"), surroundedBy(periodic)); }

TEST(Border, DestinationHoldsSourceAndBordersExactly) {
  const std::vector<Vemi8u> source(12, 7);
  std::vector<Vemi8u> destination(100, 0);
  const auto copy = [&](VemiSize size, int top, int left) {
    return vemiCopyReplicateBorder_8u_C1R(source.data(), 4, {4, 3}, destination.data(), 10, size, top, left);
  };
  EXPECT_EQ(copy({4, 3}, 0, 0), vemiOk);
  EXPECT_EQ(copy({6, 4}, 1, 2), vemiOk);
  EXPECT_EQ(copy({5, 4}, 1, 2), vemiErrSize);
  EXPECT_EQ(copy({6, 3}, 1, 2), vemiErrSize);
  EXPECT_EQ(std::count(destination.begin(), destination.end(), 7), 24);
}

// The sum of border and source is compared as it is, not as 32 bits hold it.
TEST(Border, SumBeyond32BitsDoesNotFit) {
  Vemi32s pixel = 1;
  const auto fits = [&](VemiSize source, VemiSize destination, int top, int left) {
    const VemiStatus inPlace = vemiCopyWrapBorder_32s_C1IR(&pixel, 4, source, destination, top, left);
    EXPECT_EQ(vemiCopyWrapBorder_32s_C1R(&pixel, 4, source, &pixel, 4, destination, top, left), inPlace);
    EXPECT_EQ(vemiCopyReplicateBorder_32s_C1R(&pixel, 4, source, &pixel, 4, destination, top, left), inPlace);
    EXPECT_EQ(vemiCopyConstBorder_32s_C1R(&pixel, 4, source, &pixel, 4, destination, top, left, 5), inPlace);
    return inPlace;
  };
  EXPECT_EQ(fits({INT_MAX, 1}, {INT_MAX, 1}, 0, 1), vemiErrSize);
  EXPECT_EQ(fits({1, INT_MAX}, {1, INT_MAX}, INT_MAX, 0), vemiErrSize);
  EXPECT_EQ(pixel, 1);
}
