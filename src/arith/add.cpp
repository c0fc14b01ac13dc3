// vemiAdd, vemiAddC: destination = (source 1 + source 2) / 2^scaleFactor for integers, the plain sum for floats.
// Checks: null, size, step; the C3 and C4 forms of integer vemiAdd look at the width first.

#include "arith/region_rows.h"
#include "arith/settled.h"
#include "arith/sum.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_row.h"
#include "vemi/arith.h"

namespace vemi {
namespace {

constexpr auto plainSum = [](auto, auto a, auto b) HWY_ATTR { return hn::Add(a, b); };

/// The serial threshold stands on the branches for scale factors of 0 and more; the rare others fork without it.
template <class T, class L>
bool staysSerial(VemiSize roiSize, int scaleFactor) {
  return scaleFactor >= 0 && belowSerialThreshold(roiSize.height, roiSize.width * pixelBytes<T, L>);
}

template <class T, class L, class Rows>
VemiStatus addScaled(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  if (scaleFactor > largestSumScale<T>) return fillRegion<T, L>(0, dst, roiSize);
  withScaledSum<T>(scaleFactor, [&](const auto& sum) {
    Rows::run(roiSize.height, staysSerial<T, L>(roiSize, scaleFactor),
              [&](int y) { mapRow<L>(roiSize.width, sum, dst.row(y), src1.row(y), src2.row(y)); });
  });
  return vemiOk;
}

/// The C3 and C4 forms stand on the one-channel form, and so on its parallel region, but test the width ahead of all.
template <class T, class L>
VemiStatus addScaledChannels(Image<const T> src1, Image<const T> src2, Image<T> dst, VemiSize roiSize,
                             int scaleFactor) {
  if (roiSize.width < 1) return vemiErrSize;
  return addScaled<T, L, TeamRows>(src1, src2, dst, roiSize, scaleFactor);
}

template <class L, class Rows>
VemiStatus addFloat(Image<const Vemi32f> src1, Image<const Vemi32f> src2, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkSize(roiSize), checkStep(src1, src2, dst))) {
    return bad;
  }
  Rows::run(roiSize.height, staysSerial<Vemi32f, L>(roiSize, 0),
            [&](int y) { mapRow<L>(roiSize.width, plainSum, dst.row(y), src1.row(y), src2.row(y)); });
  return vemiOk;
}

template <class T, class L, class Rows>
VemiStatus addScaledC(Image<const T> src, const T* value, Image<T> dst, VemiSize roiSize, int scaleFactor) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  if (scaleFactor > largestSumScale<T>) return fillRegion<T, L>(0, dst, roiSize);
  if constexpr (L::elements == 1) {  // one constant may settle the whole region
    if (*value == 0 && scaleFactor == 0) return copyRegion(src, dst, roiSize);
    if (std::is_unsigned_v<T> && *value != 0 && scaleFactor <= -8) return fillRegion<T, L>(255, dst, roiSize);
  }
  const Constants<T, L> constants(value);
  withScaledSum<T>(scaleFactor, [&](const auto& sum) {
    Rows::run(roiSize.height, staysSerial<T, L>(roiSize, scaleFactor),
              [&](int y) { mapRowC(roiSize.width, sum, constants, dst.row(y), src.row(y)); });
  });
  return vemiOk;
}

template <class L, class Rows>
VemiStatus addFloatC(Image<const Vemi32f> src, const Vemi32f* value, Image<Vemi32f> dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const Constants<Vemi32f, L> constants(value);
  Rows::run(roiSize.height, staysSerial<Vemi32f, L>(roiSize, 0),
            [&](int y) { mapRowC(roiSize.width, plainSum, constants, dst.row(y), src.row(y)); });
  return vemiOk;
}

}  // namespace
}  // namespace vemi

using namespace vemi;

VEMI_2SRC_DST_SFS(vemiAdd_8u_C1RSfs, Vemi8u, addScaled<Vemi8u, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_C3RSfs, Vemi8u, addScaledChannels<Vemi8u, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_C4RSfs, Vemi8u, addScaledChannels<Vemi8u, C4>)
VEMI_2SRC_DST_SFS(vemiAdd_8u_AC4RSfs, Vemi8u, addScaled<Vemi8u, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C1IRSfs, Vemi8u, addScaled<Vemi8u, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C3IRSfs, Vemi8u, addScaledChannels<Vemi8u, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_C4IRSfs, Vemi8u, addScaledChannels<Vemi8u, C4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_8u_AC4IRSfs, Vemi8u, addScaled<Vemi8u, AC4, CallerRows>)

VEMI_2SRC_DST_SFS(vemiAdd_16s_C1RSfs, Vemi16s, addScaled<Vemi16s, C1, TeamRows>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_C3RSfs, Vemi16s, addScaledChannels<Vemi16s, C3>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_C4RSfs, Vemi16s, addScaledChannels<Vemi16s, C4>)
VEMI_2SRC_DST_SFS(vemiAdd_16s_AC4RSfs, Vemi16s, addScaled<Vemi16s, AC4, CallerRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C1IRSfs, Vemi16s, addScaled<Vemi16s, C1, TeamRows>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C3IRSfs, Vemi16s, addScaledChannels<Vemi16s, C3>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_C4IRSfs, Vemi16s, addScaledChannels<Vemi16s, C4>)
VEMI_SRC_SRCDST_SFS(vemiAdd_16s_AC4IRSfs, Vemi16s, addScaled<Vemi16s, AC4, CallerRows>)

VEMI_2SRC_DST(vemiAdd_32f_C1R, Vemi32f, addFloat<C1, TeamRows>)
VEMI_2SRC_DST(vemiAdd_32f_C3R, Vemi32f, addFloat<C3, CallerRows>)
VEMI_2SRC_DST(vemiAdd_32f_C4R, Vemi32f, addFloat<C4, CallerRows>)
VEMI_2SRC_DST(vemiAdd_32f_AC4R, Vemi32f, addFloat<AC4, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C1IR, Vemi32f, addFloat<C1, TeamRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C3IR, Vemi32f, addFloat<C3, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_C4IR, Vemi32f, addFloat<C4, CallerRows>)
VEMI_SRC_SRCDST(vemiAdd_32f_AC4IR, Vemi32f, addFloat<AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_8u_C1RSfs, Vemi8u, addScaledC<Vemi8u, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_C3RSfs, Vemi8u, addScaledC<Vemi8u, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_C4RSfs, Vemi8u, addScaledC<Vemi8u, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_8u_AC4RSfs, Vemi8u, addScaledC<Vemi8u, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_8u_C1IRSfs, Vemi8u, addScaledC<Vemi8u, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_C3IRSfs, Vemi8u, addScaledC<Vemi8u, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_C4IRSfs, Vemi8u, addScaledC<Vemi8u, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_8u_AC4IRSfs, Vemi8u, addScaledC<Vemi8u, AC4, CallerRows>)

VEMI_SRC_VALUE_DST_SFS(vemiAddC_16s_C1RSfs, Vemi16s, addScaledC<Vemi16s, C1, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_C3RSfs, Vemi16s, addScaledC<Vemi16s, C3, TeamRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_C4RSfs, Vemi16s, addScaledC<Vemi16s, C4, CallerRows>)
VEMI_SRC_VALUES_DST_SFS(vemiAddC_16s_AC4RSfs, Vemi16s, addScaledC<Vemi16s, AC4, CallerRows>)
VEMI_VALUE_SRCDST_SFS(vemiAddC_16s_C1IRSfs, Vemi16s, addScaledC<Vemi16s, C1, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_C3IRSfs, Vemi16s, addScaledC<Vemi16s, C3, TeamRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_C4IRSfs, Vemi16s, addScaledC<Vemi16s, C4, CallerRows>)
VEMI_VALUES_SRCDST_SFS(vemiAddC_16s_AC4IRSfs, Vemi16s, addScaledC<Vemi16s, AC4, CallerRows>)

VEMI_SRC_VALUE_DST(vemiAddC_32f_C1R, Vemi32f, addFloatC<C1, TeamRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_C3R, Vemi32f, addFloatC<C3, TeamRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_C4R, Vemi32f, addFloatC<C4, CallerRows>)
VEMI_SRC_VALUES_DST(vemiAddC_32f_AC4R, Vemi32f, addFloatC<AC4, CallerRows>)
VEMI_VALUE_SRCDST(vemiAddC_32f_C1IR, Vemi32f, addFloatC<C1, TeamRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_C3IR, Vemi32f, addFloatC<C3, TeamRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_C4IR, Vemi32f, addFloatC<C4, CallerRows>)
VEMI_VALUES_SRCDST(vemiAddC_32f_AC4IR, Vemi32f, addFloatC<AC4, TeamRows>)
