// vemiSwapChannels: channels in another order. Elements move as bytes: a vector of 16 is a table of them.
// Checks: null, size, step, order.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "core/map_region.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// From each byte of a result to its source, for pixels that begin with the first byte. A lookup of `none` gives zero.
template <int elementBytes, int pixelElements>
class ByteOrder {
 public:
  static constexpr int pixelBytes = elementBytes * pixelElements;
  static constexpr uint8_t none = 0x80;

  /// The fourth channel, if there is one, stays.
  explicit ByteOrder(const int order[3]) {
    for (int byte = 0; byte < pixelBytes; ++byte) {
      const int channel = byte / elementBytes;
      source_[byte] = (channel < 3 ? order[channel] : channel) * elementBytes + byte % elementBytes;
    }
  }

  /// Bytes [first, end) of a result whose pixels begin with byte `begin`, of a vector whose pixels begin with byte
  /// `srcBegin`.
  auto lookup(int first, int end, int begin, int srcBegin) const {
    const hn::FixedTag<uint8_t, 16> d;
    alignas(16) uint8_t index[16];
    for (int i = 0; i < 16; ++i) {
      const int byte = i - begin + pixelBytes;  // of a pixel that begins ahead of the vector too
      const int place = byte - byte % pixelBytes - pixelBytes + source_[byte % pixelBytes] + srcBegin;
      index[i] = i >= first && i < end ? static_cast<uint8_t>(place) : none;
    }
    return hn::Load(d, index);
  }

 private:
  int source_[pixelBytes];
};

/// Four channels: pixels fill a vector.
struct SwappedInVector {
  hn::Vec<Lanes<uint8_t>> index;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V pixels) const {
    const Lanes<uint8_t> dBytes;
    return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(dBytes, pixels), index));
  }
};

/// Three channels: the pixels that fit in 16 bytes are stored together, each store over the empty end of the one
/// before. The last of a block ends with it instead, and takes the bytes ahead of its first pixel from its neighbour.
template <int elementBytes>
class SwappedRow {
  using Order = ByteOrder<elementBytes, 3>;
  static constexpr int pixels = 16 / Order::pixelBytes, bytes = pixels * Order::pixelBytes, rest = 16 - bytes;
  static constexpr int vectors = 8, last = vectors - 1, lastByte = vectors * bytes - 16;

 public:
  explicit SwappedRow(const int order[3]) {
    const Order bytesOf(order);
    const hn::FixedTag<uint8_t, 16> d;
    hn::Store(bytesOf.lookup(0, bytes, 0, 0), d, index_);
    hn::Store(bytesOf.lookup(rest, 16, rest, rest), d, lastIndex_);
    hn::Store(bytesOf.lookup(0, rest, rest, bytes), d, restIndex_);
  }

  void operator()(ptrdiff_t width, const uint8_t* src, uint8_t* dst) const {
    const hn::FixedTag<uint8_t, 16> d;
    const auto index = hn::Load(d, index_), lastIndex = hn::Load(d, lastIndex_), restIndex = hn::Load(d, restIndex_);
    const auto kernel = [&](const uint8_t* in, uint8_t* out) HWY_ATTR {
      Vectors<hn::Vec<decltype(d)>, vectors> block;
      unrolled<last>([&](auto k) HWY_ATTR { block.v[k] = hn::LoadU(d, in + k * bytes); });
      const auto ownBytes = hn::TableLookupBytesOr0(hn::LoadU(d, in + lastByte), lastIndex);
      block.v[last] = hn::Or(ownBytes, hn::TableLookupBytesOr0(block.v[last - 1], restIndex));
      unrolled<last>([&](auto k)
                         HWY_ATTR { hn::StoreU(hn::TableLookupBytesOr0(block.v[k], index), d, out + k * bytes); });
      hn::StoreU(block.v[last], d, out + lastByte);
    };
    forBlocks<vectors * pixels>(width, kernel, Strand<const uint8_t, Order::pixelBytes>{src},
                                Strand<uint8_t, Order::pixelBytes>{dst});
  }

 private:
  alignas(16) uint8_t index_[16], lastIndex_[16], restIndex_[16];
};

/// Three channels of 32 bits: a block is three vectors, and what each of them becomes lies in two at most, which begin
/// up to a pixel's length apart from it.
template <>
class SwappedRow<4> {
  using D = Lanes<int32_t>;
  static constexpr ptrdiff_t N = laneCount<int32_t>, reach = 2;
  static constexpr ptrdiff_t early[3] = {0, N - reach, 2 * N - reach}, late[3] = {reach, N + reach, 2 * N};

 public:
  explicit SwappedRow(const int order[3]) {
    for (ptrdiff_t i = 0; i < 3 * N; ++i) {
      const ptrdiff_t vector = i / N, source = i - i % 3 + order[i % 3];
      const bool isLate = source >= early[vector] + N;
      index_[i] = static_cast<int32_t>(source - (isLate ? late : early)[vector]);
      isLate_[i] = isLate ? -1 : 0;
    }
  }

  void operator()(ptrdiff_t width, const uint8_t* src, uint8_t* dst) const {
    const D d;
    const auto index = [&](int k) HWY_ATTR { return hn::SetTableIndices(d, index_ + k * N); };
    const auto isLate = [&](int k) HWY_ATTR { return hn::MaskFromVec(hn::Load(d, isLate_ + k * N)); };
    const decltype(index(0)) indices[3] = {index(0), index(1), index(2)};
    const decltype(isLate(0)) areLate[3] = {isLate(0), isLate(1), isLate(2)};
    const auto kernel = [&](const uint8_t* in, uint8_t* out) HWY_ATTR {
      Vectors<hn::Vec<D>, 3> block;
      unrolled<3>([&](auto k) HWY_ATTR {
        const auto swapped = [&](ptrdiff_t first) HWY_ATTR {
          return hn::TableLookupLanes(hn::LoadU(d, reinterpret_cast<const int32_t*>(in) + first), indices[k]);
        };
        block.v[k] = hn::IfThenElse(areLate[k], swapped(late[k]), swapped(early[k]));
      });
      unrolled<3>([&](auto k) HWY_ATTR { hn::StoreU(block.v[k], d, reinterpret_cast<int32_t*>(out) + k * N); });
    };
    forBlocks<N>(width, kernel, Strand<const uint8_t, 12>{src}, Strand<uint8_t, 12>{dst});
  }

 private:
  alignas(laneAlignment) int32_t index_[3 * N], isLate_[3 * N];
};

VemiStatus checkOrder(const int order[3]) {
  const bool good = std::all_of(order, order + 3, [](int channel) { return channel >= 0 && channel <= 2; });
  return good ? vemiOk : vemiErrChannelOrder;
}

template <class T, class L>
VemiStatus swapChannels(Image<const T> src, Image<T> dst, VemiSize roiSize, const int* order) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, order), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (const VemiStatus bad = checkOrder(order)) return bad;
  if constexpr (L::elements == 4) {
    const Lanes<uint8_t> d;
    const auto index = ByteOrder<sizeof(T), 4>(order).lookup(0, 16, 0, 0);
    alignas(16) uint8_t bytes[16];
    hn::Store(index, hn::FixedTag<uint8_t, 16>(), bytes);
    mapRegion<L>(CallerRows(), roiSize, eachVector(SwappedInVector{hn::LoadDup128(d, bytes)}), dst, src);
  } else {
    const SwappedRow<sizeof(T)> swap(order);
    const Extent extent = mergedExtent(roiSize, isContiguous<L>(src, roiSize) && isContiguous<L>(dst, roiSize));
    CallerRows().run(extent.height, [&](ptrdiff_t y) {
      swap(extent.width, reinterpret_cast<const uint8_t*>(src.row(y)), reinterpret_cast<uint8_t*>(dst.row(y)));
    });
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define ORDER ((const int dstOrder[3]), (dstOrder))

VEMI_DEFINE(vemiSwapChannels_8u_C3R, VEMI_SRC_DST(Vemi8u, ORDER), swapChannels<Vemi8u, C3>)
VEMI_DEFINE(vemiSwapChannels_8u_AC4R, VEMI_SRC_DST(Vemi8u, ORDER), swapChannels<Vemi8u, AC4>)
VEMI_DEFINE(vemiSwapChannels_8u_C3IR, VEMI_SRCDST(Vemi8u, ORDER), swapChannels<Vemi8u, C3>)
VEMI_DEFINE(vemiSwapChannels_16u_C3R, VEMI_SRC_DST(Vemi16u, ORDER), swapChannels<Vemi16u, C3>)
VEMI_DEFINE(vemiSwapChannels_16u_AC4R, VEMI_SRC_DST(Vemi16u, ORDER), swapChannels<Vemi16u, AC4>)
VEMI_DEFINE(vemiSwapChannels_32s_C3R, VEMI_SRC_DST(Vemi32s, ORDER), swapChannels<Vemi32s, C3>)
VEMI_DEFINE(vemiSwapChannels_32s_AC4R, VEMI_SRC_DST(Vemi32s, ORDER), swapChannels<Vemi32s, AC4>)
VEMI_DEFINE(vemiSwapChannels_32f_C3R, VEMI_SRC_DST(Vemi32f, ORDER), swapChannels<Vemi32f, C3>)
VEMI_DEFINE(vemiSwapChannels_32f_AC4R, VEMI_SRC_DST(Vemi32f, ORDER), swapChannels<Vemi32f, AC4>)
