// vemiLShiftC and vemiRShiftC.

#include <gtest/gtest.h>
#include <limits.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <vector>

#include "support/check.h"

using namespace vemi::test;

namespace {

/// One bit at a time. Halving rounds down, which keeps the sign; what a doubling moves out of the element is cut off.
int64_t halved(int64_t value, Vemi32u count) {
  for (Vemi32u n = 0; n < std::min(count, 64u); ++n) value = (value - (value % 2 != 0)) / 2;
  return value;
}

int64_t doubled(int64_t value, Vemi32u count) {
  for (Vemi32u n = 0; n < std::min(count, 64u); ++n) value = value * 2 % (int64_t{1} << 32);
  return value;
}

using Shift = int64_t (*)(int64_t value, Vemi32u count);

void shifted(Call& call, Shift shift) {
  const View source = call.source(), result = call.destination();
  call.forEachElement([&](int x, int y, int channel) {
    const int64_t value = loadInteger(source.element, source.at(x, y, channel));
    const int64_t exact = shift(value, load<Vemi32u>(call.constant(channel)));
    std::memcpy(result.at(x, y, channel), &exact, static_cast<size_t>(bytesOf(result.element)));
  });
}

/// All elements of 8 or 16 bits, or 65536 of 32.
template <class T>
std::vector<T> allElements() {
  std::vector<T> all(sizeof(T) == 1 ? 256 : 65536);
  for (size_t n = 0; n < all.size(); ++n) all[n] = static_cast<T>(sizeof(T) < 4 ? n : n * 0x9e3779b1u);
  return all;
}

const std::vector<Vemi32u>& counts() {
  static const std::vector<Vemi32u> all = [] {
    std::vector<Vemi32u> list(42);
    std::iota(list.begin(), list.end(), 0);
    for (const int negative : {-1, -7, INT_MIN}) list.push_back(static_cast<Vemi32u>(negative));
    return list;
  }();
  return all;
}

template <class T>
using ShiftOne = VemiStatus(const T*, int, Vemi32u, T*, int, VemiSize);
template <class T>
using ShiftFour = VemiStatus(const T*, int, const Vemi32u*, T*, int, VemiSize);

/// Each element by each count: alike in all channels, and beside another count in each channel.
template <class T>
void expectAllElements(ShiftOne<T>* one, ShiftFour<T>* four, Shift shift) {
  const std::vector<T> source = allElements<T>();
  const int width = static_cast<int>(source.size()), step = static_cast<int>(source.size() * sizeof(T));
  std::vector<T> result(source.size()), expected(source.size());
  const auto expectShifted = [&](const Vemi32u* count, auto call, const char* how) {
    for (size_t n = 0; n < source.size(); ++n) {
      const int64_t exact = shift(source[n], count[n % 4]);
      std::memcpy(&expected[n], &exact, sizeof(T));
    }
    EXPECT_EQ(call(), vemiOk);
    EXPECT_TRUE(result == expected) << sizeof(T) << " bytes, " << how << ", count " << count[0];
  };
  for (size_t n = 0; n < counts().size(); ++n) {
    const Vemi32u count = counts()[n];
    const Vemi32u alike[4] = {count, count, count, count};
    const auto runOne = [&] { return one(source.data(), step, count, result.data(), step, {width, 1}); };
    const auto runFour = [&](const Vemi32u* each) {
      return [&, each] { return four(source.data(), step, each, result.data(), step, {width / 4, 1}); };
    };
    expectShifted(alike, runOne, "one channel");
    expectShifted(alike, runFour(alike), "four channels alike");
    for (const size_t place : {0, 1, 2, 3}) {  // so that each channel meets each count
      Vemi32u each[4] = {count, count + 1, count + 3, count + 8};
      std::rotate(each, each + place, each + 4);
      expectShifted(each, runFour(each), "four channels");
    }
  }
}

}  // namespace

TEST(Shift, EveryMember) {
  expectDefinition(membersOf("vemiLShiftC"), [](Call& call) { shifted(call, doubled); });
  expectDefinition(membersOf("vemiRShiftC"), [](Call& call) { shifted(call, halved); });
}

TEST(Shift, AllElementsByAllCounts) {
  expectAllElements<Vemi8u>(vemiLShiftC_8u_C1R, vemiLShiftC_8u_C4R, doubled);
  expectAllElements<Vemi16u>(vemiLShiftC_16u_C1R, vemiLShiftC_16u_C4R, doubled);
  expectAllElements<Vemi32s>(vemiLShiftC_32s_C1R, vemiLShiftC_32s_C4R, doubled);
  expectAllElements<Vemi8u>(vemiRShiftC_8u_C1R, vemiRShiftC_8u_C4R, halved);
  expectAllElements<Vemi8s>(vemiRShiftC_8s_C1R, vemiRShiftC_8s_C4R, halved);
  expectAllElements<Vemi16u>(vemiRShiftC_16u_C1R, vemiRShiftC_16u_C4R, halved);
  expectAllElements<Vemi16s>(vemiRShiftC_16s_C1R, vemiRShiftC_16s_C4R, halved);
  expectAllElements<Vemi32s>(vemiRShiftC_32s_C1R, vemiRShiftC_32s_C4R, halved);
}

// Channels of which some are copied, some cleared and some shifted, in all layouts and in place.
TEST(Shift, EachChannelByItself) {
  for (const char* const operation : {"vemiLShiftC", "vemiRShiftC"}) {
    const Shift shift = std::string(operation) == "vemiLShiftC" ? doubled : halved;
    for (const Export* member : membersOf(operation, ".*_(C3|C4|AC4).*")) {
      for (const Vemi32u first : {0u, 3u, 40u}) {
        for (const Vemi32u second : {0u, 3u, 40u}) {
          for (const Vemi32u third : {0u, 3u, 40u}) {
            const Vemi32u each[4] = {first, second, third, first};
            Call call(*member, {{37, 3}});
            for (int channel = 0; channel < member->source.channels; ++channel) {
              store(call.constant("value", channel), each[channel]);
            }
            call.restore();
            shifted(call, shift);
            EXPECT_EQ(call.invoke(), vemiOk);
            EXPECT_EQ(call.difference(), "") << first << ", " << second << ", " << third;
          }
        }
      }
    }
  }
}
