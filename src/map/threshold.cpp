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

// Behind the region of a SHAPE of core/exports.h: constants by value for one channel, arrays of them for several.
#define VEMI_THRESHOLD(SHAPE, name, T, ...) SHAPE(name, T, (T threshold), (&threshold), __VA_ARGS__)
#define VEMI_THRESHOLDS(SHAPE, name, T, ...) SHAPE(name, T, (const T* threshold), (threshold), __VA_ARGS__)
#define VEMI_THRESHOLD_OP(SHAPE, name, T, ...) \
  SHAPE(name, T, (T threshold, vemiCmpOp cmpOp), (cmpOp, &threshold), __VA_ARGS__)
#define VEMI_THRESHOLDS_OP(SHAPE, name, T, ...) \
  SHAPE(name, T, (const T* threshold, vemiCmpOp cmpOp), (cmpOp, threshold), __VA_ARGS__)
#define VEMI_THRESHOLD_VALUE(SHAPE, name, T, ...) \
  SHAPE(name, T, (T threshold, T value), (&threshold, &value), __VA_ARGS__)
#define VEMI_THRESHOLDS_VALUES(SHAPE, name, T, ...) \
  SHAPE(name, T, (const T* threshold, const T* value), (threshold, value), __VA_ARGS__)
#define VEMI_THRESHOLD_VALUE_OP(SHAPE, name, T, ...) \
  SHAPE(name, T, (T threshold, T value, vemiCmpOp cmpOp), (cmpOp, &threshold, &value), __VA_ARGS__)
#define VEMI_THRESHOLDS_VALUES_OP(SHAPE, name, T, ...) \
  SHAPE(name, T, (const T* threshold, const T* value, vemiCmpOp cmpOp), (cmpOp, threshold, value), __VA_ARGS__)
#define VEMI_LTVAL_GTVAL(SHAPE, name, T, ...)                          \
  SHAPE(name, T, (T thresholdLT, T valueLT, T thresholdGT, T valueGT), \
        (&thresholdLT, &valueLT, &thresholdGT, &valueGT), __VA_ARGS__)
#define VEMI_LTVALS_GTVALS(SHAPE, name, T, ...)                                                    \
  SHAPE(name, T, (const T* thresholdLT, const T* valueLT, const T* thresholdGT, const T* valueGT), \
        (thresholdLT, valueLT, thresholdGT, valueGT), __VA_ARGS__)

VEMI_THRESHOLD_OP(VEMI_SRC_DST_AND, vemiThreshold_8u_C1R, Vemi8u, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_8u_C3R, Vemi8u, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_8u_AC4R, Vemi8u, thresholdedBy<AC4, Clipped>)
VEMI_THRESHOLD_OP(VEMI_SRCDST_AND, vemiThreshold_8u_C1IR, Vemi8u, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_8u_C3IR, Vemi8u, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_8u_AC4IR, Vemi8u, thresholdedBy<AC4, Clipped>)

VEMI_THRESHOLD_OP(VEMI_SRC_DST_AND, vemiThreshold_16s_C1R, Vemi16s, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_16s_C3R, Vemi16s, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_16s_AC4R, Vemi16s, thresholdedBy<AC4, Clipped>)
VEMI_THRESHOLD_OP(VEMI_SRCDST_AND, vemiThreshold_16s_C1IR, Vemi16s, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_16s_C3IR, Vemi16s, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_16s_AC4IR, Vemi16s, thresholdedBy<AC4, Clipped>)

VEMI_THRESHOLD_OP(VEMI_SRC_DST_AND, vemiThreshold_32f_C1R, Vemi32f, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_32f_C3R, Vemi32f, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRC_DST_AND, vemiThreshold_32f_AC4R, Vemi32f, thresholdedBy<AC4, Clipped>)
VEMI_THRESHOLD_OP(VEMI_SRCDST_AND, vemiThreshold_32f_C1IR, Vemi32f, thresholdedBy<C1, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_32f_C3IR, Vemi32f, thresholdedBy<C3, Clipped>)
VEMI_THRESHOLDS_OP(VEMI_SRCDST_AND, vemiThreshold_32f_AC4IR, Vemi32f, thresholdedBy<AC4, Clipped>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_LT_8u_C1R, Vemi8u, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_8u_C3R, Vemi8u, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_8u_AC4R, Vemi8u, thresholded<AC4, Clipped<Below>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_LT_8u_C1IR, Vemi8u, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_8u_C3IR, Vemi8u, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_8u_AC4IR, Vemi8u, thresholded<AC4, Clipped<Below>>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_LT_16s_C1R, Vemi16s, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_16s_C3R, Vemi16s, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_16s_AC4R, Vemi16s, thresholded<AC4, Clipped<Below>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_LT_16s_C1IR, Vemi16s, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_16s_C3IR, Vemi16s, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_16s_AC4IR, Vemi16s, thresholded<AC4, Clipped<Below>>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_LT_32f_C1R, Vemi32f, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_32f_C3R, Vemi32f, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_LT_32f_AC4R, Vemi32f, thresholded<AC4, Clipped<Below>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_LT_32f_C1IR, Vemi32f, thresholded<C1, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_32f_C3IR, Vemi32f, thresholded<C3, Clipped<Below>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_LT_32f_AC4IR, Vemi32f, thresholded<AC4, Clipped<Below>>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_GT_8u_C1R, Vemi8u, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_8u_C3R, Vemi8u, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_8u_AC4R, Vemi8u, thresholded<AC4, Clipped<Above>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_GT_8u_C1IR, Vemi8u, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_8u_C3IR, Vemi8u, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_8u_AC4IR, Vemi8u, thresholded<AC4, Clipped<Above>>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_GT_16s_C1R, Vemi16s, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_16s_C3R, Vemi16s, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_16s_AC4R, Vemi16s, thresholded<AC4, Clipped<Above>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_GT_16s_C1IR, Vemi16s, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_16s_C3IR, Vemi16s, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_16s_AC4IR, Vemi16s, thresholded<AC4, Clipped<Above>>)

VEMI_THRESHOLD(VEMI_SRC_DST_AND, vemiThreshold_GT_32f_C1R, Vemi32f, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_32f_C3R, Vemi32f, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRC_DST_AND, vemiThreshold_GT_32f_AC4R, Vemi32f, thresholded<AC4, Clipped<Above>>)
VEMI_THRESHOLD(VEMI_SRCDST_AND, vemiThreshold_GT_32f_C1IR, Vemi32f, thresholded<C1, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_32f_C3IR, Vemi32f, thresholded<C3, Clipped<Above>>)
VEMI_THRESHOLDS(VEMI_SRCDST_AND, vemiThreshold_GT_32f_AC4IR, Vemi32f, thresholded<AC4, Clipped<Above>>)

VEMI_THRESHOLD_VALUE_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_8u_C1R, Vemi8u, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_8u_C3R, Vemi8u, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_8u_AC4R, Vemi8u, thresholdedBy<AC4, Replaced>)
VEMI_THRESHOLD_VALUE_OP(VEMI_SRCDST_AND, vemiThreshold_Val_8u_C1IR, Vemi8u, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_8u_C3IR, Vemi8u, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_8u_AC4IR, Vemi8u, thresholdedBy<AC4, Replaced>)

VEMI_THRESHOLD_VALUE_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_16s_C1R, Vemi16s, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_16s_C3R, Vemi16s, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_16s_AC4R, Vemi16s, thresholdedBy<AC4, Replaced>)
VEMI_THRESHOLD_VALUE_OP(VEMI_SRCDST_AND, vemiThreshold_Val_16s_C1IR, Vemi16s, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_16s_C3IR, Vemi16s, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_16s_AC4IR, Vemi16s, thresholdedBy<AC4, Replaced>)

VEMI_THRESHOLD_VALUE_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_32f_C1R, Vemi32f, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_32f_C3R, Vemi32f, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRC_DST_AND, vemiThreshold_Val_32f_AC4R, Vemi32f, thresholdedBy<AC4, Replaced>)
VEMI_THRESHOLD_VALUE_OP(VEMI_SRCDST_AND, vemiThreshold_Val_32f_C1IR, Vemi32f, thresholdedBy<C1, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_32f_C3IR, Vemi32f, thresholdedBy<C3, Replaced>)
VEMI_THRESHOLDS_VALUES_OP(VEMI_SRCDST_AND, vemiThreshold_Val_32f_AC4IR, Vemi32f, thresholdedBy<AC4, Replaced>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_LTVal_8u_C1R, Vemi8u, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_8u_C3R, Vemi8u, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_8u_C4R, Vemi8u, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_8u_AC4R, Vemi8u, thresholded<AC4, Replaced<Below>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_LTVal_8u_C1IR, Vemi8u, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_8u_C3IR, Vemi8u, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_8u_C4IR, Vemi8u, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_8u_AC4IR, Vemi8u, thresholded<AC4, Replaced<Below>>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_LTVal_16s_C1R, Vemi16s, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_16s_C3R, Vemi16s, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_16s_C4R, Vemi16s, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_16s_AC4R, Vemi16s, thresholded<AC4, Replaced<Below>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_LTVal_16s_C1IR, Vemi16s, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_16s_C3IR, Vemi16s, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_16s_C4IR, Vemi16s, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_16s_AC4IR, Vemi16s, thresholded<AC4, Replaced<Below>>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_LTVal_32f_C1R, Vemi32f, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_32f_C3R, Vemi32f, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_32f_C4R, Vemi32f, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_LTVal_32f_AC4R, Vemi32f, thresholded<AC4, Replaced<Below>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_LTVal_32f_C1IR, Vemi32f, thresholded<C1, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_32f_C3IR, Vemi32f, thresholded<C3, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_32f_C4IR, Vemi32f, thresholded<C4, Replaced<Below>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_LTVal_32f_AC4IR, Vemi32f, thresholded<AC4, Replaced<Below>>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_GTVal_8u_C1R, Vemi8u, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_8u_C3R, Vemi8u, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_8u_C4R, Vemi8u, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_8u_AC4R, Vemi8u, thresholded<AC4, Replaced<Above>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_GTVal_8u_C1IR, Vemi8u, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_8u_C3IR, Vemi8u, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_8u_C4IR, Vemi8u, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_8u_AC4IR, Vemi8u, thresholded<AC4, Replaced<Above>>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_GTVal_16s_C1R, Vemi16s, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_16s_C3R, Vemi16s, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_16s_C4R, Vemi16s, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_16s_AC4R, Vemi16s, thresholded<AC4, Replaced<Above>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_GTVal_16s_C1IR, Vemi16s, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_16s_C3IR, Vemi16s, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_16s_C4IR, Vemi16s, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_16s_AC4IR, Vemi16s, thresholded<AC4, Replaced<Above>>)

VEMI_THRESHOLD_VALUE(VEMI_SRC_DST_AND, vemiThreshold_GTVal_32f_C1R, Vemi32f, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_32f_C3R, Vemi32f, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_32f_C4R, Vemi32f, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRC_DST_AND, vemiThreshold_GTVal_32f_AC4R, Vemi32f, thresholded<AC4, Replaced<Above>>)
VEMI_THRESHOLD_VALUE(VEMI_SRCDST_AND, vemiThreshold_GTVal_32f_C1IR, Vemi32f, thresholded<C1, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_32f_C3IR, Vemi32f, thresholded<C3, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_32f_C4IR, Vemi32f, thresholded<C4, Replaced<Above>>)
VEMI_THRESHOLDS_VALUES(VEMI_SRCDST_AND, vemiThreshold_GTVal_32f_AC4IR, Vemi32f, thresholded<AC4, Replaced<Above>>)

VEMI_LTVAL_GTVAL(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_8u_C1R, Vemi8u, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_8u_C3R, Vemi8u, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_8u_AC4R, Vemi8u, thresholdedOutside<AC4>)
VEMI_LTVAL_GTVAL(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_8u_C1IR, Vemi8u, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_8u_C3IR, Vemi8u, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_8u_AC4IR, Vemi8u, thresholdedOutside<AC4>)

VEMI_LTVAL_GTVAL(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_16s_C1R, Vemi16s, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_16s_C3R, Vemi16s, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_16s_AC4R, Vemi16s, thresholdedOutside<AC4>)
VEMI_LTVAL_GTVAL(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_16s_C1IR, Vemi16s, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_16s_C3IR, Vemi16s, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_16s_AC4IR, Vemi16s, thresholdedOutside<AC4>)

VEMI_LTVAL_GTVAL(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_32f_C1R, Vemi32f, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_32f_C3R, Vemi32f, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRC_DST_AND, vemiThreshold_LTValGTVal_32f_AC4R, Vemi32f, thresholdedOutside<AC4>)
VEMI_LTVAL_GTVAL(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_32f_C1IR, Vemi32f, thresholdedOutside<C1>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_32f_C3IR, Vemi32f, thresholdedOutside<C3>)
VEMI_LTVALS_GTVALS(VEMI_SRCDST_AND, vemiThreshold_LTValGTVal_32f_AC4IR, Vemi32f, thresholdedOutside<AC4>)
