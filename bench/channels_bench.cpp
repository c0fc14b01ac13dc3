// Single channels taken out of a picture and put into one, and the drop of a fourth channel.

#include "peers.h"

namespace bench {
namespace {

using Copy8u = VemiStatus(const Vemi8u*, int, Vemi8u*, int, VemiSize);

struct Work {
  Image<Vemi8u> src, dst;
};

Work images(VemiSize size, int srcChannels, int dstChannels) {
  return {randomImage<Vemi8u>(size, srcChannels), blankImage<Vemi8u>(size, dstChannels)};
}

template <Copy8u* copy>
Contest contest(const Work& work, int srcChannel, int dstChannel, std::function<void()> peers) {
  const auto& [src, dst] = work;
  const auto ours = [src = src.data() + srcChannel, srcStep = src.step, dst = dst.data() + dstChannel,
                     dstStep = dst.step, size = src.size] { return copy(src, srcStep, dst, dstStep, size); };
  return {ours, peers, {dst.bytes()}};
}

#ifdef VEMI_BENCH_OPENCV
template <Copy8u* copy>
Contest extractAgainstOpencv(VemiSize size, int channels) {
  const Work work = images(size, channels, 1);
  return contest<copy>(work, 1, 0, [=] {
    cv::Mat to = mat(work.dst);
    cv::extractChannel(mat(work.src), to, 1);
  });
}

template <Copy8u* copy>
Contest insertAgainstOpencv(VemiSize size, int channels) {
  const Work work = images(size, 1, channels);
  return contest<copy>(work, 0, 1, [=] {
    cv::Mat to = mat(work.dst);
    cv::insertChannel(mat(work.src), to, 1);
  });
}

Contest dropAgainstOpencv(VemiSize size) {
  const Work work = images(size, 4, 3);
  return contest<vemiCopy_8u_AC4C3R>(work, 0, 0, [=] {
    cv::Mat to = mat(work.dst);
    cv::cvtColor(mat(work.src), to, cv::COLOR_BGRA2BGR);
  });
}
#endif

#ifdef VEMI_BENCH_LIBYUV
Contest dropAgainstLibyuv(VemiSize size) {
  const Work work = images(size, 4, 3);
  return contest<vemiCopy_8u_AC4C3R>(work, 0, 0, [=] {
    libyuv::ARGBToRGB24(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size.width, size.height);
  });
}
#endif

}  // namespace

Family channelsFamily() {
  return {"channels",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Copy 8u C3C1", "OpenCV extractChannel",
               [](VemiSize size) { return extractAgainstOpencv<vemiCopy_8u_C3C1R>(size, 3); }},
              {"Copy 8u C4C1", "OpenCV extractChannel",
               [](VemiSize size) { return extractAgainstOpencv<vemiCopy_8u_C4C1R>(size, 4); }},
              {"Copy 8u C1C3", "OpenCV insertChannel",
               [](VemiSize size) { return insertAgainstOpencv<vemiCopy_8u_C1C3R>(size, 3); }},
              {"Copy 8u C1C4", "OpenCV insertChannel",
               [](VemiSize size) { return insertAgainstOpencv<vemiCopy_8u_C1C4R>(size, 4); }},
              {"Copy 8u AC4C3", "OpenCV cvtColor", dropAgainstOpencv},
#endif
#ifdef VEMI_BENCH_LIBYUV
              {"Copy 8u AC4C3", "libyuv ARGBToRGB24", dropAgainstLibyuv},
#endif
          }};
}

}  // namespace bench
