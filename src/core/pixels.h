// Rows of pixels from one layout to another, with an operation on the vectors of all channels.
//
// A row says how its pixels stand in memory: interleaved, in planes, with chroma that pixels share. A block of pixels
// is loaded as one vector for each channel; op(d, vectors of the sources' channels...) gives the destination's, one
// vector or a tuple of several, and these are stored. A vector has a lane for each pixel of the block, or for each
// group of pixels that share a sample, in the order of the row and whatever the types of the elements are; d is the tag
// of a lane for each pixel, of the first source's type. Blocks begin at a multiple of their length, or where they end
// with the row: columns repeat their place in a vector with any period that divides both the width and the length of a
// vector.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/blocks.h"
#include "core/inlined.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "core/processor_quads.h"
#include "core/streaming.h"

namespace vemi {

// ---- Pixels in memory and in vectors ------------------------------------------------------------------------------

/// f(a vector of each channel...) of as many interleaved pixels as D has lanes. Vectors are handed on as arguments: the
/// compiler moves larger records of them through memory.
template <int channels, class D, class F>
HWY_INLINE auto loadChannels(D d, const hn::TFromD<D>* pixels, const F& f) {
  hn::Vec<D> c0, c1, c2, c3;
  if constexpr (channels == 1) {
    return f(hn::LoadU(d, pixels));
  } else if constexpr (channels == 2) {
    hn::LoadInterleaved2(d, pixels, c0, c1);
    return f(c0, c1);
  } else if constexpr (channels == 3) {
    hn::LoadInterleaved3(d, pixels, c0, c1, c2);
    return f(c0, c1, c2);
  } else {
    static_assert(channels == 4);
    if constexpr (std::is_same_v<hn::TFromD<D>, uint8_t>) {
      loadQuads(d, pixels, c0, c1, c2, c3);
    } else {
      hn::LoadInterleaved4(d, pixels, c0, c1, c2, c3);
    }
    return f(c0, c1, c2, c3);
  }
}

template <class D, class... V>
HWY_INLINE void storeChannels(D d, hn::TFromD<D>* pixels, V... channel) {
  if constexpr (sizeof...(V) == 1) hn::StoreU(channel..., d, pixels);
  if constexpr (sizeof...(V) == 2) hn::StoreInterleaved2(channel..., d, pixels);
  if constexpr (sizeof...(V) == 3) hn::StoreInterleaved3(channel..., d, pixels);
  if constexpr (sizeof...(V) == 4) hn::StoreInterleaved4(channel..., d, pixels);
}

/// storeChannels with whole vectors past the caches; `pixels` is aligned to a vector.
template <class D, class... V>
HWY_INLINE void streamChannels(D d, hn::TFromD<D>* pixels, V... channel) {
  static_assert(hn::MaxLanes(d) == hn::MaxLanes(Lanes<hn::TFromD<D>>()));
  constexpr ptrdiff_t N = hn::MaxLanes(d);
  alignas(laneAlignment) hn::TFromD<D> interleaved[sizeof...(V) * N];
  storeChannels(d, interleaved, channel...);
  unrolled<sizeof...(V)>([&](auto k) VEMI_INLINED { hn::Stream(hn::Load(d, interleaved + k * N), d, pixels + k * N); });
}

namespace detail {

/// f(elements [first, first + count) of a tuple...)
template <size_t first, size_t count, class Tuple, class F>
HWY_INLINE auto applySlice(const Tuple& tuple, const F& f) {
  return [&]<size_t... i>(std::index_sequence<i...>) VEMI_INLINED { return f(std::get<first + i>(tuple)...); }
  (std::make_index_sequence<count>());
}

/// The same of what an operation gives, which may be one vector.
template <size_t count, class... V, class F>
HWY_INLINE void applyResults(const std::tuple<V...>& results, const F& f) {
  static_assert(count == sizeof...(V));
  applySlice<0, count>(results, f);
}
template <size_t count, class V, class F>
HWY_INLINE void applyResults(V result, const F& f) {
  static_assert(count == 1);
  f(result);
}

}  // namespace detail

// ---- Rows ---------------------------------------------------------------------------------------------------------
//
// A row gives
//   Element                 the type of its elements;
//   channels                vectors that it loads or stores;
//   blockPixels             pixels whose samples fill a vector;
//   itemPixels              pixels that share a sample, or stand in memory as one;
//   strands<n>()            its runs in memory with items of n pixels, as a tuple;
//   from(x)                 the row from column x on;
//   load<n>(f)              gives f(vectors of its first n pixels...);
//   store<how, n>(v...)     takes them;
//   streamedVectors         how many blocks are streamed together, 0 where none can be.

/// Interleaved pixels of layout L, one for each `subsampling` pixels of the other rows. A source gives the channels
/// that L works on.
template <class T, class L, int subsampling = 1>
struct InterleavedRow {
  using Element = std::remove_const_t<T>;
  static constexpr int channels = std::is_const_v<T> ? L::channels : L::elements;
  static constexpr ptrdiff_t blockPixels = laneCount<Element> * subsampling;
  static constexpr int itemPixels = subsampling;
  static constexpr int streamedVectors = 1;

  T* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<T, L::elements * pixels / subsampling>{first});
  }
  InterleavedRow from(ptrdiff_t x) const { return {first + x / subsampling * L::elements}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(std::is_const_v<T>, "a source is not written");
    const hn::CappedTag<Element, pixels / subsampling> d;
    if constexpr (L::keepsAlpha) {
      return loadChannels<4>(d, first, [&](auto c0, auto c1, auto c2, auto) VEMI_INLINED { return f(c0, c1, c2); });
    } else {
      return loadChannels<L::elements>(d, first, f);
    }
  }
  template <Stores how, ptrdiff_t pixels, class... V>
  HWY_INLINE void store(V... v) const {
    const hn::CappedTag<Element, pixels / subsampling> d;
    if constexpr (how == Stores::streamed) {
      streamChannels(d, first, v...);
    } else {
      storeChannels(d, first, v...);
    }
  }
};

/// The first three channels of a destination whose fourth stays: it is read and written back with them.
template <class T>
struct KeptAlphaRow {
  using Element = T;
  static constexpr int channels = 3;
  static constexpr ptrdiff_t blockPixels = laneCount<T>;
  static constexpr int itemPixels = 1;
  static constexpr int streamedVectors = 0;

  T* first;
  const T* old;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<T, 4 * pixels>{first}, Strand<const T, 4 * pixels>{old});
  }
  KeptAlphaRow from(ptrdiff_t x) const { return {first + 4 * x, old + 4 * x}; }

  template <Stores, ptrdiff_t pixels, class V>
  HWY_INLINE void store(V v0, V v1, V v2) const {
    const hn::CappedTag<T, pixels> d;
    loadChannels<4>(d, old,
                    [&](auto, auto, auto, auto alpha) VEMI_INLINED { storeChannels(d, first, v0, v1, v2, alpha); });
  }
};

/// A plane for each channel.
template <class T, int planes, int subsampling = 1>
struct PlaneRow {
  using Element = std::remove_const_t<T>;
  static constexpr int channels = planes;
  static constexpr ptrdiff_t blockPixels = laneCount<Element> * subsampling;
  static constexpr int itemPixels = subsampling;
  static constexpr int streamedVectors = laneAlignment / sizeof(T) / laneCount<Element>;  // a line of each plane

  T* first[planes];

  template <int pixels>
  auto strands() const {
    return forEach([&](auto... n) VEMI_INLINED { return std::tuple(Strand<T, pixels / subsampling>{first[n]}...); });
  }
  PlaneRow from(ptrdiff_t x) const {
    return forEach([&](auto... n) VEMI_INLINED { return PlaneRow{{first[n] + x / subsampling...}}; });
  }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(std::is_const_v<T>, "a source is not written");
    const hn::CappedTag<Element, pixels / subsampling> d;
    return forEach([&](auto... n) VEMI_INLINED { return f(hn::LoadU(d, first[n])...); });
  }
  template <Stores how, ptrdiff_t pixels, class... V>
  HWY_INLINE void store(V... v) const {
    const hn::CappedTag<Element, pixels / subsampling> d;
    if constexpr (how == Stores::streamed) {
      static_assert(hn::MaxLanes(d) == laneCount<Element>);
      forEach([&](auto... n) VEMI_INLINED { (hn::Stream(v, d, first[n]), ...); });
    } else {
      forEach([&](auto... n) VEMI_INLINED { (hn::StoreU(v, d, first[n]), ...); });
    }
  }

 private:
  template <class F>
  HWY_INLINE static auto forEach(const F& f) {
    return [&]<int... n>(std::integer_sequence<int, n...>) VEMI_INLINED {
      return f(std::integral_constant<int, n>()...);
    }
    (std::make_integer_sequence<int, planes>());
  }
};

enum class Packed422 { lumaFirst, chromaFirst };

/// 4:2:2 bytes in one plane, an even number of pixels: each pair is Y C Y D, or C Y D Y. Its channels are Y and, with a
/// sample for two pixels, C and D.
template <class T, Packed422 order>
struct Packed422Row {
  using Element = std::remove_const_t<T>;
  static_assert(std::is_same_v<Element, uint8_t>);
  static constexpr int channels = 3;
  static constexpr ptrdiff_t blockPixels = laneCount<Element>;
  static constexpr int itemPixels = 2;
  static constexpr int streamedVectors = 1;
  static constexpr bool lumaFirst = order == Packed422::lumaFirst;

  T* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<T, 2 * pixels>{first});
  }
  Packed422Row from(ptrdiff_t x) const { return {first + 2 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    static_assert(std::is_const_v<T>, "a source is not written");
    const hn::CappedTag<uint8_t, pixels> d;
    return loadChannels<2>(d, first, [&](auto even, auto odd) VEMI_INLINED {
      const auto luma = lumaFirst ? even : odd, chroma = lumaFirst ? odd : even;
      return f(luma, hn::LowerHalf(hn::ConcatEven(d, chroma, chroma)), hn::LowerHalf(hn::ConcatOdd(d, chroma, chroma)));
    });
  }
  template <Stores how, ptrdiff_t pixels, class V, class H>
  HWY_INLINE void store(V luma, H c0, H c1) const {
    const hn::CappedTag<uint8_t, pixels> d;
    const hn::RepartitionToWide<decltype(d)> dPairs;
    const auto both = hn::Or(hn::PromoteTo(dPairs, c0), hn::ShiftLeft<8>(hn::PromoteTo(dPairs, c1)));
    const auto chroma = hn::BitCast(d, both);
    const InterleavedRow<T, C2> pairs = {first};
    pairs.template store<how, pixels>(lumaFirst ? luma : chroma, lumaFirst ? chroma : luma);
  }
};

/// Several rows as one, with the channels of all of them: luma beside chroma, or the two rows of a pair.
template <class... Row>
struct RowsBeside {
  using Element = typename std::tuple_element_t<0, std::tuple<Row...>>::Element;
  static constexpr int channels = (Row::channels + ...);
  static constexpr ptrdiff_t blockPixels = std::min({Row::blockPixels...});
  static constexpr int itemPixels = std::max({Row::itemPixels...});
  static constexpr int streamedVectors =
      ((Row::streamedVectors != 0 && Row::blockPixels == blockPixels) && ...) ? std::max({Row::streamedVectors...}) : 0;

  std::tuple<Row...> row;

  template <int pixels>
  auto strands() const {
    return forEach([](auto... r) VEMI_INLINED { return std::tuple_cat(r.template strands<pixels>()...); });
  }
  RowsBeside from(ptrdiff_t x) const {
    return forEach([=](auto... r) VEMI_INLINED { return RowsBeside{{r.from(x)...}}; });
  }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    return loadFrom<pixels, 0>(f);
  }
  template <Stores how, ptrdiff_t pixels, class... V>
  HWY_INLINE void store(V... v) const {
    storeFrom<how, pixels, 0, 0>(std::tuple(v...));
  }

 private:
  template <class F>
  HWY_INLINE auto forEach(const F& f) const {
    return detail::applySlice<0, sizeof...(Row)>(row, f);
  }
  template <ptrdiff_t pixels, size_t i, class F, class... V>
  HWY_INLINE auto loadFrom(const F& f, V... v) const {
    if constexpr (i == sizeof...(Row)) {
      return f(v...);
    } else {
      return std::get<i>(row).template load<pixels>(
          [&](auto... more) VEMI_INLINED { return loadFrom<pixels, i + 1>(f, v..., more...); });
    }
  }
  template <Stores how, ptrdiff_t pixels, size_t i, size_t channel, class All>
  HWY_INLINE void storeFrom(const All& all) const {
    if constexpr (i < sizeof...(Row)) {
      const auto& r = std::get<i>(row);
      constexpr size_t count = std::remove_reference_t<decltype(r)>::channels;
      detail::applySlice<channel, count>(all, [&](auto... v) VEMI_INLINED { r.template store<how, pixels>(v...); });
      storeFrom<how, pixels, i + 1, channel + count>(all);
    }
  }
};

/// A row of pixels of layout L. Where L keeps the alpha, a destination's stays.
template <class L, class T>
auto pixelRow(T* first) {
  if constexpr (L::keepsAlpha && !std::is_const_v<T>) {
    return KeptAlphaRow<T>{first, first};
  } else {
    return InterleavedRow<T, L>{first};
  }
}

/// A row of a plane for each channel, of which `subsampling` pixels share an element.
template <int subsampling = 1, class T, class... More>
auto planeRow(T* first, More*... more) {
  return PlaneRow<T, 1 + sizeof...(More), subsampling>{{first, more...}};
}

/// A row of interleaved pairs, chroma that `subsampling` pixels share.
template <int subsampling, class T>
auto pairRow(T* first) {
  return InterleavedRow<T, C2, subsampling>{first};
}

template <Packed422 order, class T>
auto packedRow(T* first) {
  return Packed422Row<T, order>{first};
}

template <class... Row>
auto rowsBeside(Row... row) {
  return RowsBeside<Row...>{{row...}};
}

// ---- From rows to a row -------------------------------------------------------------------------------------------

namespace detail {

/// The row whose runs in memory begin at pointers [first, ...) of a tuple.
template <class Row>
struct RowAt {
  static constexpr size_t strands =
      std::tuple_size_v<decltype(std::declval<Row>().template strands<Row::itemPixels>())>;

  template <size_t first, class Pointers>
  HWY_INLINE static Row from(const Pointers& pointers) {
    return applySlice<first, strands>(pointers, [](auto... p) VEMI_INLINED { return Row{p...}; });
  }
};

template <class... Row>
struct RowAt<RowsBeside<Row...>> {
  static constexpr size_t strands = (RowAt<Row>::strands + ...);

  template <size_t first, class Pointers>
  HWY_INLINE static RowsBeside<Row...> from(const Pointers& pointers) {
    return [&]<size_t... i>(std::index_sequence<i...>) VEMI_INLINED {
      return RowsBeside<Row...>{{RowAt<Row>::template from<first + strandsAhead(i)>(pointers)...}};
    }
    (std::make_index_sequence<sizeof...(Row)>());
  }

 private:
  static constexpr size_t strandsAhead(size_t row) {
    constexpr size_t count[] = {RowAt<Row>::strands...};
    size_t sum = 0;
    for (size_t i = 0; i < row; ++i) sum += count[i];
    return sum;
  }
};

/// What a block of a destination and its sources is, and what becomes of it.
template <class Op, class Dst, class... Src>
struct PixelBlocks {
  using Source = RowsBeside<Src...>;
  static constexpr int item = std::max(Dst::itemPixels, Source::itemPixels);
  static constexpr ptrdiff_t pixels = std::min(Dst::blockPixels, Source::blockPixels);
  static constexpr ptrdiff_t items = pixels / item;
  static constexpr int streamedVectors = Dst::blockPixels == pixels ? Dst::streamedVectors : 0;

  /// The block of the rows that begin at these pointers, or the k-th behind it.
  template <Stores how, class... Pointer>
  HWY_INLINE static void run(const Op& op, ptrdiff_t k, Pointer... pointer) {
    const std::tuple<Pointer...> pointers(pointer...);
    const Source src = RowAt<Source>::template from<RowAt<Dst>::strands>(pointers).from(k * pixels);
    const Dst dst = RowAt<Dst>::template from<0>(pointers).from(k * pixels);
    const hn::CappedTag<typename Source::Element, pixels> d;
    const auto results = src.template load<pixels>([&](auto... v) VEMI_INLINED { return op(d, v...); });
    applyResults<Dst::channels>(results, [&](auto... v) VEMI_INLINED { dst.template store<how, pixels>(v...); });
  }

  template <class F>
  HWY_INLINE static void withStrands(Dst dst, Source src, const F& f) {
    const auto strands = std::tuple_cat(dst.template strands<item>(), src.template strands<item>());
    applySlice<0, std::tuple_size_v<decltype(strands)>>(strands, f);
  }
};

template <class Blocks, class Op, class... S>
HWY_FLATTEN HWY_NOINLINE void mapItems(ptrdiff_t count, const Op& operation, S... strand) {
  if (count < Blocks::items) {
    const auto wholeBlock = [](const void* context, typename S::Pointer... block) {
      mapItems<Blocks>(Blocks::items, *static_cast<const Op*>(context), S{block}...);
    };
    return shortRow<Blocks::items>(count, wholeBlock, operation, strand...);
  }
  const Op op = operation;  // a local, which no store to the destination can change
  const auto kernel = [&](auto... pointer) VEMI_INLINED { Blocks::template run<Stores::cached>(op, 0, pointer...); };
  forWholeBlocks<Blocks::items>(count, kernel, strand...);
}

template <class Blocks, int period, class Op, class... S>
HWY_NOINLINE void streamItems(ptrdiff_t count, const Op& operation, S... strand) {
  const Op op = operation;
  const auto kernel = [&](auto... pointer) VEMI_INLINED {
    unrolled<Blocks::streamedVectors>([&](auto k)
                                          VEMI_INLINED { Blocks::template run<Stores::streamed>(op, k, pointer...); });
  };
  const auto plain = [&](ptrdiff_t i, ptrdiff_t n) { mapItems<Blocks>(n, operation, S{strand.at(i)}...); };
  forStreamedBlocks<Blocks::streamedVectors * Blocks::items, period>(count, plain, kernel, strand...);
}

}  // namespace detail

/// dst = op(channels of all sources), `width` pixels: whole items of all rows. A source may be the destination.
template <class Op, class Dst, class... Src>
HWY_INLINE void mapPixels(ptrdiff_t width, const Op& op, Dst dst, Src... src) {
  using Blocks = detail::PixelBlocks<Op, Dst, Src...>;
  Blocks::withStrands(dst, {{src...}}, [&](auto... strand) VEMI_INLINED {
    detail::mapItems<Blocks>(width / Blocks::item, op, strand...);
  });
}

/// Whether streamPixels takes these rows.
template <class Op, class Dst, class... Src>
inline constexpr bool canStreamPixels = detail::PixelBlocks<Op, Dst, Src...>::streamedVectors != 0;

/// mapPixels with stores past the caches, in blocks that begin at multiples of `period` pixels.
template <int period = 1, class Op, class Dst, class... Src>
HWY_INLINE void streamPixels(ptrdiff_t width, const Op& op, Dst dst, Src... src) {
  using Blocks = detail::PixelBlocks<Op, Dst, Src...>;
  static_assert(Blocks::streamedVectors != 0 && (period == 1 || period % Blocks::item == 0));
  constexpr int items = (period + Blocks::item - 1) / Blocks::item;
  Blocks::withStrands(dst, {{src...}}, [&](auto... strand) VEMI_INLINED {
    detail::streamItems<Blocks, items>(width / Blocks::item, op, strand...);
  });
}

// ---- Operations that are the same for all layouts -----------------------------------------------------------------

/// Each channel as it is: what changes is the layout alone.
struct IdenticalChannels {
  template <class D, class... V>
  HWY_INLINE auto operator()(D, V... v) const {
    return std::tuple(v...);
  }
};

/// One channel for `count` of them.
template <int count>
struct RepeatedChannel {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V v) const {
    return repeated(v, std::make_integer_sequence<int, count>());
  }

 private:
  template <class V, int... c>
  HWY_INLINE static auto repeated(V v, std::integer_sequence<int, c...>) {
    return std::tuple((void(c), v)...);
  }
};

/// An operation for each channel.
template <class Op, int channels>
struct PerChannel {
  Op of[channels];

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... v) const {
    return onEach(d, std::make_integer_sequence<int, channels>(), v...);
  }

 private:
  template <class D, int... c, class... V>
  HWY_INLINE auto onEach(D d, std::integer_sequence<int, c...>, V... v) const {
    return std::tuple(of[c](d, v)...);
  }
};

// ---- Moves that have a faster way, or a narrower one, than whole pixels -----------------------------------------

namespace detail {

/// Vectors of blocks of four words, of which the first three of each count, become one run: where the words of vector k
/// are for their places in the run, which repeat after a vector's length. The fourth words fill what is left.
struct PlacesInRun {
  static constexpr uint32_t words = laneCount<uint32_t>, counting = words / 4 * 3;
  alignas(laneAlignment) uint32_t index[4][words];

  constexpr PlacesInRun() : index() {
    for (uint32_t k = 0; k < 4; ++k) {
      for (uint32_t i = 0; i < words; ++i) {
        const uint32_t from = (i + k * words - k * counting) % words;
        index[k][i] = from < counting ? from / 3 * 4 + from % 3 : 3;
      }
    }
  }
};

inline constexpr PlacesInRun placesInRun;

}  // namespace detail

/// Three of four channels, bytes as they are: four vectors become three, each the end of one and the beginning of the
/// next.
HWY_NOINLINE inline void mapPixels(ptrdiff_t width, const IdenticalChannels&, InterleavedRow<uint8_t, C3> dst,
                                   InterleavedRow<const uint8_t, AC4> src) {
  const Lanes<uint8_t> d;
  const Lanes<uint32_t> dWords;
  constexpr ptrdiff_t N = laneCount<uint8_t>;
  alignas(16) static constexpr uint8_t frontOfBlock[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 128, 128, 128, 128};
  const auto blocks = hn::LoadDup128(d, frontOfBlock);
  const auto kernel = [&](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    const auto placed = [&](auto k) VEMI_INLINED {
      const auto inBlocks = hn::TableLookupBytesOr0(hn::LoadU(d, in + k * N), blocks);
      const auto places = hn::SetTableIndices(dWords, detail::placesInRun.index[k]);
      return hn::TableLookupLanes(hn::BitCast(dWords, inBlocks), places);
    };
    const auto v0 = placed(std::integral_constant<int, 0>()), v1 = placed(std::integral_constant<int, 1>());
    const auto v2 = placed(std::integral_constant<int, 2>()), v3 = placed(std::integral_constant<int, 3>());
    const auto end1 = hn::VecFromMask(dWords, hn::FirstN(dWords, N / 8)),
               end2 = hn::VecFromMask(dWords, hn::FirstN(dWords, N / 16));
    const auto store = [&](int place, auto v) VEMI_INLINED { hn::StoreU(hn::BitCast(d, v), d, out + place * N); };
    store(0, hn::Or(v0, hn::AndNot(end1, v1)));
    store(1, hn::Or(hn::And(end1, v1), hn::AndNot(end2, v2)));
    store(2, hn::Or(hn::And(end2, v2), v3));
  };
  forBlocks<N>(width, kernel, Strand<const uint8_t, 4>{src.first}, Strand<uint8_t, 3>{dst.first});
}

template <class Dst, class... Src>
void movePixels(ptrdiff_t width, Dst dst, Src... src) {
  mapPixels(width, IdenticalChannels(), dst, src...);
}

/// One channel of at least one interleaved pixel, from the element that `src` addresses on. The last pixel is left to a
/// move of its one element: the elements behind that may not belong to the image.
template <int elements, class T>
HWY_INLINE void extractChannelRow(ptrdiff_t width, const T* src, T* dst) {
  const auto first = [](auto, auto wanted, auto...) VEMI_INLINED { return wanted; };
  const ptrdiff_t last = width - 1;
  mapPixels(last, first, planeRow(dst), pixelRow<Interleaved<elements>>(src));
  std::memcpy(dst + last, src + last * elements, sizeof(T));
}

/// One element from each pixel to each pixel. Nothing but these elements is read or written, so that the other channels
/// may be in use by other threads.
template <int srcElements, int dstElements, class T>
void copyChannelRow(ptrdiff_t width, const T* src, T* dst) {
  ptrdiff_t x = 0;
  if constexpr (srcElements == 1 && sizeof(T) == 1) {  // one load for 16 pixels
    const hn::FixedTag<uint8_t, 16> d;
    for (; x + 16 <= width; x += 16) {
      const auto pixels = hn::LoadU(d, src + x);
      unrolled<16>([&](auto k) VEMI_INLINED { dst[(x + k) * dstElements] = hn::ExtractLane(pixels, k); });
    }
  }
  for (; x < width; ++x) std::memcpy(dst + x * dstElements, src + x * srcElements, sizeof(T));
}

}  // namespace vemi
