// Filters by a kernel of the user's, and Wiener's filter. Float sums are compared where they are exact: the peer adds
// in another order, with products that are not rounded. Its large kernels of floats go through Fourier transforms.

#include <type_traits>
#include <vector>

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV

enum Results { compared, differing };

// Integer taps in pseudorandom order, up to `most` in size, and their opposites' sum in the middle: a bright image is
// not white alone. Both sides know them: the peer from the last to the first.
template <class K>
std::vector<K> tapsOf(VemiSize size, int most) {
  std::vector<K> taps;
  uint32_t state = 7;
  K sum = 0;
  for (int i = 0; i < size.width * size.height; ++i) {
    state = state * 1664525 + 1013904223;
    taps.push_back(static_cast<K>(static_cast<int>(state >> 16) % (2 * most + 1) - most));
    sum += taps.back();
  }
  taps[taps.size() / 2] += 1 - sum;
  return taps;
}

template <class K>
cv::Mat1f turned(const std::vector<K>& taps, VemiSize size) {
  cv::Mat1f kernel(size.height, size.width);
  for (size_t i = 0; i < taps.size(); ++i) {
    kernel(static_cast<int>(i) / size.width, static_cast<int>(i) % size.width) =
        static_cast<float>(taps[taps.size() - 1 - i]);
  }
  return kernel;
}

// Both sides read the same pixels around the region. filter(src, srcStep, dst, dstStep, size, taps).
template <class T, class K, class Filter>
Contest contest(VemiSize size, int channels, VemiSize kernel, int most, Results results, const Filter& filter) {
  const VemiPoint reach = {kernel.width / 2, kernel.height / 2};
  const Image<T> src = randomImage<T>({size.width + kernel.width - 1, size.height + kernel.height - 1}, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const T* const inner = src.data() + (src.size.width * reach.y + reach.x) * channels;
  const std::vector<K> taps = tapsOf<K>(kernel, most);
  const auto ours = [=] { return filter(inner, src.step, dst.data(), dst.step, size, taps.data()); };
  const cv::Rect region(reach.x, reach.y, size.width, size.height);
  const auto peers = [from = mat(src)(region), to = mat(dst), src, turnedTaps = turned(taps, kernel)] {
    cv::filter2D(from, to, to.depth(), turnedTaps, {-1, -1}, 0, cv::BORDER_REPLICATE);
  };
  if (results == differing) return {ours, peers, {}};
  return {ours, peers, {dst.bytes()}};
}

template <class T, class K, class... Divisor>
using Linear = VemiStatus(const T*, int, T*, int, VemiSize, const K*, VemiSize, VemiPoint, Divisor...);
template <class T, class K, class... Divisor>
using Line = VemiStatus(const T*, int, T*, int, VemiSize, const K*, int, int, Divisor...);

template <int channels, Linear<Vemi8u, Vemi32s, int>* filter, int side, int most>
Contest bytes(VemiSize size) {
  const Results results = most < 1000 ? compared : differing;
  return contest<Vemi8u, Vemi32s>(size, channels, {side, side}, most, results, [](auto... a) {
    return filter(a..., {side, side}, {side / 2, side / 2}, 1);
  });
}

template <class T, int channels, Linear<T, Vemi32f>* filter, int side>
Contest byFloats(VemiSize size) {
  constexpr Results results = std::is_same_v<T, Vemi32f> ? differing : compared;
  return contest<T, Vemi32f>(size, channels, {side, side}, 9, results, [](auto... a) {
    return filter(a..., {side, side}, {side / 2, side / 2});
  });
}

template <class T, class K, int channels, auto* filter, int width, int height, int most = 9>
Contest line(VemiSize size) {
  constexpr Results results = std::is_same_v<T, Vemi32f> ? differing : compared;
  return contest<T, K>(size, channels, {width, height}, most, results, [](auto... a) {
    if constexpr (std::is_same_v<K, Vemi32s>) {
      return filter(a..., width * height, width * height / 2, 1);
    } else {
      return filter(a..., width * height, width * height / 2);
    }
  });
}

// The same steps on whole pictures of floats.
template <class T, int channels, auto* filter>
Contest wiener(VemiSize size) {
  constexpr int side = 5;
  const Image<T> src = randomImage<T>({size.width + side - 1, size.height + side - 1}, channels);
  const Image<T> dst = blankImage<T>(size, channels);
  const T* const inner = src.data() + (src.size.width * 2 + 2) * channels;
  int bytes = 0;
  vemiFilterWienerGetBufferSize(size, {side, side}, channels, &bytes);
  const auto ours = [=, buffer = std::vector<Vemi8u>(static_cast<size_t>(bytes))]() mutable {
    Vemi32f noise[4] = {0.05f, 0.05f, 0.05f, 0.05f};
    return filter(inner, src.step, dst.data(), dst.step, size, {side, side}, {2, 2}, noise, buffer.data());
  };
  const auto peers = [from = mat(src)(cv::Rect(2, 2, size.width, size.height)), to = mat(dst), src, mean = cv::Mat(),
                      variance = cv::Mat(), gain = cv::Mat(), floats = cv::Mat()]() mutable {
    const double power = 0.05 * (std::is_same_v<T, Vemi8u> ? 65025 : 1);
    cv::boxFilter(from, mean, CV_32F, {side, side}, {-1, -1}, true, cv::BORDER_REPLICATE);
    cv::sqrBoxFilter(from, variance, CV_32F, {side, side}, {-1, -1}, true, cv::BORDER_REPLICATE);
    cv::multiply(mean, mean, gain);
    cv::subtract(variance, gain, variance);
    cv::max(variance, power, variance);
    cv::subtract(variance, cv::Scalar::all(power), gain);
    cv::divide(gain, variance, gain);
    cv::subtract(from, mean, floats, cv::noArray(), CV_32F);
    cv::multiply(floats, gain, floats);
    cv::add(floats, mean, to, cv::noArray(), to.depth());
  };
  return {ours, peers, {}};
}

std::vector<Row> rows() {
  using U = Vemi8u;
  using S = Vemi16s;
  using F = Vemi32f;
  using K = Vemi32s;
  const std::string filter2D = "OpenCV filter2D", steps = "OpenCV in steps";
  return {
      {"Filter 8u C1 3x3", filter2D, bytes<1, vemiFilter_8u_C1R, 3, 9>},
      {"Filter 8u C3 3x3", filter2D, bytes<3, vemiFilter_8u_C3R, 3, 9>},
      {"Filter 8u C1 5x5", filter2D, bytes<1, vemiFilter_8u_C1R, 5, 4>},
      {"Filter 8u C1 5x5 large", filter2D, bytes<1, vemiFilter_8u_C1R, 5, 99>},
      {"Filter 8u C4 5x5 large", filter2D, bytes<4, vemiFilter_8u_C4R, 5, 99>},
      {"Filter 8u C1 9x9", filter2D, bytes<1, vemiFilter_8u_C1R, 9, 9>},
      {"Filter 8u C1 5x5 huge", filter2D, bytes<1, vemiFilter_8u_C1R, 5, 99999>},
      {"Filter32f 8u C1 5x5", filter2D, byFloats<U, 1, vemiFilter32f_8u_C1R, 5>},
      {"Filter32f 8u C3 3x3", filter2D, byFloats<U, 3, vemiFilter32f_8u_C3R, 3>},
      {"Filter32f 16s C1 5x5", filter2D, byFloats<S, 1, vemiFilter32f_16s_C1R, 5>},
      {"Filter32f 16s C3 3x3", filter2D, byFloats<S, 3, vemiFilter32f_16s_C3R, 3>},
      {"Filter 32f C1 3x3", filter2D, byFloats<F, 1, vemiFilter_32f_C1R, 3>},
      {"Filter 32f C1 5x5", filter2D, byFloats<F, 1, vemiFilter_32f_C1R, 5>},
      {"Filter 32f C3 5x5", filter2D, byFloats<F, 3, vemiFilter_32f_C3R, 5>},
      {"Filter 32f C1 9x9", filter2D, byFloats<F, 1, vemiFilter_32f_C1R, 9>},
      {"Filter 32f C1 15x15", filter2D + ", FFT", byFloats<F, 1, vemiFilter_32f_C1R, 15>},
      {"FilterRow 8u C1 5", filter2D, line<U, K, 1, vemiFilterRow_8u_C1R, 5, 1>},
      {"FilterRow 8u C3 15", filter2D, line<U, K, 3, vemiFilterRow_8u_C3R, 15, 1, 99>},
      {"FilterRow 32f C1 9", filter2D, line<F, F, 1, vemiFilterRow_32f_C1R, 9, 1>},
      {"FilterRow32f 8u C1 9", filter2D, line<U, F, 1, vemiFilterRow32f_8u_C1R, 9, 1>},
      {"FilterColumn 8u C1 5", filter2D, line<U, K, 1, vemiFilterColumn_8u_C1R, 1, 5>},
      {"FilterColumn 8u C1 15", filter2D, line<U, K, 1, vemiFilterColumn_8u_C1R, 1, 15, 99>},
      {"FilterColumn 32f C1 9", filter2D, line<F, F, 1, vemiFilterColumn_32f_C1R, 1, 9>},
      {"FilterColumn32f 16s C1 9", filter2D, line<S, F, 1, vemiFilterColumn32f_16s_C1R, 1, 9>},
      {"FilterWiener 8u C1 5x5", steps, wiener<U, 1, vemiFilterWiener_8u_C1R>},
      {"FilterWiener 8u C3 5x5", steps, wiener<U, 3, vemiFilterWiener_8u_C3R>},
      {"FilterWiener 32f C1 5x5", steps, wiener<F, 1, vemiFilterWiener_32f_C1R>},
  };
}

#else
std::vector<Row> rows() { return {}; }
#endif

}  // namespace

Family linearFilterFamily() { return {"linear filters", rows()}; }

}  // namespace bench
