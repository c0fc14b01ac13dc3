// Times filters and warps that the tests build on the floor against OpenCV's, single-threaded: what rows with
// neighbours and gathers can do before a family is written on them.

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <opencv2/imgproc.hpp>

#include "../image.h"
#include "../peers.h"
#include "../race.h"
#include "core/warp_fetches.h"
#include "core/window_filters.h"

namespace {

using bench::Contest;
using vemi::AC4;
using vemi::C1;
using vemi::C3;
using vemi::C4;
using namespace vemi::test;

/// A filter against a peer that is given the region within its margins.
template <class L, class T, class Ours, class Peer>
Contest filtering(VemiSize size, VemiSize kernel, const Ours& ours, const Peer& peer) {
  constexpr int n = L::elements;
  const VemiPoint anchor = {kernel.width / 2, kernel.height / 2};
  const VemiSize extended = {size.width + kernel.width - 1, size.height + kernel.height - 1};
  const auto src = bench::randomImage<T>(extended, n), dst = bench::blankImage<T>(size, n);
  T* const region = src.data() + (anchor.y * extended.width + anchor.x) * n;
  const FilterCall<T> call = {
      {region, src.step}, {dst.data(), dst.step}, size, vemi::Window::fromFirst(kernel, anchor)};
  const cv::Mat whole = bench::mat(src), from = whole(cv::Rect(anchor.x, anchor.y, size.width, size.height));
  const auto theirs = [=, to = bench::mat(dst)]() mutable { peer(from, to); };
  const auto run = [=, keep = std::pair(src, dst)] {
    ours(call);
    return vemiOk;
  };
  return {run, theirs, {}};
}

template <class L, int taps>
Contest gauss(VemiSize size) {
  const auto ours = [](const auto& call) { binomialFilter<L, taps>(call, 0, call.roiSize.height); };
  const auto peer = [](const cv::Mat& from, cv::Mat& to) { cv::GaussianBlur(from, to, {taps, taps}, 0); };
  return filtering<L, Vemi8u>(size, {taps, taps}, ours, peer);
}

template <class L, class T, int taps>
Contest floatKernel(VemiSize size) {
  const std::vector<float> kernel(taps * taps, 1.0f / (taps * taps));
  const auto ours = [=](const auto& call) { floatFilter<L>(call, kernel.data(), 0, call.roiSize.height); };
  const auto peer = [=](const cv::Mat& from, cv::Mat& to) {
    cv::filter2D(from, to, -1, cv::Mat(taps, taps, CV_32F, const_cast<float*>(kernel.data())));
  };
  return filtering<L, T>(size, {taps, taps}, ours, peer);
}

/// An image turned by 0.7 and doubled, so that no pixel falls outside; ours computes its coordinates too.
template <class L, auto rowOf>
Contest warp(VemiSize size) {
  constexpr int n = L::elements;
  const auto src = bench::randomImage<Vemi8u>(size, n), dst = bench::blankImage<Vemi8u>(size, n);
  const double c = 0.5 * std::cos(0.7), s = 0.5 * std::sin(0.7) * size.height / size.width;
  const double x0 = (size.width - c * size.width - s * size.height) / 2;
  const double y0 = (size.height + s * size.width - c * size.height) / 2;
  const auto x = bench::blankImage<float>({size.width, 1}, 1), y = bench::blankImage<float>({size.width, 1}, 1);
  const auto ours = [=] {
    float *const xs = x.data(), *const ys = y.data();
    for (int row = 0; row < size.height; ++row) {
      const double xRow = s * row + x0, yRow = c * row + y0;
      for (int i = 0; i < size.width; ++i) xs[i] = static_cast<float>(c * i + xRow);
      for (int i = 0; i < size.width; ++i) ys[i] = static_cast<float>(yRow - s * i);
      rowOf(size.width, {src.data(), src.step}, size, xs, ys, dst.data() + ptrdiff_t{row} * dst.step);
    }
    return vemiOk;
  };
  const cv::Mat map = (cv::Mat_<double>(2, 3) << c, s, x0, -s, c, y0);
  const auto theirs = [=, from = bench::mat(src), to = bench::mat(dst)]() mutable {
    cv::warpAffine(from, to, map, to.size(), cv::INTER_LINEAR | cv::WARP_INVERSE_MAP);
  };
  return {ours, theirs, {}};
}

const std::vector<bench::Row> rows = {
    {"Gauss 3x3 8u C1", "GaussianBlur", gauss<C1, 3>},
    {"Gauss 3x3 8u C3", "GaussianBlur", gauss<C3, 3>},
    {"Gauss 3x3 8u C4", "GaussianBlur", gauss<C4, 3>},
    {"Gauss 5x5 8u C1", "GaussianBlur", gauss<C1, 5>},
    {"Gauss 5x5 8u C3", "GaussianBlur", gauss<C3, 5>},
    {"Float kernel 5x5 8u C1", "filter2D", floatKernel<C1, Vemi8u, 5>},
    {"Float kernel 5x5 8u C3", "filter2D", floatKernel<C3, Vemi8u, 5>},
    {"Float kernel 5x5 32f C1", "filter2D", floatKernel<C1, Vemi32f, 5>},
    {"Float kernel 15x15 32f C1", "filter2D", floatKernel<C1, Vemi32f, 15>},
    {"Affine linear 8u C1", "warpAffine", warp<C1, linearRow>},
    {"Affine linear 8u C3", "warpAffine", warp<C3, linearPixels<C3>>},
    {"Affine linear 8u C4", "warpAffine", warp<C4, linearPixels<C4>>},
};

}  // namespace

/// Rows whose name contains the argument, or all.
int main(int count, char** arguments) {
  cv::setNumThreads(1);
  const std::string wanted = count > 1 ? arguments[1] : "";
  std::printf("%-28s%-16s%s\n", "ns a pixel", "peer", "   64x64               320x240              1920x1080");
  bool fair = true;
  for (const bench::Row& row : rows) {
    if (row.name.find(wanted) == std::string::npos) continue;
    std::printf("%-28s%-16s", row.name.c_str(), row.peer.c_str());
    for (const VemiSize size : {VemiSize{64, 64}, VemiSize{320, 240}, VemiSize{1920, 1080}}) {
      const Contest contest = row.prepare(size);
      fair = fair && (contest.results.empty() || bench::agree(contest));
      const bench::Times times = bench::race(contest, {.batchSeconds = 0.001, .patience = 5, .rounds = 1});
      const double pixels = static_cast<double>(size.width) * size.height;
      std::printf("%6.3f %6.3f %5.2fx", times.ours / pixels * 1e9, times.peers / pixels * 1e9,
                  times.peers / times.ours);
    }
    std::printf("\n");
  }
  if (!fair) std::printf("not the same results\n");
  return fair ? 0 : 1;
}
