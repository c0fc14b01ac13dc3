// The numbers of the conversions between colour models, one record each, for the kernels that run on them.
//
//   AffineMatrix      each result is a weighted sum of the three channels and an offset, exact to the shift
//   LumaChromaMatrix  to red, green and blue by products in 16-bit lanes, each of them rounded down
//   YccMatrix         to and from the photographic model, whose luma and chroma are scaled
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

// ---- YCC: luma l of red, green and blue; Y = l / 1.402, C1 and C2 multiples of B - l and R - l from zero points on
// ------

/// Forward: l = sum of weight times channel; Y = luma l, C1 = c1 (B - l) + zero1, C2 = c2 (R - l) + zero2.
template <class T>
struct YccMatrix {
  T weight[3];
  T luma, c1, c2;
};

/// Inverse: y = luma Y, c = c1 (C1 - zero1), d = c2 (C2 - zero2); R = y + d, G = y - green1 c - green2 d, B = y + c.
template <class T>
struct YccInverse {
  T luma, c1, c2, green1, green2;
};

/// The values of no chroma.
template <class T>
struct YccZeros {
  T c1, c2;
};

inline constexpr YccMatrix<float> rgbToYcc = {{0.299f, 0.587f, 0.114f}, 0.7132668f, 0.43686f, 0.53192f};
inline constexpr YccInverse<float> yccToRgb = {1.3584f, 2.2179f, 1.8215f, 0.194f, 0.509f};

/// Weights of light times 2^14, the others times 2^12; both regimes.
inline constexpr YccMatrix<int> rgbToYcc8u = {{4898, 9617, 1867}, 2921, 1789, 2178};
/// Whole groups: luma times 2^12, chroma times 2^13, green times 2^15.
inline constexpr YccInverse<int> yccToRgb8u = {5563, 18168, 14921, 6357, 16679};
/// Columns that are left: all times 2^12.
inline constexpr YccInverse<int> yccToRgb8uRest = {5564, 9084, 7460, 794, 2084};

inline constexpr YccZeros<int> yccZeros8u = {156, 137};
/// Of 16u, and of 16s once 32768 is added.
inline constexpr YccZeros<float> yccZeros16u = {40092, 35209};
inline constexpr YccZeros<float> yccZeros32f = {0.6117647f, 0.5372549f};

// ---- Grey -----------------------------------------------------------------------------------------------------------

inline constexpr float greyWeights[3] = {0.299f, 0.587f, 0.114f};
/// The same times 2^12.
inline constexpr int greyWeights8u[3] = {1225, 2404, 467};

}  // namespace vemi::color
