// vemiConvFull, vemiConvValid: the convolution of two images, of which the smaller one is called the kernel here.
// Checks: null, size, step, divisor, and in the valid form the size of the result.
//
// Small kernels go to vemiFilter, small results are added up product by product, all else goes by tiles of spectra. The
// kernel differs from channel to channel, and vemiFilter has one for all: it gets a channel at a time.

#include <array>
#include <limits>
#include <type_traits>
#include <utility>

#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/pixels.h"
#include "core/scratch.h"
#include "measure/tiles.h"
#include "vemi/filter.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

template <class T>
struct Operand {
  Image<const T> image;
  VemiSize size;
};

template <class T>
Image<const char> bytesOf(Image<const T> image) {
  return {reinterpret_cast<const char*>(image.first), image.step};
}

/// Sums of products over the divisor: whole numbers, limited to 32 bits, divided as vemiFilter divides sums of bytes.
template <class T>
struct Division {
  double factor;
  bool isShift = false;

  explicit Division(int divisor) : factor(static_cast<double>(static_cast<float>(1.0 / divisor))) {
    isShift = divisor > 1 && (divisor & (divisor - 1)) == 0;
  }
  template <class D, class V>
  HWY_INLINE V operator()(D d, V sum) const {
    const V whole = limited<Vemi32s>(d, hn::Round(sum));
    const V divided = hn::Mul(whole, hn::Set(d, factor));
    return limited<T>(d, isShift ? hn::Floor(hn::Add(divided, hn::Set(d, 0.5))) : hn::Round(divided));
  }

 private:
  template <class Limits, class D, class V>
  HWY_INLINE static V limited(D d, V v) {
    return hn::Min(hn::Max(v, hn::Set(d, double{std::numeric_limits<Limits>::min()})),
                   hn::Set(d, double{std::numeric_limits<Limits>::max()}));
  }
};

template <>
struct Division<Vemi32f> {
  explicit Division(int) {}
  template <class D, class V>
  HWY_INLINE V operator()(D, V sum) const {
    return sum;
  }
};

/// results[x] = division(sums[x]), which may be floats or doubles; up to whole vectors.
template <class T, class S>
HWY_NOINLINE HWY_FLATTEN void divideRow(ptrdiff_t count, const Division<T>& division, const S* sums, float* results) {
  const Lanes<double> d;
  const hn::Rebind<float, Lanes<double>> df;
  const hn::Rebind<S, Lanes<double>> ds;
  for (ptrdiff_t x = 0; x < count; x += laneCount<double>) {
    const auto loaded = hn::LoadU(ds, sums + x);
    if constexpr (std::is_same_v<S, float>) {
      hn::StoreU(hn::DemoteTo(df, division(d, hn::PromoteTo(d, loaded))), df, results + x);
    } else {
      hn::StoreU(hn::DemoteTo(df, division(d, loaded)), df, results + x);
    }
  }
}

// ---- Tiles ----------------------------------------------------------------------------------------------------------

template <class T, class L>
VemiStatus byTiles(Operand<T> src, Operand<T> kernel, Image<T> dst, CorrelationAxis x, CorrelationAxis y, int divisor) {
  const Correlation job = {bytesOf(src.image),
                           bytesOf(kernel.image),
                           {reinterpret_cast<char*>(dst.first), dst.step},
                           x,
                           y,
                           pixelRows<T, T, L>,
                           8,
                           true,
                           0};
  const Division<T> division(divisor);
  const auto prepare = [](int, float*, ptrdiff_t) -> VemiStatus { return vemiOk; };
  return forCorrelations(job, prepare, [&](const TileRow& row) {
    if constexpr (!std::is_same_v<T, Vemi32f>) divideRow(row.count, division, row.results, row.results);
  });
}

// ---- Small results --------------------------------------------------------------------------------------------------

/// In four sums, whatever the length of a vector, of rows that end in zeros.
HWY_NOINLINE HWY_FLATTEN double sumOfProducts(ptrdiff_t count, const float* a, const float* b) {
  const hn::CappedTag<double, 4> d;
  const hn::Rebind<float, decltype(d)> df;
  constexpr int N = static_cast<int>(hn::MaxLanes(d));
  double lanes[4];
  unrolled<4 / N>([&](auto k) HWY_ATTR {
    auto sum = hn::Zero(d);
    for (ptrdiff_t i = k * N; i < count; i += 4) {
      sum = hn::Add(sum, hn::Mul(hn::PromoteTo(d, hn::LoadU(df, a + i)), hn::PromoteTo(d, hn::LoadU(df, b + i))));
    }
    hn::StoreU(sum, d, lanes + k * N);
  });
  return (lanes[0] + lanes[1]) + (lanes[2] + lanes[3]);
}

constexpr int smallResult = 49, smallKernel = 144;

template <class T, class L>
VemiStatus byRowSums(Operand<T> src, Operand<T> kernel, Image<T> dst, VemiSize result, int divisor) {
  constexpr ptrdiff_t slack = 16, ofResults = smallResult + slack;
  constexpr PixelRows rows = pixelRows<T, T, L>;
  Pieces pieces;
  const ptrdiff_t ofSource = ptrdiff_t{src.size.width} + slack, ofKernel = ptrdiff_t{kernel.size.width} + slack;
  const auto sourceRow = pieces.add<float>(limitedProduct(ofSource, L::channels));
  const auto kernelRow = pieces.add<float>(limitedProduct(ofKernel, L::channels));
  const Scratch scratch(pieces);
  if (scratch.failed()) return vemiErrMemAlloc;
  std::fill_n(scratch[sourceRow], ofSource * L::channels, 0.0f);
  std::fill_n(scratch[kernelRow], ofKernel * L::channels, 0.0f);
  float *sourcePlanes[L::channels], *kernelPlanes[L::channels], *resultPlanes[L::channels];
  float results[L::channels][ofResults];
  const ptrdiff_t ofRow = result.width + slack;  // there are few rows, or they are short
  double sums[L::channels][smallResult * (1 + slack)] = {};
  for (int channel = 0; channel < L::channels; ++channel) {
    sourcePlanes[channel] = scratch[sourceRow] + channel * ofSource;
    kernelPlanes[channel] = scratch[kernelRow] + channel * ofKernel;
    resultPlanes[channel] = results[channel];
  }
  for (ptrdiff_t j = 0; j < kernel.size.height; ++j) {
    rows.read(kernel.image.row(kernel.size.height - 1 - j), 0, kernel.size.width, kernelPlanes);
    for (float* const plane : kernelPlanes) std::reverse(plane, plane + kernel.size.width);
    for (ptrdiff_t y = 0; y < result.height; ++y) {
      rows.read(src.image.row(y + j), 0, src.size.width, sourcePlanes);
      for (int channel = 0; channel < L::channels; ++channel) {
        for (ptrdiff_t x = 0; x < result.width; ++x) {
          sums[channel][y * ofRow + x] +=
              sumOfProducts(kernel.size.width, sourcePlanes[channel] + x, kernelPlanes[channel]);
        }
      }
    }
  }
  const Division<T> division(divisor);
  for (ptrdiff_t y = 0; y < result.height; ++y) {
    for (int channel = 0; channel < L::channels; ++channel) {
      divideRow(result.width, division, sums[channel] + y * ofRow, results[channel]);
    }
    rows.write(dst.row(y), 0, result.width, resultPlanes);
  }
  return vemiOk;
}

// ---- Small kernels --------------------------------------------------------------------------------------------------

inline VemiStatus filter(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize size, const Vemi32s* taps,
                         VemiSize kernel, VemiPoint anchor, int divisor) {
  return vemiFilter_8u_C1R(src.first, src.step, dst.first, dst.step, size, taps, kernel, anchor, divisor);
}
inline VemiStatus filter(Image<const Vemi16s> src, Image<Vemi16s> dst, VemiSize size, const Vemi32s* taps,
                         VemiSize kernel, VemiPoint anchor, int divisor) {
  return vemiFilter_16s_C1R(src.first, src.step, dst.first, dst.step, size, taps, kernel, anchor, divisor);
}
inline VemiStatus filter(Image<const Vemi32f> src, Image<Vemi32f> dst, VemiSize size, const Vemi32f* taps,
                         VemiSize kernel, VemiPoint anchor, int) {
  return vemiFilter_32f_C1R(src.first, src.step, dst.first, dst.step, size, taps, kernel, anchor);
}

template <class T>
bool rowsOverlap(Image<T> image, int width) {
  return image.step < width * pixelBytes<T, C1>;
}

/// vemiFilter wants rows that do not overlap, and one channel: what is not so goes by way of planes.
template <class T, class L>
VemiStatus byFilter(Operand<T> src, Operand<T> kernel, Image<T> dst, VemiSize result, int divisor) {
  using Tap = std::conditional_t<std::is_same_v<T, Vemi32f>, Vemi32f, Vemi32s>;
  const VemiPoint anchor = {kernel.size.width - 1, kernel.size.height - 1};
  const bool isPlane = L::elements == 1 && !rowsOverlap(src.image, src.size.width) && !rowsOverlap(dst, result.width);
  if (!isPlane && src.size.width > std::numeric_limits<int>::max() / static_cast<int>(sizeof(T)))
    return vemiErrMemAlloc;
  Pieces pieces;
  const auto srcPlane = pieces.add<T>(isPlane ? 0 : limitedProduct(src.size.width, src.size.height));
  const Vemi64s ofResult = limitedProduct(result.width, result.height);
  const auto dstPlanes = pieces.add<T>(isPlane ? 0 : limitedProduct(ofResult, L::channels));
  const Scratch scratch(pieces);
  if (scratch.failed()) return vemiErrMemAlloc;
  const auto plane = [](T* first, VemiSize size) { return Image<T>{first, size.width * static_cast<int>(sizeof(T))}; };
  const auto resultPlane = [&](int channel) {
    return plane(scratch[dstPlanes] + channel * static_cast<ptrdiff_t>(ofResult), result);
  };
  for (int channel = 0; channel < L::channels; ++channel) {
    Tap taps[smallKernel];
    for (ptrdiff_t y = 0, n = 0; y < kernel.size.height; ++y) {
      for (ptrdiff_t x = 0; x < kernel.size.width; ++x, ++n) {
        taps[n] = elementOf(kernel.image.row(y) + x * L::elements + channel);
      }
    }
    Image<const T> in = src.image;
    Image<T> out = dst;
    if (!isPlane) {
      const Image<T> copy = plane(scratch[srcPlane], src.size);
      for (ptrdiff_t y = 0; y < src.size.height; ++y) {
        extractChannelRow<L::elements>(src.size.width, src.image.row(y) + channel, copy.row(y));
      }
      in = {copy.first, copy.step};
      out = resultPlane(channel);
    }
    if (const VemiStatus bad = filter(in, out, result, taps, kernel.size, anchor, divisor)) return bad;
  }
  // No channel is written before the filter has had memory for all of them.
  for (int channel = 0; channel < L::channels && !isPlane; ++channel) {
    const Image<const T> from = {resultPlane(channel).first, resultPlane(channel).step};
    for (ptrdiff_t y = 0; y < result.height; ++y) {
      copyChannelRow<1, L::elements>(result.width, from.row(y), dst.row(y) + channel);
    }
  }
  return vemiOk;
}

// ---- Calls ----------------------------------------------------------------------------------------------------------

template <class T>
VemiStatus checkOperands(Operand<T> a, Operand<T> b, Image<T> dst, int divisor) {
  return firstOf(checkNull(a.image, b.image, dst), checkSize(a.size, b.size), checkStep(a.image, b.image, dst),
                 divisor == 0 ? vemiErrDivisor : vemiOk);
}

template <class L, class T>
VemiStatus convolvedFull(Operand<T> a, Operand<T> b, Image<T> dst, int divisor = 1) {
  if (const VemiStatus bad = checkOperands(a, b, dst, divisor)) return bad;
  const auto pixels = [](VemiSize size) { return Vemi64s{size.width} * size.height; };
  if (pixels(a.size) < pixels(b.size)) std::swap(a, b);
  return roundingToNearest([&] {
    return byTiles<T, L>(a, b, dst, fullAxis(a.size.width, b.size.width), fullAxis(a.size.height, b.size.height),
                         divisor);
  });
}

template <class L, class T>
VemiStatus convolvedValid(Operand<T> a, Operand<T> b, Image<T> dst, int divisor = 1) {
  if (const VemiStatus bad = checkOperands(a, b, dst, divisor)) return bad;
  if (a.size.width < b.size.width || a.size.height < b.size.height) std::swap(a, b);
  const VemiSize result = {a.size.width - b.size.width + 1, a.size.height - b.size.height + 1};
  if (const VemiStatus bad = checkSize(result)) return bad;
  return roundingToNearest([&] {
    if (Vemi64s{b.size.width} * b.size.height < smallKernel) return byFilter<T, L>(a, b, dst, result, divisor);
    if (Vemi64s{result.width} * result.height < smallResult) return byRowSums<T, L>(a, b, dst, result, divisor);
    return byTiles<T, L>(a, b, dst, validAxis(a.size.width, b.size.width), validAxis(a.size.height, b.size.height),
                         divisor);
  });
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define CONVOLUTION(T, ...)                                                                                      \
  VEMI_HEAD((const T* pSrc1, int src1Step, VemiSize src1Size, const T* pSrc2, int src2Step, VemiSize src2Size,   \
             T* pDst, int dstStep),                                                                              \
            (Operand<T>{{pSrc1, src1Step}, src1Size}, Operand<T>{{pSrc2, src2Step}, src2Size}, {pDst, dstStep}), \
            __VA_ARGS__)
#define DIVISOR ((int divisor), (divisor))

VEMI_DEFINE(vemiConvFull_8u_C1R, CONVOLUTION(Vemi8u, DIVISOR), convolvedFull<C1>)
VEMI_DEFINE(vemiConvFull_8u_C3R, CONVOLUTION(Vemi8u, DIVISOR), convolvedFull<C3>)
VEMI_DEFINE(vemiConvFull_8u_AC4R, CONVOLUTION(Vemi8u, DIVISOR), convolvedFull<AC4>)
VEMI_DEFINE(vemiConvFull_16s_C1R, CONVOLUTION(Vemi16s, DIVISOR), convolvedFull<C1>)
VEMI_DEFINE(vemiConvFull_16s_C3R, CONVOLUTION(Vemi16s, DIVISOR), convolvedFull<C3>)
VEMI_DEFINE(vemiConvFull_16s_AC4R, CONVOLUTION(Vemi16s, DIVISOR), convolvedFull<AC4>)
VEMI_DEFINE(vemiConvFull_32f_C1R, CONVOLUTION(Vemi32f), convolvedFull<C1>)
VEMI_DEFINE(vemiConvFull_32f_C3R, CONVOLUTION(Vemi32f), convolvedFull<C3>)
VEMI_DEFINE(vemiConvFull_32f_AC4R, CONVOLUTION(Vemi32f), convolvedFull<AC4>)
VEMI_DEFINE(vemiConvValid_8u_C1R, CONVOLUTION(Vemi8u, DIVISOR), convolvedValid<C1>)
VEMI_DEFINE(vemiConvValid_8u_C3R, CONVOLUTION(Vemi8u, DIVISOR), convolvedValid<C3>)
VEMI_DEFINE(vemiConvValid_8u_AC4R, CONVOLUTION(Vemi8u, DIVISOR), convolvedValid<AC4>)
VEMI_DEFINE(vemiConvValid_16s_C1R, CONVOLUTION(Vemi16s, DIVISOR), convolvedValid<C1>)
VEMI_DEFINE(vemiConvValid_16s_C3R, CONVOLUTION(Vemi16s, DIVISOR), convolvedValid<C3>)
VEMI_DEFINE(vemiConvValid_16s_AC4R, CONVOLUTION(Vemi16s, DIVISOR), convolvedValid<AC4>)
VEMI_DEFINE(vemiConvValid_32f_C1R, CONVOLUTION(Vemi32f), convolvedValid<C1>)
VEMI_DEFINE(vemiConvValid_32f_C3R, CONVOLUTION(Vemi32f), convolvedValid<C3>)
VEMI_DEFINE(vemiConvValid_32f_AC4R, CONVOLUTION(Vemi32f), convolvedValid<AC4>)
