// Video frames between layouts, and channels in another order.

#include <array>

#include "peers.h"

#ifdef VEMI_BENCH_LIBYUV
#include <libyuv/convert.h>
#include <libyuv/convert_from.h>
#endif

namespace bench {
namespace {

// Packed, or luma and pairs, or luma and two planes of chroma.
using Frame = std::vector<Image<Vemi8u>>;

Frame packed(VemiSize size) { return {randomImage<Vemi8u>(size, 2)}; }

template <int across, int down>
Frame pairs(VemiSize size) {
  return {randomImage<Vemi8u>(size, 1), randomImage<Vemi8u>({size.width / across, size.height / down}, 2)};
}

template <int across, int down>
Frame planes(VemiSize size) {
  const VemiSize chroma = {size.width / across, size.height / down};
  return {randomImage<Vemi8u>(size, 1), randomImage<Vemi8u>(chroma, 1), randomImage<Vemi8u>(chroma, 1)};
}

// The arrays that functions take of three planes.
struct Planes {
  std::array<Vemi8u*, 3> first;
  std::array<int, 3> step;

  explicit Planes(const Frame& frame) {
    for (size_t n = 0; n < 3; ++n) {
      first[n] = frame[n].data();
      step[n] = frame[n].step;
    }
  }
};

using P3P3 = VemiStatus(const Vemi8u* const[3], const int[3], Vemi8u* const[3], const int[3], VemiSize);
using P3P2 = VemiStatus(const Vemi8u* const[3], const int[3], Vemi8u*, int, Vemi8u*, int, VemiSize);
using P3C2 = VemiStatus(const Vemi8u* const[3], const int[3], Vemi8u*, int, VemiSize);
using P2P3 = VemiStatus(const Vemi8u*, int, const Vemi8u*, int, Vemi8u* const[3], const int[3], VemiSize);
using C2P3 = VemiStatus(const Vemi8u*, int, Vemi8u* const[3], const int[3], VemiSize);
using C2P2 = VemiStatus(const Vemi8u*, int, Vemi8u*, int, Vemi8u*, int, VemiSize);
using C2C2 = VemiStatus(const Vemi8u*, int, Vemi8u*, int, VemiSize);

VemiStatus call(P3P3* move, const Frame& src, const Frame& dst) {
  const Planes from(src), to(dst);
  return move(from.first.data(), from.step.data(), to.first.data(), to.step.data(), src[0].size);
}
VemiStatus call(P3P2* move, const Frame& src, const Frame& dst) {
  const Planes from(src);
  return move(from.first.data(), from.step.data(), dst[0].data(), dst[0].step, dst[1].data(), dst[1].step, src[0].size);
}
VemiStatus call(P3C2* move, const Frame& src, const Frame& dst) {
  const Planes from(src);
  return move(from.first.data(), from.step.data(), dst[0].data(), dst[0].step, src[0].size);
}
VemiStatus call(P2P3* move, const Frame& src, const Frame& dst) {
  const Planes to(dst);
  return move(src[0].data(), src[0].step, src[1].data(), src[1].step, to.first.data(), to.step.data(), src[0].size);
}
VemiStatus call(C2P3* move, const Frame& src, const Frame& dst) {
  const Planes to(dst);
  return move(src[0].data(), src[0].step, to.first.data(), to.step.data(), src[0].size);
}
VemiStatus call(C2P2* move, const Frame& src, const Frame& dst) {
  return move(src[0].data(), src[0].step, dst[0].data(), dst[0].step, dst[1].data(), dst[1].step, src[0].size);
}
VemiStatus call(C2C2* move, const Frame& src, const Frame& dst) {
  return move(src[0].data(), src[0].step, dst[0].data(), dst[0].step, src[0].size);
}

using PeersMove = void(const Frame& src, const Frame& dst, VemiSize size);

template <auto* move, Frame (*from)(VemiSize), Frame (*to)(VemiSize), PeersMove* peers>
Contest contest(VemiSize size) {
  const Frame src = from(size), dst = to(size);
  std::vector<Bytes> results;
  for (const Image<Vemi8u>& plane : dst) results.push_back(plane.bytes());
  return {[=] { return call(move, src, dst); }, [=] { peers(src, dst, size); }, results};
}

// Where the peer filters chroma and we do not.
template <auto* move, Frame (*from)(VemiSize), Frame (*to)(VemiSize), PeersMove* peers>
Contest otherWork(VemiSize size) {
  Contest both = contest<move, from, to, peers>(size);
  both.results.clear();
  return both;
}

#ifdef VEMI_BENCH_LIBYUV
template <auto* split>
void splitByLibyuv(const Frame& src, const Frame& dst, VemiSize size) {
  split(src[0].data(), src[0].step, dst[0].data(), dst[0].step, dst[1].data(), dst[1].step, dst[2].data(), dst[2].step,
        size.width, size.height);
}

// `u` is which of our planes has Cb.
template <auto* join, size_t u>
void joinByLibyuv(const Frame& src, const Frame& dst, VemiSize size) {
  join(src[0].data(), src[0].step, src[u].data(), src[u].step, src[3 - u].data(), src[3 - u].step, dst[0].data(),
       dst[0].step, size.width, size.height);
}

void planesToPairs(const Frame& src, const Frame& dst, VemiSize size) {
  libyuv::I420ToNV12(src[0].data(), src[0].step, src[1].data(), src[1].step, src[2].data(), src[2].step, dst[0].data(),
                     dst[0].step, dst[1].data(), dst[1].step, size.width, size.height);
}

void pairsToPlanes(const Frame& src, const Frame& dst, VemiSize size) {
  libyuv::NV12ToI420(src[0].data(), src[0].step, src[1].data(), src[1].step, dst[0].data(), dst[0].step, dst[1].data(),
                     dst[1].step, dst[2].data(), dst[2].step, size.width, size.height);
}

template <auto* move>
void betweenPlanes(const Frame& src, const Frame& dst, VemiSize size) {
  move(src[0].data(), src[0].step, src[1].data(), src[1].step, src[2].data(), src[2].step, dst[0].data(), dst[0].step,
       dst[1].data(), dst[1].step, dst[2].data(), dst[2].step, size.width, size.height);
}

// Luma is every other byte.
void splitPairs(const Frame& src, const Frame& dst, VemiSize size) {
  libyuv::SplitUVPlane(src[0].data(), src[0].step, dst[0].data(), dst[0].step, dst[1].data(), dst[1].step, size.width,
                       size.height);
}

void exchangeBytes(const Frame& src, const Frame& dst, VemiSize size) {
  libyuv::SwapUVPlane(src[0].data(), src[0].step, dst[0].data(), dst[0].step, size.width, size.height);
}
#endif

constexpr int reversed[] = {2, 1, 0};

template <class T>
using Swap = VemiStatus(const T*, int, T*, int, VemiSize, const int[3]);

template <class T, int channels>
struct SwapWork {
  Image<T> src, dst;

  explicit SwapWork(VemiSize size) : src(randomImage<T>(size, channels)), dst(randomImage<T>(size, channels)) {}

  Contest against(Swap<T>* swap, const std::function<void()>& peers) const {
    const auto ours = [=, *this] { return swap(src.data(), src.step, dst.data(), dst.step, src.size, reversed); };
    return {ours, peers, {dst.bytes()}};
  }
};

#ifdef VEMI_BENCH_OPENCV
template <class T, Swap<T>* swap>
Contest reverseAgainstOpencv(VemiSize size) {
  const SwapWork<T, 3> work(size);
  return work.against(
      swap, [from = mat(work.src), to = mat(work.dst)]() mutable { cv::cvtColor(from, to, cv::COLOR_RGB2BGR); });
}

template <class T, int channels, Swap<T>* swap>
Contest mixAgainstOpencv(VemiSize size) {
  const SwapWork<T, channels> work(size);
  return work.against(swap, [from = mat(work.src), to = mat(work.dst)]() mutable {
    constexpr int fromTo[] = {2, 0, 1, 1, 0, 2};
    cv::mixChannels(&from, 1, &to, 1, fromTo, 3);
  });
}
#endif

#ifdef VEMI_BENCH_LIBYUV
Contest reverseAgainstLibyuv(VemiSize size) {
  const SwapWork<Vemi8u, 3> work(size);
  return work.against(vemiSwapChannels_8u_C3R, [=] {
    libyuv::RAWToRGB24(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size.width, size.height);
  });
}
#endif

}  // namespace

Family videoFamily() {
  return {"video",
          {
#ifdef VEMI_BENCH_LIBYUV
              {"YCbCr422 C2 to P3", "libyuv YUY2ToI422",
               contest<vemiYCbCr422ToYCbCr422_8u_C2P3R, packed, planes<2, 1>, splitByLibyuv<libyuv::YUY2ToI422>>},
              {"CbYCr422 C2 to P3", "libyuv UYVYToI422",
               contest<vemiCbYCr422ToYCbCr422_8u_C2P3R, packed, planes<2, 1>, splitByLibyuv<libyuv::UYVYToI422>>},
              {"Join422 P3 to C2", "libyuv I422ToYUY2",
               contest<vemiJoin422_8u_P3C2R, planes<2, 1>, packed, joinByLibyuv<libyuv::I422ToYUY2, 1>>},
              {"YVToYU420 P3 to C2", "libyuv I420ToYUY2",
               contest<vemiYVToYU420_8u_P3C2R, planes<2, 2>, packed, joinByLibyuv<libyuv::I420ToYUY2, 2>>},
              {"YVToUY420 P3 to C2", "libyuv I420ToUYVY",
               contest<vemiYVToUY420_8u_P3C2R, planes<2, 2>, packed, joinByLibyuv<libyuv::I420ToUYVY, 2>>},
              {"YCbCr420 P3 to P2", "libyuv I420ToNV12",
               contest<vemiYCbCr420ToYCbCr420_8u_P3P2R, planes<2, 2>, pairs<2, 2>, planesToPairs>},
              {"YCbCr420 P2 to P3", "libyuv NV12ToI420",
               contest<vemiYCbCr420ToYCbCr420_8u_P2P3R, pairs<2, 2>, planes<2, 2>, pairsToPlanes>},
              {"YUToYU422 C2 to P2", "libyuv SplitUVPlane",
               contest<vemiYUToYU422_8u_C2P2R, packed, pairs<2, 1>, splitPairs>},
              {"YUToUY422 C2", "libyuv SwapUVPlane", contest<vemiYUToUY422_8u_C2R, packed, packed, exchangeBytes>},
              {"YCbCr422 C2 to 420 P3", "libyuv YUY2ToI420",
               otherWork<vemiYCbCr422ToYCbCr420_8u_C2P3R, packed, planes<2, 2>, splitByLibyuv<libyuv::YUY2ToI420>>},
              {"YCbCr422 P3 to 420 P3", "libyuv I422ToI420",
               otherWork<vemiYCbCr422ToYCbCr420_8u_P3R, planes<2, 1>, planes<2, 2>, betweenPlanes<libyuv::I422ToI420>>},
              {"YCbCr420 P3 to 422 P3", "libyuv I420ToI422",
               otherWork<vemiYCbCr420ToYCbCr422_8u_P3R, planes<2, 2>, planes<2, 1>, betweenPlanes<libyuv::I420ToI422>>},
              {"YCbCr420 to 422 Filter", "libyuv I420ToI422",
               otherWork<vemiYCbCr420ToYCbCr422Filter_8u_P3R, planes<2, 2>, planes<2, 1>,
                         betweenPlanes<libyuv::I420ToI422>>},
#endif
          }};
}

Family swapChannelsFamily() {
  return {"orders",
          {
#ifdef VEMI_BENCH_OPENCV
              {"SwapChannels 8u C3", "OpenCV cvtColor", reverseAgainstOpencv<Vemi8u, vemiSwapChannels_8u_C3R>},
              {"SwapChannels 16u C3", "OpenCV cvtColor", reverseAgainstOpencv<Vemi16u, vemiSwapChannels_16u_C3R>},
              {"SwapChannels 32f C3", "OpenCV cvtColor", reverseAgainstOpencv<Vemi32f, vemiSwapChannels_32f_C3R>},
              {"SwapChannels 8u AC4", "OpenCV mixChannels", mixAgainstOpencv<Vemi8u, 4, vemiSwapChannels_8u_AC4R>},
              {"SwapChannels 16u AC4", "OpenCV mixChannels", mixAgainstOpencv<Vemi16u, 4, vemiSwapChannels_16u_AC4R>},
              {"SwapChannels 32s C3", "OpenCV mixChannels", mixAgainstOpencv<Vemi32s, 3, vemiSwapChannels_32s_C3R>},
              {"SwapChannels 32f AC4", "OpenCV mixChannels", mixAgainstOpencv<Vemi32f, 4, vemiSwapChannels_32f_AC4R>},
#endif
#ifdef VEMI_BENCH_LIBYUV
              {"SwapChannels 8u C3", "libyuv RAWToRGB24", reverseAgainstLibyuv},
#endif
          }};
}

}  // namespace bench
