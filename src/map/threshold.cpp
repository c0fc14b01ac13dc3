// vemiThreshold and its forms: an element below (above) its channel's threshold becomes the threshold, or a value. Any
// other keeps its bits; a NaN is neither below nor above anything, and a zero not below or above one of the other sign.
// Checks: null images, size, step, null arrays, operator, order of the two thresholds.

#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_region.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

// ---- The conditions, and what they make of an element ----

struct Below {
  template <class V>
  HWY_INLINE static auto holds(V x, V threshold) {
    return hn::Lt(x, threshold);
  }
  template <class V>
  HWY_INLINE static V limited(V x, V threshold) {
    return hn::Max(x, threshold);
  }
};

struct Above {
  template <class V>
  HWY_INLINE static auto holds(V x, V threshold) {
    return hn::Gt(x, threshold);
  }
  template <class V>
  HWY_INLINE static V limited(V x, V threshold) {
    return hn::Min(x, threshold);
  }
};

template <class Condition>
struct Replaced {
  template <class D, class V>
  HWY_INLINE V operator()(D, V x, V threshold, V value) const {
    return hn::IfThenElse(Condition::holds(x, threshold), value, x);
  }
};

/// Floats take the condition as it is written: minima and maxima of processors differ where a NaN or two zeros meet.
template <class Condition>
struct Clipped {
  template <class D, class V>
  HWY_INLINE V operator()(D, V x, V threshold) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::IfThenElse(Condition::holds(x, threshold), threshold, x);
    } else {
      return Condition::limited(x, threshold);
    }
  }
};

struct ReplacedOutside {
  template <class D, class V>
  HWY_INLINE V operator()(D, V x, V thresholdLT, V valueLT, V thresholdGT, V valueGT) const {
    const V notAbove = hn::IfThenElse(Above::holds(x, thresholdGT), valueGT, x);
    return hn::IfThenElse(Below::holds(x, thresholdLT), valueLT, notAbove);
  }
};

// ---- Regions; the constants are one element for each channel ----

template <class T, class... Constants>
VemiStatus check(Image<const T> src, Image<T> dst, VemiSize roiSize, const Constants*... constants) {
  return firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), checkNull(constants...));
}

template <class L, class Op, class T, class... Constants>
VemiStatus map(Image<const T> src, Image<T> dst, VemiSize roiSize, const Constants*... constants) {
  mapRegion<L>(CallerRows(), roiSize, withConstants<L>(Op(), constants...), dst, src);
  return vemiOk;
}

template <class L, class Op, class T, class... Constants>
VemiStatus thresholded(Image<const T> src, Image<T> dst, VemiSize roiSize, const Constants*... constants) {
  if (const VemiStatus bad = check(src, dst, roiSize, constants...)) return bad;
  return map<L, Op>(src, dst, roiSize, constants...);
}

/// Op is Clipped or Replaced; the operator is its condition.
template <class L, template <class> class Op, class T, class... Constants>
VemiStatus thresholdedBy(Image<const T> src, Image<T> dst, VemiSize roiSize, vemiCmpOp cmpOp,
                         const Constants*... constants) {
  if (const VemiStatus bad = check(src, dst, roiSize, constants...)) return bad;
  if (cmpOp == vemiCmpLess) return map<L, Op<Below>>(src, dst, roiSize, constants...);
  if (cmpOp == vemiCmpGreater) return map<L, Op<Above>>(src, dst, roiSize, constants...);
  return vemiErrUnsupportedMode;
}

/// A NaN is in no order.
template <class L, class T>
bool isOrdered(const T* lower, const T* upper) {
  bool ordered = true;
  for (int channel = 0; channel < L::channels; ++channel) ordered = ordered && upper[channel] >= lower[channel];
  return ordered;
}

template <class L, class T>
VemiStatus thresholdedOutside(Image<const T> src, Image<T> dst, VemiSize roiSize, const T* thresholdLT,
                              const T* valueLT, const T* thresholdGT, const T* valueGT) {
  if (const VemiStatus bad = check(src, dst, roiSize, thresholdLT, valueLT, thresholdGT, valueGT)) return bad;
  if (!isOrdered<L>(thresholdLT, thresholdGT)) return vemiErrThreshold;
  return map<L, ReplacedOutside>(src, dst, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

// Constants behind the region, by value for one channel, in arrays for several.
#define THRESHOLD(HEAD, T) HEAD(T, ((T threshold), (&threshold)))
#define THRESHOLDS(HEAD, T) HEAD(T, ((const T* threshold), (threshold)))
#define THRESHOLD_OP(HEAD, T) HEAD(T, ((T threshold, vemiCmpOp cmpOp), (cmpOp, &threshold)))
#define THRESHOLDS_OP(HEAD, T) HEAD(T, ((const T* threshold, vemiCmpOp cmpOp), (cmpOp, threshold)))
#define THRESHOLD_VALUE(HEAD, T) HEAD(T, ((T threshold, T value), (&threshold, &value)))
#define THRESHOLDS_VALUES(HEAD, T) HEAD(T, ((const T* threshold, const T* value), (threshold, value)))
#define THRESHOLD_VALUE_OP(HEAD, T) HEAD(T, ((T threshold, T value, vemiCmpOp cmpOp), (cmpOp, &threshold, &value)))
#define THRESHOLDS_VALUES_OP(HEAD, T) \
  HEAD(T, ((const T* threshold, const T* value, vemiCmpOp cmpOp), (cmpOp, threshold, value)))
#define LTVAL_GTVAL(HEAD, T) \
  HEAD(T, ((T thresholdLT, T valueLT, T thresholdGT, T valueGT), (&thresholdLT, &valueLT, &thresholdGT, &valueGT)))
#define LTVALS_GTVALS(HEAD, T)                                                               \
  HEAD(T, ((const T* thresholdLT, const T* valueLT, const T* thresholdGT, const T* valueGT), \
           (thresholdLT, valueLT, thresholdGT, valueGT)))

VEMI_DEFINE(vemiThreshold_8u_C1R, THRESHOLD_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_8u_C3R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_8u_AC4R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<AC4, Clipped>)
VEMI_DEFINE(vemiThreshold_8u_C1IR, THRESHOLD_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_8u_C3IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_8u_AC4IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<AC4, Clipped>)

VEMI_DEFINE(vemiThreshold_16s_C1R, THRESHOLD_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_16s_C3R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_16s_AC4R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<AC4, Clipped>)
VEMI_DEFINE(vemiThreshold_16s_C1IR, THRESHOLD_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_16s_C3IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_16s_AC4IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<AC4, Clipped>)

VEMI_DEFINE(vemiThreshold_32f_C1R, THRESHOLD_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_32f_C3R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_32f_AC4R, THRESHOLDS_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<AC4, Clipped>)
VEMI_DEFINE(vemiThreshold_32f_C1IR, THRESHOLD_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<C1, Clipped>)
VEMI_DEFINE(vemiThreshold_32f_C3IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<C3, Clipped>)
VEMI_DEFINE(vemiThreshold_32f_AC4IR, THRESHOLDS_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<AC4, Clipped>)

VEMI_DEFINE(vemiThreshold_LT_8u_C1R, THRESHOLD(VEMI_SRC_DST, Vemi8u), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_8u_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi8u), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_8u_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi8u), thresholded<AC4, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_8u_C1IR, THRESHOLD(VEMI_SRCDST, Vemi8u), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_8u_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi8u), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_8u_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi8u), thresholded<AC4, Clipped<Below>>)

VEMI_DEFINE(vemiThreshold_LT_16s_C1R, THRESHOLD(VEMI_SRC_DST, Vemi16s), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_16s_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi16s), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_16s_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi16s), thresholded<AC4, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_16s_C1IR, THRESHOLD(VEMI_SRCDST, Vemi16s), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_16s_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi16s), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_16s_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi16s), thresholded<AC4, Clipped<Below>>)

VEMI_DEFINE(vemiThreshold_LT_32f_C1R, THRESHOLD(VEMI_SRC_DST, Vemi32f), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_32f_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi32f), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_32f_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi32f), thresholded<AC4, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_32f_C1IR, THRESHOLD(VEMI_SRCDST, Vemi32f), thresholded<C1, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_32f_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi32f), thresholded<C3, Clipped<Below>>)
VEMI_DEFINE(vemiThreshold_LT_32f_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi32f), thresholded<AC4, Clipped<Below>>)

VEMI_DEFINE(vemiThreshold_GT_8u_C1R, THRESHOLD(VEMI_SRC_DST, Vemi8u), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_8u_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi8u), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_8u_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi8u), thresholded<AC4, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_8u_C1IR, THRESHOLD(VEMI_SRCDST, Vemi8u), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_8u_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi8u), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_8u_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi8u), thresholded<AC4, Clipped<Above>>)

VEMI_DEFINE(vemiThreshold_GT_16s_C1R, THRESHOLD(VEMI_SRC_DST, Vemi16s), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_16s_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi16s), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_16s_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi16s), thresholded<AC4, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_16s_C1IR, THRESHOLD(VEMI_SRCDST, Vemi16s), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_16s_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi16s), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_16s_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi16s), thresholded<AC4, Clipped<Above>>)

VEMI_DEFINE(vemiThreshold_GT_32f_C1R, THRESHOLD(VEMI_SRC_DST, Vemi32f), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_32f_C3R, THRESHOLDS(VEMI_SRC_DST, Vemi32f), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_32f_AC4R, THRESHOLDS(VEMI_SRC_DST, Vemi32f), thresholded<AC4, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_32f_C1IR, THRESHOLD(VEMI_SRCDST, Vemi32f), thresholded<C1, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_32f_C3IR, THRESHOLDS(VEMI_SRCDST, Vemi32f), thresholded<C3, Clipped<Above>>)
VEMI_DEFINE(vemiThreshold_GT_32f_AC4IR, THRESHOLDS(VEMI_SRCDST, Vemi32f), thresholded<AC4, Clipped<Above>>)

VEMI_DEFINE(vemiThreshold_Val_8u_C1R, THRESHOLD_VALUE_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_8u_C3R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_8u_AC4R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi8u), thresholdedBy<AC4, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_8u_C1IR, THRESHOLD_VALUE_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_8u_C3IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_8u_AC4IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi8u), thresholdedBy<AC4, Replaced>)

VEMI_DEFINE(vemiThreshold_Val_16s_C1R, THRESHOLD_VALUE_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_16s_C3R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_16s_AC4R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi16s), thresholdedBy<AC4, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_16s_C1IR, THRESHOLD_VALUE_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_16s_C3IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_16s_AC4IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi16s), thresholdedBy<AC4, Replaced>)

VEMI_DEFINE(vemiThreshold_Val_32f_C1R, THRESHOLD_VALUE_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_32f_C3R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_32f_AC4R, THRESHOLDS_VALUES_OP(VEMI_SRC_DST, Vemi32f), thresholdedBy<AC4, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_32f_C1IR, THRESHOLD_VALUE_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<C1, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_32f_C3IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<C3, Replaced>)
VEMI_DEFINE(vemiThreshold_Val_32f_AC4IR, THRESHOLDS_VALUES_OP(VEMI_SRCDST, Vemi32f), thresholdedBy<AC4, Replaced>)

VEMI_DEFINE(vemiThreshold_LTVal_8u_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi8u), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<AC4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi8u), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_8u_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<AC4, Replaced<Below>>)

VEMI_DEFINE(vemiThreshold_LTVal_16s_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi16s), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<AC4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi16s), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_16s_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<AC4, Replaced<Below>>)

VEMI_DEFINE(vemiThreshold_LTVal_32f_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi32f), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<AC4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi32f), thresholded<C1, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<C3, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<C4, Replaced<Below>>)
VEMI_DEFINE(vemiThreshold_LTVal_32f_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<AC4, Replaced<Below>>)

VEMI_DEFINE(vemiThreshold_GTVal_8u_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi8u), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi8u), thresholded<AC4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi8u), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_8u_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi8u), thresholded<AC4, Replaced<Above>>)

VEMI_DEFINE(vemiThreshold_GTVal_16s_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi16s), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi16s), thresholded<AC4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi16s), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_16s_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi16s), thresholded<AC4, Replaced<Above>>)

VEMI_DEFINE(vemiThreshold_GTVal_32f_C1R, THRESHOLD_VALUE(VEMI_SRC_DST, Vemi32f), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_C3R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_C4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_AC4R, THRESHOLDS_VALUES(VEMI_SRC_DST, Vemi32f), thresholded<AC4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_C1IR, THRESHOLD_VALUE(VEMI_SRCDST, Vemi32f), thresholded<C1, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_C3IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<C3, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_C4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<C4, Replaced<Above>>)
VEMI_DEFINE(vemiThreshold_GTVal_32f_AC4IR, THRESHOLDS_VALUES(VEMI_SRCDST, Vemi32f), thresholded<AC4, Replaced<Above>>)

VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_C1R, LTVAL_GTVAL(VEMI_SRC_DST, Vemi8u), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_C3R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi8u), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_AC4R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi8u), thresholdedOutside<AC4>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_C1IR, LTVAL_GTVAL(VEMI_SRCDST, Vemi8u), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_C3IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi8u), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_8u_AC4IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi8u), thresholdedOutside<AC4>)

VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_C1R, LTVAL_GTVAL(VEMI_SRC_DST, Vemi16s), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_C3R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi16s), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_AC4R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi16s), thresholdedOutside<AC4>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_C1IR, LTVAL_GTVAL(VEMI_SRCDST, Vemi16s), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_C3IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi16s), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_16s_AC4IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi16s), thresholdedOutside<AC4>)

VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_C1R, LTVAL_GTVAL(VEMI_SRC_DST, Vemi32f), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_C3R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi32f), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_AC4R, LTVALS_GTVALS(VEMI_SRC_DST, Vemi32f), thresholdedOutside<AC4>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_C1IR, LTVAL_GTVAL(VEMI_SRCDST, Vemi32f), thresholdedOutside<C1>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_C3IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi32f), thresholdedOutside<C3>)
VEMI_DEFINE(vemiThreshold_LTValGTVal_32f_AC4IR, LTVALS_GTVALS(VEMI_SRCDST, Vemi32f), thresholdedOutside<AC4>)
