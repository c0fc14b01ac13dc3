// Fetches in floats: of 32f, and of 16u, which are rounded at the end.

#include <cmath>

#include "core/lane_width.h"
#include "core/rounding.h"
#include "geometry/fetch_kernels.h"

namespace vemi::geometry {
namespace {

// ---- Polynomials --------------------------------------------------------------------------------------------------

/// Between two values, by how far behind the first one.
template <class V>
struct LinearAt {
  V first, second;

  HWY_INLINE explicit LinearAt(V rest) : first(hn::Sub(hn::Set(hn::DFromV<V>(), 1.0f), rest)), second(rest) {}
  HWY_INLINE V operator()(V p0, V p1) const { return hn::Add(hn::Mul(p0, first), hn::Mul(p1, second)); }
};

/// The polynomial through four values by their differences, by how far behind the first of them: with t that far behind
/// the second one, p0 + a d1 + b d2 + c d3, a = 1 + t, b = t a / 2, c = (t - 1) b / 3.
template <class V>
struct CubicAt {
  V a, b, c;

  HWY_INLINE explicit CubicAt(V rest) {
    const hn::DFromV<V> d;
    const V one = hn::Set(d, 1.0f), t = hn::Sub(rest, one);
    a = hn::Add(one, t);
    b = hn::Mul(hn::Mul(t, a), hn::Set(d, 0.5f));
    c = hn::Div(hn::Mul(hn::Sub(t, one), b), hn::Set(d, 3.0f));
  }
  HWY_INLINE V operator()(V p0, V p1, V p2, V p3) const {
    const V d1 = hn::Sub(p1, p0), d2 = hn::Sub(hn::Sub(p2, p1), d1);
    const V d3 = hn::Sub(hn::Add(hn::Sub(p1, hn::Add(p2, p2)), p3), d2);
    return hn::Add(hn::Add(hn::Add(p0, hn::Mul(a, d1)), hn::Mul(b, d2)), hn::Mul(c, d3));
  }
};

template <class V>
struct Linear {
  static constexpr int taps = 2;
  using At = LinearAt<V>;
};

template <class V>
struct Cubic {
  static constexpr int taps = 4;
  using At = CubicAt<V>;
};

template <int taps>
HWY_INLINE Tap firstOf(const float* at, float last, int pixels) {
  if constexpr (taps == 2) return firstOfTwo(at, last, pixels);
  if constexpr (taps == 4) return firstOfFour(at, last, pixels);
}

/// at(value(0), ..., value(taps - 1))
template <int taps, class At, class Value>
HWY_INLINE auto between(const At& at, const Value& value) {
  return [&]<int... k>(std::integer_sequence<int, k...>) HWY_ATTR {
    return at(value(std::integral_constant<int, k>())...);
  }
  (std::make_integer_sequence<int, taps>());
}

// ---- One channel: a lane for each pixel -----------------------------------------------------------------------------

template <class T, template <class> class Interpolation>
struct OneChannel {
  static constexpr ptrdiff_t items = laneCount<T>;
  static constexpr int taps = Interpolation<Floats>::taps;
  FetchSource source;

  HWY_INLINE void operator()(T* out, const float* x, const float* y) const {
    const Lanes<T> d;
    if constexpr (sizeof(T) == 4) {
      hn::StoreU(lanes(x, y), d, out);
    } else {
      const auto rounded = [&](auto k) HWY_ATTR {
        return nearestOf<T>(DIntegers(), lanes(x + k * placeCount, y + k * placeCount));
      };
      hn::StoreU(packEach<int32_t>(d, rounded), d, out);
    }
  }

 private:
  using At = typename Interpolation<Floats>::At;

  HWY_INLINE Floats lanes(const float* x, const float* y) const {
    const DFloats d;
    const DIntegers di;
    const Tap column = firstOf<taps>(x, source.image.right, source.size.width),
              row = firstOf<taps>(y, source.image.bottom, source.size.height);
    const auto byte = hn::Mul(column.first, hn::Set(di, static_cast<int>(sizeof(T))));
    constexpr int perWord = 4 / sizeof(T), wordCount = taps / perWord;
    Vectors<Integers, taps> word[wordCount];  // of each row
    unrolled<wordCount>(
        [&](auto k) HWY_ATTR { word[k] = source.pixels.words<4, taps>(hn::Add(byte, hn::Set(di, 4 * k)), row.first); });
    const auto value = [&](auto j, auto k) HWY_ATTR {
      const auto bits = word[k / perWord].v[j];
      if constexpr (sizeof(T) == 4) {
        return hn::BitCast(d, bits);
      } else if constexpr (k % 2 == 0) {
        return hn::ConvertTo(d, hn::And(bits, hn::Set(di, 0xffff)));
      } else {
        const Lanes<uint32_t> du;
        return hn::ConvertTo(d, hn::BitCast(di, hn::ShiftRight<16>(hn::BitCast(du, bits))));
      }
    };
    const At across(column.rest), down(row.rest);
    return between<taps>(
        down, [&](auto j) HWY_ATTR { return between<taps>(across, [&](auto k) HWY_ATTR { return value(j, k); }); });
  }
};

// ---- Three or four channels: lanes are the channels of one pixel ----------------------------------------------------

using DPixel = hn::FixedTag<float, 4>;
using Pixel = hn::Vec<DPixel>;

template <class T, class L, template <class> class Interpolation>
struct Channels {
  static constexpr ptrdiff_t items = placeCount;
  static constexpr int taps = Interpolation<Pixel>::taps;
  FetchSource source;

  HWY_INLINE void operator()(T* out, const float* x, const float* y) const {
    const DFloats d;
    const DIntegers di;
    const DPixel dPixel;
    const Tap column = firstOf<taps>(x, source.image.right, source.size.width),
              row = firstOf<taps>(y, source.image.bottom, source.size.height);
    alignas(laneAlignment) int32_t first[items], line[items];
    alignas(laneAlignment) float across[items], down[items];
    hn::Store(column.first, di, first);
    hn::Store(row.first, di, line);
    hn::Store(column.rest, d, across);
    hn::Store(row.rest, d, down);
    for (ptrdiff_t i = 0; i < items; ++i) {
      const At inRow(hn::Set(dPixel, across[i])), inColumn(hn::Set(dPixel, down[i]));
      store(between<taps>(inColumn,
                          [&](auto j) HWY_ATTR {
                            return between<taps>(inRow, [&](auto k) HWY_ATTR {
                              return load((ptrdiff_t{first[i]} + k) * pixelBytes<T, L>, ptrdiff_t{line[i]} + j);
                            });
                          }),
            out + i * L::elements);
    }
  }

 private:
  using At = typename Interpolation<Pixel>::At;

  HWY_INLINE Pixel load(ptrdiff_t byte, ptrdiff_t y) const {
    const hn::FixedTag<uint8_t, 4 * sizeof(T)> dBytes;
    const auto bytes = source.pixels.run<static_cast<int>(pixelBytes<T, L>)>(dBytes, byte, y);
    if constexpr (sizeof(T) == 4) {
      return hn::BitCast(DPixel(), bytes);
    } else {
      const hn::FixedTag<T, 4> dNarrow;
      return hn::ConvertTo(DPixel(), hn::PromoteTo(hn::FixedTag<int32_t, 4>(), hn::BitCast(dNarrow, bytes)));
    }
  }

  HWY_INLINE static void store(Pixel v, T* out) {
    T four[4];
    if constexpr (sizeof(T) == 4) {
      hn::StoreU(v, DPixel(), four);
    } else {
      const hn::FixedTag<T, 4> dNarrow;
      hn::StoreU(hn::DemoteTo(dNarrow, nearestOf<T>(hn::FixedTag<int32_t, 4>(), v)), dNarrow, four);
    }
    std::memcpy(out, four, L::channels * sizeof(T));
  }
};

template <class T, class L>
FetchRow<T> fetchChannels(int interpolation) {
  return fetchRowOf<T, L, Channels<T, L, Linear>, Channels<T, L, Cubic>>(interpolation);
}

float notAbove(double value) {
  const auto nearest = static_cast<float>(value);
  return nearest > value ? std::nextafter(nearest, -INFINITY) : nearest;
}

}  // namespace

FetchLimits FetchLimits::within(double left, double top, double right, double bottom) {
  return {-notAbove(-left), -notAbove(-top), notAbove(right), notAbove(bottom)};
}

template <>
FetchRow<Vemi16u> fetchRow<Vemi16u, C1>(int interpolation) {
  return fetchRowOf<Vemi16u, C1, OneChannel<Vemi16u, Linear>, OneChannel<Vemi16u, Cubic>>(interpolation);
}
template <>
FetchRow<Vemi16u> fetchRow<Vemi16u, C3>(int interpolation) {
  return fetchChannels<Vemi16u, C3>(interpolation);
}
template <>
FetchRow<Vemi16u> fetchRow<Vemi16u, C4>(int interpolation) {
  return fetchChannels<Vemi16u, C4>(interpolation);
}
template <>
FetchRow<Vemi16u> fetchRow<Vemi16u, AC4>(int interpolation) {
  return fetchChannels<Vemi16u, AC4>(interpolation);
}
template <>
FetchRow<Vemi32f> fetchRow<Vemi32f, C1>(int interpolation) {
  return fetchRowOf<Vemi32f, C1, OneChannel<Vemi32f, Linear>, OneChannel<Vemi32f, Cubic>>(interpolation);
}
template <>
FetchRow<Vemi32f> fetchRow<Vemi32f, C3>(int interpolation) {
  return fetchChannels<Vemi32f, C3>(interpolation);
}
template <>
FetchRow<Vemi32f> fetchRow<Vemi32f, C4>(int interpolation) {
  return fetchChannels<Vemi32f, C4>(interpolation);
}
template <>
FetchRow<Vemi32f> fetchRow<Vemi32f, AC4>(int interpolation) {
  return fetchChannels<Vemi32f, AC4>(interpolation);
}

}  // namespace vemi::geometry
