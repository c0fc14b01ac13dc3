// Drawn patterns and windows against what bounds them (the cheapest way to write, or to multiply, as much), and noise
// against the peer's own noise, drawn and added.

#include "peers.h"

namespace bench {
namespace {

template <class T>
using Drawn = VemiStatus(T*, int, VemiSize);
template <class T>
using DrawnRamp = VemiStatus(T*, int, VemiSize, Vemi32f, Vemi32f, int);
template <class T>
using Noise = VemiStatus(T*, int, VemiSize, T, T, Vemi32u*);
template <class T>
using Window = VemiStatus(const T*, int, T*, int, VemiSize);

template <class T>
std::function<void()> memsetOf(const Image<T>& image) {
  return [=] { std::memset(image.data(), 1, image.bytes().count); };
}

template <class T, int channels, DrawnRamp<T>* draw, int axis>
Contest rampAgainstMemset(VemiSize size) {
  const Image<T> image = blankImage<T>(size, channels);
  const float slope = 255.0f / static_cast<float>(size.width);
  return {[=] { return draw(image.data(), image.step, size, 0, slope, axis); }, memsetOf(image), {}};
}

template <class T, int channels, Drawn<T>* draw>
Contest chirpAgainstMemset(VemiSize size) {
  const Image<T> image = blankImage<T>(size, channels);
  return {[=] { return draw(image.data(), image.step, size); }, memsetOf(image), {}};
}

#ifdef VEMI_BENCH_OPENCV
constexpr int low = 3, high = 43, mean = 5, stDev = 20;

enum class Shape { uniform, normal };

// The peer fills an image with noise first, and then adds it. It has integers below its upper bound.
template <class T, int channels, Noise<T>* add, Shape shape>
Contest noiseAgainstOpencv(VemiSize size) {
  const Image<T> image = randomImage<T>(size, channels, inPlace);
  const Image<T> theirNoise = blankImage<T>(size, channels, peersAlone);
  const auto ours = [=, seed = Vemi32u{1}]() mutable {
    return shape == Shape::uniform ? add(image.data(), image.step, size, low, high, &seed)
                                   : add(image.data(), image.step, size, mean, stDev, &seed);
  };
  const auto peers = [to = mat(image), noise = mat(theirNoise), owner = theirNoise.pixels]() mutable {
    if (shape == Shape::uniform) {
      cv::randu(noise, cv::Scalar::all(low), cv::Scalar::all(high + 1));
    } else {
      cv::randn(noise, cv::Scalar::all(mean), cv::Scalar::all(stDev));
    }
    cv::add(to, noise, to);
  };
  return {ours, peers, {}};
}

// A window that has been computed before.
template <class T, Window<T>* window>
Contest windowAgainstOpencv(VemiSize size) {
  const Image<T> src = randomImage<T>(size, 1), dst = blankImage<T>(size, 1);
  const Image<Vemi32f> weights = randomImage<Vemi32f>(size, 1, peersAlone);
  for (size_t i = 0; i < weights.elements(); ++i) weights.data()[i] /= 65536;
  return {[=] { return window(src.data(), src.step, dst.data(), dst.step, size); },
          [from = mat(src), factor = mat(weights), to = mat(dst), owner = weights.pixels]() mutable {
            cv::multiply(from, factor, to, 1, to.depth());
          },
          {}};
}
#endif

}  // namespace

Family noiseFamily() {
  return {"noise",
          {
#ifdef VEMI_BENCH_OPENCV
#define NOISE(name, T, channels, shape, peer, function) \
  {name, peer, noiseAgainstOpencv<T, channels, function, Shape::shape>}
              NOISE("Uniform 8u C1", Vemi8u, 1, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_8u_C1IR),
              NOISE("Uniform 8u C3", Vemi8u, 3, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_8u_C3IR),
              NOISE("Uniform 8u AC4", Vemi8u, 4, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_8u_AC4IR),
              NOISE("Uniform 16s C1", Vemi16s, 1, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_16s_C1IR),
              NOISE("Uniform 32f C1", Vemi32f, 1, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_32f_C1IR),
              NOISE("Uniform 32f AC4", Vemi32f, 4, uniform, "OpenCV randu, add", vemiAddRandUniform_Direct_32f_AC4IR),
              NOISE("Gauss 8u C1", Vemi8u, 1, normal, "OpenCV randn, add", vemiAddRandGauss_Direct_8u_C1IR),
              NOISE("Gauss 8u C3", Vemi8u, 3, normal, "OpenCV randn, add", vemiAddRandGauss_Direct_8u_C3IR),
              NOISE("Gauss 16s C1", Vemi16s, 1, normal, "OpenCV randn, add", vemiAddRandGauss_Direct_16s_C1IR),
              NOISE("Gauss 32f C1", Vemi32f, 1, normal, "OpenCV randn, add", vemiAddRandGauss_Direct_32f_C1IR),
              NOISE("Gauss 32f C3", Vemi32f, 3, normal, "OpenCV randn, add", vemiAddRandGauss_Direct_32f_C3IR),
#undef NOISE
#endif
          }};
}

Family generatedFamily() {
  return {"patterns, windows and their bounds",
          {
              {"Ramp 8u C1 horizontal", "memset", rampAgainstMemset<Vemi8u, 1, vemiImageRamp_8u_C1R, 0>},
              {"Ramp 8u C1 vertical", "memset", rampAgainstMemset<Vemi8u, 1, vemiImageRamp_8u_C1R, 1>},
              {"Ramp 8u C1 both", "memset", rampAgainstMemset<Vemi8u, 1, vemiImageRamp_8u_C1R, 2>},
              {"Ramp 8u C3 both", "memset", rampAgainstMemset<Vemi8u, 3, vemiImageRamp_8u_C3R, 2>},
              {"Ramp 32f C1 horizontal", "memset", rampAgainstMemset<Vemi32f, 1, vemiImageRamp_32f_C1R, 0>},
              {"Ramp 32f C1 vertical", "memset", rampAgainstMemset<Vemi32f, 1, vemiImageRamp_32f_C1R, 1>},
              {"Ramp 32f C1 both", "memset", rampAgainstMemset<Vemi32f, 1, vemiImageRamp_32f_C1R, 2>},
              {"Jaehne 8u C1", "memset", chirpAgainstMemset<Vemi8u, 1, vemiImageJaehne_8u_C1R>},
              {"Jaehne 8u C3", "memset", chirpAgainstMemset<Vemi8u, 3, vemiImageJaehne_8u_C3R>},
              {"Jaehne 32f C1", "memset", chirpAgainstMemset<Vemi32f, 1, vemiImageJaehne_32f_C1R>},
#ifdef VEMI_BENCH_OPENCV
              {"WinBartlettSep 8u", "OpenCV multiply", windowAgainstOpencv<Vemi8u, vemiWinBartlettSep_8u_C1R>},
              {"WinBartlettSep 32f", "OpenCV multiply", windowAgainstOpencv<Vemi32f, vemiWinBartlettSep_32f_C1R>},
              {"WinHammingSep 32f", "OpenCV multiply", windowAgainstOpencv<Vemi32f, vemiWinHammingSep_32f_C1R>},
              {"WinBartlett 8u", "OpenCV multiply", windowAgainstOpencv<Vemi8u, vemiWinBartlett_8u_C1R>},
              {"WinBartlett 32f", "OpenCV multiply", windowAgainstOpencv<Vemi32f, vemiWinBartlett_32f_C1R>},
              {"WinHamming 8u", "OpenCV multiply", windowAgainstOpencv<Vemi8u, vemiWinHamming_8u_C1R>},
              {"WinHamming 32f", "OpenCV multiply", windowAgainstOpencv<Vemi32f, vemiWinHamming_32f_C1R>},
#endif
          },
          Against::ourselves};
}

}  // namespace bench
