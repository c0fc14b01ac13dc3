// vemiFilterWiener: each pixel moves from the mean of its window towards itself, the more, the farther the window's
// variance exceeds the noise.
//
// Sums over a window are formed in two stages, without sums that move on from row to row: of the columns from top to
// bottom, then of these from left to right. So no result depends on where a band begins, and a NaN stays within reach.
// Sums of pixels and of their squares are exact integers of 32 bits where these hold the squares of bytes, and doubles
// elsewhere; from there on all is in single precision.
//
// Checks: null, size, mask size, anchor, step, noise.

#include <algorithm>
#include <cstring>
#include <limits>

#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/numbers.h"
#include "core/parallel.h"
#include "core/rounding.h"
#include "core/windows.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

/// The square of the pixels' range, and what a power in its unit is times to be relative to it.
template <class T>
struct Scale;
template <>
struct Scale<Vemi8u> {
  static constexpr float full = 65025, relative = 1.53787e-5f;
};
template <>
struct Scale<Vemi16s> {
  static constexpr float full = 4294836224.0f, relative = 2.3283775e-10f;
};
template <>
struct Scale<Vemi32f> {
  static constexpr float full = 1, relative = 1;
};

template <class T>
struct WienerCall {
  Image<const T> src;
  Image<T> dst;
  VemiSize roiSize;
  Window window;
  void* buffer;

  float reciprocal() const { return static_cast<float>(1.0 / (static_cast<double>(window.width) * window.height)); }
};

// ---- The buffer ---------------------------------------------------------------------------------------------------

/// Of a thread, in bytes: five rows of floats. The mask is counted for one channel alone, by contract.
Vemi64s sliceBytes(VemiSize roiSize, VemiSize maskSize, int channels) {
  const Vemi64s width = roiSize.width;
  const Vemi64s elements = (channels == 1 ? width + maskSize.width + 6 : width * channels + 6) & ~Vemi64s{3};
  return elements * Vemi64s{sizeof(float)} * 5;
}

Vemi64s bufferBytes(VemiSize roiSize, VemiSize maskSize, int channels) {
  return limitedSum(limitedProduct(sliceBytes(roiSize, maskSize, channels), omp_get_max_threads()), 15);
}

// ---- Sums ---------------------------------------------------------------------------------------------------------

template <class D, class T>
HWY_INLINE auto loadSummand(D d, const T* in) {
  if constexpr (std::is_same_v<T, float>) {
    return hn::PromoteTo(d, hn::LoadU(hn::Rebind<float, D>(), in));
  } else {
    return loadExtended(d, in);
  }
}

/// Integers are bytes.
template <class D, class V>
HWY_INLINE V squareOf(D d, V v) {
  if constexpr (std::is_same_v<hn::TFromD<D>, double>) {
    return hn::Mul(v, v);
  } else {
    const auto halves = hn::BitCast(hn::Repartition<int16_t, D>(), v);
    return hn::BitCast(d, pairsOfProducts(halves, halves));
  }
}

template <class Sum, class T>
HWY_NOINLINE void sumColumns(ptrdiff_t count, const T* const* rows, int height, Sum* sums, Sum* squares) {
  const Lanes<Sum> d;
  constexpr int vectors = 2;
  constexpr ptrdiff_t N = laneCount<Sum>, items = vectors * N;
  const auto block = [=](Sum* toSums, Sum* toSquares, ptrdiff_t i) HWY_ATTR {
    Vectors<hn::Vec<decltype(d)>, vectors> sum, square;
    unrolled<vectors>([&](auto k) HWY_ATTR { sum.v[k] = square.v[k] = hn::Zero(d); });
    for (int j = 0; j < height; ++j) {
      unrolled<vectors>([&](auto k) HWY_ATTR {
        const auto v = loadSummand(d, rows[j] + i + k * N);
        sum.v[k] = hn::Add(sum.v[k], v);
        square.v[k] = hn::Add(square.v[k], squareOf(d, v));
      });
    }
    unrolled<vectors>([&](auto k) HWY_ATTR {
      hn::StoreU(sum.v[k], d, toSums + k * N);
      hn::StoreU(square.v[k], d, toSquares + k * N);
    });
  };
  forWholeBlocks<items>(std::max(count, items), block, Strand<Sum>{sums}, Strand<Sum>{squares}, Places());
}

/// Sums along rows of the columns' sums, as floats: lanes of DF from place i on.
template <class L, class Sum>
struct RowSums {
  const Sum *sums, *squares;
  int width;

  template <class DF>
  HWY_INLINE hn::Vec<DF> of(DF df, const Sum* columns) const {
    if constexpr (std::is_same_v<Sum, double>) {
      const hn::Half<DF> half;
      const auto upper = hn::DemoteTo(half, total(Lanes<double>(), columns + laneCount<double>));
      return hn::Combine(df, upper, hn::DemoteTo(half, total(Lanes<double>(), columns)));
    } else {
      return hn::ConvertTo(df, total(Lanes<Sum>(), columns));
    }
  }

 private:
  template <class D>
  HWY_INLINE hn::Vec<D> total(D d, const Sum* columns) const {
    auto sum = hn::Zero(d);
    for (int c = 0; c < width; ++c) sum = hn::Add(sum, hn::LoadU(d, columns + c * ptrdiff_t{L::elements}));
    return sum;
  }
};

// ---- Of floats ----------------------------------------------------------------------------------------------------

/// Deviations from the mean, squared and summed.
template <class V>
HWY_INLINE V deviationOf(V sum, V squares, V r) {
  return hn::Sub(squares, hn::Mul(hn::Mul(sum, sum), r));
}

/// A window with no more than the noise is its mean, also where there is neither.
template <class V>
HWY_INLINE V resultOf(V sum, V squares, V r, V noise, V pixel) {
  const V mean = hn::Mul(sum, r), deviation = greater(deviationOf(sum, squares, r), noise);
  const V quotient = hn::Div(hn::Sub(deviation, noise), deviation);
  const V gain = hn::IfThenZeroElse(hn::Eq(deviation, noise), quotient);
  return hn::Add(mean, hn::Mul(gain, hn::Sub(pixel, mean)));
}

/// The noise of each channel, over and over.
template <class L>
struct NoiseRow {
  alignas(laneAlignment) float power[laneCount<float> + 4] = {};

  explicit NoiseRow(const float* ofChannel) {
    for (int i = 0; i < static_cast<int>(std::size(power)); ++i) {
      const int channel = i % L::elements;
      if (channel < L::channels) power[i] = ofChannel[channel];
    }
  }
};

template <class T, class L, class Sum>
struct WienerStage {
  static constexpr int vectors = 1;
  RowSums<L, Sum> sums;
  const T* pixels;
  const NoiseRow<L>* noise;
  float r;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<float> df;
    const Lanes<int32_t> di;
    const auto floats = [&](ptrdiff_t place) HWY_ATTR {
      const auto power = hn::LoadU(df, noise->power + place % L::elements);
      return resultOf(sums.of(df, sums.sums + place), sums.of(df, sums.squares + place), hn::Set(df, r), power,
                      loadExtended(df, pixels + place));
    };
    if constexpr (std::is_same_v<T, float>) {
      return Vectors<hn::Vec<D>, 1>{floats(i)};
    } else {
      return Vectors<hn::Vec<D>, 1>{
          packEach<float>(d, [&](auto k) HWY_ATTR { return nearestOf<T>(di, floats(i + k * laneCount<float>)); })};
    }
  }
};

/// Not below 0, where rounding might put it.
template <class L, class Sum>
struct DeviationStage {
  RowSums<L, Sum> sums;
  float r;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const auto deviation = deviationOf(sums.of(d, sums.sums + i), sums.of(d, sums.squares + i), hn::Set(d, r));
    return greater(deviation, hn::Zero(d));
  }
};

/// The mean of each channel of a row, in an order that no vector's length decides.
template <class L, class DeviationAt>
void meansOf(ptrdiff_t width, const DeviationAt& deviationAt, double* means) {
  constexpr int period = 12;  // a multiple of all pixels' lengths
  const ptrdiff_t count = width * L::elements;
  double sums[period] = {};
  ptrdiff_t i = 0;
  for (; i + period <= count; i += period) {
    for (int k = 0; k < period; ++k) sums[k] += static_cast<double>(deviationAt(i + k));
  }
  for (int k = 0; i < count; ++i, ++k) sums[k] += static_cast<double>(deviationAt(i));
  for (int c = 0; c < L::channels; ++c) {
    double sum = 0;
    for (int k = c; k < period; k += L::elements) sum += sums[k];
    means[c] = sum / static_cast<double>(width);
  }
}

// ---- Regions ------------------------------------------------------------------------------------------------------

/// For each row: use(y, sums along it, the pixels' own row, a row of floats). Rows are a thread's own.
template <class T, class L, class Sum, class Use>
VemiStatus forSums(const WienerCall<T>& call, bool wantsFloats, const Use& use) {
  const Window& window = call.window;
  const ptrdiff_t width = call.roiSize.width;
  auto source = RowRing<T>::template ofSource<L>(window, width, false);
  const RowRing<Sum> columns(2, windowElements<L>(width, window));
  const RowRing<float> floats(wantsFloats ? 1 : 0, Vemi64s{width} * L::elements);
  const TeamMemory own = {.slice = roomOf(source, columns, floats)};
  const bool fits = own.slice.distance() <= sliceBytes(call.roiSize, {window.width, window.height}, L::channels);
  const TeamMemory memory = {.slice = own.slice, .buffer = fits ? call.buffer : nullptr};
  const auto band = [=](int first, int rows, Memory slice) {
    auto ownSource = source;
    auto ownColumns = columns;
    auto ownFloats = floats;
    placeRings(slice, ownSource, ownColumns, ownFloats);
    float* const spare = wantsFloats ? ownFloats.turn() : nullptr;
    const auto src = windowed<L>(call.src, window);
    const auto row = [&](ptrdiff_t y) {
      Sum* const sums = ownColumns.turn();
      Sum* const squares = ownColumns.turn();
      sumColumns(ownColumns.elements(), ownSource.rows(), window.height, sums, squares);
      const T* const pixels = ownSource.rows()[window.above] + window.left * L::elements;
      use(y, RowSums<L, Sum>{sums, squares, window.width}, pixels, spare);
    };
    forWindows(
        window, first, rows, [&](ptrdiff_t y) { ownSource.take(src.row(y)); }, row);
  };
  if constexpr (std::is_same_v<L, C1>) return forBands(CallerRows(), call.roiSize.height, memory, band);
  const Vemi64s sums = limitedProduct(Vemi64s{width} * call.roiSize.height, Vemi64s{window.width} + window.height);
  return forBands(TeamRows{sums < 1 << 14}, call.roiSize.height, memory, band);
}

template <class T, class L, class Sum>
VemiStatus filterBySums(const WienerCall<T>& call, const float* power) {
  const NoiseRow<L> noise(power);
  return forSums<T, L, Sum>(call, false, [&](ptrdiff_t y, const RowSums<L, Sum>& sums, const T* pixels, float*) {
    const WienerStage<T, L, Sum> stage = {sums, pixels, &noise, call.reciprocal()};
    mapPlaces<alphaOf<L>>(ptrdiff_t{call.roiSize.width} * L::elements, stage, call.dst.row(y));
  });
}

/// The mean deviation of each channel.
template <class T, class L, class Sum>
VemiStatus estimateBySums(const WienerCall<T>& call, float* power) {
  const Scratch scratch(arrayBytes<double>(limitedProduct(call.roiSize.height, L::channels)));
  if (scratch.failed()) return vemiErrMemAlloc;
  double* const means = scratch.as<double>();
  const VemiStatus status =
      forSums<T, L, Sum>(call, true, [&](ptrdiff_t y, const RowSums<L, Sum>& sums, const T*, float* deviations) {
        const ptrdiff_t width = call.roiSize.width;
        mapPlaces(width * L::elements, eachPlace<1>(DeviationStage<L, Sum>{sums, call.reciprocal()}), deviations);
        meansOf<L>(
            width, [=](ptrdiff_t i) { return deviations[i]; }, means + y * L::channels);
      });
  for (int c = 0; c < L::channels; ++c) {
    double sum = 0;
    for (ptrdiff_t y = 0; status == vemiOk && y < call.roiSize.height; ++y) sum += means[y * L::channels + c];
    power[c] = static_cast<float>(sum / call.roiSize.height);
  }
  return status;
}

// ---- Without memory -----------------------------------------------------------------------------------------------

/// Of one window, in the same order, and by the same lanes.
template <class T, class L>
struct OneWindow {
  double sum = 0, squares = 0;
  T pixel;

  /// Of element i of the region's row y.
  OneWindow(const WienerCall<T>& call, ptrdiff_t i, ptrdiff_t y) {
    const Window& window = call.window;
    const auto at = [&](ptrdiff_t column, ptrdiff_t row) {
      return elementOf(windowed<L>(call.src, window).row(y + row) + i + column * L::elements);
    };
    for (ptrdiff_t c = 0; c < window.width; ++c) {
      double column = 0, squaresOfColumn = 0;
      for (ptrdiff_t j = 0; j < window.height; ++j) {
        const auto value = static_cast<double>(at(c, j));
        column += value;
        squaresOfColumn += value * value;
      }
      sum += column;
      squares += squaresOfColumn;
    }
    pixel = at(window.left, window.above);
  }

  float deviation(float r) const {
    return hn::GetLane(greater(deviationOf(lanes(sum), lanes(squares), lanes(r)), lanes(0)));
  }
  T result(float r, float noise) const {
    const auto value = resultOf(lanes(sum), lanes(squares), lanes(r), lanes(noise), lanes(pixel));
    if constexpr (std::is_same_v<T, float>) {
      return hn::GetLane(value);
    } else {
      return saturate<T>(hn::GetLane(nearestOf<T>(hn::FixedTag<int32_t, 4>(), value)));
    }
  }

 private:
  template <class Number>
  static auto lanes(Number value) {
    return hn::Set(hn::FixedTag<float, 4>(), static_cast<float>(value));
  }
};

template <class T, class L>
void estimateWithoutMemory(const WienerCall<T>& call, float* power) {
  double sum[L::channels] = {};
  for (ptrdiff_t y = 0; y < call.roiSize.height; ++y) {
    double means[L::channels];
    const auto deviationAt = [&](ptrdiff_t i) { return OneWindow<T, L>(call, i, y).deviation(call.reciprocal()); };
    meansOf<L>(call.roiSize.width, deviationAt, means);
    for (int c = 0; c < L::channels; ++c) sum[c] += means[c];
  }
  for (int c = 0; c < L::channels; ++c) power[c] = static_cast<float>(sum[c] / call.roiSize.height);
}

template <class T, class L>
void filterWithoutMemory(const WienerCall<T>& call, const float* power) {
  for (ptrdiff_t y = 0; y < call.roiSize.height; ++y) {
    for (ptrdiff_t i = 0; i < ptrdiff_t{call.roiSize.width} * L::elements; ++i) {
      const ptrdiff_t channel = i % L::elements;
      if (channel >= L::channels) continue;
      const T result = OneWindow<T, L>(call, i, y).result(call.reciprocal(), power[channel]);
      std::memcpy(call.dst.row(y) + i, &result, sizeof result);
    }
  }
}

// ---- Members ------------------------------------------------------------------------------------------------------

template <class T, class L, class Sum>
VemiStatus wienerBySums(const WienerCall<T>& call, float* relative) {
  const auto columns = static_cast<float>(call.window.width), rows = static_cast<float>(call.window.height);
  float power[L::channels] = {};
  if (std::count(relative, relative + L::channels, 0.0f) > 0) {
    if (estimateBySums<T, L, Sum>(call, power) != vemiOk) estimateWithoutMemory<T, L>(call, power);
  }
  for (int c = 0; c < L::channels; ++c) {
    if (relative[c] == 0) {
      relative[c] = Scale<T>::relative * power[c] * call.reciprocal();
    } else {
      power[c] = relative[c] * Scale<T>::full * columns * rows;
    }
  }
  if (filterBySums<T, L, Sum>(call, power) != vemiOk) filterWithoutMemory<T, L>(call, power);
  return vemiOk;
}

VemiStatus checkNoise(const float* noise, int channels) {
  const bool valid = std::all_of(noise, noise + channels, [](float power) { return power >= 0 && power < 1; });
  return valid ? vemiOk : vemiErrNoiseValue;
}

template <class T, class L>
VemiStatus wiener(Image<const T> src, Image<T> dst, VemiSize roiSize, VemiSize maskSize, VemiPoint anchor, float* noise,
                  Vemi8u* buffer) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, noise, buffer), checkSize(roiSize), checkMaskSize(maskSize, 2),
                                     checkAnchor(anchor, maskSize), checkStep(src, dst))) {
    return bad;
  }
  if (const VemiStatus bad = checkNoise(noise, L::channels)) return bad;
  const bool isWhole = bufferBytes(roiSize, maskSize, L::channels) <= std::numeric_limits<int>::max();
  const WienerCall<T> call = {src, dst, roiSize, Window::fromLast(maskSize, anchor), isWhole ? buffer : nullptr};
  if constexpr (std::is_same_v<T, Vemi32f>) {
    return wienerBySums<T, L, double>(call, noise);
  } else {
    return roundingToNearest([&] {
      if constexpr (std::is_same_v<T, Vemi8u>) {
        const Vemi64s taps = Vemi64s{maskSize.width} * maskSize.height;
        if (taps <= std::numeric_limits<Vemi32s>::max() / 65025) return wienerBySums<T, L, Vemi32s>(call, noise);
      }
      return wienerBySums<T, L, double>(call, noise);
    });
  }
}

/// What no int can say is the largest of them, of which nothing is used.
VemiStatus bufferSize(VemiSize roiSize, VemiSize maskSize, int channels, int* size) {
  const bool isCount = channels == 1 || channels == 3 || channels == 4;
  if (const VemiStatus bad = firstOf(checkNull(size), checkSize(roiSize), isCount ? vemiOk : vemiErrChannelCount,
                                     checkMaskSize(maskSize, 2))) {
    return bad;
  }
  const Vemi64s most = std::numeric_limits<int>::max();
  *size = static_cast<int>(std::min(bufferBytes(roiSize, maskSize, channels), most));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define WIENER \
  ((VemiSize maskSize, VemiPoint anchor, Vemi32f * pNoise, Vemi8u * pBuffer), (maskSize, anchor, pNoise, pBuffer))

VEMI_DEFINE(vemiFilterWienerGetBufferSize,
            ((VemiSize roiSize, VemiSize maskSize, int channels, int* pBufferSize),
             (roiSize, maskSize, channels, pBufferSize)),
            bufferSize)

VEMI_DEFINE(vemiFilterWiener_8u_C1R, VEMI_SRC_DST(Vemi8u, WIENER), wiener<Vemi8u, C1>)
VEMI_DEFINE(vemiFilterWiener_8u_C3R, VEMI_SRC_DST(Vemi8u, WIENER), wiener<Vemi8u, C3>)
VEMI_DEFINE(vemiFilterWiener_8u_C4R, VEMI_SRC_DST(Vemi8u, WIENER), wiener<Vemi8u, C4>)
VEMI_DEFINE(vemiFilterWiener_8u_AC4R, VEMI_SRC_DST(Vemi8u, WIENER), wiener<Vemi8u, AC4>)

VEMI_DEFINE(vemiFilterWiener_16s_C1R, VEMI_SRC_DST(Vemi16s, WIENER), wiener<Vemi16s, C1>)
VEMI_DEFINE(vemiFilterWiener_16s_C3R, VEMI_SRC_DST(Vemi16s, WIENER), wiener<Vemi16s, C3>)
VEMI_DEFINE(vemiFilterWiener_16s_C4R, VEMI_SRC_DST(Vemi16s, WIENER), wiener<Vemi16s, C4>)
VEMI_DEFINE(vemiFilterWiener_16s_AC4R, VEMI_SRC_DST(Vemi16s, WIENER), wiener<Vemi16s, AC4>)

VEMI_DEFINE(vemiFilterWiener_32f_C1R, VEMI_SRC_DST(Vemi32f, WIENER), wiener<Vemi32f, C1>)
VEMI_DEFINE(vemiFilterWiener_32f_C3R, VEMI_SRC_DST(Vemi32f, WIENER), wiener<Vemi32f, C3>)
VEMI_DEFINE(vemiFilterWiener_32f_C4R, VEMI_SRC_DST(Vemi32f, WIENER), wiener<Vemi32f, C4>)
VEMI_DEFINE(vemiFilterWiener_32f_AC4R, VEMI_SRC_DST(Vemi32f, WIENER), wiener<Vemi32f, AC4>)
