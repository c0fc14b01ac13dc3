// vemiWTFwd, vemiWTInv: a vertical stage into two work rows, then a horizontal stage, a chunk of columns at a time.
// Checks: null record, tag, anchors, null images and buffer, size, step.
//
// Whatever the stage, an element is a sum of products of taps and of elements that lie a step apart: rows of an image,
// or every second pixel of a row. So there is one sum. Pixels at even and at odd places of a row are kept apart between
// the stages. A pixel of three channels is three elements side by side.

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/checks.h"
#include "core/image.h"
#include "core/lanes.h"
#include "transform/wavelet.h"

namespace vemi::transform {
namespace {

constexpr ptrdiff_t floatBytes = sizeof(float);

/// tap[0] * first[0] + tap[1] * (what lies a step on) + ...
struct Products {
  const float* tap = nullptr;
  ptrdiff_t count = 0;
  const char* first = nullptr;
  ptrdiff_t step = 0;
};

/// What lies `taps.first` steps on is the first.
Products productsOf(const Taps& taps, const float* from, ptrdiff_t step) {
  return {taps.tap, taps.count, reinterpret_cast<const char*>(from) + taps.first * step, step};
}

/// Two sets of products make one sum, from the first to the last.
struct Sum {
  Products set[2];

  template <int vectors, class D>
  HWY_INLINE Vectors<hn::Vec<D>, vectors> at(D d, ptrdiff_t element) const {
    Vectors<hn::Vec<D>, vectors> sum;
    for (auto& each : sum.v) each = hn::Zero(d);
    for (const Products& products : set) {
      for (ptrdiff_t k = 0; k < products.count; ++k) {
        const char* const from = products.first + element * floatBytes + k * products.step;
        const auto tap = hn::Set(d, products.tap[k]);
        unrolled<vectors>([&](auto n) HWY_ATTR {
          const auto* const place = reinterpret_cast<const float*>(from) + n * ptrdiff_t{hn::MaxLanes(D())};
          sum.v[n] = hn::Add(sum.v[n], hn::Mul(tap, hn::LoadU(d, place)));
        });
      }
    }
    return sum;
  }
};

/// Runs block(d, blocks, i) over `count` items: `blocks` times as many from i on as d has lanes. The last block
/// overlaps those before it. What is too short for a vector, or whose elements do not lie side by side, goes one by
/// one.
template <int most, class Block>
HWY_INLINE void forItems(ptrdiff_t count, bool isDense, const Block& block) {
  const Lanes<float> d;
  constexpr ptrdiff_t N = laneCount<float>;
  constexpr std::integral_constant<int, 1> one;
  ptrdiff_t i = 0;
  if (count < N || !isDense) {
    for (; i < count; ++i) block(hn::CappedTag<float, 1>(), one, i);
    return;
  }
  for (; i + most * N <= count; i += most * N) block(d, std::integral_constant<int, most>(), i);
  for (; i + N <= count; i += N) block(d, one, i);
  if (i < count) block(d, one, count - N);
}

// A row of sums. From one item to the next it is `from` elements in what is read and `to` in what is written.

HWY_NOINLINE void sumRow(const Sum& sum, ptrdiff_t count, ptrdiff_t from, float* dst, ptrdiff_t to) {
  forItems<4>(count, from == 1 && to == 1, [&](auto d, auto blocks, ptrdiff_t i) HWY_ATTR {
    const auto row = sum.at<blocks>(d, i * from);
    unrolled<blocks>([&](auto b) HWY_ATTR { hn::StoreU(row.v[b], d, dst + i * to + b * ptrdiff_t{hn::MaxLanes(d)}); });
  });
}

/// Pixels of n elements go in turn to `even` and to `odd`; the last one of an odd number to `even`.
template <ptrdiff_t n>
HWY_NOINLINE void sumRowApart(const Sum& sum, ptrdiff_t pixels, ptrdiff_t from, float* even, float* odd) {
  forItems<n == 1 ? 2 : 1>(pixels / 2, from == n, [&](auto d, auto blocks, ptrdiff_t i) HWY_ATTR {
    constexpr ptrdiff_t N = hn::MaxLanes(decltype(d)());
    if constexpr (N == 1) {
      for (ptrdiff_t k = 0; k < n; ++k) {
        hn::StoreU(sum.at<1>(d, 2 * i * from + k).v[0], d, even + i * n + k);
        hn::StoreU(sum.at<1>(d, (2 * i + 1) * from + k).v[0], d, odd + i * n + k);
      }
    } else if constexpr (n == 1) {
      const auto row = sum.at<2 * blocks>(d, 2 * i);
      unrolled<blocks>([&](auto b) HWY_ATTR {
        hn::StoreU(hn::ConcatEven(d, row.v[2 * b + 1], row.v[2 * b]), d, even + i + b * N);
        hn::StoreU(hn::ConcatOdd(d, row.v[2 * b + 1], row.v[2 * b]), d, odd + i + b * N);
      });
    } else {
      const auto row = sum.at<2 * n>(d, 2 * n * i);
      alignas(laneAlignment) float pixel[2 * n * N];
      unrolled<2 * n>([&](auto k) HWY_ATTR { hn::Store(row.v[k], d, pixel + k * N); });
      for (ptrdiff_t k = 0; k < N; ++k) {
        std::memcpy(even + (i + k) * n, pixel + 2 * k * n, n * sizeof(float));
        std::memcpy(odd + (i + k) * n, pixel + (2 * k + 1) * n, n * sizeof(float));
      }
    }
  });
  const hn::CappedTag<float, 1> d;
  for (ptrdiff_t k = 0; pixels % 2 != 0 && k < n; ++k) {
    hn::StoreU(sum.at<1>(d, (pixels - 1) * from + k).v[0], d, even + pixels / 2 * n + k);
  }
}

/// `count` pixels of n elements of each sum, in turn.
template <ptrdiff_t n>
HWY_NOINLINE void sumRowsInTurn(const Sum (&sums)[2], ptrdiff_t count, float* dst, ptrdiff_t to) {
  forItems<n == 1 ? 2 : 1>(count, to == n, [&](auto d, auto blocks, ptrdiff_t i) HWY_ATTR {
    constexpr ptrdiff_t N = hn::MaxLanes(decltype(d)());
    if constexpr (N == 1) {
      for (ptrdiff_t k = 0; k < 2 * n; ++k) {
        hn::StoreU(sums[k / n].at<1>(d, i * n + k % n).v[0], d, dst + (2 * i + k / n) * to + k % n);
      }
    } else {
      const auto even = sums[0].at<n * blocks>(d, n * i), odd = sums[1].at<n * blocks>(d, n * i);
      if constexpr (n == 1) {
        unrolled<blocks>([&](auto b)
                             HWY_ATTR { hn::StoreInterleaved2(even.v[b], odd.v[b], d, dst + 2 * (i + b * N)); });
      } else {
        alignas(laneAlignment) float pixel[2][n * N];
        unrolled<n>([&](auto k) HWY_ATTR {
          hn::Store(even.v[k], d, pixel[0] + k * N);
          hn::Store(odd.v[k], d, pixel[1] + k * N);
        });
        for (ptrdiff_t k = 0; k < 2 * N; ++k) {
          std::memcpy(dst + (2 * i + k) * n, pixel[k % 2] + k / 2 * n, n * sizeof(float));
        }
      }
    }
  });
}

/// The work rows of a call, one for each vertical filter.
struct WorkRows {
  char* first;
  ptrdiff_t gap;

  float* row(int which) const { return reinterpret_cast<float*>(first + which * gap); }
};

/// The four quarters of a transform, from the chunk's first column on.
template <class T>
struct Quarters {
  Image<T> approx, detailX, detailY, detailXY;

  Quarters from(ptrdiff_t element) const {
    const auto moved = [&](Image<T> image) { return Image<T>{image.first + element, image.step}; };
    return {moved(approx), moved(detailX), moved(detailY), moved(detailXY)};
  }
};

/// A row of pixels of n elements that lie `stride` elements apart in the images.
template <int n>
void forwardRow(const Wavelet& spec, Image<const float> src, const Quarters<float>& dst, ptrdiff_t stride,
                ptrdiff_t columns, ptrdiff_t y, WorkRows work) {
  const ptrdiff_t pixels = 2 * columns + spec.reach.before + spec.reach.behind;
  const ptrdiff_t odd = (pixels + 1) / 2 * n;  // where the pixels at odd places begin in a work row
  const ptrdiff_t count = stride == n ? columns * n : columns, to = stride == n ? 1 : stride;
  const float* const first = src.row(2 * y) - spec.reach.before * stride;
  const auto down = [&](const WaveletFilter& filter, float* row) {
    sumRowApart<n>({{productsOf(filter.all, first, src.step), {}}}, pixels, stride, row, row + odd);
  };
  const auto across = [&](const WaveletFilter& filter, const float* row, Image<float> quarter) {
    const Sum sum = {
        {productsOf(filter.phase[0], row, n * floatBytes), productsOf(filter.phase[1], row + odd, n * floatBytes)}};
    sumRow(sum, count, 1, quarter.row(y), to);
  };
  down(spec.low, work.row(0));
  across(spec.low, work.row(0), dst.approx);
  across(spec.high, work.row(0), dst.detailY);
  down(spec.high, work.row(1));
  across(spec.low, work.row(1), dst.detailX);
  across(spec.high, work.row(1), dst.detailXY);
}

/// Two rows of the destination.
template <int n>
void inverseRows(const Wavelet& spec, const Quarters<const float>& src, Image<float> dst, ptrdiff_t stride,
                 ptrdiff_t columns, ptrdiff_t y, WorkRows work) {
  const ptrdiff_t pixels = columns + spec.reach.before + spec.reach.behind;
  const ptrdiff_t count = stride == n ? pixels * n : pixels, from = stride == n ? 1 : stride;
  for (const int p : {0, 1}) {
    const auto down = [&](Image<const float> low, Image<const float> high, float* row) {
      const ptrdiff_t before = spec.reach.before * stride;
      const Sum sum = {{productsOf(spec.low.phase[p], low.row(y) - before, low.step),
                        productsOf(spec.high.phase[p], high.row(y) - before, high.step)}};
      sumRow(sum, count, from, row, 1);
    };
    const auto across = [&](int phase) -> Sum {
      const ptrdiff_t before = spec.reach.before * n;
      return {{productsOf(spec.low.phase[phase], work.row(0) + before, n * floatBytes),
               productsOf(spec.high.phase[phase], work.row(1) + before, n * floatBytes)}};
    };
    down(src.approx, src.detailX, work.row(0));
    down(src.detailY, src.detailXY, work.row(1));
    sumRowsInTurn<n>({across(0), across(1)}, columns, dst.row(2 * y + p), stride);
  }
}

/// Runs chunk(elements of a pixel, row, first column, columns, first channel) over all rows of four images, in chunks
/// of which a work row has room for `pixelsToAColumn` pixels a column; of one channel it has room for `most` columns.
/// All chunks of a row come before the next row: strips of columns meet a page in every row.
template <int channels, class Chunk>
void forChunks(const Wavelet& spec, VemiSize size, ptrdiff_t most, ptrdiff_t pixelsToAColumn, const Chunk& chunk) {
  const ptrdiff_t reach = spec.reach.before + spec.reach.behind;
  const ptrdiff_t together = (spec.rowElements / channels - reach) / pixelsToAColumn;
  const bool isApart = channels > 1 && together < 16;  // long filters leave too little room for several channels
  if (channels > 1 && !isApart) most = together;
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    for (ptrdiff_t x = 0; x < size.width; x += most) {
      const ptrdiff_t columns = std::min(most, size.width - x);
      if (!isApart) {
        chunk(std::integral_constant<int, channels>(), y, x, columns, 0);
        continue;
      }
      for (int channel = 0; channel < channels; ++channel) {
        chunk(std::integral_constant<int, 1>(), y, x, columns, channel);
      }
    }
  }
}

VemiStatus checkWavelet(const Wavelet* spec, int tag) {
  if (const VemiStatus bad = checkRecord(spec, tag)) return bad;
  return spec->isUsable ? vemiOk : vemiErrContext;
}

template <int channels>
VemiStatus forward(Image<const float> src, const Quarters<float>& dst, VemiSize size, const Wavelet* spec,
                   Vemi8u* buffer) {
  if (const VemiStatus bad = checkWavelet(spec, channels == 1 ? forwardC1Tag : forwardC3Tag)) return bad;
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst.approx, dst.detailX, dst.detailY, dst.detailXY, buffer), checkSize(size),
                  checkStep(src, dst.approx, dst.detailX, dst.detailY, dst.detailXY))) {
    return bad;
  }
  const WorkRows work = {reinterpret_cast<char*>(buffer), spec->rowGap};
  const auto chunk = [&](auto n, ptrdiff_t y, ptrdiff_t x, ptrdiff_t columns, int channel) {
    const ptrdiff_t first = x * channels + channel;
    forwardRow<n>(*spec, {src.first + first + x * channels, src.step}, dst.from(first), channels, columns, y, work);
  };
  forChunks<channels>(*spec, size, forwardColumns, 2, chunk);
  return vemiOk;
}

template <int channels>
VemiStatus inverse(const Quarters<const float>& src, VemiSize size, Image<float> dst, const Wavelet* spec,
                   Vemi8u* buffer) {
  if (const VemiStatus bad = checkWavelet(spec, channels == 1 ? inverseC1Tag : inverseC3Tag)) return bad;
  if (const VemiStatus bad =
          firstOf(checkNull(src.approx, src.detailX, src.detailY, src.detailXY, dst, buffer), checkSize(size),
                  checkStep(src.approx, src.detailX, src.detailY, src.detailXY, dst))) {
    return bad;
  }
  const WorkRows work = {reinterpret_cast<char*>(buffer), spec->rowGap};
  const auto chunk = [&](auto n, ptrdiff_t y, ptrdiff_t x, ptrdiff_t columns, int channel) {
    const ptrdiff_t first = x * channels + channel;
    inverseRows<n>(*spec, src.from(first), {dst.first + first + x * channels, dst.step}, channels, columns, y, work);
  };
  forChunks<channels>(*spec, size, inverseColumns, 1, chunk);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

VemiStatus vemiWTFwd_32f_C1R(const Vemi32f* pSrc, int srcStep, Vemi32f* pApprox, int approxStep, Vemi32f* pDetailX,
                             int detailXStep, Vemi32f* pDetailY, int detailYStep, Vemi32f* pDetailXY, int detailXYStep,
                             VemiSize dstRoiSize, const VemiWTFwdSpec_32f_C1R* pSpec, Vemi8u* pBuffer) {
  return forward<1>(
      {pSrc, srcStep},
      {{pApprox, approxStep}, {pDetailX, detailXStep}, {pDetailY, detailYStep}, {pDetailXY, detailXYStep}}, dstRoiSize,
      pSpec, pBuffer);
}
VemiStatus vemiWTFwd_32f_C3R(const Vemi32f* pSrc, int srcStep, Vemi32f* pApprox, int approxStep, Vemi32f* pDetailX,
                             int detailXStep, Vemi32f* pDetailY, int detailYStep, Vemi32f* pDetailXY, int detailXYStep,
                             VemiSize dstRoiSize, const VemiWTFwdSpec_32f_C3R* pSpec, Vemi8u* pBuffer) {
  return forward<3>(
      {pSrc, srcStep},
      {{pApprox, approxStep}, {pDetailX, detailXStep}, {pDetailY, detailYStep}, {pDetailXY, detailXYStep}}, dstRoiSize,
      pSpec, pBuffer);
}
VemiStatus vemiWTInv_32f_C1R(const Vemi32f* pApprox, int approxStep, const Vemi32f* pDetailX, int detailXStep,
                             const Vemi32f* pDetailY, int detailYStep, const Vemi32f* pDetailXY, int detailXYStep,
                             VemiSize srcRoiSize, Vemi32f* pDst, int dstStep, const VemiWTInvSpec_32f_C1R* pSpec,
                             Vemi8u* pBuffer) {
  return inverse<1>(
      {{pApprox, approxStep}, {pDetailX, detailXStep}, {pDetailY, detailYStep}, {pDetailXY, detailXYStep}}, srcRoiSize,
      {pDst, dstStep}, pSpec, pBuffer);
}
VemiStatus vemiWTInv_32f_C3R(const Vemi32f* pApprox, int approxStep, const Vemi32f* pDetailX, int detailXStep,
                             const Vemi32f* pDetailY, int detailYStep, const Vemi32f* pDetailXY, int detailXYStep,
                             VemiSize srcRoiSize, Vemi32f* pDst, int dstStep, const VemiWTInvSpec_32f_C3R* pSpec,
                             Vemi8u* pBuffer) {
  return inverse<3>(
      {{pApprox, approxStep}, {pDetailX, detailXStep}, {pDetailY, detailYStep}, {pDetailXY, detailXYStep}}, srcRoiSize,
      {pDst, dstStep}, pSpec, pBuffer);
}
