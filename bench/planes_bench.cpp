// Interleaved channels into planes and back.

#include <array>

#include "peers.h"

namespace bench {
namespace {

template <class T, size_t channels>
using Split = VemiStatus(const T*, int, T* const[channels], int, VemiSize);
template <class T, size_t channels>
using Merge = VemiStatus(const T* const[channels], int, T*, int, VemiSize);

template <class T, size_t channels>
using Planes = std::array<Image<T>, channels>;

template <class T, size_t channels>
struct Work {
  Image<T> pixels;
  Planes<T, channels> planes;
};

template <class T, size_t channels>
Work<T, channels> images(VemiSize size) {
  Work<T, channels> work{randomImage<T>(size, channels), {}};
  for (Image<T>& plane : work.planes) plane = randomImage<T>(size, 1);
  return work;
}

template <class T, size_t channels, Split<T, channels>* split>
Contest splitContest(const Work<T, channels>& work, std::function<void()> peers) {
  std::array<T*, channels> to;
  std::vector<Bytes> results;
  for (size_t c = 0; c < channels; ++c) {
    to[c] = work.planes[c].data();
    results.push_back(work.planes[c].bytes());
  }
  const auto ours = [=] {
    return split(work.pixels.data(), work.pixels.step, to.data(), work.planes[0].step, work.pixels.size);
  };
  return {ours, peers, results};
}

template <class T, size_t channels, Merge<T, channels>* merge>
Contest mergeContest(const Work<T, channels>& work, std::function<void()> peers) {
  std::array<const T*, channels> from;
  for (size_t c = 0; c < channels; ++c) from[c] = work.planes[c].data();
  const auto ours = [=] {
    return merge(from.data(), work.planes[0].step, work.pixels.data(), work.pixels.step, work.pixels.size);
  };
  return {ours, peers, {work.pixels.bytes()}};
}

#ifdef VEMI_BENCH_OPENCV
template <class T, size_t channels>
std::array<cv::Mat, channels> planeMats(const Planes<T, channels>& planes) {
  std::array<cv::Mat, channels> mats;
  for (size_t c = 0; c < channels; ++c) mats[c] = mat(planes[c]);
  return mats;
}

template <class T, size_t channels, Split<T, channels>* split>
Contest splitAgainstOpencv(VemiSize size) {
  const auto work = images<T, channels>(size);
  auto peers = [from = mat(work.pixels), to = planeMats(work.planes)]() mutable { cv::split(from, to.data()); };
  return splitContest<T, channels, split>(work, peers);
}

template <class T, size_t channels, Merge<T, channels>* merge>
Contest mergeAgainstOpencv(VemiSize size) {
  const auto work = images<T, channels>(size);
  auto peers = [to = mat(work.pixels), from = planeMats(work.planes)]() mutable {
    cv::merge(from.data(), channels, to);
  };
  return mergeContest<T, channels, merge>(work, peers);
}
#endif

#ifdef VEMI_BENCH_LIBYUV
Contest split3AgainstLibyuv(VemiSize size) {
  const auto work = images<Vemi8u, 3>(size);
  const auto& [rgb, planes] = work;
  return splitContest<Vemi8u, 3, vemiCopy_8u_C3P3R>(work, [rgb = rgb, planes = planes] {
    const auto& [r, g, b] = planes;
    libyuv::SplitRGBPlane(rgb.data(), rgb.step, r.data(), r.step, g.data(), g.step, b.data(), b.step, rgb.size.width,
                          rgb.size.height);
  });
}

Contest merge3AgainstLibyuv(VemiSize size) {
  const auto work = images<Vemi8u, 3>(size);
  const auto& [rgb, planes] = work;
  return mergeContest<Vemi8u, 3, vemiCopy_8u_P3C3R>(work, [rgb = rgb, planes = planes] {
    const auto& [r, g, b] = planes;
    libyuv::MergeRGBPlane(r.data(), r.step, g.data(), g.step, b.data(), b.step, rgb.data(), rgb.step, rgb.size.width,
                          rgb.size.height);
  });
}

// libyuv names channels by their place in a word, lowest byte last: b, g, r, a in memory.
Contest split4AgainstLibyuv(VemiSize size) {
  const auto work = images<Vemi8u, 4>(size);
  const auto& [argb, planes] = work;
  return splitContest<Vemi8u, 4, vemiCopy_8u_C4P4R>(work, [argb = argb, planes = planes] {
    const auto& [b, g, r, a] = planes;
    libyuv::SplitARGBPlane(argb.data(), argb.step, r.data(), r.step, g.data(), g.step, b.data(), b.step, a.data(),
                           a.step, argb.size.width, argb.size.height);
  });
}

Contest merge4AgainstLibyuv(VemiSize size) {
  const auto work = images<Vemi8u, 4>(size);
  const auto& [argb, planes] = work;
  return mergeContest<Vemi8u, 4, vemiCopy_8u_P4C4R>(work, [argb = argb, planes = planes] {
    const auto& [b, g, r, a] = planes;
    libyuv::MergeARGBPlane(r.data(), r.step, g.data(), g.step, b.data(), b.step, a.data(), a.step, argb.data(),
                           argb.step, argb.size.width, argb.size.height);
  });
}
#endif

}  // namespace

Family planesFamily() {
  return {"planes",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Copy 8u C3P3", "OpenCV split", splitAgainstOpencv<Vemi8u, 3, vemiCopy_8u_C3P3R>},
              {"Copy 8u C4P4", "OpenCV split", splitAgainstOpencv<Vemi8u, 4, vemiCopy_8u_C4P4R>},
              {"Copy 8u P3C3", "OpenCV merge", mergeAgainstOpencv<Vemi8u, 3, vemiCopy_8u_P3C3R>},
              {"Copy 8u P4C4", "OpenCV merge", mergeAgainstOpencv<Vemi8u, 4, vemiCopy_8u_P4C4R>},
              {"Copy 16s C3P3", "OpenCV split", splitAgainstOpencv<Vemi16s, 3, vemiCopy_16s_C3P3R>},
              {"Copy 16s C4P4", "OpenCV split", splitAgainstOpencv<Vemi16s, 4, vemiCopy_16s_C4P4R>},
              {"Copy 16s P3C3", "OpenCV merge", mergeAgainstOpencv<Vemi16s, 3, vemiCopy_16s_P3C3R>},
              {"Copy 16s P4C4", "OpenCV merge", mergeAgainstOpencv<Vemi16s, 4, vemiCopy_16s_P4C4R>},
              {"Copy 32f C3P3", "OpenCV split", splitAgainstOpencv<Vemi32f, 3, vemiCopy_32f_C3P3R>},
              {"Copy 32f C4P4", "OpenCV split", splitAgainstOpencv<Vemi32f, 4, vemiCopy_32f_C4P4R>},
              {"Copy 32f P3C3", "OpenCV merge", mergeAgainstOpencv<Vemi32f, 3, vemiCopy_32f_P3C3R>},
              {"Copy 32f P4C4", "OpenCV merge", mergeAgainstOpencv<Vemi32f, 4, vemiCopy_32f_P4C4R>},
#endif
#ifdef VEMI_BENCH_LIBYUV
              {"Copy 8u C3P3", "libyuv SplitRGB", split3AgainstLibyuv},
              {"Copy 8u C4P4", "libyuv SplitARGB", split4AgainstLibyuv},
              {"Copy 8u P3C3", "libyuv MergeRGB", merge3AgainstLibyuv},
              {"Copy 8u P4C4", "libyuv MergeARGB", merge4AgainstLibyuv},
#endif
          }};
}

}  // namespace bench
