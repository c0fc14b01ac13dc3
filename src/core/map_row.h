// Element-wise rows: destination = op(sources), with constants per channel where an operation has them.
//
// An operation is a function object on lanes, op(d, v...). The rows run an indexed one, op(d, k, v...), which is told
// the vector's place in its block: eachVector(op) ignores it, withConstants(op, ...) finds its constants by it. Of a
// source with elements of another type the operation is given their address instead of lanes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "core/blocks.h"
#include "core/lanes.h"
#include "core/layout.h"

namespace vemi {

template <class Op, int vectorsPerBlock>
struct EachVector {
  static constexpr int vectors = vectorsPerBlock;
  static constexpr int period = 1;  // elements after which the operation repeats
  Op op;

  template <class D, class K, class... V>
  HWY_INLINE auto operator()(D d, K, V... v) const {
    return op(d, v...);
  }
};

/// Two vectors to a block keep the stores busy.
template <int vectors = 2, class Op>
EachVector<Op, vectors> eachVector(Op op) {
  return {op};
}

/// The constants of a block's vectors stand behind the sources' lanes: op(d, v..., one vector of each set). Two vectors
/// hold a whole number of pixels of one, two or four elements, three vectors one of three.
template <int vectorsPerBlock, class T, int sets, class Op>
struct WithConstants {
  static constexpr int vectors = vectorsPerBlock;
  static constexpr int period = vectors == 3 ? 3 : 4;
  Op op;
  Vectors<hn::Vec<Lanes<T>>, vectors> constants[sets];

  template <class D, class K, class... V>
  HWY_INLINE auto operator()(D d, K k, V... v) const {
    return [&]<int... set>(std::integer_sequence<int, set...>) HWY_ATTR {
      return op(d, v..., constants[set].v[k % vectors]...);
    }
    (std::make_integer_sequence<int, sets>());
  }
};

namespace detail {

/// Byte indices that repeat a pixel of `pixelSize` bytes over the vectors of a block.
template <int pixelSize, ptrdiff_t bytes>
struct PixelPhase {
  alignas(laneAlignment) uint8_t index[bytes];

  constexpr PixelPhase() : index() {
    for (ptrdiff_t i = 0; i < bytes; ++i) index[i] = static_cast<uint8_t>(i % pixelSize);
  }
};

template <int pixelSize, ptrdiff_t bytes>
inline constexpr PixelPhase<pixelSize, bytes> pixelPhase;

}  // namespace detail

/// Vectors until pixels of this layout begin with a vector again.
template <class L>
inline constexpr int pixelVectors = L::elements == 3 ? 3 : 2;

/// The constants of a pixel's channels as lanes of a block that begins with a pixel: its element i meets constant
/// i modulo L::elements. `value` holds L::channels of them; an alpha that stays meets zero.
template <class L, class T>
auto channelConstants(const T* value) {
  constexpr int vectors = pixelVectors<L>;
  constexpr size_t pixelSize = L::elements * sizeof(T);
  Vectors<hn::Vec<Lanes<T>>, vectors> constants;
  if constexpr (!L::keepsAlpha && (pixelSize == 1 || pixelSize == 2 || pixelSize == 4 || pixelSize == 8)) {
    using Pixel = hwy::UnsignedFromSize<pixelSize>;
    Pixel pixel;
    std::memcpy(&pixel, value, pixelSize);
    const auto repeated = hn::BitCast(Lanes<T>(), hn::Set(Lanes<Pixel>(), pixel));
    unrolled<vectors>([&](auto k) { constants.v[k] = repeated; });
  } else if constexpr (pixelSize > 16) {  // complex elements: a pixel does not repeat within blocks of 16 bytes
    alignas(laneAlignment) T element[vectors * laneCount<T> + 4] = {};
    std::memcpy(element, value, L::channels * sizeof(T));
    for (ptrdiff_t i = L::elements; i < vectors * laneCount<T>; ++i) element[i] = element[i - L::elements];
    unrolled<vectors>([&](auto k) HWY_ATTR { constants.v[k] = hn::Load(Lanes<T>(), element + k * laneCount<T>); });
  } else {
    const hn::Repartition<uint8_t, Lanes<T>> dBytes;
    constexpr ptrdiff_t vectorBytes = laneCount<uint8_t>;
    const uint8_t* const index = detail::pixelPhase<pixelSize, vectors * vectorBytes>.index;
    alignas(16) T pixel[16 / sizeof(T)] = {};
    std::memcpy(pixel, value, L::channels * sizeof(T));
    const auto pixels = hn::LoadDup128(dBytes, reinterpret_cast<const uint8_t*>(pixel));
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto phase = hn::Load(dBytes, index + k * vectorBytes);
      constants.v[k] = hn::BitCast(Lanes<T>(), hn::TableLookupBytes(pixels, phase));
    });
  }
  return constants;
}

/// op on a source's lanes and the constants of its channels, of which there are one set or several.
template <class L, class Op, class T, class... More>
auto withConstants(Op op, const T* value, const More*... more) {
  static_assert((std::is_same_v<T, More> && ...));
  constexpr int sets = 1 + sizeof...(More);
  return WithConstants<pixelVectors<L>, T, sets, Op>{op, {channelConstants<L>(value), channelConstants<L>(more)...}};
}

/// The operation of a fill: nothing but the constants.
struct Constant {
  template <class D, class V>
  HWY_INLINE V operator()(D, V constant) const {
    return constant;
  }
};

template <class L, class T>
auto constantPixel(const T* value) {
  return withConstants<L>(Constant(), value);
}

/// The operation of a copy.
struct Identity {
  template <class D, class V>
  HWY_INLINE V operator()(D, V v) const {
    return v;
  }
};

/// Lanes of the first three of four channels, in a vector whose first lane is an element of this channel.
template <class D>
HWY_INLINE auto colourLanes(D d, int firstChannel = 0) {
  const hn::RebindToUnsigned<D> dBits;
  using Bits = hn::TFromD<decltype(dBits)>;
  const auto channel = hn::And(hn::Iota(dBits, static_cast<Bits>(firstChannel)), hn::Set(dBits, 3));
  return hn::RebindMask(d, hn::Ne(channel, hn::Set(dBits, 3)));
}

/// What becomes of the elements that an operation does not work on.
enum class Alpha { none, kept };

template <class L>
inline constexpr Alpha alphaOf = L::keepsAlpha ? Alpha::kept : Alpha::none;

/// What an operation is given of a source.
template <class D, class Src>
HWY_INLINE auto operandOf(D d, const Src* in) {
  if constexpr (std::is_same_v<hn::TFromD<D>, Src>) {
    return hn::LoadU(d, in);
  } else {
    return in;
  }
}

/// The results of a block, resultOf(k) for each of its vectors. To be stored when all are there: stores between loads
/// cost up to half the speed in memory beyond the second cache, where they make the lines that they write wait.
template <int vectors, class D, class ResultOf>
HWY_INLINE auto blockOf(D, const ResultOf& resultOf) {
  Vectors<hn::Vec<D>, vectors> block;
  unrolled<vectors>([&](auto k) HWY_ATTR { block.v[k] = resultOf(k); });
  return block;
}

template <int vectors, class D, class ResultOf>
HWY_INLINE void storeBlock(D d, hn::TFromD<D>* out, const ResultOf& resultOf) {
  const auto block = blockOf<vectors>(d, resultOf);
  unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(block.v[k], d, out + k * laneCount<hn::TFromD<D>>); });
}

/// A row of `count` elements. Layouts differ in the operation's constants alone, or in an alpha channel that stays.
template <Alpha alpha, class T, class IndexedOp, class... Src>
HWY_NOINLINE void mapElements(ptrdiff_t count, const IndexedOp& indexedOp, T* dst, const Src*... src) {
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int vectors = IndexedOp::vectors;
  constexpr ptrdiff_t items = vectors * N;
  if (count < items) {
    constexpr int period = alpha == Alpha::kept ? 4 : IndexedOp::period;
    const auto wholeBlock = [](const void* context, T* out, const Src*... in) {
      mapElements<alpha>(items, *static_cast<const IndexedOp*>(context), out, in...);
    };
    return shortRow<items, period>(count, wholeBlock, indexedOp, Strand<T>{dst}, Strand<const Src>{src}...);
  }
  const IndexedOp op = indexedOp;  // a local, which no store to the destination can change
  const Lanes<T> d;
  if constexpr (alpha == Alpha::kept) {
    const auto kernel = [&](T* out, const T* old, const Src*... in) HWY_ATTR {
      storeBlock<vectors>(d, out, [&](auto k) HWY_ATTR {
        const auto colour = colourLanes(d, k * N % 4);  // a vector may hold half a pixel of wide elements
        return hn::IfThenElse(colour, op(d, k, operandOf(d, in + k * N)...), hn::LoadU(d, old + k * N));
      });
    };
    forWholeBlocks<items>(count, kernel, Strand<T>{dst}, Strand<const T>{dst}, Strand<const Src>{src}...);
  } else {
    const auto kernel = [&](T* out, const Src*... in) HWY_ATTR {
      storeBlock<vectors>(d, out, [&](auto k) HWY_ATTR { return op(d, k, operandOf(d, in + k * N)...); });
    };
    forWholeBlocks<items>(count, kernel, Strand<T>{dst}, Strand<const Src>{src}...);
  }
}

/// destination = indexedOp(sources), `width` pixels of layout L. A source row may be the destination row.
template <class L, class T, class IndexedOp, class... Src>
void mapRow(ptrdiff_t width, const IndexedOp& indexedOp, T* dst, const Src*... src) {
  mapElements<alphaOf<L>>(width * L::elements, indexedOp, dst, src...);
}

}  // namespace vemi
