// Sums, means, extremes, counts and norms.

#include "peers.h"

namespace bench {
namespace {

// Four doubles, which both sides write.
using Results = std::shared_ptr<double[]>;

Results results() { return Results(new double[4]()); }
Bytes bytesOf(const Results& written, int count) {
  return {written.get(), static_cast<size_t>(count) * sizeof(double)};
}

template <class T, auto function, int... hint>
VemiStatus reduce(const Image<T>& src, double* result) {
  return function(src.data(), src.step, src.size, result, hint...);
}
template <class T, auto function, int... hint>
VemiStatus reduce(const Image<T>& a, const Image<T>& b, double* result) {
  return function(a.data(), a.step, b.data(), b.step, a.size, result, hint...);
}

#ifdef VEMI_BENCH_OPENCV

// Float sums agree only where the order of additions is the same.
template <class T, int channels, auto function, int... hint, class Peer>
Contest againstScalar(VemiSize size, Peer peer) {
  const Image<T> src = randomImage<T>(size, channels);
  const Results result = results();
  const auto peers = [peer, from = mat(src), result] {
    const cv::Scalar scalar = peer(from);
    std::copy_n(scalar.val, channels, result.get());
  };
  std::vector<Bytes> compared;
  if (sizeof...(hint) == 0) compared.push_back(bytesOf(result, channels));
  return {[=] { return reduce<T, function, hint...>(src, result.get()); }, peers, compared};
}

template <class T, int channels, auto function, int... hint>
Contest sum(VemiSize size) {
  return againstScalar<T, channels, function, hint...>(size, [](const cv::Mat& m) { return cv::sum(m); });
}

// The peer multiplies the sum by the reciprocal in one channel too.
template <class T, int channels, auto function, int... hint>
Contest mean(VemiSize size) {
  Contest contest = againstScalar<T, channels, function, hint...>(size, [](const cv::Mat& m) { return cv::mean(m); });
  contest.results.clear();
  return contest;
}

template <class T, auto function>
Contest minMax(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  const Results result = results();
  const auto ours = [=] {
    T low, high;
    const VemiStatus status = function(src.data(), src.step, src.size, &low, &high);
    result[0] = low;
    result[1] = high;
    return status;
  };
  return {ours, [from = mat(src), result] { cv::minMaxIdx(from, &result[0], &result[1]); }, {bytesOf(result, 2)}};
}

template <class T, auto function>
Contest minIndex(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  for (size_t i = 0; i < src.elements(); ++i) src.data()[i] = std::max<T>(src.data()[i], T{5});
  src.data()[src.elements() / 3] = 4;  // in the middle, and not the end of any type
  const Results result = results();
  const auto ours = [=] {
    T low;
    int x, y;
    const VemiStatus status = function(src.data(), src.step, src.size, &low, &x, &y);
    result[0] = low;
    result[1] = x;
    result[2] = y;
    return status;
  };
  const auto peers = [from = mat(src), result] {
    cv::Point at;
    cv::minMaxLoc(from, &result[0], nullptr, &at);
    result[1] = at.x;
    result[2] = at.y;
  };
  return {ours, peers, {bytesOf(result, 3)}};
}

template <class T, auto function, int kind, int... hint>
Contest norm(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  const Results result = results();
  const auto peers = [from = mat(src), result] { result[0] = cv::norm(from, kind); };
  std::vector<Bytes> compared;
  if (sizeof...(hint) == 0) compared.push_back(bytesOf(result, 1));
  return {[=] { return reduce<T, function, hint...>(src, result.get()); }, peers, compared};
}

// The peer gives one norm of all channels, which only bounds ours.
template <class T, int channels, auto function, int kind>
Contest channelNorms(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels);
  const Results result = results();
  return {[=] { return reduce<T, function>(src, result.get()); },
          [from = mat(src), result] { result[0] = cv::norm(from, kind); },
          {}};
}

template <class T>
Image<T> shiftedImage(const Image<T>& image) {
  const Image<T> shifted = blankImage<T>(image.size, image.channels);
  std::memcpy(shifted.data(), image.data() + 1, image.bytes().count - sizeof(T));
  return shifted;
}

template <class T, auto function, int kind, int... hint>
Contest normOfTwo(VemiSize size) {
  const Image<T> a = randomImage<T>(size, 1), b = shiftedImage(a);
  const Results result = results();
  const auto peers = [x = mat(a), y = mat(b), result] { result[0] = cv::norm(x, y, kind); };
  std::vector<Bytes> compared;
  // The peer adds squares of 16s in double, beyond 2^53 as well.
  const bool exact =
      sizeof...(hint) == 0 && (kind & cv::NORM_RELATIVE) == 0 && !(sizeof(T) == 2 && kind == cv::NORM_L2);
  if (exact) compared.push_back(bytesOf(result, 1));
  return {[=] { return reduce<T, function, hint...>(a, b, result.get()); }, peers, compared};
}

template <class T, auto function>
Contest count(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  const Image<Vemi8u> mask = blankImage<Vemi8u>(size, 1);
  const auto found = std::make_shared<Vemi32s>();
  const T lower = 40, upper = 180;
  const auto peers = [from = mat(src), mask, found] {
    cv::Mat inside = mat(mask);
    cv::inRange(from, 40, 180, inside);
    *found = cv::countNonZero(inside);
  };
  return {[=] { return function(src.data(), src.step, src.size, found.get(), lower, upper); },
          peers,
          {{found.get(), sizeof *found}}};
}

#endif

}  // namespace

Family reductionsFamily() {
  return {"reductions",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Sum 8u C1", "OpenCV sum", sum<Vemi8u, 1, vemiSum_8u_C1R>},
              {"Sum 8u C3", "OpenCV sum", sum<Vemi8u, 3, vemiSum_8u_C3R>},
              {"Sum 8u C4", "OpenCV sum", sum<Vemi8u, 4, vemiSum_8u_C4R>},
              {"Sum 16s C1", "OpenCV sum", sum<Vemi16s, 1, vemiSum_16s_C1R>},
              {"Sum 16s C3", "OpenCV sum", sum<Vemi16s, 3, vemiSum_16s_C3R>},
              {"Sum 32f C1", "OpenCV sum", sum<Vemi32f, 1, vemiSum_32f_C1R, vemiHintFast>},
              {"Sum 32f C3", "OpenCV sum", sum<Vemi32f, 3, vemiSum_32f_C3R, vemiHintFast>},
              {"Sum 32f C4", "OpenCV sum", sum<Vemi32f, 4, vemiSum_32f_C4R, vemiHintFast>},
              {"Mean 8u C1", "OpenCV mean", mean<Vemi8u, 1, vemiMean_8u_C1R>},
              {"Mean 8u C3", "OpenCV mean", mean<Vemi8u, 3, vemiMean_8u_C3R>},
              {"Mean 32f C1", "OpenCV mean", mean<Vemi32f, 1, vemiMean_32f_C1R, vemiHintFast>},
              {"MinMax 8u C1", "OpenCV minMaxIdx", minMax<Vemi8u, vemiMinMax_8u_C1R>},
              {"MinMax 16s C1", "OpenCV minMaxIdx", minMax<Vemi16s, vemiMinMax_16s_C1R>},
              {"MinMax 32f C1", "OpenCV minMaxIdx", minMax<Vemi32f, vemiMinMax_32f_C1R>},
              {"MinIndx 8u C1", "OpenCV minMaxLoc", minIndex<Vemi8u, vemiMinIndx_8u_C1R>},
              {"MinIndx 16s C1", "OpenCV minMaxLoc", minIndex<Vemi16s, vemiMinIndx_16s_C1R>},
              {"MinIndx 32f C1", "OpenCV minMaxLoc", minIndex<Vemi32f, vemiMinIndx_32f_C1R>},
              {"CountInRange 8u C1", "inRange+countNonZero", count<Vemi8u, vemiCountInRange_8u_C1R>},
              {"CountInRange 32f C1", "inRange+countNonZero", count<Vemi32f, vemiCountInRange_32f_C1R>},
#endif
          }};
}

Family normFamily() {
#ifdef VEMI_BENCH_OPENCV
  constexpr int inf = cv::NORM_INF, l1 = cv::NORM_L1, l2 = cv::NORM_L2, relative = cv::NORM_RELATIVE;
#endif
  return {
      "norms",
      {
#ifdef VEMI_BENCH_OPENCV
          {"Norm Inf 8u C1", "OpenCV norm", norm<Vemi8u, vemiNorm_Inf_8u_C1R, inf>},
          {"Norm Inf 16s C1", "OpenCV norm", norm<Vemi16s, vemiNorm_Inf_16s_C1R, inf>},
          {"Norm Inf 32s C1", "OpenCV norm", norm<Vemi32s, vemiNorm_Inf_32s_C1R, inf>},
          {"Norm Inf 32f C1", "OpenCV norm", norm<Vemi32f, vemiNorm_Inf_32f_C1R, inf>},
          {"Norm L1 8u C1", "OpenCV norm", norm<Vemi8u, vemiNorm_L1_8u_C1R, l1>},
          {"Norm L1 16s C1", "OpenCV norm", norm<Vemi16s, vemiNorm_L1_16s_C1R, l1>},
          {"Norm L1 32f C1", "OpenCV norm", norm<Vemi32f, vemiNorm_L1_32f_C1R, l1, vemiHintFast>},
          {"Norm L2 8u C1", "OpenCV norm", norm<Vemi8u, vemiNorm_L2_8u_C1R, l2>},
          {"Norm L2 16s C1", "OpenCV norm", norm<Vemi16s, vemiNorm_L2_16s_C1R, l2>},
          {"Norm L2 32f C1", "OpenCV norm", norm<Vemi32f, vemiNorm_L2_32f_C1R, l2, vemiHintFast>},
          {"NormDiff Inf 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormDiff_Inf_8u_C1R, inf>},
          {"NormDiff Inf 16s C1", "OpenCV norm", normOfTwo<Vemi16s, vemiNormDiff_Inf_16s_C1R, inf>},
          {"NormDiff Inf 32f C1", "OpenCV norm", normOfTwo<Vemi32f, vemiNormDiff_Inf_32f_C1R, inf>},
          {"NormDiff L1 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormDiff_L1_8u_C1R, l1>},
          {"NormDiff L1 16s C1", "OpenCV norm", normOfTwo<Vemi16s, vemiNormDiff_L1_16s_C1R, l1>},
          {"NormDiff L1 32f C1", "OpenCV norm", normOfTwo<Vemi32f, vemiNormDiff_L1_32f_C1R, l1, vemiHintFast>},
          {"NormDiff L2 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormDiff_L2_8u_C1R, l2>},
          {"NormDiff L2 16s C1", "OpenCV norm", normOfTwo<Vemi16s, vemiNormDiff_L2_16s_C1R, l2>},
          {"NormDiff L2 32f C1", "OpenCV norm", normOfTwo<Vemi32f, vemiNormDiff_L2_32f_C1R, l2, vemiHintFast>},
          {"NormRel Inf 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormRel_Inf_8u_C1R, inf | relative>},
          {"NormRel L1 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormRel_L1_8u_C1R, l1 | relative>},
          {"NormRel L2 8u C1", "OpenCV norm", normOfTwo<Vemi8u, vemiNormRel_L2_8u_C1R, l2 | relative>},
          {"NormRel L2 32f C1", "OpenCV norm", normOfTwo<Vemi32f, vemiNormRel_L2_32f_C1R, l2 | relative, vemiHintFast>},
#endif
      }};
}

// The accurate way adds in one order alone, and several channels are kept apart: the peer does less in these rows.
Family hardReductionsFamily() {
#ifdef VEMI_BENCH_OPENCV
  constexpr int inf = cv::NORM_INF, l1 = cv::NORM_L1, l2 = cv::NORM_L2;
#endif
  return {"reductions against a lighter task",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Sum 32f C1 accurate", "OpenCV sum", sum<Vemi32f, 1, vemiSum_32f_C1R, vemiHintAccurate>},
              {"Sum 32f C3 accurate", "OpenCV sum", sum<Vemi32f, 3, vemiSum_32f_C3R, vemiHintAccurate>},
              {"Sum 32f C4 accurate", "OpenCV sum", sum<Vemi32f, 4, vemiSum_32f_C4R, vemiHintAccurate>},
              {"Norm L2 32f C1 accurate", "OpenCV norm", norm<Vemi32f, vemiNorm_L2_32f_C1R, l2, vemiHintAccurate>},
              {"Norm Inf 8u C3", "OpenCV norm of all", channelNorms<Vemi8u, 3, vemiNorm_Inf_8u_C3R, inf>},
              {"Norm L1 8u C3", "OpenCV norm of all", channelNorms<Vemi8u, 3, vemiNorm_L1_8u_C3R, l1>},
              {"Norm L2 8u C3", "OpenCV norm of all", channelNorms<Vemi8u, 3, vemiNorm_L2_8u_C3R, l2>},
              {"Norm L2 8u C4", "OpenCV norm of all", channelNorms<Vemi8u, 4, vemiNorm_L2_8u_C4R, l2>},
              {"Norm L1 16s C3", "OpenCV norm of all", channelNorms<Vemi16s, 3, vemiNorm_L1_16s_C3R, l1>},
              {"Norm L2 16s C3", "OpenCV norm of all", channelNorms<Vemi16s, 3, vemiNorm_L2_16s_C3R, l2>},
#endif
          },
          Against::ourselves};
}

}  // namespace bench
