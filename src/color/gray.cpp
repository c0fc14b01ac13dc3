// vemiRGBToGray, vemiColorToGray: a weighted sum of three channels, by fixed weights or by the user's. Bytes in
// integers with 12 bits behind the point, by one arithmetic for the whole groups of eight columns and by another for
// what is left; 16-bit elements and floats in single precision, of 16s with two ways of leaving the range, in groups of
// four. Checks: null, size, step.

#include "color/float_lanes.h"
#include "color/matrices.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/inlined.h"
#include "core/lane_width.h"
#include "core/pixel_region.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

/// The lower bits of f(part), which are the integers of each part's 32 bits, back at their lanes.
template <class D, class F>
HWY_INLINE hn::Vec<D> lowBitsOfParts(D d, const F& f) {
  constexpr int bits = 8 * sizeof(hn::TFromD<D>);
  const hn::Repartition<uint32_t, D> dWords;
  auto all = hn::Zero(dWords);
  unrolled<32 / bits>([&](auto k) VEMI_INLINED {
    const auto low = hn::And(hn::BitCast(dWords, f(Part<k>())), hn::Set(dWords, (uint32_t{1} << bits) - 1));
    all = hn::Or(all, hn::ShiftLeft<k * bits>(low));
  });
  return hn::BitCast(d, all);
}

/// Blocks of 128 bits that stand `stride` elements apart.
template <class D, class T>
HWY_INLINE hn::Vec<D> loadBlocks(D d, const T* elements, ptrdiff_t stride) {
  constexpr ptrdiff_t blocks = hn::MaxLanes(d) * sizeof(T) / 16;
  if constexpr (blocks == 1) {
    return hn::LoadU(d, elements);
  } else {
    const hn::Half<D> dHalf;
    const auto upper = loadBlocks(dHalf, elements + blocks / 2 * stride, stride);
    return hn::Combine(d, upper, loadBlocks(dHalf, elements, stride));
  }
}

// ---- Bytes --------------------------------------------------------------------------------------------------------

/// The sum of (channel 2^8 w) >> 16, each product rounded down by itself and the sum saturated, >> 4. A weight is the
/// lower 16 bits of its integer.
struct GroupsOfBytes {
  uint16_t weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const hn::RepartitionToWide<D> dWords;
    const auto even = [&](V v) VEMI_INLINED { return hn::ShiftLeft<8>(hn::BitCast(dWords, v)); };
    const auto odd = [&](V v)
                         VEMI_INLINED { return hn::And(hn::BitCast(dWords, v), hn::Set(dWords, uint16_t{0xff00})); };
    const auto limited = [&](auto v) VEMI_INLINED { return hn::Min(v, hn::Set(dWords, uint16_t{255})); };
    const auto evens = limited(sum(even(r), even(g), even(b))), odds = limited(sum(odd(r), odd(g), odd(b)));
    return hn::BitCast(d, hn::Or(evens, hn::ShiftLeft<8>(odds)));
  }
  template <class D, class W>
  HWY_INLINE hn::Vec<D> operator()(D d, Widened<W> r, Widened<W> g, Widened<W> b) const {
    const hn::RebindToSigned<hn::DFromV<W>> dSigned;
    const auto lower = sum(r.lower, g.lower, b.lower), upper = sum(r.upper, g.upper, b.upper);
    return packHalves(d, hn::BitCast(dSigned, lower), hn::BitCast(dSigned, upper));
  }

 private:
  /// Of bytes times 2^8.
  template <class W>
  HWY_INLINE W sum(W r, W g, W b) const {
    const hn::DFromV<W> d;
    const auto product = [&](W v, uint16_t w) VEMI_INLINED { return hn::MulHigh(v, hn::Set(d, w)); };
    const W both = hn::SaturatedAdd(product(r, weight[0]), product(g, weight[1]));
    return hn::ShiftRight<4>(hn::SaturatedAdd(both, product(b, weight[2])));
  }
};

/// Lookups of eight pixels' bytes of one channel, as the upper bytes of words, in bytes 0 to 15 and 8 to 23.
struct ThreeToWords {
  alignas(16) uint8_t front[3][16], back[3][16];

  constexpr ThreeToWords() : front(), back() {
    constexpr uint8_t none = 0x80;
    for (int i = 0; i < 3 * 16; ++i) {
      const int channel = i / 16, byte = i % 16, place = 3 * (byte / 2) + channel;
      front[channel][byte] = byte % 2 == 0 || place >= 16 ? none : static_cast<uint8_t>(place);
      back[channel][byte] = byte % 2 == 0 || place < 16 ? none : static_cast<uint8_t>(place - 8);
    }
  }
};

constexpr ThreeToWords threeToWords;

/// Interleaved pixels as words of bytes times 2^8. Block b of the lower words has pixels 16 b to 16 b + 7, that of the
/// upper ones the next eight: packed within blocks, they are in order.
struct ThreeInWordsRow {
  using Element = uint8_t;
  [[maybe_unused]] static constexpr int channels = 3, itemPixels = 1, streamedVectors = 0;
  static constexpr ptrdiff_t blockPixels = laneCount<uint8_t>;

  const uint8_t* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<const uint8_t, 3 * pixels>{first});
  }
  ThreeInWordsRow from(ptrdiff_t x) const { return {first + 3 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    const Lanes<uint8_t> d;
    const Lanes<uint16_t> dWords;
    const auto block = [&](ptrdiff_t byte) VEMI_INLINED { return loadBlocks(d, first + byte, 48); };
    const auto lower0 = block(0), lower8 = block(8), upper0 = block(24), upper8 = block(32);
    const auto channel = [&](int c) VEMI_INLINED {
      const auto front = hn::LoadDup128(d, threeToWords.front[c]), back = hn::LoadDup128(d, threeToWords.back[c]);
      const auto words = [&](auto v0, auto v8) VEMI_INLINED {
        return hn::BitCast(dWords, hn::Or(hn::TableLookupBytesOr0(v0, front), hn::TableLookupBytesOr0(v8, back)));
      };
      return Widened<hn::Vec<decltype(dWords)>>{words(lower0, lower8), words(upper0, upper8)};
    };
    return f(channel(0), channel(1), channel(2));
  }
};

void mapPixels(ptrdiff_t width, const GroupsOfBytes& op, InterleavedRow<uint8_t, C1> dst,
               InterleavedRow<const uint8_t, C3> src) {
  vemi::mapPixels(width, op, dst, ThreeInWordsRow{src.first});
}

/// The lower byte of the sum >> 12.
struct RestOfBytes {
  int weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const hn::Repartition<int32_t, D> di;
    return lowBitsOfParts(d, [&](auto part) VEMI_INLINED {
      const auto product = [&](V v, int w) VEMI_INLINED { return hn::Mul(integersOf(part, v), hn::Set(di, w)); };
      return hn::ShiftRight<12>(hn::Add(hn::Add(product(r, weight[0]), product(g, weight[1])), product(b, weight[2])));
    });
  }
};

auto weightedBytes(const int (&weight)[3]) {
  GroupsOfBytes groups;
  RestOfBytes rest;
  for (int c = 0; c < 3; ++c) {
    groups.weight[c] = static_cast<uint16_t>(weight[c]);
    rest.weight[c] = weight[c];
  }
  return regimes<8>(groups, rest);
}

/// c 4096 + 0.5, truncated; what no integer holds is the lowest, as on the processors that the interface comes from.
int fixedPoint(float c) {
  const double value = static_cast<double>(c) * 4096 + 0.5;
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

// ---- Single precision -----------------------------------------------------------------------------------------------

struct Floats {
  float weight[3];

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    const auto product = [&](V v, float w) VEMI_INLINED { return hn::Mul(v, hn::Set(d, w)); };
    return hn::Add(hn::Add(product(r, weight[0]), product(g, weight[1])), product(b, weight[2]));
  }
};

/// The colours of pixels with an alpha, four of which are transposed within blocks.
struct FloatColoursRow {
  using Element = float;
  [[maybe_unused]] static constexpr int channels = 3, itemPixels = 1, streamedVectors = 0;
  static constexpr ptrdiff_t blockPixels = laneCount<float>;

  const float* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<const float, 4 * pixels>{first});
  }
  FloatColoursRow from(ptrdiff_t x) const { return {first + 4 * x}; }

  template <ptrdiff_t pixels, class F>
  HWY_INLINE auto load(const F& f) const {
    const Lanes<float> d;
    const Lanes<double> dPairs;
    const auto pixel = [&](ptrdiff_t n) VEMI_INLINED { return loadBlocks(d, first + 4 * n, 16); };
    const auto p0 = pixel(0), p1 = pixel(1), p2 = pixel(2), p3 = pixel(3);
    const auto redGreen0 = hn::BitCast(dPairs, hn::InterleaveLower(d, p0, p1));
    const auto redGreen2 = hn::BitCast(dPairs, hn::InterleaveLower(d, p2, p3));
    const auto blue0 = hn::BitCast(dPairs, hn::InterleaveUpper(d, p0, p1));
    const auto blue2 = hn::BitCast(dPairs, hn::InterleaveUpper(d, p2, p3));
    return f(hn::BitCast(d, hn::InterleaveLower(dPairs, redGreen0, redGreen2)),
             hn::BitCast(d, hn::InterleaveUpper(dPairs, redGreen0, redGreen2)),
             hn::BitCast(d, hn::InterleaveLower(dPairs, blue0, blue2)));
  }
};

void mapPixels(ptrdiff_t width, const Floats& op, InterleavedRow<float, C1> dst, InterleavedRow<const float, AC4> src) {
  vemi::mapPixels(width, op, dst, FloatColoursRow{src.first});
}

/// Of 16 bits: truncated, the lower 16 bits of the integer or, of 16s, the nearest one of the type. Signed elements are
/// those of 16u less 32768.
template <bool saturated>
struct Words {
  Floats floats;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V r, V g, V b) const {
    constexpr int lowest = std::numeric_limits<hn::TFromD<D>>::min();
    const hn::Repartition<float, D> df;
    const hn::Repartition<int32_t, D> di;
    const hn::RebindToUnsigned<D> du;
    const auto integers = [&](auto part) VEMI_INLINED {
      const auto of = [&](V v) VEMI_INLINED {
        return floatsOf(part, hn::Xor(hn::BitCast(du, v), hn::Set(du, static_cast<uint16_t>(lowest))));
      };
      auto grey = floats(df, of(r), of(g), of(b));
      if constexpr (lowest != 0) grey = hn::Add(grey, hn::Set(df, lowest));
      return truncated(di, grey);
    };
    if constexpr (saturated) {
      return joined(d, integers(Part<0>()), integers(Part<1>()));
    } else {
      return lowBitsOfParts(d, integers);
    }
  }
};

template <class T>
auto weighted(const float (&w)[3]) {
  const Floats floats = {{w[0], w[1], w[2]}};
  if constexpr (std::is_same_v<T, Vemi32f>) {
    return floats;
  } else if constexpr (std::is_signed_v<T>) {
    return regimes<4>(Words<true>{floats}, Words<false>{floats});
  } else {
    return Words<false>{floats};
  }
}

// ---- Regions --------------------------------------------------------------------------------------------------------

template <class L, class T, class Op>
VemiStatus mapToGray(Image<const T> src, Image<T> dst, VemiSize roiSize, const Op& op) {
  const auto map = [&] {
    mapPixelRegion(CallerRows(), roiSize, op, pixelsOf<C1>(dst), pixelsOf<L>(src));
    return vemiOk;
  };
  if constexpr (sizeof(T) == 2) return roundingToNearest(map);
  return map();
}

template <class T, class L>
VemiStatus rgbToGray(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if constexpr (sizeof(T) == 1) {
    return mapToGray<L>(src, dst, roiSize, weightedBytes(greyWeights8u));
  } else {
    return mapToGray<L>(src, dst, roiSize, weighted<T>(greyWeights));
  }
}

template <class T, class L>
VemiStatus colorToGray(Image<const T> src, Image<T> dst, VemiSize roiSize, const Vemi32f* coeffs) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, coeffs), checkSize(roiSize), checkStep(src, dst))) return bad;
  const float weights[3] = {coeffs[0], coeffs[1], coeffs[2]};
  if constexpr (sizeof(T) == 1) {
    const int fixed[3] = {fixedPoint(weights[0]), fixedPoint(weights[1]), fixedPoint(weights[2])};
    return mapToGray<L>(src, dst, roiSize, weightedBytes(fixed));
  } else {
    return mapToGray<L>(src, dst, roiSize, weighted<T>(weights));
  }
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define COEFFS ((const Vemi32f coeffs[3]), (coeffs))

VEMI_DEFINE(vemiRGBToGray_8u_C3C1R, VEMI_SRC_DST(Vemi8u), rgbToGray<Vemi8u, C3>)
VEMI_DEFINE(vemiRGBToGray_8u_AC4C1R, VEMI_SRC_DST(Vemi8u), rgbToGray<Vemi8u, AC4>)
VEMI_DEFINE(vemiRGBToGray_16u_C3C1R, VEMI_SRC_DST(Vemi16u), rgbToGray<Vemi16u, C3>)
VEMI_DEFINE(vemiRGBToGray_16u_AC4C1R, VEMI_SRC_DST(Vemi16u), rgbToGray<Vemi16u, AC4>)
VEMI_DEFINE(vemiRGBToGray_16s_C3C1R, VEMI_SRC_DST(Vemi16s), rgbToGray<Vemi16s, C3>)
VEMI_DEFINE(vemiRGBToGray_16s_AC4C1R, VEMI_SRC_DST(Vemi16s), rgbToGray<Vemi16s, AC4>)
VEMI_DEFINE(vemiRGBToGray_32f_C3C1R, VEMI_SRC_DST(Vemi32f), rgbToGray<Vemi32f, C3>)
VEMI_DEFINE(vemiRGBToGray_32f_AC4C1R, VEMI_SRC_DST(Vemi32f), rgbToGray<Vemi32f, AC4>)

VEMI_DEFINE(vemiColorToGray_8u_C3C1R, VEMI_SRC_DST(Vemi8u, COEFFS), colorToGray<Vemi8u, C3>)
VEMI_DEFINE(vemiColorToGray_8u_AC4C1R, VEMI_SRC_DST(Vemi8u, COEFFS), colorToGray<Vemi8u, AC4>)
VEMI_DEFINE(vemiColorToGray_16u_C3C1R, VEMI_SRC_DST(Vemi16u, COEFFS), colorToGray<Vemi16u, C3>)
VEMI_DEFINE(vemiColorToGray_16u_AC4C1R, VEMI_SRC_DST(Vemi16u, COEFFS), colorToGray<Vemi16u, AC4>)
VEMI_DEFINE(vemiColorToGray_16s_C3C1R, VEMI_SRC_DST(Vemi16s, COEFFS), colorToGray<Vemi16s, C3>)
VEMI_DEFINE(vemiColorToGray_16s_AC4C1R, VEMI_SRC_DST(Vemi16s, COEFFS), colorToGray<Vemi16s, AC4>)
VEMI_DEFINE(vemiColorToGray_32f_C3C1R, VEMI_SRC_DST(Vemi32f, COEFFS), colorToGray<Vemi32f, C3>)
VEMI_DEFINE(vemiColorToGray_32f_AC4C1R, VEMI_SRC_DST(Vemi32f, COEFFS), colorToGray<Vemi32f, AC4>)
