// Fewer levels: without a dither against tables and scaled conversions, which do the same; with a pattern or noise
// against a sum and a table, which bound it; error diffusion against its definition as a plain loop.

#include <vector>

#include "peers.h"

namespace bench {
namespace {

template <class S, class T>
using Reduce = VemiStatus(const S*, int, T*, int, VemiSize, int, vemiDitherType, int);

template <class S, class T>
struct Work {
  Image<S> src;
  Image<T> dst;

  Work(VemiSize size, int channels) : src(randomImage<S>(size, channels)), dst(blankImage<T>(size, channels)) {
    if constexpr (sizeof(S) == 4) {
      for (size_t i = 0; i < src.elements(); ++i) src.data()[i] /= 65536;
    }
  }
  std::function<VemiStatus()> by(Reduce<S, T>* reduce, int noise, vemiDitherType dither, int levels) const {
    return [=, *this] { return reduce(src.data(), src.step, dst.data(), dst.step, src.size, noise, dither, levels); };
  }
};

/// The weights of errors to the left and in two rows above, columns -2 to 2.
struct Weights {
  int left[2], above[5], twoAbove[5], sum;
};
constexpr Weights weights[] = {{{0, 7}, {0, 1, 5, 3, 0}, {0, 0, 0, 0, 0}, 16},
                               {{5, 7}, {3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}, 48},
                               {{4, 8}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}, 42}};

/// One channel of bytes; the weights are constants of the loop.
template <vemiDitherType dither, int levels>
void diffusePlainly(const Image<Vemi8u>& src, const Image<Vemi8u>& dst, std::vector<int>& errors) {
  constexpr Weights w = weights[dither - 1];
  constexpr int n = levels - 1, bias = 1 << 20;
  const int width = src.size.width, pitch = width + 4;
  Vemi8u value[levels];
  for (int k = 0; k < levels; ++k) value[k] = static_cast<Vemi8u>((2 * k * 255 + n) / (2 * n));
  std::fill(errors.begin(), errors.end(), 0);
  int* row[3] = {&errors[2], &errors[2 + static_cast<size_t>(pitch)], &errors[2 + 2 * static_cast<size_t>(pitch)]};
  for (int y = 0; y < src.size.height; ++y) {
    const Vemi8u* const in = src.data() + static_cast<ptrdiff_t>(y) * src.step;
    Vemi8u* const out = dst.data() + static_cast<ptrdiff_t>(y) * dst.step;
    const int *const two = row[0], *const one = row[1];
    int* const own = row[2];
    int e1 = 0, e2 = 0;
    for (int x = 0; x < width; ++x) {
      int sum = w.sum / 2 + bias * w.sum + w.left[0] * e2 + w.left[1] * e1;
      for (int i = 0; i < 5; ++i) sum += w.above[i] * one[x + i - 2] + w.twoAbove[i] * two[x + i - 2];
      const int u = 257 * n * in[x] + static_cast<int>(static_cast<unsigned>(sum) / w.sum) - bias;
      const int k = std::clamp((u + 32768 + ((u + 32768) >> 16)) >> 16, 0, n);
      e2 = e1;
      own[x] = e1 = u - 65535 * k;
      out[x] = value[k];
    }
    std::swap(row[0], row[1]);
    std::swap(row[1], row[2]);
  }
}

template <vemiDitherType dither, int levels>
Contest againstLoop(VemiSize size) {
  const Work<Vemi8u, Vemi8u> work(size, 1);
  return {work.by(vemiReduceBits_8u_C1R, 0, dither, levels),
          [=, errors = std::vector<int>(3 * static_cast<size_t>(size.width + 4))]() mutable {
            diffusePlainly<dither, levels>(work.src, work.dst, errors);
          },
          {work.dst.bytes()}};
}

/// As many errors as there are in all channels.
template <class S, class T, int channels, Reduce<S, T>* reduce, vemiDitherType dither, int noise>
Contest diffusionAgainstLoop(VemiSize size) {
  const Work<S, T> work(size, channels);
  const Work<Vemi8u, Vemi8u> theirs({size.width * channels, size.height}, 1);
  return {work.by(reduce, noise, dither, 8),
          [=, errors = std::vector<int>(3 * static_cast<size_t>(channels * size.width + 4))]() mutable {
            diffusePlainly<dither, 8>(theirs.src, theirs.dst, errors);
          },
          {}};
}

#ifdef VEMI_BENCH_OPENCV
cv::Mat tableOf(int levels) {
  cv::Mat table(1, 256, CV_8U);
  Vemi8u all[256];
  for (int i = 0; i < 256; ++i) all[i] = static_cast<Vemi8u>(i);
  vemiReduceBits_8u_C1R(all, 256, table.data, 256, {256, 1}, 0, vemiDitherNone, levels);
  return table;
}

template <int channels, Reduce<Vemi8u, Vemi8u>* reduce, int levels>
Contest againstTable(VemiSize size) {
  const Work<Vemi8u, Vemi8u> work(size, channels);
  return {
      work.by(reduce, 0, vemiDitherNone, levels),
      [=, from = mat(work.src), to = mat(work.dst), table = tableOf(levels)]() mutable { cv::LUT(from, table, to); },
      {work.dst.bytes()}};
}

/// To all levels of a type.
template <class S, class T, int channels, Reduce<S, T>* reduce>
Contest againstConversion(VemiSize size) {
  const Work<S, T> work(size, channels);
  const double factor = sizeof(S) == 4 ? 255 : 1 / 257.0;
  return {work.by(reduce, 0, vemiDitherNone, 256),
          [=, from = mat(work.src), to = mat(work.dst)]() mutable { from.convertTo(to, to.type(), factor); },
          {}};
}

/// The peer has the pattern as an image, or fills one with noise; what is no byte it makes one first.
template <class S, class T, int channels, Reduce<S, T>* reduce, vemiDitherType dither, int noise>
Contest againstSumAndTable(VemiSize size) {
  const Work<S, T> work(size, channels);
  const Image<Vemi8u> bytes = blankImage<Vemi8u>(size, channels, peersAlone);
  const Image<Vemi8u> pattern = randomImage<Vemi8u>(size, channels, peersAlone);
  const double factor = sizeof(S) == 4 ? 255 : 1 / 257.0;
  const auto peers = [=, from = mat(work.src), to = mat(bytes), add = mat(pattern), table = tableOf(8),
                      owners = std::tuple(work, bytes, pattern)]() mutable {
    if (noise > 0) cv::randu(add, cv::Scalar::all(0), cv::Scalar::all(36));
    if (sizeof(S) > 1) from.convertTo(to, to.type(), factor);
    cv::add(sizeof(S) > 1 ? to : from, add, to);
    cv::LUT(to, table, to);
  };
  return {work.by(reduce, noise, dither, 8), peers, {}};
}
#endif

}  // namespace

Family reduceBitsFamily() {
  return {
      "fewer levels",
      {
#ifdef VEMI_BENCH_OPENCV
          {"None 8u C1, 8", "OpenCV LUT", againstTable<1, vemiReduceBits_8u_C1R, 8>},
          {"None 8u C1, 200", "OpenCV LUT", againstTable<1, vemiReduceBits_8u_C1R, 200>},
          {"None 8u C3, 8", "OpenCV LUT", againstTable<3, vemiReduceBits_8u_C3R, 8>},
          {"None 16u8u C1, 256", "OpenCV convertTo", againstConversion<Vemi16u, Vemi8u, 1, vemiReduceBits_16u8u_C1R>},
          {"None 32f8u C1, 256", "OpenCV convertTo", againstConversion<Vemi32f, Vemi8u, 1, vemiReduceBits_32f8u_C1R>},
#define BOUNDED(name, S, T, channels, dither, noise, peer, function) \
  {name, peer, againstSumAndTable<S, T, channels, function, dither, noise>}
          BOUNDED("Bayer 8u C1, 8", Vemi8u, Vemi8u, 1, vemiDitherBayer, 0, "OpenCV add, LUT", vemiReduceBits_8u_C1R),
          BOUNDED("Bayer 8u C3, 8", Vemi8u, Vemi8u, 3, vemiDitherBayer, 0, "OpenCV add, LUT", vemiReduceBits_8u_C3R),
          BOUNDED("Bayer 8u AC4, 8", Vemi8u, Vemi8u, 4, vemiDitherBayer, 0, "OpenCV add, LUT", vemiReduceBits_8u_AC4R),
          BOUNDED("Bayer 16u8u C1, 8", Vemi16u, Vemi8u, 1, vemiDitherBayer, 0, "OpenCV to 8u, add, LUT",
                  vemiReduceBits_16u8u_C1R),
          BOUNDED("Bayer 32f8u C1, 8", Vemi32f, Vemi8u, 1, vemiDitherBayer, 0, "OpenCV to 8u, add, LUT",
                  vemiReduceBits_32f8u_C1R),
          BOUNDED("None 8u C1, 8, noise", Vemi8u, Vemi8u, 1, vemiDitherNone, 50, "OpenCV randu, add, LUT",
                  vemiReduceBits_8u_C1R),
          BOUNDED("None 8u C3, 8, noise", Vemi8u, Vemi8u, 3, vemiDitherNone, 50, "OpenCV randu, add, LUT",
                  vemiReduceBits_8u_C3R),
#undef BOUNDED
#endif
          {"FloydSteinberg 8u C1, 2", "plain loop", againstLoop<vemiDitherFloydSteinberg, 2>},
          {"FloydSteinberg 8u C1, 8", "plain loop", againstLoop<vemiDitherFloydSteinberg, 8>},
          {"JarvisJudiceNinke 8u C1, 8", "plain loop", againstLoop<vemiDitherJarvisJudiceNinke, 8>},
          {"Stucki 8u C1, 8", "plain loop", againstLoop<vemiDitherStucki, 8>},
          {"FloydSteinberg 8u C3, 8", "plain loop of 8u",
           diffusionAgainstLoop<Vemi8u, Vemi8u, 3, vemiReduceBits_8u_C3R, vemiDitherFloydSteinberg, 0>},
          {"FloydSteinberg 32f16u C1, 8", "plain loop of 8u",
           diffusionAgainstLoop<Vemi32f, Vemi16u, 1, vemiReduceBits_32f16u_C1R, vemiDitherFloydSteinberg, 0>},
          {"Stucki 8u C1, 8, noise", "the same without",
           diffusionAgainstLoop<Vemi8u, Vemi8u, 1, vemiReduceBits_8u_C1R, vemiDitherStucki, 50>},
      }};
}

}  // namespace bench
