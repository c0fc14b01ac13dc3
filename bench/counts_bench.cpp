// Moments and histograms.

#include <algorithm>
#include <cmath>
#include <vector>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

// ---- Moments ----

template <class T>
using Pass = VemiStatus(const T*, int, VemiSize, VemiMomentState*);

// The sums up to order 2, to single precision: large ones are rounded differently, and those of order 3 leave 64 bits.
struct Sums {
  float sum[6];

  void take(const cv::Moments& m) {
    const double sums[6] = {m.m00, m.m10, m.m01, m.m20, m.m11, m.m02};
    std::transform(sums, sums + 6, sum, [](double s) { return static_cast<float>(s); });
  }
  template <class Sum>
  void take(const VemiMomentState* state) {
    constexpr int orders[6][2] = {{0, 0}, {1, 0}, {0, 1}, {2, 0}, {1, 1}, {0, 2}};
    for (int i = 0; i < 6; ++i) {
      Sum s;
      const int m = orders[i][0], n = orders[i][1];
      if constexpr (std::is_same_v<Sum, Vemi64f>) vemiGetSpatialMoment_64f(state, m, n, 0, 0, 0, &s);
      if constexpr (std::is_same_v<Sum, Vemi64s>) vemiGetSpatialMoment_64s(state, m, n, 0, 0, 0, &s, 0);
      sum[i] = static_cast<float>(s);
    }
  }
};

template <class Sum>
std::shared_ptr<VemiMomentState> momentState(vemiHint hint) {
  constexpr bool isDouble = std::is_same_v<Sum, Vemi64f>;
  VemiMomentState* state = nullptr;
  (isDouble ? vemiMomentInitAlloc_64f : vemiMomentInitAlloc_64s)(&state, hint);
  return {state, isDouble ? vemiMomentFree_64f : vemiMomentFree_64s};
}

template <class T, class Sum, Pass<T>* function, vemiHint hint = vemiHintFast>
Contest moments(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1);
  const auto sums = std::make_shared<Sums>();
  const auto ours = [=, state = momentState<Sum>(hint)] {
    const VemiStatus status = function(src.data(), src.step, size, state.get());
    sums->template take<Sum>(state.get());
    return status;
  };
  return {ours, [=, image = mat(src)] { sums->take(cv::moments(image)); }, {{sums.get(), sizeof *sums}}};
}

// ---- Histograms ----

enum class Levels { even, uneven };
enum class Picture { noise, runs };

VemiStatus count(const Image<Vemi8u>& src, Vemi32s* const* hist, const std::vector<Vemi32s>& levels) {
  const Vemi32s* const pLevels[3] = {levels.data(), levels.data(), levels.data()};
  const int nLevels = static_cast<int>(levels.size()), each[3] = {nLevels, nLevels, nLevels};
  return src.channels == 1 ? vemiHistogramRange_8u_C1R(src.data(), src.step, src.size, hist[0], levels.data(), nLevels)
                           : vemiHistogramRange_8u_C3R(src.data(), src.step, src.size, hist, pLevels, each);
}
VemiStatus count(const Image<Vemi16s>& src, Vemi32s* const* hist, const std::vector<Vemi32s>& levels) {
  return vemiHistogramRange_16s_C1R(src.data(), src.step, src.size, hist[0], levels.data(),
                                    static_cast<int>(levels.size()));
}
VemiStatus count(const Image<Vemi32f>& src, Vemi32s* const* hist, const std::vector<Vemi32f>& levels) {
  return vemiHistogramRange_32f_C1R(src.data(), src.step, src.size, hist[0], levels.data(),
                                    static_cast<int>(levels.size()));
}

// Levels from 0 on. The peer has no 16s, but 16u: with pixels that are not negative the bytes are the same.
template <class T, int channels, int bins, Levels kind, Picture picture = Picture::noise>
Contest histogram(VemiSize size) {
  const Image<T> src = randomImage<T>(size, channels);
  for (size_t i = 0; i < src.elements(); ++i) {
    T& value = src.data()[i];
    if (picture == Picture::runs) value = static_cast<T>(i / channels / 64 % 250);
    if constexpr (std::is_same_v<T, Vemi16s>) value &= 0x7fff;
  }
  std::vector<float> peersLevels;
  for (int k = 0; k <= bins; ++k) {
    const float share = static_cast<float>(k) / bins, end = sizeof(T) == 1 ? 256 : sizeof(T) == 2 ? 32768 : 65536;
    peersLevels.push_back(std::floor((kind == Levels::even ? share : share * share) * end));
  }
  using Level = std::conditional_t<std::is_same_v<T, Vemi32f>, Vemi32f, Vemi32s>;
  const std::vector<Level> levels(peersLevels.begin(), peersLevels.end());
  const auto counts = std::make_shared<std::vector<float>>(channels * bins);
  const auto ours = [=] {
    Vemi32s own[3][bins], *const hist[3] = {own[0], own[1], own[2]};
    const VemiStatus status = count(src, hist, levels);
    std::copy(own[0], own[0] + channels * bins, counts->begin());
    return status;
  };
  const auto peers = [=] {
    const int type = std::is_same_v<T, Vemi16s> ? CV_16UC1 : mat(src).type();
    const cv::Mat image(size.height, size.width, type, src.data());
    const float ends[] = {peersLevels.front(), peersLevels.back()};
    const float* ranges[] = {kind == Levels::even ? ends : peersLevels.data()};
    for (int channel = 0; channel < channels; ++channel) {
      cv::Mat result(bins, 1, CV_32F, counts->data() + channel * bins);
      const int histSize = bins;
      cv::calcHist(&image, 1, &channel, cv::Mat(), result, 1, &histSize, ranges, kind == Levels::even);
    }
  };
  return {ours, peers, {{counts->data(), counts->size() * sizeof(float)}}};
}
#endif

}  // namespace

Family countsFamily() {
  return {"moments and histograms",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Moments64f 8u C1", "OpenCV moments", moments<Vemi8u, Vemi64f, vemiMoments64f_8u_C1R>},
              {"Moments64s 8u C1", "OpenCV moments", moments<Vemi8u, Vemi64s, vemiMoments64s_8u_C1R>},
              {"Moments64f 32f C1", "OpenCV moments", moments<Vemi32f, Vemi64f, vemiMoments64f_32f_C1R>},
              {"Moments64f 32f C1 accurate", "OpenCV moments",
               moments<Vemi32f, Vemi64f, vemiMoments64f_32f_C1R, vemiHintAccurate>},
              {"Histogram 8u C1, 256 bins", "OpenCV calcHist", histogram<Vemi8u, 1, 256, Levels::even>},
              {"Histogram 8u C1, 256 bins, runs", "OpenCV calcHist",
               histogram<Vemi8u, 1, 256, Levels::even, Picture::runs>},
              {"Histogram 8u C1, 9 uneven bins", "OpenCV calcHist", histogram<Vemi8u, 1, 9, Levels::uneven>},
              {"Histogram 8u C3, 256 bins", "OpenCV calcHist", histogram<Vemi8u, 3, 256, Levels::even>},
              {"Histogram 16s C1, 256 bins", "OpenCV calcHist", histogram<Vemi16s, 1, 256, Levels::even>},
              {"Histogram 16s C1, 256 bins, runs", "OpenCV calcHist",
               histogram<Vemi16s, 1, 256, Levels::even, Picture::runs>},
              {"Histogram 16s C1, 4 uneven bins", "OpenCV calcHist", histogram<Vemi16s, 1, 4, Levels::uneven>},
              {"Histogram 32f C1, 8 uneven bins", "OpenCV calcHist", histogram<Vemi32f, 1, 8, Levels::uneven>},
              {"Histogram 32f C1, 64 uneven bins", "OpenCV calcHist", histogram<Vemi32f, 1, 64, Levels::uneven>},
              {"Histogram 32f C1, 256 uneven bins", "OpenCV calcHist", histogram<Vemi32f, 1, 256, Levels::uneven>},
              {"Histogram 32f C1, 256 bins", "OpenCV calcHist", histogram<Vemi32f, 1, 256, Levels::even>},
              {"Histogram 32f C1, 256 bins, runs", "OpenCV calcHist",
               histogram<Vemi32f, 1, 256, Levels::even, Picture::runs>},
#endif
          }};
}

}  // namespace bench
