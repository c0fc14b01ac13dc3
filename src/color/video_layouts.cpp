// Video frames from one layout to another: bytes that move. Chroma of a lower rate drops samples, chroma of a higher
// rate repeats them; between 4:1:1 and 4:2:0, two rows of samples are one row, by turns.
// Checks: null, size; no steps. vemiJoin422, vemiSplit422: null, step, size, stride. vemiSplit420: null but for the
// planes of the array, a size below 1, these planes, size.

#include "color/video_exports.h"
#include "color/video_frames.h"
#include "core/map_region.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

// ---- Chroma apart from luma ---------------------------------------------------------------------------------------

/// Two samples of each chroma, whose order in planes is not that in pairs.
template <bool betweenPlanesAndPairs>
struct TwoOfEach {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V v0, V v1, V v2, V v3) const {
    return betweenPlanesAndPairs ? std::tuple(v0, v2, v1, v3) : std::tuple(v0, v1, v2, v3);
  }
};

template <bool ofPlanes>
struct FirstOfNeighbours {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V v0, V v1, V v2, V) const {
    return std::tuple(v0, ofPlanes ? v2 : v1);
  }
};

template <bool toPlanes>
struct RepeatedForNeighbours {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V cb, V cr) const {
    return toPlanes ? std::tuple(cb, cb, cr, cr) : std::tuple(cb, cr, cb, cr);
  }
};

template <class Src, class Dst, class SrcFrame, class DstFrame>
void moveChroma(SrcFrame src, DstFrame dst, VemiSize size, Vemi64s traffic) {
  const bool contiguous = Src::down == Dst::down && src.hasContiguousChroma(size) && dst.hasContiguousChroma(size);
  const VemiSize samples = {size.width / Dst::across, size.height / Dst::down};
  if constexpr (Src::across == Dst::across && Src::isPlanar && Dst::isPlanar) {
    copyPlane<Dst::down, Src::down>(src.cb(), dst.cb(), samples, traffic);
    copyPlane<Dst::down, Src::down>(src.cr(), dst.cr(), samples, traffic);
  } else if constexpr (Src::across == Dst::across) {
    mapFrameRows(
        mergedExtent(samples, contiguous), traffic, IdenticalChannels(), [&](ptrdiff_t k) { return dst.chroma(k); },
        [&](ptrdiff_t k) { return src.chroma(k * Dst::down / Src::down); });
  } else {
    const VemiSize coarse = {size.width / 4, size.height / std::max(Src::down, Dst::down)};
    const auto move = [&](const auto& op, const auto& dstRow, const auto& srcRow) {
      mapFrameRows(mergedExtent(coarse, contiguous), traffic, op, dstRow, srcRow);
    };
    const auto chromaOf = [](const auto& frame) { return [&](ptrdiff_t k) { return frame.chroma(k); }; };
    const auto neighboursOf = [](const auto& frame) { return [&](ptrdiff_t k) { return frame.neighbours(k); }; };
    const auto twoRowsOf = [](const auto& frame) { return [&](ptrdiff_t k) { return frame.twoRows(k); }; };
    constexpr TwoOfEach<Src::isPlanar != Dst::isPlanar> inOrder;
    if constexpr (Src::down == Dst::down && Src::across < Dst::across) {
      move(FirstOfNeighbours<Src::isPlanar>(), chromaOf(dst), neighboursOf(src));
    } else if constexpr (Src::down == Dst::down) {
      move(RepeatedForNeighbours<Dst::isPlanar>(), neighboursOf(dst), chromaOf(src));
    } else if constexpr (Src::across > Dst::across) {
      move(inOrder, neighboursOf(dst), twoRowsOf(src));
    } else {
      move(inOrder, twoRowsOf(dst), neighboursOf(src));
    }
  }
}

// ---- Chroma packed with luma --------------------------------------------------------------------------------------

/// Every second sample.
template <class V>
HWY_INLINE auto halved(V samples) {
  const hn::DFromV<V> d;
  const hn::RepartitionToWide<decltype(d)> dPairs;
  const hn::Rebind<uint8_t, decltype(dPairs)> dHalf;
  return hn::TruncateTo(dHalf, hn::BitCast(dPairs, samples));
}

/// Each sample twice.
template <class V>
HWY_INLINE auto doubled(V samples) {
  const hn::Rebind<uint16_t, hn::DFromV<V>> dPairs;
  const hn::Repartition<uint8_t, decltype(dPairs)> d;
  const auto wide = hn::PromoteTo(dPairs, samples);
  return hn::BitCast(d, hn::Or(wide, hn::ShiftLeft<8>(wide)));
}

/// Luma as it is, chroma at another rate.
template <int srcAcross, int dstAcross, bool crossed>
struct WithChroma {
  template <class D, class V, class C>
  HWY_INLINE auto operator()(D, V luma, C c0, C c1) const {
    const auto atRate = [](C samples) HWY_ATTR {
      if constexpr (srcAcross < dstAcross) {
        return halved(samples);
      } else if constexpr (srcAcross > dstAcross) {
        return doubled(samples);
      } else {
        return samples;
      }
    };
    return crossed ? std::tuple(luma, atRate(c1), atRate(c0)) : std::tuple(luma, atRate(c0), atRate(c1));
  }
};

/// Two packed rows as a pair of 4:2:0, whose chroma is that of the first one, and back.
template <bool crossed>
struct WithSharedChroma {
  template <class D, class V, class C>
  HWY_INLINE auto operator()(D, V luma0, C c0, C c1, V luma1, C, C) const {
    return std::tuple(luma0, luma1, crossed ? c1 : c0, crossed ? c0 : c1);
  }
  template <class D, class V, class C>
  HWY_INLINE auto operator()(D, V luma0, V luma1, C cb, C cr) const {
    const C c0 = crossed ? cr : cb, c1 = crossed ? cb : cr;
    return std::tuple(luma0, c0, c1, luma1, c0, c1);
  }
};

/// From chroma bytes ahead of luma to luma ahead, and back.
struct Crossed {
  template <class D, class V>
  HWY_INLINE auto operator()(D, V v0, V v1) const {
    return std::tuple(v1, v0);
  }
};

template <class Src, class Dst, class SrcFrame, class DstFrame>
void movePacked(SrcFrame src, DstFrame dst, VemiSize size, Vemi64s traffic) {
  const bool contiguous = Src::down == Dst::down && src.isContiguous(size) && dst.isContiguous(size);
  const Extent extent = mergedExtent(size, contiguous);
  if constexpr (Src::across == Dst::across && !Src::isPlanar && !Dst::isPlanar) {  // pairs are every other byte
    const std::conditional_t<Src::lumaFirst == Dst::lumaFirst, IdenticalChannels, Crossed> op;
    mapFrameRows(
        extent, traffic, op, [&](ptrdiff_t y) { return dst.bytes(y); }, [&](ptrdiff_t y) { return src.bytes(y); });
  } else if constexpr (Src::down == 2 || Dst::down == 2) {
    const WithSharedChroma<Src::crFirst != Dst::crFirst> op;
    mapFrameRows(
        {size.width, size.height / 2}, traffic, op, [&](ptrdiff_t k) { return dst.pair(k); },
        [&](ptrdiff_t k) { return src.pair(k); });
  } else {
    const WithChroma<Src::across, Dst::across, Src::crFirst != Dst::crFirst> op;
    mapFrameRows(
        extent, traffic, op, [&](ptrdiff_t y) { return dst.row(y); }, [&](ptrdiff_t y) { return src.row(y); });
  }
}

/// The bytes of two pixels in another order.
struct PermutedBytes {
  static constexpr int vectors = 2, period = 4;
  hn::Vec<Lanes<uint8_t>> index;

  template <class D, class K, class V>
  HWY_INLINE V operator()(D, K, V pixels) const {
    return hn::TableLookupBytes(pixels, index);
  }
};

template <class Src, class Dst>
PermutedBytes permutation() {
  alignas(16) uint8_t index[16];
  for (int n = 0; n < 16; n += 4) {
    for (int sample = 0; sample < 4; ++sample)
      index[n + Dst::place[sample]] = static_cast<uint8_t>(n + Src::place[sample]);
  }
  return {hn::LoadDup128(Lanes<uint8_t>(), index)};
}

// ---- Whole frames -------------------------------------------------------------------------------------------------

template <class Src, class Dst, class From, class To>
void move(From from, To to, VemiSize size) {
  const typename Src::template Frame<const Vemi8u> src = {from};
  const typename Dst::template Frame<Vemi8u> dst = {to};
  const Vemi64s traffic = bytesOf<Src>(size) + bytesOf<Dst>(size);
  if constexpr (Src::isPacked && Dst::isPacked) {
    mapRegion<C2>(CallerRows(), size, permutation<Src, Dst>(), dst.pixels, src.pixels);
  } else if constexpr (Src::isPacked || Dst::isPacked) {
    movePacked<Src, Dst>(src, dst, size, traffic);
  } else {
    copyPlane<1, 1>(src.luma(), dst.luma(), size, traffic);
    moveChroma<Src, Dst>(src, dst, size, traffic);
  }
}

/// The columns and rows that share chroma in either frame. Regions are cut down to multiples of it.
template <class Src, class Dst>
constexpr VemiSize unit = {std::max(Src::across, Dst::across), std::max(Src::down, Dst::down)};

template <class Src, class Dst, VemiSize least = unit<Src, Dst>, class From, class To>
VemiStatus relay(From from, To to, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(from, to), checkLeast(roiSize, least))) return bad;
  move<Src, Dst>(from, to, wholeMultiples(roiSize, least));
  return vemiOk;
}

/// Chroma has all rows here, and yet these work on pairs of them.
template <class Src, class Dst, class From, class To>
VemiStatus relayPairsOfRows(From from, To to, VemiSize roiSize) {
  return relay<Src, Dst, VemiSize{2, 2}>(from, to, roiSize);
}

VemiStatus split420(LumaAndPairs<const Vemi8u> from, SteppedPlanes<Vemi8u, 3> to, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(from), checkNullArray(to), checkSize(roiSize))) return bad;
  return relay<PairVideo<2, 2>, PlanarVideo<2, 2>>(from, to, roiSize);
}

VemiStatus checkStrides(SteppedPlanes<const Vemi8u, 3> planes, int packedStep, VemiSize size) {
  const bool fit = size.width <= planes.step[0] && size.width / 2 <= planes.step[1] &&
                   size.width / 2 <= planes.step[2] && Vemi64s{2} * size.width <= packedStep;
  return fit ? vemiOk : vemiErrStride;
}

/// The members that look at their steps.
template <class Src, class Dst, class From, class To>
VemiStatus relayWithSteps(From from, To to, VemiSize roiSize) {
  constexpr VemiSize least = unit<Src, Dst>;
  if (const VemiStatus bad = firstOf(checkNull(from, to), checkStep(from, to), checkLeast(roiSize, least))) return bad;
  const VemiSize size = wholeMultiples(roiSize, least);
  const auto strides = [&](auto planes, auto packed) {
    return checkStrides({planes.plane, planes.step}, packed.step, size);
  };
  if constexpr (Src::isPacked) {
    if (const VemiStatus bad = strides(to, from)) return bad;
  } else {
    if (const VemiStatus bad = strides(from, to)) return bad;
  }
  move<Src, Dst>(from, to, size);
  return vemiOk;
}

using Planes422 = PlanarVideo<2, 1>;
using Planes420 = PlanarVideo<2, 2>;
using Planes411 = PlanarVideo<4, 1>;
using Planes422CrFirst = PlanarVideo<2, 1, Chroma::crFirst>;
using Planes420CrFirst = PlanarVideo<2, 2, Chroma::crFirst>;
using Pairs422 = PairVideo<2, 1>;
using Pairs420 = PairVideo<2, 2>;
using Pairs411 = PairVideo<4, 1>;
using YCbYCr = PackedVideo<Packed422::lumaFirst>;
using YCrYCb = PackedVideo<Packed422::lumaFirst, Chroma::crFirst>;
using CbYCrY = PackedVideo<Packed422::chromaFirst>;

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define PLANES_TO_PLANES VEMI_FRAMES(VEMI_FROM_PLANES, VEMI_TO_PLANES)
#define PLANES_TO_PAIRS VEMI_FRAMES(VEMI_FROM_PLANES, VEMI_TO_PAIRS)
#define PLANES_TO_PACKED VEMI_FRAMES(VEMI_FROM_PLANES, VEMI_TO_PACKED)
#define PAIRS_TO_PLANES VEMI_FRAMES(VEMI_FROM_PAIRS, VEMI_TO_PLANES)
#define PAIRS_TO_PACKED VEMI_FRAMES(VEMI_FROM_PAIRS, VEMI_TO_PACKED)
#define PACKED_TO_PLANES VEMI_FRAMES(VEMI_FROM_PACKED, VEMI_TO_PLANES)
#define PACKED_TO_PAIRS VEMI_FRAMES(VEMI_FROM_PACKED, VEMI_TO_PAIRS)
#define PACKED_TO_PACKED VEMI_FRAMES(VEMI_FROM_PACKED, VEMI_TO_PACKED)

VEMI_DEFINE(vemiYCbCr422ToYCbCr420_8u_P3R, PLANES_TO_PLANES, relay<Planes422, Planes420>)
VEMI_DEFINE(vemiYCbCr422ToYCbCr420_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes422, Pairs420>)
VEMI_DEFINE(vemiYCbCr422ToYCbCr420_8u_C2P3R, PACKED_TO_PLANES, relay<YCbYCr, Planes420>)
VEMI_DEFINE(vemiYCrCb422ToYCbCr420_8u_C2P3R, PACKED_TO_PLANES, relay<YCrYCb, Planes420>)
VEMI_DEFINE(vemiCbYCr422ToYCbCr420_8u_C2P3R, PACKED_TO_PLANES, relay<CbYCrY, Planes420>)

VEMI_DEFINE(vemiYCbCr420ToYCbCr422_8u_P3R, PLANES_TO_PLANES, relay<Planes420, Planes422>)
VEMI_DEFINE(vemiYCbCr420ToYCbCr422_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs420, Planes422>)
VEMI_DEFINE(vemiYCrCb420ToYCbCr422_8u_P3R, PLANES_TO_PLANES, relay<Planes420CrFirst, Planes422>)

VEMI_DEFINE(vemiYCbCr422ToYCbCr422_8u_C2P3R, PACKED_TO_PLANES, relay<YCbYCr, Planes422>)
VEMI_DEFINE(vemiYCrCb422ToYCbCr422_8u_C2P3R, PACKED_TO_PLANES, relay<YCrYCb, Planes422>)
VEMI_DEFINE(vemiCbYCr422ToYCbCr422_8u_C2P3R, PACKED_TO_PLANES, relay<CbYCrY, Planes422>)
VEMI_DEFINE(vemiYCbCr422ToYCrCb422_8u_C2R, PACKED_TO_PACKED, relay<YCbYCr, YCrYCb>)
VEMI_DEFINE(vemiYCbCr422ToYCrCb422_8u_P3C2R, PLANES_TO_PACKED, relay<Planes422, YCrYCb>)

VEMI_DEFINE(vemiYCbCr422ToYCbCr411_8u_P3R, PLANES_TO_PLANES, relay<Planes422, Planes411>)
VEMI_DEFINE(vemiYCbCr422ToYCbCr411_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes422, Pairs411>)
VEMI_DEFINE(vemiYCbCr422ToYCbCr411_8u_C2P3R, PACKED_TO_PLANES, relay<YCbYCr, Planes411>)
VEMI_DEFINE(vemiYCbCr422ToYCbCr411_8u_C2P2R, PACKED_TO_PAIRS, relay<YCbYCr, Pairs411>)
VEMI_DEFINE(vemiYCrCb422ToYCbCr411_8u_C2P3R, PACKED_TO_PLANES, relay<YCrYCb, Planes411>)
VEMI_DEFINE(vemiCbYCr422ToYCbCr411_8u_C2P3R, PACKED_TO_PLANES, relay<CbYCrY, Planes411>)

VEMI_DEFINE(vemiYCbCr411ToYCbCr422_8u_P3R, PLANES_TO_PLANES, relay<Planes411, Planes422>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr422_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs411, Planes422>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr422_8u_P3C2R, PLANES_TO_PACKED, relay<Planes411, YCbYCr>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr422_8u_P2C2R, PAIRS_TO_PACKED, relay<Pairs411, YCbYCr>)
VEMI_DEFINE(vemiYCbCr411ToYCrCb422_8u_P3R, PLANES_TO_PLANES, relay<Planes411, Planes422CrFirst>)
VEMI_DEFINE(vemiYCbCr411ToYCrCb422_8u_P3C2R, PLANES_TO_PACKED, relay<Planes411, YCrYCb>)

VEMI_DEFINE(vemiYCbCr420ToYCbCr411_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes420, Pairs411>)
VEMI_DEFINE(vemiYCbCr420ToYCbCr411_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs420, Planes411>)
VEMI_DEFINE(vemiYCrCb420ToYCbCr411_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes420CrFirst, Pairs411>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr420_8u_P3R, PLANES_TO_PLANES, relay<Planes411, Planes420>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr420_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes411, Pairs420>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr420_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs411, Planes420>)
VEMI_DEFINE(vemiYCbCr411ToYCrCb420_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs411, Planes420CrFirst>)

VEMI_DEFINE(vemiYCbCr411ToYCbCr411_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes411, Pairs411>)
VEMI_DEFINE(vemiYCbCr411ToYCbCr411_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs411, Planes411>)
VEMI_DEFINE(vemiYCbCr420ToYCbCr420_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes420, Pairs420>)
VEMI_DEFINE(vemiYCbCr420ToYCbCr420_8u_P2P3R, PAIRS_TO_PLANES, relay<Pairs420, Planes420>)

VEMI_DEFINE(vemiJoin420_8u_P2C2R, PAIRS_TO_PACKED, relay<Pairs420, YCbYCr>)
VEMI_DEFINE(vemiSplit420_8u_P2P3R, PAIRS_TO_PLANES, split420)
VEMI_DEFINE(vemiJoin422_8u_P3C2R, PLANES_TO_PACKED, relayWithSteps<Planes422, YCbYCr>)
VEMI_DEFINE(vemiSplit422_8u_C2P3R, PACKED_TO_PLANES, relayWithSteps<YCbYCr, Planes422>)

VEMI_DEFINE(vemiYUToUY420_8u_P2C2R, PAIRS_TO_PACKED, relay<Pairs420, CbYCrY>)
VEMI_DEFINE(vemiYVToYU420_8u_P3P2R, PLANES_TO_PAIRS, relay<Planes420CrFirst, Pairs420>)
VEMI_DEFINE(vemiYVToYU420_8u_P3C2R, PLANES_TO_PACKED, relay<Planes420CrFirst, YCbYCr>)
VEMI_DEFINE(vemiYVToUY420_8u_P3C2R, PLANES_TO_PACKED, relay<Planes420CrFirst, CbYCrY>)
VEMI_DEFINE(vemiYUToUY422_8u_C2R, PACKED_TO_PACKED, relay<YCbYCr, CbYCrY>)
VEMI_DEFINE(vemiUYToYU422_8u_C2R, PACKED_TO_PACKED, relay<CbYCrY, YCbYCr>)
VEMI_DEFINE(vemiYUToYV422_8u_C2P3R, PACKED_TO_PLANES, relayPairsOfRows<YCbYCr, Planes422CrFirst>)
VEMI_DEFINE(vemiUYToYV422_8u_C2P3R, PACKED_TO_PLANES, relayPairsOfRows<CbYCrY, Planes422CrFirst>)
VEMI_DEFINE(vemiYUToYU422_8u_C2P2R, PACKED_TO_PAIRS, relayPairsOfRows<YCbYCr, Pairs422>)
VEMI_DEFINE(vemiUYToYU422_8u_C2P2R, PACKED_TO_PAIRS, relayPairsOfRows<CbYCrY, Pairs422>)
