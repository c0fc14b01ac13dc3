// The numbers of the conversions between colour models, one record each, for the kernels that run on them.
//
//   AffineMatrix       each result is a weighted sum of the three channels and an offset, exact to the shift
//   PartwiseMatrix     the same of two parts, each of them rounded down by itself
//   HighProductMatrix  the same of three products in 16-bit lanes, each of them rounded down by itself
//   DifferenceMatrix   luma, and chroma as fractions of the differences between channels and luma
//   ExactMatrix        from luma and chroma by weighted sums, exact
//   LumaChromaMatrix   the same by products in 16-bit lanes, each of them rounded down
//   YccMatrix          to and from the photographic model, whose luma and chroma are scaled
//
// x >> n is x / 2^n rounded down, mulhi(a, b) = (a b) >> 16, and all results are limited to bytes.
#pragma once

#include <cstdint>

namespace vemi::color {

/// (weight[0] a + weight[1] b + weight[2] c + offset) >> shift
struct AffineRow {
  int weight[3];
  int offset;
  int shift = 16;

  constexpr int sum(int a, int b, int c) const { return weight[0] * a + weight[1] * b + weight[2] * c + offset; }
  constexpr int operator()(int a, int b, int c) const { return sum(a, b, c) >> shift; }
};

template <int rows>
struct AffineMatrix {
  AffineRow row[rows];
};

/// ((((weight[0] a + weight[1] b) >> 11) + ((weight[2] c) >> 11)) >> 4) + offset
struct PartwiseRow {
  int16_t weight[3];
  int16_t offset;
};

struct PartwiseMatrix {
  PartwiseRow row[3];
};

/// (mulhi(a << shift, weight[0]) + mulhi(b << shift, weight[1]) + mulhi(c << shift, weight[2]) + offset) >> 3
struct HighProductRow {
  int16_t weight[3];
  int16_t offset;
  int shift;
};

struct HighProductMatrix {
  HighProductRow row[3];
};

/// Twice luma is Y2 = ((red R + green G) >> 14) + ((blue B) >> 14), and
///   Y = Y2 >> 1
///   U = mulhi(2 B - Y2, blueToU) + 128
///   V = mulhi(2 R - Y2, redToV) + 128
struct DifferenceMatrix {
  int16_t red, green, blue;
  int16_t blueToU, redToV;
};

/// With c = U - 128, d = V - 128, each of the sums is exact:
///   R = (luma Y + redV d + offset) >> 16
///   G = (luma Y + greenU c + greenV d + offset) >> 16
///   B = (luma Y + blueU c + offset) >> 16
struct ExactMatrix {
  int luma, redV, greenU, greenV, blueU, offset;
};

/// With u = (U - 128) << chromaShift, v alike:
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

// ---- YUV: Y = 0.299 R + 0.587 G + 0.114 B, U = 0.492 (B - Y), V = 0.877 (R - Y) ------------------------------------

/// Whole groups of eight.
inline constexpr AffineMatrix<3> rgbToYuv = {
    {{{9798, 19235, 3736}, 0, 15}, {{-4817, -9470, 14287}, 128 << 15, 15}, {{20152, -16876, -3277}, 128 << 15, 15}}};

/// What is left over, and the subsampled forms.
inline constexpr DifferenceMatrix rgbToYuvByDifferences = {
    .red = 9798, .green = 19235, .blue = 3736, .blueToU = 16121, .redToV = 28737};

/// The last column and row of 4:2:0 where they have no partner: luma, and the weights of differences of one pixel.
inline constexpr AffineRow yuvEdgeLuma = {{19595, 38470, 7471}, 0};
inline constexpr int yuvEdgeBlueToU = 32244, yuvEdgeRedToV = 57475;

inline constexpr LumaChromaMatrix yuvToRgb = {
    .chromaShift = 3, .redV = 9339, .greenU = -3228, .greenV = -4760, .blueU = 16646};

/// Of the subsampled forms with four channels.
inline constexpr LumaChromaMatrix yuvToRgba = {
    .chromaShift = 3, .redV = 9338, .greenU = -3227, .greenV = -4759, .blueU = 16646};

/// Columns beyond the whole groups of the subsampled forms.
inline constexpr ExactMatrix yuvToRgbExact = {
    .luma = 65536, .redV = 74711, .greenU = -25821, .greenV = -38076, .blueU = 133169, .offset = 0};

// ---- YCbCr of ITU-R BT.601: luma from 16 to 235, chroma from 16 to 240 ---------------------------------------------

inline constexpr AffineMatrix<3> rgbToYCbCr = {
    {{{16843, 33030, 6423}, 0x108000}, {{-9699, -19071, 28770}, 0x808000}, {{28770, -24117, -4653}, 0x808000}}};

/// Whole groups of eight, and the luma of whole groups of four of 4:2:2.
inline constexpr PartwiseMatrix rgbToYCbCrPartwise = {
    {{{8421, 16515, 3211}, 16}, {{-4850, -9535, 14385}, 128}, {{14385, -12059, -2327}, 128}}};

/// Chroma of whole groups of four of 4:2:2, from the sums of two pixels.
inline constexpr AffineMatrix<2> rgbToChroma422 = {
    {{{-4850, -9535, 14385}, 128 << 16}, {{14385, -12059, -2327}, 128 << 16}}};

/// A pair behind these groups: its luma is not rounded to nearest, its chroma is that of sums.
inline constexpr AffineMatrix<1> rgbToLumaOfLastPair = {{{{16843, 33030, 6423}, 0x100000}}};
inline constexpr AffineMatrix<2> rgbToChromaOfLastPair = {
    {{{-9699, -19071, 28770}, 0x1010000, 17}, {{28770, -24117, -4653}, 0x1010000, 17}}};

/// The last pixel of an odd row of 4:2:2: luma and the first chroma. Two of its weights are one less than elsewhere,
/// and nothing is rounded to nearest.
inline constexpr AffineMatrix<2> rgbToYCbOfLastPixel = {
    {{{16842, 33030, 6422}, 0x100000}, {{-9699, -19070, 28770}, 0x800000}}};

/// 4:2:0, chroma from the sums of four pixels.
inline constexpr HighProductMatrix rgbToYCbCr420 = {
    {{{1052, 2064, 401}, 132, 7}, {{-607, -1192, 1798}, 1028, 5}, {{1798, -1508, -291}, 1028, 5}}};

/// Chroma of two pixels beside or below each other at the edges of 4:2:0, from their sums.
inline constexpr AffineMatrix<2> rgbToChromaOfEdge = {
    {{{-9699, -19071, 28770}, 0x1004000, 17}, {{28770, -24117, -4653}, 0x1004000, 17}}};

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

inline constexpr ExactMatrix ycbcrToRgbExact = {
    .luma = 76284, .redV = 104595, .greenU = -25690, .greenV = -53281, .blueU = 132186, .offset = -1220544};

/// 4:1:1, whole groups of eight.
inline constexpr LumaChromaMatrix ycbcr411ToRgb = {.black = 16,
                                                   .luma = 9536,
                                                   .chromaShift = 7,
                                                   .redV = 13074,
                                                   .greenU = -3203,
                                                   .greenV = -6660,
                                                   .blueU = 16523,
                                                   .shift = 4};

inline constexpr ExactMatrix ycbcr411ToRgbExact = {
    .luma = 76294, .redV = 104595, .greenU = -25625, .greenV = -53281, .blueU = 132186, .offset = -1220704};

/// CbYCr of 4:2:2.
inline constexpr ExactMatrix cbycrToRgb = {
    .luma = 76282, .redV = 104593, .greenU = -25689, .greenV = -53279, .blueU = 132184, .offset = -1187744};

/// Chroma of CbYCr from the sums of two pixels with an alpha. The roundings of Cb and Cr differ.
inline constexpr AffineMatrix<2> bgraToChroma422 = {
    {{{-9699, -19071, 28770}, 0x1010000, 17}, {{28770, -24117, -4653}, 0x100fffe, 17}}};

/// Of rows of one pixel Y, Cb: the offsets are fixed numbers beside those that the weights would give, and the third
/// channel does not count.
inline constexpr AffineMatrix<3> ycbcrToRgbOfWidth1 = {
    {{{76284, 104595, 0}, -14608761}, {{76284, -53281 - 25690, 0}, 8887730}, {{76284, 132186, 0}, -18140365}}};

// ---- YCC: luma l of R, G and B; Y = l / 1.402, C1 and C2 multiples of B - l and R - l ------------------------------

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

// ---- XYZ of the CIE, of linear light with the primaries of ITU-R BT.709 ---------------------------------------------

/// Whole groups: each product with blue is shifted by itself.
inline constexpr AffineMatrix<3> rgbToXyz8u = {
    {{{13515, 11717, 5912}, 0, 15}, {{6969, 23434, 2365}, 0, 15}, {{634, 3906, 31137}, 0, 15}}};
inline constexpr AffineMatrix<3> xyzToRgb8u = {
    {{{26546, -12591, -4083}, 0, 13}, {{-7939, 15368, 340}, 0, 13}, {{456, -1671, 8661}, 0, 13}}};
/// Columns that are left.
inline constexpr AffineMatrix<3> rgbToXyz8uRest = {
    {{{27030, 23434, 11824}, 0}, {{13937, 46868, 4729}, 0}, {{1267, 7811, 62274}, 0}}};
inline constexpr AffineMatrix<3> xyzToRgb8uRest = {
    {{{212368, -100738, -32671}, 0}, {{-63521, 122944, 2723}, 0}, {{3646, -13372, 69291}, 0}}};

// ---- Grey -----------------------------------------------------------------------------------------------------------

inline constexpr float greyWeights[3] = {0.299f, 0.587f, 0.114f};
/// The same times 2^12.
inline constexpr int greyWeights8u[3] = {1225, 2404, 467};

}  // namespace vemi::color
