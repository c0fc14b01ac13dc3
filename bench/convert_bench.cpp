// Depth conversion: other element types with the same values, and on the full scale.

#include "peers.h"

namespace bench {
namespace {

#ifdef VEMI_BENCH_OPENCV
template <class S, class T>
struct Work {
  Image<S> src;
  Image<T> dst;
};

template <class S, class T>
Work<S, T> images(VemiSize size, int channels) {
  return {randomImage<S>(size, channels), blankImage<T>(size, channels)};
}

enum class Results { equal, others };

/// What our function takes behind the size is `last`; the peer multiplies and adds.
template <Results results, class S, class T, class Function, class... Last>
Contest against(const Work<S, T>& work, double alpha, double beta, Function* function, Last... last) {
  const auto ours = [=] {
    return function(work.src.data(), work.src.step, work.dst.data(), work.dst.step, work.dst.size, last...);
  };
  const auto peers = [=, src = mat(work.src), dst = mat(work.dst)]() mutable {
    src.convertTo(dst, dst.type(), alpha, beta);
  };
  if constexpr (results == Results::equal) return {ours, peers, {work.dst.bytes()}};
  return {ours, peers, {}};
}

template <class S, class T, int channels, auto function, Results results = Results::equal>
Contest converted(VemiSize size) {
  return against<results>(images<S, T>(size, channels), 1, 0, function);
}

template <class T, int channels, auto function, int roundMode>
Contest rounded(VemiSize size) {
  constexpr Results results = roundMode == vemiRndNear ? Results::equal : Results::others;
  return against<results>(images<Vemi32f, T>(size, channels), 1, 0, function, roundMode);
}

/// The peer rounds products in single precision.
template <class T, int channels, auto function>
Contest scaledUp(VemiSize size) {
  constexpr Results results = sizeof(T) < 4 ? Results::equal : Results::others;
  const double factor = sizeof(T) == 2 ? 257 : 16843009, lowest = static_cast<double>(std::numeric_limits<T>::min());
  return against<results>(images<Vemi8u, T>(size, channels), factor, lowest, function);
}

template <class S, int channels, auto function, int hint>
Contest scaledDown(VemiSize size) {
  const double factor = sizeof(S) == 2 ? 1 / 257.0 : 1 / 16843009.0;
  return against<Results::others>(images<S, Vemi8u>(size, channels), factor, std::is_signed_v<S> ? 127.5 : 0, function,
                                  hint);
}

template <int channels, auto function>
Contest scaledToFloat(VemiSize size) {
  return against<Results::others>(images<Vemi8u, Vemi32f>(size, channels), 2 / 255.0, -1, function, -1.0f, 1.0f);
}

template <int channels, auto function, int vMin>
Contest scaledFromFloat(VemiSize size) {
  constexpr float factor = 255 / (65535.0f - vMin);
  return against<Results::others>(images<Vemi32f, Vemi8u>(size, channels), factor, -vMin * factor, function,
                                  float{vMin}, 65535.0f);
}
#endif

/// A bit for each byte: nothing but the rows' own speed to compare with.
Contest bitsAgainstCopy(VemiSize size) {
  const Image<Vemi8u> bits = randomImage<Vemi8u>(size, 1), pixels = blankImage<Vemi8u>(size, 1);
  return {[=] { return vemiConvert_1u8u_C1R(bits.data(), size.width / 8, 0, pixels.data(), pixels.step, size); },
          [=] { std::memcpy(pixels.data(), bits.data(), pixels.bytes().count); },
          {}};
}

Contest ditherAgainstCopy(VemiSize size) {
  const Image<Vemi8u> bits = blankImage<Vemi8u>(size, 1), pixels = randomImage<Vemi8u>(size, 1);
  return {[=] { return vemiConvert_8u1u_C1R(pixels.data(), pixels.step, bits.data(), size.width / 8, 0, size, 128); },
          [=] { std::memcpy(bits.data(), pixels.data(), pixels.bytes().count); },
          {}};
}

}  // namespace

Family convertFamily() {
  return {"convert",
          {
#ifdef VEMI_BENCH_OPENCV
              {"Convert 8u16u C1", "OpenCV convertTo", converted<Vemi8u, Vemi16u, 1, vemiConvert_8u16u_C1R>},
              {"Convert 8u16s C1", "OpenCV convertTo", converted<Vemi8u, Vemi16s, 1, vemiConvert_8u16s_C1R>},
              {"Convert 8u32s C1", "OpenCV convertTo", converted<Vemi8u, Vemi32s, 1, vemiConvert_8u32s_C1R>},
              {"Convert 8u32f C1", "OpenCV convertTo", converted<Vemi8u, Vemi32f, 1, vemiConvert_8u32f_C1R>},
              {"Convert 8u32f C3", "OpenCV convertTo", converted<Vemi8u, Vemi32f, 3, vemiConvert_8u32f_C3R>},
              {"Convert 8s32s C1", "OpenCV convertTo", converted<Vemi8s, Vemi32s, 1, vemiConvert_8s32s_C1R>},
              {"Convert 8s32f C1", "OpenCV convertTo", converted<Vemi8s, Vemi32f, 1, vemiConvert_8s32f_C1R>},
              {"Convert 16u32s C1", "OpenCV convertTo", converted<Vemi16u, Vemi32s, 1, vemiConvert_16u32s_C1R>},
              {"Convert 16u32f C1", "OpenCV convertTo", converted<Vemi16u, Vemi32f, 1, vemiConvert_16u32f_C1R>},
              {"Convert 16s32f C1", "OpenCV convertTo", converted<Vemi16s, Vemi32f, 1, vemiConvert_16s32f_C1R>},
              {"Convert 16u8u C1", "OpenCV convertTo", converted<Vemi16u, Vemi8u, 1, vemiConvert_16u8u_C1R>},
              {"Convert 16s8u C1", "OpenCV convertTo", converted<Vemi16s, Vemi8u, 1, vemiConvert_16s8u_C1R>},
              {"Convert 32s8u C1", "OpenCV convertTo", converted<Vemi32s, Vemi8u, 1, vemiConvert_32s8u_C1R>},
              {"Convert 32s8s C1", "OpenCV convertTo", converted<Vemi32s, Vemi8s, 1, vemiConvert_32s8s_C1R>},
              {"Convert 32f8u C1", "OpenCV convertTo", rounded<Vemi8u, 1, vemiConvert_32f8u_C1R, vemiRndNear>},
              {"Convert 32f8u C1 zero", "OpenCV convertTo", rounded<Vemi8u, 1, vemiConvert_32f8u_C1R, vemiRndZero>},
              {"Convert 32f8u C3", "OpenCV convertTo", rounded<Vemi8u, 3, vemiConvert_32f8u_C3R, vemiRndNear>},
              {"Convert 32f8s C1", "OpenCV convertTo", rounded<Vemi8s, 1, vemiConvert_32f8s_C1R, vemiRndNear>},
              {"Convert 32f16u C1", "OpenCV convertTo", rounded<Vemi16u, 1, vemiConvert_32f16u_C1R, vemiRndNear>},
              {"Convert 32f16s C1", "OpenCV convertTo", rounded<Vemi16s, 1, vemiConvert_32f16s_C1R, vemiRndNear>},
              {"Scale 8u16u C1", "OpenCV convertTo", scaledUp<Vemi16u, 1, vemiScale_8u16u_C1R>},
              {"Scale 8u16s C1", "OpenCV convertTo", scaledUp<Vemi16s, 1, vemiScale_8u16s_C1R>},
              {"Scale 8u32s C1", "OpenCV convertTo", scaledUp<Vemi32s, 1, vemiScale_8u32s_C1R>},
              {"Scale 8u32f C1", "OpenCV convertTo", scaledToFloat<1, vemiScale_8u32f_C1R>},
              {"Scale 16u8u C1 fast", "OpenCV convertTo", scaledDown<Vemi16u, 1, vemiScale_16u8u_C1R, vemiHintFast>},
              {"Scale 16u8u C1 accurate", "OpenCV convertTo",
               scaledDown<Vemi16u, 1, vemiScale_16u8u_C1R, vemiHintAccurate>},
              {"Scale 16s8u C1 fast", "OpenCV convertTo", scaledDown<Vemi16s, 1, vemiScale_16s8u_C1R, vemiHintFast>},
              {"Scale 32s8u C1 fast", "OpenCV convertTo", scaledDown<Vemi32s, 1, vemiScale_32s8u_C1R, vemiHintFast>},
              {"Scale 32s8u C1 accurate", "OpenCV convertTo",
               scaledDown<Vemi32s, 1, vemiScale_32s8u_C1R, vemiHintAccurate>},
              {"Scale 32f8u C1", "OpenCV convertTo", scaledFromFloat<1, vemiScale_32f8u_C1R, 0>},
              {"Scale 32f8u C1 around 0", "OpenCV convertTo", scaledFromFloat<1, vemiScale_32f8u_C1R, -65535>},
              {"Scale 32f8u C3", "OpenCV convertTo", scaledFromFloat<3, vemiScale_32f8u_C3R, 0>},
#endif
          }};
}

Family bitImageFamily() {
  return {"bit images",
          {
              {"Convert 1u8u C1", "memcpy of bytes", bitsAgainstCopy},
              {"Convert 8u1u C1", "memcpy of bytes", ditherAgainstCopy},
          },
          Against::ourselves};
}

}  // namespace bench
