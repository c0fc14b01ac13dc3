// vemiWinBartlett, vemiWinHamming and their Sep forms: an image times a window that falls from its middle to its rim.
// Checks: null, size (3 at least), step; then scratch.

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/alloc.h"
#include "core/blocks.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/numbers.h"
#include "signal/sine.h"
#include "signal/window.h"
#include "vemi/generate.h"

namespace vemi {
namespace {

template <class T>
VemiStatus checkArguments(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  const VemiStatus size = roiSize.width < 3 || roiSize.height < 3 ? vemiErrSize : vemiOk;
  return firstOf(checkNull(src, dst), size, checkStep(src, dst));
}

// ---- Products of two windows ----

/// One after the other in single precision; bytes round to nearest, ties to even.
template <class T>
void multiplyRow(ptrdiff_t width, const float* ofColumns, float ofRow, const T* src, T* dst) {
  const Lanes<float> d;
  const hn::RebindToSigned<decltype(d)> dInt;
  const hn::Rebind<T, decltype(d)> dElements;
  constexpr ptrdiff_t N = laneCount<float>;
  const auto kernel = [&](const float* weights, const T* in, T* out) HWY_ATTR {
    unrolled<2>([&](auto k) HWY_ATTR {
      const auto product = [&](auto v) HWY_ATTR {
        return hn::Mul(hn::Mul(v, hn::LoadU(d, weights + k * N)), hn::Set(d, ofRow));
      };
      const auto old = hn::LoadU(dElements, in + k * N);
      if constexpr (std::is_same_v<T, float>) {
        hn::StoreU(product(old), d, out + k * N);
      } else {
        const auto rounded = hn::NearestInt(product(hn::ConvertTo(d, hn::PromoteTo(dInt, old))));
        hn::StoreU(hn::DemoteTo(dElements, rounded), dElements, out + k * N);
      }
    });
  };
  forBlocks<2 * N>(width, kernel, Strand<const float>{ofColumns}, Strand<const T>{src}, Strand<T>{dst});
}

using Window = VemiStatus(Vemi32f* pSrcDst, int len);

Vemi32f* allocateWindow(Window* window, int len) {
  Vemi32f* const weights = vemiAlignedAlloc32f(len);
  if (weights == nullptr) return nullptr;
  std::fill_n(weights, len, 1.0f);
  window(weights, len);
  return weights;
}

template <Window* window, class T>
VemiStatus separable(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkArguments(src, dst, roiSize)) return bad;
  Vemi32f* const ofColumns = allocateWindow(window, roiSize.width);
  Vemi32f* const ofRows = allocateWindow(window, roiSize.height);
  const bool failed = ofColumns == nullptr || ofRows == nullptr;
  for (int y = 0; !failed && y < roiSize.height; ++y) {
    multiplyRow(roiSize.width, ofColumns, ofRows[y], src.row(y), dst.row(y));
  }
  vemiAlignedFree(ofRows);
  vemiAlignedFree(ofColumns);
  return failed ? vemiErrMemAlloc : vemiOk;
}

// ---- Radial windows ----

/// Weights by the distance r from the middle, in columns; `radius` is half of the width.
struct Bartlett {
  template <class D, class V>
  HWY_INLINE static V weight(D d, V r, double radius) {
    return hn::Sub(hn::Set(d, 1.0), hn::Div(r, hn::Set(d, radius)));
  }
};

struct Hamming {
  template <class D, class V>
  HWY_INLINE static V weight(D d, V r, double radius) {
    const V turns = hn::Mul(hn::Sub(hn::Set(d, radius), r), hn::Set(d, 6.283185307179586));
    const V cosine = Cosine()(d, hn::Div(turns, hn::Set(d, 2.0 * radius)));
    return hn::Sub(hn::Set(d, 0.54), hn::Mul(hn::Set(d, 0.46), cosine));
  }
};

/// The window's row at the distance dy from the middle of an ellipse. Both halves of a row count their columns from the
/// rim, so the window is symmetric; a middle column has the distance 1/2, and so has a middle row.
template <class Shape>
class RadialRow {
 public:
  RadialRow(VemiSize roiSize, double* weights)
      : width_(roiSize.width),
        cx_(0.5 * roiSize.width),
        cy_(0.5 * roiSize.height),
        begin_((width_ + 1) / 2),
        weights_(weights) {}

  /// Row y of the upper half, from the rim on: its ellipse's columns only grow.
  void compute(ptrdiff_t y) {
    const double dy = cy_ - static_cast<double>(y), q = cy_ / cx_;
    while (begin_ > 0 && isInside(begin_ - 1, dy)) --begin_;
    const Lanes<double> d;
    const auto ofRow = hn::Set(d, dy * dy / (q * q));
    const ptrdiff_t half = (width_ + 1) / 2;
    // Two passes: a processor that looks ahead has several vectors of a short pass under way.
    for (ptrdiff_t x = begin_; x < half; x += laneCount<double>) {
      const auto dx = hn::Sub(hn::Set(d, cx_), hn::Iota(d, static_cast<double>(x)));
      hn::StoreU(hn::Sqrt(hn::Add(hn::Mul(dx, dx), ofRow)), d, weights_ + x);
    }
    for (ptrdiff_t x = begin_; x < half; x += laneCount<double>) {
      hn::StoreU(Shape::weight(d, hn::LoadU(d, weights_ + x), cx_), d, weights_ + x);
    }
    const ptrdiff_t left = width_ / 2;  // a middle column stays
    std::reverse_copy(weights_ + std::min(begin_, left), weights_ + left, weights_ + width_ - left);
  }

  /// Bytes round to nearest, ties to even.
  template <class T>
  void multiply(const T* src, T* dst) const {
    const ptrdiff_t end = width_ - begin_;
    const auto clear = [&](ptrdiff_t x) { std::memset(dst + x, 0, static_cast<size_t>(begin_) * sizeof(T)); };
    clear(0);
    product(end - begin_, weights_ + begin_, src + begin_, dst + begin_);
    clear(end);
  }

 private:
  ptrdiff_t width_;
  double cx_, cy_;
  ptrdiff_t begin_;  // the columns in front of it are outside
  double* weights_;

  bool isInside(ptrdiff_t x, double dy) const {
    const double dx = cx_ - static_cast<double>(x);
    return dx * dx / (cx_ * cx_) + dy * dy / (cy_ * cy_) < 1.0;
  }

  static void product(ptrdiff_t count, const double* weights, const float* src, float* dst) {
    const Lanes<double> d;
    const hn::Rebind<float, decltype(d)> dElements;
    const auto kernel = [&](const double* weight, const float* in, float* out) HWY_ATTR {
      const auto wide = hn::Mul(hn::PromoteTo(d, hn::LoadU(dElements, in)), hn::LoadU(d, weight));
      hn::StoreU(hn::DemoteTo(dElements, wide), dElements, out);
    };
    forBlocks<laneCount<double>>(count, kernel, Strand<const double>{weights}, Strand<const float>{src},
                                 Strand<float>{dst});
  }

  static void product(ptrdiff_t count, const double* weights, const Vemi8u* src, Vemi8u* dst) {
    const Lanes<double> d;
    const Lanes<int32_t> dInt;
    const hn::Half<decltype(dInt)> dHalf;
    const hn::Rebind<Vemi8u, decltype(dInt)> dElements;
    constexpr ptrdiff_t N = laneCount<double>;
    const auto kernel = [&](const double* weight, const Vemi8u* in, Vemi8u* out) HWY_ATTR {
      const auto old = hn::PromoteTo(dInt, hn::LoadU(dElements, in));
      const auto lower = hn::Mul(hn::PromoteTo(d, hn::LowerHalf(old)), hn::LoadU(d, weight));
      const auto upper = hn::Mul(hn::PromoteTo(d, hn::UpperHalf(dHalf, old)), hn::LoadU(d, weight + N));
      hn::StoreU(hn::DemoteTo(dElements, nearestIntegers(dInt, lower, upper)), dElements, out);
    };
    forBlocks<2 * N>(count, kernel, Strand<const double>{weights}, Strand<const Vemi8u>{src}, Strand<Vemi8u>{dst});
  }
};

template <class Shape, class T>
VemiStatus radial(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkArguments(src, dst, roiSize)) return bad;
  const Vemi64s elements = Vemi64s{roiSize.width} + laneCount<double>;  // a vector may lie across the middle
  double* const weights = static_cast<double*>(alignedAllocBytes(elements * sizeof(double)));
  if (weights == nullptr) return vemiErrMemAlloc;
  RadialRow<Shape> row(roiSize, weights);
  for (ptrdiff_t y = 0; y <= (roiSize.height - 1) / 2; ++y) {
    const ptrdiff_t mirrored = roiSize.height - 1 - y;
    row.compute(y);
    row.multiply(src.row(y), dst.row(y));
    if (mirrored != y) row.multiply(src.row(mirrored), dst.row(mirrored));
  }
  vemiAlignedFree(weights);
  return vemiOk;
}

}  // namespace
}  // namespace vemi

using namespace vemi;

VEMI_SRC_DST(vemiWinBartlett_8u_C1R, Vemi8u, radial<Bartlett>)
VEMI_SRC_DST(vemiWinBartlett_32f_C1R, Vemi32f, radial<Bartlett>)
VEMI_SRCDST(vemiWinBartlett_8u_C1IR, Vemi8u, radial<Bartlett>)
VEMI_SRCDST(vemiWinBartlett_32f_C1IR, Vemi32f, radial<Bartlett>)
VEMI_SRC_DST(vemiWinHamming_8u_C1R, Vemi8u, radial<Hamming>)
VEMI_SRC_DST(vemiWinHamming_32f_C1R, Vemi32f, radial<Hamming>)
VEMI_SRCDST(vemiWinHamming_8u_C1IR, Vemi8u, radial<Hamming>)
VEMI_SRCDST(vemiWinHamming_32f_C1IR, Vemi32f, radial<Hamming>)

VEMI_SRC_DST(vemiWinBartlettSep_8u_C1R, Vemi8u, separable<sigWinBartlett_32f_I>)
VEMI_SRC_DST(vemiWinBartlettSep_32f_C1R, Vemi32f, separable<sigWinBartlett_32f_I>)
VEMI_SRCDST(vemiWinBartlettSep_8u_C1IR, Vemi8u, separable<sigWinBartlett_32f_I>)
VEMI_SRCDST(vemiWinBartlettSep_32f_C1IR, Vemi32f, separable<sigWinBartlett_32f_I>)
VEMI_SRC_DST(vemiWinHammingSep_8u_C1R, Vemi8u, separable<sigWinHamming_32f_I>)
VEMI_SRC_DST(vemiWinHammingSep_32f_C1R, Vemi32f, separable<sigWinHamming_32f_I>)
VEMI_SRCDST(vemiWinHammingSep_8u_C1IR, Vemi8u, separable<sigWinHamming_32f_I>)
VEMI_SRCDST(vemiWinHammingSep_32f_C1IR, Vemi32f, separable<sigWinHamming_32f_I>)
