// vemiYCbCrToRGB565 and its kin: video formats as words of 16 bits a pixel, cut to fewer bits or dithered.
// Checks: null, size, null planes; step where both images are interleaved and nothing is dithered.
//
// A row goes through planes of red, green and blue in the first cache, a piece at a time. So sources know nothing of
// words, and words nothing of sources; which channel lies in the lower bits is a matter of which plane comes first.

#include <algorithm>

#include "color/affine.h"
#include "color/luma_chroma.h"
#include "color/packed_words.h"
#include "color/subsampled.h"
#include "color/to_rgb.h"
#include "core/exports.h"
#include "core/inlined.h"
#include "vemi/color.h"

namespace vemi::color {
namespace {

// ---- Arithmetics: whole groups of four columns, and what is left ----------------------------------------------------

/// The same weights as in the groups, without a half before the last shift.
constexpr LumaChromaMatrix ycbcrToRgbRoundedDown = [] {
  LumaChromaMatrix matrix = ycbcrToRgb;
  matrix.rounding = 0;
  return matrix;
}();

struct YCbCr {
  using Groups = ToRgb<ycbcrToRgb>;
  using Rest = ToRgb<ycbcrToRgbRoundedDown>;
};

struct Yuv {
  using Groups = ToRgb<yuvToRgb, OddPixels::everySecondFourOff>;
  using Rest = ExactToRgb<yuvToRgbExact>;
};

// ---- Rows of sources ------------------------------------------------------------------------------------------------

/// Pixels that share nothing, as a row that may share chroma.
template <class Row>
struct FullRate {
  static constexpr int sharing = 1;
  Row row;

  Row groups() const { return row; }
  Row pixel(ptrdiff_t x) const { return row.from(x); }
};

// An image gives row(y).

template <class Image>
struct FullRateImage {
  Image image;
  auto row(ptrdiff_t y) const { return FullRate<decltype(image.row(y))>{image.row(y)}; }
};

template <int rowsOfChroma>
struct SharedChromaImage {
  ChromaPlanes planes;
  auto row(ptrdiff_t y) const { return chromaRow<2>(planes, y, y / rowsOfChroma); }
};

struct PairsImage {
  Image<const Vemi8u> image;
  auto row(ptrdiff_t y) const { return PackedChroma<Packed422::lumaFirst>{image.row(y)}; }
};

// ---- From a source to words -----------------------------------------------------------------------------------------

/// Columns of a row, whole groups of four but for its end. The channel of the lowest bits comes first.
struct Piece {
  static constexpr ptrdiff_t most = 1024;
  alignas(laneAlignment) Vemi8u channel[3][most];
};

enum class Order { rgb, bgr };

/// The channels of a piece from column x on.
auto channelsFrom(Piece& piece, Order order, ptrdiff_t x) {
  const int red = order == Order::rgb ? 0 : 2;
  return planeRow(piece.channel[red] + x, piece.channel[1] + x, piece.channel[2 - red] + x);
}

/// Columns of a row, or of two that share chroma, to to(x) from column x on.
template <class Groups, class Rest, class Row, class To>
HWY_INLINE void expandColumns(ptrdiff_t first, ptrdiff_t columns, const Row& row, const To& to) {
  const auto shared = [&](auto op) VEMI_INLINED {
    return [&, op](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED { mapPixels(n, op, to(x), row.groups().from(first + x)); };
  };
  forRegimes<4, Row::sharing, 1>(columns, shared(Groups()), shared(Rest()), [&](ptrdiff_t x, ptrdiff_t n) VEMI_INLINED {
    mapPixels(n, Rest(), to(x), row.pixel(first + x));
  });
}

template <class Groups, class Rest, class Src>
HWY_NOINLINE void expandPiece(ptrdiff_t first, ptrdiff_t columns, const Src& src, ptrdiff_t y, Order order,
                              Piece& piece) {
  const auto to = [&](ptrdiff_t x) VEMI_INLINED { return channelsFrom(piece, order, x); };
  expandColumns<Groups, Rest>(first, columns, src.row(y), to);
}

template <class Groups, class Rest>
HWY_NOINLINE void expandPieces(ptrdiff_t first, ptrdiff_t columns, ChromaPlanes src, ptrdiff_t y, Order order,
                               Piece (&pieces)[2]) {
  const auto to = [&](ptrdiff_t x) VEMI_INLINED {
    return rowsBeside(channelsFrom(pieces[0], order, x), channelsFrom(pieces[1], order, x));
  };
  expandColumns<OnPairedRows<Groups>, OnPairedRows<Rest>>(first, columns, pairedRows(src, y, y / 2), to);
}

using ToWords = void(ptrdiff_t columns, const Piece& piece, ptrdiff_t y, WordRow words, bool streamed);

/// Of columns from `first` on; their places count within groups of four.
template <class Op>
void runWords(ptrdiff_t first, ptrdiff_t columns, const Op& op, const Piece& piece, WordRow words, bool streamed) {
  const auto channels = planeRow(piece.channel[0] + first, piece.channel[1] + first, piece.channel[2] + first);
  if (streamed) {
    streamPixels<4>(columns, op, words.from(first), channels);
  } else {
    mapPixels(columns, op, words.from(first), channels);
  }
}

template <class Format>
void cut(ptrdiff_t columns, const Piece& piece, ptrdiff_t, WordRow words, bool streamed) {
  runWords(0, columns, UpperBits<Format>(), piece, words, streamed);
}

/// Vectors end with a group too, so that they begin with one.
template <class Format>
void dither(ptrdiff_t columns, const Piece& piece, ptrdiff_t y, WordRow words, bool streamed) {
  const DitheredLevels<Format> op = {y % 4};
  const ptrdiff_t inGroups = columns / 4 * 4;
  if (inGroups > 0) runWords(0, inGroups, op, piece, words, streamed);
  if (columns > inGroups) runWords(inGroups, columns - inGroups, op, piece, words, streamed);
}

/// The words of a member: what becomes of bytes, and which channel lies in the lower bits.
struct Packing {
  ToWords* toWords;
  Order order;
  bool dithers;
};

template <class Groups, class Rest, class Src>
void packRow(ptrdiff_t width, const Src& src, ptrdiff_t y, Image<Vemi16u> dst, const Packing& packing, bool streamed) {
  Piece piece;
  for (ptrdiff_t x = 0; x < width; x += Piece::most) {
    const ptrdiff_t columns = std::min(Piece::most, width - x);
    expandPiece<Groups, Rest>(x, columns, src, y, packing.order, piece);
    packing.toWords(columns, piece, y, {dst.row(y) + x}, streamed);
  }
}

template <class Groups, class Rest, class Src>
void packRows(Extent extent, const Src& src, Image<Vemi16u> dst, const Packing& packing) {
  const auto rowBy = [&](bool streamed) {
    return [&, streamed](ptrdiff_t y) { packRow<Groups, Rest>(extent.width, src, y, dst, packing, streamed); };
  };
  runPlainOrStreamed(CallerRows(), extent.height, trafficOf(extent, 5), rowBy(false), rowBy(true));
}

/// 4:2:0: pairs of rows, and an odd last one, which has no whole groups.
template <class Groups, class Rest>
void packRows(Extent extent, const SharedChromaImage<2>& src, Image<Vemi16u> dst, const Packing& packing) {
  const auto pairBy = [&](bool streamed) {
    return [&, streamed](ptrdiff_t k) {
      Piece pieces[2];
      for (ptrdiff_t x = 0; x < extent.width; x += Piece::most) {
        const ptrdiff_t columns = std::min(Piece::most, extent.width - x);
        expandPieces<Groups, Rest>(x, columns, src.planes, 2 * k, packing.order, pieces);
        packing.toWords(columns, pieces[0], 2 * k, {dst.row(2 * k) + x}, streamed);
        packing.toWords(columns, pieces[1], 2 * k + 1, {dst.row(2 * k + 1) + x}, streamed);
      }
    };
  };
  runPlainOrStreamed(CallerRows(), extent.height / 2, trafficOf(extent, 5), pairBy(false), pairBy(true));
  if (extent.height % 2 != 0) packRow<Rest, Rest>(extent.width, src, extent.height - 1, dst, packing, false);
}

// ---- Whole calls ----------------------------------------------------------------------------------------------------

/// Dithered, all columns are worked as those that are left.
template <class Model, const Packing& packing, class Src>
void pack(Extent extent, Src src, Image<Vemi16u> dst) {
  using Rest = typename Model::Rest;
  using Groups = std::conditional_t<packing.dithers, Rest, typename Model::Groups>;
  packRows<Groups, Rest>(extent, src, dst, packing);
}

/// Contiguous rows are one long row, with groups beyond the ends of rows, unless places count within them.
template <const Packing& packing>
VemiStatus fromPixels(Image<const Vemi8u> src, Image<Vemi16u> dst, VemiSize roiSize) {
  const VemiStatus badStep = packing.dithers ? vemiOk : checkStep(src, dst);
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), badStep)) return bad;
  const bool merged = !packing.dithers && isContiguous<C3>(src, roiSize) && isContiguous<C1>(dst, roiSize);
  const auto pixels = pixelsOf<C3>(src);
  pack<YCbCr, packing>(mergedExtent(roiSize, merged), FullRateImage<decltype(pixels)>{pixels}, dst);
  return vemiOk;
}

template <const Packing& packing>
VemiStatus fromPlanes(ChromaPlanes src, Image<Vemi16u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  const auto planes = pixelsOf(src);
  pack<YCbCr, packing>(extentOf(roiSize), FullRateImage<decltype(planes)>{planes}, dst);
  return vemiOk;
}

template <class Model, int rowsOfChroma, const Packing& packing>
VemiStatus fromSharedChroma(ChromaPlanes src, Image<Vemi16u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  pack<Model, packing>(extentOf(roiSize), SharedChromaImage<rowsOfChroma>{src}, dst);
  return vemiOk;
}

template <const Packing& packing>
VemiStatus fromPairs(Image<const Vemi8u> src, Image<Vemi16u> dst, VemiSize roiSize) {
  if (const VemiStatus bad = checkImages(src, dst, roiSize)) return bad;
  pack<YCbCr, packing>(extentOf(roiSize), PairsImage{src}, dst);
  return vemiOk;
}

using Words565 = WordFormat<5, 6, 5>;
using Words555 = WordFormat<5, 5, 5>;
using Words444 = WordFormat<4, 4, 4>;

constexpr Packing rgb565 = {cut<Words565>, Order::rgb, false};
constexpr Packing bgr565 = {cut<Words565>, Order::bgr, false};
constexpr Packing rgb555 = {cut<Words555>, Order::rgb, false};
constexpr Packing bgr555 = {cut<Words555>, Order::bgr, false};
constexpr Packing rgb444 = {cut<Words444>, Order::rgb, false};
constexpr Packing bgr444 = {cut<Words444>, Order::bgr, false};

constexpr Packing rgb565Dither = {dither<Words565>, Order::rgb, true};
constexpr Packing bgr565Dither = {dither<Words565>, Order::bgr, true};
constexpr Packing rgb555Dither = {dither<Words555>, Order::rgb, true};
constexpr Packing bgr555Dither = {dither<Words555>, Order::bgr, true};
constexpr Packing rgb444Dither = {dither<Words444>, Order::rgb, true};
constexpr Packing bgr444Dither = {dither<Words444>, Order::bgr, true};

}  // namespace
}  // namespace vemi::color

using namespace vemi;
using namespace vemi::color;

#define PLANES_TO_WORDS                                                                               \
  ((const Vemi8u* const pSrc[3], const int srcStep[3], Vemi16u* pDst, int dstStep, VemiSize roiSize), \
   (SteppedPlanes<const Vemi8u, 3>{pSrc, srcStep}, Image<Vemi16u>{pDst, dstStep}, roiSize))

VEMI_DEFINE(vemiYCbCrToRGB565_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb565>)
VEMI_DEFINE(vemiYCbCrToBGR565_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr565>)
VEMI_DEFINE(vemiYCbCrToRGB555_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb555>)
VEMI_DEFINE(vemiYCbCrToBGR555_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr555>)
VEMI_DEFINE(vemiYCbCrToRGB444_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb444>)
VEMI_DEFINE(vemiYCbCrToBGR444_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr444>)
VEMI_DEFINE(vemiYCbCrToRGB565Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb565Dither>)
VEMI_DEFINE(vemiYCbCrToBGR565Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr565Dither>)
VEMI_DEFINE(vemiYCbCrToRGB555Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb555Dither>)
VEMI_DEFINE(vemiYCbCrToBGR555Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr555Dither>)
VEMI_DEFINE(vemiYCbCrToRGB444Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<rgb444Dither>)
VEMI_DEFINE(vemiYCbCrToBGR444Dither_8u16u_C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPixels<bgr444Dither>)

VEMI_DEFINE(vemiYCbCrToRGB565_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb565>)
VEMI_DEFINE(vemiYCbCrToBGR565_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr565>)
VEMI_DEFINE(vemiYCbCrToRGB555_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb555>)
VEMI_DEFINE(vemiYCbCrToBGR555_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr555>)
VEMI_DEFINE(vemiYCbCrToRGB444_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb444>)
VEMI_DEFINE(vemiYCbCrToBGR444_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr444>)
VEMI_DEFINE(vemiYCbCrToRGB565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb565Dither>)
VEMI_DEFINE(vemiYCbCrToBGR565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr565Dither>)
VEMI_DEFINE(vemiYCbCrToRGB555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb555Dither>)
VEMI_DEFINE(vemiYCbCrToBGR555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr555Dither>)
VEMI_DEFINE(vemiYCbCrToRGB444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<rgb444Dither>)
VEMI_DEFINE(vemiYCbCrToBGR444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromPlanes<bgr444Dither>)

VEMI_DEFINE(vemiYCbCr422ToRGB565_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb565>)
VEMI_DEFINE(vemiYCbCr422ToBGR565_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr565>)
VEMI_DEFINE(vemiYCbCr422ToRGB555_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb555>)
VEMI_DEFINE(vemiYCbCr422ToBGR555_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr555>)
VEMI_DEFINE(vemiYCbCr422ToRGB444_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb444>)
VEMI_DEFINE(vemiYCbCr422ToBGR444_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr444>)
VEMI_DEFINE(vemiYCbCr422ToRGB565Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb565Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR565Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr565Dither>)
VEMI_DEFINE(vemiYCbCr422ToRGB555Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb555Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR555Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr555Dither>)
VEMI_DEFINE(vemiYCbCr422ToRGB444Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<rgb444Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR444Dither_8u16u_C2C3R, VEMI_CONVERSION(Vemi8u, Vemi16u), fromPairs<bgr444Dither>)

VEMI_DEFINE(vemiYCbCr422ToRGB565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb565>)
VEMI_DEFINE(vemiYCbCr422ToBGR565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr565>)
VEMI_DEFINE(vemiYCbCr422ToRGB555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb555>)
VEMI_DEFINE(vemiYCbCr422ToBGR555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr555>)
VEMI_DEFINE(vemiYCbCr422ToRGB444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb444>)
VEMI_DEFINE(vemiYCbCr422ToBGR444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr444>)
VEMI_DEFINE(vemiYCbCr422ToRGB565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb565Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr565Dither>)
VEMI_DEFINE(vemiYCbCr422ToRGB555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb555Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr555Dither>)
VEMI_DEFINE(vemiYCbCr422ToRGB444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, rgb444Dither>)
VEMI_DEFINE(vemiYCbCr422ToBGR444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 1, bgr444Dither>)

VEMI_DEFINE(vemiYCbCr420ToRGB565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb565>)
VEMI_DEFINE(vemiYCbCr420ToBGR565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr565>)
VEMI_DEFINE(vemiYCbCr420ToRGB555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb555>)
VEMI_DEFINE(vemiYCbCr420ToBGR555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr555>)
VEMI_DEFINE(vemiYCbCr420ToRGB444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb444>)
VEMI_DEFINE(vemiYCbCr420ToBGR444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr444>)
VEMI_DEFINE(vemiYCbCr420ToRGB565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb565Dither>)
VEMI_DEFINE(vemiYCbCr420ToBGR565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr565Dither>)
VEMI_DEFINE(vemiYCbCr420ToRGB555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb555Dither>)
VEMI_DEFINE(vemiYCbCr420ToBGR555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr555Dither>)
VEMI_DEFINE(vemiYCbCr420ToRGB444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, rgb444Dither>)
VEMI_DEFINE(vemiYCbCr420ToBGR444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<YCbCr, 2, bgr444Dither>)

VEMI_DEFINE(vemiYUV420ToRGB565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb565>)
VEMI_DEFINE(vemiYUV420ToBGR565_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr565>)
VEMI_DEFINE(vemiYUV420ToRGB555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb555>)
VEMI_DEFINE(vemiYUV420ToBGR555_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr555>)
VEMI_DEFINE(vemiYUV420ToRGB444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb444>)
VEMI_DEFINE(vemiYUV420ToBGR444_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr444>)
VEMI_DEFINE(vemiYUV420ToRGB565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb565Dither>)
VEMI_DEFINE(vemiYUV420ToBGR565Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr565Dither>)
VEMI_DEFINE(vemiYUV420ToRGB555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb555Dither>)
VEMI_DEFINE(vemiYUV420ToBGR555Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr555Dither>)
VEMI_DEFINE(vemiYUV420ToRGB444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, rgb444Dither>)
VEMI_DEFINE(vemiYUV420ToBGR444Dither_8u16u_P3C3R, PLANES_TO_WORDS, fromSharedChroma<Yuv, 2, bgr444Dither>)
