// The numbers of the conversions between colour models, one record each, for the kernels that run on them.
//
//   AffineMatrix      each result is a weighted sum of the three channels and an offset, exact to the shift
//   LumaChromaMatrix  to red, green and blue by products in 16-bit lanes, each of them rounded down
//
// Weights are the real numbers of the model, times 2^16 in an AffineMatrix; results are limited to a byte.
#pragma once

#include <cstdint>

namespace vemi::color {

/// (weight[0] a + weight[1] b + weight[2] c + offset) >> shift
struct AffineRow {
  int weight[3];
  int offset;
  int shift = 16;

  constexpr int operator()(int a, int b, int c) const {
    return (weight[0] * a + weight[1] * b + weight[2] * c + offset) >> shift;
  }
};

struct AffineMatrix {
  AffineRow row[3];
};

/// A row from luma and the differences of chroma to 128, with the luma of black.
constexpr AffineRow fromDifferences(int luma, int cb, int cr, int black) {
  return {{luma, cb, cr}, -black - 128 * (cb + cr)};
}

/// With mulhi(a, b) = (a b) >> 16, u = (U - 128) << chromaShift, v alike:
///   y = Y, or mulhi((Y - black) << 7, luma) where a weight of luma is given
///   R = (y + mulhi(v, redV) + rounding) >> shift
///   G = (y + mulhi(u, greenU) + mulhi(v, greenV) + rounding) >> shift
///   B = (y + mulhi(u, blueU) + rounding) >> shift
/// The weights of green may be given as magnitudes of products that are subtracted, which rounds them up.
struct LumaChromaMatrix {
  int16_t black = 0, luma = 0;
  int chromaShift;
  int16_t redV, greenU, greenV, blueU;
  bool subtractsGreen = false;
  int16_t rounding = 0;
  int shift = 0;
};

// ---- YUV: Y = 0.299 R + 0.587 G + 0.114 B, U = 0.492 (B - Y), V = 0.877 (R - Y)
// --------------------------------------

inline constexpr LumaChromaMatrix yuvToRgb = {
    .chromaShift = 3, .redV = 9339, .greenU = -3228, .greenV = -4760, .blueU = 16646};

/// Of the subsampled forms with four channels.
inline constexpr LumaChromaMatrix yuvToRgba = {
    .chromaShift = 3, .redV = 9338, .greenU = -3227, .greenV = -4759, .blueU = 16646};

/// Columns beyond the whole groups of the subsampled forms.
inline constexpr AffineMatrix yuvToRgbExact = {{fromDifferences(65536, 0, 74711, 0),
                                                fromDifferences(65536, -25821, -38076, 0),
                                                fromDifferences(65536, 133169, 0, 0)}};

// ---- YCbCr of ITU-R BT.601: luma from 16 to 235, chroma from 16 to 240
// -----------------------------------------------

/// Whole groups of the subsampled forms.
inline constexpr LumaChromaMatrix ycbcrToRgb = {.black = 16,
                                                .luma = 9535,
                                                .chromaShift = 7,
                                                .redV = 13074,
                                                .greenU = 3211,
                                                .greenV = 6660,
                                                .blueU = 16523,
                                                .subtractsGreen = true,
                                                .rounding = 8,
                                                .shift = 4};

inline constexpr AffineMatrix ycbcrToRgbExact = {{fromDifferences(76284, 0, 104595, 1220544),
                                                  fromDifferences(76284, -25690, -53281, 1220544),
                                                  fromDifferences(76284, 132186, 0, 1220544)}};

/// Of rows of one pixel Y, Cb: the offsets are fixed numbers beside those that the weights would give, and the third
/// channel does not count.
inline constexpr AffineMatrix ycbcrToRgbOfWidth1 = {
    {{{76284, 104595, 0}, -14608761}, {{76284, -53281 - 25690, 0}, 8887730}, {{76284, 132186, 0}, -18140365}}};

}  // namespace vemi::color
