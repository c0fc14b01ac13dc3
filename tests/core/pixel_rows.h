// Rows of pixels in guarded memory: where each channel's samples stand in it, told by tables that know nothing of the
// rows' own loads and stores.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <span>
#include <vector>

#include "core/pixels.h"
#include "row_cases.h"

namespace vemi::test {

/// Sample i of a channel is element offset + i * stride of a run of memory, and serves `subsampling` pixels.
struct ChannelPlace {
  size_t run, offset, stride;
  ptrdiff_t subsampling;
};

// A layout gives its channels, the elements of each run for four pixels, and the row that begins at these runs.

template <class L>
struct InterleavedPixels {
  static constexpr size_t E = L::elements;
  static constexpr auto channels = [] {
    std::array<ChannelPlace, L::channels> all{};
    for (size_t c = 0; c < all.size(); ++c) all[c] = {0, c, E, 1};
    return all;
  }();
  static constexpr ptrdiff_t runs[] = {4 * L::elements};
  template <class T>
  static auto row(T* const* run) {
    return pixelRow<L>(run[0]);
  }
};

template <int planes>
struct PlanarPixels {
  static constexpr auto channels = [] {
    std::array<ChannelPlace, planes> all{};
    for (size_t c = 0; c < planes; ++c) all[c] = {c, 0, 1, 1};
    return all;
  }();
  static constexpr auto runs = [] {
    std::array<ptrdiff_t, planes> all{};
    all.fill(4);
    return all;
  }();
  template <class T>
  static auto row(T* const* run) {
    PlaneRow<T, planes> row;
    for (int c = 0; c < planes; ++c) row.first[c] = run[c];
    return row;
  }
};

/// Luma and chroma that `s` pixels share, in three planes.
template <int s>
struct LumaChromaPlanes {
  static constexpr ChannelPlace channels[] = {{0, 0, 1, 1}, {1, 0, 1, s}, {2, 0, 1, s}};
  static constexpr ptrdiff_t runs[] = {4, 4 / s, 4 / s};
  template <class T>
  static auto row(T* const* run) {
    return rowsBeside(planeRow(run[0]), planeRow<s>(run[1], run[2]));
  }
};

/// The same with chroma in pairs.
template <int s>
struct LumaChromaPairs {
  static constexpr ChannelPlace channels[] = {{0, 0, 1, 1}, {1, 0, 2, s}, {1, 1, 2, s}};
  static constexpr ptrdiff_t runs[] = {4, 8 / s};
  template <class T>
  static auto row(T* const* run) {
    return rowsBeside(planeRow(run[0]), pairRow<s>(run[1]));
  }
};

struct PackedLumaFirst {
  static constexpr ChannelPlace channels[] = {{0, 0, 2, 1}, {0, 1, 4, 2}, {0, 3, 4, 2}};
  static constexpr ptrdiff_t runs[] = {8};
  template <class T>
  static auto row(T* const* run) {
    return packedRow<Packed422::lumaFirst>(run[0]);
  }
};

struct PackedChromaFirst {
  static constexpr ChannelPlace channels[] = {{0, 1, 2, 1}, {0, 0, 4, 2}, {0, 2, 4, 2}};
  static constexpr ptrdiff_t runs[] = {8};
  template <class T>
  static auto row(T* const* run) {
    return packedRow<Packed422::chromaFirst>(run[0]);
  }
};

using Channels = std::span<const ChannelPlace>;

/// What the runs of a row hold.
template <class T>
using Runs = std::vector<std::vector<T>>;

template <class T>
T& sampleOf(Runs<T>& runs, ChannelPlace place, ptrdiff_t i) {
  return runs[place.run][place.offset + static_cast<size_t>(i) * place.stride];
}

/// The memory of a row, of random elements.
template <class T>
class RunsInMemory {
 public:
  RunsInMemory(ptrdiff_t width, std::span<const ptrdiff_t> elementsOfFour, Place place) {
    for (const ptrdiff_t elements : elementsOfFour) {
      run_.emplace_back(elements * width / 4, place);
      pointer_.push_back(run_.back().data());
    }
  }

  Runs<T> original() const {
    Runs<T> runs;
    for (const GuardedRow<T>& run : run_) runs.push_back(run.original());
    return runs;
  }
  bool holds(const Runs<T>& runs) const {
    bool all = true;
    for (size_t i = 0; i < run_.size(); ++i) all = all && run_[i].holds(runs[i]);
    return all;
  }
  bool untouched() const { return holds(original()); }

 protected:
  std::deque<GuardedRow<T>> run_;
  std::vector<T*> pointer_;
};

/// A row of random elements; `width` is a multiple of what its channels share.
template <class T, class Layout>
struct RowMemory : RunsInMemory<T> {
  RowMemory(ptrdiff_t width, Place place) : RunsInMemory<T>(width, Layout::runs, place) {}

  auto source() const {
    const std::vector<const T*> pointers(this->pointer_.begin(), this->pointer_.end());
    return Layout::row(pointers.data());
  }
  auto destination() const { return Layout::row(this->pointer_.data()); }
};

/// forRows for widths that are a multiple of `item`, and for rows of which no run begins a line but 24 bytes into one:
/// what is streamed then begins some blocks behind.
template <class F>
void forPixelRows(ptrdiff_t blockPixels, ptrdiff_t item, const F& f) {
  forRows(blockPixels / item, [&](ptrdiff_t items, Place place) { f(items * item, place); });
  for (ptrdiff_t width = 0; width <= 3 * blockPixels; width += item) f(width, Place{false, 24});
}

// Elements are bits here: unsigned numbers of each width.

/// Channel c of the result is ~b & a ^ (c + 1) of the channels a, c modulo their count, and b, the next one: it tells
/// all channels apart.
template <class T>
T mixed(T a, T b, size_t c) {
  return static_cast<T>((a & static_cast<T>(~b)) ^ (c + 1));
}

template <size_t results>
struct Mixed {
  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    const std::tuple<V...> all(v...);
    return [&]<size_t... c>(std::index_sequence<c...>) HWY_ATTR {
      constexpr size_t n = sizeof...(V);
      return std::tuple(hn::Xor(hn::AndNot(std::get<(c + 1) % n>(all), std::get<c % n>(all)),
                                hn::Set(d, static_cast<hn::TFromD<D>>(c + 1)))...);
    }
    (std::make_index_sequence<results>());
  }
};

template <class T>
Runs<T> mixedRow(ptrdiff_t width, Channels to, Runs<T> dst, Channels from, Runs<T> src) {
  const size_t n = from.size();
  for (size_t c = 0; c < to.size(); ++c) {
    for (ptrdiff_t x = 0; x < width; ++x) {
      sampleOf(dst, to[c], x) = mixed(sampleOf(src, from[c % n], x), sampleOf(src, from[(c + 1) % n], x), c);
    }
  }
  return dst;
}

template <class T, class DL, class SL>
void expectMixed() {
  constexpr Mixed<std::size(DL::channels)> op;
  forPixelRows(laneAlignment / sizeof(T), 1, [&](ptrdiff_t width, Place place) {
    const RowMemory<T, SL> src(width, place);
    const RowMemory<T, DL> dst(width, place), streamed(width, place);
    const auto isMixed = [&](const RunsInMemory<T>& memory) {
      return memory.holds(mixedRow(width, DL::channels, memory.original(), SL::channels, src.original()));
    };
    mapPixels(width, op, dst.destination(), src.source());
    ASSERT_TRUE(isMixed(dst) && src.untouched());
    if constexpr (canStreamPixels<decltype(op), decltype(dst.destination()), decltype(src.source())>) {
      streamPixels(width, op, streamed.destination(), src.source());
      ASSERT_TRUE(isMixed(streamed)) << "streamed";
    }
    if constexpr (std::is_same_v<DL, SL>) {
      mapPixels(width, op, src.destination(), src.source());
      ASSERT_TRUE(isMixed(src)) << "in place";
    }
  });
}

/// Every sample of the source, its low byte alone.
template <class To, class From>
Runs<To> movedRow(ptrdiff_t width, Channels to, Runs<To> dst, Channels from, Runs<From> src) {
  for (size_t c = 0; c < to.size(); ++c) {
    for (ptrdiff_t i = 0; i < width / to[c].subsampling; ++i) {
      sampleOf(dst, to[c], i) = static_cast<To>(sampleOf(src, from[c], i) & 255);
    }
  }
  return dst;
}

}  // namespace vemi::test
