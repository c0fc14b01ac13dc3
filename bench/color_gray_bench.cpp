// Grey, and the photographic model. The peers round otherwise, and their models are others: the results differ.

#include "peers.h"

#ifdef VEMI_BENCH_LIBYUV
#include <libyuv/convert.h>
#endif

namespace bench {
namespace {

template <class T>
using Conversion = VemiStatus(const T*, int, T*, int, VemiSize);

#ifdef VEMI_BENCH_OPENCV
template <class T, int srcChannels, int dstChannels, int code, Conversion<T>* convert>
Contest cvtColor(VemiSize size) {
  const auto src = randomImage<T>(size, srcChannels), dst = randomImage<T>(size, dstChannels);
  const auto ours = [=] { return convert(src.data(), src.step, dst.data(), dst.step, size); };
  return {ours, [from = mat(src), to = mat(dst)]() mutable { cv::cvtColor(from, to, code); }, {}};
}

Contest weightsAgainstTransform(VemiSize size) {
  static constexpr float weights[3] = {0.2126f, 0.7152f, 0.0722f};
  const auto src = randomImage<Vemi8u>(size, 3), dst = randomImage<Vemi8u>(size, 1);
  const auto ours = [=] { return vemiColorToGray_8u_C3C1R(src.data(), src.step, dst.data(), dst.step, size, weights); };
  const auto peers = [from = mat(src), to = mat(dst)]() mutable {
    cv::transform(from, to, cv::Mat(1, 3, CV_32F, const_cast<float*>(weights)));
  };
  return {ours, peers, {}};
}
#endif

#ifdef VEMI_BENCH_LIBYUV
Contest greyAgainstLibyuv(VemiSize size) {
  const auto src = randomImage<Vemi8u>(size, 3), dst = randomImage<Vemi8u>(size, 1);
  return {[=] { return vemiRGBToGray_8u_C3C1R(src.data(), src.step, dst.data(), dst.step, size); },
          [=] { libyuv::RAWToJ400(src.data(), src.step, dst.data(), dst.step, size.width, size.height); },
          {}};
}
#endif

}  // namespace

Family grayFamily() {
  return {
      "gray",
      {
#ifdef VEMI_BENCH_OPENCV
          {"RGBToGray 8u C3C1", "OpenCV cvtColor", cvtColor<Vemi8u, 3, 1, cv::COLOR_RGB2GRAY, vemiRGBToGray_8u_C3C1R>},
          {"RGBToGray 8u AC4C1", "OpenCV cvtColor",
           cvtColor<Vemi8u, 4, 1, cv::COLOR_RGBA2GRAY, vemiRGBToGray_8u_AC4C1R>},
          {"RGBToGray 16u C3C1", "OpenCV cvtColor",
           cvtColor<Vemi16u, 3, 1, cv::COLOR_RGB2GRAY, vemiRGBToGray_16u_C3C1R>},
          {"RGBToGray 32f C3C1", "OpenCV cvtColor",
           cvtColor<Vemi32f, 3, 1, cv::COLOR_RGB2GRAY, vemiRGBToGray_32f_C3C1R>},
          {"RGBToGray 32f AC4C1", "OpenCV cvtColor",
           cvtColor<Vemi32f, 4, 1, cv::COLOR_RGBA2GRAY, vemiRGBToGray_32f_AC4C1R>},
          {"ColorToGray 8u C3C1", "OpenCV transform", weightsAgainstTransform},
#endif
#ifdef VEMI_BENCH_LIBYUV
          {"RGBToGray 8u C3C1", "libyuv RAWToJ400", greyAgainstLibyuv},
#endif
      }};
}

Family yccFamily() {
  return {
      "ycc",
      {
#ifdef VEMI_BENCH_OPENCV
          {"RGBToYCC 8u C3", "OpenCV cvtColor", cvtColor<Vemi8u, 3, 3, cv::COLOR_RGB2YCrCb, vemiRGBToYCC_8u_C3R>},
          {"YCCToRGB 8u C3", "OpenCV cvtColor", cvtColor<Vemi8u, 3, 3, cv::COLOR_YCrCb2RGB, vemiYCCToRGB_8u_C3R>},
          {"RGBToYCC 16u C3", "OpenCV cvtColor", cvtColor<Vemi16u, 3, 3, cv::COLOR_RGB2YCrCb, vemiRGBToYCC_16u_C3R>},
          {"YCCToRGB 16u C3", "OpenCV cvtColor", cvtColor<Vemi16u, 3, 3, cv::COLOR_YCrCb2RGB, vemiYCCToRGB_16u_C3R>},
          {"RGBToYCC 32f C3", "OpenCV cvtColor", cvtColor<Vemi32f, 3, 3, cv::COLOR_RGB2YCrCb, vemiRGBToYCC_32f_C3R>},
          {"YCCToRGB 32f C3", "OpenCV cvtColor", cvtColor<Vemi32f, 3, 3, cv::COLOR_YCrCb2RGB, vemiYCCToRGB_32f_C3R>},
#endif
      }};
}

}  // namespace bench
