// The peers that were found when the build was configured, seen through this benchmark's images.
#pragma once

#include <stdexcept>

#include "image.h"

#ifdef VEMI_BENCH_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif
#ifdef VEMI_BENCH_LIBYUV
#include <libyuv/convert.h>
#include <libyuv/convert_argb.h>
#include <libyuv/convert_from_argb.h>
#include <libyuv/planar_functions.h>
#endif
#ifdef VEMI_BENCH_PIXMAN
#include <pixman.h>
#endif
#ifdef VEMI_BENCH_FFTW
#include <fftw3.h>
#endif

namespace bench {

#ifdef VEMI_BENCH_OPENCV
template <class T>
cv::Mat mat(const Image<T>& image) {
  const int type = CV_MAKETYPE(cv::DataType<T>::depth, image.channels);
  return {image.size.height, image.size.width, type, image.data(), static_cast<size_t>(image.step)};
}

inline const cv::Scalar scalarConstants(11, 22, 33, 44);
#endif

#ifdef VEMI_BENCH_PIXMAN
inline std::shared_ptr<pixman_image_t> pixmanImage(const Image<Vemi8u>& image) {
  if (image.step % 4 != 0 || image.size.width > INT16_MAX || image.size.height > INT16_MAX) {
    throw std::runtime_error("pixman takes rows of whole 32-bit words and sizes below 32768");
  }
  const pixman_format_code_t format = image.channels == 1 ? PIXMAN_a8 : PIXMAN_a8r8g8b8;
  return {pixman_image_create_bits(format, image.size.width, image.size.height,
                                   reinterpret_cast<uint32_t*>(image.data()), image.step),
          pixman_image_unref};
}
#endif

}  // namespace bench
