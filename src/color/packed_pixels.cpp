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
#include "core/regimes.h"
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

// An image gives row(y), and how many of its rows have groups: of an odd number of rows that share chroma in pairs, the
// last one has none.

template <class Image>
struct FullRateImage {
  Image image;
  auto row(ptrdiff_t y) const { return FullRate<decltype(image.row(y))>{image.row(y)}; }
  static ptrdiff_t rowsWithGroups(ptrdiff_t height) { return height; }
};

template <int rowsOfChroma>
struct SharedChromaImage {
  ChromaPlanes planes;
  auto row(ptrdiff_t y) const { return chromaRow<2>(planes, y, y / rowsOfChroma); }
  static ptrdiff_t rowsWithGroups(ptrdiff_t height) { return height / rowsOfChroma * rowsOfChroma; }
};

struct PairsImage {
  Image<const Vemi8u> image;
  auto row(ptrdiff_t y) const { return PackedChroma<Packed422::lumaFirst>{image.row(y)}; }
  static ptrdiff_t rowsWithGroups(ptrdiff_t height) { return height; }
};

// ---- From a source to words -----------------------------------------------------------------------------------------

/// Columns of a row, whole groups of four but for its end. The channel of the lowest bits comes first.
struct Piece {
  static constexpr ptrdiff_t most = 1024;
  alignas(laneAlignment) Vemi8u channel[3][most];
};

enum class Order { rgb, bgr };

template <class Groups, class Rest, class Src>
HWY_NOINLINE void expandPiece(ptrdiff_t first, ptrdiff_t columns, const Src& src, ptrdiff_t y, Order order,
                              Piece& piece) {
  const auto row = src.row(y);
  const int red = order == Order::rgb ? 0 : 2;
  const auto map = [&](ptrdiff_t x, ptrdiff_t n, const auto& op, auto from) {
    mapPixels(n, op, planeRow(piece.channel[red] + x, piece.channel[1] + x, piece.channel[2 - red] + x), from);
  };
  forRegimes<4, decltype(row)::sharing, 1>(
      columns, [&](ptrdiff_t x, ptrdiff_t n) { map(x, n, Groups(), row.groups().from(first + x)); },
      [&](ptrdiff_t x, ptrdiff_t n) { map(x, n, Rest(), row.groups().from(first + x)); },
      [&](ptrdiff_t x, ptrdiff_t n) { map(x, n, Rest(), row.pixel(first + x)); });
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
  const auto run = [&](ptrdiff_t x, ptrdiff_t n) { runWords(x, n, op, piece, words, streamed); };
  forRegimes<4, 1>(columns, run, run);
}

/// The words of a member: what becomes of bytes, and which channel lies in the lower bits.
struct Packing {
  ToWords* toWords;
  Order order;
  bool dithers;
};

template <class Groups, class Rest, class Src>
void packRows(Extent extent, Src src, Image<Vemi16u> dst, const Packing& packing) {
  const ptrdiff_t rowsWithGroups = Src::rowsWithGroups(extent.height);
  const auto packRow = [&](ptrdiff_t y, bool streamed) {
    const auto expand = y < rowsWithGroups ? expandPiece<Groups, Rest, Src> : expandPiece<Rest, Rest, Src>;
    Piece piece;
    for (ptrdiff_t x = 0; x < extent.width; x += Piece::most) {
      const ptrdiff_t columns = std::min(Piece::most, extent.width - x);
      expand(x, columns, src, y, packing.order, piece);
      packing.toWords(columns, piece, y, {dst.row(y) + x}, streamed);
    }
  };
  runPlainOrStreamed(
      CallerRows(), extent.height, trafficOf(extent, 5), [&](ptrdiff_t y) { packRow(y, false); },
      [&](ptrdiff_t y) { packRow(y, true); });
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
