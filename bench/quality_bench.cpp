// The quality index against a chain of the peer's box filters and arithmetic in single precision, the same index up to
// rounding, but for windows beyond the edges.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV
template <class T>
Image<T> alikeImage(const Image<T>& image) {
  const Image<T> alike = blankImage<T>(image.size, image.channels);
  for (size_t i = 0; i < image.elements(); ++i) alike.data()[i] = image.data()[i] / 2 + image.data()[i / 2] / 4;
  return alike;
}

/// With their buffers.
struct Chain {
  cv::Mat s1, s2, q1, q2, product, s12, r, p, v, c;

  cv::Scalar operator()(const cv::Mat& a, const cv::Mat& b) {
    const auto sum = [](const cv::Mat& from, cv::Mat& to) {
      cv::boxFilter(from, to, CV_32F, {8, 8}, {-1, -1}, false, cv::BORDER_REFLECT_101);
    };
    const auto squares = [](const cv::Mat& from, cv::Mat& to) {
      cv::sqrBoxFilter(from, to, CV_32F, {8, 8}, {-1, -1}, false, cv::BORDER_REFLECT_101);
    };
    sum(a, s1);
    sum(b, s2);
    squares(a, q1);
    squares(b, q2);
    cv::multiply(a, b, product, 1, CV_32F);
    sum(product, s12);
    cv::multiply(s1, s2, p);
    cv::multiply(s1, s1, s1);
    cv::multiply(s2, s2, s2);
    cv::add(s1, s2, r);
    cv::add(q1, q2, v);
    cv::scaleAdd(v, 64, -r, v);
    cv::scaleAdd(s12, 64, -p, c);
    cv::multiply(c, p, c, 4);
    cv::multiply(v, r, v);
    cv::divide(c, v, c);
    return cv::mean(c);
  }
};

template <class T, int channels, auto function>
Contest againstFilters(VemiSize size) {
  const Image<T> a = randomImage<T>(size, channels), b = alikeImage(a);
  const auto index = std::make_shared<float[]>(4);
  return {[=] { return function(a.data(), a.step, b.data(), b.step, size, index.get()); },
          [=, x = mat(a), y = mat(b), chain = Chain()]() mutable { index[3] = static_cast<float>(chain(x, y)[0]); },
          {}};
}
#endif

}  // namespace

Family qualityFamily() {
  return {"quality index",
          {
#ifdef VEMI_BENCH_OPENCV
              {"QualityIndex 8u32f C1", "OpenCV box filters", againstFilters<Vemi8u, 1, vemiQualityIndex_8u32f_C1R>},
              {"QualityIndex 8u32f C3", "OpenCV box filters", againstFilters<Vemi8u, 3, vemiQualityIndex_8u32f_C3R>},
              {"QualityIndex 32f C1", "OpenCV box filters", againstFilters<Vemi32f, 1, vemiQualityIndex_32f_C1R>},
              {"QualityIndex 32f C3", "OpenCV box filters", againstFilters<Vemi32f, 3, vemiQualityIndex_32f_C3R>},
#endif
          }};
}

}  // namespace bench
