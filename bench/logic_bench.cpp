// Bits of two images, of an image and a constant, and shifts.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using Logical = VemiStatus(const T*, int, const T*, int, T*, int, VemiSize);
template <class T, class Value>
using WithValue = VemiStatus(const T*, int, Value, T*, int, VemiSize);

#ifdef VEMI_BENCH_OPENCV
using OpencvLogical = void(cv::InputArray, cv::InputArray, cv::OutputArray, cv::InputArray);

template <class T, int channels, Logical<T>* logical, OpencvLogical* peer>
Contest againstOpencv(VemiSize size) {
  const Image<T> a = randomImage<T>(size, channels), b = randomImage<T>(size, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const auto peers = [=, from1 = mat(a), from2 = mat(b), to = mat(dst)]() mutable {
    peer(from1, from2, to, cv::noArray());
  };
  return {
      [=] { return logical(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size); }, peers, {dst.bytes()}};
}

template <class T, int channels, auto logical, OpencvLogical* peer>
Contest constantAgainstOpencv(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels), dst = blankImage<T>(size, channels);
  const auto ours = [=] {
    return logical(src.data(), src.step, argument<channels>(constants<T>), dst.data(), dst.step, size);
  };
  const auto peers = [=, from = mat(src), to = mat(dst)]() mutable { peer(from, scalarConstants, to, cv::noArray()); };
  return {ours, peers, {dst.bytes()}};
}

template <int channels, VemiStatus (*invert)(const Vemi8u*, int, Vemi8u*, int, VemiSize)>
Contest inversionAgainstOpencv(VemiSize size) {
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, channels), dst = blankImage<Vemi8u>(size, channels);
  const auto peers = [from = mat(src), to = mat(dst)]() mutable { cv::bitwise_not(from, to); };
  return {[=] { return invert(src.data(), src.step, dst.data(), dst.step, size); }, peers, {dst.bytes()}};
}
#endif

template <class T, WithValue<T, Vemi32u>* shift, Vemi32u count>
Contest againstCopy(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1), dst = blankImage<T>(size, 1);
  return {[=] { return shift(src.data(), src.step, count, dst.data(), dst.step, size); },
          [=] { shift(src.data(), src.step, 0, dst.data(), dst.step, size); },
          {}};
}

/// Channels with counts of their own against one count for all.
template <class T, WithValue<T, const Vemi32u*>* shift>
Contest againstAlike(VemiSize size) {
  static constexpr Vemi32u each[3] = {1, 3, 6}, alike[3] = {3, 3, 3};
  const Image<T> src = randomImage<T>(size, 3), dst = blankImage<T>(size, 3);
  return {[=] { return shift(src.data(), src.step, each, dst.data(), dst.step, size); },
          [=] { shift(src.data(), src.step, alike, dst.data(), dst.step, size); },
          {}};
}

}  // namespace

Family logicalFamily() {
  return {
      "logical",
      {
#ifdef VEMI_BENCH_OPENCV
          {"And 8u C1", "OpenCV bitwise_and", againstOpencv<Vemi8u, 1, vemiAnd_8u_C1R, cv::bitwise_and>},
          {"Or 8u C3", "OpenCV bitwise_or", againstOpencv<Vemi8u, 3, vemiOr_8u_C3R, cv::bitwise_or>},
          {"Xor 8u C4", "OpenCV bitwise_xor", againstOpencv<Vemi8u, 4, vemiXor_8u_C4R, cv::bitwise_xor>},
          {"And 16u C1", "OpenCV bitwise_and", againstOpencv<Vemi16u, 1, vemiAnd_16u_C1R, cv::bitwise_and>},
          {"Xor 32s C1", "OpenCV bitwise_xor", againstOpencv<Vemi32s, 1, vemiXor_32s_C1R, cv::bitwise_xor>},
          {"AndC 8u C1", "OpenCV bitwise_and", constantAgainstOpencv<Vemi8u, 1, vemiAndC_8u_C1R, cv::bitwise_and>},
          {"OrC 8u C3", "OpenCV bitwise_or", constantAgainstOpencv<Vemi8u, 3, vemiOrC_8u_C3R, cv::bitwise_or>},
          {"XorC 16u C1", "OpenCV bitwise_xor", constantAgainstOpencv<Vemi16u, 1, vemiXorC_16u_C1R, cv::bitwise_xor>},
          {"AndC 32s C3", "OpenCV bitwise_and", constantAgainstOpencv<Vemi32s, 3, vemiAndC_32s_C3R, cv::bitwise_and>},
          {"Not 8u C1", "OpenCV bitwise_not", inversionAgainstOpencv<1, vemiNot_8u_C1R>},
          {"Not 8u C3", "OpenCV bitwise_not", inversionAgainstOpencv<3, vemiNot_8u_C3R>},
#endif
      }};
}

Family shiftFamily() {
  return {"cost of shifting",
          {
              {"LShiftC 8u C1 by 3", "count 0: a copy", againstCopy<Vemi8u, vemiLShiftC_8u_C1R, 3>},
              {"RShiftC 8u C1 by 3", "count 0: a copy", againstCopy<Vemi8u, vemiRShiftC_8u_C1R, 3>},
              {"RShiftC 8s C1 by 3", "count 0: a copy", againstCopy<Vemi8s, vemiRShiftC_8s_C1R, 3>},
              {"RShiftC 16u C1 by 3", "count 0: a copy", againstCopy<Vemi16u, vemiRShiftC_16u_C1R, 3>},
              {"RShiftC 32s C1 by 3", "count 0: a copy", againstCopy<Vemi32s, vemiRShiftC_32s_C1R, 3>},
              {"LShiftC 8u C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi8u, vemiLShiftC_8u_C3R>},
              {"RShiftC 8u C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi8u, vemiRShiftC_8u_C3R>},
              {"RShiftC 8s C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi8s, vemiRShiftC_8s_C3R>},
              {"LShiftC 16u C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi16u, vemiLShiftC_16u_C3R>},
              {"RShiftC 16u C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi16u, vemiRShiftC_16u_C3R>},
              {"RShiftC 16s C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi16s, vemiRShiftC_16s_C3R>},
              {"RShiftC 32s C3 by 1, 3, 6", "by 3, 3, 3", againstAlike<Vemi32s, vemiRShiftC_32s_C3R>},
          },
          Against::ourselves};
}

}  // namespace bench
