// Words of 16 bits that hold a pixel: three channels of 4 to 6 bits each, the bits above them 0. From planes of bytes,
// whose upper bits are cut off, or whose levels are dithered.
#pragma once

#include <algorithm>
#include <cstdint>
#include <tuple>

#include "core/image.h"
#include "core/lane_width.h"
#include "core/pixels.h"

namespace vemi::color {

/// A row of words. Its channels are those of even pixels and those of odd ones.
struct WordRow {
  using Element = uint16_t;
  static constexpr int channels = 2;
  static constexpr ptrdiff_t blockPixels = 2 * laneCount<uint16_t>;
  static constexpr int itemPixels = 1;
  static constexpr int streamedVectors = 1;

  uint16_t* first;

  template <int pixels>
  auto strands() const {
    return std::tuple(Strand<uint16_t, pixels>{first});
  }
  WordRow from(ptrdiff_t x) const { return {first + x}; }

  template <Stores how, ptrdiff_t pixels, class V>
  HWY_INLINE void store(V even, V odd) const {
    const hn::CappedTag<uint16_t, pixels / 2> d;
    if constexpr (how == Stores::streamed) {
      streamChannels(d, first, even, odd);
    } else {
      storeChannels(d, first, even, odd);
    }
  }
};

/// How many bits each channel has, from the lowest ones up.
template <int low, int middle, int high>
struct WordFormat {
  static constexpr int bits[3] = {low, middle, high};
  static constexpr int position[3] = {0, low, low + middle};
};

/// The upper bits of each channel.
template <class Format>
struct UpperBits {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V low, V middle, V high) const {
    return std::tuple(words<0>(low, middle, high), words<8>(low, middle, high));
  }

 private:
  /// Of the bytes that begin at this bit of 16.
  template <int byte, class V>
  HWY_INLINE static auto words(V low, V middle, V high) {
    return hn::Or(hn::Or(field<byte, 0>(low), field<byte, 1>(middle)), field<byte, 2>(high));
  }

  template <int byte, int c, class V>
  HWY_INLINE static auto field(V channel) {
    constexpr int bits = Format::bits[c], position = Format::position[c], shift = position - (byte + 8 - bits);
    const hn::Repartition<uint16_t, hn::DFromV<V>> d;
    auto v = hn::BitCast(d, channel);
    if constexpr (shift > 0) v = hn::ShiftLeft<shift>(v);
    if constexpr (shift < 0) v = hn::ShiftRight<-shift>(v);
    return hn::And(v, hn::Set(d, ((1 << bits) - 1) << position));
  }
};

/// Ordered dither of 4 x 4 pixels. With n = 2^bits - 1, an element v has the level (v n) >> 8, or one more where
/// 256 v - spacing * level exceeds the threshold of its place.
struct Dither {
  uint16_t bits, spacing;
  uint16_t thresholds[4][4];

  constexpr int highest() const { return (1 << bits) - 1; }
  constexpr int level(int v, int threshold) const {
    const int least = (v * highest()) >> 8;
    return least + (256 * v - spacing * least > threshold ? 1 : 0);
  }
};

inline constexpr Dither ditherOf4Bits = {
    4, 256 * 17, {{0, 2312, 578, 2890}, {3468, 1156, 4046, 1734}, {867, 3179, 289, 2601}, {4335, 2023, 3757, 1445}}};
inline constexpr Dither ditherOf5Bits = {
    5, 2105, {{0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}}};
/// Levels are half as far apart, thresholds half as high, rounded down.
inline constexpr Dither ditherOf6Bits = {
    6, 1036, {{0, 559, 139, 699}, {839, 279, 978, 419}, {209, 769, 69, 629}, {1048, 489, 908, 349}}};

template <int bits>
inline constexpr Dither ditherOf = bits == 4   ? ditherOf4Bits
                                   : bits == 5 ? ditherOf5Bits
                                               : ditherOf6Bits;

/// Numbers of places as vectors want them: those of columns 0 and 2, or 1 and 3, in one word.
struct PlacePairs {
  uint32_t pair[4][2];

  constexpr void set(int y, int x, int value) { pair[y][x % 2] |= static_cast<uint32_t>(value) << x / 2 * 16; }
  template <class D>
  HWY_INLINE hn::Vec<D> lanes(D d, ptrdiff_t y, int odd) const {
    return hn::BitCast(d, hn::Set(hn::Repartition<uint32_t, D>(), pair[y][odd]));
  }
};

/// The levels of all places as lines: the upper bits of ((256 v factor) >> 16) + offset. For dithers of 4 and 5 bits
/// there are such lines through the levels of all v, and the compiler finds them; for one of 6 bits there are none.
struct DitherLines {
  bool exist = true;
  PlacePairs factors = {}, offsets = {};

  explicit constexpr DitherLines(const Dither& dither) {
    const int flat = dither.highest() << (16 - dither.bits), steep = flat * 256 / 255;
    for (int place = 0; place < 16; ++place) {
      const int y = place / 4, x = place % 4, threshold = dither.thresholds[y][x];
      bool found = false;
      for (const int factor : {steep, (flat + steep) / 2, flat}) {
        if (!found) found = take(dither, threshold, factor, y, x);
      }
      exist = exist && found;
    }
  }

 private:
  constexpr bool take(const Dither& dither, int threshold, int factor, int y, int x) {
    int least = 0, most = 65535 - (255 * factor >> 8);
    for (int v = 0; v < 256; ++v) {
      const int shift = 16 - dither.bits, level = dither.level(v, threshold), product = v * factor >> 8;
      least = std::max(least, (level << shift) - product);
      most = std::min(most, ((level + 1) << shift) - 1 - product);
    }
    if (least > most) return false;
    factors.set(y, x, factor);
    offsets.set(y, x, least);
    return true;
  }
};

static_assert(DitherLines(ditherOf4Bits).exist && DitherLines(ditherOf5Bits).exist);

constexpr PlacePairs thresholdsOf(const Dither& dither) {
  PlacePairs thresholds = {};
  for (int place = 0; place < 16; ++place) {
    thresholds.set(place / 4, place % 4, dither.thresholds[place / 4][place % 4]);
  }
  return thresholds;
}

/// Dithered levels of row y, counted from a multiple of four. A vector begins with a column that is one.
template <class Format>
struct DitheredLevels {
  ptrdiff_t y;

  template <class D, class V>
  HWY_INLINE auto operator()(D, V low, V middle, V high) const {
    return std::tuple(words<0>(low, middle, high), words<1>(low, middle, high));
  }

 private:
  template <int odd, class V>
  HWY_INLINE auto words(V low, V middle, V high) const {
    return hn::Or(hn::Or(field<odd, 0>(low), field<odd, 1>(middle)), field<odd, 2>(high));
  }

  template <int odd, int c, class V>
  HWY_INLINE auto field(V channel) const {
    constexpr int bits = Format::bits[c], position = Format::position[c];
    static constexpr DitherLines lines(ditherOf<bits>);
    const hn::Repartition<uint16_t, hn::DFromV<V>> d;
    const auto pairs = hn::BitCast(d, channel);
    const auto times256 = odd ? hn::And(pairs, hn::Set(d, 0xff00)) : hn::ShiftLeft<8>(pairs);
    if constexpr (lines.exist) {
      const auto product = hn::MulHigh(times256, lines.factors.lanes(d, y, odd));
      const auto line = hn::Add(product, lines.offsets.lanes(d, y, odd));
      if constexpr (position + bits == 16) return hn::And(line, hn::Set(d, 0xffff << position & 0xffff));
      return hn::ShiftLeft<position>(hn::ShiftRight<16 - bits>(line));
    } else {
      static constexpr PlacePairs thresholds = thresholdsOf(ditherOf<bits>);
      const hn::RebindToSigned<decltype(d)> dSigned;
      const auto level = hn::MulHigh(times256, hn::Set(d, (1 << bits) - 1));
      const auto rest = hn::Sub(times256, hn::Mul(level, hn::Set(d, ditherOf<bits>.spacing)));
      const auto above = hn::Gt(hn::BitCast(dSigned, rest), thresholds.lanes(dSigned, y, odd));
      return hn::ShiftLeft<position>(hn::Sub(level, hn::BitCast(d, hn::VecFromMask(dSigned, above))));
    }
  }
};

}  // namespace vemi::color
