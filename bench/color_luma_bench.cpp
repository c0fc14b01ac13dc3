// Luma and chroma against conversions between the same layouts. Peers round in their own ways, and OpenCV's models of
// three channels have other ranges, so that results differ and are not compared.

#include <array>

#include "peers.h"

namespace bench {
namespace {

using Pixels = Image<Vemi8u>;

// Planes of luma and of chroma that across times down pixels share.
struct Planes {
  std::array<Pixels, 3> plane;

  Planes(VemiSize size, int across, int down) {
    const VemiSize shared = {(size.width + across - 1) / across, (size.height + down - 1) / down};
    plane = {randomImage<Vemi8u>(size, 1), randomImage<Vemi8u>(shared, 1), randomImage<Vemi8u>(shared, 1)};
  }
  std::array<Vemi8u*, 3> to() const { return {plane[0].data(), plane[1].data(), plane[2].data()}; }
  std::array<const Vemi8u*, 3> from() const { return {plane[0].data(), plane[1].data(), plane[2].data()}; }
  std::array<int, 3> steps() const { return {plane[0].step, plane[1].step, plane[2].step}; }
};

using ToPixels = VemiStatus(const Vemi8u*, int, Vemi8u*, int, VemiSize);
using FromPlanes = VemiStatus(const Vemi8u* const[3], const int[3], Vemi8u*, int, VemiSize);
using ToPlanes = VemiStatus(const Vemi8u*, int, Vemi8u* const[3], const int[3], VemiSize);

template <FromPlanes* convert>
std::function<VemiStatus()> fromPlanes(const Planes& planes, const Pixels& rgb) {
  return [=] { return convert(planes.from().data(), planes.steps().data(), rgb.data(), rgb.step, rgb.size); };
}

template <ToPlanes* convert>
std::function<VemiStatus()> toPlanes(const Pixels& rgb, const Planes& planes) {
  return [=] { return convert(rgb.data(), rgb.step, planes.to().data(), planes.steps().data(), rgb.size); };
}

#ifdef VEMI_BENCH_OPENCV
template <ToPixels* convert, int srcChannels, int dstChannels, int code>
Contest againstOpencv(VemiSize size) {
  const auto src = randomImage<Vemi8u>(size, srcChannels), dst = randomImage<Vemi8u>(size, dstChannels);
  const auto ours = [=] { return convert(src.data(), src.step, dst.data(), dst.step, size); };
  return {ours, [from = mat(src), to = mat(dst)]() mutable { cv::cvtColor(from, to, code); }, {}};
}

// OpenCV has the three planes of 4:2:0 in one image, one below the other; sizes are even.
template <FromPlanes* convert, int channels, int code>
Contest from420AgainstOpencv(VemiSize size) {
  const Planes planes(size, 2, 2);
  const auto rgb = randomImage<Vemi8u>(size, channels);
  const auto below = randomImage<Vemi8u>({size.width, size.height * 3 / 2}, 1, peersAlone);
  return {fromPlanes<convert>(planes, rgb),
          [below, from = mat(below), to = mat(rgb)]() mutable { cv::cvtColor(from, to, code); },
          {}};
}

template <ToPlanes* convert, int code>
Contest to420AgainstOpencv(VemiSize size) {
  const Planes planes(size, 2, 2);
  const auto rgb = randomImage<Vemi8u>(size, 3);
  const auto below = randomImage<Vemi8u>({size.width, size.height * 3 / 2}, 1, peersAlone);
  return {toPlanes<convert>(rgb, planes),
          [below, from = mat(rgb), to = mat(below)]() mutable { cv::cvtColor(from, to, code); },
          {}};
}
#endif

#ifdef VEMI_BENCH_LIBYUV
using LibyuvFrom = int(const uint8_t*, int, const uint8_t*, int, const uint8_t*, int, uint8_t*, int, int, int);
using LibyuvTo = int(const uint8_t*, int, uint8_t*, int, uint8_t*, int, uint8_t*, int, int, int);

template <FromPlanes* convert, LibyuvFrom* peer, int across, int down, int channels = 3>
Contest fromAgainstLibyuv(VemiSize size) {
  const Planes planes(size, across, down);
  const auto rgb = randomImage<Vemi8u>(size, channels);
  const auto peers = [=] {
    const auto& [y, u, v] = planes.plane;
    peer(y.data(), y.step, u.data(), u.step, v.data(), v.step, rgb.data(), rgb.step, size.width, size.height);
  };
  return {fromPlanes<convert>(planes, rgb), peers, {}};
}

template <ToPlanes* convert, LibyuvTo* peer>
Contest toAgainstLibyuv(VemiSize size) {
  const Planes planes(size, 2, 2);
  const auto rgb = randomImage<Vemi8u>(size, 3);
  const auto peers = [=] {
    const auto& [y, u, v] = planes.plane;
    peer(rgb.data(), rgb.step, y.data(), y.step, u.data(), u.step, v.data(), v.step, size.width, size.height);
  };
  return {toPlanes<convert>(rgb, planes), peers, {}};
}

VemiStatus yuv444(const Vemi8u* const from[3], const int steps[3], Vemi8u* to, int toStep, VemiSize size) {
  return vemiYUVToRGB_8u_P3C3R(from, steps[0], to, toStep, size);
}

template <ToPixels* convert, int srcChannels, int dstChannels,
          int (*peer)(const uint8_t*, int, uint8_t*, int, int, int)>
Contest pairsAgainstLibyuv(VemiSize size) {
  const auto src = randomImage<Vemi8u>(size, srcChannels), dst = randomImage<Vemi8u>(size, dstChannels);
  return {[=] { return convert(src.data(), src.step, dst.data(), dst.step, size); },
          [=] { peer(src.data(), src.step, dst.data(), dst.step, size.width, size.height); },
          {}};
}

VemiStatus cbycrToBgra(const Vemi8u* from, int fromStep, Vemi8u* to, int toStep, VemiSize size) {
  return vemiCbYCr422ToBGR_8u_C2C4R(from, fromStep, to, toStep, size, 255);
}
#endif

}  // namespace

Family lumaChromaFamily() {
  return {
      "luma and chroma",
      {
#ifdef VEMI_BENCH_OPENCV
          {"RGBToYUV 8u C3", "OpenCV RGB2YUV", againstOpencv<vemiRGBToYUV_8u_C3R, 3, 3, cv::COLOR_RGB2YUV>},
          {"YUVToRGB 8u C3", "OpenCV YUV2RGB", againstOpencv<vemiYUVToRGB_8u_C3R, 3, 3, cv::COLOR_YUV2RGB>},
          {"RGBToYCbCr 8u C3", "OpenCV RGB2YCrCb", againstOpencv<vemiRGBToYCbCr_8u_C3R, 3, 3, cv::COLOR_RGB2YCrCb>},
          {"YCbCrToRGB 8u C3", "OpenCV YCrCb2RGB", againstOpencv<vemiYCbCrToRGB_8u_C3R, 3, 3, cv::COLOR_YCrCb2RGB>},
          {"YCbCr422ToRGB 8u C2C3", "OpenCV YUY2",
           againstOpencv<vemiYCbCr422ToRGB_8u_C2C3R, 2, 3, cv::COLOR_YUV2RGB_YUY2>},
          {"CbYCr422ToRGB 8u C2C3", "OpenCV UYVY",
           againstOpencv<vemiCbYCr422ToRGB_8u_C2C3R, 2, 3, cv::COLOR_YUV2RGB_UYVY>},
          {"YCbCr420ToRGB 8u P3C3", "OpenCV I420",
           from420AgainstOpencv<vemiYCbCr420ToRGB_8u_P3C3R, 3, cv::COLOR_YUV2RGB_I420>},
          {"RGBToYCbCr420 8u C3P3", "OpenCV I420",
           to420AgainstOpencv<vemiRGBToYCbCr420_8u_C3P3R, cv::COLOR_RGB2YUV_I420>},
#endif
#ifdef VEMI_BENCH_LIBYUV
          {"YCbCr420ToRGB 8u P3C3", "libyuv I420ToRAW",
           fromAgainstLibyuv<vemiYCbCr420ToRGB_8u_P3C3R, libyuv::I420ToRAW, 2, 2>},
          {"YCbCr420ToBGR 8u P3C3", "libyuv I420ToRGB24",
           fromAgainstLibyuv<vemiYCbCr420ToBGR_8u_P3C3R, libyuv::I420ToRGB24, 2, 2>},
          {"YUV420ToRGB 8u P3C3", "libyuv I420ToRAW",
           fromAgainstLibyuv<vemiYUV420ToRGB_8u_P3C3R, libyuv::I420ToRAW, 2, 2>},
          {"YUV420ToRGB 8u P3AC4", "libyuv I420ToABGR",
           fromAgainstLibyuv<vemiYUV420ToRGB_8u_P3AC4R, libyuv::I420ToABGR, 2, 2, 4>},
          {"YCbCr422ToRGB 8u P3C3", "libyuv I422ToRAW",
           fromAgainstLibyuv<vemiYCbCr422ToRGB_8u_P3C3R, libyuv::I422ToRAW, 2, 1>},
          {"YUV422ToRGB 8u P3C3", "libyuv I422ToRAW",
           fromAgainstLibyuv<vemiYUV422ToRGB_8u_P3C3R, libyuv::I422ToRAW, 2, 1>},
          {"YUVToRGB 8u P3C3", "libyuv I444ToRAW", fromAgainstLibyuv<yuv444, libyuv::I444ToRAW, 1, 1>},
          {"RGBToYCbCr420 8u C3P3", "libyuv RAWToI420", toAgainstLibyuv<vemiRGBToYCbCr420_8u_C3P3R, libyuv::RAWToI420>},
          {"RGBToYUV420 8u C3P3", "libyuv RAWToJ420", toAgainstLibyuv<vemiRGBToYUV420_8u_C3P3R, libyuv::RAWToJ420>},
          {"CbYCr422ToBGR 8u C2C4", "libyuv UYVYToARGB", pairsAgainstLibyuv<cbycrToBgra, 2, 4, libyuv::UYVYToARGB>},
          {"BGRToCbYCr422 8u AC4C2", "libyuv ARGBToUYVY",
           pairsAgainstLibyuv<vemiBGRToCbYCr422_8u_AC4C2R, 4, 2, libyuv::ARGBToUYVY>},
#endif
      }};
}

}  // namespace bench
