// Lookup tables, palettes and gamma. The peer's tables are ready before the clock runs; ours are made from the levels
// in every call.

#include <array>
#include <numeric>

#include "peers.h"

namespace bench {
namespace {

template <class T, class D = T>
struct Work {
  Image<T> src;
  Image<D> dst;
};

#ifdef VEMI_BENCH_OPENCV

constexpr int pointCount = 9;
constexpr Vemi32s levels[pointCount] = {0, 20, 40, 64, 96, 128, 170, 220, 256};
constexpr Vemi32s values[pointCount] = {5, 0, 30, 90, 80, 160, 150, 255, 250};
constexpr const Vemi32s* levelsOfChannels[] = {levels, levels, levels, levels};
constexpr const Vemi32s* valuesOfChannels[] = {values, values, values, values};
constexpr int countsOfChannels[] = {pointCount, pointCount, pointCount, pointCount};

/// Each of the 256 bytes, in all channels.
template <int channels>
cv::Mat ramp() {
  cv::Mat table(1, 256, CV_8UC(channels));
  for (int i = 0; i < 256 * channels; ++i) table.data[i] = static_cast<Vemi8u>(i / channels);
  return table;
}

/// call(pSrc, srcStep, pDst, dstStep, size); the peer's table is what it makes of all bytes.
template <int channels, class Call>
Contest againstTable(VemiSize size, const Call& call) {
  const Work<Vemi8u> work = {randomImage<Vemi8u>(size, channels), blankImage<Vemi8u>(size, channels)};
  cv::Mat table = ramp<channels>();
  call(ramp<channels>().data, 256 * channels, table.data, 256 * channels, VemiSize{256, 1});
  const auto ours = [=] { return call(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size); };
  const auto peers = [src = mat(work.src), dst = mat(work.dst), table]() mutable { cv::LUT(src, table, dst); };
  return {ours, peers, {work.dst.bytes()}};
}

template <auto function>
Contest ofOneChannel(VemiSize size) {
  return againstTable<1>(size, [](const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize) {
    return function(pSrc, srcStep, pDst, dstStep, roiSize, values, levels, pointCount);
  });
}

template <int channels, auto function>
Contest ofChannels(VemiSize size) {
  return againstTable<channels>(size, [](const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, VemiSize roiSize) {
    return function(pSrc, srcStep, pDst, dstStep, roiSize, valuesOfChannels, levelsOfChannels, countsOfChannels);
  });
}

template <auto function>
Contest gamma8u(VemiSize size) {
  return againstTable<3>(size, function);
}

/// The peer's table is the palette.
Contest palette32u(VemiSize size) {
  const Work<Vemi8u, Vemi32u> work = {randomImage<Vemi8u>(size, 1), blankImage<Vemi32u>(size, 1)};
  std::array<Vemi32u, 256> table;
  for (Vemi32u i = 0; i < 256; ++i) table[i] = i * 0x01030507u;
  const auto ours = [=] {
    return vemiLUTPalette_8u32u_C1R(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size, table.data(),
                                    8);
  };
  const cv::Mat peersTable = cv::Mat(1, 256, CV_32SC1, table.data()).clone();
  const cv::Mat peersDst(size.height, size.width, CV_32SC1, work.dst.data());
  const auto peers = [src = mat(work.src), dst = peersDst, peersTable]() mutable { cv::LUT(src, peersTable, dst); };
  return {ours, peers, {work.dst.bytes()}};
}

Contest palette24u(VemiSize size) {
  const Work<Vemi8u> work = {randomImage<Vemi8u>(size, 1), blankImage<Vemi8u>(size, 3)};
  std::array<Vemi8u, 768> table;
  for (size_t i = 0; i < 768; ++i) table[i] = static_cast<Vemi8u>(i * 37);
  const auto ours = [=] {
    return vemiLUTPalette_8u24u_C1R(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size, table.data(),
                                    8);
  };
  const cv::Mat colours = cv::Mat(256, 1, CV_8UC3, table.data()).clone();
  const auto peers = [src = mat(work.src), dst = mat(work.dst), colours]() mutable {
    cv::applyColorMap(src, dst, colours);
  };
  return {ours, peers, {work.dst.bytes()}};
}

/// Pixels from 0 to 1; the power alone, in single precision, is what the peer has.
template <auto function>
Contest gamma32f(VemiSize size) {
  const Work<Vemi32f> work = {randomImage<Vemi32f>(size, 3), blankImage<Vemi32f>(size, 3)};
  for (size_t i = 0; i < work.src.elements(); ++i) work.src.data()[i] /= 65535.0f;
  const double exponent = function == vemiGammaFwd_32f_C3R ? 0.45 : 1 / 0.45;
  return {[=] { return function(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size, 0, 1); },
          [=, src = mat(work.src), dst = mat(work.dst)]() mutable { cv::pow(src, exponent, dst); },
          {}};
}

/// The peer has no table of 65536 entries: there and back by floats.
template <auto function>
Contest gamma16u(VemiSize size) {
  const Work<Vemi16u> work = {randomImage<Vemi16u>(size, 3), blankImage<Vemi16u>(size, 3)};
  const double exponent = function == vemiGammaFwd_16u_C3R ? 0.45 : 1 / 0.45;
  const auto peers = [=, src = mat(work.src), dst = mat(work.dst), floats = cv::Mat()]() mutable {
    src.convertTo(floats, CV_32F, 1 / 65535.0);
    cv::pow(floats, exponent, floats);
    floats.convertTo(dst, CV_16U, 65535);
  };
  return {[=] { return function(work.src.data(), work.src.step, work.dst.data(), work.dst.step, size); }, peers, {}};
}
#endif

}  // namespace

Family lutFamily() {
  return {"lookup tables",
          {
#ifdef VEMI_BENCH_OPENCV
              {"LUT 8u C1", "OpenCV LUT", ofOneChannel<vemiLUT_8u_C1R>},
              {"LUT Linear 8u C1", "OpenCV LUT", ofOneChannel<vemiLUT_Linear_8u_C1R>},
              {"LUT Cubic 8u C1", "OpenCV LUT", ofOneChannel<vemiLUT_Cubic_8u_C1R>},
              {"LUT 8u C3", "OpenCV LUT", ofChannels<3, vemiLUT_8u_C3R>},
              {"LUT Linear 8u C3", "OpenCV LUT", ofChannels<3, vemiLUT_Linear_8u_C3R>},
              {"LUT Cubic 8u C3", "OpenCV LUT", ofChannels<3, vemiLUT_Cubic_8u_C3R>},
              {"LUT Linear 8u C4", "OpenCV LUT", ofChannels<4, vemiLUT_Linear_8u_C4R>},
              {"LUTPalette 8u24u", "OpenCV applyColorMap", palette24u},
              {"LUTPalette 8u32u", "OpenCV LUT", palette32u},
#endif
          }};
}

Family gammaFamily() {
  return {"gamma",
          {
#ifdef VEMI_BENCH_OPENCV
              {"GammaFwd 8u C3", "OpenCV LUT", gamma8u<vemiGammaFwd_8u_C3R>},
              {"GammaInv 8u C3", "OpenCV LUT", gamma8u<vemiGammaInv_8u_C3R>},
              {"GammaFwd 16u C3", "OpenCV convertTo, pow", gamma16u<vemiGammaFwd_16u_C3R>},
              {"GammaInv 16u C3", "OpenCV convertTo, pow", gamma16u<vemiGammaInv_16u_C3R>},
              {"GammaFwd 32f C3", "OpenCV pow", gamma32f<vemiGammaFwd_32f_C3R>},
              {"GammaInv 32f C3", "OpenCV pow", gamma32f<vemiGammaInv_32f_C3R>},
#endif
          }};
}

}  // namespace bench
