// vemiCrossCorr, vemiSqrDistance: how well a template matches an image at each place, by tiles of spectra.
//
// With C the correlation of window and template, S1 and S2 the sums of the window's elements and of their squares, n
// their number, and T the norm of the template:
//
//   correlation        C / (max(T, floor) sqrt(max(S2, floor)))
//   squaredDistance    (S2 - 2 C + T^2) / (max(T, floor) sqrt(max(S2, floor)))
//   levelCorrelation   C' / sqrt(max(D, floor) max(S2 - S1^2 / n, floor)),  D = T^2 - m n m,  C' with the template less
//                      its mean m
//
// where 1 / n is a float, and so are the constants, each rounded once.

#include "measure/match.h"

#include <bit>
#include <cmath>

#include "core/checks.h"
#include "core/float_control.h"
#include "measure/window_sums.h"
#include "vemi/arith.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

/// 2^scaleFactor as its bits are put together, of which the factor has seven: what leaves them begins anew at 1.
float scaleOf(int scaleFactor) {
  const auto factor = static_cast<uint32_t>(scaleFactor);
  const uint32_t exponent = ((scaleFactor < 0 ? 0 - factor : factor) & 127) << 23, one = 0x3f800000;
  return std::bit_cast<float>(scaleFactor < 0 ? one - exponent : one + exponent);
}

/// Of one channel.
struct Constants {
  float divisor;     // beside the root, or in it
  float ofTemplate;  // T^2
  float floor, inverseCount;
};

/// What depends on the template, from which the level measure takes the mean.
VemiStatus prepareTemplate(Measure measure, float* tpl, ptrdiff_t stride, VemiSize size, float scale,
                           Constants& constants) {
  const int step = static_cast<int>(stride) * static_cast<int>(sizeof(float));
  double norm = 0, mean = 0;
  if (const VemiStatus bad = vemiNorm_L2_32f_C1R(tpl, step, size, &norm, vemiHintAccurate)) return bad;
  constants.ofTemplate = static_cast<float>(norm * norm);
  if (measure != Measure::levelCorrelation) {
    constants.divisor = static_cast<float>(std::max(norm, double{constants.floor})) * scale;
    return vemiOk;
  }
  if (const VemiStatus bad = vemiMean_32f_C1R(tpl, step, size, &mean, vemiHintAccurate)) return bad;
  const double count = static_cast<double>(size.width) * size.height;
  const auto deviations = static_cast<float>(norm * norm - mean * (count * mean));
  constants.divisor = std::max(deviations, constants.floor) * (scale * scale);
  return vemiSubC_32f_C1IR(static_cast<float>(mean), tpl, step, size);
}

/// A row of correlations becomes one of the measure.
template <Measure measure>
HWY_NOINLINE HWY_FLATTEN void finishRow(const TileRow& row, VemiSize size, const Constants& constants) {
  const Lanes<float> d;
  const Lanes<double> dd;
  const PatchRows patch = {row.patch, row.stride};
  const WindowSums squares(row.doubles, row.stride), values(row.doubles + WindowSums::rows * row.stride, row.stride);
  const auto square = [](auto v) HWY_ATTR { return hn::Mul(v, v); };
  squares.enter(row.y, patch, size.height, square);
  squares.makeWindows(size.width, row.count);
  if constexpr (measure == Measure::levelCorrelation) {
    values.enter(row.y, patch, size.height, [](auto v) HWY_ATTR { return v; });
    values.makeWindows(size.width, row.count);
  }
  const auto floor = hn::Set(d, constants.floor), divisor = hn::Set(d, constants.divisor);
  const auto inverseCount = hn::Set(dd, double{constants.inverseCount});
  const auto rootOfFloored = [&](auto energy) HWY_ATTR { return hn::Sqrt(greater(floor, energy)); };
  for (ptrdiff_t x = 0; x < row.count; x += laneCount<float>) {
    const auto c = hn::LoadU(d, row.results + x);
    auto result = c;
    if constexpr (measure == Measure::levelCorrelation) {
      const auto energy = squares.asFloats(x, [&](ptrdiff_t at, auto sum) HWY_ATTR {
        const auto values1 = hn::LoadU(dd, values.windows + at);
        return hn::Sub(sum, hn::Mul(hn::Mul(values1, values1), inverseCount));
      });
      result = hn::Div(c, hn::Sqrt(hn::Mul(greater(floor, energy), divisor)));
    } else {
      const auto energy = squares.asFloats(x, [](ptrdiff_t, auto sum) HWY_ATTR { return sum; });
      if constexpr (measure == Measure::squaredDistance) {
        result = hn::Add(hn::Add(hn::Mul(c, hn::Set(d, -2.0f)), energy), hn::Set(d, constants.ofTemplate));
      }
      result = hn::Div(result, hn::Mul(rootOfFloored(energy), divisor));
    }
    hn::StoreU(result, d, row.results + x);
  }
}

CorrelationAxis axisOf(Shape shape, int source, int extent) {
  if (shape == Shape::valid) return validAxis(source, extent);
  return shape == Shape::same ? sameAxis(source, extent) : fullAxis(source, extent);
}

}  // namespace

VemiStatus match(Measure measure, Shape shape, float floor, const PixelRows& rows, Image<const char> src,
                 VemiSize srcSize, Image<const char> tpl, VemiSize tplSize, Image<char> dst, int scaleFactor) {
  const bool isLarger = tplSize.width > srcSize.width || tplSize.height > srcSize.height;
  if (const VemiStatus bad = firstOf(checkNull(src, tpl, dst), checkSize(srcSize, tplSize),
                                     isLarger ? vemiErrSize : vemiOk, checkStep(src, tpl, dst))) {
    return bad;
  }
  return roundingToNearest([&] {
    const CorrelationAxis x = axisOf(shape, srcSize.width, tplSize.width),
                          y = axisOf(shape, srcSize.height, tplSize.height);
    const int kinds = measure == Measure::levelCorrelation ? 2 : 1;
    const Correlation job = {src, tpl, dst, x, y, rows, 7, false, WindowSums::rows * kinds};
    const double count = static_cast<double>(tplSize.width) * tplSize.height;
    Constants constants[mostChannels] = {};
    const auto prepare = [&](int channel, float* plane, ptrdiff_t stride) {
      constants[channel].floor = floor;
      constants[channel].inverseCount = static_cast<float>(1 / count);
      return prepareTemplate(measure, plane, stride, tplSize, scaleOf(scaleFactor), constants[channel]);
    };
    const auto finish = measure == Measure::correlation        ? finishRow<Measure::correlation>
                        : measure == Measure::levelCorrelation ? finishRow<Measure::levelCorrelation>
                                                               : finishRow<Measure::squaredDistance>;
    return forCorrelations(job, prepare, [&](const TileRow& row) { finish(row, tplSize, constants[row.channel]); });
  });
}

}  // namespace vemi::measure
