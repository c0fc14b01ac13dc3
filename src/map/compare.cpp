// vemiCompare, vemiCompareC, vemiCompareEqualEps, vemiCompareEqualEpsC: one byte for each pixel, 255 where the
// condition holds for all of its channels and 0 elsewhere. A comparison with a NaN does not hold. Checks: null, step,
// size, tolerance. An operator that does not exist is no error: nothing is written.

#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/mask_bytes.h"
#include "core/parallel.h"
#include "core/streaming.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

// ---- The conditions, as masks of lanes ----

struct Less {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V a, V b) const {
    return hn::Lt(a, b);
  }
};

struct LessEq {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V a, V b) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::Le(a, b);
    } else if constexpr (std::is_unsigned_v<hn::TFromD<D>>) {
      return hn::Eq(hn::Min(a, b), a);
    } else {
      return hn::Not(hn::Gt(a, b));
    }
  }
};

struct Equal {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V a, V b) const {
    return hn::Eq(a, b);
  }
};

/// The other way round: b less than a is a greater than b, also beside a NaN.
template <class Op>
struct Swapped {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V a, V b) const {
    return Op()(d, b, a);
  }
};

struct EqualWithin {
  Vemi32f eps;

  template <class D, class V>
  HWY_INLINE auto operator()(D d, V a, V b) const {
    return hn::Le(hn::Abs(hn::Sub(a, b)), hn::Set(d, eps));
  }
};

// ---- Rows and regions ----

/// A condition, and the bytes of a four-channel pixel's mask, as bits, that do not count.
template <class IndexedOp>
struct Comparison {
  IndexedOp op;
  uint32_t ignored;
};

/// One vector of results.
template <int elements, class IndexedOp, class T, class... More>
HWY_INLINE auto comparePixels(const Comparison<IndexedOp>& comparison, const T* first, const More*... more) {
  const Lanes<T> d;
  const auto maskOf = [&](auto k) HWY_ATTR {
    const ptrdiff_t at = k * laneCount<T>;
    return hn::VecFromMask(d, comparison.op(d, k, hn::LoadU(d, first + at), hn::LoadU(d, more + at)...));
  };
  Vectors<hn::Vec<Lanes<uint8_t>>, elements> masks;
  unrolled<elements>([&](auto k) HWY_ATTR {
    masks.v[k] = [&]<int... j>(std::integer_sequence<int, j...>) HWY_ATTR {
      return maskBytes(maskOf(std::integral_constant<int, k * sizeof...(j) + j>())...);
    }
    (std::make_integer_sequence<int, sizeof(T)>());
  });
  return allChannels<elements>(masks, comparison.ignored);
}

constexpr ptrdiff_t pixelsPerBlock = laneCount<uint8_t>;

template <int elements, class Comparison, class... Src>
HWY_NOINLINE void compareRow(ptrdiff_t width, const Comparison& shared, Vemi8u* dst, const Src*... src) {
  if (width < pixelsPerBlock) {
    const auto wholeBlock = [](const void* context, Vemi8u* out, const Src*... in) {
      compareRow<elements>(pixelsPerBlock, *static_cast<const Comparison*>(context), out, in...);
    };
    return shortRow<pixelsPerBlock>(width, wholeBlock, shared, Strand<Vemi8u>{dst},
                                    Strand<const Src, elements>{src}...);
  }
  const Comparison comparison = shared;  // a local, which no store to the destination can change
  const auto kernel = [&](Vemi8u* out, const Src*... in)
                          HWY_ATTR { hn::StoreU(comparePixels<elements>(comparison, in...), Lanes<uint8_t>(), out); };
  forWholeBlocks<pixelsPerBlock>(width, kernel, Strand<Vemi8u>{dst}, Strand<const Src, elements>{src}...);
}

/// compareRow with stores past the caches.
template <int elements, class Comparison, class... Src>
HWY_NOINLINE void streamCompareRow(ptrdiff_t width, const Comparison& shared, Vemi8u* dst, const Src*... src) {
  const Comparison comparison = shared;
  const auto plain = [&](ptrdiff_t x, ptrdiff_t n) { compareRow<elements>(n, shared, dst + x, src + x * elements...); };
  const auto kernel = [&](Vemi8u* out, const Src*... in)
                          HWY_ATTR { hn::Stream(comparePixels<elements>(comparison, in...), Lanes<uint8_t>(), out); };
  forStreamedBlocks<pixelsPerBlock, 1>(width, plain, kernel, Strand<Vemi8u>{dst}, Strand<const Src, elements>{src}...);
}

template <class L, class IndexedOp, class... Src>
VemiStatus compareRegion(VemiSize roiSize, const IndexedOp& op, Image<Vemi8u> dst, Image<const Src>... src) {
  const Comparison<IndexedOp> comparison = {op, L::keepsAlpha ? 0xff000000u : 0};
  const bool contiguous = isContiguous<C1>(dst, roiSize) && (isContiguous<L>(src, roiSize) && ...);
  const Extent pixels = mergedExtent(roiSize, contiguous);
  runPlainOrStreamed(
      CallerRows(), pixels.height, trafficOf(pixels, (1 + ... + pixelBytes<Src, L>)),
      [&](ptrdiff_t y) { compareRow<L::elements>(pixels.width, comparison, dst.row(y), src.row(y)...); },
      [&](ptrdiff_t y) { streamCompareRow<L::elements>(pixels.width, comparison, dst.row(y), src.row(y)...); });
  return vemiOk;
}

template <class L, class T>
VemiStatus compare(Image<const T> src1, Image<const T> src2, Image<Vemi8u> dst, VemiSize roiSize, vemiCmpOp cmpOp) {
  if (const VemiStatus bad = firstOf(checkNull(src1, src2, dst), checkStep(src1, src2, dst), checkSize(roiSize))) {
    return bad;
  }
  switch (cmpOp) {
    case vemiCmpLess:
      return compareRegion<L>(roiSize, eachVector(Less()), dst, src1, src2);
    case vemiCmpLessEq:
      return compareRegion<L>(roiSize, eachVector(LessEq()), dst, src1, src2);
    case vemiCmpEq:
      return compareRegion<L>(roiSize, eachVector(Equal()), dst, src1, src2);
    case vemiCmpGreaterEq:
      return compareRegion<L>(roiSize, eachVector(LessEq()), dst, src2, src1);
    case vemiCmpGreater:
      return compareRegion<L>(roiSize, eachVector(Less()), dst, src2, src1);
    default:
      return vemiOk;
  }
}

template <class L, class T>
VemiStatus compareC(Image<const T> src, const T* value, Image<Vemi8u> dst, VemiSize roiSize, vemiCmpOp cmpOp) {
  if (const VemiStatus bad = firstOf(checkNull(src, value, dst), checkStep(src, dst), checkSize(roiSize))) return bad;
  switch (cmpOp) {
    case vemiCmpLess:
      return compareRegion<L>(roiSize, withConstants<L>(Less(), value), dst, src);
    case vemiCmpLessEq:
      return compareRegion<L>(roiSize, withConstants<L>(LessEq(), value), dst, src);
    case vemiCmpEq:
      return compareRegion<L>(roiSize, withConstants<L>(Equal(), value), dst, src);
    case vemiCmpGreaterEq:
      return compareRegion<L>(roiSize, withConstants<L>(Swapped<LessEq>(), value), dst, src);
    case vemiCmpGreater:
      return compareRegion<L>(roiSize, withConstants<L>(Swapped<Less>(), value), dst, src);
    default:
      return vemiOk;
  }
}

/// A NaN is no tolerance either.
VemiStatus checkTolerance(Vemi32f eps) { return eps >= 0 ? vemiOk : vemiErrEpsilon; }

template <class L>
VemiStatus compareEqualEps(Image<const Vemi32f> src1, Image<const Vemi32f> src2, Image<Vemi8u> dst, VemiSize roiSize,
                           Vemi32f eps) {
  if (const VemiStatus bad =
          firstOf(checkNull(src1, src2, dst), checkStep(src1, src2, dst), checkSize(roiSize), checkTolerance(eps))) {
    return bad;
  }
  return compareRegion<L>(roiSize, eachVector(EqualWithin{eps}), dst, src1, src2);
}

template <class L>
VemiStatus compareEqualEpsC(Image<const Vemi32f> src, const Vemi32f* value, Image<Vemi8u> dst, VemiSize roiSize,
                            Vemi32f eps) {
  if (const VemiStatus bad =
          firstOf(checkNull(src, value, dst), checkStep(src, dst), checkSize(roiSize), checkTolerance(eps))) {
    return bad;
  }
  return compareRegion<L>(roiSize, withConstants<L>(EqualWithin{eps}, value), dst, src);
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

#define CMP_OP ((vemiCmpOp cmpOp), (cmpOp))
#define EPS ((Vemi32f eps), (eps))

VEMI_DEFINE(vemiCompare_8u_C1R, VEMI_2SRC_CONVERSION(Vemi8u, Vemi8u, CMP_OP), compare<C1>)
VEMI_DEFINE(vemiCompare_8u_C3R, VEMI_2SRC_CONVERSION(Vemi8u, Vemi8u, CMP_OP), compare<C3>)
VEMI_DEFINE(vemiCompare_8u_C4R, VEMI_2SRC_CONVERSION(Vemi8u, Vemi8u, CMP_OP), compare<C4>)
VEMI_DEFINE(vemiCompare_8u_AC4R, VEMI_2SRC_CONVERSION(Vemi8u, Vemi8u, CMP_OP), compare<AC4>)

VEMI_DEFINE(vemiCompare_16s_C1R, VEMI_2SRC_CONVERSION(Vemi16s, Vemi8u, CMP_OP), compare<C1>)
VEMI_DEFINE(vemiCompare_16s_C3R, VEMI_2SRC_CONVERSION(Vemi16s, Vemi8u, CMP_OP), compare<C3>)
VEMI_DEFINE(vemiCompare_16s_C4R, VEMI_2SRC_CONVERSION(Vemi16s, Vemi8u, CMP_OP), compare<C4>)
VEMI_DEFINE(vemiCompare_16s_AC4R, VEMI_2SRC_CONVERSION(Vemi16s, Vemi8u, CMP_OP), compare<AC4>)

VEMI_DEFINE(vemiCompare_32f_C1R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, CMP_OP), compare<C1>)
VEMI_DEFINE(vemiCompare_32f_C3R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, CMP_OP), compare<C3>)
VEMI_DEFINE(vemiCompare_32f_C4R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, CMP_OP), compare<C4>)
VEMI_DEFINE(vemiCompare_32f_AC4R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, CMP_OP), compare<AC4>)

VEMI_DEFINE(vemiCompareC_8u_C1R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, Vemi8u, CMP_OP), compareC<C1>)
VEMI_DEFINE(vemiCompareC_8u_C3R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi8u*, CMP_OP), compareC<C3>)
VEMI_DEFINE(vemiCompareC_8u_C4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi8u*, CMP_OP), compareC<C4>)
VEMI_DEFINE(vemiCompareC_8u_AC4R, VEMI_CONVERSION_C(Vemi8u, Vemi8u, const Vemi8u*, CMP_OP), compareC<AC4>)

VEMI_DEFINE(vemiCompareC_16s_C1R, VEMI_CONVERSION_C(Vemi16s, Vemi8u, Vemi16s, CMP_OP), compareC<C1>)
VEMI_DEFINE(vemiCompareC_16s_C3R, VEMI_CONVERSION_C(Vemi16s, Vemi8u, const Vemi16s*, CMP_OP), compareC<C3>)
VEMI_DEFINE(vemiCompareC_16s_C4R, VEMI_CONVERSION_C(Vemi16s, Vemi8u, const Vemi16s*, CMP_OP), compareC<C4>)
VEMI_DEFINE(vemiCompareC_16s_AC4R, VEMI_CONVERSION_C(Vemi16s, Vemi8u, const Vemi16s*, CMP_OP), compareC<AC4>)

VEMI_DEFINE(vemiCompareC_32f_C1R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, Vemi32f, CMP_OP), compareC<C1>)
VEMI_DEFINE(vemiCompareC_32f_C3R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, CMP_OP), compareC<C3>)
VEMI_DEFINE(vemiCompareC_32f_C4R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, CMP_OP), compareC<C4>)
VEMI_DEFINE(vemiCompareC_32f_AC4R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, CMP_OP), compareC<AC4>)

VEMI_DEFINE(vemiCompareEqualEps_32f_C1R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, EPS), compareEqualEps<C1>)
VEMI_DEFINE(vemiCompareEqualEps_32f_C3R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, EPS), compareEqualEps<C3>)
VEMI_DEFINE(vemiCompareEqualEps_32f_C4R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, EPS), compareEqualEps<C4>)
VEMI_DEFINE(vemiCompareEqualEps_32f_AC4R, VEMI_2SRC_CONVERSION(Vemi32f, Vemi8u, EPS), compareEqualEps<AC4>)

VEMI_DEFINE(vemiCompareEqualEpsC_32f_C1R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, Vemi32f, EPS), compareEqualEpsC<C1>)
VEMI_DEFINE(vemiCompareEqualEpsC_32f_C3R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, EPS), compareEqualEpsC<C3>)
VEMI_DEFINE(vemiCompareEqualEpsC_32f_C4R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, EPS), compareEqualEpsC<C4>)
VEMI_DEFINE(vemiCompareEqualEpsC_32f_AC4R, VEMI_CONVERSION_C(Vemi32f, Vemi8u, const Vemi32f*, EPS),
            compareEqualEpsC<AC4>)
