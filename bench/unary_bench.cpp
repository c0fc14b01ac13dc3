// Functions of one value, and products on the full scale.

#include <algorithm>
#include <limits>

#include "peers.h"

namespace bench {
namespace {

template <class T>
using Unary = VemiStatus(const T*, int, T*, int, VemiSize);
template <class T>
using UnaryScaled = VemiStatus(const T*, int, T*, int, VemiSize, int);

template <class T>
struct Work {
  Image<T> src, dst;
};

/// Above zero, for roots and logarithms; or, for exponentials, floats from -20 to 20.
template <class T>
Work<T> images(VemiSize size, int channels, bool positive) {
  const Image<T> src = randomImage<T>(size, channels);
  for (size_t i = 0; i < src.elements(); ++i) {
    T& value = src.data()[i];
    if (positive) {
      value = std::max(value, T{1});
    } else if (std::is_same_v<T, float>) {
      value = static_cast<T>(value * (40.0f / 65535.0f) - 20.0f);
    }
  }
  return {src, blankImage<T>(size, channels)};
}

template <class T>
std::function<VemiStatus()> call(Unary<T>* function, const Work<T>& work) {
  return [=] { return function(work.src.data(), work.src.step, work.dst.data(), work.dst.step, work.dst.size); };
}
template <class T>
std::function<VemiStatus()> call(UnaryScaled<T>* function, const Work<T>& work, int scaleFactor = 0) {
  return [=] {
    return function(work.src.data(), work.src.step, work.dst.data(), work.dst.step, work.dst.size, scaleFactor);
  };
}

template <class T, UnaryScaled<T>* function, int scaleFactor>
Contest againstScale0(VemiSize size) {
  const Work<T> work = images<T>(size, 1, true);
  return {call<T>(function, work, scaleFactor), [unscaled = call<T>(function, work, 0)] { unscaled(); }, {}};
}

#ifdef VEMI_BENCH_OPENCV
using Peer = void(const cv::Mat& src, cv::Mat& dst);

void root(const cv::Mat& src, cv::Mat& dst) { cv::sqrt(src, dst); }
void logarithm(const cv::Mat& src, cv::Mat& dst) { cv::log(src, dst); }
void exponential(const cv::Mat& src, cv::Mat& dst) { cv::exp(src, dst); }
void power2(const cv::Mat& src, cv::Mat& dst) { cv::pow(src, 2, dst); }
void square(const cv::Mat& src, cv::Mat& dst) { cv::multiply(src, src, dst); }
void magnitude(const cv::Mat& src, cv::Mat& dst) { cv::absdiff(src, cv::Scalar::all(0), dst); }

enum class Results { equal, close };

template <class T, int channels, auto function, Peer* peer, Results results = Results::equal>
Contest againstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, channels, peer != exponential && peer != magnitude);
  const auto peers = [src = mat(work.src), dst = mat(work.dst)]() mutable { peer(src, dst); };
  if constexpr (results == Results::close) return {call<T>(function, work), peers, {}};
  return {call<T>(function, work), peers, {work.dst.bytes()}};
}

// The peer divides by the full scale and rounds to nearest; here the quotient is rounded down.
template <class T, int channels, auto function>
Contest productAgainstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, channels, true);
  const Image<T> second = images<T>(size, channels, true).src;
  const auto ours = [=] {
    return function(work.src.data(), work.src.step, second.data(), second.step, work.dst.data(), work.dst.step, size);
  };
  const auto peers = [a = mat(work.src), b = mat(second), dst = mat(work.dst)]() mutable {
    cv::multiply(a, b, dst, 1.0 / std::numeric_limits<T>::max());
  };
  return {ours, peers, {}};
}

template <class T, auto function>
Contest constantProductAgainstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, 3, true);
  const auto ours = [=] {
    return function(work.src.data(), work.src.step, constants<T>, work.dst.data(), work.dst.step, size);
  };
  const auto peers = [src = mat(work.src), dst = mat(work.dst)]() mutable {
    cv::multiply(src, scalarConstants, dst, 1.0 / std::numeric_limits<T>::max());
  };
  return {ours, peers, {}};
}
#endif

}  // namespace

Family unaryFamily() {
  return {"unary",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Abs 16s C1", "OpenCV absdiff", againstOpencv<Vemi16s, 1, vemiAbs_16s_C1R, magnitude>},
              {"Abs 32f C1", "OpenCV absdiff", againstOpencv<Vemi32f, 1, vemiAbs_32f_C1R, magnitude>},
              {"Sqr 8u C1", "OpenCV pow 2", againstOpencv<Vemi8u, 1, vemiSqr_8u_C1RSfs, power2>},
              {"Sqr 8u C1", "OpenCV multiply", againstOpencv<Vemi8u, 1, vemiSqr_8u_C1RSfs, square>},
              {"Sqr 16u C1", "OpenCV pow 2", againstOpencv<Vemi16u, 1, vemiSqr_16u_C1RSfs, power2>},
              {"Sqr 16u C1", "OpenCV multiply", againstOpencv<Vemi16u, 1, vemiSqr_16u_C1RSfs, square>},
              {"Sqr 16s C1", "OpenCV multiply", againstOpencv<Vemi16s, 1, vemiSqr_16s_C1RSfs, square>},
              {"Sqr 32f C1", "OpenCV pow 2", againstOpencv<Vemi32f, 1, vemiSqr_32f_C1R, power2>},
              {"Sqr 32f C3", "OpenCV pow 2", againstOpencv<Vemi32f, 3, vemiSqr_32f_C3R, power2>},
              {"Sqrt 32f C1", "OpenCV sqrt", againstOpencv<Vemi32f, 1, vemiSqrt_32f_C1R, root>},
              {"Sqrt 32f C3", "OpenCV sqrt", againstOpencv<Vemi32f, 3, vemiSqrt_32f_C3R, root>},
              {"Ln 32f C1", "OpenCV log", againstOpencv<Vemi32f, 1, vemiLn_32f_C1R, logarithm, Results::close>},
              {"Ln 32f C3", "OpenCV log", againstOpencv<Vemi32f, 3, vemiLn_32f_C3R, logarithm, Results::close>},
              {"Exp 32f C1", "OpenCV exp", againstOpencv<Vemi32f, 1, vemiExp_32f_C1R, exponential, Results::close>},
              {"Exp 32f C3", "OpenCV exp", againstOpencv<Vemi32f, 3, vemiExp_32f_C3R, exponential, Results::close>},
#endif
          }};
}

Family mulScaleFamily() {
  return {"product on the full scale",
          {
#ifdef VEMI_BENCH_OPENCV
              {"MulScale 8u C1", "OpenCV multiply", productAgainstOpencv<Vemi8u, 1, vemiMulScale_8u_C1R>},
              {"MulScale 8u C3", "OpenCV multiply", productAgainstOpencv<Vemi8u, 3, vemiMulScale_8u_C3R>},
              {"MulScale 16u C1", "OpenCV multiply", productAgainstOpencv<Vemi16u, 1, vemiMulScale_16u_C1R>},
              {"MulCScale 8u C3", "OpenCV multiply", constantProductAgainstOpencv<Vemi8u, vemiMulCScale_8u_C3R>},
              {"MulCScale 16u C3", "OpenCV multiply", constantProductAgainstOpencv<Vemi16u, vemiMulCScale_16u_C3R>},
#endif
          }};
}

Family unaryScalingFamily() {
  return {"cost of scaling, unary",
          {
              {"Sqr 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiSqr_8u_C1RSfs, 1>},
              {"Sqr 8u C1 Sfs -2", "scale 0", againstScale0<Vemi8u, vemiSqr_8u_C1RSfs, -2>},
              {"Sqr 16u C1 Sfs 1", "scale 0", againstScale0<Vemi16u, vemiSqr_16u_C1RSfs, 1>},
              {"Sqr 16s C1 Sfs 3", "scale 0", againstScale0<Vemi16s, vemiSqr_16s_C1RSfs, 3>},
              {"Sqr 16s C1 Sfs -2", "scale 0", againstScale0<Vemi16s, vemiSqr_16s_C1RSfs, -2>},
              {"Sqrt 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiSqrt_8u_C1RSfs, 1>},
              {"Sqrt 16s C1 Sfs 3", "scale 0", againstScale0<Vemi16s, vemiSqrt_16s_C1RSfs, 3>},
              {"Ln 8u C1 Sfs -4", "scale 0", againstScale0<Vemi8u, vemiLn_8u_C1RSfs, -4>},
              {"Ln 16s C1 Sfs -4", "scale 0", againstScale0<Vemi16s, vemiLn_16s_C1RSfs, -4>},
              {"Exp 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiExp_8u_C1RSfs, 1>},
              {"Exp 16s C1 Sfs -4", "scale 0", againstScale0<Vemi16s, vemiExp_16s_C1RSfs, -4>},
          },
          Against::ourselves};
}

}  // namespace bench
