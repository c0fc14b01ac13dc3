// Words of 16 bits that hold a pixel: three channels of 4 to 6 bits each, the bits above them 0. From planes of bytes,
// whose upper bits are cut off, or whose levels are dithered.
#pragma once

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
  int16_t thresholds[4][4];
  uint16_t spacing;
};

inline constexpr Dither ditherOf4Bits = {
    {{0, 2312, 578, 2890}, {3468, 1156, 4046, 1734}, {867, 3179, 289, 2601}, {4335, 2023, 3757, 1445}}, 256 * 17};
inline constexpr Dither ditherOf5Bits = {
    {{0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}}, 2105};
/// Levels are half as far apart, thresholds half as high, rounded down.
inline constexpr Dither ditherOf6Bits = {
    {{0, 559, 139, 699}, {839, 279, 978, 419}, {209, 769, 69, 629}, {1048, 489, 908, 349}}, 1036};

template <int bits>
inline constexpr Dither ditherOf = bits == 4   ? ditherOf4Bits
                                   : bits == 5 ? ditherOf5Bits
                                               : ditherOf6Bits;

/// Dithered levels of row y. A vector begins with a column that is a multiple of four.
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
    constexpr const Dither& dither = ditherOf<bits>;
    const hn::Repartition<uint16_t, hn::DFromV<V>> d;
    const hn::RebindToSigned<decltype(d)> dSigned;
    const auto pairs = hn::BitCast(d, channel);
    const auto times256 = odd ? hn::And(pairs, hn::Set(d, 0xff00)) : hn::ShiftLeft<8>(pairs);
    const auto level = hn::MulHigh(times256, hn::Set(d, (1 << bits) - 1));
    const auto rest = hn::BitCast(dSigned, hn::Sub(times256, hn::Mul(level, hn::Set(d, dither.spacing))));
    const auto above = hn::VecFromMask(dSigned, hn::Gt(rest, thresholds<odd>(dSigned, dither.thresholds[y % 4])));
    return hn::ShiftLeft<position>(hn::Sub(level, hn::BitCast(d, above)));
  }

  /// Of columns 0 and 2, or 1 and 3, by turns.
  template <int odd, class D>
  HWY_INLINE static auto thresholds(D d, const int16_t (&row)[4]) {
    const hn::RepartitionToWide<D> dPairs;
    return hn::BitCast(d, hn::Set(dPairs, row[odd] | row[odd + 2] << 16));
  }
};

}  // namespace vemi::color
