// Sums of two images, and of an image and a constant.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using AddScaled = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize, int);
template <class T>
using Add = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize);

template <class T>
struct Work {
  Image<T> a, b, dst;
};

template <class T>
Work<T> images(VemiSize size, int channels) {
  return {randomImage<T>(size, channels), randomImage<T>(size, channels), blankImage<T>(size, channels)};
}

template <class T>
VemiStatus sum(AddScaled<T>* add, const Work<T>& work, int scaleFactor) {
  const auto& [a, b, dst] = work;
  return add(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.size, scaleFactor);
}
template <class T>
VemiStatus sum(Add<T>* add, const Work<T>& work) {
  const auto& [a, b, dst] = work;
  return add(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, dst.size);
}

template <class T, int channels, AddScaled<T>* add, int scaleFactor>
Contest againstScale0(VemiSize size) {
  const Work<T> work = images<T>(size, channels);
  return {[=] { return sum<T>(add, work, scaleFactor); }, [=] { sum<T>(add, work, 0); }, {}};
}

#ifdef VEMI_BENCH_OPENCV
template <class T>
std::function<void()> opencvAdd(const Work<T>& work) {
  return [a = mat(work.a), b = mat(work.b), dst = mat(work.dst)]() mutable { cv::add(a, b, dst); };
}

template <class T, int channels, AddScaled<T>* add>
Contest againstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, channels);
  return {[=] { return sum<T>(add, work, 0); }, opencvAdd(work), {work.dst.bytes()}};
}
template <class T, int channels, Add<T>* add>
Contest againstOpencv(VemiSize size) {
  const Work<T> work = images<T>(size, channels);
  return {[=] { return sum<T>(add, work); }, opencvAdd(work), {work.dst.bytes()}};
}

// The scale as a weight of both sources: exact in float for sums of these types, so the results are the same.
template <class T, AddScaled<T>* add, int scaleFactor>
Contest againstWeighted(VemiSize size) {
  const Work<T> work = images<T>(size, 1);
  const auto peers = [a = mat(work.a), b = mat(work.b), dst = mat(work.dst)]() mutable {
    const double weight = scaleFactor >= 0 ? 1.0 / (1 << scaleFactor) : 1 << -scaleFactor;
    cv::addWeighted(a, weight, b, weight, 0, dst);
  };
  return {[=] { return sum<T>(add, work, scaleFactor); }, peers, {work.dst.bytes()}};
}

template <class T>
using AddOneScaled = VemiStatus(const T*, int, T, T*, int, VemiSize, int);
template <class T>
using AddEachScaled = VemiStatus(const T*, int, const T*, T*, int, VemiSize, int);
template <class T>
using AddOne = VemiStatus(const T*, int, T, T*, int, VemiSize);
template <class T>
using AddEach = VemiStatus(const T*, int, const T*, T*, int, VemiSize);

template <class T>
VemiStatus sum(AddOneScaled<T>* add, const Image<T>& src, const Image<T>& dst) {
  return add(src.data(), src.step, constants<T>[0], dst.data(), dst.step, dst.size, 0);
}
template <class T>
VemiStatus sum(AddEachScaled<T>* add, const Image<T>& src, const Image<T>& dst) {
  return add(src.data(), src.step, constants<T>, dst.data(), dst.step, dst.size, 0);
}
template <class T>
VemiStatus sum(AddOne<T>* add, const Image<T>& src, const Image<T>& dst) {
  return add(src.data(), src.step, constants<T>[0], dst.data(), dst.step, dst.size);
}
template <class T>
VemiStatus sum(AddEach<T>* add, const Image<T>& src, const Image<T>& dst) {
  return add(src.data(), src.step, constants<T>, dst.data(), dst.step, dst.size);
}

template <class T, int channels, auto add>
Contest constantAgainstOpencv(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto peers = [from = mat(src), to = mat(dst)]() mutable { cv::add(from, scalarConstants, to); };
  return {[=] { return sum<T>(add, src, dst); }, peers, {dst.bytes()}};
}
#endif

#ifdef VEMI_BENCH_PIXMAN
using AddInPlace = VemiStatus(const Vemi8u*, int, Vemi8u*, int, VemiSize, int);

template <int channels, AddInPlace* add>
Contest againstPixman(VemiSize size) {
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

}  // namespace

Family addFamily() {
  return {"add",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Add 8u C1", "OpenCV add", againstOpencv<Vemi8u, 1, vemiAdd_8u_C1RSfs>},
              {"Add 8u C3", "OpenCV add", againstOpencv<Vemi8u, 3, vemiAdd_8u_C3RSfs>},
              {"Add 16s C1", "OpenCV add", againstOpencv<Vemi16s, 1, vemiAdd_16s_C1RSfs>},
              {"Add 16s C3", "OpenCV add", againstOpencv<Vemi16s, 3, vemiAdd_16s_C3RSfs>},
              {"Add 32f C1", "OpenCV add", againstOpencv<Vemi32f, 1, vemiAdd_32f_C1R>},
              {"Add 32f C3", "OpenCV add", againstOpencv<Vemi32f, 3, vemiAdd_32f_C3R>},
#endif
#ifdef VEMI_BENCH_PIXMAN
              {"Add 8u C1I", "pixman composite", againstPixman<1, vemiAdd_8u_C1IRSfs>},
              {"Add 8u C4I", "pixman composite", againstPixman<4, vemiAdd_8u_C4IRSfs>},
#endif
          }};
}

Family addConstantFamily() {
  return {"add constant",
          {
#ifdef VEMI_BENCH_OPENCV
              {"AddC 8u C1", "OpenCV add", constantAgainstOpencv<Vemi8u, 1, vemiAddC_8u_C1RSfs>},
              {"AddC 8u C3", "OpenCV add", constantAgainstOpencv<Vemi8u, 3, vemiAddC_8u_C3RSfs>},
              {"AddC 16s C1", "OpenCV add", constantAgainstOpencv<Vemi16s, 1, vemiAddC_16s_C1RSfs>},
              {"AddC 16s C3", "OpenCV add", constantAgainstOpencv<Vemi16s, 3, vemiAddC_16s_C3RSfs>},
              {"AddC 32f C1", "OpenCV add", constantAgainstOpencv<Vemi32f, 1, vemiAddC_32f_C1R>},
              {"AddC 32f C3", "OpenCV add", constantAgainstOpencv<Vemi32f, 3, vemiAddC_32f_C3R>},
#endif
          }};
}

Family addScaledFamily() {
  return {"add scaled",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Add 8u C1 Sfs 1", "OpenCV addWeighted", againstWeighted<Vemi8u, vemiAdd_8u_C1RSfs, 1>},
              {"Add 8u C1 Sfs 3", "OpenCV addWeighted", againstWeighted<Vemi8u, vemiAdd_8u_C1RSfs, 3>},
              {"Add 8u C1 Sfs -2", "OpenCV addWeighted", againstWeighted<Vemi8u, vemiAdd_8u_C1RSfs, -2>},
              {"Add 16s C1 Sfs 1", "OpenCV addWeighted", againstWeighted<Vemi16s, vemiAdd_16s_C1RSfs, 1>},
              {"Add 16s C1 Sfs 3", "OpenCV addWeighted", againstWeighted<Vemi16s, vemiAdd_16s_C1RSfs, 3>},
              {"Add 16s C1 Sfs -2", "OpenCV addWeighted", againstWeighted<Vemi16s, vemiAdd_16s_C1RSfs, -2>},
#endif
          }};
}

Family scalingFamily() {
  return {"cost of scaling",
          {
              {"Add 8u C1 Sfs 0 (noise)", "scale 0", againstScale0<Vemi8u, 1, vemiAdd_8u_C1RSfs, 0>},
              {"Add 8u C1 Sfs 1", "scale 0", againstScale0<Vemi8u, 1, vemiAdd_8u_C1RSfs, 1>},
              {"Add 8u C1 Sfs 3", "scale 0", againstScale0<Vemi8u, 1, vemiAdd_8u_C1RSfs, 3>},
              {"Add 8u C1 Sfs -2", "scale 0", againstScale0<Vemi8u, 1, vemiAdd_8u_C1RSfs, -2>},
              {"Add 16s C1 Sfs 1", "scale 0", againstScale0<Vemi16s, 1, vemiAdd_16s_C1RSfs, 1>},
              {"Add 16s C1 Sfs 3", "scale 0", againstScale0<Vemi16s, 1, vemiAdd_16s_C1RSfs, 3>},
              {"Add 16s C1 Sfs -2", "scale 0", againstScale0<Vemi16s, 1, vemiAdd_16s_C1RSfs, -2>},
          },
          Against::ourselves};
}

}  // namespace bench
