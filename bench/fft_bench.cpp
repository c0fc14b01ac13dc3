// Fourier transforms against FFTW's plans and OpenCV's dft, on images of the largest powers of two that a size holds.
// All of them leave the same numbers, each in a layout and with roundings of its own.

#include "peers.h"

namespace bench {
namespace {

VemiSize powersOfTwo(VemiSize size) {
  const auto power = [](int length) {
    int n = 1;
    while (2 * n <= length) n *= 2;
    return n;
  };
  return {power(size.width), power(size.height)};
}

int orderOf(int length) {
  int order = 0;
  while (1 << order < length) ++order;
  return order;
}

/// A record with a buffer, and what is asked of it.
template <class Spec>
struct Prepared {
  std::shared_ptr<Spec> spec;
  std::shared_ptr<std::vector<Vemi8u>> buffer;

  Prepared(VemiSize size, VemiStatus (*initAlloc)(Spec**, int, int, int, vemiHint),
           VemiStatus (*getBufSize)(const Spec*, int*), VemiStatus (*release)(Spec*)) {
    Spec* made = nullptr;
    int bytes = 0;
    if (initAlloc(&made, orderOf(size.width), orderOf(size.height), vemiFftScaleNone, vemiHintNone) != vemiOk ||
        getBufSize(made, &bytes) != vemiOk) {
      throw std::bad_alloc();
    }
    spec = {made, release};
    buffer = std::make_shared<std::vector<Vemi8u>>(static_cast<size_t>(bytes));
  }
};

template <class T, class Spec>
using Transform = VemiStatus(const T*, int, T*, int, const Spec*, Vemi8u*);

template <class T, class Spec>
std::function<VemiStatus()> oursOf(Transform<T, Spec>* transform, const Image<T>& src, const Image<T>& dst,
                                   const Prepared<Spec>& by) {
  return [=] { return transform(src.data(), src.step, dst.data(), dst.step, by.spec.get(), by.buffer->data()); };
}

Prepared<VemiFFTSpec_R_32f> realOf(VemiSize size) {
  return {size, vemiFFTInitAlloc_R_32f, vemiFFTGetBufSize_R_32f, vemiFFTFree_R_32f};
}
Prepared<VemiFFTSpec_C_32fc> complexOf(VemiSize size) {
  return {size, vemiFFTInitAlloc_C_32fc, vemiFFTGetBufSize_C_32fc, vemiFFTFree_C_32fc};
}

#ifdef VEMI_BENCH_FFTW
/// A patient plan where that takes less than seconds. Planning spoils what images hold: they are filled again.
template <class Plan>
std::function<void()> planned(VemiSize size, const Image<Vemi32f>& src, const Plan& plan) {
  const unsigned effort = size.width * size.height < 100000 ? FFTW_PATIENT : FFTW_MEASURE;
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> made(plan(effort), fftwf_destroy_plan);
  const Image<Vemi32f> fresh = randomImage<Vemi32f>(src.size, src.channels, peersAlone);
  std::memcpy(src.data(), fresh.data(), src.bytes().count);
  return [=] { fftwf_execute(made.get()); };
}

template <int channels, Transform<Vemi32f, VemiFFTSpec_R_32f>* transform, bool isForward>
Contest realAgainstFftw(VemiSize most) {
  const VemiSize size = powersOfTwo(most);
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, channels), dst = blankImage<Vemi32f>(size, channels);
  // Theirs has W / 2 + 1 complex columns.
  const VemiSize wide = {size.width + 2, size.height};
  const Image<Vemi32f> spectrum = randomImage<Vemi32f>(wide, channels, peersAlone);
  const Image<Vemi32f> image = randomImage<Vemi32f>(size, channels, peersAlone);
  auto* const numbers = reinterpret_cast<fftwf_complex*>(spectrum.data());
  const int extents[] = {size.height, size.width};
  const auto peers = planned(size, isForward ? image : spectrum, [&](unsigned effort) {
    return isForward ? fftwf_plan_many_dft_r2c(2, extents, channels, image.data(), nullptr, channels, 1, numbers,
                                               nullptr, channels, 1, effort)
                     : fftwf_plan_many_dft_c2r(2, extents, channels, numbers, nullptr, channels, 1, image.data(),
                                               nullptr, channels, 1, effort);
  });
  return {oursOf(transform, src, dst, realOf(size)), [peers, image, spectrum] { peers(); }, {}};
}

template <Transform<Vemi32fc, VemiFFTSpec_C_32fc>* transform, int sign>
Contest complexAgainstFftw(VemiSize most) {
  const VemiSize size = powersOfTwo(most), floats = {2 * size.width, size.height};
  const Image<Vemi32f> image = randomImage<Vemi32f>(floats, 1), result = blankImage<Vemi32f>(floats, 1);
  const auto peers = planned(size, image, [&](unsigned effort) {
    return fftwf_plan_dft_2d(size.height, size.width, reinterpret_cast<fftwf_complex*>(image.data()),
                             reinterpret_cast<fftwf_complex*>(result.data()), sign, effort);
  });
  const Prepared<VemiFFTSpec_C_32fc> by = complexOf(size);
  return {[=] {
            return transform(reinterpret_cast<const Vemi32fc*>(image.data()), image.step,
                             reinterpret_cast<Vemi32fc*>(result.data()), result.step, by.spec.get(), by.buffer->data());
          },
          peers,
          {}};
}
#endif

#ifdef VEMI_BENCH_OPENCV
template <Transform<Vemi32f, VemiFFTSpec_R_32f>* transform, int flags>
Contest realAgainstOpencv(VemiSize most) {
  const VemiSize size = powersOfTwo(most);
  const Image<Vemi32f> src = randomImage<Vemi32f>(size, 1), dst = blankImage<Vemi32f>(size, 1);
  return {oursOf(transform, src, dst, realOf(size)),
          [from = mat(src), to = mat(dst), src, dst]() mutable { cv::dft(from, to, flags); },
          {}};
}

template <VemiStatus (*transform)(const Vemi8u*, int, Vemi32s*, int, const VemiFFTSpec_R_32s*, int, Vemi8u*)>
Contest integersAgainstOpencv(VemiSize most) {
  const VemiSize size = powersOfTwo(most);
  const Image<Vemi8u> src = randomImage<Vemi8u>(size, 1);
  const Image<Vemi32s> dst = blankImage<Vemi32s>(size, 1);
  const Prepared<VemiFFTSpec_R_32s> by(size, vemiFFTInitAlloc_R_32s, vemiFFTGetBufSize_R_32s, vemiFFTFree_R_32s);
  const auto ours = [=] {
    return transform(src.data(), src.step, dst.data(), dst.step, by.spec.get(), 0, by.buffer->data());
  };
  const auto peers = [from = mat(src), to = mat(dst), src, dst, floats = cv::Mat()]() mutable {
    from.convertTo(floats, CV_32F);
    cv::dft(floats, floats);
    floats.convertTo(to, CV_32S);
  };
  return {ours, peers, {}};
}
#endif

}  // namespace

Family fftFamily() {
  return {"FFT",
          {
#ifdef VEMI_BENCH_FFTW
              {"Forward 32f C1", "FFTW", realAgainstFftw<1, vemiFFTFwd_RToPack_32f_C1R, true>},
              {"Inverse 32f C1", "FFTW", realAgainstFftw<1, vemiFFTInv_PackToR_32f_C1R, false>},
              {"Forward 32f C3", "FFTW", realAgainstFftw<3, vemiFFTFwd_RToPack_32f_C3R, true>},
              {"Inverse 32f C3", "FFTW", realAgainstFftw<3, vemiFFTInv_PackToR_32f_C3R, false>},
              {"Forward 32f C4", "FFTW", realAgainstFftw<4, vemiFFTFwd_RToPack_32f_C4R, true>},
              {"Forward 32fc", "FFTW", complexAgainstFftw<vemiFFTFwd_CToC_32fc_C1R, FFTW_FORWARD>},
              {"Inverse 32fc", "FFTW", complexAgainstFftw<vemiFFTInv_CToC_32fc_C1R, FFTW_BACKWARD>},
#endif
#ifdef VEMI_BENCH_OPENCV
              {"Forward 32f C1", "OpenCV dft", realAgainstOpencv<vemiFFTFwd_RToPack_32f_C1R, 0>},
              {"Inverse 32f C1", "OpenCV dft",
               realAgainstOpencv<vemiFFTInv_PackToR_32f_C1R, cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT>},
              {"Forward 8u32s C1", "OpenCV convertTo, dft, convertTo",
               integersAgainstOpencv<vemiFFTFwd_RToPack_8u32s_C1RSfs>},
#endif
          }};
}

}  // namespace bench
