// One level of wavelets against plain loops that know the numbers of taps when they are compiled, and so unroll and
// vectorise for processors with AVX2. Both leave the same numbers but for their roundings.

#include <array>

#include "image.h"

#ifdef __x86_64__
#define WITH_LANES __attribute__((target("avx2,fma")))
#else
#define WITH_LANES
#endif

namespace bench {
namespace {

constexpr int margin = 16;

/// An image with pixels around it.
struct Padded {
  Image<Vemi32f> all;

  Padded(VemiSize size, int channels) : all(randomImage<Vemi32f>({size.width + 32, size.height + 32}, channels)) {}
  Vemi32f* data() const { return all.data() + (margin * all.step / 4 + margin * all.channels); }
  int step() const { return all.step; }
};

template <int taps>
using Taps = std::array<float, static_cast<size_t>(taps)>;

template <int taps>
Taps<taps> someTaps() {
  Taps<taps> tap;
  for (int k = 0; k < taps; ++k) tap[static_cast<size_t>(k)] = 0.5f / static_cast<float>(1 + std::abs(k - taps / 2));
  return tap;
}

/// Low and high pass with their anchors.
template <int low, int anchorLow, int high, int anchorHigh>
struct Bank {
  static constexpr int lows = low, highs = high, atLow = anchorLow, atHigh = anchorHigh;
  Taps<low> tapsLow = someTaps<low>();
  Taps<high> tapsHigh = someTaps<high>();
};

template <int taps>
WITH_LANES void plainColumns(const Taps<taps>& tap, const float* from, ptrdiff_t step, int count, float* to) {
  for (int i = 0; i < count; ++i) {
    float sum = 0;
    for (int k = 0; k < taps; ++k) sum += tap[static_cast<size_t>(k)] * from[i - k * step];
    to[i] = sum;
  }
}

template <int taps, int channels>
WITH_LANES void plainDecimated(const Taps<taps>& tap, const float* from, int width, float* to) {
  for (int x = 0; x < width; ++x) {
    for (int c = 0; c < channels; ++c) {
      float sum = 0;
      for (int k = 0; k < taps; ++k) sum += tap[static_cast<size_t>(k)] * from[(2 * x - k) * channels + c];
      to[x * channels + c] = sum;
    }
  }
}

struct Four {
  float* image[4];
  ptrdiff_t step;  // of all of them, in floats

  float* row(int n, int y) const { return image[n] + y * step; }
};

template <int channels, class B>
WITH_LANES void plainForward(const B& bank, const float* src, ptrdiff_t step, const Four& dst, VemiSize size,
                             float* work) {
  const int reach = 12, count = (2 * size.width + 2 * reach) * channels;
  for (int y = 0; y < size.height; ++y) {
    const float* const first = src + 2 * y * step - reach * channels;
    plainColumns<B::lows>(bank.tapsLow, first + B::atLow * step, step, count, work);
    plainDecimated<B::lows, channels>(bank.tapsLow, work + (reach + B::atLow) * channels, size.width, dst.row(0, y));
    plainDecimated<B::highs, channels>(bank.tapsHigh, work + (reach + B::atHigh) * channels, size.width, dst.row(1, y));
    plainColumns<B::highs>(bank.tapsHigh, first + B::atHigh * step, step, count, work);
    plainDecimated<B::lows, channels>(bank.tapsLow, work + (reach + B::atLow) * channels, size.width, dst.row(2, y));
    plainDecimated<B::highs, channels>(bank.tapsHigh, work + (reach + B::atHigh) * channels, size.width, dst.row(3, y));
  }
}

/// to[i] (+)= every second tap from tap `first` on, which meets element i + base of `from`.
template <int taps, int stride, bool adds, int first>
WITH_LANES void plainPhase(const Taps<taps>& tap, int base, const float* from, ptrdiff_t step, int count, float* to) {
  for (int i = 0; i < count; ++i) {
    float sum = adds ? to[i * stride] : 0;
    for (int k = first; k < taps; k += 2) sum += tap[static_cast<size_t>(k)] * from[i + (base - k / 2) * step];
    to[i * stride] = sum;
  }
}

template <int taps, int stride, bool adds>
WITH_LANES void plainPhase(const Taps<taps>& tap, int parity, int anchor, const float* from, ptrdiff_t step, int count,
                           float* to) {
  const int base = (parity + anchor - 1) / 2;
  if ((parity + anchor) % 2 != 0) return plainPhase<taps, stride, adds, 0>(tap, base, from, step, count, to);
  plainPhase<taps, stride, adds, 1>(tap, base, from, step, count, to);
}

template <class B>
WITH_LANES void plainInverse(const B& bank, const Four& src, float* dst, ptrdiff_t step, VemiSize size, float* work) {
  const int reach = 8, count = size.width + 2 * reach;
  float* const second = work + count;
  for (int y = 0; y < 2 * size.height; ++y) {
    plainPhase<B::lows, 1, false>(bank.tapsLow, y % 2, B::atLow, src.row(0, y / 2) - reach, src.step, count, work);
    plainPhase<B::highs, 1, true>(bank.tapsHigh, y % 2, B::atHigh, src.row(2, y / 2) - reach, src.step, count, work);
    plainPhase<B::lows, 1, false>(bank.tapsLow, y % 2, B::atLow, src.row(1, y / 2) - reach, src.step, count, second);
    plainPhase<B::highs, 1, true>(bank.tapsHigh, y % 2, B::atHigh, src.row(3, y / 2) - reach, src.step, count, second);
    for (const int p : {0, 1}) {
      float* const to = dst + y * step + p;
      plainPhase<B::lows, 2, false>(bank.tapsLow, p, B::atLow, work + reach, 1, size.width, to);
      plainPhase<B::highs, 2, true>(bank.tapsHigh, p, B::atHigh, second + reach, 1, size.width, to);
    }
  }
}

template <class Spec, class B>
std::shared_ptr<Spec> recordOf(const B& bank,
                               VemiStatus (*init)(Spec**, const Vemi32f*, int, int, const Vemi32f*, int, int),
                               VemiStatus (*release)(Spec*)) {
  Spec* spec = nullptr;
  if (init(&spec, bank.tapsLow.data(), B::lows, B::atLow, bank.tapsHigh.data(), B::highs, B::atHigh) != vemiOk) {
    throw std::bad_alloc();
  }
  return {spec, release};
}

std::shared_ptr<std::vector<Vemi8u>> workFor(VemiSize size) {
  return std::make_shared<std::vector<Vemi8u>>(static_cast<size_t>(size.width) * 32 + 16384);
}

/// `most` is the whole image.
template <int channels, class B>
Contest forwardContest(VemiSize most) {
  const VemiSize size = {most.width / 2, most.height / 2};
  const Padded src(most, channels);
  const Padded quarter[] = {{size, channels}, {size, channels}, {size, channels}, {size, channels}};
  const std::vector<Padded> ours(std::begin(quarter), std::end(quarter));
  const B bank;
  const auto buffer = workFor(most);
  const int step = ours[0].step();
  const Four four = {{ours[0].data(), ours[1].data(), ours[2].data(), ours[3].data()}, step / 4};
  const auto peers = [=] {
    plainForward<channels>(bank, src.data(), src.step() / 4, four, size, reinterpret_cast<float*>(buffer->data()));
    (void)ours;
  };
  if constexpr (channels == 1) {
    const auto spec = recordOf(bank, vemiWTFwdInitAlloc_32f_C1R, vemiWTFwdFree_32f_C1R);
    return {[=] {
              return vemiWTFwd_32f_C1R(src.data(), src.step(), ours[0].data(), step, ours[2].data(), step,
                                       ours[1].data(), step, ours[3].data(), step, size, spec.get(), buffer->data());
            },
            peers,
            {}};
  } else {
    const auto spec = recordOf(bank, vemiWTFwdInitAlloc_32f_C3R, vemiWTFwdFree_32f_C3R);
    return {[=] {
              return vemiWTFwd_32f_C3R(src.data(), src.step(), ours[0].data(), step, ours[2].data(), step,
                                       ours[1].data(), step, ours[3].data(), step, size, spec.get(), buffer->data());
            },
            peers,
            {}};
  }
}

template <class B>
Contest inverseContest(VemiSize most) {
  const VemiSize size = {most.width / 2, most.height / 2};
  const Padded dst(most, 1);
  const std::vector<Padded> quarter = {{size, 1}, {size, 1}, {size, 1}, {size, 1}};
  const B bank;
  const auto buffer = workFor(most);
  const int step = quarter[0].step();
  const Four four = {{quarter[0].data(), quarter[1].data(), quarter[2].data(), quarter[3].data()}, step / 4};
  const auto spec = recordOf(bank, vemiWTInvInitAlloc_32f_C1R, vemiWTInvFree_32f_C1R);
  return {[=] {
            return vemiWTInv_32f_C1R(quarter[0].data(), step, quarter[2].data(), step, quarter[1].data(), step,
                                     quarter[3].data(), step, size, dst.data(), dst.step(), spec.get(), buffer->data());
          },
          [=] {
            plainInverse(bank, four, dst.data(), dst.step() / 4, size, reinterpret_cast<float*>(buffer->data()));
            (void)quarter;
          },
          {}};
}

}  // namespace

Family waveletFamily() {
  const std::string plain = "a loop that knows its taps";
  return {"Wavelets",
          {{"9/7 forward C1", plain, forwardContest<1, Bank<9, 4, 7, 4>>},
           {"9/7 forward C3", plain, forwardContest<3, Bank<9, 4, 7, 4>>},
           {"9/7 inverse C1", plain, inverseContest<Bank<7, 4, 9, 4>>},
           {"5/3 forward C1", plain, forwardContest<1, Bank<5, 2, 3, 2>>},
           {"5/3 inverse C1", plain, inverseContest<Bank<3, 2, 5, 2>>},
           {"Haar forward C1", plain, forwardContest<1, Bank<2, 1, 2, 1>>},
           {"Haar inverse C1", plain, inverseContest<Bank<2, 1, 2, 1>>}}};
}

}  // namespace bench
