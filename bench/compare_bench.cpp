// Comparisons. For several channels the peer has no single call but the one that tests two bounds at once.

#include <vector>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV
constexpr int opencvOf(vemiCmpOp cmpOp) {
  constexpr int table[] = {cv::CMP_LT, cv::CMP_LE, cv::CMP_EQ, cv::CMP_GE, cv::CMP_GT};
  return table[cmpOp];
}

/// The peer's way to the conjunction: a map for each channel, in planes, and their bits.
void compareAll(const cv::Mat& a, const cv::Mat& b, int cmpOp, cv::Mat& maps, std::vector<cv::Mat>& planes,
                cv::Mat& all) {
  if (a.channels() == 1) return cv::compare(a, b, all, cmpOp);
  cv::compare(a, b, maps, cmpOp);
  cv::split(maps, planes);
  cv::bitwise_and(planes[0], planes[1], all);
  for (size_t n = 2; n < planes.size(); ++n) cv::bitwise_and(all, planes[n], all);
}

template <class T, int channels, vemiCmpOp cmpOp, auto compare>
Contest againstCompare(VemiSize size) {
  const Image<T> a = randomImage<T>(size, channels), b = randomImage<T>(size, channels);
  for (size_t n = 0; n < b.elements(); n += 3) b.data()[n] = static_cast<T>(b.data()[n] / 2);
  const Image<Vemi8u> dst = blankImage<Vemi8u>(size, 1);
  return {[=] { return compare(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size, cmpOp); },
          [from1 = mat(a), from2 = mat(b), to = mat(dst), maps = cv::Mat(), planes = std::vector<cv::Mat>()]() mutable {
            compareAll(from1, from2, opencvOf(cmpOp), maps, planes, to);
          },
          {dst.bytes()}};
}

template <class T, vemiCmpOp cmpOp, auto compare>
Contest constantAgainstCompare(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  const Image<Vemi8u> dst = blankImage<Vemi8u>(size, 1);
  return {[=] { return compare(src.data(), src.step, T{99}, dst.data(), dst.step, size, cmpOp); },
          [=, from = mat(src), to = mat(dst)]() mutable { cv::compare(from, 99, to, opencvOf(cmpOp)); },
          {dst.bytes()}};
}

/// At least the constants, which the peer says by an upper bound that all values meet.
template <class T, int channels, auto compare>
Contest constantAgainstRange(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels);
  const Image<Vemi8u> dst = blankImage<Vemi8u>(size, 1);
  const auto ours = [=] {
    return compare(src.data(), src.step, constants<T>, dst.data(), dst.step, size, vemiCmpGreaterEq);
  };
  const auto peers = [=, from = mat(src), to = mat(dst)]() mutable {
    cv::inRange(from, scalarConstants, cv::Scalar::all(65535), to);
  };
  return {ours, peers, {dst.bytes()}};
}

Contest againstDifference(VemiSize size) {
  const Image<Vemi32f> a = randomImage<Vemi32f>(size, 1), b = randomImage<Vemi32f>(size, 1);
  for (size_t n = 0; n < b.elements(); ++n) b.data()[n] += static_cast<Vemi32f>(n % 16);
  const Image<Vemi8u> dst = blankImage<Vemi8u>(size, 1);
  return {
      [=] { return vemiCompareEqualEps_32f_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size, 7.0f); },
      [from1 = mat(a), from2 = mat(b), to = mat(dst), difference = cv::Mat()]() mutable {
        cv::absdiff(from1, from2, difference);
        cv::compare(difference, 7, to, cv::CMP_LE);
      },
      {dst.bytes()}};
}
#endif

}  // namespace

Family compareFamily() {
  return {
      "compare",
      {
#ifdef VEMI_BENCH_OPENCV
          {"Compare 8u C1 less", "OpenCV compare", againstCompare<Vemi8u, 1, vemiCmpLess, vemiCompare_8u_C1R>},
          {"Compare 8u C1 at least", "OpenCV compare", againstCompare<Vemi8u, 1, vemiCmpGreaterEq, vemiCompare_8u_C1R>},
          {"Compare 8u C1 equal", "OpenCV compare", againstCompare<Vemi8u, 1, vemiCmpEq, vemiCompare_8u_C1R>},
          {"Compare 16s C1 less", "OpenCV compare", againstCompare<Vemi16s, 1, vemiCmpLess, vemiCompare_16s_C1R>},
          {"Compare 16s C1 at most", "OpenCV compare", againstCompare<Vemi16s, 1, vemiCmpLessEq, vemiCompare_16s_C1R>},
          {"Compare 32f C1 less", "OpenCV compare", againstCompare<Vemi32f, 1, vemiCmpLess, vemiCompare_32f_C1R>},
          {"Compare 8u C3 at most", "compare, split, and",
           againstCompare<Vemi8u, 3, vemiCmpLessEq, vemiCompare_8u_C3R>},
          {"Compare 8u C4 at most", "compare, split, and",
           againstCompare<Vemi8u, 4, vemiCmpLessEq, vemiCompare_8u_C4R>},
          {"Compare 16s C3 less", "compare, split, and", againstCompare<Vemi16s, 3, vemiCmpLess, vemiCompare_16s_C3R>},
          {"Compare 32f C3 less", "compare, split, and", againstCompare<Vemi32f, 3, vemiCmpLess, vemiCompare_32f_C3R>},
          {"CompareC 8u C1 less", "OpenCV compare", constantAgainstCompare<Vemi8u, vemiCmpLess, vemiCompareC_8u_C1R>},
          {"CompareC 16s C1 greater", "OpenCV compare",
           constantAgainstCompare<Vemi16s, vemiCmpGreater, vemiCompareC_16s_C1R>},
          {"CompareC 32f C1 at most", "OpenCV compare",
           constantAgainstCompare<Vemi32f, vemiCmpLessEq, vemiCompareC_32f_C1R>},
          {"CompareC 8u C3 at least", "OpenCV inRange", constantAgainstRange<Vemi8u, 3, vemiCompareC_8u_C3R>},
          {"CompareC 8u C4 at least", "OpenCV inRange", constantAgainstRange<Vemi8u, 4, vemiCompareC_8u_C4R>},
          {"CompareC 16s C3 at least", "OpenCV inRange", constantAgainstRange<Vemi16s, 3, vemiCompareC_16s_C3R>},
          {"CompareC 32f C4 at least", "OpenCV inRange", constantAgainstRange<Vemi32f, 4, vemiCompareC_32f_C4R>},
          {"CompareEqualEps 32f C1", "absdiff, compare", againstDifference},
#endif
      }};
}

}  // namespace bench
