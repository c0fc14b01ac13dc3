// Regions of pixels between layouts: which rows are one long row, in place, in a team, streamed.

#include "core/pixel_region.h"

#include <gtest/gtest.h>
#include <omp.h>

#include <array>
#include <vector>

#include "support/guarded_row.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// An image of `channels` interleaved elements with `gap` bytes behind each row but the last.
struct Memory {
  VemiSize size;
  int channels, step;
  GuardedRow<uint8_t> bytes;

  Memory(VemiSize s, int n, int gap)
      : size(s), channels(n), step(n * s.width + gap), bytes(ptrdiff_t{step} * s.height - gap) {}
  Image<uint8_t> image() const { return {bytes.data(), step}; }
  Image<const uint8_t> source() const { return {bytes.data(), step}; }
  size_t at(int x, int y, int c) const {
    return static_cast<size_t>(y) * static_cast<size_t>(step) + static_cast<size_t>(x * channels + c);
  }
};

/// Channels shifted by one, so that a pixel's place and order show.
struct NextChannel {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V v0, V v1, V v2) const {
    return std::tuple(v1, v2, hn::Not(v0));
  }
};

uint8_t nextChannel(const std::vector<uint8_t>& src, const Memory& memory, int x, int y, int c) {
  const uint8_t v = src[memory.at(x, y, (c + 1) % 3)];
  return c == 2 ? static_cast<uint8_t>(~v) : v;
}

std::vector<uint8_t> shifted(const Memory& dst, const Memory& src) {
  std::vector<uint8_t> expected = dst.bytes.original();
  const std::vector<uint8_t> from = src.bytes.original();
  for (int y = 0; y < dst.size.height; ++y) {
    for (int x = 0; x < dst.size.width; ++x) {
      for (int c = 0; c < 3; ++c) expected[dst.at(x, y, c)] = nextChannel(from, src, x, y, c);
    }
  }
  return expected;
}

template <class DL, class SL>
void expectShifted(VemiSize size, int dstGap, int srcGap) {
  const Memory src(size, SL::elements, srcGap), dst(size, DL::elements, dstGap), ofTeam(size, DL::elements, dstGap);
  mapPixelRegion(CallerRows(), size, NextChannel(), pixelsOf<DL>(dst.image()), pixelsOf<SL>(src.source()));
  ASSERT_TRUE(dst.bytes.holds(shifted(dst, src)) && src.bytes.untouched()) << dstGap << " " << srcGap;
  mapPixelRegion(TeamRows{false}, size, NextChannel(), pixelsOf<DL>(ofTeam.image()), pixelsOf<SL>(src.source()));
  ASSERT_TRUE(ofTeam.bytes.holds(shifted(ofTeam, src))) << dstGap << " " << srcGap;
  if constexpr (std::is_same_v<DL, SL>) {
    mapPixelRegion(CallerRows(), size, NextChannel(), pixelsOf<DL>(src.image()), pixelsOf<SL>(src.source()));
    ASSERT_TRUE(src.bytes.holds(shifted(src, src))) << "in place";
  }
}

class PixelRegion : public ::testing::Test {
 protected:
  void SetUp() override { omp_set_num_threads(3); }
  void TearDown() override { omp_set_num_threads(threads_); }

 private:
  int threads_ = omp_get_max_threads();
};

TEST_F(PixelRegion, RowsWithAndWithoutGaps) {
  for (const int dstGap : {0, 1, 8}) {
    for (const int srcGap : {0, 5}) {
      expectShifted<C3, C3>({37, 5}, dstGap, srcGap);
      expectShifted<AC4, C3>({33, 4}, dstGap, srcGap);
      expectShifted<C3, AC4>({7, 9}, dstGap, srcGap);
      expectShifted<AC4, AC4>({1, 3}, dstGap, srcGap);
    }
  }
}

// More than the caches hold: rows that begin at any byte of a line, and one long row.
TEST_F(PixelRegion, LargeOnesAreStreamed) {
  expectShifted<C3, C3>({2003, 1501}, 0, 0);
  expectShifted<C3, C3>({2000, 1501}, 32, 1);
  expectShifted<AC4, C3>({2000, 1501}, 0, 0);
}

constexpr VemiSize planeSize = {19, 6};

TEST_F(PixelRegion, PlanesHaveOneStepOrOneEach) {
  const Memory src(planeSize, 3, 2);
  const auto from = src.bytes.original();
  for (const std::array<int, 3> gaps : {std::array{0, 0, 0}, std::array{4, 4, 4}, std::array{0, 3, 0}, {0, 0, 1}}) {
    const Memory plane[] = {{planeSize, 1, gaps[0]}, {planeSize, 1, gaps[1]}, {planeSize, 1, gaps[2]}};
    uint8_t* const first[] = {plane[0].bytes.data(), plane[1].bytes.data(), plane[2].bytes.data()};
    const uint8_t* const source[] = {first[0], first[1], first[2]};
    const int step[] = {plane[0].step, plane[1].step, plane[2].step};
    const auto expectPlanes = [&](const auto& planes, const auto& sources) {
      mapPixelRegion(CallerRows(), planeSize, NextChannel(), pixelsOf(planes), pixelsOf<C3>(src.source()));
      const Memory back(planeSize, 3, 0);
      std::vector<uint8_t> twice = back.bytes.original();
      for (int c = 0; c < 3; ++c) {
        std::vector<uint8_t> expected = plane[c].bytes.original();
        for (int y = 0; y < planeSize.height; ++y) {
          for (int x = 0; x < planeSize.width; ++x) {
            expected[plane[c].at(x, y, 0)] = nextChannel(from, src, x, y, c);
            const uint8_t next = nextChannel(from, src, x, y, (c + 1) % 3);
            twice[back.at(x, y, c)] = c == 2 ? static_cast<uint8_t>(~next) : next;
          }
        }
        ASSERT_TRUE(plane[c].bytes.holds(expected)) << c;
      }
      mapPixelRegion(CallerRows(), planeSize, NextChannel(), pixelsOf<C3>(back.image()), pixelsOf(sources));
      ASSERT_TRUE(back.bytes.holds(twice));
    };
    expectPlanes(SteppedPlanes<uint8_t, 3>{first, step}, SteppedPlanes<const uint8_t, 3>{source, step});
    if (gaps[0] == gaps[1] && gaps[1] == gaps[2]) {
      expectPlanes(Planes<uint8_t, 3>{first, step[0]}, Planes<const uint8_t, 3>{source, step[0]});
    }
  }
}

struct Inverse {
  template <class D, class... V>
  HWY_INLINE auto operator()(D, V... v) const {
    return std::tuple(hn::Not(v)...);
  }
};

// The columns of each row decide on its regimes, also where rows follow each other without a gap.
TEST_F(PixelRegion, RegimesBeginWithEachRow) {
  constexpr VemiSize size = {13, 7};
  const Memory src(size, 3, 0), dst(size, 3, 0), merged(size, 3, 0);
  const auto op = regimes<8>(NextChannel(), Inverse());
  const auto expected = [&](int blockColumns, int width) {
    std::vector<uint8_t> to = dst.bytes.original();
    const std::vector<uint8_t> from = src.bytes.original();
    for (int i = 0; i < size.width * size.height; ++i) {
      for (int c = 0; c < 3; ++c) {
        const bool inBlock = i % width < blockColumns;
        const size_t at = src.at(i, 0, c);
        to[at] = inBlock ? nextChannel(from, src, i, 0, c) : static_cast<uint8_t>(~from[at]);
      }
    }
    return to;
  };
  mapPixelRegion(CallerRows(), size, op, pixelsOf<C3>(dst.image()), pixelsOf<C3>(src.source()));
  ASSERT_TRUE(dst.bytes.holds(expected(8, 13)));
  mapPixelRows(CallerRows(), mergedExtent(size, true), op, pixelsOf<C3>(merged.image()), pixelsOf<C3>(src.source()));
  ASSERT_TRUE(merged.bytes.holds(expected(88, 91)));
}

struct Add {
  uint8_t value;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return hn::Add(v, hn::Set(d, value));
  }
};

TEST_F(PixelRegion, EachChannelHasItsOperation) {
  for (const int gap : {0, 3}) {
    constexpr VemiSize size = {41, 3};
    const Memory src(size, 4, gap), dst(size, 4, 0);
    std::vector<uint8_t> expected = dst.bytes.original();
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        for (int c = 0; c < 3; ++c) {
          expected[dst.at(x, y, c)] = static_cast<uint8_t>(src.bytes.original()[src.at(x, y, c)] + 10 * c + 1);
        }
      }
    }
    const PerChannel<Add, 3> op = {{{1}, {11}, {21}}};
    mapChannels<AC4>(size, op, dst.image(), src.source());
    ASSERT_TRUE(dst.bytes.holds(expected));
  }
}

}  // namespace
