// Fourier transforms against FFTW's plans and OpenCV's dft, on images of the largest powers of two that a size holds.

#include "fourier.h"

namespace bench {
namespace {

VemiSize sizeWithin(VemiSize size) {
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

Prepared<VemiFFTSpec_R_32f> realOf(VemiSize size) {
  const auto make = [&](VemiFFTSpec_R_32f** spec) {
    return vemiFFTInitAlloc_R_32f(spec, orderOf(size.width), orderOf(size.height), vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiFFTGetBufSize_R_32f, vemiFFTFree_R_32f};
}
Prepared<VemiFFTSpec_C_32fc> complexOf(VemiSize size) {
  const auto make = [&](VemiFFTSpec_C_32fc** spec) {
    return vemiFFTInitAlloc_C_32fc(spec, orderOf(size.width), orderOf(size.height), vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiFFTGetBufSize_C_32fc, vemiFFTFree_C_32fc};
}
Prepared<VemiFFTSpec_R_32s> integersOf(VemiSize size) {
  const auto make = [&](VemiFFTSpec_R_32s** spec) {
    return vemiFFTInitAlloc_R_32s(spec, orderOf(size.width), orderOf(size.height), vemiFftScaleNone, vemiHintNone);
  };
  return {make, vemiFFTGetBufSize_R_32s, vemiFFTFree_R_32s};
}

#ifdef VEMI_BENCH_FFTW
template <int channels, Transform<Vemi32f, VemiFFTSpec_R_32f>* transform, bool isForward>
Contest real(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return realAgainstFftw(size, channels, isForward, transform, realOf(size));
}

template <Transform<Vemi32fc, VemiFFTSpec_C_32fc>* transform, int sign>
Contest complex(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return complexAgainstFftw(size, sign, transform, complexOf(size));
}
#endif

#ifdef VEMI_BENCH_OPENCV
template <Transform<Vemi32f, VemiFFTSpec_R_32f>* transform, int flags>
Contest againstOpencv(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return realAgainstOpencv(size, flags, transform, realOf(size));
}

template <IntegerTransform<VemiFFTSpec_R_32s>* transform>
Contest integers(VemiSize most) {
  const VemiSize size = sizeWithin(most);
  return integersAgainstOpencv(size, transform, integersOf(size));
}
#endif

}  // namespace

Family fftFamily() {
  return {"FFT",
          {
#ifdef VEMI_BENCH_FFTW
              {"Forward 32f C1", "FFTW", real<1, vemiFFTFwd_RToPack_32f_C1R, true>},
              {"Inverse 32f C1", "FFTW", real<1, vemiFFTInv_PackToR_32f_C1R, false>},
              {"Forward 32f C3", "FFTW", real<3, vemiFFTFwd_RToPack_32f_C3R, true>},
              {"Inverse 32f C3", "FFTW", real<3, vemiFFTInv_PackToR_32f_C3R, false>},
              {"Forward 32f C4", "FFTW", real<4, vemiFFTFwd_RToPack_32f_C4R, true>},
              {"Forward 32fc", "FFTW", complex<vemiFFTFwd_CToC_32fc_C1R, FFTW_FORWARD>},
              {"Inverse 32fc", "FFTW", complex<vemiFFTInv_CToC_32fc_C1R, FFTW_BACKWARD>},
#endif
#ifdef VEMI_BENCH_OPENCV
              {"Forward 32f C1", "OpenCV dft", againstOpencv<vemiFFTFwd_RToPack_32f_C1R, 0>},
              {"Inverse 32f C1", "OpenCV dft",
               againstOpencv<vemiFFTInv_PackToR_32f_C1R, cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT>},
              {"Forward 8u32s C1", "OpenCV convertTo, dft, convertTo", integers<vemiFFTFwd_RToPack_8u32s_C1RSfs>},
#endif
          }};
}

}  // namespace bench
