// Thresholds. The peer has one threshold for all channels; its binary one has no equal for integers, where a pixel that
// meets the threshold stays here, so that it only bounds those rows.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV
/// In the middle of what random images hold; no float is there.
template <class T>
constexpr T middle = static_cast<T>(sizeof(T) == 1   ? 128
                                    : sizeof(T) == 2 ? 1000
                                                     : 30000.5);

template <class T>
constexpr T zeros[4] = {};
template <class T>
constexpr T white[4] = {255, 255, 255, 255};
template <class T>
constexpr T middles[4] = {middle<T>, middle<T>, middle<T>, middle<T>};

/// call(src, srcStep, dst, dstStep, size) against peer(mat of src, mat of dst).
template <class T, class Call, class Peer>
Contest against(VemiSize size, int channels, bool isSame, const Call& call, const Peer& peer) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  Contest contest = {[=] { return call(src.data(), src.step, dst.data(), dst.step, size); },
                     [=, from = mat(src), to = mat(dst)]() mutable { peer(from, to); },
                     {}};
  if (isSame) contest.results = {dst.bytes()};
  return contest;
}

template <class T, int channels, auto threshold>
Contest truncated(VemiSize size) {
  const auto call = [](auto... image) { return threshold(image..., argument<channels>(middles<T>)); };
  return against<T>(size, channels, true, call, [](const cv::Mat& from, cv::Mat& to) {
    cv::threshold(from, to, static_cast<double>(middle<T>), 0, cv::THRESH_TRUNC);
  });
}

template <class T, int channels, auto threshold>
Contest raised(VemiSize size) {
  const auto call = [](auto... image) { return threshold(image..., argument<channels>(middles<T>)); };
  return against<T>(size, channels, true, call,
                    [](const cv::Mat& from, cv::Mat& to) { cv::max(from, static_cast<double>(middle<T>), to); });
}

/// Below (above) the middle to zero.
template <class T, int channels, auto threshold, int type>
Contest toZero(VemiSize size) {
  const auto call = [](auto... image) {
    return threshold(image..., argument<channels>(middles<T>), argument<channels>(zeros<T>));
  };
  const bool isBelow = type == cv::THRESH_TOZERO;  // the peer then keeps what is above
  const double limit = static_cast<double>(middle<T>) - (isBelow && std::is_integral_v<T> ? 1 : 0);
  return against<T>(size, channels, true, call,
                    [=](const cv::Mat& from, cv::Mat& to) { cv::threshold(from, to, limit, 0, type); });
}

template <class T, int channels, auto threshold>
Contest binary(VemiSize size) {
  const auto call = [](auto... image) {
    return threshold(image..., argument<channels>(middles<T>), argument<channels>(zeros<T>),
                     argument<channels>(middles<T>), argument<channels>(white<T>));
  };
  return against<T>(size, channels, std::is_floating_point_v<T>, call, [](const cv::Mat& from, cv::Mat& to) {
    cv::threshold(from, to, static_cast<double>(middle<T>), 255, cv::THRESH_BINARY);
  });
}
#endif

}  // namespace

Family thresholdFamily() {
  return {
      "threshold",
      {
#ifdef VEMI_BENCH_OPENCV
          {"Threshold_GT 8u C1", "OpenCV TRUNC", truncated<Vemi8u, 1, vemiThreshold_GT_8u_C1R>},
          {"Threshold_GT 8u C3", "OpenCV TRUNC", truncated<Vemi8u, 3, vemiThreshold_GT_8u_C3R>},
          {"Threshold_GT 16s C1", "OpenCV TRUNC", truncated<Vemi16s, 1, vemiThreshold_GT_16s_C1R>},
          {"Threshold_GT 32f C1", "OpenCV TRUNC", truncated<Vemi32f, 1, vemiThreshold_GT_32f_C1R>},
          {"Threshold_GT 32f C3", "OpenCV TRUNC", truncated<Vemi32f, 3, vemiThreshold_GT_32f_C3R>},
          {"Threshold_LT 8u C1", "OpenCV max", raised<Vemi8u, 1, vemiThreshold_LT_8u_C1R>},
          {"Threshold_LT 32f C1", "OpenCV max", raised<Vemi32f, 1, vemiThreshold_LT_32f_C1R>},
          {"Threshold_LTVal 8u C1", "OpenCV TOZERO", toZero<Vemi8u, 1, vemiThreshold_LTVal_8u_C1R, cv::THRESH_TOZERO>},
          {"Threshold_LTVal 8u C4", "OpenCV TOZERO", toZero<Vemi8u, 4, vemiThreshold_LTVal_8u_C4R, cv::THRESH_TOZERO>},
          {"Threshold_LTVal 16s C3", "OpenCV TOZERO",
           toZero<Vemi16s, 3, vemiThreshold_LTVal_16s_C3R, cv::THRESH_TOZERO>},
          {"Threshold_GTVal 8u C3", "OpenCV TOZERO_INV",
           toZero<Vemi8u, 3, vemiThreshold_GTVal_8u_C3R, cv::THRESH_TOZERO_INV>},
          {"Threshold_GTVal 16s C1", "OpenCV TOZERO_INV",
           toZero<Vemi16s, 1, vemiThreshold_GTVal_16s_C1R, cv::THRESH_TOZERO_INV>},
          {"Threshold_GTVal 32f C1", "OpenCV TOZERO_INV",
           toZero<Vemi32f, 1, vemiThreshold_GTVal_32f_C1R, cv::THRESH_TOZERO_INV>},
          {"Threshold_LTValGTVal 8u C1", "OpenCV BINARY (bound)", binary<Vemi8u, 1, vemiThreshold_LTValGTVal_8u_C1R>},
          {"Threshold_LTValGTVal 8u C3", "OpenCV BINARY (bound)", binary<Vemi8u, 3, vemiThreshold_LTValGTVal_8u_C3R>},
          {"Threshold_LTValGTVal 16s C1", "OpenCV BINARY (bound)",
           binary<Vemi16s, 1, vemiThreshold_LTValGTVal_16s_C1R>},
          {"Threshold_LTValGTVal 32f C1", "OpenCV BINARY", binary<Vemi32f, 1, vemiThreshold_LTValGTVal_32f_C1R>},
#endif
      }};
}

}  // namespace bench
