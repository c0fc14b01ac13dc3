// Video frames from one layout to another, with and without filters.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "bands.h"
#include "bottom_up.h"
#include "support/check.h"
#include "support/families.h"

using namespace vemi::test;

namespace {

// ---- Where samples stand, told by names ---------------------------------------------------------------------------

/// One of the two sides of a call. Channels are 0 for luma, 1 for Cb, 2 for Cr.
struct Side {
  Call& call;
  std::string prefix;  // pSrc or pDst
  std::string word;    // YCbCr, YU and so on
  int across, down;    // pixels that share chroma

  bool has(const std::string& name) const { return call.function.indexOf(prefix + name) >= 0; }

  std::byte* sample(int channel, int x, int y) const {
    if (has("CbCr"))
      return channel == 0 ? call.array(prefix + "Y").at(x, y) : call.array(prefix + "CbCr").at(2 * x + channel - 1, y);
    const View view = call.array(prefix);
    if (call.image(prefix).layout.planar) {
      const bool crFirst = word == "YCrCb" || word == "YV";
      return view.at(x, y, channel == 0 ? 0 : crFirst ? 3 - channel : channel);
    }
    const std::string names = word == "CbYCr" || word == "UY" ? "UYVY" : word == "YCrCb" ? "YVYU" : "YUYV";
    const size_t firstLuma = names.find('Y');
    const size_t place = channel == 0 ? 2 * static_cast<size_t>(x) + firstLuma
                                      : 4 * static_cast<size_t>(x) + names.find(channel == 1 ? 'U' : 'V');
    return view.at(0, y) + place;
  }
};

/// The word and the digits that begin at `at`: YCbCr420.
Side sideOf(Call& call, const char* prefix, const std::string& format) {
  const size_t digits = format.find('4');
  const std::string sampling = format.substr(digits, 3);
  return {call, prefix, format.substr(0, digits), sampling == "411" ? 4 : 2, sampling == "420" ? 2 : 1};
}

struct Sides {
  Side source, destination;
  VemiSize size;  // what is worked on
};

/// vemiYCbCr422ToYCbCr420, vemiYUToUY420, vemiJoin420.
Sides sidesOf(Call& call) {
  std::string name = call.function.operation.substr(4);
  const bool isJoin = name.rfind("Join", 0) == 0, isSplit = name.rfind("Split", 0) == 0;
  if (isJoin || isSplit) name = "YU" + name.substr(name.find('4'), 3) + "ToYU" + name.substr(name.find('4'), 3);
  if (call.function.name.find("Split") != std::string::npos) name.replace(name.rfind("YU"), 2, "YCbCr");
  const size_t to = name.find("To");
  std::string from = name.substr(0, to);
  const std::string into = name.substr(to + 2);
  if (from.find('4') == std::string::npos) from += into.substr(into.find('4'), 3);
  Sides sides = {sideOf(call, "pSrc", from), sideOf(call, "pDst", into), {}};
  for (Side* side : {&sides.source, &sides.destination}) {
    if (!side->has("CbCr") && !call.image(side->prefix).layout.planar) side->down = 1;  // packed: a sample in each row
  }
  sides.size = call.array(sides.source.has("Y") ? "pSrcY" : "pSrc").size;
  return sides;
}

template <class Chroma>
void withLuma(const Sides& sides, const Chroma& chroma) {
  const auto& [source, destination, size] = sides;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) *destination.sample(0, x, y) = *source.sample(0, x, y);
  }
  for (int y = 0; y < size.height / destination.down; ++y) {
    for (int x = 0; x < size.width / destination.across; ++x) {
      for (const int channel : {1, 2}) *destination.sample(channel, x, y) = chroma(channel, x, y);
    }
  }
}

/// Where sources lie over each other, steps are too short for the functions that look at them.
bool hasShortStep(Call& call, int width) {
  if (matches(call.function.operation, "vemiSplit422")) return call.get<int>("srcStep") < 2 * width;
  return matches(call.function.operation, "vemiJoin422") && load<int>(call.array("srcStep").at(0, 0)) < width;
}

void moved(Call& call) {
  const Sides sides = sidesOf(call);
  const auto& [source, destination, size] = sides;
  if (hasShortStep(call, size.width)) {
    call.expectedStatus = vemiErrStride;
    return;
  }
  const bool rearranged = source.across != destination.across && source.down != destination.down;
  withLuma(sides, [&, &from = source, &to = destination](int channel, int x, int y) {
    if (rearranged && from.across == 4) return *from.sample(channel, x / 2, 2 * y + x % 2);
    if (rearranged) return *from.sample(channel, 2 * x + y % 2, y / 2);
    return *from.sample(channel, x * to.across / from.across, y * to.down / from.down);
  });
}

int valueOf(const std::byte* place) { return static_cast<int>(*place); }
std::byte byteOf(int value) { return static_cast<std::byte>(std::clamp(value, 0, 255)); }

void interpolated(Call& call) {
  const Sides sides = sidesOf(call);
  const int n = sides.size.height / 2;
  withLuma(sides, [&](int channel, int x, int y) {
    const auto c = [&](int row) { return valueOf(sides.source.sample(channel, x, std::clamp(row, 0, n - 1))); };
    const int k = y / 2;
    if (y % 2 == 0) return byteOf(c(k));
    if (k == n - 1) return byteOf((18 * c(k) - c(k - 1) - c(k) + 8) >> 4);
    return byteOf((9 * c(k) + 9 * c(k + 1) - c(k - 1) - c(k + 2) + 8) >> 4);
  });
}

/// By the table of layers. Rows count from the region's first one.
void withoutFlicker(Call& call) {
  const auto [source, destination, size] = sidesOf(call);
  const bool isJoin = call.function.name.find("Join") != std::string::npos;
  const int layer = call.get<int>("layer"), h = size.height;
  const bool isWhole = layer == 21 || layer == -1, isTop = isWhole || layer == 1, isBottom = isWhole || layer == 16;
  if (!isTop && !isBottom && layer != 4) return;
  const int first = isTop ? 0 : -2, end = isBottom ? h : h - 2;
  for (int y = first; y < end; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto luma = [&, &from = source](int row) { return valueOf(from.sample(0, x, row)); };
      const int above = isTop && y == 0 ? 3 * luma(0) - 2 * luma(0) : luma(y - 1);
      const int below = isBottom && y == h - 1 ? luma(y) : luma(y + 1);
      *destination.sample(0, x, y) = byteOf((above + 2 * luma(y) + below + 4) >> 2);
    }
  }
  for (int k = first / 2; k < end / 2; ++k) {
    for (int x = 0; x < size.width / 2; ++x) {
      for (const int channel : {1, 2}) {
        const auto c = [&, &from = source](int row) { return valueOf(from.sample(channel, x, row)); };
        if (!isJoin) {
          *destination.sample(channel, x, k) = byteOf(c(k));
          continue;
        }
        const bool isLast = isBottom && k == h / 2 - 1;
        int mean = 0;
        if (isWhole && h == 2) {
          mean = c(0);
        } else if (isTop && k == 0) {
          mean = (c(0) + c(1) + 2) >> 1;
        } else if (isLast) {
          mean = (c(k - 1) + c(k) + 2) >> 1;
        } else {
          mean = (c(k) + c(k + 1)) >> 1;
        }
        *destination.sample(channel, x, 2 * k) = *destination.sample(channel, x, 2 * k + 1) = byteOf(mean);
      }
    }
  }
}

std::vector<const Export*> videoMembers(const std::string& pattern) {
  std::vector<const Export*> members;
  for (const Export& function : exports()) {
    if (matches(function.name, pattern)) members.push_back(&function);
  }
  return members;
}

const char* const moves =
    "vemi((YCbCr|YCrCb|CbYCr)4..ToYC.C.4..|YUToUY4..|YVToYU420|YVToUY420|UYToYU422|YUToYV422|UYToYV422|YUToYU422|Join4."
    ".|"
    "Split4..)_8u_.*";
const char* const interpolations = "vemi.*422Filter_8u_.*";
const char* const flickerFilters = "vemi(Join|Split)420_Filter_8u_.*";

void expectBottomUp(const char* pattern, const Reference& reference) {
  auto members = videoMembers(pattern);
  std::erase_if(members, [](const Export* member) { return matches(member->operation, "vemi(Join|Split)422"); });
  expectBottomUp(members, reference);
}

using Bytes = std::vector<Vemi8u>;

}  // namespace

TEST(Video, EveryMove) {
  const auto members = videoMembers(moves);
  EXPECT_EQ(members.size(), 50u);
  expectDefinition(members, moved);
}

TEST(Video, EveryFilter) {
  expectDefinition(videoMembers(interpolations), interpolated);
  expectDefinition(videoMembers(flickerFilters), withoutFlicker);
}

TEST(Video, BottomUp) {
  expectBottomUp(moves, moved);
  expectBottomUp(interpolations, interpolated);
  expectBottomUp(flickerFilters, withoutFlicker);
}

// A frame made band by band is the frame that one call makes.
TEST(Video, BandsMakeAFrame) {
  constexpr int width = 36, height = 40;
  Bytes luma(width * height), pairs(width * height / 2), whole(2 * width * height), banded(whole);
  Random random(1);
  random.fill(reinterpret_cast<std::byte*>(luma.data()), luma.size());
  random.fill(reinterpret_cast<std::byte*>(pairs.data()), pairs.size());
  const auto join = [&](int first, int rows, Bytes& packed, int layer) {
    EXPECT_EQ(vemiJoin420_Filter_8u_P2C2R(luma.data() + first * width, width, pairs.data() + first / 2 * width, width,
                                          packed.data() + 2 * first * width, 2 * width, {width, rows}, layer),
              vemiOk);
  };
  join(0, height, whole, 21);
  join(0, 8, banded, 1);
  join(8, 2, banded, 4);
  join(10, 22, banded, 4);
  join(32, 8, banded, 16);
  EXPECT_TRUE(banded == whole);
}

TEST(Video, AsTheManualSays) {
  // The fifth column stays; rows below what is worked on, too.
  Bytes y(25, 1), chroma(15, 2), yOut(25, 9), cbOut(9, 9), crOut(9, 9);
  const Vemi8u* const src[] = {y.data(), chroma.data(), chroma.data()};
  Vemi8u* const dst[] = {yOut.data(), cbOut.data(), crOut.data()};
  const int srcSteps[] = {5, 3, 3}, dstSteps[] = {5, 3, 3};
  EXPECT_EQ(vemiYCbCr422ToYCbCr420_8u_P3R(src, srcSteps, dst, dstSteps, {5, 5}), vemiOk);
  EXPECT_EQ(std::count(yOut.begin(), yOut.end(), 1), 16);
  EXPECT_TRUE(yOut[4] == 9 && yOut[20] == 9);
  EXPECT_EQ(cbOut, (Bytes{2, 2, 9, 2, 2, 9, 9, 9, 9}));

  // A chroma edge between rows 3 and 4 of 8: overshoot is limited.
  Bytes edge(4 * 16, 255), dark(4 * 16);
  std::fill(edge.begin(), edge.begin() + 32, Vemi8u{0});
  const Vemi8u* const src420[] = {dark.data(), edge.data(), edge.data()};
  Bytes luma(4 * 16), cb(2 * 16), cr(2 * 16);
  Vemi8u* const dst422[] = {luma.data(), cb.data(), cr.data()};
  const int steps[] = {4, 8, 8}, outSteps[] = {4, 2, 2};
  EXPECT_EQ(vemiYCbCr420ToYCbCr422Filter_8u_P3R(src420, steps, dst422, outSteps, {4, 7}), vemiErrSize);
  EXPECT_EQ(vemiYCbCr420ToYCbCr422Filter_8u_P3R(src420, steps, dst422, outSteps, {4, 16}), vemiOk);
  Bytes expected(32, 255);
  std::fill(expected.begin(), expected.begin() + 14, Vemi8u{0});
  expected[14] = expected[15] = 128;
  EXPECT_EQ(cb, expected);
}

// Luma that two frames share stays; one that lies over the other moves byte by byte.
TEST(Video, PlanesThatOverlap) {
  Bytes frame(64 * 8), pairs(64 * 4), cb(32 * 4), cr(32 * 4);
  std::iota(frame.begin(), frame.end(), Vemi8u{0});
  Vemi8u* const same[] = {frame.data(), cb.data(), cr.data()};
  const int steps[] = {64, 32, 32};
  const Bytes original = frame;
  EXPECT_EQ(vemiYCbCr420ToYCbCr420_8u_P2P3R(frame.data(), 64, pairs.data(), 64, same, steps, {64, 8}), vemiOk);
  EXPECT_TRUE(frame == original);
  EXPECT_EQ(vemiYCbCr420ToYCbCr420_8u_P2P3R(frame.data() + 65, 64, pairs.data(), 64, same, steps, {62, 6}), vemiOk);
  for (size_t n = 0; n < frame.size(); ++n) {
    const bool isMoved = n % 64 < 62 && n / 64 < 6;
    ASSERT_EQ(frame[n], original[isMoved ? n + 65 : n]) << n;
  }

  // One byte ahead of itself, the other way up too: each byte that moves is the one that has just been written.
  for (const int step : {64, -64}) {
    Bytes smeared = original;
    Vemi8u* const first = smeared.data() + (step < 0 ? 5 * 64 : 0);
    Vemi8u* const ahead[] = {first + 1, cb.data(), cr.data()};
    const int aheadSteps[] = {step, 32, 32};
    EXPECT_EQ(vemiYCbCr420ToYCbCr420_8u_P2P3R(first, step, pairs.data(), 64, ahead, aheadSteps, {62, 6}), vemiOk);
    for (size_t n = 0; n < smeared.size(); ++n) {
      const bool isSmeared = n % 64 > 0 && n % 64 <= 62 && n / 64 < 6;
      ASSERT_EQ(smeared[n], original[isSmeared ? n / 64 * 64 : n]) << n << ", step " << step;
    }
  }
}

// Luma, chroma rows that are repeated, and chroma at another rate.
TEST(Video, PastTheCachesAsInBands) {
  const auto expect = [](const PlanesInMemory& src, const PlanesInMemory& dst, auto* move) {
    const Bytes frame = src.random();
    expectAsInBands(dst.bytes(), src.size.height, [&](Vemi8u* to, int y, int rows) {
      return move(src.from(frame.data(), y).data(), src.step, dst.from(to, y).data(), dst.step, {src.size.width, rows});
    });
  };
  constexpr VemiSize size = {4100, 1400};
  const PlanesInMemory planes422(size, 2, 1), planes420(size, 2, 2), planes411(size, 4, 1);
  expect(planes420, planes422, vemiYCbCr420ToYCbCr422_8u_P3R);
  expect(planes422, planes411, vemiYCbCr422ToYCbCr411_8u_P3R);
  expect(planes411, planes422, vemiYCbCr411ToYCrCb422_8u_P3R);
  const Bytes frame = planes422.random();
  constexpr int step = 2 * size.width + 9;
  expectAsInBands(static_cast<size_t>(step) * size.height, size.height, [&](Vemi8u* to, int y, int rows) {
    return vemiJoin422_8u_P3C2R(planes422.from(frame.data(), y).data(), planes422.step, to + ptrdiff_t{step} * y, step,
                                {size.width, rows});
  });
}
