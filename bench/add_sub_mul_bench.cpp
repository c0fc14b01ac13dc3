// Sums, differences and products of two images, and of an image and a constant.

#include "peers.h"

namespace bench {
namespace {

template <class T>
struct Work {
  Image<T> a, b, dst;
};

template <class T>
Work<T> images(VemiSize size, int channels) {
  return {randomImage<T>(size, channels), randomImage<T>(size, channels), blankImage<T>(size, channels)};
}

template <class T>
using Scaled = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize, int);

/// dst = b op a, with a scale factor for integers.
template <class T, auto function>
VemiStatus run(const Work<T>& work, int scaleFactor) {
  const auto& [a, b, dst] = work;
  if constexpr (std::is_same_v<T, Vemi32f>) {
    return function(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.size);
  } else {
    return function(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.size, scaleFactor);
  }
}

template <class T, Scaled<T>* function, int scaleFactor>
Contest againstScale0(VemiSize size) {
  const Work<T> work = images<T>(size, 1);
  return {[=] { return run<T, function>(work, scaleFactor); }, [=] { run<T, function>(work, 0); }, {}};
}

#ifdef VEMI_BENCH_PIXMAN
using AddInPlace = VemiStatus(const Vemi8u*, int, Vemi8u*, int, VemiSize, int);

template <int channels, AddInPlace* add>
Contest sumAgainstPixman(VemiSize size) {
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, channels);
  const Image<Vemi8u> srcDst = blankImage<Vemi8u>(size, channels, inPlace);
  const auto from = pixmanImage(src), to = pixmanImage(srcDst);
  return {[=] { return add(src.data(), src.step, srcDst.data(), srcDst.step, size, 0); },
          [=] {
            pixman_image_composite32(PIXMAN_OP_ADD, from.get(), nullptr, to.get(), 0, 0, 0, 0, 0, 0, size.width,
                                     size.height);
          },
          {srcDst.bytes()}};
}
#endif

#ifdef VEMI_BENCH_OPENCV
struct Sum {
  void operator()(cv::InputArray b, cv::InputArray a, cv::OutputArray dst) const { cv::add(b, a, dst); }
};
/// The scale as a weight of both sources: exact in float for these types.
struct ScaledSum {
  double scale;
  void operator()(cv::InputArray b, cv::InputArray a, cv::OutputArray dst) const {
    cv::addWeighted(a, scale, b, scale, 0, dst);
  }
};
struct Subtract {
  void operator()(cv::InputArray b, cv::InputArray a, cv::OutputArray dst) const { cv::subtract(b, a, dst); }
};
struct Multiply {
  double scale = 1;
  void operator()(cv::InputArray b, cv::InputArray a, cv::OutputArray dst) const { cv::multiply(b, a, dst, scale); }
};

template <class T, int channels, auto function, class Peer>
Contest againstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, channels);
  const auto peers = [a = mat(work.a), b = mat(work.b), dst = mat(work.dst)]() mutable { Peer()(b, a, dst); };
  return {[=] { return run<T, function>(work, 0); }, peers, {work.dst.bytes()}};
}

/// OpenCV scales products in single precision, which is exact for 8u.
template <class T, Scaled<T>* function, int scaleFactor, class Peer>
Contest scaledAgainstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, 1);
  const auto peers = [a = mat(work.a), b = mat(work.b), dst = mat(work.dst)]() mutable {
    Peer{scaleFactor < 0 ? 1 << -scaleFactor : 1.0 / (1 << scaleFactor)}(b, a, dst);
  };
  return {[=] { return run<T, function>(work, scaleFactor); }, peers, {work.dst.bytes()}};
}

template <class T, int channels, auto function, class Peer>
Contest constantAgainstOpencv(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto ours = [=, value = argument<channels>(constants<T>)] {
    if constexpr (std::is_same_v<T, Vemi32f>)
      return function(src.data(), src.step, value, dst.data(), dst.step, size);
    else
      return function(src.data(), src.step, value, dst.data(), dst.step, size, 0);
  };
  const auto peers = [from = mat(src), to = mat(dst)]() mutable { Peer()(from, scalarConstants, to); };
  return {ours, peers, {dst.bytes()}};
}
#endif

}  // namespace

Family addFamily() {
  return {"add",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Add 8u C1", "OpenCV add", againstOpencv<Vemi8u, 1, vemiAdd_8u_C1RSfs, Sum>},
              {"Add 8u C3", "OpenCV add", againstOpencv<Vemi8u, 3, vemiAdd_8u_C3RSfs, Sum>},
              {"Add 16s C1", "OpenCV add", againstOpencv<Vemi16s, 1, vemiAdd_16s_C1RSfs, Sum>},
              {"Add 16s C3", "OpenCV add", againstOpencv<Vemi16s, 3, vemiAdd_16s_C3RSfs, Sum>},
              {"Add 32f C1", "OpenCV add", againstOpencv<Vemi32f, 1, vemiAdd_32f_C1R, Sum>},
              {"Add 32f C3", "OpenCV add", againstOpencv<Vemi32f, 3, vemiAdd_32f_C3R, Sum>},
#endif
#ifdef VEMI_BENCH_PIXMAN
              {"Add 8u C1I", "pixman composite", sumAgainstPixman<1, vemiAdd_8u_C1IRSfs>},
              {"Add 8u C4I", "pixman composite", sumAgainstPixman<4, vemiAdd_8u_C4IRSfs>},
#endif
          }};
}

Family addConstantFamily() {
  return {"add constant",
          {
#ifdef VEMI_BENCH_OPENCV
              {"AddC 8u C1", "OpenCV add", constantAgainstOpencv<Vemi8u, 1, vemiAddC_8u_C1RSfs, Sum>},
              {"AddC 8u C3", "OpenCV add", constantAgainstOpencv<Vemi8u, 3, vemiAddC_8u_C3RSfs, Sum>},
              {"AddC 16s C1", "OpenCV add", constantAgainstOpencv<Vemi16s, 1, vemiAddC_16s_C1RSfs, Sum>},
              {"AddC 16s C3", "OpenCV add", constantAgainstOpencv<Vemi16s, 3, vemiAddC_16s_C3RSfs, Sum>},
              {"AddC 32f C1", "OpenCV add", constantAgainstOpencv<Vemi32f, 1, vemiAddC_32f_C1R, Sum>},
              {"AddC 32f C3", "OpenCV add", constantAgainstOpencv<Vemi32f, 3, vemiAddC_32f_C3R, Sum>},
#endif
          }};
}

Family addScaledFamily() {
  return {
      "add scaled",
      {
#ifdef VEMI_BENCH_OPENCV
          {"Add 8u C1 Sfs 1", "OpenCV addWeighted", scaledAgainstOpencv<Vemi8u, vemiAdd_8u_C1RSfs, 1, ScaledSum>},
          {"Add 8u C1 Sfs 3", "OpenCV addWeighted", scaledAgainstOpencv<Vemi8u, vemiAdd_8u_C1RSfs, 3, ScaledSum>},
          {"Add 8u C1 Sfs -2", "OpenCV addWeighted", scaledAgainstOpencv<Vemi8u, vemiAdd_8u_C1RSfs, -2, ScaledSum>},
          {"Add 16s C1 Sfs 1", "OpenCV addWeighted", scaledAgainstOpencv<Vemi16s, vemiAdd_16s_C1RSfs, 1, ScaledSum>},
          {"Add 16s C1 Sfs 3", "OpenCV addWeighted", scaledAgainstOpencv<Vemi16s, vemiAdd_16s_C1RSfs, 3, ScaledSum>},
          {"Add 16s C1 Sfs -2", "OpenCV addWeighted", scaledAgainstOpencv<Vemi16s, vemiAdd_16s_C1RSfs, -2, ScaledSum>},
#endif
      }};
}

Family subFamily() {
  return {"subtract",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Sub 8u C1", "OpenCV subtract", againstOpencv<Vemi8u, 1, vemiSub_8u_C1RSfs, Subtract>},
              {"Sub 8u C3", "OpenCV subtract", againstOpencv<Vemi8u, 3, vemiSub_8u_C3RSfs, Subtract>},
              {"Sub 16s C1", "OpenCV subtract", againstOpencv<Vemi16s, 1, vemiSub_16s_C1RSfs, Subtract>},
              {"Sub 32f C1", "OpenCV subtract", againstOpencv<Vemi32f, 1, vemiSub_32f_C1R, Subtract>},
              {"Sub 32f C3", "OpenCV subtract", againstOpencv<Vemi32f, 3, vemiSub_32f_C3R, Subtract>},
              {"SubC 8u C1", "OpenCV subtract", constantAgainstOpencv<Vemi8u, 1, vemiSubC_8u_C1RSfs, Subtract>},
              {"SubC 8u C3", "OpenCV subtract", constantAgainstOpencv<Vemi8u, 3, vemiSubC_8u_C3RSfs, Subtract>},
              {"SubC 16s C3", "OpenCV subtract", constantAgainstOpencv<Vemi16s, 3, vemiSubC_16s_C3RSfs, Subtract>},
              {"SubC 32f C3", "OpenCV subtract", constantAgainstOpencv<Vemi32f, 3, vemiSubC_32f_C3R, Subtract>},
#endif
          }};
}

Family mulFamily() {
  return {"multiply",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Mul 8u C1", "OpenCV multiply", againstOpencv<Vemi8u, 1, vemiMul_8u_C1RSfs, Multiply>},
              {"Mul 8u C3", "OpenCV multiply", againstOpencv<Vemi8u, 3, vemiMul_8u_C3RSfs, Multiply>},
              {"Mul 16s C1", "OpenCV multiply", againstOpencv<Vemi16s, 1, vemiMul_16s_C1RSfs, Multiply>},
              {"Mul 32f C1", "OpenCV multiply", againstOpencv<Vemi32f, 1, vemiMul_32f_C1R, Multiply>},
              {"Mul 32f C3", "OpenCV multiply", againstOpencv<Vemi32f, 3, vemiMul_32f_C3R, Multiply>},
              {"MulC 8u C1", "OpenCV multiply", constantAgainstOpencv<Vemi8u, 1, vemiMulC_8u_C1RSfs, Multiply>},
              {"MulC 8u C3", "OpenCV multiply", constantAgainstOpencv<Vemi8u, 3, vemiMulC_8u_C3RSfs, Multiply>},
              {"MulC 16s C3", "OpenCV multiply", constantAgainstOpencv<Vemi16s, 3, vemiMulC_16s_C3RSfs, Multiply>},
              {"MulC 32f C3", "OpenCV multiply", constantAgainstOpencv<Vemi32f, 3, vemiMulC_32f_C3R, Multiply>},
              {"Mul 8u C1 Sfs 8", "OpenCV multiply", scaledAgainstOpencv<Vemi8u, vemiMul_8u_C1RSfs, 8, Multiply>},
              {"Mul 8u C1 Sfs 3", "OpenCV multiply", scaledAgainstOpencv<Vemi8u, vemiMul_8u_C1RSfs, 3, Multiply>},
              {"Mul 8u C1 Sfs -2", "OpenCV multiply", scaledAgainstOpencv<Vemi8u, vemiMul_8u_C1RSfs, -2, Multiply>},
#endif
          }};
}

Family scalingFamily() {
  return {"cost of scaling",
          {
              {"Add 8u C1 Sfs 0 (noise)", "scale 0", againstScale0<Vemi8u, vemiAdd_8u_C1RSfs, 0>},
              {"Add 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiAdd_8u_C1RSfs, 1>},
              {"Add 8u C1 Sfs 3", "scale 0", againstScale0<Vemi8u, vemiAdd_8u_C1RSfs, 3>},
              {"Add 8u C1 Sfs -2", "scale 0", againstScale0<Vemi8u, vemiAdd_8u_C1RSfs, -2>},
              {"Add 16s C1 Sfs 1", "scale 0", againstScale0<Vemi16s, vemiAdd_16s_C1RSfs, 1>},
              {"Add 16s C1 Sfs 3", "scale 0", againstScale0<Vemi16s, vemiAdd_16s_C1RSfs, 3>},
              {"Add 16s C1 Sfs -2", "scale 0", againstScale0<Vemi16s, vemiAdd_16s_C1RSfs, -2>},
              {"Sub 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiSub_8u_C1RSfs, 1>},
              {"Sub 8u C1 Sfs 3", "scale 0", againstScale0<Vemi8u, vemiSub_8u_C1RSfs, 3>},
              {"Sub 8u C1 Sfs -2", "scale 0", againstScale0<Vemi8u, vemiSub_8u_C1RSfs, -2>},
              {"Sub 16s C1 Sfs 1", "scale 0", againstScale0<Vemi16s, vemiSub_16s_C1RSfs, 1>},
              {"Sub 16s C1 Sfs 3", "scale 0", againstScale0<Vemi16s, vemiSub_16s_C1RSfs, 3>},
              {"Sub 16s C1 Sfs -2", "scale 0", againstScale0<Vemi16s, vemiSub_16s_C1RSfs, -2>},
              {"Mul 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, vemiMul_8u_C1RSfs, 1>},
              {"Mul 8u C1 Sfs 8", "scale 0", againstScale0<Vemi8u, vemiMul_8u_C1RSfs, 8>},
              {"Mul 8u C1 Sfs 12", "scale 0", againstScale0<Vemi8u, vemiMul_8u_C1RSfs, 12>},
              {"Mul 8u C1 Sfs -2", "scale 0", againstScale0<Vemi8u, vemiMul_8u_C1RSfs, -2>},
              {"Mul 16s C1 Sfs 1", "scale 0", againstScale0<Vemi16s, vemiMul_16s_C1RSfs, 1>},
              {"Mul 16s C1 Sfs 15", "scale 0", againstScale0<Vemi16s, vemiMul_16s_C1RSfs, 15>},
              {"Mul 16s C1 Sfs -2", "scale 0", againstScale0<Vemi16s, vemiMul_16s_C1RSfs, -2>},
          },
          Against::ourselves};
}

}  // namespace bench
