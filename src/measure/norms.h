// The three norms of a term over a region, channel by channel: its largest value, its sum, the root of the sum of its
// squares. The term is the magnitude of an element or of a difference of two.
#pragma once

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "core/checks.h"
#include "measure/exact_sums.h"
#include "measure/float_sums.h"
#include "measure/keep_best.h"
#include "measure/terms.h"

namespace vemi::measure {

/// Norms of all channels of a pixel.
template <class L>
struct Norms {
  double channel[L::elements];
};

struct Inf {
  template <class L, class Term, class T, class... Src>
  static Norms<L> of(VemiSize roiSize, vemiHint, Image<const T> src, Src... others) {
    const auto values = bestOf<L>(KeepBest<T, MagnitudeOf<T>, Term, Largest>(), roiSize, src, others...);
    Norms<L> norms;
    std::copy_n(values.best[0], L::elements, norms.channel);
    return norms;
  }
};

/// Integer sums are exact with any hint.
template <class Kind>
struct NormOfSums {
  template <class L, class Term, class T, class... Src>
  static Norms<L> of(VemiSize roiSize, vemiHint hint, Image<const T> src, Src... others) {
    Norms<L> norms;
    if constexpr (std::is_floating_point_v<T>) {
      floatSums<L, typename Kind::template FloatTerm<Term>>(roiSize, norms.channel, hint, src, others...);
    } else {
      using Adding = typename Kind::template Adding<L, std::make_unsigned_t<T>>;
      const ChannelSums<L> sums = exactSums<L>(roiSize, ExactSums<T, Term, Adding>(), src, others...);
      std::copy_n(sums.channel, L::elements, norms.channel);
    }
    for (double& each : norms.channel) each = Kind::ofSum(each);
    return norms;
  }
};

struct L1 : NormOfSums<L1> {
  template <class Term>
  using FloatTerm = Term;
  template <class L, class T>
  using Adding = std::conditional_t<L::elements == 1 && sizeof(T) == 1, AddBytes, AddApart<T>>;
  static double ofSum(double sum) { return sum; }
};

struct L2 : NormOfSums<L2> {
  template <class Term>
  using FloatTerm = Squared<Term>;
  template <class L, class T>
  using Adding = std::conditional_t<L::elements == 1 && sizeof(T) == 1, AddSquaredBytes, AddSquaresApart<T>>;
  static double ofSum(double sum) { return std::sqrt(sum); }
};

/// Of one image.
template <class Kind, class L, class T>
VemiStatus norm(Image<const T> src, VemiSize roiSize, Vemi64f* pValue, vemiHint hint = vemiHintNone) {
  if (const VemiStatus bad = firstOf(checkNull(src, pValue), checkSize(roiSize), checkStep(src))) return bad;
  const auto norms = Kind::template of<Interleaved<L::elements>, Magnitude>(roiSize, hint, src);
  std::copy_n(norms.channel, L::channels, pValue);
  return vemiOk;
}

/// Of the difference of two images.
template <class Kind, class L, class T>
VemiStatus normDiff(Image<const T> src1, Image<const T> src2, VemiSize roiSize, Vemi64f* pValue,
                    vemiHint hint = vemiHintNone) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, pValue), checkSize(roiSize), checkStep(src1, src2))) {
    return bad;
  }
  const auto norms = Kind::template of<Interleaved<L::elements>, AbsoluteDifference>(roiSize, hint, src1, src2);
  std::copy_n(norms.channel, L::channels, pValue);
  return vemiOk;
}

}  // namespace vemi::measure
