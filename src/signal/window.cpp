#include "signal/window.h"

#include <algorithm>

#include "core/checks.h"
#include "signal/sine.h"

namespace vemi {
namespace {

/// Weights are computed in double precision, each from its distance to the nearer end, and rounded to single precision.
/// A recurrence would be cheaper, but its error grows with the square of the length.
template <class Weight>
VemiStatus applyWindow(Vemi32f* pSrcDst, int len, const Weight& weight) {
  if (const VemiStatus bad = firstOf(checkNull(pSrcDst), len < 3 ? vemiErrSize : vemiOk)) return bad;
  const Lanes<double> d;
  const hn::Rebind<float, decltype(d)> dFloat;
  constexpr ptrdiff_t N = laneCount<double>;
  const ptrdiff_t last = len - 1, middle = last / 2;
  alignas(laneAlignment) float weights[N];
  for (ptrdiff_t i = 0; i <= middle; i += N) {
    const auto k = hn::Iota(d, static_cast<double>(i));
    hn::Store(hn::DemoteTo(dFloat, weight(d, k, hn::Set(d, static_cast<double>(last)))), dFloat, weights);
    for (ptrdiff_t left = i; left <= std::min(middle, i + N - 1); ++left) {
      const ptrdiff_t right = last - left;
      pSrcDst[left] *= weights[left - i];
      if (right != left) pSrcDst[right] *= weights[left - i];
    }
  }
  return vemiOk;
}

}  // namespace

VemiStatus sigWinBartlett_32f_I(Vemi32f* pSrcDst, int len) {
  return applyWindow(pSrcDst, len, [](auto, auto k, auto last) HWY_ATTR { return hn::Div(hn::Add(k, k), last); });
}

VemiStatus sigWinHamming_32f_I(Vemi32f* pSrcDst, int len) {
  return applyWindow(pSrcDst, len, [](auto d, auto k, auto last) HWY_ATTR {
    const auto angle = hn::Div(hn::Mul(k, hn::Set(d, 6.283185307179586)), last);
    return hn::Sub(hn::Set(d, 0.54), hn::Mul(hn::Set(d, 0.46), Cosine()(d, angle)));
  });
}

}  // namespace vemi
