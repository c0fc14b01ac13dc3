// Affine warps and quarter turns. The peer's warps have coordinates of 1/1024 and weights of 5 bits, so their results
// differ and are not compared. The map is one in which all pixels of the destination come from within the source.

#include <cmath>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using Warp = VemiStatus(const T*, VemiSize, int, VemiRect, T*, int, VemiRect, const double[2][3], vemiInterpolation);
template <class T>
using Rotate = VemiStatus(const T*, VemiSize, int, VemiRect, T*, int, VemiRect, double, double, double,
                          vemiInterpolation);

struct Map {
  double c[2][3];
};

/// About the middle, by 20 degrees, and 1.5 times as large.
Map mapFor(VemiSize size) {
  const double cosine = 1.5 * std::cos(20 / 57.29577951308232), sine = 1.5 * std::sin(20 / 57.29577951308232);
  const double x = (size.width - 1) / 2.0, y = (size.height - 1) / 2.0;
  return {{{cosine, sine, x - cosine * x - sine * y}, {-sine, cosine, y + sine * x - cosine * y}}};
}

/// The source has the shape that lets no pixel of the destination lie outside: a square.
template <class T, int channels, Warp<T>* warp, int interpolation>
Contest warping(VemiSize size) {
  const int side = std::max(size.width, size.height);
  const Image<T> src = randomImage<T>({side, side}, channels), dst = blankImage<T>(size, channels);
  Map map = mapFor({side, side});
  for (int row = 0; row < 2; ++row) map.c[row][2] -= ((row == 0 ? side - size.width : side - size.height) / 2);
  const auto ours = [=] {
    return warp(src.data(), src.size, src.step, {0, 0, side, side}, dst.data(), dst.step,
                {0, 0, size.width, size.height}, map.c, interpolation);
  };
  const int flags = interpolation == vemiInterNearest  ? cv::INTER_NEAREST
                    : interpolation == vemiInterLinear ? cv::INTER_LINEAR
                                                       : cv::INTER_CUBIC;
  const cv::Mat matrix = cv::Mat(2, 3, CV_64F, map.c).clone();
  const auto peers = [from = mat(src), to = mat(dst), matrix, flags, src]() mutable {
    cv::warpAffine(from, to, matrix, to.size(), flags, cv::BORDER_TRANSPARENT);
  };
  return {ours, peers, {}};
}

template <class T, int channels, Rotate<T>* rotate, int turns>
Contest turning(VemiSize size) {
  const VemiSize turned = turns == 2 ? size : VemiSize{size.height, size.width};
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(turned, channels);
  const auto ours = [=] {
    return rotate(src.data(), size, src.step, {0, 0, size.width, size.height}, dst.data(), dst.step,
                  {0, 0, turned.width, turned.height}, 90 * turns, turns == 1 ? 0 : turned.width - 1,
                  turns == 3 ? 0 : turned.height - 1, vemiInterNearest);
  };
  const int code = turns == 1 ? cv::ROTATE_90_COUNTERCLOCKWISE : turns == 2 ? cv::ROTATE_180 : cv::ROTATE_90_CLOCKWISE;
  const auto peers = [from = mat(src), to = mat(dst), code, src]() mutable { cv::rotate(from, to, code); };
  return {ours, peers, {{dst.data(), static_cast<size_t>(dst.step) * static_cast<size_t>(turned.height)}}};
}

std::vector<Row> rows() {
  const std::string warp = "OpenCV warpAffine", turn = "OpenCV rotate";
  return {
      {"WarpAffine 8u C1 nearest", warp, warping<Vemi8u, 1, vemiWarpAffine_8u_C1R, vemiInterNearest>},
      {"WarpAffine 8u C1 linear", warp, warping<Vemi8u, 1, vemiWarpAffine_8u_C1R, vemiInterLinear>},
      {"WarpAffine 8u C1 cubic", warp, warping<Vemi8u, 1, vemiWarpAffine_8u_C1R, vemiInterCubic>},
      {"WarpAffine 8u C3 nearest", warp, warping<Vemi8u, 3, vemiWarpAffine_8u_C3R, vemiInterNearest>},
      {"WarpAffine 8u C3 linear", warp, warping<Vemi8u, 3, vemiWarpAffine_8u_C3R, vemiInterLinear>},
      {"WarpAffine 8u C3 cubic", warp, warping<Vemi8u, 3, vemiWarpAffine_8u_C3R, vemiInterCubic>},
      {"WarpAffine 8u C4 nearest", warp, warping<Vemi8u, 4, vemiWarpAffine_8u_C4R, vemiInterNearest>},
      {"WarpAffine 8u C4 linear", warp, warping<Vemi8u, 4, vemiWarpAffine_8u_C4R, vemiInterLinear>},
      {"WarpAffine 8u C4 cubic", warp, warping<Vemi8u, 4, vemiWarpAffine_8u_C4R, vemiInterCubic>},
      {"WarpAffine 32f C1 nearest", warp, warping<Vemi32f, 1, vemiWarpAffine_32f_C1R, vemiInterNearest>},
      {"WarpAffine 32f C1 linear", warp, warping<Vemi32f, 1, vemiWarpAffine_32f_C1R, vemiInterLinear>},
      {"WarpAffine 32f C1 cubic", warp, warping<Vemi32f, 1, vemiWarpAffine_32f_C1R, vemiInterCubic>},
      {"WarpAffine 32f C3 linear", warp, warping<Vemi32f, 3, vemiWarpAffine_32f_C3R, vemiInterLinear>},
      {"WarpAffine 32f C4 cubic", warp, warping<Vemi32f, 4, vemiWarpAffine_32f_C4R, vemiInterCubic>},
      {"Rotate 8u C1 90", turn, turning<Vemi8u, 1, vemiRotate_8u_C1R, 1>},
      {"Rotate 8u C1 180", turn, turning<Vemi8u, 1, vemiRotate_8u_C1R, 2>},
      {"Rotate 8u C1 270", turn, turning<Vemi8u, 1, vemiRotate_8u_C1R, 3>},
      {"Rotate 8u C3 90", turn, turning<Vemi8u, 3, vemiRotate_8u_C3R, 1>},
      {"Rotate 8u C3 180", turn, turning<Vemi8u, 3, vemiRotate_8u_C3R, 2>},
      {"Rotate 8u C4 90", turn, turning<Vemi8u, 4, vemiRotate_8u_C4R, 1>},
      {"Rotate 16u C1 90", turn, turning<Vemi16u, 1, vemiRotate_16u_C1R, 1>},
      {"Rotate 16u C3 90", turn, turning<Vemi16u, 3, vemiRotate_16u_C3R, 1>},
      {"Rotate 16u C4 90", turn, turning<Vemi16u, 4, vemiRotate_16u_C4R, 1>},
      {"Rotate 32f C1 90", turn, turning<Vemi32f, 1, vemiRotate_32f_C1R, 1>},
      {"Rotate 32f C3 90", turn, turning<Vemi32f, 3, vemiRotate_32f_C3R, 1>},
      {"Rotate 32f C4 90", turn, turning<Vemi32f, 4, vemiRotate_32f_C4R, 1>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family affineFamily() { return {"affine", rows()}; }

}  // namespace bench
