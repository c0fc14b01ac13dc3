// Images fetched by maps, seen in perspective, and turned over. Peers round weights to fewer bits, so that results of
// warps are not compared.

#include <cmath>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using Remap = VemiStatus(const T*, VemiSize, int, VemiRect, const Vemi32f*, int, const Vemi32f*, int, T*, int, VemiSize,
                         vemiInterpolation);
template <class T>
using Warp = VemiStatus(const T*, VemiSize, int, VemiRect, T*, int, VemiRect, const double[3][3], vemiInterpolation);
template <class T>
using Mirror = VemiStatus(const T*, int, T*, int, VemiSize, vemiAxis);

VemiRect wholeOf(VemiSize size) { return {0, 0, size.width, size.height}; }

constexpr int peersOf(int interpolation) {
  return interpolation == vemiInterNearest  ? cv::INTER_NEAREST
         : interpolation == vemiInterLinear ? cv::INTER_LINEAR
                                            : cv::INTER_CUBIC;
}

/// Turned by some degrees about the middle, smaller and smaller towards the rim, as a lens does.
template <class T, int channels, Remap<T>* remap, int interpolation>
Contest byMaps(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const Image<Vemi32f> x = blankImage<Vemi32f>(size, 1), y = blankImage<Vemi32f>(size, 1);
  const float right = static_cast<float>(size.width - 1), bottom = static_cast<float>(size.height - 1);
  for (int j = 0; j < size.height; ++j) {
    for (int i = 0; i < size.width; ++i) {
      const float u = static_cast<float>(i) / right * 2 - 1, v = static_cast<float>(j) / bottom * 2 - 1;
      const float k = 0.7f + 0.1f * (u * u + v * v);
      const auto at = static_cast<size_t>(j) * static_cast<size_t>(x.step / 4) + static_cast<size_t>(i);
      x.data()[at] = (1 + k * (0.99f * u + 0.1f * v)) / 2 * right;
      y.data()[at] = (1 + k * (0.99f * v - 0.1f * u)) / 2 * bottom;
    }
  }
  const auto ours = [=] {
    return remap(src.data(), size, src.step, wholeOf(size), x.data(), x.step, y.data(), y.step, dst.data(), dst.step,
                 size, interpolation);
  };
  const auto peers = [=, from = mat(src), to = mat(dst), xs = mat(x), ys = mat(y)]() mutable {
    cv::remap(from, to, xs, ys, peersOf(interpolation), cv::BORDER_TRANSPARENT);
  };
  return {ours, peers, {}};
}

/// A page seen from the side, which fills most of the destination.
template <class T, int channels, Warp<T>* warp, int interpolation>
Contest inPerspective(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const double w = size.width, h = size.height;
  const double quad[4][2] = {{0.02 * w, 0.03 * h}, {0.97 * w, 0.08 * h}, {0.99 * w, 0.9 * h}, {0.05 * w, 0.98 * h}};
  cv::Mat map(3, 3, CV_64F);
  const auto coeffs = reinterpret_cast<double(*)[3]>(map.ptr<double>());
  vemiGetPerspectiveTransform(wholeOf(size), quad, coeffs);
  const auto ours = [=] {
    return warp(src.data(), size, src.step, wholeOf(size), dst.data(), dst.step, wholeOf(size), coeffs, interpolation);
  };
  const auto peers = [=, from = mat(src), to = mat(dst)]() mutable {
    cv::warpPerspective(from, to, map, to.size(), peersOf(interpolation), cv::BORDER_TRANSPARENT);
  };
  return {[=] { return static_cast<void>(map), ours(); }, peers, {}};
}

template <class T, int channels, Mirror<T>* mirror, int axis>
Contest turnedOver(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto peers = [=, from = mat(src), to = mat(dst)]() mutable {
    cv::flip(from, to, axis == vemiAxisBoth ? -1 : axis);
  };
  return {[=] { return mirror(src.data(), src.step, dst.data(), dst.step, size, axis); }, peers, {dst.bytes()}};
}

std::vector<Row> rows() {
  const std::string remap = "OpenCV remap", warp = "OpenCV warpPerspective", flip = "OpenCV flip";
  return {
      {"Remap 8u C1 nearest", remap, byMaps<Vemi8u, 1, vemiRemap_8u_C1R, vemiInterNearest>},
      {"Remap 8u C1 linear", remap, byMaps<Vemi8u, 1, vemiRemap_8u_C1R, vemiInterLinear>},
      {"Remap 8u C1 cubic", remap, byMaps<Vemi8u, 1, vemiRemap_8u_C1R, vemiInterCubic>},
      {"Remap 8u C3 nearest", remap, byMaps<Vemi8u, 3, vemiRemap_8u_C3R, vemiInterNearest>},
      {"Remap 8u C3 linear", remap, byMaps<Vemi8u, 3, vemiRemap_8u_C3R, vemiInterLinear>},
      {"Remap 8u C3 cubic", remap, byMaps<Vemi8u, 3, vemiRemap_8u_C3R, vemiInterCubic>},
      {"Remap 8u C4 linear", remap, byMaps<Vemi8u, 4, vemiRemap_8u_C4R, vemiInterLinear>},
      {"Remap 32f C1 linear", remap, byMaps<Vemi32f, 1, vemiRemap_32f_C1R, vemiInterLinear>},
      {"Remap 32f C1 cubic", remap, byMaps<Vemi32f, 1, vemiRemap_32f_C1R, vemiInterCubic>},
      {"Remap 32f C3 linear", remap, byMaps<Vemi32f, 3, vemiRemap_32f_C3R, vemiInterLinear>},
      {"Remap 32f C4 cubic", remap, byMaps<Vemi32f, 4, vemiRemap_32f_C4R, vemiInterCubic>},
      {"Perspective 8u C1 nearest", warp, inPerspective<Vemi8u, 1, vemiWarpPerspective_8u_C1R, vemiInterNearest>},
      {"Perspective 8u C1 linear", warp, inPerspective<Vemi8u, 1, vemiWarpPerspective_8u_C1R, vemiInterLinear>},
      {"Perspective 8u C1 cubic", warp, inPerspective<Vemi8u, 1, vemiWarpPerspective_8u_C1R, vemiInterCubic>},
      {"Perspective 8u C3 linear", warp, inPerspective<Vemi8u, 3, vemiWarpPerspective_8u_C3R, vemiInterLinear>},
      {"Perspective 32f C1 linear", warp, inPerspective<Vemi32f, 1, vemiWarpPerspective_32f_C1R, vemiInterLinear>},
      {"Mirror 8u C1 rows", flip, turnedOver<Vemi8u, 1, vemiMirror_8u_C1R, vemiAxisHorizontal>},
      {"Mirror 8u C1 columns", flip, turnedOver<Vemi8u, 1, vemiMirror_8u_C1R, vemiAxisVertical>},
      {"Mirror 8u C3 columns", flip, turnedOver<Vemi8u, 3, vemiMirror_8u_C3R, vemiAxisVertical>},
      {"Mirror 8u C4 both", flip, turnedOver<Vemi8u, 4, vemiMirror_8u_C4R, vemiAxisBoth>},
      {"Mirror 16u C3 columns", flip, turnedOver<Vemi16u, 3, vemiMirror_16u_C3R, vemiAxisVertical>},
      {"Mirror 32s C1 both", flip, turnedOver<Vemi32s, 1, vemiMirror_32s_C1R, vemiAxisBoth>},
      {"Mirror 32s C3 columns", flip, turnedOver<Vemi32s, 3, vemiMirror_32s_C3R, vemiAxisVertical>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family bentFamily() { return {"bent", rows()}; }

}  // namespace bench
