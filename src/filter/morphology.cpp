// vemiErode, vemiDilate and their 3x3 forms: the least or the greatest of the pixels that a mask selects.
// Checks: null, step, size, then of the forms with a mask its size, a mask that selects nothing, the anchor; rows that
// are shorter than what is read or written.

#include <algorithm>

#include "core/checks.h"
#include "core/exports.h"
#include "filter/extremes.h"
#include "vemi/filter.h"

namespace vemi::filter {
namespace {

/// A row of the region with `around` columns beside it, and in the destination one without.
template <class L, class T>
VemiStatus checkStride(Image<const T> src, Image<T> dst, VemiSize roiSize, Vemi64s around) {
  const Vemi64s width = roiSize.width;
  return firstOf(checkRowFits<L>(src, width + around, vemiErrStride), checkRowFits<L>(dst, width, vemiErrStride));
}

VemiStatus checkMask(const Vemi8u* mask, VemiSize size) {
  if (const VemiStatus bad = checkMaskSize(size)) return bad;
  const ptrdiff_t count = ptrdiff_t{size.width} * size.height;
  const bool selects = std::any_of(mask, mask + count, [](Vemi8u selected) { return selected != 0; });
  return selects ? vemiOk : vemiErrZeroMask;
}

template <class Order, class T, class L>
VemiStatus morph3x3(Image<const T> src, Image<T> dst, VemiSize roiSize) {
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkStep(src, dst), checkSize(roiSize), checkStride<L>(src, dst, roiSize, 2))) {
    return bad;
  }
  const Window window = Window::fromFirst({3, 3}, {1, 1});
  return extremeOfRectangle<Order>(ExtremeCall<T>::template of<L>(src, dst, roiSize, window));
}

template <class Order, class T, class L>
VemiStatus morph(Image<const T> src, Image<T> dst, VemiSize roiSize, const Vemi8u* mask, VemiSize maskSize,
                 VemiPoint anchor) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst, mask), checkStep(src, dst), checkSize(roiSize))) return bad;
  if (const VemiStatus bad = firstOf(checkMask(mask, maskSize), checkAnchor(anchor, maskSize),
                                     checkStride<L>(src, dst, roiSize, Vemi64s{maskSize.width} - 1))) {
    return bad;
  }
  const Window window = Window::fromFirst(maskSize, anchor);
  const Selection selection = {mask, maskSize.width, window};
  return extremeOfSelection<Order>(ExtremeCall<T>::template of<L>(src, dst, roiSize, window), selection);
}

}  // namespace
}  // namespace vemi::filter

using namespace vemi;
using namespace vemi::filter;

#define MASK ((const Vemi8u* pMask, VemiSize maskSize, VemiPoint anchor), (pMask, maskSize, anchor))

VEMI_DEFINE(vemiErode3x3_8u_C1R, VEMI_SRC_DST(Vemi8u), morph3x3<Least, Vemi8u, C1>)
VEMI_DEFINE(vemiErode3x3_8u_C3R, VEMI_SRC_DST(Vemi8u), morph3x3<Least, Vemi8u, C3>)
VEMI_DEFINE(vemiErode3x3_8u_C4R, VEMI_SRC_DST(Vemi8u), morph3x3<Least, Vemi8u, C4>)
VEMI_DEFINE(vemiErode3x3_8u_AC4R, VEMI_SRC_DST(Vemi8u), morph3x3<Least, Vemi8u, AC4>)
VEMI_DEFINE(vemiErode3x3_8u_C1IR, VEMI_SRCDST(Vemi8u), morph3x3<Least, Vemi8u, C1>)
VEMI_DEFINE(vemiErode3x3_8u_C3IR, VEMI_SRCDST(Vemi8u), morph3x3<Least, Vemi8u, C3>)
VEMI_DEFINE(vemiErode3x3_8u_C4IR, VEMI_SRCDST(Vemi8u), morph3x3<Least, Vemi8u, C4>)
VEMI_DEFINE(vemiErode3x3_8u_AC4IR, VEMI_SRCDST(Vemi8u), morph3x3<Least, Vemi8u, AC4>)
VEMI_DEFINE(vemiErode3x3_32f_C1R, VEMI_SRC_DST(Vemi32f), morph3x3<Least, Vemi32f, C1>)
VEMI_DEFINE(vemiErode3x3_32f_C3R, VEMI_SRC_DST(Vemi32f), morph3x3<Least, Vemi32f, C3>)
VEMI_DEFINE(vemiErode3x3_32f_C4R, VEMI_SRC_DST(Vemi32f), morph3x3<Least, Vemi32f, C4>)
VEMI_DEFINE(vemiErode3x3_32f_AC4R, VEMI_SRC_DST(Vemi32f), morph3x3<Least, Vemi32f, AC4>)
VEMI_DEFINE(vemiErode3x3_32f_C1IR, VEMI_SRCDST(Vemi32f), morph3x3<Least, Vemi32f, C1>)
VEMI_DEFINE(vemiErode3x3_32f_C3IR, VEMI_SRCDST(Vemi32f), morph3x3<Least, Vemi32f, C3>)
VEMI_DEFINE(vemiErode3x3_32f_C4IR, VEMI_SRCDST(Vemi32f), morph3x3<Least, Vemi32f, C4>)
VEMI_DEFINE(vemiErode3x3_32f_AC4IR, VEMI_SRCDST(Vemi32f), morph3x3<Least, Vemi32f, AC4>)

VEMI_DEFINE(vemiErode_8u_C1R, VEMI_SRC_DST(Vemi8u, MASK), morph<Least, Vemi8u, C1>)
VEMI_DEFINE(vemiErode_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK), morph<Least, Vemi8u, C3>)
VEMI_DEFINE(vemiErode_8u_C4R, VEMI_SRC_DST(Vemi8u, MASK), morph<Least, Vemi8u, C4>)
VEMI_DEFINE(vemiErode_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK), morph<Least, Vemi8u, AC4>)
VEMI_DEFINE(vemiErode_8u_C1IR, VEMI_SRCDST(Vemi8u, MASK), morph<Least, Vemi8u, C1>)
VEMI_DEFINE(vemiErode_8u_C3IR, VEMI_SRCDST(Vemi8u, MASK), morph<Least, Vemi8u, C3>)
VEMI_DEFINE(vemiErode_8u_AC4IR, VEMI_SRCDST(Vemi8u, MASK), morph<Least, Vemi8u, AC4>)
VEMI_DEFINE(vemiErode_32f_C1R, VEMI_SRC_DST(Vemi32f, MASK), morph<Least, Vemi32f, C1>)
VEMI_DEFINE(vemiErode_32f_C3R, VEMI_SRC_DST(Vemi32f, MASK), morph<Least, Vemi32f, C3>)
VEMI_DEFINE(vemiErode_32f_C4R, VEMI_SRC_DST(Vemi32f, MASK), morph<Least, Vemi32f, C4>)
VEMI_DEFINE(vemiErode_32f_AC4R, VEMI_SRC_DST(Vemi32f, MASK), morph<Least, Vemi32f, AC4>)
VEMI_DEFINE(vemiErode_32f_C1IR, VEMI_SRCDST(Vemi32f, MASK), morph<Least, Vemi32f, C1>)
VEMI_DEFINE(vemiErode_32f_C3IR, VEMI_SRCDST(Vemi32f, MASK), morph<Least, Vemi32f, C3>)
VEMI_DEFINE(vemiErode_32f_AC4IR, VEMI_SRCDST(Vemi32f, MASK), morph<Least, Vemi32f, AC4>)

VEMI_DEFINE(vemiDilate3x3_8u_C1R, VEMI_SRC_DST(Vemi8u), morph3x3<Greatest, Vemi8u, C1>)
VEMI_DEFINE(vemiDilate3x3_8u_C3R, VEMI_SRC_DST(Vemi8u), morph3x3<Greatest, Vemi8u, C3>)
VEMI_DEFINE(vemiDilate3x3_8u_C4R, VEMI_SRC_DST(Vemi8u), morph3x3<Greatest, Vemi8u, C4>)
VEMI_DEFINE(vemiDilate3x3_8u_AC4R, VEMI_SRC_DST(Vemi8u), morph3x3<Greatest, Vemi8u, AC4>)
VEMI_DEFINE(vemiDilate3x3_8u_C1IR, VEMI_SRCDST(Vemi8u), morph3x3<Greatest, Vemi8u, C1>)
VEMI_DEFINE(vemiDilate3x3_8u_C3IR, VEMI_SRCDST(Vemi8u), morph3x3<Greatest, Vemi8u, C3>)
VEMI_DEFINE(vemiDilate3x3_8u_C4IR, VEMI_SRCDST(Vemi8u), morph3x3<Greatest, Vemi8u, C4>)
VEMI_DEFINE(vemiDilate3x3_8u_AC4IR, VEMI_SRCDST(Vemi8u), morph3x3<Greatest, Vemi8u, AC4>)
VEMI_DEFINE(vemiDilate3x3_32f_C1R, VEMI_SRC_DST(Vemi32f), morph3x3<Greatest, Vemi32f, C1>)
VEMI_DEFINE(vemiDilate3x3_32f_C3R, VEMI_SRC_DST(Vemi32f), morph3x3<Greatest, Vemi32f, C3>)
VEMI_DEFINE(vemiDilate3x3_32f_C4R, VEMI_SRC_DST(Vemi32f), morph3x3<Greatest, Vemi32f, C4>)
VEMI_DEFINE(vemiDilate3x3_32f_AC4R, VEMI_SRC_DST(Vemi32f), morph3x3<Greatest, Vemi32f, AC4>)
VEMI_DEFINE(vemiDilate3x3_32f_C1IR, VEMI_SRCDST(Vemi32f), morph3x3<Greatest, Vemi32f, C1>)
VEMI_DEFINE(vemiDilate3x3_32f_C3IR, VEMI_SRCDST(Vemi32f), morph3x3<Greatest, Vemi32f, C3>)
VEMI_DEFINE(vemiDilate3x3_32f_C4IR, VEMI_SRCDST(Vemi32f), morph3x3<Greatest, Vemi32f, C4>)
VEMI_DEFINE(vemiDilate3x3_32f_AC4IR, VEMI_SRCDST(Vemi32f), morph3x3<Greatest, Vemi32f, AC4>)

VEMI_DEFINE(vemiDilate_8u_C1R, VEMI_SRC_DST(Vemi8u, MASK), morph<Greatest, Vemi8u, C1>)
VEMI_DEFINE(vemiDilate_8u_C3R, VEMI_SRC_DST(Vemi8u, MASK), morph<Greatest, Vemi8u, C3>)
VEMI_DEFINE(vemiDilate_8u_C4R, VEMI_SRC_DST(Vemi8u, MASK), morph<Greatest, Vemi8u, C4>)
VEMI_DEFINE(vemiDilate_8u_AC4R, VEMI_SRC_DST(Vemi8u, MASK), morph<Greatest, Vemi8u, AC4>)
VEMI_DEFINE(vemiDilate_8u_C1IR, VEMI_SRCDST(Vemi8u, MASK), morph<Greatest, Vemi8u, C1>)
VEMI_DEFINE(vemiDilate_8u_C3IR, VEMI_SRCDST(Vemi8u, MASK), morph<Greatest, Vemi8u, C3>)
VEMI_DEFINE(vemiDilate_8u_AC4IR, VEMI_SRCDST(Vemi8u, MASK), morph<Greatest, Vemi8u, AC4>)
VEMI_DEFINE(vemiDilate_32f_C1R, VEMI_SRC_DST(Vemi32f, MASK), morph<Greatest, Vemi32f, C1>)
VEMI_DEFINE(vemiDilate_32f_C3R, VEMI_SRC_DST(Vemi32f, MASK), morph<Greatest, Vemi32f, C3>)
VEMI_DEFINE(vemiDilate_32f_C4R, VEMI_SRC_DST(Vemi32f, MASK), morph<Greatest, Vemi32f, C4>)
VEMI_DEFINE(vemiDilate_32f_AC4R, VEMI_SRC_DST(Vemi32f, MASK), morph<Greatest, Vemi32f, AC4>)
VEMI_DEFINE(vemiDilate_32f_C1IR, VEMI_SRCDST(Vemi32f, MASK), morph<Greatest, Vemi32f, C1>)
VEMI_DEFINE(vemiDilate_32f_C3IR, VEMI_SRCDST(Vemi32f, MASK), morph<Greatest, Vemi32f, C3>)
VEMI_DEFINE(vemiDilate_32f_AC4IR, VEMI_SRCDST(Vemi32f, MASK), morph<Greatest, Vemi32f, AC4>)
