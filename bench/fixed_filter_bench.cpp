// Filters with fixed kernels. Where the peer's kernel, its sign or the order of its float sums is another one, results
// are not compared: gradients to the right, means by powers of two, 571ths. Of 5x5 its GaussianBlur is a product of two
// rows, which ours is not: that of bytes is a bound, and filter2D does the same work.

#include <algorithm>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class S, class T>
using Fixed = VemiStatus(const S*, int, T*, int, VemiSize);
template <class S, class T>
using Chosen = VemiStatus(const S*, int, T*, int, VemiSize, int);
using Peer = void(const cv::Mat& from, const cv::Mat& to);

enum Results { compared, differing };

// Both sides read the same pixels around the region.
template <class S, class T, int channels, int side, Peer* peer, Results results, class Filter>
Contest contest(VemiSize size, const Filter& filter) {
  const int reach = side / 2;
  const Image<S> src = randomImage<S>({size.width + side - 1, size.height + side - 1}, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const S* const inner = src.data() + (src.size.width * reach + reach) * channels;
  const auto ours = [=] { return filter(inner, src.step, dst.data(), dst.step, size); };
  const auto peers = [from = mat(src)(cv::Rect(reach, reach, size.width, size.height)), to = mat(dst), src] {
    peer(from, to);
  };
  if (results == differing) return {ours, peers, {}};
  return {ours, peers, {dst.bytes()}};
}

template <class S, class T, int channels, Fixed<S, T>* filter, Peer* peer, Results results = compared>
Contest fixed(VemiSize size) {
  return contest<S, T, channels, 3, peer, results>(size, filter);
}

template <class S, class T, int channels, Chosen<S, T>* filter, int side, Peer* peer, Results results = compared>
Contest chosen(VemiSize size) {
  const auto ofMask = [](const S* src, int srcStep, T* dst, int dstStep, VemiSize region) {
    return filter(src, srcStep, dst, dstStep, region, side == 3 ? vemiMask3x3 : vemiMask5x5);
  };
  return contest<S, T, channels, side, peer, results>(size, ofMask);
}

constexpr int border = cv::BORDER_REPLICATE;

template <int dx, int dy, int side>
void sobel(const cv::Mat& from, const cv::Mat& to) {
  cv::Sobel(from, to, to.depth(), dx, dy, side, 1, 0, border);
}
template <int dx, int dy>
void scharr(const cv::Mat& from, const cv::Mat& to) {
  cv::Scharr(from, to, to.depth(), dx, dy, 1, 0, border);
}
template <int side>
void laplacian(const cv::Mat& from, const cv::Mat& to) {
  cv::Laplacian(from, to, to.depth(), side, 1, 0, border);
}
template <int side>
void gaussianBlur(const cv::Mat& from, const cv::Mat& to) {
  cv::GaussianBlur(from, to, {side, side}, 0, 0, border);
}
template <int side>
void blur(const cv::Mat& from, const cv::Mat& to) {
  cv::blur(from, to, {side, side}, {-1, -1}, border);
}

void prewittDown(const cv::Mat& from, const cv::Mat& to) {
  cv::sepFilter2D(from, to, to.depth(), cv::Matx13f(1, 1, 1), cv::Matx13f(-1, 0, 1), {-1, -1}, 0, border);
}

template <int side>
void hipass(const cv::Mat& from, const cv::Mat& to) {
  cv::Mat1f kernel(side, side, -1);
  kernel(side / 2, side / 2) = side * side - 1;
  cv::filter2D(from, to, to.depth(), kernel, {-1, -1}, 0, border);
}

void sharpen(const cv::Mat& from, const cv::Mat& to) {
  cv::Mat1f kernel(3, 3, -0.125f);
  kernel(1, 1) = 2;
  cv::filter2D(from, to, to.depth(), kernel, {-1, -1}, 0, border);
}

// Of the weights in one quarter of a kernel that is its own mirror image.
cv::Mat1f mirrored(const float (&quarter)[3][3], float divisor = 1) {
  cv::Mat1f kernel(5, 5);
  for (int j = 0; j < 5; j++) {
    for (int i = 0; i < 5; i++) kernel(j, i) = quarter[std::min(j, 4 - j)][std::min(i, 4 - i)] / divisor;
  }
  return kernel;
}

void laplace5(const cv::Mat& from, const cv::Mat& to) {
  const cv::Mat1f kernel = mirrored({{-1, -3, -4}, {-3, 0, 6}, {-4, 6, 20}});
  cv::filter2D(from, to, to.depth(), kernel, {-1, -1}, 0, border);
}

void gauss571(const cv::Mat& from, const cv::Mat& to) {
  const cv::Mat1f kernel = mirrored({{2, 7, 12}, {7, 31, 52}, {12, 52, 127}}, 571);
  cv::filter2D(from, to, to.depth(), kernel, {-1, -1}, 0, border);
}

std::vector<Row> rows() {
  using U = Vemi8u;
  using I = Vemi16s;
  using F = Vemi32f;
  const std::string sobels = "OpenCV Sobel", scharrs = "OpenCV Scharr", filter2D = "OpenCV filter2D";
  const std::string separable = "OpenCV sepFilter2D", laplacians = "OpenCV Laplacian", gauss = "OpenCV GaussianBlur";
  const std::string blurs = "OpenCV blur";
  return {
      {"SobelHoriz 8u16s C1 3x3", sobels, chosen<U, I, 1, vemiFilterSobelHoriz_8u16s_C1R, 3, sobel<0, 1, 3>>},
      {"SobelHoriz 8u16s C1 5x5", sobels, chosen<U, I, 1, vemiFilterSobelHoriz_8u16s_C1R, 5, sobel<0, 1, 5>>},
      {"SobelVert 8u16s C1 3x3", sobels, chosen<U, I, 1, vemiFilterSobelVert_8u16s_C1R, 3, sobel<1, 0, 3>, differing>},
      {"SobelVert 8u16s C1 5x5", sobels, chosen<U, I, 1, vemiFilterSobelVert_8u16s_C1R, 5, sobel<1, 0, 5>, differing>},
      {"SobelHorizSecond 8u16s C1 3x3", sobels,
       chosen<U, I, 1, vemiFilterSobelHorizSecond_8u16s_C1R, 3, sobel<0, 2, 3>>},
      {"SobelHoriz 8u C1", sobels, fixed<U, U, 1, vemiFilterSobelHoriz_8u_C1R, sobel<0, 1, 3>>},
      {"SobelHoriz 8u C3", sobels, fixed<U, U, 3, vemiFilterSobelHoriz_8u_C3R, sobel<0, 1, 3>>},
      {"SobelHoriz 16s C1", sobels, fixed<I, I, 1, vemiFilterSobelHoriz_16s_C1R, sobel<0, 1, 3>>},
      {"SobelVert 16s C3", sobels, fixed<I, I, 3, vemiFilterSobelVert_16s_C3R, sobel<1, 0, 3>, differing>},
      {"SobelHoriz 32f C1", sobels, fixed<F, F, 1, vemiFilterSobelHoriz_32f_C1R, sobel<0, 1, 3>, differing>},
      {"SobelVert 32f C3", sobels, fixed<F, F, 3, vemiFilterSobelVert_32f_C3R, sobel<1, 0, 3>, differing>},
      {"SobelHorizMask 32f C1 5x5", sobels,
       chosen<F, F, 1, vemiFilterSobelHorizMask_32f_C1R, 5, sobel<0, 1, 5>, differing>},
      {"ScharrHoriz 8u16s C1", scharrs, fixed<U, I, 1, vemiFilterScharrHoriz_8u16s_C1R, scharr<0, 1>>},
      {"ScharrVert 8u16s C1", scharrs, fixed<U, I, 1, vemiFilterScharrVert_8u16s_C1R, scharr<1, 0>>},
      {"ScharrHoriz 32f C1", scharrs, fixed<F, F, 1, vemiFilterScharrHoriz_32f_C1R, scharr<0, 1>, differing>},
      {"PrewittHoriz 8u C1", separable, fixed<U, U, 1, vemiFilterPrewittHoriz_8u_C1R, prewittDown>},
      {"PrewittHoriz 32f C4", separable, fixed<F, F, 4, vemiFilterPrewittHoriz_32f_C4R, prewittDown, differing>},
      {"Laplace 8u C1 3x3", filter2D, chosen<U, U, 1, vemiFilterLaplace_8u_C1R, 3, hipass<3>>},
      {"Laplace 8u16s C1 3x3", laplacians, chosen<U, I, 1, vemiFilterLaplace_8u16s_C1R, 3, laplacian<3>, differing>},
      {"Laplace 8u16s C1 5x5", laplacians, chosen<U, I, 1, vemiFilterLaplace_8u16s_C1R, 5, laplacian<5>, differing>},
      {"Laplace 8u C3 5x5", filter2D, chosen<U, U, 3, vemiFilterLaplace_8u_C3R, 5, laplace5>},
      {"Laplace 32f C1 3x3", laplacians, chosen<F, F, 1, vemiFilterLaplace_32f_C1R, 3, laplacian<3>, differing>},
      {"Laplace 32f C1 5x5", laplacians, chosen<F, F, 1, vemiFilterLaplace_32f_C1R, 5, laplacian<5>, differing>},
      {"Hipass 8u C1 5x5", filter2D, chosen<U, U, 1, vemiFilterHipass_8u_C1R, 5, hipass<5>>},
      {"Hipass 16s C1 5x5", filter2D, chosen<I, I, 1, vemiFilterHipass_16s_C1R, 5, hipass<5>>},
      {"Sharpen 8u C1", filter2D, fixed<U, U, 1, vemiFilterSharpen_8u_C1R, sharpen>},
      {"Sharpen 8u C3", filter2D, fixed<U, U, 3, vemiFilterSharpen_8u_C3R, sharpen>},
      {"Sharpen 32f C1", filter2D, fixed<F, F, 1, vemiFilterSharpen_32f_C1R, sharpen, differing>},
      {"Gauss 8u C1 3x3", gauss, chosen<U, U, 1, vemiFilterGauss_8u_C1R, 3, gaussianBlur<3>, differing>},
      {"Gauss 8u C1 5x5", gauss, chosen<U, U, 1, vemiFilterGauss_8u_C1R, 5, gaussianBlur<5>, differing>},
      {"Gauss 8u C1 5x5", filter2D, chosen<U, U, 1, vemiFilterGauss_8u_C1R, 5, gauss571, differing>},
      {"Gauss 8u C3 3x3", gauss, chosen<U, U, 3, vemiFilterGauss_8u_C3R, 3, gaussianBlur<3>, differing>},
      {"Gauss 8u C3 5x5", gauss, chosen<U, U, 3, vemiFilterGauss_8u_C3R, 5, gaussianBlur<5>, differing>},
      {"Gauss 16s C1 3x3", gauss, chosen<I, I, 1, vemiFilterGauss_16s_C1R, 3, gaussianBlur<3>, differing>},
      {"Gauss 16s C1 5x5", filter2D, chosen<I, I, 1, vemiFilterGauss_16s_C1R, 5, gauss571, differing>},
      {"Gauss 32f C1 3x3", gauss, chosen<F, F, 1, vemiFilterGauss_32f_C1R, 3, gaussianBlur<3>, differing>},
      {"Gauss 32f C1 5x5", filter2D, chosen<F, F, 1, vemiFilterGauss_32f_C1R, 5, gauss571, differing>},
      {"Gauss 32f C3 5x5", filter2D, chosen<F, F, 3, vemiFilterGauss_32f_C3R, 5, gauss571, differing>},
      {"Lowpass 8u C1 3x3", blurs, chosen<U, U, 1, vemiFilterLowpass_8u_C1R, 3, blur<3>>},
      {"Lowpass 8u C1 5x5", blurs, chosen<U, U, 1, vemiFilterLowpass_8u_C1R, 5, blur<5>>},
      {"Lowpass 16s C1 5x5", blurs, chosen<I, I, 1, vemiFilterLowpass_16s_C1R, 5, blur<5>>},
      {"Lowpass 32f C3 3x3", blurs, chosen<F, F, 3, vemiFilterLowpass_32f_C3R, 3, blur<3>, differing>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family fixedFilterFamily() { return {"fixed filters", rows()}; }

}  // namespace bench
