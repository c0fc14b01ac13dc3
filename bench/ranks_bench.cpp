// Minimum, maximum and median filters. What lies around the region is what the peer puts there: its rim, repeated.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

template <class T>
using ByRectangle = VemiStatus(const T*, int, T*, int, VemiSize, VemiSize, VemiPoint);
using Peer = void(const cv::Mat& from, const cv::Mat& to);

template <class T, int channels, ByRectangle<T>* filter, int side, Peer* peer>
Contest contest(VemiSize size) {
  constexpr int reach = side / 2;
  const Image<T> picture = randomImage<T>(size, channels, peersAlone), dst = blankImage<T>(size, channels);
  const Image<T> src = blankImage<T>({size.width + side - 1, size.height + side - 1}, channels);
  cv::Mat whole = mat(src);
  cv::copyMakeBorder(mat(picture), whole, reach, reach, reach, reach, cv::BORDER_REPLICATE);
  const T* const inner = src.data() + (src.size.width * reach + reach) * channels;
  const auto ours = [=] {
    return filter(inner, src.step, dst.data(), dst.step, size, VemiSize{side, side}, VemiPoint{reach, reach});
  };
  const auto peers = [from = mat(src)(cv::Rect(reach, reach, size.width, size.height)), to = mat(dst), src] {
    peer(from, to);
  };
  return {ours, peers, {dst.bytes()}};
}

template <int side>
void erode(const cv::Mat& from, const cv::Mat& to) {
  cv::erode(from, to, cv::Mat::ones(side, side, CV_8U), {-1, -1}, 1, cv::BORDER_REPLICATE);
}
template <int side>
void dilate(const cv::Mat& from, const cv::Mat& to) {
  cv::dilate(from, to, cv::Mat::ones(side, side, CV_8U), {-1, -1}, 1, cv::BORDER_REPLICATE);
}
template <int side>
void medianBlur(const cv::Mat& from, const cv::Mat& to) {
  cv::medianBlur(from, to, side);
}

std::vector<Row> rows() {
  using U = Vemi8u;
  using I = Vemi16s;
  using F = Vemi32f;
  const std::string erodes = "OpenCV erode", dilates = "OpenCV dilate", medians = "OpenCV medianBlur";
  return {
      {"Min 8u C1 3x3", erodes, contest<U, 1, vemiFilterMin_8u_C1R, 3, erode<3>>},
      {"Max 8u C1 3x3", dilates, contest<U, 1, vemiFilterMax_8u_C1R, 3, dilate<3>>},
      {"Max 8u C1 9x9", dilates, contest<U, 1, vemiFilterMax_8u_C1R, 9, dilate<9>>},
      {"Max 8u C3 5x5", dilates, contest<U, 3, vemiFilterMax_8u_C3R, 5, dilate<5>>},
      {"Min 16s C1 3x3", erodes, contest<I, 1, vemiFilterMin_16s_C1R, 3, erode<3>>},
      {"Max 16s C1 9x9", dilates, contest<I, 1, vemiFilterMax_16s_C1R, 9, dilate<9>>},
      {"Max 16s C4 5x5", dilates, contest<I, 4, vemiFilterMax_16s_C4R, 5, dilate<5>>},
      {"Min 32f C1 9x9", erodes, contest<F, 1, vemiFilterMin_32f_C1R, 9, erode<9>>},
      {"Median 8u C1 3x3", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 3, medianBlur<3>>},
      {"Median 8u C3 3x3", medians, contest<U, 3, vemiFilterMedian_8u_C3R, 3, medianBlur<3>>},
      {"Median 8u C4 3x3", medians, contest<U, 4, vemiFilterMedian_8u_C4R, 3, medianBlur<3>>},
      {"Median 16s C1 3x3", medians, contest<I, 1, vemiFilterMedian_16s_C1R, 3, medianBlur<3>>},
      {"Median 8u C1 5x5", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 5, medianBlur<5>>},
      {"Median 8u C3 5x5", medians, contest<U, 3, vemiFilterMedian_8u_C3R, 5, medianBlur<5>>},
      {"Median 16s C1 5x5", medians, contest<I, 1, vemiFilterMedian_16s_C1R, 5, medianBlur<5>>},
      {"Median 16s C3 5x5", medians, contest<I, 3, vemiFilterMedian_16s_C3R, 5, medianBlur<5>>},
      {"Median 8u C1 7x7", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 7, medianBlur<7>>},
      {"Median 8u C1 9x9", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 9, medianBlur<9>>},
      {"Median 8u C1 15x15", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 15, medianBlur<15>>},
      {"Median 8u C1 31x31", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 31, medianBlur<31>>},
      {"Median 8u C1 101x101", medians, contest<U, 1, vemiFilterMedian_8u_C1R, 101, medianBlur<101>>},
      {"Median 8u C3 9x9", medians, contest<U, 3, vemiFilterMedian_8u_C3R, 9, medianBlur<9>>},
      {"Median 8u C4 31x31", medians, contest<U, 4, vemiFilterMedian_8u_C4R, 31, medianBlur<31>>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family ranksFamily() { return {"ranks", rows()}; }

}  // namespace bench
