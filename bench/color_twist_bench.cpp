// Matrices of the user's on the channels of pixels. Our sums of integers are rounded as those of doubles are; OpenCV's
// of bytes have ten bits behind the point, those of words are single: results are not compared. Sums of halves are
// exact as floats.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using Twist = VemiStatus(const T*, int, T*, int, VemiSize, const Vemi32f[3][4]);

constexpr Vemi32f sepia[3][4] = {
    {0.393f, 0.769f, 0.189f, 0.25f}, {0.349f, 0.686f, 0.168f, -3}, {0.272f, 0.534f, 0.131f, 7.5f}};
constexpr Vemi32f halves[3][4] = {{0.5f, 0.25f, 0.25f, 0}, {0.25f, 0.5f, 0.25f, 3}, {0, 0.5f, 0.5f, -8}};

#ifdef VEMI_BENCH_OPENCV
template <class T, int channels, Twist<T>* twist, const Vemi32f (&matrix)[3][4]>
Contest againstOpencv(VemiSize size) {
  const auto src = randomImage<T>(size, channels), dst = randomImage<T>(size, channels);
  const auto ours = [=] { return twist(src.data(), src.step, dst.data(), dst.step, size, matrix); };
  const auto peers = [from = mat(src), to = mat(dst)]() mutable {
    cv::transform(from, to, cv::Mat(3, 4, CV_32F, const_cast<Vemi32f*>(&matrix[0][0])));
  };
  return {ours, peers, {}};
}
#endif

}  // namespace

Family colorTwistFamily() {
  return {"twist",
          {
#ifdef VEMI_BENCH_OPENCV
              {"ColorTwist32f 8u C3", "OpenCV transform", againstOpencv<Vemi8u, 3, vemiColorTwist32f_8u_C3R, sepia>},
              {"ColorTwist32f 8u C3 halves", "OpenCV transform",
               againstOpencv<Vemi8u, 3, vemiColorTwist32f_8u_C3R, halves>},
              {"ColorTwist32f 8s C3", "OpenCV transform", againstOpencv<Vemi8s, 3, vemiColorTwist32f_8s_C3R, sepia>},
              {"ColorTwist32f 16u C3", "OpenCV transform", againstOpencv<Vemi16u, 3, vemiColorTwist32f_16u_C3R, sepia>},
              {"ColorTwist32f 16s C3", "OpenCV transform", againstOpencv<Vemi16s, 3, vemiColorTwist32f_16s_C3R, sepia>},
              {"ColorTwist 32f C3", "OpenCV transform", againstOpencv<Vemi32f, 3, vemiColorTwist_32f_C3R, sepia>},
#endif
          }};
}

}  // namespace bench
