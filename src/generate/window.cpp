// vemiWinBartlett, vemiWinHamming and their Sep forms: an image times a window that falls from its middle to its rim.
// Checks: null, size (3 at least), step; then scratch.

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/blocks.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "signal/polynomial.h"
#include "signal/sine.h"
#include "signal/window.h"
#include "vemi/generate.h"

namespace vemi::generate {
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
  [[maybe_unused]] const Lanes<int32_t> di;
  const Lanes<T> dElements;
  constexpr ptrdiff_t N = laneCount<float>, items = std::max(2 * N, laneCount<T>);
  const auto kernel = [&](const float* weights, const T* in, T* out) HWY_ATTR {
    const auto product = [&](auto v, ptrdiff_t i)
                             HWY_ATTR { return hn::Mul(hn::Mul(v, hn::LoadU(d, weights + i)), hn::Set(d, ofRow)); };
    if constexpr (std::is_same_v<T, float>) {
      unrolled<2>([&](auto k) HWY_ATTR { hn::StoreU(product(hn::LoadU(d, in + k * N), k * N), d, out + k * N); });
    } else {
      const auto integers = [&](auto k) HWY_ATTR { return rounded(di, product(loadExtended(d, in + k * N), k * N)); };
      hn::StoreU(packEach<float>(dElements, integers), dElements, out);
    }
  };
  forBlocks<items>(width, kernel, Strand<const float>{ofColumns}, Strand<const T>{src}, Strand<T>{dst});
}

using Window = VemiStatus(Vemi32f* pSrcDst, int len);

Vemi32f* drawWindow(Window* window, Vemi32f* weights, int len) {
  std::fill_n(weights, len, 1.0f);
  window(weights, len);
  return weights;
}

template <Window* window, class T>
VemiStatus separable(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkArguments(src, dst, roiSize)) return bad;
  return roundingToNearest([&] {
    Pieces pieces;
    const auto columns = pieces.add<Vemi32f>(roiSize.width), rows = pieces.add<Vemi32f>(roiSize.height);
    const Scratch scratch(pieces);
    if (scratch.failed()) return vemiErrMemAlloc;
    const Vemi32f* const ofColumns = drawWindow(window, scratch[columns], roiSize.width);
    const Vemi32f* const ofRows = drawWindow(window, scratch[rows], roiSize.height);
    for (int y = 0; y < roiSize.height; ++y) {
      multiplyRow(roiSize.width, ofColumns, ofRows[y], src.row(y), dst.row(y));
    }
    return vemiOk;
  });
}

// ---- Radial windows ----
//
// A weight is computed roughly first, from the squared distance in units of the rim, and together with a bound of its
// error it nearly always tells the element. A block in which it does not is computed by definition.

/// Weights by the distance r from the middle, in columns; `radius` is half of the width.
struct Bartlett {
  template <class D, class V>
  HWY_INLINE static V weight(D d, V r, double radius) {
    return hn::Sub(hn::Set(d, 1.0), hn::Div(r, hn::Set(d, radius)));
  }

  /// Within 2^-23. In double precision it would cost as much as the weight by definition.
  template <class D, class V>
  HWY_INLINE static V roughWeight(D d, V square) {
    return hn::Sub(hn::Set(d, 1.0f), hn::Sqrt(square));
  }

  template <class Weight>
  static constexpr bool hasRough = std::is_same_v<Weight, float>;
};

struct Hamming {
  template <class D, class V>
  HWY_INLINE static V weight(D d, V r, double radius) {
    const V turns = hn::Mul(hn::Sub(hn::Set(d, radius), r), hn::Set(d, 6.283185307179586));
    const V cosine = signal::Cosine()(d, hn::Div(turns, hn::Set(d, 2.0 * radius)));
    return hn::Sub(hn::Set(d, 0.54), hn::Mul(hn::Set(d, 0.46), cosine));
  }

  /// 0.54 + 0.46 cos(pi sqrt(square)), a smooth function of the square. Within 2^-22 in single and 2^-51 in double
  /// precision.
  template <class D, class V>
  HWY_INLINE static V roughWeight(D d, V square) {
    return signal::polynomial(d, hn::Sub(square, hn::Set(d, 0.5f)), coefficients(hn::TFromD<D>()));
  }

  template <class Weight>
  static constexpr bool hasRough = true;

 private:
  // Chebyshev approximations around the middle of the interval.
  static constexpr float single[] = {0x1.0ba6bp-2f,  -0x1.a04d46p-1f, 0x1.18117cp+0f, -0x1.b37b5ep-2f,
                                     0x1.4ea50ep-4f, -0x1.362aacp-7f, 0x1.80684ap-11f};
  static constexpr double twice[] = {0x1.0ba6b0c204612p-2,   -0x1.a04d446a70c64p-1, 0x1.18117ca8a79bep+0,
                                     -0x1.b37bf32b5cc4fp-2,  0x1.4ea531ba205f6p-4,  -0x1.3594fd59c9925p-7,
                                     0x1.7ff57f5bc8748p-11,  -0x1.55f8f9b23b69p-15, 0x1.cb0a7958a9aap-20,
                                     -0x1.e16a984908e5cp-25, 0x1.9523fd4b84b6cp-30};

  static constexpr auto& coefficients(float) { return single; }
  static constexpr auto& coefficients(double) { return twice; }
};

/// The window's row at the distance dy from the middle of an ellipse. Both halves of a row count their columns from the
/// rim, so the window is symmetric; a middle column has the distance 1/2, and so has a middle row.
template <class Shape, class T>
class RadialRow {
 public:
  explicit RadialRow(VemiSize roiSize)
      : width_(roiSize.width), cx_(0.5 * roiSize.width), cy_(0.5 * roiSize.height), begin_((width_ + 1) / 2) {
    Pieces pieces;
    const auto weights = pieces.add<Weight>(Vemi64s{width_} + slack);
    const auto squares = pieces.add<Weight>(Vemi64s{half()} + slack);
    const auto fromRim = pieces.add<int32_t>(Vemi64s{width_} + slack);
    scratch_ = Scratch(pieces);
    if (failed()) return;
    weights_ = scratch_[weights];
    squares_ = scratch_[squares];
    fromRim_ = scratch_[fromRim];
    for (ptrdiff_t x = 0; x < half() + slack; ++x) squares_[x] = square((cx_ - static_cast<double>(x)) / cx_);
    for (ptrdiff_t x = 0; x < width_ + slack; ++x) fromRim_[x] = static_cast<int32_t>(std::min(x, width_ - 1 - x));
  }

  bool failed() const { return scratch_.failed(); }

  /// Row y of the upper half, from the rim on: its ellipse's columns only grow.
  void compute(ptrdiff_t y) {
    const double dy = cy_ - static_cast<double>(y), q = cy_ / cx_;
    while (begin_ > 0 && isInside(begin_ - 1, dy)) --begin_;
    ofRow_ = dy * dy / (q * q);
    const Lanes<Weight> d;
    const auto squareOfRow = hn::Set(d, square(dy / cy_));
    for (ptrdiff_t x = begin_; x < half(); x += laneCount<Weight>) {
      if constexpr (isRough) {
        hn::StoreU(Shape::roughWeight(d, hn::Add(hn::LoadU(d, squares_ + x), squareOfRow)), d, weights_ + x);
      } else {
        hn::StoreU(weightsAt(fromRim_ + x), d, weights_ + x);
      }
    }
    const ptrdiff_t left = width_ / 2;  // a middle column stays
    std::reverse_copy(weights_ + std::min(begin_, left), weights_ + left, weights_ + width_ - left);
  }

  /// Bytes round to nearest, ties to even.
  void multiply(const T* src, T* dst) const {
    const ptrdiff_t end = width_ - begin_;
    const auto clear = [&](ptrdiff_t x) { std::memset(dst + x, 0, static_cast<size_t>(begin_) * sizeof(T)); };
    clear(0);
    const auto kernel = [&](const Weight* weights, const int32_t* fromRim, const T* in, T* out) HWY_ATTR {
      if constexpr (isRough) {
        if (HWY_UNLIKELY(!roughProducts(weights, in, out))) productsByDefinition(fromRim, in, out);
      } else {
        products(in, out, [&](ptrdiff_t i) HWY_ATTR { return hn::LoadU(Lanes<double>(), weights + i); });
      }
    };
    forBlocks<blockItems>(end - begin_, kernel, Strand<const Weight>{weights_ + begin_},
                          Strand<const int32_t>{fromRim_ + begin_}, Strand<const T>{src + begin_},
                          Strand<T>{dst + begin_});
    clear(end);
  }

 private:
  using Weight = std::conditional_t<std::is_same_v<T, float>, double, float>;
  static constexpr bool isRough = Shape::template hasRough<Weight>;
  static constexpr ptrdiff_t slack = laneCount<Weight>;  // a vector may lie across the middle
  static constexpr ptrdiff_t blockItems = std::is_same_v<T, float> ? 4 * laneCount<double> : laneCount<Vemi8u>;

  ptrdiff_t width_;
  double cx_, cy_;
  ptrdiff_t begin_;  // the columns in front of it are outside
  double ofRow_ = 0;
  Scratch scratch_;
  Weight* weights_;
  Weight* squares_;   // of the columns' distances from the middle
  int32_t* fromRim_;  // of each column

  ptrdiff_t half() const { return (width_ + 1) / 2; }

  static Weight square(double distance) { return static_cast<Weight>(distance * distance); }

  bool isInside(ptrdiff_t x, double dy) const {
    const double dx = cx_ - static_cast<double>(x);
    return dx * dx / (cx_ * cx_) + dy * dy / (cy_ * cy_) < 1.0;
  }

  /// A block's products, unless one is not certain: both ends of the interval that holds it have to give the same
  /// element.
  static HWY_INLINE bool roughProducts(const double* weights, const float* in, float* out) {
    const Lanes<double> d;
    const hn::Rebind<float, decltype(d)> dElements;
    constexpr ptrdiff_t N = laneCount<double>, vectors = blockItems / N;
    Vectors<hn::Vec<decltype(dElements)>, vectors> low;
    const hn::RebindToSigned<decltype(dElements)> dBits;
    auto differing = hn::Zero(dBits);
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto end = [&](double doubt) HWY_ATTR {
        const auto weight = hn::Add(hn::LoadU(d, weights + k * N), hn::Set(d, doubt));
        return hn::DemoteTo(dElements, hn::Mul(hn::PromoteTo(d, hn::LoadU(dElements, in + k * N)), weight));
      };
      low.v[k] = end(-0x1p-42);
      differing = hn::Or(differing, hn::BitCast(dBits, hn::Xor(low.v[k], end(0x1p-42))));
    });
    if (!hn::AllTrue(dBits, hn::Eq(differing, hn::Zero(dBits)))) return false;
    unrolled<vectors>([&](auto k) HWY_ATTR { hn::StoreU(low.v[k], dElements, out + k * N); });
    return true;
  }

  /// A product has 255 times the error of the weight and two roundings.
  static HWY_INLINE bool roughProducts(const float* weights, const Vemi8u* in, Vemi8u* out) {
    const Lanes<float> d;
    const Lanes<int32_t> di;
    const Lanes<Vemi8u> dElements;
    constexpr ptrdiff_t N = laneCount<float>;
    const auto end = [&](float doubt) HWY_ATTR {
      return packEach<float>(dElements, [&](auto k) HWY_ATTR {
        const auto product = hn::Mul(loadExtended(d, in + k * N), hn::LoadU(d, weights + k * N));
        return rounded(di, hn::Add(product, hn::Set(d, doubt)));
      });
    };
    const auto low = end(-0x1p-13f);
    if (!hn::AllTrue(dElements, hn::Eq(low, end(0x1p-13f)))) return false;
    hn::StoreU(low, dElements, out);
    return true;
  }

  /// A vector of weights by definition.
  HWY_INLINE auto weightsAt(const int32_t* fromRim) const {
    const Lanes<double> d;
    const auto columns = hn::PromoteTo(d, hn::LoadU(hn::Rebind<int32_t, decltype(d)>(), fromRim));
    const auto dx = hn::Sub(hn::Set(d, cx_), columns);
    return Shape::weight(d, hn::Sqrt(hn::Add(hn::Mul(dx, dx), hn::Set(d, ofRow_))), cx_);
  }

  /// weightAt(i) is the vector of weights from the block's item i on.
  template <class WeightAt>
  static HWY_INLINE void products(const float* in, float* out, const WeightAt& weightAt) {
    const Lanes<double> d;
    const hn::Rebind<float, decltype(d)> dElements;
    for (ptrdiff_t i = 0; i < blockItems; i += laneCount<double>) {
      const auto wide = hn::Mul(hn::PromoteTo(d, hn::LoadU(dElements, in + i)), weightAt(i));
      hn::StoreU(hn::DemoteTo(dElements, wide), dElements, out + i);
    }
  }

  template <class WeightAt>
  static HWY_INLINE void products(const Vemi8u* in, Vemi8u* out, const WeightAt& weightAt) {
    const Lanes<double> d;
    const Lanes<int32_t> dInt;
    const hn::Half<decltype(dInt)> dHalf;
    const hn::Rebind<Vemi8u, decltype(dInt)> dElements;
    for (ptrdiff_t i = 0; i < blockItems; i += laneCount<int32_t>) {
      const auto old = hn::PromoteTo(dInt, hn::LoadU(dElements, in + i));
      const auto lower = hn::Mul(hn::PromoteTo(d, hn::LowerHalf(old)), weightAt(i));
      const auto upper = hn::Mul(hn::PromoteTo(d, hn::UpperHalf(dHalf, old)), weightAt(i + laneCount<double>));
      hn::StoreU(hn::DemoteTo(dElements, nearestIntegers(dInt, lower, upper)), dElements, out + i);
    }
  }

  HWY_NOINLINE void productsByDefinition(const int32_t* fromRim, const T* in, T* out) const {
    products(in, out, [&](ptrdiff_t i) HWY_ATTR { return weightsAt(fromRim + i); });
  }
};

template <class Shape, class T>
VemiStatus radial(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkArguments(src, dst, roiSize)) return bad;
  return roundingToNearest([&] {
    RadialRow<Shape, T> row(roiSize);
    if (row.failed()) return vemiErrMemAlloc;
    for (ptrdiff_t y = 0; y <= (roiSize.height - 1) / 2; ++y) {
      const ptrdiff_t mirrored = roiSize.height - 1 - y;
      row.compute(y);
      row.multiply(src.row(y), dst.row(y));
      if (mirrored != y) row.multiply(src.row(mirrored), dst.row(mirrored));
    }
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::generate

using namespace vemi;
using namespace vemi::generate;

VEMI_DEFINE(vemiWinBartlett_8u_C1R, VEMI_SRC_DST(Vemi8u), radial<Bartlett>)
VEMI_DEFINE(vemiWinBartlett_32f_C1R, VEMI_SRC_DST(Vemi32f), radial<Bartlett>)
VEMI_DEFINE(vemiWinBartlett_8u_C1IR, VEMI_SRCDST(Vemi8u), radial<Bartlett>)
VEMI_DEFINE(vemiWinBartlett_32f_C1IR, VEMI_SRCDST(Vemi32f), radial<Bartlett>)
VEMI_DEFINE(vemiWinHamming_8u_C1R, VEMI_SRC_DST(Vemi8u), radial<Hamming>)
VEMI_DEFINE(vemiWinHamming_32f_C1R, VEMI_SRC_DST(Vemi32f), radial<Hamming>)
VEMI_DEFINE(vemiWinHamming_8u_C1IR, VEMI_SRCDST(Vemi8u), radial<Hamming>)
VEMI_DEFINE(vemiWinHamming_32f_C1IR, VEMI_SRCDST(Vemi32f), radial<Hamming>)

VEMI_DEFINE(vemiWinBartlettSep_8u_C1R, VEMI_SRC_DST(Vemi8u), separable<signal::sigWinBartlett_32f_I>)
VEMI_DEFINE(vemiWinBartlettSep_32f_C1R, VEMI_SRC_DST(Vemi32f), separable<signal::sigWinBartlett_32f_I>)
VEMI_DEFINE(vemiWinBartlettSep_8u_C1IR, VEMI_SRCDST(Vemi8u), separable<signal::sigWinBartlett_32f_I>)
VEMI_DEFINE(vemiWinBartlettSep_32f_C1IR, VEMI_SRCDST(Vemi32f), separable<signal::sigWinBartlett_32f_I>)
VEMI_DEFINE(vemiWinHammingSep_8u_C1R, VEMI_SRC_DST(Vemi8u), separable<signal::sigWinHamming_32f_I>)
VEMI_DEFINE(vemiWinHammingSep_32f_C1R, VEMI_SRC_DST(Vemi32f), separable<signal::sigWinHamming_32f_I>)
VEMI_DEFINE(vemiWinHammingSep_8u_C1IR, VEMI_SRCDST(Vemi8u), separable<signal::sigWinHamming_32f_I>)
VEMI_DEFINE(vemiWinHammingSep_32f_C1IR, VEMI_SRCDST(Vemi32f), separable<signal::sigWinHamming_32f_I>)
