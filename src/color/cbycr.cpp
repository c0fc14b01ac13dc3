// vemiRGBToCbYCr422, vemiRGBToCbYCr422Gamma, vemiBGRToCbYCr422; vemiCbYCr422ToRGB, vemiCbYCr422ToBGR.
// Checks: null, size, step; from BGR, and from CbYCr, the steps are not looked at.

#include <algorithm>
#include <cstring>

#include "color/exports.h"
#include "color/from_rgb.h"
#include "color/luma_chroma.h"
#include "color/pairs.h"
#include "color/to_subsampled.h"
#include "core/inlined.h"
#include "core/vector_blocks.h"
#include "vemi/color.h"
#include "vemi/map.h"

namespace vemi::color {
namespace {

constexpr Packed422 order = Packed422::chromaFirst;

using Exact = Affine<rgbToYCbCr>;

/// Y, and at even pixels chroma through a filter of 1/4, 1/2, 1/4 over the pixels from the one before on. Each part is
/// rounded down.
struct Filtered {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V r, V g, V b, V rBefore, V gBefore, V bBefore) const {
    const auto pixels = rgbOfPixels(d, r, g, b);
    const auto before = rgbOfPixels(d, rBefore, gBefore, bBefore).even;
    const auto luma = [](const auto& p) VEMI_INLINED { return affineRow<rgbToYCbCr, 0>(p.r, p.g, p.b); };
    return withChromaBytes(d, chroma<1>(before, pixels.even, pixels.odd), chroma<2>(before, pixels.even, pixels.odd),
                           bytesOfPixels(d, luma(pixels.even), luma(pixels.odd)));
  }

 private:
  template <int i, class V>
  HWY_INLINE static V chroma(RgbWords<V> before, RgbWords<V> own, RgbWords<V> behind) {
    const hn::DFromV<V> d;
    const V zero = hn::Zero(d);
    const auto lower = [&](RgbWords<V> p) VEMI_INLINED {
      return detail::weightedSum<rgbToYCbCr, i>(hn::InterleaveLower(d, p.r, p.g), hn::InterleaveLower(d, p.b, zero), 0);
    };
    const auto upper = [&](RgbWords<V> p) VEMI_INLINED {
      return detail::weightedSum<rgbToYCbCr, i>(hn::InterleaveUpper(d, p.r, p.g), hn::InterleaveUpper(d, p.b, zero), 0);
    };
    const auto filtered = [&](const auto& half) VEMI_INLINED {
      const auto sides = hn::Add(hn::ShiftRight<2>(half(before)), hn::ShiftRight<2>(half(behind)));
      const auto sum = hn::Add(hn::ShiftRight<1>(half(own)), sides);
      return hn::ShiftRight<16>(hn::Add(sum, hn::Set(hn::DFromV<decltype(sum)>(), 0x807fff)));
    };
    return packHalves(d, filtered(lower), filtered(upper));
  }
};

/// The last pixel of an odd row has no neighbours and no second chroma.
using Single = Then<Exact, WithoutLast>;

/// Black is as good as no pixel: its chroma weighs nothing.
struct PixelPair {
  uint8_t channel[6] = {};
};

/// `before` begins with the pixel in front of the row.
void filteredRow(ptrdiff_t width, const uint8_t* src, const PixelPair& before, uint8_t* dst) {
  using Source = InterleavedRow<const uint8_t, C3>;
  const PackedChroma<order, uint8_t> to = {dst};
  const Source from = {src};
  const ptrdiff_t inPairs = width / 2 * 2;
  if (inPairs > 0) {
    mapPixels(2, Filtered(), to.groups(), from, Source{before.channel});
    mapPixels(inPairs - 2, Filtered(), to.groups().from(2), from.from(2), from.from(1));
  }
  if (inPairs < width) mapPixels(1, Single(), to.pixel(inPairs), from.from(inPairs));
}

VemiStatus toFilteredPairs(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) filteredRow(roiSize.width, src.row(y), {}, dst.row(y));
  return vemiOk;
}

VemiStatus toFilteredPairsOfSignal(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkConversion(src, dst, roiSize)) return bad;
  constexpr int pieceWidth = 512;
  uint8_t signal[3 * pieceWidth];
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) {
    PixelPair before;
    for (ptrdiff_t x = 0; x < roiSize.width; x += pieceWidth) {
      const int width = static_cast<int>(std::min<ptrdiff_t>(pieceWidth, roiSize.width - x));
      vemiGammaFwd_8u_C3R(src.row(y) + 3 * x, 3 * width, signal, 3 * width, {width, 1});
      filteredRow(width, signal, before, dst.row(y) + 2 * x);
      std::memcpy(before.channel, signal + 3 * ptrdiff_t{width - 1}, 3);
    }
  }
  return vemiOk;
}

/// Of pixels B, G, R.
template <class Op>
struct FromBgr {
  template <class D, class V>
  HWY_INLINE auto operator()(D d, V b, V g, V r) const {
    return Op()(d, r, g, b);
  }
};

using BgraPairs = FromBgr<To422<rgbToYCbCr, bgraToChroma422>>;

HWY_NOINLINE void mapPixels(ptrdiff_t width, const BgraPairs&, Packed422Row<uint8_t, order> dst,
                            InterleavedRow<const uint8_t, AC4> src) {
  const auto kernel = [](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    const Lanes<uint8_t> d;
    const auto first = hn::LoadU(d, in), second = hn::LoadU(d, in + laneCount<uint8_t>);
    hn::StoreU(pairsOfBgra<rgbToYCbCr, bgraToChroma422>(d, first, second), d, out);
  };
  forBlocks<laneCount<uint8_t> / 4>(width / 2, kernel, Strand<const uint8_t, 8>{src.first},
                                    Strand<uint8_t, 4>{dst.first});
}

VemiStatus bgraToPairs(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  const auto pixels = pixelsOf<AC4>(src);
  reduceToPairs<order>(extent422<2>(roiSize, dst, pixels), ColumnOps<BgraPairs, BgraPairs, FromBgr<Single>>(), dst,
                       pixels);
  return vemiOk;
}

/// Pairs of pixels have rows of their own; single ones go through planes.
struct Inverse : ExactToRgb<cbycrToRgb> {};
using InverseToBgra = Then<Inverse, ReversedWithFourth>;

HWY_NOINLINE void mapPixels(ptrdiff_t width, const Inverse&, InterleavedRow<uint8_t, C3> dst,
                            Packed422Row<const uint8_t, order> src) {
  constexpr ptrdiff_t N = laneCount<uint8_t>;
  const auto kernel = [](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    const Lanes<uint8_t> d;
    const auto lower = rgbOfPairs<cbycrToRgb>(d, hn::LoadU(d, in));
    const auto upper = rgbOfPairs<cbycrToRgb>(d, hn::LoadU(d, in + N));
    const auto channel = [&](auto c) VEMI_INLINED { return packInOrder(d, lower.v[c], upper.v[c]); };
    storeChannels(d, out, channel(std::integral_constant<int, 0>()), channel(std::integral_constant<int, 1>()),
                  channel(std::integral_constant<int, 2>()));
  };
  forBlocks<N / 2>(width / 2, kernel, Strand<const uint8_t, 4>{src.first}, Strand<uint8_t, 6>{dst.first});
}

HWY_NOINLINE void mapPixels(ptrdiff_t width, const InverseToBgra& op, InterleavedRow<uint8_t, C4> dst,
                            Packed422Row<const uint8_t, order> src) {
  constexpr ptrdiff_t N = laneCount<uint8_t>;
  const auto fourth = hn::Set(Lanes<int16_t>(), op.after.value);
  const auto kernel = [&](const uint8_t* in, uint8_t* out) VEMI_INLINED {
    const Lanes<uint8_t> d;
    const Lanes<uint16_t> dPairs;
    unrolled<2>([&](auto k) VEMI_INLINED {
      const auto words = rgbOfPairs<cbycrToRgb>(d, hn::LoadU(d, in + k * N));
      const auto blueAndRed = packHalves(d, words.v[2], words.v[0]), greenAndFourth = packHalves(d, words.v[1], fourth);
      const auto lower = hn::BitCast(dPairs, hn::InterleaveLower(d, blueAndRed, greenAndFourth));
      const auto upper = hn::BitCast(dPairs, hn::InterleaveUpper(d, blueAndRed, greenAndFourth));
      storeBlocksByTurns<Stores::cached>(d, out + 2 * k * N, hn::BitCast(d, hn::InterleaveLower(dPairs, lower, upper)),
                                         hn::BitCast(d, hn::InterleaveUpper(dPairs, lower, upper)));
    });
  };
  forBlocks<N / 2>(width / 2, kernel, Strand<const uint8_t, 4>{src.first}, Strand<uint8_t, 8>{dst.first});
}

VemiStatus pairsToRgb(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  const auto pixels = pixelsOf<C3>(dst);
  expandPacked<order>(extent422<2>(roiSize, src, pixels), ColumnOps<Inverse, Inverse, Inverse>(), pixels, src);
  return vemiOk;
}

VemiStatus pairsToBgra(Image<const Vemi8u> src, Image<Vemi8u> dst, VemiSize roiSize, Vemi8u alpha) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  const InverseToBgra op = {{}, {alpha}};
  const auto pixels = pixelsOf<C4>(dst);
  expandPacked<order>(extent422<2>(roiSize, src, pixels), ColumnOps{op, op, op}, pixels, src);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

VEMI_DEFINE(vemiRGBToCbYCr422_8u_C3C2R, VEMI_SRC_DST(Vemi8u), toFilteredPairs)
VEMI_DEFINE(vemiRGBToCbYCr422Gamma_8u_C3C2R, VEMI_SRC_DST(Vemi8u), toFilteredPairsOfSignal)
VEMI_DEFINE(vemiBGRToCbYCr422_8u_AC4C2R, VEMI_SRC_DST(Vemi8u), bgraToPairs)

VEMI_DEFINE(vemiCbYCr422ToRGB_8u_C2C3R, VEMI_SRC_DST(Vemi8u), pairsToRgb)
VEMI_DEFINE(vemiCbYCr422ToBGR_8u_C2C4R, VEMI_SRC_DST(Vemi8u, VEMI_ALPHA), pairsToBgra)
