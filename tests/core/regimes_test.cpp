// Rows under several arithmetics, by made-up ones that tell which columns they are given.

#include "core/regimes.h"

#include <omp.h>

#include <vector>

#include "core/lane_width.h"
#include "pixel_rows.h"

using namespace vemi;
using namespace vemi::test;

namespace {

/// The regime of a column: 0 in whole groups of the first size, 1 in those of the second size behind them, ...
int regimeOf(ptrdiff_t x, ptrdiff_t width, std::vector<ptrdiff_t> groups) {
  ptrdiff_t end = 0;
  for (size_t i = 0; i < groups.size(); ++i) {
    while (end + groups[i] <= width) end += groups[i];
    if (x < end) return static_cast<int>(i);
  }
  return -1;
}

TEST(Regimes, TakeWholeGroupsFromTheLeft) {
  for (ptrdiff_t width = 0; width < 40; ++width) {
    std::vector<int> regime(static_cast<size_t>(width), -1), expected;
    for (ptrdiff_t x = 0; x < width; ++x) expected.push_back(regimeOf(x, width, {8, 2, 1}));
    const auto note = [&](int which) {
      return [&, which](ptrdiff_t x, ptrdiff_t columns) {
        ASSERT_GT(columns, 0);
        for (ptrdiff_t i = x; i < x + columns; ++i) regime[static_cast<size_t>(i)] = which;
      };
    };
    forRegimes<8, 2, 1>(width, note(0), note(1), note(2));
    EXPECT_EQ(regime, expected) << width;
  }
}

/// Adds to each channel a place in a group of eight, and `offset`.
struct PlaceInGroup {
  uint8_t offset;

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const auto place = hn::Add(hn::And(hn::Iota(d, 0), hn::Set(d, 7)), hn::Set(d, offset));
    return std::tuple(hn::Add(v, place)...);
  }
};

struct Inverse {
  template <class D, class... V>
  HWY_INLINE auto operator()(D, V... v) const {
    return std::tuple(hn::Not(v)...);
  }
};

template <class DL, class SL>
void expectBothRegimes() {
  constexpr auto op = regimes<8>(PlaceInGroup{100}, Inverse());
  forPixelRows(laneAlignment, 1, [&](ptrdiff_t width, Place place) {
    const RowMemory<uint8_t, SL> src(width, place);
    const RowMemory<uint8_t, DL> dst(width, place), streamed(width, place);
    const auto expected = [&](Runs<uint8_t> to) {
      Runs<uint8_t> from = src.original();
      for (size_t c = 0; c < 3; ++c) {
        for (ptrdiff_t x = 0; x < width; ++x) {
          const uint8_t v = sampleOf(from, SL::channels[c], x);
          sampleOf(to, DL::channels[c], x) = static_cast<uint8_t>(x < width / 8 * 8 ? v + x % 8 + 100 : ~v);
        }
      }
      return to;
    };
    mapPixels(width, op, dst.destination(), src.source());
    ASSERT_TRUE(dst.holds(expected(dst.original())) && src.untouched());
    if constexpr (canStreamPixels<decltype(op), decltype(dst.destination()), decltype(src.source())>) {
      streamPixels(width, op, streamed.destination(), src.source());
      ASSERT_TRUE(streamed.holds(expected(streamed.original()))) << "streamed";
    }
    if constexpr (std::is_same_v<DL, SL>) {
      mapPixels(width, op, src.destination(), src.source());
      ASSERT_TRUE(src.holds(expected(src.original()))) << "in place";
    }
  });
}

TEST(Regimes, GroupsKeepTheirPlacesInVectors) {
  expectBothRegimes<InterleavedPixels<C3>, InterleavedPixels<C3>>();
  expectBothRegimes<InterleavedPixels<AC4>, PlanarPixels<3>>();
  expectBothRegimes<PlanarPixels<3>, InterleavedPixels<AC4>>();
}

// ---- Chroma that pixels share ----
//
// Inverse conversions give from (y, u, v) the channels y ^ u, y + v, y, with `mark` added. Forward ones give luma +
// mark and, as chroma of all pixels that share it, the sum of their elements, + mark, modulo 256.

/// Each lane of chroma for all pixels that share it.
template <int subsampling, class D, class H>
HWY_INLINE hn::Vec<D> forItsPixels(D d, H chroma) {
  using Group = hwy::UnsignedFromSize<subsampling>;
  const hn::Repartition<Group, D> dGroups;
  const auto repeat = hn::Set(dGroups, static_cast<Group>(0x01010101u));
  return hn::BitCast(d, hn::Mul(hn::PromoteTo(dGroups, chroma), repeat));
}

/// `rows` rows of luma, then u and v.
template <int subsampling, int rows>
struct ToPixels {
  uint8_t mark;

  template <class D, class V, class... More>
  HWY_INLINE auto operator()(D d, V y, More... more) const {
    const auto marked = hn::Set(d, mark);
    const std::tuple<V, More...> all(y, more...);
    const auto u = forItsPixels<subsampling>(d, std::get<rows>(all)),
               v = forItsPixels<subsampling>(d, std::get<rows + 1>(all));
    const auto pixels = [&](V luma) HWY_ATTR {
      const V w = hn::Add(luma, marked);
      return std::tuple(hn::Xor(w, u), hn::Add(w, v), w);
    };
    if constexpr (rows == 1) {
      return pixels(y);
    } else {
      return std::tuple_cat(pixels(y), pixels(std::get<1>(all)));
    }
  }
};

std::vector<uint8_t> pixelOf(uint8_t y, uint8_t u, uint8_t v, int mark) {
  const auto w = static_cast<uint8_t>(y + mark);
  return {static_cast<uint8_t>(w ^ u), static_cast<uint8_t>(w + v), w};
}

// 4:2:2 and 4:1:1 in one row: whole groups of eight, whole groups that share chroma, and what is left of one.
template <class SL, int s>
void expectRowsThatShareChroma() {
  forPixelRows(laneAlignment, 1, [&](ptrdiff_t width, Place place) {
    const RowMemory<uint8_t, SL> src((width + s - 1) / s * s, place);
    const RowMemory<uint8_t, InterleavedPixels<C3>> dst(width, place);
    Runs<uint8_t> from = src.original(), to = dst.original();
    for (ptrdiff_t x = 0; x < width; ++x) {
      const auto pixel = pixelOf(sampleOf(from, SL::channels[0], x), sampleOf(from, SL::channels[1], x / s),
                                 sampleOf(from, SL::channels[2], x / s), regimeOf(x, width, {8, s, 1}));
      for (size_t c = 0; c < 3; ++c) sampleOf(to, InterleavedPixels<C3>::channels[c], x) = pixel[c];
    }
    const auto in = src.source();
    const auto out = dst.destination();
    const auto groups = [&](uint8_t mark) {
      return [&, mark](ptrdiff_t x, ptrdiff_t n) { mapPixels(n, ToPixels<s, 1>{mark}, out.from(x), in.from(x)); };
    };
    const auto last = [&](ptrdiff_t x, ptrdiff_t n) {  // as if the row had the group's other columns
      const RowMemory<uint8_t, InterleavedPixels<C3>> whole(s, places[0]);
      mapPixels(s, ToPixels<s, 1>{2}, whole.destination(), in.from(x));
      movePixels(n, out.from(x), InterleavedRow<const uint8_t, C3>{whole.destination().first});
    };
    forRegimes<8, s, 1>(width, groups(0), groups(1), last);
    ASSERT_TRUE(dst.holds(to) && src.untouched());
  });
}

TEST(Regimes, OfRowsThatShareChroma) {
  expectRowsThatShareChroma<LumaChromaPlanes<2>, 2>();
  expectRowsThatShareChroma<PackedChromaFirst, 2>();
  expectRowsThatShareChroma<LumaChromaPlanes<4>, 4>();
  expectRowsThatShareChroma<LumaChromaPairs<4>, 4>();
}

/// Rows of bytes in one piece of guarded memory.
struct Plane {
  ptrdiff_t width, height;
  GuardedRow<uint8_t> elements;

  Plane(ptrdiff_t w, ptrdiff_t h) : width(w), height(h), elements(w * h) {}
  uint8_t* row(ptrdiff_t y) const { return elements.data() + y * width; }
  const uint8_t* source(ptrdiff_t y) const { return row(y); }
};

uint8_t& at(std::vector<uint8_t>& elements, const Plane& plane, ptrdiff_t x, ptrdiff_t y) {
  return elements[static_cast<size_t>(y * plane.width + x)];
}

// 4:2:0 to pixels: both rows of a pair at once in whole groups of eight and in whole pairs of columns; an odd last
// column and an odd last row apart.
template <class Rows>
void expectPairsOfRows(const Rows& rows, ptrdiff_t width, ptrdiff_t height) {
  const ptrdiff_t across = (width + 1) / 2, down = (height + 1) / 2;
  const Plane luma(width, height), u(across, down), v(across, down), pixels(3 * width, height);
  std::vector<uint8_t> y0 = luma.elements.original(), u0 = u.elements.original(), v0 = v.elements.original(),
                       expected = pixels.elements.original();
  for (ptrdiff_t y = 0; y < height; ++y) {
    for (ptrdiff_t x = 0; x < width; ++x) {
      const int mark = y == height / 2 * 2 ? 3 : regimeOf(x, width, {8, 2, 1});
      const auto pixel = pixelOf(at(y0, luma, x, y), at(u0, u, x / 2, y / 2), at(v0, v, x / 2, y / 2), mark);
      for (ptrdiff_t c = 0; c < 3; ++c) at(expected, pixels, 3 * x + c, y) = pixel[static_cast<size_t>(c)];
    }
  }
  const auto onePixel = [&](ptrdiff_t x, ptrdiff_t y, int mark) {
    const auto pixel = pixelOf(luma.row(y)[x], u.row(y / 2)[x / 2], v.row(y / 2)[x / 2], mark);
    std::copy(pixel.begin(), pixel.end(), pixels.row(y) + 3 * x);
  };
  const auto pair = [&](ptrdiff_t y, ptrdiff_t chroma) {
    const auto out = rowsBeside(pixelRow<C3>(pixels.row(y)), pixelRow<C3>(pixels.row(y + 1)));
    const auto in = rowsBeside(planeRow(luma.source(y)), planeRow(luma.source(y + 1)),
                               planeRow<2>(u.source(chroma), v.source(chroma)));
    const auto groups = [&](uint8_t mark) {
      return [&, mark](ptrdiff_t x, ptrdiff_t n) { mapPixels(n, ToPixels<2, 2>{mark}, out.from(x), in.from(x)); };
    };
    const auto last = [&](ptrdiff_t x, ptrdiff_t) {
      onePixel(x, y, 2);
      onePixel(x, y + 1, 2);
    };
    forRegimes<8, 2, 1>(width, groups(0), groups(1), last);
  };
  const auto lastRow = [&](ptrdiff_t y, ptrdiff_t chroma) {
    EXPECT_EQ(chroma, y / 2);
    for (ptrdiff_t x = 0; x < width; ++x) onePixel(x, y, 3);
  };
  forRowPairs(rows, height, pair, lastRow);
  ASSERT_TRUE(pixels.elements.holds(expected) && luma.elements.untouched()) << width << " x " << height;
}

TEST(Regimes, OfPairsOfRows) {
  const int threads = omp_get_max_threads();
  omp_set_num_threads(2);
  for (ptrdiff_t width = 1; width <= 2 * static_cast<ptrdiff_t>(laneAlignment) + 11; ++width) {
    for (const ptrdiff_t height : {1, 2, 5, 8}) {
      expectPairsOfRows(CallerRows(), width, height);
      if (width % 16 == 11) expectPairsOfRows(TeamRows{false}, width, height);
    }
  }
  omp_set_num_threads(threads);
}

/// Two rows of elements to two rows of luma and a row of chroma.
struct FromElements {
  uint8_t mark;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V top, V bottom) const {
    const auto marked = hn::Set(d, mark);
    const auto sums = widen(d, hn::Add(top, bottom));
    const hn::DFromV<decltype(sums.lower)> dSums;
    const auto sum = hn::And(hn::Add(hn::Add(sums.lower, sums.upper), hn::Set(dSums, mark)), hn::Set(dSums, 255));
    const auto bytes = hn::BitCast(d, sum);
    return std::tuple(hn::Add(top, marked), hn::Add(bottom, marked), hn::LowerHalf(hn::ConcatEven(d, bytes, bytes)));
  }
};

TEST(Regimes, GiveOneChromaSampleToFourPixels) {
  using Rows = PlanarPixels<2>;
  forPixelRows(laneAlignment, 2, [&](ptrdiff_t width, Place place) {
    const RowMemory<uint8_t, Rows> src(width, place);
    const GuardedRow<uint8_t> top(width, place), bottom(width, place), chroma(width / 2, place);
    std::vector<uint8_t> expectedTop, expectedBottom, expectedChroma;
    const Runs<uint8_t> in = src.original();
    for (size_t x = 0; x < static_cast<size_t>(width); ++x) {
      const int mark = regimeOf(static_cast<ptrdiff_t>(x), width, {8, 2});
      expectedTop.push_back(static_cast<uint8_t>(in[0][x] + mark));
      expectedBottom.push_back(static_cast<uint8_t>(in[1][x] + mark));
      if (x % 2 == 0) {
        expectedChroma.push_back(static_cast<uint8_t>(in[0][x] + in[0][x + 1] + in[1][x] + in[1][x + 1] + mark));
      }
    }
    const auto out = rowsBeside(planeRow(top.data(), bottom.data()), planeRow<2>(chroma.data()));
    const auto groups = [&](uint8_t mark) {
      return
          [&, mark](ptrdiff_t x, ptrdiff_t n) { mapPixels(n, FromElements{mark}, out.from(x), src.source().from(x)); };
    };
    forRegimes<8, 2>(width, groups(0), groups(1));
    ASSERT_TRUE(top.holds(expectedTop) && bottom.holds(expectedBottom) && chroma.holds(expectedChroma));
  });
}

}  // namespace
