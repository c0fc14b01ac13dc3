// Images in another size. Peers place pixels and weigh them in other ways, so that results are not compared. OpenCV's
// Lanczos filter has eight taps to our six. At 50 % both peers' linear interpolation is a mean of two by two pixels,
// less work than ours, whose positions differ from column to column; libyuv weighs with seven bits. The same mean is
// ours by steps of 2 from the middle of the first two pixels on, of bytes with the same results, but that libyuv takes
// means of means of pixels.

#include <algorithm>
#include <cmath>

#include "peers.h"

#ifdef VEMI_BENCH_LIBYUV
#include <libyuv/scale.h>
#include <libyuv/scale_argb.h>
#endif

namespace bench {
namespace {

template <class T>
using Resize = VemiStatus(const T*, VemiSize, int, VemiRect, T*, int, VemiSize, double, double, int);

template <class T>
using Peer = std::function<std::function<void()>(const Image<T>&, const Image<T>&)>;

/// The source of a destination that is `factor` times as large.
template <class T, int channels, Resize<T>* resize>
Contest contest(VemiSize size, double factor, int interpolation, const Peer<T>& peer) {
  const auto reduced = [&](int extent) { return std::max(8, static_cast<int>(std::lround(extent / factor))); };
  const VemiSize from = {reduced(size.width), reduced(size.height)};
  const Image<T> src = randomImage<T>(from, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const double x = static_cast<double>(size.width) / from.width, y = static_cast<double>(size.height) / from.height;
  const auto ours = [=] {
    return resize(src.data(), src.size, src.step, VemiRect{0, 0, from.width, from.height}, dst.data(), dst.step, size,
                  x, y, interpolation);
  };
  return {ours, peer(src, dst), {}};
}

template <class T>
using ResizeShift = VemiStatus(const T*, VemiSize, int, VemiRect, T*, int, VemiSize, double, double, double, double,
                               int);

// Means of two by two pixels; whether the peer rounds as we do.
template <class T, int channels, ResizeShift<T>* resize>
Contest halves(VemiSize size, const Peer<T>& peer, bool isAlike) {
  const VemiSize from = {2 * size.width, 2 * size.height};
  const Image<T> src = randomImage<T>(from, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const auto ours = [=] {
    return resize(src.data(), from, src.step, VemiRect{0, 0, from.width, from.height}, dst.data(), dst.step, size, 2, 2,
                  0.5, 0.5, vemiInterLinear);
  };
  std::vector<Bytes> results;
  if (isAlike) results = {dst.bytes()};
  return {ours, peer(src, dst), results};
}

std::string percent(double factor) { return std::to_string(std::lround(factor * 100)) + " %"; }

#ifdef VEMI_BENCH_OPENCV

template <class T>
Peer<T> openCv(int flag) {
  return [=](const Image<T>& src, const Image<T>& dst) -> std::function<void()> {
    return [=, from = mat(src), to = mat(dst)]() mutable {
      static_cast<void>(src), static_cast<void>(dst);
      cv::resize(from, to, to.size(), 0, 0, flag);
    };
  };
}

template <class T, int channels, Resize<T>* resize>
void add(std::vector<Row>& rows, const std::string& images, std::initializer_list<double> factors, int interpolation,
         int flag, const std::string& kind) {
  for (const double factor : factors) {
    const auto prepare = [=](VemiSize size) {
      return contest<T, channels, resize>(size, factor, interpolation, openCv<T>(flag));
    };
    rows.push_back({"Resize " + kind + " " + images + " " + percent(factor), "OpenCV resize", prepare});
  }
}

template <class T, int channels, ResizeShift<T>* resize>
void addHalves(std::vector<Row>& rows, const std::string& images) {
  rows.push_back({"ResizeShift " + images + " by 2", "OpenCV resize", [](VemiSize size) {
                    return halves<T, channels, resize>(size, openCv<T>(cv::INTER_LINEAR), sizeof(T) == 1);
                  }});
}

template <class T, int channels, Resize<T>* resize>
void addKinds(std::vector<Row>& rows, const std::string& images) {
  add<T, channels, resize>(rows, images, {0.5, 1.5, 2}, vemiInterNearest, cv::INTER_NEAREST, "nearest");
  add<T, channels, resize>(rows, images, {0.5, 0.75, 2}, vemiInterLinear, cv::INTER_LINEAR, "linear");
  add<T, channels, resize>(rows, images, {0.5, 2}, vemiInterCubic, cv::INTER_CUBIC, "cubic");
  add<T, channels, resize>(rows, images, {0.5, 2}, vemiInterLanczos, cv::INTER_LANCZOS4, "Lanczos");
  add<T, channels, resize>(rows, images, {0.3, 0.5, 0.75}, vemiInterSuper, cv::INTER_AREA, "area");
}

#endif
#ifdef VEMI_BENCH_LIBYUV

Peer<Vemi8u> planeScale(libyuv::FilterMode mode) {
  return [=](const Image<Vemi8u>& src, const Image<Vemi8u>& dst) -> std::function<void()> {
    return [=] {
      libyuv::ScalePlane(src.data(), src.step, src.size.width, src.size.height, dst.data(), dst.step, dst.size.width,
                         dst.size.height, mode);
    };
  };
}

Peer<Vemi8u> pixelScale(libyuv::FilterMode mode) {
  return [=](const Image<Vemi8u>& src, const Image<Vemi8u>& dst) -> std::function<void()> {
    return [=] {
      libyuv::ARGBScale(src.data(), src.step, src.size.width, src.size.height, dst.data(), dst.step, dst.size.width,
                        dst.size.height, mode);
    };
  };
}

void addLibyuv(std::vector<Row>& rows, double factor, int interpolation, libyuv::FilterMode mode,
               const std::string& kind) {
  const auto planes = [=](VemiSize size) {
    return contest<Vemi8u, 1, vemiResize_8u_C1R>(size, factor, interpolation, planeScale(mode));
  };
  rows.push_back({"Resize " + kind + " 8u C1 " + percent(factor), "libyuv ScalePlane", planes});
  const auto pixels = [=](VemiSize size) {
    return contest<Vemi8u, 4, vemiResize_8u_C4R>(size, factor, interpolation, pixelScale(mode));
  };
  rows.push_back({"Resize " + kind + " 8u C4 " + percent(factor), "libyuv ARGBScale", pixels});
}

#endif

std::vector<Row> rows() {
  std::vector<Row> all;
#ifdef VEMI_BENCH_OPENCV
  addKinds<Vemi8u, 1, vemiResize_8u_C1R>(all, "8u C1");
  addKinds<Vemi8u, 3, vemiResize_8u_C3R>(all, "8u C3");
  addKinds<Vemi8u, 4, vemiResize_8u_C4R>(all, "8u C4");
  addKinds<Vemi16u, 1, vemiResize_16u_C1R>(all, "16u C1");
  addKinds<Vemi16u, 3, vemiResize_16u_C3R>(all, "16u C3");
  addKinds<Vemi32f, 1, vemiResize_32f_C1R>(all, "32f C1");
  addKinds<Vemi32f, 3, vemiResize_32f_C3R>(all, "32f C3");
  addHalves<Vemi8u, 1, vemiResizeShift_8u_C1R>(all, "8u C1");
  addHalves<Vemi8u, 3, vemiResizeShift_8u_C3R>(all, "8u C3");
  addHalves<Vemi8u, 4, vemiResizeShift_8u_C4R>(all, "8u C4");
  addHalves<Vemi16u, 1, vemiResizeShift_16u_C1R>(all, "16u C1");
  addHalves<Vemi16u, 3, vemiResizeShift_16u_C3R>(all, "16u C3");
#endif
#ifdef VEMI_BENCH_LIBYUV
  for (const double factor : {0.5, 0.75, 2.0}) {
    addLibyuv(all, factor, vemiInterLinear, libyuv::kFilterBilinear, "linear");
    if (factor < 1) addLibyuv(all, factor, vemiInterSuper, libyuv::kFilterBox, "area");
  }
  all.push_back({"ResizeShift 8u C1 by 2", "libyuv ScalePlane", [](VemiSize size) {
                   return halves<Vemi8u, 1, vemiResizeShift_8u_C1R>(size, planeScale(libyuv::kFilterBilinear), true);
                 }});
  all.push_back({"ResizeShift 8u C4 by 2", "libyuv ARGBScale", [](VemiSize size) {
                   return halves<Vemi8u, 4, vemiResizeShift_8u_C4R>(size, pixelScale(libyuv::kFilterBilinear), false);
                 }});
#endif
  return all;
}

}  // namespace

Family resizeFamily() { return {"resize", rows()}; }

}  // namespace bench
