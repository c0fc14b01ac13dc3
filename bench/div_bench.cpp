// Quotients of two images, and of an image and a constant.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using DivideScaled = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize, int);
template <class T>
using Divide = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize);

/// Divisors are never zero: what stands for a quotient then is each library's own.
template <class T>
struct Work {
  Image<T> divisor, x, dst;

  Work(VemiSize size, int channels)
      : divisor(randomImage<T>(size, channels)), x(randomImage<T>(size, channels)), dst(blankImage<T>(size, channels)) {
    for (size_t i = 0; i < divisor.elements(); ++i) {
      if (divisor.data()[i] == 0) divisor.data()[i] = 1;
    }
  }
};

template <class T>
VemiStatus quotient(DivideScaled<T>* divide, const Work<T>& work, int scaleFactor) {
  const auto& [divisor, x, dst] = work;
  return divide(divisor.data(), divisor.step, x.data(), x.step, dst.data(), dst.step, dst.size, scaleFactor);
}

template <class T, DivideScaled<T>* divide, int scaleFactor>
Contest againstScale0(VemiSize size) {
  const Work<T> work(size, 1);
  return {[=] { return quotient<T>(divide, work, scaleFactor); }, [=] { quotient<T>(divide, work, 0); }, {}};
}

#ifdef VEMI_BENCH_OPENCV
// Both round to nearest; a quotient of 16s that is very close to a tie may be rounded either way, so those results are
// not compared.
template <class T, int channels, DivideScaled<T>* divide, int scaleFactor = 0>
Contest againstOpencv(VemiSize size) {
  const Work<T> work(size, channels);
  const auto peers = [d = mat(work.divisor), x = mat(work.x), dst = mat(work.dst)]() mutable {
    cv::divide(x, d, dst, scaleFactor >= 0 ? 1.0 / (1 << scaleFactor) : 1 << -scaleFactor);
  };
  std::vector<Bytes> results;
  if (sizeof(T) == 1) results = {work.dst.bytes()};
  return {[=] { return quotient<T>(divide, work, scaleFactor); }, peers, results};
}

template <int channels, Divide<Vemi32f>* divide>
Contest floatAgainstOpencv(VemiSize size) {
  const Work<Vemi32f> work(size, channels);
  const auto peers = [d = mat(work.divisor), x = mat(work.x), dst = mat(work.dst)]() mutable { cv::divide(x, d, dst); };
  const auto ours = [=] {
    const auto& [divisor, x, dst] = work;
    return divide(divisor.data(), divisor.step, x.data(), x.step, dst.data(), dst.step, dst.size);
  };
  return {ours, peers, {work.dst.bytes()}};
}

// By reciprocals here, by division there: the results differ close to ties.
template <class T, int channels, auto divide>
Contest constantAgainstOpencv(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto peers = [from = mat(src), to = mat(dst)]() mutable { cv::divide(from, scalarConstants, to); };
  const auto ours = [=] {
    const auto value = argument<channels>(constants<T>);
    if constexpr (std::is_same_v<T, Vemi32f>)
      return divide(src.data(), src.step, value, dst.data(), dst.step, dst.size);
    else
      return divide(src.data(), src.step, value, dst.data(), dst.step, dst.size, 0);
  };
  return {ours, peers, {}};
}
#endif

}  // namespace

Family divideFamily() {
  return {"divide",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Div 8u C1", "OpenCV divide", againstOpencv<Vemi8u, 1, vemiDiv_8u_C1RSfs>},
              {"Div 8u C3", "OpenCV divide", againstOpencv<Vemi8u, 3, vemiDiv_8u_C3RSfs>},
              {"Div 8u C1 Sfs -7", "OpenCV divide", againstOpencv<Vemi8u, 1, vemiDiv_8u_C1RSfs, -7>},
              {"Div 8u C1 Sfs 2", "OpenCV divide", againstOpencv<Vemi8u, 1, vemiDiv_8u_C1RSfs, 2>},
              {"Div 16s C1", "OpenCV divide", againstOpencv<Vemi16s, 1, vemiDiv_16s_C1RSfs>},
              {"Div 16s C3", "OpenCV divide", againstOpencv<Vemi16s, 3, vemiDiv_16s_C3RSfs>},
              {"Div 16s C1 Sfs -7", "OpenCV divide", againstOpencv<Vemi16s, 1, vemiDiv_16s_C1RSfs, -7>},
              {"Div 32f C1", "OpenCV divide", floatAgainstOpencv<1, vemiDiv_32f_C1R>},
              {"Div 32f C3", "OpenCV divide", floatAgainstOpencv<3, vemiDiv_32f_C3R>},
#endif
          }};
}

Family divideByConstantFamily() {
  return {"divide by constant",
          {
#ifdef VEMI_BENCH_OPENCV
              {"DivC 8u C1", "OpenCV divide", constantAgainstOpencv<Vemi8u, 1, vemiDivC_8u_C1RSfs>},
              {"DivC 8u C3", "OpenCV divide", constantAgainstOpencv<Vemi8u, 3, vemiDivC_8u_C3RSfs>},
              {"DivC 16s C1", "OpenCV divide", constantAgainstOpencv<Vemi16s, 1, vemiDivC_16s_C1RSfs>},
              {"DivC 16s C3", "OpenCV divide", constantAgainstOpencv<Vemi16s, 3, vemiDivC_16s_C3RSfs>},
              {"DivC 32f C1", "OpenCV divide", constantAgainstOpencv<Vemi32f, 1, vemiDivC_32f_C1R>},
              {"DivC 32f C3", "OpenCV divide", constantAgainstOpencv<Vemi32f, 3, vemiDivC_32f_C3R>},
#endif
          }};
}

Family divideScalingFamily() {
  return {"cost of scaling a quotient",
          {
              {"Div 8u C1 Sfs 2", "scale 0", againstScale0<Vemi8u, vemiDiv_8u_C1RSfs, 2>},
              {"Div 8u C1 Sfs -7", "scale 0", againstScale0<Vemi8u, vemiDiv_8u_C1RSfs, -7>},
              {"Div 16s C1 Sfs -7", "scale 0", againstScale0<Vemi16s, vemiDiv_16s_C1RSfs, -7>},
          },
          Against::ourselves};
}

}  // namespace bench
