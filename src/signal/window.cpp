#include "signal/window.h"

#include "core/checks.h"
#include "signal/sine.h"

namespace vemi::signal {
namespace {

/// Weights of a window, from either end inward, and rounded from double to single precision. Next() gives that of
/// element 0, then 1, ...; `last` is the number of the last element.
class BartlettWeights {
 public:
  explicit BartlettWeights(double last) : last_(last) {}

  double next() { return 2 * k_++ / last_; }

 private:
  double last_, k_ = 0;
};

/// 0.54 - y[k]. With c the cosine of one step, y[k + 1] = 2 c y[k] - y[k - 1].
class HammingWeights {
 public:
  explicit HammingWeights(double last) {
    const Lanes<double> d;
    const double c = hn::GetLane(Cosine()(d, hn::Set(d, 6.283185307179586 / last)));
    following_ = 0.46 * c;
    twoC_ = 2 * c;
  }

  double next() {
    const double y = y_;
    y_ = following_;
    following_ = twoC_ * y_ - y;
    return 0.54 - y;
  }

 private:
  double y_ = 0.46, following_, twoC_;
};

template <class Weights>
VemiStatus applyWindow(Vemi32f* pSrcDst, int len) {
  if (const VemiStatus bad = firstOf(checkNull(pSrcDst), len < 3 ? vemiErrSize : vemiOk)) return bad;
  Weights weights(len - 1);
  for (ptrdiff_t left = 0, right = len - 1; left <= right; ++left, --right) {
    const auto weight = static_cast<float>(weights.next());
    pSrcDst[left] *= weight;
    if (right != left) pSrcDst[right] *= weight;
  }
  return vemiOk;
}

}  // namespace

VemiStatus sigWinBartlett_32f_I(Vemi32f* pSrcDst, int len) { return applyWindow<BartlettWeights>(pSrcDst, len); }

VemiStatus sigWinHamming_32f_I(Vemi32f* pSrcDst, int len) { return applyWindow<HammingWeights>(pSrcDst, len); }

}  // namespace vemi::signal
