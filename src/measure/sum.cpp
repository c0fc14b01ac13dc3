// vemiSum and vemiMean: the sum of each channel, and that sum divided by the number of pixels. Checks: null, size,
// step.

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "core/checks.h"
#include "core/map_row.h"
#include "measure/exact_sums.h"
#include "measure/exports.h"
#include "measure/float_sums.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

/// The float forms' term in both of their ways: the element.
struct Unchanged : Identity {
  using Identity::operator();
  double operator()(double value) const { return value; }
};

template <class L>
void sums(VemiSize roiSize, double (&sum)[L::elements], Image<const Vemi8u> src) {
  using Adding = std::conditional_t<L::elements == 1, AddBytes, AddApart<Vemi8u>>;
  const ChannelSums<L> exact = exactSums<L>(roiSize, ExactSums<Vemi8u, Identity, Adding>(), src);
  for (int c = 0; c < L::elements; ++c) sum[c] = static_cast<double>(exact.channel[c]);
}

template <class L>
void sums(VemiSize roiSize, double (&sum)[L::elements], Image<const Vemi16s> src) {
  using Adding = std::conditional_t<L::elements == 1, AddSignedPairs, AddSignedApart>;
  const ChannelSums<L> exact = exactSums<L>(roiSize, ExactSums<Vemi16s, Identity, Adding>(), src);
  for (int c = 0; c < L::elements; ++c) sum[c] = static_cast<double>(static_cast<int64_t>(exact.channel[c]));
}

template <class L>
void sums(VemiSize roiSize, double (&sum)[L::elements], Image<const Vemi32f> src, vemiHint hint) {
  floatSums<L, Unchanged>(roiSize, sum, hint, src);
}

/// Only the 32f forms have a hint.
template <class L, class T, class... Hint>
VemiStatus sum(Image<const T> src, VemiSize roiSize, Vemi64f* pSum, Hint... hint) {
  if (const VemiStatus bad = firstOf(checkNull(src, pSum), checkSize(roiSize), checkStep(src))) return bad;
  double channel[L::elements];
  sums<Interleaved<L::elements>>(roiSize, channel, src, hint...);
  std::copy_n(channel, L::channels, pSum);
  return vemiOk;
}

/// The number of pixels is their 32-bit product. Several channels are multiplied by its reciprocal, one is divided by
/// it, which may differ in the last bit.
template <class L, auto sumOf, class T, class... Hint>
VemiStatus mean(Image<const T> src, VemiSize roiSize, Vemi64f* pMean, Hint... hint) {
  if (const VemiStatus bad = sumOf(src.first, src.step, roiSize, pMean, hint...)) return bad;
  const auto product = static_cast<uint32_t>(roiSize.width) * static_cast<uint32_t>(roiSize.height);
  const double pixels = static_cast<int32_t>(product);
  if constexpr (L::channels == 1) {
    *pMean /= pixels;
  } else {
    const double reciprocal = 1.0 / pixels;
    for (int c = 0; c < L::channels; ++c) pMean[c] *= reciprocal;
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

VEMI_DEFINE(vemiSum_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pSum)), sum<C1>)
VEMI_DEFINE(vemiSum_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pSum)), sum<C3>)
VEMI_DEFINE(vemiSum_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pSum)), sum<C4>)
VEMI_DEFINE(vemiSum_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pSum)), sum<AC4>)
VEMI_DEFINE(vemiSum_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pSum)), sum<C1>)
VEMI_DEFINE(vemiSum_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pSum)), sum<C3>)
VEMI_DEFINE(vemiSum_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pSum)), sum<C4>)
VEMI_DEFINE(vemiSum_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pSum)), sum<AC4>)
VEMI_DEFINE(vemiSum_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pSum)), sum<C1>)
VEMI_DEFINE(vemiSum_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pSum)), sum<C3>)
VEMI_DEFINE(vemiSum_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pSum)), sum<C4>)
VEMI_DEFINE(vemiSum_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pSum)), sum<AC4>)

VEMI_DEFINE(vemiMean_8u_C1R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pMean)), mean<C1, vemiSum_8u_C1R>)
VEMI_DEFINE(vemiMean_8u_C3R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pMean)), mean<C3, vemiSum_8u_C3R>)
VEMI_DEFINE(vemiMean_8u_C4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pMean)), mean<C4, vemiSum_8u_C4R>)
VEMI_DEFINE(vemiMean_8u_AC4R, VEMI_SRC(Vemi8u, VEMI_RESULT(Vemi64f, pMean)), mean<AC4, vemiSum_8u_AC4R>)
VEMI_DEFINE(vemiMean_16s_C1R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pMean)), mean<C1, vemiSum_16s_C1R>)
VEMI_DEFINE(vemiMean_16s_C3R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pMean)), mean<C3, vemiSum_16s_C3R>)
VEMI_DEFINE(vemiMean_16s_C4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pMean)), mean<C4, vemiSum_16s_C4R>)
VEMI_DEFINE(vemiMean_16s_AC4R, VEMI_SRC(Vemi16s, VEMI_RESULT(Vemi64f, pMean)), mean<AC4, vemiSum_16s_AC4R>)
VEMI_DEFINE(vemiMean_32f_C1R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pMean)), mean<C1, vemiSum_32f_C1R>)
VEMI_DEFINE(vemiMean_32f_C3R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pMean)), mean<C3, vemiSum_32f_C3R>)
VEMI_DEFINE(vemiMean_32f_C4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pMean)), mean<C4, vemiSum_32f_C4R>)
VEMI_DEFINE(vemiMean_32f_AC4R, VEMI_SRC(Vemi32f, VEMI_RESULT_HINT(Vemi64f, pMean)), mean<AC4, vemiSum_32f_AC4R>)
